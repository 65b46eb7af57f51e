// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>

#include "apoyo/PlataformaPrueba.h"
#include "core/Avisos.h"
#include "core/Fallos.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"

namespace tessario {

namespace {

class VentanasNucleo : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        ConectaMensajes();
        ConectaCareta();
        Gbl.AnchoPantalla = 1000;
        Gbl.AltoPantalla = 700;
        Gbl.Sonido = true;
    }

    // Opens a message and lets `jugador` act on it with a pointer.
    void Abre(i16 modo, i16 botones, i16 ayuda,
              const std::function<void(PunteroPrueba&)>& jugador) {
        P().ventanas["Mensajes"] = [&](Ventana& v) {
            PunteroPrueba puntero(v);
            jugador(puntero);
        };
        Mensaje("Título", "Texto", modo, botones, ayuda);
    }

    static void PulsaEn(PunteroPrueba& p, const Control& c) {
        p.Pulsa(c.Left + c.Width() / 2, c.Top + c.Height() / 2);
    }
};

}  // namespace

TEST_F(VentanasNucleo, HeightFollowsTheLinesAndTheWindowStandsInTheMiddle) {
    for (const auto& [modo, alto] : {std::pair<i16, i32>{1, 144}, {6, 224}}) {
        Abre(modo, 1, 0, [alto = alto](PunteroPrueba&) {
            EXPECT_EQ(Mensajes.Width(), 405);
            EXPECT_EQ(Mensajes.Height(), alto);
            EXPECT_EQ(Mensajes.Left, (1000 - 405) / 2);
            EXPECT_EQ(Mensajes.Top, (700 - alto) / 2);
        });
    }
}

TEST_F(VentanasNucleo, BeforeTheScreenIsMeasuredItCountsAsEightHundredBySixHundred) {
    Gbl.AnchoPantalla = Gbl.AltoPantalla = 0;
    Abre(1, 1, 0, [](PunteroPrueba&) {
        EXPECT_EQ(Mensajes.Left, 197);  // (800 - 405) \ 2
        EXPECT_EQ(Mensajes.Top, 228);   // (600 - 144) / 2
    });
    EXPECT_EQ(Gbl.AnchoPantalla, 0);
}

TEST_F(VentanasNucleo, TitleAndTextHaveTheirPlaces) {
    Abre(4, 2, 0, [](PunteroPrueba&) {
        EXPECT_EQ(Tex_Titulo.Left, 20);
        EXPECT_EQ(Tex_Titulo.Caption, "Título");
        EXPECT_EQ(Tex_Mensaje.Caption, "Texto");
        EXPECT_EQ(Tex_Mensaje.Left, 20);
        EXPECT_EQ(Tex_Mensaje.Top, 50);
        EXPECT_EQ(Tex_Mensaje.Width(), 365);
        EXPECT_EQ(Tex_Mensaje.Height(), 4 * 16 + 3);
        EXPECT_EQ(Pic_BotAyudaMensaje.Left, 15);
        EXPECT_EQ(Pic_BotAyudaMensaje.Top, 50 + 67 + 14);
    });
}

TEST_F(VentanasNucleo, TallerMessageShowsNothingOfTheFrameOfTheOneBefore) {
    std::vector<Pixel> limpia;
    Abre(6, 1, 0, [&](PunteroPrueba&) { limpia = Mensajes.Dibujo().Pixeles; });
    Abre(1, 1, 0, [](PunteroPrueba&) { EXPECT_EQ(Mensajes.Height(), 144); });
    Abre(6, 1, 0, [&](PunteroPrueba&) { EXPECT_TRUE(Mensajes.Dibujo().Pixeles == limpia); });
}

TEST_F(VentanasNucleo, FrameIsWhiteWithGreyFarEdges) {
    Abre(2, 1, 0, [](PunteroPrueba&) {
        const i32 w = Mensajes.Width(), h = Mensajes.Height();
        EXPECT_EQ(Mensajes.Point(1, 1), 0xFFFFFFU);
        EXPECT_EQ(Mensajes.Point(w / 2, 1), 0xFFFFFFU);
        EXPECT_EQ(Mensajes.Point(1, h / 2), 0xFFFFFFU);
        EXPECT_EQ(Mensajes.Point(w - 2, h / 2), 0x808080U);
        EXPECT_EQ(Mensajes.Point(w / 2, h - 2), 0x808080U);
        EXPECT_EQ(Mensajes.Point(0, 0), 0x3C51B2U);
        EXPECT_EQ(Mensajes.Point(w - 1, h - 1), 0x3C51B2U);
        EXPECT_EQ(Mensajes.Point(2, 2), 0xD2E9F4U);
    });
}

TEST_F(VentanasNucleo, ButtonsShownByTheKindOfMessage) {
    Abre(1, 1, 0, [](PunteroPrueba&) {
        EXPECT_TRUE(Pic_BotSalirMensaje.Visible);
        EXPECT_FALSE(Pic_Si.Visible || Pic_No.Visible || Pic_BotAyudaMensaje.Visible);
        EXPECT_TRUE(Gbl.RespuestaMensaje);
    });
    Abre(1, 2, 2170, [](PunteroPrueba&) {
        EXPECT_FALSE(Pic_BotSalirMensaje.Visible);
        EXPECT_TRUE(Pic_Si.Visible && Pic_No.Visible && Pic_BotAyudaMensaje.Visible);
        EXPECT_FALSE(Gbl.RespuestaMensaje);
        for (const Cuadro* c : {&Pic_Si, &Pic_No, &Pic_BotAyudaMensaje}) {
            EXPECT_EQ(c->MousePointer, 99);
            EXPECT_EQ(c->MouseIcon, "ManoIndice");
        }
    });
}

TEST_F(VentanasNucleo, ButtonsDoNotOverlapAndLieInsideTheWindow) {
    Abre(1, 2, 2170, [](PunteroPrueba&) {
        const Cuadro* botones[] = {&Pic_BotAyudaMensaje, &Pic_Si, &Pic_No};
        for (const Cuadro* c : botones) {
            EXPECT_GE(c->Left, 2);
            EXPECT_LE(c->Left + c->Width(), Mensajes.Width() - 2);
            EXPECT_LE(c->Top + c->Height(), Mensajes.Height() - 2);
            EXPECT_GE(c->Top, Tex_Mensaje.Top + Tex_Mensaje.Height());
        }
        EXPECT_LE(Pic_BotAyudaMensaje.Left + 48, Pic_Si.Left);
        EXPECT_LE(Pic_Si.Left + 48, Pic_No.Left);
    });
}

TEST_F(VentanasNucleo, ButtonsShowTheirTilesOfTheSharedPicture) {
    // The made-up resource tells its place: x in the middle byte, y in the low one.
    const auto origen = [](const Cuadro& c) { return PixelDe(c.Point(0, 0)) & 0xFFFFU; };
    Abre(1, 2, 5, [&](PunteroPrueba&) {
        EXPECT_EQ(origen(Pic_Si), (0U << 8) | 49U);
        EXPECT_EQ(origen(Pic_No), (49U << 8) | 49U);
        EXPECT_EQ(origen(Pic_BotAyudaMensaje), ((294U << 8) | 49U) & 0xFFFFU);
    });
    // One button closes with the tick, not with the door by which one leaves.
    Abre(1, 1, 0, [&](PunteroPrueba&) {
        EXPECT_EQ(origen(Pic_BotSalirMensaje), (0U << 8) | 49U);
        EXPECT_EQ(Pic_BotSalirMensaje.ToolTipText, "Aceptar");
    });
    Abre(1, 2, 5, [&](PunteroPrueba&) {
        EXPECT_EQ(Pic_Si.ToolTipText, "Aceptar");
        EXPECT_EQ(Pic_No.ToolTipText, "Cancelar");
        EXPECT_EQ(Pic_BotAyudaMensaje.ToolTipText, "Ayuda");
    });
}

TEST_F(VentanasNucleo, YesAndNoAnswerWithTheirSound) {
    Abre(1, 2, 0, [&](PunteroPrueba& p) {
        PulsaEn(p, Pic_Si);
        EXPECT_FALSE(Mensajes.Abierta);
    });
    EXPECT_TRUE(Gbl.RespuestaMensaje);
    Abre(1, 2, 0, [&](PunteroPrueba& p) { PulsaEn(p, Pic_No); });
    EXPECT_FALSE(Gbl.RespuestaMensaje);
    ASSERT_EQ(P().sonidos.size(), 2U);
    EXPECT_EQ(P().sonidos[0].first, 9);
    EXPECT_EQ(P().sonidos[1].first, 9);
}

TEST_F(VentanasNucleo, ClosingTheQuestionFromOutsideMeansNo) {
    Gbl.RespuestaMensaje = true;
    Abre(1, 2, 0, [](PunteroPrueba&) { Sistema().Cierra(Mensajes); });
    EXPECT_FALSE(Gbl.RespuestaMensaje);
}

TEST_F(VentanasNucleo, ExitButtonOfAPlainMessageCloses) {
    Abre(1, 1, 0, [&](PunteroPrueba& p) {
        PulsaEn(p, Pic_BotSalirMensaje);
        EXPECT_FALSE(Mensajes.Abierta);
    });
    EXPECT_EQ(P().sonidos.size(), 1U);
}

TEST_F(VentanasNucleo, HelpOpensItsTopicAndTheMessageStays) {
    Abre(3, 2, 3020, [&](PunteroPrueba& p) {
        PulsaEn(p, Pic_BotAyudaMensaje);
        EXPECT_TRUE(Mensajes.Abierta);
        EXPECT_EQ(P().ayudas, std::vector<i32>{3020});
        EXPECT_EQ(P().sonidos.back().first, 9);
    });
}

TEST_F(VentanasNucleo, AnyKeyMeansYes) {
    for (const i16 tecla : std::array<i16, 4>{27, 13, 65, 112}) {
        Abre(1, 2, 0, [&](PunteroPrueba&) {
            Mensajes.KeyDown(tecla, 0);
            EXPECT_FALSE(Mensajes.Abierta);
        });
        EXPECT_TRUE(Gbl.RespuestaMensaje) << tecla;
    }
}

TEST_F(VentanasNucleo, AnyKeyClosesAPlainMessageAndFreesThePointerOfTheTable) {
    PonPuntero(Mesa, PUNTERO_RELOJ);
    Abre(1, 1, 0, [&](PunteroPrueba&) {
        Mensajes.KeyDown(32, 0);
        EXPECT_FALSE(Mensajes.Abierta);
    });
    EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
}

TEST_F(VentanasNucleo, SplashIsShownHalfwayHoldsAndSetsTheFirstSpeed) {
    Gbl.VelocidadJuego = 77;
    P().recursos["Careta"] = Mapa(300, 200, 0x112233);
    P().ancho = 1000;  // the screen itself counts: nothing has been measured yet
    P().alto = 700;
    Gbl.AnchoPantalla = Gbl.AltoPantalla = 0;
    const double antes = P().dormido;
    bool pintada = false;
    P().alDormir = [&] { pintada = Careta.Width() == 300 && Careta.Abierta; };
    Sistema().Muestra(Careta);
    EXPECT_TRUE(pintada);
    EXPECT_GE(P().presentaciones, 1);
    EXPECT_NEAR(P().dormido - antes, 1500, 1);
    EXPECT_EQ(Gbl.VelocidadJuego, 50);
    EXPECT_EQ(Careta.Left, 350);
    EXPECT_EQ(Careta.Top, 250);
    EXPECT_EQ(Careta.Point(0, 0), ColorDe(0x112233));
    EXPECT_FALSE(Careta.Abierta);
    Sistema().Cierra(Careta);  // once more does nothing
    EXPECT_FALSE(Careta.Abierta);
}

// ---------------------------------------------------------------- the table of messages

TEST_F(VentanasNucleo, ValuesStandInTheirPlaces) {
    EXPECT_EQ(TextoDe(aviso::ERROR_CONFIGURACION, {"75"}), "IDC ERROR 75");
    EXPECT_EQ(TextoDe(aviso::ERROR_AJUSTES, {"7"}), "CID ERROR 7");
    EXPECT_EQ(TextoDe(aviso::IMAGEN_NO_VALIDA, {"640", "480"}),
              "El  tamaño  de  la  imagen   que   está  intentando  cargar\r\n"
              "( 640 x 480 pixels )  no está dentro de los límites permitidos:\r\n\r\n"
              "                 Entre  320  y  1.024  pixels de ancho\r\n"
              "                 Entre  240  y  768  pixels de alto");
}

TEST_F(VentanasNucleo, EveryFixedMessageHasItsWords) {
    EXPECT_EQ(Avisos().size(), 36U);
    for (const Aviso* a : Avisos()) {
        EXPECT_FALSE(a->titulo.empty());
        EXPECT_FALSE(a->texto.empty());
        EXPECT_GE(a->modo, 1);
        EXPECT_LE(a->modo, 9);
        const std::string texto = TextoDe(*a, {a->muestra[0], a->muestra[1]});
        EXPECT_EQ(texto.find('%'), std::string::npos) << texto;
    }
}

}  // namespace tessario
