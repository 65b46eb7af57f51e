// SPDX-License-Identifier: GPL-3.0-or-later
// DificultadDeslizantes: how far the board is from being solved, and how hard that makes the
// puzzle.
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "sliding/Tablero.h"

namespace tessario {

namespace {

// Greatest disorder of a board, by PiezasPorLado from LADO_MINIMO to LADO_MAXIMO.
constexpr i16 MAX_DESORDEN[] = {20, 58, 112, 206, 324, 498, 702};

// By TipoFondo from 1: a bare image is the hardest, numbers are the easiest.
constexpr float FACTOR_FONDO[] = {100, 20, 35};

float FactorDesorden() {
    i32 desorden = 0;
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i) {
        const Pieza& p = Gbl.Piezas[i];
        desorden += DistanciaCeldas(p.X, p.Y, p.XBien, p.YBien);
    }
    if (Gbl.PiezasPorLado < LADO_MINIMO || Gbl.PiezasPorLado > LADO_MAXIMO)
        throw ErrorEjecucion(ERROR_INDICE);
    const i16 maximo = MAX_DESORDEN[Gbl.PiezasPorLado - LADO_MINIMO];
    return static_cast<float>(desorden) * 100.0F / static_cast<float>(maximo);
}

}  // namespace

double DificultadDeslizantes() {
    float desorden = 0;
    Sigue([&] { desorden = FactorDesorden(); });
    const float cuenta = static_cast<float>(Gbl.NumPiezas - 8) / 0.72F;
    const bool conocido = Gbl.TipoFondo >= FONDO_IMAGEN && Gbl.TipoFondo <= FONDO_LETRAS;
    const float fondo = conocido ? FACTOR_FONDO[Gbl.TipoFondo - FONDO_IMAGEN] : 0.0F;
    return (desorden + cuenta + fondo) / 3.0;
}

}  // namespace tessario
