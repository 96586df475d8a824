#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The four loops of this folder in Python, the yardstick that every machine has.

  python3 -S loops.py NAME TURNS      prints the sum; time it as a process, less a run of 1 turn
"""
import sys
from math import log, sin, sqrt


def sum_(n):
    s = 0.0
    k = 1.0
    while k <= n:
        s = s + k * k / (k + 1.0)
        k = k + 1.0
    return s


def newton(n):
    s = 0.0
    a = 1.0
    while a <= n:
        x = a
        c = 20.0
        while c > 0:
            x = (x + a / x) / 2.0
            c = c - 1.0
        s = s + x
        a = a + 1.0
    return s


def trans(n):
    s = 0.0
    k = 1.0
    while k <= n:
        s = s + (sin(k) * log(k + 1.0) + sqrt(k))
        k = k + 1.0
    return s


def g(x):
    return x * x + 1.0


def calls(n):
    s = 0.0
    k = 1.0
    while k <= n:
        s = s + g(k)
        k = k + 1.0
    return s


print(repr({"sum": sum_, "newton": newton, "trans": trans, "calls": calls}[sys.argv[1]](float(sys.argv[2]))))
