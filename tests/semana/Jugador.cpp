// SPDX-License-Identifier: GPL-3.0-or-later
#include "semana/Jugador.h"

#include <algorithm>
#include <array>

#include "core/Avisos.h"
#include "core/PuzzGbl.h"
#include "core/Superficies.h"
#include "core/Ventanas.h"
#include "pieces/Composicion.h"
#include "platform/Plataforma.h"
#include "rules/Catalogo.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"
#include "settings/Mandos.h"
#include "windows/Cargua.h"
#include "windows/Estadis.h"
#include "windows/Historic.h"

namespace tessario {

using namespace personal;

namespace {

constexpr double ENTRE_JUGADAS_MS = 302;  // two million of them are a week
constexpr i32 PARTES = 5;                 // of a round, with visits between them
constexpr i32 INTENTOS = 10;              // for one move that counts
constexpr long EN_VANO = 50;              // moves in a row that do not
constexpr i16 REGISTRO_LARGO = 5000;      // moves in a log, after which the pieces are dealt anew
constexpr i16 MOVIMIENTOS_REPETIDOS = 20;
constexpr long ARCHIVADOS = 100;  // finished games that may enter the history
constexpr i32 NOMBRES = 10;       // saved puzzles, one overwritten after the other
constexpr i32 HOJAS = 40;         // pages of the help looked at before the first day
constexpr i16 TECLA_MENU = 93;
constexpr i32 ALTO_FILA = 18, MEDIA_FILA = 10;  // of the options panel, pixels
constexpr i32 PASADAS = 10;  // over the pieces, to finish a puzzle: some lie under others
// One saved puzzle of each game, in this order, for the end of every day.
constexpr struct {
    i16 juego;
    const char* nombre;
} REFERENCIAS[] = {{JuegoDeslizantes, "Fin del dia, deslizantes"},
                   {JuegoTangram, "Fin del dia, Tangram"},
                   {JuegoMoviles, "Fin del dia"}};

// The recorder's switch and its four keys, in the panel's pixels.
constexpr Punto MANDO_GRABADORA{20, 12};
constexpr std::array<Punto, 4> TECLAS_GRABADORA = {{{14, 31}, {35, 31}, {14, 47}, {35, 47}}};

std::string NombreDePartida(long cual) {
    return "Partida " + std::to_string(cual % NOMBRES);
}

bool Pregunta(const Aviso& a) {
    return Gbl.TituloMensaje == a.titulo;
}

bool EnLaVista(Punto p) {
    return p.x >= 0 && p.y >= 0 && p.x < Pic_Botonera.Left && p.y < BarraHor.Top;
}

// A point of the window that shows the middle of a piece.
Punto MedioDe(i16 piece) {
    const Rect caja = CajaDePieza(piece);
    const Punto mesa = OrigenDe(Pic_Trabajo);
    return {mesa.x + (caja.Izq + caja.Der) / 2, mesa.y + (caja.Arr + caja.Aba) / 2};
}

}  // namespace

Jugador::Jugador(Mundo& m, unsigned semilla) : m_(m), azar_(semilla) {
    m_.alAbrir = [this](Ventana& v) { Abierta(v); };
}

// ---------------------------------------------------------------- the hand

void Jugador::PulsaEn(Ventana& v, Punto p) {
    m_.Mueve(v, p);
    m_.Aprieta(v);
    m_.Suelta(v);
}

void Jugador::Pulsa(Ventana& v, Control& c) {
    const Punto o = OrigenDe(c);
    PulsaEn(v, {o.x + c.Width() / 2, o.y + c.Height() / 2});
}

void Jugador::Orden(i16 cual) {
    Pulsa(Mesa, Pic_Boton(cual));
}

// ---------------------------------------------------------------- moves

void Jugador::Juega(long jugadas) {
    long intentos = INTENTOS * jugadas, seguidos = 0;
    for (const long meta = hecho_.jugadas + jugadas; hecho_.jugadas < meta && intentos > 0;
         --intentos) {
        const i16 antes = Gbl.NumMovimientos;
        const bool acabado = Gbl.PuzzleTerminado;
        Jugada();
        const i32 hechas = std::max(0, Gbl.NumMovimientos - antes);
        hecho_.jugadas += hechas;
        seguidos = hechas > 0 ? 0 : seguidos + 1;
        m_.Pasa(ENTRE_JUGADAS_MS);
        if (Gbl.PuzzleTerminado && !acabado) ++hecho_.acabados;
        // Pieces at home stay there, and the last ones may lie where they cannot be reached.
        if (Gbl.PuzzleTerminado || Gbl.NumMovimientos > REGISTRO_LARGO || seguidos > EN_VANO) {
            Orden(orden::BARAJAR);
            seguidos = 0;
        }
    }
}

void Jugador::Jugada() {
    if (Gbl.JuegoActual == JuegoDeslizantes) return Desliza();
    const i16 piece = static_cast<i16>(1 + Hasta(Gbl.NumPiezas));
    if (Una(12)) return Gira(piece);
    if (Una(6)) return Coloca(piece);
    const Punto p = MedioDe(piece);
    Arrastra(piece, {Hasta(Pic_Botonera.Left) - p.x, Hasta(BarraHor.Top) - p.y});
}

// Where it belongs.
void Jugador::Coloca(i16 piece) {
    for (std::size_t n = 0; n < RUMBOS.size() && !GiroCorrecto(piece); ++n) Gira(piece);
    Apunta(piece);
    if (Gbl.PiezaActual != piece) return;  // another one lies over it
    const Pieza& p = Gbl.Piezas[piece];
    Arrastra(piece, {p.XBien - p.X, p.YBien - p.Y});
}

// A jigsaw of few square pieces, put together by hand.
void Jugador::Acaba() {
    if (Gbl.JuegoActual != JuegoMoviles) return;
    pocas_ = true;
    Ajustes();
    pocas_ = false;
    Orden(orden::BARAJAR);
    for (i32 pasada = 0; pasada < PASADAS && !Gbl.PuzzleTerminado; ++pasada) {
        Orden(orden::OCULTAS);
        // What lies under the sample or the hint cannot be taken. The hint's first press tells how
        // to get it back.
        if (Pic_Muestra.Visible) Orden(orden::MODELO);
        for (i32 n = 0; n < 2 && Pic_Sugerencia.Visible; ++n) Pulsa(Mesa, Pic_SugeBotCerrar);
        for (i16 p = 1; p <= Gbl.NumPiezas && !Gbl.PuzzleTerminado; ++p)
            if (!PiezaEnSuSitio(p)) Coloca(p);
    }
    hecho_.acabados += Gbl.PuzzleTerminado ? 1 : 0;
}

// The pointer over a piece, the table scrolled so that it is in view: at its middle, or nearby
// where others leave it free. Where the pointer then is.
Punto Jugador::Apunta(i16 piece) {
    if (!EnLaVista(MedioDe(piece))) {
        const Rect caja = CajaDePieza(piece);
        m_.Haz([&] { BarraHor.Pon((caja.Izq + caja.Der - Pic_Botonera.Left) / 2); });
        m_.Haz([&] { BarraVer.Pon((caja.Arr + caja.Aba - BarraHor.Top) / 2); });
    }
    const Rect caja = CajaDePieza(piece);
    const Punto medio = MedioDe(piece);
    Punto p = medio;
    for (const Punto rumbo : {Punto{}, Punto{1, 1}, Punto{-1, -1}, Punto{1, -1}, Punto{-1, 1}}) {
        p = {medio.x + rumbo.x * caja.Ancho() / 4, medio.y + rumbo.y * caja.Alto() / 4};
        if (!EnLaVista(p)) continue;
        m_.Mueve(Mesa, p);
        if (Gbl.PiezaActual == piece) break;
    }
    return p;
}

// By this way across the table.
void Jugador::Arrastra(i16 piece, Punto camino) {
    const Punto desde = Apunta(piece);
    const Punto hasta{desde.x + camino.x, desde.y + camino.y};
    m_.Aprieta(Mesa);
    m_.Mueve(Mesa, {(desde.x + hasta.x) / 2, (desde.y + hasta.y) / 2});
    m_.Mueve(Mesa, hasta);
    m_.Suelta(Mesa);
}

void Jugador::Gira(i16 piece) {
    const Punto p = Apunta(piece);
    const Punto mesa = OrigenDe(Pic_Trabajo);
    m_.Haz([&] {
        Pic_Trabajo.MouseWheel(1, static_cast<float>(p.x - mesa.x),
                               static_cast<float>(p.y - mesa.y));
    });
}

void Jugador::Desliza() {
    const Punto lado = RUMBOS[static_cast<std::size_t>(2 * Hasta(4))];
    const i32 x = Gbl.HuecoX + lado.x * Gbl.AnchoCelda, y = Gbl.HuecoY + lado.y * Gbl.AltoCelda;
    const bool dentro = x >= Gbl.MargenX && y >= Gbl.MargenY &&
                        x < Gbl.MargenX + Gbl.PiezasPorLado * Gbl.AnchoCelda &&
                        y < Gbl.MargenY + Gbl.PiezasPorLado * Gbl.AltoCelda;
    const Punto mesa = OrigenDe(Pic_Trabajo);
    if (dentro) PulsaEn(Mesa, {mesa.x + x + Gbl.AnchoCelda / 2, mesa.y + y + Gbl.AltoCelda / 2});
}

// A short log back and forth, and on from where it ended: a long one takes its time.
void Jugador::Rebobina() {
    if (Gbl.NumMovimientos > 2 * MOVIMIENTOS_REPETIDOS) Orden(orden::BARAJAR);
    Juega(MOVIMIENTOS_REPETIDOS);
    const Punto o = OrigenDe(Pic_Grabadora);
    const auto tecla = [&](Punto p) { PulsaEn(Mesa, {o.x + p.x, o.y + p.y}); };
    tecla(MANDO_GRABADORA);
    for (i32 n = 4; n > 0; --n) tecla(TECLAS_GRABADORA[static_cast<std::size_t>(Hasta(4))]);
    if (Gbl.GrabadoraEncendida) tecla(MANDO_GRABADORA);
}

void Jugador::Trastea() {
    for (const i16 cual :
         {orden::MODELO, orden::OCULTAS, orden::COLOCADAS, orden::COLOCADAS, orden::MODELO})
        Orden(cual);
    if (Gbl.JuegoActual != JuegoDeslizantes) Orden(orden::ORDENAR);
    Rebobina();
    if (Una(8)) Orden(orden::RESOLVER);
}

// ---------------------------------------------------------------- a round

void Jugador::Tanda(long cual) {
    for (i32 parte = 0; parte < PARTES; ++parte) {
        Juega(JUGADAS_DE_TANDA / PARTES);
        Orden(orden::AYUDA);
        hecho_.ayudas += m_.HojeaAyuda(static_cast<int>(hecho_.ayudas));
        Ajustes();
    }
    if (cual % 2 == 0) Acaba();
    Trastea();
    Orden(cual % 2 == 0 ? orden::HISTORICO : orden::ESTADISTICAS);
    AbreArchivo(CARGUA_BORRAR, NombreDePartida(cual));
    AbreArchivo(CARGUA_GUARDAR, NombreDePartida(cual));
    CambiaDeJuego(cual);
}

// By the settings, or by a saved puzzle of another game.
void Jugador::CambiaDeJuego(long tanda) {
    const i16 antes = Gbl.JuegoActual;
    if (tanda % 4 == 3) AbreArchivo(CARGUA_CARGAR, NombreDePartida(tanda - 1));
    if (Gbl.JuegoActual == antes) {
        juegoNuevo_ = static_cast<i16>(antes == JuegoTangram ? JuegoMoviles : antes + 1);
        Ajustes();
        juegoNuevo_ = 0;
    }
    hecho_.juegos += Gbl.JuegoActual != antes;
}

void Jugador::Ajustes() {
    Orden(orden::PERSONALIZAR);
}

void Jugador::AbreArchivo(i16 modo, const std::string& nombre) {
    archivo_ = nombre;
    m_.Haz([] { Mesa.KeyDown(TECLA_MENU, 0); });
    if (!Pic_SelOpciones.Visible) return;
    const i32 fila = modo == CARGUA_GUARDAR  ? opcion::GUARDAR
                     : modo == CARGUA_CARGAR ? opcion::CARGAR
                                             : opcion::BORRAR;
    const Punto o = OrigenDe(Pic_SelOpciones);
    PulsaEn(Mesa, {o.x + Pic_SelOpciones.Width() / 2, o.y + (fila - 1) * ALTO_FILA + MEDIA_FILA});
}

void Jugador::Empieza() {
    for (i16 juego = 0; juego < 3; ++juego) {
        for (i32 n = 0; n < 6; ++n) {
            Juega(50);
            Ajustes();
        }
        // The history's file is there from the first finished puzzle on.
        for (i32 n = 0; n < PASADAS && hecho_.acabados == 0; ++n) Acaba();
        Trastea();
        Orden(orden::RESOLVER);
        Orden(orden::BARAJAR);
        CambiaDeJuego(0);
    }
    for (int hoja = 0; hoja < HOJAS; ++hoja) {
        Orden(orden::AYUDA);
        m_.HojeaAyuda(hoja);
    }
    Orden(orden::HISTORICO);
    Orden(orden::ESTADISTICAS);
    for (i32 n = 0; n < NOMBRES; ++n) AbreArchivo(CARGUA_GUARDAR, NombreDePartida(n));
    for (const auto& r : REFERENCIAS) {
        while (Gbl.JuegoActual != r.juego) CambiaDeJuego(0);
        AbreArchivo(CARGUA_GUARDAR, r.nombre);
    }
    hecho_ = {};
}

void Jugador::AcabaElDia() {
    for (const auto& r : REFERENCIAS) {
        AbreArchivo(CARGUA_CARGAR, r.nombre);
        for (i32 n = 0; n < 2; ++n) Orden(orden::COLOCADAS);
    }
    m_.Reposa();
}

// ---------------------------------------------------------------- in the windows

void Jugador::Abierta(Ventana& v) {
    if (&v == &Mensajes) Contesta();
    if (&v == &Personal) EnAjustes();
    if (&v == &Cargua) EnArchivo();
    if (&v == &Historic) EnHistorico();
    if (&v == &Estadis) {
        ++hecho_.estadisticas;
        m_.Haz([] { Tex_NombreJugador.Escribe("Ana"); });
        Pulsa(Estadis, Pic_BotSalirEstadis);
    }
    if (v.Abierta) m_.Haz([&] { Sistema().Cierra(v); });
}

void Jugador::Contesta() {
    ++hecho_.avisos;
    if (Pic_BotAyudaMensaje.Visible && Una(10)) {
        Pulsa(Mensajes, Pic_BotAyudaMensaje);
        m_.HojeaAyuda(Hasta(HOJAS));
    }
    if (Gbl.BotonesMensaje == 1) return Pulsa(Mensajes, Pic_BotSalirMensaje);
    bool si = true;
    if (Pregunta(aviso::AL_HISTORICO)) si = hecho_.acabados < ARCHIVADOS;
    if (Pregunta(aviso::CAMBIO_JUEGO)) si = juegoNuevo_ != 0;
    if (Pregunta(aviso::CAMBIO_PARAMETROS) || Pregunta(aviso::CAMBIO_MODELO)) si = reparte_;
    if (Pregunta(aviso::SALIR)) si = false;
    Pulsa(Mensajes, si ? Pic_Si : Pic_No);
}

void Jugador::OtraImagen() {
    if (Gbl.JuegoActual == JuegoTangram) {
        if (Lis_Modelos.ListCount() > 0)
            m_.Haz([&] { Lis_Modelos.Selecciona(Hasta(Lis_Modelos.ListCount())); });
    } else if (File1.Enabled && File1.ListCount() > 0) {
        m_.Haz([&] { File1.Selecciona(Hasta(File1.ListCount())); });
    }
}

void Jugador::OtroColor() {
    for (CampoColor* campo : {&ColFon, &ColPza}) {
        if (!campo->Seleccion.Visible) continue;
        const Punto o = OrigenDe(campo->Seleccion);
        PulsaEn(Personal, {o.x + Hasta(180), o.y + Hasta(30)});
    }
}

void Jugador::EnAjustes() {
    ++hecho_.ajustes;
    const i32 turno = pocas_ ? -1 : visita_++ % 6;
    reparte_ = pocas_ || turno >= 4;
    if (pocas_) {
        Pulsa(Personal, Pic_TipPuz[0]);
        m_.Haz([&] { Lis_NroPiezas.Selecciona(0); });
    }
    if (turno == 1) OtroColor();
    if (turno == 2) {
        for (const i16 cual : {BUL_SONIDO, BUL_INFORMACION})
            m_.Haz([&] { Bul(cual).Pon(!Bul(cual).Value); });
        m_.Haz([&] { Pot(POT_VELOCIDAD).Pon(static_cast<i16>(Hasta(101))); });
        if (Pic_BotPrueba.Visible) Pulsa(Personal, Pic_BotPrueba);
    }
    if (turno == 3 || turno == 4) OtraImagen();
    if (turno == 5 && Gbl.JuegoActual == JuegoMoviles) {
        Pulsa(Personal, Pic_TipPuz[Hasta(8)]);
        m_.Haz([&] { Lis_NroPiezas.Selecciona(Hasta(Lis_NroPiezas.ListCount())); });
    }
    if (turno == 5 && Gbl.JuegoActual == JuegoDeslizantes)
        m_.Haz([&] { Sel(SEL_FONDO).Pon(static_cast<i16>(1 + Hasta(3))); });
    if (turno == 5 && Gbl.JuegoActual == JuegoTangram)
        m_.Haz([&] { Sel(SEL_MODO).Pon(static_cast<i16>(1 + Hasta(2))); });
    if (Una(10)) {
        Pulsa(Personal, Pic_BotAyuda);
        m_.HojeaAyuda(Hasta(HOJAS));
    }
    if (juegoNuevo_ != 0) m_.Haz([&] { Bul(juegoNuevo_).Pon(true); });
    if (Personal.Abierta) Pulsa(Personal, Pic_BotSalir);
}

void Jugador::EnArchivo() {
    if (Gbl.ModoCargua == CARGUA_GUARDAR) {
        ++hecho_.guardados;
        m_.Haz([&] { Tex_NombreCargua.Escribe(archivo_); });
        Pulsa(Cargua, Pic_BotGuardar);
        // The name is taken: once more.
        if (Cargua.Abierta) Pulsa(Cargua, Pic_BotGuardar);
        return;
    }
    const auto& nombres = Lis_CarGua.Elementos;
    const auto i = std::find_if(nombres.begin(), nombres.end(),
                                [&](const Lista::Elemento& e) { return e.Texto == archivo_; });
    if (i != nombres.end())
        m_.Haz([&] { Lis_CarGua.Selecciona(static_cast<i32>(i - nombres.begin())); });
    if (Gbl.ModoCargua == CARGUA_CARGAR) {
        ++hecho_.cargados;
        Pulsa(Cargua, Pic_BotCargar);
    } else {
        ++hecho_.borrados;
        Pulsa(Cargua, Pic_BotBorrar);
    }
    if (Cargua.Abierta) Pulsa(Cargua, Pic_BotSalirCargua);
}

void Jugador::EnHistorico() {
    ++hecho_.historicos;
    for (i16 i = 1; i <= ORDENES_HISTORICO; ++i) Pulsa(Historic, Pic_OrdenHistorico(i));
    Pulsa(Historic, Pic_BotAdeAtr);
    Pulsa(Historic, Pic_BotSalirHistoric);
}

}  // namespace tessario
