// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/Resolucion.h"

#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "panel/Alcance.h"
#include "panel/Botonera.h"
#include "panel/Desplazamiento.h"
#include "panel/Grabadora.h"
#include "panel/Sugerencias.h"
#include "platform/Plataforma.h"
#include "session/Montaje.h"
#include "table/Colocacion.h"
#include "table/Raton.h"

namespace tessario {

namespace {

constexpr i32 BORDE_MESA = 2;  // Mesa reaches out of the screen by that

// What lies on the table for the moment, in the pixels of the old screen.
void Despeja() {
    SueltaLoQueHaya(Gbl.XRaton, Gbl.YRaton);
    if (Gbl.GrabadoraEncendida) PulsaMandoGrabadora();
    Gbl.TutorEsperando = false;
    Pic_SelOpciones.Visible = false;
    if (!Gbl.MostrandoColocadas) return;
    Gbl.MostrandoColocadas = false;
    MostrarPiezasBienoMal();
}

}  // namespace

void DimensionaMesa() {
    Mesa.Tamano(Gbl.AnchoPantalla + BORDE_MESA, Gbl.AltoPantalla + BORDE_MESA);
    QuitaBarras();  // the strip and the sizes go by the visible table
}

void CambiaResolucion() {
    const i32 ancho = Sistema().AnchoPantalla(), alto = Sistema().AltoPantalla();
    if (ancho == Gbl.AnchoPantalla && alto == Gbl.AltoPantalla) return;
    Sigue([] { Despeja(); });
    Gbl.AnchoPantalla = Corto(ancho);
    Gbl.AltoPantalla = Corto(alto);
    DimensionaMesa();
    CargaBotonera();
    Sigue([] { RehazMesa(); });
    Sigue([] { TraeLoInalcanzable(); });
    if (Gbl.VentanaInformacion) Sugerencia(Gbl.SugerenciaActual);
}

}  // namespace tessario
