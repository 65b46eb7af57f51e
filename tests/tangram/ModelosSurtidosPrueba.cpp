#include <filesystem>
#include <set>

#include "apoyo/MesaTangram.h"
#include "core/Superficies.h"
#include "records/Modelos.h"
#include "table/Raton.h"
#include "tangram/Completado.h"

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
        ASSERT_GE(lista.ListCount(), 120);
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
        EXPECT_EQ(m.Texto.find('?'), std::string::npos) << m.Texto;
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
