#!/usr/bin/env bash
# Builds and runs the benchmarks: pairs (ours beside a peer) in one run, printed as ratios beside their bounds.
# Arguments go to every program, for example --benchmark_filter=tree
set -euo pipefail
. "$(dirname "$0")/ortak.sh"

scripts/kur.sh
derle release olcumler
kendi_ortami olcum-ortami
sonuc=0
for olcum in build/release/bin/Olcum*; do
    bildir "${olcum##*/}"
    QT_QPA_PLATFORM=offscreen "$olcum" "$@" 2> >(grep -v propagateSizeHints >&2) || sonuc=1
done
exit $sonuc
