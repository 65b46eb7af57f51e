// SPDX-License-Identifier: GPL-3.0-or-later
#include "pieces/Moldes.h"

#include <algorithm>

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "pieces/Formas.h"
#include "pieces/RasterMascara.h"
#include "rules/Catalogo.h"
#include "rules/Juego.h"

namespace tessario {

namespace {

template <class... T>
ClaveMolde Clave(T... valores) {
    static_assert(sizeof...(T) <= std::tuple_size_v<ClaveMolde>);
    return {static_cast<double>(valores)...};
}

// The mould at an index, drawn first when it is there for something else.
template <class F>
VistaMascara DeMolde(i32 indice, const ClaveMolde& clave, F&& dibuja) {
    Molde& m = Pic_Moldes[static_cast<std::size_t>(indice)];
    if (m.Clave != clave) {
        m.Clave = {};  // until it is drawn whole
        m.Mascara.FillSolido = true;
        m.Mascara.TamanoLimpio(Gbl.AnchoPieza, Gbl.AltoPieza);
        m.Borde.clear();
        dibuja(m);
        m.Clave = clave;
    }
    return {&m.Mascara, 0, 0, m.Mascara.Width(), m.Mascara.Height(), m.Borde};
}

// Notes what a routine paints on the piece's box, as far as the mask goes.
template <class F>
void AnotaBorde(Molde& m, F&& traza) {
    constexpr Pixel SIN_PINTAR = 0xFF000000;  // no colour
    Superficie hoja;
    hoja.TamanoLibre(m.Mascara.Width(), m.Mascara.Height());
    for (i32 y = 0; y < hoja.Height(); ++y) std::fill_n(hoja.Fila(y), hoja.Width(), SIN_PINTAR);
    traza(hoja);
    const std::vector<Pixel>& pintado = hoja.Dibujo().Pixeles;
    for (std::size_t i = 0; i < pintado.size(); ++i)
        if (pintado[i] != SIN_PINTAR && m.Mascara.Dibujo().Pixeles[i] == 0)
            m.Borde.push_back({static_cast<i32>(i), pintado[i]});
}

// Shapes 1 and 2. A piece inside the picture is its template; one on the edge has a mould by the
// template and the sides that it has there.
VistaMascara DePlantilla() {
    if (Gbl.AnchoCelda == 0 || Gbl.AltoCelda == 0) throw ErrorEjecucion(ERROR_DIVISION);
    const Pieza& z = Gbl.PiezaAux;
    const i32 w = Gbl.AnchoPieza, h = Gbl.AltoPieza;
    const bool impar = (z.XBien / Gbl.AnchoCelda + z.YBien / Gbl.AltoCelda) % 2 != 0;
    const i32 t = impar ? w : 0;
    const Rect plantilla = RectDe(t, 0, w, h);
    const BordesPieza b = BordesDe(z);
    if (!b.Alguno() && !plantilla.Vacio() &&
        Interseccion(plantilla, Pic_Temporal.Limites()) == plantilla)
        return {&Pic_Temporal, t, 0, w, h, {}};
    // New templates: what was made from the old ones is forgotten.
    if (!Pic_Temporal.TomaTocado().Vacio())
        for (Molde& m : Pic_Moldes) m.Clave = {};
    const i32 indice = impar * 16 + b.Izq * 8 + b.Der * 4 + b.Arr * 2 + b.Aba;
    const ClaveMolde clave =
        Clave(JuegoMoviles, Gbl.FormaPiezas, indice, w, h, Gbl.AnchoCelda, Gbl.AltoCelda,
              Gbl.SalienteX, Gbl.SalienteY, Pic_Temporal.Width(), Pic_Temporal.Height());
    return DeMolde(indice, clave, [&](Molde& m) { DibujaDePlantilla(m.Mascara, t, b); });
}

// The other shapes: one figure, or a figure and its frame, or the four triangles.
VistaMascara DeFigura(i16 piece) {
    const i32 clase = Gbl.FormaPiezas == forma::TRIANGULOS
                          ? piece % 4
                          : Gbl.FormaPiezas >= forma::CIRCULOS && piece % 2 == 0;
    const ClaveMolde clave =
        Clave(JuegoMoviles, Gbl.FormaPiezas, clase, Gbl.AnchoPieza, Gbl.AltoPieza, Gbl.AnchoCelda,
              Gbl.AltoCelda, Gbl.RadioForma, Gbl.RadioForma2, Gbl.RecorteX, Gbl.RecorteY,
              Gbl.Aspecto, Gbl.Aspecto2);
    return DeMolde(clase, clave, [&](Molde& m) { DibujaFigura(m.Mascara, clase); });
}

}  // namespace

VistaMascara MascaraDeslizante(i16) {
    const ClaveMolde clave =
        Clave(JuegoDeslizantes, Gbl.DibujarBorde.Valor(), Gbl.AnchoPieza, Gbl.AltoPieza,
              Gbl.AnchoCelda, Gbl.AltoCelda, Gbl.ColorPiezasClaro, Gbl.ColorPiezasOscuro);
    return DeMolde(0, clave, [](Molde& m) {
        DibujaDeslizante(m.Mascara);
        if (Gbl.DibujarBorde) AnotaBorde(m, TrazaRelieve);
    });
}

// By the corners themselves, so that no orientation and no measure needs to be trusted.
VistaMascara MascaraTangram(i16 piece) {
    const Pieza& z = Gbl.PiezaAux;
    TMidePieza(piece, z.Giro, z.Volteo);
    TVertices(piece, z.Giro, z.Volteo);
    TPuntoInterior(piece, z.Giro, z.Volteo);
    const auto& x = Gbl.TVerticeX[static_cast<std::size_t>(piece)];
    const auto& y = Gbl.TVerticeY[static_cast<std::size_t>(piece)];
    const Color color = Pic_PiezaImagen.ForeColor;
    const ClaveMolde clave = Clave(JuegoTangram, VerticesDePieza(piece), Gbl.AnchoPieza,
                                   Gbl.AltoPieza, x[1], y[1], x[2], y[2], x[3], y[3], x[4], y[4],
                                   Gbl.XInterior, Gbl.YInterior, Gbl.DibujarBorde.Valor(), color);
    const i32 indice = FichaDeTangram(piece).Clase * 16 + (z.Giro & 7) * 2 + (z.Volteo & 1);
    return DeMolde(indice, clave, [&](Molde& m) {
        DibujaTangram(m.Mascara, piece);
        if (Gbl.DibujarBorde)
            AnotaBorde(m, [&](Superficie& s) {
                s.ForeColor = color;
                TrazaContorno(s, piece, 0, 0);
            });
    });
}

VistaMascara MascaraMovil(i16 piece) {
    return SeCortaConPlantillas() ? DePlantilla() : DeFigura(piece);
}

VistaMascara MascaraDePieza(i16 piece) {
    const auto mascara = JuegoEnCurso().Mascara;
    if (!mascara) throw ErrorEjecucion(ERROR_INDICE);
    return mascara(piece);
}

}  // namespace tessario
