// SPDX-License-Identifier: GPL-3.0-or-later
//
// Keys of waves and levels: wavelength, angular frequency, decibels.
#pragma once

#include <cstdint>

namespace tallyforge {

class Engine;

/// What X, metres of wave, hertz or seconds, becomes, and what follows from a frequency.
enum class WaveStep : std::uint8_t {
    MetresToHertz,
    HertzToMetres,
    MetresToSeconds,
    SecondsToMetres,
    HertzToSeconds,
    SecondsToHertz,
    Angular,  ///< 2 pi f
    OneOverAngular,
    AngularSquared,
    OneOverAngularSquared,
};
/// Raises 6, 11.
void wave(Engine& calc, WaveStep which);

/// Y and X are powers, whose ratio in dB stays in Y and its double, of voltages, in X. Raises 5, 11.
void levelOfPowers(Engine& calc);
/// A voltage, its impedance, another voltage and X, its impedance. Raises 5, 11.
void levelOfVoltages(Engine& calc);

}  // namespace tallyforge
