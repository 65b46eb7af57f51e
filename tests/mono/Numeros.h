// SPDX-License-Identifier: GPL-3.0-or-later
// Where the monkey's decisions come from: a seed, or the bytes of a fuzzer.
#pragma once

#include <cstddef>
#include <random>

#include "platform/Tipos.h"

namespace tessario {

class Numeros {
public:
    virtual ~Numeros() = default;
    virtual i32 Hasta(i32 n) = 0;  // 0 to n - 1; n at least 1
    virtual bool Quedan() const { return true; }
};

class NumerosAlAzar : public Numeros {
public:
    explicit NumerosAlAzar(unsigned semilla) : azar_(semilla) {}
    i32 Hasta(i32 n) override { return static_cast<i32>(azar_() % static_cast<unsigned>(n)); }

private:
    std::mt19937 azar_;
};

// One byte for each decision of up to 256 ways, else two. When the bytes are used up, a fixed seed
// goes on, so that what is under way comes to its end.
class NumerosDeBytes : public Numeros {
public:
    NumerosDeBytes(const u8* bytes, std::size_t n) : bytes_(bytes), fin_(bytes + n) {}
    i32 Hasta(i32 n) override {
        constexpr i32 VALORES_BYTE = 256;
        if (!Quedan()) return resto_.Hasta(n);
        const i32 valor = *bytes_++;
        if (n <= VALORES_BYTE) return valor % n;
        return (valor * VALORES_BYTE + Hasta(VALORES_BYTE)) % n;
    }
    bool Quedan() const override { return bytes_ != fin_; }

private:
    const u8* bytes_;
    const u8* fin_;
    NumerosAlAzar resto_{1};
};

}  // namespace tessario
