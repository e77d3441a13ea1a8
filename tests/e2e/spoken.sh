#!/usr/bin/env bash
# Uses the program by keys alone with a screen reader, and prints what the reader speaks. Fails if it does
# not speak the words of spoken.tsv, which a blind user needs. Takes some minutes.
# Usage: spoken.sh FRONT_END STAND_IN [en|es|pt]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
if [[ -z ${ON_A_BUS:-} ]]; then
    "$here/../../tools/install.sh" display spoken
    # The bus prints messages that nobody needs.
    ON_A_BUS=yes exec dbus-run-session -- "$here/spoken.sh" "$@" 3>&2 2>/dev/null
fi
. "$here/../../tools/front_end.sh"

app=$work/app
config=$app/Config/Kestrivane.ini
missing=0
heard=0 # lines of the speech so far
# The column of spoken.tsv is the number that the configuration file has for the language.
case ${3:-en} in en) language=0 ;; es) language=1 ;; pt) language=2 ;; *) exit 2 ;; esac

# Makes the screen reader write its speech into a file instead of speaking it. The function that starts
# its speech has different names in different versions.
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

speech._initSpeechServer = speech._init_speech_server = lambda *arguments: None
speech._speak = write
PY
    /usr/libexec/at-spi-bus-launcher --launch-immediately &
    display_processes+=($!)
    orca --debug-file="$work/orca.log" &
    display_processes+=($!)
    wait_until 60 grep -q "Screen reader on" "$SPOKEN" || fail "the screen reader did not start"
}

# Presses keys one by one, and holds each for a moment as a user does.
hold() { # keys
    local key
    for key in $1; do
        xdotool keydown "$key" sleep 0.08 keyup "$key" 2>/dev/null
        sleep 0.3
    done
}

is_spoken() { tail -n "+$((heard + 1))" "$SPOKEN" | grep -qF -- "$1"; }

# Presses the keys, if there are some, and waits until the words are spoken and a moment longer for the
# rest of the sentence. Prints all that was spoken, and the words that were not.
hear() { # keys or -, words separated by "|"; a word with "!" before it must not be spoken
    local patience=90 said word words
    if [[ $1 != - ]]; then
        patience=25
        heard=$(wc -l <"$SPOKEN")
        hold "$1"
    fi
    IFS='|' read -ra words <<<"$2"
    for word in "${words[@]}"; do
        [[ $word == !* ]] || wait_until $patience is_spoken "$word" || missed "$1" "$word"
    done
    sleep 0.7
    for word in "${words[@]}"; do
        [[ $word != !* ]] || ! is_spoken "${word#!}" || missed "$1" "$word"
    done
    said=$(tail -n "+$((heard + 1))" "$SPOKEN")
    heard=$((heard + $(wc -l <<<"$said")))
    printf '  %-12s %s\n' "$1" "${said//$'\n'/|}"
}

missed() {
    missing=$((missing + 1))
    echo "MISSING after $1: $2" >&2
}

exec 2>&3
start_display "$work" || fail "no display"
start_reader 2>/dev/null
lay_out "$app" "$1" "$2"
mkdir -p "$app/Config" "$app/My pictures"
write_archive "$app" 70 error ambrcst
# The program starts in another language. The run chooses its own by keys.
printf ';*** Kestrivane UI\xae\r\n;KVL configuration\r\n;KVLLanguage=%d\r\n' $(((language + 1) % 3)) >"$config"
heard=$(wc -l <"$SPOKEN")
start "$app" 2>/dev/null
# Each language has a column of words, which may be empty or missing if it is as in English. If the keys
# differ, the first column has them for the three languages, separated by slashes.
while IFS= read -r line <&4; do
    if [[ $line == \#* ]]; then
        echo "${line#\# }"
        continue
    fi
    mapfile -d $'\t' -t cells < <(printf '%s' "$line")
    IFS=/ read -ra keys <<<"${cells[0]}"
    hear "${keys[language]:-${keys[0]}}" "${cells[language + 1]:-${cells[1]:-}}"
done 4<"$here/spoken.tsv"

grep -q '^ *;ROMpaths=.*Icons' "$config" || fail "the folder was not saved"
grep -q '^XResolution *= *800' "$config" || fail "the resolution was not saved"
grep -q '^InputGunLeft *= *"KEY_DOWN' "$config" || fail "the binding was not saved"
((missing == 0)) || fail "$missing times"
echo "All was spoken"
