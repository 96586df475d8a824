// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a hand can do to a form. A window and a key script both call these and nothing else, so a
// key press does the same in both. A disabled or hidden control takes no input.
#pragma once

#include "platform/form.h"

#include <string_view>

namespace tallyforge {

/// One key with its modifiers. `character` is what it types: a byte, or the control character of
/// Ctrl with a letter (3 for Ctrl+C), 8, 13 and 27 for Backspace, Enter and Esc; 0 for none.
struct KeyStroke {
    int keyCode = 0;
    std::uint8_t shift = 0;
    int character = 0;
};

/// Presses a key: key-down, key-press and, where the character survives in a field, its typing at
/// the caret. Enter clicks the key that has the focus, else the form's default key; Esc its cancel
/// key where it has one; Tab and Shift+Tab move the focus; a field may take these three for itself.
/// Alt with an access letter clicks the control that has it, or leads to the one behind a label;
/// Space clicks what has the focus. Arrows choose within a group of options, and with Home, End,
/// the page keys and letters within a list.
void pressKey(Form& form, KeyStroke stroke);

/// Types `text` into the control that has the keyboard, a key a character, so that a field's filter
/// sees each of them; line breaks and the like are left out.
void pasteText(Form& form, std::string_view text);

/// Lets the key go: key-up, with the modifiers still held.
void releaseKey(Form& form, KeyStroke stroke);

/// Modifiers went down (or are still down and repeat): the control with the focus sees them.
void holdModifiers(Form& form, std::uint8_t shift);

/// Letter that Alt reaches a caption by, as a capital; 0 for none.
[[nodiscard]] int accessLetter(std::string_view caption);

/// All modifiers came up.
void releaseModifiers(Form& form);

/// A click. In a dialog it gives the focus to what can have it. It selects an option and clears the
/// others of its group, ticks and clears a box. Returns false where the control takes no click.
bool click(Form& form, Control& control, std::uint8_t shift = kNoModifier);

/// Right mouse button, with the modifiers in force.
bool rightClick(Form& form, Control& control, std::uint8_t shift);

/// The same where no control stands.
void rightClickForm(Form& form, std::uint8_t shift);

/// Click or double click on row `row` of a list.
bool clickRow(Form& form, Control& list, std::size_t row);
bool doubleClickRow(Form& form, Control& list, std::size_t row);

/// The window's close button: the cancel key where there is one, else `close`. Returns whether the form is closed now.
bool closeForm(Form& form);

}  // namespace tallyforge
