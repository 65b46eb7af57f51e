#include "records/Surtido.h"

#include <algorithm>
#include <vector>

#include "core/Errores.h"
#include "records/Archivo.h"
#include "records/Modelos.h"
#include "records/Texto.h"

namespace tessario {

namespace {

constexpr const char* FICHERO_VISTO = "SURTIDO.VIS";  // the supply as last seen

// Whole records with a name, one after the other; free ones are of no interest.
std::vector<std::string_view> Ocupados(std::string_view fichero) {
    std::vector<std::string_view> registros;
    for (; fichero.size() >= LARGO_MODELO; fichero.remove_prefix(LARGO_MODELO)) {
        const std::string_view registro = fichero.substr(0, LARGO_MODELO);
        if (!ModeloLibre(registro)) registros.push_back(registro);
    }
    return registros;
}

bool Contiene(const std::vector<std::string_view>& registros, std::string_view uno) {
    return std::find(registros.begin(), registros.end(), uno) != registros.end();
}

// The record of this name, or nothing.
std::string_view DelNombre(const std::vector<std::string_view>& registros, std::string_view uno) {
    const auto i = std::find_if(registros.begin(), registros.end(), [&](std::string_view r) {
        return NombreModelo(r) == NombreModelo(uno);
    });
    return i == registros.end() ? std::string_view{} : *i;
}

// Replaces a record wherever it stands; an old one that is not there has gone by the player's hand.
void Cambia(std::string& fichero, std::string_view antes, std::string_view ahora) {
    for (std::size_t i = 0; i + LARGO_MODELO <= fichero.size(); i += LARGO_MODELO)
        if (std::string_view(fichero).substr(i, LARGO_MODELO) == antes)
            fichero.replace(i, LARGO_MODELO, ahora);
}

// A last record that was cut short is filled up, so that the next begins at its place.
void Completa(std::string& fichero) {
    const std::size_t resto = fichero.size() % LARGO_MODELO;
    if (resto != 0) fichero += RegistroModeloLibre().substr(resto);
}

}  // namespace

std::string MezclaSurtido(std::string_view jugador, std::string_view visto,
                          std::string_view nuevo) {
    const std::vector<std::string_view> suyos = Ocupados(jugador), antes = Ocupados(visto);
    std::string resultado(jugador);
    for (const std::string_view registro : Ocupados(nuevo)) {
        if (Contiene(antes, registro) || Contiene(suyos, registro)) continue;
        const std::string_view viejo = DelNombre(antes, registro);
        if (viejo.empty()) {
            Completa(resultado);
            resultado += registro;
        } else {
            Cambia(resultado, viejo, registro);
        }
    }
    return resultado;
}

void ActualizaSurtido(const std::string& surtido, const std::string& carpeta) {
    std::string nuevo, visto, jugador;
    if (LeeFichero(BuscaRuta(surtido), nuevo) != 0) return;
    const std::string rutaVisto = carpeta + FICHERO_VISTO;
    if (LeeFichero(rutaVisto, visto) == 0 && visto == nuevo) return;
    const std::string ruta = FicheroModelos();
    const i16 error = LeeFichero(ruta, jugador);
    if (error != 0 && error != ERROR_FICHERO) return;  // what cannot be read is not replaced
    const std::string mezcla = MezclaSurtido(jugador, visto, nuevo);
    // The player's file first: if that fails, the next start tries again.
    if (mezcla != jugador && EscribeFichero(ruta, mezcla) != 0) return;
    EscribeFichero(rutaVisto, nuevo);
}

}  // namespace tessario
