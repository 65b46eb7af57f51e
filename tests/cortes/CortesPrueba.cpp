// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever is saved is saved whole or not at all: each kind of save is cut short at every call that
// opens or changes a file, and has every such call fail once. After the next start each file is
// what it was before or what it is after, and nothing else lies there.
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>

#include "apoyo/PersonalMontada.h"
#include "cortes/Calzo.h"
#include "records/Historial.h"
#include "records/Modelos.h"
#include "records/Surtido.h"
#include "session/Configuracion.h"
#include "session/CopiaSeguridad.h"
#include "session/Montaje.h"
#include "session/Pegada.h"
#include "session/Restos.h"
#include "start/Arranque.h"

namespace tessario {

using namespace personal;
namespace fs = std::filesystem;

namespace {

constexpr int LLAMADAS_MAXIMAS = 2000;  // of one save

// The files of a folder and of those in it, by their way from it.
using Carpeta = std::map<std::string, std::string>;

Carpeta Lee(const std::string& raiz) {
    Carpeta c;
    for (const auto& f : fs::recursive_directory_iterator(raiz)) {
        if (!f.is_regular_file()) continue;
        std::ostringstream bytes;
        bytes << std::ifstream(f.path(), std::ios::binary).rdbuf();
        c[fs::relative(f.path(), raiz)] = bytes.str();
    }
    return c;
}

void Repon(const std::string& raiz, const Carpeta& c) {
    for (const auto& [nombre, bytes] : Lee(raiz))
        if (!c.contains(nombre)) fs::remove(raiz + nombre);
    for (const auto& [nombre, bytes] : c) {
        fs::create_directories(fs::path(raiz + nombre).parent_path());
        std::ofstream(raiz + nombre, std::ios::binary) << bytes;
    }
}

// Runs it in a process of its own; its exit status.
int EnOtroProceso(const std::function<void()>& hace) {
    std::cout.flush();
    const pid_t hijo = fork();
    if (hijo == 0) {
        hace();
        _exit(0);
    }
    int estado = -1;
    waitpid(hijo, &estado, 0);
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : -WTERMSIG(estado);
}

}  // namespace

class Cortes : public PersonalMontada {
protected:
    // What the next start does before it reads anything.
    void Arranca() { RecogeRestos({Gbl.CarpetaPrograma, Gbl.CarpetaArchivo, Gbl.CarpetaImagenes}); }

    // The files are each as before or as afterwards, and all that should be there are.
    void SinPerdida(const std::string& caso) {
        const Carpeta ahora = Lee(P().carpeta);
        for (const auto& [nombre, bytes] : ahora) {
            const bool antes = antes_.contains(nombre) && antes_[nombre] == bytes;
            const bool despues = despues_.contains(nombre) && despues_[nombre] == bytes;
            EXPECT_TRUE(antes || despues) << caso << ": " << nombre << " with " << bytes.size();
        }
        for (const auto& [nombre, bytes] : antes_)
            EXPECT_TRUE(ahora.contains(nombre) || !despues_.contains(nombre))
                << caso << ": " << nombre << " is gone";
    }

    // How many calls the save makes, and what it leaves; everything is put back as it was.
    int Ensaya(const std::function<void()>& guarda) {
        antes_ = Lee(P().carpeta);
        int tubo[2];
        if (pipe(tubo) != 0) return 0;
        EXPECT_EQ(EnOtroProceso([&] {
                      calzo::Pon(calzo::Modo::Cuenta, 0);
                      guarda();
                      calzo::Quita();
                      const int n = calzo::Llamadas();
                      if (::write(tubo[1], &n, sizeof n) != sizeof n) _exit(1);
                  }),
                  0);
        int llamadas = 0;
        EXPECT_EQ(::read(tubo[0], &llamadas, sizeof llamadas),
                  static_cast<ssize_t>(sizeof llamadas));
        ::close(tubo[0]);
        ::close(tubo[1]);
        Arranca();
        despues_ = Lee(P().carpeta);
        EXPECT_NE(antes_, despues_) << "it saves nothing";
        return llamadas;
    }

    void CortaEnTodas(const std::string& nombre, const std::function<void()>& guarda) {
        const int llamadas = Ensaya(guarda);
        ASSERT_GT(llamadas, 3) << nombre;
        ASSERT_LT(llamadas, LLAMADAS_MAXIMAS) << nombre;
        for (int n = 1; n <= llamadas; ++n) {
            Repon(P().carpeta, antes_);
            const int estado = EnOtroProceso([&] {
                calzo::Pon(calzo::Modo::Mata, n);
                guarda();
            });
            EXPECT_EQ(estado, calzo::SALIDA_MATADO) << nombre << ", call " << n;
            Arranca();
            SinPerdida(nombre + " ended at call " + std::to_string(n));
        }
        const std::pair<calzo::Modo, int> fallos[] = {
            {calzo::Modo::Falla, ENOSPC}, {calzo::Modo::Falla, EIO}, {calzo::Modo::Falla, EACCES},
            {calzo::Modo::Falla, EINTR},  {calzo::Modo::Corta, 0},   {calzo::Modo::Llena, ENOSPC},
        };
        for (const auto& [modo, error] : fallos)
            for (int n = 1; n <= llamadas; ++n) {
                Repon(P().carpeta, antes_);
                const int estado = EnOtroProceso([&, modo = modo, error = error] {
                    calzo::Pon(modo, n, error);
                    guarda();
                });
                const std::string caso =
                    nombre + ", error " + std::to_string(error) + " at call " + std::to_string(n);
                EXPECT_EQ(estado, 0) << caso;
                Arranca();
                SinPerdida(caso);
            }
        std::cout << nombre << ": " << llamadas << " calls, each the last one once and failed "
                  << std::size(fallos) << " times\n";
    }

private:
    Carpeta antes_, despues_;
};

TEST_F(Cortes, Exit) {
    MovilesDe("a.bmp", 320, 240);
    EscribeConfiguracion();
    GuardaAjustesJuego();
    Gbl.VelocidadJuego = 77;
    Gbl.Piezas[3].X = static_cast<i16>(Gbl.Piezas[3].X + 5);
    CortaEnTodas("exit", [] { TerminaPrograma(); });
}

TEST_F(Cortes, SavedPuzzle) {
    MovilesDe("a.bmp", 320, 240);
    const std::string ruta = P().carpeta + "Archivo/mío.p21";
    EXPECT_EQ(GuardaPuzzle(ruta), 0);
    Gbl.Piezas[3].X = static_cast<i16>(Gbl.Piezas[3].X + 5);
    CortaEnTodas("saved puzzle", [&] { GuardaPuzzle(ruta); });
}

TEST_F(Cortes, SavedPuzzleOfANewName) {
    Deslizantes(4);
    CortaEnTodas("new puzzle", [&] { GuardaPuzzle(P().carpeta + "Archivo/otro.p22"); });
}

TEST_F(Cortes, SafetyCopy) {
    MovilesDe("a.bmp", 320, 240);
    CortaEnTodas("safety copy", [] {
        GuardaCopia(EscribePuzzle());
        EsperaCopia();
    });
}

TEST_F(Cortes, Model) {
    TangramDe({"Barco", "Pato"}, MODO_CREAR);
    CortaEnTodas("model", [] { GuardaModelo("Casa"); });
}

TEST_F(Cortes, DeletedModel) {
    TangramDe({"Barco", "Pato"});
    CortaEnTodas("deleted model", [] { BorraModelo(); });
}

TEST_F(Cortes, History) {
    MovilesDe("a.bmp", 320, 240);
    EXPECT_EQ(EntraEnHistorico(), 0);
    CortaEnTodas("history", [] { EntraEnHistorico(); });
}

TEST_F(Cortes, SettingsWindow) {
    MovilesDe("a.bmp", 320, 240);
    EscribeConfiguracion();
    GuardaAjustesJuego();
    CortaEnTodas("settings window", [&] {
        Visita([&] {
            Bul(3).Pon(!Bul(3).Value);
            Sal({true, true});
        });
        TerminaPrograma();
    });
}

TEST_F(Cortes, ChangeOfGame) {
    MovilesDe("a.bmp", 320, 240);
    EscribeConfiguracion();
    GuardaAjustesJuego();
    Gbl.Piezas[3].X = static_cast<i16>(Gbl.Piezas[3].X + 5);
    CortaEnTodas("change of game", [&] {
        P().respuestas = {true, true, true};
        Visita([&] { Bul(22).Pon(true); });
    });
}

// The settings that come with the program move to the player's folder: however often that is cut
// short, the next start brings all of them.
TEST_F(Cortes, FirstStartOfAnInstalledProgram) {
    const std::string medio = P().carpeta;
    fs::create_directory(medio + "CSCD.WRK");  // nothing can be written beside the program
    Crea("TSR33.INI", "global");
    Crea("TSR2133.INI", "jigsaw");
    Crea("TSR2233.INI", "sliding");
    Crea("TSR2333.INI", "Tangram");
    const auto empieza = [&] {
        Gbl.CarpetaPrograma = medio;
        PreparaCarpetas();
    };
    const Carpeta antes = Lee(medio);
    calzo::Pon(calzo::Modo::Cuenta, 0);
    empieza();
    calzo::Quita();
    const int llamadas = calzo::Llamadas();
    const Carpeta despues = Lee(medio);
    ASSERT_GE(despues.size(), antes.size() + 4);
    for (int n = 1; n <= llamadas; ++n) {
        fs::remove_all(CarpetaSistema());
        EXPECT_EQ(Lee(medio), antes);
        EXPECT_EQ(EnOtroProceso([&] {
                      calzo::Pon(calzo::Modo::Mata, n);
                      empieza();
                  }),
                  calzo::SALIDA_MATADO)
            << n;
        empieza();
        RecogeRestos({Gbl.CarpetaPrograma, Gbl.CarpetaArchivo});
        EXPECT_EQ(Lee(medio), despues) << "ended at call " << n;
    }
    std::cout << "first start: " << llamadas << " calls, each the last one once\n";
}

TEST_F(Cortes, PasteThatWasNotAccepted) {
    const std::string pegada = Crea("Imagenes/tsportap.bmp", "first");
    CortaEnTodas("second paste", [&] {
        if (!ApartaPegada(pegada, pegada)) return;
        std::ofstream(pegada) << "second";
        DevuelvePegada(pegada);
        EscribeConfiguracion();
    });
}

}  // namespace tessario
