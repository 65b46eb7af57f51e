// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Anfitrion.h"

#include <QGuiApplication>
#include <QWidget>
#include <algorithm>

namespace tessario {

void Anfitrion::AnotaPulsada(QWidget* quien, Qt::MouseButton boton) {
    TomaPulsada(quien, boton);
    pulsadas_.push_back({quien, boton});
}

bool Anfitrion::TomaPulsada(QWidget* quien, Qt::MouseButton boton) {
    const auto i = std::find_if(pulsadas_.begin(), pulsadas_.end(), [&](const Pulsada& p) {
        return p.quien == quien && p.boton == boton;
    });
    if (i == pulsadas_.end()) return false;
    pulsadas_.erase(i);
    return true;
}

void Anfitrion::OlvidaPulsadas(const QWidget* ventana) {
    std::erase_if(pulsadas_, [&](const Pulsada& p) {
        return !p.quien || p.quien == ventana || ventana->isAncestorOf(p.quien);
    });
}

void Anfitrion::RevisaPulsadas() {
    while (!pulsadas_.empty() && QGuiApplication::mouseButtons() == Qt::NoButton) SueltaPrimera();
}

void Anfitrion::SueltaTodas() {
    while (!pulsadas_.empty()) SueltaPrimera();
}

void Anfitrion::SueltaPrimera() {
    const Pulsada p = pulsadas_.front();
    if (!p.quien) {
        pulsadas_.erase(pulsadas_.begin());
        return;
    }
    // Suelta takes the entry off before it delivers, so a nested call finds it gone.
    if (auto* r = dynamic_cast<RecibeSuelta*>(p.quien.data()))
        r->Suelta(p.boton, p.quien->mapFromGlobal(QPointF(QCursor::pos())));
    TomaPulsada(p.quien, p.boton);
}

}  // namespace tessario
