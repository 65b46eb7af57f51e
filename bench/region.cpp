// SPDX-License-Identifier: GPL-3.0-or-later
// Region operations against pixman's on the same rectangles.
#include "platform/Region.h"

#include <pixman.h>

#include <array>
#include <memory>
#include <random>

#include "bench/Razon.h"

namespace tessario::bench {

namespace {

class RegionAjena {
public:
    RegionAjena() { pixman_region32_init(&r_); }
    explicit RegionAjena(const Region& r) {
        std::vector<pixman_box32_t> cajas;
        for (const Rect& q : r.Rectangulos()) cajas.push_back({q.Izq, q.Arr, q.Der, q.Aba});
        pixman_region32_init_rects(&r_, cajas.data(), static_cast<int>(cajas.size()));
    }
    ~RegionAjena() { pixman_region32_fini(&r_); }
    RegionAjena(const RegionAjena&) = delete;
    RegionAjena& operator=(const RegionAjena&) = delete;
    pixman_region32_t* operator*() { return &r_; }

private:
    pixman_region32_t r_;
};

using OperacionAjena = pixman_bool_t (*)(pixman_region32_t*, const pixman_region32_t*,
                                         const pixman_region32_t*);

// Several pairs of regions; each call goes over all of them.
struct Parejas {
    std::vector<std::pair<Region, Region>> Propias;
    std::vector<std::pair<std::unique_ptr<RegionAjena>, std::unique_ptr<RegionAjena>>> Ajenas;

    void Agrega(Region a, Region b) {
        Ajenas.emplace_back(std::make_unique<RegionAjena>(a), std::make_unique<RegionAjena>(b));
        Propias.emplace_back(std::move(a), std::move(b));
    }
};

using Triangulo = std::array<Punto, 3>;

// Two large and rotated triangles of the Tangram's size that overlap more or less.
std::shared_ptr<Parejas> Poligonos() {
    auto parejas = std::make_shared<Parejas>();
    std::mt19937 azar(1);
    std::uniform_int_distribution<i32> lejos(-90, 90);
    const Triangulo llano{{{0, 88}, {88, 0}, {176, 88}}}, recto{{{0, 0}, {124, 0}, {124, 124}}};
    for (int i = 0; i < 20; ++i) {
        Region b = CreatePolygonRgn(recto);
        b.Desplaza(lejos(azar), lejos(azar));
        parejas->Agrega(CreatePolygonRgn(llano), std::move(b));
    }
    return parejas;
}

// Boxes of pieces that overlap: one rectangle each.
std::shared_ptr<Parejas> Cajas() {
    auto parejas = std::make_shared<Parejas>();
    std::mt19937 azar(2);
    std::uniform_int_distribution<i32> lejos(-150, 150);
    for (int i = 0; i < 20; ++i) {
        const i32 x = lejos(azar), y = lejos(azar);
        parejas->Agrega(Region(RectDe(0, 0, 140, 140)), Region(RectDe(x, y, 140, 140)));
    }
    return parejas;
}

// Piles of many small boxes.
std::shared_ptr<Parejas> Montones() {
    auto parejas = std::make_shared<Parejas>();
    std::mt19937 azar(3);
    std::uniform_int_distribution<i32> lugar(0, 900);
    const auto monton = [&] {
        Region r;
        for (int i = 0; i < 40; ++i)
            CombineRgn(r, r, Region(RectDe(lugar(azar), lugar(azar), 60, 60)), RGN_OR);
        return r;
    };
    for (int i = 0; i < 4; ++i) parejas->Agrega(monton(), monton());
    return parejas;
}

void RegistraOperaciones(const std::string& nombre, const std::shared_ptr<Parejas>& parejas,
                         double limite) {
    const struct {
        const char* nombre;
        int modo;
        OperacionAjena ajena;
    } operaciones[] = {{"and", RGN_AND, pixman_region32_intersect},
                       {"or", RGN_OR, pixman_region32_union},
                       {"diff", RGN_DIFF, pixman_region32_subtract}};
    for (const auto& o : operaciones) {
        const auto propia = std::make_shared<Region>();
        const auto ajena = std::make_shared<RegionAjena>();
        RegistraRazon(
            "region/" + nombre + "_" + o.nombre, limite,
            [=, modo = o.modo] {
                for (const auto& [a, b] : parejas->Propias)
                    benchmark::DoNotOptimize(CombineRgn(*propia, a, b, modo));
            },
            [=, opera = o.ajena] {
                for (const auto& [a, b] : parejas->Ajenas)
                    benchmark::DoNotOptimize(opera(**ajena, **a, **b));
            });
    }
}

bool Registra() {
    constexpr double LIMITE_PIXMAN = 1.5;
    const auto poligonos = Poligonos();
    RegistraOperaciones("polygons", poligonos, LIMITE_PIXMAN);
    RegistraOperaciones("boxes", Cajas(), LIMITE_PIXMAN);
    RegistraOperaciones("piles", Montones(), LIMITE_PIXMAN);
    // The overlap test of two pieces: the other library has to build the intersection.
    const auto comun = std::make_shared<RegionAjena>();
    RegistraRazon(
        "region/polygons_overlap", 1,
        [=] {
            for (const auto& [a, b] : poligonos->Propias) benchmark::DoNotOptimize(SeCortan(a, b));
        },
        [=] {
            for (const auto& [a, b] : poligonos->Ajenas) {
                pixman_region32_intersect(**comun, **a, **b);
                benchmark::DoNotOptimize(pixman_region32_not_empty(**comun));
            }
        });
    // Polygon scan against building the same region from its finished rectangles.
    const auto listo = std::make_shared<std::vector<pixman_box32_t>>();
    const auto esquinas = std::make_shared<Triangulo>(Triangulo{{{0, 88}, {88, 0}, {176, 88}}});
    const Region triangulo = CreatePolygonRgn(*esquinas);
    for (const Rect& q : triangulo.Rectangulos()) listo->push_back({q.Izq, q.Arr, q.Der, q.Aba});
    RegistraRazon(
        "region/polygon_from_corners", 0,
        [=] { benchmark::DoNotOptimize(CreatePolygonRgn(*esquinas)); },
        [=] {
            pixman_region32_t r;
            pixman_region32_init_rects(&r, listo->data(), static_cast<int>(listo->size()));
            benchmark::DoNotOptimize(r);
            pixman_region32_fini(&r);
        });
    return true;
}

[[maybe_unused]] const bool registrado = Registra();

}  // namespace

}  // namespace tessario::bench
