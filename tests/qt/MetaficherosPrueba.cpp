// SPDX-License-Identifier: GPL-3.0-or-later
// Every metafile of tests/datos/metaficheros against its picture, by a measure that forgives what
// lies one pixel aside; damaged ones cost little and crash nothing.
#include <sys/resource.h>

#include <QFile>
#include <QImage>
#include <fstream>
#include <map>
#include <sstream>

#include "PruebaQt.h"

namespace tessario {

namespace {

// Share of the ink that may be wrong, by what a file is about.
const std::map<std::string, double> LIMITES{
    {"vacio", 0},         {"rectangulos", .02},   {"polipoligonos", .02}, {"poligonos", .03},
    {"elipses", .04},     {"redondeados", .03},   {"regiones", .03},      {"recortes", .03},
    {"cabecera", .02},    {"comentarios", .03},   {"objetos", .05},       {"guarda", .04},
    {"mapeo", .03},       {"mundo", .05},         {"rop2", .03},          {"dibs", .03},
    {"dibsrle", .05},     {"setdib", .03},        {"blts", .05},          {"degradado", .05},
    {"alfa", .08},        {"paleta", .03},        {"relleno", .05},       {"emfplus", .02},
    {"caminos", .05},     {"recortecamino", .06}, {"lineas", .06},        {"polilineas", .06},
    {"bezier", .08},      {"arcos", .06},         {"arcosemf", .06},      {"anchos", .06},
    {"geometricas", .08}, {"enorme", .08},        {"pixel", .05},         {"plumas", .35},
    {"trazos", .25},      {"tramas", .35},        {"patrones", .35},      {"bkmodos", .30},
    {"texto", .25},       {"textoestilos", .30},  {"textogirado", .30},   {"textofondo", .22},
    {"paisaje", .04}};

constexpr int DIFERENCIA = 48;

int Distancia(Pixel a, Pixel b) {
    int d = 0;
    for (int k : {0, 8, 16})
        d = std::max(
            d, std::abs(static_cast<int>((a >> k) & 0xFF) - static_cast<int>((b >> k) & 0xFF)));
    return d;
}

// Pixels of a that are unlike each of the nine around the same place of b.
int Malos(const Mapa& a, const Mapa& b) {
    int n = 0;
    for (i32 y = 0; y < a.Alto; ++y)
        for (i32 x = 0; x < a.Ancho; ++x) {
            bool bien = false;
            for (i32 v = std::max(0, y - 1); v <= std::min(a.Alto - 1, y + 1) && !bien; ++v)
                for (i32 u = std::max(0, x - 1); u <= std::min(a.Ancho - 1, x + 1) && !bien; ++u)
                    bien = Distancia(a.Fila(y)[x], b.Fila(v)[u]) <= DIFERENCIA;
            if (!bien) ++n;
        }
    return n;
}

// The mean of the nine pixels around each, the edges repeated.
Mapa Media(const Mapa& a) {
    Mapa m(a.Ancho, a.Alto);
    for (i32 y = 0; y < a.Alto; ++y)
        for (i32 x = 0; x < a.Ancho; ++x) {
            Pixel suma[3] = {0, 0, 0};
            for (i32 v = y - 1; v <= y + 1; ++v)
                for (i32 u = x - 1; u <= x + 1; ++u) {
                    const Pixel p =
                        a.Fila(std::clamp(v, 0, a.Alto - 1))[std::clamp(u, 0, a.Ancho - 1)];
                    for (unsigned k = 0; k < 3; ++k) suma[k] += (p >> (8 * k)) & 0xFFU;
                }
            m.Fila(y)[x] = suma[0] / 9 | (suma[1] / 9) << 8 | (suma[2] / 9) << 16;
        }
    return m;
}

double Tinta(const Mapa& a, const Mapa& b, const Mapa& medidaA, const Mapa& medidaB) {
    int tinta = 0;
    for (std::size_t i = 0; i < a.Pixeles.size(); ++i)
        if (a.Pixeles[i] != 0xFFFFFF || b.Pixeles[i] != 0xFFFFFF) ++tinta;
    return static_cast<double>(std::max(Malos(medidaA, medidaB), Malos(medidaB, medidaA))) /
           std::max(tinta, 1);
}

struct Caso {
    std::string fichero, tema, medida;
};

std::string Carpeta() {
    return std::string(TESSARIO_DATOS) + "metaficheros/";
}

std::vector<Caso> Casos(bool rotos) {
    std::vector<Caso> v;
    std::ifstream f(Carpeta() + "manifest.txt");
    for (std::string l; std::getline(f, l);) {
        std::istringstream s(l);
        Caso c;
        std::getline(s, c.fichero, '\t');
        std::getline(s, c.tema, '\t');
        std::getline(s, c.medida, '\t');
        if ((c.tema == "roto") == rotos) v.push_back(c);
    }
    return v;
}

void PrintTo(const Caso& c, std::ostream* o) {
    *o << c.fichero;
}

std::string Nombre(const testing::TestParamInfo<Caso>& i) {
    std::string n = i.param.fichero;
    for (char& c : n)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    return n;
}

class Metafichero : public PruebaQt, public testing::WithParamInterface<Caso> {};
class MetaficheroRoto : public PruebaQt, public testing::WithParamInterface<Caso> {};

TEST_P(Metafichero, IsPaintedLikeItsPicture) {
    const Caso& c = GetParam();
    const std::string ruta = Carpeta() + c.fichero;
    Mapa m, ref;
    ASSERT_EQ(P().CargaImagen(ruta, m), 0);
    ASSERT_EQ(P().CargaAjena(Carpeta() + "ref/" + c.fichero + ".png", ref), 0);
    EXPECT_EQ(std::to_string(m.Ancho) + "x" + std::to_string(m.Alto), c.medida);
    ASSERT_EQ(m.Ancho, ref.Ancho);
    ASSERT_EQ(m.Alto, ref.Alto);
    i32 w = 0, h = 0;
    EXPECT_EQ(P().MideImagen(ruta, w, h), 0);
    EXPECT_EQ(w, m.Ancho);
    EXPECT_EQ(h, m.Alto);
    ASSERT_TRUE(LIMITES.count(c.tema)) << c.tema;
    const double limite = LIMITES.at(c.tema), tinta = Tinta(m, ref, m, ref);
    if (tinta > limite) {
        EXPECT_LE(Tinta(m, ref, Media(m), Media(ref)), limite / 2)
            << "and without the mean " << tinta;
    }
    for (const Pixel p : m.Pixeles) ASSERT_EQ(p >> 24, 0U);
}

INSTANTIATE_TEST_SUITE_P(Todos, Metafichero, testing::ValuesIn(Casos(false)), Nombre);

// The most memory that the process has held so far, in megabytes.
long MemoriaMaxima() {
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    return u.ru_maxrss / 1024;
}

TEST_P(MetaficheroRoto, CostsLittleAndHarmsNothing) {
    const Caso& c = GetParam();
    Mapa m(1, 1, 0x123456);
    const long antes = MemoriaMaxima();
    const i32 error = P().CargaImagen(Carpeta() + c.fichero, m);
    EXPECT_LT(MemoriaMaxima() - antes, 300);
    if (error != 0) {
        EXPECT_TRUE(error == 481 || error == 7) << error;
        EXPECT_EQ(m.Pixeles, std::vector<Pixel>{0x123456}) << "the old picture stays";
    } else if (c.medida != "-") {
        EXPECT_EQ(std::to_string(m.Ancho) + "x" + std::to_string(m.Alto), c.medida);
    }
}

INSTANTIATE_TEST_SUITE_P(Todos, MetaficheroRoto, testing::ValuesIn(Casos(true)), Nombre);

}  // namespace

}  // namespace tessario
