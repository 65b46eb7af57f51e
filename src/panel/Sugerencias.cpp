// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/Sugerencias.h"

#include <string>

#include "core/Cadenas.h"
#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "platform/Plataforma.h"

namespace tessario {

namespace {

// The texts, one source line for each line of the panel: 60 characters, of which 59 are shown.
// The blanks that place the words are part of them.
struct FilaSugerencia {
    i16 numero, contexto;
    const char* texto;
};

// clang-format off
constexpr FilaSugerencia SUGERENCIAS[] = {
    {sugerencia::CIERRE, 2128,
     "Si  cierra esta ventana puede reactivarla  en el conmutador "
     "'Ventana de información'  de la ventana Personalizar."},
    {sugerencia::JUEGO, 2112,
     "Puede cambiar de juego en el panel 'Juego Actual' dentro de "
     "la ventana Personalizar"},
    {sugerencia::AJUSTES, 2111,
     "Para cambiar algún parámetro  o  característica  del  juego "
     "actual, entre en la ventana Personalizar."},
    {sugerencia::MOVILES, 3010,
     "Para ampliar información sobre las reglas y características "
     "del juego  de  puzzles  de  piezas móviles, haga clic en el "
     "texto 'más  ayuda' en la parte superior de esta ventana."},
    {sugerencia::DESLIZANTES, 3020,
     "Para ampliar información sobre las reglas y características "
     "del juego de puzzles de piezas deslizantes, haga clic en el "
     "texto 'más  ayuda' en la parte superior de esta ventana."},
    {sugerencia::TANGRAM, 3030,
     "Para ampliar información sobre las reglas y características "
     "del juego del Tangram,  haga clic en el texto  'más  ayuda' "
     "en la parte superior de esta ventana."},
    {sugerencia::ATRACCION, 2126,
     "Cuando coloque una pieza cerca de su ubicación correcta  en "
     "el puzzle, se sentirá atraída hasta su lugar de destino con "
     "la fuerza que determine en el panel 'Factor de atracción'."},
    {sugerencia::OCULTAS, 2188,
     "Si algunas de las piezas pendientes de colocar  han quedado "
     "ocultas por el puzzle que está resolviendo,  pulse el botón "
     "'Mostrar piezas ocultas' para subirlas al primer plano."},
    {sugerencia::COLOCADAS, 2186,
     "Si  desea  comprobar  cuales  son  las  piezas que ya están "
     "correctamente colocadas,  pulse  el  botón  'Mostrar piezas "
     "colocadas'."},
    {sugerencia::ORDENAR, 2184,
     "Para apartar del centro de la mesa de juego las piezas  que "
     "estan pendientes de colocar, ordenándolas en los laterales, "
     "pulse el botón 'Ordenar las piezas'."},
    {sugerencia::ORDENAR_A_MANO, 2184,
     "Para ordenar manualmente las piezas deslizantes y así poder "
     "configurar una posición de partida predeterminada, pulse el "
     "botón 'Ordenar las piezas'."},
    {sugerencia::MUESTRA, 2182,
     "Si desea ver una muestra reducida de la imagen de fondo del "
     "puzzle, pulse el botón 'Mostrar modelo'."},
    {sugerencia::QUITAR_BORDE, 2122,
     "Si lo desea, puede eliminar la linea delimitadora del borde "
     "de las piezas  en  el  conmutador  'Dibujar el borde de las "
     "piezas' de la ventana Personalizar."},
    {sugerencia::PONER_BORDE, 2122,
     "Si lo desea, se puede dibujar una  linea  delimitadora  del "
     "borde de las piezas en el  conmutador  'Dibujar el borde de "
     "las piezas' de la ventana Personalizar."},
    {sugerencia::RESOLVER, 2189,
     "Cuando desee resolver el puzzle de forma automática,  pulse "
     "el botón 'Resolver el puzzle'  y  el ordenador colocará las "
     "piezas que faltan para terminar el puzzle."},
    {sugerencia::GIRO, 4040,
     "Para rotar las piezas del puzzle,  haga  clic  con el botón "
     "derecho sobre la pieza que desea girar. Si mantiene pulsado "
     "el botón girará  hasta que lo libere."},
    {sugerencia::TUTOR, 2145,
     "Si duda sobre  la  ubicación de una pieza,  pulse el  botón "
     "'Tutor de juego' para que el programa le ayude a colocarla."},
    {sugerencia::TUTOR_ESPERA, 2145,
     "Haga clic sobre una pieza para que el  Tutor  le indique el "
     "lugar donde debe colocarla."},
    {sugerencia::FONDO, 2113,
     "Puede elegir entre tres tipos de fondo  para las piezas del "
     "puzzle (Imagen, números o letras).  Puede  elegirlo  en  el "
     "selector 'Fondo del puzzle' de la ventana Personalizar."},
    {sugerencia::MODOS, 2114,
     "Para cambiar entre el modo de diseño de modelos o figuras y "
     "el modo de resolución de modelos archivados,use el selector "
     "'Modo de juego' de la ventana Personalizar."},
    {sugerencia::FORMAS, 2119,
     "Puede elegir entre  8  formas distintas para las piezas del "
     "puzzle. Elija la forma que desee en el panel  'Forma de las "
     "piezas' de la ventana Personalizar."},
    {sugerencia::ENTRE_PIEZAS, 2123,
     "Cuando coloque una pieza cerca de otra,  se sentirá atraída "
     "por ella facilitando así la tarea de formar figuras.  Puede "
     "modificarlo en el conmutador 'Atracción entre las piezas'."},
    {sugerencia::GRABADORA, 2200,
     "Para retroceder en los movimientos de resolución del puzzle "
     "utilize la Grabadora de movimientos que se encuentra  en la "
     "parte inferior del Panel de Botones."},
    {sugerencia::GUARDAR, 2500,
     "Para guardar el puzzle actual y volver a restaurar la misma "
     "situación cuando desee,haga clic con el botón derecho sobre "
     "la mesa de juego y se mostrará un panel de opciones."},
    {sugerencia::MODELO, 2540,
     "Puede guardar el diseño actual como modelo y resolverlo con "
     "posterioridad. Para ello, haga clic con el botón derecho en "
     "la mesa de juego y se mostrará un panel de opciones."},
    {sugerencia::HISTORICO, 4050,
     "No todos los puzzles resueltos se archivan en  el Histórico "
     "de puzzles. Para saber los requisitos necesarios, haga clic "
     "en 'más  ayuda' en la parte superior de esta ventana."},
};
// clang-format on

constexpr i32 LARGO_TEXTO = 180;       // characters of a hint, blanks included
constexpr i32 ANCHO_LINEA = 60;        // of which the last is never shown
constexpr i16 CONTEXTO_CIERRE = 2128;  // the hint that tells how to switch the panel on again

// The panel's lay-out, in its own pixels.
constexpr Rect MAS_AYUDA = RectDe(5, 3, 55, 19);
constexpr i32 LADO_CERRAR = 19, MARGEN_CERRAR = 6, ARRIBA_CERRAR = 2;
constexpr Punto ORIGEN_CERRAR = {234, 30};  // in Pic_BmpVario
constexpr i32 LINEA_X = 3, LINEA_Y = 13, LINEA_PASO = 11;
constexpr Color FONDO_PANEL = paleta::tinta::SUGERENCIA.Fondo, BORDE_PANEL = 0x406890,
                TEXTO_PANEL = paleta::tinta::SUGERENCIA.Texto;
const Fuente LETRA_PANEL{Familia::Sans, 11, false, false};  // its tails end above the next line
const Fuente LETRA_ENLACE{Familia::Sans, 11, false, true};

// The two small pictures inside the panel: the link and the close button.
void PintaMasAyuda() {
    Pic_SugeMasAyuda.Mueve(MAS_AYUDA.Izq, MAS_AYUDA.Arr);
    Pic_SugeMasAyuda.Tamano(MAS_AYUDA.Ancho(), MAS_AYUDA.Alto());
    Pic_SugeMasAyuda.PonBackColor(FONDO_PANEL);
    PonCursor(Pic_SugeMasAyuda, cursor::MANO_INDICE);
    Pic_SugeMasAyuda.Font = LETRA_ENLACE;
    Pic_SugeMasAyuda.ForeColor = TEXTO_PANEL;
    Pic_SugeMasAyuda.CurrentX = Pic_SugeMasAyuda.CurrentY = 0;
    Pic_SugeMasAyuda.Print("más ayuda");
}

void PintaCerrar() {
    Pic_SugeBotCerrar.Tamano(LADO_CERRAR, LADO_CERRAR);
    Pic_SugeBotCerrar.Mueve(SUGERENCIA_ANCHO - LADO_CERRAR - MARGEN_CERRAR, ARRIBA_CERRAR);
    BitBlt(Pic_SugeBotCerrar, 0, 0, LADO_CERRAR, LADO_CERRAR, Pic_BmpVario, ORIGEN_CERRAR.x,
           ORIGEN_CERRAR.y, SRCCOPY);
    PonCursor(Pic_SugeBotCerrar, cursor::MANO_INDICE);
}

void PintaTexto(const std::string& texto) {
    Pic_Sugerencia.Font = LETRA_PANEL;
    Pic_Sugerencia.ForeColor = TEXTO_PANEL;
    for (i32 i = 1; i <= 3; ++i) {
        Pic_Sugerencia.CurrentX = LINEA_X;
        Pic_Sugerencia.CurrentY = i * LINEA_PASO + LINEA_Y;
        Pic_Sugerencia.Print(Mid(texto, (i - 1) * ANCHO_LINEA + 1, ANCHO_LINEA - 1));
    }
}

}  // namespace

void CargaSugerencias() {
    for (const FilaSugerencia& f : SUGERENCIAS) {
        Gbl.Sugerencias[f.numero].Texto = Ajusta(f.texto, LARGO_TEXTO);
        Gbl.Sugerencias[f.numero].Contexto = f.contexto;
    }
}

void Sugerencia(i16 n) {
    if (!Gbl.VentanaInformacion) return;
    // Deliberate: the panel lies on the table and follows only its vertical scroll.
    Pic_Sugerencia.Tamano(SUGERENCIA_ANCHO, SUGERENCIA_ALTO);
    Pic_Sugerencia.Mueve(0, BarraHor.Top - SUGERENCIA_ALTO + BarraVer.Value);
    Pic_Sugerencia.PonBackColor(FONDO_PANEL);
    Pic_Sugerencia.Line(pluma::Desde | pluma::Caja | pluma::ConColor, 0, 0, SUGERENCIA_ANCHO - 1,
                        SUGERENCIA_ALTO - 1, BORDE_PANEL);
    PonPuntero(Pic_Sugerencia, PUNTERO_NORMAL);
    PintaMasAyuda();
    PintaCerrar();
    PintaTexto(Gbl.Sugerencias[n].Texto);
    Gbl.ContextoAyuda = Gbl.Sugerencias[n].Contexto;
    Gbl.SugerenciaActual = n;
    Gbl.HoraUltimaSugerencia = Sistema().timeGetTime();
    Pic_Sugerencia.Visible = true;
    Sistema().Presenta();
}

void Pic_SugeMasAyuda_MouseDown(i16, i16, float, float) {
    Ayuda(Gbl.ContextoAyuda);
}

void Pic_SugeBotCerrar_MouseDown(i16, i16, float, float) {
    if (Gbl.ContextoAyuda != CONTEXTO_CIERRE) {
        // Deliberate: the first press only tells how the panel is switched on again.
        Sugerencia(sugerencia::CIERRE);
        return;
    }
    Gbl.VentanaInformacion = false;
    Pic_Sugerencia.Visible = false;
}

void Pic_Sugerencia_MouseMove(i16, i16, float, float) {
    PonPuntero(Pic_Sugerencia, PUNTERO_NORMAL);
    Gbl.CursorDeseado = Gbl.CursorActual = cursor::NORMAL;
    PonPuntero(Pic_Trabajo, PUNTERO_NORMAL);
}

}  // namespace tessario
