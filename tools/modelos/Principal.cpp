// Makes the file of supplied Tangram models from the descriptions of the figures:
//
//     tessario_modelos <folder of descriptions> <model file> [folder for pictures]
//
// Every figure must fill its silhouettes with the seven pieces, hold together, fit the smallest
// table and have a name of its own; otherwise nothing is written and the program ends with 1. With
// a third argument each figure is also drawn, as a grey picture, to be looked at.

#include <algorithm>
#include <climits>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <map>
#include <set>
#include <stdexcept>
#include <string_view>
#include <tuple>

#include "Ajuste.h"
#include "Estudio.h"
#include "Reparto.h"
#include "Tablas.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "records/Modelos.h"
#include "records/Texto.h"

namespace fs = std::filesystem;

namespace tessario::modelos {

namespace {

constexpr std::size_t MAX_NOMBRE = 25;
constexpr int MAX_REPARTOS = 4;  // fillings of one figure that are compared

struct Modelo {
    std::string nombre;
    Reparto reparto;
    Figura figura;
    i32 dadas = 0;  // pieces that the silhouette gives away
};

std::vector<Descripcion> LeeCarpeta(const std::string& carpeta) {
    std::vector<fs::path> rutas;
    for (const auto& entrada : fs::directory_iterator(carpeta))
        if (entrada.path().extension() == ".txt") rutas.push_back(entrada.path());
    std::sort(rutas.begin(), rutas.end());
    std::vector<Descripcion> figuras;
    for (const auto& ruta : rutas)
        for (auto& d : LeeDescripciones(ruta.string())) figuras.push_back(std::move(d));
    return figuras;
}

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
    Plan plan = figura.plan;
    if (plan.empty()) {
        plan = Rellena(figura, modelo.reparto);
    } else {
        modelo.reparto = EnPixeles(plan);
        Ajusta(modelo.reparto);
    }
    modelo.figura = EnSuSitio(plan);
    std::string reparo = ReparoExacto(modelo.figura);
    if (!reparo.empty()) throw std::runtime_error(reparo);
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
bool EsParadoja(const Modelo& m) {
    return m.nombre.starts_with("Paradoja");
}

// Every figure that is good; the number of those that are not is added to `malas`.
std::vector<Modelo> ConstruyeTodas(const std::vector<Descripcion>& figuras, int& malas) {
    std::vector<Modelo> modelos;
    std::vector<Semejanza> semejanzas;
    std::set<std::string> usados;
    for (const Descripcion& figura : figuras) {
        try {
            CompruebaNombre(figura.nombre, usados);
            const Modelo m = Construye(figura);
            const Semejanza s(m.figura);
            for (std::size_t i = 0; i < modelos.size(); ++i)
                if (s.Igual(semejanzas[i]) && !EsParadoja(m) && !EsParadoja(modelos[i]))
                    throw std::runtime_error("the same figure as " + modelos[i].nombre);
            modelos.push_back(m);
            semejanzas.push_back(s);
        } catch (const std::runtime_error& e) {
            std::cerr << figura.origen << ": " << figura.nombre << ": " << e.what() << "\n";
            ++malas;
        }
    }
    return modelos;
}

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

// By the first word of the title, and within one from easy to hard: what gives away the most pieces
// first, of equals what has the most corners. The two of a paradox stay together.
void Ordena(std::vector<Modelo>& modelos) {
    const auto clave = [](const Modelo& m) {
        const std::string nombre = ClaveDeOrden(m.nombre);
        const bool junta = EsParadoja(m);
        return std::tuple(nombre.substr(0, nombre.find(' ')), junta ? 0 : -m.dadas,
                          junta ? 0 : -Esquinas(m.figura), nombre);
    };
    std::sort(modelos.begin(), modelos.end(),
              [&](const Modelo& a, const Modelo& b) { return clave(a) < clave(b); });
}

// Lays the pieces on the table and stores them as a player would.
void Guarda(const Modelo& modelo) {
    for (const Colocada& c : modelo.reparto) {
        Pieza& p = Gbl.Piezas[c.pieza];
        p.X = Corto(c.x);
        p.Y = Corto(c.y);
        p.Giro = c.giro;
        p.Volteo = c.volteo;
    }
    GuardaModelo(modelo.nombre);
}

int Ejecuta(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: tessario_modelos <descriptions> <model file> [pictures]\n";
        return 2;
    }
    PreparaTablas();
    int malas = 0;
    auto modelos = ConstruyeTodas(LeeCarpeta(argv[1]), malas);
    Ordena(modelos);
    if (argc > 3) {
        fs::create_directories(argv[3]);
        int numero = 0;
        for (const Modelo& m : modelos) {
            char orden[16];
            std::snprintf(orden, sizeof orden, "%03d ", ++numero);
            Dibuja(m.reparto, fs::path(argv[3]) / (orden + m.nombre + ".pgm"));
        }
    }
    std::cout << modelos.size() << " models, " << malas << " refused\n";
    if (malas != 0) return 1;
    const fs::path fichero = argv[2];
    fs::remove(fichero);
    Gbl.CarpetaArchivo = (fichero.parent_path() / "").string();
    for (const Modelo& m : modelos) Guarda(m);
    if (FicheroModelos() != fichero.string() || ErrorPendiente() != 0) {
        std::cerr << "cannot write " << fichero << ", error " << ErrorPendiente() << "\n";
        return 1;
    }
    return 0;
}

}  // namespace

}  // namespace tessario::modelos

int main(int argc, char** argv) {
    try {
        return tessario::modelos::Ejecuta(argc, argv);
    } catch (const std::exception& e) {
        std::cerr << e.what() << "\n";
        return 1;
    }
}
