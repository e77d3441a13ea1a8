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

# The keys that lead away and back to where a key has led. In menus, the one before may open a submenu.
declare -A retry=([Left]="Right Left" [Right]="Right Left" [Up]="Down Up" [Down]="Up Down"
    [Tab]="shift+Tab Tab" [shift+Tab]="Tab shift+Tab")

is_spoken() { tail -n "+$((heard + 1))" "$SPOKEN" | grep -qF -- "$1"; }

# Waits for words, and prints the first one that is not spoken.
await_words() { # seconds for each, words
    local word
    for word in "${@:2}"; do
        [[ $word == !* ]] || wait_until "$1" is_spoken "$word" || { echo "$word" && return; }
    done
}

# Presses the keys, if there are some, and waits until the words are spoken and a moment longer for the
# rest of the sentence. On a busy machine the reader is late and leaves out what has changed meanwhile.
# Then the focus is moved away and back, as a user does who did not understand. Prints all that was
# spoken, and words that were not.
hear() { # keys or -, words separated by "|"; a word with "!" before it must not be spoken
    local key=${1##* } patience=25 tries=1 again= said word words
    [[ $1 != - ]] || patience=90
    [[ -z ${retry[$key]:-} ]] || patience=8 tries=4
    if [[ $1 != - ]]; then
        heard=$(wc -l <"$SPOKEN")
        hold "$1"
    fi
    IFS='|' read -ra words <<<"$2"
    while word=$(await_words $patience "${words[@]}") && [[ -n $word ]]; do
        ((--tries > 0)) || { missed "$1" "$word" && break; }
        again=" (again)"
        hold "${retry[$key]% *}"
        sleep 2
        heard=$(wc -l <"$SPOKEN")
        hold "${retry[$key]#* }"
    done
    sleep 0.7
    for word in "${words[@]}"; do
        [[ $word != !* ]] || ! is_spoken "${word#!}" || missed "$1" "$word"
    done
    said=$(tail -n "+$((heard + 1))" "$SPOKEN")
    heard=$((heard + $(wc -l <<<"$said")))
    printf '  %-12s %s\n' "$1$again" "${said//$'\n'/|}"
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
