// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Lineas.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "core/Cadenas.h"
#include "core/Numeros.h"
#include "core/Paleta.h"
#include "panel/Cronometro.h"
#include "records/Historial.h"
#include "records/Texto.h"
#include "rules/Catalogo.h"
#include "rules/Juego.h"
#include "rules/PuzzBas.h"

namespace tessario {

namespace {

constexpr i32 ANCHO_PANEL = 398;
constexpr i32 ETIQUETA_X = 20, PRIMERA_LINEA = 20, PASO = 15, CORTE = 10, BAJO_ULTIMA = 35;
constexpr Color TINTA_ETIQUETA = paleta::tinta::ETIQUETA.Texto,
                TINTA_VALOR = paleta::tinta::VALOR.Texto;
const Fuente LETRA{Familia::Mono, 12, false, false};
constexpr i32 ANCHO_LETRA = 7;  // of every character of that font, pixels

constexpr i32 LARGO_UBICACION = 32, RESTO_UBICACION = 28;  // characters
constexpr i32 COLUMNA_MEDIDAS = 20;                        // of a Tangram piece's sizes

// The bar of the share solved, below its line's text.
constexpr i32 BARRA_DEBAJO = 13, BARRA_ANCHO = 200, BARRA_ALTO = 2;
constexpr Color BARRA_LLENA = paleta::COBALTO, BARRA_VACIA = 0xC6DDEC;

using Condicion = bool (*)(const Ficha&);
using Valor = std::string (*)(const Ficha&);

// ---------------------------------------------------------------- conditions

bool Siempre(const Ficha&) {
    return true;
}
bool HechoDeImagen(const Ficha&) {
    return JuegoEnCurso().Imagen == UsoDeImagen::Necesario;
}
bool ConFormas(const Ficha&) {
    return JuegoEnCurso().TieneFormas;
}
bool ConFondo(const Ficha&) {
    return JuegoEnCurso().EligeFondo;
}
bool ConNombres(const Ficha&) {
    return JuegoEnCurso().PiezasConNombre;
}
bool ConCuadricula(const Ficha&) {
    return JuegoEnCurso().Imagen != UsoDeImagen::Ninguno;
}
bool ConModelo(const Ficha&) {
    return ResolviendoModelo();
}
bool ConImagen(const Ficha& f) {
    return HechoDeImagen(f) || (ConFondo(f) && f.Datos.Fondo == FONDO_IMAGEN);
}
bool ConAtraccion(const Ficha& f) {
    return HechoDeImagen(f) || ConModelo(f);
}
// A free design has nothing to count; the history has its record whatever is on the table.
bool ConCuenta(const Ficha& f) {
    return f.Ventana == Ficha::DelHistorico || !CreandoFiguras();
}
bool SinZoom(const Ficha& f) {
    return HechoDeImagen(f) && f.Datos.Zoom == 100;
}
bool Reducida(const Ficha& f) {
    return HechoDeImagen(f) && f.Datos.Zoom < 100;
}
bool Ampliada(const Ficha& f) {
    return HechoDeImagen(f) && f.Datos.Zoom > 100;
}
// Deliberate: the label of the size goes by the zoom in force now, not by the record's.
bool TamanoReducido(const Ficha& f) {
    return HechoDeImagen(f) && f.Datos.Zoom != 100 && Gbl.ZoomImagen <= 100;
}
bool TamanoAmpliado(const Ficha& f) {
    return HechoDeImagen(f) && f.Datos.Zoom != 100 && Gbl.ZoomImagen > 100;
}

// ---------------------------------------------------------------- values

std::string Elegido(i16 n, i16 primero, std::initializer_list<const char*> nombres) {
    const i32 i = n - primero;
    const bool hay = i >= 0 && static_cast<std::size_t>(i) < nombres.size();
    return hay ? nombres.begin()[i] : "";
}

std::string Medida(i16 ancho, i16 alto) {
    return std::to_string(ancho) + " x " + std::to_string(alto) + " píxeles";
}

std::string Pixeles(i16 n) {
    return std::to_string(n) + " píxeles";
}

std::string PorCiento(i32 n) {
    return std::to_string(n) + "%";
}

std::string SiONo(bool si) {
    return si ? "Si" : "No";
}

bool DelPortapapeles(const Ficha& f) {
    return Minusculas(f.Datos.Fichero) == IMAGEN_PORTAPAPELES;
}

std::string TipoPuzzle(const Ficha& f) {
    return JuegoDe(f.Datos.Juego).Nombre;
}

std::string TipoFondo(const Ficha& f) {
    return Elegido(f.Datos.Fondo, FONDO_IMAGEN, {"Imagen", "Números", "Letras"});
}

std::string ArchivoImagen(const Ficha& f) {
    return DelPortapapeles(f) ? "Copiada del Portapapeles" : TextoDeRuta(f.Datos.Fichero);
}

std::string Ubicacion(const Ficha& f) {
    if (DelPortapapeles(f)) return {};
    const std::string texto = TextoDeRuta(f.Datos.Ubicacion);
    return Len(texto) < LARGO_UBICACION ? texto : Left(texto, RESTO_UBICACION) + "...";
}

std::string ClasePiezas(const Ficha& f) {
    return Elegido(f.Datos.Clase, 1, {"Simples", "Dobles", "", "Cuádruples"});
}

std::string FormaPiezas(const Ficha& f) {
    const i16 forma = f.Datos.Forma;
    return EsForma(forma) ? Gbl.NombresFormas[forma] : std::string();
}

i32 Porcentaje() {
    if (Gbl.NumPiezas <= 0) return 0;
    return EnteroLargo(Gbl.PiezasColocadas * 100.0 / Gbl.NumPiezas);
}

// By the pieces of the record, or by those that stand in their place; without any, the whole.
std::string TiempoPorPieza(const Ficha& f) {
    const i16 piezas =
        f.Ventana == Ficha::DelHistorico ? f.Datos.Total : static_cast<i16>(Gbl.PiezasColocadas);
    return TextoDuracion(static_cast<double>(f.Datos.Segundos) / std::max<i16>(piezas, 1));
}

std::string Nivel(const Ficha& f) {
    char texto[64];
    const auto fin = std::to_chars(texto, texto + sizeof texto, static_cast<double>(f.Datos.Nivel),
                                   std::chars_format::fixed, 4);
    return fin.ec == std::errc{} ? std::string(texto, fin.ptr) : std::string();
}

template <i32 Pieza>
std::string MedidasTangram(const Ficha&) {
    const auto columna = [](i16 n) { return Derecha(n, 3) + " px."; };
    return columna(Gbl.TAncho[Pieza]) + "   " + columna(Gbl.TAlto[Pieza]);
}

// The share solved as a thin bar under its line.
void PintaBarra(Cuadro& panel, i32 y) {
    const i32 arriba = y + BARRA_DEBAJO;
    const i32 llena = std::clamp(Porcentaje(), 0, 100) * BARRA_ANCHO / 100;
    const auto banda = [&](i32 desde, i32 hasta, Color color) {
        if (desde < hasta)
            panel.Line(pluma::Desde | pluma::ConColor | pluma::Caja | pluma::Llena,
                       LINEAS_VALOR_X + desde, arriba, LINEAS_VALOR_X + hasta - 1,
                       arriba + BARRA_ALTO - 1, color);
    };
    banda(0, llena, BARRA_LLENA);
    banda(llena, BARRA_ANCHO, BARRA_VACIA);
}

// ---------------------------------------------------------------- the table

constexpr int HISTORICO = Ficha::DelHistorico, ESTADISTICAS = Ficha::DeEstadisticas;
constexpr int AMBAS = HISTORICO | ESTADISTICAS;

// A line, or a break. A Tangram piece's line has its name for a label.
struct Linea {
    int ventanas;
    Condicion vale;
    const char* etiqueta;
    Valor valor;
    void (*adorno)(Cuadro& panel, i32 y) = nullptr;  // painted with the line whose top is y
    i32 pieza = 0;
};
constexpr Linea SEPARACION{AMBAS, nullptr, nullptr, nullptr};

std::string Nada(const Ficha&) {
    return {};
}

const Linea LINEAS[] = {
    {HISTORICO, Siempre,
     "Orden................:", [](const Ficha& f) { return std::to_string(f.Orden); }},
    {HISTORICO, Siempre, "Fecha................:", [](const Ficha& f) { return f.Datos.Fecha; }},
    {HISTORICO, Siempre, "Hora.................:", [](const Ficha& f) { return f.Datos.Hora; }},
    {AMBAS, Siempre, "Tipo de puzzle.......:", TipoPuzzle},
    SEPARACION,
    {AMBAS, ConFondo, "Tipo de fondo........:", TipoFondo},
    {HISTORICO, ConModelo, "Modelo resuelto......:", [](const Ficha& f) { return f.Datos.Modelo; }},
    {ESTADISTICAS, ConModelo,
     "Modelo a resolver....:", [](const Ficha& f) { return f.Datos.Modelo; }},
    {AMBAS, ConImagen, "Archivo de imagen....:", ArchivoImagen},
    {AMBAS, ConImagen, "Ubicación del archivo:", Ubicacion},
    {AMBAS, ConImagen, "Tamaño de la imagen..:",
     [](const Ficha& f) { return Medida(f.Datos.AnchoOriginal, f.Datos.AltoOriginal); }},
    {AMBAS, SinZoom, "Zoom aplicado........:", [](const Ficha&) { return std::string("Ninguno"); }},
    {AMBAS, Reducida,
     "Reducción del tamaño.:", [](const Ficha& f) { return PorCiento(f.Datos.Zoom); }},
    {AMBAS, Ampliada,
     "Ampliación del tamaño:", [](const Ficha& f) { return PorCiento(f.Datos.Zoom); }},
    {AMBAS, TamanoReducido, "Tamaño reducido......:",
     [](const Ficha& f) { return Medida(f.Datos.AnchoFinal, f.Datos.AltoFinal); }},
    {AMBAS, TamanoAmpliado, "Tamaño ampliado......:",
     [](const Ficha& f) { return Medida(f.Datos.AnchoFinal, f.Datos.AltoFinal); }},
    SEPARACION,
    {AMBAS, ConCuadricula,
     "Piezas por lado......:", [](const Ficha& f) { return std::to_string(f.Datos.Lado); }},
    {AMBAS, ConFormas, "Clase de piezas......:", ClasePiezas},
    {AMBAS, ConFormas, "Tipo de piezas.......:", FormaPiezas},
    {AMBAS, Siempre,
     "Piezas totales.......:", [](const Ficha& f) { return std::to_string(f.Datos.Total); }},
    {AMBAS, ConFormas,
     "Ancho de las piezas..:", [](const Ficha& f) { return Pixeles(f.Datos.AnchoPiezas); }},
    {AMBAS, ConFormas,
     "Alto de las piezas...:", [](const Ficha& f) { return Pixeles(f.Datos.AltoPiezas); }},
    {ESTADISTICAS, ConNombres, "Tipo de pieza       Ancho     Alto", Nada},
    {ESTADISTICAS, ConNombres, nullptr, MedidasTangram<1>, nullptr, 1},
    {ESTADISTICAS, ConNombres, nullptr, MedidasTangram<2>, nullptr, 2},
    {ESTADISTICAS, ConNombres, nullptr, MedidasTangram<3>, nullptr, 3},
    {ESTADISTICAS, ConNombres, nullptr, MedidasTangram<4>, nullptr, 4},
    {ESTADISTICAS, ConNombres, nullptr, MedidasTangram<5>, nullptr, 5},
    {ESTADISTICAS, ConNombres, nullptr, MedidasTangram<6>, nullptr, 6},
    {ESTADISTICAS, ConNombres, nullptr, MedidasTangram<7>, nullptr, 7},
    {AMBAS, ConAtraccion,
     "Factor de atracción..:", [](const Ficha& f) { return PorCiento(f.Datos.Atraccion); }},
    SEPARACION,
    {ESTADISTICAS, ConCuenta,
     "Piezas colocadas.....:", [](const Ficha&) { return std::to_string(Gbl.PiezasColocadas); }},
    {ESTADISTICAS, ConCuenta,
     "Porcentaje resuelto..:", [](const Ficha&) { return PorCiento(Porcentaje()); }, PintaBarra},
    {AMBAS, ConCuenta,
     "Tiempo total.........:", [](const Ficha& f) { return TextoDuracion(f.Datos.Segundos); }},
    {AMBAS, ConCuenta, "Tiempo por pieza.....:", TiempoPorPieza},
    {AMBAS, ConCuenta, "Nivel de dificultad..:", Nivel},
    {ESTADISTICAS, ConCuenta,
     "¿Pasará al Histórico?:", [](const Ficha&) { return SiONo(Gbl.PuzzleArchivable); }},
    {ESTADISTICAS, ConCuenta,
     "¿Puzzle resuelto?....:", [](const Ficha&) { return SiONo(Gbl.PuzzleTerminado); }},
    {HISTORICO, Siempre, "Nombre del jugador...:", [](const Ficha& f) { return f.Datos.Jugador; }},
    // Its value is the box in which the name is written.
    {ESTADISTICAS, Siempre, "Nombre del jugador...:", Nada},
};

// ---------------------------------------------------------------- printing

struct LineaPuesta {
    const Linea* linea;
    i32 y;
};

std::vector<LineaPuesta> Coloca(const Ficha& ficha) {
    std::vector<LineaPuesta> puestas;
    i32 y = PRIMERA_LINEA;
    for (const Linea& l : LINEAS) {
        if (!l.vale) {
            y += CORTE;
        } else if ((l.ventanas & ficha.Ventana) != 0 && l.vale(ficha)) {
            puestas.push_back({&l, y});
            y += PASO;
        }
    }
    return puestas;
}

// A line as a screen reader should say it, without the dots that lead the eye.
std::string EnVoz(const std::string& etiqueta, const std::string& valor) {
    const std::size_t fin = etiqueta.find_last_not_of(".: ");
    return etiqueta.substr(0, fin == std::string::npos ? 0 : fin + 1) + ": " + valor + ". ";
}

void Escribe(Cuadro& panel, i32 x, i32 y, const std::string& texto, Color tinta) {
    panel.ForeColor = tinta;
    panel.CurrentX = x;
    panel.CurrentY = y;
    panel.Print(texto);
}

}  // namespace

i32 ImprimeLineas(Cuadro& panel, const Ficha& ficha) {
    const std::vector<LineaPuesta> puestas = Coloca(ficha);
    const i32 ultima = puestas.back().y;
    panel.Tamano(ANCHO_PANEL, ultima + BAJO_ULTIMA);
    panel.PonBackColor(PAPEL_LINEAS);
    panel.Font = LETRA;
    panel.NombreAccesible.clear();
    for (const auto& [l, y] : puestas) {
        const i32 x = l->pieza ? ETIQUETA_X + COLUMNA_MEDIDAS * ANCHO_LETRA : LINEAS_VALOR_X;
        const std::string etiqueta = l->pieza ? Gbl.NombresTangram[l->pieza] : l->etiqueta;
        const std::string valor = l->valor(ficha);
        Escribe(panel, ETIQUETA_X, y, etiqueta, TINTA_ETIQUETA);
        Escribe(panel, x, y, valor, TINTA_VALOR);
        panel.NombreAccesible += EnVoz(etiqueta, valor);
        if (l->adorno) l->adorno(panel, y);
    }
    return ultima;
}

std::string TextoDuracion(double segundos) {
    constexpr double maximo = 2147483647.0;
    return TextoTiempo(EnteroLargo(std::clamp(segundos, 0.0, maximo)));
}

}  // namespace tessario
