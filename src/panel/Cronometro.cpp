// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/Cronometro.h"

#include <limits>

#include "core/Cadenas.h"
#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Sugerencias.h"
#include "platform/Plataforma.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

// The switch: its picture in Pic_BmpVario, running and stopped, and its place in Pic_Cronome.
constexpr i32 INTERRUPTOR_ANCHO = 39, INTERRUPTOR_ALTO = 13;
constexpr Punto INTERRUPTOR_MARCHA{57, 6}, INTERRUPTOR_PARO{6, 6}, INTERRUPTOR_LUGAR{10, 4};
constexpr i16 ZONA_INTERRUPTOR = 23;  // value of ZonaCrono over the switch
constexpr Color MARCO_NEGRO = paleta::NEGRO, MARCO_GRIS = paleta::GRIS, MARCO_CLARO = 0xE0E0E0;

// Colours of the display: ground, three inner edges from the outside in, text and its shadow.
constexpr Color VISOR_FONDO = paleta::tinta::VISOR.Fondo;
constexpr Color VISOR_BORDES[3] = {5268560, 7243630, 9218700};
constexpr Color VISOR_SOMBRA = 7705973, VISOR_TEXTO = paleta::tinta::VISOR.Texto;
struct EstiloVisor {
    Color marco, esquina;  // the whole outline; then its top and left side
};
constexpr EstiloVisor VISOR_RELIEVE{6719726, 1186423}, VISOR_HUNDIDO{16777215, 8421504};
constexpr i16 LETRA_VISOR = 12;  // pixels

constexpr i32 SEGUNDOS_DIA = 86400;

// A horizontal or vertical line of so many pixels.
void LineaHor(Superficie& s, i32 x, i32 y, i32 largo, Color color) {
    if (largo > 0) s.Line(pluma::ConColor | pluma::Desde, x, y, x + largo - 1, y, color);
}
void LineaVer(Superficie& s, i32 x, i32 y, i32 largo, Color color) {
    if (largo > 0) s.Line(pluma::ConColor | pluma::Desde, x, y, x, y + largo - 1, color);
}
// A box from a corner to the one that lies so far right and down of it, both included.
void CajaDesde(Superficie& s, i32 x, i32 y, i32 dx, i32 dy, Color color) {
    s.Line(pluma::ConColor | pluma::Desde | pluma::Relativo | pluma::Caja, x, y, dx, dy, color);
}

bool DentroDelInterruptor(float X, float Y) {
    return X >= static_cast<float>(INTERRUPTOR_LUGAR.x) &&
           X <= static_cast<float>(INTERRUPTOR_LUGAR.x + INTERRUPTOR_ANCHO - 1) &&
           Y >= static_cast<float>(INTERRUPTOR_LUGAR.y) &&
           Y <= static_cast<float>(INTERRUPTOR_LUGAR.y + INTERRUPTOR_ALTO - 1);
}

// ---------------------------------------------------------------- choice of the hints
bool SinTerminar() {
    return !Gbl.PuzzleTerminado;
}
bool AlgunaColocada() {
    return Gbl.PiezasColocadas > 0;
}
bool Siempre() {
    return true;
}

constexpr i16 SEGUN_BORDE = -1, SEGUN_JUEGO = -2;  // hints that are not one fixed number

struct BandaSugerencia {
    double desde, hasta;  // of the draw, both ends included
    bool (*vale)();
    i16 sugerencia;
};
const BandaSugerencia BANDAS[] = {
    {1, 5, Siempre, sugerencia::JUEGO},
    {6, 10, Siempre, sugerencia::AJUSTES},
    {11, 15, AlgunaColocada, sugerencia::COLOCADAS},
    {16, 20, Siempre, SEGUN_BORDE},
    {21, 25, SinTerminar, sugerencia::RESOLVER},
    {26, 30, [] { return SinTerminar() && !Gbl.TutorEsperando; }, sugerencia::TUTOR},
    {31, 35, [] { return JuegoEnCurso().AtraeASuSitio(); }, sugerencia::ATRACCION},
    {36, 40, [] { return JuegoEnCurso().OrdenOcultas && AlgunaColocada() && SinTerminar(); },
     sugerencia::OCULTAS},
    {41, 45, [] { return JuegoEnCurso().OrdenaLaterales && SinTerminar(); }, sugerencia::ORDENAR},
    {46, 50, [] { return JuegoEnCurso().OrdenaAMano && SinTerminar(); },
     sugerencia::ORDENAR_A_MANO},
    {51, 55, [] { return JuegoEnCurso().HayMuestra() && !Gbl.MostrarMuestra; },
     sugerencia::MUESTRA},
    {56, 60, [] { return JuegoEnCurso().SugiereGiro() && SinTerminar(); }, sugerencia::GIRO},
    {61, 65, [] { return JuegoEnCurso().EligeFondo; }, sugerencia::FONDO},
    {66, 70, [] { return JuegoEnCurso().TieneModos; }, sugerencia::MODOS},
    {71, 75, [] { return JuegoEnCurso().TieneFormas; }, sugerencia::FORMAS},
    {76, 80, [] { return JuegoEnCurso().SeAtraen; }, sugerencia::ENTRE_PIEZAS},
    {81, 85, [] { return !CreandoFiguras(); }, sugerencia::GRABADORA},
    {86, 90, Siempre, sugerencia::GUARDAR},
    {91, 95, CreandoFiguras, sugerencia::MODELO},
    {96, 99, [] { return !CreandoFiguras(); }, sugerencia::HISTORICO},
    {100, 120, Siempre, SEGUN_JUEGO},
};
constexpr double SORTEO_SUGERENCIAS = 120;

i16 SugerenciaDeSorteo(double r) {
    for (const BandaSugerencia& b : BANDAS) {
        if (r < b.desde || r > b.hasta) continue;
        if (!b.vale()) return 0;
        if (b.sugerencia == SEGUN_BORDE)
            return Gbl.DibujarBorde ? sugerencia::QUITAR_BORDE : sugerencia::PONER_BORDE;
        if (b.sugerencia == SEGUN_JUEGO) return JuegoEnCurso().Sugerencia;
        return b.sugerencia;
    }
    return 0;  // between two bands
}

void EligeSugerencia() {
    // The difference of the two moments stands also when the clock of 32 bits has wrapped.
    if (Sistema().timeGetTime() - Gbl.HoraUltimaSugerencia <= ESPERA_SUGERENCIA) return;
    if (!Gbl.VentanaInformacion) return;
    i16 n = 0;
    while (n == 0) n = SugerenciaDeSorteo(Rnd() * SORTEO_SUGERENCIAS);
    Sugerencia(n);
}

}  // namespace

std::string TextoTiempo(i32 segundos) {
    const i32 s = segundos % SEGUNDOS_DIA;
    return std::to_string(s / 3600) + ":" + Ceros(s / 60 % 60, 2) + ":" + Ceros(s % 60, 2);
}

void CambiaCrono(i16 estado) {
    Gbl.CronoEnMarcha = estado == CRONO_MARCHA;
    const Punto o = Gbl.CronoEnMarcha ? INTERRUPTOR_MARCHA : INTERRUPTOR_PARO;
    BitBlt(Pic_Cronome, INTERRUPTOR_LUGAR.x, INTERRUPTOR_LUGAR.y, INTERRUPTOR_ANCHO,
           INTERRUPTOR_ALTO, Pic_BmpVario, o.x, o.y, SRCCOPY);
    const i32 w = Pic_Cronome.Width();
    const i32 h = Pic_Cronome.Height();
    CajaDesde(Pic_Cronome, 0, 0, w - 1, h - 1, MARCO_NEGRO);
    CajaDesde(Pic_Cronome, 1, 1, w - 3, h - 3, MARCO_GRIS);
    LineaHor(Pic_Cronome, 1, 1, w - 2, MARCO_CLARO);
    LineaVer(Pic_Cronome, 1, 1, h - 3, MARCO_CLARO);
}

void DetieneCrono() {
    Gbl.CronoAntes = Gbl.CronoEnMarcha;
    CambiaCrono(CRONO_PARO);
}

void ReponeCrono() {
    CambiaCrono(Gbl.CronoAntes ? CRONO_MARCHA : CRONO_PARO);
}

void PintaTiempo() {
    DibujaVisor(Pic_CroTime, TextoTiempo(Gbl.SegundosJuego), VISOR_RELOJ);
}

void Tic() {
    if (Gbl.CronoEnMarcha) {
        if (Gbl.SegundosJuego < std::numeric_limits<i32>::max()) ++Gbl.SegundosJuego;
        PintaTiempo();
    }
    // Deliberate: nothing shows this hint; the test stands for one that may come.
    if (Gbl.SugerenciaActual == sugerencia::TUTOR_INDICA && !Gbl.TutorEsperando)
        Sugerencia(sugerencia::AJUSTES);
    if (Gbl.SugerenciaActual == sugerencia::MUESTRA && Gbl.MostrarMuestra)
        Sugerencia(sugerencia::AJUSTES);
    EligeSugerencia();
}

void DibujaVisor(Superficie& destino, const std::string& texto, i16 estilo) {
    const EstiloVisor& e = estilo == VISOR_CONTADOR ? VISOR_RELIEVE : VISOR_HUNDIDO;
    const i32 w = destino.Width();
    const i32 h = destino.Height();
    destino.FillColor = VISOR_FONDO;
    destino.FillSolido = true;
    CajaDesde(destino, 0, 0, w - 1, h - 1, e.marco);
    LineaHor(destino, 0, 0, w, e.esquina);
    LineaVer(destino, 0, 0, h, e.esquina);
    for (i32 i = 1; i <= 3; ++i) {
        LineaHor(destino, i, i, w - 1 - i, VISOR_BORDES[i - 1]);
        LineaVer(destino, i, i, h - 1 - i, VISOR_BORDES[i - 1]);
    }
    destino.Font.Tamano = LETRA_VISOR;
    const std::string limpio = Trim(texto);
    const double x = Int((w - destino.TextWidth(limpio)) / 2.0) + 1;
    const double y = Int((h - destino.TextHeight(limpio)) / 2.0) + 2;
    const struct {
        double dx, dy;
        Color color;
    } capas[] = {{0, 0, VISOR_SOMBRA}, {-1, -1, VISOR_TEXTO}};
    for (const auto& c : capas) {
        destino.CurrentX = x + c.dx;
        destino.CurrentY = y + c.dy;
        destino.ForeColor = c.color;
        destino.Print(limpio);
    }
}

void Pic_Cronome_MouseMove(i16 /*Button*/, i16 /*Shift*/, float X, float Y) {
    const bool dentro = DentroDelInterruptor(X, Y);
    Gbl.ZonaCrono = dentro ? ZONA_INTERRUPTOR : i16{0};
    if (Gbl.ZonaCrono == Gbl.ZonaCronoPrevia) return;
    Gbl.ZonaCronoPrevia = Gbl.ZonaCrono;
    if (!dentro) {
        PonPuntero(Pic_Cronome, PUNTERO_NORMAL);
        Pic_Cronome.ToolTipText.clear();
        return;
    }
    PonCursor(Pic_Cronome, cursor::MANO_INDICE);
    Pic_Cronome.ToolTipText =
        Gbl.CronoEnMarcha ? " Parar el cronómetro " : " Activar el cronómetro ";
}

std::vector<Rect> ZonasCronome() {
    return {RectDe(INTERRUPTOR_LUGAR.x, INTERRUPTOR_LUGAR.y, INTERRUPTOR_ANCHO, INTERRUPTOR_ALTO)};
}

void Pic_Cronome_MouseDown(i16 /*Button*/, i16 /*Shift*/, float X, float Y) {
    if (!DentroDelInterruptor(X, Y)) return;
    const bool enMarcha = Gbl.CronoEnMarcha;
    SonidoJuego(1, enMarcha ? sonido::SUELTA : sonido::TECLA);
    CambiaCrono(enMarcha ? CRONO_PARO : CRONO_MARCHA);
}

}  // namespace tessario
