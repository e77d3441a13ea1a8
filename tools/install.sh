#!/usr/bin/env bash
# Installs the Debian packages that are missing for the tasks named: build, package (the archive with
# Qt), demo, display, test, windows (the logic's tests under wine), qt-windows, fuzz, tidy, spoken,
# contrast, bench. Where
# nothing can be installed it names them in one line, and fails.
set -euo pipefail

declare -A packages=(
    [build]="g++ cmake ninja-build qt6-base-dev"
    [package]="qt6-wayland"
    [demo]="fonts-dejavu-core imagemagick"
    [display]="xvfb openbox xdotool procps"
    [test]="fonts-dejavu-core libgtest-dev"
    [windows]="g++-mingw-w64-x86-64-posix googletest locales wine wine64"
    [qt-windows]="dpkg-dev qt6-base-dev"
    [fuzz]="clang libclang-rt-dev"
    [tidy]="clang clang-tidy"
    [spoken]="orca python3-speechd at-spi2-core dbus"
    [contrast]="imagemagick python3-pil qt6ct qt6-gtk-platformtheme gnome-themes-extra dbus-x11"
    [bench]="libbenchmark-dev libinih-dev imagemagick x11-xserver-utils"
)

missing=()
for task in "$@"; do
    for package in ${packages[$task]}; do
        [[ " ${missing[*]} " == *" $package "* ||
            $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
            missing+=("$package")
    done
done
((${#missing[@]} > 0)) || exit 0

as_root=()
((EUID == 0)) || as_root=(sudo)
# The look into the rights may ask for a password, which need not be given again then.
if ! { command -v apt-get && { ((EUID == 0)) || sudo -l apt-get; }; } >/dev/null 2>&1; then
    echo "Missing packages, to be installed by an administrator: ${missing[*]}" >&2
    exit 1
fi
echo "Installing ${missing[*]}"
"${as_root[@]}" apt-get update
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install --yes --no-install-recommends "${missing[@]}"
