// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/Adornos.h"

#include "core/Cadenas.h"
#include "core/Numeros.h"
#include "core/Paleta.h"
#include "core/Superficies.h"

namespace tessario {

namespace {

using paleta::BLANCO, paleta::GRIS;
constexpr int RECTA = pluma::Desde | pluma::ConColor;
constexpr int CAJA_DESDE = RECTA | pluma::Relativo | pluma::Caja;

// The long button's tile in Pic_BmpVario: a left part with its edge, a column to repeat, and a
// right edge.
namespace tesela {
constexpr i32 Suelto = 30, Pulsado = 54;  // rows
constexpr i32 Izquierda = 102, AnchoIzquierda = 129;
constexpr i32 Relleno = 229;
constexpr i32 Derecha = 231, AnchoDerecha = 2;
}  // namespace tesela

constexpr i32 ROTULO_X = 9, ROTULO_SUELTO = 4, ROTULO_PULSADO = 5;
constexpr i32 TITULO_MEDIO = 7;  // row of the frame's upper side, half-way down its title

}  // namespace

void MarcoVentana(Superficie& ventana) {
    const i32 der = ventana.Width() - 1;
    const i32 aba = ventana.Height() - 1;
    ventana.Line(RECTA, 0, 0, der, 0, BLANCO);
    ventana.Line(RECTA, 0, 0, 0, aba, BLANCO);
    ventana.Line(RECTA, der, 0, der, aba, GRIS);
    ventana.Line(RECTA, 0, aba, der, aba, GRIS);
}

void MarcoPanel(Superficie& destino, const std::string& titulo) {
    destino.PonBackColor(FONDO_VENTANA);
    destino.FillSolido = false;
    const i32 ancho = destino.Width() - 2;
    const i32 alto = destino.Height() - TITULO_MEDIO - 2;
    destino.Line(CAJA_DESDE, 0, TITULO_MEDIO, ancho, alto, BLANCO);
    destino.Line(CAJA_DESDE, 1, TITULO_MEDIO + 1, ancho, alto, GRIS);
    const std::string rotulo = " " + Trim(titulo) + "  ";
    const double x = Int((destino.Width() - destino.TextWidth(rotulo)) / 2.0);
    TextoConSombra(destino, x, 0, rotulo, false);
}

void TextoConSombra(Superficie& destino, double x, double y, const std::string& texto,
                    bool transparente) {
    destino.ForeColor = BLANCO;
    destino.FillSolido = false;
    destino.FontTransparent = transparente;
    destino.CurrentX = x;
    destino.CurrentY = y;
    destino.Print(texto);
    destino.ForeColor = paleta::tinta::GRUPO.Texto;
    destino.FontTransparent = true;
    destino.CurrentX = x + 1;
    destino.CurrentY = y + 1;
    destino.Print(texto);
}

void DibujaBotonLargo(Superficie& boton, bool pulsado) {
    const i32 fila = pulsado ? tesela::Pulsado : tesela::Suelto;
    const i32 ancho = boton.Width();
    const auto copia = [&](i32 x, i32 columnas, i32 desde) {
        BitBlt(boton, x, 0, columnas, ALTO_BOTON_LARGO, Pic_BmpVario, desde, fila, SRCCOPY);
    };
    copia(0, tesela::AnchoIzquierda, tesela::Izquierda);
    for (i32 x = tesela::AnchoIzquierda; x < ancho - tesela::AnchoDerecha; ++x)
        copia(x, 1, tesela::Relleno);
    copia(ancho - tesela::AnchoDerecha, tesela::AnchoDerecha, tesela::Derecha);
}

void PintaBotonLargo(Superficie& boton, const std::string& rotulo, bool pulsado) {
    DibujaBotonLargo(boton, pulsado);
    TextoConSombra(boton, ROTULO_X, pulsado ? ROTULO_PULSADO : ROTULO_SUELTO, rotulo, true);
}

}  // namespace tessario
