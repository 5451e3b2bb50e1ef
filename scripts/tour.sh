#!/usr/bin/env bash
# Opens every form on a fresh sample data file in a real window and writes a picture of each, and
# the PDF of each printout, into build/tour/.
# With a display the windows appear there; without one, or with --sanal, on a virtual screen.
set -euo pipefail
. "$(dirname "$0")/ortak.sh"

sanal=()
if [ -z "${DISPLAY:-}" ] || [ "${1:-}" = --sanal ]; then
    scripts/kur.sh test
    sanal=(xvfb-run -a -s "-screen 0 1280x1024x24")
else
    scripts/kur.sh
fi
derle release varnek-tur varnek-motor varnek-veri

rm -rf build/tour build/tur-ortami
mkdir -p build/tour
kendi_ortami tur-ortami
# A running Varnek of the user's is not in the way.
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR
trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
program="$kok/build/tur-ortami/program"
mkdir -p "$program"
cp build/release/bin/odbcinst.ini "$program"
build/release/bin/varnek-veri ornek "$program/Varnek.vtb"
# A box that nobody answers would hold the tour for ever.
QT_QPA_PLATFORM=xcb timeout 300 "${sanal[@]}" build/release/bin/varnek-tur "$program" "$kok/build/tour"
bildir "The pictures are in $kok/build/tour"
