// SPDX-License-Identifier: GPL-3.0-or-later
//
// The keyboard's keys that do something instead of typing: arithmetic signs, letters and signs of
// functions, control characters, digit keys with Ctrl.
#pragma once

#include "desk/stack_keys.h"
#include "engine/engine_state.h"
#include "platform/form.h"

#include <cstdint>

namespace tallyforge {

class Engine;

class EntryCommands {
public:
    EntryCommands(Engine& calculator, StackKeys& keys) : calc(calculator), stackKeys(keys) {}

    /// Digit keys that mean a function with Ctrl. Returns whether nothing more is to be done.
    bool shortCut(KeyEvent event);
    /// What Ctrl with a letter has typed: copy, paste, the square of pi, the square root.
    void controlCharacter(int key);
    /// An arithmetic sign, or the letter that stands for it. Returns whether `key` is one.
    bool arithmetic(int key);
    /// A function by its letter or sign. Returns whether `key` is one.
    bool functionCharacter(int key);

private:
    void doubleOrHalve(int key);
    void toBase();

    /// A function key as if keypad `keypad` were shown, with `mask` held.
    void pressOn(Keypad keypad, int function, std::uint8_t mask);
    void pressFunction(int function);
    /// Runs `action` with the number handling of the bases lifted.
    template <typename Action>
    void withoutBase(Action action);

    Engine& calc;
    StackKeys& stackKeys;
};

}  // namespace tallyforge
