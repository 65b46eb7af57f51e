// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures from files: their size, reduced for a preview, of foreign kinds.
#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include "PruebaQt.h"
#include "qt/Imagenes.h"

namespace tessario {

namespace {

class Imagenes : public PruebaQt {
protected:
    std::string Fichero(const char* nombre, const QByteArray& bytes) {
        const QString ruta = carpeta.filePath(nombre);
        QFile f(ruta);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
        return ruta.toStdString();
    }
    static QByteArray En(const QImage& im, const char* formato, int calidad = 95) {
        QByteArray b;
        QBuffer m(&b);
        m.open(QIODevice::WriteOnly);
        im.save(&m, formato, calidad);
        return b;
    }
    // Red above, blue below; left half dark.
    static QImage Cuartos(int w, int h) {
        QImage im(w, h, QImage::Format_RGB32);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) im.setPixel(x, y, y < h / 2 ? 0x800000U : 0x000080U);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w / 2; ++x) im.setPixel(x, y, y < h / 2 ? 0xFF0000 : 0x0000FF);
        return im;
    }
    // The same file with an orientation tag: 6 is to be turned a quarter clockwise.
    static QByteArray ConOrientacion(const QByteArray& jpeg, char cual) {
        QByteArray exif = QByteArray::fromHex(
            "ffe100224578696600004d4d002a00000008000101120003000000010006000000000000");
        exif[exif.indexOf(QByteArray::fromHex("000300000001")) + 7] = cual;
        return jpeg.left(2) + exif + jpeg.mid(2);
    }
    static bool Parecido(Pixel a, Pixel b) {
        for (int d : {0, 8, 16})
            if (std::abs(static_cast<int>((a >> d) & 0xFF) - static_cast<int>((b >> d) & 0xFF)) >
                12)
                return false;
        return true;
    }
    QTemporaryDir carpeta;
    Mapa m;
    i32 w = -1, h = -1;
};

TEST_F(Imagenes, TheSizeIsTheOneThatLoadingGives) {
    const QByteArray jpeg = En(Cuartos(64, 40), "JPG");
    for (const auto& [nombre, bytes] : {std::pair{"a.bmp", En(Cuartos(64, 40), "BMP")},
                                        {"a.png", En(Cuartos(64, 40), "PNG")},
                                        {"a.jpg", jpeg},
                                        {"g.jpg", ConOrientacion(jpeg, 6)},
                                        {"m.jpg", ConOrientacion(jpeg, 3)}}) {
        const std::string ruta = Fichero(nombre, bytes);
        ASSERT_EQ(P().CargaImagen(ruta, m), 0) << nombre;
        ASSERT_EQ(P().MideImagen(ruta, w, h), 0) << nombre;
        EXPECT_EQ(w, m.Ancho) << nombre;
        EXPECT_EQ(h, m.Alto) << nombre;
    }
    ASSERT_EQ(P().MideImagen(carpeta.filePath("g.jpg").toStdString(), w, h), 0);
    EXPECT_EQ(w, 40);
    EXPECT_EQ(h, 64);
}

TEST_F(Imagenes, WhatCannotBeReadLeavesTheOldPictureAndSaysWhy) {
    m = Mapa(2, 2, 0x123456);
    const std::string falta = carpeta.filePath("no.jpg").toStdString();
    const std::string texto = Fichero("t.jpg", "esto no es una imagen");
    w = h = -1;
    EXPECT_EQ(P().MideImagen(falta, w, h), 53);
    EXPECT_EQ(P().MideImagen(texto, w, h), 481);
    EXPECT_EQ(P().CargaMuestra(falta, 10, 10, m), 53);
    EXPECT_EQ(P().CargaMuestra(texto, 10, 10, m), 481);
    EXPECT_EQ(P().CargaMuestra(texto, 0, 10, m), 481);
    EXPECT_EQ(P().CargaAjena(falta, m), 53);
    EXPECT_EQ(P().CargaAjena(texto, m), 481);
    EXPECT_EQ(w, -1);
    EXPECT_EQ(m.Pixeles, std::vector<Pixel>(4, 0x123456));
}

TEST_F(Imagenes, AReducedPictureIsTheStretchedOneToThePixel) {
    QImage im(37, 23, QImage::Format_RGB32);
    for (int y = 0; y < 23; ++y)
        for (int x = 0; x < 37; ++x) im.setPixel(x, y, static_cast<uint>(x * 5 * 256 + y * 9));
    ASSERT_EQ(P().CargaMuestra(Fichero("a.png", En(im, "PNG")), 10, 7, m), 0);
    ASSERT_EQ(m.Ancho, 10);
    ASSERT_EQ(m.Alto, 7);
    for (i32 y = 0; y < 7; ++y)
        for (i32 x = 0; x < 10; ++x) {
            const auto sx = static_cast<Pixel>((2 * x + 1) * 37 / 20);
            const auto sy = static_cast<Pixel>((2 * y + 1) * 23 / 14);
            EXPECT_EQ(m.Fila(y)[x], sx * 5 * 256 + sy * 9) << x << "," << y;
        }
}

TEST_F(Imagenes, AReducedPhotographKeepsItsOrientation) {
    // Turned a quarter clockwise, what was on the left stands above.
    const QByteArray jpeg = En(Cuartos(640, 400), "JPG");
    ASSERT_EQ(P().CargaMuestra(Fichero("g.jpg", ConOrientacion(jpeg, 6)), 40, 64, m), 0);
    ASSERT_EQ(m.Ancho, 40);
    ASSERT_EQ(m.Alto, 64);
    EXPECT_TRUE(Parecido(m.Fila(8)[32], 0xFF0000)) << std::hex << m.Fila(8)[32];
    EXPECT_TRUE(Parecido(m.Fila(8)[8], 0x0000FF)) << std::hex << m.Fila(8)[8];
    EXPECT_TRUE(Parecido(m.Fila(56)[32], 0x800000)) << std::hex << m.Fila(56)[32];
}

TEST_F(Imagenes, ALargePhotographIsReducedWithoutDecodingItWhole) {
    const std::string ruta = Fichero("grande.jpg", En(Cuartos(5200, 3900), "JPG", 80));
    QElapsedTimer t;
    t.start();
    ASSERT_EQ(P().CargaMuestra(ruta, 160, 120, m), 0);
    const qint64 reducida = t.nsecsElapsed();
    EXPECT_EQ(m.Ancho, 160);
    EXPECT_EQ(m.Alto, 120);
    EXPECT_TRUE(Parecido(m.Fila(100)[20], 0x0000FF));
    EXPECT_LT(reducida, 800'000'000) << "ns";
    Mapa entera;
    t.start();
    ASSERT_EQ(P().CargaImagen(ruta, entera), 0);
    EXPECT_LT(reducida, t.nsecsElapsed());
}

TEST_F(Imagenes, AForeignKindIsReadWhenItComesFromOutsideTheLists) {
    const std::string ruta = Fichero("a.ppm", En(Cuartos(8, 8), "PPM"));
    EXPECT_EQ(P().CargaImagen(ruta, m), 481);
    EXPECT_EQ(P().CargaAjena(ruta, m), 0);
    EXPECT_EQ(m.Ancho, 8);
    EXPECT_EQ(m.Fila(0)[0], 0xFF0000U);
    EXPECT_EQ(P().CargaAjena(Fichero("a.png", En(Cuartos(8, 6), "PNG")), m), 0);
    EXPECT_EQ(m.Alto, 6);
}

}  // namespace

}  // namespace tessario
