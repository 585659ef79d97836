#!/usr/bin/env bash
# Fetches the source package minizip of the Debian archive and unpacks it to out/third-party/minizip:
# there is no ready build of it for Windows. Signed by the archive's key; quick when already there.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

target=out/third-party/minizip
[ -f "$target/unzip.c" ] && exit 0

log=$(realpath -m "${SETUP_LOG:-out/setup.log}")
area=$PWD/out/third-party/fetch
rm -rf "$area"
mkdir -p "$area"/{lists/partial,archives/partial,parts,unpacked} "$(dirname "$log")"

# Writes a source entry for each binary repository that this system gets Debian's packages from.
write_sources() {
    apt-get indextargets --format '$(CREATED_BY) $(COMPONENT) $(ORIGIN) $(REPO_URI) $(RELEASE)' |
        while read -r kind component origin uri release; do
            [ "$kind $component" = "Packages main" ] || continue
            # Unknown until the lists of the system were fetched; the signature decides then.
            case $origin in Debian | '$(ORIGIN)') ;; *) continue ;; esac
            printf '%s\n' "Types: deb-src" "URIs: $uri" "Suites: $release" "Components: main" \
                "Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg" ""
        done >"$area/parts/src.sources"
}

# apt-get with lists and archives of its own: neither root nor a change to the system is needed.
own_apt_get() {
    apt-get -o Acquire::Retries=3 -o APT::Sandbox::User= \
        -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$area/parts" \
        -o Dir::State::Lists="$area/lists" -o Dir::Cache::Archives="$area/archives" \
        -o Dir::Cache::srcpkgcache= -o Dir::Cache::pkgcache= "$@" >>"$log" 2>&1
}

fetch() {
    # A repository that can't be reached is not fatal by itself: the next command decides.
    own_apt_get update || true
    (cd "$area/unpacked" && rm -rf ./* && own_apt_get source minizip)
}

# Without any source nothing is fetched, which is reported below.
write_sources || true
for wait in 0 2 8 18; do
    sleep "$wait"
    if fetch; then break; fi
done

folder=$(find "$area/unpacked" -name unzip.c -printf '%h\n' | head -n 1)
if [ -z "$folder" ] || [ ! -f "$folder/ioapi.c" ]; then
    echo "setup: could not get the source package minizip from the Debian archive (details: $log)" >&2
    exit 1
fi
rm -rf "$target"
mv "$folder" "$target"
rm -rf "$area"
