// Every text that the program paints can be read: the shipped colours, measured.
#include "apoyo/MesaMontada.h"
#include "core/Paleta.h"

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

}  // namespace
}  // namespace tessario
