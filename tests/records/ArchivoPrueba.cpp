// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>

#include "apoyo/PlataformaPrueba.h"
#include "records/Archivo.h"

namespace tessario {

namespace {

namespace fs = std::filesystem;

class Archivos : public PruebaBase {
protected:
    std::size_t Entradas() {
        std::size_t n = 0;
        for ([[maybe_unused]] const auto& e : fs::directory_iterator(P().carpeta)) ++n;
        return n;
    }
    static i16 Lee(const std::string& ruta) {
        std::string bytes;
        return LeeFichero(ruta, bytes);
    }
};

// The largest size of a file that this process may write, for the life of the object: what a full
// disk does to a write.
class DiscoLleno {
public:
    explicit DiscoLleno(rlim_t bytes) {
        anterior_ = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &limite_);
        rlimit nuevo = limite_;
        nuevo.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &nuevo);
    }
    ~DiscoLleno() {
        setrlimit(RLIMIT_FSIZE, &limite_);
        std::signal(SIGXFSZ, anterior_);
    }
    DiscoLleno(const DiscoLleno&) = delete;
    DiscoLleno& operator=(const DiscoLleno&) = delete;

private:
    rlimit limite_{};
    void (*anterior_)(int) = nullptr;
};

}  // namespace

// ---------------------------------------------------------------- reading

TEST_F(Archivos, ErrorsOfReadingTellMissingFileFromMissingFolder) {
    EXPECT_EQ(Lee(P().carpeta + "nada.ini"), 53);
    EXPECT_EQ(Lee(P().carpeta + "nada/nada.ini"), 76);
    const std::string fichero = Crea("f", "x");
    EXPECT_EQ(Lee(fichero + "/bajo"), 76);
    EXPECT_EQ(Lee(P().carpeta), 75);
    EXPECT_EQ(Lee("/dev/zero"), 75);
    EXPECT_EQ(Lee(std::string("a\0b", 3)), 64);
}

TEST_F(Archivos, PipeDoesNotHoldTheGame) {
    const std::string tubo = P().carpeta + "tubo";
    ASSERT_EQ(mkfifo(tubo.c_str(), 0600), 0);
    EXPECT_EQ(Lee(tubo), 75);
    EXPECT_NE(EscribeFichero(tubo, "x"), 0);
}

TEST_F(Archivos, FileAboveTheLimitIsRefused) {
    const std::string ruta = Crea("grande", std::string(1001, 'x'));
    std::string bytes;
    EXPECT_EQ(LeeFichero(ruta, bytes, 1000), 7);
    EXPECT_TRUE(bytes.empty());
    EXPECT_EQ(LeeFichero(ruta, bytes, 1001), 0);
    EXPECT_EQ(bytes.size(), 1001U);
}

TEST_F(Archivos, ReadingLooksPastTheCaseOfTheName) {
    Crea("TSR33.INI", "contenido");
    std::string bytes;
    EXPECT_EQ(LeeFichero(P().carpeta + "TsR33.ini", bytes), 0);
    EXPECT_EQ(bytes, "contenido");
}

// ---------------------------------------------------------------- writing

TEST_F(Archivos, FileIsReplacedWholeAndNothingIsLeftBeside) {
    const std::string ruta = Crea("a.ini", "un texto más largo que el nuevo");
    EXPECT_EQ(EscribeFichero(ruta, "nuevo"), 0);
    EXPECT_EQ(Contenido(ruta), "nuevo");
    EXPECT_EQ(EscribeFichero(P().carpeta + "b.ini", {}), 0);
    EXPECT_EQ(Entradas(), 2U);
}

TEST_F(Archivos, WritingGoesToTheFileOfAnotherCase) {
    Crea("TSR33.INI", "viejo");
    EXPECT_EQ(EscribeFichero(P().carpeta + "TsR33.ini", "nuevo"), 0);
    EXPECT_EQ(Contenido(P().carpeta + "TSR33.INI"), "nuevo");
    EXPECT_EQ(Entradas(), 1U);
}

TEST_F(Archivos, PermissionsAreKept) {
    const std::string ruta = Crea("a.ini", "viejo");
    ASSERT_EQ(chmod(ruta.c_str(), 0640), 0);
    EXPECT_EQ(EscribeFichero(ruta, "nuevo"), 0);
    struct stat datos {};
    ASSERT_EQ(stat(ruta.c_str(), &datos), 0);
    EXPECT_EQ(datos.st_mode & 0777U, 0640U);
}

TEST_F(Archivos, NewFileHasThePermissionsOfAnyOther) {
    const mode_t antes = umask(027);
    EXPECT_EQ(EscribeFichero(P().carpeta + "n.ini", "x"), 0);
    umask(antes);
    struct stat datos {};
    ASSERT_EQ(stat((P().carpeta + "n.ini").c_str(), &datos), 0);
    EXPECT_EQ(datos.st_mode & 0777U, 0640U);
}

TEST_F(Archivos, LinkStaysALink) {
    const std::string ruta = Crea("real/a.ini", "viejo");
    const std::string enlace = P().carpeta + "a.ini";
    fs::create_symlink(ruta, enlace);
    EXPECT_EQ(EscribeFichero(enlace, "nuevo"), 0);
    EXPECT_TRUE(fs::is_symlink(enlace));
    EXPECT_EQ(Contenido(ruta), "nuevo");
}

TEST_F(Archivos, FullDiskLeavesTheOldFile) {
    const std::string ruta = Crea("a.ini", "viejo");
    {
        const DiscoLleno lleno(4);
        EXPECT_EQ(EscribeFichero(ruta, "un texto que no cabe"), 61);
        EXPECT_EQ(EscribeFichero(P().carpeta + "nuevo.ini", "no cabe"), 61);
    }
    EXPECT_EQ(Contenido(ruta), "viejo");
    EXPECT_EQ(Entradas(), 1U);
}

TEST_F(Archivos, FullDeviceIsReportedAndStaysADevice) {
    EXPECT_EQ(EscribeFichero("/dev/full", "x"), 61);
    struct stat datos {};
    ASSERT_EQ(stat("/dev/full", &datos), 0);
    EXPECT_TRUE(S_ISCHR(datos.st_mode));
}

TEST_F(Archivos, PlacesThatCannotBeWrittenAreErrors) {
    const std::string fichero = Crea("f", "x");
    EXPECT_EQ(EscribeFichero(fichero + "/bajo.ini", "x"), 76);
    EXPECT_EQ(EscribeFichero(P().carpeta + "no/hay.ini", "x"), 76);
    EXPECT_EQ(EscribeFichero(P().carpeta, "x"), 75);
    EXPECT_EQ(EscribeFichero({}, "x"), 64);
    EXPECT_EQ(EscribeFichero(P().carpeta + std::string(300, 'x'), "x"), 64);
    EXPECT_NE(EscribeFichero("/proc/nada.ini", "x"), 0);
}

}  // namespace tessario
