// SPDX-License-Identifier: GPL-3.0-or-later
// The program: makes the platform on the real window system and hands over to the game.
#include <QApplication>
#include <QMessageBox>
#include <cstdio>

#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "qt/Accesible.h"
#include "qt/Estilo.h"
#include "qt/Pantalla.h"
#include "qt/PlataformaQt.h"
#include "qt/Quejas.h"
#include "qt/Senales.h"
#include "qt/Unica.h"
#include "session/CopiaSeguridad.h"
#include "settings/Imagen.h"
#include "settings/Mandos.h"
#include "start/Arranque.h"

namespace {

constexpr char SIN_PANTALLA[] =
    "tessario: no hay ninguna pantalla en la que abrir la ventana del juego.\n"
    "Inicie el programa desde una sesión gráfica (variable DISPLAY o WAYLAND_DISPLAY).\n";

void DiYaEnMarcha() {
    QMessageBox::information(nullptr, QStringLiteral("Tessario"),
                             QStringLiteral("Tessario ya está en marcha."));
}

}  // namespace

int main(int argc, char** argv) {
    using namespace tessario;
    if (!HayPantalla()) {
        std::fputs(SIN_PANTALLA, stderr);
        return 1;
    }
    PideEscalaEntera();
    CallaQuejas();
    int sinArgumentos = 1;
    Q_UNUSED(argc)
    QApplication aplicacion(sinArgumentos, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tessario"));
    // No display name of the application: it would be put behind each window's title.
    QGuiApplication::setDesktopFileName(QStringLiteral("tessario"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/imagenes/icono.png")));
    VisteAplicacion();
    InstalaAccesibilidad();

    PlataformaQt plataforma;
    Unica unica(plataforma.CarpetaDelPrograma() + '\n' + plataforma.CarpetaDelSistema());
    if (unica.Resultado() != Unica::Papel::Primera) {
        if (unica.Resultado() == Unica::Papel::Sorda) DiYaEnMarcha();
        return 0;
    }
    unica.AlLlamar([&] { plataforma.TraeAlFrente(); });
    PonSistema(&plataforma);
    plataforma.SonidoDeMando = [] { SonidoJuego(1, sonido::TECLA); };
    plataforma.AlCopiar = [] {
        if (Personal.Abierta) MuestraBotonPortapapeles();
    };
    plataforma.AlApremiar = [] { Gbl.SinPausas = true; };
    const Senales senales([&] {
        CopiaAlTerminar();
        plataforma.Termina();
    });

    bool sigue = false;
    plataforma.Entrega([&] { sigue = Main(); });
    const int estado = sigue ? plataforma.Ejecuta() : 0;
    PonSistema(nullptr);
    return estado;
}
