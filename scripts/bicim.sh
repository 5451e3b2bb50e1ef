#!/usr/bin/env bash
# Checks that every source file is formatted as .clang-format says, and shows what is not. With --duzelt it puts the
# files right instead. (The output is compared, as clang-format 14's own -Werror trips over names such as Türkçe.)
set -euo pipefail
. "$(dirname "$0")/ortak.sh"
scripts/kur.sh bicim

bildir "Formatting"
sonuc=0
while IFS= read -r -d '' dosya; do
    if [ "${1:-}" = --duzelt ]; then
        clang-format -i "$dosya"
    else
        clang-format "$dosya" | diff -u --label "$dosya" --label "$dosya (formatted)" "$dosya" - || sonuc=1
    fi
done < <(git ls-files -z '*.cpp' '*.h')
[ $sonuc -eq 0 ] && echo "All source files are formatted." || vazgec "Run scripts/bicim.sh --duzelt"
