#!/usr/bin/env bash
# Nothing in the documents is an example that no test runs: tests/docs/check-examples.sh EXAMPLES
# EXAMPLES is the folder of the extracted blocks (extract.sh).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

examples=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failed=0

complain() {
    echo "$1" >&2
    failed=1
}

# The build goes on when a block is wrong; here it counts.
tests/docs/extract.sh "$scratch/examples" README.md docs/*.md || failed=1
diff -r "$scratch/examples" "$examples" || complain "the documents changed: run CMake again"

# Whether a block's lines stand in a file one below the other.
stands_in() { # BLOCK FILE
    awk 'NR == FNR { block[++n] = $0; next }
         { line[++m] = $0 }
         END {
             for (at = 0; at + n <= m; ++at) {
                 for (i = 1; i <= n && line[at + i] == block[i]; ++i) { }
                 if (i > n) exit 0
             }
             exit 1
         }' "$1" "$2"
}

# Whether a test names the example as a whole word.
is_tested() { # NAME FILE
    grep -qF "L\"$1\"" "$2"
}

while IFS=$'\t' read -r what name language place file; do
    case "$what $language" in
    "example c" | "example cpp")
        [ -f "tests/docs/programs/$name.$language" ] || complain "$place: tests/docs/programs has no $name.$language"
        is_tested "$name" tests/docs/ProgramTests.cpp || complain "$place: no test starts the program $name" ;;
    "example reg")
        is_tested "$name" tests/docs/RegistryExampleTests.cpp || complain "$place: no test reads $name" ;;
    "example sh")
        compgen -G "tests/docs/commands/$name.sh" >/dev/null ||
            compgen -G "tests/docs/commands/*/$name.sh" >/dev/null ||
            complain "$place: tests/docs/commands has no $name.sh" ;;
    "part of "*)
        stands_in "$scratch/examples/$file" "$name" ||
            complain "$place: these lines don't stand in $name" ;;
    "output text")
        compgen -G "$scratch/examples/$name.[!o]*" >/dev/null ||
            complain "$place: there is no example $name whose output this could be" ;;
    *) complain "$place: no test runs a block in the language '$language'" ;;
    esac
done <"$scratch/examples/list"
exit $failed
