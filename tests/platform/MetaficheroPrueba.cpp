// SPDX-License-Identifier: GPL-3.0-or-later
// The walk over metafiles made here by hand, sound and damaged, without a display: what reaches the
// painter, and what is refused.
#include <algorithm>
#include <cmath>

#include "apoyo/Metaficheros.h"

namespace tessario {

namespace {

// --- Sizes and headers.

TEST_F(Paseo, TheHeaderGivesTheSizeAndTheFrameFillsIt) {
    ASSERT_TRUE(Bien(Emf().R(27, {10, 20}).R(54, {90, 40}).Fin()));
    EXPECT_EQ(p.ancho, 96);
    EXPECT_EQ(p.alto, 48);
    ASSERT_EQ(p.notas.size(), 1U);
    EXPECT_EQ(p.notas[0].puntos, (Puntos{{10, 20}, {90, 40}}));
    Emf doble;
    Pon(doble.Bytes(), 24, -2540, 4);  // the frame begins 96 pixels to the left
    ASSERT_TRUE(Bien(doble.R(15, {0, 5, 255}).Fin()));
    EXPECT_EQ(p.ancho, 192);
    EXPECT_EQ(p.notas[0].puntos, (Puntos{{96, 5}}));
    EXPECT_EQ(p.notas[0].tinta, 0xFF0000U);
    ASSERT_TRUE(Bien(Wmf().R(0x0214, {20, 10}).R(0x0213, {40, 90}).Fin()));
    EXPECT_EQ(p.ancho, 100);
    EXPECT_EQ(p.alto, 50);
    EXPECT_EQ(p.notas[0].puntos, (Puntos{{10, 20}, {90, 40}}));
}

TEST_F(Paseo, ADescriptionIsNoMeasureOfTheDevice) {
    Emf e;
    Pon(e.Bytes(), 64, 88, 4);  // the description begins where newer fields would be
    Pon(e.Bytes(), 100, 1, 4);
    Pon(e.Bytes(), 104, 1, 4);
    ASSERT_TRUE(Bien(e.R(15, {7, 9, 0}).Fin()));
    EXPECT_EQ(p.notas[0].puntos, (Puntos{{7, 9}}));
}

TEST_F(Paseo, TheDevicesMeasureInThousandthsOfAMillimetreIsTheFinerOne) {
    Emf e;
    Pon(e.Bytes(), 100, 254'000, 4);
    Pon(e.Bytes(), 104, 127'000, 4);  // half as high as the older field tells
    ASSERT_TRUE(Bien(e.R(15, {10, 20, 0}).Fin()));
    EXPECT_EQ(p.notas[0].puntos, (Puntos{{10, 10}}));
    for (const std::size_t campo : {100U, 104U}) {  // without both they say nothing
        Emf f;
        Pon(f.Bytes(), campo, 127'000, 4);
        ASSERT_TRUE(Bien(f.R(15, {10, 20, 0}).Fin()));
        EXPECT_EQ(p.notas[0].puntos, (Puntos{{10, 20}})) << campo;
    }
}

TEST_F(Paseo, HeadersThatCannotBeAreRefused) {
    const auto mal = [&](std::size_t i, long long v, std::size_t n = 4) {
        Emf e;
        Pon(e.Bytes(), i, v, n);
        return Lee(e.Fin());
    };
    EXPECT_EQ(mal(4, 0), Lectura::Imposible);
    EXPECT_EQ(mal(4, 0xFFFFFFFF), Lectura::Imposible);
    EXPECT_EQ(mal(32, 0), Lectura::Imposible);
    EXPECT_EQ(mal(32, -5), Lectura::Imposible);
    EXPECT_EQ(mal(72, 0), Lectura::Imposible);
    EXPECT_EQ(mal(80, 0), Lectura::Imposible);
    EXPECT_EQ(mal(80, -1), Lectura::Imposible);
    EXPECT_EQ(mal(40, 0), Lectura::Imposible);
    EXPECT_EQ(mal(32, 0x7FFFFFFF), Lectura::Desmedida);
    Wmf w;
    Pon(w.Bytes(), 14, 0, 2);
    EXPECT_EQ(Lee(w.Fin()), Lectura::Imposible) << "no units to the inch";
    Wmf z;
    Pon(z.Bytes(), 10, 0, 2);
    EXPECT_EQ(Lee(z.Fin()), Lectura::Imposible) << "no breadth";
    Wmf g;
    Pon(g.Bytes(), 10, 32767, 2);
    Pon(g.Bytes(), 12, 32767, 2);
    Pon(g.Bytes(), 14, 1, 2);
    EXPECT_EQ(Lee(g.Fin()), Lectura::Desmedida);
    EXPECT_EQ(Lee({}), Lectura::Imposible);
    const Cadena entero = Emf().Fin();
    for (std::size_t n = 0; n < 108; ++n)
        EXPECT_EQ(Lee(Cadena(entero.begin(), entero.begin() + static_cast<long>(n))),
                  Lectura::Imposible);
}

TEST_F(Paseo, AFileWithoutItsLastRecordEndsWithTheFile) {
    EXPECT_TRUE(Bien(Emf().R(15, {1, 1, 0}).Bytes()));
    EXPECT_EQ(p.notas.size(), 1U);
    EXPECT_TRUE(Bien(Wmf().R(0x041F, {0, 0, 1, 1}).Bytes()));
    EXPECT_EQ(p.notas.size(), 1U);
    // What follows the last record is not read.
    Cadena b = Emf().Fin();
    b.insert(b.end(), {1, 2, 3});
    EXPECT_TRUE(Bien(b));
}

TEST_F(Paseo, RecordsThatPointOutsideTheFileEndIt) {
    EXPECT_FALSE(Bien(Emf().Crudo(15, 0, {}).Fin())) << "no length";
    EXPECT_FALSE(Bien(Emf().Crudo(15, 4, {}).Fin()));
    EXPECT_FALSE(Bien(Emf().Crudo(15, 0x7FFFFFFC, {}).Fin()));
    EXPECT_FALSE(Bien(Emf().Crudo(15, 0xFFFFFFFF, {}).Fin()));
    Wmf w;
    w.R(0x041F, {0, 0, 1, 1});
    for (const long long largo : {0LL, 2LL, 0x7FFFFFFFLL, 0x80000003LL, 0xFFFFFFFFLL}) {
        Wmf mal = w;
        Pon(mal.Bytes(), 40, largo, 4);
        EXPECT_FALSE(Bien(mal.Fin())) << largo;
    }
}

TEST_F(Paseo, ARecordThatIsTooShortForItsKindIsLeftOut) {
    for (u32 tipo = 2; tipo <= 122; ++tipo) {
        if (tipo == 14) continue;
        Emf e;
        for (std::size_t n = 0; n <= 64; n += 4)
            e.Crudo(tipo, static_cast<u32>(n + 8), Cadena(n, 0xFF));
        EXPECT_TRUE(Bien(e.R(15, {1, 1, 0}).Fin())) << tipo;
    }
    for (u32 funcion = 1; funcion < 0x1000; ++funcion) {
        Wmf w;
        w.R(funcion, {}).R(funcion, {-1}).R(funcion, {0x7FFF, 0x7FFF, 0x7FFF});
        EXPECT_TRUE(Bien(w.Fin())) << funcion;
    }
}

// --- Counts that lie.

TEST_F(Paseo, CountsBeyondTheRecordDrawNothing) {
    for (const long long n : {0x7FFFFFFFLL, 0x80000000LL, 0xFFFFFFFFLL, 0x40000001LL}) {
        Emf e;
        for (const u32 tipo : {2, 3, 4, 5, 6, 56}) e.R(tipo, {0, 0, 0, 0, n, 1, 1, 2, 2});
        for (const u32 tipo : {85, 86, 87, 88, 89, 92}) e.R(tipo, {0, 0, 0, 0, n, 0x10001});
        for (const u32 tipo : {7, 8, 90, 91}) {
            e.R(tipo, {0, 0, 0, 0, n, 2, 2, 1, 1, 2, 2});
            e.R(tipo, {0, 0, 0, 0, 1, 2, n, 1, 1, 2, 2});
            e.R(tipo, {0, 0, 0, 0, 1, n, 2, 1, 1, 2, 2});
        }
        ASSERT_TRUE(Bien(e.Fin()));
        EXPECT_TRUE(p.notas.empty()) << n;
    }
    Wmf w;
    for (const long long n : {0xFFFFLL, 0x8000LL, 0x4001LL})
        w.R(0x0324, {n, 1, 1}).R(0x0325, {n, 1, 1}).R(0x0538, {n, 2}).R(0x0538, {2, n, n});
    ASSERT_TRUE(Bien(w.Fin()));
    EXPECT_TRUE(p.notas.empty());
}

TEST_F(Paseo, TextAndBitmapsStayWithinTheirRecord) {
    Emf e;
    for (const long long n : {100LL, 0x7FFFFFFFLL, 0xFFFFFFFFLL})
        for (const long long donde : {76LL, 0x7FFFFFFFLL, 0xFFFFFFF0LL})
            for (const u32 tipo : {83, 84})
                e.R(tipo, {0, 0, 0, 0, 1, 0, 0, 5, 5, n, donde, 0, 0, 0, 0, 0, 0});
    e.R(96, {0, 0, 0, 0, 1, 0, 0, 0x7FFFFFFF}).R(108, {0, 0, 0x7FFFFFFF, 0x300, 1, 0, 0});
    for (const long long desde : {80LL, 0x7FFFFFFFLL, 0xFFFFFFFFLL})
        e.R(81, {0, 0, 0, 0, 0, 0, 0, 0, 9, 9, desde, 40, desde, 0x7FFFFFFF, 0, 0xCC0020, 9, 9});
    ASSERT_TRUE(Bien(e.Fin()));
    EXPECT_TRUE(p.notas.empty());
}

TEST_F(Paseo, LettersWithoutRoomForTheirAdvancesAreStillWritten) {
    Emf e;
    e.R(84, {0, 0, 0, 0, 1, 0, 0, 5, 6, 2, 76, 0, 0, 0, 0, 0, 0x7FFFFFF0, 0x00420041});
    ASSERT_TRUE(Bien(e.Fin()));
    ASSERT_EQ(p.notas.size(), 1U);
    EXPECT_EQ(p.notas[0].letras, u"AB");
    EXPECT_EQ(p.notas[0].puntos, (Puntos{{5, 6}}));
}

TEST_F(Paseo, VerticesAreLookedUpWithinTheirList) {
    const auto degrada = [](long long indice, long long n) {
        return Emf()
            .R(118, {0, 0, 0, 0, n, 1, 2, 0, 0, 0, 0, 9, 0, 0, 0, 9, 9, 0, 0, 0, 1, indice})
            .Fin();
    };
    ASSERT_TRUE(Bien(degrada(2, 3)));
    EXPECT_EQ(p.notas.size(), 1U);
    for (const long long i : {3LL, -1LL, 0x7FFFFFFFLL}) {
        ASSERT_TRUE(Bien(degrada(i, 3)));
        EXPECT_TRUE(p.notas.empty()) << i;
    }
    ASSERT_TRUE(Bien(degrada(2, 0x10000003)));
    EXPECT_TRUE(p.notas.empty());
}

// --- State.

TEST_F(Paseo, ObjectsOutsideTheTableAreNobody) {
    const long long ROJO = 0xFF;
    Emf e;
    e.R(39, {1, 0, ROJO, 0}).R(37, {1});
    for (const long long n : {4LL, 9999LL, 0x7FFFFFFFLL, 0x800000FFLL}) e.R(37, {n}).R(40, {n});
    e.R(38, {0xFFFFFF, 0, 1, 0, 0}).R(39, {0, 0, 0, 0}).R(42, {0, 0, 10, 10});
    ASSERT_TRUE(Bien(e.Fin()));
    ASSERT_FALSE(p.notas.empty());
    EXPECT_EQ(p.notas[0].tinta, 0xFF0000U) << "the brush chosen first is still in the hand";
    // One that is deleted while it is chosen goes on drawing.
    ASSERT_TRUE(Bien(Emf().R(39, {1, 0, ROJO, 0}).R(37, {1}).R(40, {1}).R(42, {0, 0, 9, 9}).Fin()));
    EXPECT_EQ(p.notas[0].tinta, 0xFF0000U);
    Wmf w;
    w.R(0x02FC, {0, 0xFF, 0, 0}).R(0x012D, {0}).R(0x012D, {7}).R(0x012D, {-1}).R(0x01F0, {-1});
    ASSERT_TRUE(Bien(w.R(0x0418, {20, 20, 0, 0}).Fin()));
    EXPECT_EQ(p.notas[0].tinta, 0xFF0000U);
}

TEST_F(Paseo, ReadyMadeObjectsByTheirNumbers) {
    constexpr long long HECHO = 0x80000000;
    const auto dibuja = [&](long long pluma, long long brocha) {
        Emf e;
        e.R(37, {HECHO | pluma}).R(37, {HECHO | brocha}).R(43, {0, 0, 9, 9});
        EXPECT_TRUE(Bien(e.Fin()));
        std::vector<std::pair<char, Pixel>> v;
        for (const auto& n : p.notas) v.emplace_back(n.clase, n.tinta);
        return v;
    };
    using Dibujado = std::vector<std::pair<char, Pixel>>;
    constexpr Pixel GRISES[] = {0xFFFFFF, 0xC0C0C0, 0x808080, 0x404040, 0x000000};
    for (long long k = 0; k < 5; ++k) EXPECT_EQ(dibuja(8, k), (Dibujado{{'f', GRISES[k]}})) << k;
    EXPECT_EQ(dibuja(8, 18), (Dibujado{{'f', 0xFFFFFF}}));
    EXPECT_EQ(dibuja(6, 5), (Dibujado{{'l', 0xFFFFFF}}));
    EXPECT_EQ(dibuja(7, 5), (Dibujado{{'l', 0}}));
    EXPECT_EQ(dibuja(19, 5), (Dibujado{{'l', 0}}));
    EXPECT_EQ(dibuja(8, 5), (Dibujado{}));
    // Twenty colours, the basic ones at both ends.
    Emf e;
    for (const long long k : {0, 1, 2, 6, 7, 8, 9, 10, 11, 12, 13, 18, 19, 20})
        e.R(15, {0, 0, 0x01000000 | k});
    ASSERT_TRUE(Bien(e.Fin()));
    std::vector<Pixel> colores;
    for (const auto& n : p.notas) colores.push_back(n.tinta);
    EXPECT_EQ(colores, (std::vector<Pixel>{0x000000, 0x800000, 0x008000, 0x008080, 0xC0C0C0,
                                           0xC0DCC0, 0xA6CAF0, 0xFFFBF0, 0xA0A0A4, 0x808080,
                                           0xFF0000, 0x00FFFF, 0xFFFFFF, 0x000000}));
    // Fonts: two of them bold, those of equal letters smaller.
    const auto fuente = [&](long long k) {
        Emf f;
        f.R(37, {HECHO | k}).R(108, {0, 0, 1, 0x300, 1, 0, 0, 'x'});
        EXPECT_TRUE(Bien(f.Fin()));
        return p.notas.at(0).texto.Fuente;
    };
    for (const long long k : {10, 11, 16}) EXPECT_EQ(fuente(k).Cara, u"Courier New") << k;
    for (const long long k : {12, 13, 14, 17}) EXPECT_EQ(fuente(k).Cara, u"Arial") << k;
    for (const long long k : {13, 14}) EXPECT_EQ(fuente(k).Peso, 700) << k;
    for (const long long k : {12, 17}) EXPECT_EQ(fuente(k).Peso, 400) << k;
}

TEST_F(Paseo, InAWmfTheLowestFreePlaceIsTaken) {
    Wmf w;
    w.R(0x02FC, {0, 0xFF, 0, 0}).R(0x02FC, {0, 0xFF00, 0, 0}).R(0x02FC, {0, 0, 0xFF, 0});
    w.R(0x01F0, {1}).R(0x02FC, {0, 0xFFFF, 0, 0}).R(0x012D, {1}).R(0x0418, {20, 20, 0, 0});
    ASSERT_TRUE(Bien(w.Fin()));
    EXPECT_EQ(p.notas[0].tinta, 0xFFFF00U);
}

TEST_F(Paseo, SavedStatesComeBackByNumberAndNotFurtherThanTheFirst) {
    Emf e;
    e.R(24, {1}).R(33, {}).R(24, {2}).R(33, {}).R(24, {3}).R(33, {}).R(24, {4});
    const auto texto = [&] { e.R(108, {0, 0, 1, 0x300, 1, 0, 0, 'x'}); };
    texto();
    e.R(34, {-2});
    texto();
    e.R(34, {-9}).R(34, {0}).R(34, {0x7FFFFFFF}).R(34, {-0x80000000LL});
    texto();
    e.R(34, {1});
    texto();
    ASSERT_TRUE(Bien(e.Fin()));
    ASSERT_EQ(p.notas.size(), 4U);
    EXPECT_EQ(p.notas[0].tinta, PixelDe(4));
    EXPECT_EQ(p.notas[1].tinta, PixelDe(2));
    EXPECT_EQ(p.notas[2].tinta, PixelDe(2)) << "levels that never were change nothing";
    EXPECT_EQ(p.notas[3].tinta, PixelDe(1));
}

TEST_F(Paseo, StatesThatAreSavedWithoutEndEndTheReading) {
    Emf e;
    for (int i = 0; i < 5000; ++i) e.R(33, {});
    EXPECT_EQ(Lee(e.Fin()), Lectura::Imposible);
}

TEST_F(Paseo, MapModesScalesAndWorldsLeadToPixels) {
    const auto donde = [&](Emf& e) {
        EXPECT_TRUE(Bien(e.R(15, {10, 20, 0}).Fin()));
        return p.notas.at(0).puntos.at(0);
    };
    Emf a;
    a.R(17, {8}).R(9, {100, 100}).R(11, {200, -50}).R(12, {5, 40}).R(10, {2, 4});
    EXPECT_EQ(donde(a), (PuntoD{5 + 16, 40 - 8}));
    Emf b;
    b.R(17, {2});  // a tenth of a millimetre, upwards
    EXPECT_EQ(donde(b), (PuntoD{4, -8}));
    Emf c;
    c.R(35,
        {0, 0x40000000, 0xC0000000, 0, 0x3F800000, 0});  // turned, twice as large, 1 to the right
    EXPECT_EQ(donde(c), (PuntoD{-39, 20}));
    Emf d;
    d.R(17, {8}).R(9, {10, 10}).R(11, {10, 10}).R(31, {3, 1, 4, 2});
    EXPECT_EQ(donde(d), (PuntoD{30, 40}));
    Emf n;
    n.R(17, {8}).R(9, {0, 10}).R(11, {0, 0}).R(31, {1, 0, 1, 0}).R(32, {0, 1, 1, 1}).R(17, {99});
    EXPECT_EQ(donde(n), (PuntoD{10, 20})) << "measures of nothing are not taken";
    Emf f;
    f.R(35, {0x7FC00000, 0, 0, 0x7F800000, 0, 0});
    EXPECT_EQ(donde(f), (PuntoD{10, 20})) << "nor numbers that are none";
}

TEST_F(Paseo, CurvesPassWhereTheyShould) {
    // Two of them: the first through 0, 0 with its points at 8, 16 and 24, 40, to 32, 0.
    Emf e;
    e.R(2, {0, 0, 0, 0, 7, 0, 0, 8, 16, 24, 40, 32, 0, 40, 0, 50, 9, 60, 8});
    ASSERT_TRUE(Bien(e.Fin()));
    const Puntos& q = p.notas.at(0).puntos;
    EXPECT_EQ(q.back(), (PuntoD{60, 8}));
    for (const PuntoD& v : q) {
        if (v.x > 32) continue;
        double cerca = 99;
        for (int k = 0; k <= 1000; ++k) {
            const double t = k / 1000.0, u = 1 - t;
            const double x = 24 * u * u * t + 72 * u * t * t + 32 * t * t * t;
            const double y = 48 * u * u * t + 120 * u * t * t;
            cerca = std::min(cerca, std::hypot(x - v.x, y - v.y));
        }
        EXPECT_LT(cerca, 0.1) << v.x << ", " << v.y;
    }
}

TEST_F(Paseo, BoxesTurnWithTheWorld) {
    constexpr long long UNO = 0x3F800000, MENOS_UNO = 0xBF800000, CINCUENTA = 0x42480000;
    Emf e;
    e.R(35, {0, UNO, MENOS_UNO, 0, CINCUENTA, 0}).R(43, {10, 5, 30, 15});
    ASSERT_TRUE(Bien(e.Fin()));
    const Puntos& q = p.notas.at(0).puntos;
    ASSERT_EQ(q.size(), 4U);
    for (const PuntoD& esquina : Puntos{{45, 10}, {45, 30}, {35, 30}, {35, 10}})
        EXPECT_EQ(std::count(q.begin(), q.end(), esquina), 1) << esquina.x << ", " << esquina.y;
    Emf plano;
    plano.R(35, {0, UNO, MENOS_UNO, 0, CINCUENTA, 0}).R(43, {10, 5, 10, 15}).R(43, {10, 5, 30, 5});
    ASSERT_TRUE(Bien(plano.Fin()));
    EXPECT_TRUE(p.notas.empty());
}

TEST_F(Paseo, HugeCoordinatesStayNumbers) {
    Emf e;
    e.R(35, {0x7E967699, 0, 0, 0x7E967699, 0, 0});  // 1e38
    e.R(35, {0x53000000, 0, 0, 0x53000000, 0, 0});
    e.R(43, {-0x7FFFFFFF, -0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF}).R(54, {0x7FFFFFFF, 0x7FFFFFFF});
    e.R(42, {-0x7FFFFFFF, -0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF});
    const Mapa m = Pinta(e.Fin());
    EXPECT_EQ(m.Ancho, 96);
}

TEST_F(Paseo, ClipsMeetAndComeBack) {
    Emf e;
    e.R(33, {}).R(30, {10, 10, 60, 40}).R(30, {0, 0, 30, 100}).R(15, {0, 0, 0});
    e.R(29, {10, 10, 60, 20}).R(15, {0, 0, 0}).R(26, {5, 0}).R(15, {0, 0, 0});
    e.R(34, {-1}).R(15, {0, 0, 0});
    ASSERT_TRUE(Bien(e.Fin()));
    EXPECT_EQ(p.notas[0].recorte, (Rect{10, 10, 30, 40}));
    EXPECT_EQ(p.notas[1].recorte, (Rect{10, 20, 30, 40}));
    EXPECT_EQ(p.notas[2].recorte, (Rect{15, 20, 35, 40}));
    EXPECT_EQ(p.notas[3].recorte, (Rect{0, 0, 96, 48}));
}

TEST_F(Paseo, ARegionOfManyRectanglesStaysWithinItsRecord) {
    Emf e;
    e.R(75, {48, 5, 32, 1, 1, 16, 0, 0, 0, 0, 3, 4, 50, 30}).R(15, {0, 0, 0});
    e.R(75, {48, 5, 32, 1, 0x10000001, 16, 0, 0, 0, 0, 3, 4, 50, 30}).R(15, {0, 0, 0});
    e.R(75, {0xFFFFFFF0, 5}).R(75, {0, 5}).R(15, {0, 0, 0});
    ASSERT_TRUE(Bien(e.Fin()));
    EXPECT_EQ(p.notas[0].recorte, (Rect{3, 4, 50, 30}));
    EXPECT_EQ(p.notas[1].recorte, (Rect{3, 4, 50, 30})) << "one that lies is left out";
    EXPECT_EQ(p.notas[2].recorte, (Rect{0, 0, 96, 48})) << "none at all lifts it";
}

// --- Effort.

TEST_F(Paseo, WorkWithoutEndEndsTheReading) {
    Emf e;
    for (int i = 0; i < 200; ++i) e.R(43, {0, 0, 100, 50});
    const Cadena b = e.Fin();
    LetrasCajas l;
    PintorRaster r(l);
    EXPECT_EQ(PintaMetafichero(b, r), Lectura::Bien);
    EXPECT_EQ(PintaMetafichero(b, r, 100'000), Lectura::Imposible);
}

// --- Painted.

TEST_F(Paseo, BoxesLinesAndTextFallOnTheirPixels) {
    Emf e;
    e.R(39, {1, 0, 0xFF, 0}).R(37, {1}).R(37, {0x80000008}).R(43, {10, 10, 20, 15});
    e.R(37, {0x80000007}).R(27, {30, 5}).R(54, {40, 5});
    e.R(18, {1}).R(24, {0xFF00}).R(82, {2, -10, 0, 0, 0, 400, 0, 0, 0, 0}).R(37, {2});
    e.R(22, {24}).R(108, {60, 40, 1, 0x300, 1, 0, 0, 'x'});
    const Mapa m = Pinta(e.Fin());
    EXPECT_EQ(m.Fila(10)[10], 0xFF0000U);
    EXPECT_EQ(m.Fila(14)[19], 0xFF0000U);
    EXPECT_EQ(m.Fila(14)[20], 0xFFFFFFU);
    EXPECT_EQ(m.Fila(15)[19], 0xFFFFFFU);
    EXPECT_EQ(m.Fila(5)[30], 0U);
    EXPECT_EQ(m.Fila(5)[39], 0U);
    EXPECT_EQ(m.Fila(5)[40], 0xFFFFFFU) << "the last point is not drawn";
    EXPECT_EQ(m.Fila(39)[60], 0x00FF00U);
    EXPECT_EQ(m.Fila(30)[64], 0x00FF00U);
    EXPECT_EQ(m.Fila(40)[60], 0xFFFFFFU);
    EXPECT_EQ(m.Fila(39)[65], 0xFFFFFFU);
}

TEST_F(Paseo, ABitmapIsStretchedWithinTheRecord) {
    // Two pixels, blue and red, stretched to 20 x 5.
    const std::vector<long long> registro{
        0,  0,        0,   0, 10, 10,       0,  0, 2,          1,
        80, 40,       120, 8, 0,  0xCC0020, 20, 5, 40,         2,
        1,  0x180001, 0,   0, 0,  0,        0,  0, 0x000000FF, 0x0000FF00 | 0xFF0000 << 0};
    Emf e;
    e.R(81, registro);
    const Mapa m = Pinta(e.Fin());
    EXPECT_EQ(m.Fila(10)[10], 0x0000FFU);
    EXPECT_EQ(m.Fila(14)[19], 0x0000FFU);
    EXPECT_NE(m.Fila(14)[20], 0x0000FFU);
    EXPECT_EQ(m.Fila(15)[10], 0xFFFFFFU);
    EXPECT_EQ(m.Fila(10)[30], 0xFFFFFFU);
}

}  // namespace

}  // namespace tessario
