#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, builds, and runs every test and check.
#   ./test.sh             all of it
#   ./test.sh STEP ...    some of it: layers format debug core asan lint fuzz bench
set -euo pipefail
cd "$(dirname "$0")"
exec </dev/null
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen
# The tree without Qt is compiled like the debug tree, so its objects are taken from the compiler cache.
export CCACHE_NOHASHDIR=1

sources() { find src apps tests bench \( -name '*.h' -o -name '*.cpp' \) -print0 | sort -z; }

# Runs the tests of a built tree, away from the user's own files, and counts them.
run_tests() {
    local tree=build/$1
    local home=$PWD/$tree/home
    mkdir -p "$home"
    XDG_DATA_HOME=$home XDG_CONFIG_HOME=$home ctest --test-dir "$tree" --output-on-failure --no-tests=error -j2
    awk -v tree="$1" '/^\[  PASSED  \] [0-9]+ test/ { cases += $4 } /^Totals: [0-9]+ passed/ { cases += $2 }
                      /^Test: .*keys_/ { scripts++ }
                      END { printf "%s: %d test cases and %d key scripts passed\n", tree, cases, scripts }' \
        "$tree/Testing/Temporary/LastTest.log"
}

step_layers() {
    tools/check_layers
    tests/tools/check_layers_test
}

step_format() {
    sources | xargs -0 -n 20 -P 2 clang-format --dry-run -Werror
    sources | xargs -0 awk 'FNR == 1 && $0 != "// SPDX-License-Identifier: GPL-3.0-or-later" {
                                print FILENAME ": does not begin with its licence line"; wrong = 1 }
                            END { exit wrong }'
    echo "every file is in format and begins with its licence line"
}

step_debug() {
    tools/build debug
    run_tests debug
}

# The calculator without its window, on a machine that has no Qt.
step_core() {
    tools/build core
    run_tests core
}

step_asan() {
    tools/build asan
    run_tests asan
}

step_lint() {
    tools/build debug
    tools/lint build/debug
}

step_fuzz() {
    tools/build fuzz
    tools/fuzz 4
}

step_bench() { tools/bench --benchmark_min_time=0.02; }

wanted=("$@")
[ $# -gt 0 ] || wanted=(layers format debug core asan lint fuzz bench)
tools/setup.sh test
for name in "${wanted[@]}"; do
    declare -F "step_$name" >/dev/null || { echo "there is no step $name" >&2; exit 2; }
    printf '\n== %s\n' "$name"
    begun=$SECONDS
    "step_$name"
    echo "($name: $((SECONDS - begun)) s)"
done
printf '\nall passed, in %s s\n' "$SECONDS"
