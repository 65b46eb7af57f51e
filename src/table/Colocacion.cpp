// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/Colocacion.h"

#include <algorithm>

#include "core/Errores.h"
#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Colocadas.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "pieces/Raster.h"
#include "platform/Plataforma.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"
#include "table/Raton.h"

namespace tessario {

namespace {

constexpr Color COLOR_BIEN = paleta::VERDE;
constexpr Color COLOR_MAL = paleta::ROJO;
constexpr i32 PIEZA_MENUDA = 40;  // a side under so many pixels gets a thin edge, one of 1 not 2
constexpr i32 TRAZO = 8;          // of the dashes: half as long along a row
constexpr i16 TECLA_V = 86;       // turns the parallelogram over
constexpr i16 PAUSA_GIRO = 110, PAUSA_COLOCADA = 15;  // ms

// Lies the pixel, and each at this distance from it, within the prepared piece?
bool Interior(i32 x, i32 y, i32 lejos) {
    const auto dentro = [](i32 i, i32 j) {
        return i >= 0 && j >= 0 && i < Pic_PiezaMascara.Width() && j < Pic_PiezaMascara.Height() &&
               Pic_PiezaMascara.Fila(j)[i] == 0;
    };
    return dentro(x - lejos, y) && dentro(x + lejos, y) && dentro(x, y - lejos) &&
           dentro(x, y + lejos);
}

// The edge of the prepared piece: an unbroken black line around what lies right, black and cream
// dashes around the rest, so that the two are told apart without their colours. A border of the
// piece's own stays.
void Contornea(bool enSitio) {
    const i32 w = Pic_PiezaMascara.Width(), h = Pic_PiezaMascara.Height();
    const bool menuda = std::min(w, h) < PIEZA_MENUDA;
    const Pixel lisa = PixelDe(Pic_PiezaColor.BackColor());
    for (i32 y = 0; y < h; ++y)
        for (i32 x = 0; x < w; ++x) {
            Pixel& punto = Pic_PiezaImagen.Fila(y)[x];
            if (punto != lisa || Pic_PiezaMascara.Fila(y)[x] != 0) continue;
            if (Interior(x, y, 1) && (menuda || Interior(x, y, 2))) continue;
            // Dashes along any line but the steep one of slope 2.
            const bool claro = !enSitio && (2 * x + y) / TRAZO % 2 != 0;
            punto = PixelDe(claro ? paleta::CREMA : paleta::NEGRO);
        }
}

void MuestraPieza(i16 piece) {
    const bool enSitio = PiezaEnSuSitio(piece);
    const Color color = enSitio ? COLOR_BIEN : COLOR_MAL;
    if (Pic_PiezaColor.BackColor() != color) Pic_PiezaColor.PonBackColor(color);
    PreparaPieza(piece);
    if (Gbl.MostrandoColocadas) Contornea(enSitio);
    PintaPieza(Pic_Imagen, piece);
    MuestraCaja(CajaDePieza(piece));
    Sistema().Presenta();  // the player sees the table change piece by piece
}

// Through the table's own events, as the player would do it: turned over, turned.
void OrientaPieza(i16 piece) {
    const Pieza& z = Gbl.Piezas[piece];
    if (z.Volteo != z.VolteoBien) {
        Sigue([] { Pic_Trabajo_KeyPress(TECLA_V); });
        Pausa(PAUSA_GIRO);
    }
    if (z.Giro != z.GiroBien) {
        Gbl.PiezaActual = piece;
        Sigue([&] { Pic_Trabajo_MouseDown(BOTON_DERECHO, 0, z.X, z.Y); });
        Pausa(PAUSA_GIRO);
    }
}

void ColocaPieza(i16 piece) {
    OrientaPieza(piece);
    const Pieza z = Gbl.Piezas[piece];
    RegistraMovimiento(z.X, z.Y, z.Giro, z.Volteo, z.XBien, z.YBien, z.GiroBien, z.VolteoBien);
    DeslizaPieza(z.X, z.Y, z.XBien, z.YBien, piece);
    SonidoJuego(0, sonido::EN_SITIO);
    MuestraColocadas();
    Pausa(PAUSA_COLOCADA);
}

}  // namespace

void MostrarPiezasBienoMal() {
    if (Pic_PiezaColor.Width() != Pic_Bitmap.Width() ||
        Pic_PiezaColor.Height() != Pic_Bitmap.Height())
        Pic_PiezaColor.Tamano(Pic_Bitmap.Width(), Pic_Bitmap.Height());
    if (const auto orden = JuegoEnCurso().OrdenDePintado) {
        for (const i16 piece : orden()) MuestraPieza(piece);
    } else {
        for (i32 i = Gbl.NumPiezas; i >= 1; --i) MuestraPieza(Gbl.OrdenPiezas[i]);
    }
}

void ResuelvePuzzle() {
    if (const auto resuelve = JuegoEnCurso().Resuelve) return resuelve();
    Gbl.TareaAutomatica = true;
    // Raising the indices in ascending order visits every piece exactly once.
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
        SubePieza(i);
        const i16 piece = Gbl.OrdenPiezas[1];
        if (!PiezaEnSuSitio(piece)) ColocaPieza(piece);
        Gbl.ArrastrandoPieza = false;  // no piece is in hand here: a release drops none
        DejaPasarEventos();
        if (!Gbl.ResolviendoPuzzle) break;
    }
    Gbl.PuzzleArchivable = Gbl.ArrastrandoPieza = Gbl.SoltandoPieza = false;
    if (Gbl.PiezasColocadas == Gbl.NumPiezas) EntraEnCompleto();
    Gbl.ResolviendoPuzzle = Gbl.TareaAutomatica = false;
}

}  // namespace tessario
