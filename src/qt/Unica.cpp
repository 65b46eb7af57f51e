// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Unica.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <cstring>
#include <utility>

#include "core/Errores.h"

namespace tessario {

namespace {

constexpr int COLA = 8;              // starts that may wait for their answer
constexpr int INTENTOS = 20;         // the first may hold the name but not listen yet, or just end
constexpr int DESCANSO_US = 50'000;  // between two of them
constexpr char ACUSE = 1;            // the answer to a call

// Abstract names are everybody's on the machine, so the user is part of it.
std::string NombreDe(const std::string& lugar) {
    const QByteArray resumen =
        QCryptographicHash::hash(QByteArray::fromStdString(lugar), QCryptographicHash::Sha1);
    return "tessario-" + std::to_string(getuid()) + "-" + resumen.toHex().toStdString();
}

// The address of an abstract name: a zero byte, then the name.
socklen_t Direccion(const std::string& nombre, sockaddr_un& d) {
    d = {};
    d.sun_family = AF_UNIX;
    const std::size_t largo = std::min(nombre.size(), sizeof d.sun_path - 1);
    std::memcpy(d.sun_path + 1, nombre.data(), largo);
    return static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + largo);
}

// Is the program at the other end the same user's?
bool EsDelMismoUsuario(int enchufe) {
    ucred quien{};
    socklen_t largo = sizeof quien;
    return getsockopt(enchufe, SOL_SOCKET, SO_PEERCRED, &quien, &largo) == 0 &&
           quien.uid == getuid();
}

}  // namespace

Unica::Unica(const std::string& lugar, int espera) {
    const std::string nombre = NombreDe(lugar);
    sockaddr_un d{};
    const socklen_t largo = Direccion(nombre, d);
    for (int i = 0; i < INTENTOS; ++i) {
        enchufe_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        if (enchufe_ < 0) return;
        if (bind(enchufe_, reinterpret_cast<const sockaddr*>(&d), largo) == 0) {
            listen(enchufe_, COLA);
            return;
        }
        const bool ocupado = errno == EADDRINUSE;
        close(enchufe_);
        enchufe_ = -1;
        if (!ocupado) return;
        if (Llama(nombre, espera)) return;
        usleep(DESCANSO_US);
    }
}

Unica::~Unica() {
    aviso_.reset();
    if (enchufe_ >= 0) close(enchufe_);
}

// True: somebody holds the name for good, and papel_ says whether he answered.
bool Unica::Llama(const std::string& nombre, int espera) {
    sockaddr_un d{};
    const socklen_t largo = Direccion(nombre, d);
    const int otra = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (otra < 0) return true;
    bool hay = connect(otra, reinterpret_cast<const sockaddr*>(&d), largo) == 0;
    // Somebody else's program on our name is none of ours.
    if (hay && EsDelMismoUsuario(otra)) {
        pollfd p{otra, POLLIN, 0};
        char c = 0;
        const bool contesta = poll(&p, 1, espera) == 1;
        if (contesta && read(otra, &c, 1) != 1)
            hay = false;  // it ended meanwhile: the name is free again
        else
            papel_ = contesta ? Papel::Segunda : Papel::Sorda;
    }
    close(otra);
    return hay;
}

void Unica::AlLlamar(std::function<void()> trae) {
    trae_ = std::move(trae);
    if (enchufe_ < 0 || papel_ != Papel::Primera) return;
    aviso_ = std::make_unique<QSocketNotifier>(enchufe_, QSocketNotifier::Read);
    QObject::connect(aviso_.get(), &QSocketNotifier::activated, aviso_.get(),
                     [this] { Atiende(); });
    Atiende();
}

void Unica::Atiende() {
    bool llaman = false;
    for (int otra; (otra = accept4(enchufe_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;) {
        if (EsDelMismoUsuario(otra)) {
            llaman = true;
            // The caller may be gone already; that must not end this program.
            [[maybe_unused]] const auto n = send(otra, &ACUSE, 1, MSG_NOSIGNAL | MSG_DONTWAIT);
        }
        close(otra);
    }
    if (llaman && trae_) trae_();
}

}  // namespace tessario
