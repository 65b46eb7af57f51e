// SPDX-License-Identifier: GPL-3.0-or-later
// A week of play in one process: two million moves, a thousand changes of game, five thousand
// visits each to the help and the settings, and the other windows now and then. At the end of every
// day the same game is laid, and what the program holds may be no more than at the end of the
// first.
//
//   tessario_semana logica|ventanas [share of a week] [seed]
//
// "logica" plays on the test platform, "ventanas" in the shell: without a display, or on the X
// server of DISPLAY when QT_QPA_PLATFORM is xcb.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#ifdef TESSARIO_VENTANAS
#include <QApplication>

#include "qt/Quejas.h"
#endif

#include "core/PuzzGbl.h"
#include "semana/Jugador.h"
#include "semana/Medida.h"

namespace tessario {
namespace {

constexpr long DIAS = 7;

void DiHecho(const Jugador::Cuenta& c) {
    std::printf(
        "%ld moves, %ld changes of game, %ld help windows, %ld settings, %ld histories, "
        "%ld statistics, %ld saved, %ld loaded, %ld deleted, %ld messages, %ld puzzles finished\n",
        c.jugadas, c.juegos, c.ayudas, c.ajustes, c.historicos, c.estadisticas, c.guardados,
        c.cargados, c.borrados, c.avisos, c.acabados);
}

// A day in which nothing was done shows nothing.
bool SeJugo(const Jugador::Cuenta& c, long tandas) {
    return c.jugadas >= tandas * JUGADAS_DE_TANDA && c.juegos >= tandas * 9 / 10 &&
           c.ayudas >= tandas * VISITAS_DE_TANDA && c.ajustes >= tandas * VISITAS_DE_TANDA &&
           c.guardados >= tandas && c.borrados >= tandas && c.cargados > 0 && c.historicos > 0;
}

bool Juega(Mundo& mundo, double parte, unsigned semilla) {
    const long tandas = std::max(2L, std::lround(parte * static_cast<double>(TANDAS)));
    const long dias = std::min(DIAS, tandas);
    Jugador jugador(mundo, semilla);
    if (!mundo.Arranca()) {
        std::printf("the start was refused\n");
        return false;
    }
    jugador.Empieza();
    jugador.AcabaElDia();
    std::printf("seed %u\nday  %s\n  0%s\n", semilla, CABECERA_MEDIDA,
                Renglon(Mide(mundo.Carpeta())).c_str());
    Medida primero;
    std::string crecido;
    for (long dia = 1, tanda = 0; dia <= dias; ++dia) {
        for (; tanda < tandas * dia / dias; ++tanda) jugador.Tanda(tanda);
        jugador.AcabaElDia();
        const Medida m = Mide(mundo.Carpeta());
        if (dia == 1) primero = m;
        crecido = Crecido(primero, m);
        std::printf("%3ld%s\n", dia, Renglon(m).c_str());
        std::fflush(stdout);
    }
    DiHecho(jugador.Hecho());
    if (!SeJugo(jugador.Hecho(), tandas)) {
        std::printf("too little was done\n");
        return false;
    }
    std::printf("%s\n",
                crecido.empty() ? "flat" : ("grown since the first day\n" + crecido).c_str());
    return crecido.empty();
}

}  // namespace
}  // namespace tessario

int main(int argc, char** argv) {
    using namespace tessario;
    const std::string donde = argc > 1 ? argv[1] : "";
    const double parte = argc > 2 ? std::atof(argv[2]) : 1;
    const auto semilla =
        static_cast<unsigned>(argc > 3 ? std::strtoul(argv[3], nullptr, 10) : 20261121);
    if (donde == "logica") return Juega(*MundoDePrueba(), parte, semilla) ? 0 : 1;
#ifdef TESSARIO_VENTANAS
    if (donde == "ventanas") {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        if (!qEnvironmentVariableIsSet("SDL_AUDIODRIVER")) qputenv("SDL_AUDIODRIVER", "dummy");
        CallaQuejas();
        QApplication aplicacion(argc, argv);
        return Juega(*MundoDeVentanas(), parte, semilla) ? 0 : 1;
    }
#endif
    std::printf("usage: tessario_semana logica|ventanas [share of a week] [seed]\n");
    return 2;
}
