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

bool LectorEmf::Estado(u32 tipo, const Registro& r) {
    EstadoMeta& e = c_.E;
    switch (tipo) {
        case 13:
            e.OrigenBrocha = {r.I32(8), r.I32(12)};
            return true;
        case 18:
            e.Opaco = r.U32(8) != 1;
            return true;
        case 19:
            e.Alterno = r.U32(8) != 2;
            return true;
        case 20:
            if (r.U32(8) >= 1 && r.U32(8) <= 16) e.Rop2 = r.I32(8);
            return true;
        case 21:
            e.Estira = static_cast<int>(r.U32(8) & 7U);
            return true;
        case 22:
            e.Alineacion = r.U32(8);
            return true;
        case 24:
            e.Texto = {r.U32(8)};
            return true;
        case 25:
            e.Fondo = {r.U32(8)};
            return true;
        case 33:
            c_.Guarda();
            return true;
        case 34:
            c_.Restaura(r.I32(8));
            return true;
        case 57:
            e.ContraReloj = r.U32(8) != 2;
            return true;
        case 58:
            // Some write a whole number there, which as a fraction is next to nothing.
            e.Inglete = std::clamp(r.U32(8) < 0x10000 ? r.U32(8) : r.F32(8), 1.0, 1000.0);
            return true;
        case 120:
            e.ExtraBlancos = r.I32(8);
            e.Blancos = r.I32(12);
            return true;
        default:
            return false;
    }
}

bool LectorEmf::Coordenadas(u32 tipo, const Registro& r) {
    EstadoMeta& e = c_.E;
    switch (tipo) {
        case 9:
            c_.PonMedida(false, r.P32(8));
            return true;
        case 10:
            e.VentanaOrigen = r.P32(8);
            return true;
        case 11:
            c_.PonMedida(true, r.P32(8));
            return true;
        case 12:
            e.VistaOrigen = r.P32(8);
            return true;
        case 17:
            c_.PonMapeo(r.I32(8));
            return true;
        case 31:
        case 32:
            c_.EscalaMedida(tipo == 31, {double(r.I32(8)), double(r.I32(16))},
                            {double(r.I32(12)), double(r.I32(20))});
            return true;
        case 35:
            e.Mundo = r.M32(8);
            return true;
        case 36: {
            constexpr u32 IDENTIDAD = 1, IZQUIERDA = 2, DERECHA = 3, PONE = 4;
            const u32 modo = r.U32(32);
            if (modo == IDENTIDAD) e.Mundo = {};
            const Matriz m = r.M32(8);
            if (modo == IZQUIERDA) e.Mundo = m.Luego(e.Mundo);
            if (modo == DERECHA) e.Mundo = e.Mundo.Luego(m);
            if (modo == PONE) e.Mundo = m;
            return true;
        }
        default:
            return false;
    }
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
    constexpr u32 NULA = 1, TRAMADA = 2, MONO = 3, DIBUJO = 5, TRAZOS_MAXIMOS = 64;
    Objeto o = PlumaLisa(r.U32(28), r.U32(32), r.U32(40));
    o->Extendida = true;
    const u32 brocha = r.U32(36);
    if (brocha == NULA) o->Brocha.Tipo = BrochaMeta::Clase::Nula;
    if (brocha == TRAMADA) {
        o->Brocha.Tipo = BrochaMeta::Clase::Trama;
        o->Brocha.Trama = r.I32(44);
    }
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

bool LectorEmf::Objetos(u32 tipo, const Registro& r) {
    switch (tipo) {
        case 37:
            c_.Elige(Busca(r.U32(8)));
            return true;
        case 38:
            Pluma(r);
            return true;
        case 39: {
            constexpr u32 NULA = 1, TRAMADA = 2;
            Objeto o = BrochaLisa(r.U32(16));
            if (r.U32(12) == NULA) o->Brocha.Tipo = BrochaMeta::Clase::Nula;
            if (r.U32(12) == TRAMADA) {
                o->Brocha.Tipo = BrochaMeta::Clase::Trama;
                o->Brocha.Trama = r.I32(20);
            }
            Pon(r.U32(8), std::move(o));
            return true;
        }
        case 40:
            if (!(r.U32(8) & EXISTENCIAS)) Pon(r.U32(8), nullptr);
            return true;
        case 48:
            c_.PonPaleta(Busca(r.U32(8)));
            return true;
        case 49:
            Paleta(r);
            return true;
        case 50:
            CambiaPaleta(r);
            return true;
        case 51:
            if (const Objeto o = Busca(r.U32(8)); o && o->Tipo == ObjetoMeta::Clase::Paleta)
                c_.CambiaMedida(*o, r.U32(12));
            return true;
        case 82:
            Fuente(r);
            return true;
        case 93:
        case 94:
            Pon(r.U32(8), DibujoDe(r, 12, tipo == 93));
            return true;
        case 95:
            PlumaExtendida(r);
            return true;
        default:
            return false;
    }
}

// --- Figures.

bool LectorEmf::Figuras(u32 tipo, const Registro& r) {
    switch (tipo) {
        case 15:
            c_.PonPunto(r.P32(8), {r.U32(16)});
            return true;
        case 27:
            c_.MueveA(r.P32(8));
            return true;
        case 41:
            c_.ArcoAngulo(r.P32(8), r.U32(16), r.F32(20), r.F32(24));
            return true;
        case 42:
            c_.Elipse(r.P32(8), r.P32(16));
            return true;
        case 43:
            c_.Rectangulo(r.P32(8), r.P32(16));
            return true;
        case 44:
            c_.Redondeado(r.P32(8), r.P32(16), r.P32(24));
            return true;
        case 45:
            c_.DibujaArco(ContextoMeta::Arco::Suelto, r.P32(8), r.P32(16), r.P32(24), r.P32(32));
            return true;
        case 46:
            c_.DibujaArco(ContextoMeta::Arco::Cuerda, r.P32(8), r.P32(16), r.P32(24), r.P32(32));
            return true;
        case 47:
            c_.DibujaArco(ContextoMeta::Arco::Tarta, r.P32(8), r.P32(16), r.P32(24), r.P32(32));
            return true;
        case 53:
            c_.Inunda(r.P32(8), {r.U32(16)}, r.U32(20) == 0);
            return true;
        case 54:
            c_.LineaA(r.P32(8));
            return true;
        case 55:
            c_.DibujaArco(ContextoMeta::Arco::Sigue, r.P32(8), r.P32(16), r.P32(24), r.P32(32));
            return true;
        default:
            return false;
    }
}

bool LectorEmf::Poligonos(u32 tipo, const Registro& r) {
    constexpr std::size_t CUENTA = 24, PUNTOS = 28;
    const bool cortos = tipo >= 85 && tipo <= 92;
    // The forms with 16-bit points follow the others in the same order.
    const u32 clase = cortos ? (tipo == 92 ? 56 : tipo - 83) : tipo;
    switch (clase) {
        case 2:
            c_.Bezier(r.Puntos(PUNTOS, r.U32(CUENTA), cortos), false);
            return true;
        case 3:
            c_.Poligonos({r.Puntos(PUNTOS, r.U32(CUENTA), cortos)}, true);
            return true;
        case 4:
            c_.Polilinea(r.Puntos(PUNTOS, r.U32(CUENTA), cortos), false);
            return true;
        case 5:
            c_.Bezier(r.Puntos(PUNTOS, r.U32(CUENTA), cortos), true);
            return true;
        case 6:
            c_.Polilinea(r.Puntos(PUNTOS, r.U32(CUENTA), cortos), true);
            return true;
        case 7:
        case 8: {
            const std::size_t n = r.U32(24), total = r.U32(28);
            if (n > PARTES_MAXIMAS) throw RegistroCorto{};
            const std::vector<PuntoD> p =
                r.Puntos(r.Parte(32, n * std::size_t{4}).size() + 32, total, cortos);
            std::vector<std::vector<PuntoD>> partes;
            std::size_t i = 0;
            for (std::size_t k = 0; k < n; ++k) {
                const std::size_t cuantos = r.U32(32 + 4 * k);
                if (cuantos > p.size() - i) return true;
                partes.emplace_back(p.begin() + static_cast<std::ptrdiff_t>(i),
                                    p.begin() + static_cast<std::ptrdiff_t>(i + cuantos));
                i += cuantos;
            }
            c_.Poligonos(partes, clase == 8);
            return true;
        }
        case 56: {
            const std::size_t n = r.U32(CUENTA);
            const std::vector<PuntoD> p = r.Puntos(PUNTOS, n, cortos);
            c_.PoliDibujo(p, r.Parte(PUNTOS + n * (cortos ? 4 : 8), n));
            return true;
        }
        default:
            return false;
    }
}

bool LectorEmf::Caminos(u32 tipo, const Registro& r) {
    switch (tipo) {
        case 59:
            c_.EmpiezaCamino();
            return true;
        case 60:
            c_.TerminaCamino();
            return true;
        case 61:
            c_.CierraFigura();
            return true;
        case 62:
            c_.PintaCamino(true, false);
            return true;
        case 63:
            c_.PintaCamino(true, true);
            return true;
        case 64:
            c_.PintaCamino(false, true);
            return true;
        case 65:  // curves are lines already
            return true;
        case 66:
            c_.EnsanchaCamino();
            return true;
        case 67:
            c_.RecortaConCamino(r.I32(8));
            return true;
        case 68:
            c_.AbandonaCamino();
            return true;
        default:
            return false;
    }
}

// --- Regions.

Region LectorEmf::LeeRegion(const Registro& r, std::size_t i, std::size_t n, const Matriz& m) {
    constexpr std::size_t CABECERA = 32, CAJA = 16;
    const Registro d(r.Parte(i, n));
    const std::size_t cajas = d.U32(8);
    if (cajas > n / CAJA) throw RegistroCorto{};
    return c_.RegionDe(d.Puntos(CABECERA, cajas * 2, false), m);
}

bool LectorEmf::Regiones(u32 tipo, const Registro& r) {
    const auto logica = [&](std::size_t n, std::size_t desde) {
        return LeeRegion(r, desde, r.U32(n), c_.AlDispositivo());
    };
    switch (tipo) {
        case 26:
            c_.DesplazaRecorte(r.P32(8));
            return true;
        case 28:
            c_.FijaMetaRegion();
            return true;
        case 29:
            c_.RecortaCaja(r.P32(8), r.P32(16), RGN_DIFF);
            return true;
        case 30:
            c_.RecortaCaja(r.P32(8), r.P32(16), RGN_AND);
            return true;
        case 71:
            c_.RellenaRegion(logica(24, 32), Busca(r.U32(28)));
            return true;
        case 72:
            c_.MarcoRegion(logica(24, 40), Busca(r.U32(28)), r.P32(32));
            return true;
        case 73:
            c_.InvierteRegion(logica(24, 28));
            return true;
        case 74:
            c_.RellenaRegion(logica(24, 28), nullptr);
            return true;
        case 75: {
            const std::size_t n = r.U32(8);
            const i32 modo = r.I32(12);
            if (n == 0 && modo == RGN_COPY)
                c_.QuitaRecorte();
            else if (modo >= RGN_AND && modo <= RGN_COPY)
                c_.RecortaRegion(LeeRegion(r, 16, n, c_.Base()), modo);
            return true;
        }
        default:
            return false;
    }
}

// Records of other kinds, comments among them, draw nothing here.
void LectorEmf::Lee(u32 tipo, const Registro& r) {
    try {
        static_cast<void>(Figuras(tipo, r) || Poligonos(tipo, r) || Estado(tipo, r) ||
                          Coordenadas(tipo, r) || Objetos(tipo, r) || Caminos(tipo, r) ||
                          Regiones(tipo, r) || Copias(tipo, r) || Textos(tipo, r));
    } catch (const RegistroCorto&) {
        c_.Gasto().Gasta(GASTO_REGISTRO * 20);
    }
}

bool EsEmf(Bytes f) {
    return f.size() >= CABECERA_MINIMA && Lee32(f, 0) == 1 && Lee32(f, 40) == FIRMA;
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
    constexpr u32 FIN = 14;
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
        if (tipo == FIN) break;
        if (++registros > REGISTROS_MAXIMOS) return Lectura::Imposible;
        esfuerzo.Gasta(GASTO_REGISTRO);
        lector.Lee(tipo, Registro(f.subspan(i, largo)));
        i += largo;
    }
    return Lectura::Bien;
}

}  // namespace tessario
