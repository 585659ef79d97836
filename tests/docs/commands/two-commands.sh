# shellcheck shell=bash disable=SC2154
# The README's two commands, and every other ./run that the documents mention in a sentence.
prepare() {
    make_commands
}

# In a sentence a word in capitals stands for a value.
spell_out() {
    sed -E 's/\bNAME\b/select-city/; s/\bCODE\b/de/; s/\bDIR\b/pictures/; s/\bFILTER\b/City/'
}

check() {
    has_run "run "
    has_run "test "
    local command count=0
    while read -r command; do
        # shellcheck disable=SC2086
        $command >/dev/null || fail "'$command' is not understood"
        count=$((count + 1))
    done < <(cd "$TAV_ROOT" && cat README.md docs/*.md | grep -oE '`\./(run|test|build)( [^`|[]*)?`' | tr -d '`' | spell_out | sort -u)
    [ "$count" -ge 8 ] || fail "only $count commands were found"
    if ./run --no-such-option 2>/dev/null; then fail "the stand-in takes anything"; fi
}
