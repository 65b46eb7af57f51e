// SPDX-License-Identifier: GPL-3.0-or-later
// The pixels of metafiles: hatches, modes, lines, copies, each by numbers worked out by hand.
#include <algorithm>
#include <set>

#include "apoyo/Metaficheros.h"

namespace tessario {

namespace {

constexpr i32 ANCHO = 40, ALTO = 30;
constexpr Pixel BLANCO = 0xFFFFFF, ROJO = 0xFF0000, VERDE = 0x00FF00, AZUL = 0x0000FF;

class Pixeles : public testing::Test {
protected:
    void SetUp() override {
        r.Abre(ANCHO, ALTO, esfuerzo);
        modos.Recorte = &todo;
        modos.Caja = todo.Caja();
    }
    Pixel En(i32 x, i32 y) { return r.Dibujo().Fila(y)[x]; }
    // Where the picture has this colour.
    std::set<std::pair<i32, i32>> Sitios(Pixel color) {
        std::set<std::pair<i32, i32>> s;
        for (i32 y = 0; y < ALTO; ++y)
            for (i32 x = 0; x < ANCHO; ++x)
                if (En(x, y) == color) s.emplace(x, y);
        return s;
    }
    static std::set<std::pair<i32, i32>> Caja(i32 izq, i32 arr, i32 der, i32 aba) {
        std::set<std::pair<i32, i32>> s;
        for (i32 y = arr; y < aba; ++y)
            for (i32 x = izq; x < der; ++x) s.emplace(x, y);
        return s;
    }
    static Trazado Rectangulo(double izq, double arr, double der, double aba) {
        return {{{{izq, arr}, {der, arr}, {der, aba}, {izq, aba}}, true}};
    }
    static BrochaMeta Lisa(Pixel color) {
        BrochaMeta b;
        b.Tinta = color;
        return b;
    }
    static PlumaMeta Fina(Pixel color) {
        PlumaMeta p;
        p.Brocha = Lisa(color);
        return p;
    }
    static PlumaMeta Gorda(Pixel color, double ancho, Extremo final, Junta esquina) {
        PlumaMeta p = Fina(color);
        p.Fina = false;
        p.Ancho = ancho;
        p.Final = final;
        p.Esquina = esquina;
        return p;
    }
    // A picture brought to a box of the drawing.
    CopiaMeta Copia(const Mapa& m, double x, double y, double w, double h) {
        CopiaMeta c;
        c.Origen = &m;
        c.Ancho = m.Ancho;
        c.Alto = m.Alto;
        c.Esquina = {x, y};
        c.Derecha = {x + w, y};
        c.Abajo = {x, y + h};
        c.Estira = 3;
        return c;
    }
    static Mapa De(i32 ancho, std::vector<Pixel> pixeles) {
        Mapa m(ancho, static_cast<i32>(pixeles.size()) / ancho);
        m.Pixeles.assign(pixeles.begin(), pixeles.end());
        return m;
    }

    Esfuerzo esfuerzo;
    LetrasCajas letras;
    PintorRaster r{letras};
    Region todo{Rect{0, 0, ANCHO, ALTO}};
    ModosMeta modos;
};

TEST_F(Pixeles, AFigureHoldsTheWholeCoordinatesInsideIt) {
    r.Rellena(Rectangulo(3, 4, 7, 9), true, Lisa(ROJO), modos);
    EXPECT_EQ(Sitios(ROJO), Caja(3, 4, 7, 9));
    r.Rellena(Rectangulo(10.5, 4.5, 12.5, 6.5), true, Lisa(AZUL), modos);
    EXPECT_EQ(Sitios(AZUL), Caja(11, 5, 13, 7));
    // A triangle: row y from x = 20 up to half of y - 10.
    r.Rellena({{{{20, 10}, {30, 30}, {20, 30}}, true}}, true, Lisa(VERDE), modos);
    for (i32 y = 10; y < 30; ++y)
        for (i32 x = 20; x < 31; ++x)
            EXPECT_EQ(En(x, y) == VERDE, x < 20 + (y - 10) / 2.0) << x << ", " << y;
}

TEST_F(Pixeles, OverlapsAreLeftOutByAlternateFillsAndFilledByWindingOnes) {
    Trazado dos = Rectangulo(2, 2, 12, 12);
    dos.push_back(Rectangulo(5, 5, 9, 9)[0]);
    r.Rellena(dos, true, Lisa(ROJO), modos);
    EXPECT_EQ(En(6, 6), BLANCO);
    EXPECT_EQ(En(3, 6), ROJO);
    EXPECT_EQ(En(10, 6), ROJO);
    r.Rellena(dos, false, Lisa(AZUL), modos);
    EXPECT_EQ(Sitios(AZUL), Caja(2, 2, 12, 12));
    std::swap(dos[1].Puntos[1], dos[1].Puntos[3]);  // the other way round: a hole
    r.Rellena(dos, false, Lisa(VERDE), modos);
    EXPECT_EQ(En(6, 6), AZUL);
}

TEST_F(Pixeles, HatchesRepeatEveryEightPixelsFromTheirOrigin) {
    const auto linea = [](int trama, i32 x, i32 y) {
        const i32 u = x & 7, v = y & 7;
        switch (trama) {
            case 0:
                return v == 3;
            case 1:
                return u == 4;
            case 2:
                return u == v;
            case 3:
                return u + v == 7;
            case 4:
                return v == 3 || u == 4;
            default:
                return u == v || u + v == 7;
        }
    };
    for (int trama = 0; trama < 6; ++trama)
        for (const bool opaco : {true, false}) {
            r.Abre(ANCHO, ALTO, esfuerzo);
            BrochaMeta b = Lisa(ROJO);
            b.Tipo = BrochaMeta::Clase::Trama;
            b.Trama = trama;
            modos.Opaco = opaco;
            modos.Fondo = AZUL;
            modos.OrigenBrocha = {3, 6};
            r.Rellena(Rectangulo(0, 0, ANCHO, ALTO), true, b, modos);
            for (i32 y = 0; y < ALTO; ++y)
                for (i32 x = 0; x < ANCHO; ++x)
                    ASSERT_EQ(En(x, y), linea(trama, x - 3, y - 6) ? ROJO
                                        : opaco                    ? AZUL
                                                                   : BLANCO)
                        << trama << ": " << x << ", " << y;
        }
}

TEST_F(Pixeles, PatternsRepeatFromTheirOrigin) {
    BrochaMeta b;
    b.Tipo = BrochaMeta::Clase::Dibujo;
    b.Dibujo = std::make_shared<const Mapa>(De(3, {1, 2, 3, 4, 5, 6}));
    modos.OrigenBrocha = {1, 1};
    r.Rellena(Rectangulo(0, 0, ANCHO, ALTO), true, b, modos);
    EXPECT_EQ(En(1, 1), 1U);
    EXPECT_EQ(En(3, 2), 6U);
    EXPECT_EQ(En(4, 3), 1U);
    EXPECT_EQ(En(0, 0), 6U);
    b.UnBit = true;
    b.Dibujo = std::make_shared<const Mapa>(De(2, {0, 1}));
    modos.Texto = ROJO;
    modos.Fondo = AZUL;
    r.Rellena(Rectangulo(0, 0, 8, 1), true, b, modos);
    EXPECT_EQ(En(1, 0), ROJO);
    EXPECT_EQ(En(2, 0), AZUL);
}

TEST_F(Pixeles, TheSixteenModesOfAPen) {
    // Paper 0x00FF0F, pen 0x0F00FF: each pair of bits occurs.
    constexpr Pixel D = 0x00FF0F, P = 0x0F00FF;
    const Pixel esperado[] = {0,     ~(P | D), ~P & D, ~P,     P & ~D, ~D,     P ^ D, ~(P & D),
                              P & D, ~(P ^ D), D,      ~P | D, P,      P | ~D, P | D, BLANCO};
    for (int modo = 1; modo <= 16; ++modo) {
        modos.Rop2 = MODO_COPIA;
        r.Rellena(Rectangulo(0, 0, 4, 4), true, Lisa(D), modos);
        modos.Rop2 = modo;
        r.Rellena(Rectangulo(0, 0, 4, 4), true, Lisa(P), modos);
        EXPECT_EQ(En(2, 2), esperado[modo - 1] & BLANCO) << modo;
    }
}

TEST_F(Pixeles, ThinLinesLeaveOutTheirLastPoint) {
    r.Traza({{{{2, 3}, {8, 6}}, false}}, Fina(ROJO), modos);
    using S = std::set<std::pair<i32, i32>>;
    EXPECT_EQ(Sitios(ROJO), (S{{2, 3}, {3, 4}, {4, 4}, {5, 5}, {6, 5}, {7, 6}}));
    r.Abre(ANCHO, ALTO, esfuerzo);
    r.Traza({{{{8, 9}, {8, 5}}, false}}, Fina(ROJO), modos);
    EXPECT_EQ(Sitios(ROJO), Caja(8, 6, 9, 10));
    r.Abre(ANCHO, ALTO, esfuerzo);
    r.Traza(Rectangulo(2, 2, 6, 5), Fina(ROJO), modos);
    EXPECT_EQ(Sitios(ROJO).size(), 14U) << "a closed one is whole";
    r.Abre(ANCHO, ALTO, esfuerzo);
    r.Traza({{{{-100, 7}, {100, 7}}, false}}, Fina(ROJO), modos);
    EXPECT_EQ(Sitios(ROJO), Caja(0, 7, ANCHO, 8)) << "cut at both sides";
}

TEST_F(Pixeles, DashesOfThinLinesGoOnAroundCorners) {
    PlumaMeta p = Fina(ROJO);
    p.Trazos = {3, 2};
    p.HuecosConFondo = true;
    modos.Fondo = AZUL;
    r.Traza({{{{0, 0}, {4, 0}, {4, 10}}, false}}, p, modos);
    EXPECT_EQ(En(2, 0), ROJO);
    EXPECT_EQ(En(3, 0), AZUL);
    EXPECT_EQ(En(4, 0), AZUL);
    EXPECT_EQ(En(4, 1), ROJO);
    EXPECT_EQ(En(4, 3), ROJO);
    EXPECT_EQ(En(4, 4), AZUL);
    r.Abre(ANCHO, ALTO, esfuerzo);
    modos.Opaco = false;
    p.Trazos = {3, 2, 1};  // an odd number: the next round begins with a gap
    r.Traza({{{{0, 0}, {12, 0}}, false}}, p, modos);
    const std::string visto = [&] {
        std::string t;
        for (i32 x = 0; x < 12; ++x) t += En(x, 0) == ROJO ? '#' : '.';
        return t;
    }();
    EXPECT_EQ(visto, "###..#...##.");
}

TEST_F(Pixeles, EndsOfWideLines) {
    const Trazado linea{{{{10, 10}, {20, 10}}, false}};
    r.Traza(linea, Gorda(ROJO, 4, Extremo::Plano, Junta::Redonda), modos);
    EXPECT_EQ(Sitios(ROJO), Caja(10, 8, 20, 12));
    r.Traza(linea, Gorda(AZUL, 4, Extremo::Cuadrado, Junta::Redonda), modos);
    EXPECT_EQ(Sitios(AZUL), Caja(8, 8, 22, 12));
    r.Abre(ANCHO, ALTO, esfuerzo);
    r.Traza({{{{10, 5}, {10, 15}}, false}}, Gorda(AZUL, 4, Extremo::Cuadrado, Junta::Redonda),
            modos);
    EXPECT_EQ(Sitios(AZUL), Caja(8, 3, 12, 17));
    r.Abre(ANCHO, ALTO, esfuerzo);  // along (3, 4): a square of 10 to the side, put on its corner
    r.Traza({{{{10, 10}, {13, 14}}, false}}, Gorda(AZUL, 10, Extremo::Cuadrado, Junta::Redonda),
            modos);
    EXPECT_EQ(En(7, 6), AZUL);
    EXPECT_EQ(En(16, 17), AZUL);
    EXPECT_EQ(En(12, 5), AZUL);
    EXPECT_EQ(En(4, 9), AZUL);
    EXPECT_EQ(En(5, 4), BLANCO);
    EXPECT_EQ(En(15, 7), BLANCO);
    r.Abre(ANCHO, ALTO, esfuerzo);
    r.Traza(linea, Gorda(VERDE, 8, Extremo::Redondo, Junta::Redonda), modos);
    EXPECT_EQ(En(7, 10), VERDE);
    EXPECT_EQ(En(23, 10), VERDE);
    EXPECT_EQ(En(6, 6), BLANCO);
    EXPECT_EQ(En(24, 10), BLANCO);
    EXPECT_EQ(En(15, 6), VERDE);
    EXPECT_EQ(En(15, 14), BLANCO);
}

TEST_F(Pixeles, CornersOfWideLines) {
    const Trazado angulo{{{{5, 20}, {20, 20}, {20, 5}}, false}};
    const auto esquina = [&](Junta junta, double limite) {
        r.Abre(ANCHO, ALTO, esfuerzo);
        PlumaMeta p = Gorda(ROJO, 8, Extremo::Plano, junta);
        p.Inglete = limite;
        r.Traza(angulo, p, modos);
        return std::pair{En(23, 23) == ROJO, En(21, 21) == ROJO};
    };
    EXPECT_EQ(esquina(Junta::Inglete, 10), (std::pair{true, true}));
    EXPECT_EQ(esquina(Junta::Inglete, 1.2), (std::pair{false, true})) << "longer than allowed";
    EXPECT_EQ(esquina(Junta::Bisel, 10), (std::pair{false, true}));
    EXPECT_EQ(esquina(Junta::Redonda, 10), (std::pair{false, true}));
    EXPECT_EQ(En(16, 16), ROJO);
    EXPECT_EQ(En(15, 15), BLANCO) << "the inner side is as it is";
    // An eighth of a turn: the mitre's tip lies 10 / cos(22.5 degrees) from the corner.
    for (const Junta junta : {Junta::Inglete, Junta::Bisel}) {
        r.Abre(ANCHO, ALTO, esfuerzo);
        r.Traza({{{{5, 20}, {20, 20}, {30, 10}}, false}}, Gorda(ROJO, 20, Extremo::Plano, junta),
                modos);
        EXPECT_EQ(En(23, 29) == ROJO, junta == Junta::Inglete);
        EXPECT_EQ(En(21, 29), ROJO);
        EXPECT_EQ(En(26, 29), BLANCO);
    }
}

TEST_F(Pixeles, DashesOfWideLinesGoOnAroundCorners) {
    PlumaMeta p = Gorda(ROJO, 2, Extremo::Plano, Junta::Bisel);
    p.Trazos = {4, 3};
    r.Traza({{{{5, 10}, {20, 10}, {20, 20}}, false}}, p, modos);
    // From 5 to 9 and 12 to 16; the third one, from 19 on, goes on downwards to row 13.
    auto trazos = Caja(5, 9, 9, 11);
    trazos.merge(Caja(12, 9, 16, 11));
    for (const auto& s : trazos) EXPECT_EQ(En(s.first, s.second), ROJO) << s.first;
    EXPECT_EQ(En(9, 10), BLANCO);
    EXPECT_EQ(En(16, 10), BLANCO);
    EXPECT_EQ(En(19, 10), ROJO);
    EXPECT_EQ(En(19, 12), ROJO);
    EXPECT_EQ(En(19, 13), BLANCO);
    EXPECT_EQ(En(19, 16), ROJO);
}

TEST_F(Pixeles, WhatHasNoLengthIsAPoint) {
    r.Traza({{{{10, 10}}, false}}, Gorda(ROJO, 8, Extremo::Redondo, Junta::Redonda), modos);
    EXPECT_EQ(En(7, 10), ROJO);
    EXPECT_EQ(En(12, 12), ROJO);
    EXPECT_EQ(En(13, 13), BLANCO);
    r.Abre(ANCHO, ALTO, esfuerzo);
    r.Traza({{{{10, 10}}, false}}, Gorda(ROJO, 8, Extremo::Plano, Junta::Redonda), modos);
    EXPECT_TRUE(Sitios(ROJO).empty());
    r.Traza({{{{4, 6}, {4, 6}, {4, 6}}, true}}, Fina(ROJO), modos);
    EXPECT_EQ(Sitios(ROJO), Caja(4, 6, 5, 7));
}

TEST_F(Pixeles, AFigureIsFilledAndDrawnAround) {
    r.Figura(Rectangulo(5, 5, 15, 12), true, Lisa(AZUL), Fina(ROJO), modos);
    EXPECT_EQ(Sitios(AZUL), Caja(6, 6, 15, 12));
    EXPECT_EQ(En(15, 12), ROJO);
    EXPECT_EQ(En(5, 8), ROJO);
}

TEST_F(Pixeles, CopiesAreStretchedMirroredAndCut) {
    const Mapa m = De(2, {ROJO, AZUL, VERDE, 0});
    r.Copia(Copia(m, 4, 4, 4, 2), {}, modos);
    EXPECT_EQ(Sitios(ROJO), Caja(4, 4, 6, 5));
    EXPECT_EQ(Sitios(AZUL), Caja(6, 4, 8, 5));
    EXPECT_EQ(Sitios(VERDE), Caja(4, 5, 6, 6));
    r.Abre(ANCHO, ALTO, esfuerzo);
    r.Copia(Copia(m, 8, 6, -4, -2), {}, modos);
    EXPECT_EQ(En(7, 5), ROJO);
    EXPECT_EQ(En(4, 5), AZUL);
    EXPECT_EQ(En(7, 4), VERDE);
    r.Abre(ANCHO, ALTO, esfuerzo);
    CopiaMeta c = Copia(m, 4, 4, 3, 2);  // one column more than there is
    c.Ancho = 3;
    r.Copia(c, {}, modos);
    EXPECT_EQ(Sitios(BLANCO).count({6, 4}), 1U);
    EXPECT_EQ(En(5, 4), AZUL);
}

TEST_F(Pixeles, WhatShrinksIsJoinedAsTheModeTells) {
    const Mapa m = De(2, {0x0F0080, 0x330040});
    const auto uno = [&](int modo) {
        CopiaMeta c = Copia(m, 4, 4, 1, 1);
        c.Estira = modo;
        r.Copia(c, {}, modos);
        return En(4, 4);
    };
    EXPECT_EQ(uno(1), 0x030000U);
    EXPECT_EQ(uno(2), 0x3F00C0U);
    EXPECT_EQ(uno(4), 0x210060U);
    EXPECT_EQ(uno(3), 0x330040U) << "that under the middle";
}

TEST_F(Pixeles, RowsThatShrinkAreJoinedToo) {
    const Mapa m = De(1, {0x0F0080, 0x330040, 0xFFFFFF, 0xFFFFFF});
    CopiaMeta c = Copia(m, 4, 4, 1, 2);
    c.Estira = 4;
    r.Copia(c, {}, modos);
    EXPECT_EQ(En(4, 4), 0x210060U);
    EXPECT_EQ(En(4, 5), BLANCO);
    // Of very many only some are taken, all over.
    std::vector<Pixel> muchos(4000, 0);
    std::fill(muchos.begin() + 2000, muchos.end(), 0xFFFFFF);
    const Mapa alta = De(1, muchos);
    c = Copia(alta, 6, 4, 1, 1);
    c.Estira = 4;
    r.Copia(c, {}, modos);
    EXPECT_NEAR(En(6, 4) & 0xFFU, 128, 16);
    EXPECT_EQ(En(6, 4) & 0xFFU, En(6, 4) >> 16);
}

TEST_F(Pixeles, WithoutASourceOnlyOperationsThatNeedNoneAreDone) {
    const auto con = [&](u32 operacion) {
        r.Abre(ANCHO, ALTO, esfuerzo);
        CopiaMeta c;
        c.Operacion = operacion;
        c.Esquina = {3, 4};
        c.Derecha = {7, 4};
        c.Abajo = {3, 9};
        r.Copia(c, Lisa(0x335577), modos);
        return En(3, 4);
    };
    EXPECT_EQ(con(0xF0), 0x335577U) << "the brush";
    EXPECT_EQ(Sitios(0x335577), Caja(3, 4, 7, 9));
    EXPECT_EQ(con(0x5A), 0xCCAA88U);
    EXPECT_EQ(con(0x55), 0U);
    EXPECT_EQ(con(0xCC), BLANCO) << "it would need one";
    EXPECT_EQ(con(0x66), BLANCO);
}

TEST_F(Pixeles, ACopyThatIsTurned) {
    const Mapa m = De(2, {ROJO, AZUL});
    CopiaMeta c = Copia(m, 0, 0, 0, 0);
    c.Esquina = {10, 5};  // a quarter of a turn: its columns run downwards
    c.Derecha = {10, 13};
    c.Abajo = {6, 5};
    r.Copia(c, {}, modos);
    const auto rojos = Sitios(ROJO), azules = Sitios(AZUL);
    EXPECT_EQ(rojos.size(), 16U);
    EXPECT_EQ(azules.size(), 16U);
    EXPECT_TRUE(rojos.count({8, 6}));
    EXPECT_TRUE(azules.count({8, 11}));
}

// Letters are boxes half as broad as high that stand on the base line; a cell is 0.9 above and 0.2
// below it.
TEST_F(Pixeles, LettersStandOneBehindTheOther) {
    TextoMeta t;
    t.Letras = u"A B";
    t.Fuente.Alto = -10;
    t.Lugar = {2, 20};
    t.Alineacion = 24;
    t.Extra = 1;
    t.ExtraBlanco = 3;
    modos.Opaco = false;
    modos.Texto = ROJO;
    const PuntoD avance = r.Escribe(t, modos);
    EXPECT_EQ(avance, (PuntoD{3 * 5 + 3 + 3, 0}));
    auto letras_ = Caja(2, 10, 7, 20);
    letras_.merge(Caja(8, 10, 13, 20));
    letras_.merge(Caja(17, 10, 22, 20));
    EXPECT_EQ(Sitios(ROJO), letras_);
}

TEST_F(Pixeles, LettersStandByTheirAlignmentAndAdvances) {
    const auto izquierda = [&](unsigned alineacion) {
        r.Abre(ANCHO, ALTO, esfuerzo);
        TextoMeta t;
        t.Letras = u"AB";
        t.Fuente.Alto = -10;
        t.Lugar = {20, 15};
        t.Alineacion = alineacion;
        t.Avances = {{6, 0}, {8, 0}};
        modos.Opaco = false;
        modos.Texto = ROJO;
        r.Escribe(t, modos);
        return *Sitios(ROJO).begin();
    };
    using S = std::pair<i32, i32>;
    EXPECT_EQ(izquierda(24), (S{20, 5})) << "on the base line";
    EXPECT_EQ(izquierda(24 | 2), (S{6, 5})) << "its right end";
    EXPECT_EQ(izquierda(24 | 6), (S{13, 5})) << "its middle";
    EXPECT_EQ(izquierda(0), (S{20, 14})) << "the top of its cell";
    EXPECT_EQ(izquierda(8), (S{20, 3})) << "the foot of its cell";
}

TEST_F(Pixeles, TheGroundOfLettersTheirLinesAndTheirBox) {
    TextoMeta t;
    t.Letras = u"AB";
    t.Fuente.Alto = -10;
    t.Lugar = {5, 20};
    t.Alineacion = 24;
    modos.Texto = ROJO;
    modos.Fondo = AZUL;
    r.Escribe(t, modos);
    auto fondo = Caja(5, 11, 15, 22);
    for (const auto& s : Caja(5, 10, 15, 20)) fondo.erase(s);
    EXPECT_EQ(Sitios(AZUL), fondo);
    r.Abre(ANCHO, ALTO, esfuerzo);
    t.Letras = u"  ";
    t.Fuente.Subrayada = true;
    t.CajaOpaca = t.CajaRecorta = true;
    t.Rectangulo = Rectangulo(0, 0, 9, 30);
    modos.Opaco = false;
    r.Escribe(t, modos);
    EXPECT_EQ(En(0, 0), AZUL) << "the box is filled";
    EXPECT_EQ(En(8, 29), AZUL);
    EXPECT_EQ(En(9, 0), BLANCO);
    EXPECT_EQ(En(6, 21), ROJO) << "underlined";
    EXPECT_EQ(En(10, 21), BLANCO) << "and cut by the box";
    r.Abre(ANCHO, ALTO, esfuerzo);
    t.CajaOpaca = false;
    t.Rectangulo = {{{{0, 0}, {32, 0}, {0, 32}}, true}};
    r.Escribe(t, modos);
    EXPECT_EQ(En(6, 21), ROJO);
    EXPECT_EQ(En(13, 21), BLANCO) << "a box that lies askew cuts along its own edge";
    t.CajaRecorta = false;
    t.Extra = 6;
    for (const bool tachada : {false, true}) {
        t.Fuente.Tachada = tachada;
        r.Abre(ANCHO, ALTO, esfuerzo);
        r.Escribe(t, modos);
        EXPECT_EQ(En(13, 21), ROJO);
        EXPECT_EQ(En(13, 17), tachada ? ROJO : BLANCO) << "struck through between the letters too";
        EXPECT_EQ(En(13, 16), BLANCO);
        EXPECT_EQ(En(13, 18), BLANCO);
    }
}

TEST_F(Pixeles, OperationsOfThreeAreBitByBit) {
    const Mapa m = De(1, {0xFF00FF});
    r.Rellena(Rectangulo(0, 0, 4, 4), true, Lisa(0x0F0F0F), modos);
    const auto con = [&](u32 operacion) {
        CopiaMeta c = Copia(m, 2, 2, 1, 1);
        c.Operacion = operacion;
        r.Copia(c, Lisa(0x333333), modos);
        return En(2, 2);
    };
    EXPECT_EQ(con(0x66), 0xF00FF0U) << "source xor paper";
    EXPECT_EQ(con(0x5A), 0xC33CC3U) << "brush xor paper";
    EXPECT_EQ(con(0xC0), 0x330033U) << "brush and source";
    EXPECT_EQ(con(0x55), 0xCCFFCCU) << "the opposite of the paper";
    EXPECT_EQ(con(0x00), 0U);
    EXPECT_EQ(con(0xFF), BLANCO);
}

TEST_F(Pixeles, BeyondItsMaskAPictureIsOutside) {
    const Mapa m = De(3, {ROJO, AZUL, VERDE}), mascara = De(2, {0xFFFFFF, 0});
    CopiaMeta c = Copia(m, 2, 2, 3, 1);
    c.Mascara = &mascara;
    c.OperacionFuera = 0x55;
    r.Rellena(Rectangulo(0, 0, ANCHO, ALTO), true, Lisa(0x111111), modos);
    r.Copia(c, {}, modos);
    EXPECT_EQ(En(2, 2), ROJO);
    EXPECT_EQ(En(3, 2), 0xEEEEEEU);
    EXPECT_EQ(En(4, 2), 0xEEEEEEU);
    c.MascaraX = 1;
    r.Copia(c, {}, modos);
    EXPECT_EQ(En(2, 2), ~ROJO & BLANCO);
}

TEST_F(Pixeles, OpacityMixesAndAKeyLeavesOut) {
    r.Rellena(Rectangulo(0, 0, ANCHO, ALTO), true, Lisa(0x204060), modos);
    const Mapa m = De(1, {0x80804020});
    CopiaMeta c = Copia(m, 2, 2, 1, 1);
    c.Tipo = CopiaMeta::Clase::Mezcla;
    c.Constante = 51;  // a fifth
    r.Copia(c, {}, modos);
    EXPECT_EQ(En(2, 2), 0x334053U);
    c = Copia(m, 3, 2, 1, 1);
    c.Tipo = CopiaMeta::Clase::Mezcla;
    c.AlfaPropia = true;  // half, and its colours are multiplied by it already
    r.Copia(c, {}, modos);
    EXPECT_EQ(En(3, 2), 0x906050U);
    const Mapa dos = De(2, {ROJO, AZUL});
    c = Copia(dos, 4, 2, 2, 1);
    c.Tipo = CopiaMeta::Clase::Clave;
    c.Clave = ROJO;
    r.Copia(c, {}, modos);
    EXPECT_EQ(En(4, 2), 0x204060U);
    EXPECT_EQ(En(5, 2), AZUL);
}

TEST_F(Pixeles, FloodsStopAtABorderOrAtAnotherColour) {
    r.Traza(Rectangulo(5, 5, 15, 12), Fina(ROJO), modos);
    r.Inunda({8, 8}, ROJO, true, Lisa(VERDE), modos);
    EXPECT_EQ(Sitios(VERDE), Caja(6, 6, 15, 12));
    r.Inunda({8, 8}, VERDE, false, Lisa(AZUL), modos);
    EXPECT_EQ(Sitios(AZUL), Caja(6, 6, 15, 12));
    r.Inunda({5, 5}, ROJO, true, Lisa(0x111111), modos);
    EXPECT_TRUE(Sitios(0x111111).empty()) << "on the border itself";
    r.Inunda({-1, 5}, ROJO, true, Lisa(0x111111), modos);
    EXPECT_TRUE(Sitios(0x111111).empty());
    const Region mitad(Rect{0, 0, 10, ALTO});
    modos.Recorte = &mitad;
    modos.Caja = mitad.Caja();
    r.Inunda({8, 8}, AZUL, false, Lisa(0x222222), modos);
    EXPECT_EQ(Sitios(0x222222), Caja(6, 6, 10, 12)) << "nor beyond the clip";
}

TEST_F(Pixeles, ColoursRunFromCornerToCorner) {
    const PuntoD p[3] = {{0, 0}, {10, 0}, {0, 10}};
    const Pixel c[3] = {0x000000, 0xC80000, 0x0000C8};
    r.Degrada(p, c, modos);
    EXPECT_EQ(En(0, 0), 0U);
    EXPECT_EQ(En(5, 0), 0x640000U);
    EXPECT_EQ(En(0, 5), 0x000064U);
    EXPECT_EQ(En(3, 4), 0x3C0050U);
    EXPECT_EQ(En(6, 6), BLANCO);
}

TEST_F(Pixeles, APenWithAModeMeetsWhatWasBelowTheFigure) {
    modos.Rop2 = 7;  // xor
    r.Figura(Rectangulo(5, 5, 15, 12), true, Lisa(0x0000FF), Fina(0xFF0000), modos);
    EXPECT_EQ(En(8, 8), 0xFFFF00U);
    EXPECT_EQ(En(8, 5), 0x00FFFFU);
}

TEST_F(Pixeles, AClipOfSeveralBoxesLetsNothingElseThrough) {
    Region dos;
    CombineRgn(dos, Region(Rect{2, 2, 6, 8}), Region(Rect{10, 4, 14, 12}), RGN_OR);
    modos.Recorte = &dos;
    modos.Caja = dos.Caja();
    std::set<std::pair<i32, i32>> visible = Caja(2, 2, 6, 8);
    visible.merge(Caja(10, 4, 14, 12));
    r.Rellena(Rectangulo(0, 0, ANCHO, ALTO), true, Lisa(ROJO), modos);
    EXPECT_EQ(Sitios(ROJO), visible);
    r.Traza({{{{0, 5}, {39, 5}}, false}}, Fina(AZUL), modos);
    auto fila = Caja(2, 5, 6, 6);
    fila.merge(Caja(10, 5, 14, 6));
    EXPECT_EQ(Sitios(AZUL), fila);
    r.PonPunto({8, 5}, VERDE, modos);
    r.PonPunto({11, 5}, VERDE, modos);
    EXPECT_EQ(Sitios(VERDE), Caja(11, 5, 12, 6));
    modos.Recorte = &todo;
    for (const PuntoD& p : {PuntoD{0, 0}, {ANCHO - 1, ALTO - 1}, {-1, 3}, {3, -1}, {ANCHO, 3}})
        r.PonPunto(p, 0x444444, modos);
    EXPECT_EQ(Sitios(0x444444).size(), 2U);
    modos.Recorte = &dos;
    r.RellenaRegion(Region(Rect{0, 6, ANCHO, 7}), Lisa(0x333333), modos);
    EXPECT_EQ(Sitios(0x333333).size(), 8U);
}

}  // namespace

}  // namespace tessario
