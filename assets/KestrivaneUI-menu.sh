#!/bin/sh
# Puts the KestrivaneUI of this script's folder into the desktop's menu, or takes it out.
set -eu
folder=$(cd -- "$(dirname -- "$0")" && pwd)
entry=${XDG_DATA_HOME:-$HOME/.local/share}/applications/kestrivane-ui.desktop

usage() {
    echo "Usage: sh KestrivaneUI-menu.sh [--remove | --help]"
    echo "Puts the KestrivaneUI of this script's folder into your desktop's menu;"
    echo "with --remove takes it out again."
}
[ $# -le 1 ] || { usage >&2; exit 2; }
case ${1:-} in
    "") ;;
    --help)
        usage
        exit ;;
    --remove)
        if [ -e "$entry" ] || [ -L "$entry" ]; then
            rm -f -- "$entry"
            echo "Taken out of the menu: $entry"
        else
            echo "Not in the menu: there is no $entry"
        fi
        exit ;;
    *)
        echo "KestrivaneUI-menu.sh: unknown argument: $1" >&2
        usage >&2
        exit 2 ;;
esac

if [ ! -x "$folder/KestrivaneUI" ] || [ ! -e "$folder/kestrivane-ui.desktop" ]; then
    echo "KestrivaneUI-menu.sh: KestrivaneUI or kestrivane-ui.desktop is missing in $folder" >&2
    exit 1
fi
# Every value of a desktop entry needs its backslashes doubled. Between the quotes of Exec, \, $, " and `
# also need a backslash before them, and % is doubled.
escaped() { printf '%s' "$1" | sed 's/\\/\\\\/g'; }
quoted() { printf '"%s"' "$(printf '%s' "$1" | sed 's/[\\"`$]/\\&/g; s/%/%%/g')"; }
mkdir -p -- "$(dirname -- "$entry")"
{
    grep -v -e '^Exec=' -e '^Icon=' "$folder/kestrivane-ui.desktop"
    printf 'Exec=%s\n' "$(escaped "$(quoted "$folder/KestrivaneUI")")"
    printf 'Icon=%s\n' "$(escaped "$folder/kestrivane-ui.png")"
} >"$entry"
echo "Put into the menu, for $folder/KestrivaneUI: $entry"
echo "Run this again if you move the folder; take it out with: sh KestrivaneUI-menu.sh --remove"
