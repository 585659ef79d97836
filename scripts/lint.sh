#!/usr/bin/env bash
# Static analysis of everything that ships: scripts/lint.sh [FILES...]. Needs the builds "x86_64" and
# "native" to be configured (./build does that). Prints what it finds; the exit code tells whether.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

rooms=(frame menu skin ui dialogs platform device)
runtime=$(x86_64-w64-mingw32-g++-posix -print-file-name=include)
cxx=${runtime%/include}/include/c++

files=("$@")
[ ${#files[@]} -gt 0 ] || mapfile -t files < <(find "${rooms[@]}" -name '*.cpp' | sort)

tidy() {
    # The compiler's own headers stand where clang does not look for them.
    printf '%s\0' "${files[@]}" |
        xargs -0 -n 4 -P "$(nproc)" clang-tidy-14 --quiet -p out/x86_64 \
            --extra-arg=--target=x86_64-w64-mingw32 \
            --extra-arg=-isystem"$cxx" --extra-arg=-isystem"$cxx/x86_64-w64-mingw32" \
            --extra-arg=-Wno-unused-command-line-argument 2> >(grep -v 'warnings\? generated' >&2)
}

check() {
    cppcheck --quiet --error-exitcode=1 --inline-suppr --platform=win64 --language=c++ --std=c++17 \
        --enable=warning,performance,portability --suppressions-list=scripts/cppcheck-suppressions.txt \
        -D__x86_64__ -DUNICODE -D_UNICODE -D_WIN32 -I . -I platform/atl -I platform/aygshell/include \
        -j "$(nproc)" "${files[@]}"
}

failed=0
tidy || failed=1
check || failed=1
exit $failed
