// SPDX-License-Identifier: GPL-3.0-or-later
#include "sliding/Solucion.h"

#include <algorithm>

#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "panel/Colocadas.h"
#include "panel/Grabadora.h"
#include "rules/PuzzBas.h"
#include "sliding/Busqueda.h"
#include "sliding/Movimientos.h"
#include "sliding/Tablero.h"

namespace tessario {

namespace {

constexpr i32 RUTA_INICIAL = 100, CRECE_RUTA = 50;  // upper bounds of RutaSolucion

// The first piece that is not in its place; NumPiezas + 1 when all are.
i32 PrimeraSuelta() {
    i32 i = 1;
    while (i <= Gbl.NumPiezas && PiezaEnSuSitio(static_cast<i16>(i))) ++i;
    return i;
}

// What the search has to do with: a board of the sliding game, whole.
bool HayTablero() {
    return Gbl.JuegoActual == JuegoDeslizantes && Gbl.PiezasPorLado >= LADO_MINIMO &&
           Gbl.PiezasPorLado <= LADO_MAXIMO && TableroEntero();
}

CeldasDePiezas CeldasDeLaMesa() {
    CeldasDePiezas celdas{};
    celdas[0] = static_cast<u8>(CeldaDePosicion(Gbl.HuecoX, Gbl.HuecoY) - 1);
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i)
        celdas[static_cast<std::size_t>(i)] =
            static_cast<u8>(CeldaDePosicion(Gbl.Piezas[i].X, Gbl.Piezas[i].Y) - 1);
    return celdas;
}

// The board as it stands, to tell later whether anything has been done to it.
struct CopiaDeLaMesa {
    Arreglo<Pieza> piezas = Gbl.Piezas;
    i16 huecoX = Gbl.HuecoX, huecoY = Gbl.HuecoY;
    i16 lado = Gbl.PiezasPorLado;

    bool Vigente() const {
        return Gbl.JuegoActual == JuegoDeslizantes && Gbl.PiezasPorLado == lado &&
               Gbl.HuecoX == huecoX && Gbl.HuecoY == huecoY &&
               std::equal(piezas.begin(), piezas.end(), Gbl.Piezas.begin(), Gbl.Piezas.end());
    }
};

void GuardaRuta(const std::vector<u8>& ruta) {
    Gbl.RutaSolucion.Redimensiona(RUTA_INICIAL);
    for (const u8 piece : ruta) {
        if (Gbl.LongitudRuta == Gbl.RutaSolucion.Superior())
            Gbl.RutaSolucion.Amplia(Gbl.RutaSolucion.Superior() + CRECE_RUTA);
        Gbl.RutaSolucion[++Gbl.LongitudRuta] = piece;
    }
}

// One move of the solution. False when the piece cannot make it: the events that run between the
// moves may have changed the table.
bool JuegaDeLaRuta(i16 piece) {
    if (Gbl.JuegoActual != JuegoDeslizantes || piece > Gbl.NumPiezas) return false;
    LadoDelHueco(piece);
    if (Gbl.LadoHueco == 0) return false;
    Gbl.PiezaActual = piece;
    JuegaPieza(piece, true);
    RegistraMovimiento(PiezaEnOrigen(piece), Gbl.Piezas[piece]);
    Gbl.ArrastrandoPieza = false;
    HuecoAlOrigen();
    MuestraColocadas();
    DejaPasarEventos();
    return true;
}

// One stage, searched and played out to its end whatever the player presses meanwhile.
bool JuegaEtapa(Busqueda& busqueda) {
    if (!BuscaSolucion(busqueda)) return false;
    for (i32 i = Gbl.LongitudRuta; i >= 1; --i)
        if (!JuegaDeLaRuta(Gbl.RutaSolucion[i])) return false;
    return true;
}

}  // namespace

bool BuscaSolucion(Busqueda& busqueda) {
    Gbl.LongitudRuta = 0;
    if (!HayTablero()) return false;
    const i32 meta = PrimeraSuelta();
    if (meta > Gbl.NumPiezas) return false;
    const CopiaDeLaMesa antes;
    if (!busqueda.Busca(antes.lado, CeldasDeLaMesa(), meta)) return false;
    // Moves for a table that events have changed under the search are worth nothing.
    if (!antes.Vigente()) return false;
    GuardaRuta(busqueda.Ruta());
    return true;
}

bool BuscaSolucion() {
    Busqueda busqueda(DejaPasarEventos);
    return BuscaSolucion(busqueda);
}

void ResuelveDeslizantes() {
    Gbl.TareaAutomatica = true;
    Busqueda busqueda(DejaPasarEventos);
    while (JuegaEtapa(busqueda) && Gbl.PiezasColocadas < Gbl.NumPiezas && Gbl.ResolviendoPuzzle) {
    }
    Gbl.PuzzleArchivable = false;
    Gbl.ArrastrandoPieza = false;
    Gbl.SoltandoPieza = false;
    if (Gbl.PiezasColocadas == Gbl.NumPiezas) EntraEnCompleto();
    Gbl.ResolviendoPuzzle = false;
    Gbl.TareaAutomatica = false;
}

}  // namespace tessario
