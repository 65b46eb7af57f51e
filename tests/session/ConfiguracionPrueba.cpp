// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>

#include "apoyo/PlataformaPrueba.h"
#include "core/Errores.h"
#include "core/Superficies.h"
#include "records/Texto.h"
#include "rules/Colores.h"
#include "session/Configuracion.h"
#include "session/Montaje.h"

namespace tessario {

namespace {

namespace fs = std::filesystem;

class Ajustes : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        Pantalla800();
    }
    static std::string Linea(const std::string& campos) {
        return "\"" + campos + std::string(125 - campos.size(), ' ') + "\"\r\n";
    }
    static void Color2(Color fondo, Color piezas) {
        Gbl.ColorFondo = fondo;
        Gbl.ColorPiezas = piezas;
        CalculaColores();
    }
};

constexpr const char* SIN_GLOBAL =
    "No  se  encuentra  el  fichero de inicialización  TsR33.ini .  Se ha  procedido  a  crearlo  "
    "automáticamente  con  los  valores establecidos por defecto.";

}  // namespace

// ---------------------------------------------------------------- colours

TEST_F(Ajustes, ContrastTurnsBlackAtALuminanceOf129) {
    Color2(0x808080, 0x008000);
    EXPECT_EQ(Gbl.ColorContraste, 0xFFFFFFU);
    Color2(0x818181, 0x008000);
    EXPECT_EQ(Gbl.ColorContraste, 0U);
}

TEST_F(Ajustes, GreenWeighsMostInTheContrast) {
    Color2(0x00FF00, 0x008000);  // 510 / 3 = 170
    EXPECT_EQ(Gbl.ColorContraste, 0U);
    Color2(0x0000FF, 0x008000);  // red: 204 / 3 = 68
    EXPECT_EQ(Gbl.ColorContraste, 0xFFFFFFU);
    Color2(0xFF0000, 0x008000);  // blue: 17
    EXPECT_EQ(Gbl.ColorContraste, 0xFFFFFFU);
    Color2(0xFFB300, 0x008000);  // 179 green, 255 blue: (358 + 51) / 3 = 136.3
    EXPECT_EQ(Gbl.ColorContraste, 0U);
}

TEST_F(Ajustes, BlackAgainstWhiteGivesGrey) {
    Color2(0xFFFFFF, 0);
    EXPECT_EQ(Gbl.ColorContraste, 0xC0C0C0U);
    Color2(0, 0xFFFFFF);
    EXPECT_EQ(Gbl.ColorContraste, 0xC0C0C0U);
    Color2(0, 0);
    EXPECT_EQ(Gbl.ColorContraste, 0xFFFFFFU);
}

TEST_F(Ajustes, ShadesAreClampedChannelByChannel) {
    Color2(0x00FF10, 0x800030);
    EXPECT_EQ(Gbl.ColorFondoClaro, 0x28FF38U);
    EXPECT_EQ(Gbl.ColorFondoOscuro, 0x00D700U);
    EXPECT_EQ(Gbl.ColorPiezasClaro, 0xA82858U);
    EXPECT_EQ(Gbl.ColorPiezasOscuro, 0x580008U);
}

// ---------------------------------------------------------------- global file

TEST_F(Ajustes, MissingGlobalFileIsToldAndMadeAnew) {
    LeeConfiguracion();
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Error en la carga de datos iniciales");
    EXPECT_EQ(P().avisos[0].texto, SIN_GLOBAL);
    EXPECT_EQ(P().avisos[0].modo, 3);
    EXPECT_EQ(P().avisos[0].botones, 1);
    EXPECT_EQ(P().avisos[0].ayuda, 0);
    EXPECT_EQ(Gbl.JuegoActual, 21);
    EXPECT_EQ(Gbl.ErrorApertura, 53);
    EXPECT_EQ(Contenido("TsR33.ini"), Linea("210 0500 "));
}

TEST_F(Ajustes, GlobalFileOfAnyCaseIsRead) {
    Crea("TSR33.INI", Linea("23-1075-1"));
    LeeConfiguracion();
    EXPECT_EQ(Gbl.JuegoActual, 23);
    EXPECT_TRUE(Gbl.Sonido);
    EXPECT_EQ(Gbl.VelocidadJuego, 75);
    EXPECT_TRUE(Gbl.VentanaInformacion);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Ajustes, SwitchesThatAreOffInTheFileGoOff) {
    Gbl.Sonido = Gbl.VentanaInformacion = true;
    Crea("TsR33.ini", Linea("220 0070 "));
    LeeConfiguracion();
    EXPECT_FALSE(Gbl.Sonido);
    EXPECT_FALSE(Gbl.VentanaInformacion);
    EXPECT_EQ(Gbl.VelocidadJuego, 7);
}

TEST_F(Ajustes, UnknownGameBecomesTheJigsawAndTheFileStays) {
    const std::string linea = Linea("200 0500 ");
    Crea("TsR33.ini", linea);
    LeeConfiguracion();
    EXPECT_EQ(Gbl.JuegoActual, 21);
    EXPECT_EQ(Contenido("TsR33.ini"), linea);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Ajustes, SpeedOutsideItsRangeStaysInForce) {
    Crea("TsR33.ini", Linea("210 9990 "));
    LeeConfiguracion();
    EXPECT_EQ(Gbl.VelocidadJuego, 999);
    Crea("TsR33.ini", Linea("210 -500 "));
    LeeConfiguracion();
    EXPECT_EQ(Gbl.VelocidadJuego, -50);
}

TEST_F(Ajustes, MalformedFieldKeepsItsValueAndTheOthersAreTaken) {
    Crea("TsR33.ini", Linea("22??abc7 "));
    LeeConfiguracion();
    EXPECT_EQ(Gbl.JuegoActual, 22);
    EXPECT_FALSE(Gbl.Sonido);
    EXPECT_EQ(Gbl.VelocidadJuego, 50);
    EXPECT_EQ(Gbl.VentanaInformacion.Valor(), -1);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Ajustes, GarbageAsGlobalFileComesUpWithTheJigsaw) {
    for (const std::string& bytes : {std::string(), std::string("\r\n"), std::string(5000, '\xFF'),
                                     std::string(300, '\0'), std::string("\"")}) {
        Crea("TsR33.ini", bytes);
        Gbl.JuegoActual = 21;
        LeeConfiguracion();
        EXPECT_EQ(Gbl.JuegoActual, 21);
        EXPECT_EQ(Gbl.VelocidadJuego, 50);
        EXPECT_EQ(Contenido("TsR33.ini"), bytes);
    }
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Ajustes, GlobalFileThatCannotBeOpenedIsReportedByNumber) {
    fs::create_directory(P().carpeta + "TsR33.ini");
    LeeConfiguracion();
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].texto, "IDC ERROR 75");
    EXPECT_EQ(Gbl.JuegoActual, 21);
}

TEST_F(Ajustes, GlobalFileIsOneQuotedLineOf125) {
    Gbl.JuegoActual = 23;
    Gbl.Sonido = true;
    Gbl.VelocidadJuego = 7;
    EscribeConfiguracion();
    EXPECT_EQ(Contenido("TsR33.ini"), Linea("23-10070 "));
    Gbl.VelocidadJuego = -50;  // cut on the right
    EscribeConfiguracion();
    EXPECT_EQ(Contenido("TsR33.ini"), Linea("23-1-050 "));
}

TEST_F(Ajustes, FolderThatCannotBeWrittenIsSilentAtTheWrite) {
    Crea("f", "x");
    Gbl.CarpetaPrograma = P().carpeta + "f/";
    EscribeConfiguracion();
    GuardaAjustesJuego();
    EXPECT_TRUE(P().avisos.empty());
    LeeConfiguracion();
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].texto, "IDC ERROR 76");
}

// ---------------------------------------------------------------- per-game files

TEST_F(Ajustes, NameOfThePerGameFile) {
    Gbl.CarpetaPrograma = "/j/";
    for (const i16 juego : {JuegoMoviles, JuegoDeslizantes, JuegoTangram}) {
        Gbl.JuegoActual = juego;
        EXPECT_EQ(FicheroDelJuego(), "/j/TsR" + std::to_string(juego) + "33.ini");
    }
}

TEST_F(Ajustes, MissingFileOfTheSlidingGameIsToldDealtAndMade) {
    Gbl.JuegoActual = JuegoDeslizantes;
    Gbl.PermitirGiro = false;
    Gbl.FactorAtraccion = 3;
    Gbl.MostrarMuestra = true;
    Gbl.NombreJugador = "Otro";
    Gbl.RutaImagen = "/fotos/lago.jpg";
    Gbl.FicheroImagen = "lago.jpg";
    Gbl.ImagenValida = false;
    Gbl.PuzzleTerminado = true;
    LeeAjustesJuego(FicheroDelJuego());
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].texto,
              "No se encuentra el archivo de inicialización " + P().carpeta +
                  "TsR2233.ini. Se ha  procedido  a  crearlo automáticamente  con  los  valores "
                  "establecidos por defecto.");
    EXPECT_EQ(P().avisos[0].modo, 3);
    EXPECT_EQ(Gbl.NumPiezas, 24);
    EXPECT_EQ(Gbl.PiezasPorLado, 5);
    EXPECT_EQ(Gbl.NombreJugador, "MiNombre");
    EXPECT_FALSE(Gbl.MostrarMuestra);
    EXPECT_TRUE(Gbl.PermitirGiro);
    EXPECT_EQ(Gbl.FactorAtraccion, 20);
    EXPECT_EQ(Gbl.TipoFondo, 2);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_EQ(Gbl.RutaImagen, " ");
    EXPECT_EQ(Gbl.FicheroImagen, "");
    EXPECT_TRUE(Gbl.ImagenValida);
    EXPECT_EQ(ErrorPendiente(), 0);
    // The file is there, and reading it brings the same board without a word.
    const Arreglo<Pieza> piezas = Gbl.Piezas;
    P().avisos.clear();
    LeeAjustesJuego(FicheroDelJuego());
    EXPECT_TRUE(P().avisos.empty());
    for (i32 i = 1; i <= 24; ++i) EXPECT_EQ(Gbl.Piezas[i], piezas[i]) << i;
}

TEST_F(Ajustes, MissingFileOfTheTangramDealsADesign) {
    Gbl.JuegoActual = JuegoTangram;
    LeeAjustesJuego(FicheroDelJuego());
    EXPECT_EQ(Gbl.NumPiezas, 7);
    EXPECT_EQ(Gbl.ModoJuego, 1);
    EXPECT_TRUE(fs::exists(P().carpeta + "TsR2333.ini"));
    P().avisos.clear();
    LeeAjustesJuego(FicheroDelJuego());
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_EQ(ErrorPendiente(), 0);
}

TEST_F(Ajustes, MissingFileOfTheJigsawPressesTheSettingsButton) {
    Gbl.RutaImagen = "/fotos/lago.jpg";
    Gbl.FicheroImagen = "lago.jpg";
    int pulsado = 0;
    Pic_Boton(2).MouseDown = [&](i16, i16, float, float) {
        ++pulsado;
        EXPECT_EQ(Gbl.RutaImagen, " ");
        EXPECT_EQ(Gbl.FicheroImagen, "");
        EXPECT_EQ(Gbl.CarpetaImagen, Gbl.CarpetaImagenes);
        EXPECT_EQ(Gbl.UnidadImagen, P().carpeta.substr(0, 2));
        EXPECT_EQ(Pic_FonTamModi.Width(), 320);
        EXPECT_EQ(Pic_FonTamModi.Height(), 240);
        EXPECT_FALSE(Gbl.ImagenValida);
        EXPECT_FALSE(Gbl.PuzzleArchivable);
        EXPECT_FALSE(fs::exists(P().carpeta + "TsR2133.ini"));
        Gbl.PuzzleArchivable = true;  // the player has set a puzzle up
    };
    LeeAjustesJuego(FicheroDelJuego());
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(pulsado, 1);
    EXPECT_EQ(Gbl.NumPiezas, 25);
    EXPECT_TRUE(Gbl.MostrarMuestra);
    EXPECT_TRUE(Gbl.PuzzleArchivable);
    EXPECT_TRUE(fs::exists(P().carpeta + "TsR2133.ini"));
    EXPECT_EQ(ErrorPendiente(), 0);
}

TEST_F(Ajustes, FileThatCannotBeOpenedIsReportedByNumberAndDefaultsFollow) {
    Gbl.JuegoActual = JuegoDeslizantes;
    fs::create_directory(P().carpeta + "TsR2233.ini");
    LeeAjustesJuego(FicheroDelJuego());
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].texto, "CID ERROR 75");
    EXPECT_EQ(Gbl.NumPiezas, 24);
}

TEST_F(Ajustes, DamagedFileOfAGameIsReplacedByThatGamesDefaultsInSilence) {
    Gbl.JuegoActual = JuegoDeslizantes;
    LeeAjustesJuego(FicheroDelJuego());
    const std::string bueno = Contenido("TsR2233.ini");
    P().avisos.clear();
    // One bit turns game 22 into 23 in the record.
    std::string malo = bueno;
    const std::size_t columna = malo.find("\r\n\"", malo.find("\" \"\r\n")) + 3 + 87;
    ASSERT_EQ(malo.substr(columna, 2), "22");
    malo[columna + 1] = '3';
    for (const std::string& bytes : {malo, bueno.substr(0, bueno.size() / 2), std::string()}) {
        Gbl.JuegoActual = JuegoDeslizantes;
        Gbl.SegundosJuego = 99;
        Crea("TsR2233.ini", bytes);
        LeeAjustesJuego(FicheroDelJuego());
        EXPECT_EQ(Gbl.JuegoActual, 22);
        EXPECT_EQ(Gbl.NumPiezas, 24);
        EXPECT_EQ(Gbl.SegundosJuego, 0);
        EXPECT_TRUE(P().avisos.empty());
        EXPECT_FALSE(fs::exists(P().carpeta + "TsR2333.ini"));
        EXPECT_NE(Contenido("TsR2233.ini"), bytes);
    }
}

TEST_F(Ajustes, SavedPuzzleBringsItsOwnGame) {
    Gbl.JuegoActual = JuegoTangram;
    LeeAjustesJuego(FicheroDelJuego());
    ASSERT_EQ(GuardaPuzzle(P().carpeta + "t.puz"), 0);
    Gbl.JuegoActual = JuegoDeslizantes;
    LeeAjustesJuego(P().carpeta + "t.puz");
    EXPECT_EQ(Gbl.JuegoActual, 23);
    EXPECT_EQ(Gbl.NumPiezas, 7);
}

TEST_F(Ajustes, ErrorOfSomethingBeforeDoesNotSendAGoodFileToTheDefaults) {
    Gbl.JuegoActual = JuegoTangram;
    LeeAjustesJuego(FicheroDelJuego());
    Gbl.SegundosJuego = 77;
    GuardaAjustesJuego();
    Gbl.SegundosJuego = 0;
    PonErrorPendiente(9);
    Gbl.ErrorApertura = 53;
    LeeAjustesJuego(FicheroDelJuego());
    EXPECT_EQ(Gbl.SegundosJuego, 77);
    EXPECT_EQ(Gbl.ErrorApertura, 0);
}

}  // namespace tessario
