#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Builds the help: resources/ayuda/*.html and their pictures, from resources/fuentes/ayuda/*.txt.

A source file is a chapter: "# Chapter", then pages "=== topic | title | related topics" followed by
HTML of the kind that a rich text view shows. In the text, [[topic]] or [[topic|words]] is a link, and
{name} or {name:variant} a picture (see IMAGENES below).
"""
import re

from PIL import Image

import botones
import svg

FUENTES = svg.FUENTES / "ayuda"
DESTINO = svg.RECURSOS / "ayuda"
PANTALLAS = svg.RAIZ / "docs" / "img"

ESTILO = """
body { color: #241c18; background-color: #fbf3e2; }
h1 { color: #1b3f94; font-size: x-large; margin-top: 6px; margin-bottom: 4px; }
h2 { color: #b2513c; font-size: large; margin-top: 14px; margin-bottom: 4px; }
p { margin-top: 6px; margin-bottom: 6px; }
li { margin-bottom: 3px; }
a { color: #1b3f94; }
table { margin-top: 6px; margin-bottom: 8px; }
""".strip()

ORDENES = [("personalizar", 2111, "Personalizar"), ("ayuda", 1020, "Ayuda"), ("tutor", 2145, "Tutor de juego"),
           ("estadisticas", 2150, "Estadísticas"), ("historico", 2161, "Histórico de puzzles"),
           ("salir", 2170, "Salir"), ("barajar", 2180, "Barajar las piezas"), ("modelo", 2182, "Mostrar modelo"),
           ("ordenar", 2184, "Ordenar las piezas"), ("colocadas", 2186, "Mostrar piezas colocadas"),
           ("ocultas", 2188, "Mostrar piezas ocultas"), ("resolver", 2189, "Resolver el puzzle")]
TECLAS = {"interruptor": (6, 6, 39, 13), "unoatras": (4, 25, 21, 13), "unoadelante": (25, 25, 21, 13),
          "autoatras": (4, 41, 21, 13), "autoadelante": (25, 41, 21, 13), "restaura": (14, 57, 21, 13)}


# --- Pictures.

def Pantalla(nombre):
    """The real program at play, as tools/capturas pictures it."""
    return Image.open(PANTALLAS / (nombre + ".png")).convert("RGB")


def Cenefa():
    """Band of tiles for the head of a page."""
    careta = svg.Lee("careta.svg")
    patron = re.search(r"<pattern.*?</pattern>", careta, re.S).group(0)
    texto = ('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 1160 60"><defs>%s</defs>'
             '<rect width="1160" height="60" fill="url(#azulejo)"/></svg>' % patron)
    return svg.Rinde(texto, 464, 24).convert("RGB")


def Dibuja():
    def Guarda(imagen, nombre):
        svg.Guarda(imagen, "ayuda/imagenes/%s.png" % nombre)
    Guarda(Cenefa(), "cenefa")
    for nombre, captura in (("movil", "moviles"), ("deslizante", "deslizantes"), ("tangram", "tangram")):
        imagen = Pantalla(captura)
        Guarda(imagen.resize((440, 330), Image.LANCZOS).quantize(128, dither=Image.NONE), nombre + "_grande")
        Guarda(imagen.resize((144, 108), Image.LANCZOS).quantize(128, dither=Image.NONE), nombre)
    for nombre, captura in (("mesa", "estreno"), ("colores", "colores"), ("teclado", "teclado")):
        Guarda(Pantalla(captura).resize((440, 330), Image.LANCZOS).quantize(128, dither=Image.NONE), nombre)
    for nombre in [o[0] for o in ORDENES] + ["cargar", "guardar", "borrar"]:
        Guarda(botones.Baldosa(nombre).resize((24, 24), Image.LANCZOS).convert("RGB"), "boton_" + nombre)
    for nombre, _, _ in ORDENES:
        Guarda(botones.Baldosa(nombre).resize((32, 32), Image.LANCZOS).convert("RGB"), "tira_" + nombre)
    doble = svg.Rinde(svg.Lee("vario.svg").replace('fill="#c0c0c0"', 'fill="#fbf3e2"'), 684, 156, 4).convert("RGB")
    Guarda(doble.crop((0, 0, 100, 150)), "grabadora")
    for k in range(8):
        Guarda(doble.crop((204 + 60 * k, 0, 262 + 60 * k, 58)), "forma_%d" % k)
    for nombre, (x, y, w, h) in TECLAS.items():
        Guarda(doble.crop((2 * x, 2 * y, 2 * (x + w), 2 * (y + h))), "tecla_" + nombre)


# --- Pages.

def LeeCapitulos():
    capitulos = []
    for ruta in sorted(FUENTES.glob("*.txt")):
        cabeza, *hojas = re.split(r"^=== ", ruta.read_text(encoding="utf-8"), flags=re.M)
        lista = []
        for hoja in hojas:
            datos, cuerpo = hoja.split("\n", 1)
            tema, titulo, vease = [c.strip() for c in datos.split("|")]
            lista.append((int(tema), titulo, [int(v) for v in vease.split()], cuerpo.strip()))
        capitulos.append((cabeza.strip().lstrip("# "), lista))
    return capitulos


def Tira():
    filas = []
    for k in range(0, len(ORDENES), 3):
        filas.append("<tr>%s</tr>" % "".join(
            '<td><img src="imagenes/tira_%s.png"></td><td valign="middle">[[%d|%s]]</td>' % o
            for o in ORDENES[k:k + 3]))
    return '<table cellspacing="4" width="100%%">%s</table>' % "".join(filas)


def Imagen(clave):
    nombre, _, variante = clave.partition(":")
    if nombre == "tira":
        return Tira()
    ruta = {"b": "boton_" + variante, "f": "forma_" + variante, "g": "tecla_" + variante}.get(
        nombre, nombre + ("_" + variante if variante else ""))
    alineada = ' align="middle"' if nombre == "b" else ""
    return '<img src="imagenes/%s.png"%s>' % (ruta, alineada)


def Compone(texto, titulos):
    texto = re.sub(r"\{([a-z]+(?::[a-z0-9]+)?)\}", lambda m: Imagen(m.group(1)), texto)
    return re.sub(r"\[\[(\d+)(?:\|([^\]]*))?\]\]",
                  lambda m: '<a href="%s.html">%s</a>' % (m.group(1), m.group(2) or titulos[int(m.group(1))]), texto)


def Hoja(titulo, cuerpo):
    return ('<!DOCTYPE html>\n<html lang="es">\n<head>\n<meta charset="utf-8">\n<title>%s</title>\n<style>\n%s\n'
            '</style>\n</head>\n<body>\n<p><img src="imagenes/cenefa.png" width="464" height="24"></p>\n%s\n'
            '</body>\n</html>\n' % (titulo, ESTILO, cuerpo))


def main():
    Dibuja()
    capitulos = LeeCapitulos()
    titulos = {tema: titulo for _, hojas in capitulos for tema, titulo, _, _ in hojas}
    for vieja in DESTINO.glob("*.html"):
        vieja.unlink()
    indice = []
    for capitulo, hojas in capitulos:
        indice.append("<h2>%s</h2>\n<ul>" % capitulo)
        for tema, titulo, vease, cuerpo in hojas:
            pie = " · ".join("[[%d]]" % v for v in vease)
            texto = ('<h1>%s</h1>\n%s\n<hr>\n<p><b>Vea también:</b> %s</p>\n<p><a href="inicio.html">Índice de la '
                     'ayuda</a></p>' % (titulo, cuerpo, pie))
            (DESTINO / ("%d.html" % tema)).write_text(Hoja(titulo, Compone(texto, titulos)), encoding="utf-8")
            indice.append("<li>[[%d]]</li>" % tema)
        indice.append("</ul>")
    portada = ('<h1>Ayuda de Tessario</h1>\n<p>Puzzles de piezas móviles, puzzles de piezas deslizantes y Tangram. Si '
               'es la primera vez que juega, empiece por la [[1020|descripción general]].</p>\n' + "\n".join(indice))
    (DESTINO / "inicio.html").write_text(Hoja("Ayuda de Tessario", Compone(portada, titulos)), encoding="utf-8")
    print("%d help pages" % (len(titulos) + 1))


if __name__ == "__main__":
    main()
