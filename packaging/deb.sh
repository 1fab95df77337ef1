#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the Debian package of a preset, release when none is named, and has it and its parts looked at. Prints its path.
#   packaging/deb.sh [PRESET]
set -eu
root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)
build=$root/build/${1:-release}
folder=$build/pacchetto

# Silent unless it fails.
quietly() {
    "$@" >"$build/pacchetto.log" 2>&1 </dev/null || {
        cat "$build/pacchetto.log" >&2
        exit 1
    }
}

"$root/packaging/setup.sh" build package
"$root/packaging/build.sh" "${1:-release}"
rm -rf -- "$folder"
# The links of an executable that stays where it was built are none of the package's.
(cd "$build" && quietly cpack --config CPackConfig.cmake)
package=$(echo "$folder"/*.deb)

tree=$folder/albero
dpkg-deb -x "$package" "$tree"
share=$tree/usr/share
quietly desktop-file-validate "$share"/applications/*.desktop
quietly appstreamcli validate --no-net "$share"/metainfo/*.xml
quietly mandoc -T lint -W warning "$build/cronovia.1"
rm -rf -- "$tree"
lintian --tag-display-limit 0 --fail-on error,warning "$package" >&2
echo "$package"
