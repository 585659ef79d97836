#!/usr/bin/env bash
# Static analysis of everything that ships: scripts/lint.sh [FILES...]. Needs the builds "x86_64" and
# "native" (./build x86_64, ./build native). Prints what it finds; the exit code tells whether.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

files=("$@")
[ ${#files[@]} -gt 0 ] || mapfile -t files < <(find frame menu skin ui dialogs platform device tools -name '*.cpp' | sort)

# The tools are this machine's programs, but for what they need Windows for.
native=() windows=()
for file in "${files[@]}"; do
    case "$file" in
    tools/*/windows/*) windows+=("$file") ;;
    tools/*) native+=("$file") ;;
    *) windows+=("$file") ;;
    esac
done

tidy() { # BUILD "FILES..." ARGUMENTS...
    local build=$1 list=$2
    shift 2
    [ -n "$list" ] || return 0
    # shellcheck disable=SC2086
    printf '%s\n' $list | xargs -n 4 -P "$(nproc)" clang-tidy-14 --quiet -p "$build" "$@" \
        2> >(grep -v 'warnings\? generated' >&2)
}

tidy_windows() {
    # The compiler's own headers stand where clang does not look for them.
    local headers
    headers=$(x86_64-w64-mingw32-g++-posix -print-file-name=include)/c++
    tidy out/x86_64 "${windows[*]}" --extra-arg=--target=x86_64-w64-mingw32 \
        --extra-arg=-isystem"$headers" --extra-arg=-isystem"$headers/x86_64-w64-mingw32" \
        --extra-arg=-Wno-unused-command-line-argument
}

check() {
    cppcheck --quiet --error-exitcode=1 --inline-suppr --platform=win64 --language=c++ --std=c++17 \
        --enable=warning,performance,portability --suppressions-list=scripts/cppcheck-suppressions.txt \
        -D__x86_64__ -DUNICODE -D_UNICODE -D_WIN32 -I . -I platform/atl -I platform/aygshell/include \
        -j "$(nproc)" "${files[@]}"
}

failed=0
check || failed=1
tidy_windows || failed=1
tidy out/native "${native[*]}" || failed=1
exit $failed
