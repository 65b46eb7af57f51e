// SPDX-License-Identifier: GPL-3.0-or-later
// What moves over the table, on the screen: the strip stays, whatever view is moved beside it or
// under it; keys and second clicks behind a turning piece; the piece that turns in the hand.
#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int ANCHO = 1280, ALTO = 1024;
constexpr int TIRA = 141, TIRA_ALTO = 370;  // without the clock, which changes by itself

struct Juego {
    Escritorio e;
    Programa programa{e};

    explicit Juego(const PartidaGuardada& p, bool sugerencias = false, int ancho = ANCHO,
                   int alto = ALTO)
        : e(ancho, alto) {
        programa.EscribeGlobal(p.juego, 50, false, sugerencias);
        if (!p.imagen.empty())
            programa.EscribeImagenDeCuadros(p.imagen, p.anchoImagen, p.altoImagen, 3);
        programa.EscribePartida(p);
    }
    // What has changed of the strip; `derecha` is what stands to its right.
    int Cambios(const Foto& antes, int derecha) {
        return e.Mira().Diferencia(antes, antes.ancho - TIRA - derecha, 0, TIRA, TIRA_ALTO);
    }
};

TEST(VistasVentana, StripStaysWhenTheSampleIsMoved) {
    PartidaGuardada p = DeCuadros(480, 360, 3);
    p.muestra = true;
    p.piezas[4].x = 700;
    p.piezas[4].y = 60;
    Juego j(p);
    ASSERT_TRUE(j.programa.Arranca());
    j.e.Mueve(640, 900);
    j.e.EsperaQuieto();
    const Foto antes = j.e.Mira();
    // The sample is half the picture, in the lower right corner.
    int x = ANCHO - 100, y = ALTO - 80;
    const int lugares[][2] = {{500, 700}, {1000, 600}, {1150, 900}, {300, 300}, {1100, 800}};
    int n = 0;
    for (const auto& a : lugares) {
        // A piece moves in the upper part of the table, near the strip, and back.
        const int px = 780 + n % 2 * 150;
        j.e.Arrastra(px, 120, 780 + (n + 1) % 2 * 150, 120);
        j.e.Arrastra(x, y, a[0], a[1]);
        x = a[0];
        y = a[1];
        j.e.EsperaQuieto();
        EXPECT_EQ(j.Cambios(antes, 0), 0) << "after move " << ++n;
    }
    j.e.Mira().Guarda("vistas-muestra");
}

TEST(VistasVentana, StripStaysWhenTheTableAndTheHintPanelScroll) {
    PartidaGuardada p = DeCuadros(750, 570, 3);
    p.muestra = true;
    p.piezas[0].x = 500;
    p.piezas[0].y = 250;
    Juego j(p, true, 800, 600);
    ASSERT_TRUE(j.programa.Arranca());
    j.e.Mueve(150, 60);
    j.e.EsperaQuieto();
    const Foto antes = j.e.Mira();
    int desplazado = 0;
    for (const int boton : {5, 5, 4, 5, 4, 4}) {
        j.e.Pulsa(150, 60, boton);  // the wheel, where the first piece is missing
        j.e.EsperaQuieto();
        EXPECT_EQ(j.Cambios(antes, 17), 0) << "wheel " << boton;
        desplazado += j.e.Mira().Diferencia(antes, 0, 0, 600, 400) > 1000;
    }
    EXPECT_GE(desplazado, 3) << "it did scroll";
    j.e.Mira().Guarda("vistas-barras");
}

TEST(VistasVentana, StripStaysWhenTheOptionsPanelMoves) {
    PartidaGuardada p = DeCuadros(480, 360, 3);
    p.piezas[4].x = 700;
    p.piezas[4].y = 60;
    Juego j(p);
    ASSERT_TRUE(j.programa.Arranca());
    j.e.EsperaQuieto();
    const Foto antes = j.e.Mira();
    const int lugares[][2] = {{1100, 600}, {600, 500}, {1100, 40}, {640, 980}, {1130, 900}};
    for (const auto& a : lugares) {
        j.e.Arrastra(780, 120, 790, 130);
        j.e.Arrastra(790, 130, 780, 120);
        j.e.Pulsa(a[0], a[1], 3);
        j.e.EsperaQuieto();
        EXPECT_EQ(j.Cambios(antes, 0), 0) << a[0] << "," << a[1];
    }
    // Esc closes the panel and leaves the window where it is.
    const Foto con = j.e.Mira();
    j.e.Tecla("Escape");
    j.e.EsperaQuieto();
    EXPECT_GT(j.e.Mira().Diferencia(con, 980, 900, 150, 60), 1000);
    EXPECT_EQ(j.Cambios(antes, 0), 0);
    // The menu key opens it without a mouse.
    j.e.Tecla("Menu");
    j.e.EsperaQuieto();
    j.e.Mira().Guarda("vistas-opciones");
    j.e.Tecla("Return");
    EXPECT_TRUE(j.e.Espera([&] { return j.e.HayVentana("Archivar el puzzle actual"); }))
        << "its first row has the keys";
}

PartidaGuardada Tangram() {
    PartidaGuardada p;
    p.juego = 23;
    p.porLado = 5;
    for (int i = 0; i < 7; ++i) {
        PiezaGuardada q;
        q.x = 60 + i % 4 * 240;
        q.y = 300 + i / 4 * 260;
        q.xBien = 30;
        q.yBien = 30;
        p.piezas.push_back(q);
    }
    return p;
}

TEST(VistasVentana, KeyPressedWhileAPieceTurnsIsNotLost) {
    Juego j(Tangram());
    ASSERT_TRUE(j.programa.Arranca());
    // The square, 63 a side, then V before the turn's pause has ended.
    j.e.Mueve(60 + 240 + 31, 560 + 31);
    j.e.Aprieta(3);
    j.e.Suelta(3);
    j.e.Tecla("v");
    j.e.EsperaQuieto();
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida leida = j.programa.LeePartida(23);
    EXPECT_EQ(leida.piezas[5].giro, 1);
    EXPECT_EQ(leida.piezas[6].volteo, 1);
    EXPECT_EQ(leida.movimientos, 2);
}

TEST(VistasVentana, QuickDoubleRightClicksTurnAndOpenNoPanel) {
    Juego j(Tangram());
    ASSERT_TRUE(j.programa.Arranca());
    j.e.Mueve(60 + 240 + 31, 560 + 31);
    for (int i = 0; i < 2; ++i) {
        j.e.Aprieta(3);
        j.e.Suelta(3);
    }
    // The second turn begins when the first one is done: on a busy machine there is a pause.
    j.e.EsperaQuieto(1000);
    j.e.Mira().Guarda("vistas-doble");
    EXPECT_EQ(j.e.Mira().Cuenta(300, 560, 170, 70, 0xF4E9D2), 0) << "the panel's ground";
    ASSERT_TRUE(j.programa.Sale());
    EXPECT_EQ(j.programa.LeePartida(23).piezas[5].giro, 2);
}

TEST(VistasVentana, PieceTurnsInTheHandAndTheDragGoesOn) {
    PartidaGuardada p = DeCuadros(480, 360, 3);
    p.piezas[4].x = 600;
    p.piezas[4].y = 400;
    Juego j(p);
    ASSERT_TRUE(j.programa.Arranca());
    j.e.Mueve(680, 460);
    j.e.EsperaAtendido();
    j.e.Aprieta(1);
    j.e.EsperaAtendido();
    j.e.Mueve(700, 480);
    j.e.EsperaAtendido();
    j.e.Aprieta(3);
    j.e.Suelta(3);
    j.e.EsperaQuieto();
    j.e.Pulsa(700, 480, 4);  // and once more by the wheel
    j.e.Mueve(720, 520);
    j.e.EsperaAtendido();
    j.e.Suelta(1);
    j.e.EsperaQuieto();
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida leida = j.programa.LeePartida(21);
    EXPECT_EQ(leida.piezas[4].giro, 2);
    EXPECT_EQ(leida.piezas[4].x, 640);
    EXPECT_EQ(leida.piezas[4].y, 460);
    EXPECT_EQ(leida.movimientos, 4) << "way, turn, turn, way";
}

TEST(VistasVentana, PiecesOfALargerScreenComeIntoReach) {
    PartidaGuardada p = DeCuadros(480, 360, 3);
    p.piezas[3].x = 2300;
    p.piezas[3].y = 200;
    p.piezas[7].x = 700;
    p.piezas[7].y = 1300;
    p.piezas[8].x = 900;
    p.piezas[8].y = 500;
    Juego j(p);
    ASSERT_TRUE(j.programa.Arranca());
    j.e.EsperaQuieto();
    const Foto f = j.e.Mira();
    f.Guarda("vistas-alcance");
    for (const int i : {3, 7, 8})
        EXPECT_GE(f.Cuenta(500, 0, ANCHO - 500, ALTO, Programa::ColorDeCuadro(i)), 160 * 120 / 2)
            << i;
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida leida = j.programa.LeePartida(21);
    EXPECT_EQ(leida.piezas[3].x, ANCHO - TIRA - 80) << "clear of the strip";
    EXPECT_EQ(leida.piezas[3].y, 200);
    EXPECT_EQ(leida.piezas[7].y, ALTO - 60);
    EXPECT_EQ(leida.piezas[8].x, 900);
    EXPECT_EQ(leida.movimientos, 0);
}

TEST(VistasVentana, LoneModifierAnswersNoMessage) {
    Juego j(DeCuadros(480, 360, 3));
    ASSERT_TRUE(j.programa.Arranca());
    j.programa.PulsaBoton(7);
    ASSERT_TRUE(j.e.Espera([&] { return j.e.HayVentana("Salir de TESSARIO"); }));
    for (const char* tecla : {"Shift_L", "Control_R", "Alt_L", "Num_Lock", "Caps_Lock"}) {
        j.e.Tecla(tecla);
        EXPECT_TRUE(j.e.HayVentana("Salir de TESSARIO")) << tecla;
    }
    j.e.Tecla("Caps_Lock");
    j.e.Tecla("Num_Lock");
    j.e.Tecla("KP_Begin");
    EXPECT_EQ(j.programa.EsperaFin(), 0) << "every other key means yes";
}

}  // namespace
}  // namespace tessario::ventana
