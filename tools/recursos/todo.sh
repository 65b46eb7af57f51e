#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes every generated resource anew and checks it. Needs python3-pil, python3-numpy, librsvg2-bin.
set -e
cd "$(dirname "$0")"
export PYTHONDONTWRITEBYTECODE=1
python=/usr/bin/python3
$python sonidos.py
$python cursores.py
$python botones.py
$python muestras.py
$python ayuda.py
$python qrc.py
$python revisa_ayuda.py
