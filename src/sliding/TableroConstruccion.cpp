// SPDX-License-Identifier: GPL-3.0-or-later
// The table of the sliding game: the solved board on Pic_Bitmap, the frame, the sample view.
#include <algorithm>
#include <string>

#include "core/Cadenas.h"
#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Botonera.h"
#include "panel/Desplazamiento.h"
#include "panel/Muestra.h"
#include "pieces/Composicion.h"
#include "platform/Plataforma.h"
#include "sliding/Tablero.h"

namespace tessario {

namespace {

// The labels' font: sizes tried, the text that is measured, and the share of the cell's width that
// it has to pass.
constexpr i16 LETRA_MENOR = 8, LETRA_MAYOR = 50;
constexpr const char* TEXTO_MEDIDO = "99";
constexpr double PARTE_DE_CELDA = 0.8;
// The rim around them, pixels, and the size from which on it is the wide one.
constexpr i32 CANTO_FINO = 1, CANTO_ANCHO = 2;
constexpr i16 LETRA_GRANDE = 24;

// The sunken frame around the board, pixels.
constexpr i16 GROSOR_MARCO = 3;
constexpr i32 FUERA_MARCO = 2;  // from the board to the frame's corner
constexpr i32 CRECE_MARCO = 3;  // by how much its sides are longer than the board's

// Paints the board's part of the picture on a rectangle. Deliberate: the picture in Pic_FonTamModi
// is taken from the margins on, not from its corner.
void EstiraImagen(Superficie& destino, i32 x, i32 y, i32 ancho, i32 alto) {
    const i32 anchoImagen = Pic_FonTamModi.Width() - Gbl.MargenX;
    const i32 altoImagen = Pic_FonTamModi.Height() - Gbl.MargenY;
    if (anchoImagen <= 0 || altoImagen <= 0 || ancho <= 0 || alto <= 0) return;
    StretchBlt(destino, x, y, ancho, alto, Pic_FonTamModi, Gbl.MargenX, Gbl.MargenY, anchoImagen,
               altoImagen, SRCCOPY);
}

void EligeLetra(Superficie& s) {
    s.Auxiliar = true;  // the labels go on to the pieces as plain pixels
    s.Font.Negrita = true;
    for (i16 tamano = LETRA_MENOR; tamano <= LETRA_MAYOR; ++tamano) {
        s.Font.Tamano = tamano;
        if (s.TextWidth(TEXTO_MEDIDO) > Gbl.AnchoCelda * PARTE_DE_CELDA) break;
    }
}

void PreparaMuestra() {
    Pic_Muestra.PonPicture(Pic_FonTamModi.Picture());
    Pic_Muestra.Tamano(Entero(Gbl.AnchoPuzzle / 2.0), Entero(Gbl.AltoPuzzle / 2.0));
    EstiraImagen(Pic_Muestra, 0, 0, Pic_Muestra.Width(), Pic_Muestra.Height());
    EnmarcaMuestra();
    Pic_Muestra.Mueve(Gbl.AnchoPantalla - Pic_Muestra.Width() - MUESTRA_AL_BORDE,
                      Gbl.AltoPantalla - Pic_Muestra.Height() - MUESTRA_AL_BORDE);
    Pic_Muestra.Visible = Gbl.MostrarMuestra;
}

// Drawn on a sheet as large as the frame, so that the table keeps no pixels yet.
Superficie MarcoHundido() {
    const i32 izq = Gbl.MargenX - FUERA_MARCO;
    const i32 arr = Gbl.MargenY - FUERA_MARCO;
    const i32 der = izq + Gbl.AnchoPuzzle + CRECE_MARCO;
    const i32 aba = arr + Gbl.AltoPuzzle + CRECE_MARCO;
    Superficie s(std::min<i32>(der + GROSOR_MARCO, Gbl.AnchoPantalla),
                 std::min<i32>(aba + GROSOR_MARCO, Gbl.AltoPantalla));
    s.PonBackColor(Gbl.ColorFondo);
    constexpr int recta = pluma::Desde | pluma::ConColor;
    s.DrawWidth = GROSOR_MARCO;
    s.Line(recta | pluma::Caja, izq, arr, der, aba, Gbl.ColorFondoClaro);
    s.Line(recta, izq, arr, der, arr, Gbl.ColorFondoOscuro);
    s.Line(recta, izq, arr, izq, aba, Gbl.ColorFondoOscuro);
    return s;
}

// The table fills the screen: this game never scrolls.
void PreparaMesaVacia() {
    TiendeMesa(Gbl.AnchoPantalla, Gbl.AltoPantalla, MarcoHundido().ImageJusta());
}

std::string Rotulo(i32 piece) {
    return Gbl.TipoFondo == FONDO_LETRAS ? Mid(Gbl.LetrasPiezas, piece, 1) : std::to_string(piece);
}

void EscribeEn(Superficie& s, i16 x, i16 y, Color color, const std::string& texto) {
    s.CurrentX = x;
    s.CurrentY = y;
    s.ForeColor = color;
    s.Print(texto);
}

// A rim around what EscribeRelieve will print there: black or white, whichever the light colour
// reads better on. The two colours of the relief are shades of the piece's own and would not stand
// out from it.
void EscribeCanto(Superficie& s, i16 x, i16 y, const std::string& texto) {
    const Color canto = paleta::Contrario(Gbl.ColorPiezasClaro);
    const i32 ancho = s.Font.Tamano >= LETRA_GRANDE ? CANTO_ANCHO : CANTO_FINO;
    const i32 desde = -1 - ancho;  // the relief itself reaches a pixel up and left
    for (i32 dy = desde; dy <= ancho; ++dy)
        for (i32 dx = desde; dx <= ancho; ++dx)
            if (dx == desde || dx == ancho || dy == desde || dy == ancho)
                EscribeEn(s, Corto(x + dx), Corto(y + dy), canto, texto);
}

// Two printings: the dark one stands a pixel up and to the left of the light one.
void EscribeRelieve(Superficie& s, i16 x, i16 y, const std::string& texto) {
    EscribeEn(s, Corto(x - 1), Corto(y - 1), Gbl.ColorPiezasOscuro, texto);
    EscribeEn(s, x, y, Gbl.ColorPiezasClaro, texto);
}

void PintaRotulo(Superficie& s, i32 piece) {
    const std::string texto = Rotulo(piece);
    const Pieza& p = Gbl.Piezas[piece];
    const i16 x = Entero((Gbl.AnchoCelda - s.TextWidth(texto)) / 2.0 + p.XBien);
    const i16 y = Entero((Gbl.AltoCelda - s.TextHeight(texto)) / 2.0 + p.YBien);
    EscribeCanto(s, x, y, texto);
    EscribeRelieve(s, x, y, texto);
}

}  // namespace

void PintaFondoCaras() {
    Pic_Bitmap.Tamano(Gbl.MargenX + Gbl.AnchoPuzzle, Gbl.MargenY + Gbl.AltoPuzzle);
    Pic_Bitmap.PonPicture(nullptr);
    Pic_Bitmap.PonBackColor(Gbl.ColorPiezas);
    if (Gbl.TipoFondo == FONDO_IMAGEN)
        EstiraImagen(Pic_Bitmap, Gbl.MargenX, Gbl.MargenY, Gbl.AnchoPuzzle, Gbl.AltoPuzzle);
    else
        EligeLetra(Pic_Bitmap);
}

void PintaRotulos() {
    if (Gbl.TipoFondo == FONDO_IMAGEN) return;
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i) PintaRotulo(Pic_Bitmap, i);
}

void CreaDeslizantes(i16 nuevo) {
    PintaFondoCaras();
    QuitaBarras();
    Pic_Cuadrito.Visible = false;
    Pic_Muestra.Visible = false;
    Sistema().Presenta();
    if (Gbl.TipoFondo == FONDO_IMAGEN) PreparaMuestra();
    PreparaMesaVacia();
    Gbl.AnchoPieza = Gbl.AnchoCelda;
    Gbl.AltoPieza = Gbl.AltoCelda;
    Gbl.SalienteX = Gbl.SalienteY = 0;
    Gbl.PasoOrdenar = Gbl.AnchoCelda;
    CargaBotonera();
    if (nuevo != 0) {
        DisponeTablero();
        BarajaDeslizantes();
    }
    PintaRotulos();
}

}  // namespace tessario
