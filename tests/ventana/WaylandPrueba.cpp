// SPDX-License-Identifier: GPL-3.0-or-later
// The real program on a Wayland desktop, a compositor that fills a private X server's screen: a
// message and the program's windows stand there as they do on X, above the table.
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

TEST_F(WaylandVentana, MessagesAndWindowsStandAboveTheTableAsOnX) {
    // The same on X, to compare with.
    Escritorio equis(ANCHO, ALTO);
    Programa modelo(equis);
    ASSERT_TRUE(modelo.Arranca(false));
    Escritorio::Marco m;
    ASSERT_TRUE(equis.BuscaVentana("TESSARIO  3.3", m));
    const Caja bienvenida{m.x, m.y, m.ancho, m.alto};
    const Foto aviso = equis.Mira();
    equis.Tecla("Return");
    ASSERT_TRUE(equis.Espera([&] { return !equis.HayVentana("TESSARIO  3.3"); }));
    modelo.PulsaBoton(2);
    ASSERT_TRUE(equis.Espera([&] { return equis.BuscaVentana("Personalizar", m); }));
    constexpr int LISTAS = 240;  // its left part names the program's folder
    const Caja ajustes{m.x + LISTAS, m.y, m.ancho - LISTAS, m.alto};
    equis.Mueve(5, ALTO - 200);
    equis.EsperaQuieto();
    const Foto personal = equis.Mira();

    Escritorio e(ANCHO, ALTO, Escritorio::Gestor::No);
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
    ASSERT_TRUE(igual(aviso, bienvenida)) << "the welcome, in the same place";
    // The compositor has its own pointer in the corner until the first move that it sees.
    const auto sinPuntero = [&] {
        e.Mueve(8, ALTO - 190);
        e.Mueve(5, ALTO - 200);
        return e.Mira().Diferencia(aviso, 0, 0, ANCHO - TIRA, bienvenida.y) == 0;
    };
    EXPECT_TRUE(e.Espera(sinPuntero)) << "the table, to its edge";
    // Answered by a key.
    e.Tecla("Return");
    const auto despejada = [&](const Caja& c) {
        return e.Espera([&] { return e.Mira().Cuenta(c.x, c.y, c.ancho, c.alto, AVISO) == 0; });
    };
    ASSERT_TRUE(despejada(bienvenida));
    const Foto mesa = e.Mira();

    // The settings, opened and left by the pointer.
    constexpr int DEJA_X = 612, DEJA_Y = 511;  // the button that leaves them
    constexpr int PERSONAL = 2, AYUDA = 6, SALIR = 7;
    const auto pulsa = [&](int orden) {
        constexpr int MEDIO_LADO = 24;
        const Programa::Lugar b = programa.Boton(orden);
        const int x = b.x - MEDIO_LADO, y = b.y - MEDIO_LADO, lado = 2 * MEDIO_LADO;
        const Foto apagado = e.Mira();
        e.Mueve(b.x, b.y);
        // It lights up under the pointer.
        e.Espera([&] { return e.Mira().Diferencia(apagado, x, y, lado, lado) > lado * lado / 2; });
        e.Pulsa(b.x, b.y);
        e.Mueve(5, ALTO - 200);
    };
    pulsa(PERSONAL);
    ASSERT_TRUE(igual(personal, ajustes));
    e.Pulsa(m.x + DEJA_X, m.y + DEJA_Y);
    e.Mueve(5, ALTO - 200);
    EXPECT_TRUE(igual(mesa, ajustes));

    // The help, in the middle, closed by its own button.
    constexpr Caja AYUDA_CAJA{(ANCHO - 780) / 2, (ALTO - 560) / 2, 780, 560};
    pulsa(AYUDA);
    ASSERT_TRUE(e.Espera([&] {
        return e.Mira().Diferencia(mesa, AYUDA_CAJA.x, AYUDA_CAJA.y, AYUDA_CAJA.ancho,
                                   AYUDA_CAJA.alto) > AYUDA_CAJA.ancho * AYUDA_CAJA.alto * 8 / 10;
    }));
    e.Mira().Guarda("wayland-ayuda");
    e.Pulsa(AYUDA_CAJA.x + AYUDA_CAJA.ancho - 40, AYUDA_CAJA.y + 22);
    e.Mueve(5, ALTO - 200);
    EXPECT_TRUE(igual(mesa, {0, 0, ANCHO - TIRA, ALTO - 200}));

    // A message answered by the pointer, and one that ends the program.
    constexpr Caja MEDIO{ANCHO / 2 - 190, ALTO / 2 - 70, 380, 140};
    constexpr int NO_X = ANCHO / 2 + 160, NO_Y = ALTO / 2 + 50;
    const auto pregunta = [&] {
        pulsa(SALIR);
        return e.Espera([&] {
            return e.Mira().Cuenta(MEDIO.x, MEDIO.y, MEDIO.ancho, MEDIO.alto, AVISO) >
                   MEDIO.ancho * MEDIO.alto / 2;
        });
    };
    ASSERT_TRUE(pregunta());
    e.Mira().Guarda("wayland-pregunta");
    e.Pulsa(NO_X, NO_Y);
    ASSERT_TRUE(despejada(MEDIO));
    ASSERT_TRUE(programa.Vive());
    ASSERT_TRUE(pregunta());
    e.Tecla("Return");
    EXPECT_EQ(programa.EsperaFin(), 0);
    EXPECT_EQ(programa.Errores(), "");
}

}  // namespace
}  // namespace tessario::ventana
