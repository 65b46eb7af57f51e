// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/PlataformaQt.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QMimeData>
#include <QScreen>
#include <QStandardPaths>
#include <QThread>
#include <algorithm>
#include <filesystem>
#include <new>
#include <utility>

#include "core/Errores.h"
#include "qt/Entrada.h"
#include "qt/Estilo.h"
#include "qt/Imagenes.h"
#include "qt/Portapapeles.h"
#include "qt/Senales.h"
#include "qt/VistaVentana.h"

namespace tessario {

namespace {

constexpr long long PASO_NS = 4'000'000;  // between two looks at the window system's queue
constexpr long long SEGUIDA_NS = 20'000;  // a call that comes sooner did nothing in between
constexpr int SEGUIDAS_LIBRES = 300;      // so many of them before the loop is made to rest
constexpr unsigned long DESCANSO_US = 1000;
constexpr int REPOSO_PANTALLA_MS = 150;

constexpr const char* CLASE_FICHEROS = "text/uri-list";
constexpr qsizetype FICHEROS_BYTES = qsizetype{1} << 20U;  // of a list of files
constexpr std::size_t CLASES_PROBADAS = 3;                 // kinds of picture that are asked for

// The kinds of picture on offer, those first that lose nothing.
std::vector<std::string> ClasesDeImagen(const std::vector<std::string>& oferta) {
    std::vector<std::string> clases;
    const auto pon = [&](const std::string& clase) {
        if (std::find(clases.begin(), clases.end(), clase) == clases.end()) clases.push_back(clase);
    };
    for (const char* buena : {"image/png", "image/bmp", "image/x-bmp", "image/x-MS-bmp"})
        if (std::find(oferta.begin(), oferta.end(), buena) != oferta.end()) pon(buena);
    for (const std::string& clase : oferta)
        if (clase.starts_with("image/")) pon(clase);
    clases.resize(std::min(clases.size(), CLASES_PROBADAS));
    return clases;
}

// Leaves a handler that still runs when the program ends. No run-time error of the game, so that
// nothing on the way takes it for one.
struct FinDelPrograma {};

}  // namespace

PlataformaQt::PlataformaQt()
    : VentanasDentro(QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) {
    textos().Escala = static_cast<i32>(qGuiApp->devicePixelRatio());
    reloj_.start();
    espera_.setSingleShot(true);
    espera_.setInterval(0);
    QObject::connect(&espera_, &QTimer::timeout, [this] { Mira(); });
    copiado_.setSingleShot(true);
    copiado_.setInterval(0);
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &copiado_,
                     qOverload<>(&QTimer::start));
    QObject::connect(&copiado_, &QTimer::timeout, [this] {
        if (AlCopiar) Entrega(AlCopiar);
    });
    // A change comes in several parts: size, place, which screen is the first.
    pantalla_.setSingleShot(true);
    pantalla_.setInterval(REPOSO_PANTALLA_MS);
    QObject::connect(&pantalla_, &QTimer::timeout, [this] { CambiaPantalla(); });
    auto* const app = qGuiApp;
    const auto sigue = [this](QScreen* s) {
        if (s)
            QObject::connect(s, &QScreen::geometryChanged, &pantalla_,
                             [this] { pantalla_.start(); });
    };
    for (QScreen* const s : QGuiApplication::screens()) sigue(s);
    QObject::connect(app, &QGuiApplication::screenAdded, &pantalla_, sigue);
    QObject::connect(app, &QGuiApplication::primaryScreenChanged, &pantalla_,
                     [this] { pantalla_.start(); });
    QApplication::setQuitOnLastWindowClosed(false);
}

PlataformaQt::~PlataformaQt() {
    ayuda_.reset();  // it may lie within the windows that go now
    for (auto i = abiertas_.rbegin(); i != abiertas_.rend(); ++i) {
        (*i)->Termina();
        delete *i;
    }
}

int PlataformaQt::Ejecuta() {
    enMarcha_ = true;
    if (!terminando_ && abiertas_.empty()) terminando_ = true;
    return terminando_ ? 0 : QApplication::exec();
}

// --- Events and painting.

void PlataformaQt::Entrega(const std::function<void()>& manejador) {
    if (terminando_) return;
    try {
        manejador();
    } catch (const ErrorEjecucion& e) {
        PonErrorPendiente(e.Numero);
    } catch (const std::bad_alloc&) {
        PonErrorPendiente(ERROR_MEMORIA);
    } catch (const FinDelPrograma&) {
    }
    if (!terminando_) Sincroniza(true);
}

void PlataformaQt::SuenaMando() {
    if (SonidoDeMando) Entrega(SonidoDeMando);
}

void PlataformaQt::Sincroniza(bool ya) {
    // Hiding a control takes its focus away, and the handler of that comes back here.
    if (sincronizando_) return;
    sincronizando_ = true;
    const std::vector<VistaVentana*> ahora = abiertas_;
    for (VistaVentana* v : ahora) v->Sincroniza();
    for (VistaVentana* v : ahora) v->Presenta(ya);
    sincronizando_ = false;
}

void PlataformaQt::Presenta() {
    // A window that is painted during its Load comes up now: it has something to show.
    for (std::size_t i = 0; i < abiertas_.size(); ++i) {
        VistaVentana* const v = abiertas_[i];
        if (!v->Ensenada() && !v->Modal() && !v->ventana().PantallaCompleta) {
            v->Sincroniza();
            v->Ensena();
        }
    }
    Sincroniza(false);
}

void PlataformaQt::Duerme(double milisegundos) {
    const long long fin = reloj_.nsecsElapsed() + static_cast<long long>(milisegundos * 1e6);
    Presenta();
    Sincroniza(true);
    const long long falta = fin - reloj_.nsecsElapsed();
    if (falta > 0 && !terminando_) Senales::Duerme(static_cast<double>(falta) / 1e6);
    if (AlApremiar && Senales::Pendiente()) AlApremiar();
}

void PlataformaQt::DejaPasarEventos() {
    if (terminando_) throw FinDelPrograma{};
    const long long ahora = reloj_.nsecsElapsed();
    seguidas_ = ahora - ultimaVuelta_ < SEGUIDA_NS ? seguidas_ + 1 : 0;
    if (seguidas_ > SEGUIDAS_LIBRES) QThread::usleep(DESCANSO_US);
    if (ahora - ultimoPaso_ >= PASO_NS) {
        Sincroniza(false);
        QCoreApplication::processEvents();
        RevisaPulsadas();
        ultimoPaso_ = reloj_.nsecsElapsed();
        if (terminando_) throw FinDelPrograma{};
    }
    ultimaVuelta_ = reloj_.nsecsElapsed();
}

i16 PlataformaQt::BotonesApretados() {
    return terminando_ ? i16{0} : BotonesDe(QGuiApplication::mouseButtons());
}

// --- Windows.

VistaVentana* PlataformaQt::VistaDe(const Ventana& v) const {
    const auto i = std::find_if(abiertas_.begin(), abiertas_.end(),
                                [&](const VistaVentana* a) { return &a->ventana() == &v; });
    return i == abiertas_.end() ? nullptr : *i;
}

VistaVentana* PlataformaQt::Cima() const {
    return abiertas_.empty() ? nullptr : abiertas_.back();
}

const VistaVentana* PlataformaQt::Modal() const {
    const auto i = std::find_if(abiertas_.rbegin(), abiertas_.rend(),
                                [](const VistaVentana* v) { return v->Modal() && v->Ensenada(); });
    return i == abiertas_.rend() ? nullptr : *i;
}

// The window within which one above `duena` is drawn; null: it is a window of its own.
QWidget* PlataformaQt::LienzoSobre(const VistaVentana* duena) const {
    if (!VentanasDentro || !duena) return nullptr;
    auto* const fondo = dynamic_cast<VistaVentana*>(duena->window());
    return fondo && fondo->ventana().PantallaCompleta && fondo->Ensenada() ? fondo : nullptr;
}

VistaVentana& PlataformaQt::Abre(Ventana& v, bool modal) {
    auto* const vista =
        new VistaVentana(v, *this, Cima(), modal, modal ? LienzoSobre(Cima()) : nullptr);
    abiertas_.push_back(vista);
    v.Abierta = true;
    return *vista;
}

void PlataformaQt::Muestra(Ventana& v) {
    if (v.Abierta && VistaDe(v)) {
        VistaDe(v)->Ensena();
        return;
    }
    Abre(v, false);
    if (v.Load) Entrega(v.Load);
    // The window may have been closed by its own Load.
    if (VistaVentana* const vista = VistaDe(v)) {
        vista->Sincroniza();
        vista->Ensena();
    }
    if (VistaDe(v) && v.Activate) Entrega(v.Activate);
    Sincroniza(true);
}

void PlataformaQt::MuestraModal(Ventana& v) {
    if (terminando_) throw FinDelPrograma{};
    if (v.Abierta && VistaDe(v)) return;
    Abre(v, true);
    if (v.Load) Entrega(v.Load);
    if (VistaVentana* const vista = VistaDe(v)) {
        vista->Sincroniza();
        AnclaAyuda();
        vista->Ensena();
    }
    if (VistaDe(v) && v.Activate) Entrega(v.Activate);
    if (const QPointer<VistaVentana> vista = VistaDe(v)) {
        QEventLoop bucle;
        vista->PonBucle(&bucle);
        bucle.exec();
        if (vista) vista->PonBucle(nullptr);
    }
    if (terminando_) throw FinDelPrograma{};
}

void PlataformaQt::Cierra(Ventana& v) {
    VistaVentana* const vista = VistaDe(v);
    if (!v.Abierta || !vista) return;
    v.Abierta = false;
    if (v.Unload) Entrega(v.Unload);
    std::erase(abiertas_, vista);
    AnclaAyuda();
    // The widgets go when no event of theirs runs any more.
    vista->Termina();
    MiraBajoElPuntero(true);
    if (VistaVentana* const otra = Cima(); otra && otra->Ensenada()) otra->activateWindow();
    if (abiertas_.empty() && enMarcha_) Termina();
}

void PlataformaQt::PideCerrar(VistaVentana& vista) {
    Ventana& v = vista.ventana();
    bool cancela = false;
    if (v.QueryUnload) Entrega([&] { v.QueryUnload(cancela); });
    if (!cancela) Entrega([&] { Cierra(v); });
}

void PlataformaQt::MiraBajoElPuntero(bool forzada) {
    forzada_ = forzada_ || forzada;
    if (!terminando_) espera_.start();
}

void PlataformaQt::Mira() {
    if (terminando_ || QGuiApplication::mouseButtons() != Qt::NoButton) return;
    const QPoint p = QCursor::pos();
    QWidget* w = QApplication::widgetAt(p);
    while (w && !dynamic_cast<Vista*>(w)) w = w->parentWidget();
    auto* const vista = dynamic_cast<Vista*>(w);
    const VistaVentana* const modal = Modal();
    if (vista && (!modal || modal->isAncestorOf(vista)))
        vista->Mira(vista->mapFromGlobal(QPointF(p)));
}

// The windows find their places again; whoever fills the screen is told.
void PlataformaQt::CambiaPantalla() {
    if (terminando_) return;
    Sincroniza(true);
    AnclaAyuda();
    const std::vector<VistaVentana*> ahora = abiertas_;
    for (VistaVentana* const v : ahora) {
        const bool abierta = std::find(abiertas_.begin(), abiertas_.end(), v) != abiertas_.end();
        if (abierta && v->ventana().Resize) Entrega(v->ventana().Resize);
    }
}

void PlataformaQt::Minimiza(Ventana& v) {
    if (VistaVentana* const vista = VistaDe(v)) vista->showMinimized();
}

void PlataformaQt::TraeAlFrente() {
    for (VistaVentana* const v : abiertas_) {
        if (!v->Ensenada()) continue;
        if (v->isMinimized()) v->setWindowState(v->windowState() & ~Qt::WindowMinimized);
        v->raise();
        v->activateWindow();
    }
}

void PlataformaQt::PonFoco(Control& c) {
    const VistaVentana* encima = nullptr;
    for (auto i = abiertas_.rbegin(); i != abiertas_.rend(); encima = *i++) {
        (*i)->Sincroniza();
        if (Vista* const vista = (*i)->VistaDe(c)) {
            (*i)->ventana().Foco = (*i)->Ensenada() ? (*i)->ventana().Foco : &c;
            (*i)->DejaFocoEn(vista, encima);
            return;
        }
    }
}

void PlataformaQt::Termina() {
    if (terminando_) return;
    terminando_ = true;
    QCoreApplication::exit(0);  // all loops, the nested ones too
}

// --- Screen and time.

i32 PlataformaQt::AnchoPantalla() {
    return QGuiApplication::primaryScreen()->geometry().width();
}
i32 PlataformaQt::AltoPantalla() {
    return QGuiApplication::primaryScreen()->geometry().height();
}

u32 PlataformaQt::timeGetTime() {
    return static_cast<u32>(
        static_cast<unsigned long long>(reloj_.msecsSinceReference() + reloj_.elapsed()));
}

double PlataformaQt::Timer() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

std::string PlataformaQt::Fecha() {
    return QDate::currentDate().toString(QStringLiteral("dd/MM/yyyy")).toStdString();
}

std::string PlataformaQt::Hora() {
    return QTime::currentTime().toString(QStringLiteral("HH:mm:ss")).toStdString();
}

// --- Text, pictures, sound.

i32 PlataformaQt::AnchoTexto(const Fuente& f, std::string_view t) {
    return textos().Ancho(f, t);
}
i32 PlataformaQt::AltoTexto(const Fuente& f) {
    return textos().Alto(f);
}

void PlataformaQt::PintaTexto(Superficie& s, i32 x, i32 y, std::string_view texto, const Fuente& f,
                              Color color) {
    textos().Pinta(s, x, y, texto, f, color);
}

i32 PlataformaQt::CargaImagen(const std::string& ruta, Mapa& destino) {
    return imagenes::Carga(ruta, destino);
}

i32 PlataformaQt::MideImagen(const std::string& ruta, i32& ancho, i32& alto) {
    return imagenes::Mide(ruta, ancho, alto);
}

i32 PlataformaQt::CargaMuestra(const std::string& ruta, i32 ancho, i32 alto, Mapa& destino) {
    return imagenes::CargaReducida(ruta, ancho, alto, destino);
}

i32 PlataformaQt::CargaAjena(const std::string& ruta, Mapa& destino) {
    return imagenes::CargaAjena(ruta, destino);
}

i32 PlataformaQt::GuardaImagen(const std::string& ruta, const Mapa& imagen) {
    return imagenes::Guarda(ruta, imagen);
}

bool PlataformaQt::RecursoImagen(std::string_view nombre, Mapa& destino) {
    return imagenes::Recurso(nombre, destino);
}

void PlataformaQt::Suena(i16 id, bool asincrono) {
    if (terminando_) return;
    if (!asincrono) Sincroniza(true);
    sonidos_.Suena(id, asincrono);
}

bool PlataformaQt::PortapapelesTieneImagen() {
    if (PortapapelesAjeno::EsDeOtro()) return !ClasesDeImagen(PortapapelesAjeno().Ofrece()).empty();
    const QMimeData* const datos = QGuiApplication::clipboard()->mimeData();
    return datos && datos->hasImage() && !QGuiApplication::clipboard()->image().isNull();
}

bool PlataformaQt::PortapapelesImagen(Mapa& destino) {
    if (PortapapelesAjeno::EsDeOtro()) {
        PortapapelesAjeno ajeno;
        for (const std::string& clase : ClasesDeImagen(ajeno.Ofrece())) {
            const QByteArray bytes = ajeno.Dato(clase);
            if (bytes.isEmpty()) return false;  // one that hangs is not asked for the next kind
            if (imagenes::DeMemoria(bytes, destino) == 0) return true;
        }
        return false;
    }
    const QImage imagen = QGuiApplication::clipboard()->image();
    if (imagen.isNull()) return false;
    destino = imagenes::Convierte(imagen);
    return destino.Ancho > 0;
}

std::vector<std::string> PlataformaQt::PortapapelesFicheros() {
    if (PortapapelesAjeno::EsDeOtro()) {
        PortapapelesAjeno ajeno;
        const std::vector<std::string> clases = ajeno.Ofrece();
        if (std::find(clases.begin(), clases.end(), CLASE_FICHEROS) == clases.end()) return {};
        QMimeData datos;
        datos.setData(QLatin1String(CLASE_FICHEROS), ajeno.Dato(CLASE_FICHEROS, FICHEROS_BYTES));
        return FicherosDe(datos);
    }
    const QMimeData* const datos = QGuiApplication::clipboard()->mimeData();
    return datos ? FicherosDe(*datos) : std::vector<std::string>{};
}

// --- Help and folders.

void PlataformaQt::Ayuda(i32 tema) {
    if (!ayuda_) ayuda_ = std::make_unique<VentanaAyuda>();
    AnclaAyuda();
    ayuda_->Muestra(tema);
}

void PlataformaQt::AnclaAyuda() {
    if (ayuda_) ayuda_->Ancla(Cima(), LienzoSobre(Cima()));
}

std::string PlataformaQt::CarpetaDelPrograma() {
    // The very bytes, which the library has only as far as they are text.
    std::error_code e;
    const std::string ejecutable = std::filesystem::read_symlink("/proc/self/exe", e).string();
    if (!e) return ejecutable.substr(0, ejecutable.rfind('/') + 1);
    return QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString() + "/";
}

std::string PlataformaQt::CarpetaDelSistema() {
    const QString ruta = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(ruta);
    return QFile::encodeName(ruta).toStdString() + "/";
}

}  // namespace tessario
