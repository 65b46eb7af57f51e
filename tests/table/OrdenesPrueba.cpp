// SPDX-License-Identifier: GPL-3.0-or-later
#include <filesystem>

#include "apoyo/MesaMontada.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "pieces/Composicion.h"
#include "rules/Colores.h"
#include "rules/Despacho.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"
#include "sliding/Tablero.h"
#include "table/Ordenes.h"
#include "table/Raton.h"

namespace tessario {

namespace {

Ventana Ajustes, Cifras, Archivo;

std::vector<Punto> Sitios() {
    std::vector<Punto> s;
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) s.push_back({Gbl.Piezas[i].X, Gbl.Piezas[i].Y});
    return s;
}

}  // namespace

class Ordenes : public MesaMontada {
protected:
    void SetUp() override {
        MesaMontada::SetUp();
        const struct {
            Ventana* v;
            const char* nombre;
        } ventanas[] = {{&Ajustes, "Personal"}, {&Cifras, "Estadis"}, {&Archivo, "Historic"}};
        for (const auto& v : ventanas) {
            *v.v = Ventana{};
            v.v->Nombre = v.nombre;
        }
        VentanasOrdenes = {&Ajustes, &Cifras, &Archivo};
    }
    // Is the command forbidden, as the pointer over it shows?
    bool Prohibida(i16 i) {
        const Punto o = PunteroPrueba::Origen(Pic_Boton(i));
        Puntero.Mueve(o.x + 24, o.y + 24);
        EXPECT_EQ(Pic_Boton(i).MouseIcon, Gbl.BotonEstado[i] == 12 ? "Prohibido" : "ManoIndice");
        return Gbl.BotonEstado[i] == 12;
    }
    std::vector<i16> Prohibidas() {
        std::vector<i16> v;
        for (i16 i = 1; i <= 12; ++i)
            if (Pic_Boton(i).Visible && Prohibida(i)) v.push_back(i);
        return v;
    }
    // Two pieces of a solved board of even width exchanged: it cannot be solved.
    void TableroInsoluble() {
        Deslizantes(4);
        TableroResuelto();
        std::swap(Gbl.Piezas[1].X, Gbl.Piezas[2].X);
        ColocaPiezas(1);
        P().sonidos.clear();
    }
};

// ---------------------------------------------------------------- enabling rule
TEST_F(Ordenes, JigsawInPlayAllowsEverything) {
    Moviles(3, 300, 300);
    EXPECT_TRUE(Prohibidas().empty());
}

TEST_F(Ordenes, FinishedPuzzleForbidsWhatPlaysOn) {
    Moviles(3, 300, 300);
    Gbl.PuzzleTerminado = true;
    EXPECT_EQ(Prohibidas(), (std::vector<i16>{3, 9, 10, 11, 12}));
    Gbl.PuzzleTerminado = false;
    EXPECT_TRUE(Prohibidas().empty());  // and they come back with the pointer
}

TEST_F(Ordenes, RecorderForbidsAllButFive) {
    Moviles(3, 300, 300);
    Gbl.GrabadoraEncendida = true;
    EXPECT_EQ(Prohibidas(), (std::vector<i16>{1, 2, 3, 4, 9, 10, 11, 12}));
}

TEST_F(Ordenes, SlidingBoardHasASampleOnlyWithAnImage) {
    Deslizantes(3);
    EXPECT_EQ(Prohibidas(), std::vector<i16>{8});
    Gbl.TipoFondo = FONDO_LETRAS;
    EXPECT_EQ(Prohibidas(), std::vector<i16>{8});
    Gbl.TipoFondo = FONDO_IMAGEN;
    EXPECT_TRUE(Prohibidas().empty());
    Gbl.TipoFondo = FONDO_NUMEROS;
    Gbl.GrabadoraEncendida = true;
    EXPECT_EQ(Prohibidas(), (std::vector<i16>{1, 2, 3, 4, 8, 10, 11, 12}));
    Gbl.GrabadoraEncendida = false;
    Gbl.PuzzleTerminado = true;
    EXPECT_EQ(Prohibidas(), (std::vector<i16>{3, 8, 10, 11, 12}));
}

TEST_F(Ordenes, TangramForbidsTheSampleAndDesignWhateverNeedsPlaces) {
    Tangram(MODO_RESOLVER);
    EXPECT_EQ(Prohibidas(), std::vector<i16>{8});
    Tangram(MODO_CREAR);
    EXPECT_EQ(Prohibidas(), (std::vector<i16>{3, 8, 10, 12}));
    Gbl.GrabadoraEncendida = true;
    EXPECT_EQ(Prohibidas(), (std::vector<i16>{1, 2, 3, 4, 8, 10, 11, 12}));
}

TEST_F(Ordenes, ForbiddenButtonOnlyHidesTheOptions) {
    Tangram(MODO_CREAR);
    Pic_SelOpciones.Visible = true;
    Gbl.TutorEsperando = true;
    for (const i16 i : {i16{3}, i16{8}, i16{10}, i16{12}}) PulsaOrden(i);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
    EXPECT_TRUE(Gbl.TutorEsperando);
    EXPECT_TRUE(P().sonidos.empty());
    EXPECT_FALSE(Gbl.MostrandoColocadas);
    EXPECT_FALSE(Gbl.ResolviendoPuzzle);
}

TEST_F(Ordenes, ButtonKeepsItsStateUntilThePointerMovesOverIt) {
    Moviles(3, 300, 300);
    Gbl.PuzzleTerminado = true;
    EXPECT_EQ(Gbl.BotonEstado[10], 23);
    Pic_Boton_MouseDown(10, BOTON_IZQUIERDO, 0, 5, 5);  // no move came before
    EXPECT_TRUE(Gbl.MostrandoColocadas);
    PulsaOrden(10);
    EXPECT_EQ(Gbl.BotonEstado[10], 12);
    EXPECT_TRUE(Gbl.MostrandoColocadas);
}

TEST_F(Ordenes, KeyboardFocusFreshensTheStateLikeThePointer) {
    Moviles(3, 300, 300);
    Gbl.PuzzleTerminado = true;
    Pic_Boton(11).GotFocus();
    EXPECT_EQ(Gbl.BotonEstado[11], 12);
    Gbl.PuzzleTerminado = false;
    Pic_Boton(11).MouseMove(0, 0, 24, 24);  // comes before every press, from the keyboard too
    EXPECT_EQ(Gbl.BotonEstado[11], 23);
}

TEST_F(Ordenes, ButtonsTakeNoKeysOfTheirOwnSoThatSpacePressesThem) {
    for (i16 i = 1; i <= 12; ++i) {
        EXPECT_TRUE(Pic_Boton(i).TabStop) << i;
        EXPECT_FALSE(Pic_Boton(i).KeyDown) << i;
        EXPECT_FALSE(Pic_Boton(i).KeyPress) << i;
    }
}

// ---------------------------------------------------------------- common steps
TEST_F(Ordenes, EveryPressSoundsAndCallsTheTutorOff) {
    Moviles(3, 300, 300);
    Gbl.TutorEsperando = true;
    Pic_SelOpciones.Visible = true;
    PulsaOrden(6);
    EXPECT_EQ(P().sonidos, (std::vector<std::pair<i16, bool>>{{9, false}}));
    EXPECT_FALSE(Gbl.TutorEsperando);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
}

TEST_F(Ordenes, AnyMouseButtonRunsTheCommand) {
    Moviles(3, 300, 300);
    const Punto o = PunteroPrueba::Origen(Pic_Boton(6));
    Puntero.Pulsa(o.x + 5, o.y + 5, BOTON_DERECHO);
    EXPECT_EQ(P().ayudas, std::vector<i32>{0});
}

TEST_F(Ordenes, OtherCommandsEndTheDisplayOfPlacedPieces) {
    Moviles(3, 300, 300);
    Pon(2, 400, 100);
    SubePieza(PosicionEnOrden(2));
    ColocaPiezas(1);
    const auto tabla = Pic_Trabajo.Dibujo().Pixeles;
    PulsaOrden(10);
    ASSERT_NE(Pic_Trabajo.Dibujo().Pixeles, tabla);
    PulsaOrden(6);
    EXPECT_FALSE(Gbl.MostrandoColocadas);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, tabla);
}

TEST_F(Ordenes, OtherCommandsClearTheFlagsOfSolvingAndArranging) {
    Moviles(3, 300, 300);
    Gbl.ResolviendoPuzzle = Gbl.OrdenandoPiezas = true;
    PulsaOrden(6);
    EXPECT_FALSE(Gbl.ResolviendoPuzzle);
    EXPECT_FALSE(Gbl.OrdenandoPiezas);
}

TEST_F(Ordenes, SolvableManualOrderIsJustLeftByAnotherCommand) {
    Deslizantes(3);
    TableroResuelto();
    Gbl.OrdenManual = true;
    Gbl.SegundosJuego = 50;
    Gbl.NumMovimientos = 3;
    PulsaOrden(4);
    EXPECT_FALSE(Gbl.OrdenManual);
    EXPECT_EQ(Gbl.SegundosJuego, 50);
    EXPECT_EQ(Gbl.NumMovimientos, 3);
    EXPECT_EQ(P().mostradas, std::vector<std::string>{"Estadis"});
}

TEST_F(Ordenes, UnsolvableManualOrderAsksInPlaceOfTheCommand) {
    TableroInsoluble();
    Gbl.OrdenManual = true;
    P().respuestas = {false};
    PulsaOrden(4);
    EXPECT_TRUE(Gbl.OrdenManual);
    EXPECT_EQ(P().mostradas, std::vector<std::string>{"Mensajes"});
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Configuración sin solución");
    EXPECT_EQ(P().avisos[0].ayuda, 3020);
    EXPECT_EQ(Gbl.Piezas[1].X, Gbl.Piezas[2].XBien);  // the board is unchanged
}

TEST_F(Ordenes, HelpAndSampleGoThroughInAnUnsolvableManualOrder) {
    TableroInsoluble();
    Gbl.OrdenManual = true;
    PulsaOrden(6);
    EXPECT_EQ(P().ayudas, std::vector<i32>{0});
    Gbl.TipoFondo = FONDO_IMAGEN;
    const bool antes = Gbl.MostrarMuestra;
    PulsaOrden(8);
    EXPECT_NE(bool{Gbl.MostrarMuestra}, antes);
    EXPECT_TRUE(Gbl.OrdenManual);
    EXPECT_TRUE(P().avisos.empty());
}

// ---------------------------------------------------------------- 1: shuffle
TEST_F(Ordenes, ShuffleDealsTheJigsawAnew) {
    Moviles(3, 300, 300);
    for (i16 i = 1; i <= 9; ++i) Pon(i, Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien);
    Gbl.SegundosJuego = 99;
    Gbl.PuzzleTerminado = true;
    PulsaOrden(1);
    EXPECT_LT(Gbl.PiezasColocadas, 9);
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Ordenes, ShuffleScramblesTheSlidingBoardByRealMoves) {
    Deslizantes(3);
    TableroResuelto();
    PulsaOrden(1);
    const auto s = Sonidos();
    EXPECT_GE(std::count(s.begin(), s.end(), 53), 32);
    EXPECT_TRUE(TieneSolucion());
    EXPECT_EQ(Gbl.NumMovimientos, 0);
}

TEST_F(Ordenes, ShuffleWhileSolvingAModelAsksFirst) {
    Tangram(MODO_RESOLVER);
    Pon(1, 50, 300);
    Gbl.SegundosJuego = 40;
    CambiaCrono(1);
    const auto antes = Sitios();
    P().respuestas = {false};
    PulsaOrden(1);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Barajar las piezas del Tangram");
    EXPECT_EQ(P().avisos[0].texto,
              "Si pulsa este botón cuando está resolviendo un modelo, se despejará  la  mesa  de  "
              "juego  para  que  pueda  crear  sus propios  diseños,   por  lo   que  finalizará  "
              "la  resolución  del modelo actual  y  se  mezclarán las piezas.   Pulse  el  botón "
              "Aceptar para mezclar las piezas. Si pulsa el botón Cancelar podrá continuar "
              "resolviendo el modelo actual.");
    EXPECT_EQ(P().avisos[0].modo, 6);
    EXPECT_EQ(P().avisos[0].botones, 2);
    EXPECT_EQ(P().avisos[0].ayuda, 2180);
    EXPECT_EQ(Gbl.ModoJuego, MODO_RESOLVER);
    EXPECT_EQ(Sitios(), antes);
    EXPECT_EQ(Gbl.SegundosJuego, 40);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    P().respuestas = {true};
    PulsaOrden(1);
    EXPECT_EQ(Gbl.ModoJuego, MODO_CREAR);
    EXPECT_EQ(Gbl.Piezas[1].X, 462);
    EXPECT_FALSE(Pic_Cronome.Visible);
}

TEST_F(Ordenes, ShuffleWhileCreatingDoesNotAsk) {
    Tangram(MODO_CREAR);
    Pon(1, 50, 300);
    PulsaOrden(1);
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_EQ(Gbl.Piezas[1].X, 462);
}

// ---------------------------------------------------------------- 2: settings
TEST_F(Ordenes, SettingsWindowStopsTheClockAndAPlainReturnChangesNothing) {
    Moviles(3, 300, 300);
    CambiaCrono(1);
    const auto antes = Sitios();
    Gbl.ParametrosCambiados = Gbl.ColoresCambiados = true;  // left over from another time
    P().ventanas["Personal"] = [](Ventana&) {
        EXPECT_FALSE(Gbl.CronoEnMarcha);
        EXPECT_FALSE(Gbl.ParametrosCambiados);
        EXPECT_FALSE(Gbl.ColoresCambiados);
        EXPECT_EQ(Gbl.JuegoAlEntrar, JuegoMoviles);
    };
    PulsaOrden(2);
    EXPECT_EQ(P().mostradas, std::vector<std::string>{"Personal"});
    EXPECT_EQ(Sitios(), antes);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
}

TEST_F(Ordenes, ChangedParametersDealTheSamePuzzleAnew) {
    Moviles(3, 300, 300);
    P().ventanas["Personal"] = [](Ventana&) {
        Gbl.PiezasPorLado = 4;
        Gbl.ParametrosCambiados = true;
    };
    PulsaOrden(2);
    EXPECT_EQ(Gbl.NumPiezas, 16);
    EXPECT_EQ(Gbl.Piezas.Superior(), 16);
    EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
}

TEST_F(Ordenes, ChangedColoursOnlyRepaint) {
    Moviles(3, 300, 300);
    const auto antes = Sitios();
    P().ventanas["Personal"] = [](Ventana&) {
        Gbl.ColorFondo = 0x2010F0;
        CalculaColores();
        Gbl.ColoresCambiados = true;
    };
    PulsaOrden(2);
    EXPECT_EQ(Sitios(), antes);
    EXPECT_EQ(Pic_Trabajo.Point(310, 5), 0x2010F0U);  // table just right of the picture's frame
}

TEST_F(Ordenes, ChangedColoursRepaintTheSlidingBoardToo) {
    Deslizantes(3);
    const auto antes = Sitios();
    P().ventanas["Personal"] = [](Ventana&) {
        Gbl.ColorFondo = 0x2010F0;
        CalculaColores();
        Gbl.ColoresCambiados = true;
    };
    PulsaOrden(2);
    EXPECT_EQ(Sitios(), antes);
    EXPECT_EQ(Pic_Trabajo.Point(5, 595), 0x2010F0U);
}

TEST_F(Ordenes, AnotherGameComesFromItsFileWithItsHint) {
    Deslizantes(3);
    Gbl.VentanaInformacion = true;
    P().ventanas["Personal"] = [](Ventana&) { Gbl.JuegoActual = JuegoTangram; };
    PulsaOrden(2);
    EXPECT_EQ(Gbl.JuegoActual, JuegoTangram);
    EXPECT_EQ(Gbl.NumPiezas, 7);
    EXPECT_TRUE(std::filesystem::exists(P().carpeta + "TsR2333.ini"));  // made from defaults
    EXPECT_EQ(Gbl.SugerenciaActual, 23);
    EXPECT_TRUE(Pic_Sugerencia.Visible);
}

TEST_F(Ordenes, WithoutTheWindowTheRestIsDone) {
    VentanasOrdenes = VentanasDeOrdenes{};
    Moviles(3, 300, 300);
    CambiaCrono(1);
    for (const i16 i : {i16{2}, i16{4}, i16{5}}) PulsaOrden(i);
    EXPECT_TRUE(P().mostradas.empty());
    EXPECT_EQ(Sonidos(), (std::vector<int>{9, 9, 9}));
    EXPECT_TRUE(Gbl.CronoEnMarcha);
}

// ---------------------------------------------------------------- 3: tutor
TEST_F(Ordenes, TutorWaitsForAPieceWithItsHint) {
    Moviles(3, 300, 300);
    Gbl.VentanaInformacion = true;
    CambiaCrono(1);
    PulsaOrden(3);
    EXPECT_TRUE(Gbl.TutorEsperando);
    EXPECT_EQ(Gbl.SugerenciaActual, 52);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_TRUE(Gbl.PuzzleArchivable);  // only its use forfeits
    PulsaOrden(6);
    EXPECT_FALSE(Gbl.TutorEsperando);
}

TEST_F(Ordenes, TutorWaitsInTheModelsOfTheTangramToo) {
    Tangram(MODO_RESOLVER);
    PulsaOrden(3);
    EXPECT_TRUE(Gbl.TutorEsperando);
}

TEST_F(Ordenes, TutorOfTheSlidingBoardMakesOnePassAndForfeits) {
    Deslizantes(3);
    TableroResuelto();
    Gbl.PuzzleArchivable = true;
    // Two moves away from solved: pieces 6 and 5 slid towards the corner.
    const i16 c = Gbl.AnchoCelda;
    Gbl.Piezas[6].Y = Corto(Gbl.Piezas[6].Y + c);
    Gbl.Piezas[5].X = Corto(Gbl.Piezas[5].X + c);
    Gbl.HuecoX = Gbl.Piezas[5].XBien;
    Gbl.HuecoY = Gbl.Piezas[5].YBien;
    ColocaPiezas(1);
    const auto antes = Sitios();
    CambiaCrono(1);
    PulsaOrden(3);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
    EXPECT_NE(Sitios(), antes);
    EXPECT_FALSE(Gbl.TutorEsperando);
    EXPECT_FALSE(Gbl.ResolviendoPuzzle);
}

// ---------------------------------------------------------------- 4 to 7
TEST_F(Ordenes, FiguresAndHistoryOpenWithTheClockStopped) {
    for (const i16 juego : {JuegoMoviles, JuegoDeslizantes, JuegoTangram}) {
        Gbl.JuegoActual = juego;
        for (const bool enMarcha : {true, false}) {
            CambiaCrono(enMarcha ? 1 : 2);
            P().mostradas.clear();
            P().ventanas["Estadis"] =
                P().ventanas["Historic"] = [](Ventana&) { EXPECT_FALSE(Gbl.CronoEnMarcha); };
            PulsaOrden(4);
            PulsaOrden(5);
            EXPECT_EQ(P().mostradas, (std::vector<std::string>{"Estadis", "Historic"}));
            EXPECT_EQ(bool{Gbl.CronoEnMarcha}, enMarcha);
        }
    }
}

TEST_F(Ordenes, HelpOpensItsStartPage) {
    CambiaCrono(1);
    PulsaOrden(6);
    EXPECT_EQ(P().ayudas, std::vector<i32>{0});
    EXPECT_TRUE(Gbl.CronoEnMarcha);
}

TEST_F(Ordenes, ExitIsRefusedWhileTheRecorderIsOn) {
    Moviles(3, 300, 300);
    CambiaCrono(1);
    Gbl.GrabadoraEncendida = true;
    PulsaOrden(7);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Salir del programa");
    EXPECT_EQ(P().avisos[0].texto,
              "Tiene que apagar la Grabadora de movimientos antes de poder salir del programa.");
    EXPECT_EQ(P().avisos[0].modo, 2);
    EXPECT_EQ(P().avisos[0].botones, 1);
    EXPECT_EQ(P().avisos[0].ayuda, 2170);
    EXPECT_FALSE(P().terminado);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
}

TEST_F(Ordenes, RefusedExitGoesBackToTheGame) {
    Moviles(3, 300, 300);
    CambiaCrono(1);
    P().respuestas = {false};
    PulsaOrden(7);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Salir de TESSARIO");
    EXPECT_EQ(P().avisos[0].texto, "¿Desea abandonar el programa?");
    EXPECT_EQ(P().avisos[0].modo, 1);
    EXPECT_EQ(P().avisos[0].botones, 2);
    EXPECT_EQ(P().avisos[0].ayuda, 0);
    EXPECT_FALSE(P().terminado);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    CambiaCrono(2);
    PulsaOrden(7);
    EXPECT_FALSE(Gbl.CronoEnMarcha);  // it comes back as it was
}

TEST_F(Ordenes, AcceptedExitSavesBothFilesAndEnds) {
    Moviles(3, 300, 300);
    P().Muestra(Mesa);
    P().respuestas = {true};
    PulsaOrden(7);
    EXPECT_TRUE(P().terminado);
    EXPECT_FALSE(Mesa.Abierta);
    EXPECT_TRUE(std::filesystem::exists(P().carpeta + "TsR33.ini"));
    EXPECT_TRUE(std::filesystem::exists(P().carpeta + "TsR2133.ini"));
}

// ---------------------------------------------------------------- 8: sample
TEST_F(Ordenes, SampleIsTakenAwayAndShownAtTheLowerRightOfTheJigsaw) {
    Moviles(3, 300, 240);
    ASSERT_TRUE(Pic_Muestra.Visible);  // half the picture: 150 x 120
    PulsaOrden(8);
    EXPECT_FALSE(Gbl.MostrarMuestra);
    EXPECT_FALSE(Pic_Muestra.Visible);
    Pic_Muestra.Mueve(3, 3);
    Gbl.VelocidadJuego = 50;
    const double antes = P().dormido;
    PulsaOrden(8);
    EXPECT_EQ(P().dormido - antes, 40);
    EXPECT_TRUE(Gbl.MostrarMuestra);
    EXPECT_TRUE(Pic_Muestra.Visible);
    EXPECT_EQ(Pic_Muestra.Left, 659 - 150);
    EXPECT_EQ(Pic_Muestra.Top, 600 - 120);
}

TEST_F(Ordenes, SampleFollowsTheVerticalScroll) {
    Moviles(4, 640, 480);  // sample 320 x 240, view 783 x 583
    BarraVer.Pon(50);
    Gbl.MostrarMuestra = false;
    PulsaOrden(8);
    EXPECT_EQ(Pic_Muestra.Left, 642 - 320);
    EXPECT_EQ(Pic_Muestra.Top, 583 - 240 + 50);
}

TEST_F(Ordenes, SampleOfTheSlidingBoardStandsFifteenFromTheCorner) {
    Deslizantes(3);
    Gbl.TipoFondo = FONDO_IMAGEN;
    Pic_Muestra.Tamano(160, 150);
    Gbl.MostrarMuestra = false;
    PulsaOrden(8);
    EXPECT_EQ(Pic_Muestra.Left, 625);  // 800 - 160 - 15
    EXPECT_EQ(Pic_Muestra.Top, 435);   // 600 - 150 - 15
    EXPECT_TRUE(Pic_Muestra.Visible);
}

// ---------------------------------------------------------------- 9: hidden pieces
TEST_F(Ordenes, HiddenPiecesComeToTheTopAndPlacedOnesStay) {
    Moviles(3, 300, 300);
    for (i16 i = 1; i <= 9; ++i) {
        Gbl.OrdenPiezas[i] = i;
        Gbl.Piezas[i].Giro = 0;
        Gbl.Piezas[i].X = Gbl.Piezas[i].XBien;
        Gbl.Piezas[i].Y = Gbl.Piezas[i].YBien;
    }
    Gbl.Piezas[9].X = 10;  // loose, under placed pieces
    Gbl.Piezas[9].Y = 10;
    ColocaPiezas(1);
    const Color tapada = Pic_Trabajo.Point(60, 60);
    Gbl.VelocidadJuego = 50;
    const double antes = P().dormido;
    PulsaOrden(9);
    EXPECT_EQ(P().dormido - antes, 9 * 15);
    EXPECT_EQ(Gbl.OrdenPiezas[1], 9);
    for (i16 i = 2; i <= 9; ++i) EXPECT_EQ(Gbl.OrdenPiezas[i], i - 1);
    EXPECT_NE(Pic_Trabajo.Point(60, 60), tapada);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, Pic_Imagen.Dibujo().Pixeles);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
}

// ---------------------------------------------------------------- 10: placed pieces
TEST_F(Ordenes, PlacedPiecesTurnGreenTheOthersRedAndBack) {
    Moviles(3, 300, 300);
    for (i16 i = 1; i <= 9; ++i) Gbl.Piezas[i].Giro = 0;
    Pon(1, 0, 0);
    Pon(2, 400, 100);
    SubePieza(PosicionEnOrden(2));
    SubePieza(PosicionEnOrden(1));
    ColocaPiezas(1);
    const Color foto = Pic_Trabajo.Point(450, 150);
    PulsaOrden(10);
    EXPECT_TRUE(Gbl.MostrandoColocadas);
    EXPECT_EQ(Pic_Trabajo.Point(50, 50), 0x00FF00U);
    EXPECT_EQ(Pic_Trabajo.Point(450, 150), 0x0000FFU);
    PulsaOrden(10);
    EXPECT_FALSE(Gbl.MostrandoColocadas);
    EXPECT_EQ(Pic_Trabajo.Point(450, 150), foto);
}

TEST_F(Ordenes, PlacedSlidingPiecesTurnGreen) {
    Deslizantes(3);
    TableroResuelto();
    PulsaOrden(10);
    const Rect caja = CajaDePieza(5);
    EXPECT_EQ(Pic_Trabajo.Point(caja.Izq + 20, caja.Arr + 20), 0x00FF00U);
}

// ---------------------------------------------------------------- 11: arrange
TEST_F(Ordenes, ArrangeLinesLoosePiecesUpAndRestoresTheClock) {
    Moviles(3, 300, 300);
    for (const bool enMarcha : {true, false}) {
        for (i16 i = 1; i <= 9; ++i) Pon(i, 400, 200);
        CambiaCrono(enMarcha ? 1 : 2);
        PulsaOrden(11);
        EXPECT_FALSE(Gbl.OrdenandoPiezas);
        EXPECT_EQ(bool{Gbl.CronoEnMarcha}, enMarcha);
        for (i16 i = 1; i <= 9; ++i) EXPECT_FALSE(Gbl.Piezas[i].X == 400 && Gbl.Piezas[i].Y == 200);
    }
    EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
}

TEST_F(Ordenes, ManualOrderAsksAndBegins) {
    Deslizantes(3);
    CambiaCrono(1);
    P().respuestas = {false, true};
    PulsaOrden(11);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Ordenar las piezas manualmente");
    EXPECT_EQ(P().avisos[0].texto,
              "Si pulsa este botón  para  colocar manualmente  las  piezas, cuando finalize  ese  "
              "proceso comenzará  la  resolución  del puzzle  con  las  piezas  en  la  posición  "
              "que  Usted  prefiera. Pulse el botón Aceptar para colocar las piezas como desee y  "
              "comenzar  un  nuevo  puzzle.  Si  pulsa  el  botón  Cancelar podrá continuar "
              "resolviendo el puzzle actual.");
    EXPECT_EQ(P().avisos[0].modo, 6);
    EXPECT_EQ(P().avisos[0].botones, 2);
    EXPECT_EQ(P().avisos[0].ayuda, 2184);
    EXPECT_FALSE(Gbl.OrdenManual);
    PulsaOrden(11);
    EXPECT_TRUE(Gbl.OrdenManual);
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
}

TEST_F(Ordenes, SolvableManualOrderStartsANewPuzzleByItsOwnButton) {
    Deslizantes(3);
    TableroResuelto();
    Gbl.OrdenManual = true;
    Gbl.SegundosJuego = 50;
    Gbl.NumMovimientos = 3;
    PulsaOrden(11);
    EXPECT_FALSE(Gbl.OrdenManual);
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Ordenes, UnsolvableManualOrderStaysOnCancelarAndIsShuffledOnAceptar) {
    TableroInsoluble();
    Gbl.OrdenManual = true;
    P().respuestas = {false, true};
    PulsaOrden(11);
    EXPECT_TRUE(Gbl.OrdenManual);
    EXPECT_EQ(Gbl.Piezas[1].X, Gbl.Piezas[2].XBien);
    PulsaOrden(11);
    EXPECT_FALSE(Gbl.OrdenManual);
    EXPECT_TRUE(TieneSolucion());
    EXPECT_EQ(Gbl.NumMovimientos, 0);
}

// ---------------------------------------------------------------- 12: solve
TEST_F(Ordenes, SolverFinishesTheJigsawWithoutQuestionsAndForfeits) {
    Moviles(3, 300, 300);
    CambiaCrono(1);
    PulsaOrden(12);
    EXPECT_EQ(Gbl.PiezasColocadas, 9);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
    EXPECT_FALSE(Gbl.ResolviendoPuzzle);
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_TRUE(Gbl.CronoEnMarcha);
}

TEST_F(Ordenes, SecondPressStopsTheSolver) {
    Moviles(3, 300, 300);
    for (i16 i = 1; i <= 9; ++i) Pon(i, 400, 200);
    int pasos = 0;
    P().alDejarPasar = [&] {
        // Events also run while a piece turns; the stop is pressed between two pieces.
        if (++pasos == 2) PulsaOrden(12);
    };
    PulsaOrden(12);
    EXPECT_LT(Gbl.PiezasColocadas, 9);
    EXPECT_FALSE(Gbl.ResolviendoPuzzle);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
}

TEST_F(Ordenes, SolverFinishesTheSlidingBoard) {
    Deslizantes(3);
    PulsaOrden(12);
    EXPECT_EQ(Gbl.PiezasColocadas, 8);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
}

TEST_F(Ordenes, SolverFinishesTheTangramModel) {
    Tangram(MODO_RESOLVER);
    PulsaOrden(12);
    EXPECT_EQ(Gbl.PiezasColocadas, 7);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
}

TEST_F(Ordenes, SolverTurnsTheParallelogramOverAndEveryPieceInOneStep) {
    Tangram(MODO_RESOLVER);
    Gbl.Piezas[7].VolteoBien = 1;
    Gbl.Piezas[3].GiroBien = 4;
    PulsaOrden(12);
    EXPECT_EQ(Gbl.PiezasColocadas, 7);
    EXPECT_EQ(Gbl.Piezas[7].Volteo, 1);
    EXPECT_EQ(Gbl.Piezas[3].Giro, 4);
    i32 vueltas = 0, giros = 0;
    for (i16 i = 1; i <= Gbl.NumMovimientos; ++i) {
        const Movimiento& m = Gbl.Movimientos[i];
        if (m.Pieza == 7 && m.VolteoAntes == 0 && m.VolteoDespues == 1) ++vueltas;
        if (m.Pieza == 3 && m.GiroAntes == 0 && m.GiroDespues == 4) ++giros;
    }
    EXPECT_EQ(vueltas, 1);
    EXPECT_EQ(giros, 1);
    EXPECT_EQ(Gbl.NumMovimientos, 7 + 2) << "seven runs home, one turning over, one turn";
}

TEST_F(Ordenes, TangramShowsPlacedPiecesWithTheirOutlinesIfTheyAreDrawn) {
    for (const bool borde : {true, false}) {
        Tangram(MODO_RESOLVER);
        Gbl.DibujarBorde = borde;
        PulsaOrden(10);
        ASSERT_TRUE(Gbl.MostrandoColocadas);
        const Rect caja = CajaDePieza(6);
        i32 rojos = 0, borden = 0;
        for (i32 y = caja.Arr; y < caja.Aba; ++y)
            for (i32 x = caja.Izq; x < caja.Der; ++x) {
                rojos += Pic_Trabajo.Point(x, y) == 0x0000FF;
                borden += Pic_Trabajo.Point(x, y) == Gbl.ColorContraste;
            }
        EXPECT_GT(rojos, 58 * 58) << "all but an edge of two pixels";
        EXPECT_EQ(borden > 0, borde);
        PulsaOrden(10);
    }
}

TEST_F(Ordenes, HandMadeBoardIsDrawnAnewWhenItBecomesThePuzzle) {
    Deslizantes(3);
    TableroResuelto();
    Gbl.OrdenManual = true;
    Pic_Imagen.Cls();  // whatever the table shows
    Pic_Trabajo.Cls();
    PulsaOrden(11);
    EXPECT_FALSE(Gbl.OrdenManual);
    EXPECT_NE(Pic_Trabajo.Point(Gbl.Piezas[1].X + 20, Gbl.Piezas[1].Y + 5), Gbl.ColorFondo);
}

}  // namespace tessario
