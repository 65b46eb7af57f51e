// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Mandos.h"

#include <algorithm>

#include "core/Cadenas.h"
#include "core/Paleta.h"
#include "core/PuzzGbl.h"
#include "core/Servicios.h"
#include "core/Superficies.h"
#include "panel/Adornos.h"
#include "platform/Plataforma.h"
#include "rules/Juego.h"

namespace tessario {

Ventana Personal;

namespace personal {

Cuadro Pic_JuegoActual, Pic_ImagenPuzz, Pic_ZoomImagen, Pic_TiposPuz, Pic_NroPiezas;
Cuadro Pic_Colorfon, Pic_Colorpza, Pic_FactorPegado;
ListaUnidades Drive1;
ListaCarpetas Dir1;
ListaFicheros File1;
Lista Lis_Modelos;
Cuadro Pic_MostrarImagen, Pic_BotPortapapeles;
Spin Spin1;
Cuadro Pic_InfoTamBmp, Pic_TamRelIma;
Cuadro Pic_TipPuzSel, Pic_TipPuzMarco, Pic_TipPuz[8];
Lista Lis_NroPiezas;
CampoColor ColFon, ColPza;
Cuadro Pic_Prueba, Pic_PruebaPeq, Pic_BotPrueba;
Cuadro Pic_BotAyuda, Pic_BotSalir;

namespace {

Buleano Buleano_[std::size(OPCIONES) + std::size(JUEGOS)];
Selector Selector_[2];
Potenciometro Potenciometro_[2];

// ---------------------------------------------------------------- geometry, pixels

struct Sitio {
    i32 x, y, ancho, alto;
};

constexpr i32 ANCHO_VENTANA = 656;
constexpr i32 IZQUIERDA = 14, ANCHO_IZQUIERDA = 256;  // column of the picture
constexpr i32 MEDIO = 285, ANCHO_MEDIO = 194;         // column of the pieces
constexpr i32 DERECHA = 494, ANCHO_DERECHA = 148;     // column of what concerns the program
constexpr i32 CIMA_IZQUIERDA = 77, CIMA_MEDIO = 76, CIMA_MEDIO_MODELOS = 84;
constexpr i32 ALTO_SELECTOR = 42, PASO_SELECTOR = 50;
constexpr i32 ANCHO_BULEANO = 206, ALTO_BULEANO = 24,
              ALTO_BULEANO_DOBLE = 38;  // one or two lines of caption
constexpr i32 ALTO_COLOR = 85, PASO_COLOR = 100;
constexpr i32 LADO_BOTON = 48, BOTON_DESDE_ABAJO = 65, AYUDA_DESDE_DERECHA = 157,
              SALIR_DESDE_DERECHA = 68;
constexpr i32 LETRA_BOTON_LARGO = 11;  // the captions fill the long buttons
constexpr i32 VELOCIDAD_X = 502, VELOCIDAD_Y = 388, VELOCIDAD_Y_MODELOS = 374;
constexpr i32 VELOCIDAD_ANCHO = 132, VELOCIDAD_ALTO = 40;

constexpr Sitio PANEL_JUEGO{14, 6, 627, 58};
constexpr i32 JUEGO_X[] = {30, 230, 430}, JUEGO_Y = 20, JUEGO_ANCHO = 170;
constexpr Sitio PANEL_ZOOM{IZQUIERDA, 457, ANCHO_IZQUIERDA, 85};
constexpr Sitio PANEL_FACTOR{DERECHA, 76, 147, 188};
constexpr i32 INFORMACION_Y = 285, SONIDO_Y = 333;

// The shapes: eight tiles of Pic_BmpVario in two rows of four.
constexpr i32 FORMA_LADO = 29, FORMA_PASO = 41, FORMA_MARGEN = 10, FORMAS_POR_FILA = 4;
constexpr i32 FORMA_TESELA_X = 102, FORMA_TESELA_PASO = 30;
constexpr i32 MARCO_SALE = 3;  // the frame round the chosen one reaches out by that

// The field of colours: six blocks of six by six squares.
constexpr i32 COLOR_INICIO = 2, COLOR_LADO = 5, COLOR_NIVELES = 6, COLOR_PASO = 51;
constexpr i32 COLOR_MARCA = COLOR_LADO + 2;

// Files of Pic_BmpBoton.
constexpr i32 TESELA_AYUDA = 294, TESELA_SALIR = 343, TESELA_FILA = 49;

constexpr Color MARCO_ELEGIDA = paleta::COBALTO;
constexpr int RECTA = pluma::Desde | pluma::ConColor;

void Coloca(Control& c, const Sitio& s) {
    c.Mueve(s.x, s.y);
    c.Tamano(s.ancho, s.alto);
}

// ---------------------------------------------------------------- records

template <class T>
T& Nuevo(T& c, const char* nombre, Control* contenedor, const Sitio& sitio) {
    c = T{};
    c.Nombre = nombre;
    c.Contenedor = contenedor;
    Coloca(c, sitio);
    Personal.Controles.push_back(&c);
    return c;
}

Cuadro& NuevoPanel(Cuadro& c, const char* nombre, const Sitio& sitio = {0, 0, 0, 0}) {
    Nuevo(c, nombre, nullptr, sitio);
    c.PonBackColor(FONDO_VENTANA);
    return c;
}

Cuadro& NuevoBoton(Cuadro& c, const char* nombre, Control* contenedor, const Sitio& sitio,
                   const char* accesible) {
    Nuevo(c, nombre, contenedor, sitio);
    c.PonBackColor(FONDO_VENTANA);
    c.NombreAccesible = accesible;
    c.TabStop = c.Resalta = true;
    PonCursor(c, cursor::MANO_INDICE);
    return c;
}

Buleano& NuevoBuleano(i16 indice, const char* rotulo, const Sitio& sitio,
                      Control* contenedor = nullptr) {
    Buleano& b = Nuevo(Bul(indice), "Buleano", contenedor, sitio);
    b.Nombre += "(" + std::to_string(indice) + ")";
    b.Caption = rotulo;
    b.TabStop = true;
    PonCursor(b, cursor::MANO_INDICE);
    return b;
}

void NuevosJuegos() {
    constexpr const char* ROTULOS[] = {"Puzzle de piezas móviles", "Puzzle de piezas deslizantes",
                                       "Juego del Tangram"};
    NuevoPanel(Pic_JuegoActual, "Pic_JuegoActual", PANEL_JUEGO);
    for (std::size_t i = 0; i < std::size(JUEGOS); ++i) {
        Buleano& b = NuevoBuleano(JUEGOS[i], ROTULOS[i],
                                  {JUEGO_X[i], JUEGO_Y, JUEGO_ANCHO, 2 * ALTO_BULEANO - 16},
                                  &Pic_JuegoActual);
        b.Sound = false;  // what the window does with a press has its own sound
    }
}

void NuevosSelectores() {
    constexpr const char* ROTULOS[] = {"Modo de juego", "Fondo del puzzle"};
    for (const i16 i : {SEL_MODO, SEL_FONDO}) {
        Selector& s = Nuevo(Sel(i), "Selector", nullptr,
                            {IZQUIERDA, CIMA_IZQUIERDA, ANCHO_IZQUIERDA, ALTO_SELECTOR});
        s.Nombre += "(" + std::to_string(i) + ")";
        s.Caption = ROTULOS[i - 1];
        s.TabStop = true;
        PonCursor(s, cursor::MANO_INDICE);
    }
    Sel(SEL_MODO).Textos = {"Crear figuras o nuevos modelos", "Resolver modelos archivados"};
}

void NuevaImagen() {
    NuevoPanel(Pic_ImagenPuzz, "Pic_ImagenPuzz");
    Nuevo(Drive1, "Drive1", &Pic_ImagenPuzz, {8, 19, 118, 23}).NombreAccesible = "Unidad";
    Nuevo(Dir1, "Dir1", &Pic_ImagenPuzz, {8, 44, 118, 96}).NombreAccesible = "Carpeta";
    Nuevo(File1, "File1", &Pic_ImagenPuzz, {130, 18, 118, 123}).NombreAccesible =
        "Archivos de imagen";
    File1.Pattern = PATRON_IMAGENES;
    Nuevo(Lis_Modelos, "Lis_Modelos", &Pic_ImagenPuzz, {8, 18, 239, 148}).NombreAccesible =
        "Modelos de Tangram";
    for (Control* c : std::initializer_list<Control*>{&Drive1, &Dir1, &File1, &Lis_Modelos})
        c->TabStop = true;
    NuevoBoton(Pic_BotPortapapeles, "Pic_BotPortapapeles", &Pic_ImagenPuzz,
               {42, 150, 171, ALTO_BOTON_LARGO}, "Cargar imagen del Portapapeles");
    Pic_BotPortapapeles.Font.Tamano = LETRA_BOTON_LARGO;
    Nuevo(Pic_MostrarImagen, "Pic_MostrarImagen", &Pic_ImagenPuzz, {8, 182, 240, 180});
    Pic_MostrarImagen.NombreAccesible = "Vista previa";
}

void NuevoZoom() {
    NuevoPanel(Pic_ZoomImagen, "Pic_ZoomImagen", PANEL_ZOOM);
    Nuevo(Spin1, "Spin1", &Pic_ZoomImagen, {6, 19, 155, 27});
    Spin1.Caption = " Porcentaje";
    Spin1.NombreAccesible = "Zoom de la imagen, porcentaje";
    Spin1.Min = ZOOM_MINIMO;
    Spin1.Max = ZOOM_MAXIMO;
    Spin1.Incremento = ZOOM_PASO;
    Spin1.TabStop = true;
    PonCursor(Spin1, cursor::MANO_INDICE);
    Nuevo(Pic_InfoTamBmp, "Pic_InfoTamBmp", &Pic_ZoomImagen, {7, 53, 154, 27});
    Nuevo(Pic_TamRelIma, "Pic_TamRelIma", &Pic_ZoomImagen, {167, 20, 80, 60}).NombreAccesible =
        "La imagen en la pantalla";
}

void NuevasFormas() {
    NuevoPanel(Pic_TiposPuz, "Pic_TiposPuz");
    Nuevo(Pic_TipPuzSel, "Pic_TipPuzSel", &Pic_TiposPuz, {11, 20, 172, 90})
        .PonBackColor(FONDO_VENTANA);
    Pic_TipPuzSel.TabStop = true;
    constexpr i32 lado = FORMA_LADO + 2 * MARCO_SALE;
    Nuevo(Pic_TipPuzMarco, "Pic_TipPuzMarco", &Pic_TipPuzSel, {0, 0, lado, lado});
    for (i32 i = 0; i < 8; ++i) {
        Cuadro& c =
            Nuevo(Pic_TipPuz[i], "Pic_TipPuz", &Pic_TipPuzSel,
                  {FORMA_MARGEN + FORMA_PASO * (i % FORMAS_POR_FILA),
                   FORMA_MARGEN + FORMA_PASO * (i / FORMAS_POR_FILA), FORMA_LADO, FORMA_LADO});
        c.Nombre += "(" + std::to_string(i) + ")";
        c.Resalta = true;
    }
}

void NuevoNumero() {
    NuevoPanel(Pic_NroPiezas, "Pic_NroPiezas");
    Nuevo(Lis_NroPiezas, "Lis_NroPiezas", &Pic_NroPiezas, {8, 20, 178, 0}).NombreAccesible =
        "Número de piezas";
    Lis_NroPiezas.Font = {Familia::Mono, 12, false, false};
    Lis_NroPiezas.TabStop = true;
}

void NuevoColor(Cuadro& panel, CampoColor& campo, const char* nombre, const char* prefijo) {
    NuevoPanel(panel, nombre);
    Nuevo(campo.Seleccion, prefijo, &panel, {5, 19, 184, 34}).Nombre += "Sel";
    campo.Seleccion.PonBackColor(FONDO_VENTANA);
    campo.Seleccion.TabStop = true;
    PonCursor(campo.Seleccion, cursor::MANO_INDICE);
    Nuevo(campo.Marca, prefijo, &campo.Seleccion, {0, 0, COLOR_MARCA, COLOR_MARCA}).Nombre +=
        "Marca";
    Nuevo(campo.Muestra, prefijo, &panel, {5, 56, 184, 24}).Nombre += "Mue";
}

void NuevoFactor() {
    NuevoPanel(Pic_FactorPegado, "Pic_FactorPegado", PANEL_FACTOR);
    Potenciometro& p =
        Nuevo(Pot(POT_FACTOR), "Potenciometro(2)", &Pic_FactorPegado, {8, 28, 115, 20});
    p.Caption = "Porcentaje";
    p.NombreAccesible = "Factor de atracción, porcentaje";
    p.TabStop = true;
    PonCursor(p, cursor::MANO_INDICE);
    Nuevo(Pic_Prueba, "Pic_Prueba", &Pic_FactorPegado, {8, 65, 131, 115})
        .PonBackColor(FONDO_VENTANA);
    Nuevo(Pic_PruebaPeq, "Pic_PruebaPeq", &Pic_Prueba, {53, 45, 29, 23});
    NuevoBoton(Pic_BotPrueba, "Pic_BotPrueba", &Pic_Prueba, {15, 83, 98, ALTO_BOTON_LARGO},
               "Probar atracción");
    Pic_BotPrueba.Font.Tamano = LETRA_BOTON_LARGO;
}

void NuevoPrograma() {
    NuevoBuleano(BUL_INFORMACION, "Ventana de información",
                 {DERECHA, INFORMACION_Y, ANCHO_DERECHA, ALTO_BULEANO_DOBLE});
    NuevoBuleano(BUL_SONIDO, "Sonido", {DERECHA, SONIDO_Y, ANCHO_DERECHA, ALTO_BULEANO});
    Potenciometro& p = Nuevo(Pot(POT_VELOCIDAD), "Potenciometro(1)", nullptr,
                             {VELOCIDAD_X, VELOCIDAD_Y, VELOCIDAD_ANCHO, VELOCIDAD_ALTO});
    p.Caption = "Velocidad de juego";
    p.TabStop = true;
    PonCursor(p, cursor::MANO_INDICE);
    NuevoBoton(Pic_BotAyuda, "Pic_BotAyuda", nullptr, {0, 0, LADO_BOTON, LADO_BOTON}, "Ayuda");
    NuevoBoton(Pic_BotSalir, "Pic_BotSalir", nullptr, {0, 0, LADO_BOTON, LADO_BOTON}, "Salir");
}

// ---------------------------------------------------------------- parts of the lay-out

void PonTitulo(Cuadro& panel, const Sitio& sitio, const char* titulo, bool visible = true) {
    panel.Visible = visible;
    if (!visible) return;
    Coloca(panel, sitio);
    MarcoPanel(panel, titulo);
}

void ColocaJuegos() {
    PonTitulo(Pic_JuegoActual, PANEL_JUEGO, " J U E G O   A C T U A L");
    for (const i16 j : JUEGOS) Bul(j).Value = j == Gbl.JuegoActual;
}

void ColocaImagen(const Juego& juego) {
    i32 y = CIMA_IZQUIERDA;
    Sel(SEL_MODO).Visible = juego.TieneModos;
    Sel(SEL_MODO).Value = Gbl.ModoJuego;
    Sel(SEL_FONDO).Visible = juego.EligeFondo;
    if (juego.EligeFondo) PonTextosDeFondo();
    if (juego.TieneModos || juego.EligeFondo) y += PASO_SELECTOR;
    const bool modelos = juego.TieneModos;
    PonTitulo(Pic_ImagenPuzz, {IZQUIERDA, y, ANCHO_IZQUIERDA, modelos ? 365 : 370},
              modelos ? "Modelos de Tangram" : "Imagen del puzzle");
    Lis_Modelos.Visible = modelos;
    for (Control* c : std::initializer_list<Control*>{&Drive1, &Dir1, &File1}) {
        c->Visible = !modelos;
        c->Enabled = UsaImagen();
    }
    Pic_MostrarImagen.Top = modelos ? 176 : 182;
    PonTitulo(Pic_ZoomImagen, PANEL_ZOOM, "Zoom de la imagen", juego.TieneFormas);
    Spin1.Value = Gbl.ZoomImagen;
}

// The column of the pieces; each part moves those below it on.
void ColocaPieza(const Juego& juego) {
    i32 y = juego.TieneModos ? CIMA_MEDIO_MODELOS : CIMA_MEDIO;
    PonTitulo(Pic_TiposPuz, {MEDIO, y, ANCHO_MEDIO, 118}, "Forma de las piezas", juego.TieneFormas);
    if (juego.TieneFormas) y += 129;
    const i32 lista = juego.TieneFormas ? 125 : 95;
    PonTitulo(Pic_NroPiezas, {MEDIO, y, ANCHO_MEDIO, lista + 30}, "Número de piezas",
              !juego.TieneModos);
    Lis_NroPiezas.Tamano(Lis_NroPiezas.Width(), lista);
    if (!juego.TieneModos) y += lista + 46;

    const auto conmutador = [&y](i16 indice, bool visible, bool valor) {
        Buleano& b = Bul(indice);
        b.Visible = visible;
        b.Value = valor;
        b.Mueve(MEDIO, y);
    };
    conmutador(BUL_GIRO, juego.TieneFormas, Gbl.PermitirGiro);
    y += juego.TieneFormas ? 43 : juego.EligeFondo ? 26 : 0;
    conmutador(BUL_BORDE, true, Gbl.DibujarBorde);
    y += 38;
    if (juego.SeAtraen) y += 10;
    conmutador(BUL_ATRACCION, juego.SeAtraen, Gbl.AtraccionPiezas);
    if (juego.SeAtraen) y += 53;
    if (juego.EligeFondo) y += 30;

    PonTitulo(Pic_Colorfon, {MEDIO, y, ANCHO_MEDIO, ALTO_COLOR}, "Color de fondo");
    PonTitulo(Pic_Colorpza, {MEDIO, y + PASO_COLOR, ANCHO_MEDIO, ALTO_COLOR}, "Color de las piezas",
              !juego.TieneFormas);
    PintaColores(ColFon, Gbl.ColorFondo);
    PintaColores(ColPza, Gbl.ColorPiezas);
}

void ColocaPrograma(const Juego& juego) {
    const bool atrae = juego.TieneFormas || (juego.TieneModos && Gbl.ModoJuego == MODO_RESOLVER);
    PonTitulo(Pic_FactorPegado, PANEL_FACTOR, "Factor de atracción", atrae);
    Pot(POT_FACTOR).Value = Gbl.FactorAtraccion;
    Bul(BUL_INFORMACION).Value = Gbl.VentanaInformacion;
    Bul(BUL_SONIDO).Value = Gbl.Sonido;
    Pot(POT_VELOCIDAD).Value = std::clamp(Gbl.VelocidadJuego, i16{0}, i16{100});
    Pot(POT_VELOCIDAD).Top = juego.TieneModos ? VELOCIDAD_Y_MODELOS : VELOCIDAD_Y;
    const i32 y = Personal.Height() - BOTON_DESDE_ABAJO;
    const struct {
        Cuadro& boton;
        i32 desdeDerecha, tesela;
    } botones[] = {{Pic_BotAyuda, AYUDA_DESDE_DERECHA, TESELA_AYUDA},
                   {Pic_BotSalir, SALIR_DESDE_DERECHA, TESELA_SALIR}};
    for (const auto& b : botones) {
        b.boton.Mueve(Personal.Width() - b.desdeDerecha, y);
        BitBlt(b.boton, 0, 0, LADO_BOTON, LADO_BOTON, Pic_BmpBoton, b.tesela, TESELA_FILA, SRCCOPY);
    }
}

// Washed out towards the ground: what cannot be chosen.
void Apaga(Cuadro& c) {
    constexpr Pixel suelo = paleta::GRIS_CLARO;
    for (i32 y = 0; y < c.Height(); ++y) {
        Pixel* const fila = c.Fila(y);
        // Three parts of ground, one of picture, each channel in its own byte.
        for (i32 x = 0; x < c.Width(); ++x)
            fila[x] = ((fila[x] >> 2) & 0x3F3F3FU) + ((suelo >> 2) & 0x3F3F3FU) * 3;
    }
    c.Marca(c.Limites());
}

// Corner of a colour's square in the field; false when the field has no such colour.
bool CasillaDe(Color color, Punto& esquina) {
    const i32 rojo = static_cast<i32>(color & 0xFFU);
    const i32 verde = static_cast<i32>((color >> 8) & 0xFFU);
    const i32 azul = static_cast<i32>((color >> 16) & 0xFFU);
    if (rojo % COLOR_PASO || verde % COLOR_PASO || azul % COLOR_PASO) return false;
    const auto orden = [](i32 nivel) { return COLOR_NIVELES - 1 - nivel / COLOR_PASO; };
    esquina = {COLOR_INICIO + COLOR_LADO * (COLOR_NIVELES * orden(azul) + orden(rojo)),
               COLOR_INICIO + COLOR_LADO * orden(verde)};
    return true;
}

void PonMarca(CampoColor& campo, Color color) {
    Punto p;
    campo.Marca.Visible = CasillaDe(color, p);
    if (!campo.Marca.Visible) return;
    campo.Marca.Mueve(p.x - 1, p.y - 1);
    constexpr i32 fin = COLOR_MARCA - 1;
    campo.Marca.Line(RECTA | pluma::Caja | pluma::Llena, 0, 0, fin, fin, paleta::NEGRO);
    campo.Marca.Line(RECTA | pluma::Caja | pluma::Llena, 1, 1, fin - 1, fin - 1, paleta::BLANCO);
    campo.Marca.Line(RECTA | pluma::Caja | pluma::Llena, 2, 2, fin - 2, fin - 2, color);
}

}  // namespace

Buleano& Bul(i16 indice) {
    constexpr i32 opciones = static_cast<i32>(std::size(OPCIONES));
    return Buleano_[indice < JUEGOS[0] ? indice - OPCIONES[0] : indice - JUEGOS[0] + opciones];
}
Selector& Sel(i16 indice) {
    return Selector_[indice - 1];
}
Potenciometro& Pot(i16 indice) {
    return Potenciometro_[indice - 1];
}

void Reinicia() {
    Personal = Ventana{};
    Personal.Nombre = "Personal";
    Personal.Caption = "Personalizar";
    Personal.PonBackColor(FONDO_VENTANA);
    // In the order in which Tab goes through them: panel by panel.
    NuevosJuegos();
    NuevosSelectores();
    NuevaImagen();
    NuevoZoom();
    NuevasFormas();
    NuevoNumero();
    NuevoBuleano(BUL_GIRO, "Permitir el giro de las piezas", {MEDIO, 0, ANCHO_MEDIO, ALTO_BULEANO});
    NuevoBuleano(BUL_BORDE, "Dibujar el borde de las piezas",
                 {MEDIO, 0, ANCHO_BULEANO, ALTO_BULEANO});
    NuevoBuleano(BUL_ATRACCION, "Atracción entre las piezas",
                 {MEDIO, 0, ANCHO_BULEANO, ALTO_BULEANO});
    NuevoColor(Pic_Colorfon, ColFon, "Pic_Colorfon", "Pic_ColFon");
    NuevoColor(Pic_Colorpza, ColPza, "Pic_Colorpza", "Pic_ColPza");
    NuevoFactor();
    NuevoPrograma();
}

bool UsaImagen() {
    const UsoDeImagen uso = JuegoEnCurso().Imagen;
    return uso == UsoDeImagen::Necesario ||
           (uso == UsoDeImagen::Posible && Gbl.TipoFondo == FONDO_IMAGEN);
}

void PintaFormas() {
    for (i32 i = 0; i < 8; ++i) {
        Cuadro& c = Pic_TipPuz[i];
        c.ToolTipText = Gbl.NombresFormas[i];
        BitBlt(c, 0, 0, FORMA_LADO, FORMA_LADO, Pic_BmpVario,
               FORMA_TESELA_X + FORMA_TESELA_PASO * i, 0, SRCCOPY);
        if (!c.Enabled) Apaga(c);
        if (c.Enabled && i != Gbl.FormaPiezas)
            PonCursor(c, cursor::MANO_INDICE);
        else
            PonPuntero(c, PUNTERO_NORMAL);
    }
    if (Gbl.FormaPiezas < 0 || Gbl.FormaPiezas > 7) return;
    const Cuadro& elegida = Pic_TipPuz[Gbl.FormaPiezas];
    Pic_TipPuzMarco.Mueve(elegida.Left - MARCO_SALE, elegida.Top - MARCO_SALE);
    Pic_TipPuzMarco.PonBackColor(MARCO_ELEGIDA);
    const i32 fin = Pic_TipPuzMarco.Width() - 1;
    Pic_TipPuzMarco.Line(RECTA | pluma::Caja, 1, 1, fin - 1, fin - 1, paleta::BLANCO);
    Pic_TipPuzSel.NombreAccesible = "Forma de las piezas: " + Gbl.NombresFormas[Gbl.FormaPiezas];
}

void PintaColores(CampoColor& campo, Color color) {
    Cuadro& s = campo.Seleccion;
    i32 x = COLOR_INICIO;
    for (i32 azul = 255; azul >= 0; azul -= COLOR_PASO, x += COLOR_LADO * COLOR_NIVELES) {
        i32 y = COLOR_INICIO;
        for (i32 verde = 255; verde >= 0; verde -= COLOR_PASO, y += COLOR_LADO) {
            i32 izq = x;
            for (i32 rojo = 255; rojo >= 0; rojo -= COLOR_PASO, izq += COLOR_LADO)
                s.Line(RECTA | pluma::Caja | pluma::Llena, izq, y, izq + COLOR_LADO - 1,
                       y + COLOR_LADO - 1, static_cast<Color>(azul * 65536 + verde * 256 + rojo));
        }
    }
    PonMarca(campo, color);
    Cuadro& m = campo.Muestra;
    m.PonBackColor(color);
    m.Line(RECTA | pluma::Caja, 0, 0, m.Width() - 1, m.Height() - 1, paleta::GRIS);
    const char* const cual = &campo == &ColFon ? "Color de fondo: " : "Color de las piezas: ";
    s.NombreAccesible = cual + TextoColor(color);
    m.ToolTipText = TextoColor(color);
}

std::string TextoColor(Color color) {
    return "rojo " + std::to_string(color & 0xFFU) + ", verde " +
           std::to_string((color >> 8) & 0xFFU) + ", azul " + std::to_string((color >> 16) & 0xFFU);
}

void PonTextosDeFondo() {
    const i32 letras = Len(Gbl.LetrasPiezas);
    const bool caben = Gbl.NumPiezas <= letras;
    if (!caben && Gbl.TipoFondo == FONDO_LETRAS) Gbl.TipoFondo = FONDO_NUMEROS;
    Sel(SEL_FONDO).Textos = {
        "Seleccionar una imagen", "Números del  1  al  " + std::to_string(Gbl.NumPiezas),
        "Letras de la  A  a la  " + (caben ? Mid(Gbl.LetrasPiezas, Gbl.NumPiezas, 1) : "")};
    Sel(SEL_FONDO).Value = Gbl.TipoFondo;
}

void PonPunterosDeListas() {
    const auto pon = [](Control& c, bool llena) {
        if (c.Enabled && llena)
            PonCursor(c, cursor::MANO_INDICE);
        else
            PonPuntero(c, PUNTERO_NORMAL);
    };
    pon(Drive1, true);
    pon(Dir1, !Dir1.Path.empty());
    pon(File1, File1.ListCount() > 0);
    pon(Lis_Modelos, Lis_Modelos.ListCount() > 0);
    pon(Lis_NroPiezas, Lis_NroPiezas.ListCount() > 0);
}

void ColocaPaneles() {
    const Juego& juego = JuegoEnCurso();
    Personal.Cls();
    MarcoVentana(Personal);
    ColocaJuegos();
    ColocaImagen(juego);
    ColocaPieza(juego);
    ColocaPrograma(juego);
    PintaFormas();
    PonPunterosDeListas();
}

}  // namespace personal

}  // namespace tessario
