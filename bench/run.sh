#!/usr/bin/env bash
# Prints every figure: the benchmarks, the start, an hour of simulated use, and the program in use, on
# virtual displays.
# Usage: bench/run.sh BUILD_FOLDER
set -euo pipefail
build=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
tools/install.sh build display bench
. tools/display.sh
work=$(mktemp -d)
trap 'stop_display; rm -rf "$work"' EXIT
start_display "$work"
"$build/bench/bench" 2>/dev/null | sed -n '/^Measured/,$p'
bench/startup.sh "$build"
"$build/bench/hour" 2>/dev/null
bench/using.sh "$build"
