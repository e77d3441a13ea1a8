#!/usr/bin/python3
# Measures contrasts on screenshots. Usage: contrast.py TABLE START_OF_THE_PATHS. The exit status is the
# number of ratios that are too low. A text is measured against its background; a change between two
# screenshots by the pixels that differ most, as many as a stroke has.
import sys
from collections import Counter

from PIL import Image

STROKE = 12  # pixels: a short side of the smallest mark


def luminance(colour):
    red, green, blue = (part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4
                        for part in (value / 255 for value in colour))
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    dark, light = sorted((luminance(one), luminance(other)))
    return (light + 0.05) / (dark + 0.05)


def pixels(file, box):
    image = Image.open(file).convert("RGB")
    place, client_height = box.split(":")
    left, top, width, height = (int(number) // 15 for number in place.split(","))
    top += image.height - int(client_height) // 15
    return list(image.crop((left, top, left + width, top + height)).getdata())


def text_contrast(shot):
    colours = Counter(shot)
    background = colours.most_common(1)[0][0]
    # The text's colour is in several pixels. One or two pixels of a colour may be the edge of a letter.
    return max(contrast(colour, background) for colour, count in colours.items() if count > 2)


def change_contrast(before, after):
    return sorted(map(contrast, before, after), reverse=True)[STROKE]


low = 0
for row in (line.rstrip("\n").split("\t") for line in open(sys.argv[1], encoding="utf-8")):
    if row[0] in ("text", "change"):
        kind, what, shots, box, least = row
        measure = text_contrast if kind == "text" else change_contrast
        ratio = measure(*(pixels(f"{sys.argv[2]}{shot}.png", box) for shot in shots.split()))
        low += ratio < float(least)
        print(f"  {kind:6} {what:29} {ratio:4.1f}:1", f"TOO LOW, less than {least}" if ratio < float(least) else "")
sys.exit(low)
