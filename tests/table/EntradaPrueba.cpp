// SPDX-License-Identifier: GPL-3.0-or-later
// Input that comes in while a piece is turned or held: what is kept, in which order it is handled,
// and the piece that turns in the player's hand.
#include "apoyo/MesaMontada.h"
#include "core/PuzzGbl.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "rules/PuzzBas.h"
#include "table/Opciones.h"
#include "table/Ordenes.h"

namespace tessario {

namespace {

Ventana Archivo;

constexpr i16 AMBOS = BOTON_IZQUIERDO | BOTON_DERECHO;
constexpr i16 ESC = 27;

}  // namespace

class EntradaMesa : public MesaMontada {
protected:
    void SetUp() override {
        MesaMontada::SetUp();
        Archivo = Ventana{};
        Archivo.Nombre = "Historic";
        VentanasOrdenes = {nullptr, nullptr, &Archivo};
    }
    void TearDown() override {
        VentanasOrdenes = {};
        MesaMontada::TearDown();
    }
    // The jigsaw with all pieces at home, so that the table beside it is empty.
    void Puesto(i32 ancho, i32 alto) {
        Moviles(3, ancho, alto);
        for (i16 i = 1; i <= 9; ++i) Pon(i, Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien);
    }
    void EnElPaso(int n, std::function<void()> hace) {
        P().alDejarPasar = [this, n, hace] {
            if (++pasos == n) hace();
        };
    }
    // A point of the window as the table has it.
    static std::pair<float, float> EnMesa(Punto p) {
        const Punto o = PunteroPrueba::Origen(Pic_Trabajo);
        return {static_cast<float>(p.x - o.x), static_cast<float>(p.y - o.y)};
    }
    // The other button, while the pointer holds the table with one.
    void AprietaDerecho(bool sujeto = false) {
        const auto [x, y] = EnMesa(Puntero.Lugar());
        if (sujeto) P().botones = AMBOS;
        Pic_Trabajo.MouseDown(BOTON_DERECHO, 0, x, y);
    }
    void SueltaDerecho() {
        const auto [x, y] = EnMesa(Puntero.Lugar());
        P().botones = BOTON_IZQUIERDO;
        Pic_Trabajo.MouseUp(BOTON_DERECHO, 0, x, y);
        Pic_Trabajo.Click();
    }
    bool Rueda(Punto p, i16 pasos_) {
        const auto [x, y] = EnMesa(p);
        return Pic_Trabajo.MouseWheel(pasos_, x, y);
    }
    // Takes the piece by its middle and carries it on by (dx, dy).
    void CogeYLleva(i16 piece, i32 dx, i32 dy) {
        const Punto p = PuntoDe(piece);
        Puntero.Mueve(p.x, p.y);
        P().botones = BOTON_IZQUIERDO;
        Puntero.Aprieta();
        Puntero.Mueve(p.x + dx, p.y + dy);
    }
    std::vector<Movimiento> Diario() {
        return {Gbl.Movimientos.begin() + 1, Gbl.Movimientos.begin() + 1 + Gbl.NumMovimientos};
    }
    int pasos = 0;
};

// ---------------------------------------------------------------- what waits behind a turn
TEST_F(EntradaMesa, KeyDuringATurnComesAfterIt) {
    Tangram(MODO_CREAR);
    const Punto p = PuntoDe(3);
    P().botones = BOTON_DERECHO;
    EnElPaso(2, [this] {
        Mesa.KeyPress('v');
        EXPECT_EQ(Gbl.Piezas[7].Volteo, 0);
        P().botones = 0;
        Puntero.Suelta();
    });
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta(BOTON_DERECHO);
    EXPECT_EQ(Gbl.Piezas[3].Giro, 2);
    EXPECT_EQ(Gbl.Piezas[7].Volteo, 1);
    ASSERT_EQ(Gbl.NumMovimientos, 2);
    EXPECT_EQ(Gbl.Movimientos[1].Pieza, 3);
    EXPECT_EQ(Gbl.Movimientos[2].Pieza, 7);
}

TEST_F(EntradaMesa, ParallelogramIsNotTurnedOverInTheMiddleOfAnArrangement) {
    Tangram(MODO_CREAR);
    P().alDejarPasar = [] { Mesa.KeyPress('V'); };
    PulsaOrden(11);
    EXPECT_EQ(Gbl.Piezas[7].Volteo, 0);
}

TEST_F(EntradaMesa, SecondRightClickTurnsThePieceAgainAndOpensNoPanel) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    const Punto p = PuntoDe(5);
    P().botones = BOTON_DERECHO;
    EnElPaso(1, [&] {
        Puntero.Suelta();
        Puntero.Aprieta(BOTON_DERECHO);
        P().botones = 0;
        Puntero.Mueve(p.x, p.y);
        Puntero.Suelta();
    });
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta(BOTON_DERECHO);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 2);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
    EXPECT_TRUE(Gbl.EntradaAplazada.empty());
}

TEST_F(EntradaMesa, ClickOfAPressThatTurnedAPieceOpensNoPanelWhereverThePieceIsNow) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    const Punto p = PuntoDe(5);
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta(BOTON_DERECHO);  // one step: no button reads held
    Gbl.PiezaActual = 0;             // and it has turned away from the pointer
    Pic_Trabajo.Click();
    EXPECT_FALSE(Pic_SelOpciones.Visible);
    // The next press begins anew.
    Puntero.Suelta();
    Puntero.Pulsa(350, 380, BOTON_DERECHO);
    EXPECT_TRUE(Pic_SelOpciones.Visible);
}

TEST_F(EntradaMesa, DragAndCommandBehindATurnComeInTheirOrder) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    Pon(6, 400, 400, 0);
    const Punto p = PuntoDe(5), q = PuntoDe(6);
    Punto alAbrir;
    P().ventanas["Historic"] = [&](Ventana&) { alAbrir = {Gbl.Piezas[6].X, Gbl.Piezas[6].Y}; };
    P().botones = BOTON_DERECHO;
    EnElPaso(1, [&] {
        Puntero.Suelta();
        P().botones = 0;
        Puntero.Mueve(q.x, q.y);
        Puntero.Aprieta();
        Puntero.Mueve(q.x + 30, q.y + 20);
        Puntero.Suelta();
        PulsaOrden(5);
    });
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta(BOTON_DERECHO);
    EXPECT_EQ(alAbrir, (Punto{430, 420}));
    EXPECT_EQ(Gbl.Piezas[5].Giro, 1);
}

TEST_F(EntradaMesa, PressOfTheOtherButtonDuringATurnTakesThePieceAfterIt) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    const Punto p = PuntoDe(5);
    const auto [x, y] = EnMesa(p);
    P().botones = BOTON_DERECHO;
    EnElPaso(2, [&, x = x, y = y] {
        P().botones = AMBOS;
        Pic_Trabajo.MouseDown(BOTON_IZQUIERDO, 0, x, y);
        Puntero.Suelta();
        P().botones = BOTON_IZQUIERDO;
        Pic_Trabajo.MouseMove(BOTON_IZQUIERDO, 0, x + 15, y + 25);
    });
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta(BOTON_DERECHO);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 2);
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.Piezas[5].X, 415);
    EXPECT_EQ(Gbl.Piezas[5].Y, 225);
}

// ---------------------------------------------------------------- the recorder's switch
TEST_F(EntradaMesa, RecorderSwitchEndsTheSolverAndIsThrownAfterIt) {
    Puesto(300, 300);
    for (i16 i = 1; i <= 9; ++i) Pon(i, 400, 200);
    EnElPaso(2, [this] {
        const Punto o = PunteroPrueba::Origen(Pic_Grabadora);
        Puntero.Pulsa(o.x + 20, o.y + 12);
        EXPECT_FALSE(Gbl.GrabadoraEncendida);
    });
    PulsaOrden(12);
    EXPECT_TRUE(Gbl.GrabadoraEncendida);
    EXPECT_LT(Gbl.PiezasColocadas, 9);
    EXPECT_EQ(Gbl.FinMovimientos, Gbl.NumMovimientos) << "every move of the run is in the log";
}

TEST_F(EntradaMesa, RecorderSwitchDuringAnArrangementATurnAndADrag) {
    const auto tira = [this] {
        const Punto o = PunteroPrueba::Origen(Pic_Grabadora);
        return Punto{o.x + 20, o.y + 12};
    };
    Puesto(300, 300);
    for (i16 i = 1; i <= 9; ++i) Pon(i, 400, 200);
    EnElPaso(2, [&] { Puntero.Pulsa(tira().x, tira().y); });
    PulsaOrden(11);
    EXPECT_TRUE(Gbl.GrabadoraEncendida);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
    Puntero.Pulsa(tira().x, tira().y);
    ASSERT_FALSE(Gbl.GrabadoraEncendida);

    P().alDejarPasar = {};
    pasos = 0;
    Pon(5, 400, 200, 0);
    Puntero.Mueve(PuntoDe(5).x, PuntoDe(5).y);
    P().botones = BOTON_DERECHO;
    EnElPaso(3, [] { Pic_Grabadora.MouseDown(BOTON_IZQUIERDO, 0, 20, 12); });
    Puntero.Aprieta(BOTON_DERECHO);
    EXPECT_TRUE(Gbl.GrabadoraEncendida);
    EXPECT_EQ(Gbl.NumMovimientos, 3);
    EXPECT_EQ(Gbl.Movimientos[3].GiroDespues, 3);
    Puntero.Suelta();
    P().botones = 0;
    Puntero.Pulsa(tira().x, tira().y);
    ASSERT_FALSE(Gbl.GrabadoraEncendida);

    Pon(6, 400, 400, 0);
    CogeYLleva(6, 20, 10);
    Pic_Grabadora.MouseMove(0, 0, 20, 12);
    Pic_Grabadora.MouseDown(BOTON_IZQUIERDO, 0, 20, 12);  // with the space bar
    EXPECT_TRUE(Gbl.GrabadoraEncendida);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.NumMovimientos, 4);
    EXPECT_EQ(Gbl.FinMovimientos, 4);
}

TEST_F(EntradaMesa, RecorderSwitchDuringAShuffleFindsAnEmptyLog) {
    Deslizantes(3);
    EnElPaso(2, [] { Pic_Grabadora.MouseDown(BOTON_IZQUIERDO, 0, 20, 12); });
    PulsaOrden(1);
    EXPECT_FALSE(Gbl.GrabadoraEncendida) << "there is nothing to be walked back";
    EXPECT_FALSE(Gbl.Barajando);
    EXPECT_TRUE(Gbl.EntradaAplazada.empty());
}

// ---------------------------------------------------------------- minimising
TEST_F(EntradaMesa, EscDuringADragDropsThePieceBeforeTheWindowGoes) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    CogeYLleva(5, 30, 20);
    Mesa.KeyPress(ESC);
    EXPECT_TRUE(P().minimizado);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Movimientos[1], (Movimiento{5, 400, 200, 0, 0, 430, 220, 0, 0}));
}

TEST_F(EntradaMesa, EscClosesTheOptionsPanelFirst) {
    Puesto(300, 300);
    Puntero.Pulsa(350, 380, BOTON_DERECHO);
    ASSERT_TRUE(Pic_SelOpciones.Visible);
    Mesa.KeyPress(ESC);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
    EXPECT_FALSE(P().minimizado);
    Mesa.KeyPress(ESC);
    EXPECT_TRUE(P().minimizado);
}

// ---------------------------------------------------------------- turning in hand
TEST_F(EntradaMesa, PieceInHandTurnsAndTheDragGoesOn) {
    Puesto(300, 240);
    Pon(5, 400, 200, 0);
    CogeYLleva(5, 60, 40);
    EnElPaso(2, [this] { SueltaDerecho(); });
    AprietaDerecho(true);
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.PiezaActual, 5);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 2);
    const Punto p = Puntero.Lugar();
    const i16 x = Gbl.Piezas[5].X, y = Gbl.Piezas[5].Y;
    Puntero.Mueve(p.x - 25, p.y + 15);
    EXPECT_EQ(Gbl.Piezas[5].X, x - 25);
    EXPECT_EQ(Gbl.Piezas[5].Y, y + 15);
    P().botones = 0;
    Puntero.Suelta();
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Diario(), (std::vector<Movimiento>{{5, 400, 200, 0, 0, 460, 240, 0, 0},
                                                 {5, 460, 240, 0, 0, 460, 240, 2, 0},
                                                 {5, 460, 240, 2, 0, 435, 255, 2, 0}}));
    EXPECT_FALSE(Pic_SelOpciones.Visible);
}

TEST_F(EntradaMesa, RecorderWalksATurnInHandBackExactly) {
    Puesto(300, 240);
    Pon(5, 400, 200, 1);
    const Pieza antes = Gbl.Piezas[5];
    CogeYLleva(5, 33, 21);
    AprietaDerecho();
    SueltaDerecho();
    const Punto p = Puntero.Lugar();
    Puntero.Mueve(p.x + 18, p.y + 44);
    P().botones = 0;
    Puntero.Suelta();
    const Pieza despues = Gbl.Piezas[5];
    const i16 n = Gbl.NumMovimientos;
    ASSERT_EQ(n, 3);
    // Turned by a quarter the box of 100 x 80 stands elsewhere; each entry begins where the one
    // before it ends.
    EXPECT_NE(Gbl.Movimientos[2].XDespues, Gbl.Movimientos[2].XAntes);
    EXPECT_NE(Gbl.Movimientos[2].YDespues, Gbl.Movimientos[2].YAntes);
    for (i32 i = 2; i <= n; ++i) {
        EXPECT_EQ(Gbl.Movimientos[i].XAntes, Gbl.Movimientos[i - 1].XDespues) << i;
        EXPECT_EQ(Gbl.Movimientos[i].YAntes, Gbl.Movimientos[i - 1].YDespues) << i;
        EXPECT_EQ(Gbl.Movimientos[i].GiroAntes, Gbl.Movimientos[i - 1].GiroDespues) << i;
    }
    for (int i = 0; i < n; ++i) ReproduceMovimiento(1);
    EXPECT_EQ(Gbl.Piezas[5], antes);
    for (int i = 0; i < n; ++i) ReproduceMovimiento(0);
    EXPECT_EQ(Gbl.Piezas[5], despues);
    const Mapa vista = Pic_Imagen.Dibujo();
    ColocaPiezas(1);
    EXPECT_EQ(Pic_Imagen.Dibujo().Pixeles, vista.Pixeles);
}

TEST_F(EntradaMesa, TurnInHandWithoutAWayBeforeItIsOneMove) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    CogeYLleva(5, 0, 0);
    AprietaDerecho();
    EXPECT_EQ(Diario(), (std::vector<Movimiento>{{5, 400, 200, 0, 0, 400, 200, 1, 0}}));
}

TEST_F(EntradaMesa, LastPieceTurnedInHandEndsNoGameUntilItIsDropped) {
    Puesto(300, 300);
    Pon(9, 400, 200, 3);
    MuestraColocadas();
    ASSERT_EQ(Gbl.PiezasColocadas, 8);
    const i32 dx = Gbl.Piezas[9].XBien - 400, dy = Gbl.Piezas[9].YBien - 200;
    CogeYLleva(9, dx, dy);
    AprietaDerecho();  // upright, and exactly on its place
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    SueltaDerecho();
    EXPECT_FALSE(Gbl.PuzzleTerminado) << "that button does not hold the piece";
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    P().botones = 0;
    Puntero.Suelta();
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_EQ(Gbl.PiezasColocadas, 9);
}

TEST_F(EntradaMesa, LeftReleaseDuringTheTurnDropsThePieceAfterIt) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    CogeYLleva(5, 60, 40);
    EnElPaso(2, [this] {
        P().botones = BOTON_DERECHO;
        Puntero.Suelta();
        EXPECT_EQ(Gbl.Piezas[5].Giro, 2);
    });
    P().eventos = {[] {}, [] {}, [this] { P().botones = 0; }};
    AprietaDerecho(true);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 3);
    EXPECT_EQ(Diario().back(), (Movimiento{5, 460, 240, 3, 0, 460, 240, 3, 0}));
}

TEST_F(EntradaMesa, LeftButtonLostDuringTheTurnLeavesThePieceWhereItTurned) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    CogeYLleva(5, 60, 40);
    EnElPaso(1, [this] { P().botones = 0; });
    AprietaDerecho(true);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
    EXPECT_EQ(Gbl.Piezas[5].X, 460);
}

TEST_F(EntradaMesa, MiddleButtonDoesNothingInADrag) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    CogeYLleva(5, 60, 40);
    const auto [x, y] = EnMesa(Puntero.Lugar());
    Pic_Trabajo.MouseDown(BOTON_CENTRAL, 0, x, y);
    Pic_Trabajo.MouseUp(BOTON_CENTRAL, 0, x, y);
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 0);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    P().botones = 0;
    Puntero.Suelta();
    EXPECT_EQ(Diario(), (std::vector<Movimiento>{{5, 400, 200, 0, 0, 460, 240, 0, 0}}));
}

TEST_F(EntradaMesa, WithRotationForbiddenTheRightButtonDoesNothingInADrag) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    Gbl.PermitirGiro = false;
    CogeYLleva(5, 60, 40);
    AprietaDerecho();
    SueltaDerecho();
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_FALSE(Rueda(Puntero.Lugar(), 1) && Gbl.Piezas[5].Giro != 0);
    P().botones = 0;
    Puntero.Suelta();
    EXPECT_EQ(Diario(), (std::vector<Movimiento>{{5, 400, 200, 0, 0, 460, 240, 0, 0}}));
    EXPECT_FALSE(Pic_SelOpciones.Visible);
}

// ---------------------------------------------------------------- wheel
TEST_F(EntradaMesa, WheelTurnsThePieceUnderThePointerOneStepForEachNotch) {
    Puesto(300, 240);
    Pon(5, 400, 200, 0);
    const Punto p = PuntoDe(5);
    EXPECT_TRUE(Rueda(p, 1));
    EXPECT_EQ(Gbl.Piezas[5].Giro, 1);
    EXPECT_TRUE(Rueda(p, -2));
    EXPECT_EQ(Gbl.Piezas[5].Giro, 3);
    EXPECT_EQ(Gbl.NumMovimientos, 3);
    EXPECT_FALSE(Rueda({350, 380}, 1)) << "the empty table scrolls";
    EXPECT_FALSE(Gbl.GirandoPieza || Gbl.GiroEnCurso);
    EXPECT_EQ(P().dormido, 0) << "nothing waits for a notch";
}

TEST_F(EntradaMesa, WheelThatTurnsAPieceFromUnderThePointerLooksAgain) {
    Puesto(300, 180);
    Pon(5, 400, 200, 0);  // 100 x 60, and 60 x 100 turned: its left part is gone then
    const Punto p{405, 230};
    Puntero.Mueve(p.x, p.y);
    ASSERT_EQ(Gbl.PiezaActual, 5);
    EXPECT_TRUE(Rueda(p, 1));
    EXPECT_EQ(Gbl.Piezas[5].X, 420);
    EXPECT_EQ(Gbl.PiezaActual, 0);
    EXPECT_EQ(Pic_Trabajo.MousePointer, PUNTERO_NORMAL);
}

TEST_F(EntradaMesa, WheelTurnsThePieceInHandToo) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    CogeYLleva(5, 60, 40);
    EXPECT_TRUE(Rueda(Puntero.Lugar(), 1));
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    Puntero.Mueve(Puntero.Lugar().x + 5, Puntero.Lugar().y);
    P().botones = 0;
    Puntero.Suelta();
    EXPECT_EQ(Diario(), (std::vector<Movimiento>{{5, 400, 200, 0, 0, 460, 240, 0, 0},
                                                 {5, 460, 240, 0, 0, 460, 240, 1, 0},
                                                 {5, 460, 240, 1, 0, 465, 240, 1, 0}}));
}

TEST_F(EntradaMesa, WheelTurnsNothingWhereNothingMayTurn) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    const Punto p = PuntoDe(5);
    Gbl.PermitirGiro = false;
    EXPECT_FALSE(Rueda(p, 1));
    Gbl.PermitirGiro = true;
    Gbl.GrabadoraEncendida = true;
    EXPECT_FALSE(Rueda(p, 1));
    Gbl.GrabadoraEncendida = false;
    Gbl.PuzzleTerminado = true;
    EXPECT_FALSE(Rueda(p, 1));
    Gbl.PuzzleTerminado = false;
    EXPECT_EQ(Gbl.Piezas[5].Giro, 0);
    Deslizantes(3);
    EXPECT_FALSE(Rueda(PuntoDe(3), 1));
    EXPECT_EQ(Gbl.NumMovimientos, 0);
}

TEST_F(EntradaMesa, WheelEndsTheColouredDisplayOnlyOverAPiece) {
    Puesto(300, 300);
    Pon(5, 400, 200, 0);
    const Punto p = PuntoDe(5);
    PulsaOrden(10);
    EXPECT_FALSE(Rueda({350, 380}, 1));
    EXPECT_TRUE(Gbl.MostrandoColocadas);
    EXPECT_TRUE(Rueda(p, 1));
    EXPECT_FALSE(Gbl.MostrandoColocadas);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 1);
}

// ---------------------------------------------------------------- keyboard
TEST_F(EntradaMesa, MenuKeyOpensTheOptionsPanelWithTheKeyboardOnIt) {
    Puesto(300, 300);
    Mesa.KeyDown(93, 0);
    EXPECT_TRUE(Pic_SelOpciones.Visible);
    EXPECT_EQ(P().foco, &Pic_SelOpciones);
    EXPECT_EQ(Gbl.OpcionResaltada, 1);
    EXPECT_EQ(ZonasOpciones().size(), 3U);
    // The middle of each row is that row.
    for (std::size_t i = 0; i < 3; ++i) {
        const Rect r = ZonasOpciones()[i];
        Pic_SelOpciones.MouseMove(0, 0, 20, static_cast<float>((r.Arr + r.Aba - 1) / 2));
        EXPECT_EQ(Gbl.OpcionResaltada, static_cast<i16>(i + 1));
    }
    Pic_SelOpciones.Visible = false;
    Mesa.KeyDown(121, 0);
    EXPECT_FALSE(Pic_SelOpciones.Visible) << "F10 alone is another key";
    Mesa.KeyDown(121, 1);
    EXPECT_TRUE(Pic_SelOpciones.Visible);
    Pic_SelOpciones.Visible = false;
    Gbl.GrabadoraEncendida = true;
    Mesa.KeyDown(93, 0);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
}

TEST_F(EntradaMesa, TabGoesByThePlaceOnTheStrip) {
    Puesto(300, 300);
    Punto previo{-1, -1};
    int botones = 0;
    for (const Control* c : Mesa.OrdenTab) {
        EXPECT_TRUE(c->TabStop) << c->Nombre;
        if (c->Contenedor != &Pic_Botonera) continue;
        ++botones;
        EXPECT_TRUE(c->Top > previo.y || (c->Top == previo.y && c->Left > previo.x)) << c->Nombre;
        previo = {c->Left, c->Top};
    }
    EXPECT_EQ(botones, 14) << "twelve commands, the clock, the recorder";
}

}  // namespace tessario
