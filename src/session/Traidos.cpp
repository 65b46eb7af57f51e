// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Traidos.h"

#include <filesystem>
#include <memory>

#include "core/Avisos.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "platform/Plataforma.h"

namespace tessario {

namespace {

constexpr const char* NOMBRE_ARRASTRADA = "Imagen arrastrada";
constexpr const char* NOMBRE_PORTAPAPELES = "tsportap";  // the history knows it by that name

bool Vacio(const Mapa& m) {
    return m.Ancho < 1 || m.Alto < 1;
}

bool TomaFichero(const std::string& ruta) {
    auto mapa = std::make_shared<Mapa>();
    if (Sistema().CargaAjena(ruta, *mapa) != 0 || Vacio(*mapa)) return false;
    Gbl.ImagenTraida = {std::move(mapa), std::filesystem::path(ruta).stem().string(), ruta, false};
    return true;
}

bool TomaDibujo(Mapa mapa, const char* nombre, bool unica) {
    if (Vacio(mapa)) return false;
    Gbl.ImagenTraida = {std::make_shared<const Mapa>(std::move(mapa)), nombre, {}, unica};
    return true;
}

bool TomaAlguno(const std::vector<std::string>& ficheros) {
    for (const std::string& ruta : ficheros)
        if (TomaFichero(ruta)) return true;
    return false;
}

bool NoEsImagen() {
    SonidoJuego(1, sonido::RECHAZO);
    Avisa(aviso::NO_ES_IMAGEN);
    return false;
}

}  // namespace

bool TomaTraido(const Traido& traido) {
    Gbl.ImagenTraida = {};
    return TomaAlguno(traido.Ficheros) || TomaDibujo(traido.Dibujo, NOMBRE_ARRASTRADA, false) ||
           NoEsImagen();
}

bool TomaPegado() {
    Gbl.ImagenTraida = {};
    if (TomaAlguno(Sistema().PortapapelesFicheros())) return true;
    Mapa mapa;
    if (Sistema().PortapapelesImagen(mapa) &&
        TomaDibujo(std::move(mapa), NOMBRE_PORTAPAPELES, true))
        return true;
    return NoEsImagen();
}

}  // namespace tessario
