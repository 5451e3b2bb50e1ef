#!/usr/bin/env bash
# Where programs and libraries look for others: every entry of their run paths must lie in or below their own folder. An
# empty entry would mean whatever folder the user happens to stand in.
#   scripts/kosu-yolu.sh FILE...
set -euo pipefail
sonuc=0
for dosya in "$@"; do
    baslik=$(LC_ALL=C readelf -dW "$dosya") || exit 1
    while IFS= read -r yollar; do
        IFS=: read -ra girdiler <<<"$yollar:son"
        for girdi in "${girdiler[@]::${#girdiler[@]}-1}"; do
            case $girdi in
                '$ORIGIN' | '$ORIGIN/'*) ;;
                *)
                    printf '%s: the run path has the entry "%s"\n' "$dosya" "$girdi" >&2
                    sonuc=1
                    ;;
            esac
        done
    done < <(sed -n 's/.*(R\(UN\)\{0,1\}PATH) .*\[\(.*\)\]$/\2/p' <<<"$baslik")
done
exit $sonuc
