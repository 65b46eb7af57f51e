// SPDX-License-Identifier: GPL-3.0-or-later
// What is taken of a drop or a paste: which picture of several, its name, where it came from.
#include <gtest/gtest.h>

#include "apoyo/PlataformaPrueba.h"
#include "session/Traidos.h"

namespace tessario {

namespace {

constexpr Pixel VERDE = 0x00FF00, ROJO = 0xFF0000;

class Traidos : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        Gbl.Sonido = true;
        // What was brought before is no part of what comes now.
        Gbl.ImagenTraida = {std::make_shared<const Mapa>(9, 9), "vieja", "/vieja.bmp", true};
        P().ajenas["/lejos/el gato.webp"] = Mapa(40, 30, VERDE);
        P().ajenas["/lejos/perro.tif"] = Mapa(50, 20, ROJO);
    }
    void Hay(i32 ancho, i32 alto, Pixel color) const {
        ASSERT_TRUE(Gbl.ImagenTraida.Dibujo);
        EXPECT_EQ(Gbl.ImagenTraida.Dibujo->Ancho, ancho);
        EXPECT_EQ(Gbl.ImagenTraida.Dibujo->Alto, alto);
        EXPECT_EQ(Gbl.ImagenTraida.Dibujo->Pixeles[0], color);
    }
    void Rechaza(bool tomada) {
        EXPECT_FALSE(tomada);
        EXPECT_FALSE(Gbl.ImagenTraida.Dibujo);
        EXPECT_EQ(Gbl.ImagenTraida.Nombre, "");
        EXPECT_EQ(Gbl.ImagenTraida.Ruta, "");
        EXPECT_FALSE(Gbl.ImagenTraida.Unica);
        ASSERT_EQ(P().avisos.size(), 1U);
        EXPECT_EQ(P().avisos[0].titulo, "Imagen no válida");
        ASSERT_EQ(P().sonidos.size(), 1U);
        EXPECT_EQ(P().sonidos[0], (std::pair<i16, bool>{11, true}));
        P().avisos.clear();
        P().sonidos.clear();
    }
};

TEST_F(Traidos, OfSeveralDroppedFilesTheFirstThatIsAPictureIsTaken) {
    P().ajenas["/lejos/roto.bmp"] = Mapa(60, 60);  // breaks off after a while
    P().erroresImagen["/lejos/roto.bmp"] = 481;
    P().ajenas["/lejos/vacio.gif"] = Mapa(0, 30);
    P().ajenas["/lejos/plano.gif"] = Mapa(40, 0);
    EXPECT_TRUE(TomaTraido({{"/lejos/carta.txt", "/lejos/roto.bmp", "/lejos/vacio.gif",
                             "/lejos/plano.gif", "/lejos/el gato.webp", "/lejos/perro.tif"},
                            {}}));
    Hay(40, 30, VERDE);
    EXPECT_EQ(Gbl.ImagenTraida.Nombre, "el gato");
    EXPECT_EQ(Gbl.ImagenTraida.Ruta, "/lejos/el gato.webp");
    EXPECT_FALSE(Gbl.ImagenTraida.Unica);
    EXPECT_TRUE(P().avisos.empty());
    EXPECT_TRUE(P().sonidos.empty());
}

TEST_F(Traidos, ADroppedFileGoesBeforeTheDrawingThatComesWithIt) {
    EXPECT_TRUE(TomaTraido({{"/lejos/perro.tif"}, Mapa(7, 5, VERDE)}));
    Hay(50, 20, ROJO);
    EXPECT_TRUE(TomaTraido({{"/lejos/carta.txt"}, Mapa(7, 5, VERDE)}));
    Hay(7, 5, VERDE);
    EXPECT_EQ(Gbl.ImagenTraida.Nombre, "Imagen arrastrada");
    EXPECT_EQ(Gbl.ImagenTraida.Ruta, "");
    EXPECT_FALSE(Gbl.ImagenTraida.Unica)
        << "each drawing that is dropped becomes a file of its own";
}

TEST_F(Traidos, ADropWithoutAPictureIsToldAndNothingIsLeft) {
    Rechaza(TomaTraido({{"/lejos/carta.txt"}, {}}));
    Rechaza(TomaTraido({}));
    Rechaza(TomaTraido({{}, Mapa(0, 5)}));
    Rechaza(TomaTraido({{}, Mapa(5, 0)}));
}

TEST_F(Traidos, TheSmallestPictureIsOne) {
    EXPECT_TRUE(TomaTraido({{}, Mapa(1, 1, ROJO)}));
    Hay(1, 1, ROJO);
}

TEST_F(Traidos, AFileThatWasCopiedGoesBeforeTheClipboardsPicture) {
    P().hayPortapapeles = true;
    P().portapapeles = Mapa(7, 5, VERDE);
    P().portapapelesFicheros = {"/lejos/carta.txt", "/lejos/perro.tif"};
    EXPECT_TRUE(TomaPegado());
    Hay(50, 20, ROJO);
    EXPECT_EQ(Gbl.ImagenTraida.Nombre, "perro");
    EXPECT_EQ(Gbl.ImagenTraida.Ruta, "/lejos/perro.tif");
    EXPECT_FALSE(Gbl.ImagenTraida.Unica);
    P().portapapelesFicheros = {"/lejos/carta.txt"};
    EXPECT_TRUE(TomaPegado());
    Hay(7, 5, VERDE);
    EXPECT_EQ(Gbl.ImagenTraida.Nombre, "tsportap");
    EXPECT_EQ(Gbl.ImagenTraida.Ruta, "");
    EXPECT_TRUE(Gbl.ImagenTraida.Unica) << "the next one takes its place";
}

TEST_F(Traidos, AClipboardWithoutAPictureIsToldAndNothingIsLeft) {
    P().portapapeles = Mapa(7, 5, VERDE);
    Rechaza(TomaPegado());
    P().hayPortapapeles = true;
    P().portapapeles = Mapa(0, 0);
    Rechaza(TomaPegado());
}

}  // namespace

}  // namespace tessario
