// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Pegada.h"

#include <filesystem>

#include "core/Cadenas.h"
#include "records/Historial.h"
#include "records/Texto.h"

namespace tessario {

namespace fs = std::filesystem;

namespace {

// Not one of the kinds that are listed as pictures.
fs::path LugarApartado(const std::string& ruta) {
    return fs::path(BuscaRuta(ruta)).replace_extension(".cse");
}

bool EsLaMisma(const std::string& a, const std::string& b) {
    std::error_code e;
    return fs::equivalent(BuscaRuta(a), BuscaRuta(b), e) && !e;
}

}  // namespace

bool EsPegada(const std::string& ruta) {
    return Minusculas(fs::path(ruta).filename().string()) == IMAGEN_PORTAPAPELES;
}

bool ApartaPegada(const std::string& nueva, const std::string& propia) {
    if (!EsPegada(propia) || HayApartada(propia) || !EsLaMisma(nueva, propia)) return true;
    std::error_code e;
    fs::rename(BuscaRuta(propia), LugarApartado(propia), e);
    return !e;
}

bool HayApartada(const std::string& propia) {
    std::error_code e;
    return EsPegada(propia) && fs::is_regular_file(LugarApartado(propia), e);
}

void DevuelvePegada(const std::string& propia) {
    std::error_code e;
    if (HayApartada(propia)) fs::rename(LugarApartado(propia), BuscaRuta(propia), e);
}

void OlvidaApartada(const std::string& propia) {
    std::error_code e;
    if (HayApartada(propia)) fs::remove(LugarApartado(propia), e);
}

}  // namespace tessario
