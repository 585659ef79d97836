#!/usr/bin/env bash
# Every source file is formatted as .clang-format says.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
find include platform frame menu ui dialogs device tools tests bench \
    \( -name '*.cpp' -o -name '*.h' \) -print0 2>/dev/null |
    xargs -0 clang-format-14 --dry-run --Werror
