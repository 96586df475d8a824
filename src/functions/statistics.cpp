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

void Statistics::addEntry() {
    begin();
    enter(1.0);
}

void Statistics::takeEntryOut() {
    begin();
    enter(-1.0);
}

void Statistics::showSums() {
    begin();
    show(Stats.StatSumY.value(), "äy"_t, Stats.StatSumX.value(), "äx"_t);
}

void Statistics::showSumsOfSquares() {
    begin();
    show(Stats.StatSumYY.value(), "äyý"_t, Stats.StatSumXX.value(), "äxý"_t);
}

void Statistics::showSumOfProducts() {
    begin();
    pushOnX(calc, {Stats.StatSumXY.value(), "äxy"_t});
    finish();
}

void Statistics::showMeans() {
    begin();
    show(mean(Stats.StatSumY), "my", mean(Stats.StatSumX), "mx");
}

void Statistics::showDeviations() {
    begin();
    show(deviation(Stats.StatSumYY, Stats.StatSumY), "Sy", deviation(Stats.StatSumXX, Stats.StatSumX), "Sx");
}

void Statistics::startAnew() {
    begin();
    clear();
    pushOnX(calc, {ValueCell::zero(), "Reset ä"_t});
    // The next entry takes the place of this 0.
    left(calc.s.stack.Xreg);
    finish();
}

void Statistics::begin() {
    if (calc.s.functions.takeReset(ResetBit::Statistics)) {
        clear();
        pressed_ = false;
    }
    forgetLostEntry();
}

void Statistics::finish() {
    pressed_ = true;
    calc.s.stack.LowestStackPtr = calc.s.stack.StackPtr + 1;
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
    const ExactDecimal exactX{sign * x};
    const ExactDecimal exactY{sign * y};
    Sums next = Stats;
    next.StatCount += sign;
    next.StatSumX += exactX;
    next.StatSumY += exactY;
    next.StatSumXX += ExactDecimal{x} * exactX;
    next.StatSumYY += ExactDecimal{y} * exactY;
    next.StatSumXY += ExactDecimal{x} * exactY;
    for (const ExactDecimal* sum :
         {&next.StatSumX, &next.StatSumY, &next.StatSumXX, &next.StatSumYY, &next.StatSumXY}) {
        // One that is out of range could not be shown.
        static_cast<void>(sum->value());
    }
    Stats = next;

    s.stack.StackPtr = std::max(s.stack.StackPtr - (pair ? 2 : 1), 1);
    if (entrySlot_ > 0 && entrySlot_ == s.stack.StackPtr - 1) {
        s.stack.StackPtr = entrySlot_;
    }
    left(s.stack.Xreg);
    finish();
    std::string label{sign > 0.0 ? "ä+("_t : "ä-("_t};
    label += NumberDisplay::shownNumber(Stats.StatCount,
                                        {.mode = DisplayMode::Fixed, .digits = 0, .decimal = s.format.DecimalChar}, 0) +
             ")";
    pushOnX(calc, {s.stack.Xreg, label});
}

void Statistics::show(double ofY, std::string_view labelY, double ofX, std::string_view labelX) {
    pushAtOnce(calc, {ofY, labelY}, false);
    pushOnX(calc, {ofX, labelX});
    finish();
}

void Statistics::clear() {
    Stats = {};
    entrySlot_ = 0;
}

void Statistics::left(const ValueCell& x) {
    entrySlot_ = calc.s.stack.StackPtr;
    entryX_ = x;
}

// An entry that was dropped or worked on has no place that the next one could take.
void Statistics::forgetLostEntry() {
    const StackState& stack = calc.s.stack;
    if (stack.LowestStackPtr <= entrySlot_ || !(stack.slot(entrySlot_) == entryX_)) {
        entrySlot_ = 0;
    }
}

double Statistics::mean(const ExactDecimal& sum) const {
    return quotient(sum.value(), Stats.StatCount);
}

double Statistics::deviation(const ExactDecimal& sumOfSquares, const ExactDecimal& sum) const {
    const double count = Stats.StatCount;
    const ExactDecimal scatter = ExactDecimal{count} * sumOfSquares - sum * sum;
    // Squares of numbers that are themselves in range need not be.
    constexpr int kFarOut = 250;
    const int half = std::abs(scatter.exponent()) > kFarOut ? scatter.exponent() / 2 : 0;
    const double variance = quotient(quotient(scatter.value(-2 * half), count), count - 1.0);
    return checked(rootOf(variance) * std::pow(10.0, half));
}

}  // namespace tallyforge
