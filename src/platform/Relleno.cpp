// The flood fill.
#include "platform/Superficie.h"

namespace tessario {

namespace {

// A stretch of one row: columns [Izq, Der).
struct Tramo {
    i32 y, Izq, Der;
};

class Relleno {
public:
    Relleno(Superficie& s, Pixel borde) : s_(s), borde_(borde) {}

    // Everything that can be reached from the point gets the border's colour, which at once marks
    // it as done; then the stretches found get the fill's.
    Rect Pinta(i32 x, i32 y, Pixel relleno) {
        pendientes_.push_back({y, x, x + 1});
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
    // Looks along a stretch that is beside one already painted, and paints all that it touches.
    void Recorre(const Tramo& t) {
        Pixel* fila = s_.Fila(t.y);
        i32 x = t.Izq;
        while (x < t.Der) {
            const Tramo cabe = Permitido(x, t.y);
            const i32 fin = std::min(cabe.Der, t.Der);
            while (x < fin && fila[x] == borde_) ++x;
            if (x >= fin) {
                x = std::max(x, fin) + (cabe.Izq == cabe.Der);
                continue;
            }
            i32 izq = x, der = x + 1;
            while (izq > cabe.Izq && fila[izq - 1] != borde_) --izq;
            while (der < cabe.Der && fila[der] != borde_) ++der;
            std::fill(fila + izq, fila + der, borde_);
            hechos_.push_back({t.y, izq, der});
            if (t.y > 0) pendientes_.push_back({t.y - 1, izq, der});
            if (t.y + 1 < s_.Height()) pendientes_.push_back({t.y + 1, izq, der});
            x = der;
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
