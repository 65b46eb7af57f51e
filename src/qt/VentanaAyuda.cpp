// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/VentanaAyuda.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScreen>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "qt/Estilo.h"
#include "qt/Portapapeles.h"
#include "qt/Textos.h"

namespace tessario {

namespace {

constexpr QSize TAMANO{780, 560};
constexpr int ANCHO_INDICE = 230;
constexpr int RUTA = Qt::UserRole;
const QColor MARCA{0xF6, 0xD0, 0x7A};  // ground of a word that was looked for

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

// The same, letter for letter at the same places.
QString LlanoEnSuSitio(const QString& t) {
    QString salida;
    salida.reserve(t.size());
    for (const QChar c : t) {
        const QString l = Llano(QString(c));
        salida += l.isEmpty() ? QChar(u' ') : l.at(0);
    }
    return salida;
}

QStringList Palabras(const QString& buscado) {
    return Llano(buscado).split(u' ', Qt::SkipEmptyParts);
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
      busca_(new QLineEdit),
      nada_(new QLabel) {
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

    nada_->setWordWrap(true);
    nada_->setFixedWidth(ANCHO_INDICE);
    nada_->setMargin(6);
    nada_->setText(QStringLiteral("Ninguna página de la ayuda contiene lo que busca."));

    auto* barra = new QHBoxLayout;
    for (QWidget* w : {atras, adelante, inicio}) barra->addWidget(w);
    barra->addStretch(1);
    barra->addWidget(cerrar);
    auto* lado = new QVBoxLayout;
    busca_->setFixedWidth(ANCHO_INDICE);
    indice_->setFixedWidth(ANCHO_INDICE);
    lado->addWidget(busca_);
    lado->addWidget(nada_);
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
        // The page's text is there once the browser is done.
        QTimer::singleShot(0, this, [this] { MarcaHalladas(); });
    });
    PegaConLimite(*busca_);
    connect(busca_, &QLineEdit::textChanged, this, [this](const QString& t) { RellenaIndice(t); });
    connect(busca_, &QLineEdit::returnPressed, this, [this] { Abre(indice_->item(0)); });
    connect(indice_, &QListWidget::itemClicked, this, &VentanaAyuda::Abre);
    connect(indice_, &QListWidget::itemActivated, this, &VentanaAyuda::Abre);
    const QSize pantalla = QGuiApplication::primaryScreen()->availableSize();
    resize(TAMANO.boundedTo(pantalla - QSize(20, 40)));
    LeeHojas();
    LeeGrupos();
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

// The groups of the start page, a heading before each list of links, and the pages of each.
void VentanaAyuda::LeeGrupos() {
    QFile f(CARPETA + INICIO + QStringLiteral(".html"));
    if (!f.open(QIODevice::ReadOnly)) return;
    static const QRegularExpression PARTES(
        QStringLiteral("<h2>([^<]*)</h2>|<li><a href=\"([^\"]*)\">"));
    auto i = PARTES.globalMatch(QString::fromUtf8(f.readAll()));
    while (i.hasNext()) {
        const QRegularExpressionMatch m = i.next();
        if (!m.captured(1).isEmpty())
            grupos_.append({m.captured(1), {}});
        else if (!grupos_.isEmpty())
            grupos_.last().rutas.append(QStringLiteral("qrc") + CARPETA + m.captured(2));
    }
}

void VentanaAyuda::PonHoja(const Hoja& h) {
    auto* const i = new QListWidgetItem(h.titulo, indice_);
    i->setData(RUTA, h.ruta);
}

// All pages as the start page has them, each group under its heading; what it does not name comes
// before the groups.
void VentanaAyuda::RellenaConGrupos() {
    const auto agrupada = [&](const Hoja& h) {
        return std::any_of(grupos_.begin(), grupos_.end(),
                           [&](const Grupo& g) { return g.rutas.contains(h.ruta); });
    };
    for (const Hoja& h : hojasTodas_)
        if (!agrupada(h)) PonHoja(h);
    for (const Grupo& g : grupos_) {
        auto* const cabeza = new QListWidgetItem(g.titulo, indice_);
        cabeza->setFlags(Qt::NoItemFlags);
        QFont letra = indice_->font();
        letra.setBold(true);
        cabeza->setFont(letra);
        cabeza->setForeground(estilo::TERRACOTA_OSCURA);
        for (const QString& ruta : g.rutas)
            for (const Hoja& h : hojasTodas_)
                if (h.ruta == ruta) PonHoja(h);
    }
}

// Pages with all the words; those that have them in the title come first.
void VentanaAyuda::RellenaConHalladas(const QStringList& palabras) {
    const auto todas = [&](const QString& texto) {
        return std::all_of(palabras.begin(), palabras.end(),
                           [&](const QString& p) { return texto.contains(p); });
    };
    for (const bool enTitulo : {true, false})
        for (const Hoja& h : hojasTodas_)
            if (todas(Llano(h.titulo)) == enTitulo && todas(h.texto)) PonHoja(h);
}

void VentanaAyuda::RellenaIndice(const QString& buscado) {
    const QStringList palabras = Palabras(buscado);
    indice_->clear();
    if (palabras.isEmpty())
        RellenaConGrupos();
    else
        RellenaConHalladas(palabras);
    nada_->setVisible(indice_->count() == 0);
    MarcaEnIndice();
    MarcaHalladas();
}

// What is looked for is marked in the page on show.
void VentanaAyuda::MarcaHalladas() {
    QList<QTextEdit::ExtraSelection> marcas;
    QTextDocument* const d = hojas_->document();
    const QString texto = LlanoEnSuSitio(d->toPlainText());
    for (const QString& p : Palabras(busca_->text())) {
        for (auto i = texto.indexOf(p); i >= 0; i = texto.indexOf(p, i + p.size())) {
            QTextEdit::ExtraSelection marca;
            marca.cursor = QTextCursor(d);
            marca.cursor.setPosition(static_cast<int>(i));
            marca.cursor.setPosition(static_cast<int>(i + p.size()), QTextCursor::KeepAnchor);
            marca.format.setBackground(MARCA);
            marcas.append(marca);
        }
    }
    hojas_->setExtraSelections(marcas);
}

void VentanaAyuda::Abre(const QListWidgetItem* i) {
    if (i && i->data(RUTA).isValid()) hojas_->setSource(QUrl(i->data(RUTA).toString()));
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
        const QRect pantalla = Dentro() ? parentWidget()->rect()
                                        : QGuiApplication::primaryScreen()->availableGeometry();
        move(pantalla.center() - rect().center());
    }
    show();
    raise();
    activateWindow();
    TomaFoco();
}

void VentanaAyuda::Ancla(QWidget* duena, QWidget* lienzo) {
    duena_ = duena;
    if (parentWidget() != lienzo) {
        setParent(lienzo, lienzo ? Qt::SubWindow : Qt::Window);
        setAutoFillBackground(Dentro());
        setAttribute(Qt::WA_NoMousePropagation, Dentro());
        if (Dentro())
            qApp->installEventFilter(this);
        else
            qApp->removeEventFilter(this);
    }
    if (Dentro()) {
        Encaja(pos());
        raise();
        return;
    }
    winId();
    if (duena) duena->winId();
    QWindow* const nueva = duena ? duena->windowHandle() : nullptr;
    if (windowHandle()->transientParent() == nueva) return;
    windowHandle()->setTransientParent(nueva);
}

void VentanaAyuda::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape)
        close();
    else if (!Dentro())  // what lies below within the same window gets no key of the help
        QWidget::keyPressEvent(e);
}

// --- Within another window: what the window system does for a window of its own.

// In view, by its upper left corner at least.
void VentanaAyuda::Encaja(QPoint esquina) {
    const QSize libre = (parentWidget()->size() - size()).expandedTo({0, 0});
    move(std::clamp(esquina.x(), 0, libre.width()), std::clamp(esquina.y(), 0, libre.height()));
}

// The keyboard comes and goes as it does between windows, with no word to the game's controls.
void VentanaAyuda::TomaFoco() {
    QWidget* const ahora = window()->focusWidget();
    if (Dentro() && ahora && !isAncestorOf(ahora)) antes_ = ahora;
    hojas_->setFocus(Dentro() ? Qt::ActiveWindowFocusReason : Qt::OtherFocusReason);
}

void VentanaAyuda::DevuelveFoco() {
    if (!Dentro() || !duena_ || !isAncestorOf(window()->focusWidget())) return;
    QWidget* const suyo = duena_->isWindow() ? antes_.data() : duena_->focusWidget();
    (suyo ? suyo : duena_.data())->setFocus(Qt::ActiveWindowFocusReason);
}

// A press on the help gives it the keyboard; one beside it, to what lies there. Seen as it reaches
// the window, before the widget under it takes the keyboard by itself.
bool VentanaAyuda::eventFilter(QObject* o, QEvent* e) {
    if (e->type() == QEvent::MouseButtonPress && Dentro() && o == window()->windowHandle() &&
        isVisible()) {
        const QPointF punto = static_cast<QMouseEvent*>(e)->position();
        const bool suya = geometry().contains(punto.toPoint());
        if (suya && !isAncestorOf(window()->focusWidget())) TomaFoco();
        if (!suya) DevuelveFoco();
    }
    return QWidget::eventFilter(o, e);
}

void VentanaAyuda::mousePressEvent(QMouseEvent* e) {
    agarre_ = e->position().toPoint();
}

void VentanaAyuda::mouseMoveEvent(QMouseEvent* e) {
    if (Dentro() && (e->buttons() & Qt::LeftButton))
        Encaja(mapToParent(e->position().toPoint()) - agarre_);
}

void VentanaAyuda::paintEvent(QPaintEvent*) {
    if (!Dentro()) return;
    QPainter p(this);
    p.setPen(estilo::TERRACOTA_OSCURA);
    p.drawRect(rect().adjusted(0, 0, -1, -1));
}

void VentanaAyuda::hideEvent(QHideEvent*) {
    DevuelveFoco();
}

}  // namespace tessario
