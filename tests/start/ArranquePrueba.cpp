// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <vector>

#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "start/Arranque.h"

namespace tessario {

namespace {

namespace fs = std::filesystem;

class Arranque : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        sistema_ = P().carpeta + "sistema/Temp/Tsb/";
    }
    // The probe's name is taken by a folder: no file of that name can be made, as on a medium that
    // cannot be written, for whatever user.
    void MedioSoloLectura() { fs::create_directory(P().carpeta + "CSCD.WRK"); }
    static std::string Global(const std::string& campos) {
        return "\"" + campos + std::string(125 - campos.size(), ' ') + "\"\r\n";
    }
    // Starts the program and looks at its state while each message is open; a question gets a yes.
    void MiraEnCadaAviso(std::vector<std::function<void()>> miradas) {
        std::size_t i = 0;
        P().ventanas["Mensajes"] = [&](Ventana&) {
            ASSERT_LT(i, miradas.size()) << Gbl.TextoMensaje;
            miradas[i++]();
            Gbl.RespuestaMensaje = true;
        };
        EXPECT_TRUE(Main());
        EXPECT_EQ(i, miradas.size());
    }
    std::string sistema_;
};

}  // namespace

TEST_F(Arranque, WritableFolderKeepsItsSettingsAndHasNoProbeLeft) {
    PreparaCarpetas();
    EXPECT_FALSE(Gbl.EnMedioSoloLectura);
    EXPECT_EQ(Gbl.CarpetaPrograma, P().carpeta);
    EXPECT_FALSE(fs::exists(P().carpeta + "CSCD.WRK"));
}

TEST_F(Arranque, FirstStartOnAReadOnlyMediumCopiesTheSixFiles) {
    Crea("TsR33.ini", "global");
    Crea("TSR2133.INI", "21");
    Crea("tsr2233.ini", "22");
    Crea("TESSA33.HIS", "historia");
    Crea("Archivo/Modelos.tpu", "modelos");
    Crea("Archivo/mio.puz", "no");
    MedioSoloLectura();
    Gbl.CarpetaPrograma = P().carpeta;
    Gbl.CarpetaImagenes = P().carpeta + "Imagenes/";
    PreparaCarpetas();
    EXPECT_TRUE(Gbl.EnMedioSoloLectura);
    EXPECT_EQ(Gbl.CarpetaPrograma, sistema_);
    EXPECT_EQ(Gbl.CarpetaArchivo, sistema_ + "Archivo/");
    EXPECT_EQ(Gbl.CarpetaImagenes, P().carpeta + "Imagenes/");
    EXPECT_EQ(Contenido(sistema_ + "TSR33.INI"), "global");
    EXPECT_EQ(Contenido(sistema_ + "TSR2133.INI"), "21");
    EXPECT_EQ(Contenido(sistema_ + "TSR2233.INI"), "22");
    EXPECT_FALSE(fs::exists(sistema_ + "TSR2333.INI"));  // was not on the medium
    EXPECT_EQ(Contenido(sistema_ + "TESSA33.HIS"), "historia");
    EXPECT_EQ(Contenido(sistema_ + "Archivo/MODELOS.TPU"), "modelos");
    EXPECT_FALSE(fs::exists(sistema_ + "Archivo/mio.puz"));
}

TEST_F(Arranque, SecondStartOnAReadOnlyMediumCopiesNothing) {
    Crea("TSR33.INI", "del medio");
    Crea("TESSA33.HIS", "del medio");
    Crea(sistema_ + "TsR33.ini", "del jugador");
    MedioSoloLectura();
    PreparaCarpetas();
    EXPECT_EQ(Contenido(sistema_ + "TsR33.ini"), "del jugador");
    EXPECT_FALSE(fs::exists(sistema_ + "TSR33.INI"));
    EXPECT_FALSE(fs::exists(sistema_ + "TESSA33.HIS"));
}

TEST_F(Arranque, WorkingFolderThatCannotBeMadeIsNoCrash) {
    MedioSoloLectura();
    Crea("sistema", "un fichero donde iría la carpeta");
    PreparaCarpetas();
    EXPECT_TRUE(Gbl.EnMedioSoloLectura);
    EXPECT_EQ(Gbl.CarpetaPrograma, sistema_);
}

TEST_F(Arranque, ConstantsAreFilledOnce) {
    P().ancho = 1024;
    P().alto = 600;
    Inicializa();
    EXPECT_EQ(Gbl.AnchoPantalla, 1024);
    EXPECT_EQ(Gbl.AltoPantalla, 600);
    EXPECT_EQ(Gbl.NombresFormas[0], "Rectángulos");
    EXPECT_EQ(Gbl.NombresFormas[7], "Estrellas en Rectángulos");
    EXPECT_EQ(Gbl.TextosOpciones[1], "Guardar este puzzle");
    EXPECT_EQ(Gbl.TextosOpciones[4], "Guardar como modelo");
    EXPECT_EQ(Gbl.TextosOpciones[5], "");
    EXPECT_EQ(Gbl.NombresTangram[3], "Triángulo mediano");
    EXPECT_EQ(Gbl.NombresTangram[7], "Paralelogramo");
    const i16 gemelas[] = {2, 1, 0, 5, 4, 0, 0};
    for (i32 i = 1; i <= 7; ++i) EXPECT_EQ(Gbl.TGemela[i], gemelas[i - 1]) << i;
    EXPECT_EQ(Gbl.LetrasPiezas, "ABCDEFGHIJKLMNÑOPQRSTUVW");
    EXPECT_EQ(Sistema().timeGetTime() - Gbl.HoraUltimaSugerencia, 15000U);
    EXPECT_GT(Pic_BmpBoton.Width(), 0);
    EXPECT_GT(Pic_BmpVario.Width(), 0);
}

TEST_F(Arranque, FirstStartOfAllShowsTheTableAndTheWelcome) {
    Crea("TsR33.ini", Global("220 0500 "));
    EXPECT_TRUE(Main());
    ASSERT_GE(P().mostradas.size(), 3U);
    EXPECT_EQ(P().mostradas.front(), "Careta");
    EXPECT_TRUE(Mesa.Abierta);
    EXPECT_FALSE(P().terminado);
    // The missing per-game file is told before the table is shown, the welcome after.
    ASSERT_EQ(P().avisos.size(), 2U);
    EXPECT_EQ(P().avisos[0].titulo, "Error en la carga de datos iniciales");
    EXPECT_EQ(P().avisos[1].titulo, "TESSARIO  3.3");
    EXPECT_EQ(P().avisos[1].texto,
              "Si   desea   consultar   una   descripción   general   de   este programa  para  "
              "conocer  rápidamente  su  funcionamiento, pulse el botón de Ayuda.");
    EXPECT_EQ(P().avisos[1].modo, 3);
    EXPECT_EQ(P().avisos[1].ayuda, 1020);
    const std::vector<std::string> fin(P().mostradas.end() - 2, P().mostradas.end());
    EXPECT_EQ(fin, (std::vector<std::string>{"Mesa", "Mensajes"}));
    EXPECT_EQ(Gbl.JuegoActual, 22);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_EQ(Gbl.FinLinea, "\r\n");
    EXPECT_EQ(Mesa.Width(), 802);
    EXPECT_EQ(Mesa.Height(), 602);
    EXPECT_EQ(Mesa.MousePointer, 0);
    EXPECT_EQ(Pic_Botonera.Left, 800 - 141);
    EXPECT_EQ(Gbl.MargenX, (659 - Gbl.AnchoPuzzle) / 2);
    EXPECT_EQ(fs::current_path(), fs::canonical(P().carpeta));
}

TEST_F(Arranque, WithoutAnySettingsBothFilesAreToldInTurnBeforeTheTableIsShown) {
    PonImagen("a.bmp", 640, 480);
    const std::string global = "TsR33.ini", juego = "TsR2133.ini";
    const auto comun = [&] {
        EXPECT_EQ(Gbl.TituloMensaje, "Error en la carga de datos iniciales");
        EXPECT_FALSE(Careta.Abierta);
        EXPECT_FALSE(Mesa.Abierta);
        EXPECT_EQ(Mesa.Width(), 802);
        EXPECT_EQ(Gbl.NombresFormas[0], "Rectángulos");
        EXPECT_TRUE(Gbl.CronoEnMarcha);
    };
    MiraEnCadaAviso({[&] {
                         comun();
                         EXPECT_NE(Gbl.TextoMensaje.find(global), std::string::npos);
                         EXPECT_FALSE(fs::exists(P().carpeta + global));
                         EXPECT_EQ(Pic_Botonera.Width(), 0);  // the panel comes after it
                     },
                     [&] {
                         comun();
                         EXPECT_NE(Gbl.TextoMensaje.find(P().carpeta + juego), std::string::npos);
                         EXPECT_EQ(Contenido(global), Global("210 0500 "));
                         EXPECT_FALSE(fs::exists(P().carpeta + juego));
                         EXPECT_EQ(Pic_Botonera.Width(), 141);
                         EXPECT_EQ(Gbl.Piezas.Superior(), -1);
                     },
                     [&] {
                         EXPECT_EQ(Gbl.TituloMensaje, "TESSARIO  3.3");
                         EXPECT_TRUE(Mesa.Abierta);
                         EXPECT_EQ(Gbl.Piezas.Superior(), 25);
                         EXPECT_TRUE(fs::exists(P().carpeta + juego));
                     }});
    EXPECT_EQ(Gbl.JuegoActual, 21);
}

TEST_F(Arranque, DamagedFileOfTheGlobalFilesGameGivesThatGamesDefaultsInSilence) {
    Crea("TsR33.ini", Global("22-1050-1"));
    Crea("TsR2233.ini", "\"C:\"\r\n\"nada\"\r\n");
    EXPECT_TRUE(Main());
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "TESSARIO  3.3");
    EXPECT_EQ(Gbl.JuegoActual, 22);
    EXPECT_EQ(Gbl.PiezasPorLado, 5);
    EXPECT_EQ(Gbl.NumPiezas, 24);
    EXPECT_EQ(Gbl.TipoFondo, 2);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
    EXPECT_TRUE(Gbl.Sonido);
    EXPECT_TRUE(Gbl.VentanaInformacion);
    EXPECT_EQ(Contenido("TsR33.ini"), Global("22-1050-1"));
    EXPECT_FALSE(fs::exists(P().carpeta + "TsR2133.ini"));
}

TEST_F(Arranque, SplashHoldsASecondAndAHalf) {
    Crea("TsR33.ini", Global("220 1000 "));
    const double antes = P().reloj;
    Main();
    EXPECT_NEAR(P().reloj - antes, 1500, 2);  // at the file's speed nothing else waits
    EXPECT_EQ(Gbl.VelocidadJuego, 100);
}

TEST_F(Arranque, WideLowScreenPassesSilently) {
    P().ancho = 1024;
    P().alto = 480;
    Crea("TsR33.ini", Global("220 0500 "));
    EXPECT_TRUE(Main());
    for (const auto& a : P().avisos) EXPECT_NE(a.titulo, "Resolución de pantalla");
}

TEST_F(Arranque, NarrowScreenIsAskedAndARefusalEndsTheProgram) {
    P().ancho = 640;
    P().alto = 480;
    P().respuestas = {false};
    EXPECT_FALSE(Main());
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Resolución de pantalla");
    EXPECT_EQ(P().avisos[0].modo, 6);
    EXPECT_EQ(P().avisos[0].botones, 2);
    EXPECT_EQ(P().avisos[0].ayuda, 1040);
    EXPECT_NE(P().avisos[0].texto.find("actualmente es de (640x480).  Pulse  Aceptar  para"),
              std::string::npos);
    EXPECT_FALSE(Mesa.Abierta);
    // Nothing of what comes after has been done.
    EXPECT_TRUE(Gbl.NombresFormas[0].empty());
    EXPECT_FALSE(Gbl.CronoEnMarcha);
    EXPECT_FALSE(fs::exists(P().carpeta + "TsR33.ini"));
}

TEST_F(Arranque, EightHundredColumnsAreEnoughOneLessIsNot) {
    Crea("TsR33.ini", Global("220 0500 "));
    P().ancho = 800;
    P().alto = 480;
    Main();
    for (const auto& a : P().avisos) EXPECT_NE(a.titulo, "Resolución de pantalla");
    Sistema().Cierra(Mesa);
    P().ancho = 799;
    P().avisos.clear();
    P().respuestas = {false};
    EXPECT_FALSE(Main());
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Resolución de pantalla");
}

TEST_F(Arranque, ScreenIsAskedAboutOnceTheFoldersAreSettledAndBeforeItIsMeasured) {
    P().ancho = 640;
    P().alto = 480;
    P().pruebaModo = -2;
    Crea("TSR33.INI", Global("220 0500 "));
    MedioSoloLectura();
    MiraEnCadaAviso({[&] {
                         EXPECT_EQ(Gbl.TituloMensaje, "Resolución de pantalla");
                         EXPECT_EQ(Gbl.FinLinea, "\r\n");
                         EXPECT_EQ(Gbl.CarpetaPrograma, sistema_);
                         EXPECT_TRUE(fs::exists(sistema_ + "TSR33.INI"));
                         EXPECT_EQ(Gbl.AnchoPantalla, 0);
                         EXPECT_EQ(Mensajes.Left, (800 - 405) / 2);
                         EXPECT_GT(Pic_BmpBoton.Width(), 0);  // its buttons are painted
                         EXPECT_FALSE(Gbl.CronoEnMarcha);
                     },
                     [] { EXPECT_EQ(Gbl.TituloMensaje, "Cambio de resolución de pantalla"); },
                     [] {
                         EXPECT_EQ(Gbl.TituloMensaje, "Error en la carga de datos iniciales");
                         EXPECT_EQ(Gbl.AnchoPantalla, 640);
                     },
                     [] { EXPECT_EQ(Gbl.TituloMensaje, "TESSARIO  3.3"); }});
}

TEST_F(Arranque, SmallNumbersOfTheScreenStandInThreeColumns) {
    P().ancho = 320;
    P().alto = 64;
    P().respuestas = {false};
    Main();
    EXPECT_NE(P().avisos[0].texto.find("(320x 64)"), std::string::npos);
}

TEST_F(Arranque, OutcomesOfTheChangeOfMode) {
    const struct {
        i32 prueba, cambio;
        const char* texto;
        i16 ancho;
    } casos[] = {
        {-2, 0, "No se puede cambiar la resolución de la pantalla.", 640},
        {0, 0, "Se ha cambiado con éxito la resolución de la pantalla a 800x600.", 800},
        {0, 1, "Necesita reiniciar el equipo para que los cambios tengan efecto.", 640},
        {0, -1,
         "No se ha podido realizar el cambio de resolución de la pantalla. Inténtelo de forma "
         "manual.",
         640}};
    Crea("TsR33.ini", Global("220 0500 "));
    for (const auto& c : casos) {
        P().ancho = 640;
        P().alto = 480;
        P().pruebaModo = c.prueba;
        P().cambioModo = c.cambio;
        P().respuestas = {true};
        P().avisos.clear();
        EXPECT_TRUE(Main());  // in each case start-up goes on
        ASSERT_GE(P().avisos.size(), 2U);
        EXPECT_EQ(P().avisos[1].titulo, "Cambio de resolución de pantalla");
        EXPECT_EQ(P().avisos[1].texto, c.texto);
        EXPECT_EQ(P().avisos[1].modo, 2);
        EXPECT_EQ(P().avisos[1].botones, 1);
        EXPECT_EQ(Gbl.AnchoPantalla, c.ancho);
        Sistema().Cierra(Mesa);
    }
}

TEST_F(Arranque, EndSavesTheGlobalSettingsAndTheGame) {
    Crea("TsR33.ini", Global("220 0500 "));
    Main();
    Gbl.SegundosJuego = 321;
    Gbl.VelocidadJuego = 60;
    const Arreglo<Pieza> piezas = Gbl.Piezas;
    TerminaPrograma();
    EXPECT_TRUE(P().terminado);
    EXPECT_FALSE(Mesa.Abierta);
    // The next start finds the game where it was left.
    P().avisos.clear();
    Gbl = Bloque{};
    EXPECT_TRUE(Main());
    EXPECT_EQ(P().avisos.size(), 1U);  // the welcome
    EXPECT_EQ(Gbl.SegundosJuego, 321);
    EXPECT_EQ(Gbl.VelocidadJuego, 60);
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i) EXPECT_EQ(Gbl.Piezas[i], piezas[i]);
}

TEST_F(Arranque, ReadOnlyMediumPlaysFromItsWorkingFolder) {
    Crea("TSR33.INI", Global("220 0500 "));
    MedioSoloLectura();
    Main();
    Gbl.SegundosJuego = 55;
    Gbl.VelocidadJuego = 61;
    Gbl.VentanaInformacion = true;
    TerminaPrograma();
    EXPECT_EQ(Contenido("TSR33.INI"), Global("220 0500 "));
    EXPECT_TRUE(fs::exists(sistema_ + "TsR2233.ini"));
    EXPECT_FALSE(fs::exists(P().carpeta + "TsR2233.ini"));
    Gbl = Bloque{};
    P().avisos.clear();
    Main();
    EXPECT_EQ(Gbl.SegundosJuego, 55);
    EXPECT_EQ(Gbl.VelocidadJuego, 61);
    EXPECT_TRUE(Gbl.VentanaInformacion);
    EXPECT_EQ(Gbl.CarpetaImagenes, P().carpeta + "Imagenes/");
    EXPECT_EQ(P().avisos.size(), 1U);
}

}  // namespace tessario
