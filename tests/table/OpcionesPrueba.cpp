// SPDX-License-Identifier: GPL-3.0-or-later
// The options panel: its rows, its place, the light that follows the pointer, and what a choice
// does.
#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "panel/Cronometro.h"
#include "table/Opciones.h"
#include "table/VentanasOrdenes.h"

namespace tessario {
namespace {

// The light is the cobalt of the palette.
constexpr Color AZUL = 0x9A3F1F, BLANCO = 0xFFFFFF, GRIS = 0x808080;

class PanelOpciones : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        const char* textos[] = {"Guardar este puzzle", "Cargar un puzzle", "Borrar un puzzle",
                                "Guardar como modelo"};
        for (i32 i = 1; i <= 4; ++i) Gbl.TextosOpciones[i] = textos[i - 1];
        BarraHor.Top = 600;
        BarraVer.Left = 800;
        Pic_Botonera.Tamano(141, 463);
        Pic_Botonera.Mueve(659, 0);
        Pic_Trabajo.Tamano(800, 600);
        Gbl.XPulsado = 100;
        Gbl.YPulsado = 200;
        for (i32 i = 1; i <= 3; ++i) Gbl.OpcionesActivas[i] = true;
    }
    void Elige(float y) {
        Pic_SelOpciones_MouseMove(0, 0, 20, y);
        Pic_SelOpciones_MouseUp(1, 0, 20, y);
    }
};

TEST_F(PanelOpciones, OpensAtThePressWithOneRowForEachActiveOption) {
    MuestraOpcionesSelec();
    EXPECT_TRUE(Pic_SelOpciones.Visible);
    EXPECT_EQ(Pic_SelOpciones.Width(), 150);
    EXPECT_EQ(Pic_SelOpciones.Height(), 3 * 18 + 4);
    EXPECT_EQ(Pic_SelOpciones.Left, 100);
    EXPECT_EQ(Pic_SelOpciones.Top, 200);
    EXPECT_EQ(Pic_SelOpciones.MouseIcon, "ManoIndice");
    // First letters of the rows at x 14, y 4, 22 and 40.
    for (const i32 y : {4, 22, 40}) EXPECT_EQ(Pic_SelOpciones.Point(15, y + 5), 0U) << y;
}

TEST_F(PanelOpciones, FrameIsWhiteAboveAndLeftAndGreyBelowAndRight) {
    MuestraOpcionesSelec();
    for (const i32 i : {0, 1}) {
        EXPECT_EQ(Pic_SelOpciones.Point(75, i), BLANCO);
        EXPECT_EQ(Pic_SelOpciones.Point(i, 29), BLANCO);
        EXPECT_EQ(Pic_SelOpciones.Point(75, 57 - i), GRIS);
        EXPECT_EQ(Pic_SelOpciones.Point(149 - i, 29), GRIS);
    }
}

TEST_F(PanelOpciones, StaysLeftOfTheStripAndAboveTheTablesBottom) {
    Gbl.XPulsado = 600;
    Gbl.YPulsado = 590;
    MuestraOpcionesSelec();
    EXPECT_EQ(Pic_SelOpciones.Left, 659 - 150);
    EXPECT_EQ(Pic_SelOpciones.Top, 600 - 58);
}

TEST_F(PanelOpciones, OptionFourStandsBelowASeparatorAndStays) {
    Gbl.OpcionesActivas[4] = true;
    MuestraOpcionesSelec();
    EXPECT_EQ(Pic_SelOpciones.Height(), 4 * 18 + 4);
    const i32 y = 3 * 18 + 4;
    for (i32 x = 2; x < 148; ++x) {  // from frame to frame
        EXPECT_EQ(Pic_SelOpciones.Point(x, y - 3), GRIS) << x;
        EXPECT_EQ(Pic_SelOpciones.Point(x, y - 2), BLANCO) << x;
        EXPECT_NE(Pic_SelOpciones.Point(x, y - 4), GRIS) << x;
    }
    Gbl.JuegoActual = JuegoDeslizantes;
    MuestraOpcionesSelec();
    EXPECT_EQ(Pic_SelOpciones.Height(), 4 * 18 + 4);
}

TEST_F(PanelOpciones, RowsAreThoseOfTheActiveOptionsOnly) {
    Ventana cargua;
    cargua.Nombre = "Cargua";
    VentanasOrdenes.Cargua = &cargua;
    Gbl.OpcionesActivas = {};
    Gbl.OpcionesActivas[2] = Gbl.OpcionesActivas[4] = true;
    MuestraOpcionesSelec();
    EXPECT_EQ(Pic_SelOpciones.Height(), 2 * 18 + 4);
    Elige(10);
    EXPECT_EQ(Gbl.ModoCargua, 1) << "the first row loads";
    MuestraOpcionesSelec();
    Elige(30);
    EXPECT_EQ(Gbl.ModoCargua, 4) << "the second keeps a model";
    VentanasOrdenes = {};
}

TEST_F(PanelOpciones, ClockGoesOnWhateverStoppedItWhileTheWindowWasOpen) {
    Ventana cargua;
    cargua.Nombre = "Cargua";
    VentanasOrdenes.Cargua = &cargua;
    for (const bool marcha : {true, false}) {
        Gbl.CronoEnMarcha = marcha;
        P().ventanas["Cargua"] = [](Ventana&) {
            DetieneCrono();  // as the settings do that a load can open
            ReponeCrono();
        };
        Elige(30);
        EXPECT_EQ(bool{Gbl.CronoEnMarcha}, marcha);
    }
    VentanasOrdenes = {};
}

TEST_F(PanelOpciones, NothingActiveShowsNothing) {
    Gbl.OpcionesActivas = {};
    MuestraOpcionesSelec();
    EXPECT_FALSE(Pic_SelOpciones.Visible);
}

TEST_F(PanelOpciones, LightFollowsThePointerAndIsZeroAboveTheFirstRow) {
    MuestraOpcionesSelec();
    const struct {
        float y;
        i16 fila;
    } casos[] = {{0, 0}, {1, 0}, {2, 1}, {19, 1}, {20, 2}, {37, 2}, {38, 3}, {55, 3}};
    for (const auto& c : casos) {
        Pic_SelOpciones_MouseMove(0, 0, 20, c.y);
        EXPECT_EQ(Gbl.OpcionResaltada, c.fila) << c.y;
    }
    // Row 3 is lit: its band from y 38 to 55, two pixels free at the left.
    EXPECT_EQ(Pic_SelOpciones.Point(5, 38), AZUL);
    EXPECT_EQ(Pic_SelOpciones.Point(5, 55), AZUL);
    EXPECT_NE(Pic_SelOpciones.Point(5, 37), AZUL);
    EXPECT_EQ(Pic_SelOpciones.Point(15, 45), BLANCO) << "its text is white";
}

TEST_F(PanelOpciones, LitRowReachesFromTheFrameToTheFrame) {
    Gbl.OpcionesActivas[4] = true;
    MuestraOpcionesSelec();
    for (i16 fila = 1; fila <= 4; ++fila) {
        const i32 y = (fila - 1) * 18 + 4;
        Pic_SelOpciones_MouseMove(0, 0, 20, static_cast<float>(y));
        ASSERT_EQ(Gbl.OpcionResaltada, fila);
        for (const i32 x : {0, 1, 148, 149}) EXPECT_NE(Pic_SelOpciones.Point(x, y + 13), AZUL);
        for (const i32 x : {2, 3, 146, 147})
            for (const i32 alto : {y - 1, y + 14})
                EXPECT_EQ(Pic_SelOpciones.Point(x, alto), AZUL) << fila << ": " << x;
        if (fila < 4) {
            EXPECT_NE(Pic_SelOpciones.Point(140, y + 16), AZUL);
        }
    }
}

TEST_F(PanelOpciones, OnAScrolledTableItStaysWithinWhatIsSeen) {
    BarraHor.Top = 583;
    BarraVer.Left = 783;
    Pic_Botonera.Mueve(642, 0);
    Pic_Trabajo.Tamano(1200, 1000);
    BarraHor.Value = 120;
    BarraVer.Value = 90;
    const struct {
        i16 x, y;
        i32 izq, arr;
    } casos[] = {
        {300, 250, 300, 250}, {612, 250, 612, 250},  // its right edge just at the strip: 642 + 120
        {613, 250, 612, 250}, {300, 615, 300, 615},  // its lower edge just at the bar: 583 + 90
        {300, 616, 300, 615}, {760, 670, 612, 615}};
    for (const auto& c : casos) {
        Gbl.XPulsado = c.x;
        Gbl.YPulsado = c.y;
        MuestraOpcionesSelec();
        EXPECT_EQ(Pic_SelOpciones.Left, c.izq) << c.x;
        EXPECT_EQ(Pic_SelOpciones.Top, c.arr) << c.y;
    }
}

TEST_F(PanelOpciones, ChoiceStopsTheClockAndRemembersIt) {
    for (const bool marcha : {true, false}) {
        Gbl.CronoEnMarcha = marcha;
        Gbl.CronoAntes = !marcha;  // left over from another pause
        MuestraOpcionesSelec();
        Elige(10);
        EXPECT_EQ(static_cast<bool>(Gbl.CronoAntes), marcha);
        EXPECT_EQ(static_cast<bool>(Gbl.CronoEnMarcha), marcha);
    }
}

TEST_F(PanelOpciones, EachChoiceOpensForItsPurpose) {
    Gbl.OpcionesActivas[4] = true;
    const struct {
        float y;
        i16 modo;
    } casos[] = {{10, 2}, {25, 1}, {45, 3}, {60, 4}};
    for (const auto& c : casos) {
        MuestraOpcionesSelec();
        Gbl.ModoCargua = 0;
        Elige(c.y);
        EXPECT_EQ(Gbl.ModoCargua, c.modo) << c.y;
        EXPECT_FALSE(Pic_SelOpciones.Visible);
    }
}

TEST_F(PanelOpciones, ChoiceKeepsTheClockAsItWas) {
    for (const bool marcha : {true, false}) {
        Gbl.CronoEnMarcha = marcha;
        MuestraOpcionesSelec();
        Elige(10);
        EXPECT_EQ(static_cast<bool>(Gbl.CronoEnMarcha), marcha);
    }
}

TEST_F(PanelOpciones, ReleaseWithNoLightDoesNothing) {
    MuestraOpcionesSelec();
    Elige(0);
    EXPECT_TRUE(Pic_SelOpciones.Visible);
    EXPECT_EQ(Gbl.ModoCargua, 0);
}

TEST_F(PanelOpciones, RecorderRefusesSavingAndLoadingOnly) {
    Gbl.GrabadoraEncendida = true;
    for (const float y : {10.0F, 25.0F}) {
        MuestraOpcionesSelec();
        Gbl.ModoCargua = 0;
        Elige(y);
        EXPECT_EQ(Gbl.ModoCargua, 0);
        EXPECT_FALSE(Pic_SelOpciones.Visible);
        ASSERT_FALSE(P().avisos.empty());
        EXPECT_EQ(P().avisos.back().titulo, "Grabadora encendida");
        EXPECT_EQ(P().avisos.back().texto,
                  "Tiene que apagar la Grabadora de jugadas antes de poder cargar o guardar un "
                  "puzzle.");
        EXPECT_EQ(P().avisos.back().modo, 2);
        EXPECT_EQ(P().avisos.back().botones, 1);
        EXPECT_EQ(P().avisos.back().ayuda, 0);
    }
    MuestraOpcionesSelec();
    Elige(45);
    EXPECT_EQ(Gbl.ModoCargua, 3);
}

}  // namespace
}  // namespace tessario
