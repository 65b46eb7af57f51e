// SPDX-License-Identifier: GPL-3.0-or-later
// The hint panel: the table of hints, its painting, and the two presses that close it.
#include "apoyo/PlataformaPrueba.h"
#include "core/Cadenas.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Sugerencias.h"

namespace tessario {
namespace {

constexpr Color AZUL = 0xFF0000;

class PanelSugerencias : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        Gbl.VentanaInformacion = true;
        BarraHor.Top = 600;
        Mapa vario(342, 78);
        vario.Fila(30)[234] = 0x123456;
        vario.Fila(48)[252] = 0x654321;
        P().recursos["BmpVario"] = vario;
        Pic_BmpVario.Tamano(342, 78);
        Pic_BmpVario.PonPicture(std::make_shared<Mapa>(vario));
        CargaSugerencias();
    }
};

TEST_F(PanelSugerencias, EveryTextHas180CharactersAndBlanksThatAreNeverShown) {
    const i16 llenas[] = {0,  10, 15, 21, 22, 23, 25, 30, 32, 34, 36, 40, 42,
                          43, 45, 47, 50, 52, 60, 63, 65, 67, 75, 77, 78, 80};
    i32 n = 0;
    for (i32 i = 0; i <= 80; ++i) n += Gbl.Sugerencias[i].Texto.empty() ? 0 : 1;
    EXPECT_EQ(n, 26);
    for (const i16 i : llenas) {
        const std::string& t = Gbl.Sugerencias[i].Texto;
        EXPECT_EQ(Len(t), 180) << i;
        // Characters 60, 120 and 180 do not fit the lines: they must be blanks.
        for (const i32 p : {60, 120, 180}) EXPECT_EQ(Mid(t, p, 1), " ") << i << " at " << p;
        EXPECT_GE(Gbl.Sugerencias[i].Contexto, 2111);
    }
    EXPECT_EQ(Gbl.Sugerencias[47].Contexto, 4040);
    EXPECT_EQ(Trim(Mid(Gbl.Sugerencias[52].Texto, 1, 59)),
              "Haga clic sobre una pieza para que el  Tutor  le indique el");
    EXPECT_EQ(Gbl.Sugerencias[11].Texto, "");
}

TEST_F(PanelSugerencias, StandsAtTheBottomLeftAndFollowsOnlyTheVerticalScroll) {
    BarraVer.Value = 37;
    BarraHor.Value = 90;
    Sugerencia(10);
    EXPECT_TRUE(Pic_Sugerencia.Visible);
    EXPECT_EQ(Pic_Sugerencia.Width(), 423);
    EXPECT_EQ(Pic_Sugerencia.Height(), 64);
    EXPECT_EQ(Pic_Sugerencia.Left, 0);
    EXPECT_EQ(Pic_Sugerencia.Top, 600 - 64 + 37);
    EXPECT_EQ(Gbl.SugerenciaActual, 10);
    EXPECT_EQ(Gbl.ContextoAyuda, 2112);
}

TEST_F(PanelSugerencias, LinkAndCloseButtonStandInTheirPlaces) {
    Sugerencia(15);
    EXPECT_EQ(Pic_SugeMasAyuda.Left, 5);
    EXPECT_EQ(Pic_SugeMasAyuda.Top, 3);
    EXPECT_EQ(Pic_SugeMasAyuda.Width(), 55);
    EXPECT_EQ(Pic_SugeMasAyuda.Height(), 19);
    EXPECT_TRUE(Pic_SugeMasAyuda.Font.Subrayado);
    EXPECT_EQ(Pic_SugeBotCerrar.Left, 423 - 19 - 6);
    EXPECT_EQ(Pic_SugeBotCerrar.Top, 2);
    EXPECT_EQ(Pic_SugeBotCerrar.Point(0, 0), ColorDe(0x123456));
    EXPECT_EQ(Pic_SugeBotCerrar.Point(18, 18), ColorDe(0x654321));
    EXPECT_EQ(Pic_SugeBotCerrar.MouseIcon, "ManoIndice");
    EXPECT_EQ(Pic_SugeMasAyuda.MouseIcon, "ManoIndice");
}

TEST_F(PanelSugerencias, LinesShowFiftyNineCharactersAtTheirHeights) {
    // The block font is 6 pixels wide at this size: a character at index k fills from 3 + 6 k.
    Sugerencia(21);
    const i32 w = P().AnchoTexto(Pic_Sugerencia.Font, "x");
    const std::string& t = Gbl.Sugerencias[21].Texto;
    for (i32 linea = 1; linea <= 3; ++linea)
        for (i32 k = 0; k < 59; ++k) {
            const bool letra = Mid(t, (linea - 1) * 60 + 1 + k, 1) != " ";
            // Second row of a line: the first rows are free of the line before.
            const Color c = Pic_Sugerencia.Point(3 + k * w + 1, linea * 11 + 13 + 8);
            EXPECT_EQ(c == AZUL, letra) << linea << ":" << k;
        }
    EXPECT_FALSE(Pic_Sugerencia.Font.Subrayado);
}

TEST_F(PanelSugerencias, ShowingRestartsTheWaitOfTheTick) {
    P().reloj = 123456;
    Sugerencia(45);
    EXPECT_EQ(Gbl.HoraUltimaSugerencia, 123456U);
}

TEST_F(PanelSugerencias, NothingIsShownWhenSwitchedOff) {
    Gbl.VentanaInformacion = false;
    Gbl.SugerenciaActual = 15;
    Sugerencia(10);
    EXPECT_FALSE(Pic_Sugerencia.Visible);
    EXPECT_EQ(Gbl.SugerenciaActual, 15);
}

TEST_F(PanelSugerencias, TwoPressesCloseIt) {
    Sugerencia(75);
    Pic_SugeBotCerrar_MouseDown(1, 0, 5, 5);
    EXPECT_TRUE(Pic_Sugerencia.Visible);
    EXPECT_EQ(Gbl.SugerenciaActual, 0);
    EXPECT_EQ(Gbl.ContextoAyuda, 2128);
    EXPECT_TRUE(Gbl.VentanaInformacion);
    Pic_SugeBotCerrar_MouseDown(1, 0, 5, 5);
    EXPECT_FALSE(Pic_Sugerencia.Visible);
    EXPECT_FALSE(Gbl.VentanaInformacion);
}

TEST_F(PanelSugerencias, OnePressClosesHintZero) {
    Sugerencia(0);
    Pic_SugeBotCerrar_MouseDown(1, 0, 5, 5);
    EXPECT_FALSE(Pic_Sugerencia.Visible);
}

TEST_F(PanelSugerencias, LinkOpensTheHintsOwnTopic) {
    Sugerencia(36);
    Pic_SugeMasAyuda_MouseDown(1, 0, 5, 5);
    EXPECT_EQ(P().ayudas, std::vector<i32>{2184});
}

TEST_F(PanelSugerencias, PointerOverItResetsTheTablesHover) {
    Sugerencia(10);
    Gbl.CursorActual = Gbl.CursorDeseado = 22;
    PonCursor(Pic_Trabajo, "ManoRoja");
    Pic_Sugerencia_MouseMove(0, 0, 100, 30);
    EXPECT_EQ(Gbl.CursorActual, 0);
    EXPECT_EQ(Gbl.CursorDeseado, 0);
    EXPECT_EQ(Pic_Trabajo.MousePointer, PUNTERO_NORMAL);
    EXPECT_EQ(Pic_Sugerencia.MousePointer, PUNTERO_NORMAL);
}

}  // namespace
}  // namespace tessario
