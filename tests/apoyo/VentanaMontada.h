// SPDX-License-Identifier: GPL-3.0-or-later
// The windows of the records on the test platform: what they print, and pressing their controls.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "apoyo/MesaMontada.h"
#include "table/Ordenes.h"
#include "windows/Cargua.h"
#include "windows/Estadis.h"
#include "windows/Historic.h"

namespace tessario {

class VentanaMontada : public MesaMontada {
protected:
    void SetUp() override {
        MesaMontada::SetUp();
        ConectaEstadis();
        ConectaHistoric();
        ConectaCargua();
        VentanasOrdenes.Estadis = &Estadis;
        VentanasOrdenes.Historic = &Historic;
        VentanasOrdenes.Cargua = &Cargua;
        P().anotaTextos = true;
    }

    // Opens a window and does something in it.
    void En(Ventana& v, std::function<void()> hace) {
        P().ventanas[v.Nombre] = [hace = std::move(hace)](Ventana&) { hace(); };
        Sistema().MuestraModal(v);
        P().ventanas.erase(v.Nombre);
    }

    struct Renglon {
        std::string etiqueta, valor;
        bool operator==(const Renglon&) const = default;
        friend void PrintTo(const Renglon& r, std::ostream* o) { *o << r.etiqueta << r.valor; }
    };
    // What stands in a panel: label and value by the top of the line. Blanks at the end are cut.
    std::map<i32, Renglon> Renglones(const Superficie& panel) {
        std::map<i32, Renglon> filas;
        for (const auto& t : P().textos) {
            if (t.donde != &panel) continue;
            Renglon& r = filas[t.y];
            (t.x == 20 ? r.etiqueta : r.valor) =
                t.texto.substr(0, t.texto.find_last_not_of(' ') + 1);
        }
        return filas;
    }
    std::string Valor(const Superficie& panel, const std::string& etiqueta) {
        for (const auto& [y, r] : Renglones(panel))
            if (r.etiqueta.starts_with(etiqueta)) return r.valor;
        return "(none)";
    }
    static void Aprieta(Cuadro& boton) {
        if (boton.MouseMove) boton.MouseMove(0, 0, 5, 5);
        if (boton.MouseDown) boton.MouseDown(BOTON_IZQUIERDO, 0, 5, 5);
        if (boton.MouseUp) boton.MouseUp(BOTON_IZQUIERDO, 0, 5, 5);
        if (boton.Click) boton.Click();
    }
};

}  // namespace tessario
