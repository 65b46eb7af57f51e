# SPDX-License-Identifier: GPL-3.0-or-later
"""Renders SVG sources to pictures: rsvg-convert at eight times the size, then averaged down."""
import io
import pathlib
import subprocess

from PIL import Image

RAIZ = pathlib.Path(__file__).resolve().parents[2]
FUENTES = RAIZ / "resources" / "fuentes"
RECURSOS = RAIZ / "resources"
ESCALA = 8


def Rinde(texto, ancho, alto, escala=ESCALA):
    """The picture, RGBA, of an SVG text at ancho x alto pixels."""
    png = subprocess.run(
        ["rsvg-convert", "-w", str(ancho * escala), "-h", str(alto * escala)],
        input=texto.encode(), stdout=subprocess.PIPE, check=True).stdout
    imagen = Image.open(io.BytesIO(png)).convert("RGBA")
    if escala == 1:
        return imagen
    # Averaging with premultiplied alpha keeps dark fringes off the edges.
    return imagen.convert("RGBa").reduce(escala).convert("RGBA")


def Lee(nombre):
    return (FUENTES / nombre).read_text(encoding="utf-8")


def Guarda(imagen, nombre):
    ruta = RECURSOS / nombre
    ruta.parent.mkdir(parents=True, exist_ok=True)
    imagen.save(ruta, optimize=True)
    print("%-40s %4d x %-4d %7d bytes" % (nombre, imagen.width, imagen.height,
                                          ruta.stat().st_size))
