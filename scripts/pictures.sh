#!/usr/bin/env bash
# Takes pictures of every view into a folder: scripts/pictures.sh DIR. Needs no display; ./run
# --pictures builds first and calls it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/run-steps.sh
source scripts/prefix.sh
source scripts/run-device.sh

target=$1
mkdir -p "$target"
target=$(realpath "$target")
session=$PWD/out/pictures-session
trap 'scripts/session.sh stop "$session"' EXIT
step "Starting virtual screens" scripts/session.sh start "$session"

views=(home launcher-menu customize-menu customize-menu-popup customize-menu-context menu-options)

use_screen() { # WxH
    WINEPREFIX=$(sed -n 's/^WINEPREFIX=//p' "$session/$1.env")
    export WINEPREFIX TAV_SESSION=$session TAV_SCREEN=$1
}

take() { # VIEW
    local file=$target/$1-$TAV_SCREEN-$language.png
    rm -f "$file"
    LC_ALL=$(locale_of "$language") timeout 60 scripts/wine-run "$shell_program" --picture "$1" "Z:$file"
    [ -s "$file" ]
}

prepare_screen() {
    prepare_folders
    # Always the same device, whatever happened to it before.
    scripts/wine-run "$shell_program" --seed --fresh
    choose_language
}

take_all() { # WxH LANGUAGE VIEWS...
    local size=$1 view
    language=$2
    shift 2
    use_screen "$size"
    step "Preparing a device of $size, $language" prepare_screen
    for view in "$@"; do
        step "  $view" take "$view"
    done
}

for size in 240x320 320x240 480x640; do
    take_all "$size" en "${views[@]}"
done
take_all 240x320 de home customize-menu menu-options
take_all 240x320 ru home customize-menu menu-options
echo "The pictures are in $target."
