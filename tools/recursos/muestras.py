#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws the sample pictures of resources/muestras and measures that they are good to solve.

With a picture cut ten by ten, no piece may be nearly flat and no two pieces may look alike. For each
picture the smallest spread within a piece (standard deviation of its pixels) and the smallest
difference between two pieces (root mean square over 12 x 12 points) are printed, both in grey levels
of 0 to 255. The command fails below the limits. Arguments: names of the pictures to draw, all by
default.
"""
import pathlib
import sys

import numpy as np
from PIL import Image

import escenas
import paisajes

DESTINO = pathlib.Path(__file__).resolve().parents[2] / "resources" / "muestras"
REJILLA = 10
PUNTOS = 12
MINIMO_DESVIACION = 9.0
MINIMA_DIFERENCIA = 15.0
MAXIMO_TOTAL = 4_000_000

IMAGENES = {
    "Azulejos.jpg": escenas.Azulejos,
    "Bodegon.jpg": escenas.Bodegon,
    "Ciudad.jpg": paisajes.Ciudad,
    "Cometas.jpg": paisajes.Cometas,
    "Constelaciones.bmp": escenas.Constelaciones,
    "Globos.jpg": paisajes.Globos,
    "Jardin.jpg": escenas.Jardin,
    "Mapa.jpg": paisajes.Mapa,
    "Montes.jpg": paisajes.Montes,
    "Peces.jpg": escenas.Peces,
    "Puerto.jpg": paisajes.Puerto,
    "Tapiz.bmp": escenas.Tapiz,
    "Vidriera.jpg": escenas.Vidriera,
}


def Mide(ruta):
    """(smallest spread within a piece, smallest difference between two pieces)."""
    a = np.asarray(Image.open(ruta).convert("RGB"))
    alto, ancho = a.shape[0] // REJILLA, a.shape[1] // REJILLA
    desviaciones, celdas = [], []
    for j in range(REJILLA):
        for i in range(REJILLA):
            c = a[j * alto:(j + 1) * alto, i * ancho:(i + 1) * ancho]
            desviaciones.append(c.reshape(-1, 3).std(axis=0).mean())
            chica = Image.fromarray(c).resize((PUNTOS, PUNTOS), Image.BOX)
            celdas.append(np.asarray(chica, dtype=np.float32).ravel())
    m = np.stack(celdas)
    d = np.sqrt(((m[:, None, :] - m[None, :, :]) ** 2).mean(axis=2))
    np.fill_diagonal(d, 1e9)
    return min(desviaciones), d.min()


def main():
    DESTINO.mkdir(parents=True, exist_ok=True)
    pedidas = sys.argv[1:] or list(IMAGENES)
    faltas = 0
    print("picture               size        bytes   spread  difference")
    for nombre in pedidas:
        ruta = DESTINO / nombre
        imagen = IMAGENES[nombre]()
        imagen.save(ruta, **({"quality": 90, "optimize": True} if nombre.endswith("jpg") else {}))
        desviacion, diferencia = Mide(ruta)
        bien = (desviacion >= MINIMO_DESVIACION and diferencia >= MINIMA_DIFERENCIA
                and 320 <= imagen.width <= 1024 and 240 <= imagen.height <= 768)
        faltas += not bien
        print("%-20s %4d x %-4d %8d %8.1f %11.1f%s"
              % (nombre, imagen.width, imagen.height, ruta.stat().st_size, desviacion, diferencia,
                 "" if bien else "   FAULT"))
    total = sum(p.stat().st_size for p in DESTINO.iterdir())
    print("total %d bytes" % total)
    return 1 if faltas or total > MAXIMO_TOTAL else 0


if __name__ == "__main__":
    sys.exit(main())
