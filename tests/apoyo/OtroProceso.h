// SPDX-License-Identifier: GPL-3.0-or-later
// Part of a test in a process of its own, for what would harm the others: another user, a hang, a
// limit. What fails there is printed, and fails the test.
#pragma once

#include <functional>
#include <string>

namespace tessario {

struct Encierro {
    unsigned usuario = 0;     // 0: ourselves; another one only where we may choose
    unsigned megas = 0;       // memory beyond what is there at the beginning; 0: no limit
    unsigned segundos = 60;   // the part is taken for hung, and ended
    bool discoLleno = false;  // no file can be given a byte
};

// Runs it there; true when all its expectations held and it came to its end.
bool EnOtroProceso(const std::function<void()>& hace, const Encierro& encierro = {});

// A user of no rights, for whom files of others can be made; 0 where we may not choose.
unsigned UsuarioCorriente();
// Gives the file or folder, with all that is in it, to that user.
void Regala(const std::string& ruta, unsigned usuario);

}  // namespace tessario
