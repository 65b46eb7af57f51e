// The hint panel.
#pragma once

#include "platform/Tipos.h"

namespace tessario {

// Fills the table of hints; once, at start.
void CargaSugerencias();
// Shows hint n, if the panel is enabled.
void Sugerencia(i16 n);
void Pic_SugeMasAyuda_MouseDown(i16 Button, i16 Shift, float X, float Y);
void Pic_SugeBotCerrar_MouseDown(i16 Button, i16 Shift, float X, float Y);
void Pic_Sugerencia_MouseMove(i16 Button, i16 Shift, float X, float Y);

}  // namespace tessario
