#!/usr/bin/env bash
# Puts each fault of faults.tsv into a copy of the program, builds what it touches and says whether a
# test fails. The copy stays in build-faults for the next time.
# Usage: run.sh [PATTERN]: the rows that match.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

copy=$PWD/build-faults/copy
build=$copy/build
log=$PWD/build-faults/log
mkdir -p "$copy"
git ls-files -z --cached --others --exclude-standard | while IFS= read -rd '' file; do
    cmp -s "$file" "$copy/$file" || cp --parents "$file" "$copy"
done
build_all() { cmake --build "$build" --parallel "$(nproc)" >"$log" 2>&1; }
test_all() {
    ctest --test-dir "$build" --parallel "$(nproc)" --stop-on-failure --no-tests=error \
        --exclude-regex '^(end_to_end|soak)$' >"$log" 2>&1
}

cmake -S "$copy" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DBUILD_TESTING=ON >"$log"
{ build_all && test_all; } || { cat "$log"; exit 1; }

caught=0 rows=0
while IFS=$'\t' read -r file text replacement what; do
    [[ $what =~ ${1:-} ]] || continue
    [[ $replacement != - ]] || replacement=
    rows=$((rows + 1))
    source=$(<"$copy/$file")
    rest=${source#*"$text"}
    if [[ $rest == "$source" || $rest == *"$text"* ]]; then
        answer="THE TEXT IS NO LONGER FOUND in $file"
    elif printf '%s\n' "${source/"$text"/"$replacement"}" >"$copy/$file" && ! build_all; then
        answer="DOES NOT BUILD: $(grep -m 1 'error:' "$log")"
    elif test_all; then
        answer="NOT CAUGHT"
    else
        answer="caught by $(sed -nE 's/.*Test +#[0-9]+: ([^ ]+) \.*.*\*\*\*.*/\1/p' "$log" | tr '\n' ' ')"
        caught=$((caught + 1))
    fi
    printf '%s\n' "$source" >"$copy/$file"
    echo "$what: $answer"
done < <(grep -v '^#' tests/faults/faults.tsv)
echo "$caught of $rows caught"
