#!/usr/bin/env bash
# Counts the instructions of a program's function Measured with callgrind and compares them with
# the checked-in budget: instruction-gate.sh BUDGETS NAME PROGRAM [ARGUMENTS...]
# More than 5 % above the budget fails; another minor version of the compiler stays within that.
set -euo pipefail
budgets=$1 name=$2
shift 2

budget=$(awk -v name="$name" '$1 == name { print $2 }' "$budgets")
[ -n "$budget" ] || { echo "instruction-gate: no budget for $name in $budgets" >&2; exit 2; }

profile=$(mktemp)
trap 'rm -f "$profile"' EXIT
valgrind --tool=callgrind --collect-atstart=no --toggle-collect=Measured \
    --callgrind-out-file="$profile" "$@" >/dev/null 2>&1 ||
    { echo "instruction-gate: $* failed" >&2; exit 2; }
count=$(awk '/^(summary|totals):/ { print $2; exit }' "$profile")

limit=$((budget + budget / 20))
echo "$name: $count instructions, budget $budget, limit $limit"
if [ "$count" -eq 0 ]; then
    echo "instruction-gate: nothing was counted" >&2
    exit 2
fi
if [ "$count" -gt "$limit" ]; then
    echo "instruction-gate: $name has become slower" >&2
    exit 1
fi
if [ "$count" -lt $((budget - budget / 20)) ]; then
    echo "well below the budget: lower it in $budgets"
fi
