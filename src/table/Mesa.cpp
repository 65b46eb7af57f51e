// SPDX-License-Identifier: GPL-3.0-or-later
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
#include "rules/Catalogo.h"
#include "session/CopiaSeguridad.h"
#include "session/Traidos.h"
#include "table/CruzTeclado.h"
#include "table/Opciones.h"
#include "table/Ordenes.h"
#include "table/Raton.h"
#include "table/Resolucion.h"
#include "table/Tareas.h"

namespace tessario {

namespace {

constexpr i32 INTERVALO_TIC = 1000;  // ms
constexpr i16 TECLA_MENU = 93, TECLA_F10 = 121;
constexpr i16 TECLA_PEGAR = 'V';

// The work that a request waited for may have left it forbidden; a piece that came into hand since
// is dropped first.
void CumplePedido(i16 orden) {
    SueltaLoQueHaya(Gbl.XRaton, Gbl.YRaton);
    if (!OrdenProhibida(orden)) CumpleOrden(orden);
}

void CumpleMando() {
    SueltaLoQueHaya(Gbl.XRaton, Gbl.YRaton);
    PulsaMandoGrabadora();
}

void Entrega(const EntradaTabla& e) {
    switch (e.Que) {
        case Suceso::Aprieta:
            Pic_Trabajo_MouseDown(e.Numero, 0, e.X, e.Y);
            break;
        case Suceso::Mueve:
            Pic_Trabajo_MouseMove(e.Numero, 0, e.X, e.Y);
            break;
        case Suceso::Suelta:
            Pic_Trabajo_MouseUp(e.Numero, 0, e.X, e.Y);
            break;
        case Suceso::Click:
            Pic_Trabajo_Click();
            break;
        case Suceso::Rueda:
            Pic_Trabajo_MouseWheel(e.Numero, e.X, e.Y);
            break;
        case Suceso::Tecla:
            Pic_Trabajo_KeyPress(e.Numero);
            break;
        case Suceso::Orden:
            CumplePedido(e.Numero);
            break;
        case Suceso::Opcion:
            CumpleOpcion(e.Numero);
            break;
        case Suceso::Mando:
            CumpleMando();
            break;
        case Suceso::Pantalla:
            CambiaResolucion();
            break;
    }
}

// Every event of the window is handled through here. An error that no routine below has dealt with
// ends the handler, not the program; what came in meanwhile is handled when the outermost handler
// has ended, oldest first.
template <class F>
void Atiende(F&& manejador) {
    const ManejadorEnCurso este;
    Sigue(manejador);
    while (const auto entrada = este.TomaEntrada()) Sigue([&] { Entrega(*entrada); });
}

template <class F>
auto Raton(F manejador) {
    return [manejador](i16 Button, i16 Shift, float X, float Y) {
        Atiende([&] { manejador(Button, Shift, X, Y); });
    };
}
void Recibe(const EntradaTabla& entrada) {
    if (!GuardaEntrada(entrada)) Atiende([&] { Entrega(entrada); });
}
auto EntradaDeTabla(Suceso que) {
    return [que](i16 Button, i16 /*Shift*/, float X, float Y) { Recibe({que, Button, X, Y}); };
}

// Over a piece the wheel turns it, elsewhere it scrolls.
bool RuedaDeTabla(i16 Pasos, float X, float Y) {
    const EntradaTabla entrada{Suceso::Rueda, Pasos, X, Y};
    if (GuardaEntrada(entrada)) return true;
    bool usada = false;
    Atiende([&] { usada = Pic_Trabajo_MouseWheel(Pasos, X, Y); });
    return usada;
}

// The recorder's switch answers always: it ends the work under way and is thrown after it. The
// automatic runs of the recorder itself know how to deal with it.
void Grabadora_MouseDown(i16 Button, i16 Shift, float X, float Y) {
    if (!EsMandoGrabadora(X, Y) || DentroDeAvance()) {
        Atiende([&] { Pic_Grabadora_MouseDown(Button, Shift, X, Y); });
    } else if (DentroDeTarea()) {
        TerminaTareas();
        Aplaza(Suceso::Mando);
    } else {
        Atiende([&] {
            SueltaLoQueHaya(Gbl.XRaton, Gbl.YRaton);
            Pic_Grabadora_MouseDown(Button, Shift, X, Y);
        });
    }
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

// Tab goes by the place on the strip, row by row, down to the recorder; then over the table.
void OrdenaTab() {
    constexpr i16 FILAS[] = {2, 6, 3, 4, 5, 7, 1, 8, 11, 10, 9, 12};
    for (const i16 i : FILAS) Mesa.OrdenTab.push_back(&Pic_Boton(i));
    for (Control* c :
         {&Pic_Cronome, &Pic_Grabadora, &Pic_SugeMasAyuda, &Pic_SugeBotCerrar, &Pic_SelOpciones}) {
        c->TabStop = true;
        Mesa.OrdenTab.push_back(c);
        c->GotFocus = Aviso(SueltaCruz);
    }
    Pic_SugeMasAyuda.NombreAccesible = "Más ayuda";
    Pic_SugeBotCerrar.NombreAccesible = "Cerrar la ventana de información";
    Pic_SelOpciones.NombreAccesible = "Opciones del puzzle";
}

void ConectaTabla() {
    Pic_Trabajo.MouseDown = EntradaDeTabla(Suceso::Aprieta);
    Pic_Trabajo.MouseMove = [](i16 Button, i16 /*Shift*/, float X, float Y) {
        AnotaPuntero(X, Y);
        Recibe({Suceso::Mueve, Button, X, Y});
    };
    Pic_Trabajo.MouseUp = EntradaDeTabla(Suceso::Suelta);
    Pic_Trabajo.Click = [] { Recibe({Suceso::Click}); };
    Pic_Trabajo.MouseWheel = RuedaDeTabla;
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
    Pic_SelOpciones.Zonas = ZonasOpciones;
    BarraHor.Change = Aviso(BarraHor_Change);
    BarraVer.Change = Aviso(BarraVer_Change);
}

void ConectaBoton(i16 i) {
    Cuadro& boton = Pic_Boton(i);
    Gbl.BotonEstado[i] = BOTON_USABLE;
    PonCursor(boton, cursor::MANO_INDICE);
    boton.TabStop = true;
    boton.MouseDown = [i](i16 Button, i16 Shift, float X, float Y) {
        Atiende([&] { Pic_Boton_MouseDown(i, Button, Shift, X, Y); });
    };
    boton.MouseMove = [i](i16 Button, i16 Shift, float X, float Y) {
        Atiende([&] { Pic_Boton_MouseMove(i, Button, Shift, X, Y); });
    };
    boton.Caras = [i, &boton](std::vector<Cara>& caras) {
        caras.push_back({boton.Limites(), OrdenProhibida(i), OrdenEnMarcha(i)});
    };
    // Reached by keyboard, a button learns of its state without a move of the mouse.
    boton.GotFocus = [i] {
        Atiende([&] {
            SueltaCruz();
            Pic_Boton_MouseMove(i, 0, 0, 0, 0);
        });
    };
}

void ConectaTira() {
    for (i16 i = 1; i <= 12; ++i) ConectaBoton(i);
    // The display covers part of the clock's panel and passes the mouse on to it.
    Pic_Cronome.MouseDown = Raton(Pic_Cronome_MouseDown);
    Pic_Cronome.MouseMove = Raton(Pic_Cronome_MouseMove);
    Pic_Cronome.Zonas = ZonasCronome;
    Pic_CroTime.MouseMove = [](i16 Button, i16 Shift, float X, float Y) {
        Pic_Cronome_MouseMove(Button, Shift, X + static_cast<float>(Pic_CroTime.Left),
                              Y + static_cast<float>(Pic_CroTime.Top));
    };
    Pic_Grabadora.MouseDown = Grabadora_MouseDown;
    Pic_Grabadora.Zonas = ZonasGrabadora;
    Pic_Grabadora.Caras = CarasGrabadora;
    Pic_Grabadora.MouseMove = Raton(Pic_Grabadora_MouseMove);
}

// A picture brought to the table is one for the settings to take; `toma` tells whether it is one.
void LlevaAPersonal(const std::function<bool()>& toma) {
    if (Gbl.Barajando || OrdenProhibida(orden::PERSONALIZAR) || !toma()) return;
    Pulsa(Pic_Boton(orden::PERSONALIZAR));
}

void ConectaVentana() {
    Mesa.PantallaCompleta = true;
    Mesa.Caption = "TESSARIO  3.3";
    Mesa.Load = [] {
        Gbl.AutoAtras = false;
        Gbl.AutoAdelante = false;
    };
    Mesa.KeyPress = [](i16 KeyAscii) { Recibe({Suceso::Tecla, KeyAscii}); };
    Mesa.KeyDown = [](i16 KeyCode, i16 Shift) {
        const bool menu = KeyCode == TECLA_MENU || (KeyCode == TECLA_F10 && Shift == CON_MAYUS);
        if (menu && !DentroDeTarea()) Atiende(AbreOpcionesConTeclado);
        Atiende([&] { TeclaDeCruz(KeyCode, Shift); });
        if (KeyCode == TECLA_PEGAR && (Shift & CON_CONTROL) && !DentroDeTarea())
            Atiende([] { LlevaAPersonal(TomaPegado); });
    };
    Mesa.DragDrop = [](const Traido& traido) {
        if (!DentroDeTarea()) Atiende([&] { LlevaAPersonal([&] { return TomaTraido(traido); }); });
    };
    // Work under way is ended first: it counts in the pixels of the old screen.
    Mesa.Resize = [] {
        if (DentroDeTarea() || Gbl.ManejadoresEnCurso > 0) {
            TerminaTareas();
            Aplaza(Suceso::Pantalla);
        } else {
            Recibe({Suceso::Pantalla});
        }
    };
    // Closing the window from outside asks like the exit button does; when the answer is yes, that
    // has closed the window already.
    Mesa.QueryUnload = [](bool& Cancela) {
        Cancela = true;
        Pulsa(Pic_Boton(orden::SALIR));
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
    OrdenaTab();
    // Where the panel will appear counts before its first hint is shown.
    Pic_Sugerencia.Tamano(SUGERENCIA_ANCHO, SUGERENCIA_ALTO);
    Pic_Sugerencia.Mueve(0, Sistema().AltoPantalla() - SUGERENCIA_ALTO);
    ConectaTabla();
    ConectaTira();
    ConectaVentana();
    ConectaCruz();
}

}  // namespace tessario
