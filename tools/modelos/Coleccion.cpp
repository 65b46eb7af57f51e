// SPDX-License-Identifier: GPL-3.0-or-later
#include "Coleccion.h"

#include <algorithm>
#include <climits>
#include <map>
#include <set>
#include <stdexcept>
#include <string_view>
#include <tuple>
#include <utility>

#include "Reparto.h"
#include "records/Texto.h"

namespace tessario::modelos {

namespace {

constexpr std::size_t MAX_NOMBRE = 25;
constexpr int MAX_REPARTOS = 4;  // fillings of one figure that are compared

// The best of the first fillings. Throws when there is none.
Plan Rellena(const Descripcion& figura, Reparto& reparto) {
    if (Area(figura) != 16)
        throw std::runtime_error("area " + std::to_string(Area(figura)) + " instead of 16");
    Plan mejor;
    i32 menor = INT_MAX;
    int vistos = 0;
    Reparte(figura, [&](const Plan& plan) {
        Reparto ajustado = EnPixeles(plan);
        const i32 peso = Ajusta(ajustado).Peso();
        if (peso < menor) {
            menor = peso;
            mejor = plan;
            reparto = ajustado;
        }
        return ++vistos < MAX_REPARTOS && peso > 0;
    });
    if (vistos == 0) throw std::runtime_error("the seven pieces do not fill it");
    return mejor;
}

// Throws when it is no good.
Modelo Construye(const Descripcion& figura) {
    Modelo modelo{figura.nombre, {}, {}, 0};
    const bool enCeldas = figura.plan.empty();
    const Plan plan = enCeldas ? Rellena(figura, modelo.reparto) : figura.plan;
    modelo.figura = EnSuSitio(plan);
    std::string reparo = ReparoExacto(modelo.figura);
    if (!reparo.empty()) throw std::runtime_error(reparo);
    if (!enCeldas) {
        modelo.reparto = EnPixeles(plan);
        Ajusta(modelo.reparto);
    }
    LlevaAlMargen(modelo.reparto);
    reparo = Reparo(modelo.reparto);
    if (!reparo.empty()) throw std::runtime_error(reparo);
    modelo.dadas = PiezasDadas(modelo.figura);
    if (modelo.dadas != figura.dadas)
        throw std::runtime_error("gives away " + std::to_string(modelo.dadas));
    return modelo;
}

void CompruebaNombre(const std::string& nombre, std::set<std::string>& usados) {
    const std::string bytes = A1252(nombre);
    if (bytes.size() > MAX_NOMBRE) throw std::runtime_error("name too long");
    if (De1252(bytes) != nombre) throw std::runtime_error("name with unknown characters");
    if (!usados.insert(nombre).second) throw std::runtime_error("name used twice");
}

// Two figures may be the same only when one stands in a pair that makes a paradox.
bool EsParadoja(const std::string& nombre) {
    return nombre.starts_with("Paradoja");
}

// The same silhouette up to turning and mirroring, of figures that have been built.
class Vistas {
public:
    // Throws when it is one of them and no paradox is in play; otherwise it is one of them now.
    void Anade(const Modelo& m) {
        const Semejanza s(m.figura);
        for (const auto& [otro, suya] : vistas_)
            if (s.Igual(suya) && !EsParadoja(m.nombre) && !EsParadoja(otro))
                throw std::runtime_error("the same figure as " + otro);
        vistas_.emplace_back(m.nombre, s);
    }

private:
    std::vector<std::pair<std::string, Semejanza>> vistas_;
};

// Letters as a Spanish list sorts them: marks and case aside, the n with tilde after the n.
std::string ClaveDeOrden(const std::string& texto) {
    static const std::map<std::string, std::string, std::less<>> MARCAS = {
        {"á", "a"}, {"é", "e"}, {"í", "i"}, {"ó", "o"}, {"ú", "u"}, {"ü", "u"}, {"ñ", "n~"},
        {"Á", "a"}, {"É", "e"}, {"Í", "i"}, {"Ó", "o"}, {"Ú", "u"}, {"Ñ", "n~"}};
    std::string clave;
    for (std::size_t i = 0; i < texto.size();) {
        const auto marca = MARCAS.find(std::string_view(texto).substr(i, 2));
        if (marca != MARCAS.end()) {
            clave += marca->second;
            i += 2;
        } else {
            const char c = texto[i++];
            clave += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        }
    }
    return clave;
}

}  // namespace

Coleccion Reune(const std::vector<Descripcion>& figuras) {
    Coleccion c;
    Vistas vistas;
    std::set<std::string> usados;
    for (const Descripcion& figura : figuras) {
        try {
            CompruebaNombre(figura.nombre, usados);
            const Modelo m = Construye(figura);
            vistas.Anade(m);
            c.modelos.push_back(m);
        } catch (const std::runtime_error& e) {
            c.reparos.push_back(figura.origen + ": " + figura.nombre + ": " + e.what());
        }
    }
    return c;
}

void Ordena(std::vector<Modelo>& modelos) {
    const auto clave = [](const Modelo& m) {
        const std::string nombre = ClaveDeOrden(m.nombre);
        const bool junta = EsParadoja(m.nombre);
        return std::tuple(nombre.substr(0, nombre.find(' ')), junta ? 0 : -m.dadas,
                          junta ? 0 : -Esquinas(m.figura), nombre);
    };
    std::sort(modelos.begin(), modelos.end(),
              [&](const Modelo& a, const Modelo& b) { return clave(a) < clave(b); });
}

}  // namespace tessario::modelos
