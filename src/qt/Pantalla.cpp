#include "qt/Pantalla.h"

#include <dlfcn.h>

#include <QDir>
#include <QLibraryInfo>
#include <QString>
#include <QtGlobal>

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

}  // namespace

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
