#!/usr/bin/env bash
# Tries the packages of build/paket/ for real, on a bare Debian without any build tool: install, start, use, upgrade,
# lose the data file, remove; and the portable archive likewise. Needs root (chroot) and the network.
#   scripts/paket-dene.sh [ROOT]      ROOT: a folder to keep the bare system in for the next time
set -euo pipefail
. "$(dirname "$0")/ortak.sh"
[ "$(id -u)" -eq 0 ] || vazgec "Only root can try the packages in a root of their own."
command -v debootstrap >/dev/null || vazgec "Please install debootstrap and try again."
paketler=(build/paket/varnek_*_amd64.deb)
arsivler=(build/paket/varnek-*.tar.gz)
[ -e "${paketler[0]}" ] && [ -e "${arsivler[0]}" ] || vazgec "Please run scripts/package.sh first."

temel=${1:-$kok/build/paket-temel}
[ -e "$temel/usr/bin/dpkg" ] || { bildir "A bare Debian in $temel"; debootstrap --variant=minbase bookworm "$temel"; }
kokdizin=$(mktemp -d "$kok/build/paket-kok-XXXXXX")
temizle() {
    umount -l "$kokdizin/proc" "$kokdizin/dev" 2>/dev/null || true
    rm -rf --one-file-system "$kokdizin"
}
trap temizle EXIT
cp -a "$temel/." "$kokdizin"
mount -t proc proc "$kokdizin/proc"
mount --bind /dev "$kokdizin/dev"
cp /etc/resolv.conf "$kokdizin/etc/resolv.conf"
cp scripts/paket-dene-icinde.sh "$kokdizin/dene.sh"
cp "${paketler[0]}" "$kokdizin/varnek.deb"
cp "${arsivler[0]}" "$kokdizin/varnek.tar.gz"
# The next revision of the same package, for the upgrade.
acik=$(mktemp -d "$kokdizin/paket-XXXXXX")
dpkg-deb -R "${paketler[0]}" "$acik"
sed -i 's/^\(Version: .*\)-[0-9]*$/\1-99/' "$acik/DEBIAN/control"
dpkg-deb -b "$acik" "$kokdizin/varnek-yeni.deb" >/dev/null
chroot "$kokdizin" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive bash /dene.sh
bildir "The packages do what they should"
