#!/usr/bin/env bash
# Runs the commands of a document: tests/docs/run-commands.sh FILE EXAMPLES BUILT
# It happens in a copy of what they need, with stand-ins for what would take a network, a screen or
# long (stand-ins.sh). FILE, of the commands' name, prepares the folder (`prepare`) and looks at what came
# of it (`check`). BUILT is the tool that the commands use, or the build folder of the DLLs.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
file=$(realpath "$1") built=$(realpath "$3")
name=$(basename "$file" .sh)
example=$(realpath "$2")/$name.sh

area=$(mktemp -d)
trap 'rm -rf "$area"' EXIT
mkdir "$area/checkout" "$area/bin"
export PATH=$area/bin:$PATH TAV_ROOT=$root
cd "$area/checkout"

fail() {
    echo "$name: $1" >&2
    exit 1
}

# Output is to be read to its end (grep >/dev/null, not grep -q): a command that nobody reads fails.
# shellcheck disable=SC1091
source "$root/tests/docs/stand-ins.sh"
check() { :; }
# shellcheck disable=SC1090
source "$file"
prepare
[ -s "$example" ] || fail "the documents have no such commands"
bash -euo pipefail "$example" || fail "a command failed"
check
