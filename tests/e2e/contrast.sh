#!/usr/bin/env bash
# Starts the program on Qt's default desktop, on two dark ones and on two with high contrast, and checks
# on screenshots the contrast of texts (4.5:1) and of edges, thumbs, focus and state (3:1). Takes three
# minutes.
# Usage: contrast.sh FRONT_END STAND_IN [folder for the screenshots]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
"$here/../../tools/install.sh" display contrast
. "$here/../../tools/front_end.sh"

shots=${3:-$work}
low=0

start_display "$work" || fail "no display"
export HOME=$work XDG_DATA_DIRS=/usr/local/share:/usr/share
lay_out "$work/app" "$1" "$2"
write_archive "$work/app" 1 good
echo shader >"$work/app/some.fs"
mkdir -p "$shots" "$XDG_CONFIG_HOME/qt6ct"

# A palette of white and yellow on black. Qt takes GTK's colours only from its version 6.5 on. The colours
# are in the order of Qt's roles: text, button, ... window, ... highlight, highlighted text, links, ...
black='#ff000000' white='#ffffffff' yellow='#ffffff00' cyan='#ff00ffff' grey='#ff808080'
roles="$white, $black, $white, $grey, $black, $grey, $white, $white, $white, $black, $black, $black, \
$yellow, $black, $cyan, $cyan, $black, $white, $black, $white, $grey"
printf '[ColorScheme]\nactive_colors=%s\ninactive_colors=%s\ndisabled_colors=%s\n' \
    "$roles" "$roles" "${roles//$white/$grey}" >"$work/high.conf"

for desktop in "light" "qt6ct QT_QPA_PLATFORMTHEME=qt6ct" "high QT_QPA_PLATFORMTHEME=qt6ct" \
    "gtk QT_QPA_PLATFORMTHEME=gtk3 GTK_THEME=Adwaita:dark" \
    "gtk-high QT_QPA_PLATFORMTHEME=gtk3 GTK_THEME=HighContrast"; do
    read -r theme variables <<<"$desktop"
    [[ -z $variables ]] || export ${variables?}
    [[ $theme == high ]] && colours=$work/high.conf || colours=/usr/share/qt6ct/colors/darker.conf
    printf '[Appearance]\ncolor_scheme_path=%s\ncustom_palette=true\nstyle=Fusion\n' "$colours" \
        >"$XDG_CONFIG_HOME/qt6ct/qt6ct.conf"
    start "$work/app" 2>/dev/null
    while IFS=$'\t' read -r kind keys shot title <&3; do
        [[ $kind == keys ]] || continue
        [[ $keys == - ]] || press $keys
        [[ -z $title ]] || expect_window "$title"
        sleep 0.7
        [[ $shot == - ]] || import -window "$(xdotool getwindowfocus)" "$shots/$theme-$shot.png"
    done 3<"$here/contrast.tsv"
    kill "$front_end"
    expect_end 143
    echo "$theme"
    "$here/contrast.py" "$here/contrast.tsv" "$shots/$theme-" || low=$((low + $?))
done
((low == 0)) || fail "$low contrasts are too low"
echo "All contrasts are high enough"
