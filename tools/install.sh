#!/usr/bin/env bash
# Installs the Debian packages that are missing for the tasks named: build, demo, display, test,
# fuzz, bench.
set -euo pipefail

declare -A packages=(
    [build]="g++ cmake ninja-build qt6-base-dev"
    [demo]="fonts-dejavu-core imagemagick"
    [display]="xvfb openbox xdotool procps"
    [test]="fonts-dejavu-core libgtest-dev"
    [fuzz]="clang libclang-rt-14-dev"
    [bench]="libbenchmark-dev libinih-dev imagemagick x11-xserver-utils"
)

missing=()
for task in "$@"; do
    for package in ${packages[$task]}; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
            missing+=("$package")
    done
done
((${#missing[@]} > 0)) || exit 0

as_root=()
((EUID == 0)) || as_root=(sudo)
echo "Installing ${missing[*]}"
"${as_root[@]}" apt-get update
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install --yes --no-install-recommends "${missing[@]}"
