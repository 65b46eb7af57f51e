// SPDX-License-Identifier: GPL-3.0-or-later
// What a metafile is painted by: its geometry, what it draws with, and the painter that takes it.
// The walks over the records know no more of pixels than this.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/Dib.h"
#include "platform/Region.h"

namespace tessario {

// --- Geometry in pixels of the picture.

struct PuntoD {
    double x = 0, y = 0;
    friend bool operator==(const PuntoD&, const PuntoD&) = default;
};

// x' = a x + c y + e, y' = b x + d y + f.
struct Matriz {
    double a = 1, b = 0, c = 0, d = 1, e = 0, f = 0;
    PuntoD De(PuntoD p) const { return {a * p.x + c * p.y + e, b * p.x + d * p.y + f}; }
    PuntoD Vector(PuntoD p) const { return {a * p.x + c * p.y, b * p.x + d * p.y}; }
    Matriz Luego(const Matriz& m) const;  // this one first, then m
    bool Inversa(Matriz& m) const;
    bool Recta() const { return b == 0 && c == 0; }  // rows stay rows
};

struct Contorno {
    std::vector<PuntoD> Puntos;
    bool Cerrado = false;
};
using Trazado = std::vector<Contorno>;

// --- What is drawn with.

struct BrochaMeta {
    enum class Clase { Nula, Lisa, Trama, Dibujo };
    Clase Tipo = Clase::Lisa;
    Pixel Tinta = 0xFFFFFF;
    int Trama = 0;  // 0 to 5: horizontal, vertical, falling, rising, cross, diagonal cross
    std::shared_ptr<const Mapa> Dibujo;
    bool UnBit = false;  // of the pattern's pixels 0 is the text's colour, others the ground's
};

enum class Extremo { Redondo, Cuadrado, Plano };
enum class Junta { Redonda, Bisel, Inglete };

struct PlumaMeta {
    bool Nula = false;
    bool Fina = true;             // lines of one pixel, whatever Ancho
    double Ancho = 1;             // pixels
    std::vector<double> Trazos;   // dash, gap, dash ... in pixels; empty: unbroken
    bool HuecosConFondo = false;  // gaps show the ground's colour when it is opaque
    bool Dentro = false;          // outlines of boxes are drawn inside them
    BrochaMeta Brocha;
    Extremo Final = Extremo::Redondo;
    Junta Esquina = Junta::Redonda;
    double Inglete = 10;
};

struct FuenteMeta {
    double Alto = 0;   // pixels: above 0 of the cell, below 0 of the letter, 0 the usual
    double Ancho = 0;  // mean width of a letter in pixels; 0: as the letter is
    double Giro = 0;   // of the line of text, in tenths of a degree counter-clockwise
    int Peso = 400;
    bool Cursiva = false, Subrayada = false, Tachada = false;
    int Juego = 0;  // character set
    int Paso = 0;   // pitch and family
    std::u16string Cara;
};

struct ModosMeta {
    int Rop2 = MODO_COPIA;
    bool Opaco = true;  // gaps of hatches, dashes and letters show Fondo
    Pixel Fondo = 0xFFFFFF, Texto = 0;
    Punto OrigenBrocha;
    const Region* Recorte = nullptr;
    Rect Caja;  // around Recorte
};

// A picture copied, as raster operation 3 combines source, brush and what is there.
struct CopiaMeta {
    enum class Clase { Operacion, Mezcla, Clave };
    Clase Tipo = Clase::Operacion;
    const Mapa* Origen = nullptr;                  // null: the operation uses no source
    double Izq = 0, Arr = 0, Ancho = 0, Alto = 0;  // of the source; negative: mirrored
    // Where its corners come: top left, top right, bottom left.
    PuntoD Esquina, Derecha, Abajo;
    u32 Operacion = 0xCC;       // index of the raster operation
    u32 OperacionFuera = 0xAA;  // where the mask has no bit
    const Mapa* Mascara = nullptr;
    i32 MascaraX = 0, MascaraY = 0;
    u32 Constante = 255;      // Mezcla: opacity of the whole
    bool AlfaPropia = false;  // Mezcla: the source's upper byte is its opacity
    Pixel Clave = 0;          // Clave: this colour is left out
    int Estira = 1;           // 1 and, 2 or, 3 leaves out, 4 means: what shrinking does
};

struct TextoMeta {
    std::u16string Letras;
    PuntoD Lugar;  // of the reference point
    Matriz Forma;  // of the letters, from pixels upright to pixels
    FuenteMeta Fuente;
    std::vector<PuntoD> Avances;  // of each letter in pixels; empty: as the letters are
    double Extra = 0;             // added to each advance
    double ExtraBlanco = 0;       // added to a blank's
    bool PorIndice = false;       // letters are numbers of glyphs
    unsigned Alineacion = 0;
    Trazado Rectangulo;  // that is filled behind the letters, or outside which none of them shows
    bool CajaOpaca = false, CajaRecorta = false;
};

// How much work a file may make. Units are about a nanosecond each.
struct MetaficheroAgotado {};
class Esfuerzo {
public:
    explicit Esfuerzo(long long total = TOTAL) : queda_(total) {}
    void Gasta(long long unidades) {
        if (unidades > queda_) throw MetaficheroAgotado{};
        queda_ -= unidades;
    }
    long long Queda() const { return queda_; }
    static constexpr long long TOTAL = 1'000'000'000;

private:
    long long queda_;
};

// CombineRgn, but for regions that would become too many rectangles: then the reading ends.
void CombinaConTino(Region& destino, const Region& a, const Region& b, int modo, Esfuerzo& e);
// Runs of pixels kept at a time, at most.
inline constexpr std::size_t TRAMOS_MAXIMOS = 2'000'000;

// What a metafile is painted by. Coordinates are pixels of the picture and may lie far outside it.
// A pixel belongs to a filled figure when its whole coordinates lie inside.
class PintorMetafichero {
public:
    virtual ~PintorMetafichero() = default;
    virtual void Abre(i32 ancho, i32 alto, Esfuerzo& esfuerzo) = 0;
    virtual void Rellena(const Trazado& t, bool alterno, const BrochaMeta& b,
                         const ModosMeta& m) = 0;
    // Filled and then drawn around; what the pen covers is not filled before.
    virtual void Figura(const Trazado& t, bool alterno, const BrochaMeta& b, const PlumaMeta& p,
                        const ModosMeta& m) = 0;
    virtual void RellenaRegion(const Region& r, const BrochaMeta& b, const ModosMeta& m) = 0;
    virtual void Traza(const Trazado& t, const PlumaMeta& p, const ModosMeta& m) = 0;
    virtual void Copia(const CopiaMeta& c, const BrochaMeta& b, const ModosMeta& m) = 0;
    virtual void PonPunto(PuntoD p, Pixel color, const ModosMeta& m) = 0;
    // From the point outwards: up to the colour, or over pixels of the colour.
    virtual void Inunda(PuntoD p, Pixel color, bool hastaBorde, const BrochaMeta& b,
                        const ModosMeta& m) = 0;
    // A triangle whose corners have a colour each.
    virtual void Degrada(const PuntoD (&p)[3], const Pixel (&color)[3], const ModosMeta& m) = 0;
    // Returns how far the pen moves along the line, in pixels.
    virtual PuntoD Escribe(const TextoMeta& t, const ModosMeta& m) = 0;
    // The points of the picture that a figure covers.
    virtual Region RegionDe(const Trazado& t, bool alterno) = 0;
    // The figure that a wide pen covers, by the winding rule.
    virtual Trazado Ensancha(const Trazado& t, const PlumaMeta& p) = 0;
};

// The largest picture that a metafile may ask for, and the largest file, in pixels and bytes.
inline constexpr long long METAFICHERO_PIXELES = 16LL * 1024 * 1024;
inline constexpr std::size_t METAFICHERO_BYTES = std::size_t{64} * 1024 * 1024;

}  // namespace tessario
