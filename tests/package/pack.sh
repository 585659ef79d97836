#!/usr/bin/env bash
# Makes the packages that the other tests look at, with a small city database that citydb for
# Windows has built. The folder of the 32-bit build stands beside that of the 64-bit one.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

other=$(dirname "$build")/i686
[ -f "$other/bin/citydb.exe" ] || { echo "there is no 32-bit build in $other" >&2; exit 1; }
rm -rf "$packed"
mkdir -p "$packed"

sample=$root/tools/citydb/sample
timeout 60 "$root/scripts/wine-run" "$build/bin/citydb.exe" build "$sample/cities-sample.tsv" \
    --regions "$sample/regions-sample.tsv" --out "$packed/CitiesDb.dat" \
    --country-names /usr/share/iso-codes/json/iso_3166-1.json --zones /usr/share/zoneinfo/zone.tab
"$root/packaging/pack.sh" "$packed" "$version" "$packed/CitiesDb.dat" \
    "x86_64=$build" "i686=$other"
for machine in x86_64 i686; do
    mkdir -p "$packed/unpacked"
    unzip -q "$packed/TavLumenarDialogs-$version-$machine.zip" -d "$packed/unpacked"
done
