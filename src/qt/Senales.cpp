// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Senales.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <cmath>

namespace tessario {

namespace {

// A signal handler can do little more than write into a pipe, and it takes no argument of ours.
int tubo[2] = {-1, -1};

void Avisa(int) {
    const char c = 1;
    [[maybe_unused]] const auto n = write(tubo[1], &c, 1);
}

constexpr int SENALES[] = {SIGTERM, SIGINT, SIGHUP};

// Waits for the pipe to have something in it. False: it has stayed empty.
bool EsperaTubo(double milisegundos) {
    constexpr double NS_POR_S = 1e9, NS_POR_MS = 1e6;
    const double ns = milisegundos * NS_POR_MS, segundos = std::floor(ns / NS_POR_S);
    const timespec tope{static_cast<time_t>(segundos), static_cast<long>(ns - segundos * NS_POR_S)};
    pollfd llegada{tubo[0], POLLIN, 0};  // a negative one, as without handlers, is never ready
    return ppoll(&llegada, 1, &tope, nullptr) == 1;
}

}  // namespace

void Senales::Duerme(double milisegundos) {
    if (milisegundos > 0) EsperaTubo(milisegundos);
}

bool Senales::Pendiente() {
    return EsperaTubo(0);
}

Senales::Senales(std::function<void()> alTerminar) {
    if (pipe2(tubo, O_CLOEXEC | O_NONBLOCK) != 0) return;
    aviso_ = std::make_unique<QSocketNotifier>(tubo[0], QSocketNotifier::Read);
    QObject::connect(aviso_.get(), &QSocketNotifier::activated, aviso_.get(),
                     [alTerminar = std::move(alTerminar)] {
                         char c = 0;
                         while (read(tubo[0], &c, 1) > 0) {
                         }
                         alTerminar();
                     });
    struct sigaction accion {};
    accion.sa_handler = Avisa;
    accion.sa_flags = SA_RESTART;
    for (const int s : SENALES) sigaction(s, &accion, nullptr);
}

Senales::~Senales() {
    for (const int s : SENALES) signal(s, SIG_DFL);
    aviso_.reset();
    for (int& t : tubo) {
        if (t >= 0) close(t);
        t = -1;
    }
}

}  // namespace tessario
