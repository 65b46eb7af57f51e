// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "apoyo/PlataformaPrueba.h"
#include "core/Fallos.h"
#include "core/Superficies.h"
#include "panel/Colocadas.h"
#include "rules/Colores.h"
#include "rules/Despacho.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"

namespace tessario {

namespace {

class Reglas : public PruebaBase {
protected:
    // One piece of a game, standing where it belongs.
    Pieza& PiezaDe(i16 juego, i16 piece) {
        Gbl.JuegoActual = juego;
        Gbl.NumPiezas = 7;
        Gbl.Piezas.Redimensiona(7);
        return Gbl.Piezas[piece];
    }
};

}  // namespace

TEST_F(Reglas, JigsawPieceIsRightAtItsOwnQuarterTurnOnly) {
    Pieza& p = PiezaDe(JuegoMoviles, 3);
    p.Giro = 2;
    EXPECT_FALSE(GiroCorrecto(3));
    p.GiroBien = 2;
    EXPECT_TRUE(GiroCorrecto(3));
}

TEST_F(Reglas, SlidingPieceIsInPlaceByPositionAlone) {
    Pieza& p = PiezaDe(JuegoDeslizantes, 2);
    p = {40, 50, 3, 1, 40, 50, 0, 0};
    EXPECT_TRUE(GiroCorrecto(2));
    EXPECT_TRUE(PiezaEnSuSitio(2));
    p.X = 41;
    EXPECT_FALSE(PiezaEnSuSitio(2));
}

TEST_F(Reglas, TangramSquareIsRightTwoEighthsFurtherATriangleIsNot) {
    for (i16 piece = 1; piece <= 6; ++piece) {
        Pieza& p = PiezaDe(JuegoTangram, piece);
        p.Giro = 5;
        p.GiroBien = 3;
        EXPECT_EQ(GiroCorrecto(piece), piece == 6) << piece;
        p.Giro = 4;
        EXPECT_FALSE(GiroCorrecto(piece)) << piece;
        p.Giro = 3;
        EXPECT_TRUE(GiroCorrecto(piece)) << piece;
    }
}

TEST_F(Reglas, ParallelogramIsRightHalfATurnFurtherOnTheSameFaceOnly) {
    Pieza& p = PiezaDe(JuegoTangram, 7);
    p.Giro = 6;
    p.GiroBien = 2;
    p.Volteo = p.VolteoBien = 1;
    EXPECT_TRUE(GiroCorrecto(7));
    p.VolteoBien = 0;
    EXPECT_FALSE(GiroCorrecto(7));
    p.VolteoBien = 1;
    p.Giro = 4;
    EXPECT_FALSE(GiroCorrecto(7));
}

TEST_F(Reglas, TurnedOverTriangleIsStillRight) {
    Pieza& p = PiezaDe(JuegoTangram, 1);
    p.Volteo = 1;
    EXPECT_TRUE(GiroCorrecto(1));
}

TEST_F(Reglas, PieceOnePixelOffIsNotInItsPlace) {
    Pieza& p = PiezaDe(JuegoMoviles, 1);
    p = {10, 20, 1, 0, 10, 20, 1, 0};
    EXPECT_TRUE(PiezaEnSuSitio(1));
    p.Y = 21;
    EXPECT_FALSE(PiezaEnSuSitio(1));
    p.Y = 20;
    p.Giro = 0;
    EXPECT_FALSE(PiezaEnSuSitio(1));
}

TEST_F(Reglas, CountIsTakenAnewSoAPieceThatLeavesLowersIt) {
    PiezaDe(JuegoMoviles, 1);
    EXPECT_EQ(CuentaColocadas(), 7);
    Gbl.Piezas[4].X = 9;
    EXPECT_EQ(CuentaColocadas(), 6);
    Gbl.Piezas[4].X = 0;
    EXPECT_EQ(CuentaColocadas(), 7);
}

TEST_F(Reglas, PieceNumberOutsideTheTableIsAnIndexError) {
    PiezaDe(JuegoMoviles, 1);
    try {
        GiroCorrecto(8);
        FAIL() << "no error";
    } catch (const ErrorEjecucion& e) {
        EXPECT_EQ(e.Numero, 9);
    }
}

// ---------------------------------------------------------------- random numbers

TEST_F(Reglas, DifficultyIsBoundedAtExactlyNothingAndAHundred) {
    const struct {
        double (*valor)();
        float esperada;
    } casos[] = {{[] { return 0.0; }, 0.1F},
                 {[] { return 0.05; }, 0.05F},
                 {[] { return 99.95; }, 99.95F},
                 {[] { return 100.0; }, 99.9F}};
    for (const auto& c : casos) {
        AnotaDificultad(c.valor);
        EXPECT_EQ(Gbl.Dificultad, c.esperada);
    }
}

TEST_F(Reglas, RandomNumbersStayBelowOneAndFillTheirRangeEvenly) {
    Randomize(43200.25);
    std::array<int, 16> cajas{};
    constexpr int sorteos = 160000;
    for (int i = 0; i < sorteos; ++i) {
        const double r = Rnd();
        ASSERT_GE(r, 0.0);
        ASSERT_LT(r, 1.0);
        ++cajas[static_cast<std::size_t>(r * 16)];
    }
    // 10000 expected in each box, standard deviation about 97: five of them either way.
    for (const int n : cajas) EXPECT_NEAR(n, 10000, 485);
}

TEST_F(Reglas, SuccessiveRandomNumbersAreUncorrelated) {
    Randomize(1.0);
    constexpr int n = 100000;
    double anterior = Rnd(), suma = 0;
    for (int i = 0; i < n; ++i) {
        const double r = Rnd();
        suma += (anterior - 0.5) * (r - 0.5);
        anterior = r;
    }
    // The product has standard deviation 1/12; five deviations of the mean.
    EXPECT_NEAR(suma / n, 0.0, 5.0 / 12.0 / std::sqrt(n));
}

TEST_F(Reglas, SameSeedDealsTheSameAndCloseTimesDealDifferently) {
    const auto serie = [](double semilla) {
        Randomize(semilla);
        std::array<double, 20> s{};
        for (double& v : s) v = Rnd();
        return s;
    };
    EXPECT_EQ(serie(43200.25), serie(43200.25));
    const auto a = serie(43200.25), b = serie(43200.26);
    int iguales = 0;
    for (std::size_t i = 0; i < a.size(); ++i) iguales += std::abs(a[i] - b[i]) < 0.01;
    EXPECT_LE(iguales, 3);
}

TEST_F(Reglas, SeedOfZeroStillGivesRandomNumbers) {
    Randomize(0.0);
    const double a = Rnd(), b = Rnd(), c = Rnd();
    EXPECT_TRUE(a != b && b != c);
}

// ---------------------------------------------------------------- laying the table

namespace {

// Notes after each presentation which pieces show on the back picture.
class PlataformaQueMira : public PlataformaPrueba {
public:
    std::vector<std::vector<i16>> vistas;
    void Presenta() override {
        PlataformaPrueba::Presenta();
        std::vector<i16> v;
        for (i32 i = 1; i <= Gbl.Piezas.Superior(); ++i) {
            const Pieza& p = Gbl.Piezas[i];
            if (Pic_Imagen.Point(p.X + 8, p.Y + 8) == Gbl.ColorPiezas)
                v.push_back(static_cast<i16>(i));
        }
        vistas.push_back(v);
    }
};

class Tendido : public PruebaBase {
protected:
    void Monta(i16 juego) {
        Gbl.JuegoActual = juego;
        Pantalla800();
        CalculaColores();
        Gbl.AnchoImagen = 320;
        Gbl.AltoImagen = 240;
        Gbl.PiezasPorLado = 3;
        Pic_FonTamModi.Tamano(320, 240);
        PreparaJuego(true);
    }
};

}  // namespace

TEST_F(Tendido, EveryPieceOfTheSlidingBoardIsSeenBeingLaid) {
    Monta(JuegoDeslizantes);
    const int antes = P().presentaciones;
    ColocaPiezas(0);
    EXPECT_GE(P().presentaciones - antes, 8);
    // Once all are laid, a cell with a piece shows the pieces' colour, the hole the table's.
    EXPECT_EQ(Pic_Trabajo.Point(Gbl.HuecoX + 20, Gbl.HuecoY + 20), Gbl.ColorFondo);
    for (i16 i = 1; i <= 8; ++i)
        EXPECT_EQ(Pic_Trabajo.Point(Gbl.Piezas[i].X + 8, Gbl.Piezas[i].Y + 8), Gbl.ColorPiezas);
}

TEST_F(Tendido, SlidingBoardIsLaidFromTheFirstOfTheStackTheJigsawFromTheLast) {
    PlataformaQueMira mira;
    PonSistema(&mira);
    for (const i16 juego : {JuegoDeslizantes, JuegoMoviles}) {
        Monta(juego);
        const i16 n = Gbl.NumPiezas;
        for (i16 i = 1; i <= n; ++i) Gbl.OrdenPiezas[i] = static_cast<i16>(i % n + 1);
        if (juego == JuegoMoviles) {
            // Each apart from the others, of one colour.
            Pic_Bitmap.PonPicture(nullptr);
            Pic_Bitmap.PonBackColor(Gbl.ColorPiezas);
            for (i16 i = 1; i <= n; ++i) {
                Gbl.Piezas[i].X = static_cast<i16>((i - 1) % 3 * 150);
                Gbl.Piezas[i].Y = static_cast<i16>((i - 1) / 3 * 150);
                Gbl.Piezas[i].Giro = 0;
            }
        }
        mira.vistas.clear();
        ColocaPiezas(0);
        ASSERT_GE(mira.vistas.size(), static_cast<std::size_t>(n));
        for (i16 k = 1; k <= n; ++k) {
            std::vector<i16> puestas;
            for (i16 j = 1; j <= k; ++j)
                puestas.push_back(Gbl.OrdenPiezas[juego == JuegoDeslizantes ? j : n + 1 - j]);
            std::sort(puestas.begin(), puestas.end());
            EXPECT_EQ(mira.vistas[static_cast<std::size_t>(k - 1)], puestas) << juego;
        }
    }
}

TEST_F(Tendido, WithAnotherModeThePictureIsLaidButNotShown) {
    Monta(JuegoDeslizantes);
    Pic_Trabajo.PonPicture(nullptr);
    Pic_Trabajo.PonBackColor(0x123456);
    ColocaPiezas(2);
    EXPECT_EQ(Pic_Trabajo.Point(Gbl.Piezas[1].X + 8, Gbl.Piezas[1].Y + 8), 0x123456U);
    EXPECT_EQ(Pic_Imagen.Point(Gbl.Piezas[1].X + 8, Gbl.Piezas[1].Y + 8), Gbl.ColorPiezas);
}

TEST_F(Tendido, PieceOnTopOfTheStackHidesTheOneBelow) {
    Monta(JuegoTangram);
    // The square stands still on big triangle 1; only on top does it show its own outline.
    for (i16 i = 1; i <= 7; ++i) Gbl.Piezas[i] = {static_cast<i16>(400), 300, 0, 0, 0, 0, 0, 0};
    Gbl.Piezas[1] = {50, 50, 1, 0, 0, 0, 0, 0};   // corners (0,0) (124,0) (124,124)
    Gbl.Piezas[6] = {100, 60, 0, 0, 0, 0, 0, 0};  // 63 x 63, left edge inside the triangle
    const auto pinta = [&](std::array<i16, 7> orden) {
        for (i16 i = 0; i < 7; ++i) Gbl.OrdenPiezas[i + 1] = orden[static_cast<std::size_t>(i)];
        ColocaPiezas(1);
        return Pic_Trabajo.Point(100, 80);  // on the square's left edge
    };
    Gbl.DibujarBorde = true;
    EXPECT_NE(pinta({6, 1, 2, 3, 4, 5, 7}), Gbl.ColorPiezas);
    EXPECT_EQ(pinta({1, 6, 2, 3, 4, 5, 7}), Gbl.ColorPiezas);
}

TEST_F(Tendido, CountOfPlacedPiecesIsTakenAnew) {
    Monta(JuegoDeslizantes);
    for (i16 i = 1; i <= 8; ++i) {
        Gbl.Piezas[i].X = Gbl.Piezas[i].XBien;
        Gbl.Piezas[i].Y = Gbl.Piezas[i].YBien;
    }
    Gbl.PiezasColocadas = 0;
    ColocaPiezas(1);
    EXPECT_EQ(Gbl.PiezasColocadas, 8);
}

}  // namespace tessario
