// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Marco.h"

#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "panel/Adornos.h"
#include "platform/Plataforma.h"

namespace tessario {

namespace {

constexpr i32 PASO_TESELA = 49;
constexpr i32 TITULO_ARRIBA = 8;
// The long button's face in Pic_BmpVario.
constexpr i32 LARGA_X = 102, LARGA_ANCHO = 131, LARGA_SUELTA = 30, LARGA_PULSADA = 54;
constexpr Fuente LETRA_TITULO{Familia::Sans, 13, true, false};
constexpr Color SOMBRA = paleta::GRIS, LUZ = paleta::BLANCO;
using paleta::COBALTO, paleta::TERRACOTA;

}  // namespace

void PreparaVentana(Ventana& v, i32 ancho, i32 alto) {
    CargaTeselas();
    v.Tamano(ancho, alto);
    v.Left = (Gbl.AnchoPantalla - ancho) / 2;
    v.Top = (Gbl.AltoPantalla - alto) / 2;
    v.PonBackColor(CREMA_VENTANA);
    EnmarcaVentana(v);
}

void EnmarcaVentana(Ventana& v) {
    constexpr int recta = pluma::Desde | pluma::ConColor;
    const i32 der = v.Width() - 2;
    const i32 aba = v.Height() - 2;
    v.Line(recta | pluma::Caja, 0, 0, der + 1, aba + 1, TERRACOTA);
    v.Line(recta | pluma::Caja, 1, 1, der, aba, LUZ);
    v.Line(recta, der, 1, der, aba, SOMBRA);
    v.Line(recta, 1, aba, der, aba, SOMBRA);
}

void TitulaVentana(Ventana& v, i32 x, const std::string& titulo) {
    v.Font = LETRA_TITULO;
    v.ForeColor = paleta::tinta::TITULO.Texto;
    const i32 mitad = v.TextWidth(titulo) / 2;
    v.CurrentX = x - mitad;
    v.CurrentY = TITULO_ARRIBA;
    v.Print(titulo);
}

void HundeEn(Ventana& v, const Control& c) {
    constexpr int caja = pluma::Desde | pluma::ConColor | pluma::Caja;
    const i32 der = c.Left + c.Width();
    const i32 aba = c.Top + c.Height();
    v.Line(caja, c.Left - 1, c.Top - 1, der, aba, LUZ);
    v.Line(caja & ~pluma::Caja, c.Left - 1, c.Top - 1, der - 1, c.Top - 1, SOMBRA);
    v.Line(caja & ~pluma::Caja, c.Left - 1, c.Top - 1, c.Left - 1, aba - 1, SOMBRA);
}

void ReiniciaBoton(Cuadro& boton, const char* nombre, const char* accesible) {
    boton = Cuadro{};
    boton.Nombre = nombre;
    boton.NombreAccesible = accesible;
    boton.TabStop = true;
    PonCursor(boton, cursor::MANO_INDICE);
}

void ColocaBoton(Cuadro& boton, Tesela tesela, const Ventana& v, i32 derecha) {
    boton.Tamano(LADO_BOTON, LADO_BOTON);
    boton.Mueve(derecha - LADO_BOTON, v.Height() - PIE_VENTANA - LADO_BOTON);
    BitBlt(boton, 0, 0, LADO_BOTON, LADO_BOTON, Pic_BmpBoton, tesela * PASO_TESELA, PASO_TESELA,
           SRCCOPY);
}

void PintaTeselaLarga(Superficie& boton, bool pulsada) {
    StretchBlt(boton, 0, 0, boton.Width(), boton.Height(), Pic_BmpVario, LARGA_X,
               pulsada ? LARGA_PULSADA : LARGA_SUELTA, LARGA_ANCHO, ALTO_BOTON_LARGO, SRCCOPY);
}

void SaleDe(Ventana& v) {
    SonidoJuego(1, sonido::BOTON);
    Sistema().Cierra(v);
}

void SaleConEscape(Ventana& v, i16 caracter) {
    constexpr i16 escape = 27;
    if (caracter == escape) SaleDe(v);
}

void AyudaDesdeVentana(i32 tema) {
    SonidoJuego(1, sonido::BOTON);
    Ayuda(tema);
}

}  // namespace tessario
