// SPDX-License-Identifier: GPL-3.0-or-later
// Text: letters as figures to be filled, turned and narrowed, with what lies behind and across
// them.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/PintorRaster.h"

namespace tessario {

namespace {

// Which point of a line of text is the one it is given by.
constexpr unsigned HORIZONTAL = 6, DERECHA = 2, CENTRO = 6;
constexpr unsigned VERTICAL = 24, ABAJO = 8, BASE = 24;

}  // namespace

// The height and width of the letters; false when they are too small to be seen.
bool PintorRaster::MideLetras(const TextoMeta& t, Renglon& g) {
    constexpr double USUAL = 16, MINIMO = 0.5, MAXIMO = 4000, ESTRECHA_MAXIMO = 100;
    const LetrasMeta::Medidas med = letras_.Mide(t.Fuente);
    const double celda = med.Ascenso + med.Descenso;
    const double alto = t.Fuente.Alto == 0 ? USUAL : t.Fuente.Alto;
    g.Cuerpo = std::min(alto < 0 ? -alto : alto / celda, MAXIMO);
    if (g.Cuerpo < MINIMO) return false;
    g.Ascenso = std::round(g.Cuerpo * med.Ascenso);
    g.Descenso = std::round(g.Cuerpo * med.Descenso);
    if (t.Fuente.Ancho > 0)
        g.Estrecha = std::min(t.Fuente.Ancho / (med.Media * g.Cuerpo), ESTRECHA_MAXIMO);
    return true;
}

// Where each letter stands from the first one, where the next would, and where the first one is.
void PintorRaster::SituaLetras(const TextoMeta& t, Renglon& g) {
    constexpr double DECIMAS_DE_GRADO = std::numbers::pi / 1800;
    PuntoD& fin = g.Fin;
    for (std::size_t i = 0; i < t.Letras.size(); ++i) {
        g.Sitios.push_back(fin);
        if (i < t.Avances.size()) {
            fin = {fin.x + t.Avances[i].x, fin.y - t.Avances[i].y};
        } else {
            const double propio = letras_.De(t.Fuente, g.Cuerpo, t.Letras[i], t.PorIndice).Avance;
            fin.x += std::round(propio * g.Estrecha);
        }
        fin.x += t.Extra + (t.Letras[i] == u' ' ? t.ExtraBlanco : 0);
    }
    const unsigned h = t.Alineacion & HORIZONTAL, v = t.Alineacion & VERTICAL;
    const double x = h == CENTRO ? -fin.x / 2 : h == DERECHA ? -fin.x : 0;
    const double y = v == BASE ? 0 : v == ABAJO ? -g.Descenso : g.Ascenso;
    const double giro = t.Fuente.Giro * DECIMAS_DE_GRADO, c = std::cos(giro), s = std::sin(giro);
    g.Forma = Matriz{1, 0, 0, 1, x, y}.Luego({c, -s, s, c, 0, 0}).Luego(t.Forma);
    g.Forma.e += t.Lugar.x;
    g.Forma.f += t.Lugar.y;
}

void PintorRaster::Letras(const TextoMeta& t, const Renglon& g, const ModosMeta& m) {
    BrochaMeta tinta;
    tinta.Tinta = m.Texto;
    for (std::size_t i = 0; i < t.Letras.size(); ++i) {
        const LetrasMeta::Letra& l = letras_.De(t.Fuente, g.Cuerpo, t.Letras[i], t.PorIndice);
        Trazado figura = l.Figura;
        for (Contorno& c : figura)
            for (PuntoD& p : c.Puntos) {
                p = g.Forma.De({g.Sitios[i].x + p.x * g.Estrecha, g.Sitios[i].y + p.y});
                // A letter's pixel is told by its middle.
                p = {p.x - 0.5, p.y - 0.5};
            }
        Rellena(figura, false, tinta, m);
    }
}

// A band along the whole text between two heights, counted downwards from the base line.
void PintorRaster::Barra(const Renglon& g, double arr, double aba, Pixel color,
                         const ModosMeta& m) {
    BrochaMeta b;
    b.Tinta = color;
    Contorno k;
    k.Cerrado = true;
    for (const PuntoD& p :
         {PuntoD{0, arr}, PuntoD{g.Fin.x, arr}, PuntoD{g.Fin.x, aba}, PuntoD{0, aba}})
        k.Puntos.push_back(g.Forma.De(p));
    Rellena({k}, true, b, m);
}

// The lines under and across the letters, in parts of their height.
void PintorRaster::Rayas(const FuenteMeta& f, const Renglon& g, const ModosMeta& m) {
    constexpr double SUBRAYA = 0.11, TACHA = -0.26, GRUESO = 0.07;
    const double grueso = std::max(1.0, std::round(g.Cuerpo * GRUESO));
    for (const auto& [hay, donde] :
         {std::pair{f.Subrayada, SUBRAYA}, std::pair{f.Tachada, TACHA}}) {
        const double arr = std::round(g.Cuerpo * donde);
        if (hay) Barra(g, arr, arr + grueso, m.Texto, m);
    }
}

// A font that has not been used before has to be found and opened, and of each of its letters the
// outline has to be asked for once.
void PintorRaster::PagaFuente(const TextoMeta& t, double cuerpo) {
    constexpr long long GASTO_FUENTE = 3'000'000, GASTO_LETRA = 30'000;
    constexpr std::size_t FUENTES_RECORDADAS = 64, LETRAS = 65536;
    const FuenteMeta& f = t.Fuente;
    if (fuentes_.size() > FUENTES_RECORDADAS) fuentes_.clear();
    std::vector<bool>& vistas = fuentes_[{f.Cara, f.Peso, f.Cursiva, std::lround(cuerpo)}];
    if (vistas.empty()) {
        esfuerzo_->Gasta(GASTO_FUENTE);
        vistas.resize(LETRAS);
    }
    for (const char16_t letra : t.Letras) {
        if (vistas[letra]) continue;
        esfuerzo_->Gasta(GASTO_LETRA);
        vistas[letra] = true;
    }
}

PuntoD PintorRaster::Escribe(const TextoMeta& t, const ModosMeta& modos) {
    constexpr long long GASTO_TEXTO = 20'000, GASTO_LETRA = 2'000;
    esfuerzo_->Gasta(GASTO_TEXTO + GASTO_LETRA * static_cast<long long>(t.Letras.size()));
    Renglon g;
    if (!MideLetras(t, g)) return {};
    PagaFuente(t, g.Cuerpo);
    ModosMeta m = modos;
    m.Rop2 = MODO_COPIA;
    if (t.CajaOpaca) {
        BrochaMeta fondo;
        fondo.Tinta = m.Fondo;
        Rellena(t.Rectangulo, true, fondo, m);
    }
    Region recorte;
    if (t.CajaRecorta) {
        CombinaConTino(recorte, RegionDe(t.Rectangulo, true), *m.Recorte, RGN_AND, *esfuerzo_);
        m.Recorte = &recorte;
        m.Caja = recorte.Caja();
    }
    if (t.Letras.empty()) return {};

    SituaLetras(t, g);
    if (m.Opaco) Barra(g, -g.Ascenso, g.Descenso, m.Fondo, m);
    Letras(t, g, m);
    Rayas(t.Fuente, g, m);

    // Whoever writes on from here stands behind the text, or before one that ends at its place.
    const unsigned h = t.Alineacion & HORIZONTAL;
    if (h == CENTRO) return {};
    const PuntoD inicio = g.Forma.De({}), final = g.Forma.De(g.Fin);
    return h == DERECHA ? PuntoD{inicio.x - final.x, inicio.y - final.y}
                        : PuntoD{final.x - inicio.x, final.y - inicio.y};
}

}  // namespace tessario
