// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Configuracion.h"

#include <algorithm>
#include <string_view>

#include "core/Avisos.h"
#include "core/Cadenas.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Alcance.h"
#include "panel/Barajado.h"
#include "panel/Colocadas.h"
#include "records/Archivo.h"
#include "records/Texto.h"
#include "rules/Colores.h"
#include "rules/Despacho.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"
#include "session/Ampliacion.h"
#include "session/Apertura.h"
#include "session/CopiaSeguridad.h"
#include "session/Montaje.h"

namespace tessario {

namespace {

constexpr i32 ANCHO_GLOBAL = 125;  // characters of the global file's only line

constexpr Columnas COL_JUEGO{1, 2}, COL_SONIDO{3, 2}, COL_VELOCIDAD{5, 3}, COL_VENTANA{8, 2};

std::string FicheroGlobal() {
    return Gbl.CarpetaPrograma + "TsR33.ini";
}

// ---------------------------------------------------------------- errors of a guarded open

// What the player is told of a file that could not be opened. `ausente` is for a missing file.
void AvisaApertura(i16 numero, const Aviso& ausente, const Aviso& otro, std::string_view fichero) {
    Gbl.ErrorApertura = numero;
    if (numero == ERROR_FICHERO)
        Avisa(ausente, {TextoDeRuta(fichero)});
    else if (numero != ERROR_DESBORDE)
        Avisa(otro, {std::to_string(numero)});
}

// ---------------------------------------------------------------- global file

void LeeLineaGlobal(const std::string& bytes) {
    const std::vector<std::string> lineas = Lineas(bytes);
    if (lineas.empty()) return;
    const std::string linea = DeComillas(lineas[0]);
    Sigue([&] { Gbl.JuegoActual = Corto(NumeroDeCampo(DeColumnas(linea, COL_JUEGO))); });
    Sigue([&] { Gbl.Sonido = LogicoDeCampo(DeColumnas(linea, COL_SONIDO)); });
    Sigue([&] { Gbl.VelocidadJuego = Corto(NumeroDeCampo(DeColumnas(linea, COL_VELOCIDAD))); });
    Sigue([&] { Gbl.VentanaInformacion = LogicoDeCampo(DeColumnas(linea, COL_VENTANA)); });
}

// ---------------------------------------------------------------- defaults of a game

// A record that names a picture that is gone or cannot be read. Laying a record, only the picture
// gives these numbers.
void AvisaImagenPerdida(i16 numero) {
    for (const i16 deImagen : {ERROR_FICHERO, ERROR_ACCESO, ERROR_IMAGEN})
        if (numero == deImagen)
            Avisa(aviso::IMAGEN_PERDIDA, {TextoDeRuta(NombreDeRuta(Gbl.RutaImagen))});
}

void AjustesPorDefecto() {
    Gbl.NombreJugador = "MiNombre";
    Gbl.ColorFondo = paleta::FONDO_MESA;
    Gbl.ColorPiezas = paleta::PIEZAS_MESA;
    Gbl.ColorContraste = paleta::CONTRASTE_MESA;
    CalculaColores();
    Gbl.MostrarMuestra = JuegoEnCurso().MuestraPorDefecto;
    Gbl.ModeloActual = 1;
    Gbl.ZoomImagen = 100;
    Gbl.PiezasPorLado = 5;
    Gbl.FormaPiezas = 0;
    Gbl.NumPiezas = JuegoEnCurso().PiezasPorDefecto;
    Llama([] { ReiniciaPartida(); });
    Gbl.PuzzleArchivable = false;  // a puzzle dealt by default never enters the history
    Gbl.ModoJuego = MODO_CREAR;
    Gbl.TipoFondo = FONDO_NUMEROS;
    Gbl.FactorAtraccion = 20;
    Gbl.PermitirGiro = Gbl.DibujarBorde = Gbl.AtraccionPiezas = true;
    Gbl.PiezasPorCelda = 1;
}

// A game made from a picture has none yet, nor a puzzle: the player sets it up in the window. The
// others are dealt at once; such a puzzle never enters the history, though its deal says it may.
void MesaPorDefecto() {
    if (JuegoEnCurso().Imagen == UsoDeImagen::Necesario) {
        Gbl.UnidadImagen = Left(Gbl.CarpetaPrograma, 2);
        Gbl.CarpetaImagen = Gbl.CarpetaImagenes;
        Gbl.FicheroImagen.clear();
        Gbl.RutaImagen = " ";
        Gbl.ImagenValida = false;
        Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
        Gbl.OrdenPiezas.Redimensiona(Gbl.NumPiezas);
        VaciaImagen();
        Llama([] { AbrePersonal(); });
        return;
    }
    // A path that leads nowhere, kept, would bring the defaults again at every start.
    Gbl.RutaImagen = " ";
    Gbl.FicheroImagen.clear();
    Llama([] { PreparaJuego(true); });
    Llama([] { ColocaPiezas(1); });
    Gbl.ImagenValida = true;
    Gbl.PuzzleArchivable = false;
}

}  // namespace

std::string FicheroDelJuego() {
    return Gbl.CarpetaPrograma + "TsR" + Ceros(Gbl.JuegoActual, 2) + "33.ini";
}

void LeeConfiguracion() {
    Gbl.ErrorApertura = 0;
    std::string bytes;
    if (const i16 error = LeeFichero(FicheroGlobal(), bytes))
        AvisaApertura(error, aviso::SIN_CONFIGURACION, aviso::ERROR_CONFIGURACION, {});
    else
        LeeLineaGlobal(bytes);
    if (!EsJuego(Gbl.JuegoActual)) Gbl.JuegoActual = JuegoMoviles;
    // Deliberate: a VelocidadJuego outside 0 to 100 stays in force for this run.
    BorraError();
    if (Gbl.ErrorApertura != 0) EscribeConfiguracion();
}

void EscribeConfiguracion() {
    std::string linea(ANCHO_GLOBAL, ' ');
    PonColumnas(linea, COL_JUEGO, Gbl.JuegoActual);
    PonColumnas(linea, COL_SONIDO, TextoLogico(Gbl.Sonido));
    PonColumnas(linea, COL_VELOCIDAD, Gbl.VelocidadJuego);
    PonColumnas(linea, COL_VENTANA, TextoLogico(Gbl.VentanaInformacion));
    AseguraCarpetaDe(FicheroGlobal());
    EscribeFichero(FicheroGlobal(), Entrecomilla(linea) + "\r\n");
}

void LeeAjustesJuego(const std::string& Fichero) {
    const i16 juego = Gbl.JuegoActual;
    const bool propio = Fichero == FicheroDelJuego();
    Gbl.ErrorApertura = 0;
    BorraError();
    // A puzzle that turns out to be damaged leaves a new deal in the place of the game in play; at
    // a change of game that has been saved already.
    const std::string anterior = propio ? std::string() : RecordParaCopia();
    std::string bytes;
    // Kept here: a record can open the settings, and those another game's file.
    const i16 error = LeeFichero(Fichero, bytes);
    if (error != 0)
        AvisaApertura(error, aviso::SIN_AJUSTES, aviso::ERROR_AJUSTES, Fichero);
    else
        Sigue([&] { LeePuzzle(bytes); });
    Gbl.MovidoSinCopia = false;  // what lies on the table now is in a file, or about to be
    if (error == 0 && ErrorPendiente() == 0) {
        if (!Gbl.SoloLeerAjustes) Sigue([] { TraeLoInalcanzable(); });
        return;
    }

    if (error == 0) AvisaImagenPerdida(ErrorPendiente());
    // A damaged file of a game is replaced by that game's defaults, whatever game it names.
    if (propio) Gbl.JuegoActual = juego;
    GuardaCopia(anterior);
    BorraError();
    AjustesPorDefecto();
    MesaPorDefecto();
    GuardaAjustesJuego();
    BorraError();
}

void GuardaAjustesJuego() {
    AseguraCarpetaDe(FicheroDelJuego());
    // A game that its own file does not take is not lost.
    if (GuardaPuzzle(FicheroDelJuego()) != 0) GuardaCopia(RecordParaCopia());
}

}  // namespace tessario
