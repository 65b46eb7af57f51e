// SPDX-License-Identifier: GPL-3.0-or-later
// WMF: the walk over its records. Parameters stand in them in the reverse order of the calls.
#include "platform/MetaWmf.h"

#include <cmath>
#include <cstdlib>

#include "platform/MetaNumeros.h"
#include "platform/MetaRegistro.h"

namespace tessario {

namespace {

constexpr u32 CLAVE = 0x9AC6CDD7;  // of the header that gives the size
constexpr std::size_t CABECERA_MEDIDA = 22, CABECERA = 18;
constexpr std::size_t LARGO_MINIMO = 6;  // of a record
constexpr double PIXELES_POR_PULGADA = 96, MM_POR_PULGADA = 25.4;
constexpr i32 ANCHO_SIN_MEDIDA = 320, ALTO_SIN_MEDIDA = 240;
constexpr u32 REGISTROS_MAXIMOS = 4'000'000;
constexpr long long GASTO_REGISTRO = 100;
constexpr std::size_t OBJETOS_MAXIMOS = 65536;

struct Cabecera {
    std::size_t Registros = 0;  // where the first record stands
    PuntoD Origen, Medida{double{ANCHO_SIN_MEDIDA}, double{ALTO_SIN_MEDIDA}};
    i32 Ancho = ANCHO_SIN_MEDIDA, Alto = ALTO_SIN_MEDIDA;
};

bool EsCabecera(Bytes f, std::size_t i) {
    if (f.size() < i + CABECERA) return false;
    const u32 clase = Lee16(f, i), version = Lee16(f, i + 4);
    return (clase == 1 || clase == 2) && Lee16(f, i + 2) == CABECERA / 2 &&
           (version == 0x100 || version == 0x300);
}

Lectura LeeCabecera(Bytes f, Cabecera& c) {
    const bool medida = f.size() >= 4 && Lee32(f, 0) == CLAVE;
    const std::size_t base = medida ? CABECERA_MEDIDA : 0;
    if (!EsCabecera(f, base)) return Lectura::Imposible;
    c.Registros = base + CABECERA;
    if (!medida) return Lectura::Bien;
    const Registro r(f);
    const PuntoD a = r.P16(6), b = r.P16(10);
    const double porPulgada = r.U16(14);
    c.Origen = a;
    c.Medida = {b.x - a.x, b.y - a.y};
    if (porPulgada <= 0) return Lectura::Imposible;
    const double ancho = std::floor(std::abs(c.Medida.x) * PIXELES_POR_PULGADA / porPulgada + 0.5);
    const double alto = std::floor(std::abs(c.Medida.y) * PIXELES_POR_PULGADA / porPulgada + 0.5);
    if (ancho < 1 || alto < 1) return Lectura::Imposible;
    if (ancho * alto > static_cast<double>(METAFICHERO_PIXELES)) return Lectura::Desmedida;
    c.Ancho = static_cast<i32>(ancho);
    c.Alto = static_cast<i32>(alto);
    return Lectura::Bien;
}

class LectorWmf {
public:
    explicit LectorWmf(ContextoMeta& c) : c_(c) {}
    void Lee(u32 funcion, const Registro& r);

private:
    using Acciones = AccionesMeta<LectorWmf>;
    using Yo = LectorWmf&;
    using Reg = const Registro&;
    static Acciones::Tabla Estado();
    static Acciones::Tabla Coordenadas();
    static Acciones::Tabla Objetos();
    static Acciones::Tabla Figuras();
    static Acciones::Tabla Regiones();
    static Acciones::Tabla Copias();
    static Acciones::Tabla Textos();

    // A point whose y stands before its x.
    static PuntoD Yx(const Registro& r, std::size_t i) {
        return {double(r.I16(i + 2)), double(r.I16(i))};
    }
    void Pon(Objeto o);
    Objeto Busca(u32 n) const { return n < objetos_.size() ? objetos_[n] : nullptr; }
    const Region* Rgn(u32 n, const Matriz& m);
    void Fuente(const Registro& r);
    void CreaRegion(const Registro& r);
    void Paleta(const Registro& r);
    void CambiaPaleta(const Registro& r);
    Objeto BrochaDeDib(const Registro& r);
    std::optional<Mapa> Bitmap16(const Registro& r, std::size_t i, std::size_t cabecera);
    void Brocha(const Registro& r);
    void Poligonos(const Registro& r);
    void PintaRegion(const Registro& r, bool marco);
    void Bloque(u32 funcion, const Registro& r);
    void Filas(const Registro& r);
    void Estirado(const Registro& r);
    void Texto(const Registro& r);
    void TextoConCaja(const Registro& r);

    ContextoMeta& c_;
    std::vector<Objeto> objetos_;
    Region rgn_;
};

// --- Records that set a field.

LectorWmf::Acciones::Tabla LectorWmf::Estado() {
    static constexpr Acciones::Fila filas[] = {
        {META_SAVEDC, [](Yo l, Reg) { l.c_.Guarda(); }},
        {META_RESTOREDC, [](Yo l, Reg r) { l.c_.Restaura(r.I16(0)); }},
        {META_SETBKMODE, [](Yo l, Reg r) { l.c_.E.PonFondo(r.U16(0)); }},
        {META_SETROP2, [](Yo l, Reg r) { l.c_.E.PonMezcla(r.U16(0)); }},
        {META_SETPOLYFILLMODE, [](Yo l, Reg r) { l.c_.E.PonRelleno(r.U16(0)); }},
        {META_SETSTRETCHBLTMODE, [](Yo l, Reg r) { l.c_.E.PonEstiramiento(r.U16(0)); }},
        {META_SETTEXTCHAREXTRA, [](Yo l, Reg r) { l.c_.E.ExtraLetra = r.I16(0); }},
        {META_SETTEXTALIGN, [](Yo l, Reg r) { l.c_.E.Alineacion = r.U16(0); }},
        {META_SETBKCOLOR, [](Yo l, Reg r) { l.c_.E.Fondo = {r.U32(0)}; }},
        {META_SETTEXTCOLOR, [](Yo l, Reg r) { l.c_.E.Texto = {r.U32(0)}; }},
        {META_SETTEXTJUSTIFICATION,
         [](Yo l, Reg r) {
             l.c_.E.Blancos = r.I16(0);
             l.c_.E.ExtraBlancos = r.I16(2);
         }},
    };
    return filas;
}

LectorWmf::Acciones::Tabla LectorWmf::Coordenadas() {
    static constexpr auto escala = [](Yo l, Reg r, bool vista) {
        l.c_.EscalaMedida(vista, {double(r.I16(6)), double(r.I16(2))},
                          {double(r.I16(4)), double(r.I16(0))});
    };
    static constexpr auto suma = [](PuntoD& p, PuntoD d) { p = {p.x + d.x, p.y + d.y}; };
    static constexpr Acciones::Fila filas[] = {
        {META_SETMAPMODE, [](Yo l, Reg r) { l.c_.PonMapeo(r.I16(0)); }},
        {META_SETWINDOWORG, [](Yo l, Reg r) { l.c_.E.VentanaOrigen = Yx(r, 0); }},
        {META_SETWINDOWEXT, [](Yo l, Reg r) { l.c_.PonMedida(false, Yx(r, 0)); }},
        {META_SETVIEWPORTORG, [](Yo l, Reg r) { l.c_.E.VistaOrigen = Yx(r, 0); }},
        {META_SETVIEWPORTEXT, [](Yo l, Reg r) { l.c_.PonMedida(true, Yx(r, 0)); }},
        {META_OFFSETWINDOWORG, [](Yo l, Reg r) { suma(l.c_.E.VentanaOrigen, Yx(r, 0)); }},
        {META_OFFSETVIEWPORTORG, [](Yo l, Reg r) { suma(l.c_.E.VistaOrigen, Yx(r, 0)); }},
        {META_SCALEWINDOWEXT, [](Yo l, Reg r) { escala(l, r, false); }},
        {META_SCALEVIEWPORTEXT, [](Yo l, Reg r) { escala(l, r, true); }},
    };
    return filas;
}

// --- Objects.

// A new object takes the lowest place that is free; one that could not be made takes one too.
void LectorWmf::Pon(Objeto o) {
    if (!o) o = std::make_shared<ObjetoMeta>();
    for (Objeto& lugar : objetos_)
        if (!lugar) {
            lugar = std::move(o);
            return;
        }
    if (objetos_.size() >= OBJETOS_MAXIMOS) throw MetaficheroAgotado{};
    objetos_.push_back(std::move(o));
}

void LectorWmf::Fuente(const Registro& r) {
    constexpr std::size_t CARA = 18, LETRAS = 32;
    auto o = std::make_shared<ObjetoMeta>();
    o->Tipo = ObjetoMeta::Clase::Fuente;
    FuenteMeta& f = o->Fuente;
    f.Alto = r.I16(0);
    f.Ancho = std::abs(static_cast<double>(r.I16(2)));
    f.Giro = r.I16(4) % 3600;
    f.Peso = r.I16(8);
    PonMarcasDeFuente(r, 10, f);
    Bytes cara = r.Desde(CARA);
    cara = cara.first(std::min(cara.size(), LETRAS));
    for (std::size_t k = 0; k < cara.size(); ++k)
        if (cara[k] == 0) {
            cara = cara.first(k);
            break;
        }
    f.Cara = LetrasDe(cara, 0);
    Pon(std::move(o));
}

void LectorWmf::Paleta(const Registro& r) {
    auto o = std::make_shared<ObjetoMeta>();
    o->Tipo = ObjetoMeta::Clase::Paleta;
    const std::size_t n = r.U16(2);
    if (4 + n * 4 > r.Largo()) {
        Pon(nullptr);
        return;
    }
    for (std::size_t k = 0; k < n; ++k) o->Paleta.push_back(PixelDe(r.U32(4 + 4 * k) & 0xFFFFFFU));
    Pon(std::move(o));
}

void LectorWmf::CambiaPaleta(const Registro& r) {
    std::vector<Pixel>& p = c_.E.ObjPaleta->Paleta;
    const std::size_t desde = r.U16(0), n = r.U16(2);
    for (std::size_t k = 0; k < n && desde + k < p.size(); ++k)
        p[desde + k] = PixelDe(r.U32(4 + 4 * k) & 0xFFFFFFU);
}

// A bitmap of the oldest kind: rows of whole words from the top, and no colour table.
std::optional<Mapa> LectorWmf::Bitmap16(const Registro& r, std::size_t i, std::size_t cabecera) {
    constexpr long long PIXELES = 16LL * 1024 * 1024;
    const i32 ancho = r.I16(i + 2), alto = r.I16(i + 4);
    const i32 paso = r.I16(i + 6);
    const u32 bits = r.Byte(i + 9);
    if (ancho <= 0 || alto <= 0 || paso <= 0 || static_cast<long long>(ancho) * alto > PIXELES)
        return std::nullopt;
    if ((bits != 1 && bits != 24 && bits != 32) ||
        static_cast<u32>(ancho) * bits > static_cast<u32>(paso) * 8)
        return std::nullopt;
    const auto filas = static_cast<std::size_t>(alto), fila = static_cast<std::size_t>(paso);
    const Bytes b = r.Parte(i + cabecera, filas * fila);
    c_.Gasto().Gasta(static_cast<long long>(ancho) * alto * 4);
    Mapa m(ancho, alto);
    for (i32 y = 0; y < alto; ++y) {
        const Bytes de = b.subspan(static_cast<std::size_t>(y) * fila, fila);
        for (i32 x = 0; x < ancho; ++x) {
            const auto k = static_cast<std::size_t>(x);
            if (bits == 1) {
                m.Fila(y)[x] = (de[k / 8] >> (7 - k % 8)) & 1U ? 0xFFFFFFU : 0U;
            } else {
                const std::size_t j = k * bits / 8;
                m.Fila(y)[x] = Lee16(de, j) | static_cast<Pixel>(de[j + 2]) << 16;
            }
        }
    }
    return m;
}

Objeto LectorWmf::BrochaDeDib(const Registro& r) {
    constexpr u32 DE_MAPA = 3;
    CabeceraDib d;
    std::optional<Mapa> m = BitmapDe(c_, r.Desde(4), std::nullopt, r.U16(2), false, 0, &d);
    return BrochaDeDibujo(c_, std::move(m), r.U16(0) == DE_MAPA && d.Bits == 1);
}

void LectorWmf::Brocha(const Registro& r) {
    const u32 clase = r.U16(0);
    Pon(BrochaDeClase(clase, r.U32(2), clase == BS_HATCHED ? r.I16(6) : 0));
}

LectorWmf::Acciones::Tabla LectorWmf::Objetos() {
    static constexpr std::size_t CABECERA_MAPA = 32;
    // Of old kinds that nothing draws with: they only take a place.
    static constexpr auto toma = [](Yo l, Reg) { l.Pon(nullptr); };
    static constexpr Acciones::Fila filas[] = {
        {META_CREATEPALETTE, [](Yo l, Reg r) { l.Paleta(r); }},
        {META_SETPALENTRIES, [](Yo l, Reg r) { l.CambiaPaleta(r); }},
        {META_ANIMATEPALETTE, [](Yo l, Reg r) { l.CambiaPaleta(r); }},
        {META_RESIZEPALETTE, [](Yo l, Reg r) { l.c_.CambiaMedida(*l.c_.E.ObjPaleta, r.U16(0)); }},
        {META_SELECTPALETTE, [](Yo l, Reg r) { l.c_.PonPaleta(l.Busca(r.U16(0))); }},
        {META_SELECTOBJECT, [](Yo l, Reg r) { l.c_.Elige(l.Busca(r.U16(0))); }},
        {META_DELETEOBJECT,
         [](Yo l, Reg r) {
             if (const u32 n = r.U16(0); n < l.objetos_.size()) l.objetos_[n].reset();
         }},
        {META_CREATEPENINDIRECT,
         [](Yo l, Reg r) {
             l.Pon(PlumaLisa(r.U16(0), std::abs(static_cast<double>(r.I16(2))), r.U32(6)));
         }},
        {META_CREATEFONTINDIRECT, [](Yo l, Reg r) { l.Fuente(r); }},
        {META_CREATEBRUSHINDIRECT, [](Yo l, Reg r) { l.Brocha(r); }},
        {META_DIBCREATEPATTERNBRUSH, [](Yo l, Reg r) { l.Pon(l.BrochaDeDib(r)); }},
        {META_CREATEPATTERNBRUSH,
         [](Yo l, Reg r) {
             const bool unBit = r.Byte(9) == 1;
             l.Pon(BrochaDeDibujo(l.c_, l.Bitmap16(r, 0, CABECERA_MAPA), unBit));
         }},
        {META_CREATEREGION, [](Yo l, Reg r) { l.CreaRegion(r); }},
        {META_CREATEBRUSH, toma},
        {META_CREATEBITMAPINDIRECT, toma},
        {META_CREATEBITMAP, toma},
    };
    return filas;
}

// --- Figures.

void LectorWmf::Poligonos(const Registro& r) {
    const std::size_t n = r.U16(0);
    std::vector<std::vector<PuntoD>> partes;
    std::size_t i = 2 + 2 * n;
    for (std::size_t k = 0; k < n; ++k) {
        partes.push_back(r.Puntos(i, r.U16(2 + 2 * k), true));
        i += 4 * partes.back().size();
    }
    c_.Poligonos(partes, true);
}

LectorWmf::Acciones::Tabla LectorWmf::Figuras() {
    using Arco = ContextoMeta::Arco;
    static constexpr auto puntos = [](Reg r) { return r.Puntos(2, r.U16(0), true); };
    static constexpr auto arco = [](Yo l, Reg r, Arco clase) {
        l.c_.DibujaArco(clase, Yx(r, 12), Yx(r, 8), Yx(r, 4), Yx(r, 0));
    };
    static constexpr Acciones::Fila filas[] = {
        {META_LINETO, [](Yo l, Reg r) { l.c_.LineaA(Yx(r, 0)); }},
        {META_MOVETO, [](Yo l, Reg r) { l.c_.MueveA(Yx(r, 0)); }},
        {META_POLYGON, [](Yo l, Reg r) { l.c_.Poligonos({puntos(r)}, true); }},
        {META_POLYLINE, [](Yo l, Reg r) { l.c_.Polilinea(puntos(r), false); }},
        {META_POLYPOLYGON, [](Yo l, Reg r) { l.Poligonos(r); }},
        {META_ELLIPSE, [](Yo l, Reg r) { l.c_.Elipse(Yx(r, 4), Yx(r, 0)); }},
        {META_RECTANGLE, [](Yo l, Reg r) { l.c_.Rectangulo(Yx(r, 4), Yx(r, 0)); }},
        {META_ROUNDRECT, [](Yo l, Reg r) { l.c_.Redondeado(Yx(r, 8), Yx(r, 4), Yx(r, 0)); }},
        {META_ARC, [](Yo l, Reg r) { arco(l, r, Arco::Suelto); }},
        {META_PIE, [](Yo l, Reg r) { arco(l, r, Arco::Tarta); }},
        {META_CHORD, [](Yo l, Reg r) { arco(l, r, Arco::Cuerda); }},
        {META_FLOODFILL, [](Yo l, Reg r) { l.c_.Inunda(Yx(r, 4), {r.U32(0)}, true); }},
        {META_EXTFLOODFILL, [](Yo l, Reg r) { l.c_.Inunda(Yx(r, 6), {r.U32(2)}, r.U16(0) == 0); }},
        {META_SETPIXEL, [](Yo l, Reg r) { l.c_.PonPunto(Yx(r, 4), {r.U32(0)}); }},
    };
    return filas;
}

// --- Regions.

// Bands of rows, each with the columns where its spans begin and end.
void LectorWmf::CreaRegion(const Registro& r) {
    constexpr std::size_t PRIMERA = 22;
    auto o = std::make_shared<ObjetoMeta>();
    o->Tipo = ObjetoMeta::Clase::Region;
    try {
        const std::size_t bandas = r.U16(10);
        std::vector<PuntoD> esquinas;
        std::size_t i = PRIMERA;
        for (std::size_t k = 0; k < bandas; ++k) {
            const std::size_t n = r.U16(i);
            const double arr = r.I16(i + 2), aba = r.I16(i + 4);
            for (std::size_t j = 0; j + 1 < n; j += 2) {
                esquinas.push_back({double(r.I16(i + 6 + 2 * j)), arr});
                esquinas.push_back({double(r.I16(i + 8 + 2 * j)), aba});
            }
            i += 8 + 2 * n;
        }
        o->Rgn = c_.RegionDe(esquinas, Matriz{});
    } catch (const RegistroCorto&) {
    }
    Pon(std::move(o));
}

// The region of a number as it lies under a mapping; null if there is none of that number.
const Region* LectorWmf::Rgn(u32 n, const Matriz& m) {
    const Objeto o = Busca(n);
    if (!o || o->Tipo != ObjetoMeta::Clase::Region) return nullptr;
    std::vector<PuntoD> esquinas;
    for (const Rect& q : o->Rgn.Rectangulos()) {
        esquinas.push_back({double(q.Izq), double(q.Arr)});
        esquinas.push_back({double(q.Der), double(q.Aba)});
    }
    rgn_ = c_.RegionDe(esquinas, m);
    return &rgn_;
}

// The brush stands before the region; what was written the other way is understood.
void LectorWmf::PintaRegion(const Registro& r, bool marco) {
    const std::size_t i = marco ? 4 : 0;
    u32 brocha = r.U16(i), region = r.U16(i + 2);
    if (const Objeto o = Busca(brocha); o && o->Tipo == ObjetoMeta::Clase::Region)
        std::swap(brocha, region);
    const Region* const q = Rgn(region, c_.AlDispositivo());
    if (q && marco) c_.MarcoRegion(*q, Busca(brocha), Yx(r, 0));
    if (q && !marco) c_.RellenaRegion(*q, Busca(brocha));
}

LectorWmf::Acciones::Tabla LectorWmf::Regiones() {
    static constexpr Acciones::Fila filas[] = {
        {META_OFFSETCLIPRGN, [](Yo l, Reg r) { l.c_.DesplazaRecorte(Yx(r, 0)); }},
        {META_EXCLUDECLIPRECT, [](Yo l, Reg r) { l.c_.RecortaCaja(Yx(r, 4), Yx(r, 0), RGN_DIFF); }},
        {META_INTERSECTCLIPRECT,
         [](Yo l, Reg r) { l.c_.RecortaCaja(Yx(r, 4), Yx(r, 0), RGN_AND); }},
        {META_SELECTCLIPREGION,
         [](Yo l, Reg r) {
             // The first object's number stands for no region at all.
             if (const Region* q = r.U16(0) ? l.Rgn(r.U16(0), Matriz{}) : nullptr)
                 l.c_.RecortaRegion(*q, RGN_COPY);
             else
                 l.c_.QuitaRecorte();
         }},
        {META_FILLREGION, [](Yo l, Reg r) { l.PintaRegion(r, false); }},
        {META_FRAMEREGION, [](Yo l, Reg r) { l.PintaRegion(r, true); }},
        {META_INVERTREGION,
         [](Yo l, Reg r) {
             if (const Region* q = l.Rgn(r.U16(0), l.c_.AlDispositivo())) l.c_.InvierteRegion(*q);
         }},
        {META_PAINTREGION,
         [](Yo l, Reg r) {
             if (const Region* q = l.Rgn(r.U16(0), l.c_.AlDispositivo()))
                 l.c_.RellenaRegion(*q, nullptr);
         }},
    };
    return filas;
}

// --- Pictures.

void LectorWmf::Bloque(u32 funcion, const Registro& r) {
    constexpr std::size_t CABECERA_MAPA = 10;
    const bool estira = funcion == META_STRETCHBLT || funcion == META_DIBSTRETCHBLT;
    const bool dib = funcion == META_DIBBITBLT || funcion == META_DIBSTRETCHBLT;
    // A record of the least length that its number tells, in words, has no bitmap.
    const bool sinOrigen = (r.Largo() + LARGO_MINIMO) / 2 == (funcion >> 8) + 3;
    CopiaMeta c;
    c.Operacion = (r.U32(0) >> 16) & 0xFFU;
    // Without a source one empty word stands before the place.
    const std::size_t i = (estira ? 12U : 8U) + (sinOrigen ? 2U : 0U);
    const PuntoD medida = Yx(r, i), lugar = Yx(r, i + 4);
    std::optional<Mapa> origen;
    if (!sinOrigen) {
        origen =
            dib ? BitmapDe(c_, r.Desde(i + 8), std::nullopt, 0) : Bitmap16(r, i + 8, CABECERA_MAPA);
        if (!origen) return;
        c.Origen = &*origen;
        const PuntoD desde = Yx(r, estira ? 8 : 4), cuanto = estira ? Yx(r, 4) : medida;
        c.Izq = desde.x;
        c.Arr = desde.y;
        c.Ancho = cuanto.x;
        c.Alto = cuanto.y;
    }
    c_.Copia(c, lugar, medida);
}

void LectorWmf::Filas(const Registro& r) {
    const i32 filas = r.I16(2), inicio = r.I16(4);
    if (filas <= 0) return;
    CabeceraDib d;
    const std::optional<Mapa> origen =
        BitmapDe(c_, r.Desde(18), std::nullopt, r.U16(0), false, filas, &d);
    if (!origen) return;
    CopiaMeta c;
    c.Origen = &*origen;
    const PuntoD desde = Yx(r, 6), cuanto = Yx(r, 10);
    c.Izq = desde.x;
    c.Arr = d.DesdeArriba ? desde.y - inicio : double(inicio) + origen->Alto - desde.y - cuanto.y;
    c.Ancho = cuanto.x;
    c.Alto = cuanto.y;
    const PuntoD e = c_.Redondo(Yx(r, 14));
    c.Esquina = e;
    c.Derecha = {e.x + cuanto.x, e.y};
    c.Abajo = {e.x, e.y + cuanto.y};
    c_.CopiaA(c);
}

void LectorWmf::Estirado(const Registro& r) {
    CabeceraDib d;
    const std::optional<Mapa> origen =
        BitmapDe(c_, r.Desde(22), std::nullopt, r.U16(4), false, 0, &d);
    if (!origen) return;
    CopiaMeta c;
    c.Origen = &*origen;
    c.Operacion = (r.U32(0) >> 16) & 0xFFU;
    const PuntoD cuanto = Yx(r, 6), desde = Yx(r, 10);
    c.Izq = desde.x;
    c.Arr = d.DesdeArriba ? desde.y : double(d.Alto) - desde.y - cuanto.y;
    c.Ancho = cuanto.x;
    c.Alto = cuanto.y;
    c_.Copia(c, Yx(r, 18), Yx(r, 14));
}

LectorWmf::Acciones::Tabla LectorWmf::Copias() {
    static constexpr Acciones::Fila filas[] = {
        {META_PATBLT,
         [](Yo l, Reg r) {
             CopiaMeta c;
             c.Operacion = (r.U32(0) >> 16) & 0xFFU;
             l.c_.Copia(c, Yx(r, 8), Yx(r, 4));
         }},
        {META_BITBLT, [](Yo l, Reg r) { l.Bloque(META_BITBLT, r); }},
        {META_DIBBITBLT, [](Yo l, Reg r) { l.Bloque(META_DIBBITBLT, r); }},
        {META_STRETCHBLT, [](Yo l, Reg r) { l.Bloque(META_STRETCHBLT, r); }},
        {META_DIBSTRETCHBLT, [](Yo l, Reg r) { l.Bloque(META_DIBSTRETCHBLT, r); }},
        {META_SETDIBTODEV, [](Yo l, Reg r) { l.Filas(r); }},
        {META_STRETCHDIB, [](Yo l, Reg r) { l.Estirado(r); }},
    };
    return filas;
}

// --- Text.

void LectorWmf::Texto(const Registro& r) {
    ContextoMeta::Escrito t;
    const std::size_t n = r.U16(0), lugar = 2 + (n + 1) / 2 * 2;
    t.Letras = LetrasDe(r.Parte(2, n), c_.E.ObjFuente->Fuente.Juego);
    t.Lugar = Yx(r, lugar);
    c_.Escribe(t);
}

void LectorWmf::TextoConCaja(const Registro& r) {
    constexpr unsigned CON_CAJA = 6;
    ContextoMeta::Escrito t;
    t.Lugar = Yx(r, 0);
    const std::size_t n = r.U16(4);
    t.Opciones = r.U16(6);
    std::size_t i = 8;
    if (t.Opciones & CON_CAJA) {
        t.CajaA = r.P16(8);
        t.CajaB = r.P16(12);
        i += 8;
    }
    t.Letras = LetrasDe(r.Parte(i, n), c_.E.ObjFuente->Fuente.Juego);
    i += (n + 1) / 2 * 2;
    if (n > 0 && i + 2 * n <= r.Largo())
        for (std::size_t k = 0; k < n; ++k) t.Avances.push_back({double(r.I16(i + 2 * k)), 0});
    c_.Escribe(t);
}

LectorWmf::Acciones::Tabla LectorWmf::Textos() {
    static constexpr Acciones::Fila filas[] = {
        {META_TEXTOUT, [](Yo l, Reg r) { l.Texto(r); }},
        {META_EXTTEXTOUT, [](Yo l, Reg r) { l.TextoConCaja(r); }},
    };
    return filas;
}

// What asks the device for something of its own draws nothing here.
void LectorWmf::Lee(u32 funcion, const Registro& r) {
    static const Acciones acciones{Estado(),   Coordenadas(), Objetos(), Figuras(),
                                   Regiones(), Copias(),      Textos()};
    acciones.Haz(*this, funcion, r, c_.Gasto());
}

}  // namespace

bool EsWmf(Bytes f) {
    return (f.size() >= CABECERA_MEDIDA && Lee32(f, 0) == CLAVE) || EsCabecera(f, 0);
}

Lectura MideWmf(Bytes f, i32& ancho, i32& alto) {
    Cabecera c;
    const Lectura l = LeeCabecera(f, c);
    if (l == Lectura::Bien) {
        ancho = c.Ancho;
        alto = c.Alto;
    }
    return l;
}

Lectura PintaWmf(Bytes f, PintorMetafichero& pintor, Esfuerzo& esfuerzo) {
    Cabecera cab;
    if (const Lectura l = LeeCabecera(f, cab); l != Lectura::Bien) return l;
    pintor.Abre(cab.Ancho, cab.Alto, esfuerzo);
    constexpr double POR_MM = PIXELES_POR_PULGADA / MM_POR_PULGADA;
    ContextoMeta contexto(pintor, esfuerzo, cab.Ancho, cab.Alto, Matriz{}, {POR_MM, POR_MM});
    EstadoMeta& e = contexto.E;
    e.Modo = MM_ANISOTROPIC;
    e.VistaMedida = {double(cab.Ancho), double(cab.Alto)};
    e.VentanaOrigen = cab.Origen;
    e.VentanaMedida = cab.Medida;
    LectorWmf lector(contexto);
    u32 registros = 0;
    for (std::size_t i = cab.Registros; i < f.size();) {
        if (f.size() - i < LARGO_MINIMO) break;  // less than a record: padding
        const std::size_t largo = static_cast<std::size_t>(Lee32(f, i)) * 2;
        const u32 funcion = Lee16(f, i + 4);
        if (largo < LARGO_MINIMO || largo > f.size() - i) return Lectura::Imposible;
        if (funcion == META_EOF) break;
        if (++registros > REGISTROS_MAXIMOS) return Lectura::Imposible;
        esfuerzo.Gasta(GASTO_REGISTRO);
        lector.Lee(funcion, Registro(f.subspan(i + LARGO_MINIMO, largo - LARGO_MINIMO)));
        i += largo;
    }
    return Lectura::Bien;
}

}  // namespace tessario
