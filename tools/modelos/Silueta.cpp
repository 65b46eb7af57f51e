// SPDX-License-Identifier: GPL-3.0-or-later
#include "Silueta.h"

#include <cmath>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace tessario::modelos {

namespace {

// Quarters that a glyph covers.
const std::map<std::string, std::vector<i32>, std::less<>> GLIFOS = {
    {".", {}},     {" ", {}},     {"█", {0, 1, 2, 3}}, {"#", {0, 1, 2, 3}},
    {"◤", {0, 3}}, {"◥", {0, 1}}, {"◢", {1, 2}},       {"◣", {2, 3}}};

std::size_t LargoDeGlifo(char c) {
    const auto b = static_cast<unsigned char>(c);
    if (b < 0x80) return 1;
    return b >= 0xF0 ? 4 : b >= 0xE0 ? 3 : 2;
}

// Sums such as 2u-0.5v, in whole halves.
Medio LeePosicion(const std::string& texto) {
    Medio suma;
    std::istringstream s(texto);
    while (s.peek() != std::istringstream::traits_type::eof()) {
        double n = 0;
        char unidad = 0;
        if (!(s >> n)) throw std::runtime_error("bad position " + texto);
        if (!(s >> unidad) && n != 0) throw std::runtime_error("position without unit " + texto);
        if (unidad != 0 && unidad != 'u' && unidad != 'v')
            throw std::runtime_error("bad unit in " + texto);
        if (std::floor(2 * n) != 2 * n) throw std::runtime_error("finer than halves " + texto);
        (unidad == 'v' ? suma.v : suma.u) += static_cast<i32>(2 * n);
    }
    return suma;
}

Silueta AbreSilueta(const std::string& linea) {
    std::istringstream s(linea);
    std::string clase, x = "0", y = "0";
    s >> clase >> x >> y;
    return {clase == "v", {LeePosicion(x), LeePosicion(y)}, {}, 0};
}

Sitio LeeSitio(const std::string& linea) {
    std::istringstream s(linea.substr(2));
    Sitio p;
    std::string x, y;
    if (!(s >> p.pieza >> p.giro >> p.volteo >> x >> y)) throw std::runtime_error("bad piece");
    p.esquina = {LeePosicion(x), LeePosicion(y)};
    return p;
}

void AnadeFila(Silueta& silueta, std::string_view linea) {
    const i32 fila = silueta.filas++;
    i32 columna = 0;
    for (std::size_t i = 0; i < linea.size();) {
        const std::size_t largo = LargoDeGlifo(linea[i]);
        const auto glifo = GLIFOS.find(linea.substr(i, largo));
        if (glifo == GLIFOS.end()) throw std::runtime_error("unknown cell");
        for (const i32 lado : glifo->second) silueta.cuartos.push_back({columna, fila, lado});
        i += largo;
        ++columna;
    }
}

bool AbreBloque(const std::string& linea) {
    return linea == "u" || linea == "v" || linea.starts_with("u ") || linea.starts_with("v ");
}

void LeeLinea(Descripcion& figura, const std::string& linea) {
    if (linea.starts_with("d ")) {
        figura.dadas = std::stoi(linea.substr(2));
        return;
    }
    if (linea.starts_with("p ")) return figura.plan.push_back(LeeSitio(linea));
    auto& siluetas = figura.siluetas;
    if (AbreBloque(linea)) return siluetas.push_back(AbreSilueta(linea));
    if (siluetas.empty()) throw std::runtime_error("a cell before the first silhouette");
    AnadeFila(siluetas.back(), linea);
}

}  // namespace

std::vector<Descripcion> LeeDescripciones(const std::string& ruta) {
    std::ifstream entrada(ruta);
    if (!entrada) throw std::runtime_error("cannot read " + ruta);
    std::vector<Descripcion> figuras;
    std::string linea;
    for (i32 numero = 1; std::getline(entrada, linea); ++numero) {
        const std::string lugar = ruta + ":" + std::to_string(numero);
        if (linea.empty() || linea.starts_with("//")) continue;
        try {
            if (linea.starts_with("= "))
                figuras.push_back({linea.substr(2), lugar, -1, {}, {}});
            else if (figuras.empty())
                throw std::runtime_error("a line before the first name");
            else
                LeeLinea(figuras.back(), linea);
        } catch (const std::exception& e) {
            throw std::runtime_error(lugar + ": " + e.what());
        }
    }
    return figuras;
}

}  // namespace tessario::modelos
