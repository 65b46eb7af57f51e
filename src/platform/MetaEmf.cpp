// SPDX-License-Identifier: GPL-3.0-or-later
// EMF: the walk over its records. Numbers of records and offsets are those of the public format.
#include "platform/MetaEmf.h"

#include <array>
#include <cmath>
#include <cstdlib>

namespace tessario {

namespace {

constexpr std::size_t CABECERA_MINIMA = 88, CABECERA_MICRAS = 108;
constexpr u32 FIRMA = 0x464D4520;
constexpr double PIXELES_POR_PULGADA = 96, CENTESIMAS_POR_PULGADA = 2540;
constexpr u32 REGISTROS_MAXIMOS = 4'000'000;
constexpr long long GASTO_REGISTRO = 100;
constexpr u32 EXISTENCIAS = 0x80000000U;
constexpr std::size_t OBJETOS_MAXIMOS = 65536;
constexpr std::size_t PARTES_MAXIMAS = 1'000'000;
// Where the records of lines and polygons have the number of their points, and these.
constexpr std::size_t CUENTA = 24, PUNTOS = 28;

struct Cabecera {
    std::size_t Largo = 0;
    std::array<double, 4> Marco{};  // left, top, right, bottom, hundredths of a millimetre
    PuntoD PixelesPorMm;
    i32 Ancho = 0, Alto = 0;
};

Lectura LeeCabecera(Bytes f, Cabecera& c) {
    if (!EsEmf(f)) return Lectura::Imposible;
    const Registro r(f);
    c.Largo = r.U32(4);
    if (c.Largo < CABECERA_MINIMA || c.Largo > f.size()) return Lectura::Imposible;
    for (std::size_t i = 0; i < 4; ++i) c.Marco[i] = r.I32(24 + 4 * i);
    PuntoD mm = r.P32(80);
    // A description or a pixel format may begin before the newer fields would end.
    std::size_t campos = c.Largo;
    for (const std::size_t i : {std::size_t{64}, std::size_t{92}})
        if ((i < CABECERA_MINIMA || c.Largo > 100) && r.U32(i) >= CABECERA_MINIMA)
            campos = std::min<std::size_t>(campos, r.U32(i));
    if (campos >= CABECERA_MICRAS && r.I32(100) > 0 && r.I32(104) > 0) {
        const PuntoD micras = r.P32(100);
        mm = {micras.x / 1000, micras.y / 1000};
    }
    const PuntoD pixeles = r.P32(72);
    if (mm.x <= 0 || mm.y <= 0 || pixeles.x <= 0 || pixeles.y <= 0) return Lectura::Imposible;
    c.PixelesPorMm = {pixeles.x / mm.x, pixeles.y / mm.y};
    const auto lado = [&](std::size_t desde) {
        return std::floor((c.Marco[desde + 2] - c.Marco[desde]) * PIXELES_POR_PULGADA /
                              CENTESIMAS_POR_PULGADA +
                          0.5);
    };
    const double ancho = lado(0), alto = lado(1);
    if (ancho < 1 || alto < 1) return Lectura::Imposible;
    if (ancho * alto > static_cast<double>(METAFICHERO_PIXELES)) return Lectura::Desmedida;
    c.Ancho = static_cast<i32>(ancho);
    c.Alto = static_cast<i32>(alto);
    return Lectura::Bien;
}

// From the pixels of the device the file was made on to ours: the frame fills the picture.
Matriz Base(const Cabecera& c) {
    const double porX = c.PixelesPorMm.x / 100, porY = c.PixelesPorMm.y / 100;
    const double sx = c.Ancho / ((c.Marco[2] - c.Marco[0]) * porX);
    const double sy = c.Alto / ((c.Marco[3] - c.Marco[1]) * porY);
    return {sx, 0, 0, sy, -c.Marco[0] * porX * sx, -c.Marco[1] * porY * sy};
}

}  // namespace

// --- Records that set a field.

LectorEmf::Acciones::Tabla LectorEmf::Estado() {
    static constexpr Acciones::Fila filas[] = {
        {EMR_SETBRUSHORGEX,
         [](Yo l, Reg r) {
             l.c_.E.OrigenBrocha = {r.I32(8), r.I32(12)};
         }},
        {EMR_SETBKMODE, [](Yo l, Reg r) { l.c_.E.PonFondo(r.U32(8)); }},
        {EMR_SETPOLYFILLMODE, [](Yo l, Reg r) { l.c_.E.PonRelleno(r.U32(8)); }},
        {EMR_SETROP2, [](Yo l, Reg r) { l.c_.E.PonMezcla(r.U32(8)); }},
        {EMR_SETSTRETCHBLTMODE, [](Yo l, Reg r) { l.c_.E.PonEstiramiento(r.U32(8)); }},
        {EMR_SETTEXTALIGN, [](Yo l, Reg r) { l.c_.E.Alineacion = r.U32(8); }},
        {EMR_SETTEXTCOLOR, [](Yo l, Reg r) { l.c_.E.Texto = {r.U32(8)}; }},
        {EMR_SETBKCOLOR, [](Yo l, Reg r) { l.c_.E.Fondo = {r.U32(8)}; }},
        {EMR_SAVEDC, [](Yo l, Reg) { l.c_.Guarda(); }},
        {EMR_RESTOREDC, [](Yo l, Reg r) { l.c_.Restaura(r.I32(8)); }},
        {EMR_SETARCDIRECTION, [](Yo l, Reg r) { l.c_.E.ContraReloj = r.U32(8) != 2; }},
        {EMR_SETMITERLIMIT,
         [](Yo l, Reg r) {
             // Some write a whole number there, which as a fraction is next to nothing.
             l.c_.E.Inglete = std::clamp(r.U32(8) < 0x10000 ? r.U32(8) : r.F32(8), 1.0, 1000.0);
         }},
        {EMR_SETTEXTJUSTIFICATION,
         [](Yo l, Reg r) {
             l.c_.E.ExtraBlancos = r.I32(8);
             l.c_.E.Blancos = r.I32(12);
         }},
    };
    return filas;
}

void LectorEmf::CambiaMundo(const Registro& r) {
    constexpr u32 IDENTIDAD = 1, IZQUIERDA = 2, DERECHA = 3, PONE = 4;
    Matriz& mundo = c_.E.Mundo;
    const u32 modo = r.U32(32);
    if (modo == IDENTIDAD) mundo = {};
    const Matriz m = r.M32(8);
    if (modo == IZQUIERDA) mundo = m.Luego(mundo);
    if (modo == DERECHA) mundo = mundo.Luego(m);
    if (modo == PONE) mundo = m;
}

LectorEmf::Acciones::Tabla LectorEmf::Coordenadas() {
    static constexpr auto escala = [](Yo l, Reg r, bool vista) {
        l.c_.EscalaMedida(vista, {double(r.I32(8)), double(r.I32(16))},
                          {double(r.I32(12)), double(r.I32(20))});
    };
    static constexpr Acciones::Fila filas[] = {
        {EMR_SETWINDOWEXTEX, [](Yo l, Reg r) { l.c_.PonMedida(false, r.P32(8)); }},
        {EMR_SETWINDOWORGEX, [](Yo l, Reg r) { l.c_.E.VentanaOrigen = r.P32(8); }},
        {EMR_SETVIEWPORTEXTEX, [](Yo l, Reg r) { l.c_.PonMedida(true, r.P32(8)); }},
        {EMR_SETVIEWPORTORGEX, [](Yo l, Reg r) { l.c_.E.VistaOrigen = r.P32(8); }},
        {EMR_SETMAPMODE, [](Yo l, Reg r) { l.c_.PonMapeo(r.I32(8)); }},
        {EMR_SCALEVIEWPORTEXTEX, [](Yo l, Reg r) { escala(l, r, true); }},
        {EMR_SCALEWINDOWEXTEX, [](Yo l, Reg r) { escala(l, r, false); }},
        {EMR_SETWORLDTRANSFORM, [](Yo l, Reg r) { l.c_.E.Mundo = r.M32(8); }},
        {EMR_MODIFYWORLDTRANSFORM, [](Yo l, Reg r) { l.CambiaMundo(r); }},
    };
    return filas;
}

// --- Objects.

Objeto LectorEmf::Busca(u32 n) const {
    if (n & EXISTENCIAS) return DeExistencias(n & ~EXISTENCIAS);
    return n < objetos_.size() ? objetos_[n] : nullptr;
}

void LectorEmf::Pon(u32 n, Objeto o) {
    if (n == 0 || n >= OBJETOS_MAXIMOS || (n & EXISTENCIAS)) return;
    if (n >= objetos_.size()) objetos_.resize(n + 1);
    objetos_[n] = std::move(o);
}

void LectorEmf::Pluma(const Registro& r) {
    Pon(r.U32(8), PlumaLisa(r.U32(12), std::abs(static_cast<double>(r.I32(16))), r.U32(24)));
}

void LectorEmf::PlumaExtendida(const Registro& r) {
    constexpr u32 MONO = 3, DIBUJO = 5, TRAZOS_MAXIMOS = 64;
    Objeto o = PlumaLisa(r.U32(28), r.U32(32), r.U32(40));
    o->Extendida = true;
    const u32 brocha = r.U32(36);
    o->Brocha = BrochaDeClase(brocha, 0, brocha == BS_HATCHED ? r.I32(44) : 0)->Brocha;
    if (brocha >= MONO && brocha <= DIBUJO + 1 && r.U32(16) > 0)
        if (const Objeto d = BrochaDeDibujo(c_, Bitmap(r, 12, r.U32(40)), brocha == MONO))
            o->Brocha = d->Brocha;
    for (u32 k = 0; k < std::min(r.U32(48), TRAZOS_MAXIMOS); ++k)
        o->Trazos.push_back(r.U32(52 + 4 * k));
    Pon(r.U32(8), std::move(o));
}

void LectorEmf::Fuente(const Registro& r) {
    constexpr std::size_t CARA = 40, LETRAS = 32;
    auto o = std::make_shared<ObjetoMeta>();
    o->Tipo = ObjetoMeta::Clase::Fuente;
    FuenteMeta& f = o->Fuente;
    f.Alto = r.I32(12);
    f.Ancho = std::abs(static_cast<double>(r.I32(16)));
    f.Giro = r.I32(20) % 3600;
    f.Peso = r.I32(28);
    PonMarcasDeFuente(r, 32, f);
    for (std::size_t k = 0; k < LETRAS && r.U16(CARA + 2 * k) != 0; ++k)
        f.Cara += static_cast<char16_t>(r.U16(CARA + 2 * k));
    Pon(r.U32(8), std::move(o));
}

void LectorEmf::Paleta(const Registro& r) {
    auto o = std::make_shared<ObjetoMeta>();
    o->Tipo = ObjetoMeta::Clase::Paleta;
    const std::size_t n = r.U16(14);
    for (std::size_t k = 0; k < n; ++k) o->Paleta.push_back(PixelDe(r.U32(16 + 4 * k) & 0xFFFFFFU));
    Pon(r.U32(8), std::move(o));
}

void LectorEmf::CambiaPaleta(const Registro& r) {
    const Objeto o = Busca(r.U32(8));
    if (!o || o->Tipo != ObjetoMeta::Clase::Paleta) return;
    const std::size_t desde = r.U32(12), n = r.U32(16);
    for (std::size_t k = 0; k < n && desde + k < o->Paleta.size(); ++k)
        o->Paleta[desde + k] = PixelDe(r.U32(20 + 4 * k) & 0xFFFFFFU);
}

Objeto LectorEmf::DibujoDe(const Registro& r, std::size_t i, bool unBit) {
    return BrochaDeDibujo(c_, Bitmap(r, i + 4, r.U32(i)), unBit);
}

void LectorEmf::Brocha(const Registro& r) {
    const u32 clase = r.U32(12);
    Pon(r.U32(8), BrochaDeClase(clase, r.U32(16), clase == BS_HATCHED ? r.I32(20) : 0));
}

LectorEmf::Acciones::Tabla LectorEmf::Objetos() {
    static constexpr Acciones::Fila filas[] = {
        {EMR_SELECTOBJECT, [](Yo l, Reg r) { l.c_.Elige(l.Busca(r.U32(8))); }},
        {EMR_CREATEPEN, [](Yo l, Reg r) { l.Pluma(r); }},
        {EMR_CREATEBRUSHINDIRECT, [](Yo l, Reg r) { l.Brocha(r); }},
        {EMR_DELETEOBJECT, [](Yo l, Reg r) { l.Pon(r.U32(8), nullptr); }},
        {EMR_SELECTPALETTE, [](Yo l, Reg r) { l.c_.PonPaleta(l.Busca(r.U32(8))); }},
        {EMR_CREATEPALETTE, [](Yo l, Reg r) { l.Paleta(r); }},
        {EMR_SETPALETTEENTRIES, [](Yo l, Reg r) { l.CambiaPaleta(r); }},
        {EMR_RESIZEPALETTE,
         [](Yo l, Reg r) {
             // What is no palette has no use of the colours it then holds.
             if (const Objeto o = l.Busca(r.U32(8))) l.c_.CambiaMedida(*o, r.U32(12));
         }},
        {EMR_EXTCREATEFONTINDIRECTW, [](Yo l, Reg r) { l.Fuente(r); }},
        {EMR_CREATEMONOBRUSH, [](Yo l, Reg r) { l.Pon(r.U32(8), l.DibujoDe(r, 12, true)); }},
        {EMR_CREATEDIBPATTERNBRUSHPT,
         [](Yo l, Reg r) { l.Pon(r.U32(8), l.DibujoDe(r, 12, false)); }},
        {EMR_EXTCREATEPEN, [](Yo l, Reg r) { l.PlumaExtendida(r); }},
    };
    return filas;
}

// --- Figures.

LectorEmf::Acciones::Tabla LectorEmf::Figuras() {
    using Arco = ContextoMeta::Arco;
    static constexpr auto arco = [](Yo l, Reg r, Arco clase) {
        l.c_.DibujaArco(clase, r.P32(8), r.P32(16), r.P32(24), r.P32(32));
    };
    static constexpr Acciones::Fila filas[] = {
        {EMR_SETPIXELV, [](Yo l, Reg r) { l.c_.PonPunto(r.P32(8), {r.U32(16)}); }},
        {EMR_MOVETOEX, [](Yo l, Reg r) { l.c_.MueveA(r.P32(8)); }},
        {EMR_LINETO, [](Yo l, Reg r) { l.c_.LineaA(r.P32(8)); }},
        {EMR_ANGLEARC,
         [](Yo l, Reg r) { l.c_.ArcoAngulo(r.P32(8), r.U32(16), r.F32(20), r.F32(24)); }},
        {EMR_ELLIPSE, [](Yo l, Reg r) { l.c_.Elipse(r.P32(8), r.P32(16)); }},
        {EMR_RECTANGLE, [](Yo l, Reg r) { l.c_.Rectangulo(r.P32(8), r.P32(16)); }},
        {EMR_ROUNDRECT, [](Yo l, Reg r) { l.c_.Redondeado(r.P32(8), r.P32(16), r.P32(24)); }},
        {EMR_ARC, [](Yo l, Reg r) { arco(l, r, Arco::Suelto); }},
        {EMR_CHORD, [](Yo l, Reg r) { arco(l, r, Arco::Cuerda); }},
        {EMR_PIE, [](Yo l, Reg r) { arco(l, r, Arco::Tarta); }},
        {EMR_ARCTO, [](Yo l, Reg r) { arco(l, r, Arco::Sigue); }},
        {EMR_EXTFLOODFILL, [](Yo l, Reg r) { l.c_.Inunda(r.P32(8), {r.U32(16)}, r.U32(20) == 0); }},
    };
    return filas;
}

// Several lines or polygons: how many, how many points in all, the points of each, the points.
void LectorEmf::VariosPoligonos(const Registro& r, bool cortos, bool cerrados) {
    constexpr std::size_t CUANTOS = 24, TOTAL = 28, CUENTAS = 32;
    const std::size_t n = r.U32(CUANTOS), total = r.U32(TOTAL);
    if (n > PARTES_MAXIMAS) throw RegistroCorto{};
    const std::vector<PuntoD> p =
        r.Puntos(r.Parte(CUENTAS, n * std::size_t{4}).size() + CUENTAS, total, cortos);
    std::vector<std::vector<PuntoD>> partes;
    std::size_t i = 0;
    for (std::size_t k = 0; k < n; ++k) {
        const std::size_t cuantos = r.U32(CUENTAS + 4 * k);
        if (cuantos > p.size() - i) return;
        partes.emplace_back(p.begin() + static_cast<std::ptrdiff_t>(i),
                            p.begin() + static_cast<std::ptrdiff_t>(i + cuantos));
        i += cuantos;
    }
    c_.Poligonos(partes, cerrados);
}

void LectorEmf::PoliDibujo(const Registro& r, bool cortos) {
    const std::size_t n = r.U32(CUENTA);
    const std::vector<PuntoD> p = r.Puntos(PUNTOS, n, cortos);
    c_.PoliDibujo(p, r.Parte(PUNTOS + n * (cortos ? 4 : 8), n));
}

// Each in two forms, with points of 32 and of 16 bits.
LectorEmf::Acciones::Tabla LectorEmf::Poligonos() {
    static constexpr auto largos = [](Reg r) { return r.Puntos(PUNTOS, r.U32(CUENTA), false); };
    static constexpr auto cortos = [](Reg r) { return r.Puntos(PUNTOS, r.U32(CUENTA), true); };
    static constexpr Acciones::Fila filas[] = {
        {EMR_POLYBEZIER, [](Yo l, Reg r) { l.c_.Bezier(largos(r), false); }},
        {EMR_POLYBEZIER16, [](Yo l, Reg r) { l.c_.Bezier(cortos(r), false); }},
        {EMR_POLYGON, [](Yo l, Reg r) { l.c_.Poligonos({largos(r)}, true); }},
        {EMR_POLYGON16, [](Yo l, Reg r) { l.c_.Poligonos({cortos(r)}, true); }},
        {EMR_POLYLINE, [](Yo l, Reg r) { l.c_.Polilinea(largos(r), false); }},
        {EMR_POLYLINE16, [](Yo l, Reg r) { l.c_.Polilinea(cortos(r), false); }},
        {EMR_POLYBEZIERTO, [](Yo l, Reg r) { l.c_.Bezier(largos(r), true); }},
        {EMR_POLYBEZIERTO16, [](Yo l, Reg r) { l.c_.Bezier(cortos(r), true); }},
        {EMR_POLYLINETO, [](Yo l, Reg r) { l.c_.Polilinea(largos(r), true); }},
        {EMR_POLYLINETO16, [](Yo l, Reg r) { l.c_.Polilinea(cortos(r), true); }},
        {EMR_POLYPOLYLINE, [](Yo l, Reg r) { l.VariosPoligonos(r, false, false); }},
        {EMR_POLYPOLYLINE16, [](Yo l, Reg r) { l.VariosPoligonos(r, true, false); }},
        {EMR_POLYPOLYGON, [](Yo l, Reg r) { l.VariosPoligonos(r, false, true); }},
        {EMR_POLYPOLYGON16, [](Yo l, Reg r) { l.VariosPoligonos(r, true, true); }},
        {EMR_POLYDRAW, [](Yo l, Reg r) { l.PoliDibujo(r, false); }},
        {EMR_POLYDRAW16, [](Yo l, Reg r) { l.PoliDibujo(r, true); }},
    };
    return filas;
}

// To flatten a path changes nothing: curves are lines already.
LectorEmf::Acciones::Tabla LectorEmf::Caminos() {
    static constexpr Acciones::Fila filas[] = {
        {EMR_BEGINPATH, [](Yo l, Reg) { l.c_.EmpiezaCamino(); }},
        {EMR_ENDPATH, [](Yo l, Reg) { l.c_.TerminaCamino(); }},
        {EMR_CLOSEFIGURE, [](Yo l, Reg) { l.c_.CierraFigura(); }},
        {EMR_FILLPATH, [](Yo l, Reg) { l.c_.PintaCamino(true, false); }},
        {EMR_STROKEANDFILLPATH, [](Yo l, Reg) { l.c_.PintaCamino(true, true); }},
        {EMR_STROKEPATH, [](Yo l, Reg) { l.c_.PintaCamino(false, true); }},
        {EMR_WIDENPATH, [](Yo l, Reg) { l.c_.EnsanchaCamino(); }},
        {EMR_SELECTCLIPPATH, [](Yo l, Reg r) { l.c_.RecortaConCamino(r.I32(8)); }},
        {EMR_ABORTPATH, [](Yo l, Reg) { l.c_.AbandonaCamino(); }},
    };
    return filas;
}

// --- Regions.

Region LectorEmf::LeeRegion(const Registro& r, std::size_t i, std::size_t n, const Matriz& m) {
    constexpr std::size_t CABECERA = 32, CAJA = 16;
    const Registro d(r.Parte(i, n));
    const std::size_t cajas = d.U32(8);
    if (cajas > n / CAJA) throw RegistroCorto{};
    return c_.RegionDe(d.Puntos(CABECERA, cajas * 2, false), m);
}

// A region in logical coordinates that begins at an offset.
Region LectorEmf::RegionLogica(const Registro& r, std::size_t desde) {
    constexpr std::size_t LARGO = 24;
    return LeeRegion(r, desde, r.U32(LARGO), c_.AlDispositivo());
}

void LectorEmf::RecortaRegion(const Registro& r) {
    const std::size_t n = r.U32(8);
    const i32 modo = r.I32(12);
    if (n == 0 && modo == RGN_COPY)
        c_.QuitaRecorte();
    else if (modo >= RGN_AND && modo <= RGN_COPY)
        c_.RecortaRegion(LeeRegion(r, 16, n, c_.Base()), modo);
}

LectorEmf::Acciones::Tabla LectorEmf::Regiones() {
    static constexpr Acciones::Fila filas[] = {
        {EMR_OFFSETCLIPRGN, [](Yo l, Reg r) { l.c_.DesplazaRecorte(r.P32(8)); }},
        {EMR_SETMETARGN, [](Yo l, Reg) { l.c_.FijaMetaRegion(); }},
        {EMR_EXCLUDECLIPRECT, [](Yo l, Reg r) { l.c_.RecortaCaja(r.P32(8), r.P32(16), RGN_DIFF); }},
        {EMR_INTERSECTCLIPRECT,
         [](Yo l, Reg r) { l.c_.RecortaCaja(r.P32(8), r.P32(16), RGN_AND); }},
        {EMR_FILLRGN,
         [](Yo l, Reg r) { l.c_.RellenaRegion(l.RegionLogica(r, 32), l.Busca(r.U32(28))); }},
        {EMR_FRAMERGN,
         [](Yo l, Reg r) {
             l.c_.MarcoRegion(l.RegionLogica(r, 40), l.Busca(r.U32(28)), r.P32(32));
         }},
        {EMR_INVERTRGN, [](Yo l, Reg r) { l.c_.InvierteRegion(l.RegionLogica(r, 28)); }},
        {EMR_PAINTRGN, [](Yo l, Reg r) { l.c_.RellenaRegion(l.RegionLogica(r, 28), nullptr); }},
        {EMR_EXTSELECTCLIPRGN, [](Yo l, Reg r) { l.RecortaRegion(r); }},
    };
    return filas;
}

// Comments draw nothing here.
void LectorEmf::Lee(u32 tipo, const Registro& r) {
    static const Acciones acciones{Estado(),  Coordenadas(), Objetos(), Figuras(), Poligonos(),
                                   Caminos(), Regiones(),    Copias(),  Textos()};
    acciones.Haz(*this, tipo, r, c_.Gasto());
}

bool EsEmf(Bytes f) {
    return f.size() >= CABECERA_MINIMA && Lee32(f, 0) == EMR_HEADER && Lee32(f, 40) == FIRMA;
}

Lectura MideEmf(Bytes f, i32& ancho, i32& alto) {
    Cabecera c;
    const Lectura l = LeeCabecera(f, c);
    if (l == Lectura::Bien) {
        ancho = c.Ancho;
        alto = c.Alto;
    }
    return l;
}

Lectura PintaEmf(Bytes f, PintorMetafichero& pintor, Esfuerzo& esfuerzo) {
    Cabecera cab;
    if (const Lectura l = LeeCabecera(f, cab); l != Lectura::Bien) return l;
    pintor.Abre(cab.Ancho, cab.Alto, esfuerzo);
    ContextoMeta contexto(pintor, esfuerzo, cab.Ancho, cab.Alto, Base(cab), cab.PixelesPorMm);
    contexto.ReglasEmf = true;
    LectorEmf lector(contexto, Lee16(f, 56));
    u32 registros = 0;
    for (std::size_t i = cab.Largo; i < f.size();) {
        if (f.size() - i < 8) return Lectura::Imposible;
        const u32 tipo = Lee32(f, i);
        const std::size_t largo = Lee32(f, i + 4);
        if (largo < 8 || largo > f.size() - i) return Lectura::Imposible;
        if (tipo == EMR_EOF) break;
        if (++registros > REGISTROS_MAXIMOS) return Lectura::Imposible;
        esfuerzo.Gasta(GASTO_REGISTRO);
        lector.Lee(tipo, Registro(f.subspan(i, largo)));
        i += largo;
    }
    return Lectura::Bien;
}

}  // namespace tessario
