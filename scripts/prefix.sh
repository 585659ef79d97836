# Sourced by the other scripts: makes Wine prefixes that behave like the handheld's desktop.

export WINEDEBUG=-all
export WINEARCH=win64

# Changes with whatever make_prefix sets up, so that an older prefix is made anew.
prefix_version=1

reg_set() { # KEY NAME TYPE VALUE
    wine reg add "$1" /v "$2" /t "$3" /d "$4" /f >/dev/null 2>&1
}

# The settings that every prefix needs.
configure_prefix() {
    # Tahoma, the handheld's face, is found only inside the prefix.
    cp /usr/share/wine/fonts/tahoma*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
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

# A copy at another resolution takes two seconds, a new prefix ten.
copy_prefix() { # FROM TO DPI
    [ -f "$2/.version-$prefix_version-$3" ] && return 0
    rm -rf "$2"
    cp -a "$1" "$2"
    rm -f "$2"/.version-*
    WINEPREFIX=$2 reg_set 'HKCU\Control Panel\Desktop' LogPixels REG_DWORD "$3"
    WINEPREFIX=$2 wineserver -w
    touch "$2/.version-$prefix_version-$3"
}
