// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/Modelos.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include "core/Cadenas.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "records/Archivo.h"
#include "records/Texto.h"
#include "rules/Catalogo.h"

namespace tessario {

namespace {

// Columns of a record, counted from 0. One byte is one character.
constexpr std::size_t LARGO_NOMBRE = 25;
constexpr std::size_t COLUMNA_PIEZAS = LARGO_NOMBRE;
constexpr std::size_t LARGO_BLOQUE = 10;                         // one piece
constexpr Columnas X{1, 4}, Y{5, 4}, GIRO{9, 1}, VOLTEO{10, 1};  // of a piece's block
// Kept is how the pieces lie; a model is where they belong.
constexpr CampoDe<Pieza> CAMPOS_ESCRITOS[] = {
    {X, &Pieza::X}, {Y, &Pieza::Y}, {GIRO, &Pieza::Giro}, {VOLTEO, &Pieza::Volteo}};
constexpr CampoDe<Pieza> CAMPOS_LEIDOS[] = {
    {X, &Pieza::XBien}, {Y, &Pieza::YBien}, {GIRO, &Pieza::GiroBien}, {VOLTEO, &Pieza::VolteoBien}};
constexpr std::size_t FIN_PIEZAS = COLUMNA_PIEZAS + LARGO_BLOQUE * PIEZAS_TANGRAM;
constexpr std::size_t COLUMNA_FIN = 124;  // carriage return and line feed
constexpr i32 MAX_MODELOS = 32767;        // ModeloActual holds no larger number
constexpr i16 ULTIMO_GIRO = 7;
constexpr const char* NOMBRE_FICHERO = "Modelos.tpu";

// Number of records in the file, a last one that is cut short included.
i32 CuentaRegistros(std::string_view fichero) {
    const std::size_t n = (fichero.size() + LARGO_MODELO - 1) / LARGO_MODELO;
    return static_cast<i32>(std::min<std::size_t>(n, MAX_MODELOS));
}

// A record by its number, from 1. One that is missing, or cut short before the end of its pieces,
// is a free one.
std::string Registro(std::string_view fichero, i32 numero) {
    if (numero < 1 || numero > CuentaRegistros(fichero)) return RegistroModeloLibre();
    const auto desde = static_cast<std::size_t>(numero - 1) * LARGO_MODELO;
    std::string registro(fichero.substr(desde, LARGO_MODELO));
    if (registro.size() < FIN_PIEZAS) return RegistroModeloLibre();
    registro += RegistroModeloLibre().substr(registro.size());
    return registro;
}

// A name in one byte for a character, with blanks for what cannot be seen.
std::string Visible(std::string_view nombre) {
    std::string s(nombre);
    for (char& c : s)
        if (static_cast<unsigned char>(c) < ' ') c = ' ';
    return s;
}

// A field's number; a field that holds none, or one below 0, counts as 0.
i16 Campo(std::string_view campo) {
    i32 valor = 0;
    return LeeEntero(campo, valor) && valor > 0 ? Corto(valor) : i16{0};
}

void LeeBloque(std::string_view bloque, Pieza& p) {
    for (const CampoDe<Pieza>& c : CAMPOS_LEIDOS) p.*c.dato = Campo(DeColumnas(bloque, c.donde));
    // A damaged digit would name an orientation that no piece has.
    if (p.GiroBien > ULTIMO_GIRO) p.GiroBien = 0;
    p.VolteoBien = p.VolteoBien != 0;
}

std::string EscribeBloque(const Pieza& p) {
    std::string bloque(LARGO_BLOQUE, '0');
    PonCampos(bloque, CAMPOS_ESCRITOS, p);
    return bloque;
}

// The whole file. A missing one is an empty one; any other failure is noted and answered false.
bool LeeModelos(std::string& bytes) {
    bytes.clear();
    const i16 error = LeeFichero(FicheroModelos(), bytes);
    if (error == 0) return true;
    bytes.clear();
    if (error == ERROR_FICHERO) return true;
    PonErrorPendiente(error);
    return false;
}

// Puts RegistroModelo at a place and replaces the file whole. A last record that is cut short is
// made whole first.
void EscribeModelo(std::string bytes, i16 numero) {
    const i32 registros = CuentaRegistros(bytes);
    if (bytes.size() % LARGO_MODELO != 0) {
        const std::string ultimo = Registro(bytes, registros);
        bytes.replace(bytes.size() / LARGO_MODELO * LARGO_MODELO, LARGO_MODELO, ultimo);
    }
    const auto desde = static_cast<std::size_t>(numero - 1) * LARGO_MODELO;
    if (bytes.size() < desde + LARGO_MODELO) bytes.resize(desde + LARGO_MODELO, '0');
    bytes.replace(desde, LARGO_MODELO, Gbl.RegistroModelo);
    const i16 error = EscribeFichero(FicheroModelos(), bytes);
    if (error != 0) PonErrorPendiente(error);
}

// The first free record, or the one after the last.
i16 BuscaHueco(std::string_view fichero) {
    const i32 registros = CuentaRegistros(fichero);
    i32 numero = 1;
    while (numero <= registros && !ModeloLibre(Registro(fichero, numero))) ++numero;
    return Corto(numero);
}

// Left and top of the pieces as they stand.
Punto EsquinaDeLaFigura() {
    Punto esquina{Gbl.Piezas[1].X, Gbl.Piezas[1].Y};
    for (i32 i = 2; i <= PIEZAS_TANGRAM; ++i) {
        esquina.x = std::min<i32>(esquina.x, Gbl.Piezas[i].X);
        esquina.y = std::min<i32>(esquina.y, Gbl.Piezas[i].Y);
    }
    return esquina;
}

void MuevePiezas(i32 dx, i32 dy) {
    for (i32 i = 1; i <= PIEZAS_TANGRAM; ++i) {
        Gbl.Piezas[i].X = Corto(Gbl.Piezas[i].X + dx);
        Gbl.Piezas[i].Y = Corto(Gbl.Piezas[i].Y + dy);
    }
}

// Name and placements of the pieces as they stand.
std::string RegistroDeLaMesa(const std::string& nombre) {
    const std::string columnas = Visible(A1252(Trim(nombre)).substr(0, LARGO_NOMBRE));
    std::string registro = RegistroModeloLibre();
    registro.replace(0, columnas.size(), columnas);
    for (i32 i = 1; i <= PIEZAS_TANGRAM; ++i) {
        const auto desde = COLUMNA_PIEZAS + LARGO_BLOQUE * static_cast<std::size_t>(i - 1);
        registro.replace(desde, LARGO_BLOQUE, EscribeBloque(Gbl.Piezas[i]));
    }
    return registro;
}

}  // namespace

std::string RegistroModeloLibre() {
    return std::string(LARGO_NOMBRE, ' ') + std::string(COLUMNA_FIN - LARGO_NOMBRE, '0') + "\r\n";
}

std::string_view NombreModelo(std::string_view registro) {
    return registro.substr(0, LARGO_NOMBRE);
}

std::string_view PiezasModelo(std::string_view registro) {
    return registro.substr(COLUMNA_PIEZAS, FIN_PIEZAS - COLUMNA_PIEZAS);
}

bool ModeloLibre(std::string_view registro) {
    return NombreModelo(registro).find_first_not_of(std::string_view(" \0", 2)) ==
           std::string_view::npos;
}

std::string FicheroModelos() {
    return BuscaRuta(Gbl.CarpetaArchivo + NOMBRE_FICHERO);
}

void CargaListaModelos(Lista& lista) {
    lista.Clear();
    std::string bytes;
    if (!LeeModelos(bytes)) return;
    for (i32 numero = 1; numero <= CuentaRegistros(bytes); ++numero) {
        const std::string registro = Registro(bytes, numero);
        if (!ModeloLibre(registro)) lista.AddItem(De1252(Visible(NombreModelo(registro))), numero);
    }
}

void LeeModelo() {
    std::string bytes;
    LeeModelos(bytes);
    Gbl.RegistroModelo = Registro(bytes, Gbl.ModeloActual);
    if (ModeloLibre(Gbl.RegistroModelo)) Gbl.RegistroModelo = RegistroModeloLibre();
    if (Gbl.Piezas.Superior() < PIEZAS_TANGRAM) Gbl.Piezas.Amplia(PIEZAS_TANGRAM);
    const std::string_view registro = Gbl.RegistroModelo;
    for (i32 i = 1; i <= PIEZAS_TANGRAM; ++i) {
        const auto desde = COLUMNA_PIEZAS + LARGO_BLOQUE * static_cast<std::size_t>(i - 1);
        LeeBloque(registro.substr(desde, LARGO_BLOQUE), Gbl.Piezas[i]);
    }
}

void GuardaModelo(const std::string& nombre) {
    if (Gbl.Piezas.Superior() < PIEZAS_TANGRAM) return;
    std::string bytes;
    if (!LeeModelos(bytes)) return;  // what cannot be read is not replaced
    Sigue([&] {
        const i16 hueco = BuscaHueco(bytes);
        const Punto esquina = EsquinaDeLaFigura();
        const i32 dx = esquina.x - Gbl.MargenX, dy = esquina.y - Gbl.MargenY;
        const Arreglo<Pieza> enLaMesa = Gbl.Piezas;
        Sigue([&] {
            MuevePiezas(-dx, -dy);
            Gbl.ModeloActual = hueco;
            Gbl.RegistroModelo = RegistroDeLaMesa(nombre);
            EscribeModelo(bytes, hueco);
        });
        Gbl.Piezas = enLaMesa;  // back to where they stood
    });
}

void BorraModelo() {
    std::string bytes;
    if (!LeeModelos(bytes)) return;
    if (Gbl.ModeloActual < 1 || Gbl.ModeloActual > CuentaRegistros(bytes)) return;
    Gbl.RegistroModelo = RegistroModeloLibre();
    EscribeModelo(bytes, Gbl.ModeloActual);
}

}  // namespace tessario
