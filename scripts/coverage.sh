#!/usr/bin/env bash
# Measures which lines of the module's rooms the tests reach: scripts/coverage.sh [FILTER]. Builds an
# instrumented copy, runs the tests one after the other and writes out/coverage/report.txt and, for
# every source, the lines that were not reached (out/coverage/uncovered.txt). Takes about half an
# hour. Fails below the limit.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
limit=90
filter=${1:-^}

scripts/setup.sh
cmake --preset coverage >out/configure-coverage.log 2>&1 || { cat out/configure-coverage.log >&2; exit 1; }
cmake --build --preset coverage
find out/coverage -name '*.gcda' -delete

session=$PWD/out/session
trap 'scripts/session.sh stop "$session"' EXIT
scripts/session.sh start "$session"
# The programs know the paths of this machine; Wine's drive for them has another name.
export TAV_SESSION=$session GCOV_PREFIX=Z:
# Programs that count the files in a folder, or that are no tests of the module, say nothing here.
ctest --test-dir out/coverage -j1 -R "$filter" -LE long \
    -E '^(Gallery|Docs|Rotation|package|consumer)' >out/coverage/tests.log 2>&1 || tail -20 out/coverage/tests.log

report=(gcovr --root . --gcov-executable x86_64-w64-mingw32-gcov-posix --exclude-throw-branches
    --filter 'frame/' --filter 'menu/' --filter 'skin/' --filter 'ui/' --filter 'dialogs/'
    --object-directory out/coverage out/coverage)
"${report[@]}" --fail-under-line "$limit" --txt out/coverage/report.txt --json out/coverage/report.json || failed=1
tail -3 out/coverage/report.txt
exit "${failed:-0}"
