// SPDX-License-Identifier: GPL-3.0-or-later
#include "functions/triangle_solver.h"

#include "functions/math_functions.h"
#include "numbers/checked_math.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace tallyforge {

namespace {

constexpr double kQuarterTurn = kPi / 2.0;

[[noreturn]] void noTriangle() {
    throw Failure{FailureNumber::InvalidArgument};
}

double legFrom(double hypotenuse, double otherLeg) {
    if (otherLeg >= hypotenuse) {
        noTriangle();
    }
    return rootOf((hypotenuse - otherLeg) * (hypotenuse + otherLeg));
}

// A right angle that was converted from degrees or grads is one to its last bits only.
bool isAcute(double angle) {
    constexpr double kLastDigits = 1e-14;
    return angle > 0.0 && angle < kQuarterTurn - kLastDigits;
}

// The sides are all known: only the angles are missing.
RightTriangle withAngles(RightTriangle t) {
    t.oppositeX = MathFunctions::ArcSin(quotient(t.x, t.hypotenuse)).value_or(kQuarterTurn);
    t.oppositeY = kQuarterTurn - t.oppositeX;
    return t;
}

// The triangle from its angle opposite to X and one side.
RightTriangle fromAngle(std::uint8_t side, RightTriangle t) {
    const double sine = std::sin(t.oppositeX);
    const double cosine = std::cos(t.oppositeX);
    if (side == kAbscissa) {
        t.hypotenuse = quotient(t.x, sine);
    } else if (side == kOrdinate) {
        t.hypotenuse = quotient(t.y, cosine);
    }
    t.x = side == kAbscissa ? t.x : checked(t.hypotenuse * sine);
    t.y = side == kOrdinate ? t.y : checked(t.hypotenuse * cosine);
    t.oppositeY = kQuarterTurn - t.oppositeX;
    return t;
}

RightTriangle legsExchanged(const RightTriangle& t) {
    return {.hypotenuse = t.hypotenuse, .x = t.y, .y = t.x, .oppositeX = t.oppositeY, .oppositeY = t.oppositeX};
}

/// Round the corner: the sides and the angles opposite to them, under one index.
struct Opposed {
    std::array<double, 3> side{};
    std::array<double, 3> angle{};
};

constexpr std::size_t next(std::size_t index) {
    return (index + 1) % 3;
}

constexpr std::size_t afterNext(std::size_t index) {
    return (index + 2) % 3;
}

Opposed opposed(const Triangle& t) {
    Opposed o{.side = t.sides};
    for (std::size_t i = 0; i < 3; ++i) {
        o.angle.at(afterNext(i)) = t.angles.at(i);
    }
    return o;
}

Triangle finished(const Opposed& o) {
    Triangle t{.sides = o.side};
    for (std::size_t i = 0; i < 3; ++i) {
        if (!(o.side.at(i) > 0.0) || !(o.angle.at(i) > 0.0)) {
            noTriangle();
        }
        t.angles.at(i) = o.angle.at(afterNext(i));
    }
    t.area = checked(0.5 * o.side[0] * o.side[1] * std::sin(o.angle[2]));
    return t;
}

Triangle fromSides(Opposed o) {
    const auto& [a, b, c] = o.side;
    const double half = checked(a + b + c) / 2.0;
    const std::array<double, 3> rest{(b + c - a) / 2.0, (c + a - b) / 2.0, (a + b - c) / 2.0};
    if (std::any_of(rest.begin(), rest.end(), [](double r) { return r <= 0.0; })) {
        noTriangle();
    }
    for (std::size_t k = 0; k < 3; ++k) {
        const double ratio = rest.at(next(k)) / half * (rest.at(afterNext(k)) / rest.at(k));
        o.angle.at(k) = 2.0 * std::atan(std::sqrt(ratio));
    }
    return finished(o);
}

// Two sides and the angle between them; `unknown` is the side opposite to that angle.
Triangle fromAngleBetween(Opposed o, std::size_t unknown) {
    const std::size_t i = next(unknown);
    const std::size_t j = afterNext(unknown);
    const double a = o.side.at(i);
    const double b = o.side.at(j);
    const double angle = o.angle.at(unknown);
    const double halfSine = std::sin(angle / 2.0);
    o.side.at(unknown) = std::sqrt(checked((a - b) * (a - b) + 4.0 * a * b * halfSine * halfSine));
    o.angle.at(i) = std::atan2(a * std::sin(angle), b - a * std::cos(angle));
    o.angle.at(j) = kPi - angle - o.angle.at(i);
    return finished(o);
}

// `missing` is the angle that was not given, `known` the side that was.
Triangle fromTwoAngles(Opposed o, std::size_t missing, std::size_t known) {
    o.angle.at(missing) = kPi - o.angle.at(next(missing)) - o.angle.at(afterNext(missing));
    for (const std::size_t other : {next(known), afterNext(known)}) {
        o.side.at(other) = checked(o.side.at(known) * std::sin(o.angle.at(other)) / std::sin(o.angle.at(known)));
    }
    return finished(o);
}

// Two sides, and the angle opposite to `known`; `third` is the side that was not given.
TriangleSolutions fromAngleOpposite(const Opposed& given, std::size_t known, std::size_t third) {
    // Nearer to 1 than the angle's own digits: a right angle.
    constexpr double kRightAngle = 1e-13;
    const std::size_t other = 3 - known - third;
    const double sine = given.side.at(other) * std::sin(given.angle.at(known)) / given.side.at(known);
    if (sine > 1.0 + kRightAngle) {
        noTriangle();
    }
    const bool right = sine > 1.0 - kRightAngle;
    const double angle = right ? kQuarterTurn : std::asin(sine);
    const auto with = [&](double otherAngle) {
        Opposed o = given;
        o.angle.at(other) = otherAngle;
        return fromTwoAngles(o, third, known);
    };
    TriangleSolutions solutions{.first = with(angle), .second = std::nullopt};
    if (!right && given.side.at(other) > given.side.at(known)) {
        solutions.second = with(kPi - angle);
    }
    return solutions;
}

constexpr std::uint8_t kSides = 7;

std::size_t lowestBit(unsigned bits) {
    return bits % 2 == 1 ? 0 : bits % 4 == 2 ? 1 : 2;
}

}  // namespace

bool determinesRightTriangle(std::uint8_t bits) {
    constexpr std::uint8_t kDetermining[] = {3, 5, 6, 9, 10, 12, 17, 18, 20};
    return std::find(std::begin(kDetermining), std::end(kDetermining), bits) != std::end(kDetermining);
}

std::uint8_t outOfRange(std::uint8_t bits, const RightTriangle& given) {
    unsigned wrong = 0;
    const auto check = [&wrong](std::uint8_t bit, bool inRange) { wrong |= inRange ? 0U : bit; };
    check(kHypotenuse, given.hypotenuse > 0.0);
    check(kAbscissa, given.x > 0.0);
    check(kOrdinate, given.y > 0.0);
    check(kAngleOppositeX, isAcute(given.oppositeX));
    check(kAngleOppositeY, isAcute(given.oppositeY));
    return static_cast<std::uint8_t>(bits & wrong);
}

RightTriangle solveRightTriangle(std::uint8_t bits, RightTriangle given) {
    if (outOfRange(bits, given) != 0) {
        noTriangle();
    }
    if ((bits & kAngleOppositeX) != 0) {
        return fromAngle(bits & ~kAngleOppositeX, given);
    }
    if ((bits & kAngleOppositeY) != 0) {
        const auto side = static_cast<std::uint8_t>(bits & ~kAngleOppositeY);
        const std::uint8_t exchanged = side == kHypotenuse ? kHypotenuse : (kAbscissa | kOrdinate) ^ side;
        return legsExchanged(fromAngle(exchanged, legsExchanged(given)));
    }
    if ((bits & kOrdinate) == 0) {
        given.y = legFrom(given.hypotenuse, given.x);
    } else if ((bits & kAbscissa) == 0) {
        given.x = legFrom(given.hypotenuse, given.y);
    } else {
        given.hypotenuse = checked(std::hypot(given.x, given.y));
    }
    return withAngles(given);
}

std::uint8_t outOfRange(std::uint8_t bits, const Triangle& given) {
    unsigned wrong = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const double angle = given.angles.at(i);
        wrong |= given.sides.at(i) > 0.0 ? 0U : 1U << i;
        wrong |= angle > 0.0 && angle < kPi ? 0U : 1U << (i + 3);
    }
    return static_cast<std::uint8_t>(bits & wrong);
}

TriangleSolutions solveTriangle(std::uint8_t bits, const Triangle& given) {
    if (outOfRange(bits, given) != 0) {
        noTriangle();
    }
    const Opposed o = opposed(given);
    const unsigned sides = bits & kSides;
    // Bit k of this is the angle opposite to side k.
    const unsigned turned = bits >> 3;
    const unsigned opposite = (turned >> 1 | turned << 2) & kSides;
    const unsigned missingSides = kSides & ~sides;
    if (opposite == 0) {
        return {.first = fromSides(o), .second = std::nullopt};
    }
    if (sides == 0) {
        noTriangle();
    }
    const bool oneSide = (missingSides & (missingSides - 1)) != 0;
    if (oneSide) {
        return {.first = fromTwoAngles(o, lowestBit(kSides & ~opposite), lowestBit(sides)), .second = std::nullopt};
    }
    if (opposite == missingSides) {
        return {.first = fromAngleBetween(o, lowestBit(missingSides)), .second = std::nullopt};
    }
    return fromAngleOpposite(o, lowestBit(opposite), lowestBit(missingSides));
}

}  // namespace tallyforge
