// SPDX-License-Identifier: GPL-3.0-or-later
// One program for each player and folder of games.
#include <atomic>
#include <thread>

#include "qt/PruebaQt.h"
#include "qt/Unica.h"

namespace tessario {
namespace {

constexpr int ESPERA_CORTA = 50;  // ms for an answer that does not come

std::string Lugar(const char* cual) {
    return std::string(cual) + std::to_string(QCoreApplication::applicationPid());
}

class UnicaQt : public PruebaQt {
protected:
    // Another start in a thread of its own, while this one deals with its events.
    Unica::Papel OtroArranque(const std::string& lugar) {
        std::atomic<bool> hecho = false;
        Unica::Papel papel = Unica::Papel::Primera;
        std::thread hilo([&] {
            papel = Unica(lugar).Resultado();
            hecho = true;
        });
        while (!hecho) Eventos();
        hilo.join();
        return papel;
    }
};

TEST_F(UnicaQt, TheSecondCallsTheFirst) {
    Unica primera(Lugar("a"));
    ASSERT_EQ(primera.Resultado(), Unica::Papel::Primera);
    int llamadas = 0;
    primera.AlLlamar([&] { ++llamadas; });
    EXPECT_EQ(OtroArranque(Lugar("a")), Unica::Papel::Segunda);
    EXPECT_EQ(llamadas, 1);
    EXPECT_EQ(OtroArranque(Lugar("a")), Unica::Papel::Segunda);
    EXPECT_EQ(llamadas, 2);
}

TEST_F(UnicaQt, OtherFoldersAreOtherPrograms) {
    const Unica primera(Lugar("a"));
    const Unica otra(Lugar("b"));
    EXPECT_EQ(otra.Resultado(), Unica::Papel::Primera);
}

TEST_F(UnicaQt, AFirstThatDoesNotAnswerIsFirstAllTheSame) {
    const Unica primera(Lugar("a"));
    const Unica segunda(Lugar("a"), ESPERA_CORTA);
    EXPECT_EQ(segunda.Resultado(), Unica::Papel::Sorda);
}

TEST_F(UnicaQt, ACallThatCameBeforeIsAnsweredWhenTheFirstIsReady) {
    Unica primera(Lugar("a"));
    const Unica segunda(Lugar("a"), ESPERA_CORTA);
    bool llamada = false;
    primera.AlLlamar([&] { llamada = true; });
    EXPECT_TRUE(llamada);
}

TEST_F(UnicaQt, TheNameIsFreeAgainAfterTheEnd) {
    { const Unica primera(Lugar("a")); }
    const Unica otra(Lugar("a"));
    EXPECT_EQ(otra.Resultado(), Unica::Papel::Primera);
}

}  // namespace
}  // namespace tessario
