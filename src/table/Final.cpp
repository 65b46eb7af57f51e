#include "table/Final.h"

#include "core/Avisos.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "panel/Cronometro.h"
#include "panel/Grabadora.h"
#include "records/Historial.h"

namespace tessario {

namespace {

constexpr i16 PAUSA_FINAL = 500;

// A result that was helped along is not offered: the question would promise what cannot be.
void OfreceAlHistorico() {
    if (!Gbl.PuzzleArchivable) return;
    Avisa(aviso::AL_HISTORICO);
    if (!Gbl.RespuestaMensaje) return;
    const i16 error = EntraEnHistorico();
    if (error != 0) Avisa(aviso::ERROR_HISTORICO, {std::to_string(error)});
}

}  // namespace

void FinDeJuego() {
    CambiaCrono(CRONO_PARO);
    Pausa(PAUSA_FINAL);
    Sigue([] { EntraEnCompleto(); });
    SonidoJuego(1, sonido::RESUELTO);
    Avisa(aviso::RESUELTO);
    Sigue([] { OfreceAlHistorico(); });
    Gbl.PuzzleArchivable = false;
}

}  // namespace tessario
