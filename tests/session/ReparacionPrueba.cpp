// SPDX-License-Identifier: GPL-3.0-or-later
// Records that contradict themselves: what becomes of them on the table.
#include <filesystem>
#include <fstream>

#include "apoyo/Invariantes.h"
#include "apoyo/MesaMontada.h"
#include "core/Cadenas.h"
#include "core/Errores.h"
#include "panel/Cronometro.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "records/Texto.h"
#include "rules/Despacho.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"
#include "session/Montaje.h"
#include "sliding/Tablero.h"
#include "table/Ordenes.h"

namespace tessario {

namespace {

// Lines of a record, from 0.
constexpr std::size_t REGISTRO = 4, PIEZAS = 5, MOVIMIENTOS = 6;
constexpr std::size_t ENTRADA = 23;  // characters of one piece or one move

class Reparacion : public MesaMontada {
protected:
    // Puts a value into a line at a column counted from 1 behind the quote; `entrada` from 1.
    void Cambia(std::size_t linea, std::size_t columna, const std::string& valor,
                std::size_t entrada = 1) {
        if (lineas_.empty()) lineas_ = Lineas(EscribePuzzle());
        lineas_[linea].replace((entrada - 1) * ENTRADA + columna, valor.size(), valor);
    }
    void Relee() {
        if (lineas_.empty()) lineas_ = Lineas(EscribePuzzle());
        std::string bytes;
        for (const std::string& l : lineas_) bytes += l + "\r\n";
        lineas_.clear();
        BorraError();
        LeePuzzle(bytes);
        if (ErrorPendiente() == 0) {
            EXPECT_EQ(Incumplido(InvariantesSiempre()), "");
        }
    }
    static std::vector<Pieza> Tabla() { return {Gbl.Piezas.begin(), Gbl.Piezas.end()}; }
    // The player slides a piece into the hole.
    void Desliza(i16 piece) {
        const Pieza& p = Gbl.Piezas[piece];
        Puntero.Pulsa(p.X + 20, p.Y + 20);
    }

private:
    std::vector<std::string> lineas_;
};

}  // namespace

// ---------------------------------------------------------------- fields with a range

TEST_F(Reparacion, ZoomOutsideFiveToNineHundredNinetyFiveBecomesAHundred) {
    const struct {
        const char* guardado;
        i16 leido;
    } casos[] = {{"004", 100}, {"000", 100}, {"-50", 100}, {"996", 100},
                 {"999", 100}, {"005", 5},   {"995", 995}, {"050", 50}};
    Gbl.SoloLeerAjustes = true;
    for (const auto& c : casos) {
        Moviles(3, 330, 250);
        Cambia(REGISTRO, 45, c.guardado);
        Relee();
        EXPECT_EQ(Gbl.ZoomImagen, c.leido) << c.guardado;
        EXPECT_EQ(ErrorPendiente(), 0) << c.guardado;
    }
}

TEST_F(Reparacion, NegativeTimeBecomesZero) {
    Moviles(3, 330, 250);
    Cambia(REGISTRO, 56, "-0000012");
    Relee();
    EXPECT_EQ(Gbl.SegundosJuego, 0);
    EXPECT_EQ(ErrorPendiente(), 0);
    EXPECT_EQ(TextoTiempo(Gbl.SegundosJuego), "0:00:00");
}

// ---------------------------------------------------------------- orientations

TEST_F(Reparacion, TurnsOfTheJigsawComeBackByTheRemainderOfFour) {
    Moviles(3, 330, 250);
    Cambia(PIEZAS, 9, "7", 2);
    Cambia(PIEZAS, 10, "1", 2);
    Cambia(PIEZAS, 19, "4", 2);
    Cambia(PIEZAS, 9, "3", 3);
    Relee();
    EXPECT_EQ(Gbl.Piezas[2].Giro, 3);
    EXPECT_EQ(Gbl.Piezas[2].Volteo, 0);
    EXPECT_EQ(Gbl.Piezas[2].GiroBien, 0);
    EXPECT_EQ(Gbl.Piezas[3].Giro, 3);
    EXPECT_EQ(ErrorPendiente(), 0);
}

TEST_F(Reparacion, TurnsOfTheTangramGoToEightAndOnlyTheParallelogramHasTwoFaces) {
    Tangram(MODO_RESOLVER);
    Cambia(PIEZAS, 9, "9", 1);
    Cambia(PIEZAS, 10, "1", 1);
    Cambia(PIEZAS, 9, "7", 7);
    Cambia(PIEZAS, 10, "3", 7);
    Cambia(PIEZAS, 20, "2", 7);
    Relee();
    EXPECT_EQ(Gbl.Piezas[1].Giro, 1);
    EXPECT_EQ(Gbl.Piezas[1].Volteo, 0);
    EXPECT_EQ(Gbl.Piezas[7].Giro, 7);
    EXPECT_EQ(Gbl.Piezas[7].Volteo, 1);
    EXPECT_EQ(Gbl.Piezas[7].VolteoBien, 0);
    EXPECT_EQ(ErrorPendiente(), 0);
}

TEST_F(Reparacion, SlidingPiecesAreNeverTurned) {
    Deslizantes(4);
    Cambia(PIEZAS, 9, "51", 6);
    Cambia(PIEZAS, 19, "21", 6);
    Relee();
    const Pieza& p = Gbl.Piezas[6];
    EXPECT_EQ(p.Giro + p.Volteo + p.GiroBien + p.VolteoBien, 0);
    EXPECT_EQ(ErrorPendiente(), 0);
}

TEST_F(Reparacion, TurnsOfTheLogFollowTheSameRange) {
    Moviles(3, 330, 250);
    RegistraMovimiento(10, 20, 1, 0, 30, 40, 2, 0);
    Cambia(MOVIMIENTOS, 12, "61");
    Cambia(MOVIMIENTOS, 22, "51");
    Relee();
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.Movimientos[1].GiroAntes, 2);
    EXPECT_EQ(Gbl.Movimientos[1].VolteoAntes, 0);
    EXPECT_EQ(Gbl.Movimientos[1].GiroDespues, 1);
    EXPECT_EQ(Gbl.Movimientos[1].VolteoDespues, 0);
}

// ---------------------------------------------------------------- the log

TEST_F(Reparacion, LogThatNamesAPieceThatIsNotThereIsDroppedAndThePuzzleStays) {
    for (const char* pieza : {"010", "000", "-01", "999"}) {
        Moviles(3, 330, 250);
        for (i16 i = 1; i <= 3; ++i) RegistraMovimiento(1, 2, 0, 0, 3, i, 0, 0);
        Gbl.SegundosJuego = 88;
        const auto piezas = Tabla();
        Cambia(MOVIMIENTOS, 1, pieza, 2);
        Relee();
        EXPECT_EQ(Gbl.NumMovimientos, 0) << pieza;
        EXPECT_EQ(Gbl.Movimientos.Superior(), 0) << pieza;
        EXPECT_EQ(Gbl.SegundosJuego, 88) << pieza;
        EXPECT_EQ(Tabla(), piezas) << pieza;
        EXPECT_EQ(ErrorPendiente(), 0) << pieza;
    }
}

TEST_F(Reparacion, SlidingLogThatPassesByTheHoleIsDropped) {
    Deslizantes(4);
    TableroResuelto();
    Gbl.Movimientos.Redimensiona(100);
    Desliza(15);
    Desliza(11);
    ASSERT_EQ(Gbl.NumMovimientos, 2);
    Relee();
    EXPECT_EQ(Gbl.NumMovimientos, 2) << "an honest log stays";
    Cambia(MOVIMIENTOS, 14, "0000", 1);  // where the first move ended
    Relee();
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Gbl.PiezasColocadas, 13);
    EXPECT_EQ(ErrorPendiente(), 0);
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(Reparacion, FirstMoveAfterALoadGrowsTheLogByAHundred) {
    Moviles(3, 330, 250);
    for (i16 i = 1; i <= 7; ++i) RegistraMovimiento(1, 2, 0, 0, 3, i, 0, 0);
    Relee();
    ASSERT_EQ(Gbl.Movimientos.Superior(), 7);
    RegistraMovimiento(1, 2, 0, 0, 3, 8, 0, 0);
    EXPECT_EQ(Gbl.Movimientos.Superior(), 107);
    EXPECT_EQ(Gbl.Movimientos[7].YDespues, 7);
    EXPECT_EQ(Gbl.Movimientos[8].YDespues, 8);
}

// ---------------------------------------------------------------- the sliding board

TEST_F(Reparacion, TwoPiecesOnOneCellAreToldAndDealtAnewOnTheSameBoard) {
    for (const i16 otra : {i16{1}, i16{2}, i16{9}}) {
        P().avisos.clear();
        Deslizantes(4);
        TableroResuelto();
        Gbl.NombreJugador = "Ana";
        const std::string sitio = Ceros(Gbl.Piezas[6].X, 4) + Ceros(Gbl.Piezas[6].Y, 4);
        Cambia(PIEZAS, 1, sitio, static_cast<std::size_t>(otra));
        Relee();
        EXPECT_EQ(ErrorPendiente(), 0);
        ASSERT_EQ(P().avisos.size(), 1U);
        EXPECT_EQ(P().avisos[0].titulo, "Configuración sin solución");
        EXPECT_EQ(Gbl.NombreJugador, "Ana");
        EXPECT_EQ(Gbl.PiezasPorLado, 4);
        EXPECT_TRUE(TableroEntero());
        EXPECT_TRUE(TieneSolucion());
        EXPECT_EQ(Gbl.NumMovimientos, 0);
    }
}

TEST_F(Reparacion, PieceOrHoleOffTheBoardIsDealtAnew) {
    Deslizantes(3);
    TableroResuelto();
    Cambia(PIEZAS, 1, "9999", 5);
    Relee();
    EXPECT_EQ(P().avisos.size(), 1U);
    EXPECT_TRUE(TableroEntero());
    Cambia(REGISTRO, 76, "0000");  // HuecoY
    Relee();
    EXPECT_EQ(P().avisos.size(), 2U);
    EXPECT_TRUE(TableroEntero());
    EXPECT_TRUE(TieneSolucion());
    EXPECT_EQ(ErrorPendiente(), 0);
}

TEST_F(Reparacion, GridOfADamagedHomeRefusesNothing) {
    for (const char* xBien : {"0000", "0001", "9999", "-999", "0170"}) {
        P().avisos.clear();
        Deslizantes(3);
        TableroResuelto();
        Cambia(PIEZAS, 11, xBien, 2);  // the home of piece 2 tells the grid
        Relee();
        EXPECT_EQ(ErrorPendiente(), 0) << xBien;
        EXPECT_TRUE(TableroEntero()) << xBien;
        EXPECT_TRUE(TieneSolucion()) << xBien;
    }
}

TEST_F(Reparacion, LettersGiveWayToNumbersOnBoardsThatHaveNotEnoughOfThem) {
    for (const auto& [lado, fondo] : {std::pair{5, FONDO_LETRAS}, {6, FONDO_NUMEROS}}) {
        Deslizantes(static_cast<i16>(lado));
        Gbl.TipoFondo = FONDO_LETRAS;
        Relee();
        EXPECT_EQ(Gbl.TipoFondo, fondo) << lado;
        EXPECT_EQ(ErrorPendiente(), 0);
    }
}

TEST_F(Reparacion, HomeOfASlidingPieceIsItsOwnCell) {
    Deslizantes(4);
    TableroResuelto();
    const auto buenas = Tabla();
    Cambia(PIEZAS, 11, "00100010", 6);
    Relee();
    EXPECT_EQ(Tabla(), buenas);
    EXPECT_EQ(Gbl.PiezasColocadas, 15);
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_EQ(ErrorPendiente(), 0);
}

TEST_F(Reparacion, SlidingPieceBesideItsCellIsPutIntoIt) {
    Deslizantes(4);
    TableroResuelto();
    const auto buenas = Tabla();
    const i16 huecoX = Gbl.HuecoX;
    Cambia(PIEZAS, 1, Ceros(Gbl.Piezas[6].X + 3, 4), 6);
    Cambia(REGISTRO, 72, Ceros(Gbl.HuecoX - 5, 4));
    Relee();
    EXPECT_EQ(Tabla(), buenas);
    EXPECT_EQ(Gbl.HuecoX, huecoX);
    EXPECT_TRUE(P().avisos.empty());
}

// ---------------------------------------------------------------- centred on every road

TEST_F(Reparacion, SlidingBoardIsCentredAlsoBehindAJigsawWithScrollBars) {
    // Side 4 at 800 x 600: cells of 89, board 356, strip at 659: margin (659 - 356) \ 2 = 151.
    Deslizantes(4);
    ASSERT_EQ(Gbl.MargenX, 151);
    TableroResuelto();
    const std::string tablero = EscribePuzzle();
    const auto centrado = [](const char* camino) {
        EXPECT_EQ(Gbl.MargenX, 151) << camino;
        EXPECT_EQ(Gbl.Piezas[1].XBien, 151) << camino;
        EXPECT_EQ((Gbl.HuecoX - 151) % 89, 0) << camino;
        // The frame's dark left side lies two pixels before the board, three wide.
        EXPECT_EQ(Pic_Imagen.Point(149, 200), Gbl.ColorFondoOscuro) << camino;
    };
    const auto conBarras = [&] {
        Moviles(3, 700, 500);
        ASSERT_TRUE(BarraVer.Visible);
        ASSERT_EQ(Pic_Botonera.Left, 642);
    };
    conBarras();
    LeePuzzle(tablero);
    centrado("a record");
    EXPECT_EQ(Gbl.PiezasColocadas, 15);
    PreparaJuego(false);
    centrado("a rebuilding");
    conBarras();
    Deslizantes(4);
    centrado("a new board");
    conBarras();
    Gbl.SoloLeerAjustes = true;
    LeePuzzle(tablero);
    EXPECT_EQ(Gbl.MargenX, 151) << "settings alone";
    EXPECT_TRUE(BarraVer.Visible) << "which touch no table";
}

// ---------------------------------------------------------------- the finished state

TEST_F(Reparacion, FinishedJigsawComesBackWithoutItsJoints) {
    Moviles(3, 330, 250);
    for (i16 i = 1; i <= 9; ++i) {
        Pieza& p = Gbl.Piezas[i];
        p.X = p.XBien;
        p.Y = p.YBien;
        p.Giro = 0;
    }
    P().imagenes[P().carpeta + "a.bmp"] = *Pic_FonTamModi.Picture();
    std::ofstream(P().carpeta + "a.bmp") << "x";
    Gbl.RutaImagen = P().carpeta + "a.bmp";
    Gbl.PuzzleTerminado = true;
    Relee();
    ASSERT_TRUE(Gbl.PuzzleTerminado);
    const auto sinJuntas = [] {
        for (i32 y = 0; y < Gbl.AltoPuzzle; y += 3)
            for (i32 x = 0; x < Gbl.AnchoPuzzle; ++x)
                if (Pic_Trabajo.Point(x, y) != Pic_FonTamModi.Point(x, y)) return false;
        return true;
    };
    EXPECT_TRUE(sinJuntas());
    Gbl.PuzzleTerminado = false;
    Relee();
    EXPECT_FALSE(sinJuntas()) << "the lines of the cut show while it is not finished";
}

TEST_F(Reparacion, ChangeOfColoursKeepsTheFinishedLook) {
    Moviles(2, 330, 250);
    for (i16 i = 1; i <= 4; ++i) {
        Pieza& p = Gbl.Piezas[i];
        p.X = p.XBien;
        p.Y = p.YBien;
        p.Giro = 0;
    }
    Gbl.PuzzleTerminado = true;
    Ventana ajustes;
    ajustes.Nombre = "Personal";
    VentanasOrdenes.Personal = &ajustes;
    P().ventanas["Personal"] = [](Ventana&) {
        Gbl.ColorFondo = 0x204060;
        Gbl.ColoresCambiados = true;
    };
    PulsaOrden(2);
    EXPECT_EQ(Pic_Imagen.Point(Pic_Imagen.Width() - 1, 5), 0x204060U);
    for (i32 x = 0; x < Gbl.AnchoPuzzle; ++x)
        ASSERT_EQ(Pic_Trabajo.Point(x, Gbl.AltoCelda), Pic_FonTamModi.Point(x, Gbl.AltoCelda)) << x;
}

TEST_F(Reparacion, PuzzleWithAPieceOutOfItsPlaceIsNotFinished) {
    Tangram(MODO_RESOLVER);
    Gbl.PuzzleTerminado = true;
    Relee();
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    for (i16 i = 1; i <= 7; ++i) {
        Gbl.Piezas[i].X = Gbl.Piezas[i].XBien;
        Gbl.Piezas[i].Y = Gbl.Piezas[i].YBien;
    }
    Gbl.PuzzleTerminado = true;
    Relee();
    EXPECT_TRUE(Gbl.PuzzleTerminado);
}

TEST_F(Reparacion, FinishedTangramWithoutBordersShowsThem) {
    Tangram(MODO_RESOLVER);
    Gbl.DibujarBorde = false;
    for (i16 i = 1; i <= 7; ++i) {
        Gbl.Piezas[i].X = Gbl.Piezas[i].XBien;
        Gbl.Piezas[i].Y = Gbl.Piezas[i].YBien;
    }
    Gbl.PuzzleTerminado = true;
    Relee();
    // The square, piece 6, at (20, 320): its corner is the outline.
    EXPECT_EQ(Pic_Trabajo.Point(20, 320), Gbl.ColorContraste);
    EXPECT_FALSE(Gbl.DibujarBorde);
}

// ---------------------------------------------------------------- the picture

TEST_F(Reparacion, PictureThatIsGoneIsFoundByItsNameAmongThePrograms) {
    Gbl.CarpetaImagenes = P().carpeta + "Imagenes/";
    std::filesystem::create_directories(Gbl.CarpetaImagenes);
    std::ofstream(Gbl.CarpetaImagenes + "Lago.bmp") << "x";
    P().imagenes[Gbl.CarpetaImagenes + "Lago.bmp"] = Mapa(400, 300, 0x00AA11);
    Deslizantes(4);
    Gbl.TipoFondo = FONDO_IMAGEN;
    Gbl.AnchoImagen = 400;
    Gbl.AltoImagen = 300;
    for (const char* ruta : {"/media/lapiz/fotos/LAGO.bmp", "E:\\fotos\\lago.BMP"}) {
        Gbl.RutaImagen = ruta;
        Pic_FonTamModi.PonPicture(nullptr);
        Relee();
        EXPECT_EQ(ErrorPendiente(), 0) << ruta;
        EXPECT_EQ(PixelDe(Pic_FonTamModi.Point(300, 250)), 0x00AA11U) << ruta;
        EXPECT_EQ(Gbl.RutaImagen, ruta) << "the file may come back";
    }
}

TEST_F(Reparacion, SlidingGameWhosePictureIsNowhereIsToldOnceAndDealtOnce) {
    for (const i16 fondo : {FONDO_IMAGEN, FONDO_NUMEROS}) {
        P().avisos.clear();
        Deslizantes(4);
        Gbl.TipoFondo = fondo;
        Gbl.FicheroImagen = "perdida.jpg";
        Gbl.RutaImagen = "/media/lapiz/perdida.jpg";
        GuardaAjustesJuego();
        LeeAjustesJuego(FicheroDelJuego());
        ASSERT_EQ(P().avisos.size(), 1U);
        EXPECT_EQ(P().avisos[0].titulo, "Imagen del puzzle");
        EXPECT_NE(P().avisos[0].texto.find("perdida.jpg"), std::string::npos);
        EXPECT_EQ(Gbl.RutaImagen, " ");
        EXPECT_EQ(Gbl.PiezasPorLado, 5);
        const auto piezas = Tabla();
        LeeAjustesJuego(FicheroDelJuego());
        EXPECT_EQ(P().avisos.size(), 1U) << "the next start is quiet";
        EXPECT_EQ(Tabla(), piezas) << "and brings the same board";
    }
}

TEST_F(Reparacion, NamesWithALineFeedKeepTheRecordWhole) {
    Moviles(3, 330, 250);
    Gbl.CarpetaImagen = "/fotos\r\ndel mar/";
    Gbl.FicheroImagen = "ola\n\"grande\".bmp";
    Gbl.RutaImagen = "/fotos\r\ndel mar/ola\n\"grande\".bmp";
    std::filesystem::create_directories(P().carpeta);
    P().imagenes[Gbl.RutaImagen] = Mapa(330, 250, 0x00AA11);
    Gbl.SegundosJuego = 321;
    const std::string bytes = EscribePuzzle();
    EXPECT_EQ(Lineas(bytes).size(), 7U);
    Gbl.CarpetaImagen.clear();
    Gbl.FicheroImagen.clear();
    Gbl.RutaImagen.clear();
    Gbl.SegundosJuego = 0;
    LeePuzzle(bytes);
    EXPECT_EQ(Gbl.CarpetaImagen, "/fotos\r\ndel mar/");
    EXPECT_EQ(Gbl.FicheroImagen, "ola\n\"grande\".bmp");
    EXPECT_EQ(Gbl.RutaImagen, "/fotos\r\ndel mar/ola\n\"grande\".bmp");
    EXPECT_EQ(Gbl.SegundosJuego, 321);
}

}  // namespace tessario
