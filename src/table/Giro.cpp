// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/Giro.h"

#include "core/PuzzGbl.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "pieces/Composicion.h"
#include "rules/Juego.h"

namespace tessario {

void GiraPieza() {
    const i16 piece = Gbl.PiezaActual;
    SubePieza(PosicionEnOrden(piece));
    BorraPieza(piece);
    Gbl.ArrastrandoPieza = false;

    const Juego& juego = JuegoEnCurso();
    Pieza& z = Gbl.Piezas[piece];
    const i16 ultimo = Corto(juego.Giros - 1);
    const i16 nuevo = Corto(z.Giro < ultimo ? z.Giro + 1 : z.Giro - ultimo);
    const Punto salto = juego.SaltoDeGiro(piece, nuevo);
    z.X = Corto(z.X + salto.x);
    z.Y = Corto(z.Y + salto.y);
    // An automatic run turns the piece straight to its right orientation.
    z.Giro = Gbl.ResolviendoPuzzle ? z.GiroBien : nuevo;

    PonPieza(piece);
    Pic_Trabajo_Paint();
    juego.SeparaPieza();
    MuestraColocadas();
    CambiaCrono(CRONO_MARCHA);
}

}  // namespace tessario
