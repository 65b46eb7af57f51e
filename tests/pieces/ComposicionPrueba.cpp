// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/MesaMoviles.h"
#include "core/Fallos.h"
#include "pieces/Composicion.h"

namespace tessario {

namespace {

// Points at which two drawings differ.
std::vector<Punto> Diferencias(const Mapa& a, const Mapa& b) {
    std::vector<Punto> v;
    for (i32 y = 0; y < a.Alto; ++y)
        for (i32 x = 0; x < a.Ancho; ++x)
            if (a.Fila(y)[x] != b.Fila(y)[x]) v.push_back({x, y});
    return v;
}

}  // namespace

class Composicion : public MesaMoviles {
protected:
    // A table of 9 rectangles of 100 by 80, all but the first ones far from each other.
    void Nueve() { Monta(0, 3, 300, 240); }
};

TEST_F(Composicion, StackingOrder) {
    Nueve();
    EXPECT_EQ(PosicionEnOrden(4), 4);
    SubePieza(4);
    const i16 orden[] = {4, 1, 2, 3, 5, 6, 7, 8, 9};
    for (i32 i = 1; i <= 9; ++i) EXPECT_EQ(Gbl.OrdenPiezas[i], orden[i - 1]);
    EXPECT_EQ(PosicionEnOrden(3), 4);
    EXPECT_EQ(PosicionEnOrden(55), 0);
    EXPECT_THROW(SubePieza(0), ErrorEjecucion);
}

TEST_F(Composicion, BoxOfAPieceHasItsOverhangAndItsTurn) {
    Monta(1, 4, 400, 300);  // cells of 99 by 75, overhang 13 and 17
    Coloca(6, 200, 150);
    EXPECT_EQ(CajaDePieza(6), RectDe(187, 133, 99 + 26, 75 + 34));
    Coloca(6, 200, 150, 1);
    EXPECT_EQ(CajaDePieza(6), RectDe(187, 133, 75 + 34, 99 + 26));
}

TEST_F(Composicion, APaintedPieceBlendsWithWhatLiesBelow) {
    Monta(4, 3, 320, 240);  // circles; cells of 106 by 80
    PintaTodo();
    const Mapa antes = Pic_Imagen.Dibujo();
    Coloca(1, 400, 300);
    PreparaPieza(1);
    PintaPieza(Pic_Imagen, 1);
    // Outside the circle the table stays as it was, inside is the picture.
    EXPECT_FALSE(Negro(0, 0));
    EXPECT_TRUE(Negro(53, 40));
    for (i32 y = 0; y < 80; ++y)
        for (i32 x = 0; x < 106; ++x)
            ASSERT_EQ(Pic_Imagen.Fila(300 + y)[400 + x],
                      Negro(x, y) ? PixelDeMuestra(x, y) : antes.Fila(300 + y)[400 + x])
                << x << ' ' << y;
}

TEST_F(Composicion, RemovingTheBottomPieceLeavesThePileAsItWasWithoutIt) {
    Nueve();
    // Three in a pile: 3 at the bottom, 2, 1 on top; the others elsewhere.
    Coloca(3, 350, 250);
    Coloca(2, 380, 270);
    Coloca(1, 420, 240);
    PintaTodo();
    BorraPieza(3);
    const Mapa borrada = Pic_Imagen.Dibujo();
    Pic_Imagen.Cls();
    for (i16 p = 9; p >= 1; --p) {
        if (p == 3) continue;
        PreparaPieza(p);
        PintaPieza(Pic_Imagen, p);
    }
    EXPECT_TRUE(Diferencias(borrada, Pic_Imagen.Dibujo()).empty());
    EXPECT_EQ(Pic_Imagen.Recorte(), nullptr);
}

TEST_F(Composicion, PiecesThatOnlyTouchAreNotRepainted) {
    Nueve();
    // Piece 5 meets piece 1 at a corner, piece 2 lies far off.
    for (i16 p = 1; p <= 9; ++p) Coloca(p, static_cast<i16>(p * 20), 450);
    Coloca(1, 300, 200);
    Coloca(5, 400, 280);
    PintaTodo();
    PreparaPieza(9);
    const Pieza marca = Gbl.PiezaAux;
    BorraPieza(1);
    EXPECT_EQ(Gbl.PiezaAux, marca) << "another piece was prepared";
    // One pixel nearer, and it is.
    Coloca(5, 399, 279);
    BorraPieza(1);
    EXPECT_EQ(Gbl.PiezaAux, Gbl.Piezas[5]);
}

TEST_F(Composicion, ATakenPieceStaysVisibleAndLeavesTheTable) {
    Nueve();
    Coloca(1, 350, 250);
    PintaTodo();
    TomaPieza(360, 260, 1);
    EXPECT_EQ(Pic_Trabajo.Fila(250)[350], PixelDeMuestra(0, 0));
    EXPECT_EQ(Pic_Imagen.Fila(250)[350], PixelDe(Gbl.ColorFondo));
    EXPECT_EQ(Pic_PiezaImagen.Fila(0)[0], PixelDeMuestra(0, 0)) << "its own raster is ready";
    EXPECT_EQ(Gbl.XRaton, 360);
    EXPECT_EQ(Gbl.YRaton, 260);
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
}

TEST_F(Composicion, APieceTakenFromBelowIsSeenAboveTheOthersAtOnce) {
    Nueve();
    Coloca(1, 350, 250);
    Coloca(2, 380, 270);
    PintaTodo();
    ASSERT_EQ(Pic_Trabajo.Fila(280)[400], PixelDeMuestra(50, 30)) << "the first piece lies above";
    SubePieza(2);
    TomaPieza(390, 280, 2);
    EXPECT_EQ(Pic_Trabajo.Fila(280)[400], PixelDeMuestra(120, 10));
    EXPECT_EQ(Pic_Trabajo.Fila(260)[360], PixelDeMuestra(10, 10));
    EXPECT_EQ(Pic_Imagen.Fila(280)[400], PixelDeMuestra(50, 30));
}

TEST_F(Composicion, EachStepOfADragCountsFromTheLastOne) {
    Nueve();
    Coloca(1, 350, 250);
    PintaTodo();
    TomaPieza(360, 260, 1);
    MuevePieza(365, 257, 1);
    MuevePieza(370, 270, 1);
    EXPECT_EQ(Gbl.Piezas[1].X, 360);
    EXPECT_EQ(Gbl.Piezas[1].Y, 260);
    EXPECT_EQ(Gbl.XRaton, 370);
    EXPECT_EQ(Gbl.YRaton, 270);
    EXPECT_EQ(Gbl.XViejo, 355);
    EXPECT_EQ(Gbl.YViejo, 247);
}

TEST_F(Composicion, ADragOfOnePixelRestoresAStripOfOnePixel) {
    Nueve();
    Coloca(1, 350, 250);
    PintaTodo();
    TomaPieza(360, 260, 1);
    const Mapa antes = Pic_Trabajo.Dibujo();
    Pic_Trabajo.TomaTocado();
    MuevePieza(361, 260, 1);
    EXPECT_EQ(Gbl.Piezas[1].X, 351);
    EXPECT_EQ(Gbl.XViejo, 350);
    EXPECT_EQ(Gbl.YViejo, 250);
    for (i32 y = 250; y < 330; ++y)
        ASSERT_EQ(Pic_Trabajo.Fila(y)[350], PixelDe(Gbl.ColorFondo)) << y;
    EXPECT_EQ(Pic_Trabajo.Fila(250)[351], PixelDeMuestra(0, 0));
    for (const Punto& p : Diferencias(antes, Pic_Trabajo.Dibujo()))
        ASSERT_TRUE(RectDe(350, 250, 101, 80).Contiene(p.x, p.y)) << p.x << ' ' << p.y;
    EXPECT_EQ(Pic_Trabajo.Recorte(), nullptr);
}

TEST_F(Composicion, ARotatedPieceIsDraggedByItsTurnedBox) {
    Nueve();
    Coloca(1, 350, 250, 1);  // 80 wide, 100 high
    PintaTodo();
    TomaPieza(360, 260, 1);
    MuevePieza(460, 260, 1);
    for (i32 y = 250; y < 350; ++y)
        for (i32 x = 350; x < 430; ++x)
            ASSERT_EQ(Pic_Trabajo.Fila(y)[x], PixelDe(Gbl.ColorFondo)) << x << ' ' << y;
    EXPECT_EQ(Pic_Trabajo.Fila(250)[450 + 79], PixelDeMuestra(0, 0));
}

TEST_F(Composicion, AnOverflowingDragRaisesError6) {
    Nueve();
    Gbl.Piezas[1].X = 32000;
    Gbl.XRaton = -1000;
    EXPECT_THROW(MuevePieza(1000, 0, 1), ErrorEjecucion);
}

TEST_F(Composicion, ASlideGoesInStepsOf14AndEndsExactly) {
    Nueve();
    Coloca(1, 350, 250);
    PintaTodo();
    std::vector<Punto> pasos;
    P().alDormir = [&] { pasos.push_back({Gbl.Piezas[1].X, Gbl.Piezas[1].Y}); };
    DeslizaPieza(350, 250, 370, 210, 1);
    const std::vector<Punto> esperado = {{364, 236}, {370, 222}, {370, 210}};
    EXPECT_EQ(pasos, esperado);
    EXPECT_EQ(Pic_Imagen.Fila(210)[370], PixelDeMuestra(0, 0)) << "laid down";
    EXPECT_TRUE(Gbl.ArrastrandoPieza);
}

TEST_F(Composicion, ASlideOf20PixelsTakesTwoSteps) {
    Nueve();
    Coloca(1, 350, 250);
    PintaTodo();
    std::vector<i16> pasos;
    P().alDormir = [&] { pasos.push_back(Gbl.Piezas[1].X); };
    DeslizaPieza(350, 250, 330, 250, 1);
    EXPECT_EQ(pasos, (std::vector<i16>{336, 330}));
    pasos.clear();
    const double antes = P().reloj;
    DeslizaPieza(330, 250, 315, 250, 1);
    EXPECT_EQ(pasos, (std::vector<i16>{316, 315})) << "one pixel more than a step";
    EXPECT_NEAR(P().reloj - antes, 2 * 6, 0.01);
}

TEST_F(Composicion, PaintShowsTheWholeTableAlsoWhenItCopiesAPart) {
    Nueve();
    PintaTodo();
    EXPECT_TRUE(Diferencias(Pic_Trabajo.Dibujo(), Pic_Imagen.Dibujo()).empty());
    Pic_Imagen.PSet(700, 500, 0x00FFFF);
    Pic_Trabajo.PSet(5, 5, 0x00FFFF);
    Pic_Trabajo_Paint();
    EXPECT_TRUE(Diferencias(Pic_Trabajo.Dibujo(), Pic_Imagen.Dibujo()).empty());
    Pic_Trabajo.TomaSucio();
    Pic_Trabajo_Paint();
    EXPECT_TRUE(Pic_Trabajo.Sucio().Vacio()) << "nothing changed, nothing is copied";
}

TEST_F(Composicion, APieceTakenFromAPileMovesWithItsOwnPixels) {
    Nueve();
    // 1 lies on 5 and 9, whose pixels are made anew when it is lifted.
    Coloca(9, 340, 260);
    Coloca(5, 360, 250);
    Coloca(1, 350, 240);
    PintaTodo();
    TomaPieza(400, 300, 1);
    MuevePieza(500, 400, 1);
    EXPECT_EQ(Pic_Trabajo.Fila(340 + 40)[450 + 50], PixelDeMuestra(50, 40));
    EXPECT_EQ(Pic_Trabajo.Fila(340)[450], PixelDeMuestra(0, 0));
    EXPECT_EQ(Pic_Trabajo.Fila(270)[370], PixelDeMuestra(110, 100)) << "what lay below";
}

}  // namespace tessario
