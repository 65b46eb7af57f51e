// SPDX-License-Identifier: GPL-3.0-or-later
// The first games that come with the program, started by a new player.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "apoyo/PlataformaPrueba.h"
#include "core/Cadenas.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "pieces/Composicion.h"
#include "pieces/Raster.h"
#include "records/Modelos.h"
#include "records/Texto.h"
#include "rules/Catalogo.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"
#include "sliding/Tablero.h"
#include "start/Arranque.h"

namespace tessario {

namespace {

namespace fs = std::filesystem;

constexpr const char* BIENVENIDA = "TESSARIO  3.3";
constexpr const char* DATOS_INICIALES = "Error en la carga de datos iniciales";
constexpr i32 ANCHO_SUELTAS = 640, ALTO_SUELTAS = 580;

class Estreno : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        PonEstreno();
    }
    void Empieza(i16 juego) {
        std::string global = Contenido("TsR33.ini");
        global.replace(1, 2, std::to_string(juego));
        Crea("TsR33.ini", global);
        ASSERT_TRUE(Main());
    }
    // No message but the welcome, and no settings window.
    void SoloLaBienvenida() {
        ASSERT_EQ(P().avisos.size(), 1U);
        EXPECT_EQ(P().avisos[0].titulo, BIENVENIDA);
        EXPECT_EQ(std::count(P().mostradas.begin(), P().mostradas.end(), "Personal"), 0);
        EXPECT_TRUE(Mesa.Abierta);
    }
};

bool SeTocan(const Rect& a, const Rect& b) {
    return a.Izq < b.Der && b.Izq < a.Der && a.Arr < b.Aba && b.Arr < a.Aba;
}

TEST_F(Estreno, TheGlobalSettingsAreTheJigsawWithSoundAndHints) {
    EXPECT_EQ(Contenido("TsR33.ini"), "\"21-1050-1" + std::string(116, ' ') + "\"\r\n");
}

TEST_F(Estreno, AFirstStartGoesStraightToALaidJigsawOnEveryScreen) {
    for (const Punto pantalla : {Punto{800, 600}, {1280, 1024}, {3840, 2160}}) {
        P().ancho = pantalla.x;
        P().alto = pantalla.y;
        P().avisos.clear();
        P().mostradas.clear();
        Gbl = Bloque{};
        ReiniciaSuperficies();
        ReiniciaVentanas();
        Empieza(21);
        SoloLaBienvenida();
        EXPECT_EQ(P().cargadas.back(), P().carpeta + "Imagenes/Puerto.jpg");
        EXPECT_TRUE(Gbl.FormaPiezas == forma::IRREGULARES && Gbl.DibujarBorde) << "real tabs";
        EXPECT_EQ(Gbl.PiezasColocadas, 0);
        EXPECT_EQ(Gbl.SegundosJuego, 0);
        EXPECT_EQ(Gbl.NumMovimientos, 0);
        EXPECT_TRUE(Gbl.ImagenValida && Gbl.MostrarMuestra);
        EXPECT_FALSE(Gbl.PuzzleTerminado);
        // Nothing needs scrolling.
        EXPECT_FALSE(BarraHor.Visible || BarraVer.Visible);
    }
}

TEST_F(Estreno, AllLoosePiecesLieInViewAndClearOfWhatStandsOnTheTable) {
    Empieza(21);
    ASSERT_EQ(Gbl.NumPiezas, 25);
    const Rect encima[] = {
        RectDe(Pic_Botonera.Left, Pic_Botonera.Top, Pic_Botonera.Width(), Pic_Botonera.Height()),
        RectDe(Pic_Muestra.Left, Pic_Muestra.Top, Pic_Muestra.Width(), Pic_Muestra.Height()),
        RectDe(0, P().alto - 64, 423, 64),  // the hints
        {0, 0, Gbl.AnchoPuzzle, Gbl.AltoPuzzle}};
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
        PreparaPieza(i);
        const Rect caja = CajaDePieza(i);
        EXPECT_GE(caja.Izq, 0) << i;
        EXPECT_GE(caja.Arr, 0) << i;
        EXPECT_LE(caja.Der, ANCHO_SUELTAS) << i;
        EXPECT_LE(caja.Aba, ALTO_SUELTAS) << i;
        for (const Rect& e : encima) EXPECT_FALSE(SeTocan(caja, e)) << i << " " << e.Izq;
        // Cells do not overlap: every piece shows its picture.
        const Pieza& p = Gbl.Piezas[i];
        for (i32 j = 1; j < i; ++j) {
            const Pieza& q = Gbl.Piezas[j];
            EXPECT_FALSE(SeTocan(RectDe(p.X, p.Y, Gbl.AnchoCelda, Gbl.AltoCelda),
                                 RectDe(q.X, q.Y, Gbl.AnchoCelda, Gbl.AltoCelda)))
                << i << " " << j;
        }
    }
}

TEST_F(Estreno, TheSlidingBoardHasAPictureAndCanBeSolved) {
    Empieza(22);
    SoloLaBienvenida();
    EXPECT_EQ(Gbl.TipoFondo, FONDO_IMAGEN);
    EXPECT_EQ(P().cargadas.back(), P().carpeta + "Imagenes/Peces.jpg");
    EXPECT_EQ(Gbl.NumPiezas, 15);
    EXPECT_TRUE(TieneSolucion());
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_LT(CuentaColocadas(), 8);
}

TEST_F(Estreno, TheTangramHasAModelToSolve) {
    Empieza(23);
    SoloLaBienvenida();
    EXPECT_TRUE(ResolviendoModelo());
    EXPECT_EQ(Gbl.NombrePuzzle, "Cisne");
    // What the file of models has under that number is the figure on the table.
    Pieza antes[8];
    for (i32 i = 1; i <= 7; ++i) antes[i] = Gbl.Piezas[i];
    LeeModelo();
    EXPECT_EQ(Trim(De1252(NombreModelo(Gbl.RegistroModelo))), "Cisne");
    for (i32 i = 1; i <= 7; ++i) {
        EXPECT_EQ(Gbl.Piezas[i].XBien, antes[i].XBien) << i;
        EXPECT_EQ(Gbl.Piezas[i].YBien, antes[i].YBien) << i;
        EXPECT_EQ(Gbl.Piezas[i].GiroBien, antes[i].GiroBien) << i;
    }
}

TEST_F(Estreno, ThePictureIsFoundWhereverTheProgramLies) {
    // Neither the folder of the start nor that of the tool is named anywhere.
    for (const char* fichero : {"TsR2133.ini", "TsR2233.ini", "TsR2333.ini"})
        EXPECT_EQ(Contenido(fichero).find('/'), std::string::npos) << fichero;
    const std::string otra = P().carpeta + "otra/";
    fs::create_directories(otra);
    fs::rename(P().carpeta + "Imagenes", otra + "Imagenes");
    P().imagenes[otra + "Imagenes/Puerto.jpg"] = P().imagenes[P().carpeta + "Imagenes/Puerto.jpg"];
    for (const char* f : {"TsR33.ini", "TsR2133.ini"}) fs::rename(P().carpeta + f, otra + f);
    P().carpeta = otra;
    Empieza(21);
    SoloLaBienvenida();
    EXPECT_EQ(P().cargadas.back(), otra + "Imagenes/Puerto.jpg");
    EXPECT_EQ(Gbl.CarpetaImagen, otra + "Imagenes/") << "as the statistics tell";
    ASSERT_TRUE(Gbl.ImagenValida);
}

TEST_F(Estreno, AMissingFileIsToldAndMadeAnewAsEver) {
    fs::remove(P().carpeta + "TsR2133.ini");
    P().ventanas["Personal"] = [](Ventana&) {};
    Empieza(21);
    ASSERT_EQ(P().avisos.size(), 2U);
    EXPECT_EQ(P().avisos[0].titulo, DATOS_INICIALES);
    EXPECT_EQ(std::count(P().mostradas.begin(), P().mostradas.end(), "Personal"), 1)
        << "the player chooses a picture before anything is played";
    EXPECT_TRUE(fs::exists(P().carpeta + "TsR2133.ini"));
}

TEST_F(Estreno, WithoutTheGlobalFileItIsToldAndTheLaidGameComes) {
    fs::remove(P().carpeta + "TsR33.ini");
    ASSERT_TRUE(Main());
    ASSERT_EQ(P().avisos.size(), 2U);
    EXPECT_EQ(P().avisos[0].titulo, DATOS_INICIALES);
    EXPECT_EQ(Contenido("TsR33.ini").substr(0, 10), "\"210 0500 ");
    EXPECT_EQ(P().cargadas.back(), P().carpeta + "Imagenes/Puerto.jpg");
}

TEST_F(Estreno, ADamagedFileBringsTheDefaults) {
    const std::string entero = Contenido("TsR2233.ini");
    Crea("TsR2233.ini", entero.substr(0, entero.size() / 2));
    Empieza(22);
    SoloLaBienvenida();
    EXPECT_EQ(Gbl.NumPiezas, 24);
    EXPECT_EQ(Gbl.TipoFondo, FONDO_NUMEROS);
    EXPECT_FALSE(Gbl.PuzzleArchivable);
}

TEST_F(Estreno, ALostPictureIsTold) {
    P().imagenes.clear();
    fs::remove_all(P().carpeta + "Imagenes");
    Empieza(22);
    ASSERT_EQ(P().avisos.size(), 2U);
    EXPECT_EQ(P().avisos[0].titulo, "Imagen del puzzle");
    EXPECT_NE(P().avisos[0].texto.find("Peces.jpg"), std::string::npos);
}

TEST_F(Estreno, OnAMediumThatCannotBeWrittenTheFilesMoveToThePlayersFolderOnce) {
    fs::create_directory(P().carpeta + "CSCD.WRK");  // no probe of that name can be made
    Empieza(21);
    SoloLaBienvenida();
    EXPECT_EQ(P().cargadas.back(), P().carpeta + "Imagenes/Puerto.jpg");
    const std::string propia = P().carpeta + "sistema/Temp/Tsb/";
    for (const char* f : {"TSR33.INI", "TSR2133.INI", "TSR2233.INI", "TSR2333.INI"})
        EXPECT_TRUE(fs::exists(propia + f)) << f;
    EXPECT_TRUE(fs::is_directory(propia + "Imagenes")) << "for the pictures of the player";

    // Played, left, and a newer program put in the place of the old.
    Gbl.Piezas[3].X = 222;
    TerminaPrograma();
    const std::string jugado = Contenido(BuscaRuta(propia + "TsR2133.ini"));
    Crea("TsR2133.ini", Contenido("TsR2333.ini"));
    P().avisos.clear();
    Gbl = Bloque{};
    ReiniciaSuperficies();
    ReiniciaVentanas();
    Empieza(21);
    SoloLaBienvenida();
    EXPECT_EQ(Gbl.Piezas[3].X, 222);
    EXPECT_EQ(Contenido(BuscaRuta(propia + "TsR2133.ini")), jugado);
}

}  // namespace
}  // namespace tessario
