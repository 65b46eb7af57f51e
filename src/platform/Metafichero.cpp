#include "platform/Metafichero.h"

#include <algorithm>

#include "platform/MetaLectores.h"

namespace tessario {

namespace {

// Bands of a region, and rectangles in the one that has most.
struct Bandas {
    std::size_t Cuantas = 0, Tramos = 0;
};

Bandas BandasDe(const Region& r) {
    Bandas b;
    std::size_t tramos = 0;
    const std::vector<Rect>& v = r.Rectangulos();
    for (std::size_t i = 0; i < v.size(); ++i) {
        const bool otra = i == 0 || v[i].Arr != v[i - 1].Arr;
        b.Cuantas += otra ? 1 : 0;
        tramos = otra ? 1 : tramos + 1;
        b.Tramos = std::max(b.Tramos, tramos);
    }
    return b;
}

}  // namespace

void CombinaConTino(Region& destino, const Region& a, const Region& b, int modo, Esfuerzo& e) {
    constexpr long long GASTO_RECTANGULO = 40;
    e.Gasta(static_cast<long long>(a.Rectangulos().size() + b.Rectangulos().size() + 1) *
            GASTO_RECTANGULO);
    const Bandas x = BandasDe(a), y = BandasDe(b);
    // Each band may be cut by the other's, and holds at most the spans of both.
    const std::size_t bandas = 2 * (x.Cuantas + y.Cuantas), tramos = x.Tramos + y.Tramos;
    if (tramos > 0 && bandas > TRAMOS_MAXIMOS / tramos) throw MetaficheroAgotado{};
    CombineRgn(destino, a, b, modo);
}

bool EsMetafichero(Bytes fichero) {
    return EsEmf(fichero) || EsWmf(fichero);
}

Lectura MideMetafichero(Bytes fichero, i32& ancho, i32& alto) {
    if (fichero.size() > METAFICHERO_BYTES) return Lectura::Desmedida;
    return EsEmf(fichero) ? MideEmf(fichero, ancho, alto) : MideWmf(fichero, ancho, alto);
}

Lectura PintaMetafichero(Bytes fichero, PintorMetafichero& pintor, long long esfuerzo) {
    if (fichero.size() > METAFICHERO_BYTES) return Lectura::Desmedida;
    Esfuerzo queda(esfuerzo);
    try {
        return EsEmf(fichero) ? PintaEmf(fichero, pintor, queda) : PintaWmf(fichero, pintor, queda);
    } catch (const MetaficheroAgotado&) {
        return Lectura::Imposible;
    }
}

}  // namespace tessario
