#!/usr/bin/env bash
# Measures which lines of the module's rooms the window tests reach: scripts/coverage.sh [FILTER].
# Builds an instrumented copy, runs the tests one after the other and writes the table, with the lines
# that were not reached, to out/coverage/report.txt. Takes about half an hour. Fails below the limit.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
limit=90
filter=${1:-.}

scripts/setup.sh
cmake --preset coverage >out/configure-coverage.log 2>&1 || { cat out/configure-coverage.log >&2; exit 1; }
cmake --build --preset coverage
find out/coverage -name '*.gcda' -delete

session=$PWD/out/coverage-session
trap 'scripts/session.sh stop "$session"' EXIT
scripts/session.sh start "$session"
# The counters' files have this machine's paths, which begin with another drive for the programs.
export TAV_SESSION=$session GCOV_PREFIX=Z:
# Without the sweeps, which kill and starve the module so often that they take hours here, and
# without tests of other things than the module. Instrumented code is larger and calls more.
ctest --test-dir out/coverage -j1 -R "$filter" -LE long \
    -E '(FaultSweep|KilledDay|Gallery|Docs|[Pp]ackage|Turn|Footprint|CallsNoFunctionThatTheHandheldLacks)' \
    >out/coverage/tests.log 2>&1 || grep -F '***' out/coverage/tests.log

result=0
gcovr --root . --gcov-executable x86_64-w64-mingw32-gcov-posix --exclude-throw-branches \
    --filter frame/ --filter menu/ --filter skin/ --filter ui/ --filter dialogs/ \
    --object-directory out/coverage --txt out/coverage/report.txt --fail-under-line "$limit" \
    out/coverage || result=$?
tail -3 out/coverage/report.txt
exit "$result"
