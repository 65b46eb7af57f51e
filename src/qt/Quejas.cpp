// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Quejas.h"

#include <QString>
#include <QtGlobal>
#include <cstdio>

namespace tessario {

namespace {

void Atiende(QtMsgType clase, const QMessageLogContext&, const QString& texto) {
    if (clase == QtFatalMsg) std::fprintf(stderr, "tessario: %s\n", qUtf8Printable(texto));
}

}  // namespace

void CallaQuejas() {
    qInstallMessageHandler(Atiende);
}

}  // namespace tessario
