// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/MesaMontada.h"
#include "jigsaw/Reparto.h"
#include "panel/Barajado.h"
#include "panel/Botonera.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "panel/Desplazamiento.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "rules/Despacho.h"
#include "rules/PuzzBas.h"
#include "table/Ordenes.h"

namespace tessario {

namespace {

// May a jigsaw piece be dealt to this place? Written from the rules, with the sizes of the test.
struct Reglas {
    i32 anchoMesa, altoMesa, tira, altoTira, valorV;
    bool Cumple(i32 x, i32 y) const {
        const i32 izq = x - Gbl.SalienteX;
        const i32 der = x + Gbl.AnchoCelda + Gbl.SalienteX;
        const i32 arr = y - Gbl.SalienteY;
        const i32 aba = y + Gbl.AltoCelda + Gbl.SalienteY;
        const bool cruzaLado = izq <= Gbl.AnchoPuzzle && der >= Gbl.AnchoPuzzle;
        const bool cruzaFondo = arr <= Gbl.AltoPuzzle && aba >= Gbl.AltoPuzzle;
        const bool bajoTira = 2 * x > 2 * (anchoMesa - tira) - Gbl.AnchoCelda &&
                              2 * y < 2 * (valorV + altoTira) - Gbl.AltoCelda;
        return !cruzaLado && !cruzaFondo && !bajoTira;
    }
};

std::vector<i32> Orden() {
    std::vector<i32> o;
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) o.push_back(Gbl.OrdenPiezas[i]);
    return o;
}

std::vector<Punto> Sitios() {
    std::vector<Punto> s;
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) s.push_back({Gbl.Piezas[i].X, Gbl.Piezas[i].Y});
    return s;
}

}  // namespace

class Barajado : public MesaMontada {
protected:
    Reglas DeLaMesa() {
        return {Pic_Trabajo.Width(), Pic_Trabajo.Height(), 141, 463, BarraVer.Value};
    }
    // Every piece one behind the other on the free table, the first of the stack being piece 1.
    void Apila(i32 x, i32 y) {
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
            Gbl.Piezas[i].X = static_cast<i16>(x);
            Gbl.Piezas[i].Y = static_cast<i16>(y);
            Gbl.Piezas[i].Giro = 0;
            Gbl.OrdenPiezas[i] = i;
        }
        ColocaPiezas(1);
    }
};

// ---------------------------------------------------------------- deal
TEST_F(Barajado, TangramDealIsOneColumnTwentyPixelsFromTheStrip) {
    Tangram(MODO_CREAR);
    // Boxes at giro 0: 177 x 89 twice, 125 x 63, 89 x 45 twice, 63 x 63, 132 x 44. Margin 20.
    const Punto esperado[] = {{462, 20},  {462, 129}, {514, 238}, {550, 321},
                              {550, 386}, {576, 451}, {507, 534}};
    for (i16 i = 1; i <= 7; ++i) {
        EXPECT_EQ(Gbl.Piezas[i].X, esperado[i - 1].x) << i;
        EXPECT_EQ(Gbl.Piezas[i].Y, esperado[i - 1].y) << i;
        EXPECT_EQ(Gbl.Piezas[i].Giro, 0) << i;
        EXPECT_EQ(Gbl.OrdenPiezas[i], i) << i;
    }
}

TEST_F(Barajado, SecondBigTriangleStandsOneTriangleAndTwoMarginsDown) {
    Tangram(MODO_CREAR);
    EXPECT_EQ(Gbl.Piezas[2].Y, 2 * Gbl.MargenY + AltoDePieza(1, 0, 0));
}

TEST_F(Barajado, TangramDealTurnsEveryPieceUprightAndOnItsFace) {
    Tangram(MODO_CREAR);
    for (i16 i = 1; i <= 7; ++i) Gbl.Piezas[i].Giro = 5;
    Gbl.Piezas[7].Volteo = 1;
    const auto sitios = Sitios();
    BarajaPiezas();
    for (i16 i = 1; i <= 7; ++i) EXPECT_EQ(Gbl.Piezas[i].Giro, 0);
    EXPECT_EQ(Gbl.Piezas[7].Volteo, 0);
    EXPECT_EQ(Sitios(), sitios);
}

TEST_F(Barajado, JigsawDealKeepsClearOfTheAreasEdgesAndOfTheStrip) {
    const struct {
        i16 lado;
        i32 ancho, alto;
        i16 forma;
    } casos[] = {{3, 320, 240, 0}, {5, 400, 300, 1},  {6, 480, 360, 2}, {4, 400, 320, 3},
                 {7, 640, 480, 0}, {5, 1024, 768, 4}, {10, 500, 380, 7}};
    for (const auto& c : casos) {
        Moviles(c.lado, c.ancho, c.alto, c.forma);
        const Reglas r = DeLaMesa();
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
            const Pieza& p = Gbl.Piezas[i];
            EXPECT_TRUE(r.Cumple(p.X, p.Y)) << c.lado << ": " << p.X << ", " << p.Y;
            EXPECT_GE(p.X, 1);
            EXPECT_LE(p.X, Pic_Trabajo.Width() - Gbl.AnchoCelda);
            EXPECT_GE(p.Y, 1);
            EXPECT_LE(p.Y, Pic_Trabajo.Height() - Gbl.AltoCelda);
            EXPECT_GE(p.Giro, 0);
            EXPECT_LE(p.Giro, 3);
        }
    }
}

TEST_F(Barajado, RefusedCandidatesAreDrawnAnewInPlaceOfTheirPiece) {
    Moviles(6, 480, 360);
    // The same draws again, by the rules: four passes over the stack, then x, y and turn a try.
    Randomize(P().Timer());
    std::vector<i16> orden;
    for (i16 i = 1; i <= 36; ++i) orden.push_back(i);
    for (int n = 0; n < 4 * 36; ++n) {
        const auto i = static_cast<std::ptrdiff_t>(36 * Rnd());
        std::rotate(orden.begin(), orden.begin() + i, orden.begin() + i + 1);
    }
    const Reglas r = DeLaMesa();
    int cruzaronElFondo = 0;
    for (auto p = orden.rbegin(); p != orden.rend(); ++p) {
        i32 x = 0, y = 0, giro = 0;
        do {
            x = static_cast<i32>(Rnd() * (800 - 80) + 1);
            y = static_cast<i32>(Rnd() * (600 - 60) + 1);
            giro = static_cast<i32>(Rnd() * 4);
            cruzaronElFondo += y <= 360 && y + 60 >= 360;
        } while (!r.Cumple(x, y));
        EXPECT_EQ(Gbl.Piezas[*p].X, x);
        EXPECT_EQ(Gbl.Piezas[*p].Y, y);
        EXPECT_EQ(Gbl.Piezas[*p].Giro, giro);
    }
    EXPECT_GT(cruzaronElFondo, 0);
    for (i16 i = 1; i <= 36; ++i)
        EXPECT_EQ(Gbl.OrdenPiezas[i], orden[static_cast<std::size_t>(i - 1)]);
}

TEST_F(Barajado, DealEndsOnATableWithoutAFreePlace) {
    // One piece as large as the picture: wherever it is put on the table, it crosses both edges.
    Moviles(1, 1024, 768);
    EXPECT_EQ(Gbl.NumPiezas, 1);
    const Pieza& p = Gbl.Piezas[1];
    EXPECT_GE(p.X, 1);
    EXPECT_LE(p.X, Pic_Trabajo.Width() - Gbl.AnchoCelda);
    EXPECT_GE(p.Y, 1);
    EXPECT_LE(p.Y, Pic_Trabajo.Height() - Gbl.AltoCelda);
}

TEST_F(Barajado, HintPanelKeepsPiecesAway) {
    Gbl.VentanaInformacion = true;
    Moviles(8, 480, 360);
    i32 abajo = 0;
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
        const Pieza& p = Gbl.Piezas[i];
        // Panel 423 wide at top 536; cells of 60 x 45.
        EXPECT_FALSE(423 - 30 > p.X && 536 - 22.5 < p.Y) << p.X << ", " << p.Y;
        abajo += 536 - 22.5 < p.Y;
    }
    EXPECT_GT(abajo, 0);  // the room beside the panel is used
}

// Strip and hint panel refuse a piece whose centre lies beyond their edge: one that has it exactly
// on the edge is dealt there.
TEST_F(Barajado, PieceIsDealtWithItsCentreExactlyOnTheEdgeOfStripAndHintPanel) {
    Gbl.PermitirGiro = false;
    Gbl.VentanaInformacion = true;
    Moviles(8, 480, 352);  // cells of 60 x 44; strip from 659 down to 463, panel 423 wide at 536
    i32 ladoTira = 0, fondoTira = 0, ladoPanel = 0, topePanel = 0;
    for (int n = 0; n < 400; ++n) {
        P().horaDelDia = n;
        BarajaMoviles();
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
            const Pieza& p = Gbl.Piezas[i];
            ladoTira += p.X == 659 - 30 && p.Y < 463 - 22;
            fondoTira += p.X > 659 - 30 && p.Y == 463 - 22;
            ladoPanel += p.X == 423 - 30 && p.Y > 536 - 22;
            topePanel += p.X < 423 - 30 && p.Y == 536 - 22;
        }
    }
    EXPECT_GT(ladoTira, 0);
    EXPECT_GT(fondoTira, 0);
    EXPECT_GT(ladoPanel, 0);
    EXPECT_GT(topePanel, 0);
}

TEST_F(Barajado, WithoutRotationNoPieceIsTurned) {
    Gbl.PermitirGiro = false;
    Moviles(5, 400, 300);
    for (i16 i = 1; i <= 25; ++i) EXPECT_EQ(Gbl.Piezas[i].Giro, 0);
}

TEST_F(Barajado, WithRotationAllFourTurnsComeUp) {
    Moviles(6, 480, 360);
    int vistos[4] = {};
    for (i16 i = 1; i <= 36; ++i) ++vistos[Gbl.Piezas[i].Giro];
    for (const int v : vistos) EXPECT_GT(v, 0);
}

TEST_F(Barajado, DealLeavesAStackOfEveryPieceOnceInAnotherOrder) {
    Moviles(5, 400, 300);
    auto o = Orden();
    std::vector<i32> todas;
    for (i32 i = 1; i <= 25; ++i) todas.push_back(i);
    EXPECT_NE(o, todas);
    std::sort(o.begin(), o.end());
    EXPECT_EQ(o, todas);
}

TEST_F(Barajado, DealStartsTheCountOfANewPuzzle) {
    Moviles(3, 300, 300);
    Gbl.SegundosJuego = 77;
    Gbl.NumMovimientos = 4;
    Gbl.PuzzleTerminado = true;
    Gbl.PuzzleArchivable = false;
    BarajaPiezas();
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_TRUE(Gbl.PuzzleArchivable);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_FALSE(Gbl.Barajando);
    EXPECT_EQ(Pic_Trabajo.MousePointer, PUNTERO_NORMAL);
}

TEST_F(Barajado, PiecesAreSeenToFallOneByOne) {
    Moviles(3, 300, 300);
    const int antes = P().presentaciones;
    BarajaPiezas();
    EXPECT_GE(P().presentaciones - antes, 9);
    // Each time one more, from the bottom of the stack up.
    Pon(4, 330, 30);
    std::vector<std::vector<Pixel>> vistas;
    P().alPresentar = [&] { vistas.push_back(Pic_Trabajo.Dibujo().Pixeles); };
    ColocaPiezas(0);
    P().alPresentar = nullptr;
    ASSERT_EQ(vistas.size(), 9U);
    Pic_Imagen.Cls();
    for (std::size_t i = 0; i < 9; ++i) {
        PonPieza(Gbl.OrdenPiezas[9 - static_cast<i32>(i)]);
        EXPECT_EQ(vistas[i], Pic_Imagen.Dibujo().Pixeles) << i;
    }
}

TEST_F(Barajado, ATableLaidAtOnceIsSeenAtItsEndAndOneLaidUnseenNotAtAll) {
    Moviles(3, 300, 300);
    const auto antes = Pic_Trabajo.Dibujo().Pixeles;
    for (i16 i = 1; i <= 9; ++i) {
        Gbl.Piezas[i].X = static_cast<i16>(40 * i);
        Gbl.Piezas[i].Y = 330;
    }
    P().alPresentar = [&] { EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, antes); };
    ColocaPiezas(2);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, antes);
    ColocaPiezas(1);
    EXPECT_NE(Pic_Trabajo.Dibujo().Pixeles, antes);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, Pic_Imagen.Dibujo().Pixeles);
}

TEST_F(Barajado, SlidingShuffleRunsWithTheBusyCursorAndTheClockStopped) {
    Deslizantes(3);
    int pasos = 0;
    P().alDejarPasar = [&] {
        ++pasos;
        EXPECT_TRUE(Gbl.Barajando);
        EXPECT_FALSE(Gbl.CronoEnMarcha);
        EXPECT_EQ(Pic_Trabajo.MousePointer, PUNTERO_RELOJ);
        EXPECT_FALSE(Gbl.ArrastrandoPieza);
    };
    BarajaPiezas();
    EXPECT_GE(pasos, 31);  // 8 pieces, 4 moves each, events between them
    EXPECT_FALSE(Gbl.Barajando);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_EQ(Gbl.NumMovimientos, 0);  // the shuffle is not logged
    EXPECT_EQ(Pic_Trabajo.MousePointer, PUNTERO_NORMAL);
}

// ---------------------------------------------------------------- side arrangement
TEST_F(Barajado, LoosePiecesGoDownAColumnAndThenAlongTheBottom) {
    Moviles(3, 300, 300);
    Apila(400, 200);
    MuestraColocadas();
    Gbl.OrdenandoPiezas = true;
    OrdenaLaterales();
    // 9 loose: c = 6, f = 659 / 6 / 100 = 1.098; steps of 109, first column at 559, row at 490.
    const Punto esperado[] = {{559, 0},   {559, 109}, {559, 218}, {559, 327}, {559, 436},
                              {450, 490}, {341, 490}, {232, 490}, {123, 490}};
    for (i16 i = 1; i <= 9; ++i) {
        EXPECT_EQ(Gbl.Piezas[i].X, esperado[i - 1].x) << i;
        EXPECT_EQ(Gbl.Piezas[i].Y, esperado[i - 1].y) << i;
    }
    EXPECT_EQ(Sonidos(), std::vector<int>(9, 52));
    EXPECT_EQ(Gbl.NumMovimientos, 9);
    EXPECT_EQ(Gbl.Movimientos[1], (Movimiento{1, 400, 200, 0, 0, 559, 0, 0, 0}));
    EXPECT_EQ(Gbl.Movimientos[9], (Movimiento{9, 400, 200, 0, 0, 123, 490, 0, 0}));
    EXPECT_EQ(Orden(), (std::vector<i32>{9, 8, 7, 6, 5, 4, 3, 2, 1}));
}

TEST_F(Barajado, RowThatIsFullGivesWayToAColumnFurtherIn) {
    Moviles(5, 500, 300);  // cells of 100 x 60, step 100
    Apila(560, 200);
    MuestraColocadas();
    Gbl.OrdenandoPiezas = true;
    OrdenaLaterales();
    // 25 loose: c = 8, f = 659 / 8 / 100 = 0.82375; 82 wide and 49 high. Column at 559 down to
    // 539, then y = round(600 - 82.375) = 518, capped to 500; leftwards 477, 395, ... 67; then
    // column at round(559 - 82.375) = 477 from the top.
    for (i16 i = 1; i <= 12; ++i) {
        EXPECT_EQ(Gbl.Piezas[i].X, 559) << i;
        EXPECT_EQ(Gbl.Piezas[i].Y, 49 * (i - 1)) << i;
    }
    for (i16 i = 13; i <= 18; ++i) {
        EXPECT_EQ(Gbl.Piezas[i].X, 559 - 82 * (i - 12)) << i;
        EXPECT_EQ(Gbl.Piezas[i].Y, 500) << i;
    }
    for (i16 i = 19; i <= 25; ++i) {
        EXPECT_EQ(Gbl.Piezas[i].X, 477) << i;
        EXPECT_EQ(Gbl.Piezas[i].Y, 49 * (i - 19)) << i;
    }
}

TEST_F(Barajado, PieceThatFindsColumnAndRowFullSharesItsPlaceWithTheNext) {
    Moviles(5, 500, 500);  // cells of 100, step 100
    Apila(560, 200);
    MuestraColocadas();
    Pic_Botonera.Left = 110;
    Gbl.VentanaInformacion = true;
    Pic_Sugerencia.Top = 200;
    Gbl.OrdenandoPiezas = true;
    OrdenaLaterales();
    // 25 loose: c = 8, f = 110 / 8 / 100 = 0.1375, 13 pixels a piece. Column at 10: 15 pieces end
    // at 195. The next would end at 208, and a row at y = 100 has no room left of 10: column at
    // round(10 - 13.75) = -4 from the top, where the drop to the next one is 0.
    EXPECT_EQ(Gbl.Piezas[15].X, 10);
    EXPECT_EQ(Gbl.Piezas[15].Y, 182);
    for (const i32 i : {16, 17}) {
        EXPECT_EQ(Gbl.Piezas[i].X, -4) << i;
        EXPECT_EQ(Gbl.Piezas[i].Y, 0) << i;
    }
    EXPECT_EQ(Gbl.Piezas[18].Y, 13);
}

TEST_F(Barajado, PlaceThatJustHoldsThePieceIsStillOfItsColumnOrRow) {
    Moviles(4, 200, 200);  // cells of 50, step 50
    Apila(560, 200);
    MuestraColocadas();
    Pic_Botonera.Left = 350;
    Gbl.VentanaInformacion = true;
    Pic_Sugerencia.Top = 400;
    Gbl.OrdenandoPiezas = true;
    OrdenaLaterales();
    // 16 loose: c = 7, f = 350 / 7 / 50 = 1. The column at 300 ends exactly at 400, the row at 350
    // exactly at the table's edge; the next column, at 250, would end above the row.
    for (i16 i = 1; i <= 16; ++i) {
        const Punto esperado = i <= 8    ? Punto{300, 50 * (i - 1)}
                               : i <= 14 ? Punto{300 - 50 * (i - 8), 350}
                                         : Punto{250, 50 * (i - 15)};
        EXPECT_EQ((Punto{Gbl.Piezas[i].X, Gbl.Piezas[i].Y}), esperado) << i;
    }
}

TEST_F(Barajado, ArrangementStaysAboveTheHintPanel) {
    Gbl.VentanaInformacion = true;
    Moviles(3, 300, 300);
    Apila(400, 200);
    MuestraColocadas();
    Gbl.OrdenandoPiezas = true;
    OrdenaLaterales();
    // Panel at top 536: the fifth piece would end at 545 and starts the row: round(536 - 109.83)
    // = 426.
    EXPECT_EQ(Gbl.Piezas[5].X, 450);
    EXPECT_EQ(Gbl.Piezas[5].Y, 426);
}

TEST_F(Barajado, PlacedPiecesStayWhereTheyAre) {
    Moviles(3, 300, 300);
    Apila(400, 200);
    Pon(1, Gbl.Piezas[1].XBien, Gbl.Piezas[1].YBien);
    Pon(5, Gbl.Piezas[5].XBien, Gbl.Piezas[5].YBien);
    Gbl.OrdenandoPiezas = true;
    OrdenaLaterales();
    EXPECT_TRUE(PiezaEnSuSitio(1));
    EXPECT_TRUE(PiezaEnSuSitio(5));
    EXPECT_EQ(Gbl.NumMovimientos, 7);
    EXPECT_EQ(Gbl.Piezas[2].Y, 0);  // the first loose one takes the first place
}

TEST_F(Barajado, WithAllPlacedNothingMovesAndNothingIsLogged) {
    Moviles(3, 300, 300);
    for (i16 i = 1; i <= 9; ++i) Pon(i, Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien);
    const auto sitios = Sitios();
    const auto orden = Orden();
    Gbl.OrdenandoPiezas = true;
    OrdenaLaterales();
    EXPECT_EQ(Sitios(), sitios);
    EXPECT_EQ(Orden(), orden);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_TRUE(P().sonidos.empty());
    EXPECT_FALSE(Gbl.OrdenandoPiezas);
}

TEST_F(Barajado, SecondPressOfTheButtonEndsItAfterTheCurrentPiece) {
    Moviles(3, 300, 300);
    Apila(400, 200);
    int pasos = 0;
    P().alDejarPasar = [&] {
        if (++pasos == 3) PulsaOrden(11);
    };
    PulsaOrden(11);
    EXPECT_EQ(Gbl.NumMovimientos, 3);
    EXPECT_EQ(Gbl.Piezas[4].X, 400);
    EXPECT_FALSE(Gbl.OrdenandoPiezas);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
}

TEST_F(Barajado, AnyOtherButtonEndsItToo) {
    Moviles(3, 300, 300);
    Apila(400, 200);
    int pasos = 0;
    P().alDejarPasar = [&] {
        if (++pasos == 2) PulsaOrden(6);
    };
    PulsaOrden(11);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
    EXPECT_EQ(P().ayudas, std::vector<i32>{0});
}

TEST_F(Barajado, MouseMovesDuringTheArrangementDragNothing) {
    Moviles(3, 300, 300);
    Apila(400, 200);
    Puntero.Mueve(450, 250);
    ASSERT_NE(Gbl.PiezaActual, 0);
    P().alDejarPasar = [&] {
        Puntero.Mueve(20, 20);
        Puntero.Mueve(460, 260);
    };
    PulsaOrden(11);
    EXPECT_EQ(Gbl.Piezas[9].X, 123);
    EXPECT_EQ(Gbl.Piezas[9].Y, 490);
    EXPECT_EQ(Gbl.Piezas[1].X, 559);
}

TEST_F(Barajado, BusyCursorDuringTheArrangementAndDefaultAfterIt) {
    Moviles(3, 300, 300);
    Apila(400, 200);
    P().alDejarPasar = [&] {
        EXPECT_EQ(Pic_Trabajo.MousePointer, PUNTERO_RELOJ);
        EXPECT_EQ(Gbl.CursorActual, 11);
    };
    Gbl.OrdenandoPiezas = true;
    OrdenaLaterales();
    EXPECT_EQ(Pic_Trabajo.MousePointer, PUNTERO_NORMAL);
    EXPECT_EQ(Gbl.CursorActual, 0);
}

TEST_F(Barajado, TangramPiecesGoBackToTheirColumn) {
    Tangram(MODO_CREAR);
    const auto sitios = Sitios();
    for (i16 i = 1; i <= 7; ++i) Gbl.Piezas[i].X = static_cast<i16>(Gbl.Piezas[i].X - 400);
    ColocaPiezas(1);
    Gbl.OrdenandoPiezas = true;
    OrdenaLaterales();
    EXPECT_EQ(Sitios(), sitios);
    EXPECT_EQ(Gbl.NumMovimientos, 7);
    EXPECT_EQ(Sonidos(), std::vector<int>(7, 52));
    EXPECT_EQ(Orden(), (std::vector<i32>{7, 6, 5, 4, 3, 2, 1}));
}

TEST_F(Barajado, TangramColumnThatIsFullStartsAnotherToItsLeft) {
    Tangram(MODO_CREAR);
    for (const i16 i : {i16{1}, i16{2}, i16{4}, i16{5}}) Gbl.Piezas[i].Giro = 2;  // tall boxes
    Gbl.OrdenandoPiezas = true;
    OrdenaLaterales();
    // 89 x 177 twice: tops 20 and 217, both at 550; then 125 x 63 at 414; 45 x 89 at 497 with end
    // 586; the next would end at 695: new column 20 left of the furthest, 514 - 20 - 45.
    EXPECT_EQ(Gbl.Piezas[1].X, 550);
    EXPECT_EQ(Gbl.Piezas[2].Y, 217);
    EXPECT_EQ(Gbl.Piezas[3].X, 514);
    EXPECT_EQ(Gbl.Piezas[3].Y, 414);
    EXPECT_EQ(Gbl.Piezas[4].X, 594);
    EXPECT_EQ(Gbl.Piezas[4].Y, 497);
    EXPECT_EQ(Gbl.Piezas[5].X, 449);
    EXPECT_EQ(Gbl.Piezas[5].Y, 20);
}

TEST_F(Barajado, TangramColumnTakesAPieceThatEndsExactlyAtTheFootOfTheScreen) {
    Tangram(MODO_CREAR);  // the seventh stands from 534 to 578
    for (const i16 alto : {i16{578}, i16{577}}) {
        Gbl.AltoPantalla = alto;
        Gbl.OrdenandoPiezas = true;
        OrdenaLaterales();
        EXPECT_EQ((Punto{Gbl.Piezas[7].X, Gbl.Piezas[7].Y}),
                  alto == 578 ? (Punto{507, 534}) : (Punto{462 - 20 - 132, 20}));
    }
}

TEST_F(Barajado, SecondPressEndsTheTangramsArrangementAfterTheCurrentPiece) {
    Tangram(MODO_CREAR);
    for (i16 i = 1; i <= 7; ++i) Gbl.Piezas[i].X = static_cast<i16>(Gbl.Piezas[i].X - 400);
    const auto sitios = Sitios();
    int pasos = 0;
    P().alDejarPasar = [&] {
        if (++pasos == 2) PulsaOrden(11);
    };
    PulsaOrden(11);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
    for (i16 i = 3; i <= 7; ++i)
        EXPECT_EQ(Sitios()[static_cast<std::size_t>(i - 1)],
                  sitios[static_cast<std::size_t>(i - 1)])
            << i;
    EXPECT_FALSE(Gbl.OrdenandoPiezas);
}

TEST_F(Barajado, TangramPiecesInTheirPlaceStayThere) {
    Tangram(MODO_CREAR);
    Pieza& p = Gbl.Piezas[3];
    p.X = p.XBien = 114;
    p.Y = p.YBien = 300;
    ColocaPiezas(1);
    Gbl.OrdenandoPiezas = true;
    OrdenaLaterales();
    EXPECT_EQ((Punto{p.X, p.Y}), (Punto{114, 300}));
    EXPECT_EQ(Gbl.NumMovimientos, 6);
    EXPECT_EQ(Gbl.Piezas[4].Y, 238) << "the next one takes its place in the column";
}

// ---------------------------------------------------------------- triangles
TEST_F(Barajado, TriangleReportsTheHalfOfItsBoxThatItFills) {
    Moviles(3, 300, 300, 3);  // cells of 99 x 100
    for (i16 i = 1; i <= 4; ++i) Pon(i, 10, 20);
    const struct {
        i16 pieza;
        i32 x, y, ancho, alto;
    } casos[] = {{4, 10, 20, 99, 50},    // top
                 {1, 60, 20, 50, 100},   // right: 99 / 2 to the nearest even is 50
                 {2, 10, 70, 99, 50},    // bottom
                 {3, 10, 20, 50, 100}};  // left
    for (const auto& c : casos) {
        MideTriangulo(c.pieza);
        EXPECT_EQ(Gbl.TriX, c.x) << c.pieza;
        EXPECT_EQ(Gbl.TriY, c.y) << c.pieza;
        EXPECT_EQ(Gbl.TriAncho, c.ancho) << c.pieza;
        EXPECT_EQ(Gbl.TriAlto, c.alto) << c.pieza;
    }
}

TEST_F(Barajado, TrianglesAreLinedUpByTheHalfThatShows) {
    Moviles(3, 300, 300, 3);
    Apila(400, 200);
    MuestraColocadas();
    Gbl.OrdenandoPiezas = true;
    OrdenaLaterales();
    // The first is a right triangle: its empty left half of 50 hangs out of the place at 559.
    EXPECT_EQ(Gbl.Piezas[1].X, 659 - Gbl.PasoOrdenar - 50);
    EXPECT_EQ(Gbl.Piezas[1].Y, 0);
    // The second, a bottom one, hangs up by its empty upper half.
    EXPECT_EQ(Gbl.Piezas[2].X, 659 - Gbl.PasoOrdenar);
    EXPECT_LT(Gbl.Piezas[2].Y, Gbl.Piezas[1].Y + 100);
}

}  // namespace tessario
