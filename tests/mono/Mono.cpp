// SPDX-License-Identifier: GPL-3.0-or-later
#include "mono/Mono.h"

#include <filesystem>
#include <fstream>
#include <span>
#include <vector>

#include "apoyo/Invariantes.h"
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
#include "session/CopiaSeguridad.h"
#include "sliding/Tablero.h"
#include "start/Arranque.h"
#include "table/Ordenes.h"

namespace tessario {

namespace {

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

constexpr const char* VENTANAS[] = {"Personal", "Cargua", "Historic", "Estadis"};

}  // namespace

// What is being written beside the game is there before the next decision, in every run of a seed.
i32 Mono::Hasta(i32 n) {
    EsperaCopia();
    return numeros_.Hasta(n);
}

void Mono::Corre(long eventos) {
    Arranca();
    for (numero_ = 1; numero_ <= eventos && numeros_.Quedan(); ++numero_) {
        const i16 antes = Gbl.NumMovimientos;
        Evento();
        jugadas_ += Gbl.NumMovimientos > antes;
        acabados_ += Gbl.PuzzleTerminado && !acabado_;
        acabado_ = Gbl.PuzzleTerminado;
        if (p_->terminado) Arranca();
        Comprueba();
    }
}

// A program started anew in a folder that keeps what the last one saved.
void Mono::Arranca() {
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
    for (const char* ventana : VENTANAS) p_->ventanas[ventana] = [this](Ventana& v) { Visita(v); };
    p_->alDejarPasar = [this] { EventoDentro(); };
    Varia();
}

// A message is answered after a while, in which the clock goes on.
void Mono::Contesta() {
    while (Una(3)) Tic();
    Gbl.RespuestaMensaje = Gbl.BotonesMensaje == 1 || !Una(3);
}

void Mono::EventoDentro() {
    if (anidado_ >= 2 || !Una(6)) return;
    const bool bajo[Tareas] = {Gbl.Barajando, Gbl.TareaAutomatica, Gbl.OrdenandoPiezas,
                               Gbl.AutoAtras || Gbl.AutoAdelante, Gbl.GirandoPieza};
    for (std::size_t t = 0; t < Tareas; ++t) anidados_[t] += bajo[t];
    ++anidado_;
    Evento();
    --anidado_;
}

void Mono::Prepara() {
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
            m.Fila(y)[x] = static_cast<Pixel>((x * 255 / m.Ancho) << 16 | (y * 255 / m.Alto) << 8 |
                                              ((x ^ y) & 0xFF));
    p_->imagenes[ruta] = std::move(m);
    std::ofstream(p_->carpeta + "TsR33.ini", std::ios::binary)
        << '"' << juego_ << "-1"
        << "100"
        << "-1" << std::string(116, ' ') << "\"\r\n";
}

// Now and then another cut, size, background or model from the start.
void Mono::Varia() {
    if (!Una(2)) return;
    Elige();
    PreparaJuego(true);
    if (juego_ == JuegoDeslizantes) ColocaPiezas(1);
}

void Mono::Elige() {
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
void Mono::Visita(Ventana& v) {
    ++visitas_;
    ultimo_ = "in " + v.Nombre;
    VisitaVentana(v, [this](i32 n) { return Hasta(n); });
}

// A point: mostly near a piece, sometimes on the strip, sometimes anywhere.
Punto Mono::Lugar() {
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

Punto Mono::LugarEn(const Cuadro& c) {
    const Punto o = PunteroPrueba::Origen(c);
    return {o.x + Hasta(std::max(1, c.Width())), o.y + Hasta(std::max(1, c.Height()))};
}

// A piece that can slide, when the board has one on that side.
Punto Mono::LugarJuntoAlHueco() {
    static constexpr Punto LADOS[] = {{0, -1}, {1, 0}, {0, 1}, {-1, 0}};
    const Punto lado = LADOS[Hasta(4)];
    return {Gbl.HuecoX + lado.x * Gbl.AnchoCelda + Gbl.AnchoCelda / 2,
            Gbl.HuecoY + lado.y * Gbl.AltoCelda + Gbl.AltoCelda / 2};
}

// A command button, a key of the recorder or the clock's switch.
Punto Mono::LugarDeLaBotonera() {
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

void Mono::Evento() {
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
void Mono::EventoRaro() {
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

void Mono::AnotaExcepciones() {
    if (Gbl.GrabadoraEncendida) excepciones_ |= GiroReproducido;
    vistos_ = std::min(vistos_, Gbl.NumMovimientos);
    while (vistos_ < Gbl.NumMovimientos) {
        const Movimiento& m = Gbl.Movimientos[++vistos_];
        if (m.VolteoAntes == m.VolteoDespues) continue;
        excepciones_ |= PiezaEmpujada;
        volteada_ = true;
    }
}

void Mono::Tic() {
    ultimo_ = "tick";
    p_->reloj += Una(8) ? 16000 : 1000;
    if (Timer1.Timer) Timer1.Timer();
}

void Mono::Tecla() {
    static constexpr i16 TECLAS[] = {'v', 'V', 27, 'q', 'x', 13, ' '};
    const i16 tecla = TECLAS[Hasta(7)];
    ultimo_ = "key " + std::to_string(tecla);
    if (Mesa.KeyPress) Mesa.KeyPress(tecla);
}

// A few keys of the cross, some of them held.
void Mono::Cruz() {
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
void Mono::PulsaConTeclado() {
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
void Mono::OtroBoton() {
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
void Mono::DeLaVentana() {
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

void Mono::Mueve(Punto p) {
    ultimo_ = "move " + std::to_string(p.x) + "," + std::to_string(p.y);
    puntero_->Mueve(p.x, p.y);
}

void Mono::Aprieta(i16 boton) {
    if (apretado_) return;
    if (!Una(4)) Mueve(Lugar());
    ultimo_ += boton == BOTON_DERECHO ? " right press" : " left press";
    apretado_ = true;
    p_->botones = boton;
    ++pulsos_;
    puntero_->Aprieta(boton);
}

void Mono::Suelta() {
    if (!apretado_) return;
    ultimo_ += " release";
    apretado_ = false;
    p_->botones = 0;
    puntero_->Suelta();
}

void Mono::Comprueba() {
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
void Mono::CompruebaCadena() {
    if (Gbl.NumMovimientos == 0) volteada_ = false;
    for (i32 i = 1; i <= Gbl.NumMovimientos;
         ++i)  // a log that was loaded may hold turns of its own
        volteada_ = volteada_ || Gbl.Movimientos[i].VolteoAntes != Gbl.Movimientos[i].VolteoDespues;
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

void Mono::CompruebaMano() const {
    Exige(!Gbl.ArrastrandoPieza || apretado_ || Gbl.CruzSujeta, "no piece in hand without a press");
    Exige(!Gbl.GirandoPieza || apretado_, "no turning without a press");
}

// Lays the table afresh and compares; then what the player sees is put back.
void Mono::CompruebaImagen() {
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

}  // namespace tessario
