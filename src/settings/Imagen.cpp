// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Imagen.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <memory>

#include "core/Avisos.h"
#include "core/Cadenas.h"
#include "core/Errores.h"
#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Cronometro.h"
#include "pieces/Raster.h"
#include "platform/Ficheros.h"
#include "platform/Plataforma.h"
#include "records/Texto.h"
#include "rules/Catalogo.h"
#include "rules/Juego.h"
#include "rules/Medidas.h"
#include "session/Ampliacion.h"
#include "session/Montaje.h"
#include "settings/Mandos.h"

namespace tessario {

namespace fs = std::filesystem;
using namespace personal;

Superficie Pic_FonTamModiMem;

namespace {

constexpr i32 ORILLA_VISTA = 4;  // pixels by which the preview is smaller than its box
constexpr i16 ESTILO_VISOR = 1;
constexpr Color RESTO_PANTALLA = paleta::TEJA;
constexpr std::uintmax_t FICHERO_GRANDE = 512U * 1024;  // bytes; reading it shows the hourglass
constexpr float TRES_CUARTOS = 4.0F / 3.0F;

// ---------------------------------------------------------------- the chosen file

std::string RutaElegida() {
    if (File1.ListIndex < 0 || File1.ListIndex >= File1.ListCount()) return {};
    return File1.Path + File1.Elementos[static_cast<std::size_t>(File1.ListIndex)].Texto;
}

// What a file is told again by; empty when it is not there.
std::string ClaveDe(const std::string& ruta, std::uintmax_t& bytes) {
    std::error_code e;
    bytes = fs::file_size(ruta, e);
    if (e) return {};
    const auto cuando = fs::last_write_time(ruta, e).time_since_epoch().count();
    return ruta + '\n' + std::to_string(bytes) + '\n' + std::to_string(cuando);
}

class PunteroDeEspera {
public:
    PunteroDeEspera() {
        PonPuntero(Personal, PUNTERO_RELOJ);
        Sistema().Presenta();
    }
    ~PunteroDeEspera() { PonPuntero(Personal, PUNTERO_NORMAL); }
    PunteroDeEspera(const PunteroDeEspera&) = delete;
    PunteroDeEspera& operator=(const PunteroDeEspera&) = delete;
};

void PonReal(Imagen imagen) {
    Pic_FonTamReal.PonPicture(nullptr);
    Pic_FonTamReal.TamanoLibre(imagen->Ancho, imagen->Alto);
    Pic_FonTamReal.PonPicture(std::move(imagen));
}

// Where in the preview a picture of this proportion stands.
Rect SitioDeVista(float proporcion) {
    const Cuadro& vista = Pic_MostrarImagen;
    const double caja_ancho = vista.Width() - ORILLA_VISTA;
    const double caja_alto = vista.Height() - ORILLA_VISTA;
    double ancho = caja_ancho, alto = caja_alto;
    if (TRES_CUARTOS < proporcion) alto = caja_ancho / proporcion;
    if (TRES_CUARTOS > proporcion) ancho = caja_alto * proporcion;
    const i32 w = std::max(1, EnteroLargo(ancho)), h = std::max(1, EnteroLargo(alto));
    return RectDe((vista.Width() - w) / 2, (vista.Height() - h) / 2, w, h);
}

void PintaEnVista(const Rect& sitio, const Superficie& imagen) {
    Pic_MostrarImagen.PonPicture(nullptr);
    Pic_MostrarImagen.PonBackColor(Gbl.ColorFondo);
    StretchBlt(Pic_MostrarImagen, sitio.Izq, sitio.Arr, sitio.Ancho(), sitio.Alto(), imagen, 0, 0,
               imagen.Width(), imagen.Height(), SRCCOPY);
}

void PintaVistaPrevia() {
    PintaEnVista(SitioDeVista(Gbl.ProporcionImagen), Pic_FonTamReal);
}

// A large picture is shown before the whole of it is read, decoded no finer than the preview needs.
void AdelantaVista(const std::string& ruta) {
    i32 ancho = 0, alto = 0;
    if (Sistema().MideImagen(ruta, ancho, alto) != 0 || ancho < 1 || alto < 1) return;
    const Rect sitio = SitioDeVista(static_cast<float>(ancho) / static_cast<float>(alto));
    auto muestra = std::make_shared<Mapa>();
    if (Sistema().CargaMuestra(ruta, sitio.Ancho(), sitio.Alto(), *muestra) != 0) return;
    Superficie imagen(muestra->Ancho, muestra->Alto);
    imagen.PonPicture(std::move(muestra));
    PintaEnVista(sitio, imagen);
    Sistema().Presenta();
}

// The picture of the chosen file into Pic_FonTamReal. False: there is none to be had, and the
// picture that was there stays.
bool LeeElegida() {
    const std::string ruta = RutaElegida();
    if (ruta.empty()) return false;
    std::uintmax_t bytes = 0;
    const std::string clave = ClaveDe(ruta, bytes);
    if (!clave.empty() && clave == Gbl.ImagenLeida) return true;
    auto mapa = std::make_shared<Mapa>();
    i32 error = 0;
    if (bytes >= FICHERO_GRANDE && !clave.empty()) {
        const PunteroDeEspera espera;
        AdelantaVista(ruta);
        error = Sistema().CargaImagen(ruta, *mapa);
        if (error != 0) PintaVistaPrevia();
    } else {
        error = Sistema().CargaImagen(ruta, *mapa);
    }
    if (error != 0 || mapa->Ancho < 1 || mapa->Alto < 1) return false;
    PonReal(std::move(mapa));
    Gbl.ImagenLeida = clave;
    return true;
}

// No picture yet: an empty one of the smallest size.
void AseguraReal() {
    if (Pic_FonTamReal.Width() > 0 && Pic_FonTamReal.Height() > 0) return;
    Pic_FonTamReal.PonPicture(nullptr);
    Pic_FonTamReal.Tamano(IMAGEN_ANCHO_MIN, IMAGEN_ALTO_MIN);
}

// The figure of the model on a surface as large as the puzzle with its margins.
void DibujaFigura() {
    Gbl.ImagenLeida.clear();
    Pic_FonTamReal.TamanoLimpio(Gbl.AnchoPuzzle + 2 * Gbl.MargenX,
                                Gbl.AltoPuzzle + 2 * Gbl.MargenY);
    TPintaFigura(Pic_FonTamReal);
}

// ---------------------------------------------------------------- what shows it

void PintaMedida(i32 ancho, i32 alto) {
    DibujaVisor(Pic_InfoTamBmp,
                Trim(std::to_string(ancho) + " píxels x " + std::to_string(alto)) + " píxels",
                ESTILO_VISOR);
    Pic_InfoTamBmp.NombreAccesible =
        "Tamaño: " + std::to_string(ancho) + " por " + std::to_string(alto) + " píxels";
}

// The screen in small, with the picture in its corner and the rest of the screen beside it.
void PintaEnPantalla() {
    Cuadro& c = Pic_TamRelIma;
    c.PonBackColor(Gbl.ColorFondo);
    if (Gbl.AnchoPantalla <= 0 || Gbl.AltoPantalla <= 0) return;
    const i32 w = c.Width() * Pic_FonTamModi.Width() / Gbl.AnchoPantalla;
    const i32 h = c.Height() * Pic_FonTamModi.Height() / Gbl.AltoPantalla;
    StretchBlt(c, 0, 0, w, h, Pic_FonTamModi, 0, 0, Pic_FonTamModi.Width(), Pic_FonTamModi.Height(),
               SRCCOPY);
    constexpr int llena = pluma::Desde | pluma::ConColor | pluma::Caja | pluma::Llena;
    if (w < c.Width()) c.Line(llena, w, 0, c.Width() - 1, c.Height() - 1, RESTO_PANTALLA);
    if (h < c.Height()) c.Line(llena, 0, h, c.Width() - 1, c.Height() - 1, RESTO_PANTALLA);
}

// ---------------------------------------------------------------- zoom

// The percentage that takes `lado` to `limite` and `ademas` units beyond; 0 when it is not needed.
i32 PorcentajeHacia(i32 lado, i32 limite, i32 ademas, bool falta) {
    return falta ? EnteroLargo(100.0 * limite / lado + ademas) : 0;
}

void PonZoom(i16 zoom) {
    Gbl.ZoomImagen = zoom;
    Spin1.Value = zoom;
}

// The zoom for the chosen picture. False: no zoom fits it, and the player has been told.
bool AdaptaZoom() {
    const i32 w = Pic_FonTamReal.Width(), h = Pic_FonTamReal.Height();
    const i32 zoom = ZoomPara(w, h);
    const std::string ancho = std::to_string(w), alto = std::to_string(h);
    if (!ZoomValido(w, h, zoom)) {
        PintaMedida(w, h);
        SonidoJuego(1, sonido::RECHAZO);
        Avisa(aviso::IMAGEN_RECHAZADA, {ancho, alto});
        Sistema().Presenta();
        PonZoom(Gbl.AlEntrar.ZoomImagen);
        Gbl.ImagenValida = false;
        return false;
    }
    PonZoom(Corto(zoom));
    if (zoom != 100) Avisa(aviso::IMAGEN_ADAPTADA, {ancho, alto});
    return true;
}

// ---------------------------------------------------------------- shapes that a picture allows

// Outside the bounds of its width over height a shape cannot be cut.
bool SePuedeCortar(const FichaForma& ficha) {
    return !ficha.Limitada() ||
           (Gbl.ProporcionImagen >= ficha.Minima && Gbl.ProporcionImagen <= ficha.Maxima);
}

void PermiteFormas() {
    for (i16 f = 0; f < FORMAS_DE_PIEZA; ++f)
        if (FichaDeForma(f).Limitada()) Pic_TipPuz[f].Enabled = true;
    for (i16 f = 0; f < FORMAS_DE_PIEZA; ++f) {
        if (SePuedeCortar(FichaDeForma(f))) continue;
        if (Gbl.FormaPiezas == f) {
            Gbl.CambiandoForma = true;
            Pulsa(Pic_TipPuz[forma::RECTANGULOS]);
            Gbl.CambiandoForma = false;
        }
        Pic_TipPuz[f].Enabled = false;
    }
    PintaFormas();
}

// ---------------------------------------------------------------- grids

constexpr i16 LADO_MINIMO = 3, LADO_MAXIMO_DESLIZANTES = 8;
constexpr i16 SIN_REJILLA = 99;

std::string FilaDeRejilla(i32 n) {
    std::string fila = Derecha(n, 2) + " x " + Derecha(n, 2);
    if (Gbl.PiezasPorCelda >= 2 && JuegoEnCurso().TieneFormas)
        fila += " x " + std::to_string(Gbl.PiezasPorCelda);
    const i32 total = JuegoEnCurso().TieneHueco ? n * n - 1 : n * n * Gbl.PiezasPorCelda;
    return fila + " -> " + Derecha(total, 3);
}

bool CabeRejilla(i32 n, const Punto& imagen, const FichaForma& ficha) {
    const auto cabe = [&](i32 lado) {
        return lado >= ficha.CeldaMinima && lado <= ficha.CeldaMaxima;
    };
    return cabe(imagen.x / n) && cabe(imagen.y / n);
}

// ---------------------------------------------------------------- folders

// The working folder follows the lists; a folder that cannot be entered leaves it where it is.
void VeACarpeta(const std::string& carpeta) {
    std::error_code e;
    fs::current_path(carpeta, e);
}

bool EsCarpeta(const std::string& ruta) {
    std::error_code e;
    return fs::is_directory(ruta, e);
}

// The place among those listed that lies nearest above a folder.
std::string LugarDe(const std::string& carpeta) {
    std::string mejor;
    const auto prueba = [&](const std::string& ruta) {
        if (carpeta.starts_with(ruta) && ruta.size() > mejor.size()) mejor = ruta;
    };
    for (const auto& [nombre, ruta] : Drive1.Propias) prueba(ruta);
    for (const Unidad& u : Unidades()) prueba(u.Ruta);
    return mejor;
}

// Row of a file by its name, letter case aside; -1 for none.
i32 FilaDe(const std::string& nombre) {
    const std::string buscado = Minusculas(nombre);
    i32 parecida = -1;
    for (i32 i = 0; i < File1.ListCount(); ++i) {
        const std::string& texto = File1.Elementos[static_cast<std::size_t>(i)].Texto;
        if (texto == nombre) return i;
        if (parecida < 0 && Minusculas(texto) == buscado) parecida = i;
    }
    return parecida;
}

// What a click shows, without what it chooses.
void MuestraElegida() {
    ImagenCambia();
    PermiteFormas();
    CargaLisNroPiezas();
}

// The picture at its stored size from the zoomed one of the puzzle in play, whose file is gone.
void RehaceReal() {
    const Superficie& zoom = Pic_FonTamModiMem;
    const i32 w = zoom.Width() - Gbl.MargenX, h = zoom.Height() - Gbl.MargenY;
    if (w <= 0 || h <= 0 || Gbl.AnchoImagen <= 0 || Gbl.AltoImagen <= 0) return;
    Superficie real(Gbl.AnchoImagen, Gbl.AltoImagen);
    StretchBlt(real, 0, 0, Gbl.AnchoImagen, Gbl.AltoImagen, zoom, Gbl.MargenX, Gbl.MargenY, w, h,
               SRCCOPY);
    PonReal(real.Image());
    Gbl.ImagenLeida.clear();
}

void TomaRutas() {
    Gbl.RutaImagen = RutaElegida();
    Gbl.FicheroImagen = File1.Elementos[static_cast<std::size_t>(File1.ListIndex)].Texto;
    Gbl.UnidadImagen = Drive1.Drive;
    Gbl.CarpetaImagen = Dir1.Path;
}

}  // namespace

i32 ZoomPara(i32 ancho, i32 alto) {
    i32 zoom = 100;
    i32 a = PorcentajeHacia(ancho, IMAGEN_ANCHO_MIN, 1, ancho < IMAGEN_ANCHO_MIN);
    i32 b = PorcentajeHacia(alto, IMAGEN_ALTO_MIN, 1, alto < IMAGEN_ALTO_MIN);
    if (a != 0 || b != 0) zoom = std::max(a, b);
    if (zoom != 100) zoom += ZOOM_PASO - zoom % ZOOM_PASO;
    a = PorcentajeHacia(ancho, IMAGEN_ANCHO_MAX, -1, ancho > IMAGEN_ANCHO_MAX);
    b = PorcentajeHacia(alto, IMAGEN_ALTO_MAX, -1, alto > IMAGEN_ALTO_MAX);
    // Deliberate: a picture that is too large one way only gets zoom 0 and so is refused, although
    // a reduction would fit it.
    if (a != 0 || b != 0) zoom = std::min(a, b);
    if (zoom != 100) zoom -= zoom % ZOOM_PASO;
    return zoom;
}

bool ZoomValido(i32 ancho, i32 alto, i32 zoom) {
    const double w = ancho * (zoom / 100.0), h = alto * (zoom / 100.0);
    return zoom >= ZOOM_MINIMO && zoom <= ZOOM_MAXIMO && w <= IMAGEN_ANCHO_MAX &&
           h <= IMAGEN_ALTO_MAX && w >= IMAGEN_ANCHO_MIN && h >= IMAGEN_ALTO_MIN;
}

void CargaMostrarImagen() {
    if (JuegoEnCurso().TieneModos)
        DibujaFigura();
    else
        LeeElegida();
    AseguraReal();
    Gbl.AnchoImagen = Pic_FonTamReal.Width();
    Gbl.AltoImagen = Pic_FonTamReal.Height();
    Gbl.ProporcionImagen = static_cast<float>(Gbl.AnchoImagen) / static_cast<float>(Gbl.AltoImagen);
    PintaVistaPrevia();
}

void ImagenCambia() {
    CalculaTamanos();
    // A board of numbers or letters has sizes, but no picture.
    if (!UsaImagen() && !JuegoEnCurso().TieneModos) {
        Pic_MostrarImagen.PonBackColor(Gbl.ColorFondo);
        return;
    }
    CargaMostrarImagen();
    Sigue([] { AmpliaImagen(); });
    const Punto tamano = TamanoConZoom();
    PintaMedida(tamano.x - Gbl.MargenX, tamano.y - Gbl.MargenY);
    PintaEnPantalla();
}

void CargaLisNroPiezas() {
    const Juego& juego = JuegoEnCurso();
    Lis_NroPiezas.Clear();
    const FichaForma& ficha =
        FichaDeForma(EsForma(Gbl.FormaPiezas) ? Gbl.FormaPiezas : i16{forma::RECTANGULOS});
    const i16 ultimo = juego.TieneFormas ? ficha.LadoMaximo : LADO_MAXIMO_DESLIZANTES;
    const Punto imagen = TamanoConZoom();
    i16 mejor = SIN_REJILLA;
    i32 indice = 0;
    for (i16 n = LADO_MINIMO; n <= ultimo; ++n) {
        if (juego.TieneFormas && !CabeRejilla(n, imagen, ficha)) continue;
        Lis_NroPiezas.AddItem(FilaDeRejilla(n));
        // Of two that are equally near the finer one.
        if (std::abs(n - Gbl.PiezasPorLado) > std::abs(mejor - Gbl.PiezasPorLado)) continue;
        mejor = n;
        indice = Lis_NroPiezas.ListCount() - 1;
    }
    if (mejor == SIN_REJILLA) mejor = LADO_MINIMO;
    if (mejor != Gbl.PiezasPorLado) {
        Gbl.PiezasPorLado = mejor;
        ImagenCambia();
    }
    Lis_NroPiezas.ListIndex = Lis_NroPiezas.ListCount() > 0 ? indice : -1;
    PonPunterosDeListas();
}

void File1_Click() {
    if (!Gbl.Cargando) SonidoJuego(1, sonido::TECLA);
    if (!LeeElegida()) {
        // The picture in use stays the puzzle's, and stays on show.
        if (!Gbl.Cargando) SonidoJuego(1, sonido::RECHAZO);
        return;
    }
    CalculaTamanos();
    CargaMostrarImagen();
    PermiteFormas();
    if (!Gbl.Cargando || !Gbl.ImagenValida) {
        TomaRutas();
        PonZoom(100);
        if (JuegoEnCurso().Imagen == UsoDeImagen::Necesario && !AdaptaZoom()) return;
        Gbl.ImagenValida = true;
    }
    ImagenCambia();
    Gbl.CargandoArchivo = true;
    CargaLisNroPiezas();
    Gbl.CargandoArchivo = false;
}

void File1_DblClick() {}

void Dir1_Change() {
    if (!Gbl.Cargando) SonidoJuego(1, sonido::TECLA);
    ListaCarpeta(Dir1.Path);
    File1.Selecciona(0);
}

void Drive1_Change() {
    SonidoJuego(1, sonido::TECLA);
    // A medium that went away while it was listed: the lists stay where they are.
    if (!EsCarpeta(Drive1.Drive)) {
        Drive1.Drive = LugarDe(Dir1.Path);
        return;
    }
    Dir1.Path = Drive1.Drive;
    Dir1_Change();
}

void Spin1_Change() {
    if (Gbl.Cargando) return;
    const i16 v = Spin1.Value;
    const double w = Int(Pic_FonTamReal.Width() * static_cast<double>(v) / 100);
    const double h = Int(Pic_FonTamReal.Height() * static_cast<double>(v) / 100);
    if (w > IMAGEN_ANCHO_MAX || h > IMAGEN_ALTO_MAX || w < IMAGEN_ANCHO_MIN ||
        h < IMAGEN_ALTO_MIN) {
        SonidoJuego(1, sonido::RECHAZO);
        Avisa(aviso::ZOOM_EXCESIVO);
        Spin1.Value = Gbl.ZoomImagen;
    } else {
        Gbl.ZoomImagen = v;
    }
    if (Spin1.Pulsado) return;  // counting; the rest follows when the button is let go
    ImagenCambia();
    CargaLisNroPiezas();
}

void Lis_NroPiezas_Click() {
    if (!Gbl.Cargando && !Gbl.CargandoArchivo) SonidoJuego(1, sonido::TECLA);
    if (Lis_NroPiezas.ListIndex < 0) return;
    i32 lado = 0;
    const std::string& fila =
        Lis_NroPiezas.Elementos[static_cast<std::size_t>(Lis_NroPiezas.ListIndex)].Texto;
    if (!LeeEntero(Mid(fila, 1, 2), lado)) return;
    if (lado == Gbl.PiezasPorLado || lado < LADO_MINIMO) return;
    Gbl.PiezasPorLado = Corto(lado);
    ImagenCambia();
    if (JuegoEnCurso().EligeFondo) PonTextosDeFondo();
}

void ListaCarpeta(const std::string& carpeta) {
    Dir1.Path = carpeta;
    Drive1.Drive = LugarDe(carpeta);
    VeACarpeta(carpeta);
    File1.Path = carpeta;
    File1.Relee();
    PonPunterosDeListas();
}

std::string CarpetaDelJugador() {
    return Gbl.EnMedioSoloLectura ? Gbl.CarpetaPrograma + "Imagenes/" : Gbl.CarpetaImagenes;
}

void AbreListas() {
    Drive1.Propias = {{"De Tessario", Gbl.CarpetaImagenes}};
    if (Gbl.EnMedioSoloLectura) Drive1.Propias.emplace_back("Mis imágenes", CarpetaDelJugador());
    // A puzzle that has never had a picture begins among the program's own.
    const bool ninguna = Gbl.CarpetaImagen.empty();
    const std::string guardada = ninguna ? Gbl.CarpetaImagenes : BuscaRuta(Gbl.CarpetaImagen);
    std::string carpeta = EsCarpeta(guardada) ? guardada : Gbl.CarpetaPrograma;
    if (carpeta.empty() || carpeta.back() != '/') carpeta += '/';
    ListaCarpeta(carpeta);
}

void EligePropia() {
    if (!UsaImagen()) return;
    const i32 fila = Gbl.FicheroImagen.empty() ? -1 : FilaDe(Gbl.FicheroImagen);
    File1.ListIndex = fila;
    if (fila >= 0 && LeeElegida()) {
        MuestraElegida();
        return;
    }
    const bool enUso = Gbl.ImagenValida &&
                       (Gbl.RutaImagen != " " || JuegoEnCurso().Imagen == UsoDeImagen::Necesario);
    if (enUso) {
        File1.ListIndex = -1;
        RehaceReal();
        MuestraElegida();
        return;
    }
    Gbl.ImagenValida = false;
    File1.Selecciona(0);
    if (!Gbl.ImagenValida) MuestraElegida();
}

void OlvidaImagen() {
    Gbl.ImagenLeida.clear();
    Pic_FonTamReal.PonPicture(nullptr);
    Pic_FonTamReal.Tamano(0, 0);
}

}  // namespace tessario
