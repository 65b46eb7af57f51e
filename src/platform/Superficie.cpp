// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Superficie.h"

#include <algorithm>
#include <utility>

namespace tessario {

namespace {

// Appends what lies of a rectangle outside another one.
void Resta(const Rect& v, const Rect& r, std::vector<Rect>& queda) {
    const Rect c = Interseccion(v, r);
    if (c.Vacio()) {
        queda.push_back(v);
        return;
    }
    for (const Rect& parte : {Rect{v.Izq, v.Arr, v.Der, c.Arr}, Rect{v.Izq, c.Aba, v.Der, v.Aba},
                              Rect{v.Izq, c.Arr, c.Izq, c.Aba}, Rect{c.Der, c.Arr, v.Der, c.Aba}})
        if (!parte.Vacio()) queda.push_back(parte);
}

}  // namespace

void Superficie::CopiaSuelo(i32 y, i32 x0, i32 x1, Pixel* destino) const {
    i32 x = x0;
    if (picture_ && y < picture_->Alto && x < picture_->Ancho) {
        const Pixel* const origen = picture_->Fila(y);
        x = std::min(x1, picture_->Ancho);
        std::copy(origen + x0, origen + x, destino);
    }
    std::fill(destino + (x - x0), destino + (x1 - x0), PixelDe(fondo_));
}

void Superficie::Tamano(i32 ancho, i32 alto) {
    ancho = std::max(ancho, 0);
    alto = std::max(alto, 0);
    if (ancho == ancho_ && alto == alto_) return;

    // Nothing has been drawn: the ground is laid anew, or left for later.
    const bool vacia = aDemanda_ || dibujo_.Pixeles.empty();
    const i32 anchoComun = std::min(ancho, ancho_), altoComun = std::min(alto, alto_);
    ancho_ = ancho;
    alto_ = alto;
    if (vacia) {
        BorraDibujo();
    } else {
        Mapa nuevo(ancho, alto);
        for (i32 y = 0; y < alto; ++y) {
            const i32 x = y < altoComun ? anchoComun : 0;
            std::copy_n(dibujo_.Fila(y), x, nuevo.Fila(y));
            CopiaSuelo(y, x, ancho, nuevo.Fila(y) + x);
        }
        dibujo_ = std::move(nuevo);
    }
    finos_.clear();
    // Whatever was noted for the old size is part of the whole.
    sucio_ = tocado_ = Limites();
}

void Superficie::PonBackColor(Color c) {
    fondo_ = c;
    BorraDibujo();
}

void Superficie::PonPicture(Imagen p) {
    picture_ = std::move(p);
    BorraDibujo();
}

Imagen Superficie::Image() const {
    return std::make_shared<const Mapa>(Dibujo());
}

Imagen Superficie::ImageJusta() const {
    if (aDemanda_) return picture_;
    const Pixel suelo = PixelDe(fondo_);
    const auto esSuelo = [suelo](Pixel p) { return p == suelo; };
    i32 ancho = 0, alto = 0;
    for (i32 y = 0; y < alto_; ++y) {
        const Pixel* const fila = dibujo_.Fila(y);
        // Only what lies beyond the columns found so far can add to them.
        i32 x = ancho_;
        while (x > ancho && esSuelo(fila[x - 1])) --x;
        ancho = x;
        if (x > 0 && !std::all_of(fila, fila + x, esSuelo)) alto = y + 1;
    }
    if (ancho == 0 || alto == 0) return nullptr;
    auto justa = std::make_shared<Mapa>(ancho, alto);
    for (i32 y = 0; y < alto; ++y) std::copy_n(dibujo_.Fila(y), ancho, justa->Fila(y));
    return justa;
}

void Superficie::Cls() {
    BorraDibujo();
    CurrentX = CurrentY = 0;
}

void Superficie::BorraDibujo() {
    aDemanda_ = EsGrande();
    if (aDemanda_)
        dibujo_ = Mapa();
    else
        HazDibujo();
    Marca(Limites());
}

void Superficie::HazDibujo() const {
    aDemanda_ = false;
    const bool nuevo = dibujo_.Ancho != ancho_ || dibujo_.Alto != alto_;
    // A new bitmap comes filled: only the picture is missing.
    if (nuevo) dibujo_ = Mapa(ancho_, alto_, PixelDe(fondo_));
    const i32 filas = nuevo ? std::min(alto_, picture_ ? picture_->Alto : 0) : alto_;
    const i32 columnas = nuevo ? std::min(ancho_, picture_ ? picture_->Ancho : 0) : ancho_;
    for (i32 y = 0; y < filas; ++y) CopiaSuelo(y, 0, columnas, dibujo_.Fila(y));
}

void Superficie::PonRecorte(const Region* r) {
    conRecorte_ = r != nullptr;
    if (r)
        recorte_ = *r;
    else
        recorte_ = Region();
}

void SelectClipRgn(Superficie& s, const Region* r) {
    s.PonRecorte(r);
}

void Superficie::CortaFinos(const Rect& r) {
    for (TextoFino& t : finos_) {
        std::vector<Rect> queda;
        for (const Rect& v : t.Vale) Resta(v, r, queda);
        t.Vale = std::move(queda);
    }
    std::erase_if(finos_, [](const TextoFino& t) { return t.Vale.empty(); });
}

void Superficie::Marca(const Rect& r) {
    PisaFinos(r);
    MarcaAlrededor(r);
}

void Superficie::MarcaAlrededor(const Rect& r) {
    const Rect visible = Interseccion(r, Limites());
    sucio_ = Union(sucio_, visible);
    tocado_ = Union(tocado_, visible);
}

Rect Superficie::TomaSucio() {
    return std::exchange(sucio_, Rect{});
}

Rect Superficie::TomaTocado() {
    return std::exchange(tocado_, Rect{});
}

}  // namespace tessario
