// SPDX-License-Identifier: GPL-3.0-or-later
#include <set>

#include "apoyo/MesaMontada.h"
#include "panel/Barajado.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "rules/Despacho.h"
#include "rules/PuzzBas.h"
#include "sliding/Tablero.h"
#include "table/Opciones.h"
#include "table/Ordenes.h"
#include "table/Tareas.h"

namespace tessario {

namespace {

Ventana Cifras, Archivo;

std::vector<Pieza> Mesa_() {
    return {Gbl.Piezas.begin(), Gbl.Piezas.end()};
}

}  // namespace

class Tareas : public MesaMontada {
protected:
    void SetUp() override {
        MesaMontada::SetUp();
        Cifras = Ventana{};
        Cifras.Nombre = "Estadis";
        Archivo = Ventana{};
        Archivo.Nombre = "Historic";
        VentanasOrdenes = {nullptr, &Cifras, &Archivo};
        for (Ventana* v : {&Cifras, &Archivo})
            P().ventanas[v->Nombre] = [this](Ventana& w) {
                abiertas.push_back(w.Nombre);
                dentro = dentro || Gbl.TareaAutomatica || Gbl.OrdenandoPiezas || Gbl.GirandoPieza ||
                         Gbl.AutoAtras || DentroDeTarea();
            };
    }
    void TearDown() override {
        VentanasOrdenes = {};
        MesaMontada::TearDown();
    }
    // Does this once, while events are let through for the n-th time.
    void EnElPaso(int n, std::function<void()> hace) {
        P().alDejarPasar = [this, n, hace] {
            if (++pasos == n) hace();
        };
    }
    // All nine pieces on one heap, none in its place.
    void Monton() {
        Moviles(3, 300, 300);
        for (i16 i = 1; i <= 9; ++i) Pon(i, 400, 200);
    }
    std::vector<std::string> abiertas;  // windows that commands have opened
    bool dentro = false;                // one of them opened in the middle of other work
    int pasos = 0;
};

TEST_F(Tareas, CommandDuringTheSolverEndsItAndComesAfterIt) {
    Monton();
    EnElPaso(2, [this] { PulsaOrden(5); });
    PulsaOrden(12);
    EXPECT_EQ(abiertas, (std::vector<std::string>{"Historic"}));
    EXPECT_FALSE(dentro);
    EXPECT_FALSE(Gbl.ResolviendoPuzzle);
    EXPECT_GT(Gbl.PiezasColocadas, 0);
    EXPECT_LT(Gbl.PiezasColocadas, 9);
}

TEST_F(Tareas, ClockIsAsItWasAfterACommandInsideAnother) {
    Monton();
    CambiaCrono(1);
    EnElPaso(2, [this] { PulsaOrden(6); });
    PulsaOrden(12);
    EXPECT_EQ(P().ayudas.size(), 1U);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
}

TEST_F(Tareas, CommandsPressedDuringWorkComeInTheOrderOfTheirPressesAndOnceEach) {
    Monton();
    EnElPaso(1, [this] {
        PulsaOrden(5);
        PulsaOrden(4);
        PulsaOrden(5);
    });
    PulsaOrden(11);
    EXPECT_EQ(abiertas, (std::vector<std::string>{"Historic", "Estadis"}));
    EXPECT_FALSE(dentro);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
}

TEST_F(Tareas, SolverPressedDuringTheArrangementFollowsIt) {
    Monton();
    EnElPaso(1, [this] { PulsaOrden(12); });
    PulsaOrden(11);
    EXPECT_EQ(Gbl.PiezasColocadas, 9);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_FALSE(Gbl.OrdenandoPiezas);
}

TEST_F(Tareas, WhatTheFinishedRunHasForbiddenIsNotDone) {
    Monton();
    // The last piece is laid, and the tutor is called before the run looks up.
    for (i16 i = 1; i <= 8; ++i) {
        Gbl.Piezas[i].Giro = Gbl.Piezas[i].GiroBien;
        Pon(i, Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien);
    }
    MuestraColocadas();
    ASSERT_EQ(Gbl.PiezasColocadas, 8);
    P().alDejarPasar = [this] {
        if (Gbl.PiezasColocadas == 9 && pasos++ == 0) PulsaOrden(3);
    };
    PulsaOrden(12);
    EXPECT_EQ(pasos, 1);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_FALSE(Gbl.TutorEsperando);
}

TEST_F(Tareas, SlidingTutorPlaysAloneWhateverIsPressedOnTheTable) {
    Deslizantes(3);
    const auto antes = Mesa_();
    const Punto hueco{Gbl.HuecoX, Gbl.HuecoY};
    PulsaOrden(3);
    const auto sola = Mesa_();
    const i16 jugadas = Gbl.NumMovimientos;
    ASSERT_GT(jugadas, 0);

    std::copy(antes.begin(), antes.end(), Gbl.Piezas.begin());
    Gbl.HuecoX = static_cast<i16>(hueco.x);
    Gbl.HuecoY = static_cast<i16>(hueco.y);
    ReiniciaPartida();
    ColocaPiezas(1);
    P().alDejarPasar = [this] {
        const Punto p = PuntoDe(static_cast<i16>(1 + pasos++ % 8));
        Puntero.Pulsa(p.x, p.y);
        Puntero.Pulsa(p.x, p.y, BOTON_DERECHO);
    };
    PulsaOrden(3);
    EXPECT_GT(pasos, 0);
    EXPECT_EQ(Mesa_(), sola);
    EXPECT_EQ(Gbl.NumMovimientos, jugadas);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
}

TEST_F(Tareas, RequestsDuringAShuffleComeWhenItHasEnded) {
    Deslizantes(3);
    Sonidos();
    Gbl.VelocidadJuego = 50;
    double alPedir = 0;
    std::vector<std::string> sucesos;
    P().ventanas["Mensajes"] = [&](Ventana&) {
        dentro = dentro || Gbl.Barajando || DentroDeTarea();
        sucesos.push_back(Gbl.TextoMensaje);
        Gbl.RespuestaMensaje = false;
    };
    P().alDejarPasar = [&] {
        ++pasos;
        const Punto p = PuntoDe(static_cast<i16>(1 + pasos % 8));
        Puntero.Pulsa(p.x, p.y);
        if (pasos != 3) return;
        alPedir = P().dormido;
        PulsaOrden(6);
        PulsaOrden(1);  // its own button: it is at work already
        bool cancela = false;
        Mesa.QueryUnload(cancela);
        EXPECT_TRUE(cancela);
        EXPECT_TRUE(P().ayudas.empty() && sucesos.empty());
    };
    PulsaOrden(1);
    EXPECT_EQ(pasos, 31) << "four moves for each of eight pieces, events between them";
    EXPECT_GT(alPedir, 0);
    EXPECT_EQ(P().dormido, alPedir) << "who waits behind the shuffle does not wait for its pauses";
    EXPECT_EQ(P().ayudas.size(), 1U);
    EXPECT_EQ(sucesos, (std::vector<std::string>{"¿Desea abandonar el programa?"}));
    EXPECT_FALSE(dentro);
    EXPECT_FALSE(Gbl.SinPausas);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_TRUE(TieneSolucion());
}

TEST_F(Tareas, OptionChosenDuringAShuffleComesAfterIt) {
    Deslizantes(3);
    Gbl.OpcionesActivas[1] = Gbl.OpcionesActivas[2] = true;
    EnElPaso(2, [] {
        MuestraOpcionesSelec();
        Pic_SelOpciones.MouseMove(0, 0, 20, 30);
        Pic_SelOpciones.MouseUp(BOTON_IZQUIERDO, 0, 20, 30);
        EXPECT_EQ(Gbl.ModoCargua, 0);
    });
    PulsaOrden(1);
    EXPECT_EQ(Gbl.ModoCargua, 1);
    EXPECT_FALSE(Gbl.Barajando);
}

TEST_F(Tareas, WindowClosedDuringTheSolverAsksWhenItHasEnded) {
    Monton();
    P().ventanas["Mensajes"] = [this](Ventana&) {
        dentro = dentro || Gbl.TareaAutomatica || DentroDeTarea();
        abiertas.push_back(Gbl.TextoMensaje);
        Gbl.RespuestaMensaje = false;
    };
    EnElPaso(2, [] {
        bool cancela = false;
        Mesa.QueryUnload(cancela);
        EXPECT_TRUE(cancela);
    });
    PulsaOrden(12);
    EXPECT_EQ(abiertas, (std::vector<std::string>{"¿Desea abandonar el programa?"}));
    EXPECT_FALSE(dentro);
    EXPECT_FALSE(P().terminado);
    EXPECT_LT(Gbl.PiezasColocadas, 9);
}

TEST_F(Tareas, ReplayGoesOnAfterTheCommandsThatItAllows) {
    Monton();
    PulsaOrden(11);
    ASSERT_EQ(Gbl.NumMovimientos, 9);
    EnciendeGrabadora();
    Gbl.MostrarMuestra = false;
    EnElPaso(3, [this] {
        PulsaOrden(5);
        PulsaOrden(6);
        PulsaOrden(8);
        PulsaOrden(7);
        PulsaOrden(1);  // forbidden
        EXPECT_EQ(Gbl.NumMovimientos, 6);
        EXPECT_TRUE(Gbl.AutoAtras);
    });
    const Punto o = PunteroPrueba::Origen(Pic_Grabadora);
    Puntero.Pulsa(o.x + 14, o.y + 47);  // back to the start
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_FALSE(Gbl.AutoAtras);
    EXPECT_EQ(abiertas, (std::vector<std::string>{"Historic"}));
    EXPECT_EQ(P().ayudas.size(), 1U);
    EXPECT_TRUE(Gbl.MostrarMuestra);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Salir del programa");
}

TEST_F(Tareas, CommandWhileAPieceTurnsEndsTheTurning) {
    Moviles(3, 300, 300);
    Pon(5, 400, 200, 0);
    const Punto p = PuntoDe(5);
    P().botones = BOTON_DERECHO;
    EnElPaso(2, [] { Pulsa(Pic_Boton(5)); });  // with the space bar: the mouse is busy
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta(BOTON_DERECHO);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 2);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(abiertas, (std::vector<std::string>{"Historic"}));
    EXPECT_FALSE(dentro);
}

TEST_F(Tareas, DragMadeDuringATurnsPauseComesAfterTheTurn) {
    Moviles(3, 300, 300);
    Pon(5, 400, 200, 0);
    Pon(6, 400, 400, 0);
    const Punto p = PuntoDe(5), q = PuntoDe(6);
    P().botones = BOTON_DERECHO;
    // All of it was in the queue when the pause ended: the release, then a whole drag.
    EnElPaso(1, [&] {
        Puntero.Suelta();
        Puntero.Mueve(q.x, q.y);
        Puntero.Aprieta();
        Puntero.Mueve(q.x + 30, q.y + 20);
        EXPECT_EQ(Gbl.Piezas[6].X, 400) << "not inside the turn";
        Puntero.Suelta();
    });
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta(BOTON_DERECHO);
    ASSERT_EQ(Gbl.NumMovimientos, 2);
    EXPECT_EQ(Gbl.Movimientos[1], (Movimiento{5, 400, 200, 0, 0, 400, 200, 1, 0}));
    EXPECT_EQ(Gbl.Movimientos[2], (Movimiento{6, 400, 400, 0, 0, 430, 420, 0, 0}));
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_FALSE(Gbl.GiroEnCurso);
    EXPECT_TRUE(Gbl.EntradaAplazada.empty());
}

TEST_F(Tareas, CommandByKeyboardDropsThePieceInHandFirst) {
    Moviles(3, 300, 300);
    Pon(5, 400, 200);
    const Punto p = PuntoDe(5);
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta();
    Puntero.Mueve(p.x + 60, p.y + 40);
    ASSERT_TRUE(Gbl.ArrastrandoPieza);
    Pulsa(Pic_Boton(5));
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Movimientos[1], (Movimiento{5, 400, 200, 0, 0, 460, 240, 0, 0}));
    EXPECT_EQ(abiertas.size(), 1U);
    // The button that still holds it moves nothing any more.
    Puntero.Mueve(p.x + 90, p.y + 90);
    Puntero.Suelta();
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Piezas[5].X, 460);
}

TEST_F(Tareas, OptionChosenDuringTheSolverWaitsForItsEnd) {
    Monton();
    Gbl.OpcionesActivas[1] = Gbl.OpcionesActivas[2] = true;
    EnElPaso(2, [] {
        MuestraOpcionesSelec();
        Pic_SelOpciones.MouseMove(0, 0, 20, 30);
        Pic_SelOpciones.MouseUp(BOTON_IZQUIERDO, 0, 20, 30);
        EXPECT_EQ(Gbl.ModoCargua, 0);
    });
    PulsaOrden(12);
    EXPECT_EQ(Gbl.ModoCargua, 1) << "the second row loads";
    EXPECT_LT(Gbl.PiezasColocadas, 9);
    EXPECT_FALSE(Gbl.ResolviendoPuzzle);
}

TEST_F(Tareas, PressEndsTheColouredDisplayAndTakesThePieceUnderThePointer) {
    Moviles(3, 300, 300);
    Pon(5, 400, 100);
    Pon(7, 400, 300);
    const Punto cinco = PuntoDe(5), siete = PuntoDe(7);
    Puntero.Mueve(cinco.x, cinco.y);
    PulsaOrden(10);
    ASSERT_TRUE(Gbl.MostrandoColocadas);
    Puntero.Mueve(siete.x, siete.y);
    Puntero.Aprieta();
    EXPECT_FALSE(Gbl.MostrandoColocadas);
    EXPECT_EQ(Gbl.PiezaActual, 7);
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
    Puntero.Suelta();
}

TEST_F(Tareas, TurningEndsTheColouredDisplayToo) {
    Moviles(3, 300, 300);
    Pon(7, 400, 300);
    const Punto siete = PuntoDe(7);
    PulsaOrden(10);
    Puntero.Pulsa(siete.x, siete.y, BOTON_DERECHO);
    EXPECT_FALSE(Gbl.MostrandoColocadas);
    EXPECT_EQ(Gbl.Piezas[7].Giro, 1);
    const Mapa vista = Pic_Imagen.Dibujo();
    ColocaPiezas(1);
    EXPECT_EQ(Pic_Imagen.Dibujo().Pixeles, vista.Pixeles);
}

TEST_F(Tareas, RecorderSwitchedOnEndsTheColouredDisplay) {
    Monton();
    PulsaOrden(11);
    PulsaOrden(10);
    ASSERT_TRUE(Gbl.MostrandoColocadas);
    const Punto o = PunteroPrueba::Origen(Pic_Grabadora);
    Puntero.Pulsa(o.x + 20, o.y + 12);
    EXPECT_TRUE(Gbl.GrabadoraEncendida);
    EXPECT_FALSE(Gbl.MostrandoColocadas);
}

TEST_F(Tareas, BoardSetUpByHandIsNotDealtAnewWhileTheRecorderIsOn) {
    Deslizantes(4);
    TableroResuelto();
    std::swap(Gbl.Piezas[1].X, Gbl.Piezas[2].X);
    ColocaPiezas(1);
    Gbl.OrdenManual = true;
    EnciendeGrabadora();
    const auto antes = Mesa_();
    P().respuestas = {true, true};
    PulsaOrden(5);
    EXPECT_EQ(abiertas.size(), 1U);
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_EQ(Mesa_(), antes);
    EXPECT_TRUE(Gbl.OrdenManual);
}

TEST_F(Tareas, NothingIsUnderThePointerOnANewTable) {
    Deslizantes(4);
    Gbl.PiezaActual = 15;
    Gbl.PiezasPorLado = 3;
    PreparaJuego(true);
    EXPECT_EQ(Gbl.PiezaActual, 0);
}

}  // namespace tessario
