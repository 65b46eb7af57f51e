// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Cursores.h"

#include <QFile>
#include <QPixmap>
#include <QStringList>
#include <QTextStream>

#include "platform/Controles.h"

namespace tessario {

void Cursores::LeePuntos() {
    leidos_ = true;
    QFile f(QStringLiteral(":/cursores/puntos.txt"));
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text)) return;
    QTextStream lineas(&f);
    while (!lineas.atEnd()) {
        const QStringList campos = lineas.readLine().simplified().split(u' ');
        if (campos.size() < 3 || campos[0].startsWith(u'#')) continue;
        puntos_[campos[0].toLower()] = QPoint(campos[1].toInt(), campos[2].toInt());
    }
}

QCursor Cursores::De(i16 puntero, const std::string& nombre) {
    if (puntero == PUNTERO_RELOJ) return Qt::WaitCursor;
    if (puntero == PUNTERO_PROHIBIDO) return Qt::ForbiddenCursor;
    if (puntero != PUNTERO_PROPIO) return Qt::ArrowCursor;
    if (!leidos_) LeePuntos();
    const QString clave = QString::fromStdString(nombre).toLower();
    const auto i = propios_.find(clave);
    if (i != propios_.end()) return i->second;
    QCursor cursor(Qt::ArrowCursor);
    const QPixmap dibujo(QStringLiteral(":/cursores/%1.png").arg(clave));
    if (!dibujo.isNull()) {
        const auto punto = puntos_.find(clave);
        const QPoint p = punto != puntos_.end() ? punto->second
                                                : QPoint(dibujo.width() / 2, dibujo.height() / 2);
        cursor = QCursor(dibujo, p.x(), p.y());
    }
    propios_.emplace(clave, cursor);
    return cursor;
}

}  // namespace tessario
