// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MetaContexto.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tessario {

namespace {

constexpr std::size_t NIVELES_MAXIMOS = 4096;
constexpr std::size_t PUNTOS_MAXIMOS = 1'000'000;  // of one figure or path
constexpr double COORDENADA_MAXIMA = 1e8;
constexpr long long GASTO_PUNTO = 20;

// Kinds of pens, and what else stands in the number.
constexpr u32 PLUMA_CLASE = 0xF, PLUMA_NULA = 5, PLUMA_DENTRO = 6, PLUMA_PROPIA = 7,
              PLUMA_ALTERNA = 8;
constexpr u32 PLUMA_GEOMETRICA = 0x10000;

// Dashes and gaps: of thin pens in pixels, of wide ones in widths of the pen.
const std::vector<std::vector<double>> TRAZOS_FINOS{
    {}, {18, 6}, {3, 3}, {9, 6, 3, 6}, {9, 3, 3, 3, 3, 3}};
const std::vector<std::vector<double>> TRAZOS_ANCHOS{
    {}, {3, 1}, {1, 1}, {3, 1, 1, 1}, {3, 1, 1, 1, 1, 1}};

double Medido(double v) {
    return std::isfinite(v) ? std::clamp(v, -COORDENADA_MAXIMA, COORDENADA_MAXIMA) : 0;
}

double Entera(double v) {
    return std::floor(Medido(v) + 0.5);
}

double Largo(PuntoD p) {
    return std::hypot(p.x, p.y);
}

// The unit of the fixed mapping modes in millimetres; 0 for the others.
double MilimetrosPorUnidad(int modo) {
    constexpr double PULGADA = 25.4;
    constexpr int TWIPS_POR_PULGADA = 1440;
    switch (modo) {
        case MM_LOMETRIC:
            return 0.1;
        case MM_HIMETRIC:
            return 0.01;
        case MM_LOENGLISH:
            return PULGADA / 100;
        case MM_HIENGLISH:
            return PULGADA / 1000;
        case MM_TWIPS:
            return PULGADA / TWIPS_POR_PULGADA;
        default:
            return 0;
    }
}

Objeto PaletaUsual() {
    auto o = std::make_shared<ObjetoMeta>();
    o->Tipo = ObjetoMeta::Clase::Paleta;
    o->Paleta = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080,
                 0xC0C0C0, 0xC0DCC0, 0xA6CAF0, 0xFFFBF0, 0xA0A0A4, 0x808080, 0xFF0000,
                 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
    return o;
}

Objeto FuenteUsual(bool fija, int peso) {
    auto o = std::make_shared<ObjetoMeta>();
    o->Tipo = ObjetoMeta::Clase::Fuente;
    o->Fuente.Alto = fija ? 12 : 16;
    o->Fuente.Peso = peso;
    o->Fuente.Cara = fija ? u"Courier New" : u"Arial";
    return o;
}

}  // namespace

// --- Objects.

Objeto BrochaLisa(u32 color) {
    auto o = std::make_shared<ObjetoMeta>();
    o->Tipo = ObjetoMeta::Clase::Brocha;
    o->Tinta = {color};
    return o;
}

Objeto BrochaDeClase(u32 clase, u32 color, i32 trama) {
    Objeto o = BrochaLisa(color);
    if (clase == BS_NULL) o->Brocha.Tipo = BrochaMeta::Clase::Nula;
    if (clase == BS_HATCHED) {
        o->Brocha.Tipo = BrochaMeta::Clase::Trama;
        o->Brocha.Trama = trama;
    }
    return o;
}

Objeto PlumaLisa(u32 estilo, double ancho, u32 color) {
    auto o = std::make_shared<ObjetoMeta>();
    o->Tipo = ObjetoMeta::Clase::Pluma;
    o->Estilo = estilo;
    o->Ancho = ancho;
    o->Tinta = {color};
    return o;
}

Objeto DeExistencias(u32 numero) {
    constexpr int NORMAL = 400, NEGRITA = 700;
    switch (numero) {
        case WHITE_BRUSH:
        case DC_BRUSH:
            return BrochaLisa(0xFFFFFF);
        case LTGRAY_BRUSH:
            return BrochaLisa(0xC0C0C0);
        case GRAY_BRUSH:
            return BrochaLisa(0x808080);
        case DKGRAY_BRUSH:
            return BrochaLisa(0x404040);
        case BLACK_BRUSH:
            return BrochaLisa(0x000000);
        case NULL_BRUSH:
            return BrochaDeClase(BS_NULL, 0, 0);
        case WHITE_PEN:
            return PlumaLisa(0, 0, 0xFFFFFF);
        case BLACK_PEN:
        case DC_PEN:
            return PlumaLisa(0, 0, 0);
        case NULL_PEN:
            return PlumaLisa(PLUMA_NULA, 0, 0);
        case OEM_FIXED_FONT:
        case ANSI_FIXED_FONT:
        case SYSTEM_FIXED_FONT:
            return FuenteUsual(true, NORMAL);
        case ANSI_VAR_FONT:
        case DEFAULT_GUI_FONT:
            return FuenteUsual(false, NORMAL);
        case SYSTEM_FONT:
        case DEVICE_DEFAULT_FONT:
            return FuenteUsual(false, NEGRITA);
        case DEFAULT_PALETTE:
            return PaletaUsual();
        default:
            return nullptr;
    }
}

void ContextoMeta::Elige(const Objeto& o) {
    if (!o) return;
    switch (o->Tipo) {
        case ObjetoMeta::Clase::Pluma:
            E.ObjPluma = o;
            break;
        case ObjetoMeta::Clase::Brocha:
            E.ObjBrocha = o;
            break;
        case ObjetoMeta::Clase::Fuente:
            E.ObjFuente = o;
            break;
        case ObjetoMeta::Clase::Region:
            RecortaRegion(o->Rgn, RGN_COPY);
            break;
        default:
            break;
    }
}

void ContextoMeta::PonPaleta(const Objeto& o) {
    if (o && o->Tipo == ObjetoMeta::Clase::Paleta) E.ObjPaleta = o;
}

void ContextoMeta::CambiaMedida(ObjetoMeta& paleta, std::size_t colores) {
    constexpr std::size_t COLORES_MAXIMOS = 1024;
    constexpr long long GASTO_COLOR = 40;  // for its memory: a file may have many palettes
    const std::size_t n = std::min(colores, COLORES_MAXIMOS);
    esfuerzo_.Gasta(static_cast<long long>(n) * GASTO_COLOR);
    paleta.Paleta.resize(n);
}

Pixel ContextoMeta::Color(ColorMeta c) const {
    constexpr u32 INDICE = 1;
    if (c.Valor >> 24 != INDICE) return PixelDe(c.Valor & 0xFFFFFFU);
    const std::size_t i = c.Valor & 0xFFFFU;
    const std::vector<Pixel>& p = E.ObjPaleta->Paleta;
    return i < p.size() ? p[i] : p.empty() ? 0 : p[0];
}

BrochaMeta ContextoMeta::BrochaDe(const ObjetoMeta& o) const {
    BrochaMeta b = o.Brocha;
    b.Tinta = Color(o.Tinta);
    return b;
}

PlumaMeta ContextoMeta::PlumaViva() const {
    const ObjetoMeta& o = *E.ObjPluma;
    PlumaMeta p;
    const u32 clase = o.Estilo & PLUMA_CLASE;
    const bool geometrica = o.Extendida && (o.Estilo & PLUMA_GEOMETRICA) != 0;
    p.Nula = clase == PLUMA_NULA;
    p.Brocha = BrochaDe(o);
    if (geometrica) p.Nula = p.Nula || p.Brocha.Tipo == BrochaMeta::Clase::Nula;
    const double escala = Largo(AlDispositivo().Vector({1, 0}));
    p.Ancho = std::min(o.Ancho * escala, COORDENADA_MAXIMA);
    if (o.Extendida && !geometrica) p.Ancho = 1;
    // Widths of pens that are not geometric are whole.
    if (!geometrica) p.Ancho = std::max(1.0, Entera(p.Ancho));
    p.Fina = p.Ancho < 1.5 && (!geometrica || clase != PLUMA_PROPIA || p.Ancho <= 1);
    p.Ancho = std::max(p.Ancho, 1.0);
    p.Dentro = clase == PLUMA_DENTRO;
    p.Inglete = E.Inglete;
    if (o.Extendida) {
        p.Final = static_cast<Extremo>(std::min<u32>((o.Estilo >> 8) & 0xFU, 2));
        p.Esquina = static_cast<Junta>(std::min<u32>((o.Estilo >> 12) & 0xFU, 2));
    }
    if (clase == PLUMA_ALTERNA) p.Trazos = {1, 1};
    if (clase == PLUMA_PROPIA)
        for (const u32 t : o.Trazos)
            p.Trazos.push_back(geometrica ? std::min<double>(t, 1e6) * escala
                                          : std::min<double>(t, 1e6));
    if (clase < TRAZOS_FINOS.size() && clase > 0) {
        if (geometrica) {
            p.Trazos = TRAZOS_ANCHOS[clase];
            for (double& t : p.Trazos) t *= p.Ancho;
        } else if (p.Fina) {
            p.Trazos = TRAZOS_FINOS[clase];
            p.HuecosConFondo = true;
        }
    }
    double suma = 0;
    for (const double t : p.Trazos) suma += t;
    if (suma < 1) p.Trazos.clear();
    return p;
}

// --- State.

ContextoMeta::ContextoMeta(PintorMetafichero& pintor, Esfuerzo& esfuerzo, i32 ancho, i32 alto,
                           const Matriz& base, PuntoD pixelesPorMm)
    : pintor_(pintor),
      esfuerzo_(esfuerzo),
      limites_{0, 0, ancho, alto},
      base_(base),
      pixelesPorMm_(pixelesPorMm) {
    E.ObjPluma = DeExistencias(7);
    E.ObjBrocha = DeExistencias(0);
    E.ObjFuente = DeExistencias(13);
    E.ObjPaleta = DeExistencias(15);
}

void ContextoMeta::Guarda() {
    if (pila_.size() >= NIVELES_MAXIMOS) throw MetaficheroAgotado{};
    pila_.push_back(E);
}

void ContextoMeta::Restaura(i32 nivel) {
    const auto n = static_cast<long long>(pila_.size());
    const long long queda = nivel < 0 ? n + nivel : static_cast<long long>(nivel) - 1;
    if (nivel == 0 || queda < 0 || queda >= n) return;
    E = pila_[static_cast<std::size_t>(queda)];
    pila_.resize(static_cast<std::size_t>(queda));
    vivoAlDia_ = false;
}

ModosMeta ContextoMeta::Modos() {
    ModosMeta m;
    m.Rop2 = E.Rop2;
    m.Opaco = E.Opaco;
    m.Fondo = Color(E.Fondo);
    m.Texto = Color(E.Texto);
    m.OrigenBrocha = E.OrigenBrocha;
    m.Recorte = RecorteVivo();
    m.Caja = cajaViva_;
    return m;
}

// --- Coordinates.

void ContextoMeta::PonMapeo(int modo) {
    if (modo < MM_TEXT || modo > MM_ANISOTROPIC) return;
    E.Modo = modo;
    if (modo == MM_ISOTROPIC) {
        // A tenth of a millimetre to the unit until extents are set.
        E.VentanaMedida = {1, 1};
        E.VistaMedida = {pixelesPorMm_.x / 10, -pixelesPorMm_.y / 10};
    }
}

void ContextoMeta::PonMedida(bool vista, PuntoD m) {
    if (E.Modo < MM_ISOTROPIC || m.x == 0 || m.y == 0) return;
    (vista ? E.VistaMedida : E.VentanaMedida) = m;
}

void ContextoMeta::EscalaMedida(bool vista, PuntoD por, PuntoD entre) {
    if (por.x == 0 || por.y == 0 || entre.x == 0 || entre.y == 0) return;
    const PuntoD m = vista ? E.VistaMedida : E.VentanaMedida;
    const PuntoD n{std::trunc(m.x * por.x / entre.x), std::trunc(m.y * por.y / entre.y)};
    PonMedida(vista, {n.x == 0 ? 1 : Medido(n.x), n.y == 0 ? 1 : Medido(n.y)});
}

Matriz ContextoMeta::AlPapel() const {
    double sx = 1, sy = 1;
    if (const double mm = MilimetrosPorUnidad(E.Modo); mm > 0) {
        sx = mm * pixelesPorMm_.x;
        sy = -mm * pixelesPorMm_.y;
    } else if (E.Modo >= MM_ISOTROPIC) {
        sx = E.VistaMedida.x / E.VentanaMedida.x;
        sy = E.VistaMedida.y / E.VentanaMedida.y;
        if (E.Modo == MM_ISOTROPIC && sx != 0 && sy != 0) {
            const double aspecto = pixelesPorMm_.y / pixelesPorMm_.x;
            const double menor = std::min(std::abs(sx), std::abs(sy) / aspecto);
            sx = std::copysign(menor, sx);
            sy = std::copysign(menor * aspecto, sy);
        }
    }
    const Matriz pagina{sx,
                        0,
                        0,
                        sy,
                        E.VistaOrigen.x - E.VentanaOrigen.x * sx,
                        E.VistaOrigen.y - E.VentanaOrigen.y * sy};
    return E.Mundo.Luego(pagina);
}

Matriz ContextoMeta::AlDispositivo() const {
    return AlPapel().Luego(base_);
}

PuntoD ContextoMeta::Redondo(PuntoD logico) const {
    const PuntoD p = AlDispositivo().De(logico);
    return {Entera(p.x), Entera(p.y)};
}

void ContextoMeta::Limita(std::size_t puntos) {
    if (puntos > PUNTOS_MAXIMOS) throw MetaficheroAgotado{};
}

void ContextoMeta::Cuenta(std::size_t puntos) {
    Limita(puntos);
    esfuerzo_.Gasta(static_cast<long long>(puntos) * GASTO_PUNTO);
}

// --- Clip and regions.

const Region* ContextoMeta::RecorteVivo() {
    if (vivoAlDia_ && visto_ == E.Recorte.get() && vistoMeta_ == E.RecorteMeta.get()) return &vivo_;
    vivo_ = Region(limites_);
    for (const Region* r : {E.Recorte.get(), E.RecorteMeta.get()}) {
        if (!r) continue;
        CombinaConTino(vivo_, vivo_, *r, RGN_AND, esfuerzo_);
    }
    cajaViva_ = vivo_.Caja();
    visto_ = E.Recorte.get();
    vistoMeta_ = E.RecorteMeta.get();
    vivoAlDia_ = true;
    return &vivo_;
}

// Saved states may keep every clip that there has been: its memory is counted as work.
void ContextoMeta::PagaCopia(const Region& r) {
    constexpr long long GASTO_RECTANGULO = 150;
    esfuerzo_.Gasta(static_cast<long long>(r.Rectangulos().size()) * GASTO_RECTANGULO);
}

void ContextoMeta::CombinaRecorte(const Region& r, int modo) {
    const Region todo = E.Recorte ? *E.Recorte : Region(limites_);
    auto nuevo = std::make_shared<Region>();
    CombinaConTino(*nuevo, modo == RGN_COPY ? r : todo, r, modo, esfuerzo_);
    PagaCopia(*nuevo);
    E.Recorte = std::move(nuevo);
    vivoAlDia_ = false;
}

Region ContextoMeta::RegionDe(std::span<const PuntoD> esquinas, const Matriz& m) {
    Cuenta(esquinas.size());
    Trazado giradas;
    std::vector<Region> partes;
    for (std::size_t i = 0; i + 1 < esquinas.size(); i += 2) {
        const PuntoD p = esquinas[i], q = esquinas[i + 1];
        const PuntoD a = m.De(p), b = m.De(q);
        const auto entera = [](double v) { return static_cast<i32>(Entera(v)); };
        if (m.Recta())
            partes.push_back(CreateRectRgn(entera(a.x), entera(a.y), entera(b.x), entera(b.y)));
        else
            giradas.push_back({{a, m.De({q.x, p.y}), b, m.De({p.x, q.y})}, true});
    }
    if (!giradas.empty()) return pintor_.RegionDe(giradas, false);
    // Joined in pairs, so that the work stays small.
    while (partes.size() > 1) {
        std::vector<Region> mitad;
        for (std::size_t i = 0; i < partes.size(); i += 2) {
            if (i + 1 < partes.size())
                CombinaConTino(partes[i], partes[i], partes[i + 1], RGN_OR, esfuerzo_);
            mitad.push_back(std::move(partes[i]));
        }
        partes = std::move(mitad);
    }
    return partes.empty() ? Region{} : std::move(partes[0]);
}

void ContextoMeta::RecortaCaja(PuntoD a, PuntoD b, int modo) {
    const PuntoD esquinas[] = {a, b};
    CombinaRecorte(RegionDe(esquinas, AlDispositivo()), modo);
}

void ContextoMeta::RecortaRegion(const Region& r, int modo) {
    CombinaRecorte(r, modo);
}

void ContextoMeta::DesplazaRecorte(PuntoD d) {
    if (!E.Recorte) return;
    const PuntoD v = AlDispositivo().Vector(d);
    PagaCopia(*E.Recorte);
    auto nuevo = std::make_shared<Region>(*E.Recorte);
    nuevo->Desplaza(static_cast<i32>(Entera(v.x)), static_cast<i32>(Entera(v.y)));
    E.Recorte = std::move(nuevo);
    vivoAlDia_ = false;
}

void ContextoMeta::FijaMetaRegion() {
    if (!E.Recorte) return;
    if (E.RecorteMeta) {
        auto nuevo = std::make_shared<Region>();
        CombinaConTino(*nuevo, *E.Recorte, *E.RecorteMeta, RGN_AND, esfuerzo_);
        PagaCopia(*nuevo);
        E.Recorte = std::move(nuevo);
    }
    E.RecorteMeta = E.Recorte;
    E.Recorte.reset();
    vivoAlDia_ = false;
}

void ContextoMeta::RellenaRegion(const Region& r, const Objeto& brocha) {
    const Objeto& o = brocha ? brocha : E.ObjBrocha;
    if (o->Tipo == ObjetoMeta::Clase::Brocha) pintor_.RellenaRegion(r, BrochaDe(*o), Modos());
}

void ContextoMeta::InvierteRegion(const Region& r) {
    constexpr int INVIERTE = 6;
    ModosMeta m = Modos();
    m.Rop2 = INVIERTE;
    pintor_.RellenaRegion(r, BrochaMeta{}, m);
}

// The region's points that have something outside it within the frame's breadth.
void ContextoMeta::MarcoRegion(const Region& r, const Objeto& brocha, PuntoD grosor) {
    const Matriz m = AlDispositivo();
    const auto gx = static_cast<i32>(std::max(1.0, Entera(Largo(m.Vector({grosor.x, 0})))));
    const auto gy = static_cast<i32>(std::max(1.0, Entera(Largo(m.Vector({0, grosor.y})))));
    Region dentro = r;
    for (const Punto d :
         {Punto{gx, 0}, {-gx, 0}, {0, gy}, {0, -gy}, {gx, gy}, {-gx, gy}, {gx, -gy}, {-gx, -gy}}) {
        Region otra = r;
        otra.Desplaza(d.x, d.y);
        CombinaConTino(dentro, dentro, otra, RGN_AND, esfuerzo_);
    }
    Region marco;
    CombinaConTino(marco, r, dentro, RGN_DIFF, esfuerzo_);
    RellenaRegion(marco, brocha);
}

// --- Pictures.

void ContextoMeta::Copia(CopiaMeta c, PuntoD lugar, PuntoD medida) {
    const Matriz m = AlDispositivo();
    c.Esquina = m.De(lugar);
    c.Derecha = m.De({lugar.x + medida.x, lugar.y});
    c.Abajo = m.De({lugar.x, lugar.y + medida.y});
    CopiaA(c);
}

void ContextoMeta::CopiaA(CopiaMeta c) {
    for (PuntoD* p : {&c.Esquina, &c.Derecha, &c.Abajo}) *p = {Medido(p->x), Medido(p->y)};
    c.Estira = E.Estira;
    pintor_.Copia(c, BrochaDe(*E.ObjBrocha), Modos());
}

void ContextoMeta::Degrada(const PuntoD (&p)[3], const Pixel (&color)[3]) {
    const PuntoD q[3] = {Redondo(p[0]), Redondo(p[1]), Redondo(p[2])};
    pintor_.Degrada(q, color, Modos());
}

void ContextoMeta::PonPunto(PuntoD p, ColorMeta c) {
    pintor_.PonPunto(Redondo(p), Color(c), Modos());
}

void ContextoMeta::Inunda(PuntoD p, ColorMeta c, bool hastaBorde) {
    pintor_.Inunda(Redondo(p), Color(c), hastaBorde, BrochaDe(*E.ObjBrocha), Modos());
}

// --- Text.

void ContextoMeta::Escribe(const Escrito& t) {
    constexpr unsigned OPACA = 2, RECORTADA = 4, INDICES = 0x10, CON_Y = 0x2000;
    constexpr unsigned SIGUE_PLUMA = 1;
    const Matriz pagina = AlDispositivo();
    // Letters stand upright whatever way the axes run, unless the world itself is turned.
    Matriz inversa;
    const bool recta = E.Mundo.Recta() && E.Mundo.a > 0 && E.Mundo.d > 0;
    Matriz sinMundo = base_;
    if (E.Mundo.Inversa(inversa)) sinMundo = inversa.Luego(pagina);
    const double alto = Largo(pagina.Vector({0, 1})), ancho = Largo(pagina.Vector({1, 0}));
    if (alto < 1e-9 || ancho < 1e-9) return;
    TextoMeta m;
    m.Fuente = E.ObjFuente->Fuente;
    double porX = ancho, porY = alto;
    if (!recta) {
        const double py = Largo(sinMundo.Vector({0, 1}));
        const double px = Largo(sinMundo.Vector({1, 0}));
        porX = px;
        porY = py;
        m.Forma = {E.Mundo.a, E.Mundo.b, E.Mundo.c, E.Mundo.d, 0, 0};
    }
    m.Fuente.Alto = Medido(m.Fuente.Alto * porY);
    m.Fuente.Ancho = Medido(m.Fuente.Ancho * porX);
    m.Letras = t.Letras;
    Cuenta(m.Letras.size());
    for (const PuntoD& a : t.Avances)
        m.Avances.push_back({Medido(a.x * porX), (t.Opciones & CON_Y) ? Medido(a.y * porY) : 0});
    m.Extra = Medido(E.ExtraLetra * porX);
    if (E.Blancos > 0) m.ExtraBlanco = Medido(E.ExtraBlancos * porX / E.Blancos);
    m.PorIndice = (t.Opciones & INDICES) != 0;
    m.Alineacion = E.Alineacion;
    const bool sigue = (E.Alineacion & SIGUE_PLUMA) != 0;
    const PuntoD lugar = pagina.De(sigue ? E.Pluma : t.Lugar);
    m.Lugar = {Medido(lugar.x), Medido(lugar.y)};
    m.CajaOpaca = (t.Opciones & OPACA) != 0;
    m.CajaRecorta = (t.Opciones & RECORTADA) != 0;
    if (m.CajaOpaca || m.CajaRecorta) {
        Contorno c;
        c.Cerrado = true;
        for (const PuntoD& p :
             {t.CajaA, PuntoD{t.CajaB.x, t.CajaA.y}, t.CajaB, PuntoD{t.CajaA.x, t.CajaB.y}})
            c.Puntos.push_back(Redondo(p));
        m.Rectangulo.push_back(std::move(c));
    }
    const PuntoD avance = pintor_.Escribe(m, Modos());
    if (sigue && pagina.Inversa(inversa)) {
        const PuntoD d = inversa.Vector(avance);
        E.Pluma = {Medido(E.Pluma.x + d.x), Medido(E.Pluma.y + d.y)};
    }
}

}  // namespace tessario
