// SPDX-License-Identifier: GPL-3.0-or-later
// The monkey: throws presses, moves, releases, keys and timer ticks at the whole table, on the test
// platform with its virtual clock, and after each event checks what must always hold. What it does
// next, a source of numbers decides.
//
// Events come in also from inside the runs that let them through (solver, shuffle, side
// arrangement, replay, turning piece), as the real window system does it.
//
// The table's picture must equal one laid afresh from the piece table whenever nothing is in hand.
// The exceptions, each wanted, are the names in `Excepcion` in Mono.cpp.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "apoyo/PlataformaPrueba.h"
#include "mono/Numeros.h"

namespace tessario {

// What was under way when an event came in from inside; counted to see that the mix reaches it.
enum Tarea : std::size_t { Baraja, Resuelve, Ordena, Reproduce, Gira, Tareas };

// Something does not hold.
class Queja : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class Mono {
public:
    Mono(i16 juego, Numeros& numeros) : juego_(juego), numeros_(numeros) {}
    ~Mono() { PonSistema(nullptr); }
    Mono(const Mono&) = delete;
    Mono& operator=(const Mono&) = delete;

    // Starts the program and plays, to this many events or the end of the numbers. Queja.
    void Corre(long eventos);
    long Numero() const { return numero_; }
    const std::string& Ultimo() const { return ultimo_; }
    long Visitas() const { return visitas_; }
    long Pulsos() const { return pulsos_; }
    long Fotos() const { return fotos_; }
    long Jugadas() const { return jugadas_; }
    long Acabados() const { return acabados_; }
    long Anidados(std::size_t tarea) const { return anidados_[tarea]; }

private:
    i32 Hasta(i32 n);
    bool Una(i32 deCada) { return Hasta(deCada) == 0; }

    // --- The program.
    void Arranca();
    void Prepara();
    void Varia();
    void Elige();

    // --- Events.
    void Evento();
    void EventoRaro();
    void EventoDentro();
    void Contesta();
    void Visita(Ventana& v);
    void Tic();
    void Tecla();
    void Cruz();
    void PulsaConTeclado();
    void OtroBoton();
    void DeLaVentana();
    void Mueve(Punto p);
    void Aprieta(i16 boton);
    void Suelta();

    // --- Where.
    Punto Lugar();
    Punto LugarEn(const Cuadro& c);
    Punto LugarJuntoAlHueco();
    Punto LugarDeLaBotonera();

    // --- What must hold.
    void AnotaExcepciones();
    void Comprueba();
    void CompruebaCadena();
    void CompruebaMano() const;
    void CompruebaImagen();

    i16 juego_;
    Numeros& numeros_;
    std::unique_ptr<PlataformaPrueba> p_;
    std::unique_ptr<PunteroPrueba> puntero_;
    bool apretado_ = false;
    bool dibujado_ = true;
    bool volteada_ = false;  // a parallelogram was turned over since the log began
    bool acabado_ = false;
    i16 vistos_ = 0;  // moves of the log looked at for turned pieces
    int anidado_ = 0;
    unsigned excepciones_ = 0;
    long numero_ = 0;
    long visitas_ = 0, pulsos_ = 0, fotos_ = 0, jugadas_ = 0, acabados_ = 0;
    long anidados_[Tareas] = {};
    std::string ultimo_;
};

}  // namespace tessario
