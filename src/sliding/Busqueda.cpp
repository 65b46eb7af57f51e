// SPDX-License-Identifier: GPL-3.0-or-later
#include "sliding/Busqueda.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace tessario {

namespace {

constexpr i32 PESO_RESTO = 3;        // what makes the search greedy
constexpr i32 LADO_SIN_CAMINO = 5;   // from this side on the last pieces move without cost
constexpr i32 COSTE_MAXIMO = 32767;  // the cost is a 16-bit number
// Nodes of one stage. Boards of nine a side stay below 25000; a board without a solution ends here.
constexpr i32 LIMITE_NODOS = 250000;
constexpr std::size_t TABLA_INICIAL = 4096;  // a power of two
constexpr std::size_t CRECE_TABLA = 4;       // times
constexpr std::size_t NODOS_INICIALES = 500;

// The half of a hash that the table keeps beside the node. Its place in the table goes by the
// other half.
constexpr u32 Marca(std::uint64_t clave) {
    return static_cast<u32>(clave >> 32);
}

// A well-mixed 64-bit number for each pair of piece and cell.
constexpr std::uint64_t Mezcla(std::uint64_t z) {
    z += 0x9E3779B97F4A7C15ULL;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

// By piece and cell. A state's hash is the exclusive or of those of its pieces.
constexpr auto CLAVES_FIJAS = [] {
    std::array<std::array<std::uint64_t, CELDAS_MAXIMAS>, CELDAS_MAXIMAS> claves{};
    std::uint64_t n = 0;
    for (auto& pieza : claves)
        for (std::uint64_t& celda : pieza) celda = Mezcla(++n);
    return claves;
}();

}  // namespace

// Distances and neighbours of a board's cells. They serve all searches on boards of that side.
void Busqueda::PreparaTablas(i32 lado) {
    if (lado == lado_) return;
    lado_ = lado;
    piezas_ = lado * lado - 1;
    distancia_.assign(static_cast<std::size_t>(CELDAS_MAXIMAS) * CELDAS_MAXIMAS, 0);
    for (i32 a = 0; a <= piezas_; ++a) {
        Vecinos& vecinas = vecinas_[static_cast<std::size_t>(a)];
        vecinas.cuantos = 0;
        for (i32 b = 0; b <= piezas_; ++b) {
            const i32 d = std::abs(a / lado - b / lado) + std::abs(a % lado - b % lado);
            distancia_[static_cast<std::size_t>(a * CELDAS_MAXIMAS + b)] = static_cast<u8>(d);
            if (d == 1) vecinas.lista[vecinas.cuantos++] = static_cast<u8>(b);
        }
    }
}

// Pieces after meta_ do not count: boards that differ only in them are one state.
std::uint64_t Busqueda::ClaveDe(i32 pieza, i32 celda) const {
    if (pieza > meta_) return 0;
    return CLAVES_FIJAS[static_cast<std::size_t>(pieza)][static_cast<std::size_t>(celda)];
}

void Busqueda::CreceTabla() {
    tabla_.assign(tabla_.size() * CRECE_TABLA, Entrada{});
    const std::size_t mascara = tabla_.size() - 1;
    for (std::size_t i = 1; i < nodos_.size(); ++i) {
        const std::uint64_t clave = nodos_[i].clave;
        std::size_t h = clave & mascara;
        while (tabla_[h].nodo != 0) h = (h + 1) & mascara;
        tabla_[h] = {Marca(clave), static_cast<i32>(i)};
    }
}

// Enters the node's state; false when an earlier node has the same.
bool Busqueda::Anota(i32 indice) {
    const Nodo& n = nodos_[static_cast<std::size_t>(indice)];
    const u32 marca = Marca(n.clave);
    const std::size_t mascara = tabla_.size() - 1;
    const auto cuentan = static_cast<std::size_t>(meta_ + 1);
    std::size_t h = n.clave & mascara;
    for (; tabla_[h].nodo != 0; h = (h + 1) & mascara) {
        if (tabla_[h].marca != marca) continue;
        const Nodo& otro = nodos_[static_cast<std::size_t>(tabla_[h].nodo)];
        if (std::memcmp(otro.celdas.data(), n.celdas.data(), cuentan) == 0) return false;
    }
    tabla_[h] = {marca, indice};
    return true;
}

void Busqueda::Encola(i32 indice) {
    Nodo& n = nodos_[static_cast<std::size_t>(indice)];
    const auto coste = static_cast<std::size_t>(n.coste);
    if (colas_.size() <= coste) colas_.resize(coste + 1);
    Cola& cola = colas_[coste];
    if (cola.primero == 0)
        cola.primero = indice;
    else
        nodos_[static_cast<std::size_t>(cola.ultimo)].siguiente = indice;
    cola.ultimo = indice;
    minimo_ = std::min(minimo_, static_cast<i32>(coste));
}

// The open node of lowest cost, of equals the one with the lowest index, which came first; 0 when
// none is open. It is closed by leaving its queue.
i32 Busqueda::TomaMejor() {
    for (; minimo_ < static_cast<i32>(colas_.size()); ++minimo_) {
        Cola& cola = colas_[static_cast<std::size_t>(minimo_)];
        if (cola.primero == 0) continue;
        const i32 m = cola.primero;
        cola.primero = nodos_[static_cast<std::size_t>(m)].siguiente;
        return m;
    }
    return 0;
}

void Busqueda::PonRaiz(const CeldasDePiezas& inicio) {
    nodos_.assign(1, Nodo{});
    nodos_.reserve(NODOS_INICIALES);
    tabla_.assign(TABLA_INICIAL, Entrada{});
    colas_.assign(1, Cola{});
    minimo_ = 0;
    Nodo raiz;
    raiz.celdas = inicio;
    i32 resto = 0;
    for (i32 i = 0; i <= meta_; ++i) {
        const u8 celda = inicio[static_cast<std::size_t>(i)];
        raiz.clave ^= ClaveDe(i, celda);
        if (i > 0) resto += Distancia(celda, static_cast<u8>(i - 1));
    }
    for (i32 i = 0; i <= piezas_; ++i)
        raiz.ocupantes[inicio[static_cast<std::size_t>(i)]] = static_cast<u8>(i);
    raiz.resto = static_cast<i16>(resto);
    nodos_.push_back(raiz);
    Anota(1);
    Encola(1);
}

// The state after `pieza` has gone into the hole of node m, as a new node; false when it is known
// or would undo the last move.
bool Busqueda::Genera(i32 m, u8 pieza) {
    if (m != 1 && nodos_[static_cast<std::size_t>(m)].movida == pieza) return false;
    Nodo& n = nodos_.emplace_back(nodos_[static_cast<std::size_t>(m)]);
    const u8 celda = n.celdas[pieza];
    const u8 hueco = n.celdas[0];
    // Deliberate: a move is charged by its distance, before it, from the piece that is being
    // brought home, and not as one: moves near that piece are cheap.
    const i32 d = sinCamino_ ? 0 : Distancia(celda, n.celdas[static_cast<std::size_t>(meta_)]);
    n.clave ^=
        ClaveDe(0, hueco) ^ ClaveDe(0, celda) ^ ClaveDe(pieza, celda) ^ ClaveDe(pieza, hueco);
    std::swap(n.celdas[0], n.celdas[pieza]);
    if (!Anota(NumNodos())) {
        nodos_.pop_back();
        return false;
    }
    std::swap(n.ocupantes[celda], n.ocupantes[hueco]);
    i32 resto = n.resto;
    if (pieza <= meta_) {
        const auto casa = static_cast<u8>(pieza - 1);
        resto += Distancia(hueco, casa) - Distancia(celda, casa);
    }
    const i32 camino = n.camino + d;
    const i32 coste = resto * PESO_RESTO + camino;
    desborde_ = desborde_ || coste > COSTE_MAXIMO;
    n.movida = pieza;
    n.resto = static_cast<i16>(resto);
    n.camino = static_cast<i16>(std::min(camino, COSTE_MAXIMO));
    n.coste = static_cast<i16>(std::min(coste, COSTE_MAXIMO));
    n.padre = m;
    n.siguiente = 0;
    return true;
}

// The pieces around the hole, by piece number.
Busqueda::Vecinos Busqueda::PiezasVecinas(const Nodo& n) const {
    const Vecinos& celdas = vecinas_[n.celdas[0]];
    Vecinos piezas;
    for (; piezas.cuantos < celdas.cuantos; ++piezas.cuantos) {
        const u8 pieza = n.ocupantes[celdas.lista[piezas.cuantos]];
        std::size_t i = piezas.cuantos;
        for (; i > 0 && piezas.lista[i - 1] > pieza; --i) piezas.lista[i] = piezas.lista[i - 1];
        piezas.lista[i] = pieza;
    }
    return piezas;
}

// Tries the pieces around the hole of node m. True when one of them ends the stage.
bool Busqueda::Expande(i32 m) {
    const Vecinos vecinos = PiezasVecinas(nodos_[static_cast<std::size_t>(m)]);
    for (std::size_t v = 0; v < vecinos.cuantos; ++v) {
        if (Genera(m, vecinos.lista[v])) {
            if (nodos_.back().resto == 0) {
                TrazaRuta(NumNodos());
                return true;
            }
            Encola(NumNodos());
            if (nodos_.size() * 2 > tabla_.size()) CreceTabla();
        }
        evento_();
    }
    return false;
}

void Busqueda::TrazaRuta(i32 indice) {
    for (i32 i = indice; i > 1; i = nodos_[static_cast<std::size_t>(i)].padre)
        ruta_.push_back(nodos_[static_cast<std::size_t>(i)].movida);
}

bool Busqueda::Busca(i32 lado, const CeldasDePiezas& inicio, i32 meta) {
    PreparaTablas(lado);
    meta_ = meta;
    sinCamino_ = piezas_ + 1 - meta < 2 * lado && lado >= LADO_SIN_CAMINO;
    desborde_ = false;
    ruta_.clear();
    PonRaiz(inicio);
    while (const i32 m = TomaMejor()) {
        if (Expande(m)) return true;
        if (desborde_ || NumNodos() >= LIMITE_NODOS) return false;
    }
    return false;
}

}  // namespace tessario
