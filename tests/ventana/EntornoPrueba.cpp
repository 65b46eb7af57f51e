// SPDX-License-Identifier: GPL-3.0-or-later
// The real program in hostile surroundings: a sound server and a clipboard's owner that hang, one
// font or none, another language, a home that cannot be written, a folder removed under it. It
// comes up, can be played, and ends in order.
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "apoyo/Idiomas.h"
#include "ventana/Escritorio.h"
#include "ventana/Oferta.h"

namespace tessario::ventana {
namespace {

namespace fs = std::filesystem;

constexpr const char *PERSONAL = "Personalizar", *NO_ES_IMAGEN = "Imagen no válida",
                     *GUARDAR = "Archivar el puzzle actual", *PARAMETROS = "Parámetros del puzzle",
                     *SIN_AJUSTES = "Error en la carga de datos iniciales";
constexpr int SALIR_X = 612, SALIR_Y = 511;  // of the settings' exit button, in the jigsaw
constexpr int CUELGUE_MS = 40000;            // what takes longer hangs

class EntornoVentana : public testing::Test {
protected:
    // The Tangram with its seven pieces in a row.
    void PonTangram(bool sonido) {
        PartidaGuardada p;
        p.juego = 23;
        p.piezas.resize(7);
        for (int i = 0; i < 7; ++i) p.piezas[static_cast<std::size_t>(i)].x = 80 * i;
        programa.EscribeGlobal(23, 100, sonido);
        programa.EscribePartida(p);
    }
    // The shuffle changes the table.
    void SeJuega() {
        const Foto antes = e.Mira();
        programa.PulsaBoton(1);
        EXPECT_TRUE(e.Espera([&] { return e.Mira().Diferencia(antes, 0, 0, 659, 600) > 500; }));
    }
    void AbreYDejaLosAjustes() {
        programa.PulsaBoton(2);
        Escritorio::Marco m;
        ASSERT_TRUE(e.Espera([&] { return e.BuscaVentana(PERSONAL, m); }, CUELGUE_MS));
        e.EsperaQuieto(250, CUELGUE_MS);
        DejaLosAjustes(m);
    }
    // What was changed, or had to be, is not to begin the puzzle anew.
    void DejaLosAjustes(const Escritorio::Marco& m) {
        e.Pulsa(m.x + SALIR_X, m.y + SALIR_Y);
        e.Espera([&] { return e.HayVentana(PARAMETROS) || !e.HayVentana(PERSONAL); }, CUELGUE_MS);
        ASSERT_TRUE(!e.HayVentana(PARAMETROS) || e.Responde(PARAMETROS, false));
        ASSERT_TRUE(e.Espera([&] { return !e.HayVentana(PERSONAL); }, CUELGUE_MS));
        e.EsperaQuieto(500, CUELGUE_MS);  // the keyboard is the table's again
    }
    // The jigsaw, nine pieces of a picture.
    void PonMoviles() {
        programa.EscribeImagenDeCuadros("cuadros.bmp", 480, 360, 3);
        programa.EscribeGlobal(21, 100);
        PartidaGuardada p;
        p.imagen = "cuadros.bmp";
        p.anchoImagen = 480;
        p.altoImagen = 360;
        p.piezas.resize(9);
        programa.EscribePartida(p);
    }
    // A font that the machine has, and that is none of the program's own.
    static std::string UnaLetra() {
        std::error_code error;
        for (const auto& f : fs::recursive_directory_iterator("/usr/share/fonts", error))
            if (f.path().extension() == ".ttf" &&
                f.path().string().find("iberation") == std::string::npos)
                return f.path();
        return {};
    }
    std::string Bytes(const std::string& nombre) {
        std::ifstream f(programa.Carpeta() + nombre, std::ios::binary);
        return {std::istreambuf_iterator<char>(f), {}};
    }

    Escritorio e{800, 600};
    Programa programa{e};
};

// ---------------------------------------------------------------- sound

// A sound server that takes the call and never says a word.
class ServidorMudo {
public:
    explicit ServidorMudo(const std::string& ruta) : fd_(socket(AF_UNIX, SOCK_STREAM, 0)) {
        sockaddr_un d{};
        d.sun_family = AF_UNIX;
        ruta.copy(d.sun_path, sizeof d.sun_path - 1);
        EXPECT_EQ(bind(fd_, reinterpret_cast<const sockaddr*>(&d), sizeof d), 0);
        EXPECT_EQ(listen(fd_, 16), 0);
    }
    ~ServidorMudo() { close(fd_); }
    ServidorMudo(const ServidorMudo&) = delete;
    ServidorMudo& operator=(const ServidorMudo&) = delete;

private:
    int fd_;
};

TEST_F(EntornoVentana, ASoundServerThatHangsHoldsNothing) {
    const std::string ruta = programa.Carpeta() + "pulso";
    const ServidorMudo servidor(ruta);
    PonTangram(true);
    programa.Lanzalo({{"SDL_AUDIODRIVER", "pulseaudio"}, {"PULSE_SERVER", "unix:" + ruta}});
    ASSERT_TRUE(programa.LlegaALaMesa());
    SeJuega();
    EXPECT_TRUE(programa.Sale());
}

// ---------------------------------------------------------------- clipboard

TEST_F(EntornoVentana, AClipboardWhoseOwnerHangsIsToldToHoldNoPicture) {
    PonMoviles();
    ASSERT_TRUE(programa.Arranca());
    for (const Trato trato : {Trato::Calla, Trato::SoloOferta, Trato::SinFin}) {
        const Oferta oferta(e, "image/bmp", Programa::ImagenDeCuadros(1600, 800, 3), trato);
        e.TeclaConControl("v");
        Escritorio::Marco m;
        ASSERT_TRUE(e.Espera([&] { return e.BuscaVentana(NO_ES_IMAGEN, m); }, CUELGUE_MS))
            << static_cast<int>(trato);
        ASSERT_TRUE(e.Responde(NO_ES_IMAGEN, false));
    }
    const Oferta oferta(e, "image/bmp", "", Trato::Calla);
    AbreYDejaLosAjustes();
    EXPECT_TRUE(programa.Sale());
}

TEST_F(EntornoVentana, AGiganticPictureOfTheClipboardIsRefused) {
    PonMoviles();
    ASSERT_TRUE(programa.Arranca());
    std::string bmp = Programa::ImagenDeCuadros(400, 300, 3);
    constexpr unsigned LADO = 60000;
    for (const std::size_t donde : {18U, 22U})  // its width and height
        for (unsigned i = 0; i < 4; ++i) bmp[donde + i] = static_cast<char>(LADO >> (8 * i));
    {
        const Oferta oferta(e, "image/bmp", bmp);
        e.TeclaConControl("v");
        ASSERT_TRUE(e.Responde(NO_ES_IMAGEN, false));
        AbreYDejaLosAjustes();
    }
    // The good one comes in pieces as well as whole.
    for (const Trato trato : {Trato::Cumple, Trato::Trozos}) {
        const Oferta oferta(e, "image/bmp", Programa::ImagenDeCuadros(400, 300, 3), trato);
        e.TeclaConControl("v");
        Escritorio::Marco m;
        ASSERT_TRUE(e.Espera([&] { return e.BuscaVentana(PERSONAL, m); }));
        e.EsperaQuieto();
        EXPECT_TRUE(fs::exists(programa.Carpeta() + "Imagenes/tsportap.bmp"));
        DejaLosAjustes(m);
        fs::remove(programa.Carpeta() + "Imagenes/tsportap.bmp");
    }
    EXPECT_TRUE(programa.Sale());
}

TEST_F(EntornoVentana, ATextBoxIsNotHeldByAClipboardThatHangs) {
    PonMoviles();
    ASSERT_TRUE(programa.Arranca());
    constexpr int LIBRE_X = 560, LIBRE_Y = 480, FILA_X = 30, FILA_Y = 12;
    e.Pulsa(LIBRE_X, LIBRE_Y, 3);
    e.EsperaAtendido();
    e.Pulsa(LIBRE_X + FILA_X, LIBRE_Y + FILA_Y);
    ASSERT_TRUE(e.Espera([&] { return e.HayVentana(GUARDAR); }));
    e.EsperaQuieto(120);
    // No text of a name is that long.
    for (const Trato trato : {Trato::Trozos, Trato::SinFin, Trato::Calla}) {
        const Oferta oferta(e, "UTF8_STRING", std::string(2000000, 'n'), trato);
        e.TeclaConControl("v");
        e.EsperaAtendido(CUELGUE_MS);
    }
    for (const char* letra : {"m", "i", "o"}) e.Tecla(letra);
    {
        const Oferta oferta(e, "UTF8_STRING", "s\u00f1", Trato::Cumple);
        e.TeclaConControl("v");
    }
    e.EsperaQuieto(120);
    e.Mira().Guarda("pegado-en-texto");
    e.Tecla("Return");
    ASSERT_TRUE(e.Espera([&] { return !e.HayVentana(GUARDAR); }));
    EXPECT_TRUE(fs::exists(programa.Carpeta() + "Archivo/mios\u00f1.puz"));
    EXPECT_TRUE(programa.Sale());
}

// ---------------------------------------------------------------- fonts

// With another font than its own the texts are set in that one; without any the program still comes
// up and is played.
TEST_F(EntornoVentana, WithOneFontOrNoneItComesUpAndIsPlayed) {
    const fs::path propias = programa.Carpeta() + "letras";
    const std::string una = UnaLetra();
    std::vector<Foto> fotos;
    for (const std::string& letra : {una, std::string()}) {
        fs::remove_all(propias);
        fs::create_directories(propias);
        if (!letra.empty()) fs::copy_file(letra, propias / "una.ttf");
        programa.EscribeBytes("letras.conf",
                              "<?xml version='1.0'?><!DOCTYPE fontconfig SYSTEM 'fonts.dtd'>"
                              "<fontconfig><dir>" +
                                  propias.string() + "</dir><cachedir>" + propias.string() +
                                  "/cache</cachedir></fontconfig>");
        PonTangram(false);
        programa.Lanzalo({{"FONTCONFIG_FILE", programa.Carpeta() + "letras.conf"}});
        ASSERT_TRUE(programa.LlegaALaMesa(false)) << letra;
        Escritorio::Marco m;
        ASSERT_TRUE(e.BuscaVentana("TESSARIO  3.3", m)) << letra;
        fotos.push_back(e.Mira());
        fotos.back().Guarda(letra.empty() ? "letras-ninguna" : "letras-una");
        EXPECT_GT(fotos.back().Cuenta(m.x, m.y, m.ancho, m.alto, 0), 50) << "texts in black";
        const bool dos = fotos.size() == 2 && !una.empty();
        EXPECT_TRUE(!dos || fotos[0].Diferencia(fotos[1], m.x, m.y, m.ancho, m.alto) > 1000)
            << "letters, and the boxes that stand for them";
        e.Tecla("Return");
        ASSERT_TRUE(e.Espera([&] { return !e.HayVentana("TESSARIO  3.3"); }));
        SeJuega();
        EXPECT_TRUE(programa.Sale()) << letra;
    }
}

// ---------------------------------------------------------------- language

TEST_F(EntornoVentana, InTurkishTheFilesHaveTheSameNumbers) {
    const Idiomas idiomas({"tr_TR.UTF-8"});
    if (idiomas.Disponibles().empty()) GTEST_SKIP() << "no such locale can be made here";
    std::string global, partida;
    for (const char* idioma : {"C", "tr_TR.UTF-8"}) {
        PonTangram(false);
        programa.Lanzalo({{"LC_ALL", idioma}, {"LOCPATH", idiomas.Carpeta()}});
        ASSERT_TRUE(programa.LlegaALaMesa());
        ASSERT_TRUE(programa.Sale());
        std::string bytes = Bytes("TsR2333.ini");
        const std::size_t linea = bytes.find("\"Prueba");
        ASSERT_NE(linea, std::string::npos);
        bytes.replace(linea + 56, 8, "00000000");  // the seconds that it took
        if (partida.empty()) partida = bytes;
        if (global.empty()) global = Bytes("TsR33.ini");
        EXPECT_EQ(bytes, partida);
        EXPECT_EQ(Bytes("TsR33.ini"), global);
    }
}

// ---------------------------------------------------------------- folders

TEST_F(EntornoVentana, AHomeThatCannotBeWrittenIsPlayedIn) {
    if (geteuid() != 0) GTEST_SKIP() << "only the administrator can start it as somebody else";
    PonTangram(false);
    const std::string datos = fs::path(programa.Carpeta()).parent_path().string() + "-datos";
    programa.CierraCarpeta(datos);
    fs::permissions(datos, fs::perms::owner_read | fs::perms::others_read | fs::perms::others_exec);
    programa.Lanzalo({{"XDG_DATA_HOME", datos}, {"HOME", datos}});
    // One message for the settings and one for the game, under one title.
    Escritorio::Marco m;
    ASSERT_TRUE(e.Espera([&] { return e.HayVentana(SIN_AJUSTES); }));
    ASSERT_TRUE(e.Espera([&] {
        if (e.HayVentana(SIN_AJUSTES)) e.Tecla("Return");
        return e.BuscaVentana(PERSONAL, m);
    }));
    e.EsperaQuieto();
    e.Pulsa(m.x + SALIR_X, m.y + SALIR_Y);
    ASSERT_TRUE(programa.LlegaALaMesa());
    SeJuega();
    EXPECT_TRUE(programa.Sale());
    EXPECT_TRUE(fs::is_empty(datos));
    fs::remove_all(datos);
}

TEST_F(EntornoVentana, AFolderRemovedUnderTheProgramIsMadeAnewAtItsEnd) {
    PonMoviles();
    ASSERT_TRUE(programa.Arranca());
    fs::remove_all(programa.Carpeta());
    AbreYDejaLosAjustes();
    SeJuega();
    EXPECT_TRUE(programa.Sale());
    EXPECT_EQ(programa.LeePartida(21).piezas.size(), 9U);
    EXPECT_TRUE(fs::exists(programa.Carpeta() + "TsR33.ini"));
}

}  // namespace
}  // namespace tessario::ventana
