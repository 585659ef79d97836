#!/usr/bin/env bash
# Writes zones.txt, the rules of every time zone that the city database can name, from the system's
# tz database. Run it after the tz database has changed: device/zones/make-zones.sh
set -euo pipefail
export LC_ALL=C
cd "$(dirname "${BASH_SOURCE[0]}")"
database=/usr/share/zoneinfo

# The last line of a zone's file is its rules.
cat "$database/zone.tab" "$database/zone1970.tab" | grep -v '^#' | cut -f3 | sort -u |
    while read -r zone; do
        printf '%s %s\n' "$zone" "$(tail -n 1 "$database/$zone")"
    done >zones.txt
