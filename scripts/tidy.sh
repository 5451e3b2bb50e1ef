#!/usr/bin/env bash
# Looks for faults that the compiler does not see, by the list in .clang-tidy.
#   scripts/tidy.sh            everything but the tests: some ten minutes
#   scripts/tidy.sh FILE ...   these files
set -euo pipefail
. "$(dirname "$0")/ortak.sh"

scripts/kur.sh tidy
[ -e build/dev/compile_commands.json ] || cmake --preset dev
if [ $# -eq 0 ]; then mapfile -t dosyalar < <(git ls-files 'sayi/*.cpp' 'turkce/*.cpp' 'dosya/*.cpp' 'engine/*.cpp' 'src/*.cpp' 'arac/*.cpp'); else dosyalar=("$@"); fi
bildir "clang-tidy over ${#dosyalar[@]} files"
# Options of the compiler that clang does not know are no fault of ours.
printf '%s\0' "${dosyalar[@]}" |
    xargs -0 -n 4 -P "$(nproc)" clang-tidy --quiet -p build/dev --extra-arg=-Wno-unknown-warning-option
