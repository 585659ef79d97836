# Sourced by ./run and scripts/pictures.sh: named steps with the time they took, and displays.

# Runs a command as one step; prints its name first and its time afterwards, and ends the script with
# the command's output when it fails.
step() { # NAME COMMAND...
    local name=$1 log=out/run-step.log begin=${EPOCHREALTIME/[.,]/} end
    shift
    printf '%-44s' "$name ..."
    # In the background, because a condition would switch off errexit inside the command.
    (set -e; "$@") >"$log" 2>&1 </dev/null &
    if ! wait $!; then
        echo "failed"
        cat "$log" >&2
        exit 1
    fi
    end=${EPOCHREALTIME/[.,]/}
    printf '%3d.%d s\n' $(((end - begin) / 1000000)) $(((end - begin) / 100000 % 10))
}

# Builds the device's programs and what they load; tests and benchmarks can wait for ./build.
build_device() {
    [ -f out/x86_64/build.ninja ] || cmake --preset x86_64
    cmake --build --preset x86_64 --target TavLumenarShell
}

# Makes the city database of the device, once, and says where its cities come from.
make_cities() {
    local origin
    step "Making the city database" scripts/cities.sh
    origin=$(head -n 1 out/data/source.txt)
    case "$origin" in
    *sample) echo "  from the small sample $origin: the whole set can't be fetched now" ;;
    *) echo "  from $origin" ;;
    esac
}

# True when a window can be opened here.
has_display() {
    [ -n "${DISPLAY:-}" ] || return 1
    local number=${DISPLAY##*:}
    case "$DISPLAY" in
    # A local display is a socket; a stale DISPLAY without one is none.
    :*) [ -S "/tmp/.X11-unix/X${number%%.*}" ] ;;
    *) true ;;
    esac
}
