// SPDX-License-Identifier: GPL-3.0-or-later
// The chronometer, the bevelled display that it shares with the counter of placed pieces, and the
// once-a-second tick that also chooses the hints.
#pragma once

#include <string>
#include <vector>

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
// The clock's display as it stands.
void PintaTiempo();
// The bevelled display: raised for the counter, sunken for the clock.
inline constexpr i16 VISOR_CONTADOR = 1, VISOR_RELOJ = 2;
void DibujaVisor(Superficie& destino, const std::string& texto, i16 estilo);
// Seconds as H:MM:SS, from 0 again after 24 hours.
std::string TextoTiempo(i32 segundos);
std::vector<Rect> ZonasCronome();  // its switch
void Pic_Cronome_MouseDown(i16 Button, i16 Shift, float X, float Y);
void Pic_Cronome_MouseMove(i16 Button, i16 Shift, float X, float Y);

}  // namespace tessario
