// SPDX-License-Identifier: GPL-3.0-or-later
// Metafiles made by hand, record by record, and a painter that notes what it is asked for.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/Metafichero.h"
#include "platform/PintorRaster.h"

namespace tessario {

using Puntos = std::vector<PuntoD>;
using Cadena = std::vector<u8>;
using Campos = std::vector<long long>;  // of a record

constexpr long long ROJO = 0x0000FF;  // as files have it: red lowest
constexpr Pixel TINTA_ROJA = 0xFF0000;

inline Campos Une(Campos a, const Campos& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

inline void Pon(Cadena& b, std::size_t i, long long v, std::size_t n) {
    if (b.size() < i + n) b.resize(i + n);
    for (std::size_t k = 0; k < n; ++k) b[i + k] = static_cast<u8>((v >> (8 * k)) & 255);
}

// An EMF of 96 x 48 pixels on a device of 96 pixels to the inch, one unit to the pixel.
class Emf {
public:
    Emf() {
        Pon(b_, 0, 1, 4);
        Pon(b_, 4, 108, 4);
        Pon(b_, 32, 2540, 4);  // 96 pixels in hundredths of a millimetre
        Pon(b_, 36, 1270, 4);
        Pon(b_, 40, 0x464D4520, 4);
        Pon(b_, 44, 0x10000, 4);
        Pon(b_, 56, 4, 2);
        Pon(b_, 72, 960, 4);
        Pon(b_, 76, 960, 4);
        Pon(b_, 80, 254, 4);
        Pon(b_, 84, 254, 4);
        b_.resize(108);
    }
    Emf& R(u32 tipo, const std::vector<long long>& campos) {
        Cadena r;
        for (std::size_t k = 0; k < campos.size(); ++k) Pon(r, 4 * k, campos[k], 4);
        return Crudo(tipo, static_cast<u32>(r.size() + 8), r);
    }
    // A record that says it is so long, with the bytes that are really there.
    Emf& Crudo(u32 tipo, u32 largo, const Cadena& r) {
        const std::size_t i = b_.size();
        Pon(b_, i, tipo, 4);
        Pon(b_, i + 4, largo, 4);
        b_.insert(b_.end(), r.begin(), r.end());
        return *this;
    }
    Cadena Fin() {
        R(14, {0, 16, 20});
        return b_;
    }
    Cadena& Bytes() { return b_; }

private:
    Cadena b_;
};

// A WMF of 100 x 50 pixels, one unit to the pixel.
class Wmf {
public:
    Wmf() {
        Pon(b_, 0, 0x9AC6CDD7, 4);
        Pon(b_, 10, 100, 2);
        Pon(b_, 12, 50, 2);
        Pon(b_, 14, 96, 2);
        b_.resize(22);
        Pon(b_, 22, 1, 2);
        Pon(b_, 24, 9, 2);
        Pon(b_, 26, 0x300, 2);
        b_.resize(40);
    }
    Wmf& R(u32 funcion, const std::vector<long long>& palabras) {
        const std::size_t i = b_.size();
        Pon(b_, i, static_cast<long long>(palabras.size() + 3), 4);
        Pon(b_, i + 4, funcion, 2);
        for (std::size_t k = 0; k < palabras.size(); ++k) Pon(b_, i + 6 + 2 * k, palabras[k], 2);
        return *this;
    }
    Cadena Fin() {
        R(0, {});
        return b_;
    }
    Cadena& Bytes() { return b_; }

private:
    Cadena b_;
};

// Notes what it is asked for.
class PintorAnotador : public PintorMetafichero {
public:
    i32 ancho = 0, alto = 0;
    bool alternoDeRegion = false;  // of the last figure that became a region
    struct Nota {
        char clase = ' ';
        std::vector<PuntoD> puntos = {};  // of the whole figure
        Trazado figura = {};
        Pixel tinta = 0;
        double anchoPluma = 0;
        Rect recorte = {};
        u32 operacion = 0;
        std::u16string letras = {};
        bool alterno = false, hastaBorde = false;
        BrochaMeta brocha = {};
        PlumaMeta pluma = {};
        TextoMeta texto = {};
        CopiaMeta copia = {};            // without its pictures, which follow
        Mapa origen = {}, mascara = {};  // empty: none
        ModosMeta modos = {};            // without the clip
        std::vector<Pixel> colores = {};
    };
    std::vector<Nota> notas;

    void Abre(i32 w, i32 h, Esfuerzo&) override {
        ancho = w;
        alto = h;
    }
    void Rellena(const Trazado& t, bool alterno, const BrochaMeta& b, const ModosMeta& m) override {
        Nota& n = Anota('f', t, b.Tinta, m);
        n.alterno = alterno;
        n.brocha = b;
    }
    void Figura(const Trazado& t, bool alterno, const BrochaMeta& b, const PlumaMeta& p,
                const ModosMeta& m) override {
        if (b.Tipo != BrochaMeta::Clase::Nula) Rellena(t, alterno, b, m);
        if (!p.Nula) Traza(t, p, m);
    }
    void RellenaRegion(const Region& r, const BrochaMeta& b, const ModosMeta& m) override {
        const Rect c = r.Caja();
        const std::vector<PuntoD> esquinas{{double(c.Izq), double(c.Arr)},
                                           {double(c.Der), double(c.Aba)}};
        Anota('r', {{esquinas, false}}, b.Tinta, m).brocha = b;
    }
    void Traza(const Trazado& t, const PlumaMeta& p, const ModosMeta& m) override {
        Nota& n = Anota('l', t, p.Brocha.Tinta, m);
        n.anchoPluma = p.Ancho;
        n.pluma = p;
    }
    void Copia(const CopiaMeta& c, const BrochaMeta& b, const ModosMeta& m) override {
        Nota& n = Anota('c', {{{c.Esquina, c.Derecha, c.Abajo}, false}}, b.Tinta, m);
        n.operacion = c.Operacion;
        n.copia = c;
        n.brocha = b;
        if (c.Origen) n.origen = *c.Origen;
        if (c.Mascara) n.mascara = *c.Mascara;
        n.copia.Origen = n.copia.Mascara = nullptr;
    }
    void PonPunto(PuntoD p, Pixel color, const ModosMeta& m) override {
        Anota('p', {{{p}, false}}, color, m);
    }
    void Inunda(PuntoD p, Pixel color, bool hastaBorde, const BrochaMeta& b,
                const ModosMeta& m) override {
        Nota& n = Anota('i', {{{p}, false}}, color, m);
        n.hastaBorde = hastaBorde;
        n.brocha = b;
    }
    void Degrada(const PuntoD (&p)[3], const Pixel (&color)[3], const ModosMeta& m) override {
        Anota('d', {{{p[0], p[1], p[2]}, false}}, color[0], m).colores = {color[0], color[1],
                                                                          color[2]};
    }
    PuntoD Escribe(const TextoMeta& t, const ModosMeta& m) override {
        Nota& n = Anota('t', {{{t.Lugar}, false}}, m.Texto, m);
        n.letras = t.Letras;
        n.texto = t;
        return {10, 0};
    }
    Region RegionDe(const Trazado& t, bool alterno) override {
        alternoDeRegion = alterno;
        return t.empty() ? Region{} : Region(Rect{1, 2, 3, 4});
    }
    Trazado Ensancha(const Trazado& t, const PlumaMeta&) override { return t; }

private:
    Nota& Anota(char clase, const Trazado& t, Pixel tinta, const ModosMeta& m) {
        Nota n;
        n.clase = clase;
        n.tinta = tinta;
        n.figura = t;
        n.recorte = m.Recorte->Caja();
        n.modos = m;
        n.modos.Recorte = nullptr;
        for (const Contorno& c : t)
            n.puntos.insert(n.puntos.end(), c.Puntos.begin(), c.Puntos.end());
        notas.push_back(std::move(n));
        return notas.back();
    }
};

// Every field of a letter set apart from what it is without a record.
inline void EsLaLetraEntera(const FuenteMeta& f) {
    EXPECT_EQ(f.Alto, -20);
    EXPECT_EQ(f.Ancho, 7);
    EXPECT_EQ(f.Giro, 900);
    EXPECT_EQ(f.Peso, 700);
    EXPECT_TRUE(f.Cursiva && f.Subrayada && f.Tachada);
    EXPECT_EQ(f.Juego, 0xA1);
    EXPECT_EQ(f.Paso, 0x31);
    EXPECT_EQ(f.Cara, u"BCA");
}

// Letters that are boxes half as broad as high.
class LetrasCajas : public LetrasMeta {
public:
    Medidas Mide(const FuenteMeta&) override { return {}; }
    const Letra& De(const FuenteMeta&, double cuerpo, char16_t, bool) override {
        letra_.Avance = cuerpo / 2;
        letra_.Figura = {{{{0, -cuerpo}, {cuerpo / 2, -cuerpo}, {cuerpo / 2, 0}, {0, 0}}, true}};
        return letra_;
    }

private:
    Letra letra_;
};

class Paseo : public testing::Test {
protected:
    // The only thing that is drawn.
    const PintorAnotador::Nota& Unica(const Cadena& b) {
        EXPECT_TRUE(Bien(b));
        EXPECT_EQ(p.notas.size(), 1U);
        if (p.notas.empty()) p.notas.emplace_back();
        return p.notas.back();
    }
    Lectura Lee(const Cadena& b) {
        p = {};
        return PintaMetafichero(b, p);
    }
    bool Bien(const Cadena& b) { return Lee(b) == Lectura::Bien; }
    // What is painted in a picture, by our own painter.
    Mapa Pinta(const Cadena& b) {
        PintorRaster r(letras);
        EXPECT_EQ(PintaMetafichero(b, r), Lectura::Bien);
        return r.Dibujo();
    }
    PintorAnotador p;
    LetrasCajas letras;
};

}  // namespace tessario
