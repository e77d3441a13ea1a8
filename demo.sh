#!/usr/bin/env bash
# Builds the front-end and a stand-in emulator, lays out an emulator's folder in build/demo and starts
# the front-end there. With a display, the front-end runs until you close it. Without one, the script
# plays a game on a virtual display, and fails unless the play was counted.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

has_display() { [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; }

tasks=(build demo)
has_display || tasks+=(display)
echo "On a bare Debian this fetches about 220 MB of packages and takes 1.1 GB of the disk"
tools/install.sh "${tasks[@]}"
cmake --preset release -DBUILD_TESTING=OFF
cmake --build --preset release --parallel "$(nproc)"

demo=$PWD/build/demo
settings=$demo/settings
if ! has_display; then
    # The play below must be the first one that is counted.
    rm -rf "$settings" "$demo/Config/Kestrivane.ini" "$demo/error.log" "$demo"/*.png
fi
echo "Laying out build/demo"
demo/make_folder.sh build/KestrivaneUI build/standin/Kestrivane.exe "$demo"
export XDG_CONFIG_HOME=$settings

if has_display; then
    echo "Starting build/demo/KestrivaneUI; close its window to end the demo"
    exec "$demo/KestrivaneUI"
fi

. tools/front_end.sh
export XDG_CONFIG_HOME=$settings

echo "No display: starting a virtual one"
start_display "$work" || fail "the virtual display did not start"
start_to_main_window "$demo"
sleep 0.5
screenshot "$demo/before.png"
echo "The main window is open; pressing Enter to play the selected game"
play
echo "The game is running; waiting for its end"
sleep 5
screenshot "$demo/playing.png"
expect_main_window 60
sleep 0.5
screenshot "$demo/after.png"
press Escape
expect_end 0
expect_counted "1,2[4-9]"
echo "Plays counted of $game: 1"
echo "Screenshots: build/demo/before.png, build/demo/playing.png, build/demo/after.png"
