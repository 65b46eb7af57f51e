// SPDX-License-Identifier: GPL-3.0-or-later
// The order of texts in lists.
#include <gtest/gtest.h>

#include <clocale>

#include "platform/Controles.h"
#include "platform/OrdenTexto.h"

namespace tessario {
namespace {

std::vector<std::string> Ordenados(const std::vector<std::string>& textos) {
    Lista l;
    l.Ordenada = true;
    for (const std::string& t : textos) l.AddItem(t);
    std::vector<std::string> salida;
    for (const auto& e : l.Elementos) salida.push_back(e.Texto);
    return salida;
}

using Nombres = std::vector<std::string>;

TEST(OrdenTexto, CaseDoesNotCountAndEqualTextsKeepTheirArrival) {
    EXPECT_EQ(Ordenados({"beta", "Alfa", "BETA", "alfa"}),
              (Nombres{"Alfa", "alfa", "beta", "BETA"}));
    EXPECT_EQ(Ordenados({"ÉL", "él"}), (Nombres{"ÉL", "él"}));
    EXPECT_EQ(Ordenados({"él", "ÉL"}), (Nombres{"él", "ÉL"}));
}

TEST(OrdenTexto, AccentCountsOnlyBetweenTextsThatAreOtherwiseEqual) {
    EXPECT_EQ(Ordenados({"tomé", "tomo", "tome", "tomés", "tomes"}),
              (Nombres{"tome", "tomé", "tomes", "tomés", "tomo"}));
    EXPECT_EQ(Ordenados({"Ávila", "Avilés", "Zamora", "avión"}),
              (Nombres{"Ávila", "Avilés", "avión", "Zamora"}));
    EXPECT_EQ(Ordenados({"pingüino", "pinguino"}), (Nombres{"pinguino", "pingüino"}));
}

TEST(OrdenTexto, EneIsALetterOfItsOwnAfterN) {
    EXPECT_EQ(Ordenados({"Ocaso", "Ñandú", "nube", "ñu", "Nz"}),
              (Nombres{"nube", "Nz", "Ñandú", "ñu", "Ocaso"}));
    EXPECT_EQ(Ordenados({"caño", "canto", "cano", "CAÑA"}),
              (Nombres{"cano", "canto", "CAÑA", "caño"}));
}

TEST(OrdenTexto, TextStandsBeforeThoseItBeginsAndBlanksAndDigitsBeforeLetters) {
    EXPECT_EQ(Ordenados({"casas", "casa 2", "casa", "casa10", "10"}),
              (Nombres{"10", "casa", "casa 2", "casa10", "casas"}));
    // The accent of the shorter one is looked at only when the letters are all alike.
    EXPECT_EQ(Ordenados({"más", "masa", "mas"}), (Nombres{"mas", "más", "masa"}));
}

TEST(OrdenTexto, LettersBeyondLatin1OfTheFileEncodingJoinTheirBase) {
    EXPECT_EQ(Ordenados({"T", "Šibenik", "sz", "Žilina", "Œuvre", "œuf"}),
              (Nombres{"Šibenik", "sz", "T", "Žilina", "œuf", "Œuvre"}));
}

TEST(OrdenTexto, BytesThatAreNoTextAreNoHarm) {
    const std::string roto = "a\xC3";
    EXPECT_TRUE(VaAntes("a", roto));
    EXPECT_TRUE(VaAntes("\xF0\x9F", "\xF0\x9F\x98\x80") || VaAntes("\xF0\x9F\x98\x80", "\xF0\x9F"));
    EXPECT_FALSE(VaAntes(roto, roto));
}

TEST(OrdenTexto, SameOrderInEveryLocale) {
    const Nombres nombres{"ñ", "n", "o", "Á", "a", "Z"};
    const Nombres esperado{"a", "Á", "n", "ñ", "o", "Z"};
    for (const char* local : {"C", "C.UTF-8", "es_ES.UTF-8", ""}) {
        std::setlocale(LC_ALL, local);
        EXPECT_EQ(Ordenados(nombres), esperado) << local;
    }
    std::setlocale(LC_ALL, "C");
}

TEST(OrdenTexto, FillingAtOnceGivesTheOrderOfOneByOne) {
    const Nombres textos{"b", "A", "á", "a", "Ñ", "n", "B", "a"};
    std::vector<Lista::Elemento> elementos;
    for (const std::string& t : textos)
        elementos.push_back({t, static_cast<i32>(elementos.size())});
    Lista l;
    l.Ordenada = true;
    l.ListIndex = 3;
    l.Rellena(elementos);
    Nombres salida;
    std::vector<i32> datos;
    for (const auto& e : l.Elementos) {
        salida.push_back(e.Texto);
        datos.push_back(e.Dato);
    }
    EXPECT_EQ(salida, Ordenados(textos));
    EXPECT_EQ(datos, (std::vector<i32>{1, 3, 7, 2, 0, 6, 5, 4}));
    EXPECT_EQ(l.ListIndex, -1);
    Lista suelta;
    suelta.Rellena({{"b", 0}, {"a", 1}});
    EXPECT_EQ(suelta.Elementos[0].Texto, "b");
}

}  // namespace
}  // namespace tessario
