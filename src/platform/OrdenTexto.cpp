// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/OrdenTexto.h"

namespace tessario {

namespace {

// Letters from U+00C0 to U+00DF without their accents, lower case; '?' for what has no other form.
// The small letters follow in the same order 32 places on.
constexpr char BASES[] = "aaaaaa?ceeeeiiii?nooooo?ouuuuy??";
constexpr char32_t ENE = 0x11, DIVISION = 0x17, Y_DIERESIS = 0x1F;  // places in it
constexpr char32_t ACENTO_EXTENDIDO = 33;                           // of a letter beyond U+00FF

struct Letra {
    char32_t peso = 0;    // twice the letter's code, which leaves room for Ñ between N and O
    char32_t acento = 0;  // 0: none
};

// Reads the character at i and moves i behind it.
char32_t Lee(std::string_view s, std::size_t& i) {
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(s[k]); };
    const char32_t b = byte(i++);
    const std::size_t siguen = b >= 0xF0 ? 3 : b >= 0xE0 ? 2 : b >= 0xC2 ? 1 : 0;
    if (siguen == 0 || b >= 0xF5 || i + siguen > s.size()) return b;
    char32_t c = b & (0x3FU >> siguen);
    for (std::size_t k = 0; k < siguen; ++k) {
        if ((byte(i + k) & 0xC0U) != 0x80U) return b;
        c = (c << 6U) | (byte(i + k) & 0x3FU);
    }
    i += siguen;
    return c;
}

// Letters of Windows-1252 that stand beyond U+00FF.
Letra Extendida(char32_t c) {
    switch (c) {
        case U'Š':
        case U'š':
            return {U's' * 2, ACENTO_EXTENDIDO};
        case U'Ž':
        case U'ž':
            return {U'z' * 2, ACENTO_EXTENDIDO};
        case U'Ÿ':
            return {U'y' * 2, ACENTO_EXTENDIDO};
        case U'Œ':
            return {U'œ' * 2, 0};
        default:
            return {c * 2, 0};
    }
}

Letra LetraDe(char32_t c) {
    if (c >= U'A' && c <= U'Z') return {(c - U'A' + U'a') * 2, 0};
    if (c < 0xC0) return {c * 2, 0};
    if (c > 0xFF) return Extendida(c);
    const char32_t lugar = c & 0x1FU;
    if (lugar == ENE) return {U'n' * 2 + 1, 0};
    if (c == 0xE0 + Y_DIERESIS) return {U'y' * 2, ACENTO_EXTENDIDO};
    const char base = BASES[lugar];
    if (base != '?') return {static_cast<char32_t>(base) * 2, lugar + 1};
    // A sign of its own: the capital joins its small letter, where there is one.
    const bool signo = lugar == DIVISION || lugar == Y_DIERESIS;
    return {(signo ? c : c | 0x20U) * 2, 0};
}

}  // namespace

std::u32string ClaveDeOrden(std::string_view texto) {
    std::u32string letras, acentos;
    letras.reserve(texto.size() + 1);
    std::size_t conAcento = 0;  // characters up to the last accent
    for (std::size_t i = 0; i < texto.size();) {
        const Letra l = LetraDe(Lee(texto, i));
        letras += l.peso;
        acentos += l.acento;
        if (l.acento != 0) conAcento = acentos.size();
    }
    if (conAcento == 0) return letras;
    // Below every letter, so that a text stands before those that it begins.
    letras += U'\0';
    return letras.append(acentos, 0, conAcento);
}

bool VaAntes(std::string_view a, std::string_view b) {
    return ClaveDeOrden(a) < ClaveDeOrden(b);
}

}  // namespace tessario
