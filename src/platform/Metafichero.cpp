// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Metafichero.h"

#include "platform/MetaEmf.h"
#include "platform/MetaWmf.h"

namespace tessario {

bool EsMetafichero(Bytes fichero) {
    return EsEmf(fichero) || EsWmf(fichero);
}

Lectura MideMetafichero(Bytes fichero, i32& ancho, i32& alto) {
    if (fichero.size() > METAFICHERO_BYTES) return Lectura::Desmedida;
    return EsEmf(fichero) ? MideEmf(fichero, ancho, alto) : MideWmf(fichero, ancho, alto);
}

Lectura PintaMetafichero(Bytes fichero, PintorMetafichero& pintor, long long esfuerzo) {
    if (fichero.size() > METAFICHERO_BYTES) return Lectura::Desmedida;
    Esfuerzo queda(esfuerzo);
    try {
        return EsEmf(fichero) ? PintaEmf(fichero, pintor, queda) : PintaWmf(fichero, pintor, queda);
    } catch (const MetaficheroAgotado&) {
        return Lectura::Imposible;
    }
}

}  // namespace tessario
