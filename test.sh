#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test and check.
set -euo pipefail
cd "$(dirname "$0")"
export QT_QPA_PLATFORM=offscreen

step() { printf '\n== %s\n' "$1"; }
build() { cmake --preset "$1" "${@:2}" >/dev/null; ninja -C "build/$1" -j2 | tail -n 1; }
tests() { ctest --test-dir "build/$1" --output-on-failure -j2; }

tools/setup.sh test

step "Rooms and arrows"
tools/check_layers
tests/tools/check_layers_test

step "Format"
git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run -Werror

step "Debug build and tests"
build debug
tests debug

step "Core without Qt"
build core -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON
tests core

step "Sanitizers"
build asan
tests asan

step "Lint"
tools/lint build/debug

step "Fuzzing, a few seconds each"
build fuzz
tools/fuzz_smoke build/fuzz

step "Benchmarks run"
build release -DTALLYFORGE_TESTS=OFF -DTALLYFORGE_BENCH=ON
build/release/bench/bench_engine --benchmark_min_time=0.02 >/dev/null
echo "all checks passed"
