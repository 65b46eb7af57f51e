// SPDX-License-Identifier: GPL-3.0-or-later
#include <unistd.h>

#include <filesystem>

#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "semana/Mundo.h"
#include "session/CopiaSeguridad.h"
#include "start/Arranque.h"

namespace tessario {

namespace fs = std::filesystem;

namespace {

constexpr double TIC_MS = 1000;
constexpr i32 ANCHO_IMAGEN = 640, ALTO_IMAGEN = 480;

class EnPrueba : public Mundo {
public:
    EnPrueba() {
        fs::remove_all(p_.carpeta);
        p_.carpeta = CarpetaDeSemana();
        // The test platform decodes nothing: each file stands for a picture that it keeps.
        for (const auto& f : fs::directory_iterator(p_.carpeta + "Imagenes"))
            p_.imagenes[f.path().string()] = Dibujo(p_.imagenes.size());
        for (const char* v : {"Mensajes", "Personal", "Cargua", "Historic", "Estadis"})
            p_.ventanas[v] = [this](Ventana& abierta) {
                if (alAbrir) alAbrir(abierta);
            };
        PonSistema(&p_);
    }
    ~EnPrueba() override { PonSistema(nullptr); }

    bool Arranca() override { return Main(); }
    void Haz(const std::function<void()>& f) override { f(); }
    void Mueve(Ventana& v, Punto p) override {
        Olvida();
        Puntero(v).Mueve(p.x, p.y);
    }
    void Aprieta(Ventana& v) override {
        p_.botones = BOTON_IZQUIERDO;
        Puntero(v).Aprieta();
    }
    void Suelta(Ventana& v) override {
        p_.botones = 0;
        Puntero(v).Suelta();
    }
    bool HojeaAyuda(int) override {
        const bool habia = !p_.ayudas.empty();
        p_.ayudas.clear();
        return habia;
    }
    void Pasa(double milisegundos) override {
        p_.reloj += milisegundos;
        for (resto_ += milisegundos; resto_ >= TIC_MS; resto_ -= TIC_MS)
            if (Timer1.Timer) Timer1.Timer();
    }
    void Reposa() override {
        Olvida();
        EsperaCopia();
    }
    const std::string& Carpeta() const override { return p_.carpeta; }

private:
    // Every pixel its own, so that pieces differ.
    static Mapa Dibujo(std::size_t cual) {
        Mapa m(ANCHO_IMAGEN, ALTO_IMAGEN);
        for (i32 y = 0; y < m.Alto; ++y)
            for (i32 x = 0; x < m.Ancho; ++x)
                m.Fila(y)[x] =
                    static_cast<Pixel>((x * 255 / m.Ancho) << 16 | (y * 255 / m.Alto) << 8) |
                    static_cast<Pixel>(cual);
        return m;
    }
    PunteroPrueba& Puntero(Ventana& v) { return punteros_.try_emplace(&v, v).first->second; }
    // The test platform notes down what happens; nobody asks it here.
    void Olvida() {
        p_.sonidos.clear();
        p_.avisos.clear();
        p_.mostradas.clear();
        p_.cargadas.clear();
    }

    PlataformaPrueba p_;
    std::map<Ventana*, PunteroPrueba> punteros_;
    double resto_ = 0;
};

}  // namespace

std::unique_ptr<Mundo> MundoDePrueba() {
    return std::make_unique<EnPrueba>();
}

std::string CarpetaDeSemana() {
    const fs::path recursos = TESSARIO_RECURSOS;
    const fs::path carpeta =
        fs::temp_directory_path() / ("tessario-semana-" + std::to_string(getpid()));
    fs::remove_all(carpeta);
    fs::create_directories(carpeta / "Archivo");
    fs::create_directories(carpeta / "Imagenes");
    for (const auto& f : fs::directory_iterator(recursos / "muestras"))
        if (f.is_regular_file()) fs::copy(f.path(), carpeta / "Imagenes" / f.path().filename());
    fs::copy(recursos / "modelos" / "Modelos.tpu", carpeta / "Archivo");
    for (const auto& f : fs::directory_iterator(recursos / "estreno"))
        fs::copy(f.path(), carpeta / f.path().filename());
    return carpeta.string() + "/";
}

}  // namespace tessario
