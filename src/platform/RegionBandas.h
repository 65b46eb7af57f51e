// SPDX-License-Identifier: GPL-3.0-or-later
// The writer of a region's list: takes bands from the top down and their spans from left to right,
// and keeps the invariants. Only for the routines that make regions.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/Tipos.h"

namespace tessario {

class BandasRegion {
public:
    explicit BandasRegion(std::vector<Rect>& lista) : lista_(lista) { lista_.clear(); }

    void Abre(i32 arr, i32 aba) {
        arr_ = arr;
        aba_ = aba;
        banda_ = lista_.size();
    }

    // A span of the open band that is not empty and lies clear of the one before.
    void Aparte(i32 izq, i32 der) { lista_.push_back({izq, arr_, der, aba_}); }

    // A span of the open band, or an empty one, which adds nothing. It may touch the one before but
    // starts no further left than that one ends.
    void Tramo(i32 izq, i32 der) {
        if (izq >= der) return;
        if (lista_.size() > banda_ && lista_.back().Der == izq)
            lista_.back().Der = der;
        else
            Aparte(izq, der);
    }

    // Ends the band; one with the columns of the band just above it becomes part of that.
    void Cierra() {
        const std::size_t n = lista_.size() - banda_;
        if (n == 0) return;
        if (!SigueALaAnterior(n)) {
            anterior_ = banda_;
            return;
        }
        for (std::size_t i = anterior_; i < banda_; ++i) lista_[i].Aba = aba_;
        lista_.resize(banda_);
    }

private:
    bool SigueALaAnterior(std::size_t n) const {
        if (banda_ - anterior_ != n || lista_[anterior_].Aba != arr_) return false;
        for (std::size_t i = 0; i < n; ++i) {
            const Rect& alta = lista_[anterior_ + i];
            const Rect& baja = lista_[banda_ + i];
            if (alta.Izq != baja.Izq || alta.Der != baja.Der) return false;
        }
        return true;
    }

    std::vector<Rect>& lista_;
    std::size_t anterior_ = 0;  // where the last finished band starts
    std::size_t banda_ = 0;     // where the open band starts
    i32 arr_ = 0, aba_ = 0;
};

}  // namespace tessario
