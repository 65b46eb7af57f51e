// SPDX-License-Identifier: GPL-3.0-or-later
// The attraction test of the settings window.
#include "settings/Prueba.h"

#include "apoyo/PersonalMontada.h"

namespace tessario {

using namespace personal;

class PruebaAtraccion : public PersonalMontada {
protected:
    struct Paso {
        Punto sitio;
        bool visible;
        double pausa;
        friend bool operator==(const Paso&, const Paso&) = default;
    };
    // What is on the screen at each pause of a run with this factor, and how long it stays.
    std::vector<Paso> Corre(i16 factor) {
        std::vector<Paso> pasos;
        Visita([&] {
            Pot(2).Pon(factor);
            Gbl.VelocidadJuego = 50;
            double antes = P().dormido;
            P().alDormir = [&] {
                if (!pasos.empty()) pasos.back().pausa = P().dormido - antes;
                antes = P().dormido;
                EXPECT_EQ(FilaDelBoton(), 54U) << "pressed until the end";
                pasos.push_back(
                    {{Pic_PruebaPeq.Left, Pic_PruebaPeq.Top}, Pic_PruebaPeq.Visible, 0});
            };
            P().sonidos.clear();
            P().textos.clear();
            P().anotaTextos = true;
            EXPECT_EQ(FilaDelBoton(), 30U);
            EXPECT_EQ((Punto{Pic_PruebaPeq.Left, Pic_PruebaPeq.Top}), (Punto{53, 45}));
            Pulsa(Pic_BotPrueba);
            P().anotaTextos = false;
            EXPECT_EQ(FilaDelBoton(), 30U);
            P().alDormir = nullptr;
            if (!pasos.empty()) pasos.back().pausa = P().dormido - antes;
            sonidos_ = Sonidos();
            Gbl.VelocidadJuego = 100;
        });
        return pasos;
    }
    // Row of the tiles' picture from which the button is painted.
    static Pixel FilaDelBoton() { return PixelDe(Pic_BotPrueba.Point(0, 0)) & 0xFFU; }
    // Where the button's caption was printed in white in the last run.
    std::vector<Punto> Rotulos() {
        std::vector<Punto> lugares;
        for (const auto& t : P().textos)
            if (t.donde == &Pic_BotPrueba && t.color == 0xFFFFFFU) lugares.push_back({t.x, t.y});
        return lugares;
    }
    std::vector<int> sonidos_;
};

TEST_F(PruebaAtraccion, TheFactorSplitsTheWayIntoHandAndFlight) {
    MovilesDe("a.bmp", 640, 480);
    const struct {
        i16 factor;
        int a_mano, sola;
    } casos[] = {{0, 41, 0}, {100, 15, 26}, {50, 28, 13}, {20, 35, 6}, {99, 15, 26}};
    for (const auto& c : casos) {
        const auto pasos = Corre(c.factor);
        int a_mano = 0, sola = 0, oculta = 0, vista = 0;
        for (const Paso& p : pasos) {
            a_mano += p.pausa == 22;
            sola += p.pausa == 4;
            oculta += p.pausa == 45 && !p.visible;
            vista += p.pausa == 140 && p.visible;
        }
        EXPECT_EQ(a_mano, c.a_mano) << c.factor;
        EXPECT_EQ(sola, c.sola) << c.factor;
        EXPECT_EQ(oculta, 6) << c.factor;
        EXPECT_EQ(vista, 6) << c.factor;
        EXPECT_EQ(pasos.back().pausa, 200) << c.factor;
        EXPECT_EQ(pasos.front().sitio, (Punto{54, 44})) << c.factor;
        EXPECT_EQ(pasos.back().sitio, (Punto{94, 4})) << c.factor;
        EXPECT_EQ(sonidos_, (std::vector<int>{6, 51, 7})) << c.factor;
        EXPECT_EQ(Rotulos(), (std::vector<Punto>{{9, 5}, {9, 4}})) << c.factor;
    }
}

TEST_F(PruebaAtraccion, EachStepIsOnePixelRightAndUp) {
    MovilesDe("a.bmp", 640, 480);
    const auto pasos = Corre(70);
    Punto antes{53, 45};
    for (const Paso& p : pasos) {
        const Punto d{p.sitio.x - antes.x, p.sitio.y - antes.y};
        EXPECT_TRUE(d == Punto{} || d == (Punto{1, -1})) << p.sitio.x;
        antes = p.sitio;
    }
}

TEST_F(PruebaAtraccion, TheTableInSmallHasTwelveCellsLessAHole) {
    MovilesDe("a.bmp", 640, 480);
    Visita([&] {
        EXPECT_EQ(Pic_Prueba.Left, 8);
        EXPECT_EQ(Pic_Prueba.Top, 65);
        EXPECT_EQ(Pic_Prueba.Width(), 131);
        EXPECT_EQ(Pic_Prueba.Point(4, 4), 0x4060C0U);
        EXPECT_EQ(Pic_Prueba.Point(124, 76), 0x4060C0U);
        EXPECT_EQ(Pic_Prueba.Point(60, 76), 0x4060C0U);
        EXPECT_NE(Pic_Prueba.Point(60, 77), 0x4060C0U);
        EXPECT_EQ(Pic_Prueba.Point(124, 60), 0x4060C0U);
        EXPECT_NE(Pic_Prueba.Point(125, 60), 0x4060C0U);
        const auto tesela = [](i32 x, i32 y) {
            const Pixel p = PixelDe(Pic_Prueba.Point(x, y));
            return Punto{static_cast<i32>((p >> 8) & 0xFFFU), static_cast<i32>(p & 0xFFU)};
        };
        EXPECT_EQ(tesela(5, 5), (Punto{102, 3}));
        EXPECT_EQ(tesela(93, 27), (Punto{130, 25}));
        EXPECT_EQ(tesela(123, 75), (Punto{130, 25}));
        EXPECT_EQ(Pic_Prueba.Point(95, 5), 0xC0C0C0U);
        EXPECT_EQ(Pic_Prueba.Point(123, 27), 0xC0C0C0U);
        EXPECT_EQ(tesela(95, 29), (Punto{102, 3}));
        EXPECT_EQ(Pic_PruebaPeq.Left, 53);
        EXPECT_EQ(Pic_PruebaPeq.Top, 45);
        EXPECT_EQ(Pic_PruebaPeq.Width(), 29);
        EXPECT_EQ(Pic_PruebaPeq.Height(), 23);
        for (i32 y = 0; y < 23; ++y)
            for (i32 x = 0; x < 29; ++x)
                ASSERT_EQ(Pic_PruebaPeq.Point(x, y), Pic_Prueba.Point(5 + x, 5 + y)) << x;
    });
}

}  // namespace tessario
