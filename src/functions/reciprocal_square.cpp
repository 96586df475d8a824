// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/reciprocal_square.h"

#include "engine/engine.h"
#include "numbers/checked_math.h"

namespace tallyforge {

void reciprocal(Engine& calc) {
    calc.s.delivery.FnLabel = "1/X";
    calc.s.stack.Xreg = quotient(1.0, calc.xNumber());
}

void square(Engine& calc) {
    calc.s.delivery.FnLabel = "Xý"_t;
    const double x = calc.xNumber();
    calc.s.stack.Xreg = checked(x * x);
}

void squareRoot(Engine& calc) {
    calc.s.delivery.FnLabel = "ûx"_t;
    calc.s.stack.Xreg = rootOf(calc.xNumber());
}

}  // namespace tallyforge
