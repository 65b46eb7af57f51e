// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/VistasMandos.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "qt/Estilo.h"

namespace tessario {

using namespace estilo;

namespace {

constexpr int INTERRUPTOR_ANCHO = 30, INTERRUPTOR_ALTO = 16;
constexpr int FLECHA = 22;   // side of an arrow button
constexpr int RENGLON = 16;  // height of a line of caption
constexpr int REPITE_PRIMERA_MS = 400, REPITE_MS = 60;
constexpr int ESFERA_MINIMA = 44;  // a view lower than this shows a ruler, not a dial
constexpr int CIFRAS_ANCHO = 28;
constexpr double ESFERA_INICIO = 225, ESFERA_BARRIDO = 270;  // degrees: 0 to 100 clockwise

const Fuente ROTULO{Familia::Sans, 13, false, false};
const Fuente ROTULO_MENUDO{Familia::Sans, 12, false, false};
const Fuente CIFRAS{Familia::Sans, 13, true, false};

// -1 or 1 for a key that steps a value down or up, 0 for any other.
int PasoDeTecla(const QKeyEvent& e) {
    switch (e.key()) {
        case Qt::Key_Left:
        case Qt::Key_Down:
        case Qt::Key_Minus:
            return -1;
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Plus:
            return 1;
        default:
            return 0;
    }
}

}  // namespace

i32 VistaMando::SincronizaPropio() {
    std::string ahora = Aspecto() + (control().Enabled ? '1' : '0');
    if (ahora == visto_) return 0;
    visto_ = std::move(ahora);
    if (control().NombreAccesible.empty()) setAccessibleName(Nombre().simplified());
    update();
    return width() * height();
}

bool VistaMando::Encima() const {
    return control().Enabled && underMouse();
}

QColor VistaMando::Tinta() const {
    return control().Enabled ? COBALTO_OSCURO : TINTA_APAGADA;
}

QRect VistaMando::PintaRotulo(QPainter& p, QRect r, const std::string& texto,
                              Qt::Alignment a) const {
    Textos& textos = anfitrion().textos();
    const QString entero = QString::fromStdString(texto);
    const auto cabe = [&](const Fuente& f) {
        return textos.Medida(f).horizontalAdvance(entero) <= r.width();
    };
    const Fuente& letra = !cabe(ROTULO) && cabe(ROTULO_MENUDO) ? ROTULO_MENUDO : ROTULO;
    const bool dos = !cabe(letra) && r.height() >= 2 * RENGLON;
    p.setFont(textos.Letra(letra));
    p.setPen(Tinta());
    const QString t =
        dos ? entero : textos.Medida(letra).elidedText(entero, Qt::ElideRight, r.width());
    QRect ocupa;
    p.drawText(r, static_cast<int>(a) | (dos ? Qt::TextWordWrap : Qt::TextSingleLine), t, &ocupa);
    return ocupa;
}

void VistaMando::wheelEvent(QWheelEvent* e) {
    const int n = e->angleDelta().y();
    if (n && control().Enabled && Viva()) Paso(n > 0 ? 1 : -1);
    e->accept();
}

// --- Switch.

std::string VistaBuleano::Aspecto() const {
    return b_.Caption + (b_.Value ? "\1" : "\2");
}

void VistaBuleano::Cambia() {
    if (b_.Sound) anfitrion().SuenaMando();
    anfitrion().Entrega([&] { b_.Pon(!b_.Value); });
}

void VistaBuleano::AlApretar(QPointF) {
    Cambia();
}

bool VistaBuleano::TeclaPropia(const QKeyEvent& e) {
    if (e.key() != Qt::Key_Space && e.key() != Qt::Key_Return && e.key() != Qt::Key_Enter)
        return false;
    Cambia();
    return true;
}

void VistaBuleano::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const int arriba = (height() - INTERRUPTOR_ALTO) / 2;
    const QRectF caja(2.5, arriba + 0.5, INTERRUPTOR_ANCHO - 1, INTERRUPTOR_ALTO - 1);
    const QColor fondo = !b_.Enabled ? CREMA_OSCURA : b_.Value ? COBALTO : BARRO;
    p.setPen(QPen(b_.Enabled ? (b_.Value ? COBALTO_OSCURO : TERRACOTA_OSCURA) : APAGADO, 1));
    p.setBrush(Encima() ? fondo.lighter(b_.Value ? 135 : 110) : fondo);
    p.drawRoundedRect(caja, caja.height() / 2, caja.height() / 2);
    const double d = caja.height() - 4;
    const double x = b_.Value ? caja.right() - d - 2 : caja.left() + 2;
    p.setPen(QPen(fondo.darker(130), 1));
    p.setBrush(ESMALTE);
    p.drawEllipse(QRectF(x, caja.top() + 2, d, d));
    PintaRotulo(p, rect().adjusted(INTERRUPTOR_ANCHO + 8, 0, 0, 0), b_.Caption,
                Qt::AlignLeft | Qt::AlignVCenter);
    PintaAnillo(p, rect());
}

// --- Selector.

std::string VistaSelector::Aspecto() const {
    std::string t = s_.Caption + '\1' + std::to_string(s_.Value) + '\1' + std::to_string(hundido_);
    for (const std::string& x : s_.Textos) t += '\1' + x;
    return t;
}

QRect VistaSelector::Campo() const {
    const int arriba = s_.Caption.empty() || height() < 2 * RENGLON ? 0 : RENGLON + 2;
    return rect().adjusted(0, arriba, 0, 0);
}

void VistaSelector::Paso(int n) {
    const int cuantos = static_cast<int>(s_.Textos.size());
    if (cuantos < 2) return;
    // Around the corner: a choice without text is not offered.
    int v = s_.Value;
    for (int i = 0; i < cuantos; ++i) {
        v = (v - 1 + n + cuantos) % cuantos + 1;
        if (!s_.Textos[static_cast<std::size_t>(v - 1)].empty()) break;
    }
    if (v == s_.Value) return;
    if (s_.Sound) anfitrion().SuenaMando();
    anfitrion().Entrega([&] { s_.Pon(static_cast<i16>(v)); });
}

void VistaSelector::AlApretar(QPointF punto) {
    const QRect campo = Campo();
    if (!campo.contains(punto.toPoint())) return;
    hundido_ = punto.x() < campo.left() + FLECHA ? -1 : 1;
    update();
    Paso(hundido_);
}

void VistaSelector::AlSoltar(QPointF) {
    hundido_ = 0;
    update();
}

bool VistaSelector::TeclaPropia(const QKeyEvent& e) {
    int n = PasoDeTecla(e);
    if (e.key() == Qt::Key_Down || e.key() == Qt::Key_Up) n = -n;  // down is the next one
    if (e.key() == Qt::Key_Space) n = 1;
    if (n) Paso(n);
    return n != 0;
}

void VistaSelector::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const QRect campo = Campo();
    if (campo.top() > 0)
        PintaRotulo(p, QRect(2, 0, width() - 4, RENGLON), s_.Caption,
                    Qt::AlignLeft | Qt::AlignVCenter);
    Hueco(p, campo);
    const QRect menos(campo.left(), campo.top(), FLECHA, campo.height());
    const QRect mas(campo.right() - FLECHA + 1, campo.top(), FLECHA, campo.height());
    Azulejo(p, menos, Esmalte(CREMA_OSCURA), hundido_ < 0);
    Azulejo(p, mas, Esmalte(CREMA_OSCURA), hundido_ > 0);
    Flecha(p, menos, Rumbo::Izquierda, Tinta());
    Flecha(p, mas, Rumbo::Derecha, Tinta());
    const auto i = static_cast<std::size_t>(s_.Value - 1);
    if (s_.Value >= 1 && i < s_.Textos.size())
        PintaRotulo(p, campo.adjusted(FLECHA + 3, 0, -FLECHA - 3, 0), s_.Textos[i],
                    Qt::AlignCenter);
    PintaAnillo(p, rect());
}

// --- Knob.

std::string VistaPotenciometro::Aspecto() const {
    return k_.Caption + '\1' + std::to_string(k_.Value);
}

bool VistaPotenciometro::EsRegla() const {
    return height() < ESFERA_MINIMA;
}

QRect VistaPotenciometro::Regla() const {
    return rect().adjusted(2, height() > 2 * RENGLON ? RENGLON : 0, -CIFRAS_ANCHO - 2, 0);
}

QRect VistaPotenciometro::Esfera() const {
    const int alto = height() - (k_.Caption.empty() ? 0 : RENGLON);
    const int lado = std::max(8, std::min(width(), alto) - 4);
    return {(width() - lado) / 2, (alto - lado) / 2, lado, lado};
}

void VistaPotenciometro::PonValor(int v) {
    v = std::clamp(v, 0, 100);
    if (v != k_.Value) anfitrion().Entrega([&] { k_.Pon(static_cast<i16>(v)); });
}

void VistaPotenciometro::Paso(int n) {
    PonValor(k_.Value + n);
}

void VistaPotenciometro::LlevaA(QPointF p) {
    if (EsRegla()) {
        const QRect r = Regla();
        PonValor(static_cast<int>(std::lround((p.x() - r.left() - 4) * 100 / (r.width() - 9))));
        return;
    }
    const QPointF d = p - QRectF(Esfera()).center();
    if (d.manhattanLength() < 3) return;
    const double grados = std::atan2(-d.y(), d.x()) * 180 / M_PI;
    double avance = std::fmod(ESFERA_INICIO - grados + 720, 360);
    // The dead sector below belongs to the nearer end.
    if (avance > ESFERA_BARRIDO) avance = avance > (360 + ESFERA_BARRIDO) / 2 ? 0 : ESFERA_BARRIDO;
    PonValor(static_cast<int>(std::lround(avance * 100 / ESFERA_BARRIDO)));
}

void VistaPotenciometro::AlApretar(QPointF p) {
    LlevaA(p);
}
void VistaPotenciometro::AlArrastrar(QPointF p) {
    if (anfitrion().HayPulsadas()) LlevaA(p);
}

bool VistaPotenciometro::TeclaPropia(const QKeyEvent& e) {
    const struct {
        int tecla, paso;
    } SALTOS[] = {
        {Qt::Key_PageUp, 10}, {Qt::Key_PageDown, -10}, {Qt::Key_Home, -100}, {Qt::Key_End, 100}};
    int n = PasoDeTecla(e);
    for (const auto& s : SALTOS)
        if (e.key() == s.tecla) n = s.paso;
    if (n) Paso(n);
    return n != 0;
}

void VistaPotenciometro::PintaRegla(QPainter& p) const {
    const QRect r = Regla();
    if (r.top() > 0)
        PintaRotulo(p, QRect(2, 0, width() - 4, RENGLON), k_.Caption,
                    Qt::AlignLeft | Qt::AlignVCenter);
    const int medio = r.center().y();
    const int x = r.left() + 4 + (r.width() - 9) * k_.Value / 100;
    Hueco(p, QRect(r.left(), medio - 3, r.width(), 7));
    p.fillRect(QRect(r.left() + 2, medio - 1, std::max(0, x - r.left() - 2), 3),
               k_.Enabled ? COBALTO : APAGADO);
    const int alto = std::min(r.height(), 16);
    Azulejo(p, QRect(x - 4, medio - alto / 2, 9, alto), k_.Enabled ? Esmalte(TERRACOTA) : BARRO,
            false);
    p.setFont(anfitrion().textos().Letra(CIFRAS));
    p.setPen(Tinta());
    p.drawText(QRect(r.right() + 2, r.top(), CIFRAS_ANCHO, r.height()),
               Qt::AlignRight | Qt::AlignVCenter, QString::number(k_.Value));
}

void VistaPotenciometro::PintaEsfera(QPainter& p) const {
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF e = Esfera();
    const double grosor = std::max(4.0, e.width() * 0.09);
    const QRectF arco = e.adjusted(grosor, grosor, -grosor, -grosor);
    const auto dieciseisavos = [](double g) { return static_cast<int>(std::lround(g * 16)); };
    p.setPen(QPen(CREMA_OSCURA, grosor, Qt::SolidLine, Qt::FlatCap));
    p.drawArc(arco, dieciseisavos(ESFERA_INICIO), dieciseisavos(-ESFERA_BARRIDO));
    p.setPen(QPen(k_.Enabled ? COBALTO : APAGADO, grosor, Qt::SolidLine, Qt::FlatCap));
    p.drawArc(arco, dieciseisavos(ESFERA_INICIO), dieciseisavos(-ESFERA_BARRIDO * k_.Value / 100));
    const QRectF pomo = arco.adjusted(grosor, grosor, -grosor, -grosor);
    QRadialGradient luz(pomo.center() - QPointF(pomo.width() / 6, pomo.height() / 5),
                        pomo.width() * 0.75);
    const QColor barro = k_.Enabled ? Esmalte(TERRACOTA) : BARRO;
    luz.setColorAt(0, barro);  // no lighter: the figures stand on it
    luz.setColorAt(1, barro.darker(130));
    p.setPen(QPen(barro.darker(150), 1));
    p.setBrush(luz);
    p.drawEllipse(pomo);
    const double a = (ESFERA_INICIO - ESFERA_BARRIDO * k_.Value / 100) * M_PI / 180;
    const QPointF rumbo(std::cos(a), -std::sin(a));
    const double radio = pomo.width() / 2;
    p.setPen(QPen(ESMALTE, std::max(2.0, radio * 0.12), Qt::SolidLine, Qt::RoundCap));
    p.drawLine(pomo.center() + rumbo * radio * 0.62, pomo.center() + rumbo * radio * 0.88);
    p.setFont(anfitrion().textos().Letra(CIFRAS));
    p.setPen(k_.Enabled ? ESMALTE : TINTA_APAGADA);
    p.drawText(pomo, Qt::AlignCenter, QString::number(k_.Value));
    if (!k_.Caption.empty())
        PintaRotulo(p, QRect(0, height() - RENGLON, width(), RENGLON), k_.Caption, Qt::AlignCenter);
}

void VistaPotenciometro::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (EsRegla())
        PintaRegla(p);
    else
        PintaEsfera(p);
    PintaAnillo(p, rect());
}

// --- Spinner.

VistaSpin::VistaSpin(Spin& c, MarcoDeVistas& v, QWidget* padre) : VistaMando(c, v, padre), s_(c) {
    connect(&repite_, &QTimer::timeout, this, [this] {
        repite_.setInterval(REPITE_MS);
        if (Viva() && hundido_) Avanza(hundido_);
    });
}

std::string VistaSpin::Aspecto() const {
    return s_.Caption + '\1' + std::to_string(s_.Value) + '\1' + std::to_string(hundido_);
}

QRect VistaSpin::Boton(int cual) const {
    const int x = width() - (cual > 0 ? FLECHA : 2 * FLECHA);
    return {x, 0, FLECHA, height()};
}

void VistaSpin::Avanza(int n) {
    const int v = std::clamp<int>(s_.Value + n * s_.Incremento, s_.Min, s_.Max);
    if (v == s_.Value) return;
    // What the value does may open a window, under which nothing goes on counting.
    const bool contaba = repite_.isActive();
    repite_.stop();
    anfitrion().Entrega([&] { s_.Pon(static_cast<i16>(v)); });
    if (!Viva()) return;
    anfitrion().RevisaPulsadas();
    if (contaba && hundido_ && Viva()) repite_.start();
}

void VistaSpin::Paso(int n) {
    if (s_.Sound) anfitrion().SuenaMando();
    Avanza(n);
}

void VistaSpin::AlApretar(QPointF p) {
    for (const int cual : {-1, 1})
        if (Boton(cual).contains(p.toPoint())) hundido_ = cual;
    if (!hundido_) return;
    s_.Pulsado = true;
    repite_.start(REPITE_PRIMERA_MS);
    update();
    Paso(hundido_);
}

// The release is a change of its own: what waits for the end of a long press learns of it here.
void VistaSpin::AlSoltar(QPointF) {
    if (!hundido_) return;
    hundido_ = 0;
    repite_.stop();
    s_.Pulsado = false;
    update();
    if (s_.Change) anfitrion().Entrega(s_.Change);
}

bool VistaSpin::TeclaPropia(const QKeyEvent& e) {
    const int n = PasoDeTecla(e);
    if (n) Paso(n);
    return n != 0;
}

void VistaSpin::paintEvent(QPaintEvent*) {
    QPainter p(this);
    Hueco(p, rect().adjusted(0, 0, -2 * FLECHA, 0));
    const QRect dentro = rect().adjusted(5, 0, -2 * FLECHA - 6, 0);
    PintaRotulo(p, dentro.adjusted(0, 0, -CIFRAS_ANCHO, 0),
                QString::fromStdString(s_.Caption).trimmed().toStdString(),
                Qt::AlignLeft | Qt::AlignVCenter);
    p.setFont(anfitrion().textos().Letra(CIFRAS));
    p.setPen(Tinta());
    p.drawText(dentro, Qt::AlignRight | Qt::AlignVCenter, QString::number(s_.Value));
    for (const int cual : {-1, 1}) {
        Azulejo(p, Boton(cual), Esmalte(CREMA_OSCURA), hundido_ == cual);
        const bool puede = s_.Enabled && (cual < 0 ? s_.Value > s_.Min : s_.Value < s_.Max);
        Flecha(p, Boton(cual), cual < 0 ? Rumbo::Abajo : Rumbo::Arriba, puede ? COBALTO : APAGADO);
    }
    PintaAnillo(p, rect());
}

}  // namespace tessario
