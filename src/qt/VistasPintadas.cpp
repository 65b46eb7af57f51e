#include "qt/VistasPintadas.h"

#include <QImage>
#include <QPaintEvent>
#include <QPainter>

namespace tessario {

void PintaSuperficie(QWidget& w, const Superficie& s, const QPaintEvent& e) {
    QPainter p(&w);
    const QRect limites(0, 0, s.Width(), s.Height());
    if (limites.isEmpty()) {
        p.fillRect(e.rect(), QColor::fromRgb(PixelDe(s.BackColor())));
        return;
    }
    const QImage lienzo(reinterpret_cast<const uchar*>(s.Fila(0)), s.Width(), s.Height(),
                        static_cast<qsizetype>(s.Width()) * 4, QImage::Format_RGB32);
    for (const QRect& r : e.region()) {
        const QRect dentro = r & limites;
        if (!dentro.isEmpty()) p.drawImage(dentro.topLeft(), lienzo, dentro);
    }
    const QRegion fuera = e.region() - limites;
    for (const QRect& r : fuera) p.fillRect(r, QColor::fromRgb(PixelDe(s.BackColor())));
}

VistaCuadro::VistaCuadro(Cuadro& c, MarcoDeVistas& v, QWidget* padre)
    : Vista(c, v, padre), cuadro_(c) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

i32 VistaCuadro::SincronizaPropio() {
    const Rect r = Interseccion(cuadro_.TomaSucio(), cuadro_.Limites());
    if (r.Vacio() || !isVisible()) return 0;
    // Only what lies within the container can be seen.
    const QRect vista = parentWidget()->rect().translated(-pos());
    const QRect cambio = QRect(r.Izq, r.Arr, r.Ancho(), r.Alto()) & vista;
    if (cambio.isEmpty()) return 0;
    update(cambio);
    return cambio.width() * cambio.height();
}

// A picture that takes no keys of its own acts as a button.
bool VistaCuadro::EsBoton() const {
    return !cuadro_.KeyPress && !cuadro_.KeyDown;
}

void VistaCuadro::RepintaSiResalta() {
    // A window that goes takes the pointer out of its views when their records may be gone.
    if (Viva() && cuadro_.Resalta) update();
}
void VistaCuadro::AlApretar(QPointF) {
    hundido_ = true;
    RepintaSiResalta();
}
void VistaCuadro::AlSoltar(QPointF) {
    hundido_ = false;
    RepintaSiResalta();
}
void VistaCuadro::enterEvent(QEnterEvent*) {
    RepintaSiResalta();
}
void VistaCuadro::leaveEvent(QEvent*) {
    RepintaSiResalta();
}

void VistaCuadro::paintEvent(QPaintEvent* e) {
    PintaSuperficie(*this, cuadro_, *e);
    if (cuadro_.Resalta && cuadro_.Enabled && underMouse()) {
        const QColor luz(255, 255, 255, 70), sombra(0, 0, 0, 40);
        QPainter(this).fillRect(e->rect(), hundido_ ? sombra : luz);
    }
    for (const QRect& r : e->region()) pintados_ += r.width() * r.height();
    if (AnilloVisible()) {
        QPainter p(this);
        PintaAnillo(p, rect());
    }
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

}  // namespace tessario
