#!/usr/bin/env bash
# Renders the pictures from their SVG drawings, which lie beside this script.
# Needs rsvg-convert and ImageMagick's convert.
set -euo pipefail
cd -- "$(dirname -- "$0")"

work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT

# The metadata is left out, so that a drawing that hasn't changed renders to the same bytes.
png() { # drawing, picture, size in pixels
    rsvg-convert -w "$3" -h "$3" "$1.svg" -o "$work/raw.png"
    convert "$work/raw.png" -strip -define png:exclude-chunks=date,time "PNG32:$2"
}

frames=()
for size in 16 24 32 48 64; do
    png icon "icon_$size.png" "$size"
    frames+=("icon_$size.png")
done
png icon icon_128.png 128
png icon icon.png 256
# For the program file on Windows; its largest frame is a PNG inside.
convert "${frames[@]}" icon.png icon.ico

rsvg-convert -w 784 -h 684 default.svg -o "$work/default.png"
for size in 392x342:default.jpg 784x684:default@2x.jpg; do
    convert "$work/default.png" -filter Lanczos -resize "${size%:*}!" -strip \
        -sampling-factor 4:4:4 -quality 90 "${size#*:}"
done

for drawing in page_audio page_video page_input page_machine page_folders \
               adv_force adv_keymouse adv_joystick link_pointer; do
    png "$drawing" "$drawing.png" 32
    png "$drawing" "$drawing@2x.png" 64
done
