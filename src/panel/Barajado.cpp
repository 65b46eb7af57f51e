// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/Barajado.h"

#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "panel/CursorMesa.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "rules/Juego.h"

namespace tessario {

namespace {

constexpr i32 MOVIMIENTOS_INICIALES = 100;  // upper bound of a new log

}  // namespace

void BarajaPiezas() {
    AplicaCursor(cursor::RELOJ);
    Gbl.Barajando = true;
    CambiaCrono(CRONO_PARO);
    Sigue([] { JuegoEnCurso().Baraja(); });
    ReiniciaPartida();
    if (JuegoEnCurso().BarajaJugando)
        MuestraColocadas();  // its pieces lie there already; only the counter is behind
    else
        ColocaPiezas(0);
    Gbl.Barajando = Gbl.SinPausas = false;
    AplicaCursor(cursor::NORMAL);
}

void ReiniciaPartida() {
    Gbl.PuzzleArchivable = true;
    Gbl.PuzzleTerminado = false;
    Gbl.SegundosJuego = 0;
    // A new puzzle is kept under no name yet; where models are solved the name is the model's.
    if (!JuegoEnCurso().TieneModos) Gbl.NombrePuzzle.clear();
    Gbl.NumMovimientos = 0;
    Gbl.Movimientos.Redimensiona(MOVIMIENTOS_INICIALES);
    CambiaCrono(CRONO_MARCHA);
}

void OrdenaLaterales() {
    AplicaCursor(cursor::RELOJ);
    if (const auto ordena = JuegoEnCurso().OrdenaLaterales) Sigue(ordena);
    Gbl.ArrastrandoPieza = false;
    Gbl.OrdenandoPiezas = false;
    AplicaCursor(cursor::NORMAL);
}

void ApartaPieza(i16 piece, i32 x, i32 y) {
    const Pieza antes = Gbl.Piezas[piece];
    Gbl.XOrigen = antes.X;
    Gbl.YOrigen = antes.Y;
    DeslizaPieza(antes.X, antes.Y, Corto(x), Corto(y), piece);
    SonidoJuego(0, sonido::CAE);
    RegistraMovimiento(PiezaEnOrigen(piece), Gbl.Piezas[piece]);
}

bool SigueOrdenando() {
    // No piece is in hand here: a move of the mouse that comes in now must drag none.
    Gbl.ArrastrandoPieza = false;
    DejaPasarEventos();
    return Gbl.OrdenandoPiezas;
}

}  // namespace tessario
