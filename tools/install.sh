#!/usr/bin/env bash
# Installs the Debian packages that are missing for the tasks named: build, package (the archive with
# Qt), demo, display, test, windows (the logic's tests under wine), qt-windows, fuzz, tidy, spoken,
# contrast, bench, fresh (a bare system). Without apt-get, or the right to use it, it names the
# packages in one line and fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

declare -A packages=(
    [build]="g++ cmake ninja-build qt6-base-dev"
    [package]="qt6-wayland"
    [demo]="fonts-dejavu-core imagemagick"
    [display]="xvfb openbox xdotool procps"
    [test]="fonts-dejavu-core libgtest-dev"
    [windows]="g++-mingw-w64-x86-64-posix googletest locales wine wine64"
    [qt-windows]="dpkg-dev qt6-base-dev"
    [fuzz]="clang libclang-rt-dev"
    [tidy]="clang clang-tidy clang-format python3"
    [spoken]="orca python3-speechd at-spi2-core dbus"
    [contrast]="imagemagick python3-pil qt6ct qt6-gtk-platformtheme gnome-themes-extra dbus-x11"
    [fresh]="debootstrap git"
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
needs_administrator() {
    echo "Missing packages, to be installed by an administrator: ${missing[*]}" >&2
    exit 1
}
for program in apt-get "${as_root[@]}"; do
    command -v "$program" >/dev/null || needs_administrator
done
log=build/install.log
echo "Installing ${missing[*]}; what apt-get says goes to $log"
# This check of the rights may ask for a password; the commands below then don't ask again.
((EUID == 0)) || sudo -l apt-get >/dev/null || needs_administrator
mkdir -p build

# Writes apt's output to the log, and shows its progress if the output is a terminal.
follow() {
    local line
    local -A stages=([dl]=Fetching [pm]=Installing)
    while IFS= read -r line; do
        if [[ $line =~ ^(dl|pm)status:[^:]*:([0-9]+) ]]; then
            [[ ! -t 1 ]] ||
                printf '\r%-11s%3d %% ' "${stages[${BASH_REMATCH[1]}]}" "${BASH_REMATCH[2]}"
        else
            printf '%s\n' "$line" >>"$log"
        fi
    done
    [[ ! -t 1 ]] || printf '\r%20s\r' ""
}
apt() { # progress goes to descriptor 1, because sudo closes all but the standard ones
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o APT::Status-Fd=1 "$@" 2>&1 | follow
}
: >"$log"
apt update && apt install --yes --no-install-recommends "${missing[@]}" || {
    echo "apt-get failed. The end of $log:" >&2
    tail -n 20 "$log" >&2
    exit 1
}
