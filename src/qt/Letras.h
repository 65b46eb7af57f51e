// SPDX-License-Identifier: GPL-3.0-or-later
// Outlines of letters for the painter of metafiles, from the fonts that are installed.
#pragma once

#include <QRawFont>
#include <map>
#include <tuple>

#include "platform/PintorRaster.h"

namespace tessario {

class Letras : public LetrasMeta {
public:
    Medidas Mide(const FuenteMeta& f) override;
    const Letra& De(const FuenteMeta& f, double cuerpo, char16_t letra, bool porIndice) override;

private:
    struct Tipo {
        QRawFont Fuente;
        std::map<quint32, Letra> Hechas;  // by glyph
    };
    using Clave = std::tuple<std::u16string, bool, bool, int>;  // face, bold, italic, pixels
    Tipo& De(const FuenteMeta& f, int pixeles);

    std::map<Clave, Tipo> tipos_;
    Letra unica_;  // of a font larger than outlines are kept for
};

}  // namespace tessario
