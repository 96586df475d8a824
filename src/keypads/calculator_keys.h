// SPDX-License-Identifier: GPL-3.0-or-later
//
// The yellow keys: each opens its calculator dialog, with X in the field that the modifiers name.
#pragma once

namespace tallyforge {

struct CalculatorTable;
struct Keys;

/// Shows the dialog of `table` until the user closes it.
void openCalculator(Keys& keys, const CalculatorTable& table);
/// The dialogs that are more than a table.
void openLadder(Keys& keys);
void openPolynomial(Keys& keys);
void openLoan(Keys& keys);

}  // namespace tallyforge
