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

private:
    std::unique_ptr<QSocketNotifier> aviso_;
};

}  // namespace tessario
