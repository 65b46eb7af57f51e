// SPDX-License-Identifier: GPL-3.0-or-later
// What can be said of a figure in exact geometry: whether its pieces join well, how hard it is, and
// whether two figures are the same.
#pragma once

#include <string>
#include <vector>

#include "Exacto.h"

namespace tessario::modelos {

using Figura = std::vector<Puesta>;
Figura EnSuSitio(const Plan& plan);

// What is wrong, or nothing: pieces missing or twice, pieces that overlap, stand apart or leave a
// seam.
std::string ReparoExacto(const Figura& figura);

// How many of the seven pieces the silhouette gives away: those that are the only piece, in the
// only way, that fits along a side into some corner of the outline.
i32 PiezasDadas(const Figura& figura);

// Corners of the outline.
i32 Esquinas(const Figura& figura);

// The same silhouette up to turning and mirroring? Of one figure with many others.
class Semejanza {
public:
    explicit Semejanza(const Figura& figura);
    bool Igual(const Semejanza& otra) const;

private:
    Figura figura_;
    double x_ = 0, y_ = 0;   // middle
    double dispersion_ = 0;  // how far from the middle its area lies
};

}  // namespace tessario::modelos
