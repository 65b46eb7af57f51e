// SPDX-License-Identifier: GPL-3.0-or-later
// Pieces: preparing one of every kind against copies of its box, a drag step with few pieces on the
// table against one with many, and the cut and the laying of the largest picture.
#include <array>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "apoyo/PlataformaPrueba.h"
#include "bench/Razon.h"
#include "core/Superficies.h"
#include "jigsaw/Corte.h"
#include "panel/Colocadas.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "pieces/Raster.h"
#include "rules/Medidas.h"
#include "rules/PuzzBas.h"

namespace tessario::bench {

namespace {

constexpr i32 ANCHO_FOTO = 1024, ALTO_FOTO = 768;
constexpr double COPIAS_DERECHA = 6, COPIAS_GIRADA = 12, ARRASTRE_IGUAL = 1.1;

void PonMesa(i32 ancho, i32 alto) {
    static PlataformaPrueba plataforma;
    plataforma.ancho = 1280;
    plataforma.alto = 1024;
    PonSistema(&plataforma);
    Gbl = Bloque{};
    ReiniciaSuperficies();
    Gbl.JuegoActual = JuegoMoviles;
    Gbl.AnchoPantalla = 1280;
    Gbl.AltoPantalla = 1024;
    auto foto = std::make_shared<Mapa>(ancho, alto);
    for (i32 y = 0; y < alto; ++y)
        for (i32 x = 0; x < ancho; ++x)
            foto->Fila(y)[x] = 0x400000U | static_cast<Pixel>(x) << 10U | static_cast<Pixel>(y);
    Pic_FonTamModi.Tamano(ancho, alto);
    Pic_FonTamModi.PonPicture(std::move(foto));
}

// A picture for a jigsaw; the cut is up to the caller.
void PonPuzzle(i16 forma, i16 lado, i32 ancho = ANCHO_FOTO, i32 alto = ALTO_FOTO) {
    PonMesa(ancho, alto);
    Gbl.FormaPiezas = forma;
    Gbl.PiezasPorLado = lado;
    Gbl.PiezasPorCelda = PiezasDeCelda(forma);
    Gbl.AnchoImagen = ancho;
    Gbl.AltoImagen = alto;
    CalculaTamanos();
}

// memcpy of one box of the piece that stands prepared.
struct CopiaDeCaja {
    std::shared_ptr<std::vector<Pixel>> origen = std::make_shared<std::vector<Pixel>>();
    std::shared_ptr<std::vector<Pixel>> destino = std::make_shared<std::vector<Pixel>>();
    void operator()() {
        const auto n =
            static_cast<std::size_t>(Gbl.AnchoPieza) * static_cast<std::size_t>(Gbl.AltoPieza);
        origen->resize(n);
        destino->resize(n);
        std::memcpy(destino->data(), origen->data(), n * sizeof(Pixel));
        benchmark::DoNotOptimize(destino->data());
        benchmark::ClobberMemory();
    }
};

// Where a jigsaw piece lies in the grid of 10 by 10, by its cell.
constexpr i16 CELDA_DENTRO = 44, CELDA_LADO = 40, CELDA_ESQUINA = 0;

// Mounts its puzzle at the first call, then prepares one piece of it again and again. The mould is
// there from the first time on, as for all pieces but the first of a kind.
struct PreparaMoviles {
    i16 forma, celda, clase, giro;
    bool montada = false;
    void operator()() {
        if (!montada) {
            PonPuzzle(forma, 10);
            CreaMoviles(true);
            montada = true;
        }
        const i16 p = static_cast<i16>(celda * Gbl.PiezasPorCelda + 1 + clase);
        Gbl.Piezas[p].Giro = giro;
        PreparaPieza(p);
        benchmark::DoNotOptimize(Pic_PiezaImagen.Fila(0));
    }
};

struct PreparaDeslizante {
    i16 lado;
    bool borde, montada = false;
    void Monta() {
        PonMesa(ANCHO_FOTO, ALTO_FOTO);
        Gbl.JuegoActual = JuegoDeslizantes;
        Gbl.DibujarBorde = borde;
        Gbl.PiezasPorLado = lado;
        CalculaTamanos();
        Gbl.AnchoPieza = Gbl.AltoPieza = Gbl.AnchoCelda;
        Gbl.ColorPiezasClaro = 0x28A828;
        Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
        Gbl.Piezas[1].XBien = Gbl.AnchoCelda;
        Pic_Bitmap.Tamano(Gbl.AnchoPantalla, Gbl.AltoPantalla);
        montada = true;
    }
    void operator()() {
        if (!montada) Monta();
        PreparaPieza(1);
        benchmark::DoNotOptimize(Pic_PiezaImagen.Fila(0));
    }
};

struct PreparaTangram {
    i16 piece, giro;
    bool montada = false;
    void Monta() {
        PonMesa(ANCHO_FOTO, ALTO_FOTO);
        Gbl.JuegoActual = JuegoTangram;
        Gbl.DibujarBorde = true;
        CalculaTamanos();
        Gbl.Piezas.Redimensiona(7);
        Pic_Bitmap.Tamano(Gbl.AnchoPantalla, Gbl.AltoPantalla);
        montada = true;
    }
    void operator()() {
        if (!montada) Monta();
        Gbl.Piezas[piece].Giro = giro;
        PreparaPieza(piece);
        benchmark::DoNotOptimize(Pic_PiezaImagen.Fila(0));
    }
};

template <class Prepara>
void Registra(const std::string& que, double limite, const Prepara& prepara) {
    RegistraRazon("pieces/prepare " + que, limite, prepara, CopiaDeCaja{});
}

// The pieces of a cell, by shape.
struct Figura {
    i16 forma, clase;
    const char* nombre;
};
constexpr Figura FIGURAS[] = {{0, 0, "rectangle"},         {1, 0, "curved"},
                              {2, 0, "irregular"},         {3, 0, "triangle, right"},
                              {3, 1, "triangle, bottom"},  {3, 2, "triangle, left"},
                              {3, 3, "triangle, top"},     {4, 0, "circle"},
                              {4, 1, "circle's frame"},    {5, 0, "inner rectangle"},
                              {5, 1, "rectangle's frame"}, {6, 0, "ellipse"},
                              {6, 1, "ellipse's frame"},   {7, 0, "star"},
                              {7, 1, "star's frame"}};
constexpr const char* GIROS[4] = {"", ", a quarter", ", half a turn", ", three quarters"};

void RegistraPiezas() {
    for (const Figura& f : FIGURAS)
        Registra(f.nombre, COPIAS_DERECHA, PreparaMoviles{f.forma, CELDA_DENTRO, f.clase, 0});
    for (const i16 forma : {i16{1}, i16{2}})
        for (const i16 celda : {CELDA_LADO, CELDA_ESQUINA})
            Registra(std::string(forma == 1 ? "curved" : "irregular") +
                         (celda == CELDA_LADO ? ", at an edge" : ", in a corner"),
                     COPIAS_DERECHA, PreparaMoviles{forma, celda, 0, 0});
    for (const i16 forma : {i16{0}, i16{2}, i16{3}, i16{7}})
        for (i16 giro = 1; giro <= 3; ++giro)
            for (const Figura& f : FIGURAS)
                if (f.forma == forma && f.clase == 0)
                    Registra(std::string(f.nombre) + GIROS[giro], COPIAS_GIRADA,
                             PreparaMoviles{forma, CELDA_DENTRO, 0, giro});
    for (const i16 lado : {i16{3}, i16{9}})
        for (const bool borde : {false, true})
            Registra("sliding, " + std::to_string(lado) + " a side" + (borde ? ", relief" : ""),
                     COPIAS_DERECHA, PreparaDeslizante{lado, borde});
    for (i16 p = 1; p <= 7; ++p)
        for (const i16 giro : {i16{0}, i16{1}})
            if (p != 2 && p != 5)
                Registra("Tangram " + std::to_string(p) + (giro == 0 ? "" : ", an eighth"),
                         COPIAS_DERECHA, PreparaTangram{p, giro});
}

// A drag to and fro over a shuffled table. Each side has a table of its own, and takes the place of
// the other's at the first step of a sample.
struct Arrastra {
    i16 forma, lado;
    i32 ancho, alto;
    i32 paso = 0;
    std::shared_ptr<Bloque> bloque{};
    std::shared_ptr<std::array<Superficie, 5>> mias{};

    static Arrastra*& EnMesa() {
        static Arrastra* quien = nullptr;
        return quien;
    }
    static std::array<Superficie*, 5> Superficies() {
        return {&Pic_Imagen, &Pic_Trabajo, &Pic_PiezaMascara, &Pic_PiezaImagen, &Pic_PiezaFinal};
    }
    // Exchanges what is on the table with what this side keeps.
    void Cambia() {
        std::swap(Gbl, *bloque);
        const auto s = Superficies();
        for (std::size_t i = 0; i < s.size(); ++i) s[i]->CambiaDibujo((*mias)[i]);
    }
    // Piece 1 in hand in the middle of the table.
    void Monta() {
        PonPuzzle(forma, lado, ancho, alto);
        Gbl.PermitirGiro = false;
        CreaMoviles(true);
        Gbl.Piezas[1].X = static_cast<i16>(Gbl.AnchoPantalla / 2);
        Gbl.Piezas[1].Y = static_cast<i16>(Gbl.AltoPantalla / 2);
        SubePieza(PosicionEnOrden(1));
        ColocaPiezas(1);
        TomaPieza(0, 0, 1);
    }
    void operator()() {
        if (EnMesa() != this) {
            if (EnMesa()) EnMesa()->Cambia();
            EnMesa() = this;
            if (bloque) {
                Cambia();
            } else {
                bloque = std::make_shared<Bloque>();
                mias = std::make_shared<std::array<Superficie, 5>>();
                Monta();
            }
        }
        paso = (paso + 1) % 200;
        const i16 x = static_cast<i16>(Gbl.XRaton + (paso < 100 ? 2 : -2));
        MuevePieza(x, static_cast<i16>(Gbl.YRaton + (paso < 100 ? 1 : -1)), 1);
    }
};

void Corta(benchmark::State& estado) {
    PonPuzzle(2, 20);
    CreaMoviles(true);
    for (auto _ : estado) CreaMoviles(false);
}

void Tiende(benchmark::State& estado) {
    PonPuzzle(2, 20);
    CreaMoviles(true);
    for (auto _ : estado) ColocaPiezas(1);
}

// 9 rectangles of 51 by 38 against 400 circles and their frames in cells of 51 by 38.
const bool REGISTRADAS = [] {
    RegistraPiezas();
    RegistraRazon("pieces/drag step, 800 pieces against 9", ARRASTRE_IGUAL,
                  Arrastra{4, 20, ANCHO_FOTO, ALTO_FOTO}, Arrastra{0, 3, 3 * 51, 3 * 38});
    benchmark::RegisterBenchmark("pieces/cut 1024 x 768 into 400", Corta);
    benchmark::RegisterBenchmark("pieces/lay the 400", Tiende);
    return true;
}();

}  // namespace

}  // namespace tessario::bench
