// SPDX-License-Identifier: GPL-3.0-or-later
// Every text that the program paints can be read: the shipped colours, measured.
#include "apoyo/MesaMontada.h"
#include "core/Paleta.h"
#include "panel/Colocadas.h"
#include "panel/Cronometro.h"
#include "panel/Sugerencias.h"
#include "table/Raton.h"

namespace tessario {
namespace {

TEST(Paleta, ContrastIsThatOfRelativeLuminance) {
    EXPECT_NEAR(paleta::Contraste(0, 0xFFFFFF), 21, 1e-9);
    EXPECT_NEAR(paleta::Contraste(0xFFFFFF, 0), 21, 1e-9) << "either way round";
    EXPECT_NEAR(paleta::Contraste(0x123456, 0x123456), 1, 1e-9);
    // Published values for grey, red, green and blue on white.
    EXPECT_NEAR(paleta::Contraste(0x767676, 0xFFFFFF), 4.54, 0.005);
    EXPECT_NEAR(paleta::Contraste(0x0000FF, 0xFFFFFF), 4.00, 0.005);
    EXPECT_NEAR(paleta::Contraste(0x00FF00, 0xFFFFFF), 1.37, 0.005);
    EXPECT_NEAR(paleta::Contraste(0xFF0000, 0xFFFFFF), 8.59, 0.005);
}

TEST(Paleta, BlackOrWhiteSufficesForEveryColour) {
    for (u32 i = 0; i < 17 * 17 * 17; ++i) {
        const Color c = i % 17 * 15 | (i / 17 % 17 * 15) << 8 | (i / 289 * 15) << 16;
        ASSERT_GE(paleta::Contraste(c, paleta::Contrario(c)), paleta::CONTRASTE_DE_LECTURA)
            << std::hex << c;
    }
    EXPECT_EQ(paleta::Contrario(0xFFFFFF), paleta::NEGRO);
    EXPECT_EQ(paleta::Contrario(0x800000), paleta::BLANCO);
}

TEST(Paleta, EveryTextOfTheGameCanBeReadOnItsGround) {
    for (const paleta::Tinta* t : paleta::tinta::TODAS)
        EXPECT_GE(paleta::Contraste(t->Texto, t->Fondo), paleta::CONTRASTE_DE_LECTURA)
            << std::hex << t->Texto << " on " << t->Fondo;
}

// What is really printed, on what really lies there: the colours of the table do not help if the
// drawing goes its own way.
using TextosPintados = MesaMontada;

TEST_F(TextosPintados, StandOnTheGroundsOfTheTable) {
    Moviles(3, 300, 300);
    Gbl.VentanaInformacion = true;
    P().anotaTextos = true;
    Sugerencia(sugerencia::JUEGO);
    PintaTiempo();
    MuestraColocadas();
    Gbl.OpcionResaltada = 2;
    ActivaOpciones();
    const auto es = [](Color texto, Color fondo) {
        for (const paleta::Tinta* t : paleta::tinta::TODAS)
            if (t->Texto == texto && t->Fondo == fondo) return true;
        return false;
    };
    i32 leidos = 0;
    for (const Superficie* s : std::initializer_list<const Superficie*>{
             &Pic_Sugerencia, &Pic_SugeMasAyuda, &Pic_CroTime, &Pic_InfoColo, &Pic_SelOpciones}) {
        bool alguno = false;
        for (const auto& t : P().textos) {
            if (t.donde != s) continue;
            // The test's letters are blocks that begin a row below their corner.
            const Color fondo = s->Point(std::max(t.x - 1, 0), t.y);
            alguno = alguno || es(t.color, fondo);
            leidos += es(t.color, fondo);
        }
        EXPECT_TRUE(alguno) << dynamic_cast<const Cuadro*>(s)->Nombre;
    }
    EXPECT_GE(leidos, 7) << "three options, clock, counter, hint and its link";
}

}  // namespace
}  // namespace tessario
