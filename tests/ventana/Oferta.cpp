// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventana/Oferta.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace tessario::ventana {

namespace {

// Tells who asked for the selection that the answer lies in a property; None: that there is none.
void Avisa(Display* d, const XSelectionRequestEvent& p, Atom propiedad) {
    XEvent r{};
    r.xselection.type = SelectionNotify;
    r.xselection.requestor = p.requestor;
    r.xselection.selection = p.selection;
    r.xselection.target = p.target;
    r.xselection.time = p.time;
    r.xselection.property = propiedad;
    XSendEvent(d, p.requestor, False, NoEventMask, &r);
    XFlush(d);
}

void Responde(Display* d, const XSelectionRequestEvent& p, const std::string& tipo,
              const std::string& bytes) {
    const Atom tipos = XInternAtom(d, "TARGETS", False), dato = XInternAtom(d, tipo.c_str(), False);
    const Atom propiedad = p.property ? p.property : p.target;
    if (p.target == tipos) {
        const Atom lista[] = {tipos, dato};
        XChangeProperty(d, p.requestor, propiedad, XA_ATOM, 32, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(lista), 2);
    } else if (p.target == dato) {
        XChangeProperty(d, p.requestor, propiedad, dato, 8, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(bytes.data()),
                        static_cast<int>(bytes.size()));
    }
    Avisa(d, p, p.target == tipos || p.target == dato ? propiedad : None);
}

// --- Dragging, by the fifth version of the protocol that toolkits share.

constexpr long VERSION = 5;

long Atomo(Display* d, const char* nombre) {
    return static_cast<long>(XInternAtom(d, nombre, False));
}

// The nearest window from the root down to the point that takes part in drags; 0: none.
Window DestinoEn(Display* d, int x, int y) {
    const Window raiz = DefaultRootWindow(d);
    const Atom aware = XInternAtom(d, "XdndAware", False);
    for (Window w = raiz; w != None;) {
        Atom tipo = None;
        int formato = 0;
        unsigned long n = 0, resto = 0;
        unsigned char* datos = nullptr;
        XGetWindowProperty(d, w, aware, 0, 1, False, XA_ATOM, &tipo, &formato, &n, &resto, &datos);
        if (datos) XFree(datos);
        if (tipo == XA_ATOM) return w;
        Window hija = None;
        int dentroX = 0, dentroY = 0;
        XTranslateCoordinates(d, raiz, w, x, y, &dentroX, &dentroY, &hija);
        w = hija;
    }
    return None;
}

class Arrastre {
public:
    Arrastre(const Escritorio& e, std::string tipo, std::string bytes)
        : d_(XOpenDisplay(e.Nombre().c_str())), tipo_(std::move(tipo)), bytes_(std::move(bytes)) {
        if (!d_) throw std::runtime_error("no second connection to the private display");
        yo_ = XCreateSimpleWindow(d_, DefaultRootWindow(d_), 0, 0, 1, 1, 0, 0, 0);
        XSetSelectionOwner(d_, XInternAtom(d_, "XdndSelection", False), yo_, CurrentTime);
        XSync(d_, False);
    }
    ~Arrastre() { XCloseDisplay(d_); }
    Arrastre(const Arrastre&) = delete;
    Arrastre& operator=(const Arrastre&) = delete;

    Acogida A(int x, int y) {
        Acogida r;
        destino_ = DestinoEn(d_, x, y);
        r.hayDestino = destino_ != None;
        if (!r.hayDestino) return r;
        Manda("XdndEnter", VERSION << 24, Atomo(d_, tipo_.c_str()), 0, 0);
        Manda("XdndPosition", 0, static_cast<long>(x) << 16 | y, CurrentTime,
              Atomo(d_, "XdndActionCopy"));
        const long* estado = Espera("XdndStatus");
        r.admitida = estado && (estado[1] & 1);
        if (!r.admitida) {
            Manda("XdndLeave", 0, 0, 0, 0);
            return r;
        }
        Manda("XdndDrop", 0, CurrentTime, 0, 0);
        const long* fin = Espera("XdndFinished");
        r.recogida = fin && (fin[1] & 1);
        return r;
    }

private:
    void Manda(const char* mensaje, long a, long b, long c, long d) {
        XEvent e{};
        e.xclient.type = ClientMessage;
        e.xclient.window = destino_;
        e.xclient.message_type = XInternAtom(d_, mensaje, False);
        e.xclient.format = 32;
        const long datos[] = {static_cast<long>(yo_), a, b, c, d};
        std::copy(std::begin(datos), std::end(datos), e.xclient.data.l);
        XSendEvent(d_, destino_, False, NoEventMask, &e);
        XFlush(d_);
    }
    // Hands out the data until the window sends this message; null: it never did.
    const long* Espera(const char* mensaje) {
        const Atom clase = XInternAtom(d_, mensaje, False);
        const auto fin = std::chrono::steady_clock::now() + std::chrono::seconds(15);
        while (std::chrono::steady_clock::now() < fin) {
            while (XPending(d_)) {
                XNextEvent(d_, &suceso_);
                if (suceso_.type == SelectionRequest)
                    Responde(d_, suceso_.xselectionrequest, tipo_, bytes_);
                if (suceso_.type == ClientMessage && suceso_.xclient.message_type == clase)
                    return suceso_.xclient.data.l;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return nullptr;
    }

    Display* d_ = nullptr;
    Window yo_ = None, destino_ = None;
    std::string tipo_, bytes_;
    XEvent suceso_{};
};

// Letters, digits and what never needs hiding stay as they are.
std::string ComoUri(const std::string& ruta) {
    std::string uri = "file://";
    for (const char c : ruta) {
        if (std::isalnum(static_cast<unsigned char>(c)) || std::strchr("/-._~", c)) {
            uri += c;
            continue;
        }
        char hex[4];
        std::snprintf(hex, sizeof hex, "%%%02X",
                      static_cast<unsigned>(static_cast<unsigned char>(c)));
        uri += hex;
    }
    return uri + "\r\n";
}

}  // namespace

Oferta::Oferta(const Escritorio& e, std::string tipo, std::string bytes, Trato trato)
    : d_(XOpenDisplay(e.Nombre().c_str())),
      tipo_(std::move(tipo)),
      bytes_(std::move(bytes)),
      trato_(trato) {
    if (!d_) throw std::runtime_error("no second connection to the private display");
    ventana_ = XCreateSimpleWindow(d_, DefaultRootWindow(d_), 0, 0, 1, 1, 0, 0, 0);
    XSetSelectionOwner(d_, XInternAtom(d_, "CLIPBOARD", False), ventana_, CurrentTime);
    XSync(d_, False);
    hilo_ = std::jthread([this](const std::stop_token& fin) { Atiende(fin); });
}

Oferta::~Oferta() {
    hilo_.request_stop();
    hilo_.join();
    XCloseDisplay(d_);
}

void Oferta::Empieza(const XEvent& e) {
    const XSelectionRequestEvent& p = e.xselectionrequest;
    const bool datos = p.target == XInternAtom(d_, tipo_.c_str(), False);
    if (trato_ == Trato::Calla || (datos && trato_ == Trato::SoloOferta)) return;
    if (!datos || trato_ == Trato::Cumple) {
        Responde(d_, p, tipo_, bytes_);
        return;
    }
    // In pieces: first their number of bytes, then each when the one before has been taken away.
    dado_ = 0;
    XSelectInput(d_, p.requestor, PropertyChangeMask);
    const long largo = static_cast<long>(bytes_.size());
    XChangeProperty(d_, p.requestor, p.property, XInternAtom(d_, "INCR", False), 32,
                    PropModeReplace, reinterpret_cast<const unsigned char*>(&largo), 1);
    Avisa(d_, p, p.property);
}

void Oferta::Sigue(Window quien, Atom propiedad) {
    constexpr std::size_t TROZO = 200000;
    const bool otraVez = trato_ == Trato::SinFin;  // all of it, for ever
    const std::size_t desde = otraVez ? 0 : std::min(dado_, bytes_.size());
    const std::size_t largo = otraVez ? bytes_.size() : std::min(TROZO, bytes_.size() - desde);
    dado_ += largo;
    XChangeProperty(d_, quien, propiedad, XInternAtom(d_, tipo_.c_str(), False), 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(bytes_.data() + desde),
                    static_cast<int>(largo));
    XFlush(d_);
}

void Oferta::Atiende(const std::stop_token& fin) {
    while (!fin.stop_requested()) {
        while (XPending(d_) && !fin.stop_requested()) {
            XEvent e{};
            XNextEvent(d_, &e);
            if (e.type == SelectionRequest) Empieza(e);
            if (e.type == PropertyNotify && e.xproperty.state == PropertyDelete)
                Sigue(e.xproperty.window, e.xproperty.atom);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

Acogida Suelta(const Escritorio& e, int x, int y, const std::string& tipo,
               const std::string& bytes) {
    return Arrastre(e, tipo, bytes).A(x, y);
}

Acogida SueltaFichero(const Escritorio& e, int x, int y, const std::string& ruta) {
    return Suelta(e, x, y, "text/uri-list", ComoUri(ruta));
}

}  // namespace tessario::ventana
