// SPDX-License-Identifier: GPL-3.0-or-later
// The reader of the history file, and appending to it from two programs at once.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <clocale>
#include <csignal>
#include <filesystem>
#include <thread>

#include "apoyo/PlataformaPrueba.h"
#include "records/Historial.h"
#include "records/Texto.h"

namespace tessario {
namespace {

constexpr const char* BUENA =
    "\"20/11/2026\",\"13:54\",21,\"lago.jpg\",\"/fotos/\",\"Pe\xF1"
    "a, la\",640,480,80,510,380,5,1,"
    "0,25,102,76,12.5,3723,20,2,0,\"Jo\"\"s\xE9\"";

class LecturaHistorial : public PruebaBase {
protected:
    i16 Lee(const std::string& bytes) {
        Crea("TESSA33.his", bytes);
        return LeeHistorico();
    }
    const RegistroHistorico& R(i32 i) { return Gbl.Historico[i]; }
};

TEST_F(LecturaHistorial, AllItemsOfALineComeBack) {
    EXPECT_EQ(Lee(std::string(BUENA) + "\r\n"), 0);
    ASSERT_EQ(Gbl.UltimoHistorico, 0);
    EXPECT_EQ(R(0).Fecha, "20/11/2026");
    EXPECT_EQ(R(0).Hora, "13:54   ");
    EXPECT_EQ(R(0).Juego, 21);
    EXPECT_EQ(R(0).Fichero, "lago.jpg");
    EXPECT_EQ(R(0).Ubicacion, "/fotos/");
    EXPECT_EQ(R(0).Modelo, "Peña, la");
    EXPECT_EQ(R(0).AnchoOriginal, 640);
    EXPECT_EQ(R(0).AltoOriginal, 480);
    EXPECT_EQ(R(0).Zoom, 80);
    EXPECT_EQ(R(0).AnchoFinal, 510);
    EXPECT_EQ(R(0).AltoFinal, 380);
    EXPECT_EQ(R(0).Lado, 5);
    EXPECT_EQ(R(0).Clase, 1);
    EXPECT_EQ(R(0).Forma, 0);
    EXPECT_EQ(R(0).Total, 25);
    EXPECT_EQ(R(0).AnchoPiezas, 102);
    EXPECT_EQ(R(0).AltoPiezas, 76);
    EXPECT_EQ(R(0).Nivel, 12.5F);
    EXPECT_EQ(R(0).Segundos, 3723);
    EXPECT_EQ(R(0).Atraccion, 20);
    EXPECT_EQ(R(0).Fondo, 2);
    EXPECT_EQ(R(0).Jugador, "Jo\"sé    ");
}

TEST_F(LecturaHistorial, WhatIsWrittenIsReadBack) {
    Gbl.FicheroImagen = "niña,\"1\".jpg";
    Gbl.CarpetaImagen = "/una\ncarpeta/";
    Gbl.NombreJugador = "Iñigo O'H";
    Gbl.NombrePuzzle = "Ñandú \"2\"";
    Gbl.Dificultad = 99.9F;
    Gbl.SegundosJuego = 2000000000;
    EXPECT_EQ(EntraEnHistorico(), 0);
    EXPECT_EQ(LeeHistorico(), 0);
    ASSERT_EQ(Gbl.UltimoHistorico, 0);
    EXPECT_EQ(R(0).Fichero, Gbl.FicheroImagen);
    EXPECT_EQ(R(0).Ubicacion, "/una\ncarpeta/");
    EXPECT_EQ(TextoDeRuta(R(0).Ubicacion), "/una carpeta/");
    EXPECT_EQ(R(0).Jugador, "Iñigo O'H");
    EXPECT_EQ(R(0).Modelo, "Ñandú \"2\"");
    EXPECT_EQ(R(0).Nivel, 99.9F);
    EXPECT_EQ(R(0).Segundos, 2000000000);
}

TEST_F(LecturaHistorial, OnlyTheCurrentGameStays) {
    const std::string otro =
        "\"f\",\"h\",22,\"\",\"\",\"\",0,0,0,0,0,4,1,0,15,0,0,50,9,20,2,0,\"B\"\r\n";
    EXPECT_EQ(Lee(otro + BUENA + "\r\n" + otro + BUENA + "\r\n" + otro), 0);
    EXPECT_EQ(Gbl.UltimoHistorico, 1);
    EXPECT_EQ(R(1).Jugador, "Jo\"sé    ");
    EXPECT_EQ(R(2).Jugador, "") << "nothing of the last one stays behind";
    Gbl.JuegoActual = JuegoDeslizantes;
    EXPECT_EQ(LeeHistorico(), 0);
    EXPECT_EQ(Gbl.UltimoHistorico, 2);
    Gbl.JuegoActual = JuegoTangram;
    EXPECT_EQ(LeeHistorico(), 0);
    EXPECT_EQ(Gbl.UltimoHistorico, -1);
}

TEST_F(LecturaHistorial, DamagedLinesLoseNothingOfTheOthers) {
    const std::string veintidos =
        "\"d22\",\"h\",21,\"a\",\"b\",\"m\",1,2,3,4,5,6,1,0,36,7,8,30,60,20,2,0";
    const std::string veinticuatro = std::string(BUENA) + ",\"resto\"";
    const std::string corta = "\"dc\",\"h\",21,\"a\"";
    const std::string texto =
        "\"dt\",\"h\",21,\"a\",\"b\",\"m\",\"ancho\",99999,x,4,5,6,1,0,36,7,8,nada,mucho,20,2,0,"
        "\"T\"";
    const std::string sinJuego = "\"d\",\"h\",veintiuno,\"a\",\"b\"";
    const std::string sinCierre = "\"du\",\"h\",21,\"sin fin,\"b\",1";
    EXPECT_EQ(Lee(veintidos + "\r\n" + veinticuatro + "\r\n" + corta + "\r\n\r\n" + texto + "\n" +
                  sinJuego + "\r\n" + sinCierre + "\r\n" + BUENA),
              0);
    ASSERT_EQ(Gbl.UltimoHistorico, 5);
    EXPECT_EQ(R(0).Total, 36);
    EXPECT_EQ(R(0).Jugador, "         ");
    EXPECT_EQ(R(1).Jugador, "Jo\"sé    ");
    EXPECT_EQ(R(2).Fichero, "a");
    EXPECT_EQ(R(2).Total, 0);
    EXPECT_EQ(R(3).AnchoOriginal, 0);
    EXPECT_EQ(R(3).AltoOriginal, 0) << "does not fit";
    EXPECT_EQ(R(3).AnchoFinal, 4);
    EXPECT_EQ(R(3).Nivel, 0);
    EXPECT_EQ(R(3).Segundos, 0);
    EXPECT_EQ(R(3).Jugador, "T        ");
    EXPECT_EQ(R(4).Fecha, "du        ");
    EXPECT_EQ(R(5).Segundos, 3723) << "the last line has no end";
}

TEST_F(LecturaHistorial, ShortLineTakesNothingFromTheForeignOneBeforeIt) {
    const std::string otro =
        "\"f\",\"h\",22,\"x\",\"y\",\"z\",1,2,3,4,5,4,1,6,15,7,8,50,9,20,2,3,\"B\"\r\n";
    EXPECT_EQ(Lee(otro + "\"dc\",\"h\",21,\"a\"\r\n"), 0);
    ASSERT_EQ(Gbl.UltimoHistorico, 0);
    EXPECT_EQ(R(0).Fichero, "a");
    EXPECT_EQ(R(0).Modelo, "");
    for (const i16 n : {R(0).AnchoOriginal, R(0).Zoom, R(0).Lado, R(0).Forma, R(0).Total,
                        R(0).Atraccion, R(0).Fondo, R(0).Reservado})
        EXPECT_EQ(n, 0);
    EXPECT_EQ(R(0).Nivel, 0);
    EXPECT_EQ(R(0).Segundos, 0);
}

TEST_F(LecturaHistorial, NumbersBeyondTheirWidthAreNoneAndFractionsGoToTheNearest) {
    RegistroHistorico r;
    ASSERT_TRUE(
        LeeLineaHistorico("\"d\",\"h\",21,\"a\" junk,\"b\",\"m\",-32768,-32769,32768,6.5,7.6,"
                          "-0.6,1,0,9,5,6,12,-3000000000,20,1,0,\"J\"",
                          r));
    EXPECT_EQ(r.Fichero, "a");
    EXPECT_EQ(r.Ubicacion, "b");
    EXPECT_EQ(r.AnchoOriginal, -32768);
    EXPECT_EQ(r.AltoOriginal, 0);
    EXPECT_EQ(r.Zoom, 0);
    EXPECT_EQ(r.AnchoFinal, 6) << "halves to even";
    EXPECT_EQ(r.AltoFinal, 8);
    EXPECT_EQ(r.Lado, -1);
    EXPECT_EQ(r.Segundos, 0);
    EXPECT_EQ(r.Jugador, "J        ");
}

TEST_F(LecturaHistorial, LineWithoutAGameIsNoRecord) {
    RegistroHistorico r;
    for (const char* linea : {"", "\"d\",\"h\"", "\"d\",\"h\",x,\"a\"", "\"d\",\"h\",99999"})
        EXPECT_FALSE(LeeLineaHistorico(linea, r)) << linea;
    EXPECT_TRUE(LeeLineaHistorico("\"d\",\"h\",21", r));
}

TEST_F(LecturaHistorial, NumbersInQuotesAndWithAForeignSeparatorAreNumbers) {
    RegistroHistorico r;
    ASSERT_TRUE(
        LeeLineaHistorico("\"d\" , \"h\" , \"21\" ,a, b,m,\"640\", 480 "
                          ",80.4,1,2,3,1,0,9,5,6,\"12,5\",7,20,1,0,Ana Mar\xED"
                          "a",
                          r));
    EXPECT_EQ(r.Juego, 21);
    EXPECT_EQ(r.Fichero, "a");
    EXPECT_EQ(r.AnchoOriginal, 640);
    EXPECT_EQ(r.AltoOriginal, 480);
    EXPECT_EQ(r.Zoom, 80);
    EXPECT_EQ(r.Nivel, 12.5F);
    EXPECT_EQ(r.Jugador, "Ana María") << "nine characters";
    std::setlocale(LC_ALL, "es_ES.UTF-8");
    ASSERT_TRUE(LeeLineaHistorico(BUENA, r));
    EXPECT_EQ(r.Nivel, 12.5F);
    std::setlocale(LC_ALL, "C");
}

TEST_F(LecturaHistorial, FilesThatCannotBeOpenedGiveTheirNumbers) {
    Gbl.UltimoHistorico = 7;
    EXPECT_EQ(LeeHistorico(), 53);
    EXPECT_EQ(Gbl.UltimoHistorico, -1);
    Gbl.CarpetaPrograma = P().carpeta + "nada/";
    EXPECT_EQ(LeeHistorico(), 76);
    Gbl.CarpetaPrograma = P().carpeta;
    std::filesystem::create_directory(P().carpeta + "TESSA33.his");
    EXPECT_EQ(LeeHistorico(), 75);
}

TEST_F(LecturaHistorial, ArrayGrowsByFortyAndKeepsItsContents) {
    std::string bytes;
    for (int i = 0; i < 100; ++i) bytes += std::string(BUENA) + "\r\n";
    EXPECT_EQ(Lee(bytes), 0);
    EXPECT_EQ(Gbl.UltimoHistorico, 99);
    EXPECT_EQ(Gbl.Historico.Superior(), 100);
    EXPECT_EQ(Lee(bytes + BUENA), 0);
    EXPECT_EQ(Gbl.UltimoHistorico, 100);
    EXPECT_EQ(Gbl.Historico.Superior(), 140);
    EXPECT_EQ(R(0).Segundos, 3723);
    EXPECT_EQ(R(100).Segundos, 3723);
}

TEST_F(LecturaHistorial, TwoProgramsThatAppendAtOnceLoseNothing) {
    constexpr int CADA_UNO = 60;
    pid_t hijos[2];
    for (int h = 0; h < 2; ++h) {
        hijos[h] = fork();
        if (hijos[h] == 0) {
            Gbl.NombreJugador = h == 0 ? "Ana" : "Luis";
            int mal = 0;
            for (int i = 0; i < CADA_UNO; ++i) mal += EntraEnHistorico() != 0;
            _exit(mal == 0 ? 0 : 1);
        }
    }
    for (const pid_t h : hijos) {
        int estado = 1;
        waitpid(h, &estado, 0);
        EXPECT_EQ(estado, 0);
    }
    EXPECT_EQ(LeeHistorico(), 0);
    ASSERT_EQ(Gbl.UltimoHistorico, 2 * CADA_UNO - 1);
    int deAna = 0;
    for (i32 i = 0; i <= Gbl.UltimoHistorico; ++i) deAna += R(i).Jugador == "Ana      ";
    EXPECT_EQ(deAna, CADA_UNO);
}

TEST_F(LecturaHistorial, ProgramThatHoldsTheFileForEverIsNotWaitedFor) {
    const std::string vieja = "\"f\",\"h\",21\r\n", ruta = Crea("TESSA33.his", vieja);
    const int otro = ::open(ruta.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(otro, LOCK_EX), 0);
    EXPECT_EQ(EntraEnHistorico(), 0);
    ::close(otro);
    const std::string nueva = Contenido("TESSA33.his");
    EXPECT_TRUE(nueva.starts_with(vieja));
    EXPECT_EQ(std::count(nueva.begin(), nueva.end(), '\n'), 2);
}

TEST_F(LecturaHistorial, ProgramThatHoldsTheFileForAMomentWritesFirst) {
    const std::string ruta = Crea("TESSA33.his", ""), suya = "\"f\",\"h\",22\r\n";
    const int otro = ::open(ruta.c_str(), O_RDWR | O_APPEND | O_CLOEXEC);
    ASSERT_EQ(flock(otro, LOCK_EX), 0);
    std::jthread programa([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(150));
        EXPECT_EQ(::write(otro, suya.data(), suya.size()), static_cast<ssize_t>(suya.size()));
        ::close(otro);
    });
    EXPECT_EQ(EntraEnHistorico(), 0);
    programa.join();
    const std::string todo = Contenido("TESSA33.his");
    EXPECT_TRUE(todo.starts_with(suya)) << todo;
    EXPECT_EQ(std::count(todo.begin(), todo.end(), '\n'), 2);
}

// Who opens a pipe both ways can write, and what he has written is gone.
TEST_F(LecturaHistorial, PipeTakesNoResult) {
    ASSERT_EQ(mkfifo((P().carpeta + "TESSA33.his").c_str(), 0600), 0);
    EXPECT_EQ(EntraEnHistorico(), 75);
}

TEST_F(LecturaHistorial, FileThatMayNotBeWrittenStaysAsItWas) {
    const std::string ruta = Crea("TESSA33.his", "vieja\r\n");
    if (getuid() == 0) {
        // To the administrator nothing is forbidden; a folder in its place is.
        std::filesystem::remove(ruta);
        std::filesystem::create_directory(ruta);
        EXPECT_EQ(EntraEnHistorico(), 75);
        return;
    }
    std::filesystem::permissions(ruta, std::filesystem::perms::owner_read);
    EXPECT_EQ(EntraEnHistorico(), 75);
    EXPECT_EQ(Contenido("TESSA33.his"), "vieja\r\n");
}

TEST_F(LecturaHistorial, FullDiskLeavesNoHalfLine) {
    // A limit on the size of files stands for the full disk.
    const std::string vieja = "\"f\",\"h\",21\r\n";
    Crea("TESSA33.his", vieja);
    const pid_t hijo = fork();
    if (hijo == 0) {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit tope{vieja.size() + 20, vieja.size() + 20};
        setrlimit(RLIMIT_FSIZE, &tope);
        _exit(EntraEnHistorico());
    }
    int estado = 0;
    waitpid(hijo, &estado, 0);
    EXPECT_EQ(WEXITSTATUS(estado), 61);
    EXPECT_EQ(Contenido("TESSA33.his"), vieja);
}

TEST_F(LecturaHistorial, HundredThousandLinesAreReadQuickly) {
    std::string bytes;
    for (int i = 0; i < 100000; ++i) bytes += std::string(BUENA) + "\r\n";
    Crea("TESSA33.his", bytes);
    const auto antes = std::chrono::steady_clock::now();
    EXPECT_EQ(LeeHistorico(), 0);
    const std::chrono::duration<double> tardo = std::chrono::steady_clock::now() - antes;
    EXPECT_EQ(Gbl.UltimoHistorico, 99999);
    EXPECT_LT(tardo.count(), 5.0) << "a slow machine; some tenths of a second are usual";
}

}  // namespace
}  // namespace tessario
