// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventana/Proceso.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace tessario::ventana {

pid_t Lanza(const Lanzamiento& l) {
    const pid_t pid = fork();
    if (pid != 0) return pid;
    const bool cambia = l.usuario != 0 && geteuid() == 0;
    prctl(PR_SET_PDEATHSIG, SIGKILL);  // nothing outlives a test that is stopped
    if (!l.pantalla.empty()) setenv("DISPLAY", l.pantalla.c_str(), 1);
    unsetenv("WAYLAND_DISPLAY");
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    for (const auto& [nombre, valor] : l.entorno) {
        if (valor.empty())
            unsetenv(nombre.c_str());
        else
            setenv(nombre.c_str(), valor.c_str(), 1);
    }
    if (!getenv("TESSARIO_VER_SALIDA") || l.errores != "/dev/null") {
        if (!freopen("/dev/null", "w", stdout)) _exit(126);
        if (!freopen(l.errores.c_str(), "w", stderr)) _exit(126);
    }
    if (cambia && (setgid(l.usuario) != 0 || setuid(l.usuario) != 0)) _exit(125);
    if (cambia) prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (int fd = 3; fd < 64; ++fd)
        if (fd != l.descriptor) close(fd);
    std::vector<char*> args;
    for (const auto& a : l.orden) args.push_back(const_cast<char*>(a.c_str()));
    args.push_back(nullptr);
    execvp(args[0], args.data());
    _exit(127);
}

void Termina(pid_t pid) {
    if (pid <= 0) return;
    kill(pid, SIGTERM);
    for (int i = 0; i < 100; ++i) {
        if (waitpid(pid, nullptr, WNOHANG) == pid) return;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    kill(pid, SIGKILL);
    waitpid(pid, nullptr, 0);
}

}  // namespace tessario::ventana
