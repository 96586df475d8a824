// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/reciprocal_square.h"

#include "engine/engine.h"
#include "numbers/checked_math.h"

namespace tallyforge {

void reciprocal(Engine& calc) {
    calc.s.FnLabel = "1/X";
    calc.s.Xreg = quotient(1.0, calc.xNumber());
}

void square(Engine& calc) {
    calc.s.FnLabel = "Xý"_t;
    const double x = calc.xNumber();
    calc.s.Xreg = checked(x * x);
}

void squareRoot(Engine& calc) {
    calc.s.FnLabel = "ûx"_t;
    calc.s.Xreg = rootOf(calc.xNumber());
}

}  // namespace tallyforge
