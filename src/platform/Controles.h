// SPDX-License-Identifier: GPL-3.0-or-later
// The controls as plain records: geometry, visibility, pointer, tooltip, and their events as
// functions that the game sets. A window is a list of controls. The shell makes one view for each
// record, keeps it in step with the record's fields, and turns window-system events into calls of
// the record's events; the tests do the same with no display.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Superficie.h"
#include "platform/Tipos.h"

namespace tessario {

// Mouse pointers by number, as MousePointer holds them.
inline constexpr i16 PUNTERO_NORMAL = 0;
inline constexpr i16 PUNTERO_RELOJ = 11;
inline constexpr i16 PUNTERO_PROHIBIDO = 12;
inline constexpr i16 PUNTERO_PROPIO = 99;  // the cursor named in MouseIcon

// Mouse buttons as events give them.
inline constexpr i16 BOTON_IZQUIERDO = 1;
inline constexpr i16 BOTON_DERECHO = 2;
inline constexpr i16 BOTON_CENTRAL = 4;
// What Shift holds, added up; the last only in KeyDown: the key is held, and this is no new press.
inline constexpr i16 CON_MAYUS = 1, CON_CONTROL = 2, CON_ALT = 4, TECLA_REPETIDA = 8;

struct Control {
    virtual ~Control() = default;

    std::string Nombre;     // name of the record, for tests
    i32 Left = 0, Top = 0;  // in its container's pixels
    bool Visible = true;
    bool Enabled = true;
    i16 MousePointer = PUNTERO_NORMAL;
    std::string MouseIcon;  // cursor resource, look-up ignores case; with PUNTERO_PROPIO
    std::string ToolTipText;
    std::string NombreAccesible;    // what a screen reader says; empty: the trimmed tooltip
    bool TabStop = false;           // reached with Tab; Space or Enter then presses it
    bool Resalta = false;           // a picture that lights up under the pointer, as buttons do
    Control* Contenedor = nullptr;  // a picture box that holds it, or null: the window itself

    virtual i32 Width() const { return ancho_; }
    virtual i32 Height() const { return alto_; }
    virtual void Tamano(i32 ancho, i32 alto) {
        ancho_ = std::max(ancho, 0);
        alto_ = std::max(alto, 0);
    }
    void Mueve(i32 left, i32 top) {
        Left = left;
        Top = top;
    }

    // Events. Coordinates are the control's own pixels. KeyAscii is a character code, 8 backspace,
    // 13 return, 27 escape; KeyCode the code of the key.
    std::function<void(i16 Button, i16 Shift, float X, float Y)> MouseDown, MouseMove, MouseUp;
    std::function<void()> Click, DblClick;
    // Notches of the wheel, away from the player positive. False: not used here, the window
    // scrolls.
    std::function<bool(i16 Pasos, float X, float Y)> MouseWheel;
    std::function<void(i16 KeyAscii)> KeyPress;
    std::function<void(i16 KeyCode, i16 Shift)> KeyDown;
    std::function<void()> GotFocus, LostFocus;

private:
    i32 ancho_ = 0, alto_ = 0;
};

// A part of a picture that acts as a button, and the state that its view shows beyond the pixels:
// what is forbidden fades to the surface's ground, what is on is framed. What the pointer and a
// press do to it the view sees for itself; a faded part shows neither.
struct Cara {
    Rect Donde;  // in the picture's pixels
    bool Apagada = false;
    bool Encendida = false;
    friend bool operator==(const Cara&, const Cara&) = default;
};

// A picture box: a surface that can be seen and clicked. The view shows its pixels.
struct Cuadro : Control, Superficie {
    i32 Width() const override { return Superficie::Width(); }
    i32 Height() const override { return Superficie::Height(); }
    void Tamano(i32 ancho, i32 alto) override { Superficie::Tamano(ancho, alto); }

    std::function<void()> Paint;  // asked to paint itself anew; the view needs no such call
    // The parts that can be pressed now, each on its own: the keyboard stops at each of them. Not
    // set: the whole picture is one.
    std::function<std::vector<Rect>()> Zonas;
    // Appends the parts as they are now, in an order of their own; asked after every event. Not
    // set: a picture that lights up is one part, any other none.
    std::function<void(std::vector<Cara>&)> Caras;
};

// A line or block of fixed text, wrapped at its width, runs of blanks kept.
struct Etiqueta : Control {
    std::string Caption;
    Fuente Font;
    Color ForeColor = 0;
    Color BackColor = 0xC0C0C0;
    bool Transparente = true;
    bool Centrada = false;
};

struct BarraDesplazamiento : Control {
    bool Vertical = false;
    i32 Min = 0, Max = 0;
    i32 SmallChange = 1, LargeChange = 10;
    i32 Tramo = 0;                 // what is in view, in units of Value: the handle shows its share
    i32 Value = 0;                 // the code may set it; Change is then not called
    std::function<void()> Change;  // Value has a new value by the player's hand
    void Pon(i32 v);               // as by the player: clamps, sets and calls Change
};

struct Lista : Control {
    struct Elemento {
        std::string Texto;
        i32 Dato = 0;
        bool Marca = false;  // a tick is drawn at the row's right end
    };
    bool Ordenada = false;  // the text order is kept; equal texts in order of arrival
    std::vector<Elemento> Elementos;
    i32 ListIndex = -1;  // -1: none
    Fuente Font;

    void AddItem(const std::string& texto, i32 dato = 0);
    // All elements at once in place of those there are; none is chosen. For many this is far
    // quicker than one by one.
    void Rellena(std::vector<Elemento> elementos);
    void Clear();
    i32 ListCount() const { return static_cast<i32>(Elementos.size()); }
    void Selecciona(i32 indice);  // as by the player: sets ListIndex and calls Click
};

struct CajaTexto : Control {
    std::string Text;   // the code may set it; Change is then not called
    i32 MaxLength = 0;  // in characters; 0: no limit
    Fuente Font;
    std::function<void()> Change;
    void Escribe(const std::string& texto);  // as by the player: cuts, sets and calls Change
};

// A labelled switch.
struct Buleano : Control {
    std::string Caption;
    bool Value = false;
    bool Sound = true;
    std::function<void()> Change;
    void Pon(bool v);  // as by the player
};

// A titled list of choices 1..n, of which one is in force.
struct Selector : Control {
    std::string Caption;
    std::vector<std::string> Textos;  // Textos[0] is choice 1
    i16 Value = 1;
    bool Sound = true;
    std::function<void()> Change;
    void Pon(i16 v);
};

// A knob from 0 to 100.
struct Potenciometro : Control {
    std::string Caption;
    i16 Value = 0;
    std::function<void()> Change;
    void Pon(i16 v);
};

// A numeric spinner.
struct Spin : Control {
    std::string Caption;
    i16 Value = 0, Min = 0, Max = 100, Incremento = 1;
    bool Sound = true;
    bool Pulsado = false;  // one of its buttons is held
    std::function<void()> Change;
    void Pon(i16 v);
};

// The three lists through which a file is chosen. Their rows come from the file system each time
// the path changes; the shell or the test reads them through the same routines.
struct ListaUnidades : Control {
    std::string Drive;  // path of the chosen place, with a trailing "/"
    // Places that the game offers beside those of the machine: what the player reads, and the path.
    std::vector<std::pair<std::string, std::string>> Propias;
    std::function<void()> Change;
};

struct ListaCarpetas : Control {
    std::string Path;  // with a trailing "/"
    std::function<void()> Change;
};

struct ListaFicheros : Lista {
    std::string Path;     // with a trailing "/"
    std::string Pattern;  // "*.bmp;*.jpg", without regard to case

    void Relee();      // the rows anew from the file system; none is chosen
    void Actualiza();  // the same, only if Path or Pattern differ from what was read last

private:
    std::string rutaLeida_, patronLeido_;
};

// What the keyboard points with in place of the mouse: a cross around a point of the window. Beside
// it stands the pointer that the mouse would have there. It lets the mouse through.
struct Cruz : Control {
    static constexpr i32 RADIO = 40;  // its box reaches so far to every side of the point
    Control* Sobre = nullptr;         // what it points at; null: the window itself

    Cruz() {
        Visible = false;
        Control::Tamano(2 * RADIO + 1, 2 * RADIO + 1);
    }
    void Apunta(i32 x, i32 y) { Mueve(x - RADIO, y - RADIO); }
};

struct Temporizador {
    i32 Interval = 0;  // milliseconds; 0: off
    bool Enabled = false;
    std::function<void()> Timer;
};

// What the player drags from another program and drops: files of this machine by their paths, or a
// picture of its own. Both are empty when it was something else.
struct Traido {
    std::vector<std::string> Ficheros;
    Mapa Dibujo;
};

// A window. Its own surface is the ground on which it draws and on which its controls lie.
struct Ventana : Superficie {
    std::string Nombre;  // name of the record, for tests
    std::string Caption;
    i32 Left = 0, Top = 0;          // screen pixels
    bool PantallaCompleta = false;  // no frame, above panels of the desktop
    bool Abierta = false;           // shown and not yet closed; the platform keeps it
    i16 MousePointer = PUNTERO_NORMAL;
    std::string MouseIcon;
    std::vector<Control*> Controles;  // from the bottom up
    std::vector<Control*> OrdenTab;   // in which Tab goes through them; empty: that of Controles
    std::vector<Temporizador*> Temporizadores;
    Control* Foco = nullptr;  // the control that gets the keys when the window opens
    // One of the controls, or null. While it is visible the mouse has no pointer over the window,
    // and what comes to lie under it is not told of it.
    Cruz* Teclado = nullptr;
    bool ApuntaElTeclado() const { return Teclado && Teclado->Visible; }

    std::function<void()> Load, Activate, Unload;
    std::function<void(bool& Cancela)> QueryUnload;  // the player asks to close it from outside
    // A key comes first to the window, then to the control that has the focus.
    std::function<void(i16 KeyCode, i16 Shift)> KeyDown;
    std::function<void(i16 KeyAscii)> KeyPress;
    std::function<void(i16 Button, i16 Shift, float X, float Y)> MouseDown, MouseMove, MouseUp;
    // The mouse is used while the keyboard points; comes before what it does.
    std::function<void()> VuelveElRaton;
    // Something was dropped on the window or on one of its controls; a window without this event
    // takes nothing. It comes when the drag is over, so a handler may open another window.
    std::function<void(const Traido& traido)> DragDrop;
    // The screen that the window fills has another size now.
    std::function<void()> Resize;
};

// Corner of a control in its window's pixels.
Punto OrigenDe(const Control& c);
// What the mouse meets at a point of the window: the topmost control that is to be seen there; null
// for the window itself.
Control* ControlEn(const Ventana& v, i32 x, i32 y);

// Presses a control on the player's behalf at (0, 0): a move to the point, then its MouseDown.
void Pulsa(Control& c);

}  // namespace tessario
