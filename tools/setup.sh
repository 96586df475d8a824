#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing from Debian's own archive; does nothing where all of it is there.
#   tools/setup.sh run     what building and running needs
#   tools/setup.sh test    the same, and what the tests and checks need
#   tools/setup.sh bench   what tools/bench needs
#   tools/setup.sh measure what tools/measure_window needs
#   tools/setup.sh package what tools/package and tools/check_package need
set -euo pipefail

wanted=(g++ cmake ninja-build qt6-base-dev libgl-dev fonts-dejavu-core)
case "${1:-run}" in
    run)
        # Qt speaks X11 by itself; on a desktop of Wayland alone it needs its plug-in.
        if [ -n "${WAYLAND_DISPLAY:-}" ] && [ -z "${DISPLAY:-}" ]; then
            wanted+=(qt6-wayland)
        fi
        ;;
    test)
        wanted+=(ccache python3 libgtest-dev librapidcheck-dev libbenchmark-dev
                 clang libclang-rt-14-dev clang-format clang-tidy
                 poppler-utils units xvfb xauth dbus-daemon at-spi2-core python3-dbus)
        ;;
    bench)
        wanted+=(libbenchmark-dev)
        ;;
    measure)
        wanted+=(libbenchmark-dev libxcb1-dev libxcb-damage0-dev libxcb-xtest0-dev
                 xvfb xauth)
        ;;
    package)
        wanted+=(librsvg2-bin dpkg-dev file lintian desktop-file-utils appstream mmdebstrap)
        ;;
    *)
        echo "usage: tools/setup.sh [run|test|bench|measure|package]" >&2
        exit 2
        ;;
esac

missing=()
for package in "${wanted[@]}"; do
    status=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    [ "$status" = "install ok installed" ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing from Debian's archive: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Please install these packages as root: ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
fi
apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
log=$(mktemp)
trap 'rm -f "$log"' EXIT
"${apt[@]}" update >"$log" 2>&1 || echo "The package lists could not all be refreshed; trying with those at hand." >&2
"${apt[@]}" install -y --no-install-recommends "${missing[@]}" >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
