# Sourced by the scripts here: where the packages under test are.
# Every script is called with the build folder of the 64-bit programs and the version.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
build=$(realpath "$1") version=$2
packed=$build/package-test
failed=0

fail() { # TEXT
    echo "FAILED: $1" >&2
    failed=1
}

# Compares two lists of lines; the first is what ought to be.
same_lines() { # WHAT EXPECTED ACTUAL
    diff <(printf '%s\n' "$2") <(printf '%s\n' "$3") >&2 || fail "$1 (< expected, > found)"
}

files_below() { # FOLDER
    (cd "$1" && find . -type f -printf '%P\n' | LC_ALL=C sort)
}
