// SPDX-License-Identifier: GPL-3.0-or-later
// The sliding solver as its rules read, word for word: whole boards in every node, keys as text,
// linear scans. Slow on purpose: it is what the real one is held against, in tests and benchmarks.
#pragma once

#include <string>
#include <vector>

#include "core/PuzzGbl.h"
#include "rules/PuzzBas.h"
#include "sliding/Tablero.h"

namespace tessario {

struct SolucionLiteral {
    struct NodoBusqueda {
        std::vector<Pieza> Tablero;
        i16 PiezaMovida = 0, HuecoX = 0, HuecoY = 0, Coste = 0, Resto = 0, Camino = 0;
        std::string Clave;
        i16 Padre = 0, Estado = 0;
    };

    std::vector<NodoBusqueda> Nodos;
    std::vector<i16> Ruta;  // the last move first

    // One stage from the table as it stands. False when no node is open any more or their number
    // passes `limite`. The table is left as it was.
    bool Busca(std::size_t limite = 32767) {
        const Arreglo<Pieza> piezas = Gbl.Piezas;
        const i16 huecoX = Gbl.HuecoX;
        const i16 huecoY = Gbl.HuecoY;
        const bool hallada = BuscaEnCopias(limite);
        Gbl.Piezas = piezas;
        Gbl.HuecoX = huecoX;
        Gbl.HuecoY = huecoY;
        return hallada;
    }

private:
    i16 K = 0;

    static std::string DosCifras(i16 n) {
        return {static_cast<char>('0' + n / 10), static_cast<char>('0' + n % 10)};
    }

    std::string Clave() const {
        std::string clave = DosCifras(CeldaDePosicion(Gbl.HuecoX, Gbl.HuecoY));
        for (i16 i = 1; i <= K; ++i)
            clave += DosCifras(CeldaDePosicion(Gbl.Piezas[i].X, Gbl.Piezas[i].Y));
        return clave;
    }

    i16 Resto() const {
        i32 resto = 0;
        for (i16 i = 1; i <= K; ++i) {
            const Pieza& p = Gbl.Piezas[i];
            resto += DistanciaCeldas(p.X, p.Y, p.XBien, p.YBien);
        }
        return Corto(resto);
    }

    void GuardaTablero(NodoBusqueda& n) const {
        n.Tablero.assign(Gbl.Piezas.begin(), Gbl.Piezas.end());
        n.HuecoX = Gbl.HuecoX;
        n.HuecoY = Gbl.HuecoY;
    }

    static void CargaTablero(const NodoBusqueda& n) {
        for (std::size_t i = 0; i < n.Tablero.size(); ++i)
            Gbl.Piezas[static_cast<i32>(i)] = n.Tablero[i];
        Gbl.HuecoX = n.HuecoX;
        Gbl.HuecoY = n.HuecoY;
    }

    std::size_t Selecciona() const {
        std::size_t m = 0;
        for (std::size_t i = Nodos.size() - 1; i >= 1; --i)
            if (Nodos[i].Estado == 2 && (m == 0 || Nodos[i].Coste <= Nodos[m].Coste)) m = i;
        return m;
    }

    bool Conocida(const std::string& clave) const {
        for (std::size_t i = 1; i < Nodos.size(); ++i)
            if (Nodos[i].Clave == clave) return true;
        return false;
    }

    bool BuscaEnCopias(std::size_t limite) {
        Ruta.clear();
        K = 1;
        while (K <= Gbl.NumPiezas && PiezaEnSuSitio(K)) ++K;
        if (K > Gbl.NumPiezas) return false;
        Nodos.assign(2, NodoBusqueda{});
        GuardaTablero(Nodos[1]);
        Nodos[1].Clave = Clave();
        Nodos[1].Estado = 2;
        bool sinCamino = (Gbl.NumPiezas + 1 - K) < 2 * Gbl.PiezasPorLado;
        if (Gbl.PiezasPorLado < 5) sinCamino = false;
        while (Nodos.size() - 1 < limite) {
            const std::size_t m = Selecciona();
            if (m == 0) return false;
            CargaTablero(Nodos[m]);
            BuscaVecinos();
            const Arreglo<i16> vecinos = Gbl.VecinosHueco;
            const i16 numVecinos = Gbl.NumVecinos;
            for (i16 v = 1; v <= numVecinos; ++v)
                if (PruebaVecino(m, vecinos[v], sinCamino)) return true;
            Nodos[m].Estado = 1;
        }
        return false;
    }

    // One neighbour of the hole of node m. True when it ends the stage.
    bool PruebaVecino(std::size_t m, i16 c, bool sinCamino) {
        NodoBusqueda previo;
        GuardaTablero(previo);
        Pieza& p = Gbl.Piezas[c];
        const Pieza& pk = Gbl.Piezas[K];
        i16 d = DistanciaCeldas(p.X, p.Y, pk.X, pk.Y);
        if (sinCamino) d = 0;
        std::swap(p.X, Gbl.HuecoX);
        std::swap(p.Y, Gbl.HuecoY);
        const std::string clave = Clave();
        const bool rechazada = Conocida(clave) || (m != 1 && c == Nodos[m].PiezaMovida);
        if (!rechazada) {
            NodoBusqueda t;
            GuardaTablero(t);
            t.PiezaMovida = c;
            t.Resto = Resto();
            t.Camino = Corto(Nodos[m].Camino + d);
            t.Coste = Corto(t.Resto * 3 + t.Camino);
            t.Clave = clave;
            t.Padre = Corto(static_cast<i32>(m));
            t.Estado = 2;
            Nodos.push_back(std::move(t));
            if (Nodos.back().Resto == 0) {
                for (std::size_t i = Nodos.size() - 1; i > 1;
                     i = static_cast<std::size_t>(Nodos[i].Padre))
                    Ruta.push_back(Nodos[i].PiezaMovida);
                return true;
            }
        }
        CargaTablero(previo);
        return false;
    }
};

}  // namespace tessario
