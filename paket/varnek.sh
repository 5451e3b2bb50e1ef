#!/bin/sh
# Starts Varnek where the program's own folder cannot be written to: the data file lies in the user's own folder. What
# is to become of a data file that is missing there is the program's matter.
: "${VARNEK_VERI_KLASORU:=${XDG_DATA_HOME:-$HOME/.local/share}/Tovrek/Varnek}"
export VARNEK_VERI_KLASORU
exec /usr/lib/varnek/Varnek "$@"
