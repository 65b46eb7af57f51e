// SPDX-License-Identifier: GPL-3.0-or-later
// How a pen's pixels reach a surface: clipped to it and to its clip region, in the drawing mode,
// with the touched rectangle reported once at the end. Only for the drawing routines of the
// surface.
#pragma once

#include <optional>
#include <vector>

#include "platform/Superficie.h"

namespace tessario {

// A coordinate as a pixel: nearest, halves to even; none when it is no number. Kept within 2^29 of
// the origin, so that differences and products of pixels fit their types.
inline constexpr i32 LIMITE_PIXEL = 1 << 29;
std::optional<i32> PixelCercano(double v);

class Trazo {
public:
    Trazo(Superficie& s, Color color);
    ~Trazo() { s_.MarcaAlrededor(tocado_); }
    Trazo(const Trazo&) = delete;
    Trazo& operator=(const Trazo&) = delete;

    void PonColor(Color color) { pixel_ = PixelDe(color); }
    // Where pixels can appear at all: the surface and the box of its clip.
    const Rect& Zona() const { return zona_; }
    bool Invierte() const { return invierte_; }
    void Caja(const Rect& r);
    void Punto(i32 x, i32 y) { Caja({x, y, x + 1, y + 1}); }

private:
    void PintaDentro(const Rect& r);

    Superficie& s_;
    Pixel pixel_;
    bool invierte_;
    Rect zona_, tocado_;
};

// The pixels that a pen of some width covers, as one span for each of its rows, relative to its
// point: row -n / 2 first.
class Punta {
public:
    explicit Punta(i16 ancho);
    i32 Ancho() const { return static_cast<i32>(tramos_.size()); }
    bool Fina() const { return Ancho() == 1; }
    // Rows and columns by which it reaches beyond its point.
    i32 Antes() const { return Ancho() / 2; }
    i32 Despues() const { return (Ancho() - 1) / 2; }
    // The area from which it reaches into r.
    Rect Alcance(const Rect& r) const;

    struct Tramo {
        i32 Izq, Der;
    };
    const Tramo& Fila(i32 dy) const { return tramos_[static_cast<std::size_t>(dy + Antes())]; }

private:
    std::vector<Tramo> tramos_;
};

// Paints the points with the pen, each pixel once however many of the points cover it. The points
// come in any order and may repeat.
void PintaPuntos(Trazo& trazo, const Punta& punta, std::vector<Punto>& puntos);

}  // namespace tessario
