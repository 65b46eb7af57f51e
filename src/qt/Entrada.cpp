// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Entrada.h"

#include <QImage>
#include <QMimeData>
#include <QUrl>
#include <algorithm>
#include <array>

#include "qt/Imagenes.h"

namespace tessario {

namespace {

struct Par {
    int qt;
    i16 codigo;
};

// Keys that are not letters, digits or function keys.
constexpr std::array<Par, 33> TECLAS{{
    {Qt::Key_Backspace, 8},    {Qt::Key_Tab, 9},          {Qt::Key_Backtab, 9},
    {Qt::Key_Return, 13},      {Qt::Key_Enter, 13},       {Qt::Key_Pause, 19},
    {Qt::Key_Escape, 27},      {Qt::Key_Clear, 12},       {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},      {Qt::Key_PageDown, 34},    {Qt::Key_End, 35},
    {Qt::Key_Home, 36},        {Qt::Key_Left, 37},        {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},       {Qt::Key_Down, 40},        {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},      {Qt::Key_Asterisk, 106},   {Qt::Key_Plus, 107},
    {Qt::Key_Minus, 109},      {Qt::Key_Period, 190},     {Qt::Key_Comma, 188},
    {Qt::Key_Slash, 111},      {Qt::Key_Less, 226},       {Qt::Key_Ntilde, 192},
    {Qt::Key_Apostrophe, 219}, {Qt::Key_exclamdown, 221}, {Qt::Key_Ccedilla, 191},
    {Qt::Key_masculine, 220},  {Qt::Key_Menu, 93},
}};

// Keys that only change what others mean: pressed alone they are no key of the game's.
constexpr std::array<int, 15> SOLO_MODIFICAN{
    Qt::Key_Shift,       Qt::Key_Control,     Qt::Key_Alt,         Qt::Key_AltGr,
    Qt::Key_Meta,        Qt::Key_Super_L,     Qt::Key_Super_R,     Qt::Key_Hyper_L,
    Qt::Key_Hyper_R,     Qt::Key_CapsLock,    Qt::Key_NumLock,     Qt::Key_ScrollLock,
    Qt::Key_Mode_switch, Qt::Key_Direction_L, Qt::Key_Direction_R,
};
constexpr i16 OTRA_TECLA = 255;  // code of a key that has none of its own

// The characters 0x80 to 0x9F of the game's one-byte code, by code point; 0 for none.
constexpr std::array<char16_t, 32> ALTOS{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

}  // namespace

i16 BotonDe(Qt::MouseButton boton) {
    switch (boton) {
        case Qt::LeftButton:
            return 1;
        case Qt::RightButton:
            return 2;
        case Qt::MiddleButton:
            return 4;
        default:
            return 0;
    }
}

i16 BotonesDe(Qt::MouseButtons botones) {
    const int suma = (botones & Qt::LeftButton ? 1 : 0) + (botones & Qt::RightButton ? 2 : 0) +
                     (botones & Qt::MiddleButton ? 4 : 0);
    return static_cast<i16>(suma);
}

i16 ShiftDe(Qt::KeyboardModifiers m) {
    const int suma = (m & Qt::ShiftModifier ? CON_MAYUS : 0) +
                     (m & Qt::ControlModifier ? CON_CONTROL : 0) +
                     (m & Qt::AltModifier ? CON_ALT : 0);
    return static_cast<i16>(suma);
}

i16 ShiftDe(const QKeyEvent& e) {
    return static_cast<i16>(ShiftDe(e.modifiers()) + (e.isAutoRepeat() ? TECLA_REPETIDA : 0));
}

i16 KeyCodeDe(const QKeyEvent& e) {
    const int k = e.key();
    if (std::find(SOLO_MODIFICAN.begin(), SOLO_MODIFICAN.end(), k) != SOLO_MODIFICAN.end())
        return 0;
    if ((k >= Qt::Key_A && k <= Qt::Key_Z) || (k >= Qt::Key_0 && k <= Qt::Key_9))
        return static_cast<i16>(k);
    if (k >= Qt::Key_F1 && k <= Qt::Key_F16) return static_cast<i16>(k - Qt::Key_F1 + 112);
    for (const Par& p : TECLAS)
        if (p.qt == k) return p.codigo;
    return OTRA_TECLA;
}

i16 KeyAsciiDe(const QKeyEvent& e) {
    if (e.key() == Qt::Key_Return || e.key() == Qt::Key_Enter) return 13;
    if (e.key() == Qt::Key_Delete) return 0;
    const QString t = e.text();
    if (t.isEmpty()) return 0;
    const char16_t u = t.at(0).unicode();
    if (u < 0x80 || (u >= 0xA0 && u < 0x100)) return static_cast<i16>(u);
    for (std::size_t i = 0; i < ALTOS.size(); ++i)
        if (ALTOS[i] == u) return static_cast<i16>(0x80 + i);
    return '?';
}

std::vector<std::string> FicherosDe(const QMimeData& datos) {
    std::vector<std::string> rutas;
    const QList<QUrl> urls = datos.urls();
    for (const QUrl& url : urls)
        // The very bytes: a name need be no text.
        if (url.isLocalFile())
            rutas.push_back(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1())
                                .toStdString());
    return rutas;
}

Traido TraidoDe(const QMimeData& datos) {
    Traido t;
    t.Ficheros = FicherosDe(datos);
    if (t.Ficheros.empty() && datos.hasImage())
        t.Dibujo = imagenes::Convierte(qvariant_cast<QImage>(datos.imageData()));
    return t;
}

}  // namespace tessario
