// SPDX-License-Identifier: GPL-3.0-or-later
// The raster operations between surfaces.
#include <cstdint>
#include <cstring>

#include "platform/Superficie.h"

namespace tessario {

namespace {

using i64 = std::int64_t;

constexpr Pixel BLANCO = 0xFFFFFF;

// What becomes of a destination pixel d under a source pixel s.
struct CopiaFuente {
    static Pixel Mezcla(Pixel, Pixel s) { return s; }
};
struct DestinoYFuente {
    static Pixel Mezcla(Pixel d, Pixel s) { return d & s; }
};
struct DestinoXorFuente {
    static Pixel Mezcla(Pixel d, Pixel s) { return d ^ s; }
};
struct FuenteInvertida {
    static Pixel Mezcla(Pixel, Pixel s) { return ~s & BLANCO; }
};
struct DestinoSinFuente {
    static Pixel Mezcla(Pixel d, Pixel s) { return d & ~s; }
};

// One row of n pixels. The two rows are the same or do not overlap: no pixel depends on another.
template <class Operacion>
void MezclaFila(Pixel* d, const Pixel* s, i32 n) {
#pragma GCC ivdep
    for (i32 i = 0; i < n; ++i) d[i] = Operacion::Mezcla(d[i], s[i]);
}

template <>
void MezclaFila<CopiaFuente>(Pixel* d, const Pixel* s, i32 n) {
    std::memmove(d, s, static_cast<std::size_t>(n) * sizeof(Pixel));
}

using Mezclador = void (*)(Pixel*, const Pixel*, i32);

Mezclador MezcladorDe(u32 operacion) {
    switch (operacion) {
        case SRCAND:
            return MezclaFila<DestinoYFuente>;
        case SRCINVERT:
            return MezclaFila<DestinoXorFuente>;
        case NOTSRCCOPY:
            return MezclaFila<FuenteInvertida>;
        case DSNA:
            return MezclaFila<DestinoSinFuente>;
        default:
            return MezclaFila<CopiaFuente>;
    }
}

// A rectangle that may reach past the range of i32.
struct Rect64 {
    i64 Izq, Arr, Der, Aba;
};

Rect Recorta(const Rect64& r, const Rect& limites) {
    const auto entre = [](i64 v, i32 menor, i32 mayor) {
        return static_cast<i32>(std::clamp<i64>(v, menor, mayor));
    };
    return {entre(r.Izq, limites.Izq, limites.Der), entre(r.Arr, limites.Arr, limites.Aba),
            entre(r.Der, limites.Izq, limites.Der), entre(r.Aba, limites.Arr, limites.Aba)};
}

// Calls pinta for each part of the rectangle that the clip lets through, and reports what it
// covered.
template <class Funcion>
void PorElRecorte(Superficie& s, const Rect& r, Funcion pinta) {
    if (r.Vacio()) return;
    if (!s.Recorte()) {
        pinta(r);
        s.Marca(r);
        return;
    }
    Rect tocado;
    for (const Rect& parte : s.Recorte()->Desde(r.Arr)) {
        if (parte.Arr >= r.Aba) break;
        const Rect visible = Interseccion(r, parte);
        if (visible.Vacio()) continue;
        pinta(visible);
        tocado = Union(tocado, visible);
    }
    s.Marca(tocado);
}

Mapa CopiaDe(const Superficie& origen, const Rect& r) {
    Mapa copia(r.Ancho(), r.Alto());
    for (i32 y = 0; y < copia.Alto; ++y)
        std::copy_n(origen.Fila(r.Arr + y) + r.Izq, copia.Ancho, copia.Fila(y));
    return copia;
}

// Which source column or row lies under destination number i.
i32 IndiceEstirado(i64 i, i32 origen, i32 destino) {
    return static_cast<i32>((2 * i + 1) * origen / (2 * static_cast<i64>(destino)));
}

// The part [Desde, Hasta) of the destination's range for which the source pixel exists. Indices
// never fall, so the part is one piece.
struct Alcance {
    i32 Desde, Hasta;
};
Alcance ConFuente(i32 desde, i32 hasta, i32 base, i32 origen, i32 destino, i32 primero,
                  i32 limite) {
    const auto lugar = [&](i32 d) {
        return static_cast<i64>(primero) +
               IndiceEstirado(static_cast<i64>(d) - base, origen, destino);
    };
    while (desde < hasta && lugar(desde) < 0) ++desde;
    while (desde < hasta && lugar(hasta - 1) >= limite) --hasta;
    return {desde, hasta};
}

}  // namespace

void BitBlt(Superficie& destino, i32 xd, i32 yd, i32 ancho, i32 alto, const Superficie& origen,
            i32 xo, i32 yo, u32 operacion) {
    if (ancho <= 0 || alto <= 0) return;
    const i64 dx = static_cast<i64>(xo) - xd, dy = static_cast<i64>(yo) - yd;
    // The part of the destination for which the source pixel exists.
    const Rect64 conFuente{std::max<i64>(xd, -dx), std::max<i64>(yd, -dy),
                           std::min<i64>(static_cast<i64>(xd) + ancho, origen.Width() - dx),
                           std::min<i64>(static_cast<i64>(yd) + alto, origen.Height() - dy)};
    if (conFuente.Izq >= conFuente.Der || conFuente.Arr >= conFuente.Aba) return;
    const Rect caja = Recorta(conFuente, destino.Limites());
    if (caja.Vacio()) return;

    const auto sx = static_cast<i32>(dx), sy = static_cast<i32>(dy);
    const Rect leido{caja.Izq + sx, caja.Arr + sy, caja.Der + sx, caja.Aba + sy};
    const Mezclador mezcla = MezcladorDe(operacion);
    const bool enSitio = sx == 0 && sy == 0;
    if (&destino == &origen && !enSitio && !Interseccion(caja, leido).Vacio()) {
        const Mapa copia = CopiaDe(origen, leido);
        PorElRecorte(destino, caja, [&](const Rect& r) {
            for (i32 y = r.Arr; y < r.Aba; ++y)
                mezcla(destino.Fila(y) + r.Izq, copia.Fila(y - caja.Arr) + (r.Izq - caja.Izq),
                       r.Ancho());
        });
        return;
    }
    // A source without pixels gives its ground row by row, and still has none afterwards.
    const bool suelo = &destino != &origen && origen.SoloSuelo();
    std::vector<Pixel> fila(suelo ? static_cast<std::size_t>(caja.Ancho()) : 0);
    PorElRecorte(destino, caja, [&](const Rect& r) {
        const i32 pasoD = destino.Width(), pasoO = suelo ? 0 : origen.Width();
        Pixel* d = destino.Fila(r.Arr) + r.Izq;
        const Pixel* o = suelo ? fila.data() : origen.Fila(r.Arr + sy) + r.Izq + sx;
        for (i32 y = r.Arr; y < r.Aba; ++y, d += pasoD, o += pasoO) {
            if (suelo) origen.CopiaSuelo(y + sy, r.Izq + sx, r.Der + sx, fila.data());
            mezcla(d, o, r.Ancho());
        }
    });
}

void StretchBlt(Superficie& destino, i32 xd, i32 yd, i32 anchoD, i32 altoD,
                const Superficie& origen, i32 xo, i32 yo, i32 anchoO, i32 altoO, u32 operacion) {
    if (anchoD <= 0 || altoD <= 0 || anchoO <= 0 || altoO <= 0) return;
    const Rect caja = Recorta({xd, yd, static_cast<i64>(xd) + anchoD, static_cast<i64>(yd) + altoD},
                              destino.Limites());
    if (caja.Vacio()) return;
    const Alcance cx = ConFuente(caja.Izq, caja.Der, xd, anchoO, anchoD, xo, origen.Width());
    const Alcance cy = ConFuente(caja.Arr, caja.Aba, yd, altoO, altoD, yo, origen.Height());
    if (cx.Desde >= cx.Hasta || cy.Desde >= cy.Hasta) return;

    // Stretching onto itself reads what was there before.
    const bool misma = &destino == &origen;
    const Mapa copia = misma ? origen.Dibujo() : Mapa();
    const Mapa& fuente = misma ? copia : origen.Dibujo();
    std::vector<i32> columnas;
    for (i32 x = cx.Desde; x < cx.Hasta; ++x)
        columnas.push_back(xo + IndiceEstirado(static_cast<i64>(x) - xd, anchoO, anchoD));

    const Mezclador mezcla = MezcladorDe(operacion);
    const bool copiaSola = mezcla == MezclaFila<CopiaFuente>;
    std::vector<Pixel> fila(copiaSola ? 0 : columnas.size());
    PorElRecorte(destino, {cx.Desde, cy.Desde, cx.Hasta, cy.Hasta}, [&](const Rect& r) {
        const auto primera = columnas.begin() + (r.Izq - cx.Desde);
        for (i32 y = r.Arr; y < r.Aba; ++y) {
            const Pixel* p =
                fuente.Fila(yo + IndiceEstirado(static_cast<i64>(y) - yd, altoO, altoD));
            Pixel* const d = destino.Fila(y) + r.Izq;
            Pixel* const reunida = copiaSola ? d : fila.data();
            std::transform(primera, primera + r.Ancho(), reunida, [p](i32 c) { return p[c]; });
            if (!copiaSola) mezcla(d, reunida, r.Ancho());
        }
    });
}

}  // namespace tessario
