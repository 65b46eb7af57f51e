#include "rules/PuzzBas.h"

#include <bit>

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Cronometro.h"
#include "pieces/Composicion.h"
#include "platform/Plataforma.h"

namespace tessario {

namespace {

constexpr i16 PIEZA_CUADRADO = 6, PIEZA_PARALELOGRAMO = 7;

// After how many eighths of a turn a Tangram piece looks the same again.
i16 PeriodoTangram(i16 piece) {
    if (piece == PIEZA_CUADRADO) return 2;
    if (piece == PIEZA_PARALELOGRAMO) return 4;
    return 8;
}

bool GiroCorrectoTangram(i16 piece, const Pieza& p) {
    if (piece < PIEZA_CUADRADO) return p.Giro == p.GiroBien;
    const i16 periodo = PeriodoTangram(piece);
    if ((p.Giro - p.GiroBien) % periodo != 0) return false;
    return piece != PIEZA_PARALELOGRAMO || p.Volteo == p.VolteoBien;
}

void DibujaPiezaEnMesa(i32 indice, i16 Modo) {
    const i16 piece = Gbl.OrdenPiezas[indice];
    PonPieza(piece);
    if (Modo != 0) return;
    Pic_Trabajo_Paint();
    Sistema().Presenta();
}

}  // namespace

bool GiroCorrecto(i16 piece) {
    const Pieza& p = Gbl.Piezas[piece];
    switch (Gbl.JuegoActual) {
        case JuegoDeslizantes:
            return true;
        case JuegoTangram:
            return GiroCorrectoTangram(piece, p);
        default:
            return p.Giro == p.GiroBien;
    }
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
    return Gbl.JuegoActual == JuegoTangram && Gbl.ModoJuego == MODO_CREAR;
}

bool ResolviendoModelo() {
    return Gbl.JuegoActual == JuegoTangram && Gbl.ModoJuego == MODO_RESOLVER;
}

void ColocaPiezas(i16 Modo) {
    Pic_Imagen.Cls();
    // The sliding board has no piece above another and is laid from its first piece on, the other
    // tables from the bottom of the stack up.
    const bool deslizantes = Gbl.JuegoActual == JuegoDeslizantes;
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i) {
        const i32 indice = deslizantes ? i : Gbl.NumPiezas + 1 - i;
        Sigue([&] { DibujaPiezaEnMesa(indice, Modo); });
    }
    if (Modo == 1) Pic_Trabajo_Paint();
    Sigue([] { MuestraColocadas(); });
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
