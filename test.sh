#!/usr/bin/env bash
# Builds everything and runs the fuzzers for some seconds, the logic's tests for Windows, all tests by
# clang under the sanitizers, and the logic's and the end-to-end test as released, which is what five
# minutes of the processor allow. A failed build or run ends it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

# A report of the sanitizers names lines, also where the compiler's own tool for that is missing.
export ASAN_OPTIONS=allow_addr2line=1
# Nothing stays in the system's folder for what is temporary. Tests that root runs act as another user,
# who must reach it.
TMPDIR=$(mktemp -d)
chmod 711 "$TMPDIR"
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
echo "On a bare Debian this fetches about 450 MB of packages and takes 2.3 GB of the disk, demo.sh's included"
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
