#include "table/Colocacion.h"

#include "core/Errores.h"
#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Colocadas.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "platform/Plataforma.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"
#include "table/Raton.h"

namespace tessario {

namespace {

constexpr Color COLOR_BIEN = paleta::VERDE;
constexpr Color COLOR_MAL = paleta::ROJO;
constexpr i16 TECLA_V = 86;                           // turns the parallelogram over
constexpr i16 PAUSA_GIRO = 110, PAUSA_COLOCADA = 15;  // ms

void MuestraPieza(i16 piece) {
    const Color color = PiezaEnSuSitio(piece) ? COLOR_BIEN : COLOR_MAL;
    if (Pic_PiezaColor.BackColor() != color) Pic_PiezaColor.PonBackColor(color);
    PonPieza(piece);
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
