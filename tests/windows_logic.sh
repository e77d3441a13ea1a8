#!/usr/bin/env bash
# Compiles for Windows all that needs no toolkit, and runs its tests under wine, also where the
# system has other code pages and where the disk is full.
# Usage: windows_logic.sh FOLDER, which has the tests built already if it is one of windows.sh
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
tests=$build/tests/logic_tests.exe
wine "$tests" --gtest_brief=1

# A limit on the size of files stands for a full disk.
(
    trap '' XFSZ
    ulimit -f 64
    KESTRIVANE_DISK_FULL=1 wine "$tests" --gtest_brief=1 --gtest_filter='*FullDisk*'
)

for place in ru_RU ja_JP; do
    export LOCPATH=$PWD/$build/locale LC_ALL=$place.UTF-8
    mkdir -p "$LOCPATH"
    [[ -e $LOCPATH/$LC_ALL ]] || localedef -i "$place" -f UTF-8 "$LOCPATH/$LC_ALL"
    stop_wine
    wine "$tests" --gtest_brief=1 --gtest_filter='*CodePageIsTheSystems'
done
