// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoyo/PlataformaPrueba.h"
#include "apoyo/TableroDeslizante.h"
#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "pieces/Raster.h"
#include "rules/Colores.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

// Remembers what was printed: the two printings of the labels, and apart from them their rims.
class PlataformaConTextos : public PlataformaPrueba {
public:
    struct Impreso {
        std::string texto;
        i32 x, y;
        Color color;
        bool negrita;
    };
    std::vector<Impreso> impresos, cantos;
    void PintaTexto(Superficie& s, i32 x, i32 y, std::string_view texto, const Fuente& f,
                    Color color) override {
        auto& lista = color == 0 || color == 0xFFFFFF ? cantos : impresos;
        if (&s == &Pic_Bitmap) lista.push_back({std::string(texto), x, y, color, f.Negrita});
        PlataformaPrueba::PintaTexto(s, x, y, texto, f, color);
    }
};

class Construccion : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        PonSistema(&textos_);
        Gbl.ColorFondo = 0x604020;
        Gbl.ColorPiezas = 0x208060;
    }
    PlataformaConTextos& T() { return textos_; }

private:
    PlataformaConTextos textos_;
};

// 40 more and 40 less in each channel.
constexpr Color FONDO = 0x604020, FONDO_CLARO = 0x886848, FONDO_OSCURO = 0x381800;
constexpr Color PIEZAS = 0x208060, PIEZAS_CLARO = 0x48A888, PIEZAS_OSCURO = 0x005838;

void Monta(i16 lado, i16 tipo) {
    Gbl.TipoFondo = tipo;
    PreparaMesa(lado);
}

// A picture of 640 x 480 behind the margins, each pixel telling its own place.
void PonRetrato(i16 lado) {
    PreparaTablero(lado);
    Pic_FonTamModi.Tamano(Gbl.MargenX + 640, Gbl.MargenY + 480);
    for (i32 y = 0; y < Pic_FonTamModi.Height(); ++y)
        for (i32 x = 0; x < Pic_FonTamModi.Width(); ++x)
            Pic_FonTamModi.Fila(y)[x] = static_cast<Pixel>(x) << 12 | static_cast<Pixel>(y);
    Pic_FonTamModi.PonPicture(Pic_FonTamModi.Image());
}

Pixel Marca(i32 x, i32 y) {
    return static_cast<Pixel>(x) << 12 | static_cast<Pixel>(y);
}

}  // namespace

TEST_F(Construccion, TableFillsTheScreenAndTheFacesTheirMargins) {
    Monta(4, FONDO_NUMEROS);
    EXPECT_EQ(Pic_Bitmap.Width(), 151 + 356);
    EXPECT_EQ(Pic_Bitmap.Height(), 89 + 356);
    EXPECT_EQ(Pic_Imagen.Width(), 800);
    EXPECT_EQ(Pic_Imagen.Height(), 600);
    EXPECT_EQ(Pic_Trabajo.Width(), 800);
    EXPECT_EQ(Pic_Trabajo.Height(), 600);
    EXPECT_EQ(Pic_Fondo.Width(), 800);
    EXPECT_EQ(Pic_Fondo.Height(), 600);
    EXPECT_EQ(Gbl.AnchoPieza, 89);
    EXPECT_EQ(Gbl.AltoPieza, 89);
    EXPECT_EQ(Gbl.PasoOrdenar, 89);
    EXPECT_EQ(Gbl.SalienteX, 0);
    EXPECT_EQ(Gbl.SalienteY, 0);
    EXPECT_EQ(Pic_Bitmap.Point(0, 0), PIEZAS);
}

TEST_F(Construccion, SunkenFrameIsDarkAboveAndLeftLightBelowAndRight) {
    Monta(4, FONDO_NUMEROS);
    // Corners (149, 87) and (508, 446), pen of three.
    for (const Superficie* s :
         {static_cast<const Superficie*>(&Pic_Imagen), static_cast<const Superficie*>(&Pic_Fondo),
          static_cast<const Superficie*>(&Pic_Trabajo)}) {
        EXPECT_EQ(s->Point(300, 87), FONDO_OSCURO);
        EXPECT_EQ(s->Point(149, 200), FONDO_OSCURO);
        EXPECT_EQ(s->Point(508, 200), FONDO_CLARO);
        EXPECT_EQ(s->Point(300, 446), FONDO_CLARO);
        EXPECT_EQ(s->Point(300, 445), FONDO_CLARO);
        EXPECT_EQ(s->Point(300, 447), FONDO_CLARO);
        EXPECT_EQ(s->Point(300, 444), FONDO);  // last line of the board
        EXPECT_EQ(s->Point(300, 448), FONDO);
        EXPECT_EQ(s->Point(300, 88), FONDO_OSCURO);
        EXPECT_EQ(s->Point(300, 86), FONDO_OSCURO);
        EXPECT_EQ(s->Point(509, 200), FONDO_CLARO);
        EXPECT_EQ(s->Point(507, 200), FONDO_CLARO);
        EXPECT_EQ(s->Point(300, 89), FONDO);   // first line of the board
        EXPECT_EQ(s->Point(506, 200), FONDO);  // its last column
        EXPECT_EQ(s->Point(300, 84), FONDO);
        EXPECT_EQ(s->Point(512, 200), FONDO);
    }
    EXPECT_EQ(Pic_Imagen.DrawWidth, 1);
}

TEST_F(Construccion, FrameBelongsToTheTableForGood) {
    Monta(4, FONDO_NUMEROS);
    Pic_Imagen.Cls();
    EXPECT_EQ(Pic_Imagen.Point(300, 87), FONDO_OSCURO);
    EXPECT_EQ(Pic_Imagen.Point(300, 446), FONDO_CLARO);
}

TEST_F(Construccion, BarsLeaveTheTableAndTheSampleIsHiddenWithoutAPicture) {
    BarraHor.Visible = BarraVer.Visible = Pic_Cuadrito.Visible = Pic_Muestra.Visible = true;
    BarraHor.Value = BarraVer.Value = 30;
    Gbl.MostrarMuestra = true;
    Monta(3, FONDO_NUMEROS);
    EXPECT_FALSE(BarraHor.Visible);
    EXPECT_FALSE(BarraVer.Visible);
    EXPECT_FALSE(Pic_Cuadrito.Visible);
    EXPECT_FALSE(Pic_Muestra.Visible);
    EXPECT_EQ(BarraHor.Left, 0);
    EXPECT_EQ(BarraHor.Top, 600);
    EXPECT_EQ(BarraVer.Left, 800);
    EXPECT_EQ(BarraVer.Top, 0);
    EXPECT_EQ(BarraHor.Value, 0);
    EXPECT_EQ(BarraVer.Value, 0);
}

TEST_F(Construccion, NothingStaysOfTheGameBefore) {
    Monta(4, FONDO_NUMEROS);
    Superficie cuadro(300, 200);
    cuadro.PonBackColor(0x123456);
    for (Superficie* s : std::initializer_list<Superficie*>{&Pic_Bitmap, &Pic_Imagen, &Pic_Fondo})
        s->PonPicture(cuadro.Image());
    Gbl.SalienteX = Gbl.SalienteY = 9;
    Gbl.PasoOrdenar = Gbl.AnchoPieza = Gbl.AltoPieza = 125;
    CreaDeslizantes(1);
    EXPECT_EQ(Pic_Bitmap.Point(20, 20), PIEZAS);
    for (const Superficie* s : std::initializer_list<const Superficie*>{&Pic_Imagen, &Pic_Fondo})
        EXPECT_EQ(s->Point(20, 20), FONDO);
    EXPECT_EQ(Gbl.SalienteX, 0);
    EXPECT_EQ(Gbl.SalienteY, 0);
    EXPECT_EQ(Gbl.PasoOrdenar, 89);
    EXPECT_EQ(Gbl.AnchoPieza, 89);
    EXPECT_EQ(Gbl.AltoPieza, 89);
}

// ---------------------------------------------------------------- labels

TEST_F(Construccion, FontIsTheFirstWhoseTwoDigitsPassFourFifthsOfTheCell) {
    // Nine a side: cells of 49, so more than 39.2 pixels. The test font's digits are 7/13 of its
    // size, cut: 19 pixels at 37, 20 at 38.
    Monta(9, FONDO_NUMEROS);
    EXPECT_EQ(Pic_Bitmap.Font.Tamano, 38);
}

TEST_F(Construccion, FontWhoseTwoDigitsAreJustFourFifthsOfTheCellIsNotYetTheOne) {
    // Cells of 50: 40 pixels, which the font of 38 has exactly; the one of 39 has 42.
    Gbl.TipoFondo = FONDO_NUMEROS;
    PreparaTablero(9);
    Gbl.AnchoCelda = Gbl.AltoCelda = 50;
    PintaFondoCaras();
    EXPECT_EQ(Pic_Bitmap.Font.Tamano, 39);
}

TEST_F(Construccion, FontStopsAtFiftyOnLargeCells) {
    Monta(3, FONDO_NUMEROS);
    EXPECT_EQ(Pic_Bitmap.Font.Tamano, 50);
}

TEST_F(Construccion, FontStartsAtEightOnTinyCells) {
    Gbl.TipoFondo = FONDO_NUMEROS;
    PreparaTablero(9);
    Gbl.AnchoCelda = Gbl.AltoCelda = 5;
    PintaFondoCaras();
    EXPECT_EQ(Pic_Bitmap.Font.Tamano, 8);
}

TEST_F(Construccion, LabelIsPrintedDarkAPixelUpAndLeftThenLight) {
    // Nine a side: cell 49 at margins 109 and 47; the font of 38 gives a box of 20 x 40 for "1".
    // x = 14.5 + 109 and y = 4.5 + 47, halves to even.
    Monta(9, FONDO_NUMEROS);
    ASSERT_EQ(T().impresos.size(), 160U);
    const auto& oscuro = T().impresos[0];
    const auto& claro = T().impresos[1];
    EXPECT_EQ(oscuro.texto, "1");
    EXPECT_EQ(oscuro.x, 123);
    EXPECT_EQ(oscuro.y, 51);
    EXPECT_EQ(oscuro.color, PIEZAS_OSCURO);
    EXPECT_EQ(claro.texto, "1");
    EXPECT_EQ(claro.x, 124);
    EXPECT_EQ(claro.y, 52);
    EXPECT_EQ(claro.color, PIEZAS_CLARO);
    EXPECT_EQ(T().impresos[158].texto, "80");
    // On the surface: the block of the light print over that of the dark one.
    EXPECT_EQ(Pic_Bitmap.Point(124, 52), PIEZAS_OSCURO);
    EXPECT_EQ(Pic_Bitmap.Point(125, 53), PIEZAS_CLARO);
    EXPECT_EQ(Pic_Bitmap.Point(142, 90), PIEZAS_CLARO);
    EXPECT_EQ(Pic_Bitmap.Point(144, 92), 0U) << "the rim";
    EXPECT_EQ(Pic_Bitmap.Point(146, 94), PIEZAS);
}

TEST_F(Construccion, LabelsAreBoldWithARimThatTheyCanBeReadOn) {
    Monta(9, FONDO_NUMEROS);  // a font of 38: a rim of two pixels around x 123 to 124
    for (const auto& t : T().impresos) EXPECT_TRUE(t.negrita);
    i32 menor = 999, mayor = 0;
    for (const auto& t : T().cantos) {
        EXPECT_GE(paleta::Contraste(t.color, PIEZAS_CLARO), 4.5);
        if (t.texto != "1") continue;
        menor = std::min(menor, t.x);
        mayor = std::max(mayor, t.x);
    }
    EXPECT_EQ(menor, 121);
    EXPECT_EQ(mayor, 126);
    // The test font's light block reaches from 124 to 142 and from 53 to 90.
    for (const Punto p : {Punto{121, 50}, {122, 70}, {144, 70}, {130, 50}, {130, 92}, {144, 92}})
        EXPECT_EQ(Pic_Bitmap.Point(p.x, p.y), 0U) << p.x << ", " << p.y;
    for (const Punto p : {Punto{120, 70}, {145, 70}, {130, 49}, {130, 93}})
        EXPECT_EQ(Pic_Bitmap.Point(p.x, p.y), PIEZAS) << p.x << ", " << p.y;
}

TEST_F(Construccion, DarkPiecesHaveLabelsWithAWhiteRim) {
    Gbl.ColorPiezas = 0x400000;
    Monta(3, FONDO_LETRAS);
    ASSERT_FALSE(T().cantos.empty());
    for (const auto& t : T().cantos) EXPECT_EQ(t.color, 0xFFFFFFU);
}

TEST_F(Construccion, LettersHaveEnyeInFifteenthPlaceAndEndAtW) {
    Monta(5, FONDO_LETRAS);
    ASSERT_EQ(T().impresos.size(), 48U);
    EXPECT_EQ(T().impresos[0].texto, "A");
    EXPECT_EQ(T().impresos[26].texto, "N");
    EXPECT_EQ(T().impresos[28].texto, "Ñ");
    EXPECT_EQ(T().impresos[30].texto, "O");
    EXPECT_EQ(T().impresos[47].texto, "W");
    // One character wide, not two: cell 76, font 50 gives 26.
    EXPECT_EQ(T().impresos[29].x, (76 - 26) / 2 + Gbl.Piezas[15].XBien);
}

TEST_F(Construccion, LetterFacesOfTooManyPiecesAreBlankNotAnError) {
    Monta(6, FONDO_LETRAS);
    ASSERT_GE(T().impresos.size(), 48U);
    EXPECT_EQ(T().impresos[47].texto, "W");
}

TEST_F(Construccion, LabelsStandAtTheHomesWhereverThePiecesAre) {
    Gbl.TipoFondo = FONDO_NUMEROS;
    PreparaTablero(3);
    PonTablero({8, 7, 6, 5, 4, 3, 2, 1, 0});
    CalculaColores();
    CreaDeslizantes(0);
    ASSERT_EQ(T().impresos.size(), 16U);
    // Margins 169 and 107, cells of 107; the font of 50 gives 26 x 52.
    EXPECT_EQ(T().impresos[1].x, 210);  // 40.5 + 169, to even
    EXPECT_EQ(T().impresos[3].x, 316);  // 40.5 + 276, to even
    EXPECT_EQ(T().impresos[1].y, 134);  // 27.5 + 107, to even
    EXPECT_EQ(CeldasDelTablero(), (std::vector<i16>{8, 7, 6, 5, 4, 3, 2, 1, 0}));
}

// ---------------------------------------------------------------- picture

TEST_F(Construccion, PictureIsStretchedFromTheMarginsNotFromTheOrigin) {
    Gbl.TipoFondo = FONDO_IMAGEN;
    PonRetrato(4);
    Monta(4, FONDO_IMAGEN);
    // 640 x 480 onto 356 x 356: column 100 takes (2 * 100 + 1) * 640 / 712 = 180, line 50 takes
    // 101 * 480 / 712 = 68.
    EXPECT_EQ(Pic_Bitmap.Fila(89)[151], Marca(151, 89));
    EXPECT_EQ(Pic_Bitmap.Fila(89 + 50)[151 + 100], Marca(151 + 180, 89 + 68));
    EXPECT_EQ(Pic_Bitmap.Fila(89 + 355)[151 + 355], Marca(151 + 639, 89 + 479));
    EXPECT_EQ(Pic_Bitmap.Point(150, 89), PIEZAS);
    EXPECT_TRUE(T().impresos.empty());
}

TEST_F(Construccion, SampleIsHalfTheBoardNearTheLowerRightCorner) {
    Gbl.TipoFondo = FONDO_IMAGEN;
    Gbl.MostrarMuestra = true;
    PonRetrato(4);
    Monta(4, FONDO_IMAGEN);
    EXPECT_TRUE(Pic_Muestra.Visible);
    EXPECT_EQ(Pic_Muestra.Width(), 178);
    EXPECT_EQ(Pic_Muestra.Height(), 178);
    EXPECT_EQ(Pic_Muestra.Left, 607);
    EXPECT_EQ(Pic_Muestra.Top, 407);
    // Column 10 takes 21 * 640 / 356 = 37, line 20 takes 41 * 480 / 356 = 55.
    EXPECT_EQ(Pic_Muestra.Fila(20)[10], Marca(151 + 37, 89 + 55));
    Gbl.MostrarMuestra = false;
    CreaDeslizantes(0);
    EXPECT_FALSE(Pic_Muestra.Visible);
}

TEST_F(Construccion, EmptyPictureBuildsATableOfPlainFaces) {
    Gbl.MostrarMuestra = true;
    Monta(4, FONDO_IMAGEN);
    EXPECT_EQ(Pic_Bitmap.Point(200, 200), PIEZAS);
    EXPECT_EQ(Pic_Imagen.Point(300, 87), FONDO_OSCURO);
    // A picture that is nothing but margin.
    Pic_FonTamModi.Tamano(Gbl.MargenX, Gbl.MargenY);
    CreaDeslizantes(1);
    EXPECT_TRUE(TieneSolucion());
}

// ---------------------------------------------------------------- a new board

TEST_F(Construccion, NewBoardIsLaidOutAndShuffled) {
    Gbl.TipoFondo = FONDO_NUMEROS;
    PreparaTablero(4);
    CalculaColores();
    Gbl.NumMovimientos = 9;
    Gbl.SegundosJuego = 9;
    CreaDeslizantes(1);
    EXPECT_EQ(Gbl.Piezas.Superior(), 15);
    EXPECT_EQ(Gbl.OrdenPiezas.Superior(), 15);
    EXPECT_EQ(Gbl.Piezas[1].XBien, 151);
    EXPECT_EQ(Gbl.Piezas[1].YBien, 89);
    EXPECT_EQ(Gbl.Piezas[6].XBien, 240);
    EXPECT_EQ(Gbl.Piezas[6].YBien, 178);
    EXPECT_EQ(Gbl.HuecoX, 418);
    EXPECT_EQ(Gbl.HuecoY, 356);
    EXPECT_TRUE(TieneSolucion());
    EXPECT_NE(CeldasDelTablero(), TableroResuelto(4));
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_EQ(T().impresos.size(), 30U);
}

TEST_F(Construccion, RedrawnTableKeepsThePiecesAndTheCount) {
    Gbl.TipoFondo = FONDO_NUMEROS;
    PreparaTablero(3);
    PonTablero({1, 2, 3, 4, 0, 5, 7, 8, 6});
    Gbl.SegundosJuego = 42;
    Gbl.NumMovimientos = 3;
    CreaDeslizantes(0);
    EXPECT_EQ(CeldasDelTablero(), (std::vector<i16>{1, 2, 3, 4, 0, 5, 7, 8, 6}));
    EXPECT_EQ(Gbl.SegundosJuego, 42);
    EXPECT_EQ(Gbl.NumMovimientos, 3);
}

TEST_F(Construccion, RepairedBoardShowsItsFacesAtTheNewHomes) {
    // A record from another screen: its homes lie elsewhere.
    Gbl.TipoFondo = FONDO_NUMEROS;
    Monta(3, FONDO_NUMEROS);
    for (i16 i = 1; i <= 8; ++i) {
        Gbl.Piezas[i].X = Gbl.Piezas[i].XBien = static_cast<i16>(i * 3);
        Gbl.Piezas[i].Y = Gbl.Piezas[i].YBien = 0;
    }
    ASSERT_FALSE(TieneSolucion());
    CreaDeslizantes(0);
    T().impresos.clear();
    BarajaDeslizantes();
    ASSERT_EQ(T().impresos.size(), 16U);
    EXPECT_EQ(T().impresos[1].x, 210);
    EXPECT_EQ(T().impresos[1].y, 134);
}

// ---------------------------------------------------------------- shape of a piece

TEST_F(Construccion, PieceWithBorderHasCutCornersAndARelief) {
    Gbl.DibujarBorde = true;
    Monta(4, FONDO_NUMEROS);
    Gbl.TipoFondo = FONDO_IMAGEN;  // bare faces: no picture, no label
    PintaFondoCaras();
    PreparaPieza(6);
    constexpr Color NEGRO = 0, BLANCO = 0xFFFFFF;
    // Box of 89: corners cut from 2 to 86.
    const Superficie& m = Pic_PiezaMascara;
    EXPECT_EQ(m.Width(), 89);
    EXPECT_EQ(m.Height(), 89);
    EXPECT_EQ(m.Point(0, 0), BLANCO);
    EXPECT_EQ(m.Point(1, 0), BLANCO);
    EXPECT_EQ(m.Point(0, 1), BLANCO);
    EXPECT_EQ(m.Point(2, 0), NEGRO);
    EXPECT_EQ(m.Point(0, 2), NEGRO);
    EXPECT_EQ(m.Point(1, 1), NEGRO);
    EXPECT_EQ(m.Point(86, 0), NEGRO);
    EXPECT_EQ(m.Point(88, 2), NEGRO);
    EXPECT_EQ(m.Point(88, 86), NEGRO);
    EXPECT_EQ(m.Point(86, 88), NEGRO);
    EXPECT_EQ(m.Point(2, 88), NEGRO);
    EXPECT_EQ(m.Point(88, 88), BLANCO);
    EXPECT_EQ(m.Point(88, 0), BLANCO);
    EXPECT_EQ(m.Point(0, 88), BLANCO);
    EXPECT_EQ(m.Point(44, 44), NEGRO);
    // Relief: p = 4, q = 85.
    const Superficie& s = Pic_PiezaImagen;
    EXPECT_EQ(s.Point(44, 44), PIEZAS);
    EXPECT_EQ(s.Point(1, 44), PIEZAS_CLARO);
    EXPECT_EQ(s.Point(44, 1), PIEZAS_CLARO);
    EXPECT_EQ(s.Point(1, 3), PIEZAS_CLARO);
    EXPECT_EQ(s.Point(3, 1), PIEZAS_CLARO);
    EXPECT_EQ(s.Point(2, 2), PIEZAS_CLARO);
    EXPECT_EQ(s.Point(86, 1), PIEZAS_CLARO);
    EXPECT_EQ(s.Point(88, 44), PIEZAS_OSCURO);
    EXPECT_EQ(s.Point(44, 88), PIEZAS_OSCURO);
    EXPECT_EQ(s.Point(88, 85), PIEZAS_OSCURO);
    EXPECT_EQ(s.Point(85, 88), PIEZAS_OSCURO);
    EXPECT_EQ(s.Point(88, 4), PIEZAS_OSCURO);
    EXPECT_EQ(s.Point(4, 88), PIEZAS_OSCURO);
    EXPECT_EQ(s.Point(88, 2), NEGRO);  // where the two colours meet
    EXPECT_EQ(s.Point(2, 88), NEGRO);
    EXPECT_EQ(s.Point(0, 0), NEGRO);
}

TEST_F(Construccion, PieceWithoutBorderIsThePlainSquareOfItsFace) {
    Gbl.DibujarBorde = false;
    Gbl.TipoFondo = FONDO_IMAGEN;
    PonRetrato(4);
    Monta(4, FONDO_IMAGEN);
    PreparaPieza(6);
    for (const auto& [x, y] : {std::pair{0, 0}, {88, 0}, {0, 88}, {88, 88}, {44, 44}}) {
        EXPECT_EQ(Pic_PiezaMascara.Point(x, y), 0U);
        EXPECT_EQ(Pic_PiezaImagen.Fila(y)[x], Pic_Bitmap.Fila(178 + y)[240 + x]);
    }
}

TEST_F(Construccion, FaceComesFromWhereThePieceBelongs) {
    Gbl.DibujarBorde = false;
    PonRetrato(3);
    Monta(3, FONDO_IMAGEN);
    PonTablero({8, 7, 6, 5, 4, 3, 2, 1, 0});
    PreparaPieza(1);
    EXPECT_EQ(Pic_PiezaImagen.Fila(0)[0], Pic_Bitmap.Fila(107)[169]);
    EXPECT_EQ(Pic_PiezaImagen.Fila(106)[106], Pic_Bitmap.Fila(213)[275]);
}

}  // namespace tessario
