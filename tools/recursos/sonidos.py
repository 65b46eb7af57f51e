#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the ten sounds of the game in resources/sonidos (44.1 kHz, 16 bit, mono).

Everything is synthesised: struck ceramic and wood (a few damped partials), a swish of filtered
noise, plucked strings for the fanfare. Every sound is brought to the same loudness, measured as the
largest K-weighted energy of any 200 ms, begins and ends at zero, and the table of what came out is
printed. The command fails when a limit is broken.
"""
import math
import pathlib
import struct
import sys
import wave

import numpy as np

RAIZ = pathlib.Path(__file__).resolve().parents[2]
DESTINO = RAIZ / "resources" / "sonidos"
FRECUENCIA = 44100

OBJETIVO_DB = -22.0    # K-weighted, loudest 200 ms
TOLERANCIA_DB = 0.5
PICO_MAXIMO = 0.89     # of full scale
VENTANA = 0.200

# Longest duration allowed, in milliseconds. The ones that are played to their end before the game
# goes on are short, so that fast automatic runs stay fast.
LIMITE_MS = {6: 60, 7: 60, 9: 110, 11: 300, 14: 2200, 50: 90, 51: 150, 52: 110, 53: 100, 55: 350}


def Tiempo(ms):
    return np.arange(int(FRECUENCIA * ms / 1000)) / FRECUENCIA


def Golpe(ms, parciales):
    """Struck body: (frequency Hz, level, decay time ms) for each partial."""
    t = Tiempo(ms)
    return sum(a * np.sin(2 * math.pi * f * t) * np.exp(-t * 1000 / d) for f, a, d in parciales)


def Ruido(ms, bajo, alto, semilla):
    """Noise between two frequencies, cut in the spectrum with soft edges."""
    n = int(FRECUENCIA * ms / 1000)
    m = n * 2
    espectro = np.fft.rfft(np.random.default_rng(semilla).standard_normal(m))
    f = np.fft.rfftfreq(m, 1 / FRECUENCIA) + 1e-9
    espectro *= 1 / (1 + (bajo / f) ** 4) / (1 + (f / alto) ** 4)
    x = np.fft.irfft(espectro, m)[:n]
    return x / np.max(np.abs(x))


def Suma(*capas):
    """Lays (start ms, signal) over each other."""
    fin = max(int(FRECUENCIA * t / 1000) + len(x) for t, x in capas)
    y = np.zeros(fin)
    for t, x in capas:
        i = int(FRECUENCIA * t / 1000)
        y[i:i + len(x)] += x
    return y


def Cuerda(frecuencia, ms, brillo=0.5, semilla=1):
    """Plucked string: a filtered burst that runs round a delay line."""
    n = int(FRECUENCIA * ms / 1000)
    periodo = FRECUENCIA / frecuencia
    largo = int(periodo - 0.5)
    fraccion = periodo - 0.5 - largo
    paso = (1 - fraccion) / (1 + fraccion)
    g = np.random.default_rng(semilla)
    linea = g.uniform(-1, 1, largo)
    for _ in range(int(6 * (1 - brillo)) + 1):
        linea = 0.5 * (linea + np.roll(linea, 1))
    linea -= linea.mean()
    y = np.empty(n)
    anterior = ap_x = ap_y = 0.0
    linea = list(linea)
    for i in range(n):
        j = i % largo
        v = linea[j]
        y[i] = v
        media = 0.9965 * 0.5 * (v + anterior)
        anterior = v
        # All-pass for the fraction of a sample that the delay line cannot hold: keeps it in tune.
        ap_y = paso * (media - ap_y) + ap_x
        ap_x = media
        linea[j] = ap_y
    return y / np.max(np.abs(y))


def Barrido(ms, f0, f1, caida):
    t = Tiempo(ms)
    f = f0 * (f1 / f0) ** (t / t[-1])
    fase = 2 * math.pi * np.cumsum(f) / FRECUENCIA
    return np.sin(fase) * np.exp(-t * 1000 / caida)


def Fanfarria():
    """A rising arpeggio on guitar strings that closes in a full major chord, with a bell on top."""
    re = 146.83
    nota = lambda semitonos: re * 2 ** (semitonos / 12)
    capas = []
    for k, (t, s) in enumerate([(0, 0), (95, 7), (190, 12), (285, 16), (380, 19)]):
        capas.append((t, 0.75 * Cuerda(nota(s), 900, 0.6, 11 + k)))
    for k, s in enumerate([0, 7, 12, 16, 19, 24]):
        capas.append((560 + 16 * k, 0.62 * Cuerda(nota(s), 1560 - 16 * k, 0.7, 31 + k)))
    for t, s, a in [(640, 36, 0.10), (640, 24, 0.14), (760, 31, 0.07)]:
        capas.append((t, Golpe(1300, [(nota(s), a, 420), (nota(s) * 2.76, a * 0.25, 130)])))
    return Suma(*capas)


def Sonidos():
    return {
        6: Suma((0, Golpe(55, [(2100, 1, 9), (3350, .35, 5), (1050, .3, 10)])),
                (0, .18 * Ruido(6, 2500, 9000, 6) * np.linspace(1, 0, int(.006 * FRECUENCIA)))),
        7: Suma((0, Golpe(55, [(1480, 1, 10), (2390, .35, 6), (740, .35, 11)])),
                (0, .18 * Ruido(6, 2000, 8000, 7) * np.linspace(1, 0, int(.006 * FRECUENCIA)))),
        9: Suma((0, Golpe(100, [(680, 1, 20), (1130, .5, 14), (2480, .25, 8), (340, .4, 22)])),
                (0, .25 * Ruido(9, 1500, 7000, 9) * np.linspace(1, 0, int(.009 * FRECUENCIA)))),
        11: Suma((0, Golpe(130, [(233, 1, 45), (466, .5, 35), (699, .28, 25), (932, .12, 20)])),
                 (120, Golpe(170, [(185, 1, 55), (370, .5, 45), (555, .28, 30), (740, .12, 22)]))),
        14: Fanfarria(),
        50: Suma((0, Barrido(80, 430, 760, 26)), (0, .3 * Barrido(80, 860, 1520, 16)),
                 (0, .12 * Ruido(8, 1500, 6000, 50) * np.linspace(1, 0, int(.008 * FRECUENCIA)))),
        51: Suma((0, Golpe(60, [(320, .9, 16), (900, .5, 10), (2700, .2, 6)])),
                 (14, Golpe(130, [(1318.5, .65, 42), (1975.5, .45, 34), (3950, .10, 14)])),
                 (0, .22 * Ruido(7, 1500, 8000, 51) * np.linspace(1, 0, int(.007 * FRECUENCIA)))),
        52: Suma((0, Golpe(100, [(190, 1, 24), (310, .5, 18), (620, .25, 10)])),
                 (0, .35 * Ruido(14, 400, 2500, 52) * np.linspace(1, 0, int(.014 * FRECUENCIA)))),
        53: Suma((0, .55 * Ruido(75, 700, 2600, 53)
                  * np.sin(np.linspace(0, math.pi, int(.075 * FRECUENCIA))) ** 1.5),
                 (62, .9 * Golpe(36, [(520, 1, 9), (1240, .5, 6)]))),
        55: Suma((0, Golpe(230, [(1046.5, 1, 70), (2093, .28, 40), (2888, .12, 25)])),
                 (110, Golpe(235, [(1568, 1, 75), (3136, .22, 40), (4328, .08, 22)]))),
    }


def Bordes(x):
    """Soft first 1 ms and last part, so that nothing clicks at the ends."""
    y = x.copy()
    entra = int(.001 * FRECUENCIA)
    sale = max(int(.006 * FRECUENCIA), min(len(y) // 4, int(.300 * FRECUENCIA)))
    y[:entra] *= 0.5 - 0.5 * np.cos(np.linspace(0, math.pi, entra))
    y[-sale:] *= 0.5 + 0.5 * np.cos(np.linspace(0, math.pi, sale))
    y[0] = y[-1] = 0
    return y


def Bicuadrado(x, b, a):
    y = np.empty_like(x)
    x1 = x2 = y1 = y2 = 0.0
    for i, v in enumerate(x):
        s = b[0] * v + b[1] * x1 + b[2] * x2 - a[1] * y1 - a[2] * y2
        x2, x1, y2, y1 = x1, v, y1, s
        y[i] = s
    return y


def PonderaK(x):
    """K weighting: a shelf that raises the treble by 4 dB, then a high pass at 38 Hz."""
    k = math.tan(math.pi * 1681.974450955533 / FRECUENCIA)
    q, vh = 0.7071752369554196, 10 ** (3.999843853973347 / 20)
    vb = vh ** 0.4996667741545416
    a0 = 1 + k / q + k * k
    b = [(vh + vb * k / q + k * k) / a0, 2 * (k * k - vh) / a0, (vh - vb * k / q + k * k) / a0]
    a = [1, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0]
    x = Bicuadrado(x, b, a)
    k = math.tan(math.pi * 38.13547087602444 / FRECUENCIA)
    q = 0.5003270373238773
    a0 = 1 + k / q + k * k
    return Bicuadrado(x, [1, -2, 1], [1, 2 * (k * k - 1) / a0, (1 - k / q + k * k) / a0])


def Sonoridad(x):
    """Largest mean K-weighted power of any 200 ms, in dB of full scale."""
    n = int(VENTANA * FRECUENCIA)
    y = np.concatenate([np.zeros(n), PonderaK(np.concatenate([x, np.zeros(n)])), np.zeros(n)]) ** 2
    c = np.cumsum(y)
    return 10 * math.log10(np.max(c[n:] - c[:-n]) / n)


def Escribe(ruta, x):
    with wave.open(str(ruta), "wb") as f:
        f.setnchannels(1)
        f.setsampwidth(2)
        f.setframerate(FRECUENCIA)
        f.writeframes(struct.pack("<%dh" % len(x), *x))


def main():
    DESTINO.mkdir(parents=True, exist_ok=True)
    faltas = []
    print(" id     ms   peak  K-dB   DC      first last")
    for numero, x in Sonidos().items():
        x = Bordes(x)
        for _ in range(2):
            x = x * 10 ** ((OBJETIVO_DB - Sonoridad(x)) / 20)
        pcm = np.rint(x * 32767).astype(int)
        db, pico = Sonoridad(pcm / 32767), np.max(np.abs(pcm)) / 32767
        ms = 1000 * len(pcm) / FRECUENCIA
        print("%3d %7.1f  %5.3f %6.2f %7.4f %5d %5d" %
              (numero, ms, pico, db, np.mean(pcm) / 32767, pcm[0], pcm[-1]))
        if ms > LIMITE_MS[numero]:
            faltas.append("%d lasts %.1f ms" % (numero, ms))
        if pico > PICO_MAXIMO:
            faltas.append("%d peaks at %.3f" % (numero, pico))
        if abs(db - OBJETIVO_DB) > TOLERANCIA_DB:
            faltas.append("%d has loudness %.2f" % (numero, db))
        if pcm[0] or pcm[-1]:
            faltas.append("%d does not begin and end at zero" % numero)
        Escribe(DESTINO / ("%d.wav" % numero), pcm.tolist())
    for f in faltas:
        print("FAULT:", f)
    return 1 if faltas else 0


if __name__ == "__main__":
    sys.exit(main())
