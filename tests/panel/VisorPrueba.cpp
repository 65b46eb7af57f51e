// SPDX-License-Identifier: GPL-3.0-or-later
// The two displays of the strip as the player reads them, and the tick with its choice of hints.
#include <cmath>

#include "apoyo/Azar.h"
#include "apoyo/MesaMontada.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "panel/Sugerencias.h"
#include "pieces/Composicion.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

enum Estilo { Contador = 1, Reloj = 2 };

// The display drawn here a second time, line by line.
Superficie Visor(const Superficie& como, const std::string& texto, Estilo estilo) {
    const i32 w = como.Width(), h = como.Height();
    Superficie s(w, h);
    const auto llena = [&](i32 x1, i32 y1, i32 x2, i32 y2, Color c) {
        s.Line(4 | 2 | 16 | 32, x1, y1, x2, y2, c);
    };
    const Color c1 = estilo == Contador ? 6719726 : 16777215;
    const Color c2 = estilo == Contador ? 1186423 : 8421504;
    llena(0, 0, w - 1, h - 1, c1);
    llena(1, 1, w - 2, h - 2, 10535840);
    llena(0, 0, w - 1, 0, c2);
    llena(0, 0, 0, h - 1, c2);
    constexpr Color bordes[] = {5268560, 7243630, 9218700};
    for (i32 i = 1; i <= 3; ++i) {
        llena(i, i, i + w - 2 - i, i, bordes[i - 1]);
        llena(i, i, i, i + h - 2 - i, bordes[i - 1]);
    }
    s.Font = como.Font;
    const double x = std::floor((w - s.TextWidth(texto)) / 2.0) + 1;
    const double y = std::floor((h - s.TextHeight(texto)) / 2.0) + 2;
    s.CurrentX = x;
    s.CurrentY = y;
    s.ForeColor = 7705973;
    s.Print(texto);
    s.CurrentX = x - 1;
    s.CurrentY = y - 1;
    s.ForeColor = 3292210;
    s.Print(texto);
    return s;
}

bool Lee(const Superficie& visor, const std::string& texto, Estilo estilo) {
    return visor.Dibujo().Pixeles == Visor(visor, texto, estilo).Dibujo().Pixeles;
}

// The hint of a draw by the table of bands; 0 in a gap and where its condition does not hold.
i16 SugerenciaDe(double r) {
    const i16 j = Gbl.JuegoActual;
    const bool crear = j == 23 && Gbl.ModoJuego == 1, modelo = j == 23 && Gbl.ModoJuego == 2;
    const bool completo = Gbl.PuzzleTerminado, alguna = Gbl.PiezasColocadas > 0;
    const auto en = [r](double a, double b) { return r >= a && r <= b; };
    if (en(1, 5)) return 10;
    if (en(6, 10)) return 15;
    if (en(11, 15)) return alguna ? 32 : 0;
    if (en(16, 20)) return Gbl.DibujarBorde ? 42 : 43;
    if (en(21, 25)) return completo ? 0 : 45;
    if (en(26, 30)) return completo || Gbl.TutorEsperando ? 0 : 50;
    if (en(31, 35)) return j == 21 || modelo ? 25 : 0;
    if (en(36, 40)) return j == 21 && alguna && !completo ? 30 : 0;
    if (en(41, 45)) return (j == 21 || j == 23) && !completo ? 34 : 0;
    if (en(46, 50)) return j == 22 && !completo ? 36 : 0;
    if (en(51, 55))
        return (j == 21 || (j == 22 && Gbl.TipoFondo == FONDO_IMAGEN)) && !Gbl.MostrarMuestra ? 40
                                                                                              : 0;
    if (en(56, 60)) return ((j == 21 && Gbl.PermitirGiro) || j == 23) && !completo ? 47 : 0;
    if (en(61, 65)) return j == 22 ? 60 : 0;
    if (en(66, 70)) return j == 23 ? 63 : 0;
    if (en(71, 75)) return j == 21 ? 65 : 0;
    if (en(76, 80)) return j == 23 ? 67 : 0;
    if (en(81, 85)) return crear ? 0 : 75;
    if (en(86, 90)) return 77;
    if (en(91, 95)) return crear ? 78 : 0;
    if (en(96, 99)) return crear ? 0 : 80;
    if (en(100, 120)) return j;
    return 0;
}

class Visores : public MesaMontada {};

}  // namespace

// ---------------------------------------------------------------- displays

TEST_F(Visores, FrameAndTextStandWhereTheyShouldAtAnySize) {
    PorCasos(30, [](Azar& azar) {
        Superficie s(azar.Entre(20, 90), azar.Entre(14, 40));
        s.PonBackColor(0x112233);
        const Estilo estilo = azar.Moneda() ? Contador : Reloj;
        const std::string texto = std::to_string(azar.Entre(0, 99999));
        DibujaVisor(s, "  " + texto + " ", static_cast<i16>(estilo));
        EXPECT_TRUE(Lee(s, texto, estilo)) << s.Width() << " by " << s.Height();
    });
}

TEST_F(Visores, ClockShowsTheNewTimeAfterEachTick) {
    Moviles(3, 300, 300);
    Gbl.VentanaInformacion = false;
    P().anotaTextos = true;
    Gbl.SegundosJuego = 3599;
    PintaTiempo();
    EXPECT_TRUE(Lee(Pic_CroTime, "0:59:59", Reloj));
    CambiaCrono(1);
    Tic();
    EXPECT_TRUE(Lee(Pic_CroTime, "1:00:00", Reloj));
    EXPECT_EQ(P().textos.back().texto, "1:00:00");
    Gbl.SegundosJuego = 86400 + 7200 + 59;
    Tic();
    EXPECT_EQ(P().textos.back().texto, "2:01:00") << "the days are not shown";
    EXPECT_TRUE(Lee(Pic_CroTime, "2:01:00", Reloj));
    CambiaCrono(2);
    P().textos.clear();
    Tic();
    EXPECT_TRUE(P().textos.empty()) << "a clock that stands paints nothing";
    PulsaOrden(1);
    EXPECT_TRUE(Lee(Pic_CroTime, "0:00:00", Reloj)) << "a new puzzle shows its own time";
}

TEST_F(Visores, CounterShowsPlacedAndTotalWithoutFilling) {
    Moviles(4, 320, 240);
    for (i16 i = 1; i <= 16; ++i) Pon(i, 500, 300, 1);
    P().anotaTextos = true;
    MuestraColocadas();
    EXPECT_EQ(P().textos.back().texto, "0 / 16");
    EXPECT_TRUE(Lee(Pic_InfoColo, "0 / 16", Contador));
    for (i16 i = 1; i <= 12; ++i) Pon(i, Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien);
    EXPECT_EQ(P().textos.back().texto, "12 / 16");
    EXPECT_TRUE(Lee(Pic_InfoColo, "12 / 16", Contador));
}

// ---------------------------------------------------------------- tick

TEST_F(Visores, ClockStepsBeforeTheHintIsChosen) {
    Moviles(3, 300, 300);
    Gbl.VentanaInformacion = true;
    Gbl.SegundosJuego = 41;
    CambiaCrono(1);
    Gbl.SugerenciaActual = 40;
    Gbl.MostrarMuestra = true;  // hint 40 gives way to 15 in this very tick
    P().anotaTextos = true;
    Tic();
    ASSERT_GE(P().textos.size(), 3U);
    EXPECT_EQ(P().textos[0].texto, "0:00:42");
    EXPECT_EQ(P().textos[2].texto, "más ayuda");
}

TEST_F(Visores, HintThatGivesWayIsNotFollowedByADrawInTheSameTick) {
    Moviles(3, 300, 300);
    Gbl.VentanaInformacion = true;
    for (const i16 antes : std::vector<i16>{40, 55})
        for (double semilla = 1; semilla < 12; ++semilla) {
            Gbl.SugerenciaActual = antes;
            Gbl.MostrarMuestra = true;
            Gbl.TutorEsperando = false;
            Gbl.HoraUltimaSugerencia = P().timeGetTime() - 20000;
            Randomize(semilla);
            Tic();
            ASSERT_EQ(Gbl.SugerenciaActual, 15);
            EXPECT_EQ(Gbl.HoraUltimaSugerencia, P().timeGetTime());
        }
}

TEST_F(Visores, EveryDrawGivesTheHintOfItsBandOrAnotherDraw) {
    Moviles(3, 300, 300);
    int repetidos = 0;
    PorCasos(3000, [&](Azar& azar) {
        Gbl.VentanaInformacion = true;
        Gbl.JuegoActual = static_cast<i16>(azar.Entre(21, 23));
        Gbl.ModoJuego = static_cast<i16>(azar.Entre(1, 2));
        Gbl.TipoFondo = static_cast<i16>(azar.Entre(1, 3));
        Gbl.PiezasColocadas = static_cast<i16>(azar.Entre(0, 1));
        for (Booleano* b : {&Gbl.PuzzleTerminado, &Gbl.TutorEsperando, &Gbl.DibujarBorde,
                            &Gbl.MostrarMuestra, &Gbl.PermitirGiro})
            *b = azar.Moneda();
        Gbl.SugerenciaActual = 0;
        Gbl.HoraUltimaSugerencia = P().timeGetTime() - 15001;
        const double semilla = azar.Real(0, 86400);
        Randomize(semilla);
        i16 n = SugerenciaDe(Rnd() * 120);
        for (; n == 0; ++repetidos) n = SugerenciaDe(Rnd() * 120);
        const u32 resto = Gbl.Azar[1];
        Randomize(semilla);
        Tic();
        ASSERT_EQ(Gbl.SugerenciaActual, n);
        ASSERT_EQ(Gbl.Azar[1], resto) << "as many draws";
    });
    EXPECT_GT(repetidos, 500);
}

}  // namespace tessario
