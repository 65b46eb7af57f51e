# SPDX-License-Identifier: GPL-3.0-or-later
"""What the sample pictures are drawn with: SVG shapes by program, noise, and three finishes.

A picture is drawn as an SVG by a seeded generator, rendered, and then finished as a glaze (soft
stains and grain), as a mosaic of small stones or as stained glass.
"""
import math
import random

import numpy as np
from PIL import Image

import svg


def Rgb(c):
    return tuple(int(c[i:i + 2], 16) for i in (1, 3, 5))


def Hex(c):
    return "#%02x%02x%02x" % tuple(max(0, min(255, int(round(v)))) for v in c)


def Mezcla(a, b, t):
    return Hex([x + (y - x) * t for x, y in zip(Rgb(a), Rgb(b))])


def Escala(colores, t):
    """Colour at t, 0 to 1, of a row of colours."""
    t = max(0.0, min(0.9999, t)) * (len(colores) - 1)
    return Mezcla(colores[int(t)], colores[int(t) + 1], t - int(t))


class Dibujo:
    """SVG under way. g is its own random generator, so a picture is always the same."""

    def __init__(self, ancho, alto, semilla):
        self.w, self.h, self.g = ancho, alto, random.Random(semilla)
        self.partes, self.defs = [], []

    def Pon(self, texto):
        self.partes.append(texto)

    def Varia(self, color, cuanto=14):
        return Hex([v + self.g.uniform(-cuanto, cuanto) for v in Rgb(color)])

    def Poli(self, puntos, relleno, extra=""):
        self.Pon('<polygon points="%s" fill="%s" %s/>'
                 % (" ".join("%.1f,%.1f" % p for p in puntos), relleno, extra))

    def Linea(self, puntos, color, grueso=1, extra=""):
        self.Pon('<polyline points="%s" fill="none" stroke="%s" stroke-width="%.2f" %s/>'
                 % (" ".join("%.1f,%.1f" % p for p in puntos), color, grueso, extra))

    def Circ(self, x, y, r, relleno, extra=""):
        self.Pon('<circle cx="%.1f" cy="%.1f" r="%.1f" fill="%s" %s/>' % (x, y, r, relleno, extra))

    def Elip(self, x, y, a, b, relleno, extra=""):
        self.Pon('<ellipse cx="%.1f" cy="%.1f" rx="%.1f" ry="%.1f" fill="%s" %s/>'
                 % (x, y, a, b, relleno, extra))

    def Rect(self, x, y, w, h, relleno, extra=""):
        self.Pon('<rect x="%.1f" y="%.1f" width="%.1f" height="%.1f" fill="%s" %s/>'
                 % (x, y, w, h, relleno, extra))

    def Ruta(self, d, relleno="none", extra=""):
        self.Pon('<path d="%s" fill="%s" %s/>' % (d, relleno, extra))

    def Abre(self, transformacion):
        self.Pon('<g transform="%s">' % transformacion)

    def Cierra(self):
        self.Pon("</g>")

    def Degradado(self, nombre, colores, vertical=True):
        paradas = "".join('<stop offset="%.3f" stop-color="%s"/>' % (i / (len(colores) - 1), c)
                          for i, c in enumerate(colores))
        fin = 'x2="0" y2="1"' if vertical else 'x2="1" y2="0"'
        self.defs.append('<linearGradient id="%s" x1="0" y1="0" %s>%s</linearGradient>'
                         % (nombre, fin, paradas))
        return "url(#%s)" % nombre

    def Estrella(self, x, y, r, puntas, hondo, relleno, giro=0, extra=""):
        p = []
        for k in range(2 * puntas):
            a = giro - math.pi / 2 + k * math.pi / puntas
            q = r if k % 2 == 0 else r * hondo
            p.append((x + q * math.cos(a), y + q * math.sin(a)))
        self.Poli(p, relleno, extra)

    def Imagen(self):
        texto = ('<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 %d %d" width="%d" '
                 'height="%d"><defs>%s</defs>%s</svg>'
                 % (self.w, self.h, self.w, self.h, "".join(self.defs), "".join(self.partes)))
        im = svg.Rinde(texto, self.w, self.h, 2).convert("RGB")
        return np.asarray(im, dtype=np.float32)


def RuidoSuave(w, h, paso, semilla):
    """Smooth noise of mean 0 and about -1 to 1; paso is the size of its stains in pixels."""
    g = np.random.default_rng(semilla)
    m = g.uniform(-1, 1, (max(2, int(h / paso) + 2), max(2, int(w / paso) + 2)))
    im = Image.fromarray(m.astype(np.float32)).resize((w, h), Image.BICUBIC)
    return np.asarray(im)


def Fractal(w, h, paso, semilla, octavas=5, peso=0.5):
    y, a = np.zeros((h, w), np.float32), 1.0
    for k in range(octavas):
        y += a * RuidoSuave(w, h, max(2, paso / 2 ** k), semilla + k)
        a *= peso
    return y / np.max(np.abs(y))


def Tinte(a, semilla, fuerza=16):
    """Broad stains of colour: the same motif is never quite the same in two places."""
    h, w = a.shape[:2]
    capas = [RuidoSuave(w, h, max(w, h) / 3.2, semilla + k) for k in range(3)]
    return a + fuerza * np.stack(capas, axis=2)


def Grano(a, semilla, fuerza=5):
    h, w = a.shape[:2]
    n = np.random.default_rng(semilla).standard_normal((h, w)).astype(np.float32)
    n = np.asarray(Image.fromarray(n).resize((w, h)))
    veta = RuidoSuave(w, h, 7, semilla + 9)
    return a + (fuerza * 0.6 * n + fuerza * 1.5 * veta)[:, :, None]


def Ondula(a, semilla, cuanto=2.0, paso=26):
    """Moves every pixel a little, as a hand would: straight edges lose their rule."""
    h, w = a.shape[:2]
    x = np.arange(w)[None, :] + cuanto * RuidoSuave(w, h, paso, semilla)
    y = np.arange(h)[:, None] + cuanto * RuidoSuave(w, h, paso, semilla + 1)
    x, y = np.clip(x, 0, w - 1.001), np.clip(y, 0, h - 1.001)
    i, j = x.astype(int), y.astype(int)
    u, v = (x - i)[:, :, None], (y - j)[:, :, None]
    return ((a[j, i] * (1 - u) + a[j, i + 1] * u) * (1 - v)
            + (a[j + 1, i] * (1 - u) + a[j + 1, i + 1] * u) * v)


def Celdas(w, h, lado, semilla, desorden=0.8):
    """Cells round scattered points: number of each pixel's cell, and how near its border it is."""
    g = np.random.default_rng(semilla)
    cx, cy = w // lado + 3, h // lado + 3
    px = (np.arange(cx)[None, :] - 1 + 0.5 + desorden * g.uniform(-.5, .5, (cy, cx))) * lado
    py = (np.arange(cy)[:, None] - 1 + 0.5 + desorden * g.uniform(-.5, .5, (cy, cx))) * lado
    xs, ys = np.meshgrid(np.arange(w), np.arange(h))
    ci, cj = xs // lado + 1, ys // lado + 1
    d1 = np.full((h, w), 1e9)
    d2 = np.full((h, w), 1e9)
    quien = np.zeros((h, w), int)
    for dj in (-2, -1, 0, 1, 2):
        for di in (-2, -1, 0, 1, 2):
            i, j = np.clip(ci + di, 0, cx - 1), np.clip(cj + dj, 0, cy - 1)
            d = np.hypot(xs - px[j, i], ys - py[j, i])
            n = j * cx + i
            nuevo = n != quien
            mejor = d < d1
            d2 = np.where(mejor & nuevo, d1, np.where((d < d2) & nuevo, d, d2))
            quien = np.where(mejor, n, quien)
            d1 = np.where(mejor, d, d1)
    return quien, d2 - d1, cx * cy


def MediaPorCelda(a, quien, n):
    cuenta = np.maximum(1, np.bincount(quien.ravel(), minlength=n))
    return np.stack([np.bincount(quien.ravel(), a[:, :, k].ravel(), n) / cuenta
                     for k in range(3)], axis=1)


def Mosaico(a, lado, semilla, junta=(222, 206, 176), salto=13):
    """Small stones of one colour each, with mortar between them."""
    h, w = a.shape[:2]
    quien, borde, n = Celdas(w, h, lado, semilla, 0.62)
    g = np.random.default_rng(semilla + 5)
    color = MediaPorCelda(a, quien, n) + g.normal(0, salto, (n, 1)) + g.normal(0, salto / 2.5, (n, 3))
    t = np.clip((borde - 0.7) / 1.3, 0, 1)[:, :, None]
    luz = (6 * np.clip(1 - borde / (lado * 0.5), 0, 1))[:, :, None]
    return color[quien] * t + (1 - t) * np.array(junta) + luz * t


def Vidrio(a, lado, semilla, plomo=(26, 22, 30), grueso=3.2):
    """Panes of coloured glass held by lead."""
    h, w = a.shape[:2]
    quien, borde, n = Celdas(w, h, lado, semilla, 0.95)
    g = np.random.default_rng(semilla + 5)
    color = MediaPorCelda(a, quien, n) + g.normal(0, 13, (n, 3))
    burbuja = 26 * Fractal(w, h, 30, semilla + 7)[:, :, None]
    centro = (30 * np.clip(borde / lado, 0, 1) - 8)[:, :, None]
    t = np.clip((borde - grueso) / 1.2, 0, 1)[:, :, None]
    return (color[quien] * 0.7 + a * 0.3 + burbuja + centro) * t + (1 - t) * np.array(plomo)


def AImagen(a):
    return Image.fromarray(np.clip(np.rint(a), 0, 255).astype(np.uint8), "RGB")
