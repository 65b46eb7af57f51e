#include "table/Giro.h"

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Cronometro.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "pieces/Raster.h"
#include "tangram/Desolape.h"

namespace tessario {

namespace {

struct Salto {
    i16 x = 0, y = 0;
};

constexpr i16 FORMA_TRIANGULOS = 3;
constexpr i16 ULTIMO_TRIANGULO = 5;  // of the Tangram

// Quarter of its cell that a triangle fills, by side: top, right, bottom, left.
constexpr double CUARTO_X[4] = {-0.25, 0.25, 0.25, -0.25};
constexpr double CUARTO_Y[4] = {-0.25, -0.25, 0.25, 0.25};

// Deliberate: uneven tables by the new giro; they follow the Tangram triangles' own corners, not a
// turn about a centre. In shares of TAncho.
constexpr double TRIANGULO_X[8] = {-0.4, 0, 0.4, -0.4, 0, 0.4, -0.1, 0.1};
constexpr double TRIANGULO_Y[8] = {-0.1, 0.1, -0.4, 0, 0.4, -0.4, 0, 0.4};

// Where each side of the cell shows black in the mask, in shares of it; the later one wins.
struct Muestra {
    double x, y;
};
constexpr Muestra LADOS[3] = {{0.75, 0.5}, {0.5, 0.75}, {0.25, 0.5}};

// The side of the cell that the prepared triangle lies on: 0 top, 1 right, 2 bottom, 3 left.
std::size_t LadoDelTriangulo() {
    std::size_t lado = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const i16 x = Entero(LADOS[i].x * Pic_PiezaMascara.Width());
        const i16 y = Entero(LADOS[i].y * Pic_PiezaMascara.Height());
        if (Pic_PiezaMascara.Point(x, y) == 0) lado = i + 1;
    }
    return lado;
}

Salto SaltoDelTriangulo(i16 piece) {
    PreparaPieza(piece);
    const std::size_t lado = LadoDelTriangulo();
    const i32 l = lado == 0 || lado == 2 ? Pic_PiezaMascara.Height() : Pic_PiezaMascara.Width();
    return {Entero(l * CUARTO_X[lado]), Entero(l * CUARTO_Y[lado])};
}

// Jigsaw: the box turns about its centre, a triangle stays in its quarter of the cell.
Salto SaltoMoviles(i16 piece, const Pieza& z) {
    if (Gbl.FormaPiezas == FORMA_TRIANGULOS) return SaltoDelTriangulo(piece);
    const i32 ancho = AnchoDePieza(piece, z.Giro, z.Volteo);
    const i32 alto = AltoDePieza(piece, z.Giro, z.Volteo);
    const i16 dx = Entero((ancho - alto) / 2.0);
    return {dx, Corto(-dx)};
}

Salto SaltoTangram(i16 piece, const Pieza& z, i16 nuevo) {
    if (piece <= ULTIMO_TRIANGULO) {
        if (nuevo < 0 || nuevo > 7) throw ErrorEjecucion(ERROR_INDICE);
        const i16 lado = Gbl.TAncho[piece];
        return {Entero(lado * TRIANGULO_X[nuevo]), Entero(lado * TRIANGULO_Y[nuevo])};
    }
    TMidePieza(piece, z.Giro, z.Volteo);
    const i32 ancho = Gbl.AnchoPieza;
    const i32 alto = Gbl.AltoPieza;
    TMidePieza(piece, nuevo, z.Volteo);
    return {Entero((ancho - Gbl.AnchoPieza) / 2.0), Entero((alto - Gbl.AltoPieza) / 2.0)};
}

}  // namespace

void GiraPieza() {
    const i16 piece = Gbl.PiezaActual;
    SubePieza(PosicionEnOrden(piece));
    BorraPieza(piece);
    Gbl.ArrastrandoPieza = false;

    Pieza& z = Gbl.Piezas[piece];
    const bool moviles = Gbl.JuegoActual == JuegoMoviles;
    const i16 ultimo = moviles ? i16{3} : i16{7};
    const i16 nuevo = Corto(z.Giro < ultimo ? z.Giro + 1 : z.Giro - ultimo);
    Salto salto;
    if (moviles) salto = SaltoMoviles(piece, z);
    if (Gbl.JuegoActual == JuegoTangram) salto = SaltoTangram(piece, z, nuevo);
    z.X = Corto(z.X + salto.x);
    z.Y = Corto(z.Y + salto.y);
    // An automatic run turns the piece straight to its right orientation.
    z.Giro = Gbl.ResolviendoPuzzle ? z.GiroBien : nuevo;

    PonPieza(piece);
    Pic_Trabajo_Paint();
    if (Gbl.JuegoActual == JuegoTangram) TDesolapaPieza();
    MuestraColocadas();
    CambiaCrono(CRONO_MARCHA);
}

}  // namespace tessario
