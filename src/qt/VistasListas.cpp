// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/VistasListas.h"

#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QStyledItemDelegate>
#include <QTimer>

#include "platform/Ficheros.h"
#include "qt/Estilo.h"
#include "qt/Portapapeles.h"
#include "records/Texto.h"

namespace tessario {

namespace {

// A row may be the name of a file, which need be no UTF-8.
QString Qs(const std::string& t) {
    return QString::fromStdString(TextoDeRuta(t));
}

constexpr int LADO_MARCA = 13;

// Rows whose mark, if they have one, stands at their right end.
class Renglonero : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* o, const QModelIndex& i) const override {
        QStyledItemDelegate::initStyleOption(o, i);
        o->decorationPosition = QStyleOptionViewItem::Right;
        o->decorationAlignment = Qt::AlignCenter;
    }
};

// A tick, in a colour for each ground that a row can have.
QIcon MarcaDeFila(qreal escala) {
    QIcon icono;
    const struct {
        QIcon::Mode modo;
        const QColor& color;
    } TINTAS[] = {{QIcon::Normal, estilo::VERDE},
                  {QIcon::Selected, estilo::ESMALTE},
                  {QIcon::Disabled, estilo::APAGADO}};
    for (const auto& t : TINTAS) {
        QPixmap dibujo(QSizeF(LADO_MARCA * escala, LADO_MARCA * escala).toSize());
        dibujo.setDevicePixelRatio(escala);
        dibujo.fill(Qt::transparent);
        QPainter p(&dibujo);
        estilo::Tilde(p, {0, 0, LADO_MARCA, LADO_MARCA}, t.color);
        icono.addPixmap(dibujo, t.modo);
    }
    return icono;
}

}  // namespace

// --- Scroll bar.

VistaBarra::VistaBarra(BarraDesplazamiento& c, MarcoDeVistas& v, QWidget* padre)
    : Vista(c, v, padre),
      c_(c),
      barra_(new QScrollBar(c.Vertical ? Qt::Vertical : Qt::Horizontal, this)) {
    PonInterior(barra_);
    connect(barra_, &QScrollBar::actionTriggered, this, [this](int accion) {
        const int sentido = accion == QAbstractSlider::SliderPageStepAdd   ? 1
                            : accion == QAbstractSlider::SliderPageStepSub ? -1
                                                                           : 0;
        if (sentido) barra_->setSliderPosition(barra_->value() + sentido * c_.LargeChange);
    });
    connect(barra_, &QScrollBar::valueChanged, this, [this](int valor) {
        if (Viva() && valor != c_.Value) anfitrion().Entrega([&] { c_.Pon(valor); });
    });
}

i32 VistaBarra::SincronizaPropio() {
    const QSignalBlocker sin(barra_);
    const auto sentido = c_.Vertical ? Qt::Vertical : Qt::Horizontal;
    if (barra_->orientation() != sentido) barra_->setOrientation(sentido);
    const int maximo = std::max(c_.Min, c_.Max);
    if (barra_->minimum() != c_.Min || barra_->maximum() != maximo)
        barra_->setRange(c_.Min, maximo);
    if (barra_->singleStep() != c_.SmallChange) barra_->setSingleStep(c_.SmallChange);
    // The page is what is in view, which gives the handle its length; a click beside it goes the
    // record's own long step, below.
    const int pagina = c_.Tramo > 0 ? c_.Tramo : c_.LargeChange;
    if (barra_->pageStep() != pagina) barra_->setPageStep(pagina);
    if (barra_->value() != c_.Value) barra_->setValue(c_.Value);
    return 0;
}

// --- Text box.

VistaTexto::VistaTexto(CajaTexto& c, MarcoDeVistas& v, QWidget* padre)
    : Vista(c, v, padre), c_(c), linea_(new QLineEdit(this)), fuente_(c.Font) {
    PonInterior(linea_);
    linea_->setFont(FuenteQt(fuente_));
    linea_->setContextMenuPolicy(Qt::NoContextMenu);
    PegaConLimite(*linea_);
    connect(linea_, &QLineEdit::textEdited, this, [this](const QString& texto) {
        if (!Viva()) return;
        visto_ = texto.toStdString();
        anfitrion().Entrega([&] { c_.Escribe(texto.toStdString()); });
    });
}

i32 VistaTexto::SincronizaPropio() {
    if (!(fuente_ == c_.Font)) {
        fuente_ = c_.Font;
        linea_->setFont(FuenteQt(fuente_));
    }
    const int largo = c_.MaxLength > 0 ? c_.MaxLength : 32767;
    if (linea_->maxLength() != largo) linea_->setMaxLength(largo);
    if (visto_ == c_.Text) return 0;
    visto_ = c_.Text;
    if (linea_->text().toStdString() != visto_) linea_->setText(Qs(visto_));
    return width() * height();
}

// --- Rows.

VistaFilas::VistaFilas(Control& c, MarcoDeVistas& v, QWidget* padre)
    : Vista(c, v, padre), filas_(new QListWidget(this)) {
    PonInterior(filas_);
    filas_->setUniformItemSizes(true);
    filas_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    filas_->setTextElideMode(Qt::ElideRight);
    filas_->setFont(FuenteQt(Fuente{}));
    filas_->setIconSize(QSize(LADO_MARCA, LADO_MARCA));
    filas_->setItemDelegate(new Renglonero(filas_));
    connect(filas_, &QListWidget::currentRowChanged, this, [this](int fila) {
        // Getting the keyboard makes the first row the current one, which chooses nothing.
        if (sincronizando_ || fila < 0 || !filas_->item(fila)->isSelected()) return;
        avisada_ = true;
        Avisa(fila);
    });
    // A press on the row that is already chosen chooses it once more.
    connect(filas_, &QListWidget::itemClicked, this, [this](QListWidgetItem* i) {
        if (!avisada_) Avisa(filas_->row(i));
        avisada_ = false;
    });
    connect(filas_, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* i) {
        const int fila = filas_->row(i);
        QTimer::singleShot(0, this, [this, fila] {
            if (Viva() && control().Enabled) Confirmada(fila);
        });
    });
}

void VistaFilas::Avisa(int fila) {
    QTimer::singleShot(0, this, [this, fila] {
        if (Viva() && control().Enabled && fila >= 0 && fila < filas_->count()) Elegida(fila);
    });
}

void VistaFilas::PonFilas(const QStringList& textos) {
    sincronizando_ = true;
    filas_->clear();
    filas_->addItems(textos);
    sincronizando_ = false;
}

void VistaFilas::PonMarcas(const std::vector<int>& filas) {
    if (filas.empty()) return;
    const QIcon marca = MarcaDeFila(devicePixelRatioF());
    const QString resuelto = QStringLiteral("Resuelto");
    for (const int fila : filas) {
        QListWidgetItem* const i = filas_->item(fila);
        i->setIcon(marca);
        i->setData(Qt::AccessibleDescriptionRole, resuelto);
        i->setToolTip(resuelto);
    }
}

void VistaFilas::Marca(int fila) {
    if (filas_->currentRow() == fila && (fila < 0 || filas_->item(fila)->isSelected())) return;
    sincronizando_ = true;
    filas_->setCurrentRow(fila);
    if (fila < 0) filas_->clearSelection();
    sincronizando_ = false;
}

i32 VistaLista::SincronizaPropio() {
    const auto iguales = [&] {
        return std::equal(vistos_.begin(), vistos_.end(), l_.Elementos.begin(), l_.Elementos.end(),
                          [](const Lista::Elemento& a, const Lista::Elemento& b) {
                              return a.Texto == b.Texto && a.Marca == b.Marca;
                          });
    };
    i32 area = 0;
    if (primera_ || !(fuente_ == l_.Font)) {
        fuente_ = l_.Font;
        filas_->setFont(FuenteQt(fuente_));
    }
    if (primera_ || !iguales()) {
        primera_ = false;
        vistos_ = l_.Elementos;
        QStringList textos;
        for (const Lista::Elemento& e : vistos_) textos << Qs(e.Texto);
        PonFilas(textos);
        std::vector<int> marcadas;
        for (std::size_t i = 0; i < vistos_.size(); ++i)
            if (vistos_[i].Marca) marcadas.push_back(static_cast<int>(i));
        PonMarcas(marcadas);
        indice_ = -2;
        area = width() * height();
    }
    if (indice_ != l_.ListIndex) {
        indice_ = l_.ListIndex;
        Marca(indice_ >= 0 && indice_ < filas_->count() ? indice_ : -1);
        area = width() * height();
    }
    return area;
}

void VistaLista::Elegida(int fila) {
    indice_ = fila;
    anfitrion().Entrega([&] { l_.Selecciona(fila); });
}

void VistaLista::Confirmada(int) {
    if (l_.DblClick) anfitrion().Entrega(l_.DblClick);
}

i32 VistaFicheros::SincronizaPropio() {
    f_.Actualiza();
    return VistaLista::SincronizaPropio();
}

i32 VistaCarpetas::SincronizaPropio() {
    if (visto_ == c_.Path) return 0;
    visto_ = c_.Path;
    rutas_.clear();
    QStringList textos;
    QString sangria;
    const auto fila = [&](const std::string& nombre, const std::string& ruta) {
        textos << sangria + Qs(nombre);
        rutas_.push_back(ruta);
    };
    const std::string& p = c_.Path;
    for (std::size_t i = 0; i < p.size();) {
        const std::size_t fin = std::min(p.find('/', i), p.size() - 1) + 1;
        fila(i == 0 && fin == 1 ? "/" : p.substr(i, fin - i), p.substr(0, fin));
        sangria += QStringLiteral("  ");
        i = fin;
    }
    const int actual = static_cast<int>(rutas_.size()) - 1;
    for (const std::string& nombre : CarpetasDe(p)) fila(nombre, p + nombre + "/");
    PonFilas(textos);
    if (actual >= 0) {
        QFont negrita = filas_->font();
        negrita.setBold(true);
        filas_->item(actual)->setFont(negrita);
    }
    Marca(actual);
    return width() * height();
}

void VistaCarpetas::Confirmada(int fila) {
    if (fila < 0 || static_cast<std::size_t>(fila) >= rutas_.size()) return;
    c_.Path = rutas_[static_cast<std::size_t>(fila)];
    if (c_.Change) anfitrion().Entrega(c_.Change);
}

bool VistaCarpetas::TeclaPropia(const QKeyEvent& e) {
    if (e.key() != Qt::Key_Return && e.key() != Qt::Key_Enter) return false;
    Confirmada(filas_->currentRow());
    return true;
}

// --- Drives.

VistaUnidades::VistaUnidades(ListaUnidades& c, MarcoDeVistas& v, QWidget* padre)
    : Vista(c, v, padre), c_(c), caja_(new CajaViva(this)) {
    PonInterior(caja_);
    caja_->setFont(FuenteQt(Fuente{}));
    caja_->AntesDeAbrir = [this] { Llena(); };
    connect(caja_, &QComboBox::activated, this, [this](int fila) {
        QTimer::singleShot(0, this, [this, fila] {
            if (!Viva() || fila >= caja_->count()) return;
            c_.Drive = caja_->itemData(fila).toByteArray().toStdString();
            if (c_.Change) anfitrion().Entrega(c_.Change);
        });
    });
}

void VistaUnidades::Llena() {
    const QSignalBlocker sin(caja_);
    caja_->clear();
    const auto pon = [this](const std::string& nombre, const std::string& ruta) {
        const QByteArray bytes = QByteArray::fromStdString(ruta);
        if (caja_->findData(bytes) >= 0) return;
        caja_->addItem(Qs(nombre), bytes);
        caja_->setItemData(caja_->count() - 1, Qs(ruta), Qt::ToolTipRole);
    };
    for (const auto& [nombre, ruta] : c_.Propias) pon(nombre, ruta);
    for (const Unidad& u : Unidades()) pon(u.Nombre, u.Ruta);
    if (!c_.Drive.empty()) pon(c_.Drive, c_.Drive);
    caja_->setCurrentIndex(caja_->findData(QByteArray::fromStdString(c_.Drive)));
}

i32 VistaUnidades::SincronizaPropio() {
    if (visto_ == c_.Drive) return 0;
    visto_ = c_.Drive;
    Llena();
    return width() * height();
}

}  // namespace tessario
