// SPDX-License-Identifier: GPL-3.0-or-later
// A whole run where something else stands under the names of the program's own files: a pipe, a
// folder, a link that leads in a circle or nowhere, a file of four gigabytes. Nothing waits for the
// pipe, nothing reads the gigabytes, and what the player had is still there afterwards.
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "apoyo/OtroProceso.h"
#include "apoyo/PartidaEntera.h"
#include "core/Avisos.h"
#include "core/Ventanas.h"
#include "records/Texto.h"

namespace tessario {
namespace {

namespace fs = std::filesystem;

enum class Cosa { Tubo, Carpeta, Circulo, Colgado, Gigante, Enchufe };
constexpr Cosa COSAS[] = {Cosa::Tubo,    Cosa::Carpeta, Cosa::Circulo,
                          Cosa::Colgado, Cosa::Gigante, Cosa::Enchufe};
const char* NombreDe(Cosa c) {
    constexpr const char* NOMBRES[] = {"Pipe",     "Folder",        "CircularLink",
                                       "DeadLink", "FourGigabytes", "Socket"};
    return NOMBRES[static_cast<int>(c)];
}

// All names that the program gives to files, in groups that do not get in each other's way.
using Grupo = std::vector<std::string>;
const Grupo NUESTROS[] = {
    {"TsR33.ini", "Archivo/TESSA33.CSE", "Archivo/mío.puz"},
    {"TsR2133.ini", "Archivo/Modelos.tpu", "Imagenes/tsportap.bmp"},
    {"TsR2233.ini", "TESSA33.his", "Archivo/.tsrabcdef"},
    {"TsR2333.ini", "Archivo/SURTIDO.TPU", "Archivo/Copia de seguridad.puz"},
    {"Archivo/SURTIDO.VIS", "Imagenes/tsportap.cse"},
    {"CSCD.WRK"},
};

constexpr std::uintmax_t CUATRO_GIGAS = 4ULL << 30U;
constexpr unsigned MEGAS = 700;  // of memory for a run; what stands there is six times as large

class EntornoFicheros : public PartidaEntera {
protected:
    void Pon(Cosa cosa, const std::string& nombre) {
        const std::string ruta = RutaDe(nombre);
        fs::remove_all(ruta);
        switch (cosa) {
            case Cosa::Tubo:
                ASSERT_EQ(mkfifo(ruta.c_str(), 0600), 0);
                break;
            case Cosa::Carpeta:
                Crea(nombre + "/dentro", "de otro");
                break;
            case Cosa::Circulo:
                fs::create_symlink(ruta + ".2", ruta);
                fs::create_symlink(ruta, ruta + ".2");
                break;
            case Cosa::Colgado:
                fs::create_symlink(P().carpeta + "retirado/" + fs::path(nombre).filename().string(),
                                   ruta);
                break;
            case Cosa::Gigante:
                Crea(nombre, "");
                fs::resize_file(ruta, CUATRO_GIGAS);
                break;
            case Cosa::Enchufe:
                PonEnchufe(ruta);
                break;
        }
    }
    // What it was it still is: the folder with what lies in it, the link, the pipe.
    void SigueSiendo(Cosa cosa, const std::string& nombre) {
        const std::string ruta = RutaDe(nombre);
        switch (cosa) {
            case Cosa::Tubo:
                EXPECT_TRUE(fs::is_fifo(ruta)) << nombre;
                break;
            case Cosa::Carpeta:
                EXPECT_EQ(Contenido(nombre + "/dentro"), "de otro") << nombre;
                break;
            case Cosa::Circulo:
            case Cosa::Colgado:
                EXPECT_TRUE(fs::is_symlink(ruta)) << nombre;
                break;
            case Cosa::Gigante:
                EXPECT_GE(fs::file_size(ruta), CUATRO_GIGAS) << nombre;
                break;
            case Cosa::Enchufe:
                EXPECT_TRUE(fs::is_socket(ruta)) << nombre;
                break;
        }
    }

private:
    static void PonEnchufe(const std::string& ruta) {
        const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un d{};
        d.sun_family = AF_UNIX;
        ASSERT_LT(ruta.size(), sizeof d.sun_path);
        ruta.copy(d.sun_path, ruta.size());
        ASSERT_EQ(bind(fd, reinterpret_cast<const sockaddr*>(&d), sizeof d), 0);
        close(fd);
    }
};

// What the program may clear away or write anew by what it is: leftovers, what the player saves
// over or pastes over, settings.
bool SePierde(Cosa cosa, const std::string& nombre) {
    if (cosa == Cosa::Carpeta) return false;
    if (nombre == "Archivo/TESSA33.CSE") return true;
    if (cosa != Cosa::Gigante) return false;
    return nombre != "TESSA33.his" && nombre != "Archivo/Modelos.tpu" &&
           nombre != "Archivo/SURTIDO.TPU";
}

// What the player is told of a settings file like this; nothing of any other kind of file.
std::string Dicho(Cosa cosa, const std::string& nombre, const std::string& carpeta) {
    const bool global = nombre == "TsR33.ini";
    if (!global && !nombre.starts_with("TsR")) return {};
    switch (cosa) {
        case Cosa::Tubo:
        case Cosa::Carpeta:
        case Cosa::Enchufe:
            return global ? "IDC ERROR 75" : "CID ERROR 75";
        case Cosa::Circulo:
            return global ? "IDC ERROR 64" : "CID ERROR 64";
        case Cosa::Gigante:
            return global ? "IDC ERROR 7" : "CID ERROR 7";
        case Cosa::Colgado:
            return TextoDe(global ? aviso::SIN_CONFIGURACION : aviso::SIN_AJUSTES,
                           {carpeta + nombre});
    }
    return {};
}

// Lines of the history.
std::ptrdiff_t Lineas(const std::string& bytes) {
    return std::count(bytes.begin(), bytes.end(), '\n');
}

class LosNuestros : public EntornoFicheros, public testing::WithParamInterface<Cosa> {
protected:
    // What stood in the way, and what was said of it.
    void CompruebaEstorbo(Cosa cosa, const std::string& nombre) {
        if (!SePierde(cosa, nombre)) SigueSiendo(cosa, nombre);
        const std::string dicho = Dicho(cosa, nombre, P().carpeta);
        EXPECT_TRUE(dicho.empty() || SeDijo(dicho)) << dicho;
    }
    // All the rest is kept as ever.
    void CompruebaLoDemas(Cosa cosa, const Grupo& grupo) {
        const auto estorba = [&](const char* nombre) {
            return std::find(grupo.begin(), grupo.end(), nombre) != grupo.end();
        };
        // A file in the place of the probe is a leftover. Of anything else it looks as if no file
        // could be made there.
        const bool aparte = estorba("CSCD.WRK") && cosa != Cosa::Gigante;
        const std::string base = aparte ? P().CarpetaDelSistema() + "Temp/Tsb/" : P().carpeta;
        EXPECT_EQ(Gbl.CarpetaPrograma, base);
        for (const char* fichero : {"TsR2133.ini", "TsR2233.ini", "TsR2333.ini", "Archivo/mío.puz",
                                    "Archivo/Copia de seguridad.puz"})
            EXPECT_TRUE(estorba(fichero) || fs::is_regular_file(BuscaRuta(base + fichero)))
                << fichero;
        if (!estorba("Archivo/Modelos.tpu")) {
            const std::string modelos = Contenido(BuscaRuta(base + "Archivo/Modelos.tpu"));
            EXPECT_NE(modelos.find("Mi figura"), std::string::npos);
        }
        const bool falla =
            SeDijo("HIS ERROR 75") || SeDijo("HIS ERROR 64") || SeDijo("HIS ERROR 76");
        EXPECT_EQ(falla, estorba("TESSA33.his") && cosa != Cosa::Gigante);
        const bool tres = estorba("TESSA33.his") || Lineas(Contenido(base + "TESSA33.his")) == 3;
        EXPECT_TRUE(tres);
    }
};

TEST_P(LosNuestros, StandInTheWayOfAWholeRun) {
    for (const Grupo& grupo : NUESTROS) {
        const bool bien = EnOtroProceso(
            [&] {
                for (const std::string& nombre : grupo) Pon(GetParam(), nombre);
                Recorrido();
                for (const std::string& nombre : grupo) CompruebaEstorbo(GetParam(), nombre);
                CompruebaLoDemas(GetParam(), grupo);
            },
            {.megas = MEGAS});
        EXPECT_TRUE(bien) << NombreDe(GetParam()) << " as " << grupo[0];
        TearDown();
        SetUp();
    }
}

TEST_P(LosNuestros, AllStandInTheWayAtOnce) {
    EXPECT_TRUE(EnOtroProceso(
        [&] {
            for (const Grupo& grupo : NUESTROS)
                for (const std::string& nombre : grupo) Pon(GetParam(), nombre);
            Recorrido();
        },
        {.megas = MEGAS}));
}

// A picture laid aside comes back at a start; what is none does not.
TEST_F(EntornoFicheros, APipeDoesNotComeBackAsThePastedPicture) {
    Crea("Imagenes/tsportap.bmp", "pegada");
    Pon(Cosa::Tubo, "Imagenes/tsportap.cse");
    Empieza();
    ASSERT_TRUE(fs::is_regular_file(RutaDe("Imagenes/tsportap.bmp")));
    EXPECT_EQ(Contenido("Imagenes/tsportap.bmp"), "pegada");
}

INSTANTIATE_TEST_SUITE_P(Cosas, LosNuestros, testing::ValuesIn(COSAS),
                         [](const auto& p) { return NombreDe(p.param); });

}  // namespace
}  // namespace tessario
