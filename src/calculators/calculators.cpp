// SPDX-License-Identifier: GPL-3.0-or-later
#include "calculators/calculators.h"

#include <array>

namespace tallyforge {

std::span<const CalculatorTable* const> calculatorTables() {
    static constexpr std::array<const CalculatorTable*, 12> kTables{&kOhmsLaw,
                                                                    &kResonantFrequency,
                                                                    &kGeometricMean,
                                                                    &kSeriesResonance,
                                                                    &kParallelResonance,
                                                                    &kFluxDensity,
                                                                    &kMagnetizingForce,
                                                                    &kInductanceByTurns,
                                                                    &kInductanceByPermeability,
                                                                    &kCCore,
                                                                    &kTemperatureCoefficient,
                                                                    &kArc};
    return kTables;
}

}  // namespace tallyforge
