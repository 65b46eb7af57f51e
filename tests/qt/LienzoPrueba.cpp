// SPDX-License-Identifier: GPL-3.0-or-later
// Windows drawn within the one that fills the screen: in their place, above all, and before the
// rest for mouse and keyboard.
#include <QLineEdit>
#include <QScreen>
#include <QTextBrowser>
#include <QToolButton>
#include <QWheelEvent>

#include "PruebaQt.h"

namespace tessario {

namespace {

constexpr int IZQ = 140, ARR = 170, LADO = 48;  // the message's corner, its buttons

class Dentro : public PruebaQt {
protected:
    void SetUp() override {
        PruebaQt::SetUp();
        P().VentanasDentro = true;
        mesa.Nombre = "Mesa";
        mesa.PantallaCompleta = true;
        mesa.Tamano(800, 800);
        c.Tamano(100, 100);
        c.Left = 20;
        c.TabStop = true;
        aviso.Nombre = "Aviso";
        aviso.Tamano(200, 100);
        aviso.Left = IZQ;
        aviso.Top = ARR;
        for (Cuadro* b : {&si, &no}) {
            b->Tamano(LADO, LADO);
            b->TabStop = true;
        }
        no.Left = 100;
        aviso.Controles = {&si, &no};
        Abre(mesa, {&c});
    }
    // Opens the message and does this while it waits.
    void Con(Ventana& v, const std::function<void()>& f) {
        Luego(20, [&] {
            f();
            if (v.Abierta) P().Cierra(v);
        });
        P().MuestraModal(v);
        Eventos();
    }
    void Anota(Control& k, const std::string& nombre) {
        k.MouseDown = [this, nombre](i16, i16, float x, float y) {
            diario += nombre + std::to_string(static_cast<int>(x)) + "," +
                      std::to_string(static_cast<int>(y)) + " ";
        };
    }
    // One notch, to what lies on top at a point of the table's window.
    void Rueda(int x, int y) {
        const QPoint p = P().VistaDe(mesa)->mapToGlobal(QPoint(x, y));
        QWidget* const w = QApplication::widgetAt(p);
        ASSERT_TRUE(w);
        QWheelEvent e(w->mapFromGlobal(QPointF(p)), p, {}, {0, 120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(w, &e);
    }
    Vista* ConElTeclado() { return dynamic_cast<Vista*>(Marco(mesa)->focusObject()); }
    Vista* De(const Ventana& v, const Control& k) { return &DeControl(v, k); }
    VentanaAyuda& Ayuda() {
        P().Ayuda(0);
        Eventos();
        return *P().AyudaAbierta();
    }

    Ventana mesa, aviso, otra;
    Cuadro c, si, no, suyo;
    std::string diario;
};

TEST_F(Dentro, AMessageStandsInItsPlaceWithoutAWindowOfItsOwn) {
    Con(aviso, [&] {
        QWidget* const w = P().VistaDe(aviso);
        EXPECT_EQ(w->windowHandle(), nullptr);
        EXPECT_EQ(w->window(), P().VistaDe(mesa));
        EXPECT_EQ(QRect(w->mapTo(w->window(), QPoint()), w->size()), QRect(IZQ, ARR, 200, 100));
        EXPECT_TRUE(w->isVisible());
        EXPECT_EQ(QApplication::widgetAt(w->mapToGlobal(QPoint(150, 80))), w) << "on top";
    });
    EXPECT_EQ(QApplication::widgetAt(P().VistaDe(mesa)->mapToGlobal(QPoint(IZQ + 150, ARR + 80))),
              P().VistaDe(mesa));
}

TEST_F(Dentro, BeforeTheTableIsOnTheScreenAndOnOtherWindowSystemsItIsAWindow) {
    P().VentanasDentro = false;
    Con(aviso, [&] { EXPECT_TRUE(P().VistaDe(aviso)->windowHandle()); });
    P().VentanasDentro = true;
    P().Cierra(mesa);
    otra.Tamano(300, 200);
    Abre(otra, {});
    Con(aviso, [&] { EXPECT_TRUE(P().VistaDe(aviso)->windowHandle()); });
}

TEST_F(Dentro, ThePointerReachesTheMessageAndNothingBelow) {
    Anota(c, "mesa ");
    Anota(si, "si ");
    mesa.MouseDown = mesa.MouseMove = [&](i16, i16, float, float) { diario += "fondo "; };
    int rueda = 0;
    c.MouseWheel = [&](i16, float, float) { return ++rueda > 0; };
    Con(aviso, [&] {
        Pulsa(mesa, IZQ + 7, ARR + 9);
        Pulsa(mesa, 30, 10);
        Pulsa(mesa, 60, 60, Qt::RightButton);
        Pulsa(mesa, 700, 700);
        Pulsa(mesa, IZQ + 60, ARR + 60);
        Rueda(30, 10);
        Rueda(IZQ + 7, ARR + 9);
        Eventos();
    });
    EXPECT_EQ(diario, "si 7,9 ");
    EXPECT_EQ(rueda, 0);
    Rueda(30, 10);
    EXPECT_EQ(rueda, 1);
    Pulsa(mesa, 30, 10);
    EXPECT_EQ(diario, "si 7,9 mesa 10,10 ");
}

TEST_F(Dentro, ThePointerOverWhatLiesBelowIsThePlainOne) {
    P().Entrega([&] { mesa.MousePointer = PUNTERO_RELOJ; });
    Con(aviso, [&] {
        QWidget* const w = QApplication::widgetAt(P().VistaDe(mesa)->mapToGlobal(QPoint(30, 10)));
        ASSERT_TRUE(w);
        EXPECT_NE(P().VistaDe(mesa)->cursor().shape(), Qt::ArrowCursor);
        EXPECT_EQ(w->cursor().shape(), Qt::ArrowCursor);
        EXPECT_FALSE(dynamic_cast<Vista*>(w));
    });
}

TEST_F(Dentro, KeysGoToTheMessageAndTabStaysInIt) {
    mesa.KeyPress = [&](i16) { diario += "mesa "; };
    aviso.KeyPress = [&](i16 k) { diario += "aviso" + std::to_string(k) + " "; };
    si.Click = [&] { diario += "si "; };
    no.Click = [&] { diario += "no "; };
    aviso.Foco = &si;
    Con(aviso, [&] {
        EXPECT_EQ(ConElTeclado(), De(aviso, si));
        Tecla(mesa, Qt::Key_A);
        for (const Control* k : {&no, &si, &no}) {
            Tecla(mesa, Qt::Key_Tab);
            EXPECT_EQ(ConElTeclado(), De(aviso, *k));
        }
        Tecla(mesa, Qt::Key_Space);
        Tecla(mesa, Qt::Key_Tab, Qt::ShiftModifier);
        EXPECT_EQ(ConElTeclado(), De(aviso, si));
    });
    EXPECT_EQ(diario, "aviso97 no ");
    Tecla(mesa, Qt::Key_B);
    EXPECT_EQ(diario, "aviso97 no mesa ");
}

TEST_F(Dentro, AMessageWithoutAControlForItHasTheKeysToo) {
    mesa.KeyPress = [&](i16) { diario += "mesa "; };
    aviso.KeyPress = [&](i16) { P().Cierra(aviso); };
    aviso.Controles = {};
    Luego(20, [&] { Tecla(mesa, Qt::Key_Return); });
    P().MuestraModal(aviso);
    EXPECT_EQ(diario, "");
}

// The game's controls are not told: the table is only not in front for a while.
TEST_F(Dentro, TheKeyboardComesBackToWhereItWas) {
    c.GotFocus = [&] { diario += "entra "; };
    c.LostFocus = [&] { diario += "sale "; };
    P().PonFoco(c);
    EXPECT_EQ(diario, "entra ");
    Con(aviso, [&] { EXPECT_NE(ConElTeclado(), De(mesa, c)); });
    EXPECT_EQ(ConElTeclado(), De(mesa, c));
    EXPECT_EQ(diario, "entra ");
}

TEST_F(Dentro, TheTableMaySayMeanwhileWhereItComesBackTo) {
    suyo.Tamano(20, 20);
    suyo.TabStop = true;
    mesa.Controles = {&c, &suyo};
    P().PonFoco(c);
    aviso.Foco = &si;
    Con(aviso, [&] {
        P().PonFoco(suyo);
        EXPECT_EQ(ConElTeclado(), De(aviso, si));
    });
    EXPECT_EQ(ConElTeclado(), De(mesa, suyo));
}

TEST_F(Dentro, OneAboveAnotherIsAnsweredFirst) {
    otra.Nombre = "Otra";
    otra.Tamano(100, 80);
    otra.Left = IZQ + 60;
    otra.Top = ARR + 20;
    suyo.Tamano(LADO, LADO);
    suyo.TabStop = true;
    otra.Controles = {&suyo};
    otra.Foco = &suyo;
    aviso.Foco = &no;
    for (const auto& [k, nombre] : {std::pair<Control*, const char*>{&si, "si "}, {&suyo, "suyo "}})
        Anota(*k, nombre);
    Con(aviso, [&] {
        Con(otra, [&] {
            EXPECT_EQ(ConElTeclado(), De(otra, suyo));
            Pulsa(mesa, IZQ + 7, ARR + 9);
            Pulsa(mesa, IZQ + 60 + 5, ARR + 20 + 6);
        });
        EXPECT_EQ(diario, "suyo 5,6 ");
        EXPECT_EQ(ConElTeclado(), De(aviso, no));
        Pulsa(mesa, IZQ + 7, ARR + 9);
    });
    EXPECT_EQ(diario, "suyo 5,6 si 7,9 ");
}

TEST_F(Dentro, TheTableIsNotClosedWhileItWaits) {
    mesa.QueryUnload = [&](bool& cancela) {
        diario += "cierra ";
        cancela = true;
    };
    Con(aviso, [&] { P().VistaDe(mesa)->close(); });
    EXPECT_EQ(diario, "");
    P().VistaDe(mesa)->close();
    EXPECT_EQ(diario, "cierra ");
}

TEST_F(Dentro, WhatIsPaintedInItIsSeenAtOnce) {
    si.Tamano(LADO, LADO);
    Con(aviso, [&] {
        si.PonBackColor(0x0000FF);
        si.Cls();
        P().Duerme(1);
        QScreen* const pantalla = QGuiApplication::primaryScreen();
        const QRgb p =
            pantalla->grabWindow(0, IZQ + 10, ARR + 10, 1, 1).toImage().pixel(0, 0) & 0xFFFFFFU;
        EXPECT_EQ(p, 0xFF0000U);
    });
}

TEST_F(Dentro, TheHelpLiesAboveAMessageAndKeepsItsKeysToItself) {
    mesa.KeyPress = [&](i16) { diario += "mesa "; };
    aviso.KeyPress = [&](i16) { diario += "aviso "; };
    aviso.Foco = &si;
    si.LostFocus = [&] { diario += "sale "; };
    Con(aviso, [&] {
        VentanaAyuda& ayuda = Ayuda();
        EXPECT_EQ(ayuda.window(), P().VistaDe(mesa));
        EXPECT_TRUE(ayuda.isVisible());
        const QPoint medio = ayuda.geometry().center();
        EXPECT_LE((medio - P().VistaDe(mesa)->rect().center()).manhattanLength(), 2);
        QWidget* const encima =
            QApplication::widgetAt(ayuda.window()->mapToGlobal(QPoint(IZQ + 10, ARR + 10)));
        EXPECT_TRUE(encima == &ayuda || ayuda.isAncestorOf(encima)) << "it covers the message";
        for (const Qt::Key k : {Qt::Key_F5, Qt::Key_A, Qt::Key_Right}) Tecla(mesa, k);
        // From its last stop Tab goes to its first, and back.
        for (QToolButton* const b : ayuda.findChildren<QToolButton*>())
            for (const Qt::KeyboardModifiers m : {Qt::NoModifier, Qt::ShiftModifier}) {
                b->setFocus(Qt::ActiveWindowFocusReason);
                Tecla(mesa, Qt::Key_Tab, m);
                EXPECT_TRUE(ayuda.isAncestorOf(ayuda.window()->focusWidget()));
            }
        EXPECT_EQ(diario, "");
        // A press beside it gives the keyboard to the message.
        ayuda.move(400, 400);
        Pulsa(mesa, IZQ + 150, ARR + 80);
        EXPECT_EQ(ConElTeclado(), De(aviso, si));
        Tecla(mesa, Qt::Key_A);
        EXPECT_EQ(diario, "aviso ");
        const QPoint busca = ayuda.Busqueda().mapTo(ayuda.window(), QPoint(9, 9));
        Pulsa(mesa, busca.x(), busca.y());
        EXPECT_TRUE(ayuda.Busqueda().hasFocus());
        Tecla(mesa, Qt::Key_Escape);
        EXPECT_FALSE(ayuda.isVisible());
        EXPECT_EQ(ConElTeclado(), De(aviso, si));
    });
    EXPECT_EQ(diario, "aviso ");
}

TEST_F(Dentro, TheHelpOutlivesTheMessageAndIsMovedByItsEdgeWithinTheTable) {
    P().PonFoco(c);
    Con(aviso, [&] { Ayuda(); });
    VentanaAyuda& ayuda = *P().AyudaAbierta();
    EXPECT_TRUE(ayuda.isVisible());
    const QPoint antes = ayuda.pos();
    Aprieta(mesa, antes.x() + 3, antes.y() + 4);
    QTest::mouseMove(Marco(mesa), antes + QPoint(3 + 8, 4 + 60));
    Eventos();
    Suelta(mesa, antes.x() + 11, antes.y() + 64);
    EXPECT_EQ(ayuda.pos(), antes + QPoint(8, 60));
    Aprieta(mesa, ayuda.x() + 3, ayuda.y() + 4);
    QTest::mouseMove(Marco(mesa), QPoint(1, 1));
    Eventos();
    Suelta(mesa, 1, 1);
    EXPECT_EQ(ayuda.pos(), QPoint(0, 0)) << "no further";
    Tecla(mesa, Qt::Key_Escape);
    EXPECT_FALSE(ayuda.isVisible());
    P().Cierra(mesa);
    Eventos();
    EXPECT_EQ(ayuda.parentWidget(), nullptr) << "it does not go with the table";
}

}  // namespace

}  // namespace tessario
