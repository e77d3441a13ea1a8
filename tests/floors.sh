#!/usr/bin/env bash
# Fails on an include that points up the floors of src/, and on the toolkit outside the platform
# layer's sources.
set -euo pipefail
cd "$1"

declare -A below=(
    [base]="base"
    [platform]="base platform"
    [core]="base platform core"
    [i18n]="base platform core i18n"
    [config]="base platform core config"
    [launch]="base platform core config launch"
    [startup]="base platform core i18n config launch startup"
    [ui]="base platform core i18n config launch startup ui"
)
status=0
while IFS=: read -r file line include; do
    floor=${file%%/*}
    target=${include#*\"}
    target=${target%%/*}
    [[ $file != */* || " ${below[$floor]} " == *" $target "* ]] && continue
    echo "$file:$line points up: $include"
    status=1
done < <(grep -rnE '#include "[a-z0-9_]+/' --include='*.h' --include='*.cpp' .| sed 's|^\./||')
if grep -rnE '#include *[<"]Q' --include='*.h' --include='*.cpp' . | grep -vE '^\./platform/.*\.cpp:'; then
    status=1
fi
exit "$status"
