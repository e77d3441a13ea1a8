#!/usr/bin/env bash
# Runs the windows' tests, built by windows.sh, under wine and without a display.
# Usage: windows_ui.sh FOLDER
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/wine.sh
trap stop_wine EXIT
start_wine "$1"
# wine keeps the toolkit's variables from what it runs, unless they come from its own registry.
wine reg add 'HKCU\Environment' /v QT_QPA_FONTDIR /d 'Z:\usr\share\fonts\truetype\dejavu' /f >/dev/null
# Transcripts hold what the fonts of the other system let each list show; here other rows are in sight.
wine "$1/tests/ui_tests.exe" --gtest_brief=1 --gtest_filter='-*Transcript*'
