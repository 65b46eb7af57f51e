// SPDX-License-Identifier: GPL-3.0-or-later
// What the tool that makes the supplied Tangram models refuses, and what it just lets pass.
#include <algorithm>
#include <fstream>

#include "Coleccion.h"
#include "Tablas.h"
#include "apoyo/PlataformaPrueba.h"
#include "pieces/Formas.h"

namespace tessario::modelos {
namespace {

// An arrow, piece by piece.
const std::vector<std::string> FLECHA = {
    "d 0",           "p 1 2 0 2u -1u",  "p 2 6 0 -2v 1u", "p 3 6 0 1u -0.5u", "p 4 7 0 1u -0.5u",
    "p 5 7 0 -1u 0", "p 6 0 0 0 -0.5u", "p 7 3 1 -1u 0"};

std::string Descrita(const std::string& nombre, const std::vector<std::string>& lineas) {
    std::string texto = "= " + nombre + "\n";
    for (const std::string& l : lineas) texto += l + "\n";
    return texto;
}

// The arrow with one of its lines changed, 0 the one of the pieces given away; none, taken out.
std::string FlechaCon(std::size_t linea, const std::string& otra) {
    auto lineas = FLECHA;
    lineas[linea] = otra;
    if (otra.empty()) lineas.erase(lineas.begin() + static_cast<std::ptrdiff_t>(linea));
    return Descrita("Flecha", lineas);
}

class ColeccionDeModelos : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        PreparaTablas();
    }
    Coleccion Lee(const std::string& texto) {
        const std::string ruta = P().carpeta + "figuras.txt";
        std::ofstream(ruta) << texto;
        return Reune(LeeDescripciones(ruta));
    }
    // Of the last of the figures, all others being good: the fault without file and name.
    std::string ReparoDe(const std::string& texto) {
        const Coleccion c = Lee(texto);
        if (c.reparos.empty()) return "";
        EXPECT_EQ(c.reparos.size(), 1U);
        const std::string& r = c.reparos.back();
        return r.substr(r.rfind(": ") + 2);
    }
    Figura FiguraDe(const std::string& texto) {
        const std::string ruta = P().carpeta + "figura.txt";
        std::ofstream(ruta) << texto;
        return EnSuSitio(LeeDescripciones(ruta).at(0).plan);
    }
};

TEST_F(ColeccionDeModelos, AGoodOneStandsAtTheMarginsWithItsSevenPieces) {
    const Coleccion c = Lee(Descrita("Flecha", FLECHA));
    EXPECT_TRUE(c.reparos.empty()) << c.reparos[0];
    ASSERT_EQ(c.modelos.size(), 1U);
    EXPECT_EQ(c.modelos[0].reparto.size(), 7U);
    EXPECT_EQ(c.modelos[0].dadas, 0);
    i32 izq = 800, arr = 600;
    for (const Colocada& p : c.modelos[0].reparto) {
        izq = std::min(izq, p.x);
        arr = std::min(arr, p.y);
    }
    EXPECT_EQ(izq, 20);
    EXPECT_EQ(arr, 20);
}

TEST_F(ColeccionDeModelos, AMissingPieceOrOneTwiceIsRefused) {
    for (std::size_t i = 1; i <= 7; ++i)
        EXPECT_EQ(ReparoDe(FlechaCon(i, "")), "not seven pieces") << i;
    EXPECT_EQ(ReparoDe(FlechaCon(5, "p 4 7 0 -1u 0")), "pieces out of order");
    EXPECT_EQ(ReparoDe(Descrita("Corto", {"d 0", "u", "████", "███◤"})),
              "area 15.000000 instead of 16");
    EXPECT_EQ(ReparoDe(Descrita("Largo", {"d 0", "u", "████", "████◤"})),
              "area 17.000000 instead of 16");
    EXPECT_EQ(ReparoDe(Descrita("Listón", {"d 0", "u", "████████"})),
              "the seven pieces do not fill it");
}

TEST_F(ColeccionDeModelos, PiecesThatOverlapAreRefused) {
    EXPECT_EQ(ReparoDe(FlechaCon(6, "p 6 0 0 -0.5u -0.5u")), "overlap of 5 and 6");
    // By a hair: 7/2 - 5 * sqrt(2) / 2 of a side, two pixels.
    EXPECT_EQ(ReparoDe(FlechaCon(1, "p 1 2 0 5.5u-5v -1u")), "overlap of 1 and 3");
}

TEST_F(ColeccionDeModelos, AHairlineBetweenPiecesIsRefused) {
    EXPECT_EQ(ReparoDe(FlechaCon(1, "p 1 2 0 -1.5u+5v -1u")), "a seam between 1 and 3");
}

TEST_F(ColeccionDeModelos, APieceOnItsOwnIsRefused) {
    const std::string suelta = FlechaCon(1, "p 1 2 0 3u -1u");
    EXPECT_EQ(ReparoDe(suelta), "pieces are not in contact");
    EXPECT_EQ(ReparoExacto(FiguraDe(suelta)), "pieces are not in contact");
}

TEST_F(ColeccionDeModelos, AFigureTooLargeForTheSmallestTableIsRefused) {
    const std::string torre =
        Descrita("Torre", {"d 0", "p 1 2 0 0 0", "p 2 2 0 0 4v", "p 3 2 0 0 8v", "p 4 2 0 0 2u+8v",
                           "p 5 2 0 0 2u+10v", "p 6 0 0 0 2u+12v", "p 7 0 0 0 3u+12v"});
    EXPECT_EQ(ReparoDe(torre), "too large for the table");
}

TEST_F(ColeccionDeModelos, ADoubleTurnedOrMirroredIsRefused) {
    const std::string trapecio = Descrita("Trapecio", {"d 0", "u", "◥████", ".◥███"});
    const std::vector<std::vector<std::string>> dobles = {
        {"d 0", "u", "◥████", ".◥███"},               // the same
        {"d 0", "u", "████◤", "███◤."},               // mirrored
        {"d 0", "u", "███◣.", "████◣"},               // turned half round
        {"d 0", "u", ".◢", "◢█", "██", "██", "██"},   // a quarter
        {"d 0", "u", "◣.", "█◣", "██", "██", "██"}};  // both
    for (const auto& doble : dobles) {
        EXPECT_EQ(ReparoDe(trapecio + Descrita("Otro", doble)), "the same figure as Trapecio");
        EXPECT_EQ(ReparoDe(trapecio + Descrita("Paradoja del trapecio", doble)), "");
        EXPECT_EQ(ReparoDe(Descrita("Paradoja", doble) + trapecio), "");
    }
    // By an eighth of a turn.
    const std::string triangulo = Descrita("Triángulo", {"d 0", "u", "◣", "█◣", "██◣", "███◣"});
    EXPECT_EQ(ReparoDe(triangulo + Descrita("Pirámide", {"d 0", "v", "...◢◣...", "..◢██◣..",
                                                         ".◢████◣.", "◢██████◣"})),
              "the same figure as Triángulo");
    EXPECT_EQ(ReparoDe(trapecio + triangulo), "");
}

// Turned over in its place, the parallelogram leaves the middle and the spread of the whole as they
// were: only the outline tells.
TEST_F(ColeccionDeModelos, FiguresWithTheirPiecesInOnePlaceAreToldByTheOutline) {
    const auto con = [&](const std::string& paralelogramo) {
        return FiguraDe(
            Descrita("Bloque", {"p 1 1 0 0 0", "p 2 5 0 0 0", "p 3 4 0 0 2u", "p 4 2 0 2u 1u",
                                "p 5 6 0 -1v 0", "p 6 0 0 2u 0", paralelogramo}));
    };
    const Figura una = con("p 7 0 0 -1v -1v"), otra = con("p 7 0 1 -1v -1v");
    EXPECT_EQ(ReparoExacto(una), "");
    EXPECT_EQ(ReparoExacto(otra), "");
    EXPECT_TRUE(Semejanza(una).Igual(Semejanza(una)));
    EXPECT_FALSE(Semejanza(una).Igual(Semejanza(otra)));
}

TEST_F(ColeccionDeModelos, FiguresThatDifferAreLetPass) {
    EXPECT_EQ(ReparoDe(Descrita("Rectángulo", {"d 0", "u", "████", "████"}) +
                       Descrita("Cuadrado", {"d 0", "v", "████", "████", "████", "████"}) +
                       Descrita("Romboide", {"d 0", "u", "◥███◣.", ".◥███◣"}) +
                       Descrita("Hexágono", {"d 0", "u", "◢███◣", "◥███◤"}) +
                       Descrita("Trapecio", {"d 0", "u", "◥████◤", ".◥██◤."})),
              "");
}

TEST_F(ColeccionDeModelos, ATitleOf26CharactersIsRefused) {
    const std::string justo = "Ñandú con una pluma añil x";  // 26 of them
    EXPECT_EQ(ReparoDe(Descrita(justo, FLECHA)), "name too long");
    EXPECT_EQ(ReparoDe(Descrita(justo.substr(0, justo.size() - 1), FLECHA)), "");
}

TEST_F(ColeccionDeModelos, ATitleUsedTwiceOrOutsideTheFilesCharactersIsRefused) {
    EXPECT_EQ(
        ReparoDe(Descrita("Flecha", FLECHA) + Descrita("Flecha", {"d 0", "u", "████", "████"})),
        "name used twice");
    EXPECT_EQ(ReparoDe(Descrita("Flecha ←", FLECHA)), "name with unknown characters");
}

TEST_F(ColeccionDeModelos, AWrongNumberOfPiecesGivenAwayIsRefused) {
    EXPECT_EQ(ReparoDe(FlechaCon(0, "d 2")), "gives away 0");
    EXPECT_EQ(ReparoDe(FlechaCon(0, "")), "gives away 0");
}

TEST_F(ColeccionDeModelos, TheOthersAreCheckedToTheEndAndEachFaultNamesItsLine) {
    const Coleccion c =
        Lee(FlechaCon(0, "d 2") + "\n" + Descrita("Rectángulo", {"d 0", "u", "████", "████"}) +
            FlechaCon(7, ""));
    ASSERT_EQ(c.reparos.size(), 2U);
    EXPECT_EQ(c.reparos[0], P().carpeta + "figuras.txt:1: Flecha: gives away 0");
    EXPECT_EQ(c.reparos[1], P().carpeta + "figuras.txt:16: Flecha: name used twice");
    ASSERT_EQ(c.modelos.size(), 1U);
    EXPECT_EQ(c.modelos[0].nombre, "Rectángulo");
}

// In pixels. Two large triangles lie side by side under the line y = 0. On it stand the square,
// from x = 0, and a small triangle, from x = 124; between the two hangs the other small one, so
// high above the line that a patch of 62 pixels by that height is shut in.
Reparto Marco(i32 alto) {
    return {{1, 7, 0, 0, 0},           {2, 7, 0, 124, 0}, {3, 6, 0, -62, 0},   {4, 5, 0, 124, -62},
            {5, 5, 0, 62, -62 - alto}, {6, 0, 0, 0, -62}, {7, 0, 0, -80, -106}};
}

// The figure with one piece moved.
Reparto ConMovida(Reparto reparto, std::size_t pieza, i32 dx, i32 dy) {
    reparto[pieza - 1].x += dx;
    reparto[pieza - 1].y += dy;
    return reparto;
}

class ReparosDeModelos : public ColeccionDeModelos {};

TEST_F(ReparosDeModelos, AShutInPatchUnder400PixelsIsRefused) {
    // The pieces' edges take a pixel of each side: 61 x 6 are too few, 61 x 7 are enough.
    EXPECT_EQ(Reparo(Marco(7)), "a hole of 366 pixels");
    EXPECT_EQ(Reparo(Marco(8)), "");
}

TEST_F(ReparosDeModelos, AnOpenJoinOfOneToThreePixelsIsRefused) {
    const Reparto marco = Marco(20);
    ASSERT_EQ(Reparo(marco), "");
    // To the left, away from the triangle that hangs beside it; the parallelogram goes with it.
    for (i32 ancho = 1; ancho <= 5; ++ancho) {
        const i32 d = -ancho - 1;  // the edges take a pixel
        const std::string r = Reparo(ConMovida(ConMovida(marco, 6, d, 0), 7, d, 0));
        EXPECT_EQ(r.substr(0, 9), ancho <= 3 ? "a seam of" : "") << ancho;
    }
}

TEST_F(ReparosDeModelos, PiecesThatOverlapByAPixelAreRefused) {
    EXPECT_EQ(Reparo(ConMovida(Marco(20), 6, 1, 0)), "pieces overlap");
    EXPECT_EQ(Reparo(ConMovida(Marco(20), 3, 1, 0)), "pieces overlap");
}

TEST_F(ReparosDeModelos, APieceThreePixelsAwayIsNotInContact) {
    EXPECT_EQ(Reparo(ConMovida(Marco(20), 3, -2, 0)).substr(0, 9), "a seam of");
    EXPECT_EQ(Reparo(ConMovida(Marco(20), 3, -3, 0)), "pieces are not in contact");
}

// Hypotenuses on one line, those of most pieces on one side of it, that of the last on the other,
// where it slides to any length.
TEST_F(ReparosDeModelos, TheSmallestTableIsTakenToTheLastPixel) {
    constexpr i32 ANCHO = 800 - 141 - 40, ALTO = 600 - 40;
    const auto fila = [](i32 ancho) {
        return Reparto{{1, 0, 0, 0, -88},
                       {2, 0, 0, 176, -88},
                       {3, 0, 0, 352, -62},
                       {4, 0, 0, 476, -44},
                       {5, 4, 0, ancho - AnchoDePieza(5, 4, 0), 0},
                       {6, 0, 0, 20, 0},
                       {7, 0, 0, 200, 0}};
    };
    EXPECT_EQ(Reparo(fila(ANCHO)), "");
    EXPECT_EQ(Reparo(fila(ANCHO + 1)), "too large for the table");
    const auto columna = [](i32 alto) {
        return Reparto{{1, 2, 0, 0, 0},
                       {2, 2, 0, 0, 176},
                       {3, 2, 0, 0, 352},
                       {4, 6, 0, -44, 300},
                       {5, 6, 0, -44, alto - AltoDePieza(5, 6, 0)},
                       {6, 0, 0, -62, 20},
                       {7, 6, 0, -44, 120}};
    };
    EXPECT_EQ(Reparo(columna(ALTO)), "");
    EXPECT_EQ(Reparo(columna(ALTO + 1)), "too large for the table");
}

}  // namespace
}  // namespace tessario::modelos
