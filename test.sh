#!/usr/bin/env bash
# Builds everything and runs the fuzzers for some seconds and all tests: by clang under the sanitizers
# first, then as released. A failed build or run ends it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

# A report of the sanitizers names lines, also where the compiler's own tool for that is missing.
export ASAN_OPTIONS=allow_addr2line=1
# Its full time is for a run by itself.
export SOAK_SECONDS=10
tools/install.sh build test display fuzz
for preset in sanitize release; do
    cmake --preset "$preset" -DBUILD_TESTING=ON
    cmake --build --preset "$preset" --parallel "$(nproc)"
done
echo "Fuzzers, some seconds each"
fuzz/run.sh 5
for preset in sanitize release; do
    echo "Tests of the preset $preset"
    ctest --preset "$preset" --parallel "$(nproc)"
done
