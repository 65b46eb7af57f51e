// SPDX-License-Identifier: GPL-3.0-or-later
// What the two targets for metafiles share: a file is read whole and painted by our own painter,
// with boxes for letters, and no more effort than keeps a run short.
#pragma once

#include <cstdlib>

#include "platform/Metafichero.h"
#include "platform/PintorRaster.h"

namespace tessario {

class LetrasCajas : public LetrasMeta {
public:
    Medidas Mide(const FuenteMeta&) override { return {}; }
    const Letra& De(const FuenteMeta&, double cuerpo, char16_t, bool) override {
        letra_.Avance = cuerpo / 2;
        letra_.Figura = {{{{0, -cuerpo}, {cuerpo / 2, -cuerpo}, {cuerpo / 2, 0}, {0, 0}}, true}};
        return letra_;
    }

private:
    Letra letra_;
};

inline int PruebaMetafichero(const u8* bytes, std::size_t n) {
    constexpr long long ESFUERZO = 50'000'000;
    constexpr long long PIXELES = 1 << 20;
    const Bytes fichero(bytes, n);
    i32 ancho = 0, alto = 0;
    if (MideMetafichero(fichero, ancho, alto) != Lectura::Bien) return 0;
    if (static_cast<long long>(ancho) * alto > PIXELES) return 0;
    LetrasCajas letras;
    PintorRaster pintor(letras);
    PintaMetafichero(fichero, pintor, ESFUERZO);
    const Mapa& m = pintor.Dibujo();
    if (m.Ancho != ancho || m.Alto != alto) std::abort();
    for (const Pixel p : m.Pixeles)
        if (p >> 24) std::abort();
    return 0;
}

}  // namespace tessario
