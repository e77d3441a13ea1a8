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
# The larger ones are for the desktop alone: a window would only load them for nothing.
for size in 16 24 32 48 64; do
    png icon "$work/icon_$size.png" "$size"
    frames+=("$work/icon_$size.png")
done
convert "${frames[@]}" icon.ico
png icon icon.png 256

rsvg-convert -w 784 -h 684 default.svg -o "$work/default.png"
convert "$work/default.png" -filter Lanczos -resize 392x342! -strip -sampling-factor 4:4:4 \
    -quality 90 default.jpg

for drawing in page_audio page_video page_input page_machine page_folders \
               adv_force adv_keymouse adv_joystick link_pointer; do
    png "$drawing" "$drawing.png" 32
    png "$drawing" "$drawing@2x.png" 64
done
