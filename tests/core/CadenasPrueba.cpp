// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "core/Cadenas.h"

namespace tessario {

TEST(Cadenas, LengthCountsCharacters) {
    EXPECT_EQ(Len(""), 0);
    EXPECT_EQ(Len("Ñandú"), 5);
    EXPECT_EQ(Len("€1"), 2);
}

TEST(Cadenas, MidTakesCharactersFromOne) {
    EXPECT_EQ(Mid("Ñandú", 1, 1), "Ñ");
    EXPECT_EQ(Mid("Ñandú", 5, 3), "ú");
    EXPECT_EQ(Mid("Ñandú", 2, 3), "and");
    EXPECT_EQ(Mid("abc", 4, 2), "");
    EXPECT_EQ(Mid("abc", 0, 2), "");
    EXPECT_EQ(Mid("abc", 1, -1), "");
    EXPECT_EQ(Left("señor", 3), "señ");
    EXPECT_EQ(Left("ab", 9), "ab");
}

TEST(Cadenas, TrimTakesBlanksOffTheEndsOnly) {
    EXPECT_EQ(Trim("  a  b "), "a  b");
    EXPECT_EQ(Trim("    "), "");
    EXPECT_EQ(RTrim("  a "), "  a");
    EXPECT_EQ(RTrim("   "), "");
}

TEST(Cadenas, FieldIsCutOrPaddedToItsWidth) {
    EXPECT_EQ(Ajusta("Íñigo", 9), "Íñigo    ");
    EXPECT_EQ(Ajusta("Bartolomé Ruiz", 9), "Bartolomé");
    EXPECT_EQ(Ajusta("", 3), "   ");
}

TEST(Cadenas, LeadingZerosAndTheMinusOnTop) {
    EXPECT_EQ(Ceros(7, 3), "007");
    EXPECT_EQ(Ceros(12345, 4), "12345");
    EXPECT_EQ(Ceros(-12, 4), "-0012");
    EXPECT_EQ(Ceros(0, 1), "0");
    EXPECT_EQ(Ceros(-2147483647 - 1, 4), "-2147483648");
}

TEST(Cadenas, NumberRightAligned) {
    EXPECT_EQ(Derecha(64, 3), " 64");
    EXPECT_EQ(Derecha(640, 3), "640");
    EXPECT_EQ(Derecha(1024, 3), "1024");
    EXPECT_EQ(Derecha(-5, 4), "  -5");
}

TEST(Cadenas, LowerCaseTouchesAsciiOnly) {
    EXPECT_EQ(Minusculas("TsR33.INI Ñ"), "tsr33.ini Ñ");
}

TEST(Cadenas, WholeNumbersWithBlanksAroundAreRead) {
    i32 n = 0;
    EXPECT_TRUE(LeeEntero(" 0042 ", n));
    EXPECT_EQ(n, 42);
    EXPECT_TRUE(LeeEntero("-1", n));
    EXPECT_EQ(n, -1);
    EXPECT_TRUE(LeeEntero("+7", n));
    EXPECT_EQ(n, 7);
    EXPECT_TRUE(LeeEntero("2147483647", n));
    EXPECT_EQ(n, 2147483647);
}

TEST(Cadenas, WhatIsNoWholeNumberKeepsTheValue) {
    for (const char* texto :
         {"", "   ", "1a", "a1", "1 2", "1.5", "2147483648", "--1", "+-1", "+"}) {
        i32 n = 99;
        EXPECT_FALSE(LeeEntero(texto, n)) << texto;
        EXPECT_EQ(n, 99) << texto;
    }
}

TEST(Cadenas, RealNumbersTakePointOrComma) {
    double x = 0;
    EXPECT_TRUE(LeeReal("06.6667", x));
    EXPECT_DOUBLE_EQ(x, 6.6667);
    EXPECT_TRUE(LeeReal("99,9000", x));
    EXPECT_DOUBLE_EQ(x, 99.9);
    EXPECT_TRUE(LeeReal("0 ", x));
    EXPECT_EQ(x, 0);
    for (const char* texto : {"", "  ", "1,2,3", "x", "nan", "inf", "1e999"})
        EXPECT_FALSE(LeeReal(texto, x)) << texto;
}

}  // namespace tessario
