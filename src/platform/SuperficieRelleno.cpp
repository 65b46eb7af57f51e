// SPDX-License-Identifier: GPL-3.0-or-later
// The flood fill.
#include "platform/Superficie.h"

namespace tessario {

namespace {

// A stretch of one row: columns [Izq, Der). A pending one lies beside a stretch of the same columns
// already painted, one row further in the direction Sentido.
struct Tramo {
    i32 y, Izq, Der;
    i32 Sentido = 0;
};

class Relleno {
public:
    Relleno(Superficie& s, Pixel borde) : s_(s), borde_(borde) {}

    // Everything that can be reached from the point gets the border's colour, which at once marks
    // it as done; then the stretches found get the fill's.
    Rect Pinta(i32 x, i32 y, Pixel relleno) {
        const Tramo primero = Toma(x, Permitido(x, y));
        Deja(primero, 1);
        Deja(primero, -1);
        while (!pendientes_.empty()) {
            const Tramo t = pendientes_.back();
            pendientes_.pop_back();
            Recorre(t);
        }
        Rect caja;
        for (const Tramo& t : hechos_) {
            Pixel* fila = s_.Fila(t.y);
            if (relleno != borde_) std::fill(fila + t.Izq, fila + t.Der, relleno);
            caja = Union(caja, {t.Izq, t.y, t.Der, t.y + 1});
        }
        return caja;
    }

    // The columns around x that may be painted in the row as far as size and clip go; empty if x
    // may not.
    Tramo Permitido(i32 x, i32 y) const {
        if (!s_.Limites().Contiene(x, y)) return {y, x, x};
        if (!s_.Recorte()) return {y, 0, s_.Width()};
        for (const Rect& r : s_.Recorte()->Banda(y))
            if (x >= r.Izq && x < r.Der)
                return {y, std::max(r.Izq, 0), std::min(r.Der, s_.Width())};
        return {y, x, x};
    }

private:
    // Marks all that can be painted in the row without a break around x, which can.
    Tramo Toma(i32 x, const Tramo& cabe) {
        Pixel* fila = s_.Fila(cabe.y);
        i32 izq = x, der = x + 1;
        while (izq > cabe.Izq && fila[izq - 1] != borde_) --izq;
        while (der < cabe.Der && fila[der] != borde_) ++der;
        std::fill(fila + izq, fila + der, borde_);
        hechos_.push_back({cabe.y, izq, der});
        return hechos_.back();
    }

    // The row beside a stretch is to be looked at.
    void Deja(const Tramo& t, i32 sentido) {
        const i32 y = t.y + sentido;
        if (t.Izq < t.Der && y >= 0 && y < s_.Height())
            pendientes_.push_back({y, t.Izq, t.Der, sentido});
    }

    // Looks along a pending stretch and paints all that it touches. Going back is needed only
    // where what was found is wider than the stretch from which it was reached.
    void Recorre(const Tramo& t) {
        const Pixel* fila = s_.Fila(t.y);
        i32 x = t.Izq;
        while (x < t.Der) {
            const Tramo cabe = Permitido(x, t.y);
            const i32 fin = std::min(cabe.Der, t.Der);
            while (x < fin && fila[x] == borde_) ++x;
            if (x >= fin) {
                x += cabe.Izq == cabe.Der;  // outside the clip
                continue;
            }
            const Tramo hallado = Toma(x, cabe);
            Deja(hallado, t.Sentido);
            Deja({t.y, hallado.Izq, t.Izq}, -t.Sentido);
            Deja({t.y, t.Der, hallado.Der}, -t.Sentido);
            x = hallado.Der;
        }
    }

    Superficie& s_;
    Pixel borde_;
    std::vector<Tramo> pendientes_, hechos_;
};

}  // namespace

void ExtFloodFill(Superficie& s, i32 x, i32 y, Color borde, int tipo) {
    if (tipo != 0) return;
    Relleno relleno(s, PixelDe(borde));
    const Tramo inicio = relleno.Permitido(x, y);
    if (inicio.Izq == inicio.Der || s.Fila(y)[x] == PixelDe(borde)) return;
    s.Marca(relleno.Pinta(x, y, PixelDe(s.FillColor)));
}

}  // namespace tessario
