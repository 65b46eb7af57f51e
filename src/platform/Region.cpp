// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Region.h"

#include <cstdint>
#include <limits>

#include "platform/RegionBandas.h"

namespace tessario {

namespace {

using Lista = std::vector<Rect>;
using i64 = std::int64_t;

constexpr i32 MENOR = std::numeric_limits<i32>::min();
constexpr i32 MAYOR = std::numeric_limits<i32>::max();

// A region read band by band.
class Lector {
public:
    explicit Lector(const Lista& lista) : p_(lista.data()), fin_(p_ + lista.size()) { BuscaFin(); }
    bool Acabado() const { return p_ == fin_; }
    i32 Arr() const { return p_->Arr; }
    // The band's rectangles, if it holds the row.
    std::span<const Rect> EnFila(i32 y) const {
        if (Acabado() || p_->Arr > y) return {};
        return {p_, finBanda_};
    }
    // The first row after y at which something begins or ends.
    i32 Proxima(i32 y) const {
        if (Acabado()) return MAYOR;
        return p_->Arr > y ? p_->Arr : p_->Aba;
    }
    void Avanza(i32 y) {
        if (Acabado() || p_->Aba > y) return;
        p_ = finBanda_;
        BuscaFin();
    }

private:
    void BuscaFin() {
        finBanda_ = p_;
        while (finBanda_ != fin_ && finBanda_->Arr == p_->Arr) ++finBanda_;
    }
    const Rect* p_;
    const Rect* fin_;
    const Rect* finBanda_ = nullptr;
};

using Banda = std::span<const Rect>;

// What a mode makes of two bands of the same rows, and which of the two must be there at all for
// anything to come out.
struct ModoY {
    static constexpr bool QuiereA = true, QuiereB = true;
    static void Combina(Banda a, Banda b, BandasRegion& salida) {
        auto p = a.begin(), q = b.begin();
        while (p != a.end() && q != b.end()) {
            const i32 izq = std::max(p->Izq, q->Izq), der = std::min(p->Der, q->Der);
            if (izq < der) salida.Aparte(izq, der);
            if (p->Der < q->Der)
                ++p;
            else
                ++q;
        }
    }
};

struct ModoO {
    static constexpr bool QuiereA = false, QuiereB = false;
    static void Combina(Banda a, Banda b, BandasRegion& salida) {
        auto p = a.begin(), q = b.begin();
        const auto primero = [&]() -> const Rect& {
            const bool deA = q == b.end() || (p != a.end() && p->Izq <= q->Izq);
            return deA ? *p++ : *q++;
        };
        i32 izq = 0, der = 0;
        bool abierto = false;
        while (p != a.end() || q != b.end()) {
            const Rect& r = primero();
            if (abierto && r.Izq <= der) {
                der = std::max(der, r.Der);
                continue;
            }
            if (abierto) salida.Aparte(izq, der);
            izq = r.Izq;
            der = r.Der;
            abierto = true;
        }
        if (abierto) salida.Aparte(izq, der);
    }
};

struct ModoResta {
    static constexpr bool QuiereA = true, QuiereB = false;
    static void Combina(Banda a, Banda b, BandasRegion& salida) {
        auto q = b.begin();
        for (const Rect& r : a) {
            i32 izq = r.Izq;
            while (q != b.end() && q->Izq < r.Der) {
                if (izq < q->Izq) salida.Aparte(izq, q->Izq);
                izq = std::max(izq, q->Der);
                if (q->Der > r.Der) break;  // it may reach into the next one
                ++q;
            }
            if (izq < r.Der) salida.Aparte(izq, r.Der);
        }
    }
};

struct ModoXor {
    static constexpr bool QuiereA = false, QuiereB = false;
    // The ends of the spans of both, from left to right: between each two the side changes.
    static void Combina(Banda a, Banda b, BandasRegion& salida) {
        std::size_t i = 0, j = 0;
        const auto fin = [](Banda banda, std::size_t k) {
            const Rect& r = banda[k / 2];
            return k % 2 ? r.Der : r.Izq;
        };
        bool dentro = false;
        i32 inicio = 0;
        while (i < 2 * a.size() || j < 2 * b.size()) {
            const bool deA = j == 2 * b.size() || (i < 2 * a.size() && fin(a, i) <= fin(b, j));
            const i32 x = deA ? fin(a, i++) : fin(b, j++);
            if (dentro) salida.Tramo(inicio, x);
            inicio = x;
            dentro = !dentro;
        }
    }
};

template <class Modo>
void CombinaListas(Lista& destino, const Lista& a, const Lista& b) {
    BandasRegion salida(destino);
    Lector la(a), lb(b);
    i32 y = MENOR;
    while (!(la.Acabado() && lb.Acabado())) {
        if ((Modo::QuiereA && la.Acabado()) || (Modo::QuiereB && lb.Acabado())) break;
        const Banda fa = la.EnFila(y), fb = lb.EnFila(y);
        const i32 siguiente = std::min(la.Proxima(y), lb.Proxima(y));
        if ((!Modo::QuiereA || !fa.empty()) && (!Modo::QuiereB || !fb.empty())) {
            salida.Abre(y, siguiente);
            Modo::Combina(fa, fb, salida);
            salida.Cierra();
        }
        y = siguiente;
        la.Avanza(y);
        lb.Avanza(y);
    }
}

using Combinador = void (*)(Lista&, const Lista&, const Lista&);

Combinador CombinadorDe(int modo) {
    switch (modo) {
        case RGN_AND:
            return CombinaListas<ModoY>;
        case RGN_OR:
            return CombinaListas<ModoO>;
        case RGN_XOR:
            return CombinaListas<ModoXor>;
        case RGN_DIFF:
            return CombinaListas<ModoResta>;
        default:
            return nullptr;
    }
}

bool MismaBanda(const Rect& a, const Rect& b) {
    return a.Arr == b.Arr && a.Aba == b.Aba;
}

bool MismasColumnas(std::span<const Rect> a, std::span<const Rect> b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Rect& p, const Rect& q) {
        return p.Izq == q.Izq && p.Der == q.Der;
    });
}

i32 Recorta(i64 v) {
    return static_cast<i32>(std::clamp<i64>(v, MENOR, MAYOR));
}

}  // namespace

Region::Region(const Rect& r) {
    if (!r.Vacio()) rects_.push_back(r);
}

int Region::Codigo() const {
    if (rects_.empty()) return REGION_VACIA;
    return rects_.size() == 1 ? REGION_SIMPLE : REGION_COMPLEJA;
}

Rect Region::Caja() const {
    if (rects_.empty()) return {};
    Rect caja = rects_.front();
    caja.Aba = rects_.back().Aba;
    for (const Rect& r : rects_) {
        caja.Izq = std::min(caja.Izq, r.Izq);
        caja.Der = std::max(caja.Der, r.Der);
    }
    return caja;
}

std::span<const Rect> Region::Desde(i32 y) const {
    const auto primero = std::partition_point(rects_.begin(), rects_.end(),
                                              [y](const Rect& r) { return r.Aba <= y; });
    return {primero, rects_.end()};
}

std::span<const Rect> Region::Banda(i32 y) const {
    const auto resto = Desde(y);
    const auto fin =
        std::partition_point(resto.begin(), resto.end(), [y](const Rect& r) { return r.Arr <= y; });
    return {resto.begin(), fin};
}

bool Region::Contiene(i32 x, i32 y) const {
    const auto banda = Banda(y);
    const auto r = std::upper_bound(banda.begin(), banda.end(), x,
                                    [](i32 v, const Rect& q) { return v < q.Der; });
    return r != banda.end() && r->Izq <= x;
}

i32 Region::Area() const {
    i64 suma = 0;
    for (const Rect& r : rects_) {
        const i64 ancho = static_cast<i64>(r.Der) - r.Izq;
        const i64 alto = static_cast<i64>(r.Aba) - r.Arr;
        if (alto > MAYOR / ancho) return MAYOR;
        suma += ancho * alto;
        if (suma > MAYOR) return MAYOR;
    }
    return static_cast<i32>(suma);
}

void Region::Desplaza(i32 dx, i32 dy) {
    const Rect caja = Caja();
    // What stays within range after the shift.
    const Rect cabe{Recorta(static_cast<i64>(MENOR) - dx), Recorta(static_cast<i64>(MENOR) - dy),
                    Recorta(static_cast<i64>(MAYOR) - dx), Recorta(static_cast<i64>(MAYOR) - dy)};
    if (Interseccion(caja, cabe) != caja) CombineRgn(*this, *this, Region(cabe), RGN_AND);
    for (Rect& r : rects_) r = {r.Izq + dx, r.Arr + dy, r.Der + dx, r.Aba + dy};
}

bool Region::Valida() const {
    std::span<const Rect> previa;
    auto p = rects_.begin();
    while (p != rects_.end()) {
        const auto fin =
            std::find_if(p, rects_.end(), [&](const Rect& r) { return !MismaBanda(r, *p); });
        for (auto r = p; r != fin; ++r) {
            if (r->Vacio()) return false;
            if (r != p && (r - 1)->Der >= r->Izq) return false;
        }
        const std::span<const Rect> banda(p, fin);
        if (!previa.empty()) {
            if (previa.front().Aba > p->Arr) return false;
            if (previa.front().Aba == p->Arr && MismasColumnas(previa, banda)) return false;
        }
        previa = banda;
        p = fin;
    }
    return true;
}

Region CreateRectRgn(i32 izq, i32 arr, i32 der, i32 aba) {
    return Region(
        Rect{std::min(izq, der), std::min(arr, aba), std::max(izq, der), std::max(arr, aba)});
}

void SetRectRgn(Region& r, i32 izq, i32 arr, i32 der, i32 aba) {
    r = CreateRectRgn(izq, arr, der, aba);
}

int CombineRgn(Region& destino, const Region& a, const Region& b, int modo) {
    if (modo == RGN_COPY) {
        destino = a;
        return destino.Codigo();
    }
    if (modo == RGN_AND && a.rects_.size() == 1 && b.rects_.size() == 1) {
        const Rect comun = Interseccion(a.rects_.front(), b.rects_.front());
        destino.rects_.resize(comun.Vacio() ? 0 : 1, comun);
        if (!comun.Vacio()) destino.rects_.front() = comun;
        return destino.Codigo();
    }
    const Combinador combina = CombinadorDe(modo);
    if (!combina) {
        destino = Region();
    } else if (&destino == &a || &destino == &b) {
        Lista lista;
        combina(lista, a.rects_, b.rects_);
        destino.rects_ = std::move(lista);
    } else {
        combina(destino.rects_, a.rects_, b.rects_);
    }
    return destino.Codigo();
}

bool SeCortan(const Region& a, const Region& b) {
    Lector la(a.Rectangulos()), lb(b.Rectangulos());
    while (!la.Acabado() && !lb.Acabado()) {
        const i32 y = std::max(la.Arr(), lb.Arr());
        for (const Rect& r : la.EnFila(y))
            for (const Rect& q : lb.EnFila(y))
                if (!Interseccion(r, q).Vacio()) return true;
        const i32 siguiente = std::min(la.Proxima(y), lb.Proxima(y));
        la.Avanza(siguiente);
        lb.Avanza(siguiente);
    }
    return false;
}

}  // namespace tessario
