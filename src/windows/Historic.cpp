// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Historic.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "core/Avisos.h"
#include "core/Cadenas.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Adornos.h"
#include "platform/Plataforma.h"
#include "records/Historial.h"
#include "records/Texto.h"
#include "rules/Juego.h"
#include "windows/HistoricBarras.h"
#include "windows/Lineas.h"
#include "windows/Marco.h"

namespace tessario {

Ventana Historic;
Cuadro Tex_Historic;
Cuadro Pic_OrdenHistorico_[ORDENES_HISTORICO];
Cuadro Pic_BotAdeAtr, Pic_Barras;
Cuadro Pic_BotAyudaHistoric, Pic_BotSalirHistoric;
Lista Lis_Ordenar;

namespace {

constexpr i16 PAUSA_VIAJE = 180;
constexpr i32 AYUDA_HISTORICO = 2161;

enum Orden : i16 { PorFecha = 1, PorNombre, PorFondo, PorDificultad };

struct Tecla {
    const char* titulo;
    i32 arriba;
};
constexpr Tecla TECLAS[ORDENES_HISTORICO] = {{"Fecha / Hora", 30},
                                             {"Nombre / Dificultad", 70},
                                             {"Fondo / Dificultad", 110},
                                             {"Dificultad / Tiempo", 150}};

// Window pixels.
namespace lugar {
constexpr i32 Ancho = 620;
constexpr i32 TeclaIzq = 30, TeclaAncho = 130, TeclaAlto = 26;
constexpr i32 TextoIzq = 190, TextoArr = 30, TextoAncho = 398;
constexpr i32 Derecha = TextoIzq + TextoAncho;  // of the buttons below the panel
constexpr i32 BarrasArr = 190;
constexpr i32 AdeAtrAncho = 113, AdeAtrAlto = 26;
}  // namespace lugar

// By the lines that each game has here: this window's own lay-out, so no fact of the game.
i32 AltoVentana() {
    switch (Gbl.JuegoActual) {
        case JuegoDeslizantes:
            return 423;
        case JuegoTangram:
            return 378;
        default:
            return 498;
    }
}

// ---------------------------------------------------------------- keys of the orders

// "00.0000" of 100 less the difficulty, so that the harder one comes first.
std::string ClaveDificultad(float nivel) {
    const double d = 100.0 - static_cast<double>(nivel);
    char cifras[64];
    const auto fin =
        std::to_chars(cifras, cifras + sizeof cifras, std::abs(d), std::chars_format::fixed, 4);
    std::string texto(cifras, fin.ptr);
    if (texto.find('.') < 2) texto.insert(0, 1, '0');
    return d < 0 ? "-" + texto : texto;
}

std::string ClaveFondo(const RegistroHistorico& r) {
    if (JuegoEnCurso().TieneModos) return r.Modelo;
    if (JuegoEnCurso().EligeFondo && r.Fondo != FONDO_IMAGEN) return std::to_string(r.Fondo);
    return TextoDeRuta(r.Fichero);
}

std::string Clave(i32 indice) {
    const RegistroHistorico& r = Gbl.Historico[indice];
    switch (Gbl.OrdenHistoricoActual) {
        case PorNombre:
            return r.Jugador + ClaveDificultad(r.Nivel);
        case PorFondo:
            return ClaveFondo(r) + ClaveDificultad(r.Nivel);
        case PorDificultad:
            return ClaveDificultad(r.Nivel) + Ceros(r.Segundos, 6);
        default:
            // Four digits, and more where there are more records, so that it stays file order.
            return Ceros(indice, std::max(4, Len(std::to_string(Gbl.UltimoHistorico))));
    }
}

void AvisaLectura(i16 error) {
    if (error == ERROR_FICHERO)
        Avisa(aviso::HISTORICO_AUSENTE);
    else if (error == ERROR_RUTA)
        Avisa(aviso::HISTORICO_SIN_RUTA);
    else
        Avisa(aviso::HISTORICO_ILEGIBLE, {std::to_string(error)});
}

// ---------------------------------------------------------------- painting

void PintaTecla(i16 orden) {
    Cuadro& tecla = Pic_OrdenHistorico(orden);
    const bool elegida = orden == Gbl.OrdenHistoricoActual;
    PintaTeselaLarga(tecla, elegida);
    tecla.Font.Negrita = elegida;
    const std::string titulo = TECLAS[orden - 1].titulo;
    const i32 margen = (lugar::TeclaAncho - tecla.TextWidth(titulo)) / 2;
    TextoConSombra(tecla, margen, elegida ? 6 : 5, titulo, true);
}

void PintaFondo() {
    Historic.Cls();
    EnmarcaVentana(Historic);
    TitulaVentana(Historic, lugar::TextoIzq + lugar::TextoAncho / 2,
                  TECLAS[Gbl.OrdenHistoricoActual - 1].titulo);
    HundeEn(Historic, Tex_Historic);
    HundeEn(Historic, Pic_Barras);
}

// The panel with nothing in it, down to the buttons.
void VaciaPanel() {
    Tex_Historic.Mueve(lugar::TextoIzq, lugar::TextoArr);
    Tex_Historic.Tamano(lugar::TextoAncho,
                        Pic_BotSalirHistoric.Top - ENTRE_BOTONES - lugar::TextoArr);
    Tex_Historic.PonBackColor(PAPEL_LINEAS);
    Tex_Historic.NombreAccesible = "Sin puzzles resueltos";
}

void Redibuja() {
    if (Lis_Ordenar.ListCount() == 0) VaciaPanel();
    MuestraRegistro();
    DibujaTeclas();
    DibujaBarras(Pic_Barras);
}

// ---------------------------------------------------------------- going from record to record

bool PuedeIr(i16 boton) {
    return boton <= 2 ? Gbl.PosicionActual > 0 : Gbl.PosicionActual < Gbl.UltimoHistorico;
}

void Viaja(i16 boton) {
    if (!PuedeIr(boton)) return;
    SonidoJuego(1, sonido::TECLA);
    Gbl.BotonAdeAtr = boton;
    DibujaAdeAtr(Pic_BotAdeAtr, boton);
    Pausa(PAUSA_VIAJE);
    const i32 destinos[] = {0, Gbl.PosicionActual - 1, Gbl.PosicionActual + 1, Gbl.UltimoHistorico};
    Gbl.PosicionActual = destinos[boton - 1];
    DibujaAdeAtr(Pic_BotAdeAtr, 0);
    Redibuja();
}

void AcabaViaje() {
    if (std::exchange(Gbl.BotonAdeAtr, i16{0}) != 0) SonidoJuego(1, sonido::TECLA);
}

void Pic_BotAdeAtr_MouseMove(float X, float Y) {
    static constexpr const char* TEXTOS[] = {"", "Ir al principio ", " Retroceder una página ",
                                             " Avanzar una página ", " Ir al final "};
    const i16 boton = BotonAdeAtrEn(X, Y);
    Pic_BotAdeAtr.ToolTipText = TEXTOS[boton];
    if (boton == 0)
        PonPuntero(Pic_BotAdeAtr, PUNTERO_NORMAL);
    else
        PonCursor(Pic_BotAdeAtr, PuedeIr(boton) ? cursor::MANO_INDICE : cursor::SENAL_PROHIBIDO);
}

void Pic_BotAdeAtr_MouseDown(float X, float Y) {
    if (const i16 boton = BotonAdeAtrEn(X, Y)) Viaja(boton);
    Pic_BotAdeAtr_MouseMove(X, Y);  // it may have come to an end
}

void Pic_Barras_Click(float X) {
    const i32 lugar = BarraEn(Pic_Barras, X);
    if (lugar < 0) return;
    SonidoJuego(1, sonido::TECLA);
    Gbl.PosicionActual = lugar;
    Redibuja();
}

void EligeOrden(i16 orden) {
    SonidoJuego(1, sonido::SUELTA);
    Gbl.OrdenHistoricoActual = orden;
    CargaLisOrdenar();
    Gbl.PosicionActual = 0;
    Redibuja();
}

// Keys that stand for the travel buttons, and the digits for the orders.
void Historic_KeyDown(i16 tecla) {
    static constexpr struct {
        i16 tecla, boton;
    } VIAJES[] = {{36, 1}, {37, 2}, {33, 2}, {39, 3}, {34, 3}, {35, 4}};
    for (const auto& v : VIAJES)
        if (v.tecla == tecla) {
            Viaja(v.boton);
            AcabaViaje();
        }
    if (tecla >= '1' && tecla < '1' + ORDENES_HISTORICO) EligeOrden(static_cast<i16>(tecla - '0'));
}

// ---------------------------------------------------------------- the window

void Historic_Load() {
    PreparaVentana(Historic, lugar::Ancho, AltoVentana());
    ColocaBoton(Pic_BotSalirHistoric, TeselaSalir, Historic, lugar::Derecha);
    ColocaBoton(Pic_BotAyudaHistoric, TeselaAyuda, Historic,
                lugar::Derecha - LADO_BOTON - ENTRE_BOTONES);
    for (i16 i = 1; i <= ORDENES_HISTORICO; ++i) {
        Pic_OrdenHistorico(i).Mueve(lugar::TeclaIzq, TECLAS[i - 1].arriba);
        Pic_OrdenHistorico(i).Tamano(lugar::TeclaAncho, lugar::TeclaAlto);
    }
    Pic_Barras.Mueve(lugar::TeclaIzq, lugar::BarrasArr);
    Pic_Barras.Tamano(lugar::TeclaAncho, Historic.Height() - PIE_VENTANA - lugar::BarrasArr);
    Pic_BotAdeAtr.Tamano(lugar::AdeAtrAncho, lugar::AdeAtrAlto);
    Pic_BotAdeAtr.Mueve(lugar::TextoIzq,
                        Pic_BotSalirHistoric.Top + (LADO_BOTON - lugar::AdeAtrAlto) / 2);
    DibujaAdeAtr(Pic_BotAdeAtr, 0);
    Gbl.OrdenHistoricoActual = PorFecha;
    Gbl.PosicionActual = 0;
    Gbl.BotonAdeAtr = 0;
    CargaLisOrdenar();
    Redibuja();
}

void Historic_Unload() {
    Lis_Ordenar.Clear();
    Gbl.Historico = {};
}

void ReiniciaControles() {
    Historic = Ventana{};
    Historic.Nombre = "Historic";
    Historic.Caption = "Histórico de puzzles resueltos";
    Lis_Ordenar = Lista{};
    Lis_Ordenar.Nombre = "Lis_Ordenar";
    Lis_Ordenar.Ordenada = true;
    Tex_Historic = Cuadro{};
    Tex_Historic.Nombre = "Texto";
    Tex_Historic.TabStop = true;
    for (i16 i = 1; i <= ORDENES_HISTORICO; ++i)
        ReiniciaBoton(Pic_OrdenHistorico(i), "Pic_Orden", TECLAS[i - 1].titulo);
    ReiniciaBoton(Pic_BotAdeAtr, "Pic_BotAdeAtr", "Recorrer el Histórico: Inicio, flechas y Fin");
    Pic_BotAdeAtr.TabStop = false;  // its keys are the window's
    PonPuntero(Pic_BotAdeAtr, PUNTERO_NORMAL);
    ReiniciaBoton(Pic_Barras, "Pic_Barras", "");
    Pic_Barras.TabStop = false;
    ReiniciaBoton(Pic_BotAyudaHistoric, "Pic_BotAyuda", "Ayuda");
    ReiniciaBoton(Pic_BotSalirHistoric, "Pic_BotSalir", "Cerrar");
    Historic.Controles = {&Tex_Historic};
    for (i16 i = 1; i <= ORDENES_HISTORICO; ++i)
        Historic.Controles.push_back(&Pic_OrdenHistorico(i));
    for (Control* c : {&Pic_Barras, &Pic_BotAdeAtr, &Pic_BotAyudaHistoric, &Pic_BotSalirHistoric})
        Historic.Controles.push_back(c);
}

}  // namespace

void CargaLisOrdenar() {
    Lis_Ordenar.Clear();
    Gbl.ErrorApertura = LeeHistorico();
    if (Gbl.ErrorApertura != 0) {
        AvisaLectura(Gbl.ErrorApertura);
        return;
    }
    std::vector<Lista::Elemento> elementos;
    elementos.reserve(static_cast<std::size_t>(Gbl.UltimoHistorico + 1));
    for (i32 i = 0; i <= Gbl.UltimoHistorico; ++i) elementos.push_back({Clave(i), i});
    Lis_Ordenar.Rellena(std::move(elementos));
}

void DibujaTeclas() {
    PintaFondo();
    for (i16 i = 1; i <= ORDENES_HISTORICO; ++i) PintaTecla(i);
}

void MuestraRegistro() {
    if (Gbl.PosicionActual < 0 || Gbl.PosicionActual >= Lis_Ordenar.ListCount()) return;
    const auto lugar = static_cast<std::size_t>(Gbl.PosicionActual);
    Ficha ficha;
    ficha.Ventana = Ficha::DelHistorico;
    ficha.Datos = Gbl.Historico[Lis_Ordenar.Elementos[lugar].Dato];
    ficha.Orden = Gbl.PosicionActual + 1;
    Tex_Historic.Mueve(lugar::TextoIzq, lugar::TextoArr);
    ImprimeLineas(Tex_Historic, ficha);
}

void ConectaHistoric() {
    ReiniciaControles();
    Historic.Load = Historic_Load;
    Historic.Unload = Historic_Unload;
    Historic.KeyDown = [](i16 tecla, i16) { Historic_KeyDown(tecla); };
    Historic.KeyPress = [](i16 caracter) { SaleConEscape(Historic, caracter); };
    for (i16 i = 1; i <= ORDENES_HISTORICO; ++i)
        Pic_OrdenHistorico(i).Click = [i] { EligeOrden(i); };
    Pic_BotAdeAtr.MouseMove = [](i16, i16, float X, float Y) { Pic_BotAdeAtr_MouseMove(X, Y); };
    Pic_BotAdeAtr.MouseDown = [](i16, i16, float X, float Y) { Pic_BotAdeAtr_MouseDown(X, Y); };
    Pic_BotAdeAtr.MouseUp = [](i16, i16, float, float) { AcabaViaje(); };
    Pic_Barras.MouseDown = [](i16, i16, float X, float) { Pic_Barras_Click(X); };
    Pic_BotAyudaHistoric.Click = [] { AyudaDesdeVentana(AYUDA_HISTORICO); };
    Pic_BotSalirHistoric.Click = [] { SaleDe(Historic); };
}

}  // namespace tessario
