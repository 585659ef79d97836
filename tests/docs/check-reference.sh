#!/usr/bin/env bash
# The references are complete: every registry key and value that the module names in its code stands in
# docs/registry.md, every function, name and number of the public header in docs/host-guide.md.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

failed=0

complain() {
    echo "$1" >&2
    failed=1
}

# The texts of constants whose name fits, as the system sees them.
constants() { # NAME-PATTERN
    grep -rhoE --include='*.cpp' --include='*.h' "wchar_t\*? (const )?$1(\[\])? =[^;]*\"" frame skin menu ui dialogs |
        sed -E 's/.*L"(.*)"$/\1/; s/\\\\/\\/g' | sort -u
}

keys() {
    grep -rhoE --include='*.cpp' --include='*.h' 'L"(\\\\)?SOFTWARE[^"]*"' frame skin menu ui dialogs |
        sed -E 's/L"(.*)"/\1/; s/\\\\/\\/g' | sort -u
}

count=0
while read -r value; do
    grep -qE "^\| (\`[^|]*\` \| )?$value \|" docs/registry.md ||
        complain "docs/registry.md has no row for the value $value"
    count=$((count + 1))
done < <(constants 'k[A-Za-z]*(Value|InstallDir)')
[ "$count" -ge 15 ] || complain "only $count values were found in the code"

count=0
while read -r key; do
    grep -qF -- "$key" docs/registry.md || complain "docs/registry.md doesn't name the key $key"
    count=$((count + 1))
done < <(keys)
[ "$count" -ge 7 ] || complain "only $count keys were found in the code"

# A name of the header counts by itself or by the text or number that it stands for.
count=0
while read -r name meaning; do
    grep -qF -- "$name" docs/host-guide.md || { [ -n "$meaning" ] && grep -qwF -- "$meaning" docs/host-guide.md; } ||
        complain "docs/host-guide.md doesn't name $name"
    count=$((count + 1))
done < <(sed -nE '/define TAVLUMENAR_API/d; s/^ *#define (TAVLUMENAR_[A-Z_]+) (L")?([^"]+)"?$/\1 \3/p
                 s/.*WINAPI ([A-Za-z]+)\(.*/\1/p' include/TavLumenarDialogs.h)
[ "$count" -ge 12 ] || complain "only $count names were found in the header"
exit $failed
