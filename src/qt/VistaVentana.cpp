// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/VistaVentana.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>
#include <chrono>

#include "qt/CreaVista.h"
#include "qt/Entrada.h"
#include "qt/Lienzo.h"
#include "qt/VistasPintadas.h"

namespace tessario {

namespace {

constexpr int ANCHO_MENOR = 800, ALTO_MENOR = 600;
constexpr long long CUADRO_MS = 16;         // time between two pictures of the screen
constexpr int ESPERA_EXPOSICION_MS = 1500;  // at most, for the window to come up

long long Ahora() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

Qt::WindowFlags Marcas(const Ventana& v, bool modal) {
    if (v.PantallaCompleta) return Qt::Window | Qt::FramelessWindowHint;
    return (modal ? Qt::Dialog : Qt::Window) | Qt::FramelessWindowHint;
}

}  // namespace

VistaVentana::VistaVentana(Ventana& v, Anfitrion& a, const VistaVentana* duena, bool modal,
                           QWidget* lienzo)
    // The Tab key stays within a subwindow.
    : QWidget(lienzo ? new Velo(*lienzo) : nullptr,
              lienzo ? Qt::WindowFlags(Qt::SubWindow) : Marcas(v, modal)),
      ventana_(v),
      anfitrion_(a),
      velo_(lienzo ? static_cast<Velo*>(parentWidget()) : nullptr),
      modal_(modal) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setObjectName(QString::fromStdString(v.Nombre));
    if (!modal || velo_) return;
    setWindowModality(Qt::ApplicationModal);
    // Tied by the window system alone: no widget owns another window's widget.
    winId();
    if (duena && duena->windowHandle()) windowHandle()->setTransientParent(duena->windowHandle());
}

Vista* VistaVentana::VistaDe(const Control& c) const {
    const auto i = vistas_.find(&c);
    return i == vistas_.end() ? nullptr : i->second;
}

bool VistaVentana::EsMia(const Vista* v) const {
    const auto i = vistas_.find(&v->control());
    return i != vistas_.end() && i->second == v;
}

QRect VistaVentana::Sitio() const {
    const QRect pantalla = velo_ ? velo_->rect() : QGuiApplication::primaryScreen()->geometry();
    if (ventana_.PantallaCompleta) return pantalla;
    // The record counts from the corner of the screen that the table fills; a screen that has
    // become smaller still has the whole window, or its upper left corner.
    const int ancho = std::max(ventana_.Width(), 1), alto = std::max(ventana_.Height(), 1);
    const int x = std::min(ventana_.Left, std::max(0, pantalla.width() - ancho));
    const int y = std::min(ventana_.Top, std::max(0, pantalla.height() - alto));
    return {pantalla.x() + x, pantalla.y() + y, ancho, alto};
}

// --- Keeping in step.

void VistaVentana::Sincroniza() {
    if (!viva_) return;
    if (velo_) velo_->Ajusta();
    const QRect sitio = Sitio();
    if (sitio_ != sitio) {
        sitio_ = sitio;
        // A window that fills the screen is laid out for all of it: taken out of that form, it
        // keeps the least that the program is made for.
        if (ventana_.PantallaCompleta)
            setMinimumSize(QSize(ANCHO_MENOR, ALTO_MENOR).boundedTo(sitio.size()));
        else
            setFixedSize(sitio.size());
        setGeometry(sitio);
    }
    if (titulo_ != ventana_.Caption || windowTitle().isEmpty()) {
        titulo_ = ventana_.Caption;
        const QString t = QString::fromStdString(titulo_).trimmed();
        setWindowTitle(t.isEmpty() ? QStringLiteral("Tessario") : t);
    }
    const bool teclado = ventana_.ApuntaElTeclado();
    if (puntero_ != ventana_.MousePointer || icono_ != ventana_.MouseIcon ||
        apuntaTeclado_ != teclado) {
        if (teclado && !apuntaTeclado_) raton_ = QCursor::pos();
        puntero_ = ventana_.MousePointer;
        icono_ = ventana_.MouseIcon;
        apuntaTeclado_ = teclado;
        setCursor(teclado ? QCursor(Qt::BlankCursor) : anfitrion_.cursores().De(puntero_, icono_));
    }
    if (acceptDrops() != static_cast<bool>(ventana_.DragDrop))
        setAcceptDrops(static_cast<bool>(ventana_.DragDrop));
    const Rect r = Interseccion(ventana_.TomaSucio(), ventana_.Limites());
    if (!r.Vacio()) {
        update(r.Izq, r.Arr, r.Ancho(), r.Alto());
        areaPendiente_ += static_cast<long long>(r.Ancho()) * r.Alto();
    }
    SincronizaControles();
    SincronizaReloj();
}

void VistaVentana::SincronizaControles() {
    const bool nuevas = orden_ != ventana_.Controles;
    if (nuevas) RehaceVistas();
    for (std::size_t i = 0; i < enOrden_.size(); ++i) {
        Vista* const v = enOrden_[i];
        Control* const c = orden_[i];
        const auto contenedor = c->Contenedor ? vistas_.find(c->Contenedor) : vistas_.end();
        QWidget* const padre =
            contenedor != vistas_.end() ? contenedor->second : static_cast<QWidget*>(this);
        if (v->parentWidget() != padre) {
            const bool estaba = v->isVisible();
            v->setParent(padre);
            v->setVisible(estaba);
        }
        areaPendiente_ += v->Sincroniza();
    }
    if (nuevas) EncadenaFoco();
}

void VistaVentana::RehaceVistas() {
    std::unordered_map<const Control*, Vista*> viejas;
    viejas.swap(vistas_);
    enOrden_.clear();
    orden_ = ventana_.Controles;
    for (Control* c : orden_) {
        const auto v = viejas.find(c);
        const auto padre = c->Contenedor ? vistas_.find(c->Contenedor) : vistas_.end();
        QWidget* const donde = padre != vistas_.end() ? padre->second : static_cast<QWidget*>(this);
        Vista* const vista = v != viejas.end() ? v->second : CreaVista(*c, *this, donde);
        if (v != viejas.end()) {
            viejas.erase(v);
            vista->raise();
        }
        vistas_[c] = vista;
        enOrden_.push_back(vista);
    }
    for (const auto& [c, vista] : viejas) {
        vista->hide();
        vista->deleteLater();
    }
}

// The window system passes over what does not take the keyboard yet, so the views must have been
// brought in step before.
void VistaVentana::EncadenaFoco() {
    Vista* anterior = nullptr;
    for (const Control* c : ventana_.OrdenTab.empty() ? orden_ : ventana_.OrdenTab) {
        Vista* const vista = VistaDe(*c);
        if (anterior && vista) setTabOrder(anterior, vista);
        if (vista) anterior = vista;
    }
}

void VistaVentana::SincronizaReloj() {
    for (Temporizador* t : ventana_.Temporizadores) {
        const auto i = std::find_if(relojes_.begin(), relojes_.end(),
                                    [&](const auto& r) { return r->registro == t; });
        if (i != relojes_.end()) continue;
        auto nuevo = std::make_unique<Reloj>();
        Reloj* const r = nuevo.get();
        r->registro = t;
        r->timer = std::make_unique<QTimer>();
        r->timer->setTimerType(Qt::PreciseTimer);
        connect(r->timer.get(), &QTimer::timeout, this, [this, r] {
            if (!viva_ || r->corriendo || !r->registro->Enabled || !r->registro->Timer) return;
            r->corriendo = true;
            anfitrion_.Entrega(r->registro->Timer);
            r->corriendo = false;
        });
        relojes_.push_back(std::move(nuevo));
    }
    for (const auto& r : relojes_) {
        const bool anda = viva_ && r->registro->Enabled && r->registro->Interval > 0;
        if (anda && (!r->timer->isActive() || r->timer->interval() != r->registro->Interval))
            r->timer->start(r->registro->Interval);
        else if (!anda && r->timer->isActive())
            r->timer->stop();
    }
}

void VistaVentana::Presenta(bool ya) {
    if (!ensenada_ || !viva_) return;
    if (areaPendiente_ > static_cast<long long>(width()) * height() / 4) {
        const long long ahora = Ahora();
        if (!ya && ahora - ultimaGrande_ < CUADRO_MS) return;
        ultimaGrande_ = ahora;
    }
    areaPendiente_ = 0;
    // Everything that update() has marked in this window is painted and shown in one go.
    QEvent pinta(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(this, &pinta);
}

void VistaVentana::Ensena() {
    if (ensenada_ || !viva_) return;
    ensenada_ = true;
    if (ventana_.PantallaCompleta) {
        // Without a window manager the full-screen form keeps the size that it had.
        setGeometry(Sitio());
        showFullScreen();
    } else {
        show();
    }
    // Without a bound in this call, which would make it return at once: the timer ends the wait.
    QTimer tope;
    tope.setSingleShot(true);
    tope.start(ESPERA_EXPOSICION_MS);
    // The desktop may close the window while it comes up: then it can be gone already.
    const QPointer<VistaVentana> sigue(this);
    while (sigue && viva_ && windowHandle() && !windowHandle()->isExposed() && tope.isActive())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::WaitForMoreEvents);
    if (!sigue || !viva_) return;
    raise();
    activateWindow();
    Sincroniza();
    Vista* const foco = ventana_.Foco ? VistaDe(*ventana_.Foco) : nullptr;
    if (foco)
        foco->setFocus(Qt::OtherFocusReason);
    else
        setFocus(Qt::OtherFocusReason);
    Presenta(true);
}

void VistaVentana::Termina() {
    if (!viva_) return;
    viva_ = false;
    anfitrion_.OlvidaPulsadas(this);
    for (const auto& r : relojes_) r->timer->stop();
    if (bucle_) bucle_->quit();
    if (velo_) {
        velo_->Retira();
        return;
    }
    hide();
    deleteLater();
}

void VistaVentana::DejaFocoEn(Vista* v, const VistaVentana* encima) {
    if (encima && encima->velo_)
        encima->velo_->DejaFocoEn(v);
    else
        // The keyboard is led to one part of a picture: it shows which.
        v->setFocus(v->TieneZonas() ? Qt::TabFocusReason : Qt::OtherFocusReason);
}

// --- Events.

bool VistaVentana::Tecla(const QKeyEvent& e, Vista* foco) {
    if (!viva_) return true;
    const int k = e.key();
    // Deliberate: a control that the player has reached with Tab, and that shows it, is pressed by
    // Space or Enter before the window sees the key, so that what is lit is what happens.
    const bool pulsa = k == Qt::Key_Space || k == Qt::Key_Return || k == Qt::Key_Enter;
    if (pulsa && foco && foco->AnilloVisible() && foco->PulsaTecla()) return true;
    if (ventana_.KeyDown && KeyCodeDe(e))
        anfitrion_.Entrega([&] { ventana_.KeyDown(KeyCodeDe(e), ShiftDe(e)); });
    if (viva_ && ventana_.KeyPress && KeyAsciiDe(e))
        anfitrion_.Entrega([&] { ventana_.KeyPress(KeyAsciiDe(e)); });
    if (viva_ && foco && EsMia(foco)) foco->Tecla(e);
    return !viva_;
}

// The window system tells of a mouse that stands still, too: that gives nothing back to it.
void VistaVentana::LlegaElRaton(QPointF enPantalla, bool actua) {
    const bool movido = enPantalla != raton_;
    raton_ = enPantalla;
    if (viva_ && (movido || actua) && ventana_.ApuntaElTeclado() && ventana_.VuelveElRaton)
        anfitrion_.Entrega(ventana_.VuelveElRaton);
}

bool VistaVentana::event(QEvent* e) {
    switch (e->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseMove:
            Raton(static_cast<QMouseEvent&>(*e));
            return true;
        case QEvent::KeyPress: {
            auto& k = static_cast<QKeyEvent&>(*e);
            const bool tab = k.key() == Qt::Key_Tab || k.key() == Qt::Key_Backtab;
            if (tab && QWidget::event(e) && e->isAccepted()) return true;
            Tecla(k, nullptr);
            e->accept();
            return true;
        }
        case QEvent::Hide:
        case QEvent::WindowStateChange:
            // Who loses the screen with a button held gets the release now, not from elsewhere.
            if (viva_ && (e->type() == QEvent::Hide || isMinimized())) anfitrion_.SueltaTodas();
            return QWidget::event(e);
        default:
            return QWidget::event(e);
    }
}

void VistaVentana::Raton(QMouseEvent& m) {
    m.accept();
    if (m.type() != QEvent::MouseButtonRelease)
        LlegaElRaton(m.globalPosition(), m.type() != QEvent::MouseMove);
    if (!viva_) return;
    const auto x = static_cast<float>(m.position().x());
    const auto y = static_cast<float>(m.position().y());
    const i16 shift = ShiftDe(m.modifiers());
    if (m.type() == QEvent::MouseButtonRelease) {
        Suelta(m.button(), m.position());
        return;
    }
    if (m.type() == QEvent::MouseMove) {
        if (m.buttons() == Qt::NoButton) anfitrion_.RevisaPulsadas();
        if (viva_ && ventana_.MouseMove)
            anfitrion_.Entrega([&] { ventana_.MouseMove(BotonesDe(m.buttons()), shift, x, y); });
        return;
    }
    if (!BotonDe(m.button())) return;
    // As with the controls, a press always follows a move to its point.
    const i16 otros = BotonesDe(m.buttons() & ~m.button());
    if (ventana_.MouseMove) anfitrion_.Entrega([&] { ventana_.MouseMove(otros, shift, x, y); });
    if (!viva_) return;
    anfitrion_.RevisaPulsadas();
    if (!viva_) return;
    anfitrion_.AnotaPulsada(this, m.button());
    if (ventana_.MouseDown)
        anfitrion_.Entrega([&] { ventana_.MouseDown(BotonDe(m.button()), shift, x, y); });
}

void VistaVentana::Suelta(Qt::MouseButton boton, QPointF p) {
    if (!anfitrion_.TomaPulsada(this, boton) || !viva_ || !ventana_.MouseUp) return;
    anfitrion_.Entrega([&] {
        ventana_.MouseUp(BotonDe(boton), 0, static_cast<float>(p.x()), static_cast<float>(p.y()));
    });
}

void VistaVentana::paintEvent(QPaintEvent* e) {
    PintaSuperficie(*this, ventana_, *e);
}

void VistaVentana::closeEvent(QCloseEvent* e) {
    e->ignore();
    const VistaVentana* const modal = anfitrion_.Modal();
    if (viva_ && (!modal || modal == this)) anfitrion_.PideCerrar(*this);
}

// The wheel moves the vertical bar that is in view, three short steps for each notch.
void VistaVentana::wheelEvent(QWheelEvent* e) {
    constexpr int UNIDADES_PASO = 40;
    if (!viva_ || anfitrion_.HayPulsadas()) return;
    for (Control* c : orden_) {
        auto* const barra = dynamic_cast<BarraDesplazamiento*>(c);
        if (!barra || !barra->Vertical || !barra->Visible || barra->Max <= barra->Min) continue;
        const int avance = e->angleDelta().y();
        if ((avance < 0) != (rueda_ < 0)) rueda_ = 0;
        rueda_ += avance;
        const i32 pasos = rueda_ / UNIDADES_PASO;
        rueda_ %= UNIDADES_PASO;
        if (pasos)
            anfitrion_.Entrega([&] { barra->Pon(barra->Value - pasos * barra->SmallChange); });
        e->accept();
        return;
    }
}

// --- What is dropped.

bool VistaVentana::AdmiteTraidos() const {
    const VistaVentana* const modal = anfitrion_.Modal();
    return viva_ && ventana_.DragDrop && (!modal || modal == this);
}

void VistaVentana::dragEnterEvent(QDragEnterEvent* e) {
    if (AdmiteTraidos()) e->acceptProposedAction();
}

void VistaVentana::dragMoveEvent(QDragMoveEvent* e) {
    if (AdmiteTraidos()) e->acceptProposedAction();
}

// The handler runs when the other program has been told that the drag is over: it may open windows
// that stay.
void VistaVentana::dropEvent(QDropEvent* e) {
    if (!AdmiteTraidos()) return;
    e->setDropAction(Qt::CopyAction);
    e->accept();
    const auto traido = std::make_shared<Traido>(TraidoDe(*e->mimeData()));
    QTimer::singleShot(0, this, [this, traido] {
        if (AdmiteTraidos()) anfitrion_.Entrega([&] { ventana_.DragDrop(*traido); });
    });
}

}  // namespace tessario
