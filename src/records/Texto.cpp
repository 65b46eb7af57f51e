// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/Texto.h"

#include <algorithm>
#include <filesystem>

#include "core/Cadenas.h"
#include "core/Errores.h"

namespace tessario {

namespace {

// Windows-1252 from 0x80 to 0x9F. The five codes without a character stand for themselves, so
// that any byte comes back as it was.
constexpr u32 ALTOS[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                           0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

unsigned char Byte(char c) {
    return static_cast<unsigned char>(c);
}

u32 CodigoDe(unsigned char b) {
    return b >= 0x80 && b < 0xA0 ? ALTOS[b - 0x80] : b;
}

char ByteDe(u32 codigo) {
    if (codigo < 0x80 || (codigo >= 0xA0 && codigo <= 0xFF)) return static_cast<char>(codigo);
    const auto* lugar = std::find(std::begin(ALTOS), std::end(ALTOS), codigo);
    if (lugar == std::end(ALTOS)) return '?';
    return static_cast<char>(0x80 + (lugar - std::begin(ALTOS)));
}

void AnadeUtf8(std::string& s, u32 c) {
    if (c < 0x80) {
        s += static_cast<char>(c);
    } else if (c < 0x800) {
        s += static_cast<char>(0xC0U | (c >> 6));
        s += static_cast<char>(0x80U | (c & 0x3FU));
    } else {
        s += static_cast<char>(0xE0U | (c >> 12));
        s += static_cast<char>(0x80U | ((c >> 6) & 0x3FU));
        s += static_cast<char>(0x80U | (c & 0x3FU));
    }
}

// How many bytes follow a first byte of UTF-8; -1 when it cannot begin a character.
int Siguen(unsigned char b) {
    if (b < 0x80) return 0;
    if (b >= 0xC2 && b < 0xE0) return 1;
    if (b >= 0xE0 && b < 0xF0) return 2;
    if (b >= 0xF0 && b < 0xF5) return 3;
    return -1;
}

constexpr u32 SIN_CODIGO = 0xFFFD;

// Reads the character at i and moves i behind it. A byte that is no UTF-8 gives SIN_CODIGO.
u32 LeeUtf8(std::string_view s, std::size_t& i) {
    const unsigned char b = Byte(s[i++]);
    const int n = Siguen(b);
    if (n <= 0) return n == 0 ? b : SIN_CODIGO;
    u32 codigo = b & (0x3FU >> n);
    std::size_t j = i;
    for (int k = 0; k < n; ++k, ++j) {
        if (j >= s.size() || (Byte(s[j]) & 0xC0U) != 0x80U) return SIN_CODIGO;
        codigo = (codigo << 6) | (Byte(s[j]) & 0x3FU);
    }
    i = j;
    return codigo;
}

// ---------------------------------------------------------------- names without regard to case

// ASCII letters and the accented ones of Latin-1, which take two bytes in UTF-8.
std::string Plegado(std::string_view nombre) {
    std::string s = Minusculas(nombre);
    for (std::size_t i = 1; i < s.size(); ++i) {
        const unsigned char b = Byte(s[i]);
        if (Byte(s[i - 1]) == 0xC3 && b >= 0x80 && b <= 0x9E && b != 0x97)
            s[i] = static_cast<char>(b + 0x20);
    }
    return s;
}

bool Existe(const std::string& ruta) {
    std::error_code e;
    return std::filesystem::exists(ruta, e);
}

// The entry of a folder with this name: the very one, else the first in byte order that differs by
// case alone; empty when there is none.
std::string NombreEnCarpeta(const std::string& carpeta, const std::string& nombre) {
    if (Existe(carpeta + nombre)) return nombre;
    const std::string buscado = Plegado(nombre);
    std::string hallado;
    std::error_code e;
    std::filesystem::directory_iterator i(carpeta.empty() ? "." : carpeta, e);
    for (; !e && i != std::filesystem::directory_iterator(); i.increment(e)) {
        const std::string entrada = i->path().filename().string();
        if (Plegado(entrada) == buscado && (hallado.empty() || entrada < hallado))
            hallado = entrada;
    }
    return hallado;
}

// Walks the path part by part; empty when a part is not there.
std::string RecorreRuta(const std::string& ruta) {
    std::string hecho;
    std::size_t i = 0;
    while (i < ruta.size()) {
        if (ruta[i] == '/') {
            hecho += '/';
            i = std::min(ruta.find_first_not_of('/', i), ruta.size());
            continue;
        }
        const std::size_t fin = std::min(ruta.find('/', i), ruta.size());
        const std::string nombre = NombreEnCarpeta(hecho, ruta.substr(i, fin - i));
        if (nombre.empty()) return {};
        hecho += nombre;
        i = fin;
    }
    return hecho;
}

bool EsLetra(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// Backslashes turned, and a drive such as "C:" taken off.
std::string SinUnidad(std::string ruta) {
    std::replace(ruta.begin(), ruta.end(), '\\', '/');
    if (ruta.size() >= 2 && ruta[1] == ':' && EsLetra(ruta[0])) ruta.erase(0, 2);
    return ruta;
}

}  // namespace

std::string A1252(std::string_view utf8) {
    std::string bytes;
    for (std::size_t i = 0; i < utf8.size();) bytes += ByteDe(LeeUtf8(utf8, i));
    return bytes;
}

std::string De1252(std::string_view bytes) {
    std::string utf8;
    for (const char c : bytes) AnadeUtf8(utf8, CodigoDe(Byte(c)));
    return utf8;
}

std::string TextoDeRuta(std::string_view bytes) {
    std::string texto(bytes);
    for (std::size_t i = 0; i < bytes.size();)
        if (LeeUtf8(bytes, i) == SIN_CODIGO) {
            texto = De1252(bytes);
            break;
        }
    std::replace(texto.begin(), texto.end(), '\n', ' ');
    return texto;
}

std::string Entrecomilla(std::string_view texto) {
    std::string linea = "\"";
    for (const char c : texto) {
        if (c == '"') linea += c;
        linea += c == '\n' ? '\0' : c;
    }
    return linea + "\"";
}

std::string DeComillas(std::string_view linea) {
    const std::size_t abre = linea.find_first_not_of(" \t");
    if (abre == std::string_view::npos || linea[abre] != '"') return std::string(linea);
    linea.remove_prefix(abre);
    return TomaEntrecomillado(linea);
}

std::string TomaEntrecomillado(std::string_view& resto) {
    std::string item;
    std::size_t i = 1;
    for (; i < resto.size(); ++i) {
        if (resto[i] == '"' && (i + 1 == resto.size() || resto[i + 1] != '"')) break;
        if (resto[i] == '"') ++i;
        item += resto[i] == '\0' ? '\n' : resto[i];
    }
    resto.remove_prefix(std::min(i + 1, resto.size()));
    return item;
}

std::string BuscaRuta(const std::string& ruta) {
    if (ruta.empty() || ruta.find('\0') != std::string::npos || Existe(ruta)) return ruta;
    // As it stands, then with the bytes of a file that was written under Windows-1252.
    for (const std::string& intento : {SinUnidad(ruta), SinUnidad(De1252(ruta))}) {
        std::string hallada = RecorreRuta(intento);
        if (!hallada.empty()) return hallada;
    }
    return ruta;
}

std::string_view DeColumnas(std::string_view linea, Columnas c) {
    const auto desde = static_cast<std::size_t>(c.desde - 1);
    if (desde >= linea.size()) return {};
    return linea.substr(desde, static_cast<std::size_t>(c.ancho));
}

void PonColumnas(std::string& linea, Columnas c, std::string_view valor) {
    const std::string_view cortado = valor.substr(0, static_cast<std::size_t>(c.ancho));
    linea.replace(static_cast<std::size_t>(c.desde - 1), cortado.size(), cortado);
}

void PonColumnas(std::string& linea, Columnas c, i32 numero) {
    PonColumnas(linea, c, std::string_view(Ceros(numero, c.ancho)));
}

const char* TextoLogico(bool b) {
    return b ? "-1" : "0 ";
}

i32 NumeroDeCampo(std::string_view campo) {
    i32 n = 0;
    if (!LeeEntero(campo, n)) throw ErrorEjecucion(ERROR_TIPO);
    return n;
}

double RealDeCampo(std::string_view campo) {
    double x = 0;
    if (!LeeReal(campo, x)) throw ErrorEjecucion(ERROR_TIPO);
    return x;
}

bool LogicoDeCampo(std::string_view campo) {
    return RealDeCampo(campo) != 0;
}

std::string_view TomaLinea(std::string_view& bytes) {
    const std::size_t fin = std::min(bytes.find('\n'), bytes.size());
    std::string_view linea = bytes.substr(0, fin);
    bytes.remove_prefix(std::min(fin + 1, bytes.size()));
    if (!linea.empty() && linea.back() == '\r') linea.remove_suffix(1);
    return linea;
}

std::vector<std::string> Lineas(std::string_view bytes) {
    std::vector<std::string> lineas;
    while (!bytes.empty()) lineas.emplace_back(TomaLinea(bytes));
    return lineas;
}

}  // namespace tessario
