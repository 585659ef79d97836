# shellcheck shell=bash disable=SC2154
# A database of one's own places, with names for their regions.
prepare() {
    make_citydb
    {
        echo "# two places"
        printf '2657896\tZürich\t\t\t47.36667\t8.55\tP\tPPLA\tCH\t\tZH\t112\t\t\t341730\t\t\tEurope/Zurich\t\n'
        printf '1\tZürich\t\t\t47.3\t8.1\tP\tPPL\tCH\t\tAG\t\t\t\t\t\t\t\t\n'
    } >my-places.tsv
    printf 'CH.ZH\tZurich\nCH.AG\tAargau\nCH.ZH.112\tDistrict\n' >my-regions.tsv
}

check() {
    citydb check CitiesDb.dat >/dev/null || fail "the database is not in order"
    citydb list CitiesDb.dat | sed -n 1p | grep "Zurich" >/dev/null || fail "the largest place is not the first"
    citydb list CitiesDb.dat | grep "Aargau" >/dev/null || fail "the other place's region has no name"
    citydb show CitiesDb.dat 2657896 | grep "Europe/Zurich" >/dev/null || fail "the zone is lost"
}
