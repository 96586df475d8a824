// SPDX-License-Identifier: GPL-3.0-or-later
//
// All units of the Convert keypad: a table a dialog. A new unit is a row of its table; dialog,
// search, documentation and checks find it there.
#pragma once

#include "dialogs/conversion_table.h"
#include "engine/key_names.h"

#include <span>

namespace tallyforge {

extern const ConversionTable kTemperatureTable;
extern const ConversionTable kViscosityTable;
extern const ConversionTable kDensityTable;
extern const ConversionTable kPowerTable;
extern const ConversionTable kTimeTable;
extern const ConversionTable kTorqueTable;
extern const ConversionTable kFuelTable;
extern const ConversionTable kSpeedTable;
extern const ConversionTable kPressureTable;
extern const ConversionTable kMassTable;
extern const ConversionTable kVolumeTable;
extern const ConversionTable kAreaTable;
extern const ConversionTable kLengthTable;
extern const ConversionTable kMagneticsTable;
extern const ConversionTable kEnergyTable;
extern const ConversionTable kLightTable;
extern const ConversionTable kDecibelTable;
extern const ConversionTable kWaveformTable;
extern const ConversionTable kForceTable;

/// All tables, by the keys that open them.
[[nodiscard]] std::span<const ConversionTable* const> conversionTables();
/// The table that key `key` of the Convert keypad opens, or nullptr.
[[nodiscard]] const ConversionTable* conversionTableOf(int key);

}  // namespace tallyforge
