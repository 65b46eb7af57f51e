// SPDX-License-Identifier: GPL-3.0-or-later
// The quality of the cut: every grid that the settings window can offer, for each shape and for
// seven picture sizes. With all the pieces at home the masks must cover the picture, no fill may
// run out of its outline, and the two pieces of a double cell must complete each other.
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "jigsaw/Corte.h"
#include "jigsaw/Plantillas.h"
#include "pieces/Formas.h"
#include "pieces/Raster.h"
#include "rules/Medidas.h"

namespace tessario {

namespace {

constexpr Punto TAMANOS[] = {{320, 240}, {400, 300}, {480, 360}, {640, 480},
                             {700, 500}, {800, 600}, {1024, 768}};

// Grids that the seven sizes allow.
constexpr i32 REJILLAS = 87, REJILLAS_TRIANGULOS = 36;

// Largest share of the picture, in percent, that the masks may leave free: only the irregular cut
// leaves any, around the necks of its tabs, and most of all in small cells.
constexpr double HUECO_PERMITIDO[8] = {0, 0, 0.386, 0, 0, 0, 0, 0};

// Grids of the settings window: cells of 25 to 140 pixels, up to 20 a side; triangles from 50, up
// to 15.
std::vector<i16> Rejillas(i16 forma, Punto tamano) {
    const i32 minimo = forma == 3 ? 50 : 25;
    const i32 maximo = forma == 3 ? 15 : 20;
    std::vector<i16> v;
    for (i32 n = 3; n <= maximo; ++n)
        if (tamano.x / n >= minimo && tamano.x / n <= 140 && tamano.y / n >= minimo &&
            tamano.y / n <= 140)
            v.push_back(static_cast<i16>(n));
    return v;
}

// The cut without the table around it.
void Corta(i16 forma, Punto tamano, i16 n) {
    Gbl = Bloque{};
    ReiniciaSuperficies();
    Gbl.FormaPiezas = forma;
    Gbl.PiezasPorLado = n;
    Gbl.PiezasPorCelda = PiezasDeCelda(forma);
    Gbl.AnchoImagen = tamano.x;
    Gbl.AltoImagen = tamano.y;
    CalculaTamanos();
    Gbl.AnchoPieza = Gbl.AnchoCelda;
    Gbl.AltoPieza = Gbl.AltoCelda;
    if (forma == 1 || forma == 2) CreaPlantillas();
    Superficie lineas(1, 1);
    TrazaCortes(lineas);
    Pic_Bitmap.Tamano(1, 1);
    Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
    for (i32 i = 0; i < Gbl.NumPiezas; ++i) {
        const i32 celda = i / Gbl.PiezasPorCelda;
        Gbl.Piezas[i + 1].XBien = static_cast<i16>(celda % n * Gbl.AnchoCelda);
        Gbl.Piezas[i + 1].YBien = static_cast<i16>(celda / n * Gbl.AltoCelda);
    }
}

// ---------------------------------------------------------------- what a mask's area should be

// Half an ellipse on a whole side, as a share of the side squared.
double PanzaCurvada(double aspecto) {
    return std::numbers::pi / 8 * aspecto;
}

// What one irregular side adds to the side that has the tab: the tab less the two humps.
double LadoIrregular(double aspecto) {
    const double r = 0.115, d = 0.09;
    const double lengueta =
        std::numbers::pi * r * r - (r * r * std::acos(d / r) - d * std::sqrt(r * r - d * d));
    return lengueta - std::numbers::pi * 0.22 * 0.22 * aspecto;
}

// Expected pixels of an interlocking piece: the cell, and on each side that is not on the picture's
// edge what bulges or is hollow there. Even cells are hollow above and below, odd ones at the
// sides.
double AreaEntrelazada(i16 piece) {
    const Pieza& z = Gbl.Piezas[piece];
    const double w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    const i32 columna = z.XBien / Gbl.AnchoCelda, fila = z.YBien / Gbl.AltoCelda;
    const bool curva = Gbl.FormaPiezas == 1;
    const double signo = (columna + fila) % 2 == 0 ? 1 : -1;
    const double nivelado = (curva ? -PanzaCurvada(0.3) : LadoIrregular(0.35)) * w * w * signo;
    const double plomo = (curva ? PanzaCurvada(1 / 3.0) : -LadoIrregular(1 / 2.85)) * h * h * signo;
    const i32 ultima = Gbl.PiezasPorLado - 1;
    return w * h + ((fila > 0) + (fila < ultima)) * nivelado +
           ((columna > 0) + (columna < ultima)) * plomo;
}

double AreaFigura() {
    const double w = Gbl.AnchoCelda, h = Gbl.AltoCelda, pi = std::numbers::pi;
    switch (Gbl.FormaPiezas) {
        case 4:
            return pi * std::pow(std::floor(0.35 * std::min(w, h)), 2);
        case 5:
            return (w - 2 * std::round(w * 0.2)) * (h - 2 * std::round(h * 0.2));
        case 6:
            return pi * 0.35 * w * 0.35 * h;
        // Two ellipses with axes a and b / 2, b and a / 2: the union of their unit forms is
        // pi less 4 times the eighth that they share, by the angle whose tangent is 1 / 2.
        default:
            return 0.35 * w * 0.35 * h * (std::numbers::pi - 2 * std::atan(0.5));
    }
}

double AreaEsperada(i16 piece) {
    const double celda = static_cast<double>(Gbl.AnchoCelda) * Gbl.AltoCelda;
    switch (Gbl.FormaPiezas) {
        case 0:
            return celda;
        case 1:
        case 2:
            return AreaEntrelazada(piece);
        case 3:
            return celda / 4;
        default:
            return piece % 2 != 0 ? AreaFigura() : celda - AreaFigura();
    }
}

i32 AreaMascara() {
    i32 negros = 0;
    for (const Pixel p : Pic_PiezaMascara.Dibujo().Pixeles) negros += p == 0;
    return negros;
}

std::string Caso(i16 forma, Punto tamano, i16 n, i32 piece) {
    return "shape " + std::to_string(forma) + ", " + std::to_string(tamano.x) + " x " +
           std::to_string(tamano.y) + ", " + std::to_string(n) + " a side, piece " +
           std::to_string(piece);
}

bool Blanco(i32 x, i32 y) {
    return Pic_PiezaMascara.Point(x, y) == 0xFFFFFF;
}

// Fills that run out reach the corners of the box, where an interlocking piece never comes.
bool EsquinasLimpias() {
    const i32 w = Pic_PiezaMascara.Width() - 1, h = Pic_PiezaMascara.Height() - 1;
    return Blanco(0, 0) && Blanco(w, 0) && Blanco(0, h) && Blanco(w, h);
}

class Cobertura {
public:
    Cobertura()
        : visto_(static_cast<std::size_t>(Gbl.AnchoPuzzle) *
                 static_cast<std::size_t>(Gbl.AltoPuzzle)) {}

    void Anade(const Pieza& z) {
        const i32 x0 = z.XBien - Gbl.SalienteX, y0 = z.YBien - Gbl.SalienteY;
        const Rect r =
            Interseccion({0, 0, Gbl.AnchoPuzzle, Gbl.AltoPuzzle},
                         RectDe(x0, y0, Pic_PiezaMascara.Width(), Pic_PiezaMascara.Height()));
        for (i32 y = r.Arr; y < r.Aba; ++y) {
            const Pixel* m = Pic_PiezaMascara.Fila(y - y0) - x0;
            u8* v = visto_.data() + y * Gbl.AnchoPuzzle;
            for (i32 x = r.Izq; x < r.Der; ++x) v[x] |= m[x] == 0;
        }
    }

    // Pixels of the mask that lie outside the picture, where there is nothing to show.
    static i32 Fuera(const Pieza& z) {
        const i32 x0 = z.XBien - Gbl.SalienteX, y0 = z.YBien - Gbl.SalienteY;
        const Rect imagen{0, 0, Gbl.AnchoPuzzle, Gbl.AltoPuzzle};
        i32 n = 0;
        for (i32 y = 0; y < Pic_PiezaMascara.Height(); ++y)
            for (i32 x = 0; x < Pic_PiezaMascara.Width(); ++x)
                n += Pic_PiezaMascara.Fila(y)[x] == 0 && !imagen.Contiene(x0 + x, y0 + y);
        return n;
    }

    double PorcentajeLibre() const {
        std::size_t libres = 0;
        for (const u8 v : visto_) libres += v == 0;
        return 100.0 * static_cast<double>(libres) / static_cast<double>(visto_.size());
    }

private:
    std::vector<u8> visto_;
};

// The frame's mask is white where the figure's is black, and black elsewhere.
bool EsComplemento(const Mapa& figura, const Mapa& marco) {
    if (figura.Pixeles.size() != marco.Pixeles.size()) return false;
    for (std::size_t i = 0; i < figura.Pixeles.size(); ++i)
        if ((figura.Pixeles[i] ^ marco.Pixeles[i]) != 0xFFFFFF) return false;
    return true;
}

}  // namespace

class CalidadCorte : public PruebaBase, public testing::WithParamInterface<int> {
protected:
    void Recorre(i16 forma, Punto tamano, i16 n) {
        Corta(forma, tamano, n);
        Cobertura cobertura;
        Mapa figura;
        // An outline strays at most a pixel from the ideal one, all around.
        const double tolerancia =
            (forma == 1 || forma == 2 ? 2 : 1) * (Gbl.AnchoCelda + Gbl.AltoCelda);
        for (i16 p = 1; p <= Gbl.NumPiezas; ++p) {
            PreparaPieza(p);
            cobertura.Anade(Gbl.Piezas[p]);
            ASSERT_EQ(Cobertura::Fuera(Gbl.Piezas[p]), 0) << Caso(forma, tamano, n, p);
            ASSERT_NEAR(AreaMascara(), AreaEsperada(p), tolerancia) << Caso(forma, tamano, n, p);
            if (forma == 1 || forma == 2) {
                ASSERT_TRUE(EsquinasLimpias()) << Caso(forma, tamano, n, p);
            }
            if (forma >= 4 && p % 2 == 0) {
                ASSERT_TRUE(EsComplemento(figura, Pic_PiezaMascara.Dibujo()))
                    << Caso(forma, tamano, n, p);
            }
            if (forma >= 4) figura = Pic_PiezaMascara.Dibujo();
        }
        const double libre = cobertura.PorcentajeLibre();
        peor_ = std::max(peor_, libre);
        EXPECT_LE(libre, HUECO_PERMITIDO[forma]) << Caso(forma, tamano, n, 0);
    }

    double peor_ = 0;
};

TEST_P(CalidadCorte, MasksCoverThePictureAndNoFillRunsOut) {
    const i16 forma = static_cast<i16>(GetParam());
    i32 rejillas = 0;
    for (const Punto tamano : TAMANOS)
        for (const i16 n : Rejillas(forma, tamano)) {
            Recorre(forma, tamano, n);
            if (HasFatalFailure()) return;
            ++rejillas;
        }
    // Counted by hand from the settings window's limits.
    EXPECT_EQ(rejillas, forma == 3 ? REJILLAS_TRIANGULOS : REJILLAS);
    RecordProperty("rejillas", rejillas);
    RecordProperty("porcentaje_libre", std::to_string(peor_));
}

INSTANTIATE_TEST_SUITE_P(Formas, CalidadCorte, testing::Range(0, 8));

}  // namespace tessario
