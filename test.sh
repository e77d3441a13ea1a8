#!/usr/bin/env bash
# Builds everything and runs the fuzzers for some seconds, the logic's tests for Windows, and all
# tests: by clang under the sanitizers first, then as released. A failed build or run ends it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

# A report of the sanitizers names lines, also where the compiler's own tool for that is missing.
export ASAN_OPTIONS=allow_addr2line=1
tools/install.sh build test display fuzz windows
for preset in sanitize release; do
    cmake --preset "$preset" -DBUILD_TESTING=ON
    cmake --build --preset "$preset" --parallel "$(nproc)"
done
echo "Fuzzers, some seconds each"
fuzz/run.sh 3
echo "Tests of the logic for Windows, under wine"
tests/windows_logic.sh build-windows-logic
echo "Tests under the sanitizers"
ctest --preset sanitize --parallel "$(nproc)"
echo "Tests as released"
ctest --preset release --parallel "$(nproc)" --exclude-regex '^soak$'
