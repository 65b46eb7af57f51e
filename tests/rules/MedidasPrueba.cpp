// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>

#include "apoyo/PlataformaPrueba.h"
#include "core/Errores.h"
#include "core/Superficies.h"
#include "rules/Medidas.h"

namespace tessario {

namespace {

class Medidas : public PruebaBase {
protected:
    void Jigsaw(i32 ancho, i32 alto, i16 forma, i16 porCelda, i16 lado = 5, i16 zoom = 100) {
        Gbl.JuegoActual = JuegoMoviles;
        Gbl.AnchoImagen = ancho;
        Gbl.AltoImagen = alto;
        Gbl.FormaPiezas = forma;
        Gbl.PiezasPorCelda = porCelda;
        Gbl.PiezasPorLado = lado;
        Gbl.ZoomImagen = zoom;
        CalculaTamanos();
    }
    void Sliding(i16 lado, i16 alto) {
        Gbl.JuegoActual = JuegoDeslizantes;
        Gbl.AltoPantalla = alto;
        Gbl.PiezasPorLado = lado;
        Pic_Botonera.Left = 659;
        CalculaTamanos();
    }
};

}  // namespace

TEST_F(Medidas, TrianglesGetOddWidthAndEvenHeight) {
    Jigsaw(640, 480, 3, 4);
    EXPECT_EQ(Gbl.AnchoCelda, 127);
    EXPECT_EQ(Gbl.AltoCelda, 96);
    EXPECT_EQ(Gbl.AnchoPuzzle, 635);
    EXPECT_EQ(Gbl.AltoPuzzle, 480);
    EXPECT_EQ(Gbl.NumPiezas, 100);
    Jigsaw(645, 495, 3, 4);  // 129 is odd already, 99 goes down
    EXPECT_EQ(Gbl.AnchoCelda, 129);
    EXPECT_EQ(Gbl.AltoCelda, 98);
}

TEST_F(Medidas, CurvedPiecesGetOddCells) {
    Jigsaw(640, 480, 1, 1);
    EXPECT_EQ(Gbl.AnchoCelda, 127);
    EXPECT_EQ(Gbl.AltoCelda, 95);
    EXPECT_EQ(Gbl.NumPiezas, 25);
    Jigsaw(400, 300, 1, 1);
    EXPECT_EQ(Gbl.AnchoCelda, 79);
    EXPECT_EQ(Gbl.AltoCelda, 59);
    Jigsaw(400, 300, 3, 4);
    EXPECT_EQ(Gbl.AnchoCelda, 79);
    EXPECT_EQ(Gbl.AltoCelda, 60);
}

TEST_F(Medidas, OtherShapesKeepTheirCells) {
    for (const i16 forma : std::array<i16, 6>{0, 2, 4, 5, 6, 7}) {
        Jigsaw(640, 485, forma, 1);
        EXPECT_EQ(Gbl.AnchoCelda, 128) << forma;
        EXPECT_EQ(Gbl.AltoCelda, 97) << forma;
    }
}

TEST_F(Medidas, ZoomIsTakenBeforeTheCutAndTheRestOfThePictureIsLeftOut) {
    Jigsaw(333, 251, 0, 1, 7, 105);  // 349.65 -> 349, 263.55 -> 263
    EXPECT_EQ(Gbl.AnchoCelda, 49);
    EXPECT_EQ(Gbl.AltoCelda, 37);
    EXPECT_EQ(Gbl.AnchoPuzzle, 343);
    EXPECT_EQ(Gbl.AltoPuzzle, 259);
    EXPECT_EQ(Gbl.NumPiezas, 49);
}

TEST_F(Medidas, JigsawHasNoMargins) {
    Gbl.MargenX = 33;
    Gbl.MargenY = 44;
    Jigsaw(640, 480, 0, 1);
    EXPECT_EQ(Gbl.MargenX, 0);
    EXPECT_EQ(Gbl.MargenY, 0);
}

TEST_F(Medidas, SlidingBoardOfFourOnASixHundredLineScreen) {
    Sliding(4, 600);
    EXPECT_EQ(Gbl.NumPiezas, 15);
    EXPECT_EQ(Gbl.AltoCelda, 89);  // 535 / 6 = 89.17
    EXPECT_EQ(Gbl.AnchoCelda, 89);
    EXPECT_EQ(Gbl.AltoPuzzle, 356);
    EXPECT_EQ(Gbl.AnchoPuzzle, 356);
    EXPECT_EQ(Gbl.MargenY, 89);   // (600 - 65 - 356) \ 2 = 89.5 cut
    EXPECT_EQ(Gbl.MargenX, 151);  // (659 - 356) \ 2 = 151.5 cut
}

TEST_F(Medidas, SlidingCellsRoundHalvesToEven) {
    Sliding(4, 602);
    EXPECT_EQ(Gbl.AltoCelda, 90);  // 89.5
    Sliding(4, 608);
    EXPECT_EQ(Gbl.AltoCelda, 90);  // 90.5
}

TEST_F(Medidas, TangramTables) {
    Gbl.JuegoActual = JuegoTangram;
    Gbl.AnchoPantalla = 800;
    Gbl.AltoPantalla = 600;
    CalculaTamanos();
    const i16 ancho[] = {125, 125, 89, 63, 63, 63, 132};
    const i16 alto[] = {125, 125, 89, 63, 63, 63, 44};
    const i16 diagonal[] = {177, 177, 125, 89, 89, 89, 63};
    for (i32 i = 1; i <= 7; ++i) {
        EXPECT_EQ(Gbl.TAncho[i], ancho[i - 1]) << i;
        EXPECT_EQ(Gbl.TAlto[i], alto[i - 1]) << i;
        EXPECT_EQ(Gbl.TDiagonal[i], diagonal[i - 1]) << i;
    }
    EXPECT_EQ(Gbl.NumPiezas, 7);
}

TEST_F(Medidas, TangramDesignTakesTheScreenAndBothMarginsFromItsWidth) {
    Gbl.JuegoActual = JuegoTangram;
    Gbl.AnchoPantalla = 1024;
    Gbl.AltoPantalla = 600;
    CalculaTamanos();
    EXPECT_EQ(Gbl.AnchoPuzzle, 1024);
    EXPECT_EQ(Gbl.AltoPuzzle, 600);
    EXPECT_EQ(Gbl.MargenX, 25);
    EXPECT_EQ(Gbl.MargenY, 25);
}

TEST_F(Medidas, TangramModelTakesTheBoxOfItsFigure) {
    Gbl.JuegoActual = JuegoTangram;
    Gbl.ModoJuego = MODO_RESOLVER;
    Gbl.AnchoPantalla = 800;
    Gbl.AltoPantalla = 600;
    Gbl.Piezas.Redimensiona(7);
    for (i32 i = 1; i <= 7; ++i) {
        Gbl.Piezas[i].XBien = 200;  // all at (200, 150), upright; the widest is piece 1 turned 1/8
        Gbl.Piezas[i].YBien = 150;
    }
    Gbl.Piezas[1].GiroBien = 0;  // 177 x 89
    Gbl.Piezas[2].GiroBien = 1;  // 125 x 125
    CalculaTamanos();
    EXPECT_EQ(Gbl.AnchoPuzzle, 177);
    EXPECT_EQ(Gbl.AltoPuzzle, 125);
    EXPECT_EQ(Gbl.MargenX, 20);
}

TEST_F(Medidas, NoPiecesPerSideIsAnErrorAndNotACrash) {
    Jigsaw(640, 480, 0, 1, 0);
    EXPECT_EQ(ErrorPendiente(), 11);
    EXPECT_EQ(Gbl.NumPiezas, 0);
}

TEST_F(Medidas, AbsurdNumbersOverflowAndKeepWhatWas) {
    Gbl.NumPiezas = 25;
    Jigsaw(640, 480, 3, 4, 999);
    EXPECT_EQ(ErrorPendiente(), 6);
    EXPECT_EQ(Gbl.NumPiezas, 25);
}

TEST_F(Medidas, OutsideTheThreeGamesNothingChanges) {
    Gbl.JuegoActual = 20;
    Gbl.NumPiezas = 13;
    Gbl.MargenX = 5;
    CalculaTamanos();
    EXPECT_EQ(Gbl.NumPiezas, 13);
    EXPECT_EQ(Gbl.MargenX, 5);
}

}  // namespace tessario
