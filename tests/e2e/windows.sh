#!/usr/bin/env bash
# Uses the package for Windows under wine as a person does, on a virtual display, and takes pictures
# of its windows. Then has the front-end of this system, if it is built, play with the emulator for
# Windows.
# Usage: windows.sh PACKAGE STAND_IN BUILD_FOLDER [FRONT_END]
set -euo pipefail
package=$(realpath "$1")
tools=$(dirname "${BASH_SOURCE[0]}")/../../tools
. "$tools/front_end.sh"
. "$tools/wine.sh"

app="$work/Jögos/日本 & mais"
build=$(realpath "$3")
pictures=$build/pictures
mkdir -p "$pictures" "$app/ROMs"
trap '(($? == 0)) || picture failed || true; stop_wine; clean_up' EXIT

picture() { screenshot "$pictures/$1.png"; } # name
is_titled() { [[ $(xdotool getwindowfocus getwindowname) == "$1"* ]]; }
# The window manager may leave wine's windows without the focus.
is_main_window() { xdotool search --onlyvisible --name "^Kestrivane UI" windowactivate && is_titled "Kestrivane UI"; }
back_in_main_window() { wait_until 30 is_main_window || fail "not back in the main window"; }
start_package() {
    wine "$app/KestrivaneUI.exe" &
    front_end=$!
}
escape_ends() {
    press Escape
    sleep 1
    has_ended
}
# A release that the window manager gave to no window makes the next press of that key a repetition.
expect_end_by_escape() {
    wait_until 20 escape_ends || true
    expect_end 0
}
# Takes what wine runs down and up again.
scale_desktop() { # dots per inch
    dpi=$1
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null
    stop_wine
    start_wine "$build"
}

start_display "$work" 1600x1200 || fail "no display"
unset QT_QPA_PLATFORM
start_wine "$build"
wine reg delete 'HKCU\Software\Kestrivane UI' /f >/dev/null 2>&1 || true
(cd "$app" && cmake -E tar xf "$package")
cp "$2" "$app/Kestrivane.exe"

echo "It starts, lists, plays and counts"
write_archive "$app" 21 good
start_package
expect_main_window 60
sleep 1
picture main
press Return
sleep 3
picture playing
expect_main_window 60
wine reg query 'HKCU\Software\Kestrivane UI\GameTimeLog' /v $game | grep -q " 1,2[1-9]" || fail "not counted"

press alt+t o
expect_window "   Options:   Global"
press Return # saves, so that there are bindings to be seen
back_in_main_window
expect_end_by_escape

echo "Pictures of the windows at three scales and in three languages: $pictures"
for dpi in 96 144 192; do
    scale_desktop $dpi
    for language in 0 1 2; do
        sed -i '/^;KVLLanguage=/d' "$app/Config/Kestrivane.ini"
        printf '\r\n;KVLLanguage=%d\r\n' $language >>"$app/Config/Kestrivane.ini"
        start_package
        wait_until 60 is_titled "Kestrivane UI" || fail "no window"
        sleep 1
        picture "main-$language-$dpi"
        xdotool mousemove --window "$(xdotool getwindowfocus)" $((57 * dpi / 96)) $((10 * dpi / 96)) click 1
        press Down Return
        wait_until 20 is_titled "   " || fail "no options"
        for page in audio video inputs machine folders; do
            picture "options-$page-$language-$dpi"
            press Right
            sleep 1
        done
        press Escape
        back_in_main_window
        expect_end_by_escape
    done
done
[[ -n ${4:-} ]] || exit 0

echo "The front-end of this system plays with the emulator for Windows"
here=$work/here
lay_out "$here" "$4" "$2"
write_archive "$here" 21 good
export QT_QPA_PLATFORM=xcb
start_to_main_window "$here"
press Return
sleep 3
expect_main_window 60
expect_counted "1,2[1-9]"
expect_end_by_escape
