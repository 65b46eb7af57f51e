// SPDX-License-Identifier: GPL-3.0-or-later
#include "pieces/Raster.h"

#include <algorithm>
#include <cstring>

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "pieces/Moldes.h"
#include "rules/Juego.h"

namespace tessario {

namespace {

constexpr i32 LADO = 4;  // of the squares by which a surface is turned, pixels

using Cuatro = Pixel __attribute__((vector_size(16)));

// Four pixels side by side, wherever they stand in memory.
Cuatro Lee(const Pixel* p) {
    Cuatro v;
    std::memcpy(&v, p, sizeof v);
    return v;
}
void Escribe(Pixel* p, Cuatro v) {
    std::memcpy(p, &v, sizeof v);
}

// Eight pixels, for processors that have registers for them.
using Ocho = Pixel __attribute__((vector_size(32)));

// A row of a piece's two surfaces: the mask as it stands in its mould, the image from the source
// where the mask is black, 0 where it is white. The last pixels may be done twice.
template <class Grupo>
inline __attribute__((always_inline)) void EstampaFila(Pixel* mascara, Pixel* imagen,
                                                       const Pixel* molde, const Pixel* origen,
                                                       i32 n) {
    constexpr i32 a_la_vez = sizeof(Grupo) / sizeof(Pixel);
    const auto estampa = [=](i32 x) __attribute__((always_inline)) {
        Grupo m, o;
        std::memcpy(&m, molde + x, sizeof m);
        std::memcpy(&o, origen + x, sizeof o);
        o &= ~m;
        std::memcpy(mascara + x, &m, sizeof m);
        std::memcpy(imagen + x, &o, sizeof o);
    };
    if (n < a_la_vez) {
        for (i32 x = 0; x < n; ++x) {
            mascara[x] = molde[x];
            imagen[x] = origen[x] & ~molde[x];
        }
        return;
    }
    for (i32 x = 0; x + a_la_vez <= n; x += a_la_vez) estampa(x);
    estampa(n - a_la_vez);
}

// The same where the source has no pixels: its ground goes on for ever, so that a piece of one
// colour, such as those of the Tangram, has it wherever its place lies.
void EstampaFondo(Pixel* mascara, Pixel* imagen, const Pixel* molde, Pixel fondo, i32 n) {
    for (i32 x = 0; x < n; ++x) {
        mascara[x] = molde[x];
        imagen[x] = fondo & ~molde[x];
    }
}

// Both surfaces of a piece in one pass: the mask's copy, the source copy and the blackening of what
// is outside the mask (destination and not mask). The picture at (xo, yo) of the source is where
// the piece belongs, not where it lies.
template <class Grupo>
inline __attribute__((always_inline)) void EstampaFilas(const VistaMascara& v,
                                                        const Superficie& origen, i32 xo, i32 yo) {
    const i32 w = v.Ancho, h = v.Alto, paso = v.Origen->Width();
    const Rect fuente = Interseccion(origen.Limites(), RectDe(xo, yo, w, h));
    const i32 izq = fuente.Vacio() ? w : fuente.Izq - xo,
              der = fuente.Vacio() ? w : fuente.Der - xo;
    const i32 arr = fuente.Vacio() ? h : fuente.Arr - yo,
              aba = fuente.Vacio() ? h : fuente.Aba - yo;
    const Pixel fondo = PixelDe(origen.BackColor());
    Pixel* mascara = Pic_PiezaMascara.Fila(0);
    Pixel* imagen = Pic_PiezaImagen.Fila(0);
    const Pixel* molde = v.Origen->Fila(v.Y) + v.X;
    for (i32 y = 0; y < h; ++y, mascara += w, imagen += w, molde += paso) {
        const bool hay = y >= arr && y < aba;
        const i32 i = hay ? izq : w, d = hay ? der : w;
        if (i > 0) EstampaFondo(mascara, imagen, molde, fondo, i);
        if (hay)
            EstampaFila<Grupo>(mascara + i, imagen + i, molde + i, origen.Fila(yo + y) + fuente.Izq,
                               d - i);
        if (d < w) EstampaFondo(mascara + d, imagen + d, molde + d, fondo, w - d);
    }
}

#ifdef __x86_64__
__attribute__((target("avx2"))) void EstampaDeOcho(const VistaMascara& v, const Superficie& origen,
                                                   i32 xo, i32 yo) {
    EstampaFilas<Ocho>(v, origen, xo, yo);
}
#endif

void Estampa(const VistaMascara& v, const Superficie& origen, i32 xo, i32 yo) {
    Pic_PiezaMascara.TamanoLibre(v.Ancho, v.Alto);
    Pic_PiezaImagen.TamanoLibre(v.Ancho, v.Alto);
#ifdef __x86_64__
    if (__builtin_cpu_supports("avx2")) return EstampaDeOcho(v, origen, xo, yo);
#endif
    EstampaFilas<Cuatro>(v, origen, xo, yo);
}

struct Cuadrado {
    Cuatro Filas[LADO];
};

// Columns of four rows as rows.
Cuadrado Traspone(Cuatro a, Cuatro b, Cuatro c, Cuatro d) {
    const Cuatro ab0 = __builtin_shufflevector(a, b, 0, 4, 1, 5);
    const Cuatro ab2 = __builtin_shufflevector(a, b, 2, 6, 3, 7);
    const Cuatro cd0 = __builtin_shufflevector(c, d, 0, 4, 1, 5);
    const Cuatro cd2 = __builtin_shufflevector(c, d, 2, 6, 3, 7);
    return {{__builtin_shufflevector(ab0, cd0, 0, 1, 4, 5),
             __builtin_shufflevector(ab0, cd0, 2, 3, 6, 7),
             __builtin_shufflevector(ab2, cd2, 0, 1, 4, 5),
             __builtin_shufflevector(ab2, cd2, 2, 3, 6, 7)}};
}

void MediaVuelta(const Superficie& s, Superficie& destino) {
    const Pixel* const origen = s.Fila(0);
    std::reverse_copy(origen, origen + s.Width() * s.Height(), destino.Fila(0));
}

// A quarter turn clockwise brings the column x to the row x, its rows from the last to the first;
// three quarters bring it to the row w - 1 - x. By squares of four pixels, and what is left of the
// sides one by one.
template <bool horario>
void CuartoDeVuelta(const Superficie& s, Superficie& destino) {
    const i32 w = s.Width(), h = s.Height(), w4 = w - w % LADO, h4 = h - h % LADO;
    // Rows lie one behind the other: asking a surface for each would cost more than the turn.
    const Pixel* const origen = s.Fila(0);
    Pixel* const girado = destino.Fila(0);
    const auto fila = [=](i32 x) { return girado + (horario ? x : w - 1 - x) * h; };
    const auto suelto = [=](i32 x, i32 y) { fila(x)[horario ? h - 1 - y : y] = origen[y * w + x]; };
    for (i32 y = 0; y < h4; y += LADO) {
        const Pixel* f[LADO];
        for (i32 i = 0; i < LADO; ++i) f[i] = origen + (horario ? y + LADO - 1 - i : y + i) * w;
        const i32 columna = horario ? h - LADO - y : y;
        for (i32 x = 0; x < w4; x += LADO) {
            const auto t = Traspone(Lee(f[0] + x), Lee(f[1] + x), Lee(f[2] + x), Lee(f[3] + x));
            for (i32 i = 0; i < LADO; ++i) Escribe(fila(x + i) + columna, t.Filas[i]);
        }
        for (i32 x = w4; x < w; ++x)
            for (i32 i = 0; i < LADO; ++i) suelto(x, y + i);
    }
    for (i32 y = h4; y < h; ++y)
        for (i32 x = 0; x < w; ++x) suelto(x, y);
}

}  // namespace

void PreparaPieza(i16 piece) {
    Gbl.PiezaAux = Gbl.Piezas[piece];
    const VistaMascara mascara = MascaraDePieza(piece);
    Estampa(mascara, Gbl.MostrandoColocadas ? Pic_PiezaColor : Pic_Bitmap,
            Gbl.PiezaAux.XBien - Gbl.SalienteX, Gbl.PiezaAux.YBien - Gbl.SalienteY);
    for (const PixelBorde& p : mascara.Borde) Pic_PiezaImagen.Fila(0)[p.Donde] = p.Valor;
    if (JuegoEnCurso().GiraImagen && Gbl.PiezaAux.Giro != 0) {
        GiraSuperficie(Pic_PiezaMascara, Gbl.PiezaAux.Giro);
        GiraSuperficie(Pic_PiezaImagen, Gbl.PiezaAux.Giro);
    }
}

void GiraSuperficie(Superficie& surface, i16 giro) {
    if (giro < 1 || giro > 3 || surface.Width() == 0 || surface.Height() == 0) return;
    // Pic_PiezaFinal is free between two paintings: it takes the turned pixels, then the two
    // surfaces exchange their drawings.
    if (giro == 2) {
        Pic_PiezaFinal.TamanoLibre(surface.Width(), surface.Height());
        MediaVuelta(surface, Pic_PiezaFinal);
    } else {
        Pic_PiezaFinal.TamanoLibre(surface.Height(), surface.Width());
        giro == 1 ? CuartoDeVuelta<true>(surface, Pic_PiezaFinal)
                  : CuartoDeVuelta<false>(surface, Pic_PiezaFinal);
    }
    surface.CambiaDibujo(Pic_PiezaFinal);
}

}  // namespace tessario
