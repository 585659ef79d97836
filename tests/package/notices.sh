#!/usr/bin/env bash
# NOTICES.md names every part that others made: each library that is compiled or linked into a
# packaged program, found in the build's own records, and each source of data in parts.txt.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

parts=$root/tests/package/parts.txt
notices=$root/NOTICES.md
programs=(TavLumenarDialogs aygshell TavLumenarShell PegHelp citydb)

# Every file outside the project that goes into the programs: headers and static libraries.
foreign_files() {
    local objects
    objects=$(ninja -C "$build" -t inputs $(program_files) | grep '\.obj$')
    # The records of the headers that each object was compiled from.
    # shellcheck disable=SC2086
    ninja -C "$build" -t deps $objects | sed -n 's/^    //p'
    ninja -C "$build" -t commands $(program_files) | grep -oE ' /[^ ]+\.a( |$)'
}

program_files() {
    local name
    for name in "${programs[@]}"; do
        ls "$build/bin/$name".* | sed "s|$build/||" | grep -E '\.(exe|dll)$'
    done
}

# Outside the checkout, or among what was fetched; paths as the parts' patterns have them.
outside=$(foreign_files | tr -d ' ' | sort -u |
    grep -E "^/|third-party" | grep -vE "^$root/(include|platform|frame|skin|menu|resources|ui|dialogs|device|tools)/" || true)
[ -n "$outside" ] || fail "the build has no records of what it was made from"

while IFS='|' read -r part pattern; do
    grep -qxF "## $part" "$notices" || fail "NOTICES.md has no chapter \"$part\""
    grep -qF "| $part |" "$notices" || fail "the table of NOTICES.md lacks \"$part\""
    case $pattern in
    data:*) [ -e "$root/${pattern#data:}" ] || [ -e "${pattern#data:}" ] || fail "$part: there is no ${pattern#data:}" ;;
    tool:*) command -v "${pattern#tool:}" >/dev/null || fail "$part: there is no ${pattern#tool:}" ;;
    *) grep -qE "$pattern" <<<"$outside" || fail "$part: nothing in the programs comes from $pattern"
       outside=$(grep -vE "$pattern" <<<"$outside" || true) ;;
    esac
done < <(grep -v '^#' "$parts")

[ -z "$outside" ] || fail "parts that parts.txt doesn't name: $outside"
exit $failed
