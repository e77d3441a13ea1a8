#!/usr/bin/env bash
# Uses the real program by keys, as a user does, and watches its windows, files and exit status.
# Usage: end_to_end.sh FRONT_END STAND_IN
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../../tools/front_end.sh"

app="$work/Jögos de ação/日本 & mais"
config="$app/Config/Kestrivane.ini"
beside= # a second front-end
trap '[[ -z $beside ]] || stop_front_end "$beside"; clean_up' EXIT

save_options() {
    press alt+t o
    expect_window "   Options:   Global"
    press Return
    expect_main_window
}

echo "--version and --help print and end, without a display and without making folders"
lay_out "$app" "$1"
[[ $("$app/KestrivaneUI" --odd --version 2>&1) == *" ignored: --odd"$'\n'"Kestrivane UI "?.?.??? ]] ||
    fail "no version, or no word about an argument that means nothing"
! "$app/KestrivaneUI" --help >/dev/full || fail "a failed write of the help text is not reported"
[[ $(ls "$app") == KestrivaneUI$'\n'ROMs ]] || fail "files or folders were made"

start_display "$work" || fail "no display"

echo "A start beside an emulator that lists nothing ends with a message"
lay_out "$app" "$1" "$2"
echo silent >"$app/standin.mode"
start "$app"
expect_window "ERROR!"
[[ $(window_count) == 1 ]] || fail "a window beside the message box"
press Return
expect_end 1

echo "A start beside an emulator alone makes the folders and no file"
lay_out "$app" "$1" "$2"
rmdir "$app/ROMs"
start_to_main_window "$app"
made=$(cd "$app" && printf '%s ' * Config/*)
[[ $made == "Config Icons Kestrivane.exe KestrivaneUI ROMs Snaps Config/* " ]] || fail "made $made"
press Return Escape # Return does nothing without an archive, and Escape still works after it
expect_end 0
[[ ! -e $XDG_CONFIG_HOME ]] || fail "Escape wrote the settings store"

echo "A play is counted, also with a second front-end beside it that saves in the meantime"
write_archive "$app" 22 good
start_to_main_window "$app"
play
beside=$front_end
start_to_main_window "$app"
save_options
saved=$(<"$config")
press Escape
expect_end 0
front_end=$beside beside=
expect_main_window 45
expect_counted "1,2[2-9]"
[[ $(<"$config") == "$saved" ]] || fail "the play wrote the file"
save_options
[[ $(<"$config") == "$saved"$'\n;GameTimeLog=7undertow,1,2'[2-9]$'\r' ]] ||
    fail "the file is not what the first front-end saved: $(diff <(echo "$saved") "$config")"

echo "A play that fails shows the report"
write_archive "$app" 1 error
play
expect_window " Kestrivane has encountered an error:"
[[ ! -e $app/error.log ]] || fail "error.log was left"
press Escape
expect_main_window
expect_counted "1,2[2-9]"
press Escape
expect_end 0
