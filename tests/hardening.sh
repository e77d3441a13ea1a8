#!/usr/bin/env bash
# Checks how built programs and libraries are hardened: no part of the search path for libraries depends
# on the working folder. With --program also: stacks and calls are guarded, and the tables that the
# loader fills are read-only afterwards.
# Usage: hardening.sh [--program] FILE...
set -euo pipefail

program=
[[ $1 != --program ]] || { program=1 && shift; }
(($# > 0)) || { echo "No files to look at" >&2 && exit 1; }
status=0
lacks() { # file, what
    echo "$1: $2" >&2
    status=1
}
for file in "$@"; do
    dynamic=$(readelf -dW "$file")
    while read -r path; do
        # Each part must begin with a slash or $ORIGIN. An empty one would mean the working folder.
        [[ ":$path" =~ ^(:(/|\$ORIGIN(/|:|$))[^:]*)+$ ]] || lacks "$file" "search path \"$path\""
    done < <(sed -nE 's/.*\((RPATH|RUNPATH)\).*\[(.*)\]$/\2/p' <<<"$dynamic")
    [[ -n $program ]] || continue

    grep -q 'GNU_RELRO' <(readelf -lW "$file") || lacks "$file" "no read-only relocations"
    grep -qE '\(BIND_NOW\)|\(FLAGS\).*BIND_NOW' <<<"$dynamic" || lacks "$file" "no immediate binding"
    grep -q '(FLAGS_1).*PIE' <<<"$dynamic" || lacks "$file" "not position independent"
    symbols=$(readelf -W --dyn-syms "$file")
    grep -q ' __stack_chk_fail' <<<"$symbols" || lacks "$file" "no stack protector"
    grep -qE ' __[a-z]+_chk(@|$)' <<<"$symbols" || lacks "$file" "no fortified calls"
done
exit "$status"
