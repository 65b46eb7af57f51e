#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads the includes of src/ and reports arrows that the lay-out of the code does not have.

A file may include files of its own folder and of folders on lower levels, never of another folder
on its own level. Files, units and folders form no circle. A unit is a header and its sources: a
source with the name as prefix is counted with it, and so is a header with the name as prefix that
only files of the unit include. No two units share a name. What a header declares, its
own sources define, so a unit with a header that declares routines has a source. A window-system
header appears in src/qt and src/main.cpp alone, and there is a C++ source for nothing else.
docs/architecture.md has a table for each folder, which names every unit of it and no other.

Prints one line for each fault and a last one that counts them; the exit code is 1 if there are any.
"""
import re
import sys
from collections import defaultdict
from pathlib import Path

RAIZ = Path(__file__).resolve().parent.parent
SRC = RAIZ / "src"
MAPA = RAIZ / "docs" / "architecture.md"

# From the bottom up.
NIVELES = [
    ["platform"],
    ["core"],
    ["rules"],
    ["pieces", "records"],
    ["panel"],
    ["jigsaw", "sliding", "tangram"],
    ["session"],
    ["table", "settings", "windows"],
    ["start"],
    ["qt"],
    ["main.cpp"],
]
NIVEL = {carpeta: n for n, grupo in enumerate(NIVELES) for carpeta in grupo}

INCLUYE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)
DE_VENTANAS = re.compile(r"^(Q[A-Z]\w*|Qt\w+/.*|q[a-z]+\.h|private/q.*|SDL.*|X11/.*)$")

# In the map: the heading of a folder's table, any other heading, and the row of a unit.
TITULO = re.compile(r"^### `src/(\w+)/`$")
FILA = re.compile(r"^\| `(\w+)` \| \S")

faltas = []


def falta(texto):
    faltas.append(texto)
    print(texto)


def carpeta_de(fichero):
    return fichero.split("/")[0]


def lee():
    """Includes of each file by its path under src/: those of src/ itself, and the others."""
    propios, ajenos = {}, {}
    for ruta in sorted(SRC.rglob("*")):
        if ruta.suffix not in (".h", ".cpp"):
            continue
        nombre = ruta.relative_to(SRC).as_posix()
        propios[nombre], ajenos[nombre] = [], []
        for signo, que in INCLUYE.findall(ruta.read_text(encoding="utf-8")):
            (propios if signo == '"' else ajenos)[nombre].append(que)
    return propios, ajenos


def con_prefijo(base, cabeceras):
    """The longest header whose name this one begins with, or None."""
    candidatas = [c for c in cabeceras if base.startswith(c) and base[len(c):][:1].isupper()]
    return max(candidatas, key=len, default=None)


def unidad_de(fichero, cabeceras):
    """The unit of a file: its header's name; a source goes with the longest header it begins with."""
    base = fichero.rsplit(".", 1)[0]
    return base if base in cabeceras else con_prefijo(base, cabeceras) or base


def cabeceras_publicas(propios):
    """The headers that name units, without those that are a unit's own business."""
    cabeceras = {f[:-2] for f in propios if f.endswith(".h")}
    for propia in sorted(cabeceras, key=len, reverse=True):
        duena = con_prefijo(propia, cabeceras - {propia})
        quienes = [f for f, que in propios.items() if f"{propia}.h" in que]
        if duena and quienes and all(f.rsplit(".", 1)[0].startswith(duena) for f in quienes):
            cabeceras.discard(propia)
    return cabeceras


def circulos(grafo):
    """Groups of nodes that reach each other, by Tarjan's walk."""
    indice, bajo, pila, en_pila, halla = {}, {}, [], set(), []

    def visita(raiz):
        trabajo = [(raiz, iter(sorted(grafo.get(raiz, ()))))]
        indice[raiz] = bajo[raiz] = len(indice)
        pila.append(raiz)
        en_pila.add(raiz)
        while trabajo:
            nodo, vecinos = trabajo[-1]
            for otro in vecinos:
                if otro not in indice:
                    indice[otro] = bajo[otro] = len(indice)
                    pila.append(otro)
                    en_pila.add(otro)
                    trabajo.append((otro, iter(sorted(grafo.get(otro, ())))))
                    break
                if otro in en_pila:
                    bajo[nodo] = min(bajo[nodo], indice[otro])
            else:
                trabajo.pop()
                if trabajo:
                    padre = trabajo[-1][0]
                    bajo[padre] = min(bajo[padre], bajo[nodo])
                if bajo[nodo] == indice[nodo]:
                    grupo = []
                    while True:
                        otro = pila.pop()
                        en_pila.discard(otro)
                        grupo.append(otro)
                        if otro == nodo:
                            break
                    if len(grupo) > 1:
                        halla.append(sorted(grupo))

    for nodo in sorted(grafo):
        if nodo not in indice:
            visita(nodo)
    return halla


def revisa_flechas(propios):
    for fichero, incluidos in propios.items():
        de = carpeta_de(fichero)
        if de not in NIVEL:
            falta(f"{fichero}: folder {de} has no level")
            continue
        for otro in incluidos:
            if otro not in propios:
                falta(f"{fichero}: includes {otro}, which is not in src/")
                continue
            a = carpeta_de(otro)
            if a != de and NIVEL.get(a, 99) >= NIVEL[de]:
                clase = "on the same level" if NIVEL.get(a) == NIVEL[de] else "upward"
                falta(f"{fichero}: includes {otro} ({clase})")


def revisa_ventanas(ajenos):
    for fichero, incluidos in ajenos.items():
        if carpeta_de(fichero) in ("qt", "main.cpp"):
            continue
        for otro in incluidos:
            if DE_VENTANAS.match(otro):
                falta(f"{fichero}: includes <{otro}>, a window-system header")


def revisa_circulos(clase, grafo):
    for grupo in circulos(grafo):
        falta(f"circle of {clase}: {' '.join(grupo)}")


def revisa_unidades(propios, cabeceras):
    nombres = defaultdict(set)
    for fichero in propios:
        nombres[unidad_de(fichero, cabeceras).rsplit("/", 1)[-1]].add(
            unidad_de(fichero, cabeceras))
    for nombre, unidades in sorted(nombres.items()):
        if len(unidades) > 1:
            falta(f"name {nombre} shared by units {' '.join(sorted(unidades))}")
    for fichero in propios:
        if fichero.endswith(".cpp") and fichero != "main.cpp":
            unidad = unidad_de(fichero, cabeceras)
            if unidad not in cabeceras:
                falta(f"{fichero}: source without a header of its unit")
            elif not any(q.startswith(unidad) for q in propios[fichero]):
                falta(f"{fichero}: does not include the header of its unit, {unidad}.h")


def lee_mapa():
    """The units that the map names, as folder/name."""
    carpeta, nombradas = None, []
    for linea in MAPA.read_text(encoding="utf-8").splitlines():
        if linea.startswith("#"):
            titulo = TITULO.match(linea)
            carpeta = titulo.group(1) if titulo else None
        fila = FILA.match(linea)
        if carpeta and fila:
            nombradas.append(f"{carpeta}/{fila.group(1)}")
    return nombradas


def revisa_mapa(unidades):
    nombradas = lee_mapa()
    for unidad in sorted(unidades - set(nombradas)):
        falta(f"{unidad}: not named in docs/{MAPA.name}")
    for unidad in sorted(set(nombradas) - unidades):
        falta(f"{unidad}: named in docs/{MAPA.name}, but there is no such unit")
    for unidad in sorted({u for u in nombradas if nombradas.count(u) > 1}):
        falta(f"{unidad}: named twice in docs/{MAPA.name}")


def main():
    propios, ajenos = lee()
    cabeceras = cabeceras_publicas(propios)
    de_unidades, de_carpetas = defaultdict(set), defaultdict(set)
    for fichero, incluidos in propios.items():
        for otro in incluidos:
            u, v = unidad_de(fichero, cabeceras), unidad_de(otro, cabeceras)
            if u != v:
                de_unidades[u].add(v)
            if carpeta_de(fichero) != carpeta_de(otro):
                de_carpetas[carpeta_de(fichero)].add(carpeta_de(otro))
    revisa_flechas(propios)
    revisa_ventanas(ajenos)
    revisa_circulos("files", propios)
    revisa_circulos("units", de_unidades)
    revisa_circulos("folders", de_carpetas)
    revisa_unidades(propios, cabeceras)
    unidades = {unidad_de(f, cabeceras) for f in propios}
    revisa_mapa({u for u in unidades if u != "main"})
    print(f"{len(propios)} files, {len(unidades)} units, {len(de_carpetas)} folders: "
          f"{len(faltas)} faults")
    return 1 if faltas else 0


if __name__ == "__main__":
    sys.exit(main())
