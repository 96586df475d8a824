// SPDX-License-Identifier: GPL-3.0-or-later
//
// The chart of the colours that resistors and inductors are marked with.
#pragma once

#include "dialogs/chart_dialog.h"

namespace tallyforge {

/// A row a colour with its word to remember it by; the figure is a resistor whose bands follow the
/// rows that are clicked, one after the other.
[[nodiscard]] Chart colourChart();

}  // namespace tallyforge
