// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/Catalogo.h"

#include "core/Fallos.h"
#include "core/PuzzGbl.h"

namespace tessario {

namespace {

constexpr Paridad CUALQUIERA = Paridad::Cualquiera, IMPAR = Paridad::Impar, PAR = Paridad::Par;

// Deliberate: the triangles' cells are odd in width and even in height; their cut needs it.
constexpr std::array<FichaForma, FORMAS_DE_PIEZA> FORMAS = {{
    {"Rectángulos", 1, false, CUALQUIERA, CUALQUIERA, 0, SIN_TOPE, 25, 140, 20},
    {"Curvados", 1, true, IMPAR, IMPAR, 0.416F, 2.4F, 25, 140, 20},
    {"Irregulares", 1, true, CUALQUIERA, CUALQUIERA, 0.476F, 2.1F, 25, 140, 20},
    {"Triángulos", 4, false, IMPAR, PAR, 0, 2.625F, 50, 140, 15},
    {"Círculos en Rectángulos", 2, false, CUALQUIERA, CUALQUIERA, 0, SIN_TOPE, 25, 140, 20},
    {"Rectángulos en Rectángulos", 2, false, CUALQUIERA, CUALQUIERA, 0, SIN_TOPE, 25, 140, 20},
    {"Elipses en Rectángulos", 2, false, CUALQUIERA, CUALQUIERA, 0, SIN_TOPE, 25, 140, 20},
    {"Estrellas en Rectángulos", 2, false, CUALQUIERA, CUALQUIERA, 0.416F, 2.4F, 25, 140, 20},
}};

constexpr std::array<FichaTangram, PIEZAS_TANGRAM> TANGRAM = {{
    {"Triángulo grande", tangram::OTRO_GRANDE, 0, 3, 8, false},
    {"Triángulo grande", tangram::GRANDE, 0, 3, 8, false},
    {"Triángulo mediano", 0, 1, 3, 8, false},
    {"Triángulo pequeño", tangram::OTRO_PEQUENO, 2, 3, 8, false},
    {"Triángulo pequeño", tangram::PEQUENO, 2, 3, 8, false},
    {"Cuadrado", 0, 3, 4, 2, false},
    {"Paralelogramo", 0, 4, 4, 4, true},
}};

}  // namespace

bool EsForma(i16 numero) {
    return numero >= 0 && numero < FORMAS_DE_PIEZA;
}

bool SeCortaConPlantillas() {
    return EsForma(Gbl.FormaPiezas) && FichaDeForma(Gbl.FormaPiezas).ConPlantillas;
}

const FichaForma& FichaDeForma(i16 numero) {
    if (!EsForma(numero)) throw ErrorEjecucion(ERROR_INDICE);
    return FORMAS[static_cast<std::size_t>(numero)];
}

const FichaTangram& FichaDeTangram(i16 piece) {
    if (piece < 1 || piece > PIEZAS_TANGRAM) throw ErrorEjecucion(ERROR_INDICE);
    return TANGRAM[static_cast<std::size_t>(piece - 1)];
}

bool EsTriangulo(i16 piece) {
    return piece >= tangram::GRANDE && piece <= tangram::OTRO_PEQUENO;
}

}  // namespace tessario
