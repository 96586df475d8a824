// SPDX-License-Identifier: GPL-3.0-or-later
//
// The keys that put a mathematical constant on the stack, one constant under each mask. The
// constants of the circle come from fifteen digits of pi.
#pragma once

namespace tallyforge {

class Engine;

/// pi, its square and cube root, 2 pi; with Shift their reciprocals. Every mask has a meaning.
void piConstant(Engine& calc);
/// e, e^2, root of e; with Shift their reciprocals.
void eConstant(Engine& calc);
/// Roots of 2, 3 and 10; with Shift their reciprocals.
void rootConstant(Engine& calc);
/// Roots of pi, 2 pi and pi/2; with Shift their reciprocals.
void rootOfPiConstant(Engine& calc);

}  // namespace tallyforge
