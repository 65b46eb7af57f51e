#!/usr/bin/python3
"""Builds the help: resources/ayuda/*.html and their pictures, from resources/fuentes/ayuda/*.txt.

A source file is a chapter: "# Chapter", then pages "=== topic | title | related topics" followed by
HTML of the kind that a rich text view shows. In the text, [[topic]] or [[topic|words]] is a link, and
{name} or {name:variant} a picture (see IMAGENES below).
"""
import re

from PIL import Image, ImageDraw

import botones
import svg

FUENTES = svg.FUENTES / "ayuda"
DESTINO = svg.RECURSOS / "ayuda"

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

def Movil():
    """The first sample picture half put together, with loose pieces round it."""
    lado, n, m = 96, 5, 4
    foto = Image.open(svg.RECURSOS / "muestras" / "Azulejos.jpg").convert("RGB")
    foto = foto.resize((lado * n, lado * m), Image.LANCZOS)
    mesa = Image.new("RGB", (960, 600), (0, 0, 128))
    sueltas = {(4, 0): (560, 60, 90), (4, 1): (770, 30, 0), (3, 3): (610, 250, 180), (4, 3): (800, 210, 0),
               (2, 3): (700, 420, 270), (4, 2): (520, 440, 0), (0, 3): (240, 470, 90)}
    salto = int(lado * .22)

    def Pieza(i, j):
        caja = Image.new("L", (lado + 2 * salto, lado + 2 * salto), 0)
        d = ImageDraw.Draw(caja)
        d.rectangle([salto, salto, salto + lado - 1, salto + lado - 1], fill=255)
        medio, r = salto + lado / 2, lado * .13
        for x, y, dx, dy, borde, fuera in (
                (salto, medio, -1, 0, i == 0, (i + j) % 2), (salto + lado, medio, 1, 0, i == n - 1, (i + j) % 2),
                (medio, salto, 0, -1, j == 0, (i + j + 1) % 2), (medio, salto + lado, 0, 1, j == m - 1, (i + j + 1) % 2)):
            if not borde:
                s = 1 if fuera else -1
                cx, cy = x + s * dx * r * .6, y + s * dy * r * .6
                d.ellipse([cx - r, cy - r, cx + r, cy + r], fill=255 if fuera else 0)
        trozo = Image.new("RGB", caja.size, (0, 0, 128))
        trozo.paste(foto.crop((i * lado - salto, j * lado - salto, (i + 1) * lado + salto, (j + 1) * lado + salto)))
        sombra = caja.point(lambda v: v // 2)
        return trozo, caja, sombra

    for suelta in (False, True):
        for j in range(m):
            for i in range(n):
                if ((i, j) in sueltas) != suelta:
                    continue
                trozo, caja, sombra = Pieza(i, j)
                x, y, giro = sueltas.get((i, j), (i * lado, j * lado, 0))
                if suelta:
                    trozo, caja, sombra = (k.rotate(giro) for k in (trozo, caja, sombra))
                    mesa.paste((0, 0, 40), (x + 4, y + 6), sombra)
                    mesa.paste(trozo, (x, y), caja)
                else:
                    mesa.paste(trozo, (x - salto + 14, y - salto + 14), caja)
    return mesa


def Deslizante():
    numeros = [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0, 11, 13, 14, 15, 12]
    partes = ['<rect width="320" height="200" fill="#800000" fill-opacity="0"/><rect width="320" height="200" '
              'fill="#000080"/><defs><linearGradient id="g" x1="0" y1="0" x2="0.5" y2="1"><stop offset="0" '
              'stop-color="#4caf5f"/><stop offset="1" stop-color="#157a2a"/></linearGradient></defs>']
    for k, n in enumerate(numeros):
        x, y = 72 + 44 * (k % 4), 12 + 44 * (k // 4)
        if n:
            partes.append('<rect x="%d" y="%d" width="43" height="43" rx="2" fill="url(#g)" stroke="#0b4a1b"/>'
                          '<path d="M%d %d v-42 h42" fill="none" stroke="#9fe0ac" stroke-width="2"/>'
                          '<text x="%g" y="%d" font-family="Liberation Sans" font-weight="bold" font-size="22" '
                          'text-anchor="middle" fill="#fff">%d</text>' % (x, y, x + 1, y + 43, x + 21.5, y + 30, n))
    partes.append('<path d="M199 117.5 h-18 v-8 l-15 12 l15 12 v-8 h18 z" fill="#ffd24a" stroke="#5a3a00" '
                  'stroke-linejoin="round"/>')
    return svg.Rinde('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 320 200">%s</svg>' % "".join(partes),
                     320, 200).convert("RGB")


TANGRAM = [([(0, 0), (4, 0), (2, 2)], "#2f62c4"), ([(0, 0), (2, 2), (0, 4)], "#c8552f"),
           ([(4, 4), (2, 4), (4, 2)], "#2e9a4b"), ([(4, 0), (4, 2), (3, 1)], "#f2b33d"),
           ([(2, 2), (1, 3), (3, 3)], "#8a4ac0"), ([(2, 2), (3, 1), (4, 2), (3, 3)], "#d8402e"),
           ([(0, 4), (1, 3), (3, 3), (2, 4)], "#1fa0b0")]


def Tangram():
    """The seven pieces, a little apart."""
    partes = ['<rect width="320" height="200" fill="#000080"/>']
    for puntos, color in TANGRAM:
        cx = sum(p[0] for p in puntos) / len(puntos) - 2
        cy = sum(p[1] for p in puntos) / len(puntos) - 2
        texto = " ".join("%.1f,%.1f" % (160 + (x - 2) * 38 + cx * 9, 100 + (y - 2) * 38 + cy * 9) for x, y in puntos)
        partes.append('<polygon points="%s" fill="%s" stroke="#fff" stroke-width="1.6" stroke-linejoin="round"/>'
                      % (texto, color))
    return svg.Rinde('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 320 200">%s</svg>' % "".join(partes),
                     320, 200).convert("RGB")


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
    for nombre, imagen in (("movil", Movil()), ("deslizante", Deslizante()), ("tangram", Tangram())):
        Guarda(imagen.resize((320, 200), Image.LANCZOS).quantize(160, dither=Image.NONE), nombre + "_grande")
        Guarda(imagen.resize((144, 90), Image.LANCZOS).quantize(128, dither=Image.NONE), nombre)
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
