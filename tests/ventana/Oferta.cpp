#include "ventana/Oferta.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <chrono>
#include <stdexcept>
#include <utility>

namespace tessario::ventana {

namespace {

void Responde(Display* d, const XSelectionRequestEvent& p, const std::string& tipo,
              const std::string& bytes) {
    const Atom tipos = XInternAtom(d, "TARGETS", False), dato = XInternAtom(d, tipo.c_str(), False);
    const Atom propiedad = p.property ? p.property : p.target;
    XEvent r{};
    r.xselection.type = SelectionNotify;
    r.xselection.requestor = p.requestor;
    r.xselection.selection = p.selection;
    r.xselection.target = p.target;
    r.xselection.time = p.time;
    r.xselection.property = propiedad;
    if (p.target == tipos) {
        const Atom lista[] = {tipos, dato};
        XChangeProperty(d, p.requestor, propiedad, XA_ATOM, 32, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(lista), 2);
    } else if (p.target == dato) {
        XChangeProperty(d, p.requestor, propiedad, dato, 8, PropModeReplace,
                        reinterpret_cast<const unsigned char*>(bytes.data()),
                        static_cast<int>(bytes.size()));
    } else {
        r.xselection.property = None;
    }
    XSendEvent(d, p.requestor, False, NoEventMask, &r);
    XFlush(d);
}

}  // namespace

Oferta::Oferta(const Escritorio& e, std::string tipo, std::string bytes)
    : d_(XOpenDisplay(e.Nombre().c_str())), tipo_(std::move(tipo)), bytes_(std::move(bytes)) {
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

void Oferta::Atiende(const std::stop_token& fin) {
    while (!fin.stop_requested()) {
        while (XPending(d_)) {
            XEvent e{};
            XNextEvent(d_, &e);
            if (e.type == SelectionRequest) Responde(d_, e.xselectionrequest, tipo_, bytes_);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

}  // namespace tessario::ventana
