// SPDX-License-Identifier: GPL-3.0-or-later
//
// Percentages and sales tax.
#pragma once

namespace tallyforge {

class Engine;

/// X percent of Y, which stays below the result. Raises 6.
void percentOf(Engine& calc);
/// By how many percent X differs from Y. Raises 6, 11.
void percentDifference(Engine& calc);
/// Y plus and Y less X percent, in the place of both. Raises 6.
void plusAndMinusPercent(Engine& calc);

/// The tax on X and the total.
void taxAndTotal(Engine& calc);
void showTaxRate(Engine& calc);
/// X becomes the rate, below 100, and is written to the settings. Raises 5 for a rate that needs
/// more than the five columns it has there, and what the settings file raises.
void changeTaxRate(Engine& calc);

}  // namespace tallyforge
