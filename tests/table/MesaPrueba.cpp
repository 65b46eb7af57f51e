// SPDX-License-Identifier: GPL-3.0-or-later
#include <set>

#include "apoyo/MesaMontada.h"
#include "panel/Cronometro.h"
#include "rules/PuzzBas.h"
#include "table/Mesa.h"

namespace tessario {

class VentanaMesa : public MesaMontada {};

TEST_F(VentanaMesa, ContainersStandBeforeWhatTheyHold) {
    std::set<const Control*> vistos;
    for (const Control* c : Mesa.Controles) {
        const bool antes = !c->Contenedor || vistos.count(c->Contenedor) == 1;
        EXPECT_TRUE(antes) << c->Nombre;
        EXPECT_TRUE(vistos.insert(c).second) << c->Nombre;
    }
    EXPECT_EQ(vistos.size(),
              27U);  // 10 on the window and the table, 12 buttons, 4 instruments, the cross
}

TEST_F(VentanaMesa, WhatLiesOnTheTableScrollsWithIt) {
    for (const Cuadro* c : {&Pic_Muestra, &Pic_Sugerencia, &Pic_SelOpciones})
        EXPECT_EQ(c->Contenedor, &Pic_Trabajo) << c->Nombre;
    for (i32 i = 1; i <= 12; ++i) EXPECT_EQ(Pic_Boton(i).Contenedor, &Pic_Botonera);
    EXPECT_EQ(Pic_CroTime.Contenedor, &Pic_Cronome);
    EXPECT_EQ(BarraVer.Contenedor, nullptr);
}

TEST_F(VentanaMesa, ButtonsAreReachedByKeyboardAndCanBeReadAloud) {
    for (i32 i = 1; i <= 12; ++i) {
        EXPECT_TRUE(Pic_Boton(i).TabStop) << i;
        EXPECT_FALSE(Pic_Boton(i).NombreAccesible.empty() && Pic_Boton(i).ToolTipText.empty());
    }
}

TEST_F(VentanaMesa, TimerTicksOnceASecond) {
    EXPECT_EQ(Timer1.Interval, 1000);
    EXPECT_TRUE(Timer1.Enabled);
    ASSERT_EQ(Mesa.Temporizadores, std::vector<Temporizador*>{&Timer1});
    CambiaCrono(1);
    Timer1.Timer();
    EXPECT_EQ(Gbl.SegundosJuego, 1);
}

TEST_F(VentanaMesa, LoadingClearsTheAutomaticRunsOfTheRecorder) {
    Gbl.AutoAtras = Gbl.AutoAdelante = true;
    Mesa.Load();
    EXPECT_FALSE(Gbl.AutoAtras);
    EXPECT_FALSE(Gbl.AutoAdelante);
}

TEST_F(VentanaMesa, ClosingTheWindowAsksLikeTheExitButton) {
    Moviles(3, 300, 300);
    P().Muestra(Mesa);
    bool cancela = false;
    P().respuestas = {false, true};
    Mesa.QueryUnload(cancela);
    EXPECT_TRUE(cancela);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Salir de TESSARIO");
    EXPECT_FALSE(P().terminado);
    Mesa.QueryUnload(cancela);
    EXPECT_TRUE(P().terminado);
}

TEST_F(VentanaMesa, ErrorInAHandlerDoesNotLeaveIt) {
    Moviles(3, 300, 300);
    Gbl.OrdenPiezas[1] = 99;  // a piece that does not exist
    EXPECT_NO_THROW(Pic_Trabajo.MouseMove(0, 0, 50, 50));
    EXPECT_NO_THROW(Pic_Boton(9).MouseDown(BOTON_IZQUIERDO, 0, 0, 0));
}

TEST_F(VentanaMesa, StripStandsAboveTheTable) {
    Moviles(3, 300, 300);
    Pon(1, 700, 300);
    Puntero.Mueve(720, 320);  // the piece lies under the strip
    EXPECT_EQ(Gbl.PiezaActual, 0);
    EXPECT_NE(Puntero.Debajo(), &Pic_Trabajo);
}

}  // namespace tessario
