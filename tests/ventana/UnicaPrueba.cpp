// SPDX-License-Identifier: GPL-3.0-or-later
// Two starts of the real program by one player.
#include <signal.h>

#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

class UnicaVentana : public testing::Test {
protected:
    void SetUp() override {
        programa.QuitaAjustes();
        programa.EscribeGlobal(22, 100);
        programa.Lanzalo();
        ASSERT_TRUE(e.Responde("Error en la carga de datos iniciales", false));
        ASSERT_TRUE(programa.LlegaALaMesa());
    }
    bool SeVeLaTira() { return e.Mira().Cuenta(700, 0, 100, 460, 0xB2513C) > 1000; }

    Escritorio e{800, 600};
    Programa programa{e};
};

TEST_F(UnicaVentana, ASecondStartBringsTheFirstBackAndEnds) {
    ASSERT_TRUE(SeVeLaTira());
    e.Tecla("Escape");
    ASSERT_TRUE(e.Espera([&] { return !SeVeLaTira(); }));
    EXPECT_EQ(programa.ArrancaOtra(), 0);
    EXPECT_TRUE(e.Espera([&] { return SeVeLaTira(); }));
    EXPECT_TRUE(programa.Vive());
    ASSERT_TRUE(programa.Sale());
}

TEST_F(UnicaVentana, AfterACrashNothingStandsInTheWay) {
    kill(programa.Pid(), SIGKILL);
    programa.EsperaFin();
    EXPECT_TRUE(programa.Arranca());
    ASSERT_TRUE(programa.Sale());
}

}  // namespace
}  // namespace tessario::ventana
