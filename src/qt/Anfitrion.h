// SPDX-License-Identifier: GPL-3.0-or-later
// What a view asks of the shell that hosts it: the boundary through which events reach the game,
// the buttons that are held, and the shared text and cursor caches.
#pragma once

#include <QCursor>
#include <QPointer>
#include <Qt>
#include <functional>
#include <utility>
#include <vector>

#include "qt/Cursores.h"
#include "qt/Textos.h"

namespace tessario {

class Vista;
class VistaVentana;

class Anfitrion {
public:
    virtual ~Anfitrion() = default;

    // Runs a handler of the game. A run-time error that it lets out ends here and is noted as
    // pending; afterwards what was painted is shown.
    virtual void Entrega(const std::function<void()>& manejador) = 0;
    // The light tick of a control that the player moves.
    virtual void SuenaMando() = 0;
    // The player asks to close a window from outside.
    virtual void PideCerrar(VistaVentana& v) = 0;
    virtual bool EstaCerrando() const = 0;
    // The window on the screen that has to be answered first; null: none.
    virtual const VistaVentana* Modal() const = 0;

    Textos& textos() { return textos_; }
    Cursores& cursores() { return cursores_; }

    // --- Held buttons. A press is noted when it is delivered and taken off when its release is, so
    // that each gets exactly one release even if the window system loses it.
    void AnotaPulsada(QWidget* quien, Qt::MouseButton boton);
    bool TomaPulsada(QWidget* quien, Qt::MouseButton boton);
    bool HayPulsadas() const { return !pulsadas_.empty(); }
    void OlvidaPulsadas(const QWidget* ventana);
    // Delivers the releases that never came: called when no button is held any more.
    void RevisaPulsadas();
    // Delivers the releases of all that is held: the screen is lost to the window.
    void SueltaTodas();
    // The pointer may stand still while something moves, comes or goes beneath it: what lies there
    // now is told of it, once, when the running handlers have returned. Forced, it is told though
    // nothing has changed places: what it shows may be new.
    virtual void MiraBajoElPuntero(bool forzada) = 0;
    // The last point that a view was told of.
    void AnotaMirada(const QWidget* quien, QPointF punto) { mirada_ = {quien, punto}; }
    bool YaMirado(const QWidget* quien, QPointF punto) const {
        return mirada_.first == quien && mirada_.second == punto;
    }

private:
    void SueltaPrimera();
    struct Pulsada {
        QPointer<QWidget> quien;
        Qt::MouseButton boton;
    };
    std::vector<Pulsada> pulsadas_;
    std::pair<const QWidget*, QPointF> mirada_;
    Textos textos_;
    Cursores cursores_;
};

// A widget that can be told of a release that the window system did not deliver.
class RecibeSuelta {
public:
    virtual ~RecibeSuelta() = default;
    virtual void Suelta(Qt::MouseButton boton, QPointF punto) = 0;
};

}  // namespace tessario
