// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Portapapeles.h"

#include <poll.h>
#include <xcb/xcb.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "records/Texto.h"

namespace tessario {

namespace {

constexpr int OFERTA_MS = 1000;   // until an owner that lives has said what it offers
constexpr int DATO_MS = 5000;     // without anything new from it
constexpr int ENTERO_MS = 10000;  // for one kind of data, all of it
constexpr qsizetype TEXTO_MAXIMO = qsizetype{1} << 20U;
constexpr uint32_t PEDAZO = 1U << 18U;  // words of a property that are read at a time
constexpr qsizetype OFERTA_MAXIMA = 4096 * sizeof(xcb_atom_t);  // of so many kinds of data

// What the server's library hands out is freed like memory.
struct Libera {
    void operator()(void* p) const { std::free(p); }
};
template <class T>
using Suyo = std::unique_ptr<T, Libera>;

}  // namespace

class PortapapelesAjeno::Conexion {
public:
    explicit Conexion(const char* seleccion) : c_(xcb_connect(nullptr, nullptr)) {
        if (!Vale()) return;
        const xcb_screen_t* const pantalla = xcb_setup_roots_iterator(xcb_get_setup(c_)).data;
        ventana_ = xcb_generate_id(c_);
        const uint32_t sucesos = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_create_window(c_, XCB_COPY_FROM_PARENT, ventana_, pantalla->root, 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                          &sucesos);
        portapapeles_ = Atomo(seleccion);
        propiedad_ = Atomo("TESSARIO_PORTAPAPELES");
        a_trozos_ = Atomo("INCR");
    }
    ~Conexion() { xcb_disconnect(c_); }
    Conexion(const Conexion&) = delete;
    Conexion& operator=(const Conexion&) = delete;

    bool Vale() const { return xcb_connection_has_error(c_) == 0; }

    xcb_atom_t Atomo(std::string_view nombre) {
        const auto pedido =
            xcb_intern_atom(c_, 0, static_cast<uint16_t>(nombre.size()), nombre.data());
        const Suyo<xcb_intern_atom_reply_t> r(xcb_intern_atom_reply(c_, pedido, nullptr));
        return r ? r->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    std::string Nombre(xcb_atom_t atomo) {
        const Suyo<xcb_get_atom_name_reply_t> r(
            xcb_get_atom_name_reply(c_, xcb_get_atom_name(c_, atomo), nullptr));
        if (!r) return {};
        return {xcb_get_atom_name_name(r.get()),
                static_cast<std::size_t>(xcb_get_atom_name_name_length(r.get()))};
    }

    // What the owner puts into our property when it is asked for this; `espera` is for its first
    // answer.
    QByteArray Pide(xcb_atom_t clase, int espera, qsizetype maximo) {
        if (!Vale() || clase == XCB_ATOM_NONE) return {};
        reloj_.start();
        maximo_ = maximo;
        xcb_delete_property(c_, ventana_, propiedad_);
        xcb_convert_selection(c_, ventana_, portapapeles_, clase, propiedad_, XCB_CURRENT_TIME);
        xcb_flush(c_);
        const auto contesta = [&](const xcb_generic_event_t& e) {
            if ((e.response_type & 0x7FU) != XCB_SELECTION_NOTIFY) return false;
            const auto& n = reinterpret_cast<const xcb_selection_notify_event_t&>(e);
            hay_ = n.property == propiedad_;
            return n.selection == portapapeles_ && n.target == clase;
        };
        if (!Espera(espera, contesta) || !hay_) return {};
        xcb_atom_t tipo = XCB_ATOM_NONE;
        QByteArray bytes;
        if (!Toma(bytes, tipo)) return {};
        if (tipo != a_trozos_) return bytes;
        return PorTrozos();
    }

private:
    // Pieces come one after the other, each when the one before has been taken away; an empty one
    // is the end.
    QByteArray PorTrozos() {
        QByteArray bytes;
        const auto otro = [&](const xcb_generic_event_t& e) {
            if ((e.response_type & 0x7FU) != XCB_PROPERTY_NOTIFY) return false;
            const auto& n = reinterpret_cast<const xcb_property_notify_event_t&>(e);
            return n.atom == propiedad_ && n.state == XCB_PROPERTY_NEW_VALUE;
        };
        for (;;) {
            if (!Espera(DATO_MS, otro)) return {};
            xcb_atom_t tipo = XCB_ATOM_NONE;
            const qsizetype antes = bytes.size();
            if (!Toma(bytes, tipo)) return {};
            if (bytes.size() == antes) return bytes;
        }
    }

    // The property's content, added to `bytes`; it is taken away.
    bool Toma(QByteArray& bytes, xcb_atom_t& tipo) {
        for (uint32_t desde = 0;; desde += PEDAZO) {
            const Suyo<xcb_get_property_reply_t> r(xcb_get_property_reply(
                c_, xcb_get_property(c_, 1, ventana_, propiedad_, XCB_ATOM_ANY, desde, PEDAZO),
                nullptr));
            if (!r) return false;
            tipo = r->type;
            const int largo = xcb_get_property_value_length(r.get());
            if (bytes.size() + largo + static_cast<qsizetype>(r->bytes_after) > maximo_)
                return false;
            bytes.append(static_cast<const char*>(xcb_get_property_value(r.get())), largo);
            if (r->bytes_after == 0) return true;
        }
    }

    // Until an event for which `es` holds; false when it does not come in time.
    template <class F>
    bool Espera(int milisegundos, F&& es) {
        const qint64 tope = std::min<qint64>(reloj_.elapsed() + milisegundos, ENTERO_MS);
        for (;;) {
            while (const Suyo<xcb_generic_event_t> e{xcb_poll_for_event(c_)})
                if (es(*e)) return true;
            const qint64 falta = tope - reloj_.elapsed();
            if (falta <= 0 || !Vale()) return false;
            pollfd p{xcb_get_file_descriptor(c_), POLLIN, 0};
            poll(&p, 1, static_cast<int>(falta));
        }
    }

    xcb_connection_t* c_;
    xcb_window_t ventana_ = 0;
    xcb_atom_t portapapeles_ = 0, propiedad_ = 0, a_trozos_ = 0;
    QElapsedTimer reloj_;
    qsizetype maximo_ = 0;  // bytes
    bool hay_ = false;      // the owner has something of the kind
};

PortapapelesAjeno::PortapapelesAjeno(QClipboard::Mode cual)
    : c_(std::make_unique<Conexion>(cual == QClipboard::Selection ? "PRIMARY" : "CLIPBOARD")) {}
PortapapelesAjeno::~PortapapelesAjeno() = default;

bool PortapapelesAjeno::EsDeOtro(QClipboard::Mode cual) {
    const QClipboard& c = *QGuiApplication::clipboard();
    const bool nuestro = cual == QClipboard::Selection ? c.ownsSelection() : c.ownsClipboard();
    return QGuiApplication::platformName() == QLatin1String("xcb") && !nuestro;
}

std::vector<std::string> PortapapelesAjeno::Ofrece() {
    std::vector<std::string> clases;
    const QByteArray bytes = c_->Pide(c_->Atomo("TARGETS"), OFERTA_MS, OFERTA_MAXIMA);
    const auto* const atomos = reinterpret_cast<const xcb_atom_t*>(bytes.constData());
    const std::size_t cuantos = static_cast<std::size_t>(bytes.size()) / sizeof(xcb_atom_t);
    for (std::size_t i = 0; i < cuantos; ++i) clases.push_back(c_->Nombre(atomos[i]));
    return clases;
}

QByteArray PortapapelesAjeno::Dato(const std::string& clase, qsizetype maximo) {
    return c_->Pide(c_->Atomo(clase), DATO_MS, maximo);
}

namespace {

QString Texto(QClipboard::Mode cual) {
    PortapapelesAjeno ajeno(cual);
    const std::vector<std::string> clases = ajeno.Ofrece();
    for (const char* clase : {"UTF8_STRING", "text/plain;charset=utf-8", "STRING", "text/plain"}) {
        if (std::find(clases.begin(), clases.end(), clase) == clases.end()) continue;
        const QByteArray bytes = ajeno.Dato(clase, TEXTO_MAXIMO);
        return QString::fromStdString(TextoDeRuta(bytes.toStdString()));
    }
    return {};
}

class Pegador : public QObject {
public:
    explicit Pegador(QLineEdit& linea) : QObject(&linea), linea_(linea) {
        linea.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* quien, QEvent* e) override {
        if (e->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent*>(e)->matches(QKeySequence::Paste))
            return Pega(QClipboard::Clipboard);
        if (e->type() == QEvent::MouseButtonRelease &&
            static_cast<QMouseEvent*>(e)->button() == Qt::MiddleButton)
            return Pega(QClipboard::Selection);
        return QObject::eventFilter(quien, e);
    }

private:
    // False: the library does it.
    bool Pega(QClipboard::Mode cual) {
        if (!PortapapelesAjeno::EsDeOtro(cual)) return false;
        linea_.insert(Texto(cual));
        return true;
    }
    QLineEdit& linea_;
};

}  // namespace

void PegaConLimite(QLineEdit& linea) {
    new Pegador(linea);
}

}  // namespace tessario
