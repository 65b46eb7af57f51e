// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/Botonera.h"

#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "rules/Catalogo.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

constexpr Color COLOR_OSCURO = 1186423, COLOR_CLARO = 6719726, COLOR_TIRA = paleta::TERRACOTA;
constexpr i32 LADO_BOTON = 48, PASO_BOTON = 49;  // tiles of Pic_BmpBoton

struct LugarBoton {
    i16 x, y;
    const char* ayuda;
};
constexpr LugarBoton LUGARES[ORDENES_DE_LA_TIRA] = {
    {15, 194, " Barajar las piezas "},
    {15, 10, " Personalizar "},
    {15, 68, " Tutor de juego "},
    {78, 68, " Estadísticas "},
    {15, 126, " Histórico de puzzles resueltos "},
    {78, 10, " Ayuda de la aplicación "},
    {78, 126, " Salir de la aplicación "},
    {78, 194, " Mostrar modelo "},
    {15, 310, " Mostrar piezas ocultas "},
    {78, 252, " Mostrar piezas colocadas "},
    {15, 252, " Ordenar las piezas "},
    {78, 310, " Resolver el puzzle "},
};
constexpr i16 ULTIMO_DE_GRUPO[2] = {orden::SALIR,
                                    orden::RESOLVER};  // a separator follows below each
constexpr i32 HUECO_SEPARADOR = 9;

// Instruments below the second separator: place relative to it, size.
struct LugarAparato {
    i32 x, dy, ancho, alto;
};
constexpr LugarAparato LUGAR_CRONOME{10, 11, 58, 45};
constexpr LugarAparato LUGAR_INFOCOLO{10, 61, 58, 25};
constexpr LugarAparato LUGAR_GRABADORA{77, 11, 50, 75};
constexpr Rect LUGAR_CROTIME{3, 20, 55, 42};  // in Pic_Cronome
constexpr Color COLOR_CRONOME = 0xA85028, COLOR_GRABADORA = COLOR_CRONOME;

void LineaRecta(Superficie& s, i32 x1, i32 y1, i32 x2, i32 y2, Color color) {
    s.Line(pluma::ConColor | pluma::Desde, x1, y1, x2, y2, color);
}

void PintaMarco() {
    const i32 der = BOTONERA_ANCHO - 1;
    const i32 aba = BOTONERA_ALTO - 1;
    Pic_Botonera.Line(pluma::ConColor | pluma::Desde | pluma::Caja, 0, 0, der, aba, COLOR_OSCURO);
    LineaRecta(Pic_Botonera, 0, 0, der, 0, COLOR_CLARO);
    LineaRecta(Pic_Botonera, 0, 0, 0, aba, COLOR_CLARO);
}

void ColocaBotones() {
    for (i32 i = 1; i <= ORDENES_DE_LA_TIRA; ++i) {
        const LugarBoton& lugar = LUGARES[i - 1];
        Gbl.BotonX[i] = lugar.x;
        Gbl.BotonY[i] = lugar.y;
        Cuadro& boton = Pic_Boton(i);
        boton.Mueve(lugar.x, lugar.y);
        boton.Tamano(LADO_BOTON, LADO_BOTON);
        boton.ToolTipText = lugar.ayuda;
        boton.Visible = i != orden::OCULTAS || JuegoEnCurso().OrdenOcultas;
        boton.PonBackColor(COLOR_TIRA);  // what a forbidden command fades to
        BitBlt(boton, 0, 0, LADO_BOTON, LADO_BOTON, Pic_BmpBoton, (i - 1) * PASO_BOTON, 0, SRCCOPY);
    }
}

// Draws both separators; the y of the second.
i32 PintaSeparadores() {
    i32 y = 0;
    for (const i16 boton : ULTIMO_DE_GRUPO) {
        y = Pic_Boton(boton).Top + Pic_Boton(boton).Height() + HUECO_SEPARADOR;
        LineaRecta(Pic_Botonera, 0, y, BOTONERA_ANCHO - 1, y, COLOR_OSCURO);
        LineaRecta(Pic_Botonera, 0, y + 1, BOTONERA_ANCHO - 2, y + 1, COLOR_CLARO);
    }
    return y;
}

void ColocaAparato(Cuadro& aparato, const LugarAparato& lugar, i32 y, bool visible) {
    aparato.Mueve(lugar.x, y + lugar.dy);
    aparato.Tamano(lugar.ancho, lugar.alto);
    aparato.Visible = visible;
}

void ColocaAparatos(i32 y) {
    // Who creates figures has nothing to place, no time to beat and no result.
    const bool visible = !CreandoFiguras();
    ColocaAparato(Pic_Cronome, LUGAR_CRONOME, y, visible);
    ColocaAparato(Pic_InfoColo, LUGAR_INFOCOLO, y, visible);
    ColocaAparato(Pic_Grabadora, LUGAR_GRABADORA, y, visible);
    Pic_CroTime.Mueve(LUGAR_CROTIME.Izq, LUGAR_CROTIME.Arr);
    Pic_CroTime.Tamano(LUGAR_CROTIME.Ancho(), LUGAR_CROTIME.Alto());
    Pic_Grabadora.PonBackColor(COLOR_GRABADORA);
    BitBlt(Pic_Grabadora, 0, 0, LUGAR_GRABADORA.ancho, LUGAR_GRABADORA.alto, Pic_BmpVario, 0, 0,
           SRCCOPY);
    if (!visible) return;
    Pic_Cronome.PonBackColor(COLOR_CRONOME);
    CambiaCrono(Gbl.CronoEnMarcha ? CRONO_MARCHA : CRONO_PARO);
    PintaTiempo();
    // As last counted: at this point of a new game its pieces do not exist yet.
    PintaColocadas();
}

}  // namespace

void CargaBotonera() {
    Pic_Botonera.Mueve(BarraVer.Left - BOTONERA_ANCHO, 0);
    Pic_Botonera.Tamano(BOTONERA_ANCHO, BOTONERA_ALTO);
    Pic_Botonera.PonBackColor(COLOR_TIRA);
    PintaMarco();
    ColocaBotones();
    ColocaAparatos(PintaSeparadores());
}

}  // namespace tessario
