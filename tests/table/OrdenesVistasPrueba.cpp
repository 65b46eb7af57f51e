// SPDX-License-Identifier: GPL-3.0-or-later
// What the player sees while a command works: the hourglass, pieces laid one by one or all at
// once, the table brought up to date before a question's work.
#include "apoyo/MesaMontada.h"
#include "panel/Colocadas.h"
#include "pieces/Composicion.h"
#include "rules/Despacho.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"
#include "sliding/Movimientos.h"
#include "sliding/Tablero.h"
#include "table/Ordenes.h"

namespace tessario {

namespace {

Ventana Ajustes;

class OrdenesVistas : public MesaMontada {
protected:
    void SetUp() override {
        MesaMontada::SetUp();
        Ajustes = Ventana{};
        Ajustes.Nombre = "Personal";
        VentanasOrdenes = {&Ajustes, nullptr, nullptr};
        P().alPresentar = [this] { punteros.push_back(Mesa.MousePointer); };
    }
    // The settings window is left with this change; what was presented once it is closed.
    std::vector<i16> Cambia(std::function<void()> cambio) {
        P().ventanas["Personal"] = [this, cambio](Ventana&) {
            cambio();
            punteros.clear();
        };
        PulsaOrden(2);
        P().ventanas.erase("Personal");
        EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
        return punteros;
    }
    static std::size_t Con(const std::vector<i16>& v, i16 puntero) {
        return static_cast<std::size_t>(std::count(v.begin(), v.end(), puntero));
    }
    // An unsolvable board of 4 a side, being set up by hand.
    void Insoluble() {
        Deslizantes(4);
        TableroResuelto();
        std::swap(Gbl.Piezas[1].X, Gbl.Piezas[2].X);
        ColocaPiezas(1);
        Gbl.OrdenManual = true;
    }
    std::vector<i16> punteros;  // of the window, at each presentation
};

}  // namespace

TEST_F(OrdenesVistas, NewParametersDealUnderTheHourglassPieceByPiece) {
    Moviles(4, 400, 300);
    const auto v = Cambia([] { Gbl.ParametrosCambiados = true; });
    ASSERT_GE(v.size(), 17U);
    EXPECT_EQ(v.front(), PUNTERO_NORMAL) << "the window's place is brought up to date first";
    EXPECT_GE(Con(v, PUNTERO_RELOJ), 16U);
}

TEST_F(OrdenesVistas, NewColoursLayTheJigsawPieceByPieceAndTheBoardAtOnce) {
    Moviles(4, 400, 300);
    const auto v = Cambia([] { Gbl.ColoresCambiados = true; });
    EXPECT_GE(Con(v, PUNTERO_RELOJ), 16U);
    Deslizantes(5);
    for (const bool parametros : {false, true}) {
        Pic_Trabajo.Cls();
        const auto w = Cambia(
            [parametros] { (parametros ? Gbl.ParametrosCambiados : Gbl.ColoresCambiados) = true; });
        EXPECT_LT(w.size(), parametros ? 60U : 10U) << "24 pieces, shown all together";
        for (i16 p = 1; p <= 24; ++p)
            EXPECT_EQ(Pic_Trabajo.Point(Gbl.Piezas[p].X + 8, Gbl.Piezas[p].Y + 40), Gbl.ColorPiezas)
                << p;
    }
}

TEST_F(OrdenesVistas, AnotherGameComesUnderTheHourglass) {
    Moviles(3, 300, 300);
    const auto v = Cambia([] { Gbl.JuegoActual = JuegoTangram; });
    EXPECT_GE(Con(v, PUNTERO_RELOJ), 7U);
}

TEST_F(OrdenesVistas, HiddenPiecesComeUpOneByOneUnderTheHourglass) {
    Moviles(3, 300, 300);
    Gbl.VelocidadJuego = 50;
    const Punto o = PunteroPrueba::Origen(Pic_Boton(9));
    Puntero.Mueve(o.x + 24, o.y + 24);
    int pausas = 0;
    P().alDormir = [&] {
        ++pausas;
        EXPECT_EQ(Mesa.MousePointer, PUNTERO_RELOJ);
    };
    const double antes = P().dormido;
    Puntero.Aprieta();
    P().alDormir = nullptr;
    EXPECT_EQ(pausas, 9);
    EXPECT_DOUBLE_EQ(P().dormido - antes, 9 * 15);
    EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
}

TEST_F(OrdenesVistas, ArrangementRunsUnderTheHourglass) {
    Moviles(3, 300, 300);
    int pasos = 0;
    P().alDejarPasar = [&] {
        ++pasos;
        EXPECT_EQ(Mesa.MousePointer, PUNTERO_RELOJ);
    };
    PulsaOrden(11);
    P().alDejarPasar = nullptr;
    EXPECT_EQ(pasos, 9);
    EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
}

TEST_F(OrdenesVistas, QuestionsOfTheBoardComeWithTheNormalPointer) {
    int preguntas = 0;
    P().ventanas["Mensajes"] = [&](Ventana&) {
        ++preguntas;
        EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
        Gbl.RespuestaMensaje = false;
    };
    Deslizantes(4);
    PulsaOrden(11);
    Insoluble();
    PulsaOrden(11);
    EXPECT_EQ(preguntas, 2);
}

TEST_F(OrdenesVistas, UnsolvableBoardIsSeenOnceMoreAndTheNewOneLaidPieceByPiece) {
    Insoluble();
    std::vector<bool> solubles;
    P().ventanas["Mensajes"] = [&](Ventana&) {
        Gbl.RespuestaMensaje = true;
        solubles.clear();
        P().alPresentar = [&] { solubles.push_back(TieneSolucion()); };
    };
    PulsaOrden(11);
    P().alPresentar = nullptr;
    ASSERT_GE(solubles.size(), 16U);
    EXPECT_FALSE(solubles.front()) << "the table behind the question, before it changes";
    EXPECT_GE(std::count(solubles.begin(), solubles.end(), true), 15);
}

TEST_F(OrdenesVistas, ShuffleRestsAfterEachOfItsMoves) {
    Deslizantes(3);
    TableroResuelto();
    Gbl.VelocidadJuego = 50;
    const i32 pasos = (Gbl.AnchoCelda + 13) / 14;
    const double antes = P().dormido;
    BarajaConMovimientos();
    EXPECT_DOUBLE_EQ(P().dormido - antes, 32 * (pasos * 6 + 15));
}

TEST_F(OrdenesVistas, NoOverhangOfAJigsawIsLeftToTheOtherGames) {
    for (const i16 forma : std::vector<i16>{1, 2}) {
        Moviles(3, 300, 300, forma);
        ASSERT_GT(Gbl.SalienteX, 0);
        Deslizantes(3);
        EXPECT_EQ(Gbl.SalienteX, 0);
        EXPECT_EQ(Gbl.SalienteY, 0);
        EXPECT_EQ(CajaDePieza(1),
                  RectDe(Gbl.Piezas[1].X, Gbl.Piezas[1].Y, Gbl.AnchoCelda, Gbl.AltoCelda));
        Moviles(3, 300, 300, forma);
        Tangram(MODO_CREAR);
        EXPECT_EQ(Gbl.SalienteX, 0);
        EXPECT_EQ(Gbl.SalienteY, 0);
    }
}

}  // namespace tessario
