// SPDX-License-Identifier: GPL-3.0-or-later
//
// The constants key and the density key, where a list of values and the memory of the Convert
// keypad meet: a constant that was picked stays with the key of the Convert keypad as its factor.
#pragma once

namespace tallyforge {

struct Keys;

/// On the Convert keypad: picks a constant and keeps it, so that the next plain click multiplies X
/// by it; Shift picks another, Alt also puts it into Register 2, Ctrl picks an SI prefix.
void constantsKey(Keys& keys);

/// On the Tables keypad: picks one at each click, with the same modifiers, and keeps none.
void constantsTableKey(Keys& keys);

/// Densities; with Ctrl picks a specific gravity.
void densityKey(Keys& keys);

/// A resistivity picked from the list of materials goes on the stack under its unit.
void pickResistivity(Keys& keys);

}  // namespace tallyforge
