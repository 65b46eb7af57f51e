// SPDX-License-Identifier: GPL-3.0-or-later
#include <fstream>
#include <sstream>

#include "apoyo/Datos.h"
#include "apoyo/MesaTangram.h"
#include "core/Superficies.h"
#include "rules/Colores.h"
#include "tangram/Figuras.h"

namespace tessario {

class Figuras : public PruebaBase {};

namespace {

// One line of the table of the pieces' polygons.
struct Dorada {
    i16 pieza = 0, giro = 0, volteo = 0;
    i32 ancho = 0, alto = 0, area = 0;
    std::vector<Rect> filas;
};

std::vector<Dorada> LeeDoradas() {
    std::ifstream entrada(std::string(DATOS) + "tangram_regions.txt");
    std::vector<Dorada> tabla;
    std::string linea;
    while (std::getline(entrada, linea)) {
        if (linea.empty() || linea[0] == '#') continue;
        std::istringstream s(linea);
        Dorada d;
        std::string palabra;
        std::size_t n = 0;
        s >> d.pieza >> d.giro >> d.volteo >> palabra >> d.ancho >> d.alto >> palabra >> n;
        for (std::size_t i = 0; i < n; ++i) s >> palabra;
        s >> palabra >> d.area >> palabra >> n;
        for (std::size_t i = 0; i < n; ++i) {
            Rect r;
            char coma = 0;
            s >> r.Izq >> coma >> r.Arr >> coma >> r.Der >> coma >> r.Aba;
            d.filas.push_back(r);
        }
        if (s) tabla.push_back(d);
    }
    return tabla;
}

// A figure of three known places: the two big triangles as a square, the square to their right.
void PonFiguraSencilla() {
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) Gbl.Piezas[i] = Pieza{};
    const Pieza sitios[] = {{},
                            {0, 0, 0, 0, 20, 20, 7, 0},
                            {0, 0, 0, 0, 20, 20, 3, 0},
                            {0, 0, 0, 0, 20, 144, 7, 0},
                            {0, 0, 0, 0, 108, 144, 7, 0},
                            {0, 0, 0, 0, 200, 300, 3, 0},
                            {0, 0, 0, 0, 144, 20, 0, 0},
                            {0, 0, 0, 0, 300, 300, 0, 0}};
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) Gbl.Piezas[i] = sitios[i];
}

}  // namespace

TEST_F(Figuras, RegionsOfAllPiecesInAllOrientationsAreTheGoldenOnes) {
    AbreTangram(MODO_CREAR);
    const auto tabla = LeeDoradas();
    ASSERT_EQ(tabla.size(), 64U);  // five triangles by 8, the square by 8, the rhomboid by 16
    for (const Dorada& d : tabla) {
        PonPieza(d.pieza, 0, 0, d.giro, d.volteo);
        const Region r = RegionEnMesa(d.pieza);
        EXPECT_EQ(r.Area(), d.area) << d.pieza << " " << d.giro << " " << d.volteo;
        EXPECT_EQ(r.Rectangulos(), d.filas) << d.pieza << " " << d.giro << " " << d.volteo;
        EXPECT_EQ(AnchoDePieza(d.pieza, d.giro, d.volteo), d.ancho);
        EXPECT_EQ(AltoDePieza(d.pieza, d.giro, d.volteo), d.alto);
    }
}

TEST_F(Figuras, RegionFollowsThePieceOnTheTable) {
    AbreTangram(MODO_CREAR);
    for (const i16 giro : {i16{0}, i16{3}}) {
        PonPieza(3, 0, 0, giro);
        Region origen = RegionEnMesa(3);
        PonPieza(3, 217, -31, giro);
        origen.Desplaza(217, -31);
        EXPECT_EQ(RegionEnMesa(3), origen);
    }
}

TEST_F(Figuras, BigTriangleOnItsLongSideIs177By89) {
    AbreTangram(MODO_CREAR);
    EXPECT_EQ(AnchoDePieza(1, 0, 0), 177);
    EXPECT_EQ(AltoDePieza(1, 0, 0), 89);
}

TEST_F(Figuras, RhomboidAtOneEighthIs63By126) {
    AbreTangram(MODO_CREAR);
    EXPECT_EQ(AnchoDePieza(7, 1, 0), 63);
    EXPECT_EQ(AltoDePieza(7, 1, 0), 126);
}

TEST_F(Figuras, SeedOfTheFillLiesInsideEveryPieceInEveryOrientation) {
    AbreTangram(MODO_CREAR);
    for (i16 p = 1; p <= PIEZAS_TANGRAM; ++p)
        for (i16 volteo = 0; volteo <= 1; ++volteo)
            for (i16 giro = 0; giro < 8; ++giro) {
                PonPieza(p, 0, 0, giro, volteo);
                const Region r = RegionEnMesa(p);
                TPuntoInterior(p, giro, volteo);
                EXPECT_TRUE(r.Contiene(Gbl.XInterior, Gbl.YInterior)) << p << " " << giro;
            }
}

TEST_F(Figuras, WhenCreatingThePuzzleIsTheWholeScreen) {
    P().ancho = 1024;
    P().alto = 768;
    AbreTangram(MODO_CREAR);
    EXPECT_EQ(Gbl.AnchoPuzzle, 1024);
    EXPECT_EQ(Gbl.AltoPuzzle, 768);
    EXPECT_EQ(Gbl.MargenX, 25);
    EXPECT_EQ(Gbl.MargenY, 25);
}

TEST_F(Figuras, WhenSolvingThePuzzleIsTheFiguresBox) {
    AbreTangram(MODO_CREAR);
    Gbl.ModoJuego = MODO_RESOLVER;
    PonFiguraSencilla();
    CalculaTamanos();
    // From (20, 20) to the rhomboid's right at 300 + 132 and the small triangle's foot at 300 + 63.
    EXPECT_EQ(Gbl.AnchoPuzzle, 300 + 132 - 20);
    EXPECT_EQ(Gbl.AltoPuzzle, 300 + 63 - 20);
}

TEST_F(Figuras, NewTableHasThePiecesInAColumnAndNoPlaces) {
    AbreTangram(MODO_CREAR);
    i32 y = 20;
    constexpr i16 anchos[] = {0, 177, 177, 125, 89, 89, 63, 132};
    constexpr i16 altos[] = {0, 89, 89, 63, 45, 45, 63, 44};
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) {
        const Pieza& p = Gbl.Piezas[i];
        EXPECT_EQ(p.X, 659 - 20 - anchos[i]) << i;
        EXPECT_EQ(p.Y, y) << i;
        EXPECT_EQ(p.XBien, 0);
        EXPECT_EQ(p.YBien, 0);
        EXPECT_EQ(Gbl.OrdenPiezas[i], i);
        y += altos[i] + 20;
    }
    EXPECT_EQ(Gbl.PasoOrdenar, 125);
    EXPECT_EQ(Gbl.SalienteX, 0);
    EXPECT_EQ(Gbl.SalienteY, 0);
}

TEST_F(Figuras, NewTableIsPlainAndShowsThePieces) {
    AbreTangram(MODO_CREAR);
    for (const Superficie* s :
         {static_cast<const Superficie*>(&Pic_Fondo), static_cast<const Superficie*>(&Pic_Imagen),
          static_cast<const Superficie*>(&Pic_Bitmap)}) {
        EXPECT_EQ(s->Width(), 800);
        EXPECT_EQ(s->Height(), 600);
    }
    EXPECT_EQ(Pic_Bitmap.Point(400, 300), Gbl.ColorPiezas);
    EXPECT_EQ(Pic_Fondo.Point(551, 70), Gbl.ColorFondo);
    EXPECT_EQ(Pic_Trabajo.Point(551, 70), Gbl.ColorPiezas);  // inside the first triangle
    EXPECT_EQ(Pic_Trabajo.Point(100, 300), Gbl.ColorFondo);
    EXPECT_FALSE(BarraHor.Visible);
    EXPECT_FALSE(BarraVer.Visible);
    EXPECT_FALSE(Pic_Cuadrito.Visible);
    EXPECT_FALSE(Pic_Muestra.Visible);
}

TEST_F(Figuras, WhenSolvingTheGroundShowsTheFigureFilled) {
    AbreTangram(MODO_CREAR);
    Gbl.ModoJuego = MODO_RESOLVER;
    PonFiguraSencilla();
    PreparaJuego(true);
    for (const Superficie* s : {static_cast<const Superficie*>(&Pic_Fondo),
                                static_cast<const Superficie*>(&Pic_Imagen)}) {
        EXPECT_EQ(s->Point(20, 20), Gbl.ColorContraste);    // a corner
        EXPECT_EQ(s->Point(60, 60), Gbl.ColorContraste);    // inside triangle 1
        EXPECT_EQ(s->Point(175, 50), Gbl.ColorContraste);   // inside the square
        EXPECT_EQ(s->Point(350, 320), Gbl.ColorContraste);  // inside the rhomboid
        EXPECT_EQ(s->Point(10, 10), Gbl.ColorFondo);
        EXPECT_EQ(s->Point(250, 250), Gbl.ColorFondo);
    }
    // The places stay those of the model.
    EXPECT_EQ(Gbl.Piezas[6].XBien, 144);
    EXPECT_EQ(Gbl.Piezas[2].GiroBien, 3);
}

TEST_F(Figuras, NothingStaysOfThePictureAndTheViewsOfTheGameBefore) {
    AbreTangram(MODO_CREAR);
    Superficie cuadro(300, 200);
    cuadro.PonBackColor(0x123456);
    for (const i16 modo : {MODO_CREAR, MODO_RESOLVER}) {
        for (Superficie* s : std::initializer_list<Superficie*>{&Pic_Bitmap, &Pic_Imagen})
            s->PonPicture(cuadro.Image());
        BarraHor.Visible = BarraVer.Visible = Pic_Cuadrito.Visible = Pic_Muestra.Visible = true;
        BarraHor.Value = BarraVer.Value = 30;
        Gbl.SalienteX = Gbl.SalienteY = 9;
        Gbl.OrdenPiezas.Redimensiona(25);
        Gbl.ModoJuego = modo;
        PonFiguraSencilla();
        PreparaJuego(true);
        EXPECT_EQ(Pic_Bitmap.Point(150, 100), Gbl.ColorPiezas);
        for (const Superficie* s :
             std::initializer_list<const Superficie*>{&Pic_Imagen, &Pic_Fondo})
            EXPECT_EQ(s->Point(290, 190), Gbl.ColorFondo);
        for (const Control* c : std::initializer_list<const Control*>{&BarraHor, &BarraVer,
                                                                      &Pic_Cuadrito, &Pic_Muestra})
            EXPECT_FALSE(c->Visible);
        EXPECT_EQ(BarraHor.Value, 0);
        EXPECT_EQ(BarraVer.Value, 0);
        EXPECT_EQ(Gbl.SalienteX, 0);
        EXPECT_EQ(Gbl.SalienteY, 0);
        EXPECT_TRUE(modo == MODO_RESOLVER || Gbl.OrdenPiezas.Superior() == PIEZAS_TANGRAM);
    }
}

TEST_F(Figuras, BordersOfThePiecesHaveTheContrastOfTheTableAsItIsNow) {
    AbreTangram(MODO_CREAR);
    Gbl.DibujarBorde = true;
    for (const Color fondo : {Color{0x000080}, Color{0xC0FFFF}}) {
        Gbl.ColorFondo = fondo;
        CalculaColores();
        PreparaJuego(true);
        const Pieza& cuadrado = Gbl.Piezas[6];
        EXPECT_EQ(Pic_Trabajo.Point(cuadrado.X, cuadrado.Y + 30), Gbl.ColorContraste);
        EXPECT_EQ(Pic_Trabajo.Point(cuadrado.X + 30, cuadrado.Y + 30), Gbl.ColorPiezas);
    }
}

TEST_F(Figuras, CreatingAfterAModelShowsNoFigureAndForgetsItsPlaces) {
    AbreTangram(MODO_CREAR);
    Gbl.ModoJuego = MODO_RESOLVER;
    PonFiguraSencilla();
    PreparaJuego(true);
    ASSERT_EQ(Pic_Fondo.Point(60, 60), Gbl.ColorContraste);
    Gbl.ModoJuego = MODO_CREAR;
    PreparaJuego(true);
    EXPECT_EQ(Pic_Fondo.Point(60, 60), Gbl.ColorFondo);
    EXPECT_EQ(Pic_Imagen.Point(60, 60), Gbl.ColorFondo);
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) {
        const Pieza& p = Gbl.Piezas[i];
        EXPECT_EQ(p.XBien + p.YBien + p.GiroBien + p.VolteoBien, 0) << i;
    }
}

TEST_F(Figuras, RebuiltTableKeepsThePiecesWhereTheyAre) {
    AbreTangram(MODO_CREAR);
    PonPieza(4, 111, 222, 5);
    const Arreglo<Pieza> antes = Gbl.Piezas;
    PreparaJuego(false);
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) EXPECT_EQ(Gbl.Piezas[i], antes[i]);
}

}  // namespace tessario
