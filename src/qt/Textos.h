// SPDX-License-Identifier: GPL-3.0-or-later
// Fonts and text: one QFont for each Fuente, widths kept, painting onto surfaces, wrapping.
// Sizes are pixels and hinting is full, so that the same pixels come out on every screen.
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QString>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Superficie.h"

class QPainter;

namespace tessario {

QFont FuenteQt(const Fuente& f);

// One line of a block. A full one is set to the block's whole width, its blanks widened.
struct Renglon {
    QString texto;
    bool lleno = false;
};

// Paints a fine text, where it holds within a box of the surface. The painter counts in the
// surface's pixels and has the text's factor.
void PintaFino(QPainter& p, const TextoFino& t, const Rect& caja);

class Textos {
public:
    // Pixels of the screen, either way, for one of a surface's: above 1 what is painted on a
    // surface is kept in the screen's own pixels too.
    i32 Escala = 1;

    i32 Ancho(const Fuente& f, std::string_view texto);
    i32 Alto(const Fuente& f);
    // Paints the text with its top left at (x, y), clipped to the surface and its clip region.
    void Pinta(Superficie& s, i32 x, i32 y, std::string_view texto, const Fuente& f, Color color);

    const QFont& Letra(const Fuente& f) { return Entrada(f).letra; }
    const QFontMetrics& Medida(const Fuente& f) { return Entrada(f).medida; }
    // Height from one line of a block to the next.
    static i32 Interlinea(const Fuente& f) { return f.Tamano + 3; }
    // The text cut into lines no wider than `ancho`. A run of blanks inside a line counts as one,
    // those at the beginning of a paragraph are kept, those at a break go. Full are the lines at
    // whose end the text was broken, and a paragraph's last line that nearly fills the width while
    // another paragraph follows. A path is broken after a slash.
    std::vector<Renglon> Renglones(const Fuente& f, std::string_view texto, i32 ancho);
    // How narrow a line can be set: its blanks give way by a fourth, no more.
    i32 AnchoMinimo(const Fuente& f, const Renglon& r);
    // Paints one line with its top at y; a full one from edge to edge.
    void PintaRenglon(QPainter& p, const Fuente& f, const Renglon& r, i32 y, i32 ancho,
                      bool centrado);
    // The letter of a block: `f`, or smaller when the lines would run out of the block's height.
    Fuente QueCabe(const Fuente& f, std::string_view texto, i32 ancho, i32 alto);
    i32 AltoBloque(const Fuente& f, std::size_t renglones);

private:
    struct Ficha {
        QFont letra;
        QFontMetrics medida;
        std::unordered_map<std::string, i32> anchos;
        explicit Ficha(const Fuente& f) : letra(FuenteQt(f)), medida(letra) {}
    };
    Ficha& Entrada(const Fuente& f);
    std::map<int, Ficha> fichas_;
};

}  // namespace tessario
