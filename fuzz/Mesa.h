// SPDX-License-Identifier: GPL-3.0-or-later
// What the targets share that need a table: the program on the test platform, started anew for each
// input, with one picture that its records may name. After whatever was read, what always holds of
// the state block must hold.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>

#include "apoyo/Invariantes.h"
#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "start/Arranque.h"

namespace tessario {

class MesaDeFuzz {
public:
    MesaDeFuzz() {
        Gbl = Bloque{};
        ReiniciaSuperficies();
        ReiniciaVentanas();
        PonSistema(&plataforma_);
        for (const char* carpeta : {"Imagenes", "Archivo"})
            std::filesystem::create_directories(plataforma_.carpeta + carpeta);
        const std::string imagen = plataforma_.carpeta + "Imagenes/Puerto.jpg";
        std::ofstream(imagen) << "x";
        plataforma_.imagenes[imagen] = Mapa(320, 240);
        plataforma_.respuestas.assign(RESPUESTAS, true);
    }
    ~MesaDeFuzz() { PonSistema(nullptr); }
    MesaDeFuzz(const MesaDeFuzz&) = delete;
    MesaDeFuzz& operator=(const MesaDeFuzz&) = delete;

    std::string Escribe(const std::string& nombre, std::string_view bytes) {
        const std::string ruta = plataforma_.carpeta + nombre;
        std::ofstream(ruta, std::ios::binary) << bytes;
        return ruta;
    }
    PlataformaPrueba& Plataforma() { return plataforma_; }

private:
    static constexpr std::size_t RESPUESTAS = 64;
    PlataformaPrueba plataforma_;
};

inline void Exige(bool vale, const char* texto) {
    if (vale) return;
    std::fprintf(stderr, "does not hold: %s\n", texto);
    std::abort();
}

inline void CompruebaEstado() {
    const std::string falta = Incumplido(InvariantesSiempre());
    Exige(falta.empty(), falta.c_str());
}

inline std::string_view Texto(const unsigned char* bytes, std::size_t n) {
    return {reinterpret_cast<const char*>(bytes), n};
}

}  // namespace tessario
