// SPDX-License-Identifier: GPL-3.0-or-later
// Another program with something to give: it owns a selection of the private X server and hands out
// one kind of data over a connection of its own, on the clipboard or dragged onto a window.
#pragma once

#include <string>
#include <thread>

#include "ventana/Escritorio.h"

union _XEvent;

namespace tessario::ventana {

// How an owner of the clipboard answers.
enum class Trato {
    Cumple,      // with what it has
    Trozos,      // the same in pieces
    Calla,       // not at all
    SoloOferta,  // it says what it has, and never hands it out
    SinFin,      // in pieces that never end
};

// On the clipboard, from a thread of its own.
class Oferta {
public:
    // `tipo` is "image/bmp", "text/uri-list" ...
    Oferta(const Escritorio& e, std::string tipo, std::string bytes, Trato trato = Trato::Cumple);
    ~Oferta();
    Oferta(const Oferta&) = delete;
    Oferta& operator=(const Oferta&) = delete;

private:
    void Atiende(const std::stop_token& fin);

    _XDisplay* d_ = nullptr;
    unsigned long ventana_ = 0;
    // Hands out the next piece to whoever has taken the last one away.
    void Sigue(unsigned long quien, unsigned long propiedad);
    void Empieza(const _XEvent& e);

    std::string tipo_, bytes_;
    Trato trato_;
    std::size_t dado_ = 0;  // bytes handed out
    std::jthread hilo_;
};

// How the window under the pointer took what was dragged there.
struct Acogida {
    bool hayDestino = false;  // a window there takes part in drags at all
    bool admitida = false;    // it would take this
    bool recogida = false;    // dropped, it told that it has taken it
};

// Drags onto a point of the screen and drops there. It returns when the window has told that it has
// taken the data, or has refused it.
Acogida Suelta(const Escritorio& e, int x, int y, const std::string& tipo,
               const std::string& bytes);
// The same with a file.
Acogida SueltaFichero(const Escritorio& e, int x, int y, const std::string& ruta);

}  // namespace tessario::ventana
