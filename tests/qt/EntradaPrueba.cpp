// SPDX-License-Identifier: GPL-3.0-or-later
// What the shell makes of keys, wheel, held buttons and the pointer before the game sees it.
#include <QScrollBar>

#include "qt/Entrada.h"
#include "qt/PruebaQt.h"
#include "qt/Vista.h"

namespace tessario {

namespace {

class EntradaQt : public PruebaQt {
protected:
    void SetUp() override {
        PruebaQt::SetUp();
        caja.Nombre = "caja";
        caja.Mueve(20, 30);
        caja.Tamano(100, 60);
        const auto anota = [this](const char* que) {
            return [this, que](i16 boton, i16, float x, float y) {
                diario += que + std::to_string(boton) + "(" + std::to_string(int(x)) + "," +
                          std::to_string(int(y)) + ") ";
            };
        };
        caja.MouseMove = anota("mueve");
        caja.MouseDown = anota("abajo");
        caja.MouseUp = anota("arriba");
    }
    // The wheel over a widget; true if it was used there.
    bool Rueda(QWidget& w, int unidades) {
        QWheelEvent e({20, 20}, w.mapToGlobal(QPointF(20, 20)), {}, {0, unidades}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
        QApplication::sendEvent(&w, &e);
        Eventos();
        return e.isAccepted();
    }
    Ventana ventana;
    Cuadro caja;
    std::string diario;
};

TEST_F(EntradaQt, KeysThatOnlyModifyAreNoneOfTheGames) {
    int veces = 0;
    ventana.KeyDown = [&](i16, i16) { ++veces; };
    Abre(ventana, {});
    const auto pulsa = [&](int tecla, Qt::KeyboardModifiers m = {}) {
        QKeyEvent e(QEvent::KeyPress, tecla, m);
        QApplication::sendEvent(P().VistaDe(ventana), &e);
    };
    for (const int k : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta,
                        Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_ScrollLock})
        pulsa(k);
    EXPECT_EQ(veces, 0);
    int n = 0;
    for (const int k : {Qt::Key_Dead_Acute, Qt::Key_F17, Qt::Key_F35, Qt::Key_Clear,
                        Qt::Key_VolumeUp, Qt::Key_A, Qt::Key_Space, Qt::Key_Menu}) {
        pulsa(k);
        EXPECT_EQ(veces, ++n) << k;
    }
    pulsa(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(veces, ++n) << "with another key they count";
}

TEST_F(EntradaQt, WindowsPointerIsSeenOverItsControlsToo) {
    CajaTexto texto;
    texto.Mueve(20, 100);
    texto.Tamano(100, 24);
    caja.MousePointer = PUNTERO_PROPIO;
    caja.MouseIcon = "ManoIndice";
    Abre(ventana, {&caja, &texto});
    Vista& v = DeControl(ventana, caja);
    auto* const linea = DeControl(ventana, texto).findChild<QWidget*>();
    EXPECT_EQ(v.cursor().shape(), Qt::BitmapCursor);
    const Qt::CursorShape deTexto = linea->cursor().shape();
    ventana.MousePointer = PUNTERO_RELOJ;
    P().Presenta();
    EXPECT_EQ(v.cursor().shape(), Qt::WaitCursor);
    EXPECT_EQ(linea->cursor().shape(), Qt::WaitCursor);
    ventana.MousePointer = PUNTERO_NORMAL;
    P().Presenta();
    EXPECT_EQ(v.cursor().shape(), Qt::BitmapCursor);
    EXPECT_EQ(linea->cursor().shape(), deTexto);
}

TEST_F(EntradaQt, MinimisingReleasesWhatIsHeld) {
    Abre(ventana, {&caja});
    Mueve(ventana, 40, 50);
    Aprieta(ventana, 40, 50);
    diario.clear();
    P().Minimiza(ventana);
    Eventos();
    EXPECT_NE(diario.find("arriba1"), std::string::npos) << diario;
    diario.clear();
    P().VistaDe(ventana)->showNormal();
    Suelta(ventana, 40, 50);
    EXPECT_EQ(diario.find("arriba"), std::string::npos) << "one release for one press";
}

TEST_F(EntradaQt, WheelGoesToTheControlByNotchesAndOtherwiseScrolls) {
    BarraDesplazamiento barra;
    barra.Vertical = true;
    barra.Max = 500;
    barra.SmallChange = 10;
    barra.Value = 100;
    barra.Mueve(280, 0);
    barra.Tamano(17, 200);
    bool usa = true;
    int muescas = 0;
    caja.MouseWheel = [&](i16 n, float, float) {
        muescas += n;
        return usa;
    };
    Abre(ventana, {&caja, &barra});
    QWidget& v = DeControl(ventana, caja);
    EXPECT_TRUE(Rueda(v, 120));
    EXPECT_EQ(muescas, 1);
    for (int i = 0; i < 4; ++i) Rueda(v, -60);
    EXPECT_EQ(muescas, -1) << "two halves make one";
    usa = false;
    EXPECT_FALSE(Rueda(v, -120)) << "it is the window's";
    EXPECT_EQ(barra.Value, 100);
    QWidget& marco = *P().VistaDe(ventana);
    EXPECT_TRUE(Rueda(marco, -120));
    EXPECT_EQ(barra.Value, 130);
    for (int i = 0; i < 6; ++i) Rueda(marco, 20);
    EXPECT_EQ(barra.Value, 100);
}

TEST_F(EntradaQt, HandleShowsTheShareInViewAndAClickBesideItGoesTheLongStep) {
    BarraDesplazamiento barra;
    barra.Max = 300;
    barra.LargeChange = 30;
    barra.Tramo = 600;
    barra.Mueve(0, 180);
    barra.Tamano(280, 17);
    Abre(ventana, {&barra});
    auto* const b = DeControl(ventana, barra).findChild<QScrollBar*>();
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(b->pageStep(), 600) << "two thirds of the 900";
    b->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(barra.Value, 30);
    b->triggerAction(QAbstractSlider::SliderPageStepSub);
    EXPECT_EQ(barra.Value, 0);
}

TEST_F(EntradaQt, TabStopsAtThePartsOfAPictureAndSpacePressesTheOneReached) {
    caja.TabStop = true;
    caja.Zonas = [] { return std::vector<Rect>{RectDe(2, 4, 20, 10), RectDe(40, 20, 20, 10)}; };
    Cuadro otra;
    otra.Mueve(150, 30);
    otra.Tamano(50, 50);
    otra.TabStop = true;
    Abre(ventana, {&otra, &caja});
    ventana.OrdenTab = {&caja, &otra};
    P().VistaDe(ventana)->setFocus();
    DeControl(ventana, caja).setFocus(Qt::TabFocusReason);
    diario.clear();
    Tecla(ventana, Qt::Key_Space);
    EXPECT_EQ(diario, "mueve0(12,9) abajo1(12,9) arriba1(12,9) ");
    diario.clear();
    Tecla(ventana, Qt::Key_Tab);
    Tecla(ventana, Qt::Key_Space);
    EXPECT_EQ(diario, "mueve0(50,25) mueve0(50,25) abajo1(50,25) arriba1(50,25) ");
    EXPECT_TRUE(DeControl(ventana, caja).AnilloVisible());
    Tecla(ventana, Qt::Key_Up);
    diario.clear();
    Tecla(ventana, Qt::Key_Space);
    EXPECT_EQ(diario, "mueve0(12,9) abajo1(12,9) arriba1(12,9) ");
    Tecla(ventana, Qt::Key_Tab);
    Tecla(ventana, Qt::Key_Tab);
    EXPECT_FALSE(DeControl(ventana, caja).hasFocus());
}

TEST_F(EntradaQt, TabOrderIsTheWindowsOwn) {
    Cuadro b, c;
    for (Cuadro* k : {&caja, &b, &c}) {
        k->TabStop = true;
        k->Tamano(20, 20);
    }
    b.Mueve(100, 0);
    c.Mueve(200, 0);
    ventana.OrdenTab = {&b, &caja, &c};
    Abre(ventana, {&caja, &b, &c});
    for (const Cuadro* k : {&b, &caja, &c, &b}) {
        Tecla(ventana, Qt::Key_Tab);
        EXPECT_TRUE(DeControl(ventana, *k).hasFocus());
    }
}

TEST_F(EntradaQt, HeldKeyComesInMarked) {
    std::vector<std::pair<i16, i16>> teclas;
    ventana.KeyDown = [&](i16 tecla, i16 con) { teclas.emplace_back(tecla, con); };
    Abre(ventana, {});
    for (const bool repetida : {false, true}) {
        QKeyEvent e(QEvent::KeyPress, Qt::Key_Left, Qt::ControlModifier, QString(), repetida);
        QApplication::sendEvent(P().VistaDe(ventana), &e);
    }
    EXPECT_EQ(teclas, (std::vector<std::pair<i16, i16>>{{37, CON_CONTROL},
                                                        {37, i16{CON_CONTROL + TECLA_REPETIDA}}}));
}

// ---------------------------------------------------------------- the keyboard points
class TecladoQt : public EntradaQt {
protected:
    void SetUp() override {
        EntradaQt::SetUp();
        ventana.Teclado = &cruz;
        ventana.VuelveElRaton = [this] {
            diario += "vuelve ";
            cruz.Visible = false;
        };
        Abre(ventana, {&caja, &cruz});
    }
    // The mouse at rest, and the cross shown somewhere.
    void Apunta(int ratonX, int ratonY, i32 x, i32 y) {
        Mueve(ventana, ratonX, ratonY);
        Eventos();
        diario.clear();
        cruz.Apunta(x, y);
        cruz.Visible = true;
        P().Presenta();
        Eventos();
    }
    Cruz cruz;
};

TEST_F(TecladoQt, MouseIsNotSeenAndNotAskedUntilItMoves) {
    Apunta(40, 50, 200, 150);
    EXPECT_EQ(DeControl(ventana, caja).cursor().shape(), Qt::BlankCursor);
    EXPECT_EQ(P().VistaDe(ventana)->cursor().shape(), Qt::BlankCursor);
    P().MiraBajoElPuntero(true);
    Eventos();
    EXPECT_EQ(diario, "") << "what lies under it is not told";
    // Told of again where it stands.
    const QPointF sitio = DeControl(ventana, caja).mapToGlobal(QPointF(20, 20));
    QMouseEvent quieto(QEvent::MouseMove, {20, 20}, QCursor::pos(), Qt::NoButton, {}, {});
    QApplication::sendEvent(&DeControl(ventana, caja), &quieto);
    EXPECT_EQ(diario.find("vuelve"), std::string::npos) << diario;
    diario.clear();
    QMouseEvent movido(QEvent::MouseMove, {21, 20}, sitio + QPointF(1, 0), Qt::NoButton, {}, {});
    QApplication::sendEvent(&DeControl(ventana, caja), &movido);
    EXPECT_EQ(diario, "vuelve mueve0(21,20) ");
    EXPECT_EQ(DeControl(ventana, caja).cursor().shape(), Qt::ArrowCursor);
}

TEST_F(TecladoQt, MouseThatPressesOrTurnsItsWheelIsBackBeforeWhatItDoes) {
    Apunta(40, 50, 40, 50);
    Pulsa(ventana, 40, 50);
    EXPECT_EQ(diario.find("vuelve mueve0(20,20) abajo1(20,20) arriba1(20,20) "), 0U) << diario;
    // Without a move before it.
    Apunta(40, 50, 200, 150);
    QMouseEvent quieto(QEvent::MouseButtonPress, {20, 20}, QCursor::pos(), Qt::LeftButton,
                       Qt::LeftButton, {});
    QApplication::sendEvent(&DeControl(ventana, caja), &quieto);
    EXPECT_EQ(diario.find("vuelve mueve0(20,20) abajo1(20,20) "), 0U) << diario;
    Suelta(ventana, 40, 50);
    caja.MouseWheel = [this](i16, float, float) {
        diario += "rueda ";
        return true;
    };
    Apunta(40, 50, 200, 150);
    Rueda(DeControl(ventana, caja), 120);
    EXPECT_EQ(diario.find("vuelve "), 0U) << diario;
    EXPECT_NE(diario.find("rueda "), std::string::npos);
    Apunta(290, 10, 200, 150);
    Mueve(ventana, 280, 10);
    Eventos();
    EXPECT_EQ(diario.find("vuelve "), 0U) << "over the bare window too";
}

TEST_F(TecladoQt, CrossIsWhiteWithABlackEdgeAndLeavesItsPointFree) {
    constexpr QRgb BLANCO = 0xFFFFFF, NEGRO = 0x000000, FONDO = 0x808080;
    ventana.PonBackColor(0x808080);
    Apunta(290, 190, 150, 130);
    for (const int d : {-1, 1}) {
        for (const int r : {4, 17}) {
            EXPECT_EQ(Punto(ventana, 150 + d * r, 130), BLANCO) << d << " " << r;
            EXPECT_EQ(Punto(ventana, 150, 130 + d * r), BLANCO) << d << " " << r;
        }
        for (const int r : {3, 18}) {
            EXPECT_EQ(Punto(ventana, 150 + d * r, 130), NEGRO) << d << " " << r;
            EXPECT_EQ(Punto(ventana, 150, 130 + d * r), NEGRO) << d << " " << r;
        }
        for (const int s : {-1, 1}) {
            EXPECT_EQ(Punto(ventana, 150 + d * 8, 130 + s), BLANCO) << d << " " << s;
            EXPECT_EQ(Punto(ventana, 150 + d * 8, 130 + 2 * s), NEGRO) << d << " " << s;
            EXPECT_EQ(Punto(ventana, 150 + 2 * s, 130 + d * 8), NEGRO) << d << " " << s;
            EXPECT_EQ(Punto(ventana, 150 + d * 8, 130 + 3 * s), FONDO) << d << " " << s;
        }
        EXPECT_EQ(Punto(ventana, 150 + d * 19, 130), FONDO);
        EXPECT_EQ(Punto(ventana, 150, 130 + d * 2), FONDO);
    }
    EXPECT_EQ(Punto(ventana, 150, 130), FONDO);
    EXPECT_EQ(Punto(ventana, 154, 133), FONDO);
}

TEST_F(TecladoQt, ButtonUnderTheCrossIsLiftedAndTheOneUnderTheMouseIsNot) {
    caja.Resalta = true;
    caja.PonBackColor(0x808080);
    P().Presenta();
    Mueve(ventana, 30, 40);
    Eventos();
    const QRgb levantada = Punto(ventana, 100, 80);
    EXPECT_GT(levantada, 0x808080U);
    Apunta(31, 40, 200, 150);
    EXPECT_EQ(Punto(ventana, 100, 80), 0x808080U) << "the mouse is left there";
    cruz.Sobre = &caja;
    cruz.Apunta(40, 50);
    P().Presenta();
    EXPECT_EQ(Punto(ventana, 100, 80), levantada);
    cruz.Sobre = nullptr;
    P().Presenta();
    EXPECT_EQ(Punto(ventana, 100, 80), 0x808080U);
}

TEST_F(TecladoQt, BesideTheCrossStandsThePointerOfWhatLiesThere) {
    // The piece of screen beside the point, towards the corner that is asked for.
    const auto dibujo = [&](int x, int y) {
        int otros = 0;
        for (int j = y; j < y + 32; ++j)
            for (int i = x; i < x + 32; ++i) otros += Punto(ventana, i, j) != 0x808080;
        return otros;
    };
    ventana.PonBackColor(0x808080);
    Apunta(290, 190, 150, 130);
    EXPECT_EQ(dibujo(156, 136), 0);
    cruz.Sobre = &caja;
    caja.MousePointer = PUNTERO_PROPIO;
    caja.MouseIcon = "ManoVerde";
    P().Presenta();
    const int mano = dibujo(156, 136);
    EXPECT_GT(mano, 200);
    caja.MouseIcon = "ManoCerrada";
    P().Presenta();
    EXPECT_NE(dibujo(156, 136), mano) << "it follows";
    // At the window's far corner it stands on the other side.
    cruz.Apunta(290, 190);
    P().Presenta();
    EXPECT_GT(dibujo(290 - 6 - 32, 190 - 6 - 32), 100);
}

TEST_F(EntradaQt, WhatComesToLightUnderARestingPointerIsTold) {
    Cuadro tapa;
    tapa.Mueve(20, 30);
    tapa.Tamano(100, 60);
    Abre(ventana, {&caja, &tapa});
    QCursor::setPos(P().VistaDe(ventana)->mapToGlobal(QPoint(50, 60)));
    Eventos();
    diario.clear();
    tapa.Visible = false;
    P().Presenta();
    EXPECT_TRUE(diario.empty()) << "not inside a handler";
    Eventos();
    EXPECT_EQ(diario, "mueve0(30,30) ");
    // And a window that closes over it.
    Ventana mensaje;
    mensaje.Tamano(100, 100);
    diario.clear();
    Luego(30, [&] { P().Cierra(mensaje); });
    P().MuestraModal(mensaje);
    Eventos();
    EXPECT_EQ(diario, "mueve0(30,30) ");
}

TEST_F(EntradaQt, HiddenControlGivesTheKeyboardBackToTheWindow) {
    Cuadro otra;
    otra.Mueve(150, 30);
    otra.Tamano(50, 50);
    otra.TabStop = caja.TabStop = true;
    Abre(ventana, {&caja, &otra});
    DeControl(ventana, caja).setFocus(Qt::TabFocusReason);
    caja.Visible = false;
    P().Presenta();
    EXPECT_FALSE(DeControl(ventana, otra).hasFocus());
}

}  // namespace
}  // namespace tessario
