// SPDX-License-Identifier: GPL-3.0-or-later
#include "Exacto.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace tessario::modelos {

namespace {

constexpr double POCO = 1e-6;
constexpr double R = 0.70710678118654752;
constexpr std::array<double, 8> COS = {1, R, 0, -R, -1, -R, 0, R};
constexpr std::array<double, 8> SEN = {0, R, 1, R, 0, -R, -1, -R};

// A side as it runs at turn 0; its length is sqrt(2) to the power given.
struct Trazo {
    i32 rumbo, potencia;
};

// Halves of a cell along one axis of a side of length sqrt(2)^potencia.
Medio Componente(i32 potencia, bool diagonal) {
    const i32 n = potencia - (diagonal ? 1 : 0);
    if (n < 0) return {0, 2};
    return n % 2 == 0 ? Medio{2 << (n / 2), 0} : Medio{0, 4 << (n / 2)};
}

constexpr std::array<i32, 8> SIGNO_X = {1, 1, 0, -1, -1, -1, 0, 1};
constexpr std::array<i32, 8> SIGNO_Y = {0, 1, 1, 1, 0, -1, -1, -1};

PuntoExacto Vector(i32 rumbo, i32 potencia) {
    const Medio m = Componente(potencia, rumbo % 2 != 0);
    const auto i = static_cast<std::size_t>(rumbo);
    return {{SIGNO_X[i] * m.u, SIGNO_X[i] * m.v}, {SIGNO_Y[i] * m.u, SIGNO_Y[i] * m.v}};
}

std::vector<Trazo> Contorno(i16 pieza, i16 volteo) {
    if (pieza == 6) return {{0, 0}, {2, 0}, {4, 0}, {6, 0}};
    if (pieza == 7)
        return volteo == 0 ? std::vector<Trazo>{{0, 1}, {1, 0}, {4, 1}, {5, 0}}
                           : std::vector<Trazo>{{0, 1}, {3, 0}, {4, 1}, {7, 0}};
    const i32 cateto = pieza <= 2 ? 2 : pieza == 3 ? 1 : 0;
    return {{7, cateto}, {1, cateto}, {4, cateto + 1}};
}

Sombras Proyecta(const std::vector<PuntoExacto>& vertices) {
    Sombras s;
    s.desde.fill(std::numeric_limits<double>::max());
    s.hasta.fill(std::numeric_limits<double>::lowest());
    for (const PuntoExacto& p : vertices) {
        const double x = p.x.Valor(), y = p.y.Valor();
        const std::array<double, 4> ejes = {x, y, x + y, x - y};
        for (std::size_t k = 0; k < 4; ++k) {
            s.desde[k] = std::min(s.desde[k], ejes[k]);
            s.hasta[k] = std::max(s.hasta[k], ejes[k]);
        }
    }
    return s;
}

bool EnSombras(const Sombras& s, double x, double y) {
    const std::array<double, 4> ejes = {x, y, x + y, x - y};
    for (std::size_t k = 0; k < 4; ++k)
        if (ejes[k] < s.desde[k] - POCO || ejes[k] > s.hasta[k] + POCO) return false;
    return true;
}

std::vector<Vertice> Muestrea(const Sombras& s) {
    constexpr double PASO = 0.125;
    std::vector<Vertice> puntos;
    for (double y = s.desde[1] + PASO / 2; y < s.hasta[1]; y += PASO)
        for (double x = s.desde[0] + PASO / 2; x < s.hasta[0]; x += PASO)
            if (EnSombras(s, x, y)) puntos.push_back({x, y});
    return puntos;
}

Figurin Haz(i16 pieza, i16 giro, i16 volteo) {
    Figurin f{pieza, giro, volteo, {}, {}, {}, {}, {}, {}, {}};
    PuntoExacto p;
    const auto contorno = Contorno(pieza, volteo);
    i32 anterior = contorno.back().rumbo;
    for (const Trazo& t : contorno) {
        const i32 angulo = (anterior + 12 - t.rumbo) % 8;
        anterior = t.rumbo;
        const i32 rumbo = (t.rumbo + giro) % 8;
        const PuntoExacto paso = Vector(rumbo, t.potencia);
        f.vertices.push_back(p);
        f.asideros.push_back(p);
        f.asideros.push_back(
            p + PuntoExacto{{paso.x.u / 2, paso.x.v / 2}, {paso.y.u / 2, paso.y.v / 2}});
        f.lados.push_back(
            {p.x.Valor(), p.y.Valor(), rumbo, std::pow(std::sqrt(2.0), t.potencia), angulo});
        p = p + paso;
    }
    f.sombras = Proyecta(f.vertices);
    f.muestras = Muestrea(f.sombras);
    const auto menor = [](Medio a, Medio b) { return a.Valor() < b.Valor(); };
    for (const PuntoExacto& v : f.vertices) {
        f.centro[0] += v.x.Valor() / static_cast<double>(f.vertices.size());
        f.centro[1] += v.y.Valor() / static_cast<double>(f.vertices.size());
        f.esquina.x = std::min(f.esquina.x, v.x, menor);
        f.esquina.y = std::min(f.esquina.y, v.y, menor);
    }
    return f;
}

std::array<std::vector<Figurin>, PIEZAS + 1> HazTodos() {
    std::array<std::vector<Figurin>, PIEZAS + 1> todos;
    for (i16 pieza = 1; pieza <= i16{PIEZAS}; ++pieza)
        for (i16 volteo = 0; volteo < Caras(pieza); ++volteo)
            for (i16 giro = 0; giro < GIROS[static_cast<std::size_t>(pieza)]; ++giro)
                todos[static_cast<std::size_t>(pieza)].push_back(Haz(pieza, giro, volteo));
    return todos;
}

}  // namespace

const std::vector<Figurin>& Figurines(i16 pieza) {
    static const auto todos = HazTodos();
    return todos.at(static_cast<std::size_t>(pieza));
}

Puesta Pon(const Figurin& figurin, PuntoExacto origen) {
    return {&figurin, origen, origen.x.Valor(), origen.y.Valor()};
}

double Separacion(const Puesta& a, const Puesta& b) {
    const double dx = b.x - a.x, dy = b.y - a.y;
    const std::array<double, 4> ejes = {dx, dy, dx + dy, dx - dy};
    const Sombras &sa = a.figurin->sombras, &sb = b.figurin->sombras;
    double mayor = std::numeric_limits<double>::lowest();
    for (std::size_t k = 0; k < 4; ++k) {
        const double hueco =
            std::max(sb.desde[k] + ejes[k] - sa.hasta[k], sa.desde[k] - sb.hasta[k] - ejes[k]);
        mayor = std::max(mayor, k < 2 ? hueco : hueco / std::sqrt(2.0));
    }
    return std::abs(mayor) < POCO ? 0 : mayor;
}

double LadoComun(const Puesta& a, const Puesta& b) {
    double suma = 0;
    for (const Lado& p : a.figurin->lados)
        for (const Lado& q : b.figurin->lados) {
            if ((p.rumbo + 4) % 8 != q.rumbo) continue;
            const auto i = static_cast<std::size_t>(p.rumbo);
            const double dx = b.x + q.x - a.x - p.x, dy = b.y + q.y - a.y - p.y;
            if (std::abs(COS[i] * dy - SEN[i] * dx) > POCO) continue;
            const double fin = COS[i] * dx + SEN[i] * dy;  // q runs back from here
            suma += std::max(0.0, std::min(p.largo, fin) - std::max(0.0, fin - q.largo));
        }
    return suma;
}

u32 Octavos(const Puesta& p, double x, double y) {
    const double dx = x - p.x, dy = y - p.y;
    u32 lleno = 0;
    const auto abre = [&lleno](i32 desde, i32 cuantos) {
        for (i32 k = 0; k < cuantos; ++k) lleno |= 1U << ((desde + k) % 8);
    };
    for (const Lado& l : p.figurin->lados) {
        const auto i = static_cast<std::size_t>(l.rumbo);
        const double a = dx - l.x, b = dy - l.y;
        if (std::abs(COS[i] * b - SEN[i] * a) > POCO) continue;
        const double avance = COS[i] * a + SEN[i] * b;
        if (std::abs(avance) < POCO)
            abre(l.rumbo, l.angulo);
        else if (avance > 0 && avance < l.largo - POCO)
            abre(l.rumbo, 4);
    }
    return lleno;
}

bool Cubre(const Puesta& p, double x, double y) {
    return EnSombras(p.figurin->sombras, x - p.x, y - p.y);
}

Puesta Pon(const Sitio& sitio) {
    for (const Figurin& f : Figurines(sitio.pieza))
        if (f.giro == sitio.giro && f.volteo == sitio.volteo)
            return Pon(f, sitio.esquina - f.esquina);
    throw std::runtime_error("a turn that no piece has");
}

Sitio SitioDe(const Puesta& p) {
    return {p.figurin->pieza, p.figurin->giro, p.figurin->volteo, p.origen + p.figurin->esquina};
}

}  // namespace tessario::modelos
