// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/PlataformaPrueba.h"
#include "records/Historial.h"

namespace tessario {

class Historial : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        Gbl.FinLinea = "\r\n";
        Gbl.FicheroImagen = "lago.jpg";
        Gbl.CarpetaImagen = "/fotos/";
        Gbl.NombrePuzzle =
            "Pe\xC3\xB1"
            "a";  // Peña
        Gbl.AnchoImagen = 640;
        Gbl.AltoImagen = 480;
        Gbl.ZoomImagen = 80;
        Gbl.AnchoPuzzle = 510;
        Gbl.AltoPuzzle = 380;
        Gbl.AnchoCelda = 102;
        Gbl.AltoCelda = 76;
        Gbl.Dificultad = 12.5F;
        Gbl.SegundosJuego = 3723;
        Gbl.NombreJugador = "Jo\"se";
    }
    const std::string esperada =
        "\"20/11/2026\",\"13:54:00\",21,\"lago.jpg\",\"/fotos/\",\"Pe\xF1"
        "a\",640,480,80,510,380,"
        "5,1,0,25,102,76,12.5,3723,20,2,0,\"Jo\"\"se\"";
};

TEST_F(Historial, LineHoldsTheTwentyThreeItemsInOrder) {
    EXPECT_EQ(LineaHistorico(), esperada);
}

TEST_F(Historial, NameWithALineFeedKeepsItsLineWhole) {
    Gbl.FicheroImagen = "la\ngo.jpg";
    Gbl.CarpetaImagen = "/fo\r\ntos/";
    EXPECT_EQ(EntraEnHistorico(), 0);
    const std::string linea = Contenido("TESSA33.his");
    EXPECT_EQ(linea.find('\n'), linea.size() - 1);
    EXPECT_NE(linea.find(std::string("\"la\0go.jpg\"", 11)), std::string::npos);
}

TEST_F(Historial, MissingFileIsCreatedWithOneLine) {
    EXPECT_EQ(EntraEnHistorico(), 0);
    EXPECT_EQ(Contenido("TESSA33.his"), esperada + "\r\n");
}

TEST_F(Historial, LaterResultsGoToTheEnd) {
    EXPECT_EQ(EntraEnHistorico(), 0);
    Gbl.SegundosJuego = 9;
    EXPECT_EQ(EntraEnHistorico(), 0);
    const std::string todo = Contenido("TESSA33.his");
    EXPECT_EQ(todo.find(esperada + "\r\n"), 0U);
    EXPECT_EQ(todo.find("12.5,9,20", esperada.size()), todo.rfind("12.5,9,20"));
    EXPECT_NE(todo.rfind("12.5,9,20"), std::string::npos);
}

TEST_F(Historial, LineWithoutAnEndIsEndedFirst) {
    Crea("TESSA33.his", "vieja");
    EXPECT_EQ(EntraEnHistorico(), 0);
    EXPECT_EQ(Contenido("TESSA33.his"), "vieja\r\n" + esperada + "\r\n");
}

TEST_F(Historial, FileIsFoundWhateverItsLetterCase) {
    Crea("TESSA33.HIS", "vieja\r\n");
    EXPECT_EQ(EntraEnHistorico(), 0);
    EXPECT_EQ(Contenido("TESSA33.HIS"), "vieja\r\n" + esperada + "\r\n");
    EXPECT_EQ(Contenido("TESSA33.his"), "");
}

TEST_F(Historial, LongNameIsCutAtNineCharacters) {
    Gbl.NombreJugador = "Maximiliana";
    const std::string linea = LineaHistorico();
    EXPECT_EQ(linea.substr(linea.rfind(',')), ",\"Maximilia\"");
}

TEST_F(Historial, DifficultyStandsWithAPointAndItsShortestDigits) {
    Gbl.Dificultad = 0.1F;
    EXPECT_NE(LineaHistorico().find(",76,0.1,3723,"), std::string::npos);
    Gbl.Dificultad = 99.9F;
    EXPECT_NE(LineaHistorico().find(",76,99.9,3723,"), std::string::npos);
    Gbl.Dificultad = 47.0F;
    EXPECT_NE(LineaHistorico().find(",76,47,3723,"), std::string::npos);
}

TEST_F(Historial, FolderThatIsNotThereGivesItsErrorAndWritesNothing) {
    Gbl.CarpetaPrograma = P().carpeta + "nada/";
    EXPECT_NE(EntraEnHistorico(), 0);
}

}  // namespace tessario
