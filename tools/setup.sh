#!/usr/bin/env bash
# Installs what is missing from Debian's own archive. Called by run.sh and test.sh.
#   tools/setup.sh run     what building and running needs
#   tools/setup.sh test    the same, and what the checks need
set -euo pipefail

run_packages=(g++ cmake ninja-build qt6-base-dev libgl-dev fonts-dejavu-core)
test_packages=(libgtest-dev libbenchmark-dev librapidcheck-dev clang clang-format clang-tidy libclang-rt-14-dev
               python3 xvfb xauth)

wanted=("${run_packages[@]}")
[ "${1:-run}" = test ] && wanted+=("${test_packages[@]}")

missing=()
for package in "${wanted[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing from Debian's archive: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Please install these packages as root: ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
fi
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
