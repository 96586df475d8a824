// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/triangles.h"

#include "engine/engine.h"
#include "engine/results.h"
#include "functions/math_functions.h"
#include "functions/triangle_solver.h"
#include "numbers/checked_math.h"
#include "platform/text.h"

#include <bit>
#include <cstddef>

namespace tallyforge {

namespace {

constexpr int kFirstRightKey = 13;

// The name of an input is its key, counted from the first one, twice, and one more with Shift.
constexpr KeyInput kRightInputs[] = {
    {.mask = 0, .bit = kAngleOppositeX, .label = "í"_t}, {.mask = 1, .bit = kAngleOppositeY, .label = "é"_t},
    {.mask = 2, .bit = kAbscissa, .label = "X"},         {.mask = 3, .bit = kOrdinate, .label = "Y"},
    {.mask = 4, .bit = kHypotenuse, .label = "H"},
};

// Sides, then angles, as their bits.
constexpr KeyInput kGeneralInputs[] = {
    {.mask = 0, .bit = 1, .label = "S1"}, {.mask = 2, .bit = 2, .label = "S2"},  {.mask = 4, .bit = 4, .label = "S3"},
    {.mask = 1, .bit = 8, .label = "A1"}, {.mask = 3, .bit = 16, .label = "A2"}, {.mask = 5, .bit = 32, .label = "A3"},
};

constexpr std::uint8_t kRightAngles = kAngleOppositeX | kAngleOppositeY;
constexpr std::uint8_t kGeneralAngles = 8 | 16 | 32;
constexpr int kInputsOfATriangle = 3;

constexpr MultiInput::Shape kRightShape{
    .resetLabel = "Reset", .resetBit = 512, .inputs = kRightInputs, .shiftRecalculates = false, .zeroResets = true};
constexpr MultiInput::Shape kGeneralShape{
    .resetLabel = "Reset", .resetBit = 2048, .inputs = kGeneralInputs, .shiftRecalculates = false, .zeroResets = true};

constexpr std::uint8_t kNoInput = 0xFF;

// Only the plain key and Shift name an input.
std::uint8_t inputName(int keyNumber, std::uint8_t mask) {
    return mask > kShift ? kNoInput : static_cast<std::uint8_t>(2 * keyNumber + mask);
}

std::uint8_t bitOf(std::span<const KeyInput> inputs, std::uint8_t name) {
    for (const KeyInput& input : inputs) {
        if (input.mask == name) {
            return input.bit;
        }
    }
    return 0;
}

int sideNumber(int key) {
    constexpr int kKeyOfS1 = 11;
    constexpr int kKeyOfS2 = 23;
    return key == kKeyOfS1 ? 0 : key == kKeyOfS2 ? 1 : 2;
}

}  // namespace

Triangles::Triangles(Engine& calculator)
    : calc(calculator), right(calculator, kRightShape), general(calculator, kGeneralShape) {}

double Triangles::angleShown(double radians) const {
    return fromRadians(radians, calc.s.format.Angle);
}

void Triangles::RightTriangle(int key) {
    const std::uint8_t name = inputName(key - kFirstRightKey, calc.s.modifiers.ModifierMask);
    const std::uint8_t bit = bitOf(kRightInputs, name);
    switch (right.press(name)) {
        case MultiInput::Outcome::Reset:
            calc.s.functions.RightTriangleHasAngle = false;
            break;
        case MultiInput::Outcome::Stored:
            if ((bit & kRightAngles) != 0) {
                right.revise(bit, toRadians(calc.xNumber(), calc.s.format.Angle));
                calc.s.functions.RightTriangleHasAngle = true;
            }
            if (determinesRightTriangle(right.received())) {
                solveRight(bit);
            }
            break;
        default:
            break;
    }
}

void Triangles::solveRight(std::uint8_t last) {
    const std::uint8_t given = right.received();
    tallyforge::RightTriangle t;
    const InputValues& v = right.values();
    t = {.hypotenuse = v[4], .x = v[2], .y = v[3], .oppositeX = v[0], .oppositeY = v[1]};
    double area = 0.0;
    try {
        t = solveRightTriangle(given, t);
        area = checked(t.x / 2.0 * t.y);
    } catch (const Failure&) {
        right.takeBack(last);
        calc.s.functions.RightTriangleHasAngle = (right.received() & kRightAngles) != 0;
        throw;
    }
    struct Quantity {
        std::uint8_t bit;
        double value;
        std::string_view label;
    };
    const Quantity quantities[] = {{kHypotenuse, t.hypotenuse, "H"},
                                   {kAbscissa, t.x, "X"},
                                   {kAngleOppositeX, angleShown(t.oppositeX), "í"_t},
                                   {kOrdinate, t.y, "Y"},
                                   {kAngleOppositeY, angleShown(t.oppositeY), "é"_t},
                                   {0, area, "Area"}};
    std::vector<Finding> findings;
    for (const Quantity& quantity : quantities) {
        if ((given & quantity.bit) == 0) {
            findings.push_back({.value = quantity.value, .label = std::string(quantity.label)});
        }
    }
    calc.s.functions.RightTriangleHasAngle = false;
    deliver(right, findings);
}

void Triangles::Triangle(int key) {
    const std::uint8_t name = inputName(sideNumber(key), calc.s.modifiers.ModifierMask);
    if (general.press(name) != MultiInput::Outcome::Stored) {
        return;
    }
    const std::uint8_t bit = bitOf(kGeneralInputs, name);
    if ((bit & kGeneralAngles) != 0) {
        general.revise(bit, toRadians(calc.xNumber(), calc.s.format.Angle));
    }
    if (std::popcount(general.received()) == kInputsOfATriangle) {
        solveGeneral(bit);
    }
}

void Triangles::solveGeneral(std::uint8_t last) {
    const std::uint8_t given = general.received();
    const InputValues& v = general.values();
    TriangleSolutions solutions;
    try {
        solutions = solveTriangle(given, {.sides = {v[0], v[1], v[2]}, .angles = {v[3], v[4], v[5]}});
    } catch (const Failure&) {
        general.takeBack(last);
        throw;
    }
    std::vector<Finding> findings;
    const auto add = [&](const tallyforge::Triangle& t, std::string_view mark) {
        for (std::size_t i = 0; i < 6; ++i) {
            const double value = i < 3 ? t.sides.at(i) : angleShown(t.angles.at(i - 3));
            findings.push_back({.value = value, .label = std::string(kGeneralInputs[i].label) + std::string(mark)});
        }
        findings.push_back({.value = t.area, .label = "Area" + std::string(mark)});
    };
    add(solutions.first, "");
    if (solutions.second) {
        calc.message(BoxKind::Notice, "--- IMPORTANT MESSAGE ---",
                     "There are two solutions, this is the first, the second is followed by asterisks.");
        add(*solutions.second, "*");
    }
    deliver(general, findings);
}

// X is the last input: it stands on the tape before what follows from it, and the first finding
// takes its place on the stack.
void Triangles::deliver(MultiInput& set, const std::vector<Finding>& findings) {
    set.complete();
    calc.s.delivery.ValueInXreg = true;
    calc.commit.cmdEnter_Click();
    replaceX(calc, {findings.front().value, findings.front().label});
    for (std::size_t i = 1; i < findings.size(); ++i) {
        calc.commit.cmdEnter_Click();
        pushOnX(calc, {findings.at(i).value, findings.at(i).label});
    }
}

}  // namespace tallyforge
