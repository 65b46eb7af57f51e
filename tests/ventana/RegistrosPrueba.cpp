// SPDX-License-Identifier: GPL-3.0-or-later
// Saved puzzles, statistics, history and models in the real program.
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "ventana/Escritorio.h"

namespace tessario::ventana {
namespace {

constexpr int ANCHO = 1024, ALTO = 768;
constexpr int BOTONERA = ANCHO - 141;  // its left edge
// The sliding puzzle, 3 a side on this screen.
constexpr int CELDA = 141, MARGEN_X = 230, MARGEN_Y = 140;
constexpr const char *GUARDAR = "Archivar el puzzle actual", *CARGAR = "Cargar un puzzle archivado",
                     *BORRAR = "Borrar un puzzle archivado",
                     *MODELO = "Guardar como modelo de Tangram", *ESTADISTICAS = "Estadísticas",
                     *HISTORICO = "Histórico de puzzles resueltos";

int XDe(int celda) {
    return MARGEN_X + (celda - 1) % 3 * CELDA;
}
int YDe(int celda) {
    return MARGEN_Y + (celda - 1) / 3 * CELDA;
}

// Pieces 7 and 8 stand one to the right: two moves from the end.
PartidaGuardada CasiResuelta() {
    PartidaGuardada p;
    p.juego = 22;
    p.archivable = true;
    p.segundos = 100;
    constexpr int celdas[] = {1, 2, 3, 4, 5, 6, 8, 9};
    for (int i = 1; i <= 8; ++i)
        p.piezas.push_back({XDe(celdas[i - 1]), YDe(celdas[i - 1]), 0, 0, XDe(i), YDe(i), 0, 0});
    p.huecoX = XDe(7);
    p.huecoY = YDe(7);
    return p;
}

class RegistrosVentana : public testing::Test {
protected:
    bool Arranca(const PartidaGuardada& p) {
        programa.EscribeGlobal(p.juego, 100);
        programa.EscribePartida(p);
        return programa.Arranca();
    }
    void PulsaCelda(int c) {
        e.Pulsa(XDe(c) + CELDA / 2, YDe(c) + CELDA / 2);
        e.EsperaQuieto(120);
    }
    // The options panel on the empty table, and one of its rows, from 1.
    void Opcion(int fila) {
        constexpr int x = 40, y = 40;
        e.Pulsa(x, y, 3);
        e.EsperaAtendido();
        e.Pulsa(x + 30, y + fila * 18 - 6);
    }
    bool Abierta(const std::string& titulo) {
        const bool si = e.Espera([&] { return e.BuscaVentana(titulo, marco); });
        e.EsperaQuieto(120);
        return si;
    }
    bool Cerrada(const std::string& titulo) {
        const bool si = e.Espera([&] { return !e.HayVentana(titulo); });
        e.EsperaQuieto(120);
        return si;
    }
    void Escribe(const std::string& texto) {
        for (const char c : texto) e.Tecla(c == ' ' ? "space" : std::string(1, c).c_str());
    }
    // The window's action button, left of the exit.
    void PulsaAccion() { e.Pulsa(marco.x + 298, marco.y + marco.alto - 41); }
    std::string Archivo(const std::string& nombre) {
        return Bytes(programa.Carpeta() + "Archivo/" + nombre);
    }
    static std::string Linea(const std::string& bytes, int n) {
        std::size_t desde = 0;
        for (int i = 1; i < n; ++i) desde = bytes.find('\n', desde) + 1;
        return bytes.substr(desde, bytes.find('\r', desde) - desde);
    }

    Escritorio e{ANCHO, ALTO};
    Programa programa{e};
    Escritorio::Marco marco;
};

TEST_F(RegistrosVentana, SavedTableComesBackAsItWas) {
    ASSERT_TRUE(Arranca(CasiResuelta()));
    PulsaCelda(4);  // down into the hole
    const Foto guardada = e.Mira();
    Opcion(1);
    ASSERT_TRUE(Abierta(GUARDAR));
    Escribe("mi puzzle");
    e.EsperaQuieto(120);
    e.Mira().Guarda("cargua-guardar");
    e.Tecla("Return");
    ASSERT_TRUE(Cerrada(GUARDAR));
    const std::string antes = Archivo("mi puzzle.puz");
    ASSERT_NE(antes, "");

    PulsaCelda(1);
    PulsaCelda(2);
    EXPECT_GT(e.Mira().Diferencia(guardada, 0, 0, BOTONERA, ALTO), 1000);
    Opcion(2);
    ASSERT_TRUE(Abierta(CARGAR));
    // A double click on the only row of the list.
    e.Pulsa(marco.x + 60, marco.y + 108);
    e.Pulsa(marco.x + 60, marco.y + 108);
    ASSERT_TRUE(Cerrada(CARGAR));
    EXPECT_EQ(e.Mira().Diferencia(guardada, 0, 0, BOTONERA, ALTO), 0);
    ASSERT_TRUE(programa.Sale());
    const std::string despues = Bytes(programa.Carpeta() + "TsR2233.ini");
    EXPECT_EQ(Linea(despues, 6), Linea(antes, 6)) << "pieces and stacking order";
    EXPECT_EQ(Linea(despues, 7), Linea(antes, 7)) << "the recorder's log";
    // All of the record but the clock, which has gone on since.
    std::string fijo = Linea(despues, 5);
    fijo.replace(56, 8, Linea(antes, 5), 56, 8);
    EXPECT_EQ(fijo, Linea(antes, 5));
    const PartidaLeida leida = programa.LeePartida(22);
    EXPECT_EQ(leida.movimientos, 1);
    EXPECT_TRUE(leida.archivable);
}

TEST_F(RegistrosVentana, OverwritesAtTheSecondClickAndDeletes) {
    ASSERT_TRUE(Arranca(CasiResuelta()));
    programa.EscribeBytes("Archivo/uno.puz", "viejo");
    programa.EscribeBytes("Archivo/Dos.PUZ", "otro");
    Opcion(1);
    ASSERT_TRUE(Abierta(GUARDAR));
    Escribe("uno");
    PulsaAccion();
    e.EsperaQuieto(120);
    e.Mira().Guarda("cargua-aviso");
    EXPECT_TRUE(e.HayVentana(GUARDAR));
    EXPECT_EQ(Archivo("uno.puz"), "viejo");
    PulsaAccion();
    ASSERT_TRUE(Cerrada(GUARDAR));
    EXPECT_NE(Archivo("uno.puz"), "viejo");

    Opcion(3);
    ASSERT_TRUE(Abierta(BORRAR));
    Escribe("dos");
    e.Tecla("Return");
    e.EsperaQuieto(120);
    EXPECT_EQ(Archivo("Dos.PUZ"), "otro") << "Enter does not delete";
    e.Mira().Guarda("cargua-borrar");
    PulsaAccion();
    e.EsperaQuieto(120);
    EXPECT_FALSE(std::filesystem::exists(programa.Carpeta() + "Archivo/Dos.PUZ"));
    EXPECT_TRUE(e.HayVentana(BORRAR));
    e.Tecla("Escape");
    ASSERT_TRUE(Cerrada(BORRAR));
    ASSERT_TRUE(programa.Sale());
}

TEST_F(RegistrosVentana, NameAndResultStandInTheHistoryInItsFourOrders) {
    ASSERT_TRUE(Arranca(CasiResuelta()));
    programa.EscribeBytes(
        "TESSA33.his",
        "\"1/1/2026\",\"10:00:00\",22,\"\",\"\",\"\",0,0,100,423,423,3,1,0,8,141,141,99,5,20,2,0,"
        "\"Zoe\"\r\n\"1/1/2026\",\"10:00:00\",21,\"\",\"\",\"\",0,0,100,4,4,3,1,0,8,1,1,9,5,20,2,0,"
        "\"Otro\"\r\n");
    programa.PulsaBoton(4);
    ASSERT_TRUE(Abierta(ESTADISTICAS));
    for (int i = 0; i < 9; ++i) e.Tecla("BackSpace");
    Escribe("eva");
    e.EsperaQuieto(120);
    e.Mira().Guarda("estadis-deslizantes");
    e.Tecla("Escape");
    ASSERT_TRUE(Cerrada(ESTADISTICAS));

    PulsaCelda(8);
    PulsaCelda(9);
    ASSERT_TRUE(e.Responde("TESSARIO", false));
    ASSERT_TRUE(e.Responde(HISTORICO, true));
    e.EsperaQuieto();
    const std::string his = Bytes(programa.Carpeta() + "TESSA33.his");
    EXPECT_EQ(std::count(his.begin(), his.end(), '\n'), 3);
    EXPECT_EQ(his.substr(his.size() - 7), "\"eva\"\r\n");

    programa.PulsaBoton(5);
    ASSERT_TRUE(Abierta(HISTORICO));
    // The lines below the place in the list, which is another in each order.
    const auto ficha = [&] {
        e.EsperaQuieto(150);
        Foto todo = e.Mira(), f;
        f.ancho = 398;
        f.alto = 200;
        for (int y = 0; y < f.alto; ++y)
            for (int x = 0; x < f.ancho; ++x)
                f.pixeles.push_back(todo.En(marco.x + 190 + x, marco.y + 30 + 34 + y));
        return f.pixeles;
    };
    const auto zoe = ficha();
    e.Mira().Guarda("historic-deslizantes");
    e.Tecla("End");
    const auto eva = ficha();
    EXPECT_NE(eva, zoe);
    e.Pulsa(marco.x + 95, marco.y + 83);  // by name
    EXPECT_EQ(ficha(), eva);
    e.Mira().Guarda("historic-por-nombre");
    e.Pulsa(marco.x + 95, marco.y + 123);  // by background: both have numbers, Zoe's is harder
    EXPECT_EQ(ficha(), zoe);
    e.Pulsa(marco.x + 95, marco.y + 163);  // by difficulty
    EXPECT_EQ(ficha(), zoe);
    e.Tecla("Next");
    EXPECT_EQ(ficha(), eva);
    e.Pulsa(marco.x + 95, marco.y + 43);  // by date
    EXPECT_EQ(ficha(), zoe);
    e.Pulsa(marco.x + 30 + 4 + 14, marco.y + 250);  // the second bar
    EXPECT_EQ(ficha(), eva);
    e.Tecla("Escape");
    ASSERT_TRUE(Cerrada(HISTORICO));
    ASSERT_TRUE(programa.Sale());
    EXPECT_FALSE(programa.LeePartida(22).archivable);
}

TEST_F(RegistrosVentana, ModelIsSavedAndThenSolved) {
    PartidaGuardada p;
    p.juego = 23;
    p.porLado = 5;
    p.borde = false;
    p.piezas.resize(7);
    for (int i = 0; i < 7; ++i) {
        p.piezas[static_cast<std::size_t>(i)].x = 100 + i % 4 * 190;
        p.piezas[static_cast<std::size_t>(i)].y = 200 + i / 4 * 220;
    }
    ASSERT_TRUE(Arranca(p));
    Opcion(4);
    ASSERT_TRUE(Abierta(MODELO));
    Escribe("mi figura");
    e.EsperaQuieto(120);
    e.Mira().Guarda("cargua-modelo");
    PulsaAccion();
    ASSERT_TRUE(Cerrada(MODELO));
    ASSERT_TRUE(programa.Sale());
    const PartidaLeida puesta = programa.LeePartida(23);
    for (std::size_t i = 0; i < 7; ++i) EXPECT_EQ(puesta.piezas[i].x, p.piezas[i].x) << i + 1;

    const std::string modelos = Archivo("Modelos.tpu");
    const std::size_t desde = modelos.find("mi figura                ");
    ASSERT_NE(desde, std::string::npos);
    ASSERT_EQ(desde % 126, 0U);
    p.modoJuego = 2;
    p.archivable = true;
    p.modelo = static_cast<int>(desde / 126) + 1;
    for (std::size_t i = 0; i < 7; ++i) {
        auto& q = p.piezas[i];
        const std::string bloque = modelos.substr(desde + 25 + i * 10, 10);
        q.xBien = std::stoi(bloque.substr(0, 4));
        q.yBien = std::stoi(bloque.substr(4, 4));
        EXPECT_EQ(q.xBien - p.piezas[0].xBien, p.piezas[i].x - 100) << i + 1;
        q.x = i == 6 ? 600 : q.xBien;  // all home but the last
        q.y = i == 6 ? 600 : q.yBien;
    }
    EXPECT_EQ(p.piezas[0].xBien, ANCHO / 40) << "the figure begins at the margin";
    ASSERT_TRUE(Arranca(p));
    e.Mira().Guarda("modelo-guardado");
    const auto& q = p.piezas[6];
    e.Arrastra(q.x + 66, q.y + 22, q.xBien + 66 + 2, q.yBien + 22 - 2);
    ASSERT_TRUE(e.Responde("TESSARIO", false));
    ASSERT_TRUE(e.Responde(HISTORICO, false));
    ASSERT_TRUE(programa.Sale());
    EXPECT_TRUE(programa.LeePartida(23).terminado);
    EXPECT_FALSE(std::filesystem::exists(programa.Carpeta() + "TESSA33.his"))
        << "the answer was no";
}

}  // namespace
}  // namespace tessario::ventana
