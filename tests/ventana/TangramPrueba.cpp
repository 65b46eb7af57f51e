// SPDX-License-Identifier: GPL-3.0-or-later
// The Tangram in the real program: a figure solved with drags, turns and the flip; a drop that is
// pushed off; a design laid and read back through the model file.

#include <cmath>
#include <fstream>

#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "records/Modelos.h"
#include "session/Montaje.h"
#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int ANCHO = 1280, ALTO = 1024;
constexpr unsigned VERDE = 0x008000;  // the default pieces

// Boxes by piece: side and diagonal of the triangles and the square.
constexpr int LADO[] = {0, 125, 125, 89, 63, 63, 63}, DIAGONAL[] = {0, 177, 177, 125, 89, 89, 89};

struct Caja {
    int w, h;
};
Caja CajaDe(int pieza, int giro, int volteo) {
    if (pieza == 7) {
        if (giro % 4 == 0) return {132, 44};
        if (giro % 4 == 2) return {44, 132};
        return (giro % 4 == 1) == (volteo == 0) ? Caja{63, 126} : Caja{126, 63};
    }
    if (pieza == 6) return giro % 2 == 0 ? Caja{63, 63} : Caja{89, 89};
    if (giro % 2 != 0) return {LADO[pieza], LADO[pieza]};
    const int d = DIAGONAL[pieza];
    return giro % 4 == 0 ? Caja{d, d / 2 + 1} : Caja{d / 2 + 1, d};
}

// A point well inside a piece.
struct Sitio {
    int x, y;
};
Sitio Dentro(int pieza, const PiezaGuardada& q) {
    static constexpr double FX[] = {0.5, 0.66, 0.38, 0.66, 0.5, 0.33, 0.62, 0.33};
    static constexpr double FY[] = {0.62, 0.33, 0.5, 0.66, 0.38, 0.66, 0.5, 0.33};
    const Caja c = CajaDe(pieza, q.giro, q.volteo);
    const bool triangulo = pieza <= 5;
    return {q.x + static_cast<int>(c.w * (triangulo ? FX[q.giro] : 0.5)),
            q.y + static_cast<int>(c.h * (triangulo ? FY[q.giro] : 0.5))};
}

// Where one step of turning leaves a piece.
PiezaGuardada Girada(int pieza, PiezaGuardada q) {
    static constexpr double TX[] = {-0.4, 0, 0.4, -0.4, 0, 0.4, -0.1, 0.1};
    static constexpr double TY[] = {-0.1, 0.1, -0.4, 0, 0.4, -0.4, 0, 0.4};
    const int nuevo = (q.giro + 1) % 8;
    if (pieza <= 5) {
        q.x += static_cast<int>(std::nearbyint(TX[nuevo] * LADO[pieza]));
        q.y += static_cast<int>(std::nearbyint(TY[nuevo] * LADO[pieza]));
    } else {
        const Caja a = CajaDe(pieza, q.giro, q.volteo), b = CajaDe(pieza, nuevo, q.volteo);
        q.x += static_cast<int>(std::nearbyint((a.w - b.w) / 2.0));
        q.y += static_cast<int>(std::nearbyint((a.h - b.h) / 2.0));
    }
    q.giro = nuevo;
    return q;
}

PartidaGuardada Partida(int modo) {
    PartidaGuardada p = DeTangram(modo);
    p.borde = false;
    return p;
}

TEST(TangramVentana, FigureIsSolvedWithDragsTurnsAndTheFlip) {
    // A loose figure, one orientation of each kind.
    static constexpr int BIEN[7][4] = {{60, 60, 0, 0},  {300, 60, 4, 0},  {540, 60, 1, 0},
                                       {60, 300, 2, 0}, {180, 300, 7, 0}, {320, 300, 1, 0},
                                       {480, 300, 2, 1}};
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    programa.EscribeGlobal(23, 50);
    PartidaGuardada p = Partida(2);
    for (int i = 0; i < 7; ++i) {
        auto& q = p.piezas[static_cast<std::size_t>(i)];
        q.xBien = BIEN[i][0];
        q.yBien = BIEN[i][1];
        q.giroBien = BIEN[i][2];
        q.volteoBien = BIEN[i][3];
        q.giro = (q.giroBien + 7) % 8;
        q.x = 60 + i % 4 * 260;
        q.y = 560 + i / 4 * 220;
    }
    p.piezas[6].giro = p.piezas[6].giroBien;  // the parallelogram only has to be turned over
    programa.EscribePartida(p);
    ASSERT_TRUE(programa.Arranca());
    e.Mira().Guarda("tangram-antes");

    for (int n = 1; n <= 7; ++n) {
        PiezaGuardada q = p.piezas[static_cast<std::size_t>(n - 1)];
        const Sitio coge = Dentro(n, q);
        if (n == 7) {
            e.Mueve(coge.x, coge.y);
            e.EsperaQuieto(100);
            e.Tecla("v");
            q.volteo = 1;
        } else {
            e.Pulsa(coge.x, coge.y, 3);
            q = Girada(n, q);
        }
        e.EsperaAtendido();
        const Sitio desde = Dentro(n, q);
        ASSERT_EQ(e.Mira().En(desde.x, desde.y), VERDE) << "piece " << n;
        PiezaGuardada meta = q;
        meta.x = q.xBien;
        meta.y = q.yBien;
        const Sitio hasta = Dentro(n, meta);
        e.Arrastra(desde.x, desde.y, hasta.x + 3, hasta.y - 3);
        if (n == 4) e.Mira().Guarda("tangram-mitad");
    }
    ASSERT_TRUE(e.Espera([&] { return e.HayVentana("TESSARIO"); }));
    e.Mira().Guarda("tangram-fin");
    e.Tecla("Return");
    e.EsperaQuieto();
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida leida = programa.LeePartida(23);
    EXPECT_TRUE(leida.terminado);
    ASSERT_EQ(leida.piezas.size(), 7U);
    for (int i = 0; i < 7; ++i) {
        const auto& q = leida.piezas[static_cast<std::size_t>(i)];
        EXPECT_EQ(q.x, BIEN[i][0]) << i + 1;
        EXPECT_EQ(q.y, BIEN[i][1]) << i + 1;
        EXPECT_EQ(q.giro, BIEN[i][2]) << i + 1;
        EXPECT_EQ(q.volteo, BIEN[i][3]) << i + 1;
    }
}

// Seven pieces apart from each other.
PartidaGuardada Suelta() {
    PartidaGuardada p = Partida(1);
    PonEnFilas(p, 60, 500, 260, 240);
    return p;
}

TEST(TangramVentana, DropOnAnotherPieceIsPushedOff) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    programa.EscribeGlobal(23, 50);
    const PartidaGuardada p = Suelta();
    programa.EscribePartida(p);
    ASSERT_TRUE(programa.Arranca());
    const int antes = e.Mira().Cuenta(0, 0, 1139, ALTO, VERDE);
    const Sitio chica = Dentro(4, p.piezas[3]), grande = Dentro(1, p.piezas[0]);
    e.Arrastra(chica.x, chica.y, grande.x, grande.y);
    e.EsperaQuieto();
    const Foto despues = e.Mira();
    despues.Guarda("tangram-empuje");
    // Pieces share at most their outlines: an overlap would hide hundreds of pixels.
    EXPECT_NEAR(despues.Cuenta(0, 0, 1139, ALTO, VERDE), antes, 150);
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida leida = programa.LeePartida(23);
    EXPECT_EQ(leida.piezas[0].x, p.piezas[0].x) << "only the dropped piece moves";
    EXPECT_EQ(leida.piezas[0].y, p.piezas[0].y);
    const int cx = p.piezas[3].x + grande.x - chica.x, cy = p.piezas[3].y + grande.y - chica.y;
    EXPECT_GT(std::abs(leida.piezas[3].x - cx) + std::abs(leida.piezas[3].y - cy), 20);
}

TEST(TangramVentana, DesignIsLaidAndReadBackThroughTheModelFile) {
    Escritorio e(ANCHO, ALTO);
    Programa programa(e);
    programa.EscribeGlobal(23, 50);
    const PartidaGuardada p = Suelta();
    programa.EscribePartida(p);
    ASSERT_TRUE(programa.Arranca());
    // The small triangles, the square and the parallelogram come into the free upper half.
    static constexpr int DESTINOS[][3] = {
        {4, 300, 120}, {5, 420, 140}, {6, 360, 240}, {7, 500, 300}};
    for (const auto& d : DESTINOS) {
        const Sitio desde = Dentro(d[0], p.piezas[static_cast<std::size_t>(d[0] - 1)]);
        e.Arrastra(desde.x, desde.y, d[1], d[2]);
        e.EsperaQuieto(120);
    }
    const Foto diseno = e.Mira();
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida puesta = programa.LeePartida(23);

    // The arrangement goes through the model file, and its silhouette onto the table.
    PlataformaPrueba plataforma;
    plataforma.ancho = ANCHO;
    plataforma.alto = ALTO;
    PonSistema(&plataforma);
    Gbl = Bloque{};
    ReiniciaSuperficies();
    ReiniciaVentanas();
    Gbl.AnchoPantalla = ANCHO;
    Gbl.AltoPantalla = ALTO;
    Gbl.CarpetaArchivo = programa.Carpeta() + "Archivo/";
    Gbl.MargenX = Gbl.MargenY = ANCHO / 40;
    Gbl.JuegoActual = JuegoTangram;
    Gbl.NumPiezas = 7;
    LeePuzzle(Bytes(programa.Carpeta() + "TsR2333.ini"));
    GuardaModelo("Diseño de prueba");
    const i16 numero = Gbl.ModeloActual;
    for (i32 i = 1; i <= 7; ++i) Gbl.Piezas[i].XBien = Gbl.Piezas[i].YBien = 0;
    Gbl.ModeloActual = numero;
    LeeModelo();
    PartidaGuardada modelo = Partida(2);
    modelo.modelo = numero;
    int izquierda = 9999, arriba = 9999;
    for (const auto& q : puesta.piezas) {
        izquierda = std::min(izquierda, q.x);
        arriba = std::min(arriba, q.y);
    }
    for (i32 i = 1; i <= 7; ++i) {
        auto& q = modelo.piezas[static_cast<std::size_t>(i - 1)];
        const auto& antes = puesta.piezas[static_cast<std::size_t>(i - 1)];
        q.xBien = Gbl.Piezas[i].XBien;
        q.yBien = Gbl.Piezas[i].YBien;
        q.giroBien = Gbl.Piezas[i].GiroBien;
        q.volteoBien = Gbl.Piezas[i].VolteoBien;
        EXPECT_EQ(q.xBien, antes.x - izquierda + 32) << i;
        EXPECT_EQ(q.yBien, antes.y - arriba + 32) << i;
        q.x = 900;
        q.y = 880;  // all in one pile, out of the silhouette's way
    }
    PonSistema(nullptr);
    programa.EscribePartida(modelo);
    ASSERT_TRUE(programa.Arranca());
    const Foto silueta = e.Mira();
    silueta.Guarda("tangram-modelo");
    // Where the design had green, the silhouette has the contrast colour, shifted to the margin.
    int iguales = 0, verdes = 0;
    for (int y = arriba; y < 800; ++y)
        for (int x = izquierda; x < 860; ++x) {
            if (diseno.En(x, y) != VERDE) continue;
            ++verdes;
            iguales += silueta.En(x - izquierda + 32, y - arriba + 32) == 0xFFFFFF;
        }
    EXPECT_GT(verdes, 20000);
    EXPECT_EQ(iguales, verdes);
}

}  // namespace
}  // namespace tessario::ventana
