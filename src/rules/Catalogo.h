// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogues: the shapes of the jigsaw's pieces, the pieces of the Tangram, the commands of the
// strip, the options of the table's panel, the eight directions. What is said of one of them stands
// in its row here; a further one is a further row.
#pragma once

#include <array>
#include <limits>

#include "platform/Tipos.h"

namespace tessario {

// ---------------------------------------------------------------- shapes of the jigsaw's pieces
// Values of FormaPiezas.
namespace forma {
enum Forma : i16 {
    RECTANGULOS,
    CURVADOS,
    IRREGULARES,
    TRIANGULOS,
    CIRCULOS,
    DOBLES,  // rectangles in rectangles
    ELIPSES,
    ESTRELLAS
};
}  // namespace forma
inline constexpr i16 FORMAS_DE_PIEZA = 8;

inline constexpr float SIN_TOPE = std::numeric_limits<float>::max();

enum class Paridad { Cualquiera, Impar, Par };

struct FichaForma {
    const char* Nombre;    // as the player reads it
    i16 PiezasPorCelda;    // 1, 2 or 4
    bool ConPlantillas;    // pieces interlock: cut and masked by two templates
    Paridad Ancho, Alto;   // that the cut needs of a cell's sides
    float Minima, Maxima;  // width over height of a picture that can be cut so
    i16 CeldaMinima;       // sides of a cell, pixels: grids within these two are offered,
    i16 CeldaMaxima;
    i16 LadoMaximo;  // up to so many pieces a side

    bool Limitada() const { return Minima > 0 || Maxima < SIN_TOPE; }
};

// Of the catalogue's shapes, 0 to 7?
bool EsForma(i16 numero);
// Do the pieces of FormaPiezas interlock?
bool SeCortaConPlantillas();
// Error 9 for what is no shape.
const FichaForma& FichaDeForma(i16 numero);

// ---------------------------------------------------------------- pieces of the Tangram
namespace tangram {
enum Pieza : i16 {
    GRANDE = 1,  // triangles, the first of each pair of twins
    OTRO_GRANDE,
    MEDIANO,
    PEQUENO,
    OTRO_PEQUENO,
    CUADRADO,
    PARALELOGRAMO
};
}  // namespace tangram
inline constexpr i16 PIEZAS_TANGRAM = 7;

struct FichaTangram {
    const char* Nombre;  // as the player reads it
    i16 Gemela;          // the piece of its shape and size; 0 none
    i16 Clase;           // kind, from 0: twins are of one
    i16 Vertices;        // corners
    i16 Periodo;         // eighths of a turn after which it looks the same again
    bool Voltea;         // looks another when turned over
};

// Error 9 for what is no piece of the Tangram.
const FichaTangram& FichaDeTangram(i16 piece);
bool EsTriangulo(i16 piece);

// ---------------------------------------------------------------- commands and options
// The commands of the strip, by their buttons.
namespace orden {
enum Orden : i16 {
    OPCION = 0,  // what a choice in the options panel counts as
    BARAJAR,
    PERSONALIZAR,
    TUTOR,
    ESTADISTICAS,
    HISTORICO,
    AYUDA,
    SALIR,
    MODELO,  // the sample view
    OCULTAS,
    COLOCADAS,
    ORDENAR,
    RESOLVER
};
}  // namespace orden
inline constexpr i16 ORDENES_DE_LA_TIRA = 12;

// The rows of the options panel.
namespace opcion {
enum Opcion : i16 { GUARDAR = 1, CARGAR, BORRAR, MODELO };
}  // namespace opcion

// Values of ModoCargua.
inline constexpr i16 CARGUA_CARGAR = 1, CARGUA_GUARDAR = 2, CARGUA_BORRAR = 3, CARGUA_MODELO = 4;

// ---------------------------------------------------------------- directions
// One pixel in each of the eight directions, clockwise from north.
inline constexpr std::array<Punto, 8> RUMBOS = {
    {{0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}, {-1, -1}}};

}  // namespace tessario
