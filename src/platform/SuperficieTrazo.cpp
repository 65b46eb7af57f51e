// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SuperficieTrazo.h"

#include <cmath>

namespace tessario {

namespace {

// How often each pixel of a rectangle is covered, kept as changes along each row: a span costs two
// steps, however long it is.
class Huella {
public:
    explicit Huella(const Rect& caja)
        : caja_(caja),
          paso_(static_cast<std::size_t>(caja.Ancho()) + 1),
          cambios_(paso_ * static_cast<std::size_t>(caja.Alto())) {}

    void Tramo(i32 y, i32 izq, i32 der) {
        izq = std::max(izq, caja_.Izq);
        der = std::min(der, caja_.Der);
        if (izq >= der) return;
        ++Cambio(izq, y);
        --Cambio(der, y);
    }

    void Estampa(const Punta& punta, const Punto& p) {
        const i32 desde = std::max(p.y - punta.Antes(), caja_.Arr);
        const i32 hasta = std::min(p.y + punta.Despues() + 1, caja_.Aba);
        for (i32 y = desde; y < hasta; ++y) {
            const auto& t = punta.Fila(y - p.y);
            Tramo(y, p.x + t.Izq, p.x + t.Der);
        }
    }

    void Pinta(Trazo& trazo) {
        for (i32 y = caja_.Arr; y < caja_.Aba; ++y) {
            i32 veces = 0;
            i32 inicio = caja_.Izq;
            for (i32 x = caja_.Izq; x <= caja_.Der; ++x) {
                const i32 antes = veces;
                veces += Cambio(x, y);
                if (antes == 0) inicio = x;
                if (antes > 0 && veces == 0) trazo.Caja({inicio, y, x, y + 1});
            }
        }
    }

private:
    i32& Cambio(i32 x, i32 y) {
        return cambios_[static_cast<std::size_t>(y - caja_.Arr) * paso_ +
                        static_cast<std::size_t>(x - caja_.Izq)];
    }

    Rect caja_;
    std::size_t paso_;
    std::vector<i32> cambios_;
};

void PintaFinos(Trazo& trazo, std::vector<Punto>& puntos) {
    if (!trazo.Invierte()) {
        for (const Punto& p : puntos) trazo.Punto(p.x, p.y);
        return;
    }
    const auto orden = [](const Punto& a, const Punto& b) {
        return a.y != b.y ? a.y < b.y : a.x < b.x;
    };
    std::sort(puntos.begin(), puntos.end(), orden);
    puntos.erase(std::unique(puntos.begin(), puntos.end()), puntos.end());
    for (const Punto& p : puntos) trazo.Punto(p.x, p.y);
}

}  // namespace

std::optional<i32> PixelCercano(double v) {
    if (std::isnan(v)) return std::nullopt;
    constexpr double limite = LIMITE_PIXEL;
    return static_cast<i32>(std::nearbyint(std::clamp(v, -limite, limite)));
}

Trazo::Trazo(Superficie& s, Color color)
    : s_(s),
      pixel_(PixelDe(color)),
      invierte_(s.DrawMode == MODO_INVIERTE),
      zona_(s.Recorte() ? Interseccion(s.Limites(), s.Recorte()->Caja()) : s.Limites()) {}

void Trazo::Caja(const Rect& r) {
    const Rect dentro = Interseccion(r, zona_);
    if (dentro.Vacio()) return;
    if (!s_.Recorte()) {
        PintaDentro(dentro);
        return;
    }
    for (const Rect& parte : s_.Recorte()->Desde(dentro.Arr)) {
        if (parte.Arr >= dentro.Aba) break;
        const Rect visible = Interseccion(dentro, parte);
        if (!visible.Vacio()) PintaDentro(visible);
    }
}

void Trazo::PintaDentro(const Rect& r) {
    for (i32 y = r.Arr; y < r.Aba; ++y) {
        Pixel* p = s_.Fila(y) + r.Izq;
        Pixel* const fin = p + r.Ancho();
        if (!invierte_)
            std::fill(p, fin, pixel_);
        else
            for (; p != fin; ++p) *p ^= 0xFFFFFFU;
    }
    s_.PisaFinos(r);
    tocado_ = Union(tocado_, r);
}

Punta::Punta(i16 ancho) {
    const i32 n = std::clamp(ancho, i16{1}, ANCHO_PLUMA_MAX);
    const double radio = n / 2.0;
    tramos_.reserve(static_cast<std::size_t>(n));
    for (i32 fila = 0; fila < n; ++fila) {
        // Pixels of which the centre lies in the disc of the pen's width.
        const double dy = fila + 0.5 - radio;
        const double mitad = std::sqrt(radio * radio - dy * dy);
        const auto izq = static_cast<i32>(std::ceil(radio - 0.5 - mitad));
        tramos_.push_back({izq - n / 2, n - izq - n / 2});
    }
}

Rect Punta::Alcance(const Rect& r) const {
    return {r.Izq - Despues(), r.Arr - Despues(), r.Der + Antes(), r.Aba + Antes()};
}

void PintaPuntos(Trazo& trazo, const Punta& punta, std::vector<Punto>& puntos) {
    if (puntos.empty()) return;
    if (punta.Fina()) {
        PintaFinos(trazo, puntos);
        return;
    }
    Rect caja;
    for (const Punto& p : puntos)
        caja = Union(caja, {p.x - punta.Antes(), p.y - punta.Antes(), p.x + punta.Despues() + 1,
                            p.y + punta.Despues() + 1});
    caja = Interseccion(caja, trazo.Zona());
    if (caja.Vacio()) return;
    Huella huella(caja);
    for (const Punto& p : puntos) huella.Estampa(punta, p);
    huella.Pinta(trazo);
}

}  // namespace tessario
