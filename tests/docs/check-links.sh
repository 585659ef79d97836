#!/usr/bin/env bash
# What the documents and the rooms' READMEs point to is there: links to files and headings, and
# every path of a room that is named in `code`.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

failed=0
rooms='include|platform|frame|skin|menu|ui|dialogs|resources|device|tools|tests|bench|docs|scripts|cmake|examples|packaging'

complain() {
    echo "$1" >&2
    failed=1
}

# The anchors of a document's headings, as they are made from their texts.
anchors() { # DOCUMENT
    sed -nE '/^```/,/^```/d; s/^#+ //p' "$1" | tr '[:upper:]' '[:lower:]' |
        sed -E "s/[^a-z0-9 _-]//g; s/ /-/g"
}

check_link() { # DOCUMENT LINK
    local target=${2%%#*} anchor=""
    [[ $2 == *#* ]] && anchor=${2#*#}
    target=$(dirname "$1")/$target
    [ "${2%%#*}" != "" ] || target=$1
    [ -e "$target" ] || { complain "$1: the link to $2 leads nowhere"; return; }
    [ -z "$anchor" ] || anchors "$target" | grep -xF -- "$anchor" >/dev/null ||
        complain "$1: there is no heading for $2"
}

# A path may be a folder, a file, a name without its extension, or a pattern.
check_path() { # DOCUMENT PATH
    local folder
    for folder in . "$(dirname "$1")"; do
        if compgen -G "$folder/$2" >/dev/null || compgen -G "$folder/$2.*" >/dev/null; then return; fi
    done
    complain "$1: there is no $2"
}

for document in $(find . -path ./out -prune -o \( -name README.md -o -path './docs/*.md' -o -path './*.md' -not -path './*/*' \) -print | sed 's|^\./||'); do
    while read -r link; do
        check_link "$document" "$link"
    done < <(sed '/^```/,/^```/d' "$document" | grep -oE '\]\([^)]+\)' | sed -E 's/^\]\((.*)\)$/\1/' | grep -vE '^[a-z]+:')
    # A room's README may name what is in the room by the path from there.
    while read -r path; do
        check_path "$document" "$path"
    done < <(sed '/^```/,/^```/d' "$document" | grep -oE "\`($rooms)/[A-Za-z0-9_./*-]+\`" | tr -d '`')
done
exit $failed
