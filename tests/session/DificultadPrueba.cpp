// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "apoyo/Juegos.h"
#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "rules/Medidas.h"
#include "session/Dificultad.h"

namespace tessario {

namespace {

class Dificultades : public PruebaBase {
protected:
    void Jigsaw(i16 ancho, i16 alto, i16 piezas, i16 atraccion, bool giro, i16 forma = 0,
                i16 porCelda = 1) {
        Gbl.JuegoActual = JuegoMoviles;
        Gbl.AnchoCelda = ancho;
        Gbl.AltoCelda = alto;
        Gbl.NumPiezas = piezas;
        Gbl.FactorAtraccion = atraccion;
        Gbl.PermitirGiro = giro;
        Gbl.FormaPiezas = forma;
        Gbl.PiezasPorCelda = porCelda;
        CalculaDificultad();
    }

    // A solved board of the sliding game on a screen 600 high.
    void Tablero(i16 lado, i16 fondo) {
        PonDeslizantes(lado, fondo);
        Gbl.AltoPantalla = 600;
        Pic_Botonera.Left = 659;
        CalculaTamanos();
        Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
            Pieza& p = Gbl.Piezas[i];
            p.X = p.XBien = Corto(Gbl.MargenX + (i - 1) % lado * Gbl.AnchoCelda);
            p.Y = p.YBien = Corto(Gbl.MargenY + (i - 1) / lado * Gbl.AltoCelda);
        }
    }

    void Figura(i16 ancho, i16 alto, i16 atraccion) {
        Gbl.JuegoActual = JuegoTangram;
        Gbl.ModoJuego = MODO_RESOLVER;
        Gbl.MargenX = Gbl.MargenY = 20;
        Gbl.AnchoPuzzle = ancho;
        Gbl.AltoPuzzle = alto;
        Gbl.FactorAtraccion = atraccion;
        Gbl.ColorContraste = 0xC0C0C0;
        Pic_FonTamReal.Tamano(ancho + 40, alto + 40);
        Pic_FonTamReal.PonBackColor(0x800000);
    }
    static void Caja(i32 x1, i32 y1, i32 x2, i32 y2) {
        Pic_FonTamReal.Line(pluma::Desde | pluma::ConColor | pluma::Caja | pluma::Llena, x1, y1, x2,
                            y2, 0xC0C0C0);
    }
};

}  // namespace

TEST_F(Dificultades, JigsawByHand) {
    // Area 128 * 96 = 12288: A = 100 - 11976 / 193 = 37.9482; B = 16 / 8.91 = 1.79574; C = 80;
    // R = 100. (22.76891 + 2.51403 + 104 + 70) / 4 = 49.82074.
    Jigsaw(128, 96, 25, 20, true);
    EXPECT_NEAR(Gbl.Dificultad, 49.82074, 0.0005);
    // Without rotation 17.5 less.
    Jigsaw(128, 96, 25, 20, false);
    EXPECT_NEAR(Gbl.Dificultad, 32.32074, 0.0005);
}

TEST_F(Dificultades, AreaIsSharedByThePiecesOfACell) {
    // 127 * 96 \ 4 = 3048: A = 100 - 2736 / 193 = 85.82383; B = 91 / 8.91 = 10.21324; C = 80; R =
    // 0. (51.49430 + 14.29854 + 104) / 4 = 42.44821, times 1.06.
    Jigsaw(127, 96, 100, 20, false, 3, 4);
    EXPECT_NEAR(Gbl.Dificultad, 44.99510, 0.0005);
}

TEST_F(Dificultades, StarsAreFourteenPerCentHarderThanCircles) {
    Jigsaw(128, 96, 50, 20, false, 0, 2);
    const float liso = Gbl.Dificultad;
    Jigsaw(128, 96, 50, 20, false, 7, 2);
    EXPECT_NEAR(Gbl.Dificultad, liso * 1.14F, 0.001);
}

TEST_F(Dificultades, LargestPiecesWithFullAttractionComeOutNearNothing) {
    // A = 100 - 19288 / 193 = 0.06218; * 0.6 / 4.
    Jigsaw(140, 140, 9, 100, false);
    EXPECT_NEAR(Gbl.Dificultad, 0.00933, 0.00002);
}

TEST_F(Dificultades, ZeroOrLessBecomesATenth) {
    Jigsaw(150, 150, 9, 100, false);  // A below 0
    EXPECT_FLOAT_EQ(Gbl.Dificultad, 0.1F);
}

TEST_F(Dificultades, HundredOrMoreBecomesNinetyNinePointNine) {
    // 25 * 25 \ 4 = 156: A = 100.81; B = 891 / 8.91 = 100; C = 100; R = 100, times 1.06: above 100.
    Jigsaw(25, 25, 900, 0, true, 3, 4);
    EXPECT_FLOAT_EQ(Gbl.Dificultad, 99.9F);
}

TEST_F(Dificultades, SolvedBoardOfThreeWithNumbers) {
    Tablero(3, FONDO_NUMEROS);
    CalculaDificultad();
    EXPECT_NEAR(Gbl.Dificultad, 20.0 / 3, 0.0001);
    Gbl.TipoFondo = FONDO_LETRAS;
    CalculaDificultad();
    EXPECT_NEAR(Gbl.Dificultad, 35.0 / 3, 0.0001);
    Gbl.TipoFondo = FONDO_IMAGEN;
    CalculaDificultad();
    EXPECT_NEAR(Gbl.Dificultad, 100.0 / 3, 0.0001);
}

TEST_F(Dificultades, DisorderIsMeasuredInCellsAgainstTheMostOfItsBoard) {
    const i16 maximos[] = {20, 58, 112, 206, 324, 498, 702};
    for (i16 lado = 3; lado <= 9; ++lado) {
        Tablero(lado, FONDO_NUMEROS);
        // Pieces 1 and 2 * lado change places: one column no, (lado - 1) columns and 1 row each.
        const i16 otra = static_cast<i16>(2 * lado);
        std::swap(Gbl.Piezas[1].X, Gbl.Piezas[otra].X);
        std::swap(Gbl.Piezas[1].Y, Gbl.Piezas[otra].Y);
        CalculaDificultad();
        const double desorden = 2.0 * lado * 100 / maximos[lado - 3];
        const double cuenta = (lado * lado - 1 - 8) / 0.72;
        EXPECT_NEAR(Gbl.Dificultad, (desorden + cuenta + 20) / 3, 0.001) << lado;
    }
}

TEST_F(Dificultades, BoardWithoutATableValueCountsNoDisorder) {
    Tablero(2, FONDO_NUMEROS);
    std::swap(Gbl.Piezas[1].X, Gbl.Piezas[2].X);
    CalculaDificultad();  // (0 + (3 - 8) / 0.72 + 20) / 3
    EXPECT_NEAR(Gbl.Dificultad, (20 - 5 / 0.72) / 3, 0.001);
    Tablero(10, FONDO_NUMEROS);
    CalculaDificultad();  // (0 + 91 / 0.72 + 20) / 3
    EXPECT_NEAR(Gbl.Dificultad, (91 / 0.72 + 20) / 3, 0.001);
}

TEST_F(Dificultades, TangramSamplesEverySecondPixelOfTheFigure) {
    Figura(100, 80, 20);
    Caja(20, 20, 69, 59);  // 50 x 40 from the corner: 25 * 20 samples of 4
    CalculaDificultad();   // (2000 * 100 / 8000 + 80) / 2
    EXPECT_NEAR(Gbl.Dificultad, (25.0 + 80) / 2, 0.0001);
}

TEST_F(Dificultades, TangramCountsOnlyPixelsOfTheGridAndOfTheBox) {
    Figura(100, 80, 100);
    Caja(21, 20, 21, 99);     // an odd column, never sampled
    Caja(0, 0, 139, 19);      // above the box
    Caja(120, 20, 139, 119);  // right of it
    CalculaDificultad();
    EXPECT_FLOAT_EQ(Gbl.Dificultad, 0.1F);
    Caja(22, 20, 22, 99);  // an even one: 40 samples of 4
    CalculaDificultad();
    EXPECT_NEAR(Gbl.Dificultad, 160.0 * 100 / 8000 / 2, 0.0001);
}

TEST_F(Dificultades, TangramWithoutAPictureOrWithAnEmptyBoxHasItsAttractionOnly) {
    Figura(100, 80, 40);
    Pic_FonTamReal.Tamano(0, 0);
    CalculaDificultad();
    EXPECT_NEAR(Gbl.Dificultad, 30, 0.0001);
    Gbl.AnchoPuzzle = 0;
    CalculaDificultad();
    EXPECT_NEAR(Gbl.Dificultad, 30, 0.0001);
}

TEST_F(Dificultades, NoPiecesInACellIsNoCrash) {
    Jigsaw(128, 96, 25, 20, true, 0, 0);
    EXPECT_FLOAT_EQ(Gbl.Dificultad, 0.1F);
}

}  // namespace tessario
