#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Completes the staging folder of the Debian package: its change log, compressed pages, plain permissions.
#   packaging/deb/completa.sh FOLDER VERSION DATE CONTACT
set -eu
root=$(CDPATH='' cd -- "$(dirname -- "$0")/../.." && pwd)
folder=$1
doc=$folder/usr/share/doc/cronovia

# The newest release of CHANGELOG.md, each of its points in one line.
points() {
    awk '/^## / { if (seen++) exit; next }
         seen && /^- / { if (point != "") print point; point = "  * " substr($0, 3); next }
         seen && /^  [^ ]/ { point = point " " substr($0, 3); next }
         seen && point != "" { print point; point = "" }
         END { if (point != "") print point }' "$root/CHANGELOG.md" | fold -s -w 78 | sed 's/^\([^ ]\)/    \1/; s/ *$//'
}

{
    printf 'cronovia (%s) unstable; urgency=medium\n\n' "$2"
    points
    printf '\n -- %s  %s\n' "$4" "$(LC_ALL=C date -u -R -d "$3")"
} | gzip -9n >"$doc/changelog.gz"
rm -f -- "$doc/CHANGELOG.md"
gzip -9nf "$folder"/usr/share/man/man1/*.1
find "$folder/usr" -type d -exec chmod 755 {} +
find "$folder/usr" -type f ! -path '*/bin/*' -exec chmod 644 {} +
