// SPDX-License-Identifier: GPL-3.0-or-later
// Views made of a standard widget: scroll bar, text box, lists, and the three lists through which
// a file is chosen.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <functional>

#include "qt/Vista.h"

namespace tessario {

class VistaBarra : public Vista {
public:
    VistaBarra(BarraDesplazamiento& c, MarcoDeVistas& v, QWidget* padre);

protected:
    i32 SincronizaPropio() override;
    QWidget* Interior() override { return barra_; }

private:
    BarraDesplazamiento& c_;
    QScrollBar* barra_;
};

class VistaTexto : public Vista {
public:
    VistaTexto(CajaTexto& c, MarcoDeVistas& v, QWidget* padre);

protected:
    i32 SincronizaPropio() override;
    QWidget* Interior() override { return linea_; }

private:
    CajaTexto& c_;
    QLineEdit* linea_;
    std::string visto_;
    Fuente fuente_;
};

// Rows to choose from. The choice reaches the record after the widget has finished with its own
// event, so that a handler may refill the list or close the window.
class VistaFilas : public Vista {
public:
    VistaFilas(Control& c, MarcoDeVistas& v, QWidget* padre);

protected:
    QWidget* Interior() override { return filas_; }
    virtual void Elegida(int fila) = 0;  // one press, or the arrow keys
    virtual void Confirmada(int) {}      // two presses
    void PonFilas(const QStringList& textos);
    void Marca(int fila);
    void PonMarcas(const std::vector<int>& filas);  // the ticks of these rows
    QListWidget* filas_;

private:
    void Avisa(int fila);
    bool sincronizando_ = false, avisada_ = false;
};

class VistaLista : public VistaFilas {
public:
    VistaLista(Lista& c, MarcoDeVistas& v, QWidget* padre) : VistaFilas(c, v, padre), l_(c) {}

protected:
    i32 SincronizaPropio() override;
    void Elegida(int fila) override;
    void Confirmada(int fila) override;

private:
    Lista& l_;
    std::vector<Lista::Elemento> vistos_;
    i32 indice_ = -1;
    Fuente fuente_;
    bool primera_ = true;
};

// The names of a folder that match the pattern.
class VistaFicheros : public VistaLista {
public:
    VistaFicheros(ListaFicheros& c, MarcoDeVistas& v, QWidget* padre)
        : VistaLista(c, v, padre), f_(c) {}

protected:
    i32 SincronizaPropio() override;

private:
    ListaFicheros& f_;
};

// The way to the folder, then the folders in it; two presses enter one.
class VistaCarpetas : public VistaFilas {
public:
    VistaCarpetas(ListaCarpetas& c, MarcoDeVistas& v, QWidget* padre)
        : VistaFilas(c, v, padre), c_(c) {}

protected:
    i32 SincronizaPropio() override;
    void Elegida(int) override {}
    void Confirmada(int fila) override;
    bool TeclaPropia(const QKeyEvent& e) override;

private:
    ListaCarpetas& c_;
    std::string visto_ = "\1";
    std::vector<std::string> rutas_;  // one for each row
};

// A box whose rows are made anew each time that it opens: media come and go.
class CajaViva : public QComboBox {
public:
    using QComboBox::QComboBox;
    std::function<void()> AntesDeAbrir;
    void showPopup() override {
        if (AntesDeAbrir) AntesDeAbrir();
        QComboBox::showPopup();
    }
};

// The places that the game offers, then those of the machine.
class VistaUnidades : public Vista {
public:
    VistaUnidades(ListaUnidades& c, MarcoDeVistas& v, QWidget* padre);

protected:
    i32 SincronizaPropio() override;
    QWidget* Interior() override { return caja_; }

private:
    void Llena();
    ListaUnidades& c_;
    CajaViva* caja_;
    std::string visto_ = "\1";
};

}  // namespace tessario
