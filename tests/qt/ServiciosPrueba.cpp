// SPDX-License-Identifier: GPL-3.0-or-later
// Text, pictures, sound and clipboard.
#include <QBuffer>
#include <QClipboard>
#include <QColorSpace>
#include <QFile>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QTemporaryDir>
#include <cstring>

#include "PruebaQt.h"
#include "core/Avisos.h"
#include "core/Cadenas.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Sugerencias.h"
#include "qt/Imagenes.h"
#include "qt/Sonidos.h"

namespace tessario {

namespace {

class VistaDeServicios : public PruebaQt {
protected:
    std::string Fichero(const char* nombre, const QByteArray& bytes) {
        const QString ruta = carpeta.filePath(nombre);
        QFile f(ruta);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(bytes);
        return ruta.toStdString();
    }
    static QByteArray En(const QImage& im, const char* formato) {
        QByteArray b;
        QBuffer m(&b);
        m.open(QIODevice::WriteOnly);
        im.save(&m, formato, 95);
        return b;
    }
    static QImage Lisa(int w, int h, QRgb color) {
        QImage im(w, h, QImage::Format_RGB32);
        im.fill(color);
        return im;
    }
    // A BMP header of 24 bits for a picture of the given size.
    static QByteArray CabezaBmp(quint32 w, quint32 h) {
        QByteArray b(54, '\0');
        b[0] = 'B';
        b[1] = 'M';
        const auto pon = [&](int donde, quint32 v) { std::memcpy(b.data() + donde, &v, 4); };
        pon(2, 54);
        pon(10, 54);
        pon(14, 40);
        pon(18, w);
        pon(22, h);
        b[26] = 1;
        b[28] = 24;
        return b;
    }
    QTemporaryDir carpeta;
    Mapa m;
};

// --- Text.

// Every message that the game sends, in the letter and the width of its window.
TEST_F(VistaDeServicios, EveryMessageFitsTheLinesThatItIsGiven) {
    constexpr i32 ANCHO = 365;
    const Fuente titulo{Familia::Sans, 13, true, false};
    Textos t;
    ASSERT_FALSE(Avisos().empty());
    for (const Aviso* a : Avisos()) {
        const std::string texto = TextoDe(*a, {a->muestra[0], a->muestra[1]});
        const auto renglones = t.Renglones(Fuente{}, texto, ANCHO);
        EXPECT_LE(renglones.size(), static_cast<std::size_t>(a->modo)) << texto;
        for (const Renglon& r : renglones) EXPECT_LE(t.AnchoMinimo(Fuente{}, r), ANCHO) << texto;
        EXPECT_LE(P().AnchoTexto(titulo, a->titulo), ANCHO) << a->titulo;
    }
}

// The program may stand in a folder with a long name: then the letter gives way, not the last line.
TEST_F(VistaDeServicios, AMessageWithALongPathIsStillShownWhole) {
    const std::string ruta =
        "/home/maria.fernandez/.local/share/tessario/Temp/Tsb/otra/carpeta/larga/TsR2133.ini";
    const std::string texto = TextoDe(aviso::SIN_AJUSTES, {ruta});
    constexpr i32 ANCHO = 365, ALTO = 3 * 16 + 3;
    Textos t;
    EXPECT_GT(t.AltoBloque(Fuente{}, t.Renglones(Fuente{}, texto, ANCHO).size()), ALTO);
    const Fuente letra = t.QueCabe(Fuente{}, texto, ANCHO, ALTO);
    const auto renglones = t.Renglones(letra, texto, ANCHO);
    EXPECT_LE(t.AltoBloque(letra, renglones.size()), ALTO);
    EXPECT_GE(letra.Tamano, 10);
    QString junto;
    for (const Renglon& r : renglones) junto += r.texto;
    EXPECT_TRUE(junto.contains(QString::fromStdString(ruta))) << "a path is cut only at a slash";
    // What fits is left alone.
    const std::string corto = TextoDe(aviso::SIN_AJUSTES, {"/opt/tessario/TsR2133.ini"});
    EXPECT_EQ(t.QueCabe(Fuente{}, corto, ANCHO, ALTO).Tamano, Fuente{}.Tamano);
}

TEST_F(VistaDeServicios, TheLinkOfTheHintsFitsItsBox) {
    Gbl.VentanaInformacion = true;
    CargaSugerencias();
    Sugerencia(21);
    EXPECT_LE(P().AnchoTexto(Pic_SugeMasAyuda.Font, "más ayuda"), Pic_SugeMasAyuda.Width());
    EXPECT_LE(P().AltoTexto(Pic_SugeMasAyuda.Font), Pic_SugeMasAyuda.Height());
    // Every line of every hint, 59 characters, between the margin and the panel's edge.
    for (const auto& s : Gbl.Sugerencias)
        for (i32 i = 0; i < 3; ++i)
            EXPECT_LE(3 + P().AnchoTexto(Pic_Sugerencia.Font, Mid(s.Texto, i * 60 + 1, 59)),
                      423 - 1)
                << s.Texto;
    Gbl.VentanaInformacion = false;
}

TEST_F(VistaDeServicios, WrappingFoldsRunsOfBlanksAndKeepsIndentsAndLineEnds) {
    Textos t;
    const Fuente mono{Familia::Mono, 12, false, false};  // 7 pixels a character
    ASSERT_EQ(P().AnchoTexto(mono, "0123456789"), 70);
    auto r = t.Renglones(mono, "uno   dos tres", 70);
    ASSERT_EQ(r.size(), 2U);
    EXPECT_EQ(r[0].texto, "uno dos");
    EXPECT_EQ(r[1].texto, "tres");
    r = t.Renglones(mono, "  a\r\n\r\n   b   c", 70);
    ASSERT_EQ(r.size(), 3U);
    EXPECT_EQ(r[0].texto, "  a");
    EXPECT_EQ(r[1].texto, "");
    EXPECT_EQ(r[2].texto, "   b c");
    r = t.Renglones(mono, "abcdefghijklmno p", 70);
    ASSERT_EQ(r.size(), 2U);
    EXPECT_EQ(r[0].texto, "abcdefghij");
    EXPECT_EQ(r[1].texto, "klmno p");
}

TEST_F(VistaDeServicios, FullAreTheLinesBrokenAndThoseThatNearlyFillTheWidth) {
    Textos t;
    const Fuente mono{Familia::Mono, 12, false, false};
    const auto r = t.Renglones(mono, "uno dos tres\nabcd efghi\nabc\nabcd efghi", 70);
    ASSERT_EQ(r.size(), 5U);
    EXPECT_TRUE(r[0].lleno);   // broken
    EXPECT_FALSE(r[1].lleno);  // the rest of that paragraph
    EXPECT_TRUE(r[2].lleno);   // ten of ten columns, and a paragraph follows
    EXPECT_FALSE(r[3].lleno);
    EXPECT_FALSE(r[4].lleno);  // the last of all
}

// What a line of black text covers, in columns.
std::pair<int, int> Extremos(Textos& t, const Renglon& r, i32 ancho, bool centrado) {
    QImage im(ancho, 20, QImage::Format_RGB32);
    im.fill(Qt::white);
    const Fuente mono{Familia::Mono, 12, false, false};
    QPainter p(&im);
    p.setFont(t.Letra(mono));
    t.PintaRenglon(p, mono, r, 2, ancho, centrado);
    p.end();
    int izq = ancho, der = -1;
    for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < ancho; ++x)
            if (im.pixel(x, y) != qRgb(255, 255, 255)) {
                izq = std::min(izq, x);
                der = std::max(der, x);
            }
    return {izq, der};
}

TEST_F(VistaDeServicios, AFullLineGoesFromEdgeToEdge) {
    Textos t;
    const auto [izq, der] = Extremos(t, {"HH HH HH", true}, 80, false);
    EXPECT_LE(izq, 1);
    EXPECT_GE(der, 77);
    const auto [izq2, der2] = Extremos(t, {"HH HH HH", false}, 80, false);
    EXPECT_LE(izq2, 1);
    EXPECT_LT(der2, 57);
    const auto [izq3, der3] = Extremos(t, {"  HH HH", true}, 60, false);
    EXPECT_GE(izq3, 14) << "an indent stays";
    EXPECT_GE(der3, 57);
    // One a little too wide is squeezed: 56 pixels of text on 54.
    EXPECT_LE(Extremos(t, {"HH HH HH", false}, 54, false).second, 53);
    EXPECT_GE(Extremos(t, {"HH HH HH", false}, 54, false).second, 50);
    // A line of few words is not torn apart, one word not at all.
    EXPECT_LT(Extremos(t, {"HH HH", true}, 200, false).second, 40);
    EXPECT_LT(Extremos(t, {"HHHH", true}, 60, false).second, 30);
    EXPECT_NEAR(Extremos(t, {"HHHH", false}, 60, true).first, 16, 2);
}

TEST_F(VistaDeServicios, TextIsPaintedWithinTheClipAndTheUpperByteStaysZero) {
    Superficie s(100, 30);
    s.PonBackColor(0xFFFFFF);
    const Region mitad = CreateRectRgn(0, 0, 20, 30);
    s.PonRecorte(&mitad);
    s.TomaSucio();
    P().PintaTexto(s, 2, 5, "HHHHHHHHHH", Fuente{}, 0x0000FF);
    int dentro = 0, fuera = 0;
    for (i32 y = 0; y < 30; ++y)
        for (i32 x = 0; x < 100; ++x) {
            EXPECT_EQ(s.Fila(y)[x] >> 24, 0U);
            if (s.Fila(y)[x] != 0xFFFFFFU) ++(x < 20 ? dentro : fuera);
        }
    EXPECT_GT(dentro, 20);
    EXPECT_EQ(fuera, 0);
    EXPECT_FALSE(s.Sucio().Vacio());
}

TEST_F(VistaDeServicios, TextFarOutsideOrOnNothingIsNoError) {
    Superficie nada, s(10, 10);
    P().PintaTexto(nada, 0, 0, "x", Fuente{}, 0);
    P().PintaTexto(s, 2000000000, -2000000000, "x", Fuente{}, 0);
    P().PintaTexto(s, -5, -5, "WWWW", Fuente{}, 0);
    P().PintaTexto(s, 0, 0, "\xFF\xFE", Fuente{}, 0);
    EXPECT_EQ(P().AnchoTexto(Fuente{}, ""), 0);
}

TEST_F(VistaDeServicios, BoldAndUnderlinedAreFontsOfTheirOwn) {
    Fuente negrita;
    negrita.Negrita = true;
    EXPECT_GT(P().AnchoTexto(negrita, "más  ayuda"), P().AnchoTexto(Fuente{}, "más  ayuda"));
    Fuente subrayada;
    subrayada.Subrayado = true;
    Superficie a(80, 24), b(80, 24);
    P().PintaTexto(a, 2, 2, "nnnn", Fuente{}, 0);
    P().PintaTexto(b, 2, 2, "nnnn", subrayada, 0);
    EXPECT_NE(a.Dibujo().Pixeles, b.Dibujo().Pixeles);
}

// --- Pictures.

TEST_F(VistaDeServicios, PicturesAreToldByContentNotByName) {
    EXPECT_EQ(P().CargaImagen(Fichero("foto.bmp", En(Lisa(40, 30, 0x3060C0), "JPG")), m), 0);
    EXPECT_EQ(m.Ancho, 40);
    EXPECT_EQ(m.Alto, 30);
    const Pixel p = m.Fila(15)[20];
    EXPECT_NEAR(static_cast<int>(p >> 16), 0x30, 4);
    EXPECT_NEAR(static_cast<int>((p >> 8) & 0xFF), 0x60, 4);
    EXPECT_NEAR(static_cast<int>(p & 0xFF), 0xC0, 4);
    EXPECT_EQ(p >> 24, 0U);
}

TEST_F(VistaDeServicios, APictureOfOnePixelIsAPicture) {
    EXPECT_EQ(P().CargaImagen(Fichero("uno.bmp", En(Lisa(1, 1, 0x123456), "BMP")), m), 0);
    ASSERT_EQ(m.Pixeles.size(), 1U);
    EXPECT_EQ(m.Pixeles[0], 0x123456U);
}

TEST_F(VistaDeServicios, WhatIsNoPictureIsRefusedByNumber) {
    EXPECT_EQ(P().CargaImagen(carpeta.filePath("no.bmp").toStdString(), m), 53);
    EXPECT_EQ(P().CargaImagen(carpeta.path().toStdString(), m), 53) << "a folder";
    EXPECT_EQ(P().CargaImagen(Fichero("vacio.bmp", ""), m), 481);
    EXPECT_EQ(P().CargaImagen(Fichero("texto.jpg", "esto no es una imagen"), m), 481);
    EXPECT_EQ(P().CargaImagen(Fichero("vector.wmf", QByteArray::fromHex("d7cdc69a0000")), m), 481);
    EXPECT_EQ(
        P().CargaImagen(Fichero("dibujo.jpg", "<svg xmlns='http://www.w3.org/2000/svg'/>"), m),
        481);
    EXPECT_TRUE(m.Pixeles.empty());
}

TEST_F(VistaDeServicios, HugePicturesAreRefusedBeforeTheyAreRead) {
    EXPECT_EQ(P().CargaImagen(Fichero("enorme.bmp", CabezaBmp(20000, 20000)), m), 7);
    const i32 e = P().CargaImagen(Fichero("loca.bmp", CabezaBmp(0x7FFFFFFF, 0x7FFFFFFF)), m);
    EXPECT_TRUE(e == 7 || e == 481) << e;
    EXPECT_EQ(P().CargaImagen(Fichero("cero.bmp", CabezaBmp(0, 0)), m), 481);
}

TEST_F(VistaDeServicios, NoDamagedFileCrashesAndNoneShowsStrayMemory) {
    const QByteArray bmp = En(Lisa(64, 48, 0xA0B0C0), "BMP");
    const QByteArray jpg = En(Lisa(64, 48, 0xA0B0C0), "JPG");
    unsigned semilla = 12345;
    for (const QByteArray& bueno : {bmp, jpg}) {
        for (int i = 0; i < 150; ++i) {
            QByteArray malo = bueno.left(bueno.size() * ((i % 10) + 1) / 10);
            for (int k = 0; k < i / 10; ++k) {
                semilla = semilla * 1103515245U + 12345U;
                malo[static_cast<qsizetype>(semilla >> 8) % malo.size()] =
                    static_cast<char>(semilla);
            }
            m = Mapa();
            const i32 e = P().CargaImagen(Fichero("malo", malo), m);
            EXPECT_TRUE(e == 0 || e == 7 || e == 481) << e;
            EXPECT_EQ(m.Pixeles.size(), static_cast<std::size_t>(m.Ancho * m.Alto));
            for (const Pixel p : m.Pixeles) ASSERT_EQ(p >> 24, 0U);
        }
    }
}

TEST_F(VistaDeServicios, RunLengthPicturesThatSkipPixelsShowTheFirstColourThere) {
    // 4x2, 8 bits, run-length: the lower row is skipped but for one pixel of colour 1.
    QByteArray b = CabezaBmp(4, 2);
    b[28] = 8;
    b[30] = 1;  // run-length 8
    b[46] = 2;  // two colours
    b += QByteArray::fromHex(
        "00ff0000"
        "0000ff00");  // green, red (blue first)
    b[10] = static_cast<char>(b.size());
    b += QByteArray::fromHex(
        "0101"
        "0000"
        "0401"
        "0001");
    EXPECT_EQ(P().CargaImagen(Fichero("corrido.rle", b), m), 0);
    ASSERT_EQ(m.Ancho, 4);
    EXPECT_EQ(m.Fila(1)[0], 0xFF0000U);
    EXPECT_EQ(m.Fila(1)[1], 0x00FF00U);
    EXPECT_EQ(m.Fila(1)[3], 0x00FF00U);
    EXPECT_EQ(m.Fila(0)[3], 0xFF0000U);
}

TEST_F(VistaDeServicios, ASavedPictureComesBackTheSame) {
    Mapa original(33, 17);
    for (i32 y = 0; y < 17; ++y)
        for (i32 x = 0; x < 33; ++x)
            original.Fila(y)[x] = static_cast<Pixel>((x * 7) << 16 | (y * 11) << 8 | (x ^ y));
    const std::string ruta = carpeta.filePath("guardada.bmp").toStdString();
    EXPECT_EQ(P().GuardaImagen(ruta, original), 0);
    EXPECT_EQ(P().CargaImagen(ruta, m), 0);
    EXPECT_EQ(m.Ancho, 33);
    EXPECT_EQ(m.Pixeles, original.Pixeles);
    EXPECT_EQ(P().GuardaImagen(carpeta.filePath("no/hay.bmp").toStdString(), original), 76);
    EXPECT_EQ(P().GuardaImagen(carpeta.path().toStdString(), original), 75) << "a folder";
    EXPECT_EQ(QDir(carpeta.path()).entryList(QDir::Files).size(), 1) << "nothing left beside";
}

TEST_F(VistaDeServicios, TheProgramsPicturesHaveTheirSizes) {
    EXPECT_TRUE(P().RecursoImagen("BmpBoton", m));
    EXPECT_EQ(m.Ancho, 587);
    EXPECT_EQ(m.Alto, 97);
    EXPECT_TRUE(P().RecursoImagen("BmpVario", m));
    EXPECT_EQ(m.Ancho, 342);
    EXPECT_EQ(m.Alto, 78);
    EXPECT_FALSE(P().RecursoImagen("NoExiste", m));
}

TEST_F(VistaDeServicios, TheClipboardGivesPicturesOfAnyDepth) {
    QGuiApplication::clipboard()->setText("solo texto");
    EXPECT_FALSE(P().PortapapelesTieneImagen());
    EXPECT_FALSE(P().PortapapelesImagen(m));
    for (const auto f : {QImage::Format_Mono, QImage::Format_RGBA64, QImage::Format_RGB32}) {
        QGuiApplication::clipboard()->setImage(Lisa(50, 40, 0xFFFFFFFF).convertToFormat(f));
        EXPECT_TRUE(P().PortapapelesTieneImagen());
        ASSERT_TRUE(P().PortapapelesImagen(m));
        EXPECT_EQ(m.Ancho, 50);
        EXPECT_EQ(m.Fila(39)[49], 0xFFFFFFU);
    }
}

// --- Sound.

TEST_F(VistaDeServicios, AWaitingSoundReturnsWhenItHasEnded) {
    Sonidos s;
    s.Despierta();
    ASSERT_TRUE(s.Dispuesto(5000));
    ASSERT_TRUE(s.HayAparato());
    const i32 dura = s.Duracion(9);
    ASSERT_GT(dura, 0);
    QElapsedTimer t;
    t.start();
    s.Suena(9, true);
    EXPECT_LT(t.elapsed(), 60);
    t.restart();
    s.Suena(9, false);
    EXPECT_GE(t.elapsed(), dura - 60);
    EXPECT_LE(t.elapsed(), dura + 400);
}

TEST_F(VistaDeServicios, ASoundCutsTheOneBeforeAndUnknownOnesAreSilent) {
    Sonidos s;
    s.Despierta();
    ASSERT_TRUE(s.Dispuesto(5000));
    const i32 corto = s.Duracion(6), largo = s.Duracion(14);
    ASSERT_LT(corto + 400, largo);
    QElapsedTimer t;
    t.start();
    s.Suena(14, true);
    s.Suena(6, false);
    EXPECT_LT(t.elapsed(), largo);
    t.restart();
    s.Suena(12345, false);
    EXPECT_LT(t.elapsed(), 50);
}

TEST_F(VistaDeServicios, TheDeviceIsOpenOnlyWhileItIsOfUse) {
    Sonidos s;
    QTest::qWait(20);
    EXPECT_FALSE(s.HayAparato()) << "nothing has sounded yet";
    s.Suena(12345, true);
    EXPECT_FALSE(s.HayAparato());
    s.Suena(9, false);
    EXPECT_TRUE(s.HayAparato());
    s.Descansa();
    EXPECT_FALSE(s.HayAparato());
    s.Suena(9, false);
    EXPECT_TRUE(s.HayAparato()) << "and again";
    EXPECT_TRUE(QTest::qWaitFor([&] { return !s.HayAparato(); }, 10000)) << "given back by itself";
}

// Without the fixture: its own sound, still starting, would write into the same file.
TEST(SonidoEnDisco, TheSamplesOfTheSoundReachTheDevice) {
    const QTemporaryDir carpeta;
    const QString salida = carpeta.filePath("sonido.raw");
    qputenv("SDL_AUDIODRIVER", "disk");
    qputenv("SDL_DISKAUDIOFILE", salida.toLocal8Bit());
    {
        Sonidos s;
        s.Despierta();
        ASSERT_TRUE(s.Dispuesto(5000));
        ASSERT_TRUE(s.HayAparato());
        s.Suena(9, false);
    }
    qputenv("SDL_AUDIODRIVER", "dummy");
    QFile f(salida);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray b = f.readAll();
    int fuertes = 0;
    for (qsizetype i = 0; i + 1 < b.size(); i += 2) {
        i16 muestra;
        std::memcpy(&muestra, b.constData() + i, 2);
        fuertes += muestra > 1000 || muestra < -1000;
    }
    EXPECT_GT(fuertes, 100);
}

TEST_F(VistaDeServicios, WithoutADeviceSoundsAreSilentAndNothingWaits) {
    qputenv("SDL_AUDIODRIVER", "noexiste");
    Sonidos s;
    s.Despierta();
    EXPECT_TRUE(s.Dispuesto(5000));
    EXPECT_FALSE(s.HayAparato());
    QElapsedTimer t;
    t.start();
    s.Suena(14, false);
    EXPECT_LT(t.elapsed(), 50);
    qputenv("SDL_AUDIODRIVER", "dummy");
}

}  // namespace
}  // namespace tessario
