// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>

#include "qt/Accesible.h"
#include "qt/Estilo.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("SDL_AUDIODRIVER")) qputenv("SDL_AUDIODRIVER", "dummy");
    testing::InitGoogleTest(&argc, argv);
    QApplication aplicacion(argc, argv);
    QApplication::setDoubleClickInterval(400);
    tessario::VisteAplicacion();
    tessario::InstalaAccesibilidad();
    return RUN_ALL_TESTS();
}
