// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Servicios.h"

#include <cmath>

#include "core/PuzzGbl.h"
#include "platform/Plataforma.h"

namespace tessario {

namespace {

double CuatroDecimales(double x) {
    return std::nearbyint(x * 10000.0) / 10000.0;
}

// Events handled now come in from inside the caller's work. The end of the program leaves by an
// exception.
class NivelDeEventos {
public:
    NivelDeEventos() { ++Gbl.EventosAnidados; }
    ~NivelDeEventos() { --Gbl.EventosAnidados; }
    NivelDeEventos(const NivelDeEventos&) = delete;
    NivelDeEventos& operator=(const NivelDeEventos&) = delete;
};

}  // namespace

void SonidoJuego(i16 Asincrono, i16 Id) {
    if (!Gbl.Sonido) return;
    Sistema().Suena(Id, Asincrono == 1);
}

double FactorPausa(i16 velocidad) {
    // A damaged settings file can leave a speed above 100: no delay, like 100 itself.
    if (velocidad >= 100) return 0;
    double f = CuatroDecimales(std::pow((100 - velocidad) / 50.0, 1.5));
    // Slow speeds slow down much more than high speeds speed up.
    if (f > 1) f = CuatroDecimales(f * f);
    return f;
}

void Pausa(i16 Milisegundos) {
    if (Gbl.MarcaPausa == 0) Gbl.MarcaPausa = Sistema().timeGetTime();
    const double espera = Gbl.SinPausas ? 0 : Milisegundos * FactorPausa(Gbl.VelocidadJuego);
    bool presentado = false;
    // The sleep may end early, with the wish that nothing be waited for.
    while (!presentado || !Gbl.SinPausas) {
        // Unsigned difference: right also when the clock wraps.
        const double faltan = espera - (Sistema().timeGetTime() - Gbl.MarcaPausa);
        if (faltan <= 0) break;
        Sistema().Duerme(faltan);
        presentado = true;
    }
    if (!presentado) Sistema().Presenta();
    Gbl.MarcaPausa = 0;
}

void PonPuntero(Control& objeto, i16 puntero) {
    objeto.MousePointer = puntero;
}
void PonPuntero(Ventana& objeto, i16 puntero) {
    objeto.MousePointer = puntero;
}

void PonCursor(Control& objeto, const std::string& Nombre) {
    PonPuntero(objeto, PUNTERO_PROPIO);
    objeto.MouseIcon = Nombre;
}

void PonCursor(Ventana& objeto, const std::string& Nombre) {
    PonPuntero(objeto, PUNTERO_PROPIO);
    objeto.MouseIcon = Nombre;
}

void DejaPasarEventos() {
    const NivelDeEventos nivel;
    Sistema().DejaPasarEventos();
}

void Ayuda(i32 tema) {
    Sistema().Ayuda(tema);
}

}  // namespace tessario
