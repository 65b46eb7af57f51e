// SPDX-License-Identifier: GPL-3.0-or-later
// The session ends by a signal: how long until the safety copy stands whole in the archive, in
// play, with a message open, and in the middle of a run.
#include <signal.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <thread>

#include "Medidas.h"
#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int ANCHO = 1280, ALTO = 1024;
constexpr int POR_LADO = 10, ANCHO_CELDA = 64, ALTO_CELDA = 48;  // of 640 x 480
constexpr int LENTA = -99;                                       // a run that takes minutes
constexpr double LIMITE_MS = 1000, TOPE_MS = 20000;
constexpr int SALIR = 7, ORDENA = 11;

struct Momento {
    const char* nombre;
    int velocidad;
    void (*llega)(Escritorio&, Programa&);
};

void EnElJuego(Escritorio&, Programa&) {}

void ConMensaje(Escritorio& e, Programa& programa) {
    programa.PulsaBoton(SALIR);
    e.Espera([&] { return e.HayVentana("Salir de TESSARIO"); });
}

void EnMarcha(Escritorio& e, Programa& programa) {
    const Foto antes = e.Mira();
    const Programa::Lugar b = programa.Boton(ORDENA);
    e.Mueve(b.x, b.y);
    e.Aprieta();
    e.Suelta();
    e.Espera([&] { return e.Mira().Diferencia(antes, 0, 0, ANCHO - 141, ALTO) > 1000; });
}

constexpr Momento MOMENTOS[] = {
    {"in play", 50, EnElJuego}, {"message open", 50, ConMensaje}, {"in a run", LENTA, EnMarcha}};

PartidaGuardada Partida() {
    PartidaGuardada p;
    p.imagen = "cuadros.bmp";
    p.anchoImagen = POR_LADO * ANCHO_CELDA;
    p.altoImagen = POR_LADO * ALTO_CELDA;
    p.porLado = POR_LADO;
    for (int i = 0; i < POR_LADO * POR_LADO; ++i) {
        PiezaGuardada q;
        q.xBien = i % POR_LADO * ANCHO_CELDA;
        q.yBien = i / POR_LADO * ALTO_CELDA;
        q.x = 700 + i % 5 * 70;
        q.y = i / 5 * 45;
        p.piezas.push_back(q);
    }
    return p;
}

bool Mide(const Momento& momento, int senal, const char* nombre) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    programa.EscribeImagenDeCuadros("cuadros.bmp", POR_LADO * ANCHO_CELDA, POR_LADO * ALTO_CELDA,
                                    POR_LADO);
    programa.EscribeGlobal(21, momento.velocidad);
    programa.EscribePartida(Partida());
    if (!programa.Arranca()) {
        std::printf("the program did not start\n");
        return false;
    }
    const PiezaGuardada q = programa.LeePartida(21).piezas[0];
    e.Arrastra(q.x + 9, q.y + 9, 300, 700);
    momento.llega(e, programa);
    const std::string copia = programa.Carpeta() + "Archivo/Copia de seguridad.puz";
    if (std::filesystem::exists(copia)) {
        std::printf("there was a copy before the signal\n");
        return false;
    }
    const auto antes = std::chrono::steady_clock::now();
    const auto pasados = [&] {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - antes)
            .count();
    };
    kill(programa.Pid(), senal);
    // It takes its name when it is whole.
    while (!std::filesystem::exists(copia) && pasados() < TOPE_MS)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    const double tiempo = pasados();
    const bool bien = Linea(("fin/" + std::string(nombre) + " " + momento.nombre).c_str(), "ms",
                            tiempo, LIMITE_MS);
    return programa.EsperaFin() == 0 && bien;
}

}  // namespace

bool MideFin() {
    bool bien = true;
    for (const Momento& m : MOMENTOS)
        for (const auto& [senal, nombre] : {std::pair{SIGTERM, "SIGTERM"}, {SIGHUP, "SIGHUP"}})
            bien = Mide(m, senal, nombre) && bien;
    return bien;
}

}  // namespace tessario::ventana
