// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "apoyo/MesaMoviles.h"
#include "jigsaw/Corte.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

// Pixels of the lined picture that differ from the picture itself.
i32 PixelesDeCorte() {
    i32 n = 0;
    for (i32 y = 0; y < Pic_Bitmap.Height(); ++y)
        for (i32 x = 0; x < Pic_Bitmap.Width(); ++x)
            n += Pic_Bitmap.Fila(y)[x] != PixelDeMuestra(x, y);
    return n;
}

}  // namespace

class Corte : public MesaMoviles {};

TEST_F(Corte, RectanglesAreFramedCellByCell) {
    Monta(0, 4, 320, 240, true);
    // 16 frames of 80 by 60 that have no pixel in common.
    EXPECT_EQ(PixelesDeCorte(), 16 * (2 * 80 + 2 * 58));
    EXPECT_EQ(Pic_Bitmap.Fila(0)[0], PixelDe(Gbl.ColorContraste));
    EXPECT_EQ(Pic_Bitmap.Fila(59)[79], PixelDe(Gbl.ColorContraste));
    EXPECT_EQ(Pic_Bitmap.Fila(61)[81], PixelDeMuestra(81, 61));
}

TEST_F(Corte, OneCurvedPieceHasOnlyTheOuterBox) {
    Monta(1, 1, 121, 91, true);
    EXPECT_EQ(PixelesDeCorte(), 2 * 121 + 2 * 89);
}

TEST_F(Corte, WithoutBordersThePictureHasNoLinesButTheSameParameters) {
    for (i16 forma = 0; forma <= 7; ++forma) {
        Monta(forma, 5, 400, 300, true);
        const DatosCorte con = Gbl;
        EXPECT_GT(PixelesDeCorte(), 0) << forma;
        PreparaPieza(7);
        const Mapa mascara = Pic_PiezaMascara.Dibujo();
        Monta(forma, 5, 400, 300, false);
        EXPECT_EQ(PixelesDeCorte(), 0) << forma;
        EXPECT_EQ(Gbl.AjusteX, con.AjusteX) << forma;
        EXPECT_EQ(Gbl.AjusteY, con.AjusteY) << forma;
        EXPECT_EQ(Gbl.RadioForma, con.RadioForma) << forma;
        EXPECT_EQ(Gbl.RadioForma2, con.RadioForma2) << forma;
        EXPECT_EQ(Gbl.RecorteX, con.RecorteX) << forma;
        EXPECT_EQ(Gbl.Aspecto, con.Aspecto) << forma;
        EXPECT_EQ(Gbl.Aspecto2, con.Aspecto2) << forma;
        PreparaPieza(7);
        EXPECT_EQ(Pic_PiezaMascara.Dibujo().Pixeles, mascara.Pixeles) << forma;
    }
}

TEST_F(Corte, ShapeParametersOfTheInnerFigures) {
    Monta(4, 4, 400, 300);          // cells of 100 by 75
    EXPECT_EQ(Gbl.RadioForma, 26);  // the integer part of 26.25
    Monta(5, 4, 400, 300);
    EXPECT_EQ(Gbl.RecorteX, 20);
    EXPECT_EQ(Gbl.RecorteY, 15);
    Monta(6, 4, 400, 300);
    EXPECT_EQ(Gbl.RadioForma, 35);
    EXPECT_DOUBLE_EQ(Gbl.Aspecto, 0.75);
    Monta(7, 4, 400, 300);
    EXPECT_EQ(Gbl.RadioForma, 26);
    EXPECT_EQ(Gbl.RadioForma2, 35);
    EXPECT_DOUBLE_EQ(Gbl.Aspecto, 26 / 17.5);
    EXPECT_DOUBLE_EQ(Gbl.Aspecto2, 13 / 35.0);
}

TEST_F(Corte, OverhangIsCrossedBetweenWidthAndHeight) {
    Monta(1, 4, 400, 300);         // 99 by 75
    EXPECT_EQ(Gbl.SalienteX, 13);  // 75 * 0.17 = 12.75
    EXPECT_EQ(Gbl.SalienteY, 17);  // 99 * 0.17 = 16.83
    EXPECT_EQ(Gbl.AnchoPieza, 125);
    EXPECT_EQ(Gbl.AltoPieza, 109);
    EXPECT_EQ(Gbl.PasoOrdenar, 125);
    Monta(2, 4, 400, 300);         // 100 by 75
    EXPECT_EQ(Gbl.SalienteX, 15);  // 15.375
    EXPECT_EQ(Gbl.SalienteY, 20);  // 20.5, halves to even
    Monta(0, 4, 400, 300);
    EXPECT_EQ(Gbl.SalienteX, 0);
    EXPECT_EQ(Gbl.SalienteY, 0);
    EXPECT_EQ(Gbl.AnchoPieza, 100);
    EXPECT_EQ(Gbl.AltoPieza, 75);
}

TEST_F(Corte, AnEvenCurvedCellIsHollowAboveAndBulgesAtItsSides) {
    Monta(1, 5, 400, 300);  // 79 by 59, piece 7 at row 1, column 1: even
    PreparaPieza(7);
    const i32 m = Gbl.SalienteX, n = Gbl.SalienteY;
    EXPECT_FALSE(Negro(m + 39, n + 5));
    EXPECT_TRUE(Negro(m - 5, n + 29));
    PreparaPieza(8);  // odd: the other way round
    EXPECT_TRUE(Negro(m + 39, n - 5));
    EXPECT_FALSE(Negro(m + 5, n + 29));
}

TEST_F(Corte, TheFirstCellsHollowTopIsStraightenedAndNotDrawn) {
    Monta(1, 5, 400, 300, true);
    // The arc would pass 11 pixels below the edge.
    EXPECT_EQ(Pic_Bitmap.Fila(11)[39], PixelDeMuestra(39, 11));
    EXPECT_EQ(Pic_Bitmap.Fila(0)[39], PixelDe(Gbl.ColorContraste));
    PreparaPieza(1);
    EXPECT_TRUE(Negro(Gbl.SalienteX + 39, Gbl.SalienteY));
}

TEST_F(Corte, AnUnknownShapeDrawsNothing) {
    Monta(0, 4, 320, 240);
    Gbl.FormaPiezas = 8;
    TrazaCortes(Pic_Bitmap);
    EXPECT_EQ(PixelesDeCorte(), 0);
}

TEST_F(Corte, BarsHideOnlyWhenBothSidesAreSmall) {
    P().ancho = 1000;
    P().alto = 600;
    Monta(0, 4, 640, 389);  // under 650 and under 390
    EXPECT_FALSE(BarraHor.Visible);
    EXPECT_FALSE(BarraVer.Visible);
    Monta(0, 4, 640, 392);  // the height alone is too much
    EXPECT_TRUE(BarraHor.Visible);
    EXPECT_TRUE(BarraVer.Visible);
}

TEST_F(Corte, TheTableLeaves200PixelsBesideThePicture) {
    P().ancho = 800;
    P().alto = 600;
    Monta(0, 4, 320, 240);
    EXPECT_EQ(Pic_Imagen.Width(), 800);
    EXPECT_EQ(Pic_Imagen.Height(), 600);
    Monta(0, 8, 800, 560);
    for (const Superficie* s : {&Pic_Imagen, &Pic_Fondo, static_cast<Superficie*>(&Pic_Trabajo)}) {
        EXPECT_EQ(s->Width(), 1000);
        EXPECT_EQ(s->Height(), 760);
    }
    EXPECT_EQ(BarraHor.Max, 800 + 200 - 783);
    EXPECT_EQ(BarraHor.LargeChange, 21);
}

TEST_F(Corte, TheEmptyTableHasAFrameOnTheRightAndBelow) {
    Monta(0, 4, 320, 240);
    const Pixel linea = PixelDe(Gbl.ColorContraste), fondo = PixelDe(Gbl.ColorFondo);
    for (const Superficie* s : {&Pic_Imagen, &Pic_Fondo}) {
        EXPECT_EQ(s->Fila(0)[320], linea);
        EXPECT_EQ(s->Fila(240)[320], linea);
        EXPECT_EQ(s->Fila(240)[0], linea);
        EXPECT_EQ(s->Fila(241)[100], fondo);
        EXPECT_EQ(s->Fila(0)[100], fondo);
    }
    Pic_Imagen.PSet(5, 5, 0x00FF00);
    Pic_Imagen.Cls();
    EXPECT_EQ(Pic_Imagen.Fila(5)[5], fondo) << "the frame is the surface's picture";
    EXPECT_EQ(Pic_Imagen.Fila(240)[0], linea);
}

TEST_F(Corte, TheSampleIsHalfThePictureAtTheLowerRight) {
    P().ancho = 1280;
    P().alto = 1024;
    Monta(0, 4, 320, 240);
    EXPECT_EQ(Pic_Muestra.Width(), 160);
    EXPECT_EQ(Pic_Muestra.Height(), 120);
    EXPECT_EQ(Pic_Muestra.Left + 160, 1280 - 15);
    EXPECT_EQ(Pic_Muestra.Top + 120, 1024 - 15);
    EXPECT_EQ(Pic_Muestra.Fila(10)[20], PixelDeMuestra(41, 21));
    EXPECT_TRUE(Pic_Muestra.Visible);
    Gbl.MostrarMuestra = false;
    Monta(0, 4, 320, 240);
    EXPECT_FALSE(Pic_Muestra.Visible);
}

TEST_F(Corte, TheSampleShowsThePictureWithoutTheCut) {
    for (const i16 forma : std::vector<i16>{0, 2, 3}) {
        Monta(forma, 4, 400, 300, true);
        Monta(forma, 4, 400, 300, true);  // a rebuild finds the lines of the first
        const i32 der = Pic_Muestra.Width() - 1, aba = Pic_Muestra.Height() - 1;
        const Pixel filete = PixelDe(Gbl.ColorContraste);
        for (i32 y = 0; y <= aba; ++y)
            for (i32 x = 0; x <= der; ++x) {
                const bool borde = x == 0 || y == 0 || x == der || y == aba;
                ASSERT_EQ(Pic_Muestra.Fila(y)[x],
                          borde ? filete : PixelDeMuestra(2 * x + 1, 2 * y + 1));
            }
    }
}

TEST_F(Corte, ARebuildLeavesThePiecesWhereTheyAre) {
    Monta(2, 4, 400, 300);
    Coloca(7, 123, 456, 3);
    SubePieza(9);
    const Arreglo<Pieza> antes = Gbl.Piezas;
    CreaMoviles(false);
    for (i32 p = 1; p <= 16; ++p) EXPECT_EQ(Gbl.Piezas[p], antes[p]) << p;
    EXPECT_EQ(Gbl.OrdenPiezas[1], 9);
}

TEST_F(Corte, ANewPuzzleNumbersThePiecesRowByRow) {
    Monta(3, 3, 320, 240);  // cells of 105 by 80, 36 pieces
    Gbl.Piezas.Redimensiona(-1);
    Randomize(1);
    CreaMoviles(true);
    ASSERT_EQ(Gbl.Piezas.Superior(), 36);
    EXPECT_EQ(Gbl.Piezas[1].XBien, 0);
    EXPECT_EQ(Gbl.Piezas[5].XBien, 105);
    EXPECT_EQ(Gbl.Piezas[5].YBien, 0);
    EXPECT_EQ(Gbl.Piezas[16].YBien, 80);
    EXPECT_EQ(Gbl.Piezas[36].XBien, 210);
    EXPECT_EQ(Gbl.Piezas[36].YBien, 160);
    std::vector<i16> orden(Gbl.OrdenPiezas.begin() + 1, Gbl.OrdenPiezas.end());
    std::sort(orden.begin(), orden.end());
    for (i16 i = 0; i < 36; ++i) EXPECT_EQ(orden[static_cast<std::size_t>(i)], i + 1);
    for (i32 p = 1; p <= 36; ++p) EXPECT_EQ(Gbl.Piezas[p].GiroBien, 0);
}

TEST_F(Corte, TemplatesAreSizedByTheBox) {
    Monta(1, 4, 400, 300);                  // box of 125 by 109
    EXPECT_EQ(Pic_Temporal.Width(), 262);   // 262.5, halves to even
    EXPECT_EQ(Pic_Temporal.Height(), 120);  // 119.9
}

}  // namespace tessario
