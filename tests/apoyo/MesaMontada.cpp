// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/MesaMontada.h"

#include "apoyo/Juegos.h"
#include "apoyo/MesaMoviles.h"
#include "panel/Botonera.h"
#include "panel/Colocadas.h"
#include "panel/Desplazamiento.h"
#include "pieces/Composicion.h"
#include "pieces/Raster.h"
#include "rules/Despacho.h"
#include "rules/PuzzBas.h"
#include "sliding/Tablero.h"
#include "start/Arranque.h"
#include "table/Mesa.h"
#include "table/Ordenes.h"

namespace tessario {

void MesaMontada::SetUp() {
    PruebaBase::SetUp();
    Gbl.VelocidadJuego = 100;
    Gbl.Sonido = true;
    Gbl.FinLinea = "\r\n";
    ConectaMesa();
    SalidaDelPrograma = TerminaPrograma;
    Inicializa();
    Mesa.Tamano(P().ancho + 2, P().alto + 2);
    QuitaBarras();
    CargaBotonera();
}

void MesaMontada::TearDown() {
    VentanasOrdenes = VentanasDeOrdenes{};
    PruebaBase::TearDown();
}

void MesaMontada::Moviles(i16 lado, i32 ancho, i32 alto, i16 forma) {
    PonMoviles(forma, lado, ancho, alto);
    const Imagen mapa = ImagenDeMuestra(ancho, alto);
    for (Superficie* s : {&Pic_FonTamReal, &Pic_FonTamModi}) {
        s->Tamano(ancho, alto);
        s->PonPicture(mapa);
    }
    PreparaJuego(true);
    P().sonidos.clear();
}

void MesaMontada::Deslizantes(i16 lado) {
    PonDeslizantes(lado);
    PreparaJuego(true);
    ColocaPiezas(1);
    P().sonidos.clear();
}

void MesaMontada::TableroResuelto() {
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
        Gbl.Piezas[i].X = Gbl.Piezas[i].XBien;
        Gbl.Piezas[i].Y = Gbl.Piezas[i].YBien;
    }
    Gbl.HuecoX = static_cast<i16>(Gbl.MargenX + (Gbl.PiezasPorLado - 1) * Gbl.AnchoCelda);
    Gbl.HuecoY = static_cast<i16>(Gbl.MargenY + (Gbl.PiezasPorLado - 1) * Gbl.AltoCelda);
    ColocaPiezas(1);
}

void MesaMontada::Tangram(i16 modo) {
    PonTangram(modo);
    constexpr Punto sitios[] = {{20, 100},  {230, 100}, {20, 220}, {160, 220},
                                {260, 220}, {20, 320},  {160, 320}};
    for (i16 i = 1; i <= 7 && modo == MODO_RESOLVER; ++i) {
        Gbl.Piezas[i].XBien = static_cast<i16>(sitios[i - 1].x);
        Gbl.Piezas[i].YBien = static_cast<i16>(sitios[i - 1].y);
    }
    PreparaJuego(true);
    P().sonidos.clear();
}

Punto MesaMontada::PuntoDe(i16 piece) {
    PreparaPieza(piece);
    const Rect caja = CajaDePieza(piece);
    const i32 cx = caja.Ancho() / 2;
    const i32 cy = caja.Alto() / 2;
    for (i32 r = 0; r < cx; ++r)
        for (const Punto d : {Punto{0, 0}, {r, r}, {-r, r}, {r, -r}, {-r, -r}, {0, r}, {0, -r}})
            if (Pic_PiezaMascara.Point(cx + d.x, cy + d.y) == 0)
                return {caja.Izq + cx + d.x, caja.Arr + cy + d.y};
    ADD_FAILURE() << "piece " << piece << " shows nowhere";
    return {caja.Izq, caja.Arr};
}

void MesaMontada::Arrastra(i16 piece, i32 x, i32 y) {
    const Punto p = PuntoDe(piece);
    const i32 dx = x - Gbl.Piezas[piece].X;
    const i32 dy = y - Gbl.Piezas[piece].Y;
    const Punto mesa = PunteroPrueba::Origen(Pic_Trabajo);
    Puntero.Mueve(p.x + mesa.x, p.y + mesa.y);
    ASSERT_EQ(Gbl.PiezaActual, piece);
    Puntero.Aprieta();
    Puntero.Mueve(p.x + mesa.x + dx / 2, p.y + mesa.y + dy / 2);
    Puntero.Mueve(p.x + mesa.x + dx, p.y + mesa.y + dy);
    Puntero.Suelta();
}

void MesaMontada::Pon(i16 piece, i32 x, i32 y, i32 giro) {
    Gbl.Piezas[piece].X = static_cast<i16>(x);
    Gbl.Piezas[piece].Y = static_cast<i16>(y);
    Gbl.Piezas[piece].Giro = static_cast<i16>(giro);
    ColocaPiezas(1);
}

std::vector<int> MesaMontada::Sonidos() {
    std::vector<int> numeros;
    for (const auto& s : P().sonidos) numeros.push_back(s.first);
    P().sonidos.clear();
    return numeros;
}

void MesaMontada::PulsaOrden(i16 indice) {
    const Punto o = PunteroPrueba::Origen(Pic_Boton(indice));
    Puntero.Pulsa(o.x + 24, o.y + 24);
}

}  // namespace tessario
