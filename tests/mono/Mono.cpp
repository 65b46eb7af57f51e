// SPDX-License-Identifier: GPL-3.0-or-later
// The monkey: throws random presses, moves, releases, keys and timer ticks at the whole table, on
// the test platform with its virtual clock, and after each event checks what must always hold.
//
//   tessario_mono [events for each game] [seed] [game 21, 22, 23 or 0 for all]
//
// The seed is printed; a run with the same seed and game does the same.
//
// Events come in also from inside the runs that let them through (solver, shuffle, side
// arrangement, replay, turning piece), as the real window system does it.
//
// The table's picture must equal one laid afresh from the piece table whenever nothing is in hand.
// The exceptions, each wanted, are the names in `Excepcion` below.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <span>
#include <stdexcept>
#include <string>

#include "apoyo/Invariantes.h"
#include "apoyo/PlataformaPrueba.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "mono/Visita.h"
#include "panel/Colocadas.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "records/Modelos.h"
#include "rules/Colores.h"
#include "rules/Despacho.h"
#include "rules/PuzzBas.h"
#include "session/Configuracion.h"
#include "sliding/Tablero.h"
#include "start/Arranque.h"
#include "table/Ordenes.h"

namespace tessario {
namespace {

class Queja : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

void Exige(bool condicion, const char* texto) {
    if (!condicion) throw Queja(texto);
}

void Cumple(std::span<const Invariante> cuales) {
    if (const std::string falta = Incumplido(cuales); !falta.empty()) throw Queja(falta);
}

// Why the picture may differ from one laid afresh.
enum Excepcion : unsigned {
    Terminado = 1,         // the finished look covers the joints
    DosColores = 2,        // right and wrong pieces are shown in colours
    PiezaDelTutor = 4,     // the tutor's piece comes back above its neighbours
    PiezaEmpujada = 8,     // "V" draws the piece under the pointer above without raising it
    GiroReproducido = 16,  // the recorder redraws a turned piece above without raising it
};

// What was under way when an event came in from inside; counted to see that the mix reaches it.
enum Tarea : std::size_t { Baraja, Resuelve, Ordena, Reproduce, Gira, Tareas };
constexpr const char* VENTANAS[] = {"Personal", "Cargua", "Historic", "Estadis"};
constexpr const char* NOMBRES_TAREA[Tareas] = {"shuffle", "solver", "arrangement", "replay",
                                               "turn"};

class Mono {
public:
    Mono(i16 juego, unsigned semilla) : juego_(juego), azar_(semilla) {}
    Mono(const Mono&) = delete;
    Mono& operator=(const Mono&) = delete;

    void Corre(long eventos) {
        Arranca();
        for (numero_ = 1; numero_ <= eventos; ++numero_) {
            const i16 antes = Gbl.NumMovimientos;
            Evento();
            jugadas_ += Gbl.NumMovimientos > antes;
            acabados_ += Gbl.PuzzleTerminado && !acabado_;
            acabado_ = Gbl.PuzzleTerminado;
            if (p_->terminado) Arranca();
            Comprueba();
        }
    }
    long Numero() const { return numero_; }
    const std::string& Ultimo() const { return ultimo_; }
    long Visitas() const { return visitas_; }
    long Pulsos() const { return pulsos_; }
    long Fotos() const { return fotos_; }
    long Jugadas() const { return jugadas_; }
    long Acabados() const { return acabados_; }
    long Anidados(std::size_t tarea) const { return anidados_[tarea]; }

private:
    i32 Hasta(i32 n) { return static_cast<i32>(azar_() % static_cast<unsigned>(n)); }
    bool Una(i32 deCada) { return Hasta(deCada) == 0; }

    // A program started anew in a folder that keeps what the last one saved.
    void Arranca() {
        std::string guardado, fichero;
        if (p_) {
            fichero = FicheroDelJuego();
            std::ifstream f(fichero, std::ios::binary);
            guardado.assign(std::istreambuf_iterator<char>(f), {});
            PonSistema(nullptr);
        }
        const std::string nombre =
            fichero.empty() ? "" : std::filesystem::path(fichero).filename().string();
        p_ = std::make_unique<PlataformaPrueba>();
        PonSistema(p_.get());
        Gbl = Bloque{};
        ReiniciaSuperficies();
        ReiniciaVentanas();
        if (!nombre.empty() && Una(2))
            std::ofstream(p_->carpeta + nombre, std::ios::binary) << guardado;
        Prepara();
        puntero_ = std::make_unique<PunteroPrueba>(Mesa);
        apretado_ = false;
        excepciones_ = 0;
        Exige(Main(), "the start was refused");
        Gbl.VentanaInformacion = Una(2);
        p_->ventanas["Mensajes"] = [this](Ventana&) { Contesta(); };
        for (const char* ventana : VENTANAS)
            p_->ventanas[ventana] = [this](Ventana& v) { Visita(v); };
        p_->alDejarPasar = [this] { EventoDentro(); };
        Varia();
    }

    // A message is answered after a while, in which the clock goes on.
    void Contesta() {
        while (Una(3)) Tic();
        Gbl.RespuestaMensaje = Gbl.BotonesMensaje == 1 || !Una(3);
    }

    void EventoDentro() {
        if (anidado_ >= 2 || !Una(6)) return;
        const bool bajo[Tareas] = {Gbl.Barajando, Gbl.TareaAutomatica, Gbl.OrdenandoPiezas,
                                   Gbl.AutoAtras || Gbl.AutoAdelante, Gbl.GirandoPieza};
        for (std::size_t t = 0; t < Tareas; ++t) anidados_[t] += bajo[t];
        ++anidado_;
        Evento();
        --anidado_;
    }

    void Prepara() {
        namespace fs = std::filesystem;
        fs::create_directories(p_->carpeta + "Imagenes");
        fs::create_directories(p_->carpeta + "Archivo");
        fs::copy_file(TESSARIO_MODELOS, p_->carpeta + "Archivo/Modelos.tpu");
        const std::string ruta = p_->carpeta + "Imagenes/a.jpg";
        std::ofstream(ruta) << "x";
        // The larger one scrolls on this screen.
        Mapa m = Una(2) ? Mapa(480, 360) : Mapa(640, 480);
        for (i32 y = 0; y < m.Alto; ++y)
            for (i32 x = 0; x < m.Ancho; ++x)
                m.Fila(y)[x] = static_cast<Pixel>((x * 255 / m.Ancho) << 16 |
                                                  (y * 255 / m.Alto) << 8 | ((x ^ y) & 0xFF));
        p_->imagenes[ruta] = std::move(m);
        std::ofstream(p_->carpeta + "TsR33.ini", std::ios::binary)
            << '"' << juego_ << "-1"
            << "100"
            << "-1" << std::string(116, ' ') << "\"\r\n";
    }

    // Now and then another cut, size, background or model from the start.
    void Varia() {
        if (!Una(2)) return;
        Elige();
        PreparaJuego(true);
        if (juego_ == JuegoDeslizantes) ColocaPiezas(1);
    }

    void Elige() {
        Gbl.DibujarBorde = Una(2);
        if (juego_ == JuegoMoviles) {
            Gbl.FormaPiezas = static_cast<i16>(Hasta(8));
            Gbl.PiezasPorCelda = PiezasDeCelda(Gbl.FormaPiezas);
            Gbl.PiezasPorLado = static_cast<i16>(3 + Hasta(3));
        } else if (juego_ == JuegoDeslizantes) {
            Gbl.PiezasPorLado = static_cast<i16>(3 + Hasta(2));
            Gbl.TipoFondo = static_cast<i16>(1 + Hasta(3));
        } else {
            Gbl.AtraccionPiezas = Una(2);
            Gbl.ModoJuego = Una(3) ? MODO_CREAR : MODO_RESOLVER;
            Gbl.ModeloActual = static_cast<i16>(1 + Hasta(150));
            if (Gbl.ModoJuego == MODO_RESOLVER) LeeModelo();
        }
    }

    // A window of the program; the game may be another one afterwards.
    void Visita(Ventana& v) {
        ++visitas_;
        ultimo_ = "in " + v.Nombre;
        VisitaVentana(v, [this](i32 n) { return Hasta(n); });
    }

    // A point: mostly near a piece, sometimes on the strip, sometimes anywhere.
    Punto Lugar() {
        const i32 suerte = Hasta(10);
        if (Pic_SelOpciones.Visible && Una(2)) return LugarEn(Pic_SelOpciones);
        if (Gbl.PuzzleTerminado && Una(4)) return LugarEn(Pic_Boton(1));
        if (Pic_Muestra.Visible && Una(30)) return LugarEn(Pic_Muestra);
        if (Pic_Sugerencia.Visible && Una(60))
            return LugarEn(Una(2) ? Pic_SugeMasAyuda : Pic_SugeBotCerrar);
        if (Gbl.JuegoActual == JuegoDeslizantes && suerte < 5) return LugarJuntoAlHueco();
        if (suerte < 6 && Gbl.Piezas.Superior() >= 1) {
            const Rect c = CajaDePieza(static_cast<i16>(1 + Hasta(Gbl.NumPiezas)));
            return {c.Izq + Hasta(std::max(1, c.Ancho())) - BarraHor.Value,
                    c.Arr + Hasta(std::max(1, c.Alto())) - BarraVer.Value};
        }
        if (suerte < 8) return LugarDeLaBotonera();
        return {Hasta(p_->ancho), Hasta(p_->alto)};
    }

    Punto LugarEn(const Cuadro& c) {
        const Punto o = PunteroPrueba::Origen(c);
        return {o.x + Hasta(std::max(1, c.Width())), o.y + Hasta(std::max(1, c.Height()))};
    }

    // A piece that can slide, when the board has one on that side.
    Punto LugarJuntoAlHueco() {
        static constexpr Punto LADOS[] = {{0, -1}, {1, 0}, {0, 1}, {-1, 0}};
        const Punto lado = LADOS[Hasta(4)];
        return {Gbl.HuecoX + lado.x * Gbl.AnchoCelda + Gbl.AnchoCelda / 2,
                Gbl.HuecoY + lado.y * Gbl.AltoCelda + Gbl.AltoCelda / 2};
    }

    // A command button, a key of the recorder or the clock's switch.
    Punto LugarDeLaBotonera() {
        static constexpr Punto TECLAS[] = {{20, 12}, {20, 12}, {14, 31}, {35, 31},
                                           {14, 47}, {35, 47}, {24, 63}};
        const i32 cual = Hasta(20);
        if (cual < 12) return LugarEn(Pic_Boton(cual + 1));
        if (cual < 19) {
            const Punto o = PunteroPrueba::Origen(Pic_Grabadora);
            const Punto t = TECLAS[cual - 12];
            return {o.x + t.x, o.y + t.y};
        }
        const Punto o = PunteroPrueba::Origen(Pic_Cronome);
        return {o.x + 20, o.y + 10};
    }

    void Evento() {
        // Also for the press that plays the rest and then switches the recorder off.
        if (Gbl.GrabadoraEncendida) excepciones_ |= GiroReproducido;
        if (Gbl.TutorEsperando) excepciones_ |= PiezaDelTutor;
        switch (Hasta(12)) {
            case 0:
            case 1:
            case 2:
            case 3:
                Mueve(Lugar());
                break;
            case 4:
            case 5:
            case 6:
                Aprieta(BOTON_IZQUIERDO);
                break;
            case 7:
                Aprieta(BOTON_DERECHO);
                break;
            case 8:
            case 9:
            case 10:
                Suelta();
                break;
            default:
                EventoRaro();
        }
        AnotaExcepciones();
        p_->sonidos.clear();
        p_->avisos.clear();
        p_->mostradas.clear();
        p_->ayudas.clear();
    }

    // What comes less often than the mouse.
    void EventoRaro() {
        switch (Hasta(10)) {
            case 8:
            case 9:
                Cruz();
                break;
            case 0:
            case 1:
            case 2:
                Tic();
                break;
            case 3:
            case 4:
                Tecla();
                break;
            case 5:
                PulsaConTeclado();
                break;
            case 6:
                OtroBoton();
                break;
            default:
                DeLaVentana();
        }
    }

    void AnotaExcepciones() {
        if (Gbl.GrabadoraEncendida) excepciones_ |= GiroReproducido;
        vistos_ = std::min(vistos_, Gbl.NumMovimientos);
        while (vistos_ < Gbl.NumMovimientos) {
            const Movimiento& m = Gbl.Movimientos[++vistos_];
            if (m.VolteoAntes == m.VolteoDespues) continue;
            excepciones_ |= PiezaEmpujada;
            volteada_ = true;
        }
    }

    void Tic() {
        ultimo_ = "tick";
        p_->reloj += Una(8) ? 16000 : 1000;
        if (Timer1.Timer) Timer1.Timer();
    }

    void Tecla() {
        static constexpr i16 TECLAS[] = {'v', 'V', 27, 'q', 'x', 13, ' '};
        const i16 tecla = TECLAS[Hasta(7)];
        ultimo_ = "key " + std::to_string(tecla);
        if (Mesa.KeyPress) Mesa.KeyPress(tecla);
    }

    // A few keys of the cross, some of them held.
    void Cruz() {
        static constexpr i16 TECLAS[] = {' ', 33, 34, 36, 37, 38, 39, 40, 'R'};
        static constexpr i16 CON[] = {0, 0, CON_MAYUS, CON_CONTROL};
        for (i32 n = 1 + Hasta(6); n > 0; --n) {
            const i16 tecla = TECLAS[Hasta(9)], con = CON[Hasta(4)];
            ultimo_ = "cross " + std::to_string(tecla) + "+" + std::to_string(con);
            Mesa.KeyDown(tecla, con);
            for (i32 veces = Una(3) ? Hasta(30) : 0; veces > 0; --veces)
                Mesa.KeyDown(tecla, static_cast<i16>(con | TECLA_REPETIDA));
        }
    }

    // A command button reached with the tabulator and pressed with the space bar, whatever the
    // mouse is doing.
    void PulsaConTeclado() {
        const i32 cual = 1 + Hasta(12);
        Cuadro& boton = Pic_Boton(cual);
        if (!boton.Visible) return;
        ultimo_ = "space on button " + std::to_string(cual);
        ++pulsos_;
        if (boton.GotFocus) boton.GotFocus();
        if (boton.KeyDown) boton.KeyDown(' ', 0);
        Pulsa(boton);
    }

    // While one button holds the table, the other is pressed and released there too.
    void OtroBoton() {
        if (!apretado_ || puntero_->Preso() != &Pic_Trabajo) return;
        ultimo_ = "other button";
        const i16 boton = puntero_->Boton() == BOTON_DERECHO ? BOTON_IZQUIERDO : BOTON_DERECHO;
        const Punto p = puntero_->Lugar(), o = PunteroPrueba::Origen(Pic_Trabajo);
        const auto x = static_cast<float>(p.x - o.x), y = static_cast<float>(p.y - o.y);
        Pic_Trabajo.MouseDown(boton, 0, x, y);
        Pic_Trabajo.MouseUp(boton, 0, x, y);
        Pic_Trabajo.Click();
    }

    // The window is closed from outside, uncovered, scrolled.
    void DeLaVentana() {
        const i32 suerte = Hasta(8);
        if (suerte == 0) {
            ultimo_ = "close";
            bool cancela = false;
            Mesa.QueryUnload(cancela);
        } else if (suerte < 4) {
            ultimo_ = "paint";
            Pic_Trabajo.Paint();
        } else {
            ultimo_ = "scroll";
            BarraDesplazamiento& barra = Una(2) ? BarraHor : BarraVer;
            if (barra.Visible) barra.Pon(Hasta(barra.Max + 1));
        }
    }

    void Mueve(Punto p) {
        ultimo_ = "move " + std::to_string(p.x) + "," + std::to_string(p.y);
        puntero_->Mueve(p.x, p.y);
    }

    void Aprieta(i16 boton) {
        if (apretado_) return;
        if (!Una(4)) Mueve(Lugar());
        ultimo_ += boton == BOTON_DERECHO ? " right press" : " left press";
        apretado_ = true;
        p_->botones = boton;
        ++pulsos_;
        puntero_->Aprieta(boton);
    }

    void Suelta() {
        if (!apretado_) return;
        ultimo_ += " release";
        apretado_ = false;
        p_->botones = 0;
        puntero_->Suelta();
    }

    void Comprueba() {
        Cumple(InvariantesSiempre());
        Cumple(InvariantesEntreSucesos());
        // A piece in hand is counted, and stands on a cell, when it is dropped.
        if (!Gbl.ArrastrandoPieza) Cumple(InvariantesEnReposo());
        CompruebaMano();
        if (numero_ % 16 == 0 && !Gbl.ArrastrandoPieza) CompruebaCadena();
        // The picture is looked at when something was drawn on it.
        const Rect imagen = Pic_Imagen.TomaSucio(), vista = Pic_Trabajo.TomaSucio();
        dibujado_ = dibujado_ || !imagen.Vacio() || !vista.Vacio();
        if (!Gbl.ArrastrandoPieza && dibujado_) CompruebaImagen();
    }

    // The log leads to where the pieces are: taken back from the last move to the first, each move
    // ends where the next one of its piece begins. "V" may push a piece without a move.
    void CompruebaCadena() {
        if (Gbl.NumMovimientos == 0) volteada_ = false;
        if (volteada_) return;
        std::vector<Punto> lugar(static_cast<std::size_t>(Gbl.NumPiezas) + 1);
        for (i32 i = 1; i <= Gbl.NumPiezas; ++i)
            lugar[static_cast<std::size_t>(i)] = {Gbl.Piezas[i].X, Gbl.Piezas[i].Y};
        for (i32 i = Gbl.NumMovimientos; i >= 1; --i) {
            const Movimiento& m = Gbl.Movimientos[i];
            Punto& p = lugar[static_cast<std::size_t>(m.Pieza)];
            Exige(p.x == m.XDespues && p.y == m.YDespues, "the log leads to the table");
            p = {m.XAntes, m.YAntes};
        }
    }

    void CompruebaMano() const {
        Exige(!Gbl.ArrastrandoPieza || apretado_ || Gbl.CruzSujeta,
              "no piece in hand without a press");
        Exige(!Gbl.GirandoPieza || apretado_, "no turning without a press");
    }

    // Lays the table afresh and compares; then what the player sees is put back.
    void CompruebaImagen() {
        ++fotos_;
        if (Gbl.PuzzleTerminado) excepciones_ |= Terminado;
        if (Gbl.MostrandoColocadas) excepciones_ |= DosColores;
        const bool goma = Pic_Trabajo.DrawMode == MODO_INVIERTE;
        const Mapa vista = Pic_Trabajo.Dibujo();
        const Mapa imagen = Pic_Imagen.Dibujo();
        if (!goma) Exige(vista.Pixeles == imagen.Pixeles, "what is seen is what is composed");
        const i16 prepara = Gbl.PiezaActual;
        const Pieza aux = Gbl.PiezaAux;
        if (!Gbl.MostrandoColocadas && !Gbl.PuzzleTerminado) {
            ColocaPiezas(2);
            const bool igual = Pic_Imagen.Dibujo().Pixeles == imagen.Pixeles;
            if (!igual) Exige(excepciones_ != 0, "the table equals one laid afresh");
            if (!goma) Pic_Trabajo_Paint();
            excepciones_ = 0;
        }
        Gbl.PiezaActual = prepara;
        Gbl.PiezaAux = aux;
        dibujado_ = false;
        Pic_Imagen.TomaSucio();
        Pic_Trabajo.TomaSucio();
    }

    i16 juego_;
    std::mt19937 azar_;
    std::unique_ptr<PlataformaPrueba> p_;
    std::unique_ptr<PunteroPrueba> puntero_;
    bool apretado_ = false;
    bool dibujado_ = true;
    bool volteada_ = false;  // a parallelogram was turned over since the log began
    bool acabado_ = false;
    i16 vistos_ = 0;  // moves of the log looked at for turned pieces
    int anidado_ = 0;
    unsigned excepciones_ = 0;
    long numero_ = 0;
    long visitas_ = 0, pulsos_ = 0, fotos_ = 0, jugadas_ = 0, acabados_ = 0;
    long anidados_[Tareas] = {};
    std::string ultimo_;
};

bool Suelta(i16 juego, long eventos, unsigned semilla) {
    Mono mono(juego, semilla);
    try {
        mono.Corre(eventos);
    } catch (const std::exception& e) {
        std::printf("game %d, seed %u, event %ld (%s): %s\n", juego, semilla, mono.Numero(),
                    mono.Ultimo().c_str(), e.what());
        PonSistema(nullptr);
        return false;
    }
    PonSistema(nullptr);
    std::printf(
        "game %d: %ld events, %ld presses, %ld windows visited, %ld pictures compared, %ld moves "
        "logged, %ld puzzles finished; events inside",
        juego, eventos, mono.Pulsos(), mono.Visitas(), mono.Fotos(), mono.Jugadas(),
        mono.Acabados());
    for (std::size_t t = 0; t < Tareas; ++t)
        std::printf("%s %s %ld", t == 0 ? "" : ",", NOMBRES_TAREA[t], mono.Anidados(t));
    std::printf(": nothing to complain of\n");
    return true;
}

}  // namespace
}  // namespace tessario

int main(int argc, char** argv) {
    const long eventos = argc > 1 ? std::atol(argv[1]) : 20000;
    // Seed 0, or none: a new one each time.
    unsigned semilla = argc > 2 ? static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)) : 0;
    if (semilla == 0) semilla = std::random_device{}();
    const int solo = argc > 3 ? std::atoi(argv[3]) : 0;
    std::printf("seed %u\n", semilla);
    bool bien = true;
    for (const tessario::i16 juego : {tessario::i16{21}, tessario::i16{22}, tessario::i16{23}})
        if (solo == 0 || solo == juego) bien = tessario::Suelta(juego, eventos, semilla) && bien;
    return bien ? 0 : 1;
}
