#!/usr/bin/env bash
# Installs what is missing, builds the release and starts Varnek on its own data below build/. The first start gets the
# sample data. Without a display the tour runs on a virtual screen instead and leaves its pictures in build/tour/.
set -euo pipefail
. "$(dirname "$0")/ortak.sh"

scripts/kur.sh
derle release Varnek varnek-motor varnek-veri varnek-kilavuz
kendi_ortami calisma

veri="$kok/build/release/bin/Varnek.vtb"
yedek="$XDG_DATA_HOME/Tovrek/Vtb Yedekleri/Varnek.ydk"
if [ ! -e "$veri" ] && [ ! -e "$yedek" ]; then
    build/release/bin/varnek-veri ornek "$veri"
fi

if [ -z "${DISPLAY:-}" ]; then
    bildir "There is no display: running the tour on a virtual screen"
    exec scripts/tour.sh
fi
bildir "Starting Varnek"
exec build/release/bin/Varnek
