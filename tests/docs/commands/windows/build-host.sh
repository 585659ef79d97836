# shellcheck shell=bash disable=SC2154
# Building the minimal host with the import library.
prepare() {
    mkdir -p out/x86_64 examples
    ln -s "$built/lib" out/x86_64/lib
    cp -r "$TAV_ROOT/include" .
    cp -r "$TAV_ROOT/examples/minimal-host" examples
}

check() {
    local program=examples/minimal-host/minimal-host.exe
    [ -s $program ] || fail "there is no program"
    x86_64-w64-mingw32-objdump -p $program | grep "DLL Name: TavLumenarDialogs.dll" >/dev/null ||
        fail "the program does not use the module"
}
