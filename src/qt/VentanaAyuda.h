// SPDX-License-Identifier: GPL-3.0-or-later
// The help: pages by topic from the program's resources, with index, search and a way back.
#pragma once

#include <QMap>
#include <QPointer>
#include <QWidget>

#include "platform/Tipos.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QTextBrowser;

namespace tessario {

class VentanaAyuda : public QWidget {
public:
    VentanaAyuda();
    // Shows a topic; 0 and topics without a page of their own show the start page.
    void Muestra(i32 tema);
    // Ties the window to the one that is on top now, which may be modal: it stays usable beside it.
    // With `lienzo`, the window that fills the screen, it is drawn there and has none of its own;
    // it is then moved by any free place of its edge.
    void Ancla(QWidget* duena, QWidget* lienzo);
    QTextBrowser& Hojas() const { return *hojas_; }
    QListWidget& Indice() const { return *indice_; }
    QLineEdit& Busqueda() const { return *busca_; }
    QLabel& SinHallazgos() const { return *nada_; }  // shown when a search finds nothing

protected:
    bool eventFilter(QObject* o, QEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void hideEvent(QHideEvent* e) override;

private:
    bool Dentro() const { return !isWindow(); }
    void Encaja(QPoint esquina);
    void TomaFoco();
    void DevuelveFoco();
    struct Hoja {
        QString ruta, titulo, texto;  // texto: in lower case, for the search
    };
    struct Grupo {
        QString titulo;
        QStringList rutas;
    };
    void LeeHojas();
    void LeeGrupos();
    void PonHoja(const Hoja& h);
    void RellenaConGrupos();
    void RellenaConHalladas(const QStringList& palabras);
    void RellenaIndice(const QString& buscado);
    void MarcaHalladas();
    void MarcaEnIndice();
    void Abre(const QListWidgetItem* i);

    QList<Hoja> hojasTodas_;
    QList<Grupo> grupos_;
    QString actual_;                   // page on show
    QPointer<QWidget> duena_, antes_;  // below it; had the keyboard before it
    QPoint agarre_;                    // where the pointer holds it
    QTextBrowser* hojas_;
    QListWidget* indice_;
    QLineEdit* busca_;
    QLabel* nada_;
};

}  // namespace tessario
