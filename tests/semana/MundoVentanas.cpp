// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QThread>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <utility>

#include "core/Servicios.h"
#include "core/Superficies.h"
#include "qt/Accesible.h"
#include "qt/Estilo.h"
#include "qt/PlataformaQt.h"
#include "qt/VistaVentana.h"
#include "semana/Mundo.h"
#include "session/CopiaSeguridad.h"
#include "start/Arranque.h"

namespace tessario {

namespace {

constexpr double TIC_MS = 1000, MIRADA_MS = 0.02, DIA_S = 86400;

// The shell with a clock of its own: sleeping takes no time, and no sound is waited for.
class Acelerada : public PlataformaQt {
public:
    explicit Acelerada(std::string carpeta) : carpeta_(std::move(carpeta)) {}

    std::function<void(Ventana&)> alAbrir;
    double reloj = 1e6;  // ms: the clock

    // A loop that waits for the hour looks at the clock again and again.
    u32 timeGetTime() override {
        reloj += MIRADA_MS;
        return static_cast<u32>(static_cast<unsigned long long>(reloj));
    }
    double Timer() override { return std::fmod(reloj / 1000, DIA_S); }
    void Duerme(double milisegundos) override {
        PlataformaQt::Duerme(0);
        reloj += std::max(milisegundos, 0.0);
    }
    void Suena(i16 id, bool) override { PlataformaQt::Suena(id, true); }
    void MuestraModal(Ventana& v) override {
        Visita(v, QThread::currentThread()->loopLevel());
        PlataformaQt::MuestraModal(v);
    }
    std::string CarpetaDelPrograma() override { return carpeta_; }
    std::string CarpetaDelSistema() override { return carpeta_ + "datos/"; }

private:
    // As soon as it is on the screen and its own loop runs, one deeper than the one around.
    void Visita(Ventana& v, int nivel) {
        QTimer::singleShot(0, qApp, [this, &v, nivel] {
            const bool abierta = VistaDe(v) != nullptr;
            if (abierta && QThread::currentThread()->loopLevel() <= nivel) return Visita(v, nivel);
            if (abierta && alAbrir) alAbrir(v);
        });
    }

    std::string carpeta_;
};

class EnVentanas : public Mundo {
public:
    EnVentanas() {
        VisteAplicacion();
        InstalaAccesibilidad();
        p_ = std::make_unique<Acelerada>(carpeta_);
        p_->SonidoDeMando = [] { SonidoJuego(1, sonido::TECLA); };
        p_->alAbrir = [this](Ventana& v) {
            if (alAbrir) alAbrir(v);
        };
        PonSistema(p_.get());
    }
    ~EnVentanas() override {
        PonSistema(nullptr);
        p_.reset();
        std::error_code e;
        std::filesystem::remove_all(carpeta_, e);
    }

    bool Arranca() override {
        bool sigue = false;
        p_->Entrega([&] { sigue = Main(); });
        return sigue;
    }
    void Haz(const std::function<void()>& f) override { p_->Entrega(f); }
    void Mueve(Ventana& v, Punto p) override {
        if (QWindow* const w = Marco(v)) QTest::mouseMove(w, lugar_ = {p.x, p.y});
    }
    void Aprieta(Ventana& v) override {
        if (QWindow* const w = Marco(v)) QTest::mousePress(w, Qt::LeftButton, {}, lugar_);
    }
    void Suelta(Ventana& v) override {
        // The press may have closed the window: the release is then lost, as it can be in life.
        QWindow* const w = Marco(v);
        QTest::mouseRelease(w ? w : Marco(Mesa), Qt::LeftButton, {}, lugar_);
    }
    bool HojeaAyuda(int paso) override {
        VentanaAyuda* const ayuda = p_->AyudaAbierta();
        if (!ayuda || !ayuda->isVisible()) return false;
        const QListWidget& indice = ayuda->Indice();
        if (QListWidgetItem* const i = indice.item(paso % std::max(1, indice.count())))
            Q_EMIT ayuda->Indice().itemClicked(i);
        if (paso % 4 == 0) {
            ayuda->Busqueda().setText(paso % 8 == 0 ? QStringLiteral("pieza")
                                                    : QStringLiteral("modelo"));
            QCoreApplication::processEvents();
            ayuda->Busqueda().clear();
        }
        QCoreApplication::processEvents();
        ayuda->close();
        QCoreApplication::processEvents();
        return true;
    }
    void Pasa(double milisegundos) override {
        p_->reloj += milisegundos;
        for (resto_ += milisegundos; resto_ >= TIC_MS; resto_ -= TIC_MS) {
            if (Timer1.Timer) p_->Entrega(Timer1.Timer);
            QCoreApplication::processEvents();
        }
    }
    void Reposa() override {
        EsperaCopia();
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    const std::string& Carpeta() const override { return carpeta_; }

private:
    QWindow* Marco(const Ventana& v) const {
        const VistaVentana* const vista = p_->VistaDe(v);
        return vista ? vista->windowHandle() : nullptr;
    }

    std::string carpeta_ = CarpetaDeSemana();
    std::unique_ptr<Acelerada> p_;
    QPoint lugar_;
    double resto_ = 0;
};

}  // namespace

std::unique_ptr<Mundo> MundoDeVentanas() {
    return std::make_unique<EnVentanas>();
}

}  // namespace tessario
