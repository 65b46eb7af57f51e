// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "apoyo/PlataformaPrueba.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"

namespace tessario {

namespace {

class Servicios : public PruebaBase {};

}  // namespace

TEST_F(Servicios, SoundOffIsSilentAndWaitsForNothing) {
    P().duracionSonido = 400;
    Gbl.Sonido = false;
    const double antes = P().reloj;
    SonidoJuego(0, 14);
    SonidoJuego(1, 9);
    EXPECT_TRUE(P().sonidos.empty());
    EXPECT_EQ(P().reloj, antes);
}

TEST_F(Servicios, OnlyOneMeansAsynchronous) {
    Gbl.Sonido = true;
    P().duracionSonido = 400;
    SonidoJuego(1, 50);
    SonidoJuego(0, 51);
    SonidoJuego(2, 52);
    const std::vector<std::pair<i16, bool>> esperado{{50, true}, {51, false}, {52, false}};
    EXPECT_EQ(P().sonidos, esperado);
}

TEST_F(Servicios, PacingFactorBySpeed) {
    EXPECT_NEAR(FactorPausa(0), 8.0, 0.0005);
    EXPECT_NEAR(FactorPausa(25), 3.375, 0.0005);
    EXPECT_EQ(FactorPausa(50), 1.0);
    EXPECT_DOUBLE_EQ(FactorPausa(75), 0.3536);
    EXPECT_EQ(FactorPausa(100), 0.0);
}

TEST_F(Servicios, PacingFactorIsKeptToFourDecimalsAtBothSteps) {
    // (100 - 40) / 50 = 1.2; 1.2 ^ 1.5 = 1.31453 -> 1.3145; its square 1.72791 -> 1.7279.
    EXPECT_DOUBLE_EQ(FactorPausa(40), 1.7279);
    // 0.4 ^ 1.5 = 0.252982
    EXPECT_DOUBLE_EQ(FactorPausa(80), 0.2530);
}

TEST_F(Servicios, SpeedAboveTheScaleHasNoDelay) {
    Gbl.VelocidadJuego = 999;
    const double antes = P().reloj;
    Pausa(1500);
    EXPECT_EQ(P().reloj, antes);
    EXPECT_EQ(FactorPausa(32767), 0.0);
}

TEST_F(Servicios, PauseLastsItsTimeAndShowsFirstWhatWasPainted) {
    const struct {
        i16 velocidad, ms;
        double dura;
    } casos[] = {{50, 60, 60}, {0, 10, 80}, {75, 1000, 353.6}, {100, 1000, 0}, {50, 0, 0}};
    for (const auto& c : casos) {
        Gbl.VelocidadJuego = c.velocidad;
        const double antes = P().dormido;
        const int veces = P().presentaciones;
        bool durmio = false;
        P().alDormir = [&] { durmio = true; };
        Pausa(c.ms);
        EXPECT_NEAR(P().dormido - antes, c.dura, 1.0) << c.velocidad;
        EXPECT_GE(P().dormido - antes, c.dura - 0.01) << c.velocidad;
        EXPECT_TRUE(durmio || P().presentaciones > veces) << c.velocidad;
        EXPECT_EQ(Gbl.MarcaPausa, 0U);
    }
}

TEST_F(Servicios, PauseThatIsCutShortIsNotGoneBackTo) {
    int veces = 0;
    P().alDormir = [&] {
        ++veces;
        P().reloj -= 60;  // the sleep ends early
        Gbl.SinPausas = true;
    };
    Pausa(100);
    EXPECT_EQ(veces, 1);
    EXPECT_EQ(Gbl.MarcaPausa, 0U);
}

TEST_F(Servicios, PauseLetsNoEventThrough) {
    bool corrio = false;
    P().eventos.push_back([&] { corrio = true; });
    Pausa(100);
    EXPECT_FALSE(corrio);
    EXPECT_EQ(P().pasosDeEventos, 0);
}

TEST_F(Servicios, PauseCountsFromAMarkSetBefore) {
    Gbl.MarcaPausa = Sistema().timeGetTime() - 70;
    const double antes = P().dormido;
    Pausa(100);
    EXPECT_NEAR(P().dormido - antes, 30, 1.0);
    EXPECT_EQ(Gbl.MarcaPausa, 0U);
}

TEST_F(Servicios, PauseOutlivesTheWrapOfTheClock) {
    P().reloj = 4294967290.0;  // 6 ms before the count starts again
    const double antes = P().dormido;
    Pausa(50);
    EXPECT_NEAR(P().dormido - antes, 50, 1.0);
}

TEST_F(Servicios, NamedCursorIsTheCustomPointer) {
    PonCursor(Pic_Trabajo, "ManoCerrada");
    EXPECT_EQ(Pic_Trabajo.MousePointer, 99);
    EXPECT_EQ(Pic_Trabajo.MouseIcon, "ManoCerrada");
    PonPuntero(Pic_Trabajo, 11);
    EXPECT_EQ(Pic_Trabajo.MousePointer, 11);
    PonCursor(Mesa, "Prohibido");
    EXPECT_EQ(Mesa.MousePointer, 99);
    EXPECT_EQ(Mesa.MouseIcon, "Prohibido");
    PonPuntero(Mesa, 0);
    EXPECT_EQ(Mesa.MousePointer, 0);
}

TEST_F(Servicios, MessageBringsItsAnswer) {
    P().respuestas = {true, false};
    Mensaje("Título", "¿Seguro?", 2, 2, 2170);
    EXPECT_TRUE(Gbl.RespuestaMensaje);
    Mensaje("Otro", "¿Y ahora?", 1, 2);
    EXPECT_FALSE(Gbl.RespuestaMensaje);
    Mensaje("Aviso", "Ya está.", 1, 1);
    EXPECT_TRUE(Gbl.RespuestaMensaje);
    ASSERT_EQ(P().avisos.size(), 3U);
    EXPECT_EQ(P().avisos[0].titulo, "Título");
    EXPECT_EQ(P().avisos[0].texto, "¿Seguro?");
    EXPECT_EQ(P().avisos[0].modo, 2);
    EXPECT_EQ(P().avisos[0].ayuda, 2170);
    EXPECT_EQ(P().avisos[1].ayuda, 0);  // the topic of the message before is gone
}

TEST_F(Servicios, EventsAndHelpGoToThePlatform) {
    int corridos = 0;
    P().eventos = {[&] { ++corridos; }, [&] { ++corridos; }};
    DejaPasarEventos();
    EXPECT_EQ(corridos, 1);
    Ayuda(2110);
    EXPECT_EQ(P().ayudas, std::vector<i32>{2110});
}

}  // namespace tessario
