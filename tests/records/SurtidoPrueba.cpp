// SPDX-License-Identifier: GPL-3.0-or-later
// Supplied models in the player's file after an upgrade.
#include <filesystem>

#include "apoyo/PlataformaPrueba.h"
#include "records/Archivo.h"
#include "records/Modelos.h"
#include "records/Surtido.h"

namespace tessario {
namespace {

// A record of this name whose pieces' columns are all the given digit.
std::string Modelo(const std::string& nombre, char cifra) {
    std::string r = RegistroModeloLibre();
    r.replace(0, nombre.size(), nombre);
    r.replace(25, 70, std::string(70, cifra));
    return r;
}

const std::string A = Modelo("Barco", '1'), B = Modelo("Casa", '2'), C = Modelo("Gato", '3');
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
    const std::string nueva = Modelo("Casa", '8');
    EXPECT_EQ(MezclaSurtido(PROPIO + B + A, A + B, A + nueva), PROPIO + nueva + A);
}

TEST(Surtido, AMendedOneThatThePlayerDeletedOrChangedIsLeftAlone) {
    const std::string nueva = Modelo("Casa", '8'), suya = Modelo("Casa", '5');
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

TEST(Surtido, ANewNamesakeOfOneThatStaysIsAdded) {
    const std::string otroBarco = Modelo("Barco", '4');
    EXPECT_EQ(MezclaSurtido(A + B, A + B, A + B + otroBarco), A + B + otroBarco);
    EXPECT_EQ(MezclaSurtido(LIBRE + B, A + B, A + otroBarco + B), LIBRE + B + otroBarco);
}

TEST(Surtido, ARenamedFigureIsRenamedAtItsNumberAndNotDoubled) {
    const std::string velero = Modelo("Velero", '1');
    EXPECT_EQ(MezclaSurtido(PROPIO + A + B, A + B, B + velero + C), PROPIO + velero + B + C);
}

TEST(Surtido, ARenamedFigureThatThePlayerDeletedOrRenamedIsLeftAlone) {
    const std::string velero = Modelo("Velero", '1'), suyo = Modelo("La barca de Ana", '1');
    EXPECT_EQ(MezclaSurtido(LIBRE + B, A + B, velero + B), LIBRE + B);
    EXPECT_EQ(MezclaSurtido(suyo + B, A + B, velero + B), suyo + B);
    EXPECT_EQ(MezclaSurtido(B, A + B, velero + B), B);
}

// Told by one column of the last piece.
TEST(Surtido, OnlyAllColumnsOfThePiecesMakeTheSameFigure) {
    std::string velero = Modelo("Velero", '1'), lancha = velero;
    velero[94] = '2';
    lancha[25] = '0';
    EXPECT_EQ(MezclaSurtido(A, A, velero + lancha), A + velero + lancha);
    std::string gemelo = Modelo("Velero", '1');
    gemelo[95] = '5';  // behind the pieces
    EXPECT_EQ(MezclaSurtido(A, A, gemelo), gemelo);
}

// The figures go by their pieces, whatever becomes of the names.
TEST(Surtido, NamesThatChangePlaces) {
    const std::string casa = Modelo("Casa", '1'), barco = Modelo("Barco", '2');
    EXPECT_EQ(MezclaSurtido(A + B, A + B, casa + barco), casa + barco);
    EXPECT_EQ(MezclaSurtido(B + A, A + B, casa + barco), barco + casa);
    EXPECT_EQ(MezclaSurtido(A + LIBRE, A + B, casa + barco), casa + LIBRE);
}

// The old figure goes on under another name, and its name goes to one that was not there.
TEST(Surtido, ANameThatGoesToANewFigure) {
    const std::string velero = Modelo("Velero", '1'), barco = Modelo("Barco", '4');
    for (const std::string& nuevo : {barco + velero, velero + barco}) {
        EXPECT_EQ(MezclaSurtido(A + PROPIO, A, nuevo), velero + PROPIO + barco);
        EXPECT_EQ(MezclaSurtido(LIBRE + PROPIO, A, nuevo), LIBRE + PROPIO + barco);
    }
    // One name after the other, a chain: each figure moves one step.
    const std::string casa = Modelo("Casa", '1'), gato = Modelo("Gato", '2');
    EXPECT_EQ(MezclaSurtido(A + B, A + B, casa + gato), casa + gato);
}

// Each former figure becomes one present one and no more, even among namesakes.
TEST(Surtido, NamesakesAreEachTakenOnce) {
    const std::string otroBarco = Modelo("Barco", '4'), velero = Modelo("Velero", '1');
    const std::string remendado = Modelo("Barco", '5'), otroVelero = Modelo("Velero", '9');
    EXPECT_EQ(MezclaSurtido(A + otroBarco, A + otroBarco, velero + remendado), velero + remendado);
    EXPECT_EQ(MezclaSurtido(A + otroVelero, A + otroVelero, velero), velero + otroVelero);
    EXPECT_EQ(MezclaSurtido(LIBRE + otroVelero, A + otroVelero, velero), LIBRE + otroVelero);
    EXPECT_EQ(MezclaSurtido(LIBRE + otroBarco, A + otroBarco, A), LIBRE + otroBarco);
}

// Somebody whose file and supply were never brought together may have figures under a former name.
TEST(Surtido, AFigureThatThePlayerHasUnderAnotherNameIsNotAdded) {
    const std::string velero = Modelo("Velero", '1');
    EXPECT_EQ(MezclaSurtido(A + PROPIO, "", velero + B), A + PROPIO + B);
    EXPECT_EQ(MezclaSurtido(PROPIO, A, A + Modelo("Torre", '7') + B), PROPIO + B);
}

// He copied the new one in himself and kept the old one: none of the two changes.
TEST(Surtido, WhoHasOldAndNewKeepsBoth) {
    const std::string velero = Modelo("Velero", '1');
    EXPECT_EQ(MezclaSurtido(A + velero, A, velero), A + velero);
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

TEST_F(SurtidoEnDisco, ANameThatChangesTwice) {
    Llega(A + B);
    const std::string velero = Modelo("Velero", '1'), yate = Modelo("Yate", '1');
    Llega(velero + B);
    EXPECT_EQ(Suyos(), velero + B);
    Llega(B + yate);
    EXPECT_EQ(Suyos(), yate + B);
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
