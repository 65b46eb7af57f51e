// SPDX-License-Identifier: GPL-3.0-or-later
// Playing from the keyboard: where the cross goes, that it does what the mouse does, and when the
// mouse is back.
#include "apoyo/MesaMontada.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "panel/Colocadas.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "rules/Catalogo.h"
#include "table/Ordenes.h"

namespace tessario {

namespace {

constexpr i16 ESPACIO = 32, RE_PAG = 33, AV_PAG = 34, INICIO = 36;
constexpr i16 IZQUIERDA = 37, ARRIBA = 38, DERECHA = 39, ABAJO = 40;

class CruzDelTeclado : public MesaMontada {
protected:
    void Tecla(i16 codigo, i16 con = 0, int veces = 1) {
        for (int i = 0; i < veces; ++i) Mesa.KeyDown(codigo, con);
    }
    static Punto Donde() { return {Gbl.CruzX, Gbl.CruzY}; }
    // To a point of the window, from wherever the cross is.
    void Ve(Punto a) {
        Camina(a.x - Gbl.CruzX, IZQUIERDA, DERECHA);
        Camina(a.y - Gbl.CruzY, ARRIBA, ABAJO);
        ASSERT_EQ(Donde(), a);
    }
    static Punto EnVentana(Punto p) {
        const Punto o = PunteroPrueba::Origen(Pic_Trabajo);
        return {p.x + o.x, p.y + o.y};
    }
    void VeA(i16 piece) {
        if (!CruzMesa.Visible) Tecla(INICIO);
        Ve(EnVentana(PuntoDe(piece)));
    }
    // The jigsaw with all pieces at home but for these, which lie to the right of it.
    void Casi(std::initializer_list<i16> sueltas) {
        Moviles(3, 300, 240);
        for (i16 i = 1; i <= 9; ++i) {
            Pieza& p = Gbl.Piezas[i];
            p.X = p.XBien;
            p.Y = p.YBien;
            p.Giro = 0;
        }
        i32 n = 0;
        for (const i16 i : sueltas) Pon(i, 350, 50 + 120 * n++);
        ColocaPiezas(1);
        Pic_Muestra.Visible = false;
    }
    static std::vector<Movimiento> Diario() {
        return {Gbl.Movimientos.begin() + 1, Gbl.Movimientos.begin() + 1 + Gbl.NumMovimientos};
    }
    static Punto Sitio(i16 piece) { return {Gbl.Piezas[piece].X, Gbl.Piezas[piece].Y}; }
    // The board of 3 by 3, the hole in the middle: 1 2 3 / 4 . 5 / 6 7 8.
    void Tablero() {
        Deslizantes(3);
        static constexpr i16 CELDAS[] = {1, 2, 3, 4, 0, 5, 6, 7, 8};
        for (i32 c = 0; c < 9; ++c) {
            const auto x = static_cast<i16>(Gbl.MargenX + c % 3 * Gbl.AnchoCelda);
            const auto y = static_cast<i16>(Gbl.MargenY + c / 3 * Gbl.AltoCelda);
            (CELDAS[c] == 0 ? Gbl.HuecoX : Gbl.Piezas[CELDAS[c]].X) = x;
            (CELDAS[c] == 0 ? Gbl.HuecoY : Gbl.Piezas[CELDAS[c]].Y) = y;
        }
        ColocaPiezas(1);
    }

private:
    void Camina(i32 cuanto, i16 menos, i16 mas) {
        const i16 tecla = cuanto < 0 ? menos : mas;
        Tecla(tecla, 0, std::abs(cuanto) / 8);
        Tecla(tecla, CON_CONTROL, std::abs(cuanto) % 8);
    }
};

// ---------------------------------------------------------------- where it goes
TEST_F(CruzDelTeclado, ArrowsMoveItFromWhereTheMouseIs) {
    Casi({});
    Puntero.Mueve(310, 205);
    EXPECT_FALSE(Mesa.ApuntaElTeclado());
    Tecla(DERECHA);
    EXPECT_TRUE(Mesa.ApuntaElTeclado());
    EXPECT_EQ(Donde(), (Punto{318, 205}));
    EXPECT_EQ(CruzMesa.Left, 318 - Cruz::RADIO);
    EXPECT_EQ(CruzMesa.Top, 205 - Cruz::RADIO);
    EXPECT_EQ(P().foco, &Pic_Trabajo);
    Tecla(ABAJO);
    EXPECT_EQ(Donde(), (Punto{318, 213}));
    Tecla(IZQUIERDA, CON_CONTROL);
    Tecla(ARRIBA, CON_CONTROL, 3);
    EXPECT_EQ(Donde(), (Punto{317, 210}));
    Tecla(ARRIBA, CON_ALT);
    EXPECT_EQ(Donde(), (Punto{317, 210})) << "that is the desktop's";
}

TEST_F(CruzDelTeclado, FirstComesToThePuzzleWhenTheMouseWasNowhereYet) {
    Casi({});
    Tecla(ESPACIO);
    EXPECT_EQ(Donde(), (Punto{150, 120}));
    EXPECT_FALSE(Gbl.ArrastrandoPieza) << "the first one only shows it";
    Gbl.CruzX = Gbl.CruzY = -1;
    Tecla(ABAJO);
    EXPECT_EQ(Donde(), (Punto{150, 128}));
}

TEST_F(CruzDelTeclado, HeldKeyGoesFasterUpToFiveTimesAndThenSlowAgain) {
    Casi({});
    Puntero.Mueve(20, 300);
    Tecla(DERECHA);
    std::vector<i32> pasos;
    for (int i = 0; i < 20; ++i) {
        const i32 antes = Gbl.CruzX;
        Tecla(DERECHA, TECLA_REPETIDA);
        pasos.push_back(Gbl.CruzX - antes);
    }
    EXPECT_EQ(pasos, (std::vector<i32>{8,  8,  8,  16, 16, 16, 16, 24, 24, 24,
                                       24, 32, 32, 32, 32, 40, 40, 40, 40, 40}));
    const i32 antes = Gbl.CruzX;
    Tecla(DERECHA);
    EXPECT_EQ(Gbl.CruzX - antes, 8);
    Tecla(IZQUIERDA, CON_CONTROL);
    Tecla(IZQUIERDA, CON_CONTROL | TECLA_REPETIDA, 4);
    EXPECT_EQ(Gbl.CruzX - antes, 8 - 1 - 3 - 2) << "a held fine step grows as well";
}

TEST_F(CruzDelTeclado, StaysInTheView) {
    Casi({});
    Puntero.Mueve(400, 300);
    for (const i16 t : {IZQUIERDA, ARRIBA}) Tecla(t, 0, 120);
    EXPECT_EQ(Donde(), (Punto{1, 1}));
    for (const i16 t : {DERECHA, ABAJO}) Tecla(t, 0, 120);
    EXPECT_EQ(Donde(), (Punto{799, 599}));
}

TEST_F(CruzDelTeclado, ScrollsTheTableWhenItLeavesTheViewAndTakesThePieceAlong) {
    Moviles(3, 900, 720);
    ASSERT_TRUE(BarraVer.Visible);
    for (i16 i = 1; i <= 9; ++i) Pon(i, Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien);
    Pon(5, 250, 230);
    Pic_Muestra.Visible = false;
    Tecla(INICIO);
    EXPECT_EQ(Donde(), (Punto{450, 360}));
    Ve({400, 350});
    Tecla(ESPACIO);
    ASSERT_TRUE(Gbl.ArrastrandoPieza);
    const Punto antes = Sitio(5);
    // The view is 783 by 583: down to its last row, and 8 pixels on at each step.
    Tecla(ABAJO, 0, 29);
    EXPECT_EQ(Donde(), (Punto{400, 582}));
    EXPECT_EQ(BarraVer.Value, 0);
    Tecla(ABAJO, 0, 3);
    EXPECT_EQ(Donde(), (Punto{400, 582}));
    EXPECT_EQ(BarraVer.Value, 24);
    EXPECT_EQ(Pic_Trabajo.Top, -24);
    EXPECT_EQ(Sitio(5), (Punto{antes.x, antes.y + 232 + 24}));
    Tecla(DERECHA, 0, 60);
    EXPECT_EQ(Gbl.CruzX, 782);
    EXPECT_EQ(BarraHor.Value, 98);
    // Back over the other edges: the cross's own steps and no scrolling of the drag's beside them.
    Tecla(ARRIBA, 0, 73);
    EXPECT_EQ(Gbl.CruzY, 1);
    EXPECT_EQ(BarraVer.Value, 21);
    Tecla(IZQUIERDA, 0, 99);
    EXPECT_EQ(Gbl.CruzX, 1);
    EXPECT_EQ(BarraHor.Value, 87);
    EXPECT_EQ(Sitio(5), (Punto{antes.x - 400 + 1 + 87, antes.y - 350 + 1 + 21}));
    // As far as the bar goes, and no farther.
    Tecla(ARRIBA, 0, 5);
    EXPECT_EQ(BarraVer.Value, 0);
    EXPECT_EQ(Gbl.CruzY, 1);
}

TEST_F(CruzDelTeclado, HomeAndPageKeysGoToPuzzleStripAndSample) {
    Casi({});
    Puntero.Mueve(400, 500);
    Tecla(AV_PAG);
    EXPECT_FALSE(Mesa.ApuntaElTeclado()) << "there is no sample to be seen";
    Pic_Muestra.Tamano(100, 80);
    Pic_Muestra.Mueve(500, 400);
    Pic_Muestra.Visible = true;
    Tecla(AV_PAG);
    EXPECT_EQ(Donde(), (Punto{550, 440}));
    EXPECT_EQ(CruzMesa.Sobre, &Pic_Muestra);
    Tecla(RE_PAG);
    EXPECT_EQ(CruzMesa.Sobre, &Pic_Boton(orden::PERSONALIZAR));
    Tecla(INICIO);
    EXPECT_EQ(Donde(), (Punto{150, 120}));
    EXPECT_EQ(CruzMesa.Sobre, &Pic_Trabajo);
}

TEST_F(CruzDelTeclado, HomeBringsThePuzzleIntoView) {
    Moviles(3, 900, 720);
    BarraHor.Pon(BarraHor.Max);
    BarraVer.Pon(BarraVer.Max);
    Tecla(INICIO);
    EXPECT_EQ(Gbl.CruzX + BarraHor.Value, 450);
    EXPECT_EQ(Gbl.CruzY + BarraVer.Value, 360);
    // Out of view to the left it comes to the edge.
    Pic_Muestra.Tamano(100, 80);
    Pic_Muestra.Mueve(20, 30);
    Pic_Muestra.Visible = true;
    Tecla(AV_PAG);
    EXPECT_EQ(Gbl.CruzX + BarraHor.Value, 70);
    EXPECT_EQ(Gbl.CruzY + BarraVer.Value, 70);
    EXPECT_EQ(Donde(), (Punto{1, 1}));
}

// ---------------------------------------------------------------- what it does
TEST_F(CruzDelTeclado, PieceGoesTheWayThatTheMouseWouldTakeIt) {
    // The same drags, once with the mouse and once with keys: the same pieces, log and sounds.
    struct Huella {
        std::vector<Pieza> piezas;
        std::vector<i16> orden;
        std::vector<Movimiento> diario;
        std::vector<int> sonidos;
        i32 colocadas;
    } huellas[2];
    for (const int vez : {0, 1}) {
        Gbl.NumMovimientos = 0;
        Casi({1, 5, 9});
        Gbl.NumMovimientos = 0;
        Sonidos();
        const struct {
            i16 piece;
            i32 dx, dy;
        } JUGADAS[] = {{5, 37, 201}, {1, -346, -45}, {9, 3, -160}, {9, 500, 0}};
        for (const auto& j : JUGADAS) {
            const Punto p = PuntoDe(j.piece);
            if (vez == 0) {
                Puntero.Mueve(p.x, p.y);
                Puntero.Aprieta();
                Puntero.Mueve(p.x + j.dx, p.y + j.dy);
                Puntero.Suelta();
            } else {
                VeA(j.piece);
                EXPECT_EQ(Pic_Trabajo.MouseIcon, cursor::MANO_ROJA);
                Tecla(ESPACIO);
                EXPECT_TRUE(Gbl.CruzSujeta);
                EXPECT_EQ(Pic_Trabajo.MouseIcon, cursor::MANO_CERRADA);
                Tecla(ESPACIO, TECLA_REPETIDA, 3);
                EXPECT_TRUE(Gbl.ArrastrandoPieza) << "a held key is no second press";
                // Past the view's edge the mouse's point is cut off there.
                Ve({std::min(p.x + j.dx, 799), p.y + j.dy});
                Tecla(ESPACIO);
            }
            EXPECT_FALSE(Gbl.ArrastrandoPieza);
            EXPECT_FALSE(Gbl.CruzSujeta);
        }
        Huella& h = huellas[vez];
        h.piezas.assign(Gbl.Piezas.begin() + 1, Gbl.Piezas.end());
        h.orden.assign(Gbl.OrdenPiezas.begin() + 1, Gbl.OrdenPiezas.end());
        h.diario = Diario();
        h.sonidos = Sonidos();
        h.colocadas = Gbl.PiezasColocadas;
    }
    EXPECT_TRUE(huellas[0].piezas == huellas[1].piezas);
    EXPECT_EQ(huellas[0].orden, huellas[1].orden);
    EXPECT_EQ(huellas[0].diario.size(), 4U);
    EXPECT_TRUE(huellas[0].diario == huellas[1].diario);
    EXPECT_EQ(huellas[0].sonidos, huellas[1].sonidos);
    EXPECT_EQ(huellas[1].colocadas, 7) << "piece 1 was drawn home";
}

TEST_F(CruzDelTeclado, SpaceOnTheBareTableTakesNothing) {
    Casi({5});
    Tecla(INICIO);
    Ve({500, 400});
    Tecla(ESPACIO);
    EXPECT_FALSE(Gbl.CruzSujeta);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
}

TEST_F(CruzDelTeclado, ReleaseIsAClickWhereThePressWasAndNowhereElse) {
    Casi({5});
    int clicks = 0;
    Pic_Trabajo.Click = [&] { ++clicks; };
    VeA(5);
    Tecla(ESPACIO);
    EXPECT_EQ(clicks, 0);
    Tecla(ARRIBA);
    Tecla(ESPACIO);
    EXPECT_EQ(clicks, 1);
    Tecla(ESPACIO);
    Tecla(RE_PAG);
    Tecla(ESPACIO);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(clicks, 1) << "it was let go over the strip";
}

TEST_F(CruzDelTeclado, LastPieceEndsTheGame) {
    Casi({5});
    VeA(5);
    Tecla(ESPACIO);
    Ve({Gbl.CruzX - 250 + 4, Gbl.CruzY + 30 - 4});
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    Tecla(ESPACIO);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    ASSERT_FALSE(P().avisos.empty());
    EXPECT_EQ(P().avisos[0].texto, "Ha conseguido resolver el puzzle");
    EXPECT_FALSE(CruzMesa.Visible) << "nothing lies over the finished picture";
    EXPECT_EQ(CruzMesa.Sobre, nullptr);
    P().avisos.clear();
    Tecla(ESPACIO);
    EXPECT_TRUE(CruzMesa.Visible) << "a key brings it back";
    EXPECT_TRUE(P().avisos.empty());
    Tecla(ESPACIO);
    ASSERT_EQ(P().avisos.size(), 1U) << "on a solved piece, as a press would";
    EXPECT_EQ(P().avisos[0].titulo, "Puzzle resuelto");
}

TEST_F(CruzDelTeclado, RTurnsThePieceUnderItOneStepForEachPress) {
    Casi({5});
    VeA(5);
    Tecla('R');
    EXPECT_EQ(Gbl.Piezas[5].Giro, 1);
    Tecla('R', TECLA_REPETIDA, 5);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 1);
    Tecla('R', CON_CONTROL);
    Tecla('R', CON_ALT);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 1);
    Tecla('R', CON_MAYUS);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 2);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
    Gbl.PermitirGiro = false;
    Tecla('R');
    EXPECT_EQ(Gbl.Piezas[5].Giro, 2);
}

TEST_F(CruzDelTeclado, RTurnsThePieceInHandAndTheDragGoesOn) {
    Casi({5});
    VeA(5);
    const Punto p = Donde();
    Tecla(ESPACIO);
    Ve({p.x + 60, p.y + 100});
    Tecla('R');
    EXPECT_EQ(Gbl.Piezas[5].Giro, 1);
    ASSERT_TRUE(Gbl.ArrastrandoPieza);
    EXPECT_TRUE(Gbl.CruzSujeta);
    const Punto girada = Sitio(5);
    Ve({p.x + 90, p.y + 110});
    EXPECT_EQ(Sitio(5), (Punto{girada.x + 30, girada.y + 10}));
    Tecla(ESPACIO);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    ASSERT_EQ(Gbl.NumMovimientos, 3) << "the way, the turn, the way on";
    EXPECT_EQ(Gbl.Movimientos[2].GiroAntes, 0);
    EXPECT_EQ(Gbl.Movimientos[2].GiroDespues, 1);
}

TEST_F(CruzDelTeclado, RTurnsThePieceUnderTheMouseToo) {
    Casi({5});
    const Punto p = PuntoDe(5);
    Puntero.Mueve(p.x, p.y);
    Tecla('R');
    EXPECT_EQ(Gbl.Piezas[5].Giro, 1);
    EXPECT_FALSE(Mesa.ApuntaElTeclado());
    // Over the strip the cross has the strip under it, whatever lies below.
    Tecla(RE_PAG);
    Pon(1, Gbl.CruzX - 50, Gbl.CruzY - 40);
    Tecla('R');
    EXPECT_EQ(Gbl.Piezas[1].Giro, 0);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
}

TEST_F(CruzDelTeclado, VTurnsTheParallelogramOverInItsHand) {
    Tangram(MODO_CREAR);
    Pon(7, 400, 300);
    VeA(7);
    Tecla(ESPACIO);
    const Punto p = Donde();
    Ve({p.x + 20, p.y + 40});
    Mesa.KeyPress('v');
    EXPECT_EQ(Gbl.Piezas[7].Volteo, 1);
    ASSERT_TRUE(Gbl.ArrastrandoPieza);
    const Punto volteada = Sitio(7);
    Ve({p.x + 20, p.y + 80});
    EXPECT_EQ(Sitio(7), (Punto{volteada.x, volteada.y + 40}));
    Tecla(ESPACIO);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
}

TEST_F(CruzDelTeclado, FigureIsCreatedWithIt) {
    Tangram(MODO_CREAR);
    Pon(3, 400, 300);
    VeA(3);
    EXPECT_EQ(Pic_Trabajo.MouseIcon, cursor::MANO_ABIERTA);
    Tecla(ESPACIO);
    Ve({Gbl.CruzX - 100, Gbl.CruzY - 200});
    Tecla(ESPACIO);
    EXPECT_EQ(Sitio(3), (Punto{300, 100}));
}

TEST_F(CruzDelTeclado, TutorIsAskedWithIt) {
    Casi({5});
    PulsaOrden(orden::TUTOR);
    ASSERT_TRUE(Gbl.TutorEsperando);
    Sonidos();
    VeA(5);
    EXPECT_EQ(Pic_Trabajo.MouseIcon, cursor::PUNTERO_TUTOR);
    Tecla(ESPACIO);
    EXPECT_FALSE(Gbl.TutorEsperando);
    EXPECT_FALSE(Gbl.CruzSujeta);
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    const std::vector<int> sonidos = Sonidos();
    EXPECT_EQ(std::count(sonidos.begin(), sonidos.end(), 55), 3);
}

TEST_F(CruzDelTeclado, DisplayInTwoColoursEndsWithItAndThePieceIsInHand) {
    Casi({5});
    PulsaOrden(orden::COLOCADAS);
    ASSERT_TRUE(Gbl.MostrandoColocadas);
    VeA(5);
    Tecla(ESPACIO);
    EXPECT_FALSE(Gbl.MostrandoColocadas);
    EXPECT_TRUE(Gbl.CruzSujeta);
    EXPECT_EQ(Gbl.PiezaActual, 5);
}

TEST_F(CruzDelTeclado, SampleIsCarriedWithIt) {
    Casi({});
    Pic_Muestra.Tamano(100, 80);
    Pic_Muestra.Mueve(400, 400);
    Pic_Muestra.Visible = true;
    Tecla(AV_PAG);
    Tecla(ESPACIO);
    EXPECT_TRUE(Gbl.CruzSujeta);
    Ve({450 - 40, 440 + 60});
    EXPECT_EQ(Pic_Muestra.Left, 400) << "the outline goes ahead";
    Tecla(ESPACIO);
    EXPECT_EQ(Pic_Muestra.Left, 360);
    EXPECT_EQ(Pic_Muestra.Top, 460);
    EXPECT_FALSE(Gbl.CruzSujeta);
    // Tab leads to a command: what is held is let go first.
    Tecla(ESPACIO);
    Tecla(ARRIBA);
    ASSERT_EQ(Pic_Trabajo.DrawMode, MODO_INVIERTE);
    Pic_Boton(orden::MODELO).GotFocus();
    EXPECT_EQ(Pic_Trabajo.DrawMode, MODO_COPIA);
    EXPECT_EQ(Pic_Muestra.Top, 452);
    EXPECT_FALSE(Gbl.CruzSujeta);
}

TEST_F(CruzDelTeclado, StaysAwayWhileTheMouseHoldsTheSample) {
    Casi({});
    Pic_Muestra.Tamano(100, 80);
    Pic_Muestra.Mueve(400, 400);
    Pic_Muestra.Visible = true;
    const Punto o = OrigenDe(Pic_Muestra);
    const auto antes = Pic_Trabajo.Dibujo().Pixeles;
    P().botones = BOTON_IZQUIERDO;
    Puntero.Mueve(o.x + 50, o.y + 40);
    Puntero.Aprieta();
    Puntero.Mueve(o.x - 100, o.y - 60);
    ASSERT_EQ(Pic_Trabajo.DrawMode, MODO_INVIERTE);
    for (const i16 tecla : {INICIO, ESPACIO, ESPACIO, ARRIBA, AV_PAG, ESPACIO}) Tecla(tecla);
    EXPECT_EQ(Pic_Trabajo.DrawMode, MODO_INVIERTE);
    EXPECT_FALSE(Gbl.CruzSujeta);
    P().botones = 0;
    Puntero.Suelta();
    EXPECT_EQ(Pic_Trabajo.DrawMode, MODO_COPIA);
    EXPECT_EQ(Pic_Trabajo.Dibujo().Pixeles, antes) << "no outline is left behind";
    EXPECT_EQ(Pic_Muestra.Left, 250);
}

TEST_F(CruzDelTeclado, CommandsOfTheStripAreReachedAndPressedOnce) {
    Casi({});
    Ventana ajustes;
    ajustes.Nombre = "Personal";
    VentanasOrdenes.Personal = &ajustes;
    Tecla(RE_PAG);
    Tecla(ESPACIO);
    EXPECT_EQ(P().mostradas, (std::vector<std::string>{"Personal"}));
    EXPECT_FALSE(Gbl.CruzSujeta);
    // The recorder's keys, the clock's switch and the hints are there as well.
    const bool andaba = Gbl.CronoEnMarcha;
    const Punto o = PunteroPrueba::Origen(Pic_Cronome);
    Ve({o.x + 20, o.y + 10});
    EXPECT_EQ(CruzMesa.Sobre, &Pic_Cronome);
    Tecla(ESPACIO);
    EXPECT_NE(Gbl.CronoEnMarcha, andaba);
}

TEST_F(CruzDelTeclado, RowOfTheOptionsPanelIsChosenWithIt) {
    Casi({});
    Ventana archivo;
    archivo.Nombre = "Cargua";
    VentanasOrdenes.Cargua = &archivo;
    Puntero.Pulsa(400, 400, BOTON_DERECHO);
    ASSERT_TRUE(Pic_SelOpciones.Visible);
    Tecla(DERECHA, 0, 2);
    Tecla(ABAJO, 0, 4);
    EXPECT_EQ(CruzMesa.Sobre, &Pic_SelOpciones);
    EXPECT_EQ(Gbl.OpcionResaltada, 2);
    Tecla(ESPACIO);
    EXPECT_EQ(Gbl.ModoCargua, 1);
    EXPECT_FALSE(Pic_SelOpciones.Visible);
}

// ---------------------------------------------------------------- what else may happen meanwhile
TEST_F(CruzDelTeclado, MouseThatMovesTakesItAwayAndDropsThePieceWhereItIs) {
    Casi({5});
    VeA(5);
    Tecla(ESPACIO);
    const Punto antes = Sitio(5);
    Tecla(ABAJO, 0, 10);
    Puntero.Mueve(20, 20);
    EXPECT_FALSE(Mesa.ApuntaElTeclado());
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Sitio(5), (Punto{antes.x, antes.y + 80}));
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    Puntero.Mueve(40, 40);
    EXPECT_EQ(Sitio(5), (Punto{antes.x, antes.y + 80}));
    Tecla(DERECHA);
    EXPECT_EQ(Donde(), (Punto{48, 40})) << "it comes back where the mouse is";
}

TEST_F(CruzDelTeclado, EscapeAndTabDropThePiece) {
    Casi({5});
    VeA(5);
    Tecla(ESPACIO);
    Tecla(27);
    Mesa.KeyPress(27);
    EXPECT_TRUE(P().minimizado);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_FALSE(Gbl.CruzSujeta);
    Tecla(ESPACIO);
    EXPECT_TRUE(Gbl.ArrastrandoPieza) << "the next press takes it again";
    Pic_Cronome.GotFocus();
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    EXPECT_EQ(Gbl.NumMovimientos, 2);
}

TEST_F(CruzDelTeclado, TableIsDeafToItWhileAnotherHandlerIsAtWork) {
    Casi({1, 5, 9});
    Tecla(INICIO);
    bool visto = false;
    P().alDejarPasar = [&] {
        P().alDejarPasar = nullptr;
        VeA(9);
        Tecla(ESPACIO);
        EXPECT_FALSE(Gbl.CruzSujeta);
        Tecla('R');
        visto = true;
    };
    PulsaOrden(orden::RESOLVER);
    EXPECT_TRUE(visto);
    EXPECT_EQ(Gbl.PiezasColocadas, 9);
    EXPECT_EQ(Gbl.NumMovimientos, 3);
    EXPECT_FALSE(Gbl.CruzSujeta);
}

TEST_F(CruzDelTeclado, TableIsDeafToItWhileTheMouseTurnsAPiece) {
    Casi({5, 9});
    const Punto p = PuntoDe(5);
    P().botones = BOTON_DERECHO;
    P().alDejarPasar = [&] {
        P().alDejarPasar = nullptr;
        for (const i16 tecla : {INICIO, ESPACIO, ESPACIO}) Tecla(tecla);
        EXPECT_FALSE(Gbl.CruzSujeta);
        P().botones = 0;
    };
    Puntero.Mueve(p.x, p.y);
    Puntero.Aprieta(BOTON_DERECHO);
    EXPECT_EQ(Gbl.Piezas[5].Giro, 1);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_EQ(Gbl.OrdenPiezas[1], 5) << "no other piece was lifted";
}

TEST_F(CruzDelTeclado, CrossEndsTheSolverByItsButton) {
    Casi({1, 5, 9});
    Tecla(INICIO);
    P().alDejarPasar = [&] {
        P().alDejarPasar = nullptr;
        const Punto o = PunteroPrueba::Origen(Pic_Boton(orden::RESOLVER));
        Ve({o.x + 20, o.y + 20});
        Tecla(ESPACIO);
    };
    PulsaOrden(orden::RESOLVER);
    EXPECT_LT(Gbl.PiezasColocadas, 9);
}

// ---------------------------------------------------------------- the sliding puzzle
TEST_F(CruzDelTeclado, ArrowSlidesThePieceThatGoesThatWay) {
    const struct {
        i16 tecla, piece;
        i32 dx, dy;
    } CASOS[] = {{IZQUIERDA, 5, -1, 0}, {ARRIBA, 7, 0, -1}, {DERECHA, 4, 1, 0}, {ABAJO, 2, 0, 1}};
    for (const auto& c : CASOS) {
        Gbl.NumMovimientos = 0;
        Tablero();
        Sonidos();
        const Punto antes = Sitio(c.piece);
        Tecla(c.tecla);
        EXPECT_EQ(Sitio(c.piece),
                  (Punto{antes.x + c.dx * Gbl.AnchoCelda, antes.y + c.dy * Gbl.AltoCelda}))
            << c.tecla;
        EXPECT_EQ((Punto{Gbl.HuecoX, Gbl.HuecoY}), antes);
        EXPECT_FALSE(Gbl.ArrastrandoPieza) << "the move is closed";
        ASSERT_EQ(Gbl.NumMovimientos, 1);
        EXPECT_EQ(Gbl.Movimientos[1].Pieza, c.piece);
        EXPECT_EQ(Sonidos(), (std::vector<int>{53}));
        EXPECT_FALSE(Mesa.ApuntaElTeclado()) << "no cross is needed for it";
        EXPECT_EQ(Gbl.CruzX, -1) << "and the mouse was nowhere yet";
        Tecla(c.tecla);
        EXPECT_EQ(Gbl.NumMovimientos, 1) << "the hole is at the edge now";
        const auto vuelta = static_cast<i16>(c.tecla + (c.tecla < DERECHA ? 2 : -2));
        Tecla(vuelta, TECLA_REPETIDA, 3);
        EXPECT_EQ(Gbl.NumMovimientos, 1) << "one move for each press";
        Tecla(vuelta);
        EXPECT_EQ(Sitio(c.piece), antes);
    }
}

TEST_F(CruzDelTeclado, LastSlideEndsTheGame) {
    Deslizantes(3);
    TableroResuelto();
    Gbl.PuzzleTerminado = false;
    Tecla(INICIO);
    Tecla(DERECHA);
    ASSERT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_FALSE(Gbl.PuzzleTerminado);
    EXPECT_TRUE(CruzMesa.Visible);
    Tecla(IZQUIERDA);
    EXPECT_TRUE(Gbl.PuzzleTerminado);
    EXPECT_FALSE(CruzMesa.Visible);
    EXPECT_EQ(P().avisos.at(0).texto, "Ha conseguido resolver el puzzle");
}

TEST_F(CruzDelTeclado, PointerFindsAgainWhatItStandsOnAfterAnArrow) {
    Tablero();
    // Over piece 1, which cannot move, until piece 2 is gone from its side.
    const Rect uno = CajaDePieza(1);
    Puntero.Mueve(uno.Izq + 20, uno.Arr + 20);
    ASSERT_EQ(Pic_Trabajo.MouseIcon, cursor::SENAL_PROHIBIDO);
    Tecla(ABAJO);
    EXPECT_EQ(Gbl.PiezaActual, 1);
    EXPECT_EQ(Pic_Trabajo.MouseIcon, cursor::FLECHA_ESTE);
}

TEST_F(CruzDelTeclado, ShiftedArrowsMoveTheCrossInTheSlidingPuzzleAndSpaceClicks) {
    Tablero();
    Tecla(INICIO);
    const Punto medio = Donde();
    Tecla(ARRIBA, CON_MAYUS, 12);
    EXPECT_EQ(Donde(), (Punto{medio.x, medio.y - 96}));
    EXPECT_EQ(Gbl.NumMovimientos, 0);
    EXPECT_EQ(Pic_Trabajo.MouseIcon, cursor::FLECHA_SUR);
    Tecla(ESPACIO);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
    EXPECT_FALSE(Gbl.CruzSujeta);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    // The sample in hand: every arrow is the cross's.
    Pic_Muestra.Tamano(60, 60);
    Pic_Muestra.Mueve(300, 400);
    Pic_Muestra.Visible = true;
    Tecla(AV_PAG);
    Tecla(ESPACIO);
    Tecla(ARRIBA);
    Tecla(ESPACIO);
    EXPECT_EQ(Pic_Muestra.Top, 392);
    EXPECT_EQ(Gbl.NumMovimientos, 1);
}

TEST_F(CruzDelTeclado, BoardIsSetUpByHandWithTheCross) {
    Tablero();
    P().respuestas = {true};
    PulsaOrden(orden::ORDENAR);
    ASSERT_TRUE(Gbl.OrdenManual);
    Tecla(INICIO);
    const Punto medio = Donde();
    Ve({medio.x + 100, medio.y + 110});  // piece 8, which is not next to the hole
    EXPECT_EQ(Pic_Trabajo.MouseIcon, cursor::CRUZ_FLECHAS);
    const Punto ocho = Sitio(8);
    const Punto hueco{Gbl.HuecoX, Gbl.HuecoY};
    Tecla(ESPACIO);
    EXPECT_EQ(Sitio(8), hueco);
    EXPECT_EQ((Punto{Gbl.HuecoX, Gbl.HuecoY}), ocho);
    EXPECT_FALSE(Gbl.ArrastrandoPieza);
    // A press beside the pieces ends it, as with the mouse.
    P().avisos.clear();
    Ve({20, 580});
    Tecla(ESPACIO);
    ASSERT_EQ(P().avisos.size(), 1U);
    EXPECT_EQ(P().avisos[0].titulo, "Configuración sin solución");
}

TEST_F(CruzDelTeclado, ArrowsDoNothingToTheBoardWhileTheSolverOrAShuffleIsAtWork) {
    Tablero();
    int vueltas = 0;
    std::vector<i16> antes;
    P().alDejarPasar = [&] {
        if (++vueltas > 3) return;
        const i16 numero = Gbl.NumMovimientos;
        const Punto hueco{Gbl.HuecoX, Gbl.HuecoY};
        Gbl.NumVecinos = 0;
        for (const i16 t : {IZQUIERDA, ARRIBA, DERECHA, ABAJO}) Tecla(t);
        EXPECT_EQ(Gbl.NumVecinos, 0) << "nor to what that work may hold";
        EXPECT_EQ(Gbl.NumMovimientos, numero);
        EXPECT_EQ((Punto{Gbl.HuecoX, Gbl.HuecoY}), hueco);
    };
    PulsaOrden(orden::BARAJAR);
    EXPECT_GT(vueltas, 3);
}

}  // namespace

}  // namespace tessario
