# Sourced by the other scripts: makes Wine prefixes that behave like the handheld's desktop.

export WINEDEBUG=-all
export WINEARCH=win64

# Changes with whatever make_prefix sets up, so that an older prefix is made anew.
prefix_version=4

reg_set() { # KEY NAME TYPE VALUE
    wine reg add "$1" /v "$2" /t "$3" /d "$4" /f >/dev/null 2>&1
}

# The settings that every prefix needs.
configure_prefix() {
    # Tahoma, the handheld's face, is found only inside the prefix.
    cp /usr/share/wine/fonts/tahoma*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
    # Tahoma takes the Japanese glyphs it lacks from this face, which is another one here.
    reg_set 'HKCU\Software\Wine\Fonts\Replacements' 'MS UI Gothic' REG_SZ Monapo
    # A crash ends the program at once: a crash dialog would wait for ever.
    reg_set 'HKCU\Software\Wine\WineDbg' ShowCrashDialog REG_DWORD 0
    # No window manager runs on the virtual screens; waiting for one makes each closing take 2 s.
    reg_set 'HKCU\Software\Wine\X11 Driver' Managed REG_SZ N
    # Wine lacks this link, and without it all programs share one icon.
    wine reg add 'HKCR\.exe' /ve /d exefile /f >/dev/null 2>&1
}

make_prefix() { # DIR DPI
    export WINEPREFIX=$1
    [ -f "$1/.version-$prefix_version-$2" ] && return 0
    rm -rf "$1"
    mkdir -p "$1"
    WINEDLLOVERRIDES="mscoree=;mshtml=" wine wineboot -i >/dev/null 2>&1
    configure_prefix
    reg_set 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD "$2"
    wineserver -w
    touch "$1/.version-$prefix_version-$2"
}

# Another prefix at another resolution: a registry and user folders of its own, the system's files,
# which are most of it, shared with the first. Each by itself: a linked folder is hidden from the
# dialogs, which don't follow links.
copy_prefix() { # FROM TO DPI
    [ -f "$2/.version-$prefix_version-$3" ] && return 0
    local from entry
    from=$(realpath "$1")
    rm -rf "$2"
    mkdir -p "$2/drive_c"
    cp -a "$from"/*.reg "$from/.update-timestamp" "$from/dosdevices" "$2"
    for entry in "$from"/drive_c/*; do
        if [ "${entry##*/}" = windows ]; then
            cp -al "$entry" "$2/drive_c" || cp -a "$entry" "$2/drive_c"
        else
            cp -a "$entry" "$2/drive_c"
        fi
    done
    WINEPREFIX=$2 reg_set 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD "$3"
    WINEPREFIX=$2 wineserver -w
    touch "$2/.version-$prefix_version-$3"
}
