#!/usr/bin/env bash
# citydb for Windows understands databases, texts and paths as the tool for this machine does. That one
# comes from the build folder "native" beside the 64-bit one.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

native=$(dirname "$build")/native/bin/citydb
[ -x "$native" ] || { echo "there is no citydb in $native" >&2; exit 1; }
folder=$packed/citydb/Łódź-Ω
sample=$root/tools/citydb/sample
rm -rf "$packed/citydb"
mkdir -p "$folder"
cd "$folder"

windows() {
    timeout 60 "$root/scripts/wine-run" "$packed/unpacked/TavLumenarDialogs-$version-x86_64/bin/citydb.exe" "$@" |
        tr -d '\r'
}

same() { # ARGUMENTS...
    same_lines "citydb $*" "$("$native" "$@" 2>&1)" "$(windows "$@" 2>&1)"
}

build_both() { # FORM
    local arguments=(build "$sample/cities-sample.tsv" --regions "$sample/regions-sample.tsv" --form "$1"
        --order population)
    "$native" "${arguments[@]}" --out "native.$1" --quiet --report native.txt
    windows "${arguments[@]}" --out "windows.$1" --quiet --report windows.txt
    same check "native.$1"
    same check "windows.$1"
    same list "native.$1" "zür"
    same list "windows.$1" "ŁÓ"
    same show "windows.$1" 1531556937
}

build_both zip
build_both image
same_lines "named rows" "$(cat native.txt)" "$(tr -d '\r' <windows.txt)"
# Every city is there, in whatever order names have on the system.
same_lines "cities" "$("$native" list native.image 2>/dev/null | sort)" "$("$native" list windows.image 2>/dev/null | sort)"

head -c 5000 native.image >cut.image
same check cut.image
head -c 5000 native.zip >cut.zip
for file in cut.zip missing.zip; do
    code=0
    windows check $file >/dev/null || code=$?
    [ $code -eq 1 ] || fail "citydb check $file ends with $code"
done
exit $failed
