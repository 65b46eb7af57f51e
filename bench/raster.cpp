// SPDX-License-Identifier: GPL-3.0-or-later
// Raster operations against memcpy of as many bytes.
#include <cstring>
#include <memory>

#include "bench/Razon.h"
#include "platform/Superficie.h"

namespace tessario::bench {

namespace {

constexpr i32 PIEZA = 140;                // side of a piece's box
constexpr i32 ANCHO = 1920, ALTO = 1080;  // the table

// A copy of so many pixels: each is read once and written once.
class Copia {
public:
    explicit Copia(std::size_t pixeles) : bytes_(pixeles * sizeof(Pixel)) {
        origen_ = std::make_shared<std::vector<unsigned char>>(bytes_, 1);
        destino_ = std::make_shared<std::vector<unsigned char>>(bytes_, 2);
    }
    void operator()() {
        std::memcpy(destino_->data(), origen_->data(), bytes_);
        benchmark::DoNotOptimize(destino_->data());
        benchmark::ClobberMemory();
    }

private:
    std::size_t bytes_;
    std::shared_ptr<std::vector<unsigned char>> origen_, destino_;
};

struct Escena {
    Superficie Mesa{ANCHO, ALTO}, Visible{ANCHO, ALTO};
    Superficie Mascara{PIEZA, PIEZA}, Imagen{PIEZA, PIEZA}, Final{PIEZA, PIEZA};
    i32 Paso = 0;

    Escena() {
        Mesa.Circle(0, ANCHO / 2.0, ALTO / 2.0, PIEZA);  // a table in play has been drawn on
        Mascara.FillSolido = true;
        Mascara.Circle(0, PIEZA / 2.0, PIEZA / 2.0, PIEZA / 2.0 - 4);
        Imagen.PonBackColor(0x40A0F0);
        BitBlt(Imagen, 0, 0, PIEZA, PIEZA, Mascara, 0, 0, DSNA);
    }
    // A place on the table, another one each time, as in a drag.
    Punto Sitio() {
        Paso = (Paso + 1) % 700;
        return {101 + 2 * Paso, 53 + Paso};
    }
};

void UnPasoDeArrastre(Escena& e) {
    const auto [x, y] = e.Sitio();
    BitBlt(e.Final, 0, 0, PIEZA, PIEZA, e.Mesa, x, y, SRCCOPY);
    BitBlt(e.Final, 0, 0, PIEZA, PIEZA, e.Mascara, 0, 0, SRCAND);
    BitBlt(e.Final, 0, 0, PIEZA, PIEZA, e.Imagen, 0, 0, SRCINVERT);
    BitBlt(e.Visible, x, y, PIEZA, PIEZA, e.Final, 0, 0, SRCCOPY);
    benchmark::ClobberMemory();
}

// What the piece has left, restored through a clip.
void RestoDelArrastre(Escena& e) {
    const auto [x, y] = e.Sitio();
    Region resto;
    CombineRgn(resto, Region(RectDe(x, y, PIEZA, PIEZA)),
               Region(RectDe(x + 9, y + 5, PIEZA, PIEZA)), RGN_DIFF);
    e.Visible.PonRecorte(&resto);
    BitBlt(e.Visible, x, y, PIEZA, PIEZA, e.Mesa, x, y, SRCCOPY);
    e.Visible.PonRecorte(nullptr);
    benchmark::ClobberMemory();
}

void Contorno(Superficie& s) {
    s.Cls();
    s.Circle(0, PIEZA / 2.0, PIEZA / 2.0, PIEZA / 2.0 - 4);
}

bool Registra() {
    constexpr std::size_t caja = PIEZA * PIEZA, todo = std::size_t{ANCHO} * ALTO;
    const auto escena = std::make_shared<Escena>();
    // Copy, AND, XOR, copy touch a box 2, 3, 3 and 2 times: as much as five copies of it.
    RegistraRazon(
        "raster/drag_step_140", 3, [=] { UnPasoDeArrastre(*escena); }, Copia(5 * caja));
    RegistraRazon(
        "raster/drag_rest_140", 3, [=] { RestoDelArrastre(*escena); }, Copia(caja));
    RegistraRazon(
        "raster/copy_table", 1.3,
        [=] { BitBlt(escena->Visible, 0, 0, ANCHO, ALTO, escena->Mesa, 0, 0, SRCCOPY); },
        Copia(todo));
    RegistraRazon(
        "raster/copy_within_table", 3,
        [=] { BitBlt(escena->Mesa, 0, 0, ANCHO, ALTO, escena->Mesa, 0, 1, SRCCOPY); }, Copia(todo));
    RegistraRazon(
        "raster/invert_mask_140", 3,
        [=] { BitBlt(escena->Mascara, 0, 0, PIEZA, PIEZA, escena->Mascara, 0, 0, NOTSRCCOPY); },
        Copia(caja));
    RegistraRazon(
        "raster/stretch_half_table", 4,
        [=] {
            StretchBlt(escena->Visible, 0, 0, ANCHO / 2, ALTO / 2, escena->Mesa, 0, 0, ANCHO, ALTO,
                       SRCCOPY);
        },
        Copia(todo / 2));
    RegistraRazon(
        "raster/clear_table", 1.3, [=] { escena->Visible.Cls(); }, Copia(todo));
    // An outline drawn on a cleared box, and the same with its inside filled.
    RegistraRazon(
        "raster/clear_and_circle_140", 20, [=] { Contorno(escena->Final); }, Copia(caja));
    RegistraRazon(
        "raster/clear_circle_and_fill_140", 30,
        [=] {
            Contorno(escena->Final);
            escena->Final.FillColor = 0;
            ExtFloodFill(escena->Final, PIEZA / 2, PIEZA / 2, 0, 0);
        },
        Copia(caja));
    return true;
}

[[maybe_unused]] const bool registrado = Registra();

}  // namespace

}  // namespace tessario::bench
