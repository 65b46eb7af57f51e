# SPDX-License-Identifier: GPL-3.0-or-later
# Shared by play and check, which read it in: what the machine must have, by Debian package names.
# instala_paquetes GROUP... installs what is missing of the groups juego (to build and play),
# pruebas (to test), fuzz (to fuzz), bench (to measure) and paquete (to make the Debian package). A complete machine is only asked, and nothing is done.

PAQUETES_juego="g++ cmake ninja-build qt6-base-dev libsdl2-dev libxcb1-dev fonts-liberation2"
PAQUETES_pruebas="python3 clang-format clang-tidy desktop-file-utils appstream libgtest-dev libx11-dev libxtst-dev xvfb openbox imagemagick x11-xserver-utils"
PAQUETES_fuzz="clang libgtest-dev"
PAQUETES_bench="libbenchmark-dev libpixman-1-dev pkgconf"
PAQUETES_paquete="debhelper lintian fakeroot dpkg-dev"
PAQUETES_pantalla="xvfb openbox imagemagick"

# The packages among the arguments that are not installed; one question for all.
paquetes_ausentes() {
  local puestos p
  # It fails when one of them is unknown, which must not end a caller that stops at failures.
  puestos=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null) || true
  for p in "$@"; do
    case $'\n'"$puestos"$'\n' in
      *$'\n'"$p installed"$'\n'*) ;;
      *) printf '%s\n' "$p" ;;
    esac
  done
}

# How far a long step is: con_avance TITLE LOG COMMAND... runs the command with all its output in
# the log and shows a percentage, on a terminal in one line that renews itself, elsewhere a line
# every quarter. It knows ninja's [12/80], ctest's 12/80 and the status lines of apt. The exit
# status is the command's.
con_avance() {
  local titulo=$1 registro=$2 terminal=0; shift 2
  [ -t 1 ] && terminal=1
  "$@" 2>&1 | tee -a "$registro" | awk -v titulo="$titulo" -v terminal="$terminal" '
    function dice(p) {
      if (terminal) { if (p != ultimo) { printf "\r%s %3d %%", titulo, p; fflush() } }
      else if (p >= meta) { printf "%s %d %%\n", titulo, p; fflush(); meta = (int(p / 25) + 1) * 25 }
      ultimo = p
    }
    BEGIN { ultimo = -1 }
    match($0, /^\[[0-9]+\/[0-9]+\]/) { split(substr($0, 2, RLENGTH - 2), n, "/"); dice(int(100 * n[1] / n[2])) }
    match($0, /^ *[0-9]+\/[0-9]+ Test /) { split($0, n, /[\/ ]+/); i = n[1] == "" ? 2 : 1; dice(int(100 * n[i] / n[i + 1])) }
    /^(pm|dl)status:/ { split($0, n, ":"); dice(int((/^dl/ ? 0 : 50) + n[3] / 2)) }
    END { if (terminal && ultimo >= 0) print "" }'
  return "${PIPESTATUS[0]}"
}

instala_paquetes() {
  local grupo nombre faltan sudo=""
  local -a lista=()
  for grupo in "$@"; do
    nombre="PAQUETES_$grupo"
    # shellcheck disable=SC2206
    lista+=(${!nombre})
  done
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "Este sistema no usa paquetes de Debian; se supone que están instalados: ${lista[*]}"
    return 0
  fi
  mapfile -t faltan < <(paquetes_ausentes "${lista[@]}")
  [ ${#faltan[@]} -eq 0 ] && return 0
  echo "Se instalan los paquetes que faltan (installing): ${faltan[*]}"
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "Hace falta ser administrador (root). Ejecute: apt-get install ${faltan[*]}" >&2
      return 1
    fi
    sudo=sudo
  fi
  local registro
  registro=$(mktemp)
  $sudo env DEBIAN_FRONTEND=noninteractive apt-get update -q >"$registro" 2>&1 || true
  con_avance "Paquetes (packages)" "$registro" \
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -q -o APT::Status-Fd=1 \
    --no-install-recommends "${faltan[@]}" || { tail -n 40 "$registro" >&2; rm -f "$registro"; return 1; }
  rm -f "$registro"
}

# Is there an X or Wayland display that programs of this session can use?
hay_pantalla() {
  [ -n "${WAYLAND_DISPLAY:-}" ] && return 0
  [ -n "${DISPLAY:-}" ] || return 1
  # Its socket tells without any tool; a display on another machine is believed.
  local n=${DISPLAY#*:}; n=${n%%.*}
  case $DISPLAY in
    :*|unix:*) [ -S "/tmp/.X11-unix/X$n" ] || grep -qs "@/tmp/.X11-unix/X$n\$" /proc/net/unix ;;
    *) true ;;
  esac
}

# A display number that nobody uses.
numero_libre() {
  local n
  for n in $(seq 90 190); do
    [ -e "/tmp/.X$n-lock" ] || [ -e "/tmp/.X11-unix/X$n" ] || { echo "$n"; return; }
  done
}
