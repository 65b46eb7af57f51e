// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/MesaMontada.h"
#include "panel/Botonera.h"
#include "panel/Desplazamiento.h"

namespace tessario {

namespace {

// Pixel of the made-up resource pictures, whose names have eight letters.
Pixel DeRecurso(i32 x, i32 y) {
    return 0x800000U | (static_cast<Pixel>(x) << 8) | static_cast<Pixel>(y);
}

constexpr Color OSCURO = 1186423, CLARO = 6719726;

}  // namespace

class Botonera : public MesaMontada {};

TEST_F(Botonera, StripStandsAtTheRightEdgeOfTheTable) {
    EXPECT_EQ(Pic_Botonera.Left, 659);
    EXPECT_EQ(Pic_Botonera.Top, 0);
    EXPECT_EQ(Pic_Botonera.Width(), 141);
    EXPECT_EQ(Pic_Botonera.Height(), 463);
}

TEST_F(Botonera, FrameIsDarkWithLightTopAndLeft) {
    EXPECT_EQ(Pic_Botonera.Point(140, 462), OSCURO);
    EXPECT_EQ(Pic_Botonera.Point(140, 200), OSCURO);
    EXPECT_EQ(Pic_Botonera.Point(70, 462), OSCURO);
    EXPECT_EQ(Pic_Botonera.Point(70, 0), CLARO);
    EXPECT_EQ(Pic_Botonera.Point(0, 200), CLARO);
    EXPECT_NE(Pic_Botonera.Point(70, 3), CLARO);
}

TEST_F(Botonera, ButtonsStandInTheirPlacesWithTheirTooltips) {
    const struct {
        i32 x, y;
        const char* ayuda;
    } esperado[] = {{15, 194, " Barajar las piezas "},
                    {15, 10, " Personalizar "},
                    {15, 68, " Tutor de juego "},
                    {78, 68, " Estadísticas "},
                    {15, 126, " Histórico de puzzles resueltos "},
                    {78, 10, " Ayuda de la aplicación "},
                    {78, 126, " Salir de la aplicación "},
                    {78, 194, " Mostrar modelo "},
                    {15, 310, " Mostrar piezas ocultas "},
                    {78, 252, " Mostrar piezas colocadas "},
                    {15, 252, " Ordenar las piezas "},
                    {78, 310, " Resolver el puzzle "}};
    for (i32 i = 1; i <= 12; ++i) {
        EXPECT_EQ(Pic_Boton(i).Left, esperado[i - 1].x) << i;
        EXPECT_EQ(Pic_Boton(i).Top, esperado[i - 1].y) << i;
        EXPECT_EQ(Pic_Boton(i).Width(), 48) << i;
        EXPECT_EQ(Pic_Boton(i).Height(), 48) << i;
        EXPECT_EQ(Pic_Boton(i).ToolTipText, esperado[i - 1].ayuda) << i;
        EXPECT_EQ(Gbl.BotonX[i], esperado[i - 1].x) << i;
        EXPECT_EQ(Gbl.BotonY[i], esperado[i - 1].y) << i;
    }
}

TEST_F(Botonera, EachButtonShowsItsOwnTile) {
    for (i32 i = 1; i <= 12; ++i) {
        const i32 x0 = (i - 1) * 49;
        for (const Punto p : {Punto{0, 0}, {47, 0}, {0, 47}, {47, 47}, {20, 31}})
            EXPECT_EQ(Pic_Boton(i).Fila(p.y)[p.x], DeRecurso(x0 + p.x, p.y)) << i;
    }
}

TEST_F(Botonera, SeparatorsLieNinePixelsBelowRowsSevenAndTwelve) {
    for (const i32 y : {183, 367}) {  // 126 + 48 + 9, 310 + 48 + 9
        EXPECT_EQ(Pic_Botonera.Point(1, y), OSCURO);
        EXPECT_EQ(Pic_Botonera.Point(140, y), OSCURO);
        EXPECT_EQ(Pic_Botonera.Point(1, y + 1), CLARO);
        EXPECT_EQ(Pic_Botonera.Point(139, y + 1), CLARO);
        EXPECT_EQ(Pic_Botonera.Point(140, y + 1), OSCURO);  // one pixel shorter: the frame's own
    }
}

TEST_F(Botonera, InstrumentsHangBelowTheSecondSeparator) {
    EXPECT_EQ(Pic_Cronome.Left, 10);
    EXPECT_EQ(Pic_Cronome.Top, 378);
    EXPECT_EQ(Pic_InfoColo.Left, 10);
    EXPECT_EQ(Pic_InfoColo.Top, 428);
    EXPECT_EQ(Pic_InfoColo.Width(), 58);
    EXPECT_EQ(Pic_InfoColo.Height(), 25);
    EXPECT_EQ(Pic_Grabadora.Left, 77);
    EXPECT_EQ(Pic_Grabadora.Top, 378);
    EXPECT_EQ(Pic_Grabadora.Width(), 50);
    EXPECT_EQ(Pic_Grabadora.Height(), 75);
    for (const Punto p : {Punto{0, 0}, {49, 74}, {13, 40}})
        EXPECT_EQ(Pic_Grabadora.Fila(p.y)[p.x], DeRecurso(p.x, p.y));
}

TEST_F(Botonera, HiddenPiecesButtonIsOfTheJigsawOnly) {
    for (const i16 juego : {JuegoMoviles, JuegoDeslizantes, JuegoTangram}) {
        Gbl.JuegoActual = juego;
        CargaBotonera();
        for (i32 i = 1; i <= 12; ++i)
            EXPECT_EQ(Pic_Boton(i).Visible, i != 9 || juego == JuegoMoviles) << juego << " " << i;
    }
}

TEST_F(Botonera, CreatingFiguresHidesTheInstruments) {
    Gbl.JuegoActual = JuegoTangram;
    for (const i16 modo : {MODO_CREAR, MODO_RESOLVER}) {
        Gbl.ModoJuego = modo;
        CargaBotonera();
        for (const Cuadro* c : {&Pic_Cronome, &Pic_InfoColo, &Pic_Grabadora})
            EXPECT_EQ(c->Visible, modo == MODO_RESOLVER) << c->Nombre;
    }
}

TEST_F(Botonera, InstrumentsAreDrawnWhereTheyShow) {
    constexpr Color VIEJO = 0x123456;
    Gbl.JuegoActual = JuegoTangram;
    Gbl.CronoEnMarcha = true;
    for (const i16 modo : {MODO_CREAR, MODO_RESOLVER}) {
        Gbl.ModoJuego = modo;
        for (Cuadro* c : {&Pic_Cronome, &Pic_CroTime, &Pic_InfoColo}) c->PonBackColor(VIEJO);
        CargaBotonera();
        const bool seVen = modo == MODO_RESOLVER;
        EXPECT_EQ(Pic_Cronome.Point(0, 0), seVen ? 0U : VIEJO);
        EXPECT_EQ(Pic_Cronome.Point(55, 43) == VIEJO, !seVen) << "its ground";
        EXPECT_EQ(Pic_CroTime.Point(0, 0), seVen ? 8421504U : VIEJO);
        EXPECT_EQ(Pic_InfoColo.Point(0, 0), seVen ? OSCURO : VIEJO);
        // The switch stands as the clock does: running.
        if (seVen) {
            EXPECT_EQ(PixelDe(Pic_Cronome.Point(10, 4)), DeRecurso(57, 6));
        }
        EXPECT_TRUE(Gbl.CronoEnMarcha);
    }
}

TEST_F(Botonera, SecondLayoutPutsEverythingBackInPlace) {
    Pic_Botonera.Mueve(3, 4);
    Pic_Botonera.Line(pluma::ConColor | pluma::Desde, 20, 5, 60, 5, 0x00FF00);
    CargaBotonera();
    EXPECT_EQ(Pic_Botonera.Left, 659);
    EXPECT_NE(Pic_Botonera.Point(30, 5), 0x00FF00U);  // cleared before it is painted
}

}  // namespace tessario
