#!/usr/bin/python3
"""Measures screenshots: contrast.py text FILE BOX LEAST or contrast.py change BEFORE AFTER BOX LEAST.

BOX is "left,top,width,height" in twips, 15 to a pixel, counted from the left and lower edge of a
client area of the height that follows after a colon. Text must stand out from the colour behind it,
and a change must show in a stroke's worth of pixels, by the ratio LEAST.
"""
import sys
from collections import Counter

from PIL import Image

STROKE = 12  # pixels: a short side of the smallest mark


def luminance(colour):
    def linear(part):
        part /= 255
        return part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4

    red, green, blue = (linear(part) for part in colour)
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


def text_contrast(file, box):
    colours = Counter(pixels(file, box))
    background = colours.most_common(1)[0][0]
    # A letter's strokes hold the colour at several places; a single pixel may be an edge of its own.
    ratios = sorted((contrast(colour, background) for colour, count in colours.items() if count > 2),
                    reverse=True)
    return ratios[0] if ratios else 1


def change_contrast(before, after, box):
    ratios = sorted((contrast(one, other)
                     for one, other in zip(pixels(before, box), pixels(after, box))
                     if one != other), reverse=True)
    return ratios[STROKE] if len(ratios) > STROKE else 1


if sys.argv[1] == "text":
    ratio = text_contrast(*sys.argv[2:4])
else:
    ratio = change_contrast(*sys.argv[2:5])
print(f"{ratio:.1f}")
sys.exit(ratio < float(sys.argv[-1]))
