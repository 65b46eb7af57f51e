// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/Historial.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "core/Cadenas.h"
#include "core/Errores.h"
#include "platform/Plataforma.h"
#include "records/Archivo.h"
#include "records/Texto.h"
#include "rules/Juego.h"

namespace tessario {

namespace {

constexpr i32 LARGO_FECHA = 10, LARGO_HORA = 8, LARGO_JUGADOR = 9;  // characters
constexpr i32 CABIDA_INICIAL = 100, CABIDA_MAS = 40;                // of Historico

// The shortest decimal that reads back as the same number, with a point whatever the locale.
std::string Decimal(float n) {
    char texto[64];
    const auto fin = std::to_chars(texto, texto + sizeof texto, n, std::chars_format::fixed);
    return fin.ec == std::errc{} ? std::string(texto, fin.ptr) : std::string("0");
}

class Renglon {
public:
    Renglon& Texto(std::string_view utf8) { return Bytes(A1252(utf8)); }
    Renglon& Bytes(std::string_view bytes) { return Crudo(Entrecomilla(bytes)); }
    Renglon& Numero(i32 n) { return Crudo(std::to_string(n)); }
    Renglon& Crudo(const std::string& item) {
        if (!linea_.empty()) linea_ += ',';
        linea_ += item;
        return *this;
    }
    const std::string& Linea() const { return linea_; }

private:
    std::string linea_;
};

std::string LineaDe(const RegistroHistorico& r) {
    Renglon l;
    l.Texto(r.Fecha).Texto(r.Hora).Numero(r.Juego).Bytes(r.Fichero).Bytes(r.Ubicacion);
    l.Texto(r.Modelo);
    for (const i16 n : {r.AnchoOriginal, r.AltoOriginal, r.Zoom, r.AnchoFinal, r.AltoFinal, r.Lado,
                        r.Clase, r.Forma, r.Total, r.AnchoPiezas, r.AltoPiezas})
        l.Numero(n);
    l.Crudo(Decimal(r.Nivel)).Numero(r.Segundos).Numero(r.Atraccion).Numero(r.Fondo);
    return l.Numero(r.Reservado).Texto(r.Jugador).Linea();
}

// ---------------------------------------------------------------- reading

// The items of a line, one after the other. A text ends at its closing quote, or with the line
// when it has none; behind the last item there are empty ones without end.
class Items {
public:
    explicit Items(std::string_view linea) : resto_(linea) {}

    std::string Bytes() {
        while (!resto_.empty() && resto_.front() == ' ') resto_.remove_prefix(1);
        std::string item;
        if (!resto_.empty() && resto_.front() == '"') item = Entrecomillado();
        const std::size_t coma = std::min(resto_.find(','), resto_.size());
        if (item.empty()) item = resto_.substr(0, coma);
        resto_.remove_prefix(std::min(coma + 1, resto_.size()));
        return item;
    }
    std::string Texto() { return De1252(Bytes()); }
    std::string Texto(i32 ancho) { return Ajusta(Texto(), ancho); }

    // A number that is none, or does not fit, leaves the field at 0.
    template <class Entero>
    bool Numero(Entero& destino) {
        double x = 0;
        if (!Real(x)) return false;
        x = std::nearbyint(x);
        using Limites = std::numeric_limits<Entero>;
        if (x < Limites::min() || x > Limites::max()) return false;
        destino = static_cast<Entero>(x);
        return true;
    }
    void Simple(float& destino) {
        double x = 0;
        if (Real(x) && std::abs(x) <= std::numeric_limits<float>::max())
            destino = static_cast<float>(x);
    }

private:
    std::string Entrecomillado() {
        std::string item = TomaEntrecomillado(resto_);
        // Nothing but the comma should follow.
        resto_.remove_prefix(std::min(resto_.find(','), resto_.size()));
        return item;
    }
    bool Real(double& x) {
        const std::string item = Bytes();
        i32 n = 0;
        if (!LeeEntero(item, n)) return LeeReal(item, x);
        x = n;
        return true;
    }

    std::string_view resto_;
};

i16 Acotado(i32 n) {
    return static_cast<i16>(std::clamp(n, -32768, 32767));
}

}  // namespace

std::string FicheroHistorico() {
    return BuscaRuta(Gbl.CarpetaPrograma + "TESSA33.his");
}

RegistroHistorico FichaDelPuzzle() {
    RegistroHistorico r;
    r.Juego = Gbl.JuegoActual;
    r.Fichero = Gbl.FicheroImagen;
    r.Ubicacion = Gbl.CarpetaImagen;
    r.Modelo = Gbl.NombrePuzzle;
    r.AnchoOriginal = Acotado(Gbl.AnchoImagen);
    r.AltoOriginal = Acotado(Gbl.AltoImagen);
    r.Zoom = Gbl.ZoomImagen;
    r.AnchoFinal = Gbl.AnchoPuzzle;
    r.AltoFinal = Gbl.AltoPuzzle;
    r.Lado = Gbl.PiezasPorLado;
    r.Clase = Gbl.PiezasPorCelda;
    r.Forma = Gbl.FormaPiezas;
    r.Total = Gbl.NumPiezas;
    r.AnchoPiezas = Gbl.AnchoCelda;
    r.AltoPiezas = Gbl.AltoCelda;
    r.Nivel = Gbl.Dificultad;
    r.Segundos = Gbl.SegundosJuego;
    r.Atraccion = Gbl.FactorAtraccion;
    r.Fondo = Gbl.TipoFondo;
    r.Jugador = Left(Gbl.NombreJugador, LARGO_JUGADOR);
    return r;
}

std::string LineaHistorico() {
    RegistroHistorico r = FichaDelPuzzle();
    r.Fecha = Left(Sistema().Fecha(), LARGO_FECHA);
    r.Hora = Left(Sistema().Hora(), LARGO_HORA);
    return LineaDe(r);
}

i16 EntraEnHistorico() {
    return AnadeLinea(FicheroHistorico(), LineaHistorico());
}

bool LeeLineaHistorico(std::string_view linea, RegistroHistorico& r) {
    Items items(linea);
    r = RegistroHistorico{};
    r.Fecha = items.Texto(LARGO_FECHA);
    r.Hora = items.Texto(LARGO_HORA);
    if (!items.Numero(r.Juego)) return false;
    r.Fichero = items.Bytes();
    r.Ubicacion = items.Bytes();
    r.Modelo = items.Texto();
    for (i16* n : {&r.AnchoOriginal, &r.AltoOriginal, &r.Zoom, &r.AnchoFinal, &r.AltoFinal, &r.Lado,
                   &r.Clase, &r.Forma, &r.Total, &r.AnchoPiezas, &r.AltoPiezas})
        items.Numero(*n);
    items.Simple(r.Nivel);
    items.Numero(r.Segundos);
    for (i16* n : {&r.Atraccion, &r.Fondo, &r.Reservado}) items.Numero(*n);
    r.Jugador = items.Texto(LARGO_JUGADOR);
    return true;
}

i16 LeeHistorico() {
    Gbl.UltimoHistorico = -1;
    Gbl.Historico.Redimensiona(CABIDA_INICIAL);
    std::string bytes;
    if (const i16 error = LeeFichero(FicheroHistorico(), bytes)) return error;
    i32 libre = 0;  // a record of another game is overwritten by the next one
    for (std::string_view resto = bytes; !resto.empty();) {
        if (libre == Gbl.Historico.Superior()) Gbl.Historico.Amplia(libre + CABIDA_MAS);
        RegistroHistorico& r = Gbl.Historico[libre];
        if (LeeLineaHistorico(TomaLinea(resto), r) && r.Juego == Gbl.JuegoActual) ++libre;
    }
    Gbl.Historico[libre] = RegistroHistorico{};
    Gbl.UltimoHistorico = libre - 1;
    return 0;
}

std::set<std::string> ModelosResueltos() {
    std::set<std::string> nombres;
    std::string bytes;
    if (LeeFichero(FicheroHistorico(), bytes) != 0) return nombres;
    for (std::string_view resto = bytes; !resto.empty();) {
        RegistroHistorico r;
        if (LeeLineaHistorico(TomaLinea(resto), r) && JuegoDe(r.Juego).GuardaModelos)
            nombres.insert(Trim(r.Modelo));
    }
    return nombres;
}

}  // namespace tessario
