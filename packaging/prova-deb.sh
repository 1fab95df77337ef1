#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs a Debian package into a clean Debian system of its own, starts the program there, and takes it away again.
# Wants root. The system that its dependencies make is kept in build/debian for the next time.
#   packaging/prova-deb.sh FILE.deb
set -eu
root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)
package=$1
suite=bookworm
mirror=${CRONOVIA_MIRROR:-http://deb.debian.org/debian}
cache=$root/build/debian
base=$cache/$suite-$(dpkg-deb -f "$package" Depends | md5sum | cut -c1-12).tar
clean=$(mktemp -d)
log=$clean.log

fail() {
    echo "$1" >&2
    exit 1
}
tidy() {
    rm -rf -- "$clean" "$log"
}
quietly() {
    "$@" >"$log" 2>&1 </dev/null || {
        cat "$log" >&2
        exit 1
    }
}
inside() {
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/home/prova LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
        QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=/home/prova chroot "$@"
}
as_user() {
    inside --userspec=1000:1000 "$clean" "$@"
}
files_of() {
    (cd "$clean" && find usr opt etc | LC_ALL=C sort)
}

# Debian with what apt finds for the package and nothing else; made anew when its dependencies change.
make_base() {
    quietly debootstrap --variant=minbase "$suite" "$clean" "$mirror"
    echo 'force-unsafe-io' >"$clean/etc/dpkg/dpkg.cfg.d/veloce"
    cp -- "$package" "$clean/cronovia.deb"
    quietly inside "$clean" apt-get -q -y --no-install-recommends install ./cronovia.deb
    quietly inside "$clean" dpkg --purge cronovia
    quietly inside "$clean" apt-get -q clean
    mkdir -p "$cache"
    rm -f -- "$cache"/*.tar
    tar -C "$clean" -cf "$base.parte" .
    mv -- "$base.parte" "$base"
}

[ "$(id -u)" -eq 0 ] || fail "Only root can make a clean system: sudo packaging/prova-deb.sh $package"
trap tidy EXIT
trap 'exit 130' INT TERM
if [ -e "$base" ]; then tar -C "$clean" -xf "$base"; else make_base; fi
chmod 755 "$clean"
mkdir -p "$clean/home/prova"
chown 1000:1000 "$clean/home/prova"
cp -- "$package" "$clean/cronovia.deb"
before=$(files_of)
quietly inside "$clean" dpkg --install ./cronovia.deb

as_user cronovia --version
as_user cronovia elenca
as_user cronovia importa /usr/share/doc/cronovia/examples/provenza.iei
trip=$(as_user cronovia elenca --formato tsv | awk 'END { print $1 }')
as_user cronovia calcola "$trip" >"$log"
tail -n 2 "$log"
as_user cronovia stampa "$trip" --pdf /home/prova/viaggio.pdf
[ -e "$clean/home/prova/.local/share/Cronovia/VandroCronovia.mdb" ] || fail "The data is not where users have theirs."
# The window stays open until it is told to go, and goes then as a session that ends wants it.
code=0
as_user timeout --signal=TERM 3 cronovia >"$log" 2>&1 || code=$?
# (What the screen that is none cannot do is no news.)
[ "$code" -eq 124 ] && ! grep -v propagateSizeHints "$log" || {
    cat "$log" >&2
    fail "The window did not open and close as it should: exit code $code."
}
# As root, too, nothing is laid beside the program.
quietly inside "$clean" cronovia elenca
quietly inside "$clean" dpkg --purge cronovia
[ "$before" = "$(files_of)" ] || fail "The package leaves something behind, or takes more than its own away."
echo "Installed, started and removed in a clean Debian $suite."
