// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/everyday.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "numbers/checked_math.h"
#include "numbers/number_format.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace tallyforge {

namespace {

constexpr int kFractionDigits = 4;
constexpr std::string_view kBoardReset = "Reset Brd Ft";

// Places of a board's inputs in the table, and their bits.
constexpr std::size_t kThickness = 0;
constexpr std::size_t kWidth = 1;
constexpr std::size_t kFeet = 2;
constexpr std::size_t kInches = 3;
constexpr std::uint8_t kFeetBit = 4;
constexpr std::uint8_t kInchesBit = 8;

constexpr std::array<KeyInput, 4> kBoardInputs{{{.mask = kShift, .bit = 1, .label = "thk\""},
                                                {.mask = kCtrl, .bit = 2, .label = "Width\""},
                                                {.mask = kAlt, .bit = kFeetBit, .label = "L(ft)"},
                                                {.mask = kShift | kAlt, .bit = kInchesBit, .label = "L(in)"}}};

/// A board foot is a square foot of an inch: 12 inch-inch-feet, 144 cubic inches.
double boardOfFeet(const InputValues& values) {
    return checked(values[kThickness] * values[kWidth] * values[kFeet]) / 12.0;
}
double boardOfInches(const InputValues& values) {
    return checked(values[kThickness] * values[kWidth] * values[kInches]) / 144.0;
}

constexpr std::array<KeySolution, 2> kBoardSolutions{{{.bits = 3 | kFeetBit, .label = "bf", .solve = boardOfFeet},
                                                      {.bits = 3 | kInchesBit, .label = "bf", .solve = boardOfInches}}};

}  // namespace

double MathFunctions::windChill(double speed, double temperature) {
    const double p = power(speed, 0.16);
    return checked(35.74 + 0.6215 * temperature - 35.75 * p + 0.4275 * temperature * p);
}

double MathFunctions::heatIndex(double humidity, double temperature) {
    const double t = temperature;
    const double r = humidity;
    return checked(-42.379 + 2.04901523 * t + 10.14333127 * r - 0.22475541 * t * r - 0.00683783 * t * t -
                   0.05481717 * r * r + 0.00122874 * t * t * r + 0.00085282 * t * r * r - 0.00000199 * t * t * r * r);
}

double MathFunctions::fractionValue(std::string_view text, char decimal) {
    const auto point = text.find(decimal);
    const std::string_view denominator = point == text.npos ? std::string_view{} : text.substr(point + 1);
    const bool plain = std::all_of(denominator.begin(), denominator.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (denominator.empty() || !plain) {
        throw Failure{FailureNumber::InvalidArgument};
    }
    const std::string_view numerator = text.substr(0, point);
    const bool empty = numerator.empty() || numerator == "-";
    const double divisor = readNumber(denominator, decimal);
    if (divisor == 0.0) {
        throw Failure{FailureNumber::InvalidArgument};
    }
    return (empty ? 0.0 : readNumber(numerator, decimal)) / divisor;
}

void windChill(Engine& calc) {
    const double felt = MathFunctions::windChill(operandBelow(calc, 1), calc.xNumber());
    calc.display.SaveDisplay(1);
    replaceOperands(calc, 2, {felt, "øF"_t});
}

void heatIndex(Engine& calc) {
    replaceOperands(calc, 2, {MathFunctions::heatIndex(operandBelow(calc, 1), calc.xNumber()), "øF"_t});
}

Fractions::Fractions(Engine& calculator)
    : calc(calculator),
      board(calculator, {.resetLabel = kBoardReset,
                         .resetBit = ResetBit::BoardFeet,
                         .inputs = kBoardInputs,
                         .solutions = kBoardSolutions,
                         .shiftRecalculates = false,
                         .resultLook = kAsUserHasIt}) {}

void Fractions::F2DandBF() {
    const bool onTables = calc.s.modes.ActiveKeypad == Keypad::Tables;
    if (calc.s.modifiers.ModifierMask == 0) {
        goOn([this](const Failure& /*failure*/) { refuseFraction(); }, [this] { fraction(); });
    } else if (onTables) {
        leaveNothing(calc);
    } else {
        boardFeetInput();
    }
}

void Fractions::fraction() {
    if (calc.s.stack.depth() == 0 && calc.s.modes.ActiveKeypad != Keypad::Tables) {
        resetBoard(kBoardReset);
        return;
    }
    const double value = MathFunctions::fractionValue(calc.text(calc.s.stack.Xreg), calc.s.format.DecimalChar);
    calc.display.SaveDisplay(kFractionDigits);
    replaceX(calc, {value, "dec"});
}

void Fractions::boardFeetInput() {
    if (board.press() == MultiInput::Outcome::Solved) {
        return;
    }
    constexpr std::uint8_t kBothLengths = kFeetBit | kInchesBit;
    if ((board.received() & kBothLengths) == kBothLengths) {
        calc.message(BoxKind::Stop, "Board Feet Error", "Unknown error, please re-enter from the beginning.");
        resetBoard("Error");
    }
}

// A press with nothing entered clears the inputs.
void Fractions::resetBoard(std::string_view label) {
    calc.s.stack.Xreg = ValueCell::zero();
    board.press();
    calc.s.delivery.FnLabel = label;
}

void Fractions::refuseFraction() {
    calc.message(BoxKind::Stop, "F:D Error", "Enter a fraction nn.ddd");
    leaveNothing(calc);
}

}  // namespace tallyforge
