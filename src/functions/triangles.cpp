// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/triangles.h"

#include "engine/engine.h"
#include "engine/key_names.h"
#include "engine/results.h"
#include "functions/math_functions.h"
#include "functions/triangle_solver.h"
#include "numbers/checked_math.h"
#include "platform/text.h"

#include <algorithm>
#include <bit>
#include <cstddef>

namespace tallyforge {

namespace {

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
constexpr std::size_t kFirstAngle = 3;
constexpr int kInputsOfATriangle = 3;

constexpr MultiInput::Shape kRightShape{.resetLabel = "Reset",
                                        .resetBit = ResetBit::RightTriangle,
                                        .inputs = kRightInputs,
                                        .shiftRecalculates = false,
                                        .zeroResets = true};
constexpr MultiInput::Shape kGeneralShape{.resetLabel = "Reset",
                                          .resetBit = ResetBit::Triangle,
                                          .inputs = kGeneralInputs,
                                          .shiftRecalculates = false,
                                          .zeroResets = true};

constexpr std::uint8_t kNoInput = 0xFF;

// Only the plain key and Shift name an input.
std::uint8_t inputName(int keyNumber, std::uint8_t mask) {
    return mask > kShift ? kNoInput : static_cast<std::uint8_t>(2 * keyNumber + mask);
}

std::size_t placeOf(std::span<const KeyInput> inputs, std::uint8_t name) {
    const auto found = std::ranges::find(inputs, name, &KeyInput::mask);
    return static_cast<std::size_t>(found - inputs.begin());
}

int sideNumber(int key) {
    return key == key::SideS1 ? 0 : key == key::SideS2 ? 1 : 2;
}

}  // namespace

Triangles::Triangles(Engine& calculator)
    : calc(calculator), right{.taken{calculator, kRightShape}}, general{.taken{calculator, kGeneralShape}} {}

double Triangles::Inputs::radians(std::size_t input) const {
    return toRadians(taken.values().at(input), unit.at(input));
}

double Triangles::angleShown(double radians) const {
    return fromRadians(radians, calc.s.format.Angle);
}

double Triangles::asGiven(const Inputs& set, std::size_t input) const {
    const bool sameUnit = set.unit.at(input) == calc.s.format.Angle;
    return sameUnit ? set.taken.values().at(input) : angleShown(set.radians(input));
}

void Triangles::RightTriangle(int key) {
    const std::uint8_t name = inputName(key - key::RightAngle, calc.s.modifiers.ModifierMask);
    switch (right.taken.press(name)) {
        case MultiInput::Outcome::Reset:
            calc.s.functions.RightTriangleHasAngle = false;
            break;
        case MultiInput::Outcome::Stored: {
            const std::size_t input = placeOf(kRightInputs, name);
            const std::uint8_t bit = kRightInputs[input].bit;
            right.unit.at(input) = calc.s.format.Angle;
            calc.s.functions.RightTriangleHasAngle |= (bit & kRightAngles) != 0;
            if (determinesRightTriangle(right.taken.received())) {
                solveRight(bit);
            }
            break;
        }
        default:
            break;
    }
}

void Triangles::solveRight(std::uint8_t last) {
    const std::uint8_t given = right.taken.received();
    const InputValues& v = right.taken.values();
    tallyforge::RightTriangle t{
        .hypotenuse = v[4], .x = v[2], .y = v[3], .oppositeX = right.radians(0), .oppositeY = right.radians(1)};
    const std::uint8_t wrong = outOfRange(given, t);
    double area = 0.0;
    try {
        t = solveRightTriangle(given, t);
        area = checked(t.x / 2.0 * t.y);
    } catch (const Failure&) {
        right.taken.takeBack(wrong == 0 ? last : wrong);
        calc.s.functions.RightTriangleHasAngle = (right.taken.received() & kRightAngles) != 0;
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
    deliver(right.taken, findings);
}

void Triangles::Triangle(int key) {
    const std::uint8_t name = inputName(sideNumber(key), calc.s.modifiers.ModifierMask);
    if (general.taken.press(name) != MultiInput::Outcome::Stored) {
        return;
    }
    const std::size_t input = placeOf(kGeneralInputs, name);
    general.unit.at(input) = calc.s.format.Angle;
    if (std::popcount(general.taken.received()) == kInputsOfATriangle) {
        solveGeneral(kGeneralInputs[input].bit);
    }
}

void Triangles::solveGeneral(std::uint8_t last) {
    const std::uint8_t given = general.taken.received();
    const InputValues& v = general.taken.values();
    const tallyforge::Triangle sought{
        .sides = {v[0], v[1], v[2]},
        .angles = {general.radians(kFirstAngle), general.radians(kFirstAngle + 1), general.radians(kFirstAngle + 2)}};
    TriangleSolutions solutions;
    try {
        solutions = solveTriangle(given, sought);
    } catch (const Failure&) {
        const std::uint8_t wrong = outOfRange(given, sought);
        general.taken.takeBack(wrong == 0 ? last : wrong);
        throw;
    }
    std::vector<Finding> findings;
    const auto add = [&](const tallyforge::Triangle& t, std::string_view mark) {
        for (std::size_t i = 0; i < std::size(kGeneralInputs); ++i) {
            const bool isSide = i < kFirstAngle;
            const bool isGiven = (given & kGeneralInputs[i].bit) != 0;
            const double value = isGiven  ? (isSide ? v.at(i) : asGiven(general, i))
                                 : isSide ? t.sides.at(i)
                                          : angleShown(t.angles.at(i - kFirstAngle));
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
    deliver(general.taken, findings);
}

// X is the last input: it stands on the tape before what follows from it, and the first finding
// takes its place on the stack.
void Triangles::deliver(MultiInput& set, const std::vector<Finding>& findings) {
    set.complete();
    calc.commit.deliverX();
    replaceX(calc, {findings.front().value, findings.front().label});
    for (std::size_t i = 1; i < findings.size(); ++i) {
        calc.commit.deliverX();
        pushOnX(calc, {findings.at(i).value, findings.at(i).label});
    }
}

}  // namespace tallyforge
