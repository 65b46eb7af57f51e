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

}  // namespace
}  // namespace tessario::ventana
