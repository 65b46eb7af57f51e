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

// Sums such as 2u-0.5v.
i32 LeePosicion(const std::string& texto) {
    double suma = 0;
    std::istringstream s(texto);
    while (s.peek() != std::istringstream::traits_type::eof()) {
        double n = 0;
        char unidad = 0;
        if (!(s >> n)) throw std::runtime_error("bad position " + texto);
        if (!(s >> unidad) && n != 0) throw std::runtime_error("position without unit " + texto);
        if (unidad != 0 && unidad != 'u' && unidad != 'v')
            throw std::runtime_error("bad unit in " + texto);
        suma += n * (unidad == 'v' ? LADO_V : LADO_U);
    }
    return static_cast<i32>(std::lround(suma));
}

Silueta AbreSilueta(const std::string& linea) {
    std::istringstream s(linea);
    std::string clase, x = "0", y = "0";
    s >> clase >> x >> y;
    return {clase == "v", LeePosicion(x), LeePosicion(y), {}};
}

void AnadeFila(Silueta& silueta, i32 fila, std::string_view linea) {
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

}  // namespace

std::vector<Descripcion> LeeDescripciones(const std::string& ruta) {
    std::ifstream entrada(ruta);
    if (!entrada) throw std::runtime_error("cannot read " + ruta);
    std::vector<Descripcion> figuras;
    std::string linea;
    i32 numero = 0, fila = 0;
    while (std::getline(entrada, linea)) {
        const std::string lugar = ruta + ":" + std::to_string(++numero);
        if (linea.empty() || linea.starts_with("//")) continue;
        try {
            if (linea.starts_with("= ")) {
                figuras.push_back({linea.substr(2), lugar, {}});
                continue;
            }
            if (figuras.empty()) throw std::runtime_error("a cell before the first name");
            auto& siluetas = figuras.back().siluetas;
            if (AbreBloque(linea) || siluetas.empty()) {
                siluetas.push_back(AbreBloque(linea) ? AbreSilueta(linea) : Silueta{});
                fila = 0;
                if (AbreBloque(linea)) continue;
            }
            AnadeFila(siluetas.back(), fila++, linea);
        } catch (const std::runtime_error& e) {
            throw std::runtime_error(lugar + ": " + e.what());
        }
    }
    return figuras;
}

}  // namespace tessario::modelos
