# SPDX-License-Identifier: GPL-3.0-or-later
"""Sample pictures: mosaic city, kites, balloons, old map, mountains, harbour."""
import math

import numpy as np

import lienzo
from lienzo import AImagen, Dibujo, Escala, Mezcla


def _Casa(d, x, y, w, h, pared, tejado, ventana):
    borde = 'stroke="#3a2014" stroke-width="1.4" stroke-linejoin="round"'
    d.Rect(x, y - h, w, h, pared, borde)
    d.Rect(x + w * .72, y - h, w * .28, h, "#3a2014", 'fill-opacity=".16"')
    clase = d.g.randrange(3)
    if clase == 0:
        d.Poli([(x - 4, y - h), (x + w / 2, y - h - w * .34), (x + w + 4, y - h)], tejado, borde)
    elif clase == 1:
        d.Poli([(x - 3, y - h), (x + 7, y - h - 14), (x + w - 7, y - h - 14), (x + w + 3, y - h)], tejado,
               borde)
        for k in range(int(w / 7)):
            d.Linea([(x + 4 + 7 * k, y - h), (x + 8 + 6 * k, y - h - 13)], "#5a2413", 1)
    else:
        d.Rect(x - 3, y - h - 6, w + 6, 7, tejado, borde)
    columnas, filas = max(1, int(w / 19)), max(1, int(h / 25))
    for i in range(columnas):
        for j in range(filas):
            vx = x + (i + .5) * w / columnas - 5
            vy = y - h + 7 + j * 25
            d.Rect(vx, vy, 10, 14, d.Varia(ventana if d.g.random() < .7 else "#f6d27a", 16), borde)
            d.Linea([(vx + 5, vy), (vx + 5, vy + 14)], "#f4ead4", 1)
            if d.g.random() < .3:
                d.Rect(vx - 1, vy + 13, 12, 4, d.g.choice(["#d8402e", "#3f9a3c", "#e0609a"]))


def _Reparte(d, y, alto, ancho_total, colores, tejados, ventana):
    x = -10.0
    while x < ancho_total + 10:
        w = d.g.uniform(34, 72)
        t = x / ancho_total + d.g.uniform(-.12, .12)
        _Casa(d, x, y + d.g.uniform(0, 8), w, alto * d.g.uniform(.7, 1.25), d.Varia(Escala(colores, t), 14),
              d.Varia(d.g.choice(tejados), 14), ventana)
        x += w + d.g.uniform(-4, 5)


# --- Ciudad: domes and towers in small stones.

def Ciudad():
    w, h = 800, 600
    d = Dibujo(w, h, 101)
    d.Rect(0, 0, w, h, "#88b0e0")
    for k in range(46):      # sky in rings round the sun, colour by ring and side
        r = 760 - 16 * k
        c = Escala(["#1b3f94", "#3f7ad0", "#8fc0ea", "#f4e0a8", "#f5a84a", "#e8603a"], k / 46)
        d.Circ(560, 170, r, d.Varia(c, 18))
    for k in range(36):
        a = k * math.pi / 18
        d.Poli([(560, 170), (560 + 900 * math.cos(a), 170 + 900 * math.sin(a)),
                (560 + 900 * math.cos(a + .085), 170 + 900 * math.sin(a + .085))],
               ["#fff0b8", "#c8402f", "#2f62c4"][k % 3], 'fill-opacity=".34"')
    d.Circ(560, 170, 58, "#f8d24a")
    d.Circ(560, 170, 40, "#fdf0a8")
    for x, y, r in ((130, 110, 34), (300, 70, 26), (700, 260, 30), (60, 240, 26), (420, 220, 24)):
        for k in range(6):
            d.Circ(x + (k - 2.5) * r * .7, y - (k % 2) * r * .4, r * .62, d.Varia("#f6f0e6", 16))
    _Reparte(d, 430, 150, w, ["#7a8fc0", "#a890b8", "#c89a9a"], ["#5a6aa0", "#8a5a7a"], "#2a3a6a")
    torres = [(90, 300, 44, "#d8b07a"), (250, 250, 60, "#e8c890"), (420, 200, 78, "#f0d8a8"), (610, 260, 56, "#d89a6a"),
              (730, 310, 46, "#c8a8c0")]
    for k, (x, y, r, c) in enumerate(torres):
        cupula = ["#1f7a8a", "#2f62c4", "#c8552f", "#2e8a5a", "#7a4ab0"][k]
        d.Rect(x - r, y + r * .3, 2 * r, 300, c)
        for j in range(7):
            d.Rect(x - r, y + r * .3 + 42 * j, 2 * r, 9, d.Varia("#8a4a2a", 20))
        for i in range(-2, 3):
            for j in range(4):
                d.Rect(x + i * r * .38 - r * .11, y + r * .3 + 16 + 42 * j, r * .22, 22, d.Varia("#27407a", 24))
        d.Ruta("M%g %g C%g %g %g %g %g %g C%g %g %g %g %g %g Z"
               % (x - r * 1.05, y + r * .3, x - r * 1.25, y - r * .6, x - r * .2, y - r * .8, x, y - r * 1.35,
                  x + r * .2, y - r * .8, x + r * 1.25, y - r * .6, x + r * 1.05, y + r * .3), cupula)
        for i in range(-2, 3):
            d.Ruta("M%g %g Q%g %g %g %g" % (x + i * r * .42, y + r * .3, x + i * r * .5, y - r * .5, x, y - r * 1.2),
                   "none", 'stroke="%s" stroke-width="7"' % ["#f2c14e", "#f4ead4"][i % 2])
        d.Estrella(x, y - r * 1.5, 13, 5, .45, "#f8d24a")
    _Reparte(d, 520, 130, w, ["#e8b84a", "#f4ead4", "#e08a62", "#8fc0b0", "#f2d0a0", "#b0cdf0"],
             ["#a8322a", "#c8552f", "#7a2a14"], "#1b3f94")
    _Reparte(d, 600, 90, w, ["#c8552f", "#f8dfa2", "#5b8ae0", "#f4ead4", "#6aa86a", "#e8a0a0"],
             ["#7a2a14", "#a8481c", "#4a2a6a"], "#12286b")
    for k in range(26):
        x, y = d.g.uniform(0, w), d.g.uniform(520, 600)
        d.Circ(x, y, d.g.uniform(10, 20), d.Varia("#3f8a3c", 26))
    a = d.Imagen()
    a = a + .45 * (a - a.mean(axis=2, keepdims=True))     # stones are stronger in colour than paint
    return AImagen(lienzo.Grano(lienzo.Mosaico(lienzo.Tinte(a, 103, 26), 7, 105, (104, 74, 58), 10), 107, 4))


# --- Cometas: kites over ploughed hills.

def _Cola(d, x, y, largo, giro, color):
    p = []
    for t in range(24):
        s = largo * t / 23
        p.append((x + math.cos(giro) * s + 11 * math.sin(s / 17) * math.sin(giro + 1),
                  y + math.sin(giro) * s + 11 * math.sin(s / 17)))
    d.Linea(p, "#3a2014", 1.8)
    for k in range(3, 24, 4):
        a, b = p[k]
        c = d.Varia(color, 30)
        for f in (-1, 1):
            d.Poli([(a, b), (a + f * 11, b - 7), (a + f * 11, b + 7)], c, 'stroke="#3a2014" stroke-width="1"')


def _Cometa(d, x, y, s, giro, colores, clase):
    _Cola(d, x - math.sin(math.radians(giro)) * 62 * s, y + math.cos(math.radians(giro)) * 62 * s, 130 * s,
          math.radians(giro + 78), colores[0])
    d.Abre("translate(%g %g) rotate(%g) scale(%g)" % (x, y, giro, s))
    borde = 'stroke="#3a1a10" stroke-width="2" stroke-linejoin="round"'
    p = [(0, -56), (42, -12), (0, 64), (-42, -12)]
    for k in range(4):
        d.Poli([p[k], p[(k + 1) % 4], (0, -12)], colores[k % len(colores)], borde)
    if clase == 0:
        d.Estrella(0, -8, 22, 8, .5, colores[-1], 0, borde)
    elif clase == 1:
        d.Circ(0, -10, 19, colores[-1], borde)
        d.Circ(-7, -14, 3, "#201010")
        d.Circ(7, -14, 3, "#201010")
        d.Ruta("M-9 -5 Q0 5 9 -5", "none", borde)
    else:
        for k in range(4):
            d.Poli([(0, -48 + 26 * k), (13, -35 + 26 * k), (0, -22 + 26 * k), (-13, -35 + 26 * k)], colores[-1],
                   borde)
    d.Cierra()


def Cometas():
    w, h = 720, 540
    d = Dibujo(w, h, 111)
    d.Rect(0, 0, w, h, d.Degradado("cielo", ["#2f6ac8", "#6fb0e8", "#bfe0f4", "#fbe6b8"]))
    for k in range(820):     # wind in swirls
        x, y = d.g.uniform(-20, w), d.g.uniform(-10, 400)
        a = .7 * math.sin(x / 90 + y / 130) + .5 * math.cos(y / 60)
        c = Escala(["#1f52b0", "#4f92dc", "#a4d0f0", "#fff0cc", "#f8cf9a"], y / 400 + d.g.uniform(-.22, .22))
        c = Mezcla(c, Escala(["#5b6ad8", "#f4f8ff", "#3fb0c0"], x / w), .22)
        dx, dy = 22 * math.cos(a), 22 * math.sin(a)
        d.Ruta("M%g %g q%g %g %g %g t%g %g" % (x, y, dx - dy * .5, dy + dx * .3 - 6, dx * 1.3, dy * 1.3, dx, dy),
               "none", 'stroke="%s" stroke-width="%.1f" stroke-opacity=".8" stroke-linecap="round"'
               % (c, d.g.uniform(3, 8)))
    for k in range(48):      # whirls of the wind, each of its own colour
        x, y = 90 * (k % 8) + 45 + d.g.uniform(-24, 24), 62 * (k // 8) + 26 + d.g.uniform(-18, 18)
        r = d.g.uniform(16, 38)
        c = d.g.choice(["#fffaf0", "#ffe0b0", "#12409a", "#8fd8e8", "#f6b8c8", "#3f6ad0"])
        f = 1 if k % 2 else -1
        for v in range(3):
            p = [(x + f * (r - v * 7) * (1 - t / 34) * math.cos(t * .42 + v),
                  y + (r - v * 7) * .8 * (1 - t / 34) * math.sin(t * .42 + v)) for t in range(26)]
            d.Linea(p, d.Varia(c, 16), 4 - v * .6, 'stroke-linecap="round" stroke-opacity=".85"')
    lomas = [(360, ["#7aa8b8", "#9ac0a0"]), (395, ["#8ab05a", "#d8c05a"]), (440, ["#c8a03c", "#6a9a3c"]),
             (490, ["#4a8a34", "#c8753c"])]
    for n, (y0, colores) in enumerate(lomas):
        ph = n * 1.9
        def cumbre(x):
            return y0 + 26 * math.sin(x / 105 + ph) + 12 * math.sin(x / 41 + ph * 2)
        p = [(x, cumbre(x)) for x in range(0, w + 13, 12)]
        ident = "loma%d" % n
        d.Pon('<clipPath id="%s"><polygon points="%s"/></clipPath><g clip-path="url(#%s)">'
              % (ident, " ".join("%.0f,%.0f" % q for q in p + [(w, h), (0, h)]), ident))
        d.Rect(0, 300, w, 240, colores[0])
        for k in range(44):
            x = -100 + 24 * k + d.g.uniform(-5, 5)
            f = d.Varia(Mezcla(colores[k % 2], Escala(["#3f7a2c", "#e8d06a", "#a85a2c", "#5a8a6a"], (k * 7 % 11) / 11),
                               .42), 14)
            d.Ruta("M%g 560 Q%g 450 %g %g" % (x * 1.2 - 60, x + 30, 80 + x * .82, y0 - 50), "none",
                   'stroke="%s" stroke-width="%.1f"' % (f, d.g.uniform(7, 15)))
        d.Pon("</g>")
        d.Linea(p, "#2f4a1c", 2)
        for k in range(13):
            x = d.g.uniform(0, w)
            y, s = cumbre(x) + d.g.uniform(2, 18), .55 + .22 * n
            c = d.Varia(d.g.choice(["#2f6a2c", "#5a8a2c", "#a8642c", "#1f5a4a"]), 18)
            d.Elip(x, y - 15 * s, 10 * s, 17 * s, c, 'stroke="#1c3a14" stroke-width="1.5"')
            d.Linea([(x, y), (x, y - 14 * s)], "#4a2a10", 3 * s)
    for k in range(8):
        _Casa(d, 30 + 90 * k + d.g.uniform(-18, 18), 470 + d.g.uniform(0, 55), 44, 26, d.Varia("#f4ead4", 14),
              "#b8452a", "#27407a")
    cometas = [(120, 100, 1.1, -18, ["#d8402e", "#f8dfa2", "#d8402e", "#f2b33d", "#12286b"], 0),
               (300, 170, .8, 12, ["#2f62c4", "#f8f0dc", "#5b8ae0", "#f8f0dc", "#f2b33d"], 1),
               (470, 92, 1.25, -6, ["#f2b33d", "#c8552f", "#f2b33d", "#7a2a14", "#fff6e0"], 2),
               (630, 190, .95, 20, ["#2e9a4b", "#f8f0dc", "#8ad06a", "#f2c14e", "#c8552f"], 0),
               (210, 290, .7, -28, ["#8a4ac0", "#f4c0e0", "#c03a9a", "#f8f0dc", "#f8cf5a"], 1),
               (560, 320, .62, -14, ["#1fa0a0", "#f8dfa2", "#12286b", "#f8dfa2", "#d8402e"], 2),
               (52, 260, .55, 14, ["#f07a1f", "#fff0c8", "#d8402e", "#fff0c8", "#2f62c4"], 0),
               (392, 275, .5, 22, ["#d8402e", "#2f62c4", "#f8f0dc", "#f2b33d", "#ffffff"], 1)]
    for x, y, s, g, c, k in cometas:
        d.Ruta("M%g %g Q%g %g %g %g" % (x, y, x * .6 + 130, y + 190, 360 + (x - 360) * .35, 500), "none",
               'stroke="#f8f4e6" stroke-width="1.3" stroke-opacity=".85"')
    for c in cometas:
        _Cometa(d, *c)
    return AImagen(lienzo.Grano(lienzo.Ondula(lienzo.Tinte(d.Imagen(), 113, 14), 115, 1.6, 20), 117, 6))


# --- Globos: balloons over patchwork country.

def _Globo(d, x, y, r, colores):
    n = "g%d" % len(d.partes)
    forma = "M0 %g C%g %g %g %g %g %g A%g %g 0 1 0 %g %g C%g %g %g %g 0 %g Z" % (
        1.34 * r, .3 * r, 1.2 * r, .86 * r, .7 * r, .97 * r, .24 * r, r, r, -.97 * r, .24 * r,
        -.86 * r, .7 * r, -.3 * r, 1.2 * r, 1.34 * r)
    d.Abre("translate(%g %g)" % (x, y))
    for f in (-.18, .18):
        d.Linea([(f * r, 1.3 * r), (f * .7 * r, 1.62 * r)], "#3a2014", 1.5)
    d.Rect(-.17 * r, 1.6 * r, .34 * r, .24 * r, "#a8682c", 'stroke="#3a2014" stroke-width="1.6"')
    d.Pon('<clipPath id="%s"><path d="%s"/></clipPath><g clip-path="url(#%s)">' % (n, forma, n))
    d.Rect(-1.2 * r, -1.2 * r, 2.4 * r, 2.8 * r, colores[0])
    for k in range(6, -1, -1):
        d.Elip(0, .1 * r, r * (k + .5) / 6.5, 1.4 * r, colores[k % len(colores)])
    for k, (yy, q) in enumerate(((-.62, .1), (-.1, .14), (.42, .12))):
        d.Rect(-1.2 * r, yy * r, 2.4 * r, q * r, colores[(k + 1) % len(colores)], 'fill-opacity=".9"')
        for j in range(-5, 6):
            d.Estrella(j * .21 * r, (yy + q / 2) * r, .085 * r, 4 + k, .45, colores[(k + 2) % len(colores)])
    d.Elip(.5 * r, .2 * r, .75 * r, 1.5 * r, "#20103a", 'fill-opacity=".16"')
    d.Elip(-.42 * r, -.4 * r, .3 * r, .5 * r, "#ffffff", 'fill-opacity=".3"')
    d.Pon("</g>")
    d.Ruta(forma, "none", 'stroke="#3a1a20" stroke-width="2"')
    d.Cierra()


def Globos():
    w, h = 640, 480
    d = Dibujo(w, h, 121)
    d.Rect(0, 0, w, h, "#a8cdec")
    for k in range(420):
        x, y = d.g.uniform(-20, w), d.g.uniform(-10, 270)
        c = Escala(["#2f62c4", "#6aa0e8", "#f0c8d8", "#fbe0a8", "#f5a86a"], y / 265 + .25 * math.sin(x / 110))
        d.Elip(x, y, d.g.uniform(16, 46), d.g.uniform(4, 10), d.Varia(c, 16), 'fill-opacity=".7"')
    for k in range(3):
        p = [(x, 250 + 14 * k - 34 * abs(math.sin(x / (70 + 12 * k) + k * 2)) - 9 * math.sin(x / 17.0 + k))
             for x in range(-10, w + 20, 8)]
        d.Poli(p + [(w + 20, h), (-10, h)], ["#6a7ab8", "#7a6aa0", "#5a7a8a"][k], 'stroke="#3a3a6a" stroke-width="1.5"')
        for j in range(30):
            x, y = p[d.g.randrange(len(p))]
            d.Poli([(x, y), (x + 9, y + 18), (x - 2, y + 14), (x - 10, y + 20)], "#eef2fb", 'fill-opacity=".75"')
    filas = [(256 + 4.4 * k * (k + 3) * .55) for k in range(11)]
    paleta = ["#5a9a3c", "#d8b84a", "#8a5a2c", "#a8c85a", "#c8783c", "#3f7a4a", "#e8d890", "#7a9a5a"]
    for j in range(10):
        y0, y1 = filas[j], filas[j + 1] + 1
        x = -40.0
        while x < w + 40:
            a = d.g.uniform(34, 70) * (1 + j * .16)
            s = d.g.uniform(-8, 8)
            c = d.Varia(d.g.choice(paleta), 16)
            d.Poli([(x, y0), (x + a, y0), (x + a + s, y1), (x + s, y1)], c, 'stroke="#2f4a1c" stroke-width="1.6"')
            rayas, m = d.g.randrange(4), Mezcla(c, d.g.choice(["#1f3a10", "#fff4c8"]), .45)
            for k in range(int(a / 8)):
                if rayas == 0:
                    d.Linea([(x + 8 * k + 3, y0 + 1), (x + 8 * k + 3 + s, y1 - 1)], m, 2.4)
                elif rayas == 1:
                    d.Circ(x + 8 * k + 4, (y0 + y1) / 2 + d.g.uniform(-8, 8), 3, m)
                elif rayas == 2 and k < (y1 - y0) / 6:
                    d.Linea([(x + 2, y0 + 6 * k + 3), (x + a - 2, y0 + 6 * k + 3)], m, 2.2)
            x += a
    d.Ruta("M-10 470 Q120 380 220 396 T400 330 T500 290 T660 268", "none", 'stroke="#2f5a9a" stroke-width="22"')
    d.Ruta("M-10 470 Q120 380 220 396 T400 330 T500 290 T660 268", "none", 'stroke="#6ab0e8" stroke-width="15"')
    d.Ruta("M-10 466 Q120 378 220 393 T400 328 T500 288 T660 266", "none",
           'stroke="#dff0ff" stroke-width="3" stroke-dasharray="22 14"')
    for k in range(14):
        x, y = d.g.uniform(0, w), d.g.uniform(290, 470)
        _Casa(d, x, y, 26, 17, "#f4ead4", "#b8452a", "#27407a")
    for x, y, r, c in ((150, 118, 82, ["#d8402e", "#f8dfa2", "#2f62c4", "#f2b33d"]),
                       (392, 92, 62, ["#2f62c4", "#f8f0dc", "#f2b33d", "#c8552f"]),
                       (560, 150, 70, ["#f2b33d", "#7a2a9a", "#f8f0dc", "#2e9a4b"]),
                       (288, 250, 56, ["#2e9a4b", "#f8dfa2", "#d8402e", "#12286b"]),
                       (470, 312, 60, ["#c03a8a", "#f8dfa2", "#1fa0b0", "#fff0d8"]),
                       (58, 310, 44, ["#f07a1f", "#12286b", "#f8f0dc", "#d8402e"]),
                       (286, 44, 26, ["#8a4ac0", "#f2c14e", "#f8f0dc", "#d8402e"]),
                       (610, 330, 30, ["#d8402e", "#f8f0dc", "#2f62c4", "#f2b33d"]),
                       (480, 40, 20, ["#1f9a6a", "#f8dfa2", "#c8552f", "#12286b"])):
        _Globo(d, x, y, r, c)
    return AImagen(lienzo.Grano(lienzo.Ondula(d.Imagen(), 123, 1.3, 22), 125, 5))


# --- Mapa: an old sea chart.

def Mapa():
    w, h = 800, 600
    alto = lienzo.Fractal(w, h, 260, 132, 7, .55)
    y, x = np.mgrid[0:h, 0:w]
    alto = alto - .32 * ((x / w - .5) ** 2 + (y / h - .5) ** 2) * 2 + .04
    niveles = [(-9, "#2f6a9a"), (-.55, "#3f7fb0"), (-.4, "#5a9ac0"), (-.26, "#7ab4cc"), (-.14, "#9accd4"), (-.05, "#c0dfd8"),
               (.0, "#efdfae"), (.03, "#cfd08a"), (.1, "#a8bf6a"), (.19, "#d8b868"), (.3, "#c8904a"), (.42, "#a8683c"),
               (.58, "#f0e8dc")]
    a = np.zeros((h, w, 3), np.float32)
    for corte, color in niveles:
        a[alto >= corte] = lienzo.Rgb(color)
    fino = lienzo.Fractal(w, h, 46, 150, 4, .6)
    luz = np.gradient(alto + .05 * fino, axis=1) + np.gradient(alto + .05 * fino, axis=0)
    a += np.where((alto > 0)[:, :, None], 1800, 500) * np.clip(luz, -.03, .03)[:, :, None]
    a += 15 * fino[:, :, None]
    for k in range(1, 9):     # waves along the shores, contours on land
        banda = np.abs(alto + .035 * k + .003) < .0035
        a[banda] = a[banda] * .5 + np.array((20, 60, 110)) * .5
    for k in range(1, 10):
        banda = np.abs(alto - .06 * k) < .004
        a[banda] *= .7
    a[np.abs(alto) < .007] = (70, 40, 20)
    d = Dibujo(w, h, 133)
    d.Rect(0, 0, w, h, "#000000")
    tinta = "#6b3a14"
    def Mar(px, py):
        return alto[min(h - 1, int(py)), min(w - 1, int(px))] < -.02
    nombres = []
    for k in range(900):
        px, py = d.g.uniform(14, w - 14), d.g.uniform(14, h - 14)
        v = alto[int(py), int(px)]
        if any(math.hypot(px - q, py - s) < 23 for q, s in nombres):
            continue
        nombres.append((px, py))
        if v > .3:
            d.Poli([(px - 11, py + 8), (px, py - 12), (px + 11, py + 8)], "#f4ead4", 'stroke="#4a2410" stroke-width="1.8"')
            d.Poli([(px, py - 12), (px + 11, py + 8), (px + 2, py + 8)], "#8a5a34")
        elif v > .14:
            for q in (-6, 0, 6):
                d.Circ(px + q, py - abs(q) * .5, 5, d.Varia("#4a8a3c", 20), 'stroke="#1f3a14" stroke-width="1.2"')
        elif v > .02:
            if d.g.random() < .5:
                d.Rect(px - 6, py - 5, 12, 9, "#f8f0dc", 'stroke="#4a2410" stroke-width="1.4"')
                d.Poli([(px - 8, py - 5), (px, py - 12), (px + 8, py - 5)], "#c8402a", 'stroke="#4a2410" stroke-width="1.4"')
            else:
                d.Circ(px, py, 4, "#d8402e", 'stroke="#4a2410" stroke-width="1.4"')
        elif v < -.1 and d.g.random() < .75:
            c = d.g.choice(["#f0f8ff", "#12386b", "#e8f4f0"])
            d.Ruta("M%g %g q5 -7 10 0 t10 0 t10 0" % (px - 15, py), "none", 'stroke="%s" stroke-width="2"' % c)
            if d.g.random() < .14:
                d.Ruta("M%g %g h26 l-5 9 h-16 z" % (px - 13, py + 2), "#8a3d1c", 'stroke="#2a1408" stroke-width="1.4"')
                d.Poli([(px, py), (px, py - 22), (px + 13, py - 3)], "#fff6df", 'stroke="#2a1408" stroke-width="1.4"')
                d.Poli([(px - 2, py), (px - 2, py - 18), (px - 11, py - 3)], "#e8b06a", 'stroke="#2a1408" stroke-width="1.4"')
    for cx, cy, r in ((140, 470, 74), (690, 120, 54)):
        for k in range(32):
            t = k * math.pi / 16
            d.Linea([(cx + r * math.cos(t), cy + r * math.sin(t)), (cx + 900 * math.cos(t), cy + 900 * math.sin(t))],
                    tinta, .9, 'stroke-opacity=".75"')
        d.Circ(cx, cy, r, "#f4e6c2", 'stroke="#4a2410" stroke-width="2.5"')
        d.Circ(cx, cy, r * .84, "#2f62c4", 'stroke="#4a2410" stroke-width="1.5"')
        d.Estrella(cx, cy, r * .8, 16, .5, "#e3a02c", 0, 'stroke="#4a2410" stroke-width="1"')
        d.Estrella(cx, cy, r * 1.06, 4, .2, "#c8402a", 0, 'stroke="#4a2410" stroke-width="1.5"')
        d.Estrella(cx, cy, r * .7, 4, .26, "#fff6df", math.pi / 4, 'stroke="#4a2410" stroke-width="1.2"')
        d.Circ(cx, cy, r * .14, "#12286b", 'stroke="#fff6df" stroke-width="1.5"')
    ruta = [(140 + 22 * k, 470 - 60 * math.sin(k * .33) - 7 * k) for k in range(28)]
    d.Linea(ruta, "#d81f1f", 3, 'stroke-dasharray="10 7"')
    d.Ruta("M%g %g l16 16 m0 -16 l-16 16" % (ruta[-1][0] - 8, ruta[-1][1] - 8), "none", 'stroke="#d81f1f" stroke-width="5"')
    for k in range(40):
        c = ["#f4e6c2", "#7a2a14"][k % 2]
        for yy in (0, h - 12):
            d.Rect(k * 20, yy, 20, 12, c)
    for k in range(30):
        c = ["#7a2a14", "#f4e6c2"][k % 2]
        for xx in (0, w - 12):
            d.Rect(xx, k * 20, 12, 20, c)
    capa = d.Imagen()
    tapa = np.clip(capa.max(axis=2, keepdims=True) / 60, 0, 1)
    a = a * (1 - tapa) + capa * tapa
    vieja = lienzo.Fractal(w, h, 220, 160, 5, .6)[:, :, None] * np.array((16, 12, 4))
    return AImagen(lienzo.Grano(lienzo.Tinte(a, 135, 14) * np.array((1.0, .97, .88)) + vieja, 137, 4))


# --- Montes: ranges in facets.

def Montes():
    w, h = 960, 480
    y, x = np.mgrid[0:h, 0:w].astype(np.float32)
    d = Dibujo(w, h, 141)
    d.Rect(0, 0, w, h, d.Degradado("cielo", ["#2a3a8a", "#7a5ab0", "#e8809a", "#f9c48a", "#fbe8c0"]))
    for k in range(34):
        d.Circ(690, 150, 560 - 16 * k, Escala(["#2f3f94", "#8a5ab0", "#e87a8a", "#f9b06a", "#fff0c0"], k / 34),
               'fill-opacity=".22"')
    d.Circ(690, 150, 52, "#fff4c8")
    for k in range(120):
        px, py = d.g.uniform(-30, w), d.g.uniform(10, 200)
        d.Elip(px, py, d.g.uniform(26, 80), d.g.uniform(3, 9),
               d.Varia(Escala(["#5a5ac0", "#f0a0b0", "#fff0d8", "#f07a5a"], d.g.random()), 14), 'fill-opacity=".6"')
    for k in range(46):      # long clouds with a lit and a shaded edge
        px, py, a = (k * 211) % w + d.g.uniform(-40, 40), 8 + (k * 47) % 150, d.g.uniform(36, 84)
        c = Escala(["#3a2f8a", "#c86ab0", "#ffd8a8", "#e8605a", "#8a4aa8"], (k * .37) % 1)
        for q, g in ((0, c), (-5, Mezcla(c, "#fff4e0", .55)), (5, Mezcla(c, "#1a1050", .45))):
            d.Ruta("M%g %g q%g %g %g 0 t%g %g" % (px - a, py + q, a * .5, -9 + q, a, a, d.g.uniform(-5, 5)), "none",
                   'stroke="%s" stroke-width="5" stroke-linecap="round" stroke-opacity=".85"' % g)
    d.Circ(690, 122, 50, "#fff4c8", 'stroke="#f9b06a" stroke-width="5"')
    for k in range(22):
        px, py = d.g.uniform(20, w - 20), d.g.uniform(20, 130)
        d.Ruta("M%g %g q9 -10 15 0 q8 -10 17 0" % (px, py), "none", 'stroke="#1a1040" stroke-width="2.6"')
    capas = [(190, 80, ["#8a7ac0", "#c890b8", "#f0b0a0"], 1), (250, 105, ["#4f6ab0", "#8a6ab0", "#b86a8a"], 2),
             (320, 95, ["#2f6a9a", "#3f8a8a", "#6a7a5a"], 3), (390, 70, ["#1f5a5a", "#3f8a4a", "#8a9a3c"], 4),
             (440, 40, ["#1b4a34", "#5a8a2c", "#c8803c"], 5)]
    for y0, alto, colores, n in capas:
        p, px = [], -20
        while px < w + 50:
            pico = abs(math.sin(px / (70 + 9 * n) + n * 1.7)) * alto + d.g.uniform(-12, 12)
            p.append((px, y0 - pico + alto * .4))
            px += d.g.uniform(18, 34)
        d.Poli(p + [(w + 60, h), (-20, h)], colores[1])
        for k in range(len(p) - 1):      # each ridge point throws facets down
            (a, b), (c, e) = p[k], p[k + 1]
            t = a / w
            for j in range(5):
                f = 26 + 9 * n
                y1, y2 = b + f * j, e + f * j
                s = d.g.uniform(-10, 10)
                sube = e < b
                c1 = Escala(colores, t + d.g.uniform(-.2, .2))
                luz = Mezcla(c1, "#fff0d0" if sube else "#1a1040", .36 - .06 * j + d.g.uniform(-.08, .1))
                d.Poli([(a, y1), (c, y2), (a + s, y1 + f + 12)], luz)
                d.Poli([(c, y2), (a + s, y1 + f + 12), (c + s, y2 + f + 12)],
                       Mezcla(c1, "#1a1040" if sube else "#ffe8c0", .2 + d.g.uniform(0, .2)))
            if n <= 2 and b < y0 - alto * .2:
                d.Poli([(a - 9, b + 15), (a, b), (a + 10, b + 17), (a + 2, b + 11)], "#fffaf2")
        if n >= 3:
            for k in range(70):
                px = d.g.uniform(0, w)
                py = y0 - alto * .1 + d.g.uniform(0, 46)
                s = .5 + .22 * n
                c = d.Varia(Escala(["#14463a", "#3f7a34", "#8a7a2c", "#1f5a6a"], d.g.random()), 12)
                for j in range(3):
                    d.Poli([(px, py - 34 * s + 8 * j * s), (px + (5 + 3 * j) * s, py - 14 * s + 8 * j * s),
                            (px - (5 + 3 * j) * s, py - 14 * s + 8 * j * s)], Mezcla(c, "#d8f0b0", .12 * (2 - j)))
    for k in range(150):
        px, py = d.g.uniform(0, w), d.g.uniform(446, 480)
        d.Circ(px, py, d.g.uniform(2, 5), d.g.choice(["#f2b33d", "#d8402e", "#f8f0dc", "#c060c0", "#f08a9a"]))
    return AImagen(lienzo.Grano(lienzo.Tinte(d.Imagen(), 143, 12), 145, 7))


# --- Puerto: houses up the hill, boats and their reflections.

def _Barca(d, x, y, s, casco, franja, vela):
    borde = 'stroke="#2a1a14" stroke-width="2" stroke-linejoin="round"'
    d.Abre("translate(%g %g) scale(%g)" % (x, y, s))
    for k in range(9):
        q = 8 + 9 * k
        d.Ruta("M%g %g q14 -5 28 0 t28 0" % (-46 + 6 * (k % 3) - k, q + 18), "none",
               'stroke="%s" stroke-width="4" stroke-opacity=".7"' % d.Varia([casco, vela, franja][k % 3], 20))
    d.Linea([(0, 0), (0, -120)], "#5a3a1c", 4)
    d.Ruta("M5 -116 Q58 -62 62 -14 Q34 -8 5 -12 Z", vela, borde)
    d.Ruta("M-5 -104 Q-40 -52 -42 -14 Q-22 -8 -5 -12 Z", Mezcla(vela, "#ffffff", .4), borde)
    for k in range(3):
        d.Linea([(7, -38 - 24 * k), (54 - 12 * k, -36 - 22 * k)], franja, 5)
    d.Ruta("M0 -120 l20 6 l-20 7 z", "#d8402e", borde)
    d.Ruta("M-60 -8 H66 Q58 20 38 22 H-38 Q-54 16 -60 -8 Z", casco, borde)
    d.Ruta("M-58 -2 H64 L61 6 H-55 Z", franja, borde)
    for k in range(5):
        d.Circ(-34 + 17 * k, 13, 3.4, "#fff4d8", borde)
    d.Cierra()


def Puerto():
    w, h = 640, 480
    d = Dibujo(w, h, 151)
    d.Rect(0, 0, w, h, d.Degradado("cielo", ["#3f7fd8", "#8fc0f0", "#f4e6c8"]))
    for k in range(240):
        x, y = d.g.uniform(-20, w), d.g.uniform(-5, 130)
        c = Escala(["#2f62c4", "#7ab4f0", "#f8f4ea", "#f6cfa0", "#e8a0a8"], y / 140 + .3 * math.sin(x / 90))
        d.Elip(x, y, d.g.uniform(12, 36), d.g.uniform(5, 10), d.Varia(c, 12), 'fill-opacity=".75"')
    d.Poli([(0, 150), (60, 92), (130, 112), (210, 58), (300, 84), (380, 40), (470, 78), (560, 60), (640, 120),
            (640, 320), (0, 320)], "#7a9a5a", 'stroke="#3f5a2c" stroke-width="2"')
    for k in range(260):
        x = d.g.uniform(0, w)
        y = d.g.uniform(80 + 50 * abs(x - 340) / 340, 200)
        d.Circ(x, y, d.g.uniform(5, 12), d.Varia(Escala(["#4a7a34", "#9ab05a", "#c8a05a", "#3f6a4a"], x / w), 22))
    colores = ["#fbf6ea", "#f4d8a0", "#e8a080", "#f8ead8", "#a8c8e8", "#f6e0b0", "#e89a9a", "#fbf6ea"]
    tejados = ["#c8552f", "#a8402a", "#d8743c", "#8a3a2a"]
    d.Rect(392, 20, 30, 70, "#fbf6ea", 'stroke="#3a2014" stroke-width="1.6"')
    for k in range(4):
        d.Rect(392, 20 + 18 * k, 30, 9, "#d8402e")
    d.Poli([(386, 22), (407, 0), (428, 22)], "#1b3f94", 'stroke="#3a2014" stroke-width="1.6"')
    for y, alto in ((160, 44), (196, 48), (234, 54), (276, 60)):
        _Reparte(d, y, alto, w, colores, tejados, "#2a5a9a")
        for k in range(12):
            x = d.g.uniform(0, w)
            d.Elip(x, y - 4, 7, 13, d.Varia("#2f6a34", 22), 'stroke="#1c3a14" stroke-width="1"')
    d.Rect(0, 274, w, 18, "#c8a878", 'stroke="#4a3420" stroke-width="1.6"')
    for k in range(40):
        d.Rect(k * 16 + 1, 276, 14, 14, d.Varia("#c0986a", 24), 'stroke="#6b4a2a" stroke-width="1"')
    d.Rect(0, 290, w, 190, d.Degradado("mar", ["#5aa8c8", "#2f72b8", "#163a80"]))
    for k in range(720):
        x, y = d.g.uniform(-30, w), d.g.uniform(292, 482)
        c = Escala(["#f0d8b0", "#7ac8d8", "#3f8ac8", "#2456a0", "#142a6b"], (y - 290) / 190 + d.g.uniform(-.3, .25))
        c = Mezcla(c, Escala(["#c8552f", "#3fa08a", "#f2c14e", "#5b5ac0"], x / w), .24)
        a = 6 + (y - 290) / 10
        d.Ruta("M%g %g q%g -4 %g 0 t%g 0" % (x, y, a, 2 * a, 2 * a), "none",
               'stroke="%s" stroke-width="%.1f" stroke-linecap="round"' % (d.Varia(c, 12), 2 + (y - 290) / 55))
    barcas = [(90, 330, .62, "#d8402e", "#f8f0dc", "#f8e3b4"), (250, 322, .5, "#2f62c4", "#f2b33d", "#fff6df"),
              (400, 334, .66, "#2e8a5a", "#f8f0dc", "#e88a5a"), (560, 326, .56, "#7a4ab0", "#f2c14e", "#cfe2f8"),
              (170, 404, .98, "#1b3f94", "#f2b33d", "#f6c96a"), (350, 420, .9, "#c8552f", "#f8f0dc", "#f8f0dc"),
              (520, 412, 1.1, "#f2b33d", "#12286b", "#d8503a"), (40, 446, .7, "#2e9a4b", "#fff0d8", "#a8d0f0")]
    for b in barcas:
        _Barca(d, *b)
    for k in range(14):
        x, y = d.g.uniform(0, w), d.g.uniform(16, 330)
        d.Ruta("M%g %g q8 -9 14 0 q7 -9 15 0" % (x, y), "none", 'stroke="#fdfaf2" stroke-width="3"')
        d.Ruta("M%g %g q8 -9 14 0 q7 -9 15 0" % (x, y + 1.5), "none", 'stroke="#3a3a4a" stroke-width="1"')
    return AImagen(lienzo.Grano(lienzo.Ondula(d.Imagen(), 153, 1.2, 18), 155, 5))
