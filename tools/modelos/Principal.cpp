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
#include <fstream>
#include <iostream>
#include <set>
#include <stdexcept>

#include "Ajuste.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "records/Modelos.h"
#include "records/Texto.h"
#include "rules/Medidas.h"

namespace fs = std::filesystem;

namespace tessario::modelos {

namespace {

constexpr std::size_t MAX_NOMBRE = 25;
constexpr int MAX_REPARTOS = 4;  // fillings of one figure that are compared

struct Modelo {
    std::string nombre;
    Reparto reparto;
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

// The best of the first fillings. Throws when there is none or it is no good.
Modelo Construye(const Descripcion& figura) {
    if (Area(figura) != 16)
        throw std::runtime_error("area " + std::to_string(Area(figura)) + " instead of 16");
    Modelo mejor{figura.nombre, {}};
    i32 menor = INT_MAX;
    int vistos = 0;
    Reparte(figura, [&](const Reparto& r) {
        Reparto ajustado = r;
        const i32 peso = Ajusta(ajustado).Peso();
        if (peso < menor) {
            menor = peso;
            mejor.reparto = ajustado;
        }
        return ++vistos < MAX_REPARTOS && peso > 0;
    });
    if (vistos == 0) throw std::runtime_error("the seven pieces do not fill it");
    LlevaAlMargen(mejor.reparto);
    const std::string reparo = Reparo(mejor.reparto);
    if (!reparo.empty()) throw std::runtime_error(reparo);
    return mejor;
}

void CompruebaNombre(const std::string& nombre, std::set<std::string>& usados) {
    const std::string bytes = A1252(nombre);
    if (bytes.size() > MAX_NOMBRE) throw std::runtime_error("name too long");
    if (De1252(bytes) != nombre) throw std::runtime_error("name with unknown characters");
    if (!usados.insert(nombre).second) throw std::runtime_error("name used twice");
}

// Every figure that is good; the number of those that are not is added to `malas`.
std::vector<Modelo> ConstruyeTodas(const std::vector<Descripcion>& figuras, int& malas) {
    std::vector<Modelo> modelos;
    std::set<std::string> usados;
    for (const Descripcion& figura : figuras) {
        try {
            CompruebaNombre(figura.nombre, usados);
            modelos.push_back(Construye(figura));
        } catch (const std::runtime_error& e) {
            std::cerr << figura.origen << ": " << figura.nombre << ": " << e.what() << "\n";
            ++malas;
        }
    }
    return modelos;
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

void Dibuja(const Modelo& modelo, const fs::path& carpeta, int numero) {
    const Sombra s = PintaSombra(modelo.reparto);
    char orden[16];
    std::snprintf(orden, sizeof orden, "%03d ", numero);
    std::ofstream salida(carpeta / (orden + modelo.nombre + ".pgm"), std::ios::binary);
    salida << "P5\n" << s.ancho << " " << s.alto << "\n255\n";
    for (const u8 p : s.pixeles) salida.put(static_cast<char>(p != 0 ? 40 : 255));
}

void PreparaTablas() {
    Gbl.JuegoActual = JuegoTangram;
    Gbl.ModoJuego = MODO_CREAR;
    Gbl.AnchoPantalla = 800;
    Gbl.AltoPantalla = 600;
    CalculaTamanos();
    Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
}

int Ejecuta(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: tessario_modelos <descriptions> <model file> [pictures]\n";
        return 2;
    }
    PreparaTablas();
    int malas = 0;
    const auto modelos = ConstruyeTodas(LeeCarpeta(argv[1]), malas);
    if (argc > 3) {
        fs::create_directories(argv[3]);
        int numero = 0;
        for (const Modelo& m : modelos) Dibuja(m, argv[3], ++numero);
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
