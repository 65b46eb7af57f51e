// SPDX-License-Identifier: GPL-3.0-or-later
// Whole games, played with the pointer from the deal to the last message.
#include <algorithm>

#include "apoyo/MesaMontada.h"
#include "core/Ventanas.h"
#include "panel/Colocadas.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "records/Archivo.h"
#include "records/Texto.h"
#include "rules/PuzzBas.h"
#include "sliding/Tablero.h"
#include "table/Final.h"

namespace tessario {

class Partida : public MesaMontada {
protected:
    void SetUp() override {
        MesaMontada::SetUp();
        Gbl.MostrarMuestra = false;  // the sample view would lie over dealt pieces
    }
    // Where a press reaches the piece. What shows of it can lie under the strip or beyond the
    // screen's edge, as only its cell's centre is kept clear of them: then it is fetched out first.
    Punto Alcanza(i16 piece) {
        const Punto p = PuntoDe(piece);
        Puntero.Mueve(p.x, p.y);
        if (Puntero.Debajo() == &Pic_Trabajo) return p;
        Pon(piece, 330, 200, Gbl.Piezas[piece].Giro);
        return PuntoDe(piece);
    }
    // A short press of the right button: its release comes in while the piece turns.
    void Gira(Punto p) {
        P().botones = BOTON_DERECHO;
        P().eventos.push_back([this] {
            P().botones = 0;
            Puntero.Suelta();
        });
        Puntero.Mueve(p.x, p.y);
        Puntero.Aprieta(BOTON_DERECHO);
    }
    // Turns the piece until it is upright, then drags it near its place. It is brought on top
    // first, as a player would dig it out.
    void Coloca(i16 piece) {
        SubePieza(PosicionEnOrden(piece));
        ColocaPiezas(1);
        for (int n = 0; n < 4 && !GiroCorrecto(piece); ++n) Gira(Alcanza(piece));
        ASSERT_TRUE(GiroCorrecto(piece));
        Alcanza(piece);
        Arrastra(piece, Gbl.Piezas[piece].XBien + 3, Gbl.Piezas[piece].YBien + 2);
    }
    std::vector<std::string> Historico() {
        std::string bytes;
        LeeFichero(P().carpeta + "TESSA33.his", bytes);
        return Lineas(bytes);
    }
    void TodasEnSuSitio() {
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
            Pieza& p = Gbl.Piezas[i];
            p.X = p.XBien;
            p.Y = p.YBien;
            p.Giro = p.GiroBien;
        }
    }
};

TEST_F(Partida, JigsawOfNineIsPlayedToItsEndAndIntoTheHistory) {
    Moviles(3, 300, 300);
    Gbl.NombreJugador = "Ana";
    Gbl.VelocidadJuego = 50;
    for (i16 i = 1; i <= 8; ++i) {
        Coloca(i);
        EXPECT_EQ(Gbl.PiezasColocadas, i);
        EXPECT_FALSE(Gbl.PuzzleTerminado);
    }
    EXPECT_TRUE(P().avisos.empty());
    Gbl.SegundosJuego = 83;
    P().respuestas = {true};
    const double antes = P().dormido;
    Coloca(9);
    EXPECT_GE(P().dormido - antes, 500);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_FALSE(Gbl.CronoEnMarcha);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_FALSE(Gbl.SoltandoPieza);
    EXPECT_EQ(P().sonidos.back(), (std::pair<i16, bool>{14, true}));
    ASSERT_EQ(P().avisos.size(), 2U);
    EXPECT_EQ(P().avisos[0].titulo, "TESSARIO");
    EXPECT_EQ(P().avisos[0].texto, "Ha conseguido resolver el puzzle");
    EXPECT_EQ(P().avisos[0].modo, 1);
    EXPECT_EQ(P().avisos[0].botones, 1);
    EXPECT_EQ(P().avisos[1].titulo, "Histórico de puzzles resueltos");
    EXPECT_EQ(P().avisos[1].texto, "¿Se actualiza el Histórico de puzzles?");
    EXPECT_EQ(P().avisos[1].modo, 1);
    EXPECT_EQ(P().avisos[1].botones, 2);
    EXPECT_EQ(P().avisos[1].ayuda, 2161);
    ASSERT_EQ(Historico().size(), 1U);
    EXPECT_NE(Historico()[0].find(",83,20,2,0,\"Ana\""), std::string::npos) << Historico()[0];
    // The joints are gone: the table shows the picture itself.
    for (const Punto p : {Punto{99, 50}, {100, 50}, {150, 199}, {0, 0}, {299, 299}})
        EXPECT_EQ(Pic_Trabajo.Fila(p.y)[p.x], Pic_FonTamModi.Fila(p.y)[p.x]);
}

TEST_F(Partida, FinishedPictureIsSeenOnItsOwnWithinTheGivenPause) {
    Moviles(3, 300, 300);
    for (i16 i = 1; i <= 8; ++i) Coloca(i);
    Gbl.VelocidadJuego = 50;
    std::vector<std::pair<bool, double>> pausas;  // finished look, when it began
    P().alDormir = [&] { pausas.emplace_back(Gbl.PuzzleTerminado, P().reloj); };
    double ventana = 0;
    P().ventanas["Mensajes"] = [&](Ventana&) {
        if (ventana == 0) ventana = P().reloj;
    };
    Coloca(9);
    ASSERT_GE(pausas.size(), 2U);
    const auto [antes, cae] = pausas[pausas.size() - 2];
    const auto [despues, entero] = pausas.back();
    EXPECT_FALSE(antes) << "first the last piece as it fell";
    EXPECT_TRUE(despues) << "then the whole picture";
    EXPECT_GE(ventana - entero, 300) << "on its own";
    EXPECT_NEAR(ventana - cae, 500, 1) << "in all no longer than the pause was";
}

TEST_F(Partida, CongratulationAndQuestionStandClearOfThePicture) {
    ConectaMensajes();
    std::vector<Rect> sitios;
    P().ventanas["Mensajes"] = [&](Ventana& v) {
        sitios.push_back(RectDe(v.Left, v.Top, v.Width(), v.Height()));
    };
    Moviles(3, 300, 300);  // on 800 x 600 the message would come up at 197, 228
    TodasEnSuSitio();
    FinDeJuego();
    ASSERT_EQ(sitios.size(), 2U);
    for (const Rect& r : sitios) EXPECT_EQ(r, RectDe(197, 312, 405, 144));
    // High and narrow: it goes to the right.
    Moviles(3, 240, 450);
    Gbl.PuzzleArchivable = false;
    TodasEnSuSitio();
    FinDeJuego();
    EXPECT_EQ(sitios.back(), RectDe(252, 228, 405, 144));
    // No side has room: it stays in the middle.
    Moviles(3, 510, 480);
    Gbl.PuzzleArchivable = false;
    TodasEnSuSitio();
    FinDeJuego();
    EXPECT_EQ(sitios.back(), RectDe(197, 228, 405, 144));
    // Other messages are not moved.
    EXPECT_TRUE(Gbl.LibreDeMensajes.Vacio());
}

TEST_F(Partida, CongratulationOfAScrolledTableMindsWhatIsInView) {
    Moviles(3, 510, 480);
    ASSERT_TRUE(BarraVer.Visible);
    BarraVer.Pon(180);
    ConectaMensajes();
    Rect sitio;
    P().ventanas["Mensajes"] = [&](Ventana& v) {
        sitio = RectDe(v.Left, v.Top, v.Width(), v.Height());
    };
    TodasEnSuSitio();
    FinDeJuego();
    EXPECT_EQ(sitio.Arr, 480 - BarraVer.Value + 12);
}

TEST_F(Partida, FinishedJigsawGivesTheNoticeOnItsPieces) {
    Moviles(3, 300, 300);
    for (i16 i = 1; i <= 9; ++i) Coloca(i);
    const auto antes = P().avisos.size();
    Puntero.Pulsa(400, 400);
    EXPECT_EQ(P().avisos.size(), antes);
    Puntero.Pulsa(150, 150);
    ASSERT_EQ(P().avisos.size(), antes + 1);
    EXPECT_EQ(P().avisos.back().titulo, "Puzzle resuelto");
}

TEST_F(Partida, RefusedHistoryIsNotWrittenAndNotAskedAgain) {
    Moviles(3, 300, 300);
    P().respuestas = {false};
    for (i16 i = 1; i <= 9; ++i) Coloca(i);
    EXPECT_EQ(P().avisos.size(), 2U);
    EXPECT_TRUE(Historico().empty());
    EXPECT_FALSE(Gbl.PuzzleArchivable);
}

TEST_F(Partida, HelpedResultIsCongratulatedButNotOfferedToTheHistory) {
    Moviles(3, 300, 300);
    Gbl.PuzzleArchivable = false;
    P().respuestas = {true};
    for (i16 i = 1; i <= 9; ++i) Coloca(i);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "TESSARIO");
    EXPECT_TRUE(Historico().empty());
}

TEST_F(Partida, EveryShapeCanBeDealtAndSolvedByHand) {
    for (i16 forma = 0; forma <= 7; ++forma) {
        P().avisos.clear();
        Moviles(2, 300, 240, forma);
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) Coloca(i);
        EXPECT_TRUE(Gbl.PuzzleTerminado) << forma;
        EXPECT_EQ(P().avisos.size(), 2U) << forma;
    }
}

TEST_F(Partida, SlidingBoardIsFinishedByItsLastMove) {
    Deslizantes(3);
    TableroResuelto();
    const Punto p6 = PuntoDe(6);
    Puntero.Pulsa(p6.x, p6.y);
    EXPECT_EQ(Gbl.PiezasColocadas, 7);
    EXPECT_TRUE(P().avisos.empty());
    P().respuestas = {true};
    const Punto vuelta = PuntoDe(6);
    Puntero.Pulsa(vuelta.x, vuelta.y);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_EQ(P().avisos.size(), 2U);
    EXPECT_EQ(Historico().size(), 1U);
}

TEST_F(Partida, TangramModelIsSolvedByHand) {
    Tangram(MODO_RESOLVER);
    Gbl.NombrePuzzle = "Barca";
    P().respuestas = {true};
    for (i16 i = 1; i <= 7; ++i) Arrastra(i, Gbl.Piezas[i].XBien + 2, Gbl.Piezas[i].YBien + 1);
    EXPECT_EQ(Gbl.PiezasColocadas, 7);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    ASSERT_EQ(Historico().size(), 1U);
    EXPECT_NE(Historico()[0].find("\"Barca\""), std::string::npos);
}

TEST_F(Partida, TangramWithoutBordersShowsThemWhenFinished) {
    Gbl.DibujarBorde = false;
    Tangram(MODO_RESOLVER);
    for (i16 i = 1; i <= 7; ++i) {
        Gbl.Piezas[i].X = Gbl.Piezas[i].XBien;
        Gbl.Piezas[i].Y = Gbl.Piezas[i].YBien;
    }
    ColocaPiezas(1);
    const auto sinBordes = Pic_Trabajo.Dibujo().Pixeles;
    EntraEnCompleto();
    EXPECT_FALSE(Gbl.DibujarBorde);
    EXPECT_NE(Pic_Trabajo.Dibujo().Pixeles, sinBordes);
    SaleDeCompleto();
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, sinBordes);
}

TEST_F(Partida, JigsawThatIsTakenBackShowsItsJointsAgain) {
    Moviles(3, 300, 300);
    for (i16 i = 1; i <= 9; ++i) Pon(i, Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien);
    const auto conJuntas = Pic_Trabajo.Dibujo().Pixeles;
    EntraEnCompleto();
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_NE(Pic_Trabajo.Dibujo().Pixeles, conJuntas);
    SaleDeCompleto();
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, conJuntas);
}

TEST_F(Partida, TheFinishedPuzzleStandsHalfASecondBeforeItIsPraised) {
    Moviles(3, 300, 300);
    Gbl.VelocidadJuego = 50;
    const double antes = P().dormido;
    FinDeJuego();
    EXPECT_DOUBLE_EQ(P().dormido - antes, 500);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
}

TEST_F(Partida, HistoryThatCannotBeWrittenIsReportedByNumber) {
    Moviles(3, 300, 300);
    Gbl.CarpetaPrograma = P().carpeta + "no/existe/";
    P().respuestas = {true};
    FinDeJuego();
    ASSERT_EQ(P().avisos.size(), 3U);
    EXPECT_EQ(P().avisos[2].texto.substr(0, 10), "HIS ERROR ");
    EXPECT_FALSE(Gbl.PuzzleArchivable);
}

}  // namespace tessario
