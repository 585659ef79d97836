#!/usr/bin/env bash
# Brings everything here up to date with the texts of the sources and with the translations: the
# template, new and removed entries of each language, the pseudo-language, and the files that the
# device reads. Run it after ./build tools; what is still to be translated is listed at the end.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
tool=${TAV_TRANSLATIONS:-out/tools/bin/translations}
folder=device/languages

"$tool" extract --out "$folder/TavLumenar.pot"
"$tool" pseudo "$folder/TavLumenar.pot" --out "$folder/pseudo.po"
for file in "$folder"/*.po; do
    msgmerge --quiet --update --backup=none --no-fuzzy-matching "$file" "$folder/TavLumenar.pot"
done
"$tool" build "$folder"/*.po
"$tool" check --template "$folder/TavLumenar.pot" "$folder"/*.po
