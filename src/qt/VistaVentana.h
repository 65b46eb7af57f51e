// SPDX-License-Identifier: GPL-3.0-or-later
// The view of one window record: the widget, the views of its controls in their order, its timers.
#pragma once

#include <QEventLoop>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <unordered_map>
#include <vector>

#include "platform/Controles.h"
#include "qt/Anfitrion.h"
#include "qt/Vista.h"

namespace tessario {

class Velo;

class VistaVentana : public QWidget, public RecibeSuelta, public MarcoDeVistas {
public:
    // A modal one stands above `duena`, the window that is on top so far, or above nothing. With
    // `lienzo`, the window that fills the screen, it is drawn there and has none of its own.
    VistaVentana(Ventana& v, Anfitrion& a, const VistaVentana* duena, bool modal,
                 QWidget* lienzo = nullptr);

    Ventana& ventana() { return ventana_; }
    const Ventana& ventana() const override { return ventana_; }
    Anfitrion& anfitrion() const override { return anfitrion_; }
    Vista* VistaDe(const Control& c) const;
    bool EsMia(const Vista* v) const override;
    QWidget& Marco() override { return *this; }
    bool Viva() const override { return viva_; }
    bool Modal() const { return modal_; }

    // Walks the records and marks what differs from what was seen last.
    void Sincroniza();
    // Paints what is marked: at once if `ya` or the area is small, else when the screen is ready
    // to show another whole picture.
    void Presenta(bool ya);
    // On the screen, exposed, with the focus where the record wants it.
    void Ensena();
    bool Ensenada() const { return ensenada_; }
    // The control that has the keyboard once nothing is before this window any more.
    void DejaFocoEn(Vista* v, const VistaVentana* encima);
    // The loop that waits for the window, ended when it closes.
    void PonBucle(QEventLoop* bucle) { bucle_ = bucle; }
    // The window is closed: no more events; the widget goes away by itself.
    void Termina();

    bool Tecla(const QKeyEvent& e, Vista* foco) override;
    void LlegaElRaton(QPointF enPantalla, bool actua) override;
    void Suelta(Qt::MouseButton boton, QPointF punto) override;

protected:
    bool event(QEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;
    void dragEnterEvent(QDragEnterEvent* e) override;
    void dragMoveEvent(QDragMoveEvent* e) override;
    void dropEvent(QDropEvent* e) override;

private:
    void SincronizaControles();
    void RehaceVistas();
    void EncadenaFoco();  // the way of the Tab key
    void SincronizaReloj();
    QRect Sitio() const;
    void Raton(QMouseEvent& m);
    bool AdmiteTraidos() const;  // a drop may come now: no modal window stands above this one

    struct Reloj {
        Temporizador* registro = nullptr;
        std::unique_ptr<QTimer> timer;
        bool corriendo = false;  // its handler runs
    };

    Ventana& ventana_;
    Anfitrion& anfitrion_;
    Velo* const velo_;  // that it lies on, within the window that fills the screen; else null
    bool modal_ = false, viva_ = true, ensenada_ = false;
    QEventLoop* bucle_ = nullptr;
    std::vector<Control*> orden_;
    std::unordered_map<const Control*, Vista*> vistas_;
    std::vector<Vista*> enOrden_;
    std::vector<std::unique_ptr<Reloj>> relojes_;
    i16 puntero_ = -1;
    std::string icono_, titulo_;
    bool apuntaTeclado_ = false;
    QPointF raton_;  // where the mouse stood when the keyboard began to point, and since
    QRect sitio_;
    int rueda_ = 0;  // what the wheel has turned short of a step
    long long areaPendiente_ = 0;
    long long ultimaGrande_ = 0;  // ms of the steady clock
};

}  // namespace tessario
