#!/usr/bin/env bash
# A host of its own, in plain C, builds with nothing but an unpacked package, for both word sizes;
# the 64-bit one runs.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

for machine in x86_64 i686; do
    package=$packed/unpacked/TavLumenarDialogs-$version-$machine
    consumer=$packed/consumer-$machine
    rm -rf "$consumer"
    cmake -G Ninja -S "$root/tests/consumer" -B "$consumer" -DPACKAGE="$package" \
        -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_C_COMPILER="$machine-w64-mingw32-gcc-posix" >"$packed/consumer.log"
    cmake --build "$consumer" >>"$packed/consumer.log" || { cat "$packed/consumer.log" >&2; exit 1; }
done

expected='A record has 244 bytes.
Without a record: 0
Cancelled: 0'
found=$(timeout 60 "$root/scripts/wine-run" "$packed/consumer-x86_64/host.exe" | tr -d '\r')
same_lines "what the host printed" "$expected" "$found"
exit $failed
