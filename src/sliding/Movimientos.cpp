// SPDX-License-Identifier: GPL-3.0-or-later
#include "sliding/Movimientos.h"

#include "core/Avisos.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Barajado.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "pieces/Composicion.h"
#include "platform/Plataforma.h"
#include "rules/PuzzBas.h"
#include "sliding/Tablero.h"

namespace tessario {

namespace {

constexpr i16 ESPERA = 0, SIN_ESPERA = 1;  // modes of SonidoJuego

// Cursor ids by LadoHueco, and the one of the manual ordering.
constexpr i16 CURSORES_LADO[] = {cursor::PROHIBIDO, cursor::NORTE, cursor::ESTE, cursor::SUR,
                                 cursor::OESTE};

constexpr i32 JUGADAS_POR_PIEZA = 4;  // of the animated shuffle before its first test
constexpr i16 PAUSA_JUGADA = 15;      // ms at speed 50

// A neighbour of the hole other than the piece that moved last; 0 when there is none, which only a
// damaged board can give.
i16 SorteaVecino(i16 previa) {
    BuscaVecinos();
    const bool solaLaPrevia = Gbl.NumVecinos == 1 && Gbl.VecinosHueco[1] == previa;
    if (Gbl.NumVecinos == 0 || solaLaPrevia) return 0;
    i16 piece = previa;
    while (piece == previa) piece = Gbl.VecinosHueco[Entero(Int(Gbl.NumVecinos * Rnd()) + 1)];
    return piece;
}

// The two ways out of the manual ordering that command 11 knows.
void SaleDeOrdenManual() {
    if (TieneSolucion()) {
        AnotaDificultad(DificultadDeslizantes);
        ColocaPiezas(1);
        ReiniciaPartida();
        return;
    }
    Avisa(aviso::ORDEN_INSOLUBLE);
    if (!Gbl.RespuestaMensaje) return;
    Sistema().Presenta();
    BarajaDeslizantes();
    ColocaPiezas(0);
}

}  // namespace

void JuegaPieza(i16 piece, bool espera) {
    Gbl.XOrigen = Gbl.Piezas[piece].X;
    Gbl.YOrigen = Gbl.Piezas[piece].Y;
    SubePieza(PosicionEnOrden(piece));
    DeslizaPieza(Gbl.XOrigen, Gbl.YOrigen, Gbl.HuecoX, Gbl.HuecoY, piece);
    SonidoJuego(espera ? ESPERA : SIN_ESPERA, sonido::DESLIZA);
}

void HuecoAlOrigen() {
    Gbl.HuecoX = Gbl.XOrigen;
    Gbl.HuecoY = Gbl.YOrigen;
}

bool CursorDeslizante(i16 piece) {
    Gbl.PiezaActual = piece;
    if (Gbl.OrdenManual) {
        Gbl.CursorDeseado = cursor::CRUZ;
        return false;
    }
    LadoDelHueco(piece);
    Gbl.CursorDeseado = CURSORES_LADO[Gbl.LadoHueco];
    return true;
}

i16 DeslizanteQueVa(i16 lado) {
    BuscaVecinos();
    for (i16 i = 1; i <= Gbl.NumVecinos; ++i) {
        const i16 piece = Gbl.VecinosHueco[i];
        LadoDelHueco(piece);
        if (Gbl.LadoHueco == lado) return piece;
    }
    return 0;
}

void PulsaDeslizante() {
    if (Gbl.PiezaActual == 0 || Gbl.CursorDeseado == cursor::PROHIBIDO) return;
    CambiaCrono(CRONO_MARCHA);
    // Deliberate: ArrastrandoPieza stays set after the run: the release closes the move.
    JuegaPieza(Gbl.PiezaActual, true);
    HuecoAlOrigen();
}

void BarajaConMovimientos() {
    // Real moves keep a position solvable or not as it was, so the loop below would never leave a
    // board that was not. Only a damaged record brings one here.
    if (!TableroEntero() || !TieneSolucion()) {
        BarajaDeslizantes();
        ColocaPiezas(0);
        if (!TieneSolucion()) return;
    }
    i16 previa = 0;
    for (i32 cuenta = 1;; ++cuenta) {
        const i16 piece = SorteaVecino(previa);
        if (piece == 0) break;
        JuegaPieza(piece, false);
        Pausa(PAUSA_JUGADA);
        Gbl.ArrastrandoPieza = false;
        HuecoAlOrigen();
        previa = piece;
        if (cuenta >= Gbl.NumPiezas * JUGADAS_POR_PIEZA && TieneSolucion()) break;
        DejaPasarEventos();
        // Events may have ended this game: another one's pieces are not to be shuffled so.
        if (Gbl.JuegoActual != JuegoDeslizantes) return;
    }
    AnotaDificultad(DificultadDeslizantes);
}

void OrdenManualDeslizantes() {
    Gbl.RespuestaMensaje = true;
    PonPuntero(Mesa, PUNTERO_NORMAL);
    if (Gbl.OrdenManual)
        SaleDeOrdenManual();
    else
        Avisa(aviso::ORDEN_A_MANO);
    if (Gbl.RespuestaMensaje) Gbl.OrdenManual = !Gbl.OrdenManual;
}

}  // namespace tessario
