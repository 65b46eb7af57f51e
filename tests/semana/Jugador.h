// SPDX-License-Identifier: GPL-3.0-or-later
// A player who plays for days: moves in all three games, changes of game, and every window of the
// program, in rounds that are alike. The same seed plays the same.
#pragma once

#include <random>
#include <string>

#include "semana/Mundo.h"

namespace tessario {

// One round: between two changes of game. A thousand of them are a week.
inline constexpr long TANDAS = 1000, JUGADAS_DE_TANDA = 2000, VISITAS_DE_TANDA = 5;

class Jugador {
public:
    Jugador(Mundo& m, unsigned semilla);
    Jugador(const Jugador&) = delete;
    Jugador& operator=(const Jugador&) = delete;

    // Program start, then each game, window and picture once, so that what is kept for good is
    // there. Leaves a game that every day ends with.
    void Empieza();
    // 2,000 moves, 5 visits to the help and 5 to the settings, others now and then, another game.
    void Tanda(long cual);
    // The game of the first day is laid again, and everything comes to rest.
    void AcabaElDia();

    struct Cuenta {
        long jugadas = 0, juegos = 0, ayudas = 0, ajustes = 0, historicos = 0, estadisticas = 0;
        long guardados = 0, cargados = 0, borrados = 0, avisos = 0, acabados = 0;
    };
    const Cuenta& Hecho() const { return hecho_; }

private:
    i32 Hasta(i32 n) { return static_cast<i32>(azar_() % static_cast<unsigned>(n)); }
    bool Una(i32 deCada) { return Hasta(deCada) == 0; }

    void Pulsa(Ventana& v, Control& c);
    void PulsaEn(Ventana& v, Punto p);
    void Orden(i16 cual);

    void Juega(long jugadas);
    void Jugada();
    Punto Apunta(i16 piece);
    void Arrastra(i16 piece, Punto camino);
    void Coloca(i16 piece);
    void Acaba();
    void Desliza();
    void Gira(i16 piece);
    void Rebobina();
    void Trastea();  // the other commands of the strip

    void CambiaDeJuego(long tanda);
    void Ajustes();
    void AbreArchivo(i16 modo, const std::string& nombre);

    void Abierta(Ventana& v);
    void Contesta();
    void EnAjustes();
    void OtraImagen();
    void OtroColor();
    void EnArchivo();
    void EnHistorico();

    Mundo& m_;
    std::mt19937 azar_;
    Cuenta hecho_;
    i16 juegoNuevo_ = 0;    // to be chosen in the settings; 0: none
    i32 visita_ = 0;        // counts the visits to the settings, which take turns
    bool pocas_ = false;    // the settings are opened for a jigsaw of few pieces
    bool reparte_ = false;  // the next question about a new deal is answered with yes
    std::string archivo_;   // name to save, load or delete
};

}  // namespace tessario
