# shellcheck shell=bash
# Shared by ./run and ./check: where things are, how many cores, and steps with a name, a time and a log.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit 1
export LC_ALL=C.UTF-8
jobs=$(nproc)
logs=$root/build/logs
failed_steps=()

# What is interrupted goes no further. A builder or a test's runner would answer the interruption with a status only.
trap 'exit 130' INT
trap 'exit 143' TERM

# usage: prints the comment at the head of the command, which lies at the root, and ends.
usage() {
    sed -n '2,/^[^#]/s/^# //p' "$root/${0##*/}" >&2
    exit 2
}

now_ms() { date +%s%3N; }

# step NAME COMMAND...: runs the command with its output in build/logs/NAME.log, prints the time it took, and on failure
# the end of that log. The name of a failed step is remembered in failed_steps; the status is the command's own.
step() {
    local name=$1 begin status=0
    shift
    mkdir -p "$logs"
    printf '== %-14s ' "$name"
    begin=$(now_ms)
    "$@" >"$logs/$name.log" 2>&1 || status=$?
    local took=$(($(now_ms) - begin))
    if [ "$status" = 0 ]; then
        printf 'ok      %4d.%d s\n' $((took / 1000)) $((took % 1000 / 100))
    else
        printf 'FAILED  %4d.%d s, status %d; the end of build/logs/%s.log:\n' \
            $((took / 1000)) $((took % 1000 / 100)) "$status" "$name"
        tail -n 120 "$logs/$name.log"
        failed_steps+=("$name")
    fi
    return "$status"
}

# install_packages PURPOSE...: not a step, because sudo may want to ask for a password.
install_packages() {
    local begin
    begin=$(now_ms)
    "$root/scripts/packages.sh" "$@" || exit 1
    local took=$(($(now_ms) - begin))
    printf '== %-14s ok      %4d.%d s\n' packages $((took / 1000)) $((took % 1000 / 100))
}

# configure PRESET [OPTION...]: ccache is used where it is installed. It is not asked for: with an empty cache it costs a tenth
# of the build.
configure() {
    local preset=$1 launcher=()
    shift
    # What it needs for precompiled headers; and the compiler's own list of headers, instead of a run of the preprocessor.
    export CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_DEPEND=1
    command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    cmake --preset "$preset" "${launcher[@]}" "$@"
}

build() { cmake --build --preset "$1" -j "$jobs"; }
