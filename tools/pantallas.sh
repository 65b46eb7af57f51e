#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Starts a built game on screens that no test has, and keeps pictures of them in build/pantallas:
#
#     tools/pantallas.sh [folder of the program, build/release/bin by default]
#
#   escala-2, escala-1.5   a screen of high density (Xvfb)
#   dos                    two screens of different size side by side (Xvfb)
#   cambio-1 .. cambio-3   1280x1024, then 800x600, then 1920x1080 while it runs (Xtigervnc, xrandr)
#   wayland                a Wayland compositor without X (weston)
#
# Wants the packages xvfb openbox imagemagick xdotool tigervnc-standalone-server x11-xserver-utils
# weston qt6-wayland. docs/screens.md says what there should be to see.
set -eu
cd "$(dirname "$(readlink -f "$0")")/.."
origen=$(readlink -f "${1:-build/release/bin}")
destino=$PWD/build/pantallas
raiz=$(mktemp -d)
propios=()
cierra() {
  local i
  for ((i = ${#propios[@]} - 1; i >= 0; --i)); do
    kill "${propios[i]}" 2>/dev/null && wait "${propios[i]}" 2>/dev/null || true
  done
  propios=()
}
trap 'cierra; rm -rf "$raiz"' EXIT
mkdir -p "$destino" "$raiz/sesion"
chmod 700 "$raiz/sesion"
export SDL_AUDIODRIVER=dummy XDG_RUNTIME_DIR=$raiz/sesion
unset WAYLAND_DISPLAY

lanza() {
  "$@" >/dev/null 2>&1 &
  propios+=($!)
}
# A new player's program in a folder and a home of its own.
juega() {
  rm -rf "$raiz/juego"
  mkdir "$raiz/juego"
  cp -r "$origen"/{tessario,Imagenes,Archivo} "$raiz/juego"
  cp resources/estreno/*.ini "$raiz/juego"
  HOME=$raiz/juego XDG_DATA_HOME=$raiz/juego/datos lanza "$raiz/juego/tessario"
  sleep 6
}
foto() {
  import -window root "$destino/$1.png"
  echo "$destino/$1.png"
}
# A private X server, the first free number of ours, with a window manager.
servidor() {
  local n=90
  while [ -e "/tmp/.X11-unix/X$n" ]; do n=$((n + 1)); done
  lanza "$1" ":$n" "${@:2}"
  export DISPLAY=":$n"
  for _ in $(seq 100); do [ -S "/tmp/.X11-unix/X$n" ] && break; sleep 0.05; done
  lanza openbox
  sleep 0.5
}

for factor in 2 1.5; do
  servidor Xvfb -screen 0 1600x1200x24 -nolisten tcp
  QT_SCALE_FACTOR=$factor juega
  foto "escala-$factor"
  cierra
done

servidor Xvfb -screen 0 2080x1024x24 -nolisten tcp -noreset
xrandr --setmonitor uno 1280/300x1024/200+0+0 screen
xrandr --setmonitor dos 800/300x600/200+1280+0 none
juega
foto dos
cierra

servidor Xtigervnc -geometry 1280x1024 -depth 24 -SecurityTypes None -localhost
juega
foto cambio-1
xdotool key Return
for tamano in 800x600 1920x1080; do
  xrandr -s $tamano
  sleep 2
  [ $tamano = 800x600 ] && foto cambio-2 || foto cambio-3
done
cierra

unset DISPLAY
lanza weston --backend=headless-backend.so --use-pixman --width=1280 --height=1024 \
  --socket=wayland-tessario --debug --idle-time=0
export WAYLAND_DISPLAY=wayland-tessario
sleep 2
QT_QPA_PLATFORM=wayland juega
(cd "$raiz" && weston-screenshooter && mv wayland-screenshot*.png "$destino/wayland.png")
echo "$destino/wayland.png"
