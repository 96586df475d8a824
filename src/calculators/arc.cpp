// SPDX-License-Identifier: GPL-3.0-or-later
//
// A circular arc from two of its chord AB, radius, central angle and length, and the areas of its
// sector, triangle and segment. Angles are radians.
#include "calculators/calculators.h"
#include "calculators/careful.h"
#include "calculators/pictures.h"
#include "numbers/circle.h"

namespace tallyforge {

namespace {

enum Field : std::int8_t { AB, Radius, Angle, S, Sector, Triangle, Segment };

constexpr std::array<Quantity, 7> kFields{{
    {.symbol = "AB", .name = "Length of the chord AB", .bit = 1},
    {.symbol = "r", .name = "Radius", .bit = 2},
    {.symbol = "Angle", .name = "Central angle", .bit = 4, .angle = true},
    {.symbol = "s", .name = "Length of the arc", .bit = 8},
    {.symbol = "Sector", .name = "Area of the sector of the circle", .bit = 16, .resultOnly = true},
    {.symbol = "Triangle", .name = "Area of the triangle", .bit = 32, .resultOnly = true},
    {.symbol = "Segment", .name = "Area of the segment above line AB", .bit = 64, .resultOnly = true},
}};
constexpr std::array<std::string_view, 2> kTapeTexts{"  Sector Area is the sector of the circle.",
                                                     "  Segment Area is above line AB."};

[[noreturn]] void refuse(std::string_view text) {
    throw Refusal{"Entry Error!", text};
}

/// Sum of x - x³/6 + x⁵/120 - ... without its first `skipped` terms, for a small x.
double sineTail(double x, int skipped) {
    constexpr int kTerms = 12;
    double term = x;
    double sum = 0.0;
    for (int i = 0; i < kTerms; ++i) {
        sum += i >= skipped ? term : 0.0;
        term *= -x * x / ((2 * i + 2) * (2 * i + 3));
    }
    return sum;
}

/// x - sin(x), which a plain difference would lose for a small x.
double lessItsSine(double x) {
    return x < 1.0 ? -sineTail(x, 1) : x - std::sin(x);
}

/// The angle of an arc that is longer than its chord by `excess` of itself: 1 - sin(x) / x grows
/// from 0 to 1 - 2 / pi while x, half of the angle, grows to a right angle, so bisection finds it.
double angleByExcess(double excess) {
    double low = 0.0;
    double high = kPi / 2.0;
    for (double middle = high / 2.0; middle > low && middle < high; middle = (low + high) / 2.0) {
        (lessItsSine(middle) / middle < excess ? low : high) = middle;
    }
    return 2.0 * high;
}

void finishAreas(Values& v) {
    const double square = checked(v[Radius] * v[Radius]);
    v[Sector] = checked(square * v[Angle] / 2.0);
    v[Triangle] = std::abs(square * std::sin(v[Angle]) / 2.0);
    // Sector less triangle up to a half circle, and sector and triangle above.
    v[Segment] = checked(square * lessItsSine(v[Angle]) / 2.0);
}

/// A whole turn is no arc any more.
void checkAngle(const Values& v) {
    if (std::abs(v[Angle]) >= kTwoPi) {
        refuse("The angle must be less than a full circle!");
    }
}

void byRadiusAndAngle(Values& v) {
    checkAngle(v);
    v[AB] = checked(2.0 * v[Radius] * std::sin(v[Angle] / 2.0));
    v[S] = checked(v[Radius] * v[Angle]);
    finishAreas(v);
}

void byChordAndRadius(Values& v) {
    const double half = quotient(v[AB], 2.0 * v[Radius]);
    if (std::abs(half) > 1.0) {
        refuse("The chord must not be longer than the diameter!");
    }
    v[Angle] = 2.0 * std::asin(half);
    v[S] = checked(v[Radius] * v[Angle]);
    finishAreas(v);
}

void byChordAndAngle(Values& v) {
    checkAngle(v);
    v[Radius] = quotient(v[AB], 2.0 * std::sin(v[Angle] / 2.0));
    v[S] = checked(v[Radius] * v[Angle]);
    finishAreas(v);
}

void byRadiusAndLength(Values& v) {
    v[Angle] = quotient(v[S], v[Radius]);
    checkAngle(v);
    v[AB] = checked(2.0 * v[Radius] * std::sin(v[Angle] / 2.0));
    finishAreas(v);
}

void byChordAndLength(Values& v) {
    // 2 / pi, the ratio of a half circle.
    constexpr double kHalfCircle = 0.636619772367581;
    const double ratio = quotient(v[AB], v[S]);
    if (ratio >= 1.0) {
        refuse("'s' must be greater than 'AB'!");
    }
    if (ratio < kHalfCircle) {
        throw Refusal{"Not supported!", "Angle greater than 180°"_t};
    }
    v[Angle] = angleByExcess((v[S] - v[AB]) / v[S]);
    v[Radius] = quotient(v[S], v[Angle]);
    finishAreas(v);
}

void byAngleAndLength(Values& v) {
    checkAngle(v);
    v[Radius] = quotient(v[S], v[Angle]);
    v[AB] = checked(2.0 * v[Radius] * std::sin(v[Angle] / 2.0));
    finishAreas(v);
}

constexpr std::array<Solution, 6> kSolutions{{
    {.given = 6,
     .solved = {AB, S, Sector, Triangle, Segment},
     .relation = "AB = 2 r sin(Angle / 2), s = r Angle",
     .solve = byRadiusAndAngle},
    {.given = 3,
     .solved = {Angle, S, Sector, Triangle, Segment},
     .relation = "Angle = 2 asin(AB / 2r), s = r Angle",
     .solve = byChordAndRadius},
    {.given = 5,
     .solved = {Radius, S, Sector, Triangle, Segment},
     .relation = "r = AB / (2 sin(Angle / 2)), s = r Angle",
     .solve = byChordAndAngle},
    {.given = 10,
     .solved = {Angle, AB, Sector, Triangle, Segment},
     .relation = "Angle = s / r, AB = 2 r sin(Angle / 2)",
     .solve = byRadiusAndLength},
    {.given = 9,
     .solved = {Angle, Radius, Sector, Triangle, Segment},
     .relation = "AB / s = sin(Angle / 2) / (Angle / 2), r = s / Angle",
     .solve = byChordAndLength},
    {.given = 12,
     .solved = {Radius, AB, Sector, Triangle, Segment},
     .relation = "r = s / Angle, AB = 2 r sin(Angle / 2)",
     .solve = byAngleAndLength},
}};

}  // namespace

const CalculatorTable kArc{
    .form = "frmArc",
    .title = "Arc - Length, Chord, and Angle",
    .name = "Arc",
    .procedure = "calcArc",
    .helpTopic = 1940,
    .fields = kFields,
    .solutions = kSolutions,
    .clearCaption = "Clear",
    .hint = "  Input any two values.",
    .tapeTexts = kTapeTexts,
    .picture = arcPicture,
    // A third of a right angle on a radius of 2, by sines of 15 and 30 degrees.
    .example = {1.03527618041008295, 2.0, kPi / 6.0, kPi / 3.0, kPi / 3.0, 1.0, kPi / 3.0 - 1.0},
};

}  // namespace tallyforge
