// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Personal.h"

#include <algorithm>
#include <filesystem>

#include "core/Avisos.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "pieces/Composicion.h"
#include "pieces/Raster.h"
#include "platform/Plataforma.h"
#include "records/Historial.h"
#include "records/Texto.h"
#include "rules/Colores.h"
#include "rules/Juego.h"
#include "rules/Medidas.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"
#include "session/Dificultad.h"
#include "session/Montaje.h"
#include "session/Pegada.h"
#include "session/Restos.h"
#include "settings/Cambios.h"
#include "settings/Imagen.h"
#include "settings/Mandos.h"
#include "settings/Prueba.h"

namespace tessario {

namespace fs = std::filesystem;
using namespace personal;

namespace {

constexpr i32 ANCHO = 656, ALTO = 552, ALTO_FONDO = 511, ALTO_MODELOS = 505;  // pixels
constexpr i32 TEMA_PERSONAL = 2111;

// ---------------------------------------------------------------- the puzzle at the opening

// Is there a puzzle to lose? A first start has none yet, nor has a picture out of limits.
bool SinPuzzle() {
    return JuegoEnCurso().Imagen == UsoDeImagen::Necesario && !Gbl.AlEntrar.ImagenValida;
}

void TomaFoto() {
    FotoPartida& f = Gbl.AlEntrar;
    static_cast<DatosJuego&>(f) = Gbl;
    static_cast<DatosAjustes&>(f) = Gbl;
    static_cast<DatosColores&>(f) = Gbl;
    static_cast<DatosTamanos&>(f) = Gbl;
    static_cast<DatosPiezas&>(f) = Gbl;
    static_cast<DatosRutas&>(f) = Gbl;
    f.NombrePuzzle = Gbl.NombrePuzzle;
    f.MostrarMuestra = Gbl.MostrarMuestra;
    f.ImagenValida = Gbl.ImagenValida;
    Pic_FonTamModiMem.PonPicture(nullptr);
    Pic_FonTamModiMem.TamanoLibre(Pic_FonTamModi.Width(), Pic_FonTamModi.Height());
    Pic_FonTamModiMem.PonPicture(Pic_FonTamModi.Image());
}

// The settings from memory, when the copy on disk cannot be read. Those that belong to the player
// and not to a game stay as they are.
void VuelveALaFoto() {
    const FotoPartida& f = Gbl.AlEntrar;
    const Booleano sonido = Gbl.Sonido, informacion = Gbl.VentanaInformacion;
    const i16 velocidad = Gbl.VelocidadJuego;
    static_cast<DatosJuego&>(Gbl) = f;
    static_cast<DatosAjustes&>(Gbl) = f;
    static_cast<DatosColores&>(Gbl) = f;
    static_cast<DatosRutas&>(Gbl) = f;
    Gbl.NombrePuzzle = f.NombrePuzzle;
    Gbl.MostrarMuestra = f.MostrarMuestra;
    Gbl.Sonido = sonido;
    Gbl.VentanaInformacion = informacion;
    Gbl.VelocidadJuego = velocidad;
}

// Settings, pieces and picture of the puzzle as they were at the opening.
void Deshace() {
    // One that could not be written may be another puzzle's, of an earlier run.
    if (Gbl.AlEntrar.EnDisco) CargaAjustes(FicheroAlEntrar());
    if (!Gbl.AlEntrar.EnDisco || !Gbl.CargaCorrecta) VuelveALaFoto();
    static_cast<DatosPiezas&>(Gbl) = Gbl.AlEntrar;
    Gbl.AnchoImagen = Gbl.AlEntrar.AnchoImagen;
    Gbl.AltoImagen = Gbl.AlEntrar.AltoImagen;
    Gbl.ImagenValida = Gbl.AlEntrar.ImagenValida;
    Pic_FonTamModi.PonPicture(nullptr);
    Pic_FonTamModi.Tamano(Pic_FonTamModiMem.Width(), Pic_FonTamModiMem.Height());
    Pic_FonTamModi.PonPicture(Pic_FonTamModiMem.Picture());
    CalculaTamanos();
}

// ---------------------------------------------------------------- what was changed

template <class T, class D, std::size_t N>
bool Difieren(T D::*const (&campos)[N]) {
    const D& ahora = Gbl;
    const D& antes = Gbl.AlEntrar;
    return std::any_of(std::begin(campos), std::end(campos),
                       [&](T D::*c) { return ahora.*c != antes.*c; });
}

bool CambiaronColores() {
    constexpr Color DatosAjustes::*colores[] = {&DatosAjustes::ColorFondo,
                                                &DatosAjustes::ColorPiezas};
    constexpr Color DatosColores::*contraste[] = {&DatosColores::ColorContraste};
    constexpr Booleano DatosAjustes::*borde[] = {&DatosAjustes::DibujarBorde};
    constexpr i16 DatosAjustes::*factor[] = {&DatosAjustes::FactorAtraccion};
    return Difieren(colores) || Difieren(contraste) || Difieren(borde) || Difieren(factor);
}

// The file has the name that it had, and another picture.
bool CambioLaPegada() {
    return UsaImagen() && HayApartada(Gbl.AlEntrar.RutaImagen);
}

bool CambiaronParametros() {
    constexpr std::string DatosRutas::*rutas[] = {&DatosRutas::RutaImagen,
                                                  &DatosRutas::FicheroImagen};
    constexpr i16 DatosJuego::*juego[] = {&DatosJuego::FormaPiezas, &DatosJuego::PiezasPorLado,
                                          &DatosJuego::ModoJuego, &DatosJuego::TipoFondo};
    constexpr i16 DatosAjustes::*zoom[] = {&DatosAjustes::ZoomImagen};
    constexpr Booleano DatosAjustes::*giro[] = {&DatosAjustes::PermitirGiro};
    return Difieren(rutas) || Difieren(juego) || Difieren(zoom) || Difieren(giro) ||
           CambioLaPegada();
}

bool CambioElModelo() {
    return ResolviendoModelo() && Gbl.ModeloActual != Gbl.AlEntrar.ModeloActual;
}

// ---------------------------------------------------------------- leaving

// Without a valid picture, that of the chosen file is tried once more.
void AseguraImagen() {
    if (!UsaImagen() || Gbl.ImagenValida) return;
    if (File1.ListIndex < 0)
        File1.Selecciona(0);
    else
        File1_Click();
}

// The clipboard may hold something else by now: the picture is written again from what is shown. A
// record can give it any path; over a file of another name nothing is written.
void SalvaPortapapeles() {
    if (Gbl.FicheroImagen == IMAGEN_PORTAPAPELES && EsPegada(Gbl.RutaImagen))
        Sistema().GuardaImagen(Gbl.RutaImagen, Pic_FonTamReal.Dibujo());
}

void PreguntaReinicio() {
    if (CambiaronParametros() || SinPuzzle()) {
        if (!SinPuzzle()) Avisa(aviso::CAMBIO_PARAMETROS);
        if (!SinPuzzle() && !Gbl.RespuestaMensaje) return;
        Gbl.ParametrosCambiados = true;
        SalvaPortapapeles();
    } else if (CambioElModelo()) {
        Avisa(aviso::CAMBIO_MODELO);
        if (Gbl.RespuestaMensaje) Gbl.ParametrosCambiados = true;
    }
}

// The puzzle goes on: of all that was changed only what needs no restart stays.
void ConservaOpciones() {
    const Color fondo = Gbl.ColorFondo, piezas = Gbl.ColorPiezas;
    const Booleano borde = Gbl.DibujarBorde, atraccion = Gbl.AtraccionPiezas;
    const i16 factor = Gbl.FactorAtraccion;
    Deshace();
    Gbl.ColorFondo = fondo;
    Gbl.ColorPiezas = piezas;
    Gbl.DibujarBorde = borde;
    Gbl.AtraccionPiezas = atraccion;
    Gbl.FactorAtraccion = factor;
    CalculaColores();
    CalculaTamanos();
}

// The figure that the difficulty is measured on is the puzzle's own, in the colours in force.
void MideDificultad() {
    CalculaTamanos();
    if (JuegoEnCurso().TieneModos) CargaMostrarImagen();
    CalculaDificultad();
}

void CierraPersonal() {
    Sistema().Cierra(Personal);
}

// Nothing of the window outlives it, whichever way it was closed.
void Personal_Unload() {
    std::error_code e;
    fs::remove(FicheroAlEntrar(), e);
    fs::current_path(Gbl.CarpetaPrograma, e);  // a medium that was listed can be taken out
    if (Gbl.ParametrosCambiados)
        OlvidaApartada(Gbl.AlEntrar.RutaImagen);
    else
        DevuelvePegada(Gbl.AlEntrar.RutaImagen);
    Gbl.Cargando = Gbl.CargandoArchivo = Gbl.CambiandoSelector = false;
    Gbl.CambiandoModo = Gbl.RepintandoPiezas = Gbl.CambiandoForma = false;
    Gbl.AlEntrar = FotoPartida{};
    Gbl.ImagenTraida = ImagenTraida_{};
    OlvidaImagen();
    Pic_FonTamModiMem.PonPicture(nullptr);
    Pic_FonTamModiMem.Tamano(0, 0);
    PonPuntero(Personal, PUNTERO_NORMAL);
}

// ---------------------------------------------------------------- another game

void EmpiezaOtroJuego(i16 nuevo) {
    const bool sinPuzzle = SinPuzzle();
    Deshace();
    if (!sinPuzzle) GuardaAjustesJuego();
    Gbl.JuegoActual = nuevo;
    EscribeConfiguracion();
    CierraPersonal();
}

void BuleanoJuego_Change(i16 nuevo) {
    if (Gbl.CambiandoSelector) return;
    Gbl.CambiandoSelector = true;
    const i16 actual = Gbl.JuegoActual;
    Bul(nuevo).Value = true;  // one of the group is always on
    if (nuevo != actual) {
        Bul(actual).Value = false;
        SonidoJuego(1, sonido::TECLA);
        Avisa(aviso::CAMBIO_JUEGO);
        if (Gbl.RespuestaMensaje) {
            EmpiezaOtroJuego(nuevo);
        } else {
            Bul(nuevo).Value = false;
            Bul(actual).Value = true;
            SonidoJuego(1, sonido::TECLA);
        }
    }
    Gbl.CambiandoSelector = false;
}

// ---------------------------------------------------------------- opening

void SituaPersonal() {
    const Juego& juego = JuegoEnCurso();
    Personal.Tamano(ANCHO, juego.TieneModos ? ALTO_MODELOS : juego.EligeFondo ? ALTO_FONDO : ALTO);
    Personal.Left = (Gbl.AnchoPantalla - Personal.Width()) / 2;
    Personal.Top = (Gbl.AltoPantalla - Personal.Height()) / 2;
}

void LlenaPaneles() {
    const Juego& juego = JuegoEnCurso();
    AbreListas();
    if (juego.TieneModos) LlenaModelos(ModelosResueltos());
    PintaPersonal();
    if (juego.TieneModos) {
        TActSegunModo();
        return;
    }
    EligePropia();
    if (UsaImagen()) return;
    ImagenCambia();
    CargaLisNroPiezas();
}

// An event of the window: an error that no routine has dealt with ends the handler only.
template <class F>
auto Atiende(F manejador) {
    return [manejador](auto&&... valores) { Sigue([&] { manejador(valores...); }); };
}

}  // namespace

void Form_Load() {
    SituaPersonal();
    CargaTeselas();
    TomaFoto();
    Sigue([] { Gbl.AlEntrar.EnDisco = GuardaPuzzle(FicheroAlEntrar()) == 0; });
    Gbl.Cargando = true;
    Sigue([] { LlenaPaneles(); });
    Gbl.Cargando = false;
    PonPuntero(Personal, PUNTERO_NORMAL);
    Personal.Foco = JuegoEnCurso().TieneModos ? static_cast<Control*>(&Lis_Modelos)
                    : UsaImagen()             ? static_cast<Control*>(&File1)
                                              : static_cast<Control*>(&Lis_NroPiezas);
}

void Pic_BotSalir_Click() {
    Sigue([] { AseguraImagen(); });
    if (UsaImagen() && !Gbl.ImagenValida) return;
    PonPuntero(Personal, PUNTERO_RELOJ);
    SonidoJuego(1, sonido::BOTON);
    Gbl.ColoresCambiados = CambiaronColores();
    Sigue([] { PreguntaReinicio(); });
    if (!Gbl.ParametrosCambiados) Sigue([] { ConservaOpciones(); });
    // Deliberate: changed alone, the factor costs nothing; with a restart, the new puzzle's place
    // in the history.
    Gbl.FactorCambiado =
        Gbl.ParametrosCambiados && Gbl.FactorAtraccion != Gbl.AlEntrar.FactorAtraccion;
    if (Gbl.FactorCambiado) Gbl.PuzzleArchivable = false;
    if (!CreandoFiguras()) {
        Pic_Trabajo_Paint();
        Sigue([] { MideDificultad(); });
    }
    if (JuegoEnCurso().Imagen != UsoDeImagen::Necesario) Gbl.ZoomImagen = 100;
    if (!Gbl.VentanaInformacion) Pic_Sugerencia.Visible = false;
    CierraPersonal();
}

void Pic_BotAyuda_Click() {
    SonidoJuego(1, sonido::BOTON);
    Ayuda(TEMA_PERSONAL);
}

void ConectaPersonal() {
    Reinicia();
    ConectaCambios();
    for (const i16 j : JUEGOS) Bul(j).Change = [j] { Sigue([&] { BuleanoJuego_Change(j); }); };
    Pic_BotSalir.Click = Atiende(Pic_BotSalir_Click);
    Pic_BotAyuda.Click = Atiende(Pic_BotAyuda_Click);
    Personal.Load = Atiende(Form_Load);
    Personal.Activate = Atiende(ImportaImagenTraida);
    Personal.Unload = Atiende(Personal_Unload);
    // Closing the window from outside is leaving it by its button.
    Personal.QueryUnload = [](bool& Cancela) {
        Cancela = true;
        Sigue([] { Pic_BotSalir_Click(); });
    };
}

}  // namespace tessario
