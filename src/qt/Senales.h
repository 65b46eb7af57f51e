// SPDX-License-Identifier: GPL-3.0-or-later
// The end asked for by the system (SIGTERM, SIGINT, SIGHUP), brought into the event loop.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace tessario {

class Senales {
public:
    explicit Senales(std::function<void()> alTerminar);
    ~Senales();
    Senales(const Senales&) = delete;
    Senales& operator=(const Senales&) = delete;

    // Sleeps; a signal that has not been answered yet ends the sleep, or lets none begin.
    static void Duerme(double milisegundos);
    // Has a signal come that has not been answered yet?
    static bool Pendiente();

private:
    std::unique_ptr<QSocketNotifier> aviso_;
};

}  // namespace tessario
