#include "table/Mesa.h"

#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Cronometro.h"
#include "panel/Desplazamiento.h"
#include "panel/Grabadora.h"
#include "panel/Muestra.h"
#include "panel/Sugerencias.h"
#include "pieces/Composicion.h"
#include "platform/Plataforma.h"
#include "session/CopiaSeguridad.h"
#include "table/Opciones.h"
#include "table/Ordenes.h"
#include "table/Raton.h"
#include "table/Tareas.h"

namespace tessario {

namespace {

constexpr i32 INTERVALO_TIC = 1000;  // ms
constexpr i16 BOTON_SALIR = 7;
constexpr i32 SUGERENCIA_ANCHO = 423, SUGERENCIA_ALTO = 64;

// The work that a request waited for may have left it forbidden.
void Cumple(i16 aplazada) {
    if (aplazada > APLAZADA_OPCION)
        CumpleOpcion(Corto(aplazada - APLAZADA_OPCION));
    else if (!OrdenProhibida(aplazada))
        CumpleOrden(aplazada);
}

// The table's mouse events in the order of EntradaTabla::Suceso.
void EntregaEntrada(const EntradaTabla& e) {
    static constexpr void (*MANEJADORES[])(i16, i16, float, float) = {
        Pic_Trabajo_MouseDown, Pic_Trabajo_MouseMove, Pic_Trabajo_MouseUp,
        [](i16, i16, float, float) { Pic_Trabajo_Click(); }};
    MANEJADORES[e.Suceso](e.Button, e.Shift, e.X, e.Y);
}

// Every event of the window is handled through here. An error that no routine below has dealt with
// ends the handler, not the program; what was asked for meanwhile is done when the outermost
// handler has ended.
template <class F>
void Atiende(F&& manejador) {
    const ManejadorEnCurso este;
    Sigue(manejador);
    while (const i16 aplazada = este.TomaAplazada()) Sigue([&] { Cumple(aplazada); });
    while (const auto entrada = este.TomaEntrada()) Sigue([&] { EntregaEntrada(*entrada); });
}

template <class F>
auto Raton(F manejador) {
    return [manejador](i16 Button, i16 Shift, float X, float Y) {
        Atiende([&] { manejador(Button, Shift, X, Y); });
    };
}
auto EntradaDeTabla(i16 suceso) {
    return [suceso](i16 Button, i16 Shift, float X, float Y) {
        const EntradaTabla entrada{suceso, Button, Shift, X, Y};
        if (!GuardaEntrada(entrada)) Atiende([&] { EntregaEntrada(entrada); });
    };
}
template <class F>
auto Aviso(F manejador) {
    return [manejador] { Atiende(manejador); };
}

void LlenaControles() {
    Mesa.Controles = {&Pic_Trabajo,       &Pic_Muestra,     &Pic_Sugerencia, &Pic_SugeMasAyuda,
                      &Pic_SugeBotCerrar, &Pic_SelOpciones, &BarraHor,       &BarraVer,
                      &Pic_Cuadrito,      &Pic_Botonera};
    for (i32 i = 1; i <= 12; ++i) Mesa.Controles.push_back(&Pic_Boton(i));
    for (Control* c : {&Pic_Cronome, &Pic_CroTime, &Pic_InfoColo, &Pic_Grabadora})
        Mesa.Controles.push_back(c);

    for (Control* c : {&Pic_Muestra, &Pic_Sugerencia, &Pic_SelOpciones})
        c->Contenedor = &Pic_Trabajo;
    for (Control* c : {&Pic_SugeMasAyuda, &Pic_SugeBotCerrar}) c->Contenedor = &Pic_Sugerencia;
    for (i32 i = 1; i <= 12; ++i) Pic_Boton(i).Contenedor = &Pic_Botonera;
    for (Control* c : {&Pic_Cronome, &Pic_InfoColo, &Pic_Grabadora}) c->Contenedor = &Pic_Botonera;
    Pic_CroTime.Contenedor = &Pic_Cronome;
}

void ConectaTabla() {
    Pic_Trabajo.MouseDown = EntradaDeTabla(0);
    Pic_Trabajo.MouseMove = EntradaDeTabla(1);
    Pic_Trabajo.MouseUp = EntradaDeTabla(2);
    Pic_Trabajo.Click = [] { EntradaDeTabla(3)(0, 0, 0, 0); };
    Pic_Trabajo.Paint = Aviso(Pic_Trabajo_Paint);
    Pic_Muestra.MouseDown = Raton(Pic_Muestra_MouseDown);
    Pic_Muestra.MouseMove = Raton(Pic_Muestra_MouseMove);
    Pic_Muestra.MouseUp = Raton(Pic_Muestra_MouseUp);
    Pic_Sugerencia.MouseMove = Raton(Pic_Sugerencia_MouseMove);
    Pic_SugeMasAyuda.MouseDown = Raton(Pic_SugeMasAyuda_MouseDown);
    Pic_SugeBotCerrar.MouseDown = Raton(Pic_SugeBotCerrar_MouseDown);
    Pic_SelOpciones.Paint = MuestraOpcionesSelec;
    Pic_SelOpciones.MouseMove = Raton(Pic_SelOpciones_MouseMove);
    Pic_SelOpciones.MouseUp = Raton(Pic_SelOpciones_MouseUp);
    BarraHor.Change = Aviso(BarraHor_Change);
    BarraVer.Change = Aviso(BarraVer_Change);
}

void ConectaBoton(i16 i) {
    Cuadro& boton = Pic_Boton(i);
    Gbl.BotonEstado[i] = BOTON_USABLE;
    PonCursor(boton, "ManoIndice");
    boton.TabStop = true;
    boton.MouseDown = [i](i16 Button, i16 Shift, float X, float Y) {
        Atiende([&] { Pic_Boton_MouseDown(i, Button, Shift, X, Y); });
    };
    boton.MouseMove = [i](i16 Button, i16 Shift, float X, float Y) {
        Atiende([&] { Pic_Boton_MouseMove(i, Button, Shift, X, Y); });
    };
    // Reached by keyboard, a button learns of its state without a move of the mouse.
    boton.GotFocus = [i] { Atiende([&] { Pic_Boton_MouseMove(i, 0, 0, 0, 0); }); };
}

void ConectaTira() {
    for (i16 i = 1; i <= 12; ++i) ConectaBoton(i);
    // The display covers part of the clock's panel and passes the mouse on to it.
    Pic_Cronome.MouseDown = Raton(Pic_Cronome_MouseDown);
    Pic_Cronome.MouseMove = Raton(Pic_Cronome_MouseMove);
    Pic_CroTime.MouseMove = [](i16 Button, i16 Shift, float X, float Y) {
        Pic_Cronome_MouseMove(Button, Shift, X + static_cast<float>(Pic_CroTime.Left),
                              Y + static_cast<float>(Pic_CroTime.Top));
    };
    Pic_Grabadora.MouseDown = Raton(Pic_Grabadora_MouseDown);
    Pic_Grabadora.MouseMove = Raton(Pic_Grabadora_MouseMove);
}

void ConectaVentana() {
    Mesa.PantallaCompleta = true;
    Mesa.Caption = "TESSARIO  3.3";
    Mesa.Load = [] {
        Gbl.AutoAtras = false;
        Gbl.AutoAdelante = false;
    };
    Mesa.KeyPress = [](i16 KeyAscii) { Atiende([&] { Pic_Trabajo_KeyPress(KeyAscii); }); };
    // Closing the window from outside asks like the exit button does; when the answer is yes, that
    // has closed the window already.
    Mesa.QueryUnload = [](bool& Cancela) {
        Cancela = true;
        Pulsa(Pic_Boton(BOTON_SALIR));
    };
    Timer1.Interval = INTERVALO_TIC;
    Timer1.Enabled = true;
    Timer1.Timer = Aviso([] {
        Tic();
        CopiaCadaTanto();
    });
    Mesa.Temporizadores = {&Timer1};
}

}  // namespace

void ConectaMesa() {
    LlenaControles();
    // Where the panel will appear counts before its first hint is shown.
    Pic_Sugerencia.Tamano(SUGERENCIA_ANCHO, SUGERENCIA_ALTO);
    Pic_Sugerencia.Mueve(0, Sistema().AltoPantalla() - SUGERENCIA_ALTO);
    ConectaTabla();
    ConectaTira();
    ConectaVentana();
}

}  // namespace tessario
