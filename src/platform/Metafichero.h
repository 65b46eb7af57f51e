// SPDX-License-Identifier: GPL-3.0-or-later
// Metafiles: pictures kept as a list of drawing orders, WMF and EMF. The walk over the records
// reads bytes that may say anything and calls a painter; it needs no display and opens no file,
// whatever a record names. Everything is bounded: records, points, pixels, objects, memory.
#pragma once

#include "platform/PintorMetafichero.h"

namespace tessario {

bool EsMetafichero(Bytes fichero);
// The size by its header: hundredths of a millimetre, or its own units to the inch, at 96 pixels to
// the inch, halves up; without such a header 320 x 240.
Lectura MideMetafichero(Bytes fichero, i32& ancho, i32& alto);
Lectura PintaMetafichero(Bytes fichero, PintorMetafichero& pintor,
                         long long esfuerzo = Esfuerzo::TOTAL);

}  // namespace tessario
