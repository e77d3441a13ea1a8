#!/usr/bin/env bash
# Compiles for Windows all that needs no toolkit, and runs its tests under wine, also where the
# system has other code pages and where the disk is full. Where windows.sh has built them, the
# windows' tests run too, without a display.
# Usage: windows_logic.sh FOLDER
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build=$1
. tools/wine.sh

if [[ ! -e $build/tests/ui_tests.exe ]]; then
    # One unit a library: headers are compiled once, which makes seconds out of a minute.
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
    # wine keeps the toolkit's variables from what it runs, unless they come from its own registry.
    wine reg add 'HKCU\Environment' /v QT_QPA_FONTDIR /d 'Z:\usr\share\fonts\truetype\dejavu' /f >/dev/null
    # Transcripts hold what the fonts of the other system let each list show; here other rows are in sight.
    run ui '-*Transcript*'
fi

# A limit on the size of files stands for a full disk.
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
