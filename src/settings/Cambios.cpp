// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Cambios.h"

#include <algorithm>
#include <cmath>

#include "core/Avisos.h"
#include "core/Cadenas.h"
#include "core/Errores.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "panel/Adornos.h"
#include "pieces/Formas.h"
#include "platform/Plataforma.h"
#include "records/Modelos.h"
#include "rules/Catalogo.h"
#include "rules/Colores.h"
#include "rules/Juego.h"
#include "rules/Medidas.h"
#include "session/Configuracion.h"
#include "session/Traidos.h"
#include "settings/Imagen.h"
#include "settings/Mandos.h"
#include "settings/Prueba.h"

namespace tessario {

using namespace personal;

namespace {

constexpr i16 TECLA_ESCAPE = 27, TECLA_AYUDA = 112, TECLA_PEGAR = 'V';
constexpr i16 TECLA_IZQUIERDA = 37, TECLA_ARRIBA = 38, TECLA_DERECHA = 39, TECLA_ABAJO = 40;
constexpr i32 FORMAS_POR_FILA = 4;

// A step in a grid for an arrow key; none for another key.
Punto PasoDe(i16 KeyCode) {
    switch (KeyCode) {
        case TECLA_IZQUIERDA:
            return {-1, 0};
        case TECLA_DERECHA:
            return {1, 0};
        case TECLA_ARRIBA:
            return {0, -1};
        case TECLA_ABAJO:
            return {0, 1};
        default:
            return {};
    }
}

void Tecla() {
    SonidoJuego(1, sonido::TECLA);
}

// ---------------------------------------------------------------- switches and knobs

void ConectaOpciones() {
    constexpr struct {
        i16 indice;
        Booleano DatosAjustes::*opcion;
    } opciones[] = {{BUL_SONIDO, &DatosAjustes::Sonido},
                    {BUL_GIRO, &DatosAjustes::PermitirGiro},
                    {BUL_BORDE, &DatosAjustes::DibujarBorde},
                    {BUL_ATRACCION, &DatosAjustes::AtraccionPiezas},
                    {BUL_INFORMACION, &DatosAjustes::VentanaInformacion}};
    for (const auto& o : opciones)
        Bul(o.indice).Change = [campo = o.opcion] { Gbl.*campo = !(Gbl.*campo); };
    Pot(POT_VELOCIDAD).Change = [] { Gbl.VelocidadJuego = Pot(POT_VELOCIDAD).Value; };
    Pot(POT_FACTOR).Change = [] { Gbl.FactorAtraccion = Pot(POT_FACTOR).Value; };
}

// ---------------------------------------------------------------- ground of the sliding board

// Without a picture the puzzle's own stays noted, for when the player comes back to it.
void OlvidaImagenElegida() {
    const FotoPartida& f = Gbl.AlEntrar;
    static_cast<DatosRutas&>(Gbl).RutaImagen = f.RutaImagen;
    Gbl.FicheroImagen = f.FicheroImagen;
    Gbl.UnidadImagen = f.UnidadImagen;
    Gbl.CarpetaImagen = f.CarpetaImagen;
    Gbl.ImagenValida = f.ImagenValida;
    File1.ListIndex = -1;
    OlvidaImagen();
}

void SelectorFondo_Change() {
    if (Gbl.Cargando) return;
    Gbl.TipoFondo = Sel(SEL_FONDO).Value;
    Gbl.Cargando = true;
    Sigue([] {
        PintaPersonal();
        if (UsaImagen()) {
            EligePropia();
        } else {
            OlvidaImagenElegida();
            ImagenCambia();
        }
    });
    Gbl.Cargando = false;
}

// ---------------------------------------------------------------- Tangram

void SelectorModo_Change() {
    Gbl.ModoJuego = Sel(SEL_MODO).Value;
    TActSegunModo();
}

i32 FilaDelModelo() {
    const auto& filas = Lis_Modelos.Elementos;
    const auto i = std::find_if(filas.begin(), filas.end(), [](const Lista::Elemento& e) {
        return e.Dato == Gbl.ModeloActual;
    });
    return i == filas.end() ? -1 : static_cast<i32>(i - filas.begin());
}

// Those that the list shows as solved: the history is read once, when the window opens.
std::set<std::string> ModelosMarcados() {
    std::set<std::string> nombres;
    for (const Lista::Elemento& e : Lis_Modelos.Elementos)
        if (e.Marca) nombres.insert(Trim(e.Texto));
    return nombres;
}

const Lista::Elemento* ModeloElegido() {
    if (Lis_Modelos.ListIndex < 0 || Lis_Modelos.ListIndex >= Lis_Modelos.ListCount())
        return nullptr;
    return &Lis_Modelos.Elementos[static_cast<std::size_t>(Lis_Modelos.ListIndex)];
}

void EligeModelo() {
    Gbl.CambiandoModo = true;
    i32 fila = FilaDelModelo();
    if (Gbl.Cargando) {
        // The puzzle's own model is on the table already, and its pieces may have changed places
        // with their twins.
        Lis_Modelos.ListIndex = fila;
        ImagenCambia();
    } else {
        Lis_Modelos.Selecciona(std::max(fila, i32{0}));
    }
    Gbl.CambiandoModo = false;
}

// ---------------------------------------------------------------- shapes

void PonForma(i16 forma) {
    Gbl.FormaPiezas = forma;
    Gbl.PiezasPorCelda = PiezasDeCelda(forma);
    PintaFormas();
    if (!Gbl.RepintandoPiezas) CargaLisNroPiezas();
}

void Pic_TipPuzSel_KeyDown(i16 KeyCode) {
    const Punto paso = PasoDe(KeyCode);
    const i32 salto = paso.x + FORMAS_POR_FILA * paso.y;
    if (salto == 0) return;
    for (i32 i = Gbl.FormaPiezas + salto; i >= 0 && i < FORMAS_DE_PIEZA; i += salto)
        if (Pic_TipPuz[i].Enabled) {
            Pulsa(Pic_TipPuz[i]);
            return;
        }
}

// ---------------------------------------------------------------- colours

constexpr Color FUERA = 0xFFFFFFFF;
constexpr i32 COLOR_PASO = 51, COLOR_NIVELES = 6;

struct CampoDeColor {
    CampoColor& campo;
    Color DatosAjustes::*color;
};
const CampoDeColor CAMPOS[] = {{ColFon, &DatosAjustes::ColorFondo},
                               {ColPza, &DatosAjustes::ColorPiezas}};

void PonColor(const CampoDeColor& c, Color color) {
    if (color == FUERA) return;
    Gbl.*c.color = color;
    PintaColores(c.campo, color);
    Tecla();
    CalculaColores();
}

// The next colour of the field in a direction, from the one in force or the nearest to it.
Color ColorVecino(Color color, const Punto& paso) {
    const auto orden = [](Color canal) {
        return COLOR_NIVELES - 1 - EnteroLargo(static_cast<double>(canal) / COLOR_PASO);
    };
    const i32 columna = orden((color >> 16) & 0xFFU) * COLOR_NIVELES + orden(color & 0xFFU);
    const i32 fila = orden((color >> 8) & 0xFFU);
    const i32 x = std::clamp(columna + paso.x, 0, COLOR_NIVELES * COLOR_NIVELES - 1);
    const i32 y = std::clamp(fila + paso.y, 0, COLOR_NIVELES - 1);
    const auto canal = [](i32 n) {
        return static_cast<Color>((COLOR_NIVELES - 1 - n) * COLOR_PASO);
    };
    return canal(x / COLOR_NIVELES) * 65536 + canal(y) * 256 + canal(x % COLOR_NIVELES);
}

void ConectaColor(const CampoDeColor& c) {
    Cuadro& s = c.campo.Seleccion;
    Cuadro& marca = c.campo.Marca;
    s.MouseDown = [&c, &s](i16, i16, float X, float Y) {
        PonColor(c, s.Point(static_cast<i32>(X), static_cast<i32>(Y)));
    };
    s.MouseMove = [&s](i16, i16, float X, float Y) {
        const Color debajo = s.Point(static_cast<i32>(X), static_cast<i32>(Y));
        s.ToolTipText = debajo == FUERA ? "" : TextoColor(debajo);
    };
    // The mark lies over the field and passes the mouse on to it.
    const auto pasa = [&s, &marca](const auto& evento, i16 b, i16 shift, float X, float Y) {
        evento(b, shift, X + static_cast<float>(marca.Left), Y + static_cast<float>(marca.Top));
        marca.ToolTipText = s.ToolTipText;
    };
    marca.MouseDown = [pasa, &s](i16 b, i16 shift, float X, float Y) {
        pasa(s.MouseDown, b, shift, X, Y);
    };
    marca.MouseMove = [pasa, &s](i16 b, i16 shift, float X, float Y) {
        pasa(s.MouseMove, b, shift, X, Y);
    };
    s.KeyDown = [&c](i16 KeyCode, i16) {
        const Punto paso = PasoDe(KeyCode);
        if (paso != Punto{}) PonColor(c, ColorVecino(Gbl.*c.color, paso));
    };
}

// ---------------------------------------------------------------- the window itself

void Personal_KeyDown(i16 KeyCode, i16 Shift) {
    if (KeyCode == TECLA_ESCAPE) Pic_BotSalir.Click();
    if (KeyCode == TECLA_AYUDA) Pic_BotAyuda.Click();
    if (KeyCode == TECLA_PEGAR && (Shift & CON_CONTROL) && TomaPegado()) ImportaImagenTraida();
}

// An event whose errors end with it.
template <class F>
auto Atiende(F manejador) {
    return [manejador](auto&&... valores) { Sigue([&] { manejador(valores...); }); };
}
// The same for events that pass the mouse's place, which does not matter here.
template <class F>
auto AlApretar(F manejador) {
    return [manejador](i16, i16, float, float) { Sigue(manejador); };
}

}  // namespace

void PintaPersonal() {
    ColocaPaneles();
    if (Pic_FactorPegado.Visible) PintaPrueba();
    MuestraBotonPortapapeles();
}

void LlenaModelos(const std::set<std::string>& resueltos) {
    CargaListaModelos(Lis_Modelos);
    for (Lista::Elemento& e : Lis_Modelos.Elementos) e.Marca = resueltos.contains(Trim(e.Texto));
    PonPunterosDeListas();
}

void TActSegunModo() {
    const bool resuelve = Gbl.ModoJuego == MODO_RESOLVER;
    PintaPersonal();
    Lis_Modelos.Enabled = Pic_MostrarImagen.Enabled = resuelve;
    PonPunterosDeListas();
    if (resuelve) {
        EligeModelo();
        return;
    }
    Lis_Modelos.ListIndex = -1;
    Pic_MostrarImagen.PonPicture(nullptr);
    Pic_MostrarImagen.PonBackColor(FONDO_VENTANA);
    CalculaTamanos();
}

void Lis_Modelos_Click() {
    const Lista::Elemento* const modelo = ModeloElegido();
    if (!modelo) return;
    if (!Gbl.Cargando && !Gbl.CambiandoModo) Tecla();
    Gbl.ModeloActual = Corto(modelo->Dato);
    Gbl.NombrePuzzle = Trim(modelo->Texto);
    LeeModelo();
    ImagenCambia();
}

void Lis_Modelos_KeyPress(i16 KeyAscii) {
    if (KeyAscii != 'D' && KeyAscii != 'd') return;
    const Lista::Elemento* const modelo = ModeloElegido();
    if (!modelo) return;
    Gbl.ModeloActual = Corto(modelo->Dato);
    Avisa(aviso::BORRA_MODELO, {Trim(modelo->Texto)});
    if (!Gbl.RespuestaMensaje) return;
    BorraModelo();
    LlenaModelos(ModelosMarcados());
    Lis_Modelos.Selecciona(0);
}

void Pic_TipPuz_MouseDown(i16 forma) {
    const Cuadro& c = Pic_TipPuz[forma];
    const bool propia = !Gbl.CambiandoForma && !Gbl.Cargando;
    if (forma != Gbl.FormaPiezas && c.Enabled && propia) Tecla();
    PonForma(forma);
}

void ConectaCambios() {
    ConectaOpciones();
    Sel(SEL_MODO).Change = Atiende(SelectorModo_Change);
    Sel(SEL_FONDO).Change = Atiende(SelectorFondo_Change);
    Drive1.Change = Atiende(Drive1_Change);
    Dir1.Change = Atiende(Dir1_Change);
    File1.Click = Atiende(File1_Click);
    File1.DblClick = Atiende(File1_DblClick);
    Lis_Modelos.Click = Atiende(Lis_Modelos_Click);
    Lis_Modelos.KeyPress = Atiende(Lis_Modelos_KeyPress);
    Lis_NroPiezas.Click = Atiende(Lis_NroPiezas_Click);
    Spin1.Change = Atiende(Spin1_Change);
    for (i16 i = 0; i < FORMAS_DE_PIEZA; ++i)
        Pic_TipPuz[i].MouseDown = AlApretar([i] { Pic_TipPuz_MouseDown(i); });
    Pic_TipPuzSel.KeyDown = [](i16 KeyCode, i16) {
        Sigue([&] { Pic_TipPuzSel_KeyDown(KeyCode); });
    };
    for (const CampoDeColor& c : CAMPOS) ConectaColor(c);
    Pic_BotPrueba.MouseDown = AlApretar(Pic_BotPrueba_MouseDown);
    Pic_BotPortapapeles.MouseDown = AlApretar(Pic_BotPortapapeles_MouseDown);
    Personal.KeyDown = Atiende(Personal_KeyDown);
    Personal.DragDrop = [](const Traido& traido) {
        Sigue([&] {
            if (TomaTraido(traido)) ImportaImagenTraida();
        });
    };
}

}  // namespace tessario
