// SPDX-License-Identifier: GPL-3.0-or-later
#include <filesystem>
#include <random>

#include "apoyo/MesaTangram.h"
#include "core/Errores.h"
#include "records/Modelos.h"

namespace tessario {

class Modelos : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        AbreTangram(MODO_CREAR);
        std::filesystem::create_directories(Gbl.CarpetaArchivo);
    }

    std::string Ruta() const { return Gbl.CarpetaArchivo + "Modelos.tpu"; }
    std::string Bytes() { return Contenido(Ruta()); }
    void Escribe(const std::string& bytes) { Crea(Ruta(), bytes); }
    // The names in the list, without the padding, as "number:name".
    std::vector<std::string> Nombres() const {
        Lista lista;
        CargaListaModelos(lista);
        std::vector<std::string> v;
        for (const auto& e : lista.Elementos)
            v.push_back(std::to_string(e.Dato) + ":" +
                        e.Texto.substr(0, e.Texto.find_last_not_of(' ') + 1));
        return v;
    }
};

namespace {

using Textos = std::vector<std::string>;

std::string Rellena(std::string s, std::size_t ancho, char c) {
    s.resize(ancho, c);
    return s;
}

// A record written by hand.
std::string Hecho(const std::string& nombre, const std::string& piezas) {
    return Rellena(nombre, 25, ' ') + Rellena(piezas, 99, '0') + "\r\n";
}

const std::string LIBRE = std::string(25, ' ') + std::string(99, '0') + "\r\n";

// Seven pieces in a row, the leftmost at (300, 150).
void PonFila() {
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i)
        PonPieza(i, 300 + 40 * (i - 1), 150 + 10 * (i - 1), i % 8, i == 7);
}

}  // namespace

TEST_F(Modelos, RecordHas126BytesInFixedColumns) {
    PonFila();
    GuardaModelo("Fila");
    // The box begins at (300, 150), the margins are 20: 300 becomes 20 and 150 becomes 20.
    const std::string piezas =
        "0020002010"
        "0060003020"
        "0100004030"
        "0140005040"
        "0180006050"
        "0220007060"
        "0260008071";
    EXPECT_EQ(Bytes(), Hecho("Fila", piezas));
    EXPECT_EQ(Bytes().size(), 126U);
    EXPECT_EQ(Gbl.ModeloActual, 1);
}

TEST_F(Modelos, SavingLeavesThePiecesWhereTheyStood) {
    PonFila();
    const Arreglo<Pieza> antes = Gbl.Piezas;
    GuardaModelo("Fila");
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) EXPECT_EQ(Gbl.Piezas[i], antes[i]);
}

TEST_F(Modelos, ModelReadBackStandsAtTheMargins) {
    PonFila();
    GuardaModelo("Fila");
    const Arreglo<Pieza> guardadas = Gbl.Piezas;
    AbreTangram(MODO_RESOLVER);
    Gbl.ModeloActual = 1;
    LeeModelo();
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) {
        EXPECT_EQ(Gbl.Piezas[i].XBien, guardadas[i].X - 300 + 20) << i;
        EXPECT_EQ(Gbl.Piezas[i].YBien, guardadas[i].Y - 150 + 20) << i;
        EXPECT_EQ(Gbl.Piezas[i].GiroBien, guardadas[i].Giro) << i;
        EXPECT_EQ(Gbl.Piezas[i].VolteoBien, guardadas[i].Volteo) << i;
    }
    TCajaFigura(2);
    EXPECT_EQ(Gbl.CajaIzq, 20);
    EXPECT_EQ(Gbl.CajaArr, 20);
}

TEST_F(Modelos, ArrangementLeftAndAboveTheMarginsHasNoNegativeNumber) {
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) PonPieza(i, -90 + 10 * i, -35 + i, 1);
    GuardaModelo("Fuera");
    EXPECT_EQ(Bytes().substr(25, 20), "00200020100030002110");
}

TEST_F(Modelos, FreedRecordBetweenTwoIsUsedNext) {
    for (const char* nombre : {"Uno", "Dos", "Tres"}) GuardaModelo(nombre);
    Gbl.ModeloActual = 2;
    BorraModelo();
    EXPECT_EQ(Bytes().substr(126, 126), LIBRE);
    EXPECT_EQ(Nombres(), (Textos{"1:Uno", "3:Tres"}));
    GuardaModelo("Cuatro");
    EXPECT_EQ(Gbl.ModeloActual, 2);
    EXPECT_EQ(Nombres(), (Textos{"1:Uno", "2:Cuatro", "3:Tres"}));
    GuardaModelo("Cinco");
    EXPECT_EQ(Gbl.ModeloActual, 4);
    EXPECT_EQ(Bytes().size(), 4U * 126U);
}

TEST_F(Modelos, BlankRecordGivesSevenPiecesAtTheOrigin) {
    Escribe(LIBRE);
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) Gbl.Piezas[i].XBien = Gbl.Piezas[i].GiroBien = 5;
    Gbl.ModeloActual = 1;
    LeeModelo();
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) {
        EXPECT_EQ(Gbl.Piezas[i].XBien, 0);
        EXPECT_EQ(Gbl.Piezas[i].YBien, 0);
        EXPECT_EQ(Gbl.Piezas[i].GiroBien, 0);
        EXPECT_EQ(Gbl.Piezas[i].VolteoBien, 0);
    }
}

TEST_F(Modelos, BlankNameHidesWhatTheRecordHolds) {
    Escribe(Hecho("", "0999088851"));
    Gbl.ModeloActual = 1;
    LeeModelo();
    EXPECT_EQ(Gbl.Piezas[1].XBien, 0);
    EXPECT_EQ(Gbl.Piezas[1].GiroBien, 0);
}

TEST_F(Modelos, NameOfThirtyCharactersIsCutAt25) {
    GuardaModelo("abcdefghijklmnopqrstuvwxyz1234");
    EXPECT_EQ(Bytes().substr(0, 25), "abcdefghijklmnopqrstuvwxy");
    EXPECT_EQ(Bytes().size(), 126U);
}

TEST_F(Modelos, LongNameWithAccentsIsCutByCharactersNotBytes) {
    GuardaModelo("ñññññññññññññññññññññññññáéíóú");  // 25 and 5
    EXPECT_EQ(Bytes().substr(0, 25), std::string(25, '\xF1'));
    EXPECT_EQ(Bytes().size(), 126U);
    EXPECT_EQ(Nombres(), Textos{"1:ñññññññññññññññññññññññññ"});
}

TEST_F(Modelos, NameIsTrimmed) {
    GuardaModelo("   Cigüeña  ");
    EXPECT_EQ(Bytes().substr(0, 9),
              "Cig\xFC"
              "e\xF1"
              "a  ");
    EXPECT_EQ(Nombres(), Textos{"1:Cigüeña"});
}

TEST_F(Modelos, ListHoldsTheNames25CharactersWide) {
    GuardaModelo("Pez");
    Lista lista;
    lista.AddItem("old", 9);
    CargaListaModelos(lista);
    ASSERT_EQ(lista.ListCount(), 1);
    EXPECT_EQ(lista.Elementos[0].Texto, "Pez" + std::string(22, ' '));
    EXPECT_EQ(lista.Elementos[0].Dato, 1);
}

TEST_F(Modelos, SortedListKeepsTheRecordNumbers) {
    for (const char* nombre : {"Zorro", "Gato", "Pez"}) GuardaModelo(nombre);
    Lista lista;
    lista.Ordenada = true;
    CargaListaModelos(lista);
    ASSERT_EQ(lista.ListCount(), 3);
    EXPECT_EQ(lista.Elementos[0].Dato, 2);
    EXPECT_EQ(lista.Elementos[1].Dato, 3);
    EXPECT_EQ(lista.Elementos[2].Dato, 1);
}

TEST_F(Modelos, TwoModelsMayBearOneName) {
    GuardaModelo("Pez");
    GuardaModelo("Pez");
    EXPECT_EQ(Nombres(), (Textos{"1:Pez", "2:Pez"}));
}

TEST_F(Modelos, MissingFileIsAnEmptyListAndTheFirstSaveMakesIt) {
    EXPECT_TRUE(Nombres().empty());
    EXPECT_FALSE(std::filesystem::exists(Ruta()));
    Gbl.ModeloActual = 3;
    LeeModelo();
    EXPECT_EQ(Gbl.Piezas[1].XBien, 0);
    EXPECT_FALSE(std::filesystem::exists(Ruta()));
    GuardaModelo("Primero");
    EXPECT_EQ(Nombres(), Textos{"1:Primero"});
    EXPECT_EQ(ErrorPendiente(), 0);
}

TEST_F(Modelos, FileIsFoundWhateverTheCaseOfItsName) {
    Crea(Gbl.CarpetaArchivo + "MODELOS.TPU", Hecho("Pez", ""));
    EXPECT_EQ(Nombres(), Textos{"1:Pez"});
    GuardaModelo("Pato");
    EXPECT_FALSE(std::filesystem::exists(Ruta()));
    EXPECT_EQ(Contenido(Gbl.CarpetaArchivo + "MODELOS.TPU").size(), 252U);
}

TEST_F(Modelos, LastRecordCutShortIsAFreeOneAndIsMadeWhole) {
    Escribe(Hecho("Pez", "") + Hecho("Pato", "").substr(0, 60));
    EXPECT_EQ(Nombres(), Textos{"1:Pez"});
    Gbl.ModeloActual = 2;
    LeeModelo();
    EXPECT_EQ(Gbl.Piezas[1].XBien, 0);
    GuardaModelo("Oca");
    EXPECT_EQ(Gbl.ModeloActual, 2);
    EXPECT_EQ(Bytes().size(), 252U);
    EXPECT_EQ(Nombres(), (Textos{"1:Pez", "2:Oca"}));
}

TEST_F(Modelos, LastRecordWithoutItsLineEndIsRead) {
    Escribe(Hecho("Pez", "0033004450").substr(0, 124));
    EXPECT_EQ(Nombres(), Textos{"1:Pez"});
    Gbl.ModeloActual = 1;
    LeeModelo();
    EXPECT_EQ(Gbl.Piezas[1].XBien, 33);
    EXPECT_EQ(Gbl.Piezas[1].YBien, 44);
    EXPECT_EQ(Gbl.Piezas[1].GiroBien, 5);
    GuardaModelo("Pato");
    EXPECT_EQ(Bytes().size(), 252U);
    EXPECT_EQ(Nombres(), (Textos{"1:Pez", "2:Pato"}));
}

TEST_F(Modelos, DamagedFieldsCountAsZero) {
    Escribe(Hecho("Roto",
                  "x0200030901"
                  "-100004052\xFF"
                  "9999999977"));
    Gbl.ModeloActual = 1;
    LeeModelo();
    EXPECT_EQ(Gbl.Piezas[1].XBien, 0);
    EXPECT_LE(Gbl.Piezas[1].GiroBien, 7);
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) {
        EXPECT_GE(Gbl.Piezas[i].XBien, 0);
        EXPECT_LE(Gbl.Piezas[i].XBien, 9999);
        EXPECT_GE(Gbl.Piezas[i].GiroBien, 0);
        EXPECT_LE(Gbl.Piezas[i].GiroBien, 7);
        EXPECT_GE(Gbl.Piezas[i].VolteoBien, 0);
        EXPECT_LE(Gbl.Piezas[i].VolteoBien, 1);
    }
}

TEST_F(Modelos, AnyBytesAtAllAreReadWithoutHarm) {
    std::mt19937 g(3);
    for (int caso = 0; caso < 60; ++caso) {
        std::string bytes(g() % 700, '\0');
        for (char& c : bytes) c = static_cast<char>(g());
        Escribe(bytes);
        Nombres();
        for (const i16 numero : {i16{-1}, i16{0}, i16{1}, i16{4}, i16{32767}}) {
            Gbl.ModeloActual = numero;
            LeeModelo();
            Gbl.ModoJuego = MODO_RESOLVER;
            PreparaJuego(true);
        }
        GuardaModelo("Sano");
        const auto nombres = Nombres();
        EXPECT_NE(
            std::find(nombres.begin(), nombres.end(), std::to_string(Gbl.ModeloActual) + ":Sano"),
            nombres.end());
    }
}

TEST_F(Modelos, NumbersOutsideTheFileEraseNothing) {
    GuardaModelo("Pez");
    const std::string antes = Bytes();
    for (const i16 numero : {i16{0}, i16{-7}, i16{2}, i16{32767}}) {
        Gbl.ModeloActual = numero;
        BorraModelo();
        EXPECT_EQ(Bytes(), antes);
    }
}

TEST_F(Modelos, FolderThatIsMissingLeavesANoteAndNoFile) {
    Gbl.CarpetaArchivo = P().carpeta + "NoHay/";
    PonFila();
    const Arreglo<Pieza> antes = Gbl.Piezas;
    GuardaModelo("Pez");
    EXPECT_NE(ErrorPendiente(), 0);
    for (i16 i = 1; i <= PIEZAS_TANGRAM; ++i) EXPECT_EQ(Gbl.Piezas[i], antes[i]);
    EXPECT_FALSE(std::filesystem::exists(Gbl.CarpetaArchivo));
}

TEST_F(Modelos, FileThatCannotBeReadIsNotReplaced) {
    std::filesystem::create_directory(Ruta());  // a folder in its place
    GuardaModelo("Pez");
    EXPECT_TRUE(std::filesystem::is_directory(Ruta()));
    EXPECT_TRUE(Nombres().empty());
    EXPECT_NE(ErrorPendiente(), 0);
}

TEST_F(Modelos, WithoutPiecesNothingIsSaved) {
    Gbl.Piezas.Redimensiona(0);
    GuardaModelo("Pez");
    EXPECT_FALSE(std::filesystem::exists(Ruta()));
    Escribe(Hecho("Pez", "0033004450"));
    Gbl.ModeloActual = 1;
    LeeModelo();
    EXPECT_EQ(Gbl.Piezas[1].XBien, 33);
}

}  // namespace tessario
