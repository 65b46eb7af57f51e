// SPDX-License-Identifier: GPL-3.0-or-later
// Looks for figures after sketches:
//
//     tessario_busca <file of sketches> <folder for the results> [attempts] [results of each]
//
// For each sketch the folder gets "<number>-0.pgm", the sketch itself, and for each result
// "<number>-<k>.pgm", its silhouette, and "<number>-<k>.txt", its pieces as a description takes
// them. What is good is picked by eye.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "Ajuste.h"
#include "Busqueda.h"
#include "Tablas.h"

namespace fs = std::filesystem;

namespace tessario::modelos {

namespace {

std::string Suma(Medio m) {
    std::string texto;
    const auto anade = [&texto](i32 n, char unidad) {
        if (n == 0) return;
        char numero[16];
        std::snprintf(numero, sizeof numero, "%g", n / 2.0);
        if (!texto.empty() && n > 0) texto += '+';
        texto += numero;
        texto += unidad;
    };
    anade(m.u, 'u');
    anade(m.v, 'v');
    return texto.empty() ? "0" : texto;
}

void Escribe(const Hallazgo& h, const fs::path& ruta) {
    std::ofstream salida(ruta);
    for (const Puesta& p : h.puestas) {
        const Sitio s = SitioDe(p);
        salida << "p " << s.pieza << " " << s.giro << " " << s.volteo << " " << Suma(s.esquina.x)
               << " " << Suma(s.esquina.y) << "\n";
    }
}

void DibujaCarta(const Carta& carta, const fs::path& ruta) {
    std::ofstream salida(ruta, std::ios::binary);
    salida << "P5\n" << carta.ancho << " " << carta.alto << "\n255\n";
    for (const float f : carta.valor)
        salida.put(static_cast<char>(f > 1 ? 120 : f > 0 ? 160 : 255));
}

int Ejecuta(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: tessario_busca <sketches> <folder> [attempts] [results]\n";
        return 2;
    }
    PreparaTablas();
    const fs::path carpeta = argv[2];
    fs::create_directories(carpeta);
    const int intentos = argc > 3 ? std::atoi(argv[3]) : 12;
    const int cuantos = argc > 4 ? std::atoi(argv[4]) : 5;
    int numero = 0;
    for (const Esbozo& e : LeeEsbozos(argv[1])) {
        ++numero;
        const auto nombre = [&](std::size_t k, const char* clase) {
            char texto[32];
            std::snprintf(texto, sizeof texto, "%03d-%zu.%s", numero, k, clase);
            return carpeta / texto;
        };
        const Carta carta = Traza(e);
        DibujaCarta(carta, nombre(0, "pgm"));
        const auto hallazgos = Busca(carta, intentos, static_cast<std::size_t>(cuantos), 1);
        std::size_t k = 0;
        for (const Hallazgo& h : hallazgos) {
            ++k;
            Escribe(h, nombre(k, "txt"));
            Plan plan;
            for (const Puesta& p : h.puestas) plan.push_back(SitioDe(p));
            Dibuja(EnPixeles(plan), nombre(k, "pgm"));
        }
        std::cout << numero << " " << e.nombre << " " << (k > 0 ? hallazgos[0].nota : 0)
                  << std::endl;
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
