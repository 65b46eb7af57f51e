// SPDX-License-Identifier: GPL-3.0-or-later
// What the player drags from another program and drops on a window, or copies there.
#include <QClipboard>
#include <QDropEvent>
#include <QImage>
#include <QMimeData>
#include <QUrl>

#include "PruebaQt.h"

namespace tessario {

namespace {

class Traidos : public PruebaQt {
protected:
    Traidos() {
        cuadro.Mueve(10, 10);
        cuadro.Tamano(50, 50);
        ventana.DragDrop = [this](const Traido& t) {
            ++veces;
            ultimo = t;
        };
    }
    // The window system's events of a drop at a point of a window. True: it was taken.
    bool Deja(const Ventana& v, QPoint p, const QMimeData& datos) {
        QWidget* const w = P().VistaDe(v)->childAt(p);
        QWidget* const donde = w && w->acceptDrops() ? w : P().VistaDe(v);
        if (!donde->acceptDrops()) return false;
        QDragEnterEvent entra(p, Qt::CopyAction | Qt::MoveAction, &datos, Qt::LeftButton, {});
        QCoreApplication::sendEvent(donde, &entra);
        if (!entra.isAccepted()) return false;
        QDropEvent deja(p, Qt::CopyAction | Qt::MoveAction, &datos, Qt::LeftButton, {});
        QCoreApplication::sendEvent(donde, &deja);
        EXPECT_EQ(deja.dropAction(), Qt::CopyAction) << "the file is not moved away";
        return deja.isAccepted();
    }
    static QMimeData* Rutas(const QList<QUrl>& urls) {
        auto* const m = new QMimeData;
        m->setUrls(urls);
        return m;
    }
    static QImage Roja() {
        QImage im(3, 2, QImage::Format_RGB32);
        im.fill(0xC01020);
        return im;
    }

    Ventana ventana;
    Cuadro cuadro;
    int veces = 0;
    Traido ultimo;
};

TEST_F(Traidos, FilesComeByTheirPathsOnceTheDragIsOver) {
    Abre(ventana, {&cuadro});
    const std::unique_ptr<QMimeData> m(
        Rutas({QUrl::fromLocalFile("/tmp/una foto ñ.png"), QUrl("https://example.org/otra.png"),
               QUrl::fromLocalFile("/tmp/b.bmp")}));
    EXPECT_TRUE(Deja(ventana, {200, 100}, *m));
    EXPECT_EQ(veces, 0) << "the other program waits for the end of the drop";
    Eventos();
    ASSERT_EQ(veces, 1);
    EXPECT_EQ(ultimo.Ficheros, (std::vector<std::string>{"/tmp/una foto ñ.png", "/tmp/b.bmp"}));
    EXPECT_TRUE(ultimo.Dibujo.Pixeles.empty());
}

TEST_F(Traidos, AControlTakesADropForItsWindow) {
    Abre(ventana, {&cuadro});
    const std::unique_ptr<QMimeData> m(Rutas({QUrl::fromLocalFile("/tmp/b.bmp")}));
    EXPECT_TRUE(Deja(ventana, {20, 20}, *m));
    Eventos();
    EXPECT_EQ(veces, 1);
}

TEST_F(Traidos, APictureComesAsPixels) {
    Abre(ventana, {&cuadro});
    QMimeData m;
    m.setImageData(Roja());
    EXPECT_TRUE(Deja(ventana, {200, 100}, m));
    Eventos();
    ASSERT_EQ(veces, 1);
    EXPECT_EQ(ultimo.Dibujo.Ancho, 3);
    EXPECT_EQ(ultimo.Dibujo.Pixeles, std::vector<Pixel>(6, 0xC01020));
}

TEST_F(Traidos, SomethingElseComesEmptySoThatTheGameCanSaySo) {
    Abre(ventana, {&cuadro});
    QMimeData m;
    m.setText("una palabra");
    EXPECT_TRUE(Deja(ventana, {200, 100}, m));
    Eventos();
    ASSERT_EQ(veces, 1);
    EXPECT_TRUE(ultimo.Ficheros.empty());
    EXPECT_TRUE(ultimo.Dibujo.Pixeles.empty());
}

TEST_F(Traidos, AWindowWithoutTheEventTakesNothing) {
    ventana.DragDrop = nullptr;
    Abre(ventana, {&cuadro});
    const std::unique_ptr<QMimeData> m(Rutas({QUrl::fromLocalFile("/tmp/b.bmp")}));
    EXPECT_FALSE(Deja(ventana, {200, 100}, *m));
}

TEST_F(Traidos, AWindowBelowAModalOneTakesNothing) {
    Abre(ventana, {&cuadro});
    Ventana encima;
    encima.Tamano(80, 60);
    const std::unique_ptr<QMimeData> m(Rutas({QUrl::fromLocalFile("/tmp/b.bmp")}));
    bool tomada = true;
    Luego(50, [&] {
        tomada = Deja(ventana, {200, 100}, *m);
        P().Cierra(encima);
    });
    P().MuestraModal(encima);
    Eventos();
    EXPECT_FALSE(tomada);
    EXPECT_EQ(veces, 0);
}

TEST_F(Traidos, CopiedFilesAreReadFromTheClipboard) {
    QGuiApplication::clipboard()->setMimeData(
        Rutas({QUrl::fromLocalFile("/tmp/copiada.png"), QUrl("ftp://example.org/no.png")}));
    EXPECT_EQ(P().PortapapelesFicheros(), std::vector<std::string>{"/tmp/copiada.png"});
    QGuiApplication::clipboard()->setText("nada");
    EXPECT_TRUE(P().PortapapelesFicheros().empty());
}

}  // namespace

}  // namespace tessario
