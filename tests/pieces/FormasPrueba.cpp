// SPDX-License-Identifier: GPL-3.0-or-later
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "apoyo/Datos.h"
#include "apoyo/Juegos.h"
#include "apoyo/PlataformaPrueba.h"
#include "core/Fallos.h"
#include "pieces/Formas.h"
#include "rules/Medidas.h"

namespace tessario {

namespace {

// One line of the table of the seven pieces' polygons.
struct Poligono {
    i16 piece = 0, giro = 0, volteo = 0;
    i32 ancho = 0, alto = 0, area = 0;
    std::vector<Punto> esquinas;
};

std::vector<Poligono> LeePoligonos() {
    std::ifstream f(std::string(DATOS) + "tangram_regions.txt");
    std::vector<Poligono> v;
    std::string linea;
    while (std::getline(f, linea)) {
        if (linea.empty() || linea[0] == '#') continue;
        std::istringstream s(linea);
        Poligono p;
        std::string palabra;
        i32 n = 0;
        char coma = 0;
        s >> p.piece >> p.giro >> p.volteo >> palabra >> p.ancho >> p.alto >> palabra >> n;
        for (i32 i = 0; i < n; ++i) {
            Punto e;
            s >> e.x >> coma >> e.y;
            p.esquinas.push_back(e);
        }
        s >> palabra >> p.area;
        v.push_back(p);
    }
    return v;
}

// Twice the signed area of the triangle a, b, c.
i32 Lado(const Punto& a, const Punto& b, const Punto& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

}  // namespace

class Formas : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        Gbl.AnchoPantalla = 1024;
        Gbl.AltoPantalla = 768;
    }
    void Tangram() {
        PonTangram(MODO_CREAR);
        CalculaTamanos();
    }
    void Moviles(i16 forma, i16 lado, i32 ancho, i32 alto) {
        PonMoviles(forma, lado, ancho, alto);
        CalculaTamanos();
    }
};

TEST_F(Formas, PiecesPerCellFollowTheShape) {
    const i16 esperado[8] = {1, 1, 1, 4, 2, 2, 2, 2};
    for (i16 f = 0; f <= 7; ++f) EXPECT_EQ(PiezasDeCelda(f), esperado[f]) << f;
    EXPECT_THROW(PiezasDeCelda(8), ErrorEjecucion);
    EXPECT_THROW(PiezasDeCelda(-1), ErrorEjecucion);
}

TEST_F(Formas, FiveASideInTrianglesAre100Pieces) {
    Moviles(3, 5, 400, 300);
    EXPECT_EQ(Gbl.NumPiezas, 100);
}

TEST_F(Formas, CurvedCellsAreOddAndTriangularOnesOddByEven) {
    Moviles(1, 5, 400, 300);
    EXPECT_EQ(Gbl.AnchoCelda, 79);
    EXPECT_EQ(Gbl.AltoCelda, 59);
    Moviles(3, 5, 400, 300);
    EXPECT_EQ(Gbl.AnchoCelda, 79);
    EXPECT_EQ(Gbl.AltoCelda, 60);
}

TEST_F(Formas, JigsawBoxExchangesItsSidesAtTheOddQuarters) {
    Gbl.AnchoPieza = 80;
    Gbl.AltoPieza = 60;
    const i16 anchos[4] = {80, 60, 80, 60};
    for (i16 g = 0; g < 4; ++g) {
        EXPECT_EQ(AnchoDePieza(1, g, 0), anchos[g]) << g;
        EXPECT_EQ(AltoDePieza(1, g, 0), 140 - anchos[g]) << g;
    }
    EXPECT_EQ(Gbl.AnchoPieza, 80);
    EXPECT_EQ(Gbl.AltoPieza, 60);
    // The test is for the values 0 and 2: 4 is not one of them.
    EXPECT_EQ(AnchoDePieza(1, 4, 0), 60);
}

TEST_F(Formas, SlidingBoxIgnoresTheArguments) {
    Gbl.JuegoActual = JuegoDeslizantes;
    Gbl.AnchoPieza = 89;
    Gbl.AltoPieza = 88;
    EXPECT_EQ(AnchoDePieza(99, 1, 7), 89);
    EXPECT_EQ(AltoDePieza(99, 1, 7), 88);
}

TEST_F(Formas, AskingForATangramBoxOverwritesTheAnswerRegister) {
    Tangram();
    Gbl.AnchoPieza = Gbl.AltoPieza = 1;
    EXPECT_EQ(AnchoDePieza(1, 0, 0), 177);
    EXPECT_EQ(Gbl.AltoPieza, 89);
    EXPECT_EQ(AltoDePieza(7, 2, 0), 132);
    EXPECT_EQ(Gbl.AnchoPieza, 44);
}

TEST_F(Formas, ParallelogramBoxByTurnAndFace) {
    Tangram();
    const struct {
        i16 giro, volteo, ancho, alto;
    } casos[] = {{0, 0, 132, 44}, {4, 1, 132, 44}, {2, 0, 44, 132}, {6, 1, 44, 132},
                 {1, 0, 63, 126}, {5, 0, 63, 126}, {3, 1, 63, 126}, {7, 1, 63, 126},
                 {1, 1, 126, 63}, {5, 1, 126, 63}, {3, 0, 126, 63}, {7, 0, 126, 63}};
    for (const auto& c : casos) {
        TMidePieza(7, c.giro, c.volteo);
        EXPECT_EQ(Gbl.AnchoPieza, c.ancho) << c.giro << ' ' << c.volteo;
        EXPECT_EQ(Gbl.AltoPieza, c.alto) << c.giro << ' ' << c.volteo;
    }
}

TEST_F(Formas, APieceAboveSevenIsOutOfRange) {
    Tangram();
    EXPECT_THROW(TMidePieza(8, 0, 0), ErrorEjecucion);
    EXPECT_THROW(TVertices(8, 0, 0), ErrorEjecucion);
}

TEST_F(Formas, BoxesAndCornersOfEveryOrientation) {
    Tangram();
    const auto poligonos = LeePoligonos();
    ASSERT_GE(poligonos.size(), 7U * 8U);
    for (const Poligono& p : poligonos) {
        TMidePieza(p.piece, p.giro, p.volteo);
        EXPECT_EQ(Gbl.AnchoPieza, p.ancho) << p.piece << ' ' << p.giro << ' ' << p.volteo;
        EXPECT_EQ(Gbl.AltoPieza, p.alto) << p.piece << ' ' << p.giro << ' ' << p.volteo;
        TVertices(p.piece, p.giro, p.volteo);
        for (std::size_t k = 0; k < p.esquinas.size(); ++k) {
            const auto fila = static_cast<std::size_t>(p.piece);
            const i32 e = static_cast<i32>(k) + 1;
            EXPECT_EQ(Gbl.TVerticeX[fila][e], p.esquinas[k].x) << p.piece << ' ' << p.giro;
            EXPECT_EQ(Gbl.TVerticeY[fila][e], p.esquinas[k].y) << p.piece << ' ' << p.giro;
        }
    }
}

TEST_F(Formas, CornersStayWhenTheOrientationIsUnknown) {
    Tangram();
    TMidePieza(7, 0, 0);
    TVertices(7, 0, 0);
    TVertices(7, 0, 2);
    EXPECT_EQ(Gbl.TVerticeX[7][2], 132 - 44);
    TMidePieza(1, 0, 0);
    TVertices(1, 0, 0);
    TVertices(1, 8, 0);
    EXPECT_EQ(Gbl.TVerticeX[1][2], 88);
}

TEST_F(Formas, TheSeedPointLiesStrictlyInsideEveryPolygon) {
    Tangram();
    for (i16 p = 1; p <= 7; ++p)
        for (i16 g = 0; g < 8; ++g)
            for (i16 v = 0; v < 2; ++v) {
                TPuntoInterior(p, g, v);
                TVertices(p, g, v);
                const Punto c{Gbl.XInterior, Gbl.YInterior};
                const auto fila = static_cast<std::size_t>(p);
                const i32 n = p <= 5 ? 3 : 4;
                i32 positivos = 0;
                for (i32 k = 1; k <= n; ++k) {
                    const Punto a{Gbl.TVerticeX[fila][k], Gbl.TVerticeY[fila][k]};
                    const Punto b{Gbl.TVerticeX[fila][k % n + 1], Gbl.TVerticeY[fila][k % n + 1]};
                    const i32 lado = Lado(a, b, c);
                    EXPECT_NE(lado, 0) << p << ' ' << g << ' ' << v;
                    positivos += lado > 0;
                }
                EXPECT_TRUE(positivos == 0 || positivos == n) << p << ' ' << g << ' ' << v;
            }
}

TEST_F(Formas, SeedPointOfTheBigTriangleUpright) {
    Tangram();
    TPuntoInterior(1, 0, 0);
    EXPECT_EQ(Gbl.XInterior, 89);  // (177 + 1) / 2
    EXPECT_EQ(Gbl.YInterior, 55);  // 89 * 0.62 = 55.18
}

TEST_F(Formas, FigureBoxHoldsAllSevenByPlaceOrByTarget) {
    Tangram();
    Gbl.Piezas.Redimensiona(7);
    for (i16 p = 1; p <= 7; ++p) {
        Gbl.Piezas[p].X = static_cast<i16>(100 * p);
        Gbl.Piezas[p].Y = 50;
        Gbl.Piezas[p].XBien = 10;
        Gbl.Piezas[p].YBien = static_cast<i16>(20 * p);
    }
    TCajaFigura(1);
    EXPECT_EQ(Gbl.CajaIzq, 100);
    EXPECT_EQ(Gbl.CajaArr, 50);
    EXPECT_EQ(Gbl.CajaDer, 700 + 132 + 1);
    EXPECT_EQ(Gbl.CajaAba, 50 + 89 + 1);
    TCajaFigura(2);
    EXPECT_EQ(Gbl.CajaIzq, 10);
    EXPECT_EQ(Gbl.CajaArr, 20);
    EXPECT_EQ(Gbl.CajaDer, 10 + 177 + 1);
    EXPECT_EQ(Gbl.CajaAba, 140 + 44 + 1);  // piece 7; piece 6 ends at 120 + 63 + 1 = 184
}

}  // namespace tessario
