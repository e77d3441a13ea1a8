#!/usr/bin/env bash
# Checks the program file for Windows: its imports, version resource, icon and size, and that it contains
# no path of the machine that built it.
# Usage: windows_file.sh BUILD_FOLDER
set -euo pipefail
build=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
program=$work/KestrivaneUI.exe
(cd "$work" && cmake -E tar xf "$build"/KestrivaneUI-*-windows.zip)
fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# The KnownDLLs of Windows 10 and 11, which are always loaded from the system's folder. So are API sets
# (api-ms-win-...), which are other names for parts of these libraries.
known="advapi32 clbcatq combase comdlg32 coml2 gdi32 gdiplus imagehlp imm32 kernel32 msctf msvcrt
    normaliz nsi ntdll ole32 oleaut32 psapi rpcrt4 sechost setupapi shcore shell32 shlwapi user32
    wldap32 ws2_32"
imports=$(x86_64-w64-mingw32-objdump -p "$program" | sed -n 's/.*DLL Name: \(.*\)\.dll$/\L\1/Ip' | sort -u)
grep -qx user32 <<<"$imports" || fail "no imports were found: $imports"
others=$(grep -v '^api-ms-win-' <<<"$imports" | grep -vxFf <(tr -s ' \n' '\n' <<<"$known")) || true
[[ -z $others ]] || fail "imported from the program's folder first:" $others

x86_64-w64-mingw32-objcopy -O binary --only-section=.rsrc "$program" "$work/resources"
strings -el "$work/resources" >"$work/texts"
for text in "The Kestrivane UI authors" "Copyright (c) 2026 The Kestrivane UI authors"; do
    grep -qxF "$text" "$work/texts" || fail "the version resource lacks \"$text\""
done
LC_ALL=C grep -aqP 'IHDR\x00\x00\x01\x00\x00\x00\x01\x00\x08\x06' "$work/resources" ||
    fail "the icon has no picture of 256 pixels"

qt=$(sed -n 's/^QT_FOR_WINDOWS:[A-Z]*=//p' "$build/CMakeCache.txt")
for folder in "$HOME/" "$(pwd -P)/" "$qt" "$build"; do
    ! { strings "$program"; strings -el "$program"; } | grep -F "$folder" | head -n 3 | grep . ||
        fail "the program file names a folder of this machine"
done
size=$(stat -c %s "$build"/KestrivaneUI-*-windows.zip)
((size <= 10 * 1000 * 1000)) || fail "the package has $size bytes"
echo "Imported:" $imports
echo "The package has $size bytes, the program $(stat -c %s "$program")"
