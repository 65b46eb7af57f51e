// SPDX-License-Identifier: GPL-3.0-or-later
#include "tangram/Desolape.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <span>
#include <vector>

#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "pieces/Raster.h"
#include "rules/Catalogo.h"

namespace tessario {

namespace {

constexpr i16 SIN_EMPUJE = 99;       // in TCaminoPilas: no push
constexpr i16 EMPUJES_EN_CALMA = 5;  // pushes after which the choice is shaken
constexpr i32 PASO_DE_BUSQUEDA = 2;  // pixels between the rings of the search for a free place

constexpr i16 DIRECCIONES = RUMBOS.size();

// One way out of an overlap: its direction and what it costs, pixels walked plus one.
struct Salida {
    i16 direccion = 0;
    i32 coste = 0;
};
using Salidas = std::array<Salida, DIRECCIONES>;

// What stays the same during one call: the other pieces do not move.
struct Entorno {
    std::array<Region, PIEZAS_TANGRAM + 1> regiones;  // by piece, the pushed one left empty
    i32 ancho = 0, alto = 0;                          // box of the pushed piece
};

i16 Opuesta(i16 d) {
    return static_cast<i16>(d < 4 ? d + 4 : d - 4);
}

void PoneVertices(i16 piece) {
    const Pieza& p = Gbl.Piezas[piece];
    TMidePieza(piece, p.Giro, p.Volteo);
    TVertices(piece, p.Giro, p.Volteo);
}

Entorno MideEntorno() {
    Entorno e;
    for (i16 k = 1; k <= PIEZAS_TANGRAM; ++k) {
        Sigue([&] { PoneVertices(k); });
        if (k != Gbl.PiezaActual) e.regiones[static_cast<std::size_t>(k)] = TRegionPieza(k);
    }
    const Pieza& p = Gbl.Piezas[Gbl.PiezaActual];
    e.ancho = AnchoDePieza(Gbl.PiezaActual, p.Giro, p.Volteo);
    e.alto = AltoDePieza(Gbl.PiezaActual, p.Giro, p.Volteo);
    return e;
}

// The first piece by number that overlaps the region; null when none does.
const Region* PrimeraDebajo(const Entorno& e, const Region& a) {
    for (i16 k = 1; k <= PIEZAS_TANGRAM; ++k) {
        const Region& b = e.regiones[static_cast<std::size_t>(k)];
        if (k != Gbl.PiezaActual && SeCortan(a, b)) return &b;
    }
    return nullptr;
}

// A piece's region row by row. The pieces are convex: each row is one run of points.
struct Perfil {
    i32 arr = 0;
    std::vector<i32> izq, der;  // by row from arr; right exclusive
    i32 Filas() const { return static_cast<i32>(izq.size()); }
};

Perfil PerfilDe(const Region& region) {
    Perfil p;
    p.arr = region.Caja().Arr;
    for (const Rect& r : region.Rectangulos()) {
        p.izq.insert(p.izq.end(), static_cast<std::size_t>(r.Alto()), r.Izq);
        p.der.insert(p.der.end(), static_cast<std::size_t>(r.Alto()), r.Der);
    }
    return p;
}

// Has the first, moved by (dx, dy), a point in common with the second?
bool ChocaMovida(const Perfil& a, const Perfil& b, i32 dx, i32 dy) {
    const i32 desde = std::max(a.arr + dy, b.arr);
    const i32 filas = std::min(a.arr + dy + a.Filas(), b.arr + b.Filas()) - desde;
    if (filas <= 0) return false;
    const i32* ai = a.izq.data() + (desde - dy - a.arr);
    const i32* ad = a.der.data() + (desde - dy - a.arr);
    const i32* bi = b.izq.data() + (desde - b.arr);
    const i32* bd = b.der.data() + (desde - b.arr);
    i32 comunes = 0;  // counted without a branch, so that rows go several at a time
    for (i32 i = 0; i < filas; ++i) comunes += (ai[i] + dx < bd[i]) & (bi[i] < ad[i] + dx);
    return comunes != 0;
}

// Pixel by pixel in one direction until the two are clear of each other. Other pieces are not
// looked at. A region moved by whole pixels is the region of the moved polygon.
i32 CosteDeSalida(const Perfil& a, const Perfil& b, i16 d) {
    const Punto paso = RUMBOS[static_cast<std::size_t>(d)];
    i32 pasos = 0;
    do {
        ++pasos;
    } while (ChocaMovida(a, b, pasos * paso.x, pasos * paso.y));
    return pasos * (std::abs(paso.x) + std::abs(paso.y)) + 1;
}

// The eight ways, the cheapest first, ways of equal cost in order of direction.
Salidas OrdenaSalidas(const Region& a, const Region& b) {
    const Perfil pa = PerfilDe(a), pb = PerfilDe(b);
    Salidas s;
    for (i16 d = 0; d < DIRECCIONES; ++d)
        s[static_cast<std::size_t>(d)] = {d, CosteDeSalida(pa, pb, d)};
    std::stable_sort(s.begin(), s.end(),
                     [](const Salida& x, const Salida& y) { return x.coste < y.coste; });
    return s;
}

// The push of a way out. A diagonal one splits the cost between the axes, and the y part takes the
// odd pixel.
Punto Empuje(const Salida& s) {
    const Punto paso = RUMBOS[static_cast<std::size_t>(s.direccion)];
    const bool diagonal = paso.x != 0 && paso.y != 0;
    const i32 dx = diagonal ? s.coste / 2 : s.coste;
    const i32 dy = diagonal ? s.coste - dx : s.coste;
    return {paso.x * dx, paso.y * dy};
}

bool Rechazado(const Entorno& e, i32 cx, i32 cy) {
    const bool bajoElPanel = cx > Pic_Botonera.Left - e.ancho && cy < Pic_Botonera.Height();
    // Deliberate: the last test compares the height with the screen's width, and nothing else holds
    // a piece back at the right edge: below the panel it can be pushed off the table.
    return bajoElPanel || cy < 0 || cy > Gbl.AltoPantalla - e.alto || cx < 0 ||
           cy > Gbl.AnchoPantalla - e.ancho;
}

bool Aceptable(const Entorno& e, const Salida& s) {
    const Punto t = Empuje(s);
    return !Rechazado(e, Gbl.PiezaAux.X + t.x, Gbl.PiezaAux.Y + t.y);
}

// Would this way take the last push back? Pushes past the end of the list are not remembered.
bool Deshace(i16 direccion) {
    const i32 anterior = Gbl.TEmpujes - 1;
    return anterior <= Gbl.TCaminoPilas.Ultimo() &&
           Gbl.TCaminoPilas[anterior] == Opuesta(direccion);
}

// The item that is really read when the choice stands at item i: one further if that would undo
// the last push, and shaken once the piece is caught among others.
i32 ItemDesde(const Salidas& s, i32 i) {
    if (Deshace(s[static_cast<std::size_t>(i)].direccion)) ++i;
    // Deliberate: past these pushes their count shakes the choice, which gets a piece out of a
    // ring.
    if (Gbl.TEmpujes > EMPUJES_EN_CALMA) {
        i += Gbl.TEmpujes % 7;
        if (i > 7) i -= DIRECCIONES;
    }
    return i > 7 ? 0 : i;
}

// The cheapest way that is not refused. The walk through the items depends on nothing but where it
// stands, so coming back to a place would be endless: then the first usable way in order is taken,
// and none if all eight are refused.
std::optional<Salida> EligeSalida(const Entorno& e, const Salidas& s) {
    std::array<bool, DIRECCIONES> visto{};
    for (i32 i = 0; !visto[static_cast<std::size_t>(i)];) {
        visto[static_cast<std::size_t>(i)] = true;
        const i32 item = ItemDesde(s, i);
        const Salida& salida = s[static_cast<std::size_t>(item)];
        if (Aceptable(e, salida)) return salida;
        i = item == 7 ? 0 : item + 1;
    }
    for (const Salida& salida : s)
        if (Aceptable(e, salida)) return salida;
    return std::nullopt;
}

// One pass. False when the piece lies free; empty when there is no way to push it.
std::optional<bool> Pasada(const Entorno& e) {
    Gbl.PiezaAux = Gbl.Piezas[Gbl.PiezaActual];
    const Region a = TRegionPieza(Gbl.PiezaActual);
    const Region* b = PrimeraDebajo(e, a);
    if (b == nullptr) return false;
    if (Gbl.TEmpujes == MAX_EMPUJES) return std::nullopt;
    ++Gbl.TEmpujes;
    const auto salida = EligeSalida(e, OrdenaSalidas(a, *b));
    if (!salida) return std::nullopt;
    const Punto t = Empuje(*salida);
    Pieza& p = Gbl.Piezas[Gbl.PiezaActual];
    Sigue([&] { p.X = Corto(Gbl.PiezaAux.X + t.x); });
    Sigue([&] { p.Y = Corto(Gbl.PiezaAux.Y + t.y); });
    if (Gbl.TEmpujes <= Gbl.TCaminoPilas.Ultimo())
        Gbl.TCaminoPilas[Gbl.TEmpujes] = salida->direccion;
    return true;
}

bool LugarLibre(const Entorno& e, const Region& enOrigen, i32 x, i32 y) {
    if (x > Gbl.AnchoPantalla - e.ancho || Rechazado(e, x, y)) return false;
    Region a = enOrigen;
    a.Desplaza(x, y);
    return PrimeraDebajo(e, a) == nullptr;
}

// Looks at the corners and sides of a square ring of places around a point.
std::optional<Punto> LibreEnAnillo(const Entorno& e, const Region& enOrigen, Punto centro,
                                   i32 radio) {
    for (i32 t = -radio; t <= radio; t += PASO_DE_BUSQUEDA)
        for (const Punto d : {Punto{t, -radio}, {radio, t}, {t, radio}, {-radio, t}})
            if (LugarLibre(e, enOrigen, centro.x + d.x, centro.y + d.y))
                return Punto{centro.x + d.x, centro.y + d.y};
    return std::nullopt;
}

// The way out of pushes that do not end: the free place on the table nearest to where the piece
// fell. On a table with no free place it stays there.
void TomaLugarLibre(const Entorno& e, Punto caida) {
    Pieza& p = Gbl.Piezas[Gbl.PiezaActual];
    p.X = static_cast<i16>(caida.x);
    p.Y = static_cast<i16>(caida.y);
    Region enOrigen = TRegionPieza(Gbl.PiezaActual);
    enOrigen.Desplaza(-caida.x, -caida.y);
    const Punto centro = {std::clamp<i32>(caida.x, 0, Gbl.AnchoPantalla),
                          std::clamp<i32>(caida.y, 0, Gbl.AltoPantalla)};
    const i32 maximo = std::max(Gbl.AnchoPantalla, Gbl.AltoPantalla);
    for (i32 radio = 0; radio <= maximo; radio += PASO_DE_BUSQUEDA) {
        const auto libre = LibreEnAnillo(e, enOrigen, centro, radio);
        if (!libre) continue;
        p.X = static_cast<i16>(libre->x);
        p.Y = static_cast<i16>(libre->y);
        return;
    }
}

void EmpujaHastaQuedarLibre() {
    const Entorno e = MideEntorno();
    const Pieza& p = Gbl.Piezas[Gbl.PiezaActual];
    const Punto caida = {p.X, p.Y};
    std::optional<bool> empujada;
    do {
        empujada = Pasada(e);
    } while (empujada.value_or(false));
    if (!empujada) TomaLugarLibre(e, caida);
}

bool HayPiezaActual() {
    return Gbl.PiezaActual >= 1 && Gbl.PiezaActual <= PIEZAS_TANGRAM &&
           Gbl.Piezas.Superior() >= PIEZAS_TANGRAM;
}

}  // namespace

Region TRegionPieza(i16 piece, i32 dx, i32 dy) {
    const Pieza& p = Gbl.Piezas[piece];
    const i32 esquinas = FichaDeTangram(piece).Vertices;
    const auto fila = static_cast<std::size_t>(piece);
    Gbl.TPoligono.Redimensiona(esquinas);
    for (i32 k = 1; k <= esquinas; ++k)
        Gbl.TPoligono[k] = {p.X + dx + Gbl.TVerticeX[fila][k], p.Y + dy + Gbl.TVerticeY[fila][k]};
    return CreatePolygonRgn(std::span(&Gbl.TPoligono[1], static_cast<std::size_t>(esquinas)));
}

void TDesolapaPieza() {
    std::fill(Gbl.TCaminoPilas.begin(), Gbl.TCaminoPilas.end(), SIN_EMPUJE);
    Gbl.TEmpujes = 0;
    if (!HayPiezaActual()) return;
    Sigue([] { BorraPieza(Gbl.PiezaActual); });
    Sigue([] { EmpujaHastaQuedarLibre(); });
    Sigue([] { PreparaPieza(Gbl.PiezaActual); });
    Sigue([] { PintaPieza(Pic_Imagen, Gbl.PiezaActual); });
    Pic_Trabajo_Paint();
}

}  // namespace tessario
