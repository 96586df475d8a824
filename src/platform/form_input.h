// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a hand can do to a form. A window and a key script both call these and nothing else, so a
// key press does the same in both. A disabled or hidden control takes no input.
#pragma once

#include "platform/form.h"

namespace tallyforge {

/// One key with its modifiers. `character` is what it types: a byte, or the control character of
/// Ctrl with a letter (3 for Ctrl+C), 8, 13 and 27 for Backspace, Enter and Esc; 0 for none.
struct KeyStroke {
    int keyCode = 0;
    std::uint8_t shift = 0;
    int character = 0;
};

/// Presses a key: key-down, key-press and, where the character survives in a field, its typing at
/// the caret. Enter clicks the form's default key, Esc its cancel key where it has one, Alt with
/// an access letter clicks the control that has it, Space clicks a key that has the focus.
void pressKey(Form& form, KeyStroke stroke);

/// Lets the key go: key-up, with the modifiers still held.
void releaseKey(Form& form, KeyStroke stroke);

/// Modifiers went down (or are still down and repeat): the control with the focus sees them.
void holdModifiers(Form& form, std::uint8_t shift);

/// All modifiers came up.
void releaseModifiers(Form& form);

/// A click. For an option it also selects it and clears its neighbours of the same name.
/// Returns false where the control takes no click.
bool click(Form& form, Control& control);

/// Right mouse button, with the modifiers in force.
bool rightClick(Form& form, Control& control, std::uint8_t shift);

/// Click or double click on row `row` of a list.
bool clickRow(Form& form, Control& list, std::size_t row);
bool doubleClickRow(Form& form, Control& list, std::size_t row);

/// The window's close button. Returns whether the form is closed now.
bool closeForm(Form& form);

}  // namespace tallyforge
