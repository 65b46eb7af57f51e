#include "records/Historial.h"

#include <charconv>

#include "core/Cadenas.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "platform/Plataforma.h"
#include "records/Texto.h"

namespace tessario {

namespace {

constexpr i32 LARGO_FECHA = 10, LARGO_HORA = 8, LARGO_JUGADOR = 9;  // characters at most
constexpr i32 RESERVADO = 0;                                        // item 22

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

}  // namespace

std::string FicheroHistorico() {
    return BuscaRuta(Gbl.CarpetaPrograma + "TESSA33.his");
}

std::string LineaHistorico() {
    Renglon r;
    r.Texto(Left(Sistema().Fecha(), LARGO_FECHA)).Texto(Left(Sistema().Hora(), LARGO_HORA));
    r.Numero(Gbl.JuegoActual).Bytes(Gbl.FicheroImagen).Bytes(Gbl.CarpetaImagen);
    r.Texto(Gbl.NombrePuzzle);
    for (const i32 n :
         {Gbl.AnchoImagen, Gbl.AltoImagen, i32{Gbl.ZoomImagen}, i32{Gbl.AnchoPuzzle},
          i32{Gbl.AltoPuzzle}, i32{Gbl.PiezasPorLado}, i32{Gbl.PiezasPorCelda},
          i32{Gbl.FormaPiezas}, i32{Gbl.NumPiezas}, i32{Gbl.AnchoCelda}, i32{Gbl.AltoCelda}})
        r.Numero(n);
    r.Crudo(Decimal(Gbl.Dificultad)).Numero(Gbl.SegundosJuego).Numero(Gbl.FactorAtraccion);
    r.Numero(Gbl.TipoFondo).Numero(RESERVADO).Texto(Left(Gbl.NombreJugador, LARGO_JUGADOR));
    return r.Linea();
}

i16 EntraEnHistorico() {
    const std::string ruta = FicheroHistorico();
    std::string bytes;
    const i16 error = LeeFichero(ruta, bytes);
    // A history that is there but cannot be read must not be replaced by one line.
    if (error != 0 && error != ERROR_FICHERO) return error;
    if (!bytes.empty() && bytes.back() != '\n') bytes += Gbl.FinLinea;
    return EscribeFichero(ruta, bytes + LineaHistorico() + Gbl.FinLinea);
}

}  // namespace tessario
