// SPDX-License-Identifier: GPL-3.0-or-later
// What is settled about the display before the window library is started.
#include <gtest/gtest.h>

#include "qt/Pantalla.h"

namespace tessario {

TEST(Pantalla, ScaleFactorsAreRoundedDownEachByItself) {
    EXPECT_EQ(EscalasEnteras("1.5"), "1");
    EXPECT_EQ(EscalasEnteras("2"), "2");
    EXPECT_EQ(EscalasEnteras("2.99"), "2");
    EXPECT_EQ(EscalasEnteras("0.5"), "1");
    EXPECT_EQ(EscalasEnteras("DP-1=1.25;HDMI-2=2.5"), "DP-1=1;HDMI-2=2");
    EXPECT_EQ(EscalasEnteras("1.5;3"), "1;3");
    EXPECT_EQ(EscalasEnteras("1.5;"), "1;");
}

TEST(Pantalla, WhatIsNoFactorIsLeftToTheLibrary) {
    for (const char* raro : {"", "x", "DP-1=", "=", ";;", "nan", "1e9", "2x", "-inf"})
        EXPECT_EQ(EscalasEnteras(raro), raro);
}

}  // namespace tessario
