// SPDX-License-Identifier: GPL-3.0-or-later
// Rounding and narrowing by the game's rules, and the checked array addressed from its lower bound.
#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

#include "core/Fallos.h"
#include "platform/Tipos.h"

namespace tessario {

// Degrees to radians. Not pi / 180: the drawn arcs follow this factor.
inline constexpr double GRADO = 0.017453294444444444;

// Nearest integer, halves to even, as an i16; error 6 when it does not fit, error 6 for no number.
i16 Entero(double x);
// The same as an i32.
i32 EnteroLargo(double x);
// An integer kept to 16 bits; error 6 when it does not fit.
i16 Corto(i32 x);
// The floor.
inline double Int(double x) {
    return std::floor(x);
}
// -1, 0 or 1.
template <class T>
constexpr i16 Sgn(T x) {
    return static_cast<i16>((x > T{0}) - (x < T{0}));
}

// An array from index 0 up to an upper bound, both included; every access is checked and an index
// outside raises error 9. -1 as upper bound is an empty array.
template <class T>
class Arreglo {
public:
    Arreglo() = default;
    explicit Arreglo(i32 superior) { Redimensiona(superior); }

    // New elements, all cleared.
    void Redimensiona(i32 superior) { v_.assign(Cuenta(superior), T{}); }
    // Keeps what is there.
    void Amplia(i32 superior) { v_.resize(Cuenta(superior)); }
    i32 Superior() const { return static_cast<i32>(v_.size()) - 1; }

    T& operator[](i32 i) { return v_[Comprueba(i)]; }
    const T& operator[](i32 i) const { return v_[Comprueba(i)]; }

    auto begin() { return v_.begin(); }
    auto end() { return v_.end(); }
    auto begin() const { return v_.begin(); }
    auto end() const { return v_.end(); }

private:
    static std::size_t Cuenta(i32 superior) {
        if (superior < -1) throw ErrorEjecucion(ERROR_INDICE);
        return static_cast<std::size_t>(superior + 1);
    }
    std::size_t Comprueba(i32 i) const {
        if (i < 0 || static_cast<std::size_t>(i) >= v_.size()) throw ErrorEjecucion(ERROR_INDICE);
        return static_cast<std::size_t>(i);
    }
    std::vector<T> v_;
};

// The same with bounds fixed at compile time: Tabla<i16, 1, 7> goes from 1 to 7.
template <class T, i32 Inferior, i32 Superior_>
class Tabla {
public:
    T& operator[](i32 i) { return v_[Comprueba(i)]; }
    const T& operator[](i32 i) const { return v_[Comprueba(i)]; }
    static constexpr i32 Primero() { return Inferior; }
    static constexpr i32 Ultimo() { return Superior_; }
    auto begin() { return v_.begin(); }
    auto end() { return v_.end(); }
    auto begin() const { return v_.begin(); }
    auto end() const { return v_.end(); }

private:
    static std::size_t Comprueba(i32 i) {
        if (i < Inferior || i > Superior_) throw ErrorEjecucion(ERROR_INDICE);
        return static_cast<std::size_t>(i - Inferior);
    }
    std::vector<T> v_ = std::vector<T>(static_cast<std::size_t>(Superior_ - Inferior + 1));
};

}  // namespace tessario
