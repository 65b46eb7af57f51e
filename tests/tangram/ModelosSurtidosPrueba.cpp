// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <filesystem>
#include <set>

#include "apoyo/MesaTangram.h"
#include "core/Superficies.h"
#include "pieces/Raster.h"
#include "records/Modelos.h"
#include "records/Texto.h"
#include "session/Dificultad.h"
#include "table/Raton.h"
#include "table/Tutor.h"
#include "tangram/Completado.h"
#include "tangram/Figuras.h"

namespace tessario {

// The file of figures that comes with the game.
class ModelosSurtidos : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        AbreTangram(MODO_CREAR);
        Gbl.ModoJuego = MODO_RESOLVER;
        Gbl.CarpetaArchivo = CARPETA_MODELOS;
        CargaListaModelos(lista);
        ASSERT_GE(lista.ListCount(), 400);
    }

    // A model on the table, its pieces dealt.
    void Abre(const Lista::Elemento& modelo) {
        Gbl.ModeloActual = static_cast<i16>(modelo.Dato);
        LeeModelo();
        CalculaTamanos();
    }
    // Every piece where and how it belongs.
    void Resuelve() {
        for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) {
            const Pieza& p = Gbl.Piezas[i];
            PonPieza(i, p.XBien, p.YBien, p.GiroBien, p.VolteoBien);
        }
    }

    Lista lista;
};

namespace {

constexpr i32 MARGEN = 20;  // of the smallest table

// How far apart two pieces that count as touching may stand, pixels.
constexpr i32 CONTACTO = 3;

bool SeTocan(i16 una, i16 otra) {
    const Region b = RegionEnMesa(otra), a = RegionEnMesa(una);
    for (i32 dy = -CONTACTO; dy <= CONTACTO; ++dy)
        for (i32 dx = -CONTACTO; dx <= CONTACTO; ++dx) {
            Region movida = a;
            movida.Desplaza(dx, dy);
            if (SeCortan(movida, b)) return true;
        }
    return false;
}

std::set<i16> UnidasAlaPrimera() {
    std::set<i16> unidas = {1};
    for (std::size_t antes = 0; antes != unidas.size();) {
        antes = unidas.size();
        for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i)
            for (const i16 k : std::set<i16>(unidas))
                if (!unidas.contains(i) && SeTocan(i, k)) unidas.insert(i);
    }
    return unidas;
}

// Takes a piece by a point inside it and lets it go so that its box lands at (x, y).
void Arrastra(i16 pieza, i32 x, i32 y) {
    const Pieza p = Gbl.Piezas[pieza];
    TPuntoInterior(pieza, p.Giro, p.Volteo);
    const auto px = static_cast<float>(p.X + Gbl.XInterior);
    const auto py = static_cast<float>(p.Y + Gbl.YInterior);
    const auto qx = static_cast<float>(x + Gbl.XInterior),
               qy = static_cast<float>(y + Gbl.YInterior);
    Pic_Trabajo_MouseMove(0, 0, px, py);
    ASSERT_EQ(Gbl.PiezaActual, pieza);
    Pic_Trabajo_MouseDown(1, 0, px, py);
    Pic_Trabajo_MouseMove(1, 0, qx, qy);
    Pic_Trabajo_MouseUp(1, 0, qx, qy);
    Pic_Trabajo_Click();
}

// A row of pixels, cut into stretches of ground: where each begins and ends, and its patch.
struct Tramo {
    i32 desde, hasta;
    std::size_t mancha;
};

std::vector<Tramo> TramosDeFondo(const Pixel* fila, i32 ancho) {
    const Pixel figura = PixelDe(Gbl.ColorContraste);
    std::vector<Tramo> tramos;
    for (i32 x = 0; x < ancho; ++x) {
        if (fila[x] == figura) continue;
        if (tramos.empty() || tramos.back().hasta != x) tramos.push_back({x, x, 0});
        tramos.back().hasta = x + 1;
    }
    return tramos;
}

// Patches of ground on a surface, joined also at corners: their sizes in pixels. The first is the
// open ground at the corner of the table.
class Manchas {
public:
    Manchas(const Superficie& s, i32 ancho, i32 alto) {
        std::vector<Tramo> anterior;
        for (i32 y = 0; y < alto; ++y) {
            auto tramos = TramosDeFondo(s.Fila(y), ancho);
            for (Tramo& t : tramos) Pon(t, anterior);
            anterior = tramos;
        }
    }
    // Of the smallest one that is shut in; a large number when there is none.
    i32 MenorCerrada() const {
        i32 menor = 1000000;
        for (std::size_t i = 1; i < jefe_.size(); ++i)
            if (jefe_[i] == i && Jefe(0) != i) menor = std::min(menor, pixeles_[i]);
        return menor;
    }
    i32 Fondo() const {
        i32 n = 0;
        for (std::size_t i = 0; i < jefe_.size(); ++i) n += jefe_[i] == i ? pixeles_[i] : 0;
        return n;
    }

private:
    std::size_t Jefe(std::size_t i) const {
        while (jefe_[i] != i) i = jefe_[i];
        return i;
    }
    void Pon(Tramo& t, const std::vector<Tramo>& anterior) {
        t.mancha = jefe_.size();
        jefe_.push_back(t.mancha);
        pixeles_.push_back(t.hasta - t.desde);
        for (const Tramo& otro : anterior) {
            const std::size_t a = Jefe(t.mancha), b = Jefe(otro.mancha);
            if (otro.desde > t.hasta || otro.hasta < t.desde || a == b) continue;
            jefe_[std::max(a, b)] = std::min(a, b);
            pixeles_[std::min(a, b)] += pixeles_[std::max(a, b)];
        }
    }
    std::vector<std::size_t> jefe_;
    std::vector<i32> pixeles_;
};

std::vector<Pixel> Copia(const Superficie& s, i32 ancho, i32 alto) {
    std::vector<Pixel> pixeles;
    for (i32 y = 0; y < alto; ++y) pixeles.insert(pixeles.end(), s.Fila(y), s.Fila(y) + ancho);
    return pixeles;
}

std::set<std::string> Titulos(const Lista& lista) {
    std::set<std::string> titulos;
    for (const auto& m : lista.Elementos)
        titulos.insert(m.Texto.substr(0, m.Texto.find_last_not_of(' ') + 1));
    return titulos;
}

}  // namespace

TEST_F(ModelosSurtidos, FileHoldsWholeRecordsAndNothingElse) {
    const auto bytes = std::filesystem::file_size(FICHERO_SURTIDO);
    EXPECT_EQ(bytes % 126, 0U);
    EXPECT_EQ(bytes / 126, static_cast<std::uintmax_t>(lista.ListCount()));
}

TEST_F(ModelosSurtidos, NamesAreReadableAndEachIsUsedOnce) {
    std::set<std::string> nombres;
    for (const auto& m : lista.Elementos) {
        EXPECT_TRUE(nombres.insert(m.Texto).second) << m.Texto;
        EXPECT_NE(m.Texto[0], ' ');
        EXPECT_LE(A1252(m.Texto).size(), 25U) << m.Texto;
        EXPECT_EQ(De1252(A1252(m.Texto)), m.Texto);
        EXPECT_EQ(m.Texto.find('?'), std::string::npos) << m.Texto;
    }
}

TEST_F(ModelosSurtidos, TitlesThatBeginWithTheSameWordStandTogether) {
    std::set<std::string> vistas;
    std::string anterior;
    for (const auto& m : lista.Elementos) {
        const std::string palabra = m.Texto.substr(0, m.Texto.find(' '));
        if (palabra == anterior) continue;
        EXPECT_TRUE(vistas.insert(palabra).second) << m.Texto;
        anterior = palabra;
    }
}

TEST_F(ModelosSurtidos, LettersDigitsAndTheThirteenConvexFiguresAreComplete) {
    const auto nombres = Titulos(lista);
    for (const char* letra : {"A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M", "N",
                              "Ñ", "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z"})
        EXPECT_TRUE(nombres.contains(std::string("Letra ") + letra)) << letra;
    for (char cifra = '0'; cifra <= '9'; ++cifra)
        EXPECT_TRUE(nombres.contains(std::string("Número ") + cifra)) << cifra;
    for (const char* convexa :
         {"Triángulo", "Cuadrado", "Rectángulo", "Romboide", "Trapecio", "Trapecio rectángulo",
          "Trapecio inclinado", "Pentágono", "Pentágono agudo", "Hexágono", "Hexágono alargado",
          "Hexágono inclinado", "Hexágono ladeado"})
        EXPECT_TRUE(nombres.contains(convexa)) << convexa;
}

// The silhouette as the table paints it: no speck of ground is shut in, and the figure covers what
// seven pieces cover, side pixels more or less.
TEST_F(ModelosSurtidos, SilhouetteOnTheSmallestTableIsWholeAndHasNoSpecks) {
    ASSERT_EQ(Gbl.AnchoPantalla, 800);
    ASSERT_EQ(Gbl.AltoPantalla, 600);
    Pic_Imagen.Tamano(800, 600);
    for (const auto& m : lista.Elementos) {
        Abre(m);
        TPintaFigura(Pic_Imagen);
        const i32 ancho = MARGEN + Gbl.AnchoPuzzle + 2, alto = MARGEN + Gbl.AltoPuzzle + 2;
        const Manchas fondo(Pic_Imagen, ancho, alto);
        EXPECT_GE(fondo.MenorCerrada(), 400) << m.Texto;
        EXPECT_NEAR(ancho * alto - fondo.Fondo(), 8 * 62 * 62, 1400) << m.Texto;
    }
}

// Half the share of its box that the figure covers, half what the attraction leaves of 100.
TEST_F(ModelosSurtidos, DifficultyFollowsTheShareOfTheBoxAndStaysInRange) {
    Gbl.FactorAtraccion = 20;
    for (const auto& m : lista.Elementos) {
        Abre(m);
        Pic_FonTamReal.Tamano(800, 600);
        TPintaFigura(Pic_FonTamReal);
        CalculaDificultad();
        const double caja = static_cast<double>(Gbl.AnchoPuzzle) * Gbl.AltoPuzzle;
        const double area = std::min(8.0 * 62 * 62 / caja * 100, 100.0);
        EXPECT_NEAR(static_cast<double>(Gbl.Dificultad), (area + 80) / 2, 2) << m.Texto;
        EXPECT_GE(Gbl.Dificultad, 40) << m.Texto;
        EXPECT_LE(Gbl.Dificultad, 99.9F) << m.Texto;
    }
}

// A flash of each piece takes its part out of the silhouette and puts it back.
TEST_F(ModelosSurtidos, TutorLeavesEverySilhouetteAsItWas) {
    for (const auto& m : lista.Elementos) {
        Abre(m);
        PreparaJuego(true);
        const i32 ancho = MARGEN + Gbl.AnchoPuzzle + 2, alto = MARGEN + Gbl.AltoPuzzle + 2;
        const auto antes = Copia(Pic_Imagen, ancho, alto);
        i32 faltaban = 0;
        P().alDormir = [&] {
            const Pieza& p = Gbl.Piezas[Gbl.PiezaActual];
            TPuntoInterior(Gbl.PiezaActual, p.GiroBien, p.VolteoBien);
            faltaban += Pic_Imagen.Point(p.XBien + Gbl.XInterior, p.YBien + Gbl.YInterior) !=
                        Gbl.ColorContraste;
        };
        Gbl.PiezaActual = static_cast<i16>(1 + m.Dato % PIEZAS_TANGRAM);
        TutorIndicando();
        P().alDormir = nullptr;
        EXPECT_EQ(faltaban, 3) << m.Texto;
        EXPECT_TRUE(Copia(Pic_Imagen, ancho, alto) == antes) << m.Texto;
    }
}

TEST_F(ModelosSurtidos, NoTwoPiecesOverlap) {
    for (const auto& m : lista.Elementos) {
        Abre(m);
        Resuelve();
        for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) EXPECT_EQ(Solapada(i), 0) << m.Texto << i;
    }
}

TEST_F(ModelosSurtidos, PiecesHoldTogether) {
    for (const auto& m : lista.Elementos) {
        Abre(m);
        Resuelve();
        EXPECT_EQ(UnidasAlaPrimera().size(), 7U) << m.Texto;
    }
}

TEST_F(ModelosSurtidos, FigureStandsAtTheMarginsOfTheSmallestTable) {
    for (const auto& m : lista.Elementos) {
        Abre(m);
        TCajaFigura(2);
        EXPECT_EQ(Gbl.CajaIzq, 20) << m.Texto;
        EXPECT_EQ(Gbl.CajaArr, 20) << m.Texto;
        EXPECT_LE(Gbl.CajaDer - 1, 800 - 141 - 20) << m.Texto;
        EXPECT_LE(Gbl.CajaAba - 1, 600 - 20) << m.Texto;
    }
}

TEST_F(ModelosSurtidos, PiecesAtHomeCountSevenAndTwinsMayChangePlaces) {
    for (const auto& m : lista.Elementos) {
        Abre(m);
        PreparaJuego(true);
        EXPECT_LT(CuentaColocadas(), 7) << m.Texto;
        Resuelve();
        EXPECT_EQ(CuentaColocadas(), 7) << m.Texto;
        TCambiaGemela(1);
        EXPECT_EQ(CuentaColocadas(), 5) << m.Texto;
        TCambiaGemela(5);
        EXPECT_EQ(CuentaColocadas(), 3) << m.Texto;
        Resuelve();
        EXPECT_EQ(CuentaColocadas(), 7) << m.Texto;
    }
}

TEST_F(ModelosSurtidos, EveryFigureIsSolvedWithTheMouse) {
    for (const auto& m : lista.Elementos) {
        Abre(m);
        Gbl.PuzzleTerminado = false;
        PreparaJuego(true);
        // Turned aright beforehand and set in a row below the panel's foot, clear of the figure.
        for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) {
            const Pieza p = Gbl.Piezas[i];
            PonPieza(i, 1000 + 200 * i, 480, p.GiroBien, p.VolteoBien);
        }
        for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) {
            EXPECT_FALSE(Gbl.PuzzleTerminado) << m.Texto;
            Arrastra(i, Gbl.Piezas[i].XBien, Gbl.Piezas[i].YBien);
        }
        EXPECT_EQ(Gbl.PiezasColocadas, 7) << m.Texto;
        EXPECT_TRUE(Gbl.PuzzleTerminado) << m.Texto;
    }
}

}  // namespace tessario
