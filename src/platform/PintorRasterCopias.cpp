// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures within a metafile: copied, stretched, turned, mixed with what is there.
#include <algorithm>
#include <cmath>

#include "platform/PintorRaster.h"

namespace tessario {

namespace {

constexpr u32 COPIA = 0xCC, DIBUJO = 0xF0;
constexpr int Y_LOGICO = 1, O_LOGICO = 2, MEDIA = 4;  // what shrinking does with pixels too many
constexpr i32 MUESTRAS_MAXIMAS = 16;                  // of them in each direction

// The 256 raster operations: bit i of the number is the result for the i-th combination of
// pattern, source and destination.
Pixel Rop3(u32 operacion, Pixel p, Pixel s, Pixel d) {
    Pixel r = 0;
    for (u32 i = 0; i < 8; ++i)
        if ((operacion >> i) & 1U)
            r |= ((i & 4U) ? p : ~p) & ((i & 2U) ? s : ~s) & ((i & 1U) ? d : ~d);
    return r & 0xFFFFFFU;
}

// The pattern is not needed for this operation.
bool SinDibujo(u32 operacion) {
    return (operacion >> 4 & 0xFU) == (operacion & 0xFU);
}
bool SinOrigen(u32 operacion) {
    return ((operacion >> 2) & 0x33U) == (operacion & 0x33U);
}

Pixel Mezcla(Pixel s, Pixel d, const CopiaMeta& c) {
    const u32 propia = c.AlfaPropia ? s >> 24 : 255U;
    Pixel r = 0;
    for (unsigned k = 0; k < 24; k += 8) {
        const u32 a = (s >> k) & 0xFFU, b = (d >> k) & 0xFFU;
        // The source's colours are multiplied by its own opacity already.
        const u32 v = (a * c.Constante * 255U + b * (255U * 255U - propia * c.Constante) + 32512U) /
                      (255U * 255U);
        r |= std::min(v, 255U) << k;
    }
    return r;
}

}  // namespace

// The source's colour under a pixel. (u, v): its middle; the steps: how much of the source it is.
Pixel PintorRaster::Muestra(const CopiaMeta& c, double u, double v, double pasoU, double pasoV,
                            bool& hay) const {
    const Mapa& o = *c.Origen;
    const auto en = [](double w) { return static_cast<i32>(std::floor(w)); };
    hay = u >= 0 && v >= 0 && u < o.Ancho && v < o.Alto;
    if (!hay) return 0;
    const bool junta = c.Tipo == CopiaMeta::Clase::Operacion &&
                       (c.Estira == Y_LOGICO || c.Estira == O_LOGICO || c.Estira == MEDIA);
    if (!junta || (pasoU < 1.5 && pasoV < 1.5)) return o.Fila(en(v))[en(u)];
    const i32 x0 = std::clamp(en(u - pasoU / 2 + 0.5), 0, o.Ancho - 1);
    const i32 x1 = std::clamp(en(u + pasoU / 2 + 0.5), x0 + 1, o.Ancho);
    const i32 y0 = std::clamp(en(v - pasoV / 2 + 0.5), 0, o.Alto - 1);
    const i32 y1 = std::clamp(en(v + pasoV / 2 + 0.5), y0 + 1, o.Alto);
    const i32 saltoX = (x1 - x0) / MUESTRAS_MAXIMAS + 1, saltoY = (y1 - y0) / MUESTRAS_MAXIMAS + 1;
    Pixel y = 0xFFFFFF, ol = 0;
    u32 suma[3] = {0, 0, 0}, n = 0;
    for (i32 b = y0; b < y1; b += saltoY)
        for (i32 a = x0; a < x1; a += saltoX) {
            const Pixel p = o.Fila(b)[a];
            y &= p;
            ol |= p;
            for (unsigned k = 0; k < 3; ++k) suma[k] += (p >> (8 * k)) & 0xFFU;
            ++n;
        }
    if (c.Estira == Y_LOGICO) return y;
    if (c.Estira == O_LOGICO) return ol;
    return (suma[0] + n / 2) / n | ((suma[1] + n / 2) / n) << 8 | ((suma[2] + n / 2) / n) << 16;
}

Pixel PintorRaster::Combina(const CopiaMeta& c, Pixel s, Pixel d, i32 x, i32 y, bool dentro,
                            const BrochaMeta& b, const ModosMeta& m) const {
    if (c.Tipo == CopiaMeta::Clase::Mezcla) return Mezcla(s, d, c);
    if (c.Tipo == CopiaMeta::Clase::Clave) return (s & 0xFFFFFFU) == c.Clave ? d : s & 0xFFFFFFU;
    const u32 operacion = dentro ? c.Operacion : c.OperacionFuera;
    Pixel p = 0;
    if (!SinDibujo(operacion) && !Tinta(x, y, b, m, p)) return d;
    return Rop3(operacion, p, s, d);
}

void PintorRaster::Copia(const CopiaMeta& c, const BrochaMeta& b, const ModosMeta& m) {
    const bool recta = c.Derecha.y == c.Esquina.y && c.Abajo.x == c.Esquina.x;
    PuntoD e = c.Esquina, d = c.Derecha, a = c.Abajo;
    if (recta)
        for (PuntoD* p : {&e, &d, &a}) *p = {std::floor(p->x + 0.5), std::floor(p->y + 0.5)};
    // Without a source the operation is over the brush and what is there.
    const bool lleva = c.Origen && !(c.Tipo == CopiaMeta::Clase::Operacion &&
                                     SinOrigen(c.Operacion) && SinOrigen(c.OperacionFuera));
    if (c.Tipo == CopiaMeta::Clase::Operacion && !c.Origen && !SinOrigen(c.Operacion)) return;
    Matriz vuelve;
    if (!Matriz{d.x - e.x, d.y - e.y, a.x - e.x, a.y - e.y, e.x, e.y}.Inversa(vuelve)) return;
    const double pasoU = std::hypot(vuelve.a * c.Ancho, vuelve.c * c.Ancho);
    const double pasoV = std::hypot(vuelve.b * c.Alto, vuelve.d * c.Alto);
    const double muestras =
        std::min(pasoU + 1, 1.0 * MUESTRAS_MAXIMAS) * std::min(pasoV + 1, 1.0 * MUESTRAS_MAXIMAS);
    const bool lisa = c.Tipo == CopiaMeta::Clase::Operacion && c.Operacion == COPIA && !c.Mascara;
    const Trazado t{{{e, d, {d.x + a.x - e.x, d.y + a.y - e.y}, a}, true}};
    if (!lleva && c.Operacion == DIBUJO && !c.Mascara) {
        ModosMeta copia = m;
        copia.Rop2 = MODO_COPIA;
        Rellena(t, true, b, copia);
        return;
    }
    Barre(t, true, m.Caja, [&](i32 fila, i32 desde, i32 hasta) {
        Recorta(fila, desde, hasta, m, [&](i32 y, i32 izq, i32 der) {
            esfuerzo_->Gasta(static_cast<long long>((der - izq) *
                                                    (lleva && c.Estira != 3 ? 10 + muestras : 25)));
            Pixel* const linea = m_.Fila(y);
            for (i32 x = izq; x < der; ++x) {
                const PuntoD k = vuelve.De({x + 0.5, y + 0.5});
                const double u = k.x * c.Ancho, v = k.y * c.Alto;
                Pixel s = 0;
                bool hay = true;
                if (lleva) s = Muestra(c, c.Izq + u, c.Arr + v, pasoU, pasoV, hay);
                if (!hay) continue;
                if (lisa) {
                    linea[x] = s & 0xFFFFFFU;
                    continue;
                }
                bool dentro = true;
                if (c.Mascara) {
                    const double mx = c.MascaraX + u, my = c.MascaraY + v;
                    dentro = mx >= 0 && my >= 0 && mx < c.Mascara->Ancho && my < c.Mascara->Alto &&
                             c.Mascara->Fila(static_cast<i32>(my))[static_cast<i32>(mx)] != 0;
                }
                linea[x] = Combina(c, s, linea[x], x, y, dentro, b, m);
            }
        });
    });
}

}  // namespace tessario
