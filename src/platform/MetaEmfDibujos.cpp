// SPDX-License-Identifier: GPL-3.0-or-later
// EMF: the records of pictures and text.
#include "platform/MetaEmf.h"

namespace tessario {

namespace {

constexpr std::size_t LETRAS_MAXIMAS = 65536;  // of one text

}  // namespace

// --- Pictures.

std::optional<Mapa> LectorEmf::Bitmap(const Registro& r, std::size_t i, u32 uso, bool conAlfa,
                                      i32 filas, CabeceraDib* leida) {
    const std::size_t cabecera = r.U32(i), nCabecera = r.U32(i + 4);
    const std::size_t bits = r.U32(i + 8), nBits = r.U32(i + 12);
    return BitmapDe(c_, r.Parte(cabecera, nCabecera), r.Parte(bits, nBits), uso, conAlfa, filas,
                    leida);
}

void LectorEmf::Bloque(u32 tipo, const Registro& r) {
    CopiaMeta c;
    const PuntoD lugar = r.P32(24), medida = r.P32(32);
    const u32 codigo = r.U32(40);
    const bool estira = tipo == EMR_STRETCHBLT || tipo >= EMR_ALPHABLEND;
    std::optional<Mapa> origen, mascara;
    if (r.U32(84) != 0 || r.U32(88) != 0) {
        origen = Bitmap(r, 84, r.U32(80), tipo == EMR_ALPHABLEND);
        if (!origen) return;
        c.Origen = &*origen;
        const Matriz m = r.M32(52);
        const PuntoD desde = m.De(r.P32(44));
        const PuntoD cuanto = m.Vector(estira ? r.P32(100) : medida);
        c.Izq = desde.x;
        c.Arr = desde.y;
        c.Ancho = cuanto.x;
        c.Alto = cuanto.y;
    } else if (tipo >= EMR_ALPHABLEND) {
        return;
    }
    c.Operacion = (codigo >> 16) & 0xFFU;
    if (tipo == EMR_MASKBLT) {
        c.OperacionFuera = codigo >> 24;
        if (r.U32(112) != 0) mascara = Bitmap(r, 112, r.U32(108));
        if (mascara) c.Mascara = &*mascara;
        c.MascaraX = r.I32(100);
        c.MascaraY = r.I32(104);
    }
    if (tipo == EMR_ALPHABLEND) {
        c.Tipo = CopiaMeta::Clase::Mezcla;
        c.Constante = (codigo >> 16) & 0xFFU;
        c.AlfaPropia = (codigo >> 24) & 1U;
    } else if (tipo > EMR_ALPHABLEND) {
        c.Tipo = CopiaMeta::Clase::Clave;
        c.Clave = c_.Color({codigo});
    }
    c_.Copia(c, lugar, medida);
}

void LectorEmf::Paralelogramo(const Registro& r) {
    std::optional<Mapa> origen = Bitmap(r, 96, r.U32(92)), mascara;
    if (!origen) return;
    CopiaMeta c;
    c.Origen = &*origen;
    const Matriz m = r.M32(64), alPixel = c_.AlDispositivo();
    const PuntoD desde = m.De(r.P32(48)), cuanto = m.Vector(r.P32(56));
    c.Izq = desde.x;
    c.Arr = desde.y;
    c.Ancho = cuanto.x;
    c.Alto = cuanto.y;
    c.Esquina = alPixel.De(r.P32(24));
    c.Derecha = alPixel.De(r.P32(32));
    c.Abajo = alPixel.De(r.P32(40));
    if (r.Largo() >= 140 && r.U32(124) != 0) mascara = Bitmap(r, 124, r.U32(120));
    if (mascara) c.Mascara = &*mascara;
    c.MascaraX = r.I32(112);
    c.MascaraY = r.I32(116);
    c_.CopiaA(c);
}

// Rows of a bitmap as they are, pixel by pixel; of a large one the file may hold only a part.
void LectorEmf::AlDispositivo(const Registro& r) {
    const i32 inicio = r.I32(68), filas = r.I32(72);
    if (filas <= 0) return;
    CabeceraDib d;
    const std::optional<Mapa> origen = Bitmap(r, 48, r.U32(64), false, filas, &d);
    if (!origen) return;
    CopiaMeta c;
    c.Origen = &*origen;
    const PuntoD desde = r.P32(32), cuanto = r.P32(40);
    c.Izq = desde.x;
    // Rows are counted from the bitmap's lower edge, unless the top one is stored first.
    c.Arr = d.DesdeArriba ? desde.y - inicio : double(inicio) + origen->Alto - desde.y - cuanto.y;
    c.Ancho = cuanto.x;
    c.Alto = cuanto.y;
    const PuntoD e = c_.Redondo(r.P32(24));
    const Matriz& m = c_.Base();
    c.Esquina = e;
    c.Derecha = {e.x + cuanto.x * m.a, e.y};
    c.Abajo = {e.x, e.y + cuanto.y * m.d};
    c_.CopiaA(c);
}

void LectorEmf::Estirado(const Registro& r) {
    std::optional<Mapa> origen;
    CopiaMeta c;
    if (r.U32(52) != 0) {
        CabeceraDib d;
        origen = Bitmap(r, 48, r.U32(64), false, 0, &d);
        if (!origen) return;
        c.Origen = &*origen;
        const PuntoD desde = r.P32(32), cuanto = r.P32(40);
        c.Izq = desde.x;
        c.Arr = d.DesdeArriba ? desde.y : double(d.Alto) - desde.y - cuanto.y;
        c.Ancho = cuanto.x;
        c.Alto = cuanto.y;
    }
    c.Operacion = (r.U32(68) >> 16) & 0xFFU;
    c_.Copia(c, r.P32(24), r.P32(72));
}

void LectorEmf::Degradado(const Registro& r) {
    constexpr std::size_t VERTICES = 36, VERTICE = 16;
    constexpr u32 HORIZONTAL = 0, VERTICAL = 1, TRIANGULOS = 2;
    const std::size_t n = r.U32(24), figuras = r.U32(28);
    const u32 modo = r.U32(32);
    r.Parte(VERTICES, n * VERTICE);
    const std::size_t indices = VERTICES + n * VERTICE;
    const auto donde = [&](u32 i) {
        if (i >= n) throw RegistroCorto{};
        return r.P32(VERTICES + i * VERTICE);
    };
    const auto color = [&](u32 i) {
        const std::size_t v = VERTICES + i * VERTICE + 8;
        return (r.U16(v) >> 8) << 16 | (r.U16(v + 2) >> 8) << 8 | r.U16(v + 4) >> 8;
    };
    const std::size_t por = modo == TRIANGULOS ? 12 : 8;
    r.Parte(indices, figuras * por);
    for (std::size_t k = 0; k < figuras; ++k) {
        const std::size_t i = indices + k * por;
        const u32 a = r.U32(i), b = r.U32(i + 4);
        if (modo == TRIANGULOS) {
            const u32 c = r.U32(i + 8);
            const PuntoD p[3] = {donde(a), donde(b), donde(c)};
            const Pixel t[3] = {color(a), color(b), color(c)};
            c_.Degrada(p, t);
        } else if (modo == HORIZONTAL || modo == VERTICAL) {
            const PuntoD p = donde(a), q = donde(b);
            const Pixel t = color(a), u = color(b);
            const PuntoD uno[3] = {p, {q.x, p.y}, {p.x, q.y}},
                         otro[3] = {q, {p.x, q.y}, {q.x, p.y}};
            const bool h = modo == HORIZONTAL;
            const Pixel cUno[3] = {t, h ? u : t, h ? t : u}, cOtro[3] = {u, h ? t : u, h ? u : t};
            c_.Degrada(uno, cUno);
            c_.Degrada(otro, cOtro);
        }
    }
}

LectorEmf::Acciones::Tabla LectorEmf::Copias() {
    static constexpr Acciones::Fila filas[] = {
        {EMR_BITBLT, [](Yo l, Reg r) { l.Bloque(EMR_BITBLT, r); }},
        {EMR_STRETCHBLT, [](Yo l, Reg r) { l.Bloque(EMR_STRETCHBLT, r); }},
        {EMR_MASKBLT, [](Yo l, Reg r) { l.Bloque(EMR_MASKBLT, r); }},
        {EMR_ALPHABLEND, [](Yo l, Reg r) { l.Bloque(EMR_ALPHABLEND, r); }},
        {EMR_TRANSPARENTBLT, [](Yo l, Reg r) { l.Bloque(EMR_TRANSPARENTBLT, r); }},
        {EMR_PLGBLT, [](Yo l, Reg r) { l.Paralelogramo(r); }},
        {EMR_SETDIBITSTODEVICE, [](Yo l, Reg r) { l.AlDispositivo(r); }},
        {EMR_STRETCHDIBITS, [](Yo l, Reg r) { l.Estirado(r); }},
        {EMR_GRADIENTFILL, [](Yo l, Reg r) { l.Degradado(r); }},
    };
    return filas;
}

// --- Text.

void LectorEmf::Texto(const Registro& r, std::size_t i, bool ancho) {
    constexpr unsigned CON_Y = 0x2000;
    ContextoMeta::Escrito t;
    t.Lugar = r.P32(i);
    const std::size_t n = r.U32(i + 8), desde = r.U32(i + 12);
    t.Opciones = r.U32(i + 16);
    t.CajaA = r.P32(i + 20);
    t.CajaB = r.P32(i + 28);
    const std::size_t avances = r.U32(i + 36);
    if (n > LETRAS_MAXIMAS) throw RegistroCorto{};
    if (n > 0) {
        if (ancho) {
            const Bytes b = r.Parte(desde, n * 2);
            for (std::size_t k = 0; k < n; ++k) t.Letras += static_cast<char16_t>(Lee16(b, 2 * k));
        } else {
            t.Letras = LetrasDe(r.Parte(desde, n), c_.E.ObjFuente->Fuente.Juego);
        }
        const bool conY = (t.Opciones & CON_Y) != 0;
        const std::size_t paso = conY ? 8 : 4;
        if (avances != 0 && avances + n * paso <= r.Largo())
            for (std::size_t k = 0; k < n; ++k)
                t.Avances.push_back({double(r.I32(avances + k * paso)),
                                     conY ? double(r.I32(avances + k * paso + 4)) : 0});
    }
    c_.Escribe(t);
}

void LectorEmf::TextoBreve(const Registro& r) {
    constexpr unsigned SIN_CAJA = 0x100, OCHO_BITS = 0x200;
    ContextoMeta::Escrito t;
    t.Lugar = r.P32(8);
    const std::size_t n = r.U32(16);
    t.Opciones = r.U32(20);
    std::size_t i = 36;
    if (t.Opciones & SIN_CAJA) {
        t.Opciones &= ~6U;
    } else {
        t.CajaA = r.P32(i);
        t.CajaB = r.P32(i + 8);
        i += 16;
    }
    if (n > LETRAS_MAXIMAS) throw RegistroCorto{};
    if (t.Opciones & OCHO_BITS) {
        t.Letras = LetrasDe(r.Parte(i, n), 0);
    } else {
        const Bytes b = r.Parte(i, n * 2);
        for (std::size_t k = 0; k < n; ++k) t.Letras += static_cast<char16_t>(Lee16(b, 2 * k));
    }
    c_.Escribe(t);
}

void LectorEmf::Textos(const Registro& r, bool ancho) {
    constexpr std::size_t CUANTOS = 36, PRIMERO = 40, PASO = 40;
    const std::size_t n = r.U32(CUANTOS);
    if (n > r.Largo() / PASO) throw RegistroCorto{};
    for (std::size_t k = 0; k < n; ++k) Texto(r, PRIMERO + k * PASO, ancho);
}

LectorEmf::Acciones::Tabla LectorEmf::Textos() {
    static constexpr std::size_t TEXTO = 36;
    static constexpr Acciones::Fila filas[] = {
        {EMR_EXTTEXTOUTA, [](Yo l, Reg r) { l.Texto(r, TEXTO, false); }},
        {EMR_EXTTEXTOUTW, [](Yo l, Reg r) { l.Texto(r, TEXTO, true); }},
        {EMR_POLYTEXTOUTA, [](Yo l, Reg r) { l.Textos(r, false); }},
        {EMR_POLYTEXTOUTW, [](Yo l, Reg r) { l.Textos(r, true); }},
        {EMR_SMALLTEXTOUT, [](Yo l, Reg r) { l.TextoBreve(r); }},
    };
    return filas;
}

}  // namespace tessario
