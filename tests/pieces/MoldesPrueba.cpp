// SPDX-License-Identifier: GPL-3.0-or-later
// A mask must be the same whether its mould is new, used before or left by another cut: cuts and
// games follow one another at random, and every mask is compared with one drawn here, directly.
#include <algorithm>
#include <random>

#include "apoyo/MesaMoviles.h"

namespace tessario {

namespace {

Superficie Hoja() {
    Superficie s(Gbl.AnchoPieza, Gbl.AltoPieza);
    s.FillSolido = true;
    return s;
}

void Caja(Superficie& s, i32 x1, i32 y1, i32 x2, i32 y2) {
    s.Line(pluma::Desde | pluma::Caja, x1, y1, x2, y2);
}

void Elipse(Superficie& s, double radio, double aspecto) {
    s.Circle(pluma::ConAspecto, Gbl.AnchoCelda / 2.0, Gbl.AltoCelda / 2.0, radio, 0, 0, 0, aspecto);
}

// A closed path, filled from a point.
void Camino(Superficie& s, const std::vector<std::pair<double, double>>& p, double x, double y) {
    for (std::size_t i = 0; i < p.size(); ++i) {
        const auto& [x2, y2] = p[(i + 1) % p.size()];
        s.Line(pluma::Desde, p[i].first, p[i].second, x2, y2);
    }
    ExtFloodFill(s, Entero(x), Entero(y), 0, 0);
}

void Triangulo(Superficie& s, i16 piece) {
    const double w = Gbl.AnchoCelda, h = Gbl.AltoCelda, cx = (w - 1) / 2, cy = h / 2;
    switch (piece % 4) {
        case 0:
            return Camino(s, {{1, 0}, {w - 2, 0}, {cx, cy - 2}}, w * 0.5, 1);
        case 1:
            return Camino(s, {{w - 1, 0}, {w - 1, h - 2}, {cx, cy - 1}}, w - 2, h * 0.5);
        case 2:
            return Camino(s, {{0, h - 1}, {w - 1, h - 1}, {cx, cy}}, w * 0.5, h - 2);
        default:
            return Camino(s, {{0, 0}, {0, h - 2}, {cx, cy - 1}}, 1, h * 0.5);
    }
}

// One straightened side: the line, and the fills at shares of the side's length.
void Lado(Superficie& s, bool vertical, bool lejos) {
    const double m = Gbl.SalienteX, n = Gbl.SalienteY, w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    const double largo = vertical ? h : w, inicio = vertical ? n : m;
    const double cerca = vertical ? m : n, ancho = vertical ? w : h;
    const double borde = lejos ? cerca + ancho - 1 : cerca;
    if (vertical)
        s.Line(pluma::Desde, borde, n, borde, n + h);
    else
        s.Line(pluma::Desde, m, borde, m + w, borde);
    for (const double parte : {0.22, 0.5, 0.78}) {
        const bool medio = parte == 0.5;
        if (Gbl.FormaPiezas == 1 && !medio) continue;
        const bool hondo = medio && Gbl.FormaPiezas == 2;
        const double junto = lejos ? cerca + ancho - 2 : cerca + 1;
        const double dentro = lejos ? cerca + ancho - largo * 0.09 : cerca + largo * 0.09;
        const i32 a = Entero(hondo ? dentro : junto), b = Entero(inicio + largo * parte);
        ExtFloodFill(s, vertical ? a : b, vertical ? b : a, 0, 0);
    }
}

void Entrelazada(Superficie& s, const Pieza& z) {
    const i32 columna = z.XBien / Gbl.AnchoCelda, fila = z.YBien / Gbl.AltoCelda;
    const i32 ultima = Gbl.PiezasPorLado - 1;
    const i32 t = (columna + fila) % 2 * Gbl.AnchoPieza;
    const i32 i = columna == 0 ? Gbl.SalienteX : 0, d = columna == ultima ? Gbl.SalienteX : 0;
    const i32 a = fila == 0 ? Gbl.SalienteY : 0, b = fila == ultima ? Gbl.SalienteY : 0;
    BitBlt(s, i, a, Gbl.AnchoPieza - i - d, Gbl.AltoPieza - a - b, Pic_Temporal, t + i, a, SRCCOPY);
    if (columna == 0) Lado(s, true, false);
    if (columna == ultima) Lado(s, true, true);
    if (fila == 0) Lado(s, false, false);
    if (fila == ultima) Lado(s, false, true);
    // Nothing of a piece lies outside the picture.
    for (i32 y = 0; y < Gbl.AltoPieza; ++y)
        for (i32 x = 0; x < Gbl.AnchoPieza; ++x)
            if (z.XBien - Gbl.SalienteX + x >= Gbl.AnchoPuzzle ||
                z.YBien - Gbl.SalienteY + y >= Gbl.AltoPuzzle)
                s.PSet(x, y, 0xFFFFFF);
}

// The mask of an unturned jigsaw piece.
Superficie MascaraDirecta(i16 piece) {
    Superficie s = Hoja();
    const double w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    const i32 rx = Gbl.RecorteX, ry = Gbl.RecorteY;
    switch (Gbl.FormaPiezas) {
        case 0:
            Caja(s, 0, 0, Gbl.AnchoCelda - 1, Gbl.AltoCelda - 1);
            break;
        case 3:
            Triangulo(s, piece);
            break;
        case 4:
            s.Circle(0, w / 2, h / 2, Gbl.RadioForma);
            break;
        case 5:
            Caja(s, rx, ry, Gbl.AnchoCelda - rx - 1, Gbl.AltoCelda - ry - 1);
            break;
        case 6:
        case 7:
            Elipse(s, Gbl.RadioForma, Gbl.Aspecto);
            if (Gbl.FormaPiezas == 7) Elipse(s, Gbl.RadioForma2, Gbl.Aspecto2);
            break;
        default:
            Entrelazada(s, Gbl.Piezas[piece]);
            break;
    }
    if (Gbl.FormaPiezas >= 4 && piece % 2 == 0)
        BitBlt(s, 0, 0, s.Width(), s.Height(), s, 0, 0, NOTSRCCOPY);
    return s;
}

// The picture through the mask, by the two raster operations.
Superficie CaraDirecta(const Superficie& mascara, const Pieza& z) {
    Superficie s(mascara.Width(), mascara.Height());
    BitBlt(s, 0, 0, s.Width(), s.Height(), Pic_Bitmap, z.XBien - Gbl.SalienteX,
           z.YBien - Gbl.SalienteY, SRCCOPY);
    BitBlt(s, 0, 0, s.Width(), s.Height(), mascara, 0, 0, DSNA);
    return s;
}

}  // namespace

class Moldes : public MesaMoviles {
protected:
    i32 Azar(i32 desde, i32 hasta) {
        return desde + static_cast<i32>(azar_() % static_cast<unsigned>(hasta - desde + 1));
    }
    void ComparaMoviles(i16 piece) {
        Superficie mascara = MascaraDirecta(piece);
        Superficie cara = CaraDirecta(mascara, Gbl.Piezas[piece]);
        const i16 giro = static_cast<i16>(Azar(0, 3));
        Gbl.Piezas[piece].Giro = giro;
        if (giro != 0) {
            GiraSuperficie(mascara, giro);
            GiraSuperficie(cara, giro);
        }
        PreparaPieza(piece);
        Compara(mascara, cara, piece);
    }
    void Compara(const Superficie& mascara, const Superficie& cara, i16 piece) {
        ASSERT_EQ(Pic_PiezaMascara.Width(), mascara.Width());
        ASSERT_EQ(Pic_PiezaMascara.Dibujo().Pixeles, mascara.Dibujo().Pixeles)
            << "mask, shape " << Gbl.FormaPiezas << ", piece " << piece;
        ASSERT_EQ(Pic_PiezaImagen.Dibujo().Pixeles, cara.Dibujo().Pixeles)
            << "image, shape " << Gbl.FormaPiezas << ", piece " << piece;
    }
    void Moviles() {
        Gbl.SalienteX = Gbl.SalienteY = 0;
        const i16 lado = static_cast<i16>(Azar(1, 7));
        Monta(static_cast<i16>(Azar(0, 7)), lado, Azar(320, 500), Azar(240, 400), Azar(0, 1) == 1);
        for (i32 k = 0; k < 30 && !HasFatalFailure(); ++k)
            ComparaMoviles(static_cast<i16>(Azar(1, Gbl.NumPiezas)));
    }
    void SinSaliente(i16 juego) {
        Gbl.JuegoActual = juego;
        Gbl.SalienteX = Gbl.SalienteY = 0;
        Gbl.DibujarBorde = Azar(0, 1) == 1;
        Pic_Bitmap.Tamano(500, 500);
        Pic_Bitmap.PonPicture(nullptr);
        Pic_Bitmap.PonBackColor(0x123456);
    }
    void Deslizante() {
        SinSaliente(JuegoDeslizantes);
        const i16 n = static_cast<i16>(Azar(30, 150));
        Gbl.AnchoCelda = Gbl.AltoCelda = Gbl.AnchoPieza = Gbl.AltoPieza = n;
        Gbl.ColorPiezasClaro = static_cast<Color>(Azar(0, 0xFFFFFF));
        Gbl.Piezas.Redimensiona(8);
        Superficie s = Hoja();
        const i32 c = n / 30, d = n - 1, e = n - c - 1;
        if (Gbl.DibujarBorde)
            Camino(s, {{c, d}, {0, e}, {0, c}, {c, 0}, {e, 0}, {d, c}, {d, e}, {e, d}}, n / 2,
                   n / 2);
        else
            Caja(s, 0, 0, d, d);
        PreparaPieza(1);
        ASSERT_EQ(Pic_PiezaMascara.Dibujo().Pixeles, s.Dibujo().Pixeles) << n;
        const Pixel borde = Gbl.DibujarBorde ? PixelDe(Gbl.ColorPiezasClaro) : 0x563412U;
        ASSERT_EQ(Pic_PiezaImagen.Fila(n / 2)[1], borde) << "the bevel in its colour";
    }
    void Tangram() {
        SinSaliente(JuegoTangram);
        CalculaTamanos();
        Gbl.Piezas.Redimensiona(7);
        const Color color = static_cast<Color>(Azar(0, 0xFFFFFF));
        for (i32 k = 0; k < 20; ++k) {
            const i16 p = static_cast<i16>(Azar(1, 7));
            Pieza& z = Gbl.Piezas[p];
            z.Giro = static_cast<i16>(Azar(0, 7));
            z.Volteo = static_cast<i16>(Azar(0, 1));
            Pic_PiezaImagen.ForeColor = color;
            PreparaPieza(p);
            const auto fila = static_cast<std::size_t>(p);
            std::vector<std::pair<double, double>> esquinas;
            for (i32 i = 1; i <= (p <= 5 ? 3 : 4); ++i)
                esquinas.push_back({Gbl.TVerticeX[fila][i], Gbl.TVerticeY[fila][i]});
            Superficie s = Hoja();
            Camino(s, esquinas, Gbl.XInterior, Gbl.YInterior);
            Superficie cara = CaraDirecta(s, z);
            cara.ForeColor = color;
            if (Gbl.DibujarBorde) Camino(cara, esquinas, -1, -1);
            Compara(s, cara, p);
        }
    }

private:
    std::mt19937 azar_{20};
};

TEST_F(Moldes, AMaskFromAMouldIsTheMaskDrawnDirectly) {
    for (i32 vuelta = 0; vuelta < 80 && !HasFatalFailure(); ++vuelta) {
        const i32 que = Azar(0, 9);
        if (que == 0) Deslizante();
        if (que == 1) Tangram();
        if (que > 1) Moviles();
    }
}

TEST_F(Moldes, NoMouldOutlivesTheParameterItWasDrawnFor) {
    Monta(4, 4, 400, 300);
    PreparaPieza(1);
    ++Gbl.RadioForma;
    ComparaMoviles(1);
    Monta(5, 4, 400, 300);
    PreparaPieza(2);
    --Gbl.RecorteX;
    ComparaMoviles(2);
    ++Gbl.RecorteY;
    ComparaMoviles(2);
    Monta(7, 4, 400, 300);
    PreparaPieza(1);
    Gbl.Aspecto *= 0.8;
    ComparaMoviles(1);
    Gbl.Aspecto2 *= 1.2;
    ComparaMoviles(1);
    ++Gbl.RadioForma2;
    ComparaMoviles(1);
}

TEST_F(Moldes, ATemplateDrawnAnewReachesThePiecesOnTheEdge) {
    Monta(1, 4, 400, 300);
    PreparaPieza(1);
    ASSERT_TRUE(Negro(60, 70));
    Pic_Temporal.PSet(60, 70, 0xFFFFFF);
    PreparaPieza(1);
    EXPECT_FALSE(Negro(60, 70));
    ComparaMoviles(1);
}

TEST_F(Moldes, TemplatesThatAreMissingGiveNoPixelsAndNoCrash) {
    Monta(2, 4, 400, 300);
    Pic_Temporal.Tamano(0, 0);
    for (const i16 p : {i16{1}, i16{6}}) {
        PreparaPieza(p);
        EXPECT_EQ(Pic_PiezaMascara.Width(), Gbl.AnchoPieza);
        EXPECT_EQ(Pic_PiezaImagen.Height(), Gbl.AltoPieza);
    }
    EXPECT_FALSE(Negro(Gbl.AnchoPieza / 2, Gbl.AltoPieza / 2)) << "piece 6 has no edge";
}

}  // namespace tessario
