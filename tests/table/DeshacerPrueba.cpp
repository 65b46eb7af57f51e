// SPDX-License-Identifier: GPL-3.0-or-later
// Ctrl+Z on the real table.
#include "apoyo/MesaMontada.h"
#include "panel/Colocadas.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "rules/PuzzBas.h"
#include "session/Montaje.h"
#include "table/Deshacer.h"

namespace tessario {

namespace {

constexpr i16 CTRL_Z = 26;

class Deshacer : public MesaMontada {
protected:
    void Pulsa() {
        P().sonidos.clear();
        Mesa.KeyPress(CTRL_Z);
    }
    bool Rechazado() { return P().sonidos == std::vector<std::pair<i16, bool>>{{11, true}}; }
    void DeslizaPieza(i16 piece) {
        const Pieza& p = Gbl.Piezas[piece];
        Puntero.Pulsa(p.X + 20, p.Y + 20);
    }
    void PonEnSuSitio(i16 desde) {
        for (i16 i = desde; i <= Gbl.NumPiezas; ++i) {
            Pieza& p = Gbl.Piezas[i];
            p.X = p.XBien;
            p.Y = p.YBien;
            p.Giro = p.GiroBien;
        }
        ColocaPiezas(1);
    }
};

TEST_F(Deshacer, EveryMoveGoesBackAlsoTheFirstAndTheTableShowsIt) {
    Moviles(3, 330, 250);
    PonEnSuSitio(1);
    Pon(4, 420, 100);
    Pon(7, 500, 300);
    const auto inicio = Pic_Trabajo.Dibujo().Pixeles;
    Arrastra(4, 450, 160);
    Arrastra(7, 380, 420);
    ASSERT_EQ(Gbl.NumMovimientos, 2);
    Pulsa();
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Piezas[7].X, 500);
    EXPECT_EQ(Gbl.Piezas[7].Y, 300);
    EXPECT_EQ(Gbl.Piezas[4].X, 450);
    Pulsa();
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Gbl.Piezas[4].X, 420);
    EXPECT_FALSE(Gbl.GrabadoraEncendida);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    Pulsa();
    EXPECT_TRUE(Rechazado()) << "nothing is left";
    EXPECT_EQ(Gbl.Piezas[4].Y, 100);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, inicio);
}

TEST_F(Deshacer, ThePointerThatStandsStillLooksAgain) {
    Moviles(3, 330, 250);
    PonEnSuSitio(1);
    Pon(4, 420, 100);
    const Punto antes = PuntoDe(4);
    Arrastra(4, 450, 400);
    ASSERT_EQ(Gbl.PiezaActual, 4);
    ASSERT_EQ(Pic_Trabajo.MouseIcon, "ManoRoja");
    Pulsa();
    EXPECT_EQ(Gbl.PiezaActual, 0) << "the piece has gone from under it";
    EXPECT_EQ(Pic_Trabajo.MousePointer, PUNTERO_NORMAL);
    Arrastra(4, 450, 400);
    Puntero.Mueve(antes.x, antes.y);
    ASSERT_EQ(Gbl.PiezaActual, 0);
    Pulsa();
    EXPECT_EQ(Gbl.PiezaActual, 4) << "and comes back to it";
    EXPECT_EQ(Pic_Trabajo.MouseIcon, "ManoRoja");
}

TEST_F(Deshacer, TheHoleThatComesBackShowsWhichWayThePieceCanGo) {
    Deslizantes(3);
    TableroResuelto();
    Gbl.Movimientos.Redimensiona(100);
    DeslizaPieza(8);  // the pointer stands on the hole
    ASSERT_EQ(Gbl.PiezaActual, 0);
    Pulsa();
    EXPECT_EQ(Gbl.PiezaActual, 8);
    EXPECT_EQ(Pic_Trabajo.MouseIcon, "FlechaEst");
}

TEST_F(Deshacer, TheNextMoveFollowsTheOneThatIsLeft) {
    Moviles(3, 330, 250);
    Pon(4, 420, 100);
    for (const i32 y : {200, 300, 400}) Arrastra(4, 450, y);
    Pulsa();
    Pulsa();
    Arrastra(4, 480, 350);
    ASSERT_EQ(Gbl.NumMovimientos, 2);
    EXPECT_EQ(Gbl.Movimientos[2].YAntes, 200);
    EXPECT_EQ(Gbl.Movimientos[2].XDespues, 480);
}

TEST_F(Deshacer, TurnGoesBackWithItsAngle) {
    Moviles(3, 330, 250);
    Gbl.PermitirGiro = true;
    Pon(4, 420, 100, 1);
    const Punto p = PuntoDe(4);
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta(BOTON_DERECHO);
    Puntero.Suelta();
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    ASSERT_NE(Gbl.Piezas[4].Giro, 1);
    Pulsa();
    EXPECT_EQ(Gbl.Piezas[4].Giro, 1);
    EXPECT_EQ(Gbl.Piezas[4].X, 420);
}

TEST_F(Deshacer, SlidingHoleGoesBackToo) {
    Deslizantes(4);
    TableroResuelto();
    Gbl.Movimientos.Redimensiona(100);
    const i16 huecoX = Gbl.HuecoX;
    DeslizaPieza(15);
    ASSERT_NE(Gbl.HuecoX, huecoX);
    Pulsa();
    EXPECT_EQ(Gbl.HuecoX, huecoX);
    EXPECT_EQ(Gbl.PiezasColocadas, 15);
}

TEST_F(Deshacer, FinishedPuzzleIsOpenAgain) {
    Moviles(2, 330, 250);
    PonEnSuSitio(1);
    Pon(4, 500, 300);
    Arrastra(4, Gbl.Piezas[4].XBien, Gbl.Piezas[4].YBien);
    ASSERT_TRUE(Gbl.PuzzleTerminado);
    const Color junta = Pic_Trabajo.Point(Gbl.AnchoCelda, 20);
    Pulsa();
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_EQ(Gbl.PiezasColocadas, 3);
    EXPECT_EQ(Gbl.Piezas[4].X, 500);
    EXPECT_NE(Pic_Trabajo.Point(Gbl.AnchoCelda, 20), junta) << "the joints are back";
}

TEST_F(Deshacer, TheClockGoesOnAsItWas) {
    for (const bool marcha : {true, false}) {
        Moviles(3, 330, 250);
        Pon(4, 420, 100);
        Arrastra(4, 450, 260);
        Gbl.CronoEnMarcha = marcha;
        Pulsa();
        EXPECT_EQ(static_cast<bool>(Gbl.CronoEnMarcha), marcha);
    }
}

TEST_F(Deshacer, ThereAreNoPausesOfTheRecorder) {
    Moviles(3, 330, 250);
    Gbl.VelocidadJuego = 50;
    Pon(4, 420, 100, 0);
    RegistraMovimiento(420, 100, 1, 0, 420, 100, 0, 0);  // of the piece on top, whichever it is
    const double antes = P().dormido;
    Pulsa();
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(P().dormido, antes);
}

TEST_F(Deshacer, NothingUnderThePointerIsTakenFromWhereItWas) {
    Moviles(3, 330, 250);
    PonEnSuSitio(1);
    Pon(4, 420, 100);
    Arrastra(4, 450, 360);
    Pulsa();
    const Pieza p = Gbl.Piezas[4];
    // A press with no move of the pointer since the drop.
    const Punto o = PunteroPrueba::Origen(Pic_Trabajo);
    const auto x = static_cast<float>(Puntero.Lugar().x - o.x);
    const auto y = static_cast<float>(Puntero.Lugar().y - o.y);
    Pic_Trabajo.MouseDown(BOTON_IZQUIERDO, 0, x, y);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    Pic_Trabajo.MouseUp(BOTON_IZQUIERDO, 0, x, y);
    EXPECT_EQ(Gbl.Piezas[4], p);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
}

TEST_F(Deshacer, IsRefusedWhereTheRecorderIs) {
    Moviles(3, 330, 250);
    Pulsa();
    EXPECT_TRUE(Rechazado()) << "an empty log";
    Pon(4, 420, 100);
    Arrastra(4, 450, 260);
    Arrastra(4, 450, 360);
    for (Booleano* b : {&Gbl.GrabadoraEncendida, &Gbl.ArrastrandoPieza, &Gbl.Barajando,
                        &Gbl.OrdenandoPiezas, &Gbl.ResolviendoPuzzle, &Gbl.GirandoPieza}) {
        *b = true;
        Pulsa();
        EXPECT_TRUE(Rechazado());
        EXPECT_EQ(Gbl.NumMovimientos, 2);
        *b = false;
    }
    Gbl.EventosAnidados = 1;
    Deshaz();
    EXPECT_EQ(Gbl.NumMovimientos, 2) << "inside other work";
    Gbl.EventosAnidados = 0;
    Tangram(MODO_CREAR);
    Arrastra(6, 200, 200);
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    Pulsa();
    EXPECT_TRUE(Rechazado()) << "creating figures, there is no recorder";
    EXPECT_EQ(Gbl.NumMovimientos, 1);
}

TEST_F(Deshacer, DisplayInTwoColoursEndsFirst) {
    Moviles(3, 330, 250);
    Pon(4, 420, 100);
    Arrastra(4, 450, 260);
    PulsaOrden(10);
    ASSERT_TRUE(Gbl.MostrandoColocadas);
    Pulsa();
    EXPECT_FALSE(Gbl.MostrandoColocadas);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
}

}  // namespace

}  // namespace tessario
