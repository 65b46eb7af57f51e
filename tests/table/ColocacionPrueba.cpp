// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/MesaMoviles.h"
#include "apoyo/MesaTangram.h"
#include "records/Modelos.h"
#include "rules/PuzzBas.h"
#include "table/Colocacion.h"

namespace tessario {

namespace {

constexpr Pixel VERDE = 0x00FF00, ROJO = 0xFF0000;

}  // namespace

class Colocacion : public MesaMoviles {};

TEST_F(Colocacion, PlacedPiecesAreGreenAndTheOthersRed) {
    Monta(0, 3, 300, 240);
    Coloca(1, 400, 300);
    Coloca(5, 100, 80, 2);  // in place, wrongly turned
    PintaTodo();
    Gbl.MostrandoColocadas = true;
    MostrarPiezasBienoMal();
    EXPECT_EQ(Pic_Trabajo.Fila(340)[450], ROJO);
    EXPECT_EQ(Pic_Trabajo.Fila(120)[150], ROJO);
    EXPECT_EQ(Pic_Trabajo.Fila(40)[150], VERDE);
    EXPECT_EQ(Pic_Imagen.Fila(40)[150], VERDE);
    EXPECT_GE(P().presentaciones, 9) << "the player sees it piece by piece";
}

TEST_F(Colocacion, TheColourBlocksHaveThePiecesOwnShapes) {
    Monta(4, 3, 320, 240);
    Coloca(1, 400, 300);  // a circle of radius 28 in a cell of 106 by 80
    PintaTodo();
    Gbl.MostrandoColocadas = true;
    MostrarPiezasBienoMal();
    EXPECT_EQ(Pic_Trabajo.Fila(340)[453], ROJO);
    EXPECT_EQ(Pic_Trabajo.Fila(302)[402], PixelDe(Gbl.ColorFondo));
    EXPECT_EQ(Pic_Trabajo.Fila(2)[2], VERDE) << "the frame, in its place";
    EXPECT_EQ(Pic_Trabajo.Fila(40)[53], PixelDe(Gbl.ColorFondo)) << "its hole";
}

TEST_F(Colocacion, BlocksAreOutlinedSolidWhereRightAndDashedWhereWrong) {
    Monta(0, 3, 300, 240);
    Coloca(1, 400, 300);  // a rectangle of 100 x 80; piece 2 is in its place, 100 from the left
    PintaTodo();
    const auto tabla = Pic_Trabajo.Dibujo().Pixeles;
    Gbl.MostrandoColocadas = true;
    MostrarPiezasBienoMal();
    constexpr Pixel NEGRO = 0, CREMA = 0xF4E9D2;
    const auto cuenta = [](const Rect& r, Pixel p) {
        i32 n = 0;
        for (i32 y = r.Arr; y < r.Aba; ++y)
            for (i32 x = r.Izq; x < r.Der; ++x) n += Pic_Trabajo.Fila(y)[x] == p;
        return n;
    };
    // A ring of two pixels: 100 x 80 less 96 x 76.
    constexpr i32 ANILLO = 704, DENTRO = 96 * 76;
    const Rect bien = RectDe(100, 0, 100, 80), mal = RectDe(400, 300, 100, 80);
    EXPECT_EQ(cuenta(bien, NEGRO), ANILLO);
    EXPECT_EQ(cuenta(bien, VERDE), DENTRO);
    EXPECT_EQ(cuenta(mal, ROJO), DENTRO);
    EXPECT_NEAR(cuenta(mal, NEGRO), ANILLO / 2, 20);
    EXPECT_EQ(cuenta(mal, NEGRO) + cuenta(mal, CREMA), ANILLO);
    for (const Rect lado : {RectDe(400, 300, 100, 1), RectDe(400, 300, 1, 80),
                            RectDe(400, 379, 100, 1), RectDe(499, 300, 1, 80)})
        EXPECT_GT(cuenta(lado, CREMA), 30) << "on every side";
    Gbl.MostrandoColocadas = false;
    MostrarPiezasBienoMal();
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, tabla) << "nothing of it stays";
}

TEST_F(Colocacion, APictureOfThoseColoursGetsNoOutlineWhenTheDisplayEnds) {
    Monta(0, 3, 300, 240);
    Pic_Bitmap.PonPicture(nullptr);
    Pic_Bitmap.PonBackColor(0x0000FF);
    Coloca(1, 400, 300);
    MostrarPiezasBienoMal();
    for (i32 x = 400; x < 500; ++x) EXPECT_EQ(Pic_Trabajo.Fila(300)[x], ROJO) << x;
}

TEST_F(Colocacion, SmallBlocksHaveAThinOutline) {
    Monta(0, 10, 300, 300);  // squares of 30
    PintaTodo();
    Gbl.MostrandoColocadas = true;
    MostrarPiezasBienoMal();
    EXPECT_EQ(Pic_Trabajo.Fila(30)[45], 0U);
    EXPECT_EQ(Pic_Trabajo.Fila(31)[45], VERDE);
}

TEST_F(Colocacion, SlidingPiecesAreRightByPositionAlone) {
    Gbl.JuegoActual = JuegoDeslizantes;
    Gbl.PiezasPorLado = 3;
    Gbl.AnchoPantalla = 800;
    Gbl.AltoPantalla = 600;
    Gbl.DibujarBorde = false;
    Pic_Botonera.Left = 800 - 141;
    CalculaTamanos();
    Gbl.AnchoPieza = Gbl.AltoPieza = Gbl.AnchoCelda;
    for (Superficie* s :
         {&Pic_Fondo, &Pic_Imagen, &Pic_Bitmap, static_cast<Superficie*>(&Pic_Trabajo)})
        s->Tamano(800, 600);
    Gbl.Piezas.Redimensiona(8);
    Gbl.OrdenPiezas.Redimensiona(8);
    for (i16 p = 1; p <= 8; ++p) {
        Pieza& z = Gbl.Piezas[p];
        z.X = z.XBien = static_cast<i16>(Gbl.MargenX + (p - 1) % 3 * Gbl.AnchoCelda);
        z.Y = z.YBien = static_cast<i16>(Gbl.MargenY + (p - 1) / 3 * Gbl.AltoCelda);
        Gbl.OrdenPiezas[p] = p;
    }
    std::swap(Gbl.Piezas[1].X, Gbl.Piezas[2].X);
    Gbl.Piezas[4].Giro = 3;
    Gbl.MostrandoColocadas = true;
    MostrarPiezasBienoMal();
    const auto color = [](i16 p) {
        return Pic_Trabajo.Fila(Gbl.Piezas[p].Y + 20)[Gbl.Piezas[p].X + 20];
    };
    EXPECT_EQ(color(1), ROJO);
    EXPECT_EQ(color(2), ROJO);
    for (i16 p = 3; p <= 8; ++p) EXPECT_EQ(color(p), VERDE) << p;
}

TEST_F(Colocacion, EachPieceOfTheSolutionSoundsAndIsFollowedByItsPauses) {
    Monta(0, 3, 300, 240);
    Coloca(2, 100, 14, 0);  // one step of 14 below its place
    Gbl.Movimientos.Redimensiona(100);
    Gbl.ResolviendoPuzzle = true;
    Gbl.VelocidadJuego = 50;
    Gbl.Sonido = true;
    const double antes = P().dormido;
    ResuelvePuzzle();
    EXPECT_EQ(P().sonidos, (std::vector<std::pair<i16, bool>>{{51, false}}));
    EXPECT_DOUBLE_EQ(P().dormido - antes, 6 + 15) << "a step, and the rest after it";
}

TEST_F(Colocacion, TheSolutionRestsAfterATurn) {
    Monta(0, 3, 300, 240);
    Coloca(4, Gbl.Piezas[4].XBien, Gbl.Piezas[4].YBien, 1);  // in its place but turned
    Gbl.Movimientos.Redimensiona(100);
    Gbl.ResolviendoPuzzle = true;
    Gbl.VelocidadJuego = 50;
    const double antes = P().dormido;
    ResuelvePuzzle();
    EXPECT_EQ(Gbl.Piezas[4].Giro, 0);
    EXPECT_DOUBLE_EQ(P().dormido - antes, 160 + 110 + 6 + 15)
        << "the turn's own, the rest after it, a step back to the place, the rest there";
}

TEST_F(Colocacion, TheSolutionRestsAfterTurningOver) {
    AbreTangram(MODO_CREAR);
    Gbl.ModoJuego = MODO_RESOLVER;
    Gbl.CarpetaArchivo = CARPETA_MODELOS;
    Gbl.ModeloActual = 1;
    LeeModelo();
    CalculaTamanos();
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) {
        Pieza& p = Gbl.Piezas[i];
        PonPieza(i, p.XBien, p.YBien, p.GiroBien, p.VolteoBien);
    }
    Gbl.Piezas[PIEZAS_TANGRAM].Volteo = static_cast<i16>(1 - Gbl.Piezas[PIEZAS_TANGRAM].VolteoBien);
    PintaTodo();
    Gbl.ResolviendoPuzzle = true;
    Gbl.VelocidadJuego = 50;
    const double antes = P().dormido;
    ResuelvePuzzle();
    EXPECT_EQ(Gbl.Piezas[PIEZAS_TANGRAM].Volteo, Gbl.Piezas[PIEZAS_TANGRAM].VolteoBien);
    EXPECT_DOUBLE_EQ(P().dormido - antes, 110 + 15) << "the rest after it, the rest in the place";
}

TEST_F(Colocacion, SolvingPutsEveryPieceHomeTurnedAndLogged) {
    Monta(0, 3, 300, 240);
    Coloca(2, 400, 300, 1);
    Coloca(7, 50, 350, 3);
    Gbl.Movimientos.Redimensiona(100);
    Gbl.PuzzleArchivable = true;
    Gbl.ResolviendoPuzzle = true;
    PintaTodo();
    P().alDejarPasar = [] { EXPECT_TRUE(Gbl.TareaAutomatica) << "the pointer's hourglass"; };
    ResuelvePuzzle();
    P().alDejarPasar = nullptr;
    EXPECT_EQ(CuentaColocadas(), 9);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
    EXPECT_FALSE(Gbl.ResolviendoPuzzle);
    EXPECT_FALSE(Gbl.TareaAutomatica);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    ASSERT_EQ(Gbl.NumMovimientos, 4) << "a turn and a run for each";
    EXPECT_EQ(Gbl.Movimientos[1].Pieza, 2);
    EXPECT_EQ(Gbl.Movimientos[1].GiroAntes, 1);
    EXPECT_EQ(Gbl.Movimientos[1].GiroDespues, 0);
    EXPECT_EQ(Gbl.Movimientos[2].Pieza, 2);
    EXPECT_EQ(Gbl.Movimientos[2].GiroAntes, 0) << "the turn came first";
    EXPECT_EQ(Gbl.Movimientos[2].XDespues, 100);
    EXPECT_EQ(Gbl.Movimientos[3].GiroAntes, 3);
    EXPECT_EQ(Gbl.Movimientos[4].Pieza, 7);
}

TEST_F(Colocacion, SolvingLeavesOutNeitherTheTopNorTheBottomOfTheStack) {
    Monta(0, 3, 300, 240);
    for (i16 p = 1; p <= 9; ++p) Coloca(p, static_cast<i16>(320 + 20 * p), 300);
    Gbl.Movimientos.Redimensiona(100);
    Gbl.ResolviendoPuzzle = true;
    ResuelvePuzzle();
    EXPECT_EQ(CuentaColocadas(), 9);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
}

TEST_F(Colocacion, ASecondPressStopsTheSolverAfterTheCurrentPiece) {
    Monta(0, 3, 300, 240);
    for (i16 p = 1; p <= 9; ++p) Coloca(p, static_cast<i16>(320 + 20 * p), 300);
    Gbl.Movimientos.Redimensiona(100);
    Gbl.ResolviendoPuzzle = true;
    P().eventos.push_back([] {});
    P().eventos.push_back([] { Gbl.ResolviendoPuzzle = false; });
    ResuelvePuzzle();
    EXPECT_EQ(CuentaColocadas(), 2);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
}

}  // namespace tessario
