#!/usr/bin/env bash
# Installs the Debian packages that are missing, and nothing else.
#   scripts/kur.sh [test] [bicim] [tidy]
# Without arguments: what building and running need. test: running the tests and the tour without a display as well;
# bicim: checking the formatting; tidy: looking for faults with clang-tidy.
set -euo pipefail
. "$(dirname "$0")/ortak.sh"

paketler=(build-essential cmake ninja-build pkg-config qt6-base-dev libqt6gui6 libgl-dev libodbc2 libodbcinst2
    unixodbc-dev libsqlite3-dev nettle-dev libminizip-dev libxlsxwriter-dev mdbtools-dev libgtest-dev
    libbenchmark-dev mdbtools libsqliteodbc fonts-dejavu-core fonts-liberation qt6-translations-l10n)
for kume in "$@"; do
    case $kume in
        test) paketler+=(xvfb xauth locales cups-daemon cups-client cups-core-drivers poppler-utils) ;;
        bicim) paketler+=(clang-format git) ;;
        tidy) paketler+=(clang-tidy) ;;
        *) vazgec "kur.sh: unknown set '$kume' (test, bicim, tidy)" ;;
    esac
done

eksikler=()
for paket in "${paketler[@]}"; do
    durum=$(dpkg-query -W -f='${db:Status-Status}' "$paket" 2>/dev/null || true)
    [ "$durum" = installed ] || eksikler+=("$paket")
done
[ ${#eksikler[@]} -gt 0 ] || exit 0

elle="Please install these packages and try again: apt-get install ${eksikler[*]}"
command -v apt-get >/dev/null || vazgec "This system has no apt-get. $elle"
yonetici=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || vazgec "Packages are missing, and there is neither root nor sudo. $elle"
    yonetici=(sudo)
fi
bildir "Installing ${eksikler[*]}"
apt_get() { "${yonetici[@]}" env DEBIAN_FRONTEND=noninteractive apt-get "$@"; }
apt_get update || vazgec "The package lists could not be read. $elle"
apt_get install -y --no-install-recommends "${eksikler[@]}" || vazgec "Installing failed. $elle"
