// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/Surtido.h"

#include <algorithm>
#include <map>
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

// What became of former records: the one that stands for each now.
using Cambios = std::map<std::string_view, std::string_view>;

bool EsElCambio(const Cambios& cambios, std::string_view registro) {
    return std::any_of(cambios.begin(), cambios.end(),
                       [registro](const auto& c) { return c.second == registro; });
}

// Adds the changes of those that have one thing in common with a former record that has gone. Each
// former record becomes one present one, and the other way round.
void Busca(Cambios& cambios, const std::vector<std::string_view>& antes,
           const std::vector<std::string_view>& ahora,
           std::string_view (*comun)(std::string_view)) {
    for (const std::string_view registro : ahora) {
        if (Contiene(antes, registro) || EsElCambio(cambios, registro)) continue;
        const auto viejo = std::find_if(antes.begin(), antes.end(), [&](std::string_view r) {
            return comun(r) == comun(registro) && !Contiene(ahora, r) && !cambios.contains(r);
        });
        if (viejo != antes.end()) cambios.emplace(*viejo, registro);
    }
}

// The pieces say more than the name: a name may have gone to another figure.
Cambios BuscaCambios(const std::vector<std::string_view>& antes,
                     const std::vector<std::string_view>& ahora) {
    Cambios cambios;
    Busca(cambios, antes, ahora, PiezasModelo);
    Busca(cambios, antes, ahora, NombreModelo);
    return cambios;
}

// Replaces what the player has in its former state, wherever it stands. One that is not there any
// more has gone by his hand.
void Cambia(std::string& fichero, const Cambios& cambios,
            const std::vector<std::string_view>& suyos) {
    for (std::size_t i = 0; i + LARGO_MODELO <= fichero.size(); i += LARGO_MODELO) {
        const auto c = cambios.find(std::string_view(fichero).substr(i, LARGO_MODELO));
        if (c != cambios.end() && !Contiene(suyos, c->second))
            fichero.replace(i, LARGO_MODELO, c->second);
    }
}

bool ContieneFigura(const std::vector<std::string_view>& registros, std::string_view uno) {
    return std::any_of(registros.begin(), registros.end(),
                       [uno](std::string_view r) { return PiezasModelo(r) == PiezasModelo(uno); });
}

// A last record that was cut short is filled up, so that the next begins at its place.
void Completa(std::string& fichero) {
    const std::size_t resto = fichero.size() % LARGO_MODELO;
    if (resto != 0) fichero += RegistroModeloLibre().substr(resto);
}

}  // namespace

std::string MezclaSurtido(std::string_view jugador, std::string_view visto,
                          std::string_view nuevo) {
    const auto suyos = Ocupados(jugador), antes = Ocupados(visto), ahora = Ocupados(nuevo);
    const Cambios cambios = BuscaCambios(antes, ahora);
    std::string resultado(jugador);
    Cambia(resultado, cambios, suyos);
    for (const std::string_view registro : ahora) {
        if (Contiene(antes, registro) || EsElCambio(cambios, registro)) continue;
        if (ContieneFigura(suyos, registro)) continue;
        Completa(resultado);
        resultado += registro;
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
