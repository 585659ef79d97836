#!/usr/bin/env bash
# Packs built programs: pack.sh OUTPUT VERSION DATABASE MACHINE=BUILD...
# For each machine OUTPUT gets TavLumenarDialogs-VERSION-MACHINE.zip and ...-setup.exe. The same files
# give the same bytes, so everything has a fixed order and a fixed time (SOURCE_DATE_EPOCH, by
# default the first day that zip archives know).
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
output=$(realpath -m "$1") version=$2 database=$(realpath "$3")
shift 3
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-315532800} TZ=UTC LC_ALL=C.UTF-8
umask 022

# The folder that both kinds of package hold.
stage() { # MACHINE BUILD FOLDER
    local strip=$1-w64-mingw32-strip file
    rm -rf "$3"
    cmake --install "$2" --component package --prefix "$3" >"$output/$1.log"
    for file in "$3"/bin/*.exe "$3"/bin/*.dll; do
        "$strip" "$file"
    done
    install -m 644 "$database" "$3/bin/CitiesDb.dat"
    find "$3" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
}

files_of() { # FOLDER
    (cd "$1" && find . -type f -printf '%P\n' | LC_ALL=C sort)
}

pack_zip() { # FOLDER ZIP
    local name=${1##*/}
    rm -f "$2"
    files_of "$1" | sed "s|^|$name/|" | (cd "$1/.." && zip -X -q -6 -@ "$2")
}

# The installer's script names each file, so that removing touches nothing else.
list_for_installer() { # FOLDER SCRIPTS
    local file folder last=none
    while read -r file; do
        folder=$(dirname "$file")
        [ "$folder" = "$last" ] || printf 'SetOutPath "$INSTDIR\\%s"\n' "${folder//\//\\}"
        last=$folder
        printf 'File "%s"\n' "$1/$file"
    done < <(files_of "$1") >"$2/install.nsh"
    files_of "$1" | tr / '\\' | sed 's|.*|Delete "$INSTDIR\\&"|' >"$2/remove.nsh"
    # The deepest folders first.
    (cd "$1" && find . -mindepth 1 -type d -printf '%P\n' | LC_ALL=C sort -r) | tr / '\\' |
        sed 's|.*|RMDir "$INSTDIR\\&"|' >>"$2/remove.nsh"
}

pack_installer() { # MACHINE FOLDER SETUP
    local scripts=$output/scripts-$1
    mkdir -p "$scripts"
    list_for_installer "$2" "$scripts"
    makensis -V2 -NOCD -DVERSION="$version" -DMACHINE="$1" -DSCRIPTS="$scripts" -DSETUP="$3" \
        "$here/installer.nsi"
}

mkdir -p "$output"
for entry in "$@"; do
    machine=${entry%%=*}
    name=TavLumenarDialogs-$version-$machine
    stage "$machine" "${entry#*=}" "$output/$name"
    pack_zip "$output/$name" "$output/$name.zip"
    pack_installer "$machine" "$output/$name" "$output/$name-setup.exe"
    echo "$output/$name.zip, $name-setup.exe"
done
