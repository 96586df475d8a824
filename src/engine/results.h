// SPDX-License-Identifier: GPL-3.0-or-later
//
// How a key's function takes its operands and leaves its result. The value is computed first and
// handed over last, so that a failure leaves the stack as it was.
#pragma once

#include "numbers/value_cell.h"

#include <string_view>

namespace tallyforge {

class Engine;

/// A value and the label of its tape line.
struct Result {
    ValueCell value;
    std::string_view label;
};

/// The operand `below` elements under X (1 is Y) as a number; 0 where the stack is too short.
/// Raises 13 for a text that is no number, 6.
[[nodiscard]] double operandBelow(const Engine& calc, int below);
/// The same as it stands, for who reads its text; Empty where the stack is too short.
[[nodiscard]] ValueCell cellBelow(const Engine& calc, int below);

/// The result takes the place of X.
void replaceX(Engine& calc, const Result& result);
/// The result takes the place of the topmost `operands` elements, X among them.
void replaceOperands(Engine& calc, int operands, const Result& result);
/// The result goes on top of the stack.
void pushOnX(Engine& calc, const Result& result);
/// The result goes on top of the stack and on the tape at once, before the result that follows it.
/// It chooses its digits by its size unless `keepsDigits`.
void pushAtOnce(Engine& calc, const Result& result, bool keepsDigits);
/// Two results take the place of the topmost `operands` elements; the second ends in X. The first
/// chooses its digits by its size unless `keepsDigits`.
void replaceWithPair(Engine& calc, int operands, const Result& first, const Result& second, bool keepsDigits = false);
/// X chooses its digits by its size, fixed `digits` where it is neither large nor small; the user's
/// format returns after the commit.
void chooseDigits(Engine& calc, int digits = 2);
/// The operand that a key has taken silently goes on the tape as it was typed; nothing where it
/// stood on the stack already, and so on the tape.
void writeTypedOperand(Engine& calc);
/// These modifiers have no meaning for the key.
void refuseModifiers(Engine& calc);
/// There is nothing to commit.
void leaveNothing(Engine& calc);
/// There is nothing to commit, and X stays what it is.
void leaveX(Engine& calc);

}  // namespace tallyforge
