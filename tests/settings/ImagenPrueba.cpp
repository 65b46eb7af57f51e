// SPDX-License-Identifier: GPL-3.0-or-later
// The choice of the picture in the settings window: lists, limits, zoom, grids.
#include <filesystem>

#include "apoyo/ImagenVentana.h"
#include "apoyo/MesaMoviles.h"
#include "rules/Despacho.h"
#include "session/Ampliacion.h"
#include "session/Configuracion.h"
#include "session/Montaje.h"
#include "settings/Cambios.h"
#include "settings/Imagen.h"
#include "table/Ordenes.h"

namespace tessario {

namespace fs = std::filesystem;
using namespace personal;

namespace {

constexpr const char* NO_VALIDA = "Imagen no válida";
constexpr const char* FUERA = "Imagen fuera de límites";
constexpr Color RESTO = 0x4060C0;

std::vector<std::string> Filas(const Lista& lista) {
    std::vector<std::string> filas;
    for (const Lista::Elemento& e : lista.Elementos) filas.push_back(e.Texto);
    return filas;
}

// A picture whose pixels tell their own place.
void PonDeMuestra(Superficie& s, i32 ancho, i32 alto) {
    s.TamanoLibre(ancho, alto);
    s.PonPicture(ImagenDeMuestra(ancho, alto));
}

std::string FilaElegida() {
    const i32 i = Lis_NroPiezas.ListIndex;
    return i < 0 ? "" : Lis_NroPiezas.Elementos[static_cast<std::size_t>(i)].Texto;
}

}  // namespace

// ---------------------------------------------------------------- opening

TEST_F(ImagenVentana, OpeningShowsThePuzzlesOwnFileWithoutAClick) {
    PonImagen("0.bmp", 800, 600);
    PonImagen("z.JPG", 640, 480);
    PonImagen("otro.png", 640, 480);
    PonImagen(".oculta.bmp", 640, 480);
    P().sonidos.clear();
    Visita([&] {
        EXPECT_EQ(Sonidos(), std::vector<int>{9});  // the command button's
        EXPECT_EQ(Filas(File1), (std::vector<std::string>{"0.bmp", "a.bmp", "z.JPG"}));
        EXPECT_EQ(FicheroElegido(), "a.bmp");
        EXPECT_EQ(Dir1.Path, P().carpeta + "Imagenes/");
        EXPECT_EQ(Drive1.Drive, P().carpeta + "Imagenes/");
        EXPECT_EQ(File1.MouseIcon, "ManoIndice");
        EXPECT_EQ(FilaElegida(), " 5 x  5 ->  25");
        Sal();
    });
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(ImagenVentana, AMissingFolderOpensTheProgramsOwn) {
    Gbl.CarpetaImagen = P().carpeta + "Fotos/";
    Visita([&] {
        EXPECT_EQ(Dir1.Path, P().carpeta);
        EXPECT_EQ(File1.ListCount(), 0);
        EXPECT_EQ(File1.MousePointer, PUNTERO_NORMAL);
        // The puzzle's picture is shown all the same, from the one on the table.
        EXPECT_EQ(PixelDe(Pic_MostrarImagen.Point(2, 2)) & 0x400000U, 0x400000U);
        EXPECT_EQ(Gbl.AnchoImagen, 640);
        Sal();
    });
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_EQ(Gbl.RutaImagen, P().carpeta + "Imagenes/a.bmp");
}

TEST_F(ImagenVentana, WithItsFileGoneAPuzzleCanStillBeCutAnew) {
    fs::remove(P().carpeta + "Imagenes/a.bmp");
    P().imagenes.clear();
    OlvidaImagen();  // a game that is laid keeps its picture in the zoomed size only
    Visita([&] {
        EXPECT_EQ(FicheroElegido(), "");
        Lis_NroPiezas.Selecciona(3);
        Sal({true});
    });
    EXPECT_EQ(Gbl.PiezasPorLado, 8);
    EXPECT_EQ(Pic_FonTamModi.Width(), 640);
    EXPECT_EQ(PixelDe(Pic_FonTamModi.Point(100, 50)), 0x400000U | (100U << 10) | 50U);
}

TEST_F(ImagenVentana, WithItsFileGoneTheBoardsPictureIsTheOneThatLiesOnTheTable) {
    PonDeslizantes(4, FONDO_IMAGEN);
    Gbl.RutaImagen = P().carpeta + "Imagenes/gone.bmp";
    Gbl.FicheroImagen = "gone.bmp";
    Gbl.AnchoImagen = 500;
    Gbl.AltoImagen = 400;
    PonDeMuestra(Pic_FonTamReal, 500, 400);
    CalculaTamanos();
    AmpliaImagen();
    PreparaJuego(true);
    OlvidaImagen();
    ASSERT_GT(Gbl.MargenX, 0);
    Visita([&] {
        EXPECT_EQ(FicheroElegido(), "");
        EXPECT_EQ(Pic_FonTamReal.Width(), 500);
        EXPECT_EQ(Pic_FonTamReal.Height(), 400);
        for (const Punto p : {Punto{0, 0}, Punto{499, 0}, Punto{123, 321}, Punto{499, 399}})
            EXPECT_EQ(PixelDe(Pic_FonTamReal.Point(p.x, p.y)), PixelDeMuestra(p.x, p.y)) << p.x;
        EXPECT_EQ(Gbl.AnchoImagen, 500);
        Sal();
        EXPECT_FALSE(Personal.Abierta);
    });
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(ImagenVentana, WithoutAnyPictureThereIsAnEmptyOneOfTheSmallestSize) {
    fs::remove(P().carpeta + "Imagenes/a.bmp");
    OlvidaImagen();
    Gbl.RutaImagen = " ";
    Gbl.FicheroImagen.clear();
    Gbl.ImagenValida = false;
    Visita([&] {
        EXPECT_EQ(File1.ListCount(), 0);
        EXPECT_EQ(Gbl.AnchoImagen, 320);
        EXPECT_EQ(Gbl.AltoImagen, 240);
        EXPECT_EQ(Pic_FonTamReal.Width(), 320);
        EXPECT_EQ(Pic_FonTamModi.Height(), 240);
        EXPECT_EQ(Pic_InfoTamBmp.NombreAccesible, "Tamaño: 320 por 240 píxels");
    });
}

TEST_F(ImagenVentana, AFirstStartTakesThePictureThatIsChosen) {
    PonImagen("b.bmp", 700, 500);
    Gbl = Bloque{};
    Gbl.CarpetaPrograma = P().carpeta;
    Gbl.CarpetaArchivo = P().carpeta + "Archivo/";
    Gbl.CarpetaImagenes = P().carpeta + "Imagenes/";
    Pantalla800();
    for (i16 i = 1; i <= 12; ++i) Gbl.BotonEstado[i] = BOTON_USABLE;
    P().ventanas["Personal"] = [&](Ventana&) {
        EXPECT_EQ(FicheroElegido(), "a.bmp");
        EligeFichero("b.bmp");
        Sal();
        EXPECT_FALSE(Personal.Abierta);
    };
    LeeAjustesJuego(FicheroDelJuego());
    ASSERT_EQ(P().avisos.size(), 1U);  // the missing file; no question
    EXPECT_EQ(Gbl.FicheroImagen, "b.bmp");
    EXPECT_EQ(Gbl.NumPiezas, 25);
    EXPECT_EQ(Gbl.Piezas.Superior(), 25);
    EXPECT_TRUE(Gbl.ImagenValida);
    EXPECT_TRUE(Gbl.PuzzleArchivable);
    EXPECT_NE(Contenido("TsR2133.ini").find("b.bmp"), std::string::npos);
    P().ventanas.clear();
    LeeAjustesJuego(FicheroDelJuego());
    EXPECT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(Gbl.FicheroImagen, "b.bmp");
}

TEST_F(ImagenVentana, ARecordOutOfLimitsOpensTheWindowOnItsPicture) {
    PonImagen("g.bmp", 1000, 700);
    Gbl.RutaImagen = P().carpeta + "Imagenes/g.bmp";
    Gbl.FicheroImagen = "g.bmp";
    Gbl.AnchoImagen = 1000;
    Gbl.AltoImagen = 700;
    Gbl.ZoomImagen = 110;
    ASSERT_EQ(GuardaPuzzle(FicheroDelJuego()), 0);
    int visitas = 0;
    P().ventanas["Personal"] = [&](Ventana&) {
        ++visitas;
        EXPECT_FALSE(Gbl.ImagenValida);
        EXPECT_EQ(Gbl.ZoomImagen, 100);
        EXPECT_EQ(FicheroElegido(), "g.bmp");
        Sal();
    };
    LeeAjustesJuego(FicheroDelJuego());
    EXPECT_EQ(visitas, 1);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_NE(Aviso().find("( 1100 x 770 pixels )"), std::string::npos);
    EXPECT_TRUE(Gbl.ImagenValida);
    EXPECT_EQ(Pic_FonTamModi.Width(), 1000);
    EXPECT_GE(Gbl.NumPiezas, 25);
}

TEST_F(ImagenVentana, ARecordOutOfLimitsBeginsAnewThoughNothingElseChanges) {
    Gbl.ZoomImagen = 200;  // 1280 x 960
    Gbl.SegundosJuego = 77;
    ASSERT_EQ(GuardaPuzzle(FicheroDelJuego()), 0);
    int visitas = 0;
    P().ventanas["Personal"] = [&](Ventana&) {
        ++visitas;
        EXPECT_EQ(FicheroElegido(), "a.bmp");
        Sal();
        EXPECT_FALSE(Personal.Abierta);
    };
    LeeAjustesJuego(FicheroDelJuego());
    EXPECT_EQ(visitas, 1);
    ASSERT_EQ(P().avisos.size(), 1U);  // of the picture; no question, there is no puzzle to lose
    EXPECT_EQ(Gbl.PiezasPorLado, 5);
    EXPECT_EQ(Gbl.ZoomImagen, 100);
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_TRUE(Gbl.PuzzleArchivable);
    EXPECT_EQ(Pic_FonTamModi.Width(), 640);
}

// ---------------------------------------------------------------- limits and zoom

TEST_F(ImagenVentana, ZoomAdaptsAPictureToTheLimits) {
    const struct {
        i32 ancho, alto;
        i16 zoom;
    } casos[] = {{160, 120, 205}, {2000, 1000, 50}, {320, 240, 100}, {1024, 768, 100},
                 {300, 300, 110}, {640, 239, 105},  {2048, 1536, 45}};
    Visita([&] {
        for (const auto& c : casos) {
            Elige(c.ancho, c.alto);
            EXPECT_EQ(Gbl.ZoomImagen, c.zoom) << c.ancho << "x" << c.alto;
            EXPECT_EQ(Spin1.Value, c.zoom);
            EXPECT_TRUE(Gbl.ImagenValida);
            ASSERT_EQ(P().avisos.size(), c.zoom == 100 ? 0U : 1U) << c.ancho << "x" << c.alto;
            if (c.zoom != 100) {
                EXPECT_EQ(P().avisos[0].titulo, FUERA);
                EXPECT_EQ(P().avisos[0].modo, 8);
                EXPECT_EQ(P().avisos[0].ayuda, 2115);
            }
        }
        Elige(160, 120);
        EXPECT_EQ(Aviso(),
                  "El   tamaño   de   la   imagen   que   acaba  de   seleccionar\r\n"
                  " ( 160 x 120 pixels ) no está dentro de los límites permitidos:\r\n\r\n"
                  "                 Entre  320  y  1.024  pixels de ancho.\r\n"
                  "                 Entre  240  y  768  pixels de alto.\r\n\r\n"
                  "Se ha modificado el Zoom para adaptar la imagen a dichos límites.");
        EXPECT_EQ(Pic_FonTamModi.Width(), 328);
        EXPECT_EQ(Pic_FonTamModi.Height(), 246);
    });
}

TEST_F(ImagenVentana, LimitsAreThoseOfTheSizeWithItsFractions) {
    // Little over the limits on both sides, and each of the two percentages as the smaller one.
    EXPECT_EQ(ZoomPara(1025, 800), 95);
    EXPECT_EQ(ZoomPara(1100, 769), 90);
    EXPECT_TRUE(ZoomValido(9846, 7384, ZoomPara(9846, 7384)));  // 5 percent
    EXPECT_EQ(ZoomPara(9846, 7384), 5);
    EXPECT_TRUE(ZoomValido(33, 25, ZoomPara(33, 25)));
    EXPECT_FALSE(ZoomValido(32, 25, ZoomPara(32, 25)));
    EXPECT_TRUE(ZoomValido(34, 25, 995));
    EXPECT_FALSE(ZoomValido(34, 25, 996));
    EXPECT_FALSE(ZoomValido(8000, 6000, 4));
    // 1024.1 and 768.6 pixels are above 1024 and 768.
    EXPECT_EQ(ZoomPara(418, 100), 245);
    EXPECT_FALSE(ZoomValido(418, 100, 245));
    EXPECT_EQ(ZoomPara(107, 252), 305);
    EXPECT_FALSE(ZoomValido(107, 252, 305));
    // 319.8 and 239.4 are below 320 and 240.
    EXPECT_FALSE(ZoomValido(123, 200, 260));
    EXPECT_FALSE(ZoomValido(300, 114, 210));
    EXPECT_TRUE(ZoomValido(128, 96, 250));   // 320 x 240
    EXPECT_TRUE(ZoomValido(512, 384, 200));  // 1024 x 768
}

TEST_F(ImagenVentana, ARefusedPictureLeavesTheZoomOfThePuzzleInPlay) {
    Gbl.ZoomImagen = 120;
    Visita([&] {
        for (const Punto& t : {Punto{2000, 700}, Punto{100, 1000}}) {
            Elige(t.x, t.y);
            EXPECT_FALSE(Gbl.ImagenValida) << t.x;
            EXPECT_EQ(Gbl.ZoomImagen, 120) << t.x;
            EXPECT_EQ(Spin1.Value, 120) << t.x;
        }
        Elige(640, 480);
        EXPECT_EQ(Spin1.Value, 100);
        Sal({false});
    });
    EXPECT_EQ(Gbl.ZoomImagen, 120);
}

TEST_F(ImagenVentana, PicturesThatNoZoomFitsAreRefused) {
    Visita([&] {
        for (const Punto& t :
             {Punto{2000, 700}, Punto{100, 1000}, Punto{640, 769}, Punto{20, 20}}) {
            Spin1.Value = 55;
            Elige(t.x, t.y);
            EXPECT_FALSE(Gbl.ImagenValida) << t.x;
            EXPECT_EQ(Gbl.ZoomImagen, 100) << t.x;  // that of the puzzle in play
            EXPECT_EQ(Spin1.Value, 100) << t.x;
            EXPECT_EQ(Sonidos(), (std::vector<int>{6, 11})) << t.x;
            ASSERT_EQ(P().avisos.size(), 1U) << t.x;
            EXPECT_EQ(P().avisos[0].titulo, NO_VALIDA);
            EXPECT_EQ(P().avisos[0].modo, 9);
        }
        Elige(2000, 700);
        EXPECT_EQ(Aviso(),
                  "La  imagen  que  acaba  de  seleccionar  ( 2000 x 700 pixels)\r\n"
                  "no puede ser utilizada en Tessario.  Aunque se le aplique el máximo   valor   "
                  "del   Zoom   no  entra  dentro  de  los  límites permitidos:\r\n\r\n"
                  "                 Entre  320  y  1.024  pixels de ancho.\r\n"
                  "                 Entre  240  y  768  pixels de alto.\r\n\r\n"
                  "Seleccione otra imagen que sirva de fondo para el puzzle.");
        EXPECT_EQ(Pic_InfoTamBmp.NombreAccesible, "Tamaño: 2000 por 700 píxels");
        Sal();
        EXPECT_TRUE(Personal.Abierta);
        EXPECT_EQ(P().avisos.size(), 2U);  // tried once more
        Elige(640, 480);
        EXPECT_TRUE(Gbl.ImagenValida);
        Sal({false});
        EXPECT_FALSE(Personal.Abierta);
    });
    EXPECT_EQ(Gbl.FicheroImagen, "a.bmp");
    EXPECT_TRUE(Gbl.ImagenValida);
}

TEST_F(ImagenVentana, HalvesOfThePercentageGoToTheEvenNumber) {
    // 32000 / 256 + 1 = 126; 32000 / 317.5 has no half; 24000 / 192 + 1 = 126.
    EXPECT_EQ(ZoomPara(256, 300), 130);
    // 100 * 240 / 160 + 1 = 151; 32000 / 128 + 1 = 251.
    EXPECT_EQ(ZoomPara(128, 160), 255);
    // 102400 / 1600 - 1 = 63, 76800 / 2048 - 1 = 36.5 goes to 36, and to 35 in steps of 5.
    EXPECT_EQ(ZoomPara(1600, 2048), 35);
    // 76800 / 1024 - 1 = 74, 102400 / 1280 - 1 = 79.
    EXPECT_EQ(ZoomPara(1280, 1024), 70);
    // 32000 / 64 + 1 = 501, 24000 / 75 + 1 = 321.
    EXPECT_EQ(ZoomPara(64, 75), 505);
    // 203.53 and 204.39, which come to 204: one more would be 210.
    EXPECT_EQ(ZoomPara(158, 300), 205);
    EXPECT_EQ(ZoomPara(400, 118), 205);
    // 32000 / 320.0 is not asked for; 24000 / 96 + 1 = 251; of 250.5 the even 250 would be taken.
    EXPECT_EQ(ZoomPara(400, 96), 255);
}

TEST_F(ImagenVentana, TheSpinnerRefusesWhatPassesTheLimits) {
    Visita([&] {
        P().sonidos.clear();
        Spin1.Pon(160);
        EXPECT_EQ(Gbl.ZoomImagen, 160);  // 1024 x 768
        EXPECT_TRUE(P().avisos.empty());
        EXPECT_EQ(Pic_FonTamModi.Width(), 1024);
        Spin1.Pon(165);
        EXPECT_EQ(Gbl.ZoomImagen, 160);
        EXPECT_EQ(Spin1.Value, 160);
        EXPECT_EQ(Sonidos(), std::vector<int>{11});
        ASSERT_EQ(P().avisos.size(), 1U);
        EXPECT_EQ(P().avisos[0].titulo, FUERA);
        EXPECT_EQ(P().avisos[0].modo, 6);
        EXPECT_EQ(P().avisos[0].ayuda, 2115);
        EXPECT_EQ(Aviso(),
                  "Si  se  aplica este zoom  a  la  imagen  que  ha  seleccionado\r\n"
                  "se superan los límites permitidos:\r\n\r\n"
                  "                 Entre  320  y  1.024  pixels de ancho\r\n"
                  "                 Entre  240  y  768  pixels de alto");
        Spin1.Pon(50);
        EXPECT_EQ(Gbl.ZoomImagen, 50);  // 320 x 240
        Spin1.Pon(45);
        EXPECT_EQ(Gbl.ZoomImagen, 50);
        Sal({false});
    });
    EXPECT_EQ(Gbl.ZoomImagen, 100);
}

TEST_F(ImagenVentana, AHeldSpinnerOnlyCounts) {
    Visita([&] {
        Spin1.Pulsado = true;
        Spin1.Pon(105);
        Spin1.Pon(110);
        EXPECT_EQ(Gbl.ZoomImagen, 110);
        EXPECT_EQ(Pic_FonTamModi.Width(), 640);
        Spin1.Pulsado = false;
        Spin1.Change();
        EXPECT_EQ(Pic_FonTamModi.Width(), 704);
        EXPECT_EQ(Pic_InfoTamBmp.NombreAccesible, "Tamaño: 704 por 528 píxels");
        Sal({false});
    });
}

TEST_F(ImagenVentana, AnotherPictureTakesTheSpinnerBackTo100InSilence) {
    Visita([&] {
        Spin1.Pon(140);
        Elige(640, 480);
        EXPECT_EQ(Spin1.Value, 100);
        EXPECT_EQ(Gbl.ZoomImagen, 100);
        EXPECT_TRUE(P().avisos.empty());
        EXPECT_EQ(Sonidos(), std::vector<int>{6});
        Sal({false});
    });
}

TEST_F(ImagenVentana, TheSlidingPuzzleTakesAnySizeAt100) {
    Deslizantes(4);
    PonImagen("larga.bmp", 3000, 90);
    PonImagen("mini.bmp", 10, 10);
    Visita([&] {
        Sel(2).Pon(1);
        for (const char* nombre : {"larga.bmp", "mini.bmp"}) {
            EligeFichero(nombre);
            EXPECT_EQ(Gbl.ZoomImagen, 100);
            EXPECT_TRUE(Gbl.ImagenValida);
            EXPECT_EQ(Gbl.FicheroImagen, nombre);
        }
        EXPECT_TRUE(P().avisos.empty());
        Sal({false});
    });
}

// ---------------------------------------------------------------- files that fail

TEST_F(ImagenVentana, AFileThatCannotBeReadLeavesThePictureInUse) {
    const std::string mala = PonImagen("mala.bmp", 640, 480);
    PonImagen("va.bmp", 800, 600);
    P().erroresImagen[mala] = 481;
    Visita([&] {
        fs::remove(P().carpeta + "Imagenes/va.bmp");  // it was there when it was listed
        P().imagenes.erase(P().carpeta + "Imagenes/va.bmp");
        for (const char* nombre : {"mala.bmp", "va.bmp"}) {
            P().sonidos.clear();
            EligeFichero(nombre);
            EXPECT_EQ(Sonidos(), (std::vector<int>{6, 11}));
            EXPECT_EQ(Gbl.RutaImagen, P().carpeta + "Imagenes/a.bmp");
            EXPECT_EQ(Gbl.AnchoImagen, 640);
            EXPECT_TRUE(Gbl.ImagenValida);
        }
        Sal();
        EXPECT_FALSE(Personal.Abierta);
    });
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(ImagenVentana, ALargePictureIsShownEarlyAndGoesAgainWhenTheWholeCannotBeRead) {
    MovilesDe("a.bmp", 640, 480);
    const std::string grande = PonImagen("b.bmp", 900, 600, 0x30C060);
    Crea("Imagenes/b.bmp", std::string(600 * 1024, 'x'));
    Visita([&] {
        const auto antes = Pic_MostrarImagen.Dibujo().Pixeles;
        int adelantos = 0;
        P().alPresentar = [&] {
            const Superficie& vista = Pic_MostrarImagen;
            if (vista.Fila(vista.Height() / 2)[vista.Width() / 2] != 0x30C060U) return;
            ++adelantos;
            EXPECT_TRUE(P().cargadas.empty() || P().cargadas.back() != grande)
                << "read whole later";
            P().erroresImagen[grande] = 481;  // its end turns out to be damaged
        };
        EligeFichero("b.bmp");
        P().alPresentar = nullptr;
        EXPECT_EQ(adelantos, 1);
        EXPECT_EQ(Pic_MostrarImagen.Dibujo().Pixeles, antes) << "the picture in use is on show";
        Sal();
    });
    EXPECT_EQ(Gbl.FicheroImagen, "a.bmp");
}

TEST_F(ImagenVentana, AFolderWithoutPermissionIsEmptyAndHarmless) {
    fs::create_directories(P().carpeta + "Cerrada");
    fs::permissions(P().carpeta + "Cerrada", fs::perms::none);
    Visita([&] {
        Dir1.Path = P().carpeta + "Cerrada/";
        Dir1.Change();
        EXPECT_EQ(File1.ListCount(), 0);
        EXPECT_EQ(Gbl.FicheroImagen, "a.bmp");
        Sal();
        EXPECT_FALSE(Personal.Abierta);
    });
    fs::permissions(P().carpeta + "Cerrada", fs::perms::owner_all);
}

TEST_F(ImagenVentana, AFolderChosenListsItsPicturesAndTakesTheFirst) {
    const std::string otra = Crea("Otra/m.bmp", "x");
    Crea("Otra/k.BMP", "x");
    P().imagenes[otra] = Mapa(320, 240);
    P().imagenes[P().carpeta + "Otra/k.BMP"] = Mapa(400, 300);
    Visita([&] {
        P().sonidos.clear();
        Dir1.Path = P().carpeta + "Otra/";
        Dir1.Change();
        EXPECT_EQ(Sonidos(), (std::vector<int>{6, 6}));
        EXPECT_EQ(FicheroElegido(), "k.BMP");
        EXPECT_EQ(Gbl.RutaImagen, P().carpeta + "Otra/k.BMP");
        EXPECT_EQ(Gbl.CarpetaImagen, P().carpeta + "Otra/");
        EXPECT_EQ(Gbl.UnidadImagen, Drive1.Drive);
        EXPECT_FALSE(Gbl.UnidadImagen.empty());
        EXPECT_EQ(fs::current_path().string() + "/", P().carpeta + "Otra/");
        // Back through the list of places.
        Drive1.Drive = P().carpeta + "Imagenes/";
        Drive1.Change();
        EXPECT_EQ(Dir1.Path, P().carpeta + "Imagenes/");
        EXPECT_EQ(FicheroElegido(), "a.bmp");
        // A medium that has gone.
        Drive1.Drive = P().carpeta + "Nada/";
        Drive1.Change();
        EXPECT_EQ(Dir1.Path, P().carpeta + "Imagenes/");
        EXPECT_EQ(Drive1.Drive, P().carpeta + "Imagenes/");
        File1_DblClick();
        Sal({false});
    });
    EXPECT_NE(fs::current_path().string() + "/", P().carpeta + "Imagenes/");
}

TEST_F(ImagenVentana, FiveThousandFilesAreListedInOrder) {
    for (int i = 0; i < 5000; ++i)
        Crea("Muchas/f" + std::to_string(10000 + (i * 7919) % 5000) + ".jpg", "");
    Visita([&] {
        Dir1.Path = P().carpeta + "Muchas/";
        Dir1.Change();
        EXPECT_EQ(File1.ListCount(), 5000);
        EXPECT_EQ(FicheroElegido(), "f10000.jpg");
        EXPECT_EQ(File1.Elementos.back().Texto, "f14999.jpg");
        Sal();
    });
}

TEST_F(ImagenVentana, APictureIsReadOnceWhileItIsShown) {
    PonImagen("b.bmp", 800, 600);
    Visita([&] {
        P().cargadas.clear();
        EligeFichero("b.bmp");
        Lis_NroPiezas.Selecciona(1);
        Spin1.Pon(105);
        EXPECT_EQ(P().cargadas.size(), 1U);
        Sal({false});
    });
}

// ---------------------------------------------------------------- preview

TEST_F(ImagenVentana, ThePreviewKeepsTheProportions) {
    Visita([&] {
        const auto dentro = [](i32 x, i32 y) { return Pic_MostrarImagen.Point(x, y) == 0xFF0000U; };
        Gbl.ColorFondo = 0x123456;
        Elige(640, 480);  // the whole box of 236 x 176
        EXPECT_TRUE(dentro(2, 2) && dentro(237, 177));
        EXPECT_FALSE(dentro(1, 2) || dentro(2, 1) || dentro(238, 177) || dentro(237, 178));
        EXPECT_EQ(Pic_MostrarImagen.Point(0, 0), 0x123456U);
        Elige(1000, 500);  // 236 x 118, 31 rows from the top
        EXPECT_TRUE(dentro(2, 31) && dentro(237, 148));
        EXPECT_FALSE(dentro(2, 30) || dentro(2, 149));
        Elige(500, 500);  // 176 x 176, 32 columns from the left
        EXPECT_TRUE(dentro(32, 2) && dentro(207, 177));
        EXPECT_FALSE(dentro(31, 2) || dentro(208, 2));
        Sal({false});
    });
}

TEST_F(ImagenVentana, ThePictureIsShownAgainstTheScreen) {
    Visita([&] {
        Elige(400, 300);  // half of 800 x 600 either way
        EXPECT_EQ(Pic_TamRelIma.Point(39, 29), 0xFF0000U);
        EXPECT_EQ(Pic_TamRelIma.Point(40, 29), RESTO);
        EXPECT_EQ(Pic_TamRelIma.Point(39, 30), RESTO);
        for (const Punto p :
             {Punto{40, 0}, Punto{79, 0}, Punto{0, 30}, Punto{0, 59}, Punto{79, 59}})
            EXPECT_EQ(Pic_TamRelIma.Point(p.x, p.y), RESTO) << p.x << ", " << p.y;
        Sal({false});
    });
}

// ---------------------------------------------------------------- shapes and grids

TEST_F(ImagenVentana, ProportionsForbidShapes) {
    const struct {
        i32 ancho, alto;
        bool curvados, irregulares, triangulos;
    } casos[] = {{640, 480, true, true, true},    {630, 300, true, true, true},
                 {650, 300, true, false, true},   {720, 300, true, false, true},
                 {730, 300, false, false, true},  {787, 300, false, false, true},
                 {790, 300, false, false, false}, {357, 750, true, true, true},
                 {355, 750, true, false, true},   {330, 768, true, false, true}};
    Visita([&] {
        for (const auto& c : casos) {
            Elige(c.ancho, c.alto);
            EXPECT_EQ(Pic_TipPuz[1].Enabled, c.curvados) << c.ancho;
            EXPECT_EQ(Pic_TipPuz[7].Enabled, c.curvados) << c.ancho;
            EXPECT_EQ(Pic_TipPuz[2].Enabled, c.irregulares) << c.ancho;
            EXPECT_EQ(Pic_TipPuz[3].Enabled, c.triangulos) << c.ancho;
            for (const i32 siempre : {0, 4, 5, 6}) EXPECT_TRUE(Pic_TipPuz[siempre].Enabled);
            // The hand over what can be chosen and is not the one in force.
            for (const i32 f : {1, 2, 3, 7})
                EXPECT_EQ(Pic_TipPuz[f].MousePointer == PUNTERO_PROPIO, Pic_TipPuz[f].Enabled) << f;
        }
        Sal({false});
    });
}

TEST_F(ImagenVentana, AShapeThatThePictureForbidsGivesWayInSilence) {
    for (const int forma : {1, 2, 3, 7, 4}) {
        Visita([&] {
            Pulsa(Pic_TipPuz[forma]);
            EXPECT_EQ(Gbl.FormaPiezas, forma);
            Elige(1020, 250);
            EXPECT_EQ(Gbl.FormaPiezas, forma == 4 ? 4 : 0);
            EXPECT_EQ(Gbl.PiezasPorCelda, forma == 4 ? 2 : 1);
            EXPECT_EQ(Sonidos(), std::vector<int>{6});  // the list's own
            Pulsa(Pic_TipPuz[3]);                       // disabled: nothing happens
            EXPECT_NE(Gbl.FormaPiezas, 3);
            P().sonidos.clear();
            Pulsa(Pic_TipPuz[6]);  // the player's own choice sounds again
            EXPECT_EQ(Sonidos(), std::vector<int>{6});
            Sal({false});
        });
    }
}

TEST_F(ImagenVentana, GridsAreThoseWhoseCellsHaveTheRightSize) {
    Visita([&] {
        // 640 x 480: 640 / n is at most 140 from 5 on; 480 / n at least 25 up to 19.
        auto filas = Filas(Lis_NroPiezas);
        ASSERT_EQ(filas.size(), 15U);
        EXPECT_EQ(filas.front(), " 5 x  5 ->  25");
        EXPECT_EQ(filas.back(), "19 x 19 -> 361");
        Pulsa(Pic_TipPuz[3]);  // triangles: from 50, up to 15
        filas = Filas(Lis_NroPiezas);
        ASSERT_EQ(filas.size(), 5U);
        EXPECT_EQ(filas.front(), " 5 x  5 x 4 -> 100");
        EXPECT_EQ(filas.back(), " 9 x  9 x 4 -> 324");
        Pulsa(Pic_TipPuz[5]);
        EXPECT_EQ(Filas(Lis_NroPiezas).back(), "19 x 19 x 2 -> 722");
        Sal({false});
    });
    Deslizantes(4);
    Visita([&] {
        EXPECT_EQ(Filas(Lis_NroPiezas),
                  (std::vector<std::string>{" 3 x  3 ->   8", " 4 x  4 ->  15", " 5 x  5 ->  24",
                                            " 6 x  6 ->  35", " 7 x  7 ->  48", " 8 x  8 ->  63"}));
        EXPECT_EQ(FilaElegida(), " 4 x  4 ->  15");
    });
}

TEST_F(ImagenVentana, TheNearestGridIsChosenAndOfTwoTheFiner) {
    Visita([&] {
        Lis_NroPiezas.Selecciona(0);
        Elige(1024, 768);  // from 8 on
        EXPECT_EQ(FilaElegida(), " 8 x  8 ->  64");
        EXPECT_EQ(Gbl.PiezasPorLado, 8);
        EXPECT_EQ(Gbl.AnchoCelda, 128);
        EXPECT_EQ(Gbl.NumPiezas, 64);
        Lis_NroPiezas.Selecciona(Lis_NroPiezas.ListCount() - 1);
        EXPECT_EQ(Gbl.PiezasPorLado, 20);
        Elige(400, 300);  // 3 to 12
        EXPECT_EQ(Gbl.PiezasPorLado, 12);
        EXPECT_EQ(FilaElegida(), "12 x 12 -> 144");
        Sal({false});
    });
    // 1020 x 240 has cells up to 140 wide from 8 on, and at least 25 high up to 9: of 8.5 the 9.
    Gbl.PiezasPorLado = 8;
    Visita([&] {
        Elige(1020, 240);
        EXPECT_EQ(Filas(Lis_NroPiezas).size(), 2U);
        EXPECT_EQ(Gbl.PiezasPorLado, 8);
        Sal({false});
    });
}

TEST_F(ImagenVentana, WithoutAnyGridThreeIsLeft) {
    Visita([&] {
        Pulsa(Pic_TipPuz[3]);
        Elige(1020, 400);  // triangles: 8 columns at least, 8 rows at most
        EXPECT_EQ(Filas(Lis_NroPiezas), std::vector<std::string>{" 8 x  8 x 4 -> 256"});
        EXPECT_EQ(FilaElegida(), " 8 x  8 x 4 -> 256");
        EXPECT_EQ(Lis_NroPiezas.MouseIcon, "ManoIndice");
        EXPECT_EQ(Lis_NroPiezas.MousePointer, PUNTERO_PROPIO);
        Elige(1020, 390);
        EXPECT_EQ(Lis_NroPiezas.ListCount(), 0);
        EXPECT_EQ(Lis_NroPiezas.ListIndex, -1);
        EXPECT_EQ(Lis_NroPiezas.MousePointer, PUNTERO_NORMAL);
        EXPECT_EQ(Gbl.PiezasPorLado, 3);
        Sal({false});
    });
}

TEST_F(ImagenVentana, ANumberOfPiecesIsTakenWithItsSound) {
    Visita([&] {
        P().sonidos.clear();
        Lis_NroPiezas.Selecciona(1);
        EXPECT_EQ(Gbl.PiezasPorLado, 6);
        EXPECT_EQ(Gbl.AnchoCelda, 106);
        EXPECT_EQ(Sonidos(), std::vector<int>{6});
        Elige(800, 600);
        P().sonidos.clear();
        Lis_NroPiezas.Selecciona(3);  // behind a picture's choice as well
        EXPECT_EQ(Sonidos(), std::vector<int>{6});
        Sal({false});
    });
}

}  // namespace tessario
