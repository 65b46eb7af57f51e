// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/Arranque.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "core/Avisos.h"
#include "core/Cadenas.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "panel/Botonera.h"
#include "panel/Cronometro.h"
#include "panel/Sugerencias.h"
#include "platform/Plataforma.h"
#include "records/Archivo.h"
#include "records/Surtido.h"
#include "records/Texto.h"
#include "rules/Catalogo.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"
#include "session/Restos.h"
#include "settings/Imagen.h"
#include "settings/Mandos.h"
#include "settings/Personal.h"
#include "start/Juegos.h"
#include "table/Mesa.h"
#include "table/Ordenes.h"
#include "table/Resolucion.h"
#include "windows/Cargua.h"
#include "windows/Estadis.h"
#include "windows/Historic.h"

namespace tessario {

namespace {

constexpr i32 ANCHO_MINIMO = 800, ALTO_MINIMO = 600;  // display mode offered below that width

constexpr const char* FICHERO_SONDA = "CSCD.WRK";
// The models as they came with the program, beside the player's own file.
constexpr const char* FICHERO_SURTIDO = "SURTIDO.TPU";
constexpr const char* TRASLADO_MODELOS = "Archivo/MODELOS.TPU";
constexpr const char* CARPETA_TRABAJO = "Temp/Tsb/";

// What moves to the working folder. Models lie in the folder of saved puzzles.
struct FicheroTrasladado {
    const char* subcarpeta;
    const char* nombre;
};
constexpr FicheroTrasladado TRASLADO[] = {{"", "TSR33.INI"},   {"", "TSR2133.INI"},
                                          {"", "TSR2233.INI"}, {"", "TSR2333.INI"},
                                          {"", "TESSA33.HIS"}, {"Archivo/", "MODELOS.TPU"}};

constexpr const char* TEXTOS_OPCIONES[] = {"Guardar este puzzle", "Cargar un puzzle",
                                           "Borrar un puzzle", "Guardar como modelo"};

// ---------------------------------------------------------------- folders

std::string ConBarra(std::string carpeta) {
    if (carpeta.empty() || carpeta.back() != '/') carpeta += '/';
    return carpeta;
}

void VeACarpeta(const std::string& carpeta) {
    std::error_code e;
    std::filesystem::current_path(carpeta, e);
}

// Can a file be made there? It is gone again afterwards. What is no file has that name by somebody
// else's hand, and stays.
bool SePuedeEscribir(const std::string& carpeta) {
    const std::string sonda = carpeta + FICHERO_SONDA;
    std::error_code e;
    const auto hay = std::filesystem::symlink_status(sonda, e);
    if (std::filesystem::exists(hay) && !std::filesystem::is_regular_file(hay)) return false;
    if (!std::ofstream(sonda)) return false;
    std::filesystem::remove(sonda, e);
    return true;
}

void CreaCarpeta(const std::string& carpeta) {
    std::error_code e;
    std::filesystem::create_directories(carpeta, e);
}

void CopiaFichero(const std::string& origen, const std::string& destino) {
    std::string bytes;
    if (LeeFichero(BuscaRuta(origen), bytes) == 0) EscribeFichero(destino, bytes);
}

void TrasladaAjustes(const std::string& medio) {
    // The first one tells that all have moved, so it goes last.
    for (auto f = std::rbegin(TRASLADO); f != std::rend(TRASLADO); ++f) {
        const std::string nombre = std::string(f->subcarpeta) + f->nombre;
        CopiaFichero(medio + nombre, Gbl.CarpetaPrograma + nombre);
    }
}

// ---------------------------------------------------------------- display

// Offers to change the mode of a narrow display. False when the player would rather leave.
bool CompruebaPantalla() {
    Plataforma& s = Sistema();
    // Deliberate: the message speaks of height and colours too, but only the width is asked for.
    if (s.AnchoPantalla() >= ANCHO_MINIMO) return true;
    Avisa(aviso::RESOLUCION, {Derecha(s.AnchoPantalla(), 3), Derecha(s.AltoPantalla(), 3)});
    if (!Gbl.RespuestaMensaje) return false;
    if (s.PruebaModoPantalla(ANCHO_MINIMO, ALTO_MINIMO) != 0) {
        Avisa(aviso::MODO_NO_CAMBIA);
        return true;
    }
    const i32 resultado = s.CambiaModoPantalla(ANCHO_MINIMO, ALTO_MINIMO);
    if (resultado == 0) {
        Avisa(aviso::MODO_CAMBIADO);
        Gbl.AnchoPantalla = ANCHO_MINIMO;
        Gbl.AltoPantalla = ALTO_MINIMO;
    } else {
        Avisa(resultado == 1 ? aviso::MODO_REINICIO : aviso::MODO_FALLIDO);
    }
    return true;
}

// ---------------------------------------------------------------- constants

template <class T, class Destino>
void Copia(const T& origen, Destino& destino) {
    i32 i = Destino::Primero();
    for (const auto& v : origen) destino[i++] = v;
}

void LlenaTextos() {
    Copia(TEXTOS_OPCIONES, Gbl.TextosOpciones);
    for (i16 f = 0; f < FORMAS_DE_PIEZA; ++f) Gbl.NombresFormas[f] = FichaDeForma(f).Nombre;
    for (i16 p = 1; p <= PIEZAS_TANGRAM; ++p) {
        Gbl.NombresTangram[p] = FichaDeTangram(p).Nombre;
        Gbl.TGemela[p] = FichaDeTangram(p).Gemela;
    }
    Gbl.LetrasPiezas = "ABCDEFGHIJKLMNÑOPQRSTUVW";
}

void CreaRegiones() {
    for (Region* r : {&Gbl.RegionAux1, &Gbl.RegionAux2, &Gbl.RegionAux3, &Gbl.RegionAux4,
                      &Gbl.RegionAux5, &Gbl.RegionAux6})
        *r = CreateRectRgn(0, 0, 0, 0);
}

// ---------------------------------------------------------------- parts of Main

void PreparaVentanas() {
    ReiniciaVentanas();
    ReiniciaSuperficies();
    ConectaMensajes();
    ConectaCareta();
}

void PreparaRutas() {
    Gbl.FinLinea = "\r\n";
    Gbl.CarpetaPrograma = ConBarra(Sistema().CarpetaDelPrograma());
    Gbl.CarpetaArchivo = BuscaRuta(Gbl.CarpetaPrograma + "Archivo/");
    Gbl.CarpetaImagenes = BuscaRuta(Gbl.CarpetaPrograma + "Imagenes/");
    VeACarpeta(Gbl.CarpetaPrograma);
}

void CargaVentanas() {
    ConectaEstadis();
    ConectaHistoric();
    ConectaCargua();
    VentanasOrdenes.Estadis = &Estadis;
    VentanasOrdenes.Historic = &Historic;
    VentanasOrdenes.Cargua = &Cargua;
}

void CargaMesa() {
    ConectaMesa();
    CargaVentanas();
    SalidaDelPrograma = TerminaPrograma;
    ConectaPersonal();
    VentanasOrdenes.Personal = &Personal;
    if (Mesa.Load) Mesa.Load();
    Gbl.ResolviendoPuzzle = false;
}

void SituaMesa() {
    Mesa.Left = Mesa.Top = 0;
    Mesa.PantallaCompleta = true;
    DimensionaMesa();
}

void AbreMesa() {
    PonPuntero(Mesa, PUNTERO_NORMAL);
    Sistema().Muestra(Mesa);
    Avisa(aviso::BIENVENIDA);
}

}  // namespace

std::string CarpetaSistema() {
    return ConBarra(Sistema().CarpetaDelSistema());
}

void PreparaCarpetas() {
    VeACarpeta(Gbl.CarpetaPrograma);
    Gbl.EnMedioSoloLectura = false;
    BorraError();
    if (SePuedeEscribir(Gbl.CarpetaPrograma)) {
        ActualizaSurtido(Gbl.CarpetaArchivo + FICHERO_SURTIDO, Gbl.CarpetaArchivo);
        return;
    }

    Gbl.EnMedioSoloLectura = true;
    const std::string medio = Gbl.CarpetaPrograma;
    Gbl.CarpetaPrograma = CarpetaSistema() + CARPETA_TRABAJO;
    Gbl.CarpetaArchivo = Gbl.CarpetaPrograma + "Archivo/";
    CreaCarpeta(Gbl.CarpetaPrograma);
    CreaCarpeta(Gbl.CarpetaArchivo);
    CreaCarpeta(CarpetaDelJugador());
    VeACarpeta(Gbl.CarpetaPrograma);
    // A second start finds the settings of the first and copies nothing over them.
    std::string bytes;
    if (LeeFichero(Gbl.CarpetaPrograma + TRASLADO[0].nombre, bytes) != 0) TrasladaAjustes(medio);
    ActualizaSurtido(medio + TRASLADO_MODELOS, Gbl.CarpetaArchivo);
}

void Inicializa() {
    Sigue([] { Gbl.AnchoPantalla = Corto(Sistema().AnchoPantalla()); });
    Sigue([] { Gbl.AltoPantalla = Corto(Sistema().AltoPantalla()); });
    CreaRegiones();
    LlenaTextos();
    CargaTeselas();
    CargaSugerencias();
    Gbl.HoraUltimaSugerencia = Sistema().timeGetTime() - ESPERA_SUGERENCIA;
}

bool Main() {
    InstalaJuegos();
    PreparaVentanas();
    Sistema().Muestra(Careta);
    PreparaRutas();
    Sigue([] { PreparaCarpetas(); });
    Sigue([] {
        RecogeRestos(
            {Gbl.CarpetaPrograma, Gbl.CarpetaArchivo, Gbl.CarpetaImagenes, CarpetaDelJugador()});
    });
    bool sigue = true;
    Sigue([&] { sigue = CompruebaPantalla(); });
    if (!sigue) return false;
    Sigue([] { Randomize(Sistema().Timer()); });
    Sigue([] { CargaMesa(); });
    Sigue([] { Inicializa(); });
    Sigue([] { SituaMesa(); });
    Sigue([] { CambiaCrono(CRONO_MARCHA); });
    Sistema().Cierra(Careta);
    Sigue([] { LeeConfiguracion(); });
    Sigue([] { CargaBotonera(); });
    Sigue([] { LeeAjustesJuego(FicheroDelJuego()); });
    Sigue([] { AbreMesa(); });
    return true;
}

void TerminaPrograma() {
    Sigue([] { EscribeConfiguracion(); });
    Sigue([] { GuardaAjustesJuego(); });
    Sistema().Cierra(Mesa);
    Sistema().Termina();
}

}  // namespace tessario
