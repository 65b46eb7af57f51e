// SPDX-License-Identifier: GPL-3.0-or-later
// The view of one control record: a widget that shows the record and turns what the window system
// reports into the record's events. Each kind derives from this and adds its looks.
#pragma once

#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "platform/Controles.h"
#include "qt/Anfitrion.h"

namespace tessario {

class Vista;

// What a view asks of the window view that it stands in.
class MarcoDeVistas {
public:
    virtual ~MarcoDeVistas() = default;
    virtual const Ventana& ventana() const = 0;
    virtual QWidget& Marco() = 0;  // the widget of the whole window
    virtual Anfitrion& anfitrion() const = 0;
    virtual bool Viva() const = 0;
    virtual bool EsMia(const Vista* v) const = 0;
    // A key: to the window, then to the control. True: used up, or the window is gone.
    virtual bool Tecla(const QKeyEvent& e, Vista* foco) = 0;
    // The mouse comes in over a view, before its event is delivered. `actua`: it does more than
    // to stand there.
    virtual void LlegaElRaton(QPointF enPantalla, bool actua) = 0;
};

class Vista : public QWidget, public RecibeSuelta {
public:
    Vista(Control& c, MarcoDeVistas& v, QWidget* padre);

    Control& control() const { return control_; }

    // Brings the widget in step with the record's fields and marks what must be painted anew.
    // Returns the area marked, in pixels.
    i32 Sincroniza();
    // Delivers what a key does to the control; the window has had it already.
    void Tecla(const QKeyEvent& e);
    // MouseDown at the centre, MouseUp, Click: what Space and Enter do.
    void PulsaConTeclado();
    // Space or Enter: presses a control that acts as a button; false if it is none.
    bool PulsaTecla();
    void Suelta(Qt::MouseButton boton, QPointF punto) override;
    // The pointer stands here, at this point of the view, though it has not moved.
    void Mira(QPointF punto);
    bool TieneZonas() const { return !Zonas().empty(); }
    bool AnilloVisible() const { return anillo_ && hasFocus(); }

protected:
    // --- What a kind adds.
    virtual i32 SincronizaPropio() { return 0; }                  // returns the area marked
    virtual bool TeclaPropia(const QKeyEvent&) { return false; }  // true: used up
    virtual bool EsBoton() const { return false; }                // Space and Enter press it
    virtual QWidget* Interior() { return nullptr; }  // a standard widget that fills the view
    virtual void AlPasar(QPointF) {}                 // looks of the pointer over the view
    virtual void AlApretar(QPointF) {}               // and of the press and the release
    virtual void AlArrastrar(QPointF) {}
    virtual void AlSoltar(QPointF) {}
    virtual bool MuestraPulsada(Qt::MouseButton b) const { return b == Qt::LeftButton; }

    void PonInterior(QWidget* w);  // adopts the standard widget: its events come through here
    void PintaAnillo(QPainter& p, QRect r) const;
    Anfitrion& anfitrion() const;
    const Ventana& ventana() const;
    QWidget& Marco() const { return ventana_.Marco(); }
    bool Viva() const;  // the window is still open

    bool event(QEvent* e) override;
    bool eventFilter(QObject* o, QEvent* e) override;
    void resizeEvent(QResizeEvent*) override;

private:
    bool EventoDeRaton(QEvent* e, bool interior);
    void Apunta(Qt::MouseButtons b, Qt::KeyboardModifiers m, QPointF p);
    void Aprieta(Qt::MouseButton b, Qt::KeyboardModifiers m, QPointF p, bool doble);
    void Mueve(Qt::MouseButtons b, Qt::KeyboardModifiers m, QPointF p);
    void Coloca(const QRect& sitio);
    void PonPunteroDe();
    std::vector<QRect> Zonas() const;  // empty: the view is one part
    QRect ZonaConFoco() const;
    void VeAZona(std::size_t cual);
    bool CambiaDeZona(const QKeyEvent& e);
    bool Rueda(const QWheelEvent& e);
    void Foco(bool entra, Qt::FocusReason razon);
    void MuestraAnillo();
    void PonEtiquetas();
    void PonFocoPosible();

    Control& control_;
    MarcoDeVistas& ventana_;
    bool anillo_ = false;
    std::size_t zona_ = 0;     // the part that has the keyboard
    int rueda_ = 0;            // what the wheel has turned short of a notch
    QCursor punteroInterior_;  // that of the widget within, as it came

    // The record as it was last seen.
    struct Visto {
        bool Visible = false, Enabled = true, oculto = false;
        i16 puntero = -1;
        std::string icono, sugerencia, nombre;
        bool primera = true;
    } visto_;
};

}  // namespace tessario
