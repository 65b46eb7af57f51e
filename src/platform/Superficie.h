// SPDX-License-Identifier: GPL-3.0-or-later
// Superficie: a bitmap with a persistent layer (Picture) under a drawing layer, the pen operations
// that draw on it, and the raster operations between surfaces. All drawing is clipped to the
// surface and to its clip region; drawing outside is never an error.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Region.h"
#include "platform/Tipos.h"

namespace tessario {

// A plain bitmap, rows from the top, no padding.
struct Mapa {
    i32 Ancho = 0, Alto = 0;
    std::vector<Pixel> Pixeles;

    Mapa() = default;
    Mapa(i32 ancho, i32 alto, Pixel p = 0)
        : Ancho(ancho),
          Alto(alto),
          Pixeles(static_cast<std::size_t>(ancho) * static_cast<std::size_t>(alto), p) {}
    Pixel* Fila(i32 y) {
        return Pixeles.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(Ancho);
    }
    const Pixel* Fila(i32 y) const {
        return Pixeles.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(Ancho);
    }
};

// A picture that several surfaces may share; null is no picture.
using Imagen = std::shared_ptr<const Mapa>;

// A text in the pixels of a screen that has `Factor` of them, either way, for one of the surface's.
// It is shown in place of the surface's own where nothing has been drawn since.
struct TextoFino {
    i32 Izq = 0, Arr = 0;  // its corner, in the surface's pixels
    i32 Factor = 1;
    Mapa Pixeles;
    std::vector<Rect> Vale;  // in the surface's pixels
};

enum class Familia { Sans, Mono };

struct Fuente {
    Familia Tipo = Familia::Sans;
    i16 Tamano = 13;  // height of the font in pixels
    bool Negrita = false;
    bool Subrayado = false;
    friend bool operator==(const Fuente&, const Fuente&) = default;
};

// Flags of Line and Circle.
namespace pluma {
inline constexpr int ConColor = 2;      // the colour is given (else ForeColor)
inline constexpr int Desde = 4;         // the start point is given (else the pen's own point)
inline constexpr int Relativo = 8;      // the end point is relative to the start
inline constexpr int Caja = 16;         // a rectangle by two corners
inline constexpr int Llena = 32;        // with Caja: filled with the line's own colour
inline constexpr int AnguloIni = 64;    // Circle: a start angle is given
inline constexpr int AnguloFin = 128;   // Circle: an end angle is given
inline constexpr int ConAspecto = 256;  // Circle: an aspect is given
}  // namespace pluma

// The widest pen.
inline constexpr i16 ANCHO_PLUMA_MAX = 512;

// Drawing modes: how a pen's pixel meets the one that is there.
inline constexpr i16 MODO_INVIERTE = 6;
inline constexpr i16 MODO_COPIA = 13;

// Raster operations. Only these have a formula; any other code copies the source.
inline constexpr u32 SRCCOPY = 0xCC0020;     // source
inline constexpr u32 SRCAND = 0x8800C6;      // destination and source
inline constexpr u32 SRCINVERT = 0x660046;   // destination xor source
inline constexpr u32 NOTSRCCOPY = 0x330008;  // not source
inline constexpr u32 DSNA = 0x220B24;        // destination and not source

// A surface of so many pixels and more keeps none of its own while it shows nothing but its ground:
// they are made when somebody draws on them or asks for them. A table on a large screen has two
// such surfaces that are never drawn on.
inline constexpr std::size_t PIXELES_A_DEMANDA = std::size_t{1} << 20;

class Superficie {
public:
    Superficie() = default;
    Superficie(i32 ancho, i32 alto) { Tamano(ancho, alto); }
    virtual ~Superficie() = default;

    // --- Size. A negative size is 0. A new size keeps what fits of the drawing; what is new shows
    // Picture over the background colour.
    i32 Width() const { return ancho_; }
    i32 Height() const { return alto_; }
    virtual void Tamano(i32 ancho, i32 alto);
    Rect Limites() const { return {0, 0, ancho_, alto_}; }
    // A new size with Picture emptied, all ground; no more work than one pass over the pixels.
    void TamanoLimpio(i32 ancho, i32 alto);
    // The same without that pass: the pixels hold anything until the caller has written them all.
    void TamanoLibre(i32 ancho, i32 alto);
    // Exchanges drawing and size with another surface, without a copy; both Pictures are emptied.
    void CambiaDibujo(Superficie& otra);

    // --- Persistent layer and ground.
    // Setting either clears the drawing down to Picture over the background colour.
    Color BackColor() const { return fondo_; }
    void PonBackColor(Color c);
    const Imagen& Picture() const { return picture_; }
    void PonPicture(Imagen p);  // null empties it
    Imagen Image() const;       // a copy of what the surface shows now
    // The least picture that shows the same over the same ground: without the rows below and the
    // columns at the right that are all ground. Null when everything is.
    Imagen ImageJusta() const;
    void Cls();  // clears the drawing down to Picture; the pen goes to (0, 0)

    // --- Pen state, free to set at any time.
    Color ForeColor = 0;
    Color FillColor = 0;
    bool FillSolido = false;  // closed figures come out filled with FillColor
    i16 DrawWidth = 1;        // pen width in pixels
    i16 DrawMode = MODO_COPIA;
    bool FontTransparent = true;  // false: text is printed over a box of BackColor
    Fuente Font;
    double CurrentX = 0, CurrentY = 0;

    // --- Pen operations. Coordinates are pixels, rounded to the nearest, halves to even. A
    // coordinate that is no number draws nothing and leaves the pen where it is. A pen of width n
    // covers from n / 2 pixels before its point to (n - 1) / 2 after it, corners rounded off; a
    // width under 1 is 1 and one above ANCHO_PLUMA_MAX is that.
    // Line paints both end points, and the same pixels in either direction; the pen ends at the
    // end point. A box includes both corners; FillSolido fills it with FillColor, the flag Llena
    // with the line's own colour.
    void Line(int flags, double x1, double y1, double x2, double y2, Color color = 0);
    // Angles in radians, counter-clockwise, 0 to the right, 90 degrees up the screen, from start to
    // end also when start is larger. Aspect is height over width; the radius is the horizontal
    // semi-axis when the aspect is under 1, else the vertical one. On an ellipse an angle is that
    // of the circle from which it is squeezed. The pixels of an arc are a part of those of the
    // whole, follow from centre, radius and aspect alone, and shift with a centre that shifts by
    // whole pixels. They touch one another at sides or corners, so a fill does not pass, and the
    // arc reaches to the pixel nearest to each end. Two angles a turn or more apart are a whole
    // outline. A whole circle or ellipse is filled when FillSolido. The pen ends at the centre.
    void Circle(int flags, double cx, double cy, double radio, Color color = 0, double inicio = 0,
                double fin = 0, double aspecto = 1);
    void PSet(double x, double y);
    void PSet(double x, double y, Color color);
    Color Point(i32 x, i32 y) const;  // 0xFFFFFFFF outside the surface
    // Prints at the pen's point (top left of the text) with ForeColor; the pen moves to the
    // start of the next line.
    void Print(std::string_view texto);
    i32 TextWidth(std::string_view texto) const;
    i32 TextHeight(std::string_view texto) const;

    // --- Texts in the fine pixels of a dense screen, beside the plain ones. Drawing takes them
    // away where it goes.
    const std::vector<TextoFino>& Finos() const { return finos_; }
    void PonFino(TextoFino t) { finos_.push_back(std::move(t)); }
    void PisaFinos(const Rect& r) {
        if (!finos_.empty()) CortaFinos(r);
    }
    bool Auxiliar = false;  // never shown itself: it has no use for them

    // --- Clipping.
    const Region* Recorte() const { return conRecorte_ ? &recorte_ : nullptr; }
    void PonRecorte(const Region* r);

    // --- Pixels. A row is contiguous. Whoever writes through Fila tells Marca what changed.
    Pixel* Fila(i32 y) {
        if (aDemanda_) HazDibujo();
        return dibujo_.Fila(y);
    }
    const Pixel* Fila(i32 y) const {
        if (aDemanda_) HazDibujo();
        return dibujo_.Fila(y);
    }
    const Mapa& Dibujo() const {
        if (aDemanda_) HazDibujo();
        return dibujo_;
    }
    // Does it show its ground alone, with no pixels made? Reading a row would make them.
    bool SoloSuelo() const { return aDemanda_; }
    // Columns [x0, x1) of one row of the ground: Picture where it reaches, else BackColor.
    void CopiaSuelo(i32 y, i32 x0, i32 x1, Pixel* destino) const;

    // --- What changed. Every drawing operation reports the rectangle that it may have touched:
    // one union is kept for the screen, one for the routine that repaints the table.
    void Marca(const Rect& r);
    // The same of a rectangle around what was drawn, by who tells PisaFinos what that was.
    void MarcaAlrededor(const Rect& r);
    const Rect& Sucio() const { return sucio_; }
    Rect TomaSucio();   // what changed since the last call of this
    Rect TomaTocado();  // likewise, for a second reader

private:
    void BorraDibujo();
    void HazDibujo() const;
    void CortaFinos(const Rect& r);
    // Has it so many pixels that they are made on demand?
    bool EsGrande() const {
        return static_cast<std::size_t>(ancho_) * static_cast<std::size_t>(alto_) >=
               PIXELES_A_DEMANDA;
    }

    mutable Mapa dibujo_;
    mutable bool aDemanda_ = false;
    Imagen picture_;
    i32 ancho_ = 0, alto_ = 0;
    Color fondo_ = 0xFFFFFF;
    Region recorte_;
    bool conRecorte_ = false;
    Rect sucio_, tocado_;
    std::vector<TextoFino> finos_;
};

// Removes the clip when the region is null.
void SelectClipRgn(Superficie& s, const Region* r);

// Copies ancho x alto pixels from (xo, yo) of origen to (xd, yd) of destino by the raster
// operation. The two may be one surface, also with parts in common: what is read is the source as
// it was before. Source pixels that do not exist leave the destination as it was.
void BitBlt(Superficie& destino, i32 xd, i32 yd, i32 ancho, i32 alto, const Superficie& origen,
            i32 xo, i32 yo, u32 operacion);

// Stretch mode 3: each destination pixel takes the source pixel under its centre,
// index = (2 * i + 1) * source / (2 * destination), truncated. An empty source paints nothing.
void StretchBlt(Superficie& destino, i32 xd, i32 yd, i32 anchoD, i32 altoD,
                const Superficie& origen, i32 xo, i32 yo, i32 anchoO, i32 altoO, u32 operacion);

// Fill type 0: paints with FillColor from the point outward in four directions, stopping at pixels
// of the given colour. Nothing is painted when the start has that colour or lies outside; the clip
// stops the paint like the colour. Other fill types paint nothing.
void ExtFloodFill(Superficie& s, i32 x, i32 y, Color borde, int tipo);

}  // namespace tessario
