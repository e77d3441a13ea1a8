#!/usr/bin/env bash
# Measures the real program on a virtual display: first while Down is held through some 240 games, each with
# a full-HD snapshot and an icon, then during a play. Work after the key's release is a backlog.
# Usage: bench/using.sh BUILD_FOLDER [SECONDS_OF_PLAY]
set -euo pipefail
build=$(realpath "$1")
seconds=${2:-120}
. "$(dirname "${BASH_SOURCE[0]}")/../tools/display.sh"
work=$(mktemp -d)
trap 'stop_display; rm -rf "$work"' EXIT

app="$work/emulator"
mkdir -p "$app"/{ROMs,Snaps,Icons} "$work/display"
cp "$build/KestrivaneUI" "$build/standin/Kestrivane.exe" "$app/"
echo games300 > "$app/standin.mode"
convert -size 1920x1080 plasma:fractal -quality 90 "$work/snapshot.jpg"
convert "$work/snapshot.jpg" -resize '32x32!' "$work/icon.ico"
for game in $(seq -f 'gen%03g' 300); do
  cp "$work/snapshot.jpg" "$app/Snaps/$game.jpg"
  cp "$work/icon.ico" "$app/Icons/$game.ico"
  echo "seconds=$((seconds + 5))" > "$app/ROMs/$game.zip"
done

start_display "$work/display"
xset r rate 250 30
XDG_CONFIG_HOME="$work/settings" "$app/KestrivaneUI" 2>/dev/null &
front_end=$!
wait_until 20 title_is "Kestrivane UI®  (Kestrivane 0.3a detected)"
sleep 1
ticks() { awk '{print $14 + $15}' "/proc/$front_end/stat"; } # of 10 ms
resident() { awk '/VmRSS/ {print $2}' "/proc/$front_end/status"; }

before=$(ticks)
xdotool keydown Down
sleep 8
xdotool keyup Down
released=$(ticks)
sleep 1
after=$(ticks)
echo "Holding Down for 8 s at 30 rows a second: $(((released - before) * 10)) ms of work, $(((after - released) * 10)) ms of it after the release; peak memory $(awk '/VmHWM/ {print $2}' "/proc/$front_end/status") KiB"

press Return
sleep 3
before=$(ticks) memory=$(resident)
sleep "$seconds"
echo "A play of $seconds s: $(awk -v t=$(($(ticks) - before)) -v s="$seconds" 'BEGIN {printf "%.3f", t / s}') % of one core, memory grew by $(($(resident) - memory)) KiB"
stop_front_end "$front_end"
