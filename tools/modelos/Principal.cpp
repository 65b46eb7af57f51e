// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the file of supplied Tangram models from the descriptions of the figures:
//
//     tessario_modelos <folder of descriptions> <model file> [folder for pictures]
//
// Every figure must fill its silhouettes with the seven pieces, hold together, fit the smallest
// table and have a name of its own; otherwise nothing is written and the program ends with 1. With
// a third argument each figure is also drawn, as a grey picture, to be looked at.

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <iostream>

#include "Coleccion.h"
#include "Tablas.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "records/Modelos.h"

namespace fs = std::filesystem;

namespace tessario::modelos {

namespace {

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
    auto [modelos, reparos] = Reune(LeeCarpeta(argv[1]));
    for (const std::string& reparo : reparos) std::cerr << reparo << "\n";
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
    std::cout << modelos.size() << " models, " << reparos.size() << " refused\n";
    if (!reparos.empty()) return 1;
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
