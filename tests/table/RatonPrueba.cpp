// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/MesaMontada.h"
#include "core/Servicios.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "pieces/Composicion.h"
#include "rules/PuzzBas.h"
#include "table/Ordenes.h"
#include "table/Raton.h"

namespace tessario {

class RatonMesa : public MesaMontada {
protected:
    // A jigsaw of 3 x 3 whose pieces lie in a heap out of the way but for those put elsewhere.
    void Rompecabezas() {
        Moviles(3, 300, 300);
        for (i16 i = 1; i <= 9; ++i) {
            Gbl.Piezas[i].X = 560;
            Gbl.Piezas[i].Y = 480;
            Gbl.Piezas[i].Giro = 0;
            Gbl.OrdenPiezas[i] = i;
        }
        ColocaPiezas(1);
    }
    std::string Cursor() {
        return Pic_Trabajo.MousePointer == PUNTERO_PROPIO
                   ? Pic_Trabajo.MouseIcon
                   : std::to_string(Pic_Trabajo.MousePointer);
    }
    std::vector<i32> Orden() {
        std::vector<i32> o;
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) o.push_back(Gbl.OrdenPiezas[i]);
        return o;
    }
};

// ---------------------------------------------------------------- hover
TEST_F(RatonMesa, CursorTellsPlacedFromLoosePieces) {
    Rompecabezas();
    Pon(1, 0, 0);
    Pon(2, 400, 100);
    Puntero.Mueve(50, 50);
    EXPECT_EQ(Cursor(), "ManoVerde");
    EXPECT_EQ(Gbl.PiezaActual, 1);
    Puntero.Mueve(450, 150);
    EXPECT_EQ(Cursor(), "ManoRoja");
    EXPECT_EQ(Gbl.PiezaActual, 2);
    Puntero.Mueve(350, 350);
    EXPECT_EQ(Cursor(), "0");
    EXPECT_EQ(Gbl.PiezaActual, 0);
}

TEST_F(RatonMesa, BoxIsHitOnAllFourOfItsSidesAndNotBeyond) {
    Rompecabezas();
    Pon(2, 400, 100);
    for (const Punto p : {Punto{400, 100}, {499, 100}, {400, 199}, {499, 199}}) {
        Puntero.Mueve(p.x, p.y);
        EXPECT_EQ(Gbl.PiezaActual, 2) << p.x << ", " << p.y;
    }
    for (const Punto p : {Punto{399, 150}, {500, 150}, {450, 99}, {450, 200}}) {
        Puntero.Mueve(p.x, p.y);
        EXPECT_EQ(Gbl.PiezaActual, 0) << p.x << ", " << p.y;
    }
}

TEST_F(RatonMesa, TopPieceOfAPileIsHit) {
    Rompecabezas();
    Pon(2, 400, 100);
    Pon(7, 420, 120);
    SubePieza(PosicionEnOrden(7));
    Puntero.Mueve(450, 150);
    EXPECT_EQ(Gbl.PiezaActual, 7);
    SubePieza(PosicionEnOrden(2));
    Puntero.Mueve(451, 150);
    EXPECT_EQ(Gbl.PiezaActual, 2);
}

TEST_F(RatonMesa, PieceBelowIsTakenThroughATransparentCorner) {
    Tangram(MODO_CREAR);
    // Big triangle at giro 0: its box is 177 x 89 with the apex at the top, the corners empty.
    Pon(1, 100, 100);
    Pon(6, 90, 95);  // the square, 63 x 63, under the left corner
    SubePieza(PosicionEnOrden(1));
    Puntero.Mueve(104, 104);
    EXPECT_EQ(Gbl.PiezaActual, 6);
    Puntero.Aprieta();
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.OrdenPiezas[1], 6);
    Puntero.Suelta();
    Puntero.Mueve(272, 104);  // the right corner, nothing below
    EXPECT_EQ(Gbl.PiezaActual, 0);
    Puntero.Aprieta();
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    Puntero.Suelta();
}

TEST_F(RatonMesa, FramePieceShowsTheInnerOneThroughItsHole) {
    Moviles(3, 300, 300, 5);  // rectangles in rectangles: odd inside, even around
    for (i16 i = 1; i <= 18; ++i) {
        Gbl.Piezas[i].X = 560;
        Gbl.Piezas[i].Y = 480;
        Gbl.Piezas[i].Giro = 0;
    }
    Pon(1, 400, 100);
    Pon(2, 400, 100);
    SubePieza(PosicionEnOrden(2));
    Puntero.Mueve(450, 150);
    EXPECT_EQ(Gbl.PiezaActual, 1);
    Puntero.Mueve(405, 105);
    EXPECT_EQ(Gbl.PiezaActual, 2);
}

TEST_F(RatonMesa, DesignModeShowsTheOpenHand) {
    Tangram(MODO_CREAR);
    const Punto p = PuntoDe(1);
    Puntero.Mueve(p.x, p.y);
    EXPECT_EQ(Cursor(), "ManoAbierta");
    Gbl.ModoJuego = MODO_RESOLVER;
    Puntero.Mueve(p.x + 1, p.y);
    EXPECT_EQ(Cursor(), "ManoRoja");
}

TEST_F(RatonMesa, WaitingTutorMarksOnlyPiecesThatAreNotPlaced) {
    Rompecabezas();
    Pon(1, 0, 0);
    Pon(2, 400, 100);
    Gbl.TutorEsperando = true;
    Puntero.Mueve(450, 150);
    EXPECT_EQ(Cursor(), "PunTutor");
    EXPECT_EQ(Gbl.CursorDeseado, 24);
    Puntero.Mueve(50, 50);
    EXPECT_EQ(Cursor(), "0");
    Puntero.Mueve(350, 350);
    EXPECT_EQ(Cursor(), "0");
}

TEST_F(RatonMesa, AutomaticRunShowsTheHourglassEverywhere) {
    Rompecabezas();
    Gbl.TareaAutomatica = true;
    Puntero.Mueve(350, 350);
    EXPECT_EQ(Cursor(), "11");
    Gbl.TareaAutomatica = false;
    Puntero.Mueve(351, 350);
    EXPECT_EQ(Cursor(), "0");
}

TEST_F(RatonMesa, NoHoverWhileTheTableIsBusy) {
    Rompecabezas();
    Pon(2, 400, 100);
    for (Booleano* b : {&Gbl.GirandoPieza, &Gbl.Barajando, &Gbl.OrdenandoPiezas,
                        &Gbl.MostrandoColocadas, &Gbl.SoltandoPieza, &Gbl.GrabadoraEncendida}) {
        *b = true;
        Puntero.Mueve(450, 150);
        EXPECT_EQ(Gbl.PiezaActual, 0);
        EXPECT_EQ(Cursor(), "0");
        *b = false;
    }
    Puntero.Mueve(450, 150);
    EXPECT_EQ(Gbl.PiezaActual, 2);
}

TEST_F(RatonMesa, SlidingPiecesShowTheArrowTheyWouldTravel) {
    Deslizantes(3);
    TableroResuelto();  // hole in the last cell
    const i32 c = Gbl.AnchoCelda;
    const Punto hueco{Gbl.HuecoX + c / 2, Gbl.HuecoY + c / 2};
    Puntero.Mueve(hueco.x, hueco.y - c);
    EXPECT_EQ(Gbl.PiezaActual, 6);
    EXPECT_EQ(Cursor(), "FlechaSur");
    Puntero.Mueve(hueco.x - c, hueco.y);
    EXPECT_EQ(Cursor(), "FlechaEst");
    Puntero.Mueve(hueco.x - c, hueco.y - c);
    EXPECT_EQ(Cursor(), "Prohibido");
    EXPECT_EQ(Gbl.PiezaActual, 5);
    Puntero.Mueve(hueco.x, hueco.y);
    EXPECT_EQ(Cursor(), "0");
    EXPECT_EQ(Gbl.PiezaActual, 0);
    Gbl.OrdenManual = true;
    Puntero.Mueve(hueco.x - c, hueco.y - c);
    EXPECT_EQ(Cursor(), "CruzFlechas");
    EXPECT_EQ(Gbl.PiezaActual, 5);
}

TEST_F(RatonMesa, MoveOverTheTablePutsOutALitOption) {
    Rompecabezas();
    Puntero.Pulsa(350, 350, BOTON_DERECHO);
    ASSERT_TRUE(Pic_SelOpciones.Visible);
    const auto apagado = Pic_SelOpciones.Dibujo().Pixeles;
    Puntero.Mueve(370, 380);  // its second row
    ASSERT_EQ(Gbl.OpcionResaltada, 2);
    ASSERT_NE(Pic_SelOpciones.Dibujo().Pixeles, apagado);
    Puntero.Mueve(100, 100);
    EXPECT_EQ(Gbl.OpcionResaltada, 0);
    EXPECT_TRUE(Pic_SelOpciones.Visible);
    EXPECT_EQ(Pic_SelOpciones.Dibujo().Pixeles, apagado);
    // One that is hidden stays so, whatever was lit when it went.
    Gbl.OpcionResaltada = 2;
    Pic_SelOpciones.Visible = false;
    Puntero.Mueve(110, 100);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
}

// ---------------------------------------------------------------- pick-up and drag
TEST_F(RatonMesa, PressOnAPieceTakesIt) {
    Rompecabezas();
    Pon(2, 400, 100);
    CambiaCrono(2);
    Puntero.Mueve(450, 150);
    Puntero.Aprieta();
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_EQ(Orden().front(), 2);
    EXPECT_EQ(Cursor(), "ManoCerrada");
    EXPECT_EQ(Gbl.CursorActual, 0);
    EXPECT_EQ(P().sonidos, (std::vector<std::pair<i16, bool>>{{50, false}}));
    EXPECT_EQ(Gbl.XPulsado, 450);
    EXPECT_EQ(Gbl.YPulsado, 150);
    EXPECT_EQ(Gbl.XOrigen, 400);
    EXPECT_EQ(Gbl.YOrigen, 100);
}

TEST_F(RatonMesa, DragMovesThePieceWithThePointerAndTheDropIsLogged) {
    Rompecabezas();
    Pon(2, 400, 100);
    Arrastra(2, 330, 320);
    EXPECT_EQ(Gbl.Piezas[2].X, 330);
    EXPECT_EQ(Gbl.Piezas[2].Y, 320);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_FALSE(Gbl.SoltandoPieza);
    EXPECT_EQ(P().sonidos, (std::vector<std::pair<i16, bool>>{{50, false}, {52, true}}));
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Movimientos[1], (Movimiento{2, 400, 100, 0, 0, 330, 320, 0, 0}));
    EXPECT_EQ(Cursor(), "ManoRoja");  // the hover is right at once
}

TEST_F(RatonMesa, TableShowsThePieceAtItsNewPlaceAndNothingAtTheOld) {
    Rompecabezas();
    Pon(2, 400, 100);
    const Color suelo = Pic_Fondo.Point(450, 150);
    const Color pieza = Pic_Trabajo.Point(450, 150);
    ASSERT_NE(suelo, pieza);
    Arrastra(2, 330, 320);
    for (const Superficie* s : {static_cast<const Superficie*>(&Pic_Trabajo),
                                static_cast<const Superficie*>(&Pic_Imagen)}) {
        EXPECT_EQ(s->Point(450, 150), suelo);
        EXPECT_EQ(s->Point(380, 370), pieza);
    }
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, Pic_Imagen.Dibujo().Pixeles);
}

TEST_F(RatonMesa, WhileHeldThePieceIsOnTheScreenOnly) {
    Rompecabezas();
    Pon(2, 400, 100);
    Puntero.Mueve(450, 150);
    Puntero.Aprieta();
    Puntero.Mueve(350, 370);
    EXPECT_EQ(Pic_Imagen.Point(350, 370), Pic_Fondo.Point(350, 370));
    EXPECT_NE(Pic_Trabajo.Point(350, 370), Pic_Fondo.Point(350, 370));
    Puntero.Suelta();
}

TEST_F(RatonMesa, DropNearItsPlaceSnapsHomeWithItsSound) {
    Rompecabezas();
    Pon(2, 400, 100);
    Arrastra(2, 110, 8);
    EXPECT_TRUE(PiezaEnSuSitio(2));
    EXPECT_EQ(Gbl.Piezas[2].X, 100);
    EXPECT_EQ(P().sonidos.back(), (std::pair<i16, bool>{51, true}));
    EXPECT_EQ(Gbl.PiezasColocadas, 1);
    EXPECT_EQ(Gbl.Movimientos[1], (Movimiento{2, 400, 100, 0, 0, 100, 0, 0, 0}));
    EXPECT_EQ(Cursor(), "ManoVerde");
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, Pic_Imagen.Dibujo().Pixeles);
}

TEST_F(RatonMesa, WrongTurnNeverSnaps) {
    Rompecabezas();
    Pon(2, 400, 100, 1);
    Arrastra(2, 101, 1);
    EXPECT_FALSE(PiezaEnSuSitio(2));
    EXPECT_EQ(P().sonidos.back().first, 52);
}

TEST_F(RatonMesa, PressAndReleaseWithoutMovingMakesNoDropSound) {
    Rompecabezas();
    Pon(2, 400, 100);
    Puntero.Pulsa(450, 150);
    EXPECT_EQ(Sonidos(), std::vector<int>{50});
    EXPECT_EQ(Gbl.Piezas[2].X, 400);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
}

TEST_F(RatonMesa, DropThatMovedOneWayOnlySoundsToo) {
    Rompecabezas();
    Pon(2, 400, 100);
    Arrastra(2, 430, 100);
    EXPECT_EQ(Sonidos(), (std::vector<int>{50, 52}));
    Arrastra(2, 430, 140);
    EXPECT_EQ(Sonidos(), (std::vector<int>{50, 52}));
}

TEST_F(RatonMesa, PressOnTheEmptyTableTakesNothing) {
    Rompecabezas();
    Puntero.Pulsa(350, 350);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_TRUE(P().sonidos.empty());
}

TEST_F(RatonMesa, PressHidesTheOptionsAndCallsTheTutorOff) {
    Rompecabezas();
    Pic_SelOpciones.Visible = true;
    Gbl.TutorEsperando = true;
    Puntero.Mueve(350, 350);
    Puntero.Aprieta();
    EXPECT_FALSE(Pic_SelOpciones.Visible);
    EXPECT_FALSE(Gbl.TutorEsperando);
    Puntero.Suelta();
}

TEST_F(RatonMesa, TutorPressShowsThePlaceAndTakesNoPiece) {
    Rompecabezas();
    Pon(2, 400, 100);
    Gbl.TutorEsperando = true;
    Puntero.Pulsa(450, 150);
    EXPECT_EQ(Sonidos(), (std::vector<int>{55, 55, 55}));
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
}

TEST_F(RatonMesa, PressWhilePlacedPiecesAreShownEndsThatDisplay) {
    Rompecabezas();
    Pon(2, 400, 100);
    PulsaOrden(10);
    ASSERT_TRUE(Gbl.MostrandoColocadas);
    Puntero.Pulsa(350, 350);
    EXPECT_FALSE(Gbl.MostrandoColocadas);
    EXPECT_NE(Pic_Trabajo.Point(450, 150), 0x0000FFU);  // red no more
}

TEST_F(RatonMesa, TableIsLockedWhileTheRecorderIsOn) {
    Rompecabezas();
    Pon(2, 400, 100);
    Puntero.Mueve(450, 150);
    Gbl.GrabadoraEncendida = true;
    Puntero.Aprieta();
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    Puntero.Suelta();
    Puntero.Aprieta(BOTON_DERECHO);
    EXPECT_EQ(Gbl.Piezas[2].Giro, 0);
    Puntero.Suelta();
    EXPECT_FALSE(Pic_SelOpciones.Visible);
}

TEST_F(RatonMesa, OptionsStayClosedWhileTheRecorderIsOn) {
    Rompecabezas();
    Gbl.GrabadoraEncendida = true;
    Gbl.PiezaActual = 0;
    Puntero.Pulsa(350, 350, BOTON_DERECHO);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
    // Only under the solver do they open all the same.
    Gbl.ResolviendoPuzzle = true;
    Puntero.Pulsa(350, 350, BOTON_DERECHO);
    EXPECT_TRUE(Pic_SelOpciones.Visible);
}

TEST_F(RatonMesa, PressOnTheTableEndsTheDisplayThoughItsButtonLastReadForbidden) {
    Rompecabezas();
    PulsaOrden(10);
    ASSERT_TRUE(Gbl.MostrandoColocadas);
    Gbl.BotonEstado[10] = BOTON_PROHIBIDO;  // as the pointer found it with the recorder on
    Puntero.Pulsa(350, 350);
    EXPECT_FALSE(Gbl.MostrandoColocadas);
}

TEST_F(RatonMesa, RightPressDuringADragDropsThePieceTurned) {
    Rompecabezas();
    Pon(2, 400, 100);
    Puntero.Mueve(450, 150);
    Puntero.Aprieta();
    Puntero.Mueve(350, 370);
    Pic_Trabajo_MouseDown(BOTON_DERECHO, 0, 350, 370);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.Piezas[2].Giro, 1);
    Puntero.Suelta();
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, Pic_Imagen.Dibujo().Pixeles);
}

// ---------------------------------------------------------------- finished puzzle
TEST_F(RatonMesa, FinishedPuzzleGivesANoticeOnAPieceOnly) {
    Rompecabezas();
    Pon(2, 400, 100);
    Gbl.PuzzleTerminado = true;
    Puntero.Pulsa(350, 350);
    EXPECT_TRUE(P().avisos.empty());
    Puntero.Pulsa(450, 150);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Puzzle resuelto");
    EXPECT_EQ(P().avisos[0].texto,
              "Este puzzle ya se ha resuelto. Si desea deshacerlo y volver atrás, utilice la "
              "Grabadora de movimientos.");
    EXPECT_EQ(P().avisos[0].modo, 2);
    EXPECT_EQ(P().avisos[0].botones, 1);
    EXPECT_EQ(P().avisos[0].ayuda, 2200);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
}

// ---------------------------------------------------------------- rotation
TEST_F(RatonMesa, RightPressTurnsThePieceOnceAndLogsIt) {
    Rompecabezas();
    Pon(2, 400, 100);
    Puntero.Pulsa(450, 150, BOTON_DERECHO);
    EXPECT_EQ(Gbl.Piezas[2].Giro, 1);
    EXPECT_EQ(Gbl.Piezas[2].X, 400);
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Movimientos[1], (Movimiento{2, 400, 100, 0, 0, 400, 100, 1, 0}));
    EXPECT_EQ(P().sonidos, (std::vector<std::pair<i16, bool>>{{6, false}}));
    EXPECT_FALSE(Gbl.GirandoPieza);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
}

TEST_F(RatonMesa, HeldRightButtonKeepsTurningUntilItsClick) {
    Rompecabezas();
    Pon(2, 400, 100);
    Puntero.Mueve(450, 150);
    Gbl.VelocidadJuego = 50;
    P().botones = BOTON_DERECHO;
    const double antes = P().dormido;
    P().eventos.push_back([] {});
    P().eventos.push_back([] {});
    P().eventos.push_back([this] {
        P().botones = 0;
        Puntero.Suelta();
    });
    Puntero.Aprieta(BOTON_DERECHO);
    EXPECT_EQ(Gbl.Piezas[2].Giro, 3);
    EXPECT_EQ(P().dormido - antes, 3 * 160);
    EXPECT_EQ(Sonidos(), (std::vector<int>{6, 6, 6}));
    ASSERT_EQ(Gbl.NumMovimientos, 1);  // one entry for all the turning
    EXPECT_EQ(Gbl.Movimientos[1], (Movimiento{2, 400, 100, 0, 0, 400, 100, 3, 0}));
    EXPECT_FALSE(Pic_SelOpciones.Visible);
}

TEST_F(RatonMesa, ClickThatComesWhileTheButtonStillReadsHeldEndsTheTurning) {
    Rompecabezas();
    Pon(2, 400, 100);
    Puntero.Mueve(450, 150);
    P().botones = BOTON_DERECHO;
    P().eventos.push_back([] { Pic_Trabajo_Click(); });
    Puntero.Aprieta(BOTON_DERECHO);
    EXPECT_EQ(Gbl.Piezas[2].Giro, 1);
    EXPECT_FALSE(Gbl.GirandoPieza);
}

TEST_F(RatonMesa, LostReleaseEndsTheTurningToo) {
    Rompecabezas();
    Pon(2, 400, 100);
    Puntero.Mueve(450, 150);
    P().botones = BOTON_DERECHO;
    P().eventos.push_back([] {});
    P().eventos.push_back([this] { P().botones = 0; });  // no release comes
    Puntero.Aprieta(BOTON_DERECHO);
    EXPECT_EQ(Gbl.Piezas[2].Giro, 2);
    EXPECT_FALSE(Gbl.GirandoPieza);
}

TEST_F(RatonMesa, RightPressOnTheEmptyTableOpensTheOptions) {
    Rompecabezas();
    Puntero.Pulsa(350, 350, BOTON_DERECHO);
    EXPECT_TRUE(Pic_SelOpciones.Visible);
    for (i16 i = 1; i <= 9; ++i) EXPECT_EQ(Gbl.Piezas[i].Giro, 0);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    for (i32 i = 1; i <= 10; ++i) EXPECT_EQ(bool{Gbl.OpcionesActivas[i]}, i <= 3) << i;
}

TEST_F(RatonMesa, DesignModeOffersTheModelAsWell) {
    Tangram(MODO_CREAR);
    Puntero.Pulsa(100, 500, BOTON_DERECHO);
    EXPECT_TRUE(Gbl.OpcionesActivas[4]);
    Tangram(MODO_RESOLVER);
    Gbl.OpcionesActivas[4] = false;
    Puntero.Pulsa(100, 500, BOTON_DERECHO);
    EXPECT_FALSE(Gbl.OpcionesActivas[4]);
}

TEST_F(RatonMesa, WithRotationForbiddenARightPressOnAPieceDoesNothing) {
    Rompecabezas();
    Pon(2, 400, 100);
    Gbl.PermitirGiro = false;
    Puntero.Pulsa(450, 150, BOTON_DERECHO);
    EXPECT_EQ(Gbl.Piezas[2].Giro, 0);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
    EXPECT_TRUE(P().sonidos.empty());
}

TEST_F(RatonMesa, SlidingPiecesDoNotTurn) {
    Deslizantes(3);
    const Punto p = PuntoDe(5);
    Puntero.Pulsa(p.x, p.y, BOTON_DERECHO);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 0);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
}

TEST_F(RatonMesa, AutomaticRunTurnsThePieceInOneStepWithAnyButton) {
    Rompecabezas();
    Pon(2, 400, 100, 1);
    Gbl.ResolviendoPuzzle = true;
    Gbl.PiezaActual = 2;
    P().botones = BOTON_DERECHO;  // even if the player holds a button
    int pasos = 0;
    P().alDejarPasar = [&] {
        ++pasos;
        EXPECT_FALSE(Gbl.GirandoPieza);
        EXPECT_EQ(Gbl.Piezas[2].Giro, 0);
    };
    Pic_Trabajo_MouseDown(BOTON_DERECHO, 0, 400, 100);
    P().alDejarPasar = nullptr;
    EXPECT_EQ(pasos, 1) << "what the player does meanwhile comes in after the step";
    EXPECT_EQ(Gbl.Piezas[2].Giro, 0);  // straight to where it is right
    EXPECT_FALSE(Gbl.GirandoPieza);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
}

TEST_F(RatonMesa, ClickWhileTheSolverRunsOpensTheOptions) {
    Rompecabezas();
    Gbl.ResolviendoPuzzle = true;
    Gbl.PiezaActual = 0;
    Gbl.BotonPulsado = BOTON_IZQUIERDO;
    Pic_Trabajo_Click();
    EXPECT_TRUE(Pic_SelOpciones.Visible);
}

// ---------------------------------------------------------------- view
TEST_F(RatonMesa, PieceDroppedUnderTheStripIsPushedToItsEdge) {
    Rompecabezas();
    Pon(2, 400, 100);
    Arrastra(2, 690, 100);
    EXPECT_EQ(Gbl.Piezas[2].X, 609);  // centre at 659
    EXPECT_EQ(Gbl.Piezas[2].Y, 100);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, Pic_Imagen.Dibujo().Pixeles);
    EXPECT_EQ(Gbl.Movimientos[1].XDespues, 609);
}

TEST_F(RatonMesa, TangramPiecePushedIntoViewLeavesNoTrace) {
    Tangram(MODO_CREAR);
    for (i16 i = 1; i <= 7; ++i) Pon(i, 20, 60 * i);
    Pon(6, 300, 300);
    Arrastra(6, 690, 200);  // a square of 63, its centre under the strip
    EXPECT_EQ(Gbl.Piezas[6].X, 628);
    const auto visto = Pic_Trabajo.Dibujo().Pixeles;
    EXPECT_EQ(Pic_Imagen.Dibujo().Pixeles, visto);
    ColocaPiezas(1);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, visto);
}

TEST_F(RatonMesa, ReleaseDuringTheSolverDropsNothing) {
    Rompecabezas();
    Pon(2, 400, 100);
    SubePieza(PosicionEnOrden(2));
    const auto antes = Gbl.Piezas;
    Gbl.ArrastrandoPieza = Gbl.ResolviendoPuzzle = true;
    Gbl.XOrigen = Gbl.YOrigen = 1;
    Pic_Trabajo_MouseUp(BOTON_IZQUIERDO, 0, 450, 150);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_TRUE(Sonidos().empty());
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    for (i32 i = 1; i <= 9; ++i) EXPECT_EQ(Gbl.Piezas[i], antes[i]) << i;
    EXPECT_EQ(Gbl.PiezaActual, 2) << "the pointer looks again";
}

TEST_F(RatonMesa, PressWithAPieceStillInHandDropsThatFirst) {
    Rompecabezas();
    Pon(2, 400, 100);
    Pon(3, 250, 350);
    Puntero.Mueve(450, 150);
    Puntero.Aprieta();
    Puntero.Mueve(460, 170);
    // The release was lost; the next press comes elsewhere.
    Pic_Trabajo.MouseDown(BOTON_IZQUIERDO, 0, 300, 400);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Movimientos[1].XDespues, 410);
    EXPECT_EQ(Gbl.Movimientos[1].YDespues, 120);
    EXPECT_EQ(Gbl.PiezaActual, 3);
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    Pic_Trabajo.MouseUp(BOTON_IZQUIERDO, 0, 300, 400);
    EXPECT_EQ(Gbl.Piezas[2].X, 410);
}

TEST_F(RatonMesa, WhileAPieceIsBeingDroppedTheTableDragsNothing) {
    Rompecabezas();
    for (i16 i = 1; i <= 9; ++i) Pon(i, Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien);
    Pon(9, 400, 300);
    int mensajes = 0;
    P().ventanas["Mensajes"] = [&](Ventana&) {
        ++mensajes;
        EXPECT_TRUE(Gbl.SoltandoPieza);
        const Pieza antes = Gbl.Piezas[9];
        Pic_Trabajo_MouseMove(BOTON_IZQUIERDO, 0, 350, 350);
        EXPECT_EQ(Gbl.Piezas[9], antes);
        Gbl.RespuestaMensaje = false;
    };
    Arrastra(9, Gbl.Piezas[9].XBien, Gbl.Piezas[9].YBien);
    EXPECT_EQ(mensajes, 2);
    EXPECT_FALSE(Gbl.SoltandoPieza);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
}

TEST_F(RatonMesa, BelowTheStripTheWholeWidthIsFree) {
    Rompecabezas();
    Pon(2, 400, 100);
    Arrastra(2, 690, 480);  // centre at 530, below 463
    EXPECT_EQ(Gbl.Piezas[2].X, 690);
    Arrastra(2, 790, 480);
    EXPECT_EQ(Gbl.Piezas[2].X, 750);  // centre at the table's edge
}

TEST_F(RatonMesa, PieceDroppedBeyondTheOtherEdgesComesBack) {
    Rompecabezas();
    Pon(2, 400, 200);
    Arrastra(2, -90, 330);
    EXPECT_EQ(Gbl.Piezas[2].X, -50);
    Arrastra(2, 330, -80);
    EXPECT_EQ(Gbl.Piezas[2].Y, -50);
    Arrastra(2, 330, 590);
    EXPECT_EQ(Gbl.Piezas[2].Y, 550);
}

TEST_F(RatonMesa, HintPanelPushesADroppedPieceUp) {
    Rompecabezas();
    Pon(2, 400, 200);
    Gbl.VentanaInformacion = true;
    Arrastra(2, 330, 520);
    EXPECT_EQ(Gbl.Piezas[2].Y, 486);  // centre at the panel's top, 536
    Arrastra(2, 422, 520);            // the panel is 423 wide
    EXPECT_EQ(Gbl.Piezas[2].Y, 486);
    Arrastra(2, 423, 520);
    EXPECT_EQ(Gbl.Piezas[2].Y, 520);
}

TEST_F(RatonMesa, InterlockingPieceIsKeptInViewByTheCentreOfItsBox) {
    Moviles(3, 300, 300, 1);  // cells of 99, overhang 17 all around
    ASSERT_EQ(Gbl.SalienteX, 17);
    for (i16 i = 1; i <= 9; ++i) Gbl.Piezas[i].Giro = 0;
    Pon(2, 400, 200);
    SubePieza(PosicionEnOrden(2));
    Arrastra(2, -80, 330);
    EXPECT_EQ(Gbl.Piezas[2].X, -50);  // 17 - 133 / 2 = -49.5, to the even
}

TEST_F(RatonMesa, DragToTheEdgeScrollsTheView) {
    Moviles(4, 640, 480);  // table 840 x 680 seen through 783 x 583
    for (i16 i = 1; i <= 16; ++i) Gbl.Piezas[i].Giro = 0;
    Pon(2, 300, 200);
    SubePieza(PosicionEnOrden(2));
    ColocaPiezas(1);
    Puntero.Mueve(380, 260);
    Puntero.Aprieta();
    ASSERT_TRUE(Gbl.ArrastrandoPieza);
    Puntero.Mueve(380, 583);  // not beyond 600 - 17
    EXPECT_EQ(BarraVer.Value, 0);
    Puntero.Mueve(380, 584);
    EXPECT_EQ(BarraVer.Value, 16);
    EXPECT_EQ(Pic_Trabajo.Top, -16);
    for (int i = 0; i < 9; ++i) Puntero.Mueve(380, 590);
    EXPECT_EQ(BarraVer.Value, 96);  // one short of the maximum the table itself ends
    Puntero.Mueve(790, 300);
    EXPECT_EQ(BarraHor.Value, 16);
    for (int i = 0; i < 9; ++i) Puntero.Mueve(790, 300);
    EXPECT_EQ(BarraHor.Value, 57);
    Puntero.Mueve(400, 0);
    EXPECT_EQ(BarraVer.Value, 80);
    for (int i = 0; i < 9; ++i) Puntero.Mueve(400, 0);
    EXPECT_EQ(BarraVer.Value, 0);
    Puntero.Mueve(0, 300);
    EXPECT_EQ(BarraHor.Value, 41);
    Puntero.Suelta();
}

TEST_F(RatonMesa, TableWithoutBarsDoesNotScrollWhateverTheLastOneDid) {
    Moviles(4, 640, 480);
    ASSERT_TRUE(BarraVer.Visible);
    ASSERT_GT(BarraVer.Max, 0);
    Rompecabezas();
    ASSERT_FALSE(BarraVer.Visible);
    Pon(2, 400, 200);
    Puntero.Mueve(450, 250);
    Puntero.Aprieta();
    for (const Punto p : {Punto{450, 595}, {795, 500}, {450, 0}, {0, 250}}) {
        Puntero.Mueve(p.x, p.y);
        EXPECT_EQ(BarraVer.Value, 0) << p.x << ", " << p.y;
        EXPECT_EQ(BarraHor.Value, 0) << p.x << ", " << p.y;
    }
    Puntero.Suelta();
}

TEST_F(RatonMesa, WithoutAPieceInHandTheEdgeDoesNotScroll) {
    Moviles(4, 640, 480);
    for (int i = 0; i < 3; ++i) Puntero.Mueve(380, 582);
    Pic_Trabajo_MouseMove(0, 0, 380, 590);
    EXPECT_EQ(BarraVer.Value, 0);
}

TEST_F(RatonMesa, ScrolledTableTakesPiecesWhereTheyAreSeen) {
    Moviles(4, 640, 480);
    for (i16 i = 1; i <= 16; ++i) Gbl.Piezas[i].Giro = 0;
    Pon(2, 660, 400);
    SubePieza(PosicionEnOrden(2));
    BarraVer.Pon(97);
    BarraHor.Pon(57);
    Puntero.Mueve(660 - 57 + 10, 400 - 97 + 110);
    EXPECT_EQ(Gbl.PiezaActual, 2);
}

// ---------------------------------------------------------------- Tangram drop
TEST_F(RatonMesa, TangramDropThatNeededAPushGetsNoAttraction) {
    Tangram(MODO_CREAR);
    Pon(1, 100, 100, 3);  // legs at the right and bottom
    Pon(6, 300, 300);
    Arrastra(6, 180, 180);  // on the big triangle
    EXPECT_GT(Gbl.TEmpujes, 0);
    const Pieza p = Gbl.Piezas[6];
    // The same drop with attraction off ends at the same place.
    Pon(6, 300, 300);
    Gbl.AtraccionPiezas = false;
    Arrastra(6, 180, 180);
    EXPECT_EQ(Gbl.Piezas[6], p);
}

TEST_F(RatonMesa, TangramDropNextToAPieceIsDrawnToIt) {
    Tangram(MODO_CREAR);
    Pon(6, 100, 100);  // square: 63 x 63
    Pon(4, 300, 300, 1);
    Arrastra(4, 167, 100);  // a gap of 4 pixels at the square's right side
    EXPECT_LT(Gbl.Piezas[4].X, 167);
    const i16 x = Gbl.Piezas[4].X;
    Pon(4, 300, 300, 1);
    Gbl.AtraccionPiezas = false;
    Arrastra(4, 167, 100);
    EXPECT_EQ(Gbl.Piezas[4].X, 167);
    EXPECT_NE(Gbl.Piezas[4].X, x);
}

TEST_F(RatonMesa, TangramModelPieceSnapsToItsTwinsPlace) {
    Tangram(MODO_RESOLVER);
    Arrastra(1, 232, 103);  // on the place of piece 2
    EXPECT_TRUE(PiezaEnSuSitio(1));
    EXPECT_EQ(Gbl.Piezas[1].X, 230);
    EXPECT_EQ(Gbl.PiezasColocadas, 1);
    EXPECT_EQ(Sonidos(), (std::vector<int>{50, 51}));
}

TEST_F(RatonMesa, DesignModeHasNoPlaceTest) {
    Tangram(MODO_CREAR);
    Gbl.AtraccionPiezas = false;
    Arrastra(4, 3, 2);  // near 0, 0, where all the unused places are
    EXPECT_EQ(Gbl.Piezas[4].X, 3);
    EXPECT_EQ(Gbl.Piezas[4].Y, 2);
}

// ---------------------------------------------------------------- sliding moves
TEST_F(RatonMesa, OnePressMovesTheSlidingPieceAndTheReleaseLogsIt) {
    Deslizantes(3);
    TableroResuelto();
    const i16 hx = Gbl.HuecoX;
    const i16 hy = Gbl.HuecoY;
    const i16 x6 = Gbl.Piezas[6].X;
    const i16 y6 = Gbl.Piezas[6].Y;
    CambiaCrono(2);
    const Punto p = PuntoDe(6);
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta();
    EXPECT_EQ(Gbl.Piezas[6].X, hx);
    EXPECT_EQ(Gbl.Piezas[6].Y, hy);
    EXPECT_EQ(Gbl.HuecoX, x6);
    EXPECT_EQ(Gbl.HuecoY, y6);
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    Puntero.Suelta();
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Movimientos[1], (Movimiento{6, x6, y6, 0, 0, hx, hy, 0, 0}));
    EXPECT_EQ(Sonidos(), std::vector<int>{53});
    EXPECT_EQ(Gbl.PiezasColocadas, 7);
    EXPECT_EQ(Gbl.OrdenPiezas[1], 6);
    EXPECT_EQ(Cursor(), "0");  // the pointer stands on the hole now
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, Pic_Imagen.Dibujo().Pixeles);
}

TEST_F(RatonMesa, PieceDiagonalToTheHoleIsRefusedWithoutMoveClockOrEntry) {
    Deslizantes(3);
    TableroResuelto();
    const Pieza antes = Gbl.Piezas[5];
    const auto pila = Gbl.OrdenPiezas[1];
    const Punto p = PuntoDe(5);
    Gbl.CronoEnMarcha = false;
    Puntero.Mueve(p.x, p.y);
    PonPuntero(Pic_Trabajo, PUNTERO_RELOJ);  // whatever the pointer has become
    Puntero.Aprieta();
    EXPECT_EQ(Gbl.Piezas[5], antes);
    EXPECT_EQ(Gbl.OrdenPiezas[1], pila);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_FALSE(Gbl.CronoEnMarcha);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Pic_Trabajo.MousePointer, PUNTERO_PROPIO);
    EXPECT_EQ(Pic_Trabajo.MouseIcon, "Prohibido");
    EXPECT_EQ(P().sonidos, (std::vector<std::pair<i16, bool>>{{11, true}}));
    Puntero.Suelta();
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    Puntero.Pulsa(p.x, p.y, BOTON_DERECHO);
    EXPECT_EQ(P().sonidos.size(), 1U) << "that button plays nothing";
}

TEST_F(RatonMesa, ManualOrderingSendsAnyPieceAndFinishesNothing) {
    Deslizantes(3);
    TableroResuelto();
    Gbl.OrdenManual = true;
    const Punto casa = PuntoDe(1);
    Puntero.Pulsa(casa.x, casa.y);  // to the far corner
    EXPECT_EQ(Gbl.HuecoX, Gbl.Piezas[1].XBien);
    const Punto p = PuntoDe(1);
    Puntero.Pulsa(p.x, p.y);  // and back: the board is whole again
    EXPECT_EQ(Gbl.PiezasColocadas, 8);
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_FALSE(Gbl.PuzzleTerminado);
}

TEST_F(RatonMesa, PressBesideTheBoardInPlayDoesNothing) {
    Deslizantes(3);
    CambiaCrono(2);
    Puntero.Mueve(5, 5);
    ASSERT_EQ(Gbl.PiezaActual, 0);
    Puntero.Aprieta();
    Puntero.Suelta();
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_TRUE(Sonidos().empty());
    EXPECT_FALSE(Gbl.OrdenManual);
    EXPECT_FALSE(Gbl.CronoEnMarcha);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
}

TEST_F(RatonMesa, PressBesideTheBoardInManualOrderingActsAsItsButton) {
    Deslizantes(3);
    TableroResuelto();
    Gbl.OrdenManual = true;
    Puntero.Pulsa(20, 590);
    EXPECT_FALSE(Gbl.OrdenManual);
    EXPECT_EQ(Sonidos(), std::vector<int>{9});
}

TEST_F(RatonMesa, DragDoesNotMoveASlidingPiece) {
    Deslizantes(3);
    TableroResuelto();
    const Punto p = PuntoDe(6);
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta();
    const Pieza antes = Gbl.Piezas[6];
    Puntero.Mueve(p.x - 100, p.y - 40);
    EXPECT_EQ(Gbl.Piezas[6], antes);
    Puntero.Suelta();
    EXPECT_EQ(Gbl.Piezas[6], antes);
}

// ---------------------------------------------------------------- keys
TEST_F(RatonMesa, EscapeAndQMinimiseInAnyGame) {
    for (const i16 tecla : {i16{27}, i16{81}, i16{113}}) {
        P().minimizado = false;
        Mesa.KeyPress(tecla);
        EXPECT_TRUE(P().minimizado) << tecla;
    }
    P().minimizado = false;
    Mesa.KeyPress('x');
    EXPECT_FALSE(P().minimizado);
}

TEST_F(RatonMesa, VTurnsTheParallelogramOver) {
    Tangram(MODO_CREAR);
    const i16 despues[8] = {0, 3, 2, 1, 4, 3, 6, 1};
    for (i16 giro = 0; giro < 8; ++giro) {
        Pon(7, 100, 100, giro);
        Gbl.Piezas[7].Volteo = giro % 2;
        Gbl.PiezaActual = 0;
        Gbl.NumMovimientos = 0;
        P().sonidos.clear();
        Mesa.KeyPress(giro < 4 ? 'V' : 'v');
        const Pieza& p = Gbl.Piezas[7];
        EXPECT_EQ(p.Volteo, 1 - giro % 2);
        EXPECT_EQ(p.Giro, despues[giro]) << giro;
        EXPECT_EQ(p.X, 100);
        EXPECT_EQ(Sonidos(), std::vector<int>{52});
        ASSERT_EQ(Gbl.NumMovimientos, 1);
        EXPECT_EQ(Gbl.Movimientos[1], (Movimiento{7, 100, 100, giro, static_cast<i16>(giro % 2),
                                                  100, 100, p.Giro, p.Volteo}));
        EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, Pic_Imagen.Dibujo().Pixeles);
    }
}

TEST_F(RatonMesa, VOnTheParallelogramsPlaceSoundsLikeAPlacing) {
    Tangram(MODO_RESOLVER);
    Pon(7, Gbl.Piezas[7].XBien, Gbl.Piezas[7].YBien);
    Gbl.Piezas[7].Volteo = 1;
    ColocaPiezas(1);
    Mesa.KeyPress('v');
    EXPECT_TRUE(PiezaEnSuSitio(7));
    EXPECT_EQ(Sonidos(), std::vector<int>{51});
    EXPECT_EQ(Gbl.PiezasColocadas, 1);
}

TEST_F(RatonMesa, VIsOfTheTangramOnly) {
    Rompecabezas();
    const Pieza antes = Gbl.Piezas[7];
    Mesa.KeyPress('v');
    EXPECT_EQ(Gbl.Piezas[7], antes);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
}

TEST_F(RatonMesa, VDoesNothingWhileTheRecorderIsOn) {
    Tangram(MODO_CREAR);
    Gbl.GrabadoraEncendida = true;
    const Pieza antes = Gbl.Piezas[7];
    Mesa.KeyPress('v');
    EXPECT_EQ(Gbl.Piezas[7], antes);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
}

TEST_F(RatonMesa, ParallelogramTurnedOverInHandStaysInHandAndLeavesNoTrace) {
    Tangram(MODO_CREAR);
    Gbl.AtraccionPiezas = false;
    Pon(7, 100, 300);
    const Punto p = PuntoDe(7);
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta();
    Puntero.Mueve(p.x + 60, p.y + 30);
    Mesa.KeyPress('v');
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    Puntero.Mueve(p.x + 100, p.y + 80);
    Puntero.Suelta();
    EXPECT_EQ(Gbl.Piezas[7].X, 200);
    EXPECT_EQ(Gbl.Piezas[7].Y, 380);
    EXPECT_EQ(Gbl.Piezas[7].Volteo, 1);
    ASSERT_EQ(Gbl.NumMovimientos, 2);  // the two entries follow on each other
    EXPECT_EQ(Gbl.Movimientos[1], (Movimiento{7, 100, 300, 0, 0, 160, 330, 0, 1}));
    EXPECT_EQ(Gbl.Movimientos[2], (Movimiento{7, 160, 330, 0, 1, 200, 380, 0, 1}));
    const auto visto = Pic_Trabajo.Dibujo().Pixeles;
    ColocaPiezas(1);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, visto);
}

TEST_F(RatonMesa, VOverAnotherPieceTakesNoneInHand) {
    Tangram(MODO_CREAR);
    Gbl.AtraccionPiezas = false;
    Pon(6, 100, 300);
    const Punto p = PuntoDe(6);
    Puntero.Mueve(p.x, p.y);
    ASSERT_EQ(Gbl.PiezaActual, 6);
    Mesa.KeyPress('v');
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    const Pieza antes = Gbl.Piezas[6];
    Puntero.Mueve(p.x + 60, p.y + 10);
    EXPECT_EQ(Gbl.Piezas[6], antes);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Movimientos[1].Pieza, 7);
}

TEST_F(RatonMesa, VWhileAnotherPieceIsInHandLeavesThatOneInHand) {
    Tangram(MODO_CREAR);
    Gbl.AtraccionPiezas = false;
    Pon(6, 100, 300);
    const Punto p = PuntoDe(6);
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta();
    Puntero.Mueve(p.x + 60, p.y);
    Mesa.KeyPress('v');
    Puntero.Mueve(p.x + 100, p.y + 80);
    Puntero.Suelta();
    EXPECT_EQ(Gbl.Piezas[6].X, 200);
    ASSERT_EQ(Gbl.NumMovimientos, 2);
    const Pieza& p7 = Gbl.Piezas[7];
    EXPECT_EQ(Gbl.Movimientos[1], (Movimiento{7, p7.X, p7.Y, 0, 0, p7.X, p7.Y, 0, 1}));
    EXPECT_EQ(Gbl.Movimientos[2], (Movimiento{6, 100, 300, 0, 0, 200, 380, 0, 0}));
    const auto visto = Pic_Trabajo.Dibujo().Pixeles;
    ColocaPiezas(1);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, visto);
}

}  // namespace tessario
