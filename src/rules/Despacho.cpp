#include "rules/Despacho.h"

#include "core/PuzzGbl.h"
#include "jigsaw/Corte.h"
#include "rules/Medidas.h"
#include "sliding/Tablero.h"
#include "tangram/Figuras.h"

namespace tessario {

void PreparaJuego(bool Barajar) {
    const i16 nuevo = Booleano(Barajar).Valor();
    CalculaTamanos();     // leaves the sizes alone outside the three games
    Gbl.PiezaActual = 0;  // what the pointer found lay on the table that was
    switch (Gbl.JuegoActual) {
        case JuegoMoviles:
            CreaMoviles(Barajar);
            break;
        case JuegoDeslizantes:
            CreaDeslizantes(nuevo);
            break;
        case JuegoTangram:
            CreaTangram(nuevo);
            break;
        default:
            break;
    }
}

}  // namespace tessario
