# shellcheck shell=bash disable=SC2154
# A language from nothing to the device.
prepare() {
    make_commands
    make_translations
    # The real one looks for the language's folder, which only this checkout has.
    stand_in run <<<"[ \"\$*\" = '--language it' ] && [ -s device/languages/it/TavLumenar.txt ]"
}

check() {
    has_run "build tools"
    grep -q "^\"Language: it\\\\n\"" device/languages/it.po || fail "the new file isn't for Italian"
}
