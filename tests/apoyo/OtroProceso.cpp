// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/OtroProceso.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace tessario {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool SANEADO = true;
#else
constexpr bool SANEADO = false;
#endif

constexpr unsigned USUARIO = 20077;
constexpr int SALIDA_FALLO = 1, SALIDA_EXCEPCION = 2, SALIDA_SIN_DERECHO = 3;

void Limita(int recurso, rlim_t valor) {
    const rlimit tope{valor, valor};
    if (setrlimit(static_cast<__rlimit_resource>(recurso), &tope) != 0) _exit(SALIDA_SIN_DERECHO);
}

rlim_t MemoriaTomada() {
    rlim_t paginas = 0;
    std::ifstream("/proc/self/statm") >> paginas;
    return paginas * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

// Expectations of this test that have not held so far.
int Fallos() {
    const testing::TestResult& r = *testing::UnitTest::GetInstance()->current_test_info()->result();
    int fallos = 0;
    for (int i = 0; i < r.total_part_count(); ++i) fallos += r.GetTestPartResult(i).failed();
    return fallos;
}

int Cumple(const std::function<void()>& hace, const Encierro& e) {
    const int antes = Fallos();
    alarm(e.segundos);
    // Under the sanitizers a process takes terabytes of addresses.
    if (e.megas != 0 && !SANEADO) Limita(RLIMIT_AS, MemoriaTomada() + (rlim_t{e.megas} << 20U));
    if (e.discoLleno) {
        std::signal(SIGXFSZ, SIG_IGN);
        Limita(RLIMIT_FSIZE, 0);
    }
    if (e.usuario != 0 && (setgid(e.usuario) != 0 || setuid(e.usuario) != 0))
        return SALIDA_SIN_DERECHO;
    try {
        hace();
    } catch (const std::exception& x) {
        std::cout << "thrown: " << x.what() << "\n";
        return SALIDA_EXCEPCION;
    }
    return Fallos() != antes ? SALIDA_FALLO : 0;
}

}  // namespace

bool EnOtroProceso(const std::function<void()>& hace, const Encierro& encierro) {
    std::cout.flush();
    std::fflush(nullptr);
    const pid_t hijo = fork();
    if (hijo == 0) {
        const int salida = Cumple(hace, encierro);
        std::cout.flush();
        std::fflush(nullptr);
        _exit(salida);
    }
    int estado = -1;
    waitpid(hijo, &estado, 0);
    if (WIFSIGNALED(estado))
        std::cout << (WTERMSIG(estado) == SIGALRM ? "it hangs" : "ended by a signal") << ", "
                  << WTERMSIG(estado) << "\n";
    return WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
}

unsigned UsuarioCorriente() {
    return geteuid() == 0 ? USUARIO : 0;
}

void Regala(const std::string& ruta, unsigned usuario) {
    namespace fs = std::filesystem;
    if (usuario == 0) return;
    const auto da = [usuario](const fs::path& p) {
        ASSERT_EQ(lchown(p.c_str(), usuario, usuario), 0) << p;
    };
    da(ruta);
    if (!fs::is_directory(ruta)) return;
    for (const auto& f : fs::recursive_directory_iterator(ruta)) da(f.path());
}

}  // namespace tessario
