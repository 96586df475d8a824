#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, builds, and runs every test and check.
#   ./test.sh             all of it
#   ./test.sh STEP ...    some of it: layers format debug core asan lint fuzz bench
set -euo pipefail
cd "$(dirname "$0")"
exec </dev/null
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen GTEST_BRIEF=1
# The same random key sequences each time; other seeds, and more of them, are for RC_PARAMS by hand.
export RC_PARAMS=${RC_PARAMS:-seed=1}
# The tree without Qt is compiled like the debug tree, so its objects are taken from the compiler cache.
export CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros

sources() { find src apps tests bench \( -name '*.h' -o -name '*.cpp' \) -print0 | sort -z; }

# Runs the tests of a built tree, away from the user's own files, and counts them.
run_tests() {
    local tree=build/$1
    local home=$PWD/$tree/home
    mkdir -p "$home"
    XDG_DATA_HOME=$home XDG_CONFIG_HOME=$home ctest --test-dir "$tree" --output-on-failure --no-tests=error -j2
    awk -v tree="$1" '/^\[  PASSED  \] [0-9]+ test/ { cases += $4 } /^Totals: [0-9]+ passed/ { cases += $2 }
                      /^[0-9]+\/[0-9]+ Test: keys_/ && !/keys_program/ { scripts++ }
                      END { printf "%s: %d test cases and %d key scripts passed\n", tree, cases, scripts }' \
        "$tree/Testing/Temporary/LastTest.log"
}

step_layers() {
    tools/check_layers
    tests/tools/check_layers_test
    tools/check_members
    tests/tools/check_members_test
    tools/check_subjects
    tests/tools/check_subjects_test
}

step_format() {
    sources | xargs -0 -n 20 -P 2 clang-format --dry-run -Werror
    sources | xargs -0 awk 'FNR == 1 && $0 != "// SPDX-License-Identifier: GPL-3.0-or-later" {
                                print FILENAME ": does not begin with its licence line"; wrong = 1 }
                            END { exit wrong }'
    # Names that are the compiler's own; clang-tidy takes a fifth of its time to look for them.
    if grep -rnP --include=*.h --include=*.cpp '^(?!\s*//)[^"]*?(?<![\w:])(_[A-Z]|__)\w*' src apps; then return 1; fi
    # A file is one subject; a pure table (rows of braces, strings and numbers) may be longer.
    find src apps \( -name '*.h' -o -name '*.cpp' \) -print0 | xargs -0 awk '
        function report() { if (lines > 400 && lines - rows > 200) { print file ": " lines " lines"; wrong = 1 } }
        FNR == 1 { report(); file = FILENAME; lines = rows = 0 }
        { ++lines } /^ *([{.}"]|\/\/\/?)/ { ++rows }
        END { report(); exit wrong }'
    echo "every file is in format, begins with its licence line, and is no longer than its subject"
}

step_debug() {
    tools/build debug
    run_tests debug
}

# The calculator without its window, on a machine that has no Qt, with no header precompiled.
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
    tests/tools/lint_test
}

# The same inputs each time, so that what fails here fails again; tools/fuzz looks for new ones.
step_fuzz() {
    tools/build asan
    tools/fuzz -seed=1 4
}

# That the benchmarks run; their figures are taken with tools/bench, in the release tree.
step_bench() {
    tools/build debug
    build/debug/bench/bench_engine --benchmark_min_time=0.001 >build/bench.log
    echo "$(grep -c '^[A-Z]' build/bench.log) benchmarks ran"
}

tools/setup.sh test
if [ $# -eq 1 ]; then
    declare -F "step_$1" >/dev/null || { echo "there is no step $1" >&2; exit 2; }
    printf '\n== %s\n' "$1"
    "step_$1"
    echo "($1: $SECONDS s)"
    exit
fi

# Each step runs by itself, so that one that fails does not hide the others.
[ $# -gt 0 ] || set -- layers format debug core asan lint fuzz bench
failed=()
for name in "$@"; do
    ./test.sh "$name" || failed+=("$name")
done
if [ ${#failed[@]} -gt 0 ]; then
    printf '\nfailed: %s (in %s s)\n' "${failed[*]}" "$SECONDS"
    exit 1
fi
printf '\nall passed, in %s s\n' "$SECONDS"
