// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/Raton.h"

#include "core/Avisos.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Alcance.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "panel/CursorMesa.h"
#include "panel/Grabadora.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "pieces/Raster.h"
#include "platform/Plataforma.h"
#include "rules/Catalogo.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"
#include "table/Atraccion.h"
#include "table/Deshacer.h"
#include "table/Final.h"
#include "table/Giro.h"
#include "table/Tareas.h"
#include "table/Tutor.h"

namespace tessario {

namespace {

constexpr i16 PAUSA_GIRO = 160;
constexpr i16 TECLA_DESHACER = 26;  // Ctrl+Z

// The options panel shows itself; what a choice in it does is not the mouse machine's business.
void PintaOpciones() {
    if (Pic_SelOpciones.Paint) Pic_SelOpciones.Paint();
}

// ---------------------------------------------------------------- press
bool PulsoIzquierdoManda() {
    return !Gbl.ResolviendoPuzzle && !Gbl.OrdenandoPiezas && !Gbl.GrabadoraEncendida;
}

void AvisaTerminado() {
    // A pointer of its own says that the mouse stands on a piece.
    if (Pic_Trabajo.MousePointer == PUNTERO_NORMAL) return;
    Avisa(aviso::YA_RESUELTO);
}

void CogePieza() {
    const i16 piece = Gbl.PiezaActual;
    Gbl.XOrigen = Gbl.Piezas[piece].X;
    Gbl.YOrigen = Gbl.Piezas[piece].Y;
    SubePieza(PosicionEnOrden(piece));
    CambiaCrono(CRONO_MARCHA);
    if (!JuegoEnCurso().SeArrastra) {
        JuegoEnCurso().PulsaPieza();
        return;
    }
    TomaPieza(Gbl.XPulsado, Gbl.YPulsado, piece);
    PonCursor(Pic_Trabajo, cursor::MANO_CERRADA);
    SonidoJuego(0, sonido::TOMA);
    Gbl.CursorActual = cursor::NORMAL;
}

void BuscaPieza(i32 x, i32 y);

// The display of right and wrong pieces ends before a piece is touched. The pointer found none
// while it lasted, so it looks again.
void TerminaColocadas() {
    if (!Gbl.MostrandoColocadas) return;
    Pulsa(Pic_Boton(orden::COLOCADAS));
    BuscaPieza(Gbl.XPulsado, Gbl.YPulsado);
}

// A piece that cannot go anywhere: it is heard and seen, nothing moves and no clock starts.
void RechazaPieza() {
    AplicaCursor(cursor::PROHIBIDO);
    SonidoJuego(1, sonido::RECHAZO);
}

void PulsaIzquierdo() {
    if (Gbl.PuzzleTerminado) {
        AvisaTerminado();
        return;
    }
    TerminaColocadas();
    if (JuegoEnCurso().OrdenaAMano && Gbl.PiezaActual == 0 && Gbl.OrdenManual) {
        Pulsa(Pic_Boton(orden::ORDENAR));
        return;
    }
    if (Gbl.PiezaActual == 0) return;
    if (!JuegoEnCurso().SeArrastra && Gbl.CursorDeseado == cursor::PROHIBIDO) {
        RechazaPieza();
        return;
    }
    if (Gbl.CursorDeseado == cursor::TUTOR) {
        TutorIndicando();
        return;
    }
    CogePieza();
}

// One turn of PiezaActual, of one step or of more, and its record. XOrigen, YOrigen are left at the
// place before it.
template <class F>
void ConRegistroDeGiro(F&& gira) {
    const i16 piece = Gbl.PiezaActual;
    const Pieza antes = Gbl.Piezas[piece];
    Gbl.XOrigen = antes.X;
    Gbl.YOrigen = antes.Y;
    gira();
    Pieza desde = PiezaEnOrigen(piece);
    desde.Giro = antes.Giro;
    RegistraMovimiento(desde, Gbl.Piezas[piece]);
}

void PasoDeGiro() {
    GiraPieza();
    SonidoJuego(0, sonido::TECLA);
}

// Until the right button is released. Whatever else comes in meanwhile is kept.
void GiraHastaSoltar() {
    const GiroAMano giro;
    Gbl.GirandoPieza = true;
    while (Gbl.GirandoPieza && Gbl.PiezaActual != 0) {
        PasoDeGiro();
        Pausa(PAUSA_GIRO);
        DejaPasarEventos();
        // A release that went astray, to another window for example, never comes in.
        if (TomaSueltaDelGiro() || !(Sistema().BotonesApretados() & BOTON_DERECHO))
            Gbl.GirandoPieza = false;
    }
}

// An automatic run turns a piece in one step.
void GiraUnaVez() {
    Gbl.GirandoPieza = true;
    PasoDeGiro();
    Pausa(PAUSA_GIRO);
    Gbl.GirandoPieza = false;
    DejaPasarEventos();
}

// The right button on a piece: it turns step by step until the button is released.
void GiraMientrasPulsado() {
    if ((Gbl.BotonPulsado != BOTON_DERECHO || Gbl.GrabadoraEncendida) && !Gbl.ResolviendoPuzzle)
        return;
    TerminaColocadas();
    if (Gbl.PiezaActual == 0 || JuegoEnCurso().Giros == 1) return;
    ConRegistroDeGiro(Gbl.ResolviendoPuzzle ? GiraUnaVez : GiraHastaSoltar);
}

// ---------------------------------------------------------------- turning in hand
bool EnMano() {
    return Gbl.ArrastrandoPieza && !Gbl.ResolviendoPuzzle && !DentroDeTarea();
}

// The piece in hand turns as one on the table does: no drop, no test of its place, no end of the
// game. The way so far, the turn and the way from here are three moves of the log. The drag goes on
// if the left button or the cross still holds it, or if the button's release waits its turn.
template <class F>
void GiraEnMano(F&& gira) {
    if (!Gbl.PermitirGiro || JuegoEnCurso().Giros == 1) return;
    const i16 piece = Gbl.PiezaActual;
    const Pieza antes = Gbl.Piezas[piece];
    if (antes.X != Gbl.XOrigen || antes.Y != Gbl.YOrigen)
        RegistraMovimiento(PiezaEnOrigen(piece), antes);
    ConRegistroDeGiro(gira);
    Gbl.XOrigen = Gbl.Piezas[piece].X;
    Gbl.YOrigen = Gbl.Piezas[piece].Y;
    const bool sujeta = Gbl.CruzSujeta || (Sistema().BotonesApretados() & BOTON_IZQUIERDO);
    if (sujeta || EsperaSuelta(BOTON_IZQUIERDO)) TomaPieza(Gbl.XRaton, Gbl.YRaton, piece);
}

// ---------------------------------------------------------------- move
bool HayArrastre() {
    return Gbl.ArrastrandoPieza && !Gbl.ResolviendoPuzzle && !Gbl.OrdenandoPiezas &&
           !Gbl.SoltandoPieza && JuegoEnCurso().SeArrastra;
}

void Retrocede(BarraDesplazamiento& barra) {
    barra.Pon(barra.Value - std::min(barra.SmallChange, barra.Value));
}
void Avanza(BarraDesplazamiento& barra) {
    barra.Pon(barra.Value + std::min(barra.SmallChange, barra.Max - barra.Value));
}

// A piece held at the edge of the view moves the view.
void DesplazaEnElBorde(i32 x, i32 y) {
    if (!JuegoEnCurso().SeDesplaza || !BarraVer.Visible) return;
    const i32 valorV = BarraVer.Value;
    const i32 valorH = BarraHor.Value;
    if (y == valorV && y > 0)
        Retrocede(BarraVer);
    else if (y > Gbl.AltoPantalla - BarraHor.Height() + valorV && y < Pic_Trabajo.Height())
        Avanza(BarraVer);
    else if (x == valorH && x > 0)
        Retrocede(BarraHor);
    else if (x > Gbl.AnchoPantalla - BarraVer.Width() + valorH && x < Pic_Trabajo.Width())
        Avanza(BarraHor);
}

bool HoverParado() {
    return Gbl.ArrastrandoPieza || Gbl.GirandoPieza || Gbl.Barajando || Gbl.OrdenandoPiezas ||
           Gbl.MostrandoColocadas || Gbl.SoltandoPieza || Gbl.GrabadoraEncendida;
}

// What the pointer finds on a piece that can be dragged.
void CursorDePieza(i16 piece) {
    Gbl.PiezaActual = piece;
    Gbl.CursorDeseado = PiezaEnSuSitio(piece) ? cursor::BIEN : cursor::MAL;
    if (CreandoFiguras()) Gbl.CursorDeseado = cursor::DISENO;
}

// Is the piece under the point? True ends the walk down the stack.
bool PruebaPieza(i16 piece, i32 x, i32 y) {
    const Rect caja = CajaDePieza(piece);
    if (!caja.Contiene(x, y)) return false;
    if (const auto cursor = JuegoEnCurso().CursorDePieza) return cursor(piece);
    // Only now its shape, which costs a rebuilding: a box without black under the pointer is a gap.
    PreparaPieza(piece);
    if (Pic_PiezaMascara.Point(x - caja.Izq, y - caja.Arr) != 0) return false;
    CursorDePieza(piece);
    return true;
}

void BuscaPieza(i32 x, i32 y) {
    Gbl.CursorDeseado = cursor::NORMAL;
    Gbl.PiezaActual = 0;
    bool hallada = false;
    for (i32 i = 1; i <= Gbl.NumPiezas && !hallada; ++i)
        Sigue([&] { hallada = PruebaPieza(Gbl.OrdenPiezas[i], x, y); });
    if (Gbl.TutorEsperando)
        Gbl.CursorDeseado = Gbl.CursorDeseado == cursor::MAL ? cursor::TUTOR : cursor::NORMAL;
    if (Gbl.TareaAutomatica) Gbl.CursorDeseado = cursor::RELOJ;
    if (Gbl.CursorDeseado != Gbl.CursorActual) AplicaCursor(Gbl.CursorDeseado);
}

// The table has changed under a pointer that stands still.
void MiraDeNuevo() {
    if (Gbl.XVisto >= 0 && !HoverParado()) BuscaPieza(Gbl.XVisto, Gbl.YVisto);
}

// ---------------------------------------------------------------- release
// Keeps a dropped piece where the player can take it again.
void MantieneALaVista(i16 piece) {
    BorraPieza(piece);
    if (LlevaALaVista(piece)) Pic_Trabajo_Paint();
}

void AsientaPieza(i16 piece) {
    const Pieza& p = Gbl.Piezas[piece];
    const bool movido = p.X != Gbl.XOrigen || p.Y != Gbl.YOrigen;
    const bool enSitio = PiezaEnSuSitio(piece);
    if (movido) SonidoJuego(1, enSitio ? sonido::EN_SITIO : sonido::CAE);
    if (!enSitio) MantieneALaVista(piece);
}

void RegistraSuelta(i16 piece) {
    // Deliberate: the angle before is the piece's angle now. A drag does not turn a piece, and one
    // that its place turned is logged with its new angle on both sides.
    RegistraMovimiento(PiezaEnOrigen(piece), Gbl.Piezas[piece]);
}

void SueltaPieza() {
    Gbl.SoltandoPieza = true;
    const i16 piece = Gbl.OrdenPiezas[1];
    JuegoEnCurso().SueltaPieza();
    if (JuegoEnCurso().AtraeASuSitio()) Sigue([] { AtraeASuSitio(); });
    if (JuegoEnCurso().SeArrastra) Sigue([&] { AsientaPieza(piece); });
    Sigue([&] { RegistraSuelta(piece); });
    Sigue([&] { PreparaPieza(piece); });
    Sigue([&] { PintaPieza(Pic_Imagen, piece); });
    Sigue([&] { PintaPieza(Pic_Trabajo, piece); });
    Sigue([] { MuestraColocadas(); });
    // Deliberate: a board that is finished while it is being set up by hand ends nothing.
    if (Gbl.PiezasColocadas == Gbl.NumPiezas && !Gbl.OrdenManual) Sigue([] { FinDeJuego(); });
}

// ---------------------------------------------------------------- keys
// The eighths of a turn that mean another outline on the other face change with it.
constexpr i16 GIRO_AL_VOLTEAR[8] = {0, 3, 2, 1, 4, 3, 6, 1};

// The piece that has two faces is turned over where it lies.
void VolteaPieza() {
    const i16 volteable = JuegoEnCurso().PiezaQueVoltea;
    if (Gbl.MostrandoColocadas) Pulsa(Pic_Boton(orden::COLOCADAS));
    Pieza& p = Gbl.Piezas[volteable];
    Pieza antes = p;
    const bool enMano = Gbl.ArrastrandoPieza && !Gbl.ResolviendoPuzzle;
    if (enMano && Gbl.PiezaActual == volteable) {
        // It was lifted from there: the log goes from rest to here, and the drop goes on from here.
        antes.X = Gbl.XOrigen;
        antes.Y = Gbl.YOrigen;
    }
    SubePieza(PosicionEnOrden(volteable));  // the log takes the piece on top
    BorraPieza(volteable);
    p.Volteo = static_cast<i16>(1 - std::abs(p.Volteo));
    if (p.Giro >= 0 && p.Giro <= 7) p.Giro = GIRO_AL_VOLTEAR[p.Giro];
    PonPieza(volteable);
    Pic_Trabajo_Paint();
    // Deliberate: this pushes the piece under the pointer, which need not be this one.
    Sigue([] { JuegoEnCurso().SeparaPieza(); });
    SonidoJuego(0, PiezaEnSuSitio(volteable) ? sonido::EN_SITIO : sonido::CAE);
    MuestraColocadas();
    RegistraMovimiento(antes, p);
    if (!enMano) return;
    // The piece in hand was laid on the table by all this: it is lifted again.
    if (Gbl.PiezaActual == volteable) {
        Gbl.XOrigen = p.X;
        Gbl.YOrigen = p.Y;
    }
    SubePieza(PosicionEnOrden(Gbl.PiezaActual));
    TomaPieza(Gbl.XRaton, Gbl.YRaton, Gbl.PiezaActual);
}

}  // namespace

void SueltaLoQueHaya(i16 X, i16 Y) {
    if (!Gbl.ArrastrandoPieza || DentroDeTarea() || Gbl.ResolviendoPuzzle) return;
    Pic_Trabajo_MouseUp(BOTON_IZQUIERDO, 0, X, Y);
}

void Pic_Trabajo_MouseDown(i16 Button, i16 /*Shift*/, float X, float Y) {
    if (EnMano() && Button != BOTON_IZQUIERDO) {
        if (Button == BOTON_DERECHO) GiraEnMano(GiraHastaSoltar);
        return;
    }
    Gbl.XPulsado = Entero(X);
    Gbl.YPulsado = Entero(Y);
    Gbl.BotonPulsado = Button;
    Pic_SelOpciones.Visible = false;
    Gbl.TutorEsperando = false;
    Gbl.PulsoGiro = false;
    if (DentroDeTarea()) return;
    SueltaLoQueHaya(Gbl.XPulsado, Gbl.YPulsado);
    if (Button == BOTON_IZQUIERDO && PulsoIzquierdoManda())
        PulsaIzquierdo();
    else if (Gbl.PermitirGiro)
        GiraMientrasPulsado();
}

void Pic_Trabajo_MouseMove(i16 /*Button*/, i16 /*Shift*/, float X, float Y) {
    if (Pic_SelOpciones.Visible && Gbl.OpcionResaltada != 0) {
        Gbl.OpcionResaltada = 0;
        Sigue([] { PintaOpciones(); });
    }
    const i32 x = EnteroLargo(X);
    const i32 y = EnteroLargo(Y);
    Gbl.XVisto = x;
    Gbl.YVisto = y;
    if (HayArrastre()) {
        Sigue([&] { MuevePieza(Corto(x), Corto(y), Gbl.PiezaActual); });
        Sigue([&] { DesplazaEnElBorde(x, y); });
    }
    if (!HoverParado()) BuscaPieza(x, y);
}

void Pic_Trabajo_MouseUp(i16 Button, i16 /*Shift*/, float X, float Y) {
    if (EnMano() && Button > BOTON_IZQUIERDO) return;  // that one does not hold the piece
    if (Gbl.ArrastrandoPieza && !Gbl.ResolviendoPuzzle) Sigue([] { SueltaPieza(); });
    Gbl.ArrastrandoPieza = false;
    Gbl.SoltandoPieza = false;
    Gbl.CruzSujeta = false;
    Pic_Trabajo_MouseMove(0, 0, X, Y);
}

bool Pic_Trabajo_MouseWheel(i16 Pasos, float X, float Y) {
    if (EnMano()) {
        for (i32 i = 0; i < std::abs(Pasos); ++i) GiraEnMano(PasoDeGiro);
        return true;
    }
    const bool puede = Gbl.PermitirGiro && JuegoEnCurso().Giros != 1 && !Gbl.PuzzleTerminado &&
                       !Gbl.GrabadoraEncendida && !DentroDeTarea();
    if (!puede) return false;
    BuscaPieza(EnteroLargo(X), EnteroLargo(Y));
    if (Gbl.PiezaActual == 0) return false;
    Gbl.XPulsado = Entero(X);
    Gbl.YPulsado = Entero(Y);
    TerminaColocadas();
    for (i32 i = 0; i < std::abs(Pasos); ++i) ConRegistroDeGiro(PasoDeGiro);
    BuscaPieza(EnteroLargo(X), EnteroLargo(Y));
    return true;
}

void ActivaOpciones() {
    // Deliberate: an option that has become active stays so until the program ends.
    for (i32 i = 1; i < opcion::MODELO; ++i) Gbl.OpcionesActivas[i] = true;
    if (CreandoFiguras()) Gbl.OpcionesActivas[opcion::MODELO] = true;
    Sigue([] { PintaOpciones(); });
}

void Pic_Trabajo_Click() {
    const bool derecho = Gbl.BotonPulsado == BOTON_DERECHO && !Gbl.GrabadoraEncendida &&
                         !Gbl.GirandoPieza && !Gbl.PulsoGiro;
    if ((derecho || Gbl.ResolviendoPuzzle) && Gbl.PiezaActual == 0) ActivaOpciones();
    Gbl.GirandoPieza = false;
}

void Pic_Trabajo_KeyPress(i16 KeyAscii) {
    switch (KeyAscii) {
        case 27:  // Esc
        case 'Q':
        case 'q':
            if (KeyAscii == 27 && Pic_SelOpciones.Visible) {
                Pic_SelOpciones.Visible = false;
                break;
            }
            SueltaLoQueHaya(Gbl.XRaton, Gbl.YRaton);
            Sistema().Minimiza(Mesa);
            break;
        case 'V':
        case 'v':
            // With the recorder on, the table is only looked at, and in the middle of other work
            // it does not change: only behind a turn does the key wait.
            if (JuegoEnCurso().PiezaQueVoltea != 0 && !Gbl.GrabadoraEncendida && !DentroDeTarea())
                VolteaPieza();
            break;
        case TECLA_DESHACER:
            Deshaz();
            MiraDeNuevo();
            break;
        default:
            break;
    }
}

}  // namespace tessario
