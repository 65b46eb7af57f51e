// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: a walk through the help. Each act of the walk is made of a few bytes: a topic asked
// for, words looked for, pages and links pressed, ways back and forth, the window sized and closed.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>
#include <algorithm>

#include "Ventanas.h"
#include "mono/Numeros.h"
#include "qt/VentanaAyuda.h"

namespace tessario {
namespace {

constexpr int ACTOS = 60;  // at most in one walk

class Paseo {
public:
    explicit Paseo(Numeros& numeros) : numeros_(numeros) { ayuda_.Muestra(0); }

    void Anda() {
        using Acto = void (Paseo::*)();
        static constexpr Acto TODOS[] = {&Paseo::PideTema,  &Paseo::Busca,      &Paseo::PulsaIndice,
                                         &Paseo::Teclea,    &Paseo::PulsaBoton, &Paseo::PulsaHoja,
                                         &Paseo::Dimensiona};
        for (int i = 0; i < ACTOS && numeros_.Quedan(); ++i) {
            (this->*TODOS[numeros_.Hasta(std::size(TODOS))])();
            QCoreApplication::processEvents();
            Comprueba();
        }
    }

private:
    void PideTema() {
        constexpr i32 TEMAS = 5000;  // those that have a page lie between 1020 and 4060
        ayuda_.Muestra(numeros_.Hasta(TEMAS) - 1);
    }
    void Busca() {
        static const QString LETRAS = QStringLiteral("aeiouñÁü ´.\u00AD\u0301\u0130ßpiezas");
        QString palabra;
        for (i32 n = numeros_.Hasta(12); n > 0; --n)
            palabra += LETRAS[numeros_.Hasta(static_cast<i32>(LETRAS.size()))];
        ayuda_.Busqueda().setText(palabra);
    }
    void PulsaIndice() {
        QListWidget& indice = ayuda_.Indice();
        if (indice.count() == 0) return;
        const QListWidgetItem* const i = indice.item(numeros_.Hasta(indice.count()));
        indice.scrollToItem(i);
        QTest::mouseClick(indice.viewport(), Qt::LeftButton, {}, indice.visualItemRect(i).center());
    }
    void Teclea() {
        static constexpr Qt::Key TECLAS[] = {Qt::Key_Tab,  Qt::Key_Return,   Qt::Key_Escape,
                                             Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Backtab,
                                             Qt::Key_Home, Qt::Key_Backspace};
        QWidget* const quien = ayuda_.focusWidget() ? ayuda_.focusWidget() : &ayuda_;
        QTest::keyClick(quien, TECLAS[numeros_.Hasta(std::size(TECLAS))],
                        numeros_.Hasta(4) == 0 ? Qt::AltModifier : Qt::NoModifier);
        if (!ayuda_.isVisible()) ayuda_.Muestra(0);
    }
    void PulsaBoton() {
        const auto botones = ayuda_.findChildren<QToolButton*>();
        QTest::mouseClick(botones[numeros_.Hasta(static_cast<i32>(botones.size()))],
                          Qt::LeftButton);
        if (!ayuda_.isVisible()) ayuda_.show();
    }
    void PulsaHoja() {
        QWidget* const hoja = ayuda_.Hojas().viewport();
        QTest::mouseClick(hoja, Qt::LeftButton, {},
                          {numeros_.Hasta(hoja->width()), numeros_.Hasta(hoja->height())});
    }
    void Dimensiona() { ayuda_.resize(100 + numeros_.Hasta(900), 100 + numeros_.Hasta(700)); }

    void Comprueba() {
        const QString hoja = ayuda_.Hojas().source().toString(QUrl::RemoveFragment);
        Exige(hoja.startsWith(QStringLiteral("qrc:/ayuda/")), "a page of the help is on show");
        Exige(!ayuda_.Hojas().document()->isEmpty(), "the page has something to read");
        Exige(ayuda_.SinHallazgos().isHidden() == (ayuda_.Indice().count() > 0),
              "the line for nothing found stands when nothing is found");
    }

    Numeros& numeros_;
    VentanaAyuda ayuda_;
};

}  // namespace
}  // namespace tessario

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t n) {
    using namespace tessario;
    AplicacionDeFuzz();
    NumerosDeBytes numeros(bytes, n);
    Paseo(numeros).Anda();
    return 0;
}
