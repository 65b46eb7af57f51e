// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Ampliacion.h"

#include <algorithm>

#include "core/PuzzGbl.h"
#include "core/Superficies.h"

namespace tessario {

namespace {

// No picture of a puzzle is larger than this, however large the numbers of a damaged record.
constexpr double PIXELES_MAXIMOS = 24.0 * 1024 * 1024;

}  // namespace

void TamanoRazonable(Superficie& s, double ancho, double alto) {
    const double real =
        static_cast<double>(Pic_FonTamReal.Width()) * static_cast<double>(Pic_FonTamReal.Height());
    if (ancho > 0 && alto > 0 && ancho * alto > std::max(PIXELES_MAXIMOS, real))
        throw ErrorEjecucion(ERROR_MEMORIA);
    s.Tamano(EnteroLargo(ancho), EnteroLargo(alto));
}

Punto TamanoConZoom() {
    const double zoom = Gbl.ZoomImagen;
    return {EnteroLargo(Int(Gbl.AnchoImagen * zoom / 100.0) + Gbl.MargenX),
            EnteroLargo(Int(Gbl.AltoImagen * zoom / 100.0) + Gbl.MargenY)};
}

void AmpliaImagen() {
    const Punto t = TamanoConZoom();
    Pic_FonTamModi.PonPicture(nullptr);
    TamanoRazonable(Pic_FonTamModi, t.x, t.y);
    Pic_FonTamModi.Cls();
    StretchBlt(Pic_FonTamModi, Gbl.MargenX, Gbl.MargenY, t.x - Gbl.MargenX, t.y - Gbl.MargenY,
               Pic_FonTamReal, 0, 0, Pic_FonTamReal.Width(), Pic_FonTamReal.Height(), SRCCOPY);
    Pic_FonTamModi.PonPicture(Pic_FonTamModi.Image());
}

void VaciaImagen() {
    Pic_FonTamModi.Tamano(IMAGEN_ANCHO_MIN, IMAGEN_ALTO_MIN);
    Pic_FonTamModi.PonPicture(nullptr);
}

}  // namespace tessario
