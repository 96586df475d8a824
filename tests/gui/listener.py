#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Walks the real tree of names as a screen reader does, and plays a session by ear.

    tests/gui/listener.py build/release/apps/tallyforge

Needs Xvfb, dbus-run-session, at-spi2-core and python3-dbus; ends with status 77 where one of them
is missing, 1 where the calculator says something wrong."""
import os
import shutil
import subprocess
import sys
import tempfile
import time

try:
    import dbus
except ImportError:
    sys.exit(77)

ACCESSIBLE = "org.a11y.atspi.Accessible"
CHECKED = 4  # the bit of a state as AT-SPI numbers it


def in_session():
    """Runs this script again with a bus and a screen of its own."""
    for tool in ("dbus-run-session", "Xvfb"):
        if shutil.which(tool) is None:
            return 77
    screen = ":%d" % (os.getpid() % 500 + 100)
    server = subprocess.Popen(["Xvfb", screen, "-screen", "0", "1366x768x24"], stderr=subprocess.DEVNULL)
    try:
        with tempfile.TemporaryDirectory() as home:
            environment = dict(os.environ, DISPLAY=screen, QT_QPA_PLATFORM="xcb", HEARD="1",
                               QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", XDG_DATA_HOME=home,
                               XDG_CONFIG_HOME=home, XDG_RUNTIME_DIR=home)
            # The tip of the day would stand before the window.
            os.makedirs(home + "/Oakhollow")
            with open(home + "/Oakhollow/Tallyforge.conf", "w", encoding="ascii") as settings:
                settings.write("[Options]\nShow%20Tips%20at%20Startup=false\n")
            time.sleep(0.5)
            return subprocess.call(["dbus-run-session", "--", sys.executable, os.path.abspath(__file__)] + sys.argv[1:],
                                   env=environment, stderr=subprocess.DEVNULL)
    finally:
        server.terminate()


class Tree:
    """The accessible tree of one application."""

    def __init__(self, name):
        session = dbus.SessionBus()
        address = session.get_object("org.a11y.Bus", "/org/a11y/bus").GetAddress(dbus_interface="org.a11y.Bus")
        self.bus = dbus.bus.BusConnection(address)
        self.root = self.wait_for(name)

    def wait_for(self, name):
        for _ in range(100):
            registry = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
            for child in self.children(registry):
                if self.name(child).lower().startswith(name):
                    return child
            time.sleep(0.1)
        sys.exit("the calculator does not register with the accessibility bus")

    def call(self, node, interface, method, *arguments):
        return self.bus.get_object(*node).get_dbus_method(method, interface)(*arguments)

    def children(self, node):
        return [(str(bus), str(path)) for bus, path in self.call(node, ACCESSIBLE, "GetChildren")]

    def property(self, node, interface, name):
        return self.call(node, "org.freedesktop.DBus.Properties", "Get", interface, name)

    def name(self, node):
        return str(self.property(node, ACCESSIBLE, "Name"))

    def description(self, node):
        return str(self.property(node, ACCESSIBLE, "Description"))

    def role(self, node):
        return str(self.call(node, ACCESSIBLE, "GetRoleName"))

    def has(self, node, state):
        words = self.call(node, ACCESSIBLE, "GetState")
        return bool(int(words[state // 32]) >> (state % 32) & 1)

    def text(self, node):
        return str(self.call(node, "org.a11y.atspi.Text", "GetText", 0, -1))

    def press(self, node):
        self.call(node, "org.a11y.atspi.Action", "DoAction", 0)
        time.sleep(0.05)

    def walk(self, node, depth=0):
        yield node
        if depth < 8 and self.role(node) != "menu bar":
            for child in self.children(node):
                yield from self.walk(child, depth + 1)


def main():
    program = subprocess.Popen([sys.argv[1]], stderr=subprocess.DEVNULL)
    wrong = []

    def expect(what, found, wanted):
        if found != wanted:
            wrong.append("%s: %r, not %r" % (what, found, wanted))

    try:
        tree = Tree("tallyforge")
        nodes = list(tree.walk(tree.root))
        # Labels beside the registers are numbers, too.
        named = {tree.name(node): node for node in nodes if tree.role(node) != "label"}
        for node in nodes:
            role = tree.role(node)
            if role in ("push button", "radio button", "check box", "text", "list", "list item"):
                if not tree.name(node) and role != "list item":
                    wrong.append("a %s without a name" % role)
                if "<" in tree.description(node):
                    wrong.append("markup in the description of " + tree.name(node))
        for digit in ("3", "Enter", "4", "Add"):
            tree.press(named[digit])
        expect("the entry line", tree.text(named["Entry line"]), "7.00")
        rows = [tree.name(row) for row in tree.children(named["Running tape"])]
        expect("the tape", [row for row in rows if row], ["3.00", "4.00", "+ 7.00"])
        stack = [tree.name(row) for row in tree.children(named["Stack"])]
        expect("the stack", stack, ["1 7.00e+00"])
        expect("the angle", tree.has(named["Degrees"], CHECKED), True)
        expect("the group", tree.description(named["Degrees"]), "Angle")
        # The session of the README.
        tree.press(named["Drop"])
        root = next(node for name, node in named.items() if name.startswith("Square root of x"))
        for key in ("1", "2", "Decimal", "6", "0", "Enter", "3", "Decimal", "5", "Divide", "2"):
            tree.press(named[key])
        tree.press(root)
        tree.press(named["Multiply"])
        rows = [row for row in (tree.name(row) for row in tree.children(named["Running tape"])) if row]
        expect("the session", rows[-6:], ["12.60", "3.50", "\u00f7 3.60", "2.00", "\u221ax 1.41", "X 5.09"])
        expect("the entry line after it", tree.text(named["Entry line"]), "5.09")
        tree.press(named["Last x"])
        expect("last x", tree.text(named["Entry line"]), "1.41")
        tree.press(named["Shift"])
        under_shift = {tree.name(node) for node in tree.walk(tree.root)}
        expect("ln under Shift", "e to the power of x" in under_shift, True)
    finally:
        program.terminate()
    for line in wrong:
        print(line)
    print("%d accessible objects, %d faults" % (len(nodes), len(wrong)))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main() if os.environ.get("HEARD") else in_session())
