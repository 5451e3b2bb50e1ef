#!/usr/bin/env bash
# The part of paket-dene.sh that runs inside the bare system. Each step stops the run when it goes wrong.
set -euo pipefail

bildir() { printf '\n== %s\n' "$*"; }
olmali() { "$@" || { echo "FAILED: $*" >&2; exit 1; }; }
# As the user, on the virtual screen; settings and data in the user's own home.
kullanici() { runuser -u usta -- env HOME=/home/usta DISPLAY=:7 LC_ALL=C.UTF-8 "$@"; }
ev=/home/usta
veri="$ev/.local/share/Tovrek/Varnek/Varnek.vtb"
yedek="$ev/.local/share/Tovrek/Vtb Yedekleri/Varnek.ydk"

# The main window's title: the package's version as the program writes it.
baslik="Tovrek - Varnek $(dpkg-deb -f /varnek.deb Version | sed 's/^\([0-9]*\)\.\([0-9]*\)\.\([0-9]*\).*/\1.\2\3/')"

pencere() { # pencere TITLE: waits for a window with this title
    local i
    for i in $(seq 100); do
        kullanici xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 && return 0
        sleep 0.2
    done
    echo "no window: $1" >&2
    kullanici import -window root /home/usta/ekran.png 2>/dev/null || true
    return 1
}
tus() { sleep 1; kullanici xdotool key --clearmodifiers "$@"; }
# Starts COMMAND with an empty data file: the question about an empty list is answered with No, the guide's key and the
# way out with the keyboard.
ac_kapat() {
    kullanici "$@" &
    local surec=$!
    olmali pencere "$baslik"
    tus Escape # "do you want to add a product": no
    tus Escape # leave
    tus Return # yes
    wait $surec
}

bildir "Installing what any desktop has: an X server, a font, xdotool for the hands"
apt-get -q update >/dev/null
apt-get -qy install --no-install-recommends xvfb xauth xdotool openbox fonts-dejavu-core libegl1 libgl1 libopengl0 \
    libglx0 libx11-xcb1 >/dev/null
for arac in gcc g++ cc cmake ninja qmake6; do ! command -v $arac >/dev/null || { echo "$arac is here"; exit 1; }; done
useradd -m usta
Xvfb :7 -screen 0 1280x1024x24 >/dev/null 2>&1 &
ekran=$!
trap 'kill $ekran 2>/dev/null' EXIT
sleep 2
kullanici openbox &
sleep 1

bildir "The portable archive: unpack, start"
kullanici tar -C "$ev" -xzf /varnek.tar.gz
tasinan=$(echo "$ev"/varnek-2*)
for dosya in Varnek libvarnek-motor.so odbcinst.ini varnek-veri bos/Varnek-bos.vtb kilavuz/index.html \
    kilavuz/AnaForm.html BENIOKU.txt; do
    olmali test -e "$tasinan/$dosya"
done
olmali test ! -e "$tasinan/Varnek.vtb" # nothing that could be taken for the user's
olmali test "$(ls -A "$ev/.local" 2>/dev/null | wc -l)" -eq 0
ac_kapat "$tasinan/Varnek"
olmali test -s "$yedek"
olmali test -s "$tasinan/Varnek.vtb"

bildir "The folder is lost and unpacked again: the backup with its rows comes back and stays"
rm -rf "$tasinan"
rm "$yedek"
kullanici tar -C "$ev" -xzf /varnek.tar.gz
kullanici "$tasinan/varnek-veri" ornek "$yedek"
ilk=$(sha256sum <"$yedek")
kullanici "$tasinan/Varnek" &
surec=$!
olmali pencere "$baslik"
tus Escape
tus Return
wait $surec
olmali test "$(sha256sum <"$tasinan/Varnek.vtb")" = "$ilk"
olmali test "$(sha256sum <"$yedek")" = "$ilk"

bildir "An empty data file beside that backup: the program asks, and keeps both"
rm "$tasinan/Varnek.vtb"
kullanici "$tasinan/varnek-veri" yeni "$tasinan/Varnek.vtb"
kullanici touch -d '10 days ago' "$tasinan/Varnek.vtb"
kullanici "$tasinan/Varnek" &
surec=$!
olmali pencere "$baslik"
tus Return # restore: yes
olmali pencere "^$baslik\$"
sleep 3
tus Escape
tus Return
wait $surec
olmali test "$(sha256sum <"$tasinan/Varnek.vtb")" = "$ilk"
olmali test -n "$(ls "$tasinan"/Varnek-bos-*.vtb)"
rm -rf "$tasinan" "$ev/.local" "$ev/.config"

bildir "The Debian package: install, first start"
apt-get -qy install --no-install-recommends /varnek.deb >/dev/null
for dosya in /usr/bin/varnek /usr/share/applications/varnek.desktop /usr/share/varnek/kilavuz/index.html \
    /usr/share/icons/hicolor/256x256/apps/varnek.png /usr/share/icons/hicolor/scalable/apps/varnek.svg; do
    olmali test -e $dosya
done
ac_kapat varnek
olmali test -s "$veri"
olmali test "$(stat -c %a "$veri")" = 600
olmali test -s "$yedek"
olmali test -s "$ev/.config/Tovrek/Varnek.conf"

bildir "Work, then the next revision"
kullanici /usr/lib/varnek/varnek-veri ornek "$ev/ornek.vtb"
kullanici cp "$ev/ornek.vtb" "$veri"
ilk=$(sha256sum <"$veri")
apt-get -qy install --no-install-recommends /varnek-yeni.deb >/dev/null
olmali test "$(dpkg-query -W -f '${Version}' varnek)" != "$(dpkg-deb -f /varnek.deb Version)"
olmali test "$(sha256sum <"$veri")" = "$ilk"
kullanici varnek &
surec=$!
olmali pencere "$baslik"
tus Escape
tus Return
wait $surec

bildir "A lost data file: the backup comes back; without one the program says so and makes no new file"
kullanici mv "$veri" "$ev/kayip.vtb"
rm -rf "$(dirname "$veri")"
ac_kapat varnek # the backup is the first start's: empty
olmali test -s "$veri"
for kayip in "$veri" "$ev/.local/share/Tovrek"; do # the file alone, then the whole folder
    rm -rf "$kayip" "$(dirname "$yedek")" # with the dated copies, which the start would offer
    kullanici varnek &
    surec=$!
    olmali pencere 'Varnek'
    tus Return
    if wait $surec; then
        echo "FAILED: the program ran without its data file" >&2
        exit 1
    fi
    olmali test ! -e "$veri"
done

bildir "Removing keeps the user's data"
kullanici cp "$ev/kayip.vtb" "$veri"
apt-get -qy purge varnek >/dev/null
olmali test ! -e /usr/lib/varnek
olmali test ! -e /usr/bin/varnek
olmali test "$(sha256sum <"$veri")" = "$ilk"
