// SPDX-License-Identifier: GPL-3.0-or-later
//
// The keys that work on the stack itself: Drop, x<>y, CHS and Last x. While a modifier is active
// they only return the keyboard to the entry line.
#pragma once

#include "engine/tape.h"

namespace tallyforge {

class Engine;

class StackKeys {
public:
    explicit StackKeys(Engine& calculator);

    /// Takes the top element away; last x keeps it.
    void cmdDown_Click();
    /// Exchanges the two top elements. On a single element the missing one is 0.
    void cmdXchgY_Click();
    /// Changes the sign of the typed number, of its exponent, or of X. On the Binary keypad it is
    /// the remainder key.
    void cmdChs_Click();
    /// Pushes last x; a number that is being typed stays in the entry line.
    void cmdLastx_Click();

private:
    bool modifierActive();
    void takeTop();
    void changeSignOfX();
    void changeSignOfEntry();
    void changeSignOfExponent();
    void remainder();

    bool dropQuietly();

    Engine& calc;
    KnownLabel drop_;
};

}  // namespace tallyforge
