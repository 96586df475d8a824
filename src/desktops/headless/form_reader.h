// SPDX-License-Identifier: GPL-3.0-or-later
//
// What an eye sees on the form, as lines of text: one word of a key script's `show` each.
#pragma once

#include "platform/form.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyforge {

class Engine;

/// A control as a script shows it: name, text, state.
[[nodiscard]] std::string controlLine(const Form& form, const Control& control);

/// Row `row` of a list, which is number `number` for the user, in the same way.
[[nodiscard]] std::string rowLine(const Control& list, int number, std::size_t row);

/// The lines of `word` (x, tape, keys, ...), UTF-8; empty where there is no such word. `form` is
/// the form that has the keyboard.
[[nodiscard]] std::optional<std::vector<std::string>> readWord(const Engine& calc, const Form& form,
                                                               std::string_view word);

}  // namespace tallyforge
