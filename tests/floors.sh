#!/usr/bin/env bash
# Fails on an include that points up the floors of src/, and on the toolkit outside the platform
# layer's sources.
set -euo pipefail
cd "$1"

floors=" base platform core i18n config launch startup ui "
status=0
while IFS=: read -r file line include; do
    target=${include#*\"}
    [[ $file != */* || "${floors%% "${file%%/*}" *} ${file%%/*} " == *" ${target%%/*} "* ]] && continue
    echo "$file:$line points up: $include"
    status=1
done < <(grep -rnE '#include "[a-z0-9_]+/' --include='*.h' --include='*.cpp' . | sed 's|^\./||')
if grep -rnE '#include *[<"]Q' --include='*.h' --include='*.cpp' . | grep -vE '^\./platform/.*\.cpp:'; then
    status=1
fi
exit "$status"
