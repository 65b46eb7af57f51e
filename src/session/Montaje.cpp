// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Montaje.h"

#include <filesystem>
#include <memory>
#include <vector>

#include "core/Avisos.h"
#include "core/Cadenas.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Colocadas.h"
#include "panel/Grabadora.h"
#include "pieces/Formas.h"
#include "pieces/Raster.h"
#include "platform/Plataforma.h"
#include "records/Archivo.h"
#include "records/Registro.h"
#include "records/Texto.h"
#include "rules/Catalogo.h"
#include "rules/Colores.h"
#include "rules/Despacho.h"
#include "rules/Juego.h"
#include "rules/Medidas.h"
#include "rules/PuzzBas.h"
#include "session/Ampliacion.h"
#include "session/Apertura.h"
#include "session/Pegada.h"
#include "session/Reparacion.h"

namespace tessario {

namespace {

constexpr const char* FIN = "\r\n";

// Lines of the file, from 0.
enum Linea { LIN_UNIDAD, LIN_CARPETA, LIN_FICHERO, LIN_RUTA, LIN_REGISTRO, LIN_PIEZAS, LIN_MOVIM };

// ---------------------------------------------------------------- the picture

bool SinFichero() {
    return Gbl.RutaImagen == " ";
}

bool Existe(const std::string& ruta) {
    std::error_code e;
    return std::filesystem::exists(ruta, e);
}

// The image file of the record: at its path, or, when it is gone from there, by its name among the
// program's pictures. The record keeps its own path: the file may come back.
std::string RutaDeImagen() {
    std::string ruta = BuscaRuta(Gbl.RutaImagen);
    if (Existe(ruta)) return ruta;
    const std::string nombre = NombreDeRuta(Gbl.RutaImagen);
    const std::string hallada = BuscaRuta(Gbl.CarpetaImagenes + nombre);
    return !nombre.empty() && Existe(hallada) ? hallada : ruta;
}

// A record that names no folder, as those that come with the program, gets the one in which its
// picture was found: there is no other to which that could come back.
void TomaCarpeta(const std::string& hallada) {
    if (!Gbl.CarpetaImagen.empty()) return;
    if (hallada != BuscaRuta(Gbl.CarpetaImagenes + Gbl.RutaImagen)) return;
    Gbl.CarpetaImagen = Gbl.CarpetaImagenes;
    Gbl.RutaImagen = hallada;
}

void CargaImagenReal() {
    DevuelvePegada(Gbl.RutaImagen);
    auto mapa = std::make_shared<Mapa>();
    const std::string ruta = RutaDeImagen();
    const i32 error = Sistema().CargaImagen(ruta, *mapa);
    if (error != 0) throw ErrorEjecucion(Corto(error));
    TomaCarpeta(ruta);
    Pic_FonTamReal.Tamano(mapa->Ancho, mapa->Alto);
    Pic_FonTamReal.PonPicture(mapa);
}

void VaciaReal() {
    Pic_FonTamReal.PonPicture(nullptr);
    Pic_FonTamReal.Tamano(0, 0);
}

bool DentroDeLimites(const Punto& t) {
    return t.x >= IMAGEN_ANCHO_MIN && t.x <= IMAGEN_ANCHO_MAX && t.y >= IMAGEN_ALTO_MIN &&
           t.y <= IMAGEN_ALTO_MAX;
}

void RechazaImagen(const Punto& t) {
    SonidoJuego(1, sonido::RECHAZO);
    Avisa(aviso::IMAGEN_NO_VALIDA, {std::to_string(t.x), std::to_string(t.y)});
    VaciaImagen();
    Gbl.ZoomImagen = 100;
    Gbl.ImagenValida = false;
    Llama([] { AbrePersonal(); });
}

// ---------------------------------------------------------------- the table

// Modo 0 shows the table being laid piece by piece, 1 all at once.
void MontaMesa(i16 modo) {
    Gbl.ImagenValida = true;
    Llama([] { PreparaJuego(false); });
    ReparaTerminado();
    if (Gbl.ColoresCambiados) return;
    Llama([modo] { ColocaPiezas(modo); });
    if (Gbl.PuzzleTerminado) Llama([] { EntraEnCompleto(); });
}

// The picture, then the table, of a game that has one.
void MontaConImagen() {
    Pic_FonTamModi.PonPicture(nullptr);
    VaciaReal();
    bool cargada = true;
    if (!SinFichero()) {
        cargada = false;
        Sigue([&] {
            CargaImagenReal();
            cargada = true;
        });
    }
    const Punto tamano = TamanoConZoom();
    const bool cabe = JuegoEnCurso().Imagen != UsoDeImagen::Necesario || DentroDeLimites(tamano);
    bool hecha = true;
    if (cabe) {
        hecha = false;
        Sigue([&] {
            AmpliaImagen();
            hecha = true;
        });
    }
    VaciaReal();
    if (!cargada || !hecha) return;
    if (cabe)
        MontaMesa(0);
    else
        RechazaImagen(tamano);
}

void MontaSinImagen() {
    Gbl.MostrarMuestra = false;
    Gbl.ZoomImagen = 100;
    bool hecha = false;
    Sigue([&] {
        TamanoRazonable(Pic_FonTamModi, Gbl.AnchoPuzzle + 2.0 * Gbl.MargenX,
                        Gbl.AltoPuzzle + 2.0 * Gbl.MargenY);
        Pic_FonTamModi.PonPicture(nullptr);
        hecha = true;
    });
    if (!hecha) return;
    if (ResolviendoModelo()) Llama([] { TPintaFigura(Pic_FonTamModi); });
    MontaMesa(1);
}

// ---------------------------------------------------------------- another screen

// The picture of the puzzle again, from the zoomed one, with the margins that it has now. Its file
// may have gone since. x and y: the margins that it had.
void CambiaMargenes(i32 x, i32 y) {
    const i32 w = Pic_FonTamModi.Width() - x, h = Pic_FonTamModi.Height() - y;
    if (w <= 0 || h <= 0 || Gbl.AnchoImagen <= 0 || Gbl.AltoImagen <= 0) return;
    Pic_FonTamReal.TamanoLimpio(Gbl.AnchoImagen, Gbl.AltoImagen);
    StretchBlt(Pic_FonTamReal, 0, 0, Gbl.AnchoImagen, Gbl.AltoImagen, Pic_FonTamModi, x, y, w, h,
               SRCCOPY);
    Pic_FonTamReal.PonPicture(Pic_FonTamReal.Image());
    AmpliaImagen();
    VaciaReal();
}

// ---------------------------------------------------------------- reading

void LeeRutas(const std::vector<std::string>& lineas) {
    std::string* const destinos[] = {&Gbl.UnidadImagen, &Gbl.CarpetaImagen, &Gbl.FicheroImagen,
                                     &Gbl.RutaImagen};
    for (std::size_t i = LIN_UNIDAD; i <= LIN_RUTA; ++i)
        if (i < lineas.size())
            *destinos[i] = DeComillas(lineas[i]);
        else
            PonErrorPendiente(ERROR_FIN_FICHERO);
}

// The content of a line; a missing one is an error of its own and reads as empty.
std::string Contenido(const std::vector<std::string>& lineas, std::size_t i) {
    if (i < lineas.size()) return DeComillas(lineas[i]);
    PonErrorPendiente(ERROR_FIN_FICHERO);
    return {};
}

// ---------------------------------------------------------------- does the state hold together?

bool EsPermutacion(const Arreglo<i16>& orden, i32 cuantos) {
    if (orden.Superior() != cuantos) return false;
    std::vector<bool> visto(static_cast<std::size_t>(cuantos + 1));
    for (i32 i = 1; i <= cuantos; ++i) {
        const i16 p = orden[i];
        if (p < 1 || p > cuantos || visto[static_cast<std::size_t>(p)]) return false;
        visto[static_cast<std::size_t>(p)] = true;
    }
    return true;
}

// The counts agree with the settings, the stacking order is a permutation.
bool EstadoCoherente() {
    const Juego& juego = JuegoEnCurso();
    bool coherente = false;
    Sigue([&] {
        coherente = EsJuego(juego.Numero) && EsForma(Gbl.FormaPiezas) && juego.LadoPosible() &&
                    Gbl.NumPiezas == juego.PiezasQueTocan() &&
                    Gbl.Piezas.Superior() == Gbl.NumPiezas &&
                    EsPermutacion(Gbl.OrdenPiezas, Gbl.NumPiezas);
    });
    return coherente;
}

bool LeeEstado(const std::vector<std::string>& lineas) {
    LeeRutas(lineas);
    LeeRegistro(Contenido(lineas, LIN_REGISTRO));
    LeePiezas(Contenido(lineas, LIN_PIEZAS));
    LeeMovimientos(Contenido(lineas, LIN_MOVIM));
    const i16 leidas = Gbl.NumPiezas;
    Sigue([] { Gbl.PiezasPorCelda = PiezasDeCelda(Gbl.FormaPiezas); });
    CalculaColores();
    ReparaAjustes();
    CalculaTamanos();
    JuegoEnCurso().AdaptaTablero();
    Sigue([] { ReparaPiezas(); });
    return Gbl.NumPiezas == leidas && EstadoCoherente();
}

}  // namespace

std::string EscribePuzzle() {
    std::string bytes;
    for (const std::string& linea :
         {Gbl.UnidadImagen, Gbl.CarpetaImagen, Gbl.FicheroImagen, Gbl.RutaImagen, EscribeRegistro(),
          EscribePiezas(), EscribeMovimientos()})
        bytes += Entrecomilla(linea) + FIN;
    return bytes;
}

void LeePuzzle(const std::string& bytes) {
    if (!LeeEstado(Lineas(bytes))) {
        // Nothing is built on a record that contradicts itself.
        PonErrorPendiente(ERROR_INDICE);
        return;
    }
    if (Gbl.SoloLeerAjustes) return;
    if (JuegoEnCurso().Imagen == UsoDeImagen::Ninguno)
        MontaSinImagen();
    else
        MontaConImagen();
    JuegoEnCurso().TrasMontar();
}

void RehazMesa() {
    const i32 x = Gbl.MargenX, y = Gbl.MargenY;
    CalculaTamanos();
    JuegoEnCurso().AdaptaTablero();
    if (JuegoEnCurso().Imagen == UsoDeImagen::Ninguno) {
        MontaSinImagen();
        return;
    }
    if (Gbl.MargenX != x || Gbl.MargenY != y) Sigue([&] { CambiaMargenes(x, y); });
    MontaMesa(1);
}

i16 GuardaPuzzle(const std::string& Ruta) {
    return EscribeFichero(Ruta, EscribePuzzle());
}

void CargaPuzzle(const std::string& Ruta) {
    Gbl.CargaCorrecta = false;
    std::string bytes;
    if (LeeFichero(Ruta, bytes) != 0) return;
    LeePuzzle(bytes);
    Gbl.CargaCorrecta = true;
}

void CargaAjustes(const std::string& Ruta) {
    // What a record holds beside the settings. In the file some of it is cut to its columns.
    const DatosPiezas piezas = Gbl;
    const DatosGrabadora grabadora = Gbl;
    const DatosTamanos tamanos = Gbl;
    const i32 segundos = Gbl.SegundosJuego;
    const float dificultad = Gbl.Dificultad;
    const Booleano terminado = Gbl.PuzzleTerminado, archivable = Gbl.PuzzleArchivable;
    const i16 pendiente = ErrorPendiente();

    BorraError();
    Gbl.SoloLeerAjustes = true;
    Sigue([&] { CargaPuzzle(Ruta); });
    Gbl.SoloLeerAjustes = false;
    if (ErrorPendiente() != 0) Gbl.CargaCorrecta = false;
    PonErrorPendiente(pendiente);

    static_cast<DatosPiezas&>(Gbl) = piezas;
    static_cast<DatosGrabadora&>(Gbl) = grabadora;
    static_cast<DatosTamanos&>(Gbl) = tamanos;
    Gbl.SegundosJuego = segundos;
    Gbl.Dificultad = dificultad;
    Gbl.PuzzleTerminado = terminado;
    Gbl.PuzzleArchivable = archivable;
    CalculaTamanos();
}

}  // namespace tessario
