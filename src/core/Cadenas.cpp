// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Cadenas.h"

#include <charconv>
#include <cmath>

namespace tessario {

namespace {

bool EsContinuacion(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

// Byte offset of the character at 0-based index n; the size of the text when there is none.
std::size_t Desplazamiento(std::string_view texto, i32 n) {
    std::size_t i = 0;
    while (n > 0 && i < texto.size()) {
        ++i;
        while (i < texto.size() && EsContinuacion(texto[i])) ++i;
        --n;
    }
    return i;
}

std::string_view SinBlancos(std::string_view texto) {
    const std::size_t primero = texto.find_first_not_of(' ');
    if (primero == std::string_view::npos) return {};
    return texto.substr(primero, texto.find_last_not_of(' ') - primero + 1);
}

bool EsDigito(char c) {
    return c >= '0' && c <= '9';
}

// The reader below knows no plus sign; one is allowed in front of a digit.
std::string_view SinMas(std::string_view t) {
    if (t.size() > 1 && t[0] == '+' && (EsDigito(t[1]) || t[1] == '.')) t.remove_prefix(1);
    return t;
}

}  // namespace

i32 Len(std::string_view texto) {
    i32 n = 0;
    for (const char c : texto)
        if (!EsContinuacion(c)) ++n;
    return n;
}

std::string Mid(std::string_view texto, i32 inicio, i32 largo) {
    if (inicio < 1 || largo < 1) return {};
    const std::string_view resto = texto.substr(Desplazamiento(texto, inicio - 1));
    return std::string(resto.substr(0, Desplazamiento(resto, largo)));
}

std::string Left(std::string_view texto, i32 largo) {
    return Mid(texto, 1, largo);
}

std::string Trim(std::string_view texto) {
    return std::string(SinBlancos(texto));
}

std::string RTrim(std::string_view texto) {
    const std::size_t ultimo = texto.find_last_not_of(' ');
    return ultimo == std::string_view::npos ? std::string()
                                            : std::string(texto.substr(0, ultimo + 1));
}

std::string Ajusta(std::string_view texto, i32 ancho) {
    std::string ajustado = Left(texto, ancho);
    const i32 faltan = ancho - Len(ajustado);
    if (faltan > 0) ajustado.append(static_cast<std::size_t>(faltan), ' ');
    return ajustado;
}

std::string Ceros(i32 n, i32 digitos) {
    const bool negativo = n < 0;
    std::string cifras = std::to_string(negativo ? -static_cast<std::int64_t>(n) : n);
    const i32 faltan = digitos - static_cast<i32>(cifras.size());
    if (faltan > 0) cifras.insert(0, static_cast<std::size_t>(faltan), '0');
    return negativo ? "-" + cifras : cifras;
}

std::string Derecha(i32 n, i32 ancho) {
    std::string cifras = std::to_string(n);
    const i32 faltan = ancho - static_cast<i32>(cifras.size());
    if (faltan > 0) cifras.insert(0, static_cast<std::size_t>(faltan), ' ');
    return cifras;
}

std::string Minusculas(std::string_view texto) {
    std::string s(texto);
    for (char& c : s)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return s;
}

bool LeeEntero(std::string_view texto, i32& valor) {
    const std::string_view t = SinMas(SinBlancos(texto));
    i32 leido = 0;
    const auto r = std::from_chars(t.data(), t.data() + t.size(), leido);
    if (r.ec != std::errc() || r.ptr != t.data() + t.size()) return false;
    valor = leido;
    return true;
}

bool LeeReal(std::string_view texto, double& valor) {
    std::string t(SinMas(SinBlancos(texto)));
    for (char& c : t)
        if (c == ',') c = '.';
    double leido = 0;
    const auto r = std::from_chars(t.data(), t.data() + t.size(), leido);
    if (r.ec != std::errc() || r.ptr != t.data() + t.size() || !std::isfinite(leido)) return false;
    valor = leido;
    return true;
}

std::string NombreDeRuta(std::string_view ruta) {
    return std::string(ruta.substr(ruta.find_last_of("/\\") + 1));
}

}  // namespace tessario
