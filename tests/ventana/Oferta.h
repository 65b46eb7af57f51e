// Another program with something to give: it owns a selection of the private X server and hands out
// one kind of data, from a thread and a connection of its own.
#pragma once

#include <string>
#include <thread>

#include "ventana/Escritorio.h"

namespace tessario::ventana {

class Oferta {
public:
    // On the clipboard: `tipo` is "image/bmp", "text/uri-list" ...
    Oferta(const Escritorio& e, std::string tipo, std::string bytes);
    ~Oferta();
    Oferta(const Oferta&) = delete;
    Oferta& operator=(const Oferta&) = delete;

private:
    void Atiende(const std::stop_token& fin);

    _XDisplay* d_ = nullptr;
    unsigned long ventana_ = 0;
    std::string tipo_, bytes_;
    std::jthread hilo_;
};

}  // namespace tessario::ventana
