// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Reparacion.h"

#include "core/PuzzGbl.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

constexpr i16 ATRACCION_MAXIMA = 100, ATRACCION_REPARADA = 20;          // percent
constexpr i16 ZOOM_MINIMO = 5, ZOOM_MAXIMO = 995, ZOOM_REPARADO = 100;  // percent

bool Fuera(i16 valor, i16 minimo, i16 maximo) {
    return valor < minimo || valor > maximo;
}

// ---------------------------------------------------------------- orientations

i16 CarasDe(i32 piece) {
    return piece == JuegoEnCurso().PiezaQueVoltea ? i16{2} : i16{1};
}

void PonEnRango(i16& valor, i16 pasos) {
    const i32 resto = valor % pasos;
    valor = static_cast<i16>(resto < 0 ? resto + pasos : resto);
}

void ReparaOrientaciones() {
    const i16 pasos = JuegoEnCurso().Giros;
    for (i32 i = 1; i <= Gbl.Piezas.Superior(); ++i) {
        Pieza& p = Gbl.Piezas[i];
        for (i16* giro : {&p.Giro, &p.GiroBien}) PonEnRango(*giro, pasos);
        for (i16* cara : {&p.Volteo, &p.VolteoBien}) PonEnRango(*cara, CarasDe(i));
    }
    for (i32 i = 1; i <= Gbl.Movimientos.Superior(); ++i) {
        Movimiento& m = Gbl.Movimientos[i];
        for (i16* giro : {&m.GiroAntes, &m.GiroDespues}) PonEnRango(*giro, pasos);
        for (i16* cara : {&m.VolteoAntes, &m.VolteoDespues}) PonEnRango(*cara, CarasDe(m.Pieza));
    }
}

// ---------------------------------------------------------------- the log

bool NombraPiezas() {
    for (i32 i = 1; i <= Gbl.NumMovimientos; ++i)
        if (Fuera(Gbl.Movimientos[i].Pieza, 1, Gbl.NumPiezas)) return false;
    return true;
}

void ReparaDiario() {
    if (NombraPiezas() && JuegoEnCurso().DiarioPosible()) return;
    Gbl.NumMovimientos = 0;
    Gbl.Movimientos.Redimensiona(0);
}

}  // namespace

void ReparaAjustes() {
    if (Fuera(Gbl.FactorAtraccion, 0, ATRACCION_MAXIMA)) Gbl.FactorAtraccion = ATRACCION_REPARADA;
    if (Fuera(Gbl.ModoJuego, MODO_CREAR, MODO_RESOLVER)) Gbl.ModoJuego = MODO_CREAR;
    if (Fuera(Gbl.TipoFondo, FONDO_IMAGEN, FONDO_LETRAS)) Gbl.TipoFondo = FONDO_NUMEROS;
    if (Fuera(Gbl.ZoomImagen, ZOOM_MINIMO, ZOOM_MAXIMO)) Gbl.ZoomImagen = ZOOM_REPARADO;
    if (Gbl.SegundosJuego < 0) Gbl.SegundosJuego = 0;
}

void ReparaPiezas() {
    ReparaOrientaciones();
    JuegoEnCurso().AsientaTablero();
    ReparaDiario();
}

void ReparaTerminado() {
    if (Gbl.PuzzleTerminado && CuentaColocadas() != Gbl.NumPiezas) Gbl.PuzzleTerminado = false;
}

}  // namespace tessario
