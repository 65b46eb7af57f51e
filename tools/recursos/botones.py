#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes BmpBoton.png, BmpVario.png, Careta.png and the icon from their SVG sources.

Each command is a tile: the blank tile baldosa.svg with the sign of the command over it.
"""
import re

from PIL import Image

import svg

PASO = 49
TERRACOTA = (178, 81, 60)   # colour of the strip
# The desktop's icon: sizes in pixels; the small ones from a drawing with fewer lines.
ICONOS = [16, 22, 24, 32, 48, 64, 128, 256, 512]
ICONO_CHICO_HASTA = 24
LECHO = '<rect width="48" height="48" fill="#b2513c"/>'
# Outside the strip a tile lies on the cream of the windows, with round corners.
LECHO_CREMA = ('<rect width="48" height="48" fill="#f4e9d2"/>'
               '<rect width="48" height="48" rx="4" fill="#b2513c"/>')
FILAS = [
    ["barajar", "personalizar", "tutor", "estadisticas", "historico", "ayuda", "salir", "modelo",
     "ocultas", "colocadas", "ordenar", "resolver"],
    ["si", "no", "cargar", "guardar", "borrar", None, "ayuda", "salir"],
]


def Interior(texto):
    """What stands between the outer tags of an SVG."""
    return re.search(r"<svg[^>]*>(.*)</svg>", texto, re.S).group(1)


def Baldosa(nombre, lecho=LECHO):
    texto = svg.Lee("botones/baldosa.svg").replace(LECHO, lecho)
    if nombre:
        texto = texto.replace("</svg>", Interior(svg.Lee("botones/%s.svg" % nombre)) + "</svg>")
    return svg.Rinde(texto, 48, 48)


def Botones():
    hoja = Image.new("RGB", (12 * PASO - 1, 2 * PASO - 1), TERRACOTA)
    for y, fila in enumerate(FILAS):
        for x, nombre in enumerate(fila):
            if nombre:
                hoja.paste(Baldosa(nombre, LECHO_CREMA if y else LECHO).convert("RGB"), (x * PASO, y * PASO))
    return hoja


def Iconos():
    grande = (svg.RECURSOS / "icono.svg").read_text(encoding="utf-8")
    chico = svg.Lee("icono-chico.svg")
    for lado in ICONOS:
        texto = chico if lado <= ICONO_CHICO_HASTA else grande
        svg.Guarda(svg.Rinde(texto, lado, lado), "iconos/%d.png" % lado)


def main():
    Iconos()
    svg.Guarda(Botones(), "imagenes/BmpBoton.png")
    svg.Guarda(svg.Rinde(svg.Lee("vario.svg"), 342, 78).convert("RGB"), "imagenes/BmpVario.png")
    svg.Guarda(svg.Rinde(svg.Lee("careta.svg"), 480, 300, 4).convert("RGB"), "imagenes/Careta.png")
    svg.Guarda(svg.Rinde((svg.RECURSOS / "icono.svg").read_text(encoding="utf-8"), 128, 128),
               "imagenes/icono.png")


if __name__ == "__main__":
    main()
