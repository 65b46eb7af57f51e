// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/Grabadora.h"

#include "core/Numeros.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "pieces/Composicion.h"
#include "platform/Plataforma.h"
#include "rules/Catalogo.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

constexpr i16 ADELANTE = 0, ATRAS = 1;

enum Tecla : i32 { Mando, AtrasUno, AdelanteUno, AtrasAuto, AdelanteAuto, Restaurar, Ninguna };

// The panel's zones, in its own pixels. `ancho` is that of a press; `paso` that of the hover.
struct Zona {
    i32 x, y, ancho, paso, alto;
    Punto pulsada, suelta;  // sources in Pic_BmpVario
};
constexpr i32 ANCHO_TECLA = 21, ALTO_TECLA = 13, ANCHO_MANDO = 42;
constexpr Zona ZONAS[] = {
    {6, 6, 38, 38, 13, {57, 6}, {6, 6}},
    {4, 25, 21, 21, 13, {55, 25}, {4, 25}},
    {25, 25, 21, 21, 13, {76, 25}, {25, 25}},
    {4, 41, 21, 21, 13, {55, 41}, {4, 41}},
    {25, 41, 21, 21, 13, {76, 41}, {25, 41}},
    // Deliberate: the hover takes 25 pixels for this key, a press only the first 21.
    {14, 57, 21, 25, 13, {65, 57}, {14, 57}},
};

const Zona& De(Tecla t) {
    return ZONAS[t];
}

bool Dentro(const Zona& z, i32 ancho, float X, float Y) {
    const auto x = static_cast<double>(X);
    const auto y = static_cast<double>(Y);
    return x >= z.x && x <= z.x + ancho - 1 && y >= z.y && y <= z.y + z.alto - 1;
}

void PintaTecla(Tecla t, bool pulsada) {
    const Zona& z = De(t);
    const Punto origen = pulsada ? z.pulsada : z.suelta;
    BitBlt(Pic_Grabadora, z.x, z.y, t == Mando ? ANCHO_MANDO : ANCHO_TECLA, ALTO_TECLA,
           Pic_BmpVario, origen.x, origen.y, SRCCOPY);
    Sistema().Presenta();
}

// Can the key be pressed now? This is what the hover shows.
bool Activa(Tecla t) {
    const bool encendida = Gbl.GrabadoraEncendida;
    const bool ninguno = !Gbl.AutoAtras && !Gbl.AutoAdelante;
    const bool hayAtras = Gbl.NumMovimientos >= 1;
    const bool hayAdelante = Gbl.NumMovimientos < Gbl.FinMovimientos;
    switch (t) {
        case Mando:
            return true;
        case AtrasUno:
            return encendida && hayAtras && ninguno;
        case AdelanteUno:
            return encendida && hayAdelante && ninguno;
        case AtrasAuto:
            return encendida && hayAtras && !Gbl.AutoAdelante;
        case AdelanteAuto:
            return encendida && hayAdelante && !Gbl.AutoAtras;
        case Restaurar:
            return encendida && Gbl.NumMovimientos != Gbl.FinMovimientos && ninguno;
        case Ninguna:
            break;
    }
    return false;
}

// Does what the key stands for go on?
bool EnMarcha(Tecla t) {
    return (t == Mando && Gbl.GrabadoraEncendida) || (t == AtrasAuto && Gbl.AutoAtras) ||
           (t == AdelanteAuto && Gbl.AutoAdelante);
}

Rect CajaDe(Tecla t) {
    const Zona& z = De(t);
    return RectDe(z.x, z.y, z.ancho, z.alto);
}

const char* Letrero(Tecla t) {
    switch (t) {
        case Mando:
            return Gbl.GrabadoraEncendida ? " Apagar mando " : " Encender mando ";
        case AtrasUno:
            return " Retroceder 1 movimiento ";
        case AdelanteUno:
            return " Avanzar 1 movimiento ";
        case AtrasAuto:
            return " Retroceso automático ";
        case AdelanteAuto:
            return " Avance automático ";
        case Restaurar:
            return " Restaurar puzzle ";
        case Ninguna:
            break;
    }
    return "";
}

void PulsaMando() {
    if (!Gbl.GrabadoraEncendida) {
        if (Gbl.NumMovimientos < 1) return;
        // Moves are replayed in the pieces' own looks.
        if (Gbl.MostrandoColocadas) Pulsa(Pic_Boton(orden::COLOCADAS));
        EnciendeGrabadora();
        return;
    }
    Gbl.AutoAtras = Gbl.AutoAdelante = false;  // an automatic run under this press ends
    PonPuntero(Mesa, PUNTERO_RELOJ);
    Pausa(10);
    // Deliberate: nothing is lost by switching off; only Restore keeps an earlier position.
    while (Gbl.NumMovimientos < Gbl.FinMovimientos) ReproduceMovimiento(ADELANTE);
    ApagaGrabadora();
}

void PulsaUno(Tecla t, i16 sentido, bool puede) {
    PintaTecla(t, true);
    SonidoJuego(1, sonido::TECLA);
    if (puede) ReproduceMovimiento(sentido);
    PintaTecla(t, false);
    SonidoJuego(1, sonido::SUELTA);
}

// An automatic run. A second press on its key comes in while events are let through and clears
// the flag, which ends the run.
void PulsaAuto(Tecla t, i16 sentido, Booleano& bandera) {
    if (!bandera) {
        PintaTecla(t, true);
        SonidoJuego(1, sonido::TECLA);
        bandera = true;
        while (bandera && (sentido == ATRAS ? Gbl.NumMovimientos >= 1
                                            : Gbl.NumMovimientos < Gbl.FinMovimientos)) {
            ReproduceMovimiento(sentido);
            Pausa(60);
            DejaPasarEventos();
        }
        PintaTecla(t, false);
        SonidoJuego(1, sonido::SUELTA);
    }
    bandera = false;
}

void PulsaRestaurar() {
    PintaTecla(Restaurar, true);
    PonPuntero(Mesa, PUNTERO_RELOJ);
    SonidoJuego(1, sonido::TECLA);
    Pausa(8);
    PintaTecla(Restaurar, false);
    Pausa(8);
    ApagaGrabadora();
}

Tecla ZonaBajo(float X, float Y, i32 Zona::*ancho) {
    for (i32 t = Mando; t < Ninguna; ++t)
        if (Dentro(ZONAS[t], ZONAS[t].*ancho, X, Y)) return static_cast<Tecla>(t);
    return Ninguna;
}

// A straight move: the piece runs, and where there is a hole it takes the place it leaves.
void ReproduceRecorrido(const Movimiento& r, bool adelante) {
    const i16 x0 = adelante ? r.XAntes : r.XDespues, y0 = adelante ? r.YAntes : r.YDespues;
    const i16 x1 = adelante ? r.XDespues : r.XAntes, y1 = adelante ? r.YDespues : r.YAntes;
    SubePieza(PosicionEnOrden(r.Pieza));
    DeslizaPieza(x0, y0, x1, y1, r.Pieza);
    if (!JuegoEnCurso().TieneHueco) return;
    Gbl.HuecoX = x0;
    Gbl.HuecoY = y0;
}

// A move that changes the orientation is not animated.
void ReproduceOrientacion(const Movimiento& r, bool adelante) {
    BorraPieza(r.Pieza);
    Pieza& p = Gbl.Piezas[r.Pieza];
    p.X = adelante ? r.XDespues : r.XAntes;
    p.Y = adelante ? r.YDespues : r.YAntes;
    p.Giro = adelante ? r.GiroDespues : r.GiroAntes;
    p.Volteo = adelante ? r.VolteoDespues : r.VolteoAntes;
    PonPieza(r.Pieza);
}

}  // namespace

void ReproduceMovimiento(i16 sentido) {
    const bool adelante = sentido == ADELANTE;
    if (Gbl.PuzzleTerminado) SaleDeCompleto();
    if (adelante) Gbl.NumMovimientos = Corto(Gbl.NumMovimientos + 1);
    const Movimiento r = Gbl.Movimientos[Gbl.NumMovimientos];
    if (r.GiroAntes == r.GiroDespues && r.VolteoAntes == r.VolteoDespues)
        ReproduceRecorrido(r, adelante);
    else
        ReproduceOrientacion(r, adelante);
    Gbl.MovidoSinCopia = true;
    Pic_Trabajo_Paint();
    Gbl.ArrastrandoPieza = false;
    MuestraColocadas();
    if (Gbl.PiezasColocadas == Gbl.NumPiezas) EntraEnCompleto();
    if (!adelante) Gbl.NumMovimientos = Corto(Gbl.NumMovimientos - 1);
}

bool PuedeEncenderGrabadora() {
    // A move or a run of moves under way will still enter the log.
    const bool enCurso = Gbl.Barajando || Gbl.OrdenandoPiezas || Gbl.ResolviendoPuzzle ||
                         Gbl.TareaAutomatica || Gbl.GirandoPieza || Gbl.ArrastrandoPieza;
    return !CreandoFiguras() && !enCurso && Gbl.NumMovimientos >= 1;
}

void EnciendeGrabadora() {
    PintaTecla(Mando, true);
    Gbl.GrabadoraEncendida = true;
    // Deliberate: the commands remember the clock in the same place, so that one of them, such as
    // the help, leaves it stopped when the recorder is switched off afterwards.
    DetieneCrono();
    Gbl.FinMovimientos = Gbl.NumMovimientos;
    SonidoJuego(1, sonido::TECLA);
}

void ApagaGrabadora() {
    Gbl.GrabadoraEncendida = false;
    ReponeCrono();
    PintaTecla(Mando, false);
    SonidoJuego(1, sonido::SUELTA);
    Pausa(10);
    MuestraColocadas();
    PonPuntero(Mesa, PUNTERO_NORMAL);
}

bool EsMandoGrabadora(float X, float Y) {
    return ZonaBajo(X, Y, &Zona::ancho) == Mando;
}

void PulsaMandoGrabadora() {
    Pic_SelOpciones.Visible = false;
    PulsaMando();
}

std::vector<Rect> ZonasGrabadora() {
    std::vector<Rect> zonas;
    for (i32 t = Mando; t < Ninguna; ++t)
        if (Activa(static_cast<Tecla>(t))) zonas.push_back(CajaDe(static_cast<Tecla>(t)));
    return zonas;
}

void CarasGrabadora(std::vector<Cara>& caras) {
    for (i32 i = Mando; i < Ninguna; ++i) {
        const auto t = static_cast<Tecla>(i);
        caras.push_back({CajaDe(t), !Activa(t), EnMarcha(t)});
    }
}

void Pic_Grabadora_MouseDown(i16, i16, float X, float Y) {
    Pic_SelOpciones.Visible = false;
    if (Pic_Grabadora.MousePointer == PUNTERO_NORMAL) return;
    const Tecla t = ZonaBajo(X, Y, &Zona::ancho);
    // The state may have changed since the pointer last moved: a key that can no longer act is
    // dead.
    if (!Activa(t)) return;
    switch (t) {
        case Mando:
            PulsaMando();
            break;
        // Deliberate: one step back stops at 1; only the automatic run goes back to the start.
        case AtrasUno:
            PulsaUno(t, ATRAS, Gbl.NumMovimientos > 1);
            break;
        case AdelanteUno:
            PulsaUno(t, ADELANTE, true);
            break;
        case AtrasAuto:
            PulsaAuto(t, ATRAS, Gbl.AutoAtras);
            break;
        case AdelanteAuto:
            PulsaAuto(t, ADELANTE, Gbl.AutoAdelante);
            break;
        case Restaurar:
            PulsaRestaurar();
            break;
        case Ninguna:
            break;
    }
}

void Pic_Grabadora_MouseMove(i16, i16, float X, float Y) {
    const Tecla t = ZonaBajo(X, Y, &Zona::paso);
    const bool activa = Activa(t);
    if (activa)
        PonCursor(Pic_Grabadora, cursor::MANO_INDICE);
    else
        PonPuntero(Pic_Grabadora, PUNTERO_NORMAL);
    const char* letrero = activa ? Letrero(t) : "";
    if (Pic_Grabadora.ToolTipText != letrero) Pic_Grabadora.ToolTipText = letrero;
}

}  // namespace tessario
