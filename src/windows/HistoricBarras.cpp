// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/HistoricBarras.h"

#include <algorithm>
#include <string>

#include "core/Cadenas.h"
#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "rules/Juego.h"
#include "windows/Historic.h"
#include "windows/Lineas.h"
#include "windows/Marco.h"

namespace tessario {

namespace {

using paleta::COBALTO, paleta::TERRACOTA, paleta::BLANCO, paleta::GRIS;
constexpr Color COBALTO_CLARO = 0xC98A6A, ESMALTE = 0xE4F2FB, ESMALTE_OSCURO = 0xBCD4E4;
constexpr int RECTA = pluma::Desde | pluma::ConColor;
constexpr int LLENA = RECTA | pluma::Caja | pluma::Llena;

// ---------------------------------------------------------------- bars

constexpr i32 MARGEN = 4;          // free on each side of the bars, pixels
constexpr i32 PASO_MAXIMO = 12;    // from bar to bar
constexpr i32 PASO_CON_HUECO = 3;  // from here on a column stays free between two bars

// How the records share the columns, and the columns the width.
struct Reparto {
    i32 registros = 0;
    i32 columnas = 0;  // bars drawn
    i32 ancho = 0;     // pixels that they take together

    explicit Reparto(const Cuadro& c) : registros(Lis_Ordenar.ListCount()) {
        const i32 libre = std::max(c.Width() - 2 * MARGEN, 1);
        columnas = std::min(registros, libre);
        ancho = std::min(libre, columnas * PASO_MAXIMO);
    }
    // The first record of a column; of the one behind the last, the number of records.
    i32 Primero(i32 columna) const {
        return static_cast<i32>(static_cast<std::int64_t>(columna) * registros / columnas);
    }
    // Left edge of a column.
    i32 X(i32 columna) const { return MARGEN + columna * ancho / columnas; }
};

const RegistroHistorico& RegistroEn(i32 posicion) {
    return Gbl.Historico[Lis_Ordenar.Elementos[static_cast<std::size_t>(posicion)].Dato];
}

float NivelDeColumna(const Reparto& r, i32 columna) {
    float nivel = 0;
    for (i32 i = r.Primero(columna); i < r.Primero(columna + 1); ++i)
        nivel = std::max(nivel, RegistroEn(i).Nivel);
    return std::min(nivel, 100.0F);
}

void PintaBarra(Cuadro& c, const Reparto& r, i32 columna) {
    const bool actual =
        r.Primero(columna) <= Gbl.PosicionActual && Gbl.PosicionActual < r.Primero(columna + 1);
    const i32 alto = c.Height() - 2 * MARGEN;
    const i32 pintado =
        std::max(1, static_cast<i32>(NivelDeColumna(r, columna) * static_cast<float>(alto) / 100));
    const i32 x = r.X(columna), paso = r.X(columna + 1) - x;
    const i32 aba = c.Height() - MARGEN - 1;
    const i32 hueco = paso >= PASO_CON_HUECO ? 2 : 1;
    c.Line(LLENA, x, aba - pintado + 1, x + paso - hueco, aba, actual ? TERRACOTA : COBALTO_CLARO);
}

// ---------------------------------------------------------------- the record to beat

// Was it a puzzle of a picture, from need or by choice?
bool EsDeImagen(const RegistroHistorico& r) {
    return JuegoEnCurso().Imagen == UsoDeImagen::Necesario || r.Fondo == FONDO_IMAGEN;
}

// The same picture, or numbers, letters, model, cut into as many pieces.
bool EsElMismo(const RegistroHistorico& a, const RegistroHistorico& b) {
    if (a.Total != b.Total) return false;
    if (JuegoEnCurso().TieneModos) return a.Modelo == b.Modelo;
    const bool imagen = EsDeImagen(a);
    if (JuegoEnCurso().EligeFondo && a.Fondo != b.Fondo) return false;
    return !imagen || Minusculas(a.Fichero) == Minusculas(b.Fichero);
}

const char* QueFondo(const RegistroHistorico& r) {
    if (JuegoEnCurso().TieneModos) return "este modelo";
    if (EsDeImagen(r)) return "esta imagen";
    return r.Fondo == FONDO_LETRAS ? "letras" : "números";
}

std::string MejorTiempo(const RegistroHistorico& actual) {
    const RegistroHistorico* mejor = &actual;
    for (i32 i = 0; i <= Gbl.UltimoHistorico; ++i) {
        const RegistroHistorico& r = Gbl.Historico[i];
        if (EsElMismo(actual, r) && r.Segundos < mejor->Segundos) mejor = &r;
    }
    return std::string("Mejor tiempo con ") + QueFondo(actual) + " y " +
           std::to_string(actual.Total) + " piezas: " + TextoDuracion(mejor->Segundos) + " (" +
           Trim(mejor->Jugador) + ")";
}

// ---------------------------------------------------------------- travel buttons

constexpr i32 BOTON_ARRIBA = 1, BOTON_LADO = 24, BOTON_PASO = 29;
constexpr i32 BOTONES = 4;
constexpr i32 FLECHA = 7;  // half its height, and its width

i32 BotonIzq(i32 boton) {
    return 1 + (boton - 1) * BOTON_PASO;
}

// A triangle of FLECHA columns with its point at x; `sentido` -1 left, 1 right.
void PintaFlecha(Cuadro& c, i32 x, i32 y, i32 sentido) {
    for (i32 i = 0; i < FLECHA; ++i)
        c.Line(RECTA, x - sentido * i, y - i, x - sentido * i, y + i, COBALTO);
}

void PintaBoton(Cuadro& c, i32 boton, bool pulsado) {
    const i32 izq = BotonIzq(boton), arr = BOTON_ARRIBA;
    const i32 der = izq + BOTON_LADO - 1, aba = arr + BOTON_LADO - 1;
    c.Line(LLENA, izq, arr, der, aba, pulsado ? ESMALTE_OSCURO : ESMALTE);
    c.Line(RECTA | pluma::Caja, izq, arr, der, aba, pulsado ? BLANCO : GRIS);
    const Color borde = pulsado ? GRIS : BLANCO;
    c.Line(RECTA, izq, arr, der - 1, arr, borde);
    c.Line(RECTA, izq, arr, izq, aba - 1, borde);
    const i32 sentido = boton <= 2 ? -1 : 1;
    const i32 baja = pulsado ? 1 : 0;
    const i32 cx = izq + BOTON_LADO / 2 + baja, cy = arr + BOTON_LADO / 2 + baja;
    const bool hastaElFinal = boton == 1 || boton == BOTONES;
    const i32 punta = cx + sentido * (hastaElFinal ? 2 : 4);
    PintaFlecha(c, punta, cy, sentido);
    if (hastaElFinal)
        c.Line(LLENA, punta + sentido * 2, cy - FLECHA + 1, punta + sentido * 3, cy + FLECHA - 1,
               COBALTO);
}

}  // namespace

void DibujaBarras(Cuadro& cuadro) {
    cuadro.PonBackColor(PAPEL_LINEAS);
    cuadro.ToolTipText.clear();
    const Reparto r(cuadro);
    for (i32 i = 0; i < r.columnas; ++i) PintaBarra(cuadro, r, i);
    if (Gbl.PosicionActual < 0 || Gbl.PosicionActual >= r.registros) return;
    cuadro.ToolTipText = " " + MejorTiempo(RegistroEn(Gbl.PosicionActual)) + " ";
}

i32 BarraEn(const Cuadro& cuadro, float x) {
    const Reparto r(cuadro);
    const i32 punto = static_cast<i32>(x);
    for (i32 i = 0; i < r.columnas; ++i)
        if (punto >= r.X(i) && punto < r.X(i + 1)) return r.Primero(i);
    return -1;
}

void DibujaAdeAtr(Cuadro& cuadro, i16 pulsado) {
    cuadro.PonBackColor(CREMA_VENTANA);
    for (i32 i = 1; i <= BOTONES; ++i) PintaBoton(cuadro, i, i == pulsado);
}

i16 BotonAdeAtrEn(float x, float y) {
    const auto cabe = [](float v, i32 desde) {
        return v >= static_cast<float>(desde) && v < static_cast<float>(desde + BOTON_LADO);
    };
    for (i16 i = 1; i <= BOTONES; ++i)
        if (cabe(x, BotonIzq(i)) && cabe(y, BOTON_ARRIBA)) return i;
    return 0;
}

}  // namespace tessario
