// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/Registro.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <variant>

#include "core/Cadenas.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "records/Texto.h"
#include "rules/Juego.h"

namespace tessario {

namespace {

// ---------------------------------------------------------------- columns

using Dato = std::variant<i16*, i32*, Color*, Booleano*, float*, std::string*>;

struct Campo {
    Columnas donde;
    Dato dato;
};

constexpr i32 ANCHO_REGISTRO = 140;
constexpr i32 ANCHO_ENTRADA = 23;  // of the piece list and of the move list
constexpr Color COLOR_MAXIMO = 0xFFFFFF;

const Campo REGISTRO[] = {
    {1, 9, &Gbl.NombreJugador},    {10, 8, &Gbl.ColorFondo},       {18, 8, &Gbl.ColorPiezas},
    {26, 8, &Gbl.ColorContraste},  {34, 2, &Gbl.MostrarMuestra},   {36, 4, &Gbl.NumMovimientos},
    {40, 4, &Gbl.ModeloActual},    {45, 3, &Gbl.ZoomImagen},       {48, 3, &Gbl.PiezasPorLado},
    {51, 2, &Gbl.FormaPiezas},     {53, 3, &Gbl.NumPiezas},        {56, 8, &Gbl.SegundosJuego},
    {64, 2, &Gbl.PuzzleTerminado}, {66, 2, &Gbl.PuzzleArchivable}, {68, 1, &Gbl.ModoJuego},
    {69, 1, &Gbl.TipoFondo},       {72, 4, &Gbl.HuecoX},           {76, 4, &Gbl.HuecoY},
    {80, 4, &Gbl.AnchoImagen},     {84, 4, &Gbl.AltoImagen},       {88, 2, &Gbl.JuegoActual},
    {91, 3, &Gbl.FactorAtraccion}, {94, 2, &Gbl.PermitirGiro},     {96, 2, &Gbl.DibujarBorde},
    {98, 2, &Gbl.AtraccionPiezas}, {100, 25, &Gbl.NombrePuzzle},   {125, 7, &Gbl.Dificultad},
};

// The numbers of an entry of one of the two lists.
constexpr CampoDe<Pieza> CAMPOS_PIEZA[] = {{1, 4, &Pieza::X},         {5, 4, &Pieza::Y},
                                           {9, 1, &Pieza::Giro},      {10, 1, &Pieza::Volteo},
                                           {11, 4, &Pieza::XBien},    {15, 4, &Pieza::YBien},
                                           {19, 1, &Pieza::GiroBien}, {20, 1, &Pieza::VolteoBien}};
constexpr Columnas ORDEN{21, 3};

constexpr CampoDe<Movimiento> CAMPOS_MOVIMIENTO[] = {
    {1, 3, &Movimiento::Pieza},         {4, 4, &Movimiento::XAntes},
    {8, 4, &Movimiento::YAntes},        {12, 1, &Movimiento::GiroAntes},
    {13, 1, &Movimiento::VolteoAntes},  {14, 4, &Movimiento::XDespues},
    {18, 4, &Movimiento::YDespues},     {22, 1, &Movimiento::GiroDespues},
    {23, 1, &Movimiento::VolteoDespues}};

// ---------------------------------------------------------------- writing

// Two digits, a point, four digits.
std::string TextoDificultad(float valor) {
    char cifras[64];
    const auto r = std::to_chars(cifras, cifras + sizeof cifras, static_cast<double>(valor),
                                 std::chars_format::fixed, 4);
    const std::string texto = r.ec == std::errc() ? std::string(cifras, r.ptr) : "0.0000";
    return texto.find('.') == 1 ? "0" + texto : texto;
}

struct Escritor {
    i32 ancho;
    std::string operator()(const i16* v) const { return Ceros(*v, ancho); }
    std::string operator()(const i32* v) const { return Ceros(*v, ancho); }
    std::string operator()(const Color* v) const { return Ceros(static_cast<i32>(*v), ancho); }
    std::string operator()(const Booleano* v) const { return TextoLogico(*v); }
    std::string operator()(const float* v) const { return TextoDificultad(*v); }
    std::string operator()(const std::string* v) const { return A1252(*v); }
};

std::string Blancos(i32 cuantos) {
    return std::string(static_cast<std::size_t>(std::max(cuantos, 0)), ' ');
}

// ---------------------------------------------------------------- reading

struct Lector {
    std::string_view texto;
    void operator()(i16* v) const { *v = Corto(NumeroDeCampo(texto)); }
    void operator()(i32* v) const { *v = NumeroDeCampo(texto); }
    void operator()(Color* v) const {
        const i32 n = NumeroDeCampo(texto);
        if (n < 0 || static_cast<Color>(n) > COLOR_MAXIMO) throw ErrorEjecucion(ERROR_DESBORDE);
        *v = static_cast<Color>(n);
    }
    void operator()(Booleano* v) const { *v = LogicoDeCampo(texto); }
    void operator()(float* v) const {
        const double x = RealDeCampo(texto);
        if (std::abs(x) > std::numeric_limits<float>::max()) throw ErrorEjecucion(ERROR_DESBORDE);
        *v = static_cast<float>(x);
    }
    void operator()(std::string* v) const { *v = Trim(De1252(texto)); }
};

// Entry i of a list.
std::string_view Entrada(std::string_view linea, i32 i) {
    return DeColumnas(linea, {(i - 1) * ANCHO_ENTRADA + 1, ANCHO_ENTRADA});
}

void LeeCampo(std::string_view entrada, Columnas donde, i16& destino) {
    Sigue([&] { destino = Corto(NumeroDeCampo(DeColumnas(entrada, donde))); });
}

template <class T, std::size_t N>
void LeeCampos(std::string_view entrada, const CampoDe<T> (&campos)[N], T& destino) {
    for (const CampoDe<T>& c : campos) LeeCampo(entrada, c.donde, destino.*c.dato);
}

}  // namespace

std::string EscribeRegistro() {
    std::string linea = Blancos(ANCHO_REGISTRO);
    for (const Campo& c : REGISTRO)
        PonColumnas(linea, c.donde, std::visit(Escritor{c.donde.ancho}, c.dato));
    return linea;
}

std::string EscribePiezas() {
    std::string linea;
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i) {
        std::string entrada = Blancos(ANCHO_ENTRADA);
        Sigue([&] {
            PonCampos(entrada, CAMPOS_PIEZA, Gbl.Piezas[i]);
            PonColumnas(entrada, ORDEN, Gbl.OrdenPiezas[i]);
        });
        linea += entrada;
    }
    return linea;
}

std::string EscribeMovimientos() {
    std::string linea;
    for (i32 i = 1; i <= Gbl.NumMovimientos; ++i) {
        std::string entrada = Blancos(ANCHO_ENTRADA);
        Sigue([&] { PonCampos(entrada, CAMPOS_MOVIMIENTO, Gbl.Movimientos[i]); });
        linea += entrada;
    }
    return linea;
}

void LeeRegistro(const std::string& linea) {
    const i16 juego = Gbl.JuegoActual;
    for (const Campo& c : REGISTRO)
        Sigue([&] { std::visit(Lector{DeColumnas(linea, c.donde)}, c.dato); });
    if (EsJuego(Gbl.JuegoActual)) return;
    // No game at all: the one in play stays, so that the defaults know whose they are.
    Gbl.JuegoActual = juego;
    PonErrorPendiente(ERROR_TIPO);
}

void LeePiezas(const std::string& linea) {
    Sigue([] {
        if (Gbl.NumPiezas < 1) throw ErrorEjecucion(ERROR_INDICE);
        Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
        Gbl.OrdenPiezas.Redimensiona(Gbl.NumPiezas);
    });
    // The arrays bound the walk, not the number: a refused number leaves them as they were.
    const i32 cuantas = std::min<i32>(Gbl.NumPiezas, Gbl.Piezas.Superior());
    for (i32 i = 1; i <= cuantas; ++i) {
        const std::string_view entrada = Entrada(linea, i);
        LeeCampos(entrada, CAMPOS_PIEZA, Gbl.Piezas[i]);
        LeeCampo(entrada, ORDEN, Gbl.OrdenPiezas[i]);
    }
}

void LeeMovimientos(const std::string& linea) {
    if (Gbl.NumMovimientos < 0) {
        Gbl.NumMovimientos = 0;
        PonErrorPendiente(ERROR_INDICE);
    }
    Gbl.Movimientos.Redimensiona(Gbl.NumMovimientos);
    for (i32 i = 1; i <= Gbl.NumMovimientos; ++i)
        LeeCampos(Entrada(linea, i), CAMPOS_MOVIMIENTO, Gbl.Movimientos[i]);
}

}  // namespace tessario
