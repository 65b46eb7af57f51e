// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the lists of drives, folders and files, with a home of the test's own.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "apoyo/PlataformaPrueba.h"
#include "platform/Ficheros.h"

namespace {

std::string casaDePrueba;  // empty: the user's own

}  // namespace

// The linker gives this name to the program and to the libraries that it loads.
extern "C" passwd* getpwuid(uid_t uid) {
    static passwd falsa;
    if (casaDePrueba.empty()) {
        using Verdadera = passwd* (*)(uid_t);
        static const auto verdadera = reinterpret_cast<Verdadera>(dlsym(RTLD_NEXT, "getpwuid"));
        return verdadera(uid);
    }
    falsa.pw_dir = casaDePrueba.data();
    return &falsa;
}

namespace tessario {
namespace {

namespace fs = std::filesystem;

class Ficheros : public PruebaBase {
protected:
    ~Ficheros() override { casaDePrueba.clear(); }

    void PonCasa() { casaDePrueba = P().carpeta + "casa"; }
    std::string Casa() { return P().carpeta + "casa/"; }
    void PonCarpeta(const std::string& nombre) { fs::create_directories(Casa() + nombre); }
    void PonLista(const std::string& texto) {
        PonCarpeta(".config");
        std::ofstream(Casa() + ".config/user-dirs.dirs") << texto;
    }
    // Where the row of the player's pictures leads; empty when there is none.
    static std::string Fotos() {
        for (const Unidad& u : Unidades())
            if (u.Nombre == "Imágenes") return u.Ruta;
        return {};
    }
};

TEST_F(Ficheros, HomePicturesAndRootStandFirst) {
    PonCasa();
    PonCarpeta("Fotos");
    PonLista("XDG_MUSIC_DIR=\"$HOME/Musica\"\nXDG_PICTURES_DIR=\"$HOME/Fotos\"\n");
    const std::vector<Unidad> u = Unidades();
    ASSERT_GE(u.size(), 3U);
    EXPECT_EQ(u[0].Nombre, "Personal");
    EXPECT_EQ(u[0].Ruta, Casa());
    EXPECT_EQ(u[1].Nombre, "Imágenes");
    EXPECT_EQ(u[1].Ruta, Casa() + "Fotos/");
    EXPECT_EQ(u[2].Nombre, "Equipo ( / )");
    EXPECT_EQ(u[2].Ruta, "/");
    for (const Unidad& otra : u) EXPECT_TRUE(otra.Ruta.ends_with('/')) << otra.Ruta;
}

TEST_F(Ficheros, PicturesStandWhereTheListSaysElseUnderAUsualName) {
    PonCasa();
    for (const char* nombre : {"Pictures", "Imágenes", "Fotos"}) {
        PonCarpeta(nombre);
        EXPECT_EQ(Fotos(), Casa() + (nombre == std::string("Fotos") ? "Imágenes" : nombre) + "/");
    }
    PonLista("XDG_PICTURES_DIR=\"" + Casa() + "Fotos\"\n");
    EXPECT_EQ(Fotos(), Casa() + "Fotos/");
    PonLista("XDG_PICTURES_DIR=\"$HOME/no hay\"\n");
    EXPECT_EQ(Fotos(), Casa() + "Imágenes/");
    PonLista("#XDG_PICTURES_DIR=\"$HOME/Fotos\"\nXDG_PICTURES_DIR=\".\"\n");
    EXPECT_EQ(Fotos(), Casa() + "Imágenes/") << "neither a comment nor a relative path counts";
}

TEST_F(Ficheros, PicturesThatAreTheHomeItselfHaveNoRow) {
    PonCasa();
    PonCarpeta("");
    EXPECT_EQ(Fotos(), "");
    PonLista("XDG_PICTURES_DIR=\"$HOME/\"\n");
    EXPECT_EQ(Fotos(), "");
    PonLista("XDG_PICTURES_DIR=\"\n");
    EXPECT_EQ(Fotos(), "");
}

TEST_F(Ficheros, APipeForTheListIsNotWaitedFor) {
    PonCasa();
    PonCarpeta(".config");
    PonCarpeta("Pictures");
    ASSERT_EQ(mkfifo((Casa() + ".config/user-dirs.dirs").c_str(), 0600), 0);
    EXPECT_EQ(Fotos(), Casa() + "Pictures/");
}

TEST_F(Ficheros, AHugeListIsNotRead) {
    PonCasa();
    PonCarpeta("Pictures");
    PonCarpeta("Fotos");
    constexpr std::uintmax_t MAXIMO = 65536;
    const std::string ruta = Casa() + ".config/user-dirs.dirs";
    PonLista("XDG_PICTURES_DIR=\"$HOME/Fotos\"\n");
    fs::resize_file(ruta, MAXIMO);
    EXPECT_EQ(Fotos(), Casa() + "Fotos/");
    fs::resize_file(ruta, MAXIMO + 1);
    EXPECT_EQ(Fotos(), Casa() + "Pictures/");
}

TEST_F(Ficheros, WhoHasNoFolderOfHisOwnHasNoRowsForIt) {
    for (const char* casa : {"/", "nada", "relativa/casa"}) {
        casaDePrueba = casa;
        EXPECT_EQ(Unidades().front().Nombre, "Equipo ( / )") << casa;
    }
}

TEST_F(Ficheros, FoldersComeWithoutFilesAndWithoutHiddenOnes) {
    const std::string donde = P().carpeta + "lista/";
    for (const char* nombre : {"B", "A", ".oculta", "Ñu", "a"})
        fs::create_directories(donde + nombre);
    std::ofstream(donde + "fichero") << "x";
    fs::create_directory_symlink(donde + "B", donde + "enlace");
    EXPECT_EQ(CarpetasDe(donde), (std::vector<std::string>{"A", "a", "B", "enlace", "Ñu"}));
    EXPECT_TRUE(CarpetasDe(donde + "no hay/").empty());
    EXPECT_TRUE(CarpetasDe(donde + "fichero").empty());
}

TEST_F(Ficheros, FilesAreThoseThatOneOfThePatternsMatchesWhole) {
    const std::string donde = P().carpeta + "lista/";
    for (const char* nombre : {"uno.bmp", "DOS.BMP", "tres.jpg", "cuatro.jpeg", ".punto.bmp", "bmp",
                               "cinco.bmp.txt", "a1.gif", "a12.gif", ".gif"})
        Crea(std::string("lista/") + nombre, "x");
    fs::create_directories(donde + "carpeta.bmp");
    using Nombres = std::vector<std::string>;
    EXPECT_EQ(FicherosDe(donde, "*.bmp;*.JPG"), (Nombres{"DOS.BMP", "tres.jpg", "uno.bmp"}));
    EXPECT_EQ(FicherosDe(donde, "a?.gif"), (Nombres{"a1.gif"}));
    EXPECT_EQ(FicherosDe(donde, "a*.gif"), (Nombres{"a1.gif", "a12.gif"}));
    EXPECT_EQ(FicherosDe(donde, "*.b*.*"), (Nombres{"cinco.bmp.txt"}));
    EXPECT_EQ(FicherosDe(donde, "uno.bmp**"), (Nombres{"uno.bmp"}));
    EXPECT_EQ(FicherosDe(donde, ".*"), (Nombres{".gif", ".punto.bmp"}));
    EXPECT_EQ(FicherosDe(donde, "").size(), 8U) << "all but the hidden ones";
    EXPECT_EQ(FicherosDe(donde, ";"), FicherosDe(donde, ""));
    EXPECT_TRUE(FicherosDe(donde, "*.wmf").empty());
}

}  // namespace
}  // namespace tessario
