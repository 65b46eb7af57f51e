// SPDX-License-Identifier: GPL-3.0-or-later
// The look of what the window system draws: glazed tiles, cobalt on white, set in warm terracotta
// and cream. Colours, the application's style and fonts, and the few shapes that views share.
#pragma once

#include <QColor>
#include <QPalette>
#include <QProxyStyle>
#include <QRect>

class QPainter;
class QStyleOptionSlider;

namespace tessario {

namespace estilo {

inline const QColor TERRACOTA{0xB4, 0x54, 0x32};
inline const QColor TERRACOTA_OSCURA{0x7C, 0x36, 0x1E};
inline const QColor BARRO{0xDD, 0xB4, 0x93};
inline const QColor CREMA{0xFB, 0xF3, 0xE2};
inline const QColor CREMA_OSCURA{0xEC, 0xDD, 0xC2};
inline const QColor COBALTO{0x1C, 0x45, 0x9C};
inline const QColor COBALTO_OSCURO{0x10, 0x2B, 0x66};
inline const QColor COBALTO_CLARO{0x9D, 0xB6, 0xE4};
inline const QColor ESMALTE{0xFF, 0xFE, 0xFA};
inline const QColor ORO{0xFF, 0xD2, 0x4A};
inline const QColor VERDE{0x1B, 0x7A, 0x3A};
inline const QColor TINTA{0x24, 0x1C, 0x18};
inline const QColor APAGADO{0x93, 0x8B, 0x82};        // drawn parts of what is off
inline const QColor TINTA_APAGADA{0x4A, 0x43, 0x3C};  // and its text
inline const QColor VISITADO{0x96, 0x42, 0x24};

// The ring around the control that has the keyboard.
void Anillo(QPainter& p, QRect r);
// A glazed tile: rounded box with a lit upper edge; sunk when pressed.
void Azulejo(QPainter& p, QRect r, const QColor& color, bool hundido);
// A sunken cream field for a value.
void Hueco(QPainter& p, QRect r);
enum class Rumbo { Arriba, Abajo, Izquierda, Derecha };
void Flecha(QPainter& p, QRect r, Rumbo rumbo, const QColor& color);
void Tilde(QPainter& p, QRect r, const QColor& color);  // a tick

QPalette Paleta();

}  // namespace estilo

// The standard widgets in the same look, over the plain style that every system has.
class Estilo : public QProxyStyle {
public:
    Estilo();
    void drawPrimitive(PrimitiveElement pe, const QStyleOption* o, QPainter* p,
                       const QWidget* w) const override;
    void drawComplexControl(ComplexControl cc, const QStyleOptionComplex* o, QPainter* p,
                            const QWidget* w) const override;
    int pixelMetric(PixelMetric m, const QStyleOption* o, const QWidget* w) const override;
    int styleHint(StyleHint h, const QStyleOption* o, const QWidget* w,
                  QStyleHintReturn* r) const override;

private:
    void PintaBarra(const QStyleOptionSlider& o, QPainter& p, const QWidget* w) const;
};

// Style, palette and font of the application, set outright so that the user's settings do not
// change the pixels.
void VisteAplicacion();

}  // namespace tessario
