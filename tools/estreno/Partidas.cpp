// SPDX-License-Identifier: GPL-3.0-or-later
#include "Partidas.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <vector>

#include "apoyo/PlataformaPrueba.h"
#include "core/Cadenas.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "jigsaw/Reparto.h"
#include "records/Modelos.h"
#include "rules/Catalogo.h"
#include "rules/Despacho.h"
#include "rules/Medidas.h"
#include "rules/PuzzBas.h"
#include "session/Ampliacion.h"
#include "session/Configuracion.h"
#include "session/Dificultad.h"
#include "start/Arranque.h"

namespace tessario::estreno {

const Lamina LAMINA_MOVILES{"Puerto.jpg", 640, 480}, LAMINA_DESLIZANTES{"Peces.jpg", 640, 480};
const char* const MODELO = "Cisne";

namespace {

constexpr i16 VELOCIDAD = 50;

// The jigsaw: small enough to leave its loose pieces room on the smallest screen.
constexpr i16 ZOOM = 55, LADO_MOVILES = 5;
constexpr double REPARTO = 28800, CENTESIMA = 0.01;  // time of day of the deals, s
constexpr i16 LADO_DESLIZANTES = 4;
constexpr double REPARTO_DESLIZANTES = 43200;

// Blue, green, red; all among the colours that the settings offer.
constexpr Color FONDO_MOVILES = 0x333300, FONDO_DESLIZANTES = 0x663300;
constexpr Color FONDO_TANGRAM = 0x333300, PIEZAS_DEL_TANGRAM = 0x3399FF;
constexpr Color PIEZAS_DESLIZANTES = 0x996633;

// A program just started on a screen of 800 x 600 in a folder of its own, with the defaults of a
// game on the table.
class Estreno {
public:
    explicit Estreno(i16 juego) {
        PonSistema(&plataforma_);
        antes_ = std::filesystem::current_path();  // the start goes into its own folder
        Gbl = Bloque{};
        ReiniciaSuperficies();
        ReiniciaVentanas();
        Gbl.CarpetaPrograma = plataforma_.carpeta;
        Gbl.JuegoActual = juego;
        Gbl.VelocidadJuego = VELOCIDAD;
        Gbl.Sonido = Gbl.VentanaInformacion = true;
        EscribeConfiguracion();
        plataforma_.ventanas["Personal"] = [](Ventana&) {};
        if (!Main()) throw std::runtime_error("the start was refused");
        Gbl.VelocidadJuego = 100;
    }
    ~Estreno() {
        PonSistema(nullptr);
        std::error_code e;
        std::filesystem::current_path(antes_, e);
        std::filesystem::remove_all(plataforma_.carpeta, e);
    }
    Estreno(const Estreno&) = delete;
    Estreno& operator=(const Estreno&) = delete;

    // The picture, of its size; the deal does not ask for what is on it. The program's folder of
    // pictures is wherever the program lies, so that no folder is named.
    static void Pon(const Lamina& lamina) {
        Gbl.UnidadImagen.clear();
        Gbl.CarpetaImagen.clear();
        Gbl.FicheroImagen = Gbl.RutaImagen = lamina.fichero;
        Gbl.AnchoImagen = static_cast<i16>(lamina.ancho);
        Gbl.AltoImagen = static_cast<i16>(lamina.alto);
        Pic_FonTamReal.PonPicture(std::make_shared<Mapa>(lamina.ancho, lamina.alto));
        Pic_FonTamReal.Tamano(lamina.ancho, lamina.alto);
        Gbl.ImagenValida = true;
    }
    void Reparte(double hora) {
        plataforma_.horaDelDia = hora;
        Randomize(hora);
        CalculaTamanos();
        if (Pic_FonTamReal.Width() > 0) AmpliaImagen();
        PreparaJuego(true);
    }
    // A path as it was before the start.
    std::filesystem::path DeAntes(const std::string& ruta) const { return antes_ / ruta; }
    void Da(double hora) { plataforma_.horaDelDia = hora; }
    const std::string& Carpeta() const { return plataforma_.carpeta; }
    static std::string Fichero() {
        CalculaDificultad();
        GuardaAjustesJuego();
        std::ifstream f(FicheroDelJuego(), std::ios::binary);
        return {std::istreambuf_iterator<char>(f), {}};
    }

private:
    PlataformaPrueba plataforma_;
    std::filesystem::path antes_;
};

void AjustaMoviles() {
    Estreno::Pon(LAMINA_MOVILES);
    Gbl.FormaPiezas = forma::IRREGULARES;
    Gbl.PiezasPorCelda = 1;
    Gbl.PiezasPorLado = LADO_MOVILES;
    Gbl.ZoomImagen = ZOOM;
    Gbl.ColorFondo = FONDO_MOVILES;
    // Turning is for later: it is one press in the settings.
    Gbl.PermitirGiro = false;
}

// ---------------------------------------------------------------- a deal that shows every piece

constexpr int REPARTOS = 3000, VUELTAS = 60;  // deals of an attempt, attempts
constexpr i32 HUECO_MAYOR = 6;                // pixels between two pieces, tabs aside

Rect CajaConSaliente(const Pieza& p) {
    return {p.X - Gbl.SalienteX, p.Y - Gbl.SalienteY, p.X + Gbl.AnchoCelda + Gbl.SalienteX,
            p.Y + Gbl.AltoCelda + Gbl.SalienteY};
}

bool Toca(const Rect& a, const Rect& b) {
    return a.Izq < b.Der && b.Izq < a.Der && a.Arr < b.Aba && b.Arr < a.Aba;
}

Rect SitioDe(const Control& c) {
    return RectDe(c.Left, c.Top, c.Width(), c.Height());
}

// On the part of the table for loose pieces, with nothing lying above, and clear of the place where
// the puzzle is built.
bool Despejada(const Pieza& p) {
    const Rect caja = CajaConSaliente(p);
    if (caja.Izq < 0 || caja.Arr < 0 || caja.Der > ANCHO_SUELTAS || caja.Aba > ALTO_SUELTAS)
        return false;
    if (Toca(caja, {0, 0, Gbl.AnchoPuzzle, Gbl.AltoPuzzle})) return false;
    for (const Cuadro* c : {&Pic_Botonera, &Pic_Sugerencia, &Pic_Muestra})
        if (Toca(caja, SitioDe(*c))) return false;
    return true;
}

bool Cerca(const Pieza& a, const Pieza& b, i32 hueco) {
    return Toca(RectDe(a.X, a.Y, Gbl.AnchoCelda + hueco, Gbl.AltoCelda + hueco),
                RectDe(b.X, b.Y, Gbl.AnchoCelda + hueco, Gbl.AltoCelda + hueco));
}

// Deals again and again, and leaves each piece at the first place it is dealt to that is free.
// False: not all have found one.
bool ReparteDespejado(Estreno& e, double hora, i32 hueco) {
    std::vector<Pieza> quietas(static_cast<std::size_t>(Gbl.NumPiezas) + 1);
    std::vector<i16> sueltas, puestas;
    for (i16 i = 1; i <= Gbl.NumPiezas; ++i) sueltas.push_back(i);
    const auto quieta = [&](i16 i) -> Pieza& { return quietas[static_cast<std::size_t>(i)]; };
    for (int n = 0; n < REPARTOS && !sueltas.empty(); ++n) {
        e.Da(hora + n * CENTESIMA);
        BarajaMoviles();
        std::erase_if(sueltas, [&](i16 i) {
            const Pieza& p = Gbl.Piezas[i];
            if (!Despejada(p)) return false;
            for (const i16 otra : puestas)
                if (Cerca(p, quieta(otra), hueco)) return false;
            quieta(i) = p;
            puestas.push_back(i);
            return true;
        });
    }
    for (const i16 i : puestas) Gbl.Piezas[i] = quieta(i);
    return sueltas.empty();
}

void ReparteDespejado(Estreno& e) {
    double hora = REPARTO;
    for (i32 hueco = HUECO_MAYOR; hueco >= 0; --hueco)
        for (int vuelta = 0; vuelta < VUELTAS; ++vuelta, hora += REPARTOS * CENTESIMA)
            if (ReparteDespejado(e, hora, hueco)) return;
    throw std::runtime_error("the loose pieces find no room");
}

}  // namespace

std::string Global() {
    const Estreno e(JuegoMoviles);
    std::ifstream f(e.Carpeta() + "TsR33.ini", std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
}

std::string Moviles() {
    Estreno e(JuegoMoviles);
    AjustaMoviles();
    e.Reparte(REPARTO);
    ReparteDespejado(e);
    return Estreno::Fichero();
}

std::string Deslizantes() {
    Estreno e(JuegoDeslizantes);
    Estreno::Pon(LAMINA_DESLIZANTES);
    Gbl.TipoFondo = FONDO_IMAGEN;
    Gbl.PiezasPorLado = LADO_DESLIZANTES;
    Gbl.ColorFondo = FONDO_DESLIZANTES;
    Gbl.ColorPiezas = PIEZAS_DESLIZANTES;
    Gbl.MostrarMuestra = true;
    e.Reparte(REPARTO_DESLIZANTES);
    return Estreno::Fichero();
}

std::string Tangram(const std::string& modelos) {
    Estreno e(JuegoTangram);
    std::filesystem::create_directories(Gbl.CarpetaArchivo);
    std::filesystem::copy_file(e.DeAntes(modelos), FicheroModelos(),
                               std::filesystem::copy_options::overwrite_existing);
    Lista lista;
    CargaListaModelos(lista);
    const auto m = std::find_if(lista.Elementos.begin(), lista.Elementos.end(),
                                [](const Lista::Elemento& x) { return Trim(x.Texto) == MODELO; });
    if (m == lista.Elementos.end()) throw std::runtime_error("no such model");
    Gbl.ModoJuego = MODO_RESOLVER;
    Gbl.ModeloActual = static_cast<i16>(m->Dato);
    Gbl.NombrePuzzle = MODELO;
    Gbl.ColorFondo = FONDO_TANGRAM;
    Gbl.ColorPiezas = PIEZAS_DEL_TANGRAM;
    LeeModelo();
    e.Reparte(REPARTO_DESLIZANTES);
    return Estreno::Fichero();
}

}  // namespace tessario::estreno
