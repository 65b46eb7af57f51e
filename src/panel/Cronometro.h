// The chronometer, the counter of placed pieces, the bevelled display that both share, and the
// once-a-second tick that also chooses the hints.
#pragma once

#include <string>

#include "platform/Superficie.h"
#include "platform/Tipos.h"

namespace tessario {

// Runs or stops the chronometer; paints its switch.
inline constexpr i16 CRONO_MARCHA = 1, CRONO_PARO = 2;
void CambiaCrono(i16 estado);
// Stops it for a while, and afterwards makes it what it was. One memory serves all, CronoAntes.
void DetieneCrono();
void ReponeCrono();
// One second of the timer.
void Tic();
// Recounts the pieces in their place and shows the count.
void MuestraColocadas();
// The displays as they stand: the counter without a recount, and the clock.
void PintaColocadas();
void PintaTiempo();
// The bevelled display: style 1 raised for the counter, 2 sunken for the clock.
void DibujaVisor(Superficie& destino, const std::string& texto, i16 estilo);
// Seconds as H:MM:SS, from 0 again after 24 hours.
std::string TextoTiempo(i32 segundos);
void Pic_Cronome_MouseDown(i16 Button, i16 Shift, float X, float Y);
void Pic_Cronome_MouseMove(i16 Button, i16 Shift, float X, float Y);

}  // namespace tessario
