#!/usr/bin/env bash
# coverage.sh  builds core/, content/ and app/ with counters, runs their tests, and prints which lines never ran.
set -euo pipefail
# shellcheck source=scripts/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
install_packages build test

step coverage-config configure coverage
step coverage-build cmake --build build/coverage -j "$jobs" \
    --target core_tests zone_sweep_tests content_tests tambrelle_app_tests tambrelle_soak
find build/coverage -name '*.gcda' -delete
for test in core_tests zone_sweep_tests content_tests tambrelle_app_tests; do
    step "coverage-$test" "build/coverage/tests/$test"
done
step coverage-soak env QT_NO_GLIB=1 TAMBRELLE_SOAK_TICKS=300000 build/coverage/tests/tambrelle_soak --gtest_filter='*.Weeks'
gcovr --root . --object-directory build/coverage --filter '(core|content|app)/' --exclude-throw-branches --print-summary \
    --gcov-ignore-parse-errors build/coverage
