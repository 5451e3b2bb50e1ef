#!/usr/bin/env bash
# Real print jobs, end to end: starts a print server of its own (in a temporary folder, on a socket there), with queues
# of several papers that keep the PDF they are sent unchanged; prints each of the four printouts through the program's own
# print path on each of them; reads the PDF back and compares paper, texts, order, places and pages. Another build preset can be named: scripts/baski-testi.sh asan
set -euo pipefail
. "$(dirname "$0")/ortak.sh"
ayar=${1:-dev}

cupsd=$(PATH=$PATH:/usr/sbin:/sbin command -v cupsd || true)
lpadmin=$(PATH=$PATH:/usr/sbin:/sbin command -v lpadmin || true)
atla() {
    bildir "Print test SKIPPED: $*"
    exit 0
}
[ -n "$cupsd" ] && [ -n "$lpadmin" ] || atla "there is no CUPS here (Debian packages cups-daemon, cups-client, cups-core-drivers)"
command -v pdftotext >/dev/null || atla "there is no pdftotext here (Debian package poppler-utils)"

# Not below the source folder: the server's own user must be able to enter it.
sunucu=$(mktemp -d)
chmod 755 "$sunucu"
mkdir -p "$sunucu"/{etc/ppd,is/tmp,onbellek,durum/certs,gunluk}
surec=
temizle() {
    [ -z "$surec" ] || kill "$surec" 2>/dev/null || true
    [ -z "$surec" ] || wait "$surec" 2>/dev/null || true
    rm -rf "$sunucu"
}
trap temizle EXIT

cat >"$sunucu/etc/cupsd.conf" <<AYAR
Listen $sunucu/durum/cups.sock
LogLevel warn
Browsing No
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
AYAR
cat >"$sunucu/etc/cups-files.conf" <<AYAR
ServerRoot $sunucu/etc
CacheDir $sunucu/onbellek
StateDir $sunucu/durum
RequestRoot $sunucu/is
TempDir $sunucu/is/tmp
AccessLog $sunucu/gunluk/access
ErrorLog $sunucu/gunluk/error
PageLog $sunucu/gunluk/page
FileDevice Yes
AYAR
# ppd NAME WIDTH HEIGHT: a printer's description with this paper (in points) and 5, 6, 7 and 8 mm that cannot be printed
# at its left, top, right and bottom; A4 is there too, so that the queue's own paper has to be asked for.
ppd() {
    cat <<PPD
*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "BASKI.PPD"
*Manufacturer: "Varnek"
*Product: "(Varnek)"
*ModelName: "Varnek"
*ShortNickName: "Varnek"
*NickName: "Varnek print test"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*cupsFilter2: "application/pdf application/pdf 0 gziptoany"
$(sayfa PageSize "$@")
$(sayfa PageRegion "$@")
*DefaultImageableArea: $1
*DefaultPaperDimension: $1
$(printf 'A4 595 842\n%s %s %s\n' "$@" | sort -u | while read -r ad en boy; do
        echo "*ImageableArea $ad/$ad: \"14.17 22.68 $(awk "BEGIN { print $en - 19.84, $boy - 17.01 }")\""
        echo "*PaperDimension $ad/$ad: \"$en $boy\""
    done)
*DefaultFont: Courier
PPD
}
sayfa() {
    local secenek=$1
    shift
    echo "*OpenUI *$secenek/Page Size: PickOne"
    echo "*OrderDependency: 10 AnySetup *$secenek"
    echo "*Default$secenek: $1"
    printf 'A4 595 842\n%s %s %s\n' "$@" | sort -u | while read -r ad en boy; do
        echo "*$secenek $ad/$ad: \"<</PageSize[$en $boy]>>setpagedevice\""
    done
    echo "*CloseUI: *$secenek"
}

bildir "Print test (preset $ayar)"
"$cupsd" -f -c "$sunucu/etc/cupsd.conf" -s "$sunucu/etc/cups-files.conf" &
surec=$!
export CUPS_SERVER="$sunucu/durum/cups.sock"
unset CUPS_USER LPDEST PRINTER
for _ in $(seq 100); do
    [ -S "$CUPS_SERVER" ] && break
    kill -0 "$surec" 2>/dev/null || break
    sleep 0.1
done
# kuyruk NAME WIDTH HEIGHT: the default printer from here on.
kuyruk() {
    ppd "$@" >"$sunucu/$1.ppd"
    "$lpadmin" -p "$1" -E -v "file://$sunucu/baski.pdf" -P "$sunucu/$1.ppd" && "$lpadmin" -d "$1"
}
if ! cikti=$(kuyruk A4 595 842 2>&1); then
    atla "the print server does not run here: $cikti $(tail -n 3 "$sunucu/gunluk/error" 2>/dev/null || true)"
fi

rm -rf build/baski-ortami
kendi_ortami baski-ortami
program="$kok/build/baski-ortami/program"
mkdir -p "$program"
"build/$ayar/bin/varnek-veri" ornek "$program/Varnek.vtb"
# The last is a roll of 80 mm.
while read -r ad en boy; do
    kuyruk "$ad" "$en" "$boy" 2>/dev/null
    QT_QPA_PLATFORM=offscreen timeout 60 "build/$ayar/bin/varnek-baski" "$program" "$sunucu/baski.pdf" "$en" "$boy"
done <<'KAGITLAR'
A4 595 842
Letter 612 792
A5 420 595
Rulo80 227 842
KAGITLAR
