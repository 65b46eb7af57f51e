// SPDX-License-Identifier: GPL-3.0-or-later
// The safety copy: when it is written, what it holds, and what it leaves alone.
#include <filesystem>

#include "apoyo/MesaMontada.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "records/Archivo.h"
#include "records/Texto.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"
#include "session/CopiaSeguridad.h"
#include "session/Montaje.h"
#include "table/Ordenes.h"

namespace tessario {

namespace {

namespace fs = std::filesystem;

class Copia : public MesaMontada {
protected:
    // The copy's bytes; empty when there is none.
    std::string Escrita() {
        EsperaCopia();
        std::string bytes;
        LeeFichero(FicheroDeCopia(), bytes);
        return bytes;
    }
    void Borra() {
        EsperaCopia();
        fs::remove(FicheroDeCopia());
    }
    void Segundos(int n) {
        for (int i = 0; i < n; ++i) Timer1.Timer();
    }
    void Mueve(i32 y) { Arrastra(4, 450, y); }
    void PreparaMoviles() {
        Moviles(3, 330, 250);
        Pon(4, 420, 100);
        Gbl.CronoEnMarcha = false;  // the time of play would change the record
    }
    void Responde(bool si) { P().respuestas = {si}; }
};

TEST_F(Copia, IsAnOrdinarySavedPuzzleOfTheArchive) {
    EXPECT_EQ(FicheroDeCopia(), Gbl.CarpetaArchivo + "Copia de seguridad.puz");
    PreparaMoviles();
    Mueve(260);
    const std::string record = EscribePuzzle();
    CopiaAntesDeRepartir();
    EXPECT_EQ(Escrita(), record);
    const auto piezas = Gbl.Piezas;
    Moviles(4, 330, 250);
    LeeAjustesJuego(FicheroDeCopia());
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_EQ(Gbl.NumPiezas, 9);
    EXPECT_EQ(Gbl.Piezas[4], piezas[4]);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
}

// ---------------------------------------------------------------- before a new deal

TEST_F(Copia, ShuffleOfAGameWithMovesLeavesItsRecord) {
    PreparaMoviles();
    Mueve(260);
    Gbl.CronoEnMarcha = false;
    const std::string record = EscribePuzzle();
    PulsaOrden(1);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Escrita(), record);
}

TEST_F(Copia, ShuffleOfAGameWithoutMovesKeepsTheCopyBefore) {
    PreparaMoviles();
    Mueve(260);
    PulsaOrden(1);
    const std::string primera = Escrita();
    PulsaOrden(1);
    EXPECT_EQ(Escrita(), primera);
}

TEST_F(Copia, SlidingShuffleAndSettingUpByHandLeaveOne) {
    Deslizantes(3);
    TableroResuelto();
    const auto desliza = [&] {
        const Pieza& p = Gbl.Piezas[8];
        Puntero.Pulsa(p.X + 20, p.Y + 20);
    };
    desliza();
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    const i16 x = Gbl.Piezas[8].X;
    PulsaOrden(1);
    EXPECT_EQ(DeComillas(Lineas(Escrita()).at(5)).substr(7 * 23, 4),
              std::to_string(1000 + x).replace(0, 1, "0"));
    Borra();
    TableroResuelto();
    desliza();
    Responde(false);
    PulsaOrden(11);
    EXPECT_EQ(Escrita(), "") << "refused";
    Responde(true);
    PulsaOrden(11);
    ASSERT_TRUE(Gbl.OrdenManual);
    EXPECT_NE(Escrita(), "");
}

TEST_F(Copia, RefusedShuffleOfAModelLeavesNone) {
    Tangram(MODO_RESOLVER);
    Arrastra(6, 300, 400);
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    Responde(false);
    PulsaOrden(1);
    EXPECT_EQ(Escrita(), "");
    Responde(true);
    PulsaOrden(1);
    EXPECT_NE(Escrita(), "");
    EXPECT_EQ(Gbl.ModoJuego, MODO_CREAR);
}

TEST_F(Copia, SettingsThatRestartLeaveTheGameAsItWasWhenTheyOpened) {
    PreparaMoviles();
    Mueve(260);
    Gbl.CronoEnMarcha = false;
    const std::string record = EscribePuzzle();
    Ventana ajustes;
    ajustes.Nombre = "Personal";
    VentanasOrdenes.Personal = &ajustes;
    P().ventanas["Personal"] = [](Ventana&) { Gbl.ColorFondo = 0x102030; };
    PulsaOrden(2);
    EXPECT_EQ(Escrita(), "") << "nothing restarts";
    P().ventanas["Personal"] = [](Ventana&) {
        Gbl.PiezasPorLado = 5;
        Gbl.ParametrosCambiados = true;
    };
    Gbl.ColorFondo = 0x800000;
    PulsaOrden(2);
    EXPECT_EQ(Gbl.NumPiezas, 25);
    EXPECT_EQ(Escrita(), record);
    EXPECT_TRUE(Gbl.RecordEnAjustes.empty());
}

TEST_F(Copia, DamagedPuzzleThatIsLoadedDoesNotCostTheGameInPlay) {
    PreparaMoviles();
    Mueve(260);
    Gbl.CronoEnMarcha = false;
    const std::string record = EscribePuzzle();
    EscribeFichero(P().carpeta + "roto.puz", "nada");
    LeeAjustesJuego(P().carpeta + "roto.puz");
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Escrita(), record);
}

// ---------------------------------------------------------------- every five minutes

TEST_F(Copia, EveryFiveMinutesInWhichSomethingMoved) {
    PreparaMoviles();
    Mueve(260);
    Segundos(299);
    EXPECT_EQ(Escrita(), "");
    Segundos(1);
    const std::string primera = Escrita();
    EXPECT_NE(primera, "");
    Borra();
    Segundos(900);
    EXPECT_EQ(Escrita(), "") << "nothing moved";
    Mueve(300);
    Segundos(300);
    EXPECT_NE(Escrita(), "");
    EXPECT_NE(Escrita(), primera);
}

TEST_F(Copia, MoveTakenBackCountsAsOne) {
    PreparaMoviles();
    Mueve(260);
    Mueve(300);
    Segundos(300);
    Borra();
    Mesa.KeyPress(26);
    Segundos(300);
    EXPECT_EQ(DeComillas(Lineas(Escrita()).at(6)).size(), 23U);
}

TEST_F(Copia, NothingIsWrittenWhileAPieceIsInHand) {
    PreparaMoviles();
    Mueve(260);
    const Punto p = PuntoDe(4);
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta();
    ASSERT_TRUE(Gbl.ArrastrandoPieza);
    Segundos(400);
    EXPECT_EQ(Escrita(), "");
    Puntero.Suelta();
    Segundos(1);
    EXPECT_NE(Escrita(), "") << "the next second after";
}

TEST_F(Copia, NothingIsWrittenInsideOtherWorkOrWithTheRecorderOn) {
    PreparaMoviles();
    Mueve(260);
    Segundos(299);
    for (i16* n : {&Gbl.EventosAnidados, &Gbl.ManejadoresEnCurso}) {
        ++*n;
        Segundos(2);
        EXPECT_EQ(Escrita(), "");
        --*n;
    }
    for (Booleano* b : {&Gbl.GrabadoraEncendida, &Gbl.Barajando, &Gbl.SoltandoPieza}) {
        *b = true;
        Segundos(2);
        EXPECT_EQ(Escrita(), "");
        *b = false;
    }
    Segundos(1);
    EXPECT_NE(Escrita(), "");
}

TEST_F(Copia, LoadedGameIsCopiedOnlyOnceItMoves) {
    PreparaMoviles();
    Mueve(260);
    GuardaAjustesJuego();
    LeeAjustesJuego(FicheroDelJuego());
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    Segundos(600);
    CopiaAlTerminar();
    EXPECT_EQ(Escrita(), "");
}

// ---------------------------------------------------------------- the session ends

TEST_F(Copia, SignalWritesWhatHasMovedWithThePieceInHandWhereItWasTaken) {
    PreparaMoviles();
    Mueve(260);
    const Pieza antes = Gbl.Piezas[4];
    const Punto p = PuntoDe(4);
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta();
    Puntero.Mueve(p.x + 60, p.y + 40);
    const Pieza enMano = Gbl.Piezas[4];
    ASSERT_NE(enMano.X, antes.X);
    CopiaAlTerminar();
    EXPECT_EQ(Gbl.Piezas[4], enMano) << "the game itself goes on";
    std::string bytes;
    ASSERT_EQ(LeeFichero(FicheroDeCopia(), bytes), 0) << "on the disk already";
    Puntero.Suelta();
    LeePuzzle(bytes);
    EXPECT_EQ(Gbl.Piezas[4], antes);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
}

TEST_F(Copia, SignalWithTheRecorderOnWritesTheEndOfTheLog) {
    Deslizantes(3);
    TableroResuelto();
    Gbl.Movimientos.Redimensiona(100);
    for (const i16 piece : {i16{8}, i16{5}, i16{6}}) {
        const Pieza& p = Gbl.Piezas[piece];
        Puntero.Pulsa(p.X + 20, p.Y + 20);
    }
    ASSERT_EQ(Gbl.NumMovimientos, 3);
    const auto alFinal = Gbl.Piezas;
    const i16 huecoX = Gbl.HuecoX, huecoY = Gbl.HuecoY;
    EnciendeGrabadora();
    ReproduceMovimiento(1);
    ReproduceMovimiento(1);
    CopiaAlTerminar();
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    ApagaGrabadora();
    LeePuzzle(Escrita());
    EXPECT_EQ(Gbl.NumMovimientos, 3);
    EXPECT_EQ(Gbl.HuecoX, huecoX);
    EXPECT_EQ(Gbl.HuecoY, huecoY);
    for (i16 i = 1; i <= 8; ++i) EXPECT_EQ(Gbl.Piezas[i], alFinal[i]) << i;
}

TEST_F(Copia, SignalInsideTheSettingsWritesTheGameAsItWasBefore) {
    PreparaMoviles();
    Mueve(260);
    Gbl.CronoEnMarcha = false;
    const std::string record = EscribePuzzle();
    Ventana ajustes;
    ajustes.Nombre = "Personal";
    VentanasOrdenes.Personal = &ajustes;
    P().ventanas["Personal"] = [](Ventana&) {
        Gbl.JuegoActual = JuegoTangram;  // a look at another game's settings
        Gbl.NumPiezas = 7;
        CopiaAlTerminar();
        Gbl.JuegoActual = JuegoMoviles;
        Gbl.NumPiezas = 9;
    };
    PulsaOrden(2);
    EXPECT_EQ(Escrita(), record);
}

TEST_F(Copia, ArchiveThatCannotBeWrittenIsSilent) {
    EscribeFichero(P().carpeta + "f", "x");
    Gbl.CarpetaArchivo = P().carpeta + "f/";
    PreparaMoviles();
    Mueve(260);
    PulsaOrden(1);
    CopiaAlTerminar();
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_EQ(Gbl.NumMovimientos, 0);
}

// ---------------------------------------------------------------- the largest

TEST_F(Copia, LargestRecordIsKeptWhole) {
    Moviles(20, 1024, 768);
    Gbl.NumMovimientos = 0;
    for (i32 i = 1; i <= 9999; ++i)
        RegistraMovimiento(100, 200, 1, 0, static_cast<i16>(i), 400, 2, 0);
    CopiaAntesDeRepartir();
    EsperaCopia();
    EXPECT_EQ(Lineas(Escrita()).at(6).size(), 9999U * 23U + 2U);
}

}  // namespace

}  // namespace tessario
