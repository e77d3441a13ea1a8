# To be sourced: functions that start the front-end and use and watch it from outside. They have a
# private folder, $work. When the script ends, the display, the front-end in $front_end and
# its emulator are stopped; a script that starts a second front-end stops the first itself.
. "$(dirname "${BASH_SOURCE[0]}")/display.sh"

main_title="Kestrivane UI®  (Kestrivane 0.3a detected)"
game=7undertow # the first title of the list
work=$(mktemp -d)
export XDG_CONFIG_HOME=$work/settings
front_end= # its process

clean_up() {
    [[ -z $front_end ]] || stop_front_end "$front_end"
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

# Lays out a fresh folder with the front-end, and with the emulator if asked for.
lay_out() { # folder, front-end, [emulator]
    rm -rf "$1"
    mkdir -p "$1/ROMs"
    cp "$2" "$1/KestrivaneUI"
    [[ -z ${3:-} ]] || cp "$3" "$1/Kestrivane.exe"
}

# Writes a game's archive, which says how long the stand-in plays and how the play ends.
write_archive() { # folder, seconds, end, [game]
    printf 'seconds=%d\nend=%s\n' "$2" "$3" >"$1/ROMs/${4:-$game}.zip"
}

# Starts the front-end as a desktop does: in a session of its own and from another working folder.
start() { # folder
    (cd / && exec setsid "$1/KestrivaneUI") &
    front_end=$!
}

expect_window() { # title, [seconds]
    wait_until "${2:-30}" title_is "$1" || fail "no window \"$1\""
}
expect_main_window() { expect_window "$main_title" "$@"; }

start_to_main_window() { # folder
    start "$1"
    expect_main_window
}

window_count() { xdotool search --onlyvisible --class KestrivaneUI | wc -l; }
emulator_runs() { [[ -n $(pgrep -P "$front_end") ]]; }
in_game() { ! title_is "$main_title" && (($(window_count) == 2)) && emulator_runs; }

# Plays the selected game.
play() {
    press Return
    wait_until 10 in_game || fail "the game does not run"
}

has_ended() { ! ps -o stat= -p "$front_end" | grep -q '^[^Z]'; }
expect_end() { # exit status
    local status=0
    wait_until 20 has_ended || fail "the program did not end"
    wait "$front_end" || status=$?
    front_end=
    [[ $status == "$1" ]] || fail "exit status $status instead of $1"
}

# Checks the stored figures of the game: number of plays, total seconds.
expect_counted() { # pattern
    sed -n '/^\[GameTimeLog\]$/,/^\[/p' "$XDG_CONFIG_HOME/Kestrivane UI.conf" | grep -qx "$game=\"$1\"" ||
        fail "unexpected figures: $(cat "$XDG_CONFIG_HOME/Kestrivane UI.conf")"
}
