#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, builds the calculator, starts it. Without a display it runs the worked
# session of the README and draws the window as it stands afterwards into a picture.
set -euo pipefail
cd "$(dirname "$0")"

tools/setup.sh run
tools/build release tallyforge tallyforge-keys

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/release/apps/tallyforge "$@"
fi

session=tests/keys/worked_example.keys
picture=out/tallyforge.png
echo "There is no display here. The worked session of the README, $session, by tallyforge-keys:"
echo
build/release/apps/tallyforge-keys "$session"
echo
mkdir -p out
QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*=false' \
    build/release/apps/tallyforge --render "$picture" "$session"
echo "The window as it stands after that session: $picture"
