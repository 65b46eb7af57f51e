// The part of the recorder that every game writes to, panel or no panel: the log itself and the
// finished look. Declared in Grabadora.h.
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

constexpr i32 AMPLIACION_REGISTRO = 100;  // entries by which a full log grows

bool TangramSinBordes() {
    return Gbl.JuegoActual == JuegoTangram && !Gbl.DibujarBorde;
}

// The puzzle's area of the table's picture, from another surface.
void CopiaEnImagen(const Superficie& origen) {
    BitBlt(Pic_Imagen, 0, 0, Gbl.AnchoPuzzle, Gbl.AltoPuzzle, origen, 0, 0, SRCCOPY);
}

}  // namespace

void RegistraMovimiento(i16 XAntes, i16 YAntes, i16 GiroAntes, i16 VolteoAntes, i16 XDespues,
                        i16 YDespues, i16 GiroDespues, i16 VolteoDespues) {
    const i16 piece = Gbl.OrdenPiezas[1];
    Gbl.NumMovimientos = Corto(Gbl.NumMovimientos + 1);
    if (Gbl.NumMovimientos >= Gbl.Movimientos.Superior())
        Gbl.Movimientos.Amplia(Gbl.Movimientos.Superior() + AMPLIACION_REGISTRO);
    Movimiento m{piece,    XAntes,   YAntes,      GiroAntes,    VolteoAntes,
                 XDespues, YDespues, GiroDespues, VolteoDespues};
    if (Gbl.JuegoActual == JuegoDeslizantes)
        m.GiroAntes = m.VolteoAntes = m.GiroDespues = m.VolteoDespues = 0;
    Gbl.Movimientos[Gbl.NumMovimientos] = m;
    Gbl.MovidoSinCopia = true;
}

void EntraEnCompleto() {
    Gbl.PuzzleTerminado = true;
    if (Gbl.JuegoActual == JuegoMoviles) {
        // The picture itself, whole: the joints disappear.
        CopiaEnImagen(Pic_FonTamModi);
    } else if (TangramSinBordes()) {
        Gbl.DibujarBorde = true;
        Sigue([] { ColocaPiezas(2); });
        Gbl.DibujarBorde = false;
    }
    Pic_Trabajo_Paint();
}

void SaleDeCompleto() {
    Gbl.PuzzleTerminado = false;
    if (Gbl.JuegoActual == JuegoMoviles) {
        CopiaEnImagen(Pic_Bitmap);
        Pic_Trabajo_Paint();
    } else if (TangramSinBordes()) {
        ColocaPiezas(1);
    }
}

}  // namespace tessario
