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
constexpr std::size_t TABLA_INICIAL = 1024;  // a power of two
constexpr std::size_t NODOS_INICIALES = 500;

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

Busqueda::Busqueda(i32 lado, const CeldasDePiezas& inicio, std::function<void()> evento)
    : lado_(lado),
      celdasEnTotal_(lado * lado),
      piezas_(lado * lado - 1),
      inicio_(inicio),
      evento_(std::move(evento)) {
    PreparaTablas();
}

void Busqueda::PreparaTablas() {
    distancia_.assign(static_cast<std::size_t>(CELDAS_MAXIMAS) * CELDAS_MAXIMAS, 0);
    for (i32 a = 0; a < celdasEnTotal_; ++a)
        for (i32 b = 0; b < celdasEnTotal_; ++b)
            distancia_[static_cast<std::size_t>(a * CELDAS_MAXIMAS + b)] =
                static_cast<u8>(std::abs(a / lado_ - b / lado_) + std::abs(a % lado_ - b % lado_));
}

// Pieces after meta_ do not count: boards that differ only in them are one state.
std::uint64_t Busqueda::ClaveDe(i32 pieza, i32 celda) const {
    if (pieza > meta_) return 0;
    return CLAVES_FIJAS[static_cast<std::size_t>(pieza)][static_cast<std::size_t>(celda)];
}

bool Busqueda::Igual(const Nodo& a, const Nodo& b) const {
    return a.clave == b.clave &&
           std::memcmp(a.celdas.data(), b.celdas.data(), static_cast<std::size_t>(meta_ + 1)) == 0;
}

void Busqueda::CreceTabla() {
    tabla_.assign(tabla_.size() * 2, 0);
    const std::size_t mascara = tabla_.size() - 1;
    for (std::size_t i = 1; i < nodos_.size(); ++i) {
        std::size_t h = nodos_[i].clave & mascara;
        while (tabla_[h] != 0) h = (h + 1) & mascara;
        tabla_[h] = static_cast<i32>(i);
    }
}

// Enters the node's state; false when an earlier node has the same.
bool Busqueda::Anota(i32 indice) {
    const Nodo& n = nodos_[static_cast<std::size_t>(indice)];
    const std::size_t mascara = tabla_.size() - 1;
    std::size_t h = n.clave & mascara;
    for (; tabla_[h] != 0; h = (h + 1) & mascara)
        if (Igual(nodos_[static_cast<std::size_t>(tabla_[h])], n)) return false;
    tabla_[h] = indice;
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

void Busqueda::PonRaiz() {
    nodos_.assign(1, Nodo{});
    nodos_.reserve(NODOS_INICIALES);
    tabla_.assign(TABLA_INICIAL, 0);
    colas_.assign(1, Cola{});
    minimo_ = 0;
    Nodo raiz;
    raiz.celdas = inicio_;
    i32 resto = 0;
    for (i32 i = 0; i <= meta_; ++i) {
        const u8 celda = inicio_[static_cast<std::size_t>(i)];
        raiz.clave ^= ClaveDe(i, celda);
        if (i > 0) resto += Distancia(celda, static_cast<u8>(i - 1));
    }
    raiz.resto = static_cast<i16>(resto);
    nodos_.push_back(raiz);
    Anota(1);
    Encola(1);
}

// The state after `pieza` has gone into the hole of node m, as a new node; false when it is known
// or would undo the last move.
bool Busqueda::Genera(i32 m, u8 pieza, i32& nuevo) {
    if (m != 1 && nodos_[static_cast<std::size_t>(m)].movida == pieza) return false;
    Nodo& n = nodos_.emplace_back(nodos_[static_cast<std::size_t>(m)]);
    nuevo = NumNodos();
    const u8 celda = n.celdas[pieza];
    const u8 hueco = n.celdas[0];
    // Deliberate: a move is charged by its distance, before it, from the piece that is being
    // brought home, and not as one: moves near that piece are cheap.
    const i32 d = sinCamino_ ? 0 : Distancia(celda, n.celdas[static_cast<std::size_t>(meta_)]);
    i32 resto = n.resto;
    if (pieza <= meta_) {
        const auto casa = static_cast<u8>(pieza - 1);
        resto += Distancia(hueco, casa) - Distancia(celda, casa);
    }
    n.clave ^=
        ClaveDe(0, hueco) ^ ClaveDe(0, celda) ^ ClaveDe(pieza, celda) ^ ClaveDe(pieza, hueco);
    std::swap(n.celdas[0], n.celdas[pieza]);
    if (!Anota(nuevo)) {
        nodos_.pop_back();
        return false;
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

// Tries the pieces around the hole of node m by piece number. True when one of them ends the stage.
bool Busqueda::Expande(i32 m) {
    const CeldasDePiezas& celdas = nodos_[static_cast<std::size_t>(m)].celdas;
    const i32 hueco = celdas[0];
    std::array<u8, 4> vecinos{};
    std::size_t cuantos = 0;
    for (i32 i = 1; i <= piezas_ && cuantos < vecinos.size(); ++i)
        if (Distancia(celdas[static_cast<std::size_t>(i)], static_cast<u8>(hueco)) == 1)
            vecinos[cuantos++] = static_cast<u8>(i);
    for (std::size_t v = 0; v < cuantos; ++v) {
        i32 nuevo = 0;
        if (Genera(m, vecinos[v], nuevo)) {
            if (nodos_.back().resto == 0) {
                TrazaRuta(nuevo);
                return true;
            }
            Encola(nuevo);
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

bool Busqueda::Busca(i32 meta) {
    meta_ = meta;
    sinCamino_ = piezas_ + 1 - meta < 2 * lado_ && lado_ >= LADO_SIN_CAMINO;
    desborde_ = false;
    ruta_.clear();
    PonRaiz();
    while (const i32 m = TomaMejor()) {
        if (Expande(m)) return true;
        if (desborde_ || NumNodos() >= LIMITE_NODOS) return false;
    }
    return false;
}

}  // namespace tessario
