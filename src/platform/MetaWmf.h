// SPDX-License-Identifier: GPL-3.0-or-later
// WMF: its walk. Only for Metafichero.
#pragma once

#include "platform/PintorMetafichero.h"

namespace tessario {

bool EsWmf(Bytes f);
Lectura MideWmf(Bytes f, i32& ancho, i32& alto);
Lectura PintaWmf(Bytes f, PintorMetafichero& pintor, Esfuerzo& esfuerzo);

}  // namespace tessario
