#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Takes the pictures of manual and README anew, from the program as it runs (build/release, or CRONOVIA_PRESET), on a
# screen of its own. Wants: packaging/setup.sh pictures
#   packaging/immagini.sh
set -eu
root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)
program=$root/build/${CRONOVIA_PRESET:-release}/src/cronovia
pictures=$root/docs/immagini
[ -x "$program" ] || {
    echo "There is no $program: packaging/build.sh ${CRONOVIA_PRESET:-release} builds it." >&2
    exit 1
}
work=$(mktemp -d)
export DISPLAY=":${CRONOVIA_DISPLAY:-87}" XDG_RUNTIME_DIR="$work" QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8

tidy() {
    for process in "${window-}" "${manager-}" "${screen-}"; do
        [ -z "$process" ] || kill "$process" 2>/dev/null || true
    done
    wait
    rm -rf -- "$work"
}
trap tidy EXIT
trap 'exit 130' INT TERM

# Few colours are enough for a window, and make small files.
picture() {
    sleep 1.5
    import -window root "$work/$1.png"
    convert "$work/$1.png" -strip -dither None -colors 160 "PNG8:$pictures/$1.png"
}
press() {
    xdotool key --delay 150 "$@"
    sleep 0.7
}
open_window() {
    "$program" --cartella "$1" >"$work/program.log" 2>&1 &
    window=$!
    face=
    until [ -n "$face" ]; do
        sleep 0.2
        face=$(xdotool search --onlyvisible --name Cronovia 2>/dev/null | tail -n 1) || true
    done
    sleep 1
    xdotool windowmove "$face" 0 0 windowsize "$face" 1280 800 windowfocus "$face"
    sleep 1
}
close_window() {
    kill "$window"
    wait "$window" || true
    window=
}

mkdir -p "$pictures"
Xvfb "$DISPLAY" -screen 0 1280x800x24 >/dev/null 2>&1 &
screen=$!
sleep 1
printf '%s' '<openbox_config xmlns="http://openbox.org/3.4/rc"><applications><application class="*"><decor>no</decor></application></applications></openbox_config>' >"$work/openbox.xml"
openbox --config-file "$work/openbox.xml" >/dev/null 2>&1 &
manager=$!
sleep 1

open_window "$work/vuota"
picture benvenuto
close_window

"$program" --cartella "$work/dati" importa "$root/examples/provenza.iei" >/dev/null
open_window "$work/dati"
picture meta
press F9
picture cronovia
press ctrl+g ctrl+m F8
picture giornate
press ctrl+g ctrl+m F8 F9 ctrl+i
picture itinerario
press Escape
close_window
open_window "$work/dati"
press ctrl+u
picture guida
close_window
