// SPDX-License-Identifier: GPL-3.0-or-later
// The twelve buttons of the strip in the real program, in each game, where they are allowed and
// where they are not.
#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int ANCHO = 1024, ALTO = 768;
constexpr int BOTONERA = ANCHO - 141;  // its left edge
constexpr unsigned VERDE = 0x00FF00, ROJO = 0xFF0000;
constexpr const char *AYUDA = "Ayuda de Tessario", *SALIR = "Salir de TESSARIO",
                     *AJUSTES = "Personalizar";

// A screen, the program on it, and what the tests do with both.
struct Juego {
    explicit Juego(const PartidaGuardada& p) {
        programa.EscribeImagenDeCuadros("cuadros.bmp", 480, 360, 3);
        programa.EscribeGlobal(p.juego, 100);
        programa.EscribePartida(p);
    }
    Foto Mira() {
        e.EsperaAtendido();
        return e.Mira();
    }
    // Pixels of the table, without the strip, that a press changes.
    int Cambia(int boton) {
        const Foto antes = Mira();
        programa.PulsaBoton(boton);
        return Mira().Diferencia(antes, 0, 0, BOTONERA, ALTO);
    }
    // Presses a button, unless 0, and closes with Escape the window that it opens.
    bool AbreYCierra(int boton, const std::string& titulo) {
        if (boton) programa.PulsaBoton(boton);
        if (!e.Espera([&] { return e.HayVentana(titulo); })) return false;
        e.EsperaQuieto(120);
        e.Tecla("Escape");
        return e.Espera([&] { return !e.HayVentana(titulo); });
    }
    // Settings, statistics and history come and go, and the table is as before.
    // Leaving the settings asks when the puzzle has cells of a size that they do not offer.
    void VisitaVentanas(bool pregunta = false) {
        const Foto antes = Mira();
        VisitaAjustes(pregunta);
        EXPECT_TRUE(AbreYCierra(4, "Estadísticas"));
        VisitaHistorico();
        EXPECT_EQ(Mira().Diferencia(antes, 0, 0, BOTONERA, ALTO), 0);
    }
    void VisitaAjustes(bool pregunta) {
        Escritorio::Marco marco;
        programa.PulsaBoton(2);
        ASSERT_TRUE(e.Espera([&] { return e.BuscaVentana(AJUSTES, marco); }));
        e.EsperaQuieto(120);
        // Its exit button: 48 a side, 20 from the right, 17 from the bottom.
        e.Pulsa(marco.x + marco.ancho - 44, marco.y + marco.alto - 41);
        if (pregunta) {
            EXPECT_TRUE(e.Responde("Parámetros del puzzle", false));
        }
        EXPECT_TRUE(e.Espera([&] { return !e.HayVentana(AJUSTES); }));
    }
    void VisitaHistorico() {
        programa.PulsaBoton(5);
        EXPECT_TRUE(e.Responde("Error leyendo el fichero histórico", false)) << "there is none yet";
        EXPECT_TRUE(AbreYCierra(0, "Histórico de puzzles resueltos"));
    }
    bool AyudaSeAbreYSeCierra() {
        programa.PulsaBoton(6);
        if (!e.Espera([&] { return e.HayVentana(AYUDA); })) return false;
        e.Tecla("Escape");
        return e.Espera([&] { return !e.HayVentana(AYUDA); });
    }
    // Buttons that show a state, with the pointer away from the strip.
    template <class F>
    std::vector<int> Botones(F&& tiene) {
        e.Mueve(2, ALTO - 2);
        e.EsperaQuieto(60);
        const Foto foto = e.Mira();
        std::vector<int> v;
        for (int i = 1; i <= 12; ++i) {
            if (i == 9 && !ocultas) continue;
            const Programa::Lugar medio = programa.Boton(i);
            if (tiene(foto, medio.x, medio.y)) v.push_back(i);
        }
        return v;
    }
    // A faded tile has nothing as bright as the enamel of the others.
    std::vector<int> Apagados() {
        return Botones([](const Foto& f, int x, int y) {
            int claros = 0;
            for (int j = y - 20; j < y + 20; ++j)
                for (int i = x - 20; i < x + 20; ++i) {
                    const unsigned p = f.En(i, j);
                    claros += (p >> 16) > 0xE0 && (p >> 8 & 0xFF) > 0xD0 && (p & 0xFF) > 0xA8;
                }
            return claros < 20;
        });
    }
    std::vector<int> Encendidos() {
        return Botones([](const Foto& f, int x, int y) {
            return f.Cuenta(x - 24, y - 24, 48, 48, 0xFFD24A) > 300;
        });
    }
    bool ocultas = true;  // the jigsaw's own button is there

    // Power switch of the recorder.
    void PulsaGrabadora() { e.Pulsa(BOTONERA + 77 + 25, 378 + 12); }

    Escritorio e{ANCHO, ALTO};
    Programa programa{e};
};

// Pieces 1 and 2 at home; 3 to 7 lie about; 8 covers 9.
PartidaGuardada Moviles() {
    PartidaGuardada p = DeCuadros(480, 360, 3);
    p.archivable = true;
    p.segundos = 100;
    for (int i = 2; i < 9; ++i) {
        PiezaGuardada& q = p.piezas[static_cast<std::size_t>(i)];
        q.x = i < 4 ? 520 + (i - 2) * 180 : 20 + (i - 4) % 4 * 180;
        q.y = i < 4 ? 200 : 400 + (i - 4) / 4 * 150;
    }
    p.piezas[8].x = p.piezas[7].x;
    p.piezas[8].y = p.piezas[7].y;
    return p;
}
struct Centro {
    int x, y;
};
Centro CentroDe(const PiezaGuardada& q) {
    return {q.x + 80, q.y + 60};
}

TEST(BotoneraVentana, JigsawButtonsDoWhatTheyAreFor) {
    const PartidaGuardada p = Moviles();
    Juego j(p);
    ASSERT_TRUE(j.programa.Arranca());
    j.VisitaVentanas(true);  // cells of 160 pixels

    // The sample comes and goes: a third of the table's corner.
    EXPECT_GT(j.Cambia(8), 5000);
    j.Mira().Guarda("botonera-muestra");
    EXPECT_GT(j.Cambia(8), 5000);
    const Foto normal = j.Mira();

    // Placed ones green, the others red, and back.
    j.programa.PulsaBoton(10);
    const Foto colores = j.Mira();
    for (std::size_t i = 0; i < 8; ++i) {
        const Centro c = CentroDe(p.piezas[i]);
        EXPECT_EQ(colores.En(c.x, c.y), i < 2 ? VERDE : ROJO) << i + 1;
        // The left edge: one black line, or dashes of eight rows, beginning with a black one.
        const int negros = colores.Cuenta(p.piezas[i].x, p.piezas[i].y, 1, 120, 0);
        EXPECT_EQ(negros, i < 2 ? 120 : 64) << i + 1;
    }
    j.programa.PulsaBoton(10);
    EXPECT_EQ(j.Mira().Diferencia(normal, 0, 0, BOTONERA, ALTO), 0);

    // The covered piece comes up.
    const Centro c = CentroDe(p.piezas[8]);
    EXPECT_EQ(normal.En(c.x, c.y), Programa::ColorDeCuadro(7));
    j.programa.PulsaBoton(9);
    EXPECT_EQ(j.Mira().En(c.x, c.y), Programa::ColorDeCuadro(8));

    EXPECT_TRUE(j.AyudaSeAbreYSeCierra());
    j.programa.PulsaBoton(7);
    EXPECT_TRUE(j.e.Responde(SALIR, false));
    EXPECT_TRUE(j.programa.Vive());
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida leida = j.programa.LeePartida(21);
    EXPECT_TRUE(leida.archivable) << "none of these is an aid";
    EXPECT_EQ(leida.movimientos, 0);
    EXPECT_GE(leida.segundos, 100);
    EXPECT_EQ(leida.orden[0], 9);
    for (std::size_t i = 0; i < 9; ++i) {
        EXPECT_EQ(leida.piezas[i].x, p.piezas[i].x) << i + 1;
        EXPECT_EQ(leida.piezas[i].y, p.piezas[i].y) << i + 1;
    }
}

TEST(BotoneraVentana, TutorInTheJigsawShowsThePlaceAndForfeitsTheHistory) {
    const PartidaGuardada p = Moviles();
    Juego j(p);
    j.programa.EscribeGlobal(21, 50);
    ASSERT_TRUE(j.programa.Arranca());
    const Foto antes = j.Mira();
    j.programa.PulsaBoton(3);
    const Centro c = CentroDe(p.piezas[4]);
    j.e.Mueve(c.x, c.y);
    j.e.EsperaAtendido();
    j.e.Aprieta();
    j.e.Suelta();
    // The cell of piece 5, empty so far, is inverted.
    const unsigned fuera = antes.En(240, 180);
    EXPECT_TRUE(j.e.Espera([&] { return j.e.Mira().En(240, 180) == (fuera ^ 0xFFFFFFU); }));
    j.e.EsperaQuieto();
    EXPECT_EQ(j.Mira().Diferencia(antes, 0, 0, BOTONERA, ALTO), 0);
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida leida = j.programa.LeePartida(21);
    EXPECT_FALSE(leida.archivable);
    EXPECT_EQ(leida.movimientos, 0);
    EXPECT_EQ(leida.piezas[4].x, p.piezas[4].x);
}

TEST(BotoneraVentana, ShuffleInTheJigsawBeginsANewPuzzle) {
    Juego j(Moviles());
    ASSERT_TRUE(j.programa.Arranca());
    EXPECT_GT(j.Cambia(1), 5000);
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida leida = j.programa.LeePartida(21);
    EXPECT_LT(leida.segundos, 100);
    EXPECT_EQ(leida.movimientos, 0);
    EXPECT_TRUE(leida.archivable);
}

TEST(BotoneraVentana, WithTheRecorderOnOnlyWhatChangesNothingWorks) {
    const PartidaGuardada p = Moviles();
    Juego j(p);
    ASSERT_TRUE(j.programa.Arranca());
    const Centro c = CentroDe(p.piezas[4]);
    j.e.Arrastra(c.x, c.y, c.x + 20, c.y + 10);
    j.PulsaGrabadora();
    for (int boton : {1, 2, 3, 4, 9, 10, 11, 12}) EXPECT_EQ(j.Cambia(boton), 0) << boton;
    j.VisitaHistorico();
    EXPECT_GT(j.Cambia(8), 5000) << "the sample may be looked at";
    EXPECT_TRUE(j.AyudaSeAbreYSeCierra());
    j.programa.PulsaBoton(7);
    EXPECT_TRUE(j.e.Responde("Salir del programa", false));
    EXPECT_FALSE(j.e.HayVentana(SALIR));
    j.PulsaGrabadora();
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida leida = j.programa.LeePartida(21);
    EXPECT_EQ(leida.movimientos, 1);
    EXPECT_EQ(leida.piezas[4].x, p.piezas[4].x + 20);
    EXPECT_TRUE(leida.archivable);
    EXPECT_TRUE(leida.muestra);
}

TEST(BotoneraVentana, StatesAreSeenWithThePointerAwayFromTheStrip) {
    using Cuales = std::vector<int>;
    PartidaGuardada p = Moviles();
    p.muestra = true;
    Juego j(p);
    ASSERT_TRUE(j.programa.Arranca());
    EXPECT_EQ(j.Apagados(), Cuales{});
    EXPECT_EQ(j.Encendidos(), Cuales{8});
    j.programa.PulsaBoton(10);
    EXPECT_EQ(j.Encendidos(), (Cuales{8, 10}));
    j.programa.PulsaBoton(3);
    EXPECT_EQ(j.Encendidos(), (Cuales{3, 8})) << "the tutor waits";
    j.e.Pulsa(3, ALTO - 3);
    EXPECT_EQ(j.Encendidos(), Cuales{8});
    const Centro c = CentroDe(p.piezas[4]);
    j.e.Arrastra(c.x, c.y, c.x + 20, c.y + 10);
    j.PulsaGrabadora();
    EXPECT_EQ(j.Apagados(), (Cuales{1, 2, 3, 4, 9, 10, 11, 12}));
    EXPECT_EQ(j.Encendidos(), Cuales{8});
    j.e.Mira().Guarda("botonera-estados-grabadora");
    j.PulsaGrabadora();
    EXPECT_EQ(j.Apagados(), Cuales{});
}

TEST(BotoneraVentana, InAFinishedPuzzleTheAidsAreForbidden) {
    PartidaGuardada p = Moviles();
    p.terminado = true;
    for (auto& q : p.piezas) {
        q.x = q.xBien;
        q.y = q.yBien;
    }
    Juego j(p);
    ASSERT_TRUE(j.programa.Arranca());
    for (int boton : {3, 9, 10, 11, 12}) EXPECT_EQ(j.Cambia(boton), 0) << boton;
    j.e.Pulsa(80, 60);
    EXPECT_TRUE(j.e.Responde("Puzzle resuelto", false));
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida leida = j.programa.LeePartida(21);
    EXPECT_TRUE(leida.terminado);
    EXPECT_EQ(leida.movimientos, 0);
    EXPECT_EQ(leida.orden[0], 1);
}

// --- The sliding puzzle: 3 a side at 1024x768, cells of (768 - 65) / 5 = 141 (140.6), 423 wide;
// margins (883 - 423) / 2 = 230 and (703 - 423) / 2 = 140.
constexpr int CELDA = 141, MARGEN_X = 230, MARGEN_Y = 140, LADO = 423;
int XDe(int celda) {
    return MARGEN_X + (celda - 1) % 3 * CELDA;
}
int YDe(int celda) {
    return MARGEN_Y + (celda - 1) / 3 * CELDA;
}
// Pieces 1 to 8 in the cells given.
PartidaGuardada Deslizantes(const std::vector<int>& celdas, int hueco) {
    PartidaGuardada p;
    p.juego = 22;
    p.archivable = true;
    p.segundos = 100;
    for (int i = 1; i <= 8; ++i) {
        const int c = celdas[static_cast<std::size_t>(i - 1)];
        p.piezas.push_back({XDe(c), YDe(c), 0, 0, XDe(i), YDe(i), 0, 0});
    }
    p.huecoX = XDe(hueco);
    p.huecoY = YDe(hueco);
    return p;
}
void PulsaCelda(Juego& j, int c) {
    j.e.Pulsa(XDe(c) + CELDA / 2, YDe(c) + CELDA / 2);
}

constexpr const char *ORDENAR = "Ordenar las piezas manualmente",
                     *SIN_SOLUCION = "Configuración sin solución";

TEST(BotoneraVentana, SlidingButtonsDoWhatTheyAreFor) {
    // Pieces 7 and 8 one to the right: two moves from the end.
    const PartidaGuardada p = Deslizantes({1, 2, 3, 4, 5, 6, 8, 9}, 7);
    Juego j(p);
    ASSERT_TRUE(j.programa.Arranca());
    j.VisitaVentanas();
    EXPECT_EQ(j.Cambia(8), 0) << "numbers have no sample";
    EXPECT_EQ(j.Cambia(9), 0) << "not there in this game";
    const Foto normal = j.Mira();
    j.programa.PulsaBoton(10);
    const Foto colores = j.Mira();
    colores.Guarda("botonera-deslizantes");
    EXPECT_GT(colores.Cuenta(XDe(1), YDe(1), CELDA, CELDA, VERDE), CELDA * CELDA / 2);
    EXPECT_GT(colores.Cuenta(XDe(9), YDe(9), CELDA, CELDA, ROJO), CELDA * CELDA / 2);
    j.programa.PulsaBoton(10);
    EXPECT_EQ(j.Mira().Diferencia(normal, 0, 0, BOTONERA, ALTO), 0);
    EXPECT_TRUE(j.AyudaSeAbreYSeCierra());
    // One pass of the solver puts the next piece in order and forfeits the history.
    EXPECT_GT(j.Cambia(3), 1000);
    j.programa.PulsaBoton(7);
    EXPECT_TRUE(j.e.Responde(SALIR, false));
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida leida = j.programa.LeePartida(22);
    EXPECT_FALSE(leida.archivable);
    EXPECT_GT(leida.movimientos, 0);
    EXPECT_FALSE(leida.muestra);
}

TEST(BotoneraVentana, ShuffleInTheSlidingPuzzleMovesThePieces) {
    Juego j(Deslizantes({1, 2, 3, 4, 5, 6, 8, 9}, 7));
    ASSERT_TRUE(j.programa.Arranca());
    const Foto antes = j.Mira();
    j.programa.PulsaBoton(1);
    j.e.EsperaQuieto();
    EXPECT_GT(j.Mira().Diferencia(antes, MARGEN_X, MARGEN_Y, LADO, LADO), 1000);
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida leida = j.programa.LeePartida(22);
    EXPECT_LT(leida.segundos, 100);
    EXPECT_EQ(leida.movimientos, 0);
    EXPECT_FALSE(leida.terminado);
}

TEST(BotoneraVentana, AHandArrangementWithoutSolutionIsLeftOnlyThroughItsQuestion) {
    Juego j(Deslizantes({1, 2, 3, 4, 5, 6, 7, 8}, 9));
    ASSERT_TRUE(j.programa.Arranca());
    const Foto antes = j.Mira();
    j.programa.PulsaBoton(11);
    ASSERT_TRUE(j.e.Responde(ORDENAR, false));
    PulsaCelda(j, 7);  // not arranging: a piece away from the hole stays
    EXPECT_EQ(j.Mira().Diferencia(antes, 0, 0, BOTONERA, ALTO), 0);
    j.programa.PulsaBoton(11);
    ASSERT_TRUE(j.e.Responde(ORDENAR, true));
    PulsaCelda(j, 7);  // piece 7 jumps into the hole: two steps for one swap
    EXPECT_GT(j.Mira().Diferencia(antes, XDe(7), YDe(7), CELDA, CELDA), 1000);
    EXPECT_EQ(j.Mira().Diferencia(antes, MARGEN_X, MARGEN_Y, LADO, 2 * CELDA), 0);
    for (int boton : {1, 4}) {
        j.programa.PulsaBoton(boton);
        EXPECT_TRUE(j.e.Responde(SIN_SOLUCION, false)) << boton;
    }
    EXPECT_TRUE(j.AyudaSeAbreYSeCierra()) << "help goes through";
    j.programa.PulsaBoton(7);
    EXPECT_TRUE(j.e.Responde(SIN_SOLUCION, true)) << "leaving does not";
    j.e.EsperaQuieto();
    ASSERT_TRUE(j.programa.Sale());
    // The program dealt a board that can be solved: an even number of inversions without the hole.
    const PartidaLeida leida = j.programa.LeePartida(22);
    std::vector<int> tablero;
    for (int c = 1; c <= 9; ++c)
        for (int i = 1; i <= 8; ++i)
            if (leida.piezas[static_cast<std::size_t>(i - 1)].x == XDe(c) &&
                leida.piezas[static_cast<std::size_t>(i - 1)].y == YDe(c))
                tablero.push_back(i);
    ASSERT_EQ(tablero.size(), 8U);
    int inversiones = 0;
    for (std::size_t a = 0; a < 8; ++a)
        for (std::size_t b = a + 1; b < 8; ++b) inversiones += tablero[a] > tablero[b];
    EXPECT_EQ(inversiones % 2, 0);
}

// --- The Tangram.
PartidaGuardada Tangram(int modo) {
    PartidaGuardada p = DeTangram(modo);
    p.archivable = true;
    p.segundos = 100;
    PonEnFilas(p, 30, 30, 200, 150);
    for (PiezaGuardada& q : p.piezas) {
        q.xBien = q.x;
        q.yBien = q.y;
    }
    PonEnFilas(p, 30, 380, 200, 200);
    p.piezas[2].x = p.piezas[2].xBien;  // piece 3 stands in its place
    p.piezas[2].y = p.piezas[2].yBien;
    return p;
}

TEST(BotoneraVentana, StatesOfTheDesignModeAreSeenAtOnce) {
    Juego j(Tangram(1));
    j.ocultas = false;
    ASSERT_TRUE(j.programa.Arranca());
    EXPECT_EQ(j.Apagados(), (std::vector<int>{3, 8, 10, 12}));
    EXPECT_EQ(j.Encendidos(), std::vector<int>{});
    j.e.Mira().Guarda("botonera-estados-tangram");
}

TEST(BotoneraVentana, InTheTangramsDesignModeOnlyShuffleAndArrangeMovePieces) {
    const PartidaGuardada p = Tangram(1);
    Juego j(p);
    ASSERT_TRUE(j.programa.Arranca());
    for (int boton : {3, 8, 9, 10, 12}) EXPECT_EQ(j.Cambia(boton), 0) << boton;
    j.VisitaVentanas();
    EXPECT_TRUE(j.AyudaSeAbreYSeCierra());
    const Foto antes = j.Mira();
    j.programa.PulsaBoton(11);
    ASSERT_TRUE(j.e.Espera([&] { return j.e.Mira().Diferencia(antes, 0, 0, BOTONERA, ALTO) > 0; }));
    j.e.EsperaQuieto();
    j.programa.PulsaBoton(7);
    EXPECT_TRUE(j.e.Responde(SALIR, false));
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida ordenada = j.programa.LeePartida(23);
    EXPECT_GE(ordenada.movimientos, 6);
    EXPECT_EQ(ordenada.modo, 1);
    // The first big triangle: 177 wide, 20 from the strip, at the margin 1024 / 40 = 25.
    EXPECT_EQ(ordenada.piezas[0].x, BOTONERA - 20 - 177);
    EXPECT_EQ(ordenada.piezas[0].y, 25);

    j.programa.EscribePartida(p);
    ASSERT_TRUE(j.programa.Arranca());
    EXPECT_GT(j.Cambia(1), 1000) << "dealt without a question";
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida repartida = j.programa.LeePartida(23);
    EXPECT_EQ(repartida.movimientos, 0);
    EXPECT_LT(repartida.segundos, 100);
    EXPECT_EQ(repartida.piezas[0].y, 25);
}

TEST(BotoneraVentana, InTheTangramsModelsShuffleAsksAndTheAidsWork) {
    constexpr const char* BARAJAR = "Barajar las piezas del Tangram";
    const PartidaGuardada p = Tangram(2);
    Juego j(p);
    ASSERT_TRUE(j.programa.Arranca());
    EXPECT_EQ(j.Cambia(8), 0);
    j.VisitaVentanas();
    const Foto normal = j.Mira();
    j.programa.PulsaBoton(10);
    const Foto colores = j.Mira();
    colores.Guarda("botonera-tangram");
    EXPECT_GT(colores.Cuenta(p.piezas[2].x, p.piezas[2].y, 125, 63, VERDE), 1000);
    EXPECT_GT(colores.Cuenta(p.piezas[0].x, p.piezas[0].y, 177, 89, ROJO), 3000);
    j.programa.PulsaBoton(10);
    EXPECT_EQ(j.Mira().Diferencia(normal, 0, 0, BOTONERA, ALTO), 0);
    EXPECT_TRUE(j.AyudaSeAbreYSeCierra());
    j.programa.PulsaBoton(1);
    ASSERT_TRUE(j.e.Responde(BARAJAR, false));
    EXPECT_EQ(j.Mira().Diferencia(normal, 0, 0, BOTONERA, ALTO), 0) << "cancelled: as it was";
    j.programa.PulsaBoton(12);
    j.e.EsperaQuieto();
    ASSERT_TRUE(j.programa.Sale());
    const PartidaLeida resuelta = j.programa.LeePartida(23);
    EXPECT_TRUE(resuelta.terminado);
    EXPECT_FALSE(resuelta.archivable);
    EXPECT_EQ(resuelta.modo, 2);
    EXPECT_EQ(resuelta.movimientos, 6);
    for (const auto& q : resuelta.piezas) {
        EXPECT_EQ(q.x, q.xBien);
        EXPECT_EQ(q.y, q.yBien);
    }

    j.programa.EscribePartida(p);
    ASSERT_TRUE(j.programa.Arranca());
    j.programa.PulsaBoton(1);
    ASSERT_TRUE(j.e.Responde(BARAJAR, true));
    ASSERT_TRUE(j.programa.Sale());
    EXPECT_EQ(j.programa.LeePartida(23).modo, 1);
}

}  // namespace
}  // namespace tessario::ventana
