#include "session/ImagenProvisional.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "core/Avisos.h"
#include "core/Cadenas.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "platform/Plataforma.h"
#include "rules/Despacho.h"
#include "rules/Medidas.h"
#include "rules/PuzzBas.h"
#include "session/Ampliacion.h"
#include "session/Dificultad.h"

namespace tessario {

namespace {

constexpr const char* EXTENSIONES[] = {".bmp", ".rle", ".wmf", ".emf", ".jpg"};
constexpr i32 ZOOM_MINIMO = 5, ZOOM_MAXIMO = 995, ZOOM_PASO = 5;

// ---------------------------------------------------------------- candidates

bool EsImagen(const std::string& nombre) {
    const std::string minusculas = Minusculas(nombre);
    return std::any_of(std::begin(EXTENSIONES), std::end(EXTENSIONES),
                       [&](const char* e) { return minusculas.ends_with(e); });
}

// File names of the folder's pictures, in order without regard to case.
std::vector<std::string> Candidatas(const std::string& carpeta) {
    std::vector<std::string> nombres;
    std::error_code e;
    std::filesystem::directory_iterator i(carpeta, e);
    for (; !e && i != std::filesystem::directory_iterator(); i.increment(e)) {
        std::error_code aparte;
        const std::string nombre = i->path().filename().string();
        if (EsImagen(nombre) && i->is_regular_file(aparte)) nombres.push_back(nombre);
    }
    std::sort(nombres.begin(), nombres.end(), [](const auto& a, const auto& b) {
        const std::string x = Minusculas(a), y = Minusculas(b);
        return x != y ? x < y : a < b;
    });
    return nombres;
}

// ---------------------------------------------------------------- zoom

// The percentage that takes `lado` to `limite` and one unit beyond, 0 when it is not needed.
i32 PorcentajeHacia(i32 lado, i32 limite, i32 ademas, bool falta) {
    return falta ? EnteroLargo(100.0 * limite / lado + ademas) : 0;
}

// The zoom that brings a picture within the limits, in steps of 5. Deliberate: a picture that is
// too large one way only gets zoom 0 and so is refused, although a reduction would fit it.
i32 ZoomPara(i32 ancho, i32 alto) {
    i32 zoom = 100;
    i32 a = PorcentajeHacia(ancho, IMAGEN_ANCHO_MIN, 1, ancho < IMAGEN_ANCHO_MIN);
    i32 b = PorcentajeHacia(alto, IMAGEN_ALTO_MIN, 1, alto < IMAGEN_ALTO_MIN);
    if (a != 0 || b != 0) zoom = std::max(a, b);
    if (zoom != 100) zoom += ZOOM_PASO - zoom % ZOOM_PASO;
    a = PorcentajeHacia(ancho, IMAGEN_ANCHO_MAX, -1, ancho > IMAGEN_ANCHO_MAX);
    b = PorcentajeHacia(alto, IMAGEN_ALTO_MAX, -1, alto > IMAGEN_ALTO_MAX);
    if (a != 0 || b != 0) zoom = std::min(a, b);
    if (zoom != 100) zoom -= zoom % ZOOM_PASO;
    return zoom;
}

bool ZoomValido(i32 ancho, i32 alto, i32 zoom) {
    const double w = ancho * (zoom / 100.0), h = alto * (zoom / 100.0);
    return zoom >= ZOOM_MINIMO && zoom <= ZOOM_MAXIMO && w <= IMAGEN_ANCHO_MAX &&
           h <= IMAGEN_ALTO_MAX && w >= IMAGEN_ANCHO_MIN && h >= IMAGEN_ALTO_MIN;
}

// ---------------------------------------------------------------- what a picture allows

// Shapes that a picture's width over height must lie between two bounds for; outside, rectangles.
struct ProporcionForma {
    i16 forma;
    double minima, maxima;
};
constexpr ProporcionForma PROPORCIONES[] = {
    {1, 0.416, 2.4}, {2, 0.476, 2.1}, {3, 0, 2.625}, {7, 0.416, 2.4}};

void AjustaForma(double proporcion) {
    for (const ProporcionForma& p : PROPORCIONES)
        if (Gbl.FormaPiezas == p.forma && (proporcion < p.minima || proporcion > p.maxima)) {
            Gbl.FormaPiezas = 0;
            Gbl.PiezasPorCelda = 1;
            return;
        }
}

// The grid nearest to the one in force whose cells are neither too small nor too large; of two
// equally near the finer one.
void AjustaPiezasPorLado(const Punto& imagen) {
    constexpr i16 triangulos = 3, celda_maxima = 140;
    const bool tri = Gbl.FormaPiezas == triangulos;
    const i32 celda_minima = tri ? 50 : 25;
    const i16 ultimo = tri ? 15 : 20;
    const auto cabe = [&](i32 lado) { return lado >= celda_minima && lado <= celda_maxima; };
    i16 mejor = 99;
    for (i16 n = 3; n <= ultimo; ++n)
        if (cabe(imagen.x / n) && cabe(imagen.y / n) &&
            std::abs(n - Gbl.PiezasPorLado) <= std::abs(mejor - Gbl.PiezasPorLado))
            mejor = n;
    Gbl.PiezasPorLado = mejor == 99 ? i16{3} : mejor;
}

// ---------------------------------------------------------------- taking one

bool TomaImagen(const std::string& nombre) {
    const std::string ruta = Gbl.CarpetaImagenes + nombre;
    auto mapa = std::make_shared<Mapa>();
    if (Sistema().CargaImagen(ruta, *mapa) != 0 || mapa->Ancho < 1 || mapa->Alto < 1) return false;
    const i32 zoom = ZoomPara(mapa->Ancho, mapa->Alto);
    if (!ZoomValido(mapa->Ancho, mapa->Alto, zoom)) return false;
    Gbl.UnidadImagen = Left(Gbl.CarpetaImagenes, 2);
    Gbl.CarpetaImagen = Gbl.CarpetaImagenes;
    Gbl.FicheroImagen = nombre;
    Gbl.RutaImagen = ruta;
    Gbl.AnchoImagen = mapa->Ancho;
    Gbl.AltoImagen = mapa->Alto;
    Gbl.ZoomImagen = Corto(zoom);
    Gbl.ImagenValida = true;
    Pic_FonTamReal.Tamano(mapa->Ancho, mapa->Alto);
    Pic_FonTamReal.PonPicture(mapa);
    return true;
}

void SinImagen() {
    Gbl.FicheroImagen.clear();
    Gbl.RutaImagen = " ";
    Gbl.AnchoImagen = IMAGEN_ANCHO_MIN;
    Gbl.AltoImagen = IMAGEN_ALTO_MIN;
    Gbl.ZoomImagen = 100;
    Gbl.ImagenValida = false;
    Avisa(aviso::SIN_IMAGENES);
}

}  // namespace

void EligeImagenProvisional() {
    const std::vector<std::string> nombres = Candidatas(Gbl.CarpetaImagenes);
    const bool hallada = std::any_of(nombres.begin(), nombres.end(), TomaImagen);
    if (!hallada) SinImagen();
    AjustaForma(static_cast<double>(Gbl.AnchoImagen) / Gbl.AltoImagen);
    CalculaTamanos();  // the margins; the picture's size follows from them
    if (hallada)
        AmpliaImagen();
    else
        VaciaImagen();
    AjustaPiezasPorLado({Pic_FonTamModi.Width(), Pic_FonTamModi.Height()});
    Pic_FonTamReal.PonPicture(nullptr);
    Pic_FonTamReal.Tamano(0, 0);
    PreparaJuego(true);
    CalculaDificultad();
}

}  // namespace tessario
