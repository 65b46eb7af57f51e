// SPDX-License-Identifier: GPL-3.0-or-later
// The history window: orders, travel, lines, drawing.
#include <algorithm>
#include <chrono>

#include "apoyo/VentanaMontada.h"
#include "records/Archivo.h"
#include "records/Historial.h"
#include "windows/Historic.h"
#include "windows/HistoricBarras.h"

namespace tessario {
namespace {

struct Entrada {
    const char* jugador = "Ana";
    float nivel = 50;
    i32 segundos = 100;
    i16 juego = 21, fondo = 1, total = 25, zoom = 100;
    const char* fichero = "lago.jpg";
    const char* modelo = "";
    const char* ubicacion = "/fotos/";
};

class VentanaHistoric : public VentanaMontada {
protected:
    void Archiva(const std::vector<Entrada>& entradas) {
        const i16 juego = Gbl.JuegoActual, zoom = Gbl.ZoomImagen;
        for (const Entrada& e : entradas) {
            Gbl.JuegoActual = e.juego;
            Gbl.NombreJugador = e.jugador;
            Gbl.Dificultad = e.nivel;
            Gbl.SegundosJuego = e.segundos;
            Gbl.TipoFondo = e.fondo;
            Gbl.NumPiezas = e.total;
            Gbl.ZoomImagen = e.zoom;
            Gbl.FicheroImagen = e.fichero;
            Gbl.NombrePuzzle = e.modelo;
            Gbl.CarpetaImagen = e.ubicacion;
            Gbl.AnchoImagen = 640;
            Gbl.AltoImagen = 480;
            Gbl.AnchoPuzzle = 510;
            Gbl.AltoPuzzle = 380;
            Gbl.PiezasPorLado = 5;
            Gbl.PiezasPorCelda = 1;
            Gbl.FormaPiezas = 1;
            Gbl.AnchoCelda = 102;
            Gbl.AltoCelda = 76;
            Gbl.FactorAtraccion = 35;
            ASSERT_EQ(EntraEnHistorico(), 0);
        }
        Gbl.JuegoActual = juego;
        Gbl.ZoomImagen = zoom;
    }
    std::vector<i32> Datos() {
        std::vector<i32> d;
        for (const auto& e : Lis_Ordenar.Elementos) d.push_back(e.Dato);
        return d;
    }
    std::vector<i32> OrdenadosPor(i16 orden) {
        Gbl.OrdenHistoricoActual = orden;
        CargaLisOrdenar();
        return Datos();
    }
    std::string Clave(std::size_t i) { return Lis_Ordenar.Elementos[i].Texto; }
    // Presses a travel button, 1 to 4.
    void Viaja(i16 boton) {
        const auto x = static_cast<float>(1 + (boton - 1) * 29 + 12);
        Pic_BotAdeAtr.MouseMove(0, 0, x, 12);
        Pic_BotAdeAtr.MouseDown(BOTON_IZQUIERDO, 0, x, 12);
        Pic_BotAdeAtr.MouseUp(BOTON_IZQUIERDO, 0, x, 12);
    }
};

// ---------------------------------------------------------------- orders

TEST_F(VentanaHistoric, DateOrderIsFileOrder) {
    Archiva({{"C"}, {"A"}, {"B"}});
    EXPECT_EQ(OrdenadosPor(1), (std::vector<i32>{0, 1, 2}));
    EXPECT_EQ(Clave(2), "0002");
}

TEST_F(VentanaHistoric, NameOrderHasTheHardestOfEachPlayerFirst) {
    Archiva({{"Luis", 10}, {"ana", 20}, {"Ñusta", 99}, {"Luis", 90}, {"Ana", 30}, {"Nuria", 1}});
    EXPECT_EQ(OrdenadosPor(2), (std::vector<i32>{4, 1, 3, 0, 5, 2}));
    EXPECT_EQ(Clave(0), "Ana      70.0000");
}

TEST_F(VentanaHistoric, EqualKeysKeepTheOneAddedFirstAbove) {
    Archiva({{"Ana", 40}, {"Ana", 60}, {"ana", 40}, {"Ana", 40}});
    EXPECT_EQ(OrdenadosPor(2), (std::vector<i32>{1, 0, 2, 3}));
}

TEST_F(VentanaHistoric, KeyOfTheDifficultyIsWhatIsMissingToAHundred) {
    Archiva({{"a", 99.9F, 7}, {"b", 0.1F, 8}, {"c", 12.5F, 123456}});
    EXPECT_EQ(OrdenadosPor(4), (std::vector<i32>{0, 2, 1}));
    EXPECT_EQ(Clave(0), "00.1000000007");
    EXPECT_EQ(Clave(1), "87.5000123456");
    EXPECT_EQ(Clave(2), "99.9000000008");
}

TEST_F(VentanaHistoric, EqualDifficultyGoesByTime) {
    Archiva({{"a", 50, 300}, {"b", 50, 20}, {"c", 60, 900}});
    EXPECT_EQ(OrdenadosPor(4), (std::vector<i32>{2, 1, 0}));
}

TEST_F(VentanaHistoric, BackgroundOrderGoesByThePictureInTheJigsaw) {
    Archiva({{.nivel = 10, .fichero = "mar.jpg"},
             {.nivel = 10, .fichero = "Árbol.jpg"},
             {.nivel = 80, .fichero = "MAR.jpg"},
             {.nivel = 5, .fichero = "arce.jpg"}});
    EXPECT_EQ(OrdenadosPor(3), (std::vector<i32>{1, 3, 2, 0}));
    EXPECT_EQ(Clave(0), "Árbol.jpg90.0000");
}

TEST_F(VentanaHistoric, BackgroundOrderOfTheSlidingGameSetsNumbersApart) {
    Gbl.JuegoActual = JuegoDeslizantes;
    Archiva({{.nivel = 10, .juego = 22, .fondo = 1, .fichero = "lago.jpg"},
             {.nivel = 10, .juego = 22, .fondo = 3, .fichero = "zorro.jpg"},
             {.nivel = 20, .juego = 22, .fondo = 2, .fichero = "zorro.jpg"},
             {.nivel = 30, .juego = 22, .fondo = 2, .fichero = "abeto.jpg"}});
    EXPECT_EQ(OrdenadosPor(3), (std::vector<i32>{3, 2, 1, 0}));
    EXPECT_EQ(Clave(0), "270.0000");
    EXPECT_EQ(Clave(2), "390.0000");
    EXPECT_EQ(Clave(3), "lago.jpg90.0000");
}

TEST_F(VentanaHistoric, BackgroundOrderOfTheTangramGoesByTheModel) {
    Gbl.JuegoActual = JuegoTangram;
    Archiva({{.nivel = 10, .juego = 23, .modelo = "Pez"},
             {.nivel = 10, .juego = 23, .modelo = "Casa"},
             {.nivel = 60, .juego = 23, .modelo = "Pez"}});
    EXPECT_EQ(OrdenadosPor(3), (std::vector<i32>{1, 2, 0}));
    EXPECT_EQ(Clave(1), "Pez40.0000");
}

TEST_F(VentanaHistoric, FileOrderHoldsBeyondFourDigitsAndIsQuick) {
    std::string linea, bytes;
    Archiva({{"Ana"}});
    linea = Contenido("TESSA33.his");
    for (int i = 0; i < 100000; ++i) bytes += linea;
    Crea("TESSA33.his", bytes);
    const auto antes = std::chrono::steady_clock::now();
    Sistema().MuestraModal(Historic);
    const std::chrono::duration<double> tardo = std::chrono::steady_clock::now() - antes;
    EXPECT_LT(tardo.count(), 8.0) << "well under a second is usual";
    CargaLisOrdenar();
    ASSERT_EQ(Lis_Ordenar.ListCount(), 100000);
    for (std::size_t i = 0; i < 100000; i += 999)
        EXPECT_EQ(Lis_Ordenar.Elementos[i].Dato, static_cast<i32>(i));
}

// ---------------------------------------------------------------- the window

TEST_F(VentanaHistoric, SizeFollowsTheGameAndStandsInTheMiddle) {
    const std::pair<i16, i32> casos[] = {{21, 498}, {22, 423}, {23, 378}};
    Archiva({{"Ana"}});
    for (const auto& [juego, alto] : casos) {
        Gbl.JuegoActual = juego;
        En(Historic, [&, alto = alto] {
            EXPECT_EQ(Historic.Width(), 620);
            EXPECT_EQ(Historic.Height(), alto);
            EXPECT_EQ(Historic.Left, (800 - 620) / 2);
            EXPECT_EQ(Historic.Top, (600 - alto) / 2);
            for (const Control* c : Historic.Controles) {
                EXPECT_GE(c->Left, 0) << c->Nombre;
                EXPECT_LE(c->Left + c->Width(), 620) << c->Nombre;
                EXPECT_LE(c->Top + c->Height(), alto) << c->Nombre;
            }
        });
    }
}

TEST_F(VentanaHistoric, SelectorsAndTravelButtonsStandWhereTheyShould) {
    Archiva({{"Ana"}, {"B"}});
    En(Historic, [&] {
        const i32 arriba[] = {30, 70, 110, 150};
        for (i32 i = 1; i <= 4; ++i) {
            EXPECT_EQ(Pic_OrdenHistorico(i).Left, 30);
            EXPECT_EQ(Pic_OrdenHistorico(i).Top, arriba[i - 1]);
            EXPECT_EQ(Pic_OrdenHistorico(i).Width(), 130);
            EXPECT_EQ(Pic_OrdenHistorico(i).Height(), 26);
        }
        EXPECT_EQ(Tex_Historic.Left, 190);
        EXPECT_EQ(Tex_Historic.Top, 30);
        EXPECT_EQ(Tex_Historic.Width(), 398);
        const std::pair<float, i16> puntos[] = {{0, 0},  {1, 1},  {24, 1},  {25, 0}, {29, 0},
                                                {30, 2}, {53, 2}, {54, 0},  {59, 3}, {82, 3},
                                                {83, 0}, {88, 4}, {111, 4}, {112, 0}};
        for (const auto& [x, boton] : puntos) EXPECT_EQ(BotonAdeAtrEn(x, 12), boton) << x;
        EXPECT_EQ(BotonAdeAtrEn(12, 0), 0);
        EXPECT_EQ(BotonAdeAtrEn(12, 1), 1);
        EXPECT_EQ(BotonAdeAtrEn(12, 24), 1);
        EXPECT_EQ(BotonAdeAtrEn(12, 25), 0);
        for (const Cuadro* b : {&Pic_BotAyudaHistoric, &Pic_BotSalirHistoric}) {
            EXPECT_EQ(b->Width(), 48);
            EXPECT_EQ(b->Top + 48 + 17, Historic.Height());
            EXPECT_GT(b->Top, Tex_Historic.Top + Tex_Historic.Height());
        }
        EXPECT_EQ(Pic_BotSalirHistoric.Left + 48, 190 + 398);
        EXPECT_LT(Pic_BotAyudaHistoric.Left + 48, Pic_BotSalirHistoric.Left);
    });
}

TEST_F(VentanaHistoric, PointerOverATravelButtonSaysWhetherItCanAct) {
    Archiva({{"A"}, {"B"}, {"C"}});
    En(Historic, [&] {
        const auto icono = [](float x) {
            Pic_BotAdeAtr.MouseMove(0, 0, x, 12);
            return Pic_BotAdeAtr.MousePointer == PUNTERO_PROPIO ? Pic_BotAdeAtr.MouseIcon : "";
        };
        EXPECT_EQ(icono(10), "Prohibido");
        EXPECT_EQ(Pic_BotAdeAtr.ToolTipText, "Ir al principio ");
        EXPECT_EQ(icono(40), "Prohibido");
        EXPECT_EQ(Pic_BotAdeAtr.ToolTipText, " Retroceder una página ");
        EXPECT_EQ(icono(70), "ManoIndice");
        EXPECT_EQ(Pic_BotAdeAtr.ToolTipText, " Avanzar una página ");
        EXPECT_EQ(icono(100), "ManoIndice");
        EXPECT_EQ(Pic_BotAdeAtr.ToolTipText, " Ir al final ");
        EXPECT_EQ(icono(56), "");
        EXPECT_EQ(Pic_BotAdeAtr.ToolTipText, "");
        Viaja(3);
        EXPECT_EQ(icono(10), "ManoIndice");
        EXPECT_EQ(icono(70), "ManoIndice");
        Viaja(4);
        EXPECT_EQ(icono(40), "ManoIndice");
        EXPECT_EQ(icono(100), "Prohibido");
    });
}

TEST_F(VentanaHistoric, TravelGoesToTheRecordsAndSoundsTwice) {
    Archiva({{"A"}, {"B"}, {"C"}, {"D"}});
    En(Historic, [&] {
        P().sonidos.clear();
        const std::pair<i16, i32> pasos[] = {{3, 1}, {3, 2}, {2, 1}, {4, 3}, {1, 0}};
        for (const auto& [boton, lugar] : pasos) {
            Viaja(boton);
            EXPECT_EQ(Gbl.PosicionActual, lugar);
            EXPECT_EQ(Sonidos(), (std::vector<int>{6, 6}));
            EXPECT_EQ(Valor(Tex_Historic, "Orden"), std::to_string(lugar + 1));
        }
        Viaja(1);
        Viaja(2);
        EXPECT_EQ(Gbl.PosicionActual, 0);
        EXPECT_EQ(Sonidos(), (std::vector<int>{}));
    });
}

TEST_F(VentanaHistoric, TravelButtonIsShownPressedForThePause) {
    Archiva({{"A"}, {"B"}});
    Gbl.VelocidadJuego = 50;
    En(Historic, [&] {
        const Color suelto = Pic_BotAdeAtr.Point(61, 3);
        Color pulsado = suelto;
        P().alDormir = [&] { pulsado = Pic_BotAdeAtr.Point(61, 3); };
        const double antes = P().dormido;
        Pic_BotAdeAtr.MouseDown(BOTON_IZQUIERDO, 0, 70, 12);
        EXPECT_NEAR(P().dormido - antes, 180, 1);
        EXPECT_NE(pulsado, suelto);
        EXPECT_EQ(Pic_BotAdeAtr.Point(61, 3), suelto);
        P().alDormir = nullptr;
        Sonidos();
        Pic_BotAdeAtr.MouseUp(BOTON_IZQUIERDO, 0, 70, 12);
        EXPECT_EQ(Sonidos(), (std::vector<int>{6}));
    });
}

TEST_F(VentanaHistoric, KeysTravelAndChooseOrders) {
    Archiva({{"B", 10}, {"C", 20}, {"A", 30}});
    En(Historic, [&] {
        Historic.KeyDown(35, 0);
        EXPECT_EQ(Gbl.PosicionActual, 2);
        Historic.KeyDown(37, 0);
        EXPECT_EQ(Gbl.PosicionActual, 1);
        Historic.KeyDown(36, 0);
        EXPECT_EQ(Gbl.PosicionActual, 0);
        Historic.KeyDown(34, 0);
        EXPECT_EQ(Gbl.PosicionActual, 1);
        Historic.KeyDown('2', 0);
        EXPECT_EQ(Gbl.OrdenHistoricoActual, 2);
        EXPECT_EQ(Gbl.PosicionActual, 0);
        EXPECT_EQ(Valor(Tex_Historic, "Nombre del jugador"), "A");
        Historic.KeyPress(27);
        EXPECT_FALSE(Historic.Abierta);
    });
}

TEST_F(VentanaHistoric, SelectorReloadsGoesToTheStartAndNamesTheOrder) {
    Archiva({{"C", 10}, {"A", 20}});
    En(Historic, [&] {
        EXPECT_EQ(Gbl.OrdenHistoricoActual, 1);
        EXPECT_EQ(Valor(Tex_Historic, "Nombre del jugador"), "C");
        Viaja(4);
        Archiva({{"B", 99}});
        Sonidos();
        P().textos.clear();
        Aprieta(Pic_OrdenHistorico(4));
        EXPECT_EQ(Sonidos(), (std::vector<int>{7}));
        EXPECT_EQ(Gbl.PosicionActual, 0);
        EXPECT_EQ(Gbl.UltimoHistorico, 2);
        EXPECT_EQ(Valor(Tex_Historic, "Nombre del jugador"), "B");
        std::string titulo;
        for (const auto& t : P().textos)
            if (t.donde == &Historic) titulo = t.texto;
        EXPECT_EQ(titulo, "Dificultad / Tiempo");
    });
    // The next time it opens with the first order again.
    En(Historic, [&] { EXPECT_EQ(Gbl.OrdenHistoricoActual, 1); });
}

TEST_F(VentanaHistoric, ChosenSelectorLooksPressedAndTheOthersDoNot) {
    Archiva({{"C", 10}, {"A", 20}});
    En(Historic, [&] {
        const auto cara = [](i32 orden) { return Pic_OrdenHistorico(orden).Point(2, 2); };
        const Mapa ventana = Historic.Dibujo();
        const Color pulsada = cara(1), suelta = cara(2);
        EXPECT_NE(pulsada, suelta);
        for (i32 elegida = 4; elegida >= 1; --elegida) {
            P().textos.clear();
            Aprieta(Pic_OrdenHistorico(elegida));
            for (i32 orden = 1; orden <= 4; ++orden) {
                EXPECT_EQ(cara(orden), orden == elegida ? pulsada : suelta) << orden;
                EXPECT_EQ(Pic_OrdenHistorico(orden).Font.Negrita, orden == elegida) << orden;
                const Superficie* tecla = &Pic_OrdenHistorico(orden);
                EXPECT_EQ(std::count_if(P().textos.begin(), P().textos.end(),
                                        [&](const auto& t) { return t.donde == tecla; }),
                          2)
                    << "a title and its shadow";
            }
        }
        EXPECT_EQ(Historic.Dibujo().Pixeles, ventana.Pixeles) << "nothing of the others is left";
    });
}

TEST_F(VentanaHistoric, FileThatGoesWhileTheWindowIsOpenLeavesItEmpty) {
    Archiva({{"C", 10}, {"A", 20}});
    En(Historic, [&] {
        BorraFichero(FicheroHistorico());
        P().textos.clear();
        Aprieta(Pic_OrdenHistorico(2));
        EXPECT_EQ(Lis_Ordenar.ListCount(), 0);
        EXPECT_TRUE(Renglones(Tex_Historic).empty());
    });
    EXPECT_EQ(P().avisos.size(), 1U);
}

TEST_F(VentanaHistoric, RecordsOfOtherGamesOnlyPrintNothing) {
    Archiva({{.juego = 22}, {.juego = 22}});
    P().textos.clear();
    En(Historic, [&] {
        EXPECT_EQ(Lis_Ordenar.ListCount(), 0);
        EXPECT_EQ(Gbl.UltimoHistorico, -1);
        EXPECT_TRUE(Renglones(Tex_Historic).empty());
        for (const float x : {10.0F, 40.0F, 70.0F, 100.0F}) {
            Pic_BotAdeAtr.MouseMove(0, 0, x, 12);
            EXPECT_EQ(Pic_BotAdeAtr.MouseIcon, "Prohibido");
            Pic_BotAdeAtr.MouseDown(BOTON_IZQUIERDO, 0, x, 12);
            EXPECT_EQ(Gbl.PosicionActual, 0);
        }
        Pic_Barras.MouseDown(BOTON_IZQUIERDO, 0, 20, 20);
        EXPECT_EQ(Gbl.PosicionActual, 0);
        EXPECT_EQ(Pic_Barras.ToolTipText, "");
    });
    EXPECT_TRUE(P().avisos.empty());
}

TEST_F(VentanaHistoric, MissingFileIsToldAndTheWindowOpensEmpty) {
    Gbl.UltimoHistorico = 9;
    bool abierta = false;
    En(Historic, [&] { abierta = true; });
    EXPECT_TRUE(abierta);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Error leyendo el fichero histórico");
    EXPECT_EQ(P().avisos[0].texto,
              "No se encuentra el fichero Histórico. Se creará de nuevo la próxima vez que termine "
              "de resolver un puzzle.");
    EXPECT_EQ(P().avisos[0].modo, 2);
    EXPECT_EQ(P().avisos[0].botones, 1);
    EXPECT_EQ(Gbl.UltimoHistorico, -1);
    EXPECT_EQ(Gbl.ErrorApertura, 53);
}

TEST_F(VentanaHistoric, OtherErrorsGoByNumber) {
    Gbl.CarpetaPrograma = P().carpeta + "nada/";
    CargaLisOrdenar();
    Gbl.CarpetaPrograma = P().carpeta;
    Crea("TESSA33.his/x", "");
    CargaLisOrdenar();
    ASSERT_EQ(P().avisos.size(), 2U);
    EXPECT_EQ(P().avisos[0].texto, "HIS ERROR 76: No existe el fichero Histórico");
    EXPECT_EQ(P().avisos[1].texto, "HIS ERROR 75");
    for (const auto& a : P().avisos) EXPECT_EQ(a.modo, 1);
}

TEST_F(VentanaHistoric, ClosingSoundsAndTheCommandRestoresTheClock) {
    Archiva({{"Ana"}});
    for (const bool marcha : {true, false}) {
        Gbl.CronoEnMarcha = marcha;
        bool parado = false;
        P().ventanas["Historic"] = [&](Ventana&) {
            parado = !Gbl.CronoEnMarcha;
            Sonidos();
            Aprieta(Pic_BotAyudaHistoric);
            EXPECT_TRUE(Historic.Abierta);
            Aprieta(Pic_BotSalirHistoric);
            EXPECT_FALSE(Historic.Abierta);
            EXPECT_EQ(Sonidos(), (std::vector<int>{9, 9}));
        };
        PulsaOrden(5);
        EXPECT_TRUE(parado);
        EXPECT_EQ(static_cast<bool>(Gbl.CronoEnMarcha), marcha);
    }
    EXPECT_EQ(P().ayudas, (std::vector<i32>{2161, 2161}));
}

// ---------------------------------------------------------------- lines

TEST_F(VentanaHistoric, LinesOfAJigsawAtFullSize) {
    Archiva({{.jugador = "Iñigo", .nivel = 12.5F, .segundos = 3723, .total = 25}});
    En(Historic, [&] {
        const std::map<i32, Renglon> esperados{
            {20, {"Orden................:", "1"}},
            {35, {"Fecha................:", "20/11/2026"}},
            {50, {"Hora.................:", "13:54:00"}},
            {65, {"Tipo de puzzle.......:", "Puzzle de piezas móviles"}},
            {90, {"Archivo de imagen....:", "lago.jpg"}},
            {105, {"Ubicación del archivo:", "/fotos/"}},
            {120, {"Tamaño de la imagen..:", "640 x 480 píxeles"}},
            {135, {"Zoom aplicado........:", "Ninguno"}},
            {160, {"Piezas por lado......:", "5"}},
            {175, {"Clase de piezas......:", "Simples"}},
            {190, {"Tipo de piezas.......:", "Curvados"}},
            {205, {"Piezas totales.......:", "25"}},
            {220, {"Ancho de las piezas..:", "102 píxeles"}},
            {235, {"Alto de las piezas...:", "76 píxeles"}},
            {250, {"Factor de atracción..:", "35%"}},
            {275, {"Tiempo total.........:", "1:02:03"}},
            {290, {"Tiempo por pieza.....:", "0:02:29"}},
            {305, {"Nivel de dificultad..:", "12.5000"}},
            {320, {"Nombre del jugador...:", "Iñigo"}}};
        EXPECT_EQ(Renglones(Tex_Historic), esperados);
        EXPECT_EQ(Tex_Historic.Height(), 355);
        for (const auto& t : P().textos) {
            if (t.donde != &Tex_Historic) continue;
            EXPECT_EQ(t.color, t.x == 20 ? 0U : 0x800080U);
            EXPECT_TRUE(t.x == 20 || t.x == 178) << t.x;
        }
    });
}

TEST_F(VentanaHistoric, SizeLabelGoesByTheZoomInForceNow) {
    Archiva({{.zoom = 80}, {.zoom = 150}});
    Gbl.ZoomImagen = 100;
    En(Historic, [&] {
        EXPECT_EQ(Valor(Tex_Historic, "Reducción del tamaño.:"), "80%");
        EXPECT_EQ(Valor(Tex_Historic, "Tamaño reducido......:"), "510 x 380 píxeles");
        Gbl.ZoomImagen = 101;
        P().textos.clear();
        MuestraRegistro();
        EXPECT_EQ(Valor(Tex_Historic, "Reducción del tamaño.:"), "80%");
        EXPECT_EQ(Valor(Tex_Historic, "Tamaño ampliado......:"), "510 x 380 píxeles");
        EXPECT_EQ(Valor(Tex_Historic, "Tamaño reducido......:"), "(none)");
        Gbl.ZoomImagen = 100;
        P().textos.clear();
        Viaja(3);
        EXPECT_EQ(Valor(Tex_Historic, "Ampliación del tamaño:"), "150%");
        EXPECT_EQ(Valor(Tex_Historic, "Tamaño reducido......:"), "510 x 380 píxeles");
    });
}

TEST_F(VentanaHistoric, SizeOfARecordAtFullSizeIsNotToldWhateverTheZoomInForce) {
    Archiva({{.zoom = 100}, {.zoom = 101}, {.zoom = 99}});
    Gbl.ZoomImagen = 150;
    En(Historic, [&] {
        EXPECT_EQ(Valor(Tex_Historic, "Zoom aplicado"), "Ninguno");
        EXPECT_EQ(Valor(Tex_Historic, "Tamaño ampliado"), "(none)");
        P().textos.clear();
        Viaja(3);
        EXPECT_EQ(Valor(Tex_Historic, "Zoom aplicado"), "(none)");
        EXPECT_EQ(Valor(Tex_Historic, "Ampliación del tamaño:"), "101%");
        P().textos.clear();
        Viaja(3);
        EXPECT_EQ(Valor(Tex_Historic, "Reducción del tamaño.:"), "99%");
    });
}

// Such a zoom only a damaged line brings.
TEST_F(VentanaHistoric, ZoomIsAMatterOfTheJigsawAlone) {
    for (const i16 juego : {JuegoDeslizantes, JuegoTangram}) {
        BorraFichero(FicheroHistorico());
        Gbl.JuegoActual = juego;
        Archiva({{.juego = juego, .fondo = 1, .total = 24, .zoom = 80},
                 {.juego = juego, .fondo = 1, .total = 24, .zoom = 150},
                 {.juego = juego, .fondo = 1, .total = 24, .zoom = 100}});
        En(Historic, [&] {
            for (i32 registro = 1; registro <= 3; ++registro) {
                for (const bool ampliado : {false, true}) {
                    Gbl.ZoomImagen = ampliado ? 150 : 100;
                    P().textos.clear();
                    MuestraRegistro();
                    for (const char* etiqueta :
                         {"Zoom", "Reducción", "Ampliación", "Tamaño reducido", "Tamaño ampliado"})
                        EXPECT_EQ(Valor(Tex_Historic, etiqueta), "(none)") << registro;
                }
                Viaja(3);
            }
        });
    }
}

TEST_F(VentanaHistoric, LongFolderIsCutAndTheClipboardHasNone) {
    Archiva({{.ubicacion = "/casa/de/la/peña/fotos/verano/1"},   // 31 characters
             {.ubicacion = "/casa/de/la/peña/fotos/verano/12"},  // 32
             {.fichero = "tsportap.bmp", .ubicacion = "/tmp/"}});
    En(Historic, [&] {
        EXPECT_EQ(Valor(Tex_Historic, "Ubicación"), "/casa/de/la/peña/fotos/verano/1");
        P().textos.clear();
        Viaja(3);
        EXPECT_EQ(Valor(Tex_Historic, "Ubicación"), "/casa/de/la/peña/fotos/veran...");
        P().textos.clear();
        Viaja(3);
        EXPECT_EQ(Valor(Tex_Historic, "Archivo de imagen"), "Copiada del Portapapeles");
        EXPECT_EQ(Valor(Tex_Historic, "Ubicación"), "");
    });
}

TEST_F(VentanaHistoric, LinesOfTheSlidingGameGoByTheRecordsBackground) {
    Gbl.JuegoActual = JuegoDeslizantes;
    Archiva({{.juego = 22, .fondo = 3, .total = 24}, {.juego = 22, .fondo = 1, .total = 24}});
    Gbl.TipoFondo = FONDO_NUMEROS;
    En(Historic, [&] {
        auto filas = Renglones(Tex_Historic);
        EXPECT_EQ(filas.at(65).valor, "Puzzle de piezas deslizantes");
        EXPECT_EQ(filas.at(90), (Renglon{"Tipo de fondo........:", "Letras"}));
        EXPECT_EQ(filas.at(115).etiqueta, "Piezas por lado......:");
        EXPECT_EQ(filas.at(130), (Renglon{"Piezas totales.......:", "24"}));
        EXPECT_EQ(filas.at(155).etiqueta, "Tiempo total.........:");
        EXPECT_EQ(filas.size(), 11U);
        P().textos.clear();
        Viaja(3);
        filas = Renglones(Tex_Historic);
        EXPECT_EQ(filas.at(90).valor, "Imagen");
        EXPECT_EQ(filas.at(135).etiqueta, "Tamaño de la imagen..:");
        EXPECT_EQ(filas.size(), 14U);
    });
}

TEST_F(VentanaHistoric, LinesOfTheTangramGoByTheModeInForce) {
    Gbl.JuegoActual = JuegoTangram;
    Archiva({{.segundos = 7, .juego = 23, .total = 7, .modelo = "Pez"}});
    Gbl.ModoJuego = MODO_RESOLVER;
    En(Historic, [&] {
        EXPECT_EQ(Valor(Tex_Historic, "Tipo de puzzle"), "Juego del Tangram");
        EXPECT_EQ(Valor(Tex_Historic, "Modelo resuelto......:"), "Pez");
        EXPECT_EQ(Valor(Tex_Historic, "Factor de atracción..:"), "35%");
        EXPECT_EQ(Valor(Tex_Historic, "Tiempo por pieza"), "0:00:01");
        EXPECT_EQ(Renglones(Tex_Historic).size(), 11U);
    });
    Gbl.ModoJuego = MODO_CREAR;
    P().textos.clear();
    En(Historic, [&] {
        EXPECT_EQ(Valor(Tex_Historic, "Modelo resuelto"), "(none)");
        EXPECT_EQ(Valor(Tex_Historic, "Factor de atracción"), "(none)");
        EXPECT_EQ(Renglones(Tex_Historic).size(), 9U);
    });
}

TEST_F(VentanaHistoric, TimesDropWholeDaysAndDamagedNumbersAreNoHarm) {
    Archiva({{.segundos = 86400 + 61, .total = 0}, {.segundos = -5, .total = 25}});
    En(Historic, [&] {
        EXPECT_EQ(Valor(Tex_Historic, "Tiempo total"), "0:01:01");
        EXPECT_EQ(Valor(Tex_Historic, "Tiempo por pieza"), "0:01:01");
        P().textos.clear();
        Viaja(3);
        EXPECT_EQ(Valor(Tex_Historic, "Tiempo total"), "0:00:00");
    });
    Crea("TESSA33.his",
         "\"f\",\"h\",21,\"a\",\"b\",\"m\",1,2,3,4,5,6,9,77,-3,7,8,1e30,60,20,99,0,\"J\"");
    P().textos.clear();
    En(Historic, [&] {
        EXPECT_EQ(Valor(Tex_Historic, "Clase de piezas"), "");
        EXPECT_EQ(Valor(Tex_Historic, "Tipo de piezas"), "");
        EXPECT_EQ(Valor(Tex_Historic, "Piezas totales"), "-3");
        for (i16 orden = 1; orden <= 4; ++orden) Aprieta(Pic_OrdenHistorico(orden));
    });
}

TEST_F(VentanaHistoric, FileNameThatIsNoUtf8IsShownByItsOldCode) {
    Archiva({{.fichero = "ni\xF1"
                         "a.jpg"}});
    En(Historic, [&] { EXPECT_EQ(Valor(Tex_Historic, "Archivo de imagen"), "niña.jpg"); });
}

// ---------------------------------------------------------------- the drawing

TEST_F(VentanaHistoric, OneBarForEachRecordAsHighAsItIsHard) {
    Archiva({{"a", 100}, {"b", 50}, {"c", 10}});
    En(Historic, [&] {
        EXPECT_EQ(Pic_Barras.Left, 30);
        EXPECT_GE(Pic_Barras.Top, 176) << "below the selectors";
        const i32 alto = Pic_Barras.Height() - 8;
        const auto altura = [&](i32 x) {
            i32 n = 0;
            for (i32 y = 0; y < Pic_Barras.Height(); ++y) n += Pic_Barras.Point(x, y) != 0xF4FAFD;
            return n;
        };
        EXPECT_EQ(altura(4), alto);
        EXPECT_EQ(altura(4 + 12), alto / 2);
        EXPECT_EQ(altura(4 + 24), alto / 10);
        EXPECT_EQ(altura(4 + 36), 0);
        const i32 pie = Pic_Barras.Height() - 5;
        const Color marcada = Pic_Barras.Point(4, pie), otra = Pic_Barras.Point(16, pie);
        EXPECT_NE(marcada, otra);
        Sonidos();
        Pic_Barras.MouseDown(BOTON_IZQUIERDO, 0, 30, 3);
        EXPECT_EQ(Gbl.PosicionActual, 2);
        EXPECT_EQ(Sonidos(), (std::vector<int>{6}));
        EXPECT_EQ(Valor(Tex_Historic, "Nombre del jugador"), "c");
        EXPECT_EQ(Pic_Barras.Point(28, pie), marcada);
        EXPECT_EQ(Pic_Barras.Point(4, pie), otra);
        Pic_Barras.MouseDown(BOTON_IZQUIERDO, 0, 2, 3);   // before the first
        Pic_Barras.MouseDown(BOTON_IZQUIERDO, 0, 41, 3);  // behind the last
        EXPECT_EQ(Gbl.PosicionActual, 2);
    });
}

TEST_F(VentanaHistoric, ManyRecordsShareTheColumns) {
    std::vector<Entrada> entradas(500, Entrada{.nivel = 10});
    entradas[255].nivel = 90;
    Archiva(entradas);
    En(Historic, [&] {
        const i32 columnas = Pic_Barras.Width() - 8;
        i32 anterior = -1;
        for (i32 c = 0; c < columnas; ++c) {
            const i32 lugar = BarraEn(Pic_Barras, static_cast<float>(4 + c));
            EXPECT_GT(lugar, anterior);
            anterior = lugar;
        }
        EXPECT_EQ(BarraEn(Pic_Barras, 4), 0);
        EXPECT_EQ(BarraEn(Pic_Barras, static_cast<float>(4 + columnas)), -1);
        // The hard one shows though it shares its column.
        const i32 y = Pic_Barras.Height() / 2;
        i32 altas = 0;
        for (i32 x = 0; x < Pic_Barras.Width(); ++x) altas += Pic_Barras.Point(x, y) != 0xF4FAFD;
        EXPECT_EQ(altas, 1);
    });
}

TEST_F(VentanaHistoric, TooltipTellsTheBestTimeOfTheSamePictureAndPieces) {
    Archiva({{.jugador = "Ana", .segundos = 300, .total = 25},
             {.jugador = "Luis", .segundos = 61, .total = 25, .fichero = "LAGO.jpg"},
             {.jugador = "Eva", .segundos = 5, .total = 16},
             {.jugador = "Pau", .segundos = 9, .total = 25, .fichero = "mar.jpg"}});
    En(Historic, [&] {
        EXPECT_EQ(Pic_Barras.ToolTipText,
                  " Mejor tiempo con esta imagen y 25 piezas: 0:01:01 (Luis) ");
        Viaja(4);
        EXPECT_EQ(Pic_Barras.ToolTipText,
                  " Mejor tiempo con esta imagen y 25 piezas: 0:00:09 (Pau) ");
    });
    Gbl.JuegoActual = JuegoDeslizantes;
    Archiva({{.jugador = "Ana", .segundos = 30, .juego = 22, .fondo = 2, .total = 24},
             {.jugador = "Eva", .segundos = 20, .juego = 22, .fondo = 3, .total = 24},
             {.jugador = "Luis",
              .segundos = 25,
              .juego = 22,
              .fondo = 2,
              .total = 24,
              .fichero = "x"}});
    En(Historic, [&] {
        EXPECT_EQ(Pic_Barras.ToolTipText, " Mejor tiempo con números y 24 piezas: 0:00:25 (Luis) ");
    });
}

}  // namespace
}  // namespace tessario
