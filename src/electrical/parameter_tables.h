// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tables of the dialogs in which the light blue keys get their units, shape or material, and
// the relation that each dialog shows with the numbers in force.
#pragma once

#include "dialogs/parameter_dialog.h"
#include "electrical/wire_build.h"

#include <array>

namespace tallyforge {

extern const ParameterTable kPwrSupCapTable;
extern const ParameterTable kResistivityTable;
extern const ParameterTable kTempRiseTable;
extern const ParameterTable kQTable;
extern const ParameterTable kMTLTable;
extern const ParameterTable kLsTable;
extern const ParameterTable kPLTable;
extern const ParameterTable kAWGTable;

/// All of them.
inline constexpr std::array<const ParameterTable*, 8> kParameterTables{
    &kPwrSupCapTable, &kResistivityTable, &kTempRiseTable, &kQTable, &kMTLTable, &kLsTable, &kPLTable, &kAWGTable};

/// Lets the user choose the insulation of the wire keys.
void askWireBuild(Engine& calc, WireBuild& build);
/// The letter and "AWG" in two lines, the caption of the wire key for a build.
[[nodiscard]] std::string_view wireBuildCaption(WireBuild build);

}  // namespace tallyforge
