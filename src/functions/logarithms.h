// SPDX-License-Identifier: GPL-3.0-or-later
//
// Powers, logarithms and exponentials.
#pragma once

namespace tallyforge {

class Engine;

/// Y^X. Raises 5, 6.
void yToTheX(Engine& calc);
/// n with Y^n = X. Raises 5, 6, 11.
void exponentOfY(Engine& calc);
void twoToTheX(Engine& calc);
/// n with 2^n = X. Raises 5.
void exponentOfTwo(Engine& calc);

/// A negative X shows a box and commits nothing, 0 raises 5.
void naturalLogarithm(Engine& calc);
void eToTheX(Engine& calc);

/// ln(X + 1); -1 and below show a box and commit nothing.
void logarithmOfOnePlus(Engine& calc);
void eToTheXLessOne(Engine& calc);

/// A negative X shows a box and commits 0, "No Data!".
void commonLogarithm(Engine& calc);
void tenToTheX(Engine& calc);

}  // namespace tallyforge
