# shellcheck shell=bash disable=SC2154
# Measuring takes minutes: looks only whether each benchmark that is started, built or named exists.
prepare() {
    make_commands
    local program
    for program in $(benchmarks); do
        stand_in "out/native/bin/$program" <<<"echo '$program' >>'$area/ran'"
    done
    mkdir -p out/x86_64/bin
    stand_in "$area/bin/cmake" <<COMMAND
[ "\$1 \$2 \$3 \$4" = "--build --preset x86_64 --target" ]
shift 4
for target in "\$@"; do
    echo "$(benchmarks | tr '\n' ' ')" | grep -w -- "\$target" >/dev/null || { echo "no benchmark \$target" >&2; exit 1; }
    touch "out/x86_64/bin/\$target.exe"
done
COMMAND
    stand_in scripts/session.sh <<<'[ "$1" = start ] || [ "$1" = stop ]; [ $# -eq 2 ]'
    stand_in scripts/wine-run <<<"[ -f \"\$1\" ] && basename \"\$1\" >>'$area/ran'"
    stand_in "$area/bin/taskset" <<<'[ "$1" = -c ]; shift 2; exec "$@"'
}

# The names of all benchmarks' programs.
benchmarks() {
    local file=$TAV_ROOT/bench/CMakeLists.txt
    grep -oE 'add_gxx_program\([a-z_]+|add_executable\([a-z_]+' "$file" | sed 's/.*(//'
    sed -nE 's/.*foreach\(name ([A-Z][A-Za-z ]+)\).*/\1/p' "$file" | tr ' ' '\n' |
        tr '[:upper:]' '[:lower:]' | sed 's/$/_bench/'
}

check() {
    has_run "build native"
    has_run "bench_translator"
    has_run "menu_bench.exe"
}
