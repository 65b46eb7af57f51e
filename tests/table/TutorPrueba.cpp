// SPDX-License-Identifier: GPL-3.0-or-later
// The tutor: three flashes of the place where a piece belongs, and what they leave unchanged.
#include "apoyo/MesaMontada.h"
#include "core/Superficies.h"
#include "panel/Colocadas.h"
#include "rules/PuzzBas.h"
#include "table/Tutor.h"

namespace tessario {
namespace {

constexpr Color MESA = 0x800000;

class TutorDeJuego : public PruebaBase {
protected:
    // A jigsaw of four flat squares of 40 x 30 on a table of 200 x 150; piece 1 lies apart.
    void SetUp() override {
        PruebaBase::SetUp();
        Gbl.VelocidadJuego = 50;
        Gbl.JuegoActual = JuegoMoviles;
        Gbl.FormaPiezas = 0;
        Gbl.PiezasPorLado = 2;
        Gbl.NumPiezas = 4;
        Gbl.AnchoCelda = Gbl.AnchoPieza = 40;
        Gbl.AltoCelda = Gbl.AltoPieza = 30;
        Gbl.AnchoPuzzle = 80;
        Gbl.AltoPuzzle = 60;
        Gbl.PuzzleArchivable = true;
        Pic_Bitmap.PonBackColor(0x00FFFF);
        Pic_Bitmap.Tamano(80, 60);
        for (Superficie* s : {static_cast<Superficie*>(&Pic_Trabajo), &Pic_Imagen, &Pic_Fondo}) {
            s->PonBackColor(MESA);
            s->Tamano(200, 150);
        }
        Gbl.Piezas.Redimensiona(4);
        Gbl.OrdenPiezas.Redimensiona(4);
        for (i16 i = 1; i <= 4; ++i) {
            Pieza& p = Gbl.Piezas[i];
            p.X = p.XBien = static_cast<i16>((i - 1) % 2 * 40);
            p.Y = p.YBien = static_cast<i16>((i - 1) / 2 * 30);
            Gbl.OrdenPiezas[i] = i;
        }
        Gbl.Piezas[1].X = 120;
        Gbl.Piezas[1].Y = 100;
        ColocaPiezas(1);
        Gbl.PiezaActual = 1;
        Gbl.TutorEsperando = true;
    }
};

TEST_F(TutorDeJuego, FlashesTheInvertedPlaceThreeTimesWhileThePieceIsAway) {
    std::vector<Color> lugar, pieza;
    P().alDormir = [&] {
        lugar.push_back(Pic_Trabajo.Point(20, 15));
        pieza.push_back(Pic_Trabajo.Point(140, 115));
    };
    TutorIndicando();
    const Color invertido = MESA ^ 0xFFFFFFU;
    ASSERT_EQ(lugar.size(), 7U) << "one pause before, two in each flash";
    EXPECT_EQ(lugar, (std::vector<Color>{MESA, invertido, MESA, invertido, MESA, invertido, MESA}));
    EXPECT_EQ(pieza,
              (std::vector<Color>{0x00FFFF, MESA, 0x00FFFF, MESA, 0x00FFFF, MESA, 0x00FFFF}));
    EXPECT_DOUBLE_EQ(P().dormido, 80 + 3 * (130 + 170));
}

TEST_F(TutorDeJuego, InvertedBoxHasBothItsCorners) {
    bool esquina = false, fuera = false;
    int n = 0;
    P().alDormir = [&] {
        if (++n != 2) return;
        esquina = Pic_Trabajo.Point(40, 30) == (0x00FFFFU ^ 0xFFFFFFU);
        fuera = Pic_Trabajo.Point(41, 31) == 0x00FFFFU;
    };
    TutorIndicando();
    EXPECT_TRUE(esquina) << "the box reaches one pixel over the neighbouring cell";
    EXPECT_TRUE(fuera);
}

TEST_F(TutorDeJuego, LeavesPieceOrderAndLogAsTheyWere) {
    const Arreglo<i16> orden = Gbl.OrdenPiezas;
    const Pieza antes = Gbl.Piezas[1];
    TutorIndicando();
    EXPECT_EQ(Gbl.Piezas[1], antes);
    for (i32 i = 1; i <= 4; ++i) EXPECT_EQ(Gbl.OrdenPiezas[i], orden[i]);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Pic_Trabajo.DrawMode, MODO_COPIA);
}

TEST_F(TutorDeJuego, OneUseEndsTheModeAndForfeitsTheHistory) {
    TutorIndicando();
    EXPECT_FALSE(Gbl.TutorEsperando);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
    TutorIndicando();
    EXPECT_FALSE(Gbl.PuzzleArchivable);
}

TEST_F(TutorDeJuego, SoundsThreeTimes) {
    Gbl.Sonido = true;
    TutorIndicando();
    ASSERT_EQ(P().sonidos.size(), 3U);
    for (const auto& s : P().sonidos) EXPECT_EQ(s.first, 55);
}

TEST_F(TutorDeJuego, PieceDeepInTheStackStaysThereAndThePausesFollowInTheirOrder) {
    const i16 orden[] = {3, 4, 1, 2};
    for (i16 i = 1; i <= 4; ++i) Gbl.OrdenPiezas[i] = orden[i - 1];
    ColocaPiezas(1);
    std::vector<double> momentos;
    P().alDormir = [&] { momentos.push_back(P().reloj); };
    TutorIndicando();
    for (i16 i = 1; i <= 4; ++i) EXPECT_EQ(Gbl.OrdenPiezas[i], orden[i - 1]);
    momentos.push_back(P().reloj);
    std::vector<double> pausas;
    for (std::size_t i = 1; i < momentos.size(); ++i)
        pausas.push_back(momentos[i] - momentos[i - 1]);
    EXPECT_EQ(pausas, (std::vector<double>{80, 130, 170, 130, 170, 130, 170}));
}

TEST_F(TutorDeJuego, LaterUseForfeitsAgainAndEndsTheModeAgain) {
    TutorIndicando();
    Gbl.PuzzleArchivable = true;  // as another puzzle would have it
    Gbl.TutorEsperando = true;
    TutorIndicando();
    EXPECT_FALSE(Gbl.PuzzleArchivable);
    EXPECT_FALSE(Gbl.TutorEsperando);
}

class TutorDelTangram : public MesaMontada {};

TEST_F(TutorDelTangram, FlashesTheSilhouettesPartThreeTimesWhileThePieceIsAway) {
    Tangram(MODO_RESOLVER);
    Gbl.VelocidadJuego = 50;
    // A corner of the square's place is covered by another piece, the opposite one is watched.
    Pon(4, Gbl.Piezas[6].XBien - 10, Gbl.Piezas[6].YBien - 15);
    const Punto sitio{Gbl.Piezas[6].XBien + 60, Gbl.Piezas[6].YBien + 60};
    const Pieza antes = Gbl.Piezas[6];
    const Punto suyo = PuntoDe(6), encima = PuntoDe(4);
    const Color cuatro = Pic_Trabajo.Point(encima.x, encima.y);
    Gbl.PiezaActual = 6;
    Gbl.TutorEsperando = Gbl.PuzzleArchivable = true;
    std::string lugar, pieza, vecina;
    P().alDormir = [&] {
        lugar += Pic_Trabajo.Point(sitio.x, sitio.y) == Gbl.ColorContraste ? 'x' : '.';
        pieza += Pic_Trabajo.Point(suyo.x, suyo.y) == Gbl.ColorFondo ? '.' : 'x';
        vecina += Pic_Trabajo.Point(encima.x, encima.y) == cuatro ? 'x' : '.';
    };
    P().sonidos.clear();
    TutorIndicando();
    EXPECT_EQ(lugar, "x.x.x.x") << "one pause before, two in each flash";
    EXPECT_EQ(pieza, "x.x.x.x");
    EXPECT_EQ(vecina, "xxxxxxx") << "the other pieces stay";
    EXPECT_DOUBLE_EQ(P().dormido, 80 + 3 * (130 + 170));
    EXPECT_EQ(Sonidos(), (std::vector<int>{55, 55, 55}));
    EXPECT_EQ(Gbl.Piezas[6], antes);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_FALSE(Gbl.TutorEsperando);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
}

}  // namespace
}  // namespace tessario
