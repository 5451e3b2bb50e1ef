#!/usr/bin/env bash
# Installs what is missing, builds the development preset and runs all tests twice: under tr_TR.UTF-8, where the letters
# and numbers of C differ from the program's own, and under plain C. Another preset can be named: scripts/test.sh asan
set -euo pipefail
. "$(dirname "$0")/ortak.sh"
ayar=${1:-dev}

scripts/kur.sh test
derle "$ayar"
kendi_ortami test-ortami

# The Turkish locale, made below build/ where the system has none.
if ! locale -a | grep -qix 'tr_TR\.utf-\?8'; then
    yerel="$kok/build/yerel"
    mkdir -p "$yerel"
    [ -d "$yerel/tr_TR.UTF-8" ] || localedef -i tr_TR -f UTF-8 "$yerel/tr_TR.UTF-8"
    export LOCPATH="$yerel"
fi
[ "$(LC_ALL=tr_TR.UTF-8 locale decimal_point)" = , ] || vazgec "The locale tr_TR.UTF-8 could not be made."

sonuc=0
for dil in tr_TR.UTF-8 C; do
    bildir "Tests under $dil (preset $ayar)"
    LC_ALL=$dil LANGUAGE='' ctest --test-dir "build/$ayar" --output-on-failure --no-tests=error -j "$(nproc)" || sonuc=1
done
scripts/baski-testi.sh "$ayar" || sonuc=1
exit $sonuc
