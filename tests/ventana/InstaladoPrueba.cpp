// SPDX-License-Identifier: GPL-3.0-or-later
// The installed program: its folder cannot be written, its player is an ordinary user, and all that
// it leaves lies in that user's data folder.
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>

#include "ventana/Escritorio.h"
#include "ventana/Oferta.h"

namespace tessario::ventana {
namespace {

namespace fs = std::filesystem;

constexpr int ANCHO = 1024, ALTO = 768;
constexpr const char* DATOS = ".local/share/tessario/Temp/Tsb/";

// Installed by the build's own rules, with a home beside it. A user of a number of our own, where
// we may choose, so that what the program leaves anywhere can be told by its owner.
class InstaladoVentana : public testing::Test {
protected:
    void SetUp() override {
        const std::string orden =
            "'" TESSARIO_CMAKE "' --install '" TESSARIO_CONSTRUCCION "' --prefix '" +
            raiz_.string() + "/usr' > '" + raiz_.string() + "/instala.txt' 2>&1";
        fs::create_directories(raiz_);
        fs::permissions(raiz_, fs::perms::owner_all | fs::perms::group_read |
                                   fs::perms::group_exec | fs::perms::others_read |
                                   fs::perms::others_exec);
        ASSERT_EQ(std::system(orden.c_str()), 0);
        fs::create_directories(casa_);
        ASSERT_TRUE(geteuid() != 0 || chown(casa_.c_str(), usuario_, usuario_) == 0);
        if (geteuid() != 0) Cierra(true);
    }
    void TearDown() override {
        if (geteuid() != 0) Cierra(false);
        fs::remove_all(raiz_);
    }
    void Cierra(bool si) const {
        constexpr auto escribir =
            fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
        for (const auto& f : fs::recursive_directory_iterator(raiz_ / "usr"))
            if (f.is_directory() && !f.is_symlink())
                fs::permissions(f.path(), si ? escribir : fs::perms::owner_write,
                                si ? fs::perm_options::remove : fs::perm_options::add);
    }
    // Every entry below a folder, with what a change of it would change.
    static std::map<std::string, std::string> Huellas(const fs::path& carpeta) {
        std::map<std::string, std::string> huellas;
        for (const auto& f : fs::recursive_directory_iterator(carpeta)) {
            struct stat s {};
            lstat(f.path().c_str(), &s);
            huellas[f.path().lexically_relative(carpeta)] = std::to_string(s.st_size) + " " +
                                                            std::to_string(s.st_mtim.tv_sec) + "." +
                                                            std::to_string(s.st_mtim.tv_nsec);
        }
        return huellas;
    }
    std::set<std::string> Ficheros() const {
        std::set<std::string> nombres;
        for (const auto& f : fs::recursive_directory_iterator(casa_))
            if (!f.is_directory()) nombres.insert(f.path().lexically_relative(casa_));
        return nombres;
    }
    // All that lies in the home and is neither the data folder, nor on the way to it, nor in it.
    std::set<std::string> FueraDeDatos() const {
        const std::string datos = ".local/share/tessario/";
        std::set<std::string> nombres;
        for (const auto& f : fs::recursive_directory_iterator(casa_)) {
            const std::string ruta = f.path().lexically_relative(casa_).string() + "/";
            if (datos.rfind(ruta, 0) != 0 && ruta.rfind(datos, 0) != 0) nombres.insert(ruta);
        }
        return nombres;
    }
    // What lies beside the installed program and the home.
    std::set<std::string> EnLaRaiz() const {
        std::set<std::string> nombres;
        for (const auto& f : fs::directory_iterator(raiz_)) nombres.insert(f.path().filename());
        return nombres;
    }
    static unsigned DuenoDe(pid_t pid) {
        struct stat s {};
        return stat(("/proc/" + std::to_string(pid)).c_str(), &s) == 0 ? s.st_uid : 0;
    }
    // What the user owns in the folders that belong to everybody.
    std::set<std::string> Ajenos() const {
        std::set<std::string> nombres;
        if (geteuid() != 0) return nombres;
        for (const char* comun : {"/tmp", "/var/tmp", "/dev/shm"}) {
            std::error_code e;
            for (const auto& f : fs::directory_iterator(comun, e)) {
                struct stat s {};
                if (lstat(f.path().c_str(), &s) == 0 && s.st_uid == usuario_)
                    nombres.insert(f.path());
            }
        }
        return nombres;
    }

    const fs::path raiz_ =
        fs::temp_directory_path() / ("tessario-instalado-" + std::to_string(getpid()));
    const fs::path casa_ = raiz_ / "casa";
    const unsigned usuario_ =
        geteuid() == 0 ? 20000U + static_cast<unsigned>(getpid()) % 40000U : geteuid();
};

std::set<std::string> EnDatos(std::initializer_list<const char*> nombres) {
    std::set<std::string> todos;
    for (const char* n : nombres) todos.insert(std::string(DATOS) + n);
    return todos;
}

TEST_F(InstaladoVentana, AnOrdinaryUserPlaysTwiceAndAllIsInTheOwnFolder) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e, {(raiz_ / "usr/bin/tessario").string(), casa_.string(), usuario_});
    // A desktop gives each session a folder of its own.
    const fs::path sesion = raiz_ / "sesion";
    fs::create_directories(sesion);
    fs::permissions(sesion, fs::perms::owner_all);
    ASSERT_TRUE(geteuid() != 0 || chown(sesion.c_str(), usuario_, usuario_) == 0);
    const Entorno entorno{{"XDG_RUNTIME_DIR", sesion.string()}};
    const auto antes = Huellas(raiz_ / "usr");

    // A piece is laid, the puzzle saved, the program left.
    programa.Lanzalo(entorno);
    ASSERT_TRUE(programa.LlegaALaMesa());
    ASSERT_NE(usuario_, 0U);
    EXPECT_EQ(DuenoDe(programa.Pid()), usuario_);
    constexpr const char* PARTIDA = "TSR2133.INI";
    const PartidaLeida repartida = programa.LeeRecord(PARTIDA);
    ASSERT_EQ(repartida.piezas.size(), 25U);
    const PiezaGuardada q = repartida.piezas[0];
    constexpr int MEDIA_X = 35, MEDIA_Y = 26;
    e.Arrastra(q.x + MEDIA_X, q.y + MEDIA_Y, q.xBien + MEDIA_X + 2, q.yBien + MEDIA_Y + 2);
    constexpr int LIBRE_X = 700, LIBRE_Y = 620, FILA = 12;
    e.Pulsa(LIBRE_X, LIBRE_Y, 3);
    e.EsperaAtendido();
    e.Pulsa(LIBRE_X + 30, LIBRE_Y + FILA);
    ASSERT_TRUE(e.Espera([&] { return e.HayVentana("Archivar el puzzle actual"); }));
    e.EsperaQuieto(120);
    for (const char* letra : {"m", "i", "o"}) e.Tecla(letra);
    e.Tecla("Return");
    ASSERT_TRUE(e.Espera([&] { return !e.HayVentana("Archivar el puzzle actual"); }));
    e.EsperaQuieto(120);
    ASSERT_TRUE(programa.Sale());
    EXPECT_EQ(Ficheros(), EnDatos({"Archivo/MODELOS.TPU", "Archivo/SURTIDO.VIS", "Archivo/mio.puz",
                                   "TSR2133.INI", "TSR2233.INI", "TSR2333.INI", "TSR33.INI"}));
    EXPECT_EQ(programa.LeeRecord("Archivo/mio.puz").piezas[0].x, q.xBien);
    EXPECT_EQ(programa.Errores(), "");

    // The second start has it all as it was left. A picture dropped on the table comes to the
    // player's own pictures, whose folder is a place in the settings.
    programa.Lanzalo(entorno);
    ASSERT_TRUE(programa.LlegaALaMesa());
    EXPECT_EQ(DuenoDe(programa.Pid()), usuario_);
    EXPECT_EQ(programa.LeeRecord(PARTIDA).piezas[0].x, q.xBien);
    const std::string foto = (raiz_ / "cuadros.bmp").string();
    Programa::EscribeEn(foto, Programa::ImagenDeCuadros(480, 360, 3));
    const Acogida acogida = SueltaFichero(e, LIBRE_X, LIBRE_Y, foto);
    EXPECT_TRUE(acogida.recogida);
    Escritorio::Marco marco;
    ASSERT_TRUE(e.Espera([&] { return e.BuscaVentana("Personalizar", marco); }));
    e.EsperaQuieto();
    e.Mira().Guarda("instalado-ajustes");
    constexpr int SALIR_X = 612, SALIR_Y = 511;
    e.Pulsa(marco.x + SALIR_X, marco.y + SALIR_Y);
    ASSERT_TRUE(e.Responde("Parámetros del puzzle", true));
    ASSERT_TRUE(e.Espera([&] { return !e.HayVentana("Personalizar"); }));
    e.EsperaQuieto();
    e.Mira().Guarda("instalado-mesa");
    ASSERT_TRUE(programa.Sale());
    EXPECT_EQ(programa.LeeRecord(PARTIDA).imagen, "cuadros.bmp");
    EXPECT_EQ(Ficheros().count(std::string(DATOS) + "Imagenes/cuadros.bmp"), 1U);
    EXPECT_EQ(programa.Errores(), "");

    EXPECT_EQ(Huellas(raiz_ / "usr"), antes) << "the program's own folders";
    EXPECT_EQ(Ajenos(), std::set<std::string>{});
    EXPECT_EQ(FueraDeDatos(), std::set<std::string>{});
    EXPECT_EQ(EnLaRaiz(), (std::set<std::string>{"casa", "casa-errores.txt", "cuadros.bmp",
                                                 "instala.txt", "sesion", "usr"}));
    for (const auto& f : fs::recursive_directory_iterator(sesion))
        EXPECT_FALSE(f.is_regular_file()) << f.path();
}

}  // namespace
}  // namespace tessario::ventana
