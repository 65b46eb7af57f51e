// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/Accesible.h"

#include <QAccessibleWidget>

#include "qt/Vista.h"

namespace tessario {

namespace {

QAccessible::Role Papel(const Control& c) {
    if (dynamic_cast<const Buleano*>(&c)) return QAccessible::CheckBox;
    if (dynamic_cast<const Selector*>(&c)) return QAccessible::ComboBox;
    if (dynamic_cast<const Potenciometro*>(&c)) return QAccessible::Slider;
    if (dynamic_cast<const Spin*>(&c)) return QAccessible::SpinBox;
    if (dynamic_cast<const Etiqueta*>(&c)) return QAccessible::StaticText;
    if (dynamic_cast<const Cuadro*>(&c))
        return c.TabStop ? QAccessible::PushButton : QAccessible::Graphic;
    return QAccessible::Grouping;  // a standard widget within speaks for itself
}

QString Valor(const Control& c) {
    if (const auto* s = dynamic_cast<const Selector*>(&c)) {
        const auto i = static_cast<std::size_t>(s->Value - 1);
        if (s->Value >= 1 && i < s->Textos.size()) return QString::fromStdString(s->Textos[i]);
    }
    if (const auto* p = dynamic_cast<const Potenciometro*>(&c)) return QString::number(p->Value);
    if (const auto* s = dynamic_cast<const Spin*>(&c)) return QString::number(s->Value);
    return {};
}

// A picture that is one button, by what it shows of its state.
void PonCara(QAccessible::State& s, const Cuadro& c) {
    std::vector<Cara> caras;
    if (c.Caras) c.Caras(caras);
    if (caras.size() != 1) return;
    if (caras[0].Apagada) s.disabled = true;
    s.checkable = s.checked = caras[0].Encendida;
}

class VistaAccesible : public QAccessibleWidget {
public:
    explicit VistaAccesible(Vista& v) : QAccessibleWidget(&v, Papel(v.control())), vista_(v) {}

    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        s.disabled = !vista_.control().Enabled;
        if (const auto* b = dynamic_cast<const Buleano*>(&vista_.control())) {
            s.checkable = true;
            s.checked = b->Value;
        }
        if (const auto* c = dynamic_cast<const Cuadro*>(&vista_.control())) PonCara(s, *c);
        return s;
    }
    QString text(QAccessible::Text t) const override {
        const QString propio = t == QAccessible::Value ? Valor(vista_.control()) : QString();
        return propio.isEmpty() ? QAccessibleWidget::text(t) : propio;
    }
    QStringList actionNames() const override {
        QStringList a = QAccessibleWidget::actionNames();
        if (vista_.control().TabStop && vista_.control().Enabled) a.prepend(pressAction());
        return a;
    }
    void doAction(const QString& accion) override {
        if (accion == pressAction())
            vista_.PulsaTecla();
        else
            QAccessibleWidget::doAction(accion);
    }

private:
    Vista& vista_;
};

QAccessibleInterface* Fabrica(const QString&, QObject* o) {
    auto* const v = dynamic_cast<Vista*>(o);
    return v ? new VistaAccesible(*v) : nullptr;
}

}  // namespace

void InstalaAccesibilidad() {
    QAccessible::installFactory(Fabrica);
}

}  // namespace tessario
