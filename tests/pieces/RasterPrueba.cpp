// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/MesaMoviles.h"
#include "core/Fallos.h"
#include "pieces/Raster.h"

namespace tessario {

namespace {

constexpr Pixel BLANCO = 0xFFFFFF;

// Pixels of the image that are not 0 although the mask is white there.
i32 FueraDeMascara() {
    i32 n = 0;
    for (i32 y = 0; y < Pic_PiezaMascara.Height(); ++y)
        for (i32 x = 0; x < Pic_PiezaMascara.Width(); ++x)
            n += !Negro(x, y) && Pic_PiezaImagen.Fila(y)[x] != 0;
    return n;
}

i32 AreaNegra() {
    i32 n = 0;
    for (const Pixel p : Pic_PiezaMascara.Dibujo().Pixeles) n += p == 0;
    return n;
}

}  // namespace

class RasterPiezas : public MesaMoviles {
protected:
    void Tangram(bool borde) {
        MontaTangram(800, 600);
        Gbl.DibujarBorde = borde;
        Pic_Bitmap.PonBackColor(0x123456);
    }
    void Deslizantes(bool borde, i16 celda) {
        Gbl.JuegoActual = JuegoDeslizantes;
        Gbl.DibujarBorde = borde;
        Gbl.NumPiezas = 8;
        Gbl.AnchoCelda = Gbl.AltoCelda = Gbl.AnchoPieza = Gbl.AltoPieza = celda;
        Gbl.ColorPiezasClaro = 0x28A828;
        Gbl.ColorPiezasOscuro = 0x005800;
        Gbl.Piezas.Redimensiona(8);
        Pic_Bitmap.Tamano(400, 400);
        Pic_Bitmap.PonBackColor(0x008000);
    }
};

TEST_F(RasterPiezas, ARectangleShowsItsOwnPartOfThePicture) {
    Monta(0, 4, 320, 240);  // cells of 80 by 60
    Coloca(6, 500, 300);    // where it lies does not matter; it belongs at (80, 60)
    PreparaPieza(6);
    ASSERT_EQ(Pic_PiezaImagen.Width(), 80);
    ASSERT_EQ(Pic_PiezaImagen.Height(), 60);
    EXPECT_EQ(AreaNegra(), 80 * 60);
    EXPECT_EQ(Pic_PiezaImagen.Fila(0)[0], PixelDeMuestra(80, 60));
    EXPECT_EQ(Pic_PiezaImagen.Fila(59)[79], PixelDeMuestra(159, 119));
    EXPECT_EQ(Gbl.PiezaAux, Gbl.Piezas[6]);
}

TEST_F(RasterPiezas, ACurvedCornerPieceHasTwoStraightSides) {
    Monta(1, 4, 400, 300);  // cells of 99 by 75
    const i32 w = Gbl.AnchoCelda, h = Gbl.AltoCelda, m = Gbl.SalienteX, n = Gbl.SalienteY;
    // Piece 1: hollow above (template A), bulging to the left. Piece 4, at the right end of the
    // first row, has the other template.
    for (const i16 p : {i16{1}, i16{4}}) {
        PreparaPieza(p);
        const i32 lado = p == 1 ? m : m + w - 1;
        for (i32 x = m; x < m + w; ++x) EXPECT_TRUE(Negro(x, n)) << p << ' ' << x;
        for (i32 y = n; y < n + h; ++y) EXPECT_TRUE(Negro(lado, y)) << p << ' ' << y;
        for (i32 x = 0; x < Gbl.AnchoPieza; ++x)
            for (i32 y = 0; y < n; ++y) EXPECT_FALSE(Negro(x, y)) << p;
        for (i32 y = 0; y < Gbl.AltoPieza; ++y)
            EXPECT_FALSE(Negro(p == 1 ? m - 1 : m + w + 1, y)) << p << ' ' << y;
    }
}

TEST_F(RasterPiezas, ACellWithoutSizeIsAnErrorAndNoCrash) {
    Monta(1, 4, 400, 300);
    Gbl.AnchoCelda = 0;
    try {
        PreparaPieza(1);
        FAIL() << "no error";
    } catch (const ErrorEjecucion& e) {
        EXPECT_EQ(e.Numero, ERROR_DIVISION);
    }
}

TEST_F(RasterPiezas, ASingleCurvedPieceIsTheWholePicture) {
    Monta(1, 1, 121, 91);
    PreparaPieza(1);
    for (i32 y = 0; y < 91; ++y)
        for (i32 x = 0; x < 121; ++x)
            EXPECT_TRUE(Negro(Gbl.SalienteX + x, Gbl.SalienteY + y)) << x << ' ' << y;
}

TEST_F(RasterPiezas, TheTwoPiecesOfADoubleCellCompleteEachOther) {
    for (i16 forma = 4; forma <= 7; ++forma) {
        Monta(forma, 3, 320, 240);
        PreparaPieza(1);
        const Mapa figura = Pic_PiezaMascara.Dibujo();
        const i32 area = AreaNegra();
        EXPECT_TRUE(Negro(Gbl.AnchoCelda / 2, Gbl.AltoCelda / 2)) << forma;
        EXPECT_FALSE(Negro(0, 0)) << forma;
        PreparaPieza(2);
        EXPECT_EQ(AreaNegra() + area, Gbl.AnchoCelda * Gbl.AltoCelda) << forma;
        for (std::size_t i = 0; i < figura.Pixeles.size(); ++i)
            ASSERT_NE(figura.Pixeles[i] == 0, Pic_PiezaMascara.Dibujo().Pixeles[i] == 0) << forma;
    }
}

TEST_F(RasterPiezas, InnerRectangleKeepsAFifthOfTheCellAllAround) {
    Monta(5, 4, 400, 300);  // 100 by 75: insets 20 and 15
    PreparaPieza(1);
    EXPECT_EQ(AreaNegra(), 60 * 45);
    EXPECT_TRUE(Negro(20, 15));
    EXPECT_TRUE(Negro(79, 59));
    EXPECT_FALSE(Negro(19, 15));
    EXPECT_FALSE(Negro(79, 60));
}

TEST_F(RasterPiezas, EachTriangleLiesOnItsSideOfTheCell) {
    Monta(3, 5, 400, 300);  // 79 by 60
    const struct {
        i16 piece;
        i32 x, y;  // in the middle of its side
    } casos[] = {{1, 78, 30}, {2, 39, 59}, {3, 0, 30}, {4, 39, 0}};
    for (const auto& c : casos) {
        PreparaPieza(c.piece);
        EXPECT_TRUE(Negro(c.x, c.y)) << c.piece;
        for (const auto& otro : casos) {
            if (otro.piece == c.piece) continue;
            EXPECT_FALSE(Negro(otro.x, otro.y)) << c.piece << ' ' << otro.piece;
        }
        EXPECT_NEAR(AreaNegra(), 79 * 60 / 4, 79) << c.piece;
    }
}

TEST_F(RasterPiezas, TrianglesHaveTheirSidesAndApexesToThePixel) {
    Monta(3, 5, 640, 480);  // 127 by 96: the apexes stand in column 63
    // Black from one to the other, both included, and nowhere else on that row or column.
    const auto fila = [](i32 y, i32 desde, i32 hasta) {
        for (i32 x = 0; x < 127; ++x)
            ASSERT_EQ(Negro(x, y), x >= desde && x <= hasta) << x << ' ' << y;
    };
    const auto columna = [](i32 x, i32 desde, i32 hasta) {
        for (i32 y = 0; y < 96; ++y)
            ASSERT_EQ(Negro(x, y), y >= desde && y <= hasta) << x << ' ' << y;
    };
    PreparaPieza(4);  // above
    fila(0, 1, 125);
    columna(63, 0, 46);
    PreparaPieza(1);  // right
    columna(126, 0, 94);
    fila(47, 63, 126);
    PreparaPieza(2);  // below
    fila(95, 0, 126);
    columna(63, 48, 95);
    PreparaPieza(3);  // left
    columna(0, 0, 94);
    fila(47, 0, 63);
}

TEST_F(RasterPiezas, SidesOnTheEdgeOfThePictureAreStraightAndFilled) {
    constexpr i16 lado = 4;
    for (i16 forma = 1; forma <= 2; ++forma) {
        Monta(forma, lado, 480, 360);
        const i32 w = Gbl.AnchoCelda, h = Gbl.AltoCelda, m = Gbl.SalienteX, n = Gbl.SalienteY;
        // Along the side as shares of its length, and how deep.
        const struct {
            double alLargo, hondo;
        } huecos[] = {{0.22, 0}, {0.5, forma == 1 ? 0 : 0.09}, {0.78, 0}};
        for (i16 p = 1; p <= lado * lado; ++p) {
            SCOPED_TRACE(testing::Message() << "shape " << forma << ", piece " << p);
            PreparaPieza(p);
            const i32 columna = (p - 1) % lado, fila = (p - 1) / lado;
            const bool izq = columna == 0, der = columna == lado - 1;
            const bool arr = fila == 0, aba = fila == lado - 1;
            for (i32 y = n; y < n + h; ++y) {
                EXPECT_TRUE(!izq || Negro(m, y)) << y;
                EXPECT_TRUE(!der || Negro(m + w - 1, y)) << y;
            }
            for (i32 x = m; x < m + w; ++x) {
                EXPECT_TRUE(!arr || Negro(x, n)) << x;
                EXPECT_TRUE(!aba || Negro(x, n + h - 1)) << x;
            }
            for (const auto& k : huecos) {
                const i16 y = Entero(n + h * k.alLargo), x = Entero(m + w * k.alLargo);
                const i32 dx = k.hondo == 0 ? 1 : Entero(h * k.hondo),
                          dy = k.hondo == 0 ? 1 : Entero(w * k.hondo);
                EXPECT_TRUE(!izq || Negro(m + dx, y)) << y;
                EXPECT_TRUE(!der || Negro(m + w - 1 - dx, y)) << y;
                EXPECT_TRUE(!arr || Negro(x, n + dy)) << x;
                EXPECT_TRUE(!aba || Negro(x, n + h - 1 - dy)) << x;
            }
            for (i32 y = 0; y < Gbl.AltoPieza; ++y)
                for (i32 x = 0; x < Gbl.AnchoPieza; ++x)
                    ASSERT_FALSE(((izq && x < m) || (der && x >= m + w) || (arr && y < n) ||
                                  (aba && y >= n + h)) &&
                                 Negro(x, y))
                        << x << ' ' << y;
        }
    }
}

TEST_F(RasterPiezas, TheImageIsBlackWhereverTheMaskIsWhite) {
    for (i16 forma = 0; forma <= 7; ++forma) {
        Monta(forma, 4, 400, 300, true);
        for (i16 p = 1; p <= Gbl.NumPiezas; ++p) {
            Gbl.Piezas[p].Giro = static_cast<i16>(p % 4);
            PreparaPieza(p);
            ASSERT_EQ(FueraDeMascara(), 0) << forma << ' ' << p;
        }
    }
    Tangram(true);
    for (i16 p = 1; p <= 7; ++p)
        for (i16 g = 0; g < 8; ++g) {
            Gbl.Piezas[p].Giro = g;
            PreparaPieza(p);
            ASSERT_EQ(FueraDeMascara(), 0) << p << ' ' << g;
        }
    for (const i16 celda : {i16{40}, i16{67}, i16{89}, i16{107}}) {
        Deslizantes(true, celda);
        PreparaPieza(1);
        ASSERT_EQ(FueraDeMascara(), 0) << celda;
    }
}

TEST_F(RasterPiezas, ATurnedPieceExchangesItsBox) {
    Monta(0, 4, 320, 240);
    Coloca(6, 0, 0, 1);
    PreparaPieza(6);
    EXPECT_EQ(Pic_PiezaMascara.Width(), 60);
    EXPECT_EQ(Pic_PiezaMascara.Height(), 80);
    EXPECT_EQ(Pic_PiezaImagen.Fila(0)[59], PixelDeMuestra(80, 60));  // top left to top right
    EXPECT_EQ(Pic_PiezaImagen.Fila(79)[59], PixelDeMuestra(159, 60));
    Coloca(6, 0, 0, 2);
    PreparaPieza(6);
    EXPECT_EQ(Pic_PiezaImagen.Fila(59)[79], PixelDeMuestra(80, 60));
    Coloca(6, 0, 0, 3);
    PreparaPieza(6);
    EXPECT_EQ(Pic_PiezaImagen.Fila(79)[0], PixelDeMuestra(80, 60));
    EXPECT_EQ(Pic_PiezaImagen.Fila(0)[0], PixelDeMuestra(159, 60));
}

TEST_F(RasterPiezas, TurningASurfaceMovesEveryPixelClockwise) {
    for (const i32 ancho : {1, 7, 16, 33})
        for (const i32 alto : {1, 5, 16, 35})
            for (i16 giro = 1; giro <= 3; ++giro) {
                Superficie s(ancho, alto);
                s.PonPicture(ImagenDeMuestra(ancho, alto));
                GiraSuperficie(s, giro);
                ASSERT_EQ(s.Width(), giro == 2 ? ancho : alto);
                ASSERT_EQ(s.Height(), giro == 2 ? alto : ancho);
                EXPECT_EQ(s.Picture(), nullptr);
                for (i32 y = 0; y < alto; ++y)
                    for (i32 x = 0; x < ancho; ++x) {
                        const Punto d = giro == 1   ? Punto{alto - 1 - y, x}
                                        : giro == 2 ? Punto{ancho - 1 - x, alto - 1 - y}
                                                    : Punto{y, ancho - 1 - x};
                        ASSERT_EQ(s.Fila(d.y)[d.x], PixelDeMuestra(x, y)) << giro;
                    }
            }
}

TEST_F(RasterPiezas, ShowingThePlacedPiecesReplacesThePictureByAFlatColour) {
    Monta(2, 4, 400, 300);
    Pic_PiezaColor.Tamano(Pic_Bitmap.Width(), Pic_Bitmap.Height());
    Pic_PiezaColor.PonBackColor(0x0000FF);  // red
    Gbl.MostrandoColocadas = true;
    PreparaPieza(6);
    for (i32 y = 0; y < Pic_PiezaImagen.Height(); ++y)
        for (i32 x = 0; x < Pic_PiezaImagen.Width(); ++x)
            ASSERT_EQ(Pic_PiezaImagen.Fila(y)[x], Negro(x, y) ? 0xFF0000U : 0U);
}

TEST_F(RasterPiezas, TangramPieceHasItsColourWhereverItsPlaceLies) {
    Tangram(false);
    // Places of a tall or spread figure: a turned piece's box passes the table's edges.
    for (const Punto sitio : {Punto{700, 100}, {100, 560}, {790, 590}, {900, 100}, {-40, -30}}) {
        Gbl.Piezas[1].XBien = static_cast<i16>(sitio.x);
        Gbl.Piezas[1].YBien = static_cast<i16>(sitio.y);
        for (i16 giro = 0; giro < 8; ++giro) {
            Gbl.Piezas[1].Giro = giro;
            PreparaPieza(1);
            for (i32 y = 0; y < Pic_PiezaImagen.Height(); ++y)
                for (i32 x = 0; x < Pic_PiezaImagen.Width(); ++x)
                    ASSERT_EQ(Pic_PiezaImagen.Fila(y)[x], Negro(x, y) ? PixelDe(0x123456) : 0U)
                        << sitio.x << ' ' << sitio.y << ' ' << giro;
        }
    }
}

TEST_F(RasterPiezas, TangramFaceHasAnOutlineOnlyWithBorders) {
    Tangram(true);
    Pic_PiezaImagen.ForeColor = 0xFFFFFF;
    PreparaPieza(6);  // the square, 63 by 63
    EXPECT_EQ(AreaNegra(), 63 * 63);
    EXPECT_EQ(Pic_PiezaImagen.Fila(0)[30], BLANCO);
    EXPECT_EQ(Pic_PiezaImagen.Fila(30)[62], BLANCO);
    EXPECT_EQ(Pic_PiezaImagen.Fila(30)[30], 0x563412U);
    Gbl.DibujarBorde = false;
    PreparaPieza(6);
    EXPECT_EQ(Pic_PiezaImagen.Fila(0)[30], 0x563412U);
}

TEST_F(RasterPiezas, TangramMaskIsTheOutlinedPolygon) {
    Tangram(false);
    PreparaPieza(1);  // corners (0, 88), (88, 0), (176, 88)
    ASSERT_EQ(Pic_PiezaMascara.Width(), 177);
    ASSERT_EQ(Pic_PiezaMascara.Height(), 89);
    EXPECT_EQ(AreaNegra(), 89 * 89);  // rows of 1, 3, 5, ... 177 pixels
    EXPECT_TRUE(Negro(88, 0));
    EXPECT_FALSE(Negro(87, 0));
    EXPECT_TRUE(Negro(0, 88));
}

TEST_F(RasterPiezas, SlidingPieceWithoutBorderIsAFullSquare) {
    Deslizantes(false, 89);
    PreparaPieza(1);
    EXPECT_EQ(AreaNegra(), 89 * 89);
    EXPECT_EQ(Pic_PiezaImagen.Fila(0)[0], 0x008000U);
}

TEST_F(RasterPiezas, SlidingPieceWithBorderLosesItsCornersAndHasARelief) {
    Deslizantes(true, 90);  // corners of 3 pixels
    PreparaPieza(1);
    // The corner triangles outside the cut from (3, 0) to (0, 3): 3 + 2 + 1 pixels each.
    EXPECT_EQ(AreaNegra(), 90 * 90 - 4 * 6);
    EXPECT_FALSE(Negro(2, 0));
    EXPECT_TRUE(Negro(3, 0));
    EXPECT_TRUE(Negro(0, 3));
    EXPECT_EQ(Pic_PiezaImagen.Fila(45)[1], PixelDe(0x28A828));  // light on the left
    EXPECT_EQ(Pic_PiezaImagen.Fila(1)[45], PixelDe(0x28A828));
    EXPECT_EQ(Pic_PiezaImagen.Fila(45)[88], PixelDe(0x005800));  // dark on the right
    EXPECT_EQ(Pic_PiezaImagen.Fila(88)[45], PixelDe(0x005800));
    EXPECT_EQ(Pic_PiezaImagen.Fila(3)[89], 0U);  // where the two meet
    EXPECT_EQ(Pic_PiezaImagen.Fila(89)[3], 0U);
    EXPECT_EQ(Pic_PiezaImagen.Fila(45)[45], 0x008000U);
    EXPECT_EQ(Pic_PiezaImagen.DrawWidth, 1);
}

TEST_F(RasterPiezas, SilhouettePaintsAndErasesTheModelPlaces) {
    Tangram(false);
    Gbl.ColorFondo = 0x800000;
    Gbl.ColorContraste = 0xFFFFFF;
    for (i16 p = 1; p <= 7; ++p) {
        Gbl.Piezas[p].XBien = static_cast<i16>(20 + (p - 1) % 4 * 190);
        Gbl.Piezas[p].YBien = static_cast<i16>(20 + (p - 1) / 4 * 150);
        Gbl.Piezas[p].GiroBien = p;
    }
    Pic_Imagen.Tamano(800, 400);
    TPintaFigura(Pic_Imagen);
    EXPECT_EQ(Pic_Imagen.BackColor(), 0x800000U);
    i32 antes = 0;
    for (const Pixel q : Pic_Imagen.Dibujo().Pixeles) antes += q == BLANCO;
    for (i16 p = 1; p <= 7; ++p) {
        TPuntoInterior(p, p, 0);
        const Pieza& z = Gbl.Piezas[p];
        EXPECT_EQ(Pic_Imagen.Point(z.XBien + Gbl.XInterior, z.YBien + Gbl.YInterior), 0xFFFFFFU)
            << p;
        TBorraFigura(p);
        i32 despues = 0;
        for (const Pixel q : Pic_Imagen.Dibujo().Pixeles) despues += q == BLANCO;
        EXPECT_LT(despues, antes) << p;
        antes = despues;
    }
    EXPECT_EQ(antes, 0);
    TPintaFigura(Pic_Imagen, 6);  // one piece only, and no new ground
    i32 uno = 0;
    for (const Pixel q : Pic_Imagen.Dibujo().Pixeles) uno += q == BLANCO;
    EXPECT_EQ(uno, 63 * 63);
}

}  // namespace tessario
