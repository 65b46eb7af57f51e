// SPDX-License-Identifier: GPL-3.0-or-later
// Device-independent bitmaps, as they stand in BMP files and inside metafiles: the header, the
// colour table and the rows, read with bounds from bytes that may say anything.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "platform/Superficie.h"
#include "platform/Tipos.h"

namespace tessario {

using Bytes = std::span<const u8>;

// Ways in which the rows are stored.
enum class CompresionDib { Ninguna, Rle8, Rle4, Rle24, Campos };

struct CabeceraDib {
    i32 Ancho = 0, Alto = 0;
    bool DesdeArriba = false;  // the first row stored is the top one
    int Bits = 0;              // 1, 2, 4, 8, 16, 24 or 32 for each pixel
    CompresionDib Compresion = CompresionDib::Ninguna;
    std::array<u32, 3> Mascaras{};  // red, green and blue within 16 or 32 bits
    std::size_t Tabla = 0;          // where the colour table begins, from the header's first byte
    std::size_t Entrada = 4;        // bytes of one of its entries
    std::size_t Colores = 0;        // entries that it says it has
    std::size_t BytesFila() const;  // of a row that is not compressed, with its padding
    std::size_t FinTabla() const { return Tabla + Colores * Entrada; }
    // Entries that a pixel can name; 0 where pixels are colours themselves.
    std::size_t Nombrables() const { return Bits <= 8 ? std::size_t{1} << Bits : 0; }
};

// Reads the header at the beginning of the bytes. False: none that can be read.
bool LeeCabeceraDib(Bytes dib, CabeceraDib& c);

// The colour table, as long as a pixel can name, up to the given offset; the missing entries are
// black.
std::vector<Pixel> TablaDib(Bytes dib, const CabeceraDib& c, std::size_t limite);

// The rows as a picture. Pixels that the bytes leave out have the table's first colour, or are
// black. With conAlfa the upper byte of each pixel is kept when there are 32 bits, else 0. False:
// no picture, or so few bytes for one so large that nobody meant it.
bool DecodificaDib(const CabeceraDib& c, std::span<const Pixel> tabla, Bytes filas, Mapa& destino,
                   bool conAlfa = false);

// How the reading of a picture ended.
enum class Lectura { Bien, Desmedida, Imposible };

// A whole BMP file. Of a file that was cut off the rows that are there are shown if they are not
// too few. A picture's transparency is left out.
Lectura LeeBmp(Bytes fichero, Mapa& destino);
Lectura MideBmp(Bytes fichero, i32& ancho, i32& alto);
bool EsBmp(Bytes fichero);

// Little-endian numbers at an offset that lies within the bytes.
inline u32 Lee16(Bytes b, std::size_t i) {
    return static_cast<u32>(b[i]) | static_cast<u32>(b[i + 1]) << 8;
}
inline u32 Lee32(Bytes b, std::size_t i) {
    return Lee16(b, i) | Lee16(b, i + 2) << 16;
}

}  // namespace tessario
