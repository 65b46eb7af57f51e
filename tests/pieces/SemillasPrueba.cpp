// SPDX-License-Identifier: GPL-3.0-or-later
// The seed point of every Tangram piece in every orientation, and the silhouette of one piece.
#include <cmath>

#include "apoyo/MesaTangram.h"
#include "core/Superficies.h"
#include "pieces/Raster.h"

namespace tessario {

namespace {

class Semillas : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        AbreTangram(MODO_CREAR);
    }
};

i16 Redondo(double x) {
    return static_cast<i16>(std::nearbyint(x));
}

}  // namespace

TEST_F(Semillas, TrianglesHaveTheirShareOfTheBoxAndTheOthersItsMiddle) {
    for (i16 p = 1; p <= 7; ++p)
        for (i16 giro = 0; giro < 8; ++giro) {
            const i16 w = AnchoDePieza(p, giro, 0), h = AltoDePieza(p, giro, 0);
            const auto mw = static_cast<i16>((w + 1) / 2), mh = static_cast<i16>((h + 1) / 2);
            const struct {
                i16 x, y;
            } puntos[] = {{mw, Redondo(h * 0.62)}, {Redondo(w * 0.66), Redondo(h * 0.33)},
                          {Redondo(w * 0.38), mh}, {Redondo(w * 0.66), Redondo(h * 0.66)},
                          {mw, Redondo(h * 0.38)}, {Redondo(w * 0.33), Redondo(h * 0.66)},
                          {Redondo(w * 0.62), mh}, {Redondo(w * 0.33), Redondo(h * 0.33)}};
            TPuntoInterior(p, giro, 0);
            EXPECT_EQ(Gbl.XInterior, p > 5 ? mw : puntos[giro].x) << p << " at " << giro;
            EXPECT_EQ(Gbl.YInterior, p > 5 ? mh : puntos[giro].y) << p << " at " << giro;
        }
}

TEST_F(Semillas, SilhouetteOfOnePieceLeavesTheGroundAsItIs) {
    Superficie s(400, 300);
    s.PonBackColor(0x112233);
    s.PSet(395, 295, 0x445566);
    Gbl.Piezas[6].XBien = 100;
    Gbl.Piezas[6].YBien = 100;
    TPintaFigura(s, 6);
    EXPECT_EQ(s.BackColor(), 0x112233U);
    EXPECT_EQ(s.Point(395, 295), 0x445566U);
    EXPECT_EQ(s.Point(130, 130), Gbl.ColorContraste);
    TPintaFigura(s);
    EXPECT_EQ(s.BackColor(), Gbl.ColorFondo);
    EXPECT_EQ(s.Point(395, 295), Gbl.ColorFondo);
}

}  // namespace tessario
