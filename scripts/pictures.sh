#!/usr/bin/env bash
# Takes pictures of every view, on every size of screen and in three languages, into a folder, and
# lays them out on contact sheets: scripts/pictures.sh DIR. Needs no display; ./run --pictures
# builds, makes the city database and calls it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/run-steps.sh
source scripts/prefix.sh
source scripts/run-device.sh
source scripts/contact-sheets.sh

target=$1
mkdir -p "$target"
target=$(realpath "$target")
session=$PWD/out/pictures-session
trap 'scripts/session.sh stop "$session"' EXIT

screens=(240x320 320x240 480x640)
languages=(en de pseudo)

# In the order in which one start of the shell takes them: each finds the device as the one before
# it left it, and the home screen shows the city that was chosen.
views=(customize-menu customize-menu-popup customize-menu-add customize-menu-context
    menu-options menu-options-root edit-menu edit-item choose-icon select-file select-link
    customize-home customize-home-programs customize-home-limit customize-now install-wizard
    select-city select-city-search select-city-panel select-city-chosen
    home settings launcher-menu launcher-menu-list launcher-menu-hardware now now-professional)
# Views of a device whose city database is gone.
views_without_cities=(select-city-no-database)
# Views of the help, and the chapters that they show.
help_views=(help help-customize-menu)
chapters=(Main_Contents Customize_Menu)
help_program=$PWD/out/x86_64/bin/PegHelp.exe

use_screen() { # WxH
    size=$1
    set -a
    # shellcheck disable=SC1090
    source "$session/$size.env"
    set +a
}

# Directly rather than through scripts/wine-run: the language goes to Wine alone.
run_device() { # PROGRAM ARGUMENTS...
    LC_ALL=$(locale_of "$language") timeout 150 wine "$@" </dev/null
}

file_of() { # VIEW
    echo "$target/$1-$size-$language.png"
}

# One start of the shell for all of them; it names the view that fails.
take() { # VIEWS...
    local arguments=() view
    for view in "$@"; do
        rm -f "$(file_of "$view")"
        arguments+=(--picture "$view" "Z:$(file_of "$view")")
    done
    run_device "$shell_program" --fresh "${arguments[@]}"
    for view in "$@"; do
        [ -s "$(file_of "$view")" ] || { echo "no picture of $view" >&2; return 1; }
    done
}

take_help() {
    local i file
    for i in "${!help_views[@]}"; do
        file=$(file_of "${help_views[i]}")
        rm -f "$file"
        run_device "$help_program" --window --picture "Z:$file" "${chapters[i]}"
        [ -s "$file" ] || { echo "no picture of the help's chapter ${chapters[i]}" >&2; return 1; }
    done
}

take_screen() { # WxH LANGUAGE
    use_screen "$1"
    language=$2
    prepare_folders
    choose_language
    install_cities
    take "${views[@]}"
    take_help
    rm -f "$WINEPREFIX/$install_folder_in_prefix/CitiesDb.dat"
    take "${views_without_cities[@]}"
}

# All screens at once: each has a display and a prefix of its own.
take_language() { # LANGUAGE
    local screen workers=() failed=""
    for screen in "${screens[@]}"; do
        (take_screen "$screen" "$1") &
        workers+=($!)
    done
    for screen in "${!screens[@]}"; do
        wait "${workers[screen]}" || failed+=" ${screens[screen]}"
    done
    [ -z "$failed" ] || { echo "failed in $1 on$failed" >&2; return 1; }
}

step "Starting virtual screens" scripts/session.sh start "$session"
for language in "${languages[@]}"; do
    step "Taking all views, $language" take_language "$language"
done
step "Laying out contact sheets" make_contact_sheets
count=$((${#screens[@]} * ${#languages[@]} *
    (${#views[@]} + ${#views_without_cities[@]} + ${#help_views[@]})))
echo "$count pictures are in $target; contact-sheet.html there shows them all."
