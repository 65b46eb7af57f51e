// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Cargua.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/Cadenas.h"
#include "core/Errores.h"
#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "platform/Plataforma.h"
#include "records/Archivo.h"
#include "records/Modelos.h"
#include "records/Texto.h"
#include "rules/Juego.h"
#include "session/Configuracion.h"
#include "session/Montaje.h"
#include "windows/Marco.h"

namespace tessario {

Ventana Cargua;
Etiqueta Tex_TituloCargua, Tex_MensajeCargua;
Lista Lis_CarGua;
ListaFicheros Fil_CarGua;
CajaTexto Tex_NombreCargua;
Cuadro Pic_BotCargar, Pic_BotGuardar, Pic_BotBorrar;
Cuadro Pic_BotAyudaCargua, Pic_BotSalirCargua;

namespace {

constexpr const char* EXTENSION = ".puz";
constexpr std::size_t LARGO_EXTENSION = 4;
constexpr i32 LARGO_NOMBRE = 64;         // characters of a name
constexpr i32 LARGO_NOMBRE_PUZZLE = 25;  // of the name that stands in the record
constexpr i16 INTRO = 13;

// Window pixels. The texts were set for lines of this width.
namespace lugar {
constexpr i32 Ancho = 405;
constexpr i32 Izq = 20, AnchoTexto = 365;
constexpr i32 TituloArr = 12, TituloAlto = 19;
constexpr i32 MensajeArr = 38, MensajeAlto = 3 * 16 + 3;
constexpr i32 ListaArr = 98, BordesLista = 2;
constexpr i32 BajoLista = 10, NombreAlto = 26, BajoNombre = 15;
constexpr i32 BajoVentana = 100;  // of the screen's height, left free above and below together
}  // namespace lugar

// The list grows with what it holds, as far as the screen goes along.
constexpr i32 FILAS_MIN = 12, FILAS_MAX = 24;

// What the window says and shows in each of its uses.
struct Uso {
    const char* titulo;
    const char* mensaje;
    Cuadro* boton;
    Tesela tesela;
    const char* sugerencia;  // tooltip of the button
    i32 ayuda;
};
const Uso USOS[] = {
    {" Cargar un puzzle archivado",
     " Indique el nombre del puzzle que desea cargar y que se va    a convertir en el puzzle "
     "actual.",
     &Pic_BotCargar, TeselaCargar, " Cargar el puzzle ", 2510},
    {" Archivar el puzzle actual",
     " Indique  el  nombre  con  el  que  desea  archivar  el  puzzle     actual.", &Pic_BotGuardar,
     TeselaGuardar, " Guardar el puzzle actual ", 2500},
    {" Borrar un puzzle archivado", " Indique el nombre del puzzle archivado  que  desea  borrar.",
     &Pic_BotBorrar, TeselaBorrar, " Borrar el puzzle ", 2520},
    {" Guardar como modelo de Tangram",
     " Indique  el  nombre  con  el  que  desea  archivar  el  modelo   de Tangram.",
     &Pic_BotGuardar, TeselaGuardar, " Guardar el modelo actual ", 2540},
};

constexpr const char* YA_EXISTE =
    "  Ya  existe  un  archivo  con  ese  nombre.   Pulse  el  botón        Guardar para "
    "sobreescribirlo  o  indique otro nombre para       archivar el puzzle actual.";

const Uso& UsoActual() {
    const bool conocido = Gbl.ModoCargua >= CARGUA_CARGAR && Gbl.ModoCargua <= CARGUA_MODELO;
    return USOS[(conocido ? Gbl.ModoCargua : CARGUA_CARGAR) - 1];
}

bool BuscaFichero() {
    return Gbl.ModoCargua == CARGUA_CARGAR || Gbl.ModoCargua == CARGUA_BORRAR;
}

// A button that is inactive can still be pressed: its pointer alone tells that nothing will come of
// it.
void ActivaBoton(bool activo) {
    Cuadro& boton = *UsoActual().boton;
    if (activo)
        PonCursor(boton, cursor::MANO_INDICE);
    else
        PonPuntero(boton, PUNTERO_PROHIBIDO);
}

bool EstaActivo(const Cuadro& boton) {
    return boton.Visible && boton.MousePointer != PUNTERO_PROHIBIDO;
}

void PonMensaje(const char* texto) {
    Tex_MensajeCargua.Caption = texto;
}

// ---------------------------------------------------------------- names

// Trimmed once more: what is cut may end in blanks, and a name from the list never does.
std::string NombreEscrito() {
    return Trim(Left(Trim(Tex_NombreCargua.Text), LARGO_NOMBRE));
}

void TomaNombre() {
    Gbl.NombreActual = NombreEscrito();
    if (BuscaFichero()) {
        const std::string ruta = FicheroPuzzle(Gbl.NombreActual);
        ActivaBoton(!Gbl.NombreActual.empty() && !ruta.empty() && SeAbre(ruta));
        return;
    }
    Gbl.AvisoExiste = false;
    PonMensaje(UsoActual().mensaje);
    ActivaBoton(!Gbl.NombreActual.empty());
}

void Lis_CarGua_Click() {
    const i32 i = Lis_CarGua.ListIndex;
    if (i < 0 || i >= Lis_CarGua.ListCount()) return;
    Tex_NombreCargua.Escribe(Trim(Lis_CarGua.Elementos[static_cast<std::size_t>(i)].Texto));
}

// ---------------------------------------------------------------- what the buttons do

void Suena() {
    SonidoJuego(1, sonido::BOTON);
}

// A file of another game changes the game: the one that is left is kept as at any such change.
void CargaElPuzzle() {
    const i16 juego = Gbl.JuegoActual;
    const std::string fichero = FicheroDelJuego(), partida = EscribePuzzle();
    BarraHor.Pon(0);
    BarraVer.Pon(0);
    LeeAjustesJuego(FicheroPuzzle(Gbl.NombreActual));
    // Before against after: which two games they are makes no difference.
    if (Gbl.JuegoActual != juego) EscribeFichero(fichero, partida);
}

void Pic_BotCargar_Click() {
    Suena();
    Gbl.ColoresCambiados = false;
    if (!EstaActivo(Pic_BotCargar)) return;
    Llama(CargaElPuzzle);
    Sistema().Cierra(Cargua);
}

// The puzzle takes the name under which it is kept, unless that field holds a model's.
// Deliberate: a save that fails closes the window without a word; what was there before stays.
void GuardaElPuzzle(const std::string& ruta) {
    const std::string antes = Gbl.NombrePuzzle;
    if (!JuegoEnCurso().GuardaModelos)
        Gbl.NombrePuzzle = Trim(Left(TextoDeRuta(Gbl.NombreActual), LARGO_NOMBRE_PUZZLE));
    if (!ruta.empty()) AseguraCarpetaDe(ruta);  // it may be gone since the start
    if (ruta.empty() || GuardaPuzzle(ruta) != 0) Gbl.NombrePuzzle = antes;
}

void ArchivaPuzzle() {
    const std::string ruta = FicheroPuzzle(Gbl.NombreActual);
    if (!ruta.empty() && SeAbre(ruta) && !Gbl.AvisoExiste) {
        PonMensaje(YA_EXISTE);
        Gbl.AvisoExiste = true;
        return;
    }
    Llama([&] { GuardaElPuzzle(ruta); });
    Sistema().Cierra(Cargua);
}

void ArchivaModelo() {
    if (!JuegoEnCurso().GuardaModelos) return;
    AseguraCarpetaDe(FicheroModelos());
    Llama([] { GuardaModelo(Gbl.NombreActual); });
    Sistema().Cierra(Cargua);
}

void Pic_BotGuardar_Click() {
    Suena();
    if (!EstaActivo(Pic_BotGuardar)) return;
    if (Gbl.ModoCargua == CARGUA_GUARDAR) ArchivaPuzzle();
    if (Gbl.ModoCargua == CARGUA_MODELO) ArchivaModelo();
}

void Pic_BotBorrar_Click() {
    Suena();
    if (!EstaActivo(Pic_BotBorrar) || Gbl.NombreActual.empty()) return;
    if (BorraFichero(FicheroPuzzle(Gbl.NombreActual)) != 0) return;
    RellenaListaPuzzles();
    Tex_NombreCargua.Escribe("");
}

void Lis_CarGua_DblClick() {
    if (Gbl.ModoCargua == CARGUA_CARGAR) Pic_BotCargar_Click();
    if (Gbl.ModoCargua == CARGUA_GUARDAR && !Gbl.AvisoExiste) Pic_BotGuardar_Click();
}

// Deliberate: in the delete mode Enter presses the save button, which is inactive there.
void Tex_Nombre_KeyPress(i16 caracter) {
    if (caracter != INTRO) return;
    Gbl.ModoCargua == CARGUA_CARGAR ? Pic_BotCargar_Click() : Pic_BotGuardar_Click();
}

// ---------------------------------------------------------------- the window

// Whole rows: none is cut at the lower edge.
i32 AltoLista() {
    const i32 fila = Sistema().AltoTexto(Lis_CarGua.Font);
    constexpr i32 resto = lugar::ListaArr + lugar::BordesLista + lugar::BajoLista +
                          lugar::NombreAlto + lugar::BajoNombre + LADO_BOTON + PIE_VENTANA;
    const i32 caben = (Gbl.AltoPantalla - lugar::BajoVentana - resto) / fila;
    const i32 filas = std::min({Lis_CarGua.ListCount(), caben, FILAS_MAX});
    return std::max(filas, FILAS_MIN) * fila + lugar::BordesLista;
}

void ColocaControles() {
    const i32 alto = AltoLista();
    const i32 nombre = lugar::ListaArr + alto + lugar::BajoLista;
    PreparaVentana(Cargua, lugar::Ancho,
                   nombre + lugar::NombreAlto + lugar::BajoNombre + LADO_BOTON + PIE_VENTANA);
    const Uso& uso = UsoActual();
    Tex_TituloCargua.Caption = uso.titulo;
    Cargua.Caption = Trim(uso.titulo);
    PonMensaje(uso.mensaje);
    Tex_TituloCargua.Mueve(lugar::Izq, lugar::TituloArr);
    Tex_TituloCargua.Tamano(lugar::AnchoTexto, lugar::TituloAlto);
    Tex_MensajeCargua.Mueve(lugar::Izq, lugar::MensajeArr);
    Tex_MensajeCargua.Tamano(lugar::AnchoTexto, lugar::MensajeAlto);
    Lis_CarGua.Mueve(lugar::Izq, lugar::ListaArr);
    Lis_CarGua.Tamano(lugar::AnchoTexto, alto);
    Tex_NombreCargua.Mueve(lugar::Izq, nombre);
    Tex_NombreCargua.Tamano(lugar::AnchoTexto, lugar::NombreAlto);
    HundeEn(Cargua, Lis_CarGua);
    HundeEn(Cargua, Tex_NombreCargua);
    constexpr i32 derecha = lugar::Izq + lugar::AnchoTexto;
    constexpr i32 paso = LADO_BOTON + ENTRE_BOTONES;
    ColocaBoton(Pic_BotSalirCargua, TeselaSalir, Cargua, derecha);
    ColocaBoton(Pic_BotAyudaCargua, TeselaAyuda, Cargua, lugar::Izq + LADO_BOTON);
    for (Cuadro* b : {&Pic_BotCargar, &Pic_BotGuardar, &Pic_BotBorrar}) b->Visible = b == uso.boton;
    ColocaBoton(*uso.boton, uso.tesela, Cargua, derecha - paso);
    uso.boton->ToolTipText = uso.sugerencia;
}

void Cargua_Load() {
    if (Gbl.ModoCargua == CARGUA_MODELO)
        CargaListaModelos(Lis_CarGua);
    else
        RellenaListaPuzzles();
    ColocaControles();
    Gbl.AvisoExiste = false;
    Gbl.NombreActual.clear();
    Tex_NombreCargua.Text.clear();
    ActivaBoton(false);
    Sistema().PonFoco(Tex_NombreCargua);
}

void ReiniciaControles() {
    Cargua = Ventana{};
    Cargua.Nombre = "Cargua";
    Tex_TituloCargua = Etiqueta{};
    Tex_TituloCargua.Nombre = "Tex_Titulo";
    Tex_TituloCargua.Font.Negrita = true;
    Tex_TituloCargua.ForeColor = paleta::tinta::TITULO.Texto;
    Tex_MensajeCargua = Etiqueta{};
    Tex_MensajeCargua.Nombre = "Tex_Mensaje";
    Lis_CarGua = Lista{};
    Lis_CarGua.Nombre = "Lis_CarGua";
    Lis_CarGua.NombreAccesible = "Nombres archivados";
    Lis_CarGua.TabStop = true;
    Lis_CarGua.Ordenada = true;
    Fil_CarGua = ListaFicheros{};
    Fil_CarGua.Pattern = std::string("*") + EXTENSION + ";.*" + EXTENSION;
    Tex_NombreCargua = CajaTexto{};
    Tex_NombreCargua.Nombre = "Tex_Nombre";
    Tex_NombreCargua.NombreAccesible = "Nombre";
    Tex_NombreCargua.TabStop = true;
    ReiniciaBoton(Pic_BotCargar, "Pic_BotCargar", "Cargar");
    ReiniciaBoton(Pic_BotGuardar, "Pic_BotGuardar", "Guardar");
    ReiniciaBoton(Pic_BotBorrar, "Pic_BotBorrar", "Borrar");
    ReiniciaBoton(Pic_BotAyudaCargua, "Pic_BotAyuda", "Ayuda");
    ReiniciaBoton(Pic_BotSalirCargua, "Pic_BotSalir", "Cerrar");
    Cargua.Controles = {&Tex_TituloCargua, &Tex_MensajeCargua,  &Lis_CarGua,
                        &Tex_NombreCargua, &Pic_BotCargar,      &Pic_BotGuardar,
                        &Pic_BotBorrar,    &Pic_BotAyudaCargua, &Pic_BotSalirCargua};
}

}  // namespace

std::string FicheroPuzzle(const std::string& nombre) {
    // A name that leads to another folder is refused like one that the file system refuses.
    if (nombre.find_first_of(std::string_view("/\\\0", 3)) != std::string::npos) return {};
    return BuscaRuta(Gbl.CarpetaArchivo + nombre + EXTENSION);
}

void RellenaListaPuzzles() {
    Fil_CarGua.Path = Gbl.CarpetaArchivo;
    Fil_CarGua.Relee();
    std::vector<Lista::Elemento> nombres;
    for (const Lista::Elemento& e : Fil_CarGua.Elementos)
        nombres.push_back({e.Texto.substr(0, e.Texto.size() - LARGO_EXTENSION), 0});
    Lis_CarGua.Rellena(std::move(nombres));
}

void ConectaCargua() {
    ReiniciaControles();
    Cargua.Load = Cargua_Load;
    Cargua.KeyPress = [](i16 caracter) { SaleConEscape(Cargua, caracter); };
    Lis_CarGua.Click = Lis_CarGua_Click;
    Lis_CarGua.DblClick = Lis_CarGua_DblClick;
    Tex_NombreCargua.Change = TomaNombre;
    Tex_NombreCargua.KeyPress = Tex_Nombre_KeyPress;
    Pic_BotCargar.Click = Pic_BotCargar_Click;
    Pic_BotGuardar.Click = Pic_BotGuardar_Click;
    Pic_BotBorrar.Click = Pic_BotBorrar_Click;
    Pic_BotAyudaCargua.Click = [] { AyudaDesdeVentana(UsoActual().ayuda); };
    Pic_BotSalirCargua.Click = [] { SaleDe(Cargua); };
}

}  // namespace tessario
