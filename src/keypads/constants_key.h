// SPDX-License-Identifier: GPL-3.0-or-later
//
// The constants key and the density key, where a list of values and the memory of the Convert
// keypad meet: a constant that was picked stays with the key of the Convert keypad as its factor.
#pragma once

namespace tallyforge {

struct Keys;

/// On the Convert keypad: picks a constant and keeps it, so that the next plain click multiplies X
/// by it; Shift picks another, Alt also puts it into Register 2.
void constantsKey(Keys& keys);

/// On the Tables keypad: picks one at each click.
void pickConstant(Keys& keys);
/// The same, and puts it into Register 2.
void pickAndKeepConstant(Keys& keys);

void pickPrefix(Keys& keys);
void pickSpecificGravity(Keys& keys);

/// The units of the resistivity key; a resistivity that is picked from the list of materials
/// meanwhile goes on the stack under its unit when their dialog closes.
void chooseResistivity(Keys& keys);

}  // namespace tallyforge
