// SPDX-License-Identifier: GPL-3.0-or-later
// Files whose names are no UTF-8, as an old disk or another system leaves them: listed, opened by
// the very bytes, shown as what they mean.
#include <algorithm>
#include <filesystem>
#include <iterator>

#include "apoyo/PartidaEntera.h"
#include "platform/Ficheros.h"
#include "records/Texto.h"
#include "session/Configuracion.h"
#include "session/Montaje.h"
#include "settings/Mandos.h"

namespace tessario {
namespace {

namespace fs = std::filesystem;

// "niño" in Latin-1; bytes that begin a character of UTF-8 and do not end it; a lone follower.
constexpr const char* NINO = "ni\xF1o";
constexpr const char* RAROS[] = {NINO, "a\xC3", "\xF0\x9F", "\x80", "\xBF\xBF\xBF", "\xED\xA0\x80"};

class EntornoNombres : public PartidaEntera {
protected:
    static std::size_t Entradas() {
        const fs::directory_iterator i(Gbl.CarpetaArchivo);
        return static_cast<std::size_t>(std::distance(begin(i), end(i)));
    }
};

TEST_F(EntornoNombres, SavedPuzzlesAreListedLoadedReplacedAndDeleted) {
    Empieza();
    const i16 piece = Gbl.OrdenPiezas[1];
    const Pieza lugar = Gbl.Piezas[piece];
    for (const char* nombre : RAROS) {
        Pon(piece, lugar.X, lugar.Y, lugar.Giro);
        const std::string ruta = Gbl.CarpetaArchivo + nombre + ".puz";
        ASSERT_EQ(GuardaPuzzle(ruta), 0);
        const i16 antes = Gbl.Piezas[piece].X;
        Mueve();
        Carga(nombre);
        EXPECT_NE(visto_.find(std::string(nombre) + "\n"), std::string::npos);
        EXPECT_EQ(Gbl.Piezas[piece].X, antes) << "it is the one of that name";
        EXPECT_TRUE(P().avisos.size() == 1U) << "the welcome";
        Mueve();
        const std::size_t entradas = Entradas();
        Guarda(nombre);
        EXPECT_EQ(Entradas(), entradas) << "in its place";
        EXPECT_EQ(Gbl.NombrePuzzle, TextoDeRuta(nombre));
        const std::string bytes = Contenido(ruta);
        EXPECT_EQ(bytes, EscribePuzzle());
        Borra(nombre);
        EXPECT_FALSE(fs::exists(ruta));
    }
    EXPECT_EQ(TextoDeRuta(NINO), "niño");
    Sale();
}

TEST_F(EntornoNombres, PicturesAreListedAndChosenByTheirBytes) {
    for (const char* nombre : RAROS) PonImagen(std::string(nombre) + ".bmp", 640, 480, 0x102030);
    Empieza();
    const std::vector<std::string> lista = FicherosDe(Gbl.CarpetaImagenes, "*.bmp;*.jpg");
    EXPECT_EQ(lista.size(), 2 + std::size(RAROS));
    for (const char* nombre : RAROS) {
        const std::string fichero = std::string(nombre) + ".bmp";
        P().ventanas["Personal"] = [&](Ventana& v) {
            const auto& filas = personal::File1.Elementos;
            const auto i = std::find_if(filas.begin(), filas.end(),
                                        [&](const auto& e) { return e.Texto == fichero; });
            ASSERT_NE(i, filas.end());
            personal::File1.Selecciona(static_cast<i32>(i - filas.begin()));
            P().respuestas = {true};
            bool cancela = false;
            v.QueryUnload(cancela);
        };
        PulsaOrden(2);
        P().ventanas.erase("Personal");
        EXPECT_EQ(Gbl.FicheroImagen, fichero);
        EXPECT_EQ(Gbl.RutaImagen, Gbl.CarpetaImagenes + fichero);
        // The record keeps the bytes, and finds the picture again.
        Guarda("mío");
        P().avisos.clear();
        Carga("mío");
        EXPECT_TRUE(P().avisos.empty());
        EXPECT_EQ(P().cargadas.back(), Gbl.CarpetaImagenes + fichero);
    }
    Sale();
}

TEST_F(EntornoNombres, ALostOneIsToldByANameThatCanBeRead) {
    PonImagen(std::string(NINO) + ".bmp", 640, 480);
    Empieza();
    Gbl.FicheroImagen = std::string(NINO) + ".bmp";
    Gbl.RutaImagen = Gbl.CarpetaImagenes + Gbl.FicheroImagen;
    Guarda("mío");
    fs::remove(Gbl.RutaImagen);
    P().imagenes.erase(Gbl.RutaImagen);
    P().avisos.clear();
    Carga("mío");
    ASSERT_FALSE(P().avisos.empty());
    EXPECT_NE(P().avisos[0].texto.find("la imagen  niño.bmp ."), std::string::npos)
        << P().avisos[0].texto;
    P().avisos.clear();
    fs::remove(Gbl.CarpetaArchivo + "mío.puz");
    LeeAjustesJuego(Gbl.CarpetaArchivo + NINO + ".puz");
    ASSERT_FALSE(P().avisos.empty());
    EXPECT_NE(P().avisos[0].texto.find("Archivo/niño.puz. Se ha"), std::string::npos)
        << P().avisos[0].texto;
}

// A folder of such a name holds the whole program.
TEST_F(EntornoNombres, TheProgramLivesInAFolderOfSuchAName) {
    const std::string otra = P().carpeta + NINO + "/";
    for (const char* sub : {"", "Archivo", "Imagenes"}) fs::create_directories(otra + sub);
    for (const char* f : {"TsR33.ini", "TsR2133.ini", "TsR2233.ini", "TsR2333.ini",
                          "Archivo/Modelos.tpu", "Imagenes/Puerto.jpg", "Imagenes/Peces.jpg"})
        fs::rename(P().carpeta + f, otra + f);
    for (const char* f : {"Puerto.jpg", "Peces.jpg"})
        P().imagenes[otra + "Imagenes/" + f] = Mapa(640, 480, 0x4080C0);
    const std::string antes = P().carpeta;
    P().carpeta = otra;
    Recorrido();
    EXPECT_EQ(Titulos().count("Error en la carga de datos iniciales"), 0U);
    EXPECT_TRUE(fs::exists(otra + "Archivo/mío.puz"));
    P().carpeta = antes;
}

}  // namespace
}  // namespace tessario
