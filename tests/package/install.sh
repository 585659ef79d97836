#!/usr/bin/env bash
# The installer, without questions, installs what the zip holds; the uninstaller takes all of it away
# again, but nothing that somebody else put there.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

name=TavLumenarDialogs-$version-x86_64
session=${TAV_SESSION:-$root/out/session}
prefix=$(sed -n 's/^WINEPREFIX=//p' "$session/${TAV_SCREEN:-240x320}.env")
folder=$prefix/drive_c/package-test
entry='HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\TavLumenarDialogs-x86_64'

wine_run() { timeout 60 "$root/scripts/wine-run" "$@"; }

# The uninstaller goes on in a copy of itself, which lets go of the folder.
wait_until_gone() { # PATH
    for _ in $(seq 200); do
        [ -e "$1" ] || return 0
        sleep 0.05
    done
    fail "$1 is still there"
}

install_package() {
    wine_run "$packed/$name-setup.exe" /S '/D=C:\package-test'
    wine_run reg query "$entry" /v DisplayVersion | grep -q "$version" ||
        fail "the system's list of programs lacks the version"
}

rm -rf "$folder"
install_package
same_lines "installed files" "$( (files_below "$packed/unpacked/$name"; echo uninstall.exe) | LC_ALL=C sort)" \
    "$(files_below "$folder")"
files_below "$packed/unpacked/$name" | while read -r file; do
    cmp "$packed/unpacked/$name/$file" "$folder/$file"
done || fail "an installed file differs from the zip's"

touch "$folder/bin/mine.txt"
wine_run 'C:\package-test\uninstall.exe' /S
wait_until_gone "$folder/uninstall.exe"
same_lines "what another put there" "bin/mine.txt" "$(files_below "$folder")"

rm -rf "$folder"
install_package
wine_run 'C:\package-test\uninstall.exe' /S
wait_until_gone "$folder"
if wine_run reg query "$entry" >/dev/null; then
    fail "the system's list of programs still has it"
fi
exit $failed
