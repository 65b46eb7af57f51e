// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventana/Escritorio.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

#include "ventana/Proceso.h"

namespace tessario::ventana {

namespace {

using Reloj = std::chrono::steady_clock;

void Duerme(int ms) {
    std::this_thread::sleep_for(std::chrono::milliseconds(ms));
}

// A window may vanish while we look at it.
int SinError(Display*, XErrorEvent*) {
    return 0;
}

// Does `mira` say yes to a window on the screen, this one or one within?
bool Recorre(Display* d, Window w,
             const std::function<bool(Window, const XWindowAttributes&)>& mira) {
    XWindowAttributes a{};
    if (!XGetWindowAttributes(d, w, &a)) return false;
    if (a.map_state == IsViewable && mira(w, a)) return true;
    Window raiz = 0, padre = 0;
    Window* hijas = nullptr;
    unsigned n = 0;
    if (!XQueryTree(d, w, &raiz, &padre, &hijas, &n)) return false;
    bool si = false;
    for (unsigned i = 0; i < n && !si; ++i) si = Recorre(d, hijas[i], mira);
    if (hijas) XFree(hijas);
    return si;
}

std::string Propiedad(Display* d, Window w, const char* nombre) {
    Atom tipo = 0;
    int formato = 0;
    unsigned long n = 0, resto = 0;
    unsigned char* datos = nullptr;
    std::string texto;
    if (XGetWindowProperty(d, w, XInternAtom(d, nombre, False), 0, 1024, False, AnyPropertyType,
                           &tipo, &formato, &n, &resto, &datos) == Success &&
        datos && formato == 8)
        texto.assign(reinterpret_cast<char*>(datos), n);
    if (datos) XFree(datos);
    return texto;
}

bool ContestaPing(Display* d, Window w) {
    Atom* protocolos = nullptr;
    int n = 0;
    bool si = false;
    if (!XGetWMProtocols(d, w, &protocolos, &n)) return false;
    const Atom ping = XInternAtom(d, "_NET_WM_PING", False);
    for (int i = 0; i < n; ++i) si = si || protocolos[i] == ping;
    XFree(protocolos);
    return si;
}

}  // namespace

int Foto::Cuenta(int x, int y, int w, int h, unsigned color) const {
    int n = 0;
    for (int j = y; j < y + h; ++j)
        for (int i = x; i < x + w; ++i) n += En(i, j) == color;
    return n;
}

int Foto::Diferencia(const Foto& otra, int x, int y, int w, int h) const {
    int n = 0;
    for (int j = y; j < y + h; ++j)
        for (int i = x; i < x + w; ++i) n += En(i, j) != otra.En(i, j);
    return n;
}

void Foto::Guarda(const std::string& nombre) const {
    const std::string base = std::string(TESSARIO_PANTALLAS) + "/" + nombre;
    std::filesystem::create_directories(TESSARIO_PANTALLAS);
    std::ofstream f(base + ".ppm", std::ios::binary);
    f << "P6\n" << ancho << " " << alto << "\n255\n";
    for (const unsigned p : pixeles)
        f << static_cast<char>(p >> 16) << static_cast<char>(p >> 8) << static_cast<char>(p);
    f.close();
    const std::string orden =
        "convert '" + base + ".ppm' '" + base + ".png' && rm '" + base + ".ppm'";
    if (std::system(orden.c_str()) != 0) std::fprintf(stderr, "no PNG for %s\n", nombre.c_str());
}

Escritorio::Escritorio(int ancho, int alto, Gestor gestor) : ancho_(ancho) {
    int tubo[2];
    if (pipe(tubo) != 0) throw std::runtime_error("pipe");
    servidor_ = Lanza({{"Xvfb", "-displayfd", std::to_string(tubo[1]), "-screen", "0",
                        std::to_string(ancho) + "x" + std::to_string(alto) + "x24", "-nolisten",
                        "tcp", "-noreset"},
                       "",
                       tubo[1]});
    close(tubo[1]);
    std::string numero;
    char c = 0;
    while (read(tubo[0], &c, 1) == 1 && c != '\n') numero += c;
    close(tubo[0]);
    if (numero.empty()) throw std::runtime_error("Xvfb did not start");
    nombre_ = ":" + numero;
    XSetErrorHandler(SinError);
    d_ = XOpenDisplay(nombre_.c_str());
    if (!d_) throw std::runtime_error("cannot open the private display");
    // The answers to the pings come to the root window.
    XSelectInput(d_, DefaultRootWindow(d_), StructureNotifyMask);
    if (gestor == Gestor::No) return;
    gestor_ = Lanza({{"openbox"}, nombre_});
    // The manager announces itself on the root window.
    const Atom marca = XInternAtom(d_, "_NET_SUPPORTING_WM_CHECK", False);
    Espera([&] {
        Atom tipo = 0;
        int formato = 0;
        unsigned long n = 0, resto = 0;
        unsigned char* datos = nullptr;
        XGetWindowProperty(d_, DefaultRootWindow(d_), marca, 0, 1, False, AnyPropertyType, &tipo,
                           &formato, &n, &resto, &datos);
        if (datos) XFree(datos);
        return n > 0;
    });
}

Escritorio::~Escritorio() {
    if (d_) XCloseDisplay(d_);
    Termina(gestor_);
    Termina(servidor_);
}

bool Escritorio::PonMonitores(const Monitor& a, const Monitor& b) {
    // The server has one output; the other monitor does without.
    const auto pon = [&](const Monitor& m, const char* nombre, const char* salida) {
        const std::string orden = "xrandr -d " + nombre_ + " --setmonitor '" +
                                  (m.primero ? "*" : "") + nombre + "' " + std::to_string(m.ancho) +
                                  "/300x" + std::to_string(m.alto) + "/200+" + std::to_string(m.x) +
                                  "+0 " + salida + " >/dev/null 2>&1";
        if (m.primero) ancho_ = m.ancho;
        return std::system(orden.c_str()) == 0;
    };
    return pon(a, "uno", "screen") && pon(b, "dos", "none");
}

void Escritorio::Mueve(int x, int y, int reposo) {
    XTestFakeMotionEvent(d_, -1, x, y, 0);
    XSync(d_, False);
    if (reposo > 0) Duerme(reposo);
}

void Escritorio::Aprieta(int boton) {
    XTestFakeButtonEvent(d_, static_cast<unsigned>(boton), True, 0);
    XSync(d_, False);
}

void Escritorio::Suelta(int boton) {
    XTestFakeButtonEvent(d_, static_cast<unsigned>(boton), False, 0);
    XSync(d_, False);
}

void Escritorio::Pulsa(int x, int y, int boton) {
    Mueve(x, y);
    // Both at once: on a busy machine no time may pass between them.
    XTestFakeButtonEvent(d_, static_cast<unsigned>(boton), True, 0);
    XTestFakeButtonEvent(d_, static_cast<unsigned>(boton), False, 0);
    XSync(d_, False);
    EsperaAtendido();
}

void Escritorio::Arrastra(int x0, int y0, int x1, int y1, int pasos) {
    Mueve(x0, y0);
    EsperaAtendido();
    Aprieta();
    EsperaAtendido();
    for (int i = 1; i <= pasos; ++i) Mueve(x0 + (x1 - x0) * i / pasos, y0 + (y1 - y0) * i / pasos);
    EsperaAtendido();
    Suelta();
    EsperaAtendido();
}

void Escritorio::Tecla(const char* nombre) {
    const KeyCode codigo = XKeysymToKeycode(d_, XStringToKeysym(nombre));
    XTestFakeKeyEvent(d_, codigo, True, 0);
    XTestFakeKeyEvent(d_, codigo, False, 0);
    XSync(d_, False);
    EsperaAtendido();
}

void Escritorio::TeclaConControl(const char* nombre) {
    const KeyCode control = XKeysymToKeycode(d_, XStringToKeysym("Control_L"));
    XTestFakeKeyEvent(d_, control, True, 0);
    Tecla(nombre);
    XTestFakeKeyEvent(d_, control, False, 0);
    XSync(d_, False);
    EsperaAtendido();
}

void Escritorio::Teclas(const char* nombre, int veces, const char* con) {
    const KeyCode codigo = XKeysymToKeycode(d_, XStringToKeysym(nombre));
    const KeyCode modifica = con ? XKeysymToKeycode(d_, XStringToKeysym(con)) : KeyCode{0};
    if (con) XTestFakeKeyEvent(d_, modifica, True, 0);
    for (int i = 0; i < veces; ++i) {
        XTestFakeKeyEvent(d_, codigo, True, 0);
        XTestFakeKeyEvent(d_, codigo, False, 0);
        XSync(d_, False);
        Duerme(3);  // a press at the moment of the release before it would be taken for a held key
    }
    if (con) XTestFakeKeyEvent(d_, modifica, False, 0);
    XSync(d_, False);
    EsperaAtendido();
}

Foto Escritorio::Mira() {
    Foto f;
    const int pantalla = DefaultScreen(d_);
    f.ancho = DisplayWidth(d_, pantalla);
    f.alto = DisplayHeight(d_, pantalla);
    XImage* im = XGetImage(d_, DefaultRootWindow(d_), 0, 0, static_cast<unsigned>(f.ancho),
                           static_cast<unsigned>(f.alto), AllPlanes, ZPixmap);
    if (!im) throw std::runtime_error("the screen cannot be read");
    f.pixeles.resize(static_cast<std::size_t>(f.ancho) * static_cast<std::size_t>(f.alto));
    unsigned* destino = f.pixeles.data();
    for (int y = 0; y < f.alto; ++y) {
        const auto* fila = reinterpret_cast<const unsigned*>(im->data + y * im->bytes_per_line);
        for (int x = 0; x < f.ancho; ++x) *destino++ = fila[x] & 0xFFFFFFU;
    }
    XDestroyImage(im);
    return f;
}

bool Escritorio::BuscaVentana(const std::string& titulo, Marco& marco) {
    const Window raiz = DefaultRootWindow(d_);
    return Recorre(d_, raiz, [&](Window w, const XWindowAttributes& a) {
        if (a.width >= ancho_ || Propiedad(d_, w, "_NET_WM_NAME") != titulo) return false;
        Window hija = 0;
        marco = {0, 0, a.width, a.height};
        XTranslateCoordinates(d_, w, raiz, 0, 0, &marco.x, &marco.y, &hija);
        return true;
    });
}

bool Escritorio::HayVentana(const std::string& titulo) {
    Marco marco;
    return BuscaVentana(titulo, marco);
}

bool Escritorio::Responde(const std::string& titulo, bool si) {
    // The buttons' centres, from the window's right and lower edge.
    constexpr int NO = 39, SI = 102, ALTURA = 37;
    Marco m;
    if (!Espera([&] { return BuscaVentana(titulo, m); })) return false;
    EsperaAtendido();
    Pulsa(m.x + m.ancho - (si ? SI : NO), m.y + m.alto - ALTURA);
    return Espera([&] { return !HayVentana(titulo); });
}

unsigned long Escritorio::VentanaDelPrograma() {
    Window w = 0;
    Recorre(d_, DefaultRootWindow(d_), [&](Window v, const XWindowAttributes&) {
        if (ContestaPing(d_, v)) w = v;
        return w != 0;
    });
    return w;
}

bool Escritorio::Ping(int milisegundos) {
    const Window w = VentanaDelPrograma();
    if (!w) return false;
    XEvent e{};
    e.xclient.type = ClientMessage;
    e.xclient.window = w;
    e.xclient.message_type = XInternAtom(d_, "WM_PROTOCOLS", False);
    e.xclient.format = 32;
    const long marca = ++ping_;
    e.xclient.data.l[0] = static_cast<long>(XInternAtom(d_, "_NET_WM_PING", False));
    e.xclient.data.l[1] = marca;
    e.xclient.data.l[2] = static_cast<long>(w);
    XSendEvent(d_, w, False, NoEventMask, &e);
    XFlush(d_);
    return Espera(
        [&] {
            while (XPending(d_)) {
                XEvent r{};
                XNextEvent(d_, &r);
                if (r.type == ClientMessage && r.xclient.data.l[1] == marca) return true;
            }
            return false;
        },
        milisegundos);
}

void Escritorio::EsperaAtendido(int tope) {
    constexpr int SIN_VENTANAS = 400;  // for so long none to be seen: the program has ended
    const auto fin = Reloj::now() + std::chrono::milliseconds(tope);
    // An answer tells that what came before has been read; the next one, that it has been handled.
    for (int vez = 0; vez < 2 && Reloj::now() < fin;) {
        if (!Espera([&] { return VentanaDelPrograma() != 0; }, SIN_VENTANAS)) return;
        vez += Ping(1000) ? 1 : 0;
    }
}

bool Escritorio::Espera(const std::function<bool()>& condicion, int milisegundos) {
    const auto fin = Reloj::now() + std::chrono::milliseconds(milisegundos);
    do {
        if (condicion()) return true;
        Duerme(15);
    } while (Reloj::now() < fin);
    return condicion();
}

void Escritorio::EsperaQuieto(int milisegundos, int tope) {
    EsperaAtendido(tope);
    const auto fin = Reloj::now() + std::chrono::milliseconds(tope);
    for (Foto antes = Mira(); Reloj::now() < fin;) {
        Duerme(milisegundos);
        Foto ahora = Mira();
        if (ahora.pixeles == antes.pixeles) return;
        antes = std::move(ahora);
    }
}

namespace {

std::string Cifras(int n, int ancho) {
    char t[32];
    std::snprintf(t, sizeof t, "%0*d", ancho, n);
    return std::string(t).substr(0, static_cast<std::size_t>(ancho));
}

std::string Logico(bool b) {
    return b ? "-1" : "0 ";
}

// A line of blanks with fields put in by column, counted from 1.
class Linea {
public:
    explicit Linea(std::size_t ancho) : t_(ancho, ' ') {}
    void Pon(std::size_t columna, const std::string& campo) {
        t_.replace(columna - 1, campo.size(), campo);
    }
    std::string Entre() const { return "\"" + t_ + "\"\r\n"; }

private:
    std::string t_;
};

int Numero(const std::string& linea, std::size_t columna, std::size_t ancho) {
    return std::atoi(linea.substr(columna - 1, ancho).c_str());
}

}  // namespace

std::string Bytes(const std::string& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

PartidaGuardada DeCuadros(int ancho, int alto, int lado, int forma) {
    PartidaGuardada p;
    p.imagen = "cuadros.bmp";
    p.anchoImagen = ancho;
    p.altoImagen = alto;
    p.porLado = lado;
    p.forma = forma;
    p.borde = false;
    const int porCelda = forma == 3 ? 4 : forma >= 4 ? 2 : 1;
    for (int i = 0; i < lado * lado * porCelda; ++i) {
        const int celda = i / porCelda;
        PiezaGuardada q;
        q.x = q.xBien = celda % lado * (ancho / lado);
        q.y = q.yBien = celda / lado * (alto / lado);
        p.piezas.push_back(q);
    }
    return p;
}

PartidaGuardada DeTangram(int modo) {
    PartidaGuardada p;
    p.juego = 23;
    p.porLado = 5;
    p.modoJuego = modo;
    p.piezas.resize(7);
    return p;
}

void PonEnFilas(PartidaGuardada& p, int x, int y, int pasoX, int pasoY) {
    constexpr int EN_FILA = 4;
    int i = 0;
    for (PiezaGuardada& q : p.piezas) {
        q.x = x + i % EN_FILA * pasoX;
        q.y = y + i / EN_FILA * pasoY;
        ++i;
    }
}

void CompruebaResuelta(const PartidaLeida& leida) {
    EXPECT_TRUE(leida.terminado);
    EXPECT_FALSE(leida.piezas.empty());
    for (const PiezaGuardada& q : leida.piezas) {
        EXPECT_EQ(q.x, q.xBien);
        EXPECT_EQ(q.y, q.yBien);
        EXPECT_EQ(q.giro, 0);
        EXPECT_EQ(q.volteo, 0);
    }
}

Programa::Programa(Escritorio& e, const std::string& nombre) : e_(e) {
    namespace fs = std::filesystem;
    static int n = 0;
    const std::string propio =
        "tessario-ventana-" + std::to_string(getpid()) + "-" + std::to_string(++n);
    carpeta_ = (fs::temp_directory_path() / (nombre.empty() ? propio : nombre)).string() + "/";
    const fs::path origen = fs::path(TESSARIO_PROGRAMA).parent_path();
    fs::create_directories(carpeta_ + "Archivo");
    fs::create_directories(carpeta_ + "Imagenes");
    fs::copy_file(TESSARIO_PROGRAMA, carpeta_ + "tessario");
    for (const char* sub : {"Imagenes", "Archivo"})
        if (fs::exists(origen / sub))
            fs::copy(origen / sub, carpeta_ + sub,
                     fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    for (const auto& f : fs::directory_iterator(TESSARIO_ESTRENO))
        fs::copy_file(f.path(), carpeta_ + f.path().filename().string());
    ejecutable_ = carpeta_ + "tessario";
    errores_ = carpeta_ + "errores.txt";
    entorno_ = {{"XDG_DATA_HOME", carpeta_ + "datos"}};
}

Programa::Programa(Escritorio& e, Instalado instalado)
    : e_(e),
      carpeta_(instalado.casa + "/.local/share/tessario/Temp/Tsb/"),
      ejecutable_(std::move(instalado.ejecutable)),
      errores_(instalado.casa + "-errores.txt"),
      entorno_{{"HOME", instalado.casa},
               {"XDG_DATA_HOME", ""},
               {"XDG_CONFIG_HOME", ""},
               {"XDG_CACHE_HOME", ""}},
      propia_(false),
      usuario_(instalado.usuario) {}

Programa::~Programa() {
    Mata();
    if (!propia_) return;
    std::error_code error;
    if (cerrada_)
        for (const char* sub : {"", "Imagenes", "Archivo"})
            std::filesystem::permissions(carpeta_ + sub, std::filesystem::perms::owner_all, error);
    std::filesystem::remove_all(carpeta_, error);
}

void Programa::QuitaAjustes() {
    namespace fs = std::filesystem;
    for (const auto& f : fs::directory_iterator(TESSARIO_ESTRENO))
        fs::remove(carpeta_ + f.path().filename().string());
}

void Programa::EscribeEn(const std::string& ruta, const std::string& bytes) {
    std::ofstream(ruta, std::ios::binary) << bytes;
}

void Programa::EscribeBytes(const std::string& nombre, const std::string& bytes) {
    EscribeEn(carpeta_ + nombre, bytes);
}

void Programa::EscribeGlobal(int juego, int velocidad, bool sonido, bool sugerencias) {
    Linea l(125);
    l.Pon(1, Cifras(juego, 2));
    l.Pon(3, Logico(sonido));
    l.Pon(5, Cifras(velocidad, 3));
    l.Pon(8, Logico(sugerencias));
    EscribeBytes("TsR33.ini", l.Entre());
}

void Programa::Escribe(const PartidaGuardada& p, int velocidad) {
    if (!p.imagen.empty()) EscribeImagenDeCuadros(p.imagen, p.anchoImagen, p.altoImagen, p.porLado);
    EscribeGlobal(p.juego, velocidad);
    EscribePartida(p);
}

void Programa::EscribePartida(const PartidaGuardada& p) {
    Linea l(140);
    l.Pon(1, "Prueba   ");
    l.Pon(10, Cifras(p.colorFondo, 8));
    l.Pon(18, Cifras(p.colorPiezas, 8));
    l.Pon(26, Cifras(0xFFFFFF, 8));
    l.Pon(34, Logico(p.muestra));
    l.Pon(36, Cifras(0, 4));
    l.Pon(40, Cifras(p.modelo, 4));
    l.Pon(45, Cifras(p.zoom, 3));
    l.Pon(48, Cifras(p.porLado, 3));
    l.Pon(51, Cifras(p.forma, 2));
    l.Pon(53, Cifras(static_cast<int>(p.piezas.size()), 3));
    l.Pon(56, Cifras(p.segundos, 8));
    l.Pon(64, Logico(p.terminado));
    l.Pon(66, Logico(p.archivable));
    l.Pon(68, Cifras(p.modoJuego, 1));
    l.Pon(69, Cifras(p.tipoFondo, 1));
    l.Pon(72, Cifras(p.huecoX, 4));
    l.Pon(76, Cifras(p.huecoY, 4));
    l.Pon(80, Cifras(p.anchoImagen, 4));
    l.Pon(84, Cifras(p.altoImagen, 4));
    l.Pon(88, Cifras(p.juego, 2));
    l.Pon(91, Cifras(p.factor, 3));
    l.Pon(94, Logico(p.giro));
    l.Pon(96, Logico(p.borde));
    l.Pon(98, Logico(p.atraccion));
    l.Pon(125, "10.0000");
    std::string piezas, texto;
    for (std::size_t i = 0; i < p.piezas.size(); ++i) {
        const auto& q = p.piezas[i];
        const int orden = p.orden.empty() ? static_cast<int>(i) + 1 : p.orden[i];
        piezas += Cifras(q.x, 4) + Cifras(q.y, 4) + Cifras(q.giro, 1) + Cifras(q.volteo, 1) +
                  Cifras(q.xBien, 4) + Cifras(q.yBien, 4) + Cifras(q.giroBien, 1) +
                  Cifras(q.volteoBien, 1) + Cifras(orden, 3);
    }
    const std::string ruta = p.imagen.empty() ? " " : carpeta_ + "Imagenes/" + p.imagen;
    for (const std::string& s : {std::string("/"), carpeta_ + "Imagenes/", p.imagen, ruta})
        texto += "\"" + s + "\"\r\n";
    texto += l.Entre() + "\"" + piezas + "\"\r\n\"\"\r\n";
    EscribeBytes("TsR" + std::to_string(p.juego) + "33.ini", texto);
}

unsigned Programa::ColorDeCuadro(int i) {
    static const unsigned colores[] = {0xC03020, 0x20A040, 0x2050D0, 0xE0C020, 0x902090,
                                       0x20B0B0, 0xF08030, 0x808040, 0xE070B0, 0x406080};
    return colores[i % 10];
}

std::string Programa::ImagenDeCuadros(int ancho, int alto, int n) {
    // 24-bit BMP, rows from the bottom, each padded to four bytes.
    const int fila = (ancho * 3 + 3) / 4 * 4;
    std::string b(static_cast<std::size_t>(54 + fila * alto), '\0');
    const auto pon = [&](int donde, unsigned v, int bytes) {
        for (int i = 0; i < bytes; ++i)
            b[static_cast<std::size_t>(donde + i)] = static_cast<char>(v >> (8 * i));
    };
    b[0] = 'B';
    b[1] = 'M';
    pon(2, static_cast<unsigned>(b.size()), 4);
    pon(10, 54, 4);
    pon(14, 40, 4);
    pon(18, static_cast<unsigned>(ancho), 4);
    pon(22, static_cast<unsigned>(alto), 4);
    pon(26, 1, 2);
    pon(28, 24, 2);
    for (int y = 0; y < alto; ++y)
        for (int x = 0; x < ancho; ++x) {
            const unsigned c = ColorDeCuadro(y * n / alto * n + x * n / ancho);
            pon(54 + (alto - 1 - y) * fila + x * 3, c, 3);
        }
    return b;
}

void Programa::EscribeImagenDeCuadros(const std::string& nombre, int ancho, int alto, int n) {
    EscribeBytes("Imagenes/" + nombre, ImagenDeCuadros(ancho, alto, n));
}

void Programa::Lanzalo(const Entorno& entorno) {
    Entorno todo = entorno_;
    todo.insert(todo.end(), entorno.begin(), entorno.end());
    pid_ =
        Lanza({{ejecutable_}, e_.Nombre(), -1, todo, cerrada_ ? "/dev/null" : errores_, usuario_});
    estado_ = -1;
}

int Programa::ArrancaOtra(int milisegundos) {
    const pid_t otra = Lanza({{ejecutable_}, e_.Nombre(), -1, entorno_, "/dev/null", usuario_});
    int estado = -1;
    e_.Espera([&] { return waitpid(otra, &estado, WNOHANG) == otra; }, milisegundos);
    if (estado != -1) return WIFEXITED(estado) ? WEXITSTATUS(estado) : 128;
    Termina(otra);
    return -1;
}

void Programa::CierraCarpeta(const std::string& datos) {
    namespace fs = std::filesystem;
    fs::create_directories(datos);
    fs::permissions(datos, fs::perms::all);
    constexpr auto leer = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
    constexpr auto entrar = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    for (const char* sub : {"Imagenes", "Archivo", ""})
        fs::permissions(carpeta_ + sub, leer | entrar);
    constexpr unsigned NADIE = 65534;
    cerrada_ = true;
    usuario_ = NADIE;
}

std::string Programa::Errores() const {
    std::ifstream f(errores_, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

bool Programa::LlegaALaMesa(bool cierraBienvenida) {
    const auto llega = [&] { return e_.HayVentana("TESSARIO  3.3"); };
    if (!e_.Espera([&] { return llega() || !Vive(); }, 30000) || !Vive()) return false;
    e_.EsperaQuieto();
    if (!cierraBienvenida) return true;
    e_.Tecla("Return");
    if (!e_.Espera([&] { return !llega(); })) return false;
    e_.EsperaQuieto();
    return Vive();
}

bool Programa::Arranca(bool cierraBienvenida) {
    Lanzalo();
    return LlegaALaMesa(cierraBienvenida);
}

bool Programa::Vive() {
    if (pid_ <= 0) return false;
    int estado = 0;
    if (waitpid(pid_, &estado, WNOHANG) != pid_) return true;
    estado_ = WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado);
    pid_ = 0;
    return false;
}

int Programa::EsperaFin(int milisegundos) {
    e_.Espera([&] { return !Vive(); }, milisegundos);
    return pid_ > 0 ? -1 : estado_;
}

void Programa::Mata() {
    if (Vive()) Termina(pid_);
    pid_ = 0;
}

void Programa::PulsaBoton(int indice) {
    const Lugar b = Boton(indice);
    e_.Pulsa(b.x, b.y);
}

bool Programa::Sale() {
    PulsaBoton(7);
    if (!e_.Espera([&] { return e_.HayVentana("Salir de TESSARIO"); })) return false;
    e_.EsperaQuieto(120);
    e_.Tecla("Return");
    return EsperaFin() == 0;
}

int Programa::AnchoPantalla() const {
    return e_.Mira().ancho;
}

Programa::Lugar Programa::Boton(int indice, bool conBarras) const {
    static const int X[] = {15, 15, 15, 78, 15, 78, 78, 78, 15, 78, 15, 78};
    static const int Y[] = {194, 10, 68, 68, 126, 10, 126, 194, 310, 252, 252, 310};
    const int izquierda = AnchoPantalla() - 141 - (conBarras ? 17 : 0);
    return {izquierda + X[indice - 1] + 24, Y[indice - 1] + 24};
}

PartidaLeida Programa::LeePartida(int juego) const {
    return LeeRecord("TsR" + std::to_string(juego) + "33.ini");
}

PartidaLeida Programa::LeeRecord(const std::string& nombre) const {
    PartidaLeida p;
    std::ifstream f(carpeta_ + nombre, std::ios::binary);
    std::vector<std::string> lineas;
    for (std::string s; std::getline(f, s);) {
        if (!s.empty() && s.back() == '\r') s.pop_back();
        lineas.push_back(s.size() >= 2 ? s.substr(1, s.size() - 2) : s);
    }
    if (lineas.size() < 7) return p;
    const std::string& fijo = lineas[4];
    const int n = Numero(fijo, 53, 3);
    p.movimientos = Numero(fijo, 36, 4);
    p.segundos = Numero(fijo, 56, 8);
    p.terminado = fijo.substr(63, 2) == "-1";
    p.archivable = fijo.substr(65, 2) == "-1";
    p.muestra = fijo.substr(33, 2) == "-1";
    p.modo = Numero(fijo, 68, 1);
    p.huecoX = Numero(fijo, 72, 4);
    p.huecoY = Numero(fijo, 76, 4);
    p.imagen = lineas[2];
    for (int i = 0; i < n; ++i) {
        const std::string t = lineas[5].substr(static_cast<std::size_t>(i) * 23, 23);
        p.piezas.push_back({Numero(t, 1, 4), Numero(t, 5, 4), Numero(t, 9, 1), Numero(t, 10, 1),
                            Numero(t, 11, 4), Numero(t, 15, 4), Numero(t, 19, 1),
                            Numero(t, 20, 1)});
        p.orden.push_back(Numero(t, 21, 3));
    }
    return p;
}

}  // namespace tessario::ventana
