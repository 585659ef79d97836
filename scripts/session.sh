#!/usr/bin/env bash
# Virtual screens and Wine prefixes for test runs and pictures.
#   scripts/session.sh start DIR   starts one screen per device size and notes in DIR how to reach it
#   scripts/session.sh stop DIR    ends exactly what start began
# scripts/wine-run reads the notes; a program picks its screen with TAV_SCREEN=WIDTHxHEIGHT.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/prefix.sh

# screen size and the resolution of the prefix that goes with it
screens=("240x320 96" "320x240 96" "480x640 192")
# Screens that can be turned: windows, on a screen that is as wide as high, of a server that has the
# shapes of handhelds.
turning_screens=("turning-240x320 96" "turning-480x640 192")

# Starts a display server and waits until it answers; its number is in `number` then.
start_server() { # DIR NAME COMMAND...
    local dir=$1 name=$2
    shift 2
    rm -f "$dir/$name.number"
    "$@" -displayfd 3 -nolisten tcp -noreset 3>"$dir/$name.number" >"$dir/$name.log" 2>&1 </dev/null &
    echo $! >>"$dir/pids"
    for _ in $(seq 100); do
        [ -s "$dir/$name.number" ] && break
        sleep 0.05
    done
    number=$(cat "$dir/$name.number")
    [ -n "$number" ] || { echo "session: no virtual screen for $name (see $dir/$name.log)" >&2; exit 1; }
}

start_screen() { # DIR NAME DPI COMMAND...
    local dir=$1 name=$2 dpi=$3 number
    shift 3
    # A prefix of its own for each screen: a prefix remembers the size of the first one it saw.
    copy_prefix "$dir/prefix" "$dir/prefix-$name" "$dpi"
    start_server "$dir" "$name" "$@"
    printf 'DISPLAY=:%s\nWINEPREFIX=%s\n' "$number" "$dir/prefix-$name" >"$dir/$name.env"
    # Kept alive between programs: a fresh server per program costs seconds.
    WINEPREFIX=$dir/prefix-$name wineserver -p600 >/dev/null 2>&1 </dev/null
}

start_turning_screens() { # DIR
    local dir=$1 entry name dpi number host
    start_server "$dir" host Xvfb -screen 0 800x800x24
    host=$number
    for entry in "${turning_screens[@]}"; do
        read -r name dpi <<<"$entry"
        start_screen "$dir" "$name" "$dpi" env DISPLAY=":$host" Xephyr -screen "${name#turning-}"
    done
}

start() {
    stop "$1"
    local dir entry size dpi
    mkdir -p "$1"
    dir=$(realpath "$1")
    : >"$dir/pids"
    make_prefix "$dir/prefix" 96
    for entry in "${screens[@]}"; do
        read -r size dpi <<<"$entry"
        start_screen "$dir" "$size" "$dpi" Xvfb -screen 0 "${size}x24"
    done
    start_turning_screens "$dir"
}

stop() {
    local dir pid notes
    [ -d "$1" ] || return 0
    dir=$(realpath "$1")
    for notes in "$dir"/*.env; do
        [ -f "$notes" ] && WINEPREFIX=$(sed -n 's/^WINEPREFIX=//p' "$notes") wineserver -k || true
    done
    [ -f "$dir/pids" ] || return 0
    while read -r pid; do
        kill "$pid" 2>/dev/null || true
    done <"$dir/pids"
    rm -f "$dir"/*.env "$dir/pids"
}

case "${1:-}" in
start) start "$2" ;;
stop) stop "$2" ;;
*) echo "usage: scripts/session.sh start|stop DIR" >&2; exit 2 ;;
esac
