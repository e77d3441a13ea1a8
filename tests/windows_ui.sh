#!/usr/bin/env bash
# Runs the windows' tests, built by windows.sh, under wine and without a display.
# Usage: windows_ui.sh FOLDER
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/wine.sh
trap stop_wine EXIT
start_wine "$1"
export QT_QPA_PLATFORM=offscreen QT_QPA_FONTDIR='Z:\usr\share\fonts\truetype\dejavu'
wine "$1/tests/ui_tests.exe" --gtest_brief=1
