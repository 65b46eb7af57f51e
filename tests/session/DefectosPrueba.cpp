// SPDX-License-Identifier: GPL-3.0-or-later
// The defaults of a game without a file come over whatever another game has left in the block;
// and what a loaded record brings with it.
#include "apoyo/Invariantes.h"
#include "apoyo/MesaMontada.h"
#include "apoyo/MesaMoviles.h"
#include "core/Errores.h"
#include "core/Superficies.h"
#include "panel/Colocadas.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"
#include "session/Montaje.h"
#include "sliding/Tablero.h"
#include "start/Arranque.h"

namespace tessario {

namespace {

class Defectos : public MesaMontada {
protected:
    // Whatever was damaged, what lies on the table is a game.
    void TearDown() override {
        EXPECT_EQ(Incumplido(InvariantesSiempre()), "");
        MesaMontada::TearDown();
    }
    // Every setting other than its default.
    static void Revuelve(i16 juego) {
        Gbl.JuegoActual = juego;
        Gbl.NombreJugador = "Otra";
        Gbl.ColorFondo = 0xABCDEF;
        Gbl.ColorPiezas = 0x123456;
        Gbl.ColorContraste = 0x777777;
        Gbl.MostrarMuestra = juego != JuegoMoviles;
        Gbl.ModeloActual = 9;
        Gbl.ZoomImagen = 135;
        Gbl.PiezasPorLado = 7;
        Gbl.FormaPiezas = 4;
        Gbl.NumPiezas = 3;
        Gbl.SegundosJuego = 999;
        Gbl.PuzzleTerminado = true;
        Gbl.PuzzleArchivable = true;
        Gbl.NumMovimientos = 5;
        Gbl.ModoJuego = MODO_RESOLVER;
        Gbl.TipoFondo = FONDO_LETRAS;
        Gbl.FactorAtraccion = 71;
        Gbl.PermitirGiro = Gbl.DibujarBorde = Gbl.AtraccionPiezas = false;
        Gbl.PiezasPorCelda = 4;
    }
};

}  // namespace

TEST_F(Defectos, EveryDefaultComesOverWhatWasThere) {
    for (const i16 juego : {JuegoMoviles, JuegoDeslizantes, JuegoTangram}) {
        SCOPED_TRACE(juego);
        PonImagen("b.bmp", 400, 300);
        Moviles(3, 300, 300, 4);
        Revuelve(juego);
        LeeAjustesJuego(FicheroDelJuego());
        EXPECT_EQ(Gbl.JuegoActual, juego);
        EXPECT_EQ(Gbl.NombreJugador, "MiNombre");
        EXPECT_EQ(Gbl.ColorFondo, 0x800000U);
        EXPECT_EQ(Gbl.ColorPiezas, 0x008000U);
        EXPECT_EQ(Gbl.ColorContraste, 0xFFFFFFU);
        EXPECT_EQ(Gbl.ColorFondoClaro, 0xA82828U);
        EXPECT_EQ(Gbl.ColorPiezasOscuro, 0x005800U);
        EXPECT_EQ(static_cast<bool>(Gbl.MostrarMuestra), juego == JuegoMoviles);
        EXPECT_EQ(Gbl.ModeloActual, 1);
        EXPECT_EQ(Gbl.ZoomImagen, 100);
        EXPECT_EQ(Gbl.PiezasPorLado, 5);
        EXPECT_EQ(Gbl.FormaPiezas, 0);
        EXPECT_EQ(Gbl.NumPiezas, juego == JuegoMoviles ? 25 : juego == JuegoTangram ? 7 : 24);
        EXPECT_EQ(Gbl.SegundosJuego, 0);
        EXPECT_EQ(Gbl.NumMovimientos, 0);
        EXPECT_FALSE(Gbl.PuzzleTerminado);
        EXPECT_FALSE(Gbl.PuzzleArchivable);
        EXPECT_EQ(Gbl.ModoJuego, MODO_CREAR);
        EXPECT_EQ(Gbl.TipoFondo, FONDO_NUMEROS);
        EXPECT_EQ(Gbl.FactorAtraccion, 20);
        EXPECT_TRUE(Gbl.PermitirGiro);
        EXPECT_TRUE(Gbl.DibujarBorde);
        EXPECT_TRUE(Gbl.AtraccionPiezas);
        EXPECT_EQ(Gbl.PiezasPorCelda, 1);
        EXPECT_EQ(Gbl.Piezas.Superior(), Gbl.NumPiezas);
    }
}

TEST_F(Defectos, DefaultBoardIsLaidAllAtOnce) {
    Moviles(3, 300, 300);
    Revuelve(JuegoDeslizantes);
    Pic_Trabajo.Cls();
    P().presentaciones = 0;
    LeeAjustesJuego(FicheroDelJuego());
    EXPECT_LT(P().presentaciones, 12) << "24 pieces";
    for (i16 p = 1; p <= 24; ++p)
        EXPECT_EQ(Pic_Trabajo.Point(Gbl.Piezas[p].X + 8, Gbl.Piezas[p].Y + 30), Gbl.ColorPiezas)
            << p;
}

TEST_F(Defectos, JigsawOfEachShapeComesBackInItsPieces) {
    PonImagen("f.bmp", 420, 330);
    P().imagenes[RutaDe("Imagenes/f.bmp")] = *ImagenDeMuestra(420, 330);
    for (i16 forma = 1; forma <= 7; ++forma) {
        SCOPED_TRACE(forma);
        Moviles(3, 420, 330, forma);
        Gbl.RutaImagen = RutaDe("Imagenes/f.bmp");
        ColocaPiezas(1);
        const std::string bytes = EscribePuzzle();
        const Mapa mesa = Pic_Trabajo.Dibujo();
        const i16 piezas = Gbl.NumPiezas;
        Moviles(4, 320, 240, static_cast<i16>(forma % 7 + 1));
        BorraError();
        LeePuzzle(bytes);
        EXPECT_EQ(ErrorPendiente(), 0);
        EXPECT_EQ(Gbl.NumPiezas, piezas);
        EXPECT_EQ(Gbl.PiezasPorCelda, piezas / 9);
        EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, mesa.Pixeles);
    }
}

TEST_F(Defectos, CountOfThreeDigitsTouchesNoneOfItsNeighbours) {
    Moviles(5, 640, 480, 3);
    Gbl.SegundosJuego = 98765432;
    const std::string bytes = EscribePuzzle();
    ASSERT_NE(bytes.find("0050310098765432"), std::string::npos);
    Moviles(3, 300, 300);
    BorraError();
    Gbl.SoloLeerAjustes = true;
    LeePuzzle(bytes);
    EXPECT_EQ(ErrorPendiente(), 0);
    EXPECT_EQ(Gbl.PiezasPorLado, 5);
    EXPECT_EQ(Gbl.FormaPiezas, 3);
    EXPECT_EQ(Gbl.NumPiezas, 100);
    EXPECT_EQ(Gbl.SegundosJuego, 98765432);
}

TEST_F(Defectos, PictureOfTheBoardLiesBehindItsMargins) {
    PonImagen("f.bmp", 400, 300);
    P().imagenes[RutaDe("Imagenes/f.bmp")] = *ImagenDeMuestra(400, 300);
    Deslizantes(4);
    Gbl.TipoFondo = FONDO_IMAGEN;
    Gbl.AnchoImagen = 400;
    Gbl.AltoImagen = 300;
    Gbl.ZoomImagen = 150;
    Gbl.RutaImagen = RutaDe("Imagenes/f.bmp");
    const std::string bytes = EscribePuzzle();
    Moviles(3, 300, 300, 1);
    BorraError();
    LeePuzzle(bytes);
    EXPECT_EQ(ErrorPendiente(), 0);
    const i32 mx = Gbl.MargenX, my = Gbl.MargenY;
    ASSERT_GT(mx, 0);
    ASSERT_GT(my, 0);
    EXPECT_EQ(Pic_FonTamModi.Width(), 600 + mx);
    EXPECT_EQ(Pic_FonTamModi.Height(), 450 + my);
    EXPECT_EQ(Pic_FonTamModi.Fila(my)[mx], PixelDeMuestra(0, 0));
    EXPECT_EQ(Pic_FonTamModi.Fila(my + 449)[mx + 599], PixelDeMuestra(399, 299));
    EXPECT_EQ(Pic_FonTamModi.Fila(my + 150)[mx + 300], PixelDeMuestra(200, 100));
    EXPECT_EQ(Pic_FonTamModi.Fila(my - 1)[mx - 1], 0xFFFFFFU) << "the margins are empty";
}

TEST_F(Defectos, WithoutAFileThePictureIsEmptyWhateverLayThereBefore) {
    Moviles(3, 360, 270);
    Gbl.RutaImagen = " ";
    const std::string bytes = EscribePuzzle();
    for (Superficie* s : {&Pic_FonTamReal, &Pic_FonTamModi}) {
        s->Tamano(360, 270);
        s->PonPicture(ImagenDeMuestra(360, 270));
    }
    LeePuzzle(bytes);
    EXPECT_EQ(ErrorPendiente(), 0);
    ASSERT_EQ(Pic_FonTamModi.Width(), 360);
    for (const Pixel p : Pic_FonTamModi.Dibujo().Pixeles) ASSERT_EQ(p, 0xFFFFFFU);
    Tangram(MODO_CREAR);
    const std::string figura = EscribePuzzle();
    Pic_FonTamModi.PonPicture(ImagenDeMuestra(360, 270));
    LeePuzzle(figura);
    for (const Pixel p : Pic_FonTamModi.Dibujo().Pixeles) ASSERT_EQ(p, 0xFFFFFFU);
}

TEST_F(Defectos, LoadedPuzzleIsSeenBeingLaidTheTangramIsNot) {
    const auto muestras = [&] {
        Gbl.RutaImagen = " ";
        const std::string bytes = EscribePuzzle();
        P().presentaciones = 0;
        LeePuzzle(bytes);
        EXPECT_EQ(ErrorPendiente(), 0);
        return P().presentaciones;
    };
    Moviles(4, 360, 270);
    EXPECT_GE(muestras(), 16);
    Deslizantes(4);
    EXPECT_GE(muestras(), 15);
    Tangram(MODO_CREAR);
    EXPECT_LT(muestras(), 7);
    const i16 x = Gbl.Piezas[6].X, y = Gbl.Piezas[6].Y;  // the square
    EXPECT_NE(Pic_Trabajo.Point(x + 30, y + 30), Gbl.ColorFondo) << "but it is laid in the end";
    EXPECT_TRUE(Pic_Trabajo.Dibujo().Pixeles == Pic_Imagen.Dibujo().Pixeles);
}

TEST_F(Defectos, FirstMoveAfterALoadGrowsTheLogByAHundred) {
    Moviles(3, 360, 270);
    Gbl.RutaImagen = " ";
    for (i16 n = 0; n < 4; ++n) RegistraMovimiento(1, 2, 0, 0, n, 3, 0, 0);
    const std::string bytes = EscribePuzzle();
    LeePuzzle(bytes);
    ASSERT_EQ(Gbl.NumMovimientos, 4);
    ASSERT_EQ(Gbl.Movimientos.Superior(), 4);
    RegistraMovimiento(7, 8, 1, 0, 9, 10, 2, 0);
    EXPECT_EQ(Gbl.Movimientos.Superior(), 104);
    EXPECT_EQ(Gbl.Movimientos[5].XDespues, 9);
    for (i16 n = 0; n < 4; ++n) EXPECT_EQ(Gbl.Movimientos[static_cast<i16>(n + 1)].XDespues, n);
}

TEST_F(Defectos, RefusedPictureIsHeardThenToldAndLeavesAnEmptyOneOfTheSmallestSize) {
    Moviles(3, 1000, 700);
    Gbl.RutaImagen = " ";
    Gbl.ZoomImagen = 110;
    const std::string bytes = EscribePuzzle();
    Moviles(3, 360, 270, 1);
    Gbl.ImagenValida = true;
    std::vector<int> antesDelAviso;
    P().ventanas["Mensajes"] = [&](Ventana&) {
        if (antesDelAviso.empty()) antesDelAviso = Sonidos();
    };
    Sonidos();
    LeePuzzle(bytes);
    EXPECT_EQ(antesDelAviso, std::vector<int>{11});
    EXPECT_EQ(Gbl.ZoomImagen, 100);
    EXPECT_FALSE(Gbl.ImagenValida);
    ASSERT_EQ(Pic_FonTamModi.Width(), 320);
    ASSERT_EQ(Pic_FonTamModi.Height(), 240);
    for (const Pixel p : Pic_FonTamModi.Dibujo().Pixeles) ASSERT_EQ(p, 0xFFFFFFU);
}

class AzarDelArranque : public PruebaBase {};

TEST_F(AzarDelArranque, TheTimeOfDaySeedsTheFirstBoard) {
    P().horaDelDia = 12345.5;
    Crea("TsR33.ini", "\"220 1000 " + std::string(116, ' ') + "\"\r\n");
    Gbl.Azar[0] = 77;
    EXPECT_TRUE(Main());
    ASSERT_EQ(Gbl.JuegoActual, JuegoDeslizantes);
    const Arreglo<Pieza> piezas = Gbl.Piezas;
    Randomize(12345.5);
    DisponeTablero();
    BarajaDeslizantes();
    for (i16 p = 1; p <= Gbl.NumPiezas; ++p) EXPECT_EQ(Gbl.Piezas[p], piezas[p]) << p;
}

}  // namespace tessario
