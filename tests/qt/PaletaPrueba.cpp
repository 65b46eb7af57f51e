// SPDX-License-Identifier: GPL-3.0-or-later
// Every text that the shell paints can be read: the palette of the application, the colours of the
// views that paint their own, and the captions on pictures.
#include "PruebaQt.h"
#include "core/Paleta.h"
#include "qt/Estilo.h"
#include "qt/Imagenes.h"

namespace tessario {
namespace {

double Contraste(const QColor& a, const QColor& b) {
    return paleta::Contraste(ColorDe(a.rgb() & 0xFFFFFFU), ColorDe(b.rgb() & 0xFFFFFFU));
}

TEST(PaletaDeLaVista, EveryRoleCanBeReadInEveryState) {
    const QPalette q = estilo::Paleta();
    const struct {
        QPalette::ColorRole texto, fondo;
    } PAREJAS[] = {{QPalette::WindowText, QPalette::Window},
                   {QPalette::WindowText, QPalette::Base},
                   {QPalette::Text, QPalette::Base},
                   {QPalette::Text, QPalette::AlternateBase},
                   {QPalette::PlaceholderText, QPalette::Base},
                   {QPalette::ButtonText, QPalette::Button},
                   {QPalette::HighlightedText, QPalette::Highlight},
                   {QPalette::Link, QPalette::Base},
                   {QPalette::LinkVisited, QPalette::Base},
                   {QPalette::ToolTipText, QPalette::ToolTipBase}};
    for (const auto estado : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        for (const auto& p : PAREJAS)
            EXPECT_GE(Contraste(q.color(estado, p.texto), q.color(estado, p.fondo)), 4.5)
                << estado << ": " << p.texto << " on " << p.fondo;
}

TEST(PaletaDeLaVista, CaptionsOfTheControlsCanBeReadOnTheirGrounds) {
    using namespace estilo;
    const QColor gris = QColor::fromRgb(PixelDe(paleta::GRIS_CLARO));
    for (const QColor& fondo : {gris, CREMA, ESMALTE, CREMA_OSCURA}) {
        EXPECT_GE(Contraste(COBALTO_OSCURO, fondo), 4.5) << fondo.name().toStdString();
        EXPECT_GE(Contraste(TINTA_APAGADA, fondo), 4.5) << fondo.name().toStdString();
    }
    EXPECT_GE(Contraste(ESMALTE, TERRACOTA), 4.5) << "figures on a knob";
    EXPECT_GE(Contraste(TINTA_APAGADA, BARRO), 4.5) << "and on one that is off";
    // The tick of a row.
    EXPECT_GE(Contraste(VERDE, CREMA), 4.5);
    EXPECT_GE(Contraste(ESMALTE, COBALTO), 4.5);
}

TEST(PaletaDeLaVista, CaptionsCanBeReadOnTheLongButtons) {
    Mapa vario;
    ASSERT_TRUE(imagenes::Recurso("BmpVario", vario));
    for (const i32 arriba : {30, 54})  // released, pressed
        for (i32 y = arriba + 4; y < arriba + 19; ++y)
            for (i32 x = 102 + 8; x < 229; ++x)
                ASSERT_GE(paleta::Contraste(ColorDe(vario.Fila(y)[x]), paleta::tinta::GRUPO.Texto),
                          4.5)
                    << x << ", " << y;
}

TEST(PaletaDeLaVista, WhatIsOffIsToldFromWhatIsOnByItsColour) {
    const QPalette q = estilo::Paleta();
    EXPECT_NE(q.color(QPalette::Disabled, QPalette::Text),
              q.color(QPalette::Active, QPalette::Text));
    EXPECT_NE(q.color(QPalette::Disabled, QPalette::Base),
              q.color(QPalette::Active, QPalette::Base));
}

}  // namespace
}  // namespace tessario
