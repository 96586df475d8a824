// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/statistics.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "numbers/checked_math.h"
#include "numbers/number_format.h"
#include "platform/text.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

namespace tallyforge {

namespace {

constexpr std::uint32_t kResetBit = 0x2000000;

}  // namespace

void Statistics::key() {
    EngineState& s = calc.s;
    if ((s.functions.FunctionResetMask & kResetBit) != 0) {
        s.functions.FunctionResetMask &= ~kResetBit;
        clear();
        pressed_ = false;
    }
    const Sums& sums = Stats;
    switch (s.modifiers.ModifierMask) {
        case kShift:
            show(sums.StatSumY, "äy"_t, sums.StatSumX, "äx"_t);
            break;
        case kCtrl:
            return enter(-1.0);
        case kShift | kCtrl:
            show(sums.StatSumYY, "äyý"_t, sums.StatSumXX, "äxý"_t);
            break;
        case kAlt:
            show(quotient(sums.StatSumY, sums.StatCount), "my", quotient(sums.StatSumX, sums.StatCount), "mx");
            break;
        case kShift | kAlt:
            pushOnX(calc, {sums.StatSumXY, "äxy"_t});
            break;
        case kCtrl | kAlt:
            show(deviation(sums.StatSumYY, sums.StatSumY), "Sy", deviation(sums.StatSumXX, sums.StatSumX), "Sx");
            break;
        case kShift | kCtrl | kAlt:
            clear();
            pushOnX(calc, {ValueCell::zero(), "Reset ä"_t});
            // The next entry takes the place of this 0.
            entrySlot_ = s.stack.StackPtr;
            break;
        default:
            return enter(1.0);
    }
    pressed_ = true;
    s.stack.LowestStackPtr = s.stack.StackPtr + 1;
}

// Before the first press nobody knows what stood on the stack already: a typed number under X is
// then one of a pair, the result of a function is not.
bool Statistics::yIsPartOfEntry() const {
    const EngineState& s = calc.s;
    if (!pressed_) {
        return s.stack.depth() >= 2 && cellBelow(calc, 1).isText();
    }
    return s.stack.StackPtr - s.stack.LowestStackPtr >= 2;
}

void Statistics::enter(double sign) {
    EngineState& s = calc.s;
    const bool pair = yIsPartOfEntry();
    const double x = calc.xNumber();
    const double y = pair ? operandBelow(calc, 1) : 0.0;
    Sums next = Stats;
    next.StatCount += sign;
    next.StatSumX = checked(next.StatSumX + sign * x);
    next.StatSumY = checked(next.StatSumY + sign * y);
    next.StatSumXX = checked(next.StatSumXX + sign * x * x);
    next.StatSumYY = checked(next.StatSumYY + sign * y * y);
    next.StatSumXY = checked(next.StatSumXY + sign * x * y);
    Stats = next;

    s.stack.StackPtr = std::max(s.stack.StackPtr - (pair ? 2 : 1), 1);
    if (entrySlot_ > 0 && entrySlot_ == s.stack.StackPtr - 1) {
        s.stack.StackPtr = entrySlot_;
    }
    entrySlot_ = s.stack.StackPtr;
    pressed_ = true;
    s.stack.LowestStackPtr = s.stack.StackPtr + 1;
    std::string label{sign > 0.0 ? "ä+("_t : "ä-("_t};
    label += NumberDisplay::shownNumber(Stats.StatCount,
                                        {.mode = DisplayMode::Fixed, .digits = 0, .decimal = s.format.DecimalChar}, 0) +
             ")";
    pushOnX(calc, {s.stack.Xreg, label});
}

void Statistics::show(double ofY, std::string_view labelY, double ofX, std::string_view labelX) {
    pushAtOnce(calc, {ofY, labelY}, false);
    pushOnX(calc, {ofX, labelX});
}

void Statistics::clear() {
    Stats = {};
    entrySlot_ = 0;
}

double Statistics::deviation(double sumOfSquares, double sum) const {
    const double count = Stats.StatCount;
    const double squareOfSum = quotient(checked(sum * sum), count);
    double scatter = sumOfSquares - squareOfSum;
    // Equal entries leave a rounding error where they have no scatter.
    constexpr double kRoundingError = 1e-12;
    if (std::abs(scatter) <= kRoundingError * std::abs(squareOfSum)) {
        scatter = 0.0;
    }
    return rootOf(quotient(scatter, count - 1.0));
}

}  // namespace tallyforge
