// SPDX-License-Identifier: GPL-3.0-or-later
// A private X server with a small window manager, a real pointer and keyboard, and the real
// program in a program folder of its own. The tests look at the screen's pixels and at the files
// that the program leaves.
#pragma once

#include <gtest/gtest.h>
#include <sys/types.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

struct _XDisplay;

namespace tessario::ventana {

// What the screen showed at one moment: 0x00RRGGBB a pixel.
struct Foto {
    int ancho = 0, alto = 0;
    std::vector<unsigned> pixeles;
    unsigned En(int x, int y) const {
        return pixeles[static_cast<std::size_t>(y) * static_cast<std::size_t>(ancho) +
                       static_cast<std::size_t>(x)];
    }
    // Pixels of this colour in a rectangle.
    int Cuenta(int x, int y, int w, int h, unsigned color) const;
    // Pixels that differ from another photo in a rectangle.
    int Diferencia(const Foto& otra, int x, int y, int w, int h) const;
    void Guarda(const std::string& nombre) const;  // PNG in the build's folder of screens
};

// All that a file holds.
std::string Bytes(const std::string& ruta);

// Variables of the environment; an empty value takes the variable out.
using Entorno = std::vector<std::pair<std::string, std::string>>;

class Escritorio {
public:
    // Without a manager a window stands where it puts itself, and the pointer leads the keys.
    enum class Gestor { Si, No };
    Escritorio(int ancho, int alto, Gestor gestor = Gestor::Si);
    ~Escritorio();
    Escritorio(const Escritorio&) = delete;
    Escritorio& operator=(const Escritorio&) = delete;

    // From now on the desktop consists of two screens side by side, one of which is the first.
    // False: that could not be done.
    struct Monitor {
        int x, ancho, alto;
        bool primero;
    };
    bool PonMonitores(const Monitor& a, const Monitor& b);

    void Mueve(int x, int y, int reposo = 12);  // ms to stay there
    void Aprieta(int boton = 1);                // 1 left, 3 right
    void Suelta(int boton = 1);
    void Pulsa(int x, int y, int boton = 1);
    // Press, several moves on the way, release.
    void Arrastra(int x0, int y0, int x1, int y1, int pasos = 8);
    void Tecla(const char* nombre);  // X name of the key: "Return", "v", "Escape", "space"
    void TeclaConControl(const char* nombre);
    // One key after the other, as fast as they go, and what they do.
    void Teclas(const char* nombre, int veces, const char* con = nullptr);
    Foto Mira();
    // Is a window of this title on the screen? The table, which fills the screen, does not count.
    bool HayVentana(const std::string& titulo);
    struct Marco {
        int x = 0, y = 0, ancho = 0, alto = 0;
    };
    bool BuscaVentana(const std::string& titulo, Marco& marco);
    // Waits for a message and clicks its yes or its no; of a message with one button, no closes it.
    bool Responde(const std::string& titulo, bool si);
    // Waits until the condition holds, looking every few milliseconds. False: it never did.
    bool Espera(const std::function<bool()>& condicion, int milisegundos = 15000);
    // Waits until the program has dealt with all input so far, and what it painted is seen. While a
    // handler runs on with events let through, that counts as dealt with.
    void EsperaAtendido(int tope = 20000);
    // Waits for that, and until the screen has not changed for a while.
    void EsperaQuieto(int milisegundos = 250, int tope = 20000);

    const std::string& Nombre() const { return nombre_; }

private:
    unsigned long VentanaDelPrograma();  // one of its windows on the screen, 0: none
    bool Ping(int milisegundos);

    _XDisplay* d_ = nullptr;
    std::string nombre_;  // ":N"
    int ancho_ = 0;       // of the first screen
    pid_t servidor_ = 0, gestor_ = 0;
    long ping_ = 0;  // of the last one asked
};

// One saved piece, for building a game in progress.
struct PiezaGuardada {
    int x = 0, y = 0, giro = 0, volteo = 0, xBien = 0, yBien = 0, giroBien = 0, volteoBien = 0;
};

// A game in progress as its file has it. Fields not given have the defaults of a new player.
struct PartidaGuardada {
    int juego = 21;
    std::string imagen;  // file name in Imagenes/; empty: none
    int anchoImagen = 0, altoImagen = 0;
    int porLado = 3, forma = 0, zoom = 100;
    int modoJuego = 1, tipoFondo = 2, modelo = 1;
    int huecoX = 0, huecoY = 0;
    int factor = 20, segundos = 0;
    int colorFondo = 0x800000, colorPiezas = 0x008000;  // blue, green, red
    bool terminado = false, archivable = false;
    bool giro = true, borde = true, atraccion = true, muestra = false;
    std::vector<PiezaGuardada> piezas;  // piece 1 first
    std::vector<int> orden;             // stacking order, top first; empty: 1, 2, 3 ...
};

// A jigsaw of flat squares, cut into as many cells a side, all its pieces at home.
PartidaGuardada DeCuadros(int ancho, int alto, int lado, int forma = 0);

// The Tangram, all its pieces in the corner; modo 1 creates figures, 2 solves a model.
PartidaGuardada DeTangram(int modo);
// Its pieces, or whatever there are, four in a row from (x, y) on.
void PonEnFilas(PartidaGuardada& p, int x, int y, int pasoX, int pasoY);

// What is read back from a file that the program wrote.
struct PartidaLeida {
    std::vector<PiezaGuardada> piezas;
    std::vector<int> orden;
    int movimientos = -1;
    int segundos = -1;
    int modo = -1;
    int huecoX = -1, huecoY = -1;
    bool terminado = false, archivable = false, muestra = false;
    std::string imagen;
};

// Played to the end: every piece at home, upright, face up.
void CompruebaResuelta(const PartidaLeida& leida);

class Programa {
public:
    // A folder of its own with the real program, the pictures, the models and the first games; it
    // lies in the folder for temporary files and has this name, or one that no other has.
    explicit Programa(Escritorio& e, const std::string& nombre = {});
    // A program that is installed, with a home: it is started as that user, if we may choose, and
    // Carpeta() is the working folder in that home.
    struct Instalado {
        std::string ejecutable, casa;
        unsigned usuario = 0;
    };
    Programa(Escritorio& e, Instalado instalado);
    ~Programa();
    Programa(const Programa&) = delete;
    Programa& operator=(const Programa&) = delete;

    // Files that the program will find. velocidad 0 to 100.
    void EscribeGlobal(int juego, int velocidad, bool sonido = false, bool sugerencias = false);
    void EscribePartida(const PartidaGuardada& p);
    // Both, with the picture of squares if the game has one: a start goes straight to it.
    void Escribe(const PartidaGuardada& p, int velocidad = 100);
    // A first start with no settings at all, for a program that came without any.
    void QuitaAjustes();
    static void EscribeEn(const std::string& ruta, const std::string& bytes);
    void EscribeBytes(const std::string& nombre, const std::string& bytes);
    // A picture of big flat squares of distinct colours, n a side: a BMP, or one in Imagenes/.
    static std::string ImagenDeCuadros(int ancho, int alto, int n);
    void EscribeImagenDeCuadros(const std::string& nombre, int ancho, int alto, int n);
    static unsigned ColorDeCuadro(int i);

    bool Arranca(bool cierraBienvenida = true);  // until the table is on the screen
    // The same in two steps, for what comes in between.
    void Lanzalo(const Entorno& entorno = {});
    bool LlegaALaMesa(bool cierraBienvenida = true);
    // A second start of the same program while the first runs: its exit status, -1 if it stays.
    int ArrancaOtra(int milisegundos = 10000);
    // From now on the program may not write into its folder; `datos` is made for what it keeps.
    void CierraCarpeta(const std::string& datos);
    std::string Errores() const;  // what it wrote on its error output
    bool Vive();
    int EsperaFin(int milisegundos = 8000);  // exit status, -1 while it still runs
    void Mata();
    void PulsaBoton(int indice);  // with the mouse
    // Leaves through the exit button, answering yes.
    bool Sale();
    PartidaLeida LeePartida(int juego) const;
    PartidaLeida LeeRecord(const std::string& nombre) const;  // in its folder
    const std::string& Carpeta() const { return carpeta_; }
    pid_t Pid() const { return pid_; }

    // Corner of a command button on the screen.
    struct Lugar {
        int x, y;
    };
    Lugar Boton(int indice, bool conBarras = false) const;  // its centre
    int AnchoPantalla() const;

private:
    Escritorio& e_;
    std::string carpeta_, ejecutable_, errores_;
    Entorno entorno_;
    pid_t pid_ = 0;
    int estado_ = -1;
    bool cerrada_ = false, propia_ = true;  // the folder's rights; it is ours to delete
    unsigned usuario_ = 0;                  // 0: ourselves
};

}  // namespace tessario::ventana
