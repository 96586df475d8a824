// SPDX-License-Identifier: GPL-3.0-or-later
#include "electrical/wire_sizes.h"

#include "electrical/wire_tables.h"
#include "numbers/checked_math.h"
#include "numbers/number_format.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace tallyforge {

namespace {

constexpr double kMilsPerInch = 1000.0;

/// What a build is made in, and the smallest diameter (inches) of its thinnest wire.
struct BuildRange {
    int thickest = 0;
    int thinnest = 0;          ///< by gauge
    int thinnestMeasured = 0;  ///< found by a diameter
    double least = 0.0;
};

constexpr BuildRange rangeOf(WireBuild build) {
    switch (build) {
        case WireBuild::Single:
            return {kThickestGauge, kThinnestGauge, kThinnestGauge, 0.000328};
        case WireBuild::Heavy:
            return {4, 56, 56, 0.0006};
        case WireBuild::Triple:
            return {4, 44, 53, 0.00087};
        case WireBuild::Quad:
            break;
    }
    return {4, 44, 53, 0.00097};
}

/// Rows of the build's table from its thickest wire down to `thinnest`.
std::span<const TableRow> rowsTo(WireBuild build, int thinnest) {
    const LookupTable& table = filmDiameters(build);
    const int thickest = rangeOf(build).thickest;
    return table.rows.subspan(static_cast<std::size_t>(thickest - table.first()),
                              static_cast<std::size_t>(thinnest - thickest + 1));
}

/// Diameters are compared to six places, as whole numbers.
double millionths(double inches) {
    constexpr int kPlaces = 6;
    constexpr double kPerInch = 1e6;
    return std::round(roundHalfEven(inches, kPlaces) * kPerInch);
}

/// The exact way back, logarithmic between two rows and on beyond the ends.
double turnedRound(std::span<const TableRow> rows, double area) {
    // The row after the wanted interval: the first that is thinner than `area`.
    auto thinner = std::find_if(rows.begin() + 1, rows.end(),
                                [area](const TableRow& row) { return circularMils(row.value) < area; });
    thinner = std::min(thinner, rows.end() - 1);
    const TableRow& thicker = *(thinner - 1);
    const double largest = circularMils(thicker.value);
    return thicker.size + std::log(largest / area) / std::log(largest / circularMils(thinner->value));
}

/// Fitted to single wire from 38 to 44.
double singleCurve(double x) {
    return 66.6445 + x * (-8.9853 + x * (1.36687 + x * (-0.106274 + x * (0.0040089 - x * 0.0000582))));
}

/// Fitted to heavy wire from 51 to 56, a power law.
double fineHeavyCurve(double x) {
    return 53.46817 * std::pow(x, -0.10013);
}

/// Fitted to heavy wire from 47 to 50.
double heavyCurve(double x) {
    return (95.0 + 200.5382 * x) / (1.0 + 4.38634 * x + 0.046935 * x * x);
}

}  // namespace

double bareDiameter(double awg) {
    constexpr double kThirtySix = 0.005;
    constexpr double kRatio = 1.1229322;
    return checked(kThirtySix * std::pow(kRatio, 36.0 - awg));
}

double circularMils(double inches) {
    const double mils = kMilsPerInch * inches;
    return checked(mils * mils);
}

double ohmsPerFoot(double awg) {
    constexpr double kOhmCircularMils = 10.37;
    const double mils = 325.0 * std::exp(-0.116 * awg);
    return checked(kOhmCircularMils / (mils * mils));
}

std::optional<double> filmDiameter(WireBuild build, double awg) {
    const BuildRange range = rangeOf(build);
    const bool made = awg >= range.thickest && awg <= range.thinnest;
    return made ? filmDiameters(build).at(awg) : std::nullopt;
}

std::optional<double> filmArea(WireBuild build, double awg) {
    // The circular mils of heavy wire go on where it is not made.
    const auto inches = build == WireBuild::Heavy ? filmDiameters(build).at(awg) : filmDiameter(build, awg);
    return inches ? std::optional{circularMils(*inches)} : std::nullopt;
}

std::optional<int> gaugeOfDiameter(WireBuild build, double inches) {
    const BuildRange range = rangeOf(build);
    const auto rows = rowsTo(build, range.thinnestMeasured);
    const double wanted = millionths(inches);
    if (wanted < millionths(range.least) || wanted > millionths(rows.front().value)) {
        return std::nullopt;
    }
    // Diameters fall from row to row.
    const auto thinner = std::partition_point(
        rows.begin(), rows.end(), [wanted](const TableRow& row) { return millionths(row.value) >= wanted; });
    return (thinner - 1)->size;
}

AreaRange areaRange(WireBuild build) {
    switch (build) {
        case WireBuild::Single:
            return {.least = 0.145, .most = 250000.0};
        case WireBuild::Heavy:
            return {.least = 0.62, .most = 49500.0};
        case WireBuild::Triple:
        case WireBuild::Quad:
            break;
    }
    const auto rows = rowsTo(build, rangeOf(build).thinnest);
    const auto beyond = [](const TableRow& end, const TableRow& next) {
        return circularMils(end.value) * end.value / next.value;
    };
    return {.least = beyond(rows.back(), rows[rows.size() - 2]), .most = beyond(rows.front(), rows[1])};
}

double gaugeOfArea(WireBuild build, double area) {
    // The curve of single wire runs away above its last row, that of 38.
    if (build == WireBuild::Single && area > 4.92 && area < 22.09) {
        return singleCurve(area);
    }
    if (build == WireBuild::Heavy && area <= 1.8) {
        return fineHeavyCurve(area);
    }
    if (build == WireBuild::Heavy && area <= 4.0) {
        return heavyCurve(area);
    }
    return turnedRound(rowsTo(build, rangeOf(build).thinnest), area);
}

}  // namespace tallyforge
