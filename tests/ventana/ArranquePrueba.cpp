// SPDX-License-Identifier: GPL-3.0-or-later
// The real program started where things are missing or damaged: it tells, goes on, and leaves in
// order.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

namespace fs = std::filesystem;

constexpr const char *SIN_AJUSTES = "Error en la carga de datos iniciales",
                     *SIN_IMAGEN = "Imagen del puzzle", *RESOLUCION = "Resolución de pantalla",
                     *CAMBIO = "Cambio de resolución de pantalla";

std::string Entero(unsigned v, int bytes) {
    std::string s;
    for (int i = 0; i < bytes; ++i) s += static_cast<char>(v >> (8 * i));
    return s;
}

// The header of a 24-bit bitmap and then `datos`, however many it announces.
std::string Bmp(unsigned ancho, unsigned alto, const std::string& datos) {
    return "BM" + Entero(static_cast<unsigned>(54 + datos.size()), 4) + Entero(0, 4) +
           Entero(54, 4) + Entero(40, 4) + Entero(ancho, 4) + Entero(alto, 4) + Entero(1, 2) +
           Entero(24, 2) + Entero(0, 24) + datos;
}

void VaciaImagenes(const Programa& programa) {
    for (const auto& f : fs::directory_iterator(programa.Carpeta() + "Imagenes"))
        fs::remove(f.path());
}

void PonImagenesMalas(Programa& programa) {
    programa.EscribeBytes("Imagenes/enorme.bmp", Bmp(20000, 20000, "abc"));
    programa.EscribeBytes("Imagenes/punto.bmp", Bmp(1, 1, std::string(4, '\x40')));
    programa.EscribeBytes("Imagenes/texto.jpg", "esto no es una imagen\n");
    programa.EscribeBytes("Imagenes/vacia.jpg", "");
}

// The settings window and its exit button in the jigsaw; the switch of the Tangram.
constexpr const char* PERSONAL = "Personalizar";
constexpr int SALIR_X = 612, SALIR_Y = 511, TANGRAM_X = 500, TANGRAM_Y = 44;

// The Tangram, its pieces so many pixels apart along the upper edge.
PartidaGuardada TangramEnFila(int paso) {
    PartidaGuardada p;
    p.juego = 23;
    p.piezas.resize(7);
    for (int i = 0; i < 7; ++i) p.piezas[static_cast<std::size_t>(i)].x = paso * i;
    return p;
}

TEST(ArranqueVentana, WithoutAUsablePictureTheSettingsStayOpenAndAnotherGameCanBeChosen) {
    Escritorio e(800, 600);
    Programa programa(e);
    programa.QuitaAjustes();
    VaciaImagenes(programa);
    for (const bool malas : {false, true}) {
        if (malas) PonImagenesMalas(programa);
        fs::remove(programa.Carpeta() + "TsR2333.ini");
        programa.EscribeGlobal(21, 100);
        programa.Lanzalo();
        ASSERT_TRUE(e.Responde(SIN_AJUSTES, false)) << malas;
        Escritorio::Marco m;
        ASSERT_TRUE(e.Espera([&] { return e.BuscaVentana(PERSONAL, m); })) << malas;
        e.EsperaQuieto();
        e.Pulsa(m.x + SALIR_X, m.y + SALIR_Y);
        e.EsperaQuieto();
        EXPECT_TRUE(e.HayVentana(PERSONAL)) << malas;
        e.Pulsa(m.x + TANGRAM_X, m.y + TANGRAM_Y);
        ASSERT_TRUE(e.Responde("Lista 'JUEGO ACTUAL'", true)) << malas;
        ASSERT_TRUE(e.Responde(SIN_AJUSTES, false)) << malas;
        ASSERT_TRUE(programa.LlegaALaMesa()) << malas;
        ASSERT_TRUE(programa.Sale()) << malas;
        EXPECT_EQ(programa.LeePartida(23).piezas.size(), 7U);
        EXPECT_FALSE(fs::exists(programa.Carpeta() + "Archivo/TESSA33.CSE"));
    }
}

// A new player: the table is laid, nothing is asked, and the pieces are there to be taken.
TEST(ArranqueVentana, AFreshHomeStartsStraightToALaidTable) {
    for (const auto& [ancho, alto] : {std::pair{800, 600}, {1280, 1024}}) {
        Escritorio e(ancho, alto);
        Programa programa(e);
        programa.Lanzalo();
        bool otra = false;
        ASSERT_TRUE(e.Espera(
            [&] {
                otra = otra || e.HayVentana(SIN_AJUSTES) || e.HayVentana(PERSONAL) ||
                       e.HayVentana(SIN_IMAGEN);
                return e.HayVentana("TESSARIO  3.3");
            },
            30000));
        EXPECT_FALSE(otra) << "a message before the welcome";
        ASSERT_TRUE(programa.LlegaALaMesa());
        const Foto mesa = e.Mira();
        mesa.Guarda("estreno-" + std::to_string(ancho));
        // The frame of the puzzle is empty, and a piece can be taken from beside it and laid in it.
        const PartidaLeida p = programa.LeePartida(21);
        ASSERT_EQ(p.piezas.size(), 25U);
        EXPECT_EQ(p.imagen, "Puerto.jpg");
        constexpr unsigned FONDO = 0x003333;
        constexpr int ANCHO_PUZZLE = 350, ALTO_PUZZLE = 260, MEDIA_X = 35, MEDIA_Y = 26;
        EXPECT_EQ(mesa.Cuenta(0, 0, ANCHO_PUZZLE, ALTO_PUZZLE, FONDO), ANCHO_PUZZLE * ALTO_PUZZLE);
        const PiezaGuardada& q = p.piezas[0];
        EXPECT_LT(mesa.Cuenta(q.x, q.y, 2 * MEDIA_X, 2 * MEDIA_Y, FONDO), MEDIA_X * MEDIA_Y);
        e.Arrastra(q.x + MEDIA_X, q.y + MEDIA_Y, q.xBien + MEDIA_X + 3, q.yBien + MEDIA_Y + 2);
        ASSERT_TRUE(programa.Sale());
        const PartidaLeida despues = programa.LeePartida(21);
        EXPECT_EQ(despues.piezas[0].x, q.xBien);
        EXPECT_EQ(despues.piezas[0].y, q.yBien);
        EXPECT_EQ(despues.movimientos, 1);
        EXPECT_EQ(programa.Errores(), "");
    }
}

// A game whose own picture is no good begins anew, with a picture chosen by the player.
TEST(ArranqueVentana, ARecordWithABadPictureDoesNotStopTheProgram) {
    Escritorio e(1024, 768);
    Programa programa(e);
    VaciaImagenes(programa);
    programa.EscribeImagenDeCuadros("aa.bmp", 480, 360, 3);
    PonImagenesMalas(programa);
    programa.EscribeGlobal(21, 100);
    for (const char* imagen : {"texto.jpg", "enorme.bmp", "ninguna.jpg"}) {
        PartidaGuardada p;
        p.imagen = imagen;
        p.anchoImagen = 480;
        p.altoImagen = 360;
        p.piezas.resize(9);
        programa.EscribePartida(p);
        programa.Lanzalo();
        // Told of only where the file is gone or is no picture.
        if (std::string(imagen) != "enorme.bmp") {
            ASSERT_TRUE(e.Responde(SIN_IMAGEN, false)) << imagen;
        }
        Escritorio::Marco m;
        ASSERT_TRUE(e.Espera([&] { return e.BuscaVentana(PERSONAL, m); })) << imagen;
        e.EsperaQuieto();
        e.Pulsa(m.x + SALIR_X, m.y + SALIR_Y);
        ASSERT_TRUE(programa.LlegaALaMesa()) << imagen;
        ASSERT_TRUE(programa.Sale()) << imagen;
        EXPECT_EQ(programa.LeePartida(21).imagen, "aa.bmp") << imagen;
    }
}

TEST(ArranqueVentana, ADamagedGlobalFileIsReplaced) {
    Escritorio e(800, 600);
    Programa programa(e);
    std::string basura;
    for (int i = 0; i < 5000; ++i) basura += static_cast<char>(i * 7 % 256);
    programa.EscribeBytes("TsR33.ini", basura);
    PartidaGuardada p;
    p.imagen = "cuadros.bmp";
    p.anchoImagen = 480;
    p.altoImagen = 360;
    p.piezas.resize(9);
    programa.EscribeImagenDeCuadros("cuadros.bmp", 480, 360, 3);
    programa.EscribePartida(p);
    ASSERT_TRUE(programa.Arranca());
    ASSERT_TRUE(programa.Sale());
    std::ifstream f(programa.Carpeta() + "TsR33.ini", std::ios::binary);
    const std::string linea{std::istreambuf_iterator<char>(f), {}};
    EXPECT_EQ(linea.substr(0, 3), "\"21");
    EXPECT_EQ(linea.size(), 125U + 4U);
}

TEST(ArranqueVentana, ASmallScreenIsAskedAbout) {
    Escritorio e(640, 480);
    Programa programa(e);
    programa.EscribeGlobal(23, 100);
    const PartidaGuardada p = TangramEnFila(40);
    programa.EscribePartida(p);
    programa.Lanzalo();
    ASSERT_TRUE(e.Responde(RESOLUCION, false));
    EXPECT_EQ(programa.EsperaFin(), 0) << "cancelled: the end, in order";

    programa.Lanzalo();
    ASSERT_TRUE(e.Responde(RESOLUCION, true));
    ASSERT_TRUE(e.Responde(CAMBIO, false));
    ASSERT_TRUE(programa.LlegaALaMesa());
    e.Mira().Guarda("arranque-640");
    EXPECT_TRUE(programa.Sale());
}

TEST(ArranqueVentana, WithoutASoundDeviceThePlayGoesOn) {
    Escritorio e(800, 600);
    Programa programa(e);
    const PartidaGuardada p = TangramEnFila(80);
    for (const char* driver : {"", "ninguno"}) {
        programa.EscribeGlobal(23, 100, true);
        programa.EscribePartida(p);
        programa.Lanzalo({{"SDL_AUDIODRIVER", driver}});
        ASSERT_TRUE(programa.LlegaALaMesa()) << driver;
        const Foto antes = e.Mira();
        programa.PulsaBoton(1);  // with its sound, and the deal
        EXPECT_TRUE(e.Espera([&] { return e.Mira().Diferencia(antes, 0, 0, 659, 600) > 500; }));
        EXPECT_TRUE(programa.Sale()) << driver;
    }
}

TEST(ArranqueVentana, AFolderThatCannotBeWrittenIsWorkedOnInACopy) {
    Escritorio e(800, 600);
    Programa programa(e);
    programa.EscribeGlobal(23, 100);
    const PartidaGuardada p = TangramEnFila(80);
    programa.EscribePartida(p);
    const std::string original = Bytes(programa.Carpeta() + "TsR2333.ini");
    const fs::path datos = fs::path(programa.Carpeta()).parent_path().string() + "-datos";
    programa.CierraCarpeta(datos.string());
    programa.Lanzalo({{"XDG_DATA_HOME", datos.string()}, {"HOME", datos.string()}});
    ASSERT_TRUE(programa.LlegaALaMesa());
    EXPECT_TRUE(programa.Sale());
    EXPECT_EQ(Bytes(programa.Carpeta() + "TsR2333.ini"), original) << "the original is untouched";
    int globales = 0, partidas = 0, modelos = 0;
    for (const auto& f : fs::recursive_directory_iterator(datos)) {
        globales += f.path().filename() == "TsR33.ini" || f.path().filename() == "TSR33.INI";
        partidas += f.path().filename() == "TsR2333.ini" || f.path().filename() == "TSR2333.INI";
        modelos += f.path().filename() == "MODELOS.TPU" || f.path().filename() == "Modelos.tpu";
    }
    EXPECT_EQ(globales, 1);
    EXPECT_EQ(partidas, 1);
    EXPECT_EQ(modelos, 1);
    fs::remove_all(datos);
}

TEST(ArranqueVentana, WithoutADisplayItSaysSoAndFails) {
    Escritorio e(800, 600);
    Programa programa(e);
    for (const char* pantalla : {"", ":9876"}) {
        programa.Lanzalo({{"DISPLAY", pantalla}});
        EXPECT_EQ(programa.EsperaFin(), 1) << pantalla;
        EXPECT_NE(programa.Errores().find("tessario: no hay ninguna pantalla"), std::string::npos)
            << programa.Errores();
    }
}

}  // namespace
}  // namespace tessario::ventana
