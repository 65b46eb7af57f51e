// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of EMF records, each record made by hand: what of it reaches the painter.
#include <algorithm>
#include <bit>
#include <cmath>

#include "apoyo/Metaficheros.h"

namespace tessario {

namespace {

long long F(float v) {
    return std::bit_cast<u32>(v);
}

constexpr long long GEOMETRICA = 0x10000;
constexpr i32 ANCHO = 96, ALTO = 48;  // of the picture
constexpr long long PLUMA_NULA = 0x80000008, BROCHA_NULA = 0x80000005;

class RegistrosEmf : public Paseo {
protected:
    // A line drawn by the pen of one record.
    PlumaMeta Pluma(u32 tipo, const Campos& campos) {
        return Unica(Emf().R(tipo, campos).R(37, {1}).R(54, {20, 0}).Fin()).pluma;
    }
    // A pen of the newer kind: style, width, kind of brush, colour, hatch, lengths of its own.
    PlumaMeta Extendida(long long estilo, long long ancho, const Campos& resto = {0, ROJO, 0, 0}) {
        return Pluma(95, Une({1, 0, 0, 0, 0, estilo, ancho}, resto));
    }
};

// --- What is drawn with.

TEST_F(RegistrosEmf, PensOfTheOlderKind) {
    PlumaMeta q = Pluma(38, {1, 0, 3, 77, ROJO});
    EXPECT_EQ(q.Ancho, 3);
    EXPECT_EQ(q.Brocha.Tinta, TINTA_ROJA);
    EXPECT_FALSE(q.Fina);
    EXPECT_TRUE(q.Trazos.empty());
    q = Pluma(38, {1, 1, 1, 0, 0});
    EXPECT_TRUE(q.Fina);
    EXPECT_EQ(q.Trazos, (std::vector<double>{18, 6}));
    EXPECT_TRUE(q.HuecosConFondo);
    EXPECT_TRUE(Pluma(38, {1, 1, 4, 0, 0}).Trazos.empty()) << "wide ones are not dashed";
    EXPECT_TRUE(Pluma(38, {1, 6, 4, 0, 0}).Dentro);
    EXPECT_EQ(Pluma(38, {1, 0, -4, 0, 0}).Ancho, 4);
    ASSERT_TRUE(Bien(Emf().R(38, {1, 5, 1, 0, 0}).R(37, {1}).R(54, {9, 9}).Fin()));
    EXPECT_TRUE(p.notas.empty()) << "the pen that draws nothing";
}

TEST_F(RegistrosEmf, PensOfTheNewerKind) {
    PlumaMeta q = Extendida(GEOMETRICA | 0x2000 | 0x200, 5);
    EXPECT_EQ(q.Ancho, 5);
    EXPECT_EQ(q.Final, Extremo::Plano);
    EXPECT_EQ(q.Esquina, Junta::Inglete);
    EXPECT_EQ(q.Brocha.Tipo, BrochaMeta::Clase::Lisa);
    EXPECT_EQ(q.Brocha.Tinta, TINTA_ROJA);
    q = Extendida(GEOMETRICA | 0x1000 | 0x100, 5, {2, ROJO, 4, 0});
    EXPECT_EQ(q.Final, Extremo::Cuadrado);
    EXPECT_EQ(q.Esquina, Junta::Bisel);
    EXPECT_EQ(q.Brocha.Tipo, BrochaMeta::Clase::Trama);
    EXPECT_EQ(q.Brocha.Trama, 4);
    EXPECT_EQ(Extendida(GEOMETRICA, 5).Final, Extremo::Redondo);
    EXPECT_EQ(Extendida(GEOMETRICA, 5).Esquina, Junta::Redonda);
    EXPECT_EQ(Extendida(GEOMETRICA | 1, 5).Trazos, (std::vector<double>{15, 5}));
    EXPECT_EQ(Extendida(GEOMETRICA | 7, 2, {0, 0, 0, 2, 4, 6}).Trazos, (std::vector<double>{4, 6}));
    q = Extendida(7, 9, {0, 0, 0, 2, 4, 6});
    EXPECT_EQ(q.Ancho, 1) << "cosmetic";
    EXPECT_EQ(q.Trazos, (std::vector<double>{4, 6}));
    EXPECT_EQ(Extendida(8, 1).Trazos, (std::vector<double>{1, 1}));
    ASSERT_TRUE(Bien(
        Emf().R(95, {1, 0, 0, 0, 0, GEOMETRICA, 5, 1, 0, 0, 0}).R(37, {1}).R(54, {20, 0}).Fin()));
    EXPECT_TRUE(p.notas.empty()) << "filled with nothing";
}

TEST_F(RegistrosEmf, WidthsAndLengthsOfPensFollowTheScale) {
    Emf e;
    e.R(35, {F(2), 0, 0, F(2), 0, 0}).R(95, {1, 0, 0, 0, 0, GEOMETRICA | 7, 3, 0, 0, 0, 2, 4, 6});
    const PlumaMeta& q = Unica(e.R(37, {1}).R(54, {20, 0}).Fin()).pluma;
    EXPECT_EQ(q.Ancho, 6);
    EXPECT_EQ(q.Trazos, (std::vector<double>{8, 12}));
}

TEST_F(RegistrosEmf, DashesOfEachStyle) {
    const std::vector<double> finos[] = {{18, 6}, {3, 3}, {9, 6, 3, 6}, {9, 3, 3, 3, 3, 3}};
    const std::vector<double> anchos[] = {{15, 5}, {5, 5}, {15, 5, 5, 5}, {15, 5, 5, 5, 5, 5}};
    for (std::size_t k = 0; k < 4; ++k) {
        const auto estilo = static_cast<long long>(k + 1);
        EXPECT_EQ(Pluma(38, {1, estilo, 1, 0, 0}).Trazos, finos[k]) << estilo;
        EXPECT_EQ(Extendida(GEOMETRICA | estilo, 5).Trazos, anchos[k]) << estilo;
    }
    Emf e;
    e.R(35, {F(0.125F), 0, 0, F(0.125F), 0, 0}).R(95, {1, 0, 0, 0, 0, GEOMETRICA, 2, 0, 0, 0, 0});
    EXPECT_EQ(Unica(e.R(37, {1}).R(54, {90, 0}).Fin()).pluma.Ancho, 1) << "a pixel at least";
}

TEST_F(RegistrosEmf, APenIsFilledWithAPicture) {
    // One row of two pixels, blue and red.
    const Campos dib{40, 2, 1, 0x180001, 0, 0, 0, 0, 0, 0, 0x000000FF, 0x0000FF00};
    const Campos pluma{1, 56, 40, 96, 8, GEOMETRICA, 4, 5, 0, 0, 0, 0};
    const PlumaMeta q = Pluma(95, Une(pluma, dib));
    ASSERT_EQ(q.Brocha.Tipo, BrochaMeta::Clase::Dibujo);
    EXPECT_EQ(q.Brocha.Dibujo->Fila(0)[0], 0x0000FFU);
    EXPECT_EQ(q.Brocha.Dibujo->Ancho, 2);
}

TEST_F(RegistrosEmf, TheLimitOfMitres) {
    for (const auto& [valor, limite] : std::vector<std::pair<long long, double>>{
             {F(4), 4}, {7, 7}, {F(0.25F), 1}, {F(5000), 1000}}) {
        Emf e;
        EXPECT_EQ(Unica(e.R(58, {valor}).R(54, {20, 0}).Fin()).pluma.Inglete, limite);
    }
}

TEST_F(RegistrosEmf, Brushes) {
    const auto brocha = [&](const Campos& c) {
        return Unica(Emf().R(39, c).R(37, {1}).R(37, {PLUMA_NULA}).R(43, {0, 0, 9, 9}).Fin())
            .brocha;
    };
    EXPECT_EQ(brocha({1, 0, ROJO, 3}).Tipo, BrochaMeta::Clase::Lisa);
    EXPECT_EQ(brocha({1, 0, ROJO, 3}).Tinta, TINTA_ROJA);
    EXPECT_EQ(brocha({1, 2, ROJO, 3}).Tipo, BrochaMeta::Clase::Trama);
    EXPECT_EQ(brocha({1, 2, ROJO, 3}).Trama, 3);
    ASSERT_TRUE(Bien(
        Emf().R(39, {1, 1, ROJO, 0}).R(37, {1}).R(37, {PLUMA_NULA}).R(43, {0, 0, 9, 9}).Fin()));
    EXPECT_TRUE(p.notas.empty());
}

TEST_F(RegistrosEmf, BrushesOfPictures) {
    // Eight pixels of one bit, the left four set: black and white by their table, or by the text's
    // colours.
    const Campos dib{40, 8, 1, 0x10001, 0, 0, 0, 0, 0, 0, 0x000000, 0xFFFFFF, 0xF0};
    for (const u32 tipo : {93U, 94U}) {
        Emf e;
        e.R(tipo, Une({1, 0, 32, 48, 80, 4}, dib)).R(37, {1}).R(37, {PLUMA_NULA});
        const BrochaMeta b = Unica(e.R(43, {0, 0, 9, 9}).Fin()).brocha;
        ASSERT_EQ(b.Tipo, BrochaMeta::Clase::Dibujo);
        EXPECT_EQ(b.UnBit, tipo == 93);
        EXPECT_EQ(b.Dibujo->Ancho, 8);
        EXPECT_EQ(b.Dibujo->Fila(0)[3], tipo == 93 ? 1U : 0xFFFFFFU);
        EXPECT_EQ(b.Dibujo->Fila(0)[4], 0U);
    }
}

TEST_F(RegistrosEmf, Fonts) {
    // Height, width, turn, orientation, weight, four flags, qualities and pitch, name.
    Emf e;
    e.R(82, {1, -20, 7, 900, 0, 700, 0xA1010101, 0x31000000, 0x00430042, 0x00000041});
    e.R(37, {1}).R(84, {0, 0, 0, 0, 1, 0, 0, 5, 6, 1, 76, 0, 0, 0, 0, 0, 0, 'x'});
    EsLaLetraEntera(Unica(e.Fin()).texto.Fuente);
    for (int k = 0; k < 3; ++k) {
        Emf g;
        g.R(82, {1, 9, 0, 0, 0, 400, 1LL << (8 * k), 0, 0x00430042, 0}).R(37, {1});
        const FuenteMeta h = Unica(g.R(108, {0, 0, 1, 0x300, 1, 0, 0, 'x'}).Fin()).texto.Fuente;
        EXPECT_EQ(h.Cursiva, k == 0);
        EXPECT_EQ(h.Subrayada, k == 1);
        EXPECT_EQ(h.Tachada, k == 2);
    }
}

TEST_F(RegistrosEmf, Palettes) {
    constexpr long long INDICE = 0x01000000;
    Emf e;
    e.R(49, {1, 0x300 | 3 << 16, 0x111111, 0x222222, 0x0000FF}).R(48, {1});
    for (const long long i : {0, 1, 2, 3}) e.R(15, {1, 1, INDICE | i});
    e.R(50, {1, 1, 1, 0x444444}).R(15, {1, 1, INDICE | 1}).R(15, {1, 1, INDICE | 2});
    e.R(51, {1, 2}).R(15, {1, 1, INDICE | 2}).R(15, {1, 1, INDICE | 1});
    ASSERT_TRUE(Bien(e.Fin()));
    std::vector<Pixel> colores;
    for (const auto& n : p.notas) colores.push_back(n.tinta);
    EXPECT_EQ(colores, (std::vector<Pixel>{0x111111, 0x222222, TINTA_ROJA, 0x111111, 0x444444,
                                           TINTA_ROJA, 0x111111, 0x444444}));
}

// --- State and coordinates.

TEST_F(RegistrosEmf, Modes) {
    Emf e;
    e.R(13, {3, 5}).R(18, {1}).R(19, {2}).R(20, {7}).R(24, {ROJO}).R(25, {0xFF00});
    e.R(37, {PLUMA_NULA}).R(43, {0, 0, 9, 9});
    const auto& n = Unica(e.Fin());
    EXPECT_EQ(n.modos.OrigenBrocha, (Punto{3, 5}));
    EXPECT_FALSE(n.modos.Opaco);
    EXPECT_FALSE(n.alterno);
    EXPECT_EQ(n.modos.Rop2, 7);
    EXPECT_EQ(n.modos.Texto, TINTA_ROJA);
    EXPECT_EQ(n.modos.Fondo, 0x00FF00U);
    Emf f;
    f.R(18, {1}).R(18, {2}).R(19, {2}).R(19, {1}).R(20, {17}).R(20, {0});
    const auto& m = Unica(f.R(37, {PLUMA_NULA}).R(43, {0, 0, 9, 9}).Fin());
    EXPECT_TRUE(m.modos.Opaco);
    EXPECT_TRUE(m.alterno);
    EXPECT_EQ(m.modos.Rop2, 13) << "modes that there are not change nothing";
}

TEST_F(RegistrosEmf, WorldsAreComposedInTheirOrder) {
    const Campos doble{F(2), 0, 0, F(2), 0, 0}, aUnLado{F(1), 0, 0, F(1), F(10), 0};
    const auto donde = [&](const Campos& m, long long modo) {
        Emf e;
        e.R(35, aUnLado).R(36, Une(m, {modo})).R(15, {3, 4, 0});
        return Unica(e.Fin()).puntos.at(0);
    };
    EXPECT_EQ(donde(doble, 1), (PuntoD{3, 4})) << "none";
    EXPECT_EQ(donde(doble, 2), (PuntoD{16, 8})) << "first";
    EXPECT_EQ(donde(doble, 3), (PuntoD{26, 8})) << "last";
    EXPECT_EQ(donde(doble, 4), (PuntoD{6, 8})) << "instead";
}

TEST_F(RegistrosEmf, OriginsAndScalesOfWindowAndViewport) {
    const auto donde = [&](Emf& e) { return Unica(e.R(15, {10, 20, 0}).Fin()).puntos.at(0); };
    Emf a;
    a.R(10, {4, 6});
    EXPECT_EQ(donde(a), (PuntoD{6, 14}));
    Emf b;
    b.R(12, {4, 6});
    EXPECT_EQ(donde(b), (PuntoD{14, 26}));
    Emf c;
    c.R(17, {8}).R(9, {20, 40}).R(11, {20, 40}).R(32, {1, 2, 1, 4});
    EXPECT_EQ(donde(c), (PuntoD{20, 80}));
    Emf d;  // both ways alike: the smaller scale, from the upper left corner
    d.R(17, {7}).R(9, {10, 10}).R(11, {30, 20});
    EXPECT_EQ(donde(d), (PuntoD{20, 40}));
    Emf y;  // a device whose pixels are twice as high as broad
    Pon(y.Bytes(), 76, 480, 4);
    EXPECT_EQ(Unica(y.R(17, {2}).R(15, {100, -100, 0}).Fin()).puntos.at(0), (PuntoD{38, 38}));
    Emf z;  // until extents are set a unit is a tenth of a millimetre, upwards
    EXPECT_EQ(Unica(z.R(17, {7}).R(15, {100, -100, 0}).Fin()).puntos.at(0), (PuntoD{38, 38}));
    // The header told of 960 pixels on 254 millimetres.
    constexpr double POR_MM = 960.0 / 254;
    for (const auto& [modo, mm] : std::vector<std::pair<long long, double>>{
             {2, 0.1}, {3, 0.01}, {4, 0.254}, {5, 0.0254}, {6, 25.4 / 1440}}) {
        Emf f;
        const PuntoD q = Unica(f.R(17, {modo}).R(15, {1000, -1000, 0}).Fin()).puntos.at(0);
        const double esperada = std::floor(1000 * mm * POR_MM + 0.5);
        EXPECT_EQ(q, (PuntoD{esperada, esperada})) << modo;
    }
}

// --- Figures.

TEST_F(RegistrosEmf, AnArcByItsAngles) {
    Emf e;
    e.R(27, {1, 2}).R(41, {50, 24, 10, F(0), F(90)}).R(54, {90, 40});
    ASSERT_TRUE(Bien(e.Fin()));
    ASSERT_EQ(p.notas.size(), 2U);
    const Puntos& q = p.notas[0].puntos;
    EXPECT_EQ(q.front(), (PuntoD{1, 2})) << "a line leads there";
    EXPECT_EQ(q[1], (PuntoD{60, 24}));
    EXPECT_NEAR(q.back().x, 50, 1e-6);
    EXPECT_NEAR(q.back().y, 14, 1e-6);
    EXPECT_EQ(p.notas[1].puntos, (Puntos{{50, 14}, {90, 40}})) << "and goes on from its end";
}

TEST_F(RegistrosEmf, ArcsBetweenTwoRays) {
    // A circle about (20, 20) of radius 10, from its right end to its top.
    const Campos lugar{10, 10, 31, 31, 100, 20, 20, -100};
    const auto arco = [&](u32 tipo, long long sentido) {
        Emf e;
        return Unica(e.R(57, {sentido}).R(37, {BROCHA_NULA}).R(tipo, lugar).Fin()).figura.at(0);
    };
    const auto cerca = [](PuntoD a, PuntoD b) { return std::hypot(a.x - b.x, a.y - b.y) < 0.01; };
    const auto pasaPor = [&](const Contorno& c, double x, double y) {
        return std::any_of(c.Puntos.begin(), c.Puntos.end(),
                           [&](PuntoD q) { return std::hypot(q.x - x, q.y - y) < 1; });
    };
    const Contorno suelto = arco(45, 1);
    EXPECT_TRUE(cerca(suelto.Puntos.front(), {30, 20}));
    EXPECT_TRUE(cerca(suelto.Puntos.back(), {20, 10}));
    EXPECT_FALSE(suelto.Cerrado);
    EXPECT_FALSE(pasaPor(suelto, 20, 30));
    EXPECT_TRUE(pasaPor(arco(45, 2), 20, 30)) << "the long way";
    const Contorno cuerda = arco(46, 1);
    EXPECT_TRUE(cuerda.Cerrado);
    EXPECT_TRUE(cerca(cuerda.Puntos.front(), {30, 20}));
    const Contorno tarta = arco(47, 1);
    EXPECT_TRUE(tarta.Cerrado);
    EXPECT_TRUE(cerca(tarta.Puntos.front(), {20, 20}));
    const Contorno seguido = arco(55, 1);
    EXPECT_TRUE(cerca(seguido.Puntos.front(), {0, 0}));
    EXPECT_TRUE(cerca(seguido.Puntos[1], {30, 20}));
    EXPECT_FALSE(seguido.Cerrado);
}

TEST_F(RegistrosEmf, FiguresWithShortPointsAreTheSameFigures) {
    const Puntos q{{10, 20}, {30, -4}, {50, 40}, {60, 20}};
    Campos largos, cortos;
    for (const PuntoD& v : q) {
        const auto x = static_cast<long long>(v.x), y = static_cast<long long>(v.y);
        largos.insert(largos.end(), {x, y});
        cortos.push_back((x & 0xFFFF) | (y & 0xFFFF) << 16);
    }
    const auto notas = [&](u32 tipo, const Campos& c) {
        Emf e;
        EXPECT_TRUE(Bien(e.R(27, {1, 1}).R(tipo, c).R(54, {5, 5}).Fin()));
        std::vector<Puntos> v;
        for (const auto& n : p.notas) v.push_back(n.puntos);
        return v;
    };
    constexpr std::pair<u32, u32> PARES[] = {{2, 85}, {3, 86}, {4, 87}, {5, 88}, {6, 89}};
    for (const auto& [largo, corto] : PARES) {
        const auto a = notas(largo, Une({0, 0, 0, 0, 4}, largos));
        EXPECT_EQ(a, notas(corto, Une({0, 0, 0, 0, 4}, cortos))) << largo;
        ASSERT_FALSE(a.empty());
        const bool sigue = largo == 5 || largo == 6;
        EXPECT_EQ(a[0].front(), sigue ? (PuntoD{1, 1}) : q[0]) << largo;
    }
    for (const auto& [largo, corto] : {std::pair{7U, 90U}, {8U, 91U}}) {
        const Campos partes{0, 0, 0, 0, 2, 4, 2, 2};
        const auto a = notas(largo, Une(partes, largos));
        EXPECT_EQ(a, notas(corto, Une(partes, cortos))) << largo;
        EXPECT_EQ(a.at(0), q) << largo;
    }
    // Line, then the beginning of another figure and a line that closes it.
    const Campos tipos{0x03020602};
    const auto a = notas(56, Une(Une({0, 0, 0, 0, 4}, largos), tipos));
    EXPECT_EQ(a, notas(92, Une(Une({0, 0, 0, 0, 4}, cortos), tipos)));
    EXPECT_EQ(a.at(0), (Puntos{{1, 1}, {10, 20}, {30, -4}, {50, 40}, {60, 20}}));
    EXPECT_EQ(a.at(1), (Puntos{{30, -4}, {5, 5}})) << "closed: the pen is back at its beginning";
}

TEST_F(RegistrosEmf, FillsUpToAColourOrOverOne) {
    for (const long long modo : {0, 1}) {
        const auto& n = Unica(Emf().R(53, {7, 8, ROJO, modo}).Fin());
        EXPECT_EQ(n.puntos, (Puntos{{7, 8}}));
        EXPECT_EQ(n.tinta, TINTA_ROJA);
        EXPECT_EQ(n.hastaBorde, modo == 0);
    }
}

TEST_F(RegistrosEmf, ABoxWithRoundedCorners) {
    Emf e;
    e.R(37, {BROCHA_NULA}).R(44, {10, 10, 51, 31, 8, 4});
    const Puntos q = Unica(e.Fin()).puntos;
    double izq = 99, arr = 99;
    for (const PuntoD& v : q) {
        izq = std::min(izq, v.x);
        arr = std::min(arr, v.y);
        EXPECT_FALSE(v.x < 11 && v.y < 10.5) << "a corner is cut off";
    }
    EXPECT_NEAR(izq, 10, 0.01);
    EXPECT_NEAR(arr, 10, 0.01);
    const auto hay = [&](double x, double y) {
        return std::any_of(q.begin(), q.end(), [&](PuntoD v) {
            return std::abs(v.x - x) < 0.01 && std::abs(v.y - y) < 0.01;
        });
    };
    EXPECT_TRUE(hay(14, 10)) << "half of 8 from the side";
    EXPECT_TRUE(hay(10, 12)) << "half of 4 from above";
}

// --- Paths.

TEST_F(RegistrosEmf, PathsAreDrawnAtTheirEnd) {
    const auto con = [&](u32 tipo) {
        Emf e;
        e.R(59, {}).R(27, {10, 10}).R(54, {20, 10}).R(54, {20, 20}).R(61, {}).R(60, {});
        EXPECT_TRUE(Bien(e.R(tipo, {0, 0, 0, 0}).R(64, {0, 0, 0, 0}).Fin()));
        std::string clases;
        for (const auto& n : p.notas) clases += n.clase;
        return clases;
    };
    EXPECT_EQ(con(62), "f");
    EXPECT_EQ(con(63), "fl");
    EXPECT_EQ(con(64), "l");
    EXPECT_EQ(con(65), "l") << "flattened, there is still a path";
    EXPECT_EQ(con(68), "") << "given up";
    con(64);
    EXPECT_EQ(p.notas.at(0).figura.at(0).Puntos, (Puntos{{10, 10}, {20, 10}, {20, 20}}));
    EXPECT_TRUE(p.notas.at(0).figura.at(0).Cerrado);
    // As a clip; the painter says where it lies.
    Emf e;
    e.R(59, {}).R(27, {10, 10}).R(54, {20, 10}).R(60, {}).R(67, {5}).R(15, {0, 0, 0});
    EXPECT_EQ(Unica(e.Fin()).recorte, (Rect{1, 2, 3, 4}));
}

TEST_F(RegistrosEmf, APathHoldsSeveralFigures) {
    Emf e;
    e.R(59, {}).R(27, {1, 2}).R(54, {3, 4}).R(27, {5, 6}).R(54, {7, 8}).R(54, {9, 9});
    const Trazado t = Unica(e.R(60, {}).R(64, {0, 0, 0, 0}).Fin()).figura;
    ASSERT_EQ(t.size(), 2U);
    EXPECT_EQ(t[0].Puntos, (Puntos{{1, 2}, {3, 4}}));
    EXPECT_EQ(t[1].Puntos, (Puntos{{5, 6}, {7, 8}, {9, 9}}));
}

TEST_F(RegistrosEmf, AClipFromAPathFollowsTheFillModeUnlessThePathWasWidened) {
    const auto recorta = [&](long long relleno, bool ensancha, long long modo) {
        Emf e;
        e.R(19, {relleno}).R(59, {}).R(27, {10, 10}).R(54, {20, 10}).R(60, {});
        if (ensancha) e.R(66, {});
        return Unica(e.R(67, {modo}).R(15, {0, 0, 0}).Fin()).recorte;
    };
    EXPECT_EQ(recorta(1, false, 5), (Rect{1, 2, 3, 4}));
    EXPECT_TRUE(p.alternoDeRegion);
    recorta(2, false, 5);
    EXPECT_FALSE(p.alternoDeRegion);
    recorta(1, true, 5);
    EXPECT_FALSE(p.alternoDeRegion);
    for (const long long modo : {0, 6, -1})
        EXPECT_EQ(recorta(1, false, modo), (Rect{0, 0, ANCHO, ALTO})) << modo;
}

TEST_F(RegistrosEmf, APathOfTooManyPointsEndsTheReading) {
    constexpr int PUNTOS = 60000, VECES = 17;
    Campos c{0, 0, 0, 0, PUNTOS};
    c.resize(5 + PUNTOS, 1);
    Emf e;
    e.R(59, {});
    for (int i = 0; i < VECES; ++i) e.R(89, c);
    EXPECT_EQ(Lee(e.Fin()), Lectura::Imposible);
}

TEST_F(RegistrosEmf, BoxesOfNoBreadthDrawNothing) {
    Emf e;
    for (const Campos& caja : {Campos{10, 10, 10, 30}, {10, 10, 30, 10}}) {
        e.R(42, caja).R(43, caja).R(44, Une(caja, {4, 4}));
        for (const u32 tipo : {45, 46, 47, 55}) e.R(tipo, Une(caja, {0, 0, 50, 50}));
    }
    ASSERT_TRUE(Bien(e.Fin()));
    EXPECT_TRUE(p.notas.empty());
}

// --- Regions.

TEST_F(RegistrosEmf, RegionsAreFilledFramedAndTurned) {
    const Campos region{32, 1, 1, 16, 0, 0, 0, 0, 10, 12, 30, 28};
    const auto nota = [&](u32 tipo, const Campos& antes) {
        Emf e;
        e.R(39, {1, 0, ROJO, 0}).R(39, {2, 0, 0xFF00, 0}).R(37, {1});
        return Unica(e.R(tipo, Une(Une({0, 0, 0, 0, 48}, antes), region)).Fin());
    };
    auto n = nota(71, {2});
    EXPECT_EQ(n.puntos, (Puntos{{10, 12}, {30, 28}}));
    EXPECT_EQ(n.tinta, 0x00FF00U) << "its own brush";
    n = nota(74, {});
    EXPECT_EQ(n.tinta, TINTA_ROJA) << "the one in hand";
    n = nota(73, {});
    EXPECT_EQ(n.modos.Rop2, 6);
    EXPECT_EQ(n.puntos, (Puntos{{10, 12}, {30, 28}}));
    n = nota(72, {2, 3, 2});
    EXPECT_EQ(n.tinta, 0x00FF00U);
    EXPECT_EQ(n.puntos, (Puntos{{10, 12}, {30, 28}}));
}

TEST_F(RegistrosEmf, AFrameIsAsBroadAsItIsTold) {
    const Campos region{32, 1, 1, 16, 0, 0, 0, 0, 10, 12, 30, 28};
    Emf e;
    e.R(39, {2, 0, ROJO, 0}).R(72, Une({0, 0, 0, 0, 48, 2, 3, 2}, region));
    const Mapa m = Pinta(e.Fin());
    for (i32 y = 0; y < ALTO; ++y)
        for (i32 x = 0; x < ANCHO; ++x) {
            const bool fuera = x < 10 || x >= 30 || y < 12 || y >= 28;
            const bool dentro = x >= 13 && x < 27 && y >= 14 && y < 26;
            ASSERT_EQ(m.Fila(y)[x], fuera || dentro ? 0xFFFFFFU : TINTA_ROJA) << x << ", " << y;
        }
}

// --- Pictures.

// Two pixels of 24 bits in one row, blue and red; header and row apart, `desde` bytes from the
// record's beginning.
const Campos DOS{40, 2, 1, 0x180001, 0, 0, 0, 0, 0, 0, 0x000000FF, 0x0000FF00};
Campos SitioDe(long long desde) {
    return {desde, 40, desde + 40, 8};
}
const Campos SIN_GIRO{F(1), 0, 0, F(1), 0, 0};

TEST_F(RegistrosEmf, BlocksOfPixels) {
    // bounds, x, y, width, height, operation, source x and y, world, ground, use, where
    const auto bloque = [&](u32 tipo, const Campos& resto, long long base) {
        Campos c = Une({0, 0, 0, 0, 5, 6, 20, 10, 0xEE0086, 1, 0}, SIN_GIRO);
        c = Une(Une(Une(c, {0, 0}), SitioDe(base)), resto);
        return Unica(Emf().R(tipo, Une(c, DOS)).Fin());
    };
    auto n = bloque(76, {}, 100);
    EXPECT_EQ(n.puntos, (Puntos{{5, 6}, {25, 6}, {5, 16}}));
    EXPECT_EQ(n.operacion, 0xEEU);
    EXPECT_EQ(n.origen.Fila(0)[1], TINTA_ROJA);
    EXPECT_EQ((PuntoD{n.copia.Izq, n.copia.Arr}), (PuntoD{1, 0}));
    EXPECT_EQ((PuntoD{n.copia.Ancho, n.copia.Alto}), (PuntoD{20, 10}));
    n = bloque(77, {2, 1}, 108);
    EXPECT_EQ((PuntoD{n.copia.Ancho, n.copia.Alto}), (PuntoD{2, 1}));
    n = bloque(116, {2, 1}, 108);
    EXPECT_EQ(n.copia.Tipo, CopiaMeta::Clase::Clave);
    EXPECT_EQ(n.copia.Clave, 0x8600EEU);
    n = bloque(114, {2, 1}, 108);
    EXPECT_EQ(n.copia.Tipo, CopiaMeta::Clase::Mezcla);
    EXPECT_EQ(n.copia.Constante, 0xEEU);
    EXPECT_FALSE(n.copia.AlfaPropia);
    // Without a picture.
    const auto& m = Unica(
        Emf()
            .R(76, {0, 0, 0, 0, 5, 6, 20, 10, 0x5A0049, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0})
            .Fin());
    EXPECT_EQ(m.operacion, 0x5AU);
    EXPECT_EQ(m.origen.Ancho, 0);
}

TEST_F(RegistrosEmf, ABlockThroughAMask) {
    // One bit for each of two pixels, the left one set.
    const Campos mascara{40, 2, 1, 0x10001, 0, 0, 0, 0, 0, 0, 0, 0xFFFFFF, 0x80};
    Campos c = Une({0, 0, 0, 0, 5, 6, 2, 1, 0xAACC0020, 0, 0}, SIN_GIRO);
    c = Une(Une(c, {0, 0}), SitioDe(128));
    c = Une(Une(c, {3, 4, 0, 176, 48, 224, 4}), Une(DOS, mascara));
    const auto& n = Unica(Emf().R(78, c).Fin());
    EXPECT_EQ(n.operacion, 0xCCU);
    EXPECT_EQ(n.copia.OperacionFuera, 0xAAU);
    EXPECT_EQ(n.copia.MascaraX, 3);
    EXPECT_EQ(n.copia.MascaraY, 4);
    EXPECT_NE(n.mascara.Fila(0)[0], 0U);
    EXPECT_EQ(n.mascara.Fila(0)[1], 0U);
    // Painted: where the mask has no bit what was there stays.
    constexpr std::size_t MASCARA_X = 23, MASCARA_Y = 24;
    c[MASCARA_X] = c[MASCARA_Y] = 0;
    const Mapa m = Pinta(Emf().R(78, c).Fin());
    EXPECT_EQ(m.Fila(6)[5], 0x0000FFU);
    EXPECT_EQ(m.Fila(6)[6], 0xFFFFFFU);
}

TEST_F(RegistrosEmf, ABlockOnAParallelogram) {
    const auto bloque = [&](const Campos& mascara, const Campos& resto) {
        Campos c = Une({0, 0, 0, 0, 5, 6, 25, 8, 3, 16, 1, 2, 3, 4}, SIN_GIRO);
        c = Une(Une(Une(c, {0, 0}), SitioDe(140)), Une({7, 8, 0}, mascara));
        return Unica(Emf().R(79, Une(Une(c, DOS), resto)).Fin());
    };
    auto n = bloque({0, 0, 0, 0}, {});
    EXPECT_EQ(n.puntos, (Puntos{{5, 6}, {25, 8}, {3, 16}}));
    EXPECT_EQ((PuntoD{n.copia.Izq, n.copia.Arr}), (PuntoD{1, 2}));
    EXPECT_EQ((PuntoD{n.copia.Ancho, n.copia.Alto}), (PuntoD{3, 4}));
    EXPECT_EQ(n.copia.MascaraX, 7);
    EXPECT_EQ(n.copia.MascaraY, 8);
    EXPECT_EQ(n.origen.Fila(0)[0], 0x0000FFU);
    EXPECT_EQ(n.mascara.Ancho, 0);
    n = bloque({188, 48, 236, 4}, {40, 2, 1, 0x10001, 0, 0, 0, 0, 0, 0, 0, 0xFFFFFF, 0x80});
    EXPECT_NE(n.mascara.Fila(0)[0], 0U);
    EXPECT_EQ(n.mascara.Fila(0)[1], 0U);
}

TEST_F(RegistrosEmf, RowsOfABitmap) {
    // Three rows of one pixel: below blue, then green, red on top.
    const Campos filas{40, 1, 3, 0x180001, 0, 0, 0, 0, 0, 0, 0x0000FF, 0x00FF00, 0xFF0000};
    const auto con = [&](const Campos& origen, const Campos& parte) {
        Campos c = Une({0, 0, 0, 0, 5, 6}, origen);
        c = Une(Une(c, {76, 40, 116, 12, 0}), parte);
        return Unica(Emf().R(80, Une(c, filas)).Fin());
    };
    auto n = con({0, 1, 1, 2}, {0, 3});
    EXPECT_EQ(n.puntos, (Puntos{{5, 6}, {6, 6}, {5, 8}}));
    EXPECT_EQ(n.copia.Arr, 0) << "rows 1 and 2 from below are the upper two";
    EXPECT_EQ(n.origen.Alto, 3);
    n = con({0, 0, 1, 3}, {1, 2});
    EXPECT_EQ(n.origen.Alto, 2) << "only two rows are there";
    EXPECT_EQ(n.copia.Arr, 0) << "the first of them is row 1 of the whole";
    Campos c = Une({0, 0, 0, 0, 5, 6, 0, 0, 1, 3, 76, 40, 116, 12, 0, 0, 0}, filas);
    ASSERT_TRUE(Bien(Emf().R(80, c).Fin()));
    EXPECT_TRUE(p.notas.empty()) << "no rows at all";
}

TEST_F(RegistrosEmf, ABitmapStretched) {
    const auto con = [&](const Campos& origen, long long alto) {
        Campos c = Une(Une({0, 0, 0, 0, 5, 6}, origen), {80, 40, 120, 8, 0, 0x660046, 20, 10});
        Campos dib = DOS;
        dib[2] = alto;
        return Unica(Emf().R(81, Une(c, dib)).Fin());
    };
    auto n = con({1, 0, 1, 1}, 1);
    EXPECT_EQ(n.puntos, (Puntos{{5, 6}, {25, 6}, {5, 16}}));
    EXPECT_EQ(n.operacion, 0x66U);
    EXPECT_EQ((PuntoD{n.copia.Izq, n.copia.Arr}), (PuntoD{1, 0}));
    EXPECT_EQ((PuntoD{n.copia.Ancho, n.copia.Alto}), (PuntoD{1, 1}));
    EXPECT_EQ(con({0, 3, 2, 1}, 1).copia.Arr, -3) << "counted from below";
    EXPECT_EQ(con({0, 3, 2, 1}, -1).copia.Arr, 3) << "or from above";
}

TEST_F(RegistrosEmf, TheWayOfStretchingIsThePainters) {
    const Campos mapa =
        Une({0, 0, 0, 0, 5, 6, 0, 0, 1, 1, 80, 40, 120, 8, 0, 0xCC0020, 20, 10}, DOS);
    EXPECT_EQ(Unica(Emf().R(81, mapa).Fin()).copia.Estira, 1);
    for (const auto& [modo, queda] : {std::pair{3LL, 3}, {4LL, 4}, {10LL, 2}})
        EXPECT_EQ(Unica(Emf().R(21, {modo}).R(81, mapa).Fin()).copia.Estira, queda) << modo;
}

TEST_F(RegistrosEmf, APenThatIsGoneIsNotTaken) {
    Emf e;
    e.R(38, {1, 0, 3, 0, ROJO}).R(40, {1}).R(37, {1});
    EXPECT_EQ(Unica(e.R(54, {20, 0}).Fin()).pluma.Brocha.Tinta, 0U);
    Emf existencias;  // what is ready-made stays
    existencias.R(40, {PLUMA_NULA}).R(37, {PLUMA_NULA}).R(54, {20, 0});
    ASSERT_TRUE(Bien(existencias.Fin()));
    EXPECT_TRUE(p.notas.empty());
}

TEST_F(RegistrosEmf, AFixedClipOutlastsTheOneItCameFrom) {
    Emf e;
    e.R(30, {10, 10, 60, 40}).R(28, {}).R(75, {0, 5}).R(15, {0, 0, 0});
    EXPECT_EQ(Unica(e.Fin()).recorte, (Rect{10, 10, 60, 40}));
}

TEST_F(RegistrosEmf, Gradients) {
    // Vertices: x, y, red and green, blue and opacity, of 16 bits each.
    const Campos v{1, 2, 0xFF00, 0x8000, 31, 22, 0x40000000, 0};
    const auto lados = [&](long long modo) {
        Emf e;
        EXPECT_TRUE(Bien(e.R(118, Une(Une({0, 0, 0, 0, 2, 1, modo}, v), {0, 1})).Fin()));
        std::vector<std::vector<Pixel>> c;
        for (const auto& n : p.notas) c.push_back(n.colores);
        return c;
    };
    constexpr Pixel A = 0xFF0080, B = 0x004000;
    EXPECT_EQ(lados(0), (std::vector<std::vector<Pixel>>{{A, B, A}, {B, A, B}}));
    EXPECT_EQ(p.notas[0].puntos, (Puntos{{1, 2}, {31, 2}, {1, 22}}));
    EXPECT_EQ(p.notas[1].puntos, (Puntos{{31, 22}, {1, 22}, {31, 2}}));
    EXPECT_EQ(lados(1), (std::vector<std::vector<Pixel>>{{A, A, B}, {B, B, A}}));
    EXPECT_TRUE(lados(3).empty());
    // One triangle is there, two are told: none is painted.
    Emf corto;
    corto.R(118, Une(Une({0, 0, 0, 0, 2, 2, 2}, v), {0, 1, 1}));
    ASSERT_TRUE(Bien(corto.Fin()));
    EXPECT_TRUE(p.notas.empty());
}

// --- Text.

TEST_F(RegistrosEmf, LettersFollowTheScaleAndTurnWithTheWorld) {
    const auto texto = [&](const Campos& mundo) {
        Emf e;
        e.R(82, {1, -10, 4, 0, 0, 400, 0, 0, 0, 0}).R(37, {1}).R(17, {8}).R(9, {10, 10});
        e.R(11, {20, 30}).R(35, mundo);
        e.R(84, {0, 0, 0, 0, 1, 0, 0, 5, 6, 1, 76, 0, 0, 0, 0, 0, 80, 'x', 7});
        return Unica(e.Fin()).texto;
    };
    // Twice as broad and three times as high by the page; the world once more.
    TextoMeta t = texto({F(2), 0, 0, F(2), 0, 0});
    EXPECT_EQ(t.Fuente.Alto, -60);
    EXPECT_EQ(t.Fuente.Ancho, 16);
    EXPECT_EQ(t.Avances, (Puntos{{28, 0}}));
    EXPECT_EQ(t.Lugar, (PuntoD{20, 36}));
    EXPECT_EQ(t.Forma.a, 1);
    // A quarter of a turn: the letters are as the page has them, the world turns them.
    t = texto({0, F(1), F(-1), 0, 0, 0});
    EXPECT_EQ(t.Fuente.Alto, -30);
    EXPECT_EQ(t.Fuente.Ancho, 8);
    EXPECT_EQ(t.Avances, (Puntos{{14, 0}}));
    EXPECT_EQ((PuntoD{t.Forma.a, t.Forma.b}), (PuntoD{0, 1}));
    EXPECT_EQ((PuntoD{t.Forma.c, t.Forma.d}), (PuntoD{-1, 0}));
    EXPECT_EQ(texto({F(-1), 0, 0, F(1), 0, 0}).Forma.a, -1) << "mirrored";
    EXPECT_EQ(texto({F(1), 0, 0, F(-1), 0, 0}).Forma.d, -1);
}

TEST_F(RegistrosEmf, TextWithBoxAndAdvances) {
    Emf e;
    e.R(22, {6 | 24}).R(84, {0,  0, 0, 0, 1,  0,  0,  5,          6, 2,
                             76, 6, 1, 2, 30, 40, 80, 0x00420041, 7, 8});
    const TextoMeta t = Unica(e.Fin()).texto;
    EXPECT_EQ(t.Letras, u"AB");
    EXPECT_EQ(t.Lugar, (PuntoD{5, 6}));
    EXPECT_TRUE(t.CajaOpaca && t.CajaRecorta && !t.PorIndice);
    EXPECT_EQ(t.Rectangulo.at(0).Puntos, (Puntos{{1, 2}, {30, 2}, {30, 40}, {1, 40}}));
    EXPECT_EQ(t.Avances, (Puntos{{7, 0}, {8, 0}}));
    EXPECT_EQ(t.Alineacion, 30U);
    Emf f;
    f.R(84, {0, 0, 0, 0, 1, 0, 0, 5, 6, 2, 76, 0x2010, 0, 0, 0, 0, 80, 0x00420041, 7, 1, 8, 2});
    const TextoMeta u = Unica(f.Fin()).texto;
    EXPECT_TRUE(u.PorIndice && !u.CajaOpaca && !u.CajaRecorta);
    EXPECT_EQ(u.Avances, (Puntos{{7, 1}, {8, 2}}));
    Emf g;
    g.R(83, {0, 0, 0, 0, 1, 0, 0, 5, 6, 3, 76, 0, 0, 0, 0, 0, 0, 'A' | 0x80 << 8 | 0xF1 << 16});
    EXPECT_EQ(Unica(g.Fin()).letras, u"A\u20AC\u00F1");
}

TEST_F(RegistrosEmf, SeveralTextsInOneRecord) {
    for (const u32 tipo : {96U, 97U}) {
        const bool ancho = tipo == 97;
        const long long bytes = ancho ? 0x00420041 : 0x4241;
        Emf e;
        e.R(tipo, {0, 0, 0, 0, 1, 0, 0,   2, 5, 6, 2, 120, 0, 0,     0,
                   0, 0, 0, 7, 8, 1, 124, 2, 1, 2, 3, 4,   0, bytes, 'C'});
        ASSERT_TRUE(Bien(e.Fin()));
        ASSERT_EQ(p.notas.size(), 2U);
        EXPECT_EQ(p.notas[0].letras, u"AB");
        EXPECT_EQ(p.notas[0].puntos, (Puntos{{5, 6}}));
        EXPECT_EQ(p.notas[1].letras, u"C");
        EXPECT_EQ(p.notas[1].puntos, (Puntos{{7, 8}}));
        EXPECT_TRUE(p.notas[1].texto.CajaOpaca);
    }
}

TEST_F(RegistrosEmf, ShortTexts) {
    Emf e;
    e.R(108, {5, 6, 2, 6, 1, 0, 0, 1, 2, 30, 40, 0x00420041});
    const TextoMeta t = Unica(e.Fin()).texto;
    EXPECT_EQ(t.Letras, u"AB");
    EXPECT_EQ(t.Lugar, (PuntoD{5, 6}));
    EXPECT_TRUE(t.CajaOpaca && t.CajaRecorta);
    EXPECT_EQ(t.Rectangulo.at(0).Puntos.at(2), (PuntoD{30, 40}));
    Emf f;
    f.R(108, {5, 6, 2, 0x106, 1, 0, 0, 0x00420041});
    const TextoMeta u = Unica(f.Fin()).texto;
    EXPECT_EQ(u.Letras, u"AB");
    EXPECT_FALSE(u.CajaOpaca || u.CajaRecorta) << "it has no box";
}

TEST_F(RegistrosEmf, BlanksAreBroadenedAndThePenFollows) {
    Emf e;
    e.R(120, {12, 3}).R(22, {1}).R(27, {8, 9}).R(108, {5, 6, 1, 0x300, 1, 0, 0, 'x'});
    e.R(108, {5, 6, 1, 0x300, 1, 0, 0, 'y'});
    ASSERT_TRUE(Bien(e.Fin()));
    EXPECT_EQ(p.notas.at(0).texto.ExtraBlanco, 4);
    EXPECT_EQ(p.notas.at(0).puntos, (Puntos{{8, 9}}));
    EXPECT_EQ(p.notas.at(1).puntos, (Puntos{{18, 9}})) << "the painter went on by 10";
}

TEST_F(RegistrosEmf, CommentsAndWhatAsksADeviceDrawNothing) {
    Emf e;
    for (const u32 tipo : {16,  23,  52,  69,  70,  98,  99,  100, 101, 102, 103, 104, 105, 106,
                           107, 109, 110, 111, 112, 113, 115, 117, 119, 121, 122, 127, 5000})
        e.R(tipo, {4, 0x2B464D45, 1, 1, 1, 1, 1, 1});
    ASSERT_TRUE(Bien(e.R(15, {3, 4, 0}).Fin()));
    EXPECT_EQ(p.notas.size(), 1U);
}

}  // namespace

}  // namespace tessario
