// SPDX-License-Identifier: GPL-3.0-or-later
// What happens on a table that is scrolled: the deal, the arrangement at the sides, keeping a
// dropped piece in view and the scrolling at the edges, each held against its rule read word for
// word, on many tables.
#include <cmath>
#include <map>

#include "apoyo/Azar.h"
#include "apoyo/MesaMontada.h"
#include "panel/Barajado.h"
#include "panel/Colocadas.h"
#include "panel/Sugerencias.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "pieces/Raster.h"
#include "rules/PuzzBas.h"
#include "table/Raton.h"

namespace tessario {

namespace {

i32 Redondea(double x) {
    return static_cast<i32>(std::nearbyint(x));  // halves to even
}

class MesaDesplazada : public MesaMontada {
protected:
    // A jigsaw larger than the view, scrolled by these pixels, the hint panel open or shut.
    void Monta(i16 lado, i32 ancho, i32 alto, i16 forma, i32 valorH, i32 valorV, bool sugerencias) {
        Gbl.VentanaInformacion = sugerencias;
        Gbl.SugerenciaActual = 10;
        Moviles(lado, ancho, alto, forma);
        BarraHor.Pon(valorH);
        BarraVer.Pon(valorV);
        if (sugerencias) {
            Sugerencia(10);
        } else {
            Pic_Sugerencia.Tamano(423, 64);
            Pic_Sugerencia.Mueve(0, 500);
            Pic_Sugerencia.Visible = false;
        }
    }
};

// ---------------------------------------------------------------- the rules, word for word

// Where a piece that is not in its place ends, dropped at (x, y).
Punto EnVista(i16 piece, i32 x, i32 y) {
    const Pieza& p = Gbl.Piezas[piece];
    const double w = AnchoDePieza(piece, p.Giro, p.Volteo);
    const double h = AltoDePieza(piece, p.Giro, p.Volteo);
    const i32 v = BarraVer.Value, z = BarraHor.Value;
    i32 limiteY = BarraHor.Top;
    i32 limiteX = BarraVer.Left;
    double cy = y + h / 2;
    if (463 + v > cy) limiteX = Pic_Botonera.Left;
    if (423 + z > x && Gbl.VentanaInformacion) limiteY = Pic_Sugerencia.Top;
    cy = y - Gbl.SalienteY + h / 2;
    if (cy < v) y = Redondea(v + Gbl.SalienteY - h / 2);
    cy = y + h / 2 - Gbl.SalienteY;
    if (cy > limiteY + v) y = Redondea(limiteY + v - h / 2 + Gbl.SalienteY);
    double cx = x - Gbl.SalienteX + w / 2;
    if (cx < z) x = Redondea(z + Gbl.SalienteX - w / 2);
    cx = x + w / 2 - Gbl.SalienteX;
    if (cx > limiteX + z) x = Redondea(limiteX + z - w / 2 + Gbl.SalienteX);
    return {x, y};
}

// The deal of the jigsaw from the draws that the clock's seed gives.
std::vector<Pieza> Reparto(double semilla) {
    const i32 n = Gbl.NumPiezas;
    std::vector<i16> orden;
    for (i16 i = 1; i <= n; ++i) orden.push_back(Gbl.OrdenPiezas[i]);
    std::vector<Pieza> reparto(static_cast<std::size_t>(n) + 1);
    Randomize(semilla);
    for (i32 k = 0; k < 4 * n; ++k) {
        const auto i = static_cast<std::ptrdiff_t>(n * Rnd());
        std::rotate(orden.begin(), orden.begin() + i, orden.begin() + i + 1);
    }
    const i32 w = Gbl.AnchoCelda, h = Gbl.AltoCelda, sx = Gbl.SalienteX, sy = Gbl.SalienteY;
    for (auto p = orden.rbegin(); p != orden.rend(); ++p) {
        Pieza& z = reparto[static_cast<std::size_t>(*p)];
        for (bool vale = false; !vale;) {
            z.X = static_cast<i16>(Rnd() * (Pic_Trabajo.Width() - w) + 1);
            z.Y = static_cast<i16>(Rnd() * (Pic_Trabajo.Height() - h) + 1);
            z.Giro = static_cast<i16>(Gbl.PermitirGiro ? Rnd() * 4 : 0);
            vale = (z.X - sx > Gbl.AnchoPuzzle || z.X + w + sx < Gbl.AnchoPuzzle) &&
                   (z.Y - sy > Gbl.AltoPuzzle || z.Y + h + sy < Gbl.AltoPuzzle);
            if (Pic_Trabajo.Width() - 141 - w / 2.0 < z.X && BarraVer.Value + 463 - h / 2.0 > z.Y)
                vale = false;
            if (Gbl.VentanaInformacion && 423 - w / 2.0 > z.X &&
                Pic_Sugerencia.Top + BarraVer.Value - h / 2.0 < z.Y)
                vale = false;
        }
    }
    return reparto;
}

// The half of its box that a triangle fills, from its pixels.
struct Mitad {
    i32 x, y, ancho, alto;
};
Mitad MideMitad(i16 q) {
    const Pieza& p = Gbl.Piezas[q];
    PreparaPieza(q);
    const Superficie& m = Pic_PiezaMascara;
    bool arriba = false, abajo = false, izquierda = false, derecha = false;
    for (i32 x = 0; x < m.Width(); ++x) {
        arriba |= m.Point(x, 1) != 0xFFFFFF;
        abajo |= m.Point(x, m.Height() - 2) != 0xFFFFFF;
    }
    for (i32 y = 0; y < m.Height(); ++y) {
        izquierda |= m.Point(1, y) != 0xFFFFFF;
        derecha |= m.Point(m.Width() - 2, y) != 0xFFFFFF;
    }
    Mitad r{p.X, p.Y, m.Width(), m.Height()};
    if (arriba && abajo) {
        r.ancho = Redondea(r.ancho / 2.0);
        if (derecha) r.x += r.ancho;
    }
    if (izquierda && derecha) {
        r.alto = Redondea(r.alto / 2.0);
        if (abajo) r.y += r.alto;
    }
    return r;
}

// Where the arrangement at the sides takes each loose piece, by piece.
std::map<i16, Punto> Ordenadas() {
    const i32 paso = Gbl.PasoOrdenar;
    const i32 tope = Gbl.VentanaInformacion ? Pic_Sugerencia.Top : Pic_Trabajo.Height();
    i32 cx = BarraHor.Value + Pic_Botonera.Left - paso, cy = 0, col = 0, lim = tope;
    const i32 c = Redondea(std::sqrt(Gbl.NumPiezas - Gbl.PiezasColocadas) + 3);
    double f = static_cast<double>(Pic_Botonera.Left) / c / paso;
    if (f > 1.1) f = 1.1;
    bool vertical = true;
    std::map<i16, Punto> destinos;
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
        const i16 q = Gbl.OrdenPiezas[i];
        const Pieza& p = Gbl.Piezas[q];
        if (PiezaEnSuSitio(q)) continue;
        Mitad m{p.X, p.Y, AnchoDePieza(q, p.Giro, 0), AltoDePieza(q, p.Giro, 0)};
        if (Gbl.FormaPiezas == 3) m = MideMitad(q);
        i32 dh = static_cast<i32>(std::floor(f * m.alto));
        i32 dw = static_cast<i32>(std::floor(f * m.ancho));
        if (vertical && cy + dh > lim) {
            col = cx;
            cy = Redondea(lim - paso * f);
            if (cy + paso > tope) cy = tope - paso;
            lim = cy;
            dh = 0;
            vertical = false;
        }
        if (!vertical) {
            if (cx - dw >= 0) {
                cx -= dw;
                dh = 0;
            } else {
                cx = Redondea(col - paso * f);
                lim = cy;
                cy = 0;
                dw = 0;
                vertical = true;
            }
        }
        Punto destino{cx, cy};
        if (Gbl.FormaPiezas == 3 && m.x != p.X) destino.x -= m.ancho;
        if (Gbl.FormaPiezas == 3 && m.y != p.Y) destino.y -= m.alto;
        destinos[q] = destino;
        cy += dh;
    }
    return destinos;
}

// Values of the two bars after one step of a drag at (x, y).
struct Vista {
    i32 v, h;
    friend bool operator==(const Vista&, const Vista&) = default;
};
Vista TrasElBorde(Vista e, i32 x, i32 y) {
    if (y == e.v && y > 0) {
        e.v -= std::min(BarraVer.SmallChange, e.v);
    } else if (y > 600 - 17 + e.v && y < Pic_Trabajo.Height()) {
        e.v += std::min(BarraVer.SmallChange, BarraVer.Max - e.v);
    } else if (x == e.h && x > 0) {
        e.h -= std::min(BarraHor.SmallChange, e.h);
    } else if (x > 800 - 17 + e.h && x < Pic_Trabajo.Width()) {
        e.h += std::min(BarraHor.SmallChange, BarraHor.Max - e.h);
    }
    return e;
}

}  // namespace

// ---------------------------------------------------------------- drop

TEST_F(MesaDesplazada, DroppedPieceComesIntoTheScrolledView) {
    Monta(5, 900, 700, 0, 200, 150, false);
    Gbl.FactorAtraccion = 0;
    const auto suelta = [](i32 x, i32 y) {
        Pieza& p = Gbl.Piezas[1];
        p.X = static_cast<i16>(x);
        p.Y = static_cast<i16>(y);
        p.Giro = 0;
        SubePieza(PosicionEnOrden(1));
        Gbl.ArrastrandoPieza = true;
        Pic_Trabajo_MouseUp(1, 0, 0, 0);
        return Punto{p.X, p.Y};
    };
    // Cells of 180 by 140. The view reaches from (200, 150) to (983, 733), the strip, 463 high,
    // begins at 642 of its width.
    EXPECT_EQ(suelta(0, 300), (Punto{110, 300}));
    EXPECT_EQ(suelta(300, 0), (Punto{300, 80}));
    EXPECT_EQ(suelta(300, 690), (Punto{300, 663}));
    EXPECT_EQ(suelta(900, 300), (Punto{752, 300}));
    EXPECT_EQ(suelta(900, 600), (Punto{893, 600}));
    EXPECT_EQ(suelta(900, 543), (Punto{893, 543})) << "its centre just below the strip";
    EXPECT_EQ(suelta(900, 542), (Punto{752, 542})) << "and just beside it";
    // One that is in its place stays there, be it in view or not.
    Gbl.FactorAtraccion = 100;
    EXPECT_EQ(suelta(10, 5), (Punto{0, 0}));
}

TEST_F(MesaDesplazada, DropsFollowTheRuleOfTheViewOnManyTables) {
    PorCasos(6, [&](Azar& azar) {
        constexpr i16 formas[] = {0, 1, 2, 3};
        Monta(3, azar.Entre(540, 700), azar.Entre(400, 500), formas[azar.Entre(0, 3)],
              azar.Entre(0, 150), azar.Entre(0, 120), azar.Moneda());
        Gbl.FactorAtraccion = 0;
        for (int n = 0; n < 30; ++n) {
            const auto p = static_cast<i16>(azar.Entre(1, Gbl.NumPiezas));
            const i32 x = azar.Entre(-150, 1300), y = azar.Entre(-150, 1000);
            Gbl.Piezas[p].X = static_cast<i16>(x);
            Gbl.Piezas[p].Y = static_cast<i16>(y);
            if (PiezaEnSuSitio(p)) continue;
            const Punto esperado = EnVista(p, x, y);
            SubePieza(PosicionEnOrden(p));
            Gbl.ArrastrandoPieza = true;
            Pic_Trabajo_MouseUp(1, 0, 0, 0);
            ASSERT_EQ((Punto{Gbl.Piezas[p].X, Gbl.Piezas[p].Y}), esperado) << x << ", " << y;
        }
    });
}

// ---------------------------------------------------------------- deal

TEST_F(MesaDesplazada, DealKeepsClearOfStripAndHintPanelWhereTheyStandOnTheScrolledTable) {
    PorCasos(6, [&](Azar& azar) {
        Monta(static_cast<i16>(azar.Entre(6, 9)), azar.Entre(600, 800), azar.Entre(450, 600),
              static_cast<i16>(azar.Entre(0, 3)), azar.Entre(0, 300), azar.Entre(40, 250),
              azar.Moneda());
        Gbl.PermitirGiro = azar.Moneda();
        const std::vector<Pieza> reparto = Reparto(P().Timer());
        BarajaPiezas();
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
            const Pieza& p = Gbl.Piezas[i];
            const Pieza& r = reparto[static_cast<std::size_t>(i)];
            ASSERT_EQ((Punto{p.X, p.Y}), (Punto{r.X, r.Y})) << "piece " << i;
            ASSERT_EQ(p.Giro, r.Giro) << "piece " << i;
        }
    });
}

// ---------------------------------------------------------------- arrangement

TEST_F(MesaDesplazada, ArrangementFollowsItsRuleOnManyTables) {
    int trianguloArriba = 0;
    PorCasos(6, [&](Azar& azar) {
        constexpr i16 formas[] = {0, 1, 3, 3};
        Monta(static_cast<i16>(azar.Entre(3, 4)), azar.Entre(540, 640), azar.Entre(400, 480),
              formas[azar.Entre(0, 3)], azar.Entre(0, 200), azar.Entre(0, 200), azar.Moneda());
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
            Pieza& p = Gbl.Piezas[i];
            if (azar.Entre(0, 3) != 0) continue;
            p.X = p.XBien;
            p.Y = p.YBien;
            p.Giro = 0;
        }
        ColocaPiezas(1);
        std::map<i16, Pieza> antes;
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) antes[i] = Gbl.Piezas[i];
        const auto destinos = Ordenadas();
        Gbl.OrdenandoPiezas = true;
        OrdenaLaterales();
        for (i16 i = 1; i <= Gbl.NumPiezas; ++i) {
            const Pieza& p = Gbl.Piezas[i];
            const auto d = destinos.find(i);
            const Punto esperado = d == destinos.end() ? Punto{antes[i].X, antes[i].Y} : d->second;
            ASSERT_EQ((Punto{p.X, p.Y}), esperado) << "piece " << i;
            trianguloArriba += Gbl.FormaPiezas == 3 && d != destinos.end() && d->second.y < 0;
        }
        ASSERT_EQ(Gbl.NumMovimientos, static_cast<i16>(destinos.size()));
        for (i16 m = 1; m <= Gbl.NumMovimientos; ++m) {
            const Movimiento& v = Gbl.Movimientos[m];
            const Punto destino = destinos.at(v.Pieza);
            ASSERT_EQ((Punto{v.XAntes, v.YAntes}), (Punto{antes[v.Pieza].X, antes[v.Pieza].Y}));
            ASSERT_EQ((Punto{v.XDespues, v.YDespues}), destino);
        }
    });
    EXPECT_GT(trianguloArriba, 0) << "a lower triangle at the top of a column hangs up";
}

// ---------------------------------------------------------------- edges

TEST_F(MesaDesplazada, DragAtEachEdgeScrollsByTheRule) {
    Monta(3, 900, 700, 0, 0, 0, false);
    Gbl.AnchoPieza = Gbl.AltoPieza = 20;  // a small box, cheap to drag
    SubePieza(PosicionEnOrden(1));
    Gbl.PiezaActual = 1;
    TomaPieza(0, 0, 1);
    const i32 maxV = BarraVer.Max, maxH = BarraHor.Max;
    int movidas = 0;
    for (const i32 v : {0, 1, 5, 16, 100, maxV - 3, maxV})
        for (const i32 h : {0, 7, 30, maxH - 9, maxH})
            for (const i32 y : {0, v - 1, v, v + 1, 583 + v, 584 + v, 899, 900})
                for (const i32 x : {0, h - 1, h, h + 1, 783 + h, 784 + h, 1099, 1100}) {
                    BarraVer.Pon(v);
                    BarraHor.Pon(h);
                    const Vista esperada = TrasElBorde({v, h}, x, y);
                    Pic_Trabajo_MouseMove(1, 0, static_cast<float>(x), static_cast<float>(y));
                    ASSERT_EQ((Vista{BarraVer.Value, BarraHor.Value}), esperada)
                        << "at (" << x << ", " << y << ") from " << h << ", " << v;
                    movidas += esperada != Vista{v, h};
                }
    EXPECT_GT(movidas, 300);
}

}  // namespace tessario
