#!/usr/bin/env bash
# Each room includes only from rooms above it; the one upward step is frame/Exports.cpp, where an
# export meets its dialog. Module code names no system beside the handheld's.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

# From the top of the house to its bottom.
rooms=(include platform frame skin menu resources ui dialogs device tools tests)
failed=0

rank() {
    local i
    for i in "${!rooms[@]}"; do
        [ "${rooms[$i]}" = "$1" ] && echo "$i" && return
    done
    echo -1
}

while IFS=: read -r file include; do
    [ "$file" = frame/Exports.cpp ] && continue
    from=$(rank "${file%%/*}")
    to=$(rank "${include%%/*}")
    if [ "$from" -ge 0 ] && [ "$to" -gt "$from" ]; then
        echo "$file includes $include: a room below it"
        failed=1
    fi
    # A dialog's folder knows none of the others.
    if [[ $file == dialogs/* && $include == dialogs/* ]]; then
        a=${file#dialogs/} b=${include#dialogs/}
        if [ "${a%%/*}" != "${b%%/*}" ]; then
            echo "$file includes $include: another dialog's folder"
            failed=1
        fi
    fi
done < <(grep -rnoE --include='*.h' --include='*.cpp' '^#include "[^"]+/[^"]+"' \
    include platform frame skin menu ui dialogs device tools tests 2>/dev/null |
    sed -E 's/^([^:]+):[0-9]+:#include "([^"]+)"/\1:\2/')

if grep -rnE '_WIN32_WCE|__WINE__|__MINGW' --include='*.h' --include='*.cpp' \
    frame skin menu ui dialogs; then
    echo "module code must not ask which system it runs on"
    failed=1
fi

if grep -rnE '#include <windows\.h>' --include='*.h' --include='*.cpp' \
    platform frame skin menu ui dialogs device tests | grep -v '^platform/Win\.h:'; then
    echo "<windows.h> comes in through platform/Win.h"
    failed=1
fi
exit $failed
