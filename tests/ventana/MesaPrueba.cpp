// SPDX-License-Identifier: GPL-3.0-or-later
// Around the table in the real program: arranging, solving and taking back a jigsaw, the recorder
// step by step, edge scrolling, the options panel, the sample view, the keyboard.
#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int ANCHO = 1024, ALTO = 768;
constexpr int BOTONERA = ANCHO - 141;  // its left edge

// The recorder's panel stands at (77, 378) of the strip; centres of its keys.
struct Tecla {
    int x, y;
};
constexpr Tecla MANDO{BOTONERA + 77 + 25, 378 + 12}, ATRAS{BOTONERA + 77 + 14, 378 + 31},
    ADELANTE{BOTONERA + 77 + 35, 378 + 31}, AUTO_ATRAS{BOTONERA + 77 + 14, 378 + 47},
    AUTO_ADELANTE{BOTONERA + 77 + 35, 378 + 47}, RESTAURAR{BOTONERA + 77 + 24, 378 + 63};
void Pulsa(Escritorio& e, const Tecla& t) {
    e.Pulsa(t.x, t.y);
    e.EsperaQuieto(150);
}

// 5 by 5 flat squares of 96x72, spread over the table's right and lower part, turned in part.
PartidaGuardada CincoPorCinco() {
    PartidaGuardada p = DeCuadros(480, 360, 5);
    for (int i = 0; i < 25; ++i) {
        PiezaGuardada& q = p.piezas[static_cast<std::size_t>(i)];
        q.x = i < 10 ? 500 + i % 3 * 110 : 10 + (i - 10) % 8 * 105;
        q.y = i < 10 ? 10 + i / 3 * 100 : 420 + (i - 10) / 8 * 120;
        q.giro = i % 4;
    }
    return p;
}

TEST(MesaVentana, TwentyFivePiecesArrangedSolvedAndTakenBackToTheStart) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    const PartidaGuardada p = CincoPorCinco();
    programa.Escribe(p);
    ASSERT_TRUE(programa.Arranca());
    const Foto inicio = e.Mira();
    inicio.Guarda("mesa-25-inicio");

    programa.PulsaBoton(11);
    e.EsperaQuieto(400);
    e.Mira().Guarda("mesa-25-ordenadas");
    // They stand in columns beside the strip, from its edge to the left.
    EXPECT_GT(e.Mira().Diferencia(inicio, 0, 0, BOTONERA, ALTO), 25 * 1000);

    programa.PulsaBoton(12);
    const auto terminada = [&] {
        const Foto f = e.Mira();
        for (int i = 0; i < 25; ++i)
            if (f.Cuenta(i % 5 * 96, i / 5 * 72, 96, 72, Programa::ColorDeCuadro(i)) != 96 * 72)
                return false;
        return true;
    };
    ASSERT_TRUE(e.Espera(terminada, 60000));
    e.EsperaQuieto();
    e.Mira().Guarda("mesa-25-resueltas");

    Pulsa(e, MANDO);
    Pulsa(e, AUTO_ATRAS);
    e.EsperaQuieto(400, 60000);
    e.Mira().Guarda("mesa-25-vueltas");
    Pulsa(e, RESTAURAR);
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida leida = programa.LeePartida(21);
    EXPECT_FALSE(leida.terminado);
    EXPECT_EQ(leida.movimientos, 0);
    ASSERT_EQ(leida.piezas.size(), 25U);
    for (std::size_t i = 0; i < 25; ++i) {
        EXPECT_EQ(leida.piezas[i].x, p.piezas[i].x) << i + 1;
        EXPECT_EQ(leida.piezas[i].y, p.piezas[i].y) << i + 1;
        EXPECT_EQ(leida.piezas[i].giro, p.piezas[i].giro) << i + 1;
    }
}

TEST(MesaVentana, RecorderWalksATangramBackAndForthStepByStep) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    PartidaGuardada p = DeTangram(2);
    p.atraccion = false;
    p.factor = 0;
    PonEnFilas(p, 30, 400, 210, 180);
    for (int i = 0; i < 7; ++i) {
        PiezaGuardada& q = p.piezas[static_cast<std::size_t>(i)];
        q.xBien = 10 + i * 20;  // a heap in the corner, where no piece is put
        q.yBien = 10;
    }
    programa.Escribe(p, 50);
    ASSERT_TRUE(programa.Arranca());
    const auto mira = [&] {
        e.Mueve(600, 60);  // free table
        e.EsperaQuieto(100);
        return e.Mira();
    };
    const auto igual = [&](const Foto& f) { return mira().Diferencia(f, 0, 0, BOTONERA, ALTO); };
    std::vector<Foto> pasos{mira()};
    // The square, a small triangle and a big one are carried off; one is turned, one turned over.
    e.Arrastra(p.piezas[5].x + 31, p.piezas[5].y + 31, 420, 200);
    pasos.push_back(mira());
    e.Arrastra(p.piezas[3].x + 44, p.piezas[3].y + 26, 600, 240);
    pasos.push_back(mira());
    e.Pulsa(p.piezas[2].x + 62, p.piezas[2].y + 38, 3);
    pasos.push_back(mira());
    e.Mueve(p.piezas[6].x + 66, p.piezas[6].y + 22);
    e.Tecla("v");
    pasos.push_back(mira());
    e.Arrastra(p.piezas[0].x + 88, p.piezas[0].y + 54, 250, 280);
    pasos.push_back(mira());
    for (std::size_t i = 1; i < pasos.size(); ++i)
        ASSERT_GT(pasos[i].Diferencia(pasos[i - 1], 0, 0, BOTONERA, ALTO), 100) << i;

    Pulsa(e, MANDO);
    for (std::size_t i = pasos.size() - 1; i-- > 1;) {
        Pulsa(e, ATRAS);
        EXPECT_EQ(igual(pasos[i]), 0) << "back to " << i;
    }
    Pulsa(e, ATRAS);
    EXPECT_EQ(igual(pasos[1]), 0) << "one step at a time the first move stays";
    Pulsa(e, ADELANTE);
    EXPECT_EQ(igual(pasos[2]), 0);
    Pulsa(e, AUTO_ATRAS);
    e.EsperaQuieto(500);
    EXPECT_EQ(igual(pasos[0]), 0) << "by itself it goes to the start";
    Pulsa(e, AUTO_ADELANTE);
    e.EsperaQuieto(500);
    EXPECT_EQ(igual(pasos[5]), 0);
    Pulsa(e, MANDO);
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida leida = programa.LeePartida(23);
    EXPECT_EQ(leida.movimientos, 5);
    EXPECT_EQ(leida.piezas[2].giro, 1);
    EXPECT_EQ(leida.piezas[6].volteo, 1);
    EXPECT_EQ(leida.piezas[5].x, p.piezas[5].x + 420 - p.piezas[5].x - 31);
}

TEST(MesaVentana, APieceIsCarriedBeyondTheScreenByEdgeScrolling) {
    Escritorio e(800, 600);
    Programa programa(e);
    PartidaGuardada p = DeCuadros(1024, 768, 4);
    p.piezas[0].x = 100;
    p.piezas[0].y = 150;
    programa.Escribe(p);
    ASSERT_TRUE(programa.Arranca());
    const Foto antes = e.Mira();
    antes.Guarda("mesa-bordes-antes");
    const unsigned color = Programa::ColorDeCuadro(0);
    ASSERT_EQ(antes.En(228, 246), color);
    e.Mueve(228, 246);
    e.EsperaAtendido();
    e.Aprieta();
    // The lower bar begins at 583; each move on it brings 16 pixels more, until the pointer leaves
    // the table, 768 + 200 high, at 590 + 384.
    for (int i = 0; i < 30; ++i) {
        e.Mueve(228 + i % 2, 590);
        e.EsperaAtendido();
    }
    e.Mueve(228, 500);
    e.EsperaQuieto(150);
    const Foto bajo = e.Mira();
    bajo.Guarda("mesa-bordes-bajo");
    EXPECT_EQ(bajo.En(228, 500), color) << "the piece is where the pointer is";
    e.Suelta();
    e.EsperaQuieto(150);
    EXPECT_EQ(e.Mira().En(228, 500), color);
    // Row 300 of the screen is row 684 of the table: the fourth row of cells, where it was empty.
    EXPECT_EQ(e.Mira().En(600, 300), Programa::ColorDeCuadro(14));
    const auto boton = programa.Boton(7, true);
    e.Pulsa(boton.x, boton.y);
    ASSERT_TRUE(e.Responde("Salir de TESSARIO", true));
    ASSERT_EQ(programa.EsperaFin(), 0);
    const PartidaLeida leida = programa.LeePartida(21);
    EXPECT_EQ(leida.piezas[0].x, 100);
    EXPECT_EQ(leida.piezas[0].y, 150 + 500 - 246 + 384);
}

TEST(MesaVentana, OptionsPanelSampleViewAndKeyboard) {
    constexpr int PANEL_ANCHO = 150, PANEL_ALTO = 3 * 18 + 4;
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    programa.Escribe(CincoPorCinco());
    ASSERT_TRUE(programa.Arranca());

    // A right click on the free table opens the panel there; a press on the table closes it.
    e.Mueve(200, 150);
    e.EsperaQuieto(100);
    const Foto antes = e.Mira();
    e.Pulsa(200, 150, 3);
    const Foto abierto = e.Mira();
    abierto.Guarda("mesa-opciones");
    EXPECT_EQ(abierto.Diferencia(antes, 200, 150, PANEL_ANCHO, PANEL_ALTO),
              PANEL_ANCHO * PANEL_ALTO);
    EXPECT_EQ(abierto.Diferencia(antes, 0, 0, BOTONERA, ALTO), PANEL_ANCHO * PANEL_ALTO);
    e.Mueve(250, 150 + 4 + 18 + 8);
    e.EsperaAtendido();
    const Foto segunda = e.Mira();
    EXPECT_GT(segunda.Diferencia(abierto, 202, 150 + 20, PANEL_ANCHO - 4, 18), 1000) << "lit";
    EXPECT_EQ(segunda.Diferencia(abierto, 202, 150 + 2, PANEL_ANCHO - 4, 18), 0)
        << "the others not";
    e.Pulsa(100, 100);
    EXPECT_EQ(e.Mira().Diferencia(antes, 0, 0, BOTONERA, ALTO), 0);

    // The sample, 240x180, comes up beside the strip and is dragged away.
    programa.PulsaBoton(8);
    e.Mueve(20, 380);
    e.EsperaQuieto(100);
    constexpr int MX = BOTONERA - 240, MY = ALTO - 180;
    const Foto muestra = e.Mira();
    e.Arrastra(MX + 120, MY + 90, MX - 280, MY - 370);
    e.Mueve(20, 380);
    e.EsperaQuieto(100);
    const Foto movida = e.Mira();
    movida.Guarda("mesa-muestra");
    int distintos = 0;
    for (int y = 0; y < 180; ++y)
        for (int x = 0; x < 240; ++x)
            distintos += movida.En(MX - 400 + x, MY - 460 + y) != muestra.En(MX + x, MY + y);
    EXPECT_EQ(distintos, 0) << "all of it at the new place";
    EXPECT_GT(movida.Diferencia(muestra, MX, MY, 240, 180), 1000) << "and gone from the old";

    // Tab walks to the help button, which shows it, and Space presses it.
    const auto ayuda = programa.Boton(6);
    bool enfocado = false;
    for (int i = 0; i < 20 && !enfocado; ++i) {
        e.Tecla("Tab");
        enfocado = e.Mira().Diferencia(movida, ayuda.x - 24, ayuda.y - 24, 48, 48) > 40;
    }
    e.Mira().Guarda("mesa-foco");
    ASSERT_TRUE(enfocado);
    e.Tecla("space");
    ASSERT_TRUE(e.Espera([&] { return e.HayVentana("Ayuda de Tessario"); }));
    e.Tecla("Escape");
    ASSERT_TRUE(e.Espera([&] { return !e.HayVentana("Ayuda de Tessario"); }));
    EXPECT_TRUE(programa.Sale());
}

}  // namespace
}  // namespace tessario::ventana
