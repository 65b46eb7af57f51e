// SPDX-License-Identifier: GPL-3.0-or-later
// The painter of metafiles on plain pixels: no smoothing, lines and edges fall on whole pixels. Of
// letters it only asks for their outlines.
#pragma once

#include <functional>
#include <map>
#include <tuple>

#include "platform/PintorMetafichero.h"

namespace tessario {

// Outlines of letters, in pixels about their origin on the base line, y downwards.
class LetrasMeta {
public:
    struct Letra {
        Trazado Figura;
        double Avance = 0;
    };
    struct Medidas {
        double Ascenso = 0.9, Descenso = 0.2, Media = 0.5;  // of a letter of height 1
    };
    virtual ~LetrasMeta() = default;
    virtual Medidas Mide(const FuenteMeta& f) = 0;
    // A letter `cuerpo` pixels high; the result lives until the next call.
    virtual const Letra& De(const FuenteMeta& f, double cuerpo, char16_t letra, bool porIndice) = 0;
};

// A wide line in pieces, with the points of all of them.
struct Piezas {
    Trazado Lista;
    std::size_t Puntos = 0;
};

class PintorRaster : public PintorMetafichero {
public:
    explicit PintorRaster(LetrasMeta& letras) : letras_(letras) {}
    Mapa& Dibujo() { return m_; }

    void Abre(i32 ancho, i32 alto, Esfuerzo& esfuerzo) override;
    void Rellena(const Trazado& t, bool alterno, const BrochaMeta& b, const ModosMeta& m) override;
    void Figura(const Trazado& t, bool alterno, const BrochaMeta& b, const PlumaMeta& p,
                const ModosMeta& m) override;
    void RellenaRegion(const Region& r, const BrochaMeta& b, const ModosMeta& m) override;
    void Traza(const Trazado& t, const PlumaMeta& p, const ModosMeta& m) override;
    void Copia(const CopiaMeta& c, const BrochaMeta& b, const ModosMeta& m) override;
    void PonPunto(PuntoD p, Pixel color, const ModosMeta& m) override;
    void Inunda(PuntoD p, Pixel color, bool hastaBorde, const BrochaMeta& b,
                const ModosMeta& m) override;
    void Degrada(const PuntoD (&p)[3], const Pixel (&color)[3], const ModosMeta& m) override;
    PuntoD Escribe(const TextoMeta& t, const ModosMeta& m) override;
    Region RegionDe(const Trazado& t, bool alterno) override;
    Trazado Ensancha(const Trazado& t, const PlumaMeta& p) override;

private:
    using Tramo = std::function<void(i32 y, i32 izq, i32 der)>;
    void Barre(const Trazado& t, bool alterno, const Rect& caja, const Tramo& tramo);
    void Recorta(i32 y, i32 izq, i32 der, const ModosMeta& m, const Tramo& tramo);
    void Pinta(i32 y, i32 izq, i32 der, const BrochaMeta& b, const ModosMeta& m);
    bool Tinta(i32 x, i32 y, const BrochaMeta& b, const ModosMeta& m, Pixel& p) const;
    void Linea(Punto a, Punto b, const PlumaMeta& p, const ModosMeta& m, long long& fase);
    Trazado Trocea(const Contorno& c, const PlumaMeta& p);
    void Contornea(const Contorno& c, const PlumaMeta& p, Piezas& t);
    Pixel Muestra(const CopiaMeta& c, double u, double v, double pasoU, double pasoV,
                  bool& hay) const;
    Pixel Combina(const CopiaMeta& c, Pixel s, Pixel d, i32 x, i32 y, bool dentro,
                  const BrochaMeta& b, const ModosMeta& m) const;

    // How the letters of a text stand: measures in pixels upright, before they are turned.
    struct Renglon {
        double Cuerpo = 0, Ascenso = 0, Descenso = 0, Estrecha = 1;
        std::vector<PuntoD> Sitios;
        PuntoD Fin;
        Matriz Forma;  // to the picture's pixels
    };
    bool MideLetras(const TextoMeta& t, Renglon& g);
    void SituaLetras(const TextoMeta& t, Renglon& g);
    void Letras(const TextoMeta& t, const Renglon& g, const ModosMeta& m);
    void Barra(const Renglon& g, double arr, double aba, Pixel color, const ModosMeta& m);
    void Rayas(const FuenteMeta& f, const Renglon& g, const ModosMeta& m);
    void PagaFuente(const TextoMeta& t, double cuerpo);

    LetrasMeta& letras_;
    // The letters that were asked for, by font and size.
    std::map<std::tuple<std::u16string, int, bool, long>, std::vector<bool>> fuentes_;
    Mapa m_;
    Esfuerzo* esfuerzo_ = nullptr;
};

}  // namespace tessario
