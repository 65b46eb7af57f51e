// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <random>
#include <set>
#include <vector>

#include "apoyo/PlataformaPrueba.h"
#include "apoyo/TableroDeslizante.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Barajado.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "rules/Catalogo.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"
#include "sliding/Movimientos.h"
#include "table/Ordenes.h"
#include "table/Raton.h"

namespace tessario {

namespace {

class Movimientos : public PruebaBase {};

constexpr const char* TITULO_ENTRAR = "Ordenar las piezas manualmente";
constexpr const char* TEXTO_ENTRAR =
    "Si pulsa este botón  para  colocar manualmente  las  piezas, cuando finalize  ese  proceso "
    "comenzará  la  resolución  del puzzle  con  las  piezas  en  la  posición  que  Usted  "
    "prefiera. "
    "Pulse el botón Aceptar para colocar las piezas como desee y  comenzar  un  nuevo  puzzle.  Si "
    " "
    "pulsa  el  botón  Cancelar podrá continuar resolviendo el puzzle actual.";
constexpr const char* TITULO_INSOLUBLE = "Configuración sin solución";
constexpr const char* TEXTO_INSOLUBLE =
    "Este puzzle no tiene solución con la configuración de piezas actual.  Pulse el botón Aceptar "
    "para que el programa baraje automáticamente  las  piezas  y  obtenga  una  configuración "
    "soluble.  Si pulsa el botón Cancelar podrá seguir ordenando las piezas hasta obtener  una  "
    "configuración  que  permita su solución.";

const std::vector<i16> CENTRADO = {1, 2, 3, 4, 0, 5, 6, 7, 8};
const std::vector<i16> INSOLUBLE = {1, 2, 3, 4, 5, 6, 8, 7, 0};

// The table in play.
void MesaCon(i16 lado, const std::vector<i16>& celdas) {
    PreparaMesa(lado);
    PonTablero(celdas);
    ColocaPiezas(1);
    ReiniciaPartida();
}

i16 CursorSobre(i16 piece) {
    CursorDeslizante(piece);
    return Gbl.CursorDeseado;
}

// A click in the middle of a piece, as the player makes it: move, press, release.
void Pincha(i16 piece) {
    const auto x = static_cast<float>(Gbl.Piezas[piece].X + Gbl.AnchoCelda / 2);
    const auto y = static_cast<float>(Gbl.Piezas[piece].Y + Gbl.AltoCelda / 2);
    Pic_Trabajo_MouseMove(0, 0, x, y);
    Pic_Trabajo_MouseDown(BOTON_IZQUIERDO, 0, x, y);
    Pic_Trabajo_MouseUp(BOTON_IZQUIERDO, 0, x, y);
}

void PulsaOrden(i16 orden) {
    Pic_Boton_MouseMove(orden, 0, 0, 1, 1);
    Pic_Boton_MouseDown(orden, BOTON_IZQUIERDO, 0, 1, 1);
}

}  // namespace

// ---------------------------------------------------------------- cursor

TEST_F(Movimientos, CursorSaysWhichWayThePieceWouldGo) {
    PreparaTablero(3);
    PonTablero(CENTRADO);
    EXPECT_EQ(CursorSobre(7), 25);
    EXPECT_EQ(CursorSobre(4), 26);
    EXPECT_EQ(CursorSobre(2), 27);
    EXPECT_EQ(CursorSobre(5), 28);
    EXPECT_EQ(CursorSobre(1), 12);
    EXPECT_TRUE(CursorDeslizante(1));
    EXPECT_EQ(Gbl.PiezaActual, 1);
}

TEST_F(Movimientos, CursorIsTheCrossOverAnyPieceInTheManualOrdering) {
    PreparaTablero(3);
    PonTablero(CENTRADO);
    Gbl.OrdenManual = true;
    EXPECT_EQ(CursorSobre(1), 15);
    EXPECT_EQ(CursorSobre(2), 15);
    EXPECT_FALSE(CursorDeslizante(8));  // the walk goes on
    EXPECT_EQ(Gbl.PiezaActual, 8);
}

// ---------------------------------------------------------------- press and release

TEST_F(Movimientos, PressMovesTheNeighbourIntoTheHole) {
    MesaCon(3, CENTRADO);
    Gbl.Sonido = true;
    P().sonidos.clear();
    CambiaCrono(2);
    Gbl.PiezaActual = 5;
    Gbl.CursorDeseado = 28;
    PulsaDeslizante();
    EXPECT_EQ(CeldasDelTablero(), (std::vector<i16>{1, 2, 3, 4, 5, 0, 6, 7, 8}));
    EXPECT_EQ(Gbl.OrdenPiezas[1], 5);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_TRUE(Gbl.ArrastrandoPieza);  // the release is what closes the move
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    ASSERT_EQ(P().sonidos.size(), 1U);
    EXPECT_EQ(P().sonidos[0], (std::pair<i16, bool>{53, false}));
}

TEST_F(Movimientos, ReleaseLogsTheMoveAndCountsAnew) {
    MesaCon(3, CENTRADO);
    MuestraColocadas();
    EXPECT_EQ(Gbl.PiezasColocadas, 4);
    const i16 x = Gbl.Piezas[5].X;
    const i16 y = Gbl.Piezas[5].Y;
    Pincha(5);
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    const Movimiento& m = Gbl.Movimientos[1];
    EXPECT_EQ(m.Pieza, 5);
    EXPECT_EQ(m.XAntes, x);
    EXPECT_EQ(m.YAntes, y);
    EXPECT_EQ(m.XDespues, x - 107);
    EXPECT_EQ(m.YDespues, y);
    EXPECT_EQ(m.GiroAntes + m.GiroDespues + m.VolteoAntes + m.VolteoDespues, 0);
    EXPECT_EQ(Gbl.PiezasColocadas, 5);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_FALSE(Gbl.SoltandoPieza);
}

TEST_F(Movimientos, PressOnADiagonalPieceIsOnlyRefused) {
    MesaCon(3, CENTRADO);
    Gbl.Sonido = true;
    P().sonidos.clear();
    Pincha(1);
    Pincha(8);
    EXPECT_EQ(CeldasDelTablero(), CENTRADO);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(P().sonidos, (std::vector<std::pair<i16, bool>>{{11, true}, {11, true}}));
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
}

TEST_F(Movimientos, PressWithNoPieceUnderThePointerDoesNothing) {
    MesaCon(3, CENTRADO);
    Gbl.PiezaActual = 0;
    Gbl.CursorDeseado = 0;
    PulsaDeslizante();
    EXPECT_EQ(CeldasDelTablero(), CENTRADO);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
}

TEST_F(Movimientos, SlideGoesInStepsOfFourteenTheLastOneShort) {
    // Nine a side on 285 lines: cells of 20 pixels.
    PreparaTablero(9);
    Gbl.AltoPantalla = 285;
    CalculaTamanos();
    ASSERT_EQ(Gbl.AnchoCelda, 20);
    DisponeTablero();
    CreaDeslizantes(0);
    ColocaPiezas(1);
    const i16 x = Gbl.Piezas[80].X;
    std::vector<i16> lugares;
    P().alDormir = [&] {
        const auto recorrido = static_cast<i16>(Gbl.Piezas[80].X - x);
        if (lugares.empty() || lugares.back() != recorrido) lugares.push_back(recorrido);
    };
    Gbl.PiezaActual = 80;
    Gbl.CursorDeseado = 26;
    PulsaDeslizante();
    EXPECT_EQ(lugares, (std::vector<i16>{14, 20}));
}

TEST_F(Movimientos, SlideLeavesBothTablesAsTheyWouldBeDrawnAnew) {
    MesaCon(3, CENTRADO);
    Pincha(7);
    const Mapa imagen = Pic_Imagen.Dibujo();
    const Mapa trabajo = Pic_Trabajo.Dibujo();
    ColocaPiezas(1);
    EXPECT_EQ(imagen.Pixeles, Pic_Imagen.Dibujo().Pixeles);
    EXPECT_EQ(trabajo.Pixeles, Pic_Imagen.Dibujo().Pixeles);
}

TEST_F(Movimientos, LastMoveOfAGameEndsIt) {
    MesaCon(3, {1, 2, 3, 4, 5, 6, 7, 0, 8});
    P().respuestas = {true, false};
    Pincha(8);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    ASSERT_FALSE(P().avisos.empty());
    EXPECT_EQ(P().avisos[0].texto, "Ha conseguido resolver el puzzle");
    EXPECT_FALSE(Gbl.PuzzleArchivable);
}

TEST_F(Movimientos, RecorderPutsTheHoleWhereTheMoveStartedOrEnded) {
    MesaCon(3, CENTRADO);
    Pincha(5);
    const Movimiento m = Gbl.Movimientos[1];
    Gbl.FinMovimientos = 1;
    ReproduceMovimiento(1);
    EXPECT_EQ(CeldasDelTablero(), CENTRADO);
    EXPECT_EQ(Gbl.HuecoX, m.XDespues);
    EXPECT_EQ(Gbl.HuecoY, m.YDespues);
    ReproduceMovimiento(0);
    EXPECT_EQ(CeldasDelTablero(), (std::vector<i16>{1, 2, 3, 4, 5, 0, 6, 7, 8}));
    EXPECT_EQ(Gbl.HuecoX, m.XAntes);
    EXPECT_EQ(Gbl.HuecoY, m.YAntes);
}

TEST_F(Movimientos, LogOfAPieceThatWentToAndFroHoldsTogetherAndABrokenOneDoesNot) {
    MesaCon(3, CENTRADO);
    for (const i16 pieza : {i16{5}, i16{5}, i16{7}, i16{7}}) Pincha(pieza);  // level, then upright
    ASSERT_EQ(Gbl.NumMovimientos, 4);
    EXPECT_TRUE(JuegoEnCurso().DiarioPosible());
    for (i32 m = 1; m <= 4; ++m)
        for (i16 Movimiento::*lugar : {&Movimiento::XAntes, &Movimiento::YAntes,
                                       &Movimiento::XDespues, &Movimiento::YDespues}) {
            Gbl.Movimientos[m].*lugar = static_cast<i16>(Gbl.Movimientos[m].*lugar + 1);
            EXPECT_FALSE(JuegoEnCurso().DiarioPosible()) << m;
            Gbl.Movimientos[m].*lugar = static_cast<i16>(Gbl.Movimientos[m].*lugar - 1);
        }
}

// ---------------------------------------------------------------- animated shuffle

TEST_F(Movimientos, ShuffleMakesFourMovesAPieceNeverLosingSolvabilityNorUndoingTheLast) {
    for (int semilla = 1; semilla <= 6; ++semilla) {
        const auto lado = static_cast<i16>(3 + semilla % 3);
        MesaCon(lado, TableroResuelto(lado));
        Gbl.VelocidadJuego = 100;
        Gbl.Sonido = true;
        P().sonidos.clear();
        Randomize(semilla);
        std::vector<i16> antes = CeldasDelTablero();
        i16 previa = 0;
        int vistas = 0;
        P().alDejarPasar = [&] {
            ++vistas;
            EXPECT_TRUE(TieneSolucion());
            EXPECT_FALSE(Gbl.ArrastrandoPieza);
            const std::vector<i16> ahora = CeldasDelTablero();
            const i16 movida = Gbl.OrdenPiezas[1];
            EXPECT_NE(movida, previa);
            // Exactly that piece and the hole have changed places.
            std::vector<i16> esperado = antes;
            std::iter_swap(std::find(esperado.begin(), esperado.end(), movida),
                           std::find(esperado.begin(), esperado.end(), i16{0}));
            EXPECT_EQ(ahora, esperado);
            antes = ahora;
            previa = movida;
        };
        BarajaConMovimientos();
        P().alDejarPasar = nullptr;
        const i32 jugadas = 4 * Gbl.NumPiezas;
        EXPECT_EQ(vistas, jugadas - 1);  // after the last one the loop is left
        ASSERT_EQ(P().sonidos.size(), static_cast<std::size_t>(jugadas));
        for (const auto& s : P().sonidos) EXPECT_EQ(s, (std::pair<i16, bool>{53, true}));
        EXPECT_TRUE(TieneSolucion());
        EXPECT_EQ(Gbl.NumMovimientos, 0);
        EXPECT_GT(Gbl.Dificultad, 0);
    }
}

TEST_F(Movimientos, ShuffleRestsAfterEachMove) {
    MesaCon(3, TableroResuelto(3));
    Gbl.VelocidadJuego = 50;
    const double antes = P().dormido;
    BarajaConMovimientos();
    // 32 moves of a cell of 107 pixels: eight steps of 14 and a rest of 6 after each, then one of
    // 15.
    EXPECT_DOUBLE_EQ(P().dormido - antes, 32 * (8 * 6 + 15));
}

TEST_F(Movimientos, ShuffleFromACornerIsForcedOnTheNextMove) {
    // On two a side the hole always stands in a corner: after the first draw every piece is forced,
    // so the three pieces go round in turn.
    PreparaMesa(2);
    Gbl.VelocidadJuego = 100;
    std::vector<i16> movidas;
    P().alDejarPasar = [&] { movidas.push_back(Gbl.OrdenPiezas[1]); };
    BarajaConMovimientos();
    ASSERT_EQ(movidas.size(), 11U);
    for (std::size_t i = 3; i < movidas.size(); ++i) EXPECT_EQ(movidas[i], movidas[i - 3]);
    EXPECT_EQ(std::set<i16>(movidas.begin(), movidas.begin() + 3), (std::set<i16>{1, 2, 3}));
}

TEST_F(Movimientos, ShuffleInItsFrameStartsANewCount) {
    MesaCon(3, CENTRADO);
    Gbl.VelocidadJuego = 100;
    Gbl.SegundosJuego = 50;
    Gbl.NumMovimientos = 4;
    Gbl.PuzzleTerminado = true;
    bool barajando = false;
    P().alDejarPasar = [&] { barajando = Gbl.Barajando; };
    BarajaPiezas();
    EXPECT_TRUE(barajando);
    EXPECT_FALSE(Gbl.Barajando);
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_TRUE(TieneSolucion());
}

TEST_F(Movimientos, ShuffleOfABoardWithoutSolutionMendsItFirst) {
    MesaCon(3, INSOLUBLE);
    Gbl.VelocidadJuego = 100;
    BarajaConMovimientos();
    EXPECT_TRUE(TieneSolucion());
    Gbl.Piezas[2] = Gbl.Piezas[1];
    BarajaConMovimientos();
    EXPECT_TRUE(TableroEntero());
    EXPECT_TRUE(TieneSolucion());
}

TEST_F(Movimientos, ShuffleEndsOnSidesThatTheGameDoesNotOffer) {
    for (const i16 lado : std::initializer_list<i16>{-3, -1, 0, 1}) {
        PreparaTablero(3);
        PonTablero(CENTRADO);
        Gbl.PiezasPorLado = lado;
        Gbl.VelocidadJuego = 100;
        Sigue([] { CalculaTamanos(); });
        Sigue([] { BarajaConMovimientos(); });
    }
    MesaCon(3, CENTRADO);
    EXPECT_TRUE(TieneSolucion());
}

TEST_F(Movimientos, ShuffleStopsWhenEventsChangeTheGame) {
    MesaCon(3, CENTRADO);
    Gbl.VelocidadJuego = 100;
    int pasos = 0;
    P().alDejarPasar = [&] {
        if (++pasos == 3) Gbl.JuegoActual = JuegoTangram;
    };
    BarajaConMovimientos();
    EXPECT_EQ(pasos, 3);
}

// ---------------------------------------------------------------- manual ordering

TEST_F(Movimientos, ManualOrderingIsEnteredOnlyByAccepting) {
    MesaCon(3, CENTRADO);
    P().respuestas = {false, true};
    OrdenManualDeslizantes();
    EXPECT_FALSE(Gbl.OrdenManual);
    OrdenManualDeslizantes();
    EXPECT_TRUE(Gbl.OrdenManual);
    ASSERT_EQ(P().avisos.size(), 2U);
    for (const auto& a : P().avisos) {
        EXPECT_EQ(a.titulo, TITULO_ENTRAR);
        EXPECT_EQ(a.texto, TEXTO_ENTRAR);
        EXPECT_EQ(a.modo, 6);
        EXPECT_EQ(a.botones, 2);
        EXPECT_EQ(a.ayuda, 2184);
    }
    EXPECT_EQ(CeldasDelTablero(), CENTRADO);
}

TEST_F(Movimientos, AnyPieceGoesToTheHoleFromAnyDistanceInTheManualOrdering) {
    MesaCon(3, CENTRADO);
    Gbl.OrdenManual = true;
    Pincha(1);
    EXPECT_EQ(CeldasDelTablero(), (std::vector<i16>{0, 2, 3, 4, 1, 5, 6, 7, 8}));
    Pincha(8);
    EXPECT_EQ(CeldasDelTablero(), (std::vector<i16>{8, 2, 3, 4, 1, 5, 6, 7, 0}));
    EXPECT_EQ(Gbl.NumMovimientos, 2);
}

TEST_F(Movimientos, FinishedBoardEndsNothingInTheManualOrdering) {
    MesaCon(3, {1, 2, 3, 4, 5, 6, 7, 0, 8});
    Gbl.OrdenManual = true;
    Pincha(8);
    EXPECT_EQ(Gbl.PiezasColocadas, 8);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Movimientos, LeavingASolvableBoardByItsButtonStartsANewPuzzle) {
    MesaCon(3, CENTRADO);
    Gbl.OrdenManual = true;
    Gbl.PuzzleArchivable = false;
    Gbl.SegundosJuego = 99;
    Gbl.NumMovimientos = 6;
    Gbl.Dificultad = 0;
    OrdenManualDeslizantes();
    EXPECT_FALSE(Gbl.OrdenManual);
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_EQ(CeldasDelTablero(), CENTRADO);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_TRUE(Gbl.PuzzleArchivable);
    // 5 a cell away, 6 three, 7 and 8 one each: (6 * 100 / 20 + 0 + 20) / 3.
    EXPECT_NEAR(Gbl.Dificultad, 50.0 / 3, 0.001);
}

TEST_F(Movimientos, LeavingAnUnsolvableBoardAsksAndShufflesOnAceptar) {
    MesaCon(3, INSOLUBLE);
    Gbl.OrdenManual = true;
    Gbl.NumMovimientos = 6;
    Gbl.SegundosJuego = 99;
    P().respuestas = {true};
    OrdenManualDeslizantes();
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, TITULO_INSOLUBLE);
    EXPECT_EQ(P().avisos[0].texto, TEXTO_INSOLUBLE);
    EXPECT_EQ(P().avisos[0].modo, 6);
    EXPECT_EQ(P().avisos[0].botones, 2);
    EXPECT_EQ(P().avisos[0].ayuda, 3020);
    EXPECT_FALSE(Gbl.OrdenManual);
    EXPECT_TRUE(TieneSolucion());
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    // The table shows the new board.
    const Mapa visto = Pic_Trabajo.Dibujo();
    ColocaPiezas(1);
    EXPECT_EQ(visto.Pixeles, Pic_Imagen.Dibujo().Pixeles);
}

TEST_F(Movimientos, LeavingAnUnsolvableBoardWithCancelarChangesNothing) {
    MesaCon(3, INSOLUBLE);
    Gbl.OrdenManual = true;
    Gbl.NumMovimientos = 6;
    Gbl.SegundosJuego = 99;
    P().respuestas = {false};
    OrdenManualDeslizantes();
    EXPECT_EQ(P().avisos.size(), 1U);
    EXPECT_TRUE(Gbl.OrdenManual);
    EXPECT_EQ(CeldasDelTablero(), INSOLUBLE);
    EXPECT_EQ(Gbl.NumMovimientos, 6);
    EXPECT_EQ(Gbl.SegundosJuego, 99);
}

TEST_F(Movimientos, ButtonElevenBringsTheClockBackToItsFormerState) {
    MesaCon(3, CENTRADO);
    for (const bool enMarcha : {true, false}) {
        Gbl.OrdenManual = true;
        CambiaCrono(enMarcha ? 1 : 2);
        PulsaOrden(orden::ORDENAR);
        EXPECT_FALSE(Gbl.OrdenManual);
        EXPECT_EQ(static_cast<bool>(Gbl.CronoEnMarcha), enMarcha);
        EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
    }
}

TEST_F(Movimientos, AnotherButtonLeavesASolvableOrderingWithoutANewPuzzle) {
    MesaCon(3, CENTRADO);
    Gbl.OrdenManual = true;
    Gbl.NumMovimientos = 2;
    Gbl.SegundosJuego = 99;
    Gbl.Dificultad = 33;
    PulsaOrden(orden::ESTADISTICAS);
    EXPECT_FALSE(Gbl.OrdenManual);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
    EXPECT_EQ(Gbl.SegundosJuego, 99);
    EXPECT_EQ(Gbl.Dificultad, 33);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Movimientos, AnotherButtonOnAnUnsolvableOrderingAsksInItsPlace) {
    MesaCon(3, INSOLUBLE);
    Gbl.OrdenManual = true;
    P().respuestas = {false};
    PulsaOrden(orden::ESTADISTICAS);
    EXPECT_TRUE(Gbl.OrdenManual);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, TITULO_INSOLUBLE);
}

TEST_F(Movimientos, SampleButtonGoesThroughOnAnUnsolvableOrdering) {
    Gbl.TipoFondo = FONDO_IMAGEN;
    MesaCon(3, INSOLUBLE);
    Gbl.OrdenManual = true;
    Gbl.MostrarMuestra = false;
    PulsaOrden(orden::MODELO);
    EXPECT_TRUE(Gbl.OrdenManual);
    EXPECT_TRUE(Gbl.MostrarMuestra);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Movimientos, PressBesideThePiecesEndsTheManualOrdering) {
    MesaCon(3, CENTRADO);
    Gbl.OrdenManual = true;
    Pic_Boton(orden::ORDENAR).MouseDown = [](i16 b, i16 s, float x, float y) {
        Pic_Boton_MouseDown(orden::ORDENAR, b, s, x, y);
    };
    Pic_Trabajo_MouseMove(0, 0, 5, 5);
    Pic_Trabajo_MouseDown(BOTON_IZQUIERDO, 0, 5, 5);
    Pic_Trabajo_MouseUp(BOTON_IZQUIERDO, 0, 5, 5);
    EXPECT_FALSE(Gbl.OrdenManual);
    EXPECT_EQ(CeldasDelTablero(), CENTRADO);
}

}  // namespace tessario
