#!/usr/bin/env bash
# Builds the fuzzers and runs each for the given seconds (60), starting from the kept inputs; with 0 it
# only replays these. Prints how many inputs each tried. A finding fails the run and is kept in
# build-sanitize. Usage: run.sh [SECONDS]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

seconds=${1:-60}
build="build-sanitize"
# A small quarantine for freed memory makes the runs faster.
export ASAN_OPTIONS=malloc_context_size=4:quarantine_size_mb=8

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
{ cmake --preset sanitize && cmake --build --preset sanitize --target fuzzers --parallel "$(nproc)"; } \
    >"$scratch/build.log" 2>&1 || { cat "$scratch/build.log"; exit 1; }

found=0
examine() { # name, kept inputs, limits
    TMPDIR=$scratch "$build/fuzz/fuzz_$1" "${@:3}" -timeout=10 -rss_limit_mb=1024 \
        -dict="$PWD/fuzz/words.dict" -artifact_prefix="$PWD/$build/$1-" -print_final_stats=1 \
        "$scratch/$1" "$2" >"$build/fuzz_$1.log" 2>&1
}
# Fuzzers change their working folder, so their paths must be absolute. Long inputs take too long.
for kept in "$PWD"/fuzz/corpus/*/; do
    name=$(basename "$kept")
    log=$build/fuzz_$name.log
    mkdir "$scratch/$name"
    if examine "$name" "$kept" -runs=0 && { ((seconds == 0)) || examine "$name" "$kept" \
        -max_len=512 -max_total_time="$seconds"; }; then
        echo "$name: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") executions," \
            "$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log") a second"
    else
        echo "$name: a finding"
        tail -n 60 "$log"
        found=1
    fi
done
exit "$found"
