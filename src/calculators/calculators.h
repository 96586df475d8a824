// SPDX-License-Identifier: GPL-3.0-or-later
//
// The calculator dialogs that are tables, a file a subject.
#pragma once

#include "dialogs/calculator_table.h"

#include <span>

namespace tallyforge {

extern const CalculatorTable kOhmsLaw;
extern const CalculatorTable kResonantFrequency;
extern const CalculatorTable kGeometricMean;
extern const CalculatorTable kSeriesResonance;
extern const CalculatorTable kParallelResonance;
extern const CalculatorTable kFluxDensity;
extern const CalculatorTable kMagnetizingForce;
extern const CalculatorTable kInductanceByTurns;
extern const CalculatorTable kInductanceByPermeability;
extern const CalculatorTable kCCore;
extern const CalculatorTable kTemperatureCoefficient;
extern const CalculatorTable kArc;

/// All of them, for whoever walks through them.
[[nodiscard]] std::span<const CalculatorTable* const> calculatorTables();

}  // namespace tallyforge
