// SPDX-License-Identifier: GPL-3.0-or-later
// Circles, ellipses and arcs. Pixel (x, y) stands for the lattice point (x, y); where the curve
// crosses a row or a column of the lattice, the nearer of the two lattice points beside the
// crossing is painted. Neighbouring crossings lie on one lattice cell and so give points of that
// cell: the outline never has a gap.
#include <cmath>
#include <numbers>

#include "platform/Superficie.h"
#include "platform/SuperficieTrazo.h"

namespace tessario {

namespace {

constexpr double VUELTA = 2 * std::numbers::pi;
// Angles nearer than this are the same; finer than a pixel on any curve that can be seen.
constexpr double ANGULO_MINIMO = 1e-6;
// A centre is taken to 1/4096 of a pixel, so that sums which differ in their last bits only, as for
// two cells of one grid, give the same pixels.
constexpr double PARTES_DE_PIXEL = 4096;
// A semi-axis is at least this, so that it can divide.
constexpr double SEMIEJE_MINIMO = 1e-6;

// The place on a circle's rim at one crossing: the pixel and the angle from 0 to a whole turn.
struct Cruce {
    Punto Lugar;
    double Angulo;
};

// The lattice number nearest to origen + desvio, halves towards the origin, so that a curve is as
// symmetric as its centre.
i32 Redondea(double origen, double desvio) {
    const double v = origen + desvio;
    return static_cast<i32>(desvio >= 0 ? std::ceil(v - 0.5) : std::floor(v + 0.5));
}

double EnUnaVuelta(double angulo) {
    const double a = std::fmod(angulo, VUELTA);
    return a < 0 ? a + VUELTA : a;
}

class Elipse {
public:
    // conAngulos: the crossings' angles will be asked for; else they are left at 0.
    Elipse(double cx, double cy, double semiejeX, double semiejeY, bool conAngulos)
        : entX_(Entera(cx)),
          entY_(Entera(cy)),
          x_(Fraccion(cx)),
          y_(Fraccion(cy)),
          a_(std::max(semiejeX, SEMIEJE_MINIMO)),
          b_(std::max(semiejeY, SEMIEJE_MINIMO)),
          conAngulos_(conAngulos) {}

    // The two crossings with a column or a row, lattice number k from the centre's whole part;
    // there must be some: |k - centre| at most the semi-axis.
    void EnColumna(i32 k, std::vector<Cruce>& cruces) const {
        const double u = std::clamp((k - x_) / a_, -1.0, 1.0);
        const double v = std::sqrt((1 - u) * (1 + u));
        for (const double lado : {-v, v})
            cruces.push_back({{entX_ + k, entY_ + Redondea(y_, b_ * lado)}, Angulo(u, lado)});
    }
    void EnFila(i32 k, std::vector<Cruce>& cruces) const {
        const double v = std::clamp((k - y_) / b_, -1.0, 1.0);
        const double u = std::sqrt((1 - v) * (1 + v));
        for (const double lado : {-u, u})
            cruces.push_back({{entX_ + Redondea(x_, a_ * lado), entY_ + k}, Angulo(lado, v)});
    }

    // All crossings with the columns and rows of the zone.
    std::vector<Cruce> Cruces(const Rect& zona) const {
        std::vector<Cruce> cruces;
        const auto [x0, x1] = Rango(x_, a_, zona.Izq - entX_, zona.Der - entX_);
        for (i32 k = x0; k < x1; ++k) EnColumna(k, cruces);
        const auto [y0, y1] = Rango(y_, b_, zona.Arr - entY_, zona.Aba - entY_);
        for (i32 k = y0; k < y1; ++k) EnFila(k, cruces);
        return cruces;
    }

    // Does it lie between the lines of the lattice, and at which pixel then?
    bool SinCruces() const {
        return std::ceil(x_ - a_) > std::floor(x_ + a_) && std::ceil(y_ - b_) > std::floor(y_ + b_);
    }
    Punto Centro() const { return {entX_ + Redondea(x_, 0), entY_ + Redondea(y_, 0)}; }

    // Of the crossings around the point at the angle, the one nearest to it along the curve.
    void MasCercano(double angulo, std::vector<Cruce>& cruces) const {
        std::vector<Cruce> cerca;
        const double px = x_ + a_ * std::cos(angulo), py = y_ - b_ * std::sin(angulo);
        for (const double k : {std::floor(px), std::ceil(px)})
            if (std::abs(k - x_) <= a_) EnColumna(static_cast<i32>(k), cerca);
        for (const double k : {std::floor(py), std::ceil(py)})
            if (std::abs(k - y_) <= b_) EnFila(static_cast<i32>(k), cerca);
        const auto lejania = [angulo](const Cruce& c) {
            const double d = EnUnaVuelta(c.Angulo - angulo);
            return std::min(d, VUELTA - d);
        };
        const auto mejor = std::min_element(
            cerca.begin(), cerca.end(),
            [&](const Cruce& p, const Cruce& q) { return lejania(p) < lejania(q); });
        if (mejor != cerca.end()) cruces.push_back(*mejor);
    }

    // The spans within, one for each row of the zone that the curve crosses; ends included.
    template <class Funcion>
    void Interior(const Rect& zona, Funcion tramo) const {
        const auto [y0, y1] = Rango(y_, b_, zona.Arr - entY_, zona.Aba - entY_);
        std::vector<Cruce> lados;
        for (i32 k = y0; k < y1; ++k) {
            lados.clear();
            EnFila(k, lados);
            tramo(entY_ + k, lados[0].Lugar.x, lados[1].Lugar.x);
        }
    }

private:
    static double EnPartes(double c) { return std::round(c * PARTES_DE_PIXEL) / PARTES_DE_PIXEL; }
    static i32 Entera(double c) { return static_cast<i32>(std::floor(EnPartes(c))); }
    static double Fraccion(double c) { return EnPartes(c) - std::floor(EnPartes(c)); }

    // Counter-clockwise as seen on the screen, where y grows downwards.
    double Angulo(double u, double v) const {
        return conAngulos_ ? EnUnaVuelta(std::atan2(-v, u)) : 0;
    }

    // The lattice numbers from desde up to hasta that the curve crosses.
    static std::pair<i32, i32> Rango(double centro, double semieje, i32 desde, i32 hasta) {
        return {static_cast<i32>(std::max<double>(desde, std::ceil(centro - semieje))),
                static_cast<i32>(std::min<double>(hasta, std::floor(centro + semieje) + 1))};
    }

    i32 entX_, entY_;  // whole part of the centre
    double x_, y_;     // the rest of it
    double a_, b_;     // semi-axes
    bool conAngulos_;
};

// Leaves only the crossings on the arc, both ends included.
void QuedaArco(std::vector<Cruce>& cruces, double inicio, double fin) {
    const double arco = EnUnaVuelta(fin - inicio) + ANGULO_MINIMO;
    const double desde = inicio - ANGULO_MINIMO / 2;
    std::erase_if(cruces, [=](const Cruce& c) { return EnUnaVuelta(c.Angulo - desde) > arco; });
}

// The outline's points that the zone holds.
std::vector<Punto> PuntosDelBorde(const Elipse& elipse, const Rect& zona,
                                  const std::optional<std::pair<double, double>>& arco) {
    std::vector<Punto> puntos;
    if (elipse.SinCruces()) {
        puntos.push_back(elipse.Centro());
    } else {
        auto cruces = elipse.Cruces(zona);
        if (arco) {
            QuedaArco(cruces, arco->first, arco->second);
            elipse.MasCercano(EnUnaVuelta(arco->first), cruces);
            elipse.MasCercano(EnUnaVuelta(arco->second), cruces);
        }
        puntos.reserve(cruces.size());
        for (const Cruce& c : cruces) puntos.push_back(c.Lugar);
    }
    std::erase_if(puntos, [&](const Punto& p) { return !zona.Contiene(p.x, p.y); });
    return puntos;
}

// When the pen inverts, ground and outline are one figure, so that no pixel is inverted twice.
void AgregaInterior(const Elipse& elipse, const Rect& zona, std::vector<Punto>& puntos) {
    elipse.Interior(zona, [&](i32 y, i32 izq, i32 der) {
        const i32 hasta = std::min(der + 1, zona.Der);
        for (i32 x = std::max(izq, zona.Izq); x < hasta; ++x) puntos.push_back({x, y});
    });
}

bool EnRango(double v) {
    return std::abs(v) <= LIMITE_PIXEL;
}  // false for no number

}  // namespace

void Superficie::Circle(int flags, double cx, double cy, double radio, Color color, double inicio,
                        double fin, double aspecto) {
    if (!(flags & pluma::ConAspecto)) aspecto = 1;
    if (!(flags & pluma::AnguloIni)) inicio = 0;
    if (!(flags & pluma::AnguloFin)) fin = VUELTA;
    // Beyond these limits nothing sensible can be seen.
    if (!EnRango(cx) || !EnRango(cy) || !EnRango(radio) || !EnRango(inicio) || !EnRango(fin) ||
        !EnRango(aspecto) || radio < 0 || aspecto < 0)
        return;
    CurrentX = cx;
    CurrentY = cy;

    const bool cerrada = !(flags & (pluma::AnguloIni | pluma::AnguloFin));
    std::optional<std::pair<double, double>> arco;
    if (!cerrada && std::abs(fin - inicio) < VUELTA - ANGULO_MINIMO) arco.emplace(inicio, fin);
    const double semiejeX = aspecto < 1 ? radio : radio / aspecto;
    const double semiejeY = aspecto < 1 ? radio * aspecto : radio;
    const Elipse elipse(cx, cy, semiejeX, semiejeY, arco.has_value());

    const Punta punta(DrawWidth);
    Trazo trazo(*this, flags & pluma::ConColor ? color : ForeColor);
    const Rect zona = punta.Alcance(trazo.Zona());
    auto puntos = PuntosDelBorde(elipse, zona, arco);
    if (cerrada && FillSolido) {
        if (DrawMode == MODO_INVIERTE) {
            AgregaInterior(elipse, zona, puntos);
        } else {
            Trazo suelo(*this, FillColor);
            elipse.Interior(zona, [&](i32 y, i32 izq, i32 der) {
                suelo.Caja({izq, y, der + 1, y + 1});
            });
        }
    }
    PintaPuntos(trazo, punta, puntos);
}

}  // namespace tessario
