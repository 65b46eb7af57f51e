// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of surfaces and regions share: repeatable random cases, and a drawing compared
// with a slow picture of what it should be.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "platform/Superficie.h"

namespace tessario {

// Numbers of one case; the same case number gives the same numbers.
class Azar {
public:
    explicit Azar(u32 caso) : motor_(caso) {}
    i32 Entre(i32 menor, i32 mayor) {
        return std::uniform_int_distribution<i32>(menor, mayor)(motor_);
    }
    double Real(double menor, double mayor) {
        return std::uniform_real_distribution<double>(menor, mayor)(motor_);
    }
    bool Moneda() { return Entre(0, 1) != 0; }

private:
    std::mt19937 motor_;
};

// Runs the cases one by one and names the one that fails.
inline void PorCasos(u32 cuantos, const std::function<void(Azar&)>& prueba) {
    for (u32 caso = 1; caso <= cuantos; ++caso) {
        SCOPED_TRACE("case " + std::to_string(caso));
        Azar azar(caso);
        prueba(azar);
        if (testing::Test::HasFailure()) return;
    }
}

// A surface of which every pixel is another, so that any change shows.
inline void Marca(Superficie& s, u32 semilla = 1) {
    for (i32 y = 0; y < s.Height(); ++y)
        for (i32 x = 0; x < s.Width(); ++x)
            s.Fila(y)[x] = (semilla * 0x9E3779U + static_cast<u32>(y) * 7919U +
                            static_cast<u32>(x) * 104729U) &
                           0xFFFFFFU;
    s.TomaSucio();
    s.TomaTocado();
}

inline Region RegionAlAzar(Azar& azar, i32 lado, i32 rectangulos) {
    Region r;
    for (i32 i = 0; i < rectangulos; ++i) {
        const i32 x = azar.Entre(-4, lado), y = azar.Entre(-4, lado);
        CombineRgn(r, r,
                   CreateRectRgn(x, y, x + azar.Entre(0, lado / 2), y + azar.Entre(0, lado / 2)),
                   azar.Entre(0, 3) ? RGN_OR : RGN_DIFF);
    }
    return r;
}

// Takes the surface as it is, lets the drawing run, and compares: a pixel has become
// nuevo(x, y, old pixel) where toca(x, y) holds inside the clip, and is as before elsewhere; the
// rectangle reported as changed is just the one around those pixels.
inline void ComparaDibujo(Superficie& s, const std::function<void()>& dibuja,
                          const std::function<bool(i32, i32)>& toca,
                          const std::function<Pixel(i32, i32, Pixel)>& nuevo) {
    const Mapa antes = s.Dibujo();
    s.TomaSucio();
    s.TomaTocado();
    dibuja();
    Rect caja;
    int distintos = 0;
    for (i32 y = 0; y < s.Height(); ++y)
        for (i32 x = 0; x < s.Width(); ++x) {
            Pixel esperado = antes.Fila(y)[x];
            if (toca(x, y) && (!s.Recorte() || s.Recorte()->Contiene(x, y))) {
                esperado = nuevo(x, y, esperado);
                caja = Union(caja, RectDe(x, y, 1, 1));
            }
            if (s.Fila(y)[x] != esperado && ++distintos <= 3)
                ADD_FAILURE() << "pixel (" << x << ", " << y << ") is " << std::hex << s.Fila(y)[x]
                              << ", should be " << esperado;
        }
    EXPECT_EQ(distintos, 0);
    EXPECT_EQ(s.TomaSucio(), caja);
    EXPECT_EQ(s.TomaTocado(), caja);
}

inline void PrintTo(const Rect& r, std::ostream* salida) {
    *salida << "(" << r.Izq << ", " << r.Arr << ")-(" << r.Der << ", " << r.Aba << ")";
}

}  // namespace tessario
