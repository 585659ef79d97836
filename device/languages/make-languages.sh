#!/usr/bin/env bash
# Makes each language's TavLumenar.txt, as the module reads it, from the UTF-8 file beside it:
# UTF-16 with a byte-order mark for German, the ANSI code page of the language for Russian.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
{ printf '\xff\xfe'; sed 's/$/\r/' de/texts.txt | iconv -f UTF-8 -t UTF-16LE; } >de/TavLumenar.txt
sed 's/$/\r/' ru/texts.txt | iconv -f UTF-8 -t CP1251 >ru/TavLumenar.txt
