#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the Debian packages that a task needs and this machine lacks; silent when nothing is missing.
#   packaging/setup.sh TASK...    TASK is one of: build test check package pictures bench fuzz
set -eu

packages_for() {
    case $1 in
        build) echo g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-translations-l10n fonts-liberation libsqlitecpp-dev libsqlite3-dev libminizip-dev zlib1g-dev ;;
        test) echo libgtest-dev libgmock-dev libical-dev libxml2-utils poppler-utils tidy \
            xvfb openbox xdotool dbus-daemon at-spi2-core python3 python3-gi gir1.2-atspi-2.0 ;;
        check) echo clang-format clang-tidy python3 ;;
        package) echo dpkg-dev lintian desktop-file-utils appstream mandoc debootstrap ;;
        pictures) echo xvfb openbox xdotool imagemagick ;;
        bench) echo libbenchmark-dev sqlite3 ;;
        fuzz) echo clang libclang-rt-14-dev ;;
        *) fail "setup.sh: there is no task \"$1\"" ;;
    esac
}

fail() {
    printf '%s\n' "$@" >&2
    exit 1
}

missing_of() {
    installed=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
    for package in "$@"; do
        printf '%s\n' "$installed" | grep -qxF "installed $package" || printf '%s ' "$package"
    done
}

# apt-get runs unseen; its words are shown when it fails.
apt() {
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get -q "$@" >>"$log" 2>&1 </dev/null
}

needed=
for task in "$@"; do
    packages=$(packages_for "$task")
    needed="$needed $packages"
done

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    fail "This set-up knows Debian 12 and its relatives only. What Cronovia needs here, by its Debian package names:" \
        " $needed" \
        "Once they are there: cmake --preset release && cmake --build --preset release"
fi

# shellcheck disable=SC2086  # package names, one word each
missing=$(missing_of $needed)
[ -n "$missing" ] || exit 0

sudo=
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "These packages are missing, and only root can install them:" \
        "  apt-get update && apt-get install --no-install-recommends $missing"
    sudo=sudo
fi

# Told before sudo asks for a password.
printf '%s\n' "A questa macchina mancano dei pacchetti Debian. Ora apt-get installa:" "  $missing" >&2
[ -z "$sudo" ] || echo "Per farlo sudo può chiedere la tua password; con Ctrl+C rinunci." >&2
log=$(mktemp)
trap 'rm -f -- "$log"' EXIT
trap 'exit 130' INT TERM
# One unreachable source does not hinder the others: whether the packages can be had, the install tells.
apt update || true
# shellcheck disable=SC2086
apt install -y --no-install-recommends $missing || {
    cat "$log" >&2
    fail "The packages could not be installed: $missing"
}
