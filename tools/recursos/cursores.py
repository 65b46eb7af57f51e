#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the twelve pointers, 32x32 with alpha, and puntos.txt, their hot spots.

The hands are skeletons of thick round strokes: drawn once wide in the outline colour and once
narrower in the skin colour they give one clean outline. The SVG of each pointer is written to
resources/fuentes/cursores as well, so that it can be looked at or touched up by hand.
"""
import svg

LADO = 32
CONTORNO = "#12286b"
BLANCO = "#ffffff"
SOMBRA = "#c9d4ee"
VERDE, VERDE_OSCURO = "#3fb34a", "#0b4a1b"
ROJO, ROJO_OSCURO = "#e5483a", "#6b0d0a"

# (x0, y0, x1, y1, width) of each stroke, and the outline of the palm.
ABIERTA = {
    "trazos": [(10.6, 20.5, 5.0, 15.2, 4.3), (11.8, 17.5, 10.3, 7.0, 4.0),
               (15.8, 17.0, 15.7, 4.4, 4.0), (19.8, 17.5, 21.0, 5.8, 4.0),
               (23.2, 19.0, 25.9, 10.0, 3.8)],
    "palma": "M9.9 17 L25.2 17 L24.6 22 Q23.6 26 21.6 27.6 L13.6 27.6 Q10.4 24.4 8.9 20.6 Z",
    "lineas": "M13.7 16.6 V13.4 M17.8 16.2 V13 M21.6 16.8 L21.9 13.8",
}
CERRADA = {
    "trazos": [(10.2, 16.0, 10.6, 12.9, 4.3), (14.5, 16.0, 14.6, 11.7, 4.3),
               (18.8, 16.0, 18.8, 11.9, 4.3), (22.8, 17.0, 22.8, 13.6, 4.1),
               (8.8, 20.2, 7.6, 17.4, 4.3)],
    "palma": "M8.1 15.6 L24.9 15.6 L24.7 21.6 Q23.8 25.6 21.6 27.6 L13.4 27.6 Q9.6 24.6 7.8 20.6 Z",
    "lineas": "M12.5 17 V12.8 M16.7 17 V12.4 M20.8 17.2 V13.4 "
              "M9.4 18.2 L15.6 18.2 Q17.2 19.8 15.4 21.4 L12.6 21.6",
}
INDICE = {
    "trazos": [(10.2, 17.0, 10.0, 4.2, 4.0), (14.4, 17.0, 14.3, 13.2, 4.1),
               (18.5, 17.0, 18.4, 13.8, 4.1), (22.3, 18.0, 22.2, 15.2, 3.9),
               (8.6, 21.6, 5.0, 17.4, 4.2)],
    "palma": "M8.2 16 L24.2 16.6 L24.1 22 Q23.2 25.8 21.2 27.6 L12.6 27.6 Q9.2 25 7.0 20.8 Z",
    "lineas": "M12.3 16.6 V13.4 M16.4 16.8 V14 M20.4 17.6 V15.4",
}


def Mano(m, relleno=BLANCO, contorno=CONTORNO, pliegue=None):
    def trazos(extra, color):
        return "".join(
            '<path d="M%g %g L%g %g" stroke="%s" stroke-width="%g"/>' % (a, b, c, d, color, w + extra)
            for a, b, c, d, w in m["trazos"])
    return (
        '<g fill="none" stroke-linecap="round" stroke-linejoin="round">'
        + trazos(2.7, contorno)
        + '<path d="%s" fill="%s" stroke="%s" stroke-width="4.4"/>' % (m["palma"], contorno, contorno)
        + trazos(0, relleno)
        + '<path d="%s" fill="%s" stroke="%s" stroke-width="1.7"/>' % (m["palma"], relleno, relleno)
        + '<path d="%s" stroke="%s" stroke-width="1.15"/>' % (m["lineas"], pliegue or contorno)
        + "</g>")


def Chapa(color, oscuro, dibujo):
    """Round badge at the lower right corner with a white sign in it."""
    return ('<circle cx="24.6" cy="24.6" r="6.4" fill="%s" stroke="#fff" stroke-width="1.5"/>'
            '<circle cx="24.6" cy="24.6" r="5.6" fill="none" stroke="%s" stroke-width=".8"/>'
            '<path d="%s" fill="none" stroke="#fff" stroke-width="2" stroke-linecap="round" '
            'stroke-linejoin="round"/>' % (color, oscuro, dibujo))


BIEN = "M21.6 24.8 L23.9 27 L27.8 22.4"
MAL = "M22.3 22.3 L26.9 26.9 M26.9 22.3 L22.3 26.9"


def Flecha(giro):
    """Broad arrow, pointing north, turned by giro degrees about the middle."""
    return ('<g transform="rotate(%d 16 16)">'
            '<path d="M16 3.2 L26.4 14.4 H20.6 V28 H11.4 V14.4 H5.6 Z" fill="#fff" '
            'stroke="%s" stroke-width="2" stroke-linejoin="round"/>'
            '<path d="M16 6.4 L21.6 12.4 H18.6 V26 H16 Z" fill="%s"/></g>' % (giro, CONTORNO, SOMBRA))


CRUZ = ('<path d="M16 1.2 L21.2 8 H18.5 V13.5 H24 V10.8 L30.8 16 L24 21.2 V18.5 H18.5 V24 '
        'H21.2 L16 30.8 L10.8 24 H13.5 V18.5 H8 V21.2 L1.2 16 L8 10.8 V13.5 H13.5 V8 H10.8 Z" '
        'fill="#fff" stroke="%s" stroke-width="1.8" stroke-linejoin="round"/>' % CONTORNO)
PROHIBIDO = ('<circle cx="16" cy="16" r="11" fill="#fff" fill-opacity=".55"/>'
             '<g fill="none"><circle cx="16" cy="16" r="10.6" stroke="#fff" stroke-width="7.4"/>'
             '<circle cx="16" cy="16" r="10.6" stroke="#6b0d0a" stroke-width="5.6"/>'
             '<path d="M8.8 8.8 L23.2 23.2" stroke="#6b0d0a" stroke-width="5.2"/>'
             '<circle cx="16" cy="16" r="10.6" stroke="#e0402f" stroke-width="3.8"/>'
             '<path d="M8.9 8.9 L23.1 23.1" stroke="#e0402f" stroke-width="3.6"/></g>')
TUTOR = ('<path d="M3 2.6 L3 21.4 L7.8 17 L11 24.2 L15 22.4 L11.8 15.4 L18.2 15 Z" fill="#fff" '
         'stroke="%s" stroke-width="1.9" stroke-linejoin="round"/>'
         '<circle cx="22.8" cy="21.6" r="8.2" fill="#f6b73c" stroke="#fff" stroke-width="1.2"/>'
         '<circle cx="22.8" cy="21.6" r="7.4" fill="none" stroke="%s" stroke-width="1.5"/>'
         '<path d="M20 19.7 Q20 16.9 22.9 16.9 Q25.8 16.9 25.8 19.4 Q25.8 21.2 22.9 22.2 V23.4" '
         'fill="none" stroke="%s" stroke-width="2.1" stroke-linecap="round" '
         'stroke-linejoin="round"/><circle cx="22.9" cy="26.3" r="1.35" fill="%s"/>'
         % ((CONTORNO,) * 4))

# Name: (drawing, hot spot).
PUNTEROS = {
    "cruzflechas": (CRUZ, (16, 16)),
    "flechaest": (Flecha(90), (16, 16)),
    "flechanor": (Flecha(0), (16, 16)),
    "flechaoes": (Flecha(270), (16, 16)),
    "flechasur": (Flecha(180), (16, 16)),
    "manoabierta": (Mano(ABIERTA), (16, 16)),
    "manocerrada": (Mano(CERRADA), (16, 16)),
    "manoindice": (Mano(INDICE), (10, 2)),
    "manoroja": (Mano(ABIERTA, ROJO, ROJO_OSCURO) + Chapa("#b3160f", ROJO_OSCURO, MAL), (16, 16)),
    "manoverde": (Mano(ABIERTA, VERDE, VERDE_OSCURO) + Chapa("#14792a", VERDE_OSCURO, BIEN), (16, 16)),
    "prohibido": (PROHIBIDO, (16, 16)),
    "puntutor": (TUTOR, (3, 2)),
}


def main():
    lineas = []
    for nombre, (dibujo, (x, y)) in PUNTEROS.items():
        texto = ('<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" '
                 'viewBox="0 0 32 32">%s</svg>\n' % dibujo)
        fuente = svg.FUENTES / "cursores" / (nombre + ".svg")
        fuente.parent.mkdir(parents=True, exist_ok=True)
        fuente.write_text(texto, encoding="utf-8")
        imagen = svg.Rinde(texto, LADO, LADO)
        assert imagen.getpixel((x, y))[3] > 100, nombre + ": its hot spot is transparent"
        svg.Guarda(imagen, "cursores/%s.png" % nombre)
        lineas.append("%s %d %d\n" % (nombre, x, y))
    (svg.RECURSOS / "cursores" / "puntos.txt").write_text("".join(lineas), encoding="ascii")


if __name__ == "__main__":
    main()
