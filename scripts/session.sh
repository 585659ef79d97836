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

start_screen() { # DIR WIDTHxHEIGHT DPI
    local dir=$1 size=$2 dpi=$3 number
    # A prefix of its own for each screen: a prefix remembers the size of the first one it saw.
    copy_prefix "$dir/prefix" "$dir/prefix-$size" "$dpi"
    rm -f "$dir/$size.number"
    Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset \
        3>"$dir/$size.number" >"$dir/$size.log" 2>&1 </dev/null &
    echo $! >>"$dir/pids"
    for _ in $(seq 100); do
        [ -s "$dir/$size.number" ] && break
        sleep 0.05
    done
    number=$(cat "$dir/$size.number")
    [ -n "$number" ] || { echo "session: no virtual screen for $size (see $dir/$size.log)" >&2; exit 1; }
    printf 'DISPLAY=:%s\nWINEPREFIX=%s\n' "$number" "$dir/prefix-$size" >"$dir/$size.env"
    # Kept alive between programs: a fresh server per program costs seconds.
    WINEPREFIX=$dir/prefix-$size wineserver -p600 >/dev/null 2>&1 </dev/null
}

start() {
    stop "$1"
    local dir entry
    mkdir -p "$1"
    dir=$(realpath "$1")
    : >"$dir/pids"
    make_prefix "$dir/prefix" 96
    for entry in "${screens[@]}"; do
        # shellcheck disable=SC2086
        start_screen "$dir" $entry
    done
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
