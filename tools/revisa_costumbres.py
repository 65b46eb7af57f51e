#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs clang-tidy over every C++ source of the tree and prints what it has to say.

    revisa_costumbres.py COMPILE_COMMANDS [CLANG_TIDY]

Most of what a run costs is reading the same library headers again for each source, so sources
whose options do not contradict are read together, some thirty at a time, as one translation unit. Two
sources that give the same name to different things do not go together; should a collision escape
the eye of this script, the compiler sees it and the sources it complains of are read apart. The
checks are those of .clang-tidy less the path-sensitive ones, which cost ten times the others
(they are for `clang-tidy FILE` by hand).

The exit code is 1 if there is any finding.
"""
import itertools
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

RAIZ = Path(__file__).resolve().parent.parent
MANOJO = 32
CHECKS = ",".join("-" + c for c in (
    "clang-analyzer-*", "bugprone-suspicious-include", "bugprone-reserved-identifier",
    # Dear, and about what this code has none of: null string views, assertions, macros.
    "bugprone-stringview-nullptr", "bugprone-assert-side-effect", "bugprone-multiple-statement-macro"))
# A test keeps copies to compare with later and may be slow.
EN_PRUEBAS = ",-performance-*,-bugprone-integer-division,-bugprone-use-after-move,-bugprone-infinite-loop"

# What a compile command says about how the source is to be read; all else is about code or output.
OPCION_CON_VALOR = ("-isystem", "-I", "-D")
# Where a test was built: no source asks.
SIN_INTERES = ("-DQT_TESTCASE_BUILDDIR", "-DQT_TESTCASE_SOURCEDIR")

# Names that a source gives outside any class or function. They stand at the margin, as the settings
# of .clang-format have it, and nothing else does but braces, labels and directives.
AL_MARGEN = re.compile(r"^(?!return\b|using namespace|namespace|static_assert|[#/}){\s]).*$", re.M)
HALLAZGO = re.compile(r"^(?=/\S+:\d+:\d+: (?:warning|error): )", re.M)
PRUEBA = re.compile(r"^TEST(?:_F|_P)?\((\w+), *(\w+)")
USADO = re.compile(r"^using (?:\w+::)+(\w+);")
TIPO = re.compile(r"^(?:template ?<[^>]*> )?(?:struct|class|enum class|enum|using|union) (\w+)")
FUNCION = re.compile(r"^[^=({]*?[\s&*](\w+)\(")  # a member, Class::Name, is not the source's own
VALORES = re.compile(r"\b([A-Za-z]\w*)(?:\[\w*\])*(?: =|\{|;|\()")


def en_pruebas(fuente):
    return fuente.is_relative_to(RAIZ / "tests")


def nombres(texto):
    """The names that a source gives of its own."""
    hallados = set()
    for linea in AL_MARGEN.findall(texto):
        if caso := PRUEBA.match(linea):
            hallados.add(caso.groups())
        elif nombre := USADO.match(linea) or TIPO.match(linea):
            hallados.add(nombre.group(1))
        elif (funcion := FUNCION.match(linea)) and not linea.startswith(("const", "inline const")):
            hallados.add(funcion.group(1))
        else:
            hallados.update(VALORES.findall(linea))
    return hallados


def nombres_de_cabeceras():
    """What the tree's headers name, by name: the stems of the headers."""
    hallados = defaultdict(set)
    for carpeta in ("src", "tests", "fuzz", "tools"):
        for cabecera in (RAIZ / carpeta).rglob("*.h"):
            for nombre in nombres(cabecera.read_text(encoding="utf-8")):
                hallados[nombre].add(cabecera.stem)
    return hallados


class Cabeceras:
    """What headers of the tree a source reads, directly or through others, by their stems."""

    INCLUIDA = re.compile(r'^#include "([^"]+)"', re.M)
    RAICES = [RAIZ / carpeta for carpeta in ("src", "tests", "fuzz", "tools/modelos", ".")]

    def __init__(self):
        self.conocidas = {}

    def de(self, fichero):
        if fichero not in self.conocidas:
            self.conocidas[fichero] = set()  # a circle ends here
            for nombre in self.INCLUIDA.findall(fichero.read_text(encoding="utf-8")):
                for raiz in [fichero.parent, *self.RAICES]:
                    if (raiz / nombre).is_file():
                        cabecera = (raiz / nombre).resolve()
                        self.conocidas[fichero] |= {cabecera.stem} | self.de(cabecera)
                        break
        return self.conocidas[fichero]


def ajenas(suyos, leidas, de_cabeceras):
    """Stems of the headers that have namesakes of what a source names and that it does not read
    itself: it is not to be read with them."""
    return {c for n in suyos for c in de_cabeceras.get(n, ())} - leidas


def opciones(orden):
    """The options of a command as {key: words}; two with one key and other words contradict."""
    piezas = iter(shlex.split(orden)[1:])
    utiles = {}
    for p in piezas:
        if p in OPCION_CON_VALOR:
            p = (p, next(piezas))
        elif p.startswith(OPCION_CON_VALOR) or p.startswith("-std="):
            p = (p,)
        else:
            continue
        texto = "".join(p)
        if not texto.startswith(SIN_INTERES):
            utiles[texto.split("=")[0]] = p
    return utiles


def maneras(compilacion):
    """The ways to read sources, few: [options, sources]. Options that do not contradict join; tests
    and the rest stay apart (other checks), and so do the sources of the window library (what their
    headers define is not for all)."""
    abiertas = []
    vistos = set()
    for entrada in compilacion:
        fuente = Path(entrada["file"])
        if fuente in vistos or RAIZ not in fuente.parents or "build" in fuente.relative_to(RAIZ).parts:
            continue
        vistos.add(fuente)
        suyas = opciones(entrada["command"])
        clase = en_pruebas(fuente), any("-isystem" in palabras for palabras in suyas.values())
        for otra, como, fuentes in abiertas:
            if otra == clase and all(como.get(clave, p) == p for clave, p in suyas.items()):
                como.update(suyas)
                fuentes.append(fuente)
                break
        else:
            abiertas.append((clase, suyas, [fuente]))
    return [([p for palabras in como.values() for p in palabras], fuentes)
            for _, como, fuentes in abiertas]


def manojos(compilacion):
    """Bunches of sources: ([paths], options)."""
    de_cabeceras, cabeceras = nombres_de_cabeceras(), Cabeceras()
    for como, fuentes in maneras(compilacion):
        abiertos = []  # of each bunch: sources, their names, headers that they read, that they shun
        for fuente in sorted(fuentes):
            suyos = nombres(fuente.read_text(encoding="utf-8"))
            leidas = cabeceras.de(fuente)
            huidas = ajenas(suyos, leidas, de_cabeceras)
            for ramo, dados, vistas, temidas in abiertos:
                if (len(ramo) < MANOJO and not dados & suyos and not vistas & huidas
                        and not temidas & leidas):
                    ramo.append(fuente)
                    dados |= suyos
                    vistas |= leidas
                    temidas |= huidas
                    break
            else:
                abiertos.append(([fuente], suyos, set(leidas), huidas))
        yield from ((ramo, como) for ramo, *_ in abiertos)


class Revision:
    """One run over the tree: the bunches still to be read, and what was found."""

    def __init__(self, tidy, carpeta):
        self.tidy = tidy
        self.carpeta = Path(carpeta)
        self.numeros = itertools.count()
        self.lecturas = 0

    def lee(self, ramo, como):
        """Findings of clang-tidy, one for each line that names a check, with what follows it."""
        checks = CHECKS + (EN_PRUEBAS if en_pruebas(ramo[0]) else "")
        conjunto = self.carpeta / f"manojo{next(self.numeros)}.cpp"
        conjunto.write_text("".join(f'#include "{f}"\n' for f in ramo), encoding="utf-8")
        self.lecturas += 1
        salida = subprocess.run(
            [self.tidy, "--quiet", f"--config-file={RAIZ / '.clang-tidy'}", f"--checks={checks}",
             str(conjunto), "--", *como, "-ferror-limit=0"], capture_output=True, text=True)
        return [h.strip() for h in HALLAZGO.split(salida.stdout) if h.strip()]

    def revisa(self, ramo, como):
        """The findings of a bunch; sources that do not go with the others are read again apart."""
        hallazgos = self.lee(ramo, como)
        errores = [h for h in hallazgos if "[clang-diagnostic-error]" in h]
        if not errores or len(ramo) == 1:
            return hallazgos
        reos = [f for f in ramo if any(e.startswith(f"{f}:") for e in errores)]
        if not reos or len(reos) == len(ramo):
            reos = ramo[: len(ramo) // 2]
        resto = [f for f in ramo if f not in reos]
        return self.revisa(reos, como) + self.revisa(resto, como)


def main():
    compilacion = json.loads(Path(sys.argv[1]).read_text(encoding="utf-8"))
    tidy = sys.argv[2] if len(sys.argv) > 2 else "clang-tidy"
    ramos = list(manojos(compilacion))
    with tempfile.TemporaryDirectory() as carpeta, ThreadPoolExecutor(os.cpu_count()) as obreros:
        revision = Revision(tidy, carpeta)
        hallazgos = {h for de_uno in obreros.map(lambda r: revision.revisa(*r), ramos) for h in de_uno}
    print("\n".join(sorted(hallazgos)))
    print(f"{sum(len(r) for r, _ in ramos)} sources in {revision.lecturas} readings: {len(hallazgos)} findings")
    return 1 if hallazgos else 0


if __name__ == "__main__":
    sys.exit(main())
