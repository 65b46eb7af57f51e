// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MetaRegistro.h"

#include <bit>
#include <cmath>

namespace tessario {

namespace {

constexpr std::size_t PUNTOS_MAXIMOS = 1'000'000;
constexpr long long PIXELES_BITMAP = 16LL * 1024 * 1024;
constexpr long long PIXELES_BROCHA = 1LL * 1024 * 1024;
constexpr long long GASTO_POR_PIXEL_DE_BROCHA = 64;  // so that the brushes of a file stay few

// Characters 0x80 to 0x9F of the western set.
constexpr char16_t OCCIDENTAL[] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

constexpr int JUEGO_GRIEGO = 161, JUEGO_CIRILICO = 204;

char16_t LetraDe(u8 b, int juego) {
    if (b < 0x80) return b;
    if (juego == JUEGO_CIRILICO && b >= 0xC0) return static_cast<char16_t>(0x0410 + b - 0xC0);
    if (juego == JUEGO_GRIEGO && b >= 0xC0) return static_cast<char16_t>(0x0390 + b - 0xC0);
    return b < 0xA0 ? OCCIDENTAL[b - 0x80] : b;
}

}  // namespace

double Registro::F32(std::size_t i) const {
    const double v = std::bit_cast<float>(U32(i));
    if (!std::isfinite(v) || std::abs(v) > 1e12) throw RegistroCorto{};
    return v;
}

Matriz Registro::M32(std::size_t i) const {
    return {F32(i), F32(i + 4), F32(i + 8), F32(i + 12), F32(i + 16), F32(i + 20)};
}

std::vector<PuntoD> Registro::Puntos(std::size_t i, std::size_t n, bool cortos) const {
    if (n > PUNTOS_MAXIMOS) throw RegistroCorto{};
    const std::size_t paso = cortos ? 4 : 8;
    Parte(i, n * paso);
    std::vector<PuntoD> v(n);
    for (std::size_t k = 0; k < n; ++k) v[k] = cortos ? P16(i + 4 * k) : P32(i + 8 * k);
    return v;
}

std::optional<Mapa> BitmapDe(ContextoMeta& c, Bytes cabecera, std::optional<Bytes> filas, u32 uso,
                             bool conAlfa, i32 parte, CabeceraDib* leida) {
    CabeceraDib d;
    if (!LeeCabeceraDib(cabecera, d)) return std::nullopt;
    if (leida) *leida = d;
    if (parte > 0) d.Alto = std::min(d.Alto, parte);
    const long long pixeles = static_cast<long long>(d.Ancho) * d.Alto;
    if (pixeles > PIXELES_BITMAP) return std::nullopt;
    std::vector<Pixel> tabla;
    if (uso == TABLA_DE_PALETA && d.Bits <= 8) {
        d.Entrada = 2;
        tabla.assign(d.Nombrables(), 0);
        for (std::size_t k = 0; k < std::min(tabla.size(), d.Colores); ++k) {
            const std::size_t i = d.Tabla + 2 * k;
            if (i + 2 > cabecera.size()) break;
            tabla[k] = c.Color({0x01000000U | Lee16(cabecera, i)});
        }
    } else {
        tabla = TablaDib(cabecera, d, cabecera.size());
    }
    if (!filas) {
        if (d.FinTabla() >= cabecera.size()) return std::nullopt;
        filas = cabecera.subspan(d.FinTabla());
    }
    c.Gasto().Gasta(pixeles * 4);
    Mapa m;
    if (!DecodificaDib(d, tabla, *filas, m, conAlfa)) return std::nullopt;
    return m;
}

Objeto BrochaDeDibujo(ContextoMeta& c, std::optional<Mapa> m, bool unBit) {
    if (!m) return nullptr;
    const long long pixeles = static_cast<long long>(m->Ancho) * m->Alto;
    if (pixeles > PIXELES_BROCHA) return nullptr;
    c.Gasto().Gasta(pixeles * GASTO_POR_PIXEL_DE_BROCHA);
    Objeto o = BrochaLisa(0);
    o->Brocha.Tipo = BrochaMeta::Clase::Dibujo;
    o->Brocha.UnBit = unBit;
    if (unBit)
        for (Pixel& p : m->Pixeles) p = p != 0 ? 1 : 0;
    o->Brocha.Dibujo = std::make_shared<const Mapa>(std::move(*m));
    return o;
}

std::u16string LetrasDe(Bytes b, int juego) {
    std::u16string t;
    for (const u8 u : b) t += LetraDe(u, juego);
    return t;
}

void PonMarcasDeFuente(const Registro& r, std::size_t i, FuenteMeta& f) {
    f.Cursiva = r.Byte(i) != 0;
    f.Subrayada = r.Byte(i + 1) != 0;
    f.Tachada = r.Byte(i + 2) != 0;
    f.Juego = r.Byte(i + 3);
    f.Paso = r.Byte(i + 7);
}

}  // namespace tessario
