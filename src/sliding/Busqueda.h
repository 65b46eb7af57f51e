// SPDX-License-Identifier: GPL-3.0-or-later
// One stage of the sliding solver as a search over compact boards: cells in bytes, a hash table of
// states, a queue by cost. It knows nothing of the table on the screen.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "platform/Tipos.h"

namespace tessario {

inline constexpr i32 CELDAS_MAXIMAS = 81;  // of a board with nine a side

// A state: which cell, from 0, each piece stands in, by piece number; number 0 is the hole.
using CeldasDePiezas = std::array<u8, CELDAS_MAXIMAS>;

// Serves one search after the other and keeps its memory between them.
class Busqueda {
public:
    // `evento` is called once for each neighbour tried.
    explicit Busqueda(void (*evento)()) : evento_(evento) {}

    // Brings pieces 1 to `meta` of a whole board of `lado` a side home, of which `meta` is the
    // first that is not there. True with the moves in Ruta, the last one first; false when no state
    // is left or the search outgrows its bounds.
    bool Busca(i32 lado, const CeldasDePiezas& inicio, i32 meta);
    const std::vector<u8>& Ruta() const { return ruta_; }
    i32 NumNodos() const { return static_cast<i32>(nodos_.size()) - 1; }

private:
    struct Nodo {
        CeldasDePiezas celdas{};
        CeldasDePiezas ocupantes{};  // the same board the other way: the piece in each cell
        u8 movida = 0;               // piece moved to come here; 0 for the root
        i16 coste = 0;               // resto * 3 + camino; smaller is better
        i16 resto = 0;               // cells that the pieces 1 to meta are away from home, in all
        i16 camino = 0;              // accumulated cost of the moves
        i32 padre = 0;
        i32 siguiente = 0;        // next node of the same cost, in order of arrival
        std::uint64_t clave = 0;  // hash of the state
    };
    // A place of the hash table: a node and the upper half of its hash, which tells most unequal
    // states apart without a look at the node.
    struct Entrada {
        u32 marca = 0;
        i32 nodo = 0;  // 0 free
    };
    // Nodes of one cost that are still open: first come, first served.
    struct Cola {
        i32 primero = 0, ultimo = 0;
    };
    // Up to four cells, or the pieces that stand in them, in rising order.
    struct Vecinos {
        std::array<u8, 4> lista{};
        std::size_t cuantos = 0;
    };

    void PreparaTablas(i32 lado);
    void PonRaiz(const CeldasDePiezas& inicio);
    i32 TomaMejor();
    bool Expande(i32 m);
    bool Genera(i32 m, u8 pieza);
    Vecinos PiezasVecinas(const Nodo& n) const;
    bool Anota(i32 indice);
    void CreceTabla();
    void Encola(i32 indice);
    void TrazaRuta(i32 indice);
    std::uint64_t ClaveDe(i32 pieza, i32 celda) const;
    u8 Distancia(u8 a, u8 b) const {
        return distancia_[static_cast<std::size_t>(a) * CELDAS_MAXIMAS + b];
    }

    void (*evento_)();
    i32 lado_ = 0, piezas_ = 0;
    i32 meta_ = 0;
    bool sinCamino_ = false;
    bool desborde_ = false;
    std::vector<u8> distancia_;                      // by cell and cell, for boards of lado_ a side
    std::array<Vecinos, CELDAS_MAXIMAS> vecinas_{};  // by cell, likewise
    std::vector<Nodo> nodos_;                        // from 1
    std::vector<Entrada> tabla_;                     // open addressing
    std::vector<Cola> colas_;                        // by cost
    i32 minimo_ = 0;                                 // no queue below this one holds a node
    std::vector<u8> ruta_;
};

}  // namespace tessario
