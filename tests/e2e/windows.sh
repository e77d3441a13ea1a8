#!/usr/bin/env bash
# Uses the package for Windows under wine as a person does, on a virtual display, and takes pictures
# of its windows. Then has the front-end of this system, if it is built, play with the emulator for
# Windows.
# Usage: windows.sh PACKAGE STAND_IN BUILD_FOLDER [FRONT_END]
set -euo pipefail
package=$(realpath "$1")
emulator=$(realpath "$2")
build=$(realpath "$3")
front_end_here=${4:-}
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. tools/display.sh
. tools/wine.sh

main_title="Kestrivane UI®  (Kestrivane 0.3a detected)"
work=$(mktemp -d)
app="$work/Jögos/日本 & mais"
pictures=$build/pictures
mkdir -p "$app/ROMs" "$pictures"

clean_up() {
    stop_wine
    stop_display
    rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 1' INT TERM

fail() {
    echo "FAILED: $*" >&2
    echo "Window in focus: $(xdotool getwindowfocus getwindowname 2>&1)" >&2
    screenshot "$pictures/failed.png" || true
    exit 1
}
expect_window() { wait_until "$1" title_is "$2" || fail "no window \"$2\""; }
is_titled() { [[ $(xdotool getwindowfocus getwindowname) == "$1"* ]]; }
# The window manager may leave wine's windows without the focus.
is_main_window() { xdotool search --onlyvisible --name "^Kestrivane UI" windowactivate && is_titled "Kestrivane UI"; }
back_in_main_window() {
    wait_until 30 is_main_window || fail "not back in the main window"
    xdotool mousemove --window "$(xdotool getwindowfocus)" 600 40 click 1 # where nothing is
    sleep 1
}
registry() { wine reg query "HKCU\\Software\\Kestrivane UI\\$1" /v "$2" 2>/dev/null | tr -d '\r' | sed -n "s/^ *$2 *REG_SZ *//p"; }
write_archive() { printf 'seconds=%d\nend=%s\n' "$1" "$2" >"$app/ROMs/7undertow.zip"; }
front_end=
start() {
    wine "$app/KestrivaneUI.exe" &
    front_end=$!
}
has_ended() { ! ps -o stat= -p "$1" | grep -q '^[^Z]'; }
escape_ends() {
    press Escape
    sleep 1
    has_ended "$front_end"
}
# A release that the window manager gave to no window makes the next press of that key a repetition.
expect_end_by_escape() {
    local status=0
    wait_until 20 escape_ends || fail "the program did not end"
    wait "$front_end" || status=$?
    [[ $status == 0 ]] || fail "exit status $status"
}

# Takes what wine runs down and up again.
scale_desktop() { # dots per inch
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null
    wineserver -k -w || true
    start_wine "$build"
}

start_display "$work" 1600x1200 || fail "no display"
unset QT_QPA_PLATFORM
start_wine "$build"
scale_desktop 96
wine reg delete 'HKCU\Software\Kestrivane UI' /f >/dev/null 2>&1 || true
(cd "$app" && cmake -E tar xf "$package")
cp "$emulator" "$app/Kestrivane.exe"

echo "It starts, lists, plays and counts"
write_archive 21 good
start
expect_window 60 "$main_title"
sleep 1
screenshot "$pictures/main.png"
press Return
sleep 3
screenshot "$pictures/playing.png"
expect_window 60 "$main_title"
[[ $(registry GameTimeLog 7undertow) == 1,2[1-9] ]] || fail "counted $(registry GameTimeLog 7undertow)"

echo "A play that fails shows the report"
write_archive 1 error
press Return
expect_window 30 " Kestrivane has encountered an error:"
screenshot "$pictures/report.png"
[[ ! -e $app/error.log ]] || fail "error.log was left"
press Escape
back_in_main_window

echo "Options are saved, and the preferences stand in the registry"
press alt+t o
expect_window 30 "   Options:   Global"
screenshot "$pictures/options.png"
press Return
back_in_main_window
grep -q "^;GameTimeLog=7undertow,1,2" "$app/Config/Kestrivane.ini" || fail "no play log in the file"
[[ $(registry General Language) == 0 ]] || fail "the language is $(registry General Language)"
wine reg query 'HKCU\Software\Kestrivane UI\Path' /v ROMS1 >/dev/null || fail "no folders"
expect_end_by_escape

echo "Pictures of the windows at three scales and in three languages: $pictures"
page_names=(audio video inputs machine folders)
# A click in the window in focus, in pixels of a window that is not scaled.
click() { # x, y
    xdotool mousemove --window "$(xdotool getwindowfocus)" $(($1 * dpi / 96)) $(($2 * dpi / 96)) click 1
    sleep 1
}
for dpi in 96 144 192; do
    scale_desktop $dpi
    for language in 0 1 2; do
        sed -i '/^;KVLLanguage=/d' "$app/Config/Kestrivane.ini"
        ((language == 0)) || printf '\r\n;KVLLanguage=%d\r\n' $language >>"$app/Config/Kestrivane.ini"
        start
        wait_until 60 is_titled "Kestrivane UI" || fail "no window"
        sleep 1
        screenshot "$pictures/main-$language-$dpi.png"
        click 57 10
        press Down Return
        wait_until 20 is_titled "   " || fail "no options"
        for page in 0 1 2 3 4; do
            click $((29 + 41 * page)) 28
            screenshot "$pictures/options-${page_names[page]}-$language-$dpi.png"
        done
        press Escape
        wait_until 20 is_main_window || fail "not back in the main window"
        expect_end_by_escape
    done
done
[[ -n $front_end_here ]] || exit 0

echo "The front-end of this system plays with the emulator for Windows"
here=$work/here
mkdir -p "$here/ROMs"
cp "$front_end_here" "$here/KestrivaneUI"
cp "$emulator" "$here/Kestrivane.exe"
printf 'seconds=21\nend=good\n' >"$here/ROMs/7undertow.zip"
XDG_CONFIG_HOME=$work/settings QT_QPA_PLATFORM=xcb "$here/KestrivaneUI" &
front_end=$!
expect_window 60 "$main_title"
press Return
sleep 3
expect_window 60 "$main_title"
grep -qx '7undertow="1,2[1-9]"' "$work/settings/Kestrivane UI.conf" || fail "the play was not counted"
expect_end_by_escape
