// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "apoyo/Juegos.h"
#include "apoyo/PlataformaPrueba.h"
#include "core/Errores.h"
#include "core/Superficies.h"
#include "panel/Colocadas.h"
#include "records/Texto.h"
#include "rules/Colores.h"
#include "rules/Despacho.h"
#include "rules/Medidas.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"
#include "session/Montaje.h"

namespace tessario {

namespace {

class Registros : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        Pantalla800();
        CalculaColores();
    }

    // A jigsaw of 3 x 3 rectangles without an image file, the pieces in order at home.
    void Jigsaw(i32 ancho = 320, i32 alto = 240, i16 zoom = 100) {
        PonMoviles(0, 3, ancho, alto, zoom);
        CalculaTamanos();
        Reparte([](Pieza& p, i32 i) {
            p.X = p.XBien = Corto((i - 1) % 3 * Gbl.AnchoCelda);
            p.Y = p.YBien = Corto((i - 1) / 3 * Gbl.AltoCelda);
        });
    }

    // The sliding board, solved.
    void Tablero(i16 lado = 3) {
        PonDeslizantes(lado);
        CalculaTamanos();
        Reparte([lado](Pieza& p, i32 i) {
            p.X = p.XBien = Corto(Gbl.MargenX + (i - 1) % lado * Gbl.AnchoCelda);
            p.Y = p.YBien = Corto(Gbl.MargenY + (i - 1) / lado * Gbl.AltoCelda);
        });
        Gbl.HuecoX = Corto(Gbl.MargenX + (lado - 1) * Gbl.AnchoCelda);
        Gbl.HuecoY = Corto(Gbl.MargenY + (lado - 1) * Gbl.AltoCelda);
    }

    void Tangram(i16 modo = MODO_CREAR) {
        PonTangram(modo);
        CalculaTamanos();
        Reparte([](Pieza& p, i32 i) {
            p = {static_cast<i16>(60 * i),
                 static_cast<i16>(40 * i),
                 static_cast<i16>(i % 8),
                 0,
                 static_cast<i16>(20 + 10 * i),
                 static_cast<i16>(20 + 5 * i),
                 0,
                 0};
        });
    }

    template <class F>
    void Reparte(F lugar) {
        Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
        Gbl.OrdenPiezas.Redimensiona(Gbl.NumPiezas);
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
            lugar(Gbl.Piezas[i], i);
            Gbl.OrdenPiezas[i] = i;
        }
        Gbl.Movimientos.Redimensiona(100);
        Gbl.NumMovimientos = 0;
    }

    // Writes the state, lets `cambia` damage the seven lines, and reads it back on a fresh block
    // that keeps the game and the folders.
    void Relee(const std::function<void(std::vector<std::string>&)>& cambia = {}) {
        std::vector<std::string> lineas = Lineas(EscribePuzzle());
        if (cambia) cambia(lineas);
        std::string bytes;
        for (const std::string& l : lineas) bytes += l + "\r\n";
        ReleeBytes(bytes);
    }
    void ReleeBytes(const std::string& bytes) {
        Bloque limpio{};
        limpio.JuegoActual = Gbl.JuegoActual;
        limpio.AnchoPantalla = Gbl.AnchoPantalla;
        limpio.AltoPantalla = Gbl.AltoPantalla;
        limpio.CarpetaPrograma = Gbl.CarpetaPrograma;
        limpio.CarpetaImagenes = Gbl.CarpetaImagenes;
        limpio.ColoresCambiados = Gbl.ColoresCambiados;
        limpio.SoloLeerAjustes = Gbl.SoloLeerAjustes;
        Gbl = limpio;
        LeePuzzle(bytes);
    }

    // Columns of line 5 of what would be written now.
    static std::string Columnas(std::size_t desde, std::size_t hasta) {
        return DeComillas(Lineas(EscribePuzzle())[4]).substr(desde - 1, hasta - desde + 1);
    }
};

// Changes columns of a quoted line, counted from 1 behind the quote.
void Cambia(std::string& linea, std::size_t columna, const std::string& valor) {
    linea.replace(columna, valor.size(), valor);
}

}  // namespace

// ---------------------------------------------------------------- the format

TEST_F(Registros, SevenQuotedLinesWithFixedColumns) {
    Tablero();
    Gbl.UnidadImagen = "c:";
    Gbl.CarpetaImagen = "/fotos/";
    Gbl.FicheroImagen = "uno.jpg";
    Gbl.RutaImagen = "/fotos/uno.jpg";
    Gbl.NombreJugador = "Íñigo";
    Gbl.ColorFondo = 0x800000;
    Gbl.ColorPiezas = 0x008000;
    Gbl.ColorContraste = 0xFFFFFF;
    Gbl.MostrarMuestra = false;
    Gbl.SegundosJuego = 3661;
    Gbl.PuzzleTerminado = true;
    Gbl.PuzzleArchivable = false;
    Gbl.NombrePuzzle = "Mi niña";
    Gbl.Dificultad = 6.66667F;
    Gbl.AnchoImagen = 640;
    Gbl.AltoImagen = 480;
    Gbl.FactorAtraccion = 5;
    Gbl.PermitirGiro = false;
    Gbl.NumMovimientos = 1;
    Gbl.Movimientos[1] = {8, 10, 20, 0, 0, 30, 40, 1, 1};
    Gbl.OrdenPiezas[1] = 8;
    Gbl.OrdenPiezas[8] = 1;
    // Side 3 at 600: cell 107, board 321, margins 169 and 107.
    const std::string esperado =
        "\"c:\"\r\n"
        "\"/fotos/\"\r\n"
        "\"uno.jpg\"\r\n"
        "\"/fotos/uno.jpg\"\r\n"
        "\"\xCD\xF1igo    083886080003276816777215"
        "0 00010001 100003000080000"
        "3661-10 12  038303210640048022 0050 -1-1"
        "Mi ni\xF1"
        "a                  06.6667         \"\r\n"
        "\"01690107000169010700008"
        "02760107000276010700002"
        "03830107000383010700003"
        "01690214000169021400004"
        "02760214000276021400005"
        "03830214000383021400006"
        "01690321000169032100007"
        "02760321000276032100001\"\r\n"
        "\"00800100020000030004011\"\r\n";
    EXPECT_EQ(EscribePuzzle(), esperado);
}

TEST_F(Registros, RecordIsAHundredAndFortyCharactersAndEntriesTwentyThree) {
    Jigsaw();
    const std::vector<std::string> lineas = Lineas(EscribePuzzle());
    ASSERT_EQ(lineas.size(), 7U);
    EXPECT_EQ(DeComillas(lineas[4]).size(), 140U);
    EXPECT_EQ(DeComillas(lineas[5]).size(), 9U * 23U);
    EXPECT_EQ(lineas[6], "\"\"");
    EXPECT_EQ(DeComillas(lineas[3]), " ");
}

TEST_F(Registros, ValuesTooWideAreCutOnTheRight) {
    Jigsaw();
    Gbl.NombreJugador = "Bartolomé Ruiz";
    Gbl.NombrePuzzle = "Un nombre de más de veinticinco letras";
    Gbl.ModeloActual = 12345;
    EXPECT_EQ(De1252(Columnas(1, 9)), "Bartolomé");
    EXPECT_EQ(De1252(Columnas(100, 124)), "Un nombre de más de veint");
    EXPECT_EQ(Columnas(40, 43), "1234");
}

TEST_F(Registros, NegativeCoordinateLosesItsLastDigit) {
    Jigsaw();
    Gbl.Piezas[1].X = -12;
    Relee();
    EXPECT_EQ(Gbl.Piezas[1].X, -1);
    EXPECT_EQ(ErrorPendiente(), 0);
}

TEST_F(Registros, QuoteInANameComesBack) {
    Jigsaw();
    Gbl.NombreJugador = "El \"Rey\"";
    Gbl.NombrePuzzle = "\"";
    Relee();
    EXPECT_EQ(Gbl.NombreJugador, "El \"Rey\"");
    EXPECT_EQ(Gbl.NombrePuzzle, "\"");
    EXPECT_EQ(ErrorPendiente(), 0);
}

TEST_F(Registros, PathsKeepTheBytesOfTheFileSystem) {
    Jigsaw();
    Gbl.FicheroImagen = "日本 \xFF\x80 \"x\".jpg";
    Gbl.CarpetaImagen = "/a  b/ñ/";
    const Bloque antes = Gbl;
    Relee();
    EXPECT_EQ(Gbl.FicheroImagen, antes.FicheroImagen);
    EXPECT_EQ(Gbl.CarpetaImagen, antes.CarpetaImagen);
}

TEST_F(Registros, DifficultyIsReadWithPointOrComma) {
    Jigsaw();
    for (const char* texto : {"45.2500", "45,2500"}) {
        Relee([&](auto& l) { Cambia(l[4], 125, texto); });
        EXPECT_FLOAT_EQ(Gbl.Dificultad, 45.25F);
        EXPECT_EQ(ErrorPendiente(), 0);
    }
}

TEST_F(Registros, AnyNumberButZeroIsTrue) {
    Jigsaw();
    Relee([](auto& l) {
        Cambia(l[4], 94, "7 ");  // PermitirGiro
        Cambia(l[4], 96, " 0");  // DibujarBorde
        Cambia(l[4], 66, "1 ");  // PuzzleArchivable
    });
    EXPECT_EQ(Gbl.PermitirGiro.Valor(), -1);
    EXPECT_EQ(Gbl.DibujarBorde.Valor(), 0);
    EXPECT_EQ(Gbl.PuzzleArchivable.Valor(), -1);
    EXPECT_EQ(ErrorPendiente(), 0);
}

// ---------------------------------------------------------------- reading

TEST_F(Registros, NoMovesLeaveALogOfBoundZero) {
    Jigsaw();
    Relee();
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Gbl.Movimientos.Superior(), 0);
}

TEST_F(Registros, LogComesBackWithExactlyItsMoves) {
    Jigsaw();
    Gbl.NumMovimientos = 2;
    Gbl.Movimientos[1] = {3, 1, 2, 3, 0, 5, 6, 2, 0};
    Gbl.Movimientos[2] = {9, 100, 200, 0, 0, 110, 210, 0, 0};
    const Movimiento segundo = Gbl.Movimientos[2];
    Relee();
    EXPECT_EQ(Gbl.NumMovimientos, 2);
    EXPECT_EQ(Gbl.Movimientos.Superior(), 2);
    EXPECT_EQ(Gbl.Movimientos[1].GiroAntes, 3);
    EXPECT_EQ(Gbl.Movimientos[2], segundo);
}

TEST_F(Registros, OutOfRangeSettingsAreRepaired) {
    Jigsaw();
    Relee([](auto& l) {
        Cambia(l[4], 91, "150");
        Cambia(l[4], 68, "9");
        Cambia(l[4], 69, "0");
    });
    EXPECT_EQ(Gbl.FactorAtraccion, 20);
    EXPECT_EQ(Gbl.ModoJuego, 1);
    EXPECT_EQ(Gbl.TipoFondo, 2);
    EXPECT_EQ(ErrorPendiente(), 0);
}

TEST_F(Registros, StoredContrastIsReplaced) {
    Jigsaw();
    Gbl.ColorFondo = 0xFFFFFF;
    Gbl.ColorPiezas = 0x00FF00;
    Gbl.ColorContraste = 0x123456;
    Relee();
    EXPECT_EQ(Gbl.ColorContraste, 0U);
    EXPECT_EQ(Gbl.ColorFondoOscuro, 0xD7D7D7U);
}

TEST_F(Registros, FieldThatDoesNotConvertKeepsItsValueAndLeavesAnError) {
    Jigsaw();
    Relee([](auto& l) { Cambia(l[4], 56, "12x45678"); });
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_EQ(ErrorPendiente(), 13);
}

TEST_F(Registros, WithoutAnImageFileTheTableBuildsWithNoError) {
    Jigsaw();
    Relee();
    EXPECT_EQ(ErrorPendiente(), 0);
    EXPECT_TRUE(Gbl.ImagenValida);
    EXPECT_EQ(Pic_FonTamModi.Width(), 320);
    EXPECT_EQ(Pic_FonTamModi.Height(), 240);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Registros, ImageIsStretchedToItsZoom) {
    PonImagen("a.bmp", 640, 480);
    Gbl.RutaImagen = Gbl.CarpetaImagenes + "a.bmp";
    Jigsaw(640, 480, 55);
    Relee();
    EXPECT_EQ(ErrorPendiente(), 0);
    EXPECT_EQ(Pic_FonTamModi.Width(), 352);
    EXPECT_EQ(Pic_FonTamModi.Height(), 264);
    EXPECT_EQ(PixelDe(Pic_FonTamModi.Point(351, 263)), 0x0000FFU);
    EXPECT_EQ(Pic_FonTamReal.Width(), 0);
}

TEST_F(Registros, ImageOfAnotherSystemIsFoundByItsName) {
    PonImagen("Lago.bmp", 320, 240);
    Jigsaw();
    Gbl.RutaImagen = "D:\\JUEGOS\\TESSA\\IMAGENES\\LAGO.BMP";
    Relee();
    EXPECT_EQ(ErrorPendiente(), 0);
    EXPECT_EQ(PixelDe(Pic_FonTamModi.Point(5, 5)), 0x0000FFU);
}

TEST_F(Registros, RecordWithoutAFolderGetsTheOneInWhichItsImageWasFound) {
    PonImagen("Lago.bmp", 320, 240);
    Jigsaw();
    Gbl.CarpetaImagen.clear();
    Gbl.RutaImagen = Gbl.FicheroImagen = "lago.bmp";
    Relee();
    EXPECT_EQ(ErrorPendiente(), 0);
    EXPECT_EQ(Gbl.CarpetaImagen, Gbl.CarpetaImagenes);
    EXPECT_EQ(Gbl.RutaImagen, Gbl.CarpetaImagenes + "Lago.bmp");
}

TEST_F(Registros, RecordWithAFolderOfItsOwnKeepsItThoughItsImageIsFoundElsewhere) {
    PonImagen("Lago.bmp", 320, 240);
    Jigsaw();
    Gbl.FicheroImagen = "Lago.bmp";
    for (const bool deCarpeta : {true, false}) {
        Gbl.CarpetaImagen = deCarpeta ? "/fotos/" : "";
        Gbl.RutaImagen = deCarpeta ? "Lago.bmp" : "/fotos/Lago.bmp";
        const std::string carpeta = Gbl.CarpetaImagen, ruta = Gbl.RutaImagen;
        Relee();
        EXPECT_EQ(ErrorPendiente(), 0);
        EXPECT_EQ(Gbl.CarpetaImagen, carpeta);
        EXPECT_EQ(Gbl.RutaImagen, ruta);
    }
}

TEST_F(Registros, MissingImageLeavesItsErrorAndBuildsNothing) {
    Jigsaw();
    Gbl.RutaImagen = "/no/hay.bmp";
    Relee();
    EXPECT_EQ(ErrorPendiente(), 53);
    EXPECT_FALSE(Gbl.ImagenValida);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Registros, ZoomedImageOutOfLimitsIsRefusedWithItsWidth) {
    Jigsaw(1000, 700, 110);
    int pulsado = 0;  // the button of the settings
    Pic_Boton(2).MouseDown = [&](i16, i16, float, float) {
        ++pulsado;
        EXPECT_FALSE(Gbl.ImagenValida);
        EXPECT_EQ(Gbl.ZoomImagen, 100);
        EXPECT_EQ(Pic_FonTamModi.Width(), 320);
        EXPECT_EQ(Pic_FonTamModi.Height(), 240);
    };
    Gbl.Sonido = true;
    Bloque sonora = Gbl;
    const std::string bytes = EscribePuzzle();
    Gbl = sonora;
    LeePuzzle(bytes);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Imagen no válida");
    EXPECT_EQ(P().avisos[0].modo, 6);
    EXPECT_EQ(P().avisos[0].botones, 1);
    EXPECT_EQ(P().avisos[0].ayuda, 2115);
    EXPECT_NE(P().avisos[0].texto.find("( 1100 x 770 pixels )"), std::string::npos);
    ASSERT_FALSE(P().sonidos.empty());
    EXPECT_EQ(P().sonidos[0].first, 11);
    EXPECT_EQ(pulsado, 1);
}

TEST_F(Registros, TheSameImageAtItsOwnSizePasses) {
    Jigsaw(1000, 700, 100);
    Relee();
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_TRUE(Gbl.ImagenValida);
    EXPECT_EQ(Pic_FonTamModi.Width(), 1000);
}

TEST_F(Registros, LimitsThemselvesPassAndOnePixelBeyondDoesNot) {
    const struct {
        i32 ancho, alto;
        std::size_t avisos;
    } casos[] = {{320, 240, 0}, {1024, 768, 0}, {319, 240, 1}, {1025, 500, 1}, {500, 769, 1}};
    PonImagen("b.bmp", 400, 300);
    for (const auto& c : casos) {
        P().avisos.clear();
        Jigsaw(c.ancho, c.alto);
        Relee();
        EXPECT_EQ(P().avisos.size(), c.avisos) << c.ancho << "x" << c.alto;
    }
}

TEST_F(Registros, UnsolvableBoardIsToldAndReshuffled) {
    Tablero(4);
    std::swap(Gbl.Piezas[1].X, Gbl.Piezas[2].X);
    Relee();
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Configuración sin solución");
    EXPECT_EQ(P().avisos[0].texto,
              "Este puzzle no tiene solución con la configuración de piezas actual.  Se va  a  "
              "barajar automáticamente para  que  pueda tener solución.");
    EXPECT_EQ(P().avisos[0].modo, 3);
    EXPECT_EQ(P().avisos[0].ayuda, 3020);
    EXPECT_EQ(ErrorPendiente(), 0);
    EXPECT_TRUE(Gbl.PuzzleArchivable);
    P().avisos.clear();
    Relee();  // what came out can be solved
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Registros, ReshuffledBoardIsLaidAnewUnlessColoursChange) {
    Tablero(4);
    std::swap(Gbl.Piezas[1].X, Gbl.Piezas[2].X);
    Relee();
    const Mapa visto = Pic_Trabajo.Dibujo();
    ColocaPiezas(1);
    EXPECT_EQ(visto.Pixeles, Pic_Trabajo.Dibujo().Pixeles);
    Tablero(4);
    std::swap(Gbl.Piezas[1].X, Gbl.Piezas[2].X);
    Gbl.ColoresCambiados = true;
    Relee();
    EXPECT_EQ(Pic_Trabajo.Point(Gbl.Piezas[1].X + 8, Gbl.Piezas[1].Y + 8), Gbl.ColorFondo);
}

TEST_F(Registros, BoardWithTwoPiecesOnOneCellIsReshuffledAndDoesNotHang) {
    Tablero();
    Gbl.Piezas[1] = Gbl.Piezas[2];
    Relee();
    EXPECT_EQ(ErrorPendiente(), 0);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Configuración sin solución");
}

TEST_F(Registros, SolvedBoardComesBackPlaced) {
    Tablero();
    Relee();
    EXPECT_EQ(ErrorPendiente(), 0);
    EXPECT_EQ(Gbl.PiezasColocadas, 8);
    EXPECT_EQ(Pic_Trabajo.Point(Gbl.HuecoX + 20, Gbl.HuecoY + 20), Gbl.ColorFondo);
}

TEST_F(Registros, BoardSavedOnAnotherScreenTakesTheGridOfThisOne) {
    Tablero(4);
    // The last piece has moved into the hole: it stands on cell 16, the hole on cell 15.
    std::swap(Gbl.Piezas[15].X, Gbl.HuecoX);
    Gbl.NumMovimientos = 1;
    Gbl.Movimientos[1] = {15, Gbl.HuecoX, Gbl.HuecoY, 0, 0, Gbl.Piezas[15].X, Gbl.HuecoY, 0, 0};
    Gbl.AltoPantalla = 768;
    Relee();
    EXPECT_EQ(ErrorPendiente(), 0);
    EXPECT_TRUE(P().avisos.empty());
    // (768 - 65) / 6 = 117.17: cells of 117, board 468, margins (659 - 468) \\ 2 and (703 - 468)
    // \\ 2.
    EXPECT_EQ(Gbl.Piezas[1].X, 95);
    EXPECT_EQ(Gbl.Piezas[1].YBien, 117);
    EXPECT_EQ(Gbl.Piezas[15].X, 95 + 3 * 117);
    EXPECT_EQ(Gbl.Piezas[15].XBien, 95 + 2 * 117);
    EXPECT_EQ(Gbl.HuecoX, 95 + 2 * 117);
    EXPECT_EQ(Gbl.HuecoY, 117 + 3 * 117);
    EXPECT_EQ(Gbl.Movimientos[1].XDespues, 95 + 3 * 117);
    EXPECT_EQ(Gbl.PiezasColocadas, 14);
}

// (2160 - 65) / 6 = 349.17: cells of 349, a board of 1396, upper margin (2095 - 1396) / 2 = 349.
TEST_F(Registros, BoardTakesTheGridOfALargeScreenToItsLastCell) {
    Tablero(4);
    std::swap(Gbl.Piezas[15].X, Gbl.HuecoX);
    Gbl.AltoPantalla = 2160;
    Relee();
    EXPECT_EQ(ErrorPendiente(), 0);
    EXPECT_EQ(Gbl.Piezas[15].Y, 349 + 3 * 349);
    EXPECT_EQ(Gbl.HuecoY, 349 + 3 * 349);
    EXPECT_EQ(Gbl.Piezas[15].X - Gbl.Piezas[1].X, 3 * 349);
    EXPECT_EQ(Gbl.PiezasColocadas, 14);
}

TEST_F(Registros, WhileColoursChangeThePiecesAreNotLaid) {
    Tablero();
    Gbl.ColoresCambiados = true;
    Relee();
    EXPECT_EQ(Pic_Trabajo.Point(Gbl.Piezas[1].X + 8, Gbl.Piezas[1].Y + 8), Gbl.ColorFondo);
}

TEST_F(Registros, TangramDesignComesBackWithoutSample) {
    Tangram();
    Gbl.MostrarMuestra = true;
    Gbl.ZoomImagen = 150;
    const Pieza quinta = Gbl.Piezas[5];
    Relee();
    EXPECT_EQ(ErrorPendiente(), 0);
    EXPECT_FALSE(Gbl.MostrarMuestra);
    EXPECT_EQ(Gbl.ZoomImagen, 100);
    EXPECT_EQ(Gbl.Piezas[5], quinta);
    EXPECT_EQ(Pic_FonTamModi.Width(), 840);
    EXPECT_EQ(Pic_FonTamModi.Height(), 640);
}

TEST_F(Registros, TangramModelIsDrawnForItsPreview) {
    Tangram(MODO_RESOLVER);
    Relee();
    EXPECT_EQ(ErrorPendiente(), 0);
    // Big triangle 1 upright at (30, 25), 177 x 89: inside near its base.
    EXPECT_EQ(Pic_FonTamModi.Point(30 + 88, 25 + 60), Gbl.ColorContraste);
}

TEST_F(Registros, SettingsAloneTouchNoPictureAndNoTable) {
    Jigsaw(640, 480);
    Gbl.SoloLeerAjustes = true;
    Pic_FonTamModi.Tamano(33, 44);
    Relee();
    EXPECT_EQ(Pic_FonTamModi.Width(), 33);
    EXPECT_EQ(Gbl.AnchoCelda, 213);
    EXPECT_FALSE(Gbl.ImagenValida);
}

// ---------------------------------------------------------------- counts of a damaged record

TEST_F(Registros, CountsThatTheLinesDoNotHoldAreErrors) {
    const struct {
        std::size_t columna;
        const char* valor;
        const char* que;
    } danos[] = {{53, "999", "pieces beyond the list"},
                 {53, "000", "no pieces"},
                 {53, "-09", "fewer than no pieces"},
                 {53, "008", "one piece less"},
                 {36, "9999", "moves beyond the list"},
                 {36, "-001", "fewer than no moves"},
                 {48, "000", "no side"},
                 {48, "999", "an absurd side"},
                 {48, "-03", "a negative side"},
                 {51, "57", "a shape that is none"},
                 {51, "-1", "a negative shape"}};
    for (const auto& d : danos) {
        Jigsaw();
        Relee([&](auto& l) { Cambia(l[4], d.columna, d.valor); });
        EXPECT_NE(ErrorPendiente(), 0) << d.que;
    }
}

TEST_F(Registros, SlidingSideOutsideThreeToNineIsAnError) {
    Tablero(3);
    for (const char* lado : {"000", "001", "002", "010", "099"}) {
        Gbl.JuegoActual = JuegoDeslizantes;
        Tablero(3);
        Relee([&](auto& l) { Cambia(l[4], 48, lado); });
        EXPECT_NE(ErrorPendiente(), 0) << lado;
    }
}

TEST_F(Registros, StackThatIsNoPermutationIsAnError) {
    for (const char* entrada : {"002", "000", "010", "-01", "abc"}) {
        Jigsaw();
        Relee([&](auto& l) { Cambia(l[5], 21, entrada); });
        EXPECT_NE(ErrorPendiente(), 0) << entrada;
    }
}

TEST_F(Registros, RecordOfNoGameKeepsTheGameInPlay) {
    for (const char* juego : {"20", "24", "99", "-1", "  "}) {
        Tablero();
        Relee([&](auto& l) { Cambia(l[4], 88, juego); });
        EXPECT_EQ(Gbl.JuegoActual, 22) << juego;
        EXPECT_NE(ErrorPendiente(), 0) << juego;
    }
}

TEST_F(Registros, ColourBeyondWhiteIsAnError) {
    Jigsaw();
    Relee([](auto& l) { Cambia(l[4], 10, "99999999"); });
    EXPECT_EQ(ErrorPendiente(), 6);
    EXPECT_EQ(Gbl.ColorFondo, 0x800000U);
}

TEST_F(Registros, HugeImageOfADamagedRecordIsNeverMade) {
    Jigsaw();
    Relee([](auto& l) {
        Cambia(l[4], 80, "99999999");  // 9999 x 9999
        Cambia(l[4], 45, "999");
    });
    EXPECT_LE(Pic_FonTamModi.Width(), 1024);
    Tablero();
    Relee([](auto& l) {
        Cambia(l[4], 80, "99999999");
        Cambia(l[4], 45, "999");
    });
    EXPECT_EQ(ErrorPendiente(), 7);
    EXPECT_LE(Pic_FonTamModi.Width(), 1024);
}

TEST_F(Registros, EmptyAndForeignFilesAreErrorsOnly) {
    for (const std::string& bytes : {std::string(), std::string("hola"), std::string(100000, 'x'),
                                     std::string(1000, '\0'), std::string("\"\r\n\"\r\n\"")}) {
        ReleeBytes(bytes);
        EXPECT_NE(ErrorPendiente(), 0);
    }
}

// ---------------------------------------------------------------- files

TEST_F(Registros, SavedPuzzleComesBackFromItsFile) {
    Tablero();
    Gbl.SegundosJuego = 77;
    EXPECT_EQ(GuardaPuzzle(P().carpeta + "x.puz"), 0);
    Gbl.SegundosJuego = 0;
    CargaPuzzle(P().carpeta + "X.PUZ");
    EXPECT_TRUE(Gbl.CargaCorrecta);
    EXPECT_EQ(Gbl.SegundosJuego, 77);
}

TEST_F(Registros, MissingScratchCopyOnlyClearsItsFlag) {
    Tablero();
    Gbl.CargaCorrecta = true;
    Gbl.SegundosJuego = 77;
    CargaPuzzle(P().carpeta + "nada.cse");
    EXPECT_FALSE(Gbl.CargaCorrecta);
    EXPECT_EQ(Gbl.SegundosJuego, 77);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Registros, SavingWhereNothingCanBeWrittenIsAnErrorNumber) {
    Tablero();
    EXPECT_EQ(GuardaPuzzle("/dev/full"), 61);
    EXPECT_EQ(GuardaPuzzle(P().carpeta + "no/hay.puz"), 76);
}

// ---------------------------------------------------------------- random records

TEST_F(Registros, RandomRecordsComeBackAsTheyWere) {
    std::mt19937 azar(20261120);
    const auto entre = [&](int a, int b) {
        return static_cast<i16>(std::uniform_int_distribution<int>(a, b)(azar));
    };
    Gbl.SoloLeerAjustes = true;
    for (int vez = 0; vez < 300; ++vez) {
        Jigsaw();
        Gbl.NombreJugador = std::string(static_cast<std::size_t>(entre(1, 9)), 'n');
        Gbl.NombrePuzzle = vez % 2 ? "Año " + std::to_string(vez) : "";
        Gbl.ColorPiezas = static_cast<Color>(entre(0, 255) * 65536 + entre(0, 255));
        Gbl.MostrarMuestra = entre(0, 1) != 0;
        Gbl.PuzzleTerminado = entre(0, 1) != 0;
        Gbl.SegundosJuego = entre(0, 32000) * 3000;
        Gbl.FactorAtraccion = entre(0, 100);
        Gbl.Dificultad = static_cast<float>(entre(1, 999)) / 10.0F;
        for (i16 i = 1; i <= 9; ++i)
            Gbl.Piezas[i] = {entre(0, 9999), entre(0, 9999), entre(0, 3), 0,
                             entre(0, 999),  entre(0, 999),  entre(0, 3), 0};
        for (i16 i = 1; i <= 9; ++i) std::swap(Gbl.OrdenPiezas[i], Gbl.OrdenPiezas[entre(1, 9)]);
        Gbl.NumMovimientos = entre(0, 100);
        for (i16 i = 1; i <= Gbl.NumMovimientos; ++i)
            Gbl.Movimientos[i] = {entre(1, 9),
                                  entre(0, 9999),
                                  entre(0, 9999),
                                  entre(0, 3),
                                  0,
                                  entre(0, 9999),
                                  entre(0, 9999),
                                  entre(0, 3),
                                  0};
        const std::string antes = EscribePuzzle();
        const Bloque estado = Gbl;
        Relee();
        ASSERT_EQ(ErrorPendiente(), 0) << vez;
        EXPECT_EQ(Gbl.Piezas[4], estado.Piezas[4]);
        EXPECT_EQ(Gbl.NombreJugador, estado.NombreJugador);
        EXPECT_FLOAT_EQ(Gbl.Dificultad, estado.Dificultad);
        ASSERT_EQ(EscribePuzzle(), antes) << vez;
    }
}

TEST_F(Registros, NoDamageToARecordCrashesOrHangs) {
    std::mt19937 azar(7);
    const auto hasta = [&](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(azar);
    };
    PonImagen("a.bmp", 320, 240);
    Gbl.AnchoPantalla = 240;
    Gbl.AltoPantalla = 200;
    Gbl.VelocidadJuego = 100;
    std::vector<std::string> semillas;
    Jigsaw();
    Gbl.RutaImagen = Gbl.CarpetaImagenes + "a.bmp";
    Gbl.NumMovimientos = 3;
    for (i16 i = 1; i <= 3; ++i) Gbl.Movimientos[i].Pieza = i;
    semillas.push_back(EscribePuzzle());
    Gbl.RutaImagen = " ";
    Tablero();
    semillas.push_back(EscribePuzzle());
    Tangram(MODO_RESOLVER);
    semillas.push_back(EscribePuzzle());
    Tangram();
    semillas.push_back(EscribePuzzle());

    int errores = 0;
    for (int vez = 0; vez < 1600; ++vez) {
        std::string bytes = semillas[hasta(semillas.size())];
        if (vez % 4 == 0) bytes.resize(hasta(bytes.size()));
        for (std::size_t k = 0; k < 1 + hasta(3) && !bytes.empty(); ++k) {
            char& c = bytes[hasta(bytes.size())];
            c = vez % 2 ? static_cast<char>(c ^ (1 << hasta(8)))
                        : static_cast<char>('0' + hasta(10));
        }
        Gbl.ColoresCambiados = vez % 16 != 0;  // the pieces themselves are drawn now and then
        Gbl.MarcaPausa = 0;
        BorraError();
        SCOPED_TRACE(vez);
        Sigue([&] { LeePuzzle(bytes); });
        errores += ErrorPendiente() != 0;
        ASSERT_TRUE(Gbl.JuegoActual >= 21 && Gbl.JuegoActual <= 23);
        ASSERT_LE(Pic_FonTamModi.Width(), 12000);
    }
    EXPECT_GT(errores, 200);
    EXPECT_LT(errores, 1550);
}

}  // namespace tessario
