// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/PuzzBas.h"

#include <bit>

#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "rules/Juego.h"

namespace tessario {

bool GiroCorrecto(i16 piece) {
    return JuegoEnCurso().GiroCorrecto(piece);
}

bool PiezaEnSuSitio(i16 piece) {
    const Pieza& p = Gbl.Piezas[piece];
    return GiroCorrecto(piece) && p.X == p.XBien && p.Y == p.YBien;
}

i16 CuentaColocadas() {
    i16 colocadas = 0;
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i)
        if (PiezaEnSuSitio(static_cast<i16>(i))) ++colocadas;
    return colocadas;
}

bool CreandoFiguras() {
    return JuegoEnCurso().TieneModos && Gbl.ModoJuego == MODO_CREAR;
}

bool ResolviendoModelo() {
    return JuegoEnCurso().TieneModos && Gbl.ModoJuego == MODO_RESOLVER;
}

void AnotaDificultad(double (*valor)()) {
    constexpr float MINIMA = 0.1F, MAXIMA = 99.9F;
    double d = 0;
    Sigue([&] { d = valor(); });
    if (d <= 0)
        Gbl.Dificultad = MINIMA;
    else if (d >= 100)
        Gbl.Dificultad = MAXIMA;
    else
        Gbl.Dificultad = static_cast<float>(d);
}

// xoshiro128**: four words of state, full period, more than even enough for dealing pieces.
double Rnd() {
    u32* s = Gbl.Azar;
    const u32 sorteo = std::rotl(s[1] * 5U, 7) * 9U;
    const u32 t = s[1] << 9;
    s[2] ^= s[0];
    s[3] ^= s[1];
    s[1] ^= s[2];
    s[0] ^= s[3];
    s[2] ^= t;
    s[3] = std::rotl(s[3], 11);
    return static_cast<double>(sorteo) / 4294967296.0;
}

void Randomize(double semilla) {
    // The seed's bits are spread by a mixing step so that close times of day give unlike states.
    std::uint64_t z = std::bit_cast<std::uint64_t>(semilla);
    for (u32& palabra : Gbl.Azar) {
        z += 0x9E3779B97F4A7C15ULL;
        std::uint64_t m = z;
        m = (m ^ (m >> 30)) * 0xBF58476D1CE4E5B9ULL;
        m = (m ^ (m >> 27)) * 0x94D049BB133111EBULL;
        palabra = static_cast<u32>(m ^ (m >> 31));
    }
    Gbl.Azar[0] |= 1U;  // a state of all zeros would give zeros for ever
}

}  // namespace tessario
