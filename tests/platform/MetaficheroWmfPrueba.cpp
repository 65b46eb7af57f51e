// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of WMF records, each record made by hand: what of it reaches the painter.
#include <algorithm>
#include <cmath>

#include "apoyo/Metaficheros.h"

namespace tessario {

namespace {

class RegistrosWmf : public Paseo {
protected:
    // Where the pixel (10, 20) of the file comes.
    PuntoD Donde(Wmf& w) { return Unica(w.R(0x041F, {0, 0, 20, 10}).Fin()).puntos.at(0); }
};

// --- Coordinates.

TEST_F(RegistrosWmf, TheHeadersBoxIsTheFirstWindow) {
    Wmf w;
    Pon(w.Bytes(), 6, -50, 2);
    Pon(w.Bytes(), 8, -25, 2);
    Pon(w.Bytes(), 10, 150, 2);
    Pon(w.Bytes(), 12, 75, 2);
    EXPECT_EQ(Donde(w), (PuntoD{60, 45}));
    EXPECT_EQ(p.ancho, 200);
    EXPECT_EQ(p.alto, 100);
    Wmf inversa;  // its corners the other way round: what lies below comes on top
    Pon(inversa.Bytes(), 8, 50, 2);
    Pon(inversa.Bytes(), 12, 0, 2);
    EXPECT_EQ(Donde(inversa), (PuntoD{10, 30}));
    EXPECT_EQ(p.alto, 50);
    Wmf grande;  // twice as many units to the inch: half as large
    Pon(grande.Bytes(), 14, 192, 2);
    EXPECT_EQ(Donde(grande), (PuntoD{5, 10}));
    EXPECT_EQ(p.ancho, 50);
}

TEST_F(RegistrosWmf, WithoutAHeaderOfItsSizeItIsOneOf320By240) {
    Wmf w;
    w.R(0x020B, {0, 0}).R(0x020C, {480, 640}).R(0x041F, {0, 0, 20, 10});
    Cadena b = w.Fin();
    b.erase(b.begin(), b.begin() + 22);
    EXPECT_EQ(Unica(b).puntos, (Puntos{{5, 10}}));
    EXPECT_EQ(p.ancho, 320);
    EXPECT_EQ(p.alto, 240);
}

TEST_F(RegistrosWmf, WindowAndViewport) {
    Wmf a;
    EXPECT_EQ(Donde(a.R(0x020B, {2, 3})), (PuntoD{7, 18}));
    Wmf b;
    EXPECT_EQ(Donde(b.R(0x020C, {100, 50})), (PuntoD{20, 10}));
    Wmf c;
    EXPECT_EQ(Donde(c.R(0x020D, {2, 3})), (PuntoD{13, 22}));
    Wmf d;
    EXPECT_EQ(Donde(d.R(0x020E, {100, 50})), (PuntoD{5, 40}));
    Wmf e;
    EXPECT_EQ(Donde(e.R(0x020B, {2, 3}).R(0x020F, {1, 4})), (PuntoD{3, 17}));
    Wmf f;
    EXPECT_EQ(Donde(f.R(0x020D, {2, 3}).R(0x0211, {1, 4})), (PuntoD{17, 23}));
    Wmf g;  // the window: half as broad, a fifth as high
    EXPECT_EQ(Donde(g.R(0x0410, {5, 1, 2, 1})), (PuntoD{20, 100}));
    Wmf h;  // the viewport: three halves as broad, twice as high
    EXPECT_EQ(Donde(h.R(0x0412, {1, 2, 2, 3})), (PuntoD{15, 40}));
    Wmf i;
    EXPECT_EQ(Donde(i.R(0x020C, {-50, 100}).R(0x020D, {50, 0})), (PuntoD{10, 30})) << "upwards";
    Wmf j;
    EXPECT_EQ(Donde(j.R(0x0103, {1}).R(0x020E, {1, 1})), (PuntoD{10, 20})) << "pixels";
}

// --- State and objects.

TEST_F(RegistrosWmf, Modes) {
    Wmf w;
    w.R(0x0102, {1}).R(0x0104, {7}).R(0x0106, {2}).R(0x0201, {0xFF00, 0}).R(0x0209, {ROJO, 0});
    w.R(0x02FA, {5, 0, 0, 0, 0}).R(0x012D, {0}).R(0x041B, {9, 9, 0, 0});
    const auto& n = Unica(w.Fin());
    EXPECT_FALSE(n.modos.Opaco);
    EXPECT_EQ(n.modos.Rop2, 7);
    EXPECT_FALSE(n.alterno);
    EXPECT_EQ(n.modos.Fondo, 0x00FF00U);
    EXPECT_EQ(n.modos.Texto, TINTA_ROJA);
    for (const auto& [modo, queda] : {std::pair{1LL, 1}, {16LL, 16}, {0LL, 13}, {17LL, 13}}) {
        Wmf u;
        EXPECT_EQ(Unica(u.R(0x0104, {modo}).R(0x0213, {9, 9}).Fin()).modos.Rop2, queda);
    }
    for (const auto& [modo, queda] : {std::pair{3LL, 3}, {4LL, 4}, {10LL, 2}}) {
        Wmf u;
        u.R(0x0107, {modo}).R(0x061D, {0x21, 0xF0, 9, 9, 0, 0});
        EXPECT_EQ(Unica(u.Fin()).copia.Estira, queda);
    }
    // Saved and brought back.
    Wmf v;
    v.R(0x001E, {}).R(0x0104, {7}).R(0x0127, {-1}).R(0x0213, {9, 9});
    EXPECT_EQ(Unica(v.Fin()).modos.Rop2, 13);
}

TEST_F(RegistrosWmf, PensAndBrushes) {
    Wmf w;
    w.R(0x02FA, {1, 1, 0, ROJO, 0}).R(0x012D, {0}).R(0x0213, {0, 9});
    PlumaMeta q = Unica(w.Fin()).pluma;
    EXPECT_EQ(q.Brocha.Tinta, TINTA_ROJA);
    EXPECT_EQ(q.Trazos, (std::vector<double>{18, 6}));
    Wmf v;
    v.R(0x02FA, {0, -4, 0, 0, 0}).R(0x012D, {0}).R(0x0213, {0, 9});
    EXPECT_EQ(Unica(v.Fin()).pluma.Ancho, 4);
    const auto brocha = [&](long long estilo) {
        Wmf b;
        b.R(0x02FC, {estilo, ROJO, 0, 3}).R(0x012D, {0}).R(0x02FA, {5, 0, 0, 0, 0});
        EXPECT_TRUE(Bien(b.R(0x012D, {1}).R(0x041B, {9, 9, 0, 0}).Fin()));
        return p.notas;
    };
    EXPECT_TRUE(brocha(1).empty());
    EXPECT_EQ(brocha(0).at(0).brocha.Tipo, BrochaMeta::Clase::Lisa);
    EXPECT_EQ(brocha(0).at(0).tinta, TINTA_ROJA);
    EXPECT_EQ(brocha(2).at(0).brocha.Tipo, BrochaMeta::Clase::Trama);
    EXPECT_EQ(brocha(2).at(0).brocha.Trama, 3);
}

TEST_F(RegistrosWmf, WhatCannotBeMadeTakesAPlaceTooSoThatNumbersStayRight) {
    const std::vector<std::pair<u32, Campos>> otros{{0x00F7, {0x300, 1, 0, 0}},
                                                    {0x00F7, {0x300, 9, 0, 0}},
                                                    {0x00F7, {0x300, 1}},
                                                    {0x00F8, {0, 0, 0, 0}},
                                                    {0x02FD, {0}},
                                                    {0x06FE, {0}},
                                                    {0x0142, {5, 0, 1, 2, 3}},
                                                    {0x01F9, {0, 0, 0, 0, 0}},
                                                    {0x06FF, {0, 6, 0, 0}},
                                                    {0x02FB, {9, 0, 0, 0, 400, 0, 0, 0, 0}}};
    for (const auto& [funcion, campos] : otros) {
        Wmf w;
        w.R(funcion, campos).R(0x02FC, {0, ROJO, 0, 0}).R(0x012D, {1});
        w.R(0x02FA, {5, 0, 0, 0, 0}).R(0x012D, {2}).R(0x041B, {9, 9, 0, 0});
        EXPECT_EQ(Unica(w.Fin()).tinta, TINTA_ROJA) << std::hex << funcion;
    }
}

TEST_F(RegistrosWmf, Fonts) {
    Wmf w;
    w.R(0x02FB, {-20, 7, 900, 0, 700, 0x0101, 0xA101, 0, 0x3100, 0x4342, 0x0041, 0x5858});
    w.R(0x012D, {0}).R(0x0521, {1, 'x', 6, 5});
    const auto& n = Unica(w.Fin());
    EsLaLetraEntera(n.texto.Fuente);
    EXPECT_EQ(n.puntos, (Puntos{{5, 6}}));
}

TEST_F(RegistrosWmf, Palettes) {
    constexpr long long INDICE = 0x0100;
    Wmf w;
    w.R(0x00F7, {0x300, 3, 0x1111, 0x11, 0x2222, 0x22, ROJO, 0}).R(0x0234, {0});
    const auto punto = [&](long long i) { w.R(0x041F, {i, INDICE, 1, 1}); };
    for (const long long i : {0, 1, 2, 3}) punto(i);
    w.R(0x0037, {1, 1, 0x4444, 0x44});
    punto(1);
    punto(2);
    w.R(0x0436, {2, 9, 0x5555, 0x55});
    punto(2);
    w.R(0x0139, {2});
    punto(2);
    punto(1);
    ASSERT_TRUE(Bien(w.Fin()));
    std::vector<Pixel> colores;
    for (const auto& n : p.notas) colores.push_back(n.tinta);
    EXPECT_EQ(colores, (std::vector<Pixel>{0x111111, 0x222222, TINTA_ROJA, 0x111111, 0x444444,
                                           TINTA_ROJA, 0x555555, 0x111111, 0x444444}));
}

// --- Figures.

TEST_F(RegistrosWmf, FiguresByTheirPoints) {
    Wmf a;
    EXPECT_EQ(Unica(a.R(0x0214, {2, 1}).R(0x0213, {4, 3}).Fin()).puntos, (Puntos{{1, 2}, {3, 4}}));
    Wmf b;
    EXPECT_EQ(Unica(b.R(0x0325, {3, 1, 2, 3, 4, 5, 6}).Fin()).puntos,
              (Puntos{{1, 2}, {3, 4}, {5, 6}}));
    EXPECT_FALSE(p.notas[0].figura.at(0).Cerrado);
    Wmf c;
    ASSERT_TRUE(Bien(c.R(0x0324, {3, 1, 2, 3, 4, 5, 6}).Fin()));
    EXPECT_EQ(p.notas.at(0).clase, 'f');
    EXPECT_TRUE(p.notas.at(1).figura.at(0).Cerrado);
    Wmf d;
    ASSERT_TRUE(Bien(d.R(0x0538, {2, 3, 2, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}).Fin()));
    const Trazado& t = p.notas.at(0).figura;
    ASSERT_EQ(t.size(), 2U);
    EXPECT_EQ(t[0].Puntos, (Puntos{{1, 2}, {3, 4}, {5, 6}}));
    EXPECT_EQ(t[1].Puntos, (Puntos{{7, 8}, {9, 10}}));
    Wmf e;
    const auto& n = Unica(e.R(0x0419, {ROJO, 0, 6, 5}).Fin());
    EXPECT_TRUE(n.hastaBorde);
    EXPECT_EQ(n.puntos, (Puntos{{5, 6}}));
    EXPECT_EQ(n.tinta, TINTA_ROJA);
    for (const long long modo : {0, 1}) {
        Wmf f;
        const auto& m = Unica(f.R(0x0548, {modo, ROJO, 0, 6, 5}).Fin());
        EXPECT_EQ(m.hastaBorde, modo == 0);
        EXPECT_EQ(m.puntos, (Puntos{{5, 6}}));
        EXPECT_EQ(m.tinta, TINTA_ROJA);
    }
}

TEST_F(RegistrosWmf, RoundFigures) {
    // A circle about (20, 20) of radius 10, from its right end to its top.
    const Campos lugar{-100, 20, 20, 100, 31, 31, 10, 10};
    const auto figura = [&](u32 funcion, const Campos& c) {
        Wmf w;
        EXPECT_TRUE(Bien(w.R(funcion, c).Fin()));
        return p.notas.back().figura.at(0);
    };
    const auto cerca = [](PuntoD a, double x, double y) {
        return std::hypot(a.x - x, a.y - y) < 0.01;
    };
    const Contorno suelto = figura(0x0817, lugar);
    EXPECT_FALSE(suelto.Cerrado);
    EXPECT_TRUE(cerca(suelto.Puntos.front(), 30, 20));
    EXPECT_TRUE(cerca(suelto.Puntos.back(), 20, 10));
    const Contorno tarta = figura(0x081A, lugar);
    EXPECT_TRUE(tarta.Cerrado);
    EXPECT_TRUE(cerca(tarta.Puntos.front(), 20, 20));
    const Contorno cuerda = figura(0x0830, lugar);
    EXPECT_TRUE(cuerda.Cerrado);
    EXPECT_TRUE(cerca(cuerda.Puntos.front(), 30, 20));
    EXPECT_TRUE(cerca(figura(0x0418, {31, 31, 10, 10}).Puntos.front(), 30, 20));
    EXPECT_TRUE(cerca(figura(0x041B, {31, 41, 11, 10}).Puntos.front(), 40, 11));
    const Contorno redondeado = figura(0x061C, {4, 8, 31, 51, 10, 10});
    EXPECT_TRUE(std::any_of(redondeado.Puntos.begin(), redondeado.Puntos.end(),
                            [&](PuntoD q) { return cerca(q, 14, 10); }));
    EXPECT_TRUE(std::any_of(redondeado.Puntos.begin(), redondeado.Puntos.end(),
                            [&](PuntoD q) { return cerca(q, 10, 12); }));
}

TEST_F(RegistrosWmf, APenMayStayInsideItsBox) {
    Wmf w;
    w.R(0x02FA, {6, 4, 0, ROJO, 0}).R(0x012D, {0}).R(0x041B, {31, 41, 10, 10});
    ASSERT_TRUE(Bien(w.Fin()));
    // Half the pen's width further in, with the half pixel by which a box's edge is a line.
    EXPECT_EQ(p.notas.back().figura.at(0).Puntos,
              (Puntos{{38.5, 11.5}, {11.5, 11.5}, {11.5, 28.5}, {38.5, 28.5}}));
}

// --- Clip and regions.

TEST_F(RegistrosWmf, Clips) {
    const auto recorte = [&](Wmf& w) { return Unica(w.R(0x041F, {0, 0, 1, 1}).Fin()).recorte; };
    Wmf a;
    EXPECT_EQ(recorte(a.R(0x0416, {40, 60, 10, 20})), (Rect{20, 10, 60, 40}));
    Wmf b;
    EXPECT_EQ(recorte(b.R(0x0416, {40, 60, 10, 20}).R(0x0220, {2, 5})), (Rect{25, 12, 65, 42}));
    Wmf c;
    EXPECT_EQ(recorte(c.R(0x0415, {50, 60, 0, 0})), (Rect{60, 0, 100, 50}));
}

// A region of two bands: (10, 12)-(20, 15) with (30, 12)-(40, 15), and (10, 15)-(20, 18) below.
const Campos REGION{0,  6,  0,  0,  0,  2, 4, 10, 12, 40, 18, 4, 12,
                    15, 10, 20, 30, 40, 4, 2, 15, 18, 10, 20, 2};

TEST_F(RegistrosWmf, Regions) {
    const Mapa m = [&] {
        Wmf w;
        w.R(0x02FC, {0, ROJO, 0, 0}).R(0x012D, {0}).R(0x06FF, REGION).R(0x012B, {1});
        return Pinta(w.Fin());
    }();
    EXPECT_EQ(m.Fila(12)[10], TINTA_ROJA);
    EXPECT_EQ(m.Fila(14)[39], TINTA_ROJA);
    EXPECT_EQ(m.Fila(13)[20], 0xFFFFFFU);
    EXPECT_EQ(m.Fila(15)[30], 0xFFFFFFU);
    EXPECT_EQ(m.Fila(17)[19], TINTA_ROJA);
    EXPECT_EQ(m.Fila(18)[19], 0xFFFFFFU);
    const auto nota = [&](u32 funcion, const Campos& c) {
        Wmf w;
        w.R(0x02FC, {0, ROJO, 0, 0}).R(0x06FF, REGION);
        return Unica(w.R(funcion, c).Fin());
    };
    const Puntos caja{{10, 12}, {40, 18}};
    for (const Campos& orden : {Campos{0, 1}, {1, 0}}) {
        auto n = nota(0x0228, orden);
        EXPECT_EQ(n.tinta, TINTA_ROJA);
        EXPECT_EQ(n.puntos, caja);
        n = nota(0x0429, Une({1, 1}, orden));
        EXPECT_EQ(n.tinta, TINTA_ROJA);
    }
    EXPECT_EQ(nota(0x012A, {1}).modos.Rop2, 6);
    Wmf w;
    w.R(0x02FC, {0, ROJO, 0, 0}).R(0x06FF, REGION).R(0x012C, {1}).R(0x041F, {0, 0, 1, 1});
    EXPECT_EQ(Unica(w.Fin()).recorte, (Rect{10, 12, 40, 18}));
    Wmf v;
    v.R(0x02FC, {0, ROJO, 0, 0}).R(0x06FF, REGION).R(0x012C, {1}).R(0x012C, {0});
    EXPECT_EQ(Unica(v.R(0x041F, {0, 0, 1, 1}).Fin()).recorte, (Rect{0, 0, 100, 50}));
    Wmf u;  // chosen like another object, it is the clip too
    u.R(0x06FF, REGION).R(0x012D, {0}).R(0x041F, {0, 0, 1, 1});
    EXPECT_EQ(Unica(u.Fin()).recorte, (Rect{10, 12, 40, 18}));
}

// --- Pictures.

// Two pixels of 24 bits in one row, blue and red.
const Campos DOS{40, 0, 2, 0, 1, 0, 1, 24, 0,      0,      0,      0,
                 0,  0, 0, 0, 0, 0, 0, 0,  0x00FF, 0x0000, 0xFF00, 0};

TEST_F(RegistrosWmf, Blocks) {
    const Puntos sitio{{5, 6}, {25, 6}, {5, 16}};
    Wmf a;  // the brush alone
    auto n = Unica(a.R(0x061D, {0x49, 0x5A, 10, 20, 6, 5}).Fin());
    EXPECT_EQ(n.puntos, sitio);
    EXPECT_EQ(n.operacion, 0x5AU);
    Wmf b;
    n = Unica(b.R(0x0940, Une({0x86, 0xEE, 0, 1, 10, 20, 6, 5}, DOS)).Fin());
    EXPECT_EQ(n.puntos, sitio);
    EXPECT_EQ(n.operacion, 0xEEU);
    EXPECT_EQ((PuntoD{n.copia.Izq, n.copia.Arr}), (PuntoD{1, 0}));
    EXPECT_EQ((PuntoD{n.copia.Ancho, n.copia.Alto}), (PuntoD{20, 10}));
    EXPECT_EQ(n.origen.Fila(0)[1], TINTA_ROJA);
    Wmf c;
    n = Unica(c.R(0x0B41, Une({0x86, 0xEE, 1, 2, 0, 1, 10, 20, 6, 5}, DOS)).Fin());
    EXPECT_EQ(n.puntos, sitio);
    EXPECT_EQ((PuntoD{n.copia.Izq, n.copia.Arr}), (PuntoD{1, 0}));
    EXPECT_EQ((PuntoD{n.copia.Ancho, n.copia.Alto}), (PuntoD{2, 1}));
    for (const u32 funcion : {0x0922U, 0x0940U}) {
        Wmf d;  // without a picture there is an empty word instead
        n = Unica(d.R(funcion, {0x49, 0x5A, 3, 4, 0, 10, 20, 6, 5}).Fin());
        EXPECT_EQ(n.puntos, sitio);
        EXPECT_EQ(n.origen.Ancho, 0);
    }
    for (const u32 funcion : {0x0B23U, 0x0B41U}) {
        Wmf e;
        n = Unica(e.R(funcion, {0x49, 0x5A, 1, 2, 3, 4, 0, 10, 20, 6, 5}).Fin());
        EXPECT_EQ(n.puntos, sitio);
    }
}

TEST_F(RegistrosWmf, BitmapsOfTheOldestKind) {
    const auto mapa = [&](long long bits, long long paso, const Campos& filas) {
        // Kind, width, height, bytes of a row, planes and bits.
        const Campos cabecera{0, 2, 2, paso, 1 | bits << 8};
        Wmf w;
        const Campos sitio{0x20, 0xCC, 0, 1, 10, 20, 6, 5};
        return Unica(w.R(0x0922, Une(Une(sitio, cabecera), filas)).Fin());
    };
    auto n = mapa(1, 2, {0x80, 0x40});
    EXPECT_EQ(n.puntos, (Puntos{{5, 6}, {25, 6}, {5, 16}}));
    EXPECT_EQ((PuntoD{n.copia.Izq, n.copia.Arr}), (PuntoD{1, 0}));
    EXPECT_EQ(n.origen.Pixeles, (std::vector<Pixel>{0xFFFFFF, 0, 0, 0xFFFFFF}));
    n = mapa(24, 6, {0x2211, 0x4433, 0x6655, 0x8877, 0xAA99, 0xCCBB});
    EXPECT_EQ(n.origen.Pixeles, (std::vector<Pixel>{0x332211, 0x665544, 0x998877, 0xCCBBAA}));
    n = mapa(32, 8, {0x2211, 0x33, 0x5544, 0x66, 0x8877, 0x99, 0xBBAA, 0xCC});
    EXPECT_EQ(n.origen.Pixeles, (std::vector<Pixel>{0x332211, 0x665544, 0x998877, 0xCCBBAA}));
    // A row shorter than its pixels, and a kind of pixel that says nothing of colours.
    for (const auto& [bits, paso] : {std::pair{24LL, 4LL}, {8LL, 2LL}, {1LL, 0LL}}) {
        Wmf w;
        w.R(0x0922, {0x20, 0xCC, 0, 1, 10, 20, 6, 5, 0, 2, 2, paso, 1 | bits << 8, 0, 0, 0, 0, 0});
        ASSERT_TRUE(Bien(w.Fin()));
        EXPECT_TRUE(p.notas.empty()) << bits;
    }
    Wmf e;  // stretched
    e.R(0x0B23, {0x20, 0xCC, 1, 2, 0, 1, 10, 20, 6, 5, 0, 2, 2, 2, 0x101, 0x80, 0x40});
    n = Unica(e.Fin());
    EXPECT_EQ((PuntoD{n.copia.Ancho, n.copia.Alto}), (PuntoD{2, 1}));
    EXPECT_EQ(n.origen.Fila(1)[1], 0xFFFFFFU);
}

TEST_F(RegistrosWmf, BrushesOfPictures) {
    const auto brocha = [&](u32 funcion, const Campos& c) {
        Wmf w;
        w.R(funcion, c).R(0x012D, {0}).R(0x02FA, {5, 0, 0, 0, 0}).R(0x012D, {1});
        return Unica(w.R(0x041B, {9, 9, 0, 0}).Fin()).brocha;
    };
    BrochaMeta b = brocha(0x0142, Une({5, 0}, DOS));
    ASSERT_EQ(b.Tipo, BrochaMeta::Clase::Dibujo);
    EXPECT_FALSE(b.UnBit);
    EXPECT_EQ(b.Dibujo->Fila(0)[1], TINTA_ROJA);
    const Campos unBit{40, 0, 8, 0, 1, 0, 1, 1, 0, 0,      0,    0,    0,
                       0,  0, 0, 0, 0, 0, 0, 0, 0, 0xFFFF, 0xFF, 0xF0, 0};
    EXPECT_TRUE(brocha(0x0142, Une({3, 0}, unBit)).UnBit) << "in the text's colours";
    EXPECT_FALSE(brocha(0x0142, Une({5, 0}, unBit)).UnBit) << "in its own";
    // The oldest kind: its header has 32 bytes here.
    Campos viejo{0, 8, 2, 2, 0x101};
    viejo.resize(16);
    b = brocha(0x01F9, Une(viejo, {0xF0, 0x0F}));
    ASSERT_EQ(b.Tipo, BrochaMeta::Clase::Dibujo);
    EXPECT_TRUE(b.UnBit);
    EXPECT_EQ(b.Dibujo->Fila(0)[3], 1U);
    EXPECT_EQ(b.Dibujo->Fila(0)[4], 0U);
    EXPECT_EQ(b.Dibujo->Fila(1)[4], 1U);
}

TEST_F(RegistrosWmf, RowsAndStretchedBitmaps) {
    // Three rows of one pixel: below blue, then green, red on top.
    const Campos filas{40, 0, 1, 0, 3, 0, 1, 24,     0, 0,      0, 0, 0,
                       0,  0, 0, 0, 0, 0, 0, 0x00FF, 0, 0xFF00, 0, 0, 0xFF};
    const auto con = [&](u32 funcion, const Campos& c, long long alto = 3) {
        Campos dib = filas;
        dib[4] = alto;
        dib[5] = alto < 0 ? -1 : 0;
        Wmf w;
        return Unica(w.R(funcion, Une(c, dib)).Fin());
    };
    // Use, rows, first row, source y and x, height, width, y, x.
    auto n = con(0x0D33, {0, 3, 0, 1, 0, 2, 1, 6, 5});
    EXPECT_EQ(n.puntos, (Puntos{{5, 6}, {6, 6}, {5, 8}}));
    EXPECT_EQ(n.copia.Arr, 0) << "rows 1 and 2 from below are the upper two";
    EXPECT_EQ(n.origen.Alto, 3);
    n = con(0x0D33, {0, 2, 1, 0, 0, 3, 1, 6, 5});
    EXPECT_EQ(n.origen.Alto, 2);
    EXPECT_EQ(n.copia.Arr, 0);
    EXPECT_EQ(con(0x0D33, {0, 1, 2, 0, 0, 3, 1, 6, 5}).origen.Alto, 1);
    n = con(0x0D33, {0, 3, 0, 1, 0, 2, 1, 6, 5}, -3);
    EXPECT_EQ(n.copia.Arr, 1);
    Wmf nada;
    ASSERT_TRUE(Bien(nada.R(0x0D33, Une({0, 0, 0, 1, 0, 2, 1, 6, 5}, filas)).Fin()));
    EXPECT_TRUE(p.notas.empty()) << "no rows at all";
    // Operation, use, source height, width, y, x, height, width, y, x.
    n = con(0x0F43, {0x46, 0x66, 0, 1, 1, 2, 0, 10, 20, 6, 5});
    EXPECT_EQ(n.puntos, (Puntos{{5, 6}, {25, 6}, {5, 16}}));
    EXPECT_EQ(n.operacion, 0x66U);
    EXPECT_EQ(n.copia.Arr, 0) << "the third row from below is the upper one";
    EXPECT_EQ((PuntoD{n.copia.Ancho, n.copia.Alto}), (PuntoD{1, 1}));
    EXPECT_EQ(con(0x0F43, {0x46, 0x66, 0, 1, 1, 2, 0, 10, 20, 6, 5}, -3).copia.Arr, 2);
}

// --- Text.

TEST_F(RegistrosWmf, Texts) {
    Wmf a;  // an odd number of letters is filled up to a whole word
    auto n = Unica(a.R(0x0521, {3, 0x4241, 0x0043, 6, 5}).Fin());
    EXPECT_EQ(n.letras, u"ABC");
    EXPECT_EQ(n.puntos, (Puntos{{5, 6}}));
    Wmf b;
    b.R(0x012E, {6 | 24}).R(0x0108, {2}).R(0x020A, {3, 12});
    n = Unica(b.R(0x0A32, {6, 5, 3, 0, 0x4241, 0x0043, 7, 8, 9}).Fin());
    EXPECT_EQ(n.letras, u"ABC");
    EXPECT_EQ(n.puntos, (Puntos{{5, 6}}));
    EXPECT_EQ(n.texto.Avances, (Puntos{{7, 0}, {8, 0}, {9, 0}}));
    EXPECT_EQ(n.texto.Alineacion, 30U);
    EXPECT_EQ(n.texto.Extra, 2);
    EXPECT_EQ(n.texto.ExtraBlanco, 4);
    EXPECT_FALSE(n.texto.CajaOpaca || n.texto.CajaRecorta);
    for (const long long opciones : {2, 4, 6}) {
        Wmf c;
        n = Unica(c.R(0x0A32, {6, 5, 2, opciones, 1, 2, 30, 40, 0x4241}).Fin());
        EXPECT_EQ(n.letras, u"AB");
        EXPECT_EQ(n.texto.CajaOpaca, (opciones & 2) != 0);
        EXPECT_EQ(n.texto.CajaRecorta, (opciones & 4) != 0);
        EXPECT_EQ(n.texto.Rectangulo.at(0).Puntos, (Puntos{{1, 2}, {30, 2}, {30, 40}, {1, 40}}));
        EXPECT_TRUE(n.texto.Avances.empty());
    }
    Wmf d;  // a box without letters
    n = Unica(d.R(0x0A32, {6, 5, 0, 2, 1, 2, 30, 40}).Fin());
    EXPECT_TRUE(n.texto.CajaOpaca);
    Wmf e;  // letters at the current position, which moves on
    e.R(0x012E, {1}).R(0x0214, {9, 8}).R(0x0521, {1, 'x', 6, 5}).R(0x0521, {1, 'y', 6, 5});
    ASSERT_TRUE(Bien(e.Fin()));
    EXPECT_EQ(p.notas.at(0).puntos, (Puntos{{8, 9}}));
    EXPECT_EQ(p.notas.at(1).puntos, (Puntos{{18, 9}}));
}

TEST_F(RegistrosWmf, EscapesAndWhatAsksADeviceDrawNothing) {
    Wmf w;
    for (const u32 f : {0x0626, 0x0035, 0x0105, 0x0149, 0x0231, 0x014C, 0x014D, 0x014E, 0x014F,
                        0x0150, 0x0052, 0x00AB, 0x004F, 0x0050, 0x7777})
        w.R(f, {15, 6, 1, 1, 1, 1, 1, 1});
    EXPECT_EQ(Unica(w.R(0x041F, {0, 0, 4, 3}).Fin()).puntos, (Puntos{{3, 4}}));
}

}  // namespace

}  // namespace tessario
