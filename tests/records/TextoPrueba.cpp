#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "apoyo/PlataformaPrueba.h"
#include "records/Archivo.h"
#include "records/Texto.h"

namespace tessario {

namespace {

namespace fs = std::filesystem;

class Textos : public PruebaBase {
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

// ---------------------------------------------------------------- encoding

TEST_F(Textos, SpanishLettersTakeOneByteOnDisk) {
    EXPECT_EQ(A1252("Ñandú €"),
              "\xD1"
              "and\xFA \x80");
    EXPECT_EQ(De1252("\xBFQu\xE9?"), "¿Qué?");
    EXPECT_EQ(De1252("\x80\x93\x99"), "€“™");
}

TEST_F(Textos, CharacterWithoutACodeBecomesAQuestionMark) {
    EXPECT_EQ(A1252("a日b"), "a?b");
    EXPECT_EQ(A1252("😀"), "?");
}

TEST_F(Textos, EveryByteComesBack) {
    for (int b = 0; b < 256; ++b) {
        const std::string uno(1, static_cast<char>(b));
        EXPECT_EQ(A1252(De1252(uno)), uno) << b;
    }
}

TEST_F(Textos, BytesThatAreNoUtf8AreReadWithoutHarm) {
    EXPECT_EQ(A1252("a\xFF"
                    "b"),
              "a?b");
    EXPECT_EQ(A1252("\xC3"), "?");
    EXPECT_EQ(A1252("\xE2\x82"), "??");
}

// ---------------------------------------------------------------- quoting and lines

TEST_F(Textos, QuotesInsideAreDoubledAndComeBack) {
    EXPECT_EQ(Entrecomilla("Juan \"El\" Rey"), "\"Juan \"\"El\"\" Rey\"");
    EXPECT_EQ(DeComillas("\"Juan \"\"El\"\" Rey\""), "Juan \"El\" Rey");
    for (const char* t : {"", "\"", "\"\"", " a ", "a\"", "\"a"})
        EXPECT_EQ(DeComillas(Entrecomilla(t)), t);
}

TEST_F(Textos, LineFeedInANameDoesNotSplitItsLine) {
    for (const char* t : {"\n", "mar\nsol.bmp", "mar\r\nsol\r", "\n\"\n"}) {
        const std::string linea = Entrecomilla(t);
        EXPECT_EQ(linea.find('\n'), std::string::npos);
        EXPECT_EQ(DeComillas(linea), t);
        const std::vector<std::string> lineas = Lineas(linea + "\r\n\"otra\"\r\n");
        ASSERT_EQ(lineas.size(), 2U);
        EXPECT_EQ(DeComillas(lineas[0]), t);
    }
}

TEST_F(Textos, FirstQuotedItemOfALine) {
    EXPECT_EQ(DeComillas("\"uno\",\"dos\""), "uno");
    EXPECT_EQ(DeComillas("  \"uno\" "), "uno");
    EXPECT_EQ(DeComillas("\"sin cerrar"), "sin cerrar");
    EXPECT_EQ(DeComillas(" sin comillas "), " sin comillas ");
    EXPECT_EQ(DeComillas("\""), "");
}

TEST_F(Textos, LinesEndInAnyOfTheWays) {
    const std::vector<std::string> esperado{"uno", "", "tres"};
    EXPECT_EQ(Lineas("uno\r\n\r\ntres\r\n"), esperado);
    EXPECT_EQ(Lineas("uno\n\ntres\n"), esperado);
    EXPECT_EQ(Lineas("uno\r\n\r\ntres"), esperado);
    EXPECT_TRUE(Lineas("").empty());
}

// ---------------------------------------------------------------- names

TEST_F(Textos, FileIsFoundWhateverTheCaseOfItsName) {
    const std::string ruta = Crea("Imagenes/Música Nº1.JPG", "x");
    EXPECT_EQ(BuscaRuta(P().carpeta + "IMAGENES/MÚSICA nº1.jpg"), ruta);
    EXPECT_EQ(BuscaRuta(ruta), ruta);
}

TEST_F(Textos, PathWithBackslashesAndDriveIsFound) {
    const std::string ruta = Crea("Imagenes/Lago.bmp", "x");
    std::string otra = "C:" + P().carpeta + "imagenes/LAGO.BMP";
    for (char& c : otra)
        if (c == '/') c = '\\';
    EXPECT_EQ(BuscaRuta(otra), ruta);
}

TEST_F(Textos, PathWrittenInAnotherEncodingIsFound) {
    const std::string ruta = Crea("Imagenes/Otoño.jpg", "x");
    EXPECT_EQ(BuscaRuta(P().carpeta + "Imagenes\\Oto\xF1o.jpg"), ruta);
}

TEST_F(Textos, TheVeryNameComesBeforeOneOfAnotherCase) {
    Crea("a/FOTO.bmp", "x");
    const std::string ruta = Crea("a/foto.bmp", "x");
    EXPECT_EQ(BuscaRuta(P().carpeta + "a/foto.bmp"), ruta);
    EXPECT_EQ(BuscaRuta(P().carpeta + "a/Foto.bmp"), P().carpeta + "a/FOTO.bmp");
}

TEST_F(Textos, PathOfNothingStaysAsItIs) {
    for (const std::string& ruta : {P().carpeta + "no/hay.bmp", std::string("Z:\\no\\hay.bmp"),
                                    std::string(), std::string("a\0b", 3), std::string(5000, 'x')})
        EXPECT_EQ(BuscaRuta(ruta), ruta);
}

// ---------------------------------------------------------------- reading

TEST_F(Textos, ErrorsOfReadingTellMissingFileFromMissingFolder) {
    EXPECT_EQ(Lee(P().carpeta + "nada.ini"), 53);
    EXPECT_EQ(Lee(P().carpeta + "nada/nada.ini"), 76);
    const std::string fichero = Crea("f", "x");
    EXPECT_EQ(Lee(fichero + "/bajo"), 76);
    EXPECT_EQ(Lee(P().carpeta), 75);
    EXPECT_EQ(Lee("/dev/zero"), 75);
    EXPECT_EQ(Lee(std::string("a\0b", 3)), 64);
}

TEST_F(Textos, PipeDoesNotHoldTheGame) {
    const std::string tubo = P().carpeta + "tubo";
    ASSERT_EQ(mkfifo(tubo.c_str(), 0600), 0);
    EXPECT_EQ(Lee(tubo), 75);
    EXPECT_NE(EscribeFichero(tubo, "x"), 0);
}

TEST_F(Textos, FileAboveTheLimitIsRefused) {
    const std::string ruta = Crea("grande", std::string(1001, 'x'));
    std::string bytes;
    EXPECT_EQ(LeeFichero(ruta, bytes, 1000), 7);
    EXPECT_TRUE(bytes.empty());
    EXPECT_EQ(LeeFichero(ruta, bytes, 1001), 0);
    EXPECT_EQ(bytes.size(), 1001U);
}

TEST_F(Textos, ReadingLooksPastTheCaseOfTheName) {
    Crea("TSR33.INI", "contenido");
    std::string bytes;
    EXPECT_EQ(LeeFichero(P().carpeta + "TsR33.ini", bytes), 0);
    EXPECT_EQ(bytes, "contenido");
}

// ---------------------------------------------------------------- writing

TEST_F(Textos, FileIsReplacedWholeAndNothingIsLeftBeside) {
    const std::string ruta = Crea("a.ini", "un texto más largo que el nuevo");
    EXPECT_EQ(EscribeFichero(ruta, "nuevo"), 0);
    EXPECT_EQ(Contenido(ruta), "nuevo");
    EXPECT_EQ(EscribeFichero(P().carpeta + "b.ini", {}), 0);
    EXPECT_EQ(Entradas(), 2U);
}

TEST_F(Textos, WritingGoesToTheFileOfAnotherCase) {
    Crea("TSR33.INI", "viejo");
    EXPECT_EQ(EscribeFichero(P().carpeta + "TsR33.ini", "nuevo"), 0);
    EXPECT_EQ(Contenido(P().carpeta + "TSR33.INI"), "nuevo");
    EXPECT_EQ(Entradas(), 1U);
}

TEST_F(Textos, PermissionsAreKept) {
    const std::string ruta = Crea("a.ini", "viejo");
    ASSERT_EQ(chmod(ruta.c_str(), 0640), 0);
    EXPECT_EQ(EscribeFichero(ruta, "nuevo"), 0);
    struct stat datos {};
    ASSERT_EQ(stat(ruta.c_str(), &datos), 0);
    EXPECT_EQ(datos.st_mode & 0777U, 0640U);
}

TEST_F(Textos, NewFileHasThePermissionsOfAnyOther) {
    const mode_t antes = umask(027);
    EXPECT_EQ(EscribeFichero(P().carpeta + "n.ini", "x"), 0);
    umask(antes);
    struct stat datos {};
    ASSERT_EQ(stat((P().carpeta + "n.ini").c_str(), &datos), 0);
    EXPECT_EQ(datos.st_mode & 0777U, 0640U);
}

TEST_F(Textos, LinkStaysALink) {
    const std::string ruta = Crea("real/a.ini", "viejo");
    const std::string enlace = P().carpeta + "a.ini";
    fs::create_symlink(ruta, enlace);
    EXPECT_EQ(EscribeFichero(enlace, "nuevo"), 0);
    EXPECT_TRUE(fs::is_symlink(enlace));
    EXPECT_EQ(Contenido(ruta), "nuevo");
}

TEST_F(Textos, FullDiskLeavesTheOldFile) {
    const std::string ruta = Crea("a.ini", "viejo");
    {
        const DiscoLleno lleno(4);
        EXPECT_EQ(EscribeFichero(ruta, "un texto que no cabe"), 61);
        EXPECT_EQ(EscribeFichero(P().carpeta + "nuevo.ini", "no cabe"), 61);
    }
    EXPECT_EQ(Contenido(ruta), "viejo");
    EXPECT_EQ(Entradas(), 1U);
}

TEST_F(Textos, FullDeviceIsReportedAndStaysADevice) {
    EXPECT_EQ(EscribeFichero("/dev/full", "x"), 61);
    struct stat datos {};
    ASSERT_EQ(stat("/dev/full", &datos), 0);
    EXPECT_TRUE(S_ISCHR(datos.st_mode));
}

TEST_F(Textos, PlacesThatCannotBeWrittenAreErrors) {
    const std::string fichero = Crea("f", "x");
    EXPECT_EQ(EscribeFichero(fichero + "/bajo.ini", "x"), 76);
    EXPECT_EQ(EscribeFichero(P().carpeta + "no/hay.ini", "x"), 76);
    EXPECT_EQ(EscribeFichero(P().carpeta, "x"), 75);
    EXPECT_EQ(EscribeFichero({}, "x"), 64);
    EXPECT_EQ(EscribeFichero(P().carpeta + std::string(300, 'x'), "x"), 64);
    EXPECT_NE(EscribeFichero("/proc/nada.ini", "x"), 0);
}

}  // namespace tessario
