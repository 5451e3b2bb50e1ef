#!/usr/bin/env bash
# Draws the icon's pictures anew from its two SVG files; to be run after changing one of them. Needs librsvg2-bin.
set -euo pipefail
. "$(dirname "$0")/ortak.sh"
command -v rsvg-convert >/dev/null || vazgec "Please install librsvg2-bin and try again."

klasor=src/resources/simge
for boy in 16 24 32 48 64 128 256; do
    kaynak=varnek
    [ $boy -gt 24 ] || kaynak=varnek-kucuk
    rsvg-convert -w $boy -h $boy "$klasor/$kaynak.svg" -o "$klasor/varnek-$boy.png"
done
