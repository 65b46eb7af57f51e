// SPDX-License-Identifier: GPL-3.0-or-later
#include "Busqueda.h"

#include <algorithm>

namespace tessario::modelos {

namespace {

constexpr i32 PASOS = 80000;  // of one attempt
constexpr double CALOR = 0.05, FRIO = 0.0008;
// A gap narrower than this would look like a seam, in sides of the square piece.
constexpr double RENDIJA = 0.15;
constexpr double VALOR_UNION = 0.012;   // of one side's length along which two pieces are joined
constexpr double PENA_ESQUINA = 0.005;  // of each corner of the outline
constexpr double VALOR_DESEO = 0.12;
constexpr double DISTINTOS = 0.08;  // share of the area by which two results must differ

struct Molde {
    const Figurin* figurin = nullptr;
    double area = 0;
};

double AreaDe(i16 pieza) {
    return pieza <= 2 ? 2 : pieza == 4 || pieza == 5 ? 0.5 : 1;
}

const std::array<std::vector<Molde>, PIEZAS>& Moldes() {
    static const auto moldes = [] {
        std::array<std::vector<Molde>, PIEZAS> m;
        for (std::size_t i = 0; i < PIEZAS; ++i)
            for (const Figurin& f : Figurines(static_cast<i16>(i + 1)))
                m[i].push_back({&f, AreaDe(f.pieza)});
        return m;
    }();
    return moldes;
}

// One attempt: pieces are taken off and joined on elsewhere, at first freely, in the end only when
// that brings the figure nearer to the sketch.
class Intento {
public:
    Intento(const Carta& carta, u32 semilla) : carta_(carta), azar_(semilla) {}

    Hallazgo Haz() {
        Empieza();
        for (i32 paso = 0; paso < PASOS; ++paso) {
            calor_ = CALOR * std::pow(FRIO / CALOR, static_cast<double>(paso) / PASOS);
            if (Al(12) == 0)
                Corre();
            else
                Mueve(static_cast<std::size_t>(Al(PIEZAS)));
        }
        Hallazgo h{Total(), {}};
        for (std::size_t i = 0; i < PIEZAS; ++i) h.puestas[i] = puestas_[i];
        return h;
    }

private:
    i32 Al(std::size_t n) { return static_cast<i32>(azar_() % n); }
    double Real01() { return static_cast<double>(azar_()) / 4294967296.0; }

    double Nota(std::size_t i, const Molde& m, const Puesta& p) const {
        double suma = 0;
        for (const Vertice r : m.figurin->muestras)
            suma += static_cast<double>(carta_.En(p.x + r.x + dx_, p.y + r.y + dy_));
        suma *= m.area / (8.0 * static_cast<double>(m.figurin->muestras.size()));
        for (const Deseo& d : carta_.deseos) suma += NotaDeseo(d, i, p);
        return suma;
    }
    double NotaDeseo(const Deseo& d, std::size_t i, const Puesta& p) const {
        if (static_cast<std::size_t>(d.pieza) != i + 1) return 0;
        const double lejos = std::hypot(p.x + p.figurin->centro[0] + dx_ - d.centro.x,
                                        p.y + p.figurin->centro[1] + dy_ - d.centro.y);
        const bool girada = d.giro >= 0 && d.giro != p.figurin->giro;
        return -VALOR_DESEO * (std::min(lejos, 2.0) + (girada ? 1 : 0));
    }
    double Uniones(std::size_t i, const Puesta& p) const {
        double suma = 0;
        for (std::size_t j = 0; j < PIEZAS; ++j)
            if (j != i) suma += LadoComun(p, puestas_[j]);
        return VALOR_UNION * suma;
    }
    double Total() const {
        double suma = 0;
        for (std::size_t i = 0; i < PIEZAS; ++i)
            suma += Nota(i, *moldes_[i], puestas_[i]) + Uniones(i, puestas_[i]) / 2;
        return suma - PENA_ESQUINA * esquinas_;
    }

    // A chain of pieces somewhere in the middle of the chart.
    void Empieza() {
        dx_ = carta_.ancho / (2.0 * Carta::FINURA) + Real01() - 0.5;
        dy_ = carta_.alto / (2.0 * Carta::FINURA) + Real01() - 0.5;
        for (std::size_t i = 0; i < PIEZAS; ++i) {
            hechas_ = i;
            while (!Coloca(i)) {
            }
            puestas_[i] = nueva_;
            moldes_[i] = molde_;
        }
        hechas_ = PIEZAS;
        esquinas_ = Esquinas();
    }

    // A random joint of piece i with another that is laid; false when it overlaps or leaves a seam.
    bool Coloca(std::size_t i) {
        const auto& moldes = Moldes()[i];
        molde_ = &moldes[static_cast<std::size_t>(Al(moldes.size()))];
        const Figurin& f = *molde_->figurin;
        if (hechas_ == 0) {
            nueva_ = Pon(f, {});
            return true;
        }
        std::size_t j = 0;
        do j = static_cast<std::size_t>(Al(hechas_));
        while (j == i);
        const Puesta& otra = puestas_[j];
        const auto& suyos = otra.figurin->asideros;
        const PuntoExacto ancla = otra.origen + suyos[static_cast<std::size_t>(Al(suyos.size()))];
        const PuntoExacto mio = f.asideros[static_cast<std::size_t>(Al(f.asideros.size()))];
        nueva_ = Pon(f, ancla - mio);
        for (std::size_t k = 0; k < hechas_; ++k)
            if (k != i && !Cabe(Separacion(nueva_, puestas_[k]))) return false;
        return true;
    }
    static bool Cabe(double separacion) { return separacion == 0 || separacion >= RENDIJA; }

    bool Unidas() const {
        u32 vistas = 1, antes = 0;
        while (antes != vistas) {
            antes = vistas;
            for (std::size_t i = 0; i < PIEZAS; ++i)
                for (std::size_t j = 0; j < PIEZAS; ++j)
                    if ((vistas >> i & 1) != 0 && (vistas >> j & 1) == 0 &&
                        Separacion(puestas_[i], puestas_[j]) == 0)
                        vistas |= 1U << j;
        }
        return vistas == 127;
    }

    // Corners of the outline.
    i32 Esquinas() const {
        i32 n = 0;
        for (std::size_t i = 0; i < PIEZAS; ++i)
            for (const Lado& l : puestas_[i].figurin->lados) n += EsquinasEn(i, l);
        return n;
    }
    // None where another piece has counted the same point already.
    i32 EsquinasEn(std::size_t i, const Lado& l) const {
        const double x = puestas_[i].x + l.x, y = puestas_[i].y + l.y;
        u32 lleno = 0;
        for (std::size_t j = 0; j < PIEZAS; ++j) {
            const u32 suyo = Octavos(puestas_[j], x, y);
            if (j < i && suyo != 0 && TieneVertice(puestas_[j], x, y)) return 0;
            lleno |= suyo;
        }
        i32 tramos = 0, cuantos = 0;
        for (u32 k = 0; k < 8; ++k) {
            cuantos += static_cast<i32>(lleno >> k & 1);
            tramos += (lleno >> k & 1) != 0 && (lleno >> ((k + 1) % 8) & 1) == 0;
        }
        return tramos == 1 && cuantos == 4 ? 0 : tramos;
    }
    static bool TieneVertice(const Puesta& p, double x, double y) {
        return std::any_of(p.figurin->lados.begin(), p.figurin->lados.end(), [&](const Lado& l) {
            return std::abs(p.x + l.x - x) + std::abs(p.y + l.y - y) < 1e-6;
        });
    }

    bool Vale(double cambio) { return cambio >= 0 || Real01() < std::exp(cambio / calor_); }

    void Mueve(std::size_t i) {
        if (!Coloca(i)) return;
        const double antes = Nota(i, *moldes_[i], puestas_[i]) + Uniones(i, puestas_[i]);
        const double ahora = Nota(i, *molde_, nueva_) + Uniones(i, nueva_);
        const double cambio = ahora - antes;
        if (cambio < -8 * calor_ - 6 * PENA_ESQUINA) return;
        const Puesta vieja = puestas_[i];
        puestas_[i] = nueva_;
        const i32 esquinas = Esquinas();
        if (!Vale(cambio - PENA_ESQUINA * (esquinas - esquinas_)) || !Unidas()) {
            puestas_[i] = vieja;
            return;
        }
        moldes_[i] = molde_;
        esquinas_ = esquinas;
    }

    void Corre() {
        const double x = dx_, y = dy_, antes = Total();
        dx_ += (Real01() - 0.5) * 0.4;
        dy_ += (Real01() - 0.5) * 0.4;
        if (Vale(Total() - antes)) return;
        dx_ = x;
        dy_ = y;
    }

    const Carta& carta_;
    std::mt19937 azar_;
    double dx_ = 0, dy_ = 0, calor_ = CALOR;
    std::size_t hechas_ = 0;
    i32 esquinas_ = 0;
    std::array<Puesta, PIEZAS> puestas_;
    std::array<const Molde*, PIEZAS> moldes_{};
    Puesta nueva_;
    const Molde* molde_ = nullptr;
};

bool Cubre(const Hallazgo& h, double x, double y) {
    return std::any_of(h.puestas.begin(), h.puestas.end(),
                       [&](const Puesta& p) { return Cubre(p, x, y); });
}

std::array<double, 2> Centro(const Hallazgo& h) {
    std::array<double, 2> c{};
    for (const Puesta& p : h.puestas) {
        const double area = AreaDe(p.figurin->pieza) / 8;
        c[0] += (p.x + p.figurin->centro[0]) * area;
        c[1] += (p.y + p.figurin->centro[1]) * area;
    }
    return c;
}

// Do two results paint nearly the same silhouette?
bool Parecidos(const Hallazgo& a, const Hallazgo& b) {
    constexpr double PASO = 0.15, ALCANCE = 5;
    const auto ca = Centro(a), cb = Centro(b);
    i32 distintos = 0, todos = 0;
    for (double y = -ALCANCE; y < ALCANCE; y += PASO)
        for (double x = -ALCANCE; x < ALCANCE; x += PASO) {
            const bool en = Cubre(a, ca[0] + x, ca[1] + y);
            todos += en;
            distintos += en != Cubre(b, cb[0] + x, cb[1] + y);
        }
    return distintos < 2 * DISTINTOS * todos;
}

}  // namespace

std::vector<Hallazgo> Busca(const Carta& carta, i32 intentos, std::size_t cuantos, u32 semilla) {
    std::vector<Hallazgo> todos, buenos;
    for (i32 n = 0; n < intentos; ++n)
        todos.push_back(Intento(carta, semilla + static_cast<u32>(n)).Haz());
    std::sort(todos.begin(), todos.end(),
              [](const Hallazgo& a, const Hallazgo& b) { return a.nota > b.nota; });
    for (const Hallazgo& h : todos) {
        const auto igual = [&h](const Hallazgo& b) { return Parecidos(h, b); };
        if (buenos.size() < cuantos && std::none_of(buenos.begin(), buenos.end(), igual))
            buenos.push_back(h);
    }
    return buenos;
}

}  // namespace tessario::modelos
