// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/PlataformaPrueba.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "apoyo/Datos.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "records/Archivo.h"
#include "session/CopiaSeguridad.h"
#include "start/Juegos.h"

namespace tessario {

namespace fs = std::filesystem;

namespace {

std::string CarpetaNueva() {
    static int n = 0;
    const std::string ruta = (fs::temp_directory_path() /
                              ("tessario-" + std::to_string(getpid()) + "-" + std::to_string(++n)))
                                 .string();
    fs::create_directories(ruta);
    return ruta + "/";
}

i32 Caracteres(std::string_view texto) {
    i32 n = 0;
    for (const char c : texto) n += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    return n;
}

i32 AnchoCaracter(const Fuente& f) {
    return std::max(1, f.Tamano * 7 / 13);
}

}  // namespace

PlataformaPrueba::PlataformaPrueba() : carpeta(CarpetaNueva()) {
    InstalaJuegos();
}

PlataformaPrueba::~PlataformaPrueba() {
    EsperaCopia();  // nothing is written into a folder that goes
    std::error_code e;
    fs::permissions(carpeta, fs::perms::owner_all, fs::perm_options::add, e);
    fs::remove_all(carpeta, e);
}

i32 PlataformaPrueba::CambiaModoPantalla(i32 a, i32 b) {
    if (cambioModo == 0) {
        ancho = a;
        alto = b;
    }
    return cambioModo;
}

void PlataformaPrueba::Duerme(double ms) {
    if (alDormir) alDormir();
    if (ms > 0) {
        reloj += ms;
        dormido += ms;
    }
}

void PlataformaPrueba::DejaPasarEventos() {
    ++pasosDeEventos;
    if (alDejarPasar) alDejarPasar();
    if (eventos.empty()) return;
    const auto evento = eventos.front();
    eventos.pop_front();
    evento();
}

void PlataformaPrueba::Muestra(Ventana& v) {
    mostradas.push_back(v.Nombre);
    if (v.Abierta) return;
    v.Abierta = true;
    if (v.Load) v.Load();
    if (v.Abierta && v.Activate) v.Activate();
}

void PlataformaPrueba::MuestraModal(Ventana& v) {
    mostradas.push_back(v.Nombre);
    v.Abierta = true;
    if (v.Load) v.Load();
    if (v.Abierta && v.Activate) v.Activate();
    const auto accion = ventanas.find(v.Nombre);
    if (accion != ventanas.end()) {
        accion->second(v);
    } else if (v.QueryUnload) {
        bool cancela = false;  // the player closes it from outside
        v.QueryUnload(cancela);
    } else if (&v == &Mensajes) {
        bool si = Gbl.BotonesMensaje == 1;
        if (Gbl.BotonesMensaje != 1 && !respuestas.empty()) {
            si = respuestas.front();
            respuestas.pop_front();
        }
        avisos.push_back({Gbl.TituloMensaje, Gbl.TextoMensaje, Gbl.ModoMensaje, Gbl.BotonesMensaje,
                          Gbl.AyudaMensaje, si});
        Gbl.RespuestaMensaje = si;
    }
    if (v.Abierta) Cierra(v);
}

void PlataformaPrueba::Cierra(Ventana& v) {
    if (!v.Abierta) return;
    v.Abierta = false;
    if (v.Unload) v.Unload();
}

i32 PlataformaPrueba::AnchoTexto(const Fuente& f, std::string_view texto) {
    return Caracteres(texto) * AnchoCaracter(f);
}

i32 PlataformaPrueba::AltoTexto(const Fuente& f) {
    return f.Tamano + 2;
}

void PlataformaPrueba::PintaTexto(Superficie& s, i32 x, i32 y, std::string_view texto,
                                  const Fuente& f, Color color) {
    if (anotaTextos) textos.push_back({&s, x, y, std::string(texto), color});
    // One box for each character that is not a blank, a pixel free all around.
    const i32 w = AnchoCaracter(f);
    const i32 h = AltoTexto(f);
    const Rect limites = s.Limites();
    i32 i = 0;
    for (const char c : texto) {
        if ((static_cast<unsigned char>(c) & 0xC0U) == 0x80U) continue;
        const i32 izq = x + i++ * w;
        if (c == ' ') continue;
        const Rect caja = Interseccion(limites, {izq, y + 1, izq + w - 1, y + h - 1});
        if (caja.Vacio()) continue;
        for (i32 fila = caja.Arr; fila < caja.Aba; ++fila)
            for (i32 col = caja.Izq; col < caja.Der; ++col)
                if (!s.Recorte() || s.Recorte()->Contiene(col, fila))
                    s.Fila(fila)[col] = PixelDe(color);
        s.Marca(caja);
    }
}

i32 PlataformaPrueba::CargaImagen(const std::string& ruta, Mapa& destino) {
    if (const auto e = erroresImagen.find(ruta); e != erroresImagen.end()) return e->second;
    const auto i = imagenes.find(ruta);
    if (i == imagenes.end()) return 53;
    cargadas.push_back(ruta);
    destino = i->second;
    return 0;
}

i32 PlataformaPrueba::MideImagen(const std::string& ruta, i32& ancho_, i32& alto_) {
    if (const auto e = erroresImagen.find(ruta); e != erroresImagen.end()) return e->second;
    const auto i = imagenes.find(ruta);
    if (i == imagenes.end()) return 53;
    ancho_ = i->second.Ancho;
    alto_ = i->second.Alto;
    return 0;
}

i32 PlataformaPrueba::CargaMuestra(const std::string& ruta, i32 ancho_, i32 alto_, Mapa& destino) {
    i32 w = 0, h = 0;
    if (const i32 error = MideImagen(ruta, w, h)) return error;
    Superficie entera(w, h), muestra(ancho_, alto_);
    entera.PonPicture(std::make_shared<const Mapa>(imagenes[ruta]));
    StretchBlt(muestra, 0, 0, ancho_, alto_, entera, 0, 0, w, h, SRCCOPY);
    destino = muestra.Dibujo();
    return 0;
}

i32 PlataformaPrueba::CargaAjena(const std::string& ruta, Mapa& destino) {
    const auto i = ajenas.find(ruta);
    if (i == ajenas.end()) return CargaImagen(ruta, destino);
    destino = i->second;  // as far as it went, if it fails
    const auto e = erroresImagen.find(ruta);
    return e == erroresImagen.end() ? 0 : e->second;
}

i32 PlataformaPrueba::GuardaImagen(const std::string& ruta, const Mapa& imagen) {
    if (guardaFalla) return 75;
    if (const i16 error = EscribeFichero(ruta, "BM")) return error;
    guardadas[ruta] = imagen;
    imagenes[ruta] = imagen;
    return 0;
}

bool PlataformaPrueba::RecursoImagen(std::string_view nombre, Mapa& destino) {
    const auto r = recursos.find(std::string(nombre));
    if (r != recursos.end()) {
        destino = r->second;
        return true;
    }
    destino = Mapa(600, 200);
    const Pixel tipo = static_cast<Pixel>(nombre.size() & 0xFU) << 20;
    for (i32 y = 0; y < destino.Alto; ++y)
        for (i32 x = 0; x < destino.Ancho; ++x)
            destino.Fila(y)[x] = tipo | (static_cast<Pixel>(x) << 8) | static_cast<Pixel>(y);
    return true;
}

void PlataformaPrueba::Suena(i16 id, bool asincrono) {
    sonidos.emplace_back(id, asincrono);
    if (!asincrono) reloj += duracionSonido;
}

bool PlataformaPrueba::PortapapelesImagen(Mapa& destino) {
    if (!hayPortapapeles) return false;
    destino = portapapeles;
    return true;
}

Punto PunteroPrueba::Origen(const Control& c) {
    return OrigenDe(c);
}

Control* PunteroPrueba::Debajo() const {
    return ControlEn(ventana_, x_, y_);
}

void PunteroPrueba::Mueve(i32 x, i32 y) {
    if (ventana_.ApuntaElTeclado() && (x != x_ || y != y_)) ventana_.VuelveElRaton();
    x_ = x;
    y_ = y;
    Control* c = apretado_ ? preso_ : Debajo();
    if (!c || !c->Enabled) return;
    const Punto o = Origen(*c);
    if (c->MouseMove)
        c->MouseMove(apretado_ ? boton_ : i16{0}, 0, static_cast<float>(x_ - o.x),
                     static_cast<float>(y_ - o.y));
}

void PunteroPrueba::Aprieta(i16 boton) {
    if (ventana_.ApuntaElTeclado()) ventana_.VuelveElRaton();
    if (!apretado_) Mueve(x_, y_);  // as on a real screen, a press always follows a move
    preso_ = Debajo();
    apretado_ = true;
    boton_ = boton;
    if (!preso_ || !preso_->Enabled) return;
    const Punto o = Origen(*preso_);
    if (preso_->MouseDown)
        preso_->MouseDown(boton, 0, static_cast<float>(x_ - o.x), static_cast<float>(y_ - o.y));
}

void PunteroPrueba::Suelta() {
    if (!apretado_) return;
    apretado_ = false;
    Control* c = preso_;
    preso_ = nullptr;
    if (!c || !c->Enabled) return;
    const Punto o = Origen(*c);
    if (c->MouseUp)
        c->MouseUp(boton_, 0, static_cast<float>(x_ - o.x), static_cast<float>(y_ - o.y));
    if (RectDe(o.x, o.y, c->Width(), c->Height()).Contiene(x_, y_) && c->Click) c->Click();
}

void PunteroPrueba::Pulsa(i32 x, i32 y, i16 boton) {
    Mueve(x, y);
    Aprieta(boton);
    Suelta();
}

void PruebaBase::SetUp() {
    plataforma_ = new PlataformaPrueba;
    PonSistema(plataforma_);
    Gbl = Bloque{};
    Gbl.CarpetaPrograma = P().carpeta;
    Gbl.CarpetaArchivo = P().carpeta + "Archivo/";
    Gbl.CarpetaImagenes = P().carpeta + "Imagenes/";
    ReiniciaSuperficies();
    ReiniciaVentanas();
    carpetaDeAntes_ = fs::current_path();
    trabajo_ = CarpetaNueva();
    fs::current_path(trabajo_);
}

void PruebaBase::TearDown() {
    for (const auto& resto : fs::directory_iterator(trabajo_))
        ADD_FAILURE() << "written where the test was started: " << resto.path().filename();
    fs::current_path(carpetaDeAntes_);
    fs::remove_all(trabajo_);
    PonSistema(nullptr);
    delete plataforma_;
    plataforma_ = nullptr;
}

std::string PruebaBase::RutaDe(const std::string& nombre) {
    return nombre.starts_with('/') ? nombre : P().carpeta + nombre;
}

std::string PruebaBase::Crea(const std::string& nombre, const std::string& bytes) {
    const std::string ruta = RutaDe(nombre);
    fs::create_directories(fs::path(ruta).parent_path());
    std::ofstream(ruta, std::ios::binary) << bytes;
    return ruta;
}

std::string PruebaBase::Contenido(const std::string& nombre) {
    std::ifstream f(RutaDe(nombre), std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

std::string PruebaBase::PonImagen(const std::string& nombre, i32 ancho, i32 alto, Pixel color) {
    const std::string ruta = Crea("Imagenes/" + nombre, "x");
    P().imagenes[ruta] = Mapa(ancho, alto, color);
    return ruta;
}

void PruebaBase::PonEstreno() {
    for (const auto& f : fs::directory_iterator(CARPETA_ESTRENO))
        fs::copy_file(f.path(), P().carpeta + f.path().filename().string());
    for (const auto& [nombre, color] :
         {std::pair{"Puerto.jpg", 0x4080C0U}, {"Peces.jpg", 0x2060A0U}})
        PonImagen(nombre, 640, 480, color);
    fs::create_directories(P().carpeta + "Archivo");
    fs::copy_file(FICHERO_SURTIDO, P().carpeta + "Archivo/Modelos.tpu");
}

void PruebaBase::Pantalla800() {
    Gbl.AnchoPantalla = 800;
    Gbl.AltoPantalla = 600;
    Pic_Botonera.Left = 659;
    BarraVer.Left = 800;
    BarraHor.Top = 600;
}

}  // namespace tessario
