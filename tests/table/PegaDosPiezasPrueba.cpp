// SPDX-License-Identifier: GPL-3.0-or-later
// The attraction between Tangram pieces, held against its rule read word for word on many tables.
#include <array>
#include <cmath>
#include <cstdlib>
#include <set>

#include "apoyo/Azar.h"
#include "apoyo/MesaTangram.h"
#include "table/Atraccion.h"
#include "tangram/Pegado.h"

namespace tessario {

namespace {

// The rule with nothing folded together: a ladder for the direction, the two tables of offsets.
struct PegaLiteral {
    bool alternativa = false;
    i32 x = 0, y = 0;  // where the piece in hand ends
    i32 s = 0, d = 0,
        con = 0;  // distance, direction and partner of the contact; 0 when there is none

    static i32 DireccionDe(i32 dx, i32 dy, double umbral) {
        const double r = std::abs(std::abs(static_cast<double>(dy)) - std::abs(dx)) /
                         (std::abs(static_cast<double>(dy)) + std::abs(dx));
        if (r > umbral && std::abs(dx) >= std::abs(dy)) return dx > 0 ? 2 : 6;
        if (r > umbral) return dy > 0 ? 4 : 0;
        if (dx > 0 && dy > 0) return 3;
        if (dx > 0) return 1;
        return dy > 0 ? 5 : 7;
    }

    static Region Poligono(i16 p, i32 x, i32 y) {
        const Pieza antes = Gbl.Piezas[p];
        Gbl.Piezas[p].X = Corto(x);
        Gbl.Piezas[p].Y = Corto(y);
        const Region r = RegionEnMesa(p);
        Gbl.Piezas[p] = antes;
        return r;
    }

    bool Toca(i16 mia, i16 p, i32 direccion) {
        const i32 xs[8] = {0, s, s, s, 0, -s, -s, -s}, ys[8] = {-s, -s, 0, s, s, s, 0, -s};
        const i32 ox = xs[direccion], oy = ys[direccion];
        const Pieza& z = Gbl.Piezas[mia];
        Region comun;
        const int codigo = CombineRgn(comun, Poligono(mia, z.X + ox, z.Y + oy),
                                      Poligono(p, Gbl.Piezas[p].X, Gbl.Piezas[p].Y), RGN_AND);
        if (codigo <= 1) return false;
        x = z.X + (ox > 0 ? ox - 2 : ox < 0 ? ox + 2 : 0);
        y = z.Y + (oy > 0 ? oy - 2 : oy < 0 ? oy + 2 : 0);
        d = direccion;
        con = p;
        return true;
    }

    static Punto Centro(i16 p) {
        const Pieza& z = Gbl.Piezas[p];
        TPuntoInterior(p, z.Giro, z.Volteo);
        return {z.X + Gbl.XInterior, z.Y + Gbl.YInterior};
    }

    void Busca(i16 mia) {
        x = Gbl.Piezas[mia].X;
        y = Gbl.Piezas[mia].Y;
        const Punto yo = Centro(mia);
        for (s = 2; s <= (alternativa ? 6 : 7); ++s)
            for (i16 p = 1; p <= 7; ++p) {
                if (p == mia) continue;
                const Punto otro = Centro(p);
                if (otro == yo) return;
                const i32 primera =
                    DireccionDe(otro.x - yo.x, otro.y - yo.y, alternativa ? 0.15 : 0.35);
                i32 direccion = primera;
                do {
                    if (Toca(mia, p, direccion)) return;
                    direccion = direccion == 7 ? 0 : direccion + 1;
                } while (alternativa && direccion != primera);
            }
        con = 0;
    }
};

class PegaDosPiezasLiteral : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        AbreTangram(MODO_CREAR);
    }
    // The seven close together, in any orientation, the last one pushed off the others as a drop
    // is.
    static i16 MesaRevuelta(Azar& azar) {
        for (i16 p = 1; p <= PIEZAS_TANGRAM; ++p)
            PonPieza(p, azar.Entre(20, 480), azar.Entre(20, 380),
                     static_cast<i16>(azar.Entre(0, 7)),
                     static_cast<i16>(p == 7 ? azar.Entre(0, 1) : 0));
        const auto mia = static_cast<i16>(azar.Entre(1, 7));
        Suelta(mia);
        return mia;
    }
    // As the piece lies after its push it often touches already; a few pixels off are wanted too.
    static void Aparta(Azar& azar, i16 mia) {
        Gbl.Piezas[mia].X = Corto(Gbl.Piezas[mia].X + azar.Entre(-6, 6));
        Gbl.Piezas[mia].Y = Corto(Gbl.Piezas[mia].Y + azar.Entre(-6, 6));
    }
    // Runs both searches on many tables; what was met: distances, directions, partners.
    void Compara(bool alternativa, u32 casos) {
        std::set<i32> distancias, direcciones, parejas;
        PorCasos(casos, [&](Azar& azar) {
            const i16 mia = MesaRevuelta(azar);
            if (azar.Moneda()) Aparta(azar, mia);
            PegaLiteral literal{alternativa};
            literal.Busca(mia);
            Gbl.PiezaActual = mia;
            alternativa ? PegaDosPiezasNuevoConError() : PegaDosPiezas();
            ASSERT_EQ(Gbl.Piezas[mia].X, literal.x) << "piece " << mia << " with " << literal.con;
            ASSERT_EQ(Gbl.Piezas[mia].Y, literal.y) << "piece " << mia << " with " << literal.con;
            if (literal.con == 0) return;
            distancias.insert(literal.s);
            direcciones.insert(literal.d);
            parejas.insert(literal.con);
        });
        EXPECT_EQ(distancias.size(), alternativa ? 5U : 6U);
        EXPECT_EQ(direcciones.size(), 8U);
        EXPECT_EQ(parejas.size(), 7U);
    }
};

}  // namespace

TEST_F(PegaDosPiezasLiteral, PullsAsTheRuleReadsOnManyTables) {
    Compara(false, 1500);
}

TEST_F(PegaDosPiezasLiteral, AlternativePullsAsItsRuleReadsOnManyTables) {
    Compara(true, 600);
}

// Centres apart by exactly the ratio of a threshold, and by the whole ratios on both sides of it:
// the ratio itself is still a diagonal.
TEST_F(PegaDosPiezasLiteral, DirectionsChangeAtTheirRatios) {
    constexpr Punto RAZONES[] = {{27, 13}, {28, 13}, {27, 14}, {23, 17}, {24, 17}, {23, 18}};
    int contactos = 0;
    for (const bool alternativa : {false, true})
        for (const Punto& r : RAZONES)
            for (i32 caso = 0; caso < 4 * 8 * 5; ++caso) {
                const i32 sx = caso & 1 ? 1 : -1, sy = caso & 2 ? 1 : -1;
                const i32 k = 1 + caso / 32;
                const auto giro = static_cast<i16>(caso / 4 % 8);
                const bool tumbada = k % 2 == 0;
                ApartaPiezas();
                PonPieza(6, 500, 400, 0);
                PonPieza(4, 500, 400, giro);
                const Punto a = PegaLiteral::Centro(6), b = PegaLiteral::Centro(4);
                Gbl.Piezas[4].X = Corto(500 + a.x - b.x + k * sx * (tumbada ? r.y : r.x));
                Gbl.Piezas[4].Y = Corto(400 + a.y - b.y + k * sy * (tumbada ? r.x : r.y));
                PegaLiteral literal{alternativa};
                literal.Busca(6);
                Gbl.PiezaActual = 6;
                alternativa ? PegaDosPiezasNuevoConError() : PegaDosPiezas();
                ASSERT_EQ(Gbl.Piezas[6].X, literal.x) << r.x << ", " << r.y << " by " << k;
                ASSERT_EQ(Gbl.Piezas[6].Y, literal.y) << r.x << ", " << r.y << " by " << k;
                contactos += literal.con != 0;
            }
    EXPECT_GT(contactos, 500);
}

}  // namespace tessario
