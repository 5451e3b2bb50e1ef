#!/usr/bin/env bash
# Makes what people install, into build/paket/:
#   varnek-<version>-linux-x86_64.tar.gz   unpack and start
#   varnek_<version>-<revision>_amd64.deb  for Debian, with menu entry, icon and guide
# The guide's pictures come from the tour, which runs first where it has not. An argument sets the Debian revision.
set -euo pipefail
. "$(dirname "$0")/ortak.sh"
revizyon=${1:-1}

compgen -G 'build/tour/*.png' >/dev/null || scripts/tour.sh
scripts/kur.sh
derle release Varnek varnek-motor varnek-veri varnek-kilavuz varnek-bos

surum=$(sed -n 's/^project(Varnek VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
ad="varnek-$surum-linux-$(uname -m)"
paket="$kok/build/paket"
rm -rf "$paket"
mkdir -p "$paket"

bildir "The portable folder"
cmake --install build/release --strip --component tasinabilir --prefix "$paket/$ad" >"$paket/kurulum.log"
scripts/kosu-yolu.sh "$paket/$ad"/{Varnek,varnek-veri,libvarnek-motor.so}
tar --create --gzip --owner=0 --group=0 --sort=name --file "$paket/$ad.tar.gz" --directory "$paket" "$ad"
rm -rf "${paket:?}/$ad"

bildir "The Debian package"
(cd build/release && cpack -G DEB -B "$paket" -D CPACK_DEBIAN_PACKAGE_RELEASE="$revizyon") >>"$paket/kurulum.log"
acik=$(mktemp -d)
dpkg-deb -x "$paket"/varnek_*.deb "$acik"
scripts/kosu-yolu.sh "$acik"/usr/lib/varnek/{Varnek,varnek-veri,libvarnek-motor.so}
rm -rf "$acik" "$paket/_CPack_Packages" "$paket/kurulum.log"
ls -l "$paket"
