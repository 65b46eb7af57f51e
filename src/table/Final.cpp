#include "table/Final.h"

#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "records/Historial.h"
#include "table/Cronometro.h"
#include "table/Grabadora.h"

namespace tessario {

namespace {

constexpr i16 PAUSA_FINAL = 500, SONIDO_RESUELTO = 14;

// A result that was helped along is not offered: the question would promise what cannot be.
void OfreceAlHistorico() {
    if (!Gbl.PuzzleArchivable) return;
    Mensaje("Histórico de puzzles resueltos", "¿Se actualiza el Histórico de puzzles?", 1, 2, 2161);
    if (!Gbl.RespuestaMensaje) return;
    const i16 error = EntraEnHistorico();
    if (error != 0)
        Mensaje("Histórico de puzzles resueltos", "HIS ERROR " + std::to_string(error), 1, 1);
}

}  // namespace

void FinDeJuego() {
    CambiaCrono(2);
    Pausa(PAUSA_FINAL);
    Sigue([] { EntraEnCompleto(); });
    SonidoJuego(1, SONIDO_RESUELTO);
    Mensaje("TESSARIO", "Ha conseguido resolver el puzzle", 1, 1);
    Sigue([] { OfreceAlHistorico(); });
    Gbl.PuzzleArchivable = false;
}

}  // namespace tessario
