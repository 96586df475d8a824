// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the look-up keys answer: with a result in digits of its own, or with a box that says why
// there is none.
#pragma once

#include "engine/results.h"
#include "platform/platform.h"

#include <string_view>

namespace tallyforge {

class Engine;

/// The result takes the place of the topmost `operands` elements and is shown with `digits` places;
/// the user's format returns after it.
void answerWithDigits(Engine& calc, const Result& result, int digits, int operands = 1);
/// The same in place of X, with digits by the result's size over `digits` places.
void answerBySize(Engine& calc, const Result& result, int digits = 2);

/// Why a look-up has no result.
struct KeyRefusal {
    std::string_view text{};
    std::string_view title = "Error!";
    BoxKind kind = BoxKind::Stop;
    /// X stays, under this label on the tape; without one nothing is committed.
    std::string_view label{};
};

/// Shows the box; X and the stack stay.
void refuse(Engine& calc, const KeyRefusal& refusal);

/// Whether `value` has no fraction.
[[nodiscard]] bool isWhole(double value);

}  // namespace tallyforge
