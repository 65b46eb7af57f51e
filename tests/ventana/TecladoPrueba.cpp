// SPDX-License-Identifier: GPL-3.0-or-later
// Each game in the real program from the first piece to the last, and out of the program, with keys
// alone; and the mouse that comes back.
#include <cstdlib>

#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int ANCHO = 1024, ALTO = 768;
constexpr int PASO = 8;

struct Lugar {
    int x, y;
};

// A player without a mouse. The cross is where Home has put it, and then where the arrows went.
class Mano {
public:
    Mano(Escritorio& e, Programa& p, Lugar puzzle) : e_(e), p_(p), puzzle_(puzzle) {}

    void AlPuzzle() {
        e_.Tecla("Home");
        x_ = puzzle_.x;
        y_ = puzzle_.y;
    }
    void Ve(Lugar a) {
        Camina(a.x - x_, "Left", "Right");
        Camina(a.y - y_, "Up", "Down");
        x_ = a.x;
        y_ = a.y;
    }
    void Lleva(Lugar desde, Lugar hasta) {
        Ve(desde);
        e_.Tecla("space");
        Ve(hasta);
        e_.Tecla("space");
    }
    // Through the exit command, answering yes. The cross has gone with the end of the game.
    bool Sale() {
        AlPuzzle();
        const auto b = p_.Boton(7);
        Ve({b.x, b.y});
        e_.Tecla("space");
        if (!e_.Espera([&] { return e_.HayVentana("Salir de TESSARIO"); })) return false;
        e_.EsperaQuieto(120);
        e_.Tecla("Return");
        return p_.EsperaFin() == 0;
    }
    bool CierraFelicitacion() {
        if (!e_.Espera([&] { return e_.HayVentana("TESSARIO"); })) return false;
        e_.EsperaQuieto(120);
        e_.Tecla("Return");
        return e_.Espera([&] { return !e_.HayVentana("TESSARIO"); });
    }

private:
    void Camina(int cuanto, const char* menos, const char* mas) {
        const char* const tecla = cuanto < 0 ? menos : mas;
        const int n = std::abs(cuanto);
        if (n / PASO) e_.Teclas(tecla, n / PASO);
        if (n % PASO) e_.Teclas(tecla, n % PASO, "Control_L");
    }
    Escritorio& e_;
    Programa& p_;
    Lugar puzzle_;
    int x_ = 0, y_ = 0;
};

TEST(TecladoVentana, JigsawIsPlayedToTheEnd) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    PartidaGuardada p = DeCuadros(360, 270, 3);
    for (int i = 0; i < 9; ++i) {
        PiezaGuardada& q = p.piezas[static_cast<std::size_t>(i)];
        q.x = 420 + i % 3 * 140;
        q.y = 320 + i / 3 * 140;
        q.giro = i % 4;
    }
    programa.Escribe(p);
    ASSERT_TRUE(programa.Arranca());
    Mano mano(e, programa, {180, 135});
    mano.AlPuzzle();
    for (std::size_t i = 0; i < 9; ++i) {
        const PiezaGuardada& q = p.piezas[i];
        const bool tumbada = q.giro % 2 != 0;
        const Lugar centro{q.x + (tumbada ? 45 : 60), q.y + (tumbada ? 60 : 45)};
        const Lugar meta{q.xBien + 65, q.yBien + 40};  // the attraction does the rest
        const int vueltas = (4 - q.giro) % 4;
        mano.Ve(centro);
        if (i == 1) e.Mira().Guarda("teclado-rompecabezas");
        // Half of them are turned where they lie, the others in hand.
        if (i % 2 == 0) e.Teclas("r", vueltas);
        e.Tecla("space");
        if (i % 2 == 1) e.Teclas("r", vueltas);
        mano.Ve(meta);
        if (i == 3) e.Mira().Guarda("teclado-en-mano");
        e.Tecla("space");
    }
    ASSERT_TRUE(mano.CierraFelicitacion());
    e.Mira().Guarda("teclado-rompecabezas-fin");
    ASSERT_TRUE(mano.Sale());
    CompruebaResuelta(programa.LeePartida(21));
}

TEST(TecladoVentana, TangramIsPlayedToTheEnd) {
    // A figure of pieces apart from each other; the last three are away, one turned, one face down.
    static constexpr int BIEN[7][2] = {{40, 40},   {240, 40},  {40, 160}, {320, 160},
                                       {200, 160}, {440, 160}, {560, 160}};
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    PartidaGuardada p = DeTangram(2);
    for (std::size_t i = 0; i < 7; ++i) {
        auto& q = p.piezas[i];
        q.xBien = BIEN[i][0];
        q.yBien = BIEN[i][1];
        q.x = i < 4 ? q.xBien : 100 + static_cast<int>(i - 4) * 200;
        q.y = i < 4 ? q.yBien : 420;
    }
    p.piezas[5].giro = 7;
    p.piezas[6].volteo = 1;
    programa.Escribe(p);
    ASSERT_TRUE(programa.Arranca());
    // A margin of 26 pixels and half of the figure, 651 by 181.
    Mano mano(e, programa, {351, 116});
    mano.AlPuzzle();
    mano.Lleva({145, 455}, {245 + 4, 195 - 3});
    // The square, 89 a side on its corner, turns about its middle.
    mano.Ve({344, 464});
    e.Tecla("r");
    e.Mira().Guarda("teclado-tangram");
    mano.Lleva({344, 464}, {471 - 4, 191 + 3});
    mano.Ve({566, 442});
    e.Tecla("space");
    e.Tecla("v");
    mano.Ve({626, 182});
    e.Tecla("space");
    ASSERT_TRUE(mano.CierraFelicitacion());
    ASSERT_TRUE(mano.Sale());
    CompruebaResuelta(programa.LeePartida(23));
}

TEST(TecladoVentana, SlidingPuzzleIsPlayedToTheEnd) {
    // (768 - 65) / 5 = 140.6 -> 141; 423 wide; margins (883 - 423) / 2 and (703 - 423) / 2.
    constexpr int CELDA = 141, MARGEN_X = 230, MARGEN_Y = 140, HUECO = 6;
    constexpr int CELDAS[] = {1, 2, 3, 4, 5, 6, 0, 7, 8};
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    programa.EscribeGlobal(22, 100);
    PartidaGuardada p;
    p.juego = 22;
    p.piezas.resize(8);
    const auto x = [](int celda) { return MARGEN_X + celda % 3 * CELDA; };
    const auto y = [](int celda) { return MARGEN_Y + celda / 3 * CELDA; };
    for (int celda = 0; celda < 9; ++celda) {
        if (celda == HUECO) continue;
        const int pieza = CELDAS[celda] - 1;
        p.piezas[static_cast<std::size_t>(pieza)] = {x(celda), y(celda), 0, 0,
                                                     x(pieza), y(pieza), 0, 0};
    }
    p.huecoX = x(HUECO);
    p.huecoY = y(HUECO);
    programa.EscribePartida(p);
    ASSERT_TRUE(programa.Arranca());
    const Foto antes = e.Mira();
    // There is no piece beside or below the corner that could go these ways.
    e.Tecla("Right");
    e.Tecla("Up");
    EXPECT_EQ(e.Mira().Diferencia(antes, MARGEN_X, MARGEN_Y, 3 * CELDA, 3 * CELDA), 0);
    e.Tecla("Down");
    EXPECT_GT(e.Mira().Diferencia(antes, MARGEN_X, MARGEN_Y, 3 * CELDA, 3 * CELDA), 1000);
    e.Tecla("Up");
    EXPECT_EQ(e.Mira().Diferencia(antes, MARGEN_X, MARGEN_Y, 3 * CELDA, 3 * CELDA), 0);
    e.Tecla("Left");
    e.Tecla("Left");
    Mano mano(e, programa, {x(4) + CELDA / 2, y(4) + CELDA / 2});
    ASSERT_TRUE(mano.CierraFelicitacion());
    // Here the arrows move the cross with Shift; the exit command is reached by Tab as well.
    e.Teclas("Tab", 6);
    e.Tecla("space");
    ASSERT_TRUE(e.Espera([&] { return e.HayVentana("Salir de TESSARIO"); }));
    e.EsperaQuieto(120);
    e.Tecla("Return");
    ASSERT_EQ(programa.EsperaFin(), 0);
    const PartidaLeida leida = programa.LeePartida(22);
    EXPECT_TRUE(leida.terminado);
    EXPECT_EQ(leida.movimientos, 4);
}

TEST(TecladoVentana, PieceIsCarriedBeyondTheViewOnASmallScreenAndTheTutorAsked) {
    Escritorio e(800, 600);
    Programa programa(e);
    PartidaGuardada p = DeCuadros(900, 720, 3);
    p.piezas[7].x = 60;  // its place is out of view, at (300, 480)
    p.piezas[7].y = 40;
    p.orden = {8, 1, 2, 3, 4, 5, 6, 7, 9};
    programa.Escribe(p);
    ASSERT_TRUE(programa.Arranca());
    Mano mano(e, programa, {450, 360});
    mano.AlPuzzle();

    // The tutor is the third command that Tab comes to; its answer is seen.
    e.Teclas("Tab", 3);
    e.Tecla("space");
    e.Mira().Guarda("teclado-tutor");
    mano.Ve({210, 160});
    e.Mira().Guarda("teclado-tutor-pieza");
    e.Tecla("space");
    // A table in two colours, by the last but two.
    e.Teclas("Tab", 10);
    e.Tecla("space");
    e.EsperaQuieto();
    const Foto colores = e.Mira();
    colores.Guarda("teclado-colores");
    EXPECT_GT(colores.Cuenta(60, 40, 300, 240, 0xFF0000), 40000) << "piece 8 is red";

    // A press on the piece ends that and takes it. It goes 240 right and 440 down: the cross would
    // then stand 18 rows below the view of 583, which scrolls by as much.
    mano.Ve({211, 160});
    e.Tecla("space");
    mano.Ve({451, 160});
    e.Teclas("Down", 55);
    const Foto abajo = e.Mira();
    abajo.Guarda("teclado-desplazada");
    EXPECT_EQ(abajo.En(150, 224), Programa::ColorDeCuadro(3)) << "it was at 240 before";
    EXPECT_EQ(abajo.En(150, 219), Programa::ColorDeCuadro(0));
    e.Tecla("space");
    ASSERT_TRUE(mano.CierraFelicitacion());
    e.Mira().Guarda("teclado-desplazada-fin");
    const auto salir = programa.Boton(7, true);
    e.Pulsa(salir.x, salir.y);
    ASSERT_TRUE(e.Responde("Salir de TESSARIO", true));
    ASSERT_EQ(programa.EsperaFin(), 0);
    const PartidaLeida leida = programa.LeePartida(21);
    EXPECT_TRUE(leida.terminado);
    EXPECT_FALSE(leida.archivable) << "the tutor was asked";
    EXPECT_EQ(leida.movimientos, 1);
}

// White pixels, as the arms of the cross are: four of 14 by 3 within their black edge.
constexpr int CRUZ = 4 * 14 * 3;
int Cruces(const Foto& f, int x, int y, int w, int h) {
    return f.Cuenta(x, y, w, h, 0xFFFFFF);
}

TEST(TecladoVentana, MouseThatMovesTakesTheCrossAwayAndDropsWhatItHolds) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    PartidaGuardada p = DeTangram(1);
    p.borde = false;
    PonEnFilas(p, 60, 480, 200, 130);
    programa.Escribe(p);
    e.Mueve(300, 100);
    ASSERT_TRUE(programa.Arranca());
    const Foto antes = e.Mira();
    // Half of the screen, which is the whole of a table on which figures are created.
    Mano mano(e, programa, {26 + ANCHO / 2, 26 + ALTO / 2});
    mano.AlPuzzle();
    EXPECT_EQ(Cruces(e.Mira(), 498, 370, 80, 80), CRUZ);
    EXPECT_EQ(e.Mira().Diferencia(antes, 0, 0, 480, ALTO), 0);
    mano.Ve({705, 510});
    e.Tecla("space");
    mano.Ve({705, 210});
    const Foto enMano = e.Mira();
    enMano.Guarda("teclado-diseno");
    EXPECT_GT(Cruces(enMano, 670, 200, 80, 80), CRUZ) << "the cross, and the closed hand";
    e.Mueve(302, 101);
    e.EsperaQuieto();
    const Foto despues = e.Mira();
    despues.Guarda("teclado-raton");
    EXPECT_EQ(Cruces(despues, 0, 0, 880, ALTO), 0);
    EXPECT_EQ(despues.Cuenta(640, 180, 150, 60, 0x008000),
              antes.Cuenta(640, 480, 150, 60, 0x008000))
        << "the piece lies where the cross was";
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida leida = programa.LeePartida(23);
    EXPECT_EQ(leida.piezas[3].x, p.piezas[3].x);
    EXPECT_EQ(leida.piezas[3].y, p.piezas[3].y - 300);
    EXPECT_EQ(leida.movimientos, 1);
}

}  // namespace
}  // namespace tessario::ventana
