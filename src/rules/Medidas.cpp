#include "rules/Medidas.h"

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "pieces/Formas.h"

namespace tessario {

namespace {

constexpr i16 FORMA_CURVADOS = 1, FORMA_TRIANGULOS = 3;
constexpr i32 FRANJA_DESLIZANTES = 65;  // height of the screen that the sliding board leaves free

// Sides of the Tangram pieces 1 to 7, pixels. Piece 7's width and height are derived.
struct MedidaTangram {
    i16 ancho, alto, diagonal;
};
constexpr MedidaTangram MEDIDAS_TANGRAM[] = {{125, 125, 177}, {125, 125, 177}, {89, 89, 125},
                                             {63, 63, 89},    {63, 63, 89},    {63, 63, 89},
                                             {0, 0, 63}};

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

// The cuts of two shapes need cells of a certain parity.
void AjustaParidad() {
    if (Gbl.FormaPiezas == FORMA_CURVADOS) {
        if (EsPar(Gbl.AnchoCelda)) --Gbl.AnchoCelda;
        if (EsPar(Gbl.AltoCelda)) --Gbl.AltoCelda;
    } else if (Gbl.FormaPiezas == FORMA_TRIANGULOS) {
        // Deliberate: width odd, height even; the triangle cut needs the asymmetry.
        if (EsPar(Gbl.AnchoCelda)) --Gbl.AnchoCelda;
        if (!EsPar(Gbl.AltoCelda)) --Gbl.AltoCelda;
    }
}

void MideMoviles() {
    const double lado = Gbl.PiezasPorLado;
    Sigue([&] { Gbl.NumPiezas = Entero(lado * lado * Gbl.PiezasPorCelda); });
    Sigue([] { Gbl.AnchoCelda = CeldaDeImagen(Gbl.AnchoImagen); });
    Sigue([] { Gbl.AltoCelda = CeldaDeImagen(Gbl.AltoImagen); });
    AjustaParidad();
    Sigue([] { Gbl.AnchoPuzzle = Corto(Gbl.AnchoCelda * Gbl.PiezasPorLado); });
    Sigue([] { Gbl.AltoPuzzle = Corto(Gbl.AltoCelda * Gbl.PiezasPorLado); });
    Gbl.MargenX = Gbl.MargenY = 0;
}

// Left edge of the strip on a table without scroll bars. Those of the game that is being left may
// still stand, with the strip beside them; the sliding board, which never scrolls, is centred in
// the room that it will have.
i32 TiraSinBarras() {
    return Pic_Botonera.Left + (BarraVer.Visible ? BarraVer.Width() : 0);
}

void MideDeslizantes() {
    const double lado = Gbl.PiezasPorLado;
    const i32 libre = Gbl.AltoPantalla - FRANJA_DESLIZANTES;
    Sigue([&] { Gbl.NumPiezas = Entero(lado * lado - 1); });
    Sigue([&] {
        if (Gbl.PiezasPorLado == -2) throw ErrorEjecucion(ERROR_DIVISION);
        Gbl.AltoCelda = Entero(static_cast<double>(libre) / (Gbl.PiezasPorLado + 2));
    });
    Gbl.AnchoCelda = Gbl.AltoCelda;
    Sigue([] { Gbl.AltoPuzzle = Corto(Gbl.AltoCelda * Gbl.PiezasPorLado); });
    Gbl.AnchoPuzzle = Gbl.AltoPuzzle;
    Sigue([&] { Gbl.MargenY = Corto((libre - Gbl.AltoPuzzle) / 2); });
    Sigue([] { Gbl.MargenX = Corto((TiraSinBarras() - Gbl.AnchoPuzzle) / 2); });
}

void LlenaTablasTangram() {
    i32 pieza = 0;
    for (const MedidaTangram& m : MEDIDAS_TANGRAM) {
        ++pieza;
        Gbl.TAncho[pieza] = m.ancho;
        Gbl.TAlto[pieza] = m.alto;
        Gbl.TDiagonal[pieza] = m.diagonal;
    }
    Gbl.TAlto[7] = Entero(std::sqrt(0.5) * 125.0 / 2.0);
    Gbl.TAncho[7] = Corto(3 * Gbl.TAlto[7]);
}

void MideTangram() {
    Gbl.NumPiezas = 7;
    LlenaTablasTangram();
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

}  // namespace

void CalculaTamanos() {
    switch (Gbl.JuegoActual) {
        case JuegoMoviles:
            MideMoviles();
            break;
        case JuegoDeslizantes:
            MideDeslizantes();
            break;
        case JuegoTangram:
            MideTangram();
            break;
        default:
            break;
    }
}

}  // namespace tessario
