// SPDX-License-Identifier: GPL-3.0-or-later
#include <bit>

#include "apoyo/MesaMontada.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"

namespace tessario {

namespace {

Pixel DeRecurso(i32 x, i32 y) {
    return 0x800000U | (static_cast<Pixel>(x) << 8) | static_cast<Pixel>(y);
}

// Word of state that makes the generator's next draw, times 120, come out as r.
u32 PalabraPara(double r) {
    constexpr u32 INVERSO_9 = 0x38E38E39U, INVERSO_5 = 0xCCCCCCCDU;  // modulo 2 to the 32nd
    const u32 sorteo = static_cast<u32>(r / 120 * 4294967296.0);
    return std::rotr(sorteo * INVERSO_9, 7) * INVERSO_5;
}

// Feeds the next two draws.
void Sortea(double primero, double segundo) {
    const u32 a = PalabraPara(primero);
    const u32 b = PalabraPara(segundo);
    Gbl.Azar[0] = 0;
    Gbl.Azar[1] = a;
    Gbl.Azar[2] = a ^ b;  // the second draw's word is the exclusive or of the first three
    Gbl.Azar[3] = 1;
}

}  // namespace

class Cronometro : public MesaMontada {
protected:
    void SetUp() override {
        MesaMontada::SetUp();
        Gbl.VentanaInformacion = true;
        Gbl.HoraUltimaSugerencia = P().timeGetTime() - 15001;
        Gbl.MostrarMuestra = false;
    }
    // Hint that the tick shows for a draw; where the draw yields nothing the next one, 110, gives
    // the game's own.
    i16 Elige(double r) {
        Gbl.SugerenciaActual = 0;
        Gbl.HoraUltimaSugerencia = P().timeGetTime() - 15001;
        Sortea(r, 110);
        Tic();
        return Gbl.SugerenciaActual;
    }
};

TEST_F(Cronometro, TimeReadsAsHoursMinutesSeconds) {
    EXPECT_EQ(TextoTiempo(0), "0:00:00");
    EXPECT_EQ(TextoTiempo(59), "0:00:59");
    EXPECT_EQ(TextoTiempo(3600 + 2 * 60 + 3), "1:02:03");
    EXPECT_EQ(TextoTiempo(86399), "23:59:59");
}

TEST_F(Cronometro, DisplayWrapsAfterADayButSecondsGoOn) {
    Gbl.SegundosJuego = 86399;
    CambiaCrono(1);
    Tic();
    EXPECT_EQ(Gbl.SegundosJuego, 86400);
    EXPECT_EQ(TextoTiempo(Gbl.SegundosJuego), "0:00:00");
}

TEST_F(Cronometro, TickCountsOnlyWhileItRuns) {
    CambiaCrono(1);
    Tic();
    Tic();
    EXPECT_EQ(Gbl.SegundosJuego, 2);
    CambiaCrono(2);
    Tic();
    EXPECT_EQ(Gbl.SegundosJuego, 2);
}

TEST_F(Cronometro, SecondsStopAtTheLargestNumber) {
    Gbl.SegundosJuego = 2147483647;
    CambiaCrono(1);
    Tic();
    EXPECT_EQ(Gbl.SegundosJuego, 2147483647);
}

TEST_F(Cronometro, SwitchShowsItsStateInsideTheFrame) {
    CambiaCrono(1);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_EQ(Pic_Cronome.Fila(4)[10], DeRecurso(57, 6));
    EXPECT_EQ(Pic_Cronome.Fila(16)[48], DeRecurso(57 + 38, 6 + 12));
    CambiaCrono(2);
    EXPECT_FALSE(Gbl.CronoEnMarcha);
    EXPECT_EQ(Pic_Cronome.Fila(4)[10], DeRecurso(6, 6));
    EXPECT_EQ(Pic_Cronome.Fila(16)[48], DeRecurso(6 + 38, 6 + 12));
    const i32 w = Pic_Cronome.Width();
    const i32 h = Pic_Cronome.Height();
    EXPECT_EQ(Pic_Cronome.Point(0, 0), 0U);
    EXPECT_EQ(Pic_Cronome.Point(w - 1, h - 1), 0U);
    EXPECT_EQ(Pic_Cronome.Point(w - 1, 1), 0U);
    EXPECT_EQ(Pic_Cronome.Point(1, 1), 0xE0E0E0U);
    EXPECT_EQ(Pic_Cronome.Point(w - 2, 1), 0xE0E0E0U);
    EXPECT_EQ(Pic_Cronome.Point(1, h - 3), 0xE0E0E0U);
    EXPECT_EQ(Pic_Cronome.Point(1, h - 2), 0x808080U);
    EXPECT_EQ(Pic_Cronome.Point(w - 2, h - 2), 0x808080U);
}

TEST_F(Cronometro, PressOnTheSwitchStopsAndStartsWithItsTwoSounds) {
    CambiaCrono(1);
    const Punto o = PunteroPrueba::Origen(Pic_Cronome);
    Puntero.Pulsa(o.x + 10, o.y + 4);
    EXPECT_FALSE(Gbl.CronoEnMarcha);
    EXPECT_EQ(Sonidos(), std::vector<int>{7});
    Puntero.Pulsa(o.x + 48, o.y + 16);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_EQ(Sonidos(), std::vector<int>{6});
}

TEST_F(Cronometro, PressBesideTheSwitchDoesNothing) {
    CambiaCrono(1);
    const Punto o = PunteroPrueba::Origen(Pic_Cronome);
    for (const Punto p : {Punto{9, 10}, {49, 10}, {20, 3}, {20, 17}})
        Puntero.Pulsa(o.x + p.x, o.y + p.y);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_TRUE(P().sonidos.empty());
}

TEST_F(Cronometro, HoverOverTheSwitchShowsTheHandAndWhatAPressDoes) {
    CambiaCrono(1);
    const Punto o = PunteroPrueba::Origen(Pic_Cronome);
    Puntero.Mueve(o.x + 20, o.y + 10);
    EXPECT_EQ(Gbl.ZonaCrono, 23);
    EXPECT_EQ(Pic_Cronome.MousePointer, PUNTERO_PROPIO);
    EXPECT_EQ(Pic_Cronome.MouseIcon, "ManoIndice");
    EXPECT_EQ(Pic_Cronome.ToolTipText, " Parar el cronómetro ");
    Puntero.Mueve(o.x + 2, o.y + 10);
    EXPECT_EQ(Gbl.ZonaCrono, 0);
    EXPECT_EQ(Pic_Cronome.MousePointer, PUNTERO_NORMAL);
    EXPECT_EQ(Pic_Cronome.ToolTipText, "");
    CambiaCrono(2);
    Puntero.Mueve(o.x + 20, o.y + 10);
    EXPECT_EQ(Pic_Cronome.ToolTipText, " Activar el cronómetro ");
}

TEST_F(Cronometro, TooltipIsWrittenOnlyOnEnteringTheZone) {
    CambiaCrono(1);
    const Punto o = PunteroPrueba::Origen(Pic_Cronome);
    Puntero.Mueve(o.x + 20, o.y + 10);
    Pic_Cronome.ToolTipText = "kept";
    Puntero.Mueve(o.x + 21, o.y + 10);
    EXPECT_EQ(Pic_Cronome.ToolTipText, "kept");
}

TEST_F(Cronometro, MoveFromTheSwitchOntoTheDisplayLeavesTheZone) {
    CambiaCrono(1);
    const Punto o = PunteroPrueba::Origen(Pic_Cronome);
    Puntero.Mueve(o.x + 20, o.y + 16);
    Puntero.Mueve(o.x + 20, o.y + 30);  // Pic_CroTime lies there
    EXPECT_EQ(Puntero.Debajo(), &Pic_CroTime);
    EXPECT_EQ(Gbl.ZonaCrono, 0);
}

TEST_F(Cronometro, RaisedDisplayHasItsEdgesGroundAndShadowedText) {
    Superficie s(58, 25);
    DibujaVisor(s, "9 / 25", 1);
    EXPECT_EQ(s.Point(0, 0), 1186423U);
    EXPECT_EQ(s.Point(57, 0), 1186423U);
    EXPECT_EQ(s.Point(0, 24), 1186423U);
    EXPECT_EQ(s.Point(57, 24), 6719726U);
    EXPECT_EQ(s.Point(57, 1), 6719726U);
    EXPECT_EQ(s.Point(30, 24), 6719726U);
    EXPECT_EQ(s.Point(1, 1), 5268560U);
    EXPECT_EQ(s.Point(56, 1), 5268560U);
    EXPECT_EQ(s.Point(1, 23), 5268560U);
    EXPECT_EQ(s.Point(2, 2), 7243630U);
    EXPECT_EQ(s.Point(3, 3), 9218700U);
    EXPECT_EQ(s.Point(56, 23), 10535840U);
    // The block font: 6 pixels a letter at size 12, 14 high. Six letters: x = 11 + 1, y = 5 + 2.
    EXPECT_EQ(s.Point(11, 7), 3292210U);  // text, one up and one left of its shadow
    EXPECT_EQ(s.Point(15, 18), 3292210U);
    EXPECT_EQ(s.Point(16, 10), 7705973U);  // the shadow's own column
    EXPECT_EQ(s.Point(14, 19), 7705973U);  // and row
    EXPECT_EQ(s.Point(10, 10), 10535840U);
}

TEST_F(Cronometro, SunkenDisplayHasTheOtherFrame) {
    Superficie s(52, 22);
    DibujaVisor(s, "0:00:00", 2);
    EXPECT_EQ(s.Point(0, 0), 8421504U);
    EXPECT_EQ(s.Point(51, 21), 16777215U);
}

TEST_F(Cronometro, DisplayTextIsTrimmedAndPaintedOverTheOldOne) {
    Superficie a(58, 25);
    Superficie b(58, 25);
    DibujaVisor(a, "  7 / 7 ", 1);
    DibujaVisor(b, "123456789", 1);
    DibujaVisor(b, "7 / 7", 1);
    EXPECT_EQ(a.Dibujo().Pixeles, b.Dibujo().Pixeles);
}

TEST_F(Cronometro, RecountShowsPlacedAgainstTotal) {
    Moviles(3, 300, 300);
    for (i16 i = 1; i <= 9; ++i) Gbl.Piezas[i].X = 500;
    Gbl.Piezas[4].X = Gbl.Piezas[4].XBien;
    Gbl.Piezas[4].Y = Gbl.Piezas[4].YBien;
    Gbl.Piezas[4].Giro = Gbl.Piezas[4].GiroBien;
    MuestraColocadas();
    EXPECT_EQ(Gbl.PiezasColocadas, 1);
    Superficie s(58, 25);
    DibujaVisor(s, "1 / 9", 1);
    EXPECT_EQ(Pic_InfoColo.Dibujo().Pixeles, s.Dibujo().Pixeles);
    Gbl.Piezas[4].X = 500;  // pushed out of its place again
    MuestraColocadas();
    EXPECT_EQ(Gbl.PiezasColocadas, 0);
}

TEST_F(Cronometro, CreatingFiguresCountsButShowsNothing) {
    Tangram(MODO_CREAR);
    Pic_InfoColo.PonBackColor(0x123456);
    MuestraColocadas();
    EXPECT_EQ(Gbl.PiezasColocadas, 0);
    EXPECT_EQ(Pic_InfoColo.Point(20, 10), 0x123456U);
}

TEST_F(Cronometro, HintComesOnlyWhenMoreThanFifteenSecondsHavePassed) {
    Sortea(1.5, 110);
    Gbl.HoraUltimaSugerencia = P().timeGetTime() - 15000;
    Tic();
    EXPECT_FALSE(Pic_Sugerencia.Visible);
    P().reloj += 1;
    Tic();
    EXPECT_TRUE(Pic_Sugerencia.Visible);
    EXPECT_EQ(Gbl.SugerenciaActual, 10);
    EXPECT_EQ(Gbl.HoraUltimaSugerencia, P().timeGetTime());
}

TEST_F(Cronometro, WaitIsRightAcrossTheWrapOfTheClock) {
    P().reloj = 4294967296.0 + 14990;        // wrapped: reads 14990
    Gbl.HoraUltimaSugerencia = 4294967290U;  // 6 ms before the wrap
    Sortea(1.5, 110);
    Tic();
    EXPECT_FALSE(Pic_Sugerencia.Visible);  // 14996 ms
    P().reloj += 10;
    Tic();
    EXPECT_TRUE(Pic_Sugerencia.Visible);
}

TEST_F(Cronometro, WithHintsOffNothingIsDrawnFromTheGenerator) {
    Gbl.VentanaInformacion = false;
    Sortea(1.5, 110);
    const u32 antes = Gbl.Azar[1];
    Tic();
    EXPECT_EQ(Gbl.Azar[1], antes);
    EXPECT_FALSE(Pic_Sugerencia.Visible);
}

TEST_F(Cronometro, HintOfTheSampleGivesWayWhenItIsShown) {
    Gbl.HoraUltimaSugerencia = P().timeGetTime();
    Gbl.SugerenciaActual = 40;
    Tic();
    EXPECT_EQ(Gbl.SugerenciaActual, 40);
    Gbl.MostrarMuestra = true;
    Tic();
    EXPECT_EQ(Gbl.SugerenciaActual, 15);
}

TEST_F(Cronometro, HintFiftyFiveGivesWayWithoutTheTutor) {
    Gbl.HoraUltimaSugerencia = P().timeGetTime();
    Gbl.SugerenciaActual = 55;
    Gbl.TutorEsperando = true;
    Tic();
    EXPECT_EQ(Gbl.SugerenciaActual, 55);
    Gbl.TutorEsperando = false;
    Tic();
    EXPECT_EQ(Gbl.SugerenciaActual, 15);
}

TEST_F(Cronometro, BandsThatServeEveryGame) {
    for (const i16 juego : {JuegoMoviles, JuegoDeslizantes, JuegoTangram}) {
        Gbl.JuegoActual = juego;
        EXPECT_EQ(Elige(1.5), 10);
        EXPECT_EQ(Elige(4.9), 10);
        EXPECT_EQ(Elige(6.5), 15);
        EXPECT_EQ(Elige(88), 77);
        EXPECT_EQ(Elige(100.5), juego);
        EXPECT_EQ(Elige(119.9), juego);
        Gbl.DibujarBorde = true;
        EXPECT_EQ(Elige(18), 42);
        Gbl.DibujarBorde = false;
        EXPECT_EQ(Elige(18), 43);
    }
}

TEST_F(Cronometro, BandEndsAreIncluded) {
    // 15, 30, 60, 75 and 90 of 120 are binary fractions and can be drawn exactly.
    Gbl.PiezasColocadas = 1;
    EXPECT_EQ(Elige(15), 32);
    EXPECT_EQ(Elige(30), 50);
    EXPECT_EQ(Elige(60), 47);
    EXPECT_EQ(Elige(75), 65);
    EXPECT_EQ(Elige(90), 77);
}

TEST_F(Cronometro, DrawsInTheGapsAreRepeated) {
    for (const double r : {0.0, 0.5, 5.5, 10.5, 60.5, 95.5, 99.5}) {
        Gbl.SugerenciaActual = 0;
        Gbl.HoraUltimaSugerencia = P().timeGetTime() - 15001;
        Sortea(r, 1.5);
        Tic();
        EXPECT_EQ(Gbl.SugerenciaActual, 10) << r;
    }
}

TEST_F(Cronometro, BandsThatAskForPlacedOrUnplacedPieces) {
    EXPECT_EQ(Elige(13), 21);  // none placed
    EXPECT_EQ(Elige(38), 21);
    EXPECT_EQ(Elige(23), 45);
    EXPECT_EQ(Elige(28), 50);
    EXPECT_EQ(Elige(43), 34);
    EXPECT_EQ(Elige(58), 47);
    Gbl.PiezasColocadas = 3;
    EXPECT_EQ(Elige(13), 32);
    EXPECT_EQ(Elige(38), 30);
    Gbl.TutorEsperando = true;
    EXPECT_EQ(Elige(28), 21);
    Gbl.TutorEsperando = false;
    Gbl.PuzzleTerminado = true;
    EXPECT_EQ(Elige(13), 32);
    for (const double r : {23.0, 28.0, 38.0, 43.0, 58.0}) EXPECT_EQ(Elige(r), 21) << r;
}

TEST_F(Cronometro, BandsOfTheJigsaw) {
    EXPECT_EQ(Elige(33), 25);
    EXPECT_EQ(Elige(53), 40);
    EXPECT_EQ(Elige(73), 65);
    EXPECT_EQ(Elige(83), 75);
    EXPECT_EQ(Elige(97), 80);
    for (const double r : {48.0, 63.0, 68.0, 78.0, 93.0}) EXPECT_EQ(Elige(r), 21) << r;
    Gbl.PermitirGiro = false;
    EXPECT_EQ(Elige(58), 21);
    Gbl.MostrarMuestra = true;
    EXPECT_EQ(Elige(53), 21);
}

TEST_F(Cronometro, BandsOfTheSlidingPuzzle) {
    Gbl.JuegoActual = JuegoDeslizantes;
    EXPECT_EQ(Elige(48), 36);
    EXPECT_EQ(Elige(63), 60);
    EXPECT_EQ(Elige(83), 75);
    EXPECT_EQ(Elige(97), 80);
    for (const double r : {33.0, 43.0, 53.0, 58.0, 68.0, 73.0, 78.0, 93.0})
        EXPECT_EQ(Elige(r), 22) << r;
    Gbl.TipoFondo = FONDO_IMAGEN;
    EXPECT_EQ(Elige(53), 40);
    Gbl.MostrarMuestra = true;
    EXPECT_EQ(Elige(53), 22);
}

TEST_F(Cronometro, BandsOfTheTangram) {
    Gbl.JuegoActual = JuegoTangram;
    Gbl.PermitirGiro = false;  // matters in the jigsaw only
    Gbl.ModoJuego = MODO_CREAR;
    EXPECT_EQ(Elige(43), 34);
    EXPECT_EQ(Elige(58), 47);
    EXPECT_EQ(Elige(68), 63);
    EXPECT_EQ(Elige(78), 67);
    EXPECT_EQ(Elige(93), 78);
    for (const double r : {33.0, 48.0, 53.0, 63.0, 73.0, 83.0, 97.0}) EXPECT_EQ(Elige(r), 23) << r;
    Gbl.ModoJuego = MODO_RESOLVER;
    EXPECT_EQ(Elige(33), 25);
    EXPECT_EQ(Elige(83), 75);
    EXPECT_EQ(Elige(97), 80);
    EXPECT_EQ(Elige(93), 23);
}

}  // namespace tessario
