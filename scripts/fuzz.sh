#!/usr/bin/env bash
# fuzz.sh [SECONDS [TARGET...]]  feeds each fuzz target for so long (10 s by default), from the corpus under tests/fuzz/.
# TAMBRELLE_FUZZ_SEED repeats a run; an input that breaks a target is left in build/fuzz/findings/.
set -uo pipefail
# shellcheck source=scripts/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

seconds=${1:-10}
shift || true
targets=("$@")
[ $# -gt 0 ] || targets=(preferences zone picture sound bus)
seed=${TAMBRELLE_FUZZ_SEED:-$(od -An -N4 -tu4 /dev/urandom | tr -d ' ')}
findings=$root/build/fuzz/findings
mkdir -p "$findings"
# The C library asks for as much memory as a damaged zone file tells it to, and does without when refused.
export ASAN_OPTIONS=allocator_may_return_null=1:max_allocation_size_mb=512
echo "TAMBRELLE_FUZZ_SEED=$seed"

run() {
    local target=$1 grown status=0
    grown=$(mktemp -d)
    # What is found in this run is kept beside the corpus that is under version control, and thrown away.
    "build/fuzz/${target}_fuzz" -seed="$seed" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 -max_len=4096 \
        -artifact_prefix="$findings/$target-" -print_final_stats=1 "$grown" "tests/fuzz/corpus/$target" \
        >"$findings/$target.log" 2>&1 || status=$?
    rm -rf "$grown"
    if [ "$status" = 0 ]; then
        printf '%-12s %s inputs\n' "$target" "$(sed -n 's/^stat::number_of_executed_units: *//p' "$findings/$target.log")"
    else
        printf '%-12s FAILED, the end of %s:\n' "$target" "$findings/$target.log"
        tail -n 40 "$findings/$target.log"
    fi
    return "$status"
}

status=0 running=()
for target in "${targets[@]}"; do
    run "$target" &
    running+=($!)
    if [ ${#running[@]} -ge "$jobs" ]; then
        wait "${running[0]}" || status=1
        running=("${running[@]:1}")
    fi
done
for child in "${running[@]}"; do wait "$child" || status=1; done
exit $status
