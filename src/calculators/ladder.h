// SPDX-License-Identifier: GPL-3.0-or-later
//
// A ladder network, built element by element from the load towards its input, in complex arithmetic.
#pragma once

#include <complex>

namespace tallyforge {

/// What can be added; small letters are in series.
enum class LadderElement { Rp = 0, rs = 1, Cp = 2, Cs = 3, Lp = 4, Ls = 5, Frequency = 6 };

struct Ladder {
    std::complex<double> admittance{};  ///< of what has been built, in siemens
    double w = 0.0;                     ///< radians a second; 0 before a frequency
    bool ParallelSeen = false;          ///< there is something to put an element in series with
};

/// The network with one more element, `value` in ohms, henries, farads or hertz. A frequency starts it
/// anew. Raises Refusal for a series element first, and for an L or C without a frequency; 11, 6.
[[nodiscard]] Ladder CalcLNW(const Ladder& ladder, LadderElement element, double value);

/// Impedance at the input in ohms; its argument is the angle in radians. Raises 11.
[[nodiscard]] std::complex<double> inputImpedance(const Ladder& ladder);

}  // namespace tallyforge
