// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/CopiaSeguridad.h"

#include <utility>

#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "records/Archivo.h"
#include "records/EscrituraAparte.h"
#include "records/Texto.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"
#include "session/Montaje.h"

namespace tessario {

namespace {

constexpr i32 SEGUNDOS_ENTRE_COPIAS = 300;
constexpr const char* NOMBRE = "Copia de seguridad.puz";

EscrituraAparte Escritura;

bool MesaEnReposo() {
    return !Gbl.ArrastrandoPieza && !Gbl.SoltandoPieza && !Gbl.GrabadoraEncendida &&
           !Gbl.Barajando && Gbl.EventosAnidados == 0 && Gbl.ManejadoresEnCurso <= 1;
}

// What a record needs of the game, put back at the end of its life.
class GuardaPartida {
public:
    GuardaPartida() = default;
    ~GuardaPartida() {
        std::swap(Gbl.Piezas, piezas_);
        Gbl.HuecoX = huecoX_;
        Gbl.HuecoY = huecoY_;
        Gbl.NumMovimientos = movimientos_;
        Gbl.PuzzleTerminado = terminado_;
    }
    GuardaPartida(const GuardaPartida&) = delete;
    GuardaPartida& operator=(const GuardaPartida&) = delete;

private:
    Arreglo<Pieza> piezas_ = Gbl.Piezas;
    i16 huecoX_ = Gbl.HuecoX, huecoY_ = Gbl.HuecoY, movimientos_ = Gbl.NumMovimientos;
    Booleano terminado_ = Gbl.PuzzleTerminado;
};

// A piece in hand goes back to where it was taken from. A sliding piece has arrived already.
void DevuelvePieza() {
    if (!Gbl.ArrastrandoPieza || !JuegoEnCurso().SeArrastra || Gbl.PiezaActual == 0) return;
    Gbl.Piezas[Gbl.PiezaActual].X = Gbl.XOrigen;
    Gbl.Piezas[Gbl.PiezaActual].Y = Gbl.YOrigen;
}

// The moves that the recorder has gone back over are made again, in the table alone.
void AlFinalDelDiario() {
    if (!Gbl.GrabadoraEncendida) return;
    while (Gbl.NumMovimientos < Gbl.FinMovimientos) {
        const Movimiento& m = Gbl.Movimientos[++Gbl.NumMovimientos];
        Pieza& p = Gbl.Piezas[m.Pieza];
        p.X = m.XDespues;
        p.Y = m.YDespues;
        p.Giro = m.GiroDespues;
        p.Volteo = m.VolteoDespues;
        if (!JuegoEnCurso().TieneHueco) continue;
        Gbl.HuecoX = m.XAntes;
        Gbl.HuecoY = m.YAntes;
    }
    Gbl.PuzzleTerminado = !CreandoFiguras() && CuentaColocadas() == Gbl.NumPiezas;
}

std::string RecordAlTerminar() {
    const GuardaPartida partida;
    Sigue([] { DevuelvePieza(); });
    Sigue([] { AlFinalDelDiario(); });
    return RecordParaCopia();
}

}  // namespace

std::string FicheroDeCopia() {
    return Gbl.CarpetaArchivo + NOMBRE;
}

std::string RecordParaCopia() {
    return Gbl.NumMovimientos > 0 ? EscribePuzzle() : std::string();
}

void GuardaCopia(const std::string& record) {
    if (record.empty()) return;
    AseguraCarpetaDe(FicheroDeCopia());  // it may have been deleted while the program ran
    Escritura.Empieza(FicheroDeCopia(), record);
    Gbl.MovidoSinCopia = false;
    Gbl.SegundosSinCopia = 0;
}

void CopiaAntesDeRepartir() {
    GuardaCopia(RecordParaCopia());
}

void CopiaCadaTanto() {
    if (Gbl.SegundosSinCopia < SEGUNDOS_ENTRE_COPIAS) ++Gbl.SegundosSinCopia;
    if (Gbl.SegundosSinCopia < SEGUNDOS_ENTRE_COPIAS || !MesaEnReposo()) return;
    if (Gbl.MovidoSinCopia) GuardaCopia(RecordParaCopia());
    Gbl.SegundosSinCopia = 0;
}

void CopiaAlTerminar() {
    // While the settings are open the block may hold another game's, and during a shuffle what is
    // left of the last one, which has its copy.
    const bool ajena = Gbl.SoloLeerAjustes || Gbl.Barajando || !Gbl.RecordEnAjustes.empty();
    if (Gbl.MovidoSinCopia) GuardaCopia(ajena ? Gbl.RecordEnAjustes : RecordAlTerminar());
    EsperaCopia();
}

void EsperaCopia() {
    Escritura.Espera();
}

}  // namespace tessario
