// SPDX-License-Identifier: GPL-3.0-or-later
//
// Sizes of round copper wire: from a gauge (AWG, -3 for 0000) to diameter, circular mils and
// resistance, and back from a diameter or an area over the film to the gauge. Values in, values
// out; what a build is not made in is empty.
#pragma once

#include "electrical/wire_build.h"

#include <optional>

namespace tallyforge {

/// Gauges of the published tables of bare wire.
inline constexpr int kThickestGauge = -3;
inline constexpr int kThinnestGauge = 60;
inline constexpr double kMillimetresPerInch = 25.4;

/// Diameter of bare wire in inches, any gauge: 0.005 q^(36 - awg) with q = 1.1229322, the ratio
/// 92^(1/39) of ASTM B258. Raises 6.
[[nodiscard]] double bareDiameter(double awg);

/// Circular mils of a diameter in inches: (1000 d)^2. Raises 6.
[[nodiscard]] double circularMils(double inches);

/// Ohms per foot of copper at 20 °C, any gauge: 10.37 / (325 e^(-0.116 awg))^2, which is within
/// 0.6 percent of the exact gauge formula from 0000 to 60. Raises 6.
[[nodiscard]] double ohmsPerFoot(double awg);

/// Largest diameter over the film in inches of a gauge that the build is made in: single 0000 to
/// 60, heavy 4 to 56, triple and quad 4 to 44.
[[nodiscard]] std::optional<double> filmDiameter(WireBuild build, double awg);

/// Circular mils over the film: as filmDiameter, but for heavy from 0000 to 60.
[[nodiscard]] std::optional<double> filmArea(WireBuild build, double awg);

/// The thinnest wire of the build that is not thinner than `inches`, rounded to six places: single
/// 0000 to 60, heavy 4 to 56, triple and quad 4 to 53. Empty beyond either end; the lower one is
/// the smallest diameter that the build's thinnest wire may have.
[[nodiscard]] std::optional<int> gaugeOfDiameter(WireBuild build, double inches);

/// Circular mils over the film that have a gauge.
struct AreaRange {
    double least = 0.0;
    double most = 0.0;
};
/// Half a gauge beyond the ends of the build's table.
[[nodiscard]] AreaRange areaRange(WireBuild build);

/// The gauge, with its fraction, of circular mils over the film within areaRange(): the table of
/// the build turned round, logarithmic between its rows, but for curves that were fitted to single
/// wire from 4.92 to 22.09 (within 0.115 of the table) and to heavy wire up to 4 (within 0.23).
[[nodiscard]] double gaugeOfArea(WireBuild build, double area);

}  // namespace tallyforge
