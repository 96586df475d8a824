// SPDX-License-Identifier: GPL-3.0-or-later
//
// What happens to the control that a hand reaches, be it by mouse or by keyboard.
#pragma once

#include "platform/form_input.h"

#include <cstddef>
#include <utility>

namespace tallyforge {

/// Runs a handler, if there is one. It may hang another one in its place, so it runs from a copy.
template <typename Handler, typename... Arguments>
void runHandler(const Handler& handler, Arguments&&... arguments) {
    if (handler) {
        const Handler copy = handler;
        copy(std::forward<Arguments>(arguments)...);
    }
}

/// Clicks a control that takes input: selects an option, turns a box, runs the handler.
void actOn(Form& form, Control& control);

/// Selects row `row` of a list or choice that has it.
void chooseRow(Control& list, std::size_t row);

/// The row to which a key leads from the selected one; the count where it leads nowhere. There must
/// be a row.
[[nodiscard]] std::size_t rowByKey(const ListRows& rows, KeyStroke stroke);

/// Keys that choose within the control that has the keyboard: arrows in a group of options; arrows,
/// Home, End, the page keys and letters in a list. Returns whether the stroke was one of these.
bool stepsWithin(Form& form, Control& target, KeyStroke stroke);

}  // namespace tallyforge
