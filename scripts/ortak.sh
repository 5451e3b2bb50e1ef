# Shared by the scripts in this folder; sourced, not run. Sets `kok` and goes there.

kok=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$kok"

bildir() { printf '\n== %s\n' "$*"; }
vazgec() {
    printf '%s\n' "$*" >&2
    exit 1
}

# kendi_ortami NAME: from here on data, settings and ODBC data sources lie in build/NAME, never in the user's folders.
kendi_ortami() {
    local ortam="$kok/build/$1"
    mkdir -p "$ortam/veri" "$ortam/ayar" "$ortam/onbellek"
    export XDG_DATA_HOME="$ortam/veri" XDG_CONFIG_HOME="$ortam/ayar" XDG_CACHE_HOME="$ortam/onbellek"
    export ODBCINI="$ortam/odbc.ini"
    unset ODBCSYSINI ODBCINSTINI
}

# derle PRESET [TARGET...]: configures and builds; no target means everything.
derle() {
    local ayar=$1 onbellek=
    shift
    bildir "Building (preset $ayar)"
    onbellek=$(command -v ccache || true)
    cmake --preset "$ayar" -DCMAKE_CXX_COMPILER_LAUNCHER="$onbellek"
    cmake --build --preset "$ayar" ${1:+--target "$@"}
}
