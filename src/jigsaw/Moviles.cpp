// SPDX-License-Identifier: GPL-3.0-or-later
#include "jigsaw/Moviles.h"

#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "jigsaw/Corte.h"
#include "jigsaw/Reparto.h"
#include "panel/Sugerencias.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "pieces/Moldes.h"
#include "pieces/Raster.h"
#include "rules/Catalogo.h"

namespace tessario {

namespace {

// ---------------------------------------------------------------- sizes
i16 Cociente(i32 dividendo, i32 divisor) {
    if (divisor == 0) throw ErrorEjecucion(ERROR_DIVISION);
    return Corto(dividendo / divisor);
}

bool EsPar(i16 n) {
    return n % 2 == 0;
}

i16 CeldaDeImagen(i32 lado) {
    const double conZoom = Int(static_cast<double>(lado) * Gbl.ZoomImagen / 100.0);
    return Cociente(EnteroLargo(conZoom), Gbl.PiezasPorLado);
}

void AjustaParidad(i16& lado, Paridad paridad) {
    if (paridad == (EsPar(lado) ? Paridad::Impar : Paridad::Par)) --lado;
}

void MideMoviles() {
    const double lado = Gbl.PiezasPorLado;
    Sigue([&] { Gbl.NumPiezas = Entero(lado * lado * Gbl.PiezasPorCelda); });
    Sigue([] { Gbl.AnchoCelda = CeldaDeImagen(Gbl.AnchoImagen); });
    Sigue([] { Gbl.AltoCelda = CeldaDeImagen(Gbl.AltoImagen); });
    if (EsForma(Gbl.FormaPiezas)) {
        AjustaParidad(Gbl.AnchoCelda, FichaDeForma(Gbl.FormaPiezas).Ancho);
        AjustaParidad(Gbl.AltoCelda, FichaDeForma(Gbl.FormaPiezas).Alto);
    }
    Sigue([] { Gbl.AnchoPuzzle = Corto(Gbl.AnchoCelda * Gbl.PiezasPorLado); });
    Sigue([] { Gbl.AltoPuzzle = Corto(Gbl.AltoCelda * Gbl.PiezasPorLado); });
    Gbl.MargenX = Gbl.MargenY = 0;
}

// Deliberate: the test is for the values 0 and 2, not for an even number.
bool EstaDerecha(i16 giro) {
    return giro == 0 || giro == 2;
}
i16 Ancho(i16, i16 giro, i16) {
    return EstaDerecha(giro) ? Gbl.AnchoPieza : Gbl.AltoPieza;
}
i16 Alto(i16, i16 giro, i16) {
    return EstaDerecha(giro) ? Gbl.AltoPieza : Gbl.AnchoPieza;
}

// ---------------------------------------------------------------- turning
// Quarter of its cell that a triangle fills, by side: top, right, bottom, left.
constexpr double CUARTO_X[4] = {-0.25, 0.25, 0.25, -0.25};
constexpr double CUARTO_Y[4] = {-0.25, -0.25, 0.25, 0.25};

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

Punto SaltoDelTriangulo(i16 piece) {
    PreparaPieza(piece);
    const std::size_t lado = LadoDelTriangulo();
    const i32 l = lado == 0 || lado == 2 ? Pic_PiezaMascara.Height() : Pic_PiezaMascara.Width();
    return {Entero(l * CUARTO_X[lado]), Entero(l * CUARTO_Y[lado])};
}

// The box turns about its centre; a triangle stays in its quarter of the cell.
Punto SaltoDeGiro(i16 piece, i16) {
    if (Gbl.FormaPiezas == forma::TRIANGULOS) return SaltoDelTriangulo(piece);
    const Pieza& p = Gbl.Piezas[piece];
    const i32 ancho = AnchoDePieza(piece, p.Giro, p.Volteo);
    const i32 alto = AltoDePieza(piece, p.Giro, p.Volteo);
    const i16 dx = Entero((ancho - alto) / 2.0);
    return {dx, -dx};
}

bool GiroCorrectoMoviles(i16 piece) {
    return Gbl.Piezas[piece].Giro == Gbl.Piezas[piece].GiroBien;
}

// ---------------------------------------------------------------- tutor
constexpr i16 PAUSA_DESTELLO = 130, PAUSA_ENTRE = 170;

// The table's pen inverts what it paints on, for as long as this lives.
class PlumaQueInvierte {
public:
    PlumaQueInvierte() { Pic_Trabajo.DrawMode = MODO_INVIERTE; }
    ~PlumaQueInvierte() { Pic_Trabajo.DrawMode = MODO_COPIA; }
    PlumaQueInvierte(const PlumaQueInvierte&) = delete;
    PlumaQueInvierte& operator=(const PlumaQueInvierte&) = delete;
};

// The piece vanishes and its place in the picture is shown inverted; then all is as before.
void SenalaSitio(i16 piece) {
    const PlumaQueInvierte invierte;
    BorraPieza(piece);
    Pic_Trabajo_Paint();
    const Pieza& p = Gbl.Piezas[piece];
    Pic_Trabajo.Line(pluma::Desde | pluma::Caja | pluma::Llena, p.XBien, p.YBien,
                     p.XBien + Gbl.AnchoCelda, p.YBien + Gbl.AltoCelda);
    SonidoJuego(1, sonido::TUTOR);
    Pausa(PAUSA_DESTELLO);
    // Deliberate: the piece comes back above its neighbours, though its place in the stacking
    // order is the old one; the next redraw of its surroundings puts that right.
    PonPieza(piece);
    Pic_Trabajo_Paint();
    Pausa(PAUSA_ENTRE);
}

// ---------------------------------------------------------------- the finished look
// The puzzle's area of the table's picture, from another surface.
void CopiaEnImagen(const Superficie& origen) {
    BitBlt(Pic_Imagen, 0, 0, Gbl.AnchoPuzzle, Gbl.AltoPuzzle, origen, 0, 0, SRCCOPY);
}

// The picture itself, whole: the joints disappear.
void EntraEnCompleto() {
    CopiaEnImagen(Pic_FonTamModi);
}

void SaleDeCompleto() {
    CopiaEnImagen(Pic_Bitmap);
    Pic_Trabajo_Paint();
}

// ---------------------------------------------------------------- sample view, difficulty, record
void ColocaMuestra() {
    Pic_Muestra.Mueve(Pic_Botonera.Left - Pic_Muestra.Width(),
                      BarraHor.Top - Pic_Muestra.Height() + BarraVer.Value);
}

double Dificultad() {
    if (Gbl.PiezasPorCelda == 0) throw ErrorEjecucion(ERROR_DIVISION);
    const i32 area = Gbl.AnchoCelda * Gbl.AltoCelda / Gbl.PiezasPorCelda;
    const float tamano = 100.0F - static_cast<float>(area - 312) / 193.0F;
    const float cuenta = static_cast<float>(Gbl.NumPiezas - 9) / 8.91F;
    const float atraccion = static_cast<float>(100 - Gbl.FactorAtraccion);
    const float giro = Gbl.PermitirGiro ? 100.0F : 0.0F;
    const double valor = (tamano * 0.6 + cuenta * 1.4 + atraccion * 1.3 + giro * 0.7) / 4;
    return valor * (Gbl.FormaPiezas / 50.0 + 1);
}

i32 PiezasQueTocan() {
    return i32{Gbl.PiezasPorLado} * Gbl.PiezasPorLado * Gbl.PiezasPorCelda;
}

}  // namespace

const Juego JUEGO_MOVILES = {
    .Numero = JuegoMoviles,
    .Nombre = "Puzzle de piezas móviles",
    .Sugerencia = sugerencia::MOVILES,
    .PiezasPorDefecto = 25,
    .Imagen = UsoDeImagen::Necesario,
    .MuestraPorDefecto = true,
    .Giros = 4,
    .GiraImagen = true,
    .SeDesplaza = true,
    .TieneFormas = true,
    .OrdenOcultas = true,
    .Mide = MideMoviles,
    .Crea = CreaMoviles,
    .Baraja = BarajaMoviles,
    .OrdenaLaterales = OrdenaMoviles,
    .Dificultad = Dificultad,
    .Ancho = Ancho,
    .Alto = Alto,
    .Mascara = MascaraMovil,
    .GiroCorrecto = GiroCorrectoMoviles,
    .SaltoDeGiro = SaltoDeGiro,
    .AtraeASuSitio = [] { return true; },
    .SenalaSitio = SenalaSitio,
    .EntraEnCompleto = EntraEnCompleto,
    .SaleDeCompleto = SaleDeCompleto,
    .HayMuestra = [] { return true; },
    .ColocaMuestra = ColocaMuestra,
    .SugiereGiro = [] { return bool{Gbl.PermitirGiro}; },
    .LadoPosible = [] { return Gbl.PiezasPorLado >= 1; },
    .PiezasQueTocan = PiezasQueTocan,
};

}  // namespace tessario
