// SPDX-License-Identifier: GPL-3.0-or-later
// WMF: the walk over its records. Parameters stand in them in the reverse order of the calls.
#include "platform/MetaWmf.h"

#include <cmath>
#include <cstdlib>

#include "platform/MetaRegistro.h"

namespace tessario {

namespace {

constexpr u32 CLAVE = 0x9AC6CDD7;  // of the header that gives the size
constexpr std::size_t CABECERA_MEDIDA = 22, CABECERA = 18;
constexpr double PIXELES_POR_PULGADA = 96, MM_POR_PULGADA = 25.4;
constexpr i32 ANCHO_SIN_MEDIDA = 320, ALTO_SIN_MEDIDA = 240;
constexpr u32 REGISTROS_MAXIMOS = 4'000'000;
constexpr long long GASTO_REGISTRO = 100;
constexpr int ANISOTROPICO = 8;
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
    bool Estado(u32 funcion, const Registro& r);
    bool Coordenadas(u32 funcion, const Registro& r);
    bool Objetos(u32 funcion, const Registro& r);
    bool Figuras(u32 funcion, const Registro& r);
    bool Regiones(u32 funcion, const Registro& r);
    bool Copias(u32 funcion, const Registro& r);
    bool Textos(u32 funcion, const Registro& r);

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
    void Bloque(const Registro& r, bool estira, bool dib, bool sinOrigen);
    void Filas(const Registro& r);
    void Estirado(const Registro& r);

    ContextoMeta& c_;
    std::vector<Objeto> objetos_;
    Region rgn_;
};

// --- Records that set a field.

bool LectorWmf::Estado(u32 funcion, const Registro& r) {
    EstadoMeta& e = c_.E;
    switch (funcion) {
        case 0x001E:
            c_.Guarda();
            return true;
        case 0x0127:
            c_.Restaura(r.I16(0));
            return true;
        case 0x0102:
            e.Opaco = r.U16(0) != 1;
            return true;
        case 0x0104:
            if (r.U16(0) >= 1 && r.U16(0) <= 16) e.Rop2 = r.I16(0);
            return true;
        case 0x0106:
            e.Alterno = r.U16(0) != 2;
            return true;
        case 0x0107:
            e.Estira = static_cast<int>(r.U16(0) & 7U);
            return true;
        case 0x0108:
            e.ExtraLetra = r.I16(0);
            return true;
        case 0x012E:
            e.Alineacion = r.U16(0);
            return true;
        case 0x0201:
            e.Fondo = {r.U32(0)};
            return true;
        case 0x0209:
            e.Texto = {r.U32(0)};
            return true;
        case 0x020A:
            e.Blancos = r.I16(0);
            e.ExtraBlancos = r.I16(2);
            return true;
        default:
            return false;
    }
}

bool LectorWmf::Coordenadas(u32 funcion, const Registro& r) {
    EstadoMeta& e = c_.E;
    const auto suma = [](PuntoD& p, PuntoD d) { p = {p.x + d.x, p.y + d.y}; };
    switch (funcion) {
        case 0x0103:
            c_.PonMapeo(r.I16(0));
            return true;
        case 0x020B:
            e.VentanaOrigen = Yx(r, 0);
            return true;
        case 0x020C:
            c_.PonMedida(false, Yx(r, 0));
            return true;
        case 0x020D:
            e.VistaOrigen = Yx(r, 0);
            return true;
        case 0x020E:
            c_.PonMedida(true, Yx(r, 0));
            return true;
        case 0x020F:
            suma(e.VentanaOrigen, Yx(r, 0));
            return true;
        case 0x0211:
            suma(e.VistaOrigen, Yx(r, 0));
            return true;
        case 0x0410:
        case 0x0412:
            c_.EscalaMedida(funcion == 0x0412, {double(r.I16(6)), double(r.I16(2))},
                            {double(r.I16(4)), double(r.I16(0))});
            return true;
        default:
            return false;
    }
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

bool LectorWmf::Objetos(u32 funcion, const Registro& r) {
    switch (funcion) {
        case 0x00F7:
            Paleta(r);
            return true;
        case 0x0037:
        case 0x0436:
            CambiaPaleta(r);
            return true;
        case 0x0139:
            c_.CambiaMedida(*c_.E.ObjPaleta, r.U16(0));
            return true;
        case 0x0234:
            c_.PonPaleta(Busca(r.U16(0)));
            return true;
        case 0x012D:
            c_.Elige(Busca(r.U16(0)));
            return true;
        case 0x01F0:
            if (const u32 n = r.U16(0); n < objetos_.size()) objetos_[n].reset();
            return true;
        case 0x02FA:
            Pon(PlumaLisa(r.U16(0), std::abs(static_cast<double>(r.I16(2))), r.U32(6)));
            return true;
        case 0x02FB:
            Fuente(r);
            return true;
        case 0x02FC: {
            constexpr u32 NULA = 1, TRAMADA = 2;
            Objeto o = BrochaLisa(r.U32(2));
            if (r.U16(0) == NULA) o->Brocha.Tipo = BrochaMeta::Clase::Nula;
            if (r.U16(0) == TRAMADA) {
                o->Brocha.Tipo = BrochaMeta::Clase::Trama;
                o->Brocha.Trama = r.I16(6);
            }
            Pon(std::move(o));
            return true;
        }
        case 0x0142:
            Pon(BrochaDeDib(r));
            return true;
        case 0x01F9: {
            constexpr std::size_t CABECERA_MAPA = 32;
            const bool unBit = r.Byte(9) == 1;
            Pon(BrochaDeDibujo(c_, Bitmap16(r, 0, CABECERA_MAPA), unBit));
            return true;
        }
        case 0x06FF:
            CreaRegion(r);
            return true;
        case 0x00F8:  // of old kinds that nothing draws with
        case 0x02FD:
        case 0x06FE:
            Pon(nullptr);
            return true;
        default:
            return false;
    }
}

// --- Figures.

bool LectorWmf::Figuras(u32 funcion, const Registro& r) {
    using Arco = ContextoMeta::Arco;
    switch (funcion) {
        case 0x0213:
            c_.LineaA(Yx(r, 0));
            return true;
        case 0x0214:
            c_.MueveA(Yx(r, 0));
            return true;
        case 0x0324:
            c_.Poligonos({r.Puntos(2, r.U16(0), true)}, true);
            return true;
        case 0x0325:
            c_.Polilinea(r.Puntos(2, r.U16(0), true), false);
            return true;
        case 0x0538: {
            const std::size_t n = r.U16(0);
            std::vector<std::vector<PuntoD>> partes;
            std::size_t i = 2 + 2 * n;
            for (std::size_t k = 0; k < n; ++k) {
                partes.push_back(r.Puntos(i, r.U16(2 + 2 * k), true));
                i += 4 * partes.back().size();
            }
            c_.Poligonos(partes, true);
            return true;
        }
        case 0x0418:
            c_.Elipse(Yx(r, 4), Yx(r, 0));
            return true;
        case 0x041B:
            c_.Rectangulo(Yx(r, 4), Yx(r, 0));
            return true;
        case 0x061C:
            c_.Redondeado(Yx(r, 8), Yx(r, 4), Yx(r, 0));
            return true;
        case 0x0817:
        case 0x081A:
        case 0x0830:
            c_.DibujaArco(funcion == 0x0817   ? Arco::Suelto
                          : funcion == 0x081A ? Arco::Tarta
                                              : Arco::Cuerda,
                          Yx(r, 12), Yx(r, 8), Yx(r, 4), Yx(r, 0));
            return true;
        case 0x0419:
            c_.Inunda(Yx(r, 4), {r.U32(0)}, true);
            return true;
        case 0x0548:
            c_.Inunda(Yx(r, 6), {r.U32(2)}, r.U16(0) == 0);
            return true;
        case 0x041F:
            c_.PonPunto(Yx(r, 4), {r.U32(0)});
            return true;
        default:
            return false;
    }
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

bool LectorWmf::Regiones(u32 funcion, const Registro& r) {
    switch (funcion) {
        case 0x0220:
            c_.DesplazaRecorte(Yx(r, 0));
            return true;
        case 0x0415:
            c_.RecortaCaja(Yx(r, 4), Yx(r, 0), RGN_DIFF);
            return true;
        case 0x0416:
            c_.RecortaCaja(Yx(r, 4), Yx(r, 0), RGN_AND);
            return true;
        case 0x012C:
            // The first object's number stands for no region at all.
            if (const Region* q = r.U16(0) ? Rgn(r.U16(0), Matriz{}) : nullptr)
                c_.RecortaRegion(*q, RGN_COPY);
            else
                c_.QuitaRecorte();
            return true;
        case 0x0228:
        case 0x0429: {
            // The brush stands before the region; what was written the other way is understood.
            const std::size_t i = funcion == 0x0228 ? 0 : 4;
            u32 brocha = r.U16(i), region = r.U16(i + 2);
            if (const Objeto o = Busca(brocha); o && o->Tipo == ObjetoMeta::Clase::Region)
                std::swap(brocha, region);
            const Region* const q = Rgn(region, c_.AlDispositivo());
            if (q && funcion == 0x0228) c_.RellenaRegion(*q, Busca(brocha));
            if (q && funcion == 0x0429) c_.MarcoRegion(*q, Busca(brocha), Yx(r, 0));
            return true;
        }
        case 0x012A:
            if (const Region* q = Rgn(r.U16(0), c_.AlDispositivo())) c_.InvierteRegion(*q);
            return true;
        case 0x012B:
            if (const Region* q = Rgn(r.U16(0), c_.AlDispositivo())) c_.RellenaRegion(*q, nullptr);
            return true;
        default:
            return false;
    }
}

// --- Pictures.

void LectorWmf::Bloque(const Registro& r, bool estira, bool dib, bool sinOrigen) {
    constexpr std::size_t CABECERA_MAPA = 10;
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

bool LectorWmf::Copias(u32 funcion, const Registro& r) {
    // A record of the least length that its number tells has no bitmap.
    const bool sinOrigen = (r.Largo() + 6) / 2 == (funcion >> 8) + 3;
    switch (funcion) {
        case 0x061D: {
            CopiaMeta c;
            c.Operacion = (r.U32(0) >> 16) & 0xFFU;
            c_.Copia(c, Yx(r, 8), Yx(r, 4));
            return true;
        }
        case 0x0922:
            Bloque(r, false, false, sinOrigen);
            return true;
        case 0x0940:
            Bloque(r, false, true, sinOrigen);
            return true;
        case 0x0B23:
            Bloque(r, true, false, sinOrigen);
            return true;
        case 0x0B41:
            Bloque(r, true, true, sinOrigen);
            return true;
        case 0x0D33:
            Filas(r);
            return true;
        case 0x0F43:
            Estirado(r);
            return true;
        default:
            return false;
    }
}

// --- Text.

bool LectorWmf::Textos(u32 funcion, const Registro& r) {
    constexpr unsigned CON_CAJA = 6;
    const int juego = c_.E.ObjFuente->Fuente.Juego;
    ContextoMeta::Escrito t;
    if (funcion == 0x0521) {
        const std::size_t n = r.U16(0), lugar = 2 + (n + 1) / 2 * 2;
        t.Letras = LetrasDe(r.Parte(2, n), juego);
        t.Lugar = Yx(r, lugar);
    } else if (funcion == 0x0A32) {
        t.Lugar = Yx(r, 0);
        const std::size_t n = r.U16(4);
        t.Opciones = r.U16(6);
        std::size_t i = 8;
        if (t.Opciones & CON_CAJA) {
            t.CajaA = r.P16(8);
            t.CajaB = r.P16(12);
            i += 8;
        }
        t.Letras = LetrasDe(r.Parte(i, n), juego);
        i += (n + 1) / 2 * 2;
        if (n > 0 && i + 2 * n <= r.Largo())
            for (std::size_t k = 0; k < n; ++k) t.Avances.push_back({double(r.I16(i + 2 * k)), 0});
    } else {
        return false;
    }
    c_.Escribe(t);
    return true;
}

// Records of other kinds draw nothing here; nor does what asks the device for something of its own.
void LectorWmf::Lee(u32 funcion, const Registro& r) {
    try {
        static_cast<void>(Figuras(funcion, r) || Objetos(funcion, r) || Estado(funcion, r) ||
                          Coordenadas(funcion, r) || Regiones(funcion, r) || Copias(funcion, r) ||
                          Textos(funcion, r));
    } catch (const RegistroCorto&) {
        c_.Gasto().Gasta(GASTO_REGISTRO * 20);
    }
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
    constexpr std::size_t LARGO_MINIMO = 6;
    Cabecera cab;
    if (const Lectura l = LeeCabecera(f, cab); l != Lectura::Bien) return l;
    pintor.Abre(cab.Ancho, cab.Alto, esfuerzo);
    constexpr double POR_MM = PIXELES_POR_PULGADA / MM_POR_PULGADA;
    ContextoMeta contexto(pintor, esfuerzo, cab.Ancho, cab.Alto, Matriz{}, {POR_MM, POR_MM});
    EstadoMeta& e = contexto.E;
    e.Modo = ANISOTROPICO;
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
        if (funcion == 0) break;
        if (++registros > REGISTROS_MAXIMOS) return Lectura::Imposible;
        esfuerzo.Gasta(GASTO_REGISTRO);
        lector.Lee(funcion, Registro(f.subspan(i + LARGO_MINIMO, largo - LARGO_MINIMO)));
        i += largo;
    }
    return Lectura::Bien;
}

}  // namespace tessario
