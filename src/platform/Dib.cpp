// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Dib.h"

#include <bit>
#include <limits>

namespace tessario {

namespace {

constexpr std::size_t CABECERA_CORTA = 12;   // the oldest form: 16-bit sizes, entries of 3 bytes
constexpr std::size_t CABECERA_NORMAL = 40;  // masks, if any, follow it
constexpr std::size_t CABECERA_MASCARAS = 52;
constexpr std::size_t CABECERA_OS2 = 64;  // its compressions 3 and 4 are others
constexpr std::size_t CABECERA_MINIMA = 16;
constexpr std::size_t CABECERA_MAXIMA = 4096;
constexpr std::size_t CABECERA_FICHERO = 14;
constexpr i32 LADO_MAXIMO = 1 << 20;
// The largest picture, in pixels: half a gigabyte once decoded.
constexpr long long PIXELES_MAXIMOS = 128LL * 1024 * 1024;
// A picture larger than this has to be backed by bytes.
constexpr long long PIXELES_SIN_PRUEBA = 1LL << 20;
constexpr long long PIXELES_POR_BYTE_RLE = 512;
constexpr std::size_t PARTE_MINIMA = 8;  // of a cut file this part of the rows is there at least

bool MascaraSeguida(u32 m) {
    return m == 0 ||
           std::has_single_bit((static_cast<unsigned long long>(m) >> std::countr_zero(m)) + 1);
}

bool LeeMascaras(Bytes dib, std::size_t tamano, CabeceraDib& c) {
    if (dib.size() < CABECERA_MASCARAS) return false;
    for (std::size_t i = 0; i < 3; ++i) {
        c.Mascaras[i] = Lee32(dib, CABECERA_NORMAL + 4 * i);
        if (!MascaraSeguida(c.Mascaras[i])) return false;
        if (c.Bits == 16) c.Mascaras[i] &= 0xFFFFU;
    }
    if (tamano == CABECERA_NORMAL) c.Tabla += 12;
    return (c.Mascaras[0] | c.Mascaras[1] | c.Mascaras[2]) != 0;
}

bool PonCompresion(u32 codigo, Bytes dib, std::size_t tamano, CabeceraDib& c) {
    constexpr u32 NINGUNA = 0, RLE8 = 1, RLE4 = 2, CAMPOS = 3, RLE24 = 4, CAMPOS_ALFA = 6;
    const bool os2 = tamano == CABECERA_OS2 || tamano < CABECERA_NORMAL;
    if (c.Bits == 16) c.Mascaras = {0x7C00, 0x03E0, 0x001F};
    if (c.Bits == 32) c.Mascaras = {0xFF0000, 0x00FF00, 0x0000FF};
    switch (codigo) {
        case NINGUNA:
            return true;
        case RLE8:
            c.Compresion = CompresionDib::Rle8;
            return c.Bits == 8 && !c.DesdeArriba;
        case RLE4:
            c.Compresion = CompresionDib::Rle4;
            return c.Bits == 4 && !c.DesdeArriba;
        case RLE24:
            c.Compresion = CompresionDib::Rle24;
            return os2 && c.Bits == 24 && !c.DesdeArriba;
        case CAMPOS:
        case CAMPOS_ALFA:
            c.Compresion = CompresionDib::Campos;
            if (os2 || (c.Bits != 16 && c.Bits != 32)) return false;
            if (!LeeMascaras(dib, tamano, c)) return false;
            if (codigo == CAMPOS_ALFA && tamano == CABECERA_NORMAL) c.Tabla += 4;
            return true;
        default:
            return false;
    }
}

bool BitsConocidos(int bits) {
    return bits == 1 || bits == 2 || bits == 4 || bits == 8 || bits == 16 || bits == 24 ||
           bits == 32;
}

// One colour of a pixel that is made of bit fields, from 0 to 255.
class Campo {
public:
    explicit Campo(u32 mascara)
        : mascara_(mascara),
          baja_(mascara ? std::countr_zero(mascara) : 0),
          maximo_(mascara >> baja_) {
        if (maximo_ > 0 && maximo_ < TABLA)
            for (u32 v = 0; v <= maximo_; ++v) tabla_.push_back((v * 255U + maximo_ / 2) / maximo_);
    }
    u32 De(u32 pixel) const {
        const u32 v = (pixel & mascara_) >> baja_;
        if (!tabla_.empty()) return tabla_[v];
        if (maximo_ == 0) return 0;
        return static_cast<u32>((static_cast<unsigned long long>(v) * 255U + maximo_ / 2) /
                                maximo_);
    }

private:
    static constexpr u32 TABLA = 1U << 11;
    u32 mascara_;
    int baja_;
    u32 maximo_;
    std::vector<u32> tabla_;
};

struct Filas {
    const CabeceraDib& c;
    Mapa& m;
    // The row of the picture that is the n-th of those stored.
    Pixel* operator()(i32 n) const { return m.Fila(c.DesdeArriba ? n : c.Alto - 1 - n); }
};

void FilaIndices(const CabeceraDib& c, std::span<const Pixel> tabla, const u8* de, Pixel* a) {
    const auto bits = static_cast<u32>(c.Bits);
    const u32 mascara = (1U << bits) - 1;
    for (u32 x = 0; x < static_cast<u32>(c.Ancho); ++x) {
        const u32 bit = x * bits;
        a[x] = tabla[(static_cast<u32>(de[bit >> 3]) >> (8 - bits - (bit & 7U))) & mascara];
    }
}

void Fila24(i32 ancho, const u8* de, Pixel* a) {
    for (i32 x = 0; x < ancho; ++x, de += 3)
        a[x] = static_cast<Pixel>(de[0]) | static_cast<Pixel>(de[1]) << 8 |
               static_cast<Pixel>(de[2]) << 16;
}

void SinComprimir(const CabeceraDib& c, std::span<const Pixel> tabla, Bytes filas, Mapa& m,
                  bool conAlfa) {
    const std::size_t paso = c.BytesFila();
    const Filas fila{c, m};
    const Campo rojo(c.Mascaras[0]), verde(c.Mascaras[1]), azul(c.Mascaras[2]);
    const bool directo = c.Bits == 32 && c.Mascaras == std::array<u32, 3>{0xFF0000, 0xFF00, 0xFF};
    const Pixel guarda = conAlfa ? 0xFFFFFFFFU : 0xFFFFFFU;
    std::vector<u8> ultima;
    for (i32 n = 0; n < c.Alto; ++n) {
        const std::size_t desde = static_cast<std::size_t>(n) * paso;
        if (desde >= filas.size()) return;
        const u8* de = filas.data() + desde;
        if (filas.size() - desde < paso) {  // the file ends within this row
            ultima.assign(filas.begin() + static_cast<std::ptrdiff_t>(desde), filas.end());
            ultima.resize(paso);
            de = ultima.data();
        }
        Pixel* const a = fila(n);
        if (c.Bits <= 8) {
            FilaIndices(c, tabla, de, a);
        } else if (c.Bits == 24) {
            Fila24(c.Ancho, de, a);
        } else {
            const std::size_t bytes = c.Bits == 16 ? 2 : 4;
            const Bytes origen(de, paso);
            for (i32 x = 0; x < c.Ancho; ++x) {
                const std::size_t i = static_cast<std::size_t>(x) * bytes;
                const u32 v = bytes == 2 ? Lee16(origen, i) : Lee32(origen, i);
                a[x] = directo ? v & guarda : rojo.De(v) << 16 | verde.De(v) << 8 | azul.De(v);
            }
        }
    }
}

// Run-length codes: pairs of a count and a value; a count of 0 begins an end of line, an end of
// the picture, a jump, or a stretch of single values.
class LectorRle {
public:
    LectorRle(const CabeceraDib& c, std::span<const Pixel> tabla, Bytes filas, Mapa& m)
        : c_(c), tabla_(tabla), b_(filas), m_(m), valor_(c.Bits == 24 ? 3 : 1) {}

    void Lee() {
        while (y_ < c_.Alto && i_ + 2 <= b_.size()) {
            const u8 cuenta = b_[i_++];
            if (cuenta > 0) {
                if (i_ + valor_ > b_.size()) return;
                Repite(cuenta);
            } else if (!Orden(b_[i_++])) {
                return;
            }
        }
    }

private:
    bool Orden(u8 orden) {
        constexpr u8 FIN_LINEA = 0, FIN = 1, SALTO = 2;
        if (orden == FIN) return false;
        if (orden == FIN_LINEA) {
            x_ = 0;
            ++y_;
        } else if (orden == SALTO) {
            if (i_ + 2 > b_.size()) return false;
            x_ = std::min(x_ + b_[i_], c_.Ancho);
            y_ += b_[i_ + 1];
            i_ += 2;
        } else {
            Sueltos(orden);
        }
        return true;
    }
    void Repite(i32 cuenta) {
        for (i32 k = 0; k < cuenta; ++k) Pon(De(i_, k & 1));
        i_ += valor_;
    }
    void Sueltos(i32 cuenta) {
        const auto n = static_cast<std::size_t>(cuenta);
        const std::size_t bytes = c_.Bits == 4 ? (n + 1) / 2 : n * valor_;
        for (i32 k = 0; k < cuenta; ++k) {
            const auto cual = static_cast<std::size_t>(k);
            const std::size_t donde = i_ + (c_.Bits == 4 ? cual / 2 : cual * valor_);
            if (donde + valor_ > b_.size()) break;
            Pon(De(donde, k & 1));
        }
        i_ += std::min(bytes + (bytes & 1U), b_.size() - i_);
    }
    Pixel De(std::size_t donde, int impar) const {
        if (c_.Bits == 24) return Lee16(b_, donde) | static_cast<Pixel>(b_[donde + 2]) << 16;
        if (c_.Bits == 8) return tabla_[b_[donde]];
        return tabla_[impar ? b_[donde] & 15U : b_[donde] >> 4];
    }
    void Pon(Pixel p) {
        if (x_ < c_.Ancho && y_ < c_.Alto) m_.Fila(c_.Alto - 1 - y_)[x_] = p;
        x_ = std::min(x_ + 1, c_.Ancho);
    }

    const CabeceraDib& c_;
    std::span<const Pixel> tabla_;
    Bytes b_;
    Mapa& m_;
    std::size_t valor_;  // bytes of a value
    std::size_t i_ = 0;
    i32 x_ = 0, y_ = 0;
};

bool EsRle(const CabeceraDib& c) {
    return c.Compresion == CompresionDib::Rle8 || c.Compresion == CompresionDib::Rle4 ||
           c.Compresion == CompresionDib::Rle24;
}

// Are there bytes enough for a picture of this size to be meant?
bool HayBytes(const CabeceraDib& c, std::size_t bytes) {
    const long long pixeles = static_cast<long long>(c.Ancho) * c.Alto;
    if (bytes == 0) return false;
    if (pixeles <= PIXELES_SIN_PRUEBA) return true;
    if (EsRle(c)) return pixeles <= static_cast<long long>(bytes) * PIXELES_POR_BYTE_RLE;
    return bytes >= c.BytesFila() * static_cast<std::size_t>(c.Alto) / PARTE_MINIMA;
}

// The file's own header: where the bitmap's header and its rows begin.
struct Sitio {
    std::size_t Cabecera = 0, Filas = 0;
};

bool Busca(Bytes f, Sitio& s) {
    // The first bitmap of an array.
    const std::size_t base = f.size() > 2 && f[0] == 'B' && f[1] == 'A' ? CABECERA_FICHERO : 0;
    if (f.size() < base + CABECERA_FICHERO + 4 || f[base] != 'B' || f[base + 1] != 'M')
        return false;
    s.Cabecera = base + CABECERA_FICHERO;
    s.Filas = Lee32(f, base + 10);
    return true;
}

Lectura Examina(Bytes f, Sitio& s, CabeceraDib& c) {
    if (!Busca(f, s) || !LeeCabeceraDib(f.subspan(s.Cabecera), c)) return Lectura::Imposible;
    if (static_cast<long long>(c.Ancho) * c.Alto > PIXELES_MAXIMOS) return Lectura::Desmedida;
    return Lectura::Bien;
}

}  // namespace

std::size_t CabeceraDib::BytesFila() const {
    return (static_cast<std::size_t>(Ancho) * static_cast<std::size_t>(Bits) + 31) / 32 * 4;
}

bool LeeCabeceraDib(Bytes dib, CabeceraDib& c) {
    c = {};
    if (dib.size() < CABECERA_CORTA) return false;
    const std::size_t tamano = Lee32(dib, 0);
    u32 compresion = 0;
    if (tamano == CABECERA_CORTA) {
        c.Ancho = static_cast<i32>(Lee16(dib, 4));
        c.Alto = static_cast<i32>(static_cast<i16>(Lee16(dib, 6)));
        c.Bits = static_cast<int>(Lee16(dib, 10));
        c.Entrada = 3;
    } else {
        if (tamano < CABECERA_MINIMA || tamano > CABECERA_MAXIMA || dib.size() < tamano)
            return false;
        c.Ancho = static_cast<i32>(Lee32(dib, 4));
        c.Alto = static_cast<i32>(Lee32(dib, 8));
        c.Bits = static_cast<int>(Lee16(dib, 14));
        if (tamano >= 20) compresion = Lee32(dib, 16);
        if (tamano >= 36) c.Colores = Lee32(dib, 32);
    }
    if (c.Alto == std::numeric_limits<i32>::min()) return false;
    c.DesdeArriba = c.Alto < 0;
    c.Alto = std::abs(c.Alto);
    c.Tabla = tamano;
    if (c.Ancho <= 0 || c.Alto <= 0 || !BitsConocidos(c.Bits)) return false;
    if (c.Ancho > LADO_MAXIMO || c.Alto > LADO_MAXIMO) {
        c.Compresion = CompresionDib::Ninguna;  // too large whatever it holds
        return true;
    }
    if (c.Colores == 0) c.Colores = c.Nombrables();
    return PonCompresion(compresion, dib, tamano, c);
}

std::vector<Pixel> TablaDib(Bytes dib, const CabeceraDib& c, std::size_t limite) {
    std::vector<Pixel> tabla(c.Nombrables());
    const std::size_t fin = std::min(limite, dib.size());
    for (std::size_t k = 0; k < std::min(tabla.size(), c.Colores); ++k) {
        const std::size_t i = c.Tabla + k * c.Entrada;
        if (i + c.Entrada > fin) break;
        tabla[k] = Lee16(dib, i) | static_cast<Pixel>(dib[i + 2]) << 16;
    }
    return tabla;
}

bool DecodificaDib(const CabeceraDib& c, std::span<const Pixel> tabla, Bytes filas, Mapa& destino,
                   bool conAlfa) {
    if (tabla.size() < c.Nombrables() || !HayBytes(c, filas.size())) return false;
    Mapa m(c.Ancho, c.Alto, tabla.empty() ? 0 : tabla[0]);
    if (EsRle(c))
        LectorRle(c, tabla, filas, m).Lee();
    else
        SinComprimir(c, tabla, filas, m, conAlfa);
    destino = std::move(m);
    return true;
}

bool EsBmp(Bytes fichero) {
    Sitio s;
    return Busca(fichero, s);
}

Lectura MideBmp(Bytes fichero, i32& ancho, i32& alto) {
    Sitio s;
    CabeceraDib c;
    if (const Lectura l = Examina(fichero, s, c); l != Lectura::Bien) return l;
    ancho = c.Ancho;
    alto = c.Alto;
    return Lectura::Bien;
}

Lectura LeeBmp(Bytes fichero, Mapa& destino) {
    Sitio s;
    CabeceraDib c;
    if (const Lectura l = Examina(fichero, s, c); l != Lectura::Bien) return l;
    const Bytes dib = fichero.subspan(s.Cabecera);
    // Rows cannot begin within the headers; where they seem to, they follow the colour table.
    std::size_t filas = s.Filas;
    if (filas < s.Cabecera + c.Tabla) filas = s.Cabecera + c.FinTabla();
    if (filas >= fichero.size()) return Lectura::Imposible;
    const std::vector<Pixel> tabla = TablaDib(dib, c, filas - s.Cabecera);
    return DecodificaDib(c, tabla, fichero.subspan(filas), destino) ? Lectura::Bien
                                                                    : Lectura::Imposible;
}

}  // namespace tessario
