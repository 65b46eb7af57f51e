// SPDX-License-Identifier: GPL-3.0-or-later
#include "tangram/Tangram.h"

#include <algorithm>
#include <cmath>

#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Barajado.h"
#include "panel/Colocadas.h"
#include "panel/Sugerencias.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "pieces/Moldes.h"
#include "pieces/Raster.h"
#include "rules/Catalogo.h"
#include "rules/PuzzBas.h"
#include "tangram/Completado.h"
#include "tangram/Desolape.h"
#include "tangram/Figuras.h"
#include "tangram/Pegado.h"

namespace tessario {

namespace {

constexpr i32 SEPARACION = 20;  // pixels between the column of pieces and the strip

// ---------------------------------------------------------------- sizes
// Sides of the pieces 1 to 7, pixels. Piece 7's width and height are derived.
struct MedidaTangram {
    i16 ancho, alto, diagonal;
};
constexpr MedidaTangram MEDIDAS[] = {{125, 125, 177}, {125, 125, 177}, {89, 89, 125}, {63, 63, 89},
                                     {63, 63, 89},    {63, 63, 89},    {0, 0, 63}};

void LlenaTablas() {
    i32 pieza = 0;
    for (const MedidaTangram& m : MEDIDAS) {
        ++pieza;
        Gbl.TAncho[pieza] = m.ancho;
        Gbl.TAlto[pieza] = m.alto;
        Gbl.TDiagonal[pieza] = m.diagonal;
    }
    Gbl.TAlto[tangram::PARALELOGRAMO] = Entero(std::sqrt(0.5) * 125.0 / 2.0);
    Gbl.TAncho[tangram::PARALELOGRAMO] = Corto(3 * Gbl.TAlto[tangram::PARALELOGRAMO]);
}

void MideTangram() {
    Gbl.NumPiezas = PIEZAS_TANGRAM;
    LlenaTablas();
    if (Gbl.ModoJuego != MODO_CREAR) {
        Sigue([] { TCajaFigura(2); });
        Sigue([] { Gbl.AnchoPuzzle = Corto(Gbl.CajaDer - Gbl.CajaIzq - 1); });
        Sigue([] { Gbl.AltoPuzzle = Corto(Gbl.CajaAba - Gbl.CajaArr - 1); });
    } else {
        Gbl.AnchoPuzzle = Gbl.AnchoPantalla;
        Gbl.AltoPuzzle = Gbl.AltoPantalla;
    }
    // Deliberate: both margins come from the width.
    Gbl.MargenY = static_cast<i16>(Gbl.AnchoPantalla / 40);
    Gbl.MargenX = Gbl.MargenY;
}

i16 Ancho(i16 piece, i16 giro, i16 volteo) {
    TMidePieza(piece, giro, volteo);
    return Gbl.AnchoPieza;
}
i16 Alto(i16 piece, i16 giro, i16 volteo) {
    TMidePieza(piece, giro, volteo);
    return Gbl.AltoPieza;
}

// ---------------------------------------------------------------- deal and side arrangement
void BarajaTangram() {
    i32 y = Gbl.MargenY;
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) {
        Pieza& p = Gbl.Piezas[i];
        p.Giro = p.Volteo = 0;
        Gbl.OrdenPiezas[i] = i;
        p.X = Corto(Pic_Botonera.Left - SEPARACION - AnchoDePieza(i, 0, 0));
        p.Y = Corto(y);
        y += AltoDePieza(i, 0, 0) + Gbl.MargenY;
    }
}

void OrdenaTangram() {
    i32 derecha = Pic_Botonera.Left;
    i32 minimo = derecha;
    i32 y = Gbl.MargenY;
    for (i16 p = 1; p <= PIEZAS_TANGRAM; ++p) {
        if (!PiezaEnSuSitio(p)) {
            SubePieza(PosicionEnOrden(p));
            const i32 w = AnchoDePieza(p, Gbl.Piezas[p].Giro, Gbl.Piezas[p].Volteo);
            const i32 h = AltoDePieza(p, Gbl.Piezas[p].Giro, Gbl.Piezas[p].Volteo);
            if (y + h > Gbl.AltoPantalla) {
                derecha = minimo;
                y = Gbl.MargenY;
            }
            const i32 x = derecha - SEPARACION - w;
            minimo = std::min(minimo, x);
            ApartaPieza(p, x, y);
            y += h + Gbl.MargenY;
        }
        if (!SigueOrdenando()) return;
    }
}

// ---------------------------------------------------------------- turning
bool GiroCorrectoTangram(i16 piece) {
    const Pieza& p = Gbl.Piezas[piece];
    if (EsTriangulo(piece)) return p.Giro == p.GiroBien;
    if ((p.Giro - p.GiroBien) % FichaDeTangram(piece).Periodo != 0) return false;
    return !FichaDeTangram(piece).Voltea || p.Volteo == p.VolteoBien;
}

// Deliberate: uneven tables by the new giro; they follow the triangles' own corners, not a turn
// about a centre. In shares of TAncho.
constexpr double TRIANGULO_X[8] = {-0.4, 0, 0.4, -0.4, 0, 0.4, -0.1, 0.1};
constexpr double TRIANGULO_Y[8] = {-0.1, 0.1, -0.4, 0, 0.4, -0.4, 0, 0.4};

Punto SaltoDeGiro(i16 piece, i16 nuevo) {
    if (EsTriangulo(piece)) {
        if (nuevo < 0 || nuevo > 7) throw ErrorEjecucion(ERROR_INDICE);
        const i16 lado = Gbl.TAncho[piece];
        return {Entero(lado * TRIANGULO_X[nuevo]), Entero(lado * TRIANGULO_Y[nuevo])};
    }
    const Pieza& p = Gbl.Piezas[piece];
    TMidePieza(piece, p.Giro, p.Volteo);
    const i32 ancho = Gbl.AnchoPieza;
    const i32 alto = Gbl.AltoPieza;
    TMidePieza(piece, nuevo, p.Volteo);
    return {Entero((ancho - Gbl.AnchoPieza) / 2.0), Entero((alto - Gbl.AltoPieza) / 2.0)};
}

// ---------------------------------------------------------------- drop
void SueltaPieza() {
    Sigue([] { TDesolapaPieza(); });
    // Deliberate: what had to be pushed off its neighbours is not drawn back to them.
    if (Gbl.AtraccionPiezas && Gbl.TEmpujes == 0) Sigue([] { PegaDosPiezas(); });
}

bool CambiaGemela(i16 piece) {
    if (!ResolviendoModelo() || Gbl.TGemela[piece] == 0) return false;
    TCambiaGemela(piece);
    return true;
}

// ---------------------------------------------------------------- tutor
constexpr i16 PAUSA_DESTELLO = 130, PAUSA_ENTRE = 170;

// The piece vanishes and so does its part of the silhouette; then both come back.
void SenalaSitio(i16 piece) {
    BorraPieza(piece);
    TBorraFigura(piece);
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i)
        if (i != piece) PonPieza(i);
    Pic_Trabajo_Paint();
    SonidoJuego(1, sonido::TUTOR);
    Pausa(PAUSA_DESTELLO);
    TBorraFigura(piece);
    TPintaFigura(Pic_Imagen, piece);
    ColocaPiezas(1);
    Pausa(PAUSA_ENTRE);
}

// ---------------------------------------------------------------- the finished look
// Pieces without borders flow into one figure: it gets them while it is shown.
void EntraEnCompleto() {
    if (Gbl.DibujarBorde) return;
    Gbl.DibujarBorde = true;
    Sigue([] { ColocaPiezas(2); });
    Gbl.DibujarBorde = false;
}

void SaleDeCompleto() {
    if (!Gbl.DibujarBorde) ColocaPiezas(1);
}

// ---------------------------------------------------------------- difficulty
// Pixels of the figure on Pic_FonTamReal, sampled every second pixel both ways.
i32 AreaFigura() {
    const Pixel color = PixelDe(Gbl.ColorContraste);
    const Rect caja = RectDe(Gbl.MargenX, Gbl.MargenY, Gbl.AnchoPuzzle, Gbl.AltoPuzzle);
    const Rect visible = Interseccion(caja, Pic_FonTamReal.Limites());
    i32 cuenta = 0;
    for (i32 y = caja.Arr; y < visible.Aba; y += 2) {
        if (y < 0) continue;
        const Pixel* fila = Pic_FonTamReal.Fila(y);
        for (i32 x = caja.Izq; x < visible.Der; x += 2)
            if (x >= 0 && fila[x] == color) cuenta += 4;  // one sample stands for a 2 x 2 block
    }
    return cuenta;
}

double Dificultad() {
    float figura = 0;
    Sigue([&] {
        const double caja = static_cast<double>(Gbl.AnchoPuzzle) * Gbl.AltoPuzzle;
        if (caja == 0) throw ErrorEjecucion(ERROR_DIVISION);
        figura = static_cast<float>(AreaFigura() * 100.0 / caja);
    });
    const float atraccion = static_cast<float>(100 - Gbl.FactorAtraccion);
    return (figura + atraccion) / 2.0;
}

}  // namespace

const Juego JUEGO_TANGRAM = {
    .Numero = JuegoTangram,
    .Nombre = "Juego del Tangram",
    .Sugerencia = sugerencia::TANGRAM,
    .PiezasPorDefecto = PIEZAS_TANGRAM,
    .Imagen = UsoDeImagen::Ninguno,
    .Giros = 8,
    .TieneModos = true,
    .GuardaModelos = true,
    .PiezasConNombre = true,
    .SeAtraen = true,
    .PiezaQueVoltea = tangram::PARALELOGRAMO,
    .Mide = MideTangram,
    .Crea = [](bool nuevo) { CreaTangram(Booleano(nuevo).Valor()); },
    .Baraja = BarajaTangram,
    .OrdenaLaterales = OrdenaTangram,
    .Dificultad = Dificultad,
    .Ancho = Ancho,
    .Alto = Alto,
    .Mascara = MascaraTangram,
    .GiroCorrecto = GiroCorrectoTangram,
    .SaltoDeGiro = SaltoDeGiro,
    .SeparaPieza = TDesolapaPieza,
    .SueltaPieza = SueltaPieza,
    .AtraeASuSitio = ResolviendoModelo,
    .CambiaGemela = CambiaGemela,
    .SenalaSitio = SenalaSitio,
    .EntraEnCompleto = EntraEnCompleto,
    .SaleDeCompleto = SaleDeCompleto,
    .SugiereGiro = [] { return true; },
    .LadoPosible = [] { return true; },
    .PiezasQueTocan = [] { return i32{PIEZAS_TANGRAM}; },
};

}  // namespace tessario
