// SPDX-License-Identifier: GPL-3.0-or-later
#include "apoyo/PartidaEntera.h"

#include <algorithm>
#include <iterator>

#include "core/Ventanas.h"
#include "panel/Colocadas.h"
#include "records/Historial.h"
#include "rules/Catalogo.h"
#include "rules/Juego.h"
#include "session/Configuracion.h"
#include "session/CopiaSeguridad.h"
#include "settings/Mandos.h"
#include "start/Arranque.h"
#include "table/Final.h"
#include "windows/Cargua.h"
#include "windows/Historic.h"

namespace tessario {

namespace {

constexpr std::size_t RESPUESTAS = 20;  // more than one step asks
constexpr i32 PASO = 40;                // pixels by which a piece is moved

}  // namespace

void PartidaEntera::SetUp() {
    MesaMontada::SetUp();
    PonEstreno();
    P().hayPortapapeles = true;
    P().portapapeles = Mapa(500, 400, 0x112233);
}

void PartidaEntera::En(const std::string& ventana, const std::function<void()>& hace,
                       const std::function<void()>& abre) {
    P().respuestas.assign(RESPUESTAS, true);
    P().ventanas[ventana] = [hace](Ventana& v) {
        hace();
        bool cancela = false;
        if (v.Abierta && v.QueryUnload) v.QueryUnload(cancela);
    };
    abre();
    P().ventanas.erase(ventana);
    P().respuestas.clear();
}

void PartidaEntera::Empieza() {
    P().respuestas.assign(RESPUESTAS, true);
    ASSERT_TRUE(Main());
    P().respuestas.clear();
    Gbl.VelocidadJuego = 100;
}

void PartidaEntera::Personaliza() {
    En(
        "Personal", [] {}, [this] { PulsaOrden(2); });
}

void PartidaEntera::Pega() {
    En(
        "Personal",
        [] {
            if (personal::Pic_BotPortapapeles.Visible)
                personal::Pic_BotPortapapeles.MouseDown(BOTON_IZQUIERDO, 0, 5, 5);
        },
        [this] { PulsaOrden(2); });
}

void PartidaEntera::EnCargua(i16 modo, const std::string& nombre) {
    Gbl.ModoCargua = modo;
    En(
        "Cargua",
        [&] {
            visto_.clear();
            for (const auto& e : Lis_CarGua.Elementos) visto_ += e.Texto + "\n";
            Tex_NombreCargua.Escribe(nombre);
            Cuadro& boton = modo == CARGUA_CARGAR   ? Pic_BotCargar
                            : modo == CARGUA_BORRAR ? Pic_BotBorrar
                                                    : Pic_BotGuardar;
            boton.Click();
            if (Cargua.Abierta) boton.Click();  // a name that is taken
        },
        [] { Sistema().MuestraModal(Cargua); });
}

void PartidaEntera::Guarda(const std::string& nombre) {
    EnCargua(CARGUA_GUARDAR, nombre);
}

void PartidaEntera::Carga(const std::string& nombre) {
    EnCargua(CARGUA_CARGAR, nombre);
}

void PartidaEntera::Borra(const std::string& nombre) {
    EnCargua(CARGUA_BORRAR, nombre);
}

void PartidaEntera::GuardaModelo(const std::string& nombre) {
    EnCargua(CARGUA_MODELO, nombre);
}

void PartidaEntera::MiraHistorico() {
    En(
        "Historic", [] {}, [this] { PulsaOrden(5); });
}

void PartidaEntera::MiraEstadistica() {
    En(
        "Estadis", [] {}, [this] { PulsaOrden(4); });
}

void PartidaEntera::Resuelve() {
    for (i32 i = 1; i <= Gbl.NumPiezas; ++i) {
        Pieza& p = Gbl.Piezas[i];
        p.X = p.XBien;
        p.Y = p.YBien;
        p.Giro = p.GiroBien;
        p.Volteo = p.VolteoBien;
    }
    ColocaPiezas(1);
    Gbl.PuzzleTerminado = Gbl.PuzzleArchivable = true;
    P().respuestas.assign(RESPUESTAS, true);
    FinDeJuego();
    P().respuestas.clear();
}

void PartidaEntera::CambiaA(i16 juego) {
    En(
        "Personal", [juego] { personal::Bul(juego).Pon(true); }, [this] { PulsaOrden(2); });
}

void PartidaEntera::Mueve() {
    if (JuegoEnCurso().TieneHueco) {
        for (i16 i = 1; i <= Gbl.NumPiezas && Gbl.NumMovimientos == 0; ++i)
            Puntero.Pulsa(Gbl.Piezas[i].X + PASO / 2, Gbl.Piezas[i].Y + PASO / 2);
    } else {
        const i16 piece = Gbl.OrdenPiezas[1];  // nothing lies over it
        Arrastra(piece, Gbl.Piezas[piece].X + PASO, Gbl.Piezas[piece].Y);
    }
}

void PartidaEntera::Copia() {
    GuardaCopia(RecordParaCopia());
    EsperaCopia();
}

void PartidaEntera::Sale() {
    P().respuestas = {true};
    PulsaOrden(7);
    EsperaCopia();
    EXPECT_TRUE(P().terminado);
}

void PartidaEntera::Recorrido() {
    Empieza();
    for (const i16 juego : {JuegoMoviles, JuegoDeslizantes, JuegoTangram}) {
        CambiaA(juego);
        EXPECT_EQ(Gbl.JuegoActual, juego);
        Personaliza();
        if (JuegoEnCurso().Imagen != UsoDeImagen::Ninguno) Pega();
        Mueve();
        Guarda("mío");
        Copia();
        MiraEstadistica();
        Resuelve();
        MiraHistorico();
        Carga("mío");
        if (JuegoEnCurso().GuardaModelos) GuardaModelo("Mi figura");
    }
    Sale();
}

std::set<std::string> PartidaEntera::Titulos() {
    std::set<std::string> titulos;
    for (const auto& a : P().avisos) titulos.insert(a.titulo);
    return titulos;
}

bool PartidaEntera::SeDijo(const std::string& texto) {
    return std::any_of(P().avisos.begin(), P().avisos.end(),
                       [&](const auto& a) { return a.texto == texto; });
}

std::string PartidaEntera::FicheroDe(i16 juego) {
    return Contenido("TsR" + std::to_string(juego) + "33.ini");
}

}  // namespace tessario
