// SPDX-License-Identifier: GPL-3.0-or-later
// Where a week is played: the game on some platform, with a clock that does not make anybody wait,
// in a folder of its own, and a hand that moves the pointer.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/Controles.h"

namespace tessario {

class Mundo {
public:
    virtual ~Mundo() = default;

    std::function<void(Ventana&)> alAbrir;  // a modal window has opened: what the player does in it

    virtual bool Arranca() = 0;
    // What a player does that is no press of the mouse, as an event of the window.
    virtual void Haz(const std::function<void()>& f) = 0;
    // The pointer, in the window's pixels.
    virtual void Mueve(Ventana& v, Punto p) = 0;
    virtual void Aprieta(Ventana& v) = 0;
    virtual void Suelta(Ventana& v) = 0;
    // The help, if it is open, is looked at and closed. False: it was not.
    virtual bool HojeaAyuda(int paso) = 0;
    virtual void Pasa(double milisegundos) = 0;  // nothing happens for so long
    virtual void Reposa() = 0;                   // what has been put off is done
    virtual const std::string& Carpeta() const = 0;
};

// The test platform: the logic alone.
std::unique_ptr<Mundo> MundoDePrueba();
// The shell, on the window system that the program was started for.
std::unique_ptr<Mundo> MundoDeVentanas();

// A fresh folder with the pictures, the models and the first games that come with the program.
std::string CarpetaDeSemana();

}  // namespace tessario
