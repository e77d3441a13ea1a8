#!/usr/bin/env bash
# Uses the real program as a person does: by keys, watching its windows, files and exit status.
# Usage: end_to_end.sh FRONT_END STAND_IN DISPLAY_TOOLS
set -euo pipefail
program=$1
emulator=$2
. "$3"

main_title="Kestrivane UI®  (Kestrivane 0.3a detected)"
work=$(mktemp -d)
settings="$work/settings/Kestrivane UI.conf"
app="$work/Jögos de ação/日本 & mais"
config="$app/Config/Kestrivane.ini"
front_end=
beside= # a second one
orphan=

clean_up() {
    [[ -z $front_end ]] || stop_front_end "$front_end"
    [[ -z $beside ]] || stop_front_end "$beside"
    [[ -z $orphan ]] || kill "$orphan" 2>/dev/null || true
    stop_display
    rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 1' INT TERM

fail() {
    echo "FAILED: $*" >&2
    echo "Window in focus: $(xdotool getwindowfocus getwindowname 2>&1)" >&2
    exit 1
}

window_count() { xdotool search --onlyvisible --class KestrivaneUI | wc -l; }
has_ended() { ! ps -o stat= -p "$1" | grep -q '^[^Z]'; }
emulator_runs() { [[ -n $(pgrep -P "$front_end") ]]; }
in_game() { ! title_is "$main_title" && (($(window_count) == 2)) && emulator_runs; }

# Lays out a fresh folder with the front-end, and with the emulator if asked for.
lay_out() { # folder, [emulator]
    rm -rf "$1"
    mkdir -p "$1"
    cp "$program" "$1/KestrivaneUI"
    [[ -z ${2:-} ]] || cp "$2" "$1/Kestrivane.exe"
}

# In a session of its own, as a desktop starts it, and from another working folder.
start() { # folder
    (cd / && XDG_CONFIG_HOME=$work/settings exec setsid "$1/KestrivaneUI") &
    front_end=$!
}

start_to_main_window() { # folder
    start "$1"
    wait_until 30 title_is "$main_title" || fail "no main window"
}

expect_end() { # expected exit status
    local status=0
    wait_until 20 has_ended "$front_end" || fail "the program did not end"
    wait "$front_end" || status=$?
    front_end=
    [[ $status == "$1" ]] || fail "exit status $status instead of $1"
}

expect_fatal_start() { # folder
    start "$1"
    wait_until 30 title_is "ERROR!" || fail "no message box"
    [[ $(window_count) == 1 ]] || fail "a window beside the message box"
    press Return
    expect_end 1
}

write_archive() { printf 'seconds=%d\nend=%s\n' "$1" "$2" >"$app/ROMs/7undertow.zip"; }

play() {
    press Return
    wait_until 10 in_game || fail "no play"
}

expect_back_in_main_window() { # seconds
    wait_until "$1" title_is "$main_title" || fail "not back in the main window"
}

open_options() {
    press alt+t o
    wait_until 10 title_is "   Options:   Global" || fail "no options"
}

save_options() {
    open_options
    press Return
    expect_back_in_main_window 10
}

expect_play_log() { # pattern
    sed -n '/^\[GameTimeLog\]$/,/^\[/p' "$settings" | grep -qx "7undertow=\"$1\"" ||
        fail "unexpected figures: $(cat "$settings")"
}

start_display "$work" || fail "no display"

echo "A start without an emulator ends with a message"
lay_out "$app"
expect_fatal_start "$app"

echo "A start beside an emulator that lists nothing does too"
lay_out "$app" "$emulator"
echo silent >"$app/standin.mode"
expect_fatal_start "$app"

echo "A start beside an emulator alone makes the folders and no configuration file"
lay_out "$app" "$emulator"
start_to_main_window "$app"
made=$(cd "$app" && LC_ALL=C find . -mindepth 1 | LC_ALL=C sort | tr '\n' ' ')
[[ $made == "./Config ./Icons ./Kestrivane.exe ./KestrivaneUI ./ROMs ./Snaps " ]] || fail "made $made"
press Return # no archive, so there is nothing to play, and what comes next is obeyed
open_options
press Escape
expect_back_in_main_window 10
press Escape
expect_end 0
[[ ! -e $settings ]] || fail "Escape wrote the settings store"

echo "A play is counted, also with a second front-end beside it that saves in the meantime"
write_archive 22 good
start_to_main_window "$app"
play
beside=$front_end
start_to_main_window "$app"
save_options
alone=$(<"$config")
press Escape
expect_end 0
front_end=$beside beside=
expect_back_in_main_window 45
expect_play_log "1,2[2-9]"
[[ ! -e $app/error.log ]] || fail "error.log was left"
save_options
[[ $(<"$config") == "$alone"$'\n;GameTimeLog=7undertow,1,2'[2-9]$'\r' ]] ||
    fail "the file is not what the last one saved: $(diff <(echo "$alone") "$config")"
rm "$config"

echo "What is typed and clicked during a play and the pause behind it starts no other"
write_archive 1 good
main_window=$(xdotool getwindowfocus)
play
for ((i = 0; i < 6; i++)); do
    xdotool mousemove --window "$main_window" 670 455 click 1
    press Return
    sleep 0.5
done
write_archive 1 error # another play would end with a report, and stay at that
expect_back_in_main_window 10

echo "Escape held down closes one window and not the next"
open_options
xdotool keydown Escape
sleep 2
xdotool keyup Escape
expect_back_in_main_window 5

echo "A play that fails shows the report"
write_archive 1 error
play
wait_until 20 title_is " Kestrivane has encountered an error:" || fail "no report"
[[ ! -e $app/error.log ]] || fail "error.log was left"
press Escape
expect_back_in_main_window 10
expect_play_log "1,2[2-9]"
[[ -z $(ls -A "$app/Config") ]] || fail "a play wrote a configuration file"
press Escape
expect_end 0

echo "The emulator outlives the front-end"
write_archive 3 good
start_to_main_window "$app"
play
orphan=$(pgrep -P "$front_end")
kill -TERM -- "-$front_end" # and whatever is tied to it
expect_end 143
wait_until 10 grep -q "terminated normally" "$app/error.log" || fail "the emulator ended with it"
orphan=
