// SPDX-License-Identifier: GPL-3.0-or-later
// What a press, a turn, a key and a drop leave on the table, in the counter and in the log.

#include "apoyo/Azar.h"
#include "apoyo/MesaMontada.h"
#include "apoyo/MesaMoviles.h"
#include "apoyo/MesaTangram.h"
#include "panel/Barajado.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "pieces/Composicion.h"
#include "rules/PuzzBas.h"
#include "table/Atraccion.h"
#include "table/Colocacion.h"
#include "table/Giro.h"
#include "table/Raton.h"
#include "tangram/Pegado.h"

namespace tessario {

namespace {

class Jugadas : public MesaMontada {
protected:
    // 3 x 3 cells of 120 by 90; every piece upright in its place but the given ones.
    void Casi(std::initializer_list<i16> sueltas) {
        Moviles(3, 360, 270);
        i32 n = 0;
        for (i16 i = 1; i <= 9; ++i) {
            Pieza& p = Gbl.Piezas[i];
            p.X = p.XBien;
            p.Y = p.YBien;
            p.Giro = 0;
            Gbl.OrdenPiezas[i] = static_cast<i16>(10 - i);
        }
        for (const i16 i : sueltas) {
            Gbl.Piezas[i].X = static_cast<i16>(420 + 20 * n);
            Gbl.Piezas[i].Y = static_cast<i16>(300 + 30 * n++);
        }
        ColocaPiezas(1);
    }
    std::vector<i32> Orden() {
        std::vector<i32> o;
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) o.push_back(Gbl.OrdenPiezas[i]);
        return o;
    }
    static Movimiento Ultimo() { return Gbl.Movimientos[Gbl.NumMovimientos]; }
};

}  // namespace

// ---------------------------------------------------------------- automatic placing

TEST_F(Jugadas, AutomaticPlacingTakesThePiecesDownTheStackAndRaisesEach) {
    Casi({2, 5, 8});
    const std::vector<i32> antes = Orden();
    Gbl.ResolviendoPuzzle = true;
    ResuelvePuzzle();
    EXPECT_EQ(Orden(), std::vector<i32>(antes.rbegin(), antes.rend()));
    ASSERT_EQ(Gbl.NumMovimientos, 3);
    EXPECT_EQ(Gbl.Movimientos[1].Pieza, 8);
    EXPECT_EQ(Gbl.Movimientos[2].Pieza, 5);
    EXPECT_EQ(Gbl.Movimientos[3].Pieza, 2);
}

TEST_F(Jugadas, DisplayOfTheSlidingBoardReachesTheLastCellAndRestsOnNoPiece) {
    Deslizantes(4);
    TableroResuelto();
    // The hole goes to the first cell: piece 1 stands on the last one, cell 16 of 15 pieces.
    std::swap(Gbl.Piezas[1].X, Gbl.HuecoX);
    std::swap(Gbl.Piezas[1].Y, Gbl.HuecoY);
    ColocaPiezas(1);
    const int presentadas = P().presentaciones;
    Gbl.MostrandoColocadas = true;
    MostrarPiezasBienoMal();
    EXPECT_EQ(P().presentaciones - presentadas, 15) << "the player sees each piece change";
    const auto color = [](i16 p) {
        return Pic_Trabajo.Point(Gbl.Piezas[p].X + 30, Gbl.Piezas[p].Y + 40);
    };
    EXPECT_EQ(color(1), 0x0000FFU);
    for (i16 p = 2; p <= 15; ++p) EXPECT_EQ(color(p), 0x00FF00U) << p;
}

// ---------------------------------------------------------------- turn

TEST_F(Jugadas, TurnCountsThePlacedPiecesAnew) {
    Casi({4});
    Gbl.Piezas[4].Giro = 3;
    // Turned once more it stands 15 to the right and 15 up, and there it belongs.
    Gbl.Piezas[4].X = static_cast<i16>(Gbl.Piezas[4].XBien + 15);
    Gbl.Piezas[4].Y = static_cast<i16>(Gbl.Piezas[4].YBien - 15);
    ColocaPiezas(1);
    ASSERT_EQ(Gbl.PiezasColocadas, 8);
    Gbl.PiezaActual = 4;
    GiraPieza();
    EXPECT_EQ(Gbl.PiezasColocadas, 9);
    GiraPieza();
    EXPECT_EQ(Gbl.PiezasColocadas, 8);
}

TEST_F(Jugadas, TurnIsLoggedFromWhereThePieceLay) {
    Casi({4});
    Pon(4, 430, 300, 1);
    SubePieza(PosicionEnOrden(4));
    const Punto p = PuntoDe(4);
    P().botones = BOTON_DERECHO;
    P().alDejarPasar = [this, n = 0]() mutable {
        if (++n == 3) Puntero.Suelta();
    };
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta(BOTON_DERECHO);  // held for three quarters
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    // A box of 90 by 120 turns to 120 by 90 and back: 15 to the left and down, and so on.
    EXPECT_TRUE((Ultimo() == Movimiento{4, 430, 300, 1, 0, 415, 315, 0, 0}))
        << Ultimo().XAntes << ", " << Ultimo().YAntes << " to " << Ultimo().XDespues << ", "
        << Ultimo().YDespues << " turned " << Ultimo().GiroDespues;
}

// ---------------------------------------------------------------- press

TEST_F(Jugadas, PressWithoutAMoveIsLoggedAndStillBringsThePieceIntoView) {
    Casi({4});
    Gbl.FactorAtraccion = 0;
    Pon(4, 620, 200);  // its centre, 680, lies under the strip, which begins at 659
    SubePieza(PosicionEnOrden(4));
    Sonidos();
    Puntero.Mueve(625, 210);
    Puntero.Aprieta();
    ASSERT_TRUE(Gbl.ArrastrandoPieza);
    Puntero.Suelta();
    EXPECT_EQ(Gbl.Piezas[4].X, 599);
    EXPECT_EQ(Sonidos(), (std::vector<int>{50})) << "taken, but not moved by the player";
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_TRUE((Ultimo() == Movimiento{4, 620, 200, 0, 0, 599, 200, 0, 0}));
}

TEST_F(Jugadas, PieceDroppedOnAnotherLiesThereWithItsOwnPixels) {
    Casi({1, 4});
    Gbl.FactorAtraccion = 0;
    SubePieza(PosicionEnOrden(4));
    ColocaPiezas(1);
    Arrastra(4, 410, 290);
    ASSERT_EQ((Punto{Gbl.Piezas[4].X, Gbl.Piezas[4].Y}), (Punto{410, 290}));
    // The second row's first piece shows the picture from (0, 90) on.
    for (const Superficie* s : {&Pic_Imagen, static_cast<Superficie*>(&Pic_Trabajo)})
        EXPECT_EQ(s->Fila(290 + 50)[410 + 60], PixelDeMuestra(60, 90 + 50));
}

TEST_F(Jugadas, MiddleButtonTakesNothingTurnsNothingAndOpensNoOptions) {
    Casi({4});
    SubePieza(PosicionEnOrden(4));
    ColocaPiezas(1);
    const Pieza antes = Gbl.Piezas[4];
    Puntero.Pulsa(antes.X + 20, antes.Y + 20, 4);
    EXPECT_EQ(Gbl.Piezas[4], antes);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    Puntero.Pulsa(300, 420, 4);  // the empty table
    EXPECT_FALSE(Pic_SelOpciones.Visible);
}

// ---------------------------------------------------------------- Tangram

TEST_F(Jugadas, DropThatWasPushedIsNotDrawnToItsNeighboursThoughOneIsNear) {
    Tangram(MODO_CREAR);
    int atraeria = 0;
    PorCasos(900, [&](Azar& azar) {
        for (i16 p = 1; p <= 7; ++p)
            PonPieza(p, azar.Entre(60, 260), azar.Entre(60, 240),
                     static_cast<i16>(azar.Entre(0, 7)));
        const auto mia = static_cast<i16>(azar.Entre(1, 7));
        const Pieza caida = Gbl.Piezas[mia];
        // Where the push alone takes it, and whether the attraction would move it from there.
        Suelta(mia);
        const Pieza empujada = Gbl.Piezas[mia];
        if (Gbl.TEmpujes == 0 || empujada.X > 460 || empujada.Y > 420) return;
        PegaDosPiezas();
        if (Gbl.Piezas[mia] == empujada) return;
        ++atraeria;
        Gbl.Piezas[mia] = caida;
        Gbl.PiezaActual = mia;
        Gbl.AtraccionPiezas = Gbl.ArrastrandoPieza = true;
        Pic_Trabajo_MouseUp(1, 0, 0, 0);
        ASSERT_EQ(Gbl.Piezas[mia], empujada) << "piece " << mia;
    });
    EXPECT_GT(atraeria, 4);
}

TEST_F(Jugadas, ParallelogramTurnedOverOntoAPieceIsPushedOffAndLoggedWhereItEnds) {
    Tangram(MODO_CREAR);
    for (i16 p = 1; p <= 6; ++p) PonPieza(p, 20, 60 * p - 40, 0);
    // At 1 the parallelogram, 63 by 126, is empty at its lower left, where the square stands;
    // turned over it lies at 3 and fills that corner.
    PonPieza(7, 300, 200, 1, 0);
    PonPieza(6, 260, 290, 0);
    ColocaPiezas(1);
    ASSERT_EQ(Solapada(7), 0);
    Gbl.PiezaActual = 7;
    Sonidos();
    Pic_Trabajo_KeyPress('V');
    EXPECT_EQ(Gbl.Piezas[7].Volteo, 1);
    EXPECT_EQ(Gbl.Piezas[7].Giro, 3);
    EXPECT_GT(Gbl.TEmpujes, 0);
    EXPECT_EQ(Solapada(7), 0);
    ASSERT_FALSE(P().sonidos.empty());
    EXPECT_EQ(P().sonidos.back(), (std::pair<i16, bool>{52, false})) << "it is waited for";
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_TRUE(
        (Ultimo() == Movimiento{7, 300, 200, 1, 0, Gbl.Piezas[7].X, Gbl.Piezas[7].Y, 3, 1}));
    EXPECT_NE((Punto{Gbl.Piezas[7].X, Gbl.Piezas[7].Y}), (Punto{300, 200}));
}

// ---------------------------------------------------------------- sounds that are waited for

TEST_F(Jugadas, ArrangementWaitsForTheSoundOfEachPiece) {
    for (const bool tangram : {false, true}) {
        if (tangram)
            Tangram(MODO_CREAR);
        else
            Casi({1, 5});
        for (i16 i = 1; i <= 7 && tangram; ++i) PonPieza(i, 100, 100, 0);
        P().sonidos.clear();
        Gbl.OrdenandoPiezas = true;
        OrdenaLaterales();
        ASSERT_EQ(P().sonidos.size(), tangram ? 7U : 2U);
        for (const auto& s : P().sonidos) EXPECT_EQ(s, (std::pair<i16, bool>{52, false}));
    }
}

TEST_F(Jugadas, FinishSoundsBeforeTheCongratulation) {
    Casi({4});
    Gbl.PermitirGiro = true;
    SubePieza(PosicionEnOrden(4));
    ColocaPiezas(1);
    std::vector<int> antesDelAviso;
    P().ventanas["Mensajes"] = [&](Ventana&) {
        if (antesDelAviso.empty()) antesDelAviso = Sonidos();
    };
    Sonidos();
    Arrastra(4, Gbl.Piezas[4].XBien + 2, Gbl.Piezas[4].YBien + 3);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_EQ(antesDelAviso, (std::vector<int>{50, 51, 14}));
}

}  // namespace tessario
