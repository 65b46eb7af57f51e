// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the pictures of README.md and of the help: the first table of a new player and games in
// progress of each kind, laid before the real program on a private screen; keeps what it shows.
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "ventana/Escritorio.h"

namespace {

using namespace tessario::ventana;

struct Pantalla {
    int ancho, alto;
};
constexpr Pantalla GRANDE{1024, 768}, CHICA{800, 600};
constexpr int COLOCADAS = 10;             // the command of the two colours
constexpr const char* CASA = "Tessario";  // its folder, as windows show it

// A place for a piece that is not placed yet.
struct Sitio {
    int x, y, giro;
};

// A jigsaw of n a side over a picture: the cells told by `fuera` lie about, the rest is in place.
PartidaGuardada Rompecabezas(const char* imagen, int ancho, int alto, int n, int forma,
                             const std::vector<int>& fuera, const std::vector<Sitio>& sitios) {
    PartidaGuardada p;
    p.imagen = imagen;
    p.anchoImagen = ancho;
    p.altoImagen = alto;
    p.porLado = n;
    p.forma = forma;
    const bool curvada = forma == 1;  // curved cells have odd sides
    const int celdaX = ancho / n - (curvada && ancho / n % 2 == 0 ? 1 : 0);
    const int celdaY = alto / n - (curvada && alto / n % 2 == 0 ? 1 : 0);
    for (int c = 0; c < n * n; ++c) {
        PiezaGuardada q;
        q.x = q.xBien = c % n * celdaX;
        q.y = q.yBien = c / n * celdaY;
        p.piezas.push_back(q);
    }
    for (std::size_t i = 0; i < fuera.size() && i < sitios.size(); ++i) {
        auto& q = p.piezas[static_cast<std::size_t>(fuera[i])];
        q.x = sitios[i].x;
        q.y = sitios[i].y;
        q.giro = sitios[i].giro;
    }
    // The loose ones on top.
    for (int f : fuera) p.orden.push_back(f + 1);
    for (int c = 1; c <= n * n; ++c)
        if (std::find(p.orden.begin(), p.orden.end(), c) == p.orden.end()) p.orden.push_back(c);
    return p;
}

// A sliding board of 4 with a picture, shuffled by moves.
PartidaGuardada Deslizantes(const char* imagen) {
    constexpr int N = 4, CELDA = 117, MARGEN_X = 207, MARGEN_Y = 117;  // as laid on this screen
    PartidaGuardada p;
    p.juego = 22;
    p.imagen = imagen;
    p.anchoImagen = p.altoImagen = N * CELDA;
    p.porLado = N;
    p.tipoFondo = 1;
    std::vector<int> celdas(N * N);
    for (int i = 0; i < N * N - 1; ++i) celdas[static_cast<std::size_t>(i)] = i + 1;
    int hueco = N * N - 1;
    for (const char paso : std::string("ULURULDRDLLURRULLDDRURDLL")) {
        const int otro = hueco + (paso == 'U' ? -N : paso == 'D' ? N : paso == 'L' ? -1 : 1);
        if (otro < 0 || otro >= N * N || (otro / N != hueco / N && (paso == 'L' || paso == 'R')))
            continue;
        std::swap(celdas[static_cast<std::size_t>(hueco)], celdas[static_cast<std::size_t>(otro)]);
        hueco = otro;
    }
    const auto x = [](int c) { return MARGEN_X + c % N * CELDA; };
    const auto y = [](int c) { return MARGEN_Y + c / N * CELDA; };
    p.piezas.resize(N * N - 1);
    for (int c = 0; c < N * N; ++c) {
        const int k = celdas[static_cast<std::size_t>(c)];
        if (k == 0) {
            p.huecoX = x(c);
            p.huecoY = y(c);
        } else {
            p.piezas[static_cast<std::size_t>(k - 1)] = {x(c),     y(c),     0, 0,
                                                         x(k - 1), y(k - 1), 0, 0};
        }
    }
    return p;
}

// A model of the supplied file, four pieces laid and three waiting.
PartidaGuardada Tangram(const Programa& programa, int modelo) {
    constexpr std::size_t REGISTRO = 126, NOMBRE = 25, BLOQUE = 10;
    std::ifstream f(programa.Carpeta() + "Archivo/Modelos.tpu", std::ios::binary);
    const std::string datos{std::istreambuf_iterator<char>(f), {}};
    const auto numero = [&](std::size_t donde, std::size_t cifras) {
        return std::stoi(datos.substr(donde, cifras));
    };
    PartidaGuardada p;
    p.juego = 23;
    p.porLado = 5;
    p.modoJuego = 2;
    p.modelo = modelo;
    p.colorFondo = 0x604020;
    p.colorPiezas = 0x30A0E8;
    for (std::size_t i = 0; i < 7; ++i) {
        const std::size_t b = static_cast<std::size_t>(modelo - 1) * REGISTRO + NOMBRE + i * BLOQUE;
        PiezaGuardada q;
        q.x = q.xBien = numero(b, 4);
        q.y = q.yBien = numero(b + 4, 4);
        q.giro = q.giroBien = numero(b + 8, 1);
        q.volteo = q.volteoBien = numero(b + 9, 1);
        p.piezas.push_back(q);
    }
    const struct {
        std::size_t pieza;
        Sitio sitio;
    } esperan[] = {{1, {330, 70, 1}}, {3, {520, 250, 2}}, {6, {330, 370, 1}}};
    for (const auto& e : esperan) {
        p.piezas[e.pieza].x = e.sitio.x;
        p.piezas[e.pieza].y = e.sitio.y;
        p.piezas[e.pieza].giro = e.sitio.giro;
    }
    return p;
}

// The part of a photo that a window takes.
Foto Recorta(const Foto& foto, const Escritorio::Marco& m) {
    Foto parte;
    parte.ancho = m.ancho;
    parte.alto = m.alto;
    for (int y = m.y; y < m.y + m.alto; ++y)
        for (int x = m.x; x < m.x + m.ancho; ++x) parte.pixeles.push_back(foto.En(x, y));
    return parte;
}

// The settings window of the program in play: only that is kept.
bool TomaAjustes(const char* nombre, int juego,
                 const std::function<PartidaGuardada(Programa&)>& partida) {
    constexpr int PERSONALIZAR = 2;
    Escritorio e(GRANDE.ancho, GRANDE.alto);
    Programa programa(e, CASA);
    programa.EscribeGlobal(juego, 60, true, true);
    programa.EscribePartida(partida(programa));
    Escritorio::Marco marco;
    if (!programa.Arranca()) return false;
    programa.PulsaBoton(PERSONALIZAR);
    if (!e.Espera([&] { return e.BuscaVentana("Personalizar", marco); })) return false;
    e.Mueve(GRANDE.ancho - 5, GRANDE.alto - 5);
    e.EsperaQuieto();
    Recorta(e.Mira(), marco).Guarda(nombre);
    return true;
}

// What a new player finds: the game that comes with the program, as it was dealt.
bool TomaEstreno(const char* nombre) {
    Escritorio e(CHICA.ancho, CHICA.alto);
    Programa programa(e, CASA);
    if (!programa.Arranca()) return false;
    e.Mueve(CHICA.ancho - 5, CHICA.alto - 5);
    e.EsperaQuieto();
    e.Mira().Guarda(nombre);
    return true;
}

// Where the mouse is when the picture is taken. One that moves would send the keyboard's cross
// away.
enum class Raton { Aparte, Quieto };

// `luego` opens what the picture is to show on top of the table.
bool Toma(const char* nombre, Pantalla pantalla, int juego,
          const std::function<PartidaGuardada(Programa&)>& partida,
          const std::function<void(Escritorio&, Programa&)>& luego = nullptr,
          Raton raton = Raton::Aparte) {
    Escritorio e(pantalla.ancho, pantalla.alto);
    Programa programa(e, CASA);
    programa.EscribeGlobal(juego, 100);
    PartidaGuardada p = partida(programa);
    p.segundos = 754;
    programa.EscribePartida(p);
    if (!programa.Arranca()) {
        std::fprintf(stderr, "the program did not come up for %s\n", nombre);
        return false;
    }
    if (luego) luego(e, programa);
    if (raton == Raton::Aparte) e.Mueve(pantalla.ancho - 5, pantalla.alto - 5);
    e.EsperaQuieto();
    e.Mira().Guarda(nombre);
    return true;
}

PartidaGuardada Globos(const std::vector<int>& fuera) {
    PartidaGuardada p = Rompecabezas("Globos.jpg", 640, 480, 5, 1, fuera,
                                     {{715, 40, 0},
                                      {730, 190, 1},
                                      {700, 370, 0},
                                      {40, 540, 2},
                                      {220, 560, 0},
                                      {390, 540, 3},
                                      {540, 620, 0},
                                      {60, 650, 0}});
    p.colorFondo = 0x385838;
    return p;
}

// A board of numbers, so that its labels are seen.
PartidaGuardada Numeros() {
    PartidaGuardada p = Deslizantes("");
    p.tipoFondo = 2;
    p.colorFondo = 0x283848;
    p.colorPiezas = 0x4880C0;
    return p;
}

// The last piece is brought home; the congratulation stands beside the picture.
void Termina(Escritorio& e, Programa&) {
    constexpr int TOMADO_X = 790, TOMADO_Y = 90, CELDA_X = 3 * 127, CELDA_Y = 2 * 95;
    e.Arrastra(TOMADO_X, TOMADO_Y, TOMADO_X - 715 + CELDA_X, TOMADO_Y - 40 + CELDA_Y);
    e.Espera([&] { return e.HayVentana("TESSARIO"); });
}

// A year of solved puzzles, most of them of the jigsaw.
std::string Historico() {
    static constexpr const char* IMAGENES[] = {"Peces.jpg", "Ciudad.jpg", "Jardin.jpg",
                                               "Puerto.jpg"};
    static constexpr const char* JUGADORES[] = {"Eva", "I\xF1igo", "Ana"};
    std::string todo;
    for (int i = 0; i < 36; ++i) {
        const int n = 3 + i * 7 % 6;
        char linea[256];
        std::snprintf(
            linea, sizeof linea,
            "\"%02d/%02d/2026\",\"%02d:%02d:00\",%d,\"%s\",\"/home/eva/Imagenes/\",\"\",640,"
            "480,100,640,480,%d,1,1,%d,%d,%d,%d.%d,%d,20,1,0,\"%s\"\r\n",
            1 + i * 5 % 28, 1 + i / 3, 9 + i % 12, i * 17 % 60, i % 9 == 4 ? 22 : 21,
            IMAGENES[i % 4], n, n * n, 640 / n, 480 / n, 25 + (i * 37 + i * i) % 60, i % 10,
            180 + i * 211 % 3000, JUGADORES[i * i % 3]);
        todo += linea;
    }
    return todo;
}

PartidaGuardada AMedias(Programa& programa) {
    programa.EscribeBytes("TESSA33.his", Historico());
    for (const char* nombre :
         {"El puerto", "Globos de Eva", "Jardín a medias", "Vidriera", "Ñandú", "Domingo"})
        programa.EscribeBytes(std::string("Archivo/") + nombre + ".puz", "");
    PartidaGuardada p = Rompecabezas("Globos.jpg", 640, 480, 5, 1, {2, 6, 9, 12},
                                     {{715, 40, 0}, {730, 190, 1}, {700, 370, 0}, {40, 540, 2}});
    p.archivable = true;
    p.colorFondo = 0x385838;
    return p;
}

}  // namespace

int main() {
    const bool bien =
        TomaEstreno("estreno") &&
        Toma("mesa", GRANDE, 21,
             [](Programa&) {
                 PartidaGuardada p =
                     Rompecabezas("Puerto.jpg", 640, 480, 6, 2,
                                  {3, 8, 10, 13, 16, 17, 21, 23, 26, 28, 32, 33, 35},
                                  {{720, 30, 0},
                                   {740, 150, 1},
                                   {705, 290, 2},
                                   {30, 540, 0},
                                   {190, 560, 3},
                                   {320, 530, 0},
                                   {480, 545, 1},
                                   {600, 570, 0},
                                   {770, 520, 2},
                                   {900, 560, 0},
                                   {90, 660, 0},
                                   {350, 655, 2},
                                   {690, 665, 0}});
                 p.colorFondo = 0x333300;
                 return p;
             }) &&
        Toma("moviles", GRANDE, 21,
             [](Programa&) {
                 PartidaGuardada p = Globos({2, 6, 9, 12, 14, 18, 20, 23});
                 p.muestra = true;
                 return p;
             }) &&
        Toma(
            "colores", GRANDE, 21,
            [](Programa&) {
                return Globos({2, 6, 9, 12, 14, 18, 20, 23});
            },
            [](Escritorio&, Programa& programa) { programa.PulsaBoton(COLOCADAS); }) &&
        Toma(
            "final", GRANDE, 21, [](Programa&) { return Globos({13}); }, Termina) &&
        Toma(
            "teclado", GRANDE, 21,
            [](Programa&) {
                return Globos({2, 6, 9, 12, 14, 18, 20, 23});
            },
            [](Escritorio& e, Programa&) {
                e.Tecla("Home");
                e.Teclas("Right", 56);
                e.Teclas("Up", 17);
                e.Tecla("space");
                e.Teclas("Left", 16);
            },
            Raton::Quieto) &&
        Toma("numeros", GRANDE, 22, [](Programa&) { return Numeros(); }) &&
        Toma("deslizantes", GRANDE, 22,
             [](Programa&) {
                 PartidaGuardada p = Deslizantes("Jardin.jpg");
                 p.colorFondo = 0x402848;
                 return p;
             }) &&
        Toma("tangram", CHICA, 23, [](Programa& programa) { return Tangram(programa, 50); }) &&
        Toma("historico", CHICA, 21, AMedias,
             [](Escritorio& e, Programa& programa) {
                 programa.PulsaBoton(5);
                 e.EsperaQuieto();
                 for (int i = 0; i < 7; ++i) e.Tecla("Next");
             }) &&
        Toma("estadisticas", CHICA, 21, AMedias,
             [](Escritorio&, Programa& programa) { programa.PulsaBoton(4); }) &&
        Toma("cargar", CHICA, 21, AMedias,
             [](Escritorio& e, Programa&) {
                 e.Pulsa(300, 560, 3);
                 e.EsperaQuieto();
                 e.Pulsa(330, 560);
                 e.EsperaQuieto();
                 e.Pulsa(300, 241);
             }) &&
        TomaAjustes("ajustes-moviles", 21,
                    [](Programa&) {
                        PartidaGuardada p = Rompecabezas("Puerto.jpg", 640, 480, 6, 2, {}, {});
                        p.colorFondo = 0x336600;
                        return p;
                    }) &&
        TomaAjustes("ajustes-deslizantes", 22,
                    [](Programa&) {
                        PartidaGuardada p = Deslizantes("Jardin.jpg");
                        p.colorFondo = 0x663333;
                        p.colorPiezas = 0x009900;
                        return p;
                    }) &&
        TomaAjustes("ajustes-tangram", 23, [](Programa& programa) {
            PartidaGuardada p = Tangram(programa, 50);
            p.colorFondo = 0x663300;
            p.colorPiezas = 0x3399FF;
            return p;
        });
    return bien ? 0 : 1;
}
