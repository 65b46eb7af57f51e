// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures that come from the clipboard or are dropped on a window: part of settings/Imagen.
#include <algorithm>
#include <filesystem>
#include <utility>

#include "core/Avisos.h"
#include "core/Cadenas.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "panel/Adornos.h"
#include "platform/Plataforma.h"
#include "records/Historial.h"
#include "records/Texto.h"
#include "rules/Juego.h"
#include "session/Pegada.h"
#include "settings/Imagen.h"
#include "settings/Mandos.h"

namespace tessario {

namespace fs = std::filesystem;
using namespace personal;

namespace {

constexpr const char* ROTULO_PORTAPAPELES = "Cargar imagen del Portapapeles";
constexpr i16 PAUSA_PORTAPAPELES = 200, VELOCIDAD_NORMAL = 50;
constexpr i32 MAXIMOS_NOMBRES = 999;

// Sizes that a zoom of 5 to 995 percent can bring within the limits, both ends included.
constexpr i32 UTIL_ANCHO_MIN = 33, UTIL_ANCHO_MAX = 20480;
constexpr i32 UTIL_ALTO_MIN = 25, UTIL_ALTO_MAX = 15360;

bool HayUtilEnPortapapeles() {
    Mapa mapa;
    if (!Sistema().PortapapelesTieneImagen() || !Sistema().PortapapelesImagen(mapa)) return false;
    return mapa.Ancho >= UTIL_ANCHO_MIN && mapa.Ancho <= UTIL_ANCHO_MAX &&
           mapa.Alto >= UTIL_ALTO_MIN && mapa.Alto <= UTIL_ALTO_MAX;
}

std::string CarpetaEnCurso() {
    std::error_code e;
    std::string carpeta = fs::current_path(e).string();
    if (e) return Gbl.CarpetaPrograma;
    if (carpeta.empty() || carpeta.back() != '/') carpeta += '/';
    return carpeta;
}

i32 FilaDe(const std::string& nombre) {
    const auto& filas = File1.Elementos;
    const auto i = std::find_if(filas.begin(), filas.end(),
                                [&](const Lista::Elemento& e) { return e.Texto == nombre; });
    return i == filas.end() ? -1 : static_cast<i32>(i - filas.begin());
}

// Chooses a file of the folder that is listed, read anew; when it has no such file, the choice
// stays.
void EligeFichero(const std::string& nombre) {
    const std::string antes =
        File1.ListIndex < 0 ? "" : File1.Elementos[static_cast<std::size_t>(File1.ListIndex)].Texto;
    File1.Relee();
    File1.ListIndex = FilaDe(antes);
    File1.Selecciona(FilaDe(nombre));
}

// Lists a folder and chooses a file in it, as one step of the player.
void EligeEn(const std::string& carpeta, const std::string& nombre) {
    ListaCarpeta(carpeta);
    EligeFichero(nombre);
}

// Writes a picture; the puzzle's own one of that name lies aside until the window is left.
bool Escribe(const std::string& ruta, const Mapa& mapa) {
    const std::string& propia = Gbl.AlEntrar.RutaImagen;
    const bool apartada = HayApartada(propia);
    if (!ApartaPegada(ruta, propia)) return false;
    if (Sistema().GuardaImagen(ruta, mapa) == 0) return true;
    if (!apartada) DevuelvePegada(propia);
    return false;
}

void TomaPortapapeles() {
    Mapa mapa;
    if (!Sistema().PortapapelesTieneImagen() || !Sistema().PortapapelesImagen(mapa)) return;
    Gbl.ImagenLeida.clear();  // the file of that name has another picture now
    const std::string nombre(IMAGEN_PORTAPAPELES);
    if (Escribe(CarpetaEnCurso() + nombre, mapa)) {
        EligeFichero(nombre);
        return;
    }
    // A folder that cannot be written: the program's own always can.
    if (Escribe(Gbl.CarpetaPrograma + nombre, mapa))
        EligeEn(Gbl.CarpetaPrograma, nombre);
    else
        Avisa(aviso::IMAGEN_SIN_GUARDAR);
}

bool MismaImagen(const std::string& ruta, const Mapa& mapa) {
    Mapa otra;
    return Sistema().CargaImagen(ruta, otra) == 0 && otra.Ancho == mapa.Ancho &&
           otra.Alto == mapa.Alto && otra.Pixeles == mapa.Pixeles;
}

// A name in the folder that is free, or that holds this very picture already. `hecha` tells which.
std::string NombreLibre(const std::string& carpeta, const ImagenTraida_& t, bool& hecha) {
    std::string nombre;
    for (i32 n = 1; n <= MAXIMOS_NOMBRES; ++n) {
        nombre = t.Nombre + (n == 1 ? "" : " " + std::to_string(n)) + ".bmp";
        const std::string ruta = BuscaRuta(carpeta + nombre);
        std::error_code e;
        if (t.Unica || !fs::exists(ruta, e)) return nombre;
        hecha = MismaImagen(ruta, *t.Dibujo);
        if (hecha) return fs::path(ruta).filename().string();
    }
    return nombre;
}

// Is the picture one of the listed kinds in that folder already?
bool EstaEn(const std::string& carpeta, const std::string& ruta) {
    const std::string nombre = fs::path(ruta).filename().string();
    if (ruta != carpeta + nombre) return false;
    ListaFicheros lista;
    lista.Path = carpeta;
    lista.Pattern = PATRON_IMAGENES;
    lista.Relee();
    return std::any_of(lista.Elementos.begin(), lista.Elementos.end(),
                       [&](const Lista::Elemento& e) { return e.Texto == nombre; });
}

// Writes the picture into a folder; its name there, or empty when that failed.
std::string GuardaEn(const std::string& carpeta, const ImagenTraida_& t) {
    bool hecha = false;
    std::string nombre = NombreLibre(carpeta, t, hecha);
    if (hecha || Escribe(carpeta + nombre, *t.Dibujo)) return nombre;
    return {};
}

}  // namespace

void MuestraBotonPortapapeles() {
    const UsoDeImagen uso = JuegoEnCurso().Imagen;
    Pic_BotPortapapeles.Visible =
        uso != UsoDeImagen::Ninguno && UsaImagen() && HayUtilEnPortapapeles();
    PintaBotonLargo(Pic_BotPortapapeles, ROTULO_PORTAPAPELES, false);
}

void Pic_BotPortapapeles_MouseDown() {
    PintaBotonLargo(Pic_BotPortapapeles, ROTULO_PORTAPAPELES, true);
    SonidoJuego(1, sonido::TECLA);
    TomaPortapapeles();
    const i16 velocidad = Gbl.VelocidadJuego;
    Gbl.VelocidadJuego = VELOCIDAD_NORMAL;
    Pausa(PAUSA_PORTAPAPELES);
    Gbl.VelocidadJuego = velocidad;
    PintaBotonLargo(Pic_BotPortapapeles, ROTULO_PORTAPAPELES, false);
    SonidoJuego(1, sonido::SUELTA);
}

void ImportaImagenTraida() {
    const ImagenTraida_ t = std::exchange(Gbl.ImagenTraida, ImagenTraida_{});
    if (!t.Dibujo) return;
    if (JuegoEnCurso().Imagen == UsoDeImagen::Ninguno) {
        Avisa(aviso::IMAGEN_SIN_USO);
        return;
    }
    if (!UsaImagen()) Sel(SEL_FONDO).Pon(FONDO_IMAGEN);
    for (const std::string& carpeta : {Gbl.CarpetaImagenes, CarpetaDelJugador()})
        if (EstaEn(carpeta, t.Ruta)) {
            EligeEn(carpeta, fs::path(t.Ruta).filename().string());
            return;
        }
    Gbl.ImagenLeida.clear();
    for (const std::string& carpeta : {CarpetaDelJugador(), Gbl.CarpetaPrograma})
        if (const std::string nombre = GuardaEn(carpeta, t); !nombre.empty()) {
            EligeEn(carpeta, nombre);
            return;
        }
    Avisa(aviso::IMAGEN_SIN_GUARDAR);
}

}  // namespace tessario
