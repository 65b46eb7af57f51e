// SPDX-License-Identifier: GPL-3.0-or-later
// The platform on the real window system. It shows any window record through views made from its
// controls, and answers the game's requests for time, text, pictures, sound, clipboard and help.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "platform/Plataforma.h"
#include "qt/Anfitrion.h"
#include "qt/Sonidos.h"
#include "qt/VentanaAyuda.h"

namespace tessario {

class PlataformaQt : public Plataforma, public Anfitrion {
public:
    PlataformaQt();
    ~PlataformaQt() override;

    // The sound of the settings' controls; the game decides whether and how it is heard.
    std::function<void()> SonidoDeMando;
    // The system asks for the end while the game sleeps inside its own work: the rest of that
    // should not be waited for. The end itself comes with the next events.
    std::function<void()> AlApremiar;
    // Some program has put something else on the clipboard.
    std::function<void()> AlCopiar;
    // Windows above the one that fills the screen are drawn within it. So on a window system that
    // does not let a program say where its windows stand, nor what lies above what.
    bool VentanasDentro;
    // The event loop, until Termina. Returns the exit status.
    int Ejecuta();
    // A later start has called: the windows come up, put away or not, the one on top last.
    void TraeAlFrente();
    VistaVentana* VistaDe(const Ventana& v) const;
    VentanaAyuda* AyudaAbierta() const { return ayuda_.get(); }
    Sonidos& sonidos() { return sonidos_; }

    // --- Anfitrion.
    void Entrega(const std::function<void()>& manejador) override;
    void SuenaMando() override;
    void PideCerrar(VistaVentana& v) override;
    void MiraBajoElPuntero(bool forzada) override;
    bool EstaCerrando() const override { return terminando_; }
    const VistaVentana* Modal() const override;

    // --- Plataforma.
    i32 AnchoPantalla() override;
    i32 AltoPantalla() override;
    i32 PruebaModoPantalla(i32, i32) override { return MODO_IMPOSIBLE; }
    i32 CambiaModoPantalla(i32, i32) override { return MODO_IMPOSIBLE; }
    u32 timeGetTime() override;
    double Timer() override;
    std::string Fecha() override;
    std::string Hora() override;
    void Duerme(double milisegundos) override;
    void DejaPasarEventos() override;
    void Presenta() override;
    i16 BotonesApretados() override;
    void Muestra(Ventana& v) override;
    void MuestraModal(Ventana& v) override;
    void Cierra(Ventana& v) override;
    void Minimiza(Ventana& v) override;
    void PonFoco(Control& c) override;
    void Termina() override;
    i32 AnchoTexto(const Fuente& f, std::string_view texto) override;
    i32 AltoTexto(const Fuente& f) override;
    void PintaTexto(Superficie& s, i32 x, i32 y, std::string_view texto, const Fuente& f,
                    Color color) override;
    i32 CargaImagen(const std::string& ruta, Mapa& destino) override;
    i32 MideImagen(const std::string& ruta, i32& ancho, i32& alto) override;
    i32 CargaMuestra(const std::string& ruta, i32 ancho, i32 alto, Mapa& destino) override;
    i32 CargaAjena(const std::string& ruta, Mapa& destino) override;
    i32 GuardaImagen(const std::string& ruta, const Mapa& imagen) override;
    bool RecursoImagen(std::string_view nombre, Mapa& destino) override;
    void Suena(i16 id, bool asincrono) override;
    bool PortapapelesTieneImagen() override;
    bool PortapapelesImagen(Mapa& destino) override;
    std::vector<std::string> PortapapelesFicheros() override;
    void Ayuda(i32 tema) override;
    std::string CarpetaDelPrograma() override;
    std::string CarpetaDelSistema() override;

private:
    static constexpr i32 MODO_IMPOSIBLE = -1;  // the display's mode is the desktop's business

    VistaVentana& Abre(Ventana& v, bool modal);
    VistaVentana* Cima() const;  // the window that is on top
    void Sincroniza(bool ya);
    QWidget* LienzoSobre(const VistaVentana* duena) const;
    void AnclaAyuda();
    void Mira();
    void CambiaPantalla();

    std::vector<VistaVentana*> abiertas_;  // from the bottom up
    std::unique_ptr<VentanaAyuda> ayuda_;
    Sonidos sonidos_;
    QElapsedTimer reloj_;
    long long ultimoPaso_ = 0;    // ns: events were let through
    long long ultimaVuelta_ = 0;  // ns: the last such call returned
    int seguidas_ = 0;            // calls that came at once after the one before
    QTimer espera_;               // until the next look under the pointer
    QTimer copiado_;              // until AlCopiar is told
    QTimer pantalla_;             // until a change of the screen has settled
    bool forzada_ = false;        // it tells though nothing has changed places
    bool terminando_ = false, enMarcha_ = false, sincronizando_ = false;
};

}  // namespace tessario
