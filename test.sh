#!/usr/bin/env bash
# Builds everything with the sanitizers and runs all tests, and the fuzzers for some seconds; then
# builds the program as it is released, and uses that from end to end. A failed build or run ends it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

tools/install.sh build test display fuzz
cmake --preset sanitize -DBUILD_TESTING=ON
cmake --build --preset sanitize --parallel "$(nproc)"
cmake --preset release -DBUILD_TESTING=OFF
cmake --build --preset release --parallel "$(nproc)"
echo "Fuzzers, some seconds each"
fuzz/run.sh 5
echo "Tests under the sanitizers"
ctest --preset sanitize --parallel "$(nproc)"
echo "The released program from end to end"
tests/e2e/end_to_end.sh build/KestrivaneUI build/standin/Kestrivane.exe tools/display.sh
