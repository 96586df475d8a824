// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/key_answers.h"

#include "engine/engine.h"

#include <cmath>

namespace tallyforge {

void answerWithDigits(Engine& calc, const Result& result, int digits, int operands) {
    calc.display.SaveDisplay(digits);
    replaceOperands(calc, operands, result);
}

void answerBySize(Engine& calc, const Result& result, int digits) {
    replaceX(calc, result);
    chooseDigits(calc, digits);
}

void refuse(Engine& calc, const KeyRefusal& refusal) {
    calc.message(refusal.kind, refusal.title, refusal.text);
    if (refusal.label.empty()) {
        leaveX(calc);
    } else {
        replaceX(calc, {calc.s.stack.Xreg, refusal.label});
    }
}

bool isWhole(double value) {
    return value == std::trunc(value);
}

}  // namespace tallyforge
