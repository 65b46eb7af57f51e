// Supplied models in the player's file after an upgrade.
#include <filesystem>

#include "apoyo/PlataformaPrueba.h"
#include "records/Archivo.h"
#include "records/Modelos.h"
#include "records/Surtido.h"

namespace tessario {
namespace {

// A record of this name whose pieces' columns are all the given digit.
std::string Modelo(const std::string& nombre, char cifra = '1') {
    std::string r = RegistroModeloLibre();
    r.replace(0, nombre.size(), nombre);
    r.replace(25, 70, std::string(70, cifra));
    return r;
}

const std::string A = Modelo("Barco"), B = Modelo("Casa"), C = Modelo("Gato");
const std::string PROPIO = Modelo("Mi figura", '7');
const std::string LIBRE = RegistroModeloLibre();

TEST(Surtido, NewOnesComeAtTheEnd) {
    EXPECT_EQ(MezclaSurtido(A + PROPIO, A, C + A + B), A + PROPIO + C + B);
}

TEST(Surtido, WhatThePlayerDeletedStaysDeleted) {
    EXPECT_EQ(MezclaSurtido(LIBRE + B + PROPIO, A + B, A + B + C), LIBRE + B + PROPIO + C);
}

// A free number may be the one of a game that was saved before: it is not handed out anew.
TEST(Surtido, NumbersStay) {
    const std::string mezcla = MezclaSurtido(A + LIBRE + B, A + B, A + B + C);
    EXPECT_EQ(mezcla.substr(2 * LARGO_MODELO, LARGO_MODELO), B);
    EXPECT_EQ(mezcla.substr(LARGO_MODELO, LARGO_MODELO), LIBRE);
}

TEST(Surtido, AMendedOneIsChangedAtItsNumber) {
    const std::string nueva = Modelo("Casa", '2');
    EXPECT_EQ(MezclaSurtido(PROPIO + B + A, A + B, A + nueva), PROPIO + nueva + A);
}

TEST(Surtido, AMendedOneThatThePlayerDeletedOrChangedIsLeftAlone) {
    const std::string nueva = Modelo("Casa", '2'), suya = Modelo("Casa", '5');
    EXPECT_EQ(MezclaSurtido(A + LIBRE, A + B, A + nueva), A + LIBRE);
    EXPECT_EQ(MezclaSurtido(A + suya, A + B, A + nueva), A + suya);
}

TEST(Surtido, WhatIsThereAlreadyIsNotDoubled) {
    EXPECT_EQ(MezclaSurtido(A + C, A, A + C), A + C);
    EXPECT_EQ(MezclaSurtido(A + PROPIO, "", A), A + PROPIO);  // never brought together before
}

// Two of one name in the supply are told apart by their pieces.
TEST(Surtido, ADeletedNamesakeDoesNotOverwriteTheOther) {
    const std::string otroBarco = Modelo("Barco", '4');
    EXPECT_EQ(MezclaSurtido(A, A + otroBarco, A + otroBarco + C), A + C);
}

TEST(Surtido, OnesThatLeftTheSupplyStayWithThePlayer) {
    EXPECT_EQ(MezclaSurtido(A + B, A + B, B), A + B);
}

TEST(Surtido, FreeAndCutRecordsAddNothing) {
    EXPECT_EQ(MezclaSurtido(A, A, A + LIBRE + B.substr(0, 60)), A);
    const std::string mezcla = MezclaSurtido(A + PROPIO.substr(0, 100), A, A + B);
    EXPECT_EQ(mezcla.substr(2 * LARGO_MODELO), B);
    EXPECT_EQ(mezcla.substr(LARGO_MODELO, 100), PROPIO.substr(0, 100));
}

class SurtidoEnDisco : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        std::filesystem::create_directories(Gbl.CarpetaArchivo);
        surtido = Gbl.CarpetaPrograma + "deserie.tpu";
        ASSERT_EQ(EscribeFichero(FicheroModelos(), A), 0);
    }
    std::string Suyos() {
        std::string bytes;
        EXPECT_EQ(LeeFichero(FicheroModelos(), bytes), 0);
        return bytes;
    }
    void Llega(const std::string& bytes) {
        ASSERT_EQ(EscribeFichero(surtido, bytes), 0);
        ActualizaSurtido(surtido, Gbl.CarpetaArchivo);
    }
    std::string surtido;
};

TEST_F(SurtidoEnDisco, TwoUpgradesAndADeletionBetween) {
    Llega(A + B);
    EXPECT_EQ(Suyos(), A + B);
    ASSERT_EQ(EscribeFichero(FicheroModelos(), A + LIBRE + PROPIO), 0);
    Llega(A + B);
    EXPECT_EQ(Suyos(), A + LIBRE + PROPIO);
    Llega(A + B + C);
    EXPECT_EQ(Suyos(), A + LIBRE + PROPIO + C);
}

TEST_F(SurtidoEnDisco, AMissingSupplyTouchesNothing) {
    ActualizaSurtido(Gbl.CarpetaPrograma + "ninguno.tpu", Gbl.CarpetaArchivo);
    EXPECT_EQ(Suyos(), A);
    std::string visto;
    EXPECT_NE(LeeFichero(Gbl.CarpetaArchivo + "SURTIDO.VIS", visto), 0);
}

TEST_F(SurtidoEnDisco, WithoutAFileOfHisOwnThePlayerGetsTheSupply) {
    ASSERT_EQ(std::remove(FicheroModelos().c_str()), 0);
    Llega(A + B);
    EXPECT_EQ(Suyos(), A + B);
}

}  // namespace
}  // namespace tessario
