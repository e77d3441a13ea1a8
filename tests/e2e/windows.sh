#!/usr/bin/env bash
# Uses the package for Windows under wine as a user does, on a virtual display.
# Usage: windows.sh PACKAGE STAND_IN BUILD_FOLDER FRONT_END [PART...]
# FRONT_END is the one for this system. Without a PART, all of them run:
#   share     starts on a network share, shows a picture, plays, counts, clears, saves and restores
#   wrappers  starts beside libraries with the names of the system's, and takes pictures at four scales
#             and in three languages
#   foreign   the front-end for this system plays with the emulator for Windows
set -euo pipefail
package=$(realpath "$1")
stand_in=$(realpath "$2")
build=$(realpath "$3")
other_front_end=$(realpath "$4")
shift 4
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
. "$here/../../tools/front_end.sh"
. "$here/../../tools/wine.sh"

app="$work/Jögos/日本 & mais"
pictures=$build/pictures
mkdir -p "$pictures"
trap '(($? == 0)) || picture failed || true; stop_wine; clean_up' EXIT

picture() { screenshot "$pictures/$1.png"; } # name
is_titled() { [[ $(xdotool getwindowfocus getwindowname) == "$1"* ]]; }
expect_titled() { wait_until "${2:-30}" is_titled "$1" || fail "no window \"$1\""; } # start, [seconds]
expect_main_window() { expect_titled "Kestrivane UI" "$@"; } # the rest depends on the language
lay_out_package() { # folder
    rm -rf "$1"
    mkdir -p "$1/ROMs" "$1/Config"
    (cd "$1" && cmake -E tar xf "$package")
    cp "$stand_in" "$1/Kestrivane.exe"
    wine reg delete 'HKCU\Software\Kestrivane UI' /f >/dev/null 2>&1 || true
}
start_package() { # program
    wine "$1" &
    front_end=$!
    expect_main_window 60
    sleep 1
}
expect_end_by_escape() {
    press Escape
    expect_end 0
}
play_game() {
    press Return
    sleep 3
    picture playing
    expect_main_window 60
}
play_counted() {
    play_game
    [[ $(wine reg query 'HKCU\Software\Kestrivane UI\GameTimeLog' /v $game) == *" 1,2"[1-9]* ]] || fail "not counted"
}
# Looks at each page of the options, by keys that are the same in each language, and saves.
save_options() { # name for the pictures
    press F10 Right Return
    expect_titled "   "
    for page in audio video inputs machine folders; do
        picture "$page-$1"
        press Right
        sleep 0.5
    done
    press Return
    expect_main_window
}
# Sets the desktop's scale and starts wine's server again.
scale_desktop() { # dots per inch
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null
    stop_wine
    wineserver -p
}

share() {
    echo "From a network share everything works"
    local root="$WINEPREFIX/share" name='\\kestrivane\tests'
    local config="$root/emulator/Config/Kestrivane.ini"
    lay_out_package "$root/emulator"
    mkdir -p "$root/more/ROMs" "$root/emulator/NVRAM"
    write_archive "$root/more" 21 good
    convert -size 394x344 xc:lime "$root/more/$game.jpg"
    touch "$root/emulator/NVRAM/$game.nv"
    printf '%s\r\n' "; Kestrivane UI®" "; KVL configuration" ";ROMpaths=$name\\more\\roms" \
        ";SNAPpaths=$name\\more" "[ Global ]" "[ $game ]" "Throttle = 0" >"$config"

    start_package "$name\\emulator\\KestrivaneUI.exe"
    picture share
    [[ $(convert "$pictures/share.png" -crop 20x20+530+270 -format '%[fx:mean.g>0.9&&mean.r<0.1]' info:) == 1 ]] ||
        fail "the picture is not shown"
    press alt+t c
    wait_until 10 test ! -e "$root/emulator/NVRAM/$game.nv" || fail "the machine's memory was not cleared"
    play_counted
    save_options share
    grep -qF ";ROMpaths=$name\\more\\roms" "$config" || fail "the folder was not kept: $(cat "$config")"
    grep -q ";GameTimeLog=$game,1,2" "$config" || fail "the options were not saved"

    write_archive "$root/more" 1 error
    press Return
    expect_titled " Kestrivane has encountered an error:"
    [[ ! -e $root/emulator/error.log ]] || fail "error.log was left"
    press Escape
    expect_main_window

    # Two windows close at once, and no window may have seen the key's release.
    press Tab Tab Return
    expect_titled "   Options: "
    press Tab Return
    expect_titled "Confirmation"
    press Return
    expect_main_window
    ! grep -q Throttle "$config" || fail "the game's options were not restored"
    press Return
    expect_titled "   Options: "
    xdotool keydown Escape sleep 1 keyup Escape
    expect_main_window # it would have ended if a key that is held went on to act
    expect_end_by_escape
}

wrappers() {
    echo "Libraries beside it that have the names of the system's are not loaded"
    local names=(authz d3d11 d3d9 dwmapi dwrite dxgi mpr netapi32 userenv uxtheme version winmm wtsapi32)
    local compiler=(x86_64-w64-mingw32-g++-posix -O1 -static) loaded= name
    local planted=()
    lay_out_package "$app"
    write_archive "$app" 21 good
    touch "$app/Config/Kestrivane.ini"
    "${compiler[@]}" -shared "$here/planted_library.cpp" -o "$work/planted.dll"
    "${compiler[@]}" "$here/load_libraries.cpp" -o "$app/load.exe" -lcomdlg32 -lole32
    for name in "${names[@]}"; do cp "$work/planted.dll" "$app/$name.dll"; done
    # Makes wine search libraries as Windows does: in the program's folder first. Some of wine's own
    # libraries import others of these names, which on Windows would always come from the system's folder.
    # A program with the usual imports only shows which. For these, tests/windows_file.sh checks the
    # front-end's import table instead.
    local overrides=$WINEDLLOVERRIDES dpi language
    for name in "${names[@]}"; do
        WINEDLLOVERRIDES="$overrides;$name=n,b"
        (cd "$app" && wine load.exe) >/dev/null 2>&1 || true
        if [[ -e $app/$name.dll.loaded ]]; then
            loaded+=" $name"
            continue
        fi
        (cd "$app" && wine load.exe "$name.dll") >/dev/null 2>&1
        [[ -e $app/$name.dll.loaded ]] || fail "$name.dll is not loaded even by its name"
        planted+=("$name")
    done
    ((${#planted[@]} >= 10)) || fail "wine itself loads$loaded"
    rm "$app"/*.loaded
    WINEDLLOVERRIDES="$overrides;$(IFS=, && echo "${planted[*]}")=n,b"
    for dpi in 96 120 144 192; do
        scale_desktop $dpi
        for language in 0 1 2; do
            # The first save has made the file. It has no line for English.
            sed -i "/^;KVLLanguage/d; s/^\[ Global \]/;KVLLanguage=$language\r\n&/" "$app/Config/Kestrivane.ini"
            start_package "$app/KestrivaneUI.exe"
            picture "main-$language-$dpi"
            ((dpi + language > 96)) || play_counted
            save_options "$language-$dpi"
            expect_end_by_escape
        done
    done
    ! cmp -s "$pictures/video-0-96.png" "$pictures/video-1-96.png" || fail "the language is not Spanish"
    [[ $(convert "$pictures/audio-0-120.png" -crop 12x20+50+138 -format '%[fx:minima>0.3]' info:) == 1 ]] ||
        fail "there is a black line in a bar"
    ! ls "$app"/*.loaded 2>/dev/null || fail "planted libraries were loaded"
    echo "Not loaded: ${planted[*]}; loaded by wine itself:$loaded. Pictures: $pictures"
    WINEDLLOVERRIDES=$overrides
    scale_desktop 96
}

foreign() {
    echo "The front-end of this system plays with the emulator for Windows"
    local folder=$work/here
    lay_out "$folder" "$other_front_end" "$stand_in"
    write_archive "$folder" 21 good
    QT_QPA_PLATFORM=xcb start_to_main_window "$folder"
    play_game
    expect_counted "1,2[1-9]"
    expect_end_by_escape
}

start_display "$work" 1600x1200 || fail "no display"
unset QT_QPA_PLATFORM
start_wine "$build"
(($# > 0)) || set -- share wrappers foreign
for part in "$@"; do "$part"; done
