// SPDX-License-Identifier: GPL-3.0-or-later
// Opening and leaving the settings window, in the three games.
#include <algorithm>
#include <filesystem>
#include <functional>
#include <string_view>

#include "apoyo/PersonalMontada.h"
#include "core/Avisos.h"
#include "core/Cadenas.h"
#include "core/Errores.h"
#include "panel/Grabadora.h"
#include "rules/Despacho.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"
#include "session/Montaje.h"
#include "settings/Imagen.h"
#include "settings/Personal.h"
#include "start/Arranque.h"
#include "table/Ordenes.h"

namespace tessario {

namespace fs = std::filesystem;
using namespace personal;

namespace {

constexpr const char* PARAMETROS = "Parámetros del puzzle";
constexpr const char* MODELO = "Nuevo modelo de Tangram";
constexpr const char* JUEGO = "Lista 'JUEGO ACTUAL'";

std::vector<Pieza> Piezas() {
    return {Gbl.Piezas.begin(), Gbl.Piezas.end()};
}

Rect Sitio(const Control& c) {
    return RectDe(c.Left, c.Top, c.Width(), c.Height());
}

}  // namespace

class PersonalVentana : public PersonalMontada {
protected:
    bool HayCopia() { return fs::exists(P().carpeta + "Archivo/TESSA33.CSE"); }
    void NiPreguntaNiCopia() {
        EXPECT_TRUE(P().avisos.empty());
        EXPECT_FALSE(HayCopia());
    }
};

// ---------------------------------------------------------------- lay-out

TEST_F(PersonalVentana, TheJigsawHasItsPanelsInTheirPlaces) {
    MovilesDe("a.bmp", 640, 480);
    Visita([&] {
        EXPECT_EQ(Personal.Width(), 656);
        EXPECT_EQ(Personal.Height(), 552);
        EXPECT_EQ(Personal.Left, 72);
        EXPECT_EQ(Personal.Top, 24);
        EXPECT_EQ(Sitio(Pic_JuegoActual), RectDe(14, 6, 627, 58));
        EXPECT_EQ(Bul(22).Left, 230);
        EXPECT_EQ(Sitio(Pic_ImagenPuzz), RectDe(14, 77, 256, 370));
        EXPECT_EQ(Sitio(Pic_ZoomImagen), RectDe(14, 457, 256, 85));
        EXPECT_EQ(Sitio(Pic_TiposPuz), RectDe(285, 76, 194, 118));
        EXPECT_EQ(Sitio(Pic_NroPiezas), RectDe(285, 205, 194, 155));
        EXPECT_EQ(Bul(2).Top, 376);
        EXPECT_EQ(Bul(3).Top, 419);
        EXPECT_EQ(Sitio(Pic_Colorfon), RectDe(285, 457, 194, 85));
        EXPECT_EQ(Sitio(Pic_FactorPegado), RectDe(494, 76, 147, 188));
        EXPECT_EQ(Sitio(Pot(2)), RectDe(8, 28, 115, 20));  // clear of the panel's title
        EXPECT_EQ(Sitio(Pic_BotAyuda), RectDe(499, 487, 48, 48));
        EXPECT_EQ(Sitio(Pic_BotSalir), RectDe(588, 487, 48, 48));
        EXPECT_EQ(Pot(1).Top, 388);
        EXPECT_FALSE(Sel(1).Visible || Sel(2).Visible || Pic_Colorpza.Visible || Bul(4).Visible);
        EXPECT_FALSE(Lis_Modelos.Visible);
        EXPECT_TRUE(File1.Enabled && Dir1.Enabled && Drive1.Enabled);
        // Which tile the exit button shows: (343, 49) of the buttons' picture.
        EXPECT_EQ(PixelDe(Pic_BotSalir.Point(0, 0)) & 0xFFFFFU, (343U << 8) | 49U);
    });
    NiPreguntaNiCopia();
}

TEST_F(PersonalVentana, TheSlidingPuzzleHasItsPanelsInTheirPlaces) {
    Deslizantes(4);
    Visita([&] {
        EXPECT_EQ(Personal.Height(), 511);
        EXPECT_EQ(Sitio(Sel(2)), RectDe(14, 77, 256, Sel(2).Height()));
        EXPECT_EQ(Sitio(Pic_ImagenPuzz), RectDe(14, 127, 256, 370));
        EXPECT_EQ(Sitio(Pic_NroPiezas), RectDe(285, 76, 194, 125));
        EXPECT_EQ(Bul(3).Top, 243);
        EXPECT_EQ(Sitio(Pic_Colorfon), RectDe(285, 311, 194, 85));
        EXPECT_EQ(Sitio(Pic_Colorpza), RectDe(285, 411, 194, 85));
        EXPECT_EQ(Pic_BotSalir.Top, 446);
        EXPECT_FALSE(Sel(1).Visible || Pic_ZoomImagen.Visible || Pic_TiposPuz.Visible);
        EXPECT_FALSE(Bul(2).Visible || Bul(4).Visible || Pic_FactorPegado.Visible);
        EXPECT_FALSE(File1.Enabled || Dir1.Enabled || Drive1.Enabled);
        EXPECT_EQ(Sel(2).Value, 2);
        EXPECT_EQ(Sel(2).Textos,
                  (std::vector<std::string>{"Seleccionar una imagen", "Números del  1  al  15",
                                            "Letras de la  A  a la  Ñ"}));
    });
    NiPreguntaNiCopia();
}

TEST_F(PersonalVentana, TheTangramHasItsPanelsInTheirPlaces) {
    TangramDe({"Barco"});
    Visita([&] {
        EXPECT_EQ(Personal.Height(), 505);
        EXPECT_EQ(Sitio(Pic_ImagenPuzz), RectDe(14, 127, 256, 365));
        EXPECT_EQ(Pic_MostrarImagen.Top, 176);
        EXPECT_EQ(Bul(3).Top, 84);
        EXPECT_EQ(Bul(4).Top, 132);
        EXPECT_EQ(Pic_Colorfon.Top, 185);
        EXPECT_EQ(Pic_Colorpza.Top, 285);
        EXPECT_EQ(Pot(1).Top, 374);
        EXPECT_EQ(Pic_BotSalir.Top, 440);
        EXPECT_TRUE(Sel(1).Visible && Lis_Modelos.Visible && Pic_FactorPegado.Visible);
        EXPECT_FALSE(Sel(2).Visible || File1.Visible || Pic_NroPiezas.Visible || Bul(2).Visible);
        EXPECT_FALSE(Pic_BotPortapapeles.Visible);
    });
    NiPreguntaNiCopia();
}

TEST_F(PersonalVentana, NothingStandsOutsideTheWindowOrItsPanel) {
    for (const int juego : {21, 22, 23}) {
        if (juego == 21) MovilesDe("a.bmp", 640, 480);
        if (juego == 22) Deslizantes(5);
        if (juego == 23) TangramDe({"Barco"});
        Visita([&] {
            for (const Control* c : Personal.Controles) {
                if (!c->Visible || (c->Contenedor && !c->Contenedor->Visible)) continue;
                const i32 ancho = c->Contenedor ? c->Contenedor->Width() : Personal.Width();
                const i32 alto = c->Contenedor ? c->Contenedor->Height() : Personal.Height();
                EXPECT_GE(c->Left, 0) << juego << c->Nombre;
                EXPECT_GE(c->Top, 0) << juego << c->Nombre;
                EXPECT_LE(c->Left + c->Width(), ancho) << juego << c->Nombre;
                EXPECT_LE(c->Top + c->Height(), alto) << juego << c->Nombre;
            }
        });
    }
}

TEST_F(PersonalVentana, EveryControlThatTabReachesHasAnAccessibleName) {
    TangramDe({"Barco"});
    Visita([&] {
        for (const Control* c : Personal.Controles) {
            if (!c->TabStop) continue;
            const auto* b = dynamic_cast<const Buleano*>(c);
            const auto* s = dynamic_cast<const Selector*>(c);
            const auto* p = dynamic_cast<const Potenciometro*>(c);
            const bool rotulo = (b && !b->Caption.empty()) || (s && !s->Caption.empty()) ||
                                (p && !p->Caption.empty());
            EXPECT_TRUE(rotulo || !c->NombreAccesible.empty()) << c->Nombre;
        }
    });
}

// ---------------------------------------------------------------- leaving

TEST_F(PersonalVentana, LeavingWithNothingChangedDoesNothing) {
    MovilesDe("a.bmp", 640, 480);
    Pon(1, -120, 30);  // a coordinate that the record's columns cut
    const auto antes = Piezas();
    const Imagen zoom = Pic_FonTamModi.Image();
    Gbl.SegundosJuego = 77;
    Personal.MousePointer = PUNTERO_RELOJ;
    Visita([&] {
        EXPECT_TRUE(HayCopia());
        EXPECT_EQ(Personal.MousePointer, PUNTERO_NORMAL);
        Sal();
        EXPECT_FALSE(Personal.Abierta);
    });
    NiPreguntaNiCopia();
    EXPECT_FALSE(Gbl.ParametrosCambiados || Gbl.ColoresCambiados);
    EXPECT_EQ(Piezas(), antes);
    EXPECT_EQ(Gbl.SegundosJuego, 77);
    EXPECT_EQ(Pic_FonTamModi.Image()->Pixeles, zoom->Pixeles);
    EXPECT_EQ(Gbl.AnchoImagen, 640);
}

TEST_F(PersonalVentana, ColoursAreAppliedWithoutAQuestionOrAShuffle) {
    MovilesDe("a.bmp", 640, 480);
    Pon(7, 333, 222);
    const auto antes = Piezas();
    Visita([&] {
        Raton.Pulsa(PunteroPrueba::Origen(ColFon.Seleccion).x + 2 + 150 + 25,
                    PunteroPrueba::Origen(ColFon.Seleccion).y + 2);
        Sal();
    });
    NiPreguntaNiCopia();
    EXPECT_EQ(Gbl.ColorFondo, 0x00FF00U);
    EXPECT_EQ(Gbl.ColorContraste, 0U);
    EXPECT_EQ(Piezas(), antes);
    EXPECT_EQ(Pic_Imagen.Point(790, 590), 0x00FF00U);
    EXPECT_FALSE(Gbl.ColoresCambiados) << "the next record that is read lays its pieces";
}

TEST_F(PersonalVentana, EachOfWhatIsOnlyRedrawnIsToldByItself) {
    TangramDe({"Barco"});
    const struct {
        const char* que;
        std::function<void()> cambia;
        bool redibuja;
    } casos[] = {
        {"nothing", [] {}, false},
        {"background, of the same contrast", [] { ColFon.Seleccion.KeyDown(39, 0); }, true},
        {"background, of another contrast", [] { ColFon.Seleccion.MouseDown(1, 0, 2, 2); }, true},
        {"pieces", [] { ColPza.Seleccion.KeyDown(40, 0); }, true},
        {"border", [] { Bul(3).Pon(!Bul(3).Value); }, true},
        {"factor", [] { Pot(2).Pon(static_cast<i16>(Pot(2).Value + 1)); }, true},
        {"attraction", [] { Bul(4).Pon(!Bul(4).Value); }, false},
        {"sound", [] { Bul(1).Pon(!Bul(1).Value); }, false},
        {"hints", [] { Bul(5).Pon(!Bul(5).Value); }, false},
        {"speed", [] { Pot(1).Pon(49); }, false},
    };
    for (const auto& c : casos) {
        Visita([&] {
            const Color contraste = Gbl.ColorContraste;
            c.cambia();
            if (std::string_view(c.que).ends_with("same contrast")) {
                ASSERT_EQ(Gbl.ColorContraste, contraste);
            }
            Sal();
            EXPECT_FALSE(Personal.Abierta) << c.que;
            EXPECT_EQ(bool{Gbl.ColoresCambiados}, c.redibuja) << c.que;
            EXPECT_FALSE(Gbl.ParametrosCambiados) << c.que;
        });
    }
    NiPreguntaNiCopia();
}

TEST_F(PersonalVentana, AFinishedPuzzleStaysFinishedInItsNewColours) {
    MovilesDe("a.bmp", 640, 480);
    for (i16 i = 1; i <= 25; ++i) Pon(i, Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien);
    EntraEnCompleto();
    Visita([&] {
        ColFon.Seleccion.MouseDown(1, 0, 2, 2);  // white
        Sal();
    });
    NiPreguntaNiCopia();
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_EQ(Pic_Imagen.Point(790, 590), 0xFFFFFFU);
    for (i32 y = 0; y < Gbl.AltoPuzzle; ++y)
        for (i32 x = 0; x < Gbl.AnchoPuzzle; ++x)
            ASSERT_EQ(Pic_Trabajo.Point(x, y), Pic_FonTamModi.Point(x, y)) << x << ", " << y;
}

TEST_F(PersonalVentana, FactorAloneNeitherEndsTheGameNorCostsTheHistory) {
    MovilesDe("a.bmp", 640, 480);
    Gbl.PuzzleArchivable = true;
    const auto antes = Piezas();
    Visita([&] {
        Pot(2).Pon(80);
        Sal();
    });
    NiPreguntaNiCopia();
    EXPECT_EQ(Gbl.FactorAtraccion, 80);
    EXPECT_TRUE(Gbl.PuzzleArchivable);
    EXPECT_EQ(Piezas(), antes);
}

TEST_F(PersonalVentana, FactorWithARestartKeepsTheNewPuzzleOutOfTheHistory) {
    MovilesDe("a.bmp", 640, 480);
    for (const bool conFactor : {true, false}) {
        Gbl.PuzzleArchivable = true;
        Visita([&] {
            if (conFactor) Pot(2).Pon(81);
            Bul(2).Pon(!Gbl.PermitirGiro);
            Sal({true});
        });
        EXPECT_TRUE(Gbl.ParametrosCambiados);
        EXPECT_EQ(static_cast<bool>(Gbl.PuzzleArchivable), !conFactor);
    }
}

TEST_F(PersonalVentana, EachParameterAsksAndACancelBringsItBack) {
    MovilesDe("a.bmp", 640, 480);
    PonImagen("b.bmp", 800, 600);
    const std::function<void()> cambios[] = {
        [&] { EligeFichero("b.bmp"); }, [&] { Pulsa(Pic_TipPuz[4]); },
        [&] { Lis_NroPiezas.Selecciona(2); }, [&] { Spin1.Pon(105); }, [&] { Bul(2).Pon(false); }};
    for (const auto& cambio : cambios) {
        P().avisos.clear();
        const std::string registro = EscribePuzzle();
        const auto antes = Piezas();
        Visita([&] {
            cambio();
            Bul(3).Pon(!Gbl.DibujarBorde);
            Sal({false});
            EXPECT_FALSE(Personal.Abierta);
        });
        ASSERT_EQ(P().avisos.size(), 1U);
        EXPECT_EQ(P().avisos[0].titulo, PARAMETROS);
        EXPECT_EQ(P().avisos[0].modo, 5);
        EXPECT_EQ(P().avisos[0].ayuda, 0);
        EXPECT_FALSE(Gbl.ParametrosCambiados);
        EXPECT_FALSE(HayCopia());
        EXPECT_EQ(Piezas(), antes);
        EXPECT_EQ(Pic_FonTamModi.Width(), 640);
        EXPECT_EQ(Gbl.AnchoCelda, 128);
        // The edge is of those that stay although the restart was cancelled.
        Gbl.DibujarBorde = !Gbl.DibujarBorde;
        EXPECT_EQ(EscribePuzzle().substr(0, 300), registro.substr(0, 300));
    }
}

TEST_F(PersonalVentana, AcceptedParametersBeginANewPuzzle) {
    MovilesDe("a.bmp", 640, 480);
    PonImagen("b.bmp", 800, 600, 0x00FF00);
    Gbl.SegundosJuego = 500;
    Visita([&] {
        EligeFichero("b.bmp");
        Pulsa(Pic_TipPuz[4]);
        Lis_NroPiezas.Selecciona(0);
        Sal({true});
    });
    EXPECT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(Gbl.FicheroImagen, "b.bmp");
    EXPECT_EQ(Gbl.RutaImagen, P().carpeta + "Imagenes/b.bmp");
    EXPECT_EQ(Gbl.CarpetaImagen, P().carpeta + "Imagenes/");
    EXPECT_EQ(Gbl.FormaPiezas, 4);
    EXPECT_EQ(Gbl.PiezasPorLado, 6);  // 800 / 6 = 133 is the widest cell allowed
    EXPECT_EQ(Gbl.NumPiezas, 72);
    EXPECT_EQ(Gbl.Piezas.Superior(), 72);
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_TRUE(Gbl.PuzzleArchivable);
    EXPECT_EQ(Pic_FonTamModi.Width(), 800);
    EXPECT_EQ(Pic_FonTamModi.Point(799, 599), 0x00FF00U);
    EXPECT_FALSE(HayCopia());
}

TEST_F(PersonalVentana, OptionsOfTheProgramStayWhateverIsCancelled) {
    MovilesDe("a.bmp", 640, 480);
    Visita([&] {
        Bul(1).Pon(false);
        Bul(5).Pon(true);
        Pot(1).Pon(33);
        Bul(2).Pon(false);
        Sal({false});
    });
    EXPECT_FALSE(Gbl.Sonido);
    EXPECT_TRUE(Gbl.VentanaInformacion);
    EXPECT_EQ(Gbl.VelocidadJuego, 33);
    EXPECT_TRUE(Gbl.PermitirGiro);
}

TEST_F(PersonalVentana, TheHintGoesWhenItsWindowIsSwitchedOff) {
    MovilesDe("a.bmp", 640, 480);
    Gbl.VentanaInformacion = true;
    Pic_Sugerencia.Visible = true;
    Visita([&] { Sal(); });
    EXPECT_TRUE(Pic_Sugerencia.Visible);
    Visita([&] {
        Bul(5).Pon(false);
        Sal();
    });
    EXPECT_FALSE(Pic_Sugerencia.Visible);
}

TEST_F(PersonalVentana, ClosedFromOutsideItIsLeftByItsButton) {
    MovilesDe("a.bmp", 640, 480);
    Visita([&] {
        Pot(2).Pon(60);
        bool cancela = false;
        Personal.QueryUnload(cancela);
        EXPECT_TRUE(cancela);
        EXPECT_FALSE(Personal.Abierta);
    });
    EXPECT_FALSE(HayCopia());
    EXPECT_EQ(Gbl.FactorAtraccion, 60);
    EXPECT_TRUE(Gbl.ColoresCambiados == false);  // carried out, and no mark is left
}

TEST_F(PersonalVentana, WithoutTheCopyOnDiskACancelStillBringsEverythingBack) {
    MovilesDe("a.bmp", 640, 480);
    const std::string registro = EscribePuzzle();
    for (const bool entera : {false, true}) {
        Visita([&] {
            if (entera)
                Crea("Archivo/TESSA33.CSE", "\"x\"\r\n\"y\"\r\n");
            else
                fs::remove(P().carpeta + "Archivo/TESSA33.CSE");
            Pulsa(Pic_TipPuz[5]);
            Spin1.Pon(110);
            Bul(1).Pon(false);
            Bul(5).Pon(true);
            Pot(1).Pon(33);
            Sal({false});
        });
        // What is the program's and not the game's stays as it was chosen.
        EXPECT_FALSE(Gbl.Sonido);
        EXPECT_TRUE(Gbl.VentanaInformacion);
        EXPECT_EQ(Gbl.VelocidadJuego, 33);
        Gbl.Sonido = true;
        Gbl.VentanaInformacion = false;
        Gbl.VelocidadJuego = 100;
        EXPECT_FALSE(Gbl.CargaCorrecta);
        EXPECT_EQ(EscribePuzzle(), registro);
        EXPECT_FALSE(HayCopia());
        EXPECT_EQ(ErrorPendiente(), 0);
    }
}

TEST_F(PersonalVentana, AnErrorOnTheWayStillTakesTheCopyAway) {
    MovilesDe("a.bmp", 640, 480);
    Visita([&] {
        EXPECT_TRUE(HayCopia());
        Gbl.PiezasPorCelda = 0;  // the difficulty divides by it
        Sal();
    });
    EXPECT_FALSE(HayCopia());
    Visita([&] { Sistema().Cierra(Personal); });
    EXPECT_FALSE(HayCopia());
    EXPECT_FALSE(Gbl.Cargando);
}

TEST_F(PersonalVentana, LongLogsAndBigNumbersComeThroughAVisit) {
    MovilesDe("a.bmp", 640, 480);
    Gbl.Movimientos.Redimensiona(10500);
    Gbl.NumMovimientos = 10345;  // five digits, where the record has four
    Gbl.Movimientos[10345].XDespues = -77;
    Visita([&] { Sal(); });
    EXPECT_EQ(Gbl.NumMovimientos, 10345);
    EXPECT_EQ(Gbl.Movimientos[10345].XDespues, -77);
}

TEST_F(PersonalVentana, AZoomOfAnotherGameIsSetRight) {
    Deslizantes(4);
    Gbl.ZoomImagen = 150;
    Visita([&] { Sal(); });
    EXPECT_EQ(Gbl.ZoomImagen, 100);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(PersonalVentana, DifficultyFollowsTheFactorWithoutARestart) {
    MovilesDe("a.bmp", 640, 480);
    Gbl.Dificultad = 0;
    Visita([&] { Sal(); });
    const float antes = Gbl.Dificultad;
    EXPECT_GT(antes, 0.1F);
    Visita([&] {
        Pulsa(Pic_TipPuz[7]);
        Lis_NroPiezas.Selecciona(0);
        Pot(2).Pon(100);
        Sal({false});
    });
    // 80 points of the factor weigh 1.3 quarters; the shape and the grid that were cancelled none.
    EXPECT_NEAR(Gbl.Dificultad, antes - 26.0F, 0.01F);
}

// ---------------------------------------------------------------- changing game

TEST_F(PersonalVentana, AnotherGameIsAskedForAndCancelledWithoutATrace) {
    MovilesDe("a.bmp", 640, 480);
    Visita([&] {
        P().sonidos.clear();
        P().respuestas = {false};
        Bul(23).Pon(true);
        EXPECT_TRUE(Bul(21).Value);
        EXPECT_FALSE(Bul(23).Value);
        EXPECT_EQ(Sonidos(), (std::vector<int>{6, 6}));
        EXPECT_TRUE(Personal.Abierta);
        ASSERT_EQ(P().avisos.size(), 1U);
        int preguntas = 0;
        P().ventanas["Mensajes"] = [&](Ventana&) {
            ++preguntas;
            EXPECT_FALSE(Bul(21).Value) << "while it is asked the new game's switch alone is on";
            EXPECT_TRUE(Bul(22).Value);
            Gbl.RespuestaMensaje = false;
        };
        Bul(22).Pon(true);
        P().ventanas.erase("Mensajes");
        EXPECT_EQ(preguntas, 1) << "asked anew each time";
        EXPECT_TRUE(Bul(21).Value);
        EXPECT_FALSE(Bul(22).Value);
        EXPECT_EQ(P().avisos[0].titulo, JUEGO);
        EXPECT_EQ(P().avisos[0].modo, 5);
        EXPECT_EQ(P().avisos[0].ayuda, 2112);
        Sal();
    });
    EXPECT_EQ(Gbl.JuegoActual, 21);
    EXPECT_EQ(P().avisos.size(), 1U);
    EXPECT_FALSE(fs::exists(P().carpeta + "TsR2133.ini"));
}

TEST_F(PersonalVentana, TheGameInPlayCannotBeSwitchedOffAndNeedsNoQuestion) {
    MovilesDe("a.bmp", 640, 480);
    Visita([&] {
        P().sonidos.clear();
        Bul(21).Pon(false);
        EXPECT_TRUE(Bul(21).Value);
        EXPECT_TRUE(Sonidos().empty());
        EXPECT_TRUE(P().avisos.empty());
        Sal();
    });
}

TEST_F(PersonalVentana, AGameLeftInPlayComesBackAsItWasLeft) {
    MovilesDe("a.bmp", 640, 480);
    Gbl.SegundosJuego = 321;
    Pon(3, 411, 222, 1);
    const auto antes = Piezas();
    Visita([&] {
        Spin1.Pon(120);  // dropped with the game
        Pulsa(Pic_TipPuz[6]);
        Bul(1).Pon(false);  // the player's, and kept
        P().respuestas = {true};
        Bul(22).Pon(true);
        EXPECT_FALSE(Personal.Abierta);
        EXPECT_FALSE(HayCopia());
    });
    EXPECT_EQ(Gbl.JuegoActual, 22);
    EXPECT_EQ(Gbl.NumPiezas, 24);
    EXPECT_FALSE(Gbl.PuzzleArchivable);  // dealt by default
    EXPECT_EQ(Contenido("TsR33.ini").substr(0, 5), "\"220 ");
    EXPECT_TRUE(fs::exists(P().carpeta + "TsR2133.ini"));
    EXPECT_TRUE(fs::exists(P().carpeta + "TsR2233.ini"));
    EXPECT_EQ(Gbl.SugerenciaActual, 0);  // the hint window is off
    Visita([&] {
        P().respuestas = {true};
        Bul(21).Pon(true);
    });
    EXPECT_EQ(Gbl.JuegoActual, 21);
    EXPECT_EQ(Gbl.ZoomImagen, 100);
    EXPECT_EQ(Gbl.FormaPiezas, 0);
    EXPECT_EQ(Gbl.SegundosJuego, 321);
    EXPECT_EQ(Piezas(), antes);
    EXPECT_EQ(Contenido("TsR33.ini").substr(0, 3), "\"21");
    EXPECT_FALSE(HayCopia());
}

TEST_F(PersonalVentana, TheJigsawThatHasNoFileYetOpensTheWindowAgainForItsPicture) {
    PonImagen("a.bmp", 640, 480);
    Deslizantes(4);
    Gbl.ImagenValida = true;
    int visitas = 0;
    Visita([&] {
        if (++visitas == 1) {
            P().respuestas = {true};
            Bul(21).Pon(true);
            return;
        }
        EXPECT_EQ(Gbl.JuegoActual, 21);
        EXPECT_EQ(FicheroElegido(), "a.bmp");
        Sal();
    });
    EXPECT_EQ(visitas, 2);
    EXPECT_EQ(Gbl.JuegoActual, 21);
    EXPECT_EQ(Gbl.NumPiezas, 25);
    EXPECT_EQ(Gbl.FicheroImagen, "a.bmp");
    EXPECT_TRUE(Gbl.PuzzleArchivable);  // set up by the player
    EXPECT_NE(Contenido("TsR2133.ini").find("a.bmp"), std::string::npos);
    // The question of the game, the missing file; none about a puzzle that was not there.
    ASSERT_EQ(P().avisos.size(), 2U);
    EXPECT_EQ(P().avisos[0].titulo, JUEGO);
    EXPECT_EQ(P().avisos[1].titulo, "Error en la carga de datos iniciales");
}

TEST_F(PersonalVentana, FromAFirstStartAnotherGameCanBeChosen) {
    int visitas = 0;
    P().ventanas["Personal"] = [&](Ventana&) {
        ++visitas;
        Sal();  // no picture anywhere: the window stays
        EXPECT_TRUE(Personal.Abierta);
        P().respuestas = {true};
        Bul(23).Pon(true);
        EXPECT_FALSE(Personal.Abierta);
    };
    Gbl.JuegoActual = JuegoMoviles;
    LeeAjustesJuego(FicheroDelJuego());
    EXPECT_EQ(visitas, 1);
    EXPECT_EQ(Gbl.JuegoActual, 23);
    EXPECT_EQ(Gbl.NumPiezas, 7);
    EXPECT_FALSE(fs::exists(P().carpeta + "TsR2133.ini"));
    EXPECT_FALSE(HayCopia());
}

// ---------------------------------------------------------------- sliding puzzle

TEST_F(PersonalVentana, GroundOfTheSlidingPuzzleAsksAndEnablesTheLists) {
    PonImagen("a.bmp", 900, 900);
    Deslizantes(4);
    Visita([&] {
        Sel(2).Pon(1);
        EXPECT_TRUE(File1.Enabled);
        EXPECT_EQ(FicheroElegido(), "a.bmp");
        EXPECT_EQ(Gbl.RutaImagen, P().carpeta + "Imagenes/a.bmp");
        EXPECT_EQ(Gbl.ZoomImagen, 100);
        Sal({true});
    });
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, PARAMETROS);
    EXPECT_EQ(Gbl.TipoFondo, 1);
    EXPECT_EQ(Pic_FonTamModi.Width(), 900 + Gbl.MargenX);
}

TEST_F(PersonalVentana, ABoardThatNeverHadAPictureTakesTheFirstOfTheList) {
    PonImagen("b.bmp", 700, 500);
    PonImagen("c.bmp", 900, 900);
    Deslizantes(4);
    Gbl.RutaImagen = " ";
    Gbl.FicheroImagen.clear();
    Gbl.ImagenValida = true;  // numbers need no picture
    Visita([&] {
        P().sonidos.clear();
        Sel(2).Pon(1);
        EXPECT_TRUE(Sonidos().empty()) << "the window chooses, not the player";
        EXPECT_EQ(FicheroElegido(), "b.bmp");
        EXPECT_EQ(Gbl.RutaImagen, P().carpeta + "Imagenes/b.bmp");
        EXPECT_EQ(Gbl.FicheroImagen, "b.bmp");
        EXPECT_TRUE(Gbl.ImagenValida);
        Sal({true});
    });
    EXPECT_EQ(Gbl.RutaImagen, P().carpeta + "Imagenes/b.bmp");
}

TEST_F(PersonalVentana, ThereAndBackOfTheGroundChangesNothing) {
    PonImagen("a.bmp", 900, 900);
    Deslizantes(4);
    Gbl.ColorFondo = 0x123456;
    const std::string registro = EscribePuzzle();
    Visita([&] {
        EXPECT_EQ(Pic_MostrarImagen.Point(5, 5), 0x123456U) << "numbers have no picture";
        Sel(2).Pon(1);
        EXPECT_NE(Pic_MostrarImagen.Point(120, 90), 0x123456U);
        Crea("Otra/m.bmp", "x");
        P().imagenes[P().carpeta + "Otra/m.bmp"] = Mapa(320, 240);
        Dir1.Path = P().carpeta + "Otra/";
        Dir1.Change();
        EXPECT_EQ(Gbl.FicheroImagen, "m.bmp");
        Sel(2).Pon(2);
        EXPECT_EQ(Pic_MostrarImagen.Point(120, 90), 0x123456U);
        EXPECT_FALSE(File1.Enabled);
        Sal();
    });
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_EQ(EscribePuzzle().substr(0, 200), registro.substr(0, 200));
}

TEST_F(PersonalVentana, APictureThatWasOnlyLookedAtIsForgottenByANewBoardOfNumbers) {
    PonImagen("a.bmp", 900, 900);
    Crea("Otra/m.bmp", "x");
    P().imagenes[P().carpeta + "Otra/m.bmp"] = Mapa(320, 240);
    Deslizantes(4);
    Gbl.RutaImagen = P().carpeta + "Imagenes/a.bmp";
    Gbl.FicheroImagen = "a.bmp";
    Gbl.CarpetaImagen = P().carpeta + "Imagenes/";
    Gbl.UnidadImagen = "the place of a";
    Visita([&] {
        Sel(2).Pon(1);
        Dir1.Path = P().carpeta + "Otra/";
        Dir1.Change();
        EXPECT_EQ(Gbl.FicheroImagen, "m.bmp");
        Sel(2).Pon(2);
        Lis_NroPiezas.Selecciona(2);  // 5 x 5: another puzzle
        Sal({true});
    });
    EXPECT_EQ(Gbl.PiezasPorLado, 5);
    EXPECT_EQ(Gbl.RutaImagen, P().carpeta + "Imagenes/a.bmp");
    EXPECT_EQ(Gbl.FicheroImagen, "a.bmp");
    EXPECT_EQ(Gbl.CarpetaImagen, P().carpeta + "Imagenes/");
    EXPECT_EQ(Gbl.UnidadImagen, "the place of a");
}

TEST_F(PersonalVentana, WithoutAPictureTheGroundOfImageKeepsTheWindowOpen) {
    Deslizantes(4);
    Visita([&] {
        Sel(2).Pon(1);
        Sal();
        EXPECT_TRUE(Personal.Abierta);
        Sel(2).Pon(3);
        Sal({true});
        EXPECT_FALSE(Personal.Abierta);
    });
    EXPECT_EQ(Gbl.TipoFondo, 3);
}

TEST_F(PersonalVentana, LettersThatDoNotSufficeGiveWayToNumbers) {
    Deslizantes(5);
    Gbl.TipoFondo = FONDO_LETRAS;
    Visita([&] {
        EXPECT_EQ(Sel(2).Value, 3);
        EXPECT_EQ(Sel(2).Textos[2], "Letras de la  A  a la  W");  // 24 pieces
        Lis_NroPiezas.Selecciona(3);
        EXPECT_EQ(Gbl.PiezasPorLado, 6);
        EXPECT_EQ(Sel(2).Textos[1], "Números del  1  al  35");
        EXPECT_EQ(Sel(2).Textos[2], "Letras de la  A  a la  ");
        EXPECT_EQ(Gbl.TipoFondo, 2);
        EXPECT_EQ(Sel(2).Value, 2);
        Sel(2).Pon(3);
        EXPECT_EQ(Gbl.TipoFondo, 2);
        Sal({true});
    });
    EXPECT_EQ(Gbl.NumPiezas, 35);
    EXPECT_EQ(Gbl.Piezas.Superior(), 35);
}

// ---------------------------------------------------------------- Tangram

TEST_F(PersonalVentana, WhatNeedsNoRestartStaysInTheTangramWithoutAQuestion) {
    TangramDe({"Barco"});
    const auto antes = Piezas();
    Visita([&] {
        Bul(4).Pon(false);
        Bul(3).Pon(false);
        Pot(2).Pon(65);
        ColPza.Seleccion.MouseDown(1, 0, 2, 2);  // white
        Sal();
    });
    NiPreguntaNiCopia();
    EXPECT_FALSE(Gbl.AtraccionPiezas);
    EXPECT_FALSE(Gbl.DibujarBorde);
    EXPECT_EQ(Gbl.FactorAtraccion, 65);
    EXPECT_EQ(Gbl.ColorPiezas, 0xFFFFFFU);
    EXPECT_EQ(Piezas(), antes);
}

TEST_F(PersonalVentana, AnotherModelAsksAndBeginsAnew) {
    TangramDe({"Barco", "Casa", "Ave"});
    const auto antes = Piezas();
    for (const bool si : {false, true}) {
        P().avisos.clear();
        Visita([&] {
            // In the order of the file.
            EXPECT_EQ(Lis_Modelos.ListIndex, 0);
            Lis_Modelos.Selecciona(1);
            EXPECT_EQ(Gbl.ModeloActual, 2);
            EXPECT_EQ(Gbl.NombrePuzzle, "Casa");
            Sal({si});
        });
        ASSERT_EQ(P().avisos.size(), 1U);
        EXPECT_EQ(P().avisos[0].titulo, MODELO);
        EXPECT_EQ(P().avisos[0].ayuda, 2117);
        EXPECT_EQ(Gbl.ModeloActual, si ? 2 : 1);
        EXPECT_EQ(Gbl.NombrePuzzle, si ? "Casa" : "");
        if (!si) {
            EXPECT_EQ(Piezas(), antes);
        }
    }
    EXPECT_EQ(Gbl.Piezas[1].GiroBien, 1);
}

TEST_F(PersonalVentana, TwinsThatChangedPlacesStayExchangedThroughAVisit) {
    TangramDe({"Barco", "Casa"});
    std::swap(Gbl.Piezas[1].XBien, Gbl.Piezas[2].XBien);
    const auto antes = Piezas();
    Visita([&] {
        EXPECT_EQ(Piezas(), antes);
        Lis_Modelos.Selecciona(1);
        Lis_Modelos.Selecciona(0);
        Sal();
    });
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_EQ(Piezas(), antes);
}

TEST_F(PersonalVentana, TheModeDecidesWhatIsOffered) {
    TangramDe({"Barco", "Casa"}, MODO_CREAR);
    Visita([&] {
        EXPECT_FALSE(Lis_Modelos.Enabled || Pic_MostrarImagen.Enabled);
        EXPECT_FALSE(Pic_FactorPegado.Visible);
        EXPECT_EQ(Lis_Modelos.ListIndex, -1);
        EXPECT_EQ(Lis_Modelos.MousePointer, PUNTERO_NORMAL);
        EXPECT_EQ(Pic_MostrarImagen.Point(120, 90), 0xC0C0C0U);
        P().sonidos.clear();
        Sel(1).Pon(2);
        EXPECT_TRUE(Sonidos().empty());  // the control has its own click
        EXPECT_TRUE(Lis_Modelos.Enabled && Pic_MostrarImagen.Enabled);
        EXPECT_TRUE(Pic_FactorPegado.Visible);
        EXPECT_EQ(Lis_Modelos.ListIndex, 0);
        EXPECT_EQ(Lis_Modelos.MouseIcon, "ManoIndice");
        EXPECT_EQ(Lis_Modelos.MousePointer, PUNTERO_PROPIO);
        EXPECT_EQ(Gbl.Piezas[2].XBien, 90);
        EXPECT_LT(Gbl.AnchoPuzzle, 800);
        const auto barco = Pic_MostrarImagen.Dibujo().Pixeles;
        Lis_Modelos.Selecciona(1);
        EXPECT_EQ(Sonidos(), std::vector<int>{6});
        EXPECT_NE(Pic_MostrarImagen.Dibujo().Pixeles, barco);
        Lis_Modelos.Selecciona(0);
        EXPECT_EQ(Pic_MostrarImagen.Dibujo().Pixeles, barco);
        Sel(1).Pon(1);
        EXPECT_EQ(Lis_Modelos.MousePointer, PUNTERO_NORMAL);
        EXPECT_EQ(Gbl.AnchoPuzzle, 800);
        for (const Pixel p : Pic_MostrarImagen.Dibujo().Pixeles) ASSERT_EQ(p, 0xC0C0C0U);
        EXPECT_FALSE(Lis_Modelos.Enabled);
        EXPECT_EQ(Lis_Modelos.ListIndex, -1);
        EXPECT_FALSE(Pic_FactorPegado.Visible);
        Sal();
    });
    EXPECT_TRUE(P().avisos.empty());
    Visita([&] {
        Sel(1).Pon(2);
        Sal({true});
    });
    ASSERT_EQ(P().avisos.size(), 1U);  // one question, of the parameters
    EXPECT_EQ(P().avisos[0].titulo, PARAMETROS);
    EXPECT_EQ(Gbl.ModoJuego, 2);
    EXPECT_EQ(Gbl.Piezas[2].XBien, 90);
    // The window opens on the model of the table: its figure is shown, and another one sounds.
    Pic_MostrarImagen.PonPicture(nullptr);
    Pic_MostrarImagen.PonBackColor(0x123456);
    Visita([&] {
        EXPECT_EQ(Lis_Modelos.ListIndex, 0);
        const auto vista = Pic_MostrarImagen.Dibujo().Pixeles;
        EXPECT_NE(std::count(vista.begin(), vista.end(), PixelDe(Gbl.ColorContraste)), 0);
        P().sonidos.clear();
        Lis_Modelos.Selecciona(1);
        EXPECT_EQ(Sonidos(), std::vector<int>{6});
        Sal({false});
    });
}

TEST_F(PersonalVentana, AModelIsDeletedAfterAQuestion) {
    TangramDe({"Barco", "Casa", "Ave"});
    Visita([&] {
        Lis_Modelos.Selecciona(1);
        P().respuestas = {false};
        Lis_Modelos.KeyPress('d');
        ASSERT_EQ(P().avisos.size(), 1U);
        EXPECT_EQ(P().avisos[0].titulo, "Borrar modelo de Tangram");
        EXPECT_EQ(P().avisos[0].texto,
                  "Va a borrar el modelo de Tangram con el nombre:\r\n\r\nCasa\r\n\r\nPulse el "
                  "botón   Aceptar   para borrar este modelo.   Si pulsa el botón  Cancelar  no se "
                  "borrará ninguno.");
        EXPECT_EQ(P().avisos[0].modo, 6);
        EXPECT_EQ(P().avisos[0].ayuda, 4010);
        EXPECT_EQ(Lis_Modelos.ListCount(), 3);
        P().respuestas = {true};
        Lis_Modelos.KeyPress('D');
        EXPECT_EQ(Lis_Modelos.ListCount(), 2);
        EXPECT_EQ(Lis_Modelos.ListIndex, 0);
        EXPECT_EQ(Gbl.ModeloActual, 1);
        Lis_Modelos.KeyPress('x');
        Sal();
    });
    EXPECT_EQ(P().avisos.size(), 2U);
    EXPECT_EQ(Contenido("Archivo/Modelos.tpu").substr(126, 26), std::string(25, ' ') + "0");
    EXPECT_EQ(Gbl.ModeloActual, 1);
}

TEST_F(PersonalVentana, SolvedModelsAreMarkedByTheHistoryAsItStoodAtTheOpening) {
    TangramDe({"Barco", "Caña", "Ave", "Pez"});
    const auto linea = [](int juego, const std::string& modelo) {
        return "\"20/11/2026\",\"13:54\"," + std::to_string(juego) + ",\"\",\"\",\"" + modelo +
               "\",0,0,100,0,0,0,0,0,7,0,0,1.5,20,20,0,0,\"Ana\"\r\n";
    };
    Crea("TESSA33.his", linea(23,
                              "Ca\xF1"
                              "a") +
                            linea(21, "Barco") + linea(23, "Pez  ") + linea(23, "Otro") +
                            "\"not a line\"\r\n");
    const auto marcas = [] {
        std::string s;
        for (const Lista::Elemento& e : Lis_Modelos.Elementos) s += e.Marca ? '*' : '-';
        return s;
    };
    Visita([&] {
        EXPECT_EQ(marcas(), "-*-*");
        EXPECT_EQ(Trim(Lis_Modelos.Elementos[1].Texto), "Caña") << "the text stays";
        std::filesystem::remove(P().carpeta + "TESSA33.his");
        Lis_Modelos.Selecciona(0);
        P().respuestas = {true};
        Lis_Modelos.KeyPress('d');
        EXPECT_EQ(marcas(), "*-*") << "the history is not read again";
        Sal({true});
    });
    Visita([&] {
        EXPECT_EQ(marcas(), "---") << "without a history none";
        Sal();
    });
}

TEST_F(PersonalVentana, DifficultyOfTheTangramIsThatOfItsOwnFigure) {
    TangramDe({"Barco", "Casa"});
    Visita([&] { Sal(); });
    const float antes = Gbl.Dificultad;
    EXPECT_GT(antes, 40.0F);  // half of 100 less the factor of 20, and the figure
    Visita([&] {
        Lis_Modelos.Selecciona(1);
        EXPECT_EQ(Pic_FonTamReal.Width(), Gbl.AnchoPuzzle + 2 * Gbl.MargenX);
        EXPECT_EQ(Pic_FonTamReal.Height(), Gbl.AltoPuzzle + 2 * Gbl.MargenY);
        ColFon.Seleccion.MouseDown(1, 0, 2, 2);  // white: the figure turns black
        Sal({false});
    });
    EXPECT_FLOAT_EQ(Gbl.Dificultad, antes);
}

// ---------------------------------------------------------------- shapes, colours, keys

TEST_F(PersonalVentana, ShapesAreChosenByMouseAndByKeys) {
    MovilesDe("a.bmp", 640, 480);
    Visita([&] {
        P().sonidos.clear();
        Pulsa(Pic_TipPuz[3]);
        EXPECT_EQ(Gbl.FormaPiezas, 3);
        EXPECT_EQ(Gbl.PiezasPorCelda, 4);
        EXPECT_EQ(Sonidos(), std::vector<int>{6});
        Pulsa(Pic_TipPuz[3]);
        EXPECT_TRUE(Sonidos().empty());
        EXPECT_EQ(Sitio(Pic_TipPuzMarco), RectDe(130, 7, 35, 35));
        Pic_TipPuzSel.KeyDown(40, 0);
        EXPECT_EQ(Gbl.FormaPiezas, 7);
        EXPECT_EQ(Gbl.PiezasPorCelda, 2);
        EXPECT_EQ(Sitio(Pic_TipPuzMarco), RectDe(130, 48, 35, 35));
        Pic_TipPuzSel.KeyDown(39, 0);  // none after the last
        EXPECT_EQ(Gbl.FormaPiezas, 7);
        for (const int llega : {6, 5}) {
            Pic_TipPuzSel.KeyDown(37, 0);
            EXPECT_EQ(Gbl.FormaPiezas, llega);
        }
        for (const int llega : {1, 1}) {
            Pic_TipPuzSel.KeyDown(38, 0);
            EXPECT_EQ(Gbl.FormaPiezas, llega);
        }
        for (const int llega : {0, 0}) {
            Pic_TipPuzSel.KeyDown(37, 0);
            EXPECT_EQ(Gbl.FormaPiezas, llega);
        }
        Pulsa(Pic_TipPuz[6]);
        EXPECT_EQ(Pic_TipPuzSel.NombreAccesible, "Forma de las piezas: Elipses en Rectángulos");
        EXPECT_EQ(Pic_TipPuz[5].MouseIcon, "ManoIndice");
        EXPECT_EQ(Pic_TipPuz[6].MousePointer, PUNTERO_NORMAL);
        Sal({false});
    });
}

TEST_F(PersonalVentana, TheFieldOfColoursHasSixBlocksByBlue) {
    MovilesDe("a.bmp", 640, 480);
    Visita([&] {
        Cuadro& s = ColFon.Seleccion;
        EXPECT_EQ(Sitio(s), RectDe(5, 19, 184, 34));
        EXPECT_EQ(Sitio(ColFon.Muestra), RectDe(5, 56, 184, 24));
        EXPECT_EQ(s.Point(2, 2), 0xFFFFFFU);
        EXPECT_EQ(s.Point(6, 6), 0xFFFFFFU);
        EXPECT_EQ(s.Point(7, 2), 0xFFFFCCU);     // one red step: 204
        EXPECT_EQ(s.Point(2, 7), 0xFFCCFFU);     // one green step
        EXPECT_EQ(s.Point(32, 2), 0xCCFFFFU);    // the next block of blue
        EXPECT_EQ(s.Point(31, 31), 0xFF0000U);   // the end of the first block
        EXPECT_EQ(s.Point(181, 31), 0x000000U);  // the very last square
        EXPECT_EQ(s.Point(1, 1), 0xC0C0C0U);
        EXPECT_EQ(s.Point(182, 32), 0xC0C0C0U);
        P().sonidos.clear();
        s.MouseDown(1, 0, 33, 8);
        EXPECT_EQ(Gbl.ColorFondo, 0xCCCCFFU);
        EXPECT_EQ(ColFon.Muestra.Point(50, 10), 0xCCCCFFU);
        EXPECT_EQ(Sonidos(), std::vector<int>{6});
        EXPECT_EQ(Gbl.ColorContraste, 0U);
        EXPECT_EQ(Sitio(ColFon.Marca), RectDe(31, 6, 7, 7));
        s.MouseMove(0, 0, 7, 2);
        EXPECT_EQ(s.ToolTipText, "rojo 204, verde 255, azul 255");
        // The mark passes a press on to the field under it.
        ColFon.Marca.MouseDown(1, 0, 6, 3);
        EXPECT_EQ(Gbl.ColorFondo, 0xCCCCCCU);
        Sal();
    });
}

TEST_F(PersonalVentana, ColoursAreChosenByKeysToo) {
    TangramDe({"Barco"});
    Visita([&] {
        ColPza.Seleccion.MouseDown(1, 0, 2, 2);
        ASSERT_EQ(Gbl.ColorPiezas, 0xFFFFFFU);
        ColPza.Seleccion.KeyDown(37, 0);  // nothing to the left
        EXPECT_EQ(Gbl.ColorPiezas, 0xFFFFFFU);
        ColPza.Seleccion.KeyDown(40, 0);
        EXPECT_EQ(Gbl.ColorPiezas, 0xFFCCFFU);
        for (int i = 0; i < 6; ++i) ColPza.Seleccion.KeyDown(39, 0);
        EXPECT_EQ(Gbl.ColorPiezas, 0xCCCCFFU);
        ColPza.Seleccion.KeyDown(38, 0);
        EXPECT_EQ(Gbl.ColorPiezas, 0xCCFFFFU);
        EXPECT_EQ(ColPza.Seleccion.NombreAccesible,
                  "Color de las piezas: rojo 255, verde 255, azul 204");
        // From a colour that is not in the field: the nearest one.
        Gbl.ColorPiezas = 0x008000;
        ColPza.Seleccion.KeyDown(39, 0);
        EXPECT_EQ(Gbl.ColorPiezas, 0x009900U);
        Sal();
    });
    EXPECT_EQ(Gbl.ColorPiezas, 0x009900U);
}

TEST_F(PersonalVentana, EscapeLeavesAndF1Helps) {
    MovilesDe("a.bmp", 640, 480);
    Visita([&] {
        P().sonidos.clear();
        Personal.KeyDown(112, 0);
        EXPECT_EQ(P().ayudas, std::vector<i32>{2111});
        EXPECT_EQ(Sonidos(), std::vector<int>{9});
        EXPECT_TRUE(Personal.Abierta);
        Personal.KeyDown(27, 0);
        EXPECT_EQ(Sonidos(), std::vector<int>{9});
        EXPECT_FALSE(Personal.Abierta);
    });
}

}  // namespace tessario
