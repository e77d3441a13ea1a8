#!/usr/bin/env bash
# Unpacks the archives for Linux over each other in every order, also over remains of older ones, and
# starts the program each time. It must load Qt and its plugins from one and the same place.
# Usage: archives.sh BUILD_FOLDER [OLDER_ARCHIVE...]   (after `cpack` in the build folder)
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../../tools/front_end.sh"

build=$(realpath "$1")
older=("${@:2}")
plain=$(ls "$build"/KestrivaneUI-*-Linux.tar.gz)
bundle=$(ls "$build"/KestrivaneUI-*-Linux-with-Qt.tar.gz)
app="$work/Jögos & mais"
toolkit=$(tar -tzf "$bundle" | sed -n 's|^\(KestrivaneUI-Qt-[^/]*\)/$|\1|p')

# Leaves files like those of older archives: libraries with the same name for all versions, and a qt.conf
# that names their folder. They are empty, so a program that loads them does not start.
leave_remains() { # folder
    mkdir -p "$1/plugins/platforms"
    touch "$1"/libQt6{Core,Gui,Widgets,DBus,XcbQpa}.so.6 "$1/plugins/platforms/libqxcb.so"
    printf '[Paths]\nPrefix=%s\nPlugins=plugins\n' "$(basename "$1")" >"$app/qt.conf"
}

# Which of Qt's core library and its display plugin the running program has loaded from its own folder.
loaded() { sed -n "s|.* $app/||p" "/proc/$front_end/maps" | grep -E '/(libQt6Core|libqxcb)\.so' | sort -u; }

check() { # where the toolkit comes from: "system" or "folder"; archives...
    local place=$1 expected=
    shift
    for archive in "$@"; do tar -xzf "$archive" -C "$app"; done
    echo "$(printf '%s, ' "${@##*/}")with the toolkit of the $place"
    start_to_main_window "$app"
    [[ $place == system ]] ||
        expected=$(printf '%s\n' "$toolkit/libQt6Core.so.6" "$toolkit/plugins/platforms/libqxcb.so")
    [[ $(loaded) == "$expected" ]] || fail "loaded from the program's folder: $(loaded)"
    press Escape
    expect_end 0
}

fresh() { lay_out "$app" /dev/null "$build/standin/Kestrivane.exe"; }

start_display "$work" || fail "no display"

cmake --install "$build" --prefix "$work/installed" >/dev/null
! readelf -S "$work/installed/KestrivaneUI" | grep -q symtab || fail "installed with its symbols"

fresh; check system "$plain"; check folder "$bundle"; check folder "$plain"
fresh; leave_remains "$app/KestrivaneUI-Qt"; check system "$plain"; check folder "$bundle"
fresh; leave_remains "$app/KestrivaneUI-Qt-6.0.0"; check system "$plain"; check folder "$bundle"
for archive in "${older[@]}"; do
    fresh; check system "$archive" "$plain"; check folder "$bundle"
    fresh; check folder "$archive" "$bundle"; check folder "$plain"
done

echo "The menu's script adds and removes its entry, and rejects an unknown argument"
export XDG_DATA_HOME=$work/data
entry=$XDG_DATA_HOME/applications/kestrivane-ui.desktop
menu() { sh "$app/KestrivaneUI-menu.sh" "$@"; }
! menu --remvoe 2>/dev/null || fail "an unknown argument was accepted"
[[ $(menu --help) == Usage* && ! -e $XDG_DATA_HOME ]] || fail "no help"
[[ $(menu) == *"$entry"* ]] || fail "the entry's path is not printed"
grep -qxF "Exec=\"$app/KestrivaneUI\"" "$entry" || fail "not in the menu"
[[ $(menu --remove) == *"$entry" && ! -e $entry ]] || fail "still in the menu"
