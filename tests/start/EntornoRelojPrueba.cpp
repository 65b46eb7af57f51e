// SPDX-License-Identifier: GPL-3.0-or-later
// The machine's clock is set to another time while a game runs: nothing that is measured goes by
// it.
#include <filesystem>

#include "apoyo/PartidaEntera.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "session/CopiaSeguridad.h"

namespace tessario {
namespace {

struct Salto {
    const char* que;
    double horaDelDia;
    const char *fecha, *hora;
};
constexpr Salto SALTOS[] = {
    {"a year back", 43200.25, "20/11/2025", "13:54:00"},
    {"to summer time", 3 * 3600.0, "28/03/2027", "03:00:00"},
    {"back from summer time", 2 * 3600.0, "25/10/2026", "02:00:00"},
    {"past midnight", 0, "21/11/2026", "00:00:00"},
    {"far ahead", 86399.99, "31/12/9999", "23:59:59"},
};
constexpr i32 RATO = 290;  // seconds; ten more, and the safety copy is due

class EntornoReloj : public PartidaEntera {
protected:
    void Pasan(i32 segundos) {
        for (i32 i = 0; i < segundos; ++i) {
            P().reloj += 1000;
            Timer1.Timer();
        }
    }
    void Salta(const Salto& s) {
        P().horaDelDia = s.horaDelDia;
        P().fecha = s.fecha;
        P().hora = s.hora;
    }
};

TEST_F(EntornoReloj, TheChronometerTheSafetyCopyAndTheHistoryGoOn) {
    for (const Salto& salto : SALTOS) {
        Empieza();
        Mueve();
        const i32 antes = Gbl.SegundosJuego;
        Pasan(RATO);
        EXPECT_FALSE(std::filesystem::exists(FicheroDeCopia())) << salto.que;
        Salta(salto);
        Pasan(10);
        EsperaCopia();
        EXPECT_TRUE(std::filesystem::exists(FicheroDeCopia())) << salto.que;
        Pasan(50);
        EXPECT_EQ(Gbl.SegundosJuego, antes + RATO + 60) << salto.que;
        // The result has the time that was played and the date of the day; both come back.
        Resuelve();
        const std::string linea = Contenido("TESSA33.his");
        EXPECT_EQ(linea.find(std::string("\"") + salto.fecha + "\",\"" + salto.hora + "\",21,"), 0U)
            << linea;
        EXPECT_NE(linea.find("," + std::to_string(antes + RATO + 60) + ","), std::string::npos);
        MiraHistorico();
        EXPECT_EQ(Gbl.UltimoHistorico, 0);
        Sale();
        TearDown();
        SetUp();
    }
}

// Shuffles draw from a generator that the time of day begins: any time will do.
TEST_F(EntornoReloj, EveryTimeOfTheDayDealsAPuzzle) {
    for (const Salto& salto : SALTOS) {
        Salta(salto);
        Empieza();
        for (const i16 juego : {JuegoDeslizantes, JuegoTangram, JuegoMoviles}) {
            CambiaA(juego);
            P().respuestas = {true};
            PulsaOrden(1);
            EXPECT_FALSE(Gbl.PuzzleTerminado) << salto.que << " " << juego;
        }
        Sale();
        TearDown();
        SetUp();
    }
}

}  // namespace
}  // namespace tessario
