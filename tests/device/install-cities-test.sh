#!/usr/bin/env bash
# How a device gets its copy of the city database; no Wine takes part.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
source scripts/run-device.sh

area=$(mktemp -d)
trap 'rm -rf "$area"' EXIT
export WINEPREFIX=$area/prefix
city_database=$area/CitiesDb.dat
installed=$WINEPREFIX/$install_folder_in_prefix/CitiesDb.dat
mkdir -p "$(dirname "$installed")"
fresh=""

expect() { # WHAT TEXT
    [ "$(cat "$installed")" = "$2" ] || { echo "$1: found '$(cat "$installed")'" >&2; exit 1; }
}

echo first >"$city_database"
touch -d '2006-06-12 10:00' "$city_database"
install_cities
expect "a device without a database gets one" first

echo own >"$installed"
install_cities
expect "a database that is as new is kept" own

fresh=yes
install_cities
expect "a fresh device gets it again" first
fresh=""

touch -d '2006-06-12 11:00' "$installed"
echo second >"$city_database"
touch -d '2006-06-12 12:00' "$city_database"
install_cities
expect "a newer database replaces the older one" second

[ "$(ls "$(dirname "$installed")")" = CitiesDb.dat ] || { echo "something was left behind" >&2; exit 1; }
