// SPDX-License-Identifier: GPL-3.0-or-later
// The recorder on a table whose stack is not in order: what a replay raises, sounds, waits for
// and counts, key by key.
#include "apoyo/MesaMontada.h"
#include "panel/Colocadas.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

constexpr float MANDO[] = {20, 12}, ATRAS[] = {14, 31}, ADELANTE[] = {35, 31};
constexpr float AUTO_ATRAS[] = {14, 47}, AUTO_ADELANTE[] = {35, 47}, RESTAURAR[] = {24, 63};

class Repeticion : public MesaMontada {
protected:
    // Nine pieces beside the puzzle, the stack from 9 to 1, and a log of six straight moves.
    void Rompecabezas() {
        Moviles(3, 300, 300);
        for (i16 i = 1; i <= 9; ++i) {
            Gbl.Piezas[i].X = static_cast<i16>(320 + 20 * i);
            Gbl.Piezas[i].Y = 350;
            Gbl.Piezas[i].Giro = 0;
        }
        for (const i16 p : std::vector<i16>{4, 7, 4, 2, 7, 1}) {
            SubePieza(PosicionEnOrden(p));
            Pieza& z = Gbl.Piezas[p];
            const Pieza antes = z;
            z.Y = static_cast<i16>(z.Y - 14);
            RegistraMovimiento(antes.X, antes.Y, 0, 0, z.X, z.Y, 0, 0);
        }
        for (i16 i = 1; i <= 9; ++i) Gbl.OrdenPiezas[i] = static_cast<i16>(10 - i);
        ColocaPiezas(1);
        P().sonidos.clear();
    }
    void Pulsa(const float (&lugar)[2]) {
        Pic_Grabadora_MouseMove(0, 0, lugar[0], lugar[1]);
        Pic_Grabadora_MouseDown(1, 0, lugar[0], lugar[1]);
    }
    // Does the key at (x, y) of the panel show the tile (xo, yo), all its 21 by 13 pixels?
    static bool Muestra(i32 x, i32 y, i32 xo, i32 yo) {
        for (i32 j = 0; j < 13; ++j)
            for (i32 i = 0; i < 21; ++i)
                if (Pic_Grabadora.Point(x + i, y + j) != Pic_BmpVario.Point(xo + i, yo + j))
                    return false;
        return true;
    }
};

}  // namespace

TEST_F(Repeticion, ReplayedPieceComesToTheTopOfTheStackBothWays) {
    Rompecabezas();
    Pulsa(MANDO);
    for (const i16 p : std::vector<i16>{1, 7, 2, 4, 7}) {
        Pulsa(ATRAS);
        EXPECT_EQ(Gbl.OrdenPiezas[1], p);
    }
    for (i16 i = 1; i <= 9; ++i) Gbl.OrdenPiezas[i] = i;
    for (const i16 p : std::vector<i16>{7, 4, 2, 7, 1}) {
        Pulsa(ADELANTE);
        EXPECT_EQ(Gbl.OrdenPiezas[1], p);
    }
    EXPECT_EQ(Gbl.OrdenPiezas[4], 4) << "4 was raised before 2, 7 and 1";
}

TEST_F(Repeticion, ReplayedTurnsAreSeenOnTheTableBothWays) {
    Tangram(MODO_RESOLVER);
    Pic_Grabadora.Visible = true;
    // The parallelogram: carried, turned over, turned; each with the table as it then was.
    std::vector<Pieza> lugares{Gbl.Piezas[7]};
    const Pieza pasos[] = {{300, 200, 0, 0}, {300, 240, 0, 1}, {310, 260, 3, 1}};
    std::vector<std::vector<Pixel>> vistas;
    const auto vista = [&] {
        ColocaPiezas(1);
        vistas.push_back(Pic_Trabajo.Dibujo().Pixeles);
    };
    SubePieza(PosicionEnOrden(7));
    vista();
    for (const Pieza& paso : pasos) {
        Pieza& p = Gbl.Piezas[7];
        const Pieza antes = p;
        p.X = paso.X;
        p.Y = paso.Y;
        p.Giro = paso.Giro;
        p.Volteo = paso.Volteo;
        RegistraMovimiento(antes, p);
        lugares.push_back(p);
        vista();
    }
    for (std::size_t i = 3; i-- > 0;) {
        ReproduceMovimiento(1);
        EXPECT_EQ(Gbl.Piezas[7], lugares[i]) << i;
        EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, vistas[i]) << i;
    }
    for (std::size_t i = 1; i <= 3; ++i) {
        ReproduceMovimiento(0);
        EXPECT_EQ(Gbl.Piezas[7], lugares[i]) << i;
        EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, vistas[i]) << i;
    }
}

TEST_F(Repeticion, EveryKeyHasItsTwoSounds) {
    Rompecabezas();
    using V = std::vector<int>;
    Pulsa(MANDO);
    EXPECT_EQ(Sonidos(), V{6});
    Pulsa(ATRAS);
    EXPECT_EQ(Sonidos(), (V{6, 7}));
    Pulsa(ADELANTE);
    EXPECT_EQ(Sonidos(), (V{6, 7}));
    Pulsa(AUTO_ATRAS);
    EXPECT_EQ(Sonidos(), (V{6, 7}));
    Pulsa(AUTO_ADELANTE);
    EXPECT_EQ(Sonidos(), (V{6, 7}));
    Pulsa(ATRAS);
    Sonidos();
    Pulsa(RESTAURAR);
    EXPECT_EQ(Sonidos(), (V{6, 7}));
    Pulsa(MANDO);
    Sonidos();
    Pulsa(MANDO);
    EXPECT_EQ(Sonidos(), V{7});
}

TEST_F(Repeticion, SwitchingOffAndRestoringRestAndCountAnew) {
    Rompecabezas();
    Gbl.VelocidadJuego = 50;
    for (const bool restaura : {false, true}) {
        Pulsa(MANDO);
        if (restaura) Pulsa(ATRAS);
        Pon(5, Gbl.Piezas[5].XBien, Gbl.Piezas[5].YBien);
        ASSERT_EQ(Gbl.PiezasColocadas, 1);
        Gbl.PiezasColocadas = 6;
        const double antes = P().dormido;
        restaura ? Pulsa(RESTAURAR) : Pulsa(MANDO);
        EXPECT_DOUBLE_EQ(P().dormido - antes, restaura ? 8 + 8 + 10 : 10 + 10);
        EXPECT_EQ(Gbl.PiezasColocadas, 1);
        EXPECT_FALSE(Gbl.GrabadoraEncendida);
    }
}

TEST_F(Repeticion, KeysOfARunShowPressedDuringItAndReleasedAfterIt) {
    Rompecabezas();
    Pulsa(MANDO);
    int pasos = 0, apretada = 0;
    i32 x = 4, xo = 55;
    P().alDejarPasar = [&] {
        ++pasos;
        apretada += Muestra(x, 41, xo, 41);
    };
    Pulsa(AUTO_ATRAS);
    EXPECT_EQ(pasos, 6);
    EXPECT_EQ(apretada, 6);
    EXPECT_TRUE(Muestra(4, 41, 4, 41));
    x = 25;
    xo = 76;
    Pulsa(AUTO_ADELANTE);
    EXPECT_EQ(apretada, 12);
    EXPECT_TRUE(Muestra(25, 41, 25, 41));
}

TEST_F(Repeticion, OtherRunCannotBeStartedUnderOneUnderWay) {
    Rompecabezas();
    Pulsa(MANDO);
    int pasos = 0;
    P().alDejarPasar = [&] {
        if (++pasos == 2) Pulsa(AUTO_ADELANTE);
    };
    Pulsa(AUTO_ATRAS);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(pasos, 6);
    pasos = 0;
    P().alDejarPasar = [&] {
        if (++pasos == 2) Pulsa(AUTO_ATRAS);
    };
    Pulsa(AUTO_ADELANTE);
    EXPECT_EQ(Gbl.NumMovimientos, 6);
    EXPECT_EQ(pasos, 6);
}

TEST_F(Repeticion, SlidingLogHoldsNoOrientation) {
    Deslizantes(3);
    TableroResuelto();
    Gbl.NumMovimientos = 0;
    SubePieza(PosicionEnOrden(8));
    RegistraMovimiento(1, 2, 3, 1, 5, 6, 2, 1);
    const Movimiento& m = Gbl.Movimientos[1];
    EXPECT_EQ(m.Pieza, 8);
    EXPECT_EQ(m.XAntes, 1);
    EXPECT_EQ(m.YAntes, 2);
    EXPECT_EQ(m.XDespues, 5);
    EXPECT_EQ(m.YDespues, 6);
    for (const i16 v : {m.GiroAntes, m.VolteoAntes, m.GiroDespues, m.VolteoDespues})
        EXPECT_EQ(v, 0);
}

}  // namespace tessario
