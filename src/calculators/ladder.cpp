// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/ladder.h"

#include "dialogs/calculator_table.h"
#include "numbers/checked_math.h"
#include "numbers/circle.h"

namespace tallyforge {

namespace {

using Complex = std::complex<double>;

Complex inverse(const Complex& value) {
    const double size = std::abs(value);
    if (size == 0.0) {
        throw Failure{FailureNumber::DivisionByZero};
    }
    return std::polar(checked(1.0 / size), -std::arg(value));
}

bool needsFrequency(LadderElement element) {
    return element != LadderElement::Rp && element != LadderElement::rs;
}

}  // namespace

Ladder CalcLNW(const Ladder& ladder, LadderElement element, double value) {
    if (element == LadderElement::Frequency) {
        return {.admittance = {}, .w = checked(kTwoPi * value)};
    }
    if (needsFrequency(element) && ladder.w == 0.0) {
        throw Refusal{"Redo!", "Enter the frequency first!"};
    }
    const auto inSeries = [&](const Complex& impedance) {
        if (!ladder.ParallelSeen) {
            throw Refusal{"Redo!", "First element must be parallel!"};
        }
        return inverse(inverse(ladder.admittance) + impedance);
    };
    Ladder next = ladder;
    next.ParallelSeen = true;
    switch (element) {
        case LadderElement::Rp:
            next.admittance += quotient(1.0, value);
            break;
        case LadderElement::Cp:
            next.admittance += Complex{0.0, checked(ladder.w * value)};
            break;
        case LadderElement::Lp:
            next.admittance -= Complex{0.0, quotient(1.0, ladder.w * value)};
            break;
        case LadderElement::rs:
            next.admittance = inSeries(value);
            break;
        case LadderElement::Cs:
            next.admittance = inSeries(Complex{0.0, -quotient(1.0, ladder.w * value)});
            break;
        default:
            next.admittance = inSeries(Complex{0.0, checked(ladder.w * value)});
            break;
    }
    return next;
}

Complex inputImpedance(const Ladder& ladder) {
    return inverse(ladder.admittance);
}

}  // namespace tallyforge
