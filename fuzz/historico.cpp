// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: the history: its records for each game, and the models that it holds as solved.
#include "Mesa.h"
#include "core/PuzzGbl.h"
#include "records/Historial.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t n) {
    using namespace tessario;
    MesaDeFuzz mesa;
    Gbl.CarpetaPrograma = mesa.Plataforma().carpeta;
    mesa.Escribe("TESSA33.his", Texto(bytes, n));
    for (const i16 juego : {JuegoMoviles, JuegoDeslizantes, JuegoTangram}) {
        Gbl.JuegoActual = juego;
        if (LeeHistorico() == 0)
            Exige(Gbl.UltimoHistorico <= Gbl.Historico.Superior(), "the last record exists");
        ModelosResueltos();
    }
    return 0;
}
