// SPDX-License-Identifier: GPL-3.0-or-later
// The statistics window: its lines in the three games, the name, the bar of the share solved.
#include "apoyo/VentanaMontada.h"
#include "windows/Estadis.h"
#include "windows/Lineas.h"

namespace tessario {
namespace {

class VentanaEstadis : public VentanaMontada {
protected:
    std::map<i32, Renglon> Lineas() {
        P().textos.clear();
        std::map<i32, Renglon> filas;
        En(Estadis, [&] { filas = Renglones(Tex_Estadis); });
        return filas;
    }
    std::string Linea(const std::string& etiqueta) {
        P().textos.clear();
        std::string valor;
        En(Estadis, [&] { valor = Valor(Tex_Estadis, etiqueta); });
        return valor;
    }
};

TEST_F(VentanaEstadis, LinesOfAReducedJigsaw) {
    Moviles(4, 400, 300, 3);
    Gbl.FicheroImagen = "lago.jpg";
    Gbl.CarpetaImagen = "/fotos/";
    Gbl.AnchoImagen = 500;
    Gbl.AltoImagen = 375;
    Gbl.ZoomImagen = 80;
    Gbl.FactorAtraccion = 35;
    Gbl.SegundosJuego = 100;
    Gbl.Dificultad = 61.25F;
    Gbl.PuzzleArchivable = true;
    Gbl.PuzzleTerminado = false;
    Gbl.NombreJugador = "Íñigo";
    for (i16 i = 1; i <= 64; ++i) Gbl.Piezas[i].X = 9999;
    for (i16 i = 1; i <= 3; ++i) Gbl.Piezas[i] = {.XBien = 5, .YBien = 6};
    for (i16 i = 1; i <= 3; ++i) Gbl.Piezas[i].X = 5, Gbl.Piezas[i].Y = 6;
    Gbl.PiezasColocadas = 50;  // counted anew
    const std::map<i32, Renglon> esperadas{
        {20, {"Tipo de puzzle.......:", "Puzzle de piezas móviles"}},
        {45, {"Archivo de imagen....:", "lago.jpg"}},
        {60, {"Ubicación del archivo:", "/fotos/"}},
        {75, {"Tamaño de la imagen..:", "500 x 375 píxeles"}},
        {90, {"Reducción del tamaño.:", "80%"}},
        {105, {"Tamaño reducido......:", "396 x 296 píxeles"}},
        {130, {"Piezas por lado......:", "4"}},
        {145, {"Clase de piezas......:", "Cuádruples"}},
        {160, {"Tipo de piezas.......:", "Triángulos"}},
        {175, {"Piezas totales.......:", "64"}},
        {190, {"Ancho de las piezas..:", std::to_string(Gbl.AnchoCelda) + " píxeles"}},
        {205, {"Alto de las piezas...:", std::to_string(Gbl.AltoCelda) + " píxeles"}},
        {220, {"Factor de atracción..:", "35%"}},
        {245, {"Piezas colocadas.....:", "3"}},
        {260, {"Porcentaje resuelto..:", "5%"}},
        {275, {"Tiempo total.........:", "0:01:40"}},
        {290, {"Tiempo por pieza.....:", "0:00:33"}},
        {305, {"Nivel de dificultad..:", "61.2500"}},
        {320, {"¿Pasará al Histórico?:", "Si"}},
        {335, {"¿Puzzle resuelto?....:", "No"}},
        {350, {"Nombre del jugador...:", ""}}};
    EXPECT_EQ(Lineas(), esperadas);
    EXPECT_EQ(Tex_Estadis.Height(), 385);
    EXPECT_EQ(Gbl.PiezasColocadas, 3);
    EXPECT_EQ(Tex_NombreJugador.Text, "Íñigo");
    EXPECT_EQ(Tex_NombreJugador.Left, 178);
    EXPECT_LE(Tex_NombreJugador.Top, 350);
    EXPECT_GT(Tex_NombreJugador.Top, 335);
    EXPECT_EQ(Tex_NombreJugador.Contenedor, &Tex_Estadis);
    EXPECT_EQ(Estadis.Width(), 420);
    EXPECT_EQ(Estadis.Left, 190);
}

TEST_F(VentanaEstadis, EnlargedAndPlainSizes) {
    Moviles(3, 400, 300);
    Gbl.ZoomImagen = 130;
    EXPECT_EQ(Linea("Ampliación del tamaño:"), "130%");
    EXPECT_EQ(Linea("Tamaño ampliado......:"), "399 x 300 píxeles");
    Gbl.ZoomImagen = 100;
    EXPECT_EQ(Linea("Zoom aplicado........:"), "Ninguno");
    EXPECT_EQ(Linea("Tamaño reducido"), "(none)");
    EXPECT_EQ(Linea("Tamaño ampliado"), "(none)");
}

TEST_F(VentanaEstadis, WithNoPieceInPlaceTheTimeByPieceIsTheWhole) {
    Deslizantes(3);
    TableroResuelto();
    for (i16 i = 1; i <= 8; ++i) Gbl.Piezas[i].XBien = -1;
    Gbl.SegundosJuego = 3605;
    EXPECT_EQ(Linea("Piezas colocadas"), "0");
    EXPECT_EQ(Linea("Porcentaje resuelto"), "0%");
    EXPECT_EQ(Linea("Tiempo por pieza"), "1:00:05");
}

TEST_F(VentanaEstadis, ShareIsRoundedToTheNearestHalvesToEven) {
    Deslizantes(3);
    const std::pair<i16, const char*> casos[] = {{1, "12%"}, {3, "38%"}, {5, "62%"}, {8, "100%"}};
    for (const auto& [bien, texto] : casos) {
        TableroResuelto();
        for (i16 i = 1; i <= 8; ++i)
            if (i > bien) Gbl.Piezas[i].Y = -7;
        EXPECT_EQ(Linea("Porcentaje resuelto"), texto) << bien;
    }
}

TEST_F(VentanaEstadis, BarUnderTheShareIsAsLongAsTheShare) {
    Deslizantes(3);
    TableroResuelto();
    for (i16 i = 5; i <= 8; ++i) Gbl.Piezas[i].Y = -7;
    i32 y = 0;
    for (const auto& [arriba, r] : Lineas())
        if (r.etiqueta.starts_with("Porcentaje")) y = arriba;
    ASSERT_GT(y, 0);
    // 200 pixels from the left edge of the values; half of them are full, below the text.
    const Color llena = Tex_Estadis.Point(178, y + 13), vacia = Tex_Estadis.Point(377, y + 13);
    EXPECT_NE(llena, vacia);
    EXPECT_EQ(Tex_Estadis.Point(277, y + 14), llena);
    EXPECT_EQ(Tex_Estadis.Point(278, y + 14), vacia);
    EXPECT_EQ(Tex_Estadis.Point(378, y + 13), 0xF4FAFDU);
    EXPECT_EQ(Tex_Estadis.Point(178, y + 15), 0xF4FAFDU) << "the next line stays where it was";
}

TEST_F(VentanaEstadis, LinesOfTheSlidingGame) {
    Deslizantes(5);
    Gbl.TipoFondo = FONDO_LETRAS;
    auto filas = Lineas();
    EXPECT_EQ(filas.at(20).valor, "Puzzle de piezas deslizantes");
    EXPECT_EQ(filas.at(45), (Renglon{"Tipo de fondo........:", "Letras"}));
    EXPECT_EQ(filas.at(70), (Renglon{"Piezas por lado......:", "5"}));
    EXPECT_EQ(filas.at(85), (Renglon{"Piezas totales.......:", "24"}));
    EXPECT_EQ(filas.at(110).etiqueta, "Piezas colocadas.....:");
    EXPECT_EQ(filas.size(), 12U);
    Gbl.TipoFondo = FONDO_IMAGEN;
    Gbl.FicheroImagen = "TSPORTAP.BMP";
    Gbl.CarpetaImagen = "/tmp/";
    filas = Lineas();
    EXPECT_EQ(filas.at(45).valor, "Imagen");
    EXPECT_EQ(filas.at(60), (Renglon{"Archivo de imagen....:", "Copiada del Portapapeles"}));
    EXPECT_EQ(filas.at(75), (Renglon{"Ubicación del archivo:", ""}));
    EXPECT_EQ(filas.at(90).etiqueta, "Tamaño de la imagen..:");
    EXPECT_EQ(filas.size(), 15U);
}

TEST_F(VentanaEstadis, LinesOfASolvedModel) {
    Tangram(MODO_RESOLVER);
    Gbl.NombrePuzzle = "Pez";
    Gbl.PuzzleArchivable = false;
    Gbl.PuzzleTerminado = true;
    const auto filas = Lineas();
    EXPECT_EQ(filas.at(20).valor, "Juego del Tangram");
    EXPECT_EQ(filas.at(45), (Renglon{"Modelo a resolver....:", "Pez"}));
    EXPECT_EQ(filas.at(70), (Renglon{"Piezas totales.......:", "7"}));
    EXPECT_EQ(filas.at(85).etiqueta, "Tipo de pieza       Ancho     Alto");
    EXPECT_EQ(filas.at(100), (Renglon{"Triángulo grande", "125 px.   125 px."}));
    EXPECT_EQ(filas.at(130), (Renglon{"Triángulo mediano", " 89 px.    89 px."}));
    EXPECT_EQ(filas.at(175), (Renglon{"Cuadrado", " 63 px.    63 px."}));
    EXPECT_EQ(filas.at(190), (Renglon{"Paralelogramo", "132 px.    44 px."}));
    EXPECT_EQ(filas.at(205).etiqueta, "Factor de atracción..:");
    EXPECT_EQ(filas.at(305), (Renglon{"¿Pasará al Histórico?:", "No"}));
    EXPECT_EQ(filas.at(320), (Renglon{"¿Puzzle resuelto?....:", "Si"}));
    EXPECT_EQ(filas.size(), 20U);
    for (const auto& t : P().textos)
        if (t.donde == &Tex_Estadis && t.texto.ends_with("px.")) {
            EXPECT_EQ(t.x, 20 + 20 * 7) << "under the headings";
        }
}

TEST_F(VentanaEstadis, FreeDesignSkipsToTheName) {
    Tangram(MODO_CREAR);
    const auto filas = Lineas();
    EXPECT_EQ(filas.size(), 11U);
    EXPECT_EQ(filas.rbegin()->second.etiqueta, "Nombre del jugador...:");
    EXPECT_EQ(filas.rbegin()->first, 20 + 10 * 15 + 3 * 10);
    EXPECT_EQ(Linea("Piezas colocadas"), "(none)");
    EXPECT_EQ(Linea("Factor de atracción"), "(none)");
}

TEST_F(VentanaEstadis, NameIsWrittenOnEveryChangeCutAtNineCharacters) {
    Deslizantes(3);
    Gbl.NombreJugador = "MiNombre";
    En(Estadis, [&] {
        Tex_NombreJugador.Escribe("Ñ");
        EXPECT_EQ(Gbl.NombreJugador, "Ñ");
        Tex_NombreJugador.Escribe("Maximiliána");
        EXPECT_EQ(Gbl.NombreJugador, "Maximiliá");
        Tex_NombreJugador.Escribe("Eva  ");
        EXPECT_EQ(Gbl.NombreJugador, "Eva");
        Tex_NombreJugador.Escribe("");
        EXPECT_EQ(Gbl.NombreJugador, "");
    });
}

TEST_F(VentanaEstadis, ButtonsSoundHelpAndCloseAndTheClockComesBack) {
    Deslizantes(3);
    Gbl.CronoEnMarcha = true;
    Mesa.MousePointer = PUNTERO_RELOJ;
    P().ventanas["Estadis"] = [&](Ventana&) {
        EXPECT_FALSE(Gbl.CronoEnMarcha);
        EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
        Mesa.MousePointer = PUNTERO_RELOJ;
        Sonidos();
        Aprieta(Pic_BotAyudaEstadis);
        EXPECT_TRUE(Estadis.Abierta);
        Aprieta(Pic_BotSalirEstadis);
        EXPECT_FALSE(Estadis.Abierta);
        EXPECT_EQ(Sonidos(), (std::vector<int>{9, 9}));
    };
    PulsaOrden(4);
    EXPECT_EQ(P().ayudas, (std::vector<i32>{2150}));
    EXPECT_TRUE(Gbl.CronoEnMarcha);
    EXPECT_EQ(Mesa.MousePointer, PUNTERO_NORMAL);
}

TEST_F(VentanaEstadis, ButtonsStandBelowTheLinesWithinTheFrame) {
    for (const bool modelo : {false, true}) {
        modelo ? Tangram(MODO_RESOLVER) : Deslizantes(3);
        En(Estadis, [&] {
            const i32 bajoTexto = Tex_Estadis.Top + Tex_Estadis.Height();
            EXPECT_EQ(Tex_Estadis.Left + Tex_Estadis.Width() / 2, Estadis.Width() / 2);
            EXPECT_GT(Tex_Estadis.Top, 20) << "the title stands above";
            for (const Cuadro* b : {&Pic_BotAyudaEstadis, &Pic_BotSalirEstadis}) {
                EXPECT_EQ(b->Width(), 48);
                EXPECT_EQ(b->Height(), 48);
                EXPECT_GT(b->Top, bajoTexto);
                EXPECT_EQ(b->Top + 48 + 17, Estadis.Height());
            }
            EXPECT_EQ(Pic_BotSalirEstadis.Left + 48, Tex_Estadis.Left + Tex_Estadis.Width());
            EXPECT_LT(Pic_BotAyudaEstadis.Left + 48, Pic_BotSalirEstadis.Left);
            EXPECT_EQ(Estadis.Top, (Gbl.AltoPantalla - Estadis.Height()) / 2);
            const i32 nombreAba = Tex_NombreJugador.Top + Tex_NombreJugador.Height();
            EXPECT_LT(nombreAba, Tex_Estadis.Height());
        });
    }
}

TEST_F(VentanaEstadis, DurationsAreTimesOfDayWithoutWholeDays) {
    EXPECT_EQ(TextoDuracion(0), "0:00:00");
    EXPECT_EQ(TextoDuracion(59.6), "0:01:00");
    EXPECT_EQ(TextoDuracion(86399), "23:59:59");
    EXPECT_EQ(TextoDuracion(86400), "0:00:00");
    EXPECT_EQ(TextoDuracion(-4), "0:00:00");
}

}  // namespace
}  // namespace tessario
