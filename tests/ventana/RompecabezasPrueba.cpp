// SPDX-License-Identifier: GPL-3.0-or-later
// The jigsaw in the real program: played to the end with a real pointer, a drag seen on the screen,
// a click made during a pause, a press through a transparent corner.
#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int ANCHO = 1280, ALTO = 1024;
constexpr int CELDA_ANCHO = 160, CELDA_ALTO = 120;  // 480 x 360 cut in 3 by 3
constexpr unsigned MESA = 0x000080;                 // the default table, dark blue

// Pieces at home; the test then moves some away.
PartidaGuardada TresPorTres(int forma) {
    return DeCuadros(480, 360, 3, forma);
}

struct Centro {
    int x, y;
};
Centro CentroDe(const PiezaGuardada& q) {
    const bool tumbada = q.giro % 2 != 0;
    return {q.x + (tumbada ? CELDA_ALTO : CELDA_ANCHO) / 2,
            q.y + (tumbada ? CELDA_ANCHO : CELDA_ALTO) / 2};
}

TEST(RompecabezasVentana, ThreeByThreeIsPlayedToTheEndWithRotation) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    PartidaGuardada p = TresPorTres(0);
    for (int i = 0; i < 9; ++i) {
        auto& q = p.piezas[static_cast<std::size_t>(i)];
        q.x = 520 + i % 3 * 190;
        q.y = 400 + i / 3 * 190;
        q.giro = i % 4;
    }
    programa.Escribe(p, 50);
    ASSERT_TRUE(programa.Arranca());
    e.Mira().Guarda("rompecabezas-antes");

    for (std::size_t i = 0; i < 9; ++i) {
        const PiezaGuardada& q = p.piezas[i];
        const Centro c = CentroDe(q);
        EXPECT_EQ(e.Mira().En(c.x, c.y), Programa::ColorDeCuadro(static_cast<int>(i)));
        for (int vueltas = q.giro == 0 ? 0 : 4 - q.giro; vueltas > 0; --vueltas) {
            e.Pulsa(c.x, c.y, 3);
        }
        // Six pixels off: the attraction does the rest.
        e.Arrastra(c.x, c.y, q.xBien + CELDA_ANCHO / 2 + 6, q.yBien + CELDA_ALTO / 2 - 6);
    }
    ASSERT_TRUE(e.Espera([&] { return e.HayVentana("TESSARIO"); }));
    e.EsperaQuieto();
    e.Mira().Guarda("rompecabezas-fin");
    Escritorio::Marco marco;
    ASSERT_TRUE(e.BuscaVentana("TESSARIO", marco));
    EXPECT_TRUE(marco.x >= 480 || marco.y >= 360) << "clear of the finished picture";
    e.Tecla("Return");
    e.EsperaQuieto();
    const Foto fin = e.Mira();
    for (int i = 0; i < 9; ++i) {
        const unsigned color = Programa::ColorDeCuadro(i);
        EXPECT_EQ(
            fin.Cuenta(i % 3 * CELDA_ANCHO, i / 3 * CELDA_ALTO, CELDA_ANCHO, CELDA_ALTO, color),
            CELDA_ANCHO * CELDA_ALTO)
            << "cell " << i;
    }
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida leida = programa.LeePartida(21);
    EXPECT_EQ(leida.piezas.size(), 9U);
    CompruebaResuelta(leida);
}

TEST(RompecabezasVentana, CongratulationMovesOffThePictureThatItWouldCover) {
    Escritorio e(800, 600);
    Programa programa(e);
    PartidaGuardada p = TresPorTres(0);
    for (auto& q : p.piezas) {
        q.x = q.xBien;
        q.y = q.yBien;
    }
    p.piezas[8].x = 20;
    p.piezas[8].y = 420;
    p.archivable = true;
    programa.Escribe(p, 50);
    ASSERT_TRUE(programa.Arranca());
    const Centro c = CentroDe(p.piezas[8]);
    e.Arrastra(c.x, c.y, 320 + CELDA_ANCHO / 2 + 4, 240 + CELDA_ALTO / 2 + 4);
    // In the middle of the screen it would begin at 228; the picture ends at 360.
    for (const char* titulo : {"TESSARIO", "Histórico de puzzles resueltos"}) {
        Escritorio::Marco marco;
        ASSERT_TRUE(e.Espera([&] { return e.BuscaVentana(titulo, marco); })) << titulo;
        e.EsperaQuieto();
        EXPECT_EQ(marco.y, 372) << titulo;
        EXPECT_EQ(e.Mira().Cuenta(0, 0, 480, 360, 0), 0) << "all of the picture is in view";
        e.Mira().Guarda(std::string("final-") + titulo[0]);
        ASSERT_TRUE(e.Responde(titulo, false));
    }
    ASSERT_TRUE(programa.Sale());
}

TEST(RompecabezasVentana, DragIsSeenOnTheWay) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    PartidaGuardada p = TresPorTres(0);
    p.piezas[4].x = 700;
    p.piezas[4].y = 300;
    programa.Escribe(p, 50);
    ASSERT_TRUE(programa.Arranca());
    const unsigned color = Programa::ColorDeCuadro(4);
    e.Mueve(780, 360);
    e.Aprieta();
    for (int paso = 1; paso <= 5; ++paso) {
        const int y = 360 + paso * 80;
        e.Mueve(780, y);
        ASSERT_TRUE(e.Espera([&] {
            const Foto f = e.Mira();
            return f.Cuenta(700, y - 60, CELDA_ANCHO, CELDA_ALTO, color) ==
                   CELDA_ANCHO * CELDA_ALTO;
        })) << "step "
            << paso;
        // What it left shows the table again: nothing of the piece remains above it.
        EXPECT_EQ(e.Mira().Cuenta(700, 300, CELDA_ANCHO, y - 60 - 300, MESA),
                  CELDA_ANCHO * (y - 60 - 300));
    }
    e.Suelta();
    e.EsperaQuieto();
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida leida = programa.LeePartida(21);
    EXPECT_EQ(leida.piezas[4].x, 700);
    EXPECT_EQ(leida.piezas[4].y, 700);
    EXPECT_EQ(leida.movimientos, 1);
}

TEST(RompecabezasVentana, ClickDuringAPauseIsDeliveredAfterwards) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    PartidaGuardada p = TresPorTres(0);
    p.piezas[0].x = 600;
    p.piezas[0].y = 600;
    p.piezas[1].x = 600;
    p.piezas[1].y = 800;
    programa.Escribe(p, 0);  // the slowest: a turn holds for 1280 milliseconds
    ASSERT_TRUE(programa.Arranca());

    e.Mueve(680, 660);
    e.EsperaQuieto(100);
    const Foto antes = e.Mira();
    e.Aprieta(3);
    ASSERT_TRUE(e.Espera([&] { return e.Mira().Diferencia(antes, 600, 560, 200, 200) > 500; }));
    // The turn is on the screen and its pause runs: a whole drag of the other piece is made in it.
    e.Suelta(3);
    e.Mueve(680, 860);
    e.Aprieta();
    e.Mueve(980, 860);
    e.Suelta();
    const Foto durante = e.Mira();
    EXPECT_EQ(durante.Cuenta(600, 800, CELDA_ANCHO, CELDA_ALTO, Programa::ColorDeCuadro(1)),
              CELDA_ANCHO * CELDA_ALTO)
        << "nothing is delivered while the pause runs";
    ASSERT_TRUE(e.Espera([&] {
        return e.Mira().Cuenta(900, 800, CELDA_ANCHO, CELDA_ALTO, Programa::ColorDeCuadro(1)) ==
               CELDA_ANCHO * CELDA_ALTO;
    })) << "afterwards the drag happens";
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida leida = programa.LeePartida(21);
    EXPECT_EQ(leida.piezas[0].giro, 1);
    EXPECT_EQ(leida.piezas[1].x, 900);
    EXPECT_EQ(leida.piezas[1].y, 800);
}

TEST(RompecabezasVentana, PressOnATransparentCornerTakesThePieceBelow) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    PartidaGuardada p = TresPorTres(4);
    // The circle of the first cell lies over the frame of the second; both boxes coincide.
    p.piezas[0].x = p.piezas[3].x = 700;
    p.piezas[0].y = p.piezas[3].y = 600;
    programa.Escribe(p, 50);
    ASSERT_TRUE(programa.Arranca());
    e.Arrastra(704, 604, 904, 704);
    e.EsperaQuieto();
    e.Mira().Guarda("rompecabezas-esquina");
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida leida = programa.LeePartida(21);
    EXPECT_EQ(leida.piezas[0].x, 700) << "the circle stays";
    EXPECT_EQ(leida.piezas[0].y, 600);
    EXPECT_EQ(leida.piezas[3].x, 900) << "the frame below came along";
    EXPECT_EQ(leida.piezas[3].y, 700);
    EXPECT_EQ(leida.orden[0], 4);
}

}  // namespace
}  // namespace tessario::ventana
