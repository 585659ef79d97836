#!/usr/bin/env bash
# Every source file is formatted as .clang-format says.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
find . -path ./out -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 clang-format-14 --dry-run --Werror
