// SPDX-License-Identifier: GPL-3.0-or-later
//
// Percentages and sales tax.
#pragma once

namespace tallyforge {

class Engine;

/// Plain: X percent of Y, which stays below the result. Shift: by how many percent X differs from
/// Y. Ctrl: Y plus and Y less X percent, in the place of both. Raises 6, 11.
void percent(Engine& calc);

/// Plain: the tax on X and the total. Shift: the rate. Ctrl: X becomes the rate, below 100, and is
/// written to the settings. Raises 5 for a rate that needs more than the five columns it has there,
/// and what the settings file raises.
void salesTax(Engine& calc);

}  // namespace tallyforge
