// SPDX-License-Identifier: GPL-3.0-or-later
// Scroll bar, lists, text box, switch, selector, knob, spinner, file lists, timer: each shows its
// record and takes the player's hand.
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTemporaryDir>

#include "PruebaQt.h"

namespace tessario {

namespace {

class VistaDeMandos : public PruebaQt {
protected:
    template <class W>
    W& Dentro(const Control& c) {
        return *DeControl(v, c).findChild<W*>();
    }
    Ventana v;
    int cambios = 0;
};

TEST_F(VistaDeMandos, TheScrollBarStepsByItsArrowsAndItsTrough) {
    BarraDesplazamiento b;
    b.Vertical = true;
    b.Tamano(17, 200);
    b.Max = 100;
    b.SmallChange = 16;
    b.LargeChange = 30;
    b.Change = [&] { ++cambios; };
    Abre(v, {&b});
    Pulsa(v, 8, 195);  // lower arrow
    EXPECT_EQ(b.Value, 16);
    EXPECT_EQ(cambios, 1);
    Pulsa(v, 8, 175);  // trough below the thumb
    EXPECT_EQ(b.Value, 46);
    Pulsa(v, 8, 5);  // upper arrow
    EXPECT_EQ(b.Value, 30);
    EXPECT_EQ(cambios, 3);
}

TEST_F(VistaDeMandos, AValueSetByTheCodeMovesTheBarWithoutAChange) {
    BarraDesplazamiento b;
    b.Tamano(200, 17);
    b.Max = 100;
    b.Change = [&] { ++cambios; };
    Abre(v, {&b});
    b.Value = 70;
    P().Presenta();
    EXPECT_EQ(Dentro<QScrollBar>(b).value(), 70);
    b.Max = 50;
    b.Value = 50;
    P().Presenta();
    EXPECT_EQ(Dentro<QScrollBar>(b).maximum(), 50);
    EXPECT_EQ(cambios, 0);
}

TEST_F(VistaDeMandos, AListShowsItsRowsAndAPressChoosesOne) {
    Lista l;
    l.Tamano(150, 120);
    l.Font = Fuente{Familia::Mono, 12, false, false};
    for (const char* t : {"uno", "dos", "tres"}) l.AddItem(t);
    i32 visto = -1;
    l.Click = [&] {
        ++cambios;
        visto = l.ListIndex;
    };
    Abre(v, {&l});
    auto& filas = Dentro<QListWidget>(l);
    ASSERT_EQ(filas.count(), 3);
    EXPECT_EQ(filas.item(2)->text(), "tres");
    const QPoint en = filas.visualItemRect(filas.item(1)).center();
    const QPoint p = filas.viewport()->mapTo(P().VistaDe(v), en);
    Pulsa(v, p.x(), p.y());
    EXPECT_EQ(visto, 1);
    EXPECT_EQ(cambios, 1);
    Pulsa(v, p.x(), p.y());
    EXPECT_EQ(cambios, 2) << "the row that is chosen can be chosen again";
}

TEST_F(VistaDeMandos, RowsAndChoiceSetByTheCodeAreShownWithoutAClick) {
    Lista l;
    l.Tamano(150, 120);
    l.AddItem("uno");
    l.Click = [&] { ++cambios; };
    Abre(v, {&l});
    l.Clear();
    for (const char* t : {"a", "b", "c"}) l.AddItem(t);
    l.ListIndex = 2;
    P().Presenta();
    EXPECT_EQ(Dentro<QListWidget>(l).count(), 3);
    EXPECT_EQ(Dentro<QListWidget>(l).currentRow(), 2);
    l.ListIndex = -1;
    P().Presenta();
    EXPECT_TRUE(Dentro<QListWidget>(l).selectedItems().isEmpty());
    Eventos();
    EXPECT_EQ(cambios, 0);
}

TEST_F(VistaDeMandos, AMarkedRowHasATickAtItsRightEndAndKeepsItsText) {
    Lista l;
    l.Tamano(150, 120);
    l.Rellena({{"uno", 1}, {"dos", 2, true}, {"tres", 3}});
    Abre(v, {&l});
    auto& filas = Dentro<QListWidget>(l);
    const auto tinta = [&](int fila, bool derecha) {
        const QImage foto = filas.viewport()->grab().toImage();
        QRect r = filas.visualItemRect(filas.item(fila));
        if (derecha) r.setLeft(r.right() - 18);
        int n = 0;
        for (int y = r.top(); y <= r.bottom(); ++y)
            for (int x = r.left(); x <= r.right(); ++x) n += qRed(foto.pixel(x, y)) < 128;
        return n;
    };
    EXPECT_EQ(tinta(0, true), 0);
    EXPECT_GT(tinta(1, true), 10);
    EXPECT_GT(tinta(1, false), tinta(1, true)) << "the text is there too";
    EXPECT_EQ(filas.item(1)->text(), "dos");
    EXPECT_EQ(filas.visualItemRect(filas.item(1)).height(),
              filas.visualItemRect(filas.item(0)).height());
    l.Elementos[1].Marca = false;
    l.Elementos[2].Marca = true;
    P().Presenta();
    EXPECT_EQ(tinta(1, true), 0) << "the marks follow the record";
    EXPECT_GT(tinta(2, true), 10);
}

TEST_F(VistaDeMandos, AListHandlerMayRefillTheListAndCloseTheWindow) {
    Lista l;
    l.Tamano(150, 120);
    l.AddItem("uno");
    l.AddItem("dos");
    l.TabStop = true;
    v.Foco = &l;
    l.Click = [&] {
        l.Clear();
        P().Cierra(v);
    };
    Abre(v, {&l});
    QTest::keyPress(Marco(v), Qt::Key_Down);
    Eventos();
    EXPECT_FALSE(v.Abierta);
    EXPECT_TRUE(l.Elementos.empty());
}

TEST_F(VistaDeMandos, AListGetsItsKeysAndItsDoubleClick) {
    Lista l;
    l.Tamano(150, 120);
    l.AddItem("uno");
    i16 tecla = 0;
    l.KeyPress = [&](i16 k) { tecla = k; };
    l.DblClick = [&] { ++cambios; };
    v.Foco = &l;
    Abre(v, {&l});
    Escribe(v, "d");
    EXPECT_EQ(tecla, 'd');
    PulsaDosVeces(v, 20, 10);
    EXPECT_EQ(cambios, 1);
}

TEST_F(VistaDeMandos, TypingChangesTheTextBoxAndItsLimitHolds) {
    CajaTexto t;
    t.Tamano(150, 24);
    t.MaxLength = 4;
    t.Change = [&] { ++cambios; };
    std::string teclas;
    t.KeyPress = [&](i16 k) { teclas += std::to_string(k) + " "; };
    v.Foco = &t;
    Abre(v, {&t});
    Escribe(v, "abcde");
    EXPECT_EQ(t.Text, "abcd");
    EXPECT_EQ(cambios, 4);
    Tecla(v, Qt::Key_Return);
    EXPECT_EQ(teclas, "97 98 99 100 101 13 ");
    t.Text = "x";
    P().Presenta();
    EXPECT_EQ(Dentro<QLineEdit>(t).text(), "x");
    EXPECT_EQ(cambios, 4);
}

TEST_F(VistaDeMandos, TheSwitchTurnsWithAPressAndWithSpace) {
    Buleano b;
    b.Caption = "Sonido";
    b.Tamano(148, 24);
    b.TabStop = true;
    b.Change = [&] { ++cambios; };
    int sonidos = 0;
    P().SonidoDeMando = [&] { ++sonidos; };
    Abre(v, {&b});
    Pulsa(v, 10, 12);
    EXPECT_TRUE(b.Value);
    const unsigned bajoPuntero = Punto(v, 8, 12);
    Mueve(v, 200, 150);
    Eventos();
    EXPECT_EQ(Punto(v, 8, 12), 0x1C459CU) << "lit";
    EXPECT_NE(bajoPuntero, 0x1C459CU) << "and lifted under the pointer";
    Tecla(v, Qt::Key_Tab);
    Tecla(v, Qt::Key_Space);
    EXPECT_FALSE(b.Value);
    EXPECT_EQ(cambios, 2);
    EXPECT_EQ(sonidos, 2);
    b.Enabled = false;
    P().Presenta();
    Pulsa(v, 10, 12);
    EXPECT_FALSE(b.Value);
    EXPECT_EQ(DeControl(v, b).accessibleName(), "Sonido");
}

TEST_F(VistaDeMandos, TheSelectorGoesRoundItsChoicesAndPassesOverEmptyOnes) {
    Selector s;
    s.Caption = "Fondo del puzzle";
    s.Textos = {"imagen", "números", ""};
    s.Tamano(256, 44);
    s.Change = [&] { ++cambios; };
    Abre(v, {&s});
    Pulsa(v, 250, 30);
    EXPECT_EQ(s.Value, 2);
    Pulsa(v, 250, 30);
    EXPECT_EQ(s.Value, 1);
    Pulsa(v, 5, 30);
    EXPECT_EQ(s.Value, 2);
    EXPECT_EQ(cambios, 3);
    Pulsa(v, 250, 5);  // on the title
    EXPECT_EQ(s.Value, 2);
}

TEST_F(VistaDeMandos, TheKnobFollowsTheHandAndTheKeys) {
    Potenciometro k;
    k.Tamano(100, 100);
    k.TabStop = true;
    k.Value = 50;
    k.Change = [&] { ++cambios; };
    v.Foco = &k;
    Abre(v, {&k});
    // Half way round the dial is straight up; the ends lie 45 degrees off the bottom.
    Aprieta(v, 50, 10);
    EXPECT_EQ(k.Value, 50);
    Mueve(v, 90, 90);
    EXPECT_EQ(k.Value, 100);
    Suelta(v, 10, 90);
    Aprieta(v, 10, 90);
    Suelta(v, 10, 90);
    EXPECT_EQ(k.Value, 0);
    EXPECT_EQ(cambios, 2);
    Tecla(v, Qt::Key_Up);
    Tecla(v, Qt::Key_PageUp);
    EXPECT_EQ(k.Value, 11);
}

TEST_F(VistaDeMandos, AFlatKnobIsARuler) {
    Potenciometro k;
    k.Tamano(115, 16);
    Abre(v, {&k});
    // The ruler goes from pixel 2 to 84, the figures stand right of it.
    Pulsa(v, 83, 8);
    EXPECT_EQ(k.Value, 100);
    Pulsa(v, 3, 8);
    EXPECT_EQ(k.Value, 0);
}

TEST_F(VistaDeMandos, TheSpinnerIsHeldWhileItsButtonIsAndTellsOfTheRelease) {
    Spin s;
    s.Tamano(155, 26);
    s.Min = 5;
    s.Max = 15;
    s.Incremento = 5;
    s.Value = 5;
    std::string diario;
    s.Change = [&] { diario += std::to_string(s.Value) + (s.Pulsado ? "h " : "s "); };
    Abre(v, {&s});
    Aprieta(v, 145, 13);
    EXPECT_EQ(diario, "10h ");
    Suelta(v, 145, 13);
    EXPECT_EQ(diario, "10h 10s ");
    Aprieta(v, 145, 13);
    QTest::qWait(700);  // repeats, but not past the limit
    Suelta(v, 145, 13);
    EXPECT_EQ(diario, "10h 10s 15h 15s ");
    Pulsa(v, 122, 13);
    EXPECT_EQ(s.Value, 10);
}

TEST_F(VistaDeMandos, TheFileListsFollowTheirPaths) {
    QTemporaryDir d;
    const QString raiz = d.path() + "/";
    QDir(raiz).mkdir("Beta");
    QDir(raiz).mkdir("alfa");
    for (const char* n : {"Uno.BMP", "dos.jpg", "tres.txt", "cero.bmp"}) {
        QFile f(raiz + n);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    }
    ListaFicheros f;
    f.Tamano(100, 100);
    f.Pattern = "*.bmp;*.jpg";
    f.Path = raiz.toStdString();
    ListaCarpetas c;
    c.Tamano(100, 190);
    c.Mueve(110, 0);
    c.Path = raiz.toStdString();
    c.Change = [&] { ++cambios; };
    Abre(v, {&f, &c});
    ASSERT_EQ(f.ListCount(), 3);
    EXPECT_EQ(f.Elementos[0].Texto, "cero.bmp");
    EXPECT_EQ(f.Elementos[1].Texto, "dos.jpg");
    EXPECT_EQ(f.Elementos[2].Texto, "Uno.BMP");
    EXPECT_EQ(Dentro<QListWidget>(f).count(), 3);
    auto& carpetas = Dentro<QListWidget>(c);
    const int n = carpetas.count();
    EXPECT_EQ(carpetas.item(n - 2)->text().trimmed(), "alfa");
    EXPECT_EQ(carpetas.item(n - 1)->text().trimmed(), "Beta");
    carpetas.scrollToItem(carpetas.item(n - 2));
    const QPoint p = carpetas.viewport()->mapTo(
        P().VistaDe(v), carpetas.visualItemRect(carpetas.item(n - 2)).center());
    Pulsa(v, p.x(), p.y());
    EXPECT_EQ(cambios, 0) << "one press only looks";
    PulsaDosVeces(v, p.x(), p.y());
    EXPECT_EQ(cambios, 1);
    EXPECT_EQ(c.Path, raiz.toStdString() + "alfa/");
    f.Path = c.Path;
    P().Presenta();
    EXPECT_EQ(f.ListCount(), 0);
}

TEST_F(VistaDeMandos, AFolderThatDoesNotExistHasNoRows) {
    ListaFicheros f;
    f.Tamano(100, 100);
    f.Path = "/no/existe/";
    f.Pattern = "*";
    Abre(v, {&f});
    EXPECT_EQ(f.ListCount(), 0);
}

TEST_F(VistaDeMandos, TheDriveListOffersTheRootAndReportsTheChoice) {
    ListaUnidades u;
    u.Tamano(118, 22);
    u.Drive = "/";
    u.TabStop = true;
    u.Change = [&] { ++cambios; };
    v.Foco = &u;
    Abre(v, {&u});
    auto& caja = Dentro<QComboBox>(u);
    ASSERT_GE(caja.count(), 1);
    EXPECT_EQ(caja.currentData().toString(), "/");
    Q_EMIT caja.activated(caja.count() - 1);
    Eventos();
    EXPECT_EQ(cambios, 1);
    EXPECT_EQ(u.Drive, caja.itemData(caja.count() - 1).toString().toStdString());
}

TEST_F(VistaDeMandos, TheTimerTicksWhileItIsOn) {
    Temporizador t;
    t.Interval = 10;
    t.Enabled = true;
    t.Timer = [&] {
        if (++cambios == 3) t.Enabled = false;
    };
    v.Temporizadores = {&t};
    Abre(v, {});
    QTest::qWait(150);
    EXPECT_EQ(cambios, 3);
    t.Enabled = true;
    cambios = 10;
    P().Presenta();
    QTest::qWait(60);
    EXPECT_GT(cambios, 11);
}

}  // namespace
}  // namespace tessario
