// SPDX-License-Identifier: GPL-3.0-or-later
// What the strip shows of its commands: what is forbidden and what is going on, from the moment
// that it is so, whether the pointer moves or not.
#include "apoyo/MesaMontada.h"
#include "table/Ordenes.h"
#include "table/Raton.h"

namespace tessario {

namespace {

using Botones = std::vector<i16>;

Cara CaraDe(i16 i) {
    std::vector<Cara> caras;
    Pic_Boton(i).Caras(caras);
    EXPECT_EQ(caras.size(), 1U) << "a button is one part";
    EXPECT_EQ(caras.at(0).Donde, RectDe(0, 0, 48, 48));
    return caras.at(0);
}

Botones Con(bool Cara::*estado) {
    Botones v;
    for (i16 i = 1; i <= 12; ++i)
        if (Pic_Boton(i).Visible && CaraDe(i).*estado) v.push_back(i);
    return v;
}
Botones Apagadas() {
    return Con(&Cara::Apagada);
}
Botones Encendidas() {
    return Con(&Cara::Encendida);
}

// Of the recorder's keys: power, back, forward, auto back, auto forward, restore.
std::string Teclas() {
    std::vector<Cara> caras;
    Pic_Grabadora.Caras(caras);
    std::string s;
    for (const Cara& c : caras) s += c.Encendida ? '*' : c.Apagada ? '-' : 'o';
    return s;
}

}  // namespace

class Estados : public MesaMontada {};

TEST_F(Estados, JigsawInPlayFadesNothing) {
    Moviles(3, 300, 300);
    EXPECT_EQ(Apagadas(), Botones{});
    EXPECT_EQ(Encendidas(), Botones{8}) << "the sample is shown";
}

TEST_F(Estados, FinishedPuzzleFadesWhatPlaysOnAtOnce) {
    Moviles(2, 200, 200);
    for (i16 p = 1; p <= 3; ++p) Pon(p, Gbl.Piezas[p].XBien, Gbl.Piezas[p].YBien);
    Pon(4, 300, 300);
    Arrastra(4, 100, 100);  // the pointer stays over the table
    ASSERT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_EQ(Apagadas(), (Botones{3, 9, 10, 11, 12}));
    EXPECT_EQ(Gbl.BotonEstado[10], BOTON_USABLE) << "what a press does waits for the pointer";
}

TEST_F(Estados, RecorderFadesTheCommandsAndItsKeysFollowTheLog) {
    Moviles(2, 200, 200);
    for (i16 p = 1; p <= 4; ++p) Pon(p, 150 + p * 60, 250);
    EXPECT_EQ(Teclas(), "o-----") << "off";
    Arrastra(1, 20, 300);
    Arrastra(2, 60, 350);
    EXPECT_EQ(Teclas(), "o-----");
    const Punto o = PunteroPrueba::Origen(Pic_Grabadora);
    const auto pulsa = [&](i32 x, i32 y) { Puntero.Pulsa(o.x + x, o.y + y); };
    pulsa(25, 12);
    ASSERT_TRUE(Gbl.GrabadoraEncendida);
    EXPECT_EQ(Apagadas(), (Botones{1, 2, 3, 4, 9, 10, 11, 12}));
    EXPECT_EQ(Teclas(), "*o-o--") << "at the end of the log";
    pulsa(14, 31);
    EXPECT_EQ(Teclas(), "*ooooo") << "one move back";
    std::string durante;
    P().alDejarPasar = [&] { durante = Teclas(); };
    pulsa(14, 47);
    EXPECT_EQ(durante, "*--*--") << "an automatic run is at work, and has come to the start";
    EXPECT_EQ(Teclas(), "*-o-oo") << "at the start";
    pulsa(25, 12);
    EXPECT_EQ(Apagadas(), Botones{});
    EXPECT_EQ(Teclas(), "o-----");
}

TEST_F(Estados, TangramFadesTheSampleAndInDesignWhateverNeedsPlaces) {
    Tangram(MODO_RESOLVER);
    EXPECT_EQ(Apagadas(), Botones{8});
    Tangram(MODO_CREAR);
    EXPECT_EQ(Apagadas(), (Botones{3, 8, 10, 12}));
    EXPECT_TRUE(Gbl.MostrarMuestra);
    EXPECT_EQ(Encendidas(), Botones{}) << "there is no sample to show";
}

TEST_F(Estados, SampleIsLitWhileItIsShown) {
    Moviles(3, 300, 300);
    PulsaOrden(8);
    EXPECT_EQ(Encendidas(), Botones{});
    PulsaOrden(8);
    EXPECT_EQ(Encendidas(), Botones{8});
    Deslizantes(3);
    EXPECT_EQ(Encendidas(), Botones{}) << "numbers have no sample";
    Gbl.TipoFondo = FONDO_IMAGEN;
    EXPECT_EQ(Encendidas(), Botones{8});
}

TEST_F(Estados, WaitingTutorIsLitUntilTheTableIsPressed) {
    Moviles(3, 300, 300);
    Gbl.MostrarMuestra = false;
    PulsaOrden(3);
    EXPECT_EQ(Encendidas(), Botones{3});
    Pic_Trabajo_MouseDown(BOTON_DERECHO, 0, 0, 590);
    EXPECT_EQ(Encendidas(), Botones{});
}

TEST_F(Estados, TutorOfTheSlidingBoardIsLitWhileItPlays) {
    Deslizantes(3);
    Botones durante;
    P().alDejarPasar = [&] { durante = Encendidas(); };
    PulsaOrden(3);
    EXPECT_EQ(durante, Botones{3});
    EXPECT_EQ(Encendidas(), Botones{});
}

TEST_F(Estados, ColouredDisplayIsLitUntilItIsPressedAgain) {
    Moviles(3, 300, 300);
    Gbl.MostrarMuestra = false;
    PulsaOrden(10);
    EXPECT_EQ(Encendidas(), Botones{10});
    PulsaOrden(10);
    EXPECT_EQ(Encendidas(), Botones{});
}

TEST_F(Estados, ArrangementAndSolverAreLitWhileTheyWork) {
    Moviles(3, 300, 300);
    Gbl.MostrarMuestra = false;
    Botones durante;
    P().alDejarPasar = [&] { durante = Encendidas(); };
    PulsaOrden(11);
    EXPECT_EQ(durante, Botones{11});
    EXPECT_EQ(Encendidas(), Botones{});
    PulsaOrden(12);
    EXPECT_EQ(durante, Botones{12});
    EXPECT_EQ(Encendidas(), Botones{});
}

TEST_F(Estados, SolverOfTheSlidingBoardLightsItsOwnButtonAlone) {
    Deslizantes(3);
    Botones durante;
    P().alDejarPasar = [&] { durante = Encendidas(); };
    PulsaOrden(12);
    EXPECT_EQ(durante, Botones{12});
}

TEST_F(Estados, ShuffleIsLitWhileItWorks) {
    Deslizantes(3);
    Botones durante;
    P().alDejarPasar = [&] { durante = Encendidas(); };
    PulsaOrden(1);
    EXPECT_EQ(durante, Botones{1});
    EXPECT_EQ(Encendidas(), Botones{});
}

TEST_F(Estados, ManualOrderIsLitUntilAnotherCommandLeavesIt) {
    Deslizantes(3);
    P().respuestas = {true};
    PulsaOrden(11);
    EXPECT_EQ(Encendidas(), Botones{11});
    TableroResuelto();
    PulsaOrden(6);
    EXPECT_EQ(Encendidas(), Botones{});
}

}  // namespace tessario
