// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Prueba.h"

#include "core/Numeros.h"
#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Adornos.h"
#include "platform/Plataforma.h"
#include "settings/Mandos.h"

namespace tessario {

using namespace personal;

namespace {

constexpr const char* ROTULO = "Probar atracción";

// The small table, pixels: a frame filled with cells of Pic_BmpVario, and one cell's hole.
constexpr i32 MARCO_X = 4, MARCO_Y = 4, MARCO_ANCHO = 120, MARCO_ALTO = 72;
constexpr i32 CELDAS_X[] = {5, 35, 65, 95}, CELDAS_Y[] = {5, 29, 53};
constexpr i32 CELDA_ANCHO = 29, CELDA_ALTO = 23;
constexpr i32 TESELA_X = 102, TESELA_Y = 3;
constexpr i32 HUECO_X = 95, HUECO_Y = 4;
constexpr Color MARCO = paleta::TEJA, HUECO = paleta::GRIS_CLARO;

// The piece's way, a pixel to the right and one up at each step: first by hand, then by itself.
constexpr i32 SALIDA_X = 53, SALIDA_Y = 45;
constexpr i32 PASOS_A_MANO = 15, PASOS_SOLA = 26;
constexpr i32 PARPADEOS = 6;
constexpr i16 PAUSA_A_MANO = 22, PAUSA_OCULTA = 45, PAUSA_VISIBLE = 140, PAUSA_SOLA = 4,
              PAUSA_FINAL = 200;

constexpr int CAJA = pluma::Desde | pluma::ConColor | pluma::Relativo | pluma::Caja;

void PonCelda(Superficie& s, i32 x, i32 y) {
    BitBlt(s, x, y, CELDA_ANCHO, CELDA_ALTO, Pic_BmpVario, TESELA_X, TESELA_Y, SRCCOPY);
}

void LlevaPieza(i32 paso) {
    Pic_PruebaPeq.Mueve(SALIDA_X + paso, SALIDA_Y - paso);
}

void Parpadea() {
    for (i32 i = 0; i < PARPADEOS; ++i) {
        Pic_PruebaPeq.Visible = false;
        Pausa(PAUSA_OCULTA);
        Pic_PruebaPeq.Visible = true;
        Pausa(PAUSA_VISIBLE);
    }
}

}  // namespace

void PintaPrueba() {
    Pic_Prueba.Cls();
    Pic_Prueba.Line(CAJA, MARCO_X, MARCO_Y, MARCO_ANCHO, MARCO_ALTO, MARCO);
    for (const i32 y : CELDAS_Y)
        for (const i32 x : CELDAS_X) PonCelda(Pic_Prueba, x, y);
    Pic_Prueba.Line(CAJA | pluma::Llena, HUECO_X, HUECO_Y, CELDA_ANCHO, CELDA_ALTO, HUECO);
    PonCelda(Pic_PruebaPeq, 0, 0);
    LlevaPieza(0);
    PintaBotonLargo(Pic_BotPrueba, ROTULO, false);
}

void Pic_BotPrueba_MouseDown() {
    PintaBotonLargo(Pic_BotPrueba, ROTULO, true);
    SonidoJuego(1, sonido::TECLA);
    LlevaPieza(0);
    const i32 k = static_cast<i32>(Int((100 - Gbl.FactorAtraccion) * PASOS_SOLA / 100.0));
    for (i32 i = 1; i <= k + PASOS_A_MANO; ++i) {
        LlevaPieza(i);
        Pausa(PAUSA_A_MANO);
    }
    Parpadea();
    for (i32 i = k + 1; i <= PASOS_SOLA; ++i) {
        LlevaPieza(PASOS_A_MANO + i);
        Pausa(PAUSA_SOLA);
    }
    SonidoJuego(1, sonido::EN_SITIO);
    Pausa(PAUSA_FINAL);
    PintaBotonLargo(Pic_BotPrueba, ROTULO, false);
    SonidoJuego(1, sonido::SUELTA);
}

}  // namespace tessario
