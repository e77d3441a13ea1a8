#!/usr/bin/env bash
# Compiles the logic for Windows, which needs no Qt, and runs its tests under wine, also with other code
# pages of the system and with a full disk. If windows.sh has built the tests of the windows in FOLDER,
# they run too, without a display.
# Usage: windows_logic.sh FOLDER
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=$1
. tools/wine.sh

if [[ ! -e $build/tests/ui_tests.exe ]]; then
    # With one unit for each library, headers are compiled once. That takes seconds instead of a minute.
    cmake -S . -B "$build" -G Ninja -DCMAKE_TOOLCHAIN_FILE=cmake/windows.cmake \
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DKESTRIVANE_UI=OFF -DBUILD_TESTING=ON \
        -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0 \
        -DKESTRIVANE_WERROR="${KESTRIVANE_WERROR:-OFF}"
    cmake --build "$build" --parallel "$(nproc)"
fi
trap stop_wine EXIT
start_wine "$build"
run() { wine "$build/tests/$1_tests.exe" --gtest_brief=1 --gtest_filter="$2"; } # suite, filter
run logic '*'
if [[ -e $build/tests/ui_tests.exe ]]; then
    # Wine does not pass Qt's variables to programs, unless they are set in its own registry.
    wine reg add 'HKCU\Environment' /v QT_QPA_FONTDIR /d 'Z:\usr\share\fonts\truetype\dejavu' /f >/dev/null
    # Three transcripts are left out: the first has names that Windows does not allow, the second
    # opens a real browser, and the third has paths as they are spelled elsewhere.
    run ui '-*folders_are_reached_by_keys*:*menus_open_by_keys*:*pictures_come_from*'
fi

# A limit on the size of files imitates a full disk.
(
    trap '' XFSZ
    ulimit -f 64
    KESTRIVANE_DISK_FULL=1 run logic '*FullDisk*'
)

export LOCPATH=$PWD/$build/locale
mkdir -p "$LOCPATH"
for place in ru_RU ja_JP; do
    [[ -e $LOCPATH/$place.UTF-8 ]] || localedef -i "$place" -f UTF-8 "$LOCPATH/$place.UTF-8"
    stop_wine
    # The shell itself may have no messages in that language.
    LC_ALL=$place.UTF-8 run logic '*CodePageIsTheSystems'
done
