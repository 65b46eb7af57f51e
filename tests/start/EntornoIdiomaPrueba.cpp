// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever language the system speaks, the files are the same to the byte, what one wrote another
// reads, and lists stand in the same order.
#include <clocale>
#include <filesystem>
#include <locale>
#include <map>

#include "apoyo/Idiomas.h"
#include "apoyo/PartidaEntera.h"
#include "core/PuzzGbl.h"
#include "platform/Ficheros.h"
#include "platform/OrdenTexto.h"
#include "records/Historial.h"
#include "session/Montaje.h"

namespace tessario {
namespace {

namespace fs = std::filesystem;

// Numbers as no locale of a system has them worse.
struct NumerosRaros : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\1"; }
    std::string do_truename() const override { return "falso"; }
};

constexpr const char* LLANO = "C";
constexpr const char* RARO = "numbers of our own";
constexpr const char* SIN_PONER = "";  // as the environment says

class EntornoIdioma : public PartidaEntera {
protected:
    static void Habla(const std::string& idioma) {
        if (idioma == RARO) {
            std::locale::global(std::locale(std::locale::classic(), new NumerosRaros));
        } else if (idioma == SIN_PONER) {
            std::setlocale(LC_ALL, "");
        } else {
            std::locale::global(std::locale(idioma));
            std::setlocale(LC_ALL, idioma.c_str());
        }
    }
    static void Calla() {
        std::locale::global(std::locale::classic());
        std::setlocale(LC_ALL, LLANO);
    }
    static std::vector<std::string> Y(const Idiomas& idiomas) {
        std::vector<std::string> todos{LLANO, SIN_PONER, RARO};
        todos.insert(todos.end(), idiomas.Disponibles().begin(), idiomas.Disponibles().end());
        return todos;
    }
    // Every file of the player's, with the folder's name, which is another each time, taken out.
    std::map<std::string, std::string> Ficheros() {
        std::map<std::string, std::string> todos;
        for (const auto& f : fs::recursive_directory_iterator(P().carpeta)) {
            if (!f.is_regular_file()) continue;
            const std::string nombre = f.path().lexically_relative(P().carpeta);
            std::string bytes = Contenido(nombre);
            for (std::size_t i; (i = bytes.find(P().carpeta)) != std::string::npos;)
                bytes.replace(i, P().carpeta.size(), "@");
            todos[nombre] = bytes;
        }
        return todos;
    }
};

TEST_F(EntornoIdioma, AWholeRunLeavesTheSameBytesAndWhatOneWroteAnotherReads) {
    const Idiomas idiomas({"es_ES.UTF-8", "tr_TR.UTF-8"});
    std::map<std::string, std::string> esperado;
    for (const std::string& idioma : Y(idiomas)) {
        Habla(idioma);
        Recorrido();
        Calla();
        const auto ficheros = Ficheros();
        if (esperado.empty()) esperado = ficheros;
        ASSERT_EQ(ficheros.size(), esperado.size()) << idioma;
        for (const auto& [nombre, bytes] : esperado) {
            ASSERT_TRUE(ficheros.contains(nombre)) << idioma << " " << nombre;
            EXPECT_EQ(ficheros.at(nombre), bytes) << idioma << " " << nombre;
        }
        TearDown();
        SetUp();
    }
    EXPECT_NE(esperado["TESSA33.his"].find("."), std::string::npos) << "the difficulty has a point";

    Gbl.Dificultad = 1234.5F;
    Gbl.SegundosJuego = 1234567;
    for (const std::string& escribe : Y(idiomas))
        for (const std::string& lee : Y(idiomas)) {
            Habla(escribe);
            const std::string linea = LineaHistorico();
            Habla(lee);
            RegistroHistorico r;
            EXPECT_TRUE(LeeLineaHistorico(linea, r));
            Calla();
            EXPECT_EQ(r.Nivel, 1234.5F) << escribe << " to " << lee;
            EXPECT_EQ(r.Segundos, 1234567) << escribe << " to " << lee;
        }
}

TEST_F(EntornoIdioma, FilesAreListedInTheSameOrderWhateverTheirLetters) {
    const std::vector<std::string> esperado{"FILI.DIB",     "fili2.dib", "INDIGO.DIB",
                                            "indigo2.gif",  "ISLA.JPG",  "\xCDris.bmp",
                                            "\xEDris2.bmp", "Íris.bmp"};
    // Small letters there are not those of the files' names, and a byte is a letter.
    const Idiomas idiomas({"tr_TR.ISO-8859-9"});
    for (const std::string& nombre : esperado) Crea("lista/" + nombre, "x");
    for (const std::string& idioma : Y(idiomas)) {
        Habla(idioma);
        const std::vector<std::string> lista =
            FicherosDe(P().carpeta + "lista/", "*.bmp;*.dib;*.gif;*.jpg");
        const bool antes = VaAntes("indigo", "ISLA") && VaAntes("ISLA", "isleta");
        Calla();
        EXPECT_TRUE(antes) << idioma;
        EXPECT_EQ(std::set<std::string>(lista.begin(), lista.end()),
                  std::set<std::string>(esperado.begin(), esperado.end()))
            << idioma;
        EXPECT_EQ(std::vector<std::string>(lista.begin(), lista.begin() + 5),
                  std::vector<std::string>(esperado.begin(), esperado.begin() + 5))
            << idioma;
    }
}

}  // namespace
}  // namespace tessario
