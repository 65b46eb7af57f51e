// SPDX-License-Identifier: GPL-3.0-or-later
// A whole run where the folders are against it: removed while the program runs, full, not to be
// written, files of another owner in them. Whatever was there stays, and what can be made anew is.
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <map>

#include "apoyo/OtroProceso.h"
#include "apoyo/PartidaEntera.h"
#include "core/Superficies.h"
#include "records/Modelos.h"
#include "session/Montaje.h"
#include "settings/Mandos.h"
#include "start/Arranque.h"

namespace tessario {
namespace {

namespace fs = std::filesystem;

using Ficheros = std::map<std::string, std::string>;

constexpr const char* COPIA = "Archivo/Copia de seguridad.puz";
constexpr mode_t CERRADO = 0600, SOLO_LEER = 0444, CARPETA_SOLO_LEER = 0555;

class EntornoCarpetas : public PartidaEntera {
protected:
    Ficheros Todos() {
        Ficheros todos;
        for (const auto& f : fs::recursive_directory_iterator(P().carpeta))
            if (f.is_regular_file()) {
                const std::string nombre = f.path().lexically_relative(P().carpeta);
                todos[nombre] = Contenido(nombre);
            }
        return todos;
    }
    void Retira(const std::string& nombre) { fs::remove_all(RutaDe(nombre)); }
    bool Hay(const std::string& nombre) { return fs::is_regular_file(RutaDe(nombre)); }
    // A game whose first piece has been moved, as its file would keep it.
    std::string PartidaMovida() {
        Mueve();
        return EscribePuzzle();
    }
};

// ---------------------------------------------------------------- removed while the program runs

TEST_F(EntornoCarpetas, RemovedUnderTheGameTheyAreMadeAnewByWhatIsSaved) {
    Empieza();
    Mueve();
    Retira("");
    Guarda("mío");
    EXPECT_TRUE(Hay("Archivo/mío.puz"));
    const std::string partida = EscribePuzzle();  // with that name
    Retira("");
    Copia();
    EXPECT_EQ(Contenido(COPIA), partida);
    Retira("");
    Sale();
    EXPECT_EQ(FicheroDe(21), partida);
    EXPECT_TRUE(Hay("TsR33.ini"));
}

TEST_F(EntornoCarpetas, RemovedUnderTheGameTheOtherGamesBeginAnew) {
    Empieza();
    const std::string partida = PartidaMovida();
    Retira("");
    P().avisos.clear();
    CambiaA(22);
    EXPECT_EQ(FicheroDe(21), partida);
    EXPECT_TRUE(SeDijo(
        "No se encuentra el archivo de inicialización " + P().carpeta +
        "TsR2233.ini. Se ha  procedido  a  crearlo automáticamente  con  los  valores establecidos "
        "por defecto."));
    EXPECT_EQ(Gbl.JuegoActual, 22);
    CambiaA(21);
    Retira("");
    CambiaA(23);
    GuardaModelo("Mi figura");
    EXPECT_NE(Contenido("Archivo/Modelos.tpu").find("Mi figura"), std::string::npos);
    Sale();
}

TEST_F(EntornoCarpetas, RemovedUnderTheGameTheListsAreEmptyAndTheHistorySaysWhy) {
    Empieza();
    Retira("");
    P().avisos.clear();
    MiraHistorico();
    EXPECT_TRUE(SeDijo("HIS ERROR 76: No existe el fichero Histórico"));
    Carga("mío");
    EXPECT_EQ(visto_, "");
    MiraEstadistica();
    Personaliza();
    EXPECT_EQ(personal::File1.ListCount(), 0);
    Retira("");
    P().avisos.clear();
    Resuelve();
    EXPECT_TRUE(SeDijo("HIS ERROR 76"));
    Pega();
    EXPECT_EQ(Gbl.Piezas.Superior(), 25);
    Retira("");
    Sale();
}

TEST_F(EntornoCarpetas, ThePicturesFolderRemovedLeavesThePuzzleOnTheTable) {
    Empieza();
    Mueve();
    Retira("Imagenes");
    P().imagenes.clear();
    P().avisos.clear();
    Personaliza();
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    Pega();  // into the program's own folder
    EXPECT_TRUE(Hay("tsportap.bmp"));
    Sale();
}

// ---------------------------------------------------------------- full

TEST_F(EntornoCarpetas, AFullHomeLosesNothingOfWhatWasThere) {
    const Ficheros antes = Todos();
    EXPECT_TRUE(EnOtroProceso([&] { Recorrido(); }, {.discoLleno = true}));
    const Ficheros despues = Todos();
    for (const auto& [nombre, bytes] : antes) {
        ASSERT_TRUE(despues.contains(nombre)) << nombre;
        EXPECT_EQ(despues.at(nombre), bytes) << nombre;
    }
    for (const auto& [nombre, bytes] : despues)
        EXPECT_TRUE(antes.contains(nombre) || bytes.empty()) << nombre;
    for (const auto& [nombre, bytes] : despues)
        EXPECT_EQ(nombre.find(".tsr"), std::string::npos) << nombre << " is left over";
}

// ---------------------------------------------------------------- not ours

// A user who owns nothing but what is given; where we may not choose, ourselves.
class EntornoAjeno : public EntornoCarpetas {
protected:
    void SetUp() override {
        EntornoCarpetas::SetUp();
        if (quien_ == 0) GTEST_SKIP() << "only the administrator can make files of another owner";
    }
    // The folder with all that is in it becomes the player's; then these stay another's.
    void Reparte(const std::vector<std::string>& ajenos, mode_t permisos) {
        Regala(P().carpeta, quien_);
        for (const std::string& nombre : ajenos) {
            const std::string ruta = RutaDe(nombre);
            ASSERT_EQ(chown(ruta.c_str(), 0, 0), 0) << ruta;
            ASSERT_EQ(chmod(ruta.c_str(), permisos), 0) << ruta;
        }
    }
    bool ComoJugador(const std::function<void()>& hace) {
        return EnOtroProceso(hace, {.usuario = quien_});
    }
    const unsigned quien_ = UsuarioCorriente();
};

TEST_F(EntornoAjeno, AHomeThatCannotBeWrittenIsPlayedInAndLeftAsItWas) {
    ASSERT_EQ(chmod(P().carpeta.c_str(), CARPETA_SOLO_LEER), 0);
    const Ficheros antes = Todos();
    EXPECT_TRUE(ComoJugador([&] {
        Recorrido();
        EXPECT_TRUE(Gbl.EnMedioSoloLectura);
        EXPECT_TRUE(SeDijo("IDC ERROR 76"));
        EXPECT_TRUE(SeDijo("CID ERROR 76"));
        EXPECT_TRUE(SeDijo("HIS ERROR 76"));
    }));
    EXPECT_EQ(Todos(), antes);
    EXPECT_FALSE(fs::exists(P().CarpetaDelSistema()));
}

TEST_F(EntornoAjeno, FilesThatCannotBeReadAreToldAndStay) {
    Crea("TESSA33.his", "vieja\r\n");
    const std::vector<std::string> ajenos{"TsR33.ini", "TsR2133.ini", "TESSA33.his",
                                          "Archivo/Modelos.tpu"};
    Reparte(ajenos, CERRADO);
    Ficheros antes = Todos();
    EXPECT_TRUE(ComoJugador([&] {
        Recorrido();
        EXPECT_TRUE(SeDijo("IDC ERROR 75"));
        EXPECT_TRUE(SeDijo("CID ERROR 75"));
        EXPECT_TRUE(SeDijo("HIS ERROR 75"));
    }));
    const Ficheros despues = Todos();
    for (const std::string& nombre : ajenos) EXPECT_EQ(despues.at(nombre), antes[nombre]) << nombre;
}

TEST_F(EntornoAjeno, AGameWhoseFileCannotBeWrittenIsKeptInTheSafetyCopy) {
    Reparte({"TsR2133.ini"}, SOLO_LEER);
    const std::string antes = FicheroDe(21);
    EXPECT_TRUE(ComoJugador([&] {
        Empieza();
        const std::string partida = PartidaMovida();
        Sale();
        EXPECT_EQ(Contenido(COPIA), partida);
    }));
    EXPECT_EQ(FicheroDe(21), antes);
    // At a change of game, too.
    Retira(COPIA);
    EXPECT_TRUE(ComoJugador([&] {
        Empieza();
        const std::string partida = PartidaMovida();
        CambiaA(22);
        Sale();
        EXPECT_EQ(Contenido(COPIA), partida);
    }));
}

TEST_F(EntornoAjeno, AnArchiveThatCannotBeWrittenIsReadAndTheGameGoesOn) {
    Empieza();
    Guarda("mío");
    Reparte({"Archivo"}, CARPETA_SOLO_LEER);
    const Ficheros antes = Todos();
    EXPECT_TRUE(ComoJugador([&] {
        Empieza();
        Mueve();
        Guarda("otro");
        EXPECT_FALSE(Hay("Archivo/otro.puz"));
        Carga("mío");
        EXPECT_EQ(visto_, "mío\n");
        EXPECT_EQ(Gbl.NumMovimientos, 0);
        Sale();
    }));
    EXPECT_EQ(Contenido("Archivo/mío.puz"), antes.at("Archivo/mío.puz"));
}

// What an earlier run left there is not taken for the puzzle of this one.
TEST_F(EntornoAjeno, AScratchCopyThatCannotBeReplacedIsNotGoneBackTo) {
    Empieza();
    Gbl.NombreJugador = "Otro";
    ASSERT_EQ(GuardaPuzzle(RutaDe("Archivo/TESSA33.CSE")), 0);
    Reparte({"Archivo/TESSA33.CSE"}, SOLO_LEER);
    Reparte({"Archivo", "Archivo/TESSA33.CSE"}, CARPETA_SOLO_LEER);
    EXPECT_TRUE(ComoJugador([&] {
        Empieza();
        const std::string jugador = Gbl.NombreJugador;
        const i16 lado = Gbl.PiezasPorLado;
        Personaliza();
        EXPECT_EQ(Gbl.NombreJugador, jugador);
        EXPECT_EQ(Gbl.PiezasPorLado, lado);
        Sale();
    }));
}

}  // namespace
}  // namespace tessario
