// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/CreaVista.h"

#include "qt/VistasListas.h"
#include "qt/VistasMandos.h"
#include "qt/VistasPintadas.h"

namespace tessario {

namespace {

template <class Registro, class V>
Vista* Crea(Control& c, MarcoDeVistas& v, QWidget* padre) {
    auto* const r = dynamic_cast<Registro*>(&c);
    return r ? new V(*r, v, padre) : nullptr;
}

class VistaLisa : public Vista {
public:
    using Vista::Vista;

protected:
    bool EsBoton() const override { return true; }
};

// The kinds that are built on another one come before it.
constexpr Vista* (*CLASES[])(Control&, MarcoDeVistas&, QWidget*) = {
    Crea<Cuadro, VistaCuadro>,
    Crea<Cruz, VistaCruz>,
    Crea<Etiqueta, VistaEtiqueta>,
    Crea<BarraDesplazamiento, VistaBarra>,
    Crea<ListaFicheros, VistaFicheros>,
    Crea<Lista, VistaLista>,
    Crea<CajaTexto, VistaTexto>,
    Crea<Buleano, VistaBuleano>,
    Crea<Selector, VistaSelector>,
    Crea<Potenciometro, VistaPotenciometro>,
    Crea<Spin, VistaSpin>,
    Crea<ListaUnidades, VistaUnidades>,
    Crea<ListaCarpetas, VistaCarpetas>,
};

}  // namespace

Vista* CreaVista(Control& c, MarcoDeVistas& v, QWidget* padre) {
    for (const auto crea : CLASES)
        if (Vista* const vista = crea(c, v, padre)) return vista;
    return new VistaLisa(c, v, padre);
}

}  // namespace tessario
