// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <set>

#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "rules/Colores.h"
#include "rules/Despacho.h"
#include "session/Configuracion.h"

namespace tessario {

namespace {

class Despacho : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        Pantalla800();
        Gbl.AnchoImagen = 320;
        Gbl.AltoImagen = 240;
        Gbl.PiezasPorLado = 3;
        Pic_FonTamModi.Tamano(320, 240);
        CalculaColores();
    }
};

}  // namespace

TEST_F(Despacho, NewPuzzleDealsTheRightNumberOfPiecesInEachGame) {
    const std::pair<i16, i16> casos[] = {
        {JuegoMoviles, i16{9}}, {JuegoDeslizantes, i16{8}}, {JuegoTangram, i16{7}}};
    for (const auto& [juego, piezas] : casos) {
        Gbl.JuegoActual = juego;
        PreparaJuego(true);
        EXPECT_EQ(Gbl.NumPiezas, piezas);
        ASSERT_EQ(Gbl.Piezas.Superior(), piezas);
        std::set<i16> orden(Gbl.OrdenPiezas.begin() + 1, Gbl.OrdenPiezas.end());
        EXPECT_EQ(orden.size(), static_cast<std::size_t>(piezas));
        EXPECT_EQ(*orden.begin(), 1);
        EXPECT_EQ(*orden.rbegin(), piezas);
    }
}

TEST_F(Despacho, RebuildingKeepsThePiecesWhereTheyAre) {
    for (const i16 juego : {JuegoMoviles, JuegoDeslizantes, JuegoTangram}) {
        Gbl.JuegoActual = juego;
        PreparaJuego(true);
        const Arreglo<Pieza> antes = Gbl.Piezas;
        Gbl.SegundosJuego = 5;
        PreparaJuego(false);
        for (i32 i = 1; i <= Gbl.NumPiezas; ++i) EXPECT_EQ(Gbl.Piezas[i], antes[i]) << juego;
        EXPECT_EQ(Gbl.SegundosJuego, 5);
    }
}

TEST_F(Despacho, OutsideTheThreeGamesNothingHappens) {
    for (const i16 juego : std::initializer_list<i16>{0, 20, 24}) {
        Gbl.JuegoActual = juego;
        Gbl.NumPiezas = 3;
        Gbl.SegundosJuego = 5;
        PreparaJuego(true);
        EXPECT_EQ(Gbl.NumPiezas, 3);
        EXPECT_EQ(Gbl.SegundosJuego, 5);
        EXPECT_EQ(Pic_Bitmap.Width(), 0);
    }
}

}  // namespace tessario
