// SPDX-License-Identifier: GPL-3.0-or-later
// What the two kinds of metafiles share in reading: one record with its bounds, bitmaps within it,
// letters by the character sets of old. Only for the walks.
#pragma once

#include <initializer_list>
#include <optional>
#include <span>
#include <unordered_map>

#include "platform/MetaContexto.h"

namespace tessario {

// A record asks for more than it has: it is left out, the walk goes on.
struct RegistroCorto {};

class Registro {
public:
    explicit Registro(Bytes b) : b_(b) {}
    std::size_t Largo() const { return b_.size(); }
    // Little-endian numbers at an offset.
    u8 Byte(std::size_t i) const { return Parte(i, 1)[0]; }
    i32 I16(std::size_t i) const { return static_cast<i16>(Lee16(Parte(i, 2), 0)); }
    u32 U16(std::size_t i) const { return Lee16(Parte(i, 2), 0); }
    i32 I32(std::size_t i) const { return static_cast<i32>(U32(i)); }
    u32 U32(std::size_t i) const { return Lee32(Parte(i, 4), 0); }
    double F32(std::size_t i) const;
    PuntoD P16(std::size_t i) const { return {double(I16(i)), double(I16(i + 2))}; }
    PuntoD P32(std::size_t i) const { return {double(I32(i)), double(I32(i + 4))}; }
    Matriz M32(std::size_t i) const;
    Bytes Parte(std::size_t i, std::size_t n) const {
        if (i > b_.size() || n > b_.size() - i) throw RegistroCorto{};
        return b_.subspan(i, n);
    }
    Bytes Desde(std::size_t i) const { return Parte(i, b_.size() - std::min(i, b_.size())); }
    // So many points of 2 x 2 or 2 x 4 bytes.
    std::vector<PuntoD> Puntos(std::size_t i, std::size_t n, bool cortos) const;

private:
    Bytes b_;
};

// What each kind of record does to the reader of a file, by its number.
template <class Lector>
class AccionesMeta {
public:
    struct Fila {
        u32 Numero;
        void (*Hace)(Lector&, const Registro&);
    };
    using Tabla = std::span<const Fila>;

    AccionesMeta(std::initializer_list<Tabla> tablas) {
        for (const Tabla& t : tablas)
            for (const Fila& f : t) porNumero_.emplace(f.Numero, f.Hace);
    }
    // Records of other kinds, and those that are too short for what they say, do nothing.
    void Haz(Lector& l, u32 numero, const Registro& r, Esfuerzo& esfuerzo) const {
        constexpr long long GASTO_CORTO = 2000;
        const auto i = porNumero_.find(numero);
        if (i == porNumero_.end()) return;
        try {
            i->second(l, r);
        } catch (const RegistroCorto&) {
            esfuerzo.Gasta(GASTO_CORTO);
        }
    }

private:
    std::unordered_map<u32, void (*)(Lector&, const Registro&)> porNumero_;
};

// How the entries of a bitmap's colour table are meant.
inline constexpr u32 TABLA_DE_PALETA = 1;

// A bitmap with its header and colour table in one place and its rows in another, or behind them
// when there are none given. `filas`: how many rows are there, 0 for all.
std::optional<Mapa> BitmapDe(ContextoMeta& c, Bytes cabecera, std::optional<Bytes> filas, u32 uso,
                             bool conAlfa = false, i32 parte = 0, CabeceraDib* leida = nullptr);

// A brush of such a bitmap. Its memory is counted: all brushes of a file share one limit.
Objeto BrochaDeDibujo(ContextoMeta& c, std::optional<Mapa> m, bool unBit);

std::u16string LetrasDe(Bytes b, int juego);

// The fields of a font that both kinds have, from its eight flags and its pitch.
void PonMarcasDeFuente(const Registro& r, std::size_t i, FuenteMeta& f);

}  // namespace tessario
