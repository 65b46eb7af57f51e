#include "session/Dificultad.h"

#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "sliding/Tablero.h"

namespace tessario {

namespace {

// Greatest disorder of the sliding board, by PiezasPorLado from LADO_MINIMO to LADO_MAXIMO.
constexpr i16 MAX_DESORDEN[] = {20, 58, 112, 206, 324, 498, 702};

// By TipoFondo from 1: a bare image is the hardest, numbers are the easiest.
constexpr float FACTOR_FONDO[] = {100, 20, 35};

constexpr float DIFICULTAD_MINIMA = 0.1F, DIFICULTAD_MAXIMA = 99.9F;

double ValorMoviles() {
    if (Gbl.PiezasPorCelda == 0) throw ErrorEjecucion(ERROR_DIVISION);
    const i32 area = Gbl.AnchoCelda * Gbl.AltoCelda / Gbl.PiezasPorCelda;
    const float tamano = 100.0F - static_cast<float>(area - 312) / 193.0F;
    const float cuenta = static_cast<float>(Gbl.NumPiezas - 9) / 8.91F;
    const float atraccion = static_cast<float>(100 - Gbl.FactorAtraccion);
    const float giro = Gbl.PermitirGiro ? 100.0F : 0.0F;
    const double valor = (tamano * 0.6 + cuenta * 1.4 + atraccion * 1.3 + giro * 0.7) / 4;
    return valor * (Gbl.FormaPiezas / 50.0 + 1);
}

float FactorDesorden() {
    i32 desorden = 0;
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i) {
        const Pieza& p = Gbl.Piezas[i];
        desorden += DistanciaCeldas(p.X, p.Y, p.XBien, p.YBien);
    }
    if (Gbl.PiezasPorLado < LADO_MINIMO || Gbl.PiezasPorLado > LADO_MAXIMO)
        throw ErrorEjecucion(ERROR_INDICE);
    const i16 maximo = MAX_DESORDEN[Gbl.PiezasPorLado - LADO_MINIMO];
    return static_cast<float>(desorden) * 100.0F / static_cast<float>(maximo);
}

double ValorDeslizantes() {
    float desorden = 0;
    Sigue([&] { desorden = FactorDesorden(); });
    const float cuenta = static_cast<float>(Gbl.NumPiezas - 8) / 0.72F;
    const bool conocido = Gbl.TipoFondo >= FONDO_IMAGEN && Gbl.TipoFondo <= FONDO_LETRAS;
    const float fondo = conocido ? FACTOR_FONDO[Gbl.TipoFondo - FONDO_IMAGEN] : 0.0F;
    return (desorden + cuenta + fondo) / 3.0;
}

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

double ValorTangram() {
    float figura = 0;
    Sigue([&] {
        const double caja = static_cast<double>(Gbl.AnchoPuzzle) * Gbl.AltoPuzzle;
        if (caja == 0) throw ErrorEjecucion(ERROR_DIVISION);
        figura = static_cast<float>(AreaFigura() * 100.0 / caja);
    });
    const float atraccion = static_cast<float>(100 - Gbl.FactorAtraccion);
    return (figura + atraccion) / 2.0;
}

double Valor() {
    switch (Gbl.JuegoActual) {
        case JuegoMoviles:
            return ValorMoviles();
        case JuegoDeslizantes:
            return ValorDeslizantes();
        case JuegoTangram:
            return ValorTangram();
        default:
            return 0;
    }
}

}  // namespace

void CalculaDificultad() {
    double valor = 0;
    Sigue([&] { valor = Valor(); });
    if (valor <= 0)
        Gbl.Dificultad = DIFICULTAD_MINIMA;
    else if (valor >= 100)
        Gbl.Dificultad = DIFICULTAD_MAXIMA;
    else
        Gbl.Dificultad = static_cast<float>(valor);
}

}  // namespace tessario
