// SPDX-License-Identifier: GPL-3.0-or-later
// PuzzGbl: the one block of game state, and the dictionary of the game's words. Everything that a
// game in progress is, stands here; windows and routines read and write it directly, as Gbl.Name.
// `Gbl = Bloque{}` is a program that has just been started.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/Numeros.h"
#include "core/Paleta.h"
#include "platform/Region.h"
#include "platform/Superficie.h"
#include "platform/Tipos.h"

namespace tessario {

inline constexpr i16 JuegoMoviles = 21;      // movable-piece jigsaw
inline constexpr i16 JuegoDeslizantes = 22;  // sliding-piece puzzle
inline constexpr i16 JuegoTangram = 23;      // Tangram

inline constexpr i16 MODO_CREAR = 1;     // ModoJuego: free designs
inline constexpr i16 MODO_RESOLVER = 2;  // ModoJuego: models to cover

inline constexpr i16 FONDO_IMAGEN = 1;  // TipoFondo of the sliding game
inline constexpr i16 FONDO_NUMEROS = 2;
inline constexpr i16 FONDO_LETRAS = 3;

// One piece. Pixels on the table; Giro in quarter turns (game 21) or eighths (game 23).
struct Pieza {
    i16 X = 0, Y = 0;                  // current left and top of the box (game 21: of the cell)
    i16 Giro = 0;                      // current rotation, clockwise
    i16 Volteo = 0;                    // Tangram: 1 when the parallelogram is turned over
    i16 XBien = 0, YBien = 0;          // where it belongs
    i16 GiroBien = 0, VolteoBien = 0;  // how it belongs
    friend bool operator==(const Pieza&, const Pieza&) = default;
};

// One entry of the recorder's log: a piece before and after a move.
struct Movimiento {
    i16 Pieza = 0;
    i16 XAntes = 0, YAntes = 0, GiroAntes = 0, VolteoAntes = 0;
    i16 XDespues = 0, YDespues = 0, GiroDespues = 0, VolteoDespues = 0;
    friend bool operator==(const Movimiento&, const Movimiento&) = default;
};

// One entry of the history of solved puzzles, in the order of its items in the file.
struct RegistroHistorico {
    std::string Fecha, Hora;                        // of solving; 10 and 8 characters
    i16 Juego = 0;                                  // 21, 22 or 23
    std::string Fichero, Ubicacion;                 // of the picture: the file system's own bytes
    std::string Modelo;                             // name of the Tangram's model
    i16 AnchoOriginal = 0, AltoOriginal = 0;        // picture at 100 percent, pixels
    i16 Zoom = 0;                                   // percent
    i16 AnchoFinal = 0, AltoFinal = 0;              // puzzle on the table, pixels
    i16 Lado = 0, Clase = 0, Forma = 0, Total = 0;  // pieces a side, a cell, their shape, in all
    i16 AnchoPiezas = 0, AltoPiezas = 0;            // one cell, pixels
    float Nivel = 0;                                // difficulty
    i32 Segundos = 0;                               // time played
    i16 Atraccion = 0;                              // percent
    i16 Fondo = 0;        // of the sliding game: 1 image, 2 numbers, 3 letters
    i16 Reservado = 0;    // read and shown nowhere
    std::string Jugador;  // 9 characters
};

// ---------------------------------------------------------------- which game, how many pieces
struct DatosJuego {
    i16 JuegoActual = JuegoMoviles;  // 21, 22 or 23
    i16 NumPiezas = 25;              // pieces of this puzzle; follows from the other fields
    i16 PiezasPorLado = 5;           // rows and columns of the grid
    i16 PiezasPorCelda = 1;          // 1, 2 or 4; follows from FormaPiezas
    i16 FormaPiezas = 0;             // 0 to 7, index into NombresFormas
    i16 ModoJuego = MODO_CREAR;      // Tangram: 1 create, 2 solve
    i16 TipoFondo = FONDO_NUMEROS;   // sliding game: 1 image, 2 numbers, 3 letters
    i16 ModeloActual = 1;            // record number in the model file, from 1
};

// ---------------------------------------------------------------- what the player has chosen
struct DatosAjustes {
    Booleano Sonido;                  // sounds are played
    Booleano VentanaInformacion;      // the hint panel is enabled
    i16 VelocidadJuego = 50;          // 0 to 100; length of all pacing delays
    Booleano PermitirGiro = true;     // pieces may be rotated
    Booleano DibujarBorde = true;     // pieces have an outline
    Booleano AtraccionPiezas = true;  // Tangram pieces attract each other
    i16 FactorAtraccion = 20;         // percent, 0 to 100
    i16 ZoomImagen = 100;             // percent of the image's stored size; 100 in games 22, 23
    std::string NombreJugador = "MiNombre";   // at most 9 characters, without the padding blanks
    Color ColorFondo = paleta::FONDO_MESA;    // of the table
    Color ColorPiezas = paleta::PIEZAS_MESA;  // of pieces without a picture
};

// ---------------------------------------------------------------- colours that follow from those
struct DatosColores {
    Color ColorContraste = paleta::CONTRASTE_MESA;      // text and figures on the table
    Color ColorFondoClaro = 0, ColorFondoOscuro = 0;    // ColorFondo + 40 and - 40 a channel
    Color ColorPiezasClaro = 0, ColorPiezasOscuro = 0;  // the same of ColorPiezas
};

// ---------------------------------------------------------------- sizes and placement, pixels
struct DatosTamanos {
    i16 AnchoPantalla = 0, AltoPantalla = 0;  // screen; 0 until measured
    i32 AnchoImagen = 0, AltoImagen = 0;      // image at 100 percent
    i16 AnchoPuzzle = 0, AltoPuzzle = 0;      // area that the puzzle occupies
    i16 AnchoCelda = 0, AltoCelda = 0;        // one cell of the grid
    i16 AnchoPieza = 0, AltoPieza = 0;        // box of the piece last measured: an answer register
    i16 MargenX = 0, MargenY = 0;             // from the table's origin to the puzzle
    i16 PasoOrdenar = 0;                      // step of the side arrangement
    i16 PiezasColocadas = 0;                  // pieces that stand in their place
    i16 HuecoX = 0, HuecoY = 0;               // sliding game: the hole
};

// ---------------------------------------------------------------- the piece table
struct DatosPiezas {
    Arreglo<Pieza> Piezas;     // 1 to NumPiezas, by piece number; element 0 unused
    Arreglo<i16> OrdenPiezas;  // stacking order: index 1 is the piece on top
    Pieza PiezaAux;            // scratch copy of the piece being processed
    i16 PiezaActual = 0;       // piece in hand or under the pointer; 0 none
};

// ---------------------------------------------------------------- recorder
struct DatosGrabadora {
    Arreglo<Movimiento> Movimientos;  // from 1; element 0 unused; upper bound grows by 100
    i16 NumMovimientos = 0;           // index of the last applied move; 0 none
    i16 FinMovimientos = 0;           // end of the log when the recorder was switched on
    Booleano GrabadoraEncendida;
    Booleano AutoAtras, AutoAdelante;  // an automatic run goes back, forward
};

// ---------------------------------------------------------------- safety copy
struct DatosCopia {
    Booleano MovidoSinCopia;      // a move was made or taken back since the last copy or load
    i32 SegundosSinCopia = 0;     // since the last copy; 300 waits for a moment of rest
    std::string RecordEnAjustes;  // the game as it was when the settings opened; empty: closed
};

// ---------------------------------------------------------------- Tangram tables
struct DatosTangram {
    Tabla<i16, 1, 7> TAncho, TAlto, TDiagonal;               // sizes, filled with the sizes
    std::array<Tabla<i16, 1, 4>, 8> TVerticeX, TVerticeY;    // [piece][corner], box coordinates
    Tabla<i16, 1, 7> TGemela;                                // each piece's twin; 0 none
    i16 XInterior = 0, YInterior = 0;                        // answer of TPuntoInterior
    i16 CajaIzq = 0, CajaArr = 0, CajaDer = 0, CajaAba = 0;  // answer of TCajaFigura
    Arreglo<Punto> TPoligono;                                // corners of a polygon, from 1
    i16 TEmpujes = 0;                                        // pushes made by the last drop
    Tabla<i16, 0, 20> TCaminoPilas;                          // direction of each push; 99 none
    std::string RegistroModelo;                              // record buffer of the model file
};

// ---------------------------------------------------------------- run-time flags
struct DatosBanderas {
    Booleano PuzzleTerminado;                 // the puzzle stands finished
    Booleano PuzzleArchivable;                // its result may still enter the history
    Booleano MostrarMuestra = true;           // the sample view is shown
    i32 SegundosJuego = 0;                    // time played, seconds
    float Dificultad = 0;                     // 0.1 to 99.9
    std::string NombrePuzzle;                 // name it was saved under, at most 25 characters
    Booleano CronoEnMarcha;                   // the chronometer runs
    Booleano CronoAntes;                      // its state before a window stopped it
    Booleano ArrastrandoPieza;                // a piece is in hand
    Booleano SoltandoPieza;                   // the mouse-up handling runs
    Booleano TutorEsperando;                  // the tutor waits for a click on a piece
    Booleano ResolviendoPuzzle;               // automatic solving runs
    Booleano OrdenandoPiezas;                 // side arrangement runs
    Booleano OrdenManual;                     // sliding game: the player forms a starting position
    Booleano MostrandoColocadas;              // right and wrong pieces are shown in two colours
    Booleano CargaCorrecta;                   // the last load of a saved puzzle worked
    Booleano ImagenValida;                    // the image is within limits
    Booleano ParametrosCambiados;             // settings were left with a change that restarts
    Booleano ColoresCambiados;                // settings were left with a change that only redraws
    Booleano SoloLeerAjustes;                 // loading a record stops after the sizes
    i16 JuegoAlEntrar = 0;                    // JuegoActual when the settings opened
    Booleano RespuestaMensaje;                // answer of the last modal question
    i16 ModoCargua = 0;                       // 1 load, 2 save, 3 delete, 4 save as model
    i16 ModoMensaje = 0;                      // height of the open message in text lines
    i16 BotonesMensaje = 0;                   // 1 one button, 2 yes and no
    i16 AyudaMensaje = 0;                     // its help topic; 0 none
    std::string TituloMensaje, TextoMensaje;  // of the open message
    Rect LibreDeMensajes;                     // of the screen; left in view where there is room
    i16 ErrorApertura = 0;                    // number of a trapped file error
    i16 ErrorPendiente = 0;                   // last error that was suppressed
    u32 MarcaPausa = 0;                       // moment the running delay began, ms; 0 none
};

// ---------------------------------------------------------------- paths and image origin
struct DatosRutas {
    std::string CarpetaPrograma;  // where all settings live, with a trailing "/"
    std::string CarpetaArchivo;   // saved puzzles and models
    std::string CarpetaImagenes;  // pictures; stays on a read-only medium
    Booleano EnMedioSoloLectura;
    std::string UnidadImagen, CarpetaImagen, FicheroImagen;  // of the current image
    std::string RutaImagen = " ";  // full path; one blank when there is none
    std::string FinLinea;          // carriage return and line feed
};

// ---------------------------------------------------------------- constant tables
struct Sugerencia_ {
    std::string Texto;  // 180 characters, in three lines of 60
    i16 Contexto = 0;   // help topic
};

struct DatosTextos {
    Tabla<std::string, 0, 7> NombresFormas;
    Tabla<std::string, 1, 7> NombresTangram;
    Tabla<std::string, 1, 10> TextosOpciones;  // 5 to 10 stay empty
    std::string LetrasPiezas;                  // 24 characters
    Tabla<Sugerencia_, 0, 80> Sugerencias;
};

// ---------------------------------------------------------------- cut of the jigsaw
struct DatosCorte {
    i16 SalienteX = 0, SalienteY = 0;       // how far a piece's box reaches out beyond its cell
    double PosDibujoX = 0, PosDibujoY = 0;  // pen of the drawing code
    i16 AjusteX = 0, AjusteY = 0;           // 0 or 1, result of the seam repair
    double Aspecto = 0, Aspecto2 = 0;       // of the figure's ellipses
    i16 RadioForma = 0, RadioForma2 = 0;
    i16 RecorteX = 0, RecorteY = 0;  // inset of the inner rectangle
};

// ---------------------------------------------------------------- sliding board
struct DatosDeslizantes {
    i16 LadoHueco = 0;          // 1 north, 2 east, 3 south, 4 west, 0 not next to the hole
    Arreglo<i16> VecinosHueco;  // pieces next to the hole, from 1
    i16 NumVecinos = 0;
    Arreglo<i16> RutaSolucion;  // pieces to move, from 1, the last move first
    i16 LongitudRuta = 0;
};

// ---------------------------------------------------------------- compositing
struct DatosComposicion {
    i16 XViejo = 0, YViejo = 0;  // corner of the box before the current step
    Region RegionAux1, RegionAux2, RegionAux3, RegionAux4, RegionAux5, RegionAux6;
};

// ---------------------------------------------------------------- mouse machine
// Something that the player has done and that waits for its turn: what happens on the table, a key,
// and what is asked of the strip and of the options panel, or that the
// screen has changed its size.
enum class Suceso : u8 {
    Aprieta,
    Mueve,
    Suelta,
    Click,
    Rueda,
    Tecla,
    Orden,
    Opcion,
    Mando,
    Pantalla
};
struct EntradaTabla {
    Suceso Que = Suceso::Mueve;
    i16 Numero = 0;      // mouse button; notches of the wheel; character; command or option
    float X = 0, Y = 0;  // pixels of the table or of the panel
    bool operator==(const EntradaTabla&) const = default;
};

struct DatosRaton {
    Booleano TareaAutomatica;  // an automatic run shows the busy cursor
    Booleano Barajando;        // a shuffle runs
    Booleano SinPausas;        // a request waits for it: the rest of it runs without pauses
    Booleano GirandoPieza;     // the right button is held on a piece
    Booleano GiroEnCurso;      // a turn by the player's hand is at work, its record included
    Booleano PulsoGiro;        // the last press on the table turned a piece
    std::vector<EntradaTabla> EntradaAplazada;  // what came in meanwhile, oldest first
    i16 EventosAnidados = 0;         // depth of the calls that let events through; 0 none
    i16 ManejadoresEnCurso = 0;      // handlers of the table at work, one inside the other
    i16 CursorDeseado = 0;           // cursor id that the hover wants
    i16 CursorActual = 0;            // cursor id last applied
    i16 BotonPulsado = 0;            // button of the last press
    i16 XPulsado = 0, YPulsado = 0;  // its point, table pixels
    i16 XOrigen = 0, YOrigen = 0;    // the piece before the current move
    i16 XRaton = 0, YRaton = 0;      // last drag point
    i32 XVisto = -1, YVisto = -1;    // last point of the table under the pointer; -1 none yet
};

// ---------------------------------------------------------------- the keyboard's cross
struct DatosCruz {
    i32 CruzX = -1, CruzY = -1;  // where cross or mouse pointed last, window pixels; -1 nowhere
    i16 CruzRepeticiones = 0;    // so often the held key has come in again
    Booleano CruzSujeta;         // it holds what it pressed: a piece, or the sample
};

// ---------------------------------------------------------------- panel, clock, hints
struct DatosPanel {
    Tabla<i16, 1, 12> BotonX, BotonY;        // places of the command buttons in the strip
    Tabla<i16, 1, 12> BotonEstado;           // 23 usable, 12 forbidden
    u32 HoraUltimaSugerencia = 0;            // ms
    i16 SugerenciaActual = 0;                // hint on show
    i32 ContextoAyuda = 0;                   // its help topic
    i16 ZonaCrono = 0, ZonaCronoPrevia = 0;  // 23 while the pointer is over the switch
};

// ---------------------------------------------------------------- options panel and sample view
struct DatosOpciones {
    Tabla<Booleano, 1, 10> OpcionesActivas;  // only ever set to true
    i16 OpcionResaltada = 0;                 // row lit, from 1; 0 none
    i32 MuestraX = 0, MuestraY = 0;          // where the dragged sample would stand
    i32 AgarreX = 0, AgarreY = 0;            // grab point inside it
};

// ---------------------------------------------------------------- side arrangement
struct DatosOrdenar {
    i32 TriX = 0, TriY = 0, TriAncho = 0, TriAlto = 0;  // half box of a triangular piece
};

// ---------------------------------------------------------------- windows of the records
struct DatosHistorico {
    Arreglo<RegistroHistorico> Historico;  // records of the current game, from 0; room to spare
    i32 UltimoHistorico = -1;              // index of the last record; -1 none
    i16 OrdenHistoricoActual = 1;          // 1 date, 2 player, 3 background, 4 difficulty
    i32 PosicionActual = 0;                // place in the sorted list, from 0
    i16 BotonAdeAtr = 0;                   // travel button held down, 1 to 4; 0 none
};

struct DatosCargua {
    std::string NombreActual;  // name in the box, trimmed, at most 64 characters
    Booleano AvisoExiste;      // the player was told that this name is taken
};

// ---------------------------------------------------------------- settings window
// A puzzle and its settings as they stood when the window opened: what changes are told by, and
// what a cancelled change goes back to.
struct FotoPartida : DatosJuego, DatosAjustes, DatosColores, DatosTamanos, DatosPiezas, DatosRutas {
    std::string NombrePuzzle;
    Booleano MostrarMuestra, ImagenValida;
    Booleano EnDisco;  // the scratch copy was written when the window opened
};

// A picture that the player brought from elsewhere and that is to become the puzzle's.
struct ImagenTraida_ {
    Imagen Dibujo;       // null: none waits
    std::string Nombre;  // of the file to make from it, without folder and extension
    std::string Ruta;    // of the file it came from; empty when it came from none
    Booleano Unica;      // takes the place of the last one of its name
};

struct DatosPersonal {
    FotoPartida AlEntrar;
    // Guard flags: code, not the player, changes a control; no click sounds, no handler re-enters.
    Booleano Cargando;           // the panels are being built
    Booleano CargandoArchivo;    // a file of the list is being shown without a choice
    Booleano CambiandoSelector;  // one of the game's switches
    Booleano CambiandoModo;      // the list of models
    Booleano RepintandoPiezas;   // the shapes
    Booleano CambiandoForma;     // a shape that the picture forbids gives way
    float ProporcionImagen = 0;  // width over height of the picture on show
    std::string ImagenLeida;     // which file's picture Pic_FonTamReal holds: path, size, time
    ImagenTraida_ ImagenTraida;
    Booleano FactorCambiado;  // left with a restart and another FactorAtraccion
};

// ---------------------------------------------------------------- random numbers
struct DatosAzar {
    u32 Azar[4] = {0x9E3779B9U, 0x243F6A88U, 0xB7E15162U, 0x1U};  // generator state
};

struct Bloque : DatosJuego,
                DatosAjustes,
                DatosColores,
                DatosTamanos,
                DatosPiezas,
                DatosGrabadora,
                DatosCopia,
                DatosTangram,
                DatosBanderas,
                DatosRutas,
                DatosTextos,
                DatosCorte,
                DatosDeslizantes,
                DatosComposicion,
                DatosRaton,
                DatosCruz,
                DatosPanel,
                DatosOpciones,
                DatosOrdenar,
                DatosHistorico,
                DatosCargua,
                DatosPersonal,
                DatosAzar {};

extern Bloque Gbl;

}  // namespace tessario
