#include "pieces/RasterMascara.h"

#include <span>

#include "core/PuzzGbl.h"
#include "pieces/Formas.h"
#include "pieces/Superficies.h"

namespace tessario {

namespace {

constexpr Color NEGRO = 0;
constexpr i16 PRIMERA_DOBLE = 4;   // shapes from here on have an inner figure and a frame
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
    if (Gbl.FormaPiezas == 1) return SEMILLAS_CURVADOS;
    return SEMILLAS_IRREGULARES;
}

void Rellena(double x, double y) {
    ExtFloodFill(Pic_PiezaMascara, Entero(x), Entero(y), NEGRO, 0);
}

// The sides of the cell that lie on the picture's edge.
struct Bordes {
    bool izq, der, arr, aba;
    bool Alguno() const { return izq || der || arr || aba; }
};

Bordes BordesDe(const Pieza& z) {
    return {z.XBien == 0, z.XBien + Gbl.AnchoCelda == Gbl.AnchoPuzzle, z.YBien == 0,
            z.YBien + Gbl.AltoCelda == Gbl.AltoPuzzle};
}

// Straightens the left side (lejos false) or the right one.
void EnderezaVertical(bool lejos) {
    const i32 m = Gbl.SalienteX, n = Gbl.SalienteY, w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    const i32 x = lejos ? m + w - 1 : m;
    Pic_PiezaMascara.Line(pluma::Desde, x, n, x, n + h);
    for (const Semilla& s : SemillasDeForma()) {
        const double dentro = s.hondo == 0 ? (lejos ? m + w - 2 : m + 1)
                                           : (lejos ? m + w - h * s.hondo : m + h * s.hondo);
        Rellena(dentro, n + h * s.alLargo);
    }
}

// Straightens the top side (lejos false) or the bottom one.
void EnderezaHorizontal(bool lejos) {
    const i32 m = Gbl.SalienteX, n = Gbl.SalienteY, w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    const i32 y = lejos ? n + h - 1 : n;
    Pic_PiezaMascara.Line(pluma::Desde, m, y, m + w, y);
    for (const Semilla& s : SemillasDeForma()) {
        const double dentro = s.hondo == 0 ? (lejos ? n + h - 2 : n + 1)
                                           : (lejos ? n + h - w * s.hondo : n + w * s.hondo);
        Rellena(m + w * s.alLargo, dentro);
    }
}

// Shapes 1 and 2: the template of the cell's parity, cut off and straightened on the picture's
// edges.
void MascaraDePlantilla(const Pieza& z) {
    if (Gbl.AnchoCelda == 0 || Gbl.AltoCelda == 0) throw ErrorEjecucion(ERROR_DIVISION);
    const i32 columna = z.XBien / Gbl.AnchoCelda;
    const i32 fila = z.YBien / Gbl.AltoCelda;
    const i32 t = (columna + fila) % 2 != 0 ? Gbl.AnchoPieza : 0;
    const Bordes b = BordesDe(z);
    const i32 izq = b.izq ? Gbl.SalienteX : 0, der = b.der ? Gbl.SalienteX : 0;
    const i32 arr = b.arr ? Gbl.SalienteY : 0, aba = b.aba ? Gbl.SalienteY : 0;
    if (b.Alguno())
        Pic_PiezaMascara.TamanoLimpio(Gbl.AnchoPieza, Gbl.AltoPieza);
    else
        Pic_PiezaMascara.TamanoLibre(Gbl.AnchoPieza, Gbl.AltoPieza);
    BitBlt(Pic_PiezaMascara, izq, arr, Gbl.AnchoPieza - izq - der, Gbl.AltoPieza - arr - aba,
           Pic_Temporal, t + izq, arr, SRCCOPY);
    if (b.izq) EnderezaVertical(false);
    if (b.der) EnderezaVertical(true);
    if (b.arr) EnderezaHorizontal(false);
    if (b.aba) EnderezaHorizontal(true);
}

// Shape 3. Deliberate: the top and the side triangles are a little smaller than the bottom one;
// their apexes stop short of the centre, so that the four masks do not share its pixel.
void MascaraTriangulo(i16 piece) {
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
    const auto& l = lados[piece % 4];
    Pic_PiezaMascara.Line(pluma::Desde | pluma::Relativo, l.x, l.y, l.dx, l.dy);
    Pic_PiezaMascara.Line(0, 0, 0, cx, l.vertice);
    Pic_PiezaMascara.Line(0, 0, 0, l.x, l.y);
    Rellena(l.semillaX, l.semillaY);
}

void MascaraCaja(i32 izq, i32 arr, i32 der, i32 aba) {
    Pic_PiezaMascara.Line(pluma::Desde | pluma::Caja, izq, arr, der, aba);
}

void MascaraElipse(i16 radio, double aspecto) {
    Pic_PiezaMascara.Circle(pluma::ConAspecto, Gbl.AnchoCelda / 2.0, Gbl.AltoCelda / 2.0, radio, 0,
                            0, 0, aspecto);
}

// The inner figure of shapes 0 and 4 to 7, and the triangles.
void MascaraFigura(i16 piece) {
    const i32 w = Gbl.AnchoCelda, h = Gbl.AltoCelda, rx = Gbl.RecorteX, ry = Gbl.RecorteY;
    switch (Gbl.FormaPiezas) {
        case 0:
            return MascaraCaja(0, 0, w - 1, h - 1);
        case 3:
            return MascaraTriangulo(piece);
        case 4:
            return Pic_PiezaMascara.Circle(0, w / 2.0, h / 2.0, Gbl.RadioForma);
        case 5:
            return MascaraCaja(rx, ry, w - rx - 1, h - ry - 1);
        case 6:
            return MascaraElipse(Gbl.RadioForma, Gbl.Aspecto);
        case 7:
            MascaraElipse(Gbl.RadioForma, Gbl.Aspecto);
            return MascaraElipse(Gbl.RadioForma2, Gbl.Aspecto2);
        default:
            return;
    }
}

}  // namespace

void MascaraMoviles(i16 piece) {
    if (Gbl.FormaPiezas == 1 || Gbl.FormaPiezas == 2) {
        MascaraDePlantilla(Gbl.PiezaAux);
    } else {
        // A rectangle fills its whole box, so nothing need be cleared for it.
        if (Gbl.FormaPiezas == 0 && Gbl.AnchoPieza == Gbl.AnchoCelda &&
            Gbl.AltoPieza == Gbl.AltoCelda)
            Pic_PiezaMascara.TamanoLibre(Gbl.AnchoPieza, Gbl.AltoPieza);
        else
            Pic_PiezaMascara.TamanoLimpio(Gbl.AnchoPieza, Gbl.AltoPieza);
        MascaraFigura(piece);
    }
    if (piece % 2 == 0 && Gbl.FormaPiezas >= PRIMERA_DOBLE)
        BitBlt(Pic_PiezaMascara, 0, 0, Gbl.AnchoPieza, Gbl.AltoPieza, Pic_PiezaMascara, 0, 0,
               NOTSRCCOPY);
}

void MascaraDeslizantes() {
    const i32 lado = Gbl.AnchoPieza;
    Pic_PiezaMascara.TamanoLimpio(Gbl.AnchoPieza, Gbl.AltoPieza);
    if (Gbl.DibujarBorde) {
        const i32 c = lado / CORTE_ESQUINA, d = lado - 1, e = lado - c - 1;
        const Punto octogono[] = {{c, d}, {0, e}, {0, c}, {c, 0}, {e, 0}, {d, c}, {d, e}, {e, d}};
        for (std::size_t k = 0; k < 8; ++k) {
            const Punto a = octogono[k], b = octogono[(k + 1) % 8];
            Pic_PiezaMascara.Line(pluma::Desde, a.x, a.y, b.x, b.y);
        }
    } else {
        MascaraCaja(0, 0, Gbl.AnchoCelda - 1, Gbl.AltoCelda - 1);
    }
    ExtFloodFill(Pic_PiezaMascara, Gbl.AnchoPieza / 2, Gbl.AltoPieza / 2, NEGRO, 0);
}

i16 VerticesDePieza(i16 piece) {
    return piece <= 5 ? i16{3} : i16{4};
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

void MascaraTangram(i16 piece) {
    const Pieza& z = Gbl.PiezaAux;
    TMidePieza(piece, z.Giro, z.Volteo);
    Pic_PiezaMascara.TamanoLimpio(Gbl.AnchoPieza, Gbl.AltoPieza);
    TVertices(piece, z.Giro, z.Volteo);
    TrazaContorno(Pic_PiezaMascara, piece, 0, 0);
    TPuntoInterior(piece, z.Giro, z.Volteo);
    ExtFloodFill(Pic_PiezaMascara, Gbl.XInterior, Gbl.YInterior, NEGRO, 0);
}

}  // namespace tessario
