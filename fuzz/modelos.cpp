// SPDX-License-Identifier: GPL-3.0-or-later
// Fuzz target: the file of models: listed, each of the first ones laid to be solved, one saved and
// one deleted, and brought together with a supply.
#include "records/Modelos.h"

#include <algorithm>

#include "Mesa.h"
#include "core/PuzzGbl.h"
#include "records/Surtido.h"
#include "rules/Despacho.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* bytes, std::size_t n) {
    using namespace tessario;
    constexpr i16 MODELOS = 4;
    MesaDeFuzz mesa;
    mesa.Escribe("TsR33.ini", "\"23-1100-1" + std::string(116, ' ') + "\"\r\n");
    mesa.Escribe("Archivo/Modelos.tpu", Texto(bytes, n));
    Exige(Main(), "the start was refused");
    Lista lista;
    CargaListaModelos(lista);
    Gbl.ModoJuego = MODO_RESOLVER;
    for (i16 m = 1; m <= std::min<i32>(lista.ListCount(), MODELOS); ++m) {
        Gbl.ModeloActual = m;
        LeeModelo();
        PreparaJuego(true);
        CompruebaEstado();
    }
    GuardaModelo("Otro");
    BorraModelo();
    const std::string_view todo = Texto(bytes, n), mitad = todo.substr(0, n / 2);
    const std::string mezcla = MezclaSurtido(mitad, todo.substr(n / 4), todo);
    Exige(MezclaSurtido(mezcla, todo, todo) == mezcla, "the second merge changes nothing");
    CompruebaEstado();
    return 0;
}
