#!/usr/bin/env bash
# A package holds the files of contents.txt, each language's translation, the documents of docs/ and
# the examples, and nothing else.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

expected=$({
    cat "$root/tests/package/contents.txt"
    cd "$root"
    find docs examples -type f
    find device/languages -name TavLumenar.txt -not -path '*/pseudo/*' | sed 's|^device/|bin/|'
} | LC_ALL=C sort)
for machine in x86_64 i686; do
    name=TavLumenarDialogs-$version-$machine
    same_lines "files of $name.zip" "$expected" "$(files_below "$packed/unpacked/$name")"
    [ "$(unzip -Z1 "$packed/$name.zip" | grep -vc "^$name/")" -eq 0 ] ||
        fail "$name.zip holds something beside its folder"
done
exit $failed
