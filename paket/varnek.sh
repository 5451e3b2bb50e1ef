#!/bin/sh
# Starts Varnek where the program's own folder cannot be written to: the data file lies in the user's own folder.
program=/usr/lib/varnek

if [ -z "${VARNEK_VERI_KLASORU:-}" ]; then
    tovrek=${XDG_DATA_HOME:-$HOME/.local/share}/Tovrek
    ayarlar=${XDG_CONFIG_HOME:-$HOME/.config}/Tovrek/Varnek.conf
    VARNEK_VERI_KLASORU=$tovrek/Varnek
    export VARNEK_VERI_KLASORU
    if [ ! -d "$VARNEK_VERI_KLASORU" ] && mkdir -p "$tovrek" && yeni=$(mktemp -d "$tovrek/varnek-XXXXXX"); then
        # An empty data file for somebody new alone. Where a backup or settings tell of earlier work, the file is lost:
        # the program then restores the backup, or says that the file is missing. The folder appears with the file in it
        # or not at all. What fails here is left to the program to report.
        if [ -e "$tovrek/Vtb Yedekleri/Varnek.ydk" ] || [ -e "$ayarlar" ] ||
            "$program/varnek-veri" yeni "$yeni/Varnek.vtb"; then
            mv -T "$yeni" "$VARNEK_VERI_KLASORU" 2>/dev/null
        fi
        [ ! -d "$yeni" ] || rm -rf "$yeni"
    fi
fi
exec "$program/Varnek" "$@"
