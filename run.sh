#!/usr/bin/env bash
# Installs what is missing, builds the calculator, starts it. Without a display it runs the worked
# session and draws the window into a picture instead.
set -euo pipefail
cd "$(dirname "$0")"

tools/setup.sh run
[ -f build/release/build.ninja ] || cmake --preset release -DTALLYFORGE_TESTS=OFF -DTALLYFORGE_BENCH=OFF >/dev/null
ninja -C build/release -j2 tallyforge tallyforge-keys | tail -n 1

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/release/apps/tallyforge "$@"
fi

echo "There is no display here. The worked session of the README, by tallyforge-keys:"
echo
build/release/apps/tallyforge-keys tests/keys/worked_example.keys
mkdir -p out
QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*=false' build/release/apps/tallyforge --render out/tallyforge.png tests/keys/worked_example.keys 2>/dev/null
echo
echo "The window as it stands after that session: out/tallyforge.png"
