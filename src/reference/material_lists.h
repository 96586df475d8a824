// SPDX-License-Identifier: GPL-3.0-or-later
//
// Lists of material values and of the SI prefixes, letter for letter as they are shown.
#pragma once

#include "dialogs/list_model.h"

#include <string_view>

namespace tallyforge {

extern const ListTable kGravityList;  ///< specific gravities, water is 1
extern const ListTable kRhoList;      ///< resistivities at 20 degrees C, micro-ohm centimetre
extern const ListTable kAlphaList;    ///< temperature coefficients of resistance, per degree C
extern const ListTable kPrefixList;   ///< SI prefixes with their powers of ten

/// Unit of the resistivities, as the tape labels it.
extern const std::string_view kRhoUnit;

}  // namespace tallyforge
