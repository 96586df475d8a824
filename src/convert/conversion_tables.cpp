// SPDX-License-Identifier: GPL-3.0-or-later
#include "convert/conversion_tables.h"

#include <algorithm>
#include <array>

namespace tallyforge {

namespace {

constexpr std::array kTables{&kTemperatureTable, &kViscosityTable, &kDensityTable,  &kPowerTable,     &kTimeTable,
                             &kTorqueTable,      &kFuelTable,      &kSpeedTable,    &kPressureTable,  &kMassTable,
                             &kVolumeTable,      &kAreaTable,      &kLengthTable,   &kMagneticsTable, &kEnergyTable,
                             &kLightTable,       &kDecibelTable,   &kWaveformTable, &kForceTable};

}  // namespace

std::span<const ConversionTable* const> conversionTables() {
    return kTables;
}

const ConversionTable* conversionTableOf(int key) {
    const auto found =
        std::find_if(kTables.begin(), kTables.end(), [key](const auto* table) { return table->key == key; });
    return found == kTables.end() ? nullptr : *found;
}

}  // namespace tallyforge
