// SPDX-License-Identifier: GPL-3.0-or-later
// The help: pages by topic from the program's resources, with index, search and a way back.
#pragma once

#include <QMap>
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
    void Ancla(QWidget* duena);
    QTextBrowser& Hojas() const { return *hojas_; }
    QListWidget& Indice() const { return *indice_; }
    QLineEdit& Busqueda() const { return *busca_; }
    QLabel& SinHallazgos() const { return *nada_; }  // shown when a search finds nothing

protected:
    void keyPressEvent(QKeyEvent* e) override;

private:
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
    QString actual_;  // page on show
    QTextBrowser* hojas_;
    QListWidget* indice_;
    QLineEdit* busca_;
    QLabel* nada_;
};

}  // namespace tessario
