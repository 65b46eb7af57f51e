// SPDX-License-Identifier: GPL-3.0-or-later
#include "pieces/Composicion.h"

#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "pieces/Formas.h"
#include "pieces/Raster.h"

namespace tessario {

namespace {

constexpr i16 PASO_DESLIZA = 14;  // pixels of one step of an automatic move, on each axis
constexpr i16 PAUSA_DESLIZA = 6;  // ms between two steps

void PonRegion(Region& r, const Rect& caja) {
    SetRectRgn(r, caja.Izq, caja.Arr, caja.Der, caja.Aba);
}

// One axis of the next step of an automatic move. `paso` is the step, 0 once the axis is used up;
// the last, short step ends exactly on the target.
i16 Avanza(i16 desde, i16 hasta, i16& paso) {
    if (desde == hasta) paso = 0;
    const i16 nuevo = Corto(desde - paso);
    return Sgn(nuevo - hasta) != Sgn(paso) ? hasta : nuevo;
}

// Under a clip the pieces below are drawn anew; the clip goes even when a piece fails.
class Recortado {
public:
    Recortado(Superficie& s, const Region& r) : s_(s) { SelectClipRgn(s_, &r); }
    ~Recortado() { SelectClipRgn(s_, nullptr); }
    Recortado(const Recortado&) = delete;
    Recortado& operator=(const Recortado&) = delete;

private:
    Superficie& s_;
};

}  // namespace

Rect CajaDePieza(i16 piece) {
    const Pieza& z = Gbl.Piezas[piece];
    const i16 ancho = AnchoDePieza(piece, z.Giro, z.Volteo);
    const i16 alto = AltoDePieza(piece, z.Giro, z.Volteo);
    return RectDe(z.X - Gbl.SalienteX, z.Y - Gbl.SalienteY, ancho, alto);
}

void PintaPieza(Superficie& destino, i16 piece) {
    const Pieza& z = Gbl.Piezas[piece];
    const i32 x = z.X - Gbl.SalienteX;
    const i32 y = z.Y - Gbl.SalienteY;
    const i32 w = Pic_PiezaMascara.Width();
    const i32 h = Pic_PiezaMascara.Height();
    if (Pic_PiezaFinal.Width() != w || Pic_PiezaFinal.Height() != h) Pic_PiezaFinal.Tamano(w, h);
    BitBlt(Pic_PiezaFinal, 0, 0, w, h, Pic_Imagen, x, y, SRCCOPY);
    BitBlt(Pic_PiezaFinal, 0, 0, w, h, Pic_PiezaMascara, 0, 0, SRCAND);
    BitBlt(Pic_PiezaFinal, 0, 0, w, h, Pic_PiezaImagen, 0, 0, SRCINVERT);
    BitBlt(destino, x, y, w, h, Pic_PiezaFinal, 0, 0, SRCCOPY);
}

void PonPieza(i16 piece) {
    PreparaPieza(piece);
    PintaPieza(Pic_Imagen, piece);
}

void MuestraCaja(const Rect& caja) {
    BitBlt(Pic_Trabajo, caja.Izq, caja.Arr, caja.Ancho(), caja.Alto(), Pic_Imagen, caja.Izq,
           caja.Arr, SRCCOPY);
}

void BorraPieza(i16 piece) {
    const Rect caja = CajaDePieza(piece);
    BitBlt(Pic_Imagen, caja.Izq, caja.Arr, caja.Ancho(), caja.Alto(), Pic_Fondo, caja.Izq, caja.Arr,
           SRCCOPY);
    PonRegion(Gbl.RegionAux2, caja);
    const Recortado recortado(Pic_Imagen, Gbl.RegionAux2);
    for (i32 i = Gbl.NumPiezas; i >= 1; --i) {
        const i16 p = Gbl.OrdenPiezas[i];
        if (p == piece) continue;
        // The boxes are what the intersection of the two regions would tell.
        if (Interseccion(caja, CajaDePieza(p)).Vacio()) continue;
        PonPieza(p);
    }
}

void TomaPieza(i16 x, i16 y, i16 piece) {
    Gbl.PiezaAux = Gbl.Piezas[piece];
    PreparaPieza(piece);
    PintaPieza(Pic_Trabajo, piece);
    BorraPieza(piece);
    PreparaPieza(piece);
    Gbl.XRaton = x;
    Gbl.YRaton = y;
    Gbl.ArrastrandoPieza = true;
}

void MuevePieza(i16 x, i16 y, i16 piece) {
    Pieza& z = Gbl.Piezas[piece];
    const Rect vieja = CajaDePieza(piece);
    Gbl.XViejo = Corto(vieja.Izq);
    Gbl.YViejo = Corto(vieja.Arr);
    z.X = Corto(z.X + x - Gbl.XRaton);
    z.Y = Corto(z.Y + y - Gbl.YRaton);
    const Rect nueva = CajaDePieza(piece);
    PintaPieza(Pic_Trabajo, piece);

    PonRegion(Gbl.RegionAux1, vieja);
    PonRegion(Gbl.RegionAux2, nueva);
    CombineRgn(Gbl.RegionAux3, Gbl.RegionAux1, Gbl.RegionAux2, RGN_DIFF);
    SelectClipRgn(Pic_Trabajo, &Gbl.RegionAux3);
    MuestraCaja(vieja);
    SelectClipRgn(Pic_Trabajo, nullptr);
    Gbl.XRaton = x;
    Gbl.YRaton = y;
}

void DeslizaPieza(i16 x0, i16 y0, i16 x1, i16 y1, i16 piece) {
    i16 dx = Corto(Sgn(x0 - x1) * PASO_DESLIZA);
    i16 dy = Corto(Sgn(y0 - y1) * PASO_DESLIZA);
    TomaPieza(x0, y0, piece);
    while (x0 != x1 || y0 != y1) {
        const i16 nx = Avanza(x0, x1, dx);
        const i16 ny = Avanza(y0, y1, dy);
        MuevePieza(nx, ny, piece);
        x0 = Gbl.XRaton = Gbl.Piezas[piece].X;
        y0 = Gbl.YRaton = Gbl.Piezas[piece].Y;
        Pausa(PAUSA_DESLIZA);
    }
    PintaPieza(Pic_Imagen, piece);
}

i16 PosicionEnOrden(i16 piece) {
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i)
        if (Gbl.OrdenPiezas[i] == piece) return Corto(i);
    return 0;
}

void SubePieza(i16 index) {
    if (index < 1) throw ErrorEjecucion(ERROR_INDICE);
    const i16 p = Gbl.OrdenPiezas[index];
    for (i32 i = index; i > 1; --i) Gbl.OrdenPiezas[i] = Gbl.OrdenPiezas[i - 1];
    Gbl.OrdenPiezas[1] = p;
}

void Pic_Trabajo_Paint() {
    // What neither surface has touched since the last time is equal in both already.
    const Rect tocado = Interseccion(Union(Pic_Imagen.TomaTocado(), Pic_Trabajo.TomaTocado()),
                                     Pic_Imagen.Limites());
    if (tocado.Vacio()) return;
    MuestraCaja(tocado);
    Pic_Trabajo.TomaTocado();  // the copy itself is no difference
}

void TiendeMesa(i32 ancho, i32 alto, const Imagen& suelo) {
    const std::initializer_list<Superficie*> mesas{&Pic_Imagen, &Pic_Trabajo, &Pic_Fondo};
    for (Superficie* const mesa : mesas) {
        mesa->Tamano(ancho, alto);
        mesa->PonBackColor(Gbl.ColorFondo);
        mesa->PonPicture(suelo);
        mesa->TomaTocado();  // they are equal: there is nothing to copy
    }
}

}  // namespace tessario
