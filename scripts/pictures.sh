#!/usr/bin/env bash
# Takes pictures of every view into a folder: scripts/pictures.sh DIR. Needs no display; ./run
# --pictures builds, makes the city database and calls it.
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

views=(home customize-menu customize-menu-popup customize-menu-context menu-options
    edit-menu edit-item choose-icon select-file select-link
    customize-home customize-home-programs customize-now install-wizard
    select-city select-city-search select-city-panel select-city-no-database now now-professional)

use_screen() { # WxH
    size=$1
    set -a
    # shellcheck disable=SC1090
    source "$session/$size.env"
    set +a
}

# Directly rather than through scripts/wine-run: the language goes to Wine alone.
run_shell() { # ARGUMENTS...
    LC_ALL=$(locale_of "$language") timeout 60 wine "$shell_program" "$@"
}

take() { # VIEW
    local file=$target/$1-$size-$language.png
    rm -f "$file"
    case "$1" in
    *-no-database) rm -f "$WINEPREFIX/$install_folder_in_prefix/CitiesDb.dat" ;;
    select-city*) install_cities ;;
    esac
    run_shell --picture "$1" "Z:$file"
    [ -s "$file" ]
}

prepare_screen() {
    prepare_folders
    # Always the same device, whatever happened to it before.
    run_shell --seed --fresh
    choose_language
}

take_all() { # WxH LANGUAGE VIEWS...
    local view
    use_screen "$1"
    language=$2
    shift 2
    step "Preparing a device of $size, $language" prepare_screen
    for view in "$@"; do
        step "  $view" take "$view"
    done
}

for screen in 240x320 320x240 480x640; do
    take_all "$screen" en "${views[@]}"
done
take_all 240x320 en launcher-menu
for screen in 240x320 320x240 480x640; do
    take_all "$screen" de customize-menu customize-menu-popup menu-options edit-menu edit-item \
        choose-icon select-file select-link customize-home customize-now install-wizard select-city
done
take_all 240x320 de home now
take_all 240x320 ru home customize-menu menu-options edit-item customize-home customize-now \
    install-wizard
echo "The pictures are in $target."
