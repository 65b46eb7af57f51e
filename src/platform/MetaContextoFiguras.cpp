// SPDX-License-Identifier: GPL-3.0-or-later
// Lines, figures, arcs and paths: from logical coordinates to outlines in pixels.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/MetaContexto.h"

namespace tessario {

namespace {

constexpr double VUELTA = 2 * std::numbers::pi;
constexpr u8 CIERRA = 1, LINEA = 2, CURVA = 4, MUEVE = 6;  // kinds of points of a drawn path

double Distancia(PuntoD a, PuntoD b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

// Parts of a curve of this length, in pixels, so that the corners are not seen.
int Partes(double largo) {
    constexpr double POR_PIXEL = 1.5;
    constexpr int MENOS = 4, MAS = 400;
    if (!(largo > 0)) return MENOS;
    return static_cast<int>(std::clamp(std::sqrt(largo) * POR_PIXEL, double{MENOS}, double{MAS}));
}

}  // namespace

// --- What all figures end in.

Contorno& ContextoMeta::FiguraAbierta() {
    if (!figuraAbierta_ || camino_.empty()) {
        camino_.push_back({{Redondo(E.Pluma)}, false});
        figuraAbierta_ = true;
    }
    return camino_.back();
}

void ContextoMeta::Anade(Trazado t) {
    for (Contorno& c : t) {
        puntosCamino_ += c.Puntos.size() + 1;
        camino_.push_back(std::move(c));
    }
    Limita(puntosCamino_);
    figuraAbierta_ = false;
}

void ContextoMeta::Pinta(Trazado t, bool rellena) {
    if (t.empty()) return;
    std::size_t puntos = 0;
    for (const Contorno& c : t) puntos += c.Puntos.size();
    Cuenta(puntos);
    if (enCamino_) {
        Anade(std::move(t));
        return;
    }
    Figura(t, E.Alterno, rellena, true);
}

void ContextoMeta::Figura(const Trazado& t, bool alterno, bool rellena, bool traza) {
    const ModosMeta m = Modos();
    BrochaMeta b = BrochaDe(*E.ObjBrocha);
    PlumaMeta p = PlumaViva();
    if (!rellena) b.Tipo = BrochaMeta::Clase::Nula;
    if (!traza) p.Nula = true;
    if (!ReglasEmf) {
        pintor_.Figura(t, alterno, b, p, m);
        return;
    }
    if (b.Tipo != BrochaMeta::Clase::Nula) pintor_.Rellena(t, alterno, b, m);
    if (!p.Nula) pintor_.Traza(t, p, m);
}

// --- Lines.

void ContextoMeta::MueveA(PuntoD p) {
    E.Pluma = p;
    figuraAbierta_ = false;
}

void ContextoMeta::LineaA(PuntoD p) {
    const PuntoD uno[] = {p};
    Polilinea(uno, true);
}

void ContextoMeta::Polilinea(std::span<const PuntoD> p, bool sigue) {
    if (p.empty()) return;
    Cuenta(p.size());
    std::vector<PuntoD> v;
    if (sigue) v.push_back(Redondo(E.Pluma));
    for (const PuntoD& q : p) v.push_back(Redondo(q));
    if (sigue && enCamino_) {
        Contorno& c = FiguraAbierta();
        c.Puntos.insert(c.Puntos.end(), v.begin() + 1, v.end());
        puntosCamino_ += v.size();
        Limita(puntosCamino_);
    } else {
        Pinta({{std::move(v), false}}, false);
    }
    if (sigue) E.Pluma = p.back();
}

void ContextoMeta::Curva(PuntoD a, PuntoD b, PuntoD c, PuntoD d, std::vector<PuntoD>& p) {
    const int n = Partes(Distancia(a, b) + Distancia(b, c) + Distancia(c, d));
    Cuenta(static_cast<std::size_t>(n));
    for (int i = 1; i <= n; ++i) {
        const double t = static_cast<double>(i) / n, u = 1 - t;
        const double k0 = u * u * u, k1 = 3 * u * u * t, k2 = 3 * u * t * t, k3 = t * t * t;
        p.push_back(
            {k0 * a.x + k1 * b.x + k2 * c.x + k3 * d.x, k0 * a.y + k1 * b.y + k2 * c.y + k3 * d.y});
    }
}

void ContextoMeta::Bezier(std::span<const PuntoD> p, bool sigue) {
    std::size_t i = 0;
    PuntoD desde = E.Pluma;
    if (!sigue) {
        if (p.empty()) return;
        desde = p[i++];
    }
    if (p.size() < i + 3) return;
    std::vector<PuntoD> v{Redondo(desde)};
    PuntoD ultimo = desde;
    for (; i + 3 <= p.size(); i += 3) {
        Limita(v.size());
        Curva(v.back(), Redondo(p[i]), Redondo(p[i + 1]), Redondo(p[i + 2]), v);
        ultimo = p[i + 2];
    }
    if (sigue && enCamino_) {
        Contorno& c = FiguraAbierta();
        c.Puntos.insert(c.Puntos.end(), v.begin() + 1, v.end());
        puntosCamino_ += v.size();
        Limita(puntosCamino_);
    } else {
        Pinta({{std::move(v), false}}, false);
    }
    if (sigue) E.Pluma = ultimo;
}

void ContextoMeta::PoliDibujo(std::span<const PuntoD> p, std::span<const u8> clase) {
    Trazado t;
    Contorno c;
    PuntoD inicio = E.Pluma;
    std::size_t puntos = 0;
    const auto acaba = [&] {
        puntos += c.Puntos.size();
        if (c.Puntos.size() > 1) t.push_back(std::move(c));
        c = {};
    };
    const std::size_t n = std::min(p.size(), clase.size());
    Cuenta(n);
    for (std::size_t i = 0; i < n; ++i) {
        const u8 k = clase[i] & static_cast<u8>(~CIERRA);
        std::size_t ultimo = i;
        if (k == MUEVE) {
            acaba();
            inicio = E.Pluma = p[i];
            continue;
        }
        if (c.Puntos.empty()) {
            inicio = E.Pluma;
            c.Puntos.push_back(Redondo(E.Pluma));
        }
        if (k == LINEA) {
            c.Puntos.push_back(Redondo(p[i]));
        } else if (k == CURVA && i + 2 < n) {
            Curva(c.Puntos.back(), Redondo(p[i]), Redondo(p[i + 1]), Redondo(p[i + 2]), c.Puntos);
            ultimo = i += 2;
        } else {
            break;
        }
        Limita(puntos + c.Puntos.size());
        E.Pluma = p[ultimo];
        if (clase[ultimo] & CIERRA) {
            c.Cerrado = true;
            acaba();
            E.Pluma = inicio;
        }
    }
    acaba();
    Pinta(std::move(t), false);
}

void ContextoMeta::Poligonos(const std::vector<std::vector<PuntoD>>& p, bool cerrados) {
    Trazado t;
    std::size_t total = 0;
    for (const auto& uno : p) {
        total += uno.size();
        Limita(total);
        if (uno.size() < 2) continue;
        Contorno c;
        c.Cerrado = cerrados;
        for (const PuntoD& q : uno) c.Puntos.push_back(Redondo(q));
        t.push_back(std::move(c));
    }
    Pinta(std::move(t), cerrados);
}

// --- Boxes and what is round in them. Their outlines run counter-clockwise on the screen.

// Deliberate: the right column and the lower row of a box are outside it, as with every box that
// is given by two corners in these files; and what is round is not turned with the world but drawn
// between the corners where they come, unless `girada` or within a path. Empty: the box has no
// breadth or no height.
std::optional<ContextoMeta::CajaFigura> ContextoMeta::Caja(PuntoD a, PuntoD b, bool girada) const {
    const Matriz m = AlDispositivo();
    CajaFigura c;
    if (m.Recta() || (!girada && !enCamino_)) {
        const PlumaMeta pluma = PlumaViva();
        const bool encoge = pluma.Dentro && !pluma.Fina && !pluma.Nula && !ReglasEmf;
        const double dentro = encoge ? pluma.Ancho / 2 : 0;
        const double borde = ReglasEmf && pluma.Nula ? 0 : 1;
        const PuntoD p = Redondo(a), q = Redondo(b);
        const double izq = std::min(p.x, q.x), der = std::max(p.x, q.x) - borde;
        const double arr = std::min(p.y, q.y), aba = std::max(p.y, q.y) - borde;
        if (der < izq || aba < arr) return std::nullopt;
        c.Centro = {(izq + der) / 2, (arr + aba) / 2};
        c.EjeX = {std::max(0.0, (der - izq) / 2 - (dentro > 0 ? dentro - 0.5 : 0)), 0};
        c.EjeY = {0, std::max(0.0, (aba - arr) / 2 - (dentro > 0 ? dentro - 0.5 : 0))};
        return c;
    }
    if (a.x == b.x || a.y == b.y) return std::nullopt;
    c.Centro = m.De({(a.x + b.x) / 2, (a.y + b.y) / 2});
    c.EjeX = m.Vector({std::abs(b.x - a.x) / 2, 0});
    c.EjeY = m.Vector({0, std::abs(b.y - a.y) / 2});
    return c;
}

void ContextoMeta::Arquea(const CajaFigura& c, double desde, double hasta, std::vector<PuntoD>& p) {
    const double giro = std::abs(hasta - desde);
    const double radio = std::max(std::hypot(c.EjeX.x, c.EjeX.y), std::hypot(c.EjeY.x, c.EjeY.y));
    const int n = Partes(radio * giro * 4);
    Cuenta(static_cast<std::size_t>(n));
    for (int i = 0; i <= n; ++i) {
        const double t = desde + (hasta - desde) * i / n;
        p.push_back(c.De(std::cos(t), std::sin(t)));
    }
}

void ContextoMeta::Rectangulo(PuntoD a, PuntoD b) {
    const auto c = Caja(a, b, true);
    if (!c) return;
    Pinta({{{c->De(1, -1), c->De(-1, -1), c->De(-1, 1), c->De(1, 1)}, true}}, true);
}

void ContextoMeta::Elipse(PuntoD a, PuntoD b) {
    const auto c = Caja(a, b);
    if (!c) return;
    Contorno k;
    k.Cerrado = true;
    Arquea(*c, 0, -VUELTA, k.Puntos);
    k.Puntos.pop_back();
    Pinta({std::move(k)}, true);
}

void ContextoMeta::Redondeado(PuntoD a, PuntoD b, PuntoD esquina) {
    const auto c = Caja(a, b);
    if (!c) return;
    // The corners' half axes as parts of the box's.
    const Matriz m = AlDispositivo();
    const PuntoD vx = m.Vector({esquina.x, 0}), vy = m.Vector({0, esquina.y});
    const double ex = std::hypot(c->EjeX.x, c->EjeX.y), ey = std::hypot(c->EjeY.x, c->EjeY.y);
    const double rx = ex > 0 ? std::min(1.0, std::hypot(vx.x, vx.y) / 2 / ex) : 0;
    const double ry = ey > 0 ? std::min(1.0, std::hypot(vy.x, vy.y) / 2 / ey) : 0;
    Contorno k;
    k.Cerrado = true;
    const double signos[4][2] = {{1, -1}, {-1, -1}, {-1, 1}, {1, 1}};
    for (int i = 0; i < 4; ++i) {
        CajaFigura r = *c;
        r.Centro = c->De(signos[i][0] * (1 - rx), signos[i][1] * (1 - ry));
        r.EjeX = {c->EjeX.x * rx, c->EjeX.y * rx};
        r.EjeY = {c->EjeY.x * ry, c->EjeY.y * ry};
        Arquea(r, -VUELTA / 4 * i, -VUELTA / 4 * (i + 1), k.Puntos);
    }
    Pinta({std::move(k)}, true);
}

void ContextoMeta::DibujaArco(Arco clase, PuntoD a, PuntoD b, PuntoD desde, PuntoD hasta) {
    const auto c = Caja(a, b);
    if (!c) return;
    const Matriz alPixel = AlDispositivo();
    Matriz ejes;
    if (!Matriz{c->EjeX.x, c->EjeX.y, c->EjeY.x, c->EjeY.y, c->Centro.x, c->Centro.y}.Inversa(ejes))
        return;
    const auto angulo = [&](PuntoD p) {
        const PuntoD q = ejes.De(alPixel.De(p));
        return std::atan2(q.y, q.x);
    };
    double inicio = angulo(desde), fin = angulo(hasta);
    // Counter-clockwise the angle of a screen's axes grows smaller.
    if (E.ContraReloj) {
        if (fin >= inicio) fin -= VUELTA;
    } else if (fin <= inicio) {
        fin += VUELTA;
    }
    Contorno k;
    if (clase == Arco::Tarta) k.Puntos.push_back(c->Centro);
    Arquea(*c, inicio, fin, k.Puntos);
    k.Cerrado = clase == Arco::Tarta || clase == Arco::Cuerda;
    if (clase != Arco::Sigue) {
        const bool relleno = k.Cerrado;
        Pinta({std::move(k)}, relleno);
        return;
    }
    Matriz vuelve;
    const PuntoD ultimo = k.Puntos.back();
    if (enCamino_) {
        Contorno& f = FiguraAbierta();
        f.Puntos.insert(f.Puntos.end(), k.Puntos.begin(), k.Puntos.end());
        puntosCamino_ += k.Puntos.size();
        Limita(puntosCamino_);
    } else {
        k.Puntos.insert(k.Puntos.begin(), Redondo(E.Pluma));
        Pinta({std::move(k)}, false);
    }
    if (alPixel.Inversa(vuelve)) E.Pluma = vuelve.De(ultimo);
}

void ContextoMeta::ArcoAngulo(PuntoD centro, double radio, double desde, double barrido) {
    constexpr double GRADO = VUELTA / 360;
    const Matriz m = AlDispositivo();
    CajaFigura c;
    c.Centro = m.De(centro);
    c.EjeX = m.Vector({radio, 0});
    c.EjeY = m.Vector({0, radio});
    const double inicio = -std::fmod(desde, 360.0) * GRADO;
    const double giro = -std::clamp(barrido, -360.0, 360.0) * GRADO;
    std::vector<PuntoD> p;
    Arquea(c, inicio, inicio + giro, p);
    const double final = inicio - std::fmod(barrido, 360.0) * GRADO;
    if (enCamino_) {
        Contorno& f = FiguraAbierta();
        f.Puntos.insert(f.Puntos.end(), p.begin(), p.end());
        puntosCamino_ += p.size();
        Limita(puntosCamino_);
    } else {
        p.insert(p.begin(), Redondo(E.Pluma));
        Pinta({{std::move(p), false}}, false);
    }
    E.Pluma = {centro.x + radio * std::cos(final), centro.y + radio * std::sin(final)};
}

// --- Path.

void ContextoMeta::EmpiezaCamino() {
    AbandonaCamino();
    enCamino_ = true;
}

void ContextoMeta::AbandonaCamino() {
    camino_.clear();
    puntosCamino_ = 0;
    enCamino_ = figuraAbierta_ = ensanchado_ = false;
}

void ContextoMeta::CierraFigura() {
    if (!enCamino_ || camino_.empty()) return;
    camino_.back().Cerrado = true;
    figuraAbierta_ = false;
}

void ContextoMeta::PintaCamino(bool rellena, bool traza) {
    if (enCamino_) return;
    Trazado t;
    t.swap(camino_);
    puntosCamino_ = 0;
    if (t.empty()) return;
    // What is filled is closed; what is filled and drawn is drawn closed.
    if (rellena)
        for (Contorno& c : t) c.Cerrado = true;
    Figura(t, E.Alterno && !ensanchado_, rellena, traza);
}

void ContextoMeta::EnsanchaCamino() {
    if (enCamino_) return;
    PlumaMeta p = PlumaViva();
    if (p.Nula) return;
    camino_ = pintor_.Ensancha(camino_, p);
    ensanchado_ = true;
    puntosCamino_ = 0;
    for (const Contorno& c : camino_) puntosCamino_ += c.Puntos.size() + 1;
}

void ContextoMeta::RecortaConCamino(int modo) {
    if (enCamino_) return;
    Trazado t;
    t.swap(camino_);
    puntosCamino_ = 0;
    if (modo < RGN_AND || modo > RGN_COPY) return;
    RecortaRegion(pintor_.RegionDe(t, E.Alterno && !ensanchado_), modo);
}

}  // namespace tessario
