#!/usr/bin/env bash
# Packing the same files a second time, on another day, gives the same bytes.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

again=$packed/again
rm -rf "$again"
(umask 077 && TZ=Asia/Tokyo "$root/packaging/pack.sh" "$again" "$version" "$packed/CitiesDb.dat" "x86_64=$build")
for name in TavLumenarDialogs-$version-x86_64{.zip,-setup.exe}; do
    cmp "$packed/$name" "$again/$name" || fail "$name differs"
done
exit $failed
