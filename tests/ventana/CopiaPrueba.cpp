// SPDX-License-Identifier: GPL-3.0-or-later
// Undo and the safety copy in the real program: real keys, and a real signal that ends the session.
#include <signal.h>

#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int ANCHO = 1280, ALTO = 1024;
constexpr int CELDA_ANCHO = 160, CELDA_ALTO = 120;  // 480 x 360 cut in 3 by 3
constexpr const char* COPIA = "Archivo/Copia de seguridad.puz";

// All at home but two, which lie apart on the free table.
PartidaGuardada DosSueltas() {
    PartidaGuardada p = DeCuadros(480, 360, 3);
    p.piezas[0].x = 520;
    p.piezas[0].y = 500;
    p.piezas[1].x = 800;
    p.piezas[1].y = 500;
    return p;
}

TEST(CopiaVentana, ControlZTakesTheLastMoveBackAndASignalLeavesTheCopy) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    programa.Escribe(DosSueltas());
    ASSERT_TRUE(programa.Arranca());
    const auto muestra = [&](int x, int y, int pieza) {
        return e.Espera([&] {
            const Foto f = e.Mira();
            return f.Cuenta(x, y, CELDA_ANCHO, CELDA_ALTO, Programa::ColorDeCuadro(pieza)) ==
                   CELDA_ANCHO * CELDA_ALTO;
        });
    };
    ASSERT_TRUE(muestra(520, 500, 0));
    e.Arrastra(600, 560, 600, 760);
    e.Arrastra(880, 560, 880, 860);
    ASSERT_TRUE(muestra(520, 700, 0));
    ASSERT_TRUE(muestra(800, 800, 1));
    e.TeclaConControl("z");
    EXPECT_TRUE(muestra(800, 500, 1)) << "back where it was";
    EXPECT_TRUE(muestra(520, 700, 0)) << "the move before stands";
    e.Mira().Guarda("deshacer");

    ASSERT_EQ(kill(programa.Pid(), SIGTERM), 0);
    EXPECT_EQ(programa.EsperaFin(), 0);
    const PartidaLeida copia = programa.LeeRecord(COPIA);
    ASSERT_EQ(copia.piezas.size(), 9U);
    EXPECT_EQ(copia.movimientos, 1);
    EXPECT_EQ(copia.piezas[0].x, 520);
    EXPECT_EQ(copia.piezas[0].y, 700);
    EXPECT_EQ(copia.piezas[1].y, 500);
    EXPECT_EQ(programa.LeePartida(21).piezas[0].y, 500) << "the game's own file is left alone";
}

// Both signals by which a session ends.
class FinVentana : public testing::TestWithParam<int> {
protected:
    // A game with one move in its log. `velocidad`: 0 to 100, or what a damaged file may say.
    void Empieza(int velocidad) {
        programa.Escribe(DosSueltas(), velocidad);
        ASSERT_TRUE(programa.Arranca());
        e.Arrastra(600, 560, 600, 760);
    }
    // Ended in order, with so many moves in the copy and the game's own file as it was.
    void TerminaConCopia(int movimientos, int y) {
        ASSERT_EQ(kill(programa.Pid(), GetParam()), 0);
        EXPECT_EQ(programa.EsperaFin(), 0);
        const PartidaLeida copia = programa.LeeRecord(COPIA);
        ASSERT_EQ(copia.piezas.size(), 9U);
        EXPECT_EQ(copia.movimientos, movimientos);
        EXPECT_EQ(copia.piezas[0].y, y);
        EXPECT_EQ(programa.LeePartida(21).piezas[0].y, 500);
        EXPECT_EQ(programa.Errores(), "");
    }

    Escritorio e{ANCHO, ALTO};
    Programa programa{e};
};

INSTANTIATE_TEST_SUITE_P(Senales, FinVentana, testing::Values(SIGTERM, SIGHUP),
                         [](const auto& s) { return s.param == SIGTERM ? "Term" : "Hup"; });

TEST_P(FinVentana, ASignalDuringPlayLeavesTheCopy) {
    Empieza(50);
    TerminaConCopia(1, 700);
}

// The piece that the pointer holds lies in the copy where it was taken from.
TEST_P(FinVentana, ASignalWhileAPieceIsInHandLeavesTheCopy) {
    Empieza(50);
    e.Mueve(600, 760);
    e.EsperaAtendido();
    e.Aprieta();
    e.Mueve(640, 860);
    e.EsperaAtendido();
    TerminaConCopia(1, 700);
}

TEST_P(FinVentana, ASignalWhileAMessageIsOpenLeavesTheCopy) {
    Empieza(50);
    programa.PulsaBoton(7);
    ASSERT_TRUE(e.Espera([&] { return e.HayVentana("Salir de TESSARIO"); }));
    TerminaConCopia(1, 700);
}

TEST_P(FinVentana, ASignalWhileTheSettingsAreOpenLeavesTheCopy) {
    Empieza(50);
    programa.PulsaBoton(2);
    ASSERT_TRUE(e.Espera([&] { return e.HayVentana("Personalizar"); }));
    e.EsperaAtendido();
    TerminaConCopia(1, 700);
}

// So slow that the run of one piece takes half a minute: it is not waited for.
TEST_P(FinVentana, ASignalInTheMiddleOfASlowRunLeavesTheCopy) {
    constexpr int LENTA = -99, ORDENA = 11;
    Empieza(LENTA);
    const Foto antes = e.Mira();
    const Programa::Lugar b = programa.Boton(ORDENA);
    e.Mueve(b.x, b.y);
    e.Aprieta();
    e.Suelta();
    // A piece is on its way.
    ASSERT_TRUE(e.Espera([&] { return e.Mira().Diferencia(antes, 0, 480, 1100, 480) > 1000; }));
    TerminaConCopia(2, 0);
}

}  // namespace
}  // namespace tessario::ventana
