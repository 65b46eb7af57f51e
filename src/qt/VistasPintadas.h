// SPDX-License-Identifier: GPL-3.0-or-later
// Views that show what the game painted or wrote: picture box and label.
#pragma once

#include <QPixmap>

#include "qt/Vista.h"

namespace tessario {

class VistaCuadro : public Vista {
public:
    VistaCuadro(Cuadro& c, MarcoDeVistas& v, QWidget* padre);
    // Pixels painted on the screen since the start, for whoever checks that only changes are.
    long long PixelesPintados() const { return pintados_; }

protected:
    i32 SincronizaPropio() override;
    bool EsBoton() const override;
    bool MuestraPulsada(Qt::MouseButton) const override { return true; }
    void AlPasar(QPointF p) override;
    void AlApretar(QPointF p) override;
    void AlSoltar(QPointF) override;
    void enterEvent(QEnterEvent* e) override;
    void leaveEvent(QEvent*) override;
    void paintEvent(QPaintEvent* e) override;

private:
    static constexpr int NINGUNA = -1;
    i32 MiraCaras();  // returns the area marked
    void MiraCruz();
    int CaraEn(QPointF p) const;
    void Pon(int& cual, int cara);
    void Repinta(int cara);
    void PintaCara(QPainter& p, int cara) const;

    Cuadro& cuadro_;
    std::vector<Cara> caras_, nuevas_;  // as shown; as asked for last
    int bajo_ = NINGUNA;                // the part under the pointer
    int hundida_ = NINGUNA;             // the part that is pressed
    bool conCruz_ = false;              // the keyboard points
    long long pintados_ = 0;
};

class VistaEtiqueta : public Vista {
public:
    VistaEtiqueta(Etiqueta& c, MarcoDeVistas& v, QWidget* padre);

protected:
    i32 SincronizaPropio() override;
    bool EsBoton() const override { return true; }
    void paintEvent(QPaintEvent* e) override;

private:
    Etiqueta& etiqueta_;
    std::string texto_;
    Fuente fuente_, letra_;  // asked for; used, which may be smaller
    Color tinta_ = 0, papel_ = 0;
    bool transparente_ = true, centrada_ = false;
    std::vector<Renglon> renglones_;
    i32 anchoCortado_ = -1, altoCortado_ = -1;
};

// The cross that the keyboard points with: white with a black edge, so that it stands out from any
// ground, and beside it the pointer of what it lies over.
class VistaCruz : public Vista {
public:
    VistaCruz(Cruz& c, MarcoDeVistas& v, QWidget* padre);

protected:
    i32 SincronizaPropio() override;
    void paintEvent(QPaintEvent* e) override;

private:
    QPixmap Puntero() const;
    Cruz& cruz_;
    QPixmap puntero_;  // as it is drawn
};

// Shows the rectangles of `e` from the surface.
void PintaSuperficie(QWidget& w, const Superficie& s, const QPaintEvent& e);

}  // namespace tessario
