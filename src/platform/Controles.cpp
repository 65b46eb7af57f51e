// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Controles.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/OrdenTexto.h"

namespace tessario {

namespace {

// Stores what the player chose; tells of it only when it is new.
template <class T, class Valor>
void Cambia(T& control, Valor& campo, Valor nuevo) {
    if (campo == nuevo) return;
    campo = std::move(nuevo);
    if (control.Change) control.Change();
}

// The first bytes of a UTF-8 text that hold the given number of characters.
std::string Primeros(const std::string& texto, i32 caracteres) {
    i32 n = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const bool empieza = (static_cast<unsigned char>(texto[i]) & 0xC0U) != 0x80U;
        if (empieza && n++ == caracteres) return texto.substr(0, i);
    }
    return texto;
}

}  // namespace

void BarraDesplazamiento::Pon(i32 v) {
    Cambia(*this, Value, std::clamp(v, Min, std::max(Min, Max)));
}

void Lista::AddItem(const std::string& texto, i32 dato) {
    auto lugar = Elementos.end();
    if (Ordenada)
        lugar = std::upper_bound(
            Elementos.begin(), Elementos.end(), ClaveDeOrden(texto),
            [](const auto& clave, const Elemento& e) { return clave < ClaveDeOrden(e.Texto); });
    const auto indice = static_cast<i32>(lugar - Elementos.begin());
    Elementos.insert(lugar, {texto, dato});
    // The chosen row stays chosen when it moves down.
    if (ListIndex >= indice) ++ListIndex;
}

void Lista::Rellena(std::vector<Elemento> elementos) {
    ListIndex = -1;
    Elementos = std::move(elementos);
    if (!Ordenada) return;
    std::vector<std::pair<std::u32string, std::size_t>> orden;
    orden.reserve(Elementos.size());
    for (const Elemento& e : Elementos) orden.emplace_back(ClaveDeOrden(e.Texto), orden.size());
    std::sort(orden.begin(), orden.end());
    std::vector<Elemento> ordenados;
    ordenados.reserve(orden.size());
    for (const auto& [clave, i] : orden) ordenados.push_back(std::move(Elementos[i]));
    Elementos = std::move(ordenados);
}

void Lista::Clear() {
    Elementos.clear();
    ListIndex = -1;
}

void Lista::Selecciona(i32 indice) {
    if (indice < 0 || indice >= ListCount()) return;
    ListIndex = indice;
    if (Click) Click();
}

void CajaTexto::Escribe(const std::string& texto) {
    Cambia(*this, Text, MaxLength > 0 ? Primeros(texto, MaxLength) : texto);
}

void Buleano::Pon(bool v) {
    Cambia(*this, Value, v);
}

void Selector::Pon(i16 v) {
    if (Textos.empty()) return;
    const auto ultimo = static_cast<i16>(std::min<std::size_t>(Textos.size(), 32767));
    Cambia(*this, Value, std::clamp(v, i16{1}, ultimo));
}

void Potenciometro::Pon(i16 v) {
    Cambia(*this, Value, std::clamp(v, i16{0}, i16{100}));
}

void Spin::Pon(i16 v) {
    Cambia(*this, Value, std::clamp(v, Min, std::max(Min, Max)));
}

Punto OrigenDe(const Control& c) {
    Punto p{c.Left, c.Top};
    for (const Control* k = c.Contenedor; k; k = k->Contenedor) {
        p.x += k->Left;
        p.y += k->Top;
    }
    return p;
}

Control* ControlEn(const Ventana& v, i32 x, i32 y) {
    const auto seVe = [&](const Control* c) {
        for (; c; c = c->Contenedor) {
            const Punto o = OrigenDe(*c);
            if (!c->Visible || !RectDe(o.x, o.y, c->Width(), c->Height()).Contiene(x, y))
                return false;
        }
        return true;
    };
    // A control in a container stands after it in the list.
    const auto c = std::find_if(v.Controles.rbegin(), v.Controles.rend(),
                                [&](const Control* k) { return k != v.Teclado && seVe(k); });
    return c == v.Controles.rend() ? nullptr : *c;
}

void Pulsa(Control& c) {
    if (c.MouseMove) c.MouseMove(0, 0, 0, 0);
    if (c.MouseDown) c.MouseDown(BOTON_IZQUIERDO, 0, 0, 0);
}

}  // namespace tessario
