// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/Tareas.h"

#include <algorithm>

#include "core/PuzzGbl.h"
#include "platform/Controles.h"

namespace tessario {

namespace {

auto BuscaSuelta(i16 boton) {
    return std::find_if(
        Gbl.EntradaAplazada.begin(), Gbl.EntradaAplazada.end(),
        [boton](const EntradaTabla& e) { return e.Que == Suceso::Suelta && e.Numero == boton; });
}

}  // namespace

bool DentroDeTarea() {
    return Gbl.EventosAnidados > 0;
}

bool DentroDeAvance() {
    return DentroDeTarea() && (Gbl.AutoAtras || Gbl.AutoAdelante);
}

void TerminaTareas() {
    Gbl.ResolviendoPuzzle = Gbl.OrdenandoPiezas = false;
    Gbl.AutoAtras = Gbl.AutoAdelante = false;
    Gbl.GirandoPieza = false;
    Gbl.SinPausas = Gbl.Barajando;
}

void Aplaza(Suceso que, i16 numero) {
    const EntradaTabla peticion{que, numero, 0, 0};
    auto& cola = Gbl.EntradaAplazada;
    if (std::find(cola.begin(), cola.end(), peticion) == cola.end()) cola.push_back(peticion);
}

bool GuardaEntrada(const EntradaTabla& entrada) {
    if (!Gbl.GiroEnCurso || !DentroDeTarea()) return false;
    auto& cola = Gbl.EntradaAplazada;
    // Of several moves only the last one's point counts.
    if (entrada.Que == Suceso::Mueve && !cola.empty() && cola.back().Que == Suceso::Mueve)
        cola.back() = entrada;
    else
        cola.push_back(entrada);
    return true;
}

bool TomaSueltaDelGiro() {
    const auto suelta = BuscaSuelta(BOTON_DERECHO);
    if (suelta == Gbl.EntradaAplazada.end()) return false;
    suelta->Que = Suceso::Mueve;
    suelta->Numero = 0;
    const auto click = suelta + 1;
    if (click != Gbl.EntradaAplazada.end() && click->Que == Suceso::Click)
        Gbl.EntradaAplazada.erase(click);
    return true;
}

bool EsperaSuelta(i16 boton) {
    return BuscaSuelta(boton) != Gbl.EntradaAplazada.end();
}

ManejadorEnCurso::ManejadorEnCurso() {
    ++Gbl.ManejadoresEnCurso;
}
ManejadorEnCurso::~ManejadorEnCurso() {
    --Gbl.ManejadoresEnCurso;
}

std::optional<EntradaTabla> ManejadorEnCurso::TomaEntrada() const {
    if (Gbl.ManejadoresEnCurso > 1 || DentroDeTarea() || Gbl.EntradaAplazada.empty())
        return std::nullopt;
    const EntradaTabla entrada = Gbl.EntradaAplazada.front();
    Gbl.EntradaAplazada.erase(Gbl.EntradaAplazada.begin());
    return entrada;
}

}  // namespace tessario
