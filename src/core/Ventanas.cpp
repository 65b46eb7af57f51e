// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Ventanas.h"

#include <cstdlib>
#include <limits>
#include <memory>

#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "platform/Plataforma.h"

namespace tessario {

Ventana Mensajes;
Etiqueta Tex_Titulo, Tex_Mensaje;
Cuadro Pic_Si, Pic_No, Pic_BotSalirMensaje, Pic_BotAyudaMensaje;

Ventana Careta;

namespace {

// Cream ground, cobalt title, terracotta edge and rule.
using paleta::BLANCO, paleta::GRIS, paleta::TERRACOTA;
namespace tinta = paleta::tinta;
constexpr i32 HOLGURA = 12;  // from a message to what it leaves in view, pixels
constexpr i16 PAUSA_CARETA = 1500;
constexpr i16 VELOCIDAD_INICIAL = 50;

// The message window, pixels. Its height is that of the text and a fixed rest.
namespace lugar {
constexpr i32 Ancho = 405;
constexpr i32 AltoFijo = 128, AltoLinea = 16;
constexpr i32 MargenTexto = 20, AnchoTexto = 365;
constexpr i32 TituloArriba = 18, TituloAlto = 19;
constexpr i32 FiletePorEncima = 9;  // rule above the text
constexpr i32 TextoArriba = 50, TextoHolgura = 3;
constexpr i32 BajoTexto = 14;  // from the text's bottom to the buttons
constexpr i32 MargenBoton = 15, LadoBoton = 48, EntreBotones = 15;
}  // namespace lugar

// The buttons: which tile of Pic_BmpBoton's second row each shows, and its left edge.
struct BotonMensaje {
    Cuadro* cuadro;
    const char* nombre;
    const char* palabra;  // its tooltip, which is also its accessible name
    i32 tesela;
    i32 izquierda;
};
constexpr i32 PASO_TESELA = 49;
constexpr i32 DERECHA = lugar::Ancho - lugar::MargenBoton - lugar::LadoBoton;
const BotonMensaje BOTONES[] = {
    {&Pic_Si, "Pic_Si", "Aceptar", 0, DERECHA - lugar::LadoBoton - lugar::EntreBotones},
    {&Pic_No, "Pic_No", "Cancelar", 1, DERECHA},
    {&Pic_BotAyudaMensaje, "Pic_BotAyuda", "Ayuda", 6, lugar::MargenBoton},
    {&Pic_BotSalirMensaje, "Pic_BotSalir", "Aceptar", 0, DERECHA},
};

// Screen size in use; a message may come before it was measured.
Punto Pantalla() {
    if (Gbl.AnchoPantalla != 0) return {Gbl.AnchoPantalla, Gbl.AltoPantalla};
    return {800, Gbl.AltoPantalla != 0 ? Gbl.AltoPantalla : 600};
}

void Centra(Ventana& v, Punto pantalla) {
    v.Left = (pantalla.x - v.Width()) / 2;
    v.Top = (pantalla.y - v.Height()) / 2;
}

// Moves a window off Gbl.LibreDeMensajes, the shortest way that keeps it on the screen. It stays
// where there is none.
void Aparta(Ventana& v, Punto pantalla) {
    const Rect& libre = Gbl.LibreDeMensajes;
    const Rect suya = RectDe(v.Left, v.Top, v.Width(), v.Height());
    if (libre.Vacio() || Interseccion(suya, libre).Vacio()) return;
    const Punto sitios[] = {{suya.Izq, libre.Aba + HOLGURA},
                            {libre.Der + HOLGURA, suya.Arr},
                            {suya.Izq, libre.Arr - HOLGURA - suya.Alto()},
                            {libre.Izq - HOLGURA - suya.Ancho(), suya.Arr}};
    i32 menor = std::numeric_limits<i32>::max();
    for (const Punto& s : sitios) {
        const i32 lejos = std::abs(s.x - suya.Izq) + std::abs(s.y - suya.Arr);
        const bool cabe = s.x >= 0 && s.y >= 0 && s.x + suya.Ancho() <= pantalla.x &&
                          s.y + suya.Alto() <= pantalla.y;
        if (!cabe || lejos >= menor) continue;
        menor = lejos;
        v.Left = s.x;
        v.Top = s.y;
    }
}

void ColocaTextos() {
    const i32 alto = Gbl.ModoMensaje * lugar::AltoLinea + lugar::TextoHolgura;
    Tex_Titulo.Mueve(lugar::MargenTexto, lugar::TituloArriba);
    Tex_Titulo.Tamano(lugar::AnchoTexto, lugar::TituloAlto);
    Tex_Mensaje.Mueve(lugar::MargenTexto, lugar::TextoArriba);
    Tex_Mensaje.Tamano(lugar::AnchoTexto, alto);
}

void PintaMarco() {
    const i32 der = Mensajes.Width() - 2;
    const i32 aba = Mensajes.Height() - 2;
    constexpr int recta = pluma::Desde | pluma::ConColor;
    constexpr i32 filete = lugar::TextoArriba - lugar::FiletePorEncima;
    Mensajes.Cls();
    Mensajes.Line(recta | pluma::Caja, 0, 0, der + 1, aba + 1, TERRACOTA);
    Mensajes.Line(recta, lugar::MargenTexto, filete, lugar::MargenTexto + lugar::AnchoTexto, filete,
                  TERRACOTA);
    Mensajes.Line(recta | pluma::Caja, 1, 1, der, aba, BLANCO);
    Mensajes.Line(recta, der, 1, der, aba, GRIS);
    Mensajes.Line(recta, 1, aba, der, aba, GRIS);
}

void ColocaBotones() {
    CargaTeselas();
    const i32 arriba = Tex_Mensaje.Top + Tex_Mensaje.Height() + lugar::BajoTexto;
    for (const BotonMensaje& b : BOTONES) {
        b.cuadro->Mueve(b.izquierda, arriba);
        b.cuadro->Tamano(lugar::LadoBoton, lugar::LadoBoton);
        BitBlt(*b.cuadro, 0, 0, lugar::LadoBoton, lugar::LadoBoton, Pic_BmpBoton,
               b.tesela * PASO_TESELA, PASO_TESELA, SRCCOPY);
        PonCursor(*b.cuadro, cursor::MANO_INDICE);
    }
    const bool pregunta = Gbl.BotonesMensaje != 1;
    Pic_BotAyudaMensaje.Visible = Gbl.AyudaMensaje != 0;
    Pic_Si.Visible = Pic_No.Visible = pregunta;
    Pic_BotSalirMensaje.Visible = !pregunta;
    Gbl.RespuestaMensaje = !pregunta;
}

void Mensajes_Load() {
    Mensajes.Tamano(lugar::Ancho, Gbl.ModoMensaje * lugar::AltoLinea + lugar::AltoFijo);
    Centra(Mensajes, Pantalla());
    Aparta(Mensajes, Pantalla());
    ColocaTextos();
    PintaMarco();
    ColocaBotones();
}

void Responde(bool si) {
    SonidoJuego(1, sonido::BOTON);
    Gbl.RespuestaMensaje = si;
    Sistema().Cierra(Mensajes);
}

void Pic_BotSalirMensaje_Click() {
    SonidoJuego(1, sonido::BOTON);
    Sistema().Cierra(Mensajes);
}

void Pic_BotAyudaMensaje_Click() {
    SonidoJuego(1, sonido::BOTON);
    Ayuda(Gbl.AyudaMensaje);
}

// Deliberate: any key at all means yes.
void Mensajes_KeyDown() {
    if (Gbl.BotonesMensaje != 1) {
        Responde(true);
        return;
    }
    Sistema().Cierra(Mensajes);
    PonPuntero(Mesa, PUNTERO_NORMAL);
}

void Careta_Load() {
    PonRecurso(Careta, "Careta");
    Centra(Careta, {Sistema().AnchoPantalla(), Sistema().AltoPantalla()});
    Sistema().Presenta();
    Gbl.VelocidadJuego = VELOCIDAD_INICIAL;
    Pausa(PAUSA_CARETA);
}

void ReiniciaEtiqueta(Etiqueta& e, const char* nombre) {
    e = Etiqueta{};
    e.Nombre = nombre;
}

}  // namespace

void Mensaje(const std::string& Titulo, const std::string& Texto, i16 ModoMensaje,
             i16 BotonesMensaje, i16 Ayuda) {
    Gbl.ModoMensaje = ModoMensaje;
    Gbl.BotonesMensaje = BotonesMensaje;
    Gbl.AyudaMensaje = Ayuda;  // before the window loads, which shows its help button by it
    Gbl.TituloMensaje = Titulo;
    Gbl.TextoMensaje = Texto;
    Mensajes.Caption = Titulo;
    Tex_Titulo.Caption = Titulo;
    Tex_Mensaje.Caption = Texto;
    Sistema().MuestraModal(Mensajes);
}

bool PonRecurso(Superficie& destino, const std::string& nombre) {
    auto mapa = std::make_shared<Mapa>();
    if (!Sistema().RecursoImagen(nombre, *mapa)) return false;
    destino.Tamano(mapa->Ancho, mapa->Alto);
    destino.PonPicture(mapa);
    return true;
}

void CargaTeselas() {
    if (Pic_BmpBoton.Width() == 0) PonRecurso(Pic_BmpBoton, "BmpBoton");
    if (Pic_BmpVario.Width() == 0) PonRecurso(Pic_BmpVario, "BmpVario");
}

void ConectaMensajes() {
    Mensajes.Load = Mensajes_Load;
    Mensajes.KeyDown = [](i16, i16) { Mensajes_KeyDown(); };
    Pic_Si.Click = [] { Responde(true); };
    Pic_No.Click = [] { Responde(false); };
    Pic_BotSalirMensaje.Click = Pic_BotSalirMensaje_Click;
    Pic_BotAyudaMensaje.Click = Pic_BotAyudaMensaje_Click;
}

void ConectaCareta() {
    Careta.Load = Careta_Load;
    Careta.Activate = [] { Sistema().Cierra(Careta); };
}

void ReiniciaVentanas() {
    Mensajes = Ventana{};
    Mensajes.Nombre = "Mensajes";
    Mensajes.PonBackColor(tinta::MENSAJE.Fondo);
    ReiniciaEtiqueta(Tex_Titulo, "Tex_Titulo");
    Tex_Titulo.Font.Negrita = true;
    Tex_Titulo.ForeColor = tinta::TITULO.Texto;
    ReiniciaEtiqueta(Tex_Mensaje, "Tex_Mensaje");
    Tex_Mensaje.ForeColor = tinta::MENSAJE.Texto;
    Mensajes.Controles = {&Tex_Titulo, &Tex_Mensaje};
    for (const BotonMensaje& b : BOTONES) {
        *b.cuadro = Cuadro{};
        b.cuadro->Nombre = b.nombre;
        b.cuadro->ToolTipText = b.palabra;
        b.cuadro->Visible = false;
        b.cuadro->Resalta = true;
        Mensajes.Controles.push_back(b.cuadro);
    }

    Careta = Ventana{};
    Careta.Nombre = "Careta";
}

}  // namespace tessario
