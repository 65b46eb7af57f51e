// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Vista.h"

#include <QAbstractScrollArea>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "qt/Entrada.h"
#include "qt/Estilo.h"

namespace tessario {

namespace {

QString Qs(const std::string& t) {
    return QString::fromStdString(t);
}

QPoint Medio(const QRect& r) {
    return {r.left() + r.width() / 2, r.top() + r.height() / 2};
}

bool ReaccionaATeclas(const Control& c) {
    return c.KeyPress || c.KeyDown || c.GotFocus;
}

}  // namespace

Vista::Vista(Control& c, MarcoDeVistas& v, QWidget* padre)
    : QWidget(padre), control_(c), ventana_(v) {
    setMouseTracking(true);
    setObjectName(Qs(c.Nombre));
    hide();
}

Anfitrion& Vista::anfitrion() const {
    return ventana_.anfitrion();
}
const Ventana& Vista::ventana() const {
    return ventana_.ventana();
}
bool Vista::Viva() const {
    return ventana_.Viva() && ventana_.EsMia(this);
}

i32 Vista::Sincroniza() {
    const Control& c = control_;
    i32 area = 0;
    const QRect sitio(c.Left, c.Top, c.Width(), c.Height());
    const bool visible = c.Visible && !sitio.isEmpty();
    if (geometry() != sitio) {
        if (visible && visto_.Visible)
            area += geometry().width() * geometry().height() + sitio.width() * sitio.height();
        Coloca(sitio);
    }
    if (visto_.primera || visto_.Enabled != c.Enabled) {
        visto_.Enabled = c.Enabled;
        if (QWidget* i = Interior()) i->setEnabled(c.Enabled);
        update();
    }
    PonPunteroDe();
    PonEtiquetas();
    PonFocoPosible();
    area += SincronizaPropio();
    if (visto_.Visible != visible) {
        visto_.Visible = visible;
        // The keyboard goes back to the window, not on to the next stop.
        if (!visible && hasFocus()) Marco().setFocus(Qt::OtherFocusReason);
        setVisible(visible);
        area += sitio.width() * sitio.height();
        anfitrion().MiraBajoElPuntero(false);
    }
    visto_.primera = false;
    return area;
}

// The window system moves an opaque child by copying its pixels, and then paints what comes to
// light in the parent without regard to the views that lie above it. A view that does not count as
// opaque while it moves is moved by painting: both places, whatever lies there, in its order.
void Vista::Coloca(const QRect& sitio) {
    const bool opaca = testAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setGeometry(sitio);
    setAttribute(Qt::WA_OpaquePaintEvent, opaca);
    if (visto_.Visible) anfitrion().MiraBajoElPuntero(false);
}

// A pointer that the window itself sets, such as the hourglass, is to be seen all over it; else the
// control's own one holds, and last that of the widget within.
void Vista::PonPunteroDe() {
    const Ventana& v = ventana();
    const bool manda = v.MousePointer != PUNTERO_NORMAL;
    const i16 puntero = manda ? v.MousePointer : control_.MousePointer;
    const std::string& icono = manda ? v.MouseIcon : control_.MouseIcon;
    const bool oculto = v.ApuntaElTeclado();
    if (visto_.puntero == puntero && visto_.icono == icono && visto_.oculto == oculto) return;
    visto_.puntero = puntero;
    visto_.icono = icono;
    visto_.oculto = oculto;
    setCursor(oculto ? QCursor(Qt::BlankCursor) : anfitrion().cursores().De(puntero, icono));
    QWidget* const i = Interior();
    if (!i) return;
    auto* const rollo = qobject_cast<QAbstractScrollArea*>(i);
    QWidget* const cara = rollo ? rollo->viewport() : i;
    cara->setCursor(puntero != PUNTERO_NORMAL ? cursor() : punteroInterior_);
}

void Vista::PonEtiquetas() {
    const Control& c = control_;
    if (visto_.sugerencia == c.ToolTipText && visto_.nombre == c.NombreAccesible && !visto_.primera)
        return;
    visto_.sugerencia = c.ToolTipText;
    visto_.nombre = c.NombreAccesible;
    const QString sugerencia = Qs(c.ToolTipText).trimmed();
    setToolTip(sugerencia);
    const QString nombre = c.NombreAccesible.empty() ? sugerencia : Qs(c.NombreAccesible);
    setAccessibleName(nombre);
    if (QWidget* i = Interior()) i->setAccessibleName(nombre);
}

void Vista::PonFocoPosible() {
    const bool teclas = ReaccionaATeclas(control_) || Interior() || !EsBoton();
    Qt::FocusPolicy p = Qt::NoFocus;
    if (control_.Enabled && control_.TabStop)
        p = teclas ? Qt::StrongFocus : Qt::TabFocus;
    else if (control_.Enabled && (ReaccionaATeclas(control_) || Interior()))
        p = Qt::ClickFocus;
    QWidget* const quien = Interior() ? Interior() : this;
    if (quien->focusPolicy() != p) quien->setFocusPolicy(p);
}

void Vista::PonInterior(QWidget* w) {
    w->setMouseTracking(true);
    punteroInterior_ = w->cursor();
    w->installEventFilter(this);
    setFocusProxy(w);
    if (auto* rollo = qobject_cast<QAbstractScrollArea*>(w)) {
        punteroInterior_ = rollo->viewport()->cursor();
        rollo->viewport()->setMouseTracking(true);
        rollo->viewport()->installEventFilter(this);
    }
}

void Vista::resizeEvent(QResizeEvent*) {
    if (QWidget* i = Interior()) i->setGeometry(rect());
}

// --- Events.

bool Vista::event(QEvent* e) {
    switch (e->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseMove:
            return EventoDeRaton(e, false);
        case QEvent::Wheel:
            return Rueda(static_cast<QWheelEvent&>(*e)) || QWidget::event(e);
        case QEvent::KeyPress: {
            auto& k = static_cast<QKeyEvent&>(*e);
            const bool tab = k.key() == Qt::Key_Tab || k.key() == Qt::Key_Backtab;
            if (CambiaDeZona(k)) return true;
            // What the standard widget within has not used comes up to here: it was delivered.
            if (Interior()) {
                e->accept();
                return true;
            }
            if (tab && QWidget::event(e) && e->isAccepted()) {
                MuestraAnillo();
                return true;
            }
            ventana_.Tecla(k, this);
            e->accept();
            return true;
        }
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            Foco(e->type() == QEvent::FocusIn, static_cast<QFocusEvent*>(e)->reason());
            break;
        default:
            break;
    }
    return QWidget::event(e);
}

bool Vista::eventFilter(QObject* o, QEvent* e) {
    switch (e->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseMove: {
            if (!control_.Enabled) return true;
            const auto* m = static_cast<QMouseEvent*>(e);
            QMouseEvent propio(m->type(), static_cast<QWidget*>(o)->mapTo(this, m->position()),
                               m->globalPosition(), m->button(), m->buttons(), m->modifiers());
            EventoDeRaton(&propio, true);
            return !Viva();
        }
        case QEvent::KeyPress: {
            if (o != Interior()) return false;
            auto& k = static_cast<QKeyEvent&>(*e);
            if (k.key() == Qt::Key_Tab || k.key() == Qt::Key_Backtab) return false;
            return ventana_.Tecla(k, this);
        }
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            if (o == Interior())
                Foco(e->type() == QEvent::FocusIn, static_cast<QFocusEvent*>(e)->reason());
            return false;
        default:
            return false;
    }
}

bool Vista::EventoDeRaton(QEvent* e, bool interior) {
    // A control that is disabled swallows the mouse: nothing below it is clicked either.
    e->accept();
    const auto* m = static_cast<QMouseEvent*>(e);
    if (Viva() && e->type() != QEvent::MouseButtonRelease)
        ventana_.LlegaElRaton(m->globalPosition(), e->type() != QEvent::MouseMove);
    if (!Viva()) return true;
    anfitrion().AnotaMirada(this, m->position());
    if (!control_.Enabled && e->type() != QEvent::MouseButtonRelease) return true;
    switch (e->type()) {
        case QEvent::MouseMove:
            Mueve(m->buttons(), m->modifiers(), m->position());
            break;
        case QEvent::MouseButtonRelease:
            Suelta(m->button(), m->position());
            break;
        default:
            Apunta(m->buttons() & ~m->button(), m->modifiers(), m->position());
            Aprieta(m->button(), m->modifiers(), m->position(),
                    e->type() == QEvent::MouseButtonDblClick && !interior);
    }
    return true;
}

// A press always follows a move to its point, so that what hovering decides is fresh: a window may
// have come up, or the game gone on, under a pointer that stood still.
void Vista::Apunta(Qt::MouseButtons b, Qt::KeyboardModifiers m, QPointF p) {
    if (!control_.MouseMove) return;
    anfitrion().Entrega([&] {
        control_.MouseMove(BotonesDe(b), ShiftDe(m), static_cast<float>(p.x()),
                           static_cast<float>(p.y()));
    });
}

void Vista::Aprieta(Qt::MouseButton b, Qt::KeyboardModifiers m, QPointF p, bool doble) {
    const i16 boton = BotonDe(b);
    if (!boton || !Viva()) return;
    anfitrion().RevisaPulsadas();
    if (!Viva()) return;
    anfitrion().AnotaPulsada(this, b);
    if (anillo_ && EsBoton()) {
        anillo_ = false;
        update();
    }
    if (MuestraPulsada(b)) AlApretar(p);
    if (control_.MouseDown)
        anfitrion().Entrega([&] {
            control_.MouseDown(boton, ShiftDe(m), static_cast<float>(p.x()),
                               static_cast<float>(p.y()));
        });
    if (doble && Viva() && control_.DblClick) anfitrion().Entrega(control_.DblClick);
}

void Vista::Mueve(Qt::MouseButtons b, Qt::KeyboardModifiers m, QPointF p) {
    if (b == Qt::NoButton) anfitrion().RevisaPulsadas();
    if (!Viva()) return;
    AlPasar(p);
    if (b & Qt::LeftButton) AlArrastrar(p);
    Apunta(b, m, p);
}

void Vista::Suelta(Qt::MouseButton b, QPointF p) {
    if (!anfitrion().TomaPulsada(this, b) || !Viva()) return;
    if (MuestraPulsada(b)) AlSoltar(p);
    anfitrion().MiraBajoElPuntero(true);
    if (!Viva() || !control_.Enabled) return;
    const i16 boton = BotonDe(b);
    if (control_.MouseUp)
        anfitrion().Entrega([&] {
            control_.MouseUp(boton, 0, static_cast<float>(p.x()), static_cast<float>(p.y()));
        });
    // The standard widgets report their own choice as the click.
    if (Interior() || b == Qt::MiddleButton || !control_.Click) return;
    if (Viva() && control_.Visible && control_.Enabled && rect().contains(p.toPoint()))
        anfitrion().Entrega(control_.Click);
}

void Vista::Tecla(const QKeyEvent& e) {
    if (control_.KeyDown && KeyCodeDe(e))
        anfitrion().Entrega([&] { control_.KeyDown(KeyCodeDe(e), ShiftDe(e)); });
    if (Viva() && control_.KeyPress && KeyAsciiDe(e))
        anfitrion().Entrega([&] { control_.KeyPress(KeyAsciiDe(e)); });
    if (Viva() && control_.Enabled) TeclaPropia(e);
}

bool Vista::PulsaTecla() {
    if (!EsBoton() || !control_.TabStop || !control_.Enabled) return false;
    PulsaConTeclado();
    return true;
}

void Vista::PulsaConTeclado() {
    const QPoint medio = Medio(ZonaConFoco());
    const auto x = static_cast<float>(medio.x()), y = static_cast<float>(medio.y());
    const auto entrega = [&](const auto& evento) {
        if (Viva() && control_.Enabled && evento)
            anfitrion().Entrega([&] { evento(BOTON_IZQUIERDO, 0, x, y); });
    };
    Apunta(Qt::NoButton, {}, {x, y});
    if (!Viva()) return;
    AlApretar(medio);
    entrega(control_.MouseDown);
    entrega(control_.MouseUp);
    if (Viva() && control_.Enabled && control_.Click) anfitrion().Entrega(control_.Click);
    if (Viva()) AlSoltar(medio);
}

// --- The parts of a picture that the keyboard reaches one by one.

std::vector<QRect> Vista::Zonas() const {
    std::vector<QRect> zonas;
    const auto* const cuadro = dynamic_cast<const Cuadro*>(&control_);
    if (cuadro && cuadro->Zonas)
        for (const Rect& r : cuadro->Zonas()) zonas.emplace_back(r.Izq, r.Arr, r.Ancho(), r.Alto());
    return zonas;
}

QRect Vista::ZonaConFoco() const {
    const std::vector<QRect> zonas = Zonas();
    return zonas.empty() ? rect() : zonas[std::min(zona_, zonas.size() - 1)];
}

// Hovering decides what a part does and says, so the keyboard hovers as well.
void Vista::VeAZona(std::size_t cual) {
    zona_ = cual;
    Apunta(Qt::NoButton, {}, Medio(ZonaConFoco()));
    if (!Viva()) return;
    anillo_ = true;
    update();
}

// Tab and the arrows go from part to part; Tab leaves the picture behind the last one.
bool Vista::CambiaDeZona(const QKeyEvent& e) {
    const std::size_t n = Zonas().size();
    if (n == 0 || !hasFocus() || !AnilloVisible()) return false;
    const std::size_t z = std::min(zona_, n - 1);
    switch (e.key()) {
        case Qt::Key_Tab:
        case Qt::Key_Right:
        case Qt::Key_Down:
            if (z + 1 == n) return e.key() != Qt::Key_Tab;
            VeAZona(z + 1);
            return true;
        case Qt::Key_Backtab:
        case Qt::Key_Left:
        case Qt::Key_Up:
            if (z == 0) return e.key() != Qt::Key_Backtab;
            VeAZona(z - 1);
            return true;
        default:
            return false;
    }
}

// Notches of a common wheel are 120 units; a finer one is added up.
bool Vista::Rueda(const QWheelEvent& e) {
    constexpr int MUESCA = 120;
    if (!control_.MouseWheel || !control_.Enabled || !Viva()) return false;
    ventana_.LlegaElRaton(e.globalPosition(), true);
    if (!Viva()) return true;
    const int avance = e.angleDelta().y();
    if ((avance < 0) != (rueda_ < 0)) rueda_ = 0;
    rueda_ += avance;
    const int muescas = rueda_ / MUESCA;
    if (muescas == 0) return false;
    rueda_ %= MUESCA;
    bool usada = false;
    anfitrion().Entrega([&] {
        usada = control_.MouseWheel(static_cast<i16>(std::clamp(muescas, -9, 9)),
                                    static_cast<float>(e.position().x()),
                                    static_cast<float>(e.position().y()));
    });
    return usada;
}

void Vista::Foco(bool entra, Qt::FocusReason razon) {
    if (razon == Qt::ActiveWindowFocusReason || razon == Qt::PopupFocusReason) {
        update();
        return;
    }
    anillo_ = entra && (razon == Qt::TabFocusReason || razon == Qt::BacktabFocusReason);
    update();
    if (!Viva()) return;
    if (const std::size_t n = Zonas().size(); anillo_ && n > 0) {
        VeAZona(razon == Qt::BacktabFocusReason ? n - 1 : 0);
        if (!Viva()) return;
    }
    const auto& evento = entra ? control_.GotFocus : control_.LostFocus;
    if (evento) anfitrion().Entrega(evento);
}

// The only stop of a window has the keyboard from the start: Tab then shows it.
void Vista::MuestraAnillo() {
    if (!hasFocus() || !control_.TabStop || anillo_) return;
    anillo_ = true;
    update();
}

void Vista::PintaAnillo(QPainter& p, QRect r) const {
    if (AnilloVisible()) estilo::Anillo(p, r == rect() ? ZonaConFoco() : r);
}

void Vista::Mira(QPointF p) {
    if (!Viva() || !control_.Enabled || ventana().ApuntaElTeclado()) return;
    AlPasar(p);
    Apunta(Qt::NoButton, {}, p);
}

}  // namespace tessario
