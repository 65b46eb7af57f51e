// SPDX-License-Identifier: GPL-3.0-or-later
#include "mono/Visita.h"

#include <algorithm>
#include <string>

#include "apoyo/PlataformaPrueba.h"

namespace tessario {

namespace {

using Azar = std::function<i32(i32)>;

constexpr i32 ACTOS = 14;  // at most in one visit

// What a player can do to a control beyond pressing it.
void Maneja(Control& c, const Azar& hasta) {
    if (auto* lista = dynamic_cast<Lista*>(&c)) {
        if (lista->ListCount() > 0) lista->Selecciona(hasta(lista->ListCount()));
        if (hasta(4) == 0 && lista->DblClick) lista->DblClick();
    } else if (auto* texto = dynamic_cast<CajaTexto*>(&c)) {
        static const char* const TEXTOS[] = {"", "uno", "Ñandú / \\ \"", "   ", "12"};
        texto->Escribe(TEXTOS[hasta(5)]);
    } else if (auto* buleano = dynamic_cast<Buleano*>(&c)) {
        buleano->Pon(hasta(2) == 0);
    } else if (auto* selector = dynamic_cast<Selector*>(&c)) {
        const auto cuantos = static_cast<i32>(selector->Textos.size());
        if (cuantos > 0) selector->Pon(static_cast<i16>(1 + hasta(cuantos)));
    } else if (auto* mando = dynamic_cast<Potenciometro*>(&c)) {
        mando->Pon(static_cast<i16>(hasta(101)));
    } else if (auto* giro = dynamic_cast<Spin*>(&c)) {
        giro->Pon(static_cast<i16>(giro->Min + hasta(giro->Max - giro->Min + 1)));
    } else if (auto* barra = dynamic_cast<BarraDesplazamiento*>(&c)) {
        barra->Pon(barra->Min + hasta(std::max(1, barra->Max - barra->Min + 1)));
    }
}

bool SeAlcanza(const Control& c) {
    for (const Control* k = &c; k; k = k->Contenedor)
        if (!k->Visible || !k->Enabled) return false;
    return true;
}

void Teclea(Ventana& v, const Azar& hasta) {
    static constexpr i16 TECLAS[] = {13, 27, ' ', 37, 38, 39, 40, 'V', 'a', 112, 46};
    const i16 tecla = TECLAS[hasta(11)];
    if (v.KeyDown) v.KeyDown(tecla, 0);
    if (v.Abierta && v.KeyPress) v.KeyPress(tecla);
}

void Actua(Ventana& v, PunteroPrueba& puntero, const Azar& hasta) {
    const i32 suerte = hasta(8);
    if (suerte == 0) return Teclea(v, hasta);
    if (suerte == 1 || v.Controles.empty())
        return puntero.Pulsa(hasta(std::max(1, v.Width())), hasta(std::max(1, v.Height())));
    Control& c =
        *v.Controles[static_cast<std::size_t>(hasta(static_cast<i32>(v.Controles.size())))];
    if (!SeAlcanza(c)) return;
    if (hasta(2) == 0) return Maneja(c, hasta);
    const Punto o = PunteroPrueba::Origen(c);
    puntero.Pulsa(o.x + hasta(std::max(1, c.Width())), o.y + hasta(std::max(1, c.Height())));
}

}  // namespace

void VisitaVentana(Ventana& v, const Azar& hasta) {
    PunteroPrueba puntero(v);
    for (i32 n = hasta(ACTOS); n > 0 && v.Abierta; --n) Actua(v, puntero, hasta);
    bool cancela = false;
    if (v.Abierta && v.QueryUnload) v.QueryUnload(cancela);
    if (v.Abierta) Sistema().Cierra(v);
}

}  // namespace tessario
