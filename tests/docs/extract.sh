#!/usr/bin/env bash
# Takes the fenced blocks out of documents: tests/docs/extract.sh OUT DOCUMENT...
# A block is named by the comment in front of it; its language tells what the tests do with it.
#   <!-- example: NAME -->  becomes OUT/NAME.LANGUAGE, which a test compiles, runs or reads
#   <!-- output: NAME -->   becomes OUT/NAME.out: what the example of that name prints or shows
#   <!-- part of: FILE -->  has to stand in FILE, line for line; nothing is written
# A `text` block without a comment is a drawing. OUT/list gets a line for each of the others:
# what it is, its name, its language, where it stands. Every other block is an error.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

out=$1
shift
mkdir -p "$out"
fresh=$(mktemp -d)
trap 'rm -rf "$fresh"' EXIT
awk -v out="$fresh" -f tests/docs/extract.awk "$@"

# What did not change keeps its time, so that nothing is built again without need.
for file in "$fresh"/*; do
    cmp -s "$file" "$out/$(basename "$file")" || cp "$file" "$out/"
done
for file in "$out"/*; do
    [ -e "$fresh/$(basename "$file")" ] || rm -r "$file"
done
