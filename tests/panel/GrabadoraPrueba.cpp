// SPDX-License-Identifier: GPL-3.0-or-later
// The recorder: its keys, the walk back and forth, and what each way of leaving it keeps.
#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "panel/Grabadora.h"
#include "rules/PuzzBas.h"

namespace tessario {
namespace {

// Middle of each key of the panel.
constexpr float MANDO[] = {20, 12}, ATRAS[] = {14, 31}, ADELANTE[] = {35, 31};
constexpr float AUTO_ATRAS[] = {14, 47}, AUTO_ADELANTE[] = {35, 47}, RESTAURAR[] = {24, 63};

class PanelGrabadora : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        Gbl.VelocidadJuego = 100;
        Gbl.JuegoActual = JuegoMoviles;
        Gbl.PiezasPorLado = 2;
        Gbl.NumPiezas = 4;
        Gbl.AnchoCelda = Gbl.AnchoPieza = 40;
        Gbl.AltoCelda = Gbl.AltoPieza = 30;
        Gbl.AnchoPuzzle = 80;
        Gbl.AltoPuzzle = 60;
        Pic_Bitmap.Tamano(80, 60);
        for (Superficie* s :
             {static_cast<Superficie*>(&Pic_Trabajo), &Pic_Imagen, &Pic_Fondo, &Pic_FonTamModi})
            s->Tamano(400, 300);
        Pic_Grabadora.Tamano(50, 75);
        Mapa vario(342, 78);
        for (i32 y = 0; y < 78; ++y)
            for (i32 x = 0; x < 342; ++x) vario.Fila(y)[x] = static_cast<Pixel>(x << 8 | y);
        Pic_BmpVario.Tamano(342, 78);
        Pic_BmpVario.PonPicture(std::make_shared<Mapa>(vario));
        Gbl.Piezas.Redimensiona(4);
        Gbl.OrdenPiezas.Redimensiona(4);
        Gbl.Movimientos.Redimensiona(100);
        for (i16 i = 1; i <= 4; ++i) {
            Pieza& p = Gbl.Piezas[i];
            p.X = static_cast<i16>(150 + i * 50);
            p.Y = 200;
            p.XBien = static_cast<i16>((i - 1) % 2 * 40);
            p.YBien = static_cast<i16>((i - 1) / 2 * 30);
            Gbl.OrdenPiezas[i] = i;
        }
    }
    // A logged move of a piece, as play makes it.
    void Juega(i16 pieza, i16 x, i16 y, i16 giro = 0) {
        i16 donde = 1;
        while (Gbl.OrdenPiezas[donde] != pieza) ++donde;
        for (; donde > 1; --donde) Gbl.OrdenPiezas[donde] = Gbl.OrdenPiezas[donde - 1];
        Gbl.OrdenPiezas[1] = pieza;
        Pieza& p = Gbl.Piezas[pieza];
        const Pieza antes = p;
        p.X = x;
        p.Y = y;
        p.Giro = giro;
        RegistraMovimiento(antes.X, antes.Y, antes.Giro, 0, x, y, giro, 0);
    }
    void Pulsa(const float (&lugar)[2]) {
        Pic_Grabadora_MouseMove(0, 0, lugar[0], lugar[1]);
        Pic_Grabadora_MouseDown(1, 0, lugar[0], lugar[1]);
    }
    std::string LetreroEn(const float (&lugar)[2]) {
        Pic_Grabadora_MouseMove(0, 0, lugar[0], lugar[1]);
        return Pic_Grabadora.ToolTipText;
    }
    // Does the panel show the source (x, y) of the tiles at its own point?
    static bool Muestra(i32 x, i32 y, i32 xo, i32 yo) {
        return Pic_Grabadora.Point(x, y) == ColorDe(static_cast<Pixel>(xo << 8 | yo));
    }
};

TEST_F(PanelGrabadora, SwitchingOnWithAnEmptyLogDoesNothing) {
    Pulsa(MANDO);
    EXPECT_FALSE(Gbl.GrabadoraEncendida);
}

TEST_F(PanelGrabadora, SwitchingOnStopsTheClockAndMarksTheEnd) {
    Juega(1, 10, 20);
    Juega(2, 30, 40);
    Gbl.CronoEnMarcha = true;
    Pulsa(MANDO);
    EXPECT_TRUE(Gbl.GrabadoraEncendida);
    EXPECT_FALSE(Gbl.CronoEnMarcha);
    EXPECT_EQ(Gbl.FinMovimientos, 2);
    EXPECT_TRUE(Muestra(6, 6, 57, 6));
    EXPECT_TRUE(Muestra(6 + 41, 6 + 12, 57 + 41, 6 + 12)) << "42 by 13 pixels";
    Pulsa(MANDO);
    EXPECT_FALSE(Gbl.GrabadoraEncendida);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_TRUE(Muestra(6, 6, 6, 6));
}

TEST_F(PanelGrabadora, OneStepBackAndForward) {
    Juega(1, 10, 20);
    Juega(2, 30, 40);
    Pulsa(MANDO);
    Pulsa(ATRAS);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Piezas[2].X, 250);
    EXPECT_EQ(Gbl.Piezas[2].Y, 200);
    EXPECT_EQ(Gbl.OrdenPiezas[1], 2);
    Pulsa(ADELANTE);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
    EXPECT_EQ(Gbl.Piezas[2].X, 30);
    EXPECT_EQ(Gbl.Piezas[2].Y, 40);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
}

TEST_F(PanelGrabadora, WithOneMoveBackOneDoesNothingAndAutoBackUndoesIt) {
    Juega(1, 10, 20);
    Pulsa(MANDO);
    Pulsa(ATRAS);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Piezas[1].X, 10);
    Pulsa(AUTO_ATRAS);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Gbl.Piezas[1].X, 200);
    EXPECT_EQ(Gbl.Piezas[1].Y, 200);
}

TEST_F(PanelGrabadora, SwitchingOffAfterGoingBackReplaysToTheEnd) {
    Juega(1, 10, 20);
    Juega(2, 30, 40);
    Juega(1, 60, 70);
    Pulsa(MANDO);
    Pulsa(AUTO_ATRAS);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    Pulsa(MANDO);
    EXPECT_EQ(Gbl.NumMovimientos, 3);
    EXPECT_EQ(Gbl.Piezas[1].X, 60);
    EXPECT_EQ(Gbl.Piezas[2].X, 30);
    EXPECT_FALSE(Gbl.GrabadoraEncendida);
}

TEST_F(PanelGrabadora, RestoreKeepsThePositionAndTheNextMoveIsAppendedThere) {
    Juega(1, 10, 20);
    Juega(2, 30, 40);
    Juega(3, 60, 70);
    Pulsa(MANDO);
    Pulsa(ATRAS);
    Pulsa(ATRAS);
    Pulsa(RESTAURAR);
    EXPECT_FALSE(Gbl.GrabadoraEncendida);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Piezas[2].X, 250);
    Juega(4, 90, 95);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
    EXPECT_EQ(Gbl.Movimientos[2].Pieza, 4);
}

TEST_F(PanelGrabadora, RestoreIsHoveredOver25PixelsAndPressedOnlyIn21) {
    Juega(1, 10, 20);
    Juega(2, 30, 40);
    Pulsa(MANDO);
    Pulsa(ATRAS);
    const float ancho[] = {37, 63};  // 14 + 23
    EXPECT_EQ(LetreroEn(ancho), " Restaurar puzzle ");
    Pulsa(ancho);
    EXPECT_TRUE(Gbl.GrabadoraEncendida);
    const float fuera[] = {39, 63};
    EXPECT_EQ(LetreroEn(fuera), "");
    const float borde[] = {34, 69};  // last column and row of the press
    Pulsa(borde);
    EXPECT_FALSE(Gbl.GrabadoraEncendida);
}

TEST_F(PanelGrabadora, KeysReachFromTheirFirstPixelToTheirLast) {
    Juega(1, 10, 20);
    Juega(2, 30, 40);
    Juega(3, 60, 70);
    Pulsa(MANDO);
    Pulsa(ATRAS);  // now every key can be pressed
    // As the hover finds them: the last key is wider there than for a press.
    const struct {
        i32 x, y, ancho;
        const char* letrero;
    } teclas[] = {{6, 6, 38, " Apagar mando "},           {4, 25, 21, " Retroceder 1 movimiento "},
                  {25, 25, 21, " Avanzar 1 movimiento "}, {4, 41, 21, " Retroceso automático "},
                  {25, 41, 21, " Avance automático "},    {14, 57, 25, " Restaurar puzzle "}};
    for (i32 y = 0; y < 75; ++y)
        for (i32 x = 0; x < 50; ++x) {
            std::string letrero;
            for (const auto& t : teclas)
                if (RectDe(t.x, t.y, t.ancho, 13).Contiene(x, y)) letrero = t.letrero;
            Pic_Grabadora_MouseMove(0, 0, static_cast<float>(x), static_cast<float>(y));
            ASSERT_EQ(Pic_Grabadora.ToolTipText, letrero) << x << ", " << y;
        }
}

TEST_F(PanelGrabadora, KeyThatCanNoLongerActIsDeadThoughThePointerHasNotMoved) {
    Juega(1, 10, 20);
    Juega(2, 30, 40);
    Pulsa(MANDO);
    Pulsa(ATRAS);
    Pulsa(ADELANTE);
    ASSERT_EQ(Gbl.NumMovimientos, 2);
    Pic_Grabadora_MouseDown(1, 0, ADELANTE[0], ADELANTE[1]);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
    EXPECT_EQ(Gbl.FinMovimientos, 2);
}

TEST_F(PanelGrabadora, WithTheSwitchOffNoOtherKeyActsWhereverTheLogStands) {
    Juega(1, 10, 20);
    Juega(2, 30, 40);
    Pulsa(MANDO);
    Pulsa(AUTO_ATRAS);
    Pulsa(RESTAURAR);  // the end of the log lies ahead still
    ASSERT_LT(Gbl.NumMovimientos, Gbl.FinMovimientos);
    for (const auto* tecla : {&ATRAS, &ADELANTE, &AUTO_ATRAS, &AUTO_ADELANTE, &RESTAURAR}) {
        EXPECT_EQ(LetreroEn(*tecla), "");
        Pulsa(*tecla);
        EXPECT_EQ(Gbl.NumMovimientos, 0);
    }
}

TEST_F(PanelGrabadora, TurnIsReplayedWithoutAnimation) {
    Juega(1, 10, 20, 3);
    Pulsa(MANDO);
    const double antes = P().dormido;
    Gbl.VelocidadJuego = 50;
    Pulsa(AUTO_ATRAS);
    EXPECT_EQ(Gbl.Piezas[1].Giro, 0);
    EXPECT_EQ(Gbl.Piezas[1].X, 200);
    EXPECT_EQ(Gbl.Piezas[1].Y, 200);
    EXPECT_DOUBLE_EQ(P().dormido - antes, 60) << "only the pause between steps";
}

TEST_F(PanelGrabadora, SecondPressEndsAnAutomaticRun) {
    for (i16 i = 0; i < 6; ++i) Juega(1, static_cast<i16>(10 + i * 20), 20);
    Pulsa(MANDO);
    int pasos = 0;
    P().alDejarPasar = [&] {
        if (++pasos == 2) Pulsa(AUTO_ATRAS);
    };
    Pulsa(AUTO_ATRAS);
    EXPECT_EQ(Gbl.NumMovimientos, 4);
    EXPECT_FALSE(Gbl.AutoAtras);
}

TEST_F(PanelGrabadora, PowerOffDuringAnAutomaticRunEndsBoth) {
    for (i16 i = 0; i < 6; ++i) Juega(1, static_cast<i16>(10 + i * 20), 20);
    Pulsa(MANDO);
    int pasos = 0;
    P().alDejarPasar = [&] {
        if (++pasos == 2) Pulsa(MANDO);
    };
    Pulsa(AUTO_ATRAS);
    EXPECT_EQ(Gbl.NumMovimientos, 6);
    EXPECT_FALSE(Gbl.GrabadoraEncendida);
    EXPECT_FALSE(Gbl.AutoAtras);
}

TEST_F(PanelGrabadora, SwitchAnswersWhateverElseIsUnderWay) {
    Juega(1, 10, 20);
    for (Booleano* bandera : {&Gbl.Barajando, &Gbl.OrdenandoPiezas, &Gbl.ResolviendoPuzzle,
                              &Gbl.TareaAutomatica, &Gbl.GirandoPieza, &Gbl.ArrastrandoPieza}) {
        *bandera = true;
        EXPECT_EQ(LetreroEn(MANDO), " Encender mando ");
        EXPECT_EQ(Pic_Grabadora.MouseIcon, "ManoIndice");
        EXPECT_TRUE(EsMandoGrabadora(MANDO[0], MANDO[1]));
        *bandera = false;
    }
    EXPECT_FALSE(EsMandoGrabadora(ATRAS[0], ATRAS[1]));
    Pulsa(MANDO);
    EXPECT_TRUE(Gbl.GrabadoraEncendida);
}

TEST_F(PanelGrabadora, KeyboardStopsAtTheKeysThatCanBePressed) {
    EXPECT_EQ(ZonasGrabadora(), (std::vector<Rect>{RectDe(6, 6, 38, 13)}));
    Juega(1, 10, 20);
    Juega(1, 40, 20);
    Pulsa(MANDO);
    EXPECT_EQ(ZonasGrabadora().size(), 3U) << "switch, one back, back to the start";
    Pulsa(ATRAS);
    EXPECT_EQ(ZonasGrabadora().size(), 6U);
}

TEST_F(PanelGrabadora, TooltipsTellWhatEachKeyCanDo) {
    Juega(1, 10, 20);
    Juega(1, 40, 20);
    EXPECT_EQ(LetreroEn(MANDO), " Encender mando ");
    EXPECT_EQ(Pic_Grabadora.MouseIcon, "ManoIndice");
    EXPECT_EQ(LetreroEn(ATRAS), "");
    EXPECT_EQ(Pic_Grabadora.MousePointer, PUNTERO_NORMAL);
    Pulsa(MANDO);
    EXPECT_EQ(LetreroEn(MANDO), " Apagar mando ");
    EXPECT_EQ(LetreroEn(ATRAS), " Retroceder 1 movimiento ");
    EXPECT_EQ(LetreroEn(AUTO_ATRAS), " Retroceso automático ");
    EXPECT_EQ(LetreroEn(ADELANTE), "") << "the log's end";
    EXPECT_EQ(LetreroEn(AUTO_ADELANTE), "");
    EXPECT_EQ(LetreroEn(RESTAURAR), "");
    Pulsa(ATRAS);
    EXPECT_EQ(LetreroEn(ADELANTE), " Avanzar 1 movimiento ");
    EXPECT_EQ(LetreroEn(AUTO_ADELANTE), " Avance automático ");
    EXPECT_EQ(LetreroEn(RESTAURAR), " Restaurar puzzle ");
    Gbl.AutoAdelante = true;
    EXPECT_EQ(LetreroEn(ATRAS), "");
    EXPECT_EQ(LetreroEn(AUTO_ATRAS), "");
    EXPECT_EQ(LetreroEn(AUTO_ADELANTE), " Avance automático ");
    EXPECT_EQ(LetreroEn(RESTAURAR), "");
}

TEST_F(PanelGrabadora, PressWithoutHoverDoesNothingButHidesTheOptions) {
    Juega(1, 10, 20);
    Pic_SelOpciones.Visible = true;
    Pic_Grabadora_MouseDown(1, 0, MANDO[0], MANDO[1]);
    EXPECT_FALSE(Gbl.GrabadoraEncendida);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
}

TEST_F(PanelGrabadora, HundredAndOneMovesGrowTheLogWithoutLoss) {
    for (i16 i = 1; i <= 99; ++i) Juega(1, i, static_cast<i16>(2 * i));
    EXPECT_EQ(Gbl.Movimientos.Superior(), 100);
    for (i16 i = 100; i <= 101; ++i) {
        Juega(1, i, static_cast<i16>(2 * i));
        EXPECT_EQ(Gbl.Movimientos.Superior(), 200) << "it grows when the bound is reached";
    }
    EXPECT_EQ(Gbl.NumMovimientos, 101);
    EXPECT_EQ(Gbl.Movimientos.Superior(), 200);
    for (i16 i = 1; i <= 101; ++i) {
        EXPECT_EQ(Gbl.Movimientos[i].XDespues, i);
        EXPECT_EQ(Gbl.Movimientos[i].YDespues, 2 * i);
    }
}

TEST_F(PanelGrabadora, GoingBackFromAFinishedPuzzleTakesTheFinishBack) {
    for (i16 i = 1; i <= 4; ++i) Juega(i, Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien);
    Gbl.PuzzleTerminado = true;
    Pulsa(MANDO);
    Pulsa(ATRAS);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    Pulsa(ADELANTE);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
}

TEST_F(PanelGrabadora, SlidingHoleTakesTheStartOfTheReplayedMove) {
    Gbl.JuegoActual = JuegoDeslizantes;
    Juega(1, 240, 200);
    Pulsa(MANDO);
    Pulsa(AUTO_ATRAS);
    EXPECT_EQ(Gbl.HuecoX, 240);
    EXPECT_EQ(Gbl.HuecoY, 200);
    Pulsa(AUTO_ADELANTE);
    EXPECT_EQ(Gbl.HuecoX, 200);
    EXPECT_EQ(Gbl.HuecoY, 200);
}

TEST_F(PanelGrabadora, KeysShowPressedWhileTheyAct) {
    Juega(1, 10, 20);
    Juega(1, 40, 20);
    Pulsa(MANDO);
    Gbl.VelocidadJuego = 75;  // with pauses, at which the screen is looked at
    int atras = 0, adelante = 0, restaura = 0;
    P().alDormir = [&] {
        atras += Muestra(4, 25, 55, 25);
        adelante += Muestra(25, 25, 76, 25);
        EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
    };
    Pulsa(ATRAS);
    EXPECT_GT(atras, 0);
    Pulsa(ADELANTE);
    EXPECT_GT(adelante, 0);
    Pulsa(ATRAS);
    P().alDormir = [&] {
        restaura += Muestra(14, 57, 65, 57);
        EXPECT_EQ(Mesa.MousePointer, PUNTERO_RELOJ);
    };
    Pulsa(RESTAURAR);
    EXPECT_GT(restaura, 0);
    EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
    EXPECT_TRUE(Muestra(14, 57, 14, 57));
    EXPECT_TRUE(Muestra(4, 25, 4, 25));
}

}  // namespace
}  // namespace tessario
