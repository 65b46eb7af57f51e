#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Contact sheets of the supplied Tangram models:
#
#     tessario_modelos resources/modelos <model file> <folder of pictures>
#     tools/modelos/hojas.sh <folder of pictures> <folder for the sheets>
#
# writes modelos-<n>.png with titles, and to be named by somebody who does not know the figures
# hoja-sin-titulos-<n>.png in a shuffled order under numbers alone, with the key in clave.txt.
# Wants ImageMagick.
set -eu
figuras=$(readlink -f "$1")
mkdir -p "$2"
destino=$(cd "$2" && pwd)
dibujos=$(mktemp -d)
trap 'rm -rf "$dibujos"' EXIT

POR_HOJA=112 COLUMNAS=14
FORMA=(-geometry 76x76+6+4 -font DejaVu-Sans -background white)

# Draws the sheets of a list of files "title<TAB>picture".
hojas() {   # list, name of the sheets, size of the letters
  local n=0 total
  total=$(wc -l <"$1")
  while [ $((n * POR_HOJA)) -lt "$total" ]; do
    local argumentos=()
    while IFS=$'\t' read -r titulo dibujo; do
      argumentos+=(-label "$titulo" "$dibujo")
    done < <(tail -n +$((n * POR_HOJA + 1)) "$1" | head -n $POR_HOJA)
    n=$((n + 1))
    montage "${FORMA[@]}" -pointsize "$3" "${argumentos[@]}" -tile ${COLUMNAS}x \
            -colorspace Gray -colors 16 -depth 4 "$destino/$2-$n.png"
  done
}

# "012 Gato sentado.pgm": the title without the number, broken so that it fits its column.
for f in "$figuras"/*.pgm; do
  nombre=$(basename "$f" .pgm)
  printf '%s\t%s\n' "$(printf '%s' "${nombre:4}" | fold -s -w 15 | sed 's/ *$//' | paste -sd'|' |
                       sed 's/|/\\n/g')" "$f"
done >"$dibujos/lista.txt"
hojas "$dibujos/lista.txt" modelos 9

# The shuffle is always the same one, so that a score can be checked.
shuf --random-source=<(yes 11) "$dibujos/lista.txt" |
  awk -F'\t' '{print NR "\t" $2}' >"$dibujos/sin.txt"
awk -F'\t' '{n = $2; sub(/.*\/[0-9]* /, "", n); sub(/\.pgm$/, "", n); print $1 "\t" n}' \
    "$dibujos/sin.txt" >"$destino/clave.txt"
hojas "$dibujos/sin.txt" hoja-sin-titulos 10
