#!/usr/bin/env bash
# The developers' checks, about ten minutes of processor time. The first finding ends the script.
# Usage: check.sh [CHECK...]   each the name of a function below; without any, all checks run
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build() { # preset or folder, targets...
    cmake --build "$1" --parallel "$(nproc)" ${2:+--target "${@:2}"} >"$1/check.log" 2>&1 ||
        { tail -n 60 "$1/check.log" >&2 && return 1; }
}

# Other releases of clang-format have a different layout, and those of clang-tidy other findings.
has_version_14() {
    [[ $("$1" --version) == *" version 14."* ]] || { echo "Skipped: $1 is not version 14" && return 1; }
}

format() {
    has_version_14 clang-format || return 0
    find src standin tests fuzz bench \( -name '*.cpp' -o -name '*.h' \) -print0 |
        xargs -0 clang-format --dry-run --Werror
}

each_file() { tools/each_file.py; }

tidy() {
    has_version_14 clang-tidy || return 0
    tools/tidy.sh
}

# Runs the tests of the logic with a plain char that is unsigned, as on ARM.
unsigned_char() {
    cmake -S . -B build-unsigned -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS=-funsigned-char \
        -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0 \
        -DBUILD_TESTING=ON -DKESTRIVANE_WERROR="${KESTRIVANE_WERROR:-OFF}" >/dev/null
    build build-unsigned logic_tests
    build-unsigned/tests/logic_tests --gtest_brief=1
}

pack() {
    cmake --preset release -DBUILD_TESTING=ON >/dev/null
    build build KestrivaneUI standin
    rm -f build/*.tar.gz
    (cd build && cpack >cpack.log) || { tail -n 20 build/cpack.log >&2 && return 1; }
}

# Checks the program as built here and as packed in the archives.
hardening() {
    local unpacked=build/unpacked archive files
    pack
    rm -rf "$unpacked"
    for archive in build/*.tar.gz; do
        mkdir -p "$unpacked/$(basename "$archive")"
        tar -xzf "$archive" -C "$unpacked/$(basename "$archive")"
    done
    tests/hardening.sh --program build/KestrivaneUI "$unpacked"/*/KestrivaneUI
    mapfile -t files < <(find "$unpacked" -name '*.so*' -type f)
    tests/hardening.sh build/standin/Kestrivane.exe "${files[@]}"
    rm -rf "$unpacked"
}

# Unpacks the archives over each other.
archives() {
    pack
    tests/e2e/archives.sh build
}

# A start, a play and a save by the whole program under the thread sanitizer. Once it is
# built, that takes three seconds of the processor, and half a minute.
threads() {
    local alone=()
    cmake --preset threads >/dev/null
    build build-threads KestrivaneUI standin
    # The sanitizer of clang 14 can't start where the system spreads addresses widely, and a container
    # may not be allowed to change that.
    ! setarch -R true 2>/dev/null || alone=(setarch -R)
    [[ $("${alone[@]}" build-threads/KestrivaneUI --version 2>&1) != *"unexpected memory mapping"* ]] ||
        { echo "The thread sanitizer can't start here; not run" && return 0; }
    TSAN_OPTIONS="halt_on_error=1:history_size=7:suppressions='$PWD/tests/threads.supp'" \
        "${alone[@]}" tests/e2e/end_to_end.sh build-threads/KestrivaneUI build-threads/standin/Kestrivane.exe
}

checks=("$@")
((${#checks[@]} > 0)) || checks=(format each_file hardening archives unsigned_char threads tidy)
for check in "${checks[@]}"; do
    echo "== Check: ${check//_/ }"
    "$check"
done
