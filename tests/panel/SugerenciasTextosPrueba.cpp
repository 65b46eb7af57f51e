// SPDX-License-Identifier: GPL-3.0-or-later
// What the hint panel says: every text and help context, and where its letters stand.
#include <fstream>
#include <set>

#include "apoyo/Datos.h"
#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "panel/Sugerencias.h"

namespace tessario {

namespace {

struct Texto {
    i16 numero, contexto;
    std::string texto;
};

std::vector<Texto> Textos() {
    std::ifstream f(std::string(DATOS) + "sugerencias.txt");
    std::vector<Texto> v;
    for (std::string linea; std::getline(f, linea);) {
        if (linea.empty() || linea[0] == '#') continue;
        const auto a = linea.find('|'), b = linea.find('|', a + 1);
        v.push_back({static_cast<i16>(std::stoi(linea)),
                     static_cast<i16>(std::stoi(linea.substr(a + 1))), linea.substr(b + 1)});
    }
    return v;
}

std::size_t Letras(const std::string& utf8) {
    std::size_t n = 0;
    for (const char c : utf8) n += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    return n;
}

class TextosDeSugerencias : public PruebaBase {
protected:
    void SetUp() override {
        PruebaBase::SetUp();
        Gbl.VentanaInformacion = true;
        BarraHor.Top = 583;
        BarraVer.Value = 40;
        CargaSugerencias();
        P().anotaTextos = true;
    }
};

}  // namespace

TEST_F(TextosDeSugerencias, EveryHintHasItsTextToTheLetterAndItsOwnHelp) {
    const std::vector<Texto> textos = Textos();
    ASSERT_EQ(textos.size(), 26U);
    std::set<i16> llenas;
    for (const Texto& t : textos) {
        llenas.insert(t.numero);
        EXPECT_EQ(Gbl.Sugerencias[t.numero].Texto,
                  t.texto + std::string(180 - Letras(t.texto), ' '));
        Sugerencia(t.numero);
        EXPECT_EQ(Gbl.ContextoAyuda, t.contexto) << t.numero;
        P().ayudas.clear();
        Pic_SugeMasAyuda_MouseDown(1, 0, 1, 1);
        EXPECT_EQ(P().ayudas, std::vector<i32>{t.contexto});
    }
    for (i16 i = 0; i <= 80; ++i) {
        if (llenas.contains(i)) continue;
        EXPECT_EQ(Gbl.Sugerencias[i].Texto, "") << i;
        EXPECT_EQ(Gbl.Sugerencias[i].Contexto, 0) << i;
    }
}

TEST_F(TextosDeSugerencias, LinesOfFiftyNineCharactersStandElevenPixelsApart) {
    std::string largo;
    for (int i = 0; i < 180; ++i) largo += static_cast<char>('A' + i % 26);
    Gbl.Sugerencias[10].Texto = largo;
    Sugerencia(10);
    std::vector<PlataformaPrueba::TextoPintado> lineas;
    for (const auto& t : P().textos) {
        if (t.donde == &Pic_Sugerencia) lineas.push_back(t);
        if (t.donde == &Pic_SugeMasAyuda) {
            EXPECT_EQ(t.texto, "más ayuda");
        }
    }
    ASSERT_EQ(lineas.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(lineas[i].x, 3);
        EXPECT_EQ(lineas[i].y, static_cast<i32>(24 + 11 * i));
        EXPECT_EQ(lineas[i].texto, largo.substr(60 * i, 59));
        EXPECT_EQ(lineas[i].color, 0xFF0000U);
    }
    EXPECT_EQ(P().textos.size(), 4U);
}

}  // namespace tessario
