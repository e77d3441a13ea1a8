#!/bin/sh
# Puts the KestrivaneUI of this script's folder into the desktop's menu; with --remove takes it out.
set -eu
folder=$(cd -- "$(dirname -- "$0")" && pwd)
entry=${XDG_DATA_HOME:-$HOME/.local/share}/applications/kestrivane-ui.desktop
if [ "${1:-}" = --remove ]; then
    rm -f -- "$entry"
    exit
fi
# A backslash counts in every value, and once more between quotes, as do $, " and `; % begins a code.
escaped() { printf '%s' "$1" | sed 's/\\/\\\\/g'; }
quoted() { printf '"%s"' "$(printf '%s' "$1" | sed 's/[\\"`$]/\\&/g; s/%/%%/g')"; }
mkdir -p -- "$(dirname -- "$entry")"
{
    grep -v -e '^Exec=' -e '^Icon=' "$folder/kestrivane-ui.desktop"
    printf 'Exec=%s\n' "$(escaped "$(quoted "$folder/KestrivaneUI")")"
    printf 'Icon=%s\n' "$(escaped "$folder/kestrivane-ui.png")"
} >"$entry"
