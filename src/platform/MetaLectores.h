// The two kinds of metafiles, each read by its own walk. Only for Metafichero.
#pragma once

#include "platform/Metafichero.h"

namespace tessario {

bool EsEmf(Bytes f);
Lectura MideEmf(Bytes f, i32& ancho, i32& alto);
Lectura PintaEmf(Bytes f, PintorMetafichero& pintor, Esfuerzo& esfuerzo);

bool EsWmf(Bytes f);
Lectura MideWmf(Bytes f, i32& ancho, i32& alto);
Lectura PintaWmf(Bytes f, PintorMetafichero& pintor, Esfuerzo& esfuerzo);

}  // namespace tessario
