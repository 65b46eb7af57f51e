// SPDX-License-Identifier: GPL-3.0-or-later
// The platform of the tests: a virtual clock, scripted answers to windows, logs of sounds and
// help, pictures kept in memory, a block font. No test sleeps and none needs a display.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/PuzzGbl.h"
#include "platform/Plataforma.h"

namespace tessario {

class PlataformaPrueba : public Plataforma {
public:
    PlataformaPrueba();
    ~PlataformaPrueba() override;

    // --- What a test sets.
    i32 ancho = 800, alto = 600;
    i32 pruebaModo = 1, cambioModo = 2;         // answers of the display mode calls
    double reloj = 1000000;                     // ms
    double duracionSonido = 0;                  // ms that a waiting sound takes
    std::deque<std::function<void()>> eventos;  // run, one for each DejaPasarEventos
    std::function<void()> alDormir;             // called in each Duerme, after painting
    std::function<void()> alDejarPasar;         // called in each DejaPasarEventos
    std::function<void()> alPresentar;          // called in each Presenta
    double horaDelDia = 43200.25;               // seconds since midnight
    std::string fecha = "20/11/2026", hora = "13:54:00";
    std::deque<bool> respuestas;  // answers of the next messages; then no
    std::map<std::string, std::function<void(Ventana&)>> ventanas;  // by name: what the player does
    std::map<std::string, Mapa> imagenes;                           // pictures by path
    std::map<std::string, Mapa> ajenas;  // pictures of foreign kinds by path, beside `imagenes`
    std::map<std::string, i32> erroresImagen;  // paths that fail, by error number
    std::map<std::string, Mapa> recursos;      // by name; others are made up (see below)
    bool guardaFalla = false;                  // no picture can be written
    bool hayPortapapeles = false;
    Mapa portapapeles;
    std::vector<std::string> portapapelesFicheros;
    i16 botones = 0;  // mouse buttons held: 1 left, 2 right, 4 middle

    // --- What a test looks at.
    struct Aviso {
        std::string titulo, texto;
        i16 modo, botones, ayuda;
        bool respuesta;
    };
    std::vector<Aviso> avisos;                  // messages shown, oldest first
    std::vector<std::pair<i16, bool>> sonidos;  // number, asynchronous
    struct TextoPintado {
        const Superficie* donde;
        i32 x, y;
        std::string texto;
        Color color;
    };
    std::vector<TextoPintado> textos;  // all text painted, noted while anotaTextos
    bool anotaTextos = false;
    std::vector<i32> ayudas;
    std::vector<std::string> mostradas;     // windows shown, by name
    std::map<std::string, Mapa> guardadas;  // pictures saved
    std::vector<std::string> cargadas;      // pictures read whole, by path, oldest first
    int presentaciones = 0;
    int pasosDeEventos = 0;
    double dormido = 0;  // ms slept in all
    bool terminado = false, minimizado = false;
    Control* foco = nullptr;
    std::string carpeta;  // a fresh folder of this test, trailing "/"

    // --- Plataforma.
    i32 AnchoPantalla() override { return ancho; }
    i32 AltoPantalla() override { return alto; }
    i32 PruebaModoPantalla(i32, i32) override { return pruebaModo; }
    i32 CambiaModoPantalla(i32 a, i32 b) override;
    u32 timeGetTime() override { return static_cast<u32>(static_cast<unsigned long long>(reloj)); }
    double Timer() override { return horaDelDia; }
    std::string Fecha() override { return fecha; }
    std::string Hora() override { return hora; }
    void Duerme(double ms) override;
    void DejaPasarEventos() override;
    void Presenta() override {
        ++presentaciones;
        if (alPresentar) alPresentar();
    }
    i16 BotonesApretados() override { return botones; }
    void Muestra(Ventana& v) override;
    void MuestraModal(Ventana& v) override;
    void Cierra(Ventana& v) override;
    void Minimiza(Ventana&) override { minimizado = true; }
    void PonFoco(Control& c) override { foco = &c; }
    void Termina() override { terminado = true; }
    i32 AnchoTexto(const Fuente& f, std::string_view texto) override;
    i32 AltoTexto(const Fuente& f) override;
    void PintaTexto(Superficie& s, i32 x, i32 y, std::string_view texto, const Fuente& f,
                    Color color) override;
    i32 CargaImagen(const std::string& ruta, Mapa& destino) override;
    i32 MideImagen(const std::string& ruta, i32& ancho, i32& alto) override;
    i32 CargaMuestra(const std::string& ruta, i32 ancho, i32 alto, Mapa& destino) override;
    i32 CargaAjena(const std::string& ruta, Mapa& destino) override;
    i32 GuardaImagen(const std::string& ruta, const Mapa& imagen) override;
    // A name that the test has not given yields a picture whose pixel (x, y) tells its own place:
    // 0x00XXYY with the name's kind in the upper byte, so that source positions can be checked.
    bool RecursoImagen(std::string_view nombre, Mapa& destino) override;
    void Suena(i16 id, bool asincrono) override;
    bool PortapapelesTieneImagen() override { return hayPortapapeles; }
    bool PortapapelesImagen(Mapa& destino) override;
    std::vector<std::string> PortapapelesFicheros() override { return portapapelesFicheros; }
    void Ayuda(i32 tema) override { ayudas.push_back(tema); }
    std::string CarpetaDelPrograma() override { return carpeta; }
    std::string CarpetaDelSistema() override { return carpeta + "sistema/"; }
};

// A pointer that presses and moves over a window as a player does, through its controls' records.
// Coordinates are the window's pixels. A press holds the control until the release.
class PunteroPrueba {
public:
    explicit PunteroPrueba(Ventana& v) : ventana_(v) {}
    void Mueve(i32 x, i32 y);
    void Aprieta(i16 boton = BOTON_IZQUIERDO);
    void Suelta();  // MouseUp, then Click if still over the control
    void Pulsa(i32 x, i32 y, i16 boton = BOTON_IZQUIERDO);  // move, press, release
    Control* Debajo() const;                   // the control under the pointer, or null
    Control* Preso() const { return preso_; }  // the control that holds the press, or null
    i16 Boton() const { return boton_; }       // the button last pressed
    Punto Lugar() const { return {x_, y_}; }
    static Punto Origen(const Control& c);  // a control's corner in window pixels

private:
    Ventana& ventana_;
    Control* preso_ = nullptr;
    bool apretado_ = false;
    i16 boton_ = 0;
    i32 x_ = 0, y_ = 0;
};

// A test with a fresh state block, fresh surfaces, a fresh platform and folders of its own: the
// game's folders lie in P().carpeta, and the folder in which the test runs must still be empty at
// its end.
class PruebaBase : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    PlataformaPrueba& P() { return *plataforma_; }

    // A name without a leading "/" stands for a file in P().carpeta; folders are made as needed.
    std::string RutaDe(const std::string& nombre);
    std::string Crea(const std::string& nombre, const std::string& bytes);  // its full path
    std::string Contenido(const std::string& nombre);  // all bytes; nothing when there is no file
    // A picture of one colour that the game finds in its folder of pictures and can load.
    std::string PonImagen(const std::string& nombre, i32 ancho, i32 alto, Pixel color = 0x0000FF);
    // The first games with their pictures, and the supplied models, as a new player has them.
    void PonEstreno();
    // The sizes that a screen of 800 x 600 without scroll bars gives the table and the strip.
    static void Pantalla800();

private:
    PlataformaPrueba* plataforma_ = nullptr;
    std::string trabajo_, carpetaDeAntes_;  // where the test runs, and where it was started
};

}  // namespace tessario
