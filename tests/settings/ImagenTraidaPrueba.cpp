// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures that come into the settings window from elsewhere: the clipboard's, dropped ones.
#include <filesystem>

#include "apoyo/ImagenVentana.h"
#include "session/Montaje.h"
#include "settings/Imagen.h"

namespace tessario {

namespace fs = std::filesystem;
using namespace personal;

namespace {

constexpr const char* NO_VALIDA = "Imagen no válida";

}  // namespace

// ---------------------------------------------------------------- clipboard

TEST_F(ImagenVentana, TheClipboardsButtonShowsForUsablePictures) {
    const auto visible = [&] {
        bool si = false;
        Visita([&] { si = Pic_BotPortapapeles.Visible; });
        return si;
    };
    EXPECT_FALSE(visible());
    P().hayPortapapeles = true;
    const struct {
        i32 ancho, alto;
        bool util;
    } casos[] = {{33, 25, true},     {32, 25, false},   {33, 24, false},   {20480, 25, true},
                 {20481, 25, false}, {33, 15360, true}, {33, 15361, false}};
    for (const auto& c : casos) {
        P().portapapeles = Mapa(c.ancho, c.alto);
        EXPECT_EQ(visible(), c.util) << c.ancho << "x" << c.alto;
    }
    P().portapapeles = Mapa(640, 480);
    Deslizantes(4);
    EXPECT_FALSE(visible());
    Visita([&] {
        Sel(2).Pon(1);
        EXPECT_TRUE(Pic_BotPortapapeles.Visible);
        EXPECT_EQ(Pic_BotPortapapeles.Left, 42);
        EXPECT_EQ(Pic_BotPortapapeles.Top, 150);
        EXPECT_EQ(Pic_BotPortapapeles.Width(), 171);
        EXPECT_EQ(Pic_BotPortapapeles.Height(), 23);
    });
    TangramDe({"Barco"});
    EXPECT_FALSE(visible());
}

TEST_F(ImagenVentana, TheClipboardsPictureBecomesAFileAndIsChosen) {
    P().hayPortapapeles = true;
    P().portapapeles = Mapa(500, 400, 0x112233);
    const std::string ruta = P().carpeta + "Imagenes/tsportap.bmp";
    Visita([&] {
        Gbl.VelocidadJuego = 100;
        P().sonidos.clear();
        P().dormido = 0;
        // The tile's upper left pixel tells which of the two it is.
        const auto fila = [] { return PixelDe(Pic_BotPortapapeles.Point(0, 0)) & 0xFFU; };
        EXPECT_EQ(fila(), 30U);
        P().anotaTextos = true;
        bool apretado = false;
        P().alDormir = [&] { apretado = fila() == 54U; };
        Pulsa(Pic_BotPortapapeles);
        P().alDormir = nullptr;
        P().anotaTextos = false;
        EXPECT_TRUE(apretado);
        EXPECT_EQ(fila(), 30U);
        std::vector<Punto> rotulos;  // the white printing of each caption
        for (const auto& t : P().textos)
            if (t.donde == &Pic_BotPortapapeles && t.color == 0xFFFFFFU)
                rotulos.push_back({t.x, t.y});
        EXPECT_EQ(rotulos, (std::vector<Punto>{{9, 5}, {9, 4}}));
        EXPECT_EQ(P().dormido, 200);  // as at speed 50
        EXPECT_EQ(Gbl.VelocidadJuego, 100);
        EXPECT_EQ(Sonidos(), (std::vector<int>{6, 6, 7}));
        EXPECT_EQ(P().guardadas.count(ruta), 1U);
        EXPECT_EQ(FicheroElegido(), "tsportap.bmp");
        EXPECT_EQ(Gbl.RutaImagen, ruta);
        P().guardadas.clear();
        Sal({true});
    });
    // On leaving with a restart it is written again.
    ASSERT_EQ(P().guardadas.count(ruta), 1U);
    EXPECT_EQ(P().guardadas[ruta].Ancho, 500);
    EXPECT_EQ(P().guardadas[ruta].Pixeles[0], 0x112233U);
    EXPECT_EQ(Gbl.FicheroImagen, "tsportap.bmp");
}

TEST_F(ImagenVentana, AnotherClipboardPictureTakesThePlaceOfTheLast) {
    P().hayPortapapeles = true;
    P().portapapeles = Mapa(500, 400, 0x112233);
    Visita([&] {
        Pulsa(Pic_BotPortapapeles);
        P().portapapeles = Mapa(500, 400, 0x445566);
        Pulsa(Pic_BotPortapapeles);
        EXPECT_EQ(PixelDe(Pic_MostrarImagen.Point(120, 90)), 0x445566U);
        Sal({false});
    });
}

// The puzzle's own picture came from the clipboard, and another one is there now.
class PegadaDosVeces : public ImagenVentana {
protected:
    void SetUp() override {
        ImagenVentana::SetUp();
        MovilesDe(NOMBRE, 640, 480);
        Crea("Imagenes/tsportap.bmp", PRIMERA);
        P().imagenes[Ruta()] = Mapa(640, 480, 0x112233);
        P().hayPortapapeles = true;
        P().portapapeles = Mapa(640, 480, 0x445566);
    }
    void TearDown() override {
        EXPECT_FALSE(fs::exists(Apartada()));
        ImagenVentana::TearDown();
    }
    std::string Ruta() { return P().carpeta + "Imagenes/" + NOMBRE; }
    std::string Apartada() { return P().carpeta + "Imagenes/tsportap.cse"; }
    // What the file holds: the bytes of the first one, or of any that was written since.
    std::string EnDisco() { return Contenido("Imagenes/tsportap.bmp"); }

    static constexpr const char *NOMBRE = "tsportap.bmp", *PRIMERA = "the first", *OTRA = "BM";
};

TEST_F(PegadaDosVeces, LeavingAsksAndYesTakesTheNewOne) {
    Visita([&] {
        Pulsa(Pic_BotPortapapeles);
        EXPECT_EQ(PixelDe(Pic_MostrarImagen.Point(120, 90)), 0x445566U);
        EXPECT_TRUE(P().avisos.empty());
        P().guardadas.clear();
        Sal({true});
    });
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Parámetros del puzzle");
    EXPECT_EQ(EnDisco(), OTRA);
    EXPECT_EQ(P().guardadas[Ruta()].Pixeles[0], 0x445566U);
}

TEST_F(PegadaDosVeces, NoBringsTheFormerOneBack) {
    for (const bool boton : {true, false}) {
        P().avisos.clear();
        Visita([&] {
            if (boton)
                Pulsa(Pic_BotPortapapeles);
            else
                Personal.KeyDown('V', 2);
            // A second one in the same visit is not taken for the puzzle's.
            P().portapapeles = Mapa(640, 480, 0x778899);
            Pulsa(Pic_BotPortapapeles);
            EXPECT_EQ(EnDisco(), OTRA);
            EXPECT_EQ(Contenido("Imagenes/tsportap.cse"), PRIMERA);
            Sal({false});
        });
        EXPECT_EQ(P().avisos.size(), 1U) << boton;
        EXPECT_EQ(EnDisco(), PRIMERA) << boton;
        EXPECT_EQ(Gbl.RutaImagen, Ruta());
    }
}

TEST_F(PegadaDosVeces, OneOfThatNameInAnotherFolderIsNotThePuzzlesOwn) {
    Crea("Otra/tsportap.bmp", PRIMERA);
    Visita([&] {
        fs::current_path(P().carpeta + "Otra");
        Pulsa(Pic_BotPortapapeles);
        EXPECT_FALSE(fs::exists(Apartada()));
        EXPECT_EQ(Contenido("Otra/tsportap.bmp"), OTRA);
        Sal();
    });
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_EQ(EnDisco(), PRIMERA);
}

TEST_F(PegadaDosVeces, AChangeOfGameBringsItBackToo) {
    Visita([&] {
        Pulsa(Pic_BotPortapapeles);
        P().respuestas.push_back(true);
        Bul(22).Pon(true);
    });
    EXPECT_EQ(Gbl.JuegoActual, 22);
    EXPECT_EQ(EnDisco(), PRIMERA);
}

TEST_F(PegadaDosVeces, AnEndInBetweenLosesNothing) {
    fs::rename(Ruta(), Apartada());
    Crea("Imagenes/tsportap.bmp", OTRA);
    const std::string record = EscribePuzzle();
    LeePuzzle(record);
    EXPECT_EQ(EnDisco(), PRIMERA);
}

TEST_F(PegadaDosVeces, WhatCannotBeWrittenLeavesTheFormerOne) {
    P().guardaFalla = true;
    Visita([&] {
        Pulsa(Pic_BotPortapapeles);
        EXPECT_EQ(EnDisco(), PRIMERA);
        EXPECT_EQ(P().avisos.size(), 1U);  // that it could not be saved
        Sal();
    });
    EXPECT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(EnDisco(), PRIMERA);
}

TEST_F(ImagenVentana, AFileBesideAPictureOfAnotherNameIsNobodysFormerPicture) {
    const std::string vecina = Crea("Imagenes/a.cse", "otra cosa");
    Visita([&] {
        Lis_NroPiezas.Selecciona(1);
        Sal({true});
    });
    EXPECT_EQ(Contenido("Imagenes/a.cse"), "otra cosa");
    LeePuzzle(EscribePuzzle());
    EXPECT_EQ(Contenido("Imagenes/a.cse"), "otra cosa");
}

TEST_F(ImagenVentana, ARecordThatCallsAnotherFileThePastedPictureHasNothingWrittenOverIt) {
    P().guardadas.clear();
    Gbl.FicheroImagen = "tsportap.bmp";
    for (const char* otro : {"carta.txt", "tsportap.bmp"}) {
        Gbl.RutaImagen = Crea(otro, "mía");
        Visita([&] {
            Lis_NroPiezas.Selecciona(Lis_NroPiezas.ListIndex == 0 ? 1 : 0);
            Sal({true});
        });
        EXPECT_EQ(P().guardadas.count(P().carpeta + otro),
                  otro == std::string("carta.txt") ? 0U : 1U);
    }
}

TEST_F(ImagenVentana, InAnotherFolderThanTheListedOneTheFileIsWrittenAndNotChosen) {
    P().hayPortapapeles = true;
    P().portapapeles = Mapa(500, 400);
    fs::create_directories(P().carpeta + "Otra");
    Visita([&] {
        fs::current_path(P().carpeta + "Otra");
        Pulsa(Pic_BotPortapapeles);
        EXPECT_EQ(P().guardadas.count(P().carpeta + "Otra/tsportap.bmp"), 1U);
        EXPECT_EQ(FicheroElegido(), "a.bmp");
        Sal();
    });
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(ImagenVentana, WithTextOnTheClipboardThePressOnlyMoves) {
    P().hayPortapapeles = true;
    P().portapapeles = Mapa(500, 400);
    Visita([&] {
        P().hayPortapapeles = false;
        P().sonidos.clear();
        Pulsa(Pic_BotPortapapeles);
        EXPECT_TRUE(P().guardadas.empty());
        EXPECT_EQ(Sonidos(), (std::vector<int>{6, 7}));
        EXPECT_EQ(FicheroElegido(), "a.bmp");
        Sal();
    });
}

// ---------------------------------------------------------------- dropped and pasted

TEST_F(ImagenVentana, ADroppedFileIsImportedUnderItsNameAndChosen) {
    const std::string foto = "/lejos/Mi foto.png";
    P().ajenas[foto] = Mapa(160, 120, 0x0A0B0C);
    Visita([&] {
        Personal.DragDrop({{foto}, {}});
        EXPECT_EQ(P().guardadas.count(P().carpeta + "Imagenes/Mi foto.bmp"), 1U);
        EXPECT_EQ(FicheroElegido(), "Mi foto.bmp");
        EXPECT_EQ(Gbl.ZoomImagen, 205);  // the limits apply
        // The same again is the same file; another picture of that name stands beside it.
        Personal.DragDrop({{foto}, {}});
        EXPECT_EQ(P().guardadas.size(), 1U);
        P().ajenas[foto] = Mapa(640, 480, 0x0A0B0C);
        Personal.DragDrop({{foto}, {}});
        EXPECT_EQ(FicheroElegido(), "Mi foto 2.bmp");
        Sal({true});
    });
    EXPECT_EQ(Gbl.FicheroImagen, "Mi foto 2.bmp");
}

// Installed for everybody, the program's pictures are nobody's: the player's stand in a folder that
// is a place of its own.
TEST_F(ImagenVentana, OnAMediumThatCannotBeWrittenADroppedFileGoesToThePlayersOwnFolder) {
    const std::string foto = "/lejos/Mi foto.png";
    P().ajenas[foto] = Mapa(400, 300, 0x0A0B0C);
    Gbl.EnMedioSoloLectura = true;
    Gbl.CarpetaPrograma = P().carpeta + "trabajo/";
    const std::string mia = Gbl.CarpetaPrograma + "Imagenes/";
    fs::create_directories(mia);
    Visita([&] {
        ASSERT_EQ(Drive1.Propias.size(), 2U);
        EXPECT_EQ(Drive1.Propias[1].first, "Mis imágenes");
        EXPECT_EQ(Drive1.Propias[1].second, mia);
        Personal.DragDrop({{foto}, {}});
        EXPECT_EQ(P().guardadas.count(mia + "Mi foto.bmp"), 1U);
        EXPECT_EQ(FicheroElegido(), "Mi foto.bmp");
        EXPECT_EQ(Drive1.Drive, mia);
        // A file of that folder is no stranger.
        Personal.DragDrop({{mia + "Mi foto.bmp"}, {}});
        EXPECT_EQ(P().guardadas.size(), 1U);
        Sal({true});
    });
    EXPECT_EQ(Gbl.RutaImagen, mia + "Mi foto.bmp");
}

TEST_F(ImagenVentana, ADroppedFileOfTheProgramsPicturesIsJustChosen) {
    PonImagen("b.bmp", 800, 600);
    Visita([&] {
        Personal.DragDrop({{P().carpeta + "Imagenes/b.bmp"}, {}});
        EXPECT_TRUE(P().guardadas.empty());
        EXPECT_EQ(FicheroElegido(), "b.bmp");
        Sal({false});
    });
}

TEST_F(ImagenVentana, ADroppedFileOfTheProgramsFolderThatIsNotListedIsImported) {
    const std::string foto = P().carpeta + "Imagenes/gato.webp";
    Crea("Imagenes/gato.webp", "RIFF");
    P().ajenas[foto] = Mapa(640, 480, 0x0A0B0C);
    Visita([&] {
        Personal.DragDrop({{foto}, {}});
        EXPECT_EQ(FicheroElegido(), "gato.bmp");
        EXPECT_EQ(P().guardadas.count(P().carpeta + "Imagenes/gato.bmp"), 1U);
        Sal({false});
    });
}

TEST_F(ImagenVentana, WhatIsNoPictureIsSaidSo) {
    Visita([&] {
        for (const Traido& t : {Traido{{"/lejos/carta.txt"}, {}}, Traido{}}) {
            P().avisos.clear();
            P().sonidos.clear();
            Personal.DragDrop(t);
            ASSERT_EQ(P().avisos.size(), 1U);
            EXPECT_EQ(P().avisos[0].titulo, NO_VALIDA);
            EXPECT_EQ(Sonidos(), std::vector<int>{11});
        }
        Personal.KeyDown('V', 2);
        EXPECT_EQ(P().avisos.size(), 2U);
        Personal.KeyDown('V', 0);
        EXPECT_EQ(P().avisos.size(), 2U);
        EXPECT_EQ(FicheroElegido(), "a.bmp");
        Sal();
    });
}

TEST_F(ImagenVentana, APasteTakesFilesAndPictures) {
    P().ajenas["/lejos/gato.webp"] = Mapa(700, 500, 0x0A0B0C);
    Visita([&] {
        P().portapapelesFicheros = {"/lejos/carta.txt", "/lejos/gato.webp"};
        Personal.KeyDown('V', 2);
        EXPECT_EQ(FicheroElegido(), "gato.bmp");
        P().portapapelesFicheros.clear();
        P().hayPortapapeles = true;
        P().portapapeles = Mapa(400, 300, 0x0D0E0F);
        Personal.KeyDown('V', 2);
        EXPECT_EQ(FicheroElegido(), "tsportap.bmp");
        P().portapapeles = Mapa(420, 300, 0x0D0E0F);
        Personal.KeyDown('V', 2);
        EXPECT_EQ(FicheroElegido(), "tsportap.bmp");
        EXPECT_EQ(Gbl.AnchoImagen, 420);
        Sal({false});
    });
}

TEST_F(ImagenVentana, InTheSlidingPuzzleADropChoosesTheGroundOfImage) {
    Deslizantes(4);
    P().ajenas["/lejos/gato.webp"] = Mapa(700, 500, 0x0A0B0C);
    Visita([&] {
        Personal.DragDrop({{"/lejos/gato.webp"}, {}});
        EXPECT_EQ(Gbl.TipoFondo, 1);
        EXPECT_EQ(Sel(2).Value, 1);
        EXPECT_EQ(FicheroElegido(), "gato.bmp");
        Sal({true});
    });
    EXPECT_EQ(Gbl.FicheroImagen, "gato.bmp");
}

TEST_F(ImagenVentana, TheTangramHasNoUseForAPicture) {
    TangramDe({"Barco"});
    P().ajenas["/lejos/gato.webp"] = Mapa(700, 500);
    Visita([&] {
        Personal.DragDrop({{"/lejos/gato.webp"}, {}});
        ASSERT_EQ(P().avisos.size(), 1U);
        EXPECT_EQ(P().avisos[0].ayuda, 2112);
        EXPECT_TRUE(P().guardadas.empty());
        Sal();
    });
}

TEST_F(ImagenVentana, ADropOnTheTableOpensTheWindowWithThePicture) {
    P().ajenas["/lejos/gato.webp"] = Mapa(700, 500, 0x0A0B0C);
    int visitas = 0;
    P().ventanas["Personal"] = [&](Ventana&) {
        ++visitas;
        EXPECT_EQ(FicheroElegido(), "gato.bmp");
        Sal({true});
    };
    Mesa.DragDrop({{"/lejos/gato.webp"}, {}});
    EXPECT_EQ(visitas, 1);
    EXPECT_EQ(Gbl.FicheroImagen, "gato.bmp");
    Mesa.DragDrop({{"/lejos/carta.txt"}, {}});
    EXPECT_EQ(visitas, 1);
    EXPECT_EQ(P().avisos.back().titulo, NO_VALIDA);
    // With the recorder on the settings are closed, to a drop too; nothing waits for later.
    Gbl.GrabadoraEncendida = true;
    Mesa.DragDrop({{"/lejos/gato.webp"}, {}});
    Gbl.GrabadoraEncendida = false;
    EXPECT_EQ(visitas, 1);
    EXPECT_EQ(Gbl.ImagenTraida.Dibujo, nullptr);
    P().portapapelesFicheros = {"/lejos/gato.webp"};
    Mesa.KeyDown(86, 2);
    EXPECT_EQ(visitas, 2);
}

}  // namespace tessario
