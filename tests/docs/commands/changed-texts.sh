# shellcheck shell=bash disable=SC2154
# A new text in the sources gets into the template and into every language.
prepare() {
    make_commands
    make_translations
    sed -i 's/"Cancel"/"A new text"/' resources/Menus.rc2
    # What is to be translated is no success, which the document's reader is to see.
    stand_in "$area/bin/translations-real" <<<"exec '$(dirname "$built")/translations' \"\$@\""
    rm out/tools/bin/translations
    stand_in out/tools/bin/translations <<<"translations-real \"\$@\" >>'$area/said' || [ \"\$1\" = check ]"
}

check() {
    local code
    for code in de ja ru; do
        grep -x "msgid \"A new text\"" "device/languages/$code.po" >/dev/null || fail "$code.po lacks the new text"
        grep "$code.po:[0-9]*: \"A new text\": has no translation" "$area/said" >/dev/null ||
            fail "nobody says that $code.po lacks a translation"
        grep "^#~ msgid \"Cancel\"" "device/languages/$code.po" >/dev/null || fail "$code.po lost the old text"
    done
    grep -x "msgid \"A new text\"" device/languages/pseudo.po >/dev/null || fail "pseudo.po lacks the new text"
}
