// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Lienzo.h"

#include <QEvent>

namespace tessario {

// The keyboard leaves what lies below as it leaves a window that is no longer in front.
Velo::Velo(QWidget& lienzo) : QWidget(&lienzo), antes_(lienzo.focusWidget()) {
    setAttribute(Qt::WA_NoMousePropagation);
    setCursor(Qt::ArrowCursor);
    Ajusta();
    show();
    setFocus(Qt::ActiveWindowFocusReason);
}

void Velo::Ajusta() {
    setGeometry(parentWidget()->rect());
}

void Velo::Retira() {
    // Before anything is hidden: a widget that goes with the keyboard hands it to the next stop.
    QWidget* const ahora = window()->focusWidget();
    if (ahora == this || isAncestorOf(ahora)) {
        const bool vuelve = antes_ && antes_->isVisible();
        (vuelve ? antes_.data() : parentWidget())->setFocus(Qt::ActiveWindowFocusReason);
    }
    hide();
    deleteLater();
}

// Keys that come before the window is shown are nobody's.
bool Velo::event(QEvent* e) {
    if (e->type() != QEvent::KeyPress && e->type() != QEvent::KeyRelease) return QWidget::event(e);
    e->accept();
    return true;
}

}  // namespace tessario
