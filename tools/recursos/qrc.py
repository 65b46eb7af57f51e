#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes resources/tessario.qrc: everything that is compiled into the program, in name order."""
import pathlib

RECURSOS = pathlib.Path(__file__).resolve().parents[2] / "resources"
# Prefix: patterns of the files under resources/.
GRUPOS = {
    "sonidos": ["sonidos/*.wav"],
    "cursores": ["cursores/*.png", "cursores/puntos.txt"],
    "imagenes": ["imagenes/*.png"],
    "ayuda": ["ayuda/*.html", "ayuda/*.css", "ayuda/imagenes/*.png"],
}


def main():
    lineas = ['<!DOCTYPE RCC>', '<RCC version="1.0">']
    for prefijo, modelos in GRUPOS.items():
        lineas.append('  <qresource prefix="/%s">' % prefijo)
        for modelo in modelos:
            for ruta in sorted(RECURSOS.glob(modelo)):
                nombre = ruta.relative_to(RECURSOS).as_posix()
                lineas.append('    <file alias="%s">%s</file>' % (nombre[len(prefijo) + 1:], nombre))
        lineas.append('  </qresource>')
    lineas.append('</RCC>')
    (RECURSOS / "tessario.qrc").write_text("\n".join(lineas) + "\n", encoding="utf-8")
    print("tessario.qrc: %d files" % sum("<file" in l for l in lineas))


if __name__ == "__main__":
    main()
