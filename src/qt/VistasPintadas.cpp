// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/VistasPintadas.h"

#include <QEnterEvent>
#include <QGuiApplication>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "qt/Estilo.h"

namespace tessario {

namespace {

// What a state adds to the picture.
const QColor LUZ(255, 255, 255, 60), SOMBRA(0, 0, 0, 40);    // lifted, sunk
constexpr int VELO = 168;                                    // of the ground over what is forbidden
constexpr int MARCO = 3, MARCO_FINO = 2, PARTE_MENUDA = 24;  // frame of what is on, pixels

QRect De(const Rect& r) {
    return {r.Izq, r.Arr, r.Ancho(), r.Alto()};
}

QColor Fondo(const Superficie& s) {
    return QColor::fromRgb(PixelDe(s.BackColor()));
}

QImage Lienzo(const Mapa& m) {
    return {reinterpret_cast<const uchar*>(m.Pixeles.data()), m.Ancho, m.Alto,
            static_cast<qsizetype>(m.Ancho) * 4, QImage::Format_RGB32};
}

// A bright frame within a dark line: seen on any ground, and without its colour.
void PintaMarco(QPainter& p, const QRect& r) {
    const int grueso = std::min(r.width(), r.height()) < PARTE_MENUDA ? MARCO_FINO : MARCO;
    for (int i = 0; i < grueso; ++i) {
        p.setPen(i == 0 ? estilo::TINTA : estilo::ORO);
        p.drawRect(r.adjusted(i, i, -i - 1, -i - 1));
    }
}

// Paints what a bitmap has of a region, and tells which part that was.
QRegion PintaMapa(QPainter& p, const Mapa& m, const QRegion& region) {
    QRegion suya = region & QRect(0, 0, m.Ancho, m.Alto);
    const QImage lienzo = Lienzo(m);
    for (const QRect& r : suya) p.drawImage(r.topLeft(), lienzo, r);
    return suya;
}

// The texts in the screen's own pixels, over the plain ones.
void PintaFinos(QPainter& p, const Superficie& s, const QRegion& region) {
    const qreal escala = p.deviceTransform().m11();
    for (const TextoFino& t : s.Finos())
        if (t.Factor == escala)
            for (const QRect& r : region)
                PintaFino(p, t, RectDe(r.x(), r.y(), r.width(), r.height()));
}

// The upper byte of our pixels is 0. The window system takes no notice, but a compositor hands it
// on with its pictures of the screen, where it says how opaque a pixel is.
void HazOpaca(QPainter& p, const QRegion& region) {
    static const bool hay = QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    if (!hay) return;
    p.setCompositionMode(QPainter::RasterOp_SourceOrDestination);
    for (const QRect& r : region) p.fillRect(r, Qt::black);
}

}  // namespace

void PintaSuperficie(QWidget& w, const Superficie& s, const QPaintEvent& e) {
    QPainter p(&w);
    const QRect limites(0, 0, s.Width(), s.Height());
    if (limites.isEmpty()) {
        p.fillRect(e.rect(), Fondo(s));
        return;
    }
    // A surface that is all ground has no pixels, and is given none to be shown.
    QRegion fuera = e.region();
    if (!s.SoloSuelo())
        fuera -= PintaMapa(p, s.Dibujo(), fuera & limites);
    else if (s.Picture())
        fuera -= PintaMapa(p, *s.Picture(), fuera & limites);
    for (const QRect& r : fuera) p.fillRect(r, Fondo(s));
    PintaFinos(p, s, e.region());
    HazOpaca(p, e.region());
}

VistaCuadro::VistaCuadro(Cuadro& c, MarcoDeVistas& v, QWidget* padre)
    : Vista(c, v, padre), cuadro_(c) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

i32 VistaCuadro::SincronizaPropio() {
    const i32 area = MiraCaras();
    MiraCruz();
    const Rect r = Interseccion(cuadro_.TomaSucio(), cuadro_.Limites());
    if (r.Vacio() || !isVisible()) return area;
    // Only what lies within the container can be seen.
    const QRect vista = parentWidget()->rect().translated(-pos());
    const QRect cambio = QRect(r.Izq, r.Arr, r.Ancho(), r.Alto()) & vista;
    if (cambio.isEmpty()) return area;
    update(cambio);
    return area + cambio.width() * cambio.height();
}

// A picture that takes no keys of its own acts as a button.
bool VistaCuadro::EsBoton() const {
    return !cuadro_.KeyPress && !cuadro_.KeyDown;
}

// The states are asked for after every event; only what differs is painted.
i32 VistaCuadro::MiraCaras() {
    nuevas_.clear();
    if (cuadro_.Caras)
        cuadro_.Caras(nuevas_);
    else if (cuadro_.Resalta)
        nuevas_.push_back({cuadro_.Limites()});
    if (nuevas_ == caras_) return 0;
    i32 area = 0;
    for (std::size_t i = 0; i < std::max(caras_.size(), nuevas_.size()); ++i) {
        const bool igual = i < caras_.size() && i < nuevas_.size() && caras_[i] == nuevas_[i];
        for (const auto* c : {&caras_, &nuevas_}) {
            if (igual || i >= c->size()) continue;
            const QRect r = De((*c)[i].Donde);
            update(r);
            area += r.width() * r.height();
        }
    }
    caras_.swap(nuevas_);
    return area;
}

// While the keyboard points, the part that its cross lies on is lifted in place of the mouse's.
void VistaCuadro::MiraCruz() {
    const Cruz* const cruz = ventana().ApuntaElTeclado() ? ventana().Teclado : nullptr;
    if (!cruz && !conCruz_) return;
    conCruz_ = cruz != nullptr;
    const bool mia = cruz && cruz->Sobre == &cuadro_;
    const QPoint punto = mia ? QPoint(cruz->Left + Cruz::RADIO, cruz->Top + Cruz::RADIO) : QPoint();
    Pon(bajo_, mia ? CaraEn(mapFrom(&Marco(), punto)) : NINGUNA);
}

int VistaCuadro::CaraEn(QPointF p) const {
    for (std::size_t i = 0; i < caras_.size(); ++i)
        if (De(caras_[i].Donde).contains(p.toPoint())) return static_cast<int>(i);
    return NINGUNA;
}

void VistaCuadro::Repinta(int cara) {
    const auto i = static_cast<std::size_t>(cara);
    if (cara != NINGUNA && i < caras_.size()) update(De(caras_[i].Donde));
}

void VistaCuadro::Pon(int& cual, int cara) {
    // A window that goes takes the pointer out of its views when their records may be gone.
    if (!Viva() || cual == cara) return;
    Repinta(cual);
    cual = cara;
    Repinta(cual);
}

void VistaCuadro::AlPasar(QPointF p) {
    Pon(bajo_, CaraEn(p));
}
void VistaCuadro::AlApretar(QPointF p) {
    Pon(hundida_, CaraEn(p));
}
void VistaCuadro::AlSoltar(QPointF) {
    Pon(hundida_, NINGUNA);
}
void VistaCuadro::enterEvent(QEnterEvent* e) {
    AlPasar(e->position());
}
void VistaCuadro::leaveEvent(QEvent*) {
    Pon(bajo_, NINGUNA);
}

void VistaCuadro::PintaCara(QPainter& p, int cara) const {
    const Cara& c = caras_[static_cast<std::size_t>(cara)];
    const QRect r = De(c.Donde);
    const bool hundida = cara == hundida_;
    if (c.Apagada) {
        QColor velo = Fondo(cuadro_);
        velo.setAlpha(VELO);
        p.fillRect(r, velo);
    } else if (hundida || cara == bajo_) {
        QRect tecla = r;
        // A picture that is one button, set in the ground, moves a pixel with its state.
        if (cuadro_.Caras && r == rect()) {
            const QPoint paso = hundida ? QPoint(1, 1) : QPoint(-1, -1);
            p.fillRect(r, Fondo(cuadro_));
            p.translate(paso);
            p.drawImage(QPoint(), Lienzo(cuadro_.Dibujo()));
            PintaFinos(p, cuadro_, rect());
            p.translate(-paso);
            tecla = r.adjusted(1, 1, -2, -2).translated(paso);
        }
        p.fillRect(tecla, hundida ? SOMBRA : LUZ);
    }
    if (c.Encendida) PintaMarco(p, r);
}

void VistaCuadro::paintEvent(QPaintEvent* e) {
    PintaSuperficie(*this, cuadro_, *e);
    QPainter p(this);
    if (cuadro_.Enabled)
        for (std::size_t i = 0; i < caras_.size(); ++i) PintaCara(p, static_cast<int>(i));
    for (const QRect& r : e->region()) pintados_ += r.width() * r.height();
    PintaAnillo(p, rect());
}

VistaEtiqueta::VistaEtiqueta(Etiqueta& c, MarcoDeVistas& v, QWidget* padre)
    : Vista(c, v, padre), etiqueta_(c) {}

i32 VistaEtiqueta::SincronizaPropio() {
    const Etiqueta& c = etiqueta_;
    const bool corta = texto_ != c.Caption || fuente_ != c.Font || anchoCortado_ != c.Width() ||
                       altoCortado_ != c.Height();
    if (!corta && tinta_ == c.ForeColor && papel_ == c.BackColor &&
        transparente_ == c.Transparente && centrada_ == c.Centrada)
        return 0;
    if (corta) {
        Textos& textos = anfitrion().textos();
        letra_ = textos.QueCabe(c.Font, c.Caption, c.Width(), c.Height());
        renglones_ = textos.Renglones(letra_, c.Caption, c.Width());
    }
    texto_ = c.Caption;
    fuente_ = c.Font;
    anchoCortado_ = c.Width();
    altoCortado_ = c.Height();
    tinta_ = c.ForeColor;
    papel_ = c.BackColor;
    transparente_ = c.Transparente;
    centrada_ = c.Centrada;
    if (c.NombreAccesible.empty())
        setAccessibleName(QString::fromStdString(c.Caption).simplified());
    update();
    return width() * height();
}

void VistaEtiqueta::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (!transparente_) p.fillRect(rect(), QColor::fromRgb(PixelDe(papel_)));
    Textos& textos = anfitrion().textos();
    p.setFont(textos.Letra(letra_));
    p.setPen(QColor::fromRgb(PixelDe(tinta_)));
    i32 y = 0;
    for (const Renglon& r : renglones_) {
        textos.PintaRenglon(p, letra_, r, y, width(), centrada_);
        y += Textos::Interlinea(letra_);
    }
    PintaAnillo(p, rect());
}

namespace {

// An arm, from the point, which stays free, outwards, and half as wide as it is beside its middle
// line; both with the edge.
constexpr int BRAZO_DESDE = 3, BRAZO_HASTA = 18, BRAZO_MEDIO = 2;
constexpr int PUNTERO_A = 6;  // from the point to the corner of the pointer beside it

}  // namespace

VistaCruz::VistaCruz(Cruz& c, MarcoDeVistas& v, QWidget* padre) : Vista(c, v, padre), cruz_(c) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QPixmap VistaCruz::Puntero() const {
    if (!cruz_.Sobre) return {};
    return anfitrion().cursores().De(cruz_.Sobre->MousePointer, cruz_.Sobre->MouseIcon).pixmap();
}

i32 VistaCruz::SincronizaPropio() {
    const QPixmap ahora = Puntero();
    if (ahora.cacheKey() == puntero_.cacheKey()) return 0;
    puntero_ = ahora;
    update();
    return width() * height();
}

void VistaCruz::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const QPoint medio(Cruz::RADIO, Cruz::RADIO);
    for (const int dentro : {0, 1}) {
        const int cerca = BRAZO_DESDE + dentro, lejos = BRAZO_HASTA - dentro;
        const int medioAncho = BRAZO_MEDIO - dentro;
        const QRect este(QPoint(cerca, -medioAncho), QPoint(lejos, medioAncho));
        const QRect oeste(QPoint(-lejos, -medioAncho), QPoint(-cerca, medioAncho));
        for (const QRect& r : {este, oeste})
            for (const QRect& brazo : {r, QRect(r.y(), r.x(), r.height(), r.width())})
                p.fillRect(brazo.translated(medio), dentro ? Qt::white : Qt::black);
    }
    // On the other side where the window ends.
    const QSize t = puntero_.size();
    const QPoint fin = pos() + medio + QPoint(PUNTERO_A + t.width(), PUNTERO_A + t.height());
    const int x = fin.x() <= parentWidget()->width() ? PUNTERO_A : -PUNTERO_A - t.width();
    const int y = fin.y() <= parentWidget()->height() ? PUNTERO_A : -PUNTERO_A - t.height();
    if (!puntero_.isNull()) p.drawPixmap(medio + QPoint(x, y), puntero_);
}

}  // namespace tessario
