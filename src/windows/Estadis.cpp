// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Estadis.h"

#include "core/Cadenas.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "platform/Plataforma.h"
#include "records/Historial.h"
#include "rules/PuzzBas.h"
#include "windows/Lineas.h"
#include "windows/Marco.h"

namespace tessario {

Ventana Estadis;
Cuadro Tex_Estadis;
CajaTexto Tex_NombreJugador;
Cuadro Pic_BotAyudaEstadis, Pic_BotSalirEstadis;

namespace {

constexpr i32 AYUDA_ESTADISTICAS = 2150;
constexpr i32 LARGO_NOMBRE = 9;  // characters

// Window pixels; the name box in pixels of the panel.
namespace lugar {
constexpr i32 Ancho = 420;
constexpr i32 TextoIzq = 11, TextoArr = 30;
constexpr i32 BajoTexto = 15;
constexpr i32 NombreSobra = 2;  // by so much the box begins above its line
constexpr i32 NombreAncho = 90, NombreAlto = 19;
}  // namespace lugar

// The window around the text, from the height that the lines reached.
void DibujaFondo() {
    const i32 botones = lugar::TextoArr + Tex_Estadis.Height() + lugar::BajoTexto;
    PreparaVentana(Estadis, lugar::Ancho, botones + LADO_BOTON + PIE_VENTANA);
    TitulaVentana(Estadis, lugar::Ancho / 2, "Estadísticas");
    Tex_Estadis.Mueve(lugar::TextoIzq, lugar::TextoArr);
    HundeEn(Estadis, Tex_Estadis);
    const i32 derecha = lugar::TextoIzq + Tex_Estadis.Width();
    ColocaBoton(Pic_BotSalirEstadis, TeselaSalir, Estadis, derecha);
    ColocaBoton(Pic_BotAyudaEstadis, TeselaAyuda, Estadis, derecha - LADO_BOTON - ENTRE_BOTONES);
}

void Estadis_Load() {
    PonPuntero(Mesa, PUNTERO_NORMAL);
    Gbl.PiezasColocadas = CuentaColocadas();
    const i32 ultima = Estadisticas();
    Tex_NombreJugador.Text = Gbl.NombreJugador;
    Tex_NombreJugador.Mueve(LINEAS_VALOR_X, ultima - lugar::NombreSobra);
    Tex_NombreJugador.Tamano(lugar::NombreAncho, lugar::NombreAlto);
    DibujaFondo();
}

void Tex_Nombre_Change() {
    Gbl.NombreJugador = RTrim(Left(Tex_NombreJugador.Text, LARGO_NOMBRE));
}

void ReiniciaControles() {
    Estadis = Ventana{};
    Estadis.Nombre = "Estadis";
    Estadis.Caption = "Estadísticas";
    Tex_Estadis = Cuadro{};
    Tex_Estadis.Nombre = "Texto";
    Tex_Estadis.TabStop = true;
    Tex_NombreJugador = CajaTexto{};
    Tex_NombreJugador.Nombre = "Tex_Nombre";
    Tex_NombreJugador.NombreAccesible = "Nombre del jugador";
    Tex_NombreJugador.TabStop = true;
    Tex_NombreJugador.MaxLength = LARGO_NOMBRE;
    Tex_NombreJugador.Font = {Familia::Mono, 12, false, false};
    Tex_NombreJugador.Contenedor = &Tex_Estadis;
    ReiniciaBoton(Pic_BotAyudaEstadis, "Pic_BotAyuda", "Ayuda");
    ReiniciaBoton(Pic_BotSalirEstadis, "Pic_BotSalir", "Cerrar");
    Estadis.Controles = {&Tex_Estadis, &Tex_NombreJugador, &Pic_BotAyudaEstadis,
                         &Pic_BotSalirEstadis};
    Estadis.Foco = &Tex_NombreJugador;
}

}  // namespace

i32 Estadisticas() {
    Ficha ficha;
    ficha.Ventana = Ficha::DeEstadisticas;
    ficha.Datos = FichaDelPuzzle();
    return ImprimeLineas(Tex_Estadis, ficha);
}

void ConectaEstadis() {
    ReiniciaControles();
    Estadis.Load = Estadis_Load;
    Estadis.Unload = [] { PonPuntero(Mesa, PUNTERO_NORMAL); };
    Estadis.KeyPress = [](i16 caracter) { SaleConEscape(Estadis, caracter); };
    Tex_NombreJugador.Change = Tex_Nombre_Change;
    Pic_BotAyudaEstadis.Click = [] { AyudaDesdeVentana(AYUDA_ESTADISTICAS); };
    Pic_BotSalirEstadis.Click = [] { SaleDe(Estadis); };
}

}  // namespace tessario
