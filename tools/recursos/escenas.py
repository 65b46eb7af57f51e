# SPDX-License-Identifier: GPL-3.0-or-later
"""Sample pictures: tiles, still life, stars, garden, fish, carpet, stained glass."""
import math

import numpy as np

import lienzo
from lienzo import AImagen, Dibujo, Escala, Mezcla

COBALTO = ["#12286b", "#1b3f94", "#2f62c4", "#5b8ae0", "#a9c6f2"]
CALIDOS = ["#7a2a14", "#c8552f", "#e08a3c", "#f2b33d", "#f8dfa2"]


# --- Azulejos: a ship painted on tiles, in a ring of patterned tiles, no two alike.

def _Teja(d, x, y, lado, clase, a, b, c, fondo):
    d.Abre("translate(%g %g) scale(%g)" % (x, y, lado / 80))
    d.Rect(0, 0, 80, 80, fondo)
    for k in range(4):
        d.Abre("rotate(%d 40 40)" % (90 * k))
        if clase == 0:
            d.Ruta("M0 0 H36 A36 36 0 0 1 0 36 Z", a)
            d.Ruta("M0 0 H27 A27 27 0 0 1 0 27 Z", fondo)
            d.Ruta("M0 0 H19 A19 19 0 0 1 0 19 Z", b)
        elif clase == 1:
            d.Ruta("M40 40 Q20 34 12 12 Q34 20 40 40 Z", a)
            d.Ruta("M40 4 L46 14 L40 24 L34 14 Z", b)
        elif clase == 2:
            d.Ruta("M0 0 L34 0 L0 34 Z", a)
            d.Ruta("M0 0 L22 0 L0 22 Z", b)
            d.Ruta("M40 40 L30 16 L40 6 L50 16 Z", c)
        elif clase == 3:
            d.Ruta("M4 40 Q4 4 40 4 Q22 14 22 26 Q14 26 4 40 Z", a)
            d.Circ(14, 14, 7, b)
        elif clase == 4:
            d.Ruta("M40 40 C30 30 30 12 40 4 C50 12 50 30 40 40 Z", a)
            d.Ruta("M40 36 C35 28 35 18 40 12 C45 18 45 28 40 36 Z", b)
            d.Ruta("M0 0 H14 L0 14 Z", c)
        else:
            d.Ruta("M0 30 H14 V14 H30 V0 H0 Z", a)
            d.Ruta("M22 40 L40 22 L40 40 Z", b)
            d.Circ(20, 20, 5, c)
        d.Cierra()
    d.Estrella(40, 40, 15, 8, 0.55, c if clase != 2 else b, 0)
    d.Circ(40, 40, 5, fondo)
    d.Cierra()


def _Nube(d, x, y, r, color):
    for k in range(9):
        a = math.pi * (k / 8)
        q = r * d.g.uniform(.45, .62)
        d.Circ(x - r * 1.35 * math.cos(a), y - .6 * r * math.sin(a), q, d.Varia(color, 8),
               'stroke="#7ba6d8" stroke-width="1.6"')
    for k in range(3):
        cx = x + (k - 1) * r * .8
        p = [(cx + (1 - t / 22) * r * .42 * math.cos(t * .55), y - r * .2 +
              (1 - t / 22) * r * .42 * math.sin(t * .55)) for t in range(22)]
        d.Linea(p, "#5b8ae0", 1.8)


def _Olas(d, x0, x1, y0, y1, colores, r=15):
    fila, y = 0, y0
    while y < y1 + r:
        x = x0 - r + (fila % 2) * r
        while x < x1 + 2 * r:
            t = (y - y0) / (y1 - y0)
            c = d.Varia(Escala(colores, t + d.g.uniform(-.12, .12)), 12)
            d.Circ(x, y + r * .5, r, c, 'stroke="#e9f2ff" stroke-width="2"')
            d.Circ(x, y + r * .5, r * .62, Mezcla(c, "#ffffff", .22))
            d.Circ(x, y + r * .5, r * .3, Mezcla(c, "#0a1d5a", .35))
            x += 2 * r
        y += r * .72
        fila += 1


def _Nao(d, x, y, s):
    d.Abre("translate(%g %g) scale(%g)" % (x, y, s))
    borde = 'stroke="#3a1508" stroke-width="2" stroke-linejoin="round"'
    for mx, alto in ((-62, 118), (0, 150), (58, 112)):
        d.Linea([(mx, 20), (mx, -alto)], "#5a2a12", 5)
        d.Ruta("M%d %d q24 -8 34 4 q-12 8 -34 6 Z" % (mx, -alto - 2), "#d8402e", borde)
    velas = [(-62, -104, 40, 34), (-62, -62, 52, 44), (0, -138, 42, 32), (0, -98, 60, 44),
             (0, -46, 72, 42), (58, -98, 40, 32), (58, -58, 54, 44)]
    for k, (vx, vy, w, h) in enumerate(velas):
        d.Ruta("M%g %g h%g q14 %g 2 %g q%g -12 %g 0 q12 %g 0 %g Z"
               % (vx - w / 2, vy, w, h / 2, h, -w / 2 - 2, -w - 4, -h / 2, -h),
               ["#fff6df", "#f8e3b4", "#fdeecb"][k % 3], borde)
        for j in range(1, 4):
            d.Linea([(vx - w / 2 + w * j / 4, vy + 2), (vx - w / 2 + w * j / 4 + 5, vy + h - 6)],
                    ["#c8552f", "#2f62c4", "#e0a02c"][k % 3], 4.5)
    d.Ruta("M-112 2 Q-100 52 -70 60 H70 Q104 52 122 -14 L96 -10 L92 8 H-70 L-76 -8 Z", "#8a3d1c",
           borde)
    d.Ruta("M-104 18 Q0 34 112 10 L106 24 Q0 46 -98 30 Z", "#f2b33d", borde)
    for k in range(9):
        d.Circ(-78 + 20 * k, 42 - .006 * (k * 20 - 80) ** 2 * .2, 4.6, "#12286b", borde)
    d.Linea([(110, -12), (152, -44)], "#5a2a12", 4)
    d.Ruta("M58 -96 L150 -42 L92 -8 Z", "#f6d58a", borde)
    d.Cierra()


def Azulejos():
    d = Dibujo(640, 480, 11)
    d.Rect(0, 0, 640, 480, "#fbf6ea")
    parejas = [("#1b3f94", "#e3a02c", "#c8552f"), ("#c8552f", "#1b3f94", "#f2c14e"),
               ("#1f7a5a", "#2f62c4", "#e08a3c"), ("#5b3a8a", "#e3a02c", "#1b3f94"),
               ("#2f62c4", "#7a2a14", "#2e9a4b"), ("#a8322a", "#f2b33d", "#12286b")]
    fondos = ["#fbf6ea", "#f8e9c4", "#e4eefb", "#fde6d6", "#e6f4e4"]
    n = 0
    for j in range(6):
        for i in range(8):
            if i in (0, 7) or j in (0, 5):
                a, b, c = parejas[(n * 5 + j) % 6]
                _Teja(d, i * 80, j * 80, 80, n % 6, d.Varia(a, 20), d.Varia(b, 20), d.Varia(c, 20),
                      d.Varia(fondos[(n * 3 + i) % 5], 7))
                n += 1
    d.Pon('<clipPath id="cuadro"><rect x="80" y="80" width="480" height="320"/></clipPath>'
          '<g clip-path="url(#cuadro)">')
    d.Rect(80, 80, 480, 320, d.Degradado("cielo", ["#8db8ee", "#cfe2f8", "#fbe9c0", "#f6c48a"]))
    for k in range(90):     # brush strokes of the sky
        x, y = d.g.uniform(70, 560), d.g.uniform(80, 260)
        c = Escala(["#6fa0e2", "#a9c9f3", "#f2dcae", "#f0b070"], (y - 80) / 190 + d.g.uniform(-.1, .1))
        d.Ruta("M%g %g q24 -9 46 0 t40 0" % (x, y), "none",
               'stroke="%s" stroke-width="%.1f" stroke-opacity=".55" stroke-linecap="round"'
               % (d.Varia(c, 18), d.g.uniform(3, 8)))
    d.Estrella(176, 164, 64, 20, .66, "#e08a3c", 0, 'stroke="#a8481c" stroke-width="1.5"')
    d.Circ(176, 164, 38, "#f8cf5a", 'stroke="#a8481c" stroke-width="2"')
    d.Ruta("M158 160 q7 -7 13 0 M182 160 q7 -7 13 0 M160 176 q16 14 32 0 M176 162 q-5 9 2 10",
           "none", 'stroke="#8a3d1c" stroke-width="2.600" stroke-linecap="round"')
    for x, y, r in ((300, 118, 22), (470, 128, 30), (118, 244, 20), (540, 220, 22), (400, 96, 14)):
        _Nube(d, x, y, r, "#fdfaf2")
    for k in range(7):
        x, y = d.g.uniform(220, 540), d.g.uniform(150, 230)
        d.Ruta("M%g %g q7 -8 12 0 q6 -8 13 0" % (x, y), "none", 'stroke="#12286b" stroke-width="2"')
    d.Ruta("M560 300 V250 Q520 236 498 262 Q470 256 452 292 L440 310 Z", "#5f8f4a",
           'stroke="#2f4f22" stroke-width="2"')
    for k in range(8):
        d.Rect(474 + 10 * k, 262 - 5 * (k % 3), 8, 20, d.Varia("#f4e3c2", 18),
               'stroke="#7a2a14" stroke-width="1.2"')
    _Olas(d, 80, 560, 296, 400, ["#6fb0d8", "#2f62c4", "#12286b"], 14)
    _Nao(d, 322, 286, 1.02)
    _Olas(d, 80, 560, 346, 400, ["#3f7fd0", "#1b3f94", "#0f2360"], 17)
    for x, y, s, f in ((140, 350, 1, 1), (520, 362, .9, -1)):
        d.Abre("translate(%g %g) scale(%g %g)" % (x, y, s * f, s))
        d.Ruta("M-40 14 Q-14 -30 28 2 L44 -8 L40 14 L26 12 Q-6 4 -40 14 Z", "#9fc0e8",
               'stroke="#12286b" stroke-width="2"')
        d.Ruta("M-10 -12 L4 -28 L10 -10 Z", "#5b8ae0", 'stroke="#12286b" stroke-width="2"')
        d.Circ(-22, 2, 2.6, "#12286b")
        d.Cierra()
    d.Pon("</g>")
    d.Rect(80, 80, 480, 320, "none", 'stroke="#1b3f94" stroke-width="5"')
    d.Rect(84, 84, 472, 312, "none", 'stroke="#e3a02c" stroke-width="2"')
    a = lienzo.Ondula(d.Imagen(), 3, 1.1, 18)
    e = Dibujo(640, 480, 12)
    e.Rect(0, 0, 640, 480, "#808080")
    for k in range(0, 641, 80):
        e.Linea([(k, 0), (k, 480)], "#4a3a2a", 2.2)
        e.Linea([(k + 1.8, 0), (k + 1.8, 480)], "#ffffff", 1)
    for k in range(0, 481, 80):
        e.Linea([(0, k), (640, k)], "#4a3a2a", 2.2)
        e.Linea([(0, k + 1.8), (640, k + 1.8)], "#ffffff", 1)
    junta = (e.Imagen() - 128) * .55
    craquelado = lienzo.Celdas(640, 480, 26, 4)[1]
    a += junta - (9 * (craquelado < .9))[:, :, None]
    return AImagen(lienzo.Grano(lienzo.Tinte(a, 5, 12), 6, 3.5))


# --- Bodegon: fruit, jug and patterned cloth.

def _Fruta(d, x, y, r, claro, oscuro, nombre, brillo=.5):
    d.defs.append('<radialGradient id="%s" cx=".36" cy=".3" r=".85"><stop offset="0" '
                  'stop-color="%s"/><stop offset=".45" stop-color="%s"/><stop offset="1" '
                  'stop-color="%s"/></radialGradient>'
                  % (nombre, Mezcla(claro, "#ffffff", .35), claro, oscuro))
    d.Elip(x + r * .2, y + r * .85, r * 1.05, r * .3, "#2a0d05", 'fill-opacity=".35"')
    d.Circ(x, y, r, "url(#%s)" % nombre, 'stroke="%s" stroke-width="1.5"' % Mezcla(oscuro, "#000000", .3))
    for k in range(26):
        a, q = d.g.uniform(0, 6.28), r * math.sqrt(d.g.uniform(0, .8))
        d.Circ(x + q * math.cos(a), y + q * math.sin(a), d.g.uniform(.8, 2.2),
               d.Varia(Mezcla(claro, oscuro, d.g.uniform(0, 1)), 20), 'fill-opacity=".6"')
    d.Elip(x - r * .36, y - r * .42, r * .2, r * .13, "#ffffff", 'fill-opacity="%g"' % brillo)


def Bodegon():
    d = Dibujo(640, 480, 21)
    for j in range(14):      # wall: lozenges that change colour across
        for i in range(18):
            x, y = i * 40 + (j % 2) * 20 - 20, j * 26
            c = Escala(["#7a2a14", "#b4532f", "#d98a4a", "#8a6a3a", "#3f6a5a", "#27507a"],
                       i / 18 + (j - 7) * .02)
            c = Mezcla(c, "#fbe3b0", .10 + .3 * ((i * 7 + j * 5) % 4) / 4)
            d.Poli([(x, y - 26), (x + 20, y), (x, y + 26), (x - 20, y)], d.Varia(c, 14),
                   'stroke="#4a1c0c" stroke-width="1"')
            d.Estrella(x, y, 9, 4 + (i + 2 * j) % 4, .45, Mezcla(c, "#fff4d8", .55), i * .3)
    d.Rect(0, 300, 640, 180, "#efe2c4")
    for j in range(8):       # cloth: checks in perspective with a sign in each
        y0, y1 = 300 + 3.2 * j * (j + 1), 300 + 3.2 * (j + 1) * (j + 2)
        for i in range(-3, 15):
            def px(k, y):
                return 320 + (k - 6) * 55 * (.75 + (y - 300) / 240)
            c = [["#f7efdc", "#2f62c4"], ["#c8552f", "#f2cf8a"]][j % 2][i % 2]
            c = d.Varia(Mezcla(c, Escala(["#4a90c0", "#f0c060", "#c04a5a"], (i + 3) / 18), .28), 12)
            d.Poli([(px(i, y0), y0), (px(i + 1, y0), y0), (px(i + 1, y1), y1), (px(i, y1), y1)], c,
                   'stroke="#6b4a2a" stroke-width=".8"')
            d.Estrella((px(i, y0) + px(i + 1, y1)) / 2, (y0 + y1) / 2, 5 + j * 1.6,
                       4 + (i * 3 + j) % 5, .5, Mezcla(c, "#12286b" if (i + j) % 3 else "#fff8e0", .6),
                       d.g.uniform(0, 3))
    # Jug with bands.
    jarra = "M452 108 H532 Q528 138 546 170 Q592 226 566 300 Q552 344 534 352 H450 " \
            "Q432 344 418 300 Q392 226 438 170 Q456 138 452 108 Z"
    d.Elip(500, 352, 110, 18, "#2a0d05", 'fill-opacity=".35"')
    d.Ruta("M548 150 Q626 150 612 220 Q600 268 566 276", "none",
           'stroke="#12286b" stroke-width="21" stroke-linecap="round"')
    d.Ruta("M548 150 Q626 150 612 220 Q600 268 566 276", "none",
           'stroke="#7ba6ee" stroke-width="15" stroke-linecap="round"')
    d.Pon('<clipPath id="jarra"><path d="%s"/></clipPath>' % jarra)
    d.Ruta(jarra, "#f7efdc", 'stroke="#12286b" stroke-width="4"')
    d.Pon('<g clip-path="url(#jarra)">')
    for y, alto, c in ((108, 20, "#1b3f94"), (136, 8, "#e3a02c"), (170, 30, "#2f62c4"),
                       (262, 12, "#c8552f"), (290, 22, "#1b3f94"), (326, 30, "#e3a02c")):
        d.Rect(390, y, 220, alto, c)
    for k in range(11):
        d.Circ(402 + 20 * k, 185, 9, "#f7efdc")
        d.Circ(402 + 20 * k, 185, 4, "#c8552f")
        d.Estrella(400 + 20 * k, 301, 9, 4, .4, "#f7efdc")
    for k in range(6):
        d.Estrella(412 + 36 * k, 232, 24, 8, .5, ["#1b3f94", "#2e9a4b"][k % 2], k)
        d.Circ(412 + 36 * k, 232, 8, "#f2b33d")
    d.Ruta("M400 100 H450 Q420 230 450 360 H380 Z", "#ffffff", 'fill-opacity=".35"')
    d.Ruta("M560 100 H620 V360 H548 Q580 230 540 120 Z", "#12286b", 'fill-opacity=".25"')
    d.Pon("</g>")
    # Bowl of fruit.
    d.Elip(220, 398, 190, 22, "#2a0d05", 'fill-opacity=".4"')
    frutas = [(120, 262, 44, "#f0932b", "#a8480c"), (206, 226, 50, "#d8402e", "#6b0d0a"),
              (294, 250, 46, "#f6c83c", "#b0720c"), (160, 290, 42, "#9ac33c", "#3f6a14"),
              (250, 292, 44, "#f0a03a", "#a8480c"), (324, 296, 36, "#c83a4a", "#5a0a1c"),
              (92, 300, 34, "#e8d24a", "#8a7a0c")]
    for k, (x, y, r, c, o) in enumerate(frutas):
        _Fruta(d, x, y, r, c, o, "fruta%d" % k)
    d.Ruta("M206 178 Q210 160 224 152", "none", 'stroke="#4a2a10" stroke-width="5"')
    d.Ruta("M214 168 Q244 138 272 160 Q240 182 214 168 Z", "#3f8a3c", 'stroke="#1c4a1c" stroke-width="2"')
    for k in range(24):      # grapes over the rim
        x, y = 336 + (k % 6) * 16 - (k // 6) * 6 + d.g.uniform(-3, 3), 300 + (k // 6) * 17
        _Fruta(d, x, y, 11, d.Varia("#6a4aa8", 22), "#2a1450", "uva%d" % k, .7)
    cuenco = "M34 306 Q60 318 214 320 Q370 318 396 306 Q380 392 290 404 H140 Q50 392 34 306 Z"
    d.Pon('<clipPath id="cuenco"><path d="%s"/></clipPath>' % cuenco)
    d.Ruta(cuenco, "#fbf3e0", 'stroke="#12286b" stroke-width="4"')
    d.Pon('<g clip-path="url(#cuenco)">')
    for k in range(11):
        c = [COBALTO[1], CALIDOS[1], "#1f7a5a"][k % 3]
        d.Ruta("M%d 322 q18 50 36 0 z" % (24 + 36 * k), c)
        d.Ruta("M%d 322 q10 26 20 0 z" % (32 + 36 * k), "#f2c14e")
        d.Estrella(60 + 34 * k, 376, 14, 6, .45, COBALTO[k % 3], k)
    d.Ruta("M34 306 Q60 318 214 320 Q370 318 396 306 V316 Q370 332 214 333 Q60 332 34 316 Z", "#1b3f94")
    d.Ruta("M280 300 H420 V420 H240 Q330 390 350 316 Z", "#12286b", 'fill-opacity=".22"')
    d.Pon("</g>")
    for k, (x, y, r, c, o) in enumerate([(428, 404, 32, "#f0932b", "#a8480c"),
                                         (492, 432, 30, "#d8402e", "#6b0d0a"),
                                         (566, 412, 33, "#9ac33c", "#3f6a14"),
                                         (70, 440, 30, "#f6c83c", "#b0720c")]):
        _Fruta(d, x, y, r, c, o, "suelta%d" % k)
    a = lienzo.Ondula(d.Imagen(), 31, 1.6, 22)
    return AImagen(lienzo.Grano(lienzo.Tinte(a, 33, 16), 35, 6))


# --- Constelaciones: an old chart of the sky over coloured clouds.

def Constelaciones():
    w, h = 480, 360
    t1, t2, t3 = (lienzo.Fractal(w, h, 150, 70 + 9 * k, 6, .62) for k in range(3))
    base = np.zeros((h, w, 3), np.float32)
    base += np.array((16, 20, 58))
    base += np.clip(t1 + .18, 0, 1)[:, :, None] * np.array((40, 90, 210))
    base += np.clip(t2 + .08, 0, 1)[:, :, None] * np.array((210, 60, 90))
    base += np.clip(t3 + .02, 0, 1)[:, :, None] * np.array((60, 170, 130))
    base += 14 * np.random.default_rng(5).standard_normal((h, w, 1))
    d = Dibujo(w, h, 71)
    d.Rect(0, 0, w, h, "#000000")
    for r in range(60, 420, 52):
        d.Circ(240, 180, r, "none", 'stroke="#5b7ac0" stroke-width="1" stroke-dasharray="6 4"')
    for k in range(24):
        a = k * math.pi / 12
        d.Linea([(240 + 30 * math.cos(a), 180 + 30 * math.sin(a)),
                 (240 + 400 * math.cos(a), 180 + 400 * math.sin(a))], "#3f5aa0", .8)
    for k in range(620):
        x, y, r = d.g.uniform(0, w), d.g.uniform(0, h), d.g.expovariate(1.7) + .35
        d.Circ(x, y, min(r, 1.9), d.Varia(d.g.choice(["#ffffff", "#ffe2a8", "#a8ccff", "#ffb8a0"]), 8))
    centros = [(70, 62), (190, 54), (320, 66), (424, 92), (60, 176), (152, 150), (292, 160), (410, 210),
               (84, 290), (196, 266), (312, 290), (424, 312)]
    for k, (cx, cy) in enumerate(centros):
        p = [(cx + d.g.uniform(-46, 46), cy + d.g.uniform(-40, 40)) for _ in range(7)]
        p.sort(key=lambda q: math.atan2(q[1] - cy, q[0] - cx) + .2 * d.g.random())
        color = Escala(["#8fd0ff", "#ffe08a", "#ffb0c8", "#b0ffc8"], k / 12)
        d.Poli(p, color, 'fill-opacity=".13"')
        d.Linea(p, color, 1.5)
        for x, y in p:
            d.Estrella(x, y, d.g.uniform(5, 9), d.g.choice([4, 5, 6, 8]), .32, "#fffbe8", d.g.uniform(0, 1),
                       'stroke="%s" stroke-width="1"' % color)
    d.Circ(240, 180, 26, "#f2c14e", 'stroke="#fff3c0" stroke-width="2"')
    d.Estrella(240, 180, 42, 16, .62, "#f0932b", 0, 'fill-opacity=".8"')
    d.Circ(240, 180, 20, "#fbe08a")
    d.Circ(430, 40, 22, "#e9ecf6")
    d.Circ(421, 35, 19, "#1c2450")
    d.Elip(56, 236, 30, 8, "none", 'stroke="#f0c88a" stroke-width="4" transform="rotate(-18 56 236)"')
    d.Circ(56, 236, 15, "#d88a4a", 'stroke="#fbe3b0" stroke-width="1.5"')
    capa = d.Imagen()
    return AImagen(base + capa * (1 - base.clip(0, 255) / 380))


# --- Jardin: flowers, kind and colour drifting over the bed.

def _Flor(d, x, y, r, clase, color, centro):
    n = (5, 6, 8, 12, 16)[clase % 5]
    largo, ancho = r, r * (1.9 / n + .12)
    giro = d.g.uniform(0, 360)
    oscuro = Mezcla(color, "#3a0a2a", .38)
    d.Abre("translate(%.1f %.1f) rotate(%.0f)" % (x, y, giro))
    d.Circ(1.5, 2.5, r * .96, "#0c2410", 'fill-opacity=".3"')
    for k in range(n):
        d.Pon('<ellipse cx="0" cy="%.1f" rx="%.1f" ry="%.1f" fill="%s" stroke="%s" stroke-width=".9" '
              'transform="rotate(%.1f)"/>' % (-largo * .56, ancho, largo * .46, d.Varia(color, 14),
                                             oscuro, 360 * k / n))
        d.Pon('<path d="M0 %.1f V%.1f" stroke="%s" stroke-width="1.1" transform="rotate(%.1f)"/>'
              % (-r * .24, -r * .7, oscuro, 360 * k / n))
    d.Circ(0, 0, r * .3, centro, 'stroke="%s" stroke-width="1"' % Mezcla(centro, "#3a1a00", .5))
    for k in range(7):
        d.Circ(r * .17 * math.cos(k * .9), r * .17 * math.sin(k * .9), r * .05 + .4, "#6b3a0c")
    d.Cierra()


def Jardin():
    d = Dibujo(640, 480, 41)
    d.Rect(0, 0, 640, 480, "#1f5a2c")
    for k in range(1500):
        x, y, a = d.g.uniform(-10, 650), d.g.uniform(-10, 490), d.g.uniform(0, 360)
        c = d.Varia(Escala(["#2f7a34", "#7aa83a", "#1f6a4a", "#4a8a2c"], x / 640), 20)
        d.Pon('<path d="M0 0 Q7 -9 0 -24 Q-7 -9 0 0 Z" fill="%s" stroke="#123a1a" stroke-width=".7" '
              'transform="translate(%.1f %.1f) rotate(%.0f) scale(%.2f)"/>'
              % (c, x, y, a, d.g.uniform(.7, 1.4)))
    paleta = ["#e8402e", "#f58a1f", "#f9cf2e", "#fff6e6", "#f59ac0", "#c03a9a", "#7a4ad0", "#3a6ae0",
              "#5ac0e8"]
    puntos = []
    for k in range(5200):
        x, y = d.g.uniform(-10, 650), d.g.uniform(-10, 490)
        r = d.g.uniform(11, 31) * (.72 + .45 * y / 480)
        if all(math.hypot(x - a, y - b) > (r + c) * .74 for a, b, c in puntos):
            puntos.append((x, y, r))
    puntos.sort(key=lambda p: p[1])
    for x, y, r in puntos:
        t = .5 + .5 * math.sin(x / 118 + 1.7 * math.sin(y / 97))
        color = Escala(paleta, t * .8 + .2 * d.g.random())
        centro = d.g.choice(["#f2b33d", "#8a4a12", "#ffe98a", "#5a2a0a", "#d8e06a"])
        _Flor(d, x, y, r, int(3 * t + x / 150 + d.g.random() * 2), color, centro)
    for x, y, s, c in ((150, 130, 1.2, "#f0932b"), (470, 210, 1.35, "#2f62c4"), (300, 380, 1.1, "#f8dfa2"),
                       (560, 70, 1, "#d8402e"), (70, 350, 1, "#a05ad0")):
        d.Abre("translate(%g %g) rotate(%g) scale(%g)" % (x, y, d.g.uniform(-40, 40), s))
        for f in (1, -1):
            d.Abre("scale(%d 1)" % f)
            d.Ruta("M0 0 C8 -34 44 -38 40 -12 C38 2 16 6 0 0 Z", c, 'stroke="#1a1020" stroke-width="2.5"')
            d.Ruta("M0 2 C22 4 36 16 26 28 C14 34 4 18 0 2 Z", Mezcla(c, "#ffffff", .4),
                   'stroke="#1a1020" stroke-width="2.5"')
            d.Circ(26, -18, 5.5, "#fff8e0")
            d.Circ(18, 16, 4, "#1a1020")
            d.Cierra()
        d.Elip(0, 4, 3.4, 15, "#1a1020")
        d.Ruta("M-1 -9 q-5 -12 -12 -14 M1 -9 q5 -12 12 -14", "none", 'stroke="#1a1020" stroke-width="1.6"')
        d.Cierra()
    return AImagen(lienzo.Grano(lienzo.Tinte(d.Imagen(), 43, 18), 45, 4))


# --- Peces: a reef.

def _Pez(d, x, y, s, giro, claro, oscuro, franja):
    n = "p%d" % len(d.partes)
    cuerpo = "M-48 0 C-34 -34 20 -36 44 -4 C46 0 46 0 44 4 C20 36 -34 34 -48 0 Z"
    borde = 'stroke="%s" stroke-width="2.4" stroke-linejoin="round"' % Mezcla(oscuro, "#000000", .45)
    d.Abre("translate(%g %g) rotate(%g) scale(%g %g)" % (x, y, giro, s, abs(s)))
    d.Ruta("M36 0 L70 -27 Q62 0 70 27 Z", oscuro, borde)
    for k in range(5):
        d.Linea([(44, 0), (66, -18 + 9 * k)], claro, 1.6)
    d.Ruta("M-20 -24 Q4 -52 30 -22 Z", franja, borde)
    d.Ruta("M-10 24 Q6 46 22 22 Z", franja, borde)
    d.Pon('<clipPath id="%s"><path d="%s"/></clipPath>' % (n, cuerpo))
    d.Ruta(cuerpo, claro, borde)
    d.Pon('<g clip-path="url(#%s)">' % n)
    for i in range(11):
        for j in range(-4, 5):
            d.Circ(46 - i * 8, j * 9 + (i % 2) * 4.5, 5.6,
                   d.Varia(Escala([claro, oscuro, franja], .5 + .5 * math.sin(i * .8 + j * .25)), 10),
                   'stroke="%s" stroke-width=".9"' % oscuro)
    d.Ruta("M-60 -40 H-22 Q-14 0 -22 40 H-60 Z", Mezcla(claro, "#ffffff", .25),
           'stroke="%s" stroke-width="2"' % oscuro)
    d.Pon("</g>")
    d.Circ(-31, -6, 6.5, "#ffffff", borde)
    d.Circ(-32.5, -6, 3.2, "#101020")
    d.Ruta("M-46 4 Q-40 9 -36 5", "none", borde)
    d.Ruta("M-10 4 Q6 8 10 20 Q-6 18 -10 4 Z", oscuro, borde)
    d.Cierra()


def Peces():
    d = Dibujo(640, 480, 51)
    d.Rect(0, 0, 640, 480, d.Degradado("mar", ["#7fd8d8", "#2f8ad0", "#1b4aa8", "#14246b"]))
    for k in range(700):
        x, y = d.g.uniform(-30, 640), d.g.uniform(0, 480)
        c = Escala(["#b8f0e0", "#3fb0d8", "#2f6ac8", "#2a3a9a"], y / 480 + d.g.uniform(-.25, .25))
        c = Mezcla(c, Escala(["#1f9a8a", "#5b6ae0", "#9a4ac0"], x / 640), .32)
        d.Ruta("M%g %g q12 -8 24 0 t24 0" % (x, y), "none",
               'stroke="%s" stroke-width="%.1f" stroke-opacity=".75" stroke-linecap="round"'
               % (c, d.g.uniform(2, 7)))
    for k in range(9):
        x = -60 + 90 * k
        d.Poli([(x, 0), (x + 34, 0), (x + 150, 480), (x + 60, 480)], "#ffffff", 'fill-opacity=".09"')
    for k in range(63):      # shoals of small fry, each shoal of one colour
        x, y = 71 * (k % 9) + 36 + d.g.uniform(-14, 14), 48 * (k // 9) + 22 + d.g.uniform(-12, 12)
        f = 1 if k % 2 else -1
        c = Escala(["#f9e27a", "#ff9a7a", "#f4f8ff", "#8af0c8", "#e8a8f0", "#12246b"], (k * .29) % 1)
        for j in range(3 + k % 4):
            px, py = x + d.g.uniform(-30, 30), y + d.g.uniform(-20, 20)
            d.Ruta("M%g %g q%g -7 %g 0 l%g -5 v10 l%g -5 q%g 7 %g 0 Z"
                   % (px, py, f * 7, f * 15, f * 6, -f * 6, -f * 8, -f * 15), d.Varia(c, 16),
                   'stroke="#10265a" stroke-width="1"')
    colores = ["#e8503a", "#f08a3c", "#d84a8a", "#9a4ac0", "#f2c14e", "#3fae7a", "#c83a5a"]
    for k in range(46):      # weed and coral from the floor
        x, c = d.g.uniform(-10, 650), d.Varia(d.g.choice(colores), 16)
        alto = d.g.uniform(50, 170)
        if k % 2:
            p = [(x + 13 * math.sin(t * .75 + k), 480 - alto * t / 12) for t in range(13)]
            d.Linea(p, Mezcla(c, "#000000", .5), 12, 'stroke-linecap="round"')
            d.Linea(p, Mezcla(c, "#1f8a4a", .6), 8, 'stroke-linecap="round"')
            for t in range(2, 13, 2):
                d.Elip(p[t][0] + 6, p[t][1], 8, 4, Mezcla(c, "#7ad06a", .6))
        else:
            _Coral(d, x, 480, -90, alto * .34, 7, c, 4)
    for k in range(170):
        d.Circ(d.g.uniform(0, 640), 470 + d.g.uniform(-18, 14), d.g.uniform(5, 13),
               d.Varia(d.g.choice(["#e8d2a0", "#c8a06a", "#f2e3c0", "#a87a5a"]), 16),
               'stroke="#6b4a2a" stroke-width="1"')
    peces = [(130, 90, 1.15, 6, "#f9a03a", "#c8401f", "#fff0d8"), (330, 70, -.8, 4, "#f7dc4a", "#2f62c4", "#12286b"),
             (520, 110, 1.25, -8, "#e8503a", "#7a1414", "#f8dfa2"), (90, 220, -.95, 10, "#6ad0c0", "#14786a", "#f2c14e"),
             (300, 190, 1.35, -4, "#f2c14e", "#d8641f", "#3a1a6a"), (500, 250, -1.05, 6, "#c88af0", "#5a2a9a", "#f9e27a"),
             (160, 335, 1.1, -10, "#f58ab0", "#b02a6a", "#fff0f6"), (392, 330, -.9, -4, "#9ae06a", "#2f8a2f", "#f0f8c0"),
             (575, 370, 1, 8, "#5bb0f0", "#123a9a", "#f2b33d"), (230, 265, .55, 0, "#ffd0a0", "#d8402e", "#7a1414"),
             (420, 180, .5, -12, "#ffe98a", "#e08a1f", "#2f62c4"), (40, 140, .55, 14, "#a8e8f0", "#2f7ac0", "#f9a03a"),
             (600, 40, -.6, 0, "#f9a8c0", "#c03a6a", "#fff0d8"), (230, 130, -.5, 8, "#b8f08a", "#3f9a2f", "#f2b33d")]
    for p in peces:
        _Pez(d, *p)
    for k in range(60):
        x, y, r = d.g.uniform(0, 640), d.g.uniform(0, 440), d.g.uniform(2.5, 9)
        d.Circ(x, y, r, "#dff4ff", 'fill-opacity=".28" stroke="#f4fcff" stroke-width="1.4"')
        d.Circ(x - r * .3, y - r * .3, r * .25, "#ffffff")
    return AImagen(lienzo.Grano(lienzo.Ondula(d.Imagen(), 53, 1.5, 24), 55, 5))


def _Coral(d, x, y, giro, largo, grueso, color, nivel):
    a = math.radians(giro)
    x1, y1 = x + largo * math.cos(a), y + largo * math.sin(a)
    extra = 'stroke-linecap="round"'
    d.Linea([(x, y), (x1, y1)], Mezcla(color, "#000000", .45), grueso + 2.6, extra)
    d.Linea([(x, y), (x1, y1)], d.Varia(color, 12), grueso, extra)
    if nivel:
        for desvio in (-28, 24):
            _Coral(d, x1, y1, giro + desvio + d.g.uniform(-12, 12), largo * .78, grueso * .74, color,
                   nivel - 1)


# --- Tapiz: a woven cloth whose colours and signs change from thread to thread.

def Tapiz():
    d = Dibujo(400, 300, 61)
    hilos = ["#8a1f1f", "#c8552f", "#e3a02c", "#2f6a4a", "#1b3f94", "#5a2a6a", "#f2e3c0", "#1f1a2a"]
    for j in range(10):
        for i in range(13):
            x, y = i * 32 - 8, j * 32 - 10
            c = Escala(hilos[:6], (i / 13 + j * .37 + .11 * math.sin(i * 1.3)) % 1)
            f = Escala(hilos[2:], (j / 10 + i * .29) % 1)
            d.Rect(x, y, 32, 32, d.Varia(f, 12))
            n = (i * 5 + j * 3) % 7
            if n < 3:
                d.Poli([(x + 16, y), (x + 32, y + 16), (x + 16, y + 32), (x, y + 16)], c)
                d.Poli([(x + 16, y + 7), (x + 25, y + 16), (x + 16, y + 25), (x + 7, y + 16)],
                       hilos[(i + j) % 8])
            elif n < 5:
                d.Estrella(x + 16, y + 16, 16, 8, .6, c, 0)
                d.Circ(x + 16, y + 16, 6, hilos[(i + 3 * j) % 8])
            else:
                for k in range(4):
                    d.Poli([(x, y + 8 * k), (x + 16, y + 8 * k + 8), (x + 32, y + 8 * k),
                            (x + 32, y + 8 * k + 4), (x + 16, y + 8 * k + 12), (x, y + 8 * k + 4)],
                           c if k % 2 else hilos[(i + 2 * j + k) % 8])
    d.Rect(5, 5, 390, 290, "none", 'stroke="#f2e3c0" stroke-width="4" stroke-dasharray="10 6"')
    a = lienzo.Ondula(d.Imagen(), 63, .8, 12)
    y, x = np.mgrid[0:300, 0:400]
    trama = np.where((x // 2 + y // 2) % 2 == 0, 9, -9) + 7 * np.sin(y * 1.57)
    return AImagen(lienzo.Tinte(a, 65, 26) + trama[:, :, None])


# --- Vidriera: a rose window in panes of coloured glass.

def Vidriera():
    w, h = 480, 640
    d = Dibujo(w, h, 81)
    d.Rect(0, 0, w, h, d.Degradado("fondo", ["#2a3a9a", "#7a3a9a", "#c83a5a", "#f0932b"]))
    for k in range(260):
        x, y = d.g.uniform(0, w), d.g.uniform(0, h)
        c = Escala(["#1f4ad0", "#8a3ac0", "#e0405a", "#f5b02e", "#2fa05a"], y / h + d.g.uniform(-.3, .3))
        d.Circ(x, y, d.g.uniform(14, 40), d.Varia(c, 24), 'fill-opacity=".55"')
    vidrios = ["#d8281f", "#1f4ad0", "#f5c02e", "#1f9a4a", "#8a2ac0", "#f07a1f", "#2fb0d8", "#f4f0e0"]
    for r, n, desfase in ((190, 24, 0), (150, 16, 1), (108, 12, 3), (66, 8, 5)):
        for k in range(n):
            a0, a1 = 2 * math.pi * k / n, 2 * math.pi * (k + 1) / n
            am = (a0 + a1) / 2
            q = math.pi * r / n * .92
            d.Poli([(240, 226)] + [(240 + r * math.cos(a0 + (a1 - a0) * t / 6),
                                    226 + r * math.sin(a0 + (a1 - a0) * t / 6)) for t in range(7)],
                   d.Varia(vidrios[(k * 3 + desfase) % 8], 18), 'stroke="#14101c" stroke-width="4"')
            d.Circ(240 + (r - q * .9) * math.cos(am), 226 + (r - q * .9) * math.sin(am), q * .62,
                   d.Varia(vidrios[(k * 5 + desfase + 2) % 8], 18), 'stroke="#14101c" stroke-width="3"')
    d.Circ(240, 226, 30, "#f5c02e", 'stroke="#14101c" stroke-width="5"')
    d.Estrella(240, 226, 26, 8, .5, "#d8281f", 0, 'stroke="#14101c" stroke-width="2"')
    d.Circ(240, 226, 196, "none", 'stroke="#14101c" stroke-width="7"')
    for k in range(4):       # lancets with a tree of life
        x = 20 + 112 * k
        d.Ruta("M%d 640 V500 Q%d 440 %d 424 Q%d 440 %d 500 V640 Z" % (x, x + 10, x + 52, x + 94, x + 104),
               vidrios[(k * 2 + 1) % 8], 'stroke="#14101c" stroke-width="5" fill-opacity=".75"')
        d.Linea([(x + 52, 640), (x + 52, 470)], "#5a3a14", 9)
        for j in range(6):
            for f in (-1, 1):
                d.Elip(x + 52 + f * 22, 480 + 26 * j, 19, 10, d.Varia(vidrios[(j + k * 3 + (f > 0)) % 8], 20),
                       'stroke="#14101c" stroke-width="2.5" transform="rotate(%d %d %d)"'
                       % (-f * 26, x + 52, 480 + 26 * j))
    a = d.Imagen()
    # Panes at random round the window; the rose and the lancets keep their own leading.
    y, x = np.mgrid[0:h, 0:w]
    rosa = np.hypot(x - 240, y - 226) < 199
    ancho = 52 * np.clip((y - 424) / 62, 0, 1) ** .5
    ojivas = (y > 424) & (x > 17) & (x < 463) & (np.abs((x - 20) % 112 - 52) < ancho)
    dentro = rosa | ojivas
    luz = 26 * lienzo.Fractal(w, h, 26, 87, 4, .6)[:, :, None]
    a = np.where(dentro[:, :, None], a + luz, lienzo.Vidrio(a, 30, 83, grueso=2))
    return AImagen(lienzo.Grano(a, 85, 4))
