// SPDX-License-Identifier: GPL-3.0-or-later
// The screen changes its size while a game is in play.
#include <gtest/gtest.h>

#include "apoyo/MesaMontada.h"
#include "panel/Alcance.h"
#include "panel/Colocadas.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "rules/PuzzBas.h"
#include "session/Montaje.h"
#include "sliding/Tablero.h"
#include "table/Mesa.h"
#include "table/Resolucion.h"

namespace tessario {

namespace {

class Resolucion : public MesaMontada {
protected:
    void Pantalla(i32 ancho, i32 alto) {
        P().ancho = ancho;
        P().alto = alto;
        Mesa.Resize();
    }
    // The table's picture is that of a game laid on this screen from the start.
    static void ComoRecienPuesta() {
        Pic_Trabajo_Paint();
        const auto vista = Pic_Trabajo.Image();
        ColocaPiezas(1);
        Pic_Trabajo_Paint();
        EXPECT_EQ(vista->Pixeles, Pic_Trabajo.Image()->Pixeles);
    }
};

TEST_F(Resolucion, TheJigsawKeepsItsPiecesAndTheStripGoesToTheNewEdge) {
    Moviles(3, 330, 250);
    Pon(4, 420, 100);
    Pon(5, 30, 300);
    Gbl.SegundosJuego = 77;
    Arrastra(5, 60, 310);
    const i16 movimientos = Gbl.NumMovimientos;
    ASSERT_EQ(movimientos, 1);
    const auto piezas = Gbl.Piezas;
    Pantalla(1280, 1024);
    EXPECT_EQ(Gbl.AnchoPantalla, 1280);
    EXPECT_EQ(Mesa.Width(), 1282);
    EXPECT_EQ(Mesa.Height(), 1026);
    EXPECT_EQ(Pic_Botonera.Left, 1280 - 141);
    EXPECT_GE(Pic_Trabajo.Width(), 1280);
    for (i32 i = 1; i <= 9; ++i) EXPECT_EQ(Gbl.Piezas[i], piezas[i]) << i;
    EXPECT_EQ(Gbl.SegundosJuego, 77);
    EXPECT_EQ(Gbl.NumMovimientos, movimientos);
    ComoRecienPuesta();
}

TEST_F(Resolucion, WhatLiesBeyondASmallerScreenComesIntoReach) {
    Pantalla(1600, 1200);
    Moviles(3, 330, 250);
    Pon(4, 1400, 1100);
    Pantalla(800, 600);
    EXPECT_EQ(Pic_Botonera.Left, 800 - 141);
    EXPECT_LT(Gbl.Piezas[4].X, 800);
    EXPECT_LT(Gbl.Piezas[4].Y, 600);
    EXPECT_TRUE(P().avisos.empty());
    ComoRecienPuesta();
}

TEST_F(Resolucion, LoosePiecesBeyondAnyEdgeComeIntoReachAndOthersStay) {
    Moviles(3, 300, 300);
    for (i16 i = 1; i <= 9; ++i) Pon(i, Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien);
    const struct {
        i16 pieza;
        Punto antes, despues;  // of a box of 100 x 100
    } casos[] = {
        {1, {-51, 330}, {-50, 330}}, {2, {-50, 330}, {-50, 330}}, {3, {330, -51}, {330, -50}},
        {4, {330, -50}, {330, -50}}, {5, {400, 551}, {400, 550}}, {6, {400, 550}, {400, 550}},
        {7, {610, 200}, {609, 200}}, {8, {609, 200}, {609, 200}}, {9, {751, 480}, {750, 480}}};
    for (const auto& c : casos) Pon(c.pieza, c.antes.x, c.antes.y);
    TraeLoInalcanzable();
    for (const auto& c : casos) {
        EXPECT_EQ(Gbl.Piezas[c.pieza].X, c.despues.x) << c.pieza;
        EXPECT_EQ(Gbl.Piezas[c.pieza].Y, c.despues.y) << c.pieza;
    }
    ComoRecienPuesta();
    // What the hint panel covers can be got at, for that can be closed.
    Gbl.VentanaInformacion = true;
    Pon(5, 100, 520);
    TraeLoInalcanzable();
    EXPECT_EQ(Gbl.Piezas[5].Y, 520);
    // Level with the strip's last row and below it, where the table reaches to its edge.
    Pon(8, 700, 412);
    Pon(9, 700, 413);
    TraeLoInalcanzable();
    EXPECT_EQ(Gbl.Piezas[8].X, 609);
    EXPECT_EQ(Gbl.Piezas[9].X, 700);
}

TEST_F(Resolucion, TheLogLeadsToThePlaceToWhichAPieceWasBrought) {
    Pantalla(1600, 1200);
    Moviles(3, 330, 250);
    Pon(4, 420, 100);
    Pon(5, 30, 300);
    Pon(6, 420, 500);
    Arrastra(6, 1300, 900);
    Arrastra(4, 1300, 300);
    Arrastra(5, 60, 310);
    Arrastra(4, 1400, 1100);
    ASSERT_EQ(Gbl.NumMovimientos, 4);
    const Movimiento primero = Gbl.Movimientos[2], segundo = Gbl.Movimientos[3];
    const i16 xDesde = Gbl.Movimientos[4].XAntes;
    Pantalla(800, 600);
    ASSERT_LT(Gbl.Piezas[4].X, 800);
    ASSERT_LT(Gbl.Piezas[6].X, 800);
    EXPECT_EQ(Gbl.Movimientos[4].XDespues, Gbl.Piezas[4].X);
    EXPECT_EQ(Gbl.Movimientos[4].YDespues, Gbl.Piezas[4].Y);
    EXPECT_EQ(Gbl.Movimientos[4].XAntes, xDesde);
    EXPECT_EQ(Gbl.Movimientos[2], primero) << "an earlier move of the same piece";
    EXPECT_EQ(Gbl.Movimientos[3], segundo) << "a move of another piece";
    EXPECT_EQ(Gbl.Movimientos[1].XDespues, Gbl.Piezas[6].X) << "a piece moved once, the first";
    EXPECT_EQ(Gbl.Movimientos[1].YDespues, Gbl.Piezas[6].Y);
}

TEST_F(Resolucion, ATableThatNoLongerFitsScrolls) {
    Pantalla(1600, 1200);
    Moviles(5, 1000, 700);
    ASSERT_FALSE(BarraHor.Visible);
    Pantalla(800, 600);
    EXPECT_TRUE(BarraHor.Visible && BarraVer.Visible);
    EXPECT_EQ(BarraHor.Top, 600 - 17);
    EXPECT_EQ(BarraVer.Left, 800 - 17);
    EXPECT_GT(BarraHor.Max, 0);
    Pantalla(1600, 1200);
    EXPECT_FALSE(BarraHor.Visible || BarraVer.Visible);
    ComoRecienPuesta();
}

TEST_F(Resolucion, TheSlidingBoardGrowsWithItsMovesAndItsPicture) {
    Deslizantes(4);
    BuscaVecinos();
    const i16 vecina = Gbl.VecinosHueco[1];
    const Punto o = PuntoDe(vecina);
    Puntero.Pulsa(o.x, o.y);
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    Arreglo<i16> celdas;
    celdas.Redimensiona(15);
    for (i32 i = 1; i <= 15; ++i) celdas[i] = CeldaDePosicion(Gbl.Piezas[i].X, Gbl.Piezas[i].Y);
    const i16 hueco = CeldaDePosicion(Gbl.HuecoX, Gbl.HuecoY), lado = Gbl.AnchoCelda;
    Pantalla(1280, 1024);
    EXPECT_EQ(Gbl.AnchoCelda, 160);  // (1024 - 65) / 6, rounded
    EXPECT_NE(Gbl.AnchoCelda, lado);
    for (i32 i = 1; i <= 15; ++i)
        EXPECT_EQ(CeldaDePosicion(Gbl.Piezas[i].X, Gbl.Piezas[i].Y), celdas[i]) << i;
    EXPECT_EQ(CeldaDePosicion(Gbl.HuecoX, Gbl.HuecoY), hueco);
    EXPECT_TRUE(TableroEntero() && TieneSolucion());
    // Its log counts in the new cells.
    EXPECT_EQ(Gbl.Movimientos[1].XDespues, Gbl.Piezas[vecina].X);
    EXPECT_EQ(Gbl.Movimientos[1].YDespues, Gbl.Piezas[vecina].Y);
    ComoRecienPuesta();
}

TEST_F(Resolucion, ABoardThatIsBeingSetUpByHandIsNotDealtAnew) {
    Deslizantes(3);
    TableroResuelto();
    Gbl.OrdenManual = true;
    std::swap(Gbl.Piezas[1].X, Gbl.Piezas[2].X);
    std::swap(Gbl.Piezas[1].Y, Gbl.Piezas[2].Y);
    ASSERT_FALSE(TieneSolucion());
    Pantalla(1024, 768);
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_TRUE(Gbl.OrdenManual);
    EXPECT_FALSE(TieneSolucion());
    EXPECT_EQ(CeldaDePosicion(Gbl.Piezas[1].X, Gbl.Piezas[1].Y), 2);
}

TEST_F(Resolucion, TheTangramKeepsItsFigureAndItsPieces) {
    Tangram(MODO_RESOLVER);
    const auto piezas = Gbl.Piezas;
    Pantalla(1280, 1024);
    for (i32 i = 1; i <= 7; ++i) EXPECT_EQ(Gbl.Piezas[i], piezas[i]) << i;
    EXPECT_GE(Pic_Imagen.Width(), 1280);
    ComoRecienPuesta();
}

TEST_F(Resolucion, TheRecorderGoesToTheEndOfItsLogFirst) {
    Moviles(3, 330, 250);
    Pon(5, 30, 300);
    Arrastra(5, 60, 310);
    Arrastra(5, 90, 320);
    ASSERT_EQ(Gbl.NumMovimientos, 2);
    EnciendeGrabadora();
    ReproduceMovimiento(1);  // one step back
    ASSERT_EQ(Gbl.Piezas[5].X, 60);
    Pantalla(1024, 768);
    EXPECT_FALSE(Gbl.GrabadoraEncendida);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
    EXPECT_EQ(Gbl.Piezas[5].X, 90);
}

TEST_F(Resolucion, WorkUnderWayEndsFirst) {
    Moviles(3, 330, 250);
    for (i16 i = 1; i <= 9; ++i) Pon(i, 420, 100 + 10 * i);
    bool cambiada = false;
    P().alDejarPasar = [&] {
        if (cambiada) return;
        cambiada = true;
        P().ancho = 1024;
        P().alto = 768;
        Mesa.Resize();
        EXPECT_EQ(Gbl.AnchoPantalla, 800) << "not inside the arrangement";
    };
    PulsaOrden(11);
    ASSERT_TRUE(cambiada);
    EXPECT_EQ(Gbl.AnchoPantalla, 1024);
    EXPECT_EQ(Gbl.NumMovimientos, 1) << "it ended after the piece that was on its way";
    EXPECT_FALSE(Gbl.OrdenandoPiezas);
}

TEST_F(Resolucion, APieceInHandIsDropped) {
    Moviles(3, 330, 250);
    Pon(4, 420, 100);
    const Punto p = PuntoDe(4);
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta();
    Puntero.Mueve(p.x + 30, p.y + 200);
    ASSERT_TRUE(Gbl.ArrastrandoPieza);
    Pantalla(1280, 1024);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.Piezas[4].X, 450);
    EXPECT_EQ(Gbl.Piezas[4].Y, 300);
    ComoRecienPuesta();
}

TEST_F(Resolucion, TheSameSizeAgainLeavesTheTableAlone) {
    Moviles(3, 330, 250);
    const auto vista = Pic_Trabajo.Image();
    BarraHor.Value = 0;
    Mesa.Resize();
    EXPECT_EQ(vista->Pixeles, Pic_Trabajo.Image()->Pixeles);
}

}  // namespace
}  // namespace tessario
