// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CruzTeclado.h"

#include <algorithm>
#include <functional>

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "pieces/Composicion.h"
#include "platform/Plataforma.h"
#include "rules/Juego.h"
#include "table/Tareas.h"

namespace tessario {

namespace {

constexpr i16 ESPACIO = 32, RE_PAG = 33, AV_PAG = 34, INICIO = 36, GIRA = 'R';
constexpr i16 IZQUIERDA = 37, ARRIBA = 38, DERECHA = 39, ABAJO = 40;

// ---------------------------------------------------------------- where it is
constexpr i32 PASO = 8, PASO_FINO = 1;  // pixels
// A held key goes twice, three times ... as far as at first, one more after every few repetitions.
constexpr i32 REPETICIONES_POR_MARCHA = 4, MARCHAS = 5;
// The first row and column of the view are where a drag scrolls by itself.
constexpr i32 BORDE = 1;

i32 LargoDelPaso(i16 Shift) {
    Gbl.CruzRepeticiones =
        Shift & TECLA_REPETIDA ? Corto(std::min(Gbl.CruzRepeticiones + 1, 1000)) : i16{0};
    const i32 marcha = std::min(1 + Gbl.CruzRepeticiones / REPETICIONES_POR_MARCHA, MARCHAS);
    return marcha * (Shift & CON_CONTROL ? PASO_FINO : PASO);
}

// One axis: what lies beyond the view is scrolled to, as far as the bar goes.
i32 Alcanza(BarraDesplazamiento& barra, i32 donde, i32 fin) {
    const i32 dentro = std::clamp(donde, BORDE, std::max(BORDE, fin - 1));
    if (barra.Visible && donde != dentro) barra.Pon(barra.Value + donde - dentro);
    return dentro;
}

void Situa(i32 x, i32 y) {
    Gbl.CruzX = Alcanza(BarraHor, x, BarraVer.Left);
    Gbl.CruzY = Alcanza(BarraVer, y, BarraHor.Top);
    CruzMesa.Apunta(Gbl.CruzX, Gbl.CruzY);
    CruzMesa.Visible = true;
    if (!Gbl.CruzSujeta) CruzMesa.Sobre = ControlEn(Mesa, Gbl.CruzX, Gbl.CruzY);
    // Reached by Tab before, another control would go on taking the keys.
    Sistema().PonFoco(Pic_Trabajo);
}

Punto MedioDe(const Control& c) {
    const Punto o = OrigenDe(c);
    return {o.x + c.Width() / 2, o.y + c.Height() / 2};
}

Punto MedioDelPuzzle() {
    const Punto o = OrigenDe(Pic_Trabajo);
    return {o.x + Gbl.MargenX + Gbl.AnchoPuzzle / 2, o.y + Gbl.MargenY + Gbl.AltoPuzzle / 2};
}

// ---------------------------------------------------------------- what it does there
using EventoRaton = std::function<void(i16 Button, i16 Shift, float X, float Y)>;

void Envia(const Control& c, const EventoRaton& evento, i16 boton) {
    if (!evento || !c.Enabled) return;
    const Punto o = OrigenDe(c);
    evento(boton, 0, static_cast<float>(Gbl.CruzX - o.x), static_cast<float>(Gbl.CruzY - o.y));
}

void Mira() {
    if (const Control* const c = CruzMesa.Sobre)
        Envia(*c, c->MouseMove, Gbl.CruzSujeta ? BOTON_IZQUIERDO : i16{0});
}

void Ve(Punto p) {
    Situa(p.x, p.y);
    Mira();
}

bool EnMano(const Control& c) {
    if (&c == &Pic_Trabajo) return Gbl.ArrastrandoPieza && JuegoEnCurso().SeArrastra;
    return &c == &Pic_Muestra;
}

void Suelta(const Control& c) {
    Gbl.CruzSujeta = false;
    Envia(c, c.MouseUp, BOTON_IZQUIERDO);
    if (c.Click && c.Enabled && ControlEn(Mesa, Gbl.CruzX, Gbl.CruzY) == &c) c.Click();
}

// What stays in hand waits for the next press of the key; of all else the press ends at once.
void Toma() {
    Ve({Gbl.CruzX, Gbl.CruzY});
    const Control* const c = CruzMesa.Sobre;
    if (!c || (c == &Pic_Trabajo && DentroDeTarea())) return;
    Envia(*c, c->MouseDown, BOTON_IZQUIERDO);
    Gbl.CruzSujeta = EnMano(*c);
    if (!Gbl.CruzSujeta) Suelta(*c);
}

void TomaOSuelta() {
    if (Gbl.CruzSujeta)
        SueltaCruz();
    else if (CruzMesa.Visible)
        Toma();
    else  // Deliberate: the first one only shows where it would take something
        Ve(Gbl.CruzX < 0 ? MedioDelPuzzle() : Punto{Gbl.CruzX, Gbl.CruzY});
}

// One step of rotation, in hand or not. Deliberate: also without the cross, for who has the other
// hand at the mouse.
void Gira() {
    if (Gbl.CruzX < 0) return;
    if (CruzMesa.Visible) Situa(Gbl.CruzX, Gbl.CruzY);
    if (CruzMesa.Visible && CruzMesa.Sobre != &Pic_Trabajo) return;
    const Punto o = OrigenDe(Pic_Trabajo);
    Pic_Trabajo.MouseWheel(1, static_cast<float>(Gbl.CruzX - o.x),
                           static_cast<float>(Gbl.CruzY - o.y));
}

// ---------------------------------------------------------------- arrows
constexpr struct {
    i32 dx, dy;
    i16 lado;  // 1 north, 2 east, 3 south, 4 west
} FLECHAS[] = {{-1, 0, 4}, {0, -1, 1}, {1, 0, 2}, {0, 1, 3}};

// A whole press in the middle of a piece. Afterwards the pointer finds again what it stands on.
void PulsaPiezaEntera(i16 piece) {
    const Rect caja = CajaDePieza(piece);
    const Punto centro{caja.Izq + caja.Ancho() / 2, caja.Arr + caja.Alto() / 2};
    const auto x = static_cast<float>(centro.x), y = static_cast<float>(centro.y);
    const Punto puntero{Gbl.CruzX, Gbl.CruzY};
    Pic_Trabajo.MouseMove(0, 0, x, y);
    Pic_Trabajo.MouseDown(BOTON_IZQUIERDO, 0, x, y);
    Pic_Trabajo.MouseUp(BOTON_IZQUIERDO, 0, x, y);
    Pic_Trabajo.Click();
    Gbl.CruzX = puntero.x;
    Gbl.CruzY = puntero.y;
    if (puntero.x < 0) return;
    const Punto o = OrigenDe(Pic_Trabajo);
    Pic_Trabajo.MouseMove(0, 0, static_cast<float>(puntero.x - o.x),
                          static_cast<float>(puntero.y - o.y));
}

void Flecha(i16 KeyCode, i16 Shift) {
    const auto& f = FLECHAS[KeyCode - IZQUIERDA];
    const auto queVa = JuegoEnCurso().PiezaQueVa;
    if (queVa && !Gbl.OrdenManual && !(Shift & CON_MAYUS) && !Gbl.CruzSujeta) {
        // Deliberate: a press for each move, as with the mouse. A held key does not run on.
        if (DentroDeTarea() || (Shift & TECLA_REPETIDA)) return;
        if (const i16 piece = queVa(f.lado); piece != 0) PulsaPiezaEntera(piece);
        return;
    }
    const i32 paso = LargoDelPaso(Shift);
    const Punto p = Gbl.CruzX < 0 ? MedioDelPuzzle() : Punto{Gbl.CruzX, Gbl.CruzY};
    Ve({p.x + f.dx * paso, p.y + f.dy * paso});
}

// Is it a key that points or presses?
bool Apunta(i16 KeyCode) {
    constexpr i16 TECLAS[] = {IZQUIERDA, ARRIBA, DERECHA, ABAJO, RE_PAG, AV_PAG, INICIO, ESPACIO};
    return std::find(std::begin(TECLAS), std::end(TECLAS), KeyCode) != std::end(TECLAS);
}

void VuelveElRaton() {
    SueltaCruz();
    EscondeCruz();
}

}  // namespace

void ConectaCruz() {
    Mesa.Controles.push_back(&CruzMesa);
    Mesa.Teclado = &CruzMesa;
    Mesa.VuelveElRaton = VuelveElRaton;
}

void AnotaPuntero(float X, float Y) {
    const Punto o = OrigenDe(Pic_Trabajo);
    Gbl.CruzX = o.x + EnteroLargo(static_cast<double>(X));
    Gbl.CruzY = o.y + EnteroLargo(static_cast<double>(Y));
}

void SueltaCruz() {
    if (!Gbl.CruzSujeta) return;
    if (const Control* const c = CruzMesa.Sobre) Suelta(*c);
}

void EscondeCruz() {
    CruzMesa.Visible = false;
    CruzMesa.Sobre = nullptr;
}

bool TeclaDeCruz(i16 KeyCode, i16 Shift) {
    if (Shift & CON_ALT) return false;
    // While the mouse holds something the cross stays away; a piece in its hand can be turned.
    if (!Gbl.CruzSujeta && Sistema().BotonesApretados() != 0 && Apunta(KeyCode)) return true;
    const bool nueva = !(Shift & TECLA_REPETIDA);
    switch (KeyCode) {
        case IZQUIERDA:
        case ARRIBA:
        case DERECHA:
        case ABAJO:
            Flecha(KeyCode, Shift);
            return true;
        case RE_PAG:
            Ve(MedioDe(*Mesa.OrdenTab.front()));
            return true;
        case AV_PAG:
            if (Pic_Muestra.Visible) Ve(MedioDe(Pic_Muestra));
            return true;
        case INICIO:
            Ve(MedioDelPuzzle());
            return true;
        case ESPACIO:
            if (nueva) TomaOSuelta();
            return true;
        case GIRA:
            if (Shift & CON_CONTROL) return false;
            if (nueva) Gira();
            return true;
        default:
            return false;
    }
}

}  // namespace tessario
