#!/usr/bin/env bash
# Builds the front-end for Windows on a Debian machine, runs its tests under wine, and leaves
# KestrivaneUI-VERSION-windows.zip. Qt for Windows is built once, into a folder outside this one. Once
# everything is built, each test command at the end can be run by itself.
# Usage: windows.sh [FOLDER_FOR_QT]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
cache=${1:-${XDG_CACHE_HOME:-$HOME/.cache}/kestrivane-ui-qt-windows}
build=build-windows

tools/install.sh build windows qt-windows demo display
tools/qt_windows.sh "$cache"
cache=$(cd "$cache" && pwd)
cmake -S . -B $build -G Ninja -DCMAKE_TOOLCHAIN_FILE=cmake/windows.cmake \
    -DQT_FOR_WINDOWS="$cache/qt" -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=ON
cmake --build $build --parallel "$(nproc)"
(cd $build && cpack)
cmake --preset release
cmake --build --preset release --parallel "$(nproc)" --target KestrivaneUI

echo "The program file"
tests/windows_file.sh $build
echo "Tests of the logic and of the windows, under wine"
tests/windows_logic.sh $build
echo "The package on a virtual display, under wine"
tests/e2e/windows.sh $build/KestrivaneUI-*-windows.zip $build/standin/Kestrivane.exe $build \
    build/KestrivaneUI
mv $build/KestrivaneUI-*-windows.zip .
ls KestrivaneUI-*-windows.zip
