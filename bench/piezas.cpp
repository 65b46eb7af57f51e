// Pieces: preparing one against copies of its box, a drag step with few pieces against one with
// many, and the cut of the largest picture.
#include <cstring>
#include <fstream>
#include <memory>
#include <string>

#include "apoyo/PlataformaPrueba.h"
#include "bench/Razon.h"
#include "core/Medidas.h"
#include "core/PuzzBas.h"
#include "jigsaw/Corte.h"
#include "pieces/Composicion.h"
#include "pieces/Formas.h"
#include "pieces/Raster.h"
#include "pieces/Superficies.h"

namespace tessario::bench {

namespace {

constexpr i32 ANCHO_FOTO = 1024, ALTO_FOTO = 768;
constexpr double COPIAS_DERECHA = 6, COPIAS_GIRADA = 12, ARRASTRE_IGUAL = 1.1;

void PonMesa() {
    static PlataformaPrueba plataforma;
    plataforma.ancho = 1280;
    plataforma.alto = 1024;
    PonSistema(&plataforma);
    Gbl = Bloque{};
    ReiniciaSuperficies();
    Gbl.JuegoActual = JuegoMoviles;
    Gbl.AnchoPantalla = 1280;
    Gbl.AltoPantalla = 1024;
    auto foto = std::make_shared<Mapa>(ANCHO_FOTO, ALTO_FOTO);
    for (i32 y = 0; y < ALTO_FOTO; ++y)
        for (i32 x = 0; x < ANCHO_FOTO; ++x)
            foto->Fila(y)[x] = 0x400000U | static_cast<Pixel>(x) << 10U | static_cast<Pixel>(y);
    Pic_FonTamModi.Tamano(ANCHO_FOTO, ALTO_FOTO);
    Pic_FonTamModi.PonPicture(std::move(foto));
}

// A jigsaw with all pieces at home.
void Monta(i16 forma, i16 lado) {
    PonMesa();
    Gbl.FormaPiezas = forma;
    Gbl.PiezasPorLado = lado;
    Gbl.PiezasPorCelda = PiezasDeCelda(forma);
    Gbl.AnchoImagen = ANCHO_FOTO;
    Gbl.AltoImagen = ALTO_FOTO;
    CalculaTamanos();
    Gbl.Piezas.Redimensiona(Gbl.NumPiezas);
    Gbl.OrdenPiezas.Redimensiona(Gbl.NumPiezas);
    for (i16 p = 1; p <= Gbl.NumPiezas; ++p) {
        const i32 celda = (p - 1) / Gbl.PiezasPorCelda;
        Gbl.Piezas[p].X = Gbl.Piezas[p].XBien = static_cast<i16>(celda % lado * Gbl.AnchoCelda);
        Gbl.Piezas[p].Y = Gbl.Piezas[p].YBien = static_cast<i16>(celda / lado * Gbl.AltoCelda);
        Gbl.OrdenPiezas[p] = p;
    }
    CreaMoviles(false);
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

// Mounts its puzzle at the first call, then prepares a piece inside it.
struct Prepara {
    i16 forma, giro;
    bool montada = false;
    void operator()() {
        if (!montada) {
            Monta(forma, 10);
            montada = true;
        }
        const i16 p = static_cast<i16>(44 * Gbl.PiezasPorCelda + 1);
        Gbl.Piezas[p].Giro = giro;
        PreparaPieza(p);
        benchmark::DoNotOptimize(Pic_PiezaImagen.Fila(0));
    }
};

struct Montado {
    std::string nombre;
    Montado(const std::string& n, i16 forma, i16 giro, double limite) : nombre(n) {
        RegistraRazon(nombre, limite, Prepara{forma, giro}, CopiaDeCaja{});
    }
};

// A drag over the table, to and fro. The other pieces lie where they do; the box has one size.
struct Arrastra {
    i16 piezas;
    i32 paso = 0;
    void operator()() {
        Gbl.NumPiezas = piezas;
        paso = (paso + 1) % 200;
        const i16 x = static_cast<i16>(Gbl.XRaton + (paso < 100 ? 2 : -2));
        MuevePieza(x, static_cast<i16>(Gbl.YRaton + (paso < 100 ? 1 : -1)), 1);
    }
};

struct ArrastraPocas : Arrastra {
    bool montada = false;
    void operator()() {
        if (!montada) {
            Monta(4, 20);
            PreparaPieza(1);
            TomaPieza(0, 0, 1);
            montada = true;
        }
        Arrastra::operator()();
    }
};

// Resident memory of the process in megabytes.
double MegasResidentes() {
    std::ifstream f("/proc/self/status");
    std::string palabra;
    while (f >> palabra)
        if (palabra == "VmRSS:") {
            double kb = 0;
            f >> kb;
            return kb / 1024;
        }
    return 0;
}

void CortaYTiende(benchmark::State& estado) {
    for (auto _ : estado) {
        Monta(2, 20);
        ColocaPiezas(1);
    }
    std::printf("resident with 1024 x 768 in 400 pieces: %.1f MB\n", MegasResidentes());
}

const Montado IRREGULAR("pieces/prepare irregular, upright", 2, 0, COPIAS_DERECHA);
const Montado IRREGULAR_1("pieces/prepare irregular, a quarter", 2, 1, COPIAS_GIRADA);
const Montado IRREGULAR_2("pieces/prepare irregular, half a turn", 2, 2, COPIAS_GIRADA);
const Montado IRREGULAR_3("pieces/prepare irregular, three quarters", 2, 3, COPIAS_GIRADA);
const Montado RECTANGULO("pieces/prepare rectangle, upright", 0, 0, COPIAS_DERECHA);
const Montado CURVADO("pieces/prepare curved, upright", 1, 0, COPIAS_DERECHA);
const Montado TRIANGULO("pieces/prepare triangle, upright", 3, 0, 0);
const Montado CIRCULO("pieces/prepare circle, upright", 4, 0, 0);
const Montado ESTRELLA("pieces/prepare star, upright", 7, 0, 0);

const auto* const ARRASTRE = RegistraRazon("pieces/drag step, 800 pieces against 9", ARRASTRE_IGUAL,
                                           ArrastraPocas{{800}}, Arrastra{9});
const auto* const CORTE = benchmark::RegisterBenchmark("pieces/cut and lay 400", CortaYTiende);

}  // namespace

}  // namespace tessario::bench
