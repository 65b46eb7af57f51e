// SPDX-License-Identifier: GPL-3.0-or-later
// The cut of the eight shapes: lines and templates drawn here a second time, figure by figure from
// their tables, and compared pixel for pixel on many grids.
#include <set>

#include "apoyo/MesaMoviles.h"

namespace tessario {

namespace {

constexpr double GRADOS = 0.017453294444444444;
constexpr Color LINEA = 0x10F0A0;

// Cells by number, size of the picture: level, upright and square cells, odd and even, small and
// large, with and without a rest of the picture beyond the last cell.
struct Cuadricula {
    i16 lado;
    i32 ancho, alto;
};
constexpr Cuadricula CUADRICULAS[] = {
    {1, 121, 91},   {2, 200, 170},  {2, 301, 303},  {3, 81, 81},    {3, 241, 400},  {3, 317, 150},
    {4, 108, 84},   {4, 333, 471},  {5, 400, 300},  {5, 505, 255},  {5, 281, 517},  {6, 438, 330},
    {6, 331, 335},  {7, 350, 350},  {7, 602, 301},  {8, 640, 480},  {8, 321, 489},  {9, 453, 399},
    {10, 510, 380}, {10, 307, 605}, {11, 583, 407}, {12, 500, 500}, {13, 560, 430}, {13, 300, 533}};

bool SonIguales(const Superficie& hecha, const Superficie& literal, const char* que) {
    if (hecha.Width() != literal.Width() || hecha.Height() != literal.Height()) {
        ADD_FAILURE() << que << " is " << hecha.Width() << " by " << hecha.Height();
        return false;
    }
    if (hecha.Dibujo().Pixeles == literal.Dibujo().Pixeles) return true;
    i32 n = 0;
    for (i32 y = 0; y < hecha.Height(); ++y)
        for (i32 x = 0; x < hecha.Width(); ++x)
            if (hecha.Fila(y)[x] != literal.Fila(y)[x] && ++n == 1)
                ADD_FAILURE() << que << " differs first at (" << x << ", " << y << ")";
    ADD_FAILURE() << que << " differs at " << n << " pixels";
    return false;
}

// The pens of the tables, angles in degrees.
void Arco(Superficie& s, double x, double y, double r, double desde, double hasta, double aspecto) {
    s.Circle(448, x, y, r, 0, desde * GRADOS, hasta * GRADOS, aspecto);
}
void Redondo(Superficie& s, double x, double y, double r, double desde, double hasta) {
    s.Circle(192, x, y, r, 0, desde * GRADOS, hasta * GRADOS);
}
void Caja(Superficie& s, i32 x1, i32 y1, i32 x2, i32 y2) {
    s.Line(20, x1, y1, x2, y2);
}

// ---------------------------------------------------------------- lines

struct Lineas {
    Superficie s;
    i32 w = Gbl.AnchoCelda, h = Gbl.AltoCelda, N = Gbl.PiezasPorLado;
    double radio = 0, radio2 = 0, aspecto = 0, aspecto2 = 0;
    i32 rx = 0, ry = 0;

    Lineas() : s(Gbl.AnchoPuzzle, Gbl.AltoPuzzle) {
        s.PonPicture(Pic_FonTamModi.Picture());
        s.ForeColor = LINEA;
    }
    template <class F>
    void Celdas(F f) {
        for (i32 fila = 0; fila < N; ++fila)
            for (i32 columna = 0; columna < N; ++columna) {
                const i32 x = columna * w, y = fila * h;
                f(fila, columna, x, y);
            }
    }
    void CajaDe(i32 x, i32 y) { Caja(s, x, y, x + w - 1, y + h - 1); }
    void Rectangulos() {
        Celdas([&](i32, i32, i32 x, i32 y) { CajaDe(x, y); });
    }
    void Curvados() {
        aspecto = 0.3;
        aspecto2 = 3.0;
        Caja(s, 0, 0, N * w - 1, N * h - 1);
        Celdas([&](i32 fila, i32 columna, i32 x, i32 y) {
            const bool a = (fila + columna) % 2 == 0;
            const double mw = (w - 1) * 0.5, mh = (h - 1) * 0.5;
            if (fila > 0) Arco(s, x + mw, y, mw, a ? 180 : 0, a ? 0 : 180, 0.3);
            if (columna < N - 1) Arco(s, x + w - 1, y + mh, mh, a ? 270 : 90, a ? 90 : 270, 3.0);
            if (fila < N - 1) Arco(s, x + mw, y + h - 1, mw, a ? 0 : 180, a ? 180 : 0, 0.3);
            if (columna > 0) Arco(s, x, y + mh, mh, a ? 90 : 270, a ? 270 : 90, 3.0);
        });
    }
    void Irregulares(i32 ajusteX, i32 ajusteY) {
        Caja(s, 0, 0, N * w - 1, N * h - 1);
        for (i32 fila = 1; fila < N; ++fila) {
            i32 signo = fila % 2 == 0 ? 1 : -1;
            for (i32 columna = 0; columna < N; ++columna, signo = -signo)
                for (const i32 menos : {0, 1}) {
                    const double x = columna * w, y = fila * h - menos;
                    Arco(s, x + w * 0.22, y, w * 0.22, 89 * signo + 90, 89 * signo + 270, 0.35);
                    Redondo(s, x + w * 0.5, y - w * 0.09 * signo, w * 0.115, 90 * signo + 210,
                            95 * signo + 150);
                    Arco(s, x + w * 0.78 - ajusteX, y, w * 0.22, 89 * signo + 90, 89 * signo + 270,
                         0.35);
                }
        }
        for (i32 columna = 1; columna < N; ++columna) {
            i32 signo = columna % 2 == 0 ? 1 : -1;
            for (i32 fila = 0; fila < N; ++fila, signo = -signo)
                for (const i32 menos : {0, 1}) {
                    const double x = columna * w - menos, y = fila * h;
                    Arco(s, x, y + h * 0.22, h * 0.22, 180 - 90 * signo, 90 * signo + 180, 2.85);
                    Redondo(s, x + h * 0.09 * signo, y + h * 0.5, h * 0.115, 90 * signo + 130,
                            240 - 90 * signo);
                    Arco(s, x, y + h * 0.78 - ajusteY, h * 0.22, 180 - 90 * signo, 90 * signo + 180,
                         2.85);
                }
        }
    }
    void Triangulos() {
        Celdas([&](i32, i32, i32 x, i32 y) {
            CajaDe(x, y);
            s.Line(4, x, y, x + w - 1, y + h - 1);
            s.Line(4, x + 1, y, x + w, y + h - 1);
            s.Line(4, x + w - 1, y, x, y + h - 1);
            s.Line(4, x + w - 2, y, x, y + h - 2);
        });
    }
    void Circulos() {
        radio = std::floor(0.35 * std::min(w, h));
        Celdas([&](i32, i32, i32 x, i32 y) {
            CajaDe(x, y);
            s.Circle(0, x + w / 2.0, y + h / 2.0, radio);
            s.Circle(0, x + w / 2.0, y + h / 2.0, radio + 1);
        });
    }
    void Interiores() {
        ry = Entero(h * 0.2);
        rx = Entero(w * 0.2);
        Celdas([&](i32, i32, i32 x, i32 y) {
            CajaDe(x, y);
            Caja(s, x + rx, y + ry, x + w - rx - 1, y + h - ry - 1);
            Caja(s, x + rx - 1, y + ry - 1, x + w - rx, y + h - ry);
        });
    }
    void Elipses() {
        radio = Entero(0.35 * std::max(w, h));
        aspecto = w < h ? radio / (w * 0.35) : (h * 0.35) / radio;
        Celdas([&](i32, i32, i32 x, i32 y) {
            CajaDe(x, y);
            s.Circle(256, x + w / 2.0, y + h / 2.0, radio, 0, 0, 0, aspecto);
            s.Circle(256, x + w / 2.0, y + h / 2.0, radio + 1, 0, 0, 0, aspecto);
        });
    }
    void Estrellas() {
        radio = Entero(h * 0.35);
        radio2 = Entero(w * 0.35);
        aspecto = radio / (radio2 * 0.5);
        aspecto2 = (radio * 0.5) / radio2;
        Celdas([&](i32, i32, i32 x, i32 y) {
            CajaDe(x, y);
            const double cx = x + w / 2.0, cy = y + h / 2.0;
            Arco(s, cx, cy, radio, 30, 150, aspecto);
            Arco(s, cx, cy, radio, 210, 330, aspecto);
            Arco(s, cx, cy, radio2, 120, 240, aspecto2);
            Arco(s, cx, cy, radio2, 300, 60, aspecto2);
            Arco(s, cx, cy, radio + 1, 30, 150, aspecto);
            Arco(s, cx, cy, radio + 1, 210, 330, aspecto);
            Arco(s, cx, cy, radio2 + 1, 120, 240, aspecto2);
            Arco(s, cx, cy, radio2 + 1, 300, 60, aspecto2);
        });
    }
};

// ---------------------------------------------------------------- templates

struct Plantilla {
    Superficie s;
    double w = Gbl.AnchoCelda, h = Gbl.AltoCelda;
    i32 N = Gbl.PiezasPorLado;
    i32 sx, sy, anchoCaja, altoCaja, ajusteX = 0, ajusteY = 0;
    double x = 0, y = 0;

    explicit Plantilla(double saliente)
        : sx(Entero(h * saliente)),
          sy(Entero(w * saliente)),
          anchoCaja(Gbl.AnchoCelda + 2 * sx),
          altoCaja(Gbl.AltoCelda + 2 * sy) {
        s.FillSolido = true;
        s.Tamano(Entero(2.1 * anchoCaja), Entero(1.1 * altoCaja));
    }
    void Ve(bool b) {
        x = b ? anchoCaja + sx : sx;
        y = sy;
    }
    void Rellena() { ExtFloodFill(s, Entero(x + w / 2), Entero(y + h / 2), 0, 0); }
    // The two ends of a tab stop 0.75 pixels short, so that a small tab keeps its neck open.
    void Lengueta(double cx, double cy, double r, double desde, double hasta) {
        const double corto = 0.75 / r / GRADOS;
        Redondo(s, cx, cy, r, desde + corto, hasta - corto);
    }
    void Joroba(double cx, double cy, double desde, double hasta) {
        Arco(s, cx, cy, w * 0.22, desde, hasta, 0.35);
    }
    void JorobaDeLado(double cx, double cy, double desde, double hasta) {
        Arco(s, cx, cy, h * 0.22, desde, hasta, 2.85);
    }
    void Curvada(bool b) {
        Ve(b);
        const double mw = (w - 1) * 0.5, mh = (h - 1) * 0.5;
        Arco(s, x + mw, y, mw, b ? 0 : 180, b ? 180 : 0, 0.3);
        Arco(s, x + w - 1, y + mh, mh, b ? 79 : 270, b ? 270 : 90, 3.0);
        Arco(s, x + mw, y + h - 1, mw, b ? 180 : 0, b ? 0 : 191, 0.3);
        Arco(s, x, y + mh, mh, b ? 270 : 90, b ? 90 : 270, 3.0);
        Rellena();
    }
    void Esquinas() {
        s.PSet(x, y, 0);
        s.PSet(x + w, y, 0);
        s.PSet(x, y + h, 0);
        s.PSet(x + w, y + h, 0);
    }
    void IrregularA() {
        Ve(false);
        Esquinas();
        Joroba(x + w * 0.22, y, 180, 15);
        Lengueta(x + w * 0.5, y - w * 0.09, w * 0.115, 290, 250);
        Joroba(x + w * 0.78, y, 165, 0);
        JorobaDeLado(x, y + h * 0.22, 90, 350);
        Lengueta(x + h * 0.09, y + h * 0.5, h * 0.115, 230, 130);
        JorobaDeLado(x, y + h * 0.78, 10, 270);
        JorobaDeLado(x + w, y + h * 0.22, 190, 90);
        Lengueta(x + w - h * 0.09, y + h * 0.5, h * 0.115, 50, 310);
        JorobaDeLado(x + w, y + h * 0.78, 270, 170);
        Joroba(x + w * 0.22, y + h, 345, 180);
        Lengueta(x + w * 0.5, y + h + w * 0.09, w * 0.115, 110, 70);
        Joroba(x + w * 0.78, y + h, 0, 195);
        Rellena();
    }
    void IrregularB() {
        Ve(true);
        Esquinas();
        Joroba(x + w * 0.22, y, 0, 180);
        Lengueta(x + w * 0.5, y + w * 0.09, w * 0.12, 120 - N, N + 65);
        Joroba(x + w * 0.78, y, 0, 180);
        JorobaDeLado(x, y + h * 0.22, 250, 90);
        Lengueta(x - h * 0.09, y + h * 0.5, h * 0.115, 10, 350);
        JorobaDeLado(x, y + h * 0.78, 270, 110);
        JorobaDeLado(x + w, y + h * 0.22, 90, 290);
        Lengueta(x + w + h * 0.09, y + h * 0.5, h * 0.115, 190, 170);
        JorobaDeLado(x + w, y + h * 0.78, 70, 270);
        Joroba(x + w * 0.22, y + h, 180, 0);
        Lengueta(x + w * 0.5, y + h - w * 0.09, w * 0.12, 300 - N, N + 245);
        Joroba(x + w * 0.78, y + h, 180, 0);
        Rellena();
    }
    void Repara() {
        const i32 ancho = s.Width(), alto = s.Height();
        if (s.Point(anchoCaja / 2, altoCaja) == 0) {
            BitBlt(s, 0, altoCaja / 2, ancho, altoCaja / 2 + 2, s, 0, altoCaja / 2 + 1, 0xCC0020);
            ajusteY = 1;
        }
        if (s.Point(anchoCaja * 2, altoCaja / 2) == 0) {
            const i32 b = anchoCaja * 3 / 2, a = anchoCaja / 2;
            BitBlt(s, b, 0, anchoCaja / 2 + 2, alto, s, b + 1, 0, 0xCC0020);
            BitBlt(s, a, 0, anchoCaja / 2 - 1, alto, s, a + 1, 0, 0xCC0020);
            ajusteX = 1;
        }
    }
};

class CorteLiteral : public MesaMoviles {
protected:
    void SetUp() override {
        MesaMoviles::SetUp();
        Gbl.ColorContraste = LINEA;
    }
    // Each grid of this shape on the table, then the comparison, until one fails.
    template <class F>
    void PorCuadriculas(i16 forma, F compara) {
        for (const Cuadricula& c : CUADRICULAS) {
            SCOPED_TRACE(std::to_string(c.lado) + " a side, " + std::to_string(c.ancho) + " by " +
                         std::to_string(c.alto));
            Monta(forma, c.lado, c.ancho, c.alto, true);
            compara();
            if (HasFailure()) return;
        }
    }
};

}  // namespace

TEST_F(CorteLiteral, LinesOfRectangles) {
    PorCuadriculas(0, [] {
        Lineas l;
        l.Rectangulos();
        SonIguales(Pic_Bitmap, l.s, "the cut");
    });
}

TEST_F(CorteLiteral, LinesOfCurvedPieces) {
    PorCuadriculas(1, [] {
        Lineas l;
        l.Curvados();
        SonIguales(Pic_Bitmap, l.s, "the cut");
        EXPECT_DOUBLE_EQ(Gbl.Aspecto, l.aspecto);
        EXPECT_DOUBLE_EQ(Gbl.Aspecto2, l.aspecto2);
    });
}

TEST_F(CorteLiteral, LinesOfIrregularPieces) {
    PorCuadriculas(2, [] {
        Lineas l;
        l.Irregulares(Gbl.AjusteX, Gbl.AjusteY);
        SonIguales(Pic_Bitmap, l.s, "the cut");
    });
}

TEST_F(CorteLiteral, LinesOfTriangles) {
    PorCuadriculas(3, [] {
        Lineas l;
        l.Triangulos();
        SonIguales(Pic_Bitmap, l.s, "the cut");
    });
}

TEST_F(CorteLiteral, LinesOfCircles) {
    PorCuadriculas(4, [] {
        Lineas l;
        l.Circulos();
        SonIguales(Pic_Bitmap, l.s, "the cut");
        EXPECT_EQ(Gbl.RadioForma, l.radio);
    });
}

TEST_F(CorteLiteral, LinesOfInnerRectangles) {
    PorCuadriculas(5, [] {
        Lineas l;
        l.Interiores();
        SonIguales(Pic_Bitmap, l.s, "the cut");
        EXPECT_EQ(Gbl.RecorteX, l.rx);
        EXPECT_EQ(Gbl.RecorteY, l.ry);
    });
}

TEST_F(CorteLiteral, LinesOfEllipses) {
    PorCuadriculas(6, [] {
        Lineas l;
        l.Elipses();
        SonIguales(Pic_Bitmap, l.s, "the cut");
        EXPECT_EQ(Gbl.RadioForma, l.radio);
        EXPECT_DOUBLE_EQ(Gbl.Aspecto, l.aspecto);
    });
}

TEST_F(CorteLiteral, LinesOfStars) {
    PorCuadriculas(7, [] {
        Lineas l;
        l.Estrellas();
        SonIguales(Pic_Bitmap, l.s, "the cut");
        EXPECT_EQ(Gbl.RadioForma, l.radio);
        EXPECT_EQ(Gbl.RadioForma2, l.radio2);
        EXPECT_DOUBLE_EQ(Gbl.Aspecto, l.aspecto);
        EXPECT_DOUBLE_EQ(Gbl.Aspecto2, l.aspecto2);
    });
}

TEST_F(CorteLiteral, TemplatesOfCurvedPieces) {
    PorCuadriculas(1, [] {
        Plantilla p(0.17);
        p.Curvada(false);
        p.Curvada(true);
        SonIguales(Pic_Temporal, p.s, "the templates");
        EXPECT_EQ(Gbl.AnchoPieza, p.anchoCaja);
        EXPECT_EQ(Gbl.AltoPieza, p.altoCaja);
    });
}

TEST_F(CorteLiteral, TemplatesOfIrregularPiecesAndTheirSeamRepair) {
    std::set<std::pair<i32, i32>> ajustes;
    PorCuadriculas(2, [&] {
        Plantilla p(0.205);
        p.IrregularA();
        p.IrregularB();
        p.Repara();
        SonIguales(Pic_Temporal, p.s, "the templates");
        EXPECT_EQ(Gbl.AjusteX, p.ajusteX);
        EXPECT_EQ(Gbl.AjusteY, p.ajusteY);
        ajustes.emplace(p.ajusteX, p.ajusteY);
    });
    EXPECT_EQ(ajustes.size(), 4U) << "each repair with and without the other";
}

}  // namespace tessario
