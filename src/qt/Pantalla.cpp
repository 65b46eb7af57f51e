// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Pantalla.h"

#include <dlfcn.h>

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QString>
#include <QtGlobal>
#include <algorithm>
#include <charconv>

namespace tessario {

namespace {

// Tries the X server that DISPLAY names. The library is the one that the window library itself
// uses; where it cannot be loaded there is nothing to try with.
bool ServidorXResponde() {
    void* const libreria = dlopen("libxcb.so.1", RTLD_LAZY | RTLD_LOCAL);
    if (!libreria) return false;
    const auto conecta =
        reinterpret_cast<void* (*)(const char*, int*)>(dlsym(libreria, "xcb_connect"));
    const auto falla =
        reinterpret_cast<int (*)(void*)>(dlsym(libreria, "xcb_connection_has_error"));
    const auto deja = reinterpret_cast<void (*)(void*)>(dlsym(libreria, "xcb_disconnect"));
    if (!conecta || !falla || !deja) return false;
    void* const conexion = conecta(nullptr, nullptr);
    const bool responde = conexion && falla(conexion) == 0;
    if (conexion) deja(conexion);
    return responde;
}

bool HayWayland() {
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) return false;
    const QDir plataformas(QLibraryInfo::path(QLibraryInfo::PluginsPath) +
                           QStringLiteral("/platforms"));
    return !plataformas.entryList({QStringLiteral("libqwayland*")}).isEmpty();
}

std::string EscalaEntera(std::string_view factor) {
    double v = 0;
    const char* const fin = factor.data() + factor.size();
    const auto [hasta, error] = std::from_chars(factor.data(), fin, v);
    constexpr double MAYOR = 64;
    if (error != std::errc() || hasta != fin || !(v >= 0 && v < MAYOR)) return std::string(factor);
    return std::to_string(std::max(1, static_cast<int>(v)));
}

}  // namespace

std::string EscalasEnteras(std::string_view valor) {
    std::string enteras;
    while (true) {
        const std::string_view parte = valor.substr(0, valor.find(';'));
        const std::size_t numero = parte.rfind('=') + 1;  // 0 when there is no name
        enteras += std::string(parte.substr(0, numero)) + EscalaEntera(parte.substr(numero));
        if (parte.size() == valor.size()) return enteras;
        enteras += ';';
        valor.remove_prefix(parte.size() + 1);
    }
}

void PideEscalaEntera() {
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::Floor);
    // These pass by the policy.
    for (const char* variable : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS"})
        if (const QByteArray valor = qgetenv(variable); !valor.isEmpty())
            qputenv(variable, QByteArray::fromStdString(EscalasEnteras(valor.toStdString())));
}

bool HayPantalla() {
    // Whoever names a platform that needs no display knows what they do.
    const QString elegida = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (!elegida.isEmpty() && !elegida.startsWith(QStringLiteral("xcb")) &&
        !elegida.startsWith(QStringLiteral("wayland")))
        return true;
    if (HayWayland()) return true;
    return !qEnvironmentVariableIsEmpty("DISPLAY") && ServidorXResponde();
}

}  // namespace tessario
