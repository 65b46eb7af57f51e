// SPDX-License-Identifier: GPL-3.0-or-later
// Views of the four controls of the settings: switch, selector, knob, spinner.
#pragma once

#include <QTimer>

#include "qt/Vista.h"

namespace tessario {

// What the four have in common: they paint themselves over their container, in glazed tile.
class VistaMando : public Vista {
public:
    VistaMando(Control& c, MarcoDeVistas& v, QWidget* padre) : Vista(c, v, padre) {}

protected:
    i32 SincronizaPropio() override;
    // Everything shown, in one text: a difference means that it must be painted anew.
    virtual std::string Aspecto() const = 0;
    virtual QString Nombre() const = 0;
    void wheelEvent(QWheelEvent* e) override;
    void enterEvent(QEnterEvent*) override { update(); }
    void leaveEvent(QEvent*) override { update(); }
    virtual void Paso(int) {}
    QColor Tinta() const;
    bool Encima() const;  // the pointer is over it, and it can be used
    // The glaze of a part that the pointer is over.
    QColor Esmalte(const QColor& color) const { return Encima() ? color.lighter(112) : color; }
    // Smaller letters or a second line where the text needs them; the rest is left out.
    QRect PintaRotulo(QPainter& p, QRect r, const std::string& texto, Qt::Alignment a) const;

private:
    std::string visto_;
};

class VistaBuleano : public VistaMando {
public:
    VistaBuleano(Buleano& c, MarcoDeVistas& v, QWidget* padre) : VistaMando(c, v, padre), b_(c) {}

protected:
    std::string Aspecto() const override;
    QString Nombre() const override { return QString::fromStdString(b_.Caption); }
    bool TeclaPropia(const QKeyEvent& e) override;
    void AlApretar(QPointF p) override;
    void paintEvent(QPaintEvent* e) override;

private:
    void Cambia();
    Buleano& b_;
};

class VistaSelector : public VistaMando {
public:
    VistaSelector(Selector& c, MarcoDeVistas& v, QWidget* padre) : VistaMando(c, v, padre), s_(c) {}

protected:
    std::string Aspecto() const override;
    QString Nombre() const override { return QString::fromStdString(s_.Caption); }
    bool TeclaPropia(const QKeyEvent& e) override;
    void AlApretar(QPointF p) override;
    void AlSoltar(QPointF p) override;
    void Paso(int n) override;
    void paintEvent(QPaintEvent* e) override;

private:
    QRect Campo() const;
    Selector& s_;
    int hundido_ = 0;  // -1 or 1: the arrow that is held
};

class VistaPotenciometro : public VistaMando {
public:
    VistaPotenciometro(Potenciometro& c, MarcoDeVistas& v, QWidget* padre)
        : VistaMando(c, v, padre), k_(c) {}

protected:
    std::string Aspecto() const override;
    QString Nombre() const override { return QString::fromStdString(k_.Caption); }
    bool TeclaPropia(const QKeyEvent& e) override;
    void AlApretar(QPointF p) override;
    void AlArrastrar(QPointF p) override;
    void Paso(int n) override;
    void paintEvent(QPaintEvent* e) override;

private:
    bool EsRegla() const;  // too flat for a dial: a ruler with a slide
    QRect Regla() const;
    QRect Esfera() const;
    void LlevaA(QPointF p);
    void PonValor(int v);
    void PintaRegla(QPainter& p) const;
    void PintaEsfera(QPainter& p) const;
    Potenciometro& k_;
};

class VistaSpin : public VistaMando {
public:
    VistaSpin(Spin& c, MarcoDeVistas& v, QWidget* padre);

protected:
    std::string Aspecto() const override;
    QString Nombre() const override { return QString::fromStdString(s_.Caption); }
    bool TeclaPropia(const QKeyEvent& e) override;
    void AlApretar(QPointF p) override;
    void AlSoltar(QPointF p) override;
    void Paso(int n) override;
    void paintEvent(QPaintEvent* e) override;

private:
    QRect Boton(int cual) const;  // -1 less, 1 more
    void Avanza(int n);
    Spin& s_;
    int hundido_ = 0;
    QTimer repite_;
};

}  // namespace tessario
