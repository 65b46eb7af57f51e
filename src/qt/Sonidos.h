// Sounds: WAVE files of the program's resources, played one at a time, a new one cutting the one
// before. The sound system is started on a thread of its own, so that nothing waits for a server
// that hangs; until it is up, and where there is no device, sounds are silent.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/Tipos.h"

namespace tessario {

class Sonidos {
public:
    Sonidos();
    ~Sonidos();
    Sonidos(const Sonidos&) = delete;
    Sonidos& operator=(const Sonidos&) = delete;

    // Returns at once if asynchronous, else when the sound has ended.
    void Suena(i16 id, bool asincrono);
    // True once the start has ended, well or badly; waits at most `milisegundos` for it.
    bool Dispuesto(i32 milisegundos) const;
    bool HayAparato() const;
    // Length of a sound in milliseconds; 0 for a number that does not exist.
    i32 Duracion(i16 id);

private:
    struct Estado;  // shared with the thread that starts the device
    const std::vector<u8>& Muestras(i16 id);
    std::shared_ptr<Estado> estado_;
    std::map<i16, std::vector<u8>> muestras_;
};

}  // namespace tessario
