// SPDX-License-Identifier: GPL-3.0-or-later
// Picture boxes and labels: what they show and what the pointer and the keys do to them.
#include <QAccessible>
#include <QFile>

#include "PruebaQt.h"
#include "qt/VistasPintadas.h"

namespace tessario {

namespace {

constexpr Color ROJO = 0x0000FF;
constexpr Color VERDE = 0x00FF00;
constexpr Color AZUL = 0xFF0000;

class VistaDeCuadro : public PruebaQt {
protected:
    void SetUp() override {
        PruebaQt::SetUp();
        c.Tamano(60, 40);
        c.Mueve(100, 50);
        c.PonBackColor(ROJO);
        c.MouseDown = [this](i16 b, i16, float x, float y) { Anota("abajo", b, x, y); };
        c.MouseUp = [this](i16 b, i16, float x, float y) { Anota("arriba", b, x, y); };
        // The way to the control is not noted, only what is done with a button held.
        c.MouseMove = [this](i16 b, i16, float x, float y) {
            if (b) Anota("mueve", b, x, y);
        };
        c.Click = [this] { diario += "click "; };
        c.DblClick = [this] { diario += "doble "; };
    }
    void Anota(const char* que, i16 b, float x, float y) {
        diario += std::string(que) + std::to_string(b) + "(" + std::to_string(int(x)) + "," +
                  std::to_string(int(y)) + ") ";
    }

    Ventana v;
    Cuadro c;
    std::string diario;
};

TEST_F(VistaDeCuadro, ShowsItsPixelsAtItsPlaceOverTheWindow) {
    v.Tamano(300, 200);
    v.PonBackColor(VERDE);
    c.PSet(3, 4, AZUL);
    Abre(v, {&c});
    EXPECT_EQ(Punto(v, 99, 50), 0x00FF00U);
    EXPECT_EQ(Punto(v, 100, 50), 0xFF0000U);
    EXPECT_EQ(Punto(v, 103, 54), 0x0000FFU);
    EXPECT_EQ(Punto(v, 159, 89), 0xFF0000U);
    EXPECT_EQ(Punto(v, 160, 89), 0x00FF00U);
}

TEST_F(VistaDeCuadro, PressMoveReleaseAndClickArriveInItsOwnPixels) {
    Abre(v, {&c});
    Aprieta(v, 110, 55);
    Mueve(v, 112, 60);
    Suelta(v, 112, 60);
    EXPECT_EQ(diario, "abajo1(10,5) mueve1(12,10) arriba1(12,10) click ");
}

TEST_F(VistaDeCuadro, APressFollowsAMoveToItsPointEvenUnderAPointerThatStoodStill) {
    Abre(v, {&c});
    Mueve(v, 110, 55);
    Eventos();
    diario.clear();
    c.MouseMove = [this](i16 b, i16, float x, float y) { Anota("mueve", b, x, y); };
    Aprieta(v, 110, 55);
    EXPECT_EQ(diario, "mueve0(10,5) abajo1(10,5) ");
    Suelta(v, 110, 55);
}

TEST_F(VistaDeCuadro, APressFromTheKeyboardFollowsAMoveToo) {
    c.MouseMove = [this](i16 b, i16, float x, float y) { Anota("mueve", b, x, y); };
    c.TabStop = true;
    Abre(v, {&c});
    Tecla(v, Qt::Key_Tab);
    diario.clear();
    Tecla(v, Qt::Key_Space);
    EXPECT_EQ(diario, "mueve0(30,20) abajo1(30,20) arriba1(30,20) click ");
}

TEST_F(VistaDeCuadro, TheRightButtonClicksTooAfterItsRelease) {
    Abre(v, {&c});
    Pulsa(v, 110, 55, Qt::RightButton);
    EXPECT_EQ(diario, "abajo2(10,5) arriba2(10,5) click ");
}

TEST_F(VistaDeCuadro, AReleaseOutsideReachesItButIsNoClick) {
    Abre(v, {&c});
    Aprieta(v, 110, 55);
    Suelta(v, 90, 55);
    EXPECT_EQ(diario, "abajo1(10,5) mueve1(-10,5) arriba1(-10,5) ");
}

TEST_F(VistaDeCuadro, TheSecondPressOfADoubleClickIsAPressAsWell) {
    Abre(v, {&c});
    PulsaDosVeces(v, 110, 55);
    EXPECT_EQ(diario, "abajo1(10,5) arriba1(10,5) click abajo1(10,5) doble arriba1(10,5) click ");
}

TEST_F(VistaDeCuadro, ADisabledOneSwallowsThePressOfWhatLiesBelow) {
    Cuadro fondo;
    fondo.Tamano(300, 200);
    fondo.Click = [this] { diario += "fondo "; };
    c.Enabled = false;
    c.Contenedor = &fondo;
    Abre(v, {&fondo, &c});
    Pulsa(v, 110, 55);
    EXPECT_EQ(diario, "");
    Pulsa(v, 10, 10);
    EXPECT_EQ(diario, "fondo ");
}

TEST_F(VistaDeCuadro, WhatLiesInAContainerMovesWithItAndGetsThePointer) {
    Cuadro mesa;
    mesa.Tamano(280, 190);
    mesa.Mueve(10, 5);
    c.Contenedor = &mesa;
    Abre(v, {&mesa, &c});
    Pulsa(v, 110 + 10, 55 + 5);
    EXPECT_EQ(diario, "abajo1(10,5) arriba1(10,5) click ");
    mesa.Mueve(-20, -10);
    P().Presenta();
    diario.clear();
    Pulsa(v, 110 - 20, 55 - 10);
    EXPECT_EQ(diario, "abajo1(10,5) arriba1(10,5) click ");
}

TEST_F(VistaDeCuadro, OnlyTheChangedRectangleIsPainted) {
    Abre(v, {&c});
    auto& vista = static_cast<VistaCuadro&>(DeControl(v, c));
    long long antes = vista.PixelesPintados();
    P().Presenta();
    EXPECT_EQ(vista.PixelesPintados(), antes) << "nothing changed";
    c.Line(pluma::ConColor | pluma::Desde | pluma::Caja | pluma::Llena, 5, 6, 14, 10, AZUL);
    P().Presenta();
    const long long pintados = vista.PixelesPintados() - antes;
    EXPECT_GE(pintados, 10 * 5);
    EXPECT_LE(pintados, 14 * 9) << "the box and at most two pixels around it";
    EXPECT_EQ(Punto(v, 105, 56), 0x0000FFU);
}

TEST_F(VistaDeCuadro, BigPicturesArePresentedNoOftenerThanTheScreenShows) {
    Cuadro grande;
    grande.Tamano(300, 200);
    Abre(v, {&grande});
    auto& vista = static_cast<VistaCuadro&>(DeControl(v, grande));
    const long long antes = vista.PixelesPintados();
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < 300) {
        grande.Cls();
        P().Presenta();
    }
    const long long veces = (vista.PixelesPintados() - antes) / (300 * 200);
    EXPECT_LE(veces, 2 + t.elapsed() / 16);
    EXPECT_GE(veces, 2);
}

TEST_F(VistaDeCuadro, WhatWasPaintedIsOnTheScreenBeforeTheSleep) {
    Cuadro grande;
    grande.Tamano(300, 200);
    Abre(v, {&grande});
    auto& vista = static_cast<VistaCuadro&>(DeControl(v, grande));
    grande.Cls();
    P().Presenta();
    const long long antes = vista.PixelesPintados();
    grande.Cls();
    P().Duerme(1);
    EXPECT_EQ(vista.PixelesPintados() - antes, 300 * 200);
}

TEST_F(VistaDeCuadro, HidingItUncoversTheWindow) {
    v.Tamano(300, 200);
    v.PonBackColor(VERDE);
    Abre(v, {&c});
    c.Visible = false;
    P().Presenta();
    EXPECT_EQ(Punto(v, 110, 60), 0x00FF00U);
    Pulsa(v, 110, 55);
    EXPECT_EQ(diario, "");
}

TEST_F(VistaDeCuadro, TabAndSpacePressItAtTheCentreAndARingShows) {
    c.TabStop = true;
    c.NombreAccesible = "Barajar";
    Abre(v, {&c});
    EXPECT_FALSE(DeControl(v, c).AnilloVisible());
    Tecla(v, Qt::Key_Tab);
    EXPECT_TRUE(DeControl(v, c).AnilloVisible());
    EXPECT_EQ(Punto(v, 100, 50), 0x1C459CU) << "cobalt edge";
    EXPECT_EQ(Punto(v, 130, 70), 0xFF0000U) << "inside as painted";
    Tecla(v, Qt::Key_Space);
    EXPECT_EQ(diario, "abajo1(30,20) arriba1(30,20) click ");
    diario.clear();
    Tecla(v, Qt::Key_Return);
    EXPECT_EQ(diario, "abajo1(30,20) arriba1(30,20) click ");
    EXPECT_EQ(DeControl(v, c).accessibleName(), "Barajar");
    // The interface belongs to the library.
    QAccessibleInterface* const a = QAccessible::queryAccessibleInterface(&DeControl(v, c));
    EXPECT_EQ(a->role(), QAccessible::PushButton);
    EXPECT_EQ(a->text(QAccessible::Name), "Barajar");
}

TEST_F(VistaDeCuadro, APressWithTheMouseTakesNoKeysFromTheOneThatHasThem) {
    Cuadro mesa;
    mesa.Tamano(90, 200);
    std::string teclas;
    mesa.KeyPress = [&](i16 k) { teclas += static_cast<char>(k); };
    c.TabStop = true;
    v.Foco = &mesa;
    Abre(v, {&mesa, &c});
    Pulsa(v, 110, 55);
    Escribe(v, "v");
    EXPECT_EQ(teclas, "v");
}

TEST_F(VistaDeCuadro, TheTrimmedTooltipIsTheAccessibleNameWhenThereIsNoOther) {
    c.ToolTipText = " Guardar el puzzle actual ";
    Abre(v, {&c});
    EXPECT_EQ(DeControl(v, c).toolTip(), "Guardar el puzzle actual");
    EXPECT_EQ(DeControl(v, c).accessibleName(), "Guardar el puzzle actual");
}

TEST_F(VistaDeCuadro, AKeyGoesToTheWindowFirstThenToTheControl) {
    v.KeyDown = [this](i16 k, i16) { diario += "ventana" + std::to_string(k) + " "; };
    v.KeyPress = [this](i16 k) { diario += "vletra" + std::to_string(k) + " "; };
    c.KeyDown = [this](i16 k, i16) { diario += "control" + std::to_string(k) + " "; };
    c.KeyPress = [this](i16 k) { diario += "cletra" + std::to_string(k) + " "; };
    v.Foco = &c;
    Abre(v, {&c});
    Tecla(v, Qt::Key_Escape);
    EXPECT_EQ(diario, "ventana27 vletra27 control27 cletra27 ");
    diario.clear();
    Escribe(v, "q");
    EXPECT_EQ(diario, "ventana81 vletra113 control81 cletra113 ");
}

TEST_F(VistaDeCuadro, AKeyThatClosesTheWindowGoesNoFurther) {
    v.KeyDown = [this](i16, i16) { P().Cierra(v); };
    c.KeyPress = [this](i16) { diario += "control "; };
    v.Foco = &c;
    Abre(v, {&c});
    QTest::keyPress(Marco(v), Qt::Key_A);
    Eventos();
    EXPECT_EQ(diario, "");
    EXPECT_FALSE(v.Abierta);
}

TEST_F(VistaDeCuadro, ANamedPointerHasItsPixelsAndItsHotSpot) {
    c.MousePointer = PUNTERO_PROPIO;
    c.MouseIcon = "ManoIndice";
    Abre(v, {&c});
    const QImage esperada(QStringLiteral(":/cursores/manoindice.png"));
    ASSERT_FALSE(esperada.isNull());
    const QCursor puntero = DeControl(v, c).cursor();
    const auto formato = QImage::Format_ARGB32_Premultiplied;
    EXPECT_TRUE(puntero.pixmap().toImage().convertToFormat(formato) ==
                esperada.convertToFormat(formato));
    // The hot spot as the list has it.
    QFile f(QStringLiteral(":/cursores/puntos.txt"));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QString lista = QString::fromUtf8(f.readAll());
    EXPECT_TRUE(lista.contains(QStringLiteral("manoindice %1 %2\n")
                                   .arg(puntero.hotSpot().x())
                                   .arg(puntero.hotSpot().y())));
}

TEST_F(VistaDeCuadro, PointersWithoutAPictureAreTheStandardOnes) {
    c.MousePointer = PUNTERO_PROPIO;
    c.MouseIcon = "NoExiste";
    Abre(v, {&c});
    EXPECT_EQ(DeControl(v, c).cursor().shape(), Qt::ArrowCursor);
    c.MousePointer = PUNTERO_RELOJ;
    P().Presenta();
    EXPECT_EQ(DeControl(v, c).cursor().shape(), Qt::WaitCursor);
    c.MousePointer = PUNTERO_PROHIBIDO;
    P().Presenta();
    EXPECT_EQ(DeControl(v, c).cursor().shape(), Qt::ForbiddenCursor);
    c.MousePointer = PUNTERO_NORMAL;
    v.MousePointer = PUNTERO_RELOJ;
    P().Presenta();
    EXPECT_EQ(DeControl(v, c).cursor().shape(), Qt::WaitCursor) << "the window's";
}

// --- States: two parts of 30 x 40 side by side, red on a black ground.

class CarasDeCuadro : public VistaDeCuadro {
protected:
    static constexpr QRgb SUYO = 0xFF0000;
    void SetUp() override {
        VistaDeCuadro::SetUp();
        c.PonBackColor(0);
        c.Line(pluma::ConColor | pluma::Desde | pluma::Caja | pluma::Llena, 0, 0, 59, 39, ROJO);
        c.Caras = [this](std::vector<Cara>& caras) {
            caras = {{RectDe(0, 0, 30, 40), apagada, encendida}, {RectDe(30, 0, 30, 40)}};
        };
        c.MouseDown = [this](i16, i16, float, float) {
            if (alApretar) alApretar();
        };
    }
    // Middles of the parts, and the edge of the first.
    QRgb Primera() { return Punto(v, 115, 70); }
    QRgb Segunda() { return Punto(v, 145, 70); }
    QRgb Borde(int i) { return Punto(v, 100 + i, 70); }
    // An event that the game has nothing to do with.
    void Sucede() {
        P().Entrega([] {});
        Eventos();
    }

    bool apagada = false, encendida = false;
    std::function<void()> alApretar;
};

TEST_F(CarasDeCuadro, AForbiddenPartFadesToTheGroundAtTheNextEventAndComesBack) {
    Abre(v, {&c});
    EXPECT_EQ(Primera(), SUYO);
    apagada = true;
    Sucede();
    EXPECT_LT(qRed(Primera()), 100);
    EXPECT_GT(qRed(Primera()), 60) << "it can still be made out";
    EXPECT_EQ(Segunda(), SUYO);
    apagada = false;
    Sucede();
    EXPECT_EQ(Primera(), SUYO);
}

TEST_F(CarasDeCuadro, OnlyThePartThatChangesIsPainted) {
    Abre(v, {&c});
    auto& vista = dynamic_cast<VistaCuadro&>(DeControl(v, c));
    const long long antes = vista.PixelesPintados();
    Sucede();
    EXPECT_EQ(vista.PixelesPintados(), antes) << "nothing has changed";
    apagada = true;
    Sucede();
    EXPECT_EQ(vista.PixelesPintados(), antes + 30 * 40);
}

TEST_F(CarasDeCuadro, ThePartUnderThePointerIsLiftedAndThePressedOneSunk) {
    Abre(v, {&c});
    Mueve(v, 115, 70);
    Eventos();
    EXPECT_GT(qGreen(Primera()), 40) << "lighter";
    EXPECT_EQ(Segunda(), SUYO);
    QRgb durante = 0;
    alApretar = [&] {
        P().Suena(0, false);
        durante = Primera();
    };
    Aprieta(v, 115, 70);
    EXPECT_LT(qRed(durante), 230) << "while its handler runs";
    EXPECT_LT(qRed(Primera()), 230);
    EXPECT_EQ(Segunda(), SUYO);
    Suelta(v, 115, 70);
    EXPECT_GT(qGreen(Primera()), 40);
    Mueve(v, 145, 70);
    Eventos();
    EXPECT_EQ(Primera(), SUYO);
    EXPECT_GT(qGreen(Segunda()), 40);
    Mueve(v, 20, 20);
    Eventos();
    EXPECT_EQ(Segunda(), SUYO);
}

TEST_F(CarasDeCuadro, AnyButtonAndTheKeyboardSinkItToo) {
    c.TabStop = true;
    c.Zonas = [] { return std::vector<Rect>{RectDe(0, 0, 30, 40)}; };
    Abre(v, {&c});
    QRgb durante = 0;
    alApretar = [&] {
        P().Suena(0, false);
        durante = Primera();
    };
    Aprieta(v, 115, 70, Qt::RightButton);
    EXPECT_LT(qRed(durante), 230);
    Suelta(v, 115, 70, Qt::RightButton);
    Mueve(v, 20, 20);
    Tecla(v, Qt::Key_Tab);
    durante = 0;
    Tecla(v, Qt::Key_Space);
    EXPECT_NE(durante, 0U);
    EXPECT_LT(qRed(durante), 230);
    EXPECT_EQ(Primera(), SUYO);
}

TEST_F(CarasDeCuadro, AForbiddenPartIsNeitherLiftedNorSunk) {
    apagada = true;
    Abre(v, {&c});
    const QRgb quieta = Primera();
    Mueve(v, 115, 70);
    Eventos();
    EXPECT_EQ(Primera(), quieta);
    Aprieta(v, 115, 70);
    EXPECT_EQ(Primera(), quieta);
    Suelta(v, 115, 70);
}

TEST_F(CarasDeCuadro, WhatIsOnHasAFrameBesideItsOtherState) {
    Abre(v, {&c});
    encendida = true;
    Sucede();
    EXPECT_LT(qRed(Borde(0)), 60) << "dark line";
    EXPECT_GT(qGreen(Borde(1)), 180) << "bright frame";
    EXPECT_EQ(Primera(), SUYO) << "the picture itself stays";
    apagada = true;
    Sucede();
    EXPECT_GT(qGreen(Borde(1)), 180);
    EXPECT_LT(qRed(Primera()), 100);
}

TEST_F(CarasDeCuadro, APictureThatIsOneButtonMovesAPixelWithItsState) {
    c.Caras = [this](std::vector<Cara>& caras) { caras = {{c.Limites()}}; };
    c.PSet(30, 20, VERDE);
    Abre(v, {&c});
    EXPECT_EQ(Punto(v, 130, 70), 0x00FF00U);
    Mueve(v, 112, 68);
    Eventos();
    EXPECT_GT(qGreen(Punto(v, 129, 69)), 200);
    Aprieta(v, 115, 70);
    EXPECT_GT(qGreen(Punto(v, 131, 71)), 200);
    Suelta(v, 115, 70);
}

TEST_F(CarasDeCuadro, AssistiveProgramsHearOfTheStateOfAButton) {
    c.Caras = [this](std::vector<Cara>& caras) { caras = {{c.Limites(), apagada, encendida}}; };
    c.TabStop = true;
    Abre(v, {&c});
    QAccessibleInterface* const i = QAccessible::queryAccessibleInterface(&DeControl(v, c));
    ASSERT_TRUE(i);
    EXPECT_FALSE(i->state().disabled);
    EXPECT_FALSE(i->state().checked);
    apagada = encendida = true;
    EXPECT_TRUE(i->state().disabled);
    EXPECT_TRUE(i->state().checked);
}

TEST_F(VistaDeCuadro, ALabelShowsItsTextOverItsContainer) {
    Etiqueta e;
    e.Tamano(200, 20);
    e.Mueve(10, 10);
    e.Caption = "Tessario";
    e.ForeColor = AZUL;
    v.Tamano(300, 200);
    v.PonBackColor(VERDE);
    Abre(v, {&e});
    const QImage im = P().VistaDe(v)->grab().toImage();
    int azules = 0, derecha = 0;
    for (int y = 10; y < 30; ++y)
        for (int x = 10; x < 210; ++x)
            if ((im.pixel(x, y) & 0xFFFFFFU) == 0x0000FFU) {
                ++azules;
                derecha = std::max(derecha, x);
            }
    EXPECT_GT(azules, 8);
    EXPECT_LT(derecha, 10 + P().AnchoTexto(Fuente{}, "Tessario") + 1);
    EXPECT_EQ(im.pixel(205, 25) & 0xFFFFFFU, 0x00FF00U);
}

}  // namespace
}  // namespace tessario
