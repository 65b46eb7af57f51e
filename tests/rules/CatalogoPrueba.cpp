// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogues agree with themselves and with the limits that pictures and pieces are held to.
#include <gtest/gtest.h>

#include <cmath>

#include "core/Fallos.h"
#include "core/PuzzGbl.h"
#include "rules/Catalogo.h"

namespace tessario {

TEST(Catalogo, FormasConSusLimites) {
    // Pieces a cell, interlocking, proportions in thousandths (0: none), limits of a cell, grid.
    const struct {
        i16 clase;
        bool plantillas;
        i32 minima, maxima;
        i16 celda, lado;
    } filas[] = {{1, false, 0, 0, 25, 20},     {1, true, 416, 2400, 25, 20},
                 {1, true, 476, 2100, 25, 20}, {4, false, 0, 2625, 50, 15},
                 {2, false, 0, 0, 25, 20},     {2, false, 0, 0, 25, 20},
                 {2, false, 0, 0, 25, 20},     {2, false, 416, 2400, 25, 20}};
    for (i16 f = 0; f < FORMAS_DE_PIEZA; ++f) {
        const FichaForma& ficha = FichaDeForma(f);
        const auto& fila = filas[f];
        EXPECT_EQ(ficha.PiezasPorCelda, fila.clase) << f;
        EXPECT_EQ(ficha.ConPlantillas, fila.plantillas) << f;
        EXPECT_EQ(std::lround(ficha.Minima * 1000), fila.minima) << f;
        if (fila.maxima != 0)
            EXPECT_EQ(std::lround(ficha.Maxima * 1000), fila.maxima) << f;
        else
            EXPECT_GT(ficha.Maxima, 100000) << f;
        EXPECT_EQ(ficha.CeldaMinima, fila.celda) << f;
        EXPECT_EQ(ficha.CeldaMaxima, 140) << f;
        EXPECT_EQ(ficha.LadoMaximo, fila.lado) << f;
    }
}

TEST(Catalogo, FueraDeLasFormasNoHayFicha) {
    for (const i16 f : {i16{-1}, FORMAS_DE_PIEZA}) {
        EXPECT_FALSE(EsForma(f));
        EXPECT_THROW(FichaDeForma(f), ErrorEjecucion);
        Gbl = Bloque{};
        Gbl.FormaPiezas = f;
        EXPECT_FALSE(SeCortaConPlantillas());
    }
    EXPECT_TRUE(EsForma(forma::ESTRELLAS));
}

TEST(Catalogo, PiezasDelTangram) {
    const i16 vertices[] = {3, 3, 3, 3, 3, 4, 4}, periodos[] = {8, 8, 8, 8, 8, 2, 4};
    for (i16 p = 1; p <= PIEZAS_TANGRAM; ++p) {
        const FichaTangram& ficha = FichaDeTangram(p);
        EXPECT_EQ(ficha.Vertices, vertices[p - 1]) << p;
        EXPECT_EQ(ficha.Periodo, periodos[p - 1]) << p;
        EXPECT_EQ(EsTriangulo(p), vertices[p - 1] == 3) << p;
        EXPECT_EQ(ficha.Voltea, p == tangram::PARALELOGRAMO) << p;
        for (i16 q = 1; q <= PIEZAS_TANGRAM; ++q)
            EXPECT_EQ(FichaDeTangram(q).Clase == ficha.Clase, q == p || q == ficha.Gemela)
                << p << q;
        if (ficha.Gemela != 0) {
            EXPECT_EQ(FichaDeTangram(ficha.Gemela).Gemela, p);
        }
    }
    EXPECT_FALSE(EsTriangulo(0));
    EXPECT_THROW(FichaDeTangram(0), ErrorEjecucion);
    EXPECT_THROW(FichaDeTangram(PIEZAS_TANGRAM + 1), ErrorEjecucion);
}

TEST(Catalogo, RumbosDanLaVueltaDesdeElNorte) {
    for (std::size_t d = 0; d < RUMBOS.size(); ++d) {
        const double angulo = std::atan2(RUMBOS[d].x, -RUMBOS[d].y);  // clockwise from north
        const double octavos = std::round(angulo / std::atan2(1, 1));
        EXPECT_EQ(static_cast<std::size_t>(octavos < 0 ? octavos + 8 : octavos), d);
    }
}

}  // namespace tessario
