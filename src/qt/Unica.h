// SPDX-License-Identifier: GPL-3.0-or-later
// One program for each player and folder of games: two that write the same files would lose each
// other's work. The first start holds a name of the system's own (an abstract local socket, which
// ends with its process, so a crash leaves nothing in the way); a later one calls it, and the
// first comes to the front.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string>

namespace tessario {

class Unica {
public:
    enum class Papel {
        Primera,  // this program holds the name; it must live as long as the object
        Segunda,  // another runs and has been called to the front
        Sorda,    // another runs but did not answer in time
    };

    // `lugar`: what the games are kept by, e.g. the program's folder and the data folder. Where the
    // system gives no such name, every start counts as the first. `espera`: ms for the answer.
    explicit Unica(const std::string& lugar, int espera = 3000);
    ~Unica();
    Unica(const Unica&) = delete;
    Unica& operator=(const Unica&) = delete;

    Papel Resultado() const { return papel_; }
    // What the first program does when a later start calls. Calls that came before are answered
    // now.
    void AlLlamar(std::function<void()> trae);

private:
    bool Llama(const std::string& nombre, int espera);
    void Atiende();

    Papel papel_ = Papel::Primera;
    int enchufe_ = -1;
    std::function<void()> trae_;
    std::unique_ptr<QSocketNotifier> aviso_;
};

}  // namespace tessario
