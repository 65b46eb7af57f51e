// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "apoyo/PlataformaPrueba.h"
#include "core/Fallos.h"
#include "records/Texto.h"

namespace tessario {

namespace {

class Textos : public PruebaBase {};

}  // namespace

// ---------------------------------------------------------------- encoding

TEST_F(Textos, SpanishLettersTakeOneByteOnDisk) {
    EXPECT_EQ(A1252("Ñandú €"),
              "\xD1"
              "and\xFA \x80");
    EXPECT_EQ(De1252("\xBFQu\xE9?"), "¿Qué?");
    EXPECT_EQ(De1252("\x80\x93\x99"), "€“™");
}

TEST_F(Textos, CharacterWithoutACodeBecomesAQuestionMark) {
    EXPECT_EQ(A1252("a日b"), "a?b");
    EXPECT_EQ(A1252("😀"), "?");
}

TEST_F(Textos, EveryByteComesBack) {
    for (int b = 0; b < 256; ++b) {
        const std::string uno(1, static_cast<char>(b));
        EXPECT_EQ(A1252(De1252(uno)), uno) << b;
    }
}

TEST_F(Textos, BytesThatAreNoUtf8AreReadWithoutHarm) {
    EXPECT_EQ(A1252("a\xFF"
                    "b"),
              "a?b");
    EXPECT_EQ(A1252("\xC3"), "?");
    EXPECT_EQ(A1252("\xE2\x82"), "??");
}

// ---------------------------------------------------------------- quoting and lines

TEST_F(Textos, QuotesInsideAreDoubledAndComeBack) {
    EXPECT_EQ(Entrecomilla("Juan \"El\" Rey"), "\"Juan \"\"El\"\" Rey\"");
    EXPECT_EQ(DeComillas("\"Juan \"\"El\"\" Rey\""), "Juan \"El\" Rey");
    for (const char* t : {"", "\"", "\"\"", " a ", "a\"", "\"a"})
        EXPECT_EQ(DeComillas(Entrecomilla(t)), t);
}

TEST_F(Textos, LineFeedInANameDoesNotSplitItsLine) {
    for (const char* t : {"\n", "mar\nsol.bmp", "mar\r\nsol\r", "\n\"\n"}) {
        const std::string linea = Entrecomilla(t);
        EXPECT_EQ(linea.find('\n'), std::string::npos);
        EXPECT_EQ(DeComillas(linea), t);
        const std::vector<std::string> lineas = Lineas(linea + "\r\n\"otra\"\r\n");
        ASSERT_EQ(lineas.size(), 2U);
        EXPECT_EQ(DeComillas(lineas[0]), t);
    }
}

TEST_F(Textos, FirstQuotedItemOfALine) {
    EXPECT_EQ(DeComillas("\"uno\",\"dos\""), "uno");
    EXPECT_EQ(DeComillas("  \"uno\" "), "uno");
    EXPECT_EQ(DeComillas("\"sin cerrar"), "sin cerrar");
    EXPECT_EQ(DeComillas(" sin comillas "), " sin comillas ");
    EXPECT_EQ(DeComillas("\""), "");
}

TEST_F(Textos, LinesEndInAnyOfTheWays) {
    const std::vector<std::string> esperado{"uno", "", "tres"};
    EXPECT_EQ(Lineas("uno\r\n\r\ntres\r\n"), esperado);
    EXPECT_EQ(Lineas("uno\n\ntres\n"), esperado);
    EXPECT_EQ(Lineas("uno\r\n\r\ntres"), esperado);
    EXPECT_TRUE(Lineas("").empty());
}

// ---------------------------------------------------------------- names

TEST_F(Textos, FileIsFoundWhateverTheCaseOfItsName) {
    const std::string ruta = Crea("Imagenes/Música Nº1.JPG", "x");
    EXPECT_EQ(BuscaRuta(P().carpeta + "IMAGENES/MÚSICA nº1.jpg"), ruta);
    EXPECT_EQ(BuscaRuta(ruta), ruta);
}

TEST_F(Textos, PathWithBackslashesAndDriveIsFound) {
    const std::string ruta = Crea("Imagenes/Lago.bmp", "x");
    std::string otra = "C:" + P().carpeta + "imagenes/LAGO.BMP";
    for (char& c : otra)
        if (c == '/') c = '\\';
    EXPECT_EQ(BuscaRuta(otra), ruta);
}

TEST_F(Textos, PathWrittenInAnotherEncodingIsFound) {
    const std::string ruta = Crea("Imagenes/Otoño.jpg", "x");
    EXPECT_EQ(BuscaRuta(P().carpeta + "Imagenes\\Oto\xF1o.jpg"), ruta);
}

TEST_F(Textos, TheVeryNameComesBeforeOneOfAnotherCase) {
    Crea("a/FOTO.bmp", "x");
    const std::string ruta = Crea("a/foto.bmp", "x");
    EXPECT_EQ(BuscaRuta(P().carpeta + "a/foto.bmp"), ruta);
    EXPECT_EQ(BuscaRuta(P().carpeta + "a/Foto.bmp"), P().carpeta + "a/FOTO.bmp");
}

TEST_F(Textos, PathOfNothingStaysAsItIs) {
    for (const std::string& ruta : {P().carpeta + "no/hay.bmp", std::string("Z:\\no\\hay.bmp"),
                                    std::string(), std::string("a\0b", 3), std::string(5000, 'x')})
        EXPECT_EQ(BuscaRuta(ruta), ruta);
}

// ---------------------------------------------------------------- columns

TEST_F(Textos, ColumnsBeyondTheEndOfALineAreMissing) {
    EXPECT_EQ(DeColumnas("abcdef", {2, 3}), "bcd");
    EXPECT_EQ(DeColumnas("abcdef", {5, 3}), "ef");
    EXPECT_EQ(DeColumnas("abcdef", {7, 3}), "");
    EXPECT_EQ(DeColumnas("abcdef", {4000, 3}), "");
}

TEST_F(Textos, ColumnsTakeWhatFitsAndLeaveTheRest) {
    std::string linea = "..........";
    PonColumnas(linea, {2, 3}, std::string_view("wxyz"));
    PonColumnas(linea, {6, 3}, std::string_view("a"));
    EXPECT_EQ(linea, ".wxy.a....");
    PonColumnas(linea, {1, 2}, 7);
    PonColumnas(linea, {3, 4}, -35);  // the minus sign comes before four digits
    PonColumnas(linea, {9, 2}, 456);
    EXPECT_EQ(linea, "07-003..45");
}

TEST_F(Textos, FieldThatHoldsNoNumberIsAnError) {
    EXPECT_EQ(NumeroDeCampo(" 12 "), 12);
    EXPECT_TRUE(LogicoDeCampo("-1"));
    EXPECT_FALSE(LogicoDeCampo("0 "));
    for (const char* campo : {"", "  ", "1x", "uno"}) {
        const auto error = [&](auto lee) {
            try {
                lee(campo);
            } catch (const ErrorEjecucion& e) {
                return e.Numero;
            }
            return i16{0};
        };
        EXPECT_EQ(error(NumeroDeCampo), 13) << campo;
        EXPECT_EQ(error(LogicoDeCampo), 13) << campo;
    }
}

}  // namespace tessario
