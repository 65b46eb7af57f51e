#include "table/Tutor.h"

#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "pieces/Composicion.h"
#include "pieces/Raster.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

constexpr i16 SONIDO_TUTOR = 55;
constexpr i32 DESTELLOS = 3;
constexpr i16 PAUSA_ANTES = 80, PAUSA_DESTELLO = 130, PAUSA_ENTRE = 170;

// The piece vanishes and its place in the picture is shown inverted; then all is as before.
void DestelloMoviles(i16 id) {
    BorraPieza(id);
    Pic_Trabajo_Paint();
    const Pieza& p = Gbl.Piezas[id];
    Pic_Trabajo.Line(pluma::Desde | pluma::Caja | pluma::Llena, p.XBien, p.YBien,
                     p.XBien + Gbl.AnchoCelda, p.YBien + Gbl.AltoCelda);
    SonidoJuego(1, SONIDO_TUTOR);
    Pausa(PAUSA_DESTELLO);
    // Deliberate: the piece comes back above its neighbours, though its place in the stacking
    // order is the old one; the next redraw of its surroundings puts that right.
    PonPieza(id);
    Pic_Trabajo_Paint();
    Pausa(PAUSA_ENTRE);
}

// The piece vanishes and so does its part of the silhouette; then both come back.
void DestelloTangram(i16 id) {
    BorraPieza(id);
    TBorraFigura(id);
    for (i16 i = 1; i <= 7; ++i)
        if (i != id) PonPieza(i);
    Pic_Trabajo_Paint();
    SonidoJuego(1, SONIDO_TUTOR);
    Pausa(PAUSA_DESTELLO);
    TBorraFigura(id);
    TPintaFigura(Pic_Imagen, id);
    ColocaPiezas(1);
    Pausa(PAUSA_ENTRE);
}

}  // namespace

void TutorIndicando() {
    const i16 id = Gbl.PiezaActual;
    Pausa(PAUSA_ANTES);
    if (Gbl.JuegoActual == JuegoMoviles) {
        Pic_Trabajo.DrawMode = MODO_INVIERTE;
        for (i32 i = 0; i < DESTELLOS; ++i) Sigue([&] { DestelloMoviles(id); });
        Pic_Trabajo.DrawMode = MODO_COPIA;
    } else if (Gbl.JuegoActual == JuegoTangram) {
        for (i32 i = 0; i < DESTELLOS; ++i) Sigue([&] { DestelloTangram(id); });
    }
    Gbl.PuzzleArchivable = false;
    Gbl.TutorEsperando = false;
}

}  // namespace tessario
