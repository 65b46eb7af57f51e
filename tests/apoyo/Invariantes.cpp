// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/Invariantes.h"

#include <vector>

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "pieces/Formas.h"
#include "platform/Plataforma.h"
#include "rules/Catalogo.h"
#include "rules/Despacho.h"
#include "rules/PuzzBas.h"
#include "sliding/Tablero.h"

namespace tessario {

namespace {

bool Entre(i32 n, i32 desde, i32 hasta) {
    return n >= desde && n <= hasta;
}

// ---------------------------------------------------------------- always

bool JuegoExiste() {
    return Entre(Gbl.JuegoActual, JuegoMoviles, JuegoTangram);
}

bool PiezasContadas() {
    return Gbl.NumPiezas >= 0 && Gbl.Piezas.Superior() == Gbl.NumPiezas;
}

bool OrdenCompleto() {
    if (Gbl.OrdenPiezas.Superior() != Gbl.NumPiezas) return false;
    std::vector<bool> visto(static_cast<std::size_t>(Gbl.NumPiezas) + 1);
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i) {
        const i32 p = Gbl.OrdenPiezas[i];
        if (!Entre(p, 1, Gbl.NumPiezas) || visto[static_cast<std::size_t>(p)]) return false;
        visto[static_cast<std::size_t>(p)] = true;
    }
    return true;
}

bool PiezaActualExiste() {
    return Entre(Gbl.PiezaActual, 0, Gbl.NumPiezas);
}

bool RegistroEnRango() {
    return Entre(Gbl.NumMovimientos, 0, Gbl.Movimientos.Superior());
}

bool GrabadoraEnRango() {
    return !Gbl.GrabadoraEncendida ||
           Entre(Gbl.FinMovimientos, Gbl.NumMovimientos, Gbl.Movimientos.Superior());
}

bool RegistroNombraPiezas() {
    for (i32 i = 1; i <= Gbl.NumMovimientos; ++i)
        if (!Entre(Gbl.Movimientos[i].Pieza, 1, Gbl.NumPiezas)) return false;
    return true;
}

bool AjustesEnRango() {
    return Entre(Gbl.FactorAtraccion, 0, 100) && Entre(Gbl.ModoJuego, MODO_CREAR, MODO_RESOLVER) &&
           Entre(Gbl.FormaPiezas, 0, FORMAS_DE_PIEZA - 1) && Entre(Gbl.TipoFondo, 1, 3);
}

bool OrientacionesEnRango() {
    const i32 giros = Gbl.JuegoActual == JuegoTangram ? 8 : 4;
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i) {
        const Pieza& p = Gbl.Piezas[i];
        if (!Entre(p.Giro, 0, giros - 1) || !Entre(p.GiroBien, 0, giros - 1) ||
            !Entre(p.Volteo, 0, 1) || !Entre(p.VolteoBien, 0, 1))
            return false;
    }
    return true;
}

bool TiempoNoNegativo() {
    return Gbl.SegundosJuego >= 0;
}

constexpr Invariante SIEMPRE[] = {
    {"the game is one of the three", "its record is found by its number", JuegoExiste},
    {"as many pieces as counted", "every loop over the pieces ends at the count", PiezasContadas},
    {"the order is a permutation", "a piece left out would never be painted or found",
     OrdenCompleto},
    {"the piece in hand exists", "its number is an index; 0 is none", PiezaActualExiste},
    {"the log's index is in range", "the next move is written behind it", RegistroEnRango},
    {"the recorder's end is in range", "the replay runs up to it", GrabadoraEnRango},
    {"the log names pieces", "a replay moves the piece by its number", RegistroNombraPiezas},
    {"the settings are in range",
     "knobs and tables of shapes are read by them; the speed alone may be outside, as read",
     AjustesEnRango},
    {"turns and faces are in range", "they choose a piece's mould", OrientacionesEnRango},
    {"the time is not negative", "the display and the history have no sign", TiempoNoNegativo},
};

// ---------------------------------------------------------------- between events

constexpr Invariante ENTRE_SUCESOS[] = {
    {"no drop is under way", "a drop ends within its event",
     [] { return static_cast<bool>(!Gbl.SoltandoPieza); }},
    {"nothing is left waiting", "kept input is handled when the handler ends",
     [] { return !Gbl.GiroEnCurso && Gbl.EntradaAplazada.empty(); }},
    {"no shuffle is under way", "the commands would stay dead",
     [] { return static_cast<bool>(!Gbl.Barajando); }},
    {"no solution is under way", "the table would stay deaf",
     [] { return static_cast<bool>(!Gbl.ResolviendoPuzzle); }},
    {"no arrangement is under way", "the table would stay deaf",
     [] { return static_cast<bool>(!Gbl.OrdenandoPiezas); }},
    {"no automatic run is under way", "the table would stay deaf",
     [] { return static_cast<bool>(!Gbl.TareaAutomatica); }},
    {"no replay is under way", "the recorder would stay deaf",
     [] { return !Gbl.AutoAtras && !Gbl.AutoAdelante; }},
    {"no pause is under way", "the next pause would be cut short",
     [] { return Gbl.MarcaPausa == 0; }},
    {"no handler is at work", "what comes in would be kept for ever",
     [] { return Gbl.EventosAnidados == 0 && Gbl.ManejadoresEnCurso == 0; }},
    {"the pointer is not busy", "nothing is being waited for",
     [] { return Mesa.MousePointer == PUNTERO_NORMAL; }},
};

// ---------------------------------------------------------------- at rest

bool ColocadasContadas() {
    return Gbl.PiezasColocadas == CuentaColocadas();
}

// Pieces and hole of the sliding board stand each on a cell of its own.
bool TableroLleno() {
    if (Gbl.JuegoActual != JuegoDeslizantes) return true;
    const i32 celdas = Gbl.PiezasPorLado * Gbl.PiezasPorLado;
    std::vector<bool> visto(static_cast<std::size_t>(celdas) + 1);
    const auto ocupa = [&](i16 x, i16 y) {
        const i32 c = CeldaDePosicion(x, y);
        if (!Entre(c, 1, celdas) || visto[static_cast<std::size_t>(c)]) return false;
        visto[static_cast<std::size_t>(c)] = true;
        return (x - Gbl.MargenX) % Gbl.AnchoCelda == 0 && (y - Gbl.MargenY) % Gbl.AltoCelda == 0;
    };
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i)
        if (!ocupa(Gbl.Piezas[i].X, Gbl.Piezas[i].Y)) return false;
    return ocupa(Gbl.HuecoX, Gbl.HuecoY);
}

constexpr Invariante EN_REPOSO[] = {
    {"the count of placed pieces is right", "the game ends by it", ColocadasContadas},
    {"pieces and hole stand on cells of their own", "a press finds what may slide by its cell",
     TableroLleno},
};

}  // namespace

std::span<const Invariante> InvariantesSiempre() {
    return SIEMPRE;
}

std::span<const Invariante> InvariantesEntreSucesos() {
    return ENTRE_SUCESOS;
}

std::span<const Invariante> InvariantesEnReposo() {
    return EN_REPOSO;
}

std::string Incumplido(std::span<const Invariante> cuales) {
    for (const Invariante& i : cuales)
        if (!i.Vale()) return std::string(i.Nombre) + " (" + i.Porque + ")";
    return {};
}

}  // namespace tessario
