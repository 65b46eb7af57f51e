// SPDX-License-Identifier: GPL-3.0-or-later
#include "sliding/Deslizantes.h"

#include <algorithm>
#include <limits>

#include "core/Avisos.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "panel/Colocadas.h"
#include "panel/Muestra.h"
#include "panel/Sugerencias.h"
#include "pieces/Moldes.h"
#include "sliding/Movimientos.h"
#include "sliding/Solucion.h"
#include "sliding/Tablero.h"

namespace tessario {

namespace {

constexpr i32 FRANJA_LIBRE = 65;  // height of the screen that the board leaves free

// ---------------------------------------------------------------- sizes
// Left edge of the strip on a table without scroll bars. Those of the game that is being left may
// still stand, with the strip beside them; the sliding board, which never scrolls, is centred in
// the room that it will have.
i32 TiraSinBarras() {
    return Pic_Botonera.Left + (BarraVer.Visible ? BarraVer.Width() : 0);
}

void MideDeslizantes() {
    const double lado = Gbl.PiezasPorLado;
    const i32 libre = Gbl.AltoPantalla - FRANJA_LIBRE;
    Sigue([&] { Gbl.NumPiezas = Entero(lado * lado - 1); });
    Sigue([&] {
        if (Gbl.PiezasPorLado == -2) throw ErrorEjecucion(ERROR_DIVISION);
        Gbl.AltoCelda = Entero(static_cast<double>(libre) / (Gbl.PiezasPorLado + 2));
    });
    Gbl.AnchoCelda = Gbl.AltoCelda;
    Sigue([] { Gbl.AltoPuzzle = Corto(Gbl.AltoCelda * Gbl.PiezasPorLado); });
    Gbl.AnchoPuzzle = Gbl.AltoPuzzle;
    Sigue([&] { Gbl.MargenY = Corto((libre - Gbl.AltoPuzzle) / 2); });
    Sigue([] { Gbl.MargenX = Corto((TiraSinBarras() - Gbl.AnchoPuzzle) / 2); });
}

// ---------------------------------------------------------------- two-colour display
// The sliding piece in a cell, or 0.
i16 PiezaEnCelda(i32 celda) {
    for (i16 p = 1; p <= Gbl.NumPiezas; ++p)
        if (CeldaDePosicion(Gbl.Piezas[p].X, Gbl.Piezas[p].Y) == celda) return p;
    return 0;
}

// By cells, row by row.
std::vector<i16> OrdenDePintado() {
    std::vector<i16> orden;
    for (i32 celda = 1; celda <= Gbl.NumPiezas + 1; ++celda)
        if (const i16 p = PiezaEnCelda(celda); p != 0) orden.push_back(p);
    return orden;
}

// ---------------------------------------------------------------- records
bool LadoPosible() {
    return Gbl.PiezasPorLado >= LADO_MINIMO && Gbl.PiezasPorLado <= LADO_MAXIMO;
}

i32 PiezasQueTocan() {
    return i32{Gbl.PiezasPorLado} * Gbl.PiezasPorLado - 1;
}

// Corner and pitch of a board's cells, pixels.
struct Rejilla {
    i32 x, y, paso;
    friend bool operator==(const Rejilla&, const Rejilla&) = default;
};

// The first two pieces belong on the first two cells and so tell the grid of their time.
Rejilla RejillaGuardada() {
    const Pieza& p = Gbl.Piezas[1];
    return {p.XBien, p.YBien, Gbl.Piezas[2].XBien - p.XBien};
}

// A piece that a damaged record puts beyond all screens stays there: that is mended later.
i16 Acotado(i32 x) {
    constexpr i32 minimo = std::numeric_limits<i16>::min(),
                  maximo = std::numeric_limits<i16>::max();
    return static_cast<i16>(std::clamp(x, minimo, maximo));
}

void Pasa(i16& x, i16& y, const Rejilla& de, const Rejilla& a) {
    const i16 columna = Entero(static_cast<double>(x - de.x) / de.paso);
    const i16 fila = Entero(static_cast<double>(y - de.y) / de.paso);
    x = Acotado(a.x + columna * a.paso);
    y = Acotado(a.y + fila * a.paso);
}

// A board that was saved on a screen of another size: pieces, hole and log take this one's grid.
void AdaptaTablero() {
    if (!LadoPosible() || Gbl.Piezas.Superior() < 2) return;
    const Rejilla vieja = RejillaGuardada();
    const Rejilla nueva{Gbl.MargenX, Gbl.MargenY, Gbl.AnchoCelda};
    if (vieja.paso <= 0 || vieja == nueva) return;
    Sigue([&] {
        for (i32 i = 1; i <= Gbl.Piezas.Superior(); ++i) {
            Pieza& p = Gbl.Piezas[i];
            Pasa(p.X, p.Y, vieja, nueva);
            Pasa(p.XBien, p.YBien, vieja, nueva);
        }
        Pasa(Gbl.HuecoX, Gbl.HuecoY, vieja, nueva);
        for (i32 i = 1; i <= Gbl.Movimientos.Superior(); ++i) {
            Movimiento& m = Gbl.Movimientos[i];
            Pasa(m.XAntes, m.YAntes, vieja, nueva);
            Pasa(m.XDespues, m.YDespues, vieja, nueva);
        }
    });
}

// On the sliding board every move goes to the hole: walked back from the board as it stands, each
// must end where its piece is and begin where the hole is. Replayed, any other would lay one piece
// on another.
bool PasaPorElHueco() {
    Arreglo<Pieza> piezas = Gbl.Piezas;
    Punto hueco{Gbl.HuecoX, Gbl.HuecoY};
    for (i32 i = Gbl.NumMovimientos; i >= 1; --i) {
        const Movimiento& m = Gbl.Movimientos[i];
        Pieza& p = piezas[m.Pieza];
        if (p.X != m.XDespues || p.Y != m.YDespues || hueco.x != m.XAntes || hueco.y != m.YAntes)
            return false;
        hueco = {p.X, p.Y};
        p.X = m.XAntes;
        p.Y = m.YAntes;
    }
    return true;
}

// A position that no moves can bring home is dealt anew.
void AseguraSolucion() {
    bool soluble = true;
    Sigue([&] { soluble = TieneSolucion(); });
    if (soluble) return;
    Avisa(aviso::SIN_SOLUCION);
    Llama([] { BarajaDeslizantes(); });
    if (!Gbl.ColoresCambiados) Llama([] { ColocaPiezas(0); });
}

// ---------------------------------------------------------------- sample view
bool ConImagen() {
    return Gbl.TipoFondo == FONDO_IMAGEN;
}

void ColocaMuestra() {
    Pic_Muestra.Mueve(BarraVer.Left - Pic_Muestra.Width() - MUESTRA_AL_BORDE,
                      BarraHor.Top - Pic_Muestra.Height() - MUESTRA_AL_BORDE);
}

}  // namespace

const Juego JUEGO_DESLIZANTES = {
    .Numero = JuegoDeslizantes,
    .Nombre = "Puzzle de piezas deslizantes",
    .Sugerencia = sugerencia::DESLIZANTES,
    .PiezasPorDefecto = 24,
    .Imagen = UsoDeImagen::Posible,
    .Apila = false,
    .SeArrastra = false,
    .TieneHueco = true,
    .EligeFondo = true,
    .TutorResuelve = true,
    .BarajaJugando = true,
    .Mide = MideDeslizantes,
    .Crea = [](bool nuevo) { CreaDeslizantes(Booleano(nuevo).Valor()); },
    .Baraja = BarajaConMovimientos,
    .OrdenaAMano = OrdenManualDeslizantes,
    .Resuelve = ResuelveDeslizantes,
    .Dificultad = DificultadDeslizantes,
    .Mascara = MascaraDeslizante,
    .OrdenDePintado = OrdenDePintado,
    .CursorDePieza = CursorDeslizante,
    .PiezaQueVa = DeslizanteQueVa,
    .PulsaPieza = PulsaDeslizante,
    .HayMuestra = ConImagen,
    .ColocaMuestra = ColocaMuestra,
    .LadoPosible = LadoPosible,
    .PiezasQueTocan = PiezasQueTocan,
    .AdaptaTablero = AdaptaTablero,
    .AsientaTablero = AsientaTablero,
    .DiarioPosible = PasaPorElHueco,
    .TrasMontar = AseguraSolucion,
};

}  // namespace tessario
