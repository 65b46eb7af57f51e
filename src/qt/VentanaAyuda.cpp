#include "qt/VentanaAyuda.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "qt/Estilo.h"
#include "qt/Textos.h"

namespace tessario {

namespace {

constexpr QSize TAMANO{780, 560};
constexpr int ANCHO_INDICE = 230;
constexpr int RUTA = Qt::UserRole;

const QString CARPETA = QStringLiteral(":/ayuda/");
const QString INICIO = QStringLiteral("inicio");

const QString HOJA_DE_ESTILO = QStringLiteral(
    "body { color: #241c18; } h1 { color: #1c459c; } h2, h3 { color: #b45432; }"
    "a { color: #1c459c; } td, th { padding: 3px; }");

// What a word is looked up by: small letters without accents.
QString Llano(const QString& t) {
    QString salida;
    for (const QChar c : t.normalized(QString::NormalizationForm_D).toLower())
        if (c.category() != QChar::Mark_NonSpacing) salida += c;
    return salida;
}

QToolButton* Boton(const QString& texto, const QString& nombre) {
    auto* b = new QToolButton;
    b->setText(texto);
    b->setToolTip(nombre);
    b->setAccessibleName(nombre);
    b->setFixedHeight(28);
    b->setFocusPolicy(Qt::StrongFocus);
    return b;
}

}  // namespace

VentanaAyuda::VentanaAyuda()
    : QWidget(nullptr, Qt::Window),
      hojas_(new QTextBrowser),
      indice_(new QListWidget),
      busca_(new QLineEdit) {
    setWindowTitle(QStringLiteral("Ayuda de Tessario"));
    auto* atras = Boton(QStringLiteral(" ◀  Atrás "), QStringLiteral("Página anterior"));
    auto* adelante = Boton(QStringLiteral(" Adelante  ▶ "), QStringLiteral("Página siguiente"));
    auto* inicio = Boton(QStringLiteral(" Inicio "), QStringLiteral("Página de inicio"));
    auto* cerrar = Boton(QStringLiteral(" Cerrar "), QStringLiteral("Cerrar la ayuda"));
    atras->setEnabled(false);
    adelante->setEnabled(false);
    busca_->setPlaceholderText(QStringLiteral("Buscar en la ayuda"));
    busca_->setAccessibleName(QStringLiteral("Buscar en la ayuda"));
    busca_->setClearButtonEnabled(true);
    busca_->setTextMargins(3, 0, 3, 0);
    indice_->setSpacing(1);
    indice_->setAccessibleName(QStringLiteral("Índice de la ayuda"));
    hojas_->setAccessibleName(QStringLiteral("Página de la ayuda"));
    hojas_->document()->setDefaultStyleSheet(HOJA_DE_ESTILO);
    hojas_->document()->setDocumentMargin(16);
    QFont letra = FuenteQt(Fuente{Familia::Sans, 14, false, false});
    hojas_->setFont(letra);
    hojas_->setOpenExternalLinks(false);

    auto* barra = new QHBoxLayout;
    for (QWidget* w : {atras, adelante, inicio}) barra->addWidget(w);
    barra->addStretch(1);
    barra->addWidget(cerrar);
    auto* lado = new QVBoxLayout;
    busca_->setFixedWidth(ANCHO_INDICE);
    indice_->setFixedWidth(ANCHO_INDICE);
    lado->addWidget(busca_);
    lado->addWidget(indice_, 1);
    auto* cuerpo = new QHBoxLayout;
    cuerpo->addLayout(lado);
    cuerpo->addWidget(hojas_, 1);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(8, 8, 8, 8);
    todo->addLayout(barra);
    todo->addLayout(cuerpo, 1);

    connect(atras, &QToolButton::clicked, hojas_, &QTextBrowser::backward);
    connect(adelante, &QToolButton::clicked, hojas_, &QTextBrowser::forward);
    connect(inicio, &QToolButton::clicked, this, [this] { Muestra(0); });
    connect(cerrar, &QToolButton::clicked, this, &QWidget::close);
    connect(hojas_, &QTextBrowser::backwardAvailable, atras, &QWidget::setEnabled);
    connect(hojas_, &QTextBrowser::forwardAvailable, adelante, &QWidget::setEnabled);
    // The browser tells of the new page before its own source() knows it.
    connect(hojas_, &QTextBrowser::sourceChanged, this, [this](const QUrl& u) {
        actual_ = u.toString(QUrl::RemoveFragment);
        MarcaEnIndice();
    });
    connect(busca_, &QLineEdit::textChanged, this, [this](const QString& t) { RellenaIndice(t); });
    connect(busca_, &QLineEdit::returnPressed, this, [this] { Abre(indice_->item(0)); });
    connect(indice_, &QListWidget::itemClicked, this, &VentanaAyuda::Abre);
    connect(indice_, &QListWidget::itemActivated, this, &VentanaAyuda::Abre);
    const QSize pantalla = QGuiApplication::primaryScreen()->availableSize();
    resize(TAMANO.boundedTo(pantalla - QSize(20, 40)));
    LeeHojas();
    RellenaIndice({});
}

void VentanaAyuda::LeeHojas() {
    for (const QString& nombre : QDir(CARPETA).entryList({QStringLiteral("*.html")})) {
        QFile f(CARPETA + nombre);
        if (!f.open(QIODevice::ReadOnly)) continue;
        QTextDocument d;
        d.setHtml(QString::fromUtf8(f.readAll()));
        const QString texto = d.toPlainText();
        QString titulo = d.metaInformation(QTextDocument::DocumentTitle);
        if (titulo.isEmpty()) titulo = texto.section(u'\n', 0, 0);
        hojasTodas_.append({QStringLiteral("qrc") + CARPETA + nombre, titulo.trimmed(),
                            Llano(titulo + u' ' + texto)});
    }
    // The start page first, the rest in the order of their numbers.
    std::stable_partition(hojasTodas_.begin(), hojasTodas_.end(), [](const Hoja& h) {
        return h.ruta.endsWith(INICIO + QStringLiteral(".html"));
    });
}

// Pages with all the words; those that have them in the title come first.
void VentanaAyuda::RellenaIndice(const QString& buscado) {
    const QStringList palabras = Llano(buscado).split(u' ', Qt::SkipEmptyParts);
    const auto todas = [&](const QString& texto) {
        return std::all_of(palabras.begin(), palabras.end(),
                           [&](const QString& p) { return texto.contains(p); });
    };
    indice_->clear();
    for (const bool enTitulo : {true, false}) {
        for (const Hoja& h : hojasTodas_) {
            if (todas(Llano(h.titulo)) != enTitulo || !todas(h.texto)) continue;
            auto* i = new QListWidgetItem(h.titulo, indice_);
            i->setData(RUTA, h.ruta);
        }
    }
    MarcaEnIndice();
}

void VentanaAyuda::Abre(const QListWidgetItem* i) {
    if (i) hojas_->setSource(QUrl(i->data(RUTA).toString()));
}

void VentanaAyuda::MarcaEnIndice() {
    indice_->setCurrentRow(-1);
    for (int i = 0; i < indice_->count(); ++i)
        if (indice_->item(i)->data(RUTA).toString() == actual_) indice_->setCurrentRow(i);
}

void VentanaAyuda::Muestra(i32 tema) {
    QString nombre = tema > 0 ? QString::number(tema) : INICIO;
    if (!QFile::exists(CARPETA + nombre + QStringLiteral(".html"))) nombre = INICIO;
    hojas_->setSource(QUrl(QStringLiteral("qrc") + CARPETA + nombre + QStringLiteral(".html")));
    if (!isVisible()) {
        const QRect pantalla = QGuiApplication::primaryScreen()->availableGeometry();
        move(pantalla.center() - rect().center());
    }
    show();
    raise();
    activateWindow();
    hojas_->setFocus();
}

void VentanaAyuda::Ancla(QWidget* duena) {
    winId();
    if (duena) duena->winId();
    QWindow* const nueva = duena ? duena->windowHandle() : nullptr;
    if (windowHandle()->transientParent() == nueva) return;
    windowHandle()->setTransientParent(nueva);
}

void VentanaAyuda::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(e);
}

}  // namespace tessario
