// SPDX-License-Identifier: GPL-3.0-or-later
// The window of saved puzzles in its four uses.
#include <filesystem>

#include "apoyo/VentanaMontada.h"
#include "core/Ventanas.h"
#include "panel/Desplazamiento.h"
#include "records/Modelos.h"
#include "session/Configuracion.h"
#include "session/Montaje.h"
#include "sliding/Tablero.h"
#include "table/Opciones.h"
#include "windows/Cargua.h"

namespace tessario {
namespace {

namespace fs = std::filesystem;
using Nombres = std::vector<std::string>;

class VentanaCargua : public VentanaMontada {
protected:
    void SetUp() override {
        VentanaMontada::SetUp();
        fs::create_directories(Gbl.CarpetaArchivo);
    }
    void Abre(i16 modo, std::function<void()> hace) {
        Gbl.ModoCargua = modo;
        En(Cargua, std::move(hace));
    }
    static Nombres EnLista() {
        Nombres n;
        for (const auto& e : Lis_CarGua.Elementos) n.push_back(e.Texto);
        return n;
    }
    static bool Activo(const Cuadro& b) {
        return b.MouseIcon == "ManoIndice" && b.MousePointer == PUNTERO_PROPIO;
    }
    static void Escribe(const std::string& t) { Tex_NombreCargua.Escribe(t); }
    static void Intro() { Tex_NombreCargua.KeyPress(13); }
    // The two clicks of a double click on a row, as the shell reports them.
    static void DobleClic(i32 fila) {
        Lis_CarGua.Selecciona(fila);
        Lis_CarGua.DblClick();
        Lis_CarGua.Selecciona(fila);
    }
    bool Hay(const std::string& nombre) { return fs::exists(Gbl.CarpetaArchivo + nombre); }
    // Slides a piece that stands next to the hole.
    void PulsaPieza(i32 piece) {
        const Pieza& p = Gbl.Piezas[piece];
        Puntero.Pulsa(p.X + 20, p.Y + 20);
    }
    // A sliding board under a name.
    void Guarda(const std::string& nombre) {
        ASSERT_EQ(GuardaPuzzle(Gbl.CarpetaArchivo + nombre), 0);
    }
};

TEST_F(VentanaCargua, TitlePromptAndButtonFollowTheMode) {
    Deslizantes(3);
    const struct {
        i16 modo;
        const char *titulo, *mensaje;
        Cuadro* boton;
        const char* sugerencia;
    } casos[] = {
        {1, " Cargar un puzzle archivado",
         " Indique el nombre del puzzle que desea cargar y que se va    a convertir en el puzzle "
         "actual.",
         &Pic_BotCargar, nullptr},
        {2, " Archivar el puzzle actual",
         " Indique  el  nombre  con  el  que  desea  archivar  el  puzzle     actual.",
         &Pic_BotGuardar, " Guardar el puzzle actual "},
        {3, " Borrar un puzzle archivado",
         " Indique el nombre del puzzle archivado  que  desea  borrar.", &Pic_BotBorrar, nullptr},
        {4, " Guardar como modelo de Tangram",
         " Indique  el  nombre  con  el  que  desea  archivar  el  modelo   de Tangram.",
         &Pic_BotGuardar, " Guardar el modelo actual "}};
    for (const auto& c : casos)
        Abre(c.modo, [&] {
            EXPECT_EQ(Tex_TituloCargua.Caption, c.titulo);
            EXPECT_EQ(Tex_MensajeCargua.Caption, c.mensaje);
            for (Cuadro* b : {&Pic_BotCargar, &Pic_BotGuardar, &Pic_BotBorrar})
                EXPECT_EQ(b->Visible, b == c.boton);
            EXPECT_EQ(c.boton->MousePointer, 12);
            if (c.sugerencia) {
                EXPECT_EQ(c.boton->ToolTipText, c.sugerencia);
            }
            EXPECT_EQ(P().foco, &Tex_NombreCargua);
            EXPECT_FALSE(Gbl.AvisoExiste);
            EXPECT_EQ(Tex_NombreCargua.Text, "");
        });
}

TEST_F(VentanaCargua, ListHoldsTheNamesInTextOrder) {
    for (const char* n : {"nube.puz", "Ñandú.PUZ", "árbol.puz", "Zorro.Puz", "oca.puz", "otro.txt",
                          "a.puzz", "con blancos .puz", ".oculto.puz", ".puz"})
        Crea(std::string("Archivo/") + n, "");
    fs::create_directory(Gbl.CarpetaArchivo + "carpeta.puz");
    for (const i16 modo : {CARGUA_CARGAR, CARGUA_GUARDAR, CARGUA_BORRAR})
        Abre(modo, [&] {
            EXPECT_EQ(EnLista(), (Nombres{".oculto", "árbol", "con blancos ", "nube", "Ñandú",
                                          "oca", "Zorro"}));
        });
}

TEST_F(VentanaCargua, ListOfModelsInModeFour) {
    Tangram(MODO_CREAR);
    GuardaModelo("Zueco");
    GuardaModelo("ancla");
    Abre(4, [&] {
        ASSERT_EQ(Lis_CarGua.ListCount(), 2);
        Lis_CarGua.Selecciona(0);
        EXPECT_EQ(Tex_NombreCargua.Text, "ancla");
        EXPECT_EQ(Gbl.NombreActual, "ancla");
    });
}

// ---------------------------------------------------------------- load

TEST_F(VentanaCargua, LoadButtonIsActiveOnlyForAFileThatIsThere) {
    Deslizantes(3);
    Guarda("Casa.PUZ");
    Abre(1, [&] {
        Escribe("cas");
        EXPECT_FALSE(Activo(Pic_BotCargar));
        Escribe("  casa ");
        EXPECT_EQ(Gbl.NombreActual, "casa");
        EXPECT_TRUE(Activo(Pic_BotCargar));
        Escribe("casa2");
        EXPECT_FALSE(Activo(Pic_BotCargar));
        for (const char* malo : {"../Casa", "..\\Casa", "x/../Casa", "", "   ", "..", "."}) {
            Escribe(malo);
            EXPECT_FALSE(Activo(Pic_BotCargar)) << malo;
        }
    });
}

TEST_F(VentanaCargua, InactiveLoadButtonAndEnterOnlySound) {
    Deslizantes(3);
    Abre(1, [&] {
        Escribe("nada");
        Sonidos();
        Aprieta(Pic_BotCargar);
        Intro();
        EXPECT_EQ(Sonidos(), (std::vector<int>{9, 9}));
        EXPECT_TRUE(Cargua.Abierta);
    });
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(VentanaCargua, EveryWayOfLoadingLoadsAndCloses) {
    for (const int camino : {0, 1, 2}) {
        Deslizantes(4);
        Gbl.SegundosJuego = 77;
        Gbl.PuzzleArchivable = true;
        Guarda("juego uno.puz");
        Deslizantes(3);
        Gbl.SegundosJuego = 1;
        Gbl.ColoresCambiados = true;
        Abre(1, [&] {
            if (camino == 2) {
                DobleClic(0);
            } else {
                Escribe("juego uno");
                camino == 0 ? Aprieta(Pic_BotCargar) : Intro();
            }
            EXPECT_FALSE(Cargua.Abierta) << camino;
        });
        EXPECT_EQ(Gbl.NumPiezas, 15) << camino;
        EXPECT_EQ(Gbl.SegundosJuego, 77) << camino;
        EXPECT_TRUE(Gbl.PuzzleArchivable) << camino;
        EXPECT_FALSE(Gbl.ColoresCambiados);
    }
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(VentanaCargua, LoadedTableIsTheVerySame) {
    Deslizantes(4);
    TableroResuelto();
    for (const i32 piece : {15, 11, 11}) PulsaPieza(piece);
    ASSERT_EQ(Gbl.NumMovimientos, 3);
    Gbl.SegundosJuego = 4321;
    Gbl.PuzzleArchivable = false;
    Gbl.NombreJugador = "J\"sé";
    Abre(2, [&] {
        Escribe("Mi \"puzzle\" año 1");
        Aprieta(Pic_BotGuardar);
    });
    ASSERT_TRUE(Hay("Mi \"puzzle\" año 1.puz"));
    EXPECT_EQ(Gbl.NombrePuzzle, "Mi \"puzzle\" año 1");
    const std::string antes = EscribePuzzle();
    const auto piezas = std::vector<Pieza>(Gbl.Piezas.begin(), Gbl.Piezas.end());
    Deslizantes(5);
    Gbl.NombreJugador = "Otro";
    Abre(1, [&] { DobleClic(0); });
    EXPECT_EQ(EscribePuzzle(), antes);
    EXPECT_EQ(std::vector<Pieza>(Gbl.Piezas.begin(), Gbl.Piezas.end()), piezas);
    EXPECT_EQ(Gbl.NumMovimientos, 3);
}

TEST_F(VentanaCargua, LoadOfAnotherGameKeepsTheOneThatIsLeft) {
    Tangram(MODO_CREAR);
    Guarda("figura.puz");
    Deslizantes(4);
    Gbl.SegundosJuego = 55;
    const std::string antes = EscribePuzzle();
    Abre(1, [&] { DobleClic(0); });
    EXPECT_EQ(Gbl.JuegoActual, JuegoTangram);
    EXPECT_EQ(Contenido("TsR2233.ini"), antes);
    EXPECT_EQ(Contenido("TsR2333.ini"), "") << "written at the end of the program";
    // A load within the game leaves its file alone.
    Abre(1, [&] { DobleClic(0); });
    EXPECT_EQ(Contenido("TsR2333.ini"), "");
}

TEST_F(VentanaCargua, LoadOnAScrolledTableBeginsAtItsOrigin) {
    Tangram(MODO_CREAR);
    Guarda("figura.puz");
    Moviles(4, 900, 700);
    BarraHor.Pon(40);
    BarraVer.Pon(60);
    ASSERT_EQ(Pic_Trabajo.Top, -60);
    Abre(1, [&] { DobleClic(0); });
    EXPECT_EQ(Gbl.JuegoActual, JuegoTangram);
    EXPECT_EQ(Pic_Trabajo.Left, 0);
    EXPECT_EQ(Pic_Trabajo.Top, 0);
    EXPECT_FALSE(BarraVer.Visible);
}

TEST_F(VentanaCargua, LoadOfAnotherJigsawBeginsAtItsOriginToo) {
    Gbl.RutaImagen = PonImagen("lago.bmp", 900, 700);
    Moviles(4, 900, 700);
    Guarda("lago.puz");
    BarraHor.Pon(40);
    BarraVer.Pon(60);
    ASSERT_EQ(Pic_Trabajo.Top, -60);
    Abre(1, [&] { DobleClic(0); });
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_TRUE(BarraVer.Visible);
    EXPECT_EQ(BarraHor.Value, 0);
    EXPECT_EQ(BarraVer.Value, 0);
    EXPECT_EQ(Pic_Trabajo.Left, 0);
    EXPECT_EQ(Pic_Trabajo.Top, 0);
}

TEST_F(VentanaCargua, FileThatVanishedMeanwhileGoesTheWayOfEveryGameFile) {
    Deslizantes(3);
    Guarda("se va.puz");
    Abre(1, [&] {
        Escribe("se va");
        fs::remove(Gbl.CarpetaArchivo + "se va.puz");
        Aprieta(Pic_BotCargar);
        EXPECT_FALSE(Cargua.Abierta);
    });
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_NE(P().avisos[0].texto.find("se va.puz"), std::string::npos);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
}

// ---------------------------------------------------------------- save

TEST_F(VentanaCargua, NameOfBlanksIsEmptyAndTheSaveButtonStaysInactive) {
    Deslizantes(3);
    Abre(2, [&] {
        Escribe("    ");
        EXPECT_FALSE(Activo(Pic_BotGuardar));
        Sonidos();
        Aprieta(Pic_BotGuardar);
        Intro();
        EXPECT_EQ(Sonidos(), (std::vector<int>{9, 9}));
        EXPECT_TRUE(Cargua.Abierta);
        Escribe(" x ");
        EXPECT_TRUE(Activo(Pic_BotGuardar));
    });
    EXPECT_TRUE(fs::is_empty(Gbl.CarpetaArchivo));
}

TEST_F(VentanaCargua, SecondClickOnATakenNameOverwrites) {
    Deslizantes(3);
    Crea("Archivo/viejo.puz", "nada");
    const std::string ruta = Gbl.CarpetaArchivo + "viejo.puz";
    Abre(2, [&] {
        Escribe("VIEJO");
        Aprieta(Pic_BotGuardar);
        EXPECT_TRUE(Cargua.Abierta);
        EXPECT_EQ(
            Tex_MensajeCargua.Caption,
            "  Ya  existe  un  archivo  con  ese  nombre.   Pulse  el  botón        Guardar para "
            "sobreescribirlo  o  indique otro nombre para       archivar el puzzle actual.");
        EXPECT_EQ(Contenido("Archivo/viejo.puz"), "nada");
        Aprieta(Pic_BotGuardar);
        EXPECT_FALSE(Cargua.Abierta);
    });
    EXPECT_NE(Contenido("Archivo/viejo.puz"), "nada");
    EXPECT_FALSE(Hay("VIEJO.puz")) << "the file keeps its spelling";
    EXPECT_TRUE(P().avisos.empty()) << "no question";
}

TEST_F(VentanaCargua, TypingOverTheNameTakesTheWarningBack) {
    Deslizantes(3);
    Crea("Archivo/a.puz", "nada");
    Abre(2, [&] {
        Escribe("a");
        Aprieta(Pic_BotGuardar);
        ASSERT_TRUE(Gbl.AvisoExiste);
        Escribe("ab");
        EXPECT_FALSE(Gbl.AvisoExiste);
        EXPECT_EQ(Tex_MensajeCargua.Caption,
                  " Indique  el  nombre  con  el  que  desea  archivar  el  puzzle     actual.");
        Escribe("a");
        Aprieta(Pic_BotGuardar);
        EXPECT_TRUE(Cargua.Abierta) << "warned once more";
    });
    EXPECT_EQ(Contenido("Archivo/a.puz"), "nada");
}

TEST_F(VentanaCargua, SecondDoubleClickDoesNothingWhereAClickOverwrites) {
    Deslizantes(3);
    Crea("Archivo/a.puz", "nada");
    Abre(2, [&] {
        DobleClic(0);
        EXPECT_TRUE(Gbl.AvisoExiste);
        Sonidos();
        DobleClic(0);
        EXPECT_EQ(Sonidos(), (std::vector<int>{}));
        EXPECT_TRUE(Cargua.Abierta);
        EXPECT_EQ(Contenido("Archivo/a.puz"), "nada");
        Lis_CarGua.Selecciona(0);  // the same text again is no change
        EXPECT_TRUE(Gbl.AvisoExiste);
        Aprieta(Pic_BotGuardar);
        EXPECT_FALSE(Cargua.Abierta);
    });
    EXPECT_NE(Contenido("Archivo/a.puz"), "nada");
}

TEST_F(VentanaCargua, EnterSavesLikeTheButton) {
    Deslizantes(3);
    Abre(2, [&] {
        Escribe("intro");
        Tex_NombreCargua.KeyPress('x');
        EXPECT_TRUE(Cargua.Abierta);
        Intro();
        EXPECT_FALSE(Cargua.Abierta);
    });
    EXPECT_TRUE(Hay("intro.puz"));
}

TEST_F(VentanaCargua, NamesThatLeadElsewhereSaveNothingAnywhere) {
    Deslizantes(3);
    Crea("fuera.puz", "intacto");
    fs::create_directory(Gbl.CarpetaArchivo + "sub");
    for (const char* malo : {"../fuera", "..\\fuera", "sub/x", "/tmp/x"})
        Abre(2, [&] {
            Escribe(malo);
            Aprieta(Pic_BotGuardar);
            EXPECT_FALSE(Cargua.Abierta) << malo;
        });
    EXPECT_EQ(Contenido("fuera.puz"), "intacto");
    EXPECT_TRUE(fs::is_empty(Gbl.CarpetaArchivo + "sub"));
    EXPECT_EQ(Gbl.NombrePuzzle, "");
    for (const char* bueno : {"..", ".", "a:b*?<>|"}) {
        Abre(2, [&] {
            Escribe(bueno);
            Aprieta(Pic_BotGuardar);
        });
        EXPECT_TRUE(Hay(std::string(bueno) + ".puz")) << bueno;
    }
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(VentanaCargua, NameIsCutAtSixtyFourCharacters) {
    Deslizantes(3);
    std::string largo;
    for (int i = 0; i < 70; ++i) largo += "ñ";
    Abre(2, [&] {
        Escribe("   " + largo);
        EXPECT_EQ(Gbl.NombreActual, largo.substr(0, 128));
        Aprieta(Pic_BotGuardar);
    });
    EXPECT_TRUE(Hay(largo.substr(0, 128) + ".puz"));
    EXPECT_EQ(Gbl.NombrePuzzle, largo.substr(0, 50)) << "25 characters stand in the record";
    // A cut behind a blank leaves none at the end, or the list could not find it again.
    Abre(2, [&] {
        Escribe(std::string(63, 'x') + " y");
        EXPECT_EQ(Gbl.NombreActual, std::string(63, 'x'));
    });
}

TEST_F(VentanaCargua, SaveThatFailsLosesNothing) {
    Deslizantes(3);
    Gbl.NombrePuzzle = "antes";
    fs::remove_all(Gbl.CarpetaArchivo);
    Crea("Archivo", "a file in the folder's place");
    Abre(2, [&] {
        Escribe("x");
        Aprieta(Pic_BotGuardar);
        EXPECT_FALSE(Cargua.Abierta);
    });
    EXPECT_EQ(Gbl.NombrePuzzle, "antes");
    fs::remove(P().carpeta + "Archivo");
    // A folder stands where the file should: it stays, and so does everything else.
    Crea("Archivo/y.puz/dentro", "1");
    Abre(2, [&] {
        Escribe("y");
        Aprieta(Pic_BotGuardar);
        EXPECT_FALSE(Cargua.Abierta);
    });
    EXPECT_EQ(Contenido("Archivo/y.puz/dentro"), "1");
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(VentanaCargua, TheTangramKeepsTheNameOfItsModel) {
    Tangram(MODO_RESOLVER);
    Gbl.NombrePuzzle = "Pez";
    Abre(2, [&] {
        Escribe("a medias");
        Aprieta(Pic_BotGuardar);
    });
    EXPECT_TRUE(Hay("a medias.puz"));
    EXPECT_FALSE(Hay("Modelos.tpu"));
    EXPECT_EQ(Gbl.NombrePuzzle, "Pez");
}

// ---------------------------------------------------------------- delete

TEST_F(VentanaCargua, DeletingTheLastFileLeavesAnEmptyListAndBox) {
    Crea("Archivo/Uno.PUZ", "");
    Crea("Archivo/dos.puz", "");
    Abre(3, [&] {
        Escribe("uno");
        EXPECT_TRUE(Activo(Pic_BotBorrar));
        Sonidos();
        Aprieta(Pic_BotBorrar);
        EXPECT_EQ(Sonidos(), (std::vector<int>{9}));
        EXPECT_EQ(EnLista(), (Nombres{"dos"}));
        EXPECT_EQ(Tex_NombreCargua.Text, "");
        EXPECT_EQ(Gbl.NombreActual, "");
        EXPECT_FALSE(Activo(Pic_BotBorrar));
        Lis_CarGua.Selecciona(0);
        Aprieta(Pic_BotBorrar);
        EXPECT_EQ(EnLista(), Nombres{});
        EXPECT_EQ(Tex_NombreCargua.Text, "");
        EXPECT_TRUE(Cargua.Abierta);
    });
    EXPECT_TRUE(fs::is_empty(Gbl.CarpetaArchivo));
}

TEST_F(VentanaCargua, DeleteButtonIsActiveOnlyForAFileThatIsThere) {
    Crea("Archivo/Uno.puz", "");
    Abre(3, [&] {
        EXPECT_FALSE(Activo(Pic_BotBorrar));
        Escribe("uno");
        EXPECT_TRUE(Activo(Pic_BotBorrar));
        for (const char* sinFichero : {"un", "unos", "", "  "}) {
            Escribe(sinFichero);
            EXPECT_FALSE(Activo(Pic_BotBorrar)) << sinFichero;
        }
    });
}

TEST_F(VentanaCargua, NeitherEnterNorADoubleClickDeletes) {
    Crea("Archivo/a.puz", "");
    Crea("x.puz", "");
    Abre(3, [&] {
        DobleClic(0);
        Intro();
        EXPECT_TRUE(Cargua.Abierta);
        Escribe("../x");
        Aprieta(Pic_BotBorrar);
        Escribe("nada");
        Aprieta(Pic_BotBorrar);
        EXPECT_EQ(Tex_NombreCargua.Text, "nada") << "nothing was deleted";
    });
    EXPECT_TRUE(Hay("a.puz"));
    EXPECT_TRUE(fs::exists(P().carpeta + "x.puz"));
}

// ---------------------------------------------------------------- model

TEST_F(VentanaCargua, ModelIsSavedFromTheTable) {
    Tangram(MODO_CREAR);
    const auto piezas = std::vector<Pieza>(Gbl.Piezas.begin(), Gbl.Piezas.end());
    Abre(4, [&] {
        Escribe("Una figura de nombre muy largo");
        Aprieta(Pic_BotGuardar);
        EXPECT_FALSE(Cargua.Abierta);
    });
    EXPECT_EQ(std::vector<Pieza>(Gbl.Piezas.begin(), Gbl.Piezas.end()), piezas);
    EXPECT_EQ(Contenido("Archivo/Modelos.tpu").substr(0, 25), "Una figura de nombre muy ");
    // The same name again is another model, and there is no warning.
    Abre(4, [&] {
        Escribe("Una figura de nombre muy largo");
        Intro();
        EXPECT_FALSE(Cargua.Abierta);
    });
    EXPECT_EQ(Contenido("Archivo/Modelos.tpu").size(), 2U * 126U);
    Abre(4, [&] {
        DobleClic(0);
        EXPECT_TRUE(Cargua.Abierta) << "a double click only takes the name";
    });
    EXPECT_EQ(Contenido("Archivo/Modelos.tpu").size(), 2U * 126U);
}

TEST_F(VentanaCargua, ModelIsNotSavedInAnotherGame) {
    Deslizantes(3);
    Abre(4, [&] {
        Escribe("x");
        EXPECT_TRUE(Activo(Pic_BotGuardar));
        Aprieta(Pic_BotGuardar);
        EXPECT_TRUE(Cargua.Abierta);
        DobleClic(0);
    });
    EXPECT_TRUE(fs::is_empty(Gbl.CarpetaArchivo));
}

TEST_F(VentanaCargua, ExitEscapeAndHelp) {
    const std::pair<i16, i32> ayudas[] = {{1, 2510}, {2, 2500}, {3, 2520}, {4, 2540}};
    for (const auto& [modo, tema] : ayudas)
        Abre(modo, [&, tema = tema] {
            Sonidos();
            Aprieta(Pic_BotAyudaCargua);
            EXPECT_EQ(P().ayudas.back(), tema);
            EXPECT_TRUE(Cargua.Abierta);
            Cargua.KeyPress('x');
            EXPECT_TRUE(Cargua.Abierta);
            tema == 2510 ? Cargua.KeyPress(27) : Aprieta(Pic_BotSalirCargua);
            EXPECT_FALSE(Cargua.Abierta);
            EXPECT_EQ(Sonidos(), (std::vector<int>{9, 9}));
        });
}

TEST_F(VentanaCargua, ControlsLieWithinTheWindowAndHaveNames) {
    Deslizantes(3);
    Abre(2, [&] {
        for (const Control* c : Cargua.Controles) {
            if (!c->Visible) continue;
            EXPECT_GE(c->Left, 0) << c->Nombre;
            EXPECT_LE(c->Left + c->Width(), Cargua.Width()) << c->Nombre;
            EXPECT_LE(c->Top + c->Height(), Cargua.Height()) << c->Nombre;
            if (c->TabStop) {
                EXPECT_FALSE(c->NombreAccesible.empty()) << c->Nombre;
            }
        }
        EXPECT_EQ(Tex_MensajeCargua.Width(), 365);
    });
}

TEST_F(VentanaCargua, TheListShowsWholeRowsAndMoreOfThemOnALargerScreen) {
    Deslizantes(3);
    constexpr i32 fila = 15, bordes = 2;
    const struct {
        i32 alto, nombres, filas;
    } casos[] = {{600, 0, 12},  {600, 1, 12},   {600, 12, 12},  {600, 13, 13}, {600, 30, 18},
                 {768, 30, 24}, {1024, 18, 18}, {1024, 30, 24}, {2160, 30, 24}};
    for (const auto& c : casos) {
        fs::remove_all(Gbl.CarpetaArchivo);
        fs::create_directories(Gbl.CarpetaArchivo);
        for (i32 n = 1; n <= c.nombres; ++n) Crea("Archivo/p" + std::to_string(n) + ".puz", "x");
        Gbl.AltoPantalla = static_cast<i16>(c.alto);
        Abre(1, [&] {
            EXPECT_EQ(Lis_CarGua.Height(), c.filas * fila + bordes) << c.alto << " " << c.nombres;
            EXPECT_GE(Tex_NombreCargua.Top, Lis_CarGua.Top + Lis_CarGua.Height());
            EXPECT_GE(Pic_BotCargar.Top, Tex_NombreCargua.Top + Tex_NombreCargua.Height());
            EXPECT_LE(Pic_BotCargar.Top + Pic_BotCargar.Height(), Cargua.Height());
            EXPECT_EQ(Cargua.Top, (c.alto - Cargua.Height()) / 2);
            EXPECT_GE(Cargua.Top, 50);
        });
    }
}

// ---------------------------------------------------------------- from the options panel

TEST_F(VentanaCargua, OptionStopsTheClockAndBringsItBack) {
    Deslizantes(3);
    Guarda("a.puz");
    for (const bool marcha : {true, false}) {
        Gbl.CronoEnMarcha = marcha;
        bool parado = false;
        P().ventanas["Cargua"] = [&](Ventana&) {
            parado = !Gbl.CronoEnMarcha;
            DobleClic(0);
            Gbl.CronoAntes = !marcha;  // as a window that the load has opened leaves it
        };
        CumpleOpcion(2);
        EXPECT_TRUE(parado);
        EXPECT_EQ(static_cast<bool>(Gbl.CronoEnMarcha), marcha);
    }
}

TEST_F(VentanaCargua, ColouredDisplayEndsBeforeTheWindowOpens) {
    Moviles(3, 400, 300);
    Gbl.MostrandoColocadas = true;
    bool seguia = true;
    P().ventanas["Cargua"] = [&](Ventana&) { seguia = Gbl.MostrandoColocadas; };
    CumpleOpcion(1);
    EXPECT_FALSE(seguia);
}

TEST_F(VentanaCargua, ManualOrderingEndsFirst) {
    Deslizantes(4);
    TableroResuelto();
    Gbl.OrdenManual = true;
    bool abierta = false;
    P().ventanas["Cargua"] = [&](Ventana&) {
        abierta = true;
        EXPECT_FALSE(Gbl.OrdenManual);
    };
    CumpleOpcion(2);
    EXPECT_TRUE(abierta);
    // A board without a solution: the arranging command asks in its place.
    abierta = false;
    Gbl.OrdenManual = true;
    std::swap(Gbl.Piezas[1].X, Gbl.Piezas[2].X);
    ASSERT_FALSE(TieneSolucion());
    P().respuestas = {false};
    CumpleOpcion(2);
    EXPECT_FALSE(abierta);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Configuración sin solución");
    EXPECT_TRUE(Gbl.OrdenManual);
}

}  // namespace
}  // namespace tessario
