// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tablas.h"

#include <fstream>

#include "core/PuzzGbl.h"
#include "rules/Medidas.h"
#include "start/Juegos.h"

namespace tessario::modelos {

void PreparaTablas() {
    InstalaJuegos();
    Gbl.JuegoActual = JuegoTangram;
    Gbl.ModoJuego = MODO_CREAR;
    Gbl.AnchoPantalla = 800;
    Gbl.AltoPantalla = 600;
    CalculaTamanos();
    Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
}

void Dibuja(const Reparto& reparto, const std::filesystem::path& ruta) {
    const Sombra s = PintaSombra(reparto);
    std::ofstream salida(ruta, std::ios::binary);
    salida << "P5\n" << s.ancho << " " << s.alto << "\n255\n";
    for (i32 y = 0; y < s.alto; ++y)
        for (i32 x = 0; x < s.ancho; ++x)
            salida.put(static_cast<char>(s.Fila(y)[x] != 0 ? 40 : 255));
}

}  // namespace tessario::modelos
