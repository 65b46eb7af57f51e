// SPDX-License-Identifier: GPL-3.0-or-later
#include "tangram/Pegado.h"

#include <cstdlib>

#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "rules/Catalogo.h"
#include "tangram/Desolape.h"

namespace tessario {

namespace {

// How a search goes about it.
struct Busqueda {
    i16 ultimaDistancia;  // longest pull tried; the first is 2
    double umbral;        // a ratio above it is a direction along an axis
    bool todas;           // tries all eight directions, from the computed one on
};
constexpr Busqueda BUSQUEDA = {7, 0.35, false};
constexpr Busqueda BUSQUEDA_ALTERNATIVA = {6, 0.15, true};
constexpr i16 PRIMERA_DISTANCIA = 2;
constexpr i16 HOLGURA = 2;  // taken back from the pull at the first overlap

// The direction in which the other centre lies, in eighths clockwise from north, dx to the right
// and dy down. Error 11 when the centres coincide.
i32 Direccion(i32 dx, i32 dy, double umbral) {
    const i32 ax = std::abs(dx), ay = std::abs(dy);
    if (ax + ay == 0) throw ErrorEjecucion(ERROR_DIVISION);
    const double razon = std::abs(ay - ax) / static_cast<double>(ay + ax);
    if (razon > umbral) {
        if (ax >= ay) return dx > 0 ? 2 : 6;
        return dy > 0 ? 4 : 0;
    }
    if (dx > 0) return dy > 0 ? 3 : 1;
    return dy > 0 ? 5 : 7;
}

// The polygon of a piece where it stands, moved by (x, y).
Region RegionDePieza(i16 piece, i32 x, i32 y) {
    const Pieza& z = Gbl.Piezas[piece];
    TMidePieza(piece, z.Giro, z.Volteo);
    TVertices(piece, z.Giro, z.Volteo);
    return TRegionPieza(piece, x, y);
}

// One step further the two would lie on each other: the piece in hand stops just clear.
bool PruebaContacto(i16 distancia, i32 direccion, const Region& otra) {
    const Punto rumbo = RUMBOS[static_cast<std::size_t>(direccion)];
    const i32 x = rumbo.x * distancia, y = rumbo.y * distancia;
    const Region mia = RegionDePieza(Gbl.PiezaActual, x, y);
    if (CombineRgn(Gbl.RegionAux5, mia, otra, RGN_AND) <= REGION_VACIA) return false;
    Pieza& z = Gbl.Piezas[Gbl.PiezaActual];
    z.X = Corto(z.X + x - HOLGURA * Sgn(x));
    z.Y = Corto(z.Y + y - HOLGURA * Sgn(y));
    return true;
}

// The piece in hand against one other, at one distance.
bool PruebaPareja(const Busqueda& b, i16 distancia, i16 otra, i32 a, i32 c) {
    Gbl.PiezaAux = Gbl.Piezas[Gbl.PiezaActual];
    const Pieza& z = Gbl.Piezas[otra];
    TPuntoInterior(otra, z.Giro, z.Volteo);
    const i32 dx = z.X + Gbl.XInterior - (Gbl.PiezaAux.X + a);
    const i32 dy = z.Y + Gbl.YInterior - (Gbl.PiezaAux.Y + c);
    const i32 primera = Direccion(dx, dy, b.umbral);
    const Region region = RegionDePieza(otra, 0, 0);
    const i32 intentos = b.todas ? 8 : 1;
    for (i32 i = 0; i < intentos; ++i)
        if (PruebaContacto(distancia, (primera + i) % 8, region)) return true;
    return false;
}

void BuscaContacto(const Busqueda& b, i32 a, i32 c) {
    for (i16 distancia = PRIMERA_DISTANCIA; distancia <= b.ultimaDistancia; ++distancia)
        for (i16 otra = 1; otra <= PIEZAS_TANGRAM; ++otra)
            if (otra != Gbl.PiezaActual && PruebaPareja(b, distancia, otra, a, c)) return;
}

void Pega(const Busqueda& b) {
    const i16 piece = Gbl.PiezaActual;
    const Pieza& z = Gbl.Piezas[piece];
    TPuntoInterior(piece, z.Giro, z.Volteo);
    const i32 a = Gbl.XInterior, c = Gbl.YInterior;
    BorraPieza(piece);
    BuscaContacto(b, a, c);
    PonPieza(piece);
    Pic_Trabajo_Paint();
}

}  // namespace

// Deliberate: an error, such as the division by zero of two centres that coincide, ends the whole
// search; the piece stays where it is and the drop that follows paints it.
void PegaDosPiezas() {
    Sigue([] { Pega(BUSQUEDA); });
}

void PegaDosPiezasNuevoConError() {
    Sigue([] { Pega(BUSQUEDA_ALTERNATIVA); });
}

}  // namespace tessario
