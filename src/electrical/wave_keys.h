// SPDX-License-Identifier: GPL-3.0-or-later
//
// Keys of waves and levels: wavelength, angular frequency, decibels.
#pragma once

namespace tallyforge {

class Engine;

/// X is metres of wave, hertz or seconds, as the modifiers say: plain metres to hertz, Shift hertz
/// to metres, Ctrl metres to seconds, Shift+Ctrl seconds to metres, Alt hertz to seconds, Ctrl+Alt
/// seconds to hertz. Raises 6, 11.
void wavelength(Engine& calc);

/// X is a frequency: 2 pi f, with Ctrl its square, with Shift the reciprocal. Raises 6, 11.
void angularFrequencyKey(Engine& calc);

/// Plain: Y and X are powers, whose ratio in dB stays in Y and its double, of voltages, in X. Shift:
/// a voltage, its impedance, another voltage and X, its impedance. Raises 5, 11.
void decibels(Engine& calc);

}  // namespace tallyforge
