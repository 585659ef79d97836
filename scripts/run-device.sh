# Sourced by ./run and scripts/pictures.sh: the sample device in a Wine prefix of its own.

shell_program=$PWD/out/x86_64/bin/TavLumenarShell.exe
install_folder_in_prefix="drive_c/Program Files/Tav Lumenar"
city_database=out/data/CitiesDb.dat

# A prefix per resolution and screen: it remembers both.
use_device() {
    device=out/device/$screen-$dpi
    mkdir -p out/device
    export WINEPREFIX=$PWD/$device WINEDEBUG=${WINEDEBUG:--all}
}

# Shortcuts for the Start Menu folder live on the device's own drive.
make_device() {
    make_prefix "$WINEPREFIX" "$dpi"
    prepare_folders
    local managed=Y
    # Unlike a screen of its own, a person's desktop has a window manager to move the device with.
    has_own_screen && managed=N
    [ "$(cat "$WINEPREFIX/.managed" 2>/dev/null)" = $managed ] && return 0
    reg_set 'HKCU\Software\Wine\X11 Driver' Managed REG_SZ $managed
    echo $managed >"$WINEPREFIX/.managed"
}

# Whether the device can have a display server of its own, in a window, which can be turned. A
# virtual desktop, which takes its place otherwise, has no upright shape to turn back to.
has_own_screen() {
    command -v Xephyr >/dev/null
}

prepare_folders() {
    local key='HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders'
    mkdir -p "$WINEPREFIX/$install_folder_in_prefix" "$WINEPREFIX/drive_c/windows/Start Menu/Programs"
    cp device/help/TavLumenar.htm "$WINEPREFIX/$install_folder_in_prefix/"
    [ -f "$WINEPREFIX/.folders-2" ] && return 0
    # Without a drive letter, as on a handheld: the paths are also the names of what is pinned.
    reg_set "$key" 'Start Menu' REG_SZ '\Windows\Start Menu'
    reg_set "$key" Programs REG_SZ '\Windows\Start Menu\Programs'
    touch "$WINEPREFIX/.folders-2"
}

# The device has its own copy, which stays until there is a newer one.
install_cities() {
    local installed=$WINEPREFIX/$install_folder_in_prefix/CitiesDb.dat
    [ -z "${fresh:-}" ] && [ -f "$installed" ] && [ ! "$city_database" -nt "$installed" ] && return 0
    # Whole or not at all: a copy that was cut short would look like the newer one.
    cp "$city_database" "$installed.new"
    mv -f "$installed.new" "$installed"
}

seed_device() {
    local arguments=(--seed)
    install_cities
    [ -n "${fresh:-}" ] && arguments+=(--fresh)
    [ -z "${fresh:-}" ] && [ "$WINEPREFIX/.seeded" -nt "$shell_program" ] && return 0
    wine "$shell_program" "${arguments[@]}"
    touch "$WINEPREFIX/.seeded"
}

# Texts of the language that files in the ANSI code page are written for, and its dates.
locale_of() { # LANGUAGE
    case "$1" in
    de) echo de_DE.UTF-8 ;;
    ja) echo ja_JP.UTF-8 ;;
    ru) echo ru_RU.UTF-8 ;;
    *) echo en_US.UTF-8 ;;
    esac
}

# Wine takes the ANSI code page from LC_ALL, whether or not that locale is installed here.
choose_language() {
    local installed=$WINEPREFIX/$install_folder_in_prefix/TavLumenar.txt
    if [ "$language" = en ]; then
        rm -f "$installed"
    else
        cp "device/languages/$language/TavLumenar.txt" "$installed"
    fi
}

start_shell() { # ARGUMENTS...
    if ! has_own_screen; then
        run_on_device explorer "/desktop=Lumenar,$screen" "$shell_program" "$@"
        return
    fi
    take_device
    # A server that saw another screen before goes on believing in it.
    wineserver -k || true
    open_screen
    DISPLAY=:$own_display run_on_device "$shell_program" "$@" || true
    kill "$screen_process" 2>/dev/null || true
}

# The output is Wine's chatter; a pipe would be kept open by the system processes it starts.
run_on_device() { # PROGRAM ARGUMENTS...
    LC_ALL=$(locale_of "$language") wine "$@" >out/run-wine.log 2>&1 </dev/null 9>&-
}

# One device is open once: a second shell would turn its screen from under the first.
take_device() {
    exec 9>"$WINEPREFIX/.open"
    flock -n 9 || { echo "run: this device is open already" >&2; exit 1; }
}

# Opens the device's screen; its display is in `own_display` then, its process in `screen_process`.
open_screen() {
    local numbers=$WINEPREFIX/.display
    rm -f "$numbers"
    Xephyr -displayfd 3 -screen "$screen" -title "Tav Lumenar" -no-host-grab -nolisten tcp -noreset \
        3>"$numbers" >out/run-screen.log 2>&1 </dev/null 9>&- &
    screen_process=$!
    trap 'kill "$screen_process" 2>/dev/null || true' EXIT
    for _ in $(seq 100); do
        [ -s "$numbers" ] && break
        sleep 0.05
    done
    own_display=$(cat "$numbers")
    [ -n "$own_display" ] || { echo "run: the device's screen could not be opened (see out/run-screen.log)" >&2; exit 1; }
}

open_dialog() {
    local report=out/run-report.txt status
    rm -f "$report"
    echo "Opening $dialog."
    # The desktop's own exit code says nothing, so the outcome comes through a file.
    start_shell --dialog "$dialog" --report "Z:$PWD/$report"
    if [ ! -f "$report" ]; then
        echo "run: the device ended without a report (see out/run-wine.log)" >&2
        exit 1
    fi
    status=$(head -1 "$report")
    tail -n +2 "$report"
    exit "$status"
}

open_shell() {
    echo "The device is open. F9 turns its screen; Customize and Exit close it."
    start_shell
    exit 0
}
