#!/usr/bin/env bash
# Uses the program by keys alone, with a screen reader running, prints what that speaks and fails
# where it leaves out what a person who sees nothing needs: the words of spoken.tsv. Takes some minutes.
# Usage: spoken.sh FRONT_END STAND_IN
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
if [[ -z ${ON_A_BUS:-} ]]; then
    "$here/../../tools/install.sh" display spoken
    # What the bus says of itself is of no use.
    ON_A_BUS=yes exec dbus-run-session -- "$here/spoken.sh" "$@" 3>&2 2>/dev/null
fi
. "$here/../../tools/front_end.sh"

app=$work/app
config=$app/Config/Kestrivane.ini
missing=0
heard=0 # lines of the speech so far

# The screen reader writes what it would speak into a file, and needs no sound for it.
start_reader() {
    export SPOKEN=$work/spoken HOME=$work/home XDG_DATA_HOME=$work/home/data
    export LC_ALL=C.UTF-8 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
    mkdir -p "$XDG_DATA_HOME/orca"
    cat >"$XDG_DATA_HOME/orca/orca-customizations.py" <<'PY'
import os
from orca import speech

def write(text, acss=None, interrupt=True):
    with open(os.environ["SPOKEN"], "a", encoding="utf-8") as spoken:
        spoken.write(" ".join(text.split()) + "\n")

speech._initSpeechServer = lambda *arguments: None
speech._speak = write
PY
    /usr/libexec/at-spi-bus-launcher --launch-immediately &
    display_processes+=($!)
    orca --debug-file="$work/orca.log" &
    display_processes+=($!)
    wait_until 60 grep -q "Screen reader on" "$SPOKEN" || fail "the screen reader did not start"
}

is_spoken() { tail -n "+$((heard + 1))" "$SPOKEN" | grep -qF -- "$1"; }

# Presses the key, if there is one, and prints what is spoken until the words have come, or says that
# they have not. The rest of a sentence may take a moment more.
hear() { # key or -, words
    local patience=90 said
    if [[ $1 != - ]]; then
        patience=15
        heard=$(wc -l <"$SPOKEN")
        press "$1"
    fi
    if ! wait_until $patience is_spoken "$2"; then
        missing=$((missing + 1))
        echo "MISSING behind $1: $2" >&2
    fi
    sleep 0.7
    said=$(tail -n "+$((heard + 1))" "$SPOKEN")
    heard=$((heard + $(wc -l <<<"$said")))
    printf '  %-12s %s\n' "$1" "${said//$'\n'/|}"
}

exec 2>&3
start_display "$work" || fail "no display"
start_reader 2>/dev/null
lay_out "$app" "$1" "$2"
mkdir -p "$app/Config" "$app/My pictures"
write_archive "$app" 70 error ambrcst
heard=$(wc -l <"$SPOKEN")
start "$app" 2>/dev/null
while IFS=$'\t' read -r key words <&4; do
    if [[ $key == \#* ]]; then
        echo "${key#\# }"
    else
        hear "$key" "$words"
    fi
done 4<"$here/spoken.tsv"

grep -q '^ *;ROMpaths=.*Icons' "$config" || fail "the folder was not saved"
grep -q '^XResolution *= *800' "$config" || fail "the resolution was not saved"
((missing == 0)) || fail "$missing times"
echo "All was spoken"
