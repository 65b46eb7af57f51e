// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "platform/Controles.h"

namespace tessario {

namespace {

// Sets a control's value as the player would and tells what it then has and how often it told.
template <class T, class Valor>
std::pair<decltype(T::Value), int> Puesto(T& control, Valor v) {
    int veces = 0;
    control.Change = [&] { ++veces; };
    control.Pon(v);
    control.Change = nullptr;
    return {control.Value, veces};
}

std::vector<std::string> Textos(const Lista& l) {
    std::vector<std::string> t;
    for (const auto& e : l.Elementos) t.push_back(e.Texto);
    return t;
}

}  // namespace

TEST(Controles, ScrollBarKeepsTheValueInItsRangeAndTellsOfNewOnes) {
    BarraDesplazamiento b;
    b.Max = 50;
    EXPECT_EQ(Puesto(b, 20), std::pair(20, 1));
    EXPECT_EQ(Puesto(b, 20), std::pair(20, 0));
    EXPECT_EQ(Puesto(b, 99), std::pair(50, 1));
    EXPECT_EQ(Puesto(b, -3), std::pair(0, 1));
    b.Max = -10;  // less than Min
    EXPECT_EQ(Puesto(b, 5), std::pair(0, 0));
}

TEST(Controles, KnobSpinnerSelectorAndSwitchKeepToTheirRanges) {
    Potenciometro p;
    EXPECT_EQ(Puesto(p, i16{130}), std::pair(i16{100}, 1));
    EXPECT_EQ(Puesto(p, i16{-1}), std::pair(i16{0}, 1));
    Spin s;
    s.Min = 3;
    s.Max = 9;
    EXPECT_EQ(Puesto(s, i16{1}), std::pair(i16{3}, 1));
    EXPECT_EQ(Puesto(s, i16{12}), std::pair(i16{9}, 1));
    Selector e;
    EXPECT_EQ(Puesto(e, i16{2}), std::pair(i16{1}, 0));  // nothing to choose from
    e.Textos = {"a", "b", "c"};
    EXPECT_EQ(Puesto(e, i16{9}), std::pair(i16{3}, 1));
    EXPECT_EQ(Puesto(e, i16{0}), std::pair(i16{1}, 1));
    Buleano b;
    EXPECT_EQ(Puesto(b, true), std::pair(true, 1));
    EXPECT_EQ(Puesto(b, true), std::pair(true, 0));
}

TEST(Controles, SortedListKeepsTextOrderAndArrivalAmongEqualTexts) {
    Lista l;
    l.Ordenada = true;
    for (const auto& [texto, dato] : std::vector<std::pair<const char*, i32>>{
             {"012", 0}, {"003", 1}, {"012", 2}, {"003", 3}, {"100", 4}, {"001", 5}})
        l.AddItem(texto, dato);
    std::vector<i32> datos;
    for (const auto& e : l.Elementos) datos.push_back(e.Dato);
    EXPECT_EQ(datos, (std::vector<i32>{5, 1, 3, 0, 2, 4}));
    EXPECT_EQ(l.ListCount(), 6);
}

TEST(Controles, UnsortedListKeepsTheOrderOfArrival) {
    Lista l;
    for (const char* t : {"c", "a", "b"}) l.AddItem(t);
    EXPECT_EQ(Textos(l), (std::vector<std::string>{"c", "a", "b"}));
}

TEST(Controles, ChosenRowStaysChosenWhenOthersComeBeforeIt) {
    Lista l;
    l.Ordenada = true;
    l.AddItem("m");
    int pulsos = 0;
    l.Click = [&] { ++pulsos; };
    l.Selecciona(0);
    EXPECT_EQ(pulsos, 1);
    l.AddItem("z");
    EXPECT_EQ(l.ListIndex, 0);
    l.AddItem("b");
    EXPECT_EQ(l.ListIndex, 1);
    l.Selecciona(7);
    l.Selecciona(-1);
    EXPECT_EQ(l.ListIndex, 1);
    EXPECT_EQ(pulsos, 1);
    l.Clear();
    EXPECT_EQ(l.ListIndex, -1);
    EXPECT_EQ(l.ListCount(), 0);
}

TEST(Controles, TypedTextIsCutByCharactersNotBytes) {
    CajaTexto c;
    c.MaxLength = 4;
    int veces = 0;
    c.Change = [&] { ++veces; };
    c.Escribe("ñandú");
    EXPECT_EQ(c.Text, "ñand");
    EXPECT_EQ(veces, 1);
    c.Escribe("ñandes");
    EXPECT_EQ(veces, 1);
    c.MaxLength = 0;
    c.Escribe("sin límite alguno");
    EXPECT_EQ(c.Text, "sin límite alguno");
    EXPECT_EQ(veces, 2);
}

TEST(Controles, PressIsTheLeftButtonAtTheCorner) {
    Control c;
    Pulsa(c);  // without an event nothing happens
    std::vector<float> dado;
    c.MouseDown = [&](i16 boton, i16 teclas, float x, float y) {
        dado = {static_cast<float>(boton), static_cast<float>(teclas), x, y};
    };
    Pulsa(c);
    EXPECT_EQ(dado, (std::vector<float>{1, 0, 0, 0}));
}

TEST(Controles, PressFollowsAMoveToItsPoint) {
    Control c;
    std::string pasos;
    c.MouseMove = [&](i16 boton, i16, float x, float y) {
        pasos += boton == 0 && x == 0 && y == 0 ? "moved " : "elsewhere ";
    };
    c.MouseDown = [&](i16, i16, float, float) { pasos += "pressed"; };
    Pulsa(c);
    EXPECT_EQ(pasos, "moved pressed");
}

TEST(Controles, PictureBoxHasTheSizeOfItsSurface) {
    Cuadro c;
    c.Tamano(30, -4);
    EXPECT_EQ(c.Width(), 30);
    EXPECT_EQ(c.Height(), 0);
    Control& control = c;
    control.Tamano(8, 9);
    EXPECT_EQ(c.Limites(), (Rect{0, 0, 8, 9}));
    c.Mueve(5, -6);
    EXPECT_EQ(c.Left, 5);
    EXPECT_EQ(c.Top, -6);
}

}  // namespace tessario
