#!/usr/bin/env bash
# Builds the fuzzers and runs each for the seconds given, from the kept inputs; with 0 it only
# replays these. Prints the executions of each. A finding fails the run and stays in build-sanitize.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

seconds=${1:-60}
build="build-sanitize"
limit=(-max_total_time="$seconds")
((seconds > 0)) || limit=(-runs=0)

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
build_fuzzers() {
    cmake --preset sanitize && cmake --build --preset sanitize --target fuzzers --parallel "$(nproc)"
}
build_fuzzers >"$scratch/build.log" 2>&1 || { cat "$scratch/build.log"; exit 1; }

found=0
# A fuzzer leaves the working folder: its paths must be whole.
for kept in "$PWD"/fuzz/corpus/*/; do
    name=$(basename "$kept")
    log=$build/fuzz_$name.log
    mkdir "$scratch/$name"
    if TMPDIR=$scratch "$build/fuzz/fuzz_$name" "${limit[@]}" -timeout=10 -rss_limit_mb=1024 \
        -dict="$PWD/fuzz/words.dict" -artifact_prefix="$PWD/$build/$name-" -print_final_stats=1 \
        "$scratch/$name" "$kept" >"$log" 2>&1; then
        echo "$name: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") executions"
    else
        echo "$name: a finding"
        tail -n 60 "$log"
        found=1
    fi
done
exit "$found"
