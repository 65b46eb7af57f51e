// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/Ordenes.h"

#include "core/Avisos.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Barajado.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "panel/Grabadora.h"
#include "panel/Sugerencias.h"
#include "pieces/Composicion.h"
#include "platform/Plataforma.h"
#include "rules/Catalogo.h"
#include "rules/Despacho.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"
#include "session/CopiaSeguridad.h"
#include "sliding/Tablero.h"
#include "table/Colocacion.h"
#include "table/Raton.h"
#include "table/Tareas.h"

namespace tessario {

namespace {

constexpr i16 PAUSA_ANTES_MUESTRA = 5, PAUSA_TRAS_MUESTRA = 35, PAUSA_OCULTA = 15;

// ---------------------------------------------------------------- what surrounds the commands
// The clock stands still while the work is done, and then is as it was.
template <class F>
void ConRelojParado(F&& trabajo) {
    DetieneCrono();
    Sigue(trabajo);
    ReponeCrono();
}

void Reloj() {
    PonPuntero(Mesa, PUNTERO_RELOJ);
}
void PunteroNormal() {
    PonPuntero(Mesa, PUNTERO_NORMAL);
}

void MuestraSiExiste(Ventana* v) {
    if (v) Sistema().MuestraModal(*v);
}

// ---------------------------------------------------------------- the commands
void Baraja() {
    Gbl.RespuestaMensaje = true;
    if (ResolviendoModelo()) Avisa(aviso::MEZCLA_TANGRAM);
    if (!Gbl.RespuestaMensaje) return;
    CopiaAntesDeRepartir();
    if (JuegoEnCurso().BarajaJugando) {
        BarajaPiezas();
        return;
    }
    if (JuegoEnCurso().TieneModos) Gbl.ModoJuego = MODO_CREAR;
    PreparaJuego(true);
}

// The settings were left in the game that was current when they opened.
void RehaceMesa() {
    if (Gbl.ParametrosCambiados) {
        Reloj();
        GuardaCopia(Gbl.RecordEnAjustes);
        PreparaJuego(true);
        if (JuegoEnCurso().BarajaJugando) ColocaPiezas(1);
        if (Gbl.FactorCambiado) Gbl.PuzzleArchivable = false;
    } else if (Gbl.ColoresCambiados) {
        Reloj();
        PreparaJuego(false);
        ColocaPiezas(JuegoEnCurso().BarajaJugando ? 1 : 0);
        if (Gbl.PuzzleTerminado) EntraEnCompleto();
    }
}

void CambiaDeJuego() {
    Reloj();
    LeeAjustesJuego(FicheroDelJuego());
    Sugerencia(JuegoEnCurso().Sugerencia);
}

void Personaliza() {
    Gbl.JuegoAlEntrar = Gbl.JuegoActual;
    Gbl.RecordEnAjustes = RecordParaCopia();
    ConRelojParado([] {
        Gbl.ParametrosCambiados = false;
        Gbl.ColoresCambiados = false;
        Gbl.FactorCambiado = false;
        MuestraSiExiste(VentanasOrdenes.Personal);
        Sistema().Presenta();
        // The same game as before, whichever it is: its table is kept, else another one is laid.
        Sigue([] { Gbl.JuegoActual == Gbl.JuegoAlEntrar ? RehaceMesa() : CambiaDeJuego(); });
        Gbl.ColoresCambiados = false;  // a record that is loaded later lays its pieces
        Gbl.RecordEnAjustes.clear();
        PunteroNormal();
    });
}

void LlamaAlTutor() {
    ConRelojParado([] {
        if (JuegoEnCurso().TutorResuelve) {
            // One pass of the solver only, as its own button is not down.
            Gbl.PuzzleArchivable = false;
            ResuelvePuzzle();
            return;
        }
        Gbl.TutorEsperando = true;
        Sugerencia(sugerencia::TUTOR_ESPERA);
    });
}

void Estadisticas() {
    ConRelojParado([] { MuestraSiExiste(VentanasOrdenes.Estadis); });
}

void Historico() {
    ConRelojParado([] { MuestraSiExiste(VentanasOrdenes.Historic); });
}

void AbreAyuda() {
    ConRelojParado([] { Ayuda(0); });
}

void Sale() {
    if (Gbl.GrabadoraEncendida) {
        Avisa(aviso::SALIR_GRABADORA);
        return;
    }
    DetieneCrono();
    Avisa(aviso::SALIR);
    if (!Gbl.RespuestaMensaje)
        ReponeCrono();
    else if (SalidaDelPrograma)
        SalidaDelPrograma();
}

void MuestraModelo() {
    Pausa(PAUSA_ANTES_MUESTRA);
    Gbl.MostrarMuestra = !Gbl.MostrarMuestra;
    if (Gbl.MostrarMuestra) JuegoEnCurso().ColocaMuestra();
    Pic_Muestra.Visible = Gbl.MostrarMuestra;
    Pausa(PAUSA_TRAS_MUESTRA);
}

void SacaOculta(i16 posicion) {
    const i16 piece = Gbl.OrdenPiezas[posicion];
    if (!PiezaEnSuSitio(piece)) {
        SubePieza(posicion);
        PonPieza(piece);
    }
    MuestraCaja(CajaDePieza(piece));
    Pausa(PAUSA_OCULTA);
}

void MuestraOcultas() {
    Reloj();
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) Sigue([&] { SacaOculta(i); });
    PunteroNormal();
}

void MuestraBienOMal() {
    Gbl.MostrandoColocadas = !Gbl.MostrandoColocadas;
    MostrarPiezasBienoMal();
}

void Ordena() {
    Reloj();
    ConRelojParado([] {
        if (const auto ordenaAMano = JuegoEnCurso().OrdenaAMano) {
            PunteroNormal();
            const bool sinOrdenar = !Gbl.OrdenManual;
            ordenaAMano();
            // What is set up by hand will be another puzzle.
            if (sinOrdenar && Gbl.OrdenManual) CopiaAntesDeRepartir();
            return;
        }
        Gbl.OrdenandoPiezas = !Gbl.OrdenandoPiezas;
        if (Gbl.OrdenandoPiezas) OrdenaLaterales();
    });
    PunteroNormal();
}

void Resuelve() {
    // A second press comes in while the solver runs, and takes the flag back, which ends it.
    Gbl.ResolviendoPuzzle = !Gbl.ResolviendoPuzzle;
    if (Gbl.ResolviendoPuzzle) ConRelojParado([] { ResuelvePuzzle(); });
}

// ---------------------------------------------------------------- when each is forbidden
bool Nunca() {
    return false;
}
bool ConGrabadora() {
    return Gbl.GrabadoraEncendida;
}
bool ConGrabadoraOTerminado() {
    return Gbl.GrabadoraEncendida || Gbl.PuzzleTerminado;
}
bool SinLugares() {
    return ConGrabadoraOTerminado() || CreandoFiguras();
}
bool SinMuestra() {
    return !JuegoEnCurso().HayMuestra();
}

// ---------------------------------------------------------------- when each is going on
bool Barajandose() {
    return Gbl.Barajando;
}
// Where the tutor plays, it makes one pass of the solver's work without its flag.
bool Tutelado() {
    return Gbl.TutorEsperando || (JuegoEnCurso().TutorResuelve && Gbl.TareaAutomatica &&
                                  !Gbl.ResolviendoPuzzle && !Gbl.Barajando);
}
bool ConMuestra() {
    return Gbl.MostrarMuestra && JuegoEnCurso().HayMuestra();
}
bool EnColores() {
    return Gbl.MostrandoColocadas;
}
bool Ordenandose() {
    return Gbl.OrdenandoPiezas || Gbl.OrdenManual;
}
bool Resolviendose() {
    return Gbl.ResolviendoPuzzle;
}

const struct {
    void (*hace)();
    bool (*prohibida)();
    bool (*enMarcha)();
} ORDENES[ORDENES_DE_LA_TIRA] = {
    {Baraja, ConGrabadora, Barajandose},
    {Personaliza, ConGrabadora, Nunca},
    {LlamaAlTutor, SinLugares, Tutelado},
    {Estadisticas, ConGrabadora, Nunca},
    {Historico, Nunca, Nunca},
    {AbreAyuda, Nunca, Nunca},
    {Sale, Nunca, Nunca},
    {MuestraModelo, SinMuestra, ConMuestra},
    {MuestraOcultas, ConGrabadoraOTerminado, Nunca},
    {MuestraBienOMal, SinLugares, EnColores},
    {Ordena, ConGrabadoraOTerminado, Ordenandose},
    {Resuelve, SinLugares, Resolviendose},
};

// ---------------------------------------------------------------- a press, before its command
void TerminaOtrasOrdenes(i16 Index) {
    if (Index != orden::COLOCADAS && Gbl.MostrandoColocadas) {
        Gbl.MostrandoColocadas = false;
        Sigue([] { MostrarPiezasBienoMal(); });
    }
    if (Index != orden::RESOLVER) Gbl.ResolviendoPuzzle = false;
    if (Index != orden::ORDENAR) Gbl.OrdenandoPiezas = false;
}

// The work under way ends. A press of the button that began it asks for nothing else.
void PulsaDentroDeTarea(i16 Index) {
    const bool laSuya = (Index == orden::RESOLVER && Gbl.ResolviendoPuzzle) ||
                        (Index == orden::ORDENAR && Gbl.OrdenandoPiezas) ||
                        (Index == orden::BARAJAR && Gbl.Barajando);
    TerminaTareas();
    if (!laSuya) Aplaza(Suceso::Orden, Index);
}

// Another command while the pieces are being set up by hand. True: it may go on.
bool DejaOrdenManual(i16 Index) {
    if (Index == orden::ORDENAR || !Gbl.OrdenManual) return true;
    if (TieneSolucion()) {
        // Deliberate: only the arranging command itself begins the set-up board as a new puzzle.
        Gbl.OrdenManual = false;
        return true;
    }
    // With the recorder on, the board cannot be dealt anew: what may be asked for then leaves it
    // alone.
    return Index == orden::AYUDA || Index == orden::MODELO || OrdenProhibida(orden::ORDENAR);
}

}  // namespace

bool OrdenProhibida(i16 Index) {
    return ORDENES[Index - 1].prohibida();
}

bool OrdenEnMarcha(i16 Index) {
    return ORDENES[Index - 1].enMarcha();
}

void Pic_Boton_MouseMove(i16 Index, i16 /*Button*/, i16 /*Shift*/, float /*X*/, float /*Y*/) {
    const bool prohibida = OrdenProhibida(Index);
    const bool estaba = Gbl.BotonEstado[Index] == BOTON_PROHIBIDO;
    if (prohibida == estaba) return;
    PonCursor(Pic_Boton(Index), prohibida ? cursor::SENAL_PROHIBIDO : cursor::MANO_INDICE);
    Gbl.BotonEstado[Index] = prohibida ? BOTON_PROHIBIDO : BOTON_USABLE;
}

void Pic_Boton_MouseDown(i16 Index, i16 /*Button*/, i16 /*Shift*/, float /*X*/, float /*Y*/) {
    Pic_SelOpciones.Visible = false;
    if (Gbl.BotonEstado[Index] == BOTON_PROHIBIDO) return;
    Gbl.TutorEsperando = false;
    SonidoJuego(0, sonido::BOTON);
    // What the recorder allows leaves the pieces alone: an automatic replay goes on after it.
    if (DentroDeTarea() && !DentroDeAvance()) {
        PulsaDentroDeTarea(Index);
        return;
    }
    if (Gbl.ArrastrandoPieza) {
        // Reached by keyboard, a button can be pressed with a piece in hand: that is dropped first.
        SueltaLoQueHaya(Gbl.XRaton, Gbl.YRaton);
        if (OrdenProhibida(Index)) return;
    }
    CumpleOrden(Index);
}

bool PreparaOrden(i16 Index) {
    TerminaOtrasOrdenes(Index);
    if (DejaOrdenManual(Index)) return true;
    Pic_Boton_MouseMove(orden::ORDENAR, 0, 0, 0, 0);  // its state must be fresh
    Pic_Boton_MouseDown(orden::ORDENAR, BOTON_IZQUIERDO, 0, 0, 0);
    return false;
}

void CumpleOrden(i16 Index) {
    if (PreparaOrden(Index)) Sigue([&] { ORDENES[Index - 1].hace(); });
}

}  // namespace tessario
