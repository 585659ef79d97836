# Sourced by ./run: what its command line may say.

usage() {
    cat <<'HELP'
./run opens the stand-in device, a small home-screen shell in a window of its own.

  --dialog NAME     open one dialog directly, then print what it returned and what it changed:
                    customize-menu, customize-home, customize-now, install-wizard, select-city
                    (the last one also prints the city's record, decoded)
  --screen WxH      the device's screen in pixels (default 240x320)
  --dpi N           its resolution in dots per inch, 96 or more (default 96)
  --language CODE   en, de, ja, ru, or pseudo: accented, longer texts in brackets (default en)
  --fresh           reset the sample device first
  --pictures DIR    open nothing: take pictures of every view into DIR, without a display
  --help            this text

It sets up, builds, makes the city database and seeds what is missing first. Without a display it takes pictures into
out/pictures.
HELP
}

refuse() {
    echo "run: $1 (./run --help tells the options)" >&2
    exit 2
}

is_one_of() { # WORD CHOICES...
    local word=$1 choice
    shift
    for choice in "$@"; do
        [ "$word" = "$choice" ] && return 0
    done
    return 1
}

check_options() {
    [[ $screen =~ ^[1-9][0-9]{1,3}x[1-9][0-9]{1,3}$ ]] || refuse "'$screen' is not a screen size like 240x320"
    [[ $dpi =~ ^[0-9]{2,3}$ ]] && [ "$dpi" -ge 96 ] && [ "$dpi" -le 480 ] ||
        refuse "'$dpi' is not a resolution from 96 to 480"
    [ "$language" = en ] || [[ $language =~ ^[a-z]+$ && -d device/languages/$language ]] ||
        refuse "there is no language '$language'; try en, de, ja, ru or pseudo"
    [ -z "$dialog" ] ||
        is_one_of "$dialog" customize-menu customize-home customize-now install-wizard select-city ||
        refuse "there is no dialog '$dialog'"
}

read_options() {
    dialog="" screen=240x320 dpi=96 language=en fresh="" pictures=""
    while [ $# -gt 0 ]; do
        case "$1" in
        --help) usage; exit 0 ;;
        --fresh) fresh=yes; shift; continue ;;
        --dialog | --screen | --dpi | --language | --pictures) ;;
        *) refuse "unknown option '$1'" ;;
        esac
        [ $# -ge 2 ] && [ -n "$2" ] || refuse "$1 needs a value"
        case "$1" in
        --dialog) dialog=$2 ;;
        --screen) screen=$2 ;;
        --dpi) dpi=$2 ;;
        --language) language=$2 ;;
        --pictures) pictures=$2 ;;
        esac
        shift 2
    done
    check_options
}
