#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds one of the CMake presets into build/PRESET; silent unless it fails.
#   packaging/build.sh PRESET
set -eu
root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)
preset=$1
folder=$root/build/$preset

quietly() {
    "$@" >"$folder/build.log" 2>&1 </dev/null || {
        cat "$folder/build.log" >&2
        exit 1
    }
}

# A folder that was configured whole, after the presets last changed, and for a checkout at this place.
configured() {
    [ -n "$(find "$folder/build.ninja" -newer CMakePresets.json 2>/dev/null)" ] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"
}

cd "$root"
mkdir -p "$folder"
if ! configured; then
    echo "Building $preset: the first time takes a few minutes." >&2
    quietly cmake --fresh --preset "$preset"
fi
quietly cmake --build --preset "$preset"
