// SPDX-License-Identifier: GPL-3.0-or-later
// A test of the shell: a fresh platform on the offscreen screen (800x800), and a hand that moves
// the pointer and presses keys through the window system, as a player does.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <functional>
#include <memory>
#include <string>

#include "qt/PlataformaQt.h"
#include "qt/VistaVentana.h"
#include "start/Juegos.h"

namespace tessario {

class PruebaQt : public testing::Test {
protected:
    void SetUp() override {
        InstalaJuegos();
        plataforma_ = std::make_unique<PlataformaQt>();
        PonSistema(plataforma_.get());
    }
    void TearDown() override {
        // The library remembers a request to leave until its main loop has run.
        if (P().EstaCerrando()) {
            Luego(0, [] { QCoreApplication::exit(0); });
            QApplication::exec();
        }
        PonSistema(nullptr);
        plataforma_.reset();
    }

    PlataformaQt& P() { return *plataforma_; }

    // Puts the controls into the window, 300x200, and shows it.
    void Abre(Ventana& v, std::vector<Control*> controles) {
        if (v.Width() == 0) v.Tamano(300, 200);
        v.Controles = std::move(controles);
        P().Muestra(v);
        Eventos();
    }
    QWindow* Marco(const Ventana& v) { return P().VistaDe(v)->windowHandle(); }
    Vista& DeControl(const Ventana& v, const Control& c) { return *P().VistaDe(v)->VistaDe(c); }

    // --- The pointer, in the window's pixels.
    void Mueve(const Ventana& v, int x, int y) { QTest::mouseMove(Marco(v), {x, y}); }
    void Aprieta(const Ventana& v, int x, int y, Qt::MouseButton b = Qt::LeftButton) {
        QTest::mousePress(Marco(v), b, {}, {x, y});
    }
    void Suelta(const Ventana& v, int x, int y, Qt::MouseButton b = Qt::LeftButton) {
        QTest::mouseRelease(Marco(v), b, {}, {x, y});
        Eventos();
    }
    void Pulsa(const Ventana& v, int x, int y, Qt::MouseButton b = Qt::LeftButton) {
        Aprieta(v, x, y, b);
        Suelta(v, x, y, b);
    }
    void PulsaDosVeces(const Ventana& v, int x, int y) {
        QTest::mouseDClick(Marco(v), Qt::LeftButton, {}, {x, y});
        Eventos();
    }
    void Tecla(const Ventana& v, Qt::Key k, Qt::KeyboardModifiers m = {}) {
        QTest::keyClick(Marco(v), k, m);
        Eventos();
    }
    void Escribe(const Ventana& v, const char* texto) {
        for (const char* c = texto; *c; ++c) QTest::keyClick(Marco(v), *c);
        Eventos();
    }
    void Eventos() {
        for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
    }
    // Something that happens once the loop that comes next is running.
    void Luego(int ms, std::function<void()> f) { QTimer::singleShot(ms, qApp, std::move(f)); }

    QRgb Punto(const Ventana& v, int x, int y) {
        return P().VistaDe(v)->grab().toImage().pixel(x, y) & 0xFFFFFFU;
    }

private:
    std::unique_ptr<PlataformaQt> plataforma_;
};

}  // namespace tessario
