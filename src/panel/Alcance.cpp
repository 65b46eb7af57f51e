// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/Alcance.h"

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Colocadas.h"
#include "pieces/Formas.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

// Can the centre be seen at some position of the scroll bars? The strip moves with the view, the
// hint panel can be closed.
bool Alcanzable(i16 piece) {
    const Pieza& p = Gbl.Piezas[piece];
    const double cx = p.X - Gbl.SalienteX + AnchoDePieza(piece, p.Giro, p.Volteo) / 2.0;
    const double cy = p.Y - Gbl.SalienteY + AltoDePieza(piece, p.Giro, p.Volteo) / 2.0;
    const i32 recorridoX = BarraHor.Visible ? BarraHor.Max : 0;
    const i32 recorridoY = BarraVer.Visible ? BarraVer.Max : 0;
    if (cx < 0 || cy < 0 || cy > BarraHor.Top + recorridoY) return false;
    const bool bajoLaTira = cy < Pic_Botonera.Height();
    return cx <= (bajoLaTira ? Pic_Botonera.Left : BarraVer.Left) + recorridoX;
}

// The piece stands elsewhere than where its last move left it: the log leads there instead. The
// recorder is off when a table is laid, so that no move lies beyond the last.
void SigueElRegistro(i16 piece) {
    const Pieza& p = Gbl.Piezas[piece];
    for (i32 i = Gbl.NumMovimientos; i >= 1; --i) {
        Movimiento& m = Gbl.Movimientos[i];
        if (m.Pieza != piece) continue;
        m.XDespues = p.X;
        m.YDespues = p.Y;
        return;
    }
}

}  // namespace

bool LlevaALaVista(i16 piece) {
    Pieza& p = Gbl.Piezas[piece];
    const double w = AnchoDePieza(piece, p.Giro, p.Volteo);
    const double h = AltoDePieza(piece, p.Giro, p.Volteo);
    const i32 valorV = BarraVer.Value;
    const i32 valorH = BarraHor.Value;
    i32 limiteY = BarraHor.Top;
    i32 limiteX = BarraVer.Left;
    if (Pic_Botonera.Height() + valorV > p.Y + h / 2) limiteX = Pic_Botonera.Left;
    // Deliberate: the panel's Top holds the scroll already, and it is added once more below.
    if (Pic_Sugerencia.Width() + valorH > p.X && Gbl.VentanaInformacion)
        limiteY = Pic_Sugerencia.Top;
    const Pieza antes = p;
    const double sx = Gbl.SalienteX;
    const double sy = Gbl.SalienteY;
    if (p.Y - sy + h / 2 < valorV) p.Y = Entero(valorV + sy - h / 2);
    if (p.Y + h / 2 - sy > limiteY + valorV) p.Y = Entero(limiteY + valorV - h / 2 + sy);
    if (p.X - sx + w / 2 < valorH) p.X = Entero(valorH + sx - w / 2);
    if (p.X + w / 2 - sx > limiteX + valorH) p.X = Entero(limiteX + valorH - w / 2 + sx);
    return !(p == antes);
}

void TraeLoInalcanzable() {
    if (JuegoEnCurso().Giros == 1) return;  // its pieces stand in cells
    bool alguna = false;
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
        if (PiezaEnSuSitio(i) || Alcanzable(i) || !LlevaALaVista(i)) continue;
        SigueElRegistro(i);
        alguna = true;
    }
    if (alguna) ColocaPiezas(1);
}

}  // namespace tessario
