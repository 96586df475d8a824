// SPDX-License-Identifier: GPL-3.0-or-later
//
// The entry line is a small machine of its own: it decides for every key whether it is a digit of
// the number, a function, or nothing. The whole keyboard of the calculator is defined here, and
// the on-screen digit keys do the same work for the mouse.
#pragma once

#include "desk/entry_commands.h"
#include "desk/stack_keys.h"
#include "engine/engine_state.h"
#include "platform/form.h"

#include <cstdint>

namespace tallyforge {

class Engine;

class EntryLine {
public:
    EntryLine(Engine& calculator, StackKeys& keys) : calc(calculator), stackKeys(keys), commands(calculator, keys) {}

    /// A key went down, by itself or with modifiers.
    void txtXreg_KeyDown(KeyEvent event);
    /// A character is about to reach the line. Sets `keyAscii` to 0 where it must not, or to
    /// another character that goes in instead.
    void txtXreg_KeyPress(int& keyAscii);
    /// A key came up; `event.shift` are the modifiers that are still held.
    void txtXreg_KeyUp(KeyEvent event);

    /// A character of a number of a base from a key on screen: "#", a digit A to F, or the letter
    /// that ends the number. What does not fit there is dropped.
    void typeBaseCharacter(char character);

    /// Digit keys 0 to 9 on screen, 10 is the decimal key.
    void cmdNumPad_Click(int index);
    void cmdBackSpace_Click();
    void cmdEex_Click();
    void cmdEsc_Click();
    void cmdF11_Click();
    void cmdF12_Click();

private:
    void takeModifiers(std::uint8_t shift);
    void navigate(int keyCode);
    void editLine(int keyCode);
    void dropLastCharacter();
    void clearEntryFlags();

    [[nodiscard]] bool lineIsFull() const;
    [[nodiscard]] bool passesDoneNumber(int key) const;
    [[nodiscard]] int accept(int key);
    [[nodiscard]] int acceptLetter(int key);
    [[nodiscard]] int acceptBaseKey(int key);
    template <typename Typed>
    [[nodiscard]] int orRefused(Typed typed);
    [[nodiscard]] int eex();
    void refuse(int key);
    void programLetter(int key);

    Engine& calc;
    StackKeys& stackKeys;
    EntryCommands commands;
    bool painted_ = false;  ///< the bank shows the captions of a modifier
};

}  // namespace tallyforge
