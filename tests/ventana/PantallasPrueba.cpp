// SPDX-License-Identifier: GPL-3.0-or-later
// Screens of high density in the real program.
#include <optional>

#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int ANCHO = 800, ALTO = 600, TIRA = 141;  // of the screen as the game counts it

// The laid table, without the clock's strip, on a screen of so many device pixels.
class Mesa {
public:
    Mesa(int factor, const char* escala)
        : e_(ANCHO * factor, ALTO * factor), programa_(e_), escala_(escala) {
        programa_.EscribeGlobal(21, 100);
    }
    std::optional<Foto> Abre() {
        programa_.Lanzalo({{"QT_SCALE_FACTOR", escala_}});
        if (!programa_.LlegaALaMesa()) return std::nullopt;
        return e_.Mira();
    }
    Escritorio& Pantalla() { return e_; }
    Programa& ElPrograma() { return programa_; }

private:
    Escritorio e_;
    Programa programa_;
    std::string escala_;
};

TEST(PantallasVentana, AFractionalScaleShowsTheTablePixelForPixel) {
    Mesa uno(1, ""), medio(1, "1.5");
    const auto a = uno.Abre(), b = medio.Abre();
    ASSERT_TRUE(a && b);
    b->Guarda("escala-1.5");
    EXPECT_EQ(a->Diferencia(*b, 0, 0, ANCHO - TIRA, ALTO), 0);
}

TEST(PantallasVentana, AtTwiceTheScaleEachPixelIsASquareAndThePointerIsExact) {
    Mesa uno(1, ""), dos(2, "2");
    const auto a = uno.Abre(), b = dos.Abre();
    ASSERT_TRUE(a && b);
    b->Guarda("escala-2");
    int distintos = 0;
    for (int y = 0; y < ALTO; ++y)
        for (int x = 0; x < ANCHO - TIRA; ++x)
            for (const auto& [i, j] : {std::pair{0, 0}, {1, 0}, {0, 1}, {1, 1}})
                distintos += a->En(x, y) != b->En(2 * x + i, 2 * y + j);
    EXPECT_EQ(distintos, 0) << "pieces, frame, sample";

    // A piece taken by its middle goes as far as the pointer, in whole pixels of the table.
    Escritorio& e = dos.Pantalla();
    const PiezaGuardada q = dos.ElPrograma().LeePartida(21).piezas[0];
    constexpr int MEDIA_X = 35, MEDIA_Y = 26;
    const int x = 2 * (q.x + MEDIA_X), y = 2 * (q.y + MEDIA_Y);
    e.Arrastra(x, y, x + 2 * 37, y + 2 * 21);
    constexpr int SALIR_X = 659 + 78 + 24, SALIR_Y = 126 + 24;
    e.Pulsa(2 * SALIR_X, 2 * SALIR_Y);
    ASSERT_TRUE(e.Espera([&] { return e.HayVentana("Salir de TESSARIO"); }));
    e.EsperaQuieto(120);
    e.Tecla("Return");
    ASSERT_EQ(dos.ElPrograma().EsperaFin(), 0);
    const PartidaLeida p = dos.ElPrograma().LeePartida(21);
    EXPECT_EQ(p.piezas[0].x, q.x + 37);
    EXPECT_EQ(p.piezas[0].y, q.y + 21);
}

constexpr int GRANDE_X = 1280, GRANDE_Y = 1024, CHICA_X = 800, CHICA_Y = 600;

// A large screen and a small one at its right, as one desktop; the first of them is either.
class DosPantallas : public testing::TestWithParam<bool> {
protected:
    // On the desktop with one screen, and on that with two, the window stands in the same place.
    bool EnSuSitio(const char* titulo) {
        Escritorio::Marco a, b;
        if (!una.Espera([&] { return una.BuscaVentana(titulo, a); })) return false;
        return dos.Espera([&] {
            return dos.BuscaVentana(titulo, b) && x0 + a.x == b.x && a.y == b.y &&
                   a.ancho == b.ancho && a.alto == b.alto;
        });
    }
    bool LaOtraEstaVacia() {
        return dos.Mira().Diferencia(vacias, primeraGrande ? GRANDE_X : 0, 0,
                                     primeraGrande ? CHICA_X : GRANDE_X,
                                     primeraGrande ? CHICA_Y : GRANDE_Y) == 0;
    }
    void Tecla(const char* tecla) {
        for (Escritorio* const e : {&una, &dos}) e->Tecla(tecla);
    }
    void Pulsa(int boton) {
        const Programa::Lugar b = modelo.Boton(boton);
        una.Pulsa(b.x, b.y);
        dos.Pulsa(x0 + b.x, b.y);
    }
    bool SeVa(const char* titulo) {
        return una.Espera([&] { return !una.HayVentana(titulo); }) &&
               dos.Espera([&] { return !dos.HayVentana(titulo); });
    }

    const bool primeraGrande = GetParam();
    const int x0 = primeraGrande ? 0 : GRANDE_X;
    const int ancho = primeraGrande ? GRANDE_X : CHICA_X, alto = primeraGrande ? GRANDE_Y : CHICA_Y;
    Escritorio una{ancho, alto}, dos{GRANDE_X + CHICA_X, GRANDE_Y};
    Programa modelo{una}, programa{dos};
    Foto vacias;
};

INSTANTIATE_TEST_SUITE_P(Primera, DosPantallas, testing::Bool(), [](const auto& p) {
    return p.param ? std::string("Grande") : std::string("Chica");
});

TEST_P(DosPantallas, TheFirstHasTheTableAndAllItsWindows) {
    if (!dos.PonMonitores({0, GRANDE_X, GRANDE_Y, primeraGrande},
                          {GRANDE_X, CHICA_X, CHICA_Y, !primeraGrande}))
        GTEST_SKIP() << "xrandr is missing";
    dos.EsperaQuieto();
    vacias = dos.Mira();
    for (Programa* const p : {&modelo, &programa}) {
        p->EscribeGlobal(21, 100);
        ASSERT_TRUE(p->Arranca(false));
    }
    EXPECT_TRUE(EnSuSitio("TESSARIO  3.3"));
    const Foto mesa = dos.Mira(), sola = una.Mira();
    mesa.Guarda(primeraGrande ? "dos-pantallas" : "dos-pantallas-chica");
    int distintos = 0;
    for (int y = 0; y < alto; ++y)
        for (int x = 0; x < ancho - TIRA; ++x) distintos += mesa.En(x0 + x, y) != sola.En(x, y);
    EXPECT_EQ(distintos, 0);
    EXPECT_TRUE(LaOtraEstaVacia());
    Tecla("Return");
    ASSERT_TRUE(SeVa("TESSARIO  3.3"));

    struct Orden {
        int boton;
        const char* titulo;
    };
    constexpr Orden ORDENES[] = {{2, "Personalizar"}, {6, "Ayuda de Tessario"}};
    for (const auto& [boton, titulo] : ORDENES) {
        Pulsa(boton);
        EXPECT_TRUE(EnSuSitio(titulo)) << titulo;
        EXPECT_TRUE(LaOtraEstaVacia()) << titulo;
        una.EsperaQuieto(120);
        dos.EsperaQuieto(120);
        Tecla("Escape");
        ASSERT_TRUE(SeVa(titulo)) << titulo;
    }
    Pulsa(7);
    EXPECT_TRUE(EnSuSitio("Salir de TESSARIO"));
    Tecla("Return");
    EXPECT_EQ(programa.EsperaFin(), 0);
    EXPECT_EQ(modelo.EsperaFin(), 0);
}

// Pixels of the table of which a screen of twice the density shows anything but a square.
int NoCuadrados(const Foto& f, int x0, int y0, int ancho, int alto) {
    int n = 0;
    for (int y = y0; y < y0 + alto; ++y)
        for (int x = x0; x < x0 + ancho; ++x) {
            const unsigned p = f.En(2 * x, 2 * y);
            n += p != f.En(2 * x + 1, 2 * y) || p != f.En(2 * x, 2 * y + 1) ||
                 p != f.En(2 * x + 1, 2 * y + 1);
        }
    return n;
}

TEST(PantallasVentana, AtTwiceTheScaleTheTextsOnTheTableAreFine) {
    Escritorio e(2 * ANCHO, 2 * ALTO);
    Programa programa(e);
    programa.EscribeGlobal(21, 100, false, true);
    programa.Lanzalo({{"QT_SCALE_FACTOR", "2"}});
    ASSERT_TRUE(programa.LlegaALaMesa());
    e.Mueve(2 * 400, 2 * 300);
    e.EsperaAtendido();
    const Foto f = e.Mira();
    f.Guarda("textos-escala-2");
    // The panel of hints at the lower left, the counter of pieces in the strip.
    EXPECT_GT(NoCuadrados(f, 0, ALTO - 65, 400, 65), 500);
    EXPECT_GT(NoCuadrados(f, ANCHO - TIRA, 420, TIRA / 2, 40), 20);
    EXPECT_EQ(NoCuadrados(f, 0, 0, ANCHO - TIRA, ALTO - 65), 0) << "pieces, frame, sample";
}

}  // namespace
}  // namespace tessario::ventana
