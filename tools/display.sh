# To be sourced: a virtual display with a window manager, and functions to use and watch the windows on
# it. Each wait fails with status 1 when its time is up.

display_processes=()

# Runs the command again and again until it succeeds, for at most the given seconds.
wait_until() { # seconds, command...
    local end=$((SECONDS + $1))
    shift
    until "$@" 2>/dev/null; do
        ((SECONDS < end)) || return 1
        sleep 0.1
    done
}

# Starts a display with a free number and puts it into the environment.
start_display() { # private folder for its files, [size in pixels]
    Xvfb -displayfd 3 -screen 0 "${2:-1280x960}x24" -nolisten tcp 3>"$1/display" 2>/dev/null &
    display_processes+=($!)
    wait_until 20 grep -q . "$1/display" || return 1
    DISPLAY=:$(<"$1/display")
    export DISPLAY QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$1
    unset WAYLAND_DISPLAY
    openbox --sm-disable --config-file /etc/xdg/openbox/rc.xml >/dev/null 2>&1 &
    display_processes+=($!)
    wait_until 20 xdotool get_desktop >/dev/null
}

stop_display() {
    ((${#display_processes[@]} > 0)) || return 0
    kill "${display_processes[@]}" 2>/dev/null || true
    wait "${display_processes[@]}" 2>/dev/null || true
}

# Whether the window in focus has this title. The window that the window manager reports as active may
# be closed already.
title_is() { [[ $(xdotool getwindowfocus getwindowname) == "$1" ]]; }

# Sends keys to the window in focus, and holds each for a moment as a user does.
press() {
    local key
    for key in "$@"; do xdotool keydown "$key" sleep 0.08 keyup "$key"; done
}

# Ends a front-end and the emulator that it may have started, which would outlive it.
stop_front_end() { # process id
    local emulators
    emulators=$(pgrep -P "$1") || true
    kill "$1" $emulators 2>/dev/null || true
}

# Saves a picture of the window in focus with its frame.
screenshot() { import -frame -window "$(xdotool getwindowfocus)" "$1"; }
