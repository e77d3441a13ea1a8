#!/usr/bin/env bash
# Uses the program by keys alone, with a screen reader running, prints what that speaks and fails
# where it leaves out what a person who sees nothing needs. Takes some minutes.
# Usage: spoken.sh FRONT_END STAND_IN
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

if [[ -z ${SPOKEN:-} ]]; then
    "$here/../../tools/install.sh" display spoken
    work=$(mktemp -d)
    status=0
    SPOKEN=$work/spoken dbus-run-session -- "${BASH_SOURCE[0]}" "$@" 2>"$work/bus" || status=$?
    grep '^MISSING\|^FAILED' "$work/bus" >&2 || true
    rm -rf "$work"
    exit "$status"
fi

. "$here/../../tools/display.sh"
work=${SPOKEN%/*}
app=$work/app
main_title="Kestrivane UI®  (Kestrivane 0.3a detected)"
others=()
front_end=
missing=0

clean_up() {
    [[ -z $front_end ]] || stop_front_end "$front_end"
    ((${#others[@]} == 0)) || kill "${others[@]}" 2>/dev/null || true
    stop_display
}
trap clean_up EXIT
trap 'exit 1' INT TERM

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# The screen reader writes what it would speak into a file, and needs no sound for it.
start_reader() {
    export HOME=$work/home XDG_CONFIG_HOME=$work/home/config XDG_DATA_HOME=$work/home/data
    export LC_ALL=C.UTF-8 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
    mkdir -p "$XDG_DATA_HOME/orca" "$XDG_CONFIG_HOME"
    : >"$SPOKEN"
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
    others+=($!)
    orca --debug-file="$work/orca.log" &
    others+=($!)
    wait_until 60 grep -q "Screen reader on" "$SPOKEN" || fail "the screen reader did not start"
}

since() { tail -n "+$(($1 + 1))" "$SPOKEN"; }
spoke_since() { since "$1" | grep -qF -- "$2"; }

# Presses the key and prints what is spoken from then on until the words have come, or says after
# 15 seconds that they have not. The rest of a sentence may take a moment more.
hear() { # key, words
    local before said
    before=$(wc -l <"$SPOKEN")
    [[ $1 == - ]] || press "$1"
    if ! wait_until 15 spoke_since "$before" "$2"; then
        missing=$((missing + 1))
        echo "MISSING behind $1: $2" >&2
    fi
    sleep 0.7
    said=$(since "$before" | tr '\n' '|')
    printf '  %-12s %s\n' "$1" "${said%|}"
}

open_options() { # title, keys
    press "${@:2}"
    wait_until 20 title_is "$1" || fail "no options"
}

start_display "$work" || fail "no display"
start_reader
mkdir -p "$app/ROMs" "$app/Config" "$app/My pictures"
cp "$1" "$app/KestrivaneUI"
cp "$2" "$app/Kestrivane.exe"
printf 'seconds=70\nend=error\n' >"$app/ROMs/ambrcst.zip"

echo "Choosing a game"
before=$(wc -l <"$SPOKEN")
"$app/KestrivaneUI" &
front_end=$!
wait_until 60 spoke_since "$before" "7th Undertow" || fail "the program is not spoken"
since "$before" | sed 's/^/  /'
sleep 3
hear Down "Abalone Circuit"
hear Down "Amber Coast Rally"
hear F10 "File"
hear Right "Options..."
hear Right "Kestrivane UI Homepage"
hear Down "About..."
hear Return "A front-end for the Kestrivane emulator"
hear Escape "Amber Coast Rally"

echo "Changing the resolution"
open_options "   Options:   Global" alt+t o
hear Right "Video."
hear Tab "Save"
hear Tab "Exit"
hear Tab "496x384"
hear Down "640x480"
hear Down "800x600"
hear Tab "Custom:"
hear space "checked"
hear Tab "Custom: X"
hear Tab "Custom: Y"
hear shift+Tab "Custom: X"
hear shift+Tab "Custom:"
hear space "not checked"
hear shift+Tab "800x600"

echo "The balance"
hear shift+Tab "Exit"
hear shift+Tab "Save"
hear shift+Tab "Video"
hear Left "Audio"
hear Tab "Save"
hear Tab "Exit"
hear Tab "Sound"
hear Tab "100 %"
hear Left "99%"
hear Tab "Music"
hear Tab "100 %"
hear Tab "Centered"
hear Left "+1% to Rear"
hear Right "Centered"
hear Right "+1% to Front"

echo "Binding an input"
for control in "Music Volume" "Music" "Sound Volume" "Sound" "Exit" "Save" "Audio"; do
    hear shift+Tab "$control"
done
hear Right "Video"
hear Right "Input"
hear Tab "Save"
hear Tab "Exit"
hear Tab "BASICS"
hear Right "GUN"
hear Tab "Player 1"
hear Tab "DirectInput"
hear Tab "GunDown"
hear Tab "GunDown"
hear Down "GunLeft"
hear F2 "Keyboard"
hear Down "KEY_UP"
hear Down "KEY_DOWN"
hear Tab "OK: Keyboard"
hear Return "KEY_DOWN"
hear Delete "GunLeft"
hear Down "GunRight"

echo "Adding a folder"
for control in "Action" "Input" "Player 1" "GUN" "Exit" "Save" "Input"; do
    hear shift+Tab "$control"
done
hear Right "Machine"
hear Right "Folders"
hear Tab "Save"
hear Tab "Exit"
hear Tab "/"
hear Tab "app"
hear Right "Config"
hear Down "Icons"
hear Tab "ROMS: +"
hear space "app/Icons"
press Return # saves
wait_until 20 title_is "$main_title" || fail "not back in the main window"

echo "A play, and the error report"
hear Home "7th Undertow"
hear Down "Abalone Circuit"
hear Down "Amber Coast Rally"
hear Return "Gaming time: 0:00:00"
before=$(wc -l <"$SPOKEN")
wait_until 90 spoke_since "$before" "has encountered an error" || fail "no report"
sleep 2
since "$before" | sed 's/^/  /'
spoke_since "$before" "0:01:0" || fail "the clock is not spoken"
hear Escape "Amber Coast Rally"

grep -q '^ *;ROMpaths=.*Icons' "$app/Config/Kestrivane.ini" || fail "the folder was not saved"
grep -q '^XResolution *= *800' "$app/Config/Kestrivane.ini" || fail "the resolution was not saved"
((missing == 0)) || fail "$missing times"
echo "All was spoken"
