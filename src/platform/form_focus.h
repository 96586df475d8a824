// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where the keyboard of a form is, and how it moves: by Tab, by a click, by a handler. The main
// form has a field that hears all typing whatever was clicked (`Form::typing`); in a dialog the
// keyboard is where the focus is.
#pragma once

#include "platform/form.h"

#include <vector>

namespace tallyforge {

/// Enabled and to be seen.
[[nodiscard]] bool takesInput(const Control& control);

/// Whether a control of this kind can have the keyboard.
[[nodiscard]] bool canHaveFocus(ControlKind kind);

/// Takes input, and is of a kind that can have the keyboard.
[[nodiscard]] bool takesFocus(const Control& control);

/// Whether two options exclude each other: of one `group`, of one array, or both standing alone.
[[nodiscard]] bool sameGroup(const Control& left, const Control& right);

/// The controls at which Tab stops, in its order. A group of options is one stop, at the chosen
/// option or else the first.
[[nodiscard]] std::vector<Control*> tabStops(const Form& form);

/// Tab, or Shift+Tab: the focus goes to the next stop, or the one before, around the ends.
void moveFocus(Form& form, bool backwards);

/// Gives a dialog's focus to a control that was clicked, where that can have it.
void focusClicked(Form& form, Control& control);

/// Puts a dialog's focus right where it stands on a control that cannot have it, and tells the
/// controls between which it moved. Runs after each action of the hand, so handlers move the focus
/// as they like and are told once.
void settleFocus(Form& form);

}  // namespace tallyforge
