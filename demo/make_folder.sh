#!/usr/bin/env bash
# Lays out an emulator's folder with the front-end, the stand-in emulator, archives, pictures and a
# configuration file. A second run into the same folder keeps the pictures and the configuration file.
# Needs ImageMagick's convert and the DejaVu fonts.
set -euo pipefail

if (($# != 3)); then
    echo "usage: make_folder.sh FRONTEND STANDIN TARGET" >&2
    exit 2
fi
front_end=$1
stand_in=$2
mkdir -p -- "$3"
# Pictures this small are drawn faster without threads.
export MAGICK_THREAD_LIMIT=1
target=$(cd -- "$3" && pwd)
second_roms="$target/More ROMs"

# "name<TAB>title" for each game, in UTF-8. The title begins in the 14th column.
list_games() {
    local line seen=""
    (cd -- "$target" && ./Kestrivane.exe -print-games) | iconv -f CP1252 -t UTF-8 | tr -d '\r' |
        while IFS= read -r line; do
            if [[ $line == "-------         -----" ]]; then
                seen=yes
            elif [[ -n $seen && -n $line ]]; then
                sed -E 's/^ +//; s/ +$//; s/ *\t */\t/' <<<"${line:0:13}"$'\t'"${line:13}"
            fi
        done
}

# Writes an archive, which says how long the stand-in plays and how the play ends.
write_archive() { # name, index, whether it is the first title
    local folder="$target/ROMs" seconds=$((3 + $2 * 11 % 38)) end=good
    if [[ $3 == yes ]]; then
        seconds=24
    else
        (($2 % 5 != 4)) || folder=$second_roms
        case $(($2 % 16)) in
            5 | 13) end=error ;;
            6) end=nolog ;;
            7) end=crash ;;
        esac
    fi
    printf 'seconds=%d\nend=%s\n' "$seconds" "$end" >"$folder/$1.zip"
}

# A picture of 640 by 480 with one of four motifs in colours of its own, and the title below.
draw_snapshot() { # file, title, index
    local hue=$(($3 * 67 % 360))
    local far="hsl($hue,60%,18%)" near="hsl($(((hue + 50) % 360)),75%,48%)"
    local bright="hsl($(((hue + 180) % 360)),90%,62%)" pale="hsl($(((hue + 210) % 360)),80%,80%)"
    local backdrop="gradient:$far-$near"
    local -a motif
    case $(($3 % 4)) in
        0) # a road to the horizon
            motif=(-fill "$bright" -draw "circle 450,190 450,110"
                -fill "$far" -draw "polygon 0,260 110,170 210,260 330,150 470,260 560,200 640,260"
                -fill "hsl($(((hue + 90) % 360)),45%,28%)" -draw "rectangle 0,260 640,480"
                -fill gray20 -draw "polygon 300,260 340,260 600,480 40,480"
                -fill white -draw "polygon 318,270 322,270 324,300 316,300"
                -draw "polygon 315,320 325,320 329,380 311,380"
                -draw "polygon 309,400 331,400 340,480 300,480") ;;
        1) # two fighters under their energy bars
            backdrop="plasma:$far-$near"
            motif=(-fill "hsl($hue,40%,12%)" -draw "rectangle 0,350 640,480"
                -fill black -draw "rectangle 28,26 300,56" -draw "rectangle 340,26 612,56"
                -fill yellow2 -draw "rectangle 92,31 295,51" -draw "rectangle 345,31 500,51"
                -stroke "$bright" -strokewidth 26
                -draw "line 210,220 200,310 line 200,310 165,390 line 200,310 250,380 line 208,240 290,215"
                -stroke "$pale"
                -draw "line 430,220 440,310 line 440,310 475,390 line 440,310 390,380 line 432,250 355,270"
                -stroke none -fill "$bright" -draw "circle 212,175 212,145"
                -fill "$pale" -draw "circle 428,175 428,145") ;;
        2) # a ship before a ringed planet
            backdrop="plasma:black-$far"
            motif=(-fill white -draw "circle 60,70 60,72 circle 150,200 150,203 circle 300,50 300,52"
                -draw "circle 590,260 590,262 circle 250,310 250,312 circle 90,330 90,333"
                -fill "$near" -draw "circle 440,170 440,70"
                -fill none -stroke "$pale" -strokewidth 9 -draw "ellipse 440,170 170,30 10,350"
                -stroke none -fill "$bright" -draw "polygon 200,250 300,380 200,345 100,380"
                -fill "$pale" -draw "polygon 200,275 222,345 178,345") ;;
        3) # targets under a cross-hair
            motif=(-fill white -draw "circle 200,230 200,120" -draw "circle 470,160 470,90"
                -fill "$bright" -draw "circle 200,230 200,150" -draw "circle 470,160 470,110"
                -fill white -draw "circle 200,230 200,180" -draw "circle 470,160 470,130"
                -fill "$bright" -draw "circle 200,230 200,208" -draw "circle 470,160 470,148"
                -fill none -stroke black -strokewidth 5 -draw "circle 440,185 440,135"
                -draw "line 440,105 440,265 line 360,185 520,185" -stroke none) ;;
    esac
    # A percent sign would be taken as an escape by caption:.
    convert -seed "$3" -size 640x480 "$backdrop" "${motif[@]}" \
        -fill '#000000a0' -draw "rectangle 0,395 640,480" \
        \( -background none -fill white -font DejaVu-Sans-Bold -size 600x70 -gravity center \
        "caption:${2//%/%%}" \) -gravity south -geometry +0+8 -composite \
        -strip -quality 88 "$1"
}

# An icon of 32 by 32: the title's first letter on a coloured tile.
draw_icon() { # file, title, index
    local hue=$(($3 * 67 % 360))
    local initial=${2:0:1}
    convert -size 32x32 xc:none -fill "hsl($hue,65%,42%)" -stroke "hsl($hue,65%,25%)" \
        -draw "roundrectangle 1,1 30,30 7,7" \
        -stroke none -fill "hsl($(((hue + 180) % 360)),85%,70%)" -draw "circle 25,7 25,4" \
        -fill white -font DejaVu-Sans-Bold -pointsize 20 -gravity center \
        -annotate +0+0 "${initial//%/%%}" -strip "$1"
}

# Prints a line in the configuration file's code page, or in UTF-8 if the code page lacks a character.
configuration_line() {
    if iconv -f UTF-8 -t CP1252 <<<"$1" >/dev/null 2>&1; then
        printf '%s\r\n' "$1" | iconv -f UTF-8 -t CP1252
    else
        printf '%s\r\n' "$1"
    fi
}

write_configuration() {
    local line
    local -a inputs
    mapfile -t inputs <"$(dirname -- "${BASH_SOURCE[0]}")/inputs.ini"
    local -a lines=(
        ";****" ";*** Configuration file generated by Kestrivane UI® (v0.9 build 151)" ";****" "" ""
        "[ Global ]" ""
        ";****" ";*** User preferences" ";****" "" "" ""
        ";****" ";*** General input configuration" ";****" "" "${inputs[@]}" "" ""
        ";****" ";*** KVL configuration" ";****"
        ";ROMpaths=$second_roms"
    )
    for line in "${lines[@]}"; do configuration_line "$line"; done
}

mkdir -p -- "$target"/{ROMs,Snaps,Icons,Config,NVRAM} "$second_roms"
install -m 755 -- "$front_end" "$target/KestrivaneUI"
install -m 755 -- "$stand_in" "$target/Kestrivane.exe"

mapfile -t games < <(list_games)
if ((${#games[@]} == 0)); then
    echo "make_folder.sh: the stand-in lists no games" >&2
    exit 1
fi
first=$(printf '%s\n' "${games[@]}" | LC_ALL=C sort -f -t $'\t' -k 2 | head -n 1)

# A few games lack an archive, a snapshot or an icon, so that each of these can be seen.
for index in "${!games[@]}"; do
    name=${games[index]%%$'\t'*}
    title=${games[index]#*$'\t'}
    is_first=no
    [[ ${games[index]} != "$first" ]] || is_first=yes
    snapshot="$target/Snaps/$name.jpg"
    icon="$target/Icons/$name.ico"

    if ((index % 7 != 2)) || [[ $is_first == yes ]]; then
        write_archive "$name" "$index" "$is_first"
    fi
    if [[ ! -e $snapshot ]] && { ((index % 9 != 8)) || [[ $is_first == yes ]]; }; then
        draw_snapshot "$snapshot" "$title" "$index"
    fi
    if [[ ! -e $icon ]] && ((index % 10 != 9)); then
        draw_icon "$icon" "$title" "$index"
    fi
    if ((index % 8 == 0)); then
        head -c 4096 /dev/zero >"$target/NVRAM/$name.nv"
    fi
done

[[ -e $target/Config/Kestrivane.ini ]] || write_configuration >"$target/Config/Kestrivane.ini"
