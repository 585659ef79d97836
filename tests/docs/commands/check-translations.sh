# shellcheck shell=bash disable=SC2154
# The check, and the table of commands.
prepare() {
    make_translations
}

check() {
    local command
    for command in extract build check pseudo; do
        out/tools/bin/translations "$command" --help >/dev/null || fail "there is no command $command"
        grep "^| .translations $command " "$TAV_ROOT/docs/translating.md" >/dev/null ||
            fail "$command is not in the table"
    done
}
