// SPDX-License-Identifier: GPL-3.0-or-later
// Bitmaps from bytes that are written here by hand, whole and damaged.
#include <gtest/gtest.h>

#include <vector>

#include "platform/Dib.h"

namespace tessario {

namespace {

using Cadena = std::vector<u8>;

class Escritor {
public:
    Escritor& B(std::initializer_list<int> v) {
        for (int x : v) bytes.push_back(static_cast<u8>(x));
        return *this;
    }
    Escritor& W(long v) { return B({static_cast<int>(v & 255), static_cast<int>((v >> 8) & 255)}); }
    Escritor& D(long long v) {
        return W(static_cast<long>(v & 0xFFFF)).W(static_cast<long>((v >> 16) & 0xFFFF));
    }
    Cadena bytes;
};

// A file of a header of 40 bytes or more, with what follows it.
struct Fichero {
    long ancho = 2, alto = 2, bits = 24, compresion = 0, colores = 0, cabecera = 40, filas = -1;
    Cadena tabla, datos;
    Cadena Bytes() const {
        Escritor e;
        e.B({'B', 'M'}).D(0).D(0);
        e.D(filas >= 0 ? filas : 14 + cabecera + static_cast<long>(tabla.size()));
        e.D(cabecera).D(ancho).D(alto).W(1).W(bits).D(compresion).D(0).D(0).D(0).D(colores).D(0);
        e.bytes.resize(static_cast<std::size_t>(14 + cabecera));
        e.bytes.insert(e.bytes.end(), tabla.begin(), tabla.end());
        e.bytes.insert(e.bytes.end(), datos.begin(), datos.end());
        return e.bytes;
    }
};

class Bmp : public testing::Test {
protected:
    bool Lee(const Cadena& b) {
        m = {};
        return LeeBmp(b, m) == Lectura::Bien;
    }
    bool Lee(const Fichero& f) { return Lee(f.Bytes()); }
    std::vector<Pixel> Fila(i32 y) { return {m.Fila(y), m.Fila(y) + m.Ancho}; }
    Mapa m;
};

using Pixeles = std::vector<Pixel>;

TEST_F(Bmp, RowsStandFromTheBottomUnlessTheHeightIsNegative) {
    Fichero f;
    f.datos = {1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 0};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(0), (Pixeles{0x090807, 0x0C0B0A}));
    EXPECT_EQ(Fila(1), (Pixeles{0x030201, 0x060504}));
    f.alto = -2;
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(m.Alto, 2);
    EXPECT_EQ(Fila(0), (Pixeles{0x030201, 0x060504}));
}

TEST_F(Bmp, PalettesOfOneTwoFourAndEightBits) {
    Fichero f;
    f.alto = 1;
    f.tabla = {1, 0, 0, 0, 2, 0, 0, 0, 3, 0, 0, 0, 4, 0, 0, 0};
    f.colores = 4;
    f.ancho = 10;
    f.bits = 1;
    f.datos = {0b01000001, 0b10000000, 0, 0};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(0), (Pixeles{1, 2, 1, 1, 1, 1, 1, 2, 2, 1}));
    f.ancho = 5;
    f.bits = 2;
    f.datos = {0b00011011, 0b11000000, 0, 0};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(0), (Pixeles{1, 2, 3, 4, 4}));
    f.ancho = 3;
    f.bits = 4;
    f.datos = {0x30, 0x21, 0, 0};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(0), (Pixeles{4, 1, 3}));
    f.bits = 8;
    f.datos = {3, 0, 200, 0};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(0), (Pixeles{4, 1, 0})) << "an index without a colour is black";
}

TEST_F(Bmp, ALargerPaletteThanPixelsCanNameIsStepped) {
    Fichero f;
    f.ancho = 1;
    f.alto = 1;
    f.bits = 8;
    f.colores = 300;
    f.tabla.assign(300 * 4, 0);
    f.tabla[255 * 4] = 9;
    f.datos = {255, 0, 0, 0};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(m.Pixeles[0], 9U);
    f.bits = 24;
    f.datos = {7, 0, 0, 0};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(m.Pixeles[0], 7U) << "colours that nobody names lie before the rows";
}

TEST_F(Bmp, SixteenBitsAreFiveEachAndReachWhite) {
    Fichero f;
    f.alto = 1;
    f.bits = 16;
    f.datos = {0xFF, 0x7F, 0x00, 0x7C};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(0), (Pixeles{0xFFFFFF, 0xFF0000}));
}

TEST_F(Bmp, BitFieldsOfAnyWidth) {
    Fichero f;
    f.alto = 1;
    f.bits = 16;
    f.compresion = 3;
    f.tabla = Escritor().D(0x7000).D(0x0F80).D(0x007F).bytes;  // 3, 5 and 7 bits
    f.datos = Escritor().W(0x7FFF).W(0x1000 | 0x0400 | 0x40).bytes;
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(0), (Pixeles{0xFFFFFF, (36U << 16) | (66U << 8) | 129U}));
    f.ancho = 1;
    f.bits = 32;
    f.tabla = Escritor().D(0xFFE00000).D(0x001FFC00).D(0x000003FF).bytes;  // 11, 11 and 10 bits
    f.datos = Escritor().D(0xFFFFFFFF).bytes;
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(m.Pixeles[0], 0xFFFFFFU);
    f.tabla = Escritor().D(0x00FFFFFF).D(0).D(0xFF000000).bytes;  // 24, none and 8 bits
    f.datos = Escritor().D(0x10800000).bytes;
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(m.Pixeles[0], 0x800010U);
    f.tabla = Escritor().D(0x00FF00FF).D(0xFF00).D(0).bytes;
    EXPECT_FALSE(Lee(f)) << "a field with a hole";
}

TEST_F(Bmp, PixelsOf32BitsWithoutFieldsAreBlueGreenRed) {
    Fichero f;
    f.alto = 1;
    f.bits = 32;
    f.datos = Escritor().D(0xFF123456).D(0x00654321).bytes;
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(0), (Pixeles{0x123456, 0x654321}));
}

TEST_F(Bmp, AFileThatEndsWithinItsMasksIsRefused) {
    Fichero f;
    f.bits = 32;
    f.compresion = 3;
    f.filas = 14;
    f.tabla = Escritor().D(0xFF0000).D(0xFF00).bytes;
    EXPECT_FALSE(Lee(f));
}

TEST_F(Bmp, RunsOf24BitsOfTheOtherSystem) {
    Fichero f;
    f.ancho = 4;
    f.alto = 1;
    f.compresion = 4;
    f.cabecera = 64;
    f.datos = {2, 1, 2, 3, 0, 2, 9, 9};  // two of a colour, a jump that goes beyond
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(0), (Pixeles{0x030201, 0x030201, 0, 0}));
    f.datos = {1, 1, 2, 3, 0, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 0};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(0), (Pixeles{0x030201, 0x060504, 0x090807, 0x0C0B0A}));
    f.cabecera = 40;
    EXPECT_FALSE(Lee(f)) << "the number means something else there";
}

TEST_F(Bmp, MasksStandInsideTheNewerHeaders) {
    for (const long cabecera : {52L, 56L, 108L, 124L}) {
        Fichero f;
        f.ancho = f.alto = 1;
        f.bits = 32;
        f.compresion = 3;
        f.cabecera = cabecera;
        f.datos = Escritor().D(0x44332211).bytes;
        Cadena b = f.Bytes();
        const Cadena mascaras = Escritor().D(0xFF).D(0xFF00).D(0xFF0000).D(0xFF000000).bytes;
        std::copy(mascaras.begin(), mascaras.begin() + (cabecera == 52 ? 12 : 16), b.begin() + 54);
        ASSERT_TRUE(Lee(b)) << cabecera;
        EXPECT_EQ(m.Pixeles[0], 0x112233U) << "transparency is left out";
    }
}

TEST_F(Bmp, TheOldestHeaderHasThreeBytesForAColour) {
    Escritor e;
    e.B({'B', 'M'}).D(0).D(0).D(26 + 6).D(12).W(2).W(1).W(1).W(1);
    e.B({1, 2, 3, 4, 5, 6, 0x40, 0, 0, 0});
    ASSERT_TRUE(Lee(e.bytes));
    EXPECT_EQ(Fila(0), (Pixeles{0x030201, 0x060504}));
    // A palette cut short by the rows: the rest is black.
    Escritor c;
    c.B({'B', 'M'}).D(0).D(0).D(26 + 3).D(12).W(2).W(1).W(1).W(8).B({1, 2, 3, 0, 1, 0, 0});
    ASSERT_TRUE(Lee(c.bytes));
    EXPECT_EQ(Fila(0), (Pixeles{0x030201, 0}));
}

TEST_F(Bmp, RunsOfEightBits) {
    Fichero f;
    f.ancho = 4;
    f.alto = 3;
    f.bits = 8;
    f.compresion = 1;
    f.colores = 4;
    f.tabla = {9, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0, 3, 0, 0, 0};
    // Three of 1, end of line; a jump of (1, 0), three single ones with padding; end.
    f.datos = {3, 1, 0, 0, 0, 2, 1, 0, 0, 3, 1, 2, 3, 0, 0, 1};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(2), (Pixeles{1, 1, 1, 9}));
    EXPECT_EQ(Fila(1), (Pixeles{9, 1, 2, 3}));
    EXPECT_EQ(Fila(0), (Pixeles{9, 9, 9, 9})) << "what is skipped has the first colour";
}

TEST_F(Bmp, RunsOfFourBits) {
    Fichero f;
    f.ancho = 5;
    f.alto = 1;
    f.bits = 4;
    f.compresion = 2;
    f.colores = 4;
    f.tabla = {0, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0, 3, 0, 0, 0};
    f.datos = {3, 0x12, 0, 1};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(0), (Pixeles{1, 2, 1, 0, 0}));
    f.datos = {0, 5, 0x12, 0x31, 0x20, 0, 0, 1};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(Fila(0), (Pixeles{1, 2, 3, 1, 2}));
}

TEST_F(Bmp, RunsThatLeaveThePictureAreCutOff) {
    Fichero f;
    f.ancho = 2;
    f.alto = 2;
    f.bits = 8;
    f.compresion = 1;
    f.colores = 2;
    f.tabla = {0, 0, 0, 0, 1, 0, 0, 0};
    for (const Cadena& d :
         {Cadena{255, 1, 0, 0, 255, 1, 0, 0, 255, 1}, Cadena{0, 2, 255, 255, 9, 1},
          Cadena{0, 200, 1, 1}, Cadena{0, 2, 1}, Cadena{5}, Cadena{1, 1, 0}}) {
        f.datos = d;
        ASSERT_TRUE(Lee(f));
        EXPECT_EQ(m.Pixeles.size(), 4U);
    }
    f.datos = {255, 1, 0, 0, 255, 1};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(m.Pixeles, Pixeles(4, 1)) << "a run does not go on in the next row";
    f.alto = -2;
    EXPECT_FALSE(Lee(f)) << "runs have no order from the top";
    f.alto = 2;
    f.bits = 4;
    EXPECT_FALSE(Lee(f)) << "runs of eight bits in four";
}

TEST_F(Bmp, ACutFileShowsTheRowsThatAreThere) {
    Fichero f;
    f.ancho = 1;
    f.alto = 4;
    f.datos = {1, 1, 1, 0, 2, 2, 2, 0, 3, 3};
    ASSERT_TRUE(Lee(f));
    EXPECT_EQ(m.Pixeles, (Pixeles{0, 0x000303, 0x020202, 0x010101}));
    f.datos.clear();
    EXPECT_FALSE(Lee(f)) << "nothing of it is there";
}

TEST_F(Bmp, HeadersThatCannotBeAreRefused) {
    Fichero bueno;
    bueno.datos.assign(16, 0);
    ASSERT_TRUE(Lee(bueno));
    const auto mal = [&](auto cambia) {
        Fichero f = bueno;
        cambia(f);
        return !Lee(f);
    };
    EXPECT_TRUE(mal([](Fichero& f) { f.ancho = 0; }));
    EXPECT_TRUE(mal([](Fichero& f) { f.ancho = -2; }));
    EXPECT_TRUE(mal([](Fichero& f) { f.alto = 0; }));
    EXPECT_TRUE(mal([](Fichero& f) { f.alto = -2147483647L - 1; }));
    EXPECT_TRUE(mal([](Fichero& f) { f.bits = 0; }));
    EXPECT_TRUE(mal([](Fichero& f) { f.bits = 3; }));
    EXPECT_TRUE(mal([](Fichero& f) { f.bits = 64; }));
    EXPECT_TRUE(mal([](Fichero& f) { f.compresion = 5; }));
    EXPECT_TRUE(mal([](Fichero& f) { f.compresion = 3; })) << "fields of 24 bits";
    EXPECT_TRUE(mal([](Fichero& f) { f.filas = 1000000; })) << "rows beyond the end";
    Cadena b = bueno.Bytes();
    for (std::size_t n = 0; n < 54; ++n)
        EXPECT_FALSE(Lee(Cadena(b.begin(), b.begin() + static_cast<long>(n)))) << n;
    b[14] = 13;
    EXPECT_FALSE(Lee(b));
    b[14] = b[15] = 255;
    EXPECT_FALSE(Lee(b));
}

TEST_F(Bmp, AHugePictureIsRefusedBeforeItTakesMemory) {
    Fichero f;
    f.ancho = 30000;
    f.alto = 30000;
    f.datos.assign(100, 0);
    EXPECT_EQ(LeeBmp(f.Bytes(), m), Lectura::Desmedida);
    f.ancho = f.alto = 10000;
    EXPECT_EQ(LeeBmp(f.Bytes(), m), Lectura::Imposible) << "hardly any of its bytes are there";
    i32 w = 0, h = 0;
    EXPECT_EQ(MideBmp(f.Bytes(), w, h), Lectura::Bien);
    EXPECT_EQ(w, 10000);
    f.ancho = 2000000000;
    f.alto = 2000000000;
    EXPECT_EQ(LeeBmp(f.Bytes(), m), Lectura::Desmedida);
}

TEST_F(Bmp, TheFirstPictureOfAnArrayIsRead) {
    Fichero f;
    f.ancho = f.alto = 1;
    f.filas = 14 + 54;
    f.datos = {1, 2, 3, 0};
    Cadena b = f.Bytes();
    const Cadena delante = Escritor().B({'B', 'A'}).D(0).D(0).D(0).bytes;
    b.insert(b.begin(), delante.begin(), delante.end());
    ASSERT_TRUE(Lee(b));
    EXPECT_EQ(m.Pixeles[0], 0x030201U);
}

}  // namespace

}  // namespace tessario
