#include "platform/Superficie.h"

#include <utility>

namespace tessario {

namespace {

// Columns [x0, x1) of one row of the ground: the picture where it reaches, else the colour.
void PintaSuelo(Mapa& dibujo, i32 y, i32 x0, i32 x1, const Mapa* picture, Pixel fondo) {
    Pixel* fila = dibujo.Fila(y);
    i32 x = x0;
    if (picture && y < picture->Alto && x < picture->Ancho) {
        const Pixel* origen = picture->Fila(y);
        x = std::min(x1, picture->Ancho);
        std::copy(origen + x0, origen + x, fila + x0);
    }
    std::fill(fila + x, fila + x1, fondo);
}

}  // namespace

void Superficie::Tamano(i32 ancho, i32 alto) {
    ancho = std::max(ancho, 0);
    alto = std::max(alto, 0);
    if (ancho == ancho_ && alto == alto_) return;

    Mapa nuevo(ancho, alto);
    const i32 anchoComun = std::min(ancho, ancho_);
    const i32 altoComun = std::min(alto, alto_);
    for (i32 y = 0; y < alto; ++y) {
        i32 x = 0;
        if (y < altoComun) {
            x = anchoComun;
            std::copy_n(dibujo_.Fila(y), x, nuevo.Fila(y));
        }
        PintaSuelo(nuevo, y, x, ancho, picture_.get(), PixelDe(fondo_));
    }
    dibujo_ = std::move(nuevo);
    ancho_ = ancho;
    alto_ = alto;
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
    return std::make_shared<const Mapa>(dibujo_);
}

void Superficie::Cls() {
    BorraDibujo();
    CurrentX = CurrentY = 0;
}

void Superficie::BorraDibujo() {
    for (i32 y = 0; y < alto_; ++y)
        PintaSuelo(dibujo_, y, 0, ancho_, picture_.get(), PixelDe(fondo_));
    Marca(Limites());
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

void Superficie::Marca(const Rect& r) {
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
