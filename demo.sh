#!/usr/bin/env bash
# Builds the front-end and its stand-in emulator, lays out an emulator's folder in build/demo and
# starts the front-end there. With a display it is yours until you close it. Without one it plays a
# game by itself on a virtual display, and fails unless that play was counted.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

has_display() { [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; }

tasks=(build demo)
has_display || tasks+=(display)
tools/install.sh "${tasks[@]}"
cmake --preset release -DBUILD_TESTING=OFF
cmake --build --preset release --parallel "$(nproc)"

demo=$PWD/build/demo
settings=$demo/settings
if ! has_display; then
    # The count below starts from nothing.
    rm -rf "$settings" "$demo/Config/Kestrivane.ini" "$demo/error.log" "$demo"/*.png
fi
echo "Laying out build/demo"
demo/make_folder.sh build/KestrivaneUI build/standin/Kestrivane.exe "$demo"
export XDG_CONFIG_HOME=$settings

if has_display; then
    echo "Starting build/demo/KestrivaneUI; close its window to end the demo"
    exec "$demo/KestrivaneUI"
fi

. tools/display.sh
work=$(mktemp -d)
front_end=
clean_up() {
    [[ -z $front_end ]] || stop_front_end "$front_end"
    stop_display
    rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 1' INT TERM

fail() {
    echo "demo.sh: $*" >&2
    exit 1
}

main_title="Kestrivane UI®  (Kestrivane 0.3a detected)"
game=7undertow # the first title of the list, which runs for 24 seconds
in_game() { ! title_is "$main_title" && (($(xdotool search --onlyvisible --class KestrivaneUI | wc -l) == 2)); }
play_count() { sed -n "s/^$game=\"\([0-9]*\),.*/\1/p" "$settings/Kestrivane UI.conf" 2>/dev/null; }

echo "No display: starting a virtual one"
start_display "$work" || fail "the virtual display did not start"
"$demo/KestrivaneUI" &
front_end=$!
wait_until 30 title_is "$main_title" || fail "the main window did not appear"
sleep 0.5
screenshot "$demo/before.png"
echo "The main window stands; pressing Enter to play the selected game"

press Return
wait_until 10 in_game || fail "the in-game window did not appear"
echo "The game runs; waiting for its end"
sleep 5
screenshot "$demo/playing.png"
wait_until 60 title_is "$main_title" || fail "the in-game window did not close"
sleep 0.5
screenshot "$demo/after.png"
press Escape
wait "$front_end" || fail "the front-end ended with status $?"
front_end=

count=$(play_count || true)
echo "Plays counted of $game: ${count:-0}"
echo "Screenshots: build/demo/before.png, build/demo/playing.png, build/demo/after.png"
[[ $count == 1 ]] || fail "the play was not counted"
