#!/usr/bin/env bash
# Starts the program on the toolkit's own desktop and on two dark ones, and measures on screenshots
# that its texts can be read (4.5:1) and that focus and state can be seen (3:1). Takes two minutes.
# Usage: contrast.sh FRONT_END STAND_IN [folder for the screenshots]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
"$here/../../tools/install.sh" display contrast
. "$here/../../tools/display.sh"

main_title="Kestrivane UI®  (Kestrivane 0.3a detected)"
work=$(mktemp -d)
shots=${3:-$work}
app=$work/app
front_end=
low=0

clean_up() {
    [[ -z $front_end ]] || stop_front_end "$front_end"
    stop_display
    rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 1' INT TERM

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

shot() { # name
    sleep 0.7
    import -window "$(xdotool getwindowfocus)" "$shots/$theme-$1.png"
}
measure() { # what, arguments of contrast.py...
    local ratio status=0
    ratio=$("$here/contrast.py" "${@:2}") || status=1
    ((status == 0)) || low=$((low + 1))
    printf '  %-7s %-34s %5s:1%s\n' "$theme" "$1" "$ratio" "$( ((status == 0)) || echo "  TOO LOW, less than ${*: -1}")"
}
text() { measure "text: $1" text "$shots/$theme-$2.png" "$3" "${4:-4.5}"; }         # what, shot, box
change() { measure "$1" change "$shots/$theme-$2.png" "$shots/$theme-$3.png" "$4" 3; } # what, two shots, box

start_display "$work" || fail "no display"
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_DIRS=/usr/local/share:/usr/share
mkdir -p "$app/ROMs" "$XDG_CONFIG_HOME/qt6ct"
cp "$1" "$app/KestrivaneUI"
cp "$2" "$app/Kestrivane.exe"
printf 'seconds=1\nend=good\n' >"$app/ROMs/7undertow.zip"
echo shader >"$app/some.fs"
cat >"$XDG_CONFIG_HOME/qt6ct/qt6ct.conf" <<'CONF'
[Appearance]
color_scheme_path=/usr/share/qt6ct/colors/darker.conf
custom_palette=true
style=Fusion
CONF

for theme in light qt6ct gtk; do
    unset QT_QPA_PLATFORMTHEME GTK_THEME
    case $theme in
        qt6ct) export QT_QPA_PLATFORMTHEME=qt6ct ;;
        gtk) export QT_QPA_PLATFORMTHEME=gtk3 GTK_THEME=Adwaita:dark ;;
    esac
    "$app/KestrivaneUI" 2>/dev/null &
    front_end=$!
    wait_until 30 title_is "$main_title" || fail "no main window"
    f1=:6870 f2=:4950 f3=:3090

    shot main
    press Tab
    shot filter
    press Tab
    shot configure
    text "title" main 720,120,5000,495$f1
    text "game" main 165,1200,3000,3000$f1
    text "selected game" main 165,780,2000,180$f1
    text "count, in its fixed colours" main 165,5660,2000,220$f1 3.7
    text "filter" main 450,5900,1400,435$f1
    text "figures" main 6000,6120,3000,495$f1
    text "play button" main 9400,6108,1300,500$f1
    change "focus: filter" main filter 120,5900,1815,435$f1
    change "focus: button" filter configure 128,6368,3720,375$f1
    press alt+h a
    wait_until 10 title_is "Kestrivane UI" || fail "no about box"
    shot about
    text "about, in its fixed grey" about 1725,900,2775,255$f3 3.1
    text "about" about 120,2640,4455,255$f3
    press Escape
    wait_until 10 title_is "$main_title" || fail "the about box stays"

    press alt+t o
    wait_until 10 title_is "   Options:   Global" || fail "no options"
    shot page-in-focus
    press Tab
    shot save-in-focus
    press Tab Tab
    shot check-in-focus
    press space
    shot unchecked
    press Tab
    shot bar-in-focus
    press shift+Tab shift+Tab shift+Tab shift+Tab Right Tab
    shot next-page
    change "focus: page" page-in-focus save-in-focus 130,120,615,615$f2
    change "state: page" save-in-focus next-page 130,120,615,615$f2
    change "state: next page" save-in-focus next-page 743,120,615,615$f2
    change "focus: save" page-in-focus save-in-focus 5280,120,1215,375$f2
    change "focus: check box" save-in-focus check-in-focus 368,960,1455,255$f2
    change "state: check box" check-in-focus unchecked 368,960,1455,255$f2
    change "focus: bar" unchecked bar-in-focus 368,1320,7200,375$f2
    text "save" page-in-focus 5480,160,815,295$f2
    text "check box" page-in-focus 750,960,1000,255$f2
    text "value" page-in-focus 4100,990,735,255$f2
    text "note" page-in-focus 2500,3720,3000,255$f2

    press Tab Tab
    shot drop-down
    change "focus: drop-down" next-page drop-down 1688,960,1575,360$f2
    text "drop-down" drop-down 1800,1000,1000,280$f2
    press shift+Tab shift+Tab shift+Tab Right Tab Tab
    shot inputs
    press Tab
    shot group-in-focus
    press Right
    shot next-group
    press Tab Tab Tab
    shot table
    press Tab Tab Tab Tab
    shot link-in-focus
    change "focus: group" inputs group-in-focus 248,900,1080,255$f2
    change "state: group" inputs link-in-focus 248,900,1080,255$f2
    change "focus: table" next-group table 248,1560,1725,2790$f2
    change "focus: link" table link-in-focus 248,4440,1695,195$f2
    text "link" inputs 248,4440,1695,195$f2
    text "restoring link" inputs 6000,4440,1700,195$f2
    text "binding" inputs 1990,2000,1600,2000$f2
    text "heading" inputs 248,1320,1400,210$f2

    press Escape
    wait_until 10 title_is "$main_title" || fail "the options stay"
    press alt+t o
    wait_until 10 title_is "   Options:   Global" || fail "no options"
    press Right Right Right Right
    for ((step = 0; step < 11; ++step)); do press Tab; done
    shot folders
    text "folder" folders 500,1600,2400,2500$f2
    press space
    shot hint
    text "hint, red on the lightest" hint 3500,3990,4000,200$f2 3.9
    kill "$front_end"
    wait "$front_end" 2>/dev/null || true
    front_end=
done
((low == 0)) || fail "$low contrasts are too low"
echo "All can be read and seen"
