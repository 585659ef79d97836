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
    [ -f "$WINEPREFIX/.window" ] && return 0
    # Unlike a bare virtual screen, a person's desktop has a window manager to move the device with.
    reg_set 'HKCU\Software\Wine\X11 Driver' Managed REG_SZ Y
    touch "$WINEPREFIX/.window"
}

prepare_folders() {
    local key='HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders'
    mkdir -p "$WINEPREFIX/$install_folder_in_prefix" "$WINEPREFIX/drive_c/windows/Start Menu/Programs"
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
    # The output is Wine's chatter; a pipe would be kept open by the system processes it starts.
    LC_ALL=$(locale_of "$language") wine explorer "/desktop=Lumenar,$screen" \
        "$shell_program" "$@" >out/run-wine.log 2>&1 </dev/null
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
    echo "The device is open. Close it with its right soft key."
    start_shell
    exit 0
}
