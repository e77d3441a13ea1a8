#!/usr/bin/env bash
# Builds everything. Runs the fuzzers for some seconds, the tests of the logic as a Windows program, all
# tests under the sanitizers, and the tests of the logic and the end-to-end test as released. This
# selection takes about five minutes of processor time. The first failure ends the script.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

# Lets reports of the sanitizers name source lines even if llvm-symbolizer is missing.
export ASAN_OPTIONS=allow_addr2line=1
# A folder for all temporary files, removed at the end. Tests that root starts run as another user, who
# must be able to enter it.
TMPDIR=$(mktemp -d)
chmod 711 "$TMPDIR"
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
echo "On a bare Debian this fetches about 470 MB of packages and takes 3.5 GB of the disk, demo.sh's included"
tools/install.sh build test display fuzz windows
build() { # preset, targets...
    cmake --preset "$1" -DBUILD_TESTING=ON
    cmake --build --preset "$1" --parallel "$(nproc)" "${@:2}"
}
build sanitize
build release --target KestrivaneUI standin logic_tests
echo "Fuzzers, some seconds each"
fuzz/run.sh 2
echo "Tests of the logic for Windows, under wine"
tests/windows_logic.sh build-windows-logic
echo "Tests under the sanitizers"
ctest --preset sanitize --parallel "$(nproc)"
echo "Tests as released"
ctest --preset release --parallel "$(nproc)" --exclude-regex '^(soak|windows_at_scale_.*|ui_tests_NOT_BUILT.*)$'
