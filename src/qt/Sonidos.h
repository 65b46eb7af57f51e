// SPDX-License-Identifier: GPL-3.0-or-later
// Sounds: WAVE files of the program's resources, played one at a time, a new one cutting the one
// before. The device is opened at the first sound and given back after a few seconds of silence: an
// open one wakes the processor all the time. It is opened and closed on threads of their own, so
// that nothing waits for a sound server that hangs; where there is no device, sounds are silent.
#pragma once

#include <QTimer>
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

    // Returns at once if asynchronous, else when the sound has ended. One that finds the device not
    // yet open is played as soon as it is, if that does not take too long.
    void Suena(i16 id, bool asincrono);
    // Begins to open the device, as a sound does.
    void Despierta();
    // Gives the device back; it comes by itself some time after the last sound.
    void Descansa();
    // True once the opening has ended, well or badly; waits at most `milisegundos` for it.
    bool Dispuesto(i32 milisegundos) const;
    bool HayAparato() const;
    // Length of a sound in milliseconds; 0 for a number that does not exist.
    i32 Duracion(i16 id);

private:
    struct Estado;  // shared with the thread that starts the device
    const std::vector<u8>& Muestras(i16 id);
    std::shared_ptr<Estado> estado_;
    std::map<i16, std::vector<u8>> muestras_;
    QTimer silencio_;
};

}  // namespace tessario
