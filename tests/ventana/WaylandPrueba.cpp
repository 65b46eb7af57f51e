// SPDX-License-Identifier: GPL-3.0-or-later
// The real program on a Wayland desktop, a compositor that fills a private X server's screen: a
// message stands there as it does on X, above the table.
#include <signal.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "ventana/Escritorio.h"
#include "ventana/Proceso.h"

namespace tessario::ventana {
namespace {

namespace fs = std::filesystem;

constexpr int ANCHO = 1024, ALTO = 768, TIRA = 141;
constexpr unsigned AVISO = 0xF4E9D2;  // ground of a message

struct Caja {
    int x, y, ancho, alto;
};

bool HayWeston() {
    std::error_code e;
    return std::system("weston --version >/dev/null 2>&1") == 0 &&
           fs::exists(std::string(TESSARIO_COMPLEMENTOS) + "/platforms/libqwayland-generic.so", e);
}

// The compositor, nested in the X server.
class Compositor {
public:
    explicit Compositor(Escritorio& e) {
        fs::create_directories(sesion_);
        fs::permissions(sesion_, fs::perms::owner_all);
        pid_ = Lanza({{"weston", "--backend=x11-backend.so", "--width=" + std::to_string(ANCHO),
                       "--height=" + std::to_string(ALTO), "--use-pixman", "--no-config",
                       "--idle-time=0", "--socket=mesa"},
                      e.Nombre(),
                      -1,
                      {{"XDG_RUNTIME_DIR", sesion_}}});
        listo_ = e.Espera([&] { return fs::exists(sesion_ + "/mesa"); });
    }
    ~Compositor() {
        Termina(pid_);
        std::error_code e;
        fs::remove_all(sesion_, e);
    }
    Compositor(const Compositor&) = delete;
    Compositor& operator=(const Compositor&) = delete;
    bool Listo() const { return listo_; }
    Entorno Suyo() const {
        return {{"XDG_RUNTIME_DIR", sesion_},
                {"WAYLAND_DISPLAY", "mesa"},
                {"QT_QPA_PLATFORM", "wayland"}};
    }

private:
    const std::string sesion_ =
        (fs::temp_directory_path() / ("tessario-wayland-" + std::to_string(getpid()))).string();
    pid_t pid_ = 0;
    bool listo_ = false;
};

class WaylandVentana : public testing::Test {
protected:
    void SetUp() override {
        if (!HayWeston()) GTEST_SKIP() << "weston or the toolkit's Wayland plugin is missing";
    }
};

TEST_F(WaylandVentana, AMessageStandsAboveTheTableAsOnX) {
    // The same on X, to compare with.
    Escritorio equis(ANCHO, ALTO);
    Programa modelo(equis);
    ASSERT_TRUE(modelo.Arranca(false));
    Escritorio::Marco m;
    ASSERT_TRUE(equis.BuscaVentana("TESSARIO  3.3", m));
    const Caja bienvenida{m.x, m.y, m.ancho, m.alto};
    const Foto aviso = equis.Mira();

    Escritorio e(ANCHO, ALTO, Escritorio::Gestor::No);
    e.Mueve(5, ALTO - 200);
    Compositor compositor(e);
    ASSERT_TRUE(compositor.Listo());
    Programa programa(e);
    programa.Lanzalo(compositor.Suyo());
    const auto igual = [&](const Foto& foto, const Caja& c) {
        constexpr int REDONDEO = 20;  // pixels of a gradient round by where their window begins
        const auto llega = [&] {
            return e.Mira().Diferencia(foto, c.x, c.y, c.ancho, c.alto) <= REDONDEO;
        };
        if (e.Espera(llega, 30000)) return true;
        e.Mira().Guarda("wayland");
        foto.Guarda("wayland-equis");
        return false;
    };
    // The compositor has a pointer of its own in the corner until it sees ours move.
    constexpr int PUNTERO = 40;
    EXPECT_TRUE(igual(aviso, bienvenida)) << "the welcome, in the same place";
    EXPECT_TRUE(igual(aviso, {PUNTERO, 0, ANCHO - TIRA - PUNTERO, bienvenida.y})) << "the table";
    e.Mira().Guarda("wayland-bienvenida");

    // Answered by a key, it leaves the table; the session's end leaves nothing.
    e.Tecla("Return");
    EXPECT_TRUE(e.Espera([&] {
        const Caja& c = bienvenida;
        return e.Mira().Cuenta(c.x, c.y, c.ancho, c.alto, AVISO) == 0;
    }));
    EXPECT_TRUE(programa.Vive());
    ASSERT_EQ(kill(programa.Pid(), SIGTERM), 0);
    EXPECT_EQ(programa.EsperaFin(), 0);
    EXPECT_EQ(programa.Errores(), "");
}

}  // namespace
}  // namespace tessario::ventana
