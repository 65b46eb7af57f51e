// SPDX-License-Identifier: GPL-3.0-or-later
#include "pieces/RasterMascara.h"

#include <span>

#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "rules/Catalogo.h"

namespace tessario {

namespace {

using paleta::NEGRO, paleta::BLANCO;
constexpr i16 CORTE_ESQUINA = 30;  // share of a sliding piece's side that its corners lose

// Where the hollows of a straightened side are filled: the shares of the side's length, and how
// deep into the cell. Depth 0 is the pixel beside the edge, else a share of the side's length.
struct Semilla {
    double alLargo;
    double hondo;
};
constexpr Semilla SEMILLAS_CURVADOS[] = {{0.5, 0}};
constexpr Semilla SEMILLAS_IRREGULARES[] = {{0.22, 0}, {0.5, 0.09}, {0.78, 0}};

std::span<const Semilla> SemillasDeForma() {
    if (Gbl.FormaPiezas == forma::CURVADOS) return SEMILLAS_CURVADOS;
    return SEMILLAS_IRREGULARES;
}

void Rellena(Superficie& s, double x, double y) {
    ExtFloodFill(s, Entero(x), Entero(y), NEGRO, 0);
}

// Straightens the left side (lejos false) or the right one.
void EnderezaVertical(Superficie& s, bool lejos) {
    const i32 m = Gbl.SalienteX, n = Gbl.SalienteY, w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    const i32 x = lejos ? m + w - 1 : m;
    s.Line(pluma::Desde, x, n, x, n + h);
    for (const Semilla& p : SemillasDeForma()) {
        const double dentro = p.hondo == 0 ? (lejos ? m + w - 2 : m + 1)
                                           : (lejos ? m + w - h * p.hondo : m + h * p.hondo);
        Rellena(s, dentro, n + h * p.alLargo);
    }
}

// Straightens the top side (lejos false) or the bottom one.
void EnderezaHorizontal(Superficie& s, bool lejos) {
    const i32 m = Gbl.SalienteX, n = Gbl.SalienteY, w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    const i32 y = lejos ? n + h - 1 : n;
    s.Line(pluma::Desde, m, y, m + w, y);
    for (const Semilla& p : SemillasDeForma()) {
        const double dentro = p.hondo == 0 ? (lejos ? n + h - 2 : n + 1)
                                           : (lejos ? n + h - w * p.hondo : n + w * p.hondo);
        Rellena(s, m + w * p.alLargo, dentro);
    }
}

// The lines that straighten two sides reach a pixel beyond the cell: at the right and the bottom
// edge of the picture that pixel would show what lies outside it.
void BorraFuera(Superficie& s, const BordesPieza& b) {
    const i32 x = Gbl.SalienteX + Gbl.AnchoCelda, y = Gbl.SalienteY + Gbl.AltoCelda;
    constexpr int recta = pluma::Desde | pluma::ConColor;
    if (b.Der) s.Line(recta, x, 0, x, Gbl.AltoPieza - 1, BLANCO);
    if (b.Aba) s.Line(recta, 0, y, Gbl.AnchoPieza - 1, y, BLANCO);
}

// Shape 3. Deliberate: the top and the side triangles are a little smaller than the bottom one;
// their apexes stop short of the centre, so that the four masks do not share its pixel.
void DibujaTriangulo(Superficie& s, i32 clase) {
    const i32 w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    const double cx = (w - 1) / 2.0, cy = h / 2.0;
    const struct {
        i32 x, y;                   // start
        i32 dx, dy;                 // step along the cell's side
        double vertice;             // height of the apex
        double semillaX, semillaY;  // seed of the fill
    } lados[4] = {{1, 0, w - 3, 0, cy - 2, w * 0.5, 1},
                  {w - 1, 0, 0, h - 2, cy - 1, static_cast<double>(w - 2), h * 0.5},
                  {0, h - 1, w - 1, 0, cy, w * 0.5, static_cast<double>(h - 2)},
                  {0, 0, 0, h - 2, cy - 1, 1, h * 0.5}};
    const auto& l = lados[clase];
    s.Line(pluma::Desde | pluma::Relativo, l.x, l.y, l.dx, l.dy);
    s.Line(0, 0, 0, cx, l.vertice);
    s.Line(0, 0, 0, l.x, l.y);
    Rellena(s, l.semillaX, l.semillaY);
}

void DibujaCaja(Superficie& s, i32 izq, i32 arr, i32 der, i32 aba) {
    s.Line(pluma::Desde | pluma::Caja, izq, arr, der, aba);
}

void DibujaElipse(Superficie& s, i16 radio, double aspecto) {
    s.Circle(pluma::ConAspecto, Gbl.AnchoCelda / 2.0, Gbl.AltoCelda / 2.0, radio, 0, 0, 0, aspecto);
}

// The inner figure of shapes 0 and 4 to 7, and the triangles.
void DibujaForma(Superficie& s, i32 clase) {
    const i32 w = Gbl.AnchoCelda, h = Gbl.AltoCelda, rx = Gbl.RecorteX, ry = Gbl.RecorteY;
    switch (Gbl.FormaPiezas) {
        case forma::RECTANGULOS:
            return DibujaCaja(s, 0, 0, w - 1, h - 1);
        case forma::TRIANGULOS:
            return DibujaTriangulo(s, clase);
        case forma::CIRCULOS:
            return s.Circle(0, w / 2.0, h / 2.0, Gbl.RadioForma);
        case forma::DOBLES:
            return DibujaCaja(s, rx, ry, w - rx - 1, h - ry - 1);
        case forma::ELIPSES:
            return DibujaElipse(s, Gbl.RadioForma, Gbl.Aspecto);
        case forma::ESTRELLAS:
            DibujaElipse(s, Gbl.RadioForma, Gbl.Aspecto);
            return DibujaElipse(s, Gbl.RadioForma2, Gbl.Aspecto2);
        default:
            return;
    }
}

void Polilinea(Superficie& s, Color color, std::initializer_list<Punto> puntos) {
    const Punto* anterior = nullptr;
    for (const Punto& p : puntos) {
        if (anterior)
            s.Line(pluma::Desde | pluma::ConColor, anterior->x, anterior->y, p.x, p.y, color);
        anterior = &p;
    }
}

}  // namespace

BordesPieza BordesDe(const Pieza& z) {
    return {z.XBien == 0, z.XBien + Gbl.AnchoCelda == Gbl.AnchoPuzzle, z.YBien == 0,
            z.YBien + Gbl.AltoCelda == Gbl.AltoPuzzle};
}

void DibujaDePlantilla(Superficie& s, i32 x, const BordesPieza& b) {
    const i32 izq = b.Izq ? Gbl.SalienteX : 0, der = b.Der ? Gbl.SalienteX : 0;
    const i32 arr = b.Arr ? Gbl.SalienteY : 0, aba = b.Aba ? Gbl.SalienteY : 0;
    BitBlt(s, izq, arr, Gbl.AnchoPieza - izq - der, Gbl.AltoPieza - arr - aba, Pic_Temporal,
           x + izq, arr, SRCCOPY);
    if (b.Izq) EnderezaVertical(s, false);
    if (b.Der) EnderezaVertical(s, true);
    if (b.Arr) EnderezaHorizontal(s, false);
    if (b.Aba) EnderezaHorizontal(s, true);
    BorraFuera(s, b);
}

void DibujaFigura(Superficie& s, i32 clase) {
    DibujaForma(s, clase);
    if (Gbl.FormaPiezas >= forma::CIRCULOS && clase == 1)
        BitBlt(s, 0, 0, Gbl.AnchoPieza, Gbl.AltoPieza, s, 0, 0, NOTSRCCOPY);
}

void DibujaDeslizante(Superficie& s) {
    const i32 lado = Gbl.AnchoPieza;
    if (Gbl.DibujarBorde) {
        const i32 c = lado / CORTE_ESQUINA, d = lado - 1, e = lado - c - 1;
        const Punto octogono[] = {{c, d}, {0, e}, {0, c}, {c, 0}, {e, 0}, {d, c}, {d, e}, {e, d}};
        for (std::size_t k = 0; k < 8; ++k) {
            const Punto a = octogono[k], b = octogono[(k + 1) % 8];
            s.Line(pluma::Desde, a.x, a.y, b.x, b.y);
        }
    } else {
        DibujaCaja(s, 0, 0, Gbl.AnchoCelda - 1, Gbl.AltoCelda - 1);
    }
    ExtFloodFill(s, Gbl.AnchoPieza / 2, Gbl.AltoPieza / 2, NEGRO, 0);
}

void TrazaRelieve(Superficie& s) {
    const i32 lado = Gbl.AnchoPieza;
    const i32 c = lado / 30, d = lado - 1, e = lado - c - 1, p = c + 2, q = e - 1;
    s.DrawWidth = 2;
    Polilinea(s, Gbl.ColorPiezasClaro,
              {{p, d}, {1, q}, {1, p - 1}, {p - 1, 1}, {q + 1, 1}, {d, p - 1}});
    Polilinea(s, Gbl.ColorPiezasOscuro, {{d, p}, {d, q}, {q, d}, {p, d}});
    s.DrawWidth = 1;
    s.PSet(d, p - 2, 0);
    s.PSet(p - 2, d, 0);
}

i16 VerticesDePieza(i16 piece) {
    return FichaDeTangram(piece).Vertices;
}

void TrazaContorno(Superficie& s, i16 piece, i32 x, i32 y) {
    const auto& xs = Gbl.TVerticeX[static_cast<std::size_t>(piece)];
    const auto& ys = Gbl.TVerticeY[static_cast<std::size_t>(piece)];
    const i16 n = VerticesDePieza(piece);
    s.PSet(x + xs[1], y + ys[1]);
    for (i16 k = 1; k <= n; ++k) {
        const i32 siguiente = k % n + 1;
        s.Line(pluma::Desde, x + xs[k], y + ys[k], x + xs[siguiente], y + ys[siguiente]);
    }
}

void DibujaTangram(Superficie& s, i16 piece) {
    TrazaContorno(s, piece, 0, 0);
    ExtFloodFill(s, Gbl.XInterior, Gbl.YInterior, NEGRO, 0);
}

}  // namespace tessario
