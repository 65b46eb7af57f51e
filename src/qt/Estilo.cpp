// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Estilo.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolTip>

#include "qt/Textos.h"

namespace tessario {

namespace estilo {

void Anillo(QPainter& p, QRect r) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setBrush(Qt::NoBrush);
    const QColor* const COLORES[] = {&COBALTO, &COBALTO, &ESMALTE};  // from the edge inwards
    for (int i = 0; i < 3; ++i) {
        p.setPen(QPen(*COLORES[i], 1));
        p.drawRect(r.adjusted(i, i, -i - 1, -i - 1));
    }
    p.restore();
}

void Azulejo(QPainter& p, QRect r, const QColor& color, bool hundido) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    QRectF caja = QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5);
    QLinearGradient brillo(caja.topLeft(), caja.bottomLeft());
    brillo.setColorAt(0, hundido ? color.darker(112) : color.lighter(116));
    brillo.setColorAt(1, hundido ? color : color.darker(108));
    p.setPen(QPen(color.darker(150), 1));
    p.setBrush(brillo);
    p.drawRoundedRect(caja, 3, 3);
    if (!hundido) {
        p.setPen(QPen(QColor(255, 255, 255, 110), 1));
        p.drawLine(QPointF(caja.left() + 3, caja.top() + 1),
                   QPointF(caja.right() - 3, caja.top() + 1));
    }
    p.restore();
}

void Hueco(QPainter& p, QRect r) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF caja = QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5);
    p.setPen(QPen(TERRACOTA_OSCURA, 1));
    p.setBrush(CREMA);
    p.drawRoundedRect(caja, 3, 3);
    p.setPen(QPen(CREMA_OSCURA.darker(112), 1));
    p.drawLine(QPointF(caja.left() + 2, caja.top() + 1), QPointF(caja.right() - 2, caja.top() + 1));
    p.restore();
}

void Flecha(QPainter& p, QRect r, Rumbo rumbo, const QColor& color) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const double l = std::min(r.width(), r.height()) * 0.26;
    p.translate(QRectF(r).center());
    constexpr double GIROS[] = {0, 180, 270, 90};
    p.rotate(GIROS[static_cast<int>(rumbo)]);
    QPainterPath t;
    t.moveTo(-l, l * 0.6);
    t.lineTo(0, -l * 0.6);
    t.lineTo(l, l * 0.6);
    t.closeSubpath();
    p.fillPath(t, color);
    p.restore();
}

void Tilde(QPainter& p, QRect r, const QColor& color) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(color, r.width() * 0.17, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF puntos[] = {{0.14, 0.54}, {0.4, 0.8}, {0.86, 0.22}};
    QPolygonF trazo;
    for (const QPointF& q : puntos)
        trazo << QPointF(r.left() + q.x() * r.width(), r.top() + q.y() * r.height());
    p.drawPolyline(trazo);
    p.restore();
}

QPalette Paleta() {
    QPalette q;
    q.setColor(QPalette::Window, CREMA_OSCURA);
    q.setColor(QPalette::WindowText, TINTA);
    q.setColor(QPalette::Base, CREMA);
    q.setColor(QPalette::AlternateBase, CREMA_OSCURA);
    q.setColor(QPalette::Text, TINTA);
    q.setColor(QPalette::PlaceholderText, TINTA_APAGADA);
    q.setColor(QPalette::Button, BARRO);
    q.setColor(QPalette::ButtonText, COBALTO_OSCURO);
    q.setColor(QPalette::BrightText, ESMALTE);
    q.setColor(QPalette::Highlight, COBALTO);
    q.setColor(QPalette::HighlightedText, ESMALTE);
    q.setColor(QPalette::Link, COBALTO);
    q.setColor(QPalette::LinkVisited, VISITADO);
    q.setColor(QPalette::ToolTipBase, CREMA);
    q.setColor(QPalette::ToolTipText, COBALTO_OSCURO);
    q.setColor(QPalette::Light, ESMALTE);
    q.setColor(QPalette::Midlight, CREMA);
    q.setColor(QPalette::Mid, BARRO);
    q.setColor(QPalette::Dark, TERRACOTA);
    q.setColor(QPalette::Shadow, TERRACOTA_OSCURA);
    for (const auto papel : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        q.setColor(QPalette::Disabled, papel, TINTA_APAGADA);
    q.setColor(QPalette::Disabled, QPalette::Base, CREMA_OSCURA);
    q.setColor(QPalette::Disabled, QPalette::Highlight, TINTA_APAGADA);
    q.setColor(QPalette::Inactive, QPalette::Highlight, COBALTO);
    return q;
}

}  // namespace estilo

using namespace estilo;

Estilo::Estilo() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void Estilo::drawPrimitive(PrimitiveElement pe, const QStyleOption* o, QPainter* p,
                           const QWidget* w) const {
    switch (pe) {
        case PE_Frame:
        case PE_FrameLineEdit:
        case PE_PanelLineEdit: {
            const bool caja = pe == PE_PanelLineEdit;
            if (caja) p->fillRect(o->rect, o->palette.brush(QPalette::Base));
            const auto* marco = qstyleoption_cast<const QStyleOptionFrame*>(o);
            if (marco && marco->lineWidth <= 0) return;
            const bool foco = o->state & State_HasFocus;
            p->save();
            p->setPen(QPen(foco ? COBALTO : TERRACOTA_OSCURA, 1));
            p->drawRect(o->rect.adjusted(0, 0, -1, -1));
            if (foco) {
                p->setPen(QPen(COBALTO_CLARO, 1));
                p->drawRect(o->rect.adjusted(1, 1, -2, -2));
            }
            p->restore();
            return;
        }
        case PE_FrameFocusRect:
            return;
        case PE_PanelButtonTool:
        case PE_PanelButtonCommand:
            Azulejo(*p, o->rect, o->state & State_Enabled ? ESMALTE : CREMA_OSCURA,
                    o->state & (State_Sunken | State_On));
            if (o->state & State_HasFocus) Anillo(*p, o->rect);
            return;
        default:
            QProxyStyle::drawPrimitive(pe, o, p, w);
    }
}

void Estilo::drawComplexControl(ComplexControl cc, const QStyleOptionComplex* o, QPainter* p,
                                const QWidget* w) const {
    if (cc == CC_ScrollBar) {
        if (const auto* s = qstyleoption_cast<const QStyleOptionSlider*>(o)) {
            PintaBarra(*s, *p, w);
            return;
        }
    }
    if (cc == CC_ComboBox) {
        const QRect flecha = subControlRect(cc, o, SC_ComboBoxArrow, w);
        p->fillRect(o->rect, o->palette.brush(QPalette::Base));
        p->setPen(QPen(o->state & State_HasFocus ? COBALTO : TERRACOTA_OSCURA, 1));
        p->drawRect(o->rect.adjusted(0, 0, -1, -1));
        Azulejo(*p, flecha.adjusted(0, 2, -2, -2), ESMALTE, o->state & (State_Sunken | State_On));
        Flecha(*p, flecha, Rumbo::Abajo, o->state & State_Enabled ? COBALTO : APAGADO);
        return;
    }
    QProxyStyle::drawComplexControl(cc, o, p, w);
}

void Estilo::PintaBarra(const QStyleOptionSlider& o, QPainter& p, const QWidget* w) const {
    const bool tumbada = o.orientation == Qt::Horizontal;
    const bool util = (o.state & State_Enabled) && o.maximum > o.minimum;
    p.fillRect(o.rect, CREMA_OSCURA);
    p.setPen(QPen(BARRO, 1));
    if (tumbada) {
        p.drawLine(o.rect.topLeft(), o.rect.topRight());
    } else {
        p.drawLine(o.rect.topLeft(), o.rect.bottomLeft());
    }
    const auto parte = [&](SubControl s) { return subControlRect(CC_ScrollBar, &o, s, w); };
    const auto hundida = [&](SubControl s) {
        return (o.activeSubControls & s) && (o.state & State_Sunken);
    };
    const struct {
        SubControl cual;
        Rumbo rumbo;
    } PUNTAS[] = {{SC_ScrollBarSubLine, tumbada ? Rumbo::Izquierda : Rumbo::Arriba},
                  {SC_ScrollBarAddLine, tumbada ? Rumbo::Derecha : Rumbo::Abajo}};
    for (const auto& punta : PUNTAS) {
        Azulejo(p, parte(punta.cual), ESMALTE, hundida(punta.cual));
        Flecha(p, parte(punta.cual), punta.rumbo, util ? COBALTO : APAGADO);
    }
    if (!util) return;
    const QRect mando = parte(SC_ScrollBarSlider).adjusted(tumbada ? 0 : 1, tumbada ? 1 : 0, 0, 0);
    Azulejo(p, mando, TERRACOTA, hundida(SC_ScrollBarSlider));
    // Three grooves across the thumb.
    if ((tumbada ? mando.width() : mando.height()) >= 20) {
        p.setPen(QPen(CREMA, 1));
        const QPoint c = mando.center();
        for (int d = -3; d <= 3; d += 3) {
            if (tumbada)
                p.drawLine(c.x() + d, mando.top() + 5, c.x() + d, mando.bottom() - 5);
            else
                p.drawLine(mando.left() + 5, c.y() + d, mando.right() - 5, c.y() + d);
        }
    }
    // A click takes the keyboard too, but only who goes by keys looks for the ring.
    if ((o.state & State_HasFocus) && (o.state & State_KeyboardFocusChange)) Anillo(p, mando);
}

int Estilo::pixelMetric(PixelMetric m, const QStyleOption* o, const QWidget* w) const {
    if (m == PM_ScrollBarExtent) return 17;
    if (m == PM_ScrollBarSliderMin) return 20;
    return QProxyStyle::pixelMetric(m, o, w);
}

int Estilo::styleHint(StyleHint h, const QStyleOption* o, const QWidget* w,
                      QStyleHintReturn* r) const {
    if (h == SH_ScrollBar_Transient || h == SH_UnderlineShortcut) return 0;
    if (h == SH_ScrollBar_ContextMenu || h == SH_ScrollView_FrameOnlyAroundContents) return 0;
    return QProxyStyle::styleHint(h, o, w, r);
}

void VisteAplicacion() {
    QApplication::setStyle(new Estilo);
    QApplication::setPalette(Paleta());
    QApplication::setFont(FuenteQt(Fuente{}));
    QToolTip::setPalette(Paleta());
    QToolTip::setFont(FuenteQt(Fuente{Familia::Sans, 12, false, false}));
}

}  // namespace tessario
