#include "table/Tareas.h"

#include <utility>

#include "core/PuzzGbl.h"

namespace tessario {

bool DentroDeTarea() {
    return Gbl.EventosAnidados > 0;
}

void TerminaTareas() {
    Gbl.ResolviendoPuzzle = Gbl.OrdenandoPiezas = false;
    Gbl.AutoAtras = Gbl.AutoAdelante = false;
    Gbl.GirandoPieza = false;
}

void Aplaza(i16 orden) {
    Gbl.OrdenAplazada = orden;
}

bool GuardaEntrada(const EntradaTabla& entrada) {
    if (!Gbl.GiroTerminado || !DentroDeTarea()) return false;
    Gbl.EntradaAplazada.push_back(entrada);
    return true;
}

ManejadorEnCurso::ManejadorEnCurso() {
    ++Gbl.ManejadoresEnCurso;
}
ManejadorEnCurso::~ManejadorEnCurso() {
    --Gbl.ManejadoresEnCurso;
}

i16 ManejadorEnCurso::TomaAplazada() const {
    if (Gbl.ManejadoresEnCurso > 1 || DentroDeTarea()) return 0;
    return std::exchange(Gbl.OrdenAplazada, i16{0});
}

std::optional<EntradaTabla> ManejadorEnCurso::TomaEntrada() const {
    if (Gbl.ManejadoresEnCurso > 1 || DentroDeTarea() || Gbl.EntradaAplazada.empty())
        return std::nullopt;
    const EntradaTabla entrada = Gbl.EntradaAplazada.front();
    Gbl.EntradaAplazada.erase(Gbl.EntradaAplazada.begin());
    return entrada;
}

}  // namespace tessario
