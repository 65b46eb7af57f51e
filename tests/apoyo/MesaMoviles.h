// SPDX-License-Identifier: GPL-3.0-or-later
// A jigsaw on the table for tests: a picture whose pixel (x, y) tells its own place, all pieces at
// home in number order.
#pragma once

#include <memory>

#include "apoyo/Juegos.h"
#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "jigsaw/Corte.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "pieces/Raster.h"
#include "rules/Medidas.h"

namespace tessario {

// Never black, and different for every pixel up to 1023 by 767.
inline Pixel PixelDeMuestra(i32 x, i32 y) {
    return 0x400000U | static_cast<Pixel>(x) << 10U | static_cast<Pixel>(y);
}

inline Imagen ImagenDeMuestra(i32 ancho, i32 alto) {
    auto m = std::make_shared<Mapa>(ancho, alto);
    for (i32 y = 0; y < alto; ++y)
        for (i32 x = 0; x < ancho; ++x) m->Fila(y)[x] = PixelDeMuestra(x, y);
    return m;
}

class MesaMoviles : public PruebaBase {
protected:
    void Monta(i16 forma, i16 lado, i32 ancho, i32 alto, bool borde = false) {
        PonMoviles(forma, lado, ancho, alto);
        Gbl.AnchoPantalla = static_cast<i16>(P().ancho);
        Gbl.AltoPantalla = static_cast<i16>(P().alto);
        Gbl.DibujarBorde = borde;
        Pic_FonTamModi.Tamano(ancho, alto);
        Pic_FonTamModi.PonPicture(ImagenDeMuestra(ancho, alto));
        CalculaTamanos();
        Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
        Gbl.OrdenPiezas.Redimensiona(Gbl.NumPiezas);
        for (i16 p = 1; p <= Gbl.NumPiezas; ++p) {
            const i32 celda = (p - 1) / Gbl.PiezasPorCelda;
            Pieza& z = Gbl.Piezas[p];
            z.X = z.XBien = static_cast<i16>(celda % lado * Gbl.AnchoCelda);
            z.Y = z.YBien = static_cast<i16>(celda / lado * Gbl.AltoCelda);
            Gbl.OrdenPiezas[p] = p;
        }
        CreaMoviles(false);
    }
    // The seven pieces of the Tangram by the sizes of a screen, upright at (0, 0), nothing painted.
    void MontaTangram(i32 ancho, i32 alto) {
        PonTangram(Gbl.ModoJuego);
        Gbl.AnchoPantalla = static_cast<i16>(ancho);
        Gbl.AltoPantalla = static_cast<i16>(alto);
        CalculaTamanos();
        for (Superficie* s :
             {&Pic_Fondo, &Pic_Imagen, &Pic_Bitmap, static_cast<Superficie*>(&Pic_Trabajo)})
            s->Tamano(ancho, alto);
    }
    void Coloca(i16 piece, i16 x, i16 y, i16 giro = 0) {
        Gbl.Piezas[piece].X = x;
        Gbl.Piezas[piece].Y = y;
        Gbl.Piezas[piece].Giro = giro;
    }
    // The table with all pieces, bottom to top.
    void PintaTodo() {
        Pic_Imagen.Cls();
        for (i32 i = Gbl.NumPiezas; i >= 1; --i) {
            PreparaPieza(Gbl.OrdenPiezas[i]);
            PintaPieza(Pic_Imagen, Gbl.OrdenPiezas[i]);
        }
        Pic_Trabajo_Paint();
    }
};

inline bool Negro(i32 x, i32 y) {
    return Pic_PiezaMascara.Point(x, y) == 0;
}

}  // namespace tessario
